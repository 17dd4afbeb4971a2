#include <lmwidgets/collapsiblegroupbox.h>

#include <QShowEvent>

CollapsibleGroupBox::CollapsibleGroupBox(QWidget *parent) : CollapsibleGroupBoxBasic(parent)
{
    init();
}

CollapsibleGroupBox::CollapsibleGroupBox(const QString &title, QWidget *parent)
    : CollapsibleGroupBoxBasic(title, parent)
{
    init();
}

CollapsibleGroupBox::~CollapsibleGroupBox() = default;

void CollapsibleGroupBox::init()
{
    m_saveCollapsedState = true;
    m_saveCheckedState = false;
}

bool CollapsibleGroupBox::saveCollapsedState()
{
    return m_saveCollapsedState;
}

void CollapsibleGroupBox::setSaveCollapsedState(bool save)
{
    m_saveCollapsedState = save;
}

bool CollapsibleGroupBox::saveCheckedState()
{
    return m_saveCheckedState;
}

void CollapsibleGroupBox::setSaveCheckedState(bool save)
{
    m_saveCheckedState = save;
}

QString CollapsibleGroupBox::settingGroup()
{
    return m_settingGroup;
}

void CollapsibleGroupBox::setSettingGroup(const QString &group)
{
    m_settingGroup = group;
}

void CollapsibleGroupBox::showEvent(QShowEvent *event)
{
    if (m_shown) {
        event->accept();
        return;
    }
    noteFlatness();
    CollapsibleGroupBoxBasic::showEvent(event);
}

QString CollapsibleGroupBox::saveKey()
{
    const QString windowName = window()->objectName();
    if (objectName().isEmpty() || (m_settingGroup.isEmpty() && windowName.isEmpty())) {
        return QString();
    }
    const QString group = m_settingGroup.isEmpty() ? windowName : m_settingGroup;
    return QLatin1String("CollapsibleGroupBox/") + group + QLatin1Char('/') + objectName();
}
