#include "accessiblechecks_p.h"

#include <lmwidgets/roundcheckbox.h>
#include <lmwidgets/toggleswitch.h>

#include <QAccessible>
#include <QAccessibleWidget>

namespace LM {
namespace Widgets {

#ifndef QT_NO_ACCESSIBILITY

namespace {

/** A self-painted switch as a check box. */
template <typename Switch>
class AccessibleCheck : public QAccessibleWidget
{
public:
    explicit AccessibleCheck(Switch *widget) : QAccessibleWidget(widget, QAccessible::CheckBox) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = control()->isChecked();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (widget()->isEnabled()) {
            names.prepend(toggleAction());
        }
        return names;
    }

    void doAction(const QString &name) override
    {
        if (name == toggleAction()) {
            if (widget()->isEnabled()) {
                control()->setChecked(!control()->isChecked());
            }
            return;
        }
        QAccessibleWidget::doAction(name);
    }

    QStringList keyBindingsForAction(const QString &) const override { return QStringList(); }

protected:
    Switch *control() const { return static_cast<Switch *>(widget()); }
};

} // namespace

class AccessibleToggleSwitch : public AccessibleCheck<ToggleSwitch>
{
public:
    using AccessibleCheck::AccessibleCheck;

    QString text(QAccessible::Text what) const override
    {
        const QString text = AccessibleCheck::text(what);
        return what == QAccessible::Name && text.isEmpty() ? control()->m_text : text;
    }
};

namespace {

/**
 * Qt asks for the class of @p object and then for each of its bases. Only the switches' own names
 * are answered, so that a host's factory for a class derived from one of them gets its turn.
 */
QAccessibleInterface *createAccessibleCheck(const QString &className, QObject *object)
{
    if (className == QLatin1String(ToggleSwitch::staticMetaObject.className())) {
        if (auto *toggle = qobject_cast<ToggleSwitch *>(object)) {
            return new AccessibleToggleSwitch(toggle);
        }
    }
    if (className == QLatin1String(RoundCheckBox::staticMetaObject.className())) {
        if (auto *box = qobject_cast<RoundCheckBox *>(object)) {
            return new AccessibleCheck<RoundCheckBox>(box);
        }
    }
    return nullptr;
}

} // namespace

void registerAccessibleChecks()
{
    static const bool registered = [] {
        QAccessible::installFactory(createAccessibleCheck);
        return true;
    }();
    Q_UNUSED(registered)
}

void announceChecked(QWidget *widget)
{
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(widget, changed);
    QAccessible::updateAccessibility(&event);
}

void announceName(QWidget *widget)
{
    QAccessibleEvent event(widget, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

#else

void registerAccessibleChecks() {}

void announceChecked(QWidget *widget)
{
    Q_UNUSED(widget)
}

void announceName(QWidget *widget)
{
    Q_UNUSED(widget)
}

#endif

} // namespace Widgets
} // namespace LM
