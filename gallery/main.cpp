#include "application.h"

#include <QApplication>
#include <QTextStream>

#include <cstdio>

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    gallery::prepare(arguments);

    QApplication application(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    return gallery::run(QCoreApplication::arguments(), out, err);
}
