#ifndef LMWIDGETS_EDITCOMBOBOX_H
#define LMWIDGETS_EDITCOMBOBOX_H

#include <lmwidgets/lmwidgets_global.h>

#include <QString>
#include <QStringList>
#include <QWidget>

namespace LM {
namespace Widgets {

class EditComboBoxPrivate;

/**
 * @class EditComboBox editcombobox.h <lmwidgets/editcombobox.h>
 *
 * @brief A text field with a list of suggestions, which typing filters.
 *
 * @image html editcombobox.png
 *
 * The widget is a line edit with a drop-down button of 20 x 20 px at its right. A click into the
 * line edit opens the list of the entries that contain its text, in upper or lower case; so does
 * typing. A click on the button opens the whole list. The list shows up to 10 entries before it
 * scrolls, and picking one writes it into the line edit. Any other text may be entered too.
 *
 * The current index is that of the first entry that equals the text of the line edit, letter by
 * letter; equal entries share the index of the first. It is -1 while there is none. It follows the
 * text and never the list: adding and clearing entries does not change it. It begins with 0, even
 * in an empty box.
 *
 * The list only ever grows, until clear().
 *
 * @code
 * auto *box = new LM::Widgets::EditComboBox({"0.1 m", "0.5 m", "1 m"}, this);
 * box->setPlaceHolderText(tr("Grid size"));
 * connect(box, QOverload<int>::of(&LM::Widgets::EditComboBox::currentIndexChanged), this,
 *         [this](int index) { m_grid->setPreset(index); });
 * @endcode
 *
 * Setting the focus to the box sets it to the line edit. The drop-down image is that of the theme
 * at the time of construction; without one the button is empty. For assistive technology the box
 * is a combo box whose value is the text; pressing it opens the whole list.
 *
 * A slot may destroy the box from within any of its signals.
 */
class LMWIDGETS_EXPORT EditComboBox : public QWidget
{
    Q_OBJECT

    /** Whether the line edit is read-only: true forbids editing. See setEditable(). */
    Q_PROPERTY(bool editable READ isEditable WRITE setEditable)
    /** The number of entries. */
    Q_PROPERTY(int count READ count)
    /** The current entry; empty without one. Writing selects the first equal entry. */
    Q_PROPERTY(QString currentText READ currentText WRITE setCurrentText)

public:
    /** Constructs a box with the entries @p items, the line edit empty and the current index 0. */
    EditComboBox(const QStringList &items, QWidget *parent);
    /** Constructs a box without entries; its current index is 0 all the same. */
    explicit EditComboBox(QWidget *parent = nullptr);
    /** Closes the list and destroys the box with all its parts. */
    ~EditComboBox() override;

    /**
     * Appends @p text to the list. Ignored when the list would have more than maxCount() entries.
     * Neither the current index nor the line edit changes, and no signal is emitted.
     */
    void addItem(const QString &text);
    /** Appends all of @p texts, or none of them when not all fit into maxCount(). See addItem(). */
    void addItems(const QStringList &texts);
    /** Appends @p text like addItem(); @p index does not matter. */
    void insertItem(int index, const QString &text);
    /** Appends @p texts like addItems(); @p index does not matter. */
    void insertItems(int index, const QStringList &texts);
    /** Does nothing: entries are never removed one by one. clear() removes all. */
    void removeItem(int index);

    /** Returns the number of entries. */
    int count() const;

    /**
     * Returns the index of the current entry, or -1. After clear() it may lie past the end of the
     * list, and in an empty box it is 0 at first.
     */
    int currentIndex() const;

    /**
     * Returns the entry at currentIndex(), or an empty text if there is none. What the user typed
     * shows here only where it equals an entry.
     */
    QString currentText();

    /**
     * Gives the line edit a red border for 2000 ms to point out invalid input. Every call starts a
     * time of its own, and the first one to end takes the red border away.
     */
    void displayErrorStates();

    /** Returns whether the line edit is read-only: the opposite of what the name suggests. */
    bool isEditable() const;
    /**
     * Makes the line edit read-only when @p b is true, and writable when it is false, as it is at
     * first. Entries can be picked from the list in either case.
     */
    void setEditable(bool b);

    /** Returns the largest number of entries that adding may lead to; 2147483647 at first. */
    int maxCount() const;
    /** Sets maxCount(). Entries that the list already has stay, also where they are more. */
    void setMaxCount(int max);

    /** Sets the text that the empty line edit shows. */
    void setPlaceHolderText(const QString &text);

public Q_SLOTS:
    /** Removes all entries. Neither the current index nor the line edit changes; no signal. */
    void clear();
    /**
     * Empties the line edit and emits currentTextChanged() with an empty text, always; before that
     * currentIndexChanged() where the index changed.
     */
    void clearEditText();
    /**
     * Writes @p text, which need not be an entry, into the line edit. Always emits
     * currentIndexChanged(int), then currentIndexChanged(const QString &) if it is an entry, and
     * then currentTextChanged(); all that after the currentIndexChanged(int) of the line edit's
     * change where the index is a new one.
     */
    void setEditText(const QString &text);
    /**
     * Writes the entry @p index into the line edit. An index outside the list empties the line edit
     * and makes the current index -1, which is not reported. Otherwise currentIndexChanged(int) is
     * emitted where the text of the line edit changed and its index is not the current one; with
     * equal entries that is the index of the first, while currentIndex() becomes @p index.
     */
    void setCurrentIndex(int index);
    /** Makes the first entry that equals @p text the current one; none if there is none. */
    void setCurrentText(const QString &text);

Q_SIGNALS:
    /**
     * The current index is now @p index, -1 for none: because the user typed or picked an entry, or
     * the host changed the text. Not emitted when entries are added or removed.
     */
    void currentIndexChanged(int index);
    /** The host set an entry's text with setEditText(). Not emitted for anything else. */
    void currentIndexChanged(const QString &text);
    /**
     * The host set the text with setEditText() or clearEditText(); or editing was finished with
     * Return or by leaving the line edit, and the text is an entry whose index was not the current
     * one, for example because it was added meanwhile. Not emitted for every key.
     */
    void currentTextChanged(const QString &text);

protected:
    /** Opens the list at a press of a mouse button in the line edit while the box is enabled. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Q_DISABLE_COPY(EditComboBox)
    friend class AccessibleEditComboBox;
    friend class EditComboBoxPrivate;

    EditComboBoxPrivate *d = nullptr;
};

} // namespace Widgets
} // namespace LM

#endif
