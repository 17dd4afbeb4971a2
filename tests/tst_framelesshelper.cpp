#include "lmtest.h"

#include <lmwidgets/framelesshelper.h>

#include <QPointer>
#include <QRubberBand>

#include <functional>
#include <limits>
#include <memory>

using LM::Widgets::FramelessHelper;

namespace {

constexpr unsigned int DefaultBorderWidth = 5;
constexpr unsigned int DefaultTitleHeight = 30;
const QRect StartGeometry(200, 150, 300, 200);
// In the middle of the title area, away from every edge.
const QPoint TitlePoint(150, 20);

/** A frameless window that counts the events the helper looks at. */
class Window : public QWidget
{
public:
    explicit Window(QWidget *parent = nullptr)
        : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
    {
        setGeometry(StartGeometry);
    }

    int seen(QEvent::Type type) const { return m_seen.value(type); }

    std::function<void()> onMove;
    std::function<void()> onResize;

protected:
    bool event(QEvent *event) override
    {
        ++m_seen[event->type()];
        return QWidget::event(event);
    }
    void moveEvent(QMoveEvent *) override { run(onMove); }
    void resizeEvent(QResizeEvent *) override { run(onResize); }

private:
    static void run(const std::function<void()> &action)
    {
        // A copy, since it may destroy the window.
        if (const std::function<void()> copy = action) {
            copy();
        }
    }

    QHash<int, int> m_seen;
};

QList<QRubberBand *> bands()
{
    QList<QRubberBand *> found;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *band = qobject_cast<QRubberBand *>(widget)) {
            found.append(band);
        }
    }
    return found;
}

void press(QWidget *widget, const QPoint &local, Qt::MouseButton button = Qt::LeftButton)
{
    lmtest::mouse(widget, QEvent::MouseButtonPress, local, button, button);
}

void moveTo(QWidget *widget, const QPoint &global)
{
    lmtest::mouseAt(widget, QEvent::MouseMove, global);
}

void release(QWidget *widget, const QPoint &global, Qt::MouseButton button = Qt::LeftButton)
{
    lmtest::mouseAt(widget, QEvent::MouseButtonRelease, global, button, button);
}

void leave(QWidget *widget)
{
    QEvent event(QEvent::Leave);
    QApplication::sendEvent(widget, &event);
}

int cursorOf(const QWidget &widget)
{
    return int(widget.cursor().shape());
}

// A window without a cursor of its own shows the arrow.
constexpr int None = Qt::ArrowCursor;

} // namespace

class tst_FramelessHelper : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void defaults();
    void titleAreaBoundary_data();
    void titleAreaBoundary();
    void pressJustOutsideTheRightEdge_data();
    void pressJustOutsideTheRightEdge();
    void topEdgeResizesOrDrags();
    void narrowerThanTheMinimum();
    void rubberBandOnMove();
    void rubberBandsComeAndGo();
    void maximisedHasNoResizeCursor_data();
    void maximisedHasNoResizeCursor();
    void zeroIsIgnored();

    void metaObject();
    void settingsAreShared();
    void flags();
    void registration();
    void removal();
    void removalShowsChangedFlags();
    void secondRegistration();
    void reRegistration();
    void nullAndUnknown();
    void destructorRestores();
    void cursors_data();
    void cursors();
    void hugeBorder();
    void wideBorder();
    void narrowWindow();
    void cursorFollowsMouseMoves();
    void cursorWithoutResizing();
    void leaveUnsetsTheCursor();
    void drag();
    void dragOfEachWindow();
    void otherButtons();
    void notMovable();
    void flagsAreReadAtEachMove();
    void gestureIsFixedAtThePress();
    void resize_data();
    void resize();
    void invalidRectangles_data();
    void invalidRectangles();
    void minimumBoundary_data();
    void minimumBoundary();
    void resizeIsRepeated();
    void rubberBandOnMoveWithoutAMove();
    void rubberBandOnMoveFromAnEdge();
    void rubberBandOnMoveOutsideTheTitle();
    void rubberBandOnResize();
    void rubberBandOnResizeAtTheMinimum();
    void rubberBandTurnedOffWhileDragging();
    void consumesNothing();
    void hideEndsTheGesture();
    void pressThroughAChild();

    void widgetDestroyedFirst();
    void widgetDestroyedWithBlockedSignals();
    void widgetDestroyedAfterDisconnect();
    void helperIsAChild();
    void helperIsAChildAfterDisconnect();
    void helperDestroyedWhileDragging_data();
    void helperDestroyedWhileDragging();
    void widgetRemovedWhileDragging_data();
    void widgetRemovedWhileDragging();
    void widgetDestroyedAtRelease();
    void otherWidgetDestroyedInTheDestructor();
};

void tst_FramelessHelper::init()
{
    FramelessHelper helper;
    QCOMPARE(helper.borderWidth(), DefaultBorderWidth);
    QCOMPARE(helper.titleHeight(), DefaultTitleHeight);
    QVERIFY(bands().isEmpty());
}

void tst_FramelessHelper::cleanup()
{
    FramelessHelper helper;
    helper.setBorderWidth(DefaultBorderWidth);
    helper.setTitleHeight(DefaultTitleHeight);
}

void tst_FramelessHelper::defaults()
{
    FramelessHelper helper;
    QVERIFY(!helper.parent());
    QVERIFY(helper.widgetMovable());
    QVERIFY(helper.widgetResizable());
    QVERIFY(!helper.rubberBandOnMove());
    QVERIFY(!helper.rubberBandOnResisze());
    QCOMPARE(helper.borderWidth(), 5U);
    QCOMPARE(helper.titleHeight(), 30U);
    QObject parent;
    QCOMPARE((new FramelessHelper(&parent))->parent(), &parent);
}

void tst_FramelessHelper::titleAreaBoundary_data()
{
    QTest::addColumn<unsigned int>("height");
    QTest::addColumn<int>("y");
    QTest::addColumn<bool>("drags");
    QTest::newRow("last row") << 30U << 39 << true;
    QTest::newRow("row below") << 30U << 40 << false;
    QTest::newRow("first row inside the edge") << 30U << 6 << true;
    QTest::newRow("dialog, last row") << 48U << 57 << true;
    QTest::newRow("dialog, row below") << 48U << 58 << false;
    QTest::newRow("smallest, last row") << 1U << 10 << true;
    QTest::newRow("smallest, row below") << 1U << 11 << false;
    QTest::newRow("largest") << std::numeric_limits<unsigned int>::max() << 190 << true;
    QTest::newRow("largest int") << unsigned(std::numeric_limits<int>::max()) << 190 << true;
}

void tst_FramelessHelper::titleAreaBoundary()
{
    QFETCH(unsigned int, height);
    QFETCH(int, y);
    QFETCH(bool, drags);
    FramelessHelper helper;
    helper.setTitleHeight(height);
    Window window;
    helper.activateOn(&window);
    window.show();
    press(&window, QPoint(150, y));
    moveTo(&window, window.mapToGlobal(QPoint(160, y + 7)));
    QCOMPARE(window.pos(), drags ? QPoint(210, 157) : QPoint(200, 150));
    QCOMPARE(window.size(), StartGeometry.size());
}

void tst_FramelessHelper::pressJustOutsideTheRightEdge_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<bool>("resizes");
    QTest::newRow("before the band") << 294 << false;
    QTest::newRow("first column of the band") << 295 << true;
    QTest::newRow("last column of the window") << 299 << true;
    QTest::newRow("one outside") << 300 << true;
    QTest::newRow("two outside") << 301 << false;
}

void tst_FramelessHelper::pressJustOutsideTheRightEdge()
{
    QFETCH(int, x);
    QFETCH(bool, resizes);
    FramelessHelper helper;
    Window window;
    helper.activateOn(&window);
    window.show();
    press(&window, QPoint(x, 100));
    moveTo(&window, QPoint(549, 400));
    QCOMPARE(window.geometry(), QRect(200, 150, resizes ? 350 : 300, 200));
}

void tst_FramelessHelper::topEdgeResizesOrDrags()
{
    FramelessHelper helper;
    Window window;
    helper.activateOn(&window);
    window.show();
    press(&window, QPoint(150, 2));
    moveTo(&window, QPoint(360, 142));
    QCOMPARE(window.geometry(), QRect(200, 142, 300, 208));
    release(&window, QPoint(360, 142));

    window.setGeometry(StartGeometry);
    helper.setWidgetResizable(false);
    press(&window, QPoint(150, 2));
    moveTo(&window, QPoint(360, 142));
    QCOMPARE(window.geometry(), QRect(210, 140, 300, 200));
}

void tst_FramelessHelper::narrowerThanTheMinimum()
{
    FramelessHelper helper;
    Window window;
    window.setMinimumSize(100, 80);
    helper.activateOn(&window);
    window.show();
    press(&window, QPoint(298, 198));
    moveTo(&window, QPoint(250, 299));
    QCOMPARE(window.geometry(), QRect(200, 150, 300, 150));
    moveTo(&window, QPoint(449, 200));
    QCOMPARE(window.geometry(), QRect(200, 150, 250, 150));
    release(&window, QPoint(449, 200));

    window.setGeometry(StartGeometry);
    press(&window, QPoint(1, 1));
    moveTo(&window, QPoint(450, 160));
    QCOMPARE(window.geometry(), QRect(200, 160, 300, 190));
    moveTo(&window, QPoint(210, 330));
    QCOMPARE(window.geometry(), QRect(210, 160, 290, 190));
}

void tst_FramelessHelper::rubberBandOnMove()
{
    FramelessHelper helper;
    helper.setRubberBandOnMove(true);
    Window window;
    helper.activateOn(&window);
    window.show();
    QCOMPARE(bands().count(), 1);
    QRubberBand *band = bands().first();
    QVERIFY(!band->isVisible());
    QCOMPARE(band->shape(), QRubberBand::Rectangle);
    QVERIFY(!band->parent());

    press(&window, TitlePoint);
    QVERIFY(band->isVisible());
    QCOMPARE(band->geometry(), QRect(210, 160, 290, 190));
    moveTo(&window, window.mapToGlobal(TitlePoint + QPoint(40, 60)));
    QCOMPARE(band->geometry(), QRect(240, 210, 290, 190));
    QCOMPARE(window.geometry(), StartGeometry);
    release(&window, QPoint(0, 0));
    QVERIFY(!band->isVisible());
    QCOMPARE(window.geometry(), QRect(240, 210, 290, 190));
}

void tst_FramelessHelper::rubberBandsComeAndGo()
{
    FramelessHelper helper;
    Window first;
    Window second;
    helper.activateOn(&first);
    helper.activateOn(&second);
    QVERIFY(bands().isEmpty());
    helper.setRubberBandOnMove(true);
    QVERIFY(helper.rubberBandOnMove());
    const QList<QRubberBand *> made = bands();
    QCOMPARE(made.count(), 2);
    helper.setRubberBandOnResize(true);
    QVERIFY(helper.rubberBandOnResisze());
    helper.setRubberBandOnMove(true);
    QCOMPARE(bands().count(), 2);
    helper.setRubberBandOnMove(false);
    for (QRubberBand *band : made) {
        QVERIFY(bands().contains(band));
    }
    Window third;
    helper.activateOn(&third);
    QCOMPARE(bands().count(), 3);
    helper.removeFrom(&third);
    QCOMPARE(bands().count(), 2);
    helper.setRubberBandOnResize(false);
    QVERIFY(bands().isEmpty());
    QVERIFY(!helper.rubberBandOnMove());
    QVERIFY(!helper.rubberBandOnResisze());
}

void tst_FramelessHelper::maximisedHasNoResizeCursor_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("maximised") << int(Qt::WindowMaximized);
    QTest::newRow("full screen") << int(Qt::WindowFullScreen);
}

void tst_FramelessHelper::maximisedHasNoResizeCursor()
{
    QFETCH(int, state);
    FramelessHelper helper;
    Window window;
    helper.activateOn(&window);
    window.show();
    lmtest::hoverMove(&window, QPoint(0, 100));
    QCOMPARE(cursorOf(window), int(Qt::SizeHorCursor));

    window.setWindowState(Qt::WindowState(state));
    QCoreApplication::processEvents();
    const QRect large = window.geometry();
    lmtest::hoverMove(&window, QPoint(0, 100));
    QCOMPARE(cursorOf(window), None);
    lmtest::hoverMove(&window, QPoint(0, 0));
    QCOMPARE(cursorOf(window), None);

    // The helper still counts its cursor as set, so a cursor of the host's goes as well.
    window.setCursor(Qt::WaitCursor);
    lmtest::hoverMove(&window, QPoint(150, 100));
    QCOMPARE(cursorOf(window), None);

    press(&window, QPoint(0, 100));
    moveTo(&window, large.topLeft() + QPoint(33, 100));
    QCOMPARE(window.geometry().left(), large.left() + 33);
    QCOMPARE(window.geometry().right(), large.right());
}

void tst_FramelessHelper::zeroIsIgnored()
{
    FramelessHelper helper;
    helper.setBorderWidth(0);
    helper.setTitleHeight(0);
    QCOMPARE(helper.borderWidth(), 5U);
    QCOMPARE(helper.titleHeight(), 30U);
    helper.setBorderWidth(1);
    helper.setTitleHeight(1);
    QCOMPARE(helper.borderWidth(), 1U);
    QCOMPARE(helper.titleHeight(), 1U);
    helper.setBorderWidth(0);
    helper.setTitleHeight(0);
    QCOMPARE(helper.borderWidth(), 1U);
    QCOMPARE(helper.titleHeight(), 1U);
}

void tst_FramelessHelper::metaObject()
{
    const QMetaObject &meta = FramelessHelper::staticMetaObject;
    QCOMPARE(meta.className(), "LM::Widgets::FramelessHelper");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(lmtest::ownMethods(meta), QStringList());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_FramelessHelper::settingsAreShared()
{
    FramelessHelper first;
    FramelessHelper second;
    first.setBorderWidth(9);
    second.setTitleHeight(77);
    QCOMPARE(second.borderWidth(), 9U);
    QCOMPARE(first.titleHeight(), 77U);
    QCOMPARE(FramelessHelper().borderWidth(), 9U);

    // The other four are each helper's own.
    first.setWidgetMovable(false);
    first.setWidgetResizable(false);
    first.setRubberBandOnMove(true);
    first.setRubberBandOnResize(true);
    QVERIFY(second.widgetMovable());
    QVERIFY(second.widgetResizable());
    QVERIFY(!second.rubberBandOnMove());
    QVERIFY(!second.rubberBandOnResisze());

    Window window;
    second.activateOn(&window);
    window.show();
    lmtest::hoverMove(&window, QPoint(9, 100));
    QCOMPARE(cursorOf(window), int(Qt::SizeHorCursor));
    lmtest::hoverMove(&window, QPoint(10, 100));
    QCOMPARE(cursorOf(window), None);
}

void tst_FramelessHelper::flags()
{
    FramelessHelper helper;
    for (const bool on : {false, true, true, false}) {
        helper.setWidgetMovable(on);
        QCOMPARE(helper.widgetMovable(), on);
        helper.setWidgetResizable(on);
        QCOMPARE(helper.widgetResizable(), on);
        helper.setRubberBandOnMove(on);
        QCOMPARE(helper.rubberBandOnMove(), on);
        helper.setRubberBandOnResize(on);
        QCOMPARE(helper.rubberBandOnResisze(), on);
    }
}

void tst_FramelessHelper::registration()
{
    FramelessHelper helper;
    Window window;
    window.setAttribute(Qt::WA_Hover, false);
    const Qt::WindowFlags before = window.windowFlags();
    helper.activateOn(&window);
    QVERIFY(window.hasMouseTracking());
    QVERIFY(window.testAttribute(Qt::WA_Hover));
    QCOMPARE(window.windowFlags(), before);
    QCOMPARE(cursorOf(window), None);
}

void tst_FramelessHelper::removal()
{
    FramelessHelper helper;
    helper.setRubberBandOnMove(true);
    Window window;
    helper.activateOn(&window);
    window.show();
    helper.removeFrom(&window);
    QVERIFY(!window.hasMouseTracking());
    QVERIFY(!window.testAttribute(Qt::WA_Hover));
    QVERIFY(window.isVisible());
    QVERIFY(bands().isEmpty());
    press(&window, TitlePoint);
    moveTo(&window, QPoint(0, 0));
    QCOMPARE(window.geometry(), StartGeometry);
}

void tst_FramelessHelper::removalShowsChangedFlags()
{
    FramelessHelper helper;
    Window window;
    const Qt::WindowFlags before = window.windowFlags();
    helper.activateOn(&window);
    window.setWindowFlags(before | Qt::WindowStaysOnTopHint);
    helper.removeFrom(&window);
    QCOMPARE(window.windowFlags(), before);
}

void tst_FramelessHelper::secondRegistration()
{
    FramelessHelper helper;
    helper.setRubberBandOnMove(true);
    Window window;
    const Qt::WindowFlags before = window.windowFlags();
    helper.activateOn(&window);
    window.setWindowFlags(before | Qt::WindowStaysOnTopHint);
    window.setMouseTracking(false);
    helper.activateOn(&window);
    QCOMPARE(bands().count(), 1);
    QVERIFY(!window.hasMouseTracking());
    helper.removeFrom(&window);
    QCOMPARE(window.windowFlags(), before);
    QVERIFY(bands().isEmpty());
}

void tst_FramelessHelper::reRegistration()
{
    FramelessHelper helper;
    Window window;
    helper.activateOn(&window);
    window.show();
    press(&window, TitlePoint);
    helper.removeFrom(&window);
    helper.activateOn(&window);
    QVERIFY(window.hasMouseTracking());
    // The press belonged to the former record.
    moveTo(&window, QPoint(0, 0));
    QCOMPARE(window.geometry(), StartGeometry);
    press(&window, TitlePoint);
    moveTo(&window, window.mapToGlobal(TitlePoint + QPoint(5, 6)));
    QCOMPARE(window.pos(), QPoint(205, 156));
}

void tst_FramelessHelper::nullAndUnknown()
{
    FramelessHelper helper;
    helper.activateOn(nullptr);
    helper.removeFrom(nullptr);
    Window window;
    window.setMouseTracking(true);
    helper.removeFrom(&window);
    QVERIFY(window.hasMouseTracking());
    helper.setRubberBandOnMove(true);
    QVERIFY(bands().isEmpty());
    auto *gone = new Window;
    helper.activateOn(gone);
    delete gone;
    helper.removeFrom(gone);
    QVERIFY(bands().isEmpty());
}

void tst_FramelessHelper::destructorRestores()
{
    Window first;
    Window second;
    const Qt::WindowFlags before = second.windowFlags();
    {
        FramelessHelper helper;
        helper.setRubberBandOnResize(true);
        helper.activateOn(&first);
        helper.activateOn(&second);
        second.setWindowFlags(before | Qt::WindowStaysOnTopHint);
    }
    QVERIFY(bands().isEmpty());
    for (const Window *window : {&first, &second}) {
        QVERIFY(!window->hasMouseTracking());
        QVERIFY(!window->testAttribute(Qt::WA_Hover));
    }
    QCOMPARE(second.windowFlags(), before);
    first.show();
    press(&first, TitlePoint);
    moveTo(&first, QPoint(0, 0));
    QCOMPARE(first.geometry(), StartGeometry);
}

void tst_FramelessHelper::cursors_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("shape");
    const auto row = [](int x, int y, int shape) {
        QTest::addRow("%d,%d", x, y) << QPoint(x, y) << shape;
    };
    // The window is 300 x 200; the far edges lie at 300 and 200, one beyond the last pixel.
    row(-1, 100, None);
    row(0, 100, Qt::SizeHorCursor);
    row(5, 100, Qt::SizeHorCursor);
    row(6, 100, None);
    row(294, 100, None);
    row(295, 100, Qt::SizeHorCursor);
    row(300, 100, Qt::SizeHorCursor);
    row(301, 100, None);
    row(150, -1, None);
    row(150, 0, Qt::SizeVerCursor);
    row(150, 5, Qt::SizeVerCursor);
    row(150, 6, None);
    row(150, 194, None);
    row(150, 195, Qt::SizeVerCursor);
    row(150, 200, Qt::SizeVerCursor);
    row(150, 201, None);
    row(0, 0, Qt::SizeFDiagCursor);
    row(5, 5, Qt::SizeFDiagCursor);
    row(6, 5, Qt::SizeVerCursor);
    row(5, 6, Qt::SizeHorCursor);
    row(6, 6, None);
    row(300, 200, Qt::SizeFDiagCursor);
    row(295, 195, Qt::SizeFDiagCursor);
    row(294, 195, Qt::SizeVerCursor);
    row(295, 194, Qt::SizeHorCursor);
    row(294, 194, None);
    row(300, 0, Qt::SizeBDiagCursor);
    row(295, 5, Qt::SizeBDiagCursor);
    row(294, 5, Qt::SizeVerCursor);
    row(295, 6, Qt::SizeHorCursor);
    row(0, 200, Qt::SizeBDiagCursor);
    row(5, 195, Qt::SizeBDiagCursor);
    row(6, 195, Qt::SizeVerCursor);
    row(5, 194, Qt::SizeHorCursor);
    // Beside the window each edge goes on; above and below likewise.
    row(-1, 0, Qt::SizeVerCursor);
    row(0, -1, Qt::SizeHorCursor);
    row(301, 200, Qt::SizeVerCursor);
}

void tst_FramelessHelper::cursors()
{
    QFETCH(QPoint, point);
    QFETCH(int, shape);
    FramelessHelper helper;
    Window window;
    helper.activateOn(&window);
    window.show();
    lmtest::hoverMove(&window, point);
    QCOMPARE(cursorOf(window), shape);
    // And back to none.
    lmtest::hoverMove(&window, QPoint(150, 100));
    QCOMPARE(cursorOf(window), None);
}

void tst_FramelessHelper::hugeBorder()
{
    FramelessHelper helper;
    Window window;
    helper.activateOn(&window);
    window.show();
    for (const unsigned int width :
         {std::numeric_limits<unsigned int>::max(), unsigned(std::numeric_limits<int>::max()),
          unsigned(std::numeric_limits<int>::max()) + 1}) {
        helper.setBorderWidth(width);
        QCOMPARE(helper.borderWidth(), width);
        // Everything is on every edge, and the top left corner comes first.
        lmtest::hoverMove(&window, QPoint(150, 100));
        QCOMPARE(cursorOf(window), int(Qt::SizeFDiagCursor));
        lmtest::hoverMove(&window, QPoint(1000, 1000));
        QCOMPARE(cursorOf(window), int(Qt::SizeFDiagCursor));
        lmtest::hoverMove(&window, QPoint(-1, 201));
        QCOMPARE(cursorOf(window), int(Qt::SizeBDiagCursor));
        press(&window, QPoint(150, 100));
        moveTo(&window, QPoint(210, 140));
        QCOMPARE(window.geometry(), QRect(QPoint(210, 140), StartGeometry.bottomRight()));
        release(&window, QPoint(210, 140));
        window.setGeometry(StartGeometry);
    }
}

void tst_FramelessHelper::wideBorder()
{
    FramelessHelper helper;
    helper.setBorderWidth(20);
    Window window;
    helper.activateOn(&window);
    window.show();
    lmtest::hoverMove(&window, QPoint(20, 100));
    QCOMPARE(cursorOf(window), int(Qt::SizeHorCursor));
    lmtest::hoverMove(&window, QPoint(21, 100));
    QCOMPARE(cursorOf(window), None);
    lmtest::hoverMove(&window, QPoint(280, 180));
    QCOMPARE(cursorOf(window), int(Qt::SizeFDiagCursor));
    lmtest::hoverMove(&window, QPoint(279, 179));
    QCOMPARE(cursorOf(window), None);
}

void tst_FramelessHelper::narrowWindow()
{
    // Both side edges overlap: left wins, top left above all.
    FramelessHelper helper;
    Window window;
    window.setGeometry(200, 150, 8, 100);
    helper.activateOn(&window);
    window.show();
    press(&window, QPoint(4, 50));
    moveTo(&window, QPoint(190, 200));
    QCOMPARE(window.geometry(), QRect(QPoint(190, 150), QPoint(207, 249)));
    release(&window, QPoint(190, 200));
    window.setGeometry(200, 150, 8, 100);
    lmtest::hoverMove(&window, QPoint(4, 2));
    QCOMPARE(cursorOf(window), int(Qt::SizeFDiagCursor));
}

void tst_FramelessHelper::cursorFollowsMouseMoves()
{
    FramelessHelper helper;
    Window window;
    helper.activateOn(&window);
    window.show();
    // Qt makes hover moves of mouse moves, and those do not say which button is down.
    window.setAttribute(Qt::WA_Hover, false);
    const auto moveWith = [&window](const QPoint &local, Qt::MouseButtons buttons) {
        lmtest::mouse(&window, QEvent::MouseMove, local, Qt::NoButton, buttons);
    };
    moveWith(QPoint(0, 100), Qt::NoButton);
    QCOMPARE(cursorOf(window), int(Qt::SizeHorCursor));
    moveWith(QPoint(150, 100), Qt::RightButton);
    QCOMPARE(cursorOf(window), int(Qt::SizeHorCursor));
    moveWith(QPoint(150, 100), Qt::NoButton);
    QCOMPARE(cursorOf(window), None);
    moveWith(QPoint(0, 0), Qt::RightButton);
    QCOMPARE(cursorOf(window), None);
}

void tst_FramelessHelper::cursorWithoutResizing()
{
    FramelessHelper helper;
    helper.setWidgetResizable(false);
    Window window;
    helper.activateOn(&window);
    window.show();
    lmtest::hoverMove(&window, QPoint(0, 0));
    QCOMPARE(cursorOf(window), None);
    lmtest::mouse(&window, QEvent::MouseMove, QPoint(0, 0), Qt::NoButton, Qt::NoButton);
    QCOMPARE(cursorOf(window), None);
    window.setCursor(Qt::CrossCursor);
    lmtest::hoverMove(&window, QPoint(150, 100));
    QCOMPARE(cursorOf(window), int(Qt::CrossCursor));
}

void tst_FramelessHelper::leaveUnsetsTheCursor()
{
    FramelessHelper helper;
    Window window;
    helper.activateOn(&window);
    window.show();
    lmtest::hoverMove(&window, QPoint(0, 100));
    press(&window, QPoint(0, 100));
    leave(&window);
    QCOMPARE(cursorOf(window), int(Qt::SizeHorCursor));
    release(&window, window.mapToGlobal(QPoint(0, 100)));
    leave(&window);
    QCOMPARE(cursorOf(window), None);
    // The helper's mark outlasts the leave and clears the next cursor, once.
    window.setCursor(Qt::CrossCursor);
    lmtest::hoverMove(&window, QPoint(150, 100));
    QCOMPARE(cursorOf(window), None);
    window.setCursor(Qt::CrossCursor);
    lmtest::hoverMove(&window, QPoint(150, 100));
    QCOMPARE(cursorOf(window), int(Qt::CrossCursor));
    leave(&window);
    QCOMPARE(cursorOf(window), None);
}

void tst_FramelessHelper::drag()
{
    FramelessHelper helper;
    Window window;
    helper.activateOn(&window);
    window.show();
    press(&window, TitlePoint);
    QCOMPARE(window.geometry(), StartGeometry);
    moveTo(&window, StartGeometry.topLeft() + TitlePoint + QPoint(-30, 40));
    QCOMPARE(window.geometry(), StartGeometry.translated(-30, 40));
    moveTo(&window, QPoint(-100, -100));
    QCOMPARE(window.pos(), QPoint(-100, -100) - TitlePoint);
    release(&window, QPoint(-100, -100));
    moveTo(&window, QPoint(400, 400));
    QCOMPARE(window.pos(), QPoint(-100, -100) - TitlePoint);
}

void tst_FramelessHelper::dragOfEachWindow()
{
    FramelessHelper helper;
    Window first;
    Window second;
    helper.activateOn(&first);
    helper.activateOn(&second);
    first.show();
    second.show();
    press(&first, TitlePoint);
    moveTo(&second, QPoint(0, 0));
    QCOMPARE(second.geometry(), StartGeometry);
    moveTo(&first, StartGeometry.topLeft() + TitlePoint + QPoint(1, 2));
    QCOMPARE(first.geometry(), StartGeometry.translated(1, 2));
    QCOMPARE(second.geometry(), StartGeometry);
}

void tst_FramelessHelper::otherButtons()
{
    FramelessHelper helper;
    Window window;
    helper.activateOn(&window);
    window.show();
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        press(&window, TitlePoint, button);
        lmtest::mouseAt(&window, QEvent::MouseMove, QPoint(0, 0), button, button);
        release(&window, QPoint(0, 0), button);
        QCOMPARE(window.geometry(), StartGeometry);
    }
    press(&window, TitlePoint);
    release(&window, QPoint(0, 0), Qt::RightButton);
    moveTo(&window, StartGeometry.topLeft() + TitlePoint + QPoint(1, 2));
    QCOMPARE(window.geometry(), StartGeometry.translated(1, 2));
}

void tst_FramelessHelper::notMovable()
{
    FramelessHelper helper;
    helper.setWidgetMovable(false);
    Window window;
    helper.activateOn(&window);
    window.show();
    press(&window, TitlePoint);
    moveTo(&window, QPoint(0, 0));
    QCOMPARE(window.geometry(), StartGeometry);
    release(&window, QPoint(0, 0));
    press(&window, QPoint(0, 100));
    moveTo(&window, QPoint(190, 200));
    QCOMPARE(window.geometry(), QRect(190, 150, 310, 200));
}

void tst_FramelessHelper::flagsAreReadAtEachMove()
{
    FramelessHelper helper;
    Window window;
    helper.activateOn(&window);
    window.show();
    press(&window, TitlePoint);
    helper.setWidgetMovable(false);
    moveTo(&window, QPoint(0, 0));
    QCOMPARE(window.geometry(), StartGeometry);
    helper.setWidgetMovable(true);
    moveTo(&window, TitlePoint);
    QCOMPARE(window.pos(), QPoint(0, 0));
}

void tst_FramelessHelper::gestureIsFixedAtThePress()
{
    FramelessHelper helper;
    Window window;
    helper.activateOn(&window);
    window.show();
    // Pressed outside the title area and away from the edges: nothing, wherever the mouse goes.
    press(&window, QPoint(150, 100));
    moveTo(&window, window.mapToGlobal(TitlePoint));
    moveTo(&window, window.mapToGlobal(QPoint(0, 0)));
    QCOMPARE(window.geometry(), StartGeometry);
    release(&window, QPoint(0, 0));
    // Pressed on the right edge: only that one follows, also over another edge.
    press(&window, QPoint(299, 100));
    moveTo(&window, QPoint(520, 150));
    QCOMPARE(window.geometry(), QRect(200, 150, 321, 200));
}

void tst_FramelessHelper::resize_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QRect>("expected");
    // The edge goes to where the mouse is, wherever within the band it was pressed.
    QTest::newRow("left") << QPoint(5, 100) << QPoint(180, 0) << QRect(180, 150, 320, 200);
    QTest::newRow("right") << QPoint(295, 100) << QPoint(509, 0) << QRect(200, 150, 310, 200);
    QTest::newRow("top") << QPoint(150, 5) << QPoint(0, 140) << QRect(200, 140, 300, 210);
    QTest::newRow("bottom") << QPoint(150, 195) << QPoint(0, 359) << QRect(200, 150, 300, 210);
    QTest::newRow("top left") << QPoint(3, 3) << QPoint(190, 140) << QRect(190, 140, 310, 210);
    QTest::newRow("top right") << QPoint(300, 0) << QPoint(509, 140) << QRect(200, 140, 310, 210);
    QTest::newRow("bottom left") << QPoint(0, 200) << QPoint(190, 359) << QRect(190, 150, 310, 210);
    QTest::newRow("bottom right") << QPoint(300, 200) << QPoint(509, 359)
                                  << QRect(200, 150, 310, 210);
    QTest::newRow("smaller") << QPoint(300, 200) << QPoint(299, 249) << QRect(200, 150, 100, 100);
}

void tst_FramelessHelper::resize()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(QRect, expected);
    FramelessHelper helper;
    Window window;
    helper.activateOn(&window);
    window.show();
    press(&window, from);
    QCOMPARE(window.geometry(), StartGeometry);
    moveTo(&window, to);
    QCOMPARE(window.geometry(), expected);
    release(&window, to);
    QCOMPARE(window.geometry(), expected);
    moveTo(&window, QPoint(0, 0));
    QCOMPARE(window.geometry(), expected);
}

void tst_FramelessHelper::invalidRectangles_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QRect>("expected");
    const QRect start = StartGeometry;
    QTest::newRow("left, one column")
        << QPoint(0, 100) << QPoint(499, 0) << QRect(499, 150, 1, 200);
    QTest::newRow("left, none") << QPoint(0, 100) << QPoint(500, 0) << start;
    QTest::newRow("left, beyond") << QPoint(0, 100) << QPoint(600, 0) << start;
    QTest::newRow("right, one column")
        << QPoint(300, 100) << QPoint(200, 0) << QRect(200, 150, 1, 200);
    QTest::newRow("right, none") << QPoint(300, 100) << QPoint(199, 0) << start;
    QTest::newRow("top, none") << QPoint(150, 0) << QPoint(0, 350) << start;
    QTest::newRow("bottom, one row")
        << QPoint(150, 200) << QPoint(0, 150) << QRect(200, 150, 300, 1);
    QTest::newRow("bottom, none") << QPoint(150, 200) << QPoint(0, 149) << start;
    // One bad direction spoils both.
    QTest::newRow("corner") << QPoint(300, 200) << QPoint(100, 400) << start;
}

void tst_FramelessHelper::invalidRectangles()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(QRect, expected);
    FramelessHelper helper;
    Window window;
    helper.activateOn(&window);
    window.show();
    press(&window, from);
    moveTo(&window, to);
    QCOMPARE(window.geometry(), expected);
}

void tst_FramelessHelper::minimumBoundary_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QRect>("expected");
    const QRect start = StartGeometry;
    QTest::newRow("right, minimum")
        << QPoint(300, 100) << QPoint(299, 0) << QRect(200, 150, 100, 200);
    QTest::newRow("right, less") << QPoint(300, 100) << QPoint(298, 0) << start;
    QTest::newRow("left, minimum") << QPoint(0, 100) << QPoint(400, 0) << QRect(400, 150, 100, 200);
    QTest::newRow("left, less") << QPoint(0, 100) << QPoint(401, 0) << start;
    QTest::newRow("bottom, minimum")
        << QPoint(150, 200) << QPoint(0, 229) << QRect(200, 150, 300, 80);
    QTest::newRow("bottom, less") << QPoint(150, 200) << QPoint(0, 228) << start;
    QTest::newRow("top, minimum") << QPoint(150, 0) << QPoint(0, 270) << QRect(200, 270, 300, 80);
    QTest::newRow("top, less") << QPoint(150, 0) << QPoint(0, 271) << start;
    QTest::newRow("corner, both less") << QPoint(0, 200) << QPoint(450, 160) << start;
}

void tst_FramelessHelper::minimumBoundary()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(QRect, expected);
    FramelessHelper helper;
    Window window;
    window.setMinimumSize(100, 80);
    helper.activateOn(&window);
    window.show();
    press(&window, from);
    moveTo(&window, to);
    QCOMPARE(window.geometry(), expected);
}

void tst_FramelessHelper::resizeIsRepeated()
{
    FramelessHelper helper;
    Window window;
    helper.activateOn(&window);
    window.show();
    press(&window, QPoint(0, 0));
    for (int i = 1; i <= 50; ++i) {
        moveTo(&window, QPoint(200 - i, 150 + i));
        QCOMPARE(window.geometry(), QRect(QPoint(200 - i, 150 + i), StartGeometry.bottomRight()));
    }
}

void tst_FramelessHelper::rubberBandOnMoveWithoutAMove()
{
    FramelessHelper helper;
    helper.setRubberBandOnMove(true);
    Window window;
    helper.activateOn(&window);
    window.show();
    press(&window, TitlePoint);
    release(&window, QPoint(0, 0));
    QCOMPARE(window.geometry(), QRect(210, 160, 290, 190));
    // And it is over: another release changes nothing.
    window.setGeometry(StartGeometry);
    release(&window, QPoint(0, 0));
    QCOMPARE(window.geometry(), StartGeometry);
}

void tst_FramelessHelper::rubberBandOnMoveFromAnEdge()
{
    // An edge shows no band that only moves show; the drag from there moves the unseen one.
    FramelessHelper helper;
    helper.setRubberBandOnMove(true);
    helper.setWidgetResizable(false);
    Window window;
    helper.activateOn(&window);
    window.show();
    press(&window, QPoint(150, 2));
    QVERIFY(!bands().first()->isVisible());
    moveTo(&window, QPoint(0, 0));
    release(&window, QPoint(0, 0));
    QCOMPARE(window.geometry(), StartGeometry);
}

void tst_FramelessHelper::rubberBandOnMoveOutsideTheTitle()
{
    FramelessHelper helper;
    helper.setRubberBandOnMove(true);
    Window window;
    helper.activateOn(&window);
    window.show();
    press(&window, QPoint(150, 40));
    QVERIFY(!bands().first()->isVisible());
    release(&window, QPoint(0, 0));
    QCOMPARE(window.geometry(), StartGeometry);

    // Resizing without a band of its own works on the window at once.
    press(&window, QPoint(300, 100));
    QVERIFY(!bands().first()->isVisible());
    moveTo(&window, QPoint(509, 0));
    QCOMPARE(window.geometry(), QRect(200, 150, 310, 200));
}

void tst_FramelessHelper::rubberBandOnResize()
{
    FramelessHelper helper;
    helper.setRubberBandOnResize(true);
    Window window;
    helper.activateOn(&window);
    window.show();
    QRubberBand *band = bands().first();
    press(&window, QPoint(300, 200));
    QVERIFY(band->isVisible());
    QCOMPARE(band->geometry(), StartGeometry);
    // Where a band has a frame, as offscreen, its frame is what is stretched.
    const QRect stretched(band->frameGeometry().topLeft(), QPoint(509, 359));
    moveTo(&window, QPoint(509, 359));
    QCOMPARE(band->geometry(), stretched);
    QCOMPARE(window.geometry(), StartGeometry);
    moveTo(&window, QPoint(519, 100));
    QCOMPARE(band->geometry(), stretched);
    release(&window, QPoint(0, 0));
    QVERIFY(!band->isVisible());
    QCOMPARE(window.geometry(), stretched);
    window.setGeometry(StartGeometry);

    // Moves have no band then.
    press(&window, TitlePoint);
    QVERIFY(!band->isVisible());
    moveTo(&window, StartGeometry.topLeft() + TitlePoint + QPoint(1, 2));
    QCOMPARE(window.pos(), QPoint(201, 152));
}

void tst_FramelessHelper::rubberBandOnResizeAtTheMinimum()
{
    FramelessHelper helper;
    helper.setRubberBandOnResize(true);
    Window window;
    window.setMinimumSize(100, 80);
    helper.activateOn(&window);
    window.show();
    QRubberBand *band = bands().first();
    press(&window, QPoint(300, 200));
    QRect frame = band->frameGeometry();
    moveTo(&window, frame.topLeft() + QPoint(98, 120));
    QCOMPARE(band->geometry(), QRect(frame.topLeft(), QSize(frame.width(), 121)));
    frame = band->frameGeometry();
    moveTo(&window, frame.topLeft() + QPoint(99, 78));
    QCOMPARE(band->geometry(), QRect(frame.topLeft(), QSize(100, frame.height())));
    const QRect last = band->geometry();
    release(&window, QPoint(0, 0));
    QCOMPARE(window.geometry(), last);
}

void tst_FramelessHelper::rubberBandTurnedOffWhileDragging()
{
    FramelessHelper helper;
    helper.setRubberBandOnMove(true);
    Window window;
    helper.activateOn(&window);
    window.show();
    press(&window, TitlePoint);
    helper.setRubberBandOnMove(false);
    QVERIFY(bands().isEmpty());
    moveTo(&window, StartGeometry.topLeft() + TitlePoint + QPoint(1, 2));
    QCOMPARE(window.geometry(), StartGeometry.translated(1, 2));
    release(&window, QPoint(0, 0));
    QCOMPARE(window.geometry(), StartGeometry.translated(1, 2));
}

void tst_FramelessHelper::consumesNothing()
{
    FramelessHelper helper;
    Window window;
    helper.activateOn(&window);
    window.show();
    for (const QPoint &point : {TitlePoint, QPoint(0, 0), QPoint(150, 100)}) {
        const int presses = window.seen(QEvent::MouseButtonPress);
        const int moves = window.seen(QEvent::MouseMove);
        const int releases = window.seen(QEvent::MouseButtonRelease);
        const int hovers = window.seen(QEvent::HoverMove);
        const int leaves = window.seen(QEvent::Leave);
        lmtest::hoverMove(&window, point);
        QCOMPARE(window.seen(QEvent::HoverMove), hovers + 1);
        press(&window, point);
        moveTo(&window, window.mapToGlobal(point));
        release(&window, window.mapToGlobal(point));
        leave(&window);
        QCOMPARE(window.seen(QEvent::MouseButtonPress), presses + 1);
        QCOMPARE(window.seen(QEvent::MouseMove), moves + 1);
        QCOMPARE(window.seen(QEvent::MouseButtonRelease), releases + 1);
        QCOMPARE(window.seen(QEvent::Leave), leaves + 1);
    }
}

void tst_FramelessHelper::hideEndsTheGesture()
{
    FramelessHelper helper;
    helper.setRubberBandOnResize(true);
    Window window;
    helper.activateOn(&window);
    window.show();
    press(&window, TitlePoint);
    window.hide();
    window.show();
    moveTo(&window, QPoint(0, 0));
    QCOMPARE(window.geometry(), StartGeometry);

    press(&window, QPoint(300, 200));
    QVERIFY(bands().first()->isVisible());
    window.hide();
    QVERIFY(!bands().first()->isVisible());
}

void tst_FramelessHelper::pressThroughAChild()
{
    // A child that takes no mouse events hands them on to the window.
    FramelessHelper helper;
    Window window;
    auto *child = new QWidget(&window);
    child->setGeometry(100, 10, 100, 100);
    helper.activateOn(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    lmtest::mouse(child, QEvent::MouseButtonPress, QPoint(50, 29));
    lmtest::mouse(child, QEvent::MouseMove, QPoint(55, 35));
    QCOMPARE(window.pos(), QPoint(205, 156));
    lmtest::mouse(child, QEvent::MouseButtonRelease, QPoint(50, 29));
    lmtest::mouse(child, QEvent::MouseButtonPress, QPoint(50, 30));
    lmtest::mouse(child, QEvent::MouseMove, QPoint(55, 35));
    QCOMPARE(window.pos(), QPoint(205, 156));
}

void tst_FramelessHelper::widgetDestroyedFirst()
{
    FramelessHelper helper;
    helper.setRubberBandOnMove(true);
    auto window = std::make_unique<Window>();
    helper.activateOn(window.get());
    window->show();
    press(window.get(), TitlePoint);
    window.reset();
    QVERIFY(bands().isEmpty());
    helper.setRubberBandOnResize(true);
    helper.setRubberBandOnMove(false);
    QVERIFY(bands().isEmpty());
}

void tst_FramelessHelper::widgetDestroyedWithBlockedSignals()
{
    FramelessHelper helper;
    helper.setRubberBandOnMove(true);
    auto window = std::make_unique<Window>();
    helper.activateOn(window.get());
    window->blockSignals(true);
    window.reset();
    helper.setRubberBandOnMove(false);
    QVERIFY(bands().isEmpty());
}

void tst_FramelessHelper::widgetDestroyedAfterDisconnect()
{
    // A host may drop all connections of its window; the helper must not count on one of them.
    FramelessHelper helper;
    helper.setRubberBandOnMove(true);
    auto *window = new Window;
    helper.activateOn(window);
    window->disconnect();
    delete window;
    helper.removeFrom(window);
    QVERIFY(bands().isEmpty());

    {
        FramelessHelper other;
        auto *second = new Window;
        other.activateOn(second);
        second->disconnect();
        delete second;
        // Whatever stands at the same address afterwards is another widget.
        Window third;
        other.activateOn(&third);
        QVERIFY(third.hasMouseTracking());
    }
}

void tst_FramelessHelper::helperIsAChild()
{
    auto window = std::make_unique<Window>();
    const QPointer<FramelessHelper> helper = new FramelessHelper(window.get());
    helper->setRubberBandOnMove(true);
    helper->activateOn(window.get());
    window->setWindowFlags(window->windowFlags() | Qt::WindowStaysOnTopHint);
    new QWidget(window.get());
    window->show();
    press(window.get(), TitlePoint);
    window.reset();
    QVERIFY(helper.isNull());
    QVERIFY(bands().isEmpty());
}

void tst_FramelessHelper::helperIsAChildAfterDisconnect()
{
    auto window = std::make_unique<Window>();
    const QPointer<FramelessHelper> helper = new FramelessHelper(window.get());
    helper->activateOn(window.get());
    window->setWindowFlags(window->windowFlags() | Qt::WindowStaysOnTopHint);
    window->show();
    window->disconnect();
    window.reset();
    QVERIFY(helper.isNull());
}

void tst_FramelessHelper::helperDestroyedWhileDragging_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::newRow("move") << TitlePoint;
    QTest::newRow("resize") << QPoint(0, 0);
}

void tst_FramelessHelper::helperDestroyedWhileDragging()
{
    QFETCH(QPoint, from);
    Window window;
    auto helper = std::make_unique<FramelessHelper>();
    helper->activateOn(&window);
    window.show();
    window.onMove = [&helper] { helper.reset(); };
    press(&window, from);
    moveTo(&window, QPoint(190, 140));
    QVERIFY(!helper);
    QVERIFY(!window.hasMouseTracking());
    const QRect geometry = window.geometry();
    moveTo(&window, QPoint(100, 100));
    QCOMPARE(window.geometry(), geometry);
}

void tst_FramelessHelper::widgetRemovedWhileDragging_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<bool>("band");
    QTest::newRow("move") << TitlePoint << false;
    QTest::newRow("resize") << QPoint(0, 0) << false;
    QTest::newRow("move, band") << TitlePoint << true;
    QTest::newRow("resize, band") << QPoint(0, 0) << true;
}

void tst_FramelessHelper::widgetRemovedWhileDragging()
{
    QFETCH(QPoint, from);
    QFETCH(bool, band);
    Window window;
    FramelessHelper helper;
    helper.setRubberBandOnMove(band);
    helper.setRubberBandOnResize(band);
    helper.activateOn(&window);
    window.show();
    const auto remove = [&helper, &window] { helper.removeFrom(&window); };
    window.onMove = remove;
    window.onResize = remove;
    press(&window, from);
    moveTo(&window, QPoint(190, 140));
    release(&window, QPoint(190, 140));
    QVERIFY(!window.hasMouseTracking());
    QVERIFY(bands().isEmpty());
}

void tst_FramelessHelper::widgetDestroyedAtRelease()
{
    FramelessHelper helper;
    const QPointer<Window> window = new Window;
    helper.activateOn(window);
    window->show();
    window->onMove = [&window] { window->deleteLater(); };
    press(window, TitlePoint);
    moveTo(window, QPoint(190, 140));
    QTRY_VERIFY(window.isNull());
    helper.setRubberBandOnMove(true);
    QVERIFY(bands().isEmpty());
}

void tst_FramelessHelper::otherWidgetDestroyedInTheDestructor()
{
    // Restoring changed flags hides a window, and host code that sees it may destroy the others.
    class Hider : public Window
    {
    public:
        std::function<void()> onHide;

    protected:
        void hideEvent(QHideEvent *) override
        {
            if (onHide) {
                onHide();
            }
        }
    };
    std::unique_ptr<Hider> windows[3];
    auto helper = std::make_unique<FramelessHelper>();
    for (auto &window : windows) {
        window = std::make_unique<Hider>();
        helper->activateOn(window.get());
        window->setWindowFlags(window->windowFlags() | Qt::WindowStaysOnTopHint);
        window->show();
    }
    int hidden = 0;
    for (int i = 0; i < 3; ++i) {
        windows[i]->onHide = [&, i] {
            ++hidden;
            for (int other = 0; other < 3; ++other) {
                if (other != i && windows[other]) {
                    windows[other]->onHide = nullptr;
                    windows[other].reset();
                }
            }
        };
    }
    helper.reset();
    QCOMPARE(hidden, 1);
}

LMTEST_MAIN(tst_FramelessHelper)

#include "tst_framelesshelper.moc"
