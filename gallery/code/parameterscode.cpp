#include "hostcode.h"

#include <lmwidgets/customspinbox.h>

void gallery::code::parameters(QWidget *window)
{
    // [host]
    auto *offset = new LM::Widgets::CustomSpinBox(window);
    offset->setRange(-100, 100);
    QObject::connect(offset, &QDoubleSpinBox::textChanged, window, [window](const QString &text) {
        window->setWindowModified(!text.isEmpty()); // empty: the usual value is to be used
    });
    // [end]
}
