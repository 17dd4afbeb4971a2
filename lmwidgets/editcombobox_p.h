#ifndef LMWIDGETS_EDITCOMBOBOX_P_H
#define LMWIDGETS_EDITCOMBOBOX_P_H

#include <QFont>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <memory>

QT_BEGIN_NAMESPACE
class QAbstractItemDelegate;
class QCompleter;
class QLineEdit;
class QListView;
class QPushButton;
class QStringListModel;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

class EditComboBox;

/** The parts of an EditComboBox and what they do to each other. */
class EditComboBoxPrivate : public QObject
{
    Q_OBJECT

public:
    EditComboBoxPrivate(EditComboBox *box, const QStringList &list);
    ~EditComboBoxPrivate() override;

    /** Returns the index of the first entry that equals @p text, or -1. */
    int indexOf(const QString &text);
    /** Appends @p texts to the entries and shows the list anew. */
    void append(const QStringList &texts);
    void clear();

    /** Opens the list of all entries below the box. */
    void showAll();
    /** Opens the list of the entries that contain the text; without a completer nothing. */
    void showMatches();
    /** The text as assistive technology sees it has changed. */
    void announceText(const QString &text);
    /** Hides the list, and lets go of those parts that may be in the middle of a signal. */
    void dismantle();

    QCompleter *completer = nullptr;
    EditComboBox *q = nullptr;
    QLineEdit *lineEdit = nullptr;
    QPushButton *dropDownButton = nullptr;
    QStringList items;
    int maxCount = 2147483647;
    int currentIndex = 0;

private:
    Q_DISABLE_COPY(EditComboBoxPrivate)
    class SignalScope;

    void createLineEdit();
    void createButton();
    void createCompleter();
    void activate(const QString &text);
    void finishEditing();
    void followText(const QString &text);
    bool restart(const QString &prefix);
    void open(QCompleter *list);
    void giveToCompleter(QStringListModel *model);
    void updateRowHeights();
    bool rowsAreAlike(QListView *list);

    // Where each text is found first, for the first m_indexed entries. Filled when it is asked for.
    QHash<QString, int> m_firstIndex;
    int m_indexed = 0;
    // The width of the widest of the first m_measured entries in the font of the list.
    QFont m_measuredFont;
    int m_measured = 0;
    qreal m_widest = 0;
    int m_signalsRunning = 0;
    QPointer<QAbstractItemDelegate> m_delegate;
    // Stands in for a model that the host put in the completer's place; has no parent.
    std::unique_ptr<QStringListModel> m_substitute;
};

} // namespace Widgets
} // namespace LM

#endif
