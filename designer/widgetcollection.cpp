#include "widgetcollection.h"

#include "widgetplugin.h"

WidgetCollection::WidgetCollection(QObject *parent) : QObject(parent)
{
    for (const WidgetDescription &description : widgetDescriptions()) {
        m_widgets.append(new WidgetPlugin(description, this));
    }
}
