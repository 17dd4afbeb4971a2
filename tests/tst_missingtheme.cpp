#include "lmtest.h"

#include <lmwidgets/editcombobox.h>
#include <lmwidgets/framelessdialog.h>
#include <lmwidgets/framelessmessagebox.h>
#include <lmwidgets/talvodoubleinputdlg.h>
#include <lmwidgets/talvostylemanager.h>
#include <lmwidgets/titlebar.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

using LM::Widgets::FramelessDialog;
using LM::Widgets::FramelessMessageBox;
using LM::Widgets::TalvoStyleManager;
using LM::Widgets::TitleBar;

/**
 * A host that was installed without the theme: the widgets have no pictures, and everything else
 * works. The program stands in a folder of its own, away from the theme that the others share.
 */
class tst_MissingTheme : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void themeIsMissing();
    void titleBar_data() { themes(); }
    void titleBar();
    void dialog_data() { themes(); }
    void dialog();
    void switchWhileShown();
    void messageBox();
    void editComboBox_data() { themes(); }
    void editComboBox();
    void valueDialog();

private:
    static void themes();
};

void tst_MissingTheme::themes()
{
    QTest::addColumn<int>("theme");
    QTest::newRow("black") << 0;
    QTest::newRow("white") << 1;
    QTest::newRow("blue") << 2;
    QTest::newRow("unknown") << 3;
}

void tst_MissingTheme::cleanup()
{
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black);
}

void tst_MissingTheme::themeIsMissing()
{
    QVERIFY(!QDir(lmtest::themeDir()).exists());
    QVERIFY(!QDir(TalvoStyleManager::instance()->currentThemePath()).exists());
}

void tst_MissingTheme::titleBar()
{
    QFETCH(int, theme);
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::ThemeStyleType(theme));
    TitleBar bar;
    bar.setTitle(QStringLiteral("Layers"));
    bar.resize(400, 48);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    for (int type = 0; type < 5; ++type) {
        QVERIFY(bar.isTitleButtonVisible(type));
        QVERIFY(bar.titleButtonIcon(type).pixmap(16, 16).isNull());
        QVERIFY(bar.titleButton(type)->width() >= 20);
    }
    QCOMPARE(bar.grab().size(), QSize(400, 48));
    bar.switchMaxMin();
    bar.grab();
}

void tst_MissingTheme::dialog()
{
    QFETCH(int, theme);
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::ThemeStyleType(theme));
    FramelessDialog dialog;
    dialog.setWindowTitle(QStringLiteral("Layers"));
    auto *layout = new QVBoxLayout;
    layout->addWidget(new QPushButton(QStringLiteral("x")));
    dialog.setLayout(layout);
    dialog.setMaxButtonVisible(true);
    dialog.setMessageboxStyleSheet();
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QImage picture = dialog.grab().toImage();
    QCOMPARE(picture.pixelColor(picture.width() / 2, picture.height() - 14),
             QColor(0x45, 0x45, 0x45));
    QTest::mouseClick(dialog.getTitleBar()->titleButton(4), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
}

void tst_MissingTheme::switchWhileShown()
{
    FramelessDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    for (const int theme : {1, 2, 3, 0}) {
        TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::ThemeStyleType(theme));
        QVERIFY(!dialog.grab().isNull());
        QVERIFY(dialog.isVisible());
    }
}

void tst_MissingTheme::messageBox()
{
    for (const QMessageBox::Icon icon : {QMessageBox::Information, QMessageBox::Critical}) {
        FramelessMessageBox box(icon, QStringLiteral("Title"), QStringLiteral("Text"),
                                QMessageBox::Ok);
        QCOMPARE(box.icon(), icon);
        QVERIFY(box.iconPixmap().isNull());
        QVERIFY(box.windowIcon().isNull());
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QCOMPARE(box.width(), 444);
        QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
        QVERIFY(!box.isVisible());
    }
    QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
    FramelessMessageBox::about(nullptr, QStringLiteral("Title"), QStringLiteral("Text"));
}

void tst_MissingTheme::editComboBox()
{
    QFETCH(int, theme);
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::ThemeStyleType(theme));
    LM::Widgets::EditComboBox box({"a", "b"}, nullptr);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    auto *button = box.findChild<QPushButton *>();
    QVERIFY(button->icon().pixmap(20, 20).isNull());
    QCOMPARE(button->size(), QSize(20, 20));
    QTest::mouseClick(button, Qt::LeftButton);
    QAbstractItemView *list = box.findChild<QLineEdit *>()->completer()->popup();
    QVERIFY(list->isVisible());
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::White);
    QVERIFY(list->isVisible());
    QVERIFY(!box.grab().isNull());
}

void tst_MissingTheme::valueDialog()
{
    TalvoDoubleInputDlg dialog;
    QVERIFY(dialog.styleSheet().isEmpty());
    QCOMPARE(dialog.getValue(), 0.0);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::mouseClick(dialog.GetOKButton(), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));

    // The file is looked for at each construction, and read as UTF-8.
    QVERIFY(QDir().mkpath(lmtest::themeDir()));
    QFile sheet(lmtest::themeDir() + QStringLiteral("/themestyle.qss"));
    const QString text = QStringLiteral("/* größer */ QLabel { color: red; }\n");
    QVERIFY(sheet.open(QIODevice::WriteOnly));
    QVERIFY(sheet.write(text.toUtf8()) > 0);
    sheet.close();
    const QString read = TalvoDoubleInputDlg().styleSheet();
    QVERIFY(QDir(lmtest::themeDir()).removeRecursively());
    QCOMPARE(read, text);
}

LMTEST_MAIN(tst_MissingTheme)

#include "tst_missingtheme.moc"
