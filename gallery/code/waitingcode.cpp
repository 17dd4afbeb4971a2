#include "hostcode.h"

#include <lmwidgets/framelesswaitingdialog.h>

#include <QScopedPointer>
#include <QThread>
#include <QWidget>

void gallery::code::waiting(QWidget *window)
{
    // [host]
    auto *box = LM::Widgets::FramelessWaitingDialog::instance(window);
    const QScopedPointer<QThread> worker(QThread::create([box] {
        Q_EMIT box->signalStartWaittingDialog("Reading tiles...");
        QThread::msleep(10); // the work
        Q_EMIT box->signalStopWaittingDialog();
    }));
    worker->start();
    worker->wait(); // a host waits for finished() in place of that
    // [end]
}
