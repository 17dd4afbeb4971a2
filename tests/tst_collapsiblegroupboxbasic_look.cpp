/** @file
 * How a collapsible group box looks: images, style sheet, and which children show.
 */

#include "groupboxtest.h"

#include <lmwidgets/talvostylemanager.h>

#include <QDialog>
#include <QFile>
#include <QProxyStyle>
#include <QStyleFactory>

using namespace groupboxtest;

namespace {

/** A style with the rectangles that a test wants. */
class RectStyle : public QProxyStyle
{
public:
    explicit RectStyle(const QString &name)
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
    {
        setObjectName(name);
    }
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                         SubControl subControl, const QWidget *widget) const override
    {
        if (control == CC_GroupBox && subControl == SC_GroupBoxFrame) {
            return frame;
        }
        if (control == CC_GroupBox && subControl == SC_GroupBoxLabel) {
            return title;
        }
        if (control == CC_GroupBox && subControl == SC_GroupBoxCheckBox) {
            return checkBox;
        }
        return QProxyStyle::subControlRect(control, option, subControl, widget);
    }

    QRect frame = QRect(3, 4, 100, 50);
    QRect title = QRect(0, 0, 40, 16);
    QRect checkBox = QRect(0, 2, 13, 13);
};

/** Sets the application's style for as long as it lives. */
struct ApplicationStyle
{
    explicit ApplicationStyle(QStyle *style) { QApplication::setStyle(style); }
    ~ApplicationStyle() { lmtest::prepareApplication(); }
};

QString titleStyle(int left, int top, const QString &more = QString())
{
    return QStringLiteral("CollapsibleGroupBoxBasic::title, CollapsibleGroupBox::title {"
                          "  subcontrol-origin: margin;  subcontrol-position: top left;"
                          "  margin-left: 20px;  margin-right: 5px;  left: %1px;  top: %2px;%3}")
        .arg(left)
        .arg(top)
        .arg(more);
}

} // namespace

class tst_CollapsibleGroupBoxBasicLook : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void icons();
    void iconsMissing();
    void styleText_data();
    void styleText();
    void arrowStyleText();
    void styleOnlyAtFirstShow();
    void updatesStayAsTheHostHasThem();
    void childrenHiddenByFolding();
    void childrenHiddenByOthers();
    void childrenHiddenBeforeFolding();
    void childWindowsStay();
    void markedForeignStyleSheet();
    void styleChange();
};

void tst_CollapsibleGroupBoxBasicLook::icons()
{
    const auto picture = [](const QString &theme, const QString &name) {
        const QPixmap pixmap(lmtest::themeDir() + theme + QStringLiteral("/qssimage/") + name);
        return QIcon(pixmap).pixmap(16, 16).toImage();
    };
    const auto shown = [](const Box &box) { return box.arrow()->icon().pixmap(16, 16).toImage(); };
    const QString top = QStringLiteral("dockwidgeticontop.png");
    const QString bottom = QStringLiteral("dockwidgeticonbuttom.png");
    auto *manager = LM::Widgets::TalvoStyleManager::instance().data();

    Box box;
    QVERIFY(!picture(QStringLiteral("/Black"), top).isNull());
    QVERIFY(picture(QStringLiteral("/Black"), top) != picture(QStringLiteral("/Black"), bottom));
    QCOMPARE(shown(box), picture(QStringLiteral("/Black"), top));
    box.show();
    box.setCollapsed(true);
    QCOMPARE(shown(box), picture(QStringLiteral("/Black"), bottom));

    // The theme of the construction stays.
    manager->shiftStyle(LM::Widgets::TalvoStyleManager::White);
    box.setCollapsed(false);
    QCOMPARE(shown(box), picture(QStringLiteral("/Black"), top));
    const Box white;
    QCOMPARE(shown(white), picture(QStringLiteral("/White"), top));
    manager->shiftStyle(LM::Widgets::TalvoStyleManager::Black);
}

void tst_CollapsibleGroupBoxBasicLook::iconsMissing()
{
    const QString image =
        lmtest::themeDir() + QStringLiteral("/Blue/qssimage/dockwidgeticontop.png");
    auto *manager = LM::Widgets::TalvoStyleManager::instance().data();
    QVERIFY(QFile::rename(image, image + QStringLiteral("-away")));
    manager->shiftStyle(LM::Widgets::TalvoStyleManager::Blue);
    const Box box;
    manager->shiftStyle(LM::Widgets::TalvoStyleManager::Black);
    QVERIFY(QFile::rename(image + QStringLiteral("-away"), image));
    QVERIFY(box.arrow()->icon().isNull());
}

void tst_CollapsibleGroupBoxBasicLook::styleText_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<int>("titleHeight");
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QPoint>("arrow");

    const QString plain = QStringLiteral("fusion");
    const QString mac = QStringLiteral("macintosh");
    const QString oxygen = QStringLiteral("OXYGEN");
    const QRect inside(3, 4, 100, 50);
    const QRect edge(0, 0, 100, 50);
    const QRect beyond(-2, -3, 100, 50);
    QTest::newRow("as high") << plain << inside << 16 << false << titleStyle(0, 1) << QPoint(0, 1);
    QTest::newRow("low") << plain << inside << 11 << false << titleStyle(0, 3) << QPoint(0, 1);
    QTest::newRow("by one") << plain << inside << 15 << false << titleStyle(0, 1) << QPoint(0, 1);
    QTest::newRow("by two") << plain << inside << 14 << false << titleStyle(0, 2) << QPoint(0, 1);
    QTest::newRow("high") << plain << inside << 21 << false << titleStyle(0, 1) << QPoint(0, 3);
    QTest::newRow("edge") << plain << edge << 16 << true << titleStyle(0, 1) << QPoint(0, 1);

    const QString macFrame =
        QStringLiteral("CollapsibleGroupBoxBasic, CollapsibleGroupBox {  margin-top: %1px;}");
    const QString clear = QStringLiteral("  background-color: rgba(0,0,0,0)");
    QTest::newRow("mac") << mac << inside << 12 << false
                         << macFrame.arg(13) + titleStyle(0, 11, clear) << QPoint(0, 9);
    QTest::newRow("mac, part of the name")
        << QStringLiteral("my-macintosh-2") << edge << 16 << false
        << macFrame.arg(9) + titleStyle(0, 9, clear) << QPoint(0, 9);
    QTest::newRow("mac, other letters")
        << QStringLiteral("Macintosh") << inside << 16 << false << titleStyle(0, 1) << QPoint(0, 1);

    QTest::newRow("oxygen") << oxygen << inside << 12 << false << titleStyle(0, 3) << QPoint(0, 1);
    QTest::newRow("oxygen, one px inside")
        << oxygen << QRect(1, 1, 100, 50) << 12 << false << titleStyle(0, 3) << QPoint(0, 1);
    QTest::newRow("oxygen, edge") << oxygen << edge << 12 << false << titleStyle(6, 6)
                                  << QPoint(6, 6);
    QTest::newRow("oxygen, beyond")
        << oxygen << beyond << 12 << false << titleStyle(4, 3) << QPoint(4, 3);
    QTest::newRow("oxygen, left edge only")
        << oxygen << QRect(0, 4, 100, 50) << 12 << true << titleStyle(6, 3) << QPoint(6, 1);
    // The check box is 13 px high at 2 px.
    QTest::newRow("oxygen, checkable")
        << oxygen << edge << 12 << true << titleStyle(6, 0) << QPoint(6, 1);
    QTest::newRow("oxygen, part of the name")
        << QStringLiteral("oxygen2") << edge << 16 << false << titleStyle(0, 1) << QPoint(0, 1);
}

void tst_CollapsibleGroupBoxBasicLook::styleText()
{
    QFETCH(QString, style);
    QFETCH(QRect, frame);
    QFETCH(int, titleHeight);
    QFETCH(bool, checkable);
    QFETCH(QString, text);
    auto *rects = new RectStyle(style);
    rects->frame = frame;
    rects->title.setHeight(titleHeight);
    const ApplicationStyle applicationStyle(rects);

    Box box(QStringLiteral("Colour"));
    box.setCheckable(checkable);
    box.setStyleSheet(QStringLiteral("/* host */"));
    box.show();
    QCOMPARE(box.styleSheet(), QStringLiteral("/* host */") + text);
    QTEST(box.arrow()->pos(), "arrow");
}

void tst_CollapsibleGroupBoxBasicLook::arrowStyleText()
{
    Box box;
    box.arrow()->setObjectName(QStringLiteral("hostName"));
    box.show();
    QCOMPARE(box.arrow()->styleSheet(),
             QStringLiteral("CollapsibleGroupBoxBasic > QToolButton#hostName, "
                            "CollapsibleGroupBox > QToolButton#hostName {"
                            "  background-color: rgba(255, 255, 255, 0); border: none;} "
                            "CollapsibleGroupBoxBasic > QToolButton#hostName:focus, "
                            "CollapsibleGroupBox > QToolButton#hostName:focus {"
                            "  border: 1px solid palette(highlight); }"));
}

void tst_CollapsibleGroupBoxBasicLook::styleOnlyAtFirstShow()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    box->show();
    const QString style = box->styleSheet();
    QCOMPARE(style.count(QStringLiteral("subcontrol-position")), 1);
    box->hide();
    box->show();
    QCOMPARE(box->styleSheet(), style);

    // What the host sets is all there is then.
    box->setStyleSheet(QStringLiteral("/* host */"));
    QCOMPARE(box->styleSheet(), QStringLiteral("/* host */"));
    box->hide();
    box->show();
    QCOMPARE(box->styleSheet(), QStringLiteral("/* host */"));
}

void tst_CollapsibleGroupBoxBasicLook::updatesStayAsTheHostHasThem()
{
    Box box;
    box.show();
    QVERIFY(box.updatesEnabled());
    Box stopped;
    stopped.setUpdatesEnabled(false);
    stopped.show();
    QVERIFY(!stopped.updatesEnabled());
}

void tst_CollapsibleGroupBoxBasicLook::childrenHiddenByFolding()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a"), 2));
    auto *inner = new QWidget;
    auto *grandchild = new QLabel(QStringLiteral("inner"), inner);
    box->layout()->addWidget(inner);
    const auto labels = box->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    box->show();
    QVERIFY(!labels.at(0)->property("CollGrpBxHide").isValid());

    box->setCollapsed(true);
    QVERIFY(labels.at(0)->isHidden());
    QVERIFY(inner->isHidden());
    QVERIFY(!grandchild->isHidden());
    QVERIFY(!box->arrow()->isHidden());
    QCOMPARE(labels.at(0)->property("CollGrpBxHide"), QVariant(true));
    QVERIFY(!grandchild->property("CollGrpBxHide").isValid());
    QVERIFY(!box->arrow()->property("CollGrpBxHide").isValid());
    QVERIFY(!box->layout()->property("CollGrpBxHide").isValid());

    box->setCollapsed(false);
    QVERIFY(labels.at(0)->isVisible());
    QVERIFY(grandchild->isVisible());
    QCOMPARE(labels.at(0)->property("CollGrpBxHide"), QVariant(true));
}

void tst_CollapsibleGroupBoxBasicLook::childrenHiddenByOthers()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a"), 2));
    box->show();
    box->setCollapsed(true);
    // Came while the box was folded, and is hidden by the host: folding has nothing to do with it.
    auto *late = new QLabel(QStringLiteral("late"));
    late->hide();
    box->layout()->addWidget(late);
    box->setCollapsed(false);
    QVERIFY(late->isHidden());
    box->setCollapsed(false);
    QVERIFY(late->isHidden());

    // What folding hid once is shown by every later opening.
    QLabel *label = box->findChild<QLabel *>();
    label->hide();
    box->setCollapsed(false);
    QVERIFY(label->isVisible());

    // Any value that reads true counts, and no other.
    late->setProperty("CollGrpBxHide", false);
    box->setCollapsed(false);
    QVERIFY(late->isHidden());
    late->setProperty("CollGrpBxHide", 1);
    box->setCollapsed(false);
    QVERIFY(late->isVisible());
}

void tst_CollapsibleGroupBoxBasicLook::childrenHiddenBeforeFolding()
{
    // Folding marks all children that are there, so opening shows this one too; a host that wants
    // it hidden says so again.
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a"), 2));
    auto *label = box->findChild<QLabel *>();
    label->hide();
    box->show();
    box->setCollapsed(true);
    QCOMPARE(label->property("CollGrpBxHide"), QVariant(true));
    connect(box.get(), &CollapsibleGroupBoxBasic::collapsedStateChanged, this, [&](bool collapsed) {
        if (!collapsed) {
            QVERIFY(label->isVisible());
            label->hide();
        }
    });
    box->setCollapsed(false);
    QVERIFY(label->isHidden());
}

void tst_CollapsibleGroupBoxBasicLook::childWindowsStay()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    box->show();
    QDialog closed(box.get());
    QDialog open(box.get());
    open.show();
    box->setCollapsed(true);
    QVERIFY(open.isVisible());
    box->setCollapsed(false);
    QVERIFY(!closed.isVisible());
}

void tst_CollapsibleGroupBoxBasicLook::markedForeignStyleSheet()
{
    // A host whose style sheet has the very same text loses it on opening, every time it is there.
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    box->show();
    box->setStyleSheet(QStringLiteral("A {}") + Marker + Marker + QStringLiteral("B {}"));
    box->setCollapsed(true);
    QCOMPARE(box->styleSheet(), QStringLiteral("A {}") + Marker + Marker + QStringLiteral("B {}"));
    box->setCollapsed(false);
    QCOMPARE(box->styleSheet(), QStringLiteral("A {}B {}"));
}

void tst_CollapsibleGroupBoxBasicLook::styleChange()
{
    Panel panel(2);
    panel.show();
    Box *box = panel.boxes[0];
    const QString style = box->styleSheet();
    const QPoint arrow = box->arrow()->pos();
    {
        auto *rects = new RectStyle(QStringLiteral("oxygen"));
        rects->frame = QRect(0, 0, 100, 50);
        const ApplicationStyle applicationStyle(rects);
        QCoreApplication::processEvents();
        QCOMPARE(box->styleSheet(), style);
        QCOMPARE(box->arrow()->pos(), arrow);
        clickArrow(box);
        QVERIFY(box->isCollapsed());
    }
    clickTitle(box);
    QVERIFY(!box->isCollapsed());
    QCOMPARE(box->styleSheet(), style);

    // A style sheet of the application's comes and goes.
    qApp->setStyleSheet(QStringLiteral("QGroupBox { border: 2px solid red; margin-top: 30px; }"));
    clickTitle(box);
    QVERIFY(box->isCollapsed());
    QCOMPARE(box->maximumHeight(), box->titleRect().bottom() + 6);
    qApp->setStyleSheet(QString());
    clickTitle(box);
    QVERIFY(!box->isCollapsed());
}

LMTEST_MAIN(tst_CollapsibleGroupBoxBasicLook)
#include "tst_collapsiblegroupboxbasic_look.moc"
