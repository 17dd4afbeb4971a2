#ifndef LMWIDGETS_CHECKBOXHEADERVIEW_H
#define LMWIDGETS_CHECKBOXHEADERVIEW_H

#include <lmwidgets/lmwidgets_global.h>

#include <QHeaderView>
#include <QPoint>
#include <QSize>

namespace LM {
namespace Widgets {

/**
 * @class CheckBoxHeaderView checkboxheaderview.h <lmwidgets/checkboxheaderview.h>
 *
 * @brief A header with a check-box picture over one section, for a "select all" above a column.
 *
 * @image html checkboxheaderview.png
 *
 * The picture is "qssimage/selected.png" or "qssimage/unselected.png" of the current theme, scaled
 * to the size given at construction and drawn at the place given there, with the check section. The
 * place is in the coordinates of the header: it does not follow the section when columns are moved
 * or resized, a section that is painted later covers it, scrolling shifts what is on the screen
 * until it is painted anew, and only the check section is painted again when the box toggles. Keep
 * the picture inside its section, in a header that does not scroll. An image file that is missing
 * draws nothing.
 *
 * A press of any mouse button anywhere in the section toggles the box; the second press of a double
 * click does not. The host checks or unchecks its rows when it is told.
 *
 * @code
 * auto *header = new LM::Widgets::CheckBoxHeaderView(0, QPoint(8, 6), QSize(16, 16),
 *                                                    Qt::Horizontal, view);
 * view->setHorizontalHeader(header);
 * connect(header, &LM::Widgets::CheckBoxHeaderView::signalCheckStateChanged, model,
 *         &Model::checkAll);
 * @endcode
 *
 * Every press, wherever it hits the header, emits the inherited sectionClicked() at once, with the
 * visual index of the section or -1 past the last one; with setSectionsClickable(true) QHeaderView
 * emits it a second time when the mouse is released, with the logical index. In a vertical header
 * too the section is looked up by the horizontal position of the press.
 */
class LMWIDGETS_EXPORT CheckBoxHeaderView : public QHeaderView
{
    Q_OBJECT

public:
    /**
     * Constructs a header whose section @p checkColumnIndex, a logical index, carries a checked box
     * of @p size px with its top left corner at @p topLeft, which is in the coordinates of the
     * header. With an index that no section has, or an empty size, no box is drawn.
     */
    explicit CheckBoxHeaderView(int checkColumnIndex, QPoint topLeft, QSize size,
                                Qt::Orientation orientation, QWidget *parent = nullptr);
    ~CheckBoxHeaderView() override;

    /**
     * Sets whether the box is checked. Nothing is emitted, and the picture changes only when the
     * section is painted next; call updateSection() or viewport()->update() to see it at once.
     */
    void setCheckState(bool state);

Q_SIGNALS:
    /** The user pressed a mouse button in the check section; @p state is the new state. */
    void signalCheckStateChanged(bool state);

protected:
    /**
     * Toggles the box if the press is in the check section, emits sectionClicked() and hands the
     * event on to QHeaderView. Sections are counted as they stand on the screen: after sections
     * were moved, the one that stands at the place numbered like the check column is the one that
     * toggles.
     */
    void mousePressEvent(QMouseEvent *event) override;
    /** Paints the section as QHeaderView does, and the box above it in the check section. */
    void paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const override;

private:
    Q_DISABLE_COPY(CheckBoxHeaderView)

    int m_checkColumn;
    QPoint m_position;
    QSize m_size;
    bool m_checked = true;
};

} // namespace Widgets
} // namespace LM

#endif
