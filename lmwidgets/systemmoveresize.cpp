#include "systemmoveresize_p.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

namespace LM {
namespace Widgets {

bool windowSystemPlacesWindows()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
#else
    return false;
#endif
}

bool startSystemMove(QWidget *widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    QWindow *window = widget->windowHandle();
    return window && window->startSystemMove();
#else
    Q_UNUSED(widget)
    return false;
#endif
}

bool startSystemResize(QWidget *widget, Qt::Edges edges)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    QWindow *window = widget->windowHandle();
    return window && window->startSystemResize(edges);
#else
    Q_UNUSED(widget)
    Q_UNUSED(edges)
    return false;
#endif
}

} // namespace Widgets
} // namespace LM
