#include <lmwidgets/customspinbox.h>

#include <QKeyEvent>
#include <QPointer>

namespace LM {
namespace Widgets {

CustomSpinBox::CustomSpinBox(QWidget *parent) : QDoubleSpinBox(parent) {}

CustomSpinBox::~CustomSpinBox() = default;

void CustomSpinBox::keyPressEvent(QKeyEvent *event)
{
    const bool deletes = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    const bool pastes = event->modifiers() == Qt::ControlModifier && event->key() == Qt::Key_V;
    const QPointer<CustomSpinBox> guard(this);
    QAbstractSpinBox::keyPressEvent(event);
    if (!guard || !(deletes || pastes)) {
        return;
    }
    if (deletes && text().isEmpty()) {
        setValue(0.0); // shows the number, which clear() takes away again
        if (!guard) {
            return;
        }
        clear();
        if (!guard) {
            return;
        }
    }
    // The string says nothing about the content: hosts take this as a notice of an edit.
    Q_EMIT textChanged(QString());
}

void CustomSpinBox::focusOutEvent(QFocusEvent *event)
{
    QAbstractSpinBox::focusOutEvent(event);
}

} // namespace Widgets
} // namespace LM
