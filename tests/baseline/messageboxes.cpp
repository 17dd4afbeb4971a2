#include "subject.h"

#include <lmwidgets/detailbutton.h>
#include <lmwidgets/framelessmessagebox.h>

#include <QCheckBox>
#include <QPushButton>

namespace baseline {

using LM::Widgets::DetailButton;
using LM::Widgets::FramelessMessageBox;

namespace {

using Change = void (*)(FramelessMessageBox *);

Create box(QMessageBox::Icon icon, const QString &title, const QString &text,
           QMessageBox::StandardButtons buttons, Change change = nullptr)
{
    return [=] {
        auto *box = new FramelessMessageBox(icon, title, text, buttons, nullptr, Qt::Dialog);
        if (change) {
            change(box);
        }
        return box;
    };
}

Create question(Change change = nullptr)
{
    return box(QMessageBox::Question, QStringLiteral("Delete layer"),
               QStringLiteral("Delete the layer \"Vegetation\" with its 12 objects?"),
               QMessageBox::Yes | QMessageBox::No, change);
}

QVector<State> kinds()
{
    return {{QStringLiteral("information"),
             box(QMessageBox::Information, QStringLiteral("Import"),
                 QStringLiteral("All 14 files were read."), QMessageBox::Ok),
             nullptr},
            {QStringLiteral("question"), question(), nullptr},
            {QStringLiteral("warning"),
             box(QMessageBox::Warning, QStringLiteral("Unsaved changes"),
                 QStringLiteral("The project has changes that are not saved."),
                 QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel),
             nullptr},
            {QStringLiteral("critical"),
             box(QMessageBox::Critical, QStringLiteral("Disk full"),
                 QStringLiteral("The tile could not be written: there is no space left."),
                 QMessageBox::Retry | QMessageBox::Cancel),
             nullptr},
            {QStringLiteral("no icon"),
             box(QMessageBox::NoIcon, QStringLiteral("Import"),
                 QStringLiteral("All 14 files were read."), QMessageBox::Ok),
             nullptr}};
}

QVector<State> buttonsOfBoxes()
{
    const auto act = [](QMessageBox::StandardButton which, QWidget *(*onButton)(QWidget *)) {
        return [which, onButton](QWidget *shown) {
            onButton(static_cast<FramelessMessageBox *>(shown)->button(which));
            return shown;
        };
    };
    const auto hoverIt = [](QWidget *button) { return hover(button); };
    const auto focusIt = [](QWidget *button) { return focus(button); };
    return {{QStringLiteral("Yes hovered"), question(), act(QMessageBox::Yes, hoverIt)},
            {QStringLiteral("No hovered"), question(), act(QMessageBox::No, hoverIt)},
            {QStringLiteral("No focused"), question(), act(QMessageBox::No, focusIt)},
            {QStringLiteral("disabled"), disabled(question()), nullptr},
            {QStringLiteral("own buttons"), question([](FramelessMessageBox *box) {
                 box->setStandardButtons(QMessageBox::Cancel);
                 box->addButton(QStringLiteral("Delete all"), QMessageBox::DestructiveRole);
                 box->addButton(QStringLiteral("Keep the objects"), QMessageBox::AcceptRole);
             }),
             nullptr},
            {QStringLiteral("no close button"),
             question([](FramelessMessageBox *box) { box->setCloseButtonVisible(false); }),
             nullptr}};
}

Create detailed()
{
    return box(QMessageBox::Warning, QStringLiteral("Import"),
               QStringLiteral("Two of 14 files were skipped."), QMessageBox::Ok,
               [](FramelessMessageBox *box) {
                   box->setDetailedText(
                       QStringLiteral("north_03.las: unknown point format 131\n"
                                      "north_09.las: the file ends after 1204 of 88310 points\n"));
               });
}

QVector<State> contents()
{
    return {{QStringLiteral("details"), detailed(), nullptr},
            {QStringLiteral("details open"), detailed(),
             [](QWidget *shown) {
                 shown->findChild<DetailButton *>()->click();
                 return shown;
             }},
            {QStringLiteral("informative text"), question([](FramelessMessageBox *box) {
                 box->setInformativeText(QStringLiteral(
                     "The objects cannot be brought back once the project is saved."));
             }),
             nullptr},
            {QStringLiteral("check box"), question([](FramelessMessageBox *box) {
                 box->setCheckBox(new QCheckBox(QStringLiteral("Do not ask again")));
             }),
             nullptr},
            {QStringLiteral("rich text"),
             box(QMessageBox::Information, QStringLiteral("Update"),
                 QStringLiteral("<b>Version 1.4</b> is available.<ul><li>Faster tiles</li><li>Line "
                                "types in sections</li></ul>See the <a "
                                "href=\"https://example.org/\">release notes</a>."),
                 QMessageBox::Ok),
             nullptr},
            {QStringLiteral("long text"),
             box(QMessageBox::Critical,
                 QStringLiteral("Registrierung der Punktwolken des Projektes Nord"),
                 QStringLiteral(
                     "The overlap is 12 %, which is below the 30 % that are needed for a stable "
                     "result; add scans between the two positions, or mark at least three pairs "
                     "of points by hand and start again from them."),
                 QMessageBox::Retry | QMessageBox::Cancel),
             nullptr},
            {QStringLiteral("no text"),
             box(QMessageBox::Information, QString(), QString(), QMessageBox::Ok), nullptr}};
}

} // namespace

QVector<Subject> messageBoxSubjects()
{
    return {{QStringLiteral("FramelessMessageBox"), kinds() + buttonsOfBoxes() + contents()}};
}

} // namespace baseline
