/** @file
 * Collapsible group boxes in scroll areas, and hosts that destroy or move what is around them.
 */

#include "groupboxtest.h"

using namespace groupboxtest;

namespace {

/** Counts how often it is carried out. */
class CountingLayout : public QVBoxLayout
{
public:
    void setGeometry(const QRect &rect) override
    {
        ++layOuts;
        QVBoxLayout::setGeometry(rect);
    }
    int layOuts = 0;
};

} // namespace

class tst_CollapsibleGroupBoxBasicHosts : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void scrollsIntoView();
    void scrollsToTheTitleOfAHighBox();
    void openedGroupScrollsLikeItsBoxes_data();
    void openedGroupScrollsLikeItsBoxes();
    void doesNotScroll();
    void scrollAreaUpdates();
    void deletedByListeners_data();
    void deletedByListeners();
    void deletedWhileHidingChildren();
    void changedWhileHidingChildren();
    void siblingDeletedWhileShowingChildren_data();
    void siblingDeletedWhileShowingChildren();
    void resizedWhileShowingChildren();
    void panelIsLaidOutOnceForAGroup();
    void deletedByAListenerOfTheScrollBar();
    void areaDestroyedWhileOpening();
    void panelTakenOutOfItsArea();
    void reparented();
    void arrowDeletedByHost();
};

void tst_CollapsibleGroupBoxBasicHosts::scrollsIntoView()
{
    Panel panel(6);
    for (Box *box : panel.boxes) {
        box->setCollapsed(true);
    }
    panel.boxes[0]->setCollapsed(false);
    panel.boxes[1]->setCollapsed(false);
    panel.area->resize(300, 220);
    panel.show();
    QCOMPARE(panel.scrolled(), 0);

    Box *box = panel.boxes[4];
    panel.area->ensureWidgetVisible(box, 0, 0);
    panel.area->verticalScrollBar()->setValue(0);
    box->setCollapsed(false);
    // 50 px stay below the box, unless the panel ends before.
    const int bottom = box->geometry().bottom() + 50 - panel.area->viewport()->height();
    const int expected = qMin(bottom, panel.area->verticalScrollBar()->maximum());
    QVERIFY(expected > 0);
    QVERIFY(qAbs(panel.scrolled() - expected) <= 1);
    const QRect inView(box->mapTo(panel.area->viewport(), QPoint()), box->size());
    QVERIFY(panel.area->viewport()->rect().contains(inView));

    // And from below.
    panel.boxes[0]->setCollapsed(true);
    panel.area->verticalScrollBar()->setValue(panel.area->verticalScrollBar()->maximum());
    QVERIFY(panel.scrolled() > 0);
    panel.boxes[0]->setCollapsed(false);
    QCOMPARE(panel.scrolled(), 0);
}

void tst_CollapsibleGroupBoxBasicHosts::scrollsToTheTitleOfAHighBox()
{
    Panel panel(6, 20);
    for (Box *box : panel.boxes) {
        box->setCollapsed(true);
    }
    panel.show();
    Box *box = panel.boxes[3];
    clickTitle(box);
    QVERIFY(!box->isCollapsed());
    QVERIFY(box->height() > panel.area->viewport()->height());
    const QPoint arrow = box->arrow()->mapTo(panel.area->viewport(), QPoint());
    QVERIFY(arrow.y() >= 5);
    QVERIFY(arrow.y() + 16 <= panel.area->viewport()->height());
}

void tst_CollapsibleGroupBoxBasicHosts::openedGroupScrollsLikeItsBoxes_data()
{
    QTest::addColumn<int>("labels");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("grouped");
    QTest::newRow("all, low boxes") << 2 << 250 << 6;
    QTest::newRow("all, high boxes") << 20 << 250 << 6;
    QTest::newRow("some, low boxes") << 2 << 220 << 4;
    QTest::newRow("some, high boxes") << 20 << 300 << 4;
    QTest::newRow("one") << 4 << 250 << 1;
}

void tst_CollapsibleGroupBoxBasicHosts::openedGroupScrollsLikeItsBoxes()
{
    // The panel ends where opening one box after the other takes it.
    QFETCH(int, labels);
    QFETCH(int, height);
    QFETCH(int, grouped);
    Panel atOnce(6, labels);
    Panel oneByOne(6, labels);
    for (Panel *panel : {&atOnce, &oneByOne}) {
        for (int i = 0; i < 6; ++i) {
            panel->boxes[i]->setCollapsed(true);
            panel->boxes[i]->setSyncGroup(i < grouped ? Group : QString());
        }
        panel->area->resize(300, height);
        panel->show();
    }
    clickTitle(atOnce.boxes[0], Qt::ControlModifier);
    for (int i = 0; i < grouped; ++i) {
        oneByOne.boxes[i]->setCollapsed(false);
    }
    QCOMPARE(atOnce.folded(), oneByOne.folded());
    QCOMPARE(atOnce.scrolled(), oneByOne.scrolled());
    QCOMPARE(atOnce.content->height(), oneByOne.content->height());
    QVERIFY(atOnce.area->updatesEnabled());
}

void tst_CollapsibleGroupBoxBasicHosts::doesNotScroll()
{
    Panel panel(6, 10);
    for (Box *box : panel.boxes) {
        box->setCollapsed(true);
    }
    panel.boxes[5]->setScrollOnExpand(false);
    panel.area->resize(300, 260);
    panel.show();
    panel.boxes[5]->setCollapsed(false);
    QCoreApplication::processEvents();
    QVERIFY(panel.area->verticalScrollBar()->maximum() > 0);
    QCOMPARE(panel.scrolled(), 0);

    // The first show does not scroll, not even to a box that a listener opens at once.
    Panel open(6, 10);
    open.show();
    QCOMPARE(open.scrolled(), 0);
    Panel opened(6, 10);
    Box *last = opened.boxes[5];
    last->setCollapsed(true);
    connect(last, &CollapsibleGroupBoxBasic::collapsedStateChanged, last,
            [last] { last->setCollapsed(false); });
    opened.show();
    QVERIFY(!last->isCollapsed());
    QCOMPARE(opened.scrolled(), 0);

    // Neither does a box that is deeper inside than a box of the panel.
    Panel outer(3, 10);
    Box *inner = makeBox(QStringLiteral("n"), 10);
    outer.boxes[2]->layout()->addWidget(inner);
    inner->setCollapsed(true);
    outer.show();
    inner->setCollapsed(false);
    QCOMPARE(outer.scrolled(), 0);
}

void tst_CollapsibleGroupBoxBasicHosts::scrollAreaUpdates()
{
    Panel panel(3);
    panel.boxes[2]->setCollapsed(true);
    panel.show();
    bool enabledWhileScrolling = true;
    connect(panel.area->verticalScrollBar(), &QScrollBar::valueChanged, this,
            [&] { enabledWhileScrolling = panel.area->updatesEnabled(); });
    panel.boxes[2]->setCollapsed(false);
    QVERIFY(!enabledWhileScrolling);
    QVERIFY(panel.area->updatesEnabled());

    // A host that has stopped them itself, say in order to open many boxes, starts them itself.
    panel.boxes[2]->setCollapsed(true);
    panel.area->setUpdatesEnabled(false);
    panel.boxes[2]->setCollapsed(false);
    QVERIFY(!panel.area->updatesEnabled());
}

void tst_CollapsibleGroupBoxBasicHosts::deletedByListeners_data()
{
    QTest::addColumn<QString>("trigger");
    QTest::addColumn<QString>("victim");
    const QStringList triggers = {
        QStringLiteral("setCollapsed"),    QStringLiteral("setOpen"),
        QStringLiteral("title"),           QStringLiteral("arrow"),
        QStringLiteral("title control"),   QStringLiteral("arrow shift"),
        QStringLiteral("check box title"), QStringLiteral("checkClicked")};
    for (const QString &trigger : triggers) {
        for (const QString &victim :
             {QStringLiteral("box"), QStringLiteral("sibling before"),
              QStringLiteral("sibling after"), QStringLiteral("content"), QStringLiteral("area"),
              QStringLiteral("label"), QStringLiteral("all siblings")}) {
            QTest::newRow(qPrintable(trigger + QStringLiteral(", ") + victim)) << trigger << victim;
        }
    }
}

void tst_CollapsibleGroupBoxBasicHosts::deletedByListeners()
{
    QFETCH(QString, trigger);
    QFETCH(QString, victim);
    Panel panel;
    panel.area->resize(300, 700);
    panel.group();
    Box *box = panel.boxes[2];
    box->setCheckable(trigger.startsWith(QLatin1String("check")));
    box->setCollapsed(trigger == QLatin1String("setOpen"));
    panel.show();
    const QHash<QString, QObject *> victims = {
        {QStringLiteral("box"), box},
        {QStringLiteral("sibling before"), panel.boxes[1]},
        {QStringLiteral("sibling after"), panel.boxes[3]},
        {QStringLiteral("content"), panel.content},
        {QStringLiteral("area"), panel.area},
        {QStringLiteral("label"), box->findChild<QLabel *>()},
        {QStringLiteral("all siblings"), panel.boxes[4]}};
    const QPointer<QObject> gone = victims.value(victim);
    const QVector<QPointer<Box>> siblings = {panel.boxes[0], panel.boxes[1], panel.boxes[3]};
    bool acted = false;
    for (Box *each : panel.boxes) {
        connect(each, &CollapsibleGroupBoxBasic::collapsedStateChanged, this, [&] {
            acted = true;
            if (victim == QLatin1String("all siblings")) {
                for (const auto &sibling : siblings) {
                    delete sibling.data();
                }
            }
            delete gone.data();
        });
    }
    // Sent to the widget itself: a window that is deleted within its own event is Qt's business.
    const auto send = [&](QPointer<QWidget> widget, const QPoint &position, int modifiers) {
        const Qt::KeyboardModifiers keys(modifiers);
        lmtest::mouse(widget, QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton,
                      keys);
        lmtest::mouse(widget, QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::LeftButton,
                      keys);
    };
    if (trigger == QLatin1String("setCollapsed") || trigger == QLatin1String("setOpen")) {
        box->setCollapsed(!box->isCollapsed());
    } else if (trigger == QLatin1String("checkClicked")) {
        box->checkClicked(false);
    } else if (trigger.startsWith(QLatin1String("arrow"))) {
        send(box->arrow(), QPoint(8, 8),
             trigger.endsWith(QLatin1String("shift")) ? Qt::ShiftModifier : Qt::NoModifier);
    } else {
        send(box, box->titlePoint(),
             trigger.endsWith(QLatin1String("control")) ? Qt::ControlModifier : Qt::NoModifier);
    }
    QVERIFY(acted);
    QVERIFY(!gone);
    QCoreApplication::processEvents();
}

void tst_CollapsibleGroupBoxBasicHosts::deletedWhileHidingChildren()
{
    QWidget window;
    window.resize(200, 200);
    QPointer<Box> box = makeBox(QStringLiteral("a"));
    box->setParent(&window);
    window.show();
    EventWatcher watcher(box->findChild<QLabel *>(), QEvent::DynamicPropertyChange,
                         [box] { delete box.data(); });
    box->setCollapsed(true);
    QVERIFY(!box);

    // The same for a child that takes the next one with it.
    std::unique_ptr<Box> other(makeBox(QStringLiteral("b")));
    other->show();
    const auto labels = other->findChildren<QLabel *>();
    EventWatcher siblings(labels.at(0), QEvent::Hide, [&] { delete labels.at(1); });
    other->setCollapsed(true);
    QVERIFY(labels.at(2)->isHidden());
}

void tst_CollapsibleGroupBoxBasicHosts::changedWhileHidingChildren()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    box->show();
    Record record;
    record.follow(box.get());
    const auto labels = box->findChildren<QLabel *>();
    EventWatcher watcher(labels.at(2), QEvent::Hide, [&] { box->setCollapsed(false); });
    box->setCollapsed(true);
    QVERIFY(!box->isCollapsed());
    QCOMPARE(box->maximumHeight(), QWIDGETSIZE_MAX);
    QVERIFY(labels.at(0)->isVisible());
    QVERIFY(!box->styleSheet().contains(Marker));
    // The last word is the true one.
    QVERIFY(record.lines.isEmpty() || record.lines.endsWith(QLatin1Char('+')));
}

void tst_CollapsibleGroupBoxBasicHosts::siblingDeletedWhileShowingChildren_data()
{
    QTest::addColumn<int>("event");
    QTest::newRow("hide") << int(QEvent::Hide);
    QTest::newRow("show") << int(QEvent::Show);
    QTest::newRow("mark") << int(QEvent::DynamicPropertyChange);
}

void tst_CollapsibleGroupBoxBasicHosts::siblingDeletedWhileShowingChildren()
{
    QFETCH(int, event);
    Panel panel(4);
    panel.show();
    Box *box = panel.boxes[1];
    const auto labels = box->findChildren<QLabel *>();
    EventWatcher watcher(labels.at(0), QEvent::Type(event), [&] {
        delete panel.boxes[0];
        delete panel.boxes[2];
        delete labels.at(2);
    });
    box->setCollapsed(true);
    box->setCollapsed(false);
    // Nothing is left of them in the layouts, and those go on working.
    QCOMPARE(panel.content->layout()->count(), 3);
    QCOMPARE(box->layout()->count(), 2);
    QVERIFY(panel.content->layout()->isEnabled());
    QCOMPARE(box->y(), panel.content->layout()->contentsMargins().top());
    box->setCollapsed(true);
    QTRY_COMPARE(box->height(), box->maximumHeight());
    panel.boxes = {box, panel.boxes[3]};
}

void tst_CollapsibleGroupBoxBasicHosts::resizedWhileShowingChildren()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    Box *box = makeBox(QStringLiteral("a"));
    layout->addWidget(box);
    window.resize(300, 200);
    window.show();
    box->setCollapsed(true);
    EventWatcher watcher(box->findChild<QLabel *>(), QEvent::Show,
                         [&] { window.resize(500, 200); });
    box->setCollapsed(false);
    const QMargins margins = layout->contentsMargins();
    QTRY_COMPARE(box->width(), 500 - margins.left() - margins.right());

    // The same for a host that processes events itself.
    box->setCollapsed(true);
    QTRY_COMPARE(box->height(), box->maximumHeight());
    EventWatcher events(box->findChild<QLabel *>(), QEvent::Show,
                        [] { QCoreApplication::sendPostedEvents(); });
    box->setCollapsed(false);
    QTRY_VERIFY(box->height() > 40);

    // A layout that the host has switched off stays off.
    layout->setEnabled(false);
    box->setCollapsed(true);
    QVERIFY(!layout->isEnabled());
}

void tst_CollapsibleGroupBoxBasicHosts::panelIsLaidOutOnceForAGroup()
{
    // However many boxes there are: else a long panel takes the square of the time.
    const auto layOutsOfAGroup = [](int count) {
        QScrollArea area;
        area.setWidgetResizable(true);
        auto *content = new QWidget;
        auto *column = new CountingLayout;
        content->setLayout(column);
        QVector<Box *> boxes;
        for (int i = 0; i < count; ++i) {
            boxes.append(makeBox(QString::number(i)));
            boxes.last()->setSyncGroup(Group);
            boxes.last()->setCollapsed(true);
            column->addWidget(boxes.last());
        }
        area.setWidget(content);
        area.resize(300, 200);
        area.show();
        QCoreApplication::processEvents();
        column->layOuts = 0;
        lmtest::mouse(boxes[0]->arrow(), QEvent::MouseButtonPress, QPoint(8, 8), Qt::LeftButton,
                      Qt::LeftButton, Qt::ControlModifier);
        lmtest::mouse(boxes[0]->arrow(), QEvent::MouseButtonRelease, QPoint(8, 8), Qt::LeftButton,
                      Qt::LeftButton, Qt::ControlModifier);
        QCoreApplication::processEvents();
        return boxes.last()->isCollapsed() ? 0 : column->layOuts;
    };
    for (const int count : {3, 30}) {
        const int layOuts = layOutsOfAGroup(count);
        QVERIFY(layOuts >= 1);
        QVERIFY(layOuts <= 3);
    }
}

void tst_CollapsibleGroupBoxBasicHosts::deletedByAListenerOfTheScrollBar()
{
    Panel panel(3);
    panel.boxes[2]->setCollapsed(true);
    panel.show();
    QPointer<Box> box = panel.boxes[2];
    connect(panel.area->verticalScrollBar(), &QScrollBar::valueChanged, this,
            [box] { delete box.data(); });
    box->setCollapsed(false);
    QVERIFY(!box);
    QVERIFY(panel.area->updatesEnabled());
}

void tst_CollapsibleGroupBoxBasicHosts::areaDestroyedWhileOpening()
{
    // Opening processes pending events, and one of them destroys the scroll area.
    Panel panel(3);
    panel.boxes[2]->setCollapsed(true);
    panel.show();
    QPointer<Box> box = panel.boxes[2];
    QMetaObject::invokeMethod(
        this, [&] { delete panel.area.data(); }, Qt::QueuedConnection);
    box->setCollapsed(false);
    QVERIFY(!panel.area);
    QVERIFY(!box);

    // The area alone goes, the panel lives on in a window.
    Panel second(3);
    second.boxes[2]->setCollapsed(true);
    second.show();
    QWidget window;
    QMetaObject::invokeMethod(
        this,
        [&] {
            second.area->takeWidget()->setParent(&window);
            delete second.area.data();
        },
        Qt::QueuedConnection);
    QSignalSpy changed(second.boxes[2], &CollapsibleGroupBoxBasic::collapsedStateChanged);
    second.boxes[2]->setCollapsed(false);
    QVERIFY(!second.area);
    QCOMPARE(changed.count(), 1);
    window.show();
    second.content->show();
    second.boxes[2]->setCollapsed(true);
    second.boxes[2]->setCollapsed(false);
    QCOMPARE(changed.count(), 3);
}

void tst_CollapsibleGroupBoxBasicHosts::panelTakenOutOfItsArea()
{
    Panel panel(3);
    panel.show();
    std::unique_ptr<QWidget> content(panel.area->takeWidget());
    content->show();
    Record record;
    record.follow(panel.boxes[1]);
    panel.boxes[1]->setCollapsed(true);
    panel.boxes[1]->setCollapsed(false);
    QCOMPARE(record.lines, QStringLiteral("b-b+"));
}

void tst_CollapsibleGroupBoxBasicHosts::reparented()
{
    Panel panel(5, 10);
    panel.group();
    panel.show();
    Panel other(2);
    other.group();
    other.show();
    Box *box = panel.boxes[4];
    box->setCollapsed(true);
    const QString style = box->styleSheet();
    other.content->layout()->addWidget(box);
    box->show();
    QVERIFY(box->isCollapsed());
    QCOMPARE(box->styleSheet(), style);

    // The first scroll area is not scrolled for a box that is no longer in it.
    panel.area->verticalScrollBar()->setValue(7);
    box->setCollapsed(false);
    QCOMPARE(panel.scrolled(), 7);
    // It belongs to the group where it is now.
    clickTitle(other.boxes[0], Qt::ControlModifier);
    QVERIFY(box->isCollapsed());
    QCOMPARE(panel.folded(), QStringLiteral("e"));

    // And it outlives the first area.
    delete panel.area.data();
    box->setCollapsed(false);
    QVERIFY(!box->isCollapsed());
}

void tst_CollapsibleGroupBoxBasicHosts::arrowDeletedByHost()
{
    // A host that clears a box of everything in it.
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    box->setCheckable(true);
    box->show();
    qDeleteAll(box->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly));
    box->setSyncGroup(Group);
    box->setCollapsed(true);
    box->setCollapsed(false);
    box->setChecked(false);
    box->setEnabled(false);
    box->setEnabled(true);
    box->toggleCollapsed();
    QVERIFY(box->isCollapsed());

    Box early;
    delete early.arrow();
    early.show();
    early.setCollapsed(true);
    QVERIFY(early.isFlat());
}

LMTEST_MAIN(tst_CollapsibleGroupBoxBasicHosts)
#include "tst_collapsiblegroupboxbasic_hosts.moc"
