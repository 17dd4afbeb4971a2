/** @file
 * A message box from its construction to its end, and the repaint of one of its buttons, beside a
 * QMessageBox with the same text, buttons and style sheets.
 */

#include "bench.h"

#include <lmwidgets/framelessmessagebox.h>

#include <QAbstractButton>
#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>

#include <memory>

namespace {

constexpr int boxesPerRound = 20;
constexpr int paintsPerRound = 400;

const auto buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
const QString title = QStringLiteral("Classification");
const QString text = QStringLiteral("The classification of 1,240 points has changed. "
                                    "Save it before the next scan is opened?");

using Ours = LM::Widgets::FramelessMessageBox;

std::unique_ptr<Ours> makeOurs()
{
    return std::make_unique<Ours>(QMessageBox::Question, title, text, buttons);
}

/** The stock box with the sheets that ours gives to its own parts. */
std::unique_ptr<QMessageBox> makeStock(Ours *model)
{
    auto box = std::make_unique<QMessageBox>(QMessageBox::Question, title, text, buttons);
    box->setStyleSheet(model->styleSheet());
    const QList<QAbstractButton *> modelButtons = model->buttons();
    for (QAbstractButton *modelButton : modelButtons) {
        box->button(model->standardButton(modelButton))->setStyleSheet(modelButton->styleSheet());
    }
    if (auto *label = box->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"))) {
        label->setStyleSheet(QStringLiteral("font-size:14px;"));
    }
    return box;
}

template <typename Make>
bench::Work lives(Make make)
{
    return [make](int) {
        for (int i = 0; i < boxesPerRound; ++i) {
            const auto box = make();
            box->show();
            QCoreApplication::processEvents();
            box->close();
        }
    };
}

template <typename Box>
bench::Work repaints(Box *box)
{
    QAbstractButton *button = box->button(QMessageBox::No);
    return [button](int) {
        for (int i = 0; i < paintsPerRound; ++i) {
            button->update();
            QCoreApplication::processEvents();
        }
    };
}

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment(argc, argv);
    QApplication application(argc, argv);
    bench::prepareApplication();

    const auto model = makeOurs();
    model->show();
    QCoreApplication::processEvents();
    const auto stock = makeStock(model.get());
    stock->show();
    QCoreApplication::processEvents();

    bench::printHead();
    bench::printLine(QStringLiteral("message box: build, show, first paint, close"),
                     bench::compare(lives(makeOurs), lives([&] { return makeStock(model.get()); })),
                     boxesPerRound, 1.5);
    bench::printLine(QStringLiteral("message box: repaint one button"),
                     bench::compare(repaints(model.get()), repaints(stock.get())), paintsPerRound,
                     1.4);
    return 0;
}
