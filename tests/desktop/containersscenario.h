#ifndef CONTAINERSSCENARIO_H
#define CONTAINERSSCENARIO_H

/**
 * Shows a window called "panel": a scroll area, "view", with six collapsible group boxes "a" to
 * "f". All but "e" are in one group, "c" is folded, "d" is checkable. Says "folded NAME" and
 * "opened NAME", and "checked NAME 0" or "checked NAME 1".
 */
void runPanel();

#endif
