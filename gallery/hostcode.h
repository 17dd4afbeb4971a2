#ifndef LMGALLERY_HOSTCODE_H
#define LMGALLERY_HOSTCODE_H

#include <QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace gallery {

/**
 * The few lines that a host writes for what a page shows. They stand in code/<page>code.cpp as
 * functions that are compiled, and that a test calls with a window of the host's; the gallery shows
 * the same lines as a text.
 */
namespace code {

#define LMGALLERY_PAGE(name) void name(QWidget *window);
#include "pages.h"

} // namespace code

/** Returns the lines of the page called @p name; empty for a name that no page has. */
QString hostCode(const QString &name);

} // namespace gallery

#endif
