#ifndef STRESS_THEMES_H
#define STRESS_THEMES_H

/** Switches the theme @p switches times while @p live dialogs are open. */
bool stressThemes(int switches, int live);

/**
 * The same in an application whose style sheet changes with the theme, where each switch styles
 * every widget anew. The application follows the theme from then on.
 */
bool stressStyledThemes(int switches, int live);

#endif
