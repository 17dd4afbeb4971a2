#include <lmwidgets/roundcheckbox.h>

#include "accessiblechecks_p.h"

#include <QColor>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace LM {
namespace Widgets {

namespace {

constexpr int BoxWidth = 60;
constexpr int BoxHeight = 30;
constexpr double BoxRadius = 15.0;
constexpr int KnobSize = 24;

// One more red than the accent of the other switch: hosts compare pictures of both.
const QColor AccentColor(255, 200, 4);
const QColor KnobColor(0, 0, 0);

} // namespace

RoundCheckBox::RoundCheckBox(QWidget *parent) : QWidget(parent)
{
    registerAccessibleChecks();
    setFixedSize(BoxWidth, BoxHeight);
    setAttribute(Qt::WA_MouseTracking);
    setAttribute(Qt::WA_TranslucentBackground);
}

bool RoundCheckBox::isChecked() const
{
    return m_checked;
}

void RoundCheckBox::setChecked(bool check)
{
    const QPointer<RoundCheckBox> guard(this);
    if (check != m_checked) {
        m_checked = check;
        announceChecked(this);
    }
    Q_EMIT toggled(check);
    if (guard) {
        update();
    }
}

void RoundCheckBox::mouseReleaseEvent(QMouseEvent *event)
{
    if (!rect().contains(event->pos(), false)) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    const QPointer<RoundCheckBox> guard(this);
    m_checked = !m_checked;
    announceChecked(this);
    Q_EMIT toggled(m_checked);
    if (guard) {
        update();
    }
}

void RoundCheckBox::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(AccentColor);
    painter.setBrush(AccentColor);
    painter.drawRoundedRect(rect(), BoxRadius, BoxRadius);

    painter.setPen(KnobColor);
    painter.setBrush(KnobColor);
    // Checked is the left quarter.
    const int centre = m_checked ? width() / 4 : 3 * width() / 4;
    painter.drawEllipse(centre - KnobSize / 2, height() / 2 - KnobSize / 2, KnobSize, KnobSize);
}

} // namespace Widgets
} // namespace LM
