#include "pageparts.h"

#include <lmwidgets/frameline.h>

#include <QCheckBox>
#include <QFont>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QVariant>
#include <QVBoxLayout>

#include <utility>

namespace gallery {

namespace {

constexpr int RowSpacing = 10;
constexpr int SectionSpacing = 10;
constexpr int SectionGap = 14;
constexpr unsigned int SeparatorWidth = 1;

constexpr int GlyphSize = 16;
constexpr qreal GlyphRatio = 2;
const QColor GlyphColor(0xF2, 0xF2, 0xF2);
const QColor LogoColor(255, 200, 5);

qreal headingScale(HeadingLevel level)
{
    switch (level) {
    case HeadingLevel::Window:
        return 1.5;
    case HeadingLevel::Page:
        return 1.7;
    case HeadingLevel::Section:
        break;
    }
    return 1.15;
}

void drawGlyph(QPainter &painter, Glyph glyph)
{
    painter.setPen(QPen(GlyphColor, 1));
    switch (glyph) {
    case Glyph::Minimize:
        painter.drawLine(QPointF(3, 11.5), QPointF(13, 11.5));
        break;
    case Glyph::Pin:
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawEllipse(QPointF(8, 5.5), 3.5, 3.5);
        painter.drawLine(QPointF(8, 9), QPointF(8, 14));
        break;
    case Glyph::Menu:
        for (const qreal y : {4.5, 8.5, 12.5}) {
            painter.drawLine(QPointF(3, y), QPointF(13, y));
        }
        break;
    case Glyph::Logo:
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(LogoColor);
        painter.drawPolygon(QPolygonF({{8, 1}, {15, 5}, {8, 9}, {1, 5}}));
        painter.setOpacity(0.65);
        painter.drawPolygon(QPolygonF({{1, 7}, {8, 11}, {15, 7}, {15, 10.5}, {8, 15}, {1, 10.5}}));
        break;
    }
}

} // namespace

QLabel *heading(const QString &text, HeadingLevel level)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * headingScale(level));
    } else {
        font.setPixelSize(qRound(font.pixelSize() * headingScale(level)));
    }
    font.setBold(true);
    label->setFont(font);
    return label;
}

QLabel *paragraph(const QString &text)
{
    auto *label = new QLabel(text);
    label->setWordWrap(true);
    label->setProperty("galleryQuiet", true);
    return label;
}

QPushButton *button(const QString &text, std::function<void()> clicked)
{
    auto *result = new QPushButton(text);
    result->setAutoDefault(false);
    QObject::connect(result, &QPushButton::clicked, result,
                     [clicked = std::move(clicked)] { clicked(); });
    return result;
}

QCheckBox *check(const QString &text, bool checked, std::function<void(bool)> toggled)
{
    auto *result = new QCheckBox(text);
    result->setChecked(checked);
    QObject::connect(result, &QCheckBox::toggled, result, std::move(toggled));
    return result;
}

QWidget *row(const QVector<QWidget *> &widgets)
{
    auto *result = new QWidget;
    auto *layout = new QHBoxLayout(result);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(RowSpacing);
    for (QWidget *widget : widgets) {
        layout->addWidget(widget);
    }
    layout->addStretch();
    return result;
}

QWidget *grid(int columns, const QVector<QWidget *> &widgets)
{
    auto *result = new QWidget;
    auto *layout = new QGridLayout(result);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(RowSpacing);
    layout->setVerticalSpacing(RowSpacing);
    int index = 0;
    for (QWidget *widget : widgets) {
        layout->addWidget(widget, index / columns, index % columns);
        ++index;
    }
    for (int column = 0; column < columns; ++column) {
        layout->setColumnStretch(column, 1);
    }
    return result;
}

QWidget *framed(QWidget *widget)
{
    auto *frame = new QFrame;
    frame->setObjectName(QStringLiteral("galleryFramed"));
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(widget);
    return frame;
}

QVBoxLayout *contentLayout(QWidget *content)
{
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(SectionSpacing);
    return layout;
}

QVBoxLayout *addSection(QVBoxLayout *layout, const QString &title, const QString &text)
{
    layout->addSpacing(SectionGap);
    layout->addWidget(LM::Widgets::FrameLine::createHorizontalLine(
        QStringLiteral("isBackgroundSeparator"), layout->parentWidget(), SeparatorWidth, 0, 0));
    layout->addSpacing(SectionSpacing / 2);
    layout->addWidget(heading(title, HeadingLevel::Section));
    if (!text.isEmpty()) {
        layout->addWidget(paragraph(text));
    }
    auto *body = new QVBoxLayout;
    body->setSpacing(SectionSpacing);
    layout->addLayout(body);
    return body;
}

QIcon glyphIcon(Glyph glyph)
{
    QPixmap pixmap(QSize(GlyphSize, GlyphSize) * GlyphRatio);
    pixmap.setDevicePixelRatio(GlyphRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    drawGlyph(painter, glyph);
    painter.end();
    return QIcon(pixmap);
}

} // namespace gallery
