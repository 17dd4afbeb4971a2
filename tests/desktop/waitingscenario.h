#ifndef WAITINGSCENARIO_H
#define WAITINGSCENARIO_H

/**
 * Shows a window "main" whose button "main-button" starts a worker. The worker opens the box "busy"
 * by its signal and ends it when its button "stop" was clicked. Says "working", "canceled" and
 * "ended".
 */
void runWaiting();

/**
 * Shows the second frame as "dialog", resizable by the mouse, with the line edits "edit" and
 * "second", the buttons "ok" and "cancel", and the title buttons "minimize", "maximize", "restore"
 * and "close".
 */
void runSecondFrame();

#endif
