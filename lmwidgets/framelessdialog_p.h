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

    FramelessDialog *q;
    TitleBar *titleBar = nullptr;
    QVBoxLayout *mainLayout = nullptr;
    QHBoxLayout *bottomLayout = nullptr;
    QPushButton *okButton = nullptr;
    QPushButton *cancelButton = nullptr;
    QPushButton *applyButton = nullptr;
    QHBoxLayout *titleLayout = nullptr;
    QFrame *topSeparator = nullptr;
    QFrame *bottomSeparator = nullptr;
    int lineHeight = 0;
    // Subclasses and hosts rebuild their content by deleting these, without telling the dialog.
    QPointer<QWidget> contentHolder;
    QWidget *bottomWidget = nullptr;
    QPointer<QLayout> contentLayout;
    FramelessHelper *helper = nullptr;
    KeyboardActivation keyboardActivation;
    UnmanagedWindowState unmanagedWindowState;
};

} // namespace Widgets
} // namespace LM

#endif
