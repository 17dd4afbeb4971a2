#include "assistant.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QStandardPaths>
#include <QtTest>

namespace {

constexpr int TimeoutMs = 10000;
constexpr int StatesInAWord = 32;

const QString Prefix = QStringLiteral("org.a11y.atspi.");
const QString Properties = QStringLiteral("org.freedesktop.DBus.Properties");
const QString SessionName = QStringLiteral("lmwidgets-session");
const QString BusName = QStringLiteral("lmwidgets-accessibility");

} // namespace

QDBusMessage AccessibleNode::call(const QString &interface, const QString &method,
                                  const QVariantList &arguments) const
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(m_service, m_path, Prefix + interface, method);
    message.setArguments(arguments);
    return m_bus.call(message, QDBus::Block, TimeoutMs);
}

QVariant AccessibleNode::property(const QString &interface, const QString &name) const
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(m_service, m_path, Properties, QStringLiteral("Get"));
    message << Prefix + interface << name;
    const QDBusMessage answer = m_bus.call(message, QDBus::Block, TimeoutMs);
    if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) {
        return QVariant();
    }
    return answer.arguments().constFirst().value<QDBusVariant>().variant();
}

bool AccessibleNode::setProperty(const QString &interface, const QString &name,
                                 const QVariant &value) const
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(m_service, m_path, Properties, QStringLiteral("Set"));
    message << Prefix + interface << name << QVariant::fromValue(QDBusVariant(value));
    return m_bus.call(message, QDBus::Block, TimeoutMs).type() == QDBusMessage::ReplyMessage;
}

QString AccessibleNode::name() const
{
    return property(QStringLiteral("Accessible"), QStringLiteral("Name")).toString();
}

QString AccessibleNode::role() const
{
    const QDBusMessage answer = call(QStringLiteral("Accessible"), QStringLiteral("GetRoleName"));
    return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments().value(0).toString()
                                                       : QString();
}

bool AccessibleNode::hasState(int state) const
{
    const QDBusMessage answer = call(QStringLiteral("Accessible"), QStringLiteral("GetState"));
    if (answer.type() != QDBusMessage::ReplyMessage) {
        return false;
    }
    const auto words = qdbus_cast<QList<uint>>(answer.arguments().value(0));
    return (words.value(state / StatesInAWord) >> (state % StatesInAWord)) & 1U;
}

QVector<AccessibleNode> AccessibleNode::children() const
{
    QVector<AccessibleNode> found;
    const QDBusMessage answer = call(QStringLiteral("Accessible"), QStringLiteral("GetChildren"));
    if (answer.type() != QDBusMessage::ReplyMessage) {
        return found;
    }
    const auto list = answer.arguments().value(0).value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        QString service;
        QDBusObjectPath path;
        list.beginStructure();
        list >> service >> path;
        list.endStructure();
        found.append(AccessibleNode(m_bus, service, path.path()));
    }
    list.endArray();
    return found;
}

AccessibleNode AccessibleNode::find(const QString &role, const QString &name) const
{
    if (this->name() == name && this->role() == role) {
        return *this;
    }
    const QVector<AccessibleNode> nodes = children();
    for (const AccessibleNode &node : nodes) {
        const AccessibleNode found = node.find(role, name);
        if (found.isValid()) {
            return found;
        }
    }
    return AccessibleNode();
}

bool AccessibleNode::doAction(const QString &name) const
{
    const QString interface = QStringLiteral("Action");
    const int count = property(interface, QStringLiteral("NActions")).toInt();
    for (int i = 0; i < count; ++i) {
        const QDBusMessage answer = call(interface, QStringLiteral("GetName"), {i});
        if (answer.arguments().value(0).toString() == name) {
            return call(interface, QStringLiteral("DoAction"), {i}).type() ==
                   QDBusMessage::ReplyMessage;
        }
    }
    return false;
}

Assistant::~Assistant()
{
    QDBusConnection::disconnectFromBus(BusName);
    QDBusConnection::disconnectFromBus(SessionName);
    // What was started on the bus ends when the bus does.
    m_daemon.terminate();
    m_daemon.waitForFinished(TimeoutMs);
}

QString Assistant::start(Desktop *desktop)
{
    if (QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")).isEmpty()) {
        return QStringLiteral("This package is not installed: dbus");
    }
    QProcessEnvironment environment = desktop->environment();
    // Nothing of the session that the test itself may run in.
    environment.remove(QStringLiteral("AT_SPI_BUS_ADDRESS"));
    environment.remove(QStringLiteral("NO_AT_BRIDGE"));
    m_daemon.setProcessEnvironment(environment);
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--session"), QStringLiteral("--nofork"),
                    QStringLiteral("--nopidfile"), QStringLiteral("--print-address=1")});
    QByteArray address;
    const bool ready = QTest::qWaitFor(
        [this, &address] {
            address += m_daemon.readAllStandardOutput();
            return address.endsWith('\n') || m_daemon.state() == QProcess::NotRunning;
        },
        TimeoutMs);
    if (!ready || !address.endsWith('\n')) {
        return QLatin1String("dbus-daemon does not start: ") +
               QString::fromLocal8Bit(m_daemon.readAllStandardError());
    }
    const QString sessionAddress = QString::fromLatin1(address.trimmed());
    m_session = QDBusConnection::connectToBus(sessionAddress, SessionName);

    const QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
        QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"));
    const QDBusMessage answer = m_session.call(question, QDBus::Block, TimeoutMs);
    if (answer.type() != QDBusMessage::ReplyMessage) {
        return QLatin1String("No accessibility bus (package at-spi2-core): ") +
               answer.errorMessage();
    }
    m_bus = QDBusConnection::connectToBus(answer.arguments().value(0).toString(), BusName);
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), sessionAddress);
    environment.insert(QStringLiteral("QT_ACCESSIBILITY"), QStringLiteral("1"));
    environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
    desktop->setEnvironment(environment);
    return m_bus.isConnected() ? QString() : m_bus.lastError().message();
}

AccessibleNode Assistant::application(const QString &name) const
{
    const AccessibleNode root(m_bus, QStringLiteral("org.a11y.atspi.Registry"),
                              QStringLiteral("/org/a11y/atspi/accessible/root"));
    const QVector<AccessibleNode> applications = root.children();
    for (const AccessibleNode &application : applications) {
        if (application.name() == name) {
            return application;
        }
    }
    return AccessibleNode();
}

bool Assistant::listen()
{
    const AccessibleNode registry(m_bus, QStringLiteral("org.a11y.atspi.Registry"),
                                  QStringLiteral("/org/a11y/atspi/registry"));
    const bool connected =
        m_bus.connect(QString(), QString(), QStringLiteral("org.a11y.atspi.Event.Object"),
                      QStringLiteral("PropertyChange"), this, SLOT(onPropertyChange(QDBusMessage)));
    return connected && registry.call(QStringLiteral("Registry"), QStringLiteral("RegisterEvent"),
                                      {QStringLiteral("object:property-change:accessible-value")})
                                .type() == QDBusMessage::ReplyMessage;
}

void Assistant::onPropertyChange(const QDBusMessage &message)
{
    if (message.arguments().value(0).toString() == QLatin1String("accessible-value")) {
        m_changes.append(message.path());
    }
}

QStringList Assistant::takeValueChanges()
{
    const QStringList changes = m_changes;
    m_changes.clear();
    return changes;
}
