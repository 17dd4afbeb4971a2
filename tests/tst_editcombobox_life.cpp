#include "editcomboparts.h"
#include "lmtest.h"

#include <QAccessible>
#include <QFormLayout>
#include <QLabel>
#include <QPointer>

#include <functional>

using LM::Widgets::EditComboBox;
using namespace editcombo;

namespace {

using Destroy = std::function<void()>;

/** Connects @p destroy to every signal of @p box. */
void destroyAtFirstSignal(EditComboBox *box, const Destroy &destroy)
{
    QObject::connect(box, QOverload<int>::of(&EditComboBox::currentIndexChanged), destroy);
    QObject::connect(box, QOverload<const QString &>::of(&EditComboBox::currentIndexChanged),
                     destroy);
    QObject::connect(box, &EditComboBox::currentTextChanged, destroy);
}

} // namespace

/**
 * An edit combo box that is destroyed in the middle of something, and what assistive technology
 * sees of one. Meant to be run under valgrind too.
 */
class tst_EditComboBoxLife : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void partsDieWithTheBox();
    void openListDies_data();
    void openListDies();
    void errorTimerRuns();
    void destroyedByAction_data();
    void destroyedByAction();
    void destroyedBetweenSignals_data();
    void destroyedBetweenSignals();
    void partsGoAfterTheSignal();
    void changedWithinSignal();
    void clearedWithinSignal();
    void parentDestroyedWithinSignal();

    void accessibleRole();
    void accessibleName();
    void accessibleValue();
    void accessibleState();
    void accessiblePress();
    void accessibleSubclass();
    void accessibleWhileDestroyed();
    void accessibleNameOfTheLineEdit();
};

void tst_EditComboBoxLife::partsDieWithTheBox()
{
    auto *box = new EditComboBox({"a", "b"}, nullptr);
    const QVector<QPointer<QObject>> parts = {lineEdit(*box),
                                              button(*box),
                                              completer(*box),
                                              completer(*box)->model(),
                                              completer(*box)->parent(),
                                              popup(*box)};
    for (const auto &part : parts) {
        QVERIFY(part);
    }
    delete box;
    for (const auto &part : parts) {
        QVERIFY(!part);
    }
}

void tst_EditComboBoxLife::openListDies_data()
{
    QTest::addColumn<bool>("byButton");
    QTest::addColumn<bool>("hasParent");
    QTest::newRow("button") << true << false;
    QTest::newRow("line edit") << false << false;
    QTest::newRow("button, within a window") << true << true;
    QTest::newRow("line edit, within a window") << false << true;
}

void tst_EditComboBoxLife::openListDies()
{
    QFETCH(bool, byButton);
    QFETCH(bool, hasParent);
    auto *window = new QWidget;
    auto *box = new EditComboBox({"a", "b"}, hasParent ? window : nullptr);
    window->show();
    show(*box);
    if (byButton) {
        QTest::mouseClick(button(*box), Qt::LeftButton);
    } else {
        QTest::mouseClick(lineEdit(*box), Qt::LeftButton);
    }
    const QPointer<QAbstractItemView> list = popup(*box);
    QVERIFY(list->isVisible());
    if (hasParent) {
        delete window;
    } else {
        delete box;
        delete window;
    }
    QVERIFY(!list);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_EditComboBoxLife::errorTimerRuns()
{
    auto *box = new EditComboBox;
    box->displayErrorStates();
    box->displayErrorStates();
    EditComboBox other;
    other.displayErrorStates();
    delete box;
    QTRY_VERIFY(lineEdit(other)->styleSheet().endsWith(QLatin1Char(' ')));
}

void tst_EditComboBoxLife::destroyedByAction_data()
{
    QTest::addColumn<int>("action");
    const char *const names[] = {
        "typing",         "backspace",      "return",         "leaving",         "mouse pick",
        "key pick",       "key over entry", "typing in list", "setCurrentIndex", "outside",
        "setCurrentText", "setEditText",    "clearEditText",  "line edit text",  "pick unfocused"};
    for (int i = 0; i < int(sizeof names / sizeof *names); ++i) {
        QTest::newRow(names[i]) << i;
    }
}

void tst_EditComboBoxLife::destroyedByAction()
{
    QFETCH(int, action);
    const QPointer<EditComboBox> box = new EditComboBox({"alpha", "beta", "gamma", ""}, nullptr);
    show(*box);
    lineEdit(*box)->setFocus();
    lineEdit(*box)->setText(action == 9 ? QStringLiteral("beta") : QStringLiteral("bet"));
    if (action == 2 || action == 3) {
        box->addItem(QStringLiteral("bet"));
    }
    if (action >= 4 && action <= 6) {
        QTest::mouseClick(lineEdit(*box), Qt::LeftButton);
    } else if (action == 7) {
        QTest::mouseClick(lineEdit(*box), Qt::LeftButton);
        lineEdit(*box)->setText(QStringLiteral("alph"));
    } else if (action == 14) {
        lineEdit(*box)->clearFocus();
        QTest::mouseClick(button(*box), Qt::LeftButton);
    }
    int calls = 0;
    destroyAtFirstSignal(box, [box, &calls] {
        ++calls;
        delete box.data();
    });
    const std::function<void()> actions[] = {
        [&] { QTest::keyClick(lineEdit(*box), Qt::Key_A); },
        [&] {
            lineEdit(*box)->setText(QStringLiteral("betas"));
            QTest::keyClick(lineEdit(*box), Qt::Key_Backspace);
        },
        [&] { QTest::keyClick(lineEdit(*box), Qt::Key_Return); },
        [&] { lineEdit(*box)->clearFocus(); },
        [&] { clickEntry(*box, 0); },
        [&] {
            QTest::keyClick(popup(*box), Qt::Key_Down);
            if (box) {
                QTest::keyClick(popup(*box), Qt::Key_Return);
            }
        },
        [&] { QTest::keyClick(popup(*box), Qt::Key_Down); },
        [&] { QTest::keyClick(popup(*box), Qt::Key_A); },
        [&] { box->setCurrentIndex(2); },
        [&] { box->setCurrentIndex(-1); },
        [&] { box->setCurrentText(QStringLiteral("alpha")); },
        [&] { box->setEditText(QStringLiteral("alpha")); },
        [&] { box->clearEditText(); },
        [&] { lineEdit(*box)->setText(QStringLiteral("gamma")); },
        [&] { clickEntry(*box, 2); },
    };
    actions[action]();
    QVERIFY(!box);
    QCOMPARE(calls, 1);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_EditComboBoxLife::destroyedBetweenSignals_data()
{
    QTest::addColumn<int>("after");
    QTest::newRow("first") << 1;
    QTest::newRow("second") << 2;
    QTest::newRow("third") << 3;
    QTest::newRow("fourth") << 4;
}

void tst_EditComboBoxLife::destroyedBetweenSignals()
{
    QFETCH(int, after);
    const QPointer<EditComboBox> box = new EditComboBox({"alpha", "beta"}, nullptr);
    int calls = 0;
    destroyAtFirstSignal(box, [box, after, &calls] {
        if (++calls == after) {
            delete box.data();
        }
    });
    box->setEditText(QStringLiteral("beta"));
    QVERIFY(!box);
    QCOMPARE(calls, after);
}

void tst_EditComboBoxLife::partsGoAfterTheSignal()
{
    const QPointer<EditComboBox> box = new EditComboBox({"alpha", "beta"}, nullptr);
    show(*box);
    const QVector<QPointer<QObject>> parts = {lineEdit(*box),
                                              button(*box),
                                              completer(*box),
                                              completer(*box)->model(),
                                              completer(*box)->parent(),
                                              popup(*box)};
    destroyAtFirstSignal(box, [box] { delete box.data(); });
    QTest::mouseClick(button(*box), Qt::LeftButton);
    clickEntry(*box, 1);
    QVERIFY(!box);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (const auto &part : parts) {
        QVERIFY(!part);
    }
}

void tst_EditComboBoxLife::changedWithinSignal()
{
    EditComboBox box({"alpha", "beta", "gamma"}, nullptr);
    show(box);
    connect(&box, QOverload<int>::of(&EditComboBox::currentIndexChanged), &box, [&box](int index) {
        if (index == 1) {
            box.setCurrentIndex(2);
        }
    });
    QTest::mouseClick(button(box), Qt::LeftButton);
    clickEntry(box, 1);
    // What was picked wins over what the slot made of it only while the line edit has the focus.
    QCOMPARE(lineEdit(box)->text(), box.currentText());
}

void tst_EditComboBoxLife::clearedWithinSignal()
{
    EditComboBox box({"alpha", "beta", "gamma"}, nullptr);
    show(box);
    connect(&box, QOverload<int>::of(&EditComboBox::currentIndexChanged), &box,
            [&box] { box.clear(); });
    QTest::mouseClick(button(box), Qt::LeftButton);
    clickEntry(box, 1);
    QCOMPARE(box.count(), 0);
    box.addItems({"alpha", "beta", "gamma"});
    box.setCurrentIndex(2);
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("gamma"));
    QCOMPARE(box.count(), 0);
    QCOMPARE(box.currentText(), QString());
}

void tst_EditComboBoxLife::parentDestroyedWithinSignal()
{
    auto *window = new QWidget;
    auto *box = new EditComboBox({"alpha", "beta"}, window);
    window->show();
    show(*box);
    lineEdit(*box)->setFocus();
    const QPointer<QWidget> guard(window);
    destroyAtFirstSignal(box, [window] { delete window; });
    QTest::keyClick(lineEdit(*box), Qt::Key_B);
    QVERIFY(!guard);
}

void tst_EditComboBoxLife::accessibleRole()
{
    EditComboBox box({"a"}, nullptr);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&box);
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::ComboBox);
    QCOMPARE(accessible->childCount(), 2);
    QCOMPARE(accessible->child(0)->role(), QAccessible::EditableText);
    QCOMPARE(accessible->child(1)->object(), button(box));
    QVERIFY(!accessible->child(1)->text(QAccessible::Name).isEmpty());
}

void tst_EditComboBoxLife::accessibleName()
{
    QWidget window;
    QFormLayout form(&window);
    auto *box = new EditComboBox({"a"}, nullptr);
    form.addRow(QStringLiteral("&Grid size"), box);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(box);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Grid size"));
    box->setAccessibleName(QStringLiteral("Size of the grid"));
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Size of the grid"));
}

void tst_EditComboBoxLife::accessibleValue()
{
    EditComboBox box({"a", "b"}, nullptr);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&box);
    QCOMPARE(accessible->text(QAccessible::Value), QString());
    box.setCurrentIndex(1);
    QCOMPARE(accessible->text(QAccessible::Value), QStringLiteral("b"));
    Notes notes(box);
    accessible->setText(QAccessible::Value, QStringLiteral("a"));
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("a"));
    QCOMPARE(notes.take(), QStringList({"index 0"}));
    box.setEditable(true);
    accessible->setText(QAccessible::Value, QStringLiteral("b"));
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("a"));
    box.setEditable(false);
    box.setEnabled(false);
    accessible->setText(QAccessible::Value, QStringLiteral("b"));
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("a"));
}

void tst_EditComboBoxLife::accessibleState()
{
    EditComboBox box({"a", "b"}, nullptr);
    show(box);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&box);
    QVERIFY(accessible->state().hasPopup);
    QVERIFY(accessible->state().expandable);
    QVERIFY(accessible->state().editable);
    QVERIFY(!accessible->state().readOnly);
    QVERIFY(accessible->state().collapsed);
    QVERIFY(accessible->state().focusable);
    lineEdit(box)->setFocus();
    QVERIFY(accessible->state().focused);
    QTest::mouseClick(button(box), Qt::LeftButton);
    QVERIFY(accessible->state().expanded);
    QVERIFY(!accessible->state().collapsed);
    popup(box)->hide();
    QVERIFY(accessible->state().collapsed);
    box.setEditable(true);
    QVERIFY(!accessible->state().editable);
    QVERIFY(accessible->state().readOnly);
    lineEdit(box)->clearFocus();
    QVERIFY(!accessible->state().focused);
    box.setEnabled(false);
    QVERIFY(accessible->state().disabled);
    QVERIFY(!accessible->state().focusable);
}

void tst_EditComboBoxLife::accessiblePress()
{
    EditComboBox box({"a", "b"}, nullptr);
    show(box);
    box.setCurrentIndex(1);
    QAccessibleActionInterface *action =
        QAccessible::queryAccessibleInterface(&box)->actionInterface();
    QVERIFY(action);
    const QString press = QAccessibleActionInterface::pressAction();
    const QString menu = QAccessibleActionInterface::showMenuAction();
    QVERIFY(action->actionNames().contains(press));
    QVERIFY(!action->localizedActionDescription(press).isEmpty());
    for (const QString &name : {press, menu}) {
        action->doAction(name);
        QVERIFY(popup(box)->isVisible());
        QCOMPARE(shownEntries(box), QStringList({"a", "b"}));
        action->doAction(name);
        QVERIFY(!popup(box)->isVisible());
    }
    box.setEnabled(false);
    QVERIFY(!action->actionNames().contains(press));
    action->doAction(press);
    QVERIFY(!popup(box)->isVisible());
}

void tst_EditComboBoxLife::accessibleSubclass()
{
    class Derived : public EditComboBox
    {
    };
    Derived box;
    Derived other;
    QCOMPARE(QAccessible::queryAccessibleInterface(&box)->role(), QAccessible::ComboBox);
    QCOMPARE(QAccessible::queryAccessibleInterface(&other)->role(), QAccessible::ComboBox);
}

// A box that is a window is hidden when it is not much more than a QWidget any more, and assistive
// technology is told so.
void tst_EditComboBoxLife::accessibleWhileDestroyed()
{
    class Asker : public QObject
    {
    public:
        bool eventFilter(QObject *watched, QEvent *event) override
        {
            if (event->type() == QEvent::Hide) {
                ask(*QAccessible::queryAccessibleInterface(watched));
            }
            return false;
        }

        void ask(QAccessibleInterface &accessible)
        {
            QVERIFY(accessible.text(QAccessible::Value).isEmpty());
            accessible.setText(QAccessible::Value, QStringLiteral("a"));
            QVERIFY(!accessible.state().hasPopup);
            QAccessibleActionInterface *action = accessible.actionInterface();
            const QString press = QAccessibleActionInterface::pressAction();
            QVERIFY(!action->actionNames().contains(press));
            action->doAction(press);
            ++answers;
        }

        int answers = 0;
    };
    auto *box = new EditComboBox({"a", "b"}, nullptr);
    show(*box);
    box->setCurrentIndex(1);
    QVERIFY(QAccessible::queryAccessibleInterface(box));
    Asker asker;
    box->installEventFilter(&asker);
    delete box;
    QCOMPARE(asker.answers, 1);
}

void tst_EditComboBoxLife::accessibleNameOfTheLineEdit()
{
    EditComboBox box({"a"}, nullptr);
    show(box);
    lineEdit(box)->clearFocus();
    box.setAccessibleName(QStringLiteral("Grid size"));
    lineEdit(box)->setFocus();
    QCOMPARE(lineEdit(box)->accessibleName(), QStringLiteral("Grid size"));
    lineEdit(box)->clearFocus();
    box.setAccessibleName(QStringLiteral("Cell size"));
    lineEdit(box)->setFocus();
    QCOMPARE(lineEdit(box)->accessibleName(), QStringLiteral("Cell size"));
    lineEdit(box)->clearFocus();
    lineEdit(box)->setAccessibleName(QStringLiteral("The host's"));
    lineEdit(box)->setFocus();
    QCOMPARE(lineEdit(box)->accessibleName(), QStringLiteral("The host's"));
}

LMTEST_MAIN(tst_EditComboBoxLife)

#include "tst_editcombobox_life.moc"
