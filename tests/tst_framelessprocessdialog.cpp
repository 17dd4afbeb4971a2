#include "processdialogtest.h"

#include <QElapsedTimer>
#include <QMetaProperty>
#include <QStyle>
#include <QTranslator>

#include <limits>

using namespace processdialogtest;
using LM::Widgets::FramelessProcessDialog;

namespace {

constexpr int IntMin = std::numeric_limits<int>::min();
constexpr int IntMax = std::numeric_limits<int>::max();

/** A language in which every text is "Aufhoeren sofort". */
class AnyTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "LM::Widgets::FramelessProcessDialog") == 0 &&
                       qstrcmp(source, "Cancel") == 0
                   ? QStringLiteral("Aufhoeren sofort")
                   : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

/** Values, times, texts and events of the progress dialog. */
class tst_FramelessProcessDialog : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void percentage_data();
    void percentage();
    void lastValueResets();
    void lastValueWithoutReset();
    void rangeWithoutLength();
    void escapeDoesNothing();
    void closingEmitsCanceled();
    void firstZeroOnlyStarts();

    void initialState();
    void initialStateWithTexts();
    void metaObject();
    void properties();
    void badRanges();
    void extremeValues_data();
    void extremeValues();
    void sameValueIsIgnored();

    void appearsAfterDuration();
    void negativeDuration();
    void estimate_data();
    void estimate();
    void forceShow();
    void showingStopsTheTimer();

    void cancel();
    void resetKeepsVisibleWithoutAutoClose();
    void openConnectsUntilReset();
    void openWithoutReceiver();
    void receiverGoes();

    void titleIsDrawnInside();
    void languageChange();
    void otherKeysReachTheDialog();
    void border();
    void repaints();
};

void tst_FramelessProcessDialog::percentage_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("33 of 100") << 0 << 100 << 33 << "33%";
    QTest::newRow("29 of 100 is cut off") << 0 << 100 << 29 << "28%";
    QTest::newRow("2 of 3 is cut off") << 0 << 3 << 2 << "66%";
    QTest::newRow("999 of 1000") << 0 << 1000 << 999 << "99%";
    QTest::newRow("from 10") << 10 << 20 << 15 << "50%";
    QTest::newRow("below zero") << -100 << 100 << -50 << "25%";
    QTest::newRow("under the range") << 0 << 100 << -7 << "0%";
    QTest::newRow("over the range") << 0 << 100 << 250 << "100%";
    QTest::newRow("all integers, middle") << IntMin << IntMax << 0 << "50%";
    QTest::newRow("all integers, top but one") << IntMin << IntMax << IntMax - 1 << "99%";
}

void tst_FramelessProcessDialog::percentage()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    Dialog dialog(QString(), QString(), minimum, maximum);
    QCOMPARE(dialog.percent()->text(), QString());
    dialog.setValue(value);
    QTEST(dialog.percent()->text(), "text");
}

void tst_FramelessProcessDialog::lastValueResets()
{
    Dialog dialog;
    showByProgress(&dialog);
    QSignalSpy canceled(&dialog, &FramelessProcessDialog::canceled);
    dialog.setValue(100);
    QCOMPARE(dialog.percent()->text(), QStringLiteral("0%"));
    QVERIFY(dialog.isHidden());
    QCOMPARE(dialog.value(), -1);
    QVERIFY(!dialog.wasCanceled());
    QCOMPARE(canceled.count(), 0);
}

void tst_FramelessProcessDialog::lastValueWithoutReset()
{
    Dialog dialog;
    dialog.setAutoReset(false);
    showByProgress(&dialog);
    dialog.setValue(100);
    QCOMPARE(dialog.percent()->text(), QStringLiteral("100%"));
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.value(), 100);
}

void tst_FramelessProcessDialog::rangeWithoutLength()
{
    Dialog dialog(QString(), QString(), 5, 5);
    dialog.setValue(5);
    QCOMPARE(dialog.percent()->text(), QStringLiteral("0%"));
    dialog.setValue(6);
    QCOMPARE(dialog.percent()->text(), QStringLiteral("100%"));
    dialog.setValue(4);
    QCOMPARE(dialog.percent()->text(), QStringLiteral("0%"));

    // The bar that only says that something is going on.
    Dialog busy(QString(), QString(), 0, 0);
    busy.setValue(0);
    QCOMPARE(busy.percent()->text(), QStringLiteral("0%"));
    busy.setValue(77);
    QCOMPARE(busy.percent()->text(), QStringLiteral("100%"));
}

void tst_FramelessProcessDialog::escapeDoesNothing()
{
    Dialog dialog;
    showByProgress(&dialog);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QSignalSpy canceled(&dialog, &FramelessProcessDialog::canceled);
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape, Qt::ShiftModifier);
    QVERIFY(dialog.isVisible());
    QCOMPARE(canceled.count(), 0);
    QCOMPARE(rejected.count(), 0);
    QVERIFY(!dialog.wasCanceled());
}

void tst_FramelessProcessDialog::closingEmitsCanceled()
{
    Dialog dialog;
    showByProgress(&dialog);
    QSignalSpy canceled(&dialog, &FramelessProcessDialog::canceled);
    bool wasSet = false;
    connect(&dialog, &FramelessProcessDialog::canceled, &dialog,
            [&] { wasSet = dialog.wasCanceled(); });
    QVERIFY(dialog.close());
    QCOMPARE(canceled.count(), 1);
    QVERIFY(wasSet);
    QVERIFY(dialog.isHidden());
    QVERIFY(dialog.wasCanceled());
}

void tst_FramelessProcessDialog::firstZeroOnlyStarts()
{
    Dialog dialog(QString(), QString(), -10, 100);
    QVERIFY(dialog.timer()->isActive());
    QCOMPARE(dialog.timer()->interval(), 4000);
    dialog.timer()->stop();
    dialog.setMinimumDuration(0); // not at the minimum: the timer stays as it is
    QVERIFY(!dialog.timer()->isActive());
    dialog.setValue(0);
    QVERIFY(dialog.timer()->isActive());
    QVERIFY(dialog.isHidden());
    // Only the first: another zero is like any other value.
    dialog.setValue(3);
    QVERIFY(dialog.isVisible());

    // The minimum always does.
    dialog.reset();
    dialog.setValue(1);
    QVERIFY(dialog.isVisible());
    dialog.hide();
    dialog.reset();
    dialog.setValue(-10);
    QVERIFY(dialog.isHidden());
    QVERIFY(dialog.timer()->isActive());
}

void tst_FramelessProcessDialog::initialState()
{
    QWidget parent;
    Dialog dialog(&parent, Qt::WindowStaysOnTopHint);
    QCOMPARE(dialog.windowFlags(), Qt::Window | Qt::FramelessWindowHint);
    QCOMPARE(dialog.parentWidget(), &parent);
    QVERIFY(dialog.isHidden());
    QCOMPARE(dialog.minimum(), 0);
    QCOMPARE(dialog.maximum(), 100);
    QCOMPARE(dialog.value(), -1);
    QCOMPARE(dialog.minimumDuration(), 4000);
    QVERIFY(dialog.autoReset());
    QVERIFY(dialog.autoClose());
    QVERIFY(!dialog.wasCanceled());
    QCOMPARE(dialog.labelText(), QString());
    QCOMPARE(dialog.percent()->text(), QString());
    QVERIFY(dialog.label()->wordWrap());
    QVERIFY(!dialog.percent()->wordWrap());
    QCOMPARE(
        int(dialog.label()->alignment()),
        dialog.style()->styleHint(QStyle::SH_ProgressDialog_TextLabelAlignment, nullptr, &dialog));
    QVERIFY(!dialog.bar()->isTextVisible());
    QCOMPARE(dialog.bar()->minimumHeight(), 24);
    QCOMPARE(dialog.bar()->maximumHeight(), 24);
    QCOMPARE(dialog.button()->text(), QStringLiteral("Cancel"));
    QCOMPARE(dialog.timer()->parent(), &dialog);
    QVERIFY(dialog.timer()->isActive());
    QCOMPARE(dialog.title()->text(), QString());
}

void tst_FramelessProcessDialog::initialStateWithTexts()
{
    const Dialog dialog(QStringLiteral("Copying"), QStringLiteral("Stop"), 3, 9);
    QCOMPARE(dialog.labelText(), QStringLiteral("Copying"));
    QCOMPARE(dialog.button()->text(), QStringLiteral("Stop"));
    QCOMPARE(dialog.minimum(), 3);
    QCOMPARE(dialog.maximum(), 9);
    const Dialog unstoppable(QString(), QString(), 0, 1);
    QVERIFY(!unstoppable.button());
    const Dialog blank(QString(), QStringLiteral(""), 0, 1);
    QVERIFY(blank.button());
}

void tst_FramelessProcessDialog::metaObject()
{
    const QStringList methods = lmtest::ownMethods(FramelessProcessDialog::staticMetaObject);
    QStringList signatures;
    const QMetaObject &meta = FramelessProcessDialog::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        signatures += QString::fromLatin1(meta.method(i).methodSignature());
    }
    QCOMPARE(signatures,
             QStringList({"canceled()", "cancel()", "reset()", "setMaximum(int)", "setMinimum(int)",
                          "setRange(int,int)", "setValue(int)", "setLabelText(QString)",
                          "setCancelButtonText(QString)", "setMinimumDuration(int)", "forceShow()",
                          "_q_disconnectOnClose()"}));
    QCOMPARE(methods.at(6), QStringLiteral("slot setValue(int progress)"));
    const auto access = [&](const char *signature) {
        return meta.method(meta.indexOfMethod(signature)).access();
    };
    QCOMPARE(access("setMinimumDuration(int)"), QMetaMethod::Public);
    QCOMPARE(access("forceShow()"), QMetaMethod::Protected);
    QCOMPARE(access("_q_disconnectOnClose()"), QMetaMethod::Private);
    QStringList properties;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        properties += QLatin1String(meta.property(i).name());
    }
    QCOMPARE(properties, QStringList({"wasCanceled", "minimum", "maximum", "value", "autoReset",
                                      "autoClose", "minimumDuration", "labelText"}));
    QVERIFY(!meta.property(meta.indexOfProperty("wasCanceled")).isWritable());
    QCOMPARE(meta.className(), "LM::Widgets::FramelessProcessDialog");
}

void tst_FramelessProcessDialog::properties()
{
    Dialog dialog;
    QVERIFY(dialog.setProperty("minimum", -5));
    QVERIFY(dialog.setProperty("maximum", 50));
    QVERIFY(dialog.setProperty("value", 7));
    QVERIFY(dialog.setProperty("autoReset", false));
    QVERIFY(dialog.setProperty("autoClose", false));
    QVERIFY(dialog.setProperty("minimumDuration", 123));
    QVERIFY(dialog.setProperty("labelText", QStringLiteral("Reading")));
    QCOMPARE(dialog.minimum(), -5);
    QCOMPARE(dialog.maximum(), 50);
    QCOMPARE(dialog.value(), 7);
    QVERIFY(!dialog.autoReset());
    QVERIFY(!dialog.autoClose());
    QCOMPARE(dialog.minimumDuration(), 123);
    QCOMPARE(dialog.label()->text(), QStringLiteral("Reading"));
    QVERIFY(!dialog.setProperty("wasCanceled", true));
    dialog.cancel();
    QCOMPARE(dialog.property("wasCanceled").toBool(), true);
}

void tst_FramelessProcessDialog::badRanges()
{
    Dialog dialog(QString(), QString(), 10, 3);
    QCOMPARE(dialog.minimum(), 10);
    QCOMPARE(dialog.maximum(), 10);
    dialog.setRange(8, 2);
    QCOMPARE(dialog.minimum(), 8);
    QCOMPARE(dialog.maximum(), 8);
    dialog.setMaximum(4);
    QCOMPARE(dialog.minimum(), 4);
    QCOMPARE(dialog.maximum(), 4);
    dialog.setMinimum(90);
    QCOMPARE(dialog.minimum(), 90);
    QCOMPARE(dialog.maximum(), 90);
    // A value outside is not the bar's, but the percentage says where the end is.
    dialog.setRange(0, 10);
    dialog.setValue(5);
    dialog.setValue(11);
    QCOMPARE(dialog.value(), 5);
    QCOMPARE(dialog.percent()->text(), QStringLiteral("100%"));
}

void tst_FramelessProcessDialog::extremeValues_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    const int numbers[] = {IntMin, IntMin + 1, -1, 0, 1, IntMax - 1, IntMax};
    for (const int minimum : numbers) {
        for (const int maximum : numbers) {
            QTest::addRow("%d to %d", minimum, maximum) << minimum << maximum;
        }
    }
}

void tst_FramelessProcessDialog::extremeValues()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    Dialog dialog(QString(), QString(), minimum, maximum);
    QCOMPARE(dialog.maximum(), qMax(minimum, maximum));
    for (const int duration : {IntMax, IntMin}) {
        dialog.reset();
        dialog.setMinimumDuration(duration);
        QElapsedTimer timer;
        timer.start();
        QTRY_VERIFY(timer.elapsed() > 60); // from here on there is an estimate
        for (const int value : {IntMin, IntMin + 1, -1, 0, 1, IntMax - 1, IntMax}) {
            dialog.setValue(value);
            const QString text = dialog.percent()->text();
            const int percent = text.leftRef(text.size() - 1).toInt();
            QVERIFY2(text.endsWith('%') && percent >= 0 && percent <= 100, qPrintable(text));
        }
        dialog.setRange(maximum, minimum);
        dialog.setRange(minimum, maximum);
    }
}

void tst_FramelessProcessDialog::sameValueIsIgnored()
{
    Dialog dialog;
    showByProgress(&dialog, 40);
    dialog.percent()->setText(QStringLiteral("host"));
    dialog.setValue(40);
    QCOMPARE(dialog.percent()->text(), QStringLiteral("host"));
    dialog.setValue(41);
    QCOMPARE(dialog.percent()->text(), QStringLiteral("41%"));
    dialog.percent()->setText(QStringLiteral("host"));
    dialog.setRange(0, 1000);
    dialog.setValue(413);
    QCOMPARE(dialog.percent()->text(), QStringLiteral("41%"));
}

void tst_FramelessProcessDialog::appearsAfterDuration()
{
    Dialog dialog;
    dialog.setValue(0);
    dialog.setMinimumDuration(150);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(dialog.timer()->isActive());
    QVERIFY(dialog.isHidden());
    QTRY_VERIFY(dialog.isVisible());
    QVERIFY2(timer.elapsed() >= 140, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!dialog.timer()->isActive());
}

void tst_FramelessProcessDialog::negativeDuration()
{
    Dialog dialog;
    dialog.setMinimumDuration(-5);
    QCOMPARE(dialog.minimumDuration(), -5);
    dialog.setValue(0);
    dialog.setMinimumDuration(-6);
    QTRY_VERIFY(dialog.isVisible());
}

void tst_FramelessProcessDialog::estimate_data()
{
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("wait");
    QTest::addColumn<bool>("shown");
    // With a minimum duration of a minute.
    QTest::newRow("too early") << 1000000 << 1 << 0 << false;
    QTest::newRow("long") << 1000000 << 1 << 60 << true;
    QTest::newRow("short") << 1000 << 900 << 60 << false;
    QTest::newRow("long, whole steps") << IntMax << 2 << 60 << true;
    QTest::newRow("short, whole steps") << IntMax << IntMax - 1 << 60 << false;
}

void tst_FramelessProcessDialog::estimate()
{
    QFETCH(int, maximum);
    QFETCH(int, value);
    QFETCH(int, wait);
    Dialog dialog(QString(), QString(), 0, maximum);
    dialog.setMinimumDuration(60000);
    QElapsedTimer timer;
    dialog.setValue(0);
    timer.start();
    QTRY_VERIFY(timer.elapsed() >= wait);
    dialog.setValue(value);
    if (wait == 0 && timer.elapsed() > 50) {
        QSKIP("The machine was too slow for a test of the first 50 ms.");
    }
    QTEST(dialog.isVisible(), "shown");
}

void tst_FramelessProcessDialog::forceShow()
{
    Dialog dialog;
    dialog.forceShow();
    QVERIFY(dialog.isVisible());
    QVERIFY(!dialog.timer()->isActive());
    dialog.hide();
    dialog.forceShow(); // once only
    QVERIFY(dialog.isHidden());
    dialog.cancel();
    dialog.setValue(0);
    QVERIFY(dialog.timer()->isActive());
    dialog.forceShow();
    QVERIFY(dialog.isHidden());
    QVERIFY(!dialog.timer()->isActive());
    dialog.reset();
    dialog.forceShow();
    QVERIFY(dialog.isVisible());
}

void tst_FramelessProcessDialog::showingStopsTheTimer()
{
    Dialog dialog(QStringLiteral("A label of some length"), QStringLiteral("Stop"), 0, 9);
    dialog.resize(10, 10);
    dialog.show();
    QVERIFY(!dialog.timer()->isActive());
    QCOMPARE(dialog.size(), dialog.sizeHint());
}

void tst_FramelessProcessDialog::cancel()
{
    Dialog dialog;
    dialog.setAutoClose(false);
    showByProgress(&dialog);
    QSignalSpy canceled(&dialog, &FramelessProcessDialog::canceled);
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::mouseClick(dialog.button(), Qt::LeftButton);
    QCOMPARE(canceled.count(), 1);
    QVERIFY(dialog.wasCanceled());
    QVERIFY(dialog.isHidden());
    QCOMPARE(dialog.percent()->text(), QStringLiteral("0%"));
    QVERIFY(!dialog.timer()->isActive());
    dialog.setValue(50); // does not come back of itself
    QVERIFY(dialog.wasCanceled());
    dialog.reset();
    QVERIFY(!dialog.wasCanceled());
    dialog.cancel();
    QCOMPARE(canceled.count(), 1);
    QVERIFY(dialog.wasCanceled());
}

void tst_FramelessProcessDialog::resetKeepsVisibleWithoutAutoClose()
{
    Dialog dialog;
    dialog.setAutoClose(false);
    showByProgress(&dialog);
    dialog.reset();
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.value(), -1);
    QCOMPARE(dialog.percent()->text(), QStringLiteral("0%"));
}

void tst_FramelessProcessDialog::openConnectsUntilReset()
{
    Dialog dialog;
    QTimer receiver; // its start() is a slot that can be seen
    receiver.setInterval(100000);
    dialog.open(&receiver, SLOT(start()));
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.isModal());
    QTest::mouseClick(dialog.button(), Qt::LeftButton);
    QVERIFY(receiver.isActive());
    QVERIFY(dialog.isHidden());
    receiver.stop();
    QCoreApplication::processEvents();
    Q_EMIT dialog.canceled();
    QVERIFY(!receiver.isActive());

    dialog.open(&receiver, SLOT(start()));
    dialog.reset();
    Q_EMIT dialog.canceled(); // not yet disconnected
    QVERIFY(receiver.isActive());
    QCoreApplication::processEvents();
    receiver.stop();
    Q_EMIT dialog.canceled();
    QVERIFY(!receiver.isActive());
}

void tst_FramelessProcessDialog::openWithoutReceiver()
{
    Dialog dialog;
    QObject receiver;
    dialog.open(nullptr, SLOT(deleteLater()));
    QVERIFY(dialog.isVisible());
    dialog.reset();
    dialog.open(&receiver, nullptr);
    QVERIFY(dialog.isVisible());
    dialog.reset();
    QCoreApplication::processEvents();
}

void tst_FramelessProcessDialog::receiverGoes()
{
    Dialog dialog;
    {
        QTimer receiver;
        dialog.open(&receiver, SLOT(start()));
    }
    dialog.cancel();
    QCoreApplication::processEvents();
    QVERIFY(dialog.wasCanceled());
}

void tst_FramelessProcessDialog::titleIsDrawnInside()
{
    Dialog dialog;
    dialog.setWindowTitle(QStringLiteral("Export"));
    QCOMPARE(dialog.title()->text(), QStringLiteral("Export"));
    QCOMPARE(dialog.windowTitle(), QString());
}

void tst_FramelessProcessDialog::languageChange()
{
    Dialog dialog;
    Dialog named(QString(), QStringLiteral("Stop"), 0, 1);
    Dialog renamed;
    renamed.setCancelButtonText(QStringLiteral("Stop"));
    Dialog without;
    without.setCancelButton(nullptr);
    // High enough for all parts to have their full heights.
    dialog.show();
    dialog.resize(300, 300);
    AnyTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    for (Dialog *each : {&dialog, &named, &renamed, &without}) {
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(each, &event);
    }
    QCOMPARE(dialog.button()->text(), QStringLiteral("Aufhoeren sofort"));
    QCOMPARE(dialog.button()->size(), dialog.button()->sizeHint());
    QCOMPARE(named.button()->text(), QStringLiteral("Stop"));
    QCOMPARE(renamed.button()->text(), QStringLiteral("Stop"));
    QVERIFY(!without.button());
    QCoreApplication::removeTranslator(&translator);
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&dialog, &event);
    QCOMPARE(dialog.button()->text(), QStringLiteral("Cancel"));
}

void tst_FramelessProcessDialog::otherKeysReachTheDialog()
{
    Dialog dialog(QString(), QStringLiteral("&Stop"), 0, 100);
    auto *accepting = new QPushButton(QStringLiteral("Go on"), &dialog);
    accepting->setDefault(true);
    QSignalSpy clicked(accepting, &QPushButton::clicked);
    QSignalSpy canceled(&dialog, &FramelessProcessDialog::canceled);
    showByProgress(&dialog);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(&dialog, Qt::Key_Return);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(canceled.count(), 0);
    // The button takes no focus, but its caption gives it a key.
    QTest::keyClick(dialog.windowHandle(), Qt::Key_S, Qt::AltModifier);
    QTRY_COMPARE(canceled.count(), 1);
}

void tst_FramelessProcessDialog::border()
{
    Dialog dialog;
    QPalette palette = dialog.palette();
    palette.setColor(QPalette::Window, Qt::black);
    dialog.setPalette(palette);
    dialog.resize(300, 150);
    const QImage image = dialog.grab().toImage();
    // A line on the edge of a pixel is half in each of its two: only one of them is inside.
    const QColor edge = image.pixelColor(0, 75);
    QVERIFY2(edge.red() > 40 && edge.red() < 80, qPrintable(edge.name()));
    QCOMPARE(image.pixelColor(150, 0), edge);
    QCOMPARE(image.pixelColor(1, 75), image.pixelColor(150, 1));
    QVERIFY(image.pixelColor(2, 75).red() < 10);
    QVERIFY(image.pixelColor(297, 75).red() < 10);
}

void tst_FramelessProcessDialog::repaints()
{
    Dialog dialog(QString(), QString(), 0, 1000000);
    showByProgress(&dialog, 100);
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCoreApplication::processEvents();
    EventCounter barPaints(dialog.bar(), QEvent::Paint);
    EventCounter labelPaints(dialog.percent(), QEvent::Paint);
    dialog.setValue(101);
    QCoreApplication::processEvents();
    QCOMPARE(barPaints.count, 0); // the picture is the same
    QCOMPARE(labelPaints.count, 0);
    dialog.setValue(500000);
    QCOMPARE(barPaints.count, 1); // at once, not with the next events
    QTRY_COMPARE(labelPaints.count, 1);

    auto *bar = new QProgressBar;
    bar->setRange(0, 1000000);
    dialog.setBar(bar);
    QCoreApplication::processEvents();
    dialog.setValue(600000);
    EventCounter hostPaints(bar, QEvent::Paint);
    dialog.setValue(600001);
    QCOMPARE(hostPaints.count, 1); // nobody knows what it draws
}

LMTEST_MAIN(tst_FramelessProcessDialog)

#include "tst_framelessprocessdialog.moc"
