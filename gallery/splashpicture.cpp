#include "splashpicture.h"

#include <QFont>
#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>

#include <cmath>

namespace gallery {

namespace {

constexpr QSize PictureSize(680, 469);
constexpr int Radius = 20;
constexpr int Rows = 26;
constexpr int PointsInRow = 170;
constexpr int TitleTop = 120;
constexpr int TitleSize = 44;
constexpr int SubtitleTop = 190;
constexpr int SubtitleSize = 15;

const QColor Top(0x2B, 0x2B, 0x2B);
const QColor Bottom(0x14, 0x17, 0x1C);
const QColor Low(90, 110, 130);
const QColor High(255, 200, 5);

/** The height of the hills in [0, 1] at a place in [0, 1]. */
double hills(double x, double depth)
{
    return 0.5 + 0.28 * std::sin(7.0 * x + 3.0 * depth) +
           0.22 * std::sin(17.0 * x - 5.0 * depth + 1.0);
}

/** Rows of points from far to near, the higher the warmer in colour. */
void paintHills(QPainter &painter)
{
    for (int row = 0; row < Rows; ++row) {
        const double depth = double(row) / Rows;
        const double base = PictureSize.height() * (0.72 + 0.26 * depth);
        for (int i = 0; i < PointsInRow; ++i) {
            const double x = (i + 0.5) / PointsInRow;
            const double height = hills(x, depth);
            const double mix = height * height * height;
            QColor color(int(Low.red() + mix * (High.red() - Low.red())),
                         int(Low.green() + mix * (High.green() - Low.green())),
                         int(Low.blue() + mix * (High.blue() - Low.blue())));
            color.setAlphaF(0.12 + 0.35 * depth);
            painter.setBrush(color);
            const double size = 0.7 + depth;
            painter.drawEllipse(QPointF(x * PictureSize.width(), base - 55.0 * height), size, size);
        }
    }
}

void paintLine(QPainter &painter, const QString &text, int top, int size, bool bold)
{
    QFont font = painter.font();
    font.setPixelSize(size);
    font.setBold(bold);
    painter.setFont(font);
    painter.drawText(QRect(0, top, PictureSize.width(), 2 * size), Qt::AlignHCenter | Qt::AlignTop,
                     text);
}

} // namespace

QPixmap splashPicture()
{
    const double ratio = qGuiApp->devicePixelRatio();
    QPixmap picture(PictureSize * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QLinearGradient ground(0, 0, 0, PictureSize.height());
    ground.setColorAt(0, Top);
    ground.setColorAt(1, Bottom);
    painter.setBrush(ground);
    painter.drawRoundedRect(QRect(QPoint(), PictureSize), Radius, Radius);
    paintHills(painter);
    painter.setPen(QColor(0xF2, 0xF2, 0xF2));
    paintLine(painter, QStringLiteral("lmwidgets"), TitleTop, TitleSize, true);
    painter.setPen(QColor(0xA8, 0xA8, 0xA8));
    paintLine(painter, QStringLiteral("Widgets for lidar desktop software"), SubtitleTop,
              SubtitleSize, false);
    return picture;
}

} // namespace gallery
