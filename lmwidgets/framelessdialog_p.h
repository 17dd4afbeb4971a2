#ifndef LMWIDGETS_FRAMELESSDIALOG_P_H
#define LMWIDGETS_FRAMELESSDIALOG_P_H

#include "keyboardactivation_p.h"
#include "stockdialogsabove_p.h"
#include "unmanagedwindowstate_p.h"

#include <lmwidgets/titlebar.h>

#include <QFrame>
#include <QLayout>
#include <QObject>
#include <QPointer>
#include <QPushButton>

QT_BEGIN_NAMESPACE
class QHBoxLayout;
class QVBoxLayout;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

class FramelessDialog;
class FramelessHelper;

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
    // Hosts rebuild a dialog by deleting parts of it without telling it; each function then does
    // what is left to do.
    QPointer<TitleBar> titleBar;
    QVBoxLayout *mainLayout = nullptr;
    QHBoxLayout *bottomLayout = nullptr;
    QPointer<QPushButton> okButton;
    QPointer<QPushButton> cancelButton;
    QPointer<QPushButton> applyButton;
    QHBoxLayout *titleLayout = nullptr;
    QPointer<QFrame> topSeparator;
    QPointer<QFrame> bottomSeparator;
    int lineHeight = 0;
    QPointer<QWidget> contentHolder;
    QPointer<QWidget> bottomWidget;
    QPointer<QLayout> contentLayout;
    FramelessHelper *helper = nullptr;
    bool tabOrderSettled = false;
    KeyboardActivation keyboardActivation;
    UnmanagedWindowState unmanagedWindowState;
    StockDialogsAbove stockDialogsAbove;
};

} // namespace Widgets
} // namespace LM

#endif
