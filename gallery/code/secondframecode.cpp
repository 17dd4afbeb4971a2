#include "hostcode.h"

#include <lmwidgets/vantoroframelessdialog.h>

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

void gallery::code::secondframe(QWidget *window)
{
    // [host]
    LM::Widgets::VantoroFramelessDialog dialog(window);
    dialog.setWindowTitle("Settings");
    auto *form = new QFormLayout;
    form->addRow("Name", new QLineEdit("North slope"));
    dialog.setLayout(form);
    dialog.getApplyButton()->show(); // override slotUIButtonApply() to act on it
    dialog.exec();
    // [end]
}
