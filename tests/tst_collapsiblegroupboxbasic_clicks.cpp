/** @file
 * What the mouse and the keyboard do to collapsible group boxes, alone and in groups.
 */

#include "groupboxtest.h"

using namespace groupboxtest;

class tst_CollapsibleGroupBoxBasicClicks : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void titleEdges();
    void otherButtonsAndPlaces();
    void keysCountForOneClick();
    void checkableTitleClick();
    void checkableModifiers();
    void checkedByCode();
    void checkClickedSlot();
    void keyboard();
    void toggleByOthers();
    void shiftOpensOne();
    void syncOtherGroups();
    void syncDisabled();
    void syncParent_data();
    void syncParent();
    void syncWithoutParent();
    void syncNested();
};

void tst_CollapsibleGroupBoxBasicClicks::titleEdges()
{
    Panel panel(1);
    panel.show();
    Box *box = panel.boxes.first();
    // The title keeps its place when the box is folded, so that the mouse need not move.
    const QRect title = box->titleRect();
    QVERIFY(title.left() >= 16);
    const auto toggles = [&](const QPoint &position) {
        box->setCollapsed(false);
        const QPoint inWindow = box->mapTo(panel.area, position);
        QTest::mouseClick(panel.area->windowHandle(), Qt::LeftButton, Qt::NoModifier, inWindow);
        return box->isCollapsed();
    };
    QVERIFY(toggles(title.topLeft()));
    QCOMPARE(box->titleRect(), title);
    QVERIFY(toggles(title.topRight()));
    QVERIFY(toggles(title.bottomLeft()));
    QVERIFY(toggles(title.bottomRight()));
    QVERIFY(!toggles(title.topLeft() - QPoint(1, 0)));
    QVERIFY(!toggles(title.topLeft() - QPoint(0, 1)));
    QVERIFY(!toggles(title.bottomRight() + QPoint(1, 0)));
    QVERIFY(!toggles(title.bottomRight() + QPoint(0, 1)));
}

void tst_CollapsibleGroupBoxBasicClicks::otherButtonsAndPlaces()
{
    Panel panel(1);
    panel.show();
    Box *box = panel.boxes.first();
    const QPoint title = box->titlePoint();
    click(box, title, Qt::NoModifier, Qt::RightButton);
    QVERIFY(!box->isCollapsed());
    click(box, title, Qt::ShiftModifier, Qt::MiddleButton);
    click(box, box->rect().center());
    QVERIFY(!box->isCollapsed());

    // Where the button is released decides.
    QWindow *window = panel.area->windowHandle();
    const auto drag = [&](const QPoint &from, const QPoint &to) {
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, box->mapTo(panel.area, from));
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, box->mapTo(panel.area, to));
    };
    const QPoint below(title.x(), box->titleRect().bottom() + 10);
    drag(title, below);
    QVERIFY(!box->isCollapsed());
    drag(below, title);
    QVERIFY(box->isCollapsed());
}

void tst_CollapsibleGroupBoxBasicClicks::keysCountForOneClick()
{
    // Shift and a click into the box: nothing happens, and the next click is a plain one.
    Panel panel(2);
    panel.group();
    panel.show();
    Box *box = panel.boxes.first();
    click(box, QPoint(box->width() - 3, box->height() - 3), Qt::ShiftModifier);
    clickArrow(box);
    QCOMPARE(panel.folded(), QStringLiteral("a"));
}

void tst_CollapsibleGroupBoxBasicClicks::checkableTitleClick()
{
    Panel panel(2);
    panel.group();
    Box *box = panel.boxes.first();
    box->setCheckable(true);
    panel.show();
    Record record;
    record.follow(panel);
    clickTitle(box);
    QVERIFY(!box->isChecked());
    QCOMPARE(panel.folded(), QStringLiteral("a"));
    clickTitle(box);
    QVERIFY(box->isChecked());
    QCOMPARE(panel.folded(), QString());
    QCOMPARE(record.lines, QStringLiteral("a-a+"));

    // Checking what is open already, and unchecking what is folded already, changes nothing else.
    clickArrow(box);
    QVERIFY(box->isChecked());
    clickTitle(box);
    QVERIFY(!box->isChecked());
    QVERIFY(box->isCollapsed());
    clickArrow(box);
    clickTitle(box);
    QVERIFY(box->isChecked());
    QVERIFY(!box->isCollapsed());
    QCOMPARE(record.lines, QStringLiteral("a-a+a-a+"));
}

void tst_CollapsibleGroupBoxBasicClicks::checkableModifiers()
{
    Panel panel(3);
    panel.area->resize(300, 600);
    panel.group();
    Box *box = panel.boxes[1];
    box->setCheckable(true);
    panel.show();
    clickTitle(box, Qt::ControlModifier);
    QCOMPARE(panel.folded(), QStringLiteral("abc"));
    QVERIFY(box->isChecked());
    clickTitle(box, Qt::ShiftModifier);
    QCOMPARE(panel.folded(), QStringLiteral("ac"));
    QVERIFY(box->isChecked());
    clickTitle(box, Qt::AltModifier);
    QCOMPARE(panel.folded(), QStringLiteral("abc"));
    QVERIFY(box->isChecked());

    // The press alone: ignored on the title with a key, and only there.
    QMouseEvent onTitle(QEvent::MouseButtonPress, box->titlePoint(), Qt::LeftButton, Qt::LeftButton,
                        Qt::ShiftModifier);
    box->mousePressEvent(&onTitle);
    QVERIFY(!onTitle.isAccepted());
    QMouseEvent plain(QEvent::MouseButtonPress, box->titlePoint(), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    box->mousePressEvent(&plain);
    QVERIFY(plain.isAccepted());
}

void tst_CollapsibleGroupBoxBasicClicks::checkedByCode()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    box->setCheckable(true);
    box->show();
    box->setChecked(false);
    QVERIFY(!box->isCollapsed());
    box->setCollapsed(true);
    box->setChecked(true);
    QVERIFY(box->isCollapsed());
}

void tst_CollapsibleGroupBoxBasicClicks::checkClickedSlot()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    Record record;
    record.follow(box.get());
    box->checkClicked(true);
    QVERIFY(!box->isCollapsed());
    box->checkClicked(false);
    QVERIFY(box->isCollapsed());
    box->checkClicked(false);
    QVERIFY(box->isCollapsed());
    box->checkClicked(true);
    QVERIFY(!box->isCollapsed());
    QCOMPARE(record.lines, QString());
    QVERIFY(box->styleSheet().isEmpty());

    box->show();
    record.lines.clear();
    box->checkClicked(false);
    QVERIFY(box->findChild<QLabel *>()->isHidden());
    QVERIFY(box->isFlat());
    box->checkClicked(true);
    QVERIFY(box->findChild<QLabel *>()->isVisible());
    QVERIFY(!box->isFlat());
    QCOMPARE(record.lines, QStringLiteral("a-a+"));
}

void tst_CollapsibleGroupBoxBasicClicks::keyboard()
{
    Panel panel(1);
    Box *box = panel.boxes.first();
    box->setCheckable(true);
    panel.show();
    QApplication::setActiveWindow(panel.area);
    box->arrow()->setFocus();
    QVERIFY(box->arrow()->hasFocus());
    QTest::keyClick(panel.area->windowHandle(), Qt::Key_Space);
    QVERIFY(box->isCollapsed());
    QVERIFY(box->isChecked());
    box->setFocus();
    QTest::keyClick(panel.area->windowHandle(), Qt::Key_Space);
    QVERIFY(!box->isChecked());
    QTest::keyClick(panel.area->windowHandle(), Qt::Key_Space);
    QVERIFY(box->isChecked());
    QVERIFY(!box->isCollapsed());
}

void tst_CollapsibleGroupBoxBasicClicks::toggleByOthers()
{
    Panel panel(2);
    panel.group();
    panel.show();
    Box *box = panel.boxes.first();
    box->toggleCollapsed();
    QCOMPARE(panel.folded(), QStringLiteral("a"));
    // A button of the host's or another box's arrow is no click on this title.
    GroupBoxCollapseButton other;
    connect(&other, &QAbstractButton::clicked, box, &CollapsibleGroupBoxBasic::toggleCollapsed);
    other.resize(16, 16);
    QTest::mouseClick(&other, Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(panel.folded(), QString());
    // The arrow's keys count whoever asks, but without a click on it there is no group.
    box->arrow()->setShiftDown(true);
    box->toggleCollapsed();
    QCOMPARE(panel.folded(), QString());
    QVERIFY(!box->arrow()->shiftDown());
}

void tst_CollapsibleGroupBoxBasicClicks::shiftOpensOne()
{
    Panel panel;
    panel.area->resize(300, 800);
    panel.group();
    panel.boxes[0]->setCollapsed(true);
    panel.boxes[2]->setCollapsed(true);
    panel.show();
    Record record;
    record.follow(panel);
    clickTitle(panel.boxes[2], Qt::ShiftModifier);
    QCOMPARE(panel.folded(), QStringLiteral("abde"));
    // One after the other as they stand, each only if it changes.
    QCOMPARE(record.lines, QStringLiteral("b-c+d-e-"));
    record.lines.clear();
    clickArrow(panel.boxes[2], Qt::ShiftModifier);
    QCOMPARE(panel.folded(), QStringLiteral("abde"));
    QCOMPARE(record.lines, QString());
    // Shift goes before Ctrl.
    clickArrow(panel.boxes[0], Qt::ShiftModifier | Qt::ControlModifier);
    QCOMPARE(panel.folded(), QStringLiteral("bcde"));
    QCOMPARE(record.lines, QStringLiteral("a+c-"));
}

void tst_CollapsibleGroupBoxBasicClicks::syncOtherGroups()
{
    Panel panel;
    panel.area->resize(300, 800);
    const QStringList names = {QStringLiteral("g"), QStringLiteral("G"), QStringLiteral("g "),
                               QString(), QStringLiteral("g")};
    for (int i = 0; i < names.size(); ++i) {
        panel.boxes[i]->setSyncGroup(names.at(i));
    }
    panel.show();
    clickTitle(panel.boxes[0], Qt::ControlModifier);
    QCOMPARE(panel.folded(), QStringLiteral("ae"));
    clickTitle(panel.boxes[1], Qt::ShiftModifier);
    QCOMPARE(panel.folded(), QStringLiteral("ae"));
}

void tst_CollapsibleGroupBoxBasicClicks::syncDisabled()
{
    Panel panel(3);
    panel.area->resize(300, 600);
    panel.group();
    panel.boxes[0]->setEnabled(false);
    panel.boxes[2]->setEnabled(false);
    panel.boxes[2]->setCollapsed(true);
    panel.show();
    clickTitle(panel.boxes[1], Qt::ControlModifier);
    QCOMPARE(panel.folded(), QStringLiteral("bc"));
    clickTitle(panel.boxes[1], Qt::ControlModifier);
    QCOMPARE(panel.folded(), QStringLiteral("c"));
    clickTitle(panel.boxes[1], Qt::ShiftModifier);
    QCOMPARE(panel.folded(), QStringLiteral("c"));
}

void tst_CollapsibleGroupBoxBasicClicks::syncParent_data()
{
    QTest::addColumn<QString>("outerName");
    QTest::addColumn<bool>("reachesSibling");
    QTest::newRow("a plain window") << QStringLiteral("window") << true;
    QTest::newRow("no name") << QString() << true;
    QTest::newRow("the host's main window") << QStringLiteral("QgisApp") << false;
    QTest::newRow("other letters") << QStringLiteral("qgisapp") << true;
}

void tst_CollapsibleGroupBoxBasicClicks::syncParent()
{
    QFETCH(QString, outerName);
    QFETCH(bool, reachesSibling);
    // top > outer > two holders with a box each; and a box beside outer, which is never reached.
    QWidget top;
    auto *topLayout = new QVBoxLayout(&top);
    auto *outer = new QWidget;
    outer->setObjectName(outerName);
    auto *outerLayout = new QVBoxLayout(outer);
    QVector<Box *> boxes;
    for (int i = 0; i < 2; ++i) {
        auto *holder = new QWidget;
        auto *layout = new QVBoxLayout(holder);
        boxes.append(makeBox(QString(QLatin1Char(char('a' + i)))));
        layout->addWidget(boxes.last());
        outerLayout->addWidget(holder);
    }
    topLayout->addWidget(outer);
    boxes.append(makeBox(QStringLiteral("c")));
    topLayout->addWidget(boxes.last());
    for (Box *box : boxes) {
        box->setSyncGroup(Group);
    }
    top.show();
    QVERIFY(QTest::qWaitForWindowExposed(&top));
    clickTitle(boxes[0], Qt::ControlModifier);
    QVERIFY(boxes[0]->isCollapsed());
    QCOMPARE(boxes[1]->isCollapsed(), reachesSibling);
    QVERIFY(!boxes[2]->isCollapsed());
}

void tst_CollapsibleGroupBoxBasicClicks::syncWithoutParent()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    box->setSyncGroup(Group);
    box->show();
    QVERIFY(QTest::qWaitForWindowExposed(box.get()));
    clickTitle(box.get(), Qt::ControlModifier);
    QVERIFY(box->isCollapsed());
    clickTitle(box.get(), Qt::ShiftModifier);
    QVERIFY(!box->isCollapsed());
    clickTitle(box.get(), Qt::ShiftModifier);
    QVERIFY(!box->isCollapsed());
}

void tst_CollapsibleGroupBoxBasicClicks::syncNested()
{
    Panel panel(2);
    panel.area->resize(300, 600);
    Box *inner = makeBox(QStringLiteral("n"));
    panel.boxes[0]->layout()->addWidget(inner);
    inner->setSyncGroup(Group);
    panel.group();
    panel.show();
    Record record;
    record.follow(panel);
    record.follow(inner);
    // The outer box hides the inner one before its turn comes: it only takes the state.
    clickTitle(panel.boxes[1], Qt::ControlModifier);
    QCOMPARE(record.lines, QStringLiteral("a-b-"));
    QVERIFY(inner->isCollapsed());
    QVERIFY(inner->isHidden());
    clickTitle(panel.boxes[1], Qt::ControlModifier);
    QCOMPARE(record.lines, QStringLiteral("a-b-a+n+b+"));
    QVERIFY(inner->isVisible());
    QVERIFY(inner->findChild<QLabel *>()->isVisible());
}

LMTEST_MAIN(tst_CollapsibleGroupBoxBasicClicks)
#include "tst_collapsiblegroupboxbasic_clicks.moc"
