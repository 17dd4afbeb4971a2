#include <lmwidgets/toggleswitch.h>

#include "accessiblechecks_p.h"
#include "pixelpainting_p.h"

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

// What the track and its ring, and the knob and its ring, fit into, in px.
constexpr QSize TrackPictureSize(48, 30);
constexpr QSize KnobPictureSize(24, 30);
constexpr double KnobPictureLeft = 3.0;

void drawTrack(QPainter *painter, const QBrush &brush, const QPen &pen)
{
    painter->setBrush(brush);
    painter->setPen(pen);
    painter->drawRoundedRect(QRectF(TrackLeft, TrackTop, TrackWidth, TrackHeight), TrackRadius,
                             TrackRadius);
}

void drawKnob(QPainter *painter, double left, const QBrush &brush, const QPen &pen)
{
    painter->setBrush(brush);
    painter->setPen(pen);
    painter->drawEllipse(QRectF(left, TrackTop + KnobInset, KnobSize, KnobSize));
}

QPen ringPen()
{
    return QPen(AccentColor, RingWidth);
}

/** The transparent picture of @p size that @p draw draws into. */
template <typename Draw>
QImage pictureOf(const QSize &size, Draw draw)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing, true);
    draw(&painter);
    return picture;
}

/**
 * The parts of a switch as pictures, painted once for all switches: most of the time of a frame goes
 * into the smooth edges. Fillings and rings are apart. In a picture of both the pixels that both
 * cover in part would be mixed before the background comes in, and be another shade.
 */
struct Pictures
{
    QImage onTrack = pictureOf(TrackPictureSize,
                               [](QPainter *p) { drawTrack(p, AccentColor, QPen(Qt::NoPen)); });
    QImage offTrack =
        pictureOf(TrackPictureSize, [](QPainter *p) { drawTrack(p, DarkColor, QPen(Qt::NoPen)); });
    QImage trackRing =
        pictureOf(TrackPictureSize, [](QPainter *p) { drawTrack(p, Qt::NoBrush, ringPen()); });
    QImage knob = pictureOf(KnobPictureSize, [](QPainter *p) {
        drawKnob(p, KnobPictureLeft, DarkColor, QPen(Qt::NoPen));
    });
    QImage knobRing = pictureOf(
        KnobPictureSize, [](QPainter *p) { drawKnob(p, KnobPictureLeft, Qt::NoBrush, ringPen()); });
};

/** Draws the switch with its knob at @p knobLeft. */
void drawSwitch(QPainter *painter, bool checked, double knobLeft)
{
    if (!takesPictures(*painter)) {
        drawTrack(painter, checked ? AccentColor : DarkColor, ringPen());
        drawKnob(painter, knobLeft, DarkColor, checked ? QPen(Qt::NoPen) : ringPen());
        return;
    }
    static const Pictures pictures;
    painter->drawImage(QPoint(0, 0), checked ? pictures.onTrack : pictures.offTrack);
    painter->drawImage(QPoint(0, 0), pictures.trackRing);
    const QPoint place(static_cast<int>(knobLeft - KnobPictureLeft), 0);
    painter->drawImage(place, pictures.knob);
    if (!checked) {
        painter->drawImage(place, pictures.knobRing);
    }
}

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

    const auto offset = static_cast<int>((TrackWidth - KnobSize - 2 * KnobInset) * m_position);
    painter.save();
    if (isRightToLeft()) {
        // Where the language runs from right to left the switch is mirrored.
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    drawSwitch(&painter, m_checked, TrackLeft + KnobInset + offset);
    painter.restore();

    // A painter takes from its widget's font what a font does not set itself, and the application's
    // sets nothing: the text would be drawn in another font than the one that it was measured in.
    QFont font = QApplication::font();
    font.resolve(~0U);
    painter.setPen(Qt::white);
    painter.setFont(font);
    QRectF place(TrackWidth + TextGap, 0.0, width() - TrackWidth - TextRightGap, height());
    Qt::Alignment side = Qt::AlignLeft;
    if (isRightToLeft()) {
        place.moveRight(width() - place.left());
        side = Qt::AlignRight;
    }
    // Absolute, as the painter has the direction of the application, not that of the widget.
    painter.drawText(place, static_cast<int>(side | Qt::AlignAbsolute | Qt::AlignVCenter), m_text);
}

} // namespace Widgets
} // namespace LM
