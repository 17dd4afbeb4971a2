#ifndef LMWIDGETS_BUTTONTABORDER_P_H
#define LMWIDGETS_BUTTONTABORDER_P_H

#include <QVector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

/**
 * Lets Tab reach the content of @p dialog before the buttons in @p buttonRow below it, as it is
 * seen, although the buttons were made first; the first input of the content then also has the
 * focus at the start.
 *
 * @p asMade are the buttons in the order in which they were made, @p asSeen from left to right. An
 * order that the host has given to the buttons is kept, and so is everything where all buttons are
 * hidden or one is gone.
 */
void putButtonsLastInTabOrder(const QWidget *dialog, const QWidget *buttonRow,
                              const QVector<QWidget *> &asMade, const QVector<QWidget *> &asSeen);

} // namespace Widgets
} // namespace LM

#endif
