#ifndef LMWIDGETS_TOOLBUTTONRELEASE_P_H
#define LMWIDGETS_TOOLBUTTONRELEASE_P_H

#include <QMouseEvent>
#include <QPointer>
#include <QToolButton>

namespace LM {
namespace Widgets {

/**
 * Hands the release of the mouse to a tool button whose click may destroy it.
 *
 * Up to Qt 5.15 QToolButton writes to itself after the release has been turned into a click. So
 * QAbstractButton's part, @p asAbstractButton, which clicks, runs first; and QToolButton's,
 * @p asToolButton, follows only if the button is still there. By then the click is over: it merely
 * forgets the press, and would ignore the event.
 */
template <typename AsAbstractButton, typename AsToolButton>
void releaseToolButton(QToolButton *button, QMouseEvent *event, AsAbstractButton asAbstractButton,
                       AsToolButton asToolButton)
{
    const QPointer<QToolButton> guard(button);
    asAbstractButton();
    if (guard) {
        const bool accepted = event->isAccepted();
        asToolButton();
        event->setAccepted(accepted);
    }
}

} // namespace Widgets
} // namespace LM

#endif
