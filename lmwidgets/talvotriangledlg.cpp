#include <lmwidgets/talvotriangledlg.h>

#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPointF>
#include <QPolygonF>
#include <QVector>

namespace {

const QColor BackgroundColor(0x45, 0x45, 0x45);
const QColor BorderColor(0x38, 0x38, 0x38);

/** The panel, the pointer, and the points of the outline, two by two. */
struct Balloon
{
    QRectF body;
    QPolygonF triangle;
    QVector<QPointF> outline;
};

/** Where a pointer begins, has its tip, and ends along its edge, and how far it sticks out. */
struct Pointer
{
    qint64 start;
    qint64 middle;
    qint64 end;
    qint64 height;
};

QPointF point(qint64 x, qint64 y)
{
    return QPointF(static_cast<qreal>(x), static_cast<qreal>(y));
}

QRectF box(qint64 x, qint64 y, qint64 width, qint64 height)
{
    return QRectF(point(x, y), QSizeF(static_cast<qreal>(width), static_cast<qreal>(height)));
}

// The outlines are no closed lines: hosts that place balloons rely on the edges that are left out.
// Each pair of points is one line, and a last point without a partner draws nothing.

Balloon leftBalloon(const Pointer &p, qint64 w, qint64 h)
{
    const QPointF upper = point(p.height, p.start);
    const QPointF tip = point(0, p.middle);
    const QPointF lower = point(p.height, p.end);
    return {box(p.height, 0, w - 2, h),
            {{upper, tip, lower}},
            {point(p.height, 0), upper, tip, lower, point(p.height, h), point(w, h), point(w, 0)}};
}

Balloon rightBalloon(const Pointer &p, qint64 w, qint64 h)
{
    const qint64 edge = w - p.height;
    const QPointF upper = point(edge, p.start);
    const QPointF tip = point(w, p.middle);
    const QPointF lower = point(edge, p.end);
    return {box(0, 0, edge, h),
            {{upper, tip, lower}},
            {point(0, 0), point(edge, 0), upper, tip, lower, point(edge, h), point(0, h)}};
}

Balloon topBalloon(const Pointer &p, qint64 w, qint64 h)
{
    const QPointF left = point(p.start, p.height);
    const QPointF tip = point(p.middle, 0);
    const QPointF right = point(p.end, p.height);
    return {box(1, p.height, w - 2, h - 2),
            {{left, tip, right}},
            {point(0, p.height), left, tip, right, point(w, p.height), point(w, h), point(0, h),
             point(0, p.height)}};
}

Balloon bottomBalloon(const Pointer &p, qint64 w, qint64 h)
{
    const qint64 edge = h - p.height;
    const QPointF left = point(p.start, edge);
    const QPointF tip = point(p.middle, h);
    const QPointF right = point(p.end, edge);
    return {box(1, 0, w - 2, edge),
            {{left, tip, right}},
            {point(0, 0), point(0, edge), left, tip, right, point(w, edge), point(w, 0)}};
}

Balloon balloonFor(TalvoTriangleDlg::TriangleDirection direction, const Pointer &pointer, int width,
                   int height)
{
    switch (direction) {
    case TalvoTriangleDlg::Left:
        return leftBalloon(pointer, width, height);
    case TalvoTriangleDlg::Right:
        return rightBalloon(pointer, width, height);
    case TalvoTriangleDlg::Top:
        return topBalloon(pointer, width, height);
    case TalvoTriangleDlg::Bottom:
        return bottomBalloon(pointer, width, height);
    }
    return {};
}

QColor opaque(const QColor &color)
{
    return QColor(color.red(), color.green(), color.blue(), 255);
}

} // namespace

TalvoTriangleDlg::TalvoTriangleDlg(QWidget *parent)
    : QDialog(parent), m_backgroundColor(BackgroundColor), m_borderColor(BorderColor)
{
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
}

void TalvoTriangleDlg::setTriabgleData(TriangleDirection direction, int triangleStart,
                                       int triangleHeight, int triangleWidth)
{
    m_direction = direction;
    m_triangleStart = triangleStart;
    m_triangleHeight = triangleHeight;
    m_triangleWidth = triangleWidth;
}

void TalvoTriangleDlg::setDefaultBackgroundColor(QColor color)
{
    m_backgroundColor = color;
}

void TalvoTriangleDlg::setDefaultBorderColor(QColor color)
{
    m_borderColor = color;
}

void TalvoTriangleDlg::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    const qint64 start = m_triangleStart;
    const Pointer pointer = {start, start + m_triangleWidth / 2, start + m_triangleWidth,
                             m_triangleHeight};
    const Balloon balloon = balloonFor(m_direction, pointer, width(), height());

    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRect(balloon.body);
    path.addPolygon(balloon.triangle);
    path.closeSubpath();

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.fillPath(path, opaque(m_backgroundColor));
    painter.setPen(QPen(opaque(m_borderColor), 1));
    painter.drawLines(balloon.outline);
}
