#ifndef LMWIDGETS_LINETYPECOMBOBOX_H
#define LMWIDGETS_LINETYPECOMBOBOX_H

#include <lmwidgets/lmwidgets_global.h>

#include <QComboBox>
#include <QMap>
#include <QPair>
#include <QPixmap>
#include <QString>
#include <QVector>

namespace LM {
namespace Widgets {

/**
 * @class LineTypeComboBox linetypecombobox.h <lmwidgets/linetypecombobox.h>
 *
 * @brief A combo box that shows CAD line types as pictures.
 *
 * @image html linetypecombobox.png
 *
 * Every item is a white stroke on a transparent strip that is as wide as the combo box and 31 px
 * high; it has no text, and its data is the name of the line type. The host reads the choice with
 * currentData() and sets it with findData() and setCurrentIndex(). The strokes are white in every
 * theme: the box belongs on a dark background.
 *
 * A pattern is either the word "CONTINUOUS" or a list of whole numbers with commas between them,
 * each a length in px: a positive number is a dash, a negative number a gap, and 0 a dot. Dashes
 * have square ends that reach 1 px further on either side, so a gap of 3 px shows as 1 px.
 *
 * @code
 * auto *box = new LM::Widgets::LineTypeComboBox(this);
 * connect(box, QOverload<int>::of(&QComboBox::activated), this, [this, box](int index) {
 *     m_layer->setLineType(box->itemData(index).toString());
 * });
 * @endcode
 *
 * The items are made on every resize and by updateIcons() and addLineType(); before the first of
 * these there are none. currentIndexChanged() is emitted meanwhile: -1 when the old items go, if
 * one of them was current, 0 when the first new item arrives, and then the former index where that
 * was another one. Block the signals, or compare the name, where only the user's choice matters. If
 * a slot clears the box or adds items at that moment, the items are made, and reported, once more;
 * a slot that wants to be rid of the box calls deleteLater(). Items that the host adds are gone
 * after the next resize.
 *
 * Boxes of one width share their pictures: the pixmaps of a line type have equal cache keys.
 */
class LMWIDGETS_EXPORT LineTypeComboBox : public QComboBox
{
    Q_OBJECT

public:
    /** Constructs a combo box that knows the built-in line types and has no items yet. */
    explicit LineTypeComboBox(QWidget *parent = nullptr);
    ~LineTypeComboBox() override;

    /**
     * Sets the table of line types to the 15 built-in ones, "CONTINUOUS" and "ACAD_ISO02W100" to
     * "ACAD_ISO15W100". The items stay as they are; they follow at the next updateIcons().
     */
    void populateComboBox();

    /**
     * Makes all items anew from the table, in the current width, and selects the item with the
     * former index again; without a former index, the first item. Emits the inherited signals as a
     * cleared and refilled combo box does. Is called on every resize.
     */
    void updateIcons();

    /**
     * Returns a picture of @p pattern that is @p width px wide and 31 px high: a stroke of 2 px
     * along the middle, with the pattern repeated up to the right end. A part of the pattern that
     * is not a whole number of type int counts as a dot. With a @p width of 0 or less the picture
     * is null.
     */
    QPixmap generateLinePixmap(const QString &pattern, int width);

    /**
     * Keeps @p pattern under @p name, in place of a former pattern of that name, and makes the
     * items anew. The line types kept so are a store beside the table: none of them becomes an
     * item.
     */
    void addLineType(const QString &name, const QString &pattern);

    /**
     * Returns the width of a stock combo box without items under the same sizeAdjustPolicy() and
     * minimumContentsLength(), however wide the pictures are, and the height that QComboBox asks
     * for.
     */
    QSize sizeHint() const override;
    /**
     * Returns the least width of such a stock combo box without items, and the least height that
     * QComboBox asks for.
     */
    QSize minimumSizeHint() const override;

protected:
    /** Makes the items anew in the new width. */
    void resizeEvent(QResizeEvent *event) override;

private:
    Q_DISABLE_COPY(LineTypeComboBox)

    void refill(unsigned int rebuild);
    QSize appendItem(const QString &name, const QString &pattern, int width);

    QMap<QString, QString> m_extraLineTypes;
    QVector<QPair<QString, QString>> m_lineTypes;
    unsigned int m_rebuilds = 0;
    int m_rebuildsRunning = 0;
    int m_rememberedIndex = -1;
};

} // namespace Widgets
} // namespace LM

#endif
