#ifndef LMWIDGETS_VANTOROTOOLBUTTON_H
#define LMWIDGETS_VANTOROTOOLBUTTON_H

#include <lmwidgets/lmwidgets_global.h>

#include <QString>
#include <QToolButton>

/**
 * @class VantoroToolButton vantorotoolbutton.h <lmwidgets/vantorotoolbutton.h>
 *
 * @brief A tool button with three pictures of the theme: normal, hovered and disabled.
 *
 * @image html vantorotoolbutton.png
 *
 * The host names the pictures once, without folder and ending: "layer_edit" stands for
 * "qssimage/layer_edit.png" of the current theme. While the mouse is over the button it shows the
 * second one, and when it is disabled the third. A theme switch shows when the mouse next enters or
 * leaves the button; a host that wants it at once calls setIconPixmap() again. Each time the icon
 * of the button is made anew, so that one set with setIcon() does not last.
 *
 * @code
 * auto *edit = new VantoroToolButton(toolBar);
 * edit->setIconPixmap("layer_edit", "layer_edit_hover", "layer_edit_disabled");
 * @endcode
 *
 * A picture that is missing in the theme is left out, and Qt makes do with those that are there. A
 * slot may destroy the button when it is clicked.
 */
class LMWIDGETS_EXPORT VantoroToolButton : public QToolButton
{
    Q_OBJECT

public:
    /** Constructs a button without pictures. */
    explicit VantoroToolButton(QWidget *parent = nullptr);
    ~VantoroToolButton() override;

    /**
     * Stores the names of the three pictures and shows those of the current theme, with
     * @p normalIcon for the normal state also while the mouse is over the button. Names that are
     * empty or have no file are stored all the same.
     */
    void setIconPixmap(QString normalIcon, QString hoverIcon, QString disabledIcon);

protected:
    /** Shows the second picture, of the theme that is current now. */
    void enterEvent(QEvent *event) override;
    /** Shows the first picture again, of the theme that is current now. */
    void leaveEvent(QEvent *event) override;
    /** Clicks as a QToolButton does; the click may destroy the button. */
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(VantoroToolButton)

    void showPictures(const QString &normalIcon);

    QString m_normalIcon;
    QString m_hoverIcon;
    QString m_disabledIcon;
};

#endif
