#ifndef LMWIDGETS_DESIGNER_WIDGETPLUGIN_H
#define LMWIDGETS_DESIGNER_WIDGETPLUGIN_H

#include <QObject>
#include <QSize>
#include <QString>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <QVector>

/** What Designer has to know about one widget. All texts are UTF-8. */
struct WidgetDescription
{
    /** The class as C++ writes it, with its namespace. */
    const char *className;
    /** The nearest class of Qt's that it derives from; uic treats the widget as one of these. */
    const char *extends;
    /** The header as a host includes it, for example "lmwidgets/toggleswitch.h". */
    const char *header;
    /** The group of the widget box. */
    const char *group;
    /** The name in the widget box. */
    const char *displayName;
    /** The object name that a new widget begins with. */
    const char *objectName;
    /** The size in px that a widget dropped on a form has. */
    QSize size;
    const char *toolTip;
    const char *whatsThis;
    /** Makes the widget as a child of a parent that may be null. */
    QWidget *(*create)(QWidget *parent);
    /** Further contents of the widget element of a new widget: properties, pages. */
    const char *contents;
    /** Further contents of the class element: how properties of the class are edited. */
    const char *specifications;
    bool isContainer;
};

/** Returns the widgets that a form can hold, in the order of the widget box. */
const QVector<WidgetDescription> &widgetDescriptions();

/** One widget of the library in the widget box of Designer. */
class WidgetPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    explicit WidgetPlugin(const WidgetDescription &description, QObject *parent = nullptr);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget *createWidget(QWidget *parent) override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface *core) override;
    QString domXml() const override;

private:
    Q_DISABLE_COPY(WidgetPlugin)

    const WidgetDescription m_description;
    bool m_initialized = false;
};

#endif
