#include "keyboardactivation_p.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

namespace LM {
namespace Widgets {

KeyboardActivation::KeyboardActivation(QWidget *dialog) : m_dialog(dialog)
{
    // Wayland leaves the focus to the compositor and Qt warns of each attempt.
    if (!QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) {
        dialog->installEventFilter(this);
    }
}

bool KeyboardActivation::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_dialog) {
        if (event->type() == QEvent::Show && !event->spontaneous() && m_dialog->isWindow()) {
            if (QWindow *window = m_dialog->windowHandle()) {
                // The press itself goes to the child under the mouse; the window sees it first.
                window->installEventFilter(this);
            }
            if (!m_dialog->testAttribute(Qt::WA_ShowWithoutActivating)) {
                m_dialog->activateWindow();
            }
        }
    } else if (event->type() == QEvent::MouseButtonPress && !m_dialog->isActiveWindow()) {
        m_dialog->activateWindow();
    }
    return false;
}

} // namespace Widgets
} // namespace LM
