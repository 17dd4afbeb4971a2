#ifndef SMALLWIDGETSSCENARIO_H
#define SMALLWIDGETSSCENARIO_H

/**
 * Shows a window called "small": two tool buttons, "tool-a" and "tool-b", a link called "link", a
 * spin box called "number" and tabs, "tabs", with the bar "bar" and the pages "page0" to "page2".
 *
 * Says "picture NAME PICTURE" when a tool button shows another picture, "opened URL" for an address
 * that would be opened, "number TEXT VALUE" after each notice of an edit, "tab INDEX" and "dot
 * INDEX COLOR". A click on "tool-b" switches the theme from black to white or back, and one on
 * "tool-a" gives the dot of the current tab another colour.
 */
void runSmallWidgets();

/** The same window, but addresses go to the programs of the desktop. */
void runDesktopLink();

#endif
