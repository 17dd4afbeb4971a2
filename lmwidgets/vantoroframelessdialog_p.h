#ifndef LMWIDGETS_VANTOROFRAMELESSDIALOG_P_H
#define LMWIDGETS_VANTOROFRAMELESSDIALOG_P_H

#include "keyboardactivation_p.h"

#include <lmwidgets/titlebar.h>

#include <QHBoxLayout>
#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QFrame;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

class FramelessHelper;
class VantoroFramelessDialog;

class VantoroFramelessDialogPrivate : public QObject
{
    Q_OBJECT

public:
    explicit VantoroFramelessDialogPrivate(VantoroFramelessDialog *dialog);

    /** Builds everything inside @p contentFrame. */
    void createWidgets(QFrame *contentFrame);

    // Hosts rebuild a dialog by deleting parts of it without telling it; each function then does
    // what is left to do.
    QPointer<TitleBar> titleBar;
    QPointer<QWidget> contentHolder;
    QPointer<QWidget> bottomWidget;
    QPointer<QVBoxLayout> mainLayout;
    QPointer<QVBoxLayout> outerLayout;
    QPointer<QHBoxLayout> bottomLayout;
    QPointer<QHBoxLayout> titleLayout;
    QPointer<QHBoxLayout> centerLayout;
    QPointer<QPushButton> okButton;
    QPointer<QPushButton> cancelButton;
    QPointer<QPushButton> applyButton;
    VantoroFramelessDialog *owner;
    FramelessHelper *helper = nullptr;

protected:
    /** Waits for the first show, when the content is there. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createTitleBar(QFrame *contentFrame);
    void createCenter();
    void createBottomRow(QFrame *contentFrame);
    void createHelper();
    void setButtonLooks();

    KeyboardActivation keyboardActivation;
};

} // namespace Widgets
} // namespace LM

#endif
