#include <lmwidgets/collapsiblegroupboxbasic.h>

#include <lmwidgets/groupboxcollapsebutton.h>
#include <lmwidgets/talvostylemanager.h>

#include "layoutpause_p.h"
#include "owntext_p.h"

#include <QApplication>
#include <QEvent>
#include <QLatin1String>
#include <QLayout>
#include <QMouseEvent>
#include <QPixmap>
#include <QScrollArea>
#include <QShowEvent>
#include <QStyle>
#include <QStyleOptionGroupBox>
#include <QVector>

#include <map>
#include <memory>

using LM::Widgets::LayoutPause;
using LM::Widgets::TalvoStyleManager;

namespace {

constexpr int ButtonSize = 16;       // px, the arrow and its icon
constexpr int FoldedRoom = 6;        // px below the title of a folded box
constexpr int TitleMarginLeft = 20;  // px, room for the arrow
constexpr int TitleMarginRight = 5;  // px
constexpr int TopTweak = 1;          // px
constexpr int MacTopTweak = 9;       // px
constexpr int OxygenFrameOffset = 6; // px from a frame that begins at the edge
constexpr int ScrollMargin = 50;     // px around the box in the scroll area
constexpr int TitleScrollMargin = 5; // px above and below the arrow in the scroll area
constexpr char HiddenByFolding[] = "CollGrpBxHide";

/** A box whose parent stands directly in this window searches its group there, not further out. */
const QLatin1String HostMainWindow("QgisApp");

/** What a folded box has in its style sheet: the frame must not show below the title. */
const QString &foldedStyle()
{
    static const QString style = QStringLiteral(" CollapsibleGroupBoxBasic { border: none; }");
    return style;
}

QIcon themeIcon(const QString &name)
{
    return QIcon(QPixmap(TalvoStyleManager::instance()->currentThemePath() +
                         QStringLiteral("qssimage/") + name));
}

bool hasShift(const QMouseEvent *event)
{
    return event->modifiers() & Qt::ShiftModifier;
}

bool hasAltOrControl(const QMouseEvent *event)
{
    return event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
}

bool isMacStyle()
{
    return QApplication::style()->objectName().contains(QLatin1String("macintosh"));
}

bool isOxygenStyle()
{
    return QApplication::style()->objectName().compare(QLatin1String("oxygen"),
                                                       Qt::CaseInsensitive) == 0;
}

/** The style sheet of the arrow, which is called @p name: nothing but a frame for the focus. */
QString buttonStyle(const QString &name)
{
    return QStringLiteral("CollapsibleGroupBoxBasic > QToolButton#%1, "
                          "CollapsibleGroupBox > QToolButton#%1 {"
                          "  background-color: rgba(255, 255, 255, 0); border: none;"
                          "} CollapsibleGroupBoxBasic > QToolButton#%1:focus, "
                          "CollapsibleGroupBox > QToolButton#%1:focus {"
                          "  border: 1px solid palette(highlight); }")
        .arg(name);
}

/** Whether @p widget is somewhere in the panel of @p area, which a host may have taken out of it.
 */
bool isIn(const QScrollArea *area, const QWidget *widget)
{
    return widget && area->widget() && area->widget()->isAncestorOf(widget);
}

void activateLayout(const QWidget *widget)
{
    if (widget && widget->layout()) {
        widget->layout()->activate();
    }
}

/** Stops the painting of a widget for a while, which a host may have stopped itself. */
class UpdateBlocker
{
public:
    explicit UpdateBlocker(QWidget *widget)
        : m_widget(widget), m_wasStopped(widget->testAttribute(Qt::WA_ForceUpdatesDisabled))
    {
        widget->setUpdatesEnabled(false);
    }
    ~UpdateBlocker()
    {
        if (m_widget && !m_wasStopped) {
            m_widget->setUpdatesEnabled(true);
        }
    }

private:
    Q_DISABLE_COPY(UpdateBlocker)

    QPointer<QWidget> m_widget;
    bool m_wasStopped;
};

} // namespace

CollapsibleGroupBoxBasic::CollapsibleGroupBoxBasic(QWidget *parent) : QGroupBox(parent)
{
    init();
}

CollapsibleGroupBoxBasic::CollapsibleGroupBoxBasic(const QString &title, QWidget *parent)
    : QGroupBox(title, parent)
{
    init();
}

CollapsibleGroupBoxBasic::~CollapsibleGroupBoxBasic() = default;

void CollapsibleGroupBoxBasic::init()
{
    m_collapsed = false;
    m_initialFlat = false;
    m_initialFlatChecked = false;
    m_scrollOnExpand = true;
    m_shown = false;
    m_parentScrollArea = nullptr;
    m_syncParent = nullptr;
    m_syncGroup.clear();
    m_altDown = false;
    m_shiftDown = false;
    m_titleClicked = false;

    m_collapseIcon = themeIcon(QStringLiteral("dockwidgeticontop.png"));
    m_expandIcon = themeIcon(QStringLiteral("dockwidgeticonbuttom.png"));

    m_collapseButton = new GroupBoxCollapseButton(this);
    m_collapseButton->setObjectName(QStringLiteral("collapseButton"));
    m_collapseButton->setAutoRaise(true);
    m_collapseButton->setFixedSize(ButtonSize, ButtonSize);
    m_collapseButton->setIconSize(QSize(ButtonSize, ButtonSize));
    m_collapseButton->setIcon(m_collapseIcon);

    setFocusPolicy(Qt::StrongFocus);

    connect(m_collapseButton, &QAbstractButton::clicked, this,
            &CollapsibleGroupBoxBasic::toggleCollapsed);
    connect(this, &QGroupBox::toggled, this, &CollapsibleGroupBoxBasic::checkToggled);
    connect(this, &QGroupBox::clicked, this, &CollapsibleGroupBoxBasic::checkClicked);
}

bool CollapsibleGroupBoxBasic::isCollapsed() const
{
    return m_collapsed;
}

void CollapsibleGroupBoxBasic::setCollapsed(bool collapse)
{
    changeState(collapse, true);
}

void CollapsibleGroupBoxBasic::changeState(bool collapse, bool mayScroll)
{
    const bool wasCollapsed = m_collapsed;
    m_collapsed = collapse;
    if (!isVisible()) {
        return;
    }
    // Hiding children and processing events may delete the box or change its state again.
    const QPointer<CollapsibleGroupBoxBasic> guard(this);
    applyState(collapse);
    if (guard && mayScroll && scrollsWhenOpen()) {
        scrollIntoView({guard});
    }
    if (guard && wasCollapsed != collapse && m_collapsed == collapse) {
        Q_EMIT collapsedStateChanged(collapse);
    }
}

void CollapsibleGroupBoxBasic::applyState(bool collapse)
{
    const LayoutPause pause(parentWidget());
    const LayoutPause ownPause(this);
    if (!m_initialFlat) {
        setFlat(collapse);
    }
    const QPointer<CollapsibleGroupBoxBasic> guard(this);
    collapseExpandFixes();
    if (!guard || m_collapsed != collapse) {
        return;
    }
    setMaximumHeight(collapse ? titleRect().bottom() + FoldedRoom : QWIDGETSIZE_MAX);
    if (m_collapseButton) {
        m_collapseButton->setIcon(collapse ? m_expandIcon : m_collapseIcon);
    }
}

/** Whether the box is open, was shown before, and shall and can be scrolled into view. */
bool CollapsibleGroupBoxBasic::scrollsWhenOpen() const
{
    return !m_collapsed && m_shown && m_scrollOnExpand && m_parentScrollArea;
}

/** Scrolls to one box after the other. Host code runs in between, in events and at scroll bars. */
void CollapsibleGroupBoxBasic::scrollIntoView(
    const QVector<QPointer<CollapsibleGroupBoxBasic>> &boxes)
{
    // One round of events is enough for the scroll area when the layouts within it are up to date.
    for (const QPointer<CollapsibleGroupBoxBasic> &box : boxes) {
        activateLayout(box);
    }
    for (const QPointer<CollapsibleGroupBoxBasic> &box : boxes) {
        activateLayout(box ? box->parentWidget() : nullptr);
    }
    QCoreApplication::processEvents();
    std::map<QScrollArea *, std::unique_ptr<UpdateBlocker>> blockers;
    for (const QPointer<CollapsibleGroupBoxBasic> &box : boxes) {
        const QPointer<QScrollArea> area = box ? box->m_parentScrollArea : nullptr;
        if (!area || !isIn(area, box)) {
            continue;
        }
        auto &blocker = blockers[area];
        if (!blocker) {
            blocker = std::make_unique<UpdateBlocker>(area);
        }
        area->ensureWidgetVisible(box, ScrollMargin, ScrollMargin);
        // The title stays in view when the box is higher than the viewport.
        if (box && area && isIn(area, box->m_collapseButton)) {
            area->ensureWidgetVisible(box->m_collapseButton, 0, TitleScrollMargin);
        }
    }
}

bool CollapsibleGroupBoxBasic::scrollOnExpand()
{
    return m_scrollOnExpand;
}

void CollapsibleGroupBoxBasic::setScrollOnExpand(bool scroll)
{
    m_scrollOnExpand = scroll;
}

QString CollapsibleGroupBoxBasic::syncGroup()
{
    return m_syncGroup;
}

void CollapsibleGroupBoxBasic::setSyncGroup(const QString &grp)
{
    m_syncGroup = grp;
    if (!m_collapseButton) {
        return;
    }
    const bool isGrouped = !grp.isEmpty();
    LM::Widgets::setOwnToolTip(m_collapseButton.data(), [isGrouped] {
        return isGrouped ? tr("Ctrl (or Alt)-click to toggle all") + QLatin1Char('\n') +
                               tr("Shift-click to expand, then collapse others")
                         : QString();
    });
}

void CollapsibleGroupBoxBasic::checkToggled(bool ckd)
{
    Q_UNUSED(ckd)
    // QGroupBox disables all children of an unchecked box.
    if (m_collapseButton) {
        m_collapseButton->setEnabled(true);
    }
}

void CollapsibleGroupBoxBasic::checkClicked(bool ckd)
{
    if (ckd == m_collapsed) {
        setCollapsed(!ckd);
    }
}

void CollapsibleGroupBoxBasic::toggleCollapsed()
{
    const bool isButtonClicked = m_collapseButton && sender() == m_collapseButton;
    if (m_collapseButton) {
        m_altDown = m_altDown || m_collapseButton->altDown();
        m_shiftDown = m_shiftDown || m_collapseButton->shiftDown();
    }

    const QPointer<CollapsibleGroupBoxBasic> guard(this);
    const bool isPlain = (!isButtonClicked && !m_titleClicked) || (!m_altDown && !m_shiftDown) ||
                         m_syncGroup.isEmpty();
    if (!isPlain) {
        findSyncParent();
    }
    if (isPlain || !m_syncParent) {
        toggleAlone();
    } else {
        toggleGroup();
    }
    if (guard) {
        clearModifiers();
    }
}

void CollapsibleGroupBoxBasic::toggleAlone()
{
    // Shift never folds, also on a box without a group.
    setCollapsed(m_shiftDown ? false : !m_collapsed);
}

void CollapsibleGroupBoxBasic::findSyncParent()
{
    m_syncParent = parentWidget();
    QWidget *grandparent = m_syncParent ? m_syncParent->parentWidget() : nullptr;
    if (grandparent && grandparent->objectName() != HostMainWindow) {
        m_syncParent = grandparent;
    }
}

void CollapsibleGroupBoxBasic::toggleGroup()
{
    const bool wasCollapsed = m_collapsed;
    const bool isShift = m_shiftDown;
    const bool opensAll = wasCollapsed && !isShift;
    const QString group = m_syncGroup;
    const QPointer<CollapsibleGroupBoxBasic> clicked(this);

    // Every box may tell a listener that deletes others, this one included.
    QVector<QPointer<CollapsibleGroupBoxBasic>> boxes;
    const auto found = m_syncParent->findChildren<CollapsibleGroupBoxBasic *>();
    for (CollapsibleGroupBoxBasic *box : found) {
        boxes.append(box);
    }
    QVector<QPointer<CollapsibleGroupBoxBasic>> opened;
    for (const QPointer<CollapsibleGroupBoxBasic> &box : qAsConst(boxes)) {
        if (!box || !box->isEnabled() || box->syncGroup() != group) {
            continue;
        }
        box->changeState(isShift ? box != clicked : !wasCollapsed, !opensAll);
        if (box && opensAll && box->isVisible() && box->scrollsWhenOpen()) {
            opened.append(box);
        }
    }
    // Laying out a long panel for each of its boxes takes the square of the time of doing it once.
    if (!opened.isEmpty()) {
        scrollIntoView(opened);
    }
}

void CollapsibleGroupBoxBasic::clearModifiers()
{
    if (m_collapseButton) {
        m_collapseButton->setAltDown(false);
        m_collapseButton->setShiftDown(false);
    }
    m_altDown = false;
    m_shiftDown = false;
}

void CollapsibleGroupBoxBasic::setStyleSheet(const QString &style)
{
    QGroupBox::setStyleSheet(style);
}

bool CollapsibleGroupBoxBasic::isTitleAt(const QPoint &position)
{
    return titleRect().contains(position);
}

void CollapsibleGroupBoxBasic::mousePressEvent(QMouseEvent *event)
{
    const bool hasModifier = hasShift(event) || hasAltOrControl(event);
    if (hasModifier && isCheckable() && isTitleAt(event->pos())) {
        event->ignore();
        return;
    }
    QGroupBox::mousePressEvent(event);
}

void CollapsibleGroupBoxBasic::mouseReleaseEvent(QMouseEvent *event)
{
    m_altDown = hasAltOrControl(event);
    m_shiftDown = hasShift(event);
    m_titleClicked = isTitleAt(event->pos());
    const bool isOnTitle = m_titleClicked && event->button() == Qt::LeftButton;
    if (isOnTitle && (m_altDown || m_shiftDown || !isCheckable())) {
        toggleCollapsed();
        return;
    }
    // The keys count for this one click, not for a later one on the arrow.
    m_altDown = false;
    m_shiftDown = false;
    QGroupBox::mouseReleaseEvent(event);
}

void CollapsibleGroupBoxBasic::changeEvent(QEvent *event)
{
    QGroupBox::changeEvent(event);
    // QGroupBox disables the children of an unchecked box that is enabled again.
    if (event->type() == QEvent::EnabledChange && isEnabled() && m_collapseButton) {
        m_collapseButton->setEnabled(true);
    }
}

void CollapsibleGroupBoxBasic::showEvent(QShowEvent *event)
{
    event->accept();
    if (m_shown || m_isShowing) {
        return;
    }
    m_isShowing = true;
    const QPointer<CollapsibleGroupBoxBasic> guard(this);
    showFirst();
    if (guard) {
        m_shown = true;
        m_isShowing = false;
    }
}

void CollapsibleGroupBoxBasic::noteFlatness()
{
    if (!m_initialFlatChecked) {
        m_initialFlat = isFlat();
        m_initialFlatChecked = true;
    }
}

void CollapsibleGroupBoxBasic::showFirst()
{
    noteFlatness();
    m_parentScrollArea = findScrollArea();
    updateStyle();

    // Listeners learn the state that the box begins with; a fold that was asked for while the box
    // was hidden happens now.
    const QPointer<CollapsibleGroupBoxBasic> guard(this);
    if (m_collapsed) {
        m_collapsed = false;
        setCollapsed(true);
    } else {
        Q_EMIT collapsedStateChanged(false);
    }
    if (guard && m_collapseButton) {
        m_collapseButton->setEnabled(isEnabled());
    }
}

/** Looks where the box of a panel in a scroll area is: its parent lies on the viewport. */
QScrollArea *CollapsibleGroupBoxBasic::findScrollArea() const
{
    if (!parent() || !parent()->parent()) {
        return nullptr;
    }
    return qobject_cast<QScrollArea *>(parent()->parent()->parent());
}

QRect CollapsibleGroupBoxBasic::titleRect()
{
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, this);
}

void CollapsibleGroupBoxBasic::collapseExpandFixes()
{
    const bool collapse = m_collapsed;
    const QPointer<CollapsibleGroupBoxBasic> guard(this);
    const QString style = styleSheet();
    if (collapse && !style.contains(foldedStyle())) {
        setStyleSheet(style + foldedStyle());
    } else if (!collapse && style.contains(foldedStyle())) {
        setStyleSheet(QString(style).remove(foldedStyle()));
    }
    if (!guard) {
        return;
    }

    // A child that is hidden or shown may tell a listener that deletes others. Windows stay as they
    // are: they do not lie over the title, and a closed dialog must not pop up.
    QVector<QPointer<QWidget>> widgets;
    for (QObject *child : children()) {
        auto *widget = qobject_cast<QWidget *>(child);
        if (widget && widget != m_collapseButton && !widget->isWindow()) {
            widgets.append(widget);
        }
    }
    for (const QPointer<QWidget> &widget : widgets) {
        if (!widget) {
            continue;
        }
        if (collapse) {
            widget->setProperty(HiddenByFolding, true);
        }
        if (widget && (collapse || widget->property(HiddenByFolding).toBool())) {
            widget->setVisible(!collapse);
        }
    }
}

void CollapsibleGroupBoxBasic::updateStyle()
{
    if (!m_collapseButton) {
        return;
    }
    const UpdateBlocker blocker(this);
    const TitlePlace place = titlePlace();
    setStyleSheet(styleSheet() + boxStyle(place));
    m_collapseButton->setStyleSheet(buttonStyle(m_collapseButton->objectName()));
    if (place.left != 0 || place.buttonTop != 0) {
        m_collapseButton->move(place.left, place.buttonTop);
    }
}

/** Centres the title and the arrow on each other. Integer division rounds towards zero. */
CollapsibleGroupBoxBasic::TitlePlace CollapsibleGroupBoxBasic::titlePlace() const
{
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    const auto rectOf = [this, &option](QStyle::SubControl control) {
        return style()->subControlRect(QStyle::CC_GroupBox, &option, control, this);
    };
    const QRect frame = rectOf(QStyle::SC_GroupBoxFrame);
    const int titleHeight = rectOf(QStyle::SC_GroupBoxLabel).height();
    const int buttonHeight = m_collapseButton->height();

    TitlePlace place;
    place.isMac = isMacStyle();
    place.top = place.buttonTop = place.isMac ? MacTopTweak : TopTweak;
    place.marginTop = place.top + frame.top();
    if (buttonHeight > titleHeight) {
        place.top += (buttonHeight - titleHeight) / 2;
    } else if (buttonHeight < titleHeight) {
        place.buttonTop += (titleHeight - buttonHeight) / 2;
    }
    if (isOxygenStyle()) {
        // Its frame may begin at the very edge of the widget.
        const QRect checkBox = rectOf(QStyle::SC_GroupBoxCheckBox);
        if (frame.left() <= 0) {
            place.left = frame.left() + OxygenFrameOffset;
        }
        if (frame.top() <= 0 && isCheckable()) {
            place.top = checkBox.height() / 2 - buttonHeight / 2 + checkBox.top();
            place.buttonTop = place.top + 1;
        } else if (frame.top() <= 0) {
            place.top = place.buttonTop = frame.top() + OxygenFrameOffset;
        }
    }
    return place;
}

QString CollapsibleGroupBoxBasic::boxStyle(const TitlePlace &place)
{
    QString style;
    if (place.isMac) {
        style += QStringLiteral("CollapsibleGroupBoxBasic, CollapsibleGroupBox {");
        style += QStringLiteral("  margin-top: %1px;").arg(place.marginTop);
        style += QStringLiteral("}");
    }
    style += QStringLiteral("CollapsibleGroupBoxBasic::title, CollapsibleGroupBox::title {");
    style += QStringLiteral("  subcontrol-origin: margin;");
    style += QStringLiteral("  subcontrol-position: top left;");
    style += QStringLiteral("  margin-left: %1px;").arg(TitleMarginLeft);
    style += QStringLiteral("  margin-right: %1px;").arg(TitleMarginRight);
    style += QStringLiteral("  left: %1px;").arg(place.left);
    style += QStringLiteral("  top: %1px;").arg(place.top);
    if (place.isMac) {
        style += QStringLiteral("  background-color: rgba(0,0,0,0)");
    }
    style += QStringLiteral("}");
    return style;
}
