#include "page.h"
#include "pageparts.h"
#include "signallog.h"

#include <lmwidgets/framelesswaitingdialog.h>

#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMovie>
#include <QPushButton>
#include <QSharedPointer>
#include <QThread>
#include <QVBoxLayout>

#include <atomic>

namespace gallery {

using LM::Widgets::FramelessWaitingDialog;

namespace {

constexpr int StepCount = 40;
constexpr int StepMs = 100;
constexpr int LoopMs = 3000;

/** A piece of work in a thread of its own that drives the box by its signals. */
struct Job
{
    std::atomic<bool> canceled{false};
    QThread *thread = nullptr;

    ~Job()
    {
        canceled = true;
        if (thread) {
            thread->wait();
            delete thread;
        }
    }

    void start(FramelessWaitingDialog *box, const QString &text)
    {
        if (thread && thread->isRunning()) {
            return;
        }
        delete thread;
        canceled = false;
        thread = QThread::create([this, box, text] {
            Q_EMIT box->signalStartWaittingDialog(text);
            for (int step = 0; step < StepCount && !canceled; ++step) {
                QThread::msleep(StepMs);
            }
            Q_EMIT box->signalStopWaittingDialog();
        });
        thread->start();
    }
};

/** The box of the page, and what its switches say. */
struct WaitingBench
{
    // Goes after the job, whose thread uses it. It is its owner's after the first stop.
    QSharedPointer<FramelessWaitingDialog> box = QSharedPointer<FramelessWaitingDialog>::create();
    Job job;
    QString text = QStringLiteral("Reading 14 tiles...");
    bool stopButton = true;

    void prepare()
    {
        if (stopButton) {
            box->showCancelButton();
        }
    }
};

using BenchPointer = QSharedPointer<WaitingBench>;

void runWorker(const BenchPointer &bench)
{
    bench->prepare();
    bench->job.start(bench->box.data(), bench->text);
}

/** Keeps the GUI thread busy, as a host's import does, and moves the animation by hand. */
void runBusyLoop(const BenchPointer &bench, SignalLog &log)
{
    FramelessWaitingDialog *box = bench->box.data();
    box->startWaiting(bench->text);
    // Once, for the box to appear. From here on nothing is painted but what is asked for.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QElapsedTimer timer;
    timer.start();
    int frames = 0;
    while (timer.elapsed() < LoopMs) {
        QThread::msleep(StepMs / 2);
        box->jumpToNextFrame();
        ++frames;
    }
    box->stopWaiting();
    log.note(QStringLiteral("jumpToNextFrame()"), QStringLiteral("called"),
             QStringLiteral("%1 times").arg(frames));
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    const BenchPointer bench(new WaitingBench);
    log.watch(bench->box.data(), QStringLiteral("FramelessWaitingDialog"));
    QObject::connect(bench->box.data(), &FramelessWaitingDialog::signalCancelButtonClicked, content,
                     [bench] { bench->job.canceled = true; });

    QVBoxLayout *layout = contentLayout(content);
    auto *text = new QLineEdit(bench->text);
    text->setMinimumWidth(320);
    QObject::connect(text, &QLineEdit::textChanged, text,
                     [bench](const QString &changed) { bench->text = changed; });
    addSection(layout, QStringLiteral("Message"))
        ->addWidget(row({text, check(QStringLiteral("Stop button"), bench->stopButton,
                                     [bench](bool on) { bench->stopButton = on; })}));
    addSection(layout, QStringLiteral("Driven by a worker"),
               QStringLiteral("A thread works for four seconds. It emits the two signals of the "
                              "box, and ends early after a click on \"stop\"; no key ends it."))
        ->addWidget(
            row({button(QStringLiteral("Start the worker"), [bench] { runWorker(bench); })}));
    addSection(layout, QStringLiteral("Frames by hand"),
               QStringLiteral("The GUI thread is busy for three seconds without handling events; "
                              "jumpToNextFrame() keeps the animation moving."))
        ->addWidget(row({button(QStringLiteral("Run a busy loop"),
                                [bench, &log] { runBusyLoop(bench, log); })}));
    return content;
}

/** The box as it is shown with @p text; its animation stands still at one frame. */
QWidget *openBox(const QString &text, bool stopButton)
{
    auto *box = new FramelessWaitingDialog;
    if (stopButton) {
        box->showCancelButton();
    }
    box->startWaiting(text);
    for (QLabel *label : box->findChildren<QLabel *>()) {
        if (QMovie *movie = label->movie()) {
            movie->stop();
            movie->jumpToFrame(0);
        }
    }
    return box;
}

} // namespace

Page waitingPage()
{
    Page page(QStringLiteral("waiting"), QStringLiteral("Waiting dialog"),
              QStringLiteral("FramelessWaitingDialog tells that the application is busy: an "
                             "animation, a message and, if wanted, a stop button."),
              createContent);
    const QString reading = QStringLiteral("Reading 14 tiles...");
    const QString longText =
        QStringLiteral("Reading the points of 14 tiles from the project folder on the server; this "
                       "can take some minutes over a slow connection.");
    const QString longWords =
        QStringLiteral("Punktwolkenklassifizierungsverfahren werden zusammengestellt");
    return page.shot(QStringLiteral("plain"), [reading] { return openBox(reading, false); })
        .shot(QStringLiteral("stop"), [reading] { return openBox(reading, true); })
        .shot(QStringLiteral("long"), [longText] { return openBox(longText, true); })
        .shot(QStringLiteral("words"), [longWords] { return openBox(longWords, true); });
}

} // namespace gallery
