#include <lmwidgets/checkboxheaderview.h>

#include "themepictures_p.h"

#include <lmwidgets/talvostylemanager.h>

#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QStyle>

namespace LM {
namespace Widgets {

CheckBoxHeaderView::CheckBoxHeaderView(int checkColumnIndex, QPoint topLeft, QSize size,
                                       Qt::Orientation orientation, QWidget *parent)
    : QHeaderView(orientation, parent),
      m_checkColumn(checkColumnIndex),
      m_position(topLeft),
      m_size(size)
{
}

CheckBoxHeaderView::~CheckBoxHeaderView() = default;

void CheckBoxHeaderView::setCheckState(bool state)
{
    m_checked = state;
}

void CheckBoxHeaderView::mousePressEvent(QMouseEvent *event)
{
    if (!event) {
        return;
    }
    const QPointer<CheckBoxHeaderView> self(this);
    // Hosts count on the visual index; it differs from the logical one once sections are moved.
    // The -1 past the last section is no section, so a check column of -1 is never pressed.
    const int section = visualIndexAt(event->x());
    if (section >= 0 && section == m_checkColumn) {
        m_checked = !m_checked;
        updateSection(m_checkColumn);
        Q_EMIT signalCheckStateChanged(m_checked);
        if (!self) {
            return;
        }
    }
    Q_EMIT sectionClicked(visualIndexAt(event->x()));
    if (self) {
        QHeaderView::mousePressEvent(event);
    }
}

void CheckBoxHeaderView::paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const
{
    if (!painter) {
        return;
    }
    painter->save();
    QHeaderView::paintSection(painter, rect, logicalIndex);
    painter->restore();

    if (logicalIndex != m_checkColumn || m_size.isEmpty()) {
        return;
    }
    // Asked for on every paint, so that the picture follows a theme switch.
    const QString themePath = TalvoStyleManager::instance()->currentThemePath();
    const QPixmap selected = keptPixmap(themePath + QStringLiteral("qssimage/selected.png"));
    const QPixmap unselected = keptPixmap(themePath + QStringLiteral("qssimage/unselected.png"));
    painter->save();
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect box =
        QStyle::visualRect(layoutDirection(), viewport()->rect(), QRect(m_position, m_size));
    painter->drawPixmap(box, m_checked ? selected : unselected);
    painter->restore();
}

} // namespace Widgets
} // namespace LM
