/** @file
 * The busy box that a worker drives, and the second frame, under a user's hands on a real X11
 * desktop.
 */

#include "desktoptest.h"

class tst_DesktopWaiting : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void stopByMouse();
    void keysDoNothing();
    void mainWindowIsBlocked();

    void secondFrameDrag();
    void secondFrameResize_data();
    void secondFrameResize();
    void secondFrameEnds_data();
    void secondFrameEnds();
    void secondFrameEscape();
    void secondFrameTabOrder();
    void secondFrameMaximize();
    void secondFrameTakesTheKeyboardBack();

private:
    void startWork(Host &host);
    void rememberBox(Host &host);
    void clickStop(Host &host);

    QString m_boxWindow;
};

/** Starts the worker by the main window's button and waits for its box. */
void tst_DesktopWaiting::startWork(Host &host)
{
    STEP(expect(host, QStringLiteral("painted main .*")));
    STEP(expect(host, QStringLiteral("active main")));
    host.mark();
    STEP(click(host, QStringLiteral("main-button")));
    STEP(expect(host, QStringLiteral("working")));
    STEP(expect(host, QStringLiteral("painted busy .*")));
    STEP(rememberBox(host));
    host.mark();
}

/** Waits until the box has the keyboard and asks the server which window that is. */
void tst_DesktopWaiting::rememberBox(Host &host)
{
    STEP(expect(host, QStringLiteral("active busy")));
    m_boxWindow = m_desktop.xdotool(QStringLiteral("getwindowfocus")).trimmed();
    QVERIFY(!m_boxWindow.isEmpty());
}

/**
 * Clicks the stop button of the box. Qt takes a window without a frame
 * for one that stands in the corner of the screen when it hears of it while the window manager is
 * still busy placing it, so that only the place within the window can be relied on.
 */
void tst_DesktopWaiting::clickStop(Host &host)
{
    const QRect box = host.where(QStringLiteral("busy"));
    const QRect stop = host.where(QStringLiteral("stop"));
    QVERIFY2(box.isValid() && stop.isValid(), qPrintable(host.report(QStringLiteral("stop"))));
    const QString place = pointText(stop.center() - box.topLeft());
    input(QStringLiteral("mousemove --window %1 %2 click 1").arg(m_boxWindow, place));
}

void tst_DesktopWaiting::stopByMouse()
{
    Host host(m_desktop, QStringLiteral("waiting"));
    STEP(startWork(host));
    STEP(clickStop(host));
    STEP(expect(host, QStringLiteral("canceled")));
    STEP(expect(host, QStringLiteral("hidden busy")));
    STEP(expect(host, QStringLiteral("ended")));
    STEP(expect(host, QStringLiteral("active main")));
    STEP(expectNot(host, QStringLiteral("finished .*")));
    STEP(click(host, QStringLiteral("main-edit")));
    STEP(type(QStringLiteral("a")));
    STEP(expect(host, QStringLiteral("text main-edit a")));

    // From now on the box has no parent.
    host.mark();
    STEP(click(host, QStringLiteral("main-button")));
    STEP(rememberBox(host));
    STEP(clickStop(host));
    STEP(expect(host, QStringLiteral("canceled")));
    STEP(expect(host, QStringLiteral("ended")));
}

void tst_DesktopWaiting::keysDoNothing()
{
    Host host(m_desktop, QStringLiteral("waiting"));
    STEP(startWork(host));
    STEP(input(QStringLiteral("key Escape Escape a F1 ctrl+w")));
    QVERIFY(host.where(QStringLiteral("busy")).isValid());
    STEP(clickStop(host));
    STEP(expect(host, QStringLiteral("ended")));
    // The keys came before the click, and none of them had ended anything.
    STEP(expectNot(host, QStringLiteral("finished .*|text .*")));
}

void tst_DesktopWaiting::mainWindowIsBlocked()
{
    Host host(m_desktop, QStringLiteral("waiting"));
    STEP(startWork(host));
    const QRect main = host.where(QStringLiteral("main"));
    STEP(clickAt(main.topLeft() + QPoint(4, main.height() - 4)));
    STEP(type(QStringLiteral("lost")));
    QVERIFY(host.where(QStringLiteral("busy")).isValid());
    STEP(clickStop(host));
    STEP(expect(host, QStringLiteral("ended")));
    STEP(expectNot(host, QStringLiteral("text .*|working")));
}

void tst_DesktopWaiting::secondFrameDrag()
{
    Host host(m_desktop, QStringLiteral("secondframe"));
    STEP(showDialog(host));
    const QPoint from = DialogRect.topLeft() + QPoint(150, 20);
    STEP(drag(from, from + QPoint(60, 40)));
    STEP(expectGeometry(host, QStringLiteral("dialog"), DialogRect.translated(60, 40)));
}

void tst_DesktopWaiting::secondFrameResize_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QRect>("expected");
    const QPoint topLeft = DialogRect.topLeft();
    const QPoint bottomRight = DialogRect.bottomRight();
    const QPoint middle = DialogRect.center();
    QTest::newRow("right") << QPoint(bottomRight.x() - 2, middle.y()) << QPoint(770, middle.y())
                           << QRect(topLeft, QPoint(770, bottomRight.y()));
    QTest::newRow("bottom right") << bottomRight - QPoint(1, 1) << QPoint(780, 520)
                                  << QRect(topLeft, QPoint(780, 520));
    QTest::newRow("top left") << topLeft + QPoint(1, 1) << QPoint(250, 110)
                              << QRect(QPoint(250, 110), bottomRight);
    QTest::newRow("below the minimum") << bottomRight - QPoint(1, 1) << QPoint(340, 520)
                                       << QRect(topLeft, QPoint(bottomRight.x(), 520));
}

void tst_DesktopWaiting::secondFrameResize()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(QRect, expected);
    Host host(m_desktop, QStringLiteral("secondframe"));
    STEP(showDialog(host));
    STEP(drag(from, to));
    STEP(expectGeometry(host, QStringLiteral("dialog"), expected));
    STEP(click(host, QStringLiteral("second")));
    STEP(type(QStringLiteral("ab")));
    STEP(expect(host, QStringLiteral("text second ab")));
}

void tst_DesktopWaiting::secondFrameEnds_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<int>("code");
    QTest::newRow("OK") << QStringLiteral("ok") << 1;
    QTest::newRow("Cancel") << QStringLiteral("cancel") << 0;
    QTest::newRow("close") << QStringLiteral("close") << 0;
    QTest::newRow("Return") << QStringLiteral("Return") << 1;
}

void tst_DesktopWaiting::secondFrameEnds()
{
    QFETCH(QString, how);
    QFETCH(int, code);
    Host host(m_desktop, QStringLiteral("secondframe"));
    STEP(showDialog(host));
    if (how == QLatin1String("Return")) {
        STEP(key(how));
    } else {
        STEP(click(host, how));
    }
    STEP(expect(host, QStringLiteral("finished dialog %1").arg(code)));
}

void tst_DesktopWaiting::secondFrameEscape()
{
    Host host(m_desktop, QStringLiteral("secondframe"));
    STEP(showDialog(host));
    STEP(key(QStringLiteral("Escape")));
    STEP(type(QStringLiteral("still")));
    STEP(expect(host, QStringLiteral("text edit still")));
    STEP(expectNot(host, QStringLiteral("finished .*|hidden .*")));
}

void tst_DesktopWaiting::secondFrameTabOrder()
{
    Host host(m_desktop, QStringLiteral("secondframe"));
    STEP(showDialog(host));
    STEP(expect(host, QStringLiteral("focus edit")));
    for (const char *next : {"second", "cancel", "ok", "edit"}) {
        host.mark();
        STEP(key(QStringLiteral("Tab")));
        STEP(expect(host, QLatin1String("focus ") + QLatin1String(next)));
    }
}

void tst_DesktopWaiting::secondFrameMaximize()
{
    Host host(m_desktop, QStringLiteral("secondframe"));
    STEP(showDialog(host));
    STEP(click(host, QStringLiteral("maximize")));
    STEP(expectGeometry(host, QStringLiteral("dialog"), ScreenRect));
    STEP(expect(host, QStringLiteral("state dialog maximized")));
    QTRY_VERIFY(!host.where(QStringLiteral("maximize")).isValid());
    STEP(click(host, QStringLiteral("restore")));
    STEP(expectGeometry(host, QStringLiteral("dialog"), DialogRect));
    QTRY_VERIFY(host.where(QStringLiteral("maximize")).isValid());
}

void tst_DesktopWaiting::secondFrameTakesTheKeyboardBack()
{
    Host host(m_desktop, QStringLiteral("secondframe"));
    STEP(showDialog(host));
    Host other(m_desktop, QStringLiteral("other"));
    STEP(expect(other, QStringLiteral("painted other .*")));
    STEP(click(other, QStringLiteral("other-edit")));
    STEP(expect(other, QStringLiteral("active other")));
    STEP(expect(host, QStringLiteral("inactive dialog")));
    host.mark();
    STEP(click(host, QStringLiteral("edit")));
    STEP(expect(host, QStringLiteral("active dialog")));
    STEP(type(QStringLiteral("here")));
    STEP(expect(host, QStringLiteral("text edit here")));
    STEP(expectNot(other, QStringLiteral("text .*")));
}

QTEST_GUILESS_MAIN(tst_DesktopWaiting)

#include "tst_desktopwaiting.moc"
