#ifndef LAYERSCENARIO_H
#define LAYERSCENARIO_H

/**
 * Shows a window with a layer list of three rows and says what the list reports: "layer ROW TYPE
 * VALUE" for a button, "name ROW TEXT" for a name. The buttons are called "delete0", "edit0",
 * "lock0", "visible0", "color0" and so on, the first name's place "list". A dialog to choose a
 * colour is called "color", its line edit "color-html", its buttons "color-ok", "color-cancel" and
 * "color-close".
 */
void runLayers();

#endif
