#ifndef LMWIDGETS_KEYBOARDACTIVATION_P_H
#define LMWIDGETS_KEYBOARDACTIVATION_P_H

#include <QObject>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QWidget;
class QWindow;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

/**
 * Gives the keyboard to a dialog that bypasses the window manager.
 *
 * On X11 nobody hands the input focus to such a window: shown while no other window of the
 * application is active it gets no key at all, and once another application has taken the focus a
 * click into the dialog does not bring it back. So the dialog is activated when it is shown, unless
 * it carries Qt::WA_ShowWithoutActivating, and when the mouse is pressed on it, or on a native
 * child of it, while it is inactive. A dialog with Qt::WindowDoesNotAcceptFocus is left alone.
 *
 * When it goes while it has the keyboard, the window below gets it back: the dialog's parent, or the
 * window that had the keyboard when it was shown. The window manager, for which that one has never
 * lost it, would leave it with nobody; xfwm4 does.
 *
 * On Windows the system does all of this itself, and a second request changes nothing.
 */
class KeyboardActivation : public QObject
{
public:
    /** Serves @p dialog from now on. The dialog must live longer. */
    explicit KeyboardActivation(QWidget *dialog);
    ~KeyboardActivation() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void followDialog(const QEvent *event);
    void activate();
    void followWindow();
    void giveKeyboardBack();

    /** Whether @p watched is the dialog's window or one inside it, such as an OpenGL view. */
    bool isWindowOfDialog(const QObject *watched) const;

    QWidget *m_dialog;
    QPointer<QWindow> m_window; ///< where the window manager does not know it
    QPointer<QWindow> m_formerFocus;
};

} // namespace Widgets
} // namespace LM

#endif
