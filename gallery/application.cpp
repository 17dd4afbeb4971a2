#include "application.h"

#include "language.h"
#include "mainwindow.h"
#include "page.h"
#include "shooter.h"
#include "splashpicture.h"
#include "themes.h"

#include <lmwidgets/lmwidgets_version.h>
#include <lmwidgets/talvosplashscreen.h>
#include <lmwidgets/talvostylemanager.h>

#include <QApplication>
#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QProcess>
#include <QTextStream>

namespace gallery {

using LM::Widgets::TalvoStyleManager;

namespace {

constexpr double MaximumScale = 4;

struct Options
{
    QCommandLineOption shoot{
        QStringLiteral("shoot"),
        QStringLiteral("Write a picture of every page and dialog into <dir> and exit."),
        QStringLiteral("dir")};
    QCommandLineOption widgetPictures{
        QStringLiteral("widget-pictures"),
        QStringLiteral("Write a picture of each class, as the documentation shows it, into <dir> "
                       "and exit."),
        QStringLiteral("dir")};
    QCommandLineOption theme{
        QStringLiteral("theme"),
        QStringLiteral("Use this theme: %1. Pictures are taken in all of them otherwise.")
            .arg(themeNames().join(QStringLiteral(", "))),
        QStringLiteral("name")};
    QCommandLineOption page{QStringLiteral("page"),
                            QStringLiteral("Show, or take the pictures of, this page only."),
                            QStringLiteral("name")};
    QCommandLineOption scale{QStringLiteral("scale"),
                             QStringLiteral("Scale everything by <factor>, for example 2."),
                             QStringLiteral("factor")};
    QCommandLineOption language{QStringLiteral("language"),
                                QStringLiteral("Let the library speak: %1.")
                                    .arg(languageNames().join(QStringLiteral(", "))),
                                QStringLiteral("name")};
    QCommandLineOption rightToLeft{QStringLiteral("rtl"),
                                   QStringLiteral("Lay everything out from right to left.")};
    QCommandLineOption noSplash{QStringLiteral("no-splash"),
                                QStringLiteral("Show the window without a splash screen.")};
    QCommandLineOption list{QStringLiteral("list"),
                            QStringLiteral("List the pages and their pictures and exit.")};

    void addTo(QCommandLineParser &parser) const
    {
        parser.setApplicationDescription(QStringLiteral("Shows the widgets of lmwidgets."));
        parser.addOptions(
            {shoot, widgetPictures, theme, page, scale, language, rightToLeft, noSplash, list});
    }
};

QStringList pictureNames()
{
    QStringList names = {QLatin1String(WindowName)};
    for (const Page &page : pages()) {
        names.append(page.name());
    }
    return names;
}

QtMessageHandler nextMessageHandler = nullptr;

/** Drops what the offscreen platform says about each window: the lists of paths are read by
 * scripts. */
void dropPlatformChatter(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support "))) {
        nextMessageHandler(type, context, message);
    }
}

bool isScale(const QString &text)
{
    bool isNumber = false;
    const double factor = text.toDouble(&isNumber);
    return isNumber && factor > 0 && factor <= MaximumScale;
}

void list(QTextStream &out)
{
    out << WindowName << '\n';
    for (const Page &page : pages()) {
        out << page.name() << '\n';
        for (const Shot &shot : page.shots()) {
            out << "  " << shot.name << '\n';
        }
    }
}

/** Returns whether @p value is one of @p valid, and says which are if it is not. */
bool checkName(const char *what, const QString &value, const QStringList &valid, QTextStream &err)
{
    if (valid.contains(value)) {
        return true;
    }
    err << "lmgallery: there is no " << what << " \"" << value << "\"; there are "
        << valid.join(QStringLiteral(", ")) << '\n';
    return false;
}

bool checkValues(const QCommandLineParser &parser, const Options &options, QTextStream &err)
{
    if (parser.isSet(options.scale) && !isScale(parser.value(options.scale))) {
        err << "lmgallery: the scale must be a number above 0 and up to " << MaximumScale << '\n';
        return false;
    }
    if (parser.isSet(options.theme) &&
        !checkName("theme", parser.value(options.theme), themeNames(), err)) {
        return false;
    }
    if (parser.isSet(options.language) &&
        !checkName("language", parser.value(options.language), languageNames(), err)) {
        return false;
    }
    return !parser.isSet(options.page) ||
           checkName("page", parser.value(options.page), pictureNames(), err);
}

int shootAsAsked(const QCommandLineParser &parser, const Options &options, QTextStream &out,
                 QTextStream &err)
{
    const QStringList themes =
        parser.isSet(options.theme) ? QStringList(parser.value(options.theme)) : themeNames();
    const QStringList names =
        parser.isSet(options.page) ? QStringList(parser.value(options.page)) : pictureNames();
    return shoot(parser.value(options.shoot), themes, names, out, err) ? Success : PictureFailed;
}

/** Loads everything that @p window has to show behind a splash screen, and shows it then. */
void showAfterSplash(MainWindow &window)
{
    TalvoSplashScreen splash(QStringLiteral(LMWIDGETS_VERSION_STRING), splashPicture());
    splash.show();
    window.loadPages([&splash] { splash.beat(); });
    window.show();
    splash.finish(&window);
}

int showWindow(const QCommandLineParser &parser, const Options &options)
{
    if (parser.isSet(options.theme)) {
        TalvoStyleManager::instance()->shiftStyle(themeFromName(parser.value(options.theme)));
    }
    MainWindow window;
    window.showPage(parser.value(options.page));
    QObject::connect(&window, &MainWindow::scaleChosen, &window, [](const QStringList &arguments) {
        // QT_SCALE_FACTOR is inherited, and --scale says what it is to be instead.
        if (QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments)) {
            QCoreApplication::quit();
        }
    });
    if (parser.isSet(options.noSplash)) {
        window.show();
    } else {
        showAfterSplash(window);
    }
    return QApplication::exec();
}

} // namespace

void prepare(const QStringList &arguments)
{
    const Options options;
    QCommandLineParser parser;
    options.addTo(parser);
    const QCommandLineOption help = parser.addHelpOption();
    // Qt's own options are not known here, nor is what is wrong with the others said twice.
    parser.parse(arguments);
    if (isScale(parser.value(options.scale))) {
        qputenv("QT_SCALE_FACTOR", parser.value(options.scale).toLatin1());
    }
    QString complaints;
    QTextStream complaintStream(&complaints);
    const bool takesPictures = parser.isSet(options.shoot) || parser.isSet(options.widgetPictures);
    const bool needsScreen = !takesPictures && !parser.isSet(options.list) && !parser.isSet(help) &&
                             checkValues(parser, options, complaintStream);
    if (!needsScreen) {
        nextMessageHandler = qInstallMessageHandler(dropPlatformChatter);
    }
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    const bool platformChosen = qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
                                arguments.contains(QStringLiteral("-platform"));
    if (!needsScreen && !platformChosen) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
#endif
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

int run(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    const Options options;
    QCommandLineParser parser;
    options.addTo(parser);
    const QCommandLineOption help = parser.addHelpOption();
    if (!parser.parse(arguments)) {
        err << "lmgallery: " << parser.errorText() << '\n';
        return BadArguments;
    }
    if (parser.isSet(help)) {
        out << parser.helpText();
        return Success;
    }
    if (!parser.positionalArguments().isEmpty()) {
        err << "lmgallery: unexpected argument \"" << parser.positionalArguments().first()
            << "\"\n";
        return BadArguments;
    }
    if (!checkValues(parser, options, err)) {
        return BadArguments;
    }
    if (parser.isSet(options.list)) {
        list(out);
        return Success;
    }
    followTheme();
    if (parser.isSet(options.language)) {
        setLanguage(parser.value(options.language));
    }
    setRightToLeft(parser.isSet(options.rightToLeft));
    if (parser.isSet(options.widgetPictures)) {
        return shootWidgets(parser.value(options.widgetPictures), out, err) ? Success
                                                                            : PictureFailed;
    }
    return parser.isSet(options.shoot) ? shootAsAsked(parser, options, out, err)
                                       : showWindow(parser, options);
}

} // namespace gallery
