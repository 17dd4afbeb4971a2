#ifndef LMWIDGETS_ACCESSIBLEDOUBLESLIDER_P_H
#define LMWIDGETS_ACCESSIBLEDOUBLESLIDER_P_H

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <array>

namespace LM {
namespace Widgets {

class TalvoDoubleSlider;

/** What assistive technology sees of a double slider: a group of two sliders. */
class AccessibleDoubleSlider : public QAccessibleWidget
{
public:
    explicit AccessibleDoubleSlider(TalvoDoubleSlider *slider);

    /** Lets Qt find this class for every double slider. Called as often as one likes. */
    static void install();
    /** Reports that the lower (0) or the upper (1) value of @p slider has become @p value. */
    static void reportValue(TalvoDoubleSlider *slider, int rank, double value);

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;

protected:
    ~AccessibleDoubleSlider() override;

private:
    mutable std::array<QAccessible::Id, 2> m_handles = {};
};

/**
 * The lower or the upper value as a slider of its own. As in the getters and signals it is the rank
 * that counts and not the handle: a value that is set past the other one is the other one from then
 * on.
 */
class AccessibleSliderHandle : public QAccessibleInterface, public QAccessibleValueInterface
{
public:
    AccessibleSliderHandle(TalvoDoubleSlider *slider, int rank);

    int rank() const { return m_rank; }

    bool isValid() const override;
    QObject *object() const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QString text(QAccessible::Text type) const override;
    void setText(QAccessible::Text type, const QString &text) override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    TalvoDoubleSlider *slider() const;

    QPointer<QWidget> m_widget;
    int m_rank;
};

} // namespace Widgets
} // namespace LM

#endif
