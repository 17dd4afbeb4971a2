#include "page.h"
#include "pageparts.h"
#include "signallog.h"

#include <lmwidgets/talvodoubleslider.h>

#include <QLabel>
#include <QVBoxLayout>

namespace gallery {

using LM::Widgets::TalvoDoubleSlider;

namespace {

constexpr int SliderHeight = 20;
constexpr int SliderWidth = 420;

/** What a host knows of a quantity that is filtered by a span of values. */
struct Quantity
{
    const char *name;
    const char *unit;
    double minimum;
    double maximum;
    double first;
    double second;
};

TalvoDoubleSlider *makeSlider(const Quantity &quantity)
{
    auto *slider = new TalvoDoubleSlider;
    slider->setAccessibleName(QString::fromLatin1(quantity.name));
    slider->setFixedSize(SliderWidth, SliderHeight);
    slider->setQxtSpanRange(quantity.minimum, quantity.maximum);
    slider->setSpan(quantity.first, quantity.second);
    return slider;
}

/** A label with the values of @p slider, now and after each change. */
QLabel *makeValues(TalvoDoubleSlider *slider, const QString &unit)
{
    auto *label = new QLabel;
    const auto show = [slider, label, unit] {
        label->setText(QStringLiteral("%1 to %2 %3")
                           .arg(slider->lowerValue(), 0, 'f', 2)
                           .arg(slider->upperValue(), 0, 'f', 2)
                           .arg(unit));
    };
    show();
    QObject::connect(slider, &TalvoDoubleSlider::lowerValueChanged, label, show);
    QObject::connect(slider, &TalvoDoubleSlider::upperValueChanged, label, show);
    return label;
}

TalvoDoubleSlider *addQuantity(QVBoxLayout *body, const Quantity &quantity, SignalLog &log)
{
    TalvoDoubleSlider *slider = makeSlider(quantity);
    log.watch(slider, QString::fromLatin1(quantity.name));
    body->addWidget(new QLabel(QString::fromLatin1(quantity.name)));
    body->addWidget(row({slider, makeValues(slider, QString::fromUtf8(quantity.unit))}));
    return slider;
}

void addFilterSection(QVBoxLayout *layout, SignalLog &log)
{
    QVBoxLayout *body =
        addSection(layout, QStringLiteral("Filter of a point cloud"),
                   QStringLiteral("Drag a handle past the other one: the smaller and the larger "
                                  "value keep their own signals."));
    addQuantity(body, {"Intensity", "", 0.0, 255.0, 20.0, 180.0}, log);
    addQuantity(body, {"Height", "m", -12.5, 48.0, 40.0, -3.25}, log);
    addQuantity(body, {"Scan angle", "°", -90.0, 90.0, -90.0, 90.0}, log);
}

void addStatesSection(QVBoxLayout *layout, SignalLog &log)
{
    QVBoxLayout *body = addSection(
        layout, QStringLiteral("States"),
        QStringLiteral("A disabled slider looks the same and cannot be dragged. Where minimum and "
                       "maximum are equal, both handles are at the left end. The last slider has "
                       "values outside its range."));
    addQuantity(body, {"Disabled", "", 0.0, 100.0, 30.0, 70.0}, log)->setEnabled(false);
    addQuantity(body, {"No range", "", 5.0, 5.0, 5.0, 5.0}, log);
    addQuantity(body, {"Outside", "", 0.0, 100.0, -20.0, 60.0}, log);
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    QVBoxLayout *layout = contentLayout(content);
    addFilterSection(layout, log);
    addStatesSection(layout, log);
    return content;
}

} // namespace

Page slidersPage()
{
    return Page(QStringLiteral("sliders"), QStringLiteral("Sliders"),
                QStringLiteral("TalvoDoubleSlider marks a span of floating-point values with two "
                               "handles."),
                createContent);
}

} // namespace gallery
