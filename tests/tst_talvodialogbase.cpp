#include "lmtest.h"

#include <lmwidgets/talvodialogbase.h>
#include <lmwidgets/talvostylemanager.h>

#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <functional>
#include <memory>
#include <type_traits>
#include <vector>

using LM::Widgets::TalvoDialogBase;
using LM::Widgets::TalvoStyleManager;

namespace {

TalvoStyleManager *manager()
{
    return TalvoStyleManager::instance().data();
}

/** A dialog whose initStyleSheet() does what a test tells it to. */
class ThemedDialog : public TalvoDialogBase
{
    Q_OBJECT

public:
    using TalvoDialogBase::TalvoDialogBase;

    void initStyleSheet() override
    {
        ++calls;
        seenStyles.append(int(manager()->currentStyle()));
        if (onInit) {
            // A copy, since it may destroy the dialog.
            const std::function<void()> action = onInit;
            action();
        }
    }

    int calls = 0;
    QVector<int> seenStyles;
    std::function<void()> onInit;
};

static_assert(std::is_abstract<TalvoDialogBase>::value, "initStyleSheet() is for the subclass");
static_assert(std::is_base_of<QDialog, TalvoDialogBase>::value, "it is a dialog");
static_assert(std::has_virtual_destructor<TalvoDialogBase>::value, "it is deleted as a QObject");

} // namespace

class tst_TalvoDialogBase : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void switchCallsEachDialogOnce();
    void bypassesTheWindowManager();
    void keepsGivenFlags();
    void constructorDoesNotStyle();
    void parentOwnsTheDialog();
    void metaObject();
    void slotCallsTheMostDerived();
    void slotThroughTheMetaObject();
    void switchWhileADialogIsOpen();
    void hiddenAndShownDialogsFollow();
    void constructedDuringASwitch();
    void destroyedByAnotherDialog();
    void destroysItself();
    void destroyedInASlot();
    void conditionalSwitchWithin();
    void switchWithinThatChangesNothing();
    void chainOfSwitchesWithin();
    void unconditionalSwitchWithin();
    void switchWithinTwoDialogs();
    void switchesAndDestroysItself();
    void slotCalledWithin();
    void switchDuringDestruction();
    void switchByADerivedMember();
    void heapOfDialogs();
    void doneEmitsWhatQDialogDoes_data();
    void doneEmitsWhatQDialogDoes();
    void doneWithBlockedSignals();
    void destroyedInDone_data();
    void destroyedInDone();
    void deleteOnClose();
};

void tst_TalvoDialogBase::cleanup()
{
    manager()->disconnectAllSignals();
    manager()->shiftStyle(TalvoStyleManager::Black);
}

void tst_TalvoDialogBase::switchCallsEachDialogOnce()
{
    ThemedDialog first;
    ThemedDialog second(&first);
    auto third = std::make_unique<ThemedDialog>();
    manager()->shiftStyle(TalvoStyleManager::White);
    QCOMPARE(first.calls, 1);
    QCOMPARE(second.calls, 1);
    QCOMPARE(third->calls, 1);

    third.reset();
    manager()->shiftStyle(TalvoStyleManager::White);
    QCOMPARE(first.calls, 2);
    QCOMPARE(second.calls, 2);
    QCOMPARE(first.seenStyles, (QVector<int>{1, 1}));
}

void tst_TalvoDialogBase::bypassesTheWindowManager()
{
    ThemedDialog dialog;
    QVERIFY(dialog.windowFlags().testFlag(Qt::BypassWindowManagerHint));
    QCOMPARE(dialog.windowType(), Qt::Dialog);
}

void tst_TalvoDialogBase::keepsGivenFlags()
{
    QWidget parent;
    ThemedDialog dialog(&parent, Qt::Tool | Qt::WindowStaysOnTopHint);
    QCOMPARE(dialog.windowType(), Qt::Tool);
    QVERIFY(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(dialog.windowFlags().testFlag(Qt::BypassWindowManagerHint));
    QVERIFY(dialog.isWindow());
    QVERIFY(!dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
}

void tst_TalvoDialogBase::constructorDoesNotStyle()
{
    ThemedDialog dialog;
    QCOMPARE(dialog.calls, 0);
    QVERIFY(dialog.styleSheet().isEmpty());
    dialog.show();
    QCOMPARE(dialog.calls, 0);
}

void tst_TalvoDialogBase::parentOwnsTheDialog()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<ThemedDialog> dialog = new ThemedDialog(parent.get());
    QCOMPARE(dialog->parentWidget(), parent.get());
    parent.reset();
    QVERIFY(dialog.isNull());
    manager()->shiftStyle(TalvoStyleManager::Blue);
}

void tst_TalvoDialogBase::metaObject()
{
    const QMetaObject &meta = TalvoDialogBase::staticMetaObject;
    QCOMPARE(meta.className(), "LM::Widgets::TalvoDialogBase");
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(lmtest::ownMethods(meta), QStringList{QStringLiteral("slot onInitStyleSheet()")});
    QCOMPARE(meta.method(meta.methodOffset()).access(), QMetaMethod::Public);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_TalvoDialogBase::slotCallsTheMostDerived()
{
    class MoreDerived : public ThemedDialog
    {
    public:
        void initStyleSheet() override { ++ownCalls; }
        int ownCalls = 0;
    };
    MoreDerived dialog;
    static_cast<TalvoDialogBase &>(dialog).onInitStyleSheet();
    QCOMPARE(dialog.ownCalls, 1);
    QCOMPARE(dialog.calls, 0);
    manager()->shiftStyle(TalvoStyleManager::Blue);
    QCOMPARE(dialog.ownCalls, 2);
}

void tst_TalvoDialogBase::slotThroughTheMetaObject()
{
    ThemedDialog dialog;
    QTimer timer;
    connect(&timer, SIGNAL(timeout()), &dialog, SLOT(onInitStyleSheet()));
    timer.setSingleShot(true);
    timer.start(0);
    QTRY_COMPARE(dialog.calls, 1);
    QVERIFY(QMetaObject::invokeMethod(&dialog, "onInitStyleSheet"));
    QCOMPARE(dialog.calls, 2);
}

void tst_TalvoDialogBase::switchWhileADialogIsOpen()
{
    ThemedDialog dialog;
    dialog.onInit = [&dialog] { dialog.setStyleSheet(QStringLiteral("QDialog{color:#112233;}")); };
    QTimer::singleShot(0, &dialog, [&dialog] {
        manager()->shiftStyle(TalvoStyleManager::White);
        dialog.accept();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.calls, 1);
    QCOMPARE(dialog.styleSheet(), QStringLiteral("QDialog{color:#112233;}"));
}

void tst_TalvoDialogBase::hiddenAndShownDialogsFollow()
{
    ThemedDialog hidden;
    ThemedDialog shown;
    shown.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shown));
    manager()->shiftStyle(TalvoStyleManager::White);
    QCOMPARE(hidden.calls, 1);
    QCOMPARE(shown.calls, 1);
}

void tst_TalvoDialogBase::constructedDuringASwitch()
{
    std::unique_ptr<ThemedDialog> late;
    ThemedDialog dialog;
    dialog.onInit = [&late] {
        if (!late) {
            late = std::make_unique<ThemedDialog>();
        }
    };
    manager()->shiftStyle(TalvoStyleManager::White);
    QVERIFY(late);
    QCOMPARE(late->calls, 0);
    manager()->shiftStyle(TalvoStyleManager::Blue);
    QCOMPARE(late->calls, 1);
    QCOMPARE(dialog.calls, 2);
}

void tst_TalvoDialogBase::destroyedByAnotherDialog()
{
    auto earlier = std::make_unique<ThemedDialog>();
    ThemedDialog destroyer;
    auto later = std::make_unique<ThemedDialog>();
    ThemedDialog last;
    destroyer.onInit = [&earlier, &later] {
        earlier.reset();
        later.reset();
    };
    manager()->shiftStyle(TalvoStyleManager::White);
    QVERIFY(!earlier && !later);
    QCOMPARE(destroyer.calls, 1);
    QCOMPARE(last.calls, 1);
}

void tst_TalvoDialogBase::destroysItself()
{
    ThemedDialog before;
    auto *dialog = new ThemedDialog;
    const QPointer<ThemedDialog> guard = dialog;
    dialog->onInit = [dialog] { delete dialog; };
    ThemedDialog after;
    manager()->shiftStyle(TalvoStyleManager::White);
    QVERIFY(guard.isNull());
    QCOMPARE(before.calls, 1);
    QCOMPARE(after.calls, 1);
}

void tst_TalvoDialogBase::destroyedInASlot()
{
    QPointer<ThemedDialog> dialog;
    connect(manager(), &TalvoStyleManager::themeStyleShift, this,
            [&dialog] { delete dialog.data(); });
    dialog = new ThemedDialog;
    ThemedDialog other;
    manager()->shiftStyle(TalvoStyleManager::White);
    QVERIFY(dialog.isNull());
    QCOMPARE(other.calls, 1);
}

void tst_TalvoDialogBase::conditionalSwitchWithin()
{
    ThemedDialog before;
    ThemedDialog dialog;
    ThemedDialog after;
    dialog.onInit = [] {
        if (manager()->currentStyle() != TalvoStyleManager::Blue) {
            manager()->shiftStyle(TalvoStyleManager::Blue);
        }
    };
    manager()->shiftStyle(TalvoStyleManager::White);
    QCOMPARE(manager()->currentStyle(), TalvoStyleManager::Blue);
    QCOMPARE(dialog.seenStyles, (QVector<int>{1, 2}));
    QCOMPARE(before.seenStyles, (QVector<int>{1, 2}));
    // The switch within reaches the last one first, and the outer one reaches it then as well.
    QCOMPARE(after.seenStyles, (QVector<int>{2, 2}));

    manager()->shiftStyle(TalvoStyleManager::Blue);
    QCOMPARE(dialog.calls, 3);
}

void tst_TalvoDialogBase::switchWithinThatChangesNothing()
{
    ThemedDialog dialog;
    dialog.onInit = [&dialog] {
        if (dialog.calls == 1) {
            manager()->shiftStyle(manager()->currentStyle());
        }
    };
    manager()->shiftStyle(TalvoStyleManager::White);
    QCOMPARE(dialog.seenStyles, (QVector<int>{1, 1}));
}

void tst_TalvoDialogBase::chainOfSwitchesWithin()
{
    // Each step of the way is seen, the last one too.
    ThemedDialog dialog;
    dialog.onInit = [] {
        const int style = manager()->currentStyle();
        if (style < 3) {
            manager()->shiftStyle(TalvoStyleManager::ThemeStyleType(style + 1));
        }
    };
    manager()->shiftStyle(TalvoStyleManager::Black);
    QCOMPARE(dialog.seenStyles, (QVector<int>{0, 1, 2, 3}));
}

void tst_TalvoDialogBase::unconditionalSwitchWithin()
{
    ThemedDialog dialog;
    ThemedDialog other;
    dialog.onInit = [] { manager()->shiftStyle(TalvoStyleManager::Blue); };
    manager()->shiftStyle(TalvoStyleManager::White);
    QCOMPARE(dialog.seenStyles, (QVector<int>{1, 2}));
    QCOMPARE(other.seenStyles.last(), 2);

    // One that goes to and fro comes to an end as well, and afterwards the dialog follows as
    // before.
    dialog.onInit = [] {
        const bool black = manager()->currentStyle() == TalvoStyleManager::Black;
        manager()->shiftStyle(black ? TalvoStyleManager::White : TalvoStyleManager::Black);
    };
    dialog.calls = 0;
    manager()->shiftStyle(TalvoStyleManager::White);
    QVERIFY(dialog.calls > 1);
    QVERIFY2(dialog.calls < 100, qPrintable(QString::number(dialog.calls)));
    dialog.onInit = nullptr;
    dialog.calls = 0;
    manager()->shiftStyle(TalvoStyleManager::White);
    QCOMPARE(dialog.calls, 1);
}

void tst_TalvoDialogBase::switchWithinTwoDialogs()
{
    // Two that never agree.
    ThemedDialog white;
    ThemedDialog blue;
    white.onInit = [] { manager()->shiftStyle(TalvoStyleManager::White); };
    blue.onInit = [] { manager()->shiftStyle(TalvoStyleManager::Blue); };
    manager()->shiftStyle(TalvoStyleManager::Black);
    QVERIFY(white.calls > 0 && white.calls < 1000);
    QVERIFY(blue.calls > 0 && blue.calls < 1000);
}

void tst_TalvoDialogBase::switchesAndDestroysItself()
{
    auto *dialog = new ThemedDialog;
    const QPointer<ThemedDialog> guard = dialog;
    dialog->onInit = [dialog] {
        manager()->shiftStyle(TalvoStyleManager::Blue);
        delete dialog;
    };
    ThemedDialog other;
    manager()->shiftStyle(TalvoStyleManager::White);
    QVERIFY(guard.isNull());
    QCOMPARE(other.seenStyles, (QVector<int>{2, 2}));
}

void tst_TalvoDialogBase::slotCalledWithin()
{
    ThemedDialog dialog;
    dialog.onInit = [&dialog] { dialog.onInitStyleSheet(); };
    dialog.onInitStyleSheet();
    QVERIFY(dialog.calls >= 1 && dialog.calls < 100);
    const int before = dialog.calls;
    dialog.onInit = nullptr;
    dialog.onInitStyleSheet();
    QCOMPARE(dialog.calls, before + 1);
}

void tst_TalvoDialogBase::switchDuringDestruction()
{
    int switches = 0;
    auto dialog = std::make_unique<ThemedDialog>();
    auto *child = new QPushButton(dialog.get());
    auto *grandchild = new QObject(child);
    const auto shift = [&switches] {
        ++switches;
        manager()->shiftStyle(TalvoStyleManager::White);
    };
    connect(child, &QObject::destroyed, this, shift);
    connect(grandchild, &QObject::destroyed, this, shift);
    connect(dialog.get(), &QObject::destroyed, this, shift);
    // Registered a second time, it has a second connection to lose.
    manager()->addTalvoDialogBase(dialog.get());
    ThemedDialog other;
    dialog.reset();
    QCOMPARE(switches, 3);
    QCOMPARE(other.calls, 3);
}

void tst_TalvoDialogBase::switchByADerivedMember()
{
    struct Switcher
    {
        ~Switcher() { manager()->shiftStyle(TalvoStyleManager::White); }
    };
    class Holder : public TalvoDialogBase
    {
    public:
        void initStyleSheet() override {}
        Switcher switcher;
    };
    ThemedDialog other;
    {
        Holder holder;
    }
    QCOMPARE(other.calls, 1);
}

void tst_TalvoDialogBase::heapOfDialogs()
{
    constexpr size_t Count = 200;
    std::vector<std::unique_ptr<ThemedDialog>> dialogs;
    for (size_t i = 0; i < Count; ++i) {
        dialogs.push_back(std::make_unique<ThemedDialog>());
    }
    for (size_t i = 0; i < Count; i += 2) {
        dialogs[i].reset();
    }
    manager()->shiftStyle(TalvoStyleManager::White);
    for (size_t i = 1; i < Count; i += 2) {
        QCOMPARE(dialogs[i]->calls, 1);
    }
}

void tst_TalvoDialogBase::doneEmitsWhatQDialogDoes_data()
{
    QTest::addColumn<int>("result");
    QTest::newRow("accepted") << int(QDialog::Accepted);
    QTest::newRow("rejected") << int(QDialog::Rejected);
    QTest::newRow("another code") << 5;
    QTest::newRow("negative") << -1;
}

void tst_TalvoDialogBase::doneEmitsWhatQDialogDoes()
{
    QFETCH(int, result);
    const auto record = [this, result](QDialog &dialog) {
        QStringList events;
        connect(&dialog, &QDialog::accepted, this, [&] { events << QStringLiteral("accepted"); });
        connect(&dialog, &QDialog::rejected, this, [&] { events << QStringLiteral("rejected"); });
        connect(&dialog, &QDialog::finished, this, [&](int code) {
            events << QStringLiteral("finished %1 %2 %3")
                          .arg(code)
                          .arg(dialog.result())
                          .arg(dialog.isVisible());
        });
        QTimer::singleShot(0, &dialog, [&dialog, result] { dialog.done(result); });
        events << QString::number(dialog.exec());
        dialog.show();
        dialog.close();
        return events;
    };
    QDialog plain;
    ThemedDialog dialog;
    QCOMPARE(record(dialog), record(plain));
    QVERIFY(!dialog.isVisible());
    QVERIFY(!dialog.signalsBlocked());
}

void tst_TalvoDialogBase::doneWithBlockedSignals()
{
    ThemedDialog dialog;
    int signalCount = 0;
    connect(&dialog, &QDialog::finished, this, [&signalCount] { ++signalCount; });
    dialog.show();
    dialog.blockSignals(true);
    dialog.accept();
    QCOMPARE(signalCount, 0);
    QVERIFY(dialog.signalsBlocked());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void tst_TalvoDialogBase::destroyedInDone_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<bool>("atFinished");
    QTest::newRow("accepted") << int(QDialog::Accepted) << false;
    QTest::newRow("rejected") << int(QDialog::Rejected) << false;
    QTest::newRow("finished") << 2 << true;
}

void tst_TalvoDialogBase::destroyedInDone()
{
    QFETCH(int, result);
    QFETCH(bool, atFinished);
    for (const bool modal : {false, true}) {
        const QPointer<ThemedDialog> dialog = new ThemedDialog;
        int finished = 0;
        const auto destroy = [&dialog] { delete dialog.data(); };
        connect(dialog, &QDialog::finished, this, [&finished] { ++finished; });
        if (atFinished) {
            connect(dialog, &QDialog::finished, this, destroy);
        }
        connect(dialog, &QDialog::accepted, this, destroy);
        connect(dialog, &QDialog::rejected, this, destroy);
        if (modal) {
            QTimer::singleShot(0, dialog, [&dialog, result] { dialog->done(result); });
            QCOMPARE(dialog->exec(), int(QDialog::Rejected));
        } else {
            dialog->show();
            dialog->done(result);
        }
        QVERIFY(dialog.isNull());
        QCOMPARE(finished, atFinished ? 1 : 0);
    }
}

void tst_TalvoDialogBase::deleteOnClose()
{
    const QPointer<ThemedDialog> dialog = new ThemedDialog;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    dialog->accept();
    QTRY_VERIFY(dialog.isNull());
}

LMTEST_MAIN(tst_TalvoDialogBase)

#include "tst_talvodialogbase.moc"
