#ifndef FILESSCENARIO_H
#define FILESSCENARIO_H

/**
 * Shows a window "main" whose button asks for a file to open, or to save, in the folder that the
 * environment variable DESKTOP_FILES names, and says "chosen NAME", without the folder's path, or
 * "chosen nothing".
 *
 * The framed dialog is called "files", and its parts "files-accept", "files-cancel", "files-close"
 * and "fileNameEdit". When it has read or sorted a folder it says "entry NAME X Y W H" for each
 * of the entries, with where they are on the screen. A stock message box is called "notice" and its
 * button "notice-ok"; that of the library keeps the name that it has, and its button is "box-ok".
 */
void runFilesOpen();
void runFilesSave();
/** The same without a window: the program asks for a file to save at once. */
void runFilesAlone();

/**
 * Says first "native yes" if a stock file dialog would be that of GTK, or "native no", then does the
 * same as runFilesOpen(). preferNativeFileDialogs() is to be called before there is an application.
 */
void runFilesNative();
void preferNativeFileDialogs();

#endif
