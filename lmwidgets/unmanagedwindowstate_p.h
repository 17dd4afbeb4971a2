#ifndef LMWIDGETS_UNMANAGEDWINDOWSTATE_P_H
#define LMWIDGETS_UNMANAGEDWINDOWSTATE_P_H

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QSize>
#include <QVector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

/**
 * Carries out the window states of a dialog that bypasses the window manager.
 *
 * On X11 it is the window manager that maximises, restores and minimises windows. A window that it
 * does not manage keeps its place and size, although Qt calls it maximised; minimised it stays on
 * the screen as a picture that takes no input any more, and nothing brings it back. So the dialog
 * takes the available area of its screen itself, and its former geometry and size limits when it is
 * restored. Minimised, it goes with the nearest window above it that is managed, and comes back
 * with that one; where there is none it stays as it is, since no task bar could bring it back.
 *
 * Does nothing on other platforms, nor for windows that are managed.
 */
class UnmanagedWindowState : public QObject
{
public:
    /** Serves @p dialog from now on. The dialog must live longer. */
    explicit UnmanagedWindowState(QWidget *dialog);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isUnmanaged() const;
    void followDialog(QEvent *event);
    void adoptState();
    void endDrag();
    void fillScreen();
    void restoreGeometry();
    void minimizeWithOwner();
    void comeBack();

    QWidget *m_dialog;
    QPointer<QWidget> m_owner;
    QVector<QPointer<QWidget>> m_minimized;
    bool m_fillsScreen = false;
    bool m_fillingScreen = false;
    bool m_pressedMaximized = false;
    QRect m_normalGeometry;
    QSize m_normalMinimum;
    QSize m_normalMaximum;
};

} // namespace Widgets
} // namespace LM

#endif
