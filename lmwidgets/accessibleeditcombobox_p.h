#ifndef LMWIDGETS_ACCESSIBLEEDITCOMBOBOX_P_H
#define LMWIDGETS_ACCESSIBLEEDITCOMBOBOX_P_H

#include <QAccessibleWidget>
#include <QString>
#include <QStringList>

namespace LM {
namespace Widgets {

class EditComboBox;

/**
 * What assistive technology sees of an EditComboBox: a combo box whose value is the text of its
 * line edit, and whose press opens the whole list, or closes it.
 */
class AccessibleEditComboBox : public QAccessibleWidget
{
public:
    explicit AccessibleEditComboBox(EditComboBox *box);

    /** Makes these interfaces known to Qt, the first time that it is called. */
    static void registerOnce();

    /**
     * Gives the line edit of @p box, which has the focus and is what a screen reader speaks of, the
     * name of the box, unless the host gave it another one.
     */
    static void nameLineEdit(EditComboBox *box);

    QString text(QAccessible::Text text) const override;
    void setText(QAccessible::Text text, const QString &value) override;
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    QString localizedActionDescription(const QString &name) const override;
    void doAction(const QString &name) override;

private:
    // Null once the box is being destroyed and is no more than a QWidget.
    EditComboBox *box() const;
    bool isOpen() const;
};

} // namespace Widgets
} // namespace LM

#endif
