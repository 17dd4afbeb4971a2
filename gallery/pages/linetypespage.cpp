#include "page.h"
#include "pageparts.h"
#include "signallog.h"

#include <lmwidgets/linetypecombobox.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QSplitter>
#include <QVBoxLayout>

namespace gallery {

using LM::Widgets::LineTypeComboBox;

namespace {

constexpr int BoxHeight = 31;
constexpr int Widths[] = {60, 120, 240, 480};
constexpr int NarrowestSlide = 20;
constexpr int WidestSlide = 700;
constexpr int FirstSlide = 300;
constexpr int PatternWidth = 400;

/** A box of the height of its pictures; the theme gives it a dark ground. */
LineTypeComboBox *lineTypeBox()
{
    auto *box = new LineTypeComboBox;
    box->setFixedHeight(BoxHeight);
    return box;
}

/** Selects the line type @p name, once the box has its items. */
void select(LineTypeComboBox *box, const QString &name)
{
    box->updateIcons();
    box->setCurrentIndex(box->findData(name));
}

void addChoiceSection(QVBoxLayout *layout, SignalLog &log)
{
    QVBoxLayout *body = addSection(
        layout, QStringLiteral("One box"),
        QStringLiteral("The slider resizes it. Each resize makes the items anew in the new width "
                       "and selects the former one again, which the log shows as signals; "
                       "activated() comes from the user alone."));
    auto *box = lineTypeBox();
    box->setFixedWidth(FirstSlide);
    select(box, QStringLiteral("ACAD_ISO04W100"));
    log.watch(box, QStringLiteral("LineTypeComboBox"));

    auto *name = new QLabel;
    const auto showName = [box, name] { name->setText(box->currentData().toString()); };
    showName();
    QObject::connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), name, showName);

    auto *slider = new QSlider(Qt::Horizontal);
    slider->setRange(NarrowestSlide, WidestSlide);
    slider->setValue(FirstSlide);
    QObject::connect(slider, &QSlider::valueChanged, box, &QWidget::setFixedWidth);
    body->addWidget(row({box, name}));
    body->addWidget(slider);
}

void addWidthsSection(QVBoxLayout *layout)
{
    QVBoxLayout *body =
        addSection(layout, QStringLiteral("Several widths"),
                   QStringLiteral("The lengths of dashes and gaps are px and do not change with "
                                  "the width. The handle between the last two boxes moves."));
    int number = 2;
    for (const int width : Widths) {
        auto *box = lineTypeBox();
        box->setFixedWidth(width);
        select(box, QStringLiteral("ACAD_ISO%1W100").arg(number, 2, 10, QLatin1Char('0')));
        number += 3;
        body->addWidget(row(
            {box, new QLabel(
                      QStringLiteral("%1 px, %2").arg(width).arg(box->currentData().toString()))}));
    }
    auto *splitter = new QSplitter;
    for (const char *name : {"CONTINUOUS", "ACAD_ISO12W100"}) {
        auto *box = lineTypeBox();
        select(box, QString::fromLatin1(name));
        splitter->addWidget(box);
    }
    body->addWidget(splitter);
}

void addPatternSection(QVBoxLayout *layout)
{
    QVBoxLayout *body = addSection(
        layout, QStringLiteral("A pattern"),
        QStringLiteral("Whole numbers with commas between them: a positive number is a dash, a "
                       "negative one a gap, 0 a dot. \"CONTINUOUS\" is a line."));
    auto *box = lineTypeBox();
    box->hide();
    auto *picture = new QLabel;
    picture->setStyleSheet(QStringLiteral("background-color: #2B2B2B;"));
    picture->setFixedSize(PatternWidth, BoxHeight);
    auto *edit = new QLineEdit(QStringLiteral("30,-6,0,-6,6,-6"));
    const auto draw = [box, picture](const QString &pattern) {
        picture->setPixmap(box->generateLinePixmap(pattern, PatternWidth));
    };
    draw(edit->text());
    QObject::connect(edit, &QLineEdit::textChanged, picture, draw);
    body->addWidget(row({edit, picture, box}));
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    QVBoxLayout *layout = contentLayout(content);
    addChoiceSection(layout, log);
    addWidthsSection(layout);
    addPatternSection(layout);
    return content;
}

} // namespace

Page linetypesPage()
{
    return Page(QStringLiteral("linetypes"), QStringLiteral("Line types"),
                QStringLiteral("LineTypeComboBox shows CAD line types as pictures that are as wide "
                               "as the box. The strokes are white, so the theme gives the boxes "
                               "a dark ground."),
                createContent);
}

} // namespace gallery
