#include "hostcode.h"

#include <lmwidgets/talvosplashscreen.h>

#include <QCoreApplication>
#include <QWidget>

void gallery::code::startup(QWidget *window)
{
    // [host]
    QPixmap picture(680, 469);
    picture.fill(Qt::darkCyan);
    TalvoSplashScreen splash("1.4", picture);
    splash.show();
    splash.beat(); // after each step of the start
    QCoreApplication::processEvents();
    window->show();
    splash.finish(window);
    // [end]
}
