#ifndef ASSISTANT_H
#define ASSISTANT_H

/** @file
 * The side of assistive technology: a session bus of the test's own, the accessibility bus that is
 * started on it, and the objects of applications as they are seen through it.
 */

#include "desktop.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>
#include <QVariant>
#include <QVector>

/** An object of an application; invalid ones answer with nothing. */
class AccessibleNode
{
public:
    AccessibleNode() = default;
    AccessibleNode(const QDBusConnection &bus, const QString &service, const QString &path)
        : m_bus(bus), m_service(service), m_path(path)
    {
    }

    bool isValid() const { return !m_path.isEmpty(); }
    QString service() const { return m_service; }
    QString path() const { return m_path; }

    QString name() const;
    /** The name of the role, for example "slider" or "check box". */
    QString role() const;
    /** The number of a state counts as in the bus's own list, for example 4 for "checked". */
    bool hasState(int state) const;
    QVector<AccessibleNode> children() const;
    /** The first object called @p name with the role @p role, this one or one below it. */
    AccessibleNode find(const QString &role, const QString &name) const;

    /** A property of the interface "org.a11y.atspi." + @p interface. */
    QVariant property(const QString &interface, const QString &name) const;
    /** Returns whether the application took the value. */
    bool setProperty(const QString &interface, const QString &name, const QVariant &value) const;
    /** A call of a method of that interface; the answer is an error if it failed. */
    QDBusMessage call(const QString &interface, const QString &method,
                      const QVariantList &arguments = QVariantList()) const;
    /** Does the action called @p name, for example "Toggle" or "Press". */
    bool doAction(const QString &name) const;

private:
    QDBusConnection m_bus = QDBusConnection(QString());
    QString m_service;
    QString m_path;
};

/** The two buses. Both end with this object. */
class Assistant : public QObject
{
    Q_OBJECT

public:
    ~Assistant() override;

    /** Starts them for programs on @p desktop. Returns an empty text, or what went wrong. */
    QString start(Desktop *desktop);

    /** The application called @p name; invalid while there is none. */
    AccessibleNode application(const QString &name) const;

    /** Asks every application to report changes of properties from now on. */
    bool listen();
    /** What was reported since the last call: the paths of objects whose value changed. */
    QStringList takeValueChanges();

private Q_SLOTS:
    void onPropertyChange(const QDBusMessage &message);

private:
    ChildProcess m_daemon;
    QDBusConnection m_session = QDBusConnection(QString());
    QDBusConnection m_bus = QDBusConnection(QString());
    QStringList m_changes;
};

#endif
