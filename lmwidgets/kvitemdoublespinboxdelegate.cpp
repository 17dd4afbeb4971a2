#include <lmwidgets/kvitemdoublespinboxdelegate.h>

#include <QAbstractItemModel>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QtNumeric>

namespace {

constexpr int decimals = 3;

/**
 * The editor of cells that may be empty. QDoubleSpinBox puts its last value back into an empty
 * field on Return, before the delegate is asked to write it, and on the arrow keys and the wheel.
 */
class EmptiableSpinBox : public QDoubleSpinBox
{
public:
    explicit EmptiableSpinBox(QWidget *parent) : QDoubleSpinBox(parent) {}

    void stepBy(int steps) override
    {
        if (!text().isEmpty()) {
            QDoubleSpinBox::stepBy(steps);
        }
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        const bool returns = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (returns && text().isEmpty()) {
            event->ignore();
            return;
        }
        QDoubleSpinBox::keyPressEvent(event);
    }
};

} // namespace

kvItemDoubleSpinboxDelegate::kvItemDoubleSpinboxDelegate(QObject *parent) : QItemDelegate(parent) {}

kvItemDoubleSpinboxDelegate::~kvItemDoubleSpinboxDelegate() = default;

void kvItemDoubleSpinboxDelegate::setMinValue(double value)
{
    if (!qIsNaN(value)) {
        m_minValue = value;
    }
}

void kvItemDoubleSpinboxDelegate::setMaxValue(double value)
{
    if (!qIsNaN(value)) {
        m_maxValue = value;
    }
}

void kvItemDoubleSpinboxDelegate::setEnableEmptyStr(bool enable)
{
    m_enableEmptyString = enable;
}

QWidget *kvItemDoubleSpinboxDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                                   const QModelIndex &) const
{
    auto *editor = m_enableEmptyString ? new EmptiableSpinBox(parent) : new QDoubleSpinBox(parent);
    editor->setButtonSymbols(QAbstractSpinBox::NoButtons);
    editor->setDecimals(decimals);
    editor->setMinimum(m_minValue);
    editor->setMaximum(m_maxValue);
    editor->setSingleStep(0);
    return editor;
}

void kvItemDoubleSpinboxDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *spinBox = qobject_cast<QDoubleSpinBox *>(editor);
    if (!spinBox || !index.isValid()) {
        return;
    }
    const QVariant data = index.data(Qt::EditRole);
    if (m_enableEmptyString && data.toString().isEmpty()) {
        spinBox->clear();
        return;
    }
    // A spin box takes what is not a number for its maximum.
    const double value = data.toDouble();
    spinBox->setValue(qIsNaN(value) ? 0.0 : value);
}

void kvItemDoubleSpinboxDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                               const QModelIndex &index) const
{
    auto *spinBox = qobject_cast<QDoubleSpinBox *>(editor);
    if (!spinBox || !model || !index.isValid()) {
        return;
    }
    // Interpreting an empty text brings the last value back, so emptiness is looked at before.
    const bool empty = spinBox->text().isEmpty();
    spinBox->interpretText();
    QString text = QString::number(spinBox->value(), 'f', decimals);
    if (empty && m_enableEmptyString) {
        // An empty text and not a null one, which a database would store as NULL.
        text = QLatin1String("");
        // The interpretation has put the last value back; a persistent editor would write it next.
        spinBox->clear();
    }
    model->setData(index, QVariant(text), Qt::EditRole);
}

void kvItemDoubleSpinboxDelegate::updateEditorGeometry(QWidget *editor,
                                                       const QStyleOptionViewItem &option,
                                                       const QModelIndex &) const
{
    if (editor) {
        editor->setGeometry(option.rect);
    }
}
