#ifndef LMWIDGETS_TALVODIALOGBASE_H
#define LMWIDGETS_TALVODIALOGBASE_H

#include <lmwidgets/lmwidgets_global.h>

#include <QDialog>

namespace LM {
namespace Widgets {

/**
 * @class TalvoDialogBase talvodialogbase.h <lmwidgets/talvodialogbase.h>
 *
 * @brief The root of dialogs that follow the theme.
 *
 * A dialog derived from this class is registered with TalvoStyleManager when it is constructed. On
 * each TalvoStyleManager::shiftStyle() its initStyleSheet() is called, once per switch, until the
 * dialog is destroyed or the manager's disconnectAllSignals() is called.
 *
 * @code
 * class Report : public LM::Widgets::TalvoDialogBase
 * {
 * public:
 *     void initStyleSheet() override
 *     {
 *         setStyleSheet(sheetFor(LM::Widgets::TalvoStyleManager::instance()->currentStyle()));
 *     }
 * };
 * @endcode
 */
class LMWIDGETS_EXPORT TalvoDialogBase : public QDialog
{
    Q_OBJECT

public:
    /**
     * Constructs a dialog with @p flags and Qt::BypassWindowManagerHint, and registers it with the
     * style manager. @p parent may be null; otherwise it owns the dialog.
     */
    explicit TalvoDialogBase(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~TalvoDialogBase() override;

    /**
     * Sets the style sheet for the current theme. Called on each theme switch, not by the
     * constructor.
     *
     * An implementation may destroy the dialog, and may switch the theme itself: it is not entered
     * again from within, but called once more when it has returned, until the theme no longer
     * changes; after eight calls it is left alone until the next switch.
     */
    virtual void initStyleSheet() = 0;

    /**
     * Hides the dialog and sets its result as QDialog does, with one addition: whoever receives
     * accepted() or rejected() may destroy the dialog, which then emits finished() no more.
     */
    void done(int result) override;

public Q_SLOTS:
    /** Calls initStyleSheet(). The style manager's themeStyleShift() is connected to it. */
    void onInitStyleSheet();

private:
    Q_DISABLE_COPY(TalvoDialogBase)
};

} // namespace Widgets
} // namespace LM

#endif
