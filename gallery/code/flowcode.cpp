#include "hostcode.h"

#include <lmwidgets/flowlayout.h>

#include <QPushButton>

void gallery::code::flow(QWidget *window)
{
    // [host]
    auto *flow = new LM::Widgets::FlowLayout(window, 0, 6, 6);
    for (const char *tag : {"ground", "low vegetation", "building", "water", "power line"}) {
        flow->addWidget(new QPushButton(tag));
    }
    // [end]
}
