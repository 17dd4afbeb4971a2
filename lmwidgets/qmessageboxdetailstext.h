#ifndef LMWIDGETS_QMESSAGEBOXDETAILSTEXT_H
#define LMWIDGETS_QMESSAGEBOXDETAILSTEXT_H

#include <lmwidgets/lmwidgets_global.h>

#include <QTextEdit>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QContextMenuEvent;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

/**
 * @class QMessageBoxDetailsText qmessageboxdetailstext.h <lmwidgets/qmessageboxdetailstext.h>
 *
 * @brief The detailed text of a message box: a line above a read-only text that scrolls.
 *
 * @image html qmessageboxdetailstext.png
 *
 * The text is 100 px high and takes no keyboard focus, so that the keys stay with the message box;
 * the mouse selects in it, and the context menu, copy() and selectAll() act on it.
 *
 * @code
 * auto *details = new LM::Widgets::QMessageBoxDetailsText(this);
 * details->setText(log);
 * if (!details->copy()) {
 *     QGuiApplication::clipboard()->setText(details->text());
 * }
 * @endcode
 */
class LMWIDGETS_EXPORT QMessageBoxDetailsText : public QWidget
{
    Q_OBJECT

public:
    /** The text edit, whose context menu does not block and deletes itself. */
    class LMWIDGETS_EXPORT TextEdit : public QTextEdit
    {
    public:
        /** Constructs an empty text edit. */
        explicit TextEdit(QWidget *parent = nullptr);
        ~TextEdit() override;

    protected:
        /** Pops the standard menu up where the mouse is and returns at once. */
        void contextMenuEvent(QContextMenuEvent *event) override;

    private:
        Q_DISABLE_COPY(TextEdit)
    };

    /** Constructs the line and an empty text. */
    explicit QMessageBoxDetailsText(QWidget *parent = nullptr);
    ~QMessageBoxDetailsText() override;

    /** Returns the text, as plain text. */
    QString text() const;
    /** Shows @p text as it is: nothing in it counts as markup. A selection is lost. */
    void setText(const QString &text);

    /**
     * Copies the selected text to the clipboard and returns true; returns false, and leaves the
     * clipboard alone, when nothing is selected.
     */
    bool copy();
    /** Selects the whole text. */
    void selectAll();

private Q_SLOTS:
    void textCopyAvailable(bool available);

private:
    Q_DISABLE_COPY(QMessageBoxDetailsText)

    bool m_copyAvailable = false;
    TextEdit *m_textEdit;
};

} // namespace Widgets
} // namespace LM

#endif
