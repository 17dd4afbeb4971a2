/** @file
 * What a double slider is to assistive technology, asked within the process. The changes that it
 * reports go nowhere without a display; tests/accessibility waits for them.
 */

#include "lmtest.h"

#include <lmwidgets/talvodoubleslider.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <limits>

using LM::Widgets::TalvoDoubleSlider;

namespace {

class HostSlider : public TalvoDoubleSlider
{
    Q_OBJECT
};

} // namespace

class tst_TalvoDoubleSliderAccessible : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void group();
    void handles();
    void hostSubclass();
    void values();
    void setValue_data();
    void setValue();
    void setNothing_data();
    void setNothing();
    void places();
    void statesFollowTheSlider();
    void goesWithTheSlider();
    void deletedFromASlot();

private:
    QAccessibleInterface *handle(int rank);

    TalvoDoubleSlider *m_slider = nullptr;
    QWidget *m_window = nullptr;
};

void tst_TalvoDoubleSliderAccessible::init()
{
    m_window = new QWidget;
    m_window->resize(200, 60);
    m_slider = new TalvoDoubleSlider(m_window);
    m_slider->setGeometry(10, 10, 110, 20);
    m_slider->setAccessibleName(QStringLiteral("Height"));
    m_slider->setQxtSpanRange(0, 100);
    m_slider->setSpan(20, 60);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
}

void tst_TalvoDoubleSliderAccessible::cleanup()
{
    delete m_window;
}

QAccessibleInterface *tst_TalvoDoubleSliderAccessible::handle(int rank)
{
    QAccessibleInterface *group = QAccessible::queryAccessibleInterface(m_slider);
    return group ? group->child(rank) : nullptr;
}

void tst_TalvoDoubleSliderAccessible::group()
{
    QAccessibleInterface *group = QAccessible::queryAccessibleInterface(m_slider);
    QVERIFY(group && group->isValid());
    QCOMPARE(group->role(), QAccessible::Grouping);
    QCOMPARE(group->text(QAccessible::Name), QStringLiteral("Height"));
    QCOMPARE(group->childCount(), 2);
    QVERIFY(!group->child(-1));
    QVERIFY(!group->child(2));
    QCOMPARE(group->indexOfChild(group), -1);
    QCOMPARE(group->indexOfChild(nullptr), -1);
}

void tst_TalvoDoubleSliderAccessible::handles()
{
    QAccessibleInterface *group = QAccessible::queryAccessibleInterface(m_slider);
    const char *names[] = {"Lower value", "Upper value"};
    for (int rank = 0; rank < 2; ++rank) {
        QAccessibleInterface *slider = group->child(rank);
        QVERIFY(slider && slider->isValid());
        QCOMPARE(group->child(rank), slider);
        QCOMPARE(group->indexOfChild(slider), rank);
        QCOMPARE(slider->role(), QAccessible::Slider);
        QCOMPARE(slider->parent(), group);
        QCOMPARE(slider->childCount(), 0);
        QCOMPARE(slider->text(QAccessible::Name), QLatin1String(names[rank]));
        QVERIFY(slider->valueInterface());
    }
}

void tst_TalvoDoubleSliderAccessible::hostSubclass()
{
    HostSlider slider;
    QAccessibleInterface *group = QAccessible::queryAccessibleInterface(&slider);
    QVERIFY(group);
    QCOMPARE(group->childCount(), 2);
    QCOMPARE(group->child(1)->role(), QAccessible::Slider);
}

void tst_TalvoDoubleSliderAccessible::values()
{
    // The rank counts, also when the handles are crossed.
    for (const bool crossed : {false, true}) {
        m_slider->setSpan(crossed ? 60 : 20.5, crossed ? 20.5 : 60);
        QAccessibleValueInterface *lower = handle(0)->valueInterface();
        QAccessibleValueInterface *upper = handle(1)->valueInterface();
        QCOMPARE(lower->currentValue(), QVariant(20.5));
        QCOMPARE(upper->currentValue(), QVariant(60.0));
        QCOMPARE(lower->minimumValue(), QVariant(0.0));
        QCOMPARE(upper->maximumValue(), QVariant(100.0));
        QCOMPARE(lower->minimumStepSize(), QVariant(0.0));
        QCOMPARE(handle(0)->text(QAccessible::Value), m_slider->locale().toString(20.5));
    }
}

void tst_TalvoDoubleSliderAccessible::setValue_data()
{
    QTest::addColumn<bool>("crossed");
    QTest::addColumn<int>("rank");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("smaller");
    QTest::addColumn<double>("larger");
    for (const bool crossed : {false, true}) {
        const char *order = crossed ? "crossed" : "in order";
        QTest::addRow("%s, lower", order) << crossed << 0 << 33.25 << 33.25 << 60.0;
        QTest::addRow("%s, upper", order) << crossed << 1 << 33.25 << 20.0 << 33.25;
        QTest::addRow("%s, lower past upper", order) << crossed << 0 << 80.0 << 60.0 << 80.0;
        QTest::addRow("%s, upper past lower", order) << crossed << 1 << 10.0 << 10.0 << 20.0;
        QTest::addRow("%s, too small", order) << crossed << 0 << -1.0 << 0.0 << 60.0;
        QTest::addRow("%s, too large", order) << crossed << 1 << 101.0 << 20.0 << 100.0;
        QTest::addRow("%s, lower too large", order) << crossed << 0 << 101.0 << 60.0 << 100.0;
    }
}

void tst_TalvoDoubleSliderAccessible::setValue()
{
    QFETCH(bool, crossed);
    QFETCH(int, rank);
    QFETCH(double, value);
    QFETCH(double, smaller);
    QFETCH(double, larger);
    m_slider->setSpan(crossed ? 60 : 20, crossed ? 20 : 60);
    int heard = 0;
    connect(m_slider, &TalvoDoubleSlider::lowerValueChanged, this, [&heard] { ++heard; });
    connect(m_slider, &TalvoDoubleSlider::upperValueChanged, this, [&heard] { ++heard; });
    handle(rank)->valueInterface()->setCurrentValue(value);
    QCOMPARE(m_slider->lowerValue(), smaller);
    QCOMPARE(m_slider->upperValue(), larger);
    QCOMPARE(heard, 1);
}

void tst_TalvoDoubleSliderAccessible::setNothing_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("disabled") << QVariant(50.0) << false;
    QTest::newRow("no number") << QVariant("fifty") << true;
    QTest::newRow("invalid") << QVariant() << true;
    QTest::newRow("not a number") << QVariant(std::numeric_limits<double>::quiet_NaN()) << true;
    QTest::newRow("infinite") << QVariant(std::numeric_limits<double>::infinity()) << true;
}

void tst_TalvoDoubleSliderAccessible::setNothing()
{
    QFETCH(QVariant, value);
    QFETCH(bool, enabled);
    m_slider->setEnabled(enabled);
    handle(0)->valueInterface()->setCurrentValue(value);
    QCOMPARE(m_slider->lowerValue(), 20.0);
    QCOMPARE(m_slider->upperValue(), 60.0);
}

void tst_TalvoDoubleSliderAccessible::places()
{
    const QPoint corner = m_slider->mapToGlobal(QPoint(0, 0));
    QCOMPARE(handle(0)->rect(), QRect(corner + QPoint(20, 4), QSize(13, 13)));
    QCOMPARE(handle(1)->rect(), QRect(corner + QPoint(56, 4), QSize(13, 13)));
    QAccessibleInterface *group = QAccessible::queryAccessibleInterface(m_slider);
    QCOMPARE(group->childAt(corner.x() + 26, corner.y() + 10), handle(0));
    QCOMPARE(group->childAt(corner.x() + 62, corner.y() + 10), handle(1));
    QVERIFY(!group->childAt(corner.x() + 45, corner.y() + 10));
    m_slider->setQxtSpanRange(100, 0);
    QCOMPARE(handle(0)->rect().left(), corner.x() + 84 - 8);
    m_slider->hide();
    QCOMPARE(handle(0)->rect(), QRect());
}

void tst_TalvoDoubleSliderAccessible::statesFollowTheSlider()
{
    QVERIFY(!handle(0)->state().disabled);
    QVERIFY(!handle(0)->state().invisible);
    m_slider->setEnabled(false);
    QVERIFY(handle(0)->state().disabled);
    m_slider->hide();
    QVERIFY(handle(1)->state().invisible);
}

void tst_TalvoDoubleSliderAccessible::goesWithTheSlider()
{
    QAccessibleInterface *group = QAccessible::queryAccessibleInterface(m_slider);
    const QAccessible::Id groupId = QAccessible::uniqueId(group);
    const QAccessible::Id handleId = QAccessible::uniqueId(group->child(0));
    QVERIFY(QAccessible::accessibleInterface(handleId));
    delete m_slider;
    QVERIFY(!QAccessible::accessibleInterface(groupId));
    QVERIFY(!QAccessible::accessibleInterface(handleId));
}

void tst_TalvoDoubleSliderAccessible::deletedFromASlot()
{
    const QPointer<TalvoDoubleSlider> slider = m_slider;
    connect(m_slider, &TalvoDoubleSlider::lowerValueChanged, this, [slider] { delete slider; });
    handle(0)->valueInterface()->setCurrentValue(1.0);
    QVERIFY(slider.isNull());
}

LMTEST_MAIN(tst_TalvoDoubleSliderAccessible)

#include "tst_talvodoubleslider_accessible.moc"
