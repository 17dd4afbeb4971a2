#ifndef LMWIDGETS_KVITEMLINEEDITDELEGATE_H
#define LMWIDGETS_KVITEMLINEEDITDELEGATE_H

#include <lmwidgets/lmwidgets_global.h>

#include <QItemDelegate>
#include <QRegExp>

/**
 * @class KVItemLineEditDelegate kvitemlineeditdelegate.h <lmwidgets/kvitemlineeditdelegate.h>
 *
 * @brief An item delegate that edits a cell in a line edit limited by a regular expression.
 *
 * @image html kvitemlineeditdelegate.png
 *
 * The user can only type what the expression matches or may still come to match; Return and Tab do
 * not close the editor before it matches as a whole, and an editor that loses the focus before that
 * closes without writing. A host that makes another cell current, with setCurrentIndex(), has the
 * text written as it stands.
 *
 * @code
 * const QRegExp name(QStringLiteral("[A-Za-z_][A-Za-z0-9_]{0,30}"));
 * view->setItemDelegateForColumn(1, new KVItemLineEditDelegate(name, view));
 * @endcode
 */
class LMWIDGETS_EXPORT KVItemLineEditDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    /**
     * Constructs a delegate for texts that @p regExp matches from their first to their last
     * character.
     */
    explicit KVItemLineEditDelegate(const QRegExp &regExp, QObject *parent = nullptr);
    ~KVItemLineEditDelegate() override;

    /**
     * Returns a new line edit with a validator, both children of @p parent. The validator lives as
     * long as @p parent, which in a view is the viewport, and not only as long as the line edit:
     * each edit leaves one behind.
     */
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    /**
     * Fills the line edit @p editor with the text in the cell @p index, whether the expression
     * matches it or not. Ignores an editor that is null or no QLineEdit and an invalid index.
     */
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    /**
     * Writes the text of the line edit @p editor to the cell @p index of @p model; ignores as
     * above.
     */
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    /** Gives @p editor the whole rectangle of the cell. */
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

private:
    Q_DISABLE_COPY(KVItemLineEditDelegate)

    QRegExp m_regExp;
};

#endif
