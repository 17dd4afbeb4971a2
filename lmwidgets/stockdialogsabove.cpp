#include "stockdialogsabove_p.h"

#include "keyboardactivation_p.h"

#include <QDialog>
#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

namespace LM {
namespace Widgets {

namespace {

/** What serves a dialog that was lifted, for as long as that one lives. */
class LiftedDialog : public QObject
{
public:
    explicit LiftedDialog(QDialog *dialog) : QObject(dialog), m_activation(dialog), m_above(dialog)
    {
        setObjectName(name());
    }

    static QString name() { return QStringLiteral("lmwidgets_lifted"); }

private:
    KeyboardActivation m_activation;
    StockDialogsAbove m_above;
};

} // namespace

StockDialogsAbove::StockDialogsAbove(QWidget *frame) : m_frame(frame)
{
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        frame->installEventFilter(this);
    }
}

bool StockDialogsAbove::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        // The parent of a dialog may be any widget in the frame: the application sees them all.
        if (watched == m_frame && !event->spontaneous()) {
            QCoreApplication::instance()->installEventFilter(this);
        }
        break;
    case QEvent::Hide:
        if (watched == m_frame && !event->spontaneous()) {
            QCoreApplication::instance()->removeEventFilter(this);
        }
        break;
    case QEvent::WinIdChange:
        // It has just got its window, which is not shown yet.
        if (auto *dialog = qobject_cast<QDialog *>(watched)) {
            if (isFrameUnmanaged() && belongsAbove(dialog)) {
                liftDialog(dialog);
            }
        }
        break;
    default:
        break;
    }
    return false;
}

bool StockDialogsAbove::isFrameUnmanaged() const
{
    const QWindow *window = m_frame->windowHandle();
    return m_frame->isWindow() && window && window->flags().testFlag(Qt::BypassWindowManagerHint);
}

bool StockDialogsAbove::belongsAbove(const QDialog *dialog) const
{
    if (!dialog->isWindow() || dialog == m_frame) {
        return false;
    }
    if (const QWidget *parent = dialog->parentWidget()) {
        return parent->window() == m_frame;
    }
    return dialog->isModal() && m_frame->isActiveWindow();
}

void StockDialogsAbove::liftDialog(QDialog *dialog)
{
    QWindow *window = dialog->windowHandle();
    if (!window || window->flags().testFlag(Qt::BypassWindowManagerHint)) {
        return;
    }
    // Not by the widget's own flags, which would make it a new window in the middle of being shown.
    window->setFlag(Qt::BypassWindowManagerHint);
    // Nobody draws a frame around it now; a style sheet may draw a border.
    dialog->setAttribute(Qt::WA_StyledBackground);
    // A dialog that gets another window, for other flags, is served already.
    if (!dialog->findChild<QObject *>(LiftedDialog::name(), Qt::FindDirectChildrenOnly)) {
        new LiftedDialog(dialog);
    }
}

} // namespace Widgets
} // namespace LM
