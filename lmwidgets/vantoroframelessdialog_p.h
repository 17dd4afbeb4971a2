#ifndef LMWIDGETS_VANTOROFRAMELESSDIALOG_P_H
#define LMWIDGETS_VANTOROFRAMELESSDIALOG_P_H

#include "keyboardactivation_p.h"

#include <lmwidgets/titlebar.h>

#include <QFrame>
#include <QHBoxLayout>
#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace LM {
namespace Widgets {

class FramelessHelper;
class VantoroFramelessDialog;

class VantoroFramelessDialogPrivate : public QObject
{
    Q_OBJECT

public:
    explicit VantoroFramelessDialogPrivate(VantoroFramelessDialog *dialog);

    void createParts(QFrame *frame);

    // Hosts rebuild a dialog by deleting parts of it without telling it; each function then does
    // what is left to do.
    QPointer<TitleBar> titleBar;
    QPointer<QWidget> contentHolder;
    QPointer<QWidget> bottomWidget;
    QPointer<QVBoxLayout> mainLayout;
    QPointer<QVBoxLayout> outerLayout;
    QPointer<QHBoxLayout> bottomLayout;
    QPointer<QHBoxLayout> titleLayout;
    QPointer<QHBoxLayout> centreLayout;
    QPointer<QPushButton> okButton;
    QPointer<QPushButton> cancelButton;
    QPointer<QPushButton> applyButton;
    VantoroFramelessDialog *q;
    FramelessHelper *helper = nullptr;

    QPointer<QFrame> contentFrame;
    bool tabOrderSettled = false;
    KeyboardActivation keyboardActivation;

protected:
    /** Lets Tab reach the content before the buttons when the dialog is first shown. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createTitleBar();
    void createCentre();
    void createBottomRow();
    void createHelper();
};

} // namespace Widgets
} // namespace LM

#endif
