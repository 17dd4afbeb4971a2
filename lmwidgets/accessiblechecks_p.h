#ifndef LMWIDGETS_ACCESSIBLECHECKS_P_H
#define LMWIDGETS_ACCESSIBLECHECKS_P_H

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

/**
 * Tells Qt, once for the process, how the self-painted switches appear to assistive technology: as
 * check boxes with a name and a state, which can be toggled.
 */
void registerAccessibleChecks();

/** Tells assistive technology that the switch @p widget has been turned over. */
void announceChecked(QWidget *widget);
/** Tells assistive technology that @p widget has another name. */
void announceName(QWidget *widget);

} // namespace Widgets
} // namespace LM

#endif
