#include <lmwidgets/qcustomtabbar.h>

#include "accessiblecustomtabbar_p.h"

#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QStyleOptionTab>

namespace LM {
namespace Widgets {

namespace {

const QColor GroundColor(0x36, 0x36, 0x36);
const QColor DefaultDotColor(0, 255, 0);
constexpr int DotPosition = 7; // from the left edge of the tab
constexpr int DotRadius = 3;
constexpr int TextPosition = 15; // from the left edge of the tab

} // namespace

QCustomTabBar::QCustomTabBar(QWidget *parent) : QTabBar(parent)
{
    installAccessibleCustomTabBar();
}

QCustomTabBar::~QCustomTabBar() = default;

void QCustomTabBar::setTabColor(int index, const QColor &color)
{
    m_tabColors.insert(index, color);
    update();
}

QColor QCustomTabBar::getCircleColor(int index)
{
    return m_tabColors.value(index);
}

void QCustomTabBar::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.fillRect(rect(), GroundColor);
    for (int i = 0; i < count(); ++i) {
        // A hidden tab has no rectangle; it would be painted in the corner of the bar.
        if (tabRect(i).isEmpty()) {
            continue;
        }
        QStyleOptionTab option;
        initStyleOption(&option, i);
        option.palette.setBrush(QPalette::All, QPalette::Button, GroundColor);
        style()->drawControl(QStyle::CE_TabBarTabShape, &option, &painter, this);
        paintDotAndText(&painter, i);
    }
}

void QCustomTabBar::paintDotAndText(QPainter *painter, int index)
{
    const QRect tab = tabRect(index);
    const int middle = tab.center().y();
    painter->save();
    painter->setBrush(m_tabColors.value(index, DefaultDotColor));
    painter->setPen(Qt::NoPen);
    painter->drawEllipse(QPoint(tab.left() + DotPosition, middle), DotRadius, DotRadius);

    painter->setPen(Qt::white);
    painter->translate(tab.left() + TextPosition, middle);
    painter->drawText(0, painter->fontMetrics().height() / 4, tabText(index));
    painter->restore();
}

QSize QCustomTabBar::tabSizeHint(int index) const
{
    return QTabBar::tabSizeHint(index).transposed();
}

} // namespace Widgets
} // namespace LM
