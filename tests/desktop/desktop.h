#ifndef DESKTOP_H
#define DESKTOP_H

/** @file
 * A desktop of the test's own: an X server without a screen, a window manager, mouse and keyboard,
 * and the host applications that run on it. Everything is waited for; nothing sleeps for a fixed
 * time.
 */

#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/** A process that ends with the test program, even when that is killed. */
class ChildProcess : public QProcess
{
    Q_OBJECT

protected:
    void setupChildProcess() override;
};

/** The X server and the window manager. Both end with this object. */
class Desktop
{
public:
    ~Desktop();

    /** Starts both. Returns an empty text, or what went wrong and how to mend it. */
    QString start();

    /** The window manager that the environment variable LMTEST_WM asks for: openbox or xfwm4. */
    static QString windowManager();

    /** The environment in which programs find this desktop. */
    QProcessEnvironment environment() const { return m_environment; }
    /** Changes it for the programs that are started from now on. */
    void setEnvironment(const QProcessEnvironment &environment) { m_environment = environment; }

    /** Runs xdotool with @p arguments. Returns what it printed; a null text when it failed. */
    QString xdotool(const QStringList &arguments) const;
    /** The same, with arguments separated by blanks. */
    QString xdotool(const QString &arguments) const;

    /** A fingerprint of the mouse pointer as it looks at this moment; a null text on failure. */
    QString pointerPicture() const;

private:
    QString startServer();
    QString startWindowManager();
    QString run(const QString &program, const QStringList &arguments) const;

    QTemporaryDir m_runtimeDir;
    QProcessEnvironment m_environment;
    ChildProcess m_server;
    ChildProcess m_windowManager;
};

/** One run of desktop_host, or of another program that uses Reporter. Ends with this object. */
class Host : public QObject
{
    Q_OBJECT

public:
    /** With @p programs, a folder, the host finds the programs there before those of the system. */
    Host(const Desktop &desktop, const QString &scenario, const QString &programs = QString(),
         const QString &program = QStringLiteral("desktop_host"));
    ~Host() override;

    /** From here on waitFor() and hasSaid() look only at what the host says afterwards. */
    void mark() { m_mark = m_lines.size(); }

    /** Waits until the host has said a line that @p pattern, a regular expression, matches
     * entirely. */
    bool waitFor(const QString &pattern);
    /** Returns whether it has said one since the mark. */
    bool hasSaid(const QString &pattern) const;

    /** Waits until @p window stands at @p geometry. */
    bool waitForGeometry(const QString &window, const QRect &geometry);
    /** Returns the geometry of @p window according to the host's last words about it. */
    QRect lastGeometry(const QString &window) const;
    /** Returns the rectangle at the end of the last line that begins with @p words and a blank. */
    QRect lastRect(const QString &words) const;

    /** Asks where the visible widget @p name stands on the screen; an invalid rectangle if nowhere.
     */
    QRect where(const QString &name);
    /** Asks where the popup is that is open now; an invalid rectangle if there is none. */
    QRect popup();
    /** Gives an order, see Reporter. */
    void order(const QString &line);

    /** All that the host has said, with the mark, for the message of a failure. */
    QString report(const QString &missing) const;

private:
    QRect ask(const QString &question);
    void readLines();

    ChildProcess m_process;
    QByteArray m_rest;
    QStringList m_lines;
    QString m_scenario;
    int m_mark = 0;
};

#endif
