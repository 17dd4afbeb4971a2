#ifndef LMWIDGETS_THEMEPICTURES_P_H
#define LMWIDGETS_THEMEPICTURES_P_H

#include <QIcon>
#include <QPixmap>
#include <QString>

namespace LM {
namespace Widgets {

/**
 * The icon that QIcon(@p path) would give, and the pixmap that QPixmap(@p path) would give. Each
 * file is read once and again when it has changed, so a theme switch or a replaced file shows at the
 * next use, and everything that shows one picture shares it.
 */
QIcon keptIcon(const QString &path);
QPixmap keptPixmap(const QString &path);

} // namespace Widgets
} // namespace LM

#endif
