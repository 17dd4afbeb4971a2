#ifndef LMWIDGETS_FRAMELESSWAITINGDIALOG_H
#define LMWIDGETS_FRAMELESSWAITINGDIALOG_H

#include <lmwidgets/lmwidgets_global.h>

#include <QDialog>

namespace LM {
namespace Widgets {

class FramelessWaitingDialogPrivate;

/**
 * @class FramelessWaitingDialog framelesswaitingdialog.h <lmwidgets/framelesswaitingdialog.h>
 *
 * @brief A small box that says that the application is busy.
 *
 * @image html framelesswaitingdialog.png
 *
 * The box shows an animation, a message below it and, if the host wants one, a "stop" button. It
 * blocks the other windows of the application while it is shown, and no key closes it. A click on
 * "stop" ends nothing by itself: the host asks isCancelButtonClicked() or connects
 * signalCancelButtonClicked().
 *
 * All members belong to the GUI thread. Work in another thread emits signalStartWaittingDialog()
 * and signalStopWaittingDialog() instead, any number of threads at once:
 *
 * @code
 * auto *box = LM::Widgets::FramelessWaitingDialog::instance(mainWindow);
 * box->showCancelButton();
 * QThread *worker = QThread::create([box] {
 *     Q_EMIT box->signalStartWaittingDialog(tr("Reading tiles..."));
 *     readTiles();
 *     Q_EMIT box->signalStopWaittingDialog();
 * });
 * connect(worker, &QThread::finished, worker, &QObject::deleteLater);
 * worker->start();
 * @endcode
 *
 * The animation is the file theme/qssimage/waiting.gif beside the host's program; without it the
 * box works and that place stays empty.
 */
class LMWIDGETS_EXPORT FramelessWaitingDialog : public QDialog
{
    Q_OBJECT

public:
    /** Constructs a hidden box of 228 x 184 px without a stop button. */
    explicit FramelessWaitingDialog(QWidget *parent = nullptr,
                                    Qt::WindowFlags flags = Qt::WindowFlags());
    /** Destroys the box; threads that emit its signals must have ended. */
    ~FramelessWaitingDialog() override;

    /**
     * Returns the one box of the process. The first call constructs it with its arguments, later
     * ones ignore theirs.
     *
     * The box is destroyed with the application object, or with its parent if that goes before the
     * first stopWaiting(), which ends the parenthood. The next call then makes a new box, so keep
     * no pointer to it longer than its parent lives. Null is returned while there is no
     * QApplication.
     *
     * Any thread may call this. A thread other than the GUI's that is the first to call waits until
     * the GUI thread, whose event loop must run, has made the box.
     */
    static FramelessWaitingDialog *instance(QWidget *parent = nullptr,
                                            Qt::WindowFlags flags = Qt::WindowFlags());

    /**
     * Shows the box with the message @p text, or changes the message if it is shown already; the
     * animation then goes on as it is. The height follows the message and the stop button: that of
     * the message plus 150 px, and 40 px more with the button. The width stays.
     */
    void startWaiting(const QString &text);

    /**
     * Hides the box and its stop button and forgets a click on it. The box has no parent from now
     * on: nobody but its owner, or for instance() the application's end, destroys it.
     */
    void stopWaiting();

    /**
     * Shows the stop button until the next stopWaiting(), and forgets an earlier click on it. The
     * box makes room for it at the next startWaiting().
     */
    void showCancelButton();

    /** Returns whether "stop" was clicked since showCancelButton() or stopWaiting(). */
    bool isCancelButtonClicked();

    /** Sets the message and leaves the box as high as it is. */
    void setWaitdialogDisplay(const QString &text);

    /**
     * Shows the next frame of the animation, after the last one the first, at once. A host whose
     * GUI thread is busy in a loop calls it there to keep the animation moving.
     */
    void jumpToNextFrame();

Q_SIGNALS:
    /** To be emitted by the host, from any thread: calls startWaiting() in the GUI thread. */
    void signalStartWaittingDialog(QString text);
    /** To be emitted by the host, from any thread: calls stopWaiting() in the GUI thread. */
    void signalStopWaittingDialog();
    /** "stop" was clicked. A slot may destroy the box. */
    void signalCancelButtonClicked();

protected:
    /** Drops every key, Escape too. */
    void keyPressEvent(QKeyEvent *event) override;
    /** Brings the box to the front and gives it the keyboard. */
    void showEvent(QShowEvent *event) override;

private:
    Q_DISABLE_COPY(FramelessWaitingDialog)

    FramelessWaitingDialogPrivate *d;
};

} // namespace Widgets
} // namespace LM

#endif
