#ifndef LMGALLERY_SHOOTER_H
#define LMGALLERY_SHOOTER_H

#include <QString>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QImage;
class QTextStream;
class QWidget;
QT_END_NAMESPACE

namespace gallery {

/** The name under which the picture of the main window is asked for; no page is called so. */
extern const char WindowName[];

/**
 * Waits until the window of @p widget is on the screen and no change of its layout is under way, at
 * most a few seconds. Returns false if it was destroyed or is not shown by then.
 */
bool settle(QWidget *widget);

/** Returns a picture of @p widget, which must be shown, as it stands on a neutral backdrop. */
QImage takePicture(QWidget *widget);

/**
 * Takes pictures of the named pages and all their shots in each of the named themes, into files
 * `<theme>-<page>[-<shot>].png` in @p directory, which is created; in another language than
 * English, or from right to left, `<theme>-[<language>-][rtl-]<page>[-<shot>].png`. Writes the path of each to @p
 * out, and what went wrong to @p err. Returns whether all of them were written. The theme is
 * afterwards as before.
 */
bool shoot(const QString &directory, const QStringList &themes, const QStringList &pageNames,
           QTextStream &out, QTextStream &err);

/**
 * Takes the pictures for the documentation: each class alone, in the Black theme and as see-through as
 * it is, into files `<class>.png` in @p directory; otherwise like shoot().
 */
bool shootWidgets(const QString &directory, QTextStream &out, QTextStream &err);

} // namespace gallery

#endif
