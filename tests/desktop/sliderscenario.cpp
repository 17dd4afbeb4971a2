#include "sliderscenario.h"

#include "reporter.h"

#include <lmwidgets/talvodoubleslider.h>

using LM::Widgets::TalvoDoubleSlider;

void runSlider()
{
    auto *window = new QWidget;
    window->setObjectName(QStringLiteral("filter"));
    window->setGeometry(200, 100, 300, 120);
    auto *slider = new TalvoDoubleSlider(window);
    slider->setObjectName(QStringLiteral("slider"));
    slider->setGeometry(90, 50, 110, 20);
    slider->setQxtSpanRange(0.0, 100.0);
    slider->setSpan(20.0, 60.0);
    QObject::connect(slider, &TalvoDoubleSlider::lowerValueChanged, slider,
                     [](double value) { Reporter::say(QStringLiteral("lower %1").arg(value)); });
    QObject::connect(slider, &TalvoDoubleSlider::upperValueChanged, slider,
                     [](double value) { Reporter::say(QStringLiteral("upper %1").arg(value)); });
    window->show();
}
