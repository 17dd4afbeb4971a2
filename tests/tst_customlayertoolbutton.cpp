#include "lmtest.h"

#include <lmwidgets/customlayertoolbutton.h>
#include <lmwidgets/talvostylemanager.h>

#include <QDir>
#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QTemporaryDir>

#include <memory>

using LM::Widgets::customLayerToolButton;
using LM::Widgets::TalvoStyleManager;

namespace {

const char ButtonStyle[] = "background-color: transparent;border: 0px solid #3C3C3C; ";

QImage themePicture(const QString &theme, const QString &name)
{
    const QPixmap file(lmtest::themeDir() + QLatin1Char('/') + theme + QLatin1String("/qssimage/") +
                       name);
    return QIcon(file).pixmap(20, 20).toImage().convertToFormat(QImage::Format_ARGB32);
}

QImage shown(const QToolButton &button)
{
    return button.icon().pixmap(20, 20).toImage().convertToFormat(QImage::Format_ARGB32);
}

bool isFilled(const QImage &image, const QColor &color)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != color) {
                return false;
            }
        }
    }
    return !image.isNull();
}

/** Restores the black theme when a test is left in whatever way. */
struct ThemeGuard
{
    ~ThemeGuard() { TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black); }
};

} // namespace

class tst_customLayerToolButton : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void newButton();
    void rowAndColumnAreKeptAsGiven_data();
    void rowAndColumnAreKeptAsGiven();
    void pictures_data();
    void pictures();
    void picturesFollowTheThemeWhenTheyAreSet();
    void settersLeaveTheCheckedState();
    void settersEmitNothing();
    void swatch_data();
    void swatch();
    void swatchIsWhatALabelWouldShow_data();
    void swatchIsWhatALabelWouldShow();
    void swatchLeavesNoChildren();
    void swatchSurvivesAHostStyleSheet();
    void clicksToggle();
    void paintsThePictureOnWhateverIsBehind();
    void hasNoBorder();
    void keyboardClicks();
    void buttonsDoNotShareALaterPicture();
    void widgetIsDestroyedWithItsParent();
    void changedFilesAreReadAgain();
    void ownTheme();
};

void tst_customLayerToolButton::initTestCase()
{
    TestCase::initTestCase();
    for (const char *theme : {"Black", "White", "Blue"}) {
        for (const char *name : {"delete_2dvec", "layer_edit", "layer_lock", "layer_unlock",
                                 "layer_view", "layer_dis_view"}) {
            const QString path =
                QStringLiteral("%1/%2/qssimage/%3.png")
                    .arg(lmtest::themeDir(), QLatin1String(theme), QLatin1String(name));
            QVERIFY2(!QPixmap(path).isNull(), qPrintable(path));
        }
    }
}

void tst_customLayerToolButton::newButton()
{
    QWidget parent;
    customLayerToolButton button(2, 3, &parent);
    QCOMPARE(button.parentWidget(), &parent);
    QVERIFY(button.isCheckable());
    QVERIFY(button.isChecked());
    QCOMPARE(button.iconSize(), QSize(20, 20));
    QCOMPARE(button.styleSheet(), QLatin1String(ButtonStyle));
    QVERIFY(button.icon().isNull());
    QVERIFY(button.text().isEmpty());
    QVERIFY(button.objectName().isEmpty());
    QVERIFY(button.dynamicPropertyNames().isEmpty());
    QCOMPARE(QLatin1String(button.metaObject()->className()),
             QLatin1String("LM::Widgets::customLayerToolButton"));
    const QMetaObject *base = button.metaObject()->superClass();
    QCOMPARE(base, &QToolButton::staticMetaObject);
    QCOMPARE(button.metaObject()->methodCount(), base->methodCount());
    QCOMPARE(button.metaObject()->propertyCount(), base->propertyCount());

    const customLayerToolButton alone(0, 0);
    QVERIFY(!alone.parent());
}

void tst_customLayerToolButton::rowAndColumnAreKeptAsGiven_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::newRow("zero") << 0 << 0;
    QTest::newRow("cell") << 12 << 5;
    QTest::newRow("negative") << -1 << -2;
    QTest::newRow("extreme") << std::numeric_limits<int>::max() << std::numeric_limits<int>::min();
}

void tst_customLayerToolButton::rowAndColumnAreKeptAsGiven()
{
    QFETCH(int, row);
    QFETCH(int, column);
    const customLayerToolButton button(row, column);
    QCOMPARE(button.row(), row);
    QCOMPARE(button.column(), column);
}

void tst_customLayerToolButton::pictures_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<QString>("folder");
    QTest::newRow("black") << 0 << "Black";
    QTest::newRow("white") << 1 << "White";
    QTest::newRow("blue") << 2 << "Blue";
    QTest::newRow("unknown theme") << 3 << "Black";
}

void tst_customLayerToolButton::pictures()
{
    QFETCH(int, theme);
    QFETCH(QString, folder);
    const ThemeGuard guard;
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::ThemeStyleType(theme));
    customLayerToolButton button(0, 0);

    button.setDelete();
    QCOMPARE(shown(button), themePicture(folder, "delete_2dvec.png"));
    button.setEditEnable(true);
    QCOMPARE(shown(button), themePicture(folder, "layer_edit.png"));
    button.setDelete();
    button.setEditEnable(false);
    QCOMPARE(shown(button), themePicture(folder, "layer_edit.png"));
    button.setLockState(true);
    QCOMPARE(shown(button), themePicture(folder, "layer_lock.png"));
    button.setLockState(false);
    QCOMPARE(shown(button), themePicture(folder, "layer_unlock.png"));
    button.setVisibleState(true);
    QCOMPARE(shown(button), themePicture(folder, "layer_view.png"));
    button.setVisibleState(false);
    QCOMPARE(shown(button), themePicture(folder, "layer_dis_view.png"));

    // The pictures differ from each other, or the comparisons above would say little.
    QVERIFY(themePicture(folder, "layer_lock.png") != themePicture(folder, "layer_unlock.png"));
    QVERIFY(themePicture(folder, "layer_view.png") != themePicture(folder, "layer_dis_view.png"));
}

void tst_customLayerToolButton::picturesFollowTheThemeWhenTheyAreSet()
{
    const ThemeGuard guard;
    QVERIFY(themePicture("Black", "layer_lock.png") != themePicture("White", "layer_lock.png"));
    customLayerToolButton early(0, 3);
    customLayerToolButton late(0, 3);
    early.setLockState(true);
    late.setLockState(true);

    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::White);
    QCOMPARE(shown(early), themePicture("Black", "layer_lock.png"));
    QCOMPARE(shown(late), themePicture("Black", "layer_lock.png"));

    late.setLockState(true);
    QCOMPARE(shown(early), themePicture("Black", "layer_lock.png"));
    QCOMPARE(shown(late), themePicture("White", "layer_lock.png"));

    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black);
    late.setLockState(true);
    QCOMPARE(shown(late), themePicture("Black", "layer_lock.png"));
}

void tst_customLayerToolButton::settersLeaveTheCheckedState()
{
    for (const bool checked : {true, false}) {
        customLayerToolButton button(0, 0);
        button.setChecked(checked);
        button.setDelete();
        button.setEditEnable(!checked);
        button.setLockState(!checked);
        button.setVisibleState(!checked);
        button.setColor(Qt::red);
        QCOMPARE(button.isChecked(), checked);
    }
}

void tst_customLayerToolButton::settersEmitNothing()
{
    customLayerToolButton button(0, 0);
    QSignalSpy clicked(&button, &QToolButton::clicked);
    QSignalSpy toggled(&button, &QToolButton::toggled);
    QSignalSpy pressed(&button, &QToolButton::pressed);
    button.setDelete();
    button.setEditEnable(false);
    button.setLockState(false);
    button.setVisibleState(false);
    button.setColor(Qt::blue);
    QCOMPARE(clicked.count() + toggled.count() + pressed.count(), 0);
}

void tst_customLayerToolButton::swatch_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("white") << QColor(Qt::white) << QColor(Qt::white);
    QTest::newRow("red") << QColor(255, 0, 0) << QColor(255, 0, 0);
    QTest::newRow("odd") << QColor(1, 127, 254) << QColor(1, 127, 254);
    QTest::newRow("without alpha") << QColor(10, 20, 30, 40) << QColor(10, 20, 30);
    QTest::newRow("transparent") << QColor(Qt::transparent) << QColor(Qt::black);
    QTest::newRow("invalid") << QColor() << QColor(Qt::black);
    QTest::newRow("hsv") << QColor::fromHsv(120, 255, 255) << QColor(0, 255, 0);
}

void tst_customLayerToolButton::swatch()
{
    QFETCH(QColor, color);
    QFETCH(QColor, expected);
    customLayerToolButton button(0, 5);
    button.setColor(color);
    const QPixmap picture = button.icon().pixmap(20, 20);
    QCOMPARE(picture.size(), QSize(20, 20));
    QCOMPARE(button.icon().availableSizes(), QList<QSize>() << QSize(20, 20));
    QVERIFY(isFilled(picture.toImage(), expected));
}

void tst_customLayerToolButton::swatchIsWhatALabelWouldShow_data()
{
    swatch_data();
}

void tst_customLayerToolButton::swatchIsWhatALabelWouldShow()
{
    QFETCH(QColor, color);
    customLayerToolButton button(0, 5);
    button.setColor(color);

    QLabel label(&button);
    label.setStyleSheet(QStringLiteral("border: none;background-color: ") + color.name());
    label.setFixedSize(20, 20);
    QPixmap expected(label.size());
    label.render(&expected, QPoint(), QRegion(),
                 QWidget::DrawWindowBackground | QWidget::DrawChildren);

    const QPixmap picture = button.icon().pixmap(20, 20);
    QCOMPARE(picture.toImage(), expected.toImage());
    QCOMPARE(picture.hasAlphaChannel(), expected.hasAlphaChannel());
}

void tst_customLayerToolButton::swatchLeavesNoChildren()
{
    customLayerToolButton button(0, 5);
    const int before = button.children().size();
    for (int i = 0; i < 10; ++i) {
        button.setColor(QColor(i, i, i));
    }
    QCOMPARE(button.children().size(), before);
}

void tst_customLayerToolButton::swatchSurvivesAHostStyleSheet()
{
    qApp->setStyleSheet("QLabel{background-color:#123456;border:1px solid red;color:white;}"
                        "QToolButton{background-color:green;border:2px solid blue;}");
    QWidget window;
    window.setStyleSheet("*{background-color:yellow;}");
    customLayerToolButton button(0, 5, &window);
    button.setColor(Qt::magenta);
    const QImage picture = button.icon().pixmap(20, 20).toImage();
    qApp->setStyleSheet(QString());
    QVERIFY(isFilled(picture, Qt::magenta));
}

void tst_customLayerToolButton::clicksToggle()
{
    customLayerToolButton button(0, 3);
    button.resize(20, 32);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QSignalSpy clicked(&button, &QToolButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.at(0).at(0).toBool(), false);
    QVERIFY(!button.isChecked());
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(clicked.at(1).at(0).toBool(), true);
    QTest::mouseClick(&button, Qt::RightButton);
    QCOMPARE(clicked.count(), 2);

    // Dragged off the button, the press is taken back.
    lmtest::mouse(&button, QEvent::MouseButtonPress, QPoint(5, 5));
    lmtest::mouse(&button, QEvent::MouseMove, QPoint(60, 60));
    lmtest::mouse(&button, QEvent::MouseButtonRelease, QPoint(60, 60));
    QCOMPARE(clicked.count(), 2);
    QVERIFY(button.isChecked());
}

void tst_customLayerToolButton::paintsThePictureOnWhateverIsBehind()
{
    QWidget window;
    window.setAutoFillBackground(true);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(40, 80, 120));
    window.setPalette(palette);
    window.resize(60, 60);
    customLayerToolButton button(0, 5, &window);
    button.setGeometry(10, 10, 32, 32);
    button.setColor(Qt::red);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    for (const bool checked : {true, false}) {
        button.setChecked(checked);
        const QImage image = window.grab().toImage();
        // 20 px in the middle of 32, without any frame around them.
        QVERIFY(isFilled(image.copy(16, 16, 20, 20), Qt::red));
        QCOMPARE(image.pixelColor(11, 11), QColor(40, 80, 120));
        QCOMPARE(image.pixelColor(15, 26), QColor(40, 80, 120));
        QCOMPARE(image.pixelColor(36, 26), QColor(40, 80, 120));
        QCOMPARE(image.pixelColor(41, 41), QColor(40, 80, 120));
    }
}

void tst_customLayerToolButton::hasNoBorder()
{
    // In a window: on Windows no window with a title is that small.
    QWidget window;
    customLayerToolButton button(0, 0);
    button.setParent(&window);
    button.setColor(Qt::green);
    button.resize(20, 20);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(isFilled(button.grab().toImage(), Qt::green));
}

void tst_customLayerToolButton::keyboardClicks()
{
    customLayerToolButton button(0, 4);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    button.setFocus();
    QSignalSpy clicked(&button, &QToolButton::clicked);
    QTest::keyClick(&button, Qt::Key_Space);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.at(0).at(0).toBool(), false);
}

void tst_customLayerToolButton::buttonsDoNotShareALaterPicture()
{
    customLayerToolButton first(0, 3);
    customLayerToolButton second(1, 3);
    first.setLockState(true);
    second.setLockState(true);
    // A host may add to an icon that it has got from a button.
    QIcon icon = first.icon();
    QPixmap blue(20, 20);
    blue.fill(Qt::blue);
    icon.addPixmap(blue, QIcon::Normal, QIcon::On);
    first.setIcon(icon);
    QCOMPARE(shown(second), themePicture("Black", "layer_lock.png"));
    customLayerToolButton third(2, 3);
    third.setLockState(true);
    QCOMPARE(third.icon()
                 .pixmap(20, 20, QIcon::Normal, QIcon::On)
                 .toImage()
                 .convertToFormat(QImage::Format_ARGB32),
             themePicture("Black", "layer_lock.png"));
}

void tst_customLayerToolButton::widgetIsDestroyedWithItsParent()
{
    auto parent = std::make_unique<QWidget>();
    QPointer<customLayerToolButton> button(new customLayerToolButton(0, 0, parent.get()));
    button->setDelete();
    QObject::connect(button.data(), &QToolButton::clicked, parent.get(),
                     [&parent] { parent.reset(); });
    parent->show();
    QVERIFY(QTest::qWaitForWindowExposed(parent.get()));
    QTest::mouseClick(button.data(), Qt::LeftButton);
    QVERIFY(!button);
    QVERIFY(!parent);
}

/** The theme lies beside the program, so the test on its files runs a copy of itself elsewhere. */
void tst_customLayerToolButton::changedFilesAreReadAgain()
{
    const QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString program = dir.filePath(QStringLiteral("tst_owntheme"));
    QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
    for (const char *theme : {"Black", "White", "Blue"}) {
        const QString images = QStringLiteral("/%1/qssimage/").arg(QLatin1String(theme));
        QVERIFY(QDir().mkpath(dir.path() + QStringLiteral("/theme") + images));
        for (const char *name : {"delete_2dvec", "layer_edit", "layer_lock", "layer_unlock",
                                 "layer_view", "layer_dis_view"}) {
            const QString file = images + QLatin1String(name) + QStringLiteral(".png");
            QVERIFY(QFile::copy(lmtest::themeDir() + file,
                                dir.path() + QStringLiteral("/theme") + file));
        }
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LMTEST_OWN_THEME"), QStringLiteral("1"));
    const QByteArray output =
        lmtest::runTestFunction(program, QStringLiteral("ownTheme"), environment);
    QVERIFY2(output.contains("PASS   : tst_customLayerToolButton::ownTheme"), output);
}

void tst_customLayerToolButton::ownTheme()
{
    if (!qEnvironmentVariableIsSet("LMTEST_OWN_THEME")) {
        QSKIP("run by changedFilesAreReadAgain()");
    }
    const QString path = lmtest::themeDir() + QStringLiteral("/Black/qssimage/layer_lock.png");
    const auto write = [&path](const QColor &color, int size) {
        QFile::remove(path);
        QImage image(size, size, QImage::Format_ARGB32);
        image.fill(color);
        return image.save(path);
    };
    customLayerToolButton first(0, 3);
    customLayerToolButton second(1, 3);
    first.setLockState(true);
    const QImage original = shown(first);

    QVERIFY(write(Qt::red, 20));
    second.setLockState(true);
    QVERIFY(isFilled(shown(second), Qt::red));
    QCOMPARE(shown(first), original);
    first.setLockState(true);
    QVERIFY(isFilled(shown(first), Qt::red));

    // Without its file a button shows nothing, and finds the file when there is one again.
    QVERIFY(QFile::remove(path));
    first.setLockState(true);
    QVERIFY(first.icon().pixmap(20, 20).isNull());
    QVERIFY(isFilled(shown(second), Qt::red));
    QVERIFY(write(Qt::blue, 40));
    first.setLockState(true);
    QVERIFY(isFilled(shown(first), Qt::blue));
}

LMTEST_MAIN(tst_customLayerToolButton)

#include "tst_customlayertoolbutton.moc"
