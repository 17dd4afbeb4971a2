#ifndef LMWIDGETS_KVITEMDOUBLESPINBOXDELEGATE_H
#define LMWIDGETS_KVITEMDOUBLESPINBOXDELEGATE_H

#include <lmwidgets/lmwidgets_global.h>

#include <QItemDelegate>

/**
 * @class kvItemDoubleSpinboxDelegate kvitemdoublespinboxdelegate.h <lmwidgets/kvitemdoublespinboxdelegate.h>
 *
 * @brief An item delegate that edits a cell as a number with three decimals.
 *
 * @image html kvitemdoublespinboxdelegate.png
 *
 * The editor is a QDoubleSpinBox without arrows; the arrow keys and the wheel do not change the
 * value. The model receives the number as a text with three decimals, such as "1.235", never as a
 * double. With setEnableEmptyStr() a cell may also be left empty.
 *
 * @code
 * auto *delegate = new kvItemDoubleSpinboxDelegate(view);
 * delegate->setMinValue(0.0);
 * delegate->setEnableEmptyStr(true);
 * view->setItemDelegateForColumn(2, delegate);
 * @endcode
 */
class LMWIDGETS_EXPORT kvItemDoubleSpinboxDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    /**
     * Constructs a delegate for numbers between -999999999.9999999 and 999999999.9999999. An editor
     * rounds its bounds to three decimals like all numbers, so it really offers -1000000000.000 to
     * 1000000000.000.
     */
    explicit kvItemDoubleSpinboxDelegate(QObject *parent = nullptr);
    ~kvItemDoubleSpinboxDelegate() override;

    /**
     * Sets the smallest number of the editors created from now on. A value that is not a number is
     * ignored. With a minimum above the maximum an editor offers the maximum alone.
     */
    void setMinValue(double value);
    /** Sets the largest number of the editors created from now on; otherwise like setMinValue(). */
    void setMaxValue(double value);
    /**
     * Sets whether a cell may be empty; false at start. If so, an empty cell opens an empty editor,
     * and an empty editor writes an empty text; if not, an empty cell opens as 0 and is written as
     * "0.000". Set it before an editor is created: the arrow keys and Return leave an empty field
     * alone only in an editor that was made for empty cells.
     */
    void setEnableEmptyStr(bool enable);

    /** Returns a new spin box, a child of @p parent. */
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    /**
     * Fills the spin box @p editor with the number in the cell @p index, or with 0 if the cell
     * holds anything else. Ignores an editor that is null or no QDoubleSpinBox and an invalid
     * index.
     */
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    /**
     * Writes the content of the spin box @p editor to the cell @p index of @p model; ignores as
     * above.
     */
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    /** Gives @p editor the whole rectangle of the cell. */
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

private:
    Q_DISABLE_COPY(kvItemDoubleSpinboxDelegate)

    double m_minValue = -999999999.9999999;
    double m_maxValue = 999999999.9999999;
    bool m_enableEmptyString = false;
};

#endif
