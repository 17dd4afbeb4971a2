/** @file
 * The plugin for Qt Designer, loaded as Designer loads it: what it says of each widget, the widgets
 * that it makes, and that no widget was forgotten.
 */

#include "lmtest.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QFormBuilder>
#include <QIcon>
#include <QImage>
#include <QMap>
#include <QPluginLoader>
#include <QPointer>
#include <QRegularExpression>
#include <QSet>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QWidget>

#include <memory>

class tst_DesignerPlugin : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void namesAreUnique();
    void everyClassIsPlacedOrNot();

    void describes_data() { widgets(); }
    void describes();
    void picture_data() { widgets(); }
    void picture();
    void newWidgetInXml_data() { widgets(); }
    void newWidgetInXml();
    void creates_data() { widgets(); }
    void creates();
    void initializes_data() { widgets(); }
    void initializes();

private:
    void widgets();
    QDesignerCustomWidgetInterface *widget(const QString &name) const;
    /** The classes that the public headers declare, with their namespace; each with its header. */
    QMap<QString, QString> publicClasses() const;

    QPluginLoader m_loader{QStringLiteral(DESIGNER_PLUGIN)};
    QList<QDesignerCustomWidgetInterface *> m_widgets;
};

namespace {

/** Public classes that no form can hold, each with the reason. */
const QMap<QString, QString> &notPlaced()
{
    static const QMap<QString, QString> classes = {
        {"GroupBoxCollapseButton", "made by the collapsible group boxes, without a use elsewhere"},
        {"KVItemLineEditDelegate", "a delegate"},
        {"LM::Widgets::CheckBoxHeaderView", "a header, set in code with arguments of its own"},
        {"LM::Widgets::CustomDelegate", "a delegate"},
        {"LM::Widgets::FlowLayout", "a layout"},
        {"LM::Widgets::FrameLine", "makes frames, is none"},
        {"LM::Widgets::FramelessDialog", "a window"},
        {"LM::Widgets::FramelessFileDialog", "a window"},
        {"LM::Widgets::FramelessHelper", "no widget"},
        {"LM::Widgets::FramelessMessageBox", "a window"},
        {"LM::Widgets::FramelessProcessDialog", "a window"},
        {"LM::Widgets::FramelessWaitingDialog", "a window"},
        {"LM::Widgets::TalvoDialogBase", "a window"},
        {"LM::Widgets::TalvoStyleManager", "no widget"},
        {"LM::Widgets::VantoroFramelessDialog", "a window"},
        {"LM::Widgets::customLayerToolButton", "needs its row and column"},
        {"TalvoAnimatedIcon", "no widget"},
        {"TalvoBasicUtil", "no widget"},
        {"TalvoDoubleInputDlg", "a window"},
        {"TalvoSplashScreen", "a window"},
        {"TalvoTriangleDlg", "a window"},
        {"kvItemDoubleSpinboxDelegate", "a delegate"},
    };
    return classes;
}

QDomElement parse(const QString &xml)
{
    QDomDocument document;
    QString message;
    if (!document.setContent(xml, &message)) {
        qWarning("%s in %s", qPrintable(message), qPrintable(xml));
    }
    // The element keeps the document.
    return document.documentElement();
}

/** Returns the widget as it is made when it is dropped on a form, with all that its XML says. */
std::unique_ptr<QWidget> dropped(const QDesignerCustomWidgetInterface *plugin)
{
    QString xml = plugin->domXml();
    xml.replace(QLatin1String("<ui "), QLatin1String("<ui version=\"4.0\" "));
    QByteArray bytes = xml.toUtf8();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QFormBuilder builder;
    builder.setPluginPath({QFileInfo(QStringLiteral(DESIGNER_PLUGIN)).path()});
    return std::unique_ptr<QWidget>(builder.load(&buffer, nullptr));
}

} // namespace

void tst_DesignerPlugin::initTestCase()
{
    TestCase::initTestCase();
    QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
    auto *collection =
        qobject_cast<QDesignerCustomWidgetCollectionInterface *>(m_loader.instance());
    QVERIFY(collection);
    m_widgets = collection->customWidgets();
    QVERIFY(!m_widgets.isEmpty());
    // Designer asks more than once and keeps what it got first.
    QCOMPARE(collection->customWidgets(), m_widgets);
}

void tst_DesignerPlugin::widgets()
{
    QTest::addColumn<QString>("name");
    for (QDesignerCustomWidgetInterface *widget : qAsConst(m_widgets)) {
        QTest::newRow(qPrintable(widget->name())) << widget->name();
    }
}

QDesignerCustomWidgetInterface *tst_DesignerPlugin::widget(const QString &name) const
{
    for (QDesignerCustomWidgetInterface *widget : m_widgets) {
        if (widget->name() == name) {
            return widget;
        }
    }
    return nullptr;
}

QMap<QString, QString> tst_DesignerPlugin::publicClasses() const
{
    QFile list(QStringLiteral(PUBLIC_HEADERS_FILE));
    if (!list.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QRegularExpression classLine(QStringLiteral("^class LMWIDGETS_EXPORT (\\w+)"),
                                       QRegularExpression::MultilineOption);
    QMap<QString, QString> classes;
    const QStringList paths = QString::fromUtf8(list.readAll()).split('\n', Qt::SkipEmptyParts);
    for (const QString &path : paths) {
        QFile header(path);
        if (!header.open(QIODevice::ReadOnly)) {
            return {};
        }
        const QString text = QString::fromUtf8(header.readAll());
        const QString scope =
            text.contains(QLatin1String("\nnamespace LM {")) ? "LM::Widgets::" : "";
        auto matches = classLine.globalMatch(text);
        while (matches.hasNext()) {
            classes.insert(scope + matches.next().captured(1), QFileInfo(path).fileName());
        }
    }
    return classes;
}

void tst_DesignerPlugin::namesAreUnique()
{
    QSet<QString> names;
    QSet<QString> displayNames;
    QSet<QString> pictures;
    for (QDesignerCustomWidgetInterface *widget : qAsConst(m_widgets)) {
        names.insert(widget->name());
        displayNames.insert(parse(widget->domXml()).attribute(QStringLiteral("displayname")));
        const QImage picture = widget->icon().pixmap(22).toImage();
        pictures.insert(
            QCryptographicHash::hash(QByteArray(reinterpret_cast<const char *>(picture.constBits()),
                                                int(picture.sizeInBytes())),
                                     QCryptographicHash::Md5));
    }
    QCOMPARE(names.size(), m_widgets.size());
    QCOMPARE(displayNames.size(), m_widgets.size());
    QCOMPARE(pictures.size(), m_widgets.size());
}

/** A new public class has to go into the plugin, or into the list of those that cannot. */
void tst_DesignerPlugin::everyClassIsPlacedOrNot()
{
    const QMap<QString, QString> classes = publicClasses();
    QVERIFY(classes.size() > 30);
    for (auto it = classes.cbegin(); it != classes.cend(); ++it) {
        QDesignerCustomWidgetInterface *placed = widget(it.key());
        QVERIFY2(placed || notPlaced().contains(it.key()),
                 qPrintable(it.key() + " is neither in the plugin nor in the list of this test"));
        QVERIFY2(!placed || !notPlaced().contains(it.key()), qPrintable(it.key()));
        if (placed) {
            QCOMPARE(placed->includeFile(), "lmwidgets/" + it.value());
        }
    }
    for (QDesignerCustomWidgetInterface *widget : qAsConst(m_widgets)) {
        QVERIFY2(classes.contains(widget->name()), qPrintable(widget->name()));
    }
    const QStringList others = notPlaced().keys();
    for (const QString &name : others) {
        QVERIFY2(classes.contains(name), qPrintable(name));
    }
}

void tst_DesignerPlugin::describes()
{
    QFETCH(QString, name);
    QDesignerCustomWidgetInterface *plugin = widget(name);
    QVERIFY(plugin->group().startsWith(QString::fromUtf8("lmwidgets \u2013 ")));
    QVERIFY(!plugin->toolTip().isEmpty());
    QVERIFY(!plugin->toolTip().endsWith('.'));
    QVERIFY(plugin->whatsThis().endsWith('.'));
    QVERIFY(plugin->whatsThis().size() > plugin->toolTip().size());
    QVERIFY(QFileInfo(QStringLiteral(LMWIDGETS_SOURCE_DIR "/") + plugin->includeFile()).isFile());
}

void tst_DesignerPlugin::picture()
{
    QFETCH(QString, name);
    const QIcon icon = widget(name)->icon();
    QVERIFY(!icon.isNull());
    QVERIFY(icon.availableSizes().contains(QSize(22, 22)));
    // For a screen of double resolution there is a finer one, not an enlarged one.
    const QString drawing = name.section(QStringLiteral("::"), -1).toLower();
    QCOMPARE(QImage(":/lmwidgets/designer/" + drawing + "@2x.png").size(), QSize(44, 44));
    const QImage image = icon.pixmap(22).toImage();
    QCOMPARE(image.size(), QSize(22, 22));
    int inked = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            inked += image.pixelColor(x, y).alpha() > 0 ? 1 : 0;
        }
    }
    QVERIFY2(inked > 30, qPrintable(QString::number(inked)));
    QVERIFY2(inked < 22 * 22, "there is no transparent ground");
}

void tst_DesignerPlugin::newWidgetInXml()
{
    QFETCH(QString, name);
    QDesignerCustomWidgetInterface *plugin = widget(name);
    const QDomElement ui = parse(plugin->domXml());
    QCOMPARE(ui.tagName(), QStringLiteral("ui"));
    QCOMPARE(ui.attribute("language"), QStringLiteral("c++"));
    QVERIFY(!ui.attribute("displayname").isEmpty());

    const QDomElement element = ui.firstChildElement("widget");
    QCOMPARE(element.attribute("class"), name);
    const QString objectName = element.attribute("name");
    QVERIFY(QRegularExpression("^[a-z][A-Za-z]+$").match(objectName).hasMatch());

    const QDomElement geometry = element.firstChildElement("property");
    QCOMPARE(geometry.attribute("name"), QStringLiteral("geometry"));
    const QDomElement rect = geometry.firstChildElement("rect");
    const QSize size(rect.firstChildElement("width").text().toInt(),
                     rect.firstChildElement("height").text().toInt());
    const std::unique_ptr<QWidget> made = dropped(plugin);
    QVERIFY(made);
    QCOMPARE(QString::fromLatin1(made->metaObject()->className()), name);
    QCOMPARE(made->objectName(), objectName);
    QVERIFY2(size.width() >= made->minimumSizeHint().width() &&
                 size.height() >= made->minimumSizeHint().height(),
             "a new widget is too small for what it shows");

    // The properties are ones that the class has.
    for (QDomElement property = geometry; !property.isNull();
         property = property.nextSiblingElement("property")) {
        const QByteArray propertyName = property.attribute("name").toLatin1();
        const int index = made->metaObject()->indexOfProperty(propertyName);
        QVERIFY2(index >= 0, propertyName.constData());
        QVERIFY(made->metaObject()->property(index).isWritable());
    }

    // uic treats the widget as the nearest class of Qt's, which therefore has to be one.
    const QDomElement known = ui.firstChildElement("customwidgets").firstChildElement();
    QCOMPARE(known.firstChildElement("class").text(), name);
    const QString base = known.firstChildElement("extends").text();
    const QMetaObject *meta = made->metaObject();
    const QMap<QString, QString> ours = publicClasses();
    while (ours.contains(meta->className())) {
        meta = meta->superClass();
    }
    QCOMPARE(base, QString::fromLatin1(meta->className()));
    QCOMPARE(plugin->isContainer(), base == "QGroupBox" || base == "QTabWidget");
}

void tst_DesignerPlugin::creates()
{
    QFETCH(QString, name);
    QDesignerCustomWidgetInterface *plugin = widget(name);
    QWidget parent;
    QPointer<QWidget> child = plugin->createWidget(&parent);
    QVERIFY(child);
    QCOMPARE(QString::fromLatin1(child->metaObject()->className()), name);
    QCOMPARE(child->parentWidget(), &parent);
    QVERIFY(!child->isWindow());
    QPointer<QWidget> second = plugin->createWidget(&parent);
    QVERIFY(second && second != child);

    // It shows without a theme's pictures and without a complaint.
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QVERIFY(child->isVisible());

    const std::unique_ptr<QWidget> alone(plugin->createWidget(nullptr));
    QVERIFY(alone && !alone->parentWidget());
}

void tst_DesignerPlugin::initializes()
{
    QFETCH(QString, name);
    // A loader of its own would give the same instance, so this runs once for each widget.
    QDesignerCustomWidgetInterface *plugin = widget(name);
    QVERIFY(!plugin->isInitialized());
    plugin->initialize(nullptr);
    QVERIFY(plugin->isInitialized());
    plugin->initialize(nullptr);
    QVERIFY(plugin->isInitialized());
}

LMTEST_MAIN(tst_DesignerPlugin)

#include "tst_designerplugin.moc"
