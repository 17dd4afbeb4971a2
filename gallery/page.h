#ifndef LMGALLERY_PAGE_H
#define LMGALLERY_PAGE_H

#include <QString>
#include <QVector>
#include <QWidget>

#include <functional>

namespace gallery {

class SignalLog;

/** A dialog or a state of one that the picture mode opens, takes a picture of and destroys. */
struct Shot
{
    QString name;
    /** Opens a window and returns it, shown; the caller destroys it. */
    std::function<QWidget *()> open;
    /** In place of that: opens a modal dialog and returns when it is closed, as static functions
     * do. */
    std::function<void()> exec;
};

/** What the gallery knows of one family of widgets: how to show it live, and its pictures. */
class Page
{
public:
    /** Builds the live content of a page; the widgets it makes report their signals to the log. */
    using Factory = std::function<QWidget *(SignalLog &log)>;

    /** @p name is for the command line and file names: lower case letters and digits. */
    Page(const QString &name, const QString &title, const QString &description, Factory factory);

    QString name() const { return m_name; }
    QString title() const { return m_title; }
    QString description() const { return m_description; }
    QVector<Shot> shots() const { return m_shots; }

    /** Adds a picture to be taken; returns the page itself, for the next one. */
    Page &shot(const QString &name, std::function<QWidget *()> open);
    /** The same for a function that opens a modal dialog and returns only when it is closed. */
    Page &blockingShot(const QString &name, std::function<void()> exec);

    /** Returns a new widget with heading, description and content; it is the caller's. */
    QWidget *createView(SignalLog &log) const;

private:
    QString m_name;
    QString m_title;
    QString m_description;
    Factory m_factory;
    QVector<Shot> m_shots;
};

/** Returns all pages in the order of the list. */
const QVector<Page> &pages();

/** Returns the page called @p name, or null. */
const Page *findPage(const QString &name);

} // namespace gallery

#endif
