#include <lmwidgets/talvodoubleslider.h>

#include "accessibledoubleslider_p.h"
#include "pixelpainting_p.h"
#include "talvodoubleslider_p.h"
#include "themepictures_p.h"

#include <lmwidgets/talvostylemanager.h>

#include <QColor>
#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QPointer>

#include <cmath>

namespace LM {
namespace Widgets {

namespace {

constexpr int BarInset = 5;   // between an end of the bar and the edge of the widget
constexpr int BarHeight = 4;  // of the rectangle; its outline makes it 5 px
constexpr int GrabHeight = 6; // above and below the middle
constexpr double GrabWidth = 5.0;
constexpr QRgb SpanColor = qRgb(255, 200, 4);
constexpr QRgb OutsideColor = qRgb(130, 130, 130);

// The pictures are not placed alike: each offset belongs to the edge of the span that it is
// measured from, and hosts have drawn their handle pictures for both.
constexpr QPoint LeftPictureOffset(5, 5);
constexpr QPoint RightPictureOffset(8, 5);

constexpr QSize PreferredSize(120, 20);
constexpr QSize LeastSize(26, 13); // two pictures side by side

// Handles further outside than this and the width of the widget are drawn there, where nothing of
// them can be seen either. Values may be larger than any number of px that a painter takes.
constexpr double DrawnOutside = 1000.0;

/** The handle picture of the current theme; for screens of higher resolution it has a file too. */
QPixmap handlePicture(qreal pixelRatio)
{
    const QString path =
        TalvoStyleManager::instance()->currentThemePath() + QLatin1String("qssimage/movebutton");
    if (pixelRatio > 1.0) {
        const QPixmap large = keptPixmap(path + QLatin1String("@2x.png"));
        if (!large.isNull()) {
            return large;
        }
    }
    return keptPixmap(path + QLatin1String(".png"));
}

/**
 * Draws @p rect filled and with an outline of 1 px in @p color. Where that covers whole pixels they
 * are filled at once: to stroke the outline takes twenty times as long.
 */
void drawBar(QPainter *painter, const QRect &rect, QRgb color)
{
    // Left of the widget the painter has ways of its own with the corners.
    if (rect.left() >= 0 && rect.width() >= 0 && paintsPixels(*painter)) {
        painter->fillRect(rect.adjusted(0, 0, 1, 1), QColor(color));
        return;
    }
    painter->setPen(QPen(QColor(color), 1));
    painter->setBrush(QColor(color));
    painter->drawRect(rect);
}

} // namespace

double TalvoDoubleSliderPrivate::position(double value) const
{
    const double range = maximum - minimum;
    const int length = q->width() - 2 * BarInset;
    if (length <= 0 || range == 0.0) {
        return BarInset;
    }
    double fraction = (value - minimum) / range;
    if (!std::isfinite(range)) {
        // The ends may be further apart than the largest number.
        fraction = (value / 2 - minimum / 2) / (maximum / 2 - minimum / 2);
    }
    return std::isnan(fraction) ? BarInset : fraction * length + BarInset;
}

double TalvoDoubleSliderPrivate::value(int x) const
{
    const double fraction = double(x - BarInset) / double(q->width() - 2 * BarInset);
    const double range = maximum - minimum;
    const double found = std::isfinite(range) ? range * fraction + minimum
                                              : maximum * fraction + minimum * (1.0 - fraction);
    // At the right end the last digit may be one too large.
    return std::isfinite(found) ? qBound(qMin(minimum, maximum), found, qMax(minimum, maximum))
                                : found;
}

QRect TalvoDoubleSliderPrivate::span() const
{
    const double outside = q->width() + DrawnOutside;
    const double left = qBound(-outside, qMin(lowerPos, upperPos), outside);
    const double length = qBound(-outside, qMax(lowerPos, upperPos), outside) - left;
    return QRect(int(left), q->height() / 2 - BarHeight / 2, int(length), BarHeight);
}

QPoint TalvoDoubleSliderPrivate::leftPicture(const QRect &span)
{
    return QPoint(span.left(), span.center().y()) - LeftPictureOffset;
}

QPoint TalvoDoubleSliderPrivate::rightPicture(const QRect &span)
{
    return QPoint(span.right(), span.center().y()) - RightPictureOffset;
}

void TalvoDoubleSliderPrivate::showValues(double smallerBefore, double largerBefore)
{
    q->update();
    // Who listens there may run the event loop, and this object may be gone afterwards.
    const QPointer<TalvoDoubleSlider> guard(q);
    const double newSmaller = smaller();
    const double newLarger = larger();
    if (newSmaller != smallerBefore) {
        AccessibleDoubleSlider::reportValue(q, 0, newSmaller);
    }
    if (guard && newLarger != largerBefore) {
        AccessibleDoubleSlider::reportValue(guard, 1, newLarger);
    }
}

void TalvoDoubleSliderPrivate::finishMove(Handle handle, double smallerBefore, double largerBefore)
{
    const QPointer<TalvoDoubleSlider> guard(q);
    showValues(smallerBefore, largerBefore);
    if (!guard) {
        return;
    }
    const double moved = handle == FirstHandle ? lower : upper;
    // Hosts know the two values by their rank, whichever handle has them.
    const bool isLarger = (handle == FirstHandle) == (lower > upper);
    if (isLarger) {
        Q_EMIT q->upperValueChanged(moved);
    } else {
        Q_EMIT q->lowerValueChanged(moved);
    }
}

TalvoDoubleSlider::TalvoDoubleSlider(QWidget *parent)
    : QWidget(parent), d(new TalvoDoubleSliderPrivate)
{
    d->q = this;
    AccessibleDoubleSlider::install();
}

TalvoDoubleSlider::~TalvoDoubleSlider()
{
    delete d;
}

double TalvoDoubleSlider::lowerValue()
{
    return d->smaller();
}

double TalvoDoubleSlider::upperValue()
{
    return d->larger();
}

void TalvoDoubleSlider::setQxtSpanRange(double min, double max)
{
    if (std::isnan(min) || std::isnan(max)) {
        return;
    }
    d->minimum = min;
    d->maximum = max;
}

void TalvoDoubleSlider::updatePos()
{
    d->lowerPos = d->position(d->lower);
    d->upperPos = d->position(d->upper);
}

QSize TalvoDoubleSlider::sizeHint() const
{
    return PreferredSize;
}

QSize TalvoDoubleSlider::minimumSizeHint() const
{
    return LeastSize;
}

void TalvoDoubleSlider::setLowerValue(double lower)
{
    if (std::isnan(lower)) {
        return;
    }
    const double smaller = d->smaller();
    const double larger = d->larger();
    d->lower = qMax(d->minimum, lower);
    d->finishMove(TalvoDoubleSliderPrivate::FirstHandle, smaller, larger);
}

void TalvoDoubleSlider::setUpperValue(double upper)
{
    if (std::isnan(upper)) {
        return;
    }
    const double smaller = d->smaller();
    const double larger = d->larger();
    d->upper = qMin(d->maximum, upper);
    d->finishMove(TalvoDoubleSliderPrivate::SecondHandle, smaller, larger);
}

void TalvoDoubleSlider::setSpan(double lower, double upper)
{
    if (std::isnan(lower) || std::isnan(upper)) {
        return;
    }
    const double smaller = d->smaller();
    const double larger = d->larger();
    d->lower = lower;
    d->upper = upper;
    const QPointer<TalvoDoubleSlider> guard(this);
    d->showValues(smaller, larger);
    if (guard) {
        Q_EMIT lowerValueChanged(lowerValue());
    }
    if (guard) {
        Q_EMIT upperValueChanged(upperValue());
    }
}

bool TalvoDoubleSlider::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::EnabledChange:
    case QEvent::Hide:
    case QEvent::WindowBlocked:
        // The release of a drag that goes on now would never arrive, and the next press beside the
        // bar would drag on.
        d->pressedHandle = TalvoDoubleSliderPrivate::NoHandle;
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void TalvoDoubleSlider::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
    if (!(event->buttons() & Qt::LeftButton) || qAbs(event->y() - height() / 2) >= GrabHeight) {
        return;
    }
    updatePos();
    // The first handle wins where both are within reach.
    if (qAbs(event->x() - d->lowerPos) < GrabWidth) {
        d->pressedHandle = TalvoDoubleSliderPrivate::FirstHandle;
    } else if (qAbs(event->x() - d->upperPos) < GrabWidth) {
        d->pressedHandle = TalvoDoubleSliderPrivate::SecondHandle;
    } else {
        d->pressedHandle = TalvoDoubleSliderPrivate::NoHandle;
    }
    // A press that grabs a handle is not for the parents; a window that is moved by its area would
    // go along with the handle.
    event->setAccepted(d->pressedHandle != TalvoDoubleSliderPrivate::NoHandle);
}

void TalvoDoubleSlider::mouseMoveEvent(QMouseEvent *event)
{
    QWidget::mouseMoveEvent(event);
    if (!(event->buttons() & Qt::LeftButton) ||
        d->pressedHandle == TalvoDoubleSliderPrivate::NoHandle) {
        return;
    }
    event->accept();
    const QPoint pos = event->pos();
    if (pos.x() < BarInset || pos.x() > width() - BarInset || pos.y() < 0 || pos.y() > height()) {
        return;
    }
    const double value = d->value(pos.x());
    if (!std::isfinite(value)) {
        return;
    }
    const double smaller = d->smaller();
    const double larger = d->larger();
    const auto handle = static_cast<TalvoDoubleSliderPrivate::Handle>(d->pressedHandle);
    if (handle == TalvoDoubleSliderPrivate::FirstHandle) {
        d->lower = value;
    } else {
        d->upper = value;
    }
    d->finishMove(handle, smaller, larger);
}

void TalvoDoubleSlider::mouseReleaseEvent(QMouseEvent *event)
{
    QWidget::mouseReleaseEvent(event);
    event->setAccepted(d->pressedHandle != TalvoDoubleSliderPrivate::NoHandle);
    d->pressedHandle = TalvoDoubleSliderPrivate::NoHandle;
}

void TalvoDoubleSlider::paintEvent(QPaintEvent *event)
{
    updatePos();
    QWidget::paintEvent(event);

    const QRect span = d->span();
    QPainter painter(this);
    drawBar(&painter, span, SpanColor);
    // The grey parts come after the span and cover the columns at its ends. The right one is too
    // long on purpose: the edge of the widget ends it.
    drawBar(&painter, QRect(0, span.top(), span.left(), span.height()), OutsideColor);
    drawBar(&painter, QRect(span.right(), span.top(), width(), span.height()), OutsideColor);

    const QPixmap picture = handlePicture(devicePixelRatioF());
    painter.drawPixmap(TalvoDoubleSliderPrivate::leftPicture(span), picture);
    painter.drawPixmap(TalvoDoubleSliderPrivate::rightPicture(span), picture);
}

} // namespace Widgets
} // namespace LM
