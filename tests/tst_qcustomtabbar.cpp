#include "lmtest.h"

#include <lmwidgets/qcustomtabbar.h>

#include <QAccessible>
#include <QImage>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionTab>

#include <algorithm>
#include <limits>
#include <memory>

using LM::Widgets::QCustomTabBar;

namespace {

const QColor Ground(0x36, 0x36, 0x36);
const QColor Green(0, 255, 0);

/** A bar that tells what it and its base think of the sizes of tabs, and counts its paintings. */
class Bar : public QCustomTabBar
{
public:
    using QCustomTabBar::QCustomTabBar;
    QSize size(int index) const { return tabSizeHint(index); }
    QSize stockSize(int index) const { return QTabBar::tabSizeHint(index); }
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        QCustomTabBar::paintEvent(event);
    }
};

/** Keeps what it is asked to draw, and draws nothing of it if it is told so. */
class RecordingStyle : public QProxyStyle
{
public:
    RecordingStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(option);
        if (tab && qobject_cast<const QCustomTabBar *>(widget)) {
            drawn.append({element, *tab});
            if (isBare) {
                return;
            }
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    struct Drawn
    {
        ControlElement element;
        QStyleOptionTab option;
    };
    mutable QVector<Drawn> drawn;
    bool isBare = false;
};

QImage picture(QWidget &widget, int ratio = 1)
{
    QImage image(widget.size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::blue);
    widget.render(&image);
    return image;
}

/** The smallest rectangle with all pixels in @p area that @p matches accepts; in image pixels. */
template <typename Matches>
QRect bounds(const QImage &image, const QRect &area, Matches matches)
{
    QRect result;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (image.rect().contains(x, y) && matches(image.pixelColor(x, y))) {
                result |= QRect(x, y, 1, 1);
            }
        }
    }
    return result;
}

QRect scaled(const QRect &rect, int ratio)
{
    return QRect(rect.topLeft() * ratio, rect.size() * ratio);
}

void addTabs(QTabBar &bar)
{
    bar.setShape(QTabBar::RoundedWest);
    bar.setExpanding(false); // or the tabs fill the bar
    bar.addTab(QStringLiteral("Import"));
    bar.addTab(QStringLiteral("Classify"));
    bar.addTab(QStringLiteral("Export"));
    bar.resize(bar.sizeHint());
}

} // namespace

class tst_QCustomTabBar : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void newBar();
    void colors();
    void colorOfATabThatIsNotThere();
    void strangeIndexes_data();
    void strangeIndexes();
    void dot_data();
    void dot();
    void text_data();
    void text();
    void ground_data();
    void ground();
    void shapes();
    void ampersandsAreShown();
    void hiddenTabs();
    void colorsStayWithTheirPositions();
    void colorRepaints();
    void sizes_data();
    void sizes();
    void selectsByMouse();
    void selectsByKeyboard();
    void noTabs();
    void destroyedBySlot_data();
    void destroyedBySlot();
    void accessibleTabs();
    void accessibleMeaningOfTheDot();
    void accessiblePress();
    void accessibleStates();
    void accessibleNames();
    void accessibleTabsComeAndGo();
};

void tst_QCustomTabBar::newBar()
{
    QWidget parent;
    QCustomTabBar bar(&parent);
    QCOMPARE(bar.parentWidget(), &parent);
    QCOMPARE(bar.count(), 0);
    const QMetaObject *meta = bar.metaObject();
    QCOMPARE(QLatin1String(meta->className()), QLatin1String("LM::Widgets::QCustomTabBar"));
    QCOMPARE(meta->superClass(), &QTabBar::staticMetaObject);
    QVERIFY(lmtest::ownMethods(*meta).isEmpty());
    QVERIFY(!QCustomTabBar().parent());
}

void tst_QCustomTabBar::colors()
{
    QCustomTabBar bar;
    addTabs(bar);
    QVERIFY(!bar.getCircleColor(0).isValid());
    bar.setTabColor(0, Qt::red);
    bar.setTabColor(2, QColor(1, 2, 3, 4));
    QCOMPARE(bar.getCircleColor(0), QColor(Qt::red));
    QVERIFY(!bar.getCircleColor(1).isValid());
    QCOMPARE(bar.getCircleColor(2), QColor(1, 2, 3, 4));
    bar.setTabColor(0, Qt::yellow);
    QCOMPARE(bar.getCircleColor(0), QColor(Qt::yellow));
    bar.setTabColor(0, QColor());
    QVERIFY(!bar.getCircleColor(0).isValid());
}

void tst_QCustomTabBar::colorOfATabThatIsNotThere()
{
    QCustomTabBar bar;
    QVERIFY(!bar.getCircleColor(5).isValid());
    addTabs(bar);
    addTabs(bar);
    QCOMPARE(bar.count(), 6);
    QVERIFY(!bar.getCircleColor(5).isValid());
    const QRect tab = bar.tabRect(5);
    QCOMPARE(picture(bar).pixelColor(tab.left() + 7, tab.center().y()), Green);
    QVERIFY(!bar.getCircleColor(5).isValid());

    QCustomTabBar later;
    later.setTabColor(0, Qt::magenta);
    addTabs(later);
    const QRect first = later.tabRect(0);
    QCOMPARE(picture(later).pixelColor(first.left() + 7, first.center().y()), QColor(Qt::magenta));
}

void tst_QCustomTabBar::strangeIndexes_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("before the first") << -1;
    QTest::newRow("behind the last") << 3;
    QTest::newRow("lowest") << std::numeric_limits<int>::min();
    QTest::newRow("highest") << std::numeric_limits<int>::max();
}

void tst_QCustomTabBar::strangeIndexes()
{
    QFETCH(int, index);
    QCustomTabBar bar;
    addTabs(bar);
    const QImage before = picture(bar);
    QVERIFY(!bar.getCircleColor(index).isValid());
    bar.setTabColor(index, Qt::magenta);
    QCOMPARE(bar.getCircleColor(index), QColor(Qt::magenta));
    QCOMPARE(picture(bar), before);
}

void tst_QCustomTabBar::dot_data()
{
    QTest::addColumn<int>("ratio");
    QTest::addColumn<int>("shape");
    QTest::addColumn<bool>("enabled");
    for (const int ratio : {1, 2}) {
        for (const int shape :
             {QTabBar::RoundedWest, QTabBar::RoundedEast, QTabBar::RoundedNorth}) {
            QTest::addRow("%dx, shape %d", ratio, shape) << ratio << shape << true;
        }
        QTest::addRow("%dx, disabled", ratio) << ratio << int(QTabBar::RoundedWest) << false;
    }
}

void tst_QCustomTabBar::dot()
{
    QFETCH(int, ratio);
    QFETCH(int, shape);
    QFETCH(bool, enabled);
    QCustomTabBar bar;
    addTabs(bar);
    bar.setShape(static_cast<QTabBar::Shape>(shape));
    bar.resize(bar.sizeHint());
    bar.setTabColor(0, Qt::red);
    bar.setTabColor(2, Qt::magenta);
    bar.setTabEnabled(1, enabled);
    bar.setEnabled(enabled);
    bar.setCurrentIndex(2);
    const QImage image = picture(bar, ratio);
    const QColor colors[] = {Qt::red, Green, Qt::magenta};
    for (int i = 0; i < bar.count(); ++i) {
        const QRect tab = bar.tabRect(i);
        QImage expected(image.size(), QImage::Format_RGB32);
        expected.setDevicePixelRatio(ratio);
        expected.fill(Ground);
        QPainter painter(&expected);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colors[i]);
        painter.drawEllipse(tab.left() + 7 - 3, tab.center().y() - 3, 6, 6);
        painter.end();
        const QRect area = scaled(tab, ratio);
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                QCOMPARE(image.pixelColor(x, y) == colors[i],
                         expected.pixelColor(x, y) == colors[i]);
            }
        }
        const QRect found =
            bounds(image, area, [&](const QColor &color) { return color == colors[i]; });
        QCOMPARE(found.left(), (tab.left() + 4) * ratio);
        QCOMPARE(found.width(), 6 * ratio);
        QCOMPARE(found.bottom(), (tab.center().y() + 3) * ratio - 1);
        // Round, and not a square.
        QVERIFY(image.pixelColor(found.topLeft()) != colors[i]);
        QVERIFY(image.pixelColor(found.bottomRight()) != colors[i]);
        QCOMPARE(image.pixelColor(found.center()), colors[i]);
    }
}

void tst_QCustomTabBar::text_data()
{
    QTest::addColumn<int>("ratio");
    QTest::addColumn<int>("pixels");
    QTest::addColumn<bool>("enabled");
    for (const int ratio : {1, 2}) {
        for (const int pixels : {9, 12, 13, 14, 15, 30}) {
            QTest::addRow("%dx, %d px", ratio, pixels) << ratio << pixels << true;
        }
    }
    QTest::newRow("disabled") << 1 << 13 << false;
}

/** White text whose base line lies a quarter of the font's height below the middle of the tab. */
void tst_QCustomTabBar::text()
{
    QFETCH(int, ratio);
    QFETCH(int, pixels);
    QFETCH(bool, enabled);
    RecordingStyle style;
    style.isBare = true;
    QCustomTabBar bar;
    bar.setStyle(&style);
    QFont font = bar.font();
    font.setPixelSize(pixels);
    bar.setFont(font);
    addTabs(bar);
    bar.setTabColor(0, Ground); // no dot to tell from the text
    bar.setTabColor(1, Ground);
    bar.setTabColor(2, Ground);
    bar.setTabTextColor(1, Qt::red);
    bar.setEnabled(enabled);
    const QImage image = picture(bar, ratio);

    QImage expected(image.size(), QImage::Format_RGB32);
    expected.setDevicePixelRatio(ratio);
    expected.fill(Ground);
    QPainter painter(&expected);
    painter.setFont(bar.font());
    painter.setPen(Qt::white);
    for (int i = 0; i < bar.count(); ++i) {
        const QRect tab = bar.tabRect(i);
        painter.drawText(tab.left() + 15, tab.center().y() + bar.fontMetrics().height() / 4,
                         bar.tabText(i));
    }
    painter.end();
    QCOMPARE(image, expected);
    const QRect glyphs =
        bounds(image, image.rect(), [](const QColor &color) { return color.lightness() > 140; });
    QVERIFY(glyphs.isValid() && glyphs.left() >= 15 * ratio);
}

void tst_QCustomTabBar::ground_data()
{
    QTest::addColumn<QString>("styleSheet");
    QTest::newRow("plain") << QString();
    QTest::newRow("theme's tabs") << "QTabBar{background-color:transparent;}"
                                     "QTabBar::tab{background-color:transparent;border:none;}";
}

void tst_QCustomTabBar::ground()
{
    QFETCH(QString, styleSheet);
    QCustomTabBar bar;
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::yellow);
    palette.setColor(QPalette::Button, Qt::yellow);
    bar.setPalette(palette);
    bar.setStyleSheet(styleSheet);
    addTabs(bar);
    bar.resize(bar.sizeHint() + QSize(40, 60));
    const QImage image = picture(bar);
    const int below = bar.tabRect(2).bottom() + 3;
    const QRect rest(0, below, bar.width(), bar.height() - below);
    QCOMPARE(bounds(image, rest, [](const QColor &color) { return color == Ground; }), rest);
    QVERIFY(!bounds(image, rest, [](const QColor &color) { return color != Ground; }).isValid());
}

void tst_QCustomTabBar::shapes()
{
    RecordingStyle style;
    QCustomTabBar bar;
    bar.setStyle(&style);
    addTabs(bar);
    bar.setCurrentIndex(1);
    picture(bar);
    QCOMPARE(style.drawn.size(), 3);
    for (int i = 0; i < 3; ++i) {
        const RecordingStyle::Drawn &drawn = style.drawn.at(i);
        QCOMPARE(drawn.element, QStyle::CE_TabBarTabShape);
        QCOMPARE(drawn.option.rect, bar.tabRect(i));
        QCOMPARE(drawn.option.text, bar.tabText(i));
        QCOMPARE(drawn.option.shape, QTabBar::RoundedWest);
        QCOMPARE(bool(drawn.option.state & QStyle::State_Selected), i == 1);
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            QCOMPARE(drawn.option.palette.color(group, QPalette::Button), Ground);
        }
    }
    QVERIFY(bar.palette().color(QPalette::Button) != Ground);
}

void tst_QCustomTabBar::ampersandsAreShown()
{
    const auto shown = [](const QString &text) {
        QCustomTabBar bar;
        bar.setShape(QTabBar::RoundedWest);
        bar.addTab(text);
        bar.resize(120, 40);
        return picture(bar);
    };
    QVERIFY(shown(QStringLiteral("&Open")) != shown(QStringLiteral("Open")));
}

void tst_QCustomTabBar::hiddenTabs()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    QCustomTabBar bar;
    addTabs(bar);
    bar.setTabColor(1, Qt::magenta);
    bar.setTabVisible(1, false);
    const QImage image = picture(bar);
    QVERIFY(!bounds(image, image.rect(), [](const QColor &color) {
                 return color == QColor(Qt::magenta);
             }).isValid());
    const QRect last = bar.tabRect(2);
    QCOMPARE(image.pixelColor(last.left() + 7, last.center().y()), Green);
#else
    QSKIP("needs tabs that can be hidden");
#endif
}

void tst_QCustomTabBar::colorsStayWithTheirPositions()
{
    QCustomTabBar bar;
    addTabs(bar);
    bar.setTabColor(0, Qt::red);
    bar.moveTab(0, 2);
    QCOMPARE(bar.getCircleColor(0), QColor(Qt::red));
    bar.removeTab(0);
    QCOMPARE(bar.getCircleColor(0), QColor(Qt::red));
    const QRect tab = bar.tabRect(0);
    QCOMPARE(picture(bar).pixelColor(tab.left() + 7, tab.center().y()), QColor(Qt::red));
}

void tst_QCustomTabBar::colorRepaints()
{
    Bar bar;
    addTabs(bar);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    QTRY_VERIFY(bar.paints > 0);
    QCoreApplication::processEvents();
    const int before = bar.paints;
    bar.setTabColor(1, Qt::red);
    QTRY_COMPARE(bar.paints, before + 1);
    bar.getCircleColor(1);
    QCoreApplication::processEvents();
    QCOMPARE(bar.paints, before + 1);
}

void tst_QCustomTabBar::sizes_data()
{
    QTest::addColumn<int>("shape");
    QTest::newRow("west") << int(QTabBar::RoundedWest);
    QTest::newRow("east") << int(QTabBar::TriangularEast);
    QTest::newRow("north") << int(QTabBar::RoundedNorth);
    QTest::newRow("south") << int(QTabBar::TriangularSouth);
}

void tst_QCustomTabBar::sizes()
{
    QFETCH(int, shape);
    Bar bar;
    bar.addTab(QStringLiteral("Import of all the files of a survey"));
    bar.addTab(QString());
    bar.setShape(static_cast<QTabBar::Shape>(shape));
    bar.setExpanding(false);
    for (int i = 0; i < bar.count(); ++i) {
        QCOMPARE(bar.size(i), bar.stockSize(i).transposed());
    }
    QVERIFY(bar.size(0).width() != bar.size(0).height());
    // Out of range Qt has no size for the tab.
    QCOMPARE(bar.size(-1), bar.stockSize(-1).transposed());
    QCOMPARE(bar.size(2), bar.stockSize(2).transposed());
    if (shape == QTabBar::RoundedWest) {
        QVERIFY(bar.size(0).width() > bar.size(0).height());
        QVERIFY(bar.tabRect(0).width() > bar.tabRect(0).height());
    }
}

void tst_QCustomTabBar::selectsByMouse()
{
    QCustomTabBar bar;
    addTabs(bar);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    QSignalSpy current(&bar, &QTabBar::currentChanged);
    QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(2).center());
    QCOMPARE(bar.currentIndex(), 2);
    // On the dot too.
    QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier,
                      QPoint(bar.tabRect(1).left() + 7, bar.tabRect(1).center().y()));
    QCOMPARE(bar.currentIndex(), 1);
    bar.setTabEnabled(0, false);
    QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(0).center());
    QCOMPARE(bar.currentIndex(), 1);
    QCOMPARE(current.count(), 2);
}

void tst_QCustomTabBar::selectsByKeyboard()
{
    QCustomTabBar bar;
    addTabs(bar);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    QApplication::setActiveWindow(&bar);
    bar.setFocus();
    QTest::keyClick(&bar, Qt::Key_Right);
    QTest::keyClick(&bar, Qt::Key_Right);
    QCOMPARE(bar.currentIndex(), 2);
    bar.setTabEnabled(1, false);
    QTest::keyClick(&bar, Qt::Key_Left);
    QCOMPARE(bar.currentIndex(), 0);
}

void tst_QCustomTabBar::noTabs()
{
    QCustomTabBar bar;
    bar.resize(50, 20);
    const QImage image = picture(bar);
    QCOMPARE(bounds(image, image.rect(), [](const QColor &color) { return color == Ground; }),
             image.rect());
    bar.resize(0, 0);
    bar.addTab(QString(10000, QLatin1Char('x')));
    bar.resize(10, 10);
    QVERIFY(!picture(bar).isNull());
}

void tst_QCustomTabBar::destroyedBySlot_data()
{
    QTest::addColumn<bool>("key");
    QTest::newRow("later, mouse") << false;
    QTest::newRow("later, key") << true;
}

void tst_QCustomTabBar::destroyedBySlot()
{
    QFETCH(bool, key);
    const QPointer<QCustomTabBar> bar(new QCustomTabBar);
    addTabs(*bar);
    bar->show();
    QVERIFY(QTest::qWaitForWindowExposed(bar));
    connect(bar, &QTabBar::currentChanged, this, [&] { bar->deleteLater(); });
    if (key) {
        QTest::keyClick(bar.data(), Qt::Key_Right);
    } else {
        QTest::mouseClick(bar.data(), Qt::LeftButton, Qt::NoModifier, bar->tabRect(2).center());
    }
    QTRY_VERIFY(!bar);
}

void tst_QCustomTabBar::accessibleTabs()
{
    QCustomTabBar bar;
    addTabs(bar);
    bar.setAccessibleName(QStringLiteral("Steps"));
    bar.setCurrentIndex(1);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(&bar);
    QVERIFY(list);
    QCOMPARE(list->role(), QAccessible::PageTabList);
    QCOMPARE(list->text(QAccessible::Name), QStringLiteral("Steps"));
    QStringList names;
    for (int i = 0; i < list->childCount(); ++i) {
        QAccessibleInterface *tab = list->child(i);
        if (tab->role() != QAccessible::PageTab) {
            continue;
        }
        const int index = names.size();
        names.append(tab->text(QAccessible::Name));
        const QRect place = bar.tabRect(index).translated(bar.mapToGlobal(QPoint(0, 0)));
        QCOMPARE(tab->rect(), place);
        QCOMPARE(tab->parent()->object(), static_cast<QObject *>(&bar));
        QCOMPARE(list->indexOfChild(tab), i);
        QCOMPARE(bool(tab->state().selected), index == bar.currentIndex());
        QVERIFY(!tab->state().invisible && !tab->state().disabled && tab->state().selectable);
        QCOMPARE(list->childAt(place.center().x(), place.center().y()), tab);
    }
    const QStringList expected{QStringLiteral("Import"), QStringLiteral("Classify"),
                               QStringLiteral("Export")};
    QCOMPARE(names, expected);
}

void tst_QCustomTabBar::accessibleMeaningOfTheDot()
{
    QCustomTabBar bar;
    addTabs(bar);
    bar.setTabColor(1, Qt::red);
    QAccessibleInterface *tab = QAccessible::queryAccessibleInterface(&bar)->child(1);
    QCOMPARE(tab->text(QAccessible::Description), QString());
    bar.setTabToolTip(1, QStringLiteral("Failed"));
    QCOMPARE(tab->text(QAccessible::Description), QStringLiteral("Failed"));
    QCOMPARE(tab->text(QAccessible::Name), QStringLiteral("Classify"));
    bar.setTabColor(1, Qt::green);
    bar.setTabToolTip(1, QStringLiteral("Finished"));
    QCOMPARE(tab->text(QAccessible::Description), QStringLiteral("Finished"));
}

void tst_QCustomTabBar::accessiblePress()
{
    QCustomTabBar bar;
    addTabs(bar);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(&bar);
    QAccessibleActionInterface *action = list->child(2)->actionInterface();
    QVERIFY(action);
    QVERIFY(action->actionNames().contains(QAccessibleActionInterface::pressAction()));
    action->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(bar.currentIndex(), 2);
}

void tst_QCustomTabBar::accessibleStates()
{
    QCustomTabBar bar;
    addTabs(bar);
    bar.setFocusPolicy(Qt::StrongFocus);
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(&bar);
    QVERIFY(list->child(0)->state().invisible);
    bar.show();
    QVERIFY(QTest::qWaitForWindowActive(&bar));
    bar.setFocus();
    QTRY_VERIFY(bar.hasFocus());
    QVERIFY(!list->child(0)->state().invisible);
    QVERIFY(list->child(0)->state().focused && list->child(0)->state().focusable);
    QCOMPARE(list->focusChild(), list->child(0));
    QVERIFY(!list->child(1)->state().focused);
    bar.clearFocus();
    QVERIFY(!list->child(0)->state().focused && list->child(0)->state().selected);

    bar.setTabEnabled(2, false);
    const QAccessible::State disabled = list->child(2)->state();
    QVERIFY(disabled.disabled && !disabled.selectable && !disabled.focusable);
    QVERIFY(list->child(2)->actionInterface()->actionNames().isEmpty());
    list->child(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(bar.currentIndex(), 0);
    list->child(1)->actionInterface()->doAction(QStringLiteral("no such action"));
    QCOMPARE(bar.currentIndex(), 0);
}

void tst_QCustomTabBar::accessibleNames()
{
    QCustomTabBar bar;
    bar.addTab(QStringLiteral("&Save && load&"));
    bar.setTabWhatsThis(0, QStringLiteral("Saves"));
    const QAccessibleInterface *tab = QAccessible::queryAccessibleInterface(&bar)->child(0);
    QCOMPARE(tab->text(QAccessible::Name), QStringLiteral("Save & load"));
    QCOMPARE(tab->text(QAccessible::Accelerator),
             QKeySequence(Qt::ALT | Qt::Key_S).toString(QKeySequence::NativeText));
    QCOMPARE(tab->text(QAccessible::Help), QStringLiteral("Saves"));
    QCOMPARE(tab->text(QAccessible::Value), QString());
    bar.setAccessibleTabName(0, QStringLiteral("Files"));
    QCOMPARE(tab->text(QAccessible::Name), QStringLiteral("Files"));
}

void tst_QCustomTabBar::accessibleTabsComeAndGo()
{
    auto bar = std::make_unique<QCustomTabBar>();
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(bar.get());
    QVERIFY(!list->child(-1));
    QVERIFY(!list->child(1000));
    addTabs(*bar);
    const int others = list->childCount() - 3;
    QAccessibleInterface *last = list->child(2);
    const QAccessible::Id id = QAccessible::uniqueId(last);
    QVERIFY(last->isValid());
    bar->removeTab(0);
    QCOMPARE(list->childCount(), 2 + others);
    QVERIFY(!last->isValid());
    QVERIFY(last->state().invalid);
    QCOMPARE(last->text(QAccessible::Name), QString());
    QCOMPARE(last->rect(), QRect());
    QCOMPARE(list->child(1)->text(QAccessible::Name), QStringLiteral("Export"));
    for (int i = 0; i < list->childCount(); ++i) {
        QCOMPARE(list->indexOfChild(list->child(i)), i);
    }
    bar.reset();
    QVERIFY(!QAccessible::accessibleInterface(id));
}

LMTEST_MAIN(tst_QCustomTabBar)

#include "tst_qcustomtabbar.moc"
