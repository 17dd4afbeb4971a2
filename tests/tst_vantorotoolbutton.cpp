#include "lmtest.h"

#include <lmwidgets/talvostylemanager.h>
#include <lmwidgets/vantorotoolbutton.h>

#include <QImage>
#include <QPainter>

using LM::Widgets::TalvoStyleManager;

namespace {

constexpr int Size = 20;

QImage themePicture(const QString &theme, const QString &name)
{
    const QString file =
        QStringLiteral("%1/%2/qssimage/%3.png").arg(lmtest::themeDir(), theme, name);
    return QIcon(QPixmap(file)).pixmap(Size, Size).toImage().convertToFormat(QImage::Format_ARGB32);
}

QImage shown(const QIcon &icon, QIcon::Mode mode = QIcon::Normal, QIcon::State state = QIcon::Off)
{
    return icon.pixmap(Size, Size, mode, state).toImage().convertToFormat(QImage::Format_ARGB32);
}

void setTheme(int theme)
{
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::ThemeStyleType(theme));
}

/** A window with a button in it and room around the button for the mouse. */
struct Panel
{
    Panel() : button(new VantoroToolButton(&window))
    {
        window.resize(120, 100);
        button->setGeometry(40, 30, 32, 32);
        button->setIconSize(QSize(Size, Size));
    }
    bool show()
    {
        // A mouse that an earlier test has left over the button would not enter it.
        window.move(0, 0);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) {
            return false;
        }
        return leave();
    }
    void moveTo(const QPoint &place) { QCursor::setPos(window.mapToGlobal(place)); }
    bool hover() { return moveUntil(button->geometry().center(), true); }
    bool leave() { return moveUntil(QPoint(5, 5), false); }
    /** Moves the mouse about at @p place, as a hand does, until the button has noticed. */
    bool moveUntil(const QPoint &place, bool isOver)
    {
        int moves = 0;
        return QTest::qWaitFor([&] {
            moveTo(place + QPoint(moves++ % 3, 0));
            QCoreApplication::processEvents();
            return button->underMouse() == isOver;
        });
    }

    QWidget window;
    VantoroToolButton *const button;
};

const QString Normal = QStringLiteral("layer_edit");
const QString Hover = QStringLiteral("layer_edit_hover");
const QString Disabled = QStringLiteral("layer_edit_disabled");

} // namespace

class tst_VantoroToolButton : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { setTheme(TalvoStyleManager::Black); }
    void newButton();
    void threePictures_data();
    void threePictures();
    void hover();
    void themeSwitchShowsAtTheNextHover();
    void themeSwitchWhileHovered();
    void disabledWhileHovered();
    void paintedPicture_data();
    void paintedPicture();
    void doubleResolution();
    void missingPictures_data();
    void missingPictures();
    void otherNamesWhileHovered();
    void hoverWithoutNames();
    void clicks();
    void clickDestroysTheButton();
    void destroyedWhileHovered();
};

void tst_VantoroToolButton::initTestCase()
{
    TestCase::initTestCase();
    for (const char *theme : {"Black", "White", "Blue"}) {
        const QString name = QLatin1String(theme);
        QVERIFY(!themePicture(name, Normal).isNull());
        // What the tests below tell apart.
        QVERIFY(themePicture(name, Normal) != themePicture(name, Hover));
        QVERIFY(themePicture(name, Normal) != themePicture(name, Disabled));
        QVERIFY(themePicture(name, Hover) != themePicture(name, Disabled));
    }
    QVERIFY(themePicture("Black", Hover) != themePicture("White", Hover));
    QVERIFY(themePicture("Black", Normal) != themePicture("White", Normal));
}

void tst_VantoroToolButton::newButton()
{
    QWidget parent;
    VantoroToolButton button(&parent);
    QCOMPARE(button.parentWidget(), &parent);
    QVERIFY(button.icon().isNull());
    const QMetaObject *meta = button.metaObject();
    QCOMPARE(QLatin1String(meta->className()), QLatin1String("VantoroToolButton"));
    QCOMPARE(meta->superClass(), &QToolButton::staticMetaObject);
    QVERIFY(lmtest::ownMethods(*meta).isEmpty());
    QVERIFY(!VantoroToolButton().parent());
}

void tst_VantoroToolButton::threePictures_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<QString>("folder");
    QTest::newRow("black") << 0 << "Black";
    QTest::newRow("white") << 1 << "White";
    QTest::newRow("blue") << 2 << "Blue";
    QTest::newRow("unknown theme") << 3 << "Black";
}

void tst_VantoroToolButton::threePictures()
{
    QFETCH(int, theme);
    QFETCH(QString, folder);
    setTheme(theme);
    VantoroToolButton button;
    button.setIconPixmap(Normal, Hover, Disabled);
    QCOMPARE(shown(button.icon()), themePicture(folder, Normal));
    QCOMPARE(shown(button.icon(), QIcon::Active), themePicture(folder, Hover));
    QCOMPARE(shown(button.icon(), QIcon::Disabled), themePicture(folder, Disabled));
    QCOMPARE(shown(button.icon(), QIcon::Normal, QIcon::On), themePicture(folder, Normal));
}

void tst_VantoroToolButton::hover()
{
    Panel panel;
    panel.button->setIconPixmap(Normal, Hover, Disabled);
    QVERIFY(panel.show());
    QCOMPARE(shown(panel.button->icon()), themePicture("Black", Normal));
    for (int i = 0; i < 3; ++i) {
        QVERIFY(panel.hover());
        QCOMPARE(shown(panel.button->icon()), themePicture("Black", Hover));
        QCOMPARE(shown(panel.button->icon(), QIcon::Active), themePicture("Black", Hover));
        QCOMPARE(shown(panel.button->icon(), QIcon::Disabled), themePicture("Black", Disabled));
        QVERIFY(panel.leave());
        QCOMPARE(shown(panel.button->icon()), themePicture("Black", Normal));
        QCOMPARE(shown(panel.button->icon(), QIcon::Active), themePicture("Black", Hover));
    }
}

void tst_VantoroToolButton::themeSwitchShowsAtTheNextHover()
{
    Panel panel;
    panel.button->setIconPixmap(Normal, Hover, Disabled);
    QVERIFY(panel.show());
    setTheme(TalvoStyleManager::White);
    QCOMPARE(shown(panel.button->icon()), themePicture("Black", Normal));
    QVERIFY(panel.hover());
    QCOMPARE(shown(panel.button->icon()), themePicture("White", Hover));
    QCOMPARE(shown(panel.button->icon(), QIcon::Disabled), themePicture("White", Disabled));
    QVERIFY(panel.leave());
    QCOMPARE(shown(panel.button->icon()), themePicture("White", Normal));
}

void tst_VantoroToolButton::themeSwitchWhileHovered()
{
    Panel panel;
    panel.button->setIconPixmap(Normal, Hover, Disabled);
    QVERIFY(panel.show());
    QVERIFY(panel.hover());
    setTheme(TalvoStyleManager::White);
    QCOMPARE(shown(panel.button->icon()), themePicture("Black", Hover));
    QVERIFY(panel.leave());
    QCOMPARE(shown(panel.button->icon()), themePicture("White", Normal));
    QCOMPARE(shown(panel.button->icon(), QIcon::Active), themePicture("White", Hover));
}

void tst_VantoroToolButton::disabledWhileHovered()
{
    Panel panel;
    panel.button->setAutoRaise(true);
    panel.button->setIconPixmap(Normal, Hover, Disabled);
    QVERIFY(panel.show());
    QVERIFY(panel.hover());
    panel.button->setEnabled(false);
    QCOMPARE(shown(panel.button->icon(), QIcon::Disabled), themePicture("Black", Disabled));
    panel.leave();
    panel.button->setEnabled(true);
    QVERIFY(panel.hover());
    QCOMPARE(shown(panel.button->icon()), themePicture("Black", Hover));
    // Hidden from under the mouse, it is left as well.
    panel.button->hide();
    QTRY_COMPARE(shown(panel.button->icon()), themePicture("Black", Normal));
}

void tst_VantoroToolButton::paintedPicture_data()
{
    QTest::addColumn<int>("ratio");
    QTest::newRow("1") << 1;
    QTest::newRow("2") << 2;
}

/** What the user sees is the picture, and no shade of it that Qt makes by itself. */
void tst_VantoroToolButton::paintedPicture()
{
    QFETCH(int, ratio);
    Panel panel;
    panel.button->setStyleSheet(QStringLiteral("background:#363636;border:none;"));
    panel.button->setIconPixmap(Normal, Hover, Disabled);
    QVERIFY(panel.show());
    const auto painted = [&] {
        QImage image(QSize(32, 32) * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        panel.button->render(&image);
        return image.copy(6 * ratio, 6 * ratio, Size * ratio, Size * ratio);
    };
    const auto expected = [&](const QString &name) {
        QImage image(QSize(Size, Size) * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(QColor(0x36, 0x36, 0x36));
        QPainter painter(&image);
        const QImage picture = themePicture(QStringLiteral("Black"), name);
        painter.drawImage(QRect(0, 0, Size, Size), picture);
        painter.end();
        return image;
    };
    if (ratio == 1) {
        QCOMPARE(painted(), expected(Normal));
        QVERIFY(panel.hover());
        QCOMPARE(painted(), expected(Hover));
        QVERIFY(panel.leave());
        panel.button->setEnabled(false);
        QCOMPARE(painted(), expected(Disabled));
        return;
    }
    // On a screen of double resolution the three differ from each other all the same.
    const QImage normal = painted();
    QVERIFY(panel.hover());
    const QImage hovered = painted();
    QVERIFY(panel.leave());
    QCOMPARE(painted(), normal);
    panel.button->setEnabled(false);
    QVERIFY(hovered != normal);
    QVERIFY(painted() != normal && painted() != hovered);
}

/** The ratio of the application is fixed at its start: the test runs itself once more. */
void tst_VantoroToolButton::doubleResolution()
{
    if (qApp->devicePixelRatio() < 2) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
        const QByteArray output =
            lmtest::runTestFunction(QCoreApplication::applicationFilePath(),
                                    QStringLiteral("doubleResolution"), environment);
        QVERIFY2(output.contains("PASS   : tst_VantoroToolButton::doubleResolution"), output);
        return;
    }
    Panel panel;
    panel.button->setIconPixmap(Normal, Hover, Disabled);
    QVERIFY(panel.show());
    const auto large = [&](const QString &name) {
        return QImage(QStringLiteral("%1/Black/qssimage/%2@2x.png").arg(lmtest::themeDir(), name))
            .size();
    };
    const auto sizes = [&](QIcon::Mode mode) { return panel.button->icon().availableSizes(mode); };
    QVERIFY(sizes(QIcon::Normal).contains(large(Normal)));
    QVERIFY(sizes(QIcon::Active).contains(large(Hover)));
    QVERIFY(sizes(QIcon::Disabled).contains(large(Disabled)));
    QVERIFY(panel.hover());
    const QPixmap hovered =
        panel.button->icon().pixmap(panel.window.windowHandle(), QSize(Size, Size));
    QCOMPARE(hovered.size(), QSize(2 * Size, 2 * Size));
}

void tst_VantoroToolButton::missingPictures_data()
{
    QTest::addColumn<QString>("normal");
    QTest::addColumn<QString>("hover");
    QTest::addColumn<QString>("disabled");
    const QString missing = QStringLiteral("no_such_picture");
    QTest::newRow("all") << missing << missing << missing;
    QTest::newRow("empty names") << QString() << QString() << QString();
    QTest::newRow("normal") << missing << Hover << Disabled;
    QTest::newRow("hover") << Normal << missing << Disabled;
    QTest::newRow("disabled") << Normal << Hover << missing;
    QTest::newRow("a way out") << QStringLiteral("../../..") << QStringLiteral("/etc/passwd")
                               << QString(5000, QLatin1Char('x'));
}

void tst_VantoroToolButton::missingPictures()
{
    QFETCH(QString, normal);
    QFETCH(QString, hover);
    QFETCH(QString, disabled);
    Panel panel;
    panel.button->setIconPixmap(normal, hover, disabled);
    QVERIFY(panel.show());
    QVERIFY(!panel.window.grab().isNull());
    const bool anything = normal == Normal || hover == Hover || disabled == Disabled;
    QCOMPARE(!shown(panel.button->icon()).isNull(), anything);
    if (normal == Normal) {
        QCOMPARE(shown(panel.button->icon()), themePicture("Black", Normal));
    }
    QVERIFY(panel.hover());
    QVERIFY(!panel.window.grab().isNull());
    if (hover == Hover) {
        QCOMPARE(shown(panel.button->icon()), themePicture("Black", Hover));
    }
    QVERIFY(panel.leave());
    panel.button->setEnabled(false);
    QVERIFY(!panel.window.grab().isNull());
    // A later call with pictures that are there puts it right.
    panel.button->setIconPixmap(Normal, Hover, Disabled);
    QCOMPARE(shown(panel.button->icon()), themePicture("Black", Normal));
}

void tst_VantoroToolButton::otherNamesWhileHovered()
{
    Panel panel;
    panel.button->setIconPixmap(Normal, Hover, Disabled);
    QVERIFY(panel.show());
    QVERIFY(panel.hover());
    panel.button->setIconPixmap(QStringLiteral("layer_lock"), QStringLiteral("layer_lock_hover"),
                                QStringLiteral("layer_lock_disabled"));
    QCOMPARE(shown(panel.button->icon()), themePicture("Black", "layer_lock"));
    QVERIFY(panel.leave());
    QVERIFY(panel.hover());
    QCOMPARE(shown(panel.button->icon()), themePicture("Black", "layer_lock_hover"));
}

void tst_VantoroToolButton::hoverWithoutNames()
{
    Panel panel;
    QPixmap own(Size, Size);
    own.fill(Qt::red);
    panel.button->setIcon(QIcon(own));
    QVERIFY(panel.show());
    QVERIFY(panel.hover());
    QVERIFY(shown(panel.button->icon()).isNull());
    QVERIFY(panel.leave());
    QVERIFY(shown(panel.button->icon()).isNull());
}

void tst_VantoroToolButton::clicks()
{
    Panel panel;
    panel.button->setIconPixmap(Normal, Hover, Disabled);
    panel.button->setCheckable(true);
    QVERIFY(panel.show());
    QSignalSpy clicked(panel.button, &QToolButton::clicked);
    QTest::mouseClick(panel.button, Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
    QVERIFY(panel.button->isChecked());
    panel.button->setFocus();
    QTest::keyClick(panel.button, Qt::Key_Space);
    QCOMPARE(clicked.count(), 2);
    QVERIFY(!panel.button->isChecked());
}

void tst_VantoroToolButton::clickDestroysTheButton()
{
    Panel panel;
    const QPointer<VantoroToolButton> button(panel.button);
    button->setIconPixmap(Normal, Hover, Disabled);
    QVERIFY(panel.show());
    QVERIFY(panel.hover());
    connect(button, &QToolButton::clicked, this, [&] { delete button.data(); });
    QTest::mouseClick(button.data(), Qt::LeftButton);
    QVERIFY(!button);
    panel.moveTo(QPoint(5, 5));
    QCoreApplication::processEvents();
}

void tst_VantoroToolButton::destroyedWhileHovered()
{
    Panel panel;
    panel.button->setIconPixmap(Normal, Hover, Disabled);
    QVERIFY(panel.show());
    QVERIFY(panel.hover());
    const QPointer<VantoroToolButton> button(panel.button);
    delete button.data();
    panel.moveTo(QPoint(5, 5));
    QCoreApplication::processEvents();
    QVERIFY(!button);
}

LMTEST_MAIN(tst_VantoroToolButton)

#include "tst_vantorotoolbutton.moc"
