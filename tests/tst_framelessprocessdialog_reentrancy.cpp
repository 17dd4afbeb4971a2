#include "processdialogtest.h"

#include <QAction>
#include <QElapsedTimer>
#include <QWindow>

#include <functional>

using namespace processdialogtest;
using LM::Widgets::FramelessProcessDialog;

namespace {

/** A modal dialog that is shown, so that its setValue() runs events. */
Dialog *makeModal(int maximum = 100)
{
    auto *dialog = new Dialog(QStringLiteral("Working"), QStringLiteral("Stop"), 0, maximum);
    dialog->setModal(true);
    dialog->setMinimumDuration(0);
    dialog->setValue(1);
    return dialog;
}

/** Runs @p act with the next events. */
void later(const std::function<void()> &act)
{
    QMetaObject::invokeMethod(
        qApp, [act] { act(); }, Qt::QueuedConnection);
}

} // namespace

/** What a host does to the progress dialog while the dialog is at work itself. */
class tst_FramelessProcessDialogReentrancy : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void modelessRunsNoEvents();
    void setValueWithinSetValue();
    void manyWithinSetValue();
    void lastValueWithinSetValue();
    void cancelWithinSetValue();
    void resetWithinSetValue();
    void closeWithinSetValue();
    void deleteWithinSetValue();
    void deleteWithinLastSetValue();
    void deleteWithinNestedSetValue();
    void replaceBarWithinSetValue();
    void modalLoopWithinSetValue();

    void deleteInSlot_data();
    void deleteInSlot();
    void deleteOnValueChanged();
    void deleteOnHide_data();
    void deleteOnHide();
    void deleteOnPartDestroyed_data();
    void deleteOnPartDestroyed();
    void replaceButtonInItsSlot();
    void deleteInExec();
};

void tst_FramelessProcessDialogReentrancy::modelessRunsNoEvents()
{
    Dialog dialog;
    showByProgress(&dialog);
    bool ran = false;
    later([&] { ran = true; });
    dialog.setValue(2);
    QVERIFY(!ran);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setValue(3);
    QVERIFY(ran);
    // Before it was shown it runs none either.
    Dialog hidden;
    hidden.setModal(true);
    ran = false;
    later([&] { ran = true; });
    hidden.setValue(2);
    QVERIFY(!ran);
    QCoreApplication::processEvents();
    QVERIFY(ran);
}

void tst_FramelessProcessDialogReentrancy::setValueWithinSetValue()
{
    const QScopedPointer<Dialog> dialog(makeModal());
    later([&] { dialog->setValue(60); });
    dialog->setValue(20);
    QCOMPARE(dialog->value(), 60);
    QCOMPARE(dialog->percent()->text(), QStringLiteral("60%"));
    QVERIFY(dialog->isVisible());
}

void tst_FramelessProcessDialogReentrancy::manyWithinSetValue()
{
    // Timers, as not every event dispatcher runs posted events within a posted event.
    constexpr int events = 300;
    const QScopedPointer<Dialog> dialog(makeModal(1000000));
    int depth = 0;
    int deepest = 0;
    int value = 10;
    QVector<int> seen;
    for (int i = 0; i < events; ++i) {
        auto *timer = new QTimer(dialog.data());
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, timer, [&] {
            deepest = qMax(deepest, ++depth);
            dialog->setValue(++value);
            seen += value;
            --depth;
        });
        timer->start(1);
    }
    QElapsedTimer due;
    due.start();
    while (due.elapsed() < 3) {
    }
    dialog->setValue(2);
    QTRY_COMPARE(seen.count(), events);
    QCOMPARE(dialog->value(), 10 + events);
    // A job within a job still runs events, but a storm of them does not grow the stack.
    QVERIFY2(deepest > 1, qPrintable(QString::number(deepest)));
    QVERIFY2(deepest < 20, qPrintable(QString::number(deepest)));
}

void tst_FramelessProcessDialogReentrancy::lastValueWithinSetValue()
{
    const QScopedPointer<Dialog> dialog(makeModal());
    later([&] { dialog->setValue(100); });
    dialog->setValue(20);
    QCOMPARE(dialog->value(), -1);
    QCOMPARE(dialog->percent()->text(), QStringLiteral("0%"));
    QVERIFY(dialog->isHidden());
}

void tst_FramelessProcessDialogReentrancy::cancelWithinSetValue()
{
    const QScopedPointer<Dialog> dialog(makeModal());
    later([&] { dialog->button()->click(); });
    dialog->setValue(20);
    QVERIFY(dialog->wasCanceled());
    QVERIFY(dialog->isHidden());
    later([&] { dialog->cancel(); });
    dialog->setValue(30);
    QCoreApplication::processEvents();
    QVERIFY(dialog->wasCanceled());
}

void tst_FramelessProcessDialogReentrancy::resetWithinSetValue()
{
    const QScopedPointer<Dialog> dialog(makeModal());
    later([&] { dialog->reset(); });
    dialog->setValue(20);
    QCOMPARE(dialog->value(), -1);
    QVERIFY(dialog->isHidden());
    // The work goes on, and the dialog comes back.
    dialog->setValue(21);
    QVERIFY(dialog->isVisible());
}

void tst_FramelessProcessDialogReentrancy::closeWithinSetValue()
{
    const QScopedPointer<Dialog> dialog(makeModal());
    QSignalSpy canceled(dialog.data(), &FramelessProcessDialog::canceled);
    later([&] { dialog->close(); });
    dialog->setValue(20);
    QCOMPARE(canceled.count(), 1);
    QVERIFY(dialog->wasCanceled());
    QVERIFY(dialog->isHidden());
}

void tst_FramelessProcessDialogReentrancy::deleteWithinSetValue()
{
    const QPointer<Dialog> dialog(makeModal());
    later([&] { delete dialog; });
    dialog->setValue(20);
    QVERIFY(!dialog);
}

void tst_FramelessProcessDialogReentrancy::deleteWithinLastSetValue()
{
    const QPointer<Dialog> dialog(makeModal());
    later([&] { delete dialog; });
    dialog->setValue(100);
    QVERIFY(!dialog);
}

void tst_FramelessProcessDialogReentrancy::deleteWithinNestedSetValue()
{
    const QPointer<Dialog> dialog(makeModal());
    later([&] {
        later([&] { delete dialog; });
        dialog->setValue(30);
    });
    dialog->setValue(20);
    QVERIFY(!dialog);
}

void tst_FramelessProcessDialogReentrancy::replaceBarWithinSetValue()
{
    const QScopedPointer<Dialog> dialog(makeModal());
    auto *bar = new QProgressBar;
    later([&] {
        dialog->setBar(bar);
        dialog->setLabel(nullptr);
        dialog->setCancelButton(nullptr);
    });
    dialog->setValue(20);
    QCOMPARE(dialog->bar(), bar);
    dialog->setValue(21);
    QCOMPARE(bar->value(), 21);
}

void tst_FramelessProcessDialogReentrancy::modalLoopWithinSetValue()
{
    const QScopedPointer<Dialog> dialog(makeModal());
    int result = 0;
    later([&] {
        QDialog question(dialog.data());
        later([&] {
            dialog->setValue(50);
            question.done(7);
        });
        result = question.exec();
    });
    dialog->setValue(20);
    QCOMPARE(result, 7);
    QCOMPARE(dialog->value(), 50);
}

void tst_FramelessProcessDialogReentrancy::deleteInSlot_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QByteArray>("action");
    QTest::newRow("click") << QByteArray(SIGNAL(canceled())) << QByteArray("click");
    QTest::newRow("click()") << QByteArray(SIGNAL(canceled())) << QByteArray("call");
    QTest::newRow("close") << QByteArray(SIGNAL(canceled())) << QByteArray("close");
    QTest::newRow("window closed") << QByteArray(SIGNAL(canceled())) << QByteArray("window");
    QTest::newRow("accepted") << QByteArray(SIGNAL(accepted())) << QByteArray("accept");
    QTest::newRow("rejected") << QByteArray(SIGNAL(rejected())) << QByteArray("reject");
    QTest::newRow("finished") << QByteArray(SIGNAL(finished(int))) << QByteArray("reject");
}

void tst_FramelessProcessDialogReentrancy::deleteInSlot()
{
    QFETCH(QByteArray, signal);
    QFETCH(QByteArray, action);
    // A receiver with a slot that can be named, to delete the dialog from.
    auto *receiver = new QAction;
    const QPointer<Dialog> dialog(new Dialog);
    showByProgress(dialog);
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    connect(dialog, signal, receiver, SLOT(trigger()));
    connect(receiver, &QAction::triggered, receiver, [&] { delete dialog; });
    if (action == "click") {
        QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, {},
                          dialog->button()->geometry().center());
    } else if (action == "call") {
        dialog->button()->click();
    } else if (action == "close") {
        dialog->close();
    } else if (action == "window") {
        dialog->windowHandle()->close();
    } else if (action == "accept") {
        dialog->accept();
    } else {
        dialog->reject();
    }
    QVERIFY(!dialog);
    delete receiver;
}

void tst_FramelessProcessDialogReentrancy::deleteOnValueChanged()
{
    const QPointer<Dialog> dialog(makeModal());
    QList<int> values;
    connect(dialog->bar(), &QProgressBar::valueChanged, dialog,
            [&](int value) { values.append(value); });
    dialog->setValue(7);
    dialog->setValue(8);
    dialog->setValue(333);
    QCOMPARE(values, QList<int>({7, 8}));
    dialog->bar()->blockSignals(true);
    dialog->setValue(9);
    QCOMPARE(values.size(), 2);
    QVERIFY(dialog->bar()->signalsBlocked());
    dialog->bar()->blockSignals(false);
    connect(dialog->bar(), &QProgressBar::valueChanged, qApp, [&] { delete dialog; });
    dialog->setValue(10);
    QVERIFY(!dialog);
}

void tst_FramelessProcessDialogReentrancy::deleteOnHide_data()
{
    QTest::addColumn<QByteArray>("action");
    for (const char *action : {"reset", "cancel", "done", "last", "close"}) {
        QTest::newRow(action) << QByteArray(action);
    }
}

void tst_FramelessProcessDialogReentrancy::deleteOnHide()
{
    QFETCH(QByteArray, action);
    const QPointer<Dialog> dialog(new Dialog);
    showByProgress(dialog);
    // The window goes last of all that hides: its own signal, after which Qt asks whether it lives.
    connect(dialog->windowHandle(), &QWindow::visibleChanged, qApp, [&](bool visible) {
        if (!visible && dialog) {
            dialog->deleteLater();
        }
    });
    if (action == "reset") {
        dialog->reset();
    } else if (action == "cancel") {
        dialog->cancel();
    } else if (action == "done") {
        dialog->done(3);
    } else if (action == "last") {
        dialog->setValue(100);
    } else {
        dialog->close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTRY_VERIFY(!dialog);
}

void tst_FramelessProcessDialogReentrancy::deleteOnPartDestroyed_data()
{
    QTest::addColumn<int>("part");
    QTest::newRow("label") << 0;
    QTest::newRow("button") << 1;
    QTest::newRow("bar") << 2;
    QTest::newRow("caption") << 3;
}

void tst_FramelessProcessDialogReentrancy::deleteOnPartDestroyed()
{
    QFETCH(int, part);
    const QPointer<Dialog> dialog(new Dialog);
    showByProgress(dialog);
    QWidget *parts[] = {dialog->label(), dialog->button(), dialog->bar(), dialog->button()};
    connect(parts[part], &QObject::destroyed, qApp, [&] { delete dialog; });
    switch (part) {
    case 0:
        dialog->setLabel(new QLabel);
        break;
    case 1:
        dialog->setCancelButton(nullptr);
        break;
    case 2:
        dialog->setBar(new QProgressBar);
        break;
    default:
        dialog->setCancelButtonText(QString());
    }
    QVERIFY(!dialog);
    // What came in its place had no parent yet.
    const QWidgetList left = QApplication::topLevelWidgets();
    for (QWidget *widget : left) {
        delete widget;
    }
}

void tst_FramelessProcessDialogReentrancy::replaceButtonInItsSlot()
{
    Dialog dialog;
    dialog.setAutoClose(false);
    showByProgress(&dialog);
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QPointer<QPushButton> button(dialog.button());
    connect(&dialog, &FramelessProcessDialog::canceled, &dialog,
            [&] { dialog.setCancelButtonText(QString()); });
    QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, {}, button->geometry().center());
    QVERIFY(!button);
    QVERIFY(dialog.wasCanceled());
}

void tst_FramelessProcessDialogReentrancy::deleteInExec()
{
    const QPointer<Dialog> dialog(new Dialog);
    connect(dialog, &FramelessProcessDialog::canceled, qApp, [&] { delete dialog; });
    later([&] { dialog->button()->click(); });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(!dialog);
}

LMTEST_MAIN(tst_FramelessProcessDialogReentrancy)

#include "tst_framelessprocessdialog_reentrancy.moc"
