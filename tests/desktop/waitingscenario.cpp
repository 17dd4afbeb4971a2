#include "waitingscenario.h"

#include "reporter.h"

#include <lmwidgets/framelesshelper.h>
#include <lmwidgets/framelesswaitingdialog.h>
#include <lmwidgets/titlebar.h>
#include <lmwidgets/vantoroframelessdialog.h>

#include <QLineEdit>
#include <QPushButton>
#include <QSemaphore>
#include <QSharedPointer>
#include <QThread>
#include <QToolButton>
#include <QVBoxLayout>

using LM::Widgets::FramelessWaitingDialog;
using LM::Widgets::TitleBar;
using LM::Widgets::VantoroFramelessDialog;

namespace {

constexpr QRect MainGeometry(60, 60, 360, 260);
constexpr QRect DialogGeometry(300, 150, 420, 300);
constexpr QSize DialogMinimum(360, 280);

QLineEdit *addEdit(QLayout *layout, const QString &name)
{
    auto *edit = new QLineEdit;
    edit->setObjectName(name);
    Reporter::follow(edit);
    layout->addWidget(edit);
    return edit;
}

/** Works in a thread until the box is told to stop. */
void startWork(FramelessWaitingDialog *box)
{
    box->showCancelButton();
    const QSharedPointer<QSemaphore> canceled(new QSemaphore);
    QObject *context = new QObject(box);
    QObject::connect(box, &FramelessWaitingDialog::signalCancelButtonClicked, context,
                     [canceled, context] {
                         Reporter::say(QStringLiteral("canceled"));
                         canceled->release();
                         context->deleteLater();
                     });
    QThread *worker = QThread::create([box, canceled] {
        Q_EMIT box->signalStartWaittingDialog(QStringLiteral("Reading 14 tiles..."));
        canceled->acquire();
        Q_EMIT box->signalStopWaittingDialog();
    });
    QObject::connect(worker, &QThread::finished, box, [worker] {
        Reporter::say(QStringLiteral("ended"));
        worker->deleteLater();
    });
    worker->start();
    Reporter::say(QStringLiteral("working"));
}

} // namespace

void runWaiting()
{
    auto *main = new QWidget;
    main->setObjectName(QStringLiteral("main"));
    auto *layout = new QVBoxLayout(main);
    addEdit(layout, QStringLiteral("main-edit"));
    auto *button = new QPushButton(QStringLiteral("Read"));
    button->setObjectName(QStringLiteral("main-button"));
    layout->addWidget(button);
    main->setGeometry(MainGeometry);
    main->show();

    FramelessWaitingDialog *box = FramelessWaitingDialog::instance(main);
    box->setObjectName(QStringLiteral("busy"));
    box->findChild<QPushButton *>()->setObjectName(QStringLiteral("stop"));
    Reporter::follow(box);
    QObject::connect(button, &QPushButton::clicked, box, [box] { startWork(box); });
}

void runSecondFrame()
{
    auto *dialog = new VantoroFramelessDialog;
    dialog->setObjectName(QStringLiteral("dialog"));
    dialog->setWindowTitle(QStringLiteral("Export"));
    auto *layout = new QVBoxLayout;
    addEdit(layout, QStringLiteral("edit"));
    addEdit(layout, QStringLiteral("second"));
    layout->addStretch();
    dialog->setLayout(layout);
    dialog->getFramelessHelper()->setWidgetResizable(true);

    TitleBar *bar = dialog->getTitleBar();
    bar->titleButton(TitleBar::MinButton)->setObjectName(QStringLiteral("minimize"));
    dialog->getWindowTitleMaxButton()->setObjectName(QStringLiteral("maximize"));
    bar->titleButton(TitleBar::RestoreButton)->setObjectName(QStringLiteral("restore"));
    dialog->getWindowTitleCloseButton()->setObjectName(QStringLiteral("close"));
    bar->setTitleButtonVisible(TitleBar::MinButton, true);
    bar->setTitleButtonVisible(TitleBar::RestoreButton, true);
    bar->setMaximized(false);
    QObject::connect(bar, &TitleBar::minimuned, dialog, &QWidget::showMinimized);
    QObject::connect(bar, &TitleBar::maximumed, dialog, &QWidget::showMaximized);
    QObject::connect(bar, &TitleBar::normaled, dialog, &QWidget::showNormal);

    dialog->getOKButton()->setObjectName(QStringLiteral("ok"));
    dialog->getCancelButton()->setObjectName(QStringLiteral("cancel"));
    Reporter::follow(dialog->getOKButton());
    Reporter::follow(dialog->getCancelButton());
    Reporter::follow(dialog);
    dialog->setMinimumSize(DialogMinimum);
    dialog->setGeometry(DialogGeometry);
    dialog->show();
}
