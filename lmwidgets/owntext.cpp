#include "owntext_p.h"

#include "captionwidth_p.h"

#include <QAbstractButton>
#include <QEvent>
#include <QHash>
#include <QLatin1String>
#include <QObject>
#include <QVector>

namespace LM {
namespace Widgets {

namespace {

/**
 * Watches all objects that bear a text of the library's. One object does it for all of them, so that
 * neither a widget nor its children show a trace of it to the host.
 */
class LanguageFollower : public QObject
{
public:
    void follow(QObject *object, const char *key, const OwnText &text);
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Entry
    {
        QLatin1String key;
        OwnText text;
        QString shown;
    };

    QHash<QObject *, QVector<Entry>> m_entries;
};

void LanguageFollower::follow(QObject *object, const char *key, const OwnText &text)
{
    const bool isNew = !m_entries.contains(object);
    QVector<Entry> &entries = m_entries[object];
    if (isNew) {
        object->installEventFilter(this);
        connect(object, &QObject::destroyed, this,
                [this](QObject *destroyed) { m_entries.remove(destroyed); });
    }
    const Entry entry{QLatin1String(key), text, text.translated()};
    for (Entry &former : entries) {
        if (former.key == entry.key) {
            former = entry;
            return;
        }
    }
    entries.append(entry);
}

bool LanguageFollower::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::LanguageChange) {
        return false;
    }
    // A slot of the host may destroy the object, or have another text followed, at any of them.
    const int count = m_entries.value(watched).size();
    for (int i = 0; i < count; ++i) {
        const auto found = m_entries.find(watched);
        if (found == m_entries.end()) {
            return true;
        }
        Entry &entry = (*found)[i];
        const QString former = entry.shown;
        const QString now = entry.text.translated();
        if (former == now) {
            continue;
        }
        entry.shown = now;
        const auto replace = entry.text.replace;
        replace(former, now);
    }
    return !m_entries.contains(watched);
}

Q_GLOBAL_STATIC(LanguageFollower, theFollower)

} // namespace

void followLanguage(QObject *object, const char *key, const OwnText &text)
{
    if (LanguageFollower *follower = theFollower()) {
        follower->follow(object, key, text);
    }
}

void setOwnCaption(QAbstractButton *button, const std::function<QString()> &translated)
{
    button->setText(translated());
    widenForCaption(button);
    followLanguage(button, "text",
                   {translated, [button](const QString &former, const QString &now) {
                        if (button->text() == former) {
                            button->setText(now);
                            widenForCaption(button);
                        }
                    }});
}

} // namespace Widgets
} // namespace LM
