#include "lmtest.h"

#include <lmwidgets/hyperlinklabel.h>

#include <QDesktopServices>
#include <QUrl>

#include <functional>

using LM::Widgets::HyperlinkLabel;

/** Stands in for the programs of the desktop: it keeps the addresses that are opened. */
class Opener : public QObject
{
    Q_OBJECT

public:
    Opener()
    {
        for (const QString &scheme : schemes()) {
            QDesktopServices::setUrlHandler(scheme, this, "open");
        }
    }
    ~Opener() override
    {
        for (const QString &scheme : schemes()) {
            QDesktopServices::unsetUrlHandler(scheme);
        }
    }

    QList<QUrl> opened;
    std::function<void()> onOpen;

public Q_SLOTS:
    void open(const QUrl &url)
    {
        opened.append(url);
        if (onOpen) {
            onOpen();
        }
    }

private:
    // A path has none.
    static QStringList schemes()
    {
        return {QString(), QStringLiteral("file"), QStringLiteral("https"), QStringLiteral("c")};
    }
};

namespace {

bool showLabel(HyperlinkLabel &label)
{
    label.resize(label.sizeHint().expandedTo(QSize(60, 30)));
    label.show();
    return QTest::qWaitForWindowExposed(&label);
}

QPoint linkPlace(const HyperlinkLabel &label)
{
    return QPoint(6, label.height() / 2);
}

/** What QUrl says of no address at all: QDesktopServices does not ask a program for it. */
QList<QUrl> urls(const QStringList &texts)
{
    QList<QUrl> result;
    for (const QString &text : texts) {
        result.append(QUrl(text));
    }
    return result;
}

} // namespace

class tst_HyperlinkLabel : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void newLabel();
    void clickOpensTheText();
    void laterAddressIsOpened();
    void laterTextIsOpened();
    void textIsShownAsItIs_data();
    void textIsShownAsItIs();
    void slotIgnoresItsArgument();
    void addresses_data();
    void addresses();
    void nothingToOpen();
    void clickBesideTheLink();
    void keyboard();
    void createConnectConnectsOnce();
    void baseProperty_data();
    void baseProperty();
    void externalLinksAreFollowedByQt();
    void destroyedByTheOpener_data();
    void destroyedByTheOpener();
    void destroyedByLinkActivated();
};

void tst_HyperlinkLabel::newLabel()
{
    QWidget parent;
    HyperlinkLabel label(&parent);
    QCOMPARE(label.parentWidget(), &parent);
    QVERIFY(label.text().isEmpty());
    QVERIFY(!label.openExternalLinks());
    QVERIFY(label.dynamicPropertyNames().isEmpty());
    const QMetaObject *meta = label.metaObject();
    QCOMPARE(QLatin1String(meta->className()), QLatin1String("LM::Widgets::HyperlinkLabel"));
    QCOMPARE(meta->superClass(), &QLabel::staticMetaObject);
    QCOMPARE(lmtest::ownMethods(*meta).size(), 1);
    QVERIFY(meta->indexOfSlot("slotOpenUrl(QString)") >= 0);
    QVERIFY(!HyperlinkLabel().parent());
}

void tst_HyperlinkLabel::clickOpensTheText()
{
    Opener opener;
    HyperlinkLabel label;
    label.setHyperlinksText(QStringLiteral("/srv/projects/one"));
    QVERIFY(showLabel(label));
    QSignalSpy activated(&label, &QLabel::linkActivated);
    QTest::mouseClick(&label, Qt::LeftButton, Qt::NoModifier, linkPlace(label));
    QCOMPARE(opener.opened, urls({QStringLiteral("/srv/projects/one")}));
    QCOMPARE(activated.count(), 1);
    QCOMPARE(activated.at(0).at(0).toString(), QStringLiteral("hello"));
}

void tst_HyperlinkLabel::laterAddressIsOpened()
{
    Opener opener;
    HyperlinkLabel label;
    label.setHyperlinksText(QStringLiteral("/srv/projects/one"));
    QVERIFY(showLabel(label));
    QTest::mouseClick(&label, Qt::LeftButton, Qt::NoModifier, linkPlace(label));
    label.setFileDir(QStringLiteral("/srv/projects/two"));
    QCOMPARE(label.text(), QStringLiteral("<a href=hello>/srv/projects/one</a>"));
    QTest::mouseClick(&label, Qt::LeftButton, Qt::NoModifier, linkPlace(label));
    QCOMPARE(opener.opened,
             urls({QStringLiteral("/srv/projects/one"), QStringLiteral("/srv/projects/two")}));
}

void tst_HyperlinkLabel::laterTextIsOpened()
{
    Opener opener;
    HyperlinkLabel label;
    label.setFileDir(QStringLiteral("/srv/projects/two"));
    label.setHyperlinksText(QStringLiteral("/srv/projects/one"));
    label.slotOpenUrl(QString());
    QCOMPARE(opener.opened, urls({QStringLiteral("/srv/projects/one")}));
}

void tst_HyperlinkLabel::textIsShownAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("path") << "C:/data/survey 07";
    QTest::newRow("place markers") << "100%1 %2 %L1 %%";
    QTest::newRow("markup") << "<b>Open</b>";
    QTest::newRow("half of a mark") << "a < b & c";
    QTest::newRow("end of the link") << "</a><a href=\"https://example.com\">x";
    QTest::newRow("another script")
        << QString::fromUtf8("\xe7\x82\xb9\xe4\xba\x91 \xf0\x9f\x94\x97");
    QTest::newRow("zero") << QString(QChar(0));
    QTest::newRow("long") << QString(100000, QLatin1Char('x'));
}

void tst_HyperlinkLabel::textIsShownAsItIs()
{
    QFETCH(QString, text);
    HyperlinkLabel label;
    label.setHyperlinksText(text);
    QCOMPARE(label.text(), QLatin1String("<a href=hello>") + text + QLatin1String("</a>"));
    QVERIFY(showLabel(label));
    QVERIFY(!label.grab().isNull());
}

void tst_HyperlinkLabel::slotIgnoresItsArgument()
{
    Opener opener;
    HyperlinkLabel label;
    label.setFileDir(QStringLiteral("https://example.com/a"));
    label.slotOpenUrl(QStringLiteral("https://example.com/b"));
    label.slotOpenUrl(QString());
    QCOMPARE(opener.opened, urls({QStringLiteral("https://example.com/a"),
                                  QStringLiteral("https://example.com/a")}));
}

void tst_HyperlinkLabel::addresses_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("encoded");
    QTest::newRow("path") << "/srv/one"
                          << "/srv/one";
    QTest::newRow("blanks") << "/srv/one two"
                            << "/srv/one%20two";
    QTest::newRow("file") << "file:///srv/one"
                          << "file:///srv/one";
    QTest::newRow("bare per cent") << "https://example.com/100%"
                                   << "https://example.com/100%25";
    QTest::newRow("query") << "https://example.com/?a=1&b=2"
                           << "https://example.com/?a=1&b=2";
    QTest::newRow("drive") << "C:/data"
                           << "c:/data";
}

void tst_HyperlinkLabel::addresses()
{
    QFETCH(QString, address);
    QFETCH(QString, encoded);
    Opener opener;
    HyperlinkLabel label;
    label.setFileDir(address);
    label.slotOpenUrl(QStringLiteral("hello"));
    QCOMPARE(opener.opened.size(), 1);
    QCOMPARE(opener.opened.at(0).toString(QUrl::FullyEncoded), encoded);
}

void tst_HyperlinkLabel::nothingToOpen()
{
    HyperlinkLabel label;
    label.slotOpenUrl(QStringLiteral("hello"));
    label.setFileDir(QStringLiteral("http://[half"));
    label.slotOpenUrl(QStringLiteral("hello"));
    label.setHyperlinksText(QString());
    QVERIFY(showLabel(label));
    QTest::mouseClick(&label, Qt::LeftButton, Qt::NoModifier, linkPlace(label));
    QCOMPARE(label.text(), QStringLiteral("<a href=hello></a>"));
}

void tst_HyperlinkLabel::clickBesideTheLink()
{
    Opener opener;
    HyperlinkLabel label;
    label.setHyperlinksText(QStringLiteral("/srv"));
    QVERIFY(showLabel(label));
    label.resize(400, 60);
    QTest::mouseClick(&label, Qt::LeftButton, Qt::NoModifier, QPoint(390, 30));
    QTest::mouseClick(&label, Qt::RightButton, Qt::NoModifier, QPoint(6, 30));
    QTest::mousePress(&label, Qt::LeftButton, Qt::NoModifier, QPoint(6, 30));
    QVERIFY(opener.opened.isEmpty());
    QTest::mouseRelease(&label, Qt::LeftButton, Qt::NoModifier, QPoint(6, 30));
    QCOMPARE(opener.opened.size(), 1);
}

void tst_HyperlinkLabel::keyboard()
{
    Opener opener;
    HyperlinkLabel label;
    label.setTextInteractionFlags(Qt::LinksAccessibleByKeyboard | Qt::LinksAccessibleByMouse);
    label.setHyperlinksText(QStringLiteral("/srv"));
    QVERIFY(showLabel(label));
    QApplication::setActiveWindow(&label);
    label.setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(label.hasFocus());
    QTest::keyClick(&label, Qt::Key_Tab);
    QTest::keyClick(&label, Qt::Key_Return);
    QCOMPARE(opener.opened, urls({QStringLiteral("/srv")}));
}

void tst_HyperlinkLabel::createConnectConnectsOnce()
{
    Opener opener;
    HyperlinkLabel label;
    label.setHyperlinksText(QStringLiteral("/srv"));
    label.createConnect();
    Q_EMIT label.linkActivated(QStringLiteral("hello"));
    QCOMPARE(opener.opened.size(), 1);

    disconnect(&label, &QLabel::linkActivated, &label, &HyperlinkLabel::slotOpenUrl);
    Q_EMIT label.linkActivated(QStringLiteral("hello"));
    QCOMPARE(opener.opened.size(), 1);
    label.createConnect();
    Q_EMIT label.linkActivated(QStringLiteral("hello"));
    QCOMPARE(opener.opened.size(), 2);
}

void tst_HyperlinkLabel::baseProperty_data()
{
    QTest::addColumn<bool>("external");
    QTest::newRow("external") << true;
    QTest::newRow("not external") << false;
}

void tst_HyperlinkLabel::baseProperty()
{
    QFETCH(bool, external);
    HyperlinkLabel label;
    label.setOpenExternalLinks(!external);
    label.setBaseProperty(external);
    QCOMPARE(label.openExternalLinks(), external);
    QCOMPARE(label.property("about"), QVariant(true));
    QCOMPARE(label.dynamicPropertyNames(), QList<QByteArray>{"about"});
}

void tst_HyperlinkLabel::externalLinksAreFollowedByQt()
{
    Opener opener;
    HyperlinkLabel label;
    label.setHyperlinksText(QStringLiteral("/srv"));
    label.setBaseProperty(true);
    QVERIFY(showLabel(label));
    QSignalSpy activated(&label, &QLabel::linkActivated);
    QTest::mouseClick(&label, Qt::LeftButton, Qt::NoModifier, linkPlace(label));
    QCOMPARE(activated.count(), 0);
    QCOMPARE(opener.opened, urls({QStringLiteral("hello")}));

    label.setBaseProperty(false);
    QTest::mouseClick(&label, Qt::LeftButton, Qt::NoModifier, linkPlace(label));
    QCOMPARE(opener.opened.last(), QUrl(QStringLiteral("/srv")));
}

void tst_HyperlinkLabel::destroyedByTheOpener_data()
{
    QTest::addColumn<bool>("key");
    QTest::newRow("mouse") << false;
    QTest::newRow("key") << true;
}

void tst_HyperlinkLabel::destroyedByTheOpener()
{
    QFETCH(bool, key);
    Opener opener;
    const QPointer<HyperlinkLabel> label(new HyperlinkLabel);
    label->setTextInteractionFlags(Qt::LinksAccessibleByKeyboard | Qt::LinksAccessibleByMouse);
    label->setHyperlinksText(QStringLiteral("/srv"));
    QVERIFY(showLabel(*label));
    opener.onOpen = [&] { delete label.data(); };
    if (key) {
        QApplication::setActiveWindow(label);
        label->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(label->hasFocus());
        QTest::keyClick(label.data(), Qt::Key_Tab);
        QTest::keyClick(label.data(), Qt::Key_Return);
    } else {
        QTest::mouseClick(label.data(), Qt::LeftButton, Qt::NoModifier, linkPlace(*label));
    }
    QVERIFY(!label);
    QCOMPARE(opener.opened.size(), 1);
}

void tst_HyperlinkLabel::destroyedByLinkActivated()
{
    Opener opener;
    const QPointer<HyperlinkLabel> label(new HyperlinkLabel);
    label->setHyperlinksText(QStringLiteral("/srv"));
    QVERIFY(showLabel(*label));
    connect(label, &QLabel::linkActivated, this, [&] { delete label.data(); });
    QTest::mouseClick(label.data(), Qt::LeftButton, Qt::NoModifier, linkPlace(*label));
    QVERIFY(!label);
    QCOMPARE(opener.opened.size(), 1);
}

LMTEST_MAIN(tst_HyperlinkLabel)

#include "tst_hyperlinklabel.moc"
