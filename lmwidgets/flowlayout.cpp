#include <lmwidgets/flowlayout.h>

#include <QApplication>
#include <QStyle>
#include <QWidget>

#include <limits>
#include <typeinfo>

namespace LM {
namespace Widgets {

namespace {

/** What QLayout::margin() returns; a Qt without its deprecated functions does not have it. */
int commonMargin(const QMargins &margins)
{
    const bool isCommon = margins.left() == margins.top() && margins.top() == margins.right() &&
                          margins.right() == margins.bottom();
    return isCommon ? margins.left() : -1;
}

/** Whether @p item is one that Qt makes for a widget, and not a host's own kind. */
bool isPlainItem(QLayoutItem *item)
{
    const std::type_info &type = typeid(*item);
    return type == typeid(QWidgetItemV2) || type == typeid(QWidgetItem);
}

/**
 * A coordinate as Qt counts it, with room for @p extent px behind it: enough large items add up to
 * more than an int holds.
 */
int toPixels(qint64 position, int extent = 0)
{
    return static_cast<int>(
        qBound<qint64>(std::numeric_limits<int>::min(), position,
                       qint64(std::numeric_limits<int>::max()) - qMax(extent, 0)));
}

} // namespace

FlowLayout::FlowLayout(QWidget *parent, int margin, int hSpacing, int vSpacing)
    : QLayout(parent), m_horizontalSpacing(hSpacing), m_verticalSpacing(vSpacing)
{
    setContentsMargins(margin, margin, margin, margin);
}

FlowLayout::FlowLayout(int margin, int hSpacing, int vSpacing)
    : m_horizontalSpacing(hSpacing), m_verticalSpacing(vSpacing)
{
    setContentsMargins(margin, margin, margin, margin);
}

FlowLayout::~FlowLayout()
{
    while (QLayoutItem *item = FlowLayout::takeAt(0)) {
        delete item;
    }
}

void FlowLayout::addItem(QLayoutItem *item)
{
    if (!item || item == this) {
        return;
    }
    if (QLayout *layout = item->layout()) {
        if (!layout->parent()) {
            addChildLayout(layout);
        } else if (layout->parent() != this) {
            return;
        }
    }
    m_items.append(item);
    invalidate();
}

int FlowLayout::count() const
{
    return m_items.size();
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return m_items.value(index);
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    if (index < 0 || index >= m_items.size()) {
        return nullptr;
    }
    QLayoutItem *item = m_items.takeAt(index);
    QLayout *layout = item->layout();
    if (layout && layout->parent() == this) {
        layout->setParent(nullptr);
    }
    invalidate();
    return item;
}

int FlowLayout::horizontalSpacing() const
{
    return m_horizontalSpacing >= 0 ? m_horizontalSpacing
                                    : smartSpacing(QStyle::PM_LayoutHorizontalSpacing);
}

int FlowLayout::verticalSpacing() const
{
    return m_verticalSpacing >= 0 ? m_verticalSpacing
                                  : smartSpacing(QStyle::PM_LayoutVerticalSpacing);
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return {};
}

bool FlowLayout::hasHeightForWidth() const
{
    return true;
}

int FlowLayout::heightForWidth(int width) const
{
    return doLayout(QRect(0, 0, width, 0), true);
}

QSize FlowLayout::minimumSize() const
{
    QSize size = m_minimumSize;
    if (!size.isValid()) {
        size = QSize(0, 0);
        for (const QLayoutItem *item : m_items) {
            size = size.expandedTo(item->minimumSize());
        }
        if (isToldOfChanges()) {
            m_minimumSize = size;
        }
    }
    const int margin = commonMargin(contentsMargins());
    return (size + QSize(2 * margin, 2 * margin)).expandedTo(QSize(0, 0));
}

QSize FlowLayout::sizeHint() const
{
    return minimumSize();
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    doLayout(rect, false);
}

void FlowLayout::invalidate()
{
    m_known.clear();
    ++m_changes;
    m_minimumSize = QSize();
    QLayout::invalidate();
}

int FlowLayout::doLayout(const QRect &rect, bool testOnly) const
{
    const QMargins margins = contentsMargins();
    const QRect effective = rect.marginsRemoved(margins);
    const int horizontal = horizontalSpacing();
    const int vertical = verticalSpacing();
    qint64 x = effective.x();
    qint64 y = effective.y();
    qint64 lineHeight = 0;

    // A widget that is given its place may remove others from the layout, so count each time.
    for (int i = 0; i < m_items.size(); ++i) {
        QLayoutItem *item = m_items.at(i);
        const int spaceX = horizontal == -1 ? itemSpacing(item, Qt::Horizontal) : horizontal;
        const int spaceY = vertical == -1 ? itemSpacing(item, Qt::Vertical) : vertical;
        const QSize hint = itemSizeHint(i);
        qint64 nextX = x + hint.width() + spaceX;
        // The edge behind the item is compared with the last column, so that column stays free:
        // an item that would just fit wraps. Hosts sized their panels by the resulting heights.
        if (nextX - spaceX > effective.right() && lineHeight > 0) {
            x = effective.x();
            y += lineHeight + spaceY;
            nextX = x + hint.width() + spaceX;
            lineHeight = 0;
        }
        if (!testOnly) {
            place(i, QRect(QPoint(toPixels(x, hint.width()), toPixels(y, hint.height())), hint));
        }
        x = nextX;
        lineHeight = qMax<qint64>(lineHeight, hint.height());
    }
    return toPixels(y + lineHeight - rect.y() + margins.bottom());
}

int FlowLayout::smartSpacing(QStyle::PixelMetric pm) const
{
    QObject *owner = parent();
    if (!owner) {
        return -1;
    }
    if (owner->isWidgetType()) {
        auto *widget = static_cast<QWidget *>(owner);
        return widget->style()->pixelMetric(pm, nullptr, widget);
    }
    const auto *outer = qobject_cast<QLayout *>(owner);
    return outer ? outer->spacing() : -1;
}

/** The spacing around @p item when nobody else has one. An item without a widget has no style. */
int FlowLayout::itemSpacing(QLayoutItem *item, Qt::Orientation orientation) const
{
    const QWidget *widget = item->widget() ? item->widget() : parentWidget();
    const QStyle *style = widget ? widget->style() : QApplication::style();
    return style->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, orientation);
}

QSize FlowLayout::itemSizeHint(int index) const
{
    if (!isToldOfChanges()) {
        return m_items.at(index)->sizeHint();
    }
    if (m_known.size() != m_items.size()) {
        m_known.fill(Known(), m_items.size());
    }
    if (m_known.at(index).sizeHint.isValid()) {
        return m_known.at(index).sizeHint;
    }
    const QSize hint = m_items.at(index)->sizeHint();
    if (index < m_known.size()) {
        m_known[index].sizeHint = hint;
    }
    return hint;
}

/**
 * Gives the item at @p index its place. Most items of a layout that is resized a little stay where
 * they are, and where Qt's own item has put the widget there before it need not find that out again.
 */
void FlowLayout::place(int index, const QRect &rect) const
{
    QLayoutItem *item = m_items.at(index);
    const QWidget *widget = item->widget();
    const bool isKept = widget && index < m_known.size() && isToldOfChanges();
    if (isKept) {
        const Known &known = m_known.at(index);
        if (known.place == rect && known.geometry == widget->geometry() &&
            known.alignment == item->alignment()) {
            return;
        }
    }
    const bool isPlain = isKept && isPlainItem(item);
    const unsigned int changes = m_changes;
    item->setGeometry(rect);
    // A widget that is moved may change what is known, and take this item or others away.
    if (isPlain && changes == m_changes && m_items.value(index) == item) {
        Known &known = m_known[index];
        known.place = rect;
        known.geometry = item->widget()->geometry();
        known.alignment = item->alignment();
    }
}

/**
 * Whether invalidate() is called as soon as an item changes, so that hints can be kept. A layout
 * within another one is told only when the outer one is activated, one without a parent never.
 */
bool FlowLayout::isToldOfChanges() const
{
    return parent() && parent()->isWidgetType();
}

} // namespace Widgets
} // namespace LM
