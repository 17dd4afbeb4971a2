#include "messageboxtest.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QScreen>

using namespace messageboxtest;
using LM::Widgets::FramelessMessageBox;

namespace {

/** Counts the requests for another layout that reach a widget. */
class LayoutRequests : public QObject
{
public:
    using QObject::QObject;
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::LayoutRequest;
        return false;
    }
};

} // namespace

class tst_FramelessMessageBoxSize : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void heightOfShortMessages();
    void heightOfLongMessages_data();
    void heightOfLongMessages();
    void heightWithCheckBox();
    void heightFollowsTheText();
    void heightEndsAtTheScreen();
    void unbreakableText();
    void hostileTexts_data();
    void hostileTexts();
    void sizeBeforeShow();
    void nothingOverlaps();
    void rebuiltAThousandTimes();
    void rebuiltWhileShown();
    void layoutRequestsEnd();
    void hostStyleSheet();
};

void tst_FramelessMessageBoxSize::heightOfShortMessages()
{
    for (const char *text : {"", "m", "one\ntwo"}) {
        FramelessMessageBox box(QMessageBox::Information, QStringLiteral("t"),
                                QString::fromLatin1(text), QMessageBox::Ok);
        box.show();
        QVERIFY(settle(&box));
        QCOMPARE(messageLabel(&box)->height(), 60);
        QCOMPARE(box.size(), QSize(BoxWidth, 170));
        QCOMPARE(box.minimumSize(), box.size());
        QCOMPARE(box.maximumSize(), box.size());
    }
}

void tst_FramelessMessageBoxSize::heightOfLongMessages_data()
{
    QTest::addColumn<int>("words");
    for (const int words : {10, 20, 40, 80, 120}) {
        QTest::addRow("%d", words) << words;
    }
}

void tst_FramelessMessageBoxSize::heightOfLongMessages()
{
    QFETCH(int, words);
    FramelessMessageBox box(QMessageBox::Information, QString(1000, QLatin1Char('t')),
                            QStringLiteral("message ").repeated(words), QMessageBox::Ok);
    box.show();
    QVERIFY(settle(&box));
    const QLabel *label = messageLabel(&box);
    QCOMPARE(box.width(), BoxWidth);
    QCOMPARE(box.height(), label->height() + Chrome);
    // All of it is there to read, above the button row.
    const int top = label->mapTo(&box, QPoint()).y();
    QVERIFY(top + textHeight(&box) <= box.bottomWidget()->y());
    QVERIFY(label->width() == BoxWidth - 70);
    QVERIFY(label->wordWrap());
}

void tst_FramelessMessageBoxSize::heightWithCheckBox()
{
    for (const int words : {1, 60}) {
        FramelessMessageBox box(QMessageBox::Information, QStringLiteral("t"),
                                QStringLiteral("message ").repeated(words), QMessageBox::Ok);
        box.setCheckBox(new QCheckBox(QStringLiteral("c")));
        box.show();
        QVERIFY(settle(&box));
        QCOMPARE(box.size(), QSize(BoxWidth, messageLabel(&box)->height() + CheckBoxChrome));
        box.setCheckBox(nullptr);
        QVERIFY(settle(&box));
        QCOMPARE(box.size(), QSize(BoxWidth, messageLabel(&box)->height() + Chrome));
    }
}

void tst_FramelessMessageBoxSize::heightFollowsTheText()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QStringLiteral("t"), QStringLiteral("m"),
                            QMessageBox::Ok);
    box.show();
    QVERIFY(settle(&box));
    const QSize low = box.size();
    box.setText(QStringLiteral("message ").repeated(60));
    QVERIFY(box.height() > low.height());
    QVERIFY(settle(&box));
    QCOMPARE(box.height(), messageLabel(&box)->height() + Chrome);
    const QSize high = box.size();
    box.hide();
    box.show();
    QVERIFY(settle(&box));
    QCOMPARE(box.size(), high);
    box.setText(QStringLiteral("m"));
    QCOMPARE(box.size(), low);
    box.setText(QStringLiteral("<p>a<p>b<p>c<p>d<p>e"));
    const int rich = box.height();
    QVERIFY(rich > low.height());
    box.setTextFormat(Qt::PlainText);
    QCOMPARE(box.size(), low);
    box.setTextFormat(Qt::RichText);
    QCOMPARE(box.height(), rich);
}

void tst_FramelessMessageBoxSize::heightEndsAtTheScreen()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QStringLiteral("t"),
                            QStringLiteral("message ").repeated(2000), QMessageBox::Ok);
    box.show();
    QVERIFY(settle(&box));
    const int screenHeight = QGuiApplication::primaryScreen()->availableGeometry().height();
    QCOMPARE(box.size(), QSize(BoxWidth, screenHeight));
    QCOMPARE(messageLabel(&box)->height(), screenHeight - Chrome);
    QAbstractButton *ok = box.button(QMessageBox::Ok);
    QVERIFY(box.rect().contains(QRect(ok->mapTo(&box, QPoint()), ok->size())));
    QTest::mouseClick(ok, Qt::LeftButton);
    QVERIFY(!box.isVisible());
}

void tst_FramelessMessageBoxSize::unbreakableText()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QString(500, QLatin1Char('T')),
                            QString(5000, QLatin1Char('W')), QMessageBox::Ok);
    box.show();
    QVERIFY(settle(&box));
    QCOMPARE(box.width(), BoxWidth);
    QCOMPARE(box.height(), messageLabel(&box)->height() + Chrome);
    QVERIFY(box.rect().contains(messageLabel(&box)->geometry()));
}

void tst_FramelessMessageBoxSize::hostileTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("null") << QString();
    QTest::newRow("markup") << QStringLiteral("<table><tr><td>x<img src='nowhere.png'></b></p>");
    QTest::newRow("wide table") << QStringLiteral("<table width=5000><tr><td>x</table>");
    QTest::newRow("percent") << QStringLiteral("%1 %n %s %99 &amp &&");
    QTest::newRow("control") << QStringLiteral("a\0b\r\n\t\u202e\u200b\ufeff");
    QTest::newRow("surrogate") << QString(QChar(0xd800)) + QLatin1Char('x');
    QTest::newRow("right to left") << QString::fromUtf8("שלום עולם ").repeated(50);
}

void tst_FramelessMessageBoxSize::hostileTexts()
{
    QFETCH(QString, text);
    FramelessMessageBox box(QMessageBox::Warning, text, text, QMessageBox::Ok);
    box.setInformativeText(text);
    box.setDetailedText(text);
    box.show();
    QVERIFY(settle(&box));
    QCOMPARE(box.text(), text);
    QCOMPARE(box.windowTitle(), text);
    QCOMPARE(box.informativeText(), text);
    QCOMPARE(box.width(), BoxWidth);
    QCOMPARE(box.height(), messageLabel(&box)->height() + Chrome);
}

void tst_FramelessMessageBoxSize::sizeBeforeShow()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QStringLiteral("t"), QStringLiteral("m"),
                            QMessageBox::Ok);
    box.setText(QStringLiteral("other"));
    box.addButton(QStringLiteral("b"), QMessageBox::ActionRole);
    // The rule waits until the box is shown.
    QCOMPARE(box.minimumSize(), QSize(444, 220));
    QVERIFY(!messageLabel(&box)->wordWrap());
}

void tst_FramelessMessageBoxSize::nothingOverlaps()
{
    FramelessMessageBox box(QMessageBox::Critical, QStringLiteral("Title"),
                            QStringLiteral("message ").repeated(30),
                            QMessageBox::Yes | QMessageBox::No);
    box.setCheckBox(new QCheckBox(QStringLiteral("Again")));
    box.show();
    QVERIFY(settle(&box));
    const QRect bottom = box.bottomWidget()->geometry();
    QCOMPARE(box.getTitleBar()->geometry().top(), 10);
    QCOMPARE(bottom.bottom(), box.height() - 11);
    for (const QAbstractButton *button : box.buttons()) {
        QCOMPARE(button->height(), 32);
        const int y = button->mapTo(&box, QPoint()).y();
        QCOMPARE(y, bottom.top() + 16);
    }
    // Clicks in the button row reach the row, not the text behind it.
    QWidget *hit = box.childAt(bottom.left() + 30, bottom.top() + 4);
    QCOMPARE(hit, box.bottomWidget());
}

void tst_FramelessMessageBoxSize::rebuiltAThousandTimes()
{
    FramelessMessageBox box;
    box.addButton(QMessageBox::Ok);
    const auto rebuild = [&box](int i) {
        box.setIcon(i % 2 ? QMessageBox::Critical : QMessageBox::Information);
        box.setIconPixmap(QPixmap());
        box.setInformativeText(i % 3 ? QStringLiteral("i") : QString());
        box.setDetailedText(i % 2 ? QStringLiteral("d") : QString());
        box.setCheckBox(new QCheckBox);
    };
    const auto counted = [&box] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return QList<int>{box.findChildren<QObject *>().size(), box.children().size(),
                          box.bottomLayout()->count(), box.getMainLayout()->count(),
                          QApplication::allWidgets().size()};
    };
    rebuild(0);
    const QList<int> before = counted();
    for (int i = 1; i <= 1002; ++i) {
        rebuild(i);
    }
    QCOMPARE(counted(), before);
}

void tst_FramelessMessageBoxSize::rebuiltWhileShown()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QStringLiteral("t"), QStringLiteral("m"),
                            QMessageBox::Ok);
    box.show();
    QVERIFY(settle(&box));
    const QSize size = box.size();
    for (int i = 0; i < 20; ++i) {
        box.setIcon(QMessageBox::Critical);
        QCOMPARE(box.size(), size);
        QVERIFY(messageLabel(&box)->isVisible());
        QVERIFY(buttonBox(&box)->isVisible());
    }
}

void tst_FramelessMessageBoxSize::layoutRequestsEnd()
{
    FramelessMessageBox box(QMessageBox::Critical, QStringLiteral("t"), QStringLiteral("m"),
                            QMessageBox::Ok);
    box.show();
    QVERIFY(settle(&box));
    LayoutRequests requests;
    box.installEventFilter(&requests);
    box.getTitleBar()->installEventFilter(&requests);
    QCoreApplication::postEvent(&box, new QEvent(QEvent::LayoutRequest));
    for (int i = 0; i < 50; ++i) {
        QCoreApplication::processEvents();
    }
    QVERIFY2(requests.count >= 1 && requests.count <= 4, QByteArray::number(requests.count));
}

void tst_FramelessMessageBoxSize::hostStyleSheet()
{
    qApp->setStyleSheet(QStringLiteral("QPushButton{min-height:60px;} QLabel{padding:12px;}"));
    FramelessMessageBox box(QMessageBox::Critical, QStringLiteral("t"),
                            QStringLiteral("message ").repeated(30), QMessageBox::Ok);
    box.show();
    QVERIFY(settle(&box));
    QCOMPARE(box.size(), QSize(BoxWidth, messageLabel(&box)->height() + Chrome));
    QVERIFY(box.rect().contains(box.bottomWidget()->geometry()));
    QVERIFY(box.button(QMessageBox::Ok)->height() >= 60);
    box.hide();
    qApp->setStyleSheet(QString());
}

LMTEST_MAIN(tst_FramelessMessageBoxSize)

#include "tst_framelessmessagebox_size.moc"
