#include "signallog.h"

#include "pageparts.h"

#include <QAbstractButton>
#include <QDebug>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMetaEnum>
#include <QMetaMethod>
#include <QPushButton>
#include <QThread>
#include <QTime>
#include <QTreeWidget>
#include <QVariant>
#include <QVBoxLayout>
#include <QVector>

namespace gallery {

namespace {

constexpr int MaximumLines = 1000;
constexpr int TopMargin = 6;
constexpr int CellPadding = 24;
// The longest of what the columns usually hold; their widths come from these texts.
const char TimeSample[] = "00:00:00.000";
const char SenderSample[] = "TalvoStyleManager";
const char SignalSample[] = "signalUpdateMappingPointSize";

enum Column { TimeColumn, SenderColumn, EventColumn, ArgumentsColumn };

QString objectText(const QObject *object)
{
    if (!object) {
        return QStringLiteral("null");
    }
    QString name = object->objectName();
    if (const auto *clicked = qobject_cast<const QAbstractButton *>(object)) {
        name = clicked->text();
    }
    const QString className = QString::fromLatin1(object->metaObject()->className());
    return name.isEmpty() ? className : QStringLiteral("%1 \"%2\"").arg(className, name);
}

/** Describes the enumeration called @p typeName, of the sender's own class or of the Qt namespace.
 */
QMetaEnum findEnum(const QMetaObject *senderClass, const QByteArray &typeName)
{
    const QMetaObject *qtNamespace = QMetaEnum::fromType<Qt::Orientation>().enclosingMetaObject();
    const QMetaObject *scope = typeName.startsWith("Qt::") ? qtNamespace : senderClass;
    const QByteArray name = typeName.mid(typeName.lastIndexOf(':') + 1);
    return scope->enumerator(scope->indexOfEnumerator(name.constData()));
}

QString enumText(const QMetaEnum &description, const void *data)
{
    const int value = *static_cast<const int *>(data);
    const char *key = description.valueToKey(value);
    return key ? QString::fromLatin1(key) : QString::number(value);
}

QString argumentText(const QMetaMethod &method, int index, void *data)
{
    const int type = method.parameterType(index);
    if (type == QMetaType::UnknownType) {
        const QByteArray typeName = method.parameterTypes().at(index);
        const QMetaEnum description = findEnum(method.enclosingMetaObject(), typeName);
        return description.isValid() ? enumText(description, data) : QString::fromLatin1(typeName);
    }
    const QMetaType::TypeFlags flags = QMetaType::typeFlags(type);
    if (flags & QMetaType::PointerToQObject) {
        return objectText(*static_cast<QObject **>(data));
    }
    const QVariant value(type, data);
    if (type == QMetaType::QString) {
        return QStringLiteral("\"%1\"").arg(value.toString());
    }
    if (value.canConvert<QString>()) {
        return value.toString();
    }
    QString text;
    QDebug(&text).nospace() << value;
    return text.trimmed();
}

QString argumentsText(const QMetaMethod &method, void **data)
{
    const QList<QByteArray> names = method.parameterNames();
    QStringList texts;
    for (int i = 0; i < method.parameterCount(); ++i) {
        const QString value = argumentText(method, i, data[i + 1]);
        const QString name = QString::fromLatin1(names.value(i));
        texts.append(name.isEmpty() ? value : QStringLiteral("%1 = %2").arg(name, value));
    }
    return texts.join(QStringLiteral(", "));
}

/**
 * Receives all signals of one object. It has no slots of its own: every signal is connected to a
 * method number past those of QObject, and qt_metacall() tells from the number which one arrived.
 */
class SignalWatcher : public QObject
{
public:
    SignalWatcher(QObject *sender, const QString &name, SignalLog *log)
        : QObject(log), m_name(name), m_log(log)
    {
        const QMetaObject *meta = sender->metaObject();
        const int first = sender->isWidgetType() ? QWidget::staticMetaObject.methodCount()
                                                 : QObject::staticMetaObject.methodCount();
        for (int i = first; i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            if (method.methodType() != QMetaMethod::Signal) {
                continue;
            }
            registerArguments(sender, method);
            const int slot = QObject::staticMetaObject.methodCount() + m_methods.size();
            QMetaObject::connect(sender, i, this, slot, Qt::DirectConnection, nullptr);
            m_methods.append(method);
        }
        connect(sender, &QObject::destroyed, this, &QObject::deleteLater);
    }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod) {
            return id;
        }
        if (id < m_methods.size()) {
            const QMetaMethod method = m_methods.at(id);
            note(QString::fromLatin1(method.name()), argumentsText(method, arguments));
        }
        return id - m_methods.size();
    }

private:
    /** Writes into the log, in its thread: a host's worker may emit the signals of a dialog. */
    void note(const QString &event, const QString &arguments)
    {
        const auto write = [this, event, arguments] { m_log->note(m_name, event, arguments); };
        if (QThread::currentThread() == thread()) {
            write();
        } else {
            QMetaObject::invokeMethod(this, write, Qt::QueuedConnection);
        }
    }

    /** Has the sender's class make the types of a signal known, which connections do only later. */
    static void registerArguments(QObject *sender, const QMetaMethod &method)
    {
        for (int i = 0; i < method.parameterCount(); ++i) {
            int type = QMetaType::UnknownType;
            void *arguments[] = {&type, &i};
            QMetaObject::metacall(sender, QMetaObject::RegisterMethodArgumentMetaType,
                                  method.methodIndex(), arguments);
        }
    }

    QString m_name;
    SignalLog *m_log;
    QVector<QMetaMethod> m_methods;
};

} // namespace

SignalLog::SignalLog(QWidget *parent) : QWidget(parent), m_list(new QTreeWidget)
{
    // A class that only announces the button's class in its header cannot make it known itself.
    qRegisterMetaType<QAbstractButton *>();
    m_list->setObjectName(QStringLiteral("gallerySignals"));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setHeaderLabels({QStringLiteral("Time"), QStringLiteral("Sender"),
                             QStringLiteral("Signal"), QStringLiteral("Arguments")});
    const QFontMetrics metrics(m_list->font());
    int column = TimeColumn;
    for (const char *sample : {TimeSample, SenderSample, SignalSample}) {
        m_list->setColumnWidth(column,
                               metrics.horizontalAdvance(QLatin1String(sample)) + CellPadding);
        ++column;
    }

    auto *bar = new QHBoxLayout;
    bar->addWidget(heading(QStringLiteral("Signals"), HeadingLevel::Section));
    bar->addStretch();
    bar->addWidget(button(QStringLiteral("Clear"), [this] { clear(); }));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, TopMargin, 0, 0);
    layout->addLayout(bar);
    layout->addWidget(m_list);
}

void SignalLog::watch(QObject *sender, const QString &name)
{
    if (sender) {
        new SignalWatcher(sender, name, this);
    }
}

void SignalLog::note(const QString &sender, const QString &event, const QString &arguments)
{
    if (m_list->topLevelItemCount() >= MaximumLines) {
        delete m_list->takeTopLevelItem(0);
    }
    const QString time = QTime::currentTime().toString(QStringLiteral("hh:mm:ss.zzz"));
    auto *item = new QTreeWidgetItem({time, sender, event, arguments});
    item->setToolTip(ArgumentsColumn, arguments);
    m_list->addTopLevelItem(item);
    m_list->scrollToItem(item);
}

int SignalLog::count() const
{
    return m_list->topLevelItemCount();
}

QStringList SignalLog::line(int index) const
{
    const QTreeWidgetItem *item = m_list->topLevelItem(index);
    return item ? QStringList{item->text(SenderColumn), item->text(EventColumn),
                              item->text(ArgumentsColumn)}
                : QStringList();
}

void SignalLog::clear()
{
    m_list->clear();
}

} // namespace gallery
