#ifndef LMWIDGETS_COLLAPSIBLEGROUPBOXBASIC_H
#define LMWIDGETS_COLLAPSIBLEGROUPBOXBASIC_H

#include <lmwidgets/lmwidgets_global.h>

#include <QGroupBox>
#include <QIcon>
#include <QPointer>
#include <QString>
#include <QVector>

QT_BEGIN_NAMESPACE
class QScrollArea;
QT_END_NAMESPACE

class GroupBoxCollapseButton;

/**
 * @class CollapsibleGroupBoxBasic collapsiblegroupboxbasic.h <lmwidgets/collapsiblegroupboxbasic.h>
 *
 * @brief A group box that folds down to its title.
 *
 * @image html collapsiblegroupboxbasic.png
 *
 * A click on the title, or on the arrow in it, folds the box and opens it again. It is meant for
 * long property panels in scroll areas: a box that is opened scrolls itself into view. On a
 * checkable box a click on the title goes to the check box, and checking opens the box while
 * unchecking folds it.
 *
 * Boxes with the same syncGroup belong together. A click with Shift on the title or the arrow of
 * one opens it and folds all others of the group; with Ctrl or Alt it folds or opens the whole
 * group at once. The group is searched below the parent of the box's parent, disabled boxes stay as
 * they are.
 *
 * @code
 * auto *box = new CollapsibleGroupBoxBasic(tr("Colour"), panel);
 * box->setSyncGroup(QStringLiteral("properties"));
 * box->setCollapsed(true);
 * connect(box, &CollapsibleGroupBoxBasic::collapsedStateChanged, this, &Panel::remember);
 * @endcode
 *
 * Folding hides the children of the box, windows excepted, and marks them with the property
 * "CollGrpBxHide"; opening shows every child that was marked once. A child that the host hides
 * before the box is folded is therefore shown when the box is opened: hide it again from
 * collapsedStateChanged(), or place it in a container widget.
 *
 * The first show gives the box its look: the style sheet of the box, as it is then, is continued
 * with the placing of the title. A host that replaces the style sheet later also replaces that.
 * Changes of the application's style do not move the arrow afterwards.
 */
class LMWIDGETS_EXPORT CollapsibleGroupBoxBasic : public QGroupBox
{
    Q_OBJECT

    /** Whether the box is folded; false at first. */
    Q_PROPERTY(bool collapsed READ isCollapsed WRITE setCollapsed)
    /** The name of the group that the box belongs to; empty, for no group, at first. */
    Q_PROPERTY(QString syncGroup READ syncGroup WRITE setSyncGroup)
    /** Whether the box scrolls itself into view when it is opened; true at first. */
    Q_PROPERTY(bool scrollOnExpand READ scrollOnExpand WRITE setScrollOnExpand)

public:
    /** Constructs an open box without title, with the arrow images of the theme that is current
     * now. */
    explicit CollapsibleGroupBoxBasic(QWidget *parent = nullptr);
    /** Constructs an open box with the title @p title. */
    explicit CollapsibleGroupBoxBasic(const QString &title, QWidget *parent = nullptr);
    ~CollapsibleGroupBoxBasic() override;

    /** Returns whether the box is folded, or will be when it is shown first. */
    bool isCollapsed() const;
    /**
     * Folds or opens the box. While it is not visible only the state is stored, and nothing is
     * emitted; the first show applies it. Later shows do not: set the state of a box that was shown
     * before while it is visible.
     *
     * A folded box is flat and as high as its title and 6 px more. A box that is opened within a
     * scroll area processes pending events, in order to be laid out, and is scrolled into view;
     * listeners are told afterwards.
     */
    void setCollapsed(bool collapse);

    /** Returns whether the box scrolls itself into view when it is opened. */
    bool scrollOnExpand();
    /** Sets whether it does, from the next opening on. */
    void setScrollOnExpand(bool scroll);

    /** Returns the name of the group that the box belongs to. */
    QString syncGroup();
    /**
     * Sets the group, by a name that is compared letter for letter. The arrow's tool tip explains
     * the clicks with Shift, Ctrl and Alt; for an empty name, which means no group, it has none.
     */
    void setSyncGroup(const QString &grp);

Q_SIGNALS:
    /**
     * The box was folded, or opened. Also emitted at the first show, with the state that the box
     * begins with. Not emitted for a state that the box has already or that is set while it is not
     * visible.
     *
     * A slot may delete the box, except during the first show: Qt is then in the middle of showing
     * it, so use deleteLater() there. When the user opens a whole group, every box tells of itself
     * as its turn comes, and the panel is scrolled after the last one.
     */
    void collapsedStateChanged(bool collapsed);

public Q_SLOTS:
    /** Keeps the arrow usable when the box is checked or unchecked, whichever @p ckd says. */
    void checkToggled(bool ckd);
    /** Opens the box when @p ckd is true and folds it when not, as the user's click does. */
    void checkClicked(bool ckd);
    /**
     * Folds an open box and opens a folded one, or the group of the box where the last click on
     * the title or the arrow had a modifier key.
     */
    void toggleCollapsed();
    /** Sets the style sheet of the box, as QWidget::setStyleSheet() does. */
    void setStyleSheet(const QString &style);

protected:
    /** Sets all fields to their first values and makes the arrow. Called by the constructors. */
    void init();

    /** Keeps a click with a modifier key on the title away from the check box. */
    void mousePressEvent(QMouseEvent *event) override;
    /** Folds or opens the box when the left button is released on the title. */
    void mouseReleaseEvent(QMouseEvent *event) override;
    /** Keeps the arrow usable when the box is enabled again. */
    void changeEvent(QEvent *event) override;
    /** Gives the box its look and its state when it is shown first. */
    void showEvent(QShowEvent *event) override;

    /** Returns where the title is, in the coordinates of the box. */
    QRect titleRect();
    /** Forgets which modifier keys were held at the last click. */
    void clearModifiers();
    /** Hides the children and the frame of a folded box, or shows them again. */
    void collapseExpandFixes();
    /** Continues the style sheet and places the arrow; called once, by the first show. */
    void updateStyle();

private:
    Q_DISABLE_COPY(CollapsibleGroupBoxBasic)
    friend class CollapsibleGroupBox;

    // Where title and arrow stand, in px from the top left corner of the box.
    struct TitlePlace
    {
        int left = 0;
        int top = 0;
        int buttonTop = 0;
        int marginTop = 0; // above the frame, with the Mac style only
        bool isMac = false;
    };

    bool isTitleAt(const QPoint &position);
    void noteFlatness();
    QScrollArea *findScrollArea() const;
    void showFirst();
    void changeState(bool collapse, bool mayScroll);
    void applyState(bool collapse);
    bool scrollsWhenOpen() const;
    static void scrollIntoView(const QVector<QPointer<CollapsibleGroupBoxBasic>> &boxes);
    void toggleAlone();
    void findSyncParent();
    void toggleGroup();
    TitlePlace titlePlace() const;
    static QString boxStyle(const TitlePlace &place);

    bool m_collapsed = false;
    bool m_initialFlat = false;
    bool m_initialFlatChecked = false;
    bool m_scrollOnExpand = true;
    bool m_shown = false;
    QPointer<QScrollArea> m_parentScrollArea;
    // Goes with the other children when a host clears the box.
    QPointer<GroupBoxCollapseButton> m_collapseButton;
    QPointer<QWidget> m_syncParent;
    QString m_syncGroup;
    bool m_altDown = false;
    bool m_shiftDown = false;
    bool m_titleClicked = false;
    QIcon m_collapseIcon;
    QIcon m_expandIcon;
    bool m_isShowing = false; // a listener may hide and show the box again during the first show
};

#endif
