#ifndef LMWIDGETS_CUSTOMLAYERTOOLBUTTON_H
#define LMWIDGETS_CUSTOMLAYERTOOLBUTTON_H

#include <lmwidgets/lmwidgets_global.h>

#include <QToolButton>

QT_BEGIN_NAMESPACE
class QColor;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

/**
 * @class customLayerToolButton customlayertoolbutton.h <lmwidgets/customlayertoolbutton.h>
 *
 * @brief The small checkable button in a row of the layer list.
 *
 * @image html customlayertoolbutton.png
 *
 * The button shows one picture of 20 x 20 px on a transparent ground without a border. It starts
 * checked and has no picture until one of the setters is called. The setters change the picture
 * alone: whether the button is checked stays with setChecked() and the user, so that a host that
 * writes a state back calls both. Pictures come from the theme that is current when the setter is
 * called; a later theme switch leaves them as they are.
 *
 * @code
 * auto *lock = new LM::Widgets::customLayerToolButton(row, 3, table);
 * lock->setLockState(layer.isLocked());
 * lock->setChecked(layer.isLocked());
 * table->setCellWidget(row, 3, lock);
 * @endcode
 *
 * CustomLayerTableWidget makes five of them for each row that it adds.
 */
class LMWIDGETS_EXPORT customLayerToolButton : public QToolButton
{
    Q_OBJECT

public:
    /**
     * Constructs a checked button for the cell at @p row and @p column, which are stored as they
     * are. @p parent may be null; otherwise it owns the button.
     */
    explicit customLayerToolButton(int row, int column, QWidget *parent = nullptr);
    ~customLayerToolButton() override;

    /**
     * Returns the row that the button was made for; rows inserted or removed later do not change it.
     */
    int row() const;
    /** Returns the column that the button was made for; later columns do not change it. */
    int column() const;

    /** Shows the picture of the delete button, "qssimage/delete_2dvec.png" of the current theme. */
    void setDelete();
    /** Shows the picture of the edit button, "qssimage/layer_edit.png", whatever @p enabled says.
     */
    void setEditEnable(bool enabled);
    /** Shows "qssimage/layer_lock.png" if @p locked, otherwise "qssimage/layer_unlock.png". */
    void setLockState(bool locked);
    /** Shows "qssimage/layer_view.png" if @p visible, otherwise "qssimage/layer_dis_view.png". */
    void setVisibleState(bool visible);
    /**
     * Shows a swatch of 20 x 20 px in @p color. The swatch is opaque, an alpha value is left out;
     * an invalid colour gives black.
     */
    void setColor(const QColor &color);

protected:
    /**
     * Leaves out the repaint of a button that its parent does not show: the buttons below the edge
     * of a long list would take seconds for it.
     */
    bool event(QEvent *event) override;
    /** Clicks as a QToolButton does; the click may destroy the button. */
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(customLayerToolButton)

    const int m_row;
    const int m_column;
};

} // namespace Widgets
} // namespace LM

#endif
