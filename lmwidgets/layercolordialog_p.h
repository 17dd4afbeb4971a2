#ifndef LMWIDGETS_LAYERCOLORDIALOG_P_H
#define LMWIDGETS_LAYERCOLORDIALOG_P_H

#include <QColor>
#include <QColorDialog>

namespace LM {
namespace Widgets {

/**
 * The colour dialog as the content of a frameless dialog, which has the buttons.
 *
 * Being a class of its own keeps Qt from putting the desktop's own colour dialog in its place: a
 * window of the desktop's cannot stand inside the frame.
 */
class LayerColorDialog : public QColorDialog
{
    Q_OBJECT

public:
    explicit LayerColorDialog(QWidget *parent);

    /**
     * Lets the user choose a colour in a modal frameless dialog over @p parent. Returns an invalid
     * colour if the dialog is cancelled, closed, or destroyed with its parent. Both dialogs are
     * gone afterwards; @p parent may be gone as well.
     */
    static QColor ask(QWidget *parent);

protected:
    /** Leaves Enter to the OK button of the frame, unless a button in here has the focus. */
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace Widgets
} // namespace LM

#endif
