#ifndef LMWIDGETS_VANTOROFRAMELESSDIALOG_H
#define LMWIDGETS_VANTOROFRAMELESSDIALOG_H

#include <lmwidgets/lmwidgets_global.h>
#include <lmwidgets/talvodialogbase.h>

#include <QPointer>

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
 * @brief A dialog with a bordered frame of its own, a title bar and a tall row of buttons.
 *
 * @image html vantoroframelessdialog.png
 *
 * Beside FramelessDialog this is the frame for larger dialogs: there is no see-through margin, the
 * content stands on a grey area 24 px from the sides, and the row of buttons is 64 px high. The
 * host derives its dialog, sets a layout and overrides what the buttons do. The mouse drags the
 * dialog by its title; the edges resize it once getFramelessHelper() is told so. Escape does not
 * close it.
 *
 * @code
 * class Settings : public LM::Widgets::VantoroFramelessDialog
 * {
 * public:
 *     explicit Settings(QWidget *parent) : VantoroFramelessDialog(parent)
 *     {
 *         setWindowTitle(tr("Settings"));
 *         auto *form = new QFormLayout;
 *         form->addRow(tr("Name"), new QLineEdit);
 *         setLayout(form);
 *         getApplyButton()->show();
 *     }
 *     void slotUIButtonApply() override { store(); }
 * };
 * @endcode
 *
 * Unlike the other frameless dialogs it is managed by the window manager.
 */
class LMWIDGETS_EXPORT VantoroFramelessDialog : public TalvoDialogBase
{
    Q_OBJECT

public:
    /**
     * Constructs a dialog with the buttons Cancel and OK, which is the default; Apply is hidden.
     * The window flags are Qt::Dialog, Qt::FramelessWindowHint, Qt::WindowMinimizeButtonHint and
     * Qt::WindowMaximizeButtonHint, whatever @p flags says.
     */
    explicit VantoroFramelessDialog(QWidget *parent = nullptr,
                                    Qt::WindowFlags flags = Qt::WindowFlags());
    ~VantoroFramelessDialog() override;

    /** Does nothing; called on each theme switch. */
    void initStyleSheet() override;

    /** Returns the title bar. Only its closed() is connected, to slotUIButtonCancel(). */
    TitleBar *getTitleBar();
    /** Returns what moves and resizes the dialog; not resizable at start. */
    FramelessHelper *getFramelessHelper();

    /** Returns the OK button. */
    QPushButton *getOKButton();
    /** Returns the Cancel button. */
    QPushButton *getCancelButton();
    /** Returns the Apply button, which is hidden at start. */
    QPushButton *getApplyButton();
    /** Returns the close button of the title bar. */
    QToolButton *getWindowTitleCloseButton();
    /**
     * Shows the maximise button of the title bar, each time, and returns it. What it does is up to
     * the caller: TitleBar::maximumed() and TitleBar::normaled() are not connected.
     */
    QToolButton *getWindowTitleMaxButton();

    /** Returns the grey area that takes the content. */
    QWidget *getContentHolder();
    /** Returns the container of the row of buttons, 64 px high. */
    QWidget *bottomWidget();
    /** Returns the frame with the border around all of it. */
    QFrame *getCenterMainFrame();

    /** Returns the layout of the content and the row of buttons. */
    QLayout *mainLayout();
    /** Returns the row of buttons: a stretch, Cancel, Apply, OK. */
    QHBoxLayout *bottomLayout();
    /** Returns the layout that holds the content holder. */
    QHBoxLayout *getCenterHoderLayout();
    /** Returns the layout of the content; null until setLayout(). */
    QLayout *getContentHolderLayout();
    /** Returns the layout that holds the title bar. */
    QLayout *getTilteBarLayout();

    /**
     * Lays out the content holder with @p layout, which becomes its own, and gives it the grey of
     * content. Null, a layout that is in use elsewhere, or a second layout is ignored; Qt warns of
     * the last.
     */
    void setLayout(QLayout *layout);
    /** Returns the layout of the content; null until setLayout(). */
    QLayout *layout() const;

    /** Sets the text of the title bar. */
    void setWindowTitle(const QString &title);

public Q_SLOTS:
    /** OK was clicked: accepts the dialog. */
    virtual void slotUIButtonOk();
    /** Cancel or the title bar's close button was clicked: rejects the dialog. */
    virtual void slotUIButtonCancel();
    /** Apply was clicked: does nothing. */
    virtual void slotUIButtonApply();

protected:
    /** Drops Escape, which therefore does not reject the dialog. */
    void keyPressEvent(QKeyEvent *event) override;

private:
    Q_DISABLE_COPY(VantoroFramelessDialog)

    VantoroFramelessDialogPrivate *d;
    QPointer<QFrame> m_contentFrame;
};

} // namespace Widgets
} // namespace LM

#endif
