#ifndef LMGALLERY_APPLICATION_H
#define LMGALLERY_APPLICATION_H

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace gallery {

/** What the program returns to the shell. */
enum ExitCode {
    Success = 0,
    PictureFailed = 1, ///< a picture could not be taken or written
    BadArguments = 2
};

/**
 * Sets what has to be set before there is an application object: the scale of `--scale`, high-DPI
 * attributes, and for pictures and lists on a machine without a screen the platform. @p arguments
 * begin with the program's name.
 */
void prepare(const QStringList &arguments);

/**
 * Does what @p arguments ask for: lists the pages, takes pictures, or shows the window and runs the
 * event loop. Needs the application object. Returns an ExitCode, or the event loop's result.
 */
int run(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace gallery

#endif
