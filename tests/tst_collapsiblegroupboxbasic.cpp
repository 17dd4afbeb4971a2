#include "lmtest.h"

#include <lmwidgets/collapsiblegroupboxbasic.h>
#include <lmwidgets/groupboxcollapsebutton.h>
#include <lmwidgets/talvostylemanager.h>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPointer>
#include <QProxyStyle>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QVBoxLayout>
#include <QWindow>

#include <functional>
#include <memory>
#include <utility>

namespace {

const QString Marker = QStringLiteral(" CollapsibleGroupBoxBasic { border: none; }");
const QString Group = QStringLiteral("group");

class Box : public CollapsibleGroupBoxBasic
{
public:
    using CollapsibleGroupBoxBasic::collapseExpandFixes;
    using CollapsibleGroupBoxBasic::CollapsibleGroupBoxBasic;
    using CollapsibleGroupBoxBasic::mousePressEvent;
    using CollapsibleGroupBoxBasic::titleRect;
    using CollapsibleGroupBoxBasic::updateStyle;

    GroupBoxCollapseButton *arrow() const
    {
        return findChild<GroupBoxCollapseButton *>(QString(), Qt::FindDirectChildrenOnly);
    }
    QPoint titlePoint() { return titleRect().center(); }
};

/** A box called @p name with some labels in it. */
Box *makeBox(const QString &name, int labels = 3)
{
    auto *box = new Box(name);
    box->setObjectName(name);
    auto *layout = new QVBoxLayout(box);
    for (int i = 0; i < labels; ++i) {
        layout->addWidget(new QLabel(QStringLiteral("label %1").arg(i)));
    }
    return box;
}

/** A property panel: boxes one below the other in a scroll area. */
struct Panel
{
    explicit Panel(int count = 5, int labels = 3)
    {
        area = new QScrollArea;
        area->setWidgetResizable(true);
        content = new QWidget;
        auto *layout = new QVBoxLayout(content);
        for (int i = 0; i < count; ++i) {
            Box *box = makeBox(QString(QLatin1Char(char('a' + i))), labels);
            layout->addWidget(box);
            boxes.append(box);
        }
        layout->addStretch();
        area->setWidget(content);
        area->resize(300, 250);
    }
    ~Panel() { delete area.data(); }

    void group()
    {
        for (Box *box : boxes) {
            box->setSyncGroup(Group);
        }
    }
    void show()
    {
        area->show();
        QVERIFY(QTest::qWaitForWindowExposed(area));
        QCoreApplication::processEvents();
    }
    /** The folded boxes by their names. */
    QString folded() const
    {
        QString names;
        for (const Box *box : boxes) {
            names += box->isCollapsed() ? box->objectName() : QString();
        }
        return names;
    }
    int scrolled() const { return area->verticalScrollBar()->value(); }

    QPointer<QScrollArea> area;
    QWidget *content = nullptr;
    QVector<Box *> boxes;
};

/** Writes down who said what, in order. */
struct Record
{
    void follow(CollapsibleGroupBoxBasic *box)
    {
        QObject::connect(box, &CollapsibleGroupBoxBasic::collapsedStateChanged, box,
                         [this, box](bool collapsed) {
                             lines += box->objectName() + QLatin1Char(collapsed ? '-' : '+');
                         });
    }
    void follow(const Panel &panel)
    {
        for (Box *box : panel.boxes) {
            follow(box);
        }
    }
    QString lines;
};

/** A click as from the window system: the window finds out which widget is meant. */
void click(QWidget *widget, const QPoint &position,
           Qt::KeyboardModifiers modifiers = Qt::NoModifier,
           Qt::MouseButton button = Qt::LeftButton)
{
    QWidget *window = widget->window();
    QTest::mouseClick(window->windowHandle(), button, modifiers, widget->mapTo(window, position));
}

void clickTitle(Box *box, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    click(box, box->titlePoint(), modifiers);
}

void clickArrow(Box *box, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    click(box->arrow(), QPoint(8, 8), modifiers);
}

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

/** Does something at the next event of a kind. It takes the event, so the widget may go meanwhile.
 */
class EventWatcher : public QObject
{
public:
    EventWatcher(QWidget *widget, QEvent::Type type, std::function<void()> act)
        : m_type(type), m_act(std::move(act))
    {
        widget->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != m_type || !m_act) {
            return false;
        }
        watched->removeEventFilter(this);
        std::function<void()> act;
        act.swap(m_act);
        act();
        return true;
    }

private:
    QEvent::Type m_type;
    std::function<void()> m_act;
};

} // namespace

class tst_CollapsibleGroupBoxBasic : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void foldedWhileHidden();
    void shownOpen();
    void maximumHeight();
    void shiftWithoutGroupOnlyOpens();
    void controlTogglesTheGroup_data();
    void controlTogglesTheGroup();
    void flatness();
    void uncheckedKeepsTheArrow();
    void markerComesAndGoesOnce();

    void initially();
    void metaObject();
    void properties();
    void icons();
    void iconsMissing();

    void styleText_data();
    void styleText();
    void arrowStyleText();
    void styleOnlyAtFirstShow();
    void updatesStayAsTheHostHasThem();

    void foldedLaterWhileHidden();
    void sameStateAgain();
    void shownStateIsKnownToListeners();
    void hiddenAndShownByAListenerOfTheFirstShow();
    void disabledAtFirstShow();

    void childrenHiddenByFolding();
    void childrenHiddenByOthers();
    void childWindowsStay();
    void markedForeignStyleSheet();

    void titleEdges();
    void otherButtonsAndPlaces();
    void keysCountForOneClick();
    void checkableTitleClick();
    void checkableModifiers();
    void checkedByCode();
    void checkClickedSlot();
    void keyboard();
    void toggleByOthers();

    void shiftOpensOne();
    void syncOtherGroups();
    void syncDisabled();
    void syncParent_data();
    void syncParent();
    void syncWithoutParent();
    void syncNested();
    void toolTip();

    void scrollsIntoView();
    void scrollsToTheTitleOfAHighBox();
    void openedGroupScrollsLikeItsBoxes_data();
    void openedGroupScrollsLikeItsBoxes();
    void doesNotScroll();
    void scrollAreaUpdates();

    void deletedByListeners_data();
    void deletedByListeners();
    void deletedWhileHidingChildren();
    void changedWhileHidingChildren();
    void siblingDeletedWhileShowingChildren_data();
    void siblingDeletedWhileShowingChildren();
    void resizedWhileShowingChildren();
    void deletedByAListenerOfTheScrollBar();
    void areaDestroyedWhileOpening();
    void panelTakenOutOfItsArea();
    void reparented();
    void styleChange();
    void arrowDeletedByHost();
};

void tst_CollapsibleGroupBoxBasic::foldedWhileHidden()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    QSignalSpy changed(box.get(), &CollapsibleGroupBoxBasic::collapsedStateChanged);
    box->setCollapsed(true);
    QVERIFY(box->isCollapsed());
    QVERIFY(!box->isFlat());
    QCOMPARE(box->maximumHeight(), QWIDGETSIZE_MAX);
    QVERIFY(box->styleSheet().isEmpty());
    QCOMPARE(changed.count(), 0);

    box->show();
    QCOMPARE(changed, QList<QVariantList>{QVariantList{true}});
    QVERIFY(box->isCollapsed());
    QVERIFY(box->isFlat());
    QVERIFY(!box->findChild<QLabel *>()->isVisible());
    box->hide();
    box->show();
    QCOMPARE(changed.count(), 1);
}

void tst_CollapsibleGroupBoxBasic::shownOpen()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    QSignalSpy changed(box.get(), &CollapsibleGroupBoxBasic::collapsedStateChanged);
    box->setCollapsed(true);
    box->setCollapsed(false);
    box->show();
    QCOMPARE(changed, QList<QVariantList>{QVariantList{false}});
    box->hide();
    box->show();
    QCOMPARE(changed.count(), 1);
}

void tst_CollapsibleGroupBoxBasic::maximumHeight()
{
    Panel panel(1);
    panel.show();
    Box *box = panel.boxes.first();
    const int height = box->height();
    QCOMPARE(box->maximumHeight(), 16777215);
    box->setCollapsed(true);
    QCOMPARE(box->maximumHeight(), box->titleRect().bottom() + 6);
    QTRY_COMPARE(box->height(), box->maximumHeight());
    box->setCollapsed(false);
    QCOMPARE(box->maximumHeight(), 16777215);
    QTRY_COMPARE(box->height(), height);
}

void tst_CollapsibleGroupBoxBasic::shiftWithoutGroupOnlyOpens()
{
    Panel panel(2);
    panel.show();
    Box *box = panel.boxes.first();
    Record record;
    record.follow(box);

    clickTitle(box, Qt::ShiftModifier);
    clickArrow(box, Qt::ShiftModifier);
    QVERIFY(!box->isCollapsed());
    QCOMPARE(record.lines, QString());
    box->setCollapsed(true);
    clickTitle(box, Qt::ShiftModifier);
    QVERIFY(!box->isCollapsed());
    box->setCollapsed(true);
    clickArrow(box, Qt::ShiftModifier);
    QVERIFY(!box->isCollapsed());
    QCOMPARE(record.lines, QStringLiteral("a-a+a-a+"));

    // Ctrl and Alt are nothing special without a group.
    clickTitle(box, Qt::ControlModifier);
    QCOMPARE(panel.folded(), QStringLiteral("a"));
    clickArrow(box, Qt::AltModifier);
    QCOMPARE(panel.folded(), QString());
}

void tst_CollapsibleGroupBoxBasic::controlTogglesTheGroup_data()
{
    QTest::addColumn<bool>("onArrow");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("title, control") << false << int(Qt::ControlModifier);
    QTest::newRow("title, alt") << false << int(Qt::AltModifier);
    QTest::newRow("arrow, control") << true << int(Qt::ControlModifier);
    QTest::newRow("arrow, alt") << true << int(Qt::AltModifier);
    QTest::newRow("arrow, both") << true << int(Qt::AltModifier | Qt::ControlModifier);
}

void tst_CollapsibleGroupBoxBasic::controlTogglesTheGroup()
{
    QFETCH(bool, onArrow);
    QFETCH(int, modifiers);
    const auto clickBox = [&](Box *box) {
        onArrow ? clickArrow(box, Qt::KeyboardModifiers(modifiers))
                : clickTitle(box, Qt::KeyboardModifiers(modifiers));
    };
    Panel panel;
    panel.area->resize(300, 800);
    panel.group();
    panel.boxes[1]->setCollapsed(true);
    panel.boxes[2]->setEnabled(false);
    panel.boxes[3]->setSyncGroup(QStringLiteral("other"));
    panel.show();
    Record record;
    record.follow(panel);

    clickBox(panel.boxes[0]);
    QCOMPARE(panel.folded(), QStringLiteral("abe"));
    QCOMPARE(record.lines, QStringLiteral("a-e-"));
    record.lines.clear();
    clickBox(panel.boxes[4]);
    QCOMPARE(panel.folded(), QString());
    QCOMPARE(record.lines, QStringLiteral("a+b+e+"));

    // The keys are forgotten: a plain click follows.
    clickBox(panel.boxes[0]);
    clickTitle(panel.boxes[0]);
    QCOMPARE(panel.folded(), QStringLiteral("be"));
    clickArrow(panel.boxes[1]);
    QCOMPARE(panel.folded(), QStringLiteral("e"));
    QVERIFY(!panel.boxes[1]->arrow()->altDown());
    QVERIFY(!panel.boxes[1]->arrow()->shiftDown());
}

void tst_CollapsibleGroupBoxBasic::flatness()
{
    std::unique_ptr<Box> flat(makeBox(QStringLiteral("a")));
    flat->setFlat(true);
    flat->show();
    flat->setCollapsed(true);
    QVERIFY(flat->isFlat());
    flat->setCollapsed(false);
    QVERIFY(flat->isFlat());

    std::unique_ptr<Box> framed(makeBox(QStringLiteral("b")));
    framed->show();
    framed->setCollapsed(true);
    QVERIFY(framed->isFlat());
    framed->setCollapsed(false);
    QVERIFY(!framed->isFlat());
    // What counts is how it was first shown.
    framed->setFlat(true);
    framed->setCollapsed(false);
    QVERIFY(!framed->isFlat());
}

void tst_CollapsibleGroupBoxBasic::uncheckedKeepsTheArrow()
{
    Panel panel(1);
    Box *box = panel.boxes.first();
    box->setCheckable(true);
    box->setChecked(false);
    QVERIFY(box->arrow()->isEnabled());
    panel.show();
    QVERIFY(box->arrow()->isEnabled());
    QVERIFY(!box->findChild<QLabel *>()->isEnabled());

    box->setChecked(true);
    box->setChecked(false);
    QVERIFY(box->arrow()->isEnabled());
    box->setEnabled(false);
    QVERIFY(!box->arrow()->isEnabled());
    box->setEnabled(true);
    QVERIFY(box->arrow()->isEnabled());
    panel.content->setEnabled(false);
    QVERIFY(!box->arrow()->isEnabled());
    panel.content->setEnabled(true);
    QVERIFY(box->arrow()->isEnabled());

    clickArrow(box);
    QVERIFY(box->isCollapsed());
    QVERIFY(!box->isChecked());
    clickArrow(box);
    QVERIFY(!box->isCollapsed());
    QVERIFY(!box->isChecked());
}

void tst_CollapsibleGroupBoxBasic::markerComesAndGoesOnce()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    box->setStyleSheet(QStringLiteral("QLabel { color: red; }"));
    box->show();
    const QString open = box->styleSheet();
    QVERIFY(!open.contains(Marker));
    for (int i = 0; i < 3; ++i) {
        box->setCollapsed(true);
        box->setCollapsed(true);
        box->collapseExpandFixes();
        QCOMPARE(box->styleSheet(), open + Marker);
        box->setCollapsed(false);
        box->setCollapsed(false);
        QCOMPARE(box->styleSheet(), open);
    }
}

void tst_CollapsibleGroupBoxBasic::initially()
{
    QWidget parent;
    Box box(QStringLiteral("Colour"), &parent);
    QCOMPARE(box.title(), QStringLiteral("Colour"));
    QCOMPARE(box.parentWidget(), &parent);
    QVERIFY(!box.isCollapsed());
    QVERIFY(box.scrollOnExpand());
    QVERIFY(box.syncGroup().isEmpty());
    QCOMPARE(box.focusPolicy(), Qt::StrongFocus);
    QVERIFY(box.styleSheet().isEmpty());

    GroupBoxCollapseButton *arrow = box.arrow();
    QVERIFY(arrow);
    QCOMPARE(box.children(), QObjectList{arrow});
    QCOMPARE(arrow->objectName(), QStringLiteral("collapseButton"));
    QVERIFY(arrow->autoRaise());
    QCOMPARE(arrow->minimumSize(), QSize(16, 16));
    QCOMPARE(arrow->maximumSize(), QSize(16, 16));
    QCOMPARE(arrow->iconSize(), QSize(16, 16));
    QVERIFY(arrow->toolTip().isEmpty());
    QVERIFY(arrow->styleSheet().isEmpty());

    Box other;
    QVERIFY(other.title().isEmpty());
    QVERIFY(!other.parentWidget());
    QVERIFY(other.arrow());
}

void tst_CollapsibleGroupBoxBasic::metaObject()
{
    const QMetaObject &meta = CollapsibleGroupBoxBasic::staticMetaObject;
    QCOMPARE(meta.className(), "CollapsibleGroupBoxBasic");
    QCOMPARE(lmtest::ownMethods(meta),
             (QStringList{QStringLiteral("signal collapsedStateChanged(bool collapsed)"),
                          QStringLiteral("slot checkToggled(bool ckd)"),
                          QStringLiteral("slot checkClicked(bool ckd)"),
                          QStringLiteral("slot toggleCollapsed()"),
                          QStringLiteral("slot setStyleSheet(QString style)")}));
    QStringList names;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        names.append(QString::fromLatin1(meta.property(i).name()));
        QVERIFY(meta.property(i).isWritable());
    }
    QCOMPARE(names, (QStringList{QStringLiteral("collapsed"), QStringLiteral("syncGroup"),
                                 QStringLiteral("scrollOnExpand")}));
}

void tst_CollapsibleGroupBoxBasic::properties()
{
    Box box;
    QVERIFY(box.setProperty("collapsed", true));
    QVERIFY(box.isCollapsed());
    QVERIFY(box.setProperty("syncGroup", QStringLiteral("g")));
    QCOMPARE(box.syncGroup(), QStringLiteral("g"));
    QVERIFY(box.setProperty("scrollOnExpand", false));
    QVERIFY(!box.scrollOnExpand());
    QCOMPARE(box.property("collapsed"), QVariant(true));
    QCOMPARE(box.property("syncGroup"), QVariant(QStringLiteral("g")));
    QCOMPARE(box.property("scrollOnExpand"), QVariant(false));
}

void tst_CollapsibleGroupBoxBasic::icons()
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

void tst_CollapsibleGroupBoxBasic::iconsMissing()
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

void tst_CollapsibleGroupBoxBasic::styleText_data()
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

void tst_CollapsibleGroupBoxBasic::styleText()
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

void tst_CollapsibleGroupBoxBasic::arrowStyleText()
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

void tst_CollapsibleGroupBoxBasic::styleOnlyAtFirstShow()
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

void tst_CollapsibleGroupBoxBasic::updatesStayAsTheHostHasThem()
{
    Box box;
    box.show();
    QVERIFY(box.updatesEnabled());
    Box stopped;
    stopped.setUpdatesEnabled(false);
    stopped.show();
    QVERIFY(!stopped.updatesEnabled());
}

void tst_CollapsibleGroupBoxBasic::foldedLaterWhileHidden()
{
    // Only the first show applies a state that was set while the box was hidden.
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    box->show();
    box->hide();
    QSignalSpy changed(box.get(), &CollapsibleGroupBoxBasic::collapsedStateChanged);
    box->setCollapsed(true);
    box->show();
    QVERIFY(box->isCollapsed());
    QVERIFY(box->findChild<QLabel *>()->isVisible());
    QCOMPARE(box->maximumHeight(), QWIDGETSIZE_MAX);
    QCOMPARE(changed.count(), 0);

    // The state is no news, but the box looks like it again.
    box->setCollapsed(true);
    QVERIFY(!box->findChild<QLabel *>()->isVisible());
    QCOMPARE(box->maximumHeight(), box->titleRect().bottom() + 6);
    QCOMPARE(changed.count(), 0);
}

void tst_CollapsibleGroupBoxBasic::sameStateAgain()
{
    Box box;
    box.show();
    QSignalSpy changed(&box, &CollapsibleGroupBoxBasic::collapsedStateChanged);
    box.setCollapsed(false);
    QCOMPARE(changed.count(), 0);
    box.setCollapsed(true);
    box.setCollapsed(true);
    QCOMPARE(changed, QList<QVariantList>{QVariantList{true}});
}

void tst_CollapsibleGroupBoxBasic::shownStateIsKnownToListeners()
{
    // A listener finds the box as it will stay.
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    QStringList seen;
    connect(box.get(), &CollapsibleGroupBoxBasic::collapsedStateChanged, this, [&](bool collapsed) {
        seen.append(QStringLiteral("%1 %2 %3 %4")
                        .arg(collapsed)
                        .arg(box->isCollapsed())
                        .arg(box->maximumHeight() == QWIDGETSIZE_MAX)
                        .arg(box->styleSheet().contains(Marker)));
    });
    box->setCollapsed(true);
    box->show();
    box->setCollapsed(false);
    QCOMPARE(seen, (QStringList{QStringLiteral("1 1 0 1"), QStringLiteral("0 0 1 0")}));
}

void tst_CollapsibleGroupBoxBasic::hiddenAndShownByAListenerOfTheFirstShow()
{
    QWidget window;
    window.show();
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    box->setParent(&window);
    int count = 0;
    connect(box.get(), &CollapsibleGroupBoxBasic::collapsedStateChanged, this, [&] {
        ++count;
        box->hide();
        box->show();
    });
    box->show();
    QCOMPARE(count, 1);
    QVERIFY(box->isVisible());
    QCOMPARE(box->styleSheet().count(QStringLiteral("subcontrol-position")), 1);
}

void tst_CollapsibleGroupBoxBasic::disabledAtFirstShow()
{
    Box box;
    box.setEnabled(false);
    box.show();
    QVERIFY(!box.arrow()->isEnabled());
    QVERIFY(box.arrow()->testAttribute(Qt::WA_ForceDisabled));
    box.setEnabled(true);
    QVERIFY(box.arrow()->isEnabled());
}

void tst_CollapsibleGroupBoxBasic::childrenHiddenByFolding()
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

void tst_CollapsibleGroupBoxBasic::childrenHiddenByOthers()
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

void tst_CollapsibleGroupBoxBasic::childWindowsStay()
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

void tst_CollapsibleGroupBoxBasic::markedForeignStyleSheet()
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

void tst_CollapsibleGroupBoxBasic::titleEdges()
{
    Panel panel(1);
    panel.show();
    Box *box = panel.boxes.first();
    // The title keeps its place when the box is folded, so that the mouse need not move.
    const QRect title = box->titleRect();
    QVERIFY(title.left() >= 16);
    const auto toggles = [&](const QPoint &position) {
        box->setCollapsed(false);
        const QPoint inWindow = box->mapTo(panel.area, position);
        QTest::mouseClick(panel.area->windowHandle(), Qt::LeftButton, Qt::NoModifier, inWindow);
        return box->isCollapsed();
    };
    QVERIFY(toggles(title.topLeft()));
    QCOMPARE(box->titleRect(), title);
    QVERIFY(toggles(title.topRight()));
    QVERIFY(toggles(title.bottomLeft()));
    QVERIFY(toggles(title.bottomRight()));
    QVERIFY(!toggles(title.topLeft() - QPoint(1, 0)));
    QVERIFY(!toggles(title.topLeft() - QPoint(0, 1)));
    QVERIFY(!toggles(title.bottomRight() + QPoint(1, 0)));
    QVERIFY(!toggles(title.bottomRight() + QPoint(0, 1)));
}

void tst_CollapsibleGroupBoxBasic::otherButtonsAndPlaces()
{
    Panel panel(1);
    panel.show();
    Box *box = panel.boxes.first();
    const QPoint title = box->titlePoint();
    click(box, title, Qt::NoModifier, Qt::RightButton);
    click(box, title, Qt::ShiftModifier, Qt::MiddleButton);
    click(box, box->rect().center());
    QVERIFY(!box->isCollapsed());

    // Where the button is released decides.
    QWindow *window = panel.area->windowHandle();
    const auto drag = [&](const QPoint &from, const QPoint &to) {
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, box->mapTo(panel.area, from));
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, box->mapTo(panel.area, to));
    };
    const QPoint below(title.x(), box->titleRect().bottom() + 10);
    drag(title, below);
    QVERIFY(!box->isCollapsed());
    drag(below, title);
    QVERIFY(box->isCollapsed());
}

void tst_CollapsibleGroupBoxBasic::keysCountForOneClick()
{
    // Shift and a click into the box: nothing happens, and the next click is a plain one.
    Panel panel(2);
    panel.group();
    panel.show();
    Box *box = panel.boxes.first();
    click(box, QPoint(box->width() - 3, box->height() - 3), Qt::ShiftModifier);
    clickArrow(box);
    QCOMPARE(panel.folded(), QStringLiteral("a"));
}

void tst_CollapsibleGroupBoxBasic::checkableTitleClick()
{
    Panel panel(2);
    panel.group();
    Box *box = panel.boxes.first();
    box->setCheckable(true);
    panel.show();
    Record record;
    record.follow(panel);
    clickTitle(box);
    QVERIFY(!box->isChecked());
    QCOMPARE(panel.folded(), QStringLiteral("a"));
    clickTitle(box);
    QVERIFY(box->isChecked());
    QCOMPARE(panel.folded(), QString());
    QCOMPARE(record.lines, QStringLiteral("a-a+"));

    // Checking what is open already, and unchecking what is folded already, changes nothing else.
    clickArrow(box);
    QVERIFY(box->isChecked());
    clickTitle(box);
    QVERIFY(!box->isChecked());
    QVERIFY(box->isCollapsed());
    clickArrow(box);
    clickTitle(box);
    QVERIFY(box->isChecked());
    QVERIFY(!box->isCollapsed());
    QCOMPARE(record.lines, QStringLiteral("a-a+a-a+"));
}

void tst_CollapsibleGroupBoxBasic::checkableModifiers()
{
    Panel panel(3);
    panel.area->resize(300, 600);
    panel.group();
    Box *box = panel.boxes[1];
    box->setCheckable(true);
    panel.show();
    clickTitle(box, Qt::ControlModifier);
    QCOMPARE(panel.folded(), QStringLiteral("abc"));
    QVERIFY(box->isChecked());
    clickTitle(box, Qt::ShiftModifier);
    QCOMPARE(panel.folded(), QStringLiteral("ac"));
    QVERIFY(box->isChecked());
    clickTitle(box, Qt::AltModifier);
    QCOMPARE(panel.folded(), QStringLiteral("abc"));
    QVERIFY(box->isChecked());

    // The press alone: ignored on the title with a key, and only there.
    QMouseEvent onTitle(QEvent::MouseButtonPress, box->titlePoint(), Qt::LeftButton, Qt::LeftButton,
                        Qt::ShiftModifier);
    box->mousePressEvent(&onTitle);
    QVERIFY(!onTitle.isAccepted());
    QMouseEvent plain(QEvent::MouseButtonPress, box->titlePoint(), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    box->mousePressEvent(&plain);
    QVERIFY(plain.isAccepted());
}

void tst_CollapsibleGroupBoxBasic::checkedByCode()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    box->setCheckable(true);
    box->show();
    box->setChecked(false);
    QVERIFY(!box->isCollapsed());
    box->setCollapsed(true);
    box->setChecked(true);
    QVERIFY(box->isCollapsed());
}

void tst_CollapsibleGroupBoxBasic::checkClickedSlot()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    Record record;
    record.follow(box.get());
    box->checkClicked(true);
    QVERIFY(!box->isCollapsed());
    box->checkClicked(false);
    QVERIFY(box->isCollapsed());
    box->checkClicked(false);
    QVERIFY(box->isCollapsed());
    box->checkClicked(true);
    QVERIFY(!box->isCollapsed());
    QCOMPARE(record.lines, QString());
    QVERIFY(box->styleSheet().isEmpty());

    box->show();
    record.lines.clear();
    box->checkClicked(false);
    QVERIFY(box->findChild<QLabel *>()->isHidden());
    QVERIFY(box->isFlat());
    box->checkClicked(true);
    QVERIFY(box->findChild<QLabel *>()->isVisible());
    QVERIFY(!box->isFlat());
    QCOMPARE(record.lines, QStringLiteral("a-a+"));
}

void tst_CollapsibleGroupBoxBasic::keyboard()
{
    Panel panel(1);
    Box *box = panel.boxes.first();
    box->setCheckable(true);
    panel.show();
    QApplication::setActiveWindow(panel.area);
    box->arrow()->setFocus();
    QVERIFY(box->arrow()->hasFocus());
    QTest::keyClick(panel.area->windowHandle(), Qt::Key_Space);
    QVERIFY(box->isCollapsed());
    QVERIFY(box->isChecked());
    box->setFocus();
    QTest::keyClick(panel.area->windowHandle(), Qt::Key_Space);
    QVERIFY(!box->isChecked());
    QTest::keyClick(panel.area->windowHandle(), Qt::Key_Space);
    QVERIFY(box->isChecked());
    QVERIFY(!box->isCollapsed());
}

void tst_CollapsibleGroupBoxBasic::toggleByOthers()
{
    Panel panel(2);
    panel.group();
    panel.show();
    Box *box = panel.boxes.first();
    box->toggleCollapsed();
    QCOMPARE(panel.folded(), QStringLiteral("a"));
    // A button of the host's or another box's arrow is no click on this title.
    GroupBoxCollapseButton other;
    connect(&other, &QAbstractButton::clicked, box, &CollapsibleGroupBoxBasic::toggleCollapsed);
    other.resize(16, 16);
    QTest::mouseClick(&other, Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(panel.folded(), QString());
    // The arrow's keys count whoever asks, but without a click on it there is no group.
    box->arrow()->setShiftDown(true);
    box->toggleCollapsed();
    QCOMPARE(panel.folded(), QString());
    QVERIFY(!box->arrow()->shiftDown());
}

void tst_CollapsibleGroupBoxBasic::shiftOpensOne()
{
    Panel panel;
    panel.area->resize(300, 800);
    panel.group();
    panel.boxes[0]->setCollapsed(true);
    panel.boxes[2]->setCollapsed(true);
    panel.show();
    Record record;
    record.follow(panel);
    clickTitle(panel.boxes[2], Qt::ShiftModifier);
    QCOMPARE(panel.folded(), QStringLiteral("abde"));
    // One after the other as they stand, each only if it changes.
    QCOMPARE(record.lines, QStringLiteral("b-c+d-e-"));
    record.lines.clear();
    clickArrow(panel.boxes[2], Qt::ShiftModifier);
    QCOMPARE(panel.folded(), QStringLiteral("abde"));
    QCOMPARE(record.lines, QString());
    // Shift goes before Ctrl.
    clickArrow(panel.boxes[0], Qt::ShiftModifier | Qt::ControlModifier);
    QCOMPARE(panel.folded(), QStringLiteral("bcde"));
    QCOMPARE(record.lines, QStringLiteral("a+c-"));
}

void tst_CollapsibleGroupBoxBasic::syncOtherGroups()
{
    Panel panel;
    panel.area->resize(300, 800);
    const QStringList names = {QStringLiteral("g"), QStringLiteral("G"), QStringLiteral("g "),
                               QString(), QStringLiteral("g")};
    for (int i = 0; i < names.size(); ++i) {
        panel.boxes[i]->setSyncGroup(names.at(i));
    }
    panel.show();
    clickTitle(panel.boxes[0], Qt::ControlModifier);
    QCOMPARE(panel.folded(), QStringLiteral("ae"));
    clickTitle(panel.boxes[1], Qt::ShiftModifier);
    QCOMPARE(panel.folded(), QStringLiteral("ae"));
}

void tst_CollapsibleGroupBoxBasic::syncDisabled()
{
    Panel panel(3);
    panel.area->resize(300, 600);
    panel.group();
    panel.boxes[0]->setEnabled(false);
    panel.boxes[2]->setEnabled(false);
    panel.boxes[2]->setCollapsed(true);
    panel.show();
    clickTitle(panel.boxes[1], Qt::ControlModifier);
    QCOMPARE(panel.folded(), QStringLiteral("bc"));
    clickTitle(panel.boxes[1], Qt::ControlModifier);
    QCOMPARE(panel.folded(), QStringLiteral("c"));
    clickTitle(panel.boxes[1], Qt::ShiftModifier);
    QCOMPARE(panel.folded(), QStringLiteral("c"));
}

void tst_CollapsibleGroupBoxBasic::syncParent_data()
{
    QTest::addColumn<QString>("outerName");
    QTest::addColumn<bool>("reachesSibling");
    QTest::newRow("a plain window") << QStringLiteral("window") << true;
    QTest::newRow("no name") << QString() << true;
    QTest::newRow("the host's main window") << QStringLiteral("QgisApp") << false;
    QTest::newRow("other letters") << QStringLiteral("qgisapp") << true;
}

void tst_CollapsibleGroupBoxBasic::syncParent()
{
    QFETCH(QString, outerName);
    QFETCH(bool, reachesSibling);
    // top > outer > two holders with a box each; and a box beside outer, which is never reached.
    QWidget top;
    auto *topLayout = new QVBoxLayout(&top);
    auto *outer = new QWidget;
    outer->setObjectName(outerName);
    auto *outerLayout = new QVBoxLayout(outer);
    QVector<Box *> boxes;
    for (int i = 0; i < 2; ++i) {
        auto *holder = new QWidget;
        auto *layout = new QVBoxLayout(holder);
        boxes.append(makeBox(QString(QLatin1Char(char('a' + i)))));
        layout->addWidget(boxes.last());
        outerLayout->addWidget(holder);
    }
    topLayout->addWidget(outer);
    boxes.append(makeBox(QStringLiteral("c")));
    topLayout->addWidget(boxes.last());
    for (Box *box : boxes) {
        box->setSyncGroup(Group);
    }
    top.show();
    QVERIFY(QTest::qWaitForWindowExposed(&top));
    clickTitle(boxes[0], Qt::ControlModifier);
    QVERIFY(boxes[0]->isCollapsed());
    QCOMPARE(boxes[1]->isCollapsed(), reachesSibling);
    QVERIFY(!boxes[2]->isCollapsed());
}

void tst_CollapsibleGroupBoxBasic::syncWithoutParent()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    box->setSyncGroup(Group);
    box->show();
    QVERIFY(QTest::qWaitForWindowExposed(box.get()));
    clickTitle(box.get(), Qt::ControlModifier);
    QVERIFY(box->isCollapsed());
    clickTitle(box.get(), Qt::ShiftModifier);
    QVERIFY(!box->isCollapsed());
    clickTitle(box.get(), Qt::ShiftModifier);
    QVERIFY(!box->isCollapsed());
}

void tst_CollapsibleGroupBoxBasic::syncNested()
{
    Panel panel(2);
    panel.area->resize(300, 600);
    Box *inner = makeBox(QStringLiteral("n"));
    panel.boxes[0]->layout()->addWidget(inner);
    inner->setSyncGroup(Group);
    panel.group();
    panel.show();
    Record record;
    record.follow(panel);
    record.follow(inner);
    // The outer box hides the inner one before its turn comes: it only takes the state.
    clickTitle(panel.boxes[1], Qt::ControlModifier);
    QCOMPARE(record.lines, QStringLiteral("a-b-"));
    QVERIFY(inner->isCollapsed());
    QVERIFY(inner->isHidden());
    clickTitle(panel.boxes[1], Qt::ControlModifier);
    QCOMPARE(record.lines, QStringLiteral("a-b-a+n+b+"));
    QVERIFY(inner->isVisible());
    QVERIFY(inner->findChild<QLabel *>()->isVisible());
}

void tst_CollapsibleGroupBoxBasic::toolTip()
{
    Box box;
    box.setSyncGroup(QStringLiteral("g"));
    QCOMPARE(box.arrow()->toolTip(), QStringLiteral("Ctrl (or Alt)-click to toggle all\n"
                                                    "Shift-click to expand, then collapse others"));
    box.setSyncGroup(QString());
    QVERIFY(box.arrow()->toolTip().isEmpty());
    QVERIFY(box.syncGroup().isEmpty());
}

void tst_CollapsibleGroupBoxBasic::scrollsIntoView()
{
    Panel panel(6);
    for (Box *box : panel.boxes) {
        box->setCollapsed(true);
    }
    panel.boxes[0]->setCollapsed(false);
    panel.boxes[1]->setCollapsed(false);
    panel.area->resize(300, 220);
    panel.show();
    QCOMPARE(panel.scrolled(), 0);

    Box *box = panel.boxes[4];
    panel.area->ensureWidgetVisible(box, 0, 0);
    panel.area->verticalScrollBar()->setValue(0);
    box->setCollapsed(false);
    // 50 px stay below the box, unless the panel ends before.
    const int bottom = box->geometry().bottom() + 50 - panel.area->viewport()->height();
    const int expected = qMin(bottom, panel.area->verticalScrollBar()->maximum());
    QVERIFY(expected > 0);
    QVERIFY(qAbs(panel.scrolled() - expected) <= 1);
    const QRect inView(box->mapTo(panel.area->viewport(), QPoint()), box->size());
    QVERIFY(panel.area->viewport()->rect().contains(inView));

    // And from below.
    panel.boxes[0]->setCollapsed(true);
    panel.area->verticalScrollBar()->setValue(panel.area->verticalScrollBar()->maximum());
    QVERIFY(panel.scrolled() > 0);
    panel.boxes[0]->setCollapsed(false);
    QCOMPARE(panel.scrolled(), 0);
}

void tst_CollapsibleGroupBoxBasic::scrollsToTheTitleOfAHighBox()
{
    Panel panel(6, 20);
    for (Box *box : panel.boxes) {
        box->setCollapsed(true);
    }
    panel.show();
    Box *box = panel.boxes[3];
    clickTitle(box);
    QVERIFY(!box->isCollapsed());
    QVERIFY(box->height() > panel.area->viewport()->height());
    const QPoint arrow = box->arrow()->mapTo(panel.area->viewport(), QPoint());
    QVERIFY(arrow.y() >= 5);
    QVERIFY(arrow.y() + 16 <= panel.area->viewport()->height());
}

void tst_CollapsibleGroupBoxBasic::openedGroupScrollsLikeItsBoxes_data()
{
    QTest::addColumn<int>("labels");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("grouped");
    QTest::newRow("all, low boxes") << 2 << 250 << 6;
    QTest::newRow("all, high boxes") << 20 << 250 << 6;
    QTest::newRow("some, low boxes") << 2 << 220 << 4;
    QTest::newRow("some, high boxes") << 20 << 300 << 4;
    QTest::newRow("one") << 4 << 250 << 1;
}

void tst_CollapsibleGroupBoxBasic::openedGroupScrollsLikeItsBoxes()
{
    // The panel ends where opening one box after the other takes it.
    QFETCH(int, labels);
    QFETCH(int, height);
    QFETCH(int, grouped);
    Panel atOnce(6, labels);
    Panel oneByOne(6, labels);
    for (Panel *panel : {&atOnce, &oneByOne}) {
        for (int i = 0; i < 6; ++i) {
            panel->boxes[i]->setCollapsed(true);
            panel->boxes[i]->setSyncGroup(i < grouped ? Group : QString());
        }
        panel->area->resize(300, height);
        panel->show();
    }
    clickTitle(atOnce.boxes[0], Qt::ControlModifier);
    for (int i = 0; i < grouped; ++i) {
        oneByOne.boxes[i]->setCollapsed(false);
    }
    QCOMPARE(atOnce.folded(), oneByOne.folded());
    QCOMPARE(atOnce.scrolled(), oneByOne.scrolled());
    QCOMPARE(atOnce.content->height(), oneByOne.content->height());
    QVERIFY(atOnce.area->updatesEnabled());
}

void tst_CollapsibleGroupBoxBasic::doesNotScroll()
{
    Panel panel(6, 10);
    for (Box *box : panel.boxes) {
        box->setCollapsed(true);
    }
    panel.boxes[5]->setScrollOnExpand(false);
    panel.area->resize(300, 260);
    panel.show();
    panel.boxes[5]->setCollapsed(false);
    QCoreApplication::processEvents();
    QVERIFY(panel.area->verticalScrollBar()->maximum() > 0);
    QCOMPARE(panel.scrolled(), 0);

    // The first show does not scroll.
    Panel open(6, 10);
    open.show();
    QCOMPARE(open.scrolled(), 0);

    // Neither does a box that is deeper inside than a box of the panel.
    Panel outer(3, 10);
    Box *inner = makeBox(QStringLiteral("n"), 10);
    outer.boxes[2]->layout()->addWidget(inner);
    inner->setCollapsed(true);
    outer.show();
    inner->setCollapsed(false);
    QCOMPARE(outer.scrolled(), 0);
}

void tst_CollapsibleGroupBoxBasic::scrollAreaUpdates()
{
    Panel panel(3);
    panel.boxes[2]->setCollapsed(true);
    panel.show();
    bool enabledWhileScrolling = true;
    connect(panel.area->verticalScrollBar(), &QScrollBar::valueChanged, this,
            [&] { enabledWhileScrolling = panel.area->updatesEnabled(); });
    panel.boxes[2]->setCollapsed(false);
    QVERIFY(!enabledWhileScrolling);
    QVERIFY(panel.area->updatesEnabled());

    // A host that has stopped them itself, say in order to open many boxes, starts them itself.
    panel.boxes[2]->setCollapsed(true);
    panel.area->setUpdatesEnabled(false);
    panel.boxes[2]->setCollapsed(false);
    QVERIFY(!panel.area->updatesEnabled());
}

void tst_CollapsibleGroupBoxBasic::deletedByListeners_data()
{
    QTest::addColumn<QString>("trigger");
    QTest::addColumn<QString>("victim");
    const QStringList triggers = {
        QStringLiteral("setCollapsed"),    QStringLiteral("setOpen"),
        QStringLiteral("title"),           QStringLiteral("arrow"),
        QStringLiteral("title control"),   QStringLiteral("arrow shift"),
        QStringLiteral("check box title"), QStringLiteral("checkClicked")};
    for (const QString &trigger : triggers) {
        for (const QString &victim :
             {QStringLiteral("box"), QStringLiteral("sibling before"),
              QStringLiteral("sibling after"), QStringLiteral("content"), QStringLiteral("area"),
              QStringLiteral("label"), QStringLiteral("all siblings")}) {
            QTest::newRow(qPrintable(trigger + QStringLiteral(", ") + victim)) << trigger << victim;
        }
    }
}

void tst_CollapsibleGroupBoxBasic::deletedByListeners()
{
    QFETCH(QString, trigger);
    QFETCH(QString, victim);
    Panel panel;
    panel.area->resize(300, 700);
    panel.group();
    Box *box = panel.boxes[2];
    box->setCheckable(trigger.startsWith(QLatin1String("check")));
    box->setCollapsed(trigger == QLatin1String("setOpen"));
    panel.show();
    const QHash<QString, QObject *> victims = {
        {QStringLiteral("box"), box},
        {QStringLiteral("sibling before"), panel.boxes[1]},
        {QStringLiteral("sibling after"), panel.boxes[3]},
        {QStringLiteral("content"), panel.content},
        {QStringLiteral("area"), panel.area},
        {QStringLiteral("label"), box->findChild<QLabel *>()},
        {QStringLiteral("all siblings"), panel.boxes[4]}};
    const QPointer<QObject> gone = victims.value(victim);
    const QVector<QPointer<Box>> siblings = {panel.boxes[0], panel.boxes[1], panel.boxes[3]};
    bool acted = false;
    for (Box *each : panel.boxes) {
        connect(each, &CollapsibleGroupBoxBasic::collapsedStateChanged, this, [&] {
            acted = true;
            if (victim == QLatin1String("all siblings")) {
                for (const auto &sibling : siblings) {
                    delete sibling.data();
                }
            }
            delete gone.data();
        });
    }
    // Sent to the widget itself: a window that is deleted within its own event is Qt's business.
    const auto send = [&](QPointer<QWidget> widget, const QPoint &position, int modifiers) {
        const Qt::KeyboardModifiers keys(modifiers);
        lmtest::mouse(widget, QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton,
                      keys);
        lmtest::mouse(widget, QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::LeftButton,
                      keys);
    };
    if (trigger == QLatin1String("setCollapsed") || trigger == QLatin1String("setOpen")) {
        box->setCollapsed(!box->isCollapsed());
    } else if (trigger == QLatin1String("checkClicked")) {
        box->checkClicked(false);
    } else if (trigger.startsWith(QLatin1String("arrow"))) {
        send(box->arrow(), QPoint(8, 8),
             trigger.endsWith(QLatin1String("shift")) ? Qt::ShiftModifier : Qt::NoModifier);
    } else {
        send(box, box->titlePoint(),
             trigger.endsWith(QLatin1String("control")) ? Qt::ControlModifier : Qt::NoModifier);
    }
    QVERIFY(acted);
    QVERIFY(!gone);
    QCoreApplication::processEvents();
}

void tst_CollapsibleGroupBoxBasic::deletedWhileHidingChildren()
{
    QWidget window;
    window.resize(200, 200);
    QPointer<Box> box = makeBox(QStringLiteral("a"));
    box->setParent(&window);
    window.show();
    EventWatcher watcher(box->findChild<QLabel *>(), QEvent::DynamicPropertyChange,
                         [box] { delete box.data(); });
    box->setCollapsed(true);
    QVERIFY(!box);

    // The same for a child that takes the next one with it.
    std::unique_ptr<Box> other(makeBox(QStringLiteral("b")));
    other->show();
    const auto labels = other->findChildren<QLabel *>();
    EventWatcher siblings(labels.at(0), QEvent::Hide, [&] { delete labels.at(1); });
    other->setCollapsed(true);
    QVERIFY(labels.at(2)->isHidden());
}

void tst_CollapsibleGroupBoxBasic::changedWhileHidingChildren()
{
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    box->show();
    Record record;
    record.follow(box.get());
    const auto labels = box->findChildren<QLabel *>();
    EventWatcher watcher(labels.at(2), QEvent::Hide, [&] { box->setCollapsed(false); });
    box->setCollapsed(true);
    QVERIFY(!box->isCollapsed());
    QCOMPARE(box->maximumHeight(), QWIDGETSIZE_MAX);
    QVERIFY(labels.at(0)->isVisible());
    QVERIFY(!box->styleSheet().contains(Marker));
    // The last word is the true one.
    QVERIFY(record.lines.isEmpty() || record.lines.endsWith(QLatin1Char('+')));
}

void tst_CollapsibleGroupBoxBasic::siblingDeletedWhileShowingChildren_data()
{
    QTest::addColumn<int>("event");
    QTest::newRow("hide") << int(QEvent::Hide);
    QTest::newRow("show") << int(QEvent::Show);
    QTest::newRow("mark") << int(QEvent::DynamicPropertyChange);
}

void tst_CollapsibleGroupBoxBasic::siblingDeletedWhileShowingChildren()
{
    QFETCH(int, event);
    Panel panel(4);
    panel.show();
    Box *box = panel.boxes[1];
    const auto labels = box->findChildren<QLabel *>();
    EventWatcher watcher(labels.at(0), QEvent::Type(event), [&] {
        delete panel.boxes[0];
        delete panel.boxes[2];
        delete labels.at(2);
    });
    box->setCollapsed(true);
    box->setCollapsed(false);
    // Nothing is left of them in the layouts, and those go on working.
    QCOMPARE(panel.content->layout()->count(), 3);
    QCOMPARE(box->layout()->count(), 2);
    QVERIFY(panel.content->layout()->isEnabled());
    QCOMPARE(box->y(), panel.content->layout()->contentsMargins().top());
    box->setCollapsed(true);
    QTRY_COMPARE(box->height(), box->maximumHeight());
    panel.boxes = {box, panel.boxes[3]};
}

void tst_CollapsibleGroupBoxBasic::resizedWhileShowingChildren()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    Box *box = makeBox(QStringLiteral("a"));
    layout->addWidget(box);
    window.resize(300, 200);
    window.show();
    box->setCollapsed(true);
    EventWatcher watcher(box->findChild<QLabel *>(), QEvent::Show,
                         [&] { window.resize(500, 200); });
    box->setCollapsed(false);
    const QMargins margins = layout->contentsMargins();
    QTRY_COMPARE(box->width(), 500 - margins.left() - margins.right());

    // A layout that the host has switched off stays off.
    layout->setEnabled(false);
    box->setCollapsed(true);
    QVERIFY(!layout->isEnabled());
}

void tst_CollapsibleGroupBoxBasic::deletedByAListenerOfTheScrollBar()
{
    Panel panel(3);
    panel.boxes[2]->setCollapsed(true);
    panel.show();
    QPointer<Box> box = panel.boxes[2];
    connect(panel.area->verticalScrollBar(), &QScrollBar::valueChanged, this,
            [box] { delete box.data(); });
    box->setCollapsed(false);
    QVERIFY(!box);
    QVERIFY(panel.area->updatesEnabled());
}

void tst_CollapsibleGroupBoxBasic::areaDestroyedWhileOpening()
{
    // Opening processes pending events, and one of them destroys the scroll area.
    Panel panel(3);
    panel.boxes[2]->setCollapsed(true);
    panel.show();
    QPointer<Box> box = panel.boxes[2];
    QMetaObject::invokeMethod(
        this, [&] { delete panel.area.data(); }, Qt::QueuedConnection);
    box->setCollapsed(false);
    QVERIFY(!panel.area);
    QVERIFY(!box);

    // The area alone goes, the panel lives on in a window.
    Panel second(3);
    second.boxes[2]->setCollapsed(true);
    second.show();
    QWidget window;
    QMetaObject::invokeMethod(
        this,
        [&] {
            second.area->takeWidget()->setParent(&window);
            delete second.area.data();
        },
        Qt::QueuedConnection);
    QSignalSpy changed(second.boxes[2], &CollapsibleGroupBoxBasic::collapsedStateChanged);
    second.boxes[2]->setCollapsed(false);
    QVERIFY(!second.area);
    QCOMPARE(changed.count(), 1);
    window.show();
    second.content->show();
    second.boxes[2]->setCollapsed(true);
    second.boxes[2]->setCollapsed(false);
    QCOMPARE(changed.count(), 3);
}

void tst_CollapsibleGroupBoxBasic::panelTakenOutOfItsArea()
{
    Panel panel(3);
    panel.show();
    std::unique_ptr<QWidget> content(panel.area->takeWidget());
    content->show();
    Record record;
    record.follow(panel.boxes[1]);
    panel.boxes[1]->setCollapsed(true);
    panel.boxes[1]->setCollapsed(false);
    QCOMPARE(record.lines, QStringLiteral("b-b+"));
}

void tst_CollapsibleGroupBoxBasic::reparented()
{
    Panel panel(5, 10);
    panel.group();
    panel.show();
    Panel other(2);
    other.group();
    other.show();
    Box *box = panel.boxes[4];
    box->setCollapsed(true);
    const QString style = box->styleSheet();
    other.content->layout()->addWidget(box);
    box->show();
    QVERIFY(box->isCollapsed());
    QCOMPARE(box->styleSheet(), style);

    // The first scroll area is not scrolled for a box that is no longer in it.
    panel.area->verticalScrollBar()->setValue(7);
    box->setCollapsed(false);
    QCOMPARE(panel.scrolled(), 7);
    // It belongs to the group where it is now.
    clickTitle(other.boxes[0], Qt::ControlModifier);
    QVERIFY(box->isCollapsed());
    QCOMPARE(panel.folded(), QStringLiteral("e"));

    // And it outlives the first area.
    delete panel.area.data();
    box->setCollapsed(false);
    QVERIFY(!box->isCollapsed());
}

void tst_CollapsibleGroupBoxBasic::styleChange()
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

void tst_CollapsibleGroupBoxBasic::arrowDeletedByHost()
{
    // A host that clears a box of everything in it.
    std::unique_ptr<Box> box(makeBox(QStringLiteral("a")));
    box->setCheckable(true);
    box->show();
    qDeleteAll(box->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly));
    box->setSyncGroup(Group);
    box->setCollapsed(true);
    box->setCollapsed(false);
    box->setChecked(false);
    box->setEnabled(false);
    box->setEnabled(true);
    box->toggleCollapsed();
    QVERIFY(box->isCollapsed());

    Box early;
    delete early.arrow();
    early.show();
    early.setCollapsed(true);
    QVERIFY(early.isFlat());
}

LMTEST_MAIN(tst_CollapsibleGroupBoxBasic)
#include "tst_collapsiblegroupboxbasic.moc"
