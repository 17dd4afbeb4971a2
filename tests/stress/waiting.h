#ifndef STRESS_WAITING_H
#define STRESS_WAITING_H

/** Lets several threads at once start and stop the waiting dialog @p rounds times. */
bool stressWaiting(int rounds);

#endif
