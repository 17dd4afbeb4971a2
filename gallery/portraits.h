#ifndef LMGALLERY_PORTRAITS_H
#define LMGALLERY_PORTRAITS_H

#include <QString>
#include <QVector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace gallery {

/** One class alone, as its page in the documentation shows it. */
struct Portrait
{
    /** The name of the class in lower case, as its header has it, and of the picture. */
    QString name;
    /** Makes a window, not shown yet, that has the widget with something in it; the caller's. */
    QWidget *(*create)();
    /** What is done to it when it is shown, such as opening an editor; may be null. */
    void (*pose)(QWidget *window) = nullptr;
};

/** All classes that there is something to see of. */
QVector<Portrait> portraits();

} // namespace gallery

#endif
