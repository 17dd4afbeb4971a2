#include "layerscenario.h"

#include "reporter.h"

#include <lmwidgets/customlayertablewidget.h>
#include <lmwidgets/framelessdialog.h>
#include <lmwidgets/titlebar.h>

#include <QApplication>
#include <QColorDialog>
#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

using LM::Widgets::CustomLayerTableWidget;
using LM::Widgets::FramelessDialog;
using LM::Widgets::TitleBar;

namespace {

constexpr QRect ListGeometry(60, 60, 360, 260);
constexpr int RowCount = 3;

/** Gives the colour dialog, which the table makes, names by which the driver finds its parts. */
class ColorDialogNames : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *frame =
            event->type() == QEvent::Show ? qobject_cast<FramelessDialog *>(watched) : nullptr;
        if (frame && frame->objectName().isEmpty()) {
            frame->setObjectName(QStringLiteral("color"));
            frame->GetOKButton()->setObjectName(QStringLiteral("color-ok"));
            frame->GetCancelButton()->setObjectName(QStringLiteral("color-cancel"));
            frame->getTitleBar()
                ->titleButton(TitleBar::CloseButton)
                ->setObjectName(QStringLiteral("color-close"));
            nameHtmlEdit(frame);
            Reporter::follow(frame);
        }
        return false;
    }

private:
    static void nameHtmlEdit(FramelessDialog *frame)
    {
        const auto edits = frame->findChildren<QLineEdit *>();
        for (QLineEdit *edit : edits) {
            if (edit->text().startsWith(QLatin1Char('#'))) {
                edit->setObjectName(QStringLiteral("color-html"));
                Reporter::follow(edit);
            }
        }
    }
};

QString valueText(const QVariant &value)
{
    return value.isValid() ? value.toString() : QStringLiteral("none");
}

} // namespace

void runLayers()
{
    qApp->installEventFilter(new ColorDialogNames(qApp));
    auto *list = new CustomLayerTableWidget;
    list->setObjectName(QStringLiteral("list"));
    list->creatUiType(CustomLayerTableWidget::LAYER_LIST);
    list->setGeometry(ListGeometry);
    const char *const names[] = {"delete", "edit", "lock", "visible", "color"};
    for (int row = 0; row < RowCount; ++row) {
        list->addLayerRow();
        for (int column = 1; column <= 5; ++column) {
            list->cellWidget(row, column)
                ->setObjectName(QLatin1String(names[column - 1]) + QString::number(row));
        }
    }
    QObject::connect(
        list, &CustomLayerTableWidget::signalUpdateModel, list,
        [](int row, const QVariant &value, int type) {
            Reporter::say(
                QStringLiteral("layer %1 %2 %3").arg(row).arg(type).arg(valueText(value)));
        });
    QObject::connect(list, &QTableWidget::itemChanged, list, [](QTableWidgetItem *item) {
        Reporter::say(QStringLiteral("name %1 %2").arg(item->row()).arg(item->text()));
    });
    list->show();
}
