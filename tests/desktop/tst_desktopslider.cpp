/** @file
 * A double slider under a user's hands on a real X11 desktop.
 */

#include "desktoptest.h"

class tst_DesktopSlider : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void handlesCross_data();
    void handlesCross();
    void liveStrip_data();
    void liveStrip();
    void dragPastTheEnds();

private:
    void showSlider(Host &host);
    void pressAt(const QPoint &place);
    void moveTo(const QPoint &place);

    QPoint m_corner;
};

void tst_DesktopSlider::showSlider(Host &host)
{
    STEP(expect(host, QStringLiteral("painted filter .*")));
    STEP(expect(host, QStringLiteral("active filter")));
    const QRect slider = host.where(QStringLiteral("slider"));
    QCOMPARE(slider.size(), QSize(110, 20));
    m_corner = slider.topLeft();
    host.mark();
}

void tst_DesktopSlider::pressAt(const QPoint &place)
{
    input(QStringLiteral("mousemove %1 mousedown 1").arg(pointText(m_corner + place)));
}

void tst_DesktopSlider::moveTo(const QPoint &place)
{
    input(QStringLiteral("mousemove %1").arg(pointText(m_corner + place)));
}

void tst_DesktopSlider::handlesCross_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("before");
    QTest::addColumn<QString>("beforeHeard");
    QTest::addColumn<int>("after");
    QTest::addColumn<QString>("afterHeard");
    QTest::addColumn<QString>("backHeard");
    QTest::newRow("first to the right") << 25 << 55 << "lower 50" << 95 << "upper 90"
                                        << "lower 50";
    QTest::newRow("second to the left") << 65 << 35 << "upper 30" << 10 << "lower 5"
                                        << "upper 30";
}

void tst_DesktopSlider::handlesCross()
{
    QFETCH(int, from);
    QFETCH(int, before);
    QFETCH(QString, beforeHeard);
    QFETCH(int, after);
    QFETCH(QString, afterHeard);
    QFETCH(QString, backHeard);
    Host host(m_desktop, QStringLiteral("slider"));
    STEP(showSlider(host));
    STEP(pressAt(QPoint(from, 10)));
    STEP(moveTo(QPoint(before, 10)));
    STEP(expect(host, beforeHeard));
    host.mark();
    STEP(moveTo(QPoint(after, 10)));
    STEP(expect(host, afterHeard));
    STEP(expectNot(host, backHeard));
    host.mark();
    STEP(moveTo(QPoint(before, 10)));
    STEP(expect(host, backHeard));
    STEP(input(QStringLiteral("mouseup 1")));
    // A press, the move of which nothing may hear, and then a drag that is heard again.
    host.mark();
    STEP(moveTo(QPoint(after, 10)));
    STEP(moveTo(QPoint(before, 10)));
    STEP(pressAt(QPoint(before, 10)));
    STEP(moveTo(QPoint(before + 3, 10)));
    STEP(expect(host, QStringLiteral("(lower|upper) %1").arg(before + 3 - 5)));
    STEP(expectNot(host, afterHeard));
    input(QStringLiteral("mouseup 1"));
}

void tst_DesktopSlider::liveStrip_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<bool>("grabs");
    QTest::newRow("5 above") << QPoint(25, 5) << true;
    QTest::newRow("6 above") << QPoint(25, 4) << false;
    QTest::newRow("5 below") << QPoint(25, 15) << true;
    QTest::newRow("6 below") << QPoint(25, 16) << false;
    QTest::newRow("4 to the left") << QPoint(21, 10) << true;
    QTest::newRow("5 to the left") << QPoint(20, 10) << false;
    QTest::newRow("4 to the right") << QPoint(29, 10) << true;
    QTest::newRow("5 to the right") << QPoint(30, 10) << false;
    QTest::newRow("between the handles") << QPoint(45, 10) << false;
}

void tst_DesktopSlider::liveStrip()
{
    QFETCH(QPoint, place);
    QFETCH(bool, grabs);
    Host host(m_desktop, QStringLiteral("slider"));
    STEP(showSlider(host));
    STEP(pressAt(place));
    STEP(moveTo(QPoint(50, 10)));
    STEP(input(QStringLiteral("mouseup 1")));
    // The second handle answers in any case: by then the first drag has been heard or never will.
    STEP(pressAt(QPoint(65, 10)));
    STEP(moveTo(QPoint(85, 10)));
    STEP(expect(host, QStringLiteral("upper 80")));
    QCOMPARE(host.hasSaid(QStringLiteral("lower 45")), grabs);
    input(QStringLiteral("mouseup 1"));
}

void tst_DesktopSlider::dragPastTheEnds()
{
    Host host(m_desktop, QStringLiteral("slider"));
    STEP(showSlider(host));
    STEP(pressAt(QPoint(65, 10)));
    STEP(moveTo(QPoint(105, 10)));
    STEP(expect(host, QStringLiteral("upper 100")));
    host.mark();
    STEP(moveTo(QPoint(140, 10)));
    STEP(moveTo(QPoint(80, 40)));
    STEP(moveTo(QPoint(80, 10)));
    STEP(expect(host, QStringLiteral("upper 75")));
    STEP(expectNot(host, QStringLiteral("lower .*|upper (?!75).*")));
    input(QStringLiteral("mouseup 1"));
}

QTEST_GUILESS_MAIN(tst_DesktopSlider)

#include "tst_desktopslider.moc"
