// The list of pages, in the order in which the gallery shows them. A line LMGALLERY_PAGE(name)
// stands for the file pages/<name>page.cpp, which defines `Page <name>Page()` in the namespace
// gallery: a new page is that file and one line here. The build reads this list too. Included
// wherever the list is gone through, with LMGALLERY_PAGE defined as what is to be done for each; so
// it has no include guard.

LMGALLERY_PAGE(theme)
LMGALLERY_PAGE(frame)
LMGALLERY_PAGE(secondframe)
LMGALLERY_PAGE(messagebox)
LMGALLERY_PAGE(files)
LMGALLERY_PAGE(editcombo)
LMGALLERY_PAGE(parameters)
LMGALLERY_PAGE(smallwidgets)
LMGALLERY_PAGE(tabs)
LMGALLERY_PAGE(progress)
LMGALLERY_PAGE(sliders)
LMGALLERY_PAGE(switches)
LMGALLERY_PAGE(waiting)
LMGALLERY_PAGE(balloons)
LMGALLERY_PAGE(linetypes)
LMGALLERY_PAGE(delegates)
LMGALLERY_PAGE(layers)
LMGALLERY_PAGE(containers)
LMGALLERY_PAGE(flow)
LMGALLERY_PAGE(startup)
LMGALLERY_PAGE(folders)

#undef LMGALLERY_PAGE
