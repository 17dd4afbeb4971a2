#include "unmanagedwindowstate_p.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <QWindowStateChangeEvent>

namespace LM {
namespace Widgets {

UnmanagedWindowState::UnmanagedWindowState(QWidget *dialog) : m_dialog(dialog)
{
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        dialog->installEventFilter(this);
    }
}

bool UnmanagedWindowState::eventFilter(QObject *watched, QEvent *event)
{
    const QPointer<QObject> guard(watched);
    if (watched == m_owner) {
        if (event->type() == QEvent::WindowStateChange && !m_owner->isMinimized()) {
            comeBack();
        }
    } else if (watched == m_dialog && isUnmanaged()) {
        if (m_fillingScreen) {
            // The second word of one and the same change, see fillScreen().
            return event->type() == QEvent::WindowStateChange;
        }
        followDialog(event);
    }
    // Host code that ran meanwhile may have destroyed the dialog: nobody is left to take the event.
    return guard.isNull();
}

void UnmanagedWindowState::followDialog(QEvent *event)
{
    switch (event->type()) {
    case QEvent::WindowStateChange:
        if (m_dialog->isMinimized()) {
            // Not before showMinimized() has come to its end: its last step is to show the dialog.
            QMetaObject::invokeMethod(
                this, [this] { minimizeWithOwner(); }, Qt::QueuedConnection);
        } else if (m_dialog->isVisible()) {
            adoptState();
        }
        break;
    case QEvent::Show:
        // After the show, which still works with the normal size and may freeze it.
        if (!event->spontaneous()) {
            QMetaObject::invokeMethod(
                this, [this] { adoptState(); }, Qt::QueuedConnection);
        }
        break;
    case QEvent::MouseButtonPress:
        m_pressedMaximized = m_fillsScreen && m_dialog->isMaximized();
        break;
    case QEvent::MouseButtonRelease:
        if (m_pressedMaximized) {
            endDrag();
        }
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (m_fillsScreen && !m_dialog->isMaximized() && !m_pressedMaximized) {
            // The host gave it another geometry, which ends the maximised state.
            m_fillsScreen = false;
            m_dialog->setMinimumSize(m_normalMinimum);
            m_dialog->setMaximumSize(m_normalMaximum);
        }
        break;
    default:
        break;
    }
}

/**
 * QWidget::move() makes a maximised window normal without telling anybody. For the user who dragged
 * the dialog, and for its title bar, it is still maximised: it goes back.
 */
void UnmanagedWindowState::endDrag()
{
    m_pressedMaximized = false;
    if (m_fillsScreen && !m_dialog->isMaximized()) {
        fillScreen();
    }
}

bool UnmanagedWindowState::isUnmanaged() const
{
    return m_dialog->isWindow() && m_dialog->windowFlags().testFlag(Qt::BypassWindowManagerHint);
}

QWidget *UnmanagedWindowState::managedOwner() const
{
    QWidget *parent = m_dialog->parentWidget();
    while (parent) {
        QWidget *window = parent->window();
        if (window->isVisible() && !window->windowFlags().testFlag(Qt::BypassWindowManagerHint)) {
            return window;
        }
        parent = window->parentWidget();
    }
    return nullptr;
}

void UnmanagedWindowState::adoptState()
{
    if (m_dialog->isMaximized()) {
        fillScreen();
    } else if (m_fillsScreen) {
        restoreGeometry();
    }
}

void UnmanagedWindowState::fillScreen()
{
    if (!m_fillsScreen) {
        m_fillsScreen = true;
        m_normalGeometry = m_dialog->geometry();
        m_normalMinimum = m_dialog->minimumSize();
        m_normalMaximum = m_dialog->maximumSize();
        m_dialog->setMinimumSize(0, 0);
        m_dialog->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    }
    // QWidget::setGeometry() ends the maximised state without telling anybody. Going round it by
    // way of the QWindow leaves the widget with a stale geometry when the X server's answers
    // overtake a move.
    const QPointer<UnmanagedWindowState> guard(this);
    m_fillingScreen = true;
    m_dialog->setGeometry(m_dialog->screen()->availableGeometry());
    if (guard) {
        m_dialog->setWindowState(m_dialog->windowState() | Qt::WindowMaximized);
        m_fillingScreen = false;
    }
}

void UnmanagedWindowState::restoreGeometry()
{
    const QPointer<UnmanagedWindowState> guard(this);
    m_fillsScreen = false;
    m_dialog->setGeometry(m_normalGeometry);
    if (guard) {
        m_dialog->setMinimumSize(m_normalMinimum);
        m_dialog->setMaximumSize(m_normalMaximum);
    }
}

void UnmanagedWindowState::minimizeWithOwner()
{
    if (!m_dialog->isMinimized() || !m_dialog->isVisible()) {
        return;
    }
    const QPointer<UnmanagedWindowState> guard(this);
    const QPointer<QWidget> owner = managedOwner();
    m_dialog->setWindowState(m_dialog->windowState() & ~Qt::WindowMinimized);
    if (!guard || !owner) {
        return;
    }
    if (m_owner) {
        m_owner->removeEventFilter(this);
    }
    m_owner = owner;
    m_owner->installEventFilter(this);
    // The window and not the dialog is hidden: hiding a dialog ends its exec().
    m_dialog->windowHandle()->setVisible(false);
    if (owner) {
        owner->setWindowState(owner->windowState() | Qt::WindowMinimized);
    }
}

void UnmanagedWindowState::comeBack()
{
    m_owner->removeEventFilter(this);
    m_owner.clear();
    // A host that has hidden or closed the dialog meanwhile wants it so.
    const bool hiddenByHost = m_dialog->testAttribute(Qt::WA_WState_ExplicitShowHide) &&
                              m_dialog->testAttribute(Qt::WA_WState_Hidden);
    QWindow *window = m_dialog->windowHandle();
    if (window && !window->isVisible() && !hiddenByHost) {
        window->setVisible(true);
    }
}

} // namespace Widgets
} // namespace LM
