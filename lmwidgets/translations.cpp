#include <lmwidgets/translations.h>

#include <QCoreApplication>
#include <QPointer>
#include <QThread>
#include <QTranslator>

namespace LM {
namespace Widgets {

namespace {

const char FileName[] = "lmwidgets";
const char FolderOfHost[] = "/translations";
const char FolderOfLibrary[] = ":/lmwidgets/translations";

bool loadFrom(QTranslator *translator, const QLocale &locale, const QString &folder)
{
    return translator->load(locale, QLatin1String(FileName), QStringLiteral("_"), folder);
}

} // namespace

bool loadTranslations(const QLocale &locale)
{
    // Owned by the application object, of which a process can have one after the other.
    static QPointer<QTranslator> installed;

    QCoreApplication *application = QCoreApplication::instance();
    if (!application || application->thread() != QThread::currentThread()) {
        return false;
    }
    auto *translator = new QTranslator(application);
    const bool isLoaded =
        loadFrom(translator, locale,
                 QCoreApplication::applicationDirPath() + QLatin1String(FolderOfHost)) ||
        loadFrom(translator, locale, QLatin1String(FolderOfLibrary));
    const QPointer<QTranslator> former = installed;
    if (isLoaded) {
        installed = translator;
        QCoreApplication::installTranslator(translator);
    } else {
        delete translator;
        installed = nullptr;
    }
    // Removes itself, and tells every window.
    delete former.data();
    return isLoaded || locale.language() == QLocale::English || locale.language() == QLocale::C;
}

} // namespace Widgets
} // namespace LM
