#ifndef LMWIDGETS_GROUPBOXCOLLAPSEBUTTON_H
#define LMWIDGETS_GROUPBOXCOLLAPSEBUTTON_H

#include <lmwidgets/lmwidgets_global.h>

#include <QToolButton>

/**
 * @class GroupBoxCollapseButton groupboxcollapsebutton.h <lmwidgets/groupboxcollapsebutton.h>
 *
 * @brief The arrow in the title of a CollapsibleGroupBoxBasic.
 *
 * @image html groupboxcollapsebutton.png
 *
 * A tool button that remembers which modifier keys were held when the mouse was released on it: the
 * box reads them when clicked() arrives, and clears them.
 */
class LMWIDGETS_EXPORT GroupBoxCollapseButton : public QToolButton
{
    Q_OBJECT

public:
    /** Constructs a button without text and icon; both flags are false. */
    explicit GroupBoxCollapseButton(QWidget *parent = nullptr);
    ~GroupBoxCollapseButton() override;

    /** Returns whether Ctrl or Alt was held at the last release of a mouse button. */
    bool altDown() const;
    /** Sets what altDown() returns until the next release. */
    void setAltDown(bool altDown);

    /** Returns whether Shift was held at the last release of a mouse button. */
    bool shiftDown() const;
    /** Sets what shiftDown() returns until the next release. */
    void setShiftDown(bool shiftDown);

protected:
    /** Remembers the modifier keys, before clicked() is emitted. */
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(GroupBoxCollapseButton)

    bool m_altDown = false;
    bool m_shiftDown = false;
};

#endif
