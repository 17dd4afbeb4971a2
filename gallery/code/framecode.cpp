#include "hostcode.h"

#include <lmwidgets/framelessdialog.h>

#include <QLineEdit>
#include <QVBoxLayout>

void gallery::code::frame(QWidget *window)
{
    // [host]
    LM::Widgets::FramelessDialog dialog(window);
    dialog.setWindowTitle("Rename layer");
    auto *layout = new QVBoxLayout;
    auto *name = new QLineEdit("Ground");
    layout->addWidget(name);
    dialog.setLayout(layout);
    if (dialog.exec() == QDialog::Accepted) {
        window->setWindowTitle(name->text());
    }
    // [end]
}
