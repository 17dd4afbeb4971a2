#ifndef LMWIDGETS_FRAMELESSWAITINGDIALOG_P_H
#define LMWIDGETS_FRAMELESSWAITINGDIALOG_P_H

#include <QMovie>
#include <QObject>

QT_BEGIN_NAMESPACE
class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

class FramelessWaitingDialog;

class FramelessWaitingDialogPrivate : public QObject
{
    Q_OBJECT

public:
    explicit FramelessWaitingDialogPrivate(FramelessWaitingDialog *dialog);

    void createMovie();
    void createMessage();
    void createStopButton();
    void createLayout();

    /** Gives the box the height that its message and its stop button ask for. */
    void adjustHeight();

    QVBoxLayout *mainLayout = nullptr;
    QLabel *movieLabel = nullptr;
    QLabel *textLabel = nullptr;
    QMovie movie;
    QPushButton *stopButton = nullptr;
    bool cancelClicked = false;
    FramelessWaitingDialog *q;

public Q_SLOTS:
    // Spelled as hosts know it.
    void slotCancelRequset();
};

} // namespace Widgets
} // namespace LM

#endif
