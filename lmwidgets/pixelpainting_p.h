#ifndef LMWIDGETS_PIXELPAINTING_P_H
#define LMWIDGETS_PIXELPAINTING_P_H

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QTransform>

namespace LM {
namespace Widgets {

/**
 * Whether @p painter paints into pixels that are as large as the units of its coordinates, and lie
 * where those do: as on a screen of normal resolution, and not on paper, into a recording or on a
 * screen of double resolution.
 */
inline bool paintsPixels(const QPainter &painter)
{
    const QPaintEngine *engine = painter.paintEngine();
    if (!engine || engine->type() != QPaintEngine::Raster ||
        painter.compositionMode() != QPainter::CompositionMode_SourceOver ||
        painter.opacity() < 1.0) {
        return false;
    }
    const QTransform transform = painter.deviceTransform();
    return transform.type() <= QTransform::TxTranslate &&
           transform.dx() == static_cast<int>(transform.dx()) &&
           transform.dy() == static_cast<int>(transform.dy());
}

/**
 * Whether a picture that was painted into a transparent image gives the same pixels as the painting
 * itself, provided that each pixel was painted once: the formats in which that was compared.
 */
inline bool takesPictures(const QPainter &painter)
{
    if (!paintsPixels(painter)) {
        return false;
    }
    const QPaintDevice *device = painter.paintEngine()->paintDevice();
    if (!device || device->devType() != QInternal::Image) {
        return false;
    }
    const QImage::Format format = static_cast<const QImage *>(device)->format();
    return format == QImage::Format_RGB32 || format == QImage::Format_ARGB32_Premultiplied;
}

} // namespace Widgets
} // namespace LM

#endif
