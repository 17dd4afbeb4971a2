#include <lmwidgets/buttonlefthavegreendots.h>

#include "toolbuttonrelease_p.h"

#include <QPainter>
#include <QPen>

namespace {

// Outside the button, so that the clipping of the button takes the ring away: hosts have never seen
// it, and a ring that moved inside would lie on the picture of the button.
constexpr int DotDistance = 13;
constexpr int DotRadius = 5;
constexpr int DotLineWidth = 2;

} // namespace

ButtonLeftHaveGreenDots::ButtonLeftHaveGreenDots(QWidget *parent) : QToolButton(parent) {}

ButtonLeftHaveGreenDots::~ButtonLeftHaveGreenDots() = default;

void ButtonLeftHaveGreenDots::setShowDotColor(const QColor &color)
{
    m_dotColor = color;
}

void ButtonLeftHaveGreenDots::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(m_dotColor, DotLineWidth));
        const QPoint centre(rect().left() - DotDistance, rect().center().y());
        painter.drawEllipse(centre, DotRadius, DotRadius);
    }
    QToolButton::paintEvent(event);
}

void ButtonLeftHaveGreenDots::mouseReleaseEvent(QMouseEvent *event)
{
    LM::Widgets::releaseToolButton(
        this, event, [=] { QAbstractButton::mouseReleaseEvent(event); },
        [=] { QToolButton::mouseReleaseEvent(event); });
}
