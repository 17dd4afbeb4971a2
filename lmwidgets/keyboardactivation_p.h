#ifndef LMWIDGETS_KEYBOARDACTIVATION_P_H
#define LMWIDGETS_KEYBOARDACTIVATION_P_H

#include <QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

/**
 * Gives the keyboard to a dialog that bypasses the window manager.
 *
 * On X11 nobody hands the input focus to such a window: shown while no other window of the
 * application is active it gets no key at all, and once another application has taken the focus a
 * click into the dialog does not bring it back. So the dialog is activated when it is shown, unless
 * it carries Qt::WA_ShowWithoutActivating, and when the mouse is pressed on it while it is
 * inactive.
 */
class KeyboardActivation : public QObject
{
public:
    /** Serves @p dialog from now on. The dialog must live longer. */
    explicit KeyboardActivation(QWidget *dialog);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *m_dialog;
};

} // namespace Widgets
} // namespace LM

#endif
