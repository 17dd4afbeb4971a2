#include "lmtest.h"

#include <lmwidgets/talvotriangledlg.h>

#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>

#include <climits>
#include <type_traits>

namespace {

using Direction = TalvoTriangleDlg::TriangleDirection;

const QColor Fill(69, 69, 69);
const QColor Border(56, 56, 56);
const QColor Marker(Qt::red);

/** What the dialog itself paints, on a clear ground. */
QImage painted(QWidget *widget, qreal ratio = 1.0)
{
    QImage image(widget->size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    widget->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/** The same picture, drawn from the numbers of a balloon by hand. */
QImage expected(const QSize &size, qreal ratio, const QRectF &body, const QPolygonF &triangle,
                const QVector<QLineF> &lines)
{
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRect(body);
    path.addPolygon(triangle);
    path.closeSubpath();
    painter.fillPath(path, Fill);
    painter.setPen(QPen(Border, 1));
    for (const QLineF &line : lines) {
        painter.drawLine(line);
    }
    return image;
}

QColor at(const QImage &image, int x, int y)
{
    return image.pixelColor(x, y);
}

} // namespace

class tst_TalvoTriangleDlg : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void interface();
    void fresh();
    void directions_data();
    void directions();
    void outlineOfTheTop();
    void colours();
    void anotherDirectionPaintsNothing();
    void settersDoNotRepaint();
    void oddNumbers_data();
    void oddNumbers();
    void extremeNumbers();
    void childrenStandOnIt();
    void parentDestroyed();
};

void tst_TalvoTriangleDlg::interface()
{
    QCOMPARE(TalvoTriangleDlg::staticMetaObject.superClass(), &QDialog::staticMetaObject);
    QVERIFY(lmtest::ownMethods(TalvoTriangleDlg::staticMetaObject).isEmpty());
    QCOMPARE(int(TalvoTriangleDlg::Left), 0);
    QCOMPARE(int(TalvoTriangleDlg::Right), 1);
    QCOMPARE(int(TalvoTriangleDlg::Top), 2);
    QCOMPARE(int(TalvoTriangleDlg::Bottom), 3);
    TalvoTriangleDlg dialog;
    QVERIFY(dialog.windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(dialog.windowType(), Qt::Dialog);
    QVERIFY(dialog.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(!dialog.isVisible());
}

void tst_TalvoTriangleDlg::fresh()
{
    TalvoTriangleDlg dialog;
    dialog.resize(200, 100);
    // The panel begins at the very top, and its pointer has no extent.
    QCOMPARE(painted(&dialog),
             expected(QSize(200, 100), 1.0, QRectF(1, 0, 198, 98),
                      QPolygonF({{0, 0}, {0, 0}, {0, 0}}),
                      {{0, 0, 0, 0}, {0, 0, 0, 0}, {200, 0, 200, 100}, {0, 100, 0, 0}}));
    QCOMPARE(at(painted(&dialog), 100, 0), Fill);
    QCOMPARE(at(painted(&dialog), 100, 97), Fill);
    QCOMPARE(at(painted(&dialog), 100, 98).alpha(), 0);
}

void tst_TalvoTriangleDlg::directions_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QRectF>("body");
    QTest::addColumn<QPolygonF>("triangle");
    QTest::addColumn<QVector<QLineF>>("lines");
    QTest::addColumn<QPoint>("inTip");

    // A balloon of 200 x 100 px with a pointer of 16 px that begins at 20 and sticks out by 10.
    QTest::newRow("left") << 0 << QRectF(10, 0, 198, 100)
                          << QPolygonF({{10, 20}, {0, 28}, {10, 36}})
                          << QVector<QLineF>(
                                 {{10, 0, 10, 20}, {0, 28, 10, 36}, {10, 100, 200, 100}})
                          << QPoint(5, 28);
    QTest::newRow("right") << 1 << QRectF(0, 0, 190, 100)
                           << QPolygonF({{190, 20}, {200, 28}, {190, 36}})
                           << QVector<QLineF>(
                                  {{0, 0, 190, 0}, {190, 20, 200, 28}, {190, 36, 190, 100}})
                           << QPoint(194, 28);
    QTest::newRow("top")
        << 2 << QRectF(1, 10, 198, 98) << QPolygonF({{20, 10}, {28, 0}, {36, 10}})
        << QVector<QLineF>({{0, 10, 20, 10}, {28, 0, 36, 10}, {200, 10, 200, 100}, {0, 100, 0, 10}})
        << QPoint(27, 5);
    QTest::newRow("bottom") << 3 << QRectF(1, 0, 198, 90)
                            << QPolygonF({{20, 90}, {28, 100}, {36, 90}})
                            << QVector<QLineF>(
                                   {{0, 0, 0, 90}, {20, 90, 28, 100}, {36, 90, 200, 90}})
                            << QPoint(28, 94);
}

void tst_TalvoTriangleDlg::directions()
{
    QFETCH(int, direction);
    QFETCH(QRectF, body);
    QFETCH(QPolygonF, triangle);
    QFETCH(QVector<QLineF>, lines);
    QFETCH(QPoint, inTip);
    TalvoTriangleDlg dialog;
    dialog.resize(200, 100);
    dialog.setTriabgleData(Direction(direction), 20, 10, 16);
    for (const qreal ratio : {1.0, 2.0}) {
        const QImage image = painted(&dialog, ratio);
        QCOMPARE(image, expected(QSize(200, 100), ratio, body, triangle, lines));
        QCOMPARE(at(image, int(inTip.x() * ratio), int(inTip.y() * ratio)), Fill);
        QCOMPARE(at(image, int(100 * ratio), int(50 * ratio)), Fill);
    }
}

void tst_TalvoTriangleDlg::outlineOfTheTop()
{
    TalvoTriangleDlg dialog;
    dialog.resize(200, 100);
    dialog.setTriabgleData(TalvoTriangleDlg::Top, 20, 10, 16);
    dialog.setDefaultBorderColor(Marker);
    const QImage image = painted(&dialog, 2.0);
    const auto isBorder = [&](double x, double y) {
        return at(image, int(x * 2), int(y * 2)).red() > 150;
    };
    // Left of the pointer there is a line, right of it none.
    QVERIFY(isBorder(10, 9.5));
    QVERIFY(isBorder(10, 10));
    QVERIFY(!isBorder(100, 9.5));
    QVERIFY(!isBorder(100, 10));
    // The right side of the pointer has one, the left side none.
    QVERIFY(isBorder(32, 5));
    QVERIFY(!isBorder(24, 5));
    // The right and the left edge, half of it cut off; not the lower one.
    QVERIFY(isBorder(199.5, 50));
    QVERIFY(isBorder(0, 50));
    QVERIFY(!isBorder(100, 99.5));
}

void tst_TalvoTriangleDlg::colours()
{
    TalvoTriangleDlg dialog;
    dialog.resize(200, 100);
    dialog.setTriabgleData(TalvoTriangleDlg::Left, 20, 10, 16);
    // Painted opaque, whatever their alpha.
    dialog.setDefaultBackgroundColor(QColor(10, 200, 30, 40));
    dialog.setDefaultBorderColor(QColor(200, 10, 30, 40));
    const QImage image = painted(&dialog);
    QCOMPARE(at(image, 100, 50), QColor(10, 200, 30));
    QVERIFY(at(image, 10, 10).red() > 90);
    QCOMPARE(at(image, 10, 10).alpha(), 255);
}

void tst_TalvoTriangleDlg::anotherDirectionPaintsNothing()
{
    TalvoTriangleDlg dialog;
    dialog.resize(200, 100);
    QImage clear(200, 100, QImage::Format_ARGB32_Premultiplied);
    clear.fill(Qt::transparent);
    // Without a stated type, the enumeration could hold nothing but 0 to 3.
    const bool holdsAnyInt = std::is_same<std::underlying_type_t<Direction>, int>::value;
    QVERIFY(holdsAnyInt);
    for (const int direction : {4, -1, INT_MAX}) {
        dialog.setTriabgleData(Direction(direction), 20, 10, 16);
        QCOMPARE(painted(&dialog), clear);
    }
}

void tst_TalvoTriangleDlg::settersDoNotRepaint()
{
    class Dialog : public TalvoTriangleDlg
    {
    public:
        int paints = 0;

    protected:
        void paintEvent(QPaintEvent *event) override
        {
            ++paints;
            TalvoTriangleDlg::paintEvent(event);
        }
    } dialog;
    dialog.resize(200, 100);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTRY_VERIFY(dialog.paints > 0);
    QCoreApplication::processEvents();
    const int before = dialog.paints;
    dialog.setTriabgleData(TalvoTriangleDlg::Left, 20, 10, 16);
    dialog.setDefaultBackgroundColor(Qt::green);
    dialog.setDefaultBorderColor(Qt::yellow);
    QCoreApplication::processEvents();
    QCOMPARE(dialog.paints, before);
    dialog.update();
    QTRY_COMPARE(dialog.paints, before + 1);
}

void tst_TalvoTriangleDlg::oddNumbers_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("width");
    QTest::addColumn<QRectF>("body");
    QTest::addColumn<QPolygonF>("triangle");
    QTest::addColumn<QVector<QLineF>>("lines");

    // The tip of an odd width lies at the smaller half, that of a negative one at the greater.
    QTest::newRow("odd width") << 0 << 20 << 10 << 17 << QRectF(10, 0, 198, 100)
                               << QPolygonF({{10, 20}, {0, 28}, {10, 37}})
                               << QVector<QLineF>(
                                      {{10, 0, 10, 20}, {0, 28, 10, 37}, {10, 100, 200, 100}});
    QTest::newRow("negative width")
        << 2 << 60 << 10 << -17 << QRectF(1, 10, 198, 98)
        << QPolygonF({{60, 10}, {52, 0}, {43, 10}})
        << QVector<QLineF>(
               {{0, 10, 60, 10}, {52, 0, 43, 10}, {200, 10, 200, 100}, {0, 100, 0, 10}});
    QTest::newRow("all negative") << 1 << -20 << -10 << -16 << QRectF(0, 0, 210, 100)
                                  << QPolygonF({{210, -20}, {200, -28}, {210, -36}})
                                  << QVector<QLineF>({{0, 0, 210, 0},
                                                      {210, -20, 200, -28},
                                                      {210, -36, 210, 100}});
    QTest::newRow("past the edge")
        << 3 << 190 << 10 << 40 << QRectF(1, 0, 198, 90)
        << QPolygonF({{190, 90}, {210, 100}, {230, 90}})
        << QVector<QLineF>({{0, 0, 0, 90}, {190, 90, 210, 100}, {230, 90, 200, 90}});
    QTest::newRow("higher than the dialog")
        << 3 << 20 << 400 << 16 << QRectF(1, 0, 198, -300)
        << QPolygonF({{20, -300}, {28, 100}, {36, -300}})
        << QVector<QLineF>({{0, 0, 0, -300}, {20, -300, 28, 100}, {36, -300, 200, -300}});
}

void tst_TalvoTriangleDlg::oddNumbers()
{
    QFETCH(int, direction);
    QFETCH(int, start);
    QFETCH(int, height);
    QFETCH(int, width);
    QFETCH(QRectF, body);
    QFETCH(QPolygonF, triangle);
    QFETCH(QVector<QLineF>, lines);
    TalvoTriangleDlg dialog;
    dialog.resize(200, 100);
    dialog.setTriabgleData(Direction(direction), start, height, width);
    QCOMPARE(painted(&dialog), expected(QSize(200, 100), 1.0, body, triangle, lines));
}

void tst_TalvoTriangleDlg::extremeNumbers()
{
    TalvoTriangleDlg dialog;
    dialog.resize(200, 100);
    for (const int direction : {0, 2}) {
        // The panel is pushed out of the dialog.
        dialog.setTriabgleData(Direction(direction), INT_MAX, INT_MAX, INT_MAX);
        const QImage image = painted(&dialog);
        QCOMPARE(at(image, 100, 50).alpha(), 0);
        QCOMPARE(at(image, 190, 90).alpha(), 0);
    }
    for (int direction = 0; direction < 4; ++direction) {
        for (const int number : {INT_MIN, INT_MAX}) {
            dialog.setTriabgleData(Direction(direction), number, number, number);
            painted(&dialog);
        }
        dialog.setTriabgleData(Direction(direction), 20, 10, 16);
        QCOMPARE(at(painted(&dialog), 100, 50), Fill);
    }
}

void tst_TalvoTriangleDlg::childrenStandOnIt()
{
    TalvoTriangleDlg dialog;
    dialog.resize(200, 100);
    auto *label = new QLabel(QStringLiteral("Point density"), &dialog);
    label->move(20, 30);
    dialog.show();
    QVERIFY(label->isVisible());
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
}

void tst_TalvoTriangleDlg::parentDestroyed()
{
    auto *parent = new QWidget;
    const QPointer<TalvoTriangleDlg> dialog = new TalvoTriangleDlg(parent);
    dialog->show();
    delete parent;
    QVERIFY(!dialog);
}

LMTEST_MAIN(tst_TalvoTriangleDlg)
#include "tst_talvotriangledlg.moc"
