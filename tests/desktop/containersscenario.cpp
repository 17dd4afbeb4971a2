#include "containersscenario.h"

#include "reporter.h"

#include <lmwidgets/collapsiblegroupbox.h>

#include <QLineEdit>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

constexpr QRect PanelGeometry(200, 100, 320, 420);
constexpr int EditsOfABox = 4;

CollapsibleGroupBox *makeBox(const QString &name)
{
    auto *box = new CollapsibleGroupBox(QLatin1String("Group ") + name);
    box->setObjectName(name);
    auto *layout = new QVBoxLayout(box);
    for (int i = 0; i < EditsOfABox; ++i) {
        auto *edit = new QLineEdit;
        edit->setObjectName(QStringLiteral("%1-edit%2").arg(name).arg(i));
        layout->addWidget(edit);
    }
    QObject::connect(
        box, &CollapsibleGroupBoxBasic::collapsedStateChanged, box, [name](bool collapsed) {
            Reporter::say((collapsed ? QLatin1String("folded ") : QLatin1String("opened ")) + name);
        });
    QObject::connect(box, &QGroupBox::toggled, box, [name](bool checked) {
        Reporter::say(QStringLiteral("checked %1 %2").arg(name).arg(checked));
    });
    return box;
}

} // namespace

void runPanel()
{
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    for (const char *name : {"a", "b", "c", "d", "e", "f"}) {
        CollapsibleGroupBox *box = makeBox(QLatin1String(name));
        if (*name != 'e') {
            box->setSyncGroup(QStringLiteral("settings"));
        }
        box->setCollapsed(*name == 'c');
        box->setCheckable(*name == 'd');
        column->addWidget(box);
    }
    column->addStretch();

    auto *area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setWidget(content);
    area->viewport()->setObjectName(QStringLiteral("view"));
    area->setObjectName(QStringLiteral("panel"));
    area->setGeometry(PanelGeometry);
    area->show();
}
