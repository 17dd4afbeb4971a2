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

KeyboardActivation::~KeyboardActivation()
{
    // A dialog that is destroyed while it is open closes its window when this has gone.
    giveKeyboardBack();
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
        followWindow();
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

/** Where the window manager does not know the dialog's window, waits for it to go. */
void KeyboardActivation::followWindow()
{
    QWindow *window = m_dialog->windowHandle();
    if (!window || QGuiApplication::platformName() != QLatin1String("xcb")) {
        return;
    }
    QWindow *focus = QGuiApplication::focusWindow();
    if (focus && focus != window) {
        m_formerFocus = focus;
    }
    if (window == m_window) {
        return;
    }
    m_window = window;
    // Emitted before the window goes: afterwards it has no keyboard any more to give back.
    connect(window, &QWindow::visibleChanged, this, [this](bool visible) {
        if (!visible) {
            giveKeyboardBack();
        }
    });
}

void KeyboardActivation::giveKeyboardBack()
{
    QWindow *window = m_window;
    if (!window || QGuiApplication::focusWindow() != window ||
        !window->flags().testFlag(Qt::BypassWindowManagerHint)) {
        return;
    }
    QWindow *owner = window->transientParent() ? window->transientParent() : m_formerFocus.data();
    if (!owner || !owner->isVisible() || !owner->isTopLevel()) {
        return;
    }
    // Qt asks the window manager to activate a window, unless that is above the one that has the
    // keyboard: then it hands the keyboard over itself, which is what is needed here.
    QWindow *const transientParent = window->transientParent();
    window->setTransientParent(owner);
    owner->requestActivate();
    window->setTransientParent(transientParent);
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
