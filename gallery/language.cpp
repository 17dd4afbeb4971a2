#include "language.h"

#include <lmwidgets/translations.h>

#include <QApplication>
#include <QEvent>
#include <QLibraryInfo>
#include <QLocale>
#include <QMap>
#include <QTranslator>

#include <cstring>

namespace gallery {

namespace {

const char English[] = "en";
const char Pseudo[] = "pseudo";
// Every third letter is followed by one of these, so that a text grows and may still wrap.
constexpr int LettersPerFiller = 2;
const QChar Filler(0x00B7);

bool rightToLeftWanted = false;

/** Translates everything, by no dictionary. */
class PseudoTranslator : public QTranslator
{
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *disambiguation,
                      int n) const override
    {
        Q_UNUSED(disambiguation)
        Q_UNUSED(n)
        // Read by Qt, not by people: the names of keys and the direction of the language.
        if (std::strcmp(context, "QShortcut") == 0 || std::strncmp(source, "QT_", 3) == 0) {
            return QString();
        }
        return pseudoTranslation(QString::fromUtf8(source));
    }
};

QString &languageName()
{
    static QString name = QLatin1String(English);
    return name;
}

/** Removes itself when the application object goes; at most one of each is there. */
void replaceTranslator(const QString &objectName, QTranslator *translator)
{
    delete qApp->findChild<QTranslator *>(objectName, Qt::FindDirectChildrenOnly);
    if (translator) {
        translator->setObjectName(objectName);
        QCoreApplication::installTranslator(translator);
    }
}

QTranslator *translatorOfQt(const QString &language)
{
    auto *translator = new QTranslator(qApp);
    const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    if (!translator->load(QStringLiteral("qtbase_") + language, folder)) {
        delete translator;
        return nullptr;
    }
    return translator;
}

QChar accented(QChar letter)
{
    static const QMap<QChar, ushort> letters = {
        {QLatin1Char('a'), 0x00E5}, {QLatin1Char('c'), 0x00E7}, {QLatin1Char('e'), 0x00EA},
        {QLatin1Char('i'), 0x00EF}, {QLatin1Char('n'), 0x00F1}, {QLatin1Char('o'), 0x00F6},
        {QLatin1Char('u'), 0x00FB}, {QLatin1Char('y'), 0x00FF}, {QLatin1Char('A'), 0x00C2},
        {QLatin1Char('C'), 0x00C7}, {QLatin1Char('E'), 0x00C9}, {QLatin1Char('I'), 0x00CE},
        {QLatin1Char('N'), 0x00D1}, {QLatin1Char('O'), 0x00D8}, {QLatin1Char('U'), 0x00DC}};
    return letters.contains(letter) ? QChar(letters.value(letter)) : letter;
}

} // namespace

QString pseudoTranslation(const QString &source)
{
    QString result;
    bool inTag = false;
    bool inEntity = false;
    int lettersSince = 0;
    for (int i = 0; i < source.size(); ++i) {
        const QChar character = source.at(i);
        inTag = inTag || character == QLatin1Char('<');
        inEntity = inEntity || (character == QLatin1Char('&') &&
                                source.indexOf(QLatin1Char(';'), i) > i && source.contains(u'<'));
        const bool isPlaceholder = i > 0 && source.at(i - 1) == QLatin1Char('%');
        const bool isText = !inTag && !inEntity && !isPlaceholder;
        result.append(isText ? accented(character) : character);
        if (isText && character.isLetter() && ++lettersSince == LettersPerFiller) {
            result.append(Filler);
            lettersSince = 0;
        }
        inTag = inTag && character != QLatin1Char('>');
        inEntity = inEntity && character != QLatin1Char(';');
    }
    return result;
}

QStringList languageNames()
{
    return {QLatin1String(English), QStringLiteral("de"), QStringLiteral("zh_CN"),
            QLatin1String(Pseudo)};
}

QString languageTitle(const QString &name)
{
    if (name == QLatin1String(English)) {
        return QStringLiteral("English");
    }
    if (name == QLatin1String(Pseudo)) {
        return pseudoTranslation(QStringLiteral("Pseudo"));
    }
    return QLocale(name).nativeLanguageName();
}

void setLanguage(const QString &name)
{
    const bool isPseudo = name == QLatin1String(Pseudo);
    languageName() = name;
    replaceTranslator(QStringLiteral("galleryQtTranslator"), translatorOfQt(name));
    LM::Widgets::loadTranslations(isPseudo ? QLocale::c() : QLocale(name));
    replaceTranslator(QStringLiteral("galleryPseudoTranslator"),
                      isPseudo ? new PseudoTranslator(qApp) : nullptr);
    // The application asks the new language for its direction.
    setRightToLeft(rightToLeftWanted);
}

QString currentLanguage()
{
    return languageName();
}

void setRightToLeft(bool rightToLeft)
{
    rightToLeftWanted = rightToLeft;
    QApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
}

} // namespace gallery
