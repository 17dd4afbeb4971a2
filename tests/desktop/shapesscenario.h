#ifndef SHAPESSCENARIO_H
#define SHAPESSCENARIO_H

/**
 * Shows a window called "settings" with a ToggleSwitch, "toggle", and a RoundCheckBox, "round". Says
 * "toggled NAME on" or "toggled NAME off".
 */
void runSwitches();

/**
 * Shows a window called "main" and over it a TalvoDoubleInputDlg, "value", with the range 0 to 100
 * and two decimals. Says "value NUMBER" when it ends.
 */
void runValueDialog();

/** Shows a window called "main" with a button, "opener", and below it a balloon, "balloon". */
void runBalloon();

#endif
