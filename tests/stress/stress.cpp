/** @file
 * Hard use: dialogs opened and closed by the ten thousand, theme switches by the hundred thousand,
 * a user who does what comes into his head, and threads that fight for the waiting dialog. Fails
 * when something is left behind, or when Qt or the library warns. The defaults are the full
 * numbers; scripts/stress runs them.
 */

#include "dialogs.h"
#include "endurance.h"
#include "lmtest.h"
#include "storm.h"
#include "themeswitches.h"
#include "waiting.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QPixmapCache>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <limits>

namespace {

struct Options
{
    QCommandLineOption dialogs{QStringLiteral("dialogs"),
                               QStringLiteral("Open and close <count> dialogs of each kind."),
                               QStringLiteral("count"), QStringLiteral("10000")};
    QCommandLineOption themes{QStringLiteral("themes"),
                              QStringLiteral("Switch the theme <count> times."),
                              QStringLiteral("count"), QStringLiteral("100000")};
    QCommandLineOption live{QStringLiteral("live"), QStringLiteral("With <count> open dialogs."),
                            QStringLiteral("count"), QStringLiteral("200")};
    QCommandLineOption styled{
        QStringLiteral("styled"),
        QStringLiteral("Switch the theme and the application's style sheet <count> times."),
        QStringLiteral("count"), QStringLiteral("40")};
    QCommandLineOption waiting{
        QStringLiteral("waiting"),
        QStringLiteral("Start and stop the waiting dialog from threads <count> times."),
        QStringLiteral("count"), QStringLiteral("10000")};
    QCommandLineOption storm{QStringLiteral("storm"),
                             QStringLiteral("Storm the gallery for <seconds>."),
                             QStringLiteral("seconds"), QStringLiteral("600")};
    QCommandLineOption stormRounds{QStringLiteral("storm-rounds"),
                                   QStringLiteral("Storm <count> pages, however long that takes."),
                                   QStringLiteral("count")};
    QCommandLineOption firstRound{QStringLiteral("first-round"),
                                  QStringLiteral("Begin the storm with this round."),
                                  QStringLiteral("number"), QStringLiteral("0")};
    QCommandLineOption steps{QStringLiteral("steps"),
                             QStringLiteral("Actions of the user's in a round of the storm."),
                             QStringLiteral("count"), QStringLiteral("100")};
    QCommandLineOption seed{QStringLiteral("seed"),
                            QStringLiteral("The storm's seed; another one each time otherwise."),
                            QStringLiteral("number")};
    QCommandLineOption verbose{QStringLiteral("verbose"),
                               QStringLiteral("Print each round of the storm.")};

    void addTo(QCommandLineParser &parser) const
    {
        parser.addHelpOption();
        parser.addOptions({dialogs, themes, live, styled, waiting, storm, stormRounds, firstRound,
                           steps, seed, verbose});
    }
};

/** Nothing that a dialog writes or reads shall be the user's own. */
void moveInto(const QString &folder)
{
    for (const char *name : {"HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
        qputenv(name, folder.toLocal8Bit());
    }
    QDir::setCurrent(folder);
}

StormPlan stormPlan(const QCommandLineParser &parser, const Options &options)
{
    StormPlan plan;
    const bool byRounds = parser.isSet(options.stormRounds);
    plan.seconds = byRounds ? 0 : parser.value(options.storm).toInt();
    plan.rounds = std::numeric_limits<int>::max();
    if (byRounds) {
        plan.rounds = parser.value(options.stormRounds).toInt();
    } else if (plan.seconds == 0) {
        plan.rounds = 0;
    }
    plan.seed = parser.isSet(options.seed) ? parser.value(options.seed).toUInt()
                                           : QRandomGenerator::global()->generate();
    plan.firstRound = parser.value(options.firstRound).toInt();
    plan.steps = parser.value(options.steps).toInt();
    plan.verbose = parser.isSet(options.verbose);
    return plan;
}

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir folder;
    moveInto(folder.path());
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    lmtest::prepareApplication();
    countWarnings();
    // Qt keeps the names of the pictures that it has dropped for half a minute and more, which
    // looks like a loss. What is never kept leaves no name.
    QPixmapCache::setCacheLimit(0);

    const Options options;
    QCommandLineParser parser;
    options.addTo(parser);
    parser.process(application);
    const auto number = [&parser](const QCommandLineOption &option) {
        return parser.value(option).toInt();
    };

    bool good = stressWaiting(number(options.waiting));
    good = stressDialogs(number(options.dialogs)) && good;
    good = stressThemes(number(options.themes), number(options.live)) && good;
    good = stressStyledThemes(number(options.styled), number(options.live)) && good;
    good = stressStorm(stormPlan(parser, options)) && good;
    say(good ? QStringLiteral("Nothing was left behind.")
             : QStringLiteral("FAILED, see the lines above."));
    return good ? 0 : 1;
}
