#include "page.h"
#include "pageparts.h"
#include "signallog.h"
#include "themes.h"

#include <lmwidgets/collapsiblegroupbox.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr QSize PanelSize(460, 420);
constexpr int PanelSpacing = 8;

/** A box whose settings key the page can show. */
class PanelBox : public CollapsibleGroupBox
{
public:
    using CollapsibleGroupBox::CollapsibleGroupBox;
    using CollapsibleGroupBox::saveKey;
};

/** A named box in @p panel with a form for its settings. */
PanelBox *addBox(QLayout *panel, const QString &name, const QString &title, const QString &group)
{
    auto *box = new PanelBox(title);
    box->setObjectName(name);
    box->setSyncGroup(group);
    new QFormLayout(box);
    panel->addWidget(box);
    return box;
}

void addRow(PanelBox *box, const QString &label, QWidget *field)
{
    static_cast<QFormLayout *>(box->layout())->addRow(label, field);
}

QLineEdit *edit(const QString &text)
{
    return new QLineEdit(text);
}

QSpinBox *number(int value, const QString &suffix = QString())
{
    auto *box = new QSpinBox;
    box->setRange(0, 9999);
    box->setValue(value);
    box->setSuffix(suffix);
    return box;
}

QComboBox *choice(const QStringList &items)
{
    auto *box = new QComboBox;
    box->addItems(items);
    return box;
}

void addGeometryBoxes(QLayout *panel, const QString &group)
{
    PanelBox *general =
        addBox(panel, QStringLiteral("grpGeneral"), QStringLiteral("General"), group);
    addRow(general, QStringLiteral("Name"), edit(QStringLiteral("Ground points")));
    addRow(general, QStringLiteral("Source"), edit(QStringLiteral("survey_07.las")));
    addRow(general, QStringLiteral("Points"), number(8831));

    PanelBox *place = addBox(panel, QStringLiteral("grpPlace"), QStringLiteral("Place"), group);
    for (const QString &axis : {QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("Z")}) {
        addRow(place, axis, number(1200, QStringLiteral(" m")));
    }

    // Nested: the inner boxes are folded with the outer one and are no group of it.
    PanelBox *look = addBox(panel, QStringLiteral("grpLook"), QStringLiteral("Look"), group);
    addRow(look, QStringLiteral("Colours"),
           choice({QStringLiteral("By height"), QStringLiteral("By class")}));
    auto *inner = new QVBoxLayout;
    PanelBox *points = addBox(inner, QStringLiteral("grpPoints"), QStringLiteral("Points"),
                              QStringLiteral("look"));
    addRow(points, QStringLiteral("Size"), number(3, QStringLiteral(" px")));
    PanelBox *lines =
        addBox(inner, QStringLiteral("grpLines"), QStringLiteral("Lines"), QStringLiteral("look"));
    addRow(lines, QStringLiteral("Width"), number(1, QStringLiteral(" px")));
    lines->setCollapsed(true);
    static_cast<QFormLayout *>(look->layout())->addRow(inner);
}

void addOptionBoxes(QLayout *panel, const QString &group)
{
    PanelBox *filter =
        addBox(panel, QStringLiteral("grpFilter"), QStringLiteral("Filter (checkable)"), group);
    filter->setCheckable(true);
    filter->setSaveCheckedState(true);
    addRow(filter, QStringLiteral("From"), number(10, QStringLiteral(" m")));
    addRow(filter, QStringLiteral("To"), number(90, QStringLiteral(" m")));

    PanelBox *clip =
        addBox(panel, QStringLiteral("grpClip"), QStringLiteral("Clip (not checked)"), group);
    clip->setCheckable(true);
    clip->setChecked(false);
    clip->setCollapsed(true);
    addRow(clip, QStringLiteral("Box"), edit(QStringLiteral("Section A-A")));

    PanelBox *flat = addBox(panel, QStringLiteral("grpStatistics"),
                            QStringLiteral("Statistics (flat, no group)"), QString());
    flat->setFlat(true);
    addRow(flat, QStringLiteral("Lowest"), new QLabel(QStringLiteral("112.4 m")));
    addRow(flat, QStringLiteral("Highest"), new QLabel(QStringLiteral("187.9 m")));

    PanelBox *locked =
        addBox(panel, QStringLiteral("grpLocked"), QStringLiteral("Licence (disabled)"), group);
    locked->setEnabled(false);
    addRow(locked, QStringLiteral("Key"), edit(QStringLiteral("0000-0000")));

    PanelBox *classes =
        addBox(panel, QStringLiteral("grpClasses"), QStringLiteral("Classes"), group);
    classes->setCollapsed(true);
    for (int i = 1; i <= 14; ++i) {
        addRow(classes, QStringLiteral("Class %1").arg(i),
               choice({QStringLiteral("Visible"), QStringLiteral("Hidden")}));
    }
}

/** The panel with its boxes, in a scroll area; null for @p log reports nothing. */
QScrollArea *createPanel(SignalLog *log)
{
    auto *content = new QWidget;
    content->setObjectName(QStringLiteral("galleryPanel"));
    auto *layout = new QVBoxLayout(content);
    layout->setSpacing(PanelSpacing);
    const QString group = QStringLiteral("properties");
    addGeometryBoxes(layout, group);
    addOptionBoxes(layout, group);
    layout->addStretch();

    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidgetResizable(true);
    area->setWidget(content);
    area->setFixedSize(PanelSize);
    if (log) {
        for (PanelBox *box : content->findChildren<PanelBox *>()) {
            log->watch(box, box->objectName());
        }
    }
    return area;
}

/** Makes the panel anew for each theme: a box reads its arrows once. */
class PanelView : public QWidget
{
public:
    explicit PanelView(SignalLog *log)
    {
        contentLayout(this);
        onTheme(this, [this, log] {
            delete m_panel;
            m_panel = createPanel(log);
            layout()->addWidget(m_panel);
        });
    }
    QList<PanelBox *> boxes() const { return findChildren<PanelBox *>(); }

private:
    QPointer<QScrollArea> m_panel;
};

QWidget *controls(PanelView *panel, SignalLog &log)
{
    auto *column = new QWidget;
    auto *layout = contentLayout(column);
    const auto setAll = [panel](bool collapsed) {
        for (PanelBox *box : panel->boxes()) {
            box->setCollapsed(collapsed);
        }
    };
    layout->addWidget(button(QStringLiteral("Fold all"), [setAll] { setAll(true); }));
    layout->addWidget(button(QStringLiteral("Open all"), [setAll] { setAll(false); }));
    layout->addWidget(check(QStringLiteral("scrollOnExpand"), true, [panel](bool scroll) {
        for (PanelBox *box : panel->boxes()) {
            box->setScrollOnExpand(scroll);
        }
    }));
    layout->addWidget(check(QStringLiteral("Setting group \"gallery\""), false, [panel](bool set) {
        for (PanelBox *box : panel->boxes()) {
            box->setSettingGroup(set ? QStringLiteral("gallery") : QString());
        }
    }));
    layout->addWidget(button(QStringLiteral("Settings keys"), [panel, &log] {
        for (PanelBox *box : panel->boxes()) {
            log.note(box->objectName(), QStringLiteral("saveKey()"), box->saveKey());
        }
    }));
    layout->addStretch();
    return column;
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    auto *layout = contentLayout(content);
    auto *body = addSection(
        layout, QStringLiteral("A property panel"),
        QStringLiteral(
            "Click a title or its arrow. With Shift it opens and folds the others of its "
            "group; with Ctrl or Alt the whole group folds or opens. A box that opens "
            "scrolls into view."));
    auto *panel = new PanelView(&log);
    body->addWidget(row({framed(panel), controls(panel, log)}));
    return content;
}

/** A window with the panel in it, whose folding @p arrange decides. */
std::function<QWidget *()> panelShot(void (*arrange)(const QList<PanelBox *> &boxes))
{
    return [arrange] {
        auto *window = new QWidget;
        window->setObjectName(QStringLiteral("PropertiesDlg"));
        auto *layout = new QVBoxLayout(window);
        layout->setContentsMargins(0, 0, 0, 0);
        auto *panel = new PanelView(nullptr);
        layout->addWidget(panel);
        window->show();
        arrange(panel->boxes());
        return window;
    };
}

void foldAll(const QList<PanelBox *> &boxes)
{
    for (PanelBox *box : boxes) {
        box->setCollapsed(true);
    }
}

void openTheLast(const QList<PanelBox *> &boxes)
{
    foldAll(boxes);
    boxes.last()->setCollapsed(false);
}

} // namespace

Page containersPage()
{
    return Page(QStringLiteral("containers"), QStringLiteral("Collapsible group boxes"),
                QStringLiteral("CollapsibleGroupBox folds down to its title; boxes of one sync "
                               "group fold and open together."),
                createContent)
        .shot(QStringLiteral("folded"), panelShot(foldAll))
        .shot(QStringLiteral("opened"), panelShot(openTheLast));
}

} // namespace gallery
