#ifndef LMWIDGETS_FRAMELESSDIALOG_P_H
#define LMWIDGETS_FRAMELESSDIALOG_P_H

#include "keyboardactivation_p.h"
#include "unmanagedwindowstate_p.h"

#include <QLayout>
#include <QObject>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QFrame;
class QHBoxLayout;
class QPushButton;
class QVBoxLayout;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

class FramelessDialog;
class FramelessHelper;
class TitleBar;

class FramelessDialogPrivate : public QObject
{
    Q_OBJECT

public:
    explicit FramelessDialogPrivate(FramelessDialog *dialog);

    void createTitleBar();
    void createMainLayout();
    void createBottomRow();
    void createHelper();

    /**
     * Lets Tab reach the content before the buttons below it, as it is seen, although the buttons
     * were made first; the first input of the content then also has the focus at the start. An
     * order that the host has given to the buttons is kept.
     */
    void putButtonsLastInTabOrder();

    FramelessDialog *q;
    TitleBar *titleBar = nullptr;
    QVBoxLayout *mainLayout = nullptr;
    QHBoxLayout *bottomLayout = nullptr;
    QPushButton *okButton = nullptr;
    QPushButton *cancelButton = nullptr;
    QPushButton *applyButton = nullptr;
    QHBoxLayout *titleLayout = nullptr;
    // Hosts that rebuild the frame's layout delete what they do not need, without telling the
    // dialog.
    QPointer<QFrame> topSeparator;
    QPointer<QFrame> bottomSeparator;
    int lineHeight = 0;
    // Subclasses and hosts rebuild their content by deleting these, without telling the dialog.
    QPointer<QWidget> contentHolder;
    QWidget *bottomWidget = nullptr;
    QPointer<QLayout> contentLayout;
    FramelessHelper *helper = nullptr;
    bool tabOrderSettled = false;
    KeyboardActivation keyboardActivation;
    UnmanagedWindowState unmanagedWindowState;
};

} // namespace Widgets
} // namespace LM

#endif
