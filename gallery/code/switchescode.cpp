#include "hostcode.h"

#include <lmwidgets/roundcheckbox.h>
#include <lmwidgets/toggleswitch.h>

void gallery::code::switches(QWidget *window)
{
    // [host]
    auto *ground = new LM::Widgets::ToggleSwitch(window);
    ground->setText("Show ground points");
    QObject::connect(ground, &LM::Widgets::ToggleSwitch::toggled, window,
                     &QWidget::setWindowModified);
    auto *lock = new LM::Widgets::RoundCheckBox(window);
    lock->setAccessibleName("Lock the layer");
    // [end]
}
