#include "subject.h"

#include <lmwidgets/collapsiblegroupbox.h>
#include <lmwidgets/flowlayout.h>
#include <lmwidgets/groupboxcollapsebutton.h>
#include <lmwidgets/qcustomtabbar.h>
#include <lmwidgets/qcustomtabwidget.h>

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace baseline {

using LM::Widgets::FlowLayout;
using LM::Widgets::QCustomTabBar;
using LM::Widgets::QCustomTabWidget;

namespace {

constexpr int BoxWidth = 230;
constexpr QSize TabsSize(230, 300);

/** A box of the class @p Box with a form in it; it keeps no settings. */
template <typename Box>
Box *groupBox(const QString &title)
{
    auto *box = new Box(title);
    auto *form = new QFormLayout(box);
    form->addRow(QStringLiteral("Name"), new QLineEdit(QStringLiteral("Ground")));
    form->addRow(QStringLiteral("Points"), new QSpinBox);
    box->setFixedWidth(BoxWidth);
    return box;
}

GroupBoxCollapseButton *arrowOf(QWidget *box)
{
    return box->findChild<GroupBoxCollapseButton *>();
}

template <typename Box>
QVector<State> groupBoxStates()
{
    using Change = void (*)(Box *);
    const auto create = [](Change change) {
        return [change] {
            auto *box = groupBox<Box>(QStringLiteral("General"));
            change(box);
            return box;
        };
    };
    const Create normal = create([](Box *) {});
    const Create folded = create([](Box *box) { box->setCollapsed(true); });
    const Create checkable = create([](Box *box) { box->setCheckable(true); });
    const auto hoverArrow = [](QWidget *shown) {
        hover(arrowOf(shown));
        return shown;
    };
    return {
        {QStringLiteral("open"), normal, nullptr},
        {QStringLiteral("folded"), folded, nullptr},
        {QStringLiteral("arrow hovered"), normal, hoverArrow},
        {QStringLiteral("folded arrow hovered"), folded, hoverArrow},
        {QStringLiteral("arrow pressed"), normal,
         [hoverArrow](QWidget *shown) {
             hoverArrow(shown);
             arrowOf(shown)->setDown(true);
             return shown;
         }},
        {QStringLiteral("disabled"), disabled(normal), nullptr},
        {QStringLiteral("disabled folded"), disabled(folded), nullptr},
        {QStringLiteral("checkable"), checkable, nullptr},
        {QStringLiteral("checkable focused"), checkable,
         [](QWidget *shown) { return focus(shown); }},
        {QStringLiteral("not checked"), create([](Box *box) {
             box->setCheckable(true);
             box->setChecked(false);
         }),
         nullptr},
        {QStringLiteral("flat"), create([](Box *box) { box->setFlat(true); }), nullptr},
        {QStringLiteral("flat folded"), create([](Box *box) {
             box->setFlat(true);
             box->setCollapsed(true);
         }),
         nullptr},
        {QStringLiteral("long title"), create([](Box *box) {
             box->setTitle(QStringLiteral("Classification of ground and buildings"));
         }),
         nullptr},
        {QStringLiteral("no title"), create([](Box *box) { box->setTitle(QString()); }), nullptr}};
}

Subject basicBoxes()
{
    return {QStringLiteral("CollapsibleGroupBoxBasic"), groupBoxStates<CollapsibleGroupBoxBasic>()};
}

Subject boxes()
{
    Subject subject{QStringLiteral("CollapsibleGroupBox"), groupBoxStates<CollapsibleGroupBox>()};
    subject.states.append(
        {QStringLiteral("nested"),
         [] {
             auto *box = groupBox<CollapsibleGroupBox>(QStringLiteral("Look"));
             auto *inner = new CollapsibleGroupBox(QStringLiteral("Points"));
             (new QFormLayout(inner))->addRow(QStringLiteral("Size"), new QSpinBox);
             auto *folded = new CollapsibleGroupBox(QStringLiteral("Lines"));
             (new QFormLayout(folded))->addRow(QStringLiteral("Width"), new QSpinBox);
             folded->setCollapsed(true);
             static_cast<QFormLayout *>(box->layout())->addRow(inner);
             static_cast<QFormLayout *>(box->layout())->addRow(folded);
             return box;
         },
         nullptr});
    // What a box writes down must not fold the next one.
    for (State &state : subject.states) {
        const Create create = state.create;
        state.create = [create] {
            QWidget *widget = create();
            static_cast<CollapsibleGroupBox *>(widget)->setSaveCollapsedState(false);
            for (auto *inner : widget->findChildren<CollapsibleGroupBox *>()) {
                inner->setSaveCollapsedState(false);
            }
            return widget;
        };
    }
    return subject;
}

QWidget *flow(int width, int margin, int spacing)
{
    auto *content = new QWidget;
    auto *layout = new FlowLayout(content, margin, spacing, spacing);
    for (const QString &text : {QStringLiteral("Ground"), QStringLiteral("Low vegetation"),
                                QStringLiteral("Rail"), QStringLiteral("High vegetation"),
                                QStringLiteral("Water"), QStringLiteral("Bridge deck")}) {
        layout->addWidget(new QPushButton(text));
    }
    auto *high = new QPushButton(QStringLiteral("Two\nlines"));
    layout->addWidget(high);
    content->setFixedSize(width, layout->heightForWidth(width));
    return content;
}

Subject flows()
{
    return {QStringLiteral("FlowLayout"),
            {{QStringLiteral("wide"), [] { return flow(460, 0, 6); }, nullptr},
             {QStringLiteral("narrow"), [] { return flow(230, 0, 6); }, nullptr},
             {QStringLiteral("one column"), [] { return flow(140, 0, 6); }, nullptr},
             {QStringLiteral("spacing of the style"), [] { return flow(340, -1, -1); }, nullptr}}};
}

const QStringList &steps()
{
    static const QStringList names = {QStringLiteral("Import"), QStringLiteral("Register"),
                                      QStringLiteral("Classify"), QStringLiteral("Export")};
    return names;
}

void colorTabs(QCustomTabBar *bar)
{
    bar->setTabColor(0, QColor(0, 200, 80));
    bar->setTabColor(1, QColor(255, 200, 5));
    bar->setTabColor(2, QColor(230, 60, 50));
}

QVector<State> tabStates(const Create &create, const std::function<QTabBar *(QWidget *)> &barOf)
{
    return {{QStringLiteral("normal"), create, nullptr},
            {QStringLiteral("second tab"), create,
             [barOf](QWidget *shown) {
                 barOf(shown)->setCurrentIndex(1);
                 return shown;
             }},
            {QStringLiteral("tab hovered"), create,
             [barOf](QWidget *shown) {
                 hover(barOf(shown), barOf(shown)->tabRect(2).center());
                 return shown;
             }},
            {QStringLiteral("focused"), create,
             [barOf](QWidget *shown) {
                 focus(barOf(shown));
                 return shown;
             }},
            {QStringLiteral("tab disabled"), create,
             [barOf](QWidget *shown) {
                 barOf(shown)->setTabEnabled(2, false);
                 return shown;
             }},
            {QStringLiteral("disabled"), disabled(create), nullptr}};
}

Subject tabBars()
{
    const Create create = [] {
        auto *bar = new QCustomTabBar;
        bar->setShape(QTabBar::RoundedWest);
        for (const QString &step : steps()) {
            bar->addTab(step);
        }
        colorTabs(bar);
        return bar;
    };
    return {QStringLiteral("QCustomTabBar"),
            tabStates(create, [](QWidget *shown) { return static_cast<QTabBar *>(shown); })};
}

Subject tabWidgets()
{
    const Create create = [] {
        auto *tabs = new QCustomTabWidget;
        tabs->setTabPosition(QTabWidget::West);
        for (const QString &step : steps()) {
            auto *page = new QLabel(step);
            page->setAlignment(Qt::AlignCenter);
            tabs->addTab(page, step);
        }
        colorTabs(static_cast<QCustomTabBar *>(tabs->tabBar()));
        tabs->setFixedSize(TabsSize);
        return tabs;
    };
    Subject subject{QStringLiteral("QCustomTabWidget"), tabStates(create, [](QWidget *shown) {
                        return static_cast<QTabWidget *>(shown)->tabBar();
                    })};
    subject.states.append({QStringLiteral("empty"),
                           [] {
                               auto *tabs = new QCustomTabWidget;
                               tabs->setFixedSize(TabsSize);
                               return tabs;
                           },
                           nullptr});
    return subject;
}

} // namespace

QVector<Subject> containerSubjects()
{
    return {basicBoxes(), boxes(), flows(), tabBars(), tabWidgets()};
}

} // namespace baseline
