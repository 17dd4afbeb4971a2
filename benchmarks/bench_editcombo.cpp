/** @file
 * An edit combo box beside an editable QComboBox with an equal completer: filling it, typing,
 * opening the list, and looking up an entry.
 */

#include "bench.h"

#include <lmwidgets/editcombobox.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>

#include <memory>

using LM::Widgets::EditComboBox;

namespace {

constexpr int sizes[] = {1000, 10000, 100000};
constexpr int goalSize = 10000;
constexpr int rounds = 3;
constexpr int cheapRounds = 15;
constexpr int lookups = 1000;
constexpr int openings = 5;
constexpr int exponentBoxes = 100000; // entries added per measurement of a growth

/** Entries as long as the names of files or layers; one in a hundred contains "7742". */
QStringList entries(int count)
{
    QStringList list;
    list.reserve(count);
    for (int i = 0; i < count; ++i) {
        list += QStringLiteral("tile %1 section %2").arg(i, 6, 10, QLatin1Char('0')).arg(i % 97);
    }
    return list;
}

/** An editable QComboBox that completes as an edit combo box does. */
std::unique_ptr<QComboBox> stockBox()
{
    auto box = std::make_unique<QComboBox>();
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setMaxVisibleItems(10);
    auto *completer = new QCompleter(box->model(), box.get());
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    completer->setMaxVisibleItems(10);
    box->setCompleter(completer);
    return box;
}

std::unique_ptr<EditComboBox> ourBox()
{
    return std::make_unique<EditComboBox>();
}

QLineEdit *editOf(QComboBox *box)
{
    return box->lineEdit();
}

QLineEdit *editOf(EditComboBox *box)
{
    return box->findChild<QLineEdit *>();
}

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

template <typename Box>
void show(Box *box, const QStringList &list)
{
    box->addItems(list);
    box->resize(240, 30);
    box->show();
    box->activateWindow();
    editOf(box)->setFocus();
    editOf(box)->clear();
    settle();
}

void press(QWidget *target, int key, const QString &text)
{
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(target, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(target, &up);
}

/** Types @p text key by key, as into an open list; each key is shown before the next. */
template <typename Box>
void type(Box *box, const QString &text)
{
    QLineEdit *edit = editOf(box);
    for (const QChar letter : text) {
        QWidget *popup = edit->completer()->popup();
        press(popup->isVisible() ? popup : edit, letter.toUpper().unicode(), letter);
        settle();
    }
}

/** Empties the line edit without being measured by keys; closes the list. */
template <typename Box>
void reset(Box *box)
{
    editOf(box)->completer()->popup()->hide();
    editOf(box)->clear();
    settle();
}

void click(QWidget *target, const QPoint &place)
{
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, place, target->mapToGlobal(place), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(target, &event);
    }
}

/** Opens the whole list with a click on the button and closes it, painted or not. */
void openAll(EditComboBox *box, bool painted)
{
    auto *button = box->findChild<QPushButton *>();
    click(button, button->rect().center());
    if (painted) {
        settle();
    }
    editOf(box)->completer()->popup()->hide();
}

/** The same with a click on the arrow. */
void openAll(QComboBox *box, bool painted)
{
    click(box, QPoint(box->width() - 8, box->height() / 2));
    if (painted) {
        settle();
    }
    box->hidePopup();
}

/** Opens the completer's list of @p box with all entries, filled anew. */
template <typename Box>
void openFilled(Box *box)
{
    QCompleter *completer = editOf(box)->completer();
    completer->setCompletionPrefix(QStringLiteral("tile"));
    completer->setCompletionPrefix(QString());
    completer->complete(box->rect());
    settle();
    completer->popup()->hide();
}

template <typename Box>
void addOneByOne(Box *box, const QStringList &list)
{
    for (const QString &entry : list) {
        box->addItem(entry);
    }
}

void printAdding(int size, QVector<bench::Point> *growth)
{
    const QStringList list = entries(size);
    const int repeats = exponentBoxes / size;
    const bench::Comparison loop = bench::compare(
        [&](int) {
            for (int i = 0; i < repeats; ++i) {
                addOneByOne(ourBox().get(), list);
            }
        },
        [&](int) {
            for (int i = 0; i < repeats; ++i) {
                addOneByOne(stockBox().get(), list);
            }
        },
        rounds);
    bench::printLine(QStringLiteral("edit combo: addItem in a loop, %1").arg(size), loop,
                     repeats * size, 1.0);
    growth->append({double(size), loop.ours / repeats});
    const bench::Comparison once = bench::compare(
        [&](int) {
            for (int i = 0; i < repeats; ++i) {
                ourBox()->addItems(list);
            }
        },
        [&](int) {
            for (int i = 0; i < repeats; ++i) {
                stockBox()->addItems(list);
            }
        },
        rounds);
    bench::printLine(QStringLiteral("edit combo: addItems at once, %1").arg(size), once, repeats,
                     size == goalSize ? 0.5 : 0.0);
}

void printTyping(EditComboBox *ours, QComboBox *stock, int size)
{
    const auto oneKey = [](auto *box) {
        return [box](int) {
            type(box, QStringLiteral("7"));
            reset(box);
        };
    };
    bench::printLine(QStringLiteral("edit combo: one keystroke, %1").arg(size),
                     bench::compare(oneKey(ours), oneKey(stock), rounds), 1);
    const auto sixKeys = [](auto *box) {
        return [box](int) {
            type(box, QStringLiteral("tile 0"));
            reset(box);
        };
    };
    bench::printLine(QStringLiteral("edit combo: six keystrokes, open popup, %1").arg(size),
                     bench::compare(sixKeys(ours), sixKeys(stock), rounds), 1,
                     size == goalSize ? 0.1 : 0.0);
}

void printOpening(EditComboBox *ours, QComboBox *stock, int size, QVector<bench::Point> *growth)
{
    const auto open = [](auto *box, bool painted) {
        return [box, painted](int) {
            for (int i = 0; i < openings; ++i) {
                openAll(box, painted);
            }
        };
    };
    const bench::Comparison opening =
        bench::compare(open(ours, false), open(stock, false), cheapRounds);
    bench::printLine(QStringLiteral("edit combo: open the popup, %1").arg(size), opening, openings,
                     0.7);
    growth->append({double(size), opening.ours});
    bench::printLine(QStringLiteral("edit combo: open the popup and paint it, %1").arg(size),
                     bench::compare(open(ours, true), open(stock, true), cheapRounds), openings,
                     0.7);
    const auto fill = [](auto *box) { return [box](int) { openFilled(box); }; };
    bench::printLine(QStringLiteral("edit combo: fill and open the completer's list, %1").arg(size),
                     bench::compare(fill(ours), fill(stock), rounds), 1, 0.7);
}

void printLookup(EditComboBox *ours, QComboBox *stock, int size, QVector<bench::Point> *growth)
{
    const QStringList list = entries(size);
    const auto lookup = [&list](auto *box) {
        return [box, &list](int) {
            for (int i = 0; i < lookups; ++i) {
                const int index = int(qint64(i) * 7919 % list.size());
                box->setCurrentText(list.at(index));
            }
        };
    };
    if (size <= sizes[1]) {
        const bench::Comparison both = bench::compare(lookup(ours), lookup(stock), 3);
        bench::printLine(QStringLiteral("edit combo: setCurrentText, %1").arg(size), both, lookups);
    }
    growth->append({double(size), bench::measure(lookup(ours), cheapRounds)});
}

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment(argc, argv);
    QApplication application(argc, argv);
    bench::prepareApplication();

    QVector<bench::Point> adding;
    QVector<bench::Point> opening;
    QVector<bench::Point> looking;
    bench::printHead();
    for (const int size : sizes) {
        if (bench::isCounting() && size > goalSize) {
            continue; // the stock box takes minutes for a keystroke then
        }
        printAdding(size, &adding);
        const auto ours = ourBox();
        const auto stock = stockBox();
        show(stock.get(), entries(size));
        show(ours.get(), entries(size));
        printTyping(ours.get(), stock.get(), size);
        printOpening(ours.get(), stock.get(), size, &opening);
        printLookup(ours.get(), stock.get(), size, &looking);
    }
    bench::printGrowth(QStringLiteral("edit combo: growth of addItem in a loop"),
                       bench::growthExponent(adding), 1.1);
    bench::printGrowth(QStringLiteral("edit combo: growth of opening the popup"),
                       bench::growthExponent(opening), 0.1);
    bench::printGrowth(QStringLiteral("edit combo: growth of setCurrentText"),
                       bench::growthExponent(looking), 0.1);
    return 0;
}
