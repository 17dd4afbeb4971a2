#include "waiting.h"

#include "endurance.h"

#include <lmwidgets/framelesswaitingdialog.h>

#include <QCoreApplication>
#include <QSharedPointer>
#include <QThread>
#include <QtTest>
#include <QVector>

using LM::Widgets::FramelessWaitingDialog;

namespace {

constexpr int WorkerCount = 3;
constexpr int RoundLimit = 30000; // ms

/** What a worker of a host does. The first one to come makes the dialog. */
void work(int number)
{
    FramelessWaitingDialog *box = FramelessWaitingDialog::instance();
    Q_EMIT box->signalStartWaittingDialog(QStringLiteral("Reading tile %1").arg(number));
    QThread::yieldCurrentThread();
    Q_EMIT box->signalStopWaittingDialog();
}

void runRound(int round)
{
    QVector<QSharedPointer<QThread>> workers;
    for (int i = 0; i < WorkerCount; ++i) {
        workers.append(QSharedPointer<QThread>(
            QThread::create([round, i] { work(round * WorkerCount + i); })));
        workers.last()->start();
    }
    const auto ended = [&workers] {
        for (const auto &worker : workers) {
            if (!worker->isFinished()) {
                return false;
            }
        }
        return true;
    };
    if (!QTest::qWaitFor(ended, RoundLimit)) {
        qFatal("the workers of the waiting dialog do not end");
    }
    for (const auto &worker : workers) {
        worker->wait();
    }
    FramelessWaitingDialog *box = FramelessWaitingDialog::instance();
    if (!QTest::qWaitFor([box] { return !box->isVisible(); }, RoundLimit)) {
        qWarning("the waiting dialog stays open");
    }
    if (round % 2 == 0) {
        delete box;
    }
}

} // namespace

bool stressWaiting(int rounds)
{
    return endure(QStringLiteral("FramelessWaitingDialog and %1 threads").arg(WorkerCount),
                  {rounds, 0}, Allowance(), runRound);
}
