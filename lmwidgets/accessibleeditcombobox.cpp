#include "accessibleeditcombobox_p.h"

#include "editcombobox_p.h"

#include <lmwidgets/editcombobox.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QPushButton>

namespace LM {
namespace Widgets {

namespace {

// Holds the name that the line edit was given on behalf of the box, to tell it from the host's.
constexpr char givenName[] = "_lm_accessibleNameOfBox";

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    if (className != QLatin1String(EditComboBox::staticMetaObject.className())) {
        return nullptr;
    }
    auto *box = qobject_cast<EditComboBox *>(object);
    return box ? new AccessibleEditComboBox(box) : nullptr;
}

} // namespace

AccessibleEditComboBox::AccessibleEditComboBox(EditComboBox *box)
    : QAccessibleWidget(box, QAccessible::ComboBox)
{
}

void AccessibleEditComboBox::registerOnce()
{
    static const bool registered = [] {
        QAccessible::installFactory(createInterface);
        return true;
    }();
    Q_UNUSED(registered)
}

void AccessibleEditComboBox::nameLineEdit(EditComboBox *box)
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(box);
    QLineEdit *lineEdit = box->d->lineEdit;
    if (accessible && lineEdit->accessibleName() == lineEdit->property(givenName).toString()) {
        const QString name = accessible->text(QAccessible::Name);
        lineEdit->setAccessibleName(name);
        lineEdit->setProperty(givenName, name);
    }
}

EditComboBox *AccessibleEditComboBox::box() const
{
    return qobject_cast<EditComboBox *>(widget());
}

bool AccessibleEditComboBox::isOpen() const
{
    const QAbstractItemView *popup = box() ? box()->d->completer->popup() : nullptr;
    return popup && popup->isVisible();
}

QString AccessibleEditComboBox::text(QAccessible::Text text) const
{
    if (text == QAccessible::Value && box()) {
        return box()->d->lineEdit->text();
    }
    return QAccessibleWidget::text(text);
}

void AccessibleEditComboBox::setText(QAccessible::Text text, const QString &value)
{
    if (text != QAccessible::Value) {
        QAccessibleWidget::setText(text, value);
    } else if (box() && box()->isEnabled() && !box()->d->lineEdit->isReadOnly()) {
        box()->d->lineEdit->setText(value);
    }
}

QAccessible::State AccessibleEditComboBox::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    if (!box()) {
        return state;
    }
    const QLineEdit *lineEdit = box()->d->lineEdit;
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = isOpen();
    state.collapsed = !state.expanded;
    state.editable = !lineEdit->isReadOnly();
    state.readOnly = lineEdit->isReadOnly();
    state.focusable = box()->isEnabled();
    state.focused = lineEdit->hasFocus();
    return state;
}

QStringList AccessibleEditComboBox::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (box() && box()->isEnabled()) {
        names.prepend(pressAction());
        names.prepend(showMenuAction());
    }
    names.removeDuplicates();
    return names;
}

QString AccessibleEditComboBox::localizedActionDescription(const QString &name) const
{
    if (name == showMenuAction() || name == pressAction()) {
        return EditComboBox::tr("Opens or closes the list");
    }
    return QAccessibleWidget::localizedActionDescription(name);
}

void AccessibleEditComboBox::doAction(const QString &name)
{
    if (name != showMenuAction() && name != pressAction()) {
        QAccessibleWidget::doAction(name);
    } else if (box() && box()->isEnabled()) {
        if (isOpen()) {
            box()->d->completer->popup()->hide();
        } else {
            box()->d->showAll();
        }
    }
}

} // namespace Widgets
} // namespace LM
