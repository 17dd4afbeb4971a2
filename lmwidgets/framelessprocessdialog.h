#ifndef LMWIDGETS_FRAMELESSPROCESSDIALOG_H
#define LMWIDGETS_FRAMELESSPROCESSDIALOG_H

#include <lmwidgets/lmwidgets_global.h>

#include <QDialog>

QT_BEGIN_NAMESPACE
class QLabel;
class QProgressBar;
class QPushButton;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

class FramelessProcessDialogPrivate;

/**
 * @class FramelessProcessDialog framelessprocessdialog.h <lmwidgets/framelessprocessdialog.h>
 *
 * @brief The progress of a long operation, in a frameless window with a percentage.
 *
 * @image html framelessprocessdialog.png
 *
 * It is used like QProgressDialog and shares its properties, slots and signal: it appears by itself
 * once the operation has taken its minimumDuration, or earlier when an estimate says that it will,
 * and it resets and hides itself when the value reaches the maximum. What differs:
 *
 * - The title stands in the dialog, and a percentage beside the bar, which has no text of its own.
 * - Escape does nothing. The operation is canceled with the button or by closing the window. The
 *   button takes no keyboard focus; a caption with an ampersand gives it a key.
 * - The children are placed by hand; the dialog grows to its sizeHint() when they change.
 * - The window has no frame and is not moved by the mouse.
 * - The label is 48 px narrower than the dialog. A label of the host's own with a word as wide as
 *   itself gets less than it asks for, and the word is cut off.
 *
 * @code
 * LM::Widgets::FramelessProcessDialog progress(tr("Copying tiles..."), tr("Stop"), 0, count, this);
 * progress.setWindowTitle(tr("Export"));
 * progress.setWindowModality(Qt::WindowModal);
 * for (int i = 0; i < count && !progress.wasCanceled(); ++i) {
 *     progress.setValue(i);
 *     copyTile(i);
 * }
 * if (!progress.wasCanceled()) {
 *     progress.setValue(count);
 * }
 * @endcode
 *
 * setValue() of a modal dialog that was shown runs pending events. Whatever these do, be it another
 * setValue(), cancel(), reset() or the destruction of the dialog, is safe; and so is the
 * destruction from within any signal of the dialog and of its children.
 */
class LMWIDGETS_EXPORT FramelessProcessDialog : public QDialog
{
    Q_OBJECT

    /** Whether the operation was canceled since the last reset(). False at start. */
    Q_PROPERTY(bool wasCanceled READ wasCanceled)
    /** The lowest value. 0 at start. Above the maximum it takes the maximum with it. */
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    /** The highest value. 100 at start. Below the minimum it takes the minimum with it. */
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    /** The progress; one below the minimum before it is first set and after a reset(). */
    Q_PROPERTY(int value READ value WRITE setValue)
    /** Whether reset() is called when the value reaches the maximum. True at start. */
    Q_PROPERTY(bool autoReset READ autoReset WRITE setAutoReset)
    /** Whether reset() hides the dialog. True at start. */
    Q_PROPERTY(bool autoClose READ autoClose WRITE setAutoClose)
    /** How long an operation is expected to take at least for the dialog to appear, in ms. 4000 at
     * start. */
    Q_PROPERTY(int minimumDuration READ minimumDuration WRITE setMinimumDuration)
    /** The text of the label; empty without a label. */
    Q_PROPERTY(QString labelText READ labelText WRITE setLabelText)

public:
    /**
     * Constructs a hidden dialog with a cancel button that reads "Cancel" in the language of the
     * application, no label text and the range 0 to 100. Its time starts running.
     *
     * @p parent may be null; otherwise it owns the dialog. The window flags become Qt::Window and
     * Qt::FramelessWindowHint, whatever @p flags are.
     */
    explicit FramelessProcessDialog(QWidget *parent = nullptr,
                                    Qt::WindowFlags flags = Qt::WindowFlags());
    /** The same with texts and a range. A null @p cancelButtonText makes no cancel button. */
    FramelessProcessDialog(const QString &labelText, const QString &cancelButtonText, int minimum,
                           int maximum, QWidget *parent = nullptr,
                           Qt::WindowFlags flags = Qt::WindowFlags());
    ~FramelessProcessDialog() override;

    /**
     * Replaces the label, which is deleted. The dialog owns the new one. Null removes it; the label
     * that is already there, or one that the dialog stands in, is refused.
     */
    void setLabel(QLabel *label);
    /**
     * Replaces the cancel button, which is deleted. The dialog owns the new one, whose clicked()
     * emits canceled(). Null removes it; the button that is already there is refused.
     */
    void setCancelButton(QPushButton *cancelButton);
    /**
     * Replaces the bar, which is deleted. The dialog owns the new one, which keeps its own range
     * and value. Null and the bar that is already there are refused.
     */
    void setBar(QProgressBar *bar);

    /** Returns whether the operation was canceled since the last reset(). */
    bool wasCanceled() const;

    /** Returns the lowest value. */
    int minimum() const;
    /** Returns the highest value. */
    int maximum() const;

    /** Returns the progress; one below the minimum where there is none. */
    int value() const;

    /** Returns the text of the label; empty without a label. */
    QString labelText() const;
    /**
     * Returns how long an operation must be expected to take for the dialog to appear, in ms.
     */
    int minimumDuration() const;

    /** Sets whether reset() is called when the value reaches the maximum. */
    void setAutoReset(bool reset);
    /** Returns whether reset() is called when the value reaches the maximum. */
    bool autoReset() const;
    /** Sets whether reset() hides the dialog. */
    void setAutoClose(bool close);
    /** Returns whether reset() hides the dialog. */
    bool autoClose() const;

    /** Sets the text at the top of the dialog. The title of the window itself stays empty. */
    void setWindowTitle(const QString &title);

    /** The size that shows label, bar and button; 200 px wide or more. */
    QSize sizeHint() const override;

    using QDialog::open;
    /**
     * Shows the dialog as QDialog::open() does, with canceled() connected to @p member of
     * @p receiver, as SLOT() or SIGNAL() write it. The next reset() ends that connection. Without a
     * receiver or a member the dialog is only shown.
     */
    void open(QObject *receiver, const char *member);

    /**
     * Hides the dialog and sets its result as QDialog does, with one addition: whoever receives
     * accepted() or rejected() may destroy the dialog, which then emits finished() no more.
     */
    void done(int result) override;

public Q_SLOTS:
    /** Resets the dialog, hides it even without autoClose, and sets wasCanceled. It does not emit
     * canceled(). A setValue() after that may show it again: see wasCanceled() first. */
    void cancel();
    /** Takes the dialog back to its start: no value, "0%", not canceled; hidden with autoClose. */
    void reset();
    /** Sets the highest value; one below the minimum becomes the minimum as well. */
    void setMaximum(int maximum);
    /** Sets the lowest value; one above the maximum becomes the maximum as well. */
    void setMinimum(int minimum);
    /** Sets both ends of the range; a @p maximum below @p minimum becomes @p minimum. */
    void setRange(int minimum, int maximum);
    /**
     * Sets the progress, and shows the dialog when it is due. The bar ignores a @p progress outside
     * the range; the percentage ends at 0 and 100. A modal dialog that was shown runs pending
     * events before this returns.
     */
    void setValue(int progress);
    /** Sets the text of the label, if there is one, and grows the dialog to its size hint. */
    void setLabelText(const QString &text);
    /** Sets the caption of the cancel button, which is made if there is none. A null @p text, other
     * than an empty one, deletes it. */
    void setCancelButtonText(const QString &text);
    /** Takes effect at once when the value is the minimum. Less than 0 ms means without delay. */
    void setMinimumDuration(int ms);

Q_SIGNALS:
    /** The cancel button was clicked, or the window closed. cancel() has been called already. */
    void canceled();

protected:
    /** Places the children anew. */
    void resizeEvent(QResizeEvent *event) override;
    /** Emits canceled() and closes. */
    void closeEvent(QCloseEvent *event) override;
    /**
     * Places the children anew in a new style; gives the cancel button of the first constructor
     * its caption in a new language.
     */
    void changeEvent(QEvent *event) override;
    /** Grows the dialog to its size hint. */
    void showEvent(QShowEvent *event) override;
    /** Paints the ground and a border of 1 px in RGB (112, 112, 112). */
    void paintEvent(QPaintEvent *event) override;
    /** Ignores Escape; the other keys do what they do in a QDialog. */
    void keyPressEvent(QKeyEvent *event) override;

protected Q_SLOTS:
    /** Shows the dialog, unless it has been shown since the last reset() or was canceled. */
    void forceShow();

private Q_SLOTS:
    void _q_disconnectOnClose();

private:
    Q_DISABLE_COPY(FramelessProcessDialog)

    friend class FramelessProcessDialogPrivate;
    FramelessProcessDialogPrivate *d;
};

} // namespace Widgets
} // namespace LM

#endif
