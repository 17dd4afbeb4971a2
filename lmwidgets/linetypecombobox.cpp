#include <lmwidgets/linetypecombobox.h>

#include <QIcon>
#include <QPainter>
#include <QPen>
#include <QScopedValueRollback>
#include <QStringRef>

namespace LM {
namespace Widgets {

namespace {

constexpr int pictureHeight = 31;
constexpr int strokeY = 15;
constexpr qreal strokeWidth = 2.0;
constexpr int dotSize = 1;
constexpr int dotOffset = 1; // from the position in the pattern to the dot, in px
constexpr int dotY = 14;
constexpr int dotAdvance = 3;

QString continuousPattern()
{
    return QStringLiteral("CONTINUOUS");
}

/**
 * Returns the numbers of @p pattern, at most @p limit of them. Every number takes the stroke on by
 * 1 px or more, so a picture never needs more numbers than it has columns, however long the text
 * is.
 */
QVector<int> patternValues(const QString &pattern, int limit)
{
    QVector<int> values;
    int start = 0;
    while (values.size() < limit) {
        const int comma = pattern.indexOf(QLatin1Char(','), start);
        const int end = comma < 0 ? pattern.size() : comma;
        values.append(pattern.midRef(start, end - start).toInt());
        if (comma < 0) {
            break;
        }
        start = comma + 1;
    }
    return values;
}

/** Draws @p values over and over from the left end up to @p width, which is positive. */
void drawPattern(QPainter *painter, const QVector<int> &values, int width)
{
    // The numbers may be as large as an int can be, so the position needs more room than that.
    qint64 x = 0;
    int i = 0;
    while (x < width) {
        const qint64 value = values.at(i);
        if (value > 0) {
            const qint64 end = x + value;
            painter->drawLine(static_cast<int>(x), strokeY,
                              static_cast<int>(qMin<qint64>(end, width)), strokeY);
            x = end;
        } else if (value == 0) {
            painter->setBrush(QBrush(Qt::white, Qt::SolidPattern));
            painter->drawEllipse(static_cast<int>(x) + dotOffset, dotY, dotSize, dotSize);
            x += dotAdvance;
        } else {
            x -= value;
        }
        i = (i + 1) % values.size();
    }
}

} // namespace

LineTypeComboBox::LineTypeComboBox(QWidget *parent) : QComboBox(parent)
{
    populateComboBox();
}

LineTypeComboBox::~LineTypeComboBox() = default;

void LineTypeComboBox::populateComboBox()
{
    m_lineTypes = {
        {continuousPattern(), continuousPattern()},
        {QStringLiteral("ACAD_ISO02W100"), QStringLiteral("12,-3")},
        {QStringLiteral("ACAD_ISO03W100"), QStringLiteral("12,-18")},
        {QStringLiteral("ACAD_ISO04W100"), QStringLiteral("24,-3,0,-3")},
        {QStringLiteral("ACAD_ISO05W100"), QStringLiteral("24,-3,0,-3,0,-3")},
        {QStringLiteral("ACAD_ISO06W100"), QStringLiteral("24,-3,0,-3,0,-3,0,-3")},
        {QStringLiteral("ACAD_ISO07W100"), QStringLiteral("0,-3")},
        {QStringLiteral("ACAD_ISO08W100"), QStringLiteral("24,-3,6,-3")},
        {QStringLiteral("ACAD_ISO09W100"), QStringLiteral("24,-3,6,-3,6,-3")},
        {QStringLiteral("ACAD_ISO10W100"), QStringLiteral("12,-3,0,-3")},
        {QStringLiteral("ACAD_ISO11W100"), QStringLiteral("12,-3,12,-3,0,-3")},
        {QStringLiteral("ACAD_ISO12W100"), QStringLiteral("12,-3,0,-3,0,-3")},
        {QStringLiteral("ACAD_ISO13W100"), QStringLiteral("12,-3,12,-3,0,-3,0,-3")},
        {QStringLiteral("ACAD_ISO14W100"), QStringLiteral("12,-3,0,-3,0,-3,0,-3")},
        {QStringLiteral("ACAD_ISO15W100"), QStringLiteral("12,-3,12,-3,0,-3,0,-3,0,-3")},
    };
}

void LineTypeComboBox::updateIcons()
{
    // A host that is told of a new index may resize the box and so bring on another rebuild within
    // this one. The inner rebuild then takes over, with the index that the outer one remembered.
    if (m_rebuildsRunning == 0) {
        m_rememberedIndex = currentIndex();
    }
    const QScopedValueRollback<int> running(m_rebuildsRunning, m_rebuildsRunning + 1);
    const int rebuild = ++m_rebuilds;
    const int pictureWidth = width();
    const auto lineTypes = m_lineTypes;

    clear();
    for (const auto &lineType : lineTypes) {
        if (rebuild != m_rebuilds) {
            return;
        }
        const QPixmap pixmap = generateLinePixmap(lineType.second, pictureWidth);
        QIcon icon;
        icon.addPixmap(pixmap, QIcon::Normal, QIcon::Off);
        addItem(icon, QString(), QVariant(lineType.first));
        setIconSize(pixmap.size());
    }
    if (rebuild == m_rebuilds) {
        setCurrentIndex(qMax(m_rememberedIndex, 0));
    }
}

QPixmap LineTypeComboBox::generateLinePixmap(const QString &pattern, int width)
{
    if (width <= 0) {
        return QPixmap();
    }
    QPixmap pixmap(width, pictureHeight);
    if (pixmap.isNull()) {
        return pixmap;
    }
    pixmap.fill(Qt::transparent);

    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QBrush(Qt::white, Qt::SolidPattern), strokeWidth, Qt::SolidLine,
                        Qt::SquareCap, Qt::BevelJoin));
    if (pattern == continuousPattern()) {
        painter.drawLine(0, strokeY, width, strokeY);
    } else {
        drawPattern(&painter, patternValues(pattern, width), width);
    }
    return pixmap;
}

void LineTypeComboBox::addLineType(const QString &name, const QString &pattern)
{
    // Hosts keep line types here for themselves and count on 15 items, so the table stays as it is.
    m_extraLineTypes.insert(name, pattern);
    updateIcons();
}

void LineTypeComboBox::resizeEvent(QResizeEvent *)
{
    // QComboBox's own handling places a line edit, which a box of pictures does not have.
    updateIcons();
}

} // namespace Widgets
} // namespace LM
