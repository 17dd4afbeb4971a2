#ifndef PAINTRECORDER_H
#define PAINTRECORDER_H

/** @file
 * A device that keeps what is drawn on it: for what a widget draws where the screen never shows it.
 */

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>
#include <QRectF>
#include <QVector>

/** One ellipse, with what the painter had set for it. */
struct DrawnEllipse
{
    QRectF rect; ///< with the painter's translation
    QPen pen;
    QBrush brush;
    bool antialiased = false;
    int position = 0; ///< among all that was drawn
};

class PaintRecorder : public QPaintDevice, private QPaintEngine
{
public:
    explicit PaintRecorder(const QSize &size) : QPaintEngine(AllFeatures), m_size(size) {}

    QPaintEngine *paintEngine() const override { return const_cast<PaintRecorder *>(this); }
    QVector<DrawnEllipse> ellipses() const { return m_ellipses; }
    /** The number of things drawn altogether. */
    int count() const { return m_count; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return m_size.width();
        case PdmHeight:
            return m_size.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return 0;
        }
    }

private:
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override {}
    Type type() const override { return User; }
    void drawEllipse(const QRectF &rect) override
    {
        m_ellipses.append({painter()->transform().mapRect(rect), painter()->pen(),
                           painter()->brush(), painter()->testRenderHint(QPainter::Antialiasing),
                           m_count++});
    }
    void drawEllipse(const QRect &rect) override { drawEllipse(QRectF(rect)); }
    void drawPath(const QPainterPath &) override { ++m_count; }
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override { ++m_count; }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { ++m_count; }
    void drawTextItem(const QPointF &, const QTextItem &) override { ++m_count; }
    void drawRects(const QRectF *, int) override { ++m_count; }
    void drawRects(const QRect *, int) override { ++m_count; }
    void drawLines(const QLineF *, int) override { ++m_count; }
    void drawLines(const QLine *, int) override { ++m_count; }

    const QSize m_size;
    QVector<DrawnEllipse> m_ellipses;
    int m_count = 0;
};

#endif
