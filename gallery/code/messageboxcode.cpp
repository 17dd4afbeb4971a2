#include "hostcode.h"

#include <lmwidgets/framelessmessagebox.h>

void gallery::code::messagebox(QWidget *window)
{
    // [host]
    using LM::Widgets::FramelessMessageBox;
    const auto answer = FramelessMessageBox::question(
        window, "Layers", "Delete the layer?", QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer == QMessageBox::Yes) {
        window->close();
    }
    // [end]
}
