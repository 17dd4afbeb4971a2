#ifndef FORMEDITOR_H
#define FORMEDITOR_H

#include <QObject>
#include <QString>
#include <QVariant>

QT_BEGIN_NAMESPACE
class QDesignerFormEditorInterface;
class QDesignerFormWindowInterface;
class QDesignerPropertySheetExtension;
class QWidget;
QT_END_NAMESPACE

/** Designer's form editor without Designer's windows, with the plugin of the build tree. */
class FormEditor : public QObject
{
    Q_OBJECT

public:
    FormEditor();
    ~FormEditor() override;

    QDesignerFormEditorInterface *core() const { return m_core; }

    /** Opens @p xml, a .ui file, on a form of its own; null, with Qt's warning, when it cannot. */
    QDesignerFormWindowInterface *open(const QString &xml);
    void close(QDesignerFormWindowInterface *form);

    /** The properties of @p object as the property editor shows them. */
    QDesignerPropertySheetExtension *sheet(QObject *object) const;

private:
    QWidget *const m_topLevel;
    QDesignerFormEditorInterface *const m_core;
};

#endif
