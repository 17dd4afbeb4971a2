#include "desktop.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QtTest>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#endif

namespace {

constexpr int TimeoutMs = 10000;
constexpr int EndTimeoutMs = 3000;

void end(QProcess *process)
{
    if (process->state() == QProcess::NotRunning) {
        return;
    }
    process->terminate();
    if (!process->waitForFinished(EndTimeoutMs)) {
        process->kill();
        process->waitForFinished(EndTimeoutMs);
    }
}

QString programFile(const QString &name)
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') + name;
}

QRect rectAt(const QStringList &words, int first)
{
    if (words.size() < first + 4) {
        return QRect();
    }
    return QRect(words.at(first).toInt(), words.at(first + 1).toInt(), words.at(first + 2).toInt(),
                 words.at(first + 3).toInt());
}

QRegularExpression wholeLine(const QString &pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

} // namespace

void ChildProcess::setupChildProcess()
{
#ifdef Q_OS_LINUX
    // A test that CTest kills after its time-out has no chance to end what it has started.
    prctl(PR_SET_PDEATHSIG, SIGTERM);
#endif
}

Desktop::~Desktop()
{
    end(&m_windowManager);
    end(&m_server);
}

QString Desktop::start()
{
    const struct
    {
        const char *program;
        const char *package;
    } needed[] = {{"Xvfb", "xvfb"}, {"openbox", "openbox"}, {"xdotool", "xdotool"}};
    QStringList missing;
    if (windowManager() == QLatin1String("xfwm4")) {
        for (const char *program : {"xfwm4", "dbus-run-session"}) {
            if (QStandardPaths::findExecutable(QLatin1String(program)).isEmpty()) {
                missing.append(QLatin1String(program));
            }
        }
    }
    for (const auto &need : needed) {
        if (QStandardPaths::findExecutable(QLatin1String(need.program)).isEmpty()) {
            missing.append(QLatin1String(need.package));
        }
    }
    if (!missing.isEmpty()) {
        return QLatin1String("These packages are not installed: ") + missing.join(QLatin1Char(' '));
    }
    const QString problem = startServer();
    return problem.isEmpty() ? startWindowManager() : problem;
}

QString Desktop::startServer()
{
    // The server looks for a free display number itself and says which one it took when it is
    // ready.
    m_server.setProcessChannelMode(QProcess::SeparateChannels);
    m_server.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                    QStringLiteral("0"), QStringLiteral("1280x900x24"), QStringLiteral("-nolisten"),
                    QStringLiteral("tcp"), QStringLiteral("-noreset")});
    QByteArray number;
    const bool ready = QTest::qWaitFor(
        [this, &number] {
            number += m_server.readAllStandardOutput();
            return number.endsWith('\n') || m_server.state() == QProcess::NotRunning;
        },
        TimeoutMs);
    if (!ready || !number.endsWith('\n')) {
        return QLatin1String("Xvfb does not start: ") +
               QString::fromLocal8Bit(m_server.readAllStandardError());
    }

    m_environment = QProcessEnvironment::systemEnvironment();
    m_environment.insert(QStringLiteral("DISPLAY"),
                         QLatin1Char(':') + QString::fromLatin1(number.trimmed()));
    m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    m_environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_runtimeDir.path());
    m_environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    m_environment.remove(QStringLiteral("QT_SCALE_FACTOR"));
    return QString();
}

QString Desktop::windowManager()
{
    return qEnvironmentVariable("LMTEST_WM", QStringLiteral("openbox"));
}

QString Desktop::startWindowManager()
{
    if (windowManager() == QLatin1String("xfwm4")) {
        // It takes its settings from a service on the session bus; nobody's own are to count.
        m_environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_runtimeDir.path());
        m_environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
        m_windowManager.setProcessEnvironment(m_environment);
        m_windowManager.start(
            QStringLiteral("dbus-run-session"),
            {QStringLiteral("--"), QStringLiteral("xfwm4"), QStringLiteral("--compositor=off")});
    } else {
        m_windowManager.setProcessEnvironment(m_environment);
        m_windowManager.start(QStringLiteral("openbox"),
                              {QStringLiteral("--sm-disable"), QStringLiteral("--config-file"),
                               QStringLiteral(DESKTOP_SOURCE_DIR "/openbox.xml")});
    }
    // Only a window manager that is up answers this.
    const bool ready = QTest::qWaitFor(
        [this] { return !xdotool(QStringLiteral("get_num_desktops")).isNull(); }, TimeoutMs);
    return ready ? QString()
                 : windowManager() + QLatin1String(" does not start: ") +
                       QString::fromLocal8Bit(m_windowManager.readAllStandardError());
}

QString Desktop::run(const QString &program, const QStringList &arguments) const
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.start(program, arguments);
    if (!process.waitForFinished(TimeoutMs) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0) {
        return QString();
    }
    return QLatin1String("") + QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
}

QString Desktop::xdotool(const QStringList &arguments) const
{
    return run(QStringLiteral("xdotool"), arguments);
}

QString Desktop::xdotool(const QString &arguments) const
{
    return xdotool(arguments.split(QLatin1Char(' ')));
}

QString Desktop::pointerPicture() const
{
    return run(programFile(QStringLiteral("desktop_pointer_picture")), {});
}

Host::Host(const Desktop &desktop, const QString &scenario, const QString &programs,
           const QString &program)
    : m_scenario(scenario)
{
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &Host::readLines);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QProcessEnvironment environment = desktop.environment();
    if (!programs.isEmpty()) {
        const QString path = QStringLiteral("PATH");
        environment.insert(path, programs + QLatin1Char(':') + environment.value(path));
    }
    m_process.setProcessEnvironment(environment);
    m_process.start(programFile(program), {scenario});
}

Host::~Host()
{
    disconnect(&m_process, nullptr, this, nullptr);
    end(&m_process);
}

void Host::readLines()
{
    m_rest += m_process.readAllStandardOutput();
    for (int end = m_rest.indexOf('\n'); end >= 0; end = m_rest.indexOf('\n')) {
        m_lines.append(QString::fromUtf8(m_rest.left(end)));
        m_rest.remove(0, end + 1);
    }
}

bool Host::hasSaid(const QString &pattern) const
{
    return m_lines.indexOf(wholeLine(pattern), m_mark) >= 0;
}

bool Host::waitFor(const QString &pattern)
{
    return QTest::qWaitFor([this, &pattern] { return hasSaid(pattern); }, TimeoutMs);
}

QRect Host::lastGeometry(const QString &window) const
{
    const int last =
        m_lines.lastIndexOf(wholeLine(QStringLiteral("(geometry|painted) %1 .*").arg(window)));
    return last < 0 ? QRect() : rectAt(m_lines.at(last).split(QLatin1Char(' ')), 2);
}

QRect Host::lastRect(const QString &words) const
{
    const QString start = words + QLatin1Char(' ');
    for (int i = m_lines.size() - 1; i >= 0; --i) {
        if (m_lines.at(i).startsWith(start)) {
            return rectAt(m_lines.at(i).mid(start.size()).split(QLatin1Char(' ')), 0);
        }
    }
    return QRect();
}

bool Host::waitForGeometry(const QString &window, const QRect &geometry)
{
    return QTest::qWaitFor([this, &window, &geometry] { return lastGeometry(window) == geometry; },
                           TimeoutMs);
}

QRect Host::where(const QString &name)
{
    return ask(QLatin1String("where ") + name);
}

QRect Host::popup()
{
    return ask(QStringLiteral("popup"));
}

QRect Host::ask(const QString &question)
{
    const int from = m_lines.size();
    order(question);
    const QString start = question + QLatin1Char(' ');
    QString answer;
    const bool answered = QTest::qWaitFor(
        [&] {
            for (int i = from; i < m_lines.size() && answer.isEmpty(); ++i) {
                answer = m_lines.at(i).startsWith(start) ? m_lines.at(i) : QString();
            }
            return !answer.isEmpty();
        },
        TimeoutMs);
    return answered ? rectAt(answer.mid(start.size()).split(QLatin1Char(' ')), 0) : QRect();
}

void Host::order(const QString &line)
{
    m_process.write(line.toUtf8() + '\n');
}

QString Host::report(const QString &missing) const
{
    QString text = QStringLiteral("%1: waited for \"%2\"; the host said:").arg(m_scenario, missing);
    for (int i = 0; i < m_lines.size(); ++i) {
        text +=
            (i == m_mark ? QLatin1String("\n    ---- mark ----\n    ") : QLatin1String("\n    ")) +
            m_lines.at(i);
    }
    if (m_process.state() == QProcess::NotRunning) {
        text += QLatin1String("\n    and then it ended");
    }
    return text;
}
