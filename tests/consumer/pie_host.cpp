#include <lmwidgets/lmwidgets.h>

#include <QApplication>

#include <cstdio>

// A typed connection compares the address that the host has of a signal with the one that the library
// has. The library binds its own at link time; answers 0 only if both agree here as well.
namespace {

int failures = 0;

void check(bool holds, const char *what)
{
    if (!holds) {
        std::fprintf(stderr, "failed: %s\n", what);
        ++failures;
    }
}

class Dialog : public LM::Widgets::TalvoDialogBase
{
public:
    void initStyleSheet() override { ++restyled; }
    int restyled = 0;
};

} // namespace

int main(int argc, char **argv)
{
    using namespace LM::Widgets;
    QApplication application(argc, argv);

    int toggled = 0;
    ToggleSwitch toggle;
    check(QObject::connect(&toggle, &ToggleSwitch::toggled, &toggle, [&] { ++toggled; }),
          "to a lambda");
    toggle.setChecked(true);
    check(toggled == 1, "the lambda is called");
    check(QObject::disconnect(&toggle, &ToggleSwitch::toggled, nullptr, nullptr), "disconnect");
    toggle.setChecked(false);
    check(toggled == 1, "the lambda is not called any more");

    RoundCheckBox round;
    check(QObject::connect(&round, &RoundCheckBox::toggled, &toggle, &ToggleSwitch::setChecked),
          "to a slot of another class of the library");
    round.setChecked(true);
    check(toggle.isChecked(), "the slot is called");

    TalvoDoubleSlider from;
    TalvoDoubleSlider to;
    QObject::connect(&from, &TalvoDoubleSlider::lowerValueChanged, &to,
                     &TalvoDoubleSlider::lowerValueChanged);
    double lower = 0.0;
    QObject::connect(&to, &TalvoDoubleSlider::lowerValueChanged, &to,
                     [&](double value) { lower = value; });
    from.setSpan(7.0, 9.0);
    check(lower == 7.0, "from signal to signal");

    int index = -1;
    EditComboBox combo;
    combo.addItems({QStringLiteral("a"), QStringLiteral("b")});
    QObject::connect(&combo, QOverload<int>::of(&EditComboBox::currentIndexChanged), &combo,
                     [&](int current) { index = current; });
    combo.setCurrentIndex(1);
    check(index == 1, "an overloaded signal");

    Dialog dialog;
    TalvoStyleManager *manager = TalvoStyleManager::instance().data();
    QObject::connect(manager, &TalvoStyleManager::themeStyleShift, &dialog,
                     &TalvoDialogBase::onInitStyleSheet, Qt::UniqueConnection);
    manager->shiftStyle(TalvoStyleManager::Blue);
    check(dialog.restyled == 1, "the connection that the library has made is the same");
    return failures == 0 ? 0 : 1;
}
