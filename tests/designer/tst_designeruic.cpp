/** @file
 * A program made with uic from a form with every widget, the way a host is built from its forms.
 */

#include "lmtest.h"
#include "ui_allwidgets.h"

#include <QFile>
#include <QWidget>

#include <memory>

class tst_DesignerUic : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void values();
    void children();
    void shows();
    void includesOnlyPublicHeaders();

private:
    std::unique_ptr<QWidget> m_window;
    Ui::AllWidgets m_ui;
};

void tst_DesignerUic::init()
{
    m_window = std::make_unique<QWidget>();
    m_ui.setupUi(m_window.get());
}

void tst_DesignerUic::cleanup()
{
    m_window.reset();
}

/** The members have the library's types, so the calls below are the test that they exist. */
void tst_DesignerUic::values()
{
    QCOMPARE(m_window->windowTitle(), QStringLiteral("All widgets"));
    QVERIFY(m_ui.editComboBox->isEditable());
    QCOMPARE(m_ui.editComboBox->count(), 0);
    QCOMPARE(m_ui.customSpinBox->decimals(), 1);
    QCOMPARE(m_ui.customSpinBox->value(), -2.5);
    QCOMPARE(m_ui.talvoDoubleSlider->toolTip(), QStringLiteral("Height above ground"));
    QCOMPARE(m_ui.talvoDoubleSlider->upperValue(), 0.0);
    QVERIFY(!m_ui.toggleSwitch->isChecked());
    QVERIFY(!m_ui.roundCheckBox->isEnabled());
    QVERIFY(!m_ui.roundCheckBox->isChecked());
    m_ui.vantoroToolButton->setIconPixmap("layer_edit", "layer_edit_hover", "layer_edit_disabled");
    QVERIFY(!m_ui.vantoroToolButton->icon().isNull());
    QCOMPARE(m_ui.buttonLeftHaveGreenDots->text(), QStringLiteral("Run"));
    m_ui.buttonLeftHaveGreenDots->setShowDotColor(Qt::red);
    QCOMPARE(m_ui.detailButton->text(), QStringLiteral("Show Details..."));
    QVERIFY(!m_ui.collapsibleGroupBox->isCollapsed());
    QVERIFY(!m_ui.collapsibleGroupBox->scrollOnExpand());
    QVERIFY(m_ui.collapsibleGroupBox->saveCheckedState());
    QVERIFY(m_ui.collapsibleGroupBoxBasic->isCollapsed());
    QCOMPARE(m_ui.collapsibleGroupBoxBasic->syncGroup(), QStringLiteral("properties"));
    QCOMPARE(m_ui.customTabWidget->tabPosition(), QTabWidget::West);
    QCOMPARE(m_ui.customTabBar->shape(), QTabBar::RoundedWest);
    m_ui.customTabBar->setTabColor(0, Qt::red);
    m_ui.customLayerTableWidget->creatUiType(LM::Widgets::CustomLayerTableWidget::LAYER_LIST);
    m_ui.customLayerTableWidget->addLayerRow();
    QCOMPARE(m_ui.customLayerTableWidget->rowCount(), 1);
    m_ui.titleBar->setTitle(QStringLiteral("Layers"));
    QCOMPARE(m_ui.titleBar->title(), QStringLiteral("Layers"));
    QCOMPARE(m_ui.hyperlinkLabel->text(), QStringLiteral("<a href=\"#\">Link</a>"));
    m_ui.messageBoxDetailsText->setText(QStringLiteral("log"));
    QCOMPARE(m_ui.messageBoxDetailsText->text(), QStringLiteral("log"));
}

void tst_DesignerUic::children()
{
    QCOMPARE(m_ui.checkFirst->parentWidget(), m_ui.collapsibleGroupBox);
    QCOMPARE(m_ui.switchFirst->parentWidget(), m_ui.collapsibleGroupBox);
    QCOMPARE(m_ui.checkSecond->parentWidget(), m_ui.collapsibleGroupBoxBasic);
    QCOMPARE(m_ui.customTabWidget->count(), 2);
    QCOMPARE(m_ui.customTabWidget->tabText(0), QStringLiteral("Import"));
    QCOMPARE(m_ui.customTabWidget->widget(0), m_ui.importPage);
    QCOMPARE(m_ui.spinOnPage->parentWidget(), m_ui.importPage);
    QCOMPARE(m_ui.spinOnPage->value(), 12.5);
    QCOMPARE(m_ui.comboOnPage->parentWidget(), m_ui.exportPage);
}

void tst_DesignerUic::shows()
{
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QVERIFY(m_ui.checkFirst->isVisible());
    QVERIFY(!m_ui.checkSecond->isVisible());
    QCOMPARE(m_ui.lineTypeComboBox->count(), 15);
    const auto widgets = m_window->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(widgets.size(), 17);
    for (const QWidget *widget : widgets) {
        QVERIFY2(widget->isVisible(), qPrintable(widget->objectName()));
    }
    QTest::mouseClick(m_ui.toggleSwitch, Qt::LeftButton, Qt::NoModifier, QPoint(10, 15));
    QVERIFY(m_ui.toggleSwitch->isChecked());
}

/** What a host needs on its include path is what is installed. */
void tst_DesignerUic::includesOnlyPublicHeaders()
{
    QFile file(QStringLiteral(UI_HEADER));
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
    const QString text = QString::fromUtf8(file.readAll());
    QCOMPARE(text.count("#include \"lmwidgets/"), 17);
    QVERIFY(!text.contains("_p.h"));
    QCOMPARE(text.count("#include \""), 17);
}

LMTEST_MAIN(tst_DesignerUic)

#include "tst_designeruic.moc"
