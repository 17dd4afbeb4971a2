#ifndef LMWIDGETS_DIALOGDONE_P_H
#define LMWIDGETS_DIALOGDONE_P_H

#include <QDialog>
#include <QPointer>
#include <QSignalBlocker>

namespace LM {
namespace Widgets {

/**
 * Does what QDialog::done() does, for a dialog that a receiver of its signals may destroy.
 *
 * QDialog emits two signals one after the other without asking whether it is still alive. Its own
 * done() runs with signals off here, after the hiding, in which a subclass may emit some.
 */
inline void finishDialog(QDialog *dialog, int result)
{
    const QPointer<QDialog> guard(dialog);
    dialog->hide();
    if (!guard) {
        return;
    }
    {
        const QSignalBlocker blocker(dialog);
        dialog->QDialog::done(result);
    }
    if (result == QDialog::Accepted) {
        Q_EMIT dialog->accepted();
    } else if (result == QDialog::Rejected) {
        Q_EMIT dialog->rejected();
    }
    if (guard) {
        Q_EMIT dialog->finished(result);
    }
}

} // namespace Widgets
} // namespace LM

#endif
