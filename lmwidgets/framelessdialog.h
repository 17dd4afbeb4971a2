#ifndef LMWIDGETS_FRAMELESSDIALOG_H
#define LMWIDGETS_FRAMELESSDIALOG_H

#include <lmwidgets/lmwidgets_global.h>
#include <lmwidgets/talvodialogbase.h>

#include <QIcon>

QT_BEGIN_NAMESPACE
class QAction;
class QHBoxLayout;
class QPushButton;
class QVBoxLayout;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

class FramelessDialogPrivate;
class TitleBar;

/**
 * @class FramelessDialog framelessdialog.h <lmwidgets/framelessdialog.h>
 *
 * @brief A dialog that draws its own frame: title bar, content, and OK, Cancel and Apply.
 *
 * @image html framelessdialog.png
 *
 * Derive from it and fill getContentHolder(), or give it a layout with setLayout(). The dialog
 * paints a filled rectangle with a thin border; the 10 px around it are see-through. It is moved by
 * the mouse in its top 58 px. OK accepts, Cancel rejects, the title bar's close button closes.
 *
 * @code
 * LM::Widgets::FramelessDialog dialog(window);
 * dialog.setWindowTitle(tr("Rename layer"));
 * auto *layout = new QVBoxLayout;
 * layout->addWidget(new QLineEdit);
 * dialog.setLayout(layout);
 * if (dialog.exec() == QDialog::Accepted) {
 *     rename();
 * }
 * @endcode
 *
 * A new dialog shows only the close button in its title bar and hides Apply. Its size is frozen at
 * each show: both minimumSize() and maximumSize() become size(). A dialog that is to be resized by
 * the mouse needs setDialogResizable(true) and, after show(), limits of its own.
 *
 * The title bar, the buttons, their row and the separators may be deleted by the host: the
 * functions that return them then return null, and those that set something on them do nothing.
 *
 * It bypasses the window manager, and therefore activates itself when it is shown and when it is
 * clicked, so that it takes the keyboard on X11 too. There it also fills its screen itself when it
 * is maximised and takes its former geometry when it is restored; minimised, it goes and comes back
 * with the window that owns it, and without one it stays where it is.
 */
class LMWIDGETS_EXPORT FramelessDialog : public TalvoDialogBase
{
    Q_OBJECT

public:
    /**
     * Constructs a dialog with @p flags, Qt::BypassWindowManagerHint and Qt::FramelessWindowHint.
     * @p parent may be null; otherwise it owns the dialog. Building a dialog sets the title height
     * of all frameless helpers of the process to 48 px.
     */
    explicit FramelessDialog(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~FramelessDialog() override;

    /** Called on each theme switch. This one does nothing. */
    void initStyleSheet() override;

    /**
     * Called after each step in which the mouse has moved the dialog, so that it can take
     * companions along; not while a rubber band is moved instead. This one does nothing.
     */
    virtual void updateMoveEvent();

    /**
     * Places @p widget between the separators and takes ownership. Ignored when it is null or when
     * getContentHolder() has been called before. The widget is not remembered.
     */
    void SetContentHolder(QWidget *widget);

    /**
     * Places @p layout between the separators, with its own margins, and takes ownership. It hides
     * QWidget::setLayout(), whose place the frame itself takes. Null, or a layout that stands
     * somewhere already, is ignored; one that was constructed with the dialog as its parent stands
     * nowhere yet. The caller deletes a former layout that it wants replaced.
     */
    void setLayout(QLayout *layout);

    /**
     * Returns the layout given to setLayout() as long as it lives; without one the content holder's
     * layout, which is null until somebody sets it; without a content holder null.
     */
    QLayout *layout() const;

    /** Returns the layout of the whole dialog: title, separator, content, separator, button row. */
    QVBoxLayout *getMainLayout();
    /** Returns the layout of the button row. */
    QHBoxLayout *bottomLayout();
    /** Returns the widget that holds the button row. */
    QWidget *bottomWidget();
    /** Returns the title bar. */
    TitleBar *getTitleBar();

    /** Returns the OK button, which calls onOk(). */
    QPushButton *GetOKButton();
    /** Returns the Cancel button, which calls onCancel(). */
    QPushButton *GetCancelButton();
    /** Returns the Apply button. It is hidden at start and connected to nothing: the host does
     * that. */
    QPushButton *GetApplyButton();

    /** Shows or hides the OK button; shown at start. */
    void setOKButtonVisible(bool visible);
    /** Shows or hides the Cancel button; shown at start. */
    void setCancelButtonVisible(bool visible);
    /** Shows or hides the Apply button; hidden at start. */
    void setApplyButtonVisible(bool visible);
    /**
     * Calls QPushButton::setDefault() on OK, which is the default button at start. OK is also an
     * auto-default button: to keep Enter from clicking it, make another button the default or turn
     * its autoDefault off.
     */
    void setOKButtonDefault(bool isDefault);

    /** Shows or hides the title bar's close button; shown at start. */
    void setCloseButtonVisible(bool visible);
    /** Returns whether the close button is on the screen; false while the dialog is not shown. */
    bool getCloseButtonVisible() const;
    /** Shows or hides the title bar's minimise button; hidden at start. */
    void setMinButtonVisible(bool visible);
    /**
     * Shows the maximise or the restore button, whichever fits the dialog's state, or hides both,
     * as at start. Hiding them also ends the resizing by the mouse; showing them does not allow it.
     */
    void setMaxButtonVisible(bool visible);
    /** Hides the logo button, as it is at start. */
    void hideTitleIcon();

    /** Sets the icon of the logo button and the window's own. Does not show the logo button. */
    void setWindowIcon(const QIcon &icon);
    /** Returns the logo button's icon. */
    QIcon windowIcon();

    /**
     * Sets the text of the title bar, aligned to the left, and gives the title bar its style sheet,
     * which replaces one set on it before; the label's own style sheet stays. Hides
     * QWidget::setWindowTitle(): the window itself gets no title, but it is its accessible name,
     * unless the host has set another.
     */
    void setWindowTitle(const QString &title);
    /** Returns the text of the title bar. */
    QString windowTitle();
    /** Aligns the title; centred until the first setWindowTitle(). */
    void setWindowTitleAlignment(Qt::Alignment alignment);
    /** Sets the style sheet of the title's label. */
    void setTitleBarLabelStyleSheet(QString styleSheet);

    /** Sets the icon of the title button @p type, see TitleBar::TitleButtonType; others are
     * ignored. */
    void setTitleButtonIcon(const int &type, const QIcon &icon);
    /** Sets the fixed size in px of the title button @p type; others are ignored. */
    void setTtitleBarButtonSize(const int &type, QSize size);
    /** Sets the style sheet of the title button @p type; others are ignored. */
    void setTtitleBarButtonStyle(const int &type, QString styleSheet);
    /** Adds a tool button for @p action to the title bar, see TitleBar::appendExtendTitleButton().
     */
    void appendExtendTitleButton(QAction *action, QSize buttonSize, QSize iconSize);
    /** Adds a tool button for @p action at @p index, see TitleBar::insertExtendTitleButton(). */
    void insertExtendTitleButton(int index, QAction *action, QSize buttonSize, QSize iconSize);

    /** Whether the mouse moves the dialog; true at start. */
    void setDialogMovable(bool movable);
    /** The same as setDialogMovable(), under the name that older hosts call. */
    void setDialogtMovable(bool movable);
    /** Whether the mouse resizes the dialog; false at start. */
    void setDialogResizable(bool resizable);
    /** Whether a rubber band is moved in the dialog's place until the release; false at start. */
    void setRubberBandOnMove(bool rubberBand);
    /** Whether a rubber band is resized in the dialog's place until the release; false at start. */
    void setRubberBandOnResize(bool rubberBand);
    /** Sets the height in px of both separators; 1 at start. A negative one is ignored. */
    void setHorizontalLineHeight(int height);

    /** Gives the title bar the look of a message box, with the logo button shown. */
    void setMessageboxStyleSheet();

public Q_SLOTS:
    /** Shows the dialog and brings the title bar's buttons into step. Hides QWidget::show(). */
    void show();
    /** Shows the dialog maximised. Hides QWidget::showMaximized(). */
    void showMaximized();
    /** Shows the dialog in its normal size. Hides QWidget::showNormal(). */
    void showNormal();
    /** Maximises the dialog, or restores it if it is maximised. */
    void swithMaxNormal();

protected:
    /**
     * Constructs a dialog with @p styleSheet for a subclass that gives itself one. It is the same
     * as setStyleSheet() later, but costs less while the dialog has no children to tell of it.
     */
    FramelessDialog(const QString &styleSheet, QWidget *parent, Qt::WindowFlags flags);

    /** OK was clicked. This one accepts the dialog. */
    virtual void onOk();
    /** Cancel was clicked. This one rejects the dialog. */
    virtual void onCancel();

    /**
     * Returns the widget between the separators, for a subclass to fill; created by the first call
     * and owned by the dialog.
     */
    QWidget *getContentHolder();

    /** Paints the background inset by 10 px with a grey border. */
    void drawShadowBorder(QPaintEvent *event);
    /** Paints the background over the whole dialog with a dark border, for subclasses without a
     * margin. */
    void drawSolidBorder(QPaintEvent *event);

    /** Paints the background with drawShadowBorder(). */
    void paintEvent(QPaintEvent *event) override;
    /** Freezes the dialog at the size that it is shown with. */
    void showEvent(QShowEvent *event) override;

private:
    Q_DISABLE_COPY(FramelessDialog)

    FramelessDialogPrivate *d;
};

} // namespace Widgets
} // namespace LM

#endif
