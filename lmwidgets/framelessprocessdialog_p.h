#ifndef LMWIDGETS_FRAMELESSPROCESSDIALOG_P_H
#define LMWIDGETS_FRAMELESSPROCESSDIALOG_P_H

#include <lmwidgets/framelessprocessdialog.h>

#include <QByteArray>
#include <QElapsedTimer>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

namespace LM {
namespace Widgets {

/**
 * The private part of FramelessProcessDialog.
 *
 * The children are guarded: a host finds them by their types, has made some of them itself, and may
 * delete any.
 */
class FramelessProcessDialogPrivate
{
public:
    explicit FramelessProcessDialogPrivate(FramelessProcessDialog *dialog) : q(dialog) {}

    void init(const QString &labelText, const QString &cancelText, int minimum, int maximum);
    void layout();
    void ensureSizeIsAtLeastSizeHint();

    /** Puts @p widget, which may be null, in the place of @p place and deletes what was there. */
    template <typename Widget>
    void replace(QPointer<Widget> *place, Widget *widget);
    /** Makes @p widget, which may be null, a child of the dialog that is placed and shown. */
    void adopt(QWidget *widget);

    /** All of setValue() that sets something. False if that has destroyed the dialog. */
    bool setBarValue(int progress);
    void setPercent(int percent);
    /** The percentage of @p progress in the range, 0 to 100. */
    int percentOf(int progress) const;

    void pumpEvents();
    /** Notes that the work goes on at @p progress; returns whether to show the dialog now. */
    bool isDue(int progress) const;

    FramelessProcessDialog *q;
    QPointer<QLabel> label;
    QPointer<QLabel> percentLabel;
    QPointer<QLabel> titleLabel;
    QPointer<QPushButton> cancel;
    QPointer<QProgressBar> bar;
    QTimer *forceTimer = nullptr;
    bool shownOnce = false;
    bool cancellationFlag = false;
    bool setValueCalled = false;
    QElapsedTimer starttime;
    int showTime = 4000;
    bool autoClose = true;
    bool autoReset = true;
    bool forceHide = false;
    bool useDefaultCancelText = false;
    QPointer<QObject> receiverToDisconnectOnClose;
    QByteArray memberToDisconnectOnClose;

    /** The dialog's own bar, which repaints itself when its picture changes; a host's may not. */
    bool ownBar = true;
    /** What percentLabel was last given. */
    int percent = -1;
    QString percentText;
    /** How many calls of setValue() are running events at this moment. */
    int pumping = 0;
};

} // namespace Widgets
} // namespace LM

#endif
