#ifndef LMWIDGETS_VANTOROFRAMELESSDIALOG_H
#define LMWIDGETS_VANTOROFRAMELESSDIALOG_H

#include <lmwidgets/lmwidgets_global.h>
#include <lmwidgets/talvodialogbase.h>

QT_BEGIN_NAMESPACE
class QFrame;
class QHBoxLayout;
class QLayout;
class QPushButton;
class QToolButton;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

class FramelessHelper;
class TitleBar;
class VantoroFramelessDialogPrivate;

/**
 * @class VantoroFramelessDialog vantoroframelessdialog.h <lmwidgets/vantoroframelessdialog.h>
 *
 * @brief The second frame: a dialog with a bordered frame, a grey centre and a tall button row.
 *
 * Hosts derive their dialogs from it, fill the centre with setLayout() and override the three
 * functions that the buttons call. Unlike FramelessDialog it is managed by the window manager, it
 * has no see-through margin, and Escape does not close it.
 *
 * @code
 * class ClassifyDialog : public LM::Widgets::VantoroFramelessDialog
 * {
 * public:
 *     explicit ClassifyDialog(QWidget *parent = nullptr) : VantoroFramelessDialog(parent)
 *     {
 *         setWindowTitle(tr("Classify"));
 *         auto *form = new QFormLayout;
 *         form->addRow(tr("Threshold"), new QDoubleSpinBox);
 *         setLayout(form);
 *     }
 *
 *     void slotUIButtonOk() override { ... accept(); }
 * };
 * @endcode
 *
 * A new dialog shows Cancel and OK, hides Apply, and shows only the close button in its title bar.
 * The mouse moves it by its title bar, 48 px high, and does not resize it. What is returned by the
 * functions below belongs to the dialog; where the host has deleted a part, they return null.
 */
class LMWIDGETS_EXPORT VantoroFramelessDialog : public TalvoDialogBase
{
    Q_OBJECT

public:
    /**
     * Constructs a dialog whose window flags are Qt::Dialog, Qt::FramelessWindowHint,
     * Qt::WindowMinimizeButtonHint and Qt::WindowMaximizeButtonHint, whatever @p flags say. @p
     * parent may be null; otherwise it owns the dialog. Building a dialog sets the title height of
     * all frameless helpers of the process to 48 px.
     */
    explicit VantoroFramelessDialog(QWidget *parent = nullptr,
                                    Qt::WindowFlags flags = Qt::WindowFlags());
    ~VantoroFramelessDialog() override;

    /** Called on each theme switch. This one does nothing. */
    void initStyleSheet() override;

    /** Returns the title bar. */
    TitleBar *getTitleBar();
    /** Returns what moves the dialog, and resizes it if the host turns that on. */
    FramelessHelper *getFramelessHelper();

    /** Returns the OK button, the default button, which calls slotUIButtonOk(). */
    QPushButton *getOKButton();
    /** Returns the Cancel button, which calls slotUIButtonCancel(). */
    QPushButton *getCancelButton();
    /** Returns the Apply button, hidden at start, which calls slotUIButtonApply(). */
    QPushButton *getApplyButton();
    /** Returns the close button of the title bar, which calls slotUIButtonCancel(). */
    QToolButton *getWindowTitleCloseButton();
    /**
     * Shows the maximise button of the title bar and returns it. The button emits
     * TitleBar::maximumed(), to which the dialog is not connected: a subclass does that.
     */
    QToolButton *getWindowTitleMaxButton();

    /** Returns the grey centre, which receives the layout given to setLayout(). */
    QWidget *getContentHolder();
    /** Returns the widget that holds the button row, 64 px high. */
    QWidget *bottomWidget();
    /** Returns the frame with the border around everything. */
    QFrame *getCenterMainFrame();

    /** Returns the layout of centre and button row; its margins are 24, 0, 24, 0 px. */
    QLayout *mainLayout();
    /** Returns the layout of the button row. */
    QHBoxLayout *bottomLayout();
    /** Returns the layout that the grey centre stands in. */
    QHBoxLayout *getCenterHoderLayout();
    /** Returns the layout of the grey centre; null before setLayout(). */
    QLayout *getContentHolderLayout();
    /** Returns the layout that the title bar stands in. */
    QLayout *getTilteBarLayout();

    /**
     * Installs @p layout on the grey centre, which owns it, and gives the centre the object name
     * "m_pCentreContentWidget" and its style sheet. Hides QWidget::setLayout(), whose place the
     * frame itself takes. Null, or a layout that stands somewhere already, is ignored, and so is a
     * second one: the caller deletes a former layout that it wants replaced.
     */
    void setLayout(QLayout *layout);
    /** Returns the layout of the grey centre; null before setLayout(). */
    QLayout *layout() const;

    /**
     * Sets the text of the title bar. Hides QWidget::setWindowTitle(): the window itself gets no
     * title, but it is its accessible name, unless the host has set another.
     */
    void setWindowTitle(const QString &title);

public Q_SLOTS:
    /** OK was clicked. This one accepts the dialog. */
    virtual void slotUIButtonOk();
    /** Cancel or the close button was clicked. This one rejects the dialog. */
    virtual void slotUIButtonCancel();
    /** Apply was clicked. This one does nothing. */
    virtual void slotUIButtonApply();

protected:
    /** Drops Escape, so that it does not close the dialog; other keys act as in any dialog. */
    void keyPressEvent(QKeyEvent *event) override;

private:
    Q_DISABLE_COPY(VantoroFramelessDialog)

    void createFrame();
    void connectParts();

    VantoroFramelessDialogPrivate *d;
};

} // namespace Widgets
} // namespace LM

#endif
