/** @file
 * The switches, the value dialog and a balloon under a user's hands on a real X11 desktop.
 */

#include "desktoptest.h"

class tst_DesktopShapes : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void toggleEdges_data();
    void toggleEdges();
    void roundEdges_data();
    void roundEdges();
    void typeAValue();
    void escapeKeepsNothing();
    void dragTheValueDialog();
    void balloonAtItsControl();
    void escapeClosesTheBalloon();

private:
    void clickAt(const QPoint &place, int button = 1);
};

void tst_DesktopShapes::clickAt(const QPoint &place, int button)
{
    input(QStringLiteral("mousemove %1 click %2").arg(pointText(place)).arg(button));
}

void tst_DesktopShapes::toggleEdges_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("toggles");
    QTest::newRow("left of the track") << QPoint(0, 15) << 1 << true;
    QTest::newRow("last live column") << QPoint(42, 15) << 1 << true;
    QTest::newRow("end of the track") << QPoint(44, 15) << 1 << false;
    QTest::newRow("first live row") << QPoint(20, 3) << 1 << true;
    QTest::newRow("above the track") << QPoint(20, 2) << 1 << false;
    QTest::newRow("last live row") << QPoint(20, 27) << 1 << true;
    QTest::newRow("below the track") << QPoint(20, 28) << 1 << false;
    QTest::newRow("text") << QPoint(80, 15) << 1 << false;
    QTest::newRow("right button") << QPoint(20, 15) << 3 << false;
}

void tst_DesktopShapes::toggleEdges()
{
    QFETCH(QPoint, place);
    QFETCH(int, button);
    QFETCH(bool, toggles);
    Host host(m_desktop, QStringLiteral("switches"));
    STEP(expect(host, QStringLiteral("painted settings .*")));
    const QRect toggle = host.where(QStringLiteral("toggle"));
    QVERIFY(toggle.isValid());
    STEP(clickAt(toggle.topLeft() + place, button));
    // The other switch answers in any case: by then the first click has been heard or never will.
    STEP(clickAt(host.where(QStringLiteral("round")).center()));
    STEP(expect(host, QStringLiteral("toggled round on")));
    QCOMPARE(host.hasSaid(QStringLiteral("toggled toggle on")), toggles);
}

void tst_DesktopShapes::roundEdges_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("toggles");
    QTest::newRow("first pixel") << QPoint(0, 0) << 1 << true;
    QTest::newRow("last pixel") << QPoint(59, 29) << 1 << true;
    QTest::newRow("right of it") << QPoint(60, 15) << 1 << false;
    QTest::newRow("below it") << QPoint(30, 30) << 1 << false;
    QTest::newRow("right button") << QPoint(30, 15) << 3 << true;
}

void tst_DesktopShapes::roundEdges()
{
    QFETCH(QPoint, place);
    QFETCH(int, button);
    QFETCH(bool, toggles);
    Host host(m_desktop, QStringLiteral("switches"));
    STEP(expect(host, QStringLiteral("painted settings .*")));
    const QRect round = host.where(QStringLiteral("round"));
    QCOMPARE(round.size(), QSize(60, 30));
    STEP(clickAt(round.topLeft() + place, button));
    STEP(clickAt(host.where(QStringLiteral("toggle")).topLeft() + QPoint(20, 15)));
    STEP(expect(host, QStringLiteral("toggled toggle on")));
    QCOMPARE(host.hasSaid(QStringLiteral("toggled round on")), toggles);
}

void tst_DesktopShapes::typeAValue()
{
    Host host(m_desktop, QStringLiteral("value"));
    STEP(expect(host, QStringLiteral("painted value .*")));
    STEP(expect(host, QStringLiteral("active value")));
    STEP(expect(host, QStringLiteral("focus doubleSpinBox")));
    STEP(input(QStringLiteral("key ctrl+a type 12.25")));
    STEP(input(QStringLiteral("key Return")));
    STEP(expect(host, QStringLiteral("finished value 1")));
    STEP(expect(host, QStringLiteral("value 12.25")));
}

void tst_DesktopShapes::escapeKeepsNothing()
{
    Host host(m_desktop, QStringLiteral("value"));
    STEP(expect(host, QStringLiteral("active value")));
    STEP(expect(host, QStringLiteral("focus doubleSpinBox")));
    STEP(input(QStringLiteral("key Escape")));
    STEP(expect(host, QStringLiteral("finished value 0")));
    STEP(expect(host, QStringLiteral("value 7.5")));
}

void tst_DesktopShapes::dragTheValueDialog()
{
    Host host(m_desktop, QStringLiteral("value"));
    STEP(expect(host, QStringLiteral("painted value .*")));
    const QRect before = host.where(QStringLiteral("value"));
    const QPoint grip = before.topLeft() + QPoint(200, 30);
    STEP(input(QStringLiteral("mousemove %1 mousedown 1").arg(pointText(grip))));
    STEP(input(QStringLiteral("mousemove %1").arg(pointText(grip + QPoint(20, 15)))));
    STEP(input(QStringLiteral("mousemove %1 mouseup 1").arg(pointText(grip + QPoint(40, 30)))));
    QVERIFY2(host.waitForGeometry(QStringLiteral("value"), before.translated(40, 30)),
             qPrintable(host.report(QStringLiteral("the dragged dialog"))));
}

void tst_DesktopShapes::balloonAtItsControl()
{
    Host host(m_desktop, QStringLiteral("balloon"));
    STEP(expect(host, QStringLiteral("painted main .*")));
    const QRect opener = host.where(QStringLiteral("opener"));
    STEP(clickAt(opener.center()));
    STEP(expect(host, QStringLiteral("painted balloon .*")));
    const QRect expected(opener.x() + opener.width() / 2 - 100, opener.y() + opener.height(), 200,
                         80);
    QVERIFY2(host.waitForGeometry(QStringLiteral("balloon"), expected),
             qPrintable(host.report(QStringLiteral("the balloon below its control"))));
    STEP(clickAt(host.where(QStringLiteral("done")).center()));
    STEP(expect(host, QStringLiteral("finished balloon 1")));
}

void tst_DesktopShapes::escapeClosesTheBalloon()
{
    Host host(m_desktop, QStringLiteral("balloon"));
    STEP(expect(host, QStringLiteral("painted main .*")));
    STEP(clickAt(host.where(QStringLiteral("opener")).center()));
    STEP(expect(host, QStringLiteral("active balloon")));
    STEP(input(QStringLiteral("key Escape")));
    STEP(expect(host, QStringLiteral("finished balloon 0")));
}

QTEST_GUILESS_MAIN(tst_DesktopShapes)

#include "tst_desktopshapes.moc"
