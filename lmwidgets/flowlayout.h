#ifndef LMWIDGETS_FLOWLAYOUT_H
#define LMWIDGETS_FLOWLAYOUT_H

#include <lmwidgets/lmwidgets_global.h>

#include <QLayout>
#include <QList>
#include <QRect>
#include <QSize>
#include <QStyle>
#include <QVector>

namespace LM {
namespace Widgets {

/**
 * @class FlowLayout flowlayout.h <lmwidgets/flowlayout.h>
 *
 * @brief A layout that wraps its items like the words of a paragraph.
 *
 * @image html flowlayout.png
 *
 * The items stand from left to right, each as large as its size hint, and the next row begins where
 * an item would reach the last column of px. The height that is needed depends on the width, and
 * parents ask for it with heightForWidth(). An item that is wider than the layout has a row of its
 * own.
 *
 * @code
 * auto *flow = new LM::Widgets::FlowLayout(tagArea, 0, 6, 6);
 * for (const QString &name : tags) {
 *     flow->addWidget(new QPushButton(name));
 * }
 * @endcode
 *
 * Rows begin at the left in right-to-left languages too. A hidden widget takes no room, but the
 * spacing behind it stays: remove it from the layout where no gap may be. Items are never
 * stretched, and their size policies and alignments do not matter.
 *
 * As with all layouts, the widgets belong to the parent widget and the items to the layout.
 */
class LMWIDGETS_EXPORT FlowLayout : public QLayout
{
    Q_OBJECT

public:
    /**
     * Constructs the layout of @p parent, which must not have another one. All four margins are
     * @p margin px; with -1 the style decides. @p hSpacing is the space between two items of a row
     * and @p vSpacing that between two rows, in px; with a negative value the parent decides, see
     * horizontalSpacing().
     */
    explicit FlowLayout(QWidget *parent, int margin = -1, int hSpacing = -1, int vSpacing = -1);
    /** Constructs a layout that is given to a widget or put into another layout later. */
    explicit FlowLayout(int margin = -1, int hSpacing = -1, int vSpacing = -1);
    /** Deletes the items. The widgets in them live on if their parent does. */
    ~FlowLayout() override;

    /**
     * Appends @p item, which the layout owns from now on. A layout that is not part of another one
     * becomes a part of this one, so that its widgets get their parent. Ignores null, this layout
     * itself and a layout that belongs to somebody else.
     */
    void addItem(QLayoutItem *item) override;
    /** Returns how many items there are, hidden ones included. */
    int count() const override;
    /** Returns the item at @p index, which the layout keeps; null if there is none. */
    QLayoutItem *itemAt(int index) const override;
    /** Removes the item at @p index and returns it, to be deleted by the caller; null if there is
     * none. */
    QLayoutItem *takeAt(int index) override;

    /**
     * Returns the space between two items of a row, in px. If the layout was constructed with a
     * negative one, that is spacing() of the layout that it is in, or what the style of its parent
     * widget says, or -1 without a parent. For -1 each item is placed with the spacing that the
     * style of its widget has between push buttons.
     */
    int horizontalSpacing() const;
    /** Returns the space between two rows, in px; otherwise like horizontalSpacing(). */
    int verticalSpacing() const;

    /** Returns no direction: the layout never asks for more room than its size hint. */
    Qt::Orientations expandingDirections() const override;
    /** Returns true. */
    bool hasHeightForWidth() const override;
    /** Returns the height in px that the items need with the margins when @p width px are there. */
    int heightForWidth(int width) const override;

    /**
     * Returns the size of the widest and the highest item's minimum, with the margin twice in both
     * directions. Where the four margins differ there is no one margin, which QLayout answers with
     * -1: the size is 2 px less than the items then, so set a minimum width on the parent.
     */
    QSize minimumSize() const override;
    /** Returns minimumSize(). */
    QSize sizeHint() const override;

    /** Places the items in @p rect, within the margins. */
    void setGeometry(const QRect &rect) override;
    /** Forgets what is known of the items. Is called whenever one of them changes its hint. */
    void invalidate() override;

private:
    Q_DISABLE_COPY(FlowLayout)

    int doLayout(const QRect &rect, bool testOnly) const;
    int smartSpacing(QStyle::PixelMetric pm) const;
    int itemSpacing(QLayoutItem *item, Qt::Orientation orientation) const;
    QSize itemSizeHint(int index) const;
    void place(int index, const QRect &rect) const;
    bool isToldOfChanges() const;

    QList<QLayoutItem *> m_items;
    int m_horizontalSpacing;
    int m_verticalSpacing;
    /** What is known of an item until something changes. */
    struct Known
    {
        QSize sizeHint;          // invalid when not known
        QRect place;             // that the item was given last; invalid when not known
        QRect geometry;          // that its widget got by that
        Qt::Alignment alignment; // of the item at that time
    };

    mutable QVector<Known> m_known; // as long as m_items, or empty
    unsigned int m_changes = 0;     // how often all of it was forgotten
    mutable QSize m_minimumSize;    // invalid when not known
};

} // namespace Widgets
} // namespace LM

#endif
