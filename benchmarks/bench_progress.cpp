/** @file
 * A long operation that tells a progress dialog of each of its 100,000 steps, beside
 * QProgressDialog.
 */

#include "bench.h"

#include <lmwidgets/framelessprocessdialog.h>

#include <QApplication>
#include <QProgressDialog>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int steps = 100000;
constexpr int rounds = 9;

/** A dialog that is shown, and counts from its minimum to its maximum over and over. */
template <typename Dialog>
class Stage
{
public:
    explicit Stage(Qt::WindowModality modality)
        : m_dialog(QStringLiteral("Copying tiles..."), QStringLiteral("Cancel"), 0, steps)
    {
        m_dialog.setWindowModality(modality);
        m_dialog.setAutoReset(false);
        m_dialog.setMinimumDuration(0);
        m_dialog.setValue(1);
        QCoreApplication::processEvents();
        if (!m_dialog.isVisible()) {
            std::fputs("The dialog is not shown.\n", stderr);
            std::abort();
        }
    }

    void run()
    {
        for (int i = 1; i <= steps; ++i) {
            m_dialog.setValue(i);
        }
    }

private:
    Dialog m_dialog;
};

/** Both do the whole work of a round with no other dialog on the screen: a modal one would block
 * the other. */
template <typename Dialog>
bench::Work count(Qt::WindowModality modality)
{
    return [modality](int) { Stage<Dialog>(modality).run(); };
}

void print(const char *operation, Qt::WindowModality modality, double goal)
{
    using LM::Widgets::FramelessProcessDialog;
    bench::printLine(QString::fromLatin1(operation),
                     bench::compare(count<FramelessProcessDialog>(modality),
                                    count<QProgressDialog>(modality), rounds),
                     steps, goal);
}

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment(argc, argv);
    QApplication application(argc, argv);
    bench::prepareApplication();
    bench::printHead();
    print("progress: setValue 0 to 100,000, modeless", Qt::NonModal, 0.25);
    print("progress: setValue 0 to 100,000, modal", Qt::ApplicationModal, 0.5);
    return 0;
}
