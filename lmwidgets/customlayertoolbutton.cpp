#include <lmwidgets/customlayertoolbutton.h>

#include "themepictures_p.h"
#include "toolbuttonrelease_p.h"

#include <lmwidgets/talvostylemanager.h>

#include <QColor>
#include <QEvent>
#include <QIcon>
#include <QPixmap>

namespace LM {
namespace Widgets {

namespace {

constexpr QSize PictureSize(20, 20);

// The blank at the end belongs to the text: hosts compare it as it is.
const char ButtonStyle[] = "background-color: transparent;border: 0px solid #3C3C3C; ";

/** Returns the picture @p name of the current theme. */
QIcon themeIcon(const char *name)
{
    return keptIcon(TalvoStyleManager::instance()->currentThemePath() + QLatin1String("qssimage/") +
                    QLatin1String(name) + QLatin1String(".png"));
}

} // namespace

customLayerToolButton::customLayerToolButton(int row, int column, QWidget *parent)
    : QToolButton(parent), m_row(row), m_column(column)
{
    setCheckable(true);
    setChecked(true);
    setIconSize(PictureSize);
    setStyleSheet(QLatin1String(ButtonStyle));
}

customLayerToolButton::~customLayerToolButton() = default;

int customLayerToolButton::row() const
{
    return m_row;
}

int customLayerToolButton::column() const
{
    return m_column;
}

void customLayerToolButton::setDelete()
{
    setIcon(themeIcon("delete_2dvec"));
}

void customLayerToolButton::setEditEnable(bool enabled)
{
    // One picture for both states: editing shows elsewhere in the host, not on the button.
    Q_UNUSED(enabled)
    setIcon(themeIcon("layer_edit"));
}

void customLayerToolButton::setLockState(bool locked)
{
    setIcon(themeIcon(locked ? "layer_lock" : "layer_unlock"));
}

void customLayerToolButton::setVisibleState(bool visible)
{
    setIcon(themeIcon(visible ? "layer_view" : "layer_dis_view"));
}

bool customLayerToolButton::event(QEvent *event)
{
    // A widget that has been shown asks to be painted, even where its parent hides it. Qt compares
    // each one that asks with all its siblings: the buttons below the edge of a long list take
    // seconds for it.
    if (event->type() == QEvent::UpdateLater && !isWindow() &&
        !parentWidget()->rect().intersects(geometry())) {
        return true;
    }
    return QToolButton::event(event);
}

void customLayerToolButton::mouseReleaseEvent(QMouseEvent *event)
{
    // A host may remove the row, or destroy the table, when it is told of the click.
    releaseToolButton(
        this, event, [=] { QAbstractButton::mouseReleaseEvent(event); },
        [=] { QToolButton::mouseReleaseEvent(event); });
}

void customLayerToolButton::setColor(const QColor &color)
{
    QPixmap swatch(PictureSize);
    swatch.fill(QColor(color.name()));
    setIcon(QIcon(swatch));
}

} // namespace Widgets
} // namespace LM
