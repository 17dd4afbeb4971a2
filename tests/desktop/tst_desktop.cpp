/** @file
 * Moving, resizing and the title buttons of frameless dialogs on a real X11 desktop with a window
 * manager and real mouse and key input: what no test without a display can see.
 */

#include "desktoptest.h"

class tst_Desktop : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void dragByTheTitleArea_data();
    void dragByTheTitleArea();
    void dragWithRubberBand();
    void noDragBelowTheTitleArea();
    void resize_data();
    void resize();
    void resizeStopsAtTheMinimum();
    void resizeWithRubberBand_data();
    void resizeWithRubberBand();
    void resizeCursors();
    void maximizeAndRestore();
    void maximizedStaysMaximizedWhenDragged();
    void hostEndsTheMaximizedState();
    void shownMaximizedFirst();
    void minimizeTakesTheParentAlong();
    void minimizeModalKeepsItRunning();
    void minimizeTakesTheDialogsBelowAlong();
    void minimizeWithoutParentLosesNothing();
    void closeButton();

private:
    void expectPointer(const QString &picture);
};

/** Waits until the mouse pointer looks like @p picture. */
void tst_Desktop::expectPointer(const QString &picture)
{
    QTRY_COMPARE_WITH_TIMEOUT(m_desktop.pointerPicture(), picture, TimeoutMs);
}

void tst_Desktop::dragByTheTitleArea_data()
{
    QTest::addColumn<int>("y");
    QTest::newRow("at its top") << 0;
    QTest::newRow("in the title bar") << 30;
    QTest::newRow("in its last row") << 57;
}

void tst_Desktop::dragByTheTitleArea()
{
    QFETCH(int, y);
    Host host(m_desktop, QStringLiteral("dialog"));
    STEP(showDialog(host));

    const QPoint from = DialogRect.topLeft() + QPoint(200, y);
    STEP(drag(from, from + QPoint(60, 40)));
    STEP(expectGeometry(host, QStringLiteral("dialog"), DialogRect.translated(60, 40)));
}

void tst_Desktop::dragWithRubberBand()
{
    Host host(m_desktop, QStringLiteral("resizable-band"));
    STEP(showDialog(host));
    host.mark();

    const QPoint from = DialogRect.topLeft() + QPoint(200, 30);
    const QPoint to = from + QPoint(60, 40);
    STEP(input(QStringLiteral("mousemove %1 mousedown 1 mousemove %2")
                   .arg(pointText(from), pointText(to))));
    // The band is inset by 10 px at the left and the top, and the dialog takes its geometry.
    const QRect band(DialogRect.topLeft() + QPoint(60, 40), DialogRect.size() - QSize(10, 10));
    STEP(expectGeometry(host, QStringLiteral("band"), band));
    STEP(expectNot(host, QStringLiteral("geometry dialog .*")));
    STEP(input(QStringLiteral("mouseup 1")));
    STEP(expectGeometry(host, QStringLiteral("dialog"), band));
    STEP(expect(host, QStringLiteral("hidden band")));
}

void tst_Desktop::noDragBelowTheTitleArea()
{
    Host host(m_desktop, QStringLiteral("dialog"));
    STEP(showDialog(host));
    host.mark();

    const QPoint below = DialogRect.topLeft() + QPoint(200, 58);
    STEP(drag(below, below + QPoint(60, 40)));
    // The key arrives after all that the mouse did.
    STEP(type(QStringLiteral("a")));
    STEP(expect(host, QStringLiteral("text edit a")));
    STEP(expectNot(host, QStringLiteral("geometry dialog .*")));
}

void tst_Desktop::resize_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QRect>("expected");

    // The edge itself goes to where the mouse is, wherever in the border it was pressed.
    const QPoint topLeft = DialogRect.topLeft();
    const QPoint bottomRight = DialogRect.bottomRight();
    const QPoint middle = DialogRect.center();
    QTest::newRow("left") << QPoint(topLeft.x() + 2, middle.y()) << QPoint(260, middle.y())
                          << QRect(QPoint(260, topLeft.y()), bottomRight);
    QTest::newRow("right") << QPoint(bottomRight.x() - 2, middle.y()) << QPoint(770, middle.y())
                           << QRect(topLeft, QPoint(770, bottomRight.y()));
    QTest::newRow("top") << QPoint(middle.x(), topLeft.y() + 2) << QPoint(middle.x(), 120)
                         << QRect(QPoint(topLeft.x(), 120), bottomRight);
    QTest::newRow("bottom") << QPoint(middle.x(), bottomRight.y() - 2) << QPoint(middle.x(), 500)
                            << QRect(topLeft, QPoint(bottomRight.x(), 500));
    QTest::newRow("top left") << topLeft + QPoint(1, 1) << QPoint(250, 110)
                              << QRect(QPoint(250, 110), bottomRight);
    QTest::newRow("bottom right") << bottomRight - QPoint(1, 1) << QPoint(780, 520)
                                  << QRect(topLeft, QPoint(780, 520));
    QTest::newRow("top right") << QPoint(bottomRight.x() - 1, topLeft.y() + 1) << QPoint(780, 110)
                               << QRect(QPoint(topLeft.x(), 110), QPoint(780, bottomRight.y()));
    QTest::newRow("bottom left") << QPoint(topLeft.x() + 1, bottomRight.y() - 1) << QPoint(250, 520)
                                 << QRect(QPoint(250, topLeft.y()), QPoint(bottomRight.x(), 520));
}

void tst_Desktop::resize()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(QRect, expected);
    Host host(m_desktop, QStringLiteral("resizable"));
    STEP(showDialog(host));

    STEP(drag(from, to));
    STEP(expectGeometry(host, QStringLiteral("dialog"), expected));
    // The content still works in its new place.
    STEP(click(host, QStringLiteral("second")));
    STEP(expect(host, QStringLiteral("focus second")));
    STEP(type(QStringLiteral("ab")));
    STEP(expect(host, QStringLiteral("text second ab")));
}

void tst_Desktop::resizeStopsAtTheMinimum()
{
    Host host(m_desktop, QStringLiteral("resizable"));
    STEP(showDialog(host));

    // Far too narrow: the width stays as it is, while the height follows.
    STEP(drag(DialogRect.bottomRight() - QPoint(1, 1), QPoint(340, 520)));
    STEP(expectGeometry(host, QStringLiteral("dialog"),
                        QRect(DialogRect.topLeft(), QPoint(DialogRect.right(), 520))));
}

void tst_Desktop::resizeWithRubberBand_data()
{
    resize_data();
}

void tst_Desktop::resizeWithRubberBand()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(QRect, expected);
    Host host(m_desktop, QStringLiteral("resizable-band"));
    STEP(showDialog(host));
    host.mark();

    STEP(input(QStringLiteral("mousemove %1 mousedown 1 mousemove %2")
                   .arg(pointText(from), pointText(to))));
    STEP(expectGeometry(host, QStringLiteral("band"), expected));
    STEP(expectNot(host, QStringLiteral("geometry dialog .*")));
    STEP(input(QStringLiteral("mouseup 1")));
    STEP(expectGeometry(host, QStringLiteral("dialog"), expected));
    STEP(expect(host, QStringLiteral("hidden band")));
}

void tst_Desktop::resizeCursors()
{
    QHash<QString, QString> pictures;
    {
        // What the server shows for each of Qt's cursors depends on the cursor theme.
        Host host(m_desktop, QStringLiteral("cursors"));
        STEP(expect(host, QStringLiteral("painted cursors .*")));
        STEP(expect(host, QStringLiteral("active cursors")));
        QString previous = m_desktop.pointerPicture();
        QVERIFY2(!previous.isNull(),
                 "no picture of the mouse pointer: is libxfixes-dev installed?");
        const QStringList names{QStringLiteral("hor"), QStringLiteral("ver"),
                                QStringLiteral("fdiag"), QStringLiteral("bdiag"),
                                QStringLiteral("arrow")};
        for (const QString &name : names) {
            const QRect label = host.where(name);
            QVERIFY2(label.isValid(), qPrintable(host.report(name)));
            STEP(input(QLatin1String("mousemove ") + pointText(label.center())));
            QTRY_VERIFY_WITH_TIMEOUT(m_desktop.pointerPicture() != previous, TimeoutMs);
            previous = m_desktop.pointerPicture();
            pictures.insert(name, previous);
        }
        for (const QString &name : names) {
            QCOMPARE(pictures.keys(pictures.value(name)).size(), 1);
        }
    }

    Host host(m_desktop, QStringLiteral("resizable"));
    STEP(showDialog(host));
    const QRect r = DialogRect;
    const struct
    {
        QPoint position;
        const char *cursor;
    } places[] = {
        {{r.left() + 2, r.center().y()}, "hor"},    {r.center() + QPoint(0, 80), "arrow"},
        {{r.right() - 2, r.center().y()}, "hor"},   {{r.center().x(), r.top() + 2}, "ver"},
        {{r.left() + 100, r.top() + 8}, "arrow"},   {{r.center().x(), r.bottom() - 2}, "ver"},
        {{r.left() + 2, r.top() + 2}, "fdiag"},     {{r.right() - 2, r.top() + 2}, "bdiag"},
        {{r.right() - 2, r.bottom() - 2}, "fdiag"}, {{r.left() + 2, r.bottom() - 2}, "bdiag"}};
    for (const auto &place : places) {
        STEP(input(QLatin1String("mousemove ") + pointText(place.position)));
        STEP(expectPointer(pictures.value(QLatin1String(place.cursor))));
    }
}

void tst_Desktop::maximizeAndRestore()
{
    Host host(m_desktop, QStringLiteral("title-buttons"));
    STEP(showDialog(host));
    for (int i = 0; i < 2; ++i) {
        host.mark();
        STEP(click(host, QStringLiteral("maximize")));
        STEP(expectGeometry(host, QStringLiteral("dialog"), ScreenRect));
        STEP(expect(host, QStringLiteral("state dialog maximized")));
        QVERIFY(!host.where(QStringLiteral("maximize")).isValid());

        STEP(click(host, QStringLiteral("restore")));
        STEP(expectGeometry(host, QStringLiteral("dialog"), DialogRect));
        STEP(expect(host, QStringLiteral("state dialog normal")));
        QVERIFY(!host.where(QStringLiteral("restore")).isValid());
    }
    STEP(type(QStringLiteral("still")));
    STEP(expect(host, QStringLiteral("text edit still")));
}

void tst_Desktop::maximizedStaysMaximizedWhenDragged()
{
    Host host(m_desktop, QStringLiteral("title-buttons"));
    STEP(showDialog(host));
    STEP(click(host, QStringLiteral("maximize")));
    STEP(expectGeometry(host, QStringLiteral("dialog"), ScreenRect));

    STEP(drag(QPoint(400, 30), QPoint(460, 90)));
    STEP(expect(host, QStringLiteral("geometry dialog 60 60 .*")));
    STEP(expectGeometry(host, QStringLiteral("dialog"), ScreenRect));
    STEP(click(host, QStringLiteral("restore")));
    STEP(expectGeometry(host, QStringLiteral("dialog"), DialogRect));
    QVERIFY(host.where(QStringLiteral("maximize")).isValid());
}

void tst_Desktop::hostEndsTheMaximizedState()
{
    Host host(m_desktop, QStringLiteral("title-buttons"));
    STEP(showDialog(host));
    STEP(click(host, QStringLiteral("maximize")));
    STEP(expectGeometry(host, QStringLiteral("dialog"), ScreenRect));

    // Its size is frozen at the one that it was shown with.
    host.order(QStringLiteral("move dialog"));
    const QRect moved(QPoint(20, 20), DialogRect.size());
    STEP(expectGeometry(host, QStringLiteral("dialog"), moved));
    STEP(click(host, QStringLiteral("second")));
    STEP(expect(host, QStringLiteral("focus second")));
    STEP(type(QStringLiteral("a")));
    STEP(expect(host, QStringLiteral("text second a")));
    QCOMPARE(host.lastGeometry(QStringLiteral("dialog")), moved);
}

void tst_Desktop::shownMaximizedFirst()
{
    Host host(m_desktop, QStringLiteral("maximized-first"));
    STEP(expect(host, QStringLiteral("active dialog")));
    STEP(expectGeometry(host, QStringLiteral("dialog"), ScreenRect));
    STEP(click(host, QStringLiteral("restore")));
    STEP(expectGeometry(host, QStringLiteral("dialog"), DialogRect));
}

void tst_Desktop::minimizeTakesTheParentAlong()
{
    Host host(m_desktop, QStringLiteral("title-buttons-parent"));
    STEP(expect(host, QStringLiteral("painted main .*")));
    STEP(showDialog(host));
    const QString main = m_desktop.xdotool(QStringLiteral("search --onlyvisible --name ^main$"));
    QVERIFY(!main.isEmpty());

    STEP(click(host, QStringLiteral("minimize")));
    STEP(expect(host, QStringLiteral("hidden dialog")));
    STEP(expect(host, QStringLiteral("state main minimized")));
    QTRY_VERIFY_WITH_TIMEOUT(
        m_desktop.xdotool(QStringLiteral("search --onlyvisible --name ^main$")).isEmpty(),
        TimeoutMs);
    QVERIFY(!host.where(QStringLiteral("dialog")).isValid());
    STEP(expectNot(host, QStringLiteral("finished .*")));

    host.mark();
    STEP(input(QLatin1String("windowactivate ") + main));
    STEP(expect(host, QStringLiteral("state main normal")));
    STEP(showDialog(host));
    STEP(type(QStringLiteral("back")));
    STEP(expect(host, QStringLiteral("text edit back")));
}

void tst_Desktop::minimizeModalKeepsItRunning()
{
    Host host(m_desktop, QStringLiteral("modal"));
    STEP(openFromMain(host));
    const QString main = m_desktop.xdotool(QStringLiteral("search --onlyvisible --name ^main$"));
    QVERIFY(!main.isEmpty());

    host.mark();
    STEP(click(host, QStringLiteral("minimize")));
    STEP(expect(host, QStringLiteral("state main minimized")));
    QTRY_VERIFY_WITH_TIMEOUT(
        m_desktop.xdotool(QStringLiteral("search --onlyvisible --name ^main$")).isEmpty(),
        TimeoutMs);
    STEP(input(QLatin1String("windowactivate ") + main));
    STEP(showDialog(host));
    STEP(expectNot(host, QStringLiteral("(exec|finished) .*")));

    // It is modal as before.
    host.mark();
    STEP(click(host, QStringLiteral("main-button")));
    STEP(click(host, QStringLiteral("edit")));
    // Qt takes the keyboard from the main window back to the dialog; nothing tells when.
    QTRY_VERIFY_WITH_TIMEOUT(
        (key(QStringLiteral("x")), host.hasSaid(QStringLiteral("text edit x+"))), TimeoutMs);
    STEP(expectNot(host, QStringLiteral("clicked main-button")));
    STEP(click(host, QStringLiteral("ok")));
    STEP(expect(host, QStringLiteral("exec 1")));
}

void tst_Desktop::minimizeTakesTheDialogsBelowAlong()
{
    Host host(m_desktop, QStringLiteral("nested"));
    STEP(openFromMain(host));
    STEP(click(host, QStringLiteral("more")));
    STEP(expect(host, QStringLiteral("painted inner .*")));
    STEP(expect(host, QStringLiteral("active inner")));
    const QString main = m_desktop.xdotool(QStringLiteral("search --onlyvisible --name ^main$"));
    QVERIFY(!main.isEmpty());

    STEP(click(host, QStringLiteral("inner-minimize")));
    STEP(expect(host, QStringLiteral("state main minimized")));
    STEP(expect(host, QStringLiteral("hidden inner")));
    STEP(expect(host, QStringLiteral("hidden dialog")));
    QTRY_VERIFY_WITH_TIMEOUT(
        m_desktop.xdotool(QStringLiteral("search --onlyvisible --name ^main$")).isEmpty(),
        TimeoutMs);

    host.mark();
    STEP(input(QLatin1String("windowactivate ") + main));
    STEP(expect(host, QStringLiteral("painted dialog .*")));
    STEP(expect(host, QStringLiteral("painted inner .*")));
    STEP(expect(host, QStringLiteral("active inner")));
    // Clicks reach the inner dialog, which stands above the other.
    STEP(click(host, QStringLiteral("inner-edit")));
    QTRY_VERIFY_WITH_TIMEOUT(
        (key(QStringLiteral("x")), host.hasSaid(QStringLiteral("text inner-edit x+"))), TimeoutMs);
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("exec 1")));
    STEP(expect(host, QStringLiteral("active dialog")));
}

void tst_Desktop::minimizeWithoutParentLosesNothing()
{
    Host host(m_desktop, QStringLiteral("title-buttons"));
    STEP(showDialog(host));
    host.mark();
    STEP(click(host, QStringLiteral("minimize")));
    STEP(expect(host, QStringLiteral("state dialog normal")));
    STEP(click(host, QStringLiteral("second")));
    STEP(expect(host, QStringLiteral("focus second")));
    STEP(type(QStringLiteral("alive")));
    STEP(expect(host, QStringLiteral("text second alive")));
    QCOMPARE(host.lastGeometry(QStringLiteral("dialog")), DialogRect);
}

void tst_Desktop::closeButton()
{
    Host host(m_desktop, QStringLiteral("dialog"));
    STEP(showDialog(host));
    STEP(click(host, QStringLiteral("close")));
    STEP(expect(host, QStringLiteral("hidden dialog")));
    STEP(expect(host, QStringLiteral("finished dialog 0")));
}

QTEST_GUILESS_MAIN(tst_Desktop)
#include "tst_desktop.moc"
