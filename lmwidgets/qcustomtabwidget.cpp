#include <lmwidgets/qcustomtabwidget.h>

#include <lmwidgets/qcustomtabbar.h>

namespace LM {
namespace Widgets {

QCustomTabWidget::QCustomTabWidget(QWidget *parent)
    : QTabWidget(parent), m_tabBar(new QCustomTabBar(this))
{
    setTabBar(m_tabBar);
}

QCustomTabWidget::~QCustomTabWidget() = default;

} // namespace Widgets
} // namespace LM
