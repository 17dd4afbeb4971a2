#include "accessiblecustomtabbar_p.h"

#include <lmwidgets/qcustomtabbar.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeySequence>
#include <QPointer>
#include <QVector>

#ifndef QT_NO_ACCESSIBILITY

namespace LM {
namespace Widgets {

namespace {

/** Returns @p text without the marks of its keyboard shortcut. */
QString withoutMnemonic(const QString &text)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('&') && ++i == text.size()) {
            break;
        }
        result.append(text.at(i));
    }
    return result;
}

/** One tab of a bar. It stays with its position, as the tabs of a bar do for Qt. */
class AccessibleTab : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessibleTab(QCustomTabBar *bar, int index) : m_bar(bar), m_index(index) {}

    bool isValid() const override { return m_bar && m_index < m_bar->count(); }
    QObject *object() const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::PageTab; }
    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_bar);
    }
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    void setText(QAccessible::Text, const QString &) override {}

    QRect rect() const override
    {
        return isValid() ? m_bar->tabRect(m_index).translated(m_bar->mapToGlobal(QPoint(0, 0)))
                         : QRect();
    }

    QAccessible::State state() const override
    {
        QAccessible::State result;
        if (!isValid()) {
            result.invalid = true;
            return result;
        }
        const bool isEnabled = m_bar->isEnabled() && m_bar->isTabEnabled(m_index);
        const QRect tab = m_bar->tabRect(m_index);
        result.disabled = !isEnabled;
        result.selectable = isEnabled;
        result.selected = m_bar->currentIndex() == m_index;
        result.focusable = isEnabled && m_bar->focusPolicy() != Qt::NoFocus;
        result.focused = result.selected && m_bar->hasFocus();
        result.invisible = !m_bar->isVisible() || tab.isEmpty();
        result.offscreen = !m_bar->rect().intersects(tab);
        return result;
    }

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid()) {
            return QString();
        }
        switch (kind) {
        case QAccessible::Name: {
            const QString name = m_bar->accessibleTabName(m_index);
            return name.isEmpty() ? withoutMnemonic(m_bar->tabText(m_index)) : name;
        }
        case QAccessible::Description:
            return m_bar->tabToolTip(m_index);
        case QAccessible::Help:
            return m_bar->tabWhatsThis(m_index);
        case QAccessible::Accelerator:
            return QKeySequence::mnemonic(m_bar->tabText(m_index))
                .toString(QKeySequence::NativeText);
        default:
            return QString();
        }
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface
                   ? static_cast<QAccessibleActionInterface *>(this)
                   : nullptr;
    }

    QStringList actionNames() const override
    {
        return isValid() && !state().disabled ? QStringList(pressAction()) : QStringList();
    }
    void doAction(const QString &name) override
    {
        if (name == pressAction() && actionNames().contains(name)) {
            m_bar->setCurrentIndex(m_index);
        }
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    const QPointer<QCustomTabBar> m_bar;
    const int m_index;
};

/** The bar: first come its tabs, then the widgets on it, such as the buttons that scroll it. */
class AccessibleTabBar : public QAccessibleWidget
{
public:
    explicit AccessibleTabBar(QCustomTabBar *bar) : QAccessibleWidget(bar, QAccessible::PageTabList)
    {
    }
    ~AccessibleTabBar() override
    {
        for (const QAccessible::Id id : qAsConst(m_tabs)) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }

    int childCount() const override { return tabCount() + QAccessibleWidget::childCount(); }

    QAccessibleInterface *child(int index) const override
    {
        if (index < 0) {
            return nullptr;
        }
        return index < tabCount() ? tab(index) : QAccessibleWidget::child(index - tabCount());
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        for (int i = 0; i < tabCount() && i < m_tabs.size(); ++i) {
            if (QAccessible::accessibleInterface(m_tabs.at(i)) == child) {
                return i;
            }
        }
        const int index = QAccessibleWidget::indexOfChild(child);
        return index < 0 ? index : index + tabCount();
    }

    QAccessibleInterface *childAt(int x, int y) const override
    {
        for (int i = 0; i < tabCount(); ++i) {
            if (tab(i)->rect().contains(x, y)) {
                return tab(i);
            }
        }
        return QAccessibleWidget::childAt(x, y);
    }

    QAccessibleInterface *focusChild() const override
    {
        const int current = bar() ? bar()->currentIndex() : -1;
        return bar() && bar()->hasFocus() && current >= 0 ? tab(current)
                                                          : QAccessibleWidget::focusChild();
    }

private:
    QCustomTabBar *bar() const { return qobject_cast<QCustomTabBar *>(object()); }
    int tabCount() const { return bar() ? bar()->count() : 0; }

    QAccessibleInterface *tab(int index) const
    {
        while (m_tabs.size() <= index) {
            m_tabs.append(
                QAccessible::registerAccessibleInterface(new AccessibleTab(bar(), m_tabs.size())));
        }
        return QAccessible::accessibleInterface(m_tabs.at(index));
    }

    mutable QVector<QAccessible::Id> m_tabs; // by position, made when they are first asked for
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    // Qt asks for the name of each class from the object's own up to QObject.
    auto *bar = className == QLatin1String(QCustomTabBar::staticMetaObject.className())
                    ? qobject_cast<QCustomTabBar *>(object)
                    : nullptr;
    return bar ? new AccessibleTabBar(bar) : nullptr;
}

} // namespace

void installAccessibleCustomTabBar()
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(createInterface);
        return true;
    }();
    Q_UNUSED(isInstalled)
}

} // namespace Widgets
} // namespace LM

#else

void LM::Widgets::installAccessibleCustomTabBar() {}

#endif
