#ifndef EDITCOMBOSCENARIO_H
#define EDITCOMBOSCENARIO_H

/**
 * Shows a window called "form" with an edit combo box "system", whose line edit is called
 * "system-edit" and whose button "system-button", and a line edit "after". The list is called
 * "system-list". Says "index N", "indexText TEXT" and "current TEXT" for the signals of the box.
 */
void runEditCombo();

#endif
