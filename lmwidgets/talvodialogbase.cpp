#include <lmwidgets/talvodialogbase.h>

#include "dialogdone_p.h"
#include "talvostylemanager_p.h"

#include <QHash>
#include <QPointer>

namespace LM {
namespace Widgets {

namespace {

// How often one switch may be followed by others that initStyleSheet() makes itself: enough for any
// implementation that settles on a theme, and an end for one that never does.
constexpr int MaximumRebuilds = 8;

/** Dialogs whose initStyleSheet() is running, and whether a switch arrived for them meanwhile. */
QHash<TalvoDialogBase *, bool> &runningRebuilds()
{
    // Never destroyed: a dialog of static duration still asks it when the process ends.
    static auto *rebuilds = new QHash<TalvoDialogBase *, bool>;
    return *rebuilds;
}

} // namespace

TalvoDialogBase::TalvoDialogBase(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags | Qt::BypassWindowManagerHint)
{
    TalvoStyleManager::instance()->addTalvoDialogBase(this);
}

TalvoDialogBase::~TalvoDialogBase()
{
    runningRebuilds().remove(this);
    // From here on there is no initStyleSheet() to call, yet the destruction of the children can
    // still run host code that switches the theme.
    if (TalvoStyleManager *manager = existingStyleManager()) {
        manager->disconnect(this);
    }
}

void TalvoDialogBase::done(int result)
{
    finishDialog(this, result);
}

void TalvoDialogBase::onInitStyleSheet()
{
    QHash<TalvoDialogBase *, bool> &rebuilds = runningRebuilds();
    const auto running = rebuilds.find(this);
    if (running != rebuilds.end()) {
        running.value() = true;
        return;
    }

    const QPointer<TalvoDialogBase> guard(this);
    TalvoStyleManager *manager = TalvoStyleManager::instance().data();
    rebuilds.insert(this, false);
    for (int count = 0; count < MaximumRebuilds; ++count) {
        const TalvoStyleManager::ThemeStyleType style = manager->currentStyle();
        initStyleSheet();
        if (!guard || !rebuilds.value(this)) {
            break;
        }
        // The switch that came meanwhile gets its call now. Later ones get theirs as long as they
        // change something: an implementation that switches each time it is called would never end.
        if (count > 0 && manager->currentStyle() == style) {
            break;
        }
        rebuilds[this] = false;
    }
    if (guard) {
        rebuilds.remove(this);
    }
}

} // namespace Widgets
} // namespace LM
