#ifndef LMWIDGETS_ACCESSIBLECUSTOMTABBAR_P_H
#define LMWIDGETS_ACCESSIBLECUSTOMTABBAR_P_H

#include <QtGlobal>

namespace LM {
namespace Widgets {

/**
 * Makes assistive technology see each QCustomTabBar as a list of tabs, each with its text as its
 * name, its tool tip, where the host says what the dot stands for, as its description, and whether
 * it is selected or cannot be. What Qt offers for a QTabBar tells neither of the two states. The
 * first call does it, for the whole process; the others do nothing.
 */
void installAccessibleCustomTabBar();

} // namespace Widgets
} // namespace LM

#endif
