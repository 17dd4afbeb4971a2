#ifndef SLIDERSCENARIO_H
#define SLIDERSCENARIO_H

/**
 * Shows a window called "filter" with a double slider, "slider", that is 110 px wide and 20 px high
 * and has the range 0 to 100: value v is v + 5 px from its left edge. It begins with 20 and 60. Says
 * "lower VALUE" and "upper VALUE".
 */
void runSlider();

#endif
