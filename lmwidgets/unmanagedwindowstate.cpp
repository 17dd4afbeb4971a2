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
    if (watched == m_owner) {
        if (event->type() == QEvent::WindowStateChange && !m_owner->isMinimized()) {
            comeBack();
        }
    } else if (watched == m_dialog && isUnmanaged()) {
        followDialog(event);
    }
    return false;
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
    case QEvent::MouseButtonRelease:
        // QWidget::move() makes a maximised window normal without telling anybody. The dialog is
        // still maximised for the user who dragged it: it goes back, and its restore button is
        // right.
        if (m_fillsScreen && !m_dialog->isMaximized()) {
            m_dialog->setWindowState(m_dialog->windowState() | Qt::WindowMaximized);
        }
        break;
    default:
        break;
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
    // The window and not the dialog: QWidget::setGeometry() would end the maximised state.
    m_dialog->windowHandle()->setGeometry(m_dialog->screen()->availableGeometry());
}

void UnmanagedWindowState::restoreGeometry()
{
    m_fillsScreen = false;
    m_dialog->setGeometry(m_normalGeometry);
    m_dialog->setMinimumSize(m_normalMinimum);
    m_dialog->setMaximumSize(m_normalMaximum);
}

void UnmanagedWindowState::minimizeWithOwner()
{
    if (!m_dialog->isMinimized() || !m_dialog->isVisible()) {
        return;
    }
    QWidget *owner = managedOwner();
    m_dialog->setWindowState(m_dialog->windowState() & ~Qt::WindowMinimized);
    if (!owner) {
        return;
    }
    if (m_owner) {
        m_owner->removeEventFilter(this);
    }
    m_owner = owner;
    m_owner->installEventFilter(this);
    // The window and not the dialog is hidden: hiding a dialog ends its exec().
    m_dialog->windowHandle()->setVisible(false);
    owner->setWindowState(owner->windowState() | Qt::WindowMinimized);
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
