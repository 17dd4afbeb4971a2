#include "themeswitches.h"

#include "dialogs.h"
#include "endurance.h"

#include "themes.h"

#include <lmwidgets/talvostylemanager.h>

#include <QCoreApplication>
#include <QDialog>
#include <QWidget>

using LM::Widgets::TalvoStyleManager;

namespace {

// Events are handled, and the windows painted, once in so many switches.
constexpr int SwitchesPerRound = 100;
constexpr int ThemeCount = 3;

bool switchThemes(const QString &what, int rounds, int switchesPerRound, int live)
{
    QWidget window;
    window.resize(640, 480);
    window.show();
    const QVector<QDialog *> dialogs = makeLiveDialogs(live, &window);
    const bool shown = dialogs.isEmpty() || waitUntilShown(dialogs.last());
    int count = 0;
    const bool good = endure(what, {rounds, 0}, Allowance(), [&](int) {
        for (int i = 0; i < switchesPerRound; ++i) {
            TalvoStyleManager::instance()->shiftStyle(
                TalvoStyleManager::ThemeStyleType(++count % ThemeCount));
        }
        QCoreApplication::processEvents();
    });
    qDeleteAll(dialogs);
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black);
    return good && shown;
}

} // namespace

bool stressThemes(int switches, int live)
{
    return switchThemes(QStringLiteral("%1 theme switches over %2 dialogs").arg(switches).arg(live),
                        switches / SwitchesPerRound, SwitchesPerRound, live);
}

bool stressStyledThemes(int switches, int live)
{
    if (switches > 0) {
        gallery::followTheme();
    }
    return switchThemes(QStringLiteral("%1 theme switches with a style sheet over %2 dialogs")
                            .arg(switches)
                            .arg(live),
                        switches, 1, live);
}
