/** @file
 * A host application with the controls that assistive technology is to find and operate. It says on
 * standard output what the controls report, see Reporter. A new control is one function here, a
 * line in main(), and a test in tst_accessibility.cpp.
 */

#include "reporter.h"

#include <lmwidgets/talvodoubleslider.h>

#include <QApplication>
#include <QStyleFactory>
#include <QVBoxLayout>

using LM::Widgets::TalvoDoubleSlider;

namespace {

/** Says "lower VALUE" and "upper VALUE"; begins with 20 and 60 of 0 to 100. */
QWidget *makeSlider()
{
    auto *slider = new TalvoDoubleSlider;
    slider->setAccessibleName(QStringLiteral("Height"));
    slider->setQxtSpanRange(0.0, 100.0);
    slider->setSpan(20.0, 60.0);
    QObject::connect(slider, &TalvoDoubleSlider::lowerValueChanged, slider,
                     [](double value) { Reporter::say(QStringLiteral("lower %1").arg(value)); });
    QObject::connect(slider, &TalvoDoubleSlider::upperValueChanged, slider,
                     [](double value) { Reporter::say(QStringLiteral("upper %1").arg(value)); });
    return slider;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    Reporter reporter;

    QWidget window;
    window.setObjectName(QStringLiteral("controls"));
    window.setWindowTitle(QStringLiteral("Controls"));
    auto *layout = new QVBoxLayout(&window);
    for (QWidget *control : {makeSlider()}) {
        layout->addWidget(control);
    }
    window.setGeometry(100, 100, 300, 200);
    window.show();
    return QApplication::exec();
}
