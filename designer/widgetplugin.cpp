#include "widgetplugin.h"

#include <QIcon>
#include <QWidget>

WidgetPlugin::WidgetPlugin(const WidgetDescription &description, QObject *parent)
    : QObject(parent), m_description(description)
{
}

QString WidgetPlugin::name() const
{
    return QString::fromUtf8(m_description.className);
}

QString WidgetPlugin::group() const
{
    return QString::fromUtf8(m_description.group);
}

QString WidgetPlugin::toolTip() const
{
    return QString::fromUtf8(m_description.toolTip);
}

QString WidgetPlugin::whatsThis() const
{
    return QString::fromUtf8(m_description.whatsThis);
}

QString WidgetPlugin::includeFile() const
{
    return QString::fromUtf8(m_description.header);
}

/** The picture has the name of the class in lower case, without its namespace. */
QIcon WidgetPlugin::icon() const
{
    const QString className = name().section(QStringLiteral("::"), -1).toLower();
    return QIcon(QStringLiteral(":/lmwidgets/designer/") + className + QStringLiteral(".png"));
}

bool WidgetPlugin::isContainer() const
{
    return m_description.isContainer;
}

QWidget *WidgetPlugin::createWidget(QWidget *parent)
{
    return m_description.create(parent);
}

bool WidgetPlugin::isInitialized() const
{
    return m_initialized;
}

void WidgetPlugin::initialize(QDesignerFormEditorInterface *)
{
    m_initialized = true;
}

QString WidgetPlugin::domXml() const
{
    // Where the classes that uic and the form builder treat in a way of their own, such as the pages
    // of a tab widget, are concerned, the base class decides; Designer takes it from here.
    return QStringLiteral("<ui language=\"c++\" displayname=\"%1\">"
                          "<widget class=\"%2\" name=\"%3\">"
                          "<property name=\"geometry\"><rect><x>0</x><y>0</y>"
                          "<width>%4</width><height>%5</height></rect></property>"
                          "%6"
                          "</widget>"
                          "<customwidgets><customwidget>"
                          "<class>%2</class><extends>%7</extends>%8"
                          "</customwidget></customwidgets>"
                          "</ui>")
        .arg(QString::fromUtf8(m_description.displayName), name(),
             QString::fromUtf8(m_description.objectName),
             QString::number(m_description.size.width()),
             QString::number(m_description.size.height()),
             QString::fromUtf8(m_description.contents), QString::fromUtf8(m_description.extends),
             QString::fromUtf8(m_description.specifications));
}
