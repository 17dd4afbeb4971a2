#include <lmwidgets/framelesswaitingdialog.h>

#include "framelesswaitingdialog_p.h"
#include "owntext_p.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>

#include <atomic>

namespace LM {
namespace Widgets {

namespace {

constexpr int DialogWidth = 228;
constexpr int DialogHeight = 184;
constexpr int MovieSize = 102;
constexpr int MovieSpeedPercent = 120;
constexpr QSize StopButtonSize(100, 32);
// What stands above and below the message, and what the stop button adds.
constexpr double HeightWithoutMessage = 150.0;
constexpr double HeightOfStopButton = 40.0;

const char MoviePath[] = "/theme/qssimage/waiting.gif";
const char DialogStyle[] =
    "QWidget{background-color:#2B2B2B;border:1px solid #585858;border-radius:2px;}";
const char MovieStyle[] = "QLabel{border: 0px;}";
const char MessageStyle[] = "QLabel{color: #F2F2F2;border: 0px;font-size: 16px;}";
// Not the secondary style of the other dialogs: this one says its text colour, since there is no
// frame around it that does.
const char StopButtonStyle[] =
    "QPushButton{background-color:transparent;font-size:14px;height:30px;width:80px;"
    "border: 1px solid #585858;border-radius: 2px;color:#F2F2F2;}\n"
    "QPushButton:hover{background-color:rgb(27, 24, 28);}\n"
    "QPushButton:pressed{background-color:rgb(27, 24, 28);}";

constexpr Qt::WindowFlags WaitingFlags = Qt::Dialog | Qt::FramelessWindowHint;

// Written in the GUI thread only, so that nobody has to wait for anybody in order to read it.
std::atomic<FramelessWaitingDialog *> theInstance{nullptr};

void destroyInstance()
{
    delete theInstance.load();
}

/** Makes the one dialog unless it exists. In the GUI thread. */
FramelessWaitingDialog *createInstance(QWidget *parent, Qt::WindowFlags flags)
{
    FramelessWaitingDialog *dialog = theInstance.load();
    if (!dialog) {
        dialog = new FramelessWaitingDialog(parent, flags);
        theInstance.store(dialog);
        // Called when the application object goes and widgets can still be destroyed. Each
        // application object forgets its routines with that, one is enough for it.
        qRemovePostRoutine(destroyInstance);
        qAddPostRoutine(destroyInstance);
    }
    return dialog;
}

} // namespace

FramelessWaitingDialogPrivate::FramelessWaitingDialogPrivate(FramelessWaitingDialog *dialog)
    : movie(QCoreApplication::applicationDirPath() + QLatin1String(MoviePath)), q(dialog)
{
    q->setFixedSize(DialogWidth, DialogHeight);
    createMovie();
    createMessage();
    createStopButton();
    createLayout();
    q->setStyleSheet(QLatin1String(DialogStyle));
    q->setLayout(mainLayout);
    setOwnText(textLabel, [] {
        return QCoreApplication::translate("vantoroframelesswaitdialog", "loading...");
    });
    stopButton->hide();
    connect(stopButton, &QPushButton::clicked, this,
            &FramelessWaitingDialogPrivate::slotCancelRequset);
}

void FramelessWaitingDialogPrivate::createMovie()
{
    movie.setSpeed(MovieSpeedPercent);
    movie.setScaledSize(QSize(MovieSize, MovieSize));
    movieLabel = new QLabel(q);
    movieLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    movieLabel->setFixedSize(MovieSize, MovieSize);
    movieLabel->setMovie(&movie);
    movie.start();
    movieLabel->setStyleSheet(QLatin1String(MovieStyle));
}

void FramelessWaitingDialogPrivate::createMessage()
{
    textLabel = new QLabel(q);
    textLabel->setWordWrap(true);
    textLabel->setStyleSheet(QLatin1String(MessageStyle));
    textLabel->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
}

void FramelessWaitingDialogPrivate::createStopButton()
{
    stopButton = new QPushButton(q);
    stopButton->setStyleSheet(QLatin1String(StopButtonStyle));
    stopButton->setFixedSize(StopButtonSize);
    setOwnText(stopButton,
               [] { return QCoreApplication::translate("PointListPickingDlg", "stop"); });
}

void FramelessWaitingDialogPrivate::createLayout()
{
    auto *movieLayout = new QHBoxLayout;
    movieLayout->addWidget(movieLabel);
    movieLayout->setContentsMargins(62, 20, 62, 0);

    auto *buttonLayout = new QHBoxLayout;
    buttonLayout->setContentsMargins(16, 0, 16, 8);
    buttonLayout->addStretch();
    buttonLayout->addWidget(stopButton);
    buttonLayout->addStretch();

    auto *messageLayout = new QVBoxLayout;
    messageLayout->addWidget(textLabel);
    messageLayout->setContentsMargins(16, 0, 16, 4);
    messageLayout->addLayout(buttonLayout);

    mainLayout = new QVBoxLayout;
    mainLayout->addLayout(movieLayout);
    mainLayout->addLayout(messageLayout);
    mainLayout->setContentsMargins(0, 0, 0, 0);
    mainLayout->addStretch();
}

void FramelessWaitingDialogPrivate::adjustHeight()
{
    // The layout has had no occasion yet to make the label fit a new message, nor could it within
    // the height that the former one asked for: a long text would be cut, and the box would grow a
    // little with each call.
    mainLayout->activate();
    textLabel->resize(textLabel->width(), textLabel->heightForWidth(textLabel->width()));
    double height = textLabel->height() + HeightWithoutMessage;
    // Of a hidden box every child is invisible. What counts is whether the button will be seen.
    if (!stopButton->isHidden()) {
        height += HeightOfStopButton;
    }
    q->setFixedHeight(static_cast<int>(height));
}

void FramelessWaitingDialogPrivate::slotCancelRequset()
{
    cancelClicked = true;
    Q_EMIT q->signalCancelButtonClicked();
}

FramelessWaitingDialog::FramelessWaitingDialog(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags), d(new FramelessWaitingDialogPrivate(this))
{
    const auto once = static_cast<Qt::ConnectionType>(Qt::AutoConnection | Qt::UniqueConnection);
    connect(this, &FramelessWaitingDialog::signalStartWaittingDialog, this,
            &FramelessWaitingDialog::startWaiting, once);
    connect(this, &FramelessWaitingDialog::signalStopWaittingDialog, this,
            &FramelessWaitingDialog::stopWaiting, once);
}

FramelessWaitingDialog::~FramelessWaitingDialog()
{
    FramelessWaitingDialog *self = this;
    theInstance.compare_exchange_strong(self, nullptr);
    delete d;
}

FramelessWaitingDialog *FramelessWaitingDialog::instance(QWidget *parent, Qt::WindowFlags flags)
{
    if (FramelessWaitingDialog *dialog = theInstance.load()) {
        return dialog;
    }
    QCoreApplication *application = QCoreApplication::instance();
    if (!qobject_cast<QApplication *>(application)) {
        return nullptr;
    }
    if (application->thread() == QThread::currentThread()) {
        return createInstance(parent, flags);
    }
    // If the application goes meanwhile it drops the call, which ends the waiting.
    QMetaObject::invokeMethod(
        application, [parent, flags] { createInstance(parent, flags); },
        Qt::BlockingQueuedConnection);
    return theInstance.load();
}

void FramelessWaitingDialog::startWaiting(const QString &text)
{
    d->textLabel->setText(text);
    setWindowFlags(WaitingFlags);
    setWindowModality(Qt::ApplicationModal);
    setAttribute(Qt::WA_ShowModal, true);
    d->adjustHeight();
    if (isHidden()) {
        d->movie.start();
        show();
    }
}

void FramelessWaitingDialog::stopWaiting()
{
    const QPointer<FramelessWaitingDialog> guard(this);
    d->movie.stop();
    // Hides the box too, unless it has no parent any more.
    setParent(nullptr);
    if (!guard) {
        return;
    }
    d->stopButton->hide();
    d->cancelClicked = false;
    hide();
}

void FramelessWaitingDialog::showCancelButton()
{
    d->stopButton->show();
    d->cancelClicked = false;
}

bool FramelessWaitingDialog::isCancelButtonClicked()
{
    return d->cancelClicked;
}

void FramelessWaitingDialog::setWaitdialogDisplay(const QString &text)
{
    d->textLabel->setText(text);
}

void FramelessWaitingDialog::jumpToNextFrame()
{
    int next = d->movie.currentFrameNumber() + 1;
    if (next >= d->movie.frameCount()) {
        next = 0;
    }
    d->movie.jumpToFrame(next);
    d->movieLabel->repaint();
}

void FramelessWaitingDialog::keyPressEvent(QKeyEvent *event)
{
    Q_UNUSED(event)
}

void FramelessWaitingDialog::showEvent(QShowEvent *event)
{
    raise();
    activateWindow();
    QDialog::showEvent(event);
}

} // namespace Widgets
} // namespace LM
