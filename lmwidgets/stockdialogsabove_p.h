#ifndef LMWIDGETS_STOCKDIALOGSABOVE_P_H
#define LMWIDGETS_STOCKDIALOGSABOVE_P_H

#include <QObject>

QT_BEGIN_NAMESPACE
class QDialog;
class QWidget;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

/**
 * Keeps the dialogs that a stock widget opens itself, such as the questions of a file browser,
 * above the frame that it stands in.
 *
 * On X11 the frame bypasses the window manager, which stacks its own windows below: a stock message
 * box would be hidden by the very dialog that waits for it. So it bypasses the window manager too,
 * and is activated as the frame is. Elsewhere nothing is done.
 */
class StockDialogsAbove : public QObject
{
public:
    /** Serves the dialogs whose parent is @p widget; a child of it. */
    explicit StockDialogsAbove(QWidget *widget);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void liftDialog(QDialog *dialog);
};

} // namespace Widgets
} // namespace LM

#endif
