#include "processdialogtest.h"

#include <QMetaProperty>
#include <QProgressDialog>

using namespace processdialogtest;
using LM::Widgets::FramelessProcessDialog;

namespace {

/** What a script sees of a dialog after each of its steps. */
template <typename Progress>
QString stateOf(const Progress &dialog)
{
    return QStringLiteral("value %1 of %2..%3, %4%5%6 \"%7\" %8 %9")
        .arg(dialog.value())
        .arg(dialog.minimum())
        .arg(dialog.maximum())
        .arg(dialog.isVisible() ? "visible" : "hidden")
        .arg(dialog.wasCanceled() ? ", canceled" : "")
        .arg(dialog.isModal() ? ", modal" : "")
        .arg(dialog.labelText())
        .arg(dialog.minimumDuration())
        .arg(dialog.result());
}

/** Runs a script on a dialog and writes down its state and its signals. */
template <typename Progress>
class Runner
{
public:
    Runner() : m_dialog(QStringLiteral("Label"), QStringLiteral("Stop"), 0, 100)
    {
        QObject::connect(&m_dialog, &Progress::canceled, &m_dialog,
                         [this] { m_lines += QStringLiteral("canceled"); });
        QObject::connect(&m_dialog, &QDialog::finished, &m_dialog,
                         [this](int code) { m_lines += QStringLiteral("finished %1").arg(code); });
        QObject::connect(&m_dialog, &QDialog::accepted, &m_dialog,
                         [this] { m_lines += QStringLiteral("accepted"); });
        QObject::connect(&m_dialog, &QDialog::rejected, &m_dialog,
                         [this] { m_lines += QStringLiteral("rejected"); });
    }

    template <typename Step>
    void step(const char *name, Step step)
    {
        step(m_dialog);
        m_lines += QLatin1String(name) + QLatin1String(": ") + stateOf(m_dialog);
    }

    Progress &dialog() { return m_dialog; }
    QStringList lines() const { return m_lines; }

private:
    Progress m_dialog;
    QStringList m_lines;
};

#define STEP(call) runner.step(#call, [](auto &dialog) { dialog.call; })

template <typename Progress>
QStringList values()
{
    Runner<Progress> runner;
    STEP(setMinimumDuration(100000));
    STEP(setValue(0));
    STEP(setValue(0));
    STEP(setValue(5));
    STEP(setValue(-1));
    STEP(setValue(101));
    STEP(setRange(10, 5));
    STEP(setMinimum(3));
    STEP(setMaximum(1));
    STEP(setRange(0, 10));
    STEP(setValue(10));
    STEP(setAutoReset(false));
    STEP(setValue(10));
    STEP(setMaximum(20));
    STEP(setMinimum(15));
    STEP(reset());
    STEP(setRange(0, 0));
    STEP(setValue(0));
    STEP(setValue(1));
    STEP(setLabelText(QStringLiteral("Other")));
    STEP(setLabel(nullptr));
    STEP(setLabelText(QStringLiteral("Gone")));
    STEP(setMinimumDuration(-3));
    return runner.lines();
}

template <typename Progress>
QStringList appearing()
{
    Runner<Progress> runner;
    STEP(setMinimumDuration(0));
    STEP(setValue(0));
    STEP(setValue(1));
    STEP(setValue(2));
    STEP(cancel());
    STEP(setValue(3));
    STEP(reset());
    STEP(setValue(4));
    STEP(setValue(100));
    STEP(setAutoClose(false));
    STEP(setValue(4));
    STEP(setValue(100));
    STEP(setValue(50));
    STEP(cancel());
    STEP(setModal(true));
    STEP(reset());
    STEP(setValue(7));
    STEP(setValue(8));
    STEP(setValue(100));
    STEP(show());
    STEP(close());
    STEP(reset());
    STEP(show());
    STEP(accept());
    STEP(show());
    STEP(reject());
    STEP(done(5));
    return runner.lines();
}

template <typename Progress>
QStringList clicking()
{
    Runner<Progress> runner;
    const auto click = [](auto &dialog) {
        QTest::mouseClick(dialog.template findChild<QPushButton *>(), Qt::LeftButton);
    };
    STEP(setMinimumDuration(0));
    STEP(setValue(1));
    runner.step("click", click);
    STEP(setValue(2));
    STEP(reset());
    STEP(setAutoClose(false));
    STEP(show());
    runner.step("click", click);
    STEP(setCancelButtonText(QStringLiteral("New")));
    STEP(show());
    runner.step("click", click);
    STEP(setCancelButton(new QPushButton));
    STEP(show());
    runner.step("click", click);
    return runner.lines();
}

template <typename Progress>
QStringList keys()
{
    Runner<Progress> runner;
    // Ours takes no focus, so that no key clicks it by accident.
    STEP(template findChild<QPushButton *>()->setFocusPolicy(Qt::NoFocus));
    STEP(setMinimumDuration(0));
    STEP(setValue(1));
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Tab}) {
        runner.step("key", [key](auto &dialog) { QTest::keyClick(&dialog, key); });
        STEP(reset());
        STEP(setValue(2));
    }
    return runner.lines();
}

template <typename Progress>
QStringList repeatedOpen()
{
    Runner<Progress> runner;
    QTimer first;
    QTimer second;
    for (QTimer *timer : {&first, &second}) {
        timer->setInterval(100000);
    }
    const auto note = [&](auto &dialog) {
        dialog.setLabelText(QStringLiteral("%1%2").arg(first.isActive()).arg(second.isActive()));
        first.stop();
        second.stop();
    };
    Progress &dialog = runner.dialog();
    dialog.open(&first, SLOT(start()));
    Q_EMIT dialog.canceled();
    runner.step("one", note);
    QCoreApplication::processEvents();
    Q_EMIT dialog.canceled();
    runner.step("after", note);
    dialog.open(&first, SLOT(start()));
    dialog.open(&second, SLOT(start()));
    Q_EMIT dialog.canceled();
    runner.step("two", note);
    QCoreApplication::processEvents();
    Q_EMIT dialog.canceled();
    runner.step("after two", note);
    return runner.lines();
}

} // namespace

/** The same script of calls for QProgressDialog and for ours. */
class tst_FramelessProcessDialogStock : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sameValues() { QCOMPARE(values<Dialog>(), values<QProgressDialog>()); }
    void sameAppearing() { QCOMPARE(appearing<Dialog>(), appearing<QProgressDialog>()); }
    void sameClicking() { QCOMPARE(clicking<Dialog>(), clicking<QProgressDialog>()); }
    void sameKeys() { QCOMPARE(keys<Dialog>(), keys<QProgressDialog>()); }
    void sameOpen() { QCOMPARE(repeatedOpen<Dialog>(), repeatedOpen<QProgressDialog>()); }
    void sameProperties();
    void sameSlots();
};

void tst_FramelessProcessDialogStock::sameProperties()
{
    const QMetaObject &ours = FramelessProcessDialog::staticMetaObject;
    const QMetaObject &stock = QProgressDialog::staticMetaObject;
    QCOMPARE(ours.propertyCount() - ours.propertyOffset(),
             stock.propertyCount() - stock.propertyOffset());
    for (int i = stock.propertyOffset(); i < stock.propertyCount(); ++i) {
        QVERIFY2(ours.indexOfProperty(stock.property(i).name()) >= ours.propertyOffset(),
                 stock.property(i).name());
    }
}

void tst_FramelessProcessDialogStock::sameSlots()
{
    QCOMPARE(lmtest::ownMethods(FramelessProcessDialog::staticMetaObject),
             lmtest::ownMethods(QProgressDialog::staticMetaObject));
}

LMTEST_MAIN(tst_FramelessProcessDialogStock)

#include "tst_framelessprocessdialog_stock.moc"
