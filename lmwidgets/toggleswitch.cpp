#include <lmwidgets/toggleswitch.h>

#include "accessiblechecks_p.h"

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QPen>

namespace LM {
namespace Widgets {

namespace {

constexpr int TickTime = 16;
constexpr double TickShare = 0.2;
constexpr double SnapDistance = 0.05;

constexpr int InitialHeight = 30;
constexpr double TextLeftSpace = 66.0;
constexpr double TextRightSpace = 12.0;

constexpr double TrackWidth = 42.0;
constexpr double TrackHeight = 24.0;
constexpr double TrackTop = 3.0;
constexpr double TrackLeft = 3.0;
constexpr double TrackRadius = 12.0;
// What is live begins at the widget's edge, 3 px left of the track, and ends 3 px before its end.
constexpr double HitLeft = 0.0;

constexpr double KnobSize = 18.0;
constexpr double KnobInset = 3.0;
constexpr double RingWidth = 2.0;
constexpr double TextGap = 12.0;
constexpr double TextRightGap = 6.0;

const QColor AccentColor(254, 200, 4);
const QColor DarkColor(50, 50, 50);

} // namespace

ToggleSwitch::ToggleSwitch(QWidget *parent)
    : QWidget(parent), m_text(QStringLiteral("ToggleSwitch"))
{
    registerAccessibleChecks();
    fitToText(InitialHeight);
    connect(&m_timer, &QTimer::timeout, this, &ToggleSwitch::animate);
    m_timer.setInterval(TickTime);
}

bool ToggleSwitch::isChecked() const
{
    return m_checked;
}

void ToggleSwitch::setChecked(bool checked)
{
    if (checked != m_checked) {
        change(checked);
    }
}

void ToggleSwitch::setText(const QString &text)
{
    const bool renamed = text != m_text;
    m_text = text;
    fitToText(height());
    update();
    if (renamed) {
        announceName(this);
    }
}

void ToggleSwitch::fitToText(int height)
{
    const double textWidth = QFontMetricsF(QApplication::font()).horizontalAdvance(m_text);
    setFixedSize(static_cast<int>(textWidth + TextLeftSpace + TextRightSpace), height);
}

void ToggleSwitch::change(bool on)
{
    m_checked = on;
    m_target = on ? 1.0 : 0.0;
    m_timer.start();
    announceChecked(this);
    Q_EMIT toggled(m_checked);
}

void ToggleSwitch::mousePressEvent(QMouseEvent *event)
{
    const QRectF live(HitLeft, TrackTop, TrackWidth, TrackHeight);
    QPointF position = event->localPos();
    if (isRightToLeft()) {
        position.setX(width() - position.x());
    }
    if (event->button() == Qt::LeftButton && live.contains(position)) {
        change(!m_checked);
    }
}

void ToggleSwitch::animate()
{
    if (qAbs(m_position - m_target) < SnapDistance) {
        m_position = m_target;
        m_timer.stop();
    } else {
        m_position += (m_target - m_position) * TickShare;
    }
    update();
}

void ToggleSwitch::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, true);

    // Where the language runs from right to left the whole switch is mirrored, the text excepted.
    const auto mirrored = [this](const QRectF &area) {
        return isRightToLeft()
                   ? QRectF(width() - area.right(), area.top(), area.width(), area.height())
                   : area;
    };
    const QRectF track(TrackLeft, TrackTop, TrackWidth, TrackHeight);
    painter.setBrush(m_checked ? AccentColor : DarkColor);
    painter.setPen(QPen(AccentColor, RingWidth));
    painter.drawRoundedRect(mirrored(track), TrackRadius, TrackRadius);

    if (m_checked) {
        painter.setPen(Qt::NoPen);
    }
    painter.setBrush(DarkColor);
    const auto offset = static_cast<int>((track.width() - KnobSize - 2 * KnobInset) * m_position);
    painter.drawEllipse(mirrored(
        QRectF(track.left() + KnobInset + offset, track.top() + KnobInset, KnobSize, KnobSize)));

    // A painter takes from its widget's font what a font does not set itself, and the application's
    // sets nothing: the text would be drawn in another font than the one that it was measured in.
    QFont font = QApplication::font();
    font.resolve(~0U);
    painter.setPen(Qt::white);
    painter.setFont(font);
    // Absolute, as the painter has the direction of the application, not that of the widget.
    const Qt::Alignment side = isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    painter.drawText(mirrored(QRectF(track.width() + TextGap, 0.0,
                                     width() - track.width() - TextRightGap, height())),
                     static_cast<int>(side | Qt::AlignAbsolute | Qt::AlignVCenter), m_text);
}

} // namespace Widgets
} // namespace LM
