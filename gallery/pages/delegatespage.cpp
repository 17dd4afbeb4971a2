#include "page.h"
#include "pageparts.h"
#include "signallog.h"

#include <lmwidgets/checkboxheaderview.h>
#include <lmwidgets/customdelegate.h>
#include <lmwidgets/kvitemdoublespinboxdelegate.h>
#include <lmwidgets/kvitemlineeditdelegate.h>

#include <QHeaderView>
#include <QPushButton>
#include <QRegExp>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

namespace gallery {

using LM::Widgets::CheckBoxHeaderView;
using LM::Widgets::CustomDelegate;

namespace {

enum Column { NameColumn, HeightColumn, OffsetColumn, CodeColumn, ColumnCount };

constexpr int NameWidth = 180;
constexpr int ColumnWidth = 130;
constexpr int ViewHeight = 200;
constexpr int HeaderHeight = 32;
constexpr int BoxSize = 16;
constexpr int BoxLeft = 17; // above the check boxes of the rows
constexpr double LargestHeight = 100.0;

QStandardItem *textItem(const QString &text)
{
    auto *item = new QStandardItem(text);
    item->setCheckable(false);
    return item;
}

QStandardItemModel *createModel(QObject *parent)
{
    const struct
    {
        const char *name;
        const char *height;
        const char *offset;
        const char *code;
    } rows[] = {
        {"Ground", "0.000", "", "GRD1"},
        {"Kerb stones", "0.125", "-1.500", "KRB2"},
        {"Facades", "12.750", "", "FAC3"},
        {"Power lines", "24.000", "2.250", "PWR4"},
    };
    auto *model = new QStandardItemModel(0, ColumnCount, parent);
    model->setHorizontalHeaderLabels({QStringLiteral("Layer"), QStringLiteral("Height"),
                                      QStringLiteral("Offset"), QStringLiteral("Code")});
    for (const auto &row : rows) {
        auto *name = new QStandardItem(QString::fromLatin1(row.name));
        name->setCheckable(true);
        name->setCheckState(Qt::Checked);
        model->appendRow({name, textItem(QString::fromLatin1(row.height)),
                          textItem(QString::fromLatin1(row.offset)),
                          textItem(QString::fromLatin1(row.code))});
    }
    return model;
}

CheckBoxHeaderView *createHeader(QTableView *view, QStandardItemModel *model)
{
    auto *header = new CheckBoxHeaderView(NameColumn, QPoint(BoxLeft, (HeaderHeight - BoxSize) / 2),
                                          QSize(BoxSize, BoxSize), Qt::Horizontal, view);
    view->setHorizontalHeader(header);
    header->setFixedHeight(HeaderHeight);
    header->setDefaultAlignment(Qt::AlignCenter);
    QObject::connect(
        header, &CheckBoxHeaderView::signalCheckStateChanged, model, [model](bool checked) {
            for (int row = 0; row < model->rowCount(); ++row) {
                model->item(row, NameColumn)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
            }
        });
    return header;
}

void setDelegates(QTableView *view)
{
    view->setItemDelegateForColumn(NameColumn, new CustomDelegate(view));

    auto *height = new kvItemDoubleSpinboxDelegate(view);
    height->setMinValue(0.0);
    height->setMaxValue(LargestHeight);
    view->setItemDelegateForColumn(HeightColumn, height);

    auto *offset = new kvItemDoubleSpinboxDelegate(view);
    offset->setEnableEmptyStr(true);
    view->setItemDelegateForColumn(OffsetColumn, offset);

    const QRegExp code(QStringLiteral("[A-Z]{3}[0-9]{1,2}"));
    view->setItemDelegateForColumn(CodeColumn, new KVItemLineEditDelegate(code, view));
}

QTableView *createView(SignalLog &log)
{
    auto *view = new QTableView;
    auto *model = createModel(view);
    view->setModel(model);
    log.watch(createHeader(view, model), QStringLiteral("CheckBoxHeaderView"));
    setDelegates(view);
    view->verticalHeader()->hide();
    view->setColumnWidth(NameColumn, NameWidth);
    for (int column = HeightColumn; column < ColumnCount; ++column) {
        view->setColumnWidth(column, ColumnWidth);
    }
    view->horizontalHeader()->setStretchLastSection(true);
    view->setFixedHeight(ViewHeight);
    QObject::connect(model, &QStandardItemModel::itemChanged, &log, [&log](QStandardItem *item) {
        log.note(QStringLiteral("model"), QStringLiteral("itemChanged"),
                 QStringLiteral("row %1, column %2, \"%3\"")
                     .arg(item->row())
                     .arg(item->column())
                     .arg(item->data(Qt::EditRole).toString()));
    });
    return view;
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    QVBoxLayout *layout = contentLayout(content);
    QVBoxLayout *body = addSection(
        layout, QStringLiteral("A table of layers"),
        QStringLiteral("A press anywhere in the first section of the header checks or unchecks "
                       "every layer. A double click opens an editor: heights go from 0 to 100, an "
                       "offset may be left empty, a code is three capital letters and one or two "
                       "digits."));
    QTableView *view = createView(log);
    body->addWidget(view);
    QAbstractItemModel *model = view->model();
    body->addWidget(row({button(QStringLiteral("Edit the height"),
                                [view, model] { view->edit(model->index(1, HeightColumn)); }),
                         button(QStringLiteral("Edit the offset"),
                                [view, model] { view->edit(model->index(0, OffsetColumn)); }),
                         button(QStringLiteral("Edit the code"),
                                [view, model] { view->edit(model->index(2, CodeColumn)); })}));
    return content;
}

} // namespace

Page delegatesPage()
{
    return Page(QStringLiteral("delegates"), QStringLiteral("Item delegates"),
                QStringLiteral("CustomDelegate indents the first column, "
                               "kvItemDoubleSpinboxDelegate and KVItemLineEditDelegate edit "
                               "numbers and texts, and CheckBoxHeaderView carries a check box."),
                createContent);
}

} // namespace gallery
