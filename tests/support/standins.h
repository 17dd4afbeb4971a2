#ifndef STANDINS_H
#define STANDINS_H

/** @file
 * A world of its own for tests of the working folders: no folder of the user, and no system
 * command, but what the test puts there.
 */

#include <QByteArray>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <unistd.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace standins {

/**
 * Sends every folder of the user's and every program into a temporary folder, which is also the
 * current one, as long as it lives.
 */
class World
{
public:
    World()
        : m_current(QDir::currentPath()),
          m_home(qgetenv("HOME")),
          m_data(qgetenv("XDG_DATA_HOME")),
          m_tmp(qgetenv("TMPDIR")),
          m_path(qgetenv("PATH"))
    {
        for (const char *name : {"home", "data", "tmp", "programs", "run"}) {
            QDir(m_root.path()).mkdir(QLatin1String(name));
        }
        qputenv("HOME", QFile::encodeName(path(QStringLiteral("home"))));
        qputenv("XDG_DATA_HOME", QFile::encodeName(path(QStringLiteral("data"))));
        qputenv("TMPDIR", QFile::encodeName(path(QStringLiteral("tmp"))));
        qputenv("PATH", QFile::encodeName(path(QStringLiteral("programs"))));
        QDir::setCurrent(path(QStringLiteral("run")));
    }

    ~World()
    {
        QDir::setCurrent(m_current);
        restore("HOME", m_home);
        restore("XDG_DATA_HOME", m_data);
        restore("TMPDIR", m_tmp);
        restore("PATH", m_path);
    }

    /** The path of @p name in this world. */
    QString path(const QString &name) const { return m_root.filePath(name); }

    /** The system's temporary folder. */
    QString systemTemp() const { return path(QStringLiteral("tmp")); }

    /** Makes the folder of a drive, which is found from the current folder by its name. */
    void addDrive(const QString &name) { QDir::current().mkdir(name); }

    /**
     * Makes a program @p name that prints @p output, notes its arguments and ends with @p exitCode;
     * @p last is run before its end.
     */
    void addProgram(const QString &name, const QByteArray &output, int exitCode = 0,
                    const QByteArray &last = QByteArray())
    {
        const QString data = path(name + QStringLiteral(".output"));
        write(data, output);
        const QString program = path(QStringLiteral("programs/") + name);
        write(program, "#!/bin/sh\nfor i in \"$@\"; do echo \"$i\"; done >>" +
                           quoted(callsOf(name)) + "\n/bin/cat " + quoted(data) + "\n" + last +
                           "\nexit " + QByteArray::number(exitCode) + "\n");
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    /** The arguments that the program @p name was called with, of all calls. */
    QStringList arguments(const QString &name) const
    {
        const QByteArray text = read(callsOf(name));
        QStringList lines = QString::fromUtf8(text).split(QLatin1Char('\n'));
        lines.removeLast();
        return lines;
    }

    static void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("cannot write %s", qPrintable(path));
        }
    }

    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    static void restore(const char *name, const QByteArray &value)
    {
        if (value.isNull()) {
            qunsetenv(name);
        } else {
            qputenv(name, value);
        }
    }

    static QByteArray quoted(const QString &path) { return '\'' + QFile::encodeName(path) + '\''; }

    QString callsOf(const QString &name) const { return path(name + QStringLiteral(".calls")); }

    friend class AsNobody;
    QTemporaryDir m_root;
    QString m_current;
    QByteArray m_home;
    QByteArray m_data;
    QByteArray m_tmp;
    QByteArray m_path;
};

/**
 * Makes the program, while it lives, one for which permissions count: they stop everybody but root.
 * Everything in @p world is that user's from then on.
 */
class AsNobody
{
public:
    explicit AsNobody(const World &world)
    {
        if (getuid() != 0) {
            m_isReady = true;
            return;
        }
        const QString root = world.m_root.path();
        bool given = ::chown(QFile::encodeName(root).constData(), Nobody, Nobody) == 0;
        QDirIterator entries(root,
                             QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QByteArray path = QFile::encodeName(entries.next());
            given = ::lchown(path.constData(), Nobody, Nobody) == 0 && given;
        }
        m_wasRoot = setresgid(Nobody, Nobody, 0) == 0 && setresuid(Nobody, Nobody, 0) == 0;
        m_isReady = given && m_wasRoot;
    }

    ~AsNobody()
    {
        if (m_wasRoot && (setresuid(0, 0, 0) != 0 || setresgid(0, 0, 0) != 0)) {
            qFatal("root cannot come back");
        }
#ifdef __linux__
        // Changing users takes it away, and the leak sanitizer needs it.
        prctl(PR_SET_DUMPABLE, 1);
#endif
    }

    /** Whether permissions count now. */
    explicit operator bool() const
    {
        return m_isReady;
    }

private:
    Q_DISABLE_COPY(AsNobody)

    static constexpr unsigned Nobody = 65534;

    bool m_wasRoot = false;
    bool m_isReady = false;
};

} // namespace standins

#endif
