#ifndef LMWIDGETS_QCUSTOMTABBAR_H
#define LMWIDGETS_QCUSTOMTABBAR_H

#include <lmwidgets/lmwidgets_global.h>

#include <QColor>
#include <QMap>
#include <QTabBar>

namespace LM {
namespace Widgets {

/**
 * @class QCustomTabBar qcustomtabbar.h <lmwidgets/qcustomtabbar.h>
 *
 * @brief A bar of tabs with a coloured dot for the state of each one.
 *
 * @image html qcustomtabbar.png
 *
 * The bar is made for tabs on the left or on the right: the text runs from left to right all the
 * same, white on dark grey, with a dot of 6 px before it. The sizes of the tabs are those of a
 * QTabBar with width and height exchanged. Icons and buttons on tabs are not painted by the bar,
 * and the texts are shown with every "&" that is in them. QCustomTabWidget has such a bar.
 *
 * A colour belongs to a position, not to a tab: when tabs are moved, inserted or removed, the
 * colours stay where they are, and the host sets them anew.
 *
 * @code
 * auto *bar = qobject_cast<LM::Widgets::QCustomTabBar *>(tabs->tabBar());
 * bar->setTabColor(2, failed ? QColor(Qt::red) : QColor(Qt::green));
 * bar->setTabToolTip(2, failed ? tr("Failed") : tr("Finished"));
 * @endcode
 *
 * A colour means nothing to those who cannot see it or tell it from another: say what it stands for
 * in the tool tip of the tab. It is what assistive technology reads as the description of the tab.
 */
class LMWIDGETS_EXPORT QCustomTabBar : public QTabBar
{
    Q_OBJECT

public:
    /** Constructs a bar without tabs and without colours. */
    explicit QCustomTabBar(QWidget *parent = nullptr);
    ~QCustomTabBar() override;

    /**
     * Gives the dot at the position @p index the colour @p color and repaints the bar. The tab may
     * be added later; a position that never has a tab is not painted. An invalid colour paints
     * black.
     */
    void setTabColor(int index, const QColor &color);
    /**
     * Returns the colour that setTabColor() gave the position @p index, or an invalid one if it
     * gave none; such a dot is painted in RGB (0, 255, 0).
     */
    QColor getCircleColor(int index);

protected:
    /** Paints the ground, the tabs in the style's shape, and the dot and the text of each. */
    void paintEvent(QPaintEvent *event) override;
    /** Returns the size of a QTabBar for the tab @p index with width and height exchanged. */
    QSize tabSizeHint(int index) const override;

private:
    Q_DISABLE_COPY(QCustomTabBar)

    void paintDotAndText(QPainter *painter, int index);

    QMap<int, QColor> m_tabColors;
};

} // namespace Widgets
} // namespace LM

#endif
