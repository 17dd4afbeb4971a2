#include <lmwidgets/talvodialogbase.h>

#include "dialogdone_p.h"
#include "talvostylemanager_p.h"

namespace LM {
namespace Widgets {

namespace {

// How often one switch may be followed by others that initStyleSheet() makes itself: enough for any
// implementation that settles on a theme, and an end for one that never does.
constexpr int MaximumRebuilds = 8;

/**
 * A dialog whose initStyleSheet() is running, on the stack of the function that calls it. A switch
 * calls every dialog that lives, and all but a few return at once: a list of these costs nothing
 * where a table that is looked up would take longer than the rest of the call.
 */
class Rebuild
{
public:
    explicit Rebuild(TalvoDialogBase *dialog) : m_dialog(dialog), m_outer(innermost)
    {
        innermost = this;
    }
    ~Rebuild() { innermost = m_outer; }

    /** The one that runs for @p dialog; null without one. */
    static Rebuild *of(const TalvoDialogBase *dialog)
    {
        Rebuild *rebuild = innermost;
        while (rebuild && rebuild->m_dialog != dialog) {
            rebuild = rebuild->m_outer;
        }
        return rebuild;
    }

    bool isDestroyed() const { return !m_dialog; }
    void setDestroyed() { m_dialog = nullptr; }

    /** A switch arrived meanwhile. */
    bool isAskedFor = false;

private:
    Q_DISABLE_COPY(Rebuild)

    static Rebuild *innermost;

    TalvoDialogBase *m_dialog;
    Rebuild *m_outer;
};

Rebuild *Rebuild::innermost = nullptr;

} // namespace

TalvoDialogBase::TalvoDialogBase(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags | Qt::BypassWindowManagerHint)
{
    TalvoStyleManager::instance()->addTalvoDialogBase(this);
}

TalvoDialogBase::~TalvoDialogBase()
{
    if (Rebuild *rebuild = Rebuild::of(this)) {
        rebuild->setDestroyed();
    }
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
    if (Rebuild *running = Rebuild::of(this)) {
        running->isAskedFor = true;
        return;
    }

    Rebuild rebuild(this);
    TalvoStyleManager *manager = TalvoStyleManager::instance().data();
    for (int count = 0; count < MaximumRebuilds; ++count) {
        const TalvoStyleManager::ThemeStyleType style = manager->currentStyle();
        initStyleSheet();
        if (rebuild.isDestroyed() || !rebuild.isAskedFor) {
            break;
        }
        // The switch that came meanwhile gets its call now. Later ones get theirs as long as they
        // change something: an implementation that switches each time it is called would never end.
        if (count > 0 && manager->currentStyle() == style) {
            break;
        }
        rebuild.isAskedFor = false;
    }
}

} // namespace Widgets
} // namespace LM
