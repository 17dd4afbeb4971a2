/** @file
 * The frameless dialogs on a real X11 desktop with a window manager and real mouse and key input:
 * what no test without a display can see, above all who has the keyboard.
 */

#include "desktop.h"

#include <QtTest>

// A helper that fails has left its message with QTest; the test function ends there.
#define STEP(call)                                                                                 \
    do {                                                                                           \
        call;                                                                                      \
        if (QTest::currentTestFailed()) {                                                          \
            return;                                                                                \
        }                                                                                          \
    } while (false)

namespace {

constexpr QRect DialogRect(300, 150, 420, 300);
constexpr QRect ScreenRect(0, 0, 1280, 900);

void expect(Host &host, const QString &pattern)
{
    QVERIFY2(host.waitFor(pattern), qPrintable(host.report(pattern)));
}

void expectGeometry(Host &host, const QString &window, const QRect &geometry)
{
    QVERIFY2(host.waitForGeometry(window, geometry),
             qPrintable(host.report(QStringLiteral("geometry %1 %2 %3 %4 %5")
                                        .arg(window)
                                        .arg(geometry.x())
                                        .arg(geometry.y())
                                        .arg(geometry.width())
                                        .arg(geometry.height()))));
}

void expectNot(const Host &host, const QString &pattern)
{
    QVERIFY2(!host.hasSaid(pattern), qPrintable(host.report(QLatin1String("not: ") + pattern)));
}

QString pointText(const QPoint &point)
{
    return QStringLiteral("%1 %2").arg(point.x()).arg(point.y());
}

} // namespace

class tst_Desktop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

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

    void typeWithNoOtherWindow();
    void clickTakesTheKeyboardBack();
    void keyboardReturnsToTheMainWindow_data();
    void keyboardReturnsToTheMainWindow();
    void keyboardStaysWithAnotherApplication();
    void tabOrder();
    void comboBoxByMouse();
    void comboBoxByKeys();
    void modalDialogKeepsInputFromItsParent();

    void maximizeAndRestore();
    void maximizedStaysMaximizedWhenDragged();
    void shownMaximizedFirst();
    void minimizeTakesTheParentAlong();
    void minimizeModalKeepsItRunning();
    void minimizeWithoutParentLosesNothing();
    void closeButton();

private:
    void input(const QString &arguments);
    void click(Host &host, const QString &name);
    void clickAt(const QPoint &position);
    void type(const QString &text);
    void key(const QString &name);
    void drag(const QPoint &from, const QPoint &to);
    void showDialog(Host &host);
    void openFromMain(Host &host);
    void expectPointer(const QString &picture);

    Desktop m_desktop;
};

void tst_Desktop::initTestCase()
{
    const QString problem = m_desktop.start();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void tst_Desktop::input(const QString &arguments)
{
    QVERIFY2(!m_desktop.xdotool(arguments).isNull(),
             qPrintable(QLatin1String("xdotool ") + arguments));
}

void tst_Desktop::click(Host &host, const QString &name)
{
    const QRect rect = host.where(name);
    QVERIFY2(rect.isValid(), qPrintable(host.report(QLatin1String("where ") + name)));
    clickAt(rect.center());
}

void tst_Desktop::clickAt(const QPoint &position)
{
    input(QStringLiteral("mousemove %1 click 1").arg(pointText(position)));
}

void tst_Desktop::type(const QString &text)
{
    input(QLatin1String("type ") + text);
}

void tst_Desktop::key(const QString &name)
{
    input(QLatin1String("key ") + name);
}

void tst_Desktop::drag(const QPoint &from, const QPoint &to)
{
    input(QStringLiteral("mousemove %1 mousedown 1 mousemove %2 mousemove %3 mouseup 1")
              .arg(pointText(from), pointText((from + to) / 2), pointText(to)));
}

/** Waits for the dialog of a scenario that opens it at once. */
void tst_Desktop::showDialog(Host &host)
{
    STEP(expect(host, QStringLiteral("painted dialog .*")));
    STEP(expect(host, QStringLiteral("active dialog")));
    expectGeometry(host, QStringLiteral("dialog"), DialogRect);
}

/** Opens the dialog of a scenario by the main window's button. */
void tst_Desktop::openFromMain(Host &host)
{
    STEP(expect(host, QStringLiteral("painted main .*")));
    STEP(expect(host, QStringLiteral("active main")));
    host.mark();
    STEP(click(host, QStringLiteral("main-button")));
    showDialog(host);
}

/** Waits until the mouse pointer looks like @p picture. */
void tst_Desktop::expectPointer(const QString &picture)
{
    QTRY_COMPARE_WITH_TIMEOUT(m_desktop.pointerPicture(), picture, 15000);
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
            QTRY_VERIFY_WITH_TIMEOUT(m_desktop.pointerPicture() != previous, 15000);
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

void tst_Desktop::typeWithNoOtherWindow()
{
    Host host(m_desktop, QStringLiteral("dialog"));
    STEP(showDialog(host));
    STEP(type(QStringLiteral("name")));
    STEP(expect(host, QStringLiteral("text edit name")));

    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("finished dialog 1")));
    STEP(expect(host, QStringLiteral("clicked ok")));
}

void tst_Desktop::clickTakesTheKeyboardBack()
{
    Host host(m_desktop, QStringLiteral("dialog"));
    STEP(showDialog(host));

    Host other(m_desktop, QStringLiteral("other"));
    STEP(expect(other, QStringLiteral("painted other .*")));
    STEP(click(other, QStringLiteral("other-edit")));
    STEP(expect(other, QStringLiteral("active other")));
    STEP(expect(host, QStringLiteral("inactive dialog")));
    STEP(type(QStringLiteral("there")));
    STEP(expect(other, QStringLiteral("text other-edit there")));
    other.mark();
    host.mark();

    STEP(click(host, QStringLiteral("edit")));
    STEP(expect(host, QStringLiteral("active dialog")));
    STEP(type(QStringLiteral("here")));
    STEP(expect(host, QStringLiteral("text edit here")));
    STEP(expect(other, QStringLiteral("inactive other")));
    STEP(expectNot(other, QStringLiteral("text .*")));
}

void tst_Desktop::keyboardReturnsToTheMainWindow_data()
{
    QTest::addColumn<QString>("scenario");
    QTest::addColumn<QString>("end");
    for (const char *scenario : {"modeless", "modal", "parentless"}) {
        for (const char *end : {"ok", "close", "Escape"}) {
            QTest::addRow("%s, by %s", scenario, end) << scenario << end;
        }
    }
}

void tst_Desktop::keyboardReturnsToTheMainWindow()
{
    QFETCH(QString, scenario);
    QFETCH(QString, end);
    Host host(m_desktop, scenario);
    STEP(expect(host, QStringLiteral("active main")));
    STEP(click(host, QStringLiteral("main-edit")));
    STEP(type(QStringLiteral("a")));
    STEP(expect(host, QStringLiteral("text main-edit a")));
    STEP(openFromMain(host));
    STEP(type(QStringLiteral("b")));
    STEP(expect(host, QStringLiteral("text edit b")));

    host.mark();
    if (end == QLatin1String("Escape")) {
        STEP(key(end));
    } else {
        STEP(click(host, end));
    }
    STEP(expect(host, QStringLiteral("hidden dialog")));
    STEP(expect(host, QStringLiteral("active main")));
    // The button that opened the dialog has the focus again: the keys work without a click.
    host.mark();
    STEP(key(QStringLiteral("shift+Tab")));
    STEP(expect(host, QStringLiteral("focus main-edit")));
    STEP(type(QStringLiteral("c")));
    STEP(expect(host, QStringLiteral("text main-edit c")));
}

void tst_Desktop::keyboardStaysWithAnotherApplication()
{
    Host host(m_desktop, QStringLiteral("modeless"));
    STEP(openFromMain(host));
    Host other(m_desktop, QStringLiteral("other"));
    STEP(expect(other, QStringLiteral("painted other .*")));
    STEP(click(other, QStringLiteral("other-edit")));
    STEP(expect(other, QStringLiteral("active other")));
    STEP(expect(host, QStringLiteral("inactive dialog")));

    // A dialog that goes while the user works elsewhere takes nothing away there.
    host.order(QStringLiteral("close dialog"));
    STEP(expect(host, QStringLiteral("hidden dialog")));
    STEP(type(QStringLiteral("mine")));
    STEP(expect(other, QStringLiteral("text other-edit mine")));
}

void tst_Desktop::tabOrder()
{
    Host host(m_desktop, QStringLiteral("modeless"));
    STEP(openFromMain(host));
    STEP(expect(host, QStringLiteral("focus edit")));
    for (const char *next : {"box", "second"}) {
        host.mark();
        STEP(key(QStringLiteral("Tab")));
        STEP(expect(host, QLatin1String("focus ") + QLatin1String(next)));
    }
    for (const char *previous : {"box", "edit"}) {
        host.mark();
        STEP(key(QStringLiteral("shift+Tab")));
        STEP(expect(host, QLatin1String("focus ") + QLatin1String(previous)));
    }
    // Once around: through both buttons and back, and never into the title bar.
    host.mark();
    STEP(input(QStringLiteral("key Tab Tab Tab Tab Tab")));
    STEP(expect(host, QStringLiteral("focus edit")));
    STEP(expect(host, QStringLiteral("focus ok")));
    STEP(expect(host, QStringLiteral("focus cancel")));
    STEP(expectNot(host, QStringLiteral("focus (minimize|maximize|restore|close|main-.*)")));
}

void tst_Desktop::comboBoxByMouse()
{
    Host host(m_desktop, QStringLiteral("modeless"));
    STEP(openFromMain(host));
    STEP(click(host, QStringLiteral("box")));
    QRect popup;
    QTRY_VERIFY_WITH_TIMEOUT((popup = host.popup()).isValid(), 15000);
    // Three entries; the last is in the lowest sixth of the popup.
    STEP(clickAt(QPoint(popup.center().x(), popup.bottom() - popup.height() / 6)));
    STEP(expect(host, QStringLiteral("choice box blue")));
    QTRY_VERIFY_WITH_TIMEOUT(!host.popup().isValid(), 15000);

    STEP(click(host, QStringLiteral("edit")));
    STEP(expect(host, QStringLiteral("focus edit")));
    STEP(type(QStringLiteral("on")));
    STEP(expect(host, QStringLiteral("text edit on")));
}

void tst_Desktop::comboBoxByKeys()
{
    Host host(m_desktop, QStringLiteral("modeless"));
    STEP(openFromMain(host));
    STEP(key(QStringLiteral("Tab")));
    STEP(expect(host, QStringLiteral("focus box")));
    STEP(key(QStringLiteral("space")));
    QTRY_VERIFY_WITH_TIMEOUT(host.popup().isValid(), 15000);
    STEP(input(QStringLiteral("key Down Return")));
    STEP(expect(host, QStringLiteral("choice box green")));
    QTRY_VERIFY_WITH_TIMEOUT(!host.popup().isValid(), 15000);

    // Escape closes the popup and not the dialog.
    STEP(key(QStringLiteral("space")));
    QTRY_VERIFY_WITH_TIMEOUT(host.popup().isValid(), 15000);
    STEP(key(QStringLiteral("Escape")));
    QTRY_VERIFY_WITH_TIMEOUT(!host.popup().isValid(), 15000);
    STEP(key(QStringLiteral("Up")));
    STEP(expect(host, QStringLiteral("choice box red")));
    STEP(expectNot(host, QStringLiteral("finished dialog .*")));
}

void tst_Desktop::modalDialogKeepsInputFromItsParent()
{
    Host host(m_desktop, QStringLiteral("modal"));
    STEP(openFromMain(host));
    host.mark();
    STEP(click(host, QStringLiteral("main-button")));
    STEP(click(host, QStringLiteral("main-edit")));
    STEP(type(QStringLiteral("lost")));
    // The clicks may have handed the keyboard to the main window, which must not use it.
    STEP(click(host, QStringLiteral("second")));
    STEP(expect(host, QStringLiteral("focus second")));
    STEP(type(QStringLiteral("kept")));
    STEP(expect(host, QStringLiteral("text second .*kept")));
    STEP(expectNot(host, QStringLiteral("clicked .*")));
    STEP(expectNot(host, QStringLiteral("text main-edit .*")));
    STEP(expectNot(host, QStringLiteral("exec .*")));

    STEP(click(host, QStringLiteral("cancel")));
    STEP(expect(host, QStringLiteral("exec 0")));
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
        m_desktop.xdotool(QStringLiteral("search --onlyvisible --name ^main$")).isEmpty(), 15000);
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
        m_desktop.xdotool(QStringLiteral("search --onlyvisible --name ^main$")).isEmpty(), 15000);
    STEP(input(QLatin1String("windowactivate ") + main));
    STEP(showDialog(host));
    STEP(expectNot(host, QStringLiteral("(exec|finished) .*")));

    // It is modal as before.
    host.mark();
    STEP(click(host, QStringLiteral("main-button")));
    STEP(click(host, QStringLiteral("edit")));
    STEP(type(QStringLiteral("x")));
    STEP(expect(host, QStringLiteral("text edit x")));
    STEP(expectNot(host, QStringLiteral("clicked main-button")));
    STEP(click(host, QStringLiteral("ok")));
    STEP(expect(host, QStringLiteral("exec 1")));
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
