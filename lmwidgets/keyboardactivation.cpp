#include "keyboardactivation_p.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

namespace LM {
namespace Widgets {

KeyboardActivation::KeyboardActivation(QWidget *dialog) : m_dialog(dialog)
{
    // Wayland leaves the focus to the compositor, and Qt warns of each attempt.
    if (!QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) {
        dialog->installEventFilter(this);
    }
}

bool KeyboardActivation::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_dialog) {
        followDialog(event);
    } else if (event->type() == QEvent::MouseButtonPress && isWindowOfDialog(watched) &&
               !m_dialog->isActiveWindow()) {
        activate();
    }
    return false;
}

void KeyboardActivation::followDialog(const QEvent *event)
{
    if (event->type() == QEvent::Show && !event->spontaneous() && m_dialog->isWindow()) {
        // A press goes to the child under the mouse, and windows come and go inside the dialog: the
        // application sees it first, whichever window it is for.
        QCoreApplication::instance()->installEventFilter(this);
        if (!m_dialog->testAttribute(Qt::WA_ShowWithoutActivating)) {
            activate();
        }
    } else if (event->type() == QEvent::Hide && !event->spontaneous()) {
        QCoreApplication::instance()->removeEventFilter(this);
    }
}

void KeyboardActivation::activate()
{
    if (!m_dialog->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus)) {
        m_dialog->activateWindow();
    }
}

bool KeyboardActivation::isWindowOfDialog(const QObject *watched) const
{
    if (!watched->isWindowType()) {
        return false;
    }
    const QWindow *dialogWindow = m_dialog->windowHandle();
    const auto *window = static_cast<const QWindow *>(watched);
    while (window && window != dialogWindow) {
        window = window->parent();
    }
    return window && dialogWindow;
}

} // namespace Widgets
} // namespace LM
