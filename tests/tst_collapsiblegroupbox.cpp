#include "lmtest.h"

#include <lmwidgets/collapsiblegroupbox.h>

#include <QPointer>
#include <QSignalSpy>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

class Box : public CollapsibleGroupBox
{
public:
    using CollapsibleGroupBox::CollapsibleGroupBox;
    using CollapsibleGroupBox::init;
    using CollapsibleGroupBox::saveKey;
    using CollapsibleGroupBox::showEvent;
    using CollapsibleGroupBox::titleRect;
};

} // namespace

class tst_CollapsibleGroupBox : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keyOfAnUnnamedBox();
    void key_data();
    void key();
    void keyFollowsTheWindow();
    void initially();
    void metaObject();
    void accessors();
    void initLeavesTheSettingGroup();
    void foldedWhileHidden();
    void shownOpen();
    void flatnessIsThatOfTheFirstShow();
    void laterShowsAreAccepted();
    void styleNamesBothClasses();
    void deletedFromTheFirstShow();
};

void tst_CollapsibleGroupBox::keyOfAnUnnamedBox()
{
    QWidget window;
    window.setObjectName(QStringLiteral("PropertiesDlg"));
    Box box(&window);
    QVERIFY(box.saveKey().isEmpty());
    box.setSettingGroup(QStringLiteral("Group"));
    QVERIFY(box.saveKey().isEmpty());
}

void tst_CollapsibleGroupBox::key_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("key");
    const QString none;
    const QString box = QStringLiteral("grpColor");
    const QString window = QStringLiteral("PropertiesDlg");
    QTest::newRow("window") << box << window << none
                            << QStringLiteral("CollapsibleGroupBox/PropertiesDlg/grpColor");
    QTest::newRow("group") << box << window << QStringLiteral("g")
                           << QStringLiteral("CollapsibleGroupBox/g/grpColor");
    QTest::newRow("group without window")
        << box << none << QStringLiteral("g") << QStringLiteral("CollapsibleGroupBox/g/grpColor");
    QTest::newRow("neither") << box << none << none << none;
    QTest::newRow("placeholders") << QStringLiteral("%1") << QStringLiteral("%2")
                                  << QStringLiteral("%3")
                                  << QStringLiteral("CollapsibleGroupBox/%3/%1");
}

void tst_CollapsibleGroupBox::key()
{
    QFETCH(QString, box);
    QFETCH(QString, window);
    QFETCH(QString, group);
    QWidget dialog;
    dialog.setObjectName(window);
    auto *inner = new QWidget(&dialog);
    inner->setObjectName(QStringLiteral("inner"));
    Box groupBox(inner);
    groupBox.setObjectName(box);
    groupBox.setSettingGroup(group);
    QTEST(groupBox.saveKey(), "key");
}

void tst_CollapsibleGroupBox::keyFollowsTheWindow()
{
    // Without a parent the box is its own window.
    Box box;
    box.setObjectName(QStringLiteral("alone"));
    QCOMPARE(box.saveKey(), QStringLiteral("CollapsibleGroupBox/alone/alone"));

    QWidget window;
    box.setParent(&window);
    QVERIFY(box.saveKey().isEmpty());
    window.setObjectName(QStringLiteral("w"));
    QCOMPARE(box.saveKey(), QStringLiteral("CollapsibleGroupBox/w/alone"));
    box.setParent(nullptr);
}

void tst_CollapsibleGroupBox::initially()
{
    QWidget parent;
    Box box(QStringLiteral("Colour"), &parent);
    QCOMPARE(box.title(), QStringLiteral("Colour"));
    QCOMPARE(box.parentWidget(), &parent);
    QVERIFY(box.saveCollapsedState());
    QVERIFY(!box.saveCheckedState());
    QVERIFY(box.settingGroup().isEmpty());
    QVERIFY(!box.isCollapsed());

    Box other;
    QVERIFY(other.title().isEmpty());
    QVERIFY(!other.parentWidget());
    QVERIFY(other.saveCollapsedState());
    QVERIFY(!other.saveCheckedState());
    QVERIFY(other.settingGroup().isEmpty());
}

void tst_CollapsibleGroupBox::metaObject()
{
    const QMetaObject &meta = CollapsibleGroupBox::staticMetaObject;
    QCOMPARE(meta.className(), "CollapsibleGroupBox");
    QCOMPARE(meta.superClass(), &CollapsibleGroupBoxBasic::staticMetaObject);
    QCOMPARE(lmtest::ownMethods(meta), QStringList());
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 2);
    QCOMPARE(meta.property(meta.propertyOffset()).name(), "saveCollapsedState");
    QCOMPARE(meta.property(meta.propertyOffset() + 1).name(), "saveCheckedState");
}

void tst_CollapsibleGroupBox::accessors()
{
    Box box;
    box.setSaveCollapsedState(false);
    box.setSaveCheckedState(true);
    QCOMPARE(box.property("saveCollapsedState"), QVariant(false));
    QCOMPARE(box.property("saveCheckedState"), QVariant(true));
    QVERIFY(box.setProperty("saveCollapsedState", true));
    QVERIFY(box.setProperty("saveCheckedState", false));
    QVERIFY(box.saveCollapsedState());
    QVERIFY(!box.saveCheckedState());
    box.setSettingGroup(QStringLiteral("a/b"));
    QCOMPARE(box.settingGroup(), QStringLiteral("a/b"));
}

void tst_CollapsibleGroupBox::initLeavesTheSettingGroup()
{
    Box box;
    box.setSettingGroup(QStringLiteral("g"));
    box.setSaveCollapsedState(false);
    box.setSaveCheckedState(true);
    box.init();
    QVERIFY(box.saveCollapsedState());
    QVERIFY(!box.saveCheckedState());
    QCOMPARE(box.settingGroup(), QStringLiteral("g"));
    QCOMPARE(box.findChildren<QToolButton *>().count(), 1);
}

void tst_CollapsibleGroupBox::foldedWhileHidden()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *box = new Box(QStringLiteral("Colour"));
    layout->addWidget(box);
    QSignalSpy changed(box, &CollapsibleGroupBoxBasic::collapsedStateChanged);
    box->setCollapsed(true);
    QVERIFY(box->isCollapsed());
    QCOMPARE(changed.count(), 0);

    window.show();
    QCOMPARE(changed, QList<QVariantList>{QVariantList{true}});
    QCOMPARE(box->maximumHeight(), box->titleRect().bottom() + 6);
    window.hide();
    window.show();
    QCOMPARE(changed.count(), 1);
}

void tst_CollapsibleGroupBox::shownOpen()
{
    Box box;
    QSignalSpy changed(&box, &CollapsibleGroupBoxBasic::collapsedStateChanged);
    box.show();
    QCOMPARE(changed, QList<QVariantList>{QVariantList{false}});
    box.hide();
    box.show();
    QCOMPARE(changed.count(), 1);
}

void tst_CollapsibleGroupBox::flatnessIsThatOfTheFirstShow()
{
    Box flat;
    flat.setFlat(true);
    flat.setCollapsed(true);
    flat.show();
    flat.setCollapsed(false);
    QVERIFY(flat.isFlat());

    Box framed;
    framed.setFlat(true);
    framed.setFlat(false);
    framed.setCollapsed(true);
    framed.show();
    QVERIFY(framed.isFlat());
    framed.setCollapsed(false);
    QVERIFY(!framed.isFlat());
}

void tst_CollapsibleGroupBox::laterShowsAreAccepted()
{
    Box box;
    box.show();
    QSignalSpy changed(&box, &CollapsibleGroupBoxBasic::collapsedStateChanged);
    const QString style = box.styleSheet();
    QShowEvent event;
    event.ignore();
    box.showEvent(&event);
    QVERIFY(event.isAccepted());
    QCOMPARE(changed.count(), 0);
    QCOMPARE(box.styleSheet(), style);
}

void tst_CollapsibleGroupBox::styleNamesBothClasses()
{
    Box box;
    box.setStyleSheet(QStringLiteral("QLabel { color: red; }"));
    box.show();
    QVERIFY(box.styleSheet().startsWith(
        QLatin1String("QLabel { color: red; }CollapsibleGroupBoxBasic::title, "
                      "CollapsibleGroupBox::title {  subcontrol-origin: margin;")));
}

void tst_CollapsibleGroupBox::deletedFromTheFirstShow()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    QPointer<Box> box = new Box(QStringLiteral("Colour"));
    layout->addWidget(box);
    window.show();
    QPointer<Box> late = new Box(QStringLiteral("Colour"), &window);
    connect(late, &CollapsibleGroupBoxBasic::collapsedStateChanged, this,
            [late] { late->deleteLater(); });
    late->show();
    QTRY_VERIFY(!late);
    QVERIFY(box);
}

LMTEST_MAIN(tst_CollapsibleGroupBox)
#include "tst_collapsiblegroupbox.moc"
