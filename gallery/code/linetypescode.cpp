#include "hostcode.h"

#include <lmwidgets/linetypecombobox.h>

#include <QWidget>

void gallery::code::linetypes(QWidget *window)
{
    // [host]
    auto *box = new LM::Widgets::LineTypeComboBox(window);
    QObject::connect(
        box, QOverload<int>::of(&QComboBox::activated), window,
        [window, box](int index) { window->setWindowTitle(box->itemData(index).toString()); });
    // [end]
}
