#include "hostcode.h"

#include <lmwidgets/editcombobox.h>

void gallery::code::editcombo(QWidget *window)
{
    // [host]
    auto *box = new LM::Widgets::EditComboBox({"0.1 m", "0.5 m", "1 m"}, window);
    box->setPlaceHolderText("Grid size");
    QObject::connect(box, QOverload<int>::of(&LM::Widgets::EditComboBox::currentIndexChanged),
                     window, [window, box] { window->setWindowTitle(box->currentText()); });
    // [end]
}
