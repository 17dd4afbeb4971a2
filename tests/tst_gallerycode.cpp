#include "lmtest.h"

#include "application.h"
#include "hostcode.h"
#include "language.h"
#include "mainwindow.h"
#include "page.h"

#include <lmwidgets/framelesswaitingdialog.h>
#include <lmwidgets/talvostylemanager.h>
#include <lmwidgets/translations.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>

using gallery::Page;
using LM::Widgets::TalvoStyleManager;

namespace {

struct Code
{
    QString page;
    std::function<void(QWidget *)> function;
};

QVector<Code> allCode()
{
    return {
#define LMGALLERY_PAGE(name) {QStringLiteral(#name), gallery::code::name},
#include "pages.h"
    };
}

/** Counts the windows that are shown as long as it lives. */
class ShownWindows : public QObject
{
public:
    ShownWindows() { qApp->installEventFilter(this); }

    int count() const { return m_count; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *widget = qobject_cast<QWidget *>(watched);
        if (event->type() == QEvent::Show && widget && widget->isWindow()) {
            ++m_count;
        }
        return false;
    }

private:
    int m_count = 0;
};

QListWidgetItem *item(const gallery::MainWindow &window, const QString &pageName)
{
    for (int row = 0; row < gallery::pages().size(); ++row) {
        if (gallery::pages().at(row).name() == pageName) {
            return window.findChild<QListWidget *>()->item(row);
        }
    }
    return nullptr;
}

} // namespace

/** The code of hosts that the gallery shows, and the switches of its window. */
class tst_GalleryCode : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void codeRuns_data();
    void codeRuns();
    void codeIsShown();
    void searchFinds_data();
    void searchFinds();
    void languageSwitch();
    void directionSwitch();
    void scaleSwitch();
    void pseudoTranslation_data();
    void pseudoTranslation();

private:
    QTemporaryDir m_temporary;
};

void tst_GalleryCode::cleanup()
{
    gallery::setLanguage(QStringLiteral("en"));
    gallery::setRightToLeft(false);
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black);
}

void tst_GalleryCode::codeRuns_data()
{
    QTest::addColumn<QString>("page");
    for (const Code &code : allCode()) {
        QTest::newRow(qPrintable(code.page)) << code.page;
    }
}

void tst_GalleryCode::codeRuns()
{
    QFETCH(QString, page);
    // What it makes for the project is not to be left behind.
    qputenv("TMPDIR", m_temporary.path().toLocal8Bit());
    QWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const TalvoStyleManager::ThemeStyleType styleBefore =
        TalvoStyleManager::instance()->currentStyle();
    const ShownWindows shown;

    QTimer closer;
    connect(&closer, &QTimer::timeout, &window, [] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog && dialog->isVisible()) {
            dialog->accept();
            dialog->close();
        }
    });
    closer.start(0);
    const auto codes = allCode();
    const auto found = std::find_if(codes.begin(), codes.end(),
                                    [&page](const Code &code) { return code.page == page; });
    found->function(&window);
    QCoreApplication::processEvents();

    const bool madeChildren = !window.findChildren<QWidget *>().isEmpty();
    const bool changed = TalvoStyleManager::instance()->currentStyle() != styleBefore ||
                         !window.windowFilePath().isEmpty();
    QVERIFY(madeChildren || changed || shown.count() > 0);
    QVERIFY(window.isVisible() || page == "messagebox");
    if (page == "waiting") {
        delete LM::Widgets::FramelessWaitingDialog::instance();
    }
}

void tst_GalleryCode::codeIsShown()
{
    gallery::MainWindow window;
    const auto *label = window.findChild<QLabel *>(QStringLiteral("galleryCode"));
    QVERIFY(label);
    QSet<QString> seen;
    for (const Page &page : gallery::pages()) {
        window.showPage(page.name());
        const QString code = label->text();
        QCOMPARE(code, gallery::hostCode(page.name()));
        QVERIFY2(code.count(QLatin1Char('\n')) >= 2, qPrintable(page.name()));
        QVERIFY2(!code.startsWith(QLatin1Char(' ')), qPrintable(page.name()));
        QVERIFY2(!code.contains(QStringLiteral("[host]")) && !code.contains(QStringLiteral("#inc")),
                 qPrintable(page.name()));
        seen.insert(code);
    }
    QCOMPARE(seen.size(), gallery::pages().size());
    QCOMPARE(gallery::hostCode(QStringLiteral("none")), QString());
}

void tst_GalleryCode::searchFinds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("found");
    QTest::addColumn<QString>("hidden");
    QTest::newRow("title") << "message"
                           << "messagebox"
                           << "sliders";
    QTest::newRow("class") << "toggleswitch"
                           << "switches"
                           << "flow";
    QTest::newRow("code") << "addLayerRow"
                          << "layers"
                          << "tabs";
    QTest::newRow("two words") << "flow wrap"
                               << "flow"
                               << "layers";
    QTest::newRow("everything") << ""
                                << "theme"
                                << "";
}

void tst_GalleryCode::searchFinds()
{
    QFETCH(QString, text);
    QFETCH(QString, found);
    QFETCH(QString, hidden);
    gallery::MainWindow window;
    window.show();
    auto *search = window.findChild<QLineEdit *>(QStringLiteral("gallerySearch"));
    QVERIFY(search);
    QTest::keyClicks(search, QStringLiteral("zzz"));
    QVERIFY(item(window, found)->isHidden());
    search->clear();
    QTest::keyClicks(search, text);
    QVERIFY(!item(window, found)->isHidden());
    QCOMPARE(window.findChild<QListWidget *>()->currentItem()->isHidden(), false);
    if (!hidden.isEmpty()) {
        QVERIFY(item(window, hidden)->isHidden());
        QTest::mouseClick(search, Qt::LeftButton);
        search->clear();
        QVERIFY(!item(window, hidden)->isHidden());
    }
}

void tst_GalleryCode::languageSwitch()
{
    gallery::MainWindow window;
    auto *box = window.findChild<QComboBox *>(QStringLiteral("galleryLanguage"));
    QVERIFY(box);
    QCOMPARE(box->currentText(), QStringLiteral("English"));
    QCOMPARE(box->count(), 4);
    const auto choose = [box](const QString &name) {
        const int index = box->findData(name);
        box->setCurrentIndex(index);
        Q_EMIT box->activated(index);
    };
    const auto ok = [] { return QCoreApplication::translate("FramelessDialog", "Cancel"); };
    choose(QStringLiteral("de"));
    QCOMPARE(ok(), QStringLiteral("Abbrechen"));
    choose(QStringLiteral("pseudo"));
    QCOMPARE(ok(), gallery::pseudoTranslation(QStringLiteral("Cancel")));
    // Of keys Qt itself reads the names.
    QCOMPARE(QCoreApplication::translate("QShortcut", "Ctrl"), QStringLiteral("Ctrl"));
    choose(QStringLiteral("en"));
    QCOMPARE(ok(), QStringLiteral("Cancel"));
}

void tst_GalleryCode::directionSwitch()
{
    gallery::MainWindow window;
    auto *box = window.findChild<QCheckBox *>(QStringLiteral("galleryDirection"));
    QVERIFY(box);
    box->click();
    QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
    // The application asks each language for its direction.
    gallery::setLanguage(QStringLiteral("de"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
    box->click();
    QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
}

void tst_GalleryCode::scaleSwitch()
{
    gallery::MainWindow window;
    window.showPage(QStringLiteral("tabs"));
    gallery::setLanguage(QStringLiteral("de"));
    gallery::setRightToLeft(true);
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Blue);
    auto *box = window.findChild<QComboBox *>(QStringLiteral("galleryScale"));
    QVERIFY(box);
    QCOMPARE(box->currentIndex(), 0);
    QSignalSpy chosen(&window, &gallery::MainWindow::scaleChosen);
    Q_EMIT box->activated(0);
    QCOMPARE(chosen.count(), 0);
    Q_EMIT box->activated(2);
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(chosen.first().first().toStringList(),
             QStringList({"--no-splash", "--scale", "1.5", "--theme", "Blue", "--language", "de",
                          "--page", "tabs", "--rtl"}));
}

void tst_GalleryCode::pseudoTranslation_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("expected");
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("word") << "Save" << QString::fromUtf8("Så·vê·");
    QTest::newRow("mnemonic") << "&No" << QString::fromUtf8("&Ñö·");
    QTest::newRow("placeholder") << "%1 of %n" << QString::fromUtf8("%1 öf· %n");
    QTest::newRow("markup") << "<b>no</b>&nbsp;no" << QString::fromUtf8("<b>ñö·</b>&nbsp;ñö·");
}

void tst_GalleryCode::pseudoTranslation()
{
    QFETCH(QString, source);
    QFETCH(QString, expected);
    QCOMPARE(gallery::pseudoTranslation(source), expected);
}

LMTEST_MAIN(tst_GalleryCode)

#include "tst_gallerycode.moc"
