#ifndef FILESSCENARIO_H
#define FILESSCENARIO_H

/**
 * Shows a window called "main" with two buttons: "save" asks for a name in a folder of the test's
 * own, "open" for a file there; the only one is called north.las. The framed dialog is called
 * "files". Says "folder PATH" first, and "chosen URL" or "chosen nothing" when a dialog has ended.
 */
void runFiles();

#endif
