#include "hostcode.h"

#include <lmwidgets/collapsiblegroupbox.h>

#include <QLabel>
#include <QVBoxLayout>

void gallery::code::containers(QWidget *window)
{
    // [host]
    auto *layout = new QVBoxLayout(window);
    for (const char *title : {"Colour", "Size"}) {
        auto *box = new CollapsibleGroupBox(title, window);
        (new QVBoxLayout(box))->addWidget(new QLabel("Controls"));
        box->setSyncGroup("properties"); // Shift and Ctrl on one box act on both
        layout->addWidget(box);
    }
    // [end]
}
