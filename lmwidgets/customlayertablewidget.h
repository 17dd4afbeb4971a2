#ifndef LMWIDGETS_CUSTOMLAYERTABLEWIDGET_H
#define LMWIDGETS_CUSTOMLAYERTABLEWIDGET_H

#include <lmwidgets/lmwidgets_global.h>

#include <QList>
#include <QMetaType>
#include <QTableWidget>
#include <QVariant>

namespace LM {
namespace Widgets {

class customLayerToolButton;

/**
 * @class CustomLayerTableWidget customlayertablewidget.h <lmwidgets/customlayertablewidget.h>
 *
 * @brief The list of layers, the properties of a layer or the properties of a drawing object.
 *
 * @image html customlayertablewidget.png
 *
 * The table shows one of three panels, chosen once with creatUiType(). The layer list has one row
 * per layer, with its name and the buttons delete, edit, lock, visibility and colour. The two
 * property panels have one row per property, a caption at the left and an editor at the right.
 *
 * The table keeps no layers of its own. It reports each button of a row through
 * signalUpdateModel(), and the host changes its drawing and writes values back. Deleting is the
 * host's business too: a click on a delete button removes no row.
 *
 * @code
 * auto *layers = new LM::Widgets::CustomLayerTableWidget(this);
 * layers->creatUiType(LM::Widgets::CustomLayerTableWidget::LAYER_LIST);
 * for (const Layer &layer : drawing->layers()) {
 *     layers->addLayerRow();
 *     layers->item(layers->rowCount() - 1, 0)->setText(layer.name());
 * }
 * connect(layers, &LM::Widgets::CustomLayerTableWidget::signalUpdateModel, drawing,
 *         &Drawing::update);
 * @endcode
 *
 * Rows are known by the number that they had when they were added. A host that removes a row keeps
 * this in mind: the rows below it move up, but go on reporting their former number. It finds the
 * present row of a sender with indexAt(), or rebuilds the list.
 *
 * Renaming is done in the name's cell, as in any QTableWidget: connect itemChanged().
 */
class LMWIDGETS_EXPORT CustomLayerTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    /** The panels that creatUiType() builds. */
    enum DISPLAYWINDOW : int {
        LAYER_LIST = 0,       ///< one row per layer, filled with addLayerRow()
        LAYER_PROPERTIES = 1, ///< name, line style and line width of a layer
        OBJECT_PROPERTIES = 2 ///< layer, colour, line style and line width of a drawing object
    };

    /**
     * What a signalUpdateModel() reports. Hosts compare the numbers; 0 and 4 are reserved and never
     * emitted. The type is registered for queued connections as soon as the first table exists.
     */
    enum RESULTBUTTONTYPE {
        BUTTON_COLOR = 1,   ///< a colour was accepted; the value is a QColor
        BUTTON_VISIBLE = 2, ///< the value is true for visible
        BUTTON_LOCK = 3,    ///< the value is true for locked
        BUTTON_EDIT = 5,    ///< no value
        BUTTON_DELETE = 6   ///< no value
    };

    /**
     * Constructs an empty table; creatUiType() builds a panel in it. @p parent may be null;
     * otherwise it owns the table.
     */
    explicit CustomLayerTableWidget(QWidget *parent = nullptr);
    ~CustomLayerTableWidget() override;

    /**
     * Builds the panel @p type; any other value does nothing.
     *
     * LAYER_LIST: six columns and no row. Column 0, the name, takes the room that the five buttons
     * of 20 px each leave. One row can be selected.
     *
     * LAYER_PROPERTIES: three rows of 32 px with, in column 1, a QLabel, a LineTypeComboBox named
     * "pLineStyleCombobox" and a QComboBox named "pLineWidthCombobox".
     *
     * OBJECT_PROPERTIES: four rows of 32 px with, in column 1, a QLabel, a QComboBox of colours, a
     * LineTypeComboBox named "pObjectLineTypeboBox" and a QComboBox named "pObjectLineWidthboBox".
     * The item data of a colour (Qt::UserRole) is the QColor, transparent for "By layer" and the
     * string "OTHERS" for the last item.
     *
     * In both property panels the captions stand in column 0, 150 px wide at first, nothing can be
     * selected, and the box of line widths is empty: its items are the host's.
     *
     * Meant to be called once. Another call builds the new panel in place of the old one, whose
     * cell widgets are deleted later.
     */
    void creatUiType(const DISPLAYWINDOW &type);

    /**
     * Appends a row of 32 px to the layer list: the name "layer" and its number, counted from 0,
     * and five customLayerToolButton, all checked: delete, edit, lock (locked), visibility
     * (visible) and colour (white). Ignored while the table has fewer than the six columns of the
     * layer list.
     *
     * The name is drawn by a CustomDelegate, a new one for each row, which serves the whole column
     * 0. Many rows added in one go, without the event loop running in between, take time in proportion to their
     * number.
     */
    void addLayerRow();

    /**
     * Shows the name, the line style and the line width in @p values. Style and width are looked up
     * among the item data of their boxes; what is not found selects nothing, and a box of line styles has its items from the time that it is first shown. A list of any other
     * length than 3 is ignored, and so is each cell whose widget is not of the panel's type. No
     * signal is emitted, neither by the table nor by the editors.
     */
    void setLayerProperties(const QList<QVariant> &values);

    /**
     * Shows the layer name, and selects colour, line style and line width by the item indexes, in
     * @p values. A list of any other length than 4 is ignored, and so is each cell whose widget is
     * not of the panel's type. No signal is emitted, neither by the table nor by the editors.
     */
    void setObjectProperties(const QList<QVariant> &values);

Q_SIGNALS:
    /**
     * A button was clicked, or a colour was chosen and accepted. @p row is the number that the row
     * had when it was added. @p va depends on @p type, see RESULTBUTTONTYPE; it is invalid for
     * BUTTON_DELETE and BUTTON_EDIT. A slot may remove the row or delete the table.
     *
     * It is not emitted when the choice of a colour is cancelled, nor when the row's button is gone
     * by the time that the colour is accepted, nor when a host calls the buttons' setters.
     */
    void signalUpdateModel(int row, const QVariant &va, const RESULTBUTTONTYPE &type);

    /** For hosts to emit when they remove @p row. The table itself never does. */
    void signalRemoveSelectRow(int row);

protected:
    /**
     * Places the widgets of the cells, unless the rows are at the end of a table that is shown:
     * those are placed by the layout that follows.
     */
    void rowsInserted(const QModelIndex &parent, int start, int end) override;

private:
    Q_DISABLE_COPY(CustomLayerTableWidget)

    void creatLayer();
    void creatLayerProperties();
    void creatObjectProperties();
    void installNameDelegate();
    void addLayerButtons(int row, int place);
    void chooseColor(int row, customLayerToolButton *button);
};

} // namespace Widgets
} // namespace LM

Q_DECLARE_METATYPE(LM::Widgets::CustomLayerTableWidget::RESULTBUTTONTYPE)

#endif
