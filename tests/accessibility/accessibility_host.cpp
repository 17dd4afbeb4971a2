/** @file
 * A host application with the controls that assistive technology is to find and operate. It says on
 * standard output what the controls report, see Reporter. A new control is one function here, a
 * line in main(), and a test in tst_accessibility.cpp.
 */

#include "reporter.h"

#include <lmwidgets/editcombobox.h>
#include <lmwidgets/qcustomtabbar.h>
#include <lmwidgets/roundcheckbox.h>
#include <lmwidgets/talvodoubleslider.h>
#include <lmwidgets/toggleswitch.h>

#include <QApplication>
#include <QStyleFactory>
#include <QVBoxLayout>

using LM::Widgets::EditComboBox;
using LM::Widgets::QCustomTabBar;
using LM::Widgets::RoundCheckBox;
using LM::Widgets::TalvoDoubleSlider;
using LM::Widgets::ToggleSwitch;

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

template <typename Switch>
QWidget *followed(Switch *control, const QString &name)
{
    QObject::connect(control, &Switch::toggled, control, [name](bool on) {
        Reporter::say(
            QStringLiteral("%1 %2").arg(name, on ? QStringLiteral("on") : QStringLiteral("off")));
    });
    return control;
}

/** Says "toggle on" and "toggle off"; begins with off. */
QWidget *makeToggle()
{
    auto *toggle = new ToggleSwitch;
    toggle->setText(QStringLiteral("Ground points"));
    return followed(toggle, QStringLiteral("toggle"));
}

/** Says "round on" and "round off"; begins with off. */
QWidget *makeRound()
{
    auto *box = new RoundCheckBox;
    box->setAccessibleName(QStringLiteral("Lock"));
    return followed(box, QStringLiteral("round"));
}

/** Says "system TEXT" when its text is another. */
QWidget *makeCombo()
{
    auto *box =
        new EditComboBox(QStringList{QStringLiteral("WGS 84"), QStringLiteral("NAD83")}, nullptr);
    box->setAccessibleName(QStringLiteral("System"));
    QObject::connect(box, QOverload<int>::of(&EditComboBox::currentIndexChanged), box,
                     [](int index) { Reporter::say(QStringLiteral("system %1").arg(index)); });
    box->setEditText(QStringLiteral("NAD83"));
    return box;
}

/** Says "tab INDEX"; the tool tips say what the dots mean. */
QWidget *makeTabs()
{
    auto *bar = new QCustomTabBar;
    bar->setAccessibleName(QStringLiteral("Steps"));
    for (const auto &step : {qMakePair(QStringLiteral("Import"), QStringLiteral("done")),
                             qMakePair(QStringLiteral("Classify"), QStringLiteral("failed"))}) {
        bar->setTabToolTip(bar->addTab(step.first), step.second);
    }
    bar->setTabColor(1, Qt::red);
    QObject::connect(bar, &QTabBar::currentChanged, bar,
                     [](int index) { Reporter::say(QStringLiteral("tab %1").arg(index)); });
    return bar;
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
    for (QWidget *control : {makeSlider(), makeToggle(), makeRound(), makeCombo(), makeTabs()}) {
        layout->addWidget(control);
    }
    window.setGeometry(100, 100, 300, 300);
    window.show();
    return QApplication::exec();
}
