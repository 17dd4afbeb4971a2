#include "lmtest.h"

#include <lmwidgets/talvodoubleslider.h>
#include <lmwidgets/talvostylemanager.h>

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QVBoxLayout>

#include <cmath>
#include <limits>
#include <memory>

using LM::Widgets::TalvoDoubleSlider;
using LM::Widgets::TalvoStyleManager;

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
const double NotANumber = std::numeric_limits<double>::quiet_NaN();
const QColor Yellow(255, 200, 4);
const QColor Grey(130, 130, 130);

/** What a slider says, in the order in which it says it. */
struct Signals
{
    explicit Signals(TalvoDoubleSlider *slider)
    {
        QObject::connect(slider, &TalvoDoubleSlider::lowerValueChanged, slider,
                         [this](double v) { list << QStringLiteral("lower %1").arg(v); });
        QObject::connect(slider, &TalvoDoubleSlider::upperValueChanged, slider,
                         [this](double v) { list << QStringLiteral("upper %1").arg(v); });
    }
    QStringList take()
    {
        const QStringList taken = list;
        list.clear();
        return taken;
    }
    QStringList list;
};

/** 110 px wide, so that the range 0 to 100 has one unit in each px, and value v is at v + 5. */
std::unique_ptr<TalvoDoubleSlider> hundredSlider(double lower = 20, double upper = 60)
{
    auto slider = std::make_unique<TalvoDoubleSlider>();
    slider->resize(110, 20);
    slider->setQxtSpanRange(0, 100);
    slider->setSpan(lower, upper);
    return slider;
}

void press(TalvoDoubleSlider *slider, int x, int y)
{
    lmtest::mouse(slider, QEvent::MouseButtonPress, QPoint(x, y));
}

void moveTo(TalvoDoubleSlider *slider, int x, int y)
{
    lmtest::mouse(slider, QEvent::MouseMove, QPoint(x, y), Qt::NoButton, Qt::LeftButton);
}

void release(TalvoDoubleSlider *slider, int x, int y)
{
    lmtest::mouse(slider, QEvent::MouseButtonRelease, QPoint(x, y), Qt::LeftButton, Qt::NoButton);
}

/** The slider on black, without the parts that lie outside it. */
QImage pictureOf(QWidget *slider)
{
    slider->setStyleSheet(QString());
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::black);
    slider->setPalette(palette);
    return slider->grab().toImage();
}

/** The colour in the middle of the logical pixel @p x, @p y. */
QColor colorAt(const QImage &picture, int x, int y)
{
    const int ratio = qRound(picture.devicePixelRatio());
    return picture.pixelColor(x * ratio + ratio / 2, y * ratio + ratio / 2);
}

/** Puts another theme beside the program for as long as it lives. */
class ThemeFile
{
public:
    explicit ThemeFile(const QString &path) : m_path(path)
    {
        QFile::rename(m_path, m_path + QStringLiteral(".kept"));
    }
    ~ThemeFile()
    {
        QFile::remove(m_path);
        QFile::rename(m_path + QStringLiteral(".kept"), m_path);
    }

private:
    QString m_path;
};

} // namespace

class tst_TalvoDoubleSlider : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black); }

    void fresh();
    void metaObject();
    void setLowerValue_data();
    void setLowerValue();
    void setUpperValue_data();
    void setUpperValue();
    void setSpan_data();
    void setSpan();
    void rangeLeavesTheValues();
    void notANumber();
    void infinities();

    void dragFollowsTheMouse();
    void dragCrosses_data();
    void dragCrosses();
    void grabHeight_data();
    void grabHeight();
    void grabWidth_data();
    void grabWidth();
    void firstHandleWins();
    void pressOnTheBarMovesNothing();
    void pressOutsideTheBandKeepsTheHandle();
    void dragStaysInTheBox_data();
    void dragStaysInTheBox();
    void otherButtons();
    void releaseEndsTheDrag();
    void dragOnlyIsAccepted();
    void lostReleaseEndsTheDrag_data();
    void lostReleaseEndsTheDrag();
    void dragAtTheLastDigit();
    void equalEnds();
    void backwardRange();
    void narrow_data();
    void narrow();
    void rangeWithoutEnd();
    void farEnds();

    void track_data();
    void track();
    void handles_data();
    void handles();
    void handlesOutside();
    void pixelsOfOutlinedRectangles();
    void themeSwitch();
    void pictureIsReadAgainWhenItsFileChanges();
    void pictureIsMissing();
    void hints();

    void deletedFromASlot_data();
    void deletedFromASlot();
};

void tst_TalvoDoubleSlider::fresh()
{
    TalvoDoubleSlider slider;
    QCOMPARE(slider.lowerValue(), 0.0);
    QCOMPARE(slider.upperValue(), 0.0);
    Signals heard(&slider);
    slider.setUpperValue(1000);
    QCOMPARE(slider.upperValue(), 99.0);
    slider.setLowerValue(-1000);
    QCOMPARE(slider.lowerValue(), 0.0);
    QCOMPARE(heard.take(), QStringList({"upper 99", "lower 0"}));
}

void tst_TalvoDoubleSlider::metaObject()
{
    QCOMPARE(lmtest::ownMethods(TalvoDoubleSlider::staticMetaObject),
             QStringList({"signal lowerValueChanged(double lower)",
                          "signal upperValueChanged(double upper)",
                          "slot setLowerValue(double lower)", "slot setUpperValue(double upper)",
                          "slot setSpan(double lower, double upper)"}));
    QCOMPARE(TalvoDoubleSlider::staticMetaObject.propertyCount(),
             QWidget::staticMetaObject.propertyCount());
}

void tst_TalvoDoubleSlider::setLowerValue_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("smaller");
    QTest::addColumn<double>("larger");
    QTest::addColumn<QString>("heard");
    QTest::newRow("below the minimum") << -5.0 << 0.0 << 40.0 << "lower 0";
    QTest::newRow("the minimum") << 0.0 << 0.0 << 40.0 << "lower 0";
    QTest::newRow("between") << 12.5 << 12.5 << 40.0 << "lower 12.5";
    QTest::newRow("equal") << 40.0 << 40.0 << 40.0 << "lower 40";
    QTest::newRow("past the other") << 40.5 << 40.0 << 40.5 << "upper 40.5";
    QTest::newRow("above the maximum") << 150.0 << 40.0 << 150.0 << "upper 150";
}

void tst_TalvoDoubleSlider::setLowerValue()
{
    QFETCH(double, value);
    QFETCH(double, smaller);
    QFETCH(double, larger);
    QFETCH(QString, heard);
    TalvoDoubleSlider slider;
    slider.setSpan(10, 40);
    Signals signalsHeard(&slider);
    slider.setLowerValue(value);
    QCOMPARE(signalsHeard.take(), QStringList{heard});
    QCOMPARE(slider.lowerValue(), smaller);
    QCOMPARE(slider.upperValue(), larger);
    // Once more, though nothing changes.
    slider.setLowerValue(value);
    QCOMPARE(signalsHeard.take(), QStringList{heard});
}

void tst_TalvoDoubleSlider::setUpperValue_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("smaller");
    QTest::addColumn<double>("larger");
    QTest::addColumn<QString>("heard");
    QTest::newRow("above the maximum") << 150.0 << 10.0 << 99.0 << "upper 99";
    QTest::newRow("the maximum") << 99.0 << 10.0 << 99.0 << "upper 99";
    QTest::newRow("between") << 12.5 << 10.0 << 12.5 << "upper 12.5";
    QTest::newRow("equal") << 10.0 << 10.0 << 10.0 << "upper 10";
    QTest::newRow("past the other") << 9.5 << 9.5 << 10.0 << "lower 9.5";
    QTest::newRow("below the minimum") << -5.0 << -5.0 << 10.0 << "lower -5";
}

void tst_TalvoDoubleSlider::setUpperValue()
{
    QFETCH(double, value);
    QFETCH(double, smaller);
    QFETCH(double, larger);
    QFETCH(QString, heard);
    TalvoDoubleSlider slider;
    slider.setSpan(10, 40);
    Signals signalsHeard(&slider);
    slider.setUpperValue(value);
    QCOMPARE(signalsHeard.take(), QStringList{heard});
    QCOMPARE(slider.lowerValue(), smaller);
    QCOMPARE(slider.upperValue(), larger);
    slider.setUpperValue(value);
    QCOMPARE(signalsHeard.take(), QStringList{heard});
}

void tst_TalvoDoubleSlider::setSpan_data()
{
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("second");
    QTest::addColumn<QStringList>("heard");
    QTest::newRow("in order") << 20.0 << 60.0 << QStringList{"lower 20", "upper 60"};
    QTest::newRow("crossed") << 60.0 << 20.0 << QStringList{"lower 20", "upper 60"};
    QTest::newRow("equal") << 33.0 << 33.0 << QStringList{"lower 33", "upper 33"};
    QTest::newRow("outside") << 300.0 << -7.0 << QStringList{"lower -7", "upper 300"};
}

void tst_TalvoDoubleSlider::setSpan()
{
    QFETCH(double, first);
    QFETCH(double, second);
    QFETCH(QStringList, heard);
    TalvoDoubleSlider slider;
    Signals signalsHeard(&slider);
    slider.setSpan(first, second);
    QCOMPARE(signalsHeard.take(), heard);
    QCOMPARE(slider.lowerValue(), qMin(first, second));
    QCOMPARE(slider.upperValue(), qMax(first, second));
    slider.setSpan(first, second);
    QCOMPARE(signalsHeard.take(), heard);
}

void tst_TalvoDoubleSlider::rangeLeavesTheValues()
{
    TalvoDoubleSlider slider;
    slider.setSpan(20, 60);
    Signals heard(&slider);
    slider.setQxtSpanRange(30, 40);
    QCOMPARE(heard.take(), QStringList());
    QCOMPARE(slider.lowerValue(), 20.0);
    QCOMPARE(slider.upperValue(), 60.0);
    slider.setLowerValue(20);
    slider.setUpperValue(60);
    QCOMPARE(heard.take(), QStringList({"lower 30", "upper 40"}));
}

void tst_TalvoDoubleSlider::notANumber()
{
    auto slider = hundredSlider();
    Signals heard(slider.get());
    slider->setLowerValue(NotANumber);
    slider->setUpperValue(NotANumber);
    slider->setSpan(NotANumber, 3);
    slider->setSpan(3, NotANumber);
    slider->setQxtSpanRange(NotANumber, 5);
    slider->setQxtSpanRange(5, NotANumber);
    QCOMPARE(heard.take(), QStringList());
    QCOMPARE(slider->lowerValue(), 20.0);
    QCOMPARE(slider->upperValue(), 60.0);
    // The range is what it was.
    slider->setLowerValue(-1);
    slider->setUpperValue(101);
    QCOMPARE(heard.take(), QStringList({"lower 0", "upper 100"}));
}

void tst_TalvoDoubleSlider::infinities()
{
    auto slider = hundredSlider();
    Signals heard(slider.get());
    slider->setLowerValue(-Infinity);
    slider->setUpperValue(Infinity);
    QCOMPARE(heard.take(), QStringList({"lower 0", "upper 100"}));
    slider->setSpan(Infinity, -Infinity);
    QCOMPARE(heard.take(), QStringList({"lower -inf", "upper inf"}));
    // The bar is the span from edge to edge, with the handles outside. The outline of the grey part
    // to the left ends in the first column.
    const QImage picture = pictureOf(slider.get());
    for (int x = 1; x < 110; ++x) {
        QCOMPARE(colorAt(picture, x, 9), Yellow);
    }
}

void tst_TalvoDoubleSlider::dragFollowsTheMouse()
{
    auto slider = hundredSlider();
    Signals heard(slider.get());
    press(slider.get(), 25, 10);
    moveTo(slider.get(), 60, 10);
    QCOMPARE(slider->lowerValue(), 55.0);
    moveTo(slider.get(), 60, 10);
    moveTo(slider.get(), 5, 0);
    moveTo(slider.get(), 30, 20);
    release(slider.get(), 30, 20);
    QCOMPARE(heard.take(), QStringList({"lower 55", "lower 55", "lower 0", "lower 25"}));
    press(slider.get(), 65, 10);
    moveTo(slider.get(), 105, 10);
    QCOMPARE(heard.take(), QStringList{"upper 100"});
    QCOMPARE(slider->lowerValue(), 25.0);
}

void tst_TalvoDoubleSlider::dragCrosses_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<QVector<int>>("to");
    QTest::addColumn<QStringList>("heard");
    QTest::newRow("first to the right")
        << 25 << QVector<int>{64, 65, 66, 65}
        << QStringList{"lower 59", "lower 60", "upper 61", "lower 60"};
    QTest::newRow("second to the left")
        << 65 << QVector<int>{26, 25, 24, 25}
        << QStringList{"upper 21", "upper 20", "lower 19", "upper 20"};
}

void tst_TalvoDoubleSlider::dragCrosses()
{
    QFETCH(int, from);
    QFETCH(QVector<int>, to);
    QFETCH(QStringList, heard);
    auto slider = hundredSlider();
    Signals signalsHeard(slider.get());
    press(slider.get(), from, 10);
    for (const int x : to) {
        moveTo(slider.get(), x, 10);
        QVERIFY(slider->lowerValue() <= slider->upperValue());
    }
    QCOMPARE(signalsHeard.take(), heard);
}

void tst_TalvoDoubleSlider::grabHeight_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("y");
    QTest::addColumn<bool>("grabs");
    QTest::newRow("middle") << 20 << 10 << true;
    QTest::newRow("5 above") << 20 << 5 << true;
    QTest::newRow("6 above") << 20 << 4 << false;
    QTest::newRow("5 below") << 20 << 15 << true;
    QTest::newRow("6 below") << 20 << 16 << false;
    QTest::newRow("odd height, 5 below") << 21 << 15 << true;
    QTest::newRow("odd height, 6 below") << 21 << 16 << false;
}

void tst_TalvoDoubleSlider::grabHeight()
{
    QFETCH(int, height);
    QFETCH(int, y);
    QFETCH(bool, grabs);
    auto slider = hundredSlider();
    slider->resize(110, height);
    press(slider.get(), 25, y);
    moveTo(slider.get(), 40, y);
    QCOMPARE(slider->lowerValue(), grabs ? 35.0 : 20.0);
}

void tst_TalvoDoubleSlider::grabWidth_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<double>("smaller");
    QTest::addColumn<double>("larger");
    QTest::newRow("first, 5 to the left") << 20 << 20.0 << 60.0;
    QTest::newRow("first, 4 to the left") << 21 << 45.0 << 60.0;
    QTest::newRow("first, 4 to the right") << 29 << 45.0 << 60.0;
    QTest::newRow("first, 5 to the right") << 30 << 20.0 << 60.0;
    QTest::newRow("second, 5 to the left") << 60 << 20.0 << 60.0;
    QTest::newRow("second, 4 to the left") << 61 << 20.0 << 45.0;
    QTest::newRow("second, 4 to the right") << 69 << 20.0 << 45.0;
    QTest::newRow("second, 5 to the right") << 70 << 20.0 << 60.0;
}

void tst_TalvoDoubleSlider::grabWidth()
{
    QFETCH(int, x);
    QFETCH(double, smaller);
    QFETCH(double, larger);
    auto slider = hundredSlider();
    press(slider.get(), x, 10);
    moveTo(slider.get(), 50, 10);
    QCOMPARE(slider->lowerValue(), smaller);
    QCOMPARE(slider->upperValue(), larger);
}

void tst_TalvoDoubleSlider::firstHandleWins()
{
    // Nearer to the second one, but within reach of both.
    auto slider = hundredSlider(20, 24);
    press(slider.get(), 29, 10);
    moveTo(slider.get(), 10, 10);
    QCOMPARE(slider->lowerValue(), 5.0);
    QCOMPARE(slider->upperValue(), 24.0);
}

void tst_TalvoDoubleSlider::pressOnTheBarMovesNothing()
{
    auto slider = hundredSlider();
    Signals heard(slider.get());
    press(slider.get(), 45, 10);
    moveTo(slider.get(), 50, 10);
    release(slider.get(), 50, 10);
    QCOMPARE(heard.take(), QStringList());
}

void tst_TalvoDoubleSlider::pressOutsideTheBandKeepsTheHandle()
{
    auto slider = hundredSlider();
    press(slider.get(), 25, 10);
    press(slider.get(), 65, 2);
    moveTo(slider.get(), 40, 10);
    QCOMPARE(slider->lowerValue(), 35.0);
    // One in the band, beside the handles, lets it go.
    press(slider.get(), 90, 10);
    moveTo(slider.get(), 50, 10);
    QCOMPARE(slider->lowerValue(), 35.0);
}

void tst_TalvoDoubleSlider::dragStaysInTheBox_data()
{
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<bool>("moves");
    QTest::newRow("left end") << QPoint(5, 10) << true;
    QTest::newRow("left of it") << QPoint(4, 10) << false;
    QTest::newRow("right end") << QPoint(105, 10) << true;
    QTest::newRow("right of it") << QPoint(106, 10) << false;
    QTest::newRow("top") << QPoint(50, 0) << true;
    QTest::newRow("above") << QPoint(50, -1) << false;
    QTest::newRow("bottom") << QPoint(50, 20) << true;
    QTest::newRow("below") << QPoint(50, 21) << false;
}

void tst_TalvoDoubleSlider::dragStaysInTheBox()
{
    QFETCH(QPoint, to);
    QFETCH(bool, moves);
    auto slider = hundredSlider(20, 100);
    Signals heard(slider.get());
    press(slider.get(), 25, 10);
    moveTo(slider.get(), 30, 10);
    heard.take();
    moveTo(slider.get(), to.x(), to.y());
    QCOMPARE(slider->lowerValue(), moves ? to.x() - 5.0 : 25.0);
    QCOMPARE(heard.take().size(), moves ? 1 : 0);
}

void tst_TalvoDoubleSlider::otherButtons()
{
    auto slider = hundredSlider();
    Signals heard(slider.get());
    lmtest::mouse(slider.get(), QEvent::MouseButtonPress, QPoint(25, 10), Qt::RightButton,
                  Qt::RightButton);
    moveTo(slider.get(), 40, 10);
    QCOMPARE(heard.take(), QStringList());
    release(slider.get(), 40, 10);
    // The left button is held when the right one goes down on a handle.
    lmtest::mouse(slider.get(), QEvent::MouseButtonPress, QPoint(25, 10), Qt::RightButton,
                  Qt::LeftButton | Qt::RightButton);
    lmtest::mouse(slider.get(), QEvent::MouseMove, QPoint(40, 10), Qt::NoButton, Qt::RightButton);
    QCOMPARE(heard.take(), QStringList());
    lmtest::mouse(slider.get(), QEvent::MouseMove, QPoint(40, 10), Qt::NoButton,
                  Qt::LeftButton | Qt::RightButton);
    QCOMPARE(heard.take(), QStringList{"lower 35"});
}

void tst_TalvoDoubleSlider::releaseEndsTheDrag()
{
    auto slider = hundredSlider();
    Signals heard(slider.get());
    press(slider.get(), 25, 10);
    release(slider.get(), 25, 10);
    moveTo(slider.get(), 40, 10);
    QCOMPARE(heard.take(), QStringList());
}

void tst_TalvoDoubleSlider::dragOnlyIsAccepted()
{
    auto slider = hundredSlider();
    const auto accepted = [&slider](QEvent::Type type, int x, Qt::MouseButtons held) {
        QMouseEvent event(type, QPoint(x, 10), slider->mapToGlobal(QPoint(x, 10)), Qt::LeftButton,
                          held, Qt::NoModifier);
        QCoreApplication::sendEvent(slider.get(), &event);
        return event.isAccepted();
    };
    QVERIFY(!accepted(QEvent::MouseButtonPress, 45, Qt::LeftButton));
    QVERIFY(!accepted(QEvent::MouseMove, 46, Qt::LeftButton));
    QVERIFY(!accepted(QEvent::MouseButtonRelease, 46, Qt::NoButton));
    QVERIFY(accepted(QEvent::MouseButtonPress, 25, Qt::LeftButton));
    QVERIFY(accepted(QEvent::MouseMove, 46, Qt::LeftButton));
    QVERIFY(accepted(QEvent::MouseMove, 500, Qt::LeftButton));
    QVERIFY(accepted(QEvent::MouseButtonRelease, 46, Qt::NoButton));
}

void tst_TalvoDoubleSlider::lostReleaseEndsTheDrag_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("disabled") << "disabled";
    QTest::newRow("hidden") << "hidden";
    QTest::newRow("blocked by a dialog") << "blocked";
}

void tst_TalvoDoubleSlider::lostReleaseEndsTheDrag()
{
    QFETCH(QString, what);
    QWidget window;
    window.resize(200, 60);
    TalvoDoubleSlider slider(&window);
    slider.setGeometry(10, 10, 110, 20);
    slider.setQxtSpanRange(0, 100);
    slider.setSpan(20, 60);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    press(&slider, 25, 10);
    moveTo(&slider, 30, 10);
    QCOMPARE(slider.lowerValue(), 25.0);
    if (what == QLatin1String("disabled")) {
        slider.setEnabled(false);
        slider.setEnabled(true);
    } else if (what == QLatin1String("hidden")) {
        slider.hide();
        slider.show();
    } else {
        QWidget dialog(&window, Qt::Dialog);
        dialog.setWindowModality(Qt::ApplicationModal);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    }
    moveTo(&slider, 50, 10);
    QCOMPARE(slider.lowerValue(), 25.0);
}

void tst_TalvoDoubleSlider::dragAtTheLastDigit()
{
    // -0.1 + (0.3 - -0.1) is a little more than 0.3.
    for (const double end : {0.3, 0.7, 1.1, 1e-9, 1e15 / 3}) {
        auto slider = hundredSlider();
        slider->setQxtSpanRange(-0.1, end);
        slider->setSpan(-0.1, -0.1);
        press(slider.get(), 5, 10);
        moveTo(slider.get(), 105, 10);
        QVERIFY(slider->upperValue() <= end);
        QVERIFY(qFuzzyCompare(slider->upperValue(), end) || std::abs(end) < 1e-6);
    }
}

void tst_TalvoDoubleSlider::equalEnds()
{
    auto slider = hundredSlider();
    slider->setQxtSpanRange(7, 7);
    Signals heard(slider.get());
    slider->setSpan(2, 50);
    heard.take();
    // Both handles are at the left end, the first one on top of the mouse.
    const QImage picture = pictureOf(slider.get());
    QCOMPARE(colorAt(picture, 60, 9), Grey);
    press(slider.get(), 5, 10);
    moveTo(slider.get(), 80, 10);
    QCOMPARE(heard.take(), QStringList{"lower 7"});
    QCOMPARE(slider->upperValue(), 50.0);
}

void tst_TalvoDoubleSlider::backwardRange()
{
    auto slider = hundredSlider();
    slider->setQxtSpanRange(100, 0);
    slider->setSpan(20, 60);
    Signals heard(slider.get());
    press(slider.get(), 85, 10);
    moveTo(slider.get(), 95, 10);
    QCOMPARE(heard.take(), QStringList{"lower 10"});
}

void tst_TalvoDoubleSlider::narrow_data()
{
    QTest::addColumn<int>("width");
    for (const int width : {0, 1, 5, 9, 10}) {
        QTest::addRow("%d", width) << width;
    }
}

void tst_TalvoDoubleSlider::narrow()
{
    QFETCH(int, width);
    auto slider = hundredSlider();
    slider->setSpan(-Infinity, 60);
    slider->resize(width, 20);
    Signals heard(slider.get());
    slider->updatePos();
    press(slider.get(), 5, 10);
    for (int x = -1; x <= 11; ++x) {
        moveTo(slider.get(), x, 10);
    }
    release(slider.get(), 5, 10);
    QCOMPARE(heard.take(), QStringList());
    QCOMPARE(slider->upperValue(), 60.0);
    QCOMPARE(slider->grab().width() / slider->devicePixelRatioF(), double(width));
    // One px more, and there is a bar of 1 px.
    slider->setSpan(0, 100);
    slider->resize(11, 20);
    press(slider.get(), 5, 10);
    moveTo(slider.get(), 6, 10);
    QCOMPARE(slider->lowerValue(), 100.0);
}

void tst_TalvoDoubleSlider::rangeWithoutEnd()
{
    for (const auto &ends : {qMakePair(0.0, Infinity), qMakePair(-Infinity, 0.0),
                             qMakePair(-Infinity, Infinity), qMakePair(Infinity, Infinity)}) {
        auto slider = hundredSlider();
        slider->setQxtSpanRange(ends.first, ends.second);
        Signals heard(slider.get());
        pictureOf(slider.get());
        press(slider.get(), 5, 10);
        for (const int x : {5, 50, 105}) {
            moveTo(slider.get(), x, 10);
        }
        QCOMPARE(heard.take(), QStringList());
        QCOMPARE(slider->lowerValue(), 20.0);
    }
}

void tst_TalvoDoubleSlider::farEnds()
{
    // Further apart than a number can say.
    const double far = std::numeric_limits<double>::max();
    auto slider = hundredSlider();
    slider->setQxtSpanRange(-far, far);
    slider->setSpan(-far, 0);
    press(slider.get(), 55, 10);
    moveTo(slider.get(), 105, 10);
    QCOMPARE(slider->upperValue(), far);
    moveTo(slider.get(), 55, 10);
    QCOMPARE(slider->upperValue(), 0.0);
    QCOMPARE(slider->lowerValue(), -far);
}

void tst_TalvoDoubleSlider::track_data()
{
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("second");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("in order") << 20.0 << 60.0 << true;
    QTest::newRow("crossed") << 60.0 << 20.0 << true;
    QTest::newRow("disabled") << 20.0 << 60.0 << false;
    QTest::newRow("between px") << 20.9 << 60.7 << true;
}

void tst_TalvoDoubleSlider::track()
{
    QFETCH(double, first);
    QFETCH(double, second);
    QFETCH(bool, enabled);
    auto slider = hundredSlider(first, second);
    slider->setEnabled(enabled);
    const QImage picture = pictureOf(slider.get());
    const double ratio = picture.devicePixelRatio();
    QCOMPARE(picture.size(), QSize(110, 20) * ratio);
    const int left = int(qMin(first, second) + 5);
    const int right = left + int(qAbs(second - first)) - 1;
    // The handles cover 13 px from 5 px left of the span and from 8 px left of its right column.
    for (int x = 0; x < 110; ++x) {
        if ((x >= left - 5 && x < left + 8) || (x >= right - 8 && x < right + 5)) {
            continue;
        }
        const QColor expected = x > left && x < right ? Yellow : Grey;
        for (int y = 8; y < 12; ++y) {
            QVERIFY2(colorAt(picture, x, y) == expected, qPrintable(QString::number(x)));
        }
        // The outline is part of the bar: 5 rows. A finer screen has it half a px further up.
        const int firstRow = qFuzzyCompare(ratio, 1.0) ? 8 : 15;
        const int rows = qRound(5 * ratio);
        const int column = qRound(x * ratio + ratio / 2 - 0.5);
        QCOMPARE(picture.pixelColor(column, firstRow - 1), QColor(Qt::black));
        QVERIFY(picture.pixelColor(column, firstRow) != QColor(Qt::black));
        QVERIFY(picture.pixelColor(column, firstRow + rows - 1) != QColor(Qt::black));
        QCOMPARE(picture.pixelColor(column, firstRow + rows), QColor(Qt::black));
    }
}

void tst_TalvoDoubleSlider::handles_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("Black") << int(TalvoStyleManager::Black) << true;
    QTest::newRow("White") << int(TalvoStyleManager::White) << true;
    QTest::newRow("Blue") << int(TalvoStyleManager::Blue) << true;
    QTest::newRow("disabled") << int(TalvoStyleManager::Black) << false;
}

void tst_TalvoDoubleSlider::handles()
{
    QFETCH(int, style);
    QFETCH(bool, enabled);
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::ThemeStyleType(style));
    auto slider = hundredSlider();
    slider->setEnabled(enabled);
    const QImage picture = pictureOf(slider.get());
    const double ratio = picture.devicePixelRatio();

    // What is under the handles: the bar that the slider paints without them.
    const QString path = TalvoStyleManager::instance()->currentThemePath() +
                         QStringLiteral("qssimage/movebutton.png");
    const QPixmap handle(ratio > 1.0 ? QString(path).replace(".png", "@2x.png") : path);
    QCOMPARE(handle.size() / handle.devicePixelRatio(), QSize(13, 13));
    QCOMPARE(handle.devicePixelRatio(), ratio);
    QImage expected;
    {
        const ThemeFile without(path);
        const ThemeFile withoutLarge(QString(path).replace(".png", "@2x.png"));
        expected = pictureOf(slider.get());
    }
    QVERIFY(expected != picture);
    {
        QPainter painter(&expected);
        painter.drawPixmap(25 - 5, 9 - 5 + 0, handle);
        painter.drawPixmap(64 - 8, 9 - 5 + 0, handle);
    }
    QCOMPARE(picture, expected);
}

void tst_TalvoDoubleSlider::handlesOutside()
{
    auto slider = hundredSlider();
    slider->setSpan(20, 60);
    slider->setQxtSpanRange(100, 200);
    QImage picture = pictureOf(slider.get());
    // Both are to the left of the widget, the upper one at -35. The grey part that begins there is
    // as wide as the widget, so that it ends before the edge.
    for (int x = 0; x < 74; ++x) {
        QCOMPARE(colorAt(picture, x, 10), Grey);
    }
    for (int x = 76; x < 110; ++x) {
        QCOMPARE(colorAt(picture, x, 10), QColor(Qt::black));
    }
    slider->setQxtSpanRange(30, 50);
    picture = pictureOf(slider.get());
    for (int x = 1; x < 110; ++x) {
        QCOMPARE(colorAt(picture, x, 10), Yellow);
    }
}

/** The bar as filled and outlined rectangles, and the handles on it. */
void tst_TalvoDoubleSlider::pixelsOfOutlinedRectangles()
{
    auto slider = hundredSlider();
    const QString path = lmtest::themeDir() + QStringLiteral("/Black/qssimage/movebutton");
    const bool isLarge = pictureOf(slider.get()).devicePixelRatio() > 1.0;
    const QPixmap handle(path + (isLarge ? QStringLiteral("@2x.png") : QStringLiteral(".png")));
    for (const int width : {110, 37, 11, 10, 3}) {
        slider->resize(width, 20);
        const auto position = [width](double value) {
            return width > 10 ? value / 100 * (width - 10) + 5 : 5.0;
        };
        for (const double lower : {-40.0, 0.0, 19.5, 50.0, 99.0, 100.0, 180.0}) {
            for (const double upper : {-40.0, 0.0, 19.5, 50.0, 60.0, 100.0, 180.0}) {
                slider->setSpan(lower, upper);
                const QImage picture = pictureOf(slider.get());
                QImage expected(picture.size(), picture.format());
                expected.setDevicePixelRatio(picture.devicePixelRatio());
                expected.fill(Qt::black);
                QPainter painter(&expected);
                const double left = qMin(position(lower), position(upper));
                const double right = qMax(position(lower), position(upper));
                const QRect span(int(left), 8, int(right - left), 4);
                painter.setPen(QPen(Yellow, 1));
                painter.setBrush(Yellow);
                painter.drawRect(span);
                painter.setPen(QPen(Grey, 1));
                painter.setBrush(Grey);
                painter.drawRect(0, 8, span.left(), 4);
                painter.drawRect(span.right(), 8, width, 4);
                painter.drawPixmap(span.left() - 5, 4, handle);
                painter.drawPixmap(span.right() - 8, 4, handle);
                painter.end();
                QVERIFY2(
                    picture == expected,
                    qPrintable(QStringLiteral("%1 px, %2 to %3").arg(width).arg(lower).arg(upper)));
            }
        }
    }
}

void tst_TalvoDoubleSlider::themeSwitch()
{
    auto slider = hundredSlider();
    const QImage black = pictureOf(slider.get());
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Blue);
    const QImage blue = pictureOf(slider.get());
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black);
    QVERIFY(black != blue);
    QCOMPARE(pictureOf(slider.get()), black);
}

void tst_TalvoDoubleSlider::pictureIsReadAgainWhenItsFileChanges()
{
    auto slider = hundredSlider();
    const QImage before = pictureOf(slider.get());
    const QString path = lmtest::themeDir() + QStringLiteral("/Black/qssimage/movebutton.png");
    {
        const ThemeFile without(path);
        const ThemeFile withoutLarge(QString(path).replace(".png", "@2x.png"));
        QImage red(13, 13, QImage::Format_ARGB32);
        red.fill(Qt::red);
        QVERIFY(red.save(path));
        const QImage picture = pictureOf(slider.get());
        for (int y = 4; y < 17; ++y) {
            QCOMPARE(colorAt(picture, 19, y) == QColor(Qt::red), false);
            QCOMPARE(colorAt(picture, 20, y), QColor(Qt::red));
            QCOMPARE(colorAt(picture, 32, y), QColor(Qt::red));
            QCOMPARE(colorAt(picture, 33, y) == QColor(Qt::red), false);
            QCOMPARE(colorAt(picture, 55, y) == QColor(Qt::red), false);
            QCOMPARE(colorAt(picture, 56, y), QColor(Qt::red));
            QCOMPARE(colorAt(picture, 68, y), QColor(Qt::red));
            QCOMPARE(colorAt(picture, 69, y) == QColor(Qt::red), false);
        }
        QVERIFY(colorAt(picture, 25, 3) != QColor(Qt::red));
        QVERIFY(colorAt(picture, 25, 17) != QColor(Qt::red));
    }
    QCOMPARE(pictureOf(slider.get()), before);
}

void tst_TalvoDoubleSlider::pictureIsMissing()
{
    const QString path = lmtest::themeDir() + QStringLiteral("/Black/qssimage/movebutton.png");
    const ThemeFile without(path);
    const ThemeFile withoutLarge(QString(path).replace(".png", "@2x.png"));
    auto slider = hundredSlider();
    const QImage picture = pictureOf(slider.get());
    QCOMPARE(colorAt(picture, 22, 10), Grey);
    QCOMPARE(colorAt(picture, 27, 10), Yellow);
    press(slider.get(), 25, 10);
    moveTo(slider.get(), 30, 10);
    QCOMPARE(slider->lowerValue(), 25.0);
}

void tst_TalvoDoubleSlider::hints()
{
    // Room for both handles, also where a layout presses.
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *slider = new TalvoDoubleSlider;
    layout->addWidget(slider);
    QVERIFY(window.minimumSizeHint().height() >= 13);
    QVERIFY(window.sizeHint().width() >= window.minimumSizeHint().width());
}

void tst_TalvoDoubleSlider::deletedFromASlot_data()
{
    QTest::addColumn<QString>("by");
    QTest::addColumn<bool>("onLower");
    for (const char *by : {"setLowerValue", "setUpperValue", "setSpan", "first", "second"}) {
        QTest::addRow("%s, lower", by) << QString::fromLatin1(by) << true;
        QTest::addRow("%s, upper", by) << QString::fromLatin1(by) << false;
    }
}

void tst_TalvoDoubleSlider::deletedFromASlot()
{
    QFETCH(QString, by);
    QFETCH(bool, onLower);
    QPointer<TalvoDoubleSlider> slider = hundredSlider().release();
    // The signal that is not meant must not find the object gone.
    int heard = 0;
    const auto deleteIt = [&slider, &heard] {
        ++heard;
        delete slider;
    };
    if (onLower) {
        connect(slider, &TalvoDoubleSlider::lowerValueChanged, this, deleteIt);
    } else {
        connect(slider, &TalvoDoubleSlider::upperValueChanged, this, deleteIt);
    }
    if (by == QLatin1String("setLowerValue")) {
        slider->setLowerValue(onLower ? 10 : 90);
    } else if (by == QLatin1String("setUpperValue")) {
        slider->setUpperValue(onLower ? 10 : 90);
    } else if (by == QLatin1String("setSpan")) {
        slider->setSpan(1, 2);
    } else {
        press(slider, by == QLatin1String("first") ? 25 : 65, 10);
        moveTo(slider, onLower ? 10 : 90, 10);
    }
    QCOMPARE(heard, 1);
    QVERIFY(slider.isNull());
}

LMTEST_MAIN(tst_TalvoDoubleSlider)

#include "tst_talvodoubleslider.moc"
