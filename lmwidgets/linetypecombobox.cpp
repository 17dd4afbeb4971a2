#include <lmwidgets/linetypecombobox.h>

#include <QCache>
#include <QCoreApplication>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPen>
#include <QScopedValueRollback>
#include <QStandardItemModel>
#include <QStringRef>
#include <QStyleOptionComboBox>
#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <climits>
#include <cstddef>
#include <memory>
#include <utility>

namespace LM {
namespace Widgets {

namespace {

constexpr int pictureHeight = 31;
constexpr qreal strokeWidth = 2.0;
constexpr int dotSize = 1;
constexpr int dotOffset = 1; // from the position in the pattern to the dot, in px
constexpr int dotAdvance = 3;
constexpr int dotExtent = 3; // the dot with the stroke around it
constexpr int cachedBytes = 8 * 1024 * 1024;
constexpr int itemBytes = 1024;    // about what an item takes beside its picture
constexpr int emptyBoxLetters = 7; // the room that QComboBox keeps while it has no items
constexpr int iconMargin = 4;      // and what it keeps beside an icon, in px

QString continuousPattern()
{
    return QStringLiteral("CONTINUOUS");
}

/**
 * Returns the number that @p part is, 0 if it is none. QStringRef::toInt() decides, but takes most
 * of the time that a picture needs; the plain short numbers of line types are read here.
 */
int patternValue(const QStringRef &part)
{
    constexpr int longestPlainNumber = 9; // digits that an int holds in any case
    const bool negative = part.startsWith(QLatin1Char('-'));
    const int first = negative ? 1 : 0;
    if (part.size() == first || part.size() - first > longestPlainNumber) {
        return part.toInt();
    }
    int value = 0;
    for (int i = first; i < part.size(); ++i) {
        const ushort character = part.at(i).unicode();
        if (character < '0' || character > '9') {
            return part.toInt();
        }
        value = value * 10 + (character - '0');
    }
    return negative ? -value : value;
}

/**
 * Returns the numbers of @p pattern, at most @p limit of them. Every number takes the stroke on by
 * 1 px or more, so a picture never needs more numbers than it has columns, however long the text
 * is.
 */
QVarLengthArray<int, 32> patternValues(const QString &pattern, int limit)
{
    QVarLengthArray<int, 32> values;
    int start = 0;
    while (values.size() < limit) {
        const int comma = pattern.indexOf(QLatin1Char(','), start);
        const int end = comma < 0 ? pattern.size() : comma;
        values.append(patternValue(pattern.midRef(start, end - start)));
        if (comma < 0) {
            break;
        }
        start = comma + 1;
    }
    return values;
}

/**
 * Returns the width that @p box would ask for if it had no items. The pictures are as wide as the
 * box: a hint that made room for them would grow with every layout pass, and the window with it.
 */
int widthWithoutPictures(const QComboBox *box, const QStyleOptionComboBox &option, bool minimum)
{
    const QFontMetrics metrics = box->fontMetrics();
    const QComboBox::SizeAdjustPolicy policy = box->sizeAdjustPolicy();
    const int letters = box->minimumContentsLength();
    const bool adjustsToContents =
        policy == QComboBox::AdjustToContents || policy == QComboBox::AdjustToContentsOnFirstShow;
    int contents = QSize().width(); // what QComboBox begins with
    if (adjustsToContents && (!minimum || letters == 0)) {
        contents = emptyBoxLetters * metrics.horizontalAdvance(QLatin1Char('x'));
    }
    if (letters > 0) {
        const bool withIcon = policy == QComboBox::AdjustToMinimumContentsLengthWithIcon;
        const int icon =
            withIcon
                ? box->style()->pixelMetric(QStyle::PM_SmallIconSize, &option, box) + iconMargin
                : 0;
        contents = qMax(contents, letters * metrics.horizontalAdvance(QLatin1Char('X')) + icon);
    }
    const QSize size(contents, metrics.height());
    return box->style()->sizeFromContents(QStyle::CT_ComboBox, &option, size, box).width();
}

/** The pixels of a dot, row by row. */
using Dot = std::array<std::array<QRgb, dotExtent>, dotExtent>;

/**
 * Returns a dot as a painter draws it with the pen of the strokes: a disc of 1 px and the stroke
 * around it, 3 px wide and high in all. The dot is the same at every place, so one serves for all.
 */
Dot paintedDot()
{
    QImage image(dotExtent, dotExtent, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QBrush(Qt::white, Qt::SolidPattern), strokeWidth, Qt::SolidLine,
                        Qt::SquareCap, Qt::BevelJoin));
    painter.setBrush(QBrush(Qt::white, Qt::SolidPattern));
    painter.drawEllipse(dotOffset, dotOffset, dotSize, dotSize);
    painter.end();

    Dot dot = {};
    for (std::size_t y = 0; y < dot.size(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(static_cast<int>(y)));
        std::copy(row, row + dotExtent, dot[y].begin());
    }
    return dot;
}

/**
 * The rows 13 to 15 of a picture, all that a line type can colour. The stroke lies along whole
 * pixels, so a dash fills them without any blending, and its square ends stick out by half the
 * stroke. That is a great deal cheaper than to stroke a path for each dash, and reaches further: a
 * painter stops after 32767 px.
 */
class StripPainter
{
public:
    explicit StripPainter(QImage *strip) : m_width(strip->width())
    {
        for (std::size_t row = 0; row < m_rows.size(); ++row) {
            m_rows[row] = reinterpret_cast<QRgb *>(strip->scanLine(dotTop + static_cast<int>(row)));
        }
    }

    /** Draws a dash from @p start, which lies within the picture, to @p end, which may not. */
    void drawDash(qint64 start, qint64 end)
    {
        const qint64 left = qMax<qint64>(start - capLength, 0);
        const qint64 right = qMin<qint64>(end + capLength, m_width);
        std::fill(m_rows[1] + left, m_rows[1] + right, opaqueWhite);
        std::fill(m_rows[2] + left, m_rows[2] + right, opaqueWhite);
    }

    /** Draws a dot at the position @p x of the pattern; dashes that touch it stay in front. */
    void drawDot(qint64 x)
    {
        static const Dot dot = paintedDot();
        const auto columns = static_cast<std::size_t>(qMin<qint64>(dotExtent, m_width - x));
        for (std::size_t y = 0; y < dot.size(); ++y) {
            QRgb *target = m_rows[y] + x;
            for (std::size_t column = 0; column < columns; ++column) {
                // White with its opacity in every channel: the larger number is more opaque.
                target[column] = qMax(target[column], dot[y][column]);
            }
        }
    }

private:
    static constexpr QRgb opaqueWhite = 0xffffffff;
    static constexpr int capLength = 1;
    static constexpr int dotTop = 13;

    int m_width;
    std::array<QRgb *, dotExtent> m_rows = {};
};

/** Draws @p pattern over and over from the left end up to @p width, which is positive. */
void drawPattern(StripPainter *painter, const QString &pattern, int width)
{
    const auto values = patternValues(pattern, width);
    // The numbers may be as large as an int can be, so the position needs more room than that.
    qint64 x = 0;
    int i = 0;
    while (x < width) {
        const qint64 value = values.at(i);
        if (value > 0) {
            painter->drawDash(x, x + value);
            x += value;
        } else if (value == 0) {
            painter->drawDot(x);
            x += dotAdvance;
        } else {
            x -= value;
        }
        i = i + 1 == values.size() ? 0 : i + 1;
    }
}

/** What the items of a line type have in common in all boxes of one width. */
struct Item
{
    QStandardItem prototype;
    QSize pictureSize;
};

struct ItemKey
{
    QString name;
    QString pattern;
    int width;
};

bool operator==(const ItemKey &a, const ItemKey &b)
{
    return a.width == b.width && a.name == b.name && a.pattern == b.pattern;
}

uint qHash(const ItemKey &key, uint seed = 0)
{
    // One after the other: where name and pattern are equal, their hashes would cancel out.
    return ::qHash(key.width, ::qHash(key.pattern, ::qHash(key.name, seed)));
}

/**
 * Returns the items used last. The boxes in the rows of a table all have one width and share their
 * pictures this way, and a panel that is folded and unfolded finds its former ones again.
 */
QCache<ItemKey, Item> &cachedItems()
{
    static QCache<ItemKey, Item> cache(cachedBytes);
    static bool clearedAtExit = false;
    if (!clearedAtExit) {
        // No picture may outlive the application that it was made for.
        clearedAtExit = true;
        qAddPostRoutine([] {
            cache.clear();
            clearedAtExit = false;
        });
    }
    return cache;
}

/**
 * Appends a copy of @p prototype to @p box. In a model of its own the box would build the same item
 * bit by bit; the copy shares what is in it. QComboBox adds to the top level of such a model even
 * if it shows the rows below another item, and would never find its items again.
 */
void append(QComboBox *box, const QStandardItem &prototype)
{
    auto *model = qobject_cast<QStandardItemModel *>(box->model());
    if (model && box->count() < box->maxCount()) {
        const QModelIndex root = box->rootModelIndex();
        auto *parent = root.isValid() ? model->itemFromIndex(root) : model->invisibleRootItem();
        parent->appendRow(prototype.clone());
        return;
    }
    box->addItem(qvariant_cast<QIcon>(prototype.data(Qt::DecorationRole)), QString(),
                 prototype.data(Qt::UserRole));
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
    const unsigned int rebuild = ++m_rebuilds;
    {
        const QScopedValueRollback<int> running(m_rebuildsRunning, m_rebuildsRunning + 1);
        refill(rebuild);
        // A host that is told may as well clear the box or add an item. The items are made once
        // more then, but not again and again: a slot that always does so would never end.
        if (rebuild == m_rebuilds && count() != qMin(m_lineTypes.size(), maxCount())) {
            refill(rebuild);
        }
    }
    if (rebuild == m_rebuilds) {
        setCurrentIndex(qMax(m_rememberedIndex, 0));
    }
}

void LineTypeComboBox::refill(unsigned int rebuild)
{
    const int pictureWidth = width();
    const auto lineTypes = m_lineTypes;
    clear();
    for (const auto &lineType : lineTypes) {
        if (rebuild != m_rebuilds) {
            return;
        }
        const QSize pictureSize = appendItem(lineType.first, lineType.second, pictureWidth);
        if (rebuild == m_rebuilds) {
            setIconSize(pictureSize);
        }
    }
}

QSize LineTypeComboBox::appendItem(const QString &name, const QString &pattern, int width)
{
    const ItemKey key = {name, pattern, width};
    if (const Item *cached = cachedItems().object(key)) {
        // A slot that is called on the way may let the cached item go.
        const QSize pictureSize = cached->pictureSize;
        append(this, cached->prototype);
        return pictureSize;
    }
    const QPixmap picture = generateLinePixmap(pattern, width);
    QIcon icon;
    icon.addPixmap(picture, QIcon::Normal, QIcon::Off);
    auto item = std::make_unique<Item>();
    item->pictureSize = picture.size();
    item->prototype.setText(QString());
    if (!icon.isNull()) {
        item->prototype.setData(icon, Qt::DecorationRole);
    }
    item->prototype.setData(name, Qt::UserRole);
    append(this, item->prototype);

    const qint64 bytes =
        itemBytes + qint64(picture.width()) * picture.height() * qint64(sizeof(QRgb));
    cachedItems().insert(key, item.release(), static_cast<int>(qMin<qint64>(bytes, INT_MAX)));
    return picture.size();
}

QPixmap LineTypeComboBox::generateLinePixmap(const QString &pattern, int width)
{
    if (width <= 0) {
        return QPixmap();
    }
    QImage strip(width, pictureHeight, QImage::Format_ARGB32_Premultiplied);
    if (strip.isNull()) {
        return QPixmap();
    }
    strip.fill(0U);
    StripPainter painter(&strip);
    if (pattern == continuousPattern()) {
        painter.drawDash(0, width);
    } else {
        drawPattern(&painter, pattern, width);
    }
    return QPixmap::fromImage(std::move(strip), Qt::NoFormatConversion);
}

void LineTypeComboBox::addLineType(const QString &name, const QString &pattern)
{
    // Hosts keep line types here for themselves and count on 15 items, so the table stays as it is.
    m_extraLineTypes.insert(name, pattern);
    updateIcons();
}

QSize LineTypeComboBox::sizeHint() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return QSize(widthWithoutPictures(this, option, false), QComboBox::sizeHint().height());
}

QSize LineTypeComboBox::minimumSizeHint() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return QSize(widthWithoutPictures(this, option, true), QComboBox::minimumSizeHint().height());
}

void LineTypeComboBox::resizeEvent(QResizeEvent *)
{
    // QComboBox's own handling places a line edit, which a box of pictures does not have.
    updateIcons();
}

} // namespace Widgets
} // namespace LM
