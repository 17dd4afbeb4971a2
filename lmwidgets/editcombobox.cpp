#include <lmwidgets/editcombobox.h>

#include "accessibleeditcombobox_p.h"
#include "editcombobox_p.h"
#include "owntext_p.h"
#include "themepictures_p.h"

#include <lmwidgets/talvostylemanager.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QCompleter>
#include <QEvent>
#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QIcon>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QListView>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStringListModel>
#include <QTimer>

#include <algorithm>
#include <array>

namespace LM {
namespace Widgets {

namespace {

constexpr char normalStyle[] =
    "QLineEdit{padding-left:8px;border-radius: 1px;border: 1px solid #989898;}";
constexpr char errorStyle[] =
    "QLineEdit{padding-left:8px;border-radius: 1px;border: 1px solid #FF4746;}";
// Not the same text as before the error: it has a blank at its end.
constexpr char restoredStyle[] =
    "QLineEdit{padding-left:8px;border-radius: 1px;border: 1px solid #989898;} ";
constexpr char buttonStyle[] = "QPushButton{border: none;};";
constexpr char popupStyle[] =
    "QAbstractItemView {padding-left:8px;background-color:rgb(43, 43, 43);"
    "border:1px solid #a3b4cb;font-size:14px;color: #F2F2F2;height: 32px;}"
    "QAbstractItemView::item:selected {background-color: white;color: black;}"
    "QScrollBar:vertical {background-color:rgb(54, 54, 54);border: none;width: 10px;margin: 0px;}"
    "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical {background: none;}"
    "QScrollBar::handle:vertical {background-color: #707070;min-height: 105px;border-radius: 3px;}"
    "QScrollBar::add-line:vertical {height: 0px;subcontrol-position: bottom;"
    "subcontrol-origin: margin;}"
    "QScrollBar::sub-line:vertical {height: 0px;subcontrol-position: top;"
    "subcontrol-origin: margin;}";

constexpr int errorMs = 2000;
constexpr int maxVisibleItems = 10;
constexpr QSize buttonSize(20, 20);

// From so many entries on it takes long to measure the rows of the list one by one.
constexpr int longList = 1000;
// More than what a row, the frame and the scroll bar take beside the text, in px.
constexpr int besideText = 40;
constexpr ushort firstPlain = 0x20;
constexpr ushort lastPlain = 0x7e;

/** The widths of the letters that every font has, which all give a row the same height. */
class PlainWidths
{
public:
    explicit PlainWidths(const QFont &font)
    {
        const QFontMetricsF metrics(font);
        for (ushort c = firstPlain; c <= lastPlain; ++c) {
            m_widths[c - firstPlain] = metrics.horizontalAdvance(QChar(c));
        }
    }

    /** Returns the width of @p text, or more than any box has if it has other letters or none. */
    qreal widthOf(const QString &text) const
    {
        qreal width = text.isEmpty() ? QWIDGETSIZE_MAX : 0;
        for (const QChar c : text) {
            const bool isPlain = c.unicode() >= firstPlain && c.unicode() <= lastPlain;
            width += isPlain ? m_widths[c.unicode() - firstPlain] : QWIDGETSIZE_MAX;
        }
        return width;
    }

private:
    std::array<qreal, lastPlain - firstPlain + 1> m_widths = {};
};

/** Whether anyone is told before @p model is reset, and may look at what it still holds. */
bool isResetWatched(const QAbstractItemModel *model)
{
    struct Access : QObject
    {
        using QObject::isSignalConnected;
    };
    static const QMetaMethod signal =
        QMetaMethod::fromSignal(&QAbstractItemModel::modelAboutToBeReset);
    return (model->*&Access::isSignalConnected)(signal);
}

} // namespace

/** Counts the handlers of signals of the parts that are running; they may outlive the box. */
class EditComboBoxPrivate::SignalScope
{
public:
    explicit SignalScope(EditComboBoxPrivate *parts) : m_parts(parts) { ++parts->m_signalsRunning; }

    ~SignalScope()
    {
        if (m_parts) {
            --m_parts->m_signalsRunning;
        }
    }

    /** Whether a slot of the host has destroyed the box. */
    bool isOver() const { return m_parts.isNull(); }

private:
    Q_DISABLE_COPY(SignalScope)

    QPointer<EditComboBoxPrivate> m_parts;
};

EditComboBoxPrivate::EditComboBoxPrivate(EditComboBox *box, const QStringList &list)
    : q(box), items(list)
{
    auto *layout = new QHBoxLayout(q);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    createLineEdit();
    createButton();
    createCompleter();
    connect(dropDownButton, &QPushButton::clicked, this, &EditComboBoxPrivate::showAll);
    layout->addWidget(lineEdit);
    layout->addWidget(dropDownButton);
    connect(lineEdit, &QLineEdit::editingFinished, this, &EditComboBoxPrivate::finishEditing);
    connect(lineEdit, &QLineEdit::textChanged, this, &EditComboBoxPrivate::followText);
}

EditComboBoxPrivate::~EditComboBoxPrivate() = default;

void EditComboBoxPrivate::createLineEdit()
{
    lineEdit = new QLineEdit(q);
    lineEdit->setStyleSheet(QLatin1String(normalStyle));
    lineEdit->installEventFilter(q);
}

void EditComboBoxPrivate::createButton()
{
    dropDownButton = new QPushButton(q);
    dropDownButton->setFocusPolicy(Qt::NoFocus);
    dropDownButton->setIcon(keptIcon(TalvoStyleManager::instance()->currentThemePath() +
                                     QLatin1String("qssimage/Dropdownbutton.png")));
    setOwnAccessibleName(dropDownButton, [] { return EditComboBox::tr("Show all entries"); });
    dropDownButton->setFixedSize(buttonSize);
    dropDownButton->setIconSize(buttonSize);
    dropDownButton->setStyleSheet(QLatin1String(buttonStyle));
}

void EditComboBoxPrivate::createCompleter()
{
    completer = new QCompleter(this);
    connect(completer, QOverload<const QString &>::of(&QCompleter::activated), this,
            &EditComboBoxPrivate::activate);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    completer->setModel(new QStringListModel(items, q));
    completer->setMaxVisibleItems(maxVisibleItems);
    lineEdit->setCompleter(completer);
    // The list belongs to the whole box until the line edit first gets the focus.
    completer->setWidget(q);
    completer->popup()->setStyleSheet(QLatin1String(popupStyle));
    m_delegate = completer->popup()->itemDelegate();
}

int EditComboBoxPrivate::indexOf(const QString &text)
{
    if (m_indexed < items.size()) {
        m_firstIndex.reserve(items.size());
        for (; m_indexed < items.size(); ++m_indexed) {
            const QString &item = items.at(m_indexed);
            if (!m_firstIndex.contains(item)) {
                m_firstIndex.insert(item, m_indexed);
            }
        }
    }
    return m_firstIndex.value(text, -1);
}

void EditComboBoxPrivate::append(const QStringList &texts)
{
    auto *model = qobject_cast<QStringListModel *>(completer->model());
    std::unique_ptr<QStringListModel> former;
    if (model) {
        if (!isResetWatched(model)) {
            // While the model shares the list, each entry would cost a copy of all of them.
            const QSignalBlocker blocker(model);
            model->setStringList(QStringList());
        }
    } else {
        // The host gave the completer a model of another kind; it goes back to the host.
        former = std::move(m_substitute);
        m_substitute = std::make_unique<QStringListModel>();
        model = m_substitute.get();
    }
    items += texts;
    model->setStringList(items);
    giveToCompleter(model);
}

/** Sets @p model as if it were a new one, which closes the list. */
void EditComboBoxPrivate::giveToCompleter(QStringListModel *model)
{
    QCompleter *target = lineEdit->completer();
    if (!target) {
        return;
    }
    const bool isOurs = target == completer;
    QAbstractItemView *popup = target->popup();
    if (isOurs && target->model() == model && popup && m_delegate &&
        popup->itemDelegate() == m_delegate) {
        // Up to Qt 5.15 setting the same model again does no more than this, but leaves one more
        // delegate in the popup each time: half a kilobyte and several microseconds per entry.
        popup->hide();
        return;
    }
    target->setModel(model);
    if (isOurs && popup) {
        m_delegate = popup->itemDelegate();
    }
}

/**
 * Lets the list measure one row in place of all, which takes long in a long list, but only where
 * that cannot be seen: no row is higher than another, and none is wider than the list.
 */
void EditComboBoxPrivate::updateRowHeights()
{
    auto *list = qobject_cast<QListView *>(completer->popup());
    if (!list) {
        return;
    }
    const bool alike = items.size() >= longList && rowsAreAlike(list);
    if (list->uniformItemSizes() != alike) {
        list->setUniformItemSizes(alike);
        // Lays out the rows again, which the call above leaves to others.
        list->setSpacing(list->spacing());
    }
}

bool EditComboBoxPrivate::rowsAreAlike(QListView *list)
{
    auto *model = qobject_cast<QStringListModel *>(completer->model());
    if (!model || model->rowCount() != items.size() || list->itemDelegate() != m_delegate) {
        return false;
    }
    list->ensurePolished();
    if (m_measuredFont != list->font()) {
        m_measuredFont = list->font();
        m_measured = 0;
        m_widest = 0;
    }
    if (m_measured < items.size()) {
        const PlainWidths widths(m_measuredFont);
        for (; m_measured < items.size(); ++m_measured) {
            m_widest = std::max(m_widest, widths.widthOf(items.at(m_measured)));
        }
    }
    // Kerning makes a text a little wider at most. Typing opens a list as wide as the line edit.
    return m_widest * 1.1 + besideText <= lineEdit->width();
}

void EditComboBoxPrivate::clear()
{
    items.clear();
    m_firstIndex.clear();
    m_indexed = 0;
    m_measured = 0;
    m_widest = 0;
    if (auto *model = qobject_cast<QStringListModel *>(completer->model())) {
        model->setStringList(QStringList());
    }
}

void EditComboBoxPrivate::activate(const QString &text)
{
    const int index = indexOf(text);
    if (index == currentIndex) {
        return;
    }
    const SignalScope scope(this);
    currentIndex = index;
    lineEdit->setText(items.value(index));
    if (!scope.isOver()) {
        Q_EMIT q->currentIndexChanged(index);
    }
}

void EditComboBoxPrivate::finishEditing()
{
    const QString text = lineEdit->text();
    const int index = indexOf(text);
    if (index == currentIndex) {
        return;
    }
    const SignalScope scope(this);
    currentIndex = index;
    if (index >= 0) {
        Q_EMIT q->currentTextChanged(text);
    }
    if (!scope.isOver()) {
        Q_EMIT q->currentIndexChanged(index);
    }
}

void EditComboBoxPrivate::followText(const QString &text)
{
    const SignalScope scope(this);
    // Typing opens the list next.
    updateRowHeights();
    const int index = indexOf(text);
    if (index != currentIndex) {
        currentIndex = index;
        Q_EMIT q->currentIndexChanged(index);
    }
    if (!scope.isOver()) {
        announceText(text);
    }
}

void EditComboBoxPrivate::announceText(const QString &text)
{
    QAccessibleValueChangeEvent event(q, text);
    QAccessible::updateAccessibility(&event);
}

void EditComboBoxPrivate::showAll()
{
    const SignalScope scope(this);
    updateRowHeights();
    if (!restart(QString())) {
        completer->setCompletionPrefix(QString());
    }
    completer->setCurrentRow(currentIndex);
    open(completer);
}

void EditComboBoxPrivate::showMatches()
{
    if (QCompleter *list = lineEdit->completer()) {
        const SignalScope scope(this);
        updateRowHeights();
        const QString text = lineEdit->text();
        if (list != completer || !restart(text)) {
            list->setCompletionPrefix(text);
        }
        open(list);
    }
}

/**
 * Does what setting the completion prefix to @p prefix does, if it has been set before, without
 * laying out all rows again: what matches is the same. Returns whether that was possible.
 */
bool EditComboBoxPrivate::restart(const QString &prefix)
{
    QAbstractItemView *popup = completer->popup();
    if (!popup || completer->completionPrefix() != prefix || popup->isVisible()) {
        return false;
    }
    completer->setCurrentRow(0);
    popup->selectionModel()->reset();
    return true;
}

void EditComboBoxPrivate::open(QCompleter *list)
{
    if (!list->widget()) {
        // The host took the completer away from the line edit, which leaves it without a place.
        list->setWidget(q);
    }
    QRect area = q->rect();
    const QWidget *place = list->widget();
    if (place->isRightToLeft()) {
        // The completer puts the left edge of the list below the right edge of this rectangle then.
        area.moveRight(place->mapFromGlobal(q->mapToGlobal(QPoint(0, 0))).x());
    }
    list->complete(area);
    // A completer that the host made complete inline has no popup.
    QAbstractItemView *popup = list->popup();
    if (popup && !popup->isVisible()) {
        // There is nothing to show, and the completer leaves the popup where it was last.
        popup->setGeometry(QRect(q->mapToGlobal(QPoint(0, q->height())), q->size()));
        popup->show();
    }
}

void EditComboBoxPrivate::dismantle()
{
    lineEdit->removeEventFilter(q);
    disconnect(lineEdit, nullptr, this, nullptr);
    disconnect(completer, nullptr, this, nullptr);
    if (QAbstractItemView *popup = completer->popup()) {
        popup->hide();
    }
    if (lineEdit->completer() == completer) {
        lineEdit->setCompleter(nullptr);
    }
    completer->setWidget(nullptr);
    if (m_signalsRunning == 0) {
        return;
    }
    // A slot of the host destroys the box while one of these is still busy with the event that led
    // to the signal, and Qt's classes go on to touch themselves afterwards.
    if (auto *model = completer->model(); model && model->QObject::parent() == q) {
        model->setParent(completer);
    }
    completer->setParent(nullptr);
    completer->deleteLater();
    for (QWidget *widget :
         {static_cast<QWidget *>(lineEdit), static_cast<QWidget *>(dropDownButton)}) {
        widget->hide();
        widget->setParent(nullptr);
        widget->deleteLater();
    }
}

EditComboBox::EditComboBox(const QStringList &items, QWidget *parent) : QWidget(parent)
{
    AccessibleEditComboBox::registerOnce();
    d = new EditComboBoxPrivate(this, items);
    // A label's mnemonic and the host's setFocus() mean the place where the text goes.
    setFocusProxy(d->lineEdit);
}

EditComboBox::EditComboBox(QWidget *parent) : EditComboBox(QStringList(), parent) {}

EditComboBox::~EditComboBox()
{
    d->dismantle();
    delete d;
    d = nullptr;
}

void EditComboBox::addItem(const QString &text)
{
    if (d->items.size() < d->maxCount) {
        d->append({text});
    }
}

void EditComboBox::addItems(const QStringList &texts)
{
    if (qint64(d->items.size()) + texts.size() <= d->maxCount) {
        d->append(texts);
    }
}

void EditComboBox::insertItem(int index, const QString &text)
{
    // Hosts count on the order in which they insert, whatever the index.
    Q_UNUSED(index)
    addItem(text);
}

void EditComboBox::insertItems(int index, const QStringList &texts)
{
    Q_UNUSED(index)
    addItems(texts);
}

void EditComboBox::removeItem(int index)
{
    // Hosts keep the indices of entries and count on each staying where it is.
    Q_UNUSED(index)
}

int EditComboBox::count() const
{
    return d->items.size();
}

int EditComboBox::currentIndex() const
{
    return d->currentIndex;
}

QString EditComboBox::currentText()
{
    return d->items.value(d->currentIndex);
}

void EditComboBox::displayErrorStates()
{
    d->lineEdit->setStyleSheet(QLatin1String(errorStyle));
    QTimer::singleShot(errorMs, this,
                       [this] { d->lineEdit->setStyleSheet(QLatin1String(restoredStyle)); });
}

bool EditComboBox::isEditable() const
{
    // The pair is the wrong way round for its name, and hosts are written for that.
    return d->lineEdit->isReadOnly();
}

void EditComboBox::setEditable(bool b)
{
    d->lineEdit->setReadOnly(b);
}

int EditComboBox::maxCount() const
{
    return d->maxCount;
}

void EditComboBox::setMaxCount(int max)
{
    d->maxCount = max;
}

void EditComboBox::setPlaceHolderText(const QString &text)
{
    d->lineEdit->setPlaceholderText(text);
}

void EditComboBox::clear()
{
    d->clear();
}

void EditComboBox::clearEditText()
{
    const QPointer<EditComboBox> guard(this);
    d->lineEdit->clear();
    if (guard) {
        Q_EMIT currentTextChanged(QString());
    }
}

void EditComboBox::setEditText(const QString &text)
{
    const QPointer<EditComboBox> guard(this);
    // The text may be that of the line edit itself, or of an entry that a slot clears.
    const QString copy = text;
    d->lineEdit->setText(copy);
    if (!guard) {
        return;
    }
    const int index = d->indexOf(copy);
    d->currentIndex = index;
    Q_EMIT currentIndexChanged(index);
    if (guard && index >= 0) {
        Q_EMIT currentIndexChanged(copy);
    }
    if (guard) {
        Q_EMIT currentTextChanged(copy);
    }
}

void EditComboBox::setCurrentIndex(int index)
{
    const QPointer<EditComboBox> guard(this);
    const bool inList = index >= 0 && index < d->items.size();
    const QString text = inList ? d->items.at(index) : QString();
    if (!inList) {
        d->currentIndex = -1;
    }
    d->lineEdit->setText(text);
    if (!guard) {
        return;
    }
    if (inList) {
        d->currentIndex = index;
    }
    d->completer->setCurrentRow(index);
}

void EditComboBox::setCurrentText(const QString &text)
{
    setCurrentIndex(d->indexOf(text));
}

bool EditComboBox::eventFilter(QObject *watched, QEvent *event)
{
    // Parts are destroyed when there is no private part any more.
    if (d && watched == d->lineEdit) {
        if (event->type() == QEvent::MouseButtonPress && isEnabled()) {
            d->showMatches();
            return true;
        }
        if (event->type() == QEvent::FocusIn) {
            AccessibleEditComboBox::nameLineEdit(this);
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace Widgets
} // namespace LM
