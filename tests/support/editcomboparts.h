#ifndef EDITCOMBOPARTS_H
#define EDITCOMBOPARTS_H

/** @file
 * The parts of an edit combo box, found as a host finds them, and what it emits, in order.
 */

#include <lmwidgets/editcombobox.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QPushButton>
#include <QStringList>
#include <QStringListModel>
#include <QtTest>

namespace editcombo {

using LM::Widgets::EditComboBox;

inline QLineEdit *lineEdit(const EditComboBox &box)
{
    return box.findChild<QLineEdit *>();
}

inline QPushButton *button(const EditComboBox &box)
{
    return box.findChild<QPushButton *>();
}

inline QCompleter *completer(const EditComboBox &box)
{
    return lineEdit(box)->completer();
}

inline QAbstractItemView *popup(const EditComboBox &box)
{
    return completer(box)->popup();
}

/** The entries that the model of the list holds. */
inline QStringList modelEntries(const EditComboBox &box)
{
    auto *model = qobject_cast<QStringListModel *>(completer(box)->model());
    return model ? model->stringList() : QStringList(QStringLiteral("no string list model"));
}

/** The entries that the popup shows. */
inline QStringList shownEntries(const EditComboBox &box)
{
    QStringList entries;
    const QAbstractItemModel *model = popup(box)->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        entries += model->index(row, 0).data().toString();
    }
    return entries;
}

/** Shows @p box as a window that has the focus. */
inline void show(EditComboBox &box)
{
    box.resize(220, 30);
    box.show();
    box.activateWindow();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
}

/** Clicks the entry @p row of the open popup. */
inline void clickEntry(const EditComboBox &box, int row)
{
    QAbstractItemView *list = popup(box);
    QVERIFY(list->isVisible());
    list->scrollTo(list->model()->index(row, 0));
    const QPoint place = list->visualRect(list->model()->index(row, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

/** Notes the signals of a box: "index 3", "indexText a", "text a". */
class Notes : public QObject
{
public:
    explicit Notes(const EditComboBox &box)
    {
        connect(&box, QOverload<int>::of(&EditComboBox::currentIndexChanged), this,
                [this](int index) { m_lines += QStringLiteral("index %1").arg(index); });
        connect(&box, QOverload<const QString &>::of(&EditComboBox::currentIndexChanged), this,
                [this](const QString &text) { m_lines += QLatin1String("indexText ") + text; });
        connect(&box, &EditComboBox::currentTextChanged, this,
                [this](const QString &text) { m_lines += QLatin1String("text ") + text; });
    }

    /** What was emitted since the last call. */
    QStringList take()
    {
        const QStringList lines = m_lines;
        m_lines.clear();
        return lines;
    }

private:
    QStringList m_lines;
};

} // namespace editcombo

#endif
