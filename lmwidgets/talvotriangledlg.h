#ifndef TALVOTRIANGLEDLG_H
#define TALVOTRIANGLEDLG_H

#include <lmwidgets/lmwidgets_global.h>

#include <QColor>
#include <QDialog>

/**
 * @class TalvoTriangleDlg talvotriangledlg.h <lmwidgets/talvotriangledlg.h>
 *
 * @brief A balloon: a filled panel with a triangular pointer on one of its edges.
 *
 * @image html talvotriangledlg.png
 *
 * The dialog has no frame, is see-through around what it paints, and paints nothing but the panel,
 * the pointer and an outline. The host puts child widgets on it, keeps them off the pointer's edge
 * by triangleHeight px, and places it so that the pointer's tip touches the control it belongs to.
 *
 * @code
 * auto *balloon = new TalvoTriangleDlg(button->window());
 * balloon->resize(200, 80);
 * balloon->setTriabgleData(TalvoTriangleDlg::Top, 92, 10, 16);
 * // The tip is at (92 + 16 / 2, 0) of the balloon: put it below the middle of the button.
 * balloon->move(button->mapToGlobal(QPoint(button->width() / 2 - 100, button->height())));
 * balloon->show();
 * @endcode
 *
 * The outline consists of separate lines, as described at setTriabgleData(). None of the setters
 * repaints: set everything before show(), or call QWidget::update() afterwards.
 */
class LMWIDGETS_EXPORT TalvoTriangleDlg : public QDialog
{
    Q_OBJECT

public:
    /** The edge that carries the pointer. A value outside these paints nothing at all. */
    enum TriangleDirection : int {
        Left = 0,  ///< at the left edge, pointing left
        Right = 1, ///< at the right edge, pointing right
        Top = 2,   ///< at the top edge, pointing up; the default
        Bottom = 3 ///< at the bottom edge, pointing down
    };

    /** Constructs a balloon at whose top is a pointer without extent. @p parent may be null. */
    explicit TalvoTriangleDlg(QWidget *parent = nullptr);

    /**
     * Sets the pointer: @p triangleStart px from the left end of its edge, or from the top end for
     * Left and Right, it begins, @p triangleWidth px along the edge is its base, and @p
     * triangleHeight px it sticks out of the panel. All are 0 at start and are not checked: what
     * lies outside the dialog is clipped.
     *
     * The outline is drawn as separate lines. For Top these are the upper edge left of the pointer,
     * the pointer's right side, and the right and left edges; hosts paint over the others.
     */
    void setTriabgleData(TriangleDirection direction, int triangleStart, int triangleHeight,
                         int triangleWidth);

    /** Sets the fill of panel and pointer; RGB (69, 69, 69) at start. Painted without its alpha. */
    void setDefaultBackgroundColor(QColor color);
    /** Sets the outline's colour; RGB (56, 56, 56) at start. Painted without its alpha. */
    void setDefaultBorderColor(QColor color);

protected:
    /** Paints the panel, the pointer and the outline. */
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(TalvoTriangleDlg)

    QColor m_backgroundColor;
    QColor m_borderColor;
    TriangleDirection m_direction = Top;
    int m_triangleStart = 0;
    int m_triangleHeight = 0;
    int m_triangleWidth = 0;
};

#endif
