#include "subject.h"

#include <lmwidgets/customspinbox.h>
#include <lmwidgets/editcombobox.h>
#include <lmwidgets/linetypecombobox.h>
#include <lmwidgets/qmessageboxdetailstext.h>
#include <lmwidgets/talvodoubleslider.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>
#include <QtTest>

namespace baseline {

using LM::Widgets::CustomSpinBox;
using LM::Widgets::EditComboBox;
using LM::Widgets::LineTypeComboBox;
using LM::Widgets::QMessageBoxDetailsText;
using LM::Widgets::TalvoDoubleSlider;

namespace {

constexpr int FieldWidth = 180;
constexpr QSize SliderSize(200, 20);
constexpr QSize DetailsSize(320, 140);
constexpr int LineTypeHeight = 31;
constexpr int LineTypeWidth = 180;

Subject spinBoxes()
{
    const auto create = [] {
        auto *box = new CustomSpinBox;
        box->setRange(-10000, 10000);
        box->setValue(187.9);
        box->setFixedWidth(FieldWidth);
        return box;
    };
    Subject subject{QStringLiteral("CustomSpinBox"), widgetStates(create)};
    subject.states += {{QStringLiteral("blank"),
                        [create] {
                            CustomSpinBox *box = create();
                            box->setValue(0);
                            box->clear();
                            return box;
                        },
                        nullptr},
                       {QStringLiteral("with a unit"),
                        [create] {
                            CustomSpinBox *box = create();
                            box->setSuffix(QStringLiteral(" m"));
                            return box;
                        },
                        nullptr},
                       {QStringLiteral("at its maximum"),
                        [create] {
                            CustomSpinBox *box = create();
                            box->setValue(10000);
                            return box;
                        },
                        nullptr}};
    return subject;
}

EditComboBox *comboBox()
{
    auto *box = new EditComboBox({QStringLiteral("WGS 84"), QStringLiteral("ETRS89 / UTM zone 31N"),
                                  QStringLiteral("ETRS89 / UTM zone 32N"),
                                  QStringLiteral("DHDN / Gauss-Krueger zone 3")},
                                 nullptr);
    box->setFixedWidth(FieldWidth);
    box->setCurrentIndex(0);
    return box;
}

QLineEdit *editOf(QWidget *box)
{
    return box->findChild<QLineEdit *>();
}

/** The list that a click on the button opens, or into the text. */
QWidget *openList(QWidget *box, const QString &typed)
{
    QLineEdit *edit = editOf(box);
    QWidget *list = edit->completer()->popup();
    edit->setText(typed);
    if (typed.isEmpty()) {
        box->findChild<QPushButton *>()->click();
    } else {
        QTest::mouseClick(edit, Qt::LeftButton);
    }
    if (!QTest::qWaitFor([list] { return list->isVisible(); })) {
        qWarning("the list does not open");
    }
    return list;
}

Subject editComboBoxes()
{
    const auto create = [](void (*change)(EditComboBox *)) {
        return [change] {
            EditComboBox *box = comboBox();
            change(box);
            return box;
        };
    };
    return {QStringLiteral("EditComboBox"),
            {{QStringLiteral("normal"), comboBox, nullptr},
             {QStringLiteral("hovered"), comboBox,
              [](QWidget *shown) {
                  hover(editOf(shown));
                  return shown;
              }},
             {QStringLiteral("button hovered"), comboBox,
              [](QWidget *shown) {
                  hover(shown->findChild<QPushButton *>());
                  return shown;
              }},
             {QStringLiteral("focused"), comboBox,
              [](QWidget *shown) {
                  focus(editOf(shown));
                  return shown;
              }},
             {QStringLiteral("disabled"), disabled(comboBox), nullptr},
             {QStringLiteral("not editable"),
              create([](EditComboBox *box) { box->setEditable(false); }), nullptr},
             {QStringLiteral("empty with a hint"), create([](EditComboBox *box) {
                  box->clear();
                  box->clearEditText();
                  box->setPlaceHolderText(QStringLiteral("No entries yet"));
              }),
              nullptr},
             {QStringLiteral("long text"), create([](EditComboBox *box) {
                  box->setEditText(QStringLiteral("a system that nobody has ever heard of"));
              }),
              nullptr},
             {QStringLiteral("error"), comboBox,
              [](QWidget *shown) {
                  static_cast<EditComboBox *>(shown)->displayErrorStates();
                  return shown;
              }},
             {QStringLiteral("list of all"), comboBox,
              [](QWidget *shown) { return openList(shown, QString()); }},
             {QStringLiteral("list of matches"), comboBox,
              [](QWidget *shown) { return openList(shown, QStringLiteral("zone 3")); }}}};
}

LineTypeComboBox *lineTypes(int width, const char *name)
{
    auto *box = new LineTypeComboBox;
    box->setFixedSize(width, LineTypeHeight);
    box->updateIcons();
    box->setCurrentIndex(box->findData(QString::fromLatin1(name)));
    return box;
}

QWidget *openLineTypes(QWidget *shown)
{
    auto *box = static_cast<LineTypeComboBox *>(shown);
    box->showPopup();
    QWidget *list = box->view()->window();
    if (!QTest::qWaitForWindowExposed(list)) {
        qWarning("the list does not open");
    }
    return list;
}

Subject lineTypeBoxes()
{
    const Create create = [] { return lineTypes(LineTypeWidth, "ACAD_ISO04W100"); };
    Subject subject{QStringLiteral("LineTypeComboBox"), widgetStates(create)};
    for (const int width : {60, 120, 300}) {
        subject.states.append({QStringLiteral("%1 px wide").arg(width),
                               [width] { return lineTypes(width, "ACAD_ISO10W100"); }, nullptr});
    }
    subject.states += {{QStringLiteral("continuous"),
                        [] { return lineTypes(LineTypeWidth, "CONTINUOUS"); }, nullptr},
                       {QStringLiteral("list"), create, openLineTypes}};
    return subject;
}

Subject detailsTexts()
{
    const auto create = [](const QString &text) {
        return [text] {
            auto *details = new QMessageBoxDetailsText;
            details->setText(text);
            details->setFixedSize(DetailsSize);
            return details;
        };
    };
    const QString text = QStringLiteral("north_03.las: unknown point format 131\n"
                                        "north_09.las: the file ends after 1204 of 88310 points\n");
    Subject subject{QStringLiteral("QMessageBoxDetailsText"), {}};
    subject.states = {{QStringLiteral("normal"), create(text), nullptr},
                      {QStringLiteral("disabled"), disabled(create(text)), nullptr},
                      {QStringLiteral("empty"), create(QString()), nullptr},
                      {QStringLiteral("selected"), create(text),
                       [](QWidget *shown) {
                           focus(shown->findChild<QTextEdit *>());
                           static_cast<QMessageBoxDetailsText *>(shown)->selectAll();
                           return shown;
                       }},
                      {QStringLiteral("long"), create(text.repeated(6)), nullptr}};
    return subject;
}

struct Span
{
    double minimum;
    double maximum;
    double lower;
    double upper;
};

TalvoDoubleSlider *slider(const Span &span)
{
    auto *slider = new TalvoDoubleSlider;
    slider->setFixedSize(SliderSize);
    slider->setQxtSpanRange(span.minimum, span.maximum);
    slider->setSpan(span.lower, span.upper);
    return slider;
}

Subject sliders()
{
    Subject subject{QStringLiteral("TalvoDoubleSlider"), widgetStates([] {
                        return slider({0, 100, 30, 70});
                    })};
    const QVector<QPair<QString, Span>> spans = {{QStringLiteral("all"), {-90, 90, -90, 90}},
                                                 {QStringLiteral("one value"), {0, 100, 50, 50}},
                                                 {QStringLiteral("no range"), {5, 5, 5, 5}},
                                                 {QStringLiteral("outside"), {0, 100, -20, 60}}};
    for (const auto &span : spans) {
        const Span values = span.second;
        subject.states.append({span.first, [values] { return slider(values); }, nullptr});
    }
    return subject;
}

} // namespace

QVector<Subject> fieldSubjects()
{
    return {spinBoxes(), editComboBoxes(), lineTypeBoxes(), detailsTexts(), sliders()};
}

} // namespace baseline
