#include "lmtest.h"

#include <lmwidgets/qcustomtabbar.h>
#include <lmwidgets/qcustomtabwidget.h>

#include <QImage>
#include <QLineEdit>

using LM::Widgets::QCustomTabBar;
using LM::Widgets::QCustomTabWidget;

namespace {

QCustomTabBar *barOf(const QCustomTabWidget &tabs)
{
    return qobject_cast<QCustomTabBar *>(tabs.tabBar());
}

void addPages(QCustomTabWidget &tabs)
{
    tabs.setTabPosition(QTabWidget::West);
    for (const QString &text : {QStringLiteral("Import"), QStringLiteral("Classify")}) {
        tabs.addTab(new QLineEdit, text);
    }
    tabs.resize(400, 200);
}

} // namespace

class tst_QCustomTabWidget : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void newWidget();
    void tabsOnTheLeft();
    void dots_data();
    void dots();
    void mouseShowsThePage();
    void keyboardShowsThePage();
    void pagesComeAndGo();
    void otherBar();
    void destroyed();
    void destroyedBySlot();
};

void tst_QCustomTabWidget::newWidget()
{
    QWidget parent;
    QCustomTabWidget tabs(&parent);
    QCOMPARE(tabs.parentWidget(), &parent);
    QCOMPARE(tabs.count(), 0);
    QCOMPARE(tabs.tabPosition(), QTabWidget::North);
    QVERIFY(barOf(tabs));
    QCOMPARE(barOf(tabs)->parent(), &tabs);
    QCOMPARE(tabs.findChildren<QTabBar *>().size(), 1); // and not the stock one beside it
    const QMetaObject *meta = tabs.metaObject();
    QCOMPARE(QLatin1String(meta->className()), QLatin1String("LM::Widgets::QCustomTabWidget"));
    QCOMPARE(meta->superClass(), &QTabWidget::staticMetaObject);
    QVERIFY(lmtest::ownMethods(*meta).isEmpty());
    QVERIFY(!QCustomTabWidget().parent());
}

void tst_QCustomTabWidget::tabsOnTheLeft()
{
    QCustomTabWidget tabs;
    addPages(tabs);
    tabs.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tabs));
    const QTabBar *bar = tabs.tabBar();
    QCOMPARE(bar->shape(), QTabBar::RoundedWest);
    QVERIFY(bar->geometry().right() < tabs.currentWidget()->mapTo(&tabs, QPoint(0, 0)).x());
    for (int i = 0; i < 2; ++i) {
        QVERIFY(bar->tabRect(i).width() > bar->tabRect(i).height());
        // Room for the dot and the text.
        QVERIFY(bar->tabRect(i).width() >=
                15 + bar->fontMetrics().horizontalAdvance(bar->tabText(i)));
    }
    QVERIFY(bar->tabRect(1).top() > bar->tabRect(0).top());
}

void tst_QCustomTabWidget::dots_data()
{
    QTest::addColumn<int>("ratio");
    QTest::newRow("1") << 1;
    QTest::newRow("2") << 2;
}

void tst_QCustomTabWidget::dots()
{
    QFETCH(int, ratio);
    QCustomTabWidget tabs;
    addPages(tabs);
    barOf(tabs)->setTabColor(1, Qt::magenta);
    tabs.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tabs));
    QImage image(tabs.size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    tabs.render(&image);
    const QColor colors[] = {QColor(0, 255, 0), QColor(Qt::magenta)};
    for (int i = 0; i < 2; ++i) {
        const QRect tab = tabs.tabBar()->tabRect(i);
        const QPoint dot =
            tabs.tabBar()->mapTo(&tabs, QPoint(tab.left() + 7, tab.center().y())) * ratio;
        QCOMPARE(image.pixelColor(dot), colors[i]);
    }
}

void tst_QCustomTabWidget::mouseShowsThePage()
{
    QCustomTabWidget tabs;
    addPages(tabs);
    tabs.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tabs));
    QSignalSpy current(&tabs, &QTabWidget::currentChanged);
    QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, Qt::NoModifier,
                      tabs.tabBar()->tabRect(1).center());
    QCOMPARE(tabs.currentIndex(), 1);
    QVERIFY(tabs.widget(1)->isVisible());
    QVERIFY(!tabs.widget(0)->isVisible());
    QCOMPARE(current.count(), 1);
}

void tst_QCustomTabWidget::keyboardShowsThePage()
{
    QCustomTabWidget tabs;
    addPages(tabs);
    tabs.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tabs));
    QApplication::setActiveWindow(&tabs);
    tabs.tabBar()->setFocus();
    QTest::keyClick(tabs.tabBar(), Qt::Key_Right);
    QCOMPARE(tabs.currentIndex(), 1);
    QTest::keyClick(&tabs, Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(tabs.currentIndex(), 0);
}

void tst_QCustomTabWidget::pagesComeAndGo()
{
    QCustomTabWidget tabs;
    addPages(tabs);
    barOf(tabs)->setTabColor(1, Qt::magenta);
    delete tabs.widget(0);
    QCOMPARE(tabs.count(), 1);
    QCOMPARE(tabs.tabText(0), QStringLiteral("Classify"));
    tabs.removeTab(7);
    tabs.removeTab(-1);
    tabs.setCurrentIndex(9);
    QCOMPARE(tabs.currentIndex(), 0);
    tabs.clear();
    QCOMPARE(tabs.count(), 0);
    QVERIFY(!tabs.grab().isNull());
    QCOMPARE(barOf(tabs)->getCircleColor(1), QColor(Qt::magenta));
}

void tst_QCustomTabWidget::otherBar()
{
    class Tabs : public QCustomTabWidget
    {
    public:
        using QCustomTabWidget::setTabBar;
    };
    Tabs tabs;
    const QPointer<QTabBar> first(tabs.tabBar());
    auto *second = new QCustomTabBar;
    tabs.setTabBar(second);
    QVERIFY(!first);
    addPages(tabs);
    QCOMPARE(second->count(), 2);
    QVERIFY(!tabs.grab().isNull());
}

void tst_QCustomTabWidget::destroyed()
{
    QPointer<QCustomTabBar> bar;
    QPointer<QWidget> page;
    {
        QWidget window;
        auto *tabs = new QCustomTabWidget(&window);
        addPages(*tabs);
        bar = barOf(*tabs);
        page = tabs->widget(0);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }
    QVERIFY(!bar);
    QVERIFY(!page);
}

void tst_QCustomTabWidget::destroyedBySlot()
{
    const QPointer<QCustomTabWidget> tabs(new QCustomTabWidget);
    addPages(*tabs);
    tabs->show();
    QVERIFY(QTest::qWaitForWindowExposed(tabs));
    connect(tabs, &QTabWidget::currentChanged, this, [&] { tabs->deleteLater(); });
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier,
                      tabs->tabBar()->tabRect(1).center());
    QTRY_VERIFY(!tabs);
}

LMTEST_MAIN(tst_QCustomTabWidget)

#include "tst_qcustomtabwidget.moc"
