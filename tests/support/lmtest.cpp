#include "lmtest.h"

#include <QFile>
#include <QFont>
#include <QHoverEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QProcess>
#include <QStyle>
#include <QStyleFactory>
#include <QTemporaryDir>

namespace lmtest {

namespace {

QtMessageHandler nextHandler = nullptr;

void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message.startsWith(QLatin1String("This plugin does not support "))) {
        return;
    }
#ifdef Q_OS_WIN
    // Wine has no pictures for some kinds of drives and files, which Qt's file browser asks for.
    if (message.startsWith(QLatin1String("QPixmap::fromWinHICON(), failed to GetIconInfo()"))) {
        return;
    }
#endif
    nextHandler(type, context, message);
}

} // namespace

void ignorePlatformChatter()
{
    const QtMessageHandler previous = qInstallMessageHandler(handleMessage);
    if (previous != handleMessage) {
        nextHandler = previous;
    }
}

void mouse(QWidget *widget, QEvent::Type type, const QPoint &pos, Qt::MouseButton button,
           Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
{
    mouseAt(widget, type, widget->mapToGlobal(pos), button, buttons, modifiers);
}

void mouseAt(QWidget *widget, QEvent::Type type, const QPoint &globalPos, Qt::MouseButton button,
             Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
{
    if (type == QEvent::MouseMove) {
        button = Qt::NoButton;
    } else if (type == QEvent::MouseButtonRelease) {
        buttons &= ~Qt::MouseButtons(button);
    }
    QMouseEvent event(type, widget->mapFromGlobal(globalPos), globalPos, button, buttons,
                      modifiers);
    QApplication::sendEvent(widget, &event);
}

void hoverMove(QWidget *widget, const QPoint &pos)
{
    QHoverEvent event(QEvent::HoverMove, pos, pos);
    QApplication::sendEvent(widget, &event);
}

QStringList ownMethods(const QMetaObject &metaObject)
{
    QStringList methods;
    for (int index = metaObject.methodOffset(); index < metaObject.methodCount(); ++index) {
        const QMetaMethod method = metaObject.method(index);
        QStringList parameters;
        for (int i = 0; i < method.parameterCount(); ++i) {
            const QByteArray name = method.parameterNames().at(i);
            const QByteArray type = method.parameterTypes().at(i);
            parameters.append(QString::fromLatin1(name.isEmpty() ? type : type + ' ' + name));
        }
        const bool isSignal = method.methodType() == QMetaMethod::Signal;
        methods.append(QLatin1String(isSignal ? "signal " : "slot ") +
                       QString::fromLatin1(method.name()) + QLatin1Char('(') +
                       parameters.join(QLatin1String(", ")) + QLatin1Char(')'));
    }
    return methods;
}

QString themeDir()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/theme");
}

QByteArray runTestFunction(const QString &program, const QString &function,
                           const QProcessEnvironment &environment)
{
    // A file: on Windows the report goes to the debugger where there is no terminal.
    const QTemporaryDir folder;
    const QString report = folder.filePath(QStringLiteral("report"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, {function, QStringLiteral("-o"), report + QStringLiteral(",txt")});
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0) {
        return QByteArray();
    }
    QFile file(report);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void prepareApplication()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(13);
    QApplication::setFont(font);
}

} // namespace lmtest
