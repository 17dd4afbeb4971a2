#ifndef LMWIDGETS_TITLEBAR_H
#define LMWIDGETS_TITLEBAR_H

#include <lmwidgets/lmwidgets_global.h>

#include <QFrame>
#include <QIcon>

QT_BEGIN_NAMESPACE
class QAction;
class QHBoxLayout;
class QLabel;
class QToolButton;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

class TitleBarPrivate;

/**
 * @class TitleBar titlebar.h <lmwidgets/titlebar.h>
 *
 * @brief The caption strip of a window that has no system frame.
 *
 * @image html titlebar.png
 *
 * A title bar is 48 px high and holds, from the left: a logo button, the title, a row of extra
 * buttons and the minimise, maximise, restore and close buttons. It acts on no window: it emits
 * minimuned(), maximumed(), normaled() and closed(), and whoever owns it connects them. It
 * remembers whether its owner is maximised, in order to offer the maximise or the restore button.
 *
 * @code
 * auto *bar = new LM::Widgets::TitleBar(window);
 * bar->setTitle(tr("Layers"));
 * bar->setMaximized(window->isMaximized());
 * connect(bar, &LM::Widgets::TitleBar::closed, window, &QWidget::close);
 * @endcode
 *
 * A new title bar shows all its buttons, the maximise and the restore button both, until
 * setMaximized() is called. Moving the window is the business of FramelessHelper.
 */
class LMWIDGETS_EXPORT TitleBar : public QFrame
{
    Q_OBJECT

public:
    /** The title buttons, as every function that takes an int button type counts them. */
    enum TitleButtonType {
        LogoButton = 0,    ///< the icon at the left; no function of its own
        MinButton = 1,     ///< emits minimuned()
        MaxButton = 2,     ///< calls switchMaxMin()
        RestoreButton = 3, ///< calls switchMaxMin()
        CloseButton = 4    ///< emits closed()
    };

    /** Constructs a title bar with the images of the theme that is current now. */
    explicit TitleBar(QWidget *parent = nullptr);
    ~TitleBar() override;

    /**
     * Sets the text, shown as plain text, and its alignment to left and vertically centred, each
     * time.
     */
    void setTitle(const QString &title);
    /** Returns the text. */
    QString title();

    /** Aligns the title within its label, until the next setTitle(). */
    void setTitleAlignment(Qt::Alignment alignment);

    /** Shows or hides the title's label. */
    void setTitleVisible(bool visible);
    /** Returns whether the label is on the screen; false while the title bar is not shown. */
    bool isTitleVisible();

    /** Returns the title's label, which the title bar owns. */
    QLabel *titleLabel();

    /** Returns the button @p type, which the title bar owns; null if there is no such button. */
    QToolButton *titleButton(int type);

    /** Returns the button @p type, which must be 0 to 4: it is not checked. */
    QToolButton *getButtonByType(int type);

    /**
     * Shows or hides the button @p type. A maximise or restore button that is hidden so stays
     * hidden when the state changes. A type outside 0 to 4 is ignored.
     */
    void setTitleButtonVisible(int type, bool visible);
    /** Returns whether the button @p type is on the screen; false if there is no such button. */
    bool isTitleButtonVisible(int type);

    /** Sets the icon of the button @p type. A type outside 0 to 4 is ignored. */
    void setTitleButtonIcon(int type, const QIcon &icon);
    /** Returns the icon of the button @p type; a null icon if there is no such button. */
    QIcon titleButtonIcon(int type);

    /** Sets the tool tip of the button @p type; none has one at start. Others are ignored. */
    void setTitleButtonToolTip(int type, const QString &toolTip);
    /** Returns the tool tip of the button @p type; a null text if there is no such button. */
    QString titleButtonToolTip(int type);

    /**
     * Tells the title bar whether its owner is maximised: true shows the restore button in place of
     * the maximise button, false the reverse. Buttons hidden by setTitleButtonVisible() stay
     * hidden. Emits nothing.
     */
    void setMaximized(bool maximized);

    /**
     * Adds a tool button for @p action, @p buttonSize px large with an icon of @p iconSize px, to
     * the row of extra buttons at @p index; a negative index, or one past the end, appends. The
     * button is the title bar's, the action stays the caller's. Returns null, and adds nothing, for
     * a null action.
     */
    QToolButton *insertExtendTitleButton(int index, QAction *action, QSize buttonSize,
                                         QSize iconSize);
    /** Adds a tool button for @p action behind the other extra buttons. */
    QToolButton *appendExtendTitleButton(QAction *action, QSize buttonSize, QSize iconSize);

    /** Returns the row of extra buttons: no margins, 2 px between the buttons. */
    QHBoxLayout *topLayout();
    /** Returns the layout of the title bar. */
    QHBoxLayout *titleBarMainLayout();
    /** Returns an empty, hidden widget at the left that the owner may fill and show. */
    QWidget *topLeftWidget();

Q_SIGNALS:
    /** The maximise button was clicked, or switchMaxMin() called, while not maximised. */
    void maximumed();
    /** The minimise button was clicked. */
    void minimuned();
    /** The restore button was clicked, or switchMaxMin() called, while maximised. */
    void normaled();
    /** The close button was clicked. */
    void closed();

public Q_SLOTS:
    /**
     * Swaps the maximise and the restore button, as far as they are in use, and emits maximumed()
     * or normaled(). While the signal is delivered the title bar still counts as in its former
     * state.
     */
    void switchMaxMin();

private:
    Q_DISABLE_COPY(TitleBar)

    TitleBarPrivate *d;
};

} // namespace Widgets
} // namespace LM

#endif
