#include "lmtest.h"

#include <lmwidgets/framelesswaitingdialog.h>

#include <QEventLoop>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QMovie>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyle>
#include <QThread>
#include <QVBoxLayout>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

using LM::Widgets::FramelessWaitingDialog;

namespace {

const char StopStyle[] =
    "QPushButton{background-color:transparent;font-size:14px;height:30px;width:80px;border: 1px "
    "solid #585858;border-radius: 2px;color:#F2F2F2;}\nQPushButton:hover{background-color:rgb(27, "
    "24, 28);}\nQPushButton:pressed{background-color:rgb(27, 24, 28);}";

QLabel *movieLabel(const FramelessWaitingDialog &dialog)
{
    for (QLabel *label : dialog.findChildren<QLabel *>()) {
        if (label->movie()) {
            return label;
        }
    }
    return nullptr;
}

QLabel *textLabel(const FramelessWaitingDialog &dialog)
{
    for (QLabel *label : dialog.findChildren<QLabel *>()) {
        if (!label->movie()) {
            return label;
        }
    }
    return nullptr;
}

QMovie *movie(const FramelessWaitingDialog &dialog)
{
    return movieLabel(dialog)->movie();
}

QPushButton *stopButton(const FramelessWaitingDialog &dialog)
{
    return dialog.findChild<QPushButton *>();
}

/** Counts what reaches a widget. */
class EventCounter : public QObject
{
public:
    EventCounter(QObject *watched, QEvent::Type type) : m_type(type)
    {
        watched->installEventFilter(this);
    }
    int count = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        Q_UNUSED(watched)
        count += event->type() == m_type ? 1 : 0;
        return false;
    }

private:
    QEvent::Type m_type;
};

/** A worker. Unlike QThread its end is something that the thread sanitizer understands. */
class Worker
{
public:
    explicit Worker(const std::function<void()> &work)
        : m_thread([this, work] {
              work();
              m_finished = true;
          })
    {
    }
    ~Worker() { wait(); }

    bool isFinished() const { return m_finished; }
    void wait()
    {
        if (m_thread.joinable()) {
            m_thread.join();
        }
    }

private:
    std::atomic<bool> m_finished{false};
    std::thread m_thread;
};

using Workers = std::vector<std::unique_ptr<Worker>>;

void startThread(Workers &threads, const std::function<void()> &work)
{
    threads.push_back(std::make_unique<Worker>(work));
}

/** Waits until all have ended, with the event loop running meanwhile. */
bool joinAll(const Workers &threads)
{
    for (const auto &thread : threads) {
        if (!QTest::qWaitFor([&thread] { return thread->isFinished(); }, 120000)) {
            return false;
        }
        thread->wait();
    }
    return true;
}

/** Delivers what worker threads have queued for @p dialog. */
void deliver(FramelessWaitingDialog *dialog)
{
    QCoreApplication::sendPostedEvents(dialog, QEvent::MetaCall);
}

} // namespace

class tst_FramelessWaitingDialog : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void startTwice();
    void stopButtonMakesItTaller_data();
    void stopButtonMakesItTaller();
    void escapeLeavesItShown();
    void instanceKeepsItsFirstParent();

    void metaObject();
    void freshDialog();
    void layouts();
    void startWaiting();
    void heightRule_data();
    void heightRule();
    void heightOfAShownDialogFollows();
    void displayLeavesTheHeight();
    void startMovesTheParentToTheBack();
    void stopWaiting();
    void stopTwice();
    void startAfterStop();
    void cancelFlag();
    void cancelByKeyboard();
    void keysAreDropped_data();
    void keysAreDropped();
    void signalsOfTheSameThread();
    void framesByHand();
    void frameIsShownAtOnce();
    void missingAnimation();
    void extremeTexts_data();
    void extremeTexts();

    void instanceArguments();
    void instanceParentDestroyedWhileWaiting();
    void instanceDestroyedByTheHost();
    void instanceMadeByAWorker();
    void manyWorkersAskForTheInstance();

    void worker();
    void storm_data();
    void storm();
    void destroyedWithCallsPending();
    void slotDeletesTheDialog_data();
    void slotDeletesTheDialog();
    void filterDeletesTheDialogWhileItHides();
};

void tst_FramelessWaitingDialog::cleanup()
{
    delete FramelessWaitingDialog::instance();
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_FramelessWaitingDialog::startTwice()
{
    FramelessWaitingDialog dialog;
    dialog.startWaiting(QStringLiteral("a"));
    QVERIFY(dialog.isVisible());
    for (int i = 0; i < 3; ++i) {
        dialog.jumpToNextFrame();
    }
    const int frame = movie(dialog)->currentFrameNumber();
    QVERIFY(frame >= 2);
    const QSignalSpy started(movie(dialog), &QMovie::started);
    const EventCounter shows(&dialog, QEvent::Show);
    const int height = dialog.height();

    dialog.startWaiting(QStringLiteral("a"));
    QVERIFY(dialog.isVisible());
    QCOMPARE(shows.count, 0);
    QCOMPARE(started.count(), 0);
    QCOMPARE(movie(dialog)->currentFrameNumber(), frame);
    QCOMPARE(dialog.height(), height);
}

void tst_FramelessWaitingDialog::stopButtonMakesItTaller_data()
{
    QTest::addColumn<bool>("shownBetween");
    QTest::newRow("hidden before the second start") << false;
    QTest::newRow("shown all the time") << true;
}

void tst_FramelessWaitingDialog::stopButtonMakesItTaller()
{
    QFETCH(bool, shownBetween);
    FramelessWaitingDialog dialog;
    dialog.startWaiting(QStringLiteral("Reading"));
    const int height = dialog.height();
    if (!shownBetween) {
        dialog.stopWaiting();
    }
    dialog.showCancelButton();
    QCOMPARE(dialog.height(), height);
    dialog.startWaiting(QStringLiteral("Reading"));
    QCOMPARE(dialog.height(), height + 40);
    QVERIFY(stopButton(dialog)->isVisible());
    // The button is inside.
    QCoreApplication::processEvents();
    QVERIFY(dialog.rect().contains(stopButton(dialog)->geometry()));
    QVERIFY(stopButton(dialog)->geometry().top() > textLabel(dialog)->geometry().bottom());

    dialog.stopWaiting();
    dialog.startWaiting(QStringLiteral("Reading"));
    QCOMPARE(dialog.height(), height);
}

void tst_FramelessWaitingDialog::escapeLeavesItShown()
{
    FramelessWaitingDialog dialog;
    const QSignalSpy finished(&dialog, &QDialog::finished);
    for (const bool withButton : {false, true}) {
        if (withButton) {
            dialog.showCancelButton();
        }
        dialog.startWaiting(QStringLiteral("a"));
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QTest::keyClick(stopButton(dialog), Qt::Key_Escape);
        QVERIFY(dialog.isVisible());
    }
    QCOMPARE(finished.count(), 0);
    QVERIFY(!dialog.isCancelButtonClicked());
}

void tst_FramelessWaitingDialog::instanceKeepsItsFirstParent()
{
    QWidget first;
    QWidget second;
    FramelessWaitingDialog *dialog = FramelessWaitingDialog::instance(&first);
    QCOMPARE(FramelessWaitingDialog::instance(&second), dialog);
    QCOMPARE(dialog->parentWidget(), &first);
    dialog->startWaiting(QStringLiteral("a"));
    QCOMPARE(dialog->parentWidget(), &first);
    dialog->stopWaiting();
    QVERIFY(!dialog->parentWidget());
    dialog->startWaiting(QStringLiteral("b"));
    QVERIFY(!dialog->parentWidget());
    QCOMPARE(FramelessWaitingDialog::instance(&second), dialog);
}

void tst_FramelessWaitingDialog::metaObject()
{
    QCOMPARE(lmtest::ownMethods(FramelessWaitingDialog::staticMetaObject),
             (QStringList{QStringLiteral("signal signalStartWaittingDialog(QString text)"),
                          QStringLiteral("signal signalStopWaittingDialog()"),
                          QStringLiteral("signal signalCancelButtonClicked()")}));
    QCOMPARE(FramelessWaitingDialog::staticMetaObject.superClass(), &QDialog::staticMetaObject);
}

void tst_FramelessWaitingDialog::freshDialog()
{
    const FramelessWaitingDialog dialog;
    QVERIFY(dialog.isHidden());
    QCOMPARE(dialog.minimumSize(), QSize(228, 184));
    QCOMPARE(dialog.maximumSize(), QSize(228, 184));
    QCOMPARE(dialog.styleSheet(), QStringLiteral("QWidget{background-color:#2B2B2B;border:1px "
                                                 "solid #585858;border-radius:2px;}"));

    QCOMPARE(movie(dialog)->fileName(), lmtest::themeDir() + "/qssimage/waiting.gif");
    QVERIFY(!movie(dialog)->parent());
    QCOMPARE(movie(dialog)->speed(), 120);
    QCOMPARE(movie(dialog)->scaledSize(), QSize(102, 102));
    QCOMPARE(movie(dialog)->state(), QMovie::Running);
    QCOMPARE(movieLabel(dialog)->minimumSize(), QSize(102, 102));
    QCOMPARE(movieLabel(dialog)->maximumSize(), QSize(102, 102));
    QCOMPARE(movieLabel(dialog)->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(movieLabel(dialog)->styleSheet(), QStringLiteral("QLabel{border: 0px;}"));

    QCOMPARE(textLabel(dialog)->text(), QStringLiteral("loading..."));
    QVERIFY(textLabel(dialog)->wordWrap());
    QCOMPARE(textLabel(dialog)->alignment(), Qt::AlignHCenter | Qt::AlignTop);
    QCOMPARE(textLabel(dialog)->styleSheet(),
             QStringLiteral("QLabel{color: #F2F2F2;border: 0px;font-size: 16px;}"));

    QCOMPARE(stopButton(dialog)->text(), QStringLiteral("stop"));
    QCOMPARE(stopButton(dialog)->minimumSize(), QSize(100, 32));
    QCOMPARE(stopButton(dialog)->maximumSize(), QSize(100, 32));
    QCOMPARE(stopButton(dialog)->styleSheet(), QString::fromLatin1(StopStyle));
    QVERIFY(stopButton(dialog)->isHidden());
}

void tst_FramelessWaitingDialog::layouts()
{
    const FramelessWaitingDialog dialog;
    auto *main = qobject_cast<QVBoxLayout *>(dialog.layout());
    QVERIFY(main);
    QCOMPARE(main->contentsMargins(), QMargins());
    QCOMPARE(main->count(), 3);
    auto *movieRow = qobject_cast<QHBoxLayout *>(main->itemAt(0)->layout());
    QVERIFY(movieRow);
    QCOMPARE(movieRow->contentsMargins(), QMargins(62, 20, 62, 0));
    QCOMPARE(movieRow->itemAt(0)->widget(), movieLabel(dialog));
    auto *message = qobject_cast<QVBoxLayout *>(main->itemAt(1)->layout());
    QVERIFY(message);
    QCOMPARE(message->contentsMargins(), QMargins(16, 0, 16, 4));
    QCOMPARE(message->itemAt(0)->widget(), textLabel(dialog));
    auto *buttonRow = qobject_cast<QHBoxLayout *>(message->itemAt(1)->layout());
    QVERIFY(buttonRow);
    QCOMPARE(buttonRow->contentsMargins(), QMargins(16, 0, 16, 8));
    QCOMPARE(buttonRow->count(), 3);
    QVERIFY(buttonRow->itemAt(0)->spacerItem());
    QCOMPARE(buttonRow->itemAt(1)->widget(), stopButton(dialog));
    QVERIFY(buttonRow->itemAt(2)->spacerItem());
    QVERIFY(main->itemAt(2)->spacerItem());
}

void tst_FramelessWaitingDialog::startWaiting()
{
    FramelessWaitingDialog dialog;
    dialog.startWaiting(QStringLiteral("Reading tiles"));
    QVERIFY(dialog.isVisible());
    QCOMPARE(textLabel(dialog)->text(), QStringLiteral("Reading tiles"));
    QCOMPARE(dialog.windowFlags(), Qt::Dialog | Qt::FramelessWindowHint);
    QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
    QVERIFY(dialog.testAttribute(Qt::WA_ShowModal));
    QCOMPARE(QApplication::activeModalWidget(), &dialog);
    QCOMPARE(movie(dialog)->state(), QMovie::Running);
    QTRY_COMPARE(QApplication::activeWindow(), &dialog);
}

void tst_FramelessWaitingDialog::heightRule_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("withButton");
    for (const bool withButton : {false, true}) {
        const QByteArray suffix(withButton ? ", stop button" : "");
        QTest::newRow("one line" + suffix) << QStringLiteral("Reading") << withButton;
        QTest::newRow("lines" + suffix)
            << QStringLiteral("Reading the points of 14 tiles from the disk") << withButton;
        QTest::newRow("many lines" + suffix)
            << QStringLiteral("Reading the points of all tiles. ").repeated(12) << withButton;
    }
}

void tst_FramelessWaitingDialog::heightRule()
{
    QFETCH(QString, text);
    QFETCH(bool, withButton);
    FramelessWaitingDialog dialog;
    for (int round = 0; round < 3; ++round) {
        if (withButton) {
            dialog.showCancelButton();
        }
        dialog.startWaiting(text);
        QCoreApplication::processEvents();
        const QLabel *label = textLabel(dialog);
        QCOMPARE(dialog.height(), label->height() + 150 + (withButton ? 40 : 0));
        QCOMPARE(dialog.width(), 228);
        // All of the message is to be seen.
        QCOMPARE(label->height(), label->heightForWidth(label->width()));
        QCOMPARE(label->width(), 228 - 2 * 16);
        if (round == 1) {
            dialog.stopWaiting();
        }
    }
}

void tst_FramelessWaitingDialog::heightOfAShownDialogFollows()
{
    FramelessWaitingDialog dialog;
    dialog.startWaiting(QStringLiteral("a"));
    const int low = dialog.height();
    dialog.startWaiting(QStringLiteral("a\nb\nc"));
    QVERIFY(dialog.height() > low);
    dialog.startWaiting(QStringLiteral("a"));
    QCOMPARE(dialog.height(), low);
}

void tst_FramelessWaitingDialog::displayLeavesTheHeight()
{
    FramelessWaitingDialog dialog;
    dialog.setWaitdialogDisplay(QStringLiteral("before"));
    QCOMPARE(textLabel(dialog)->text(), QStringLiteral("before"));
    QVERIFY(dialog.isHidden());
    dialog.startWaiting(QStringLiteral("a"));
    const int height = dialog.height();
    dialog.setWaitdialogDisplay(QStringLiteral("a\nb\nc\nd\ne"));
    QCoreApplication::processEvents();
    QCOMPARE(dialog.height(), height);
    QCOMPARE(textLabel(dialog)->text(), QStringLiteral("a\nb\nc\nd\ne"));
}

void tst_FramelessWaitingDialog::startMovesTheParentToTheBack()
{
    QWidget window;
    window.resize(400, 300);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    FramelessWaitingDialog dialog(&window);
    dialog.startWaiting(QStringLiteral("a"));
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    dialog.stopWaiting();
    QVERIFY(window.isVisible());
    QTRY_COMPARE(QApplication::activeWindow(), &window);
}

void tst_FramelessWaitingDialog::stopWaiting()
{
    QWidget window;
    auto *dialog = new FramelessWaitingDialog(&window);
    const std::unique_ptr<FramelessWaitingDialog> owner(dialog);
    dialog->showCancelButton();
    dialog->startWaiting(QStringLiteral("a"));
    QTest::mouseClick(stopButton(*dialog), Qt::LeftButton);
    QVERIFY(dialog->isCancelButtonClicked());
    dialog->stopWaiting();
    QVERIFY(dialog->isHidden());
    QVERIFY(!dialog->parent());
    QVERIFY(stopButton(*dialog)->isHidden());
    QVERIFY(!dialog->isCancelButtonClicked());
    QCOMPARE(movie(*dialog)->state(), QMovie::NotRunning);
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_FramelessWaitingDialog::stopTwice()
{
    FramelessWaitingDialog dialog;
    dialog.stopWaiting();
    QVERIFY(dialog.isHidden());
    dialog.stopWaiting();
    dialog.startWaiting(QStringLiteral("a"));
    dialog.stopWaiting();
    dialog.stopWaiting();
    QVERIFY(dialog.isHidden());
    QCOMPARE(movie(dialog)->state(), QMovie::NotRunning);
}

void tst_FramelessWaitingDialog::startAfterStop()
{
    QWidget window;
    FramelessWaitingDialog dialog(&window, Qt::Tool);
    dialog.startWaiting(QStringLiteral("a"));
    dialog.stopWaiting();
    dialog.startWaiting(QStringLiteral("b"));
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.windowFlags(), Qt::Dialog | Qt::FramelessWindowHint);
    QCOMPARE(QApplication::activeModalWidget(), &dialog);
    QCOMPARE(movie(dialog)->state(), QMovie::Running);
}

void tst_FramelessWaitingDialog::cancelFlag()
{
    FramelessWaitingDialog dialog;
    const QSignalSpy spy(&dialog, &FramelessWaitingDialog::signalCancelButtonClicked);
    QVERIFY(!dialog.isCancelButtonClicked());
    dialog.showCancelButton();
    dialog.startWaiting(QStringLiteral("a"));
    bool inSlot = false;
    connect(&dialog, &FramelessWaitingDialog::signalCancelButtonClicked, &dialog,
            [&] { inSlot = dialog.isCancelButtonClicked(); });
    QTest::mouseClick(stopButton(dialog), Qt::LeftButton);
    QVERIFY(inSlot);
    QVERIFY(dialog.isCancelButtonClicked());
    QVERIFY(dialog.isVisible());
    QCOMPARE(spy.count(), 1);
    dialog.startWaiting(QStringLiteral("b"));
    QVERIFY(dialog.isCancelButtonClicked());
    QTest::mouseClick(stopButton(dialog), Qt::LeftButton);
    QCOMPARE(spy.count(), 2);
    dialog.showCancelButton();
    QVERIFY(!dialog.isCancelButtonClicked());
    QCOMPARE(spy.count(), 2);
}

void tst_FramelessWaitingDialog::cancelByKeyboard()
{
    FramelessWaitingDialog dialog;
    const QSignalSpy spy(&dialog, &FramelessWaitingDialog::signalCancelButtonClicked);
    dialog.showCancelButton();
    dialog.startWaiting(QStringLiteral("a"));
    QTest::keyClick(stopButton(dialog), Qt::Key_Space);
    QCOMPARE(spy.count(), 1);
    QVERIFY(dialog.isCancelButtonClicked());
}

void tst_FramelessWaitingDialog::keysAreDropped_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifier");
    QTest::newRow("Escape") << Qt::Key_Escape << Qt::KeyboardModifiers();
    QTest::newRow("Enter") << Qt::Key_Enter << Qt::KeyboardModifiers();
    QTest::newRow("Return") << Qt::Key_Return << Qt::KeyboardModifiers();
    QTest::newRow("letter") << Qt::Key_A << Qt::KeyboardModifiers();
    QTest::newRow("Control+W") << Qt::Key_W << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("Command+.") << Qt::Key_Period << Qt::KeyboardModifiers(Qt::ControlModifier);
}

void tst_FramelessWaitingDialog::keysAreDropped()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifier);
    QWidget parent;
    const EventCounter keys(&parent, QEvent::KeyPress);
    FramelessWaitingDialog dialog(&parent);
    const QSignalSpy canceled(&dialog, &FramelessWaitingDialog::signalCancelButtonClicked);
    dialog.showCancelButton();
    dialog.startWaiting(QStringLiteral("a"));
    QTest::keyClick(&dialog, key, modifier);
    QVERIFY(dialog.isVisible());
    // Not even the stop button, which QDialog would take for the default one.
    QCOMPARE(canceled.count(), 0);
    QCOMPARE(keys.count, 0);
}

void tst_FramelessWaitingDialog::signalsOfTheSameThread()
{
    FramelessWaitingDialog dialog;
    Q_EMIT dialog.signalStartWaittingDialog(QStringLiteral("direct"));
    QVERIFY(dialog.isVisible());
    QCOMPARE(textLabel(dialog)->text(), QStringLiteral("direct"));
    Q_EMIT dialog.signalStopWaittingDialog();
    QVERIFY(dialog.isHidden());
}

void tst_FramelessWaitingDialog::framesByHand()
{
    FramelessWaitingDialog dialog;
    QMovie *animation = movie(dialog);
    const int frames = animation->frameCount();
    QVERIFY(frames > 2);
    dialog.startWaiting(QStringLiteral("a"));
    animation->stop();
    QVERIFY(animation->jumpToFrame(0));
    for (int frame = 1; frame < frames; ++frame) {
        dialog.jumpToNextFrame();
        QCOMPARE(animation->currentFrameNumber(), frame);
    }
    dialog.jumpToNextFrame();
    QCOMPARE(animation->currentFrameNumber(), 0);
    dialog.jumpToNextFrame();
    QCOMPARE(animation->currentFrameNumber(), 1);
}

void tst_FramelessWaitingDialog::frameIsShownAtOnce()
{
    FramelessWaitingDialog dialog;
    dialog.startWaiting(QStringLiteral("a"));
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    movie(dialog)->setPaused(true);
    const EventCounter paints(movieLabel(dialog), QEvent::Paint);
    dialog.jumpToNextFrame();
    QVERIFY(paints.count > 0);
}

void tst_FramelessWaitingDialog::missingAnimation()
{
    const QString path = lmtest::themeDir() + QStringLiteral("/qssimage/waiting.gif");
    FramelessWaitingDialog dialog;
    // As it is when there was no file from the start.
    movie(dialog)->stop();
    movie(dialog)->setFileName(path + QStringLiteral(".missing"));
    QVERIFY(!movie(dialog)->isValid());
    dialog.showCancelButton();
    dialog.startWaiting(QStringLiteral("a"));
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    for (int i = 0; i < 3; ++i) {
        dialog.jumpToNextFrame();
    }
    QCOMPARE(movieLabel(dialog)->size(), QSize(102, 102));
    QTest::mouseClick(stopButton(dialog), Qt::LeftButton);
    QVERIFY(dialog.isCancelButtonClicked());
    dialog.stopWaiting();
    QVERIFY(dialog.isHidden());
}

void tst_FramelessWaitingDialog::extremeTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("null") << QString();
    QTest::newRow("long word") << QString(5000, QLatin1Char('w'));
    QTest::newRow("many lines") << QStringLiteral("line\n").repeated(5000);
    QTest::newRow("nul character") << QString(QChar(0));
    QTest::newRow("half a surrogate pair") << QString(QChar(0xd800));
    QTest::newRow("markup left open") << QStringLiteral("<b><table><tr>a");
}

void tst_FramelessWaitingDialog::extremeTexts()
{
    QFETCH(QString, text);
    FramelessWaitingDialog dialog;
    dialog.startWaiting(text);
    QVERIFY(dialog.isVisible());
    QCOMPARE(textLabel(dialog)->text(), text);
    QCOMPARE(dialog.width(), 228);
    QVERIFY(dialog.height() >= 150);
    dialog.startWaiting(QStringLiteral("a"));
    QVERIFY(dialog.height() < 200);
}

void tst_FramelessWaitingDialog::instanceArguments()
{
    QWidget window;
    FramelessWaitingDialog *dialog = FramelessWaitingDialog::instance(&window, Qt::Tool);
    QCOMPARE(dialog->parentWidget(), &window);
    QCOMPARE(dialog->windowType(), Qt::Tool);
    QCOMPARE(FramelessWaitingDialog::instance(nullptr, Qt::Window), dialog);
    QCOMPARE(dialog->windowType(), Qt::Tool);
    // Others that the host makes are not the one.
    const FramelessWaitingDialog other;
    QCOMPARE(FramelessWaitingDialog::instance(), dialog);
}

void tst_FramelessWaitingDialog::instanceParentDestroyedWhileWaiting()
{
    auto window = std::make_unique<QWidget>();
    window->show();
    const QPointer<FramelessWaitingDialog> first = FramelessWaitingDialog::instance(window.get());
    first->showCancelButton();
    first->startWaiting(QStringLiteral("a"));
    QTest::mouseClick(stopButton(*first), Qt::LeftButton);
    QCOMPARE(QApplication::activeModalWidget(), first.data());
    window.reset();
    QVERIFY(!first);
    QVERIFY(!QApplication::activeModalWidget());

    FramelessWaitingDialog *second = FramelessWaitingDialog::instance();
    QVERIFY(second);
    QVERIFY(!second->parent());
    QVERIFY(second->isHidden());
    QVERIFY(!second->isCancelButtonClicked());
    second->startWaiting(QStringLiteral("b"));
    QVERIFY(second->isVisible());
}

void tst_FramelessWaitingDialog::instanceDestroyedByTheHost()
{
    const QPointer<FramelessWaitingDialog> first = FramelessWaitingDialog::instance();
    first->startWaiting(QStringLiteral("a"));
    delete first.data();
    FramelessWaitingDialog *second = FramelessWaitingDialog::instance();
    QVERIFY(second);
    QVERIFY(!first);
    QVERIFY(second->isHidden());
}

void tst_FramelessWaitingDialog::instanceMadeByAWorker()
{
    FramelessWaitingDialog *made = nullptr;
    Workers threads;
    startThread(threads, [&made] {
        made = FramelessWaitingDialog::instance();
        Q_EMIT made->signalStartWaittingDialog(QStringLiteral("from below"));
    });
    QVERIFY(joinAll(threads));
    QVERIFY(made);
    QCOMPARE(made->thread(), QCoreApplication::instance()->thread());
    QCOMPARE(FramelessWaitingDialog::instance(), made);
    QTRY_VERIFY(made->isVisible());
    QCOMPARE(textLabel(*made)->text(), QStringLiteral("from below"));
}

void tst_FramelessWaitingDialog::manyWorkersAskForTheInstance()
{
    constexpr int Count = 8;
    FramelessWaitingDialog *made[Count] = {};
    Workers threads;
    for (FramelessWaitingDialog *&one : made) {
        startThread(threads, [&one] { one = FramelessWaitingDialog::instance(); });
    }
    QVERIFY(joinAll(threads));
    for (FramelessWaitingDialog *one : made) {
        QVERIFY(one);
        QCOMPARE(one, made[0]);
    }
}

void tst_FramelessWaitingDialog::worker()
{
    FramelessWaitingDialog dialog;
    dialog.showCancelButton();
    Workers threads;
    startThread(threads,
                [&dialog] { Q_EMIT dialog.signalStartWaittingDialog(QStringLiteral("working")); });
    threads[0]->wait();
    // Nothing happens in the other thread.
    QVERIFY(dialog.isHidden());
    QTRY_VERIFY(dialog.isVisible());
    QCOMPARE(textLabel(dialog)->text(), QStringLiteral("working"));
    startThread(threads, [&dialog] { Q_EMIT dialog.signalStopWaittingDialog(); });
    threads[1]->wait();
    QVERIFY(dialog.isVisible());
    QTRY_VERIFY(dialog.isHidden());
}

void tst_FramelessWaitingDialog::storm_data()
{
    QTest::addColumn<int>("workers");
    QTest::newRow("1") << 1;
    QTest::newRow("4") << 4;
    QTest::newRow("16") << 16;
}

/** Thousands of starts and stops in all, with the GUI thread delivering them meanwhile. */
void tst_FramelessWaitingDialog::storm()
{
    QFETCH(int, workers);
#ifdef Q_OS_WIN
    constexpr int Rounds = 800; // each shows a window of the system's, which takes its time
#else
    constexpr int Rounds = 10000;
#endif
    FramelessWaitingDialog *dialog = FramelessWaitingDialog::instance();
    int starts = 0;
    int stops = 0;
    connect(dialog, &FramelessWaitingDialog::signalStartWaittingDialog, this, [&] { ++starts; });
    connect(dialog, &FramelessWaitingDialog::signalStopWaittingDialog, this, [&] { ++stops; });
    Workers threads;
    for (int worker = 0; worker < workers; ++worker) {
        startThread(threads, [worker, workers] {
            for (int round = 0; round < Rounds / workers; ++round) {
                FramelessWaitingDialog *box = FramelessWaitingDialog::instance();
                Q_EMIT box->signalStartWaittingDialog(
                    QStringLiteral("worker %1, round %2").arg(worker).arg(round));
                Q_EMIT box->signalStopWaittingDialog();
            }
        });
    }
    QVERIFY(joinAll(threads));
    QTRY_COMPARE_WITH_TIMEOUT(starts, Rounds, 120000);
    QTRY_COMPARE_WITH_TIMEOUT(stops, Rounds, 120000);
    // Whatever came last from whom, every worker ended with a stop.
    QVERIFY(dialog->isHidden());
    QCOMPARE(movie(*dialog)->state(), QMovie::NotRunning);
    dialog->disconnect(this);

    startThread(threads, [] {
        Q_EMIT FramelessWaitingDialog::instance()->signalStartWaittingDialog(
            QStringLiteral("after"));
    });
    QTRY_VERIFY(dialog->isVisible());
    QCOMPARE(textLabel(*dialog)->text(), QStringLiteral("after"));
    QVERIFY(joinAll(threads));
}

void tst_FramelessWaitingDialog::destroyedWithCallsPending()
{
    auto *dialog = new FramelessWaitingDialog;
    Workers threads;
    startThread(threads, [dialog] {
        Q_EMIT dialog->signalStartWaittingDialog(QStringLiteral("late"));
        Q_EMIT dialog->signalStopWaittingDialog();
        Q_EMIT dialog->signalStartWaittingDialog(QStringLiteral("too late"));
    });
    threads[0]->wait();
    delete dialog;
    QCoreApplication::sendPostedEvents();
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_FramelessWaitingDialog::slotDeletesTheDialog_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("cancel by mouse") << QStringLiteral("cancel");
    QTest::newRow("cancel by key") << QStringLiteral("key");
    QTest::newRow("start") << QStringLiteral("start");
    QTest::newRow("stop") << QStringLiteral("stop");
    QTest::newRow("start from a worker") << QStringLiteral("worker");
}

void tst_FramelessWaitingDialog::slotDeletesTheDialog()
{
    QFETCH(QString, action);
    const QPointer<FramelessWaitingDialog> dialog = FramelessWaitingDialog::instance();
    dialog->showCancelButton();
    dialog->startWaiting(QStringLiteral("a"));
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    const auto remove = [dialog] { delete dialog.data(); };
    connect(dialog, &FramelessWaitingDialog::signalCancelButtonClicked, this, remove);
    connect(dialog, &FramelessWaitingDialog::signalStartWaittingDialog, this, remove);
    connect(dialog, &FramelessWaitingDialog::signalStopWaittingDialog, this, remove);
    Workers threads;
    if (action == QLatin1String("cancel")) {
        QPushButton *button = stopButton(*dialog);
        QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          button->mapTo(dialog, button->rect().center()));
    } else if (action == QLatin1String("key")) {
        stopButton(*dialog)->setFocus();
        QTest::keyClick(dialog->windowHandle(), Qt::Key_Space);
    } else if (action == QLatin1String("start")) {
        Q_EMIT dialog->signalStartWaittingDialog(QStringLiteral("b"));
    } else if (action == QLatin1String("stop")) {
        Q_EMIT dialog->signalStopWaittingDialog();
    } else {
        startThread(threads, [box = dialog.data()] {
            Q_EMIT box->signalStartWaittingDialog(QStringLiteral("b"));
        });
        threads[0]->wait();
        deliver(dialog);
    }
    QTRY_VERIFY(!dialog);
    QVERIFY(FramelessWaitingDialog::instance());
}

void tst_FramelessWaitingDialog::filterDeletesTheDialogWhileItHides()
{
    class Deleter : public QObject
    {
    protected:
        bool eventFilter(QObject *watched, QEvent *event) override
        {
            if (event->type() == QEvent::Hide) {
                // Qt goes on with the widget after this event, so a host defers the deletion, and
                // a nested loop runs it.
                watched->deleteLater();
            }
            return false;
        }
    } deleter;
    QWidget window;
    const QPointer<FramelessWaitingDialog> dialog = FramelessWaitingDialog::instance(&window);
    dialog->startWaiting(QStringLiteral("a"));
    dialog->installEventFilter(&deleter);
    dialog->stopWaiting();
    QVERIFY(dialog->isHidden());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!dialog);
    QVERIFY(FramelessWaitingDialog::instance());
}

namespace {

/** Runs an application of its own that ends while the dialog is shown. Returns 0 if all is well. */
int runApplication(int &argc, char **argv, bool startWithParent)
{
    QPointer<FramelessWaitingDialog> dialog;
    {
        QApplication application(argc, argv);
        lmtest::prepareApplication();
        QWidget window;
        window.show();
        dialog = FramelessWaitingDialog::instance(startWithParent ? &window : nullptr);
        if (!dialog || dialog->isVisible()) {
            return 1;
        }
        dialog->showCancelButton();
        dialog->startWaiting(QStringLiteral("a"));
        QMetaObject::invokeMethod(&application, &QCoreApplication::quit, Qt::QueuedConnection);
        QApplication::exec();
        if (!dialog || !dialog->isVisible()) {
            return 2;
        }
    }
    // Gone with the application, and there is no new one without.
    return dialog || FramelessWaitingDialog::instance() ? 3 : 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (FramelessWaitingDialog::instance()) {
        qFatal("A dialog without an application");
    }
    for (const bool withParent : {false, true, false}) {
        if (const int failure = runApplication(argc, argv, withParent)) {
            qFatal("Ending the application while waiting failed at step %d", failure);
        }
    }
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    lmtest::prepareApplication();
    tst_FramelessWaitingDialog test;
    const int result = QTest::qExec(&test, argc, argv);
    // The last one goes with this application, shown.
    FramelessWaitingDialog::instance()->startWaiting(QStringLiteral("end"));
    return result;
}

#include "tst_framelesswaitingdialog.moc"
