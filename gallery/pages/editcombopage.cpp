#include "page.h"
#include "pageparts.h"
#include "shooter.h"
#include "signallog.h"

#include <lmwidgets/editcombobox.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QScopedPointer>
#include <QSpinBox>
#include <QVBoxLayout>

namespace gallery {

using LM::Widgets::EditComboBox;

namespace {

constexpr int FieldWidth = 240;
constexpr int FieldHeight = 30;
constexpr int ManyEntries = 100000;
constexpr int FormMargin = 16;
/** A form with room for the open list below its first field. */
constexpr QSize ShotSize(420, 420);

EditComboBox *comboBox(const QStringList &entries)
{
    auto *box = new EditComboBox(entries, nullptr);
    box->setFixedSize(FieldWidth, FieldHeight);
    return box;
}

QStringList coordinateSystems()
{
    return {QStringLiteral("ETRS89 / UTM zone 31N"), QStringLiteral("ETRS89 / UTM zone 32N"),
            QStringLiteral("ETRS89 / UTM zone 33N"), QStringLiteral("WGS 84"),
            QStringLiteral("WGS 84 / UTM zone 31N"), QStringLiteral("WGS 84 / UTM zone 32N"),
            QStringLiteral("WGS 84 / UTM zone 33N"), QStringLiteral("WGS 84 / UTM zone 34N"),
            QStringLiteral("NAD83 / UTM zone 10N"),  QStringLiteral("NAD83 / UTM zone 11N"),
            QStringLiteral("CGCS2000 / zone 39"),    QStringLiteral("CGCS2000 / zone 40")};
}

/** Whether the text of @p box is a length of more than 0 m. */
bool isGridSize(const EditComboBox *box)
{
    QString text = box->findChild<QLineEdit *>()->text().trimmed();
    if (text.endsWith(QLatin1Char('m'))) {
        text.chop(1);
    }
    bool ok = false;
    const double size = text.trimmed().toDouble(&ok);
    return ok && size > 0.0;
}

/** The parameters of a ground filter: what a host puts such boxes into. */
QWidget *createForm(SignalLog *log)
{
    auto *form = new QWidget;
    auto *layout = new QFormLayout(form);
    auto *system = comboBox(coordinateSystems());
    system->setPlaceHolderText(QStringLiteral("Search a system"));
    auto *grid = comboBox({QStringLiteral("0.1 m"), QStringLiteral("0.25 m"),
                           QStringLiteral("0.5 m"), QStringLiteral("1 m"), QStringLiteral("2 m")});
    grid->setCurrentIndex(2);
    auto *attribute = comboBox({QStringLiteral("Elevation"), QStringLiteral("Intensity"),
                                QStringLiteral("Return number"), QStringLiteral("GPS time")});
    attribute->setEditable(true);
    attribute->setCurrentText(QStringLiteral("Intensity"));
    auto *iterations = new QSpinBox;
    iterations->setValue(4);
    layout->addRow(QStringLiteral("&Coordinate system"), system);
    layout->addRow(QStringLiteral("&Grid size"), grid);
    layout->addRow(QStringLiteral("&Attribute, from the list only"), attribute);
    layout->addRow(QStringLiteral("&Iterations"), iterations);

    auto *result = new QLabel;
    layout->addRow(row({button(QStringLiteral("Apply"),
                               [grid, result] {
                                   const bool valid = isGridSize(grid);
                                   if (!valid) {
                                       grid->displayErrorStates();
                                   }
                                   result->setText(
                                       valid ? QStringLiteral("Applied")
                                             : QStringLiteral("The grid size is not a length"));
                               }),
                        result}));
    if (log) {
        log->watch(system, QStringLiteral("coordinate system"));
        log->watch(grid, QStringLiteral("grid size"));
        log->watch(attribute, QStringLiteral("attribute"));
    }
    return form;
}

void addStatesSection(QVBoxLayout *layout)
{
    QVBoxLayout *body = addSection(layout, QStringLiteral("States"));
    auto *empty = comboBox({});
    empty->setPlaceHolderText(QStringLiteral("No entries yet"));
    auto *disabled = comboBox(coordinateSystems());
    disabled->setCurrentIndex(3);
    disabled->setEnabled(false);
    body->addWidget(row({empty, disabled}));

    auto *error = comboBox(coordinateSystems());
    error->setEditText(QStringLiteral("an unknown system"));
    body->addWidget(row({error, button(QStringLiteral("Flash the red border"),
                                       [error] { error->displayErrorStates(); })}));
}

void addSizeSection(QVBoxLayout *layout, SignalLog &log)
{
    QVBoxLayout *body = addSection(
        layout, QStringLiteral("Many entries"),
        QStringLiteral("Entries are only ever added at the end. The text and the current index "
                       "stay as they are when the list changes."));
    auto *box = comboBox({});
    auto *count = new QLabel(QStringLiteral("0 entries"));
    const auto show = [box, count] {
        count->setText(QStringLiteral("%1 entries").arg(box->count()));
    };
    log.watch(box, QStringLiteral("many entries"));
    auto *add = button(QStringLiteral("Add 100,000"), [box, show] {
        QStringList entries;
        for (int i = 1; i <= ManyEntries; ++i) {
            entries += QStringLiteral("Tile %1").arg(box->count() + i, 6, 10, QLatin1Char('0'));
        }
        box->addItems(entries);
        show();
    });
    auto *clear = button(QStringLiteral("Clear"), [box, show] {
        box->clear();
        show();
    });
    body->addWidget(row({box, add, clear, count}));
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    QVBoxLayout *layout = contentLayout(content);
    QVBoxLayout *body = addSection(
        layout, QStringLiteral("A form"),
        QStringLiteral("Click into a field or type to see the entries that contain the text; the "
                       "button shows all. A grid size that is no length gets a red border for "
                       "two seconds. The attribute can only be picked."));
    body->addWidget(createForm(&log));
    addStatesSection(layout);
    addSizeSection(layout, log);
    return content;
}

/** Opens a form as a window. */
QWidget *openForm()
{
    QWidget *form = createForm(nullptr);
    form->layout()->setContentsMargins(FormMargin, FormMargin, FormMargin, FormMargin);
    form->resize(ShotSize);
    form->show();
    return form;
}

/**
 * Opens the list of the field @p index, which has the text @p typed, and returns a window with the
 * picture of the form and of the list above it, which are two windows.
 */
QWidget *openList(int index, const QString &typed)
{
    const QScopedPointer<QWidget> form(openForm());
    auto *box = form->findChildren<EditComboBox *>().at(index);
    auto *edit = box->findChild<QLineEdit *>();
    edit->setText(typed);
    settle(form.data());
    if (typed.isEmpty()) {
        box->findChild<QPushButton *>()->click();
    } else {
        QMouseEvent press(QEvent::MouseButtonPress, edit->rect().center(), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(edit, &press);
    }
    QWidget *list = edit->completer()->popup();
    settle(list);
    QPixmap picture = form->grab();
    QPainter(&picture).drawPixmap(list->pos() - form->mapToGlobal(QPoint(0, 0)), list->grab());
    list->hide();
    auto *label = new QLabel;
    label->setPixmap(picture);
    label->show();
    return label;
}

QWidget *openErrors()
{
    QWidget *form = openForm();
    const auto boxes = form->findChildren<EditComboBox *>();
    boxes.at(1)->setEditText(QStringLiteral("fine"));
    boxes.at(1)->displayErrorStates();
    boxes.at(2)->setEnabled(false);
    return form;
}

} // namespace

Page editcomboPage()
{
    return Page(QStringLiteral("editcombo"), QStringLiteral("Edit combo box"),
                QStringLiteral("EditComboBox is a text field with a list of suggestions that "
                               "typing filters; the text may be any other too."),
                createContent)
        .shot(QStringLiteral("all"), [] { return openList(0, QString()); })
        .shot(QStringLiteral("matches"), [] { return openList(0, QStringLiteral("zone 3")); })
        .shot(QStringLiteral("short"), [] { return openList(1, QString()); })
        .shot(QStringLiteral("error"), openErrors);
}

} // namespace gallery
