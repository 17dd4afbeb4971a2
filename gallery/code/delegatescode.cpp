#include "hostcode.h"

#include <lmwidgets/checkboxheaderview.h>
#include <lmwidgets/customdelegate.h>
#include <lmwidgets/kvitemdoublespinboxdelegate.h>

#include <QTableWidget>

void gallery::code::delegates(QWidget *window)
{
    // [host]
    auto *table = new QTableWidget(3, 3, window);
    table->setHorizontalHeader(
        new LM::Widgets::CheckBoxHeaderView(0, QPoint(8, 6), QSize(16, 16), Qt::Horizontal, table));
    table->setItemDelegateForColumn(0, new LM::Widgets::CustomDelegate(table));
    auto *number = new kvItemDoubleSpinboxDelegate(table);
    number->setMinValue(0.0);
    number->setEnableEmptyStr(true);
    table->setItemDelegateForColumn(2, number);
    // [end]
}
