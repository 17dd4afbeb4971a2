#ifndef LMGALLERY_LANGUAGE_H
#define LMGALLERY_LANGUAGE_H

#include <QString>
#include <QStringList>

namespace gallery {

/**
 * The languages of the library's texts, as on the command line and in file names. "pseudo" is no
 * language: each text is accented and half as long again, so that what is cut off, and what nobody
 * can translate, is seen.
 */
QStringList languageNames();

/** What a list of languages calls @p name: the language's own name for itself. */
QString languageTitle(const QString &name);

/** Gives the texts of the library, and Qt's where Qt's translation is installed, this language. */
void setLanguage(const QString &name);
QString currentLanguage();

/** Has everything run from right to left, or not. Outlasts a change of the language. */
void setRightToLeft(bool rightToLeft);

/** Returns @p source accented and longer; markup, placeholders and mnemonics stay as they are. */
QString pseudoTranslation(const QString &source);

} // namespace gallery

#endif
