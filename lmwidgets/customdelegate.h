#ifndef LMWIDGETS_CUSTOMDELEGATE_H
#define LMWIDGETS_CUSTOMDELEGATE_H

#include <lmwidgets/lmwidgets_global.h>

#include <QStyledItemDelegate>

namespace LM {
namespace Widgets {

/**
 * @class CustomDelegate customdelegate.h <lmwidgets/customdelegate.h>
 *
 * @brief An item delegate that indents the first column of a view by 14 px.
 *
 * @image html customdelegate.png
 *
 * The cells of column 0 are painted 14 px further right than QStyledItemDelegate paints them and
 * keep their width, so they end 14 px further right as well; background and selection move with the
 * content. Every other column, and the place of an editor in any column, is as with
 * QStyledItemDelegate; a check box in column 0 is clicked where it would be without the
 * indentation. The layer table uses it for the names of layers.
 *
 * @code
 * table->setItemDelegateForColumn(0, new LM::Widgets::CustomDelegate(table));
 * @endcode
 */
class LMWIDGETS_EXPORT CustomDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /** Constructs a delegate; the view that uses it does not take it over, @p parent owns it. */
    explicit CustomDelegate(QObject *parent = nullptr);
    ~CustomDelegate() override;

    /**
     * Paints the cell @p index, in column 0 with an indentation of 14 px. A null @p painter or an
     * invalid @p index paints nothing.
     */
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    Q_DISABLE_COPY(CustomDelegate)
};

} // namespace Widgets
} // namespace LM

#endif
