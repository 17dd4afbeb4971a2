#include "stockdialogsabove_p.h"

#include "keyboardactivation_p.h"

#include <QChildEvent>
#include <QDialog>
#include <QGuiApplication>
#include <QWindow>

namespace LM {
namespace Widgets {

StockDialogsAbove::StockDialogsAbove(QWidget *widget) : QObject(widget)
{
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        widget->installEventFilter(this);
    }
}

bool StockDialogsAbove::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent()) {
        if (event->type() == QEvent::ChildAdded) {
            // It is still being constructed; what it is shows when it gets its window.
            static_cast<QChildEvent *>(event)->child()->installEventFilter(this);
        }
    } else if (event->type() == QEvent::WinIdChange) {
        auto *dialog = qobject_cast<QDialog *>(watched);
        if (dialog && dialog->isWindow()) {
            liftDialog(dialog);
        }
    }
    return false;
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
    auto *activation = new KeyboardActivation(dialog);
    activation->setParent(dialog);
}

} // namespace Widgets
} // namespace LM
