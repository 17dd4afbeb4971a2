#include "groupboxtest.h"

#include <QMetaProperty>

using namespace groupboxtest;

class tst_CollapsibleGroupBoxBasic : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void foldedWhileHidden();
    void shownOpen();
    void maximumHeight();
    void shiftWithoutGroupOnlyOpens();
    void controlTogglesTheGroup_data();
    void controlTogglesTheGroup();
    void flatness();
    void uncheckedKeepsTheArrow();
    void markerComesAndGoesOnce();
    void initially();
    void metaObject();
    void properties();
    void foldedLaterWhileHidden();
    void sameStateAgain();
    void shownStateIsKnownToListeners();
    void hiddenAndShownByAListenerOfTheFirstShow();
    void disabledAtFirstShow();
    void toolTip();
};

void tst_CollapsibleGroupBoxBasic::foldedWhileHidden()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    QSignalSpy changed(box.get(), &CollapsibleGroupBoxBasic::collapsedStateChanged);
    box->setCollapsed(true);
    QVERIFY(box->isCollapsed());
    QVERIFY(!box->isFlat());
    QCOMPARE(box->maximumHeight(), QWIDGETSIZE_MAX);
    QVERIFY(box->styleSheet().isEmpty());
    QCOMPARE(changed.count(), 0);

    box->show();
    QCOMPARE(changed, QList<QVariantList>{QVariantList{true}});
    QVERIFY(box->isCollapsed());
    QVERIFY(box->isFlat());
    QVERIFY(!box->findChild<QLabel *>()->isVisible());
    box->hide();
    box->show();
    QCOMPARE(changed.count(), 1);
}

void tst_CollapsibleGroupBoxBasic::shownOpen()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    QSignalSpy changed(box.get(), &CollapsibleGroupBoxBasic::collapsedStateChanged);
    box->setCollapsed(true);
    box->setCollapsed(false);
    box->show();
    QCOMPARE(changed, QList<QVariantList>{QVariantList{false}});
    box->hide();
    box->show();
    QCOMPARE(changed.count(), 1);
}

void tst_CollapsibleGroupBoxBasic::maximumHeight()
{
    Panel panel(1);
    panel.show();
    Box *box = panel.boxes.first();
    const int height = box->height();
    QCOMPARE(box->maximumHeight(), 16777215);
    box->setCollapsed(true);
    QCOMPARE(box->maximumHeight(), box->titleRect().bottom() + 6);
    QTRY_COMPARE(box->height(), box->maximumHeight());
    box->setCollapsed(false);
    QCOMPARE(box->maximumHeight(), 16777215);
    QTRY_COMPARE(box->height(), height);
}

void tst_CollapsibleGroupBoxBasic::shiftWithoutGroupOnlyOpens()
{
    Panel panel(2);
    panel.show();
    Box *box = panel.boxes.first();
    Record record;
    record.follow(box);

    clickTitle(box, Qt::ShiftModifier);
    clickArrow(box, Qt::ShiftModifier);
    QVERIFY(!box->isCollapsed());
    QCOMPARE(record.lines, QString());
    box->setCollapsed(true);
    clickTitle(box, Qt::ShiftModifier);
    QVERIFY(!box->isCollapsed());
    box->setCollapsed(true);
    clickArrow(box, Qt::ShiftModifier);
    QVERIFY(!box->isCollapsed());
    QCOMPARE(record.lines, QStringLiteral("a-a+a-a+"));

    // Ctrl and Alt are nothing special without a group.
    clickTitle(box, Qt::ControlModifier);
    QCOMPARE(panel.folded(), QStringLiteral("a"));
    clickArrow(box, Qt::AltModifier);
    QCOMPARE(panel.folded(), QString());
}

void tst_CollapsibleGroupBoxBasic::controlTogglesTheGroup_data()
{
    QTest::addColumn<bool>("onArrow");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("title, control") << false << int(Qt::ControlModifier);
    QTest::newRow("title, alt") << false << int(Qt::AltModifier);
    QTest::newRow("arrow, control") << true << int(Qt::ControlModifier);
    QTest::newRow("arrow, alt") << true << int(Qt::AltModifier);
    QTest::newRow("arrow, both") << true << int(Qt::AltModifier | Qt::ControlModifier);
}

void tst_CollapsibleGroupBoxBasic::controlTogglesTheGroup()
{
    QFETCH(bool, onArrow);
    QFETCH(int, modifiers);
    const auto clickBox = [&](Box *box) {
        onArrow ? clickArrow(box, Qt::KeyboardModifiers(modifiers))
                : clickTitle(box, Qt::KeyboardModifiers(modifiers));
    };
    Panel panel;
    panel.area->resize(300, 800);
    panel.group();
    panel.boxes[1]->setCollapsed(true);
    panel.boxes[2]->setEnabled(false);
    panel.boxes[3]->setSyncGroup(QStringLiteral("other"));
    panel.show();
    Record record;
    record.follow(panel);

    clickBox(panel.boxes[0]);
    QCOMPARE(panel.folded(), QStringLiteral("abe"));
    QCOMPARE(record.lines, QStringLiteral("a-e-"));
    record.lines.clear();
    clickBox(panel.boxes[4]);
    QCOMPARE(panel.folded(), QString());
    QCOMPARE(record.lines, QStringLiteral("a+b+e+"));

    // The keys are forgotten: a plain click follows.
    clickBox(panel.boxes[0]);
    clickTitle(panel.boxes[0]);
    QCOMPARE(panel.folded(), QStringLiteral("be"));
    clickArrow(panel.boxes[1]);
    QCOMPARE(panel.folded(), QStringLiteral("e"));
    QVERIFY(!panel.boxes[1]->arrow()->altDown());
    QVERIFY(!panel.boxes[1]->arrow()->shiftDown());
}

void tst_CollapsibleGroupBoxBasic::flatness()
{
    std::unique_ptr<Box> flat(makeBox(QStringLiteral("a")));
    flat->setFlat(true);
    flat->show();
    flat->setCollapsed(true);
    QVERIFY(flat->isFlat());
    flat->setCollapsed(false);
    QVERIFY(flat->isFlat());

    std::unique_ptr<Box> framed(makeBox(QStringLiteral("b")));
    framed->show();
    framed->setCollapsed(true);
    QVERIFY(framed->isFlat());
    framed->setCollapsed(false);
    QVERIFY(!framed->isFlat());
    // What counts is how it was first shown.
    framed->setFlat(true);
    framed->setCollapsed(false);
    QVERIFY(!framed->isFlat());
}

void tst_CollapsibleGroupBoxBasic::uncheckedKeepsTheArrow()
{
    Panel panel(1);
    Box *box = panel.boxes.first();
    box->setCheckable(true);
    box->setChecked(false);
    QVERIFY(box->arrow()->isEnabled());
    panel.show();
    QVERIFY(box->arrow()->isEnabled());
    QVERIFY(!box->findChild<QLabel *>()->isEnabled());

    box->setChecked(true);
    box->setChecked(false);
    QVERIFY(box->arrow()->isEnabled());
    box->setEnabled(false);
    QVERIFY(!box->arrow()->isEnabled());
    box->setEnabled(true);
    QVERIFY(box->arrow()->isEnabled());
    panel.content->setEnabled(false);
    QVERIFY(!box->arrow()->isEnabled());
    panel.content->setEnabled(true);
    QVERIFY(box->arrow()->isEnabled());

    clickArrow(box);
    QVERIFY(box->isCollapsed());
    QVERIFY(!box->isChecked());
    clickArrow(box);
    QVERIFY(!box->isCollapsed());
    QVERIFY(!box->isChecked());
}

void tst_CollapsibleGroupBoxBasic::markerComesAndGoesOnce()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    box->setStyleSheet(QStringLiteral("QLabel { color: red; }"));
    box->show();
    const QString open = box->styleSheet();
    QVERIFY(!open.contains(Marker));
    for (int i = 0; i < 3; ++i) {
        box->setCollapsed(true);
        box->setCollapsed(true);
        box->collapseExpandFixes();
        QCOMPARE(box->styleSheet(), open + Marker);
        box->setCollapsed(false);
        box->setCollapsed(false);
        QCOMPARE(box->styleSheet(), open);
    }
}

void tst_CollapsibleGroupBoxBasic::initially()
{
    QWidget parent;
    Box box(QStringLiteral("Colour"), &parent);
    QCOMPARE(box.title(), QStringLiteral("Colour"));
    QCOMPARE(box.parentWidget(), &parent);
    QVERIFY(!box.isCollapsed());
    QVERIFY(box.scrollOnExpand());
    QVERIFY(box.syncGroup().isEmpty());
    QCOMPARE(box.focusPolicy(), Qt::StrongFocus);
    QVERIFY(box.styleSheet().isEmpty());

    GroupBoxCollapseButton *arrow = box.arrow();
    QVERIFY(arrow);
    QCOMPARE(box.children(), QObjectList{arrow});
    QCOMPARE(arrow->objectName(), QStringLiteral("collapseButton"));
    QVERIFY(arrow->autoRaise());
    QCOMPARE(arrow->minimumSize(), QSize(16, 16));
    QCOMPARE(arrow->maximumSize(), QSize(16, 16));
    QCOMPARE(arrow->iconSize(), QSize(16, 16));
    QVERIFY(arrow->toolTip().isEmpty());
    QVERIFY(arrow->styleSheet().isEmpty());

    Box other;
    QVERIFY(other.title().isEmpty());
    QVERIFY(!other.parentWidget());
    QVERIFY(other.arrow());
}

void tst_CollapsibleGroupBoxBasic::metaObject()
{
    const QMetaObject &meta = CollapsibleGroupBoxBasic::staticMetaObject;
    QCOMPARE(meta.className(), "CollapsibleGroupBoxBasic");
    QCOMPARE(lmtest::ownMethods(meta),
             (QStringList{QStringLiteral("signal collapsedStateChanged(bool collapsed)"),
                          QStringLiteral("slot checkToggled(bool ckd)"),
                          QStringLiteral("slot checkClicked(bool ckd)"),
                          QStringLiteral("slot toggleCollapsed()"),
                          QStringLiteral("slot setStyleSheet(QString style)")}));
    QStringList names;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        names.append(QString::fromLatin1(meta.property(i).name()));
        QVERIFY(meta.property(i).isWritable());
    }
    QCOMPARE(names, (QStringList{QStringLiteral("collapsed"), QStringLiteral("syncGroup"),
                                 QStringLiteral("scrollOnExpand")}));
}

void tst_CollapsibleGroupBoxBasic::properties()
{
    Box box;
    QVERIFY(box.setProperty("collapsed", true));
    QVERIFY(box.isCollapsed());
    QVERIFY(box.setProperty("syncGroup", QStringLiteral("g")));
    QCOMPARE(box.syncGroup(), QStringLiteral("g"));
    QVERIFY(box.setProperty("scrollOnExpand", false));
    QVERIFY(!box.scrollOnExpand());
    QCOMPARE(box.property("collapsed"), QVariant(true));
    QCOMPARE(box.property("syncGroup"), QVariant(QStringLiteral("g")));
    QCOMPARE(box.property("scrollOnExpand"), QVariant(false));
}

void tst_CollapsibleGroupBoxBasic::foldedLaterWhileHidden()
{
    // Only the first show applies a state that was set while the box was hidden.
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    box->show();
    box->hide();
    QSignalSpy changed(box.get(), &CollapsibleGroupBoxBasic::collapsedStateChanged);
    box->setCollapsed(true);
    box->show();
    QVERIFY(box->isCollapsed());
    QVERIFY(box->findChild<QLabel *>()->isVisible());
    QCOMPARE(box->maximumHeight(), QWIDGETSIZE_MAX);
    QCOMPARE(changed.count(), 0);

    // The state is no news, but the box looks like it again.
    box->setCollapsed(true);
    QVERIFY(!box->findChild<QLabel *>()->isVisible());
    QCOMPARE(box->maximumHeight(), box->titleRect().bottom() + 6);
    QCOMPARE(changed.count(), 0);
}

void tst_CollapsibleGroupBoxBasic::sameStateAgain()
{
    Box box;
    box.show();
    QSignalSpy changed(&box, &CollapsibleGroupBoxBasic::collapsedStateChanged);
    box.setCollapsed(false);
    QCOMPARE(changed.count(), 0);
    box.setCollapsed(true);
    box.setCollapsed(true);
    QCOMPARE(changed, QList<QVariantList>{QVariantList{true}});
}

void tst_CollapsibleGroupBoxBasic::shownStateIsKnownToListeners()
{
    // A listener finds the box as it will stay.
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    QStringList seen;
    connect(box.get(), &CollapsibleGroupBoxBasic::collapsedStateChanged, this, [&](bool collapsed) {
        seen.append(QStringLiteral("%1 %2 %3 %4")
                        .arg(collapsed)
                        .arg(box->isCollapsed())
                        .arg(box->maximumHeight() == QWIDGETSIZE_MAX)
                        .arg(box->styleSheet().contains(Marker)));
    });
    box->setCollapsed(true);
    box->show();
    box->setCollapsed(false);
    QCOMPARE(seen, (QStringList{QStringLiteral("1 1 0 1"), QStringLiteral("0 0 1 0")}));
}

void tst_CollapsibleGroupBoxBasic::hiddenAndShownByAListenerOfTheFirstShow()
{
    QWidget window;
    window.show();
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    box->setParent(&window);
    int count = 0;
    connect(box.get(), &CollapsibleGroupBoxBasic::collapsedStateChanged, this, [&] {
        ++count;
        box->hide();
        box->show();
    });
    box->show();
    QCOMPARE(count, 1);
    QVERIFY(box->isVisible());
    QCOMPARE(box->styleSheet().count(QStringLiteral("subcontrol-position")), 1);
}

void tst_CollapsibleGroupBoxBasic::disabledAtFirstShow()
{
    Box box;
    box.setEnabled(false);
    box.show();
    QVERIFY(!box.arrow()->isEnabled());
    QVERIFY(box.arrow()->testAttribute(Qt::WA_ForceDisabled));
    box.setEnabled(true);
    QVERIFY(box.arrow()->isEnabled());
}

void tst_CollapsibleGroupBoxBasic::toolTip()
{
    Box box;
    box.setSyncGroup(QStringLiteral("g"));
    QCOMPARE(box.arrow()->toolTip(), QStringLiteral("Ctrl (or Alt)-click to toggle all\n"
                                                    "Shift-click to expand, then collapse others"));
    box.setSyncGroup(QString());
    QVERIFY(box.arrow()->toolTip().isEmpty());
    QVERIFY(box.syncGroup().isEmpty());
}

LMTEST_MAIN(tst_CollapsibleGroupBoxBasic)
#include "tst_collapsiblegroupboxbasic.moc"
