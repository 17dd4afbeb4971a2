#ifndef PROGRESSSCENARIO_H
#define PROGRESSSCENARIO_H

/**
 * Shows a window "main" whose button starts an operation of 5000 steps with a modal progress dialog,
 * "progress", and the button "stop" in it. Says "started", "appeared MS", "canceled" for the signal of the dialog,
 * and "step N" every 20 steps of 10 ms. The operation ends with "ended", or with "stopped" when it
 * was canceled.
 */
void runProgress();

#endif
