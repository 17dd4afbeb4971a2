#include "formeditor.h"

#include <QCoreApplication>
#include <QtDesigner/QDesignerActionEditorInterface>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerObjectInspectorInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerWidgetBoxInterface>
#include <QtDesigner/QExtensionManager>
#include <QWidget>

FormEditor::FormEditor()
    : m_topLevel(new QWidget), m_core(QDesignerComponents::createFormEditor(this))
{
    QDesignerComponents::initializeResources();
    m_core->setTopLevel(m_topLevel);
    m_core->setWidgetBox(QDesignerComponents::createWidgetBox(m_core, m_topLevel));
    m_core->setPropertyEditor(QDesignerComponents::createPropertyEditor(m_core, m_topLevel));
    m_core->setObjectInspector(QDesignerComponents::createObjectInspector(m_core, m_topLevel));
    m_core->setActionEditor(QDesignerComponents::createActionEditor(m_core, m_topLevel));
    QDesignerComponents::createTaskMenu(m_core, this);
    QDesignerComponents::initializePlugins(m_core);
    new QDesignerIntegration(m_core, this);
}

FormEditor::~FormEditor()
{
    delete m_topLevel;
}

QDesignerFormWindowInterface *FormEditor::open(const QString &xml)
{
    QDesignerFormWindowInterface *form = m_core->formWindowManager()->createFormWindow(m_topLevel);
    form->setContents(xml);
    if (!form->mainContainer()) {
        close(form);
        return nullptr;
    }
    m_core->formWindowManager()->setActiveFormWindow(form);
    return form;
}

void FormEditor::close(QDesignerFormWindowInterface *form)
{
    m_core->formWindowManager()->removeFormWindow(form);
    delete form;
}

QDesignerPropertySheetExtension *FormEditor::sheet(QObject *object) const
{
    return qt_extension<QDesignerPropertySheetExtension *>(m_core->extensionManager(), object);
}
