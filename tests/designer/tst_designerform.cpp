/** @file
 * A form with every widget of the library in Designer's form editor: opened, edited and saved, and
 * loaded by a host at run time.
 */

#include "formeditor.h"
#include "lmtest.h"

#include <lmwidgets/collapsiblegroupbox.h>
#include <lmwidgets/customspinbox.h>
#include <lmwidgets/editcombobox.h>
#include <lmwidgets/linetypecombobox.h>
#include <lmwidgets/qcustomtabwidget.h>
#include <lmwidgets/roundcheckbox.h>
#include <lmwidgets/toggleswitch.h>

#include <QCheckBox>
#include <QFile>
#include <QFileInfo>
#include <QFormBuilder>
#include <QPluginLoader>
#include <QRegularExpression>
#include <QTabBar>
#include <QtDesigner/QDesignerContainerExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerWidgetBoxInterface>
#include <QtDesigner/QDesignerWidgetDataBaseInterface>
#include <QtDesigner/QExtensionManager>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QWidget>

#include <limits>
#include <memory>

class tst_DesignerForm : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void widgetBox();
    void widgetDataBase();

    void savedAsOpened_data();
    void savedAsOpened();
    void everyWidgetIsOnTheForm();
    void propertySurvives_data();
    void propertySurvives();
    void foldedBoxKeepsItsChildren();
    void lineTypesAreNotSaved();
    void tabPages();
    void clickSelects_data() { namesOnTheForm(); }
    void clickSelects();
    void everyPropertyCanBeEdited_data() { namesOnTheForm(); }
    void everyPropertyCanBeEdited();

    void loadedAtRunTime();

private:
    void namesOnTheForm();
    void open(const QString &xml);
    void reopen();
    void show();
    template <typename Widget = QWidget>
    Widget *find(const char *name) const
    {
        return m_form->mainContainer()->findChild<Widget *>(QLatin1String(name));
    }

    std::unique_ptr<FormEditor> m_editor;
    QDesignerFormWindowInterface *m_form = nullptr;
    QString m_xml;
    QList<QDesignerCustomWidgetInterface *> m_widgets;
};

namespace {

QtMessageHandler nextHandler = nullptr;

/** Designer reads every property of a tab bar, and Qt cannot read one of those itself. */
void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message.contains(QLatin1String("'QTabBar::selectionBehaviorOnRemove'"))) {
        return;
    }
    nextHandler(type, context, message);
}

/** Returns another value of the same type; an invalid one for types that this test leaves alone. */
QVariant another(const QVariant &value)
{
    switch (static_cast<QMetaType::Type>(value.type())) {
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::Int:
        return value.toInt() == std::numeric_limits<int>::max() ? 5 : value.toInt() + 1;
    case QMetaType::Double:
        return value.toDouble() + 1.0;
    case QMetaType::QSize:
        return value.toSize().boundedTo(QSize(2000, 2000)) + QSize(3, 3);
    default:
        return QVariant();
    }
}

QString pluginDir()
{
    return QFileInfo(QStringLiteral(DESIGNER_PLUGIN)).path();
}

} // namespace

void tst_DesignerForm::initTestCase()
{
    TestCase::initTestCase();
    nextHandler = qInstallMessageHandler(handleMessage);
    // Designer looks for its plugins in the folder "designer" of every folder of plugins.
    QCoreApplication::setLibraryPaths({QFileInfo(pluginDir()).path()});

    QPluginLoader loader(QStringLiteral(DESIGNER_PLUGIN));
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    QVERIFY2(collection, qPrintable(loader.errorString()));
    m_widgets = collection->customWidgets();

    QFile file(QStringLiteral(LMWIDGETS_SOURCE_DIR "/tests/designer/allwidgets.ui"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_xml = QString::fromUtf8(file.readAll());
    m_editor = std::make_unique<FormEditor>();
}

void tst_DesignerForm::cleanup()
{
    if (m_form) {
        m_form->window()->hide();
        m_editor->close(m_form);
        m_form = nullptr;
    }
}

void tst_DesignerForm::open(const QString &xml)
{
    m_form = m_editor->open(xml);
    QVERIFY(m_form);
}

void tst_DesignerForm::reopen()
{
    const QString xml = m_form->contents();
    m_editor->close(m_form);
    open(xml);
}

/** Shows the form in the size that it was saved in, which showing does not change then. */
void tst_DesignerForm::show()
{
    QWidget *window = m_form->window();
    window->resize(m_form->mainContainer()->size());
    m_form->resize(m_form->mainContainer()->size());
    m_form->show();
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));
}

/** Every widget is in the widget box, in its group, with its picture and its text. */
void tst_DesignerForm::widgetBox()
{
    const QDesignerWidgetBoxInterface *box = m_editor->core()->widgetBox();
    QStringList found;
    for (int i = 0; i < box->categoryCount(); ++i) {
        const QDesignerWidgetBoxInterface::Category category = box->category(i);
        for (int j = 0; j < category.widgetCount(); ++j) {
            const QDesignerWidgetBoxInterface::Widget widget = category.widget(j);
            for (QDesignerCustomWidgetInterface *plugin : qAsConst(m_widgets)) {
                if (widget.domXml() == plugin->domXml()) {
                    QCOMPARE(category.name(), plugin->group());
                    QVERIFY(plugin->domXml().contains("displayname=\"" + widget.name() + '"'));
                    found.append(plugin->name());
                }
            }
        }
    }
    QCOMPARE(found.size(), m_widgets.size());
}

/** What Designer writes into the form for uic: header, base class, whether it is a container. */
void tst_DesignerForm::widgetDataBase()
{
    const QDesignerWidgetDataBaseInterface *base = m_editor->core()->widgetDataBase();
    for (QDesignerCustomWidgetInterface *plugin : qAsConst(m_widgets)) {
        const int index = base->indexOfClassName(plugin->name());
        QVERIFY2(index >= 0, qPrintable(plugin->name()));
        const QDesignerWidgetDataBaseItemInterface *item = base->item(index);
        QVERIFY(item->isCustom());
        QCOMPARE(item->includeFile(), plugin->includeFile());
        QCOMPARE(item->isContainer(), plugin->isContainer());
        QCOMPARE(item->toolTip(), plugin->toolTip());
        QVERIFY(item->extends().startsWith('Q'));
        QVERIFY(!item->icon().isNull());
        QVERIFY(plugin->isInitialized());
    }
}

void tst_DesignerForm::savedAsOpened_data()
{
    QTest::addColumn<bool>("shown");
    QTest::newRow("in the background") << false;
    QTest::newRow("shown") << true;
}

void tst_DesignerForm::savedAsOpened()
{
    QFETCH(bool, shown);
    open(m_xml);
    QVERIFY(!m_form->isDirty());
    if (shown) {
        show();
        QVERIFY(find("lineTypeComboBox")->isVisible());
    }
    QCOMPARE(m_form->contents().trimmed(), m_xml.trimmed());
}

void tst_DesignerForm::everyWidgetIsOnTheForm()
{
    open(m_xml);
    QStringList classes;
    const auto all = m_form->mainContainer()->findChildren<QWidget *>();
    for (QWidget *widget : all) {
        classes.append(widget->metaObject()->className());
    }
    for (QDesignerCustomWidgetInterface *plugin : qAsConst(m_widgets)) {
        QVERIFY2(classes.contains(plugin->name()), qPrintable(plugin->name()));
    }
    // What a widget is made of is not on offer; what the user put into it is.
    QVERIFY(m_form->isManaged(find("collapsibleGroupBox")));
    QVERIFY(m_form->isManaged(find("checkFirst")));
    QVERIFY(!m_form->isManaged(find("collapseButton")));
    for (const char *name : {"editComboBox", "titleBar", "messageBoxDetailsText"}) {
        const auto parts = find(name)->findChildren<QWidget *>();
        QVERIFY2(!parts.isEmpty(), name);
        for (QWidget *part : parts) {
            QVERIFY2(!m_form->isManaged(part), name);
        }
    }
}

void tst_DesignerForm::propertySurvives_data()
{
    QTest::addColumn<QByteArray>("widget");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *widget, const char *property, const QVariant &value) {
        QTest::addRow("%s.%s", widget, property)
            << QByteArray(widget) << QString::fromLatin1(property) << value;
    };
    row("editComboBox", "editable", false);
    row("customSpinBox", "value", 17.5);
    row("customSpinBox", "singleStep", 0.5);
    row("spinOnPage", "maximum", 40.0);
    row("talvoDoubleSlider", "minimumSize", QSize(120, 24));
    row("toggleSwitch", "enabled", false);
    row("roundCheckBox", "enabled", true);
    row("vantoroToolButton", "checkable", true);
    row("buttonLeftHaveGreenDots", "autoRaise", true);
    row("detailButton", "flat", true);
    row("collapsibleGroupBox", "collapsed", true);
    row("collapsibleGroupBox", "checkable", true);
    row("collapsibleGroupBox", "saveCollapsedState", false);
    row("collapsibleGroupBox", "saveCheckedState", false);
    row("collapsibleGroupBox", "scrollOnExpand", true);
    row("collapsibleGroupBoxBasic", "collapsed", false);
    row("collapsibleGroupBoxBasic", "flat", true);
    row("customTabWidget", "currentIndex", 1);
    row("customTabWidget", "usesScrollButtons", false);
    row("customTabBar", "drawBase", false);
    row("customLayerTableWidget", "rowCount", 3);
    row("customLayerTableWidget", "showGrid", false);
    row("lineTypeComboBox", "maxVisibleItems", 7);
    row("titleBar", "maximumSize", QSize(400, 50));
    row("hyperlinkLabel", "margin", 3);
    row("messageBoxDetailsText", "minimumSize", QSize(50, 110));
}

void tst_DesignerForm::propertySurvives()
{
    QFETCH(QByteArray, widget);
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    open(m_xml);
    QObject *object = find(widget);
    QVERIFY(object);
    QDesignerPropertySheetExtension *sheet = m_editor->sheet(object);
    const int index = sheet->indexOf(property);
    QVERIFY(index >= 0);
    QVERIFY(sheet->isVisible(index));
    QVERIFY2(sheet->property(index) != value, "the form has this value already");
    // As the property editor does: the value, and that the user has chosen it.
    sheet->setProperty(index, value);
    sheet->setChanged(index, true);
    QCOMPARE(sheet->property(index), value);

    reopen();
    object = find(widget);
    QVERIFY(object);
    sheet = m_editor->sheet(object);
    QCOMPARE(sheet->property(sheet->indexOf(property)), value);
    QVERIFY(sheet->isChanged(sheet->indexOf(property)));
    QCOMPARE(object->property(property.toLatin1()), value);
}

/** Folding and opening on the form, where it shows at once, leaves no trace in what is saved. */
void tst_DesignerForm::foldedBoxKeepsItsChildren()
{
    open(m_xml);
    show();

    auto *box = find<CollapsibleGroupBox>("collapsibleGroupBox");
    auto *check = find<QCheckBox>("checkFirst");
    QDesignerPropertySheetExtension *sheet = m_editor->sheet(box);
    const int collapsed = sheet->indexOf(QStringLiteral("collapsed"));
    sheet->setProperty(collapsed, true);
    QVERIFY(!check->isVisible());
    // The user looks at the properties of a child for the first time.
    QVERIFY(m_editor->sheet(check)->indexOf(QStringLiteral("text")) >= 0);
    QString saved = m_form->contents();
    QVERIFY(saved.contains(QLatin1String("name=\"checkFirst\"")));
    QVERIFY2(!saved.contains(QLatin1String("CollGrpBxHide")), qPrintable(saved));
    QVERIFY(!saved.contains(QLatin1String("styleSheet")));
    QVERIFY(!saved.contains(QLatin1String("visible")));

    sheet->setProperty(collapsed, false);
    sheet->setChanged(collapsed, false);
    QVERIFY(check->isVisible());
    QCOMPARE(m_form->contents().trimmed(), m_xml.trimmed());
}

/** The box makes its items itself; saved with the form they would be there twice. */
void tst_DesignerForm::lineTypesAreNotSaved()
{
    open(m_xml);
    show();
    auto *box = find<LM::Widgets::LineTypeComboBox>("lineTypeComboBox");
    QCOMPARE(box->count(), 15);
    QVERIFY(!m_form->contents().contains(QLatin1String("<item/>")));
    reopen();
    box = find<LM::Widgets::LineTypeComboBox>("lineTypeComboBox");
    show();
    QCOMPARE(box->count(), 15);
}

/** "Insert page" and "Delete page" of the form editor work on the tab widget as on Qt's own. */
void tst_DesignerForm::tabPages()
{
    open(m_xml);
    auto *tabs = find<LM::Widgets::QCustomTabWidget>("customTabWidget");
    auto *pages =
        qt_extension<QDesignerContainerExtension *>(m_editor->core()->extensionManager(), tabs);
    QVERIFY(pages);
    QCOMPARE(pages->count(), 2);
    QVERIFY(pages->canAddWidget());

    auto *page = new QWidget;
    page->setObjectName(QStringLiteral("viewPage"));
    pages->insertWidget(1, page);
    m_form->manageWidget(page);
    pages->setCurrentIndex(1);
    QVERIFY(m_editor->sheet(tabs)->indexOf(QStringLiteral("currentTabText")) >= 0);
    reopen();

    tabs = find<LM::Widgets::QCustomTabWidget>("customTabWidget");
    QCOMPARE(tabs->count(), 3);
    QCOMPARE(tabs->tabText(0), QStringLiteral("Import"));
    QCOMPARE(tabs->tabText(2), QStringLiteral("Export"));
    QCOMPARE(tabs->widget(1)->objectName(), QStringLiteral("viewPage"));
    QVERIFY(tabs->widget(0)->isAncestorOf(find("spinOnPage")));
    QVERIFY(tabs->widget(2)->isAncestorOf(find("comboOnPage")));

    pages = qt_extension<QDesignerContainerExtension *>(m_editor->core()->extensionManager(), tabs);
    QVERIFY(pages->canRemove(0));
    pages->remove(0);
    reopen();
    tabs = find<LM::Widgets::QCustomTabWidget>("customTabWidget");
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(tabs->widget(0)->objectName(), QStringLiteral("viewPage"));
    QCOMPARE(tabs->tabText(1), QStringLiteral("Export"));
}

/** The name that each widget has on the form: the one that it gets when it is dropped there. */
void tst_DesignerForm::namesOnTheForm()
{
    QTest::addColumn<QString>("name");
    const QRegularExpression nameInXml(QStringLiteral("<widget class=\"[^\"]+\" name=\"(\\w+)\""));
    for (QDesignerCustomWidgetInterface *plugin : qAsConst(m_widgets)) {
        const QString name = nameInXml.match(plugin->domXml()).captured(1);
        QTest::newRow(qPrintable(name)) << name;
    }
}

/** A click on a widget selects it for editing; none of them acts on it as in the host. */
void tst_DesignerForm::clickSelects()
{
    QFETCH(QString, name);
    open(m_xml);
    show();
    auto *widget = m_form->mainContainer()->findChild<QWidget *>(name);
    QVERIFY(widget && widget->isVisible());
    // On the title of a box, in the text of a line edit, on the pill of a switch.
    const QPoint position(30, widget->inherits("QGroupBox") ? 8 : widget->height() / 2);
    QWidget *below = widget->childAt(position);
    if (widget->inherits("QTabWidget")) {
        below = static_cast<QTabWidget *>(widget)->tabBar();
    }
    QWidget *target = below ? below : widget;
    QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier,
                      target->mapFrom(m_form->window(), widget->mapTo(m_form->window(), position)));
    QCOMPARE(m_form->cursor()->selectedWidgetCount(), 1);
    QCOMPARE(m_form->cursor()->selectedWidget(0), widget);
    QVERIFY(!QApplication::activePopupWidget());
    if (widget->inherits("QTabWidget")) {
        // The tabs are the exception in every tab widget: they turn the pages.
        return;
    }
    QVERIFY(!find<CollapsibleGroupBox>("collapsibleGroupBox")->isCollapsed());
    QVERIFY(find<CollapsibleGroupBoxBasic>("collapsibleGroupBoxBasic")->isCollapsed());
    QVERIFY(!find<LM::Widgets::ToggleSwitch>("toggleSwitch")->isChecked());
    QVERIFY(!find<LM::Widgets::RoundCheckBox>("roundCheckBox")->isChecked());
    QCOMPARE(m_form->contents().trimmed(), m_xml.trimmed());
}

/** Changes what the property editor offers of a widget, one after the other, and takes it back. */
void tst_DesignerForm::everyPropertyCanBeEdited()
{
    QFETCH(QString, name);
    open(m_xml);
    show();
    auto *widget = m_form->mainContainer()->findChild<QWidget *>(name);
    QVERIFY(widget);
    QDesignerPropertySheetExtension *sheet = m_editor->sheet(widget);
    int edited = 0;
    for (int i = 0; i < sheet->count(); ++i) {
        const QVariant before = sheet->property(i);
        const QVariant value = another(before);
        // The place in the layout is the layout's, which has its properties elsewhere in the file.
        if (!value.isValid() || !sheet->isVisible(i) || !sheet->isEnabled(i) ||
            sheet->isAttribute(i) || sheet->propertyName(i) == QLatin1String("geometry")) {
            continue;
        }
        const bool wasChanged = sheet->isChanged(i);
        sheet->setProperty(i, value);
        sheet->setChanged(i, true);
        QCoreApplication::processEvents();
        QVERIFY(m_form->contents().contains('"' + sheet->propertyName(i) + '"'));
        sheet->setProperty(i, before);
        sheet->setChanged(i, wasChanged);
        ++edited;
    }
    QVERIFY2(edited > 5, qPrintable(QString::number(edited)));
    QCoreApplication::processEvents();
    QCOMPARE(m_form->contents().trimmed(), m_xml.trimmed());
}

/** A host that loads the form itself, as QUiLoader does, gets the same widgets from the plugin. */
void tst_DesignerForm::loadedAtRunTime()
{
    QFile file(QStringLiteral(LMWIDGETS_SOURCE_DIR "/tests/designer/allwidgets.ui"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QFormBuilder builder;
    builder.setPluginPath({pluginDir()});
    const std::unique_ptr<QWidget> form(builder.load(&file, nullptr));
    QVERIFY2(form, qPrintable(builder.errorString()));
    form->show();
    QVERIFY(QTest::qWaitForWindowExposed(form.get()));

    auto *spinBox = form->findChild<LM::Widgets::CustomSpinBox *>("customSpinBox");
    QVERIFY(spinBox);
    QCOMPARE(spinBox->value(), -2.5);
    QVERIFY(form->findChild<LM::Widgets::EditComboBox *>("editComboBox")->isEditable());
    auto *box = form->findChild<CollapsibleGroupBoxBasic *>("collapsibleGroupBoxBasic");
    QVERIFY(box->isCollapsed());
    QCOMPARE(box->syncGroup(), QStringLiteral("properties"));
    auto *check = form->findChild<QCheckBox *>("checkSecond");
    QVERIFY(box->isAncestorOf(check));
    QVERIFY(!check->isVisible());
    box->setCollapsed(false);
    QVERIFY(check->isVisible());
    auto *tabs = form->findChild<LM::Widgets::QCustomTabWidget *>("customTabWidget");
    QCOMPARE(tabs->count(), 2);
    QVERIFY(tabs->widget(1)->findChild<LM::Widgets::EditComboBox *>("comboOnPage"));
    QCOMPARE(form->findChild<LM::Widgets::LineTypeComboBox *>("lineTypeComboBox")->count(), 15);
}

LMTEST_MAIN(tst_DesignerForm)

#include "tst_designerform.moc"
