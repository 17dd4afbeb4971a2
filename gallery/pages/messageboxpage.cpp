#include "page.h"
#include "pageparts.h"
#include "signallog.h"

#include <lmwidgets/detailbutton.h>
#include <lmwidgets/framelessmessagebox.h>

#include <QCheckBox>
#include <QMessageBox>
#include <QMetaEnum>
#include <QPushButton>
#include <QVBoxLayout>

namespace gallery {

using LM::Widgets::DetailButton;
using LM::Widgets::FramelessMessageBox;

namespace {

constexpr int Columns = 4;

using StaticFunction = QMessageBox::StandardButton (*)(QWidget *, const QString &, const QString &,
                                                       QMessageBox::StandardButtons,
                                                       QMessageBox::StandardButton);
using LongStaticFunction = QMessageBox::StandardButton (*)(QWidget *, const QString &,
                                                           const QString &, char *, bool,
                                                           QMessageBox::StandardButtons,
                                                           QMessageBox::StandardButton, bool);

/** One of the four kinds of box, with the static functions that show it. */
struct Kind
{
    QString name;
    QString title;
    QString text;
    QMessageBox::Icon icon;
    QMessageBox::StandardButtons buttons;
    StaticFunction show;
    LongStaticFunction showLong;
};

const QVector<Kind> &kinds()
{
    static const QVector<Kind> all = {
        {QStringLiteral("information"), QStringLiteral("Export finished"),
         QStringLiteral("The point cloud was written to survey_07.las."), QMessageBox::Information,
         QMessageBox::Ok, &FramelessMessageBox::information, &FramelessMessageBox::information},
        {QStringLiteral("question"), QStringLiteral("Delete layer"),
         QStringLiteral("Delete the layer \"Ground points\" and its 3 sections?"),
         QMessageBox::Question, QMessageBox::Yes | QMessageBox::No, &FramelessMessageBox::question,
         &FramelessMessageBox::question},
        {QStringLiteral("warning"), QStringLiteral("Unsaved changes"),
         QStringLiteral("The project has changes that are not saved."), QMessageBox::Warning,
         QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
         &FramelessMessageBox::warning, &FramelessMessageBox::warning},
        {QStringLiteral("critical"), QStringLiteral("Disk full"),
         QStringLiteral("The tile could not be written: there is no space left on the disk."),
         QMessageBox::Critical, QMessageBox::Retry | QMessageBox::Cancel,
         &FramelessMessageBox::critical, &FramelessMessageBox::critical}};
    return all;
}

QString buttonName(QMessageBox::StandardButton button)
{
    const char *key = QMetaEnum::fromType<QMessageBox::StandardButtons>().valueToKey(button);
    return key ? QString::fromLatin1(key) : QString::number(button);
}

FramelessMessageBox *createBox(const QString &title, const QString &text,
                               QMessageBox::StandardButtons buttons, QWidget *parent,
                               QMessageBox::Icon icon = QMessageBox::Information)
{
    return new FramelessMessageBox(icon, title, text, buttons, parent, Qt::Dialog);
}

/** A box with something special, under the name of its button and its picture. */
struct Special
{
    QString name;
    QString label;
    FramelessMessageBox *(*create)(QWidget *parent);
};

FramelessMessageBox *createDetails(QWidget *parent)
{
    auto *box = createBox(QStringLiteral("Import"), QStringLiteral("Two of 14 files were skipped."),
                          QMessageBox::Ok, parent, QMessageBox::Warning);
    box->setDetailedText(
        QStringLiteral("north_03.las: unknown point format 131\n"
                       "north_09.las: the file ends after 1204 of 88310 points\n"));
    box->setDefaultOKButton();
    return box;
}

FramelessMessageBox *createInformative(QWidget *parent)
{
    auto *box = createBox(QStringLiteral("Coordinate system"),
                          QStringLiteral("The file names no coordinate system."),
                          QMessageBox::Ok | QMessageBox::Cancel, parent, QMessageBox::Question);
    box->setInformativeText(
        QStringLiteral("That of the project is taken. Copy the box to read this text."));
    return box;
}

FramelessMessageBox *createCheckable(QWidget *parent)
{
    auto *box =
        createBox(QStringLiteral("Close project"), QStringLiteral("Close the current project?"),
                  QMessageBox::Yes | QMessageBox::No, parent, QMessageBox::Question);
    box->setCheckBox(new QCheckBox(QStringLiteral("Do not ask again")));
    return box;
}

FramelessMessageBox *createCustom(QWidget *parent)
{
    auto *box = createBox(QStringLiteral("Name exists"),
                          QStringLiteral("A layer called \"Roads\" exists already."),
                          QMessageBox::Cancel, parent, QMessageBox::Warning);
    box->addButton(QStringLiteral("Replace"), QMessageBox::DestructiveRole);
    box->addButton(QStringLiteral("Keep both"), QMessageBox::AcceptRole);
    return box;
}

FramelessMessageBox *createInescapable(QWidget *parent)
{
    auto *box =
        createBox(QStringLiteral("Units"), QStringLiteral("In which unit are the coordinates?"),
                  QMessageBox::NoButton, parent, QMessageBox::Question);
    box->addButton(QStringLiteral("Metres"), QMessageBox::AcceptRole);
    box->addButton(QStringLiteral("Feet"), QMessageBox::AcceptRole);
    return box;
}

FramelessMessageBox *createRich(QWidget *parent)
{
    return createBox(
        QStringLiteral("Update"),
        QStringLiteral(
            "<b>Version 1.4</b> is available.<ul><li>Faster tiles</li><li>Line types in "
            "sections</li></ul>See the <a href=\"https://example.org/\">release notes</a>."),
        QMessageBox::Ok, parent);
}

FramelessMessageBox *createLong(QWidget *parent)
{
    return createBox(
        QStringLiteral("Registration"),
        QStringLiteral("The registration of the two scans did not converge. ").repeated(2) +
            QStringLiteral(
                "The overlap is 12 %, which is below the 30 % that are needed for a stable "
                "result; add scans between the two positions, or mark at least three pairs "
                "of points by hand and start again from them."),
        QMessageBox::Retry | QMessageBox::Cancel, parent, QMessageBox::Critical);
}

const QVector<Special> &specials()
{
    static const QVector<Special> all = {
        {QStringLiteral("details"), QStringLiteral("Details"), createDetails},
        {QStringLiteral("informative"), QStringLiteral("Informative text"), createInformative},
        {QStringLiteral("checkbox"), QStringLiteral("Check box"), createCheckable},
        {QStringLiteral("custom"), QStringLiteral("Custom buttons"), createCustom},
        {QStringLiteral("noescape"), QStringLiteral("No escape button"), createInescapable},
        {QStringLiteral("rich"), QStringLiteral("Rich text"), createRich},
        {QStringLiteral("long"), QStringLiteral("Long text"), createLong}};
    return all;
}

void about(QWidget *parent)
{
    FramelessMessageBox::about(
        parent, QStringLiteral("About the gallery"),
        QStringLiteral("<b>lmwidgets gallery</b><p>Shows every widget of the library live.</p>"));
}

void aboutQt(QWidget *parent)
{
    FramelessMessageBox::aboutQt(parent, QString());
}

QPushButton *shortButton(const Kind &kind, QWidget *page, SignalLog &log)
{
    return button(kind.name, [kind, page, &log] {
        const auto result =
            kind.show(page->window(), kind.title, kind.text, kind.buttons, QMessageBox::NoButton);
        log.note(kind.name, QStringLiteral("returned"), buttonName(result));
    });
}

QPushButton *longButton(const Kind &kind, QWidget *page, SignalLog &log)
{
    return button(kind.name + QStringLiteral(", property"), [kind, page, &log] {
        char property[] = "galleryBox";
        const auto result = kind.showLong(page->window(), kind.title, kind.text, property, true,
                                          kind.buttons, QMessageBox::NoButton, false);
        log.note(kind.name, QStringLiteral("returned"), buttonName(result));
    });
}

QPushButton *specialButton(const Special &special, QWidget *page, SignalLog &log)
{
    return button(special.label, [special, page, &log] {
        FramelessMessageBox *box = special.create(page->window());
        box->setAttribute(Qt::WA_DeleteOnClose);
        log.watch(box, special.label);
        if (box->checkBox()) {
            log.watch(box->checkBox(), QStringLiteral("its check box"));
        }
        box->show();
    });
}

QPushButton *aboutButton(const QString &name, void (*show)(QWidget *), QWidget *page,
                         SignalLog &log)
{
    return button(name, [name, show, page, &log] {
        show(page->window());
        log.note(name, QStringLiteral("returned"));
    });
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    QVBoxLayout *layout = contentLayout(content);
    QVector<QWidget *> shorts;
    QVector<QWidget *> longs;
    for (const Kind &kind : kinds()) {
        shorts.append(shortButton(kind, content, log));
        longs.append(longButton(kind, content, log));
    }
    QVector<QWidget *> others;
    for (const Special &special : specials()) {
        others.append(specialButton(special, content, log));
    }
    addSection(
        layout, QStringLiteral("Static functions"),
        QStringLiteral("Each shows a box, waits for it and returns the button that was clicked."))
        ->addWidget(grid(Columns, shorts));
    addSection(
        layout, QStringLiteral("Static functions with a property"),
        QStringLiteral(
            "For a style sheet to select on; these boxes have no close button in their title."))
        ->addWidget(grid(Columns, longs));
    addSection(layout, QStringLiteral("About boxes"))
        ->addWidget(grid(Columns, {aboutButton(QStringLiteral("about"), about, content, log),
                                   aboutButton(QStringLiteral("aboutQt"), aboutQt, content, log)}));
    addSection(layout, QStringLiteral("Boxes made by hand"),
               QStringLiteral("Shown without waiting; their signals tell how they end."))
        ->addWidget(grid(Columns, others));
    return content;
}

QWidget *openDetails()
{
    FramelessMessageBox *box = createDetails(nullptr);
    box->show();
    if (auto *details = box->findChild<DetailButton *>()) {
        details->click();
    }
    return box;
}

} // namespace

Page messageboxPage()
{
    Page page(
        QStringLiteral("messagebox"), QStringLiteral("Message box"),
        QStringLiteral(
            "FramelessMessageBox asks and tells what QMessageBox does, in the dark frame: 444 px "
            "wide, with its icon in the title and the OK button preferred."),
        createContent);
    for (const Kind &kind : kinds()) {
        page.shot(kind.name, [kind] {
            FramelessMessageBox *box =
                createBox(kind.title, kind.text, kind.buttons, nullptr, kind.icon);
            box->show();
            return box;
        });
    }
    for (const Special &special : specials()) {
        page.shot(special.name, [special] {
            FramelessMessageBox *box = special.create(nullptr);
            box->show();
            return box;
        });
    }
    return page.shot(QStringLiteral("details-open"), openDetails)
        .blockingShot(QStringLiteral("about"), [] { about(nullptr); })
        .blockingShot(QStringLiteral("about-qt"), [] { aboutQt(nullptr); });
}

} // namespace gallery
