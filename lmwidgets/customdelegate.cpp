#include <lmwidgets/customdelegate.h>

#include <QStyleOptionViewItem>

namespace LM {
namespace Widgets {

namespace {

constexpr int indentedColumn = 0;
constexpr int indentation = 14;

} // namespace

CustomDelegate::CustomDelegate(QObject *parent) : QStyledItemDelegate(parent) {}

CustomDelegate::~CustomDelegate() = default;

void CustomDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    if (!painter || !index.isValid()) {
        return;
    }
    if (index.column() != indentedColumn) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem indented = option;
    initStyleOption(&indented, index);
    const bool fromRight = option.direction == Qt::RightToLeft;
    indented.rect.translate(fromRight ? -indentation : indentation, 0);
    QStyledItemDelegate::paint(painter, indented, index);
}

} // namespace Widgets
} // namespace LM
