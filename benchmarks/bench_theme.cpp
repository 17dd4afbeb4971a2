/** @file
 * A theme switch with 1,000 dialogs alive that do nothing in return, beside a signal that 1,000
 * plain dialogs are connected to, with one typed connection each.
 */

#include "bench.h"

#include <lmwidgets/talvodialogbase.h>
#include <lmwidgets/talvostylemanager.h>

#include <QApplication>
#include <QDialog>

#include <memory>
#include <vector>

namespace {

using LM::Widgets::TalvoDialogBase;
using LM::Widgets::TalvoStyleManager;

constexpr int dialogs = 1000;
constexpr int switches = 50;

class Ours : public TalvoDialogBase
{
public:
    void initStyleSheet() override {}
};

/** What a host would write without a style manager. */
class Theme : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void shifted();
};

class Stock : public QDialog
{
    Q_OBJECT

public:
    explicit Stock(Theme *theme) { connect(theme, &Theme::shifted, this, &Stock::onShifted); }
    virtual void restyle() {}

public Q_SLOTS:
    void onShifted() { restyle(); }
};

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment(argc, argv);
    QApplication application(argc, argv);
    bench::prepareApplication();

    Theme theme;
    std::vector<std::unique_ptr<QDialog>> living;
    for (int i = 0; i < dialogs; ++i) {
        living.push_back(std::make_unique<Ours>());
        living.push_back(std::make_unique<Stock>(&theme));
    }
    const auto ours = [](int) {
        for (int i = 0; i < switches; ++i) {
            TalvoStyleManager::instance()->shiftStyle(i % 2 ? TalvoStyleManager::Black
                                                            : TalvoStyleManager::White);
        }
    };
    const auto stock = [&theme](int) {
        for (int i = 0; i < switches; ++i) {
            Q_EMIT theme.shifted();
        }
    };
    bench::printHead();
    bench::printLine(QStringLiteral("theme switch with 1,000 live dialogs"),
                     bench::compare(ours, stock), switches, 1.5);
    return 0;
}

#include "bench_theme.moc"
