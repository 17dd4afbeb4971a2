#include "hostcode.h"

#include <lmwidgets/talvodoubleslider.h>

#include <QWidget>

void gallery::code::sliders(QWidget *window)
{
    // [host]
    auto *slider = new LM::Widgets::TalvoDoubleSlider(window);
    slider->setFixedHeight(20);
    slider->setQxtSpanRange(0.0, 255.0);
    slider->setSpan(20.0, 180.0);
    QObject::connect(slider, &LM::Widgets::TalvoDoubleSlider::lowerValueChanged, window,
                     [window](double floor) { window->setWindowTitle(QString::number(floor)); });
    // [end]
}
