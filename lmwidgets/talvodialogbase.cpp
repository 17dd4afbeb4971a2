#include <lmwidgets/talvodialogbase.h>

#include <lmwidgets/talvostylemanager.h>

#include <QCoreApplication>
#include <QHash>
#include <QPointer>

namespace LM {
namespace Widgets {

namespace {

/** Dialogs whose initStyleSheet() is running, and whether a switch arrived for them meanwhile. */
QHash<TalvoDialogBase *, bool> &runningRebuilds()
{
    static QHash<TalvoDialogBase *, bool> rebuilds;
    return rebuilds;
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
    if (QCoreApplication::instance()) {
        TalvoStyleManager::instance()->disconnect(this);
    }
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
    rebuilds.insert(this, false);
    initStyleSheet();
    if (guard && rebuilds.value(this)) {
        // Once, and not until it stops asking: an implementation that switches the theme each time
        // it is called would never end.
        initStyleSheet();
    }
    if (guard) {
        rebuilds.remove(this);
    }
}

} // namespace Widgets
} // namespace LM
