#include "accessibledoubleslider_p.h"

#include "talvodoubleslider_p.h"

#include <lmwidgets/talvodoubleslider.h>

#include <QLocale>

#include <cmath>

namespace LM {
namespace Widgets {

namespace {

constexpr int LowerRank = 0;
constexpr QSize HandleSize(13, 13); // that of the theme's picture

QAccessibleInterface *accessibleDoubleSlider(const QString &className, QObject *object)
{
    if (className != QLatin1String("LM::Widgets::TalvoDoubleSlider")) {
        return nullptr;
    }
    auto *slider = qobject_cast<TalvoDoubleSlider *>(object);
    return slider ? new AccessibleDoubleSlider(slider) : nullptr;
}

} // namespace

AccessibleDoubleSlider::AccessibleDoubleSlider(TalvoDoubleSlider *slider)
    : QAccessibleWidget(slider, QAccessible::Grouping)
{
}

AccessibleDoubleSlider::~AccessibleDoubleSlider()
{
    for (const QAccessible::Id id : m_handles) {
        if (id != 0) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }
}

void AccessibleDoubleSlider::install()
{
    // Qt forgets its factories with each application object.
    static bool installed = false;
    if (!installed) {
        installed = true;
        QAccessible::installFactory(accessibleDoubleSlider);
        qAddPostRoutine([] { installed = false; });
    }
}

void AccessibleDoubleSlider::reportValue(TalvoDoubleSlider *slider, int rank, double value)
{
    QAccessibleValueChangeEvent event(slider, value);
    event.setChild(rank);
    QAccessible::updateAccessibility(&event);
}

int AccessibleDoubleSlider::childCount() const
{
    return static_cast<int>(m_handles.size());
}

QAccessibleInterface *AccessibleDoubleSlider::child(int index) const
{
    auto *slider = qobject_cast<TalvoDoubleSlider *>(object());
    if (!slider || index < 0 || index >= childCount()) {
        return nullptr;
    }
    QAccessible::Id &id = m_handles[static_cast<std::size_t>(index)];
    if (id == 0) {
        id = QAccessible::registerAccessibleInterface(new AccessibleSliderHandle(slider, index));
    }
    return QAccessible::accessibleInterface(id);
}

int AccessibleDoubleSlider::indexOfChild(const QAccessibleInterface *child) const
{
    for (int i = 0; i < childCount(); ++i) {
        if (child && this->child(i) == child) {
            return i;
        }
    }
    return -1;
}

QAccessibleInterface *AccessibleDoubleSlider::childAt(int x, int y) const
{
    // The right handle is painted last.
    for (int i = childCount() - 1; i >= 0; --i) {
        QAccessibleInterface *handle = child(i);
        if (handle && handle->rect().contains(x, y)) {
            return handle;
        }
    }
    return nullptr;
}

AccessibleSliderHandle::AccessibleSliderHandle(TalvoDoubleSlider *slider, int rank)
    : m_widget(slider), m_rank(rank)
{
}

/** Null also while only the base class of the slider is left. */
TalvoDoubleSlider *AccessibleSliderHandle::slider() const
{
    return qobject_cast<TalvoDoubleSlider *>(m_widget.data());
}

bool AccessibleSliderHandle::isValid() const
{
    return slider() != nullptr;
}

QObject *AccessibleSliderHandle::object() const
{
    return nullptr;
}

QAccessibleInterface *AccessibleSliderHandle::childAt(int, int) const
{
    return nullptr;
}

QAccessibleInterface *AccessibleSliderHandle::parent() const
{
    return QAccessible::queryAccessibleInterface(m_widget.data());
}

QAccessibleInterface *AccessibleSliderHandle::child(int) const
{
    return nullptr;
}

int AccessibleSliderHandle::childCount() const
{
    return 0;
}

int AccessibleSliderHandle::indexOfChild(const QAccessibleInterface *) const
{
    return -1;
}

QString AccessibleSliderHandle::text(QAccessible::Text type) const
{
    if (!slider()) {
        return QString();
    }
    if (type == QAccessible::Name) {
        return m_rank == LowerRank ? TalvoDoubleSlider::tr("Lower value")
                                   : TalvoDoubleSlider::tr("Upper value");
    }
    if (type == QAccessible::Value) {
        return slider()->locale().toString(currentValue().toDouble());
    }
    return QString();
}

void AccessibleSliderHandle::setText(QAccessible::Text, const QString &) {}

QRect AccessibleSliderHandle::rect() const
{
    TalvoDoubleSlider *slider = this->slider();
    if (!slider || !slider->isVisible()) {
        return QRect();
    }
    slider->updatePos();
    const TalvoDoubleSliderPrivate *d = slider->d_func();
    const QRect span = d->span();
    // In a range that runs backwards the lower value is on the right.
    const bool onTheLeft = (m_rank == LowerRank) == (d->minimum <= d->maximum);
    const QPoint corner = onTheLeft ? TalvoDoubleSliderPrivate::leftPicture(span)
                                    : TalvoDoubleSliderPrivate::rightPicture(span);
    return QRect(slider->mapToGlobal(corner), HandleSize);
}

QAccessible::Role AccessibleSliderHandle::role() const
{
    return QAccessible::Slider;
}

QAccessible::State AccessibleSliderHandle::state() const
{
    QAccessible::State state;
    const TalvoDoubleSlider *slider = this->slider();
    if (!slider) {
        state.invalid = true;
        return state;
    }
    state.disabled = !slider->isEnabled();
    state.invisible = !slider->isVisible();
    return state;
}

void *AccessibleSliderHandle::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                               : nullptr;
}

QVariant AccessibleSliderHandle::currentValue() const
{
    TalvoDoubleSlider *slider = this->slider();
    if (!slider) {
        return QVariant();
    }
    return m_rank == LowerRank ? slider->lowerValue() : slider->upperValue();
}

/** Keeps to the range and does nothing to a disabled slider, as the mouse does. */
void AccessibleSliderHandle::setCurrentValue(const QVariant &value)
{
    TalvoDoubleSlider *slider = this->slider();
    bool isNumber = false;
    const double wanted = value.toDouble(&isNumber);
    if (!slider || !slider->isEnabled() || !isNumber || !std::isfinite(wanted)) {
        return;
    }
    const TalvoDoubleSliderPrivate *d = slider->d_func();
    const double bounded =
        qBound(qMin(d->minimum, d->maximum), wanted, qMax(d->minimum, d->maximum));
    const bool isFirstHandle = (m_rank == LowerRank) == (d->lower <= d->upper);
    // A slot may delete the slider, and this object with it.
    if (isFirstHandle) {
        slider->setLowerValue(bounded);
    } else {
        slider->setUpperValue(bounded);
    }
}

QVariant AccessibleSliderHandle::maximumValue() const
{
    const TalvoDoubleSlider *slider = this->slider();
    return slider ? QVariant(qMax(slider->d_func()->minimum, slider->d_func()->maximum))
                  : QVariant();
}

QVariant AccessibleSliderHandle::minimumValue() const
{
    const TalvoDoubleSlider *slider = this->slider();
    return slider ? QVariant(qMin(slider->d_func()->minimum, slider->d_func()->maximum))
                  : QVariant();
}

/** The values are not bound to any step. */
QVariant AccessibleSliderHandle::minimumStepSize() const
{
    return 0.0;
}

} // namespace Widgets
} // namespace LM
