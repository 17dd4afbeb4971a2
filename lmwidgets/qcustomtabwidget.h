#ifndef LMWIDGETS_QCUSTOMTABWIDGET_H
#define LMWIDGETS_QCUSTOMTABWIDGET_H

#include <lmwidgets/lmwidgets_global.h>

#include <QTabWidget>

namespace LM {
namespace Widgets {

class QCustomTabBar;

/**
 * @class QCustomTabWidget qcustomtabwidget.h <lmwidgets/qcustomtabwidget.h>
 *
 * @brief A tab widget whose tabs carry a coloured dot for their state.
 *
 * @image html qcustomtabwidget.png
 *
 * It is a QTabWidget with a QCustomTabBar, which tabBar() returns. Place the tabs on the left or on
 * the right: above and below the pages the exchanged sizes of the tabs stand them on end, with the
 * text lying across them.
 *
 * @code
 * auto *steps = new LM::Widgets::QCustomTabWidget(dialog);
 * steps->setTabPosition(QTabWidget::West);
 * steps->addTab(importPage, tr("Import"));
 * qobject_cast<LM::Widgets::QCustomTabBar *>(steps->tabBar())->setTabColor(0, Qt::gray);
 * @endcode
 */
class LMWIDGETS_EXPORT QCustomTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    /** Constructs a tab widget without pages; its tabs are above, as in a QTabWidget. */
    explicit QCustomTabWidget(QWidget *parent = nullptr);
    ~QCustomTabWidget() override;

private:
    Q_DISABLE_COPY(QCustomTabWidget)

    QCustomTabBar *const m_tabBar;
};

} // namespace Widgets
} // namespace LM

#endif
