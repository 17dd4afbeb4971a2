#ifndef LMWIDGETS_FRAMELESSMESSAGEBOX_H
#define LMWIDGETS_FRAMELESSMESSAGEBOX_H

#include <lmwidgets/framelessdialog.h>
#include <lmwidgets/lmwidgets_global.h>

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPixmap>

QT_BEGIN_NAMESPACE
class QAbstractButton;
class QCheckBox;
class QPushButton;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

class FramelessMessageBoxPrivate;

/**
 * @class FramelessMessageBox framelessmessagebox.h <lmwidgets/framelessmessagebox.h>
 *
 * @brief A modal message with a row of buttons, in the frame of the library.
 *
 * @image html framelessmessagebox.png
 *
 * It is used like QMessageBox and shares its enumerations, properties, keys and results. What
 * differs:
 *
 * - The box is 444 px wide, whatever its text, and as high as its text needs.
 * - The icon stands in the title bar, not beside the text.
 * - setDefaultOKButton() gives the usual buttons fixed captions and a yellow or a transparent look.
 * - An OK button, where there is one, becomes the default button with setDefaultButton() of another
 *   standard button and with setWindowModality().
 * - The informative text is kept, and copied by Ctrl+C, but not shown.
 * - Where no button can stand for Escape, the title bar has no close button. That is so for a single
 *   button beside the details as well: name one with setEscapeButton() there.
 * - A word that is wider than 374 px is cut off, and so is text that is higher than the screen.
 *
 * @code
 * using LM::Widgets::FramelessMessageBox;
 * const auto answer = FramelessMessageBox::question(window, tr("Layers"),
 *     tr("Delete the layer?"), QMessageBox::Yes | QMessageBox::No);
 * if (answer == QMessageBox::Yes) {
 *     deleteLayer();
 * }
 * @endcode
 *
 * Where nobody has given the focus to a widget of the box before it is shown, it goes to the button
 * that accepts or says yes.
 *
 * A slot may delete the box from within any signal that it emits.
 */
class LMWIDGETS_EXPORT FramelessMessageBox : public FramelessDialog
{
    Q_OBJECT

    /** The message. Empty at start. */
    Q_PROPERTY(QString text READ text WRITE setText)
    /** The icon in the title bar. QMessageBox::NoIcon at start and with a pixmap of the host's own.
     */
    Q_PROPERTY(QMessageBox::Icon icon READ icon WRITE setIcon)
    /** The pixmap of the icon, 16 x 16 px for the standard icons. Null at start. */
    Q_PROPERTY(QPixmap iconPixmap READ iconPixmap WRITE setIconPixmap)
    /** How the message is read. Qt::AutoText at start. */
    Q_PROPERTY(Qt::TextFormat textFormat READ textFormat WRITE setTextFormat)
    /** The standard buttons of the box. None at start. */
    Q_PROPERTY(
        QMessageBox::StandardButtons standardButtons READ standardButtons WRITE setStandardButtons)
    /** The text behind the "Show Details..." button. Empty at start: no such button. */
    Q_PROPERTY(QString detailedText READ detailedText WRITE setDetailedText)
    /** A second text, which Ctrl+C copies but which is not shown. Empty at start. */
    Q_PROPERTY(QString informativeText READ informativeText WRITE setInformativeText)
    /** What the mouse and the keyboard can do with the message. The style decides at start. */
    Q_PROPERTY(Qt::TextInteractionFlags textInteractionFlags READ textInteractionFlags WRITE
                   setTextInteractionFlags)

public:
    /**
     * Constructs a modal box without icon, title, text and buttons. @p parent may be null;
     * otherwise it owns the box. A box that is shown without a button gets an OK button.
     */
    explicit FramelessMessageBox(QWidget *parent = nullptr);
    /**
     * Constructs a modal box with @p icon, @p title, @p text and @p buttons, which get the captions
     * and the look of setDefaultOKButton(). The window flags are @p f and those that the frame
     * needs.
     */
    FramelessMessageBox(QMessageBox::Icon icon, const QString &title, const QString &text,
                        QMessageBox::StandardButtons buttons = QMessageBox::NoButton,
                        QWidget *parent = nullptr,
                        Qt::WindowFlags f = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    ~FramelessMessageBox() override;

    /**
     * Adds @p button with @p role and takes ownership; a button that is in the box already changes
     * its role. Its result code is its place among the buttons added with a role. A null button, or
     * a role that is none, is ignored.
     */
    void addButton(QAbstractButton *button, QMessageBox::ButtonRole role);
    /** Adds a new button with @p text and @p role and returns it; null for a role that is none. */
    QPushButton *addButton(const QString &text, QMessageBox::ButtonRole role);
    /**
     * Adds the standard button @p button with its caption, see retranslateButtonUi(), and returns
     * it; null, and nothing is added, for a value that is no single standard button.
     */
    QPushButton *addButton(QMessageBox::StandardButton button);
    /** Takes @p button out of the box; it becomes the caller's. Ignored when it is not in the box.
     */
    void removeButton(QAbstractButton *button);

    using QDialog::open;
    /**
     * Shows the box and returns at once. @p member of @p receiver is connected to buttonClicked()
     * when its signature contains a pointer, otherwise to QDialog::finished(), until a button has
     * been clicked or the box is opened again. With a null argument the box is only shown.
     */
    void open(QObject *receiver, const char *member);

    /** Returns all buttons, grouped by their role; that of the details is one of them. */
    QList<QAbstractButton *> buttons() const;
    /** Returns the role of @p button; QMessageBox::InvalidRole when it is not in the box. */
    QMessageBox::ButtonRole buttonRole(QAbstractButton *button) const;

    /** Replaces the standard buttons, which are deleted. Buttons added with a role stay. */
    void setStandardButtons(QMessageBox::StandardButtons buttons);
    /** Returns the standard buttons of the box. */
    QMessageBox::StandardButtons standardButtons() const;
    /** Returns which standard button @p button is; QMessageBox::NoButton for null and others. */
    QMessageBox::StandardButton standardButton(QAbstractButton *button) const;
    /** Returns the standard button @p which; null when the box has none. */
    QAbstractButton *button(QMessageBox::StandardButton which) const;

    /** Returns the button set by setDefaultButton(), or null. */
    QPushButton *defaultButton() const;
    /** Makes Enter click @p button and gives it the focus. Ignored when it is not in the box. */
    void setDefaultButton(QPushButton *button);
    /** The same for a standard button, unless the box has an OK button, which then is made default.
     */
    void setDefaultButton(QMessageBox::StandardButton button);

    /** Returns the button set by setEscapeButton(), or null. */
    QAbstractButton *escapeButton() const;
    /**
     * Makes Escape and the title bar's close button stand for @p button, from the next show on.
     * Ignored when it is not in the box. Without it they stand for Cancel; else the only button;
     * else the one button that rejects; else the one that says no. Where there is none of these,
     * the box is closed by its buttons alone.
     */
    void setEscapeButton(QAbstractButton *button);
    /** The same for a standard button. */
    void setEscapeButton(QMessageBox::StandardButton button);

    /** Returns the button that closed the box, also when Escape stood for it; null at start. */
    QAbstractButton *clickedButton() const;

    /** Returns the message. */
    QString text() const;
    /** Shows @p text, which wraps at the width of the box; links in it are opened. */
    void setText(const QString &text);

    /** Returns the icon; QMessageBox::NoIcon for a pixmap of the host's own. */
    QMessageBox::Icon icon() const;
    /**
     * Shows the image of @p icon in the title bar and as the window's icon. The images lie beside
     * the executable, in "theme/qssimage/"; a missing one leaves the place empty.
     */
    void setIcon(QMessageBox::Icon icon);

    /** Returns the pixmap of the icon, or a null pixmap. */
    QPixmap iconPixmap() const;
    /** Stores @p pixmap; icon() becomes QMessageBox::NoIcon. What the title bar shows stays. */
    void setIconPixmap(const QPixmap &pixmap);

    /** Returns how the message is read. */
    Qt::TextFormat textFormat() const;
    /** Sets how the message is read: as plain text, as rich text or by what it looks like. */
    void setTextFormat(Qt::TextFormat format);

    /** Returns what the mouse and the keyboard can do with the message. */
    Qt::TextInteractionFlags textInteractionFlags() const;
    /** Sets it, until the style changes. */
    void setTextInteractionFlags(Qt::TextInteractionFlags flags);

    /** Returns the check box, or null. */
    QCheckBox *checkBox() const;
    /**
     * Places @p checkBox beside the buttons and takes ownership. A former one is hidden and deleted
     * when control returns to the event loop. Null only takes the former one away.
     */
    void setCheckBox(QCheckBox *checkBox);

    /** Returns the informative text. */
    QString informativeText() const;
    /** Keeps @p text for Ctrl+C; an empty one takes it away. */
    void setInformativeText(const QString &text);

    /** Returns the text behind the details button. */
    QString detailedText() const;
    /** Sets the text that a "Show Details..." button shows; an empty one removes text and button.
     */
    void setDetailedText(const QString &text);

    /** Sets the text of the title bar. */
    void setWindowTitle(const QString &title);
    /**
     * Sets the modality. A box with a parent becomes a sheet for Qt::WindowModal and a dialog
     * otherwise; a box that is on the screen is hidden by that. An OK button becomes the default
     * button.
     */
    void setWindowModality(Qt::WindowModality modality);

    /**
     * Gives OK, Yes, Cancel, No, Close, Retry, Save, YesToAll and Abort their fixed captions -
     * Close reads "Exit", Save "Save and Exit", YesToAll "Switch" and Abort "Close" - and their
     * look: OK, Yes, Close, Save and YesToAll are yellow, the others transparent. Other buttons
     * stay as they are. The constructors and the static functions call it; call it again after
     * adding such buttons.
     */
    void setDefaultOKButton();
    /** Sets the caption of @p which, if the box has that button. */
    void changeButtonText(QDialogButtonBox::StandardButton which, QString text);
    /** Shows or hides @p which, if the box has that button. */
    void setButtonIsVisiable(QDialogButtonBox::StandardButton which, bool visible);
    /**
     * Gives @p which, if the box has that button, its usual caption in the current language, with
     * the mnemonics that are usual: "&Save", "&Yes", "&Cancel". RestoreDefaults keeps the caption
     * of Qt.
     */
    void retranslateButtonUi(QMessageBox::StandardButton which);

    /**
     * Shows an information and waits for the answer. @p parent may be null.
     *
     * The button that becomes the default is @p defaultButton or, for QMessageBox::NoButton, the
     * first one that accepts. Returns the button that closed the box; QMessageBox::NoButton when it
     * was closed without one, for example because @p parent was destroyed meanwhile.
     */
    static QMessageBox::StandardButton
    information(QWidget *parent, const QString &title, const QString &text,
                QMessageBox::StandardButtons buttons,
                QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    /**
     * The same with two additions, and what a call with three arguments means. The property
     * @p propertyName, if it is not null, is set to @p propertyValue on the box, for style sheets
     * to select on. @p closeButtonVisible false hides the close button of the title bar.
     */
    static QMessageBox::StandardButton
    information(QWidget *parent, const QString &title, const QString &text,
                char *propertyName = nullptr, bool propertyValue = false,
                QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                QMessageBox::StandardButton defaultButton = QMessageBox::NoButton,
                bool closeButtonVisible = true);

    /** Asks a question and waits for the answer, see information(). */
    static QMessageBox::StandardButton
    question(QWidget *parent, const QString &title, const QString &text,
             QMessageBox::StandardButtons buttons,
             QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    /** The same with a property and the choice of the close button, see information(). */
    static QMessageBox::StandardButton
    question(QWidget *parent, const QString &title, const QString &text,
             char *propertyName = nullptr, bool propertyValue = false,
             QMessageBox::StandardButtons buttons = QMessageBox::Ok,
             QMessageBox::StandardButton defaultButton = QMessageBox::NoButton,
             bool closeButtonVisible = true);

    /** Shows a warning and waits for the answer, see information(). */
    static QMessageBox::StandardButton
    warning(QWidget *parent, const QString &title, const QString &text,
            QMessageBox::StandardButtons buttons,
            QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    /** The same with a property and the choice of the close button, see information(). */
    static QMessageBox::StandardButton
    warning(QWidget *parent, const QString &title, const QString &text,
            char *propertyName = nullptr, bool propertyValue = false,
            QMessageBox::StandardButtons buttons = QMessageBox::Ok,
            QMessageBox::StandardButton defaultButton = QMessageBox::NoButton,
            bool closeButtonVisible = true);

    /** Shows an error and waits for the answer, see information(). */
    static QMessageBox::StandardButton
    critical(QWidget *parent, const QString &title, const QString &text,
             QMessageBox::StandardButtons buttons,
             QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    /** The same with a property and the choice of the close button, see information(). */
    static QMessageBox::StandardButton
    critical(QWidget *parent, const QString &title, const QString &text,
             char *propertyName = nullptr, bool propertyValue = false,
             QMessageBox::StandardButtons buttons = QMessageBox::Ok,
             QMessageBox::StandardButton defaultButton = QMessageBox::NoButton,
             bool closeButtonVisible = true);

    /** Shows @p text about the host application, with an OK button, and waits until it is closed.
     */
    static void about(QWidget *parent, const QString &title, const QString &text);
    /** Shows which Qt the host uses; an empty @p title means "About Qt". Waits until it is closed.
     */
    static void aboutQt(QWidget *parent, const QString &title = QString());

Q_SIGNALS:
    /**
     * @p button was clicked, with the mouse or a key, and the box has closed. Emitted after
     * QDialog::finished(); not for the details button, nor when the title bar closed the box.
     */
    void buttonClicked(QAbstractButton *button);

protected:
    /** Keeps the captions in a change of language, and the size up to date with the content. */
    bool event(QEvent *event) override;
    /** As in QDialog. */
    void resizeEvent(QResizeEvent *event) override;
    /** Completes the buttons and settles which one Escape stands for, then sizes the box. */
    void showEvent(QShowEvent *event) override;
    /** Counts as the button that Escape stands for; refused where there is none. */
    void closeEvent(QCloseEvent *event) override;
    /** Escape, copy, select all, and the shortcuts of the buttons without Alt. */
    void keyPressEvent(QKeyEvent *event) override;
    /** Takes icon, text interaction and the place of the buttons from a new style. */
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void slot_buttonClicked(QAbstractButton *button);
    void slot_clicked(QMessageBox::StandardButton button, QMessageBox::ButtonRole role);

private:
    Q_DISABLE_COPY(FramelessMessageBox)

    friend class FramelessMessageBoxPrivate;
    FramelessMessageBoxPrivate *d;
};

} // namespace Widgets
} // namespace LM

#endif
