#ifndef LMWIDGETS_COLLAPSIBLEGROUPBOX_H
#define LMWIDGETS_COLLAPSIBLEGROUPBOX_H

#include <lmwidgets/collapsiblegroupboxbasic.h>

#include <QString>

/**
 * @class CollapsibleGroupBox collapsiblegroupbox.h <lmwidgets/collapsiblegroupbox.h>
 *
 * @brief A collapsible group box with a settings key, for a host that remembers its state.
 *
 * @image html collapsiblegroupbox.png
 *
 * The box itself reads and writes no settings. It has a key that is made of the name of the window
 * and its own, and two flags that say what the host shall store under it. The key is there for
 * subclasses:
 *
 * @code
 * class RememberingBox : public CollapsibleGroupBox
 * {
 * public:
 *     void save(QSettings *settings)
 *     {
 *         if (saveCollapsedState() && !saveKey().isEmpty()) {
 *             settings->setValue(saveKey() + "/collapsed", isCollapsed());
 *         }
 *     }
 * };
 * @endcode
 */
class LMWIDGETS_EXPORT CollapsibleGroupBox : public CollapsibleGroupBoxBasic
{
    Q_OBJECT

    /** Whether the host shall remember that the box is folded; true at first. */
    Q_PROPERTY(bool saveCollapsedState READ saveCollapsedState WRITE setSaveCollapsedState)
    /** Whether the host shall remember that the box is checked; false at first. */
    Q_PROPERTY(bool saveCheckedState READ saveCheckedState WRITE setSaveCheckedState)

public:
    /** Constructs an open box without title. */
    explicit CollapsibleGroupBox(QWidget *parent = nullptr);
    /** Constructs an open box with the title @p title. */
    explicit CollapsibleGroupBox(const QString &title, QWidget *parent = nullptr);
    ~CollapsibleGroupBox() override;

    /** Returns whether the host shall remember that the box is folded. */
    bool saveCollapsedState();
    /** Sets it. Nothing is stored or read at this moment. */
    void setSaveCollapsedState(bool save);

    /** Returns whether the host shall remember that the box is checked. */
    bool saveCheckedState();
    /** Sets it. Nothing is stored or read at this moment. */
    void setSaveCheckedState(bool save);

    /** Returns the name that stands for the window in the key; empty at first. */
    QString settingGroup();
    /** Sets it. With an empty one the key has the object name of the window. */
    void setSettingGroup(const QString &group);

protected:
    /** Sets both flags to their first values. Called by the constructors. */
    void init();

    /** Gives the box its look and its state when it is shown first. */
    void showEvent(QShowEvent *event) override;

    /**
     * Returns "CollapsibleGroupBox/", the setting group or the object name of the window, "/" and
     * the object name of the box. Empty when the box has no object name, or when there is neither a
     * setting group nor an object name of the window.
     */
    QString saveKey();

private:
    Q_DISABLE_COPY(CollapsibleGroupBox)

    bool m_saveCollapsedState = true;
    bool m_saveCheckedState = false;
    QString m_settingGroup;
};

#endif
