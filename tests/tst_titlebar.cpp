#include "lmtest.h"

#include <lmwidgets/talvostylemanager.h>
#include <lmwidgets/titlebar.h>

#include <QAction>
#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QToolButton>

#include <limits>
#include <memory>

using LM::Widgets::TalvoStyleManager;
using LM::Widgets::TitleBar;

namespace {

const char ButtonStyle[] =
    "QToolButton{background-color:transparent;border: 0px solid #585858;border-radius: 0px;}\n"
    "QToolButton:hover{background-color:#333333;}\n"
    "QToolButton:pressed{background-color:#333333;padding:0px 0px 0px 0px;}";

constexpr Qt::Alignment LeftCentre = Qt::AlignLeft | Qt::AlignVCenter;

/** Counts all four signals of a title bar, in the order in which they come. */
class Recorder
{
public:
    explicit Recorder(TitleBar *bar)
    {
        QObject::connect(bar, &TitleBar::maximumed, bar,
                         [this] { events << QStringLiteral("max"); });
        QObject::connect(bar, &TitleBar::minimuned, bar,
                         [this] { events << QStringLiteral("min"); });
        QObject::connect(bar, &TitleBar::normaled, bar,
                         [this] { events << QStringLiteral("normal"); });
        QObject::connect(bar, &TitleBar::closed, bar,
                         [this] { events << QStringLiteral("close"); });
    }
    QStringList take()
    {
        QStringList taken;
        taken.swap(events);
        return taken;
    }

private:
    QStringList events;
};

/** A picture file that exists as long as the object does; folders that it made go with it. */
class TemporaryImage
{
public:
    TemporaryImage(const QString &path, const QColor &color) : m_path(path)
    {
        QDir folder = QFileInfo(path).dir();
        while (!folder.exists()) {
            m_folders.append(folder.path());
            folder = QFileInfo(folder.path()).dir();
        }
        QDir().mkpath(QFileInfo(path).path());
        m_existed = QFile::exists(path);
        if (m_existed) {
            QFile::rename(path, path + QStringLiteral(".kept"));
        }
        QImage image(16, 16, QImage::Format_ARGB32);
        image.fill(color);
        m_saved = image.save(path);
    }
    ~TemporaryImage()
    {
        QFile::remove(m_path);
        if (m_existed) {
            QFile::rename(m_path + QStringLiteral(".kept"), m_path);
        }
        for (const QString &folder : qAsConst(m_folders)) {
            QDir().rmdir(folder);
        }
    }
    bool isSaved() const { return m_saved; }

private:
    QString m_path;
    QStringList m_folders;
    bool m_existed = false;
    bool m_saved = false;
};

QColor colorOf(const QIcon &icon, QIcon::Mode mode = QIcon::Normal)
{
    const QPixmap pixmap = icon.pixmap(QSize(16, 16), mode, QIcon::Off);
    return pixmap.isNull() ? QColor() : pixmap.toImage().pixelColor(8, 8);
}

} // namespace

class tst_TitleBar : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void freshBarShowsMaximiseAndRestore();
    void switchMaxMinFromNormal();
    void hiddenMaximiseButtonStaysHidden();
    void hiddenRestoreButtonStaysHidden();
    void buttonsOutOfRange_data();
    void buttonsOutOfRange();
    void titleResetsTheAlignment();
    void appendOnAnEmptyRow();

    void metaObject();
    void fixedHeight();
    void properties();
    void label();
    void childOrder();
    void buttons_data();
    void buttons();
    void styleSheets();
    void layoutItems();
    void layoutMargins();
    void placeholder();
    void titleVisibility();
    void setMaximizedEmitsNothing();
    void setMaximizedTwice();
    void buttonVisibility();
    void mouseClicks();
    void logoEmitsNothing();
    void stateWhileTheSignalIsDelivered();
    void slotThroughTheMetaObject();
    void deletedWithinEachSignal_data();
    void deletedWithinEachSignal();
    void deletedByTheMouse();
    void releaseIsAccepted();
    void noDoubleClick();
    void icons();
    void toolTips();
    void imagesOfTheTheme();
    void hoverImageOfTheHost();
    void themeIsReadAtConstruction();
    void extraButton();
    void extraButtonOrder();
    void extraButtonIndices_data();
    void extraButtonIndices();
    void extraButtonNullAction();
    void extraButtonTriggersTheAction();
    void extraButtonOutlivesTheAction();
    void hostileTitle();
    void positionsOnScreen();
};

void tst_TitleBar::cleanup()
{
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black);
}

void tst_TitleBar::freshBarShowsMaximiseAndRestore()
{
    TitleBar bar;
    bar.show();
    for (int type = 0; type < 5; ++type) {
        QVERIFY2(bar.isTitleButtonVisible(type), qPrintable(QString::number(type)));
    }
    bar.setMaximized(false);
    QVERIFY(bar.isTitleButtonVisible(TitleBar::MaxButton));
    QVERIFY(!bar.isTitleButtonVisible(TitleBar::RestoreButton));
}

void tst_TitleBar::switchMaxMinFromNormal()
{
    TitleBar bar;
    bar.show();
    Recorder recorder(&bar);
    bar.switchMaxMin();
    QCOMPARE(recorder.take(), QStringList{QStringLiteral("max")});
    QVERIFY(!bar.isTitleButtonVisible(TitleBar::MaxButton));
    QVERIFY(bar.isTitleButtonVisible(TitleBar::RestoreButton));
    bar.switchMaxMin();
    QCOMPARE(recorder.take(), QStringList{QStringLiteral("normal")});
    QVERIFY(bar.isTitleButtonVisible(TitleBar::MaxButton));
    QVERIFY(!bar.isTitleButtonVisible(TitleBar::RestoreButton));
    bar.switchMaxMin();
    QCOMPARE(recorder.take(), QStringList{QStringLiteral("max")});
}

void tst_TitleBar::hiddenMaximiseButtonStaysHidden()
{
    TitleBar bar;
    bar.show();
    bar.setTitleButtonVisible(2, false);
    for (const bool maximized : {false, true, false}) {
        bar.setMaximized(maximized);
        QVERIFY(!bar.isTitleButtonVisible(2));
        QCOMPARE(bar.isTitleButtonVisible(3), maximized);
    }
    Recorder recorder(&bar);
    bar.switchMaxMin();
    QVERIFY(!bar.isTitleButtonVisible(2));
    QVERIFY(bar.isTitleButtonVisible(3));
    bar.switchMaxMin();
    QVERIFY(!bar.isTitleButtonVisible(2));
    QVERIFY(!bar.isTitleButtonVisible(3));
    QCOMPARE(recorder.take(), (QStringList{QStringLiteral("max"), QStringLiteral("normal")}));

    bar.setTitleButtonVisible(2, true);
    bar.setMaximized(true);
    QVERIFY(!bar.isTitleButtonVisible(2));
    bar.setMaximized(false);
    QVERIFY(bar.isTitleButtonVisible(2));
}

void tst_TitleBar::hiddenRestoreButtonStaysHidden()
{
    TitleBar bar;
    bar.show();
    bar.setTitleButtonVisible(3, false);
    bar.setMaximized(true);
    QVERIFY(!bar.isTitleButtonVisible(2));
    QVERIFY(!bar.isTitleButtonVisible(3));
    bar.switchMaxMin();
    QVERIFY(bar.isTitleButtonVisible(2));
    QVERIFY(!bar.isTitleButtonVisible(3));
}

void tst_TitleBar::buttonsOutOfRange_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("5") << 5;
    QTest::newRow("-1") << -1;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void tst_TitleBar::buttonsOutOfRange()
{
    QFETCH(int, type);
    TitleBar bar;
    bar.show();
    QVector<qint64> keys;
    for (int known = 0; known < 5; ++known) {
        keys.append(bar.titleButtonIcon(known).cacheKey());
    }
    bar.setTitleButtonIcon(type, QIcon(QPixmap(4, 4)));
    bar.setTitleButtonToolTip(type, QStringLiteral("tip"));
    bar.setTitleButtonVisible(type, false);
    for (int known = 0; known < 5; ++known) {
        QCOMPARE(bar.titleButtonIcon(known).cacheKey(), keys.at(known));
        QVERIFY(bar.titleButtonToolTip(known).isEmpty());
        QVERIFY(bar.isTitleButtonVisible(known));
    }
    QVERIFY(!bar.titleButton(type));
    QVERIFY(!bar.isTitleButtonVisible(type));
    QVERIFY(bar.titleButtonIcon(type).isNull());
    QVERIFY(bar.titleButtonToolTip(type).isNull());
}

void tst_TitleBar::titleResetsTheAlignment()
{
    TitleBar bar;
    bar.setTitleAlignment(Qt::AlignCenter);
    QCOMPARE(bar.titleLabel()->alignment(), Qt::AlignCenter);
    bar.setTitle(QStringLiteral("Layers"));
    QCOMPARE(bar.titleLabel()->alignment(), LeftCentre);
    QCOMPARE(bar.title(), QStringLiteral("Layers"));
    bar.setTitleAlignment(Qt::AlignRight);
    bar.setTitle(QStringLiteral("Layers"));
    QCOMPARE(bar.titleLabel()->alignment(), LeftCentre);
}

void tst_TitleBar::appendOnAnEmptyRow()
{
    TitleBar bar;
    QAction action(QStringLiteral("pin"), nullptr);
    QCOMPARE(bar.topLayout()->count(), 0);
    QToolButton *button = bar.appendExtendTitleButton(&action, QSize(24, 24), QSize(16, 16));
    QVERIFY(button);
    QCOMPARE(bar.topLayout()->count(), 1);
    QCOMPARE(bar.topLayout()->itemAt(0)->widget(), button);
}

void tst_TitleBar::metaObject()
{
    const QMetaObject &meta = TitleBar::staticMetaObject;
    QCOMPARE(meta.className(), "LM::Widgets::TitleBar");
    QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
    const QStringList expected{
        QStringLiteral("signal maximumed()"),  QStringLiteral("signal minimuned()"),
        QStringLiteral("signal normaled()"),   QStringLiteral("signal closed()"),
        QStringLiteral("slot switchMaxMin()"),
    };
    QCOMPARE(lmtest::ownMethods(meta), expected);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(int(TitleBar::LogoButton), 0);
    QCOMPARE(int(TitleBar::MinButton), 1);
    QCOMPARE(int(TitleBar::MaxButton), 2);
    QCOMPARE(int(TitleBar::RestoreButton), 3);
    QCOMPARE(int(TitleBar::CloseButton), 4);
}

void tst_TitleBar::fixedHeight()
{
    TitleBar bar;
    QCOMPARE(bar.minimumHeight(), 48);
    QCOMPARE(bar.maximumHeight(), 48);
    QCOMPARE(bar.height(), 48);
    QCOMPARE(bar.maximumWidth(), QWIDGETSIZE_MAX);
}

void tst_TitleBar::properties()
{
    TitleBar bar;
    QCOMPARE(bar.property("isTitleBar"), QVariant(true));
    QCOMPARE(bar.property("isForeground"), QVariant(true));
    QCOMPARE(bar.dynamicPropertyNames(), (QList<QByteArray>{"isTitleBar", "isForeground"}));
    QVERIFY(bar.styleSheet().isEmpty());
}

void tst_TitleBar::label()
{
    TitleBar bar;
    QLabel *label = bar.titleLabel();
    QVERIFY(label);
    QCOMPARE(label->parentWidget(), &bar);
    QCOMPARE(label->objectName(), QStringLiteral("zrqfctitleLabel"));
    QCOMPARE(label->property("isTitleBarTitle"), QVariant(true));
    QVERIFY(label->text().isEmpty());
    QVERIFY(bar.title().isEmpty());
    QVERIFY(label->styleSheet().isEmpty());
}

void tst_TitleBar::childOrder()
{
    TitleBar bar;
    QWidgetList widgets;
    for (QObject *child : bar.children()) {
        if (child->isWidgetType()) {
            widgets.append(static_cast<QWidget *>(child));
        }
    }
    const QWidgetList expected{bar.titleLabel(),   bar.titleButton(0), bar.titleButton(1),
                               bar.titleButton(2), bar.titleButton(3), bar.titleButton(4),
                               bar.topLeftWidget()};
    QCOMPARE(widgets, expected);
}

void tst_TitleBar::buttons_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QSize>("size");
    QTest::newRow("logo") << 0 << QByteArray("isTitleBarLogoButton") << QSize(42, 20);
    QTest::newRow("minimise") << 1 << QByteArray("isTitleBarMinButton") << QSize(20, 20);
    QTest::newRow("maximise") << 2 << QByteArray("isTitleBarMaxButton") << QSize(20, 20);
    QTest::newRow("restore") << 3 << QByteArray("isTitleBarRestoreButton") << QSize(20, 20);
    QTest::newRow("close") << 4 << QByteArray("isTitleBarCloseButton") << QSize(20, 20);
}

void tst_TitleBar::buttons()
{
    QFETCH(int, type);
    QFETCH(QByteArray, property);
    QFETCH(QSize, size);
    TitleBar bar;
    QToolButton *button = bar.titleButton(type);
    QVERIFY(button);
    QCOMPARE(bar.getButtonByType(type), button);
    QCOMPARE(button->parentWidget(), &bar);
    QCOMPARE(button->dynamicPropertyNames(), QList<QByteArray>{property});
    QCOMPARE(button->property(property.constData()), QVariant(true));
    QCOMPARE(button->iconSize(), QSize(16, 16));
    QVERIFY(button->autoRaise());
    QVERIFY(button->autoFillBackground());
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QVERIFY(!button->isCheckable());
    QVERIFY(button->isEnabled());
    QCOMPARE(button->minimumSize(), size);
    QCOMPARE(button->maximumSize(), size);
    QVERIFY(bar.titleButtonToolTip(type).isEmpty());
}

void tst_TitleBar::styleSheets()
{
    TitleBar bar;
    QVERIFY(bar.titleButton(0)->styleSheet().isEmpty());
    for (int type = 1; type < 5; ++type) {
        QCOMPARE(bar.titleButton(type)->styleSheet(), QLatin1String(ButtonStyle));
    }
}

void tst_TitleBar::layoutItems()
{
    TitleBar bar;
    QHBoxLayout *layout = bar.titleBarMainLayout();
    QCOMPARE(bar.layout(), layout);
    QCOMPARE(layout->count(), 8);
    const QWidgetList widgets{
        bar.topLeftWidget(), bar.titleButton(0), bar.titleLabel(),   nullptr,
        bar.titleButton(1),  bar.titleButton(2), bar.titleButton(3), bar.titleButton(4)};
    const QVector<int> stretches{65, 64, 0, 0, 0, 0, 0, 0};
    for (int i = 0; i < layout->count(); ++i) {
        QCOMPARE(layout->itemAt(i)->widget(), widgets.at(i));
        QCOMPARE(layout->stretch(i), stretches.at(i));
        const Qt::Alignment alignment = i < 4 ? Qt::Alignment() : Qt::AlignBottom;
        QCOMPARE(layout->itemAt(i)->alignment(), alignment);
    }
    QCOMPARE(layout->itemAt(3)->layout(), bar.topLayout());
}

void tst_TitleBar::layoutMargins()
{
    TitleBar bar;
    QCOMPARE(bar.titleBarMainLayout()->contentsMargins(), QMargins(0, 11, 24, 11));
    QCOMPARE(bar.titleBarMainLayout()->spacing(), 0);
    QCOMPARE(bar.topLayout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(bar.topLayout()->spacing(), 2);
}

void tst_TitleBar::placeholder()
{
    TitleBar bar;
    bar.show();
    QWidget *widget = bar.topLeftWidget();
    QVERIFY(widget);
    QCOMPARE(widget->parentWidget(), &bar);
    QVERIFY(widget->isHidden());
    QVERIFY(widget->children().isEmpty());
    QCOMPARE(widget->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(widget->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    widget->show();
    QVERIFY(widget->isVisible());
}

void tst_TitleBar::titleVisibility()
{
    TitleBar bar;
    QVERIFY(!bar.isTitleVisible());
    bar.show();
    QVERIFY(bar.isTitleVisible());
    bar.setTitleVisible(false);
    QVERIFY(!bar.isTitleVisible());
    bar.setTitle(QStringLiteral("x"));
    QVERIFY(!bar.isTitleVisible());
    bar.setTitleVisible(true);
    QVERIFY(bar.isTitleVisible());
    bar.hide();
    QVERIFY(!bar.isTitleVisible());
}

void tst_TitleBar::setMaximizedEmitsNothing()
{
    TitleBar bar;
    bar.show();
    Recorder recorder(&bar);
    bar.setMaximized(true);
    QVERIFY(!bar.isTitleButtonVisible(2));
    QVERIFY(bar.isTitleButtonVisible(3));
    bar.setMaximized(false);
    QVERIFY(bar.isTitleButtonVisible(2));
    QVERIFY(!bar.isTitleButtonVisible(3));
    QVERIFY(recorder.take().isEmpty());
}

void tst_TitleBar::setMaximizedTwice()
{
    TitleBar bar;
    bar.show();
    bar.setMaximized(true);
    bar.setMaximized(true);
    Recorder recorder(&bar);
    bar.switchMaxMin();
    QCOMPARE(recorder.take(), QStringList{QStringLiteral("normal")});
}

void tst_TitleBar::buttonVisibility()
{
    TitleBar bar;
    for (int type = 0; type < 5; ++type) {
        QVERIFY(!bar.isTitleButtonVisible(type));
    }
    bar.show();
    for (int type = 0; type < 5; ++type) {
        bar.setTitleButtonVisible(type, false);
        QVERIFY(!bar.isTitleButtonVisible(type));
        bar.setTitleButtonVisible(type, true);
        QVERIFY(bar.isTitleButtonVisible(type));
    }
}

void tst_TitleBar::mouseClicks()
{
    TitleBar bar;
    bar.resize(400, 48);
    bar.setMaximized(false);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    Recorder recorder(&bar);
    QTest::mouseClick(bar.titleButton(4), Qt::LeftButton);
    QCOMPARE(recorder.take(), QStringList{QStringLiteral("close")});
    QTest::mouseClick(bar.titleButton(1), Qt::LeftButton);
    QCOMPARE(recorder.take(), QStringList{QStringLiteral("min")});
    QTest::mouseClick(bar.titleButton(2), Qt::LeftButton);
    QCOMPARE(recorder.take(), QStringList{QStringLiteral("max")});
    QVERIFY(bar.isTitleButtonVisible(3));
    QTest::mouseClick(bar.titleButton(3), Qt::LeftButton);
    QCOMPARE(recorder.take(), QStringList{QStringLiteral("normal")});
    QVERIFY(!bar.isTitleButtonVisible(3));
    // The title bar leaves the window alone.
    QVERIFY(bar.isVisible());
    QVERIFY(!bar.isMaximized());
    QTest::mouseClick(bar.titleButton(4), Qt::RightButton);
    QVERIFY(recorder.take().isEmpty());
}

void tst_TitleBar::logoEmitsNothing()
{
    TitleBar bar;
    bar.show();
    Recorder recorder(&bar);
    QTest::mouseClick(bar.titleButton(0), Qt::LeftButton);
    QVERIFY(recorder.take().isEmpty());
}

void tst_TitleBar::stateWhileTheSignalIsDelivered()
{
    // The state changes after the emission: what the receiver sets meanwhile does not count.
    TitleBar bar;
    bar.show();
    connect(&bar, &TitleBar::maximumed, &bar, [&bar] { bar.setMaximized(false); });
    bar.switchMaxMin();
    QVERIFY(bar.isTitleButtonVisible(2));
    Recorder recorder(&bar);
    bar.switchMaxMin();
    QCOMPARE(recorder.take(), QStringList{QStringLiteral("normal")});

    // The buttons change before it.
    TitleBar other;
    other.show();
    bool restoreShown = false;
    connect(&other, &TitleBar::maximumed, &other, [&] {
        restoreShown = other.isTitleButtonVisible(3) && !other.isTitleButtonVisible(2);
    });
    other.switchMaxMin();
    QVERIFY(restoreShown);
}

void tst_TitleBar::slotThroughTheMetaObject()
{
    TitleBar bar;
    QSignalSpy spy(&bar, SIGNAL(maximumed()));
    QVERIFY(QMetaObject::invokeMethod(&bar, "switchMaxMin"));
    QCOMPARE(spy.count(), 1);
}

void tst_TitleBar::deletedWithinEachSignal_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("maximized");
    QTest::newRow("minimise") << 1 << false;
    QTest::newRow("maximise") << 2 << false;
    QTest::newRow("restore") << 3 << true;
    QTest::newRow("close") << 4 << false;
}

void tst_TitleBar::deletedWithinEachSignal()
{
    QFETCH(int, type);
    QFETCH(bool, maximized);
    const QPointer<TitleBar> bar = new TitleBar;
    bar->setMaximized(maximized);
    bar->show();
    const auto destroy = [&bar] { delete bar.data(); };
    connect(bar, &TitleBar::minimuned, this, destroy);
    connect(bar, &TitleBar::maximumed, this, destroy);
    connect(bar, &TitleBar::normaled, this, destroy);
    connect(bar, &TitleBar::closed, this, destroy);
    bar->titleButton(type)->click();
    QVERIFY(bar.isNull());
}

void tst_TitleBar::deletedByTheMouse()
{
    QAction action(QStringLiteral("a"), nullptr);
    for (int type = 0; type < 6; ++type) {
        const QPointer<TitleBar> bar = new TitleBar;
        QToolButton *extra = bar->appendExtendTitleButton(&action, QSize(20, 20), QSize(16, 16));
        bar->resize(400, 48);
        bar->show();
        QVERIFY(QTest::qWaitForWindowExposed(bar));
        QToolButton *button = type < 5 ? bar->titleButton(type) : extra;
        connect(button, &QToolButton::clicked, this, [&bar] { delete bar.data(); });
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(bar.isNull());
    }
}

void tst_TitleBar::releaseIsAccepted()
{
    TitleBar bar;
    bar.show();
    QToolButton *button = bar.titleButton(1);
    QCOMPARE(button->metaObject()->className(), "QToolButton");
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(button, &press);
    QVERIFY(button->isDown());
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(5, 5), Qt::LeftButton, {}, {});
    release.ignore();
    QApplication::sendEvent(button, &release);
    QVERIFY(release.isAccepted());
    QVERIFY(!button->isDown());
}

void tst_TitleBar::noDoubleClick()
{
    TitleBar bar;
    bar.resize(400, 48);
    bar.show();
    Recorder recorder(&bar);
    QTest::mouseDClick(&bar, Qt::LeftButton, Qt::NoModifier, QPoint(100, 5));
    QTest::mouseDClick(bar.titleLabel(), Qt::LeftButton);
    QVERIFY(recorder.take().isEmpty());
}

void tst_TitleBar::icons()
{
    TitleBar bar;
    QVERIFY(bar.titleButtonIcon(0).isNull());
    QVERIFY(bar.titleButtonIcon(1).isNull());
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    const QIcon icon(pixmap);
    for (int type = 0; type < 5; ++type) {
        bar.setTitleButtonIcon(type, icon);
        QCOMPARE(bar.titleButtonIcon(type).cacheKey(), icon.cacheKey());
        QCOMPARE(bar.titleButton(type)->icon().cacheKey(), icon.cacheKey());
    }
    bar.setTitleButtonIcon(0, QIcon());
    QVERIFY(bar.titleButtonIcon(0).isNull());
}

void tst_TitleBar::toolTips()
{
    TitleBar bar;
    for (int type = 0; type < 5; ++type) {
        const QString text = QStringLiteral("tip %1").arg(type);
        bar.setTitleButtonToolTip(type, text);
        QCOMPARE(bar.titleButtonToolTip(type), text);
        QCOMPARE(bar.titleButton(type)->toolTip(), text);
    }
}

void tst_TitleBar::imagesOfTheTheme()
{
    const QString folder = lmtest::themeDir() + QStringLiteral("/White/qssimage/");
    const TemporaryImage maximize(folder + QStringLiteral("systembuttonmaximize.png"), Qt::red);
    const TemporaryImage restore(folder + QStringLiteral("smallwindowmaxicon.png"), Qt::green);
    const TemporaryImage close(folder + QStringLiteral("smallwindowcloseicon.png"), Qt::blue);
    QVERIFY(maximize.isSaved() && restore.isSaved() && close.isSaved());
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::White);
    TitleBar bar;
    QCOMPARE(colorOf(bar.titleButtonIcon(2)), QColor(Qt::red));
    QCOMPARE(colorOf(bar.titleButtonIcon(3)), QColor(Qt::green));
    QCOMPARE(colorOf(bar.titleButtonIcon(4)), QColor(Qt::blue));
    QCOMPARE(colorOf(bar.titleButtonIcon(4), QIcon::Active), QColor(Qt::blue));
    QVERIFY(bar.titleButtonIcon(0).isNull());
    QVERIFY(bar.titleButtonIcon(1).isNull());
}

void tst_TitleBar::hoverImageOfTheHost()
{
    const TemporaryImage close(
        lmtest::themeDir() + QStringLiteral("/Blue/qssimage/smallwindowcloseicon.png"), Qt::blue);
    // No separator between the two.
    const TemporaryImage host(QCoreApplication::applicationDirPath() +
                                  QStringLiteral("qssimage/smallwindowcloseicon.png"),
                              Qt::yellow);
    QVERIFY(close.isSaved() && host.isSaved());
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Blue);
    TitleBar bar;
    const QIcon icon = bar.titleButtonIcon(4);
    QCOMPARE(colorOf(icon), QColor(Qt::blue));
    QCOMPARE(colorOf(icon, QIcon::Active), QColor(Qt::yellow));
    QCOMPARE(colorOf(icon, QIcon::Disabled), QColor(Qt::yellow));
}

void tst_TitleBar::themeIsReadAtConstruction()
{
    const TemporaryImage white(
        lmtest::themeDir() + QStringLiteral("/White/qssimage/systembuttonmaximize.png"), Qt::red);
    const TemporaryImage blue(
        lmtest::themeDir() + QStringLiteral("/Blue/qssimage/systembuttonmaximize.png"), Qt::blue);
    QVERIFY(white.isSaved() && blue.isSaved());
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::White);
    TitleBar bar;
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Blue);
    QCOMPARE(colorOf(bar.titleButtonIcon(2)), QColor(Qt::red));
    TitleBar later;
    QCOMPARE(colorOf(later.titleButtonIcon(2)), QColor(Qt::blue));
}

void tst_TitleBar::extraButton()
{
    TitleBar bar;
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    QAction action(QIcon(pixmap), QStringLiteral("Pin"), nullptr);
    action.setToolTip(QStringLiteral("Keep it on top"));
    QToolButton *button = bar.insertExtendTitleButton(0, &action, QSize(31, 22), QSize(12, 13));
    QVERIFY(button);
    QCOMPARE(button->parentWidget(), &bar);
    QCOMPARE(button->defaultAction(), &action);
    QCOMPARE(button->iconSize(), QSize(12, 13));
    QCOMPARE(button->minimumSize(), QSize(31, 22));
    QCOMPARE(button->maximumSize(), QSize(31, 22));
    QCOMPARE(button->toolTip(), QStringLiteral("Keep it on top"));
    QCOMPARE(colorOf(button->icon()), QColor(Qt::red));
    QCOMPARE(bar.topLayout()->stretch(0), 0);
    QCOMPARE(bar.topLayout()->itemAt(0)->alignment(), Qt::Alignment());
    QVERIFY(!action.parent());
}

void tst_TitleBar::extraButtonOrder()
{
    TitleBar bar;
    QAction action(QStringLiteral("a"), nullptr);
    const QSize size(20, 20);
    QToolButton *first = bar.appendExtendTitleButton(&action, size, size);
    QToolButton *third = bar.appendExtendTitleButton(&action, size, size);
    QToolButton *second = bar.insertExtendTitleButton(1, &action, size, size);
    QToolButton *front = bar.insertExtendTitleButton(0, &action, size, size);
    const QList<QToolButton *> expected{front, first, second, third};
    for (int i = 0; i < expected.count(); ++i) {
        QCOMPARE(bar.topLayout()->itemAt(i)->widget(), expected.at(i));
    }
}

void tst_TitleBar::extraButtonIndices_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("end") << 2;
    QTest::newRow("past the end") << 3;
    QTest::newRow("far past the end") << std::numeric_limits<int>::max();
    QTest::newRow("negative") << -1;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void tst_TitleBar::extraButtonIndices()
{
    QFETCH(int, index);
    TitleBar bar;
    QAction action(QStringLiteral("a"), nullptr);
    const QSize size(20, 20);
    bar.appendExtendTitleButton(&action, size, size);
    bar.appendExtendTitleButton(&action, size, size);
    QToolButton *button = bar.insertExtendTitleButton(index, &action, size, size);
    QVERIFY(button);
    QCOMPARE(bar.topLayout()->count(), 3);
    QCOMPARE(bar.topLayout()->itemAt(2)->widget(), button);
}

void tst_TitleBar::extraButtonNullAction()
{
    TitleBar bar;
    const int children = bar.children().count();
    QVERIFY(!bar.insertExtendTitleButton(0, nullptr, QSize(20, 20), QSize(16, 16)));
    QVERIFY(!bar.appendExtendTitleButton(nullptr, QSize(20, 20), QSize(16, 16)));
    QCOMPARE(bar.topLayout()->count(), 0);
    QCOMPARE(bar.children().count(), children);
}

void tst_TitleBar::extraButtonTriggersTheAction()
{
    TitleBar bar;
    bar.resize(400, 48);
    QAction action(QStringLiteral("a"), nullptr);
    QSignalSpy spy(&action, &QAction::triggered);
    QToolButton *button = bar.appendExtendTitleButton(&action, QSize(20, 20), QSize(16, 16));
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    Recorder recorder(&bar);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
    QVERIFY(recorder.take().isEmpty());
    action.setToolTip(QStringLiteral("new"));
    QCOMPARE(button->toolTip(), QStringLiteral("new"));
}

void tst_TitleBar::extraButtonOutlivesTheAction()
{
    TitleBar bar;
    auto action = std::make_unique<QAction>(QStringLiteral("a"), nullptr);
    QToolButton *button = bar.appendExtendTitleButton(action.get(), QSize(20, 20), QSize(16, 16));
    bar.show();
    action.reset();
    QVERIFY(!button->defaultAction());
    button->click();
    delete button;
    QCOMPARE(bar.topLayout()->count(), 0);
}

void tst_TitleBar::hostileTitle()
{
    TitleBar bar;
    bar.show();
    const QStringList titles{QString(), QStringLiteral("%1 %n & &&\n<b>x"),
                             QString(20000, QLatin1Char('w')), QString(QChar(0)),
                             QStringLiteral("\u202Exyz")};
    for (const QString &title : titles) {
        bar.setTitle(title);
        QCOMPARE(bar.title(), title);
        bar.grab();
    }
}

void tst_TitleBar::positionsOnScreen()
{
    TitleBar bar;
    bar.setTitle(QStringLiteral("Layers"));
    bar.setMaximized(false);
    bar.setTitleButtonVisible(0, false);
    bar.resize(400, 48);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    const QRect close = bar.titleButton(4)->geometry();
    QCOMPARE(close, QRect(400 - 24 - 20, 48 - 11 - 20, 20, 20));
    QCOMPARE(bar.titleButton(2)->geometry(), close.translated(-20, 0));
    QCOMPARE(bar.titleButton(1)->geometry(), close.translated(-40, 0));
    QCOMPARE(bar.titleLabel()->x(), 0);
    QVERIFY(bar.titleLabel()->geometry().right() < bar.titleButton(1)->x());
}

LMTEST_MAIN(tst_TitleBar)

#include "tst_titlebar.moc"
