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
 * Keeps other dialogs, such as a question that a host asks with a stock message box, above the frame
 * that they are opened from.
 *
 * On X11 the frame bypasses the window manager, which stacks its own windows below: a stock message
 * box would be hidden by the very dialog that waits for it. So a dialog that belongs to the frame or
 * to anything in it, or a modal one without a parent that is opened while the frame is active,
 * bypasses the window manager too, and is activated as the frame is. Nobody draws a title bar for it
 * then. Elsewhere nothing is done.
 */
class StockDialogsAbove : public QObject
{
public:
    /** Serves @p frame while it is shown. The frame must live longer. */
    explicit StockDialogsAbove(QWidget *frame);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isFrameUnmanaged() const;
    bool belongsAbove(const QDialog *dialog) const;
    void liftDialog(QDialog *dialog);

    QWidget *m_frame;
};

} // namespace Widgets
} // namespace LM

#endif
