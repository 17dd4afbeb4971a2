#include "sheet.h"

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QtGlobal>

#include <cstdlib>

namespace baseline {

namespace {

const char PlacesKey[] = "states";
constexpr int SheetWidth = 1000;
constexpr int Gap = 10;
constexpr int LabelHeight = 16;
constexpr int LabelSize = 11;
constexpr int PlaceFields = 5;
constexpr int FrameWidth = 2;
constexpr int SmallestCompression = 0; // a "quality" of PNG: the slowest and smallest
const QColor SheetColor(0xFF, 0xFF, 0xFF);
const QColor LabelColor(0x40, 0x40, 0x40);
constexpr QRgb Changed = 0xFFFF0000;

int channelDifference(QRgb first, QRgb second)
{
    const int red = std::abs(qRed(first) - qRed(second));
    const int green = std::abs(qGreen(first) - qGreen(second));
    const int blue = std::abs(qBlue(first) - qBlue(second));
    return qMax(red, qMax(green, blue));
}

QRgb faded(QRgb pixel)
{
    const int gray = 160 + qGray(pixel) * 96 / 256;
    return qRgb(gray, gray, gray);
}

QImage fadedImage(const QImage &image)
{
    QImage result(image.size(), QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        const auto *from = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        auto *to = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            to[x] = faded(from[x]);
        }
    }
    return result;
}

void frame(QImage *image, const QRect &place)
{
    QPainter painter(image);
    const QColor color = QColor::fromRgb(Changed);
    painter.fillRect(place.x(), place.y(), place.width(), FrameWidth, color);
    painter.fillRect(place.x(), place.bottom() + 1 - FrameWidth, place.width(), FrameWidth, color);
    painter.fillRect(place.x(), place.y(), FrameWidth, place.height(), color);
    painter.fillRect(place.right() + 1 - FrameWidth, place.y(), FrameWidth, place.height(), color);
}

QString sizeText(const QSize &size)
{
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

/** Compares two pictures of one size and marks in @p marked, at @p offset, what differs. */
QString comparePixels(const QImage &reference, const QImage &actual, QImage *marked,
                      const QPoint &offset)
{
    QRect bounds;
    int count = 0;
    int largest = 0;
    for (int y = 0; y < actual.height(); ++y) {
        const auto *before = reinterpret_cast<const QRgb *>(reference.constScanLine(y));
        const auto *after = reinterpret_cast<const QRgb *>(actual.constScanLine(y));
        for (int x = 0; x < actual.width(); ++x) {
            const int difference = channelDifference(before[x], after[x]);
            if (difference > Tolerance) {
                ++count;
                largest = qMax(largest, difference);
                bounds |= QRect(x, y, 1, 1);
                marked->setPixel(offset + QPoint(x, y), Changed);
            }
        }
    }
    if (count == 0) {
        return QString();
    }
    return QStringLiteral("%1 of %2 pixels differ, by up to %3, within %4 at %5, %6")
        .arg(count)
        .arg(actual.width() * actual.height())
        .arg(largest)
        .arg(sizeText(bounds.size()))
        .arg(bounds.x())
        .arg(bounds.y());
}

} // namespace

Sheet::Sheet(const QVector<Picture> &pictures, int scale)
{
    QFont font;
    font.setPixelSize(LabelSize * scale);
    const QFontMetrics metrics(font);
    const int gap = Gap * scale;
    const int labelHeight = LabelHeight * scale;
    QPoint next(gap, gap);
    QSize size;
    int bottom = gap;
    for (const Picture &picture : pictures) {
        const int width = qMax(picture.image.width(), metrics.horizontalAdvance(picture.state));
        if (next.x() > gap && next.x() + width + gap > SheetWidth * scale) {
            next = QPoint(gap, bottom + gap);
        }
        const QRect place(next + QPoint(0, labelHeight), picture.image.size());
        m_cells.append({picture.state, place});
        bottom = qMax(bottom, place.bottom() + 1);
        next.rx() += width + gap;
        size = size.expandedTo(QSize(next.x(), bottom + gap));
    }

    m_image = QImage(size, QImage::Format_RGB32);
    m_image.fill(SheetColor);
    QPainter painter(&m_image);
    painter.setFont(font);
    painter.setPen(LabelColor);
    for (int i = 0; i < m_cells.size(); ++i) {
        const QPoint corner = m_cells.at(i).place.topLeft();
        QImage image = pictures.at(i).image;
        image.setDevicePixelRatio(1);
        painter.drawImage(corner, image);
        painter.drawText(corner.x(), corner.y() - metrics.descent() - 1, m_cells.at(i).state);
    }
}

Sheet Sheet::load(const QString &path)
{
    Sheet sheet;
    sheet.m_image = QImageReader(path).read().convertToFormat(QImage::Format_RGB32);
    const QString places = sheet.m_image.text(QString::fromLatin1(PlacesKey));
    for (const QString &place : places.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QStringList fields = place.split(QLatin1Char(','));
        if (fields.size() == PlaceFields) {
            sheet.m_cells.append({fields.at(4), QRect(fields.at(0).toInt(), fields.at(1).toInt(),
                                                      fields.at(2).toInt(), fields.at(3).toInt())});
        }
    }
    return sheet;
}

bool Sheet::save(const QString &path) const
{
    QString places;
    for (const Cell &cell : m_cells) {
        places += QStringLiteral("%1,%2,%3,%4,%5;")
                      .arg(cell.place.x())
                      .arg(cell.place.y())
                      .arg(cell.place.width())
                      .arg(cell.place.height())
                      .arg(cell.state);
    }
    QImageWriter writer(path, "png");
    writer.setQuality(SmallestCompression);
    writer.setText(QString::fromLatin1(PlacesKey), places);
    return writer.write(m_image);
}

QStringList Sheet::states() const
{
    QStringList states;
    for (const Cell &cell : m_cells) {
        states.append(cell.state);
    }
    return states;
}

QRect Sheet::place(const QString &state) const
{
    for (const Cell &cell : m_cells) {
        if (cell.state == state) {
            return cell.place;
        }
    }
    return QRect();
}

QImage Sheet::picture(const QString &state) const
{
    return m_image.copy(place(state));
}

Difference compare(const Sheet &reference, const Sheet &actual)
{
    Difference result;
    result.picture = fadedImage(actual.image());
    const auto found = [&result](const QString &state, const QString &what) {
        result.findings.append(QStringLiteral("state \"%1\": %2").arg(state, what));
    };
    for (const QString &state : actual.states()) {
        const QRect place = actual.place(state);
        if (!reference.states().contains(state)) {
            found(state, QStringLiteral("the reference does not have it"));
            frame(&result.picture, place);
            continue;
        }
        const QSize former = reference.place(state).size();
        if (former != place.size()) {
            found(state, QStringLiteral("is %1 pixels large and was %2")
                             .arg(sizeText(place.size()), sizeText(former)));
            frame(&result.picture, place);
            continue;
        }
        const QString text = comparePixels(reference.picture(state), actual.picture(state),
                                           &result.picture, place.topLeft());
        if (!text.isEmpty()) {
            found(state, text);
        }
    }
    for (const QString &state : reference.states()) {
        if (!actual.states().contains(state)) {
            found(state, QStringLiteral("only the reference has it"));
        }
    }
    return result;
}

} // namespace baseline
