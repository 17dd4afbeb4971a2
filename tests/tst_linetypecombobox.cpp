#include "lmtest.h"

#include <lmwidgets/linetypecombobox.h>

#include <QHBoxLayout>
#include <QImage>
#include <QPainter>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QStringListModel>

#include <limits>

using LM::Widgets::LineTypeComboBox;

namespace {

const int pictureHeight = 31;

/** The line types in the order of the items. */
const struct
{
    const char *name;
    const char *pattern;
} builtInLineTypes[] = {
    {"CONTINUOUS", "CONTINUOUS"},
    {"ACAD_ISO02W100", "12,-3"},
    {"ACAD_ISO03W100", "12,-18"},
    {"ACAD_ISO04W100", "24,-3,0,-3"},
    {"ACAD_ISO05W100", "24,-3,0,-3,0,-3"},
    {"ACAD_ISO06W100", "24,-3,0,-3,0,-3,0,-3"},
    {"ACAD_ISO07W100", "0,-3"},
    {"ACAD_ISO08W100", "24,-3,6,-3"},
    {"ACAD_ISO09W100", "24,-3,6,-3,6,-3"},
    {"ACAD_ISO10W100", "12,-3,0,-3"},
    {"ACAD_ISO11W100", "12,-3,12,-3,0,-3"},
    {"ACAD_ISO12W100", "12,-3,0,-3,0,-3"},
    {"ACAD_ISO13W100", "12,-3,12,-3,0,-3,0,-3"},
    {"ACAD_ISO14W100", "12,-3,0,-3,0,-3,0,-3"},
    {"ACAD_ISO15W100", "12,-3,12,-3,0,-3,0,-3,0,-3"},
};
const int lineTypeCount = int(sizeof builtInLineTypes / sizeof builtInLineTypes[0]);
static_assert(lineTypeCount == 15, "the number of line types that hosts count on");

/** A combo box whose resizes arrive at once, also while it is not shown. */
class ResizedBox : public LineTypeComboBox
{
public:
    using LineTypeComboBox::LineTypeComboBox;
    using LineTypeComboBox::resizeEvent;

    void resizeNow(int width)
    {
        setAttribute(Qt::WA_PendingResizeEvent, false);
        const QSize old = size();
        resize(width, pictureHeight);
        setAttribute(Qt::WA_PendingResizeEvent, false);
        QResizeEvent event(size(), old);
        QApplication::sendEvent(this, &event);
    }
};

QImage picture(const QString &pattern, int width)
{
    LineTypeComboBox box;
    const QPixmap pixmap = box.generateLinePixmap(pattern, width);
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/** The alpha values of the row @p y, a character per column: '#' full, '+' partly, '.' nothing. */
QByteArray row(const QImage &image, int y)
{
    QByteArray text;
    for (int x = 0; x < image.width(); ++x) {
        const int alpha = qAlpha(image.pixel(x, y));
        text += alpha > 200 ? '#' : alpha == 0 ? '.' : '+';
    }
    return text;
}

/** What a stroke that is 2 px wide with square ends covers in row 14 and 15, dashes only. */
QByteArray dashRow(const QVector<QPair<int, int>> &dashes, int width)
{
    QByteArray text(width, '.');
    for (const auto &dash : dashes) {
        for (int x = dash.first - 1; x < dash.second + 1; ++x) {
            if (x >= 0 && x < width) {
                text[x] = '#';
            }
        }
    }
    return text;
}

/** One stroke or dot of a pattern; a dot has its end at its start. */
struct Mark
{
    double start;
    double end;
    bool dot;
};

/** The marks of @p numbers up to @p width, kept simple: no limit of a number type matters here. */
QVector<Mark> marksOf(const QVector<double> &numbers, int width)
{
    QVector<Mark> marks;
    double x = 0;
    for (int i = 0; x < width; i = i + 1 == numbers.size() ? 0 : i + 1) {
        const double number = numbers.at(i);
        if (number > 0) {
            marks.append({x, qMin(x + number, double(width)), false});
            x += number;
        } else if (number < 0) {
            x -= number;
        } else {
            marks.append({x + 1, x + 1, true});
            x += 3;
        }
    }
    return marks;
}

/** The picture of @p marks, painted mark by mark. */
QImage paintedMarks(const QVector<Mark> &marks, int width)
{
    QImage image(width, pictureHeight, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.setBrush(Qt::white);
    for (const Mark &mark : marks) {
        if (mark.dot) {
            painter.drawEllipse(QRectF(mark.start, 14, 1, 1));
        } else {
            painter.drawLine(QPointF(mark.start, 15), QPointF(mark.end, 15));
        }
    }
    return image;
}

QStringList builtInNames()
{
    QStringList names;
    for (const auto &lineType : builtInLineTypes) {
        names += QString::fromLatin1(lineType.name);
    }
    return names;
}

QStringList namesOf(const QComboBox &box)
{
    QStringList names;
    for (int i = 0; i < box.count(); ++i) {
        names += box.itemData(i).toString();
    }
    return names;
}

/** Tells the pixmap of the item @p index from all others; copies of one pixmap have the same. */
qint64 pixmapKey(const QComboBox &box, int index)
{
    return box.itemIcon(index).pixmap(box.iconSize()).cacheKey();
}

/** The largest difference of a channel between two pictures of one size. */
int largestDifference(const QImage &a, const QImage &b)
{
    int largest = a.size() == b.size() ? 0 : 256;
    for (int y = 0; largest < 256 && y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            largest = qMax(largest, qAbs(qAlpha(p) - qAlpha(q)));
            largest = qMax(largest, qAbs(qRed(p) - qRed(q)));
        }
    }
    return largest;
}

} // namespace

class tst_LineTypeComboBox : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void noItemsBeforeResize();
    void itemsAfterResize();
    void resizeKeepsCurrent();
    void resizeSelectsFirst();
    void dashes();
    void dashesClipped();
    void dots();
    void emptyPattern();
    void dotsEveryThree();
    void addedLineTypeIsNoItem();
    void addedLineTypeRebuilds();
    void everyShowResizes();
    void signalsOfRebuild();
    void signalsOfRebuildAtFirst();
    void indexOfHostItem();
    void hostItemsGo();
    void populateAddsNoItems();
    void findByName();
    void iconSize();
    void widthZero();
    void resizedWithinSignal();
    void selectionChangedWithinSignal();
    void itemsChangedWithinSignal();
    void alwaysClearedWithinSignal();
    void continuous();
    void continuousIsExact();
    void wholePicture_data();
    void wholePicture();
    void oddPatterns_data();
    void oddPatterns();
    void sumsPastInt();
    void neverEndless_data();
    void neverEndless();
    void manyParts();
    void randomPatterns();
    void builtInPictures();
    void sameAgain();
    void picturesAreIndependent();
    void widePicture();
    void hintIgnoresPictures();
    void hintAsWithoutItems_data();
    void hintAsWithoutItems();
    void boxesShareThePicturesAlone();
    void oldPicturesAreLetGo();
    void picturesDroppedWithinSignal();
    void noMoreItemsThanAllowed();
    void foreignModel();
    void itemsBelowRoot();
    void modelWithoutRoom();
    void windowDoesNotGrow();
    void keysAndWheel();
    void paintsCurrentPicture();
    void constructedWithParent();
};

void tst_LineTypeComboBox::noItemsBeforeResize()
{
    LineTypeComboBox box;
    QCOMPARE(box.count(), 0);
    QCOMPARE(box.currentIndex(), -1);
    QVERIFY(!box.currentData().isValid());
    QVERIFY(!box.isEditable());
}

void tst_LineTypeComboBox::itemsAfterResize()
{
    ResizedBox box;
    box.resizeNow(200);
    QCOMPARE(box.count(), lineTypeCount);
    for (int i = 0; i < lineTypeCount; ++i) {
        QCOMPARE(box.itemText(i), QString());
        QCOMPARE(box.itemData(i).type(), QVariant::String);
        QCOMPARE(box.itemData(i).toString(), QString::fromLatin1(builtInLineTypes[i].name));
        const QIcon icon = box.itemIcon(i);
        QCOMPARE(icon.availableSizes(QIcon::Normal, QIcon::Off), QList<QSize>({QSize(200, 31)}));
        const QImage shown = icon.pixmap(QSize(200, 31))
                                 .toImage()
                                 .convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QCOMPARE(shown, picture(QString::fromLatin1(builtInLineTypes[i].pattern), 200));
    }
}

void tst_LineTypeComboBox::resizeKeepsCurrent()
{
    ResizedBox box;
    box.resizeNow(200);
    for (int index : {5, 0, 14}) {
        box.setCurrentIndex(index);
        box.resizeNow(200 + index);
        QCOMPARE(box.currentIndex(), index);
        QCOMPARE(box.currentData().toString(), QString::fromLatin1(builtInLineTypes[index].name));
        QCOMPARE(box.count(), 15);
    }
}

void tst_LineTypeComboBox::resizeSelectsFirst()
{
    ResizedBox box;
    box.resizeNow(200);
    QCOMPARE(box.currentIndex(), 0);
    box.setCurrentIndex(-1);
    QCOMPARE(box.currentIndex(), -1);
    box.resizeNow(210);
    QCOMPARE(box.currentIndex(), 0);
}

// The stroke is 2 px wide and its ends stick out by half of that, so a dash from 0 to 12 colours
// the columns 0 to 12 and one from 15 to 27 the columns 14 to 27, in the rows 14 and 15.
void tst_LineTypeComboBox::dashes()
{
    const QImage image = picture(QStringLiteral("12,-3"), 30);
    QCOMPARE(image.size(), QSize(30, 31));
    const QByteArray expected = dashRow({{0, 12}, {15, 27}}, 30);
    QCOMPARE(expected, QByteArray("#############.##############.."));
    QCOMPARE(row(image, 14), expected);
    QCOMPARE(row(image, 15), expected);
    QCOMPARE(row(image, 13), QByteArray(30, '.'));
    QCOMPARE(row(image, 16), QByteArray(30, '.'));
    QCOMPARE(image.pixel(5, 15), qRgba(255, 255, 255, 255));
}

void tst_LineTypeComboBox::dashesClipped()
{
    const QByteArray twenty = dashRow({{0, 12}, {15, 20}}, 20);
    QCOMPARE(row(picture(QStringLiteral("12,-3"), 20), 15), twenty);
    // At 15 the next dash would start where the picture ends: it is not drawn, nor its end piece.
    QCOMPARE(row(picture(QStringLiteral("12,-3"), 15), 15), QByteArray("#############.."));
    QCOMPARE(row(picture(QStringLiteral("12,-3"), 16), 15), QByteArray("#############.##"));
    QCOMPARE(row(picture(QStringLiteral("12,-3"), 12), 15), QByteArray(12, '#'));
    QCOMPARE(row(picture(QStringLiteral("12,-3"), 13), 15), QByteArray(13, '#'));
    QCOMPARE(row(picture(QStringLiteral("12,-3"), 14), 15), QByteArray("#############."));
    QCOMPARE(row(picture(QStringLiteral("12,-3"), 1), 15), QByteArray("#"));
    // Clipped, but x moves by the whole dash: the gap of this pattern is never reached.
    QCOMPARE(row(picture(QStringLiteral("100,-3"), 40), 15), QByteArray(40, '#'));
}

// A dot is 3 px wide: 1 px with the stroke around it. Its middle is 1.5 px right of the position.
void tst_LineTypeComboBox::dots()
{
    const QImage image = picture(QStringLiteral("0,-3"), 20);
    QCOMPARE(row(image, 14), QByteArray("###...###...###...##"));
    QCOMPARE(row(image, 13), QByteArray("+#+...+#+...+#+...+#"));
    QCOMPARE(row(image, 15), QByteArray("+#+...+#+...+#+...+#"));
    QCOMPARE(row(image, 12), QByteArray(20, '.'));
    QCOMPARE(row(image, 16), QByteArray(20, '.'));
}

void tst_LineTypeComboBox::emptyPattern()
{
    const QImage image = picture(QString(), 12);
    QCOMPARE(image.size(), QSize(12, 31));
    QCOMPARE(row(image, 14), QByteArray(12, '#'));
    QCOMPARE(row(image, 13), QByteArray("+#++#++#++#+"));
    QCOMPARE(image, picture(QStringLiteral(""), 12));
    QCOMPARE(image, picture(QStringLiteral("0"), 12));
}

void tst_LineTypeComboBox::dotsEveryThree()
{
    // Four dots, a gap of 1, four dots ...
    const QImage image = picture(QStringLiteral("0,,x,0,-1"), 16);
    QCOMPARE(row(image, 13), QByteArray("+#++#++#++#+.+#+"));
}

void tst_LineTypeComboBox::addedLineTypeIsNoItem()
{
    ResizedBox box;
    box.resizeNow(200);
    box.addLineType(QStringLiteral("HIDDEN"), QStringLiteral("6,-3"));
    QCOMPARE(box.count(), 15);
    QCOMPARE(box.findData(QStringLiteral("HIDDEN")), -1);
    box.addLineType(QStringLiteral("CONTINUOUS"), QStringLiteral("1,-1"));
    QCOMPARE(box.count(), 15);
    box.addLineType(QString(), QString());
    box.resizeNow(220);
    QCOMPARE(box.count(), 15);
    const QImage first = box.itemIcon(0).pixmap(QSize(220, 31)).toImage();
    QCOMPARE(row(first, 15), QByteArray(220, '#'));
}

void tst_LineTypeComboBox::addedLineTypeRebuilds()
{
    LineTypeComboBox box;
    box.resize(77, 31);
    QCOMPARE(box.count(), 0);
    box.addLineType(QStringLiteral("HIDDEN"), QStringLiteral("6,-3"));
    QCOMPARE(box.count(), 15);
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(box.iconSize(), QSize(77, 31));

    box.setCurrentIndex(3);
    QSignalSpy spy(&box, QOverload<int>::of(&QComboBox::currentIndexChanged));
    box.addLineType(QStringLiteral("HIDDEN"), QStringLiteral("6,-6"));
    QCOMPARE(spy.count(), 3);
    QCOMPARE(box.currentIndex(), 3);
}

void tst_LineTypeComboBox::everyShowResizes()
{
    LineTypeComboBox box;
    box.resize(150, 40);
    QCOMPARE(box.count(), 0);
    box.show();
    QCOMPARE(box.count(), 15);
    QCOMPARE(box.iconSize(), QSize(box.width(), 31));
    box.resize(180, 40);
    QCOMPARE(box.iconSize(), QSize(180, 31));
    QCOMPARE(box.itemIcon(4).availableSizes(), QList<QSize>({QSize(180, 31)}));
}

void tst_LineTypeComboBox::signalsOfRebuild()
{
    ResizedBox box;
    box.resizeNow(100);
    box.setCurrentIndex(5);
    QStringList heard;
    connect(&box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [&](int index) {
        heard += QStringLiteral("%1 of %2 %3")
                     .arg(index)
                     .arg(box.count())
                     .arg(box.currentData().toString());
    });
    connect(box.model(), &QAbstractItemModel::rowsInserted, this,
            [&](const QModelIndex &, int first, int last) {
                heard += QStringLiteral("+%1-%2").arg(first).arg(last);
            });
    connect(box.model(), &QAbstractItemModel::rowsRemoved, this,
            [&](const QModelIndex &, int first, int last) {
                heard += QStringLiteral("-%1-%2").arg(first).arg(last);
            });
    QSignalSpy activated(&box, QOverload<int>::of(&QComboBox::activated));
    box.resizeNow(101);

    QStringList expected{QStringLiteral("-1 of 0 "), QStringLiteral("-0-14"),
                         QStringLiteral("0 of 1 CONTINUOUS"), QStringLiteral("+0-0")};
    for (int i = 1; i < lineTypeCount; ++i) {
        expected += QStringLiteral("+%1-%1").arg(i);
    }
    expected += QStringLiteral("5 of 15 ACAD_ISO06W100");
    QCOMPARE(heard, expected);
    QCOMPARE(activated.count(), 0);

    box.setCurrentIndex(0);
    QSignalSpy spy(&box, QOverload<int>::of(&QComboBox::currentIndexChanged));
    box.resizeNow(102);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(0).at(0).toInt(), -1);
    QCOMPARE(spy.at(1).at(0).toInt(), 0);
}

void tst_LineTypeComboBox::signalsOfRebuildAtFirst()
{
    ResizedBox box;
    QSignalSpy spy(&box, QOverload<int>::of(&QComboBox::currentIndexChanged));
    box.resizeNow(100);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), 0);
}

// An index past the built-in items cannot be selected again; the box then has no selection, and the
// next rebuild begins with the first item.
void tst_LineTypeComboBox::indexOfHostItem()
{
    ResizedBox box;
    box.resizeNow(100);
    box.addItem(QStringLiteral("one more"));
    box.setCurrentIndex(15);
    box.resizeNow(101);
    QCOMPARE(box.count(), 15);
    QCOMPARE(box.currentIndex(), -1);
    box.resizeNow(102);
    QCOMPARE(box.currentIndex(), 0);
}

void tst_LineTypeComboBox::hostItemsGo()
{
    ResizedBox box;
    box.addItem(QStringLiteral("before"));
    box.resizeNow(100);
    QCOMPARE(box.count(), 15);
    QCOMPARE(box.findText(QStringLiteral("before")), -1);
    box.clear();
    box.updateIcons();
    QCOMPARE(box.count(), 15);
}

void tst_LineTypeComboBox::populateAddsNoItems()
{
    ResizedBox box;
    box.populateComboBox();
    QCOMPARE(box.count(), 0);
    box.updateIcons();
    QCOMPARE(box.count(), 15);
    QSignalSpy spy(&box, QOverload<int>::of(&QComboBox::currentIndexChanged));
    box.populateComboBox();
    box.populateComboBox();
    QCOMPARE(box.count(), 15);
    QCOMPARE(spy.count(), 0);
    box.updateIcons();
    QCOMPARE(box.count(), 15);
}

void tst_LineTypeComboBox::findByName()
{
    ResizedBox box;
    box.resizeNow(100);
    for (int i = 0; i < lineTypeCount; ++i) {
        QCOMPARE(box.findData(QString::fromLatin1(builtInLineTypes[i].name)), i);
    }
    QCOMPARE(box.findData(QStringLiteral("ACAD_ISO01W100")), -1);
}

void tst_LineTypeComboBox::iconSize()
{
    ResizedBox box;
    for (int width : {1, 2, 31, 200, 1000}) {
        box.resizeNow(width);
        QCOMPARE(box.width(), width);
        QCOMPARE(box.iconSize(), QSize(width, 31));
    }
}

void tst_LineTypeComboBox::widthZero()
{
    LineTypeComboBox box;
    for (int width : {0, -1, -200, std::numeric_limits<int>::min()}) {
        QVERIFY(box.generateLinePixmap(QStringLiteral("12,-3"), width).isNull());
        QVERIFY(box.generateLinePixmap(QStringLiteral("CONTINUOUS"), width).isNull());
        QVERIFY(box.generateLinePixmap(QString(), width).isNull());
    }
    ResizedBox narrow;
    narrow.resizeNow(0);
    QCOMPARE(narrow.width(), 0);
    QCOMPARE(narrow.count(), 15);
    QCOMPARE(narrow.currentIndex(), 0);
    QVERIFY(narrow.itemIcon(0).isNull());
    QCOMPARE(narrow.itemData(14).toString(), QStringLiteral("ACAD_ISO15W100"));
}

// A host that lays its window out anew in a slot resizes the box while the items are being made.
void tst_LineTypeComboBox::resizedWithinSignal()
{
    for (int trigger : {-1, 0, 5}) {
        ResizedBox box;
        box.resizeNow(100);
        box.setCurrentIndex(5);
        bool resized = false;
        connect(&box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [&](int index) {
            if (index == trigger && !resized) {
                resized = true;
                box.resizeNow(140);
            }
        });
        box.resizeNow(120);
        QVERIFY(resized);
        QCOMPARE(box.count(), 15);
        QCOMPARE(box.currentIndex(), 5);
        QCOMPARE(box.iconSize(), QSize(140, 31));
        for (int i = 0; i < lineTypeCount; ++i) {
            QCOMPARE(box.itemData(i).toString(), QString::fromLatin1(builtInLineTypes[i].name));
        }
        box.disconnect();
        // The next rebuild is an ordinary one again.
        box.setCurrentIndex(7);
        box.resizeNow(90);
        QCOMPARE(box.currentIndex(), 7);
    }
}

void tst_LineTypeComboBox::selectionChangedWithinSignal()
{
    ResizedBox box;
    box.resizeNow(100);
    box.setCurrentIndex(5);
    connect(&box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [&](int index) {
        if (index == 0) {
            box.populateComboBox();
            box.setCurrentIndex(-1);
        }
    });
    box.resizeNow(120);
    QCOMPARE(namesOf(box), builtInNames());
    QCOMPARE(box.currentIndex(), 5);
}

// A slot that takes the items away or adds some of its own does so once; the box makes them anew.
void tst_LineTypeComboBox::itemsChangedWithinSignal()
{
    for (bool clears : {true, false}) {
        for (int trigger : {-1, 0}) {
            ResizedBox box;
            box.resizeNow(100);
            box.setCurrentIndex(5);
            bool changed = false;
            connect(&box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                    [&](int index) {
                        if (index == trigger && !changed) {
                            changed = true;
                            clears ? box.clear() : box.addItem(QStringLiteral("one more"));
                        }
                    });
            box.resizeNow(140);
            QVERIFY(changed);
            QCOMPARE(namesOf(box), builtInNames());
            QCOMPARE(box.currentIndex(), 5);
            QCOMPARE(box.iconSize(), QSize(140, 31));
        }
    }
}

// The box does not fight with a slot that never gives up, and recovers when it is gone.
void tst_LineTypeComboBox::alwaysClearedWithinSignal()
{
    ResizedBox box;
    box.resizeNow(100);
    box.setCurrentIndex(5);
    const auto connection =
        connect(&box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [&](int index) {
            if (index == 0) {
                box.clear();
            }
        });
    box.resizeNow(140);
    QCOMPARE(box.count(), 0);
    QCOMPARE(box.currentIndex(), -1);
    disconnect(connection);
    box.resizeNow(160);
    QCOMPARE(namesOf(box), builtInNames());
    QCOMPARE(box.currentIndex(), 0);
}

void tst_LineTypeComboBox::continuous()
{
    const QImage image = picture(QStringLiteral("CONTINUOUS"), 50);
    for (int y = 0; y < pictureHeight; ++y) {
        QCOMPARE(row(image, y), QByteArray(50, y == 14 || y == 15 ? '#' : '.'));
    }
    QCOMPARE(row(picture(QStringLiteral("CONTINUOUS"), 1), 15), QByteArray("#"));
}

void tst_LineTypeComboBox::continuousIsExact()
{
    const QImage dotted = picture(QStringLiteral("0"), 50);
    for (const char *text :
         {"continuous", "Continuous", " CONTINUOUS", "CONTINUOUS ", "CONTINUOU"}) {
        QCOMPARE(picture(QString::fromLatin1(text), 50), dotted);
    }
    QCOMPARE(picture(QStringLiteral("CONTINUOUS,"), 50), dotted);
}

void tst_LineTypeComboBox::wholePicture_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<int>("width");
    QTest::addColumn<QByteArray>("row14");

    QTest::newRow("dash, dot") << "6,-3,0,-3" << 30 << QByteArray("#######..###..########..###...");
    QTest::newRow("dash alone") << "5" << 12 << QByteArray(12, '#');
    QTest::newRow("gap first") << "-4,4" << 14 << QByteArray("...######..###");
    QTest::newRow("gaps in a row") << "4,-2,-3" << 16 << QByteArray("#####...######..");
    QTest::newRow("gap only") << "-5" << 12 << QByteArray(12, '.');
    QTest::newRow("gaps only") << "-1,-1,-2" << 12 << QByteArray(12, '.');
    QTest::newRow("dash of one") << "1,-5" << 14 << QByteArray("##...###...###");
    QTest::newRow("dot at the end") << "-9,0" << 10 << QByteArray(".........#");
    QTest::newRow("dot past the end") << "-9,0" << 9 << QByteArray(".........");
}

void tst_LineTypeComboBox::wholePicture()
{
    QFETCH(QString, pattern);
    QFETCH(int, width);
    QFETCH(QByteArray, row14);
    const QImage image = picture(pattern, width);
    QCOMPARE(row(image, 14), row14);
    for (int y : {0, 11, 12, 17, 30}) {
        QCOMPARE(row(image, y), QByteArray(width, '.'));
    }
}

void tst_LineTypeComboBox::oddPatterns_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("same");

    QTest::newRow("minus zero is a dot") << "-0,-3"
                                         << "0,-3";
    QTest::newRow("fraction is a dot") << "1.5,-3"
                                       << "0,-3";
    QTest::newRow("word is a dot") << "abc,-3"
                                   << "0,-3";
    QTest::newRow("semicolons are a dot") << "12;-3"
                                          << "0";
    QTest::newRow("empty parts are dots") << ",-3,"
                                          << "0,-3,0";
    QTest::newRow("comma alone") << ","
                                 << "0";
    QTest::newRow("hex is a dot") << "0x10,-3"
                                  << "0,-3";
    QTest::newRow("leading zero is decimal") << "010,-3"
                                             << "10,-3";
    QTest::newRow("plus sign") << "+12,-3"
                               << "12,-3";
    QTest::newRow("past int is a dot") << "2147483648,-3"
                                       << "0,-3";
    QTest::newRow("below int is a dot") << "-2147483649,12"
                                        << "0,12";
    QTest::newRow("huge is a dot")
        << QString(400, QLatin1Char('9')) + QStringLiteral(",-3") << "0,-3";
    QTest::newRow("largest dash") << "2147483647"
                                  << "5000";
    QTest::newRow("largest gap") << "-2147483648,0"
                                 << "-5000";
    QTest::newRow("dash after largest gap") << "6,-2147483648,6"
                                            << "6,-5000";
    QTest::newRow("null character") << QString(QChar(0)) + QStringLiteral(",-3") << "0,-3";
    QTest::newRow("arabic digits") << QString(QChar(0x0661)) + QStringLiteral(",-3") << "0,-3";
}

void tst_LineTypeComboBox::oddPatterns()
{
    QFETCH(QString, pattern);
    QFETCH(QString, same);
    QCOMPARE(picture(pattern, 150), picture(same, 150));
}

void tst_LineTypeComboBox::sumsPastInt()
{
    // Both numbers fit into an int, their sum does not.
    QCOMPARE(picture(QStringLiteral("-2147483647,-2147483647,9"), 60),
             picture(QStringLiteral("-1"), 60));
    QCOMPARE(picture(QStringLiteral("9,-2,2147483647,2147483647"), 60),
             picture(QStringLiteral("9,-2,60"), 60));
    QCOMPARE(picture(QStringLiteral("59,2147483647"), 60),
             picture(QStringLiteral("CONTINUOUS"), 60));
}

void tst_LineTypeComboBox::neverEndless_data()
{
    QTest::addColumn<QString>("pattern");

    for (const char *pattern : {"", "0", "-0", "-1", "1", ",,,,", "-1,-1", "-2147483648",
                                "2147483647", "abc", "CONTINUOUS", "12,-3", "0,-3"}) {
        QTest::newRow(*pattern ? pattern : "empty") << QString::fromLatin1(pattern);
    }
}

void tst_LineTypeComboBox::neverEndless()
{
    QFETCH(QString, pattern);
    QElapsedTimer timer;
    timer.start();
    for (int width : {1, 2, 3, 4000}) {
        QCOMPARE(picture(pattern, width).size(), QSize(width, 31));
    }
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
}

void tst_LineTypeComboBox::manyParts()
{
    const int parts = 3000000;
    QString pattern = QStringLiteral("12,-3,0,-3");
    pattern.reserve(parts * 3);
    for (int i = 0; i < parts; ++i) {
        pattern += QStringLiteral(",-3");
    }
    QElapsedTimer timer;
    timer.start();
    const QImage image = picture(pattern, 60);
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(image, picture(QStringLiteral("12,-3,0,-3,-60"), 60));
}

void tst_LineTypeComboBox::randomPatterns()
{
    QRandomGenerator random(20);
    for (int round = 0; round < 400; ++round) {
        const int width = random.bounded(1, 300);
        QVector<double> numbers;
        QStringList parts;
        const int count = random.bounded(1, 9);
        for (int i = 0; i < count; ++i) {
            int number = 0;
            switch (random.bounded(8)) {
            case 0:
            case 1:
                break;
            case 2:
                number = random.bounded(2) ? std::numeric_limits<int>::max() - random.bounded(3)
                                           : std::numeric_limits<int>::min() + random.bounded(3);
                break;
            case 3:
                number = random.bounded(-400, 400);
                break;
            default:
                number = random.bounded(-12, 30);
            }
            numbers += number;
            parts += QString::number(number);
        }
        const QString pattern = parts.join(QLatin1Char(','));
        const QImage image = picture(pattern, width);
        const QImage expected = paintedMarks(marksOf(numbers, width), width);
        const int difference = largestDifference(image, expected);
        QVERIFY2(
            difference <= 1,
            qPrintable(QStringLiteral("%1 at %2: %3").arg(pattern).arg(width).arg(difference)));
    }
}

void tst_LineTypeComboBox::builtInPictures()
{
    for (const auto &lineType : builtInLineTypes) {
        const QString pattern = QString::fromLatin1(lineType.pattern);
        for (int width : {1, 13, 14, 24, 25, 100, 233}) {
            QVector<double> numbers;
            if (pattern == QLatin1String("CONTINUOUS")) {
                numbers += width;
            } else {
                for (const QString &part : pattern.split(QLatin1Char(','))) {
                    numbers += part.toDouble();
                }
            }
            QCOMPARE(picture(pattern, width), paintedMarks(marksOf(numbers, width), width));
        }
    }
}

void tst_LineTypeComboBox::sameAgain()
{
    const QString pattern = QStringLiteral("7,-3,0,-2");
    const QImage first = picture(pattern, 90);
    for (int width = 1; width < 400; ++width) {
        QCOMPARE(picture(pattern, width).width(), width);
    }
    QCOMPARE(picture(pattern, 90), first);
    QVERIFY(picture(QStringLiteral("7,-3,0,-3"), 90) != first);
}

void tst_LineTypeComboBox::picturesAreIndependent()
{
    LineTypeComboBox box;
    const QString pattern = QStringLiteral("8,-4");
    QPixmap mine = box.generateLinePixmap(pattern, 40);
    const QImage before = mine.toImage();
    mine.fill(Qt::red);
    QCOMPARE(box.generateLinePixmap(pattern, 40).toImage(), before);
    QCOMPARE(box.generateLinePixmap(pattern, 40).devicePixelRatio(), 1.0);
}

void tst_LineTypeComboBox::widePicture()
{
    QElapsedTimer timer;
    timer.start();
    const QImage image = picture(QStringLiteral("12,-3"), 100000);
    QCOMPARE(image.size(), QSize(100000, 31));
    for (int period : {0, 30000, 32760, 65535, 99975}) {
        QCOMPARE(row(image.copy(period, 0, 15, 31), 15), QByteArray("#############.#"));
    }
    QCOMPARE(row(picture(QStringLiteral("CONTINUOUS"), 100000), 14), QByteArray(100000, '#'));
    QCOMPARE(picture(QStringLiteral("0"), 100000).width(), 100000);
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
}

void tst_LineTypeComboBox::hintIgnoresPictures()
{
    ResizedBox box;
    const int width = box.sizeHint().width();
    QCOMPARE(box.minimumSizeHint().width(), width);
    QCOMPARE(width, QComboBox().sizeHint().width());
    box.resizeNow(400);
    QCOMPARE(box.sizeHint().width(), width);
    QCOMPARE(box.minimumSizeHint().width(), width);
    QVERIFY(box.sizeHint().height() >= 31);
    box.setMinimumContentsLength(40);
    QVERIFY(box.sizeHint().width() > width);
}

void tst_LineTypeComboBox::hintAsWithoutItems_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<int>("letters");
    for (int letters : {0, 3, 20}) {
        const auto row = [letters](const char *name, int policy) {
            QTest::addRow("%s, %d", name, letters) << policy << letters;
        };
        row("contents", QComboBox::AdjustToContents);
        row("first show", QComboBox::AdjustToContentsOnFirstShow);
        row("length", QComboBox::AdjustToContentsOnFirstShow + 1); // deprecated, yet in use
        row("length and icon", QComboBox::AdjustToMinimumContentsLengthWithIcon);
    }
}

void tst_LineTypeComboBox::hintAsWithoutItems()
{
    QFETCH(int, policy);
    QFETCH(int, letters);
    QComboBox stock;
    ResizedBox box;
    for (QComboBox *each : {&stock, static_cast<QComboBox *>(&box)}) {
        each->setSizeAdjustPolicy(static_cast<QComboBox::SizeAdjustPolicy>(policy));
        each->setMinimumContentsLength(letters);
    }
    for (int width : {0, 100, 700}) {
        if (width > 0) {
            box.resizeNow(width);
        }
        QCOMPARE(box.sizeHint().width(), stock.sizeHint().width());
        QCOMPARE(box.minimumSizeHint().width(), stock.minimumSizeHint().width());
    }
}

// Two boxes of one width share their pictures, and nothing else.
void tst_LineTypeComboBox::boxesShareThePicturesAlone()
{
    ResizedBox first;
    ResizedBox second;
    first.resizeNow(173);
    second.resizeNow(173);
    for (int i = 0; i < lineTypeCount; ++i) {
        QCOMPARE(pixmapKey(second, i), pixmapKey(first, i));
        QVERIFY(i == 0 || pixmapKey(first, i) != pixmapKey(first, i - 1));
    }
    auto *model = qobject_cast<QStandardItemModel *>(first.model());
    QVERIFY(model);
    model->item(2)->setEnabled(false);
    first.setItemData(3, QStringLiteral("mine"));
    first.setItemIcon(4, QIcon());
    second.resizeNow(174);
    QVERIFY(pixmapKey(second, 1) != pixmapKey(first, 1));
    second.resizeNow(173);
    QVERIFY(qobject_cast<QStandardItemModel *>(second.model())->item(2)->isEnabled());
    QCOMPARE(namesOf(second), builtInNames());
    QVERIFY(!second.itemIcon(4).isNull());
    QCOMPARE(pixmapKey(second, 1), pixmapKey(first, 1));
}

// The pictures of former widths are kept for a while, but not all of them for ever.
void tst_LineTypeComboBox::oldPicturesAreLetGo()
{
    ResizedBox box;
    box.resizeNow(180);
    const qint64 key = pixmapKey(box, 3);
    box.resizeNow(181);
    box.resizeNow(180);
    QCOMPARE(pixmapKey(box, 3), key);
    for (int width = 3100; width < 3110; ++width) {
        box.resizeNow(width);
    }
    box.resizeNow(180);
    QVERIFY(pixmapKey(box, 3) != key);
}

// What a box is about to use may be dropped by the pictures of another one.
void tst_LineTypeComboBox::picturesDroppedWithinSignal()
{
    ResizedBox box;
    ResizedBox other;
    for (int width : {200, 210, 200}) {
        box.resizeNow(width);
    }
    connect(&box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [&](int index) {
        if (index == 0) {
            for (int width = 3000; width <= 3003; ++width) {
                other.resizeNow(width);
            }
        }
    });
    box.resizeNow(210);
    QCOMPARE(box.count(), 15);
    QCOMPARE(box.iconSize(), QSize(210, 31));
    QCOMPARE(
        box.itemIcon(14).pixmap(210, 31).toImage(),
        box.generateLinePixmap(QString::fromLatin1(builtInLineTypes[14].pattern), 210).toImage());
}

void tst_LineTypeComboBox::noMoreItemsThanAllowed()
{
    ResizedBox box;
    box.setMaxCount(5);
    QSignalSpy spy(&box, QOverload<int>::of(&QComboBox::currentIndexChanged));
    box.resizeNow(120);
    QCOMPARE(namesOf(box), builtInNames().mid(0, 5));
    QCOMPARE(spy.count(), 1);
    box.setMaxCount(15);
    box.resizeNow(121);
    QCOMPARE(namesOf(box), builtInNames());
}

void tst_LineTypeComboBox::foreignModel()
{
    ResizedBox box;
    QStringListModel texts;
    box.setModel(&texts);
    box.resizeNow(120);
    QCOMPARE(box.count(), 15);

    QStandardItemModel source;
    source.setColumnCount(1);
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    box.setModel(&proxy);
    box.resizeNow(121);
    QCOMPARE(namesOf(box), builtInNames());
    QCOMPARE(source.rowCount(), 15);
    QCOMPARE(box.itemIcon(14).availableSizes(), QList<QSize>({QSize(121, 31)}));
}

// Below a root of the host's own, the items go below that root.
void tst_LineTypeComboBox::itemsBelowRoot()
{
    QStandardItemModel model;
    model.appendRow(new QStandardItem(QStringLiteral("line types")));
    model.item(0)->setColumnCount(1);
    ResizedBox box;
    box.setModel(&model);
    box.setRootModelIndex(model.index(0, 0));
    box.resizeNow(120);
    QCOMPARE(namesOf(box), builtInNames());
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.item(0)->rowCount(), 15);
}

// A model that takes no items leaves the box empty, and usable with another model.
void tst_LineTypeComboBox::modelWithoutRoom()
{
    class Locked : public QStringListModel
    {
    public:
        bool insertRows(int, int, const QModelIndex &) override { return false; }
    };
    ResizedBox box;
    QScopedPointer<Locked> locked(new Locked);
    box.setModel(locked.data());
    box.resizeNow(120);
    QCOMPARE(box.count(), 0);
    QCOMPARE(box.currentIndex(), -1);
    QStandardItemModel model;
    box.setModel(&model);
    locked.reset();
    box.resizeNow(121);
    QCOMPARE(namesOf(box), builtInNames());
}

// The pictures are as wide as the box, so a box that asked for room for them would never stop
// growing.
void tst_LineTypeComboBox::windowDoesNotGrow()
{
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    auto *box = new LineTypeComboBox;
    box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    layout->addWidget(box);
    window.show();
    const QSize size = window.size();
    const int width = box->width();
    for (int i = 0; i < 5; ++i) {
        window.setStyleSheet(QStringLiteral("QLabel { margin: %1px; }").arg(i));
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    QCOMPARE(window.size().width(), size.width());
    QCOMPARE(box->width(), width);
    QCOMPARE(box->count(), 15);
}

void tst_LineTypeComboBox::keysAndWheel()
{
    LineTypeComboBox box;
    box.resize(200, 31);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QSignalSpy activated(&box, QOverload<int>::of(&QComboBox::activated));
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(box.currentIndex(), 1);
    QTest::keyClick(&box, Qt::Key_End);
    QCOMPARE(box.currentData().toString(), QStringLiteral("ACAD_ISO15W100"));
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.currentIndex(), 13);
    QCOMPARE(activated.count(), 3);
    box.resize(220, 31);
    QCOMPARE(box.currentIndex(), 13);
    QCOMPARE(activated.count(), 3);
}

void tst_LineTypeComboBox::paintsCurrentPicture()
{
    LineTypeComboBox box;
    box.setStyleSheet(QStringLiteral("QComboBox { background: #202020; border: none; }"));
    box.resize(200, 31);
    box.show();
    const auto whitePixels = [&box] {
        const QImage image = box.grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < 100; ++x) {
                count += image.pixel(x, y) == qRgb(255, 255, 255);
            }
        }
        return count;
    };
    const int continuousPixels = whitePixels();
    QVERIFY(continuousPixels >= 180);
    box.setCurrentIndex(box.findData(QStringLiteral("ACAD_ISO03W100")));
    const int dashedPixels = whitePixels();
    QVERIFY(dashedPixels > 40 && dashedPixels < continuousPixels * 3 / 4);
}

void tst_LineTypeComboBox::constructedWithParent()
{
    QWidget parent;
    auto *box = new LineTypeComboBox(&parent);
    QCOMPARE(box->parentWidget(), &parent);
    const QMetaObject *meta = box->metaObject();
    QCOMPARE(QByteArray(meta->className()), QByteArray("LM::Widgets::LineTypeComboBox"));
    QCOMPARE(meta->superClass(), &QComboBox::staticMetaObject);
    QCOMPARE(meta->methodCount(), meta->methodOffset());
    QCOMPARE(meta->propertyCount(), meta->propertyOffset());
}

LMTEST_MAIN(tst_LineTypeComboBox)

#include "tst_linetypecombobox.moc"
