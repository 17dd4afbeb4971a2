#ifndef LMGALLERY_SIGNALLOG_H
#define LMGALLERY_SIGNALLOG_H

#include <QString>
#include <QStringList>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QTreeWidget;
QT_END_NAMESPACE

namespace gallery {

/**
 * A list of signals as they arrive: time, sender, signal and arguments; the newest is at the end.
 *
 * watch() connects to every signal that the object's own classes declare, so that a page needs no
 * code for a single one of them.
 */
class SignalLog : public QWidget
{
    Q_OBJECT

public:
    explicit SignalLog(QWidget *parent = nullptr);

    /**
     * Reports the signals of @p sender under @p name until either is destroyed: those declared by
     * the classes below QWidget, or for other objects below QObject. Null is ignored.
     */
    void watch(QObject *sender, const QString &name);

    /** Adds a line for what is not a signal, for example the result of a static function. */
    void note(const QString &sender, const QString &event, const QString &arguments = QString());

    /** The number of lines, and the sender, event and arguments of one. */
    int count() const;
    QStringList line(int index) const;

public Q_SLOTS:
    void clear();

private:
    QTreeWidget *m_list = nullptr;
};

} // namespace gallery

#endif
