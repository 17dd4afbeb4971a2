#include "unmanagedwindowstate_p.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <QWindowStateChangeEvent>

namespace LM {
namespace Widgets {

namespace {

bool bypassesWindowManager(const QWidget *window)
{
    return window->windowFlags().testFlag(Qt::BypassWindowManagerHint);
}

/** Returns the window that owns @p window, or null. */
QWidget *owningWindow(const QWidget *window)
{
    const QWidget *parent = window->parentWidget();
    return parent ? parent->window() : nullptr;
}

/** Hides or shows the window and leaves the dialog as it is: hiding a dialog ends its exec(). */
void setWindowVisible(QWidget *dialog, bool visible)
{
    if (QWindow *window = dialog->windowHandle()) {
        window->setVisible(visible);
    }
}

} // namespace

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
    return m_dialog->isWindow() && bypassesWindowManager(m_dialog);
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
    // The dialogs between this one and its owner would stay alone on the screen.
    QVector<QPointer<QWidget>> chain;
    QPointer<QWidget> owner = m_dialog;
    while (owner && bypassesWindowManager(owner)) {
        chain.append(owner);
        owner = owningWindow(owner);
    }

    const QPointer<UnmanagedWindowState> guard(this);
    m_dialog->setWindowState(m_dialog->windowState() & ~Qt::WindowMinimized);
    if (!guard || !owner || !owner->isVisible()) {
        return;
    }
    if (m_owner) {
        m_owner->removeEventFilter(this);
    }
    m_owner = owner;
    m_owner->installEventFilter(this);
    m_minimized = chain;
    // Before the owner: Qt activates the owner of a window that goes, which would bring it back.
    for (const QPointer<QWidget> &dialog : qAsConst(chain)) {
        if (dialog) {
            setWindowVisible(dialog, false);
        }
    }
    if (owner) {
        owner->setWindowState(owner->windowState() | Qt::WindowMinimized);
    }
}

void UnmanagedWindowState::comeBack()
{
    m_owner->removeEventFilter(this);
    m_owner.clear();
    const QVector<QPointer<QWidget>> chain = m_minimized;
    m_minimized.clear();
    // The one above all others was the first to go and comes last.
    for (auto dialog = chain.crbegin(); dialog != chain.crend(); ++dialog) {
        // One that the host has hidden or closed meanwhile stays so.
        if (*dialog && !(*dialog)->isVisible() &&
            !(*dialog)->testAttribute(Qt::WA_WState_ExplicitShowHide)) {
            setWindowVisible(*dialog, true);
        }
    }
}

} // namespace Widgets
} // namespace LM
