#ifndef STACKINGSCENARIO_H
#define STACKINGSCENARIO_H

/** A window whose button runs a dialog, whose button runs another above it, and that one a third. */
void runStack();

/** A frameless dialog whose buttons open stock dialogs: a question, a colour, a file, one's own. */
void runStock();

/** The same over the second kind of frame. */
void runStockOverSecondFrame();

/** The same with the question asked by a box of the library's, above which there is a stock one. */
void runStockOverBox();

#endif
