#ifndef LMWIDGETS_DESIGNER_WIDGETCOLLECTION_H
#define LMWIDGETS_DESIGNER_WIDGETCOLLECTION_H

#include <QList>
#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

/** The plugin of Designer and of QUiLoader: all widgets of the library that a form can hold. */
class WidgetCollection : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit WidgetCollection(QObject *parent = nullptr);

    QList<QDesignerCustomWidgetInterface *> customWidgets() const override { return m_widgets; }

private:
    Q_DISABLE_COPY(WidgetCollection)

    QList<QDesignerCustomWidgetInterface *> m_widgets;
};

#endif
