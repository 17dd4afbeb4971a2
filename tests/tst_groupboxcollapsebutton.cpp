#include "lmtest.h"

#include <lmwidgets/groupboxcollapsebutton.h>

#include <QSignalSpy>

class tst_GroupBoxCollapseButton : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initially();
    void accessors();
    void release_data();
    void release();
    void releaseOutside();
    void everyReleaseCounts();
    void keyboardLeavesTheFlags();
    void flagsAreKnownToListeners();
    void deletedFromClicked();
};

void tst_GroupBoxCollapseButton::initially()
{
    GroupBoxCollapseButton button;
    QVERIFY(!button.altDown());
    QVERIFY(!button.shiftDown());
    QVERIFY(!button.parentWidget());
    QVERIFY(button.inherits("QToolButton"));
    QCOMPARE(lmtest::ownMethods(GroupBoxCollapseButton::staticMetaObject), QStringList());

    QWidget parent;
    QCOMPARE((new GroupBoxCollapseButton(&parent))->parentWidget(), &parent);
}

void tst_GroupBoxCollapseButton::accessors()
{
    GroupBoxCollapseButton button;
    button.setAltDown(true);
    QVERIFY(button.altDown());
    QVERIFY(!button.shiftDown());
    button.setShiftDown(true);
    button.setAltDown(false);
    QVERIFY(!button.altDown());
    QVERIFY(button.shiftDown());
    button.setShiftDown(false);
    QVERIFY(!button.shiftDown());
}

void tst_GroupBoxCollapseButton::release_data()
{
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("alt");
    QTest::addColumn<bool>("shift");
    QTest::newRow("none") << int(Qt::NoModifier) << false << false;
    QTest::newRow("shift") << int(Qt::ShiftModifier) << false << true;
    QTest::newRow("control") << int(Qt::ControlModifier) << true << false;
    QTest::newRow("alt") << int(Qt::AltModifier) << true << false;
    QTest::newRow("all") << int(Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier) << true
                         << true;
    QTest::newRow("meta") << int(Qt::MetaModifier) << false << false;
    QTest::newRow("keypad") << int(Qt::KeypadModifier) << false << false;
}

void tst_GroupBoxCollapseButton::release()
{
    QFETCH(int, modifiers);
    QFETCH(bool, alt);
    QFETCH(bool, shift);
    GroupBoxCollapseButton button;
    button.resize(16, 16);
    QSignalSpy clicked(&button, &QAbstractButton::clicked);
    const Qt::KeyboardModifiers keys(modifiers);

    QTest::mousePress(&button, Qt::LeftButton, keys);
    QVERIFY(!button.altDown());
    QVERIFY(!button.shiftDown());
    QTest::mouseRelease(&button, Qt::LeftButton, keys);
    QCOMPARE(button.altDown(), alt);
    QCOMPARE(button.shiftDown(), shift);
    QCOMPARE(clicked.count(), 1);
}

void tst_GroupBoxCollapseButton::releaseOutside()
{
    GroupBoxCollapseButton button;
    button.resize(16, 16);
    QSignalSpy clicked(&button, &QAbstractButton::clicked);
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton, Qt::AltModifier, QPoint(40, 40));
    QCOMPARE(clicked.count(), 0);
    QVERIFY(button.altDown());
}

void tst_GroupBoxCollapseButton::everyReleaseCounts()
{
    GroupBoxCollapseButton button;
    button.resize(16, 16);
    QTest::mouseClick(&button, Qt::RightButton, Qt::ShiftModifier);
    QVERIFY(button.shiftDown());
    QTest::mouseClick(&button, Qt::LeftButton, Qt::ControlModifier);
    QVERIFY(button.altDown());
    QVERIFY(!button.shiftDown());
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(!button.altDown());
}

void tst_GroupBoxCollapseButton::keyboardLeavesTheFlags()
{
    GroupBoxCollapseButton button;
    QSignalSpy clicked(&button, &QAbstractButton::clicked);
    QTest::keyClick(&button, Qt::Key_Space, Qt::ShiftModifier);
    QCOMPARE(clicked.count(), 1);
    QVERIFY(!button.shiftDown());
}

void tst_GroupBoxCollapseButton::flagsAreKnownToListeners()
{
    GroupBoxCollapseButton button;
    button.resize(16, 16);
    bool alt = false;
    bool shift = false;
    connect(&button, &QAbstractButton::clicked, this, [&] {
        alt = button.altDown();
        shift = button.shiftDown();
    });
    QTest::mouseClick(&button, Qt::LeftButton, Qt::AltModifier | Qt::ShiftModifier);
    QVERIFY(alt);
    QVERIFY(shift);
}

void tst_GroupBoxCollapseButton::deletedFromClicked()
{
    QPointer<GroupBoxCollapseButton> button = new GroupBoxCollapseButton;
    button->resize(16, 16);
    connect(button, &QAbstractButton::clicked, this, [button] { delete button.data(); });
    lmtest::mouse(button, QEvent::MouseButtonPress, QPoint(5, 5));
    lmtest::mouse(button, QEvent::MouseButtonRelease, QPoint(5, 5));
    QVERIFY(!button);
}

LMTEST_MAIN(tst_GroupBoxCollapseButton)
#include "tst_groupboxcollapsebutton.moc"
