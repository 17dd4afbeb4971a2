#include <lmwidgets/kvitemlineeditdelegate.h>

#include <QAbstractItemModel>
#include <QLineEdit>
#include <QRegExpValidator>

KVItemLineEditDelegate::KVItemLineEditDelegate(const QRegExp &regExp, QObject *parent)
    : QItemDelegate(parent), m_regExp(regExp)
{
}

KVItemLineEditDelegate::~KVItemLineEditDelegate() = default;

QWidget *KVItemLineEditDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                              const QModelIndex &) const
{
    auto *editor = new QLineEdit(parent);
    // The validator lives as long as the view's viewport, not only as long as the editor. Only a
    // line edit that has no parent keeps its validator itself.
    QObject *validatorParent = parent ? parent : editor;
    editor->setValidator(new QRegExpValidator(m_regExp, validatorParent));
    return editor;
}

void KVItemLineEditDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *lineEdit = qobject_cast<QLineEdit *>(editor);
    if (!lineEdit || !index.isValid()) {
        return;
    }
    lineEdit->setText(index.data(Qt::EditRole).toString());
}

void KVItemLineEditDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                          const QModelIndex &index) const
{
    auto *lineEdit = qobject_cast<QLineEdit *>(editor);
    if (!lineEdit || !model || !index.isValid()) {
        return;
    }
    model->setData(index, QVariant(lineEdit->text()), Qt::EditRole);
}

void KVItemLineEditDelegate::updateEditorGeometry(QWidget *editor,
                                                  const QStyleOptionViewItem &option,
                                                  const QModelIndex &) const
{
    if (editor) {
        editor->setGeometry(option.rect);
    }
}
