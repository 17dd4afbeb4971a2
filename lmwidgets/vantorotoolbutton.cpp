#include <lmwidgets/vantorotoolbutton.h>

#include "toolbuttonrelease_p.h"

#include <lmwidgets/talvostylemanager.h>

#include <QIcon>

#include <utility>

namespace {

QString themePicture(const QString &name)
{
    return LM::Widgets::TalvoStyleManager::instance()->currentThemePath() +
           QLatin1String("qssimage/") + name + QLatin1String(".png");
}

} // namespace

VantoroToolButton::VantoroToolButton(QWidget *parent) : QToolButton(parent) {}

VantoroToolButton::~VantoroToolButton() = default;

void VantoroToolButton::setIconPixmap(QString normalIcon, QString hoverIcon, QString disabledIcon)
{
    m_normalIcon = std::move(normalIcon);
    m_hoverIcon = std::move(hoverIcon);
    m_disabledIcon = std::move(disabledIcon);
    showPictures(m_normalIcon);
}

void VantoroToolButton::enterEvent(QEvent *event)
{
    QToolButton::enterEvent(event);
    showPictures(m_hoverIcon);
}

void VantoroToolButton::leaveEvent(QEvent *event)
{
    QToolButton::leaveEvent(event);
    showPictures(m_normalIcon);
}

void VantoroToolButton::mouseReleaseEvent(QMouseEvent *event)
{
    LM::Widgets::releaseToolButton(
        this, event, [=] { QAbstractButton::mouseReleaseEvent(event); },
        [=] { QToolButton::mouseReleaseEvent(event); });
}

void VantoroToolButton::showPictures(const QString &normalIcon)
{
    QIcon icon(themePicture(normalIcon));
    // As files, not as pixmaps: only so does Qt take the ones for double resolution too.
    icon.addFile(themePicture(m_hoverIcon), QSize(), QIcon::Active, QIcon::Off);
    icon.addFile(themePicture(m_disabledIcon), QSize(), QIcon::Disabled, QIcon::Off);
    setIcon(icon);
}
