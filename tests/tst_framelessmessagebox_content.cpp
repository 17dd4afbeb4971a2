#include "messageboxtest.h"

#include <QCheckBox>
#include <QFile>
#include <QGraphicsDropShadowEffect>
#include <QHBoxLayout>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QTranslator>

using namespace messageboxtest;
using LM::Widgets::FramelessMessageBox;

namespace {

/** Puts "#" before what it is asked for in the two contexts of the message box. */
class MarkingTranslator : public QTranslator
{
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const QByteArray asked(context);
        if (asked == "FramelessMessageBox") {
            return QStringLiteral("fixed#") + QLatin1String(source);
        }
        if (asked.startsWith("LM::Widgets::")) {
            return QStringLiteral("own#") + QLatin1String(source);
        }
        return asked == "QPlatformTheme" ? QStringLiteral("Qt#") + QLatin1String(source)
                                         : QString();
    }
};

/** Counts the paint events of a widget. */
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int count = 0;
};

/** A style that centres the buttons and lets nobody touch the text. */
class CentringStyle : public QProxyStyle
{
public:
    CentringStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        switch (hint) {
        case SH_MessageBox_CenterButtons:
            return 1;
        case SH_MessageBox_TextInteractionFlags:
            return Qt::TextBrowserInteraction;
        default:
            return QProxyStyle::styleHint(hint, option, widget, returnData);
        }
    }
};

} // namespace

class tst_FramelessMessageBoxContent : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void parts();
    void layoutOfTheParts();
    void icons_data();
    void icons();
    void iconPixmap();
    void aClearShadowChangesNoPixel();
    void aShadowWithAColourIsPainted();
    void aButtonIsRepaintedAlone();
    void titleBarOfAShownBox();
    void wordWrap();
    void textInteraction();
    void links();
    void languageChange();
    void styleChange();
};

void tst_FramelessMessageBoxContent::parts()
{
    FramelessMessageBox box;
    QCOMPARE(box.objectName(), QStringLiteral("globa_pMessageBox"));
    QCOMPARE(box.styleSheet(), QStringLiteral("background:#2B2B2B;color:#ffffff;QDialog#globa_"
                                              "pMessageBox{border: 1px solid #585858;}"));

    QLabel *label = messageLabel(&box);
    QVERIFY(label);
    QCOMPARE(label->minimumHeight(), 60);
    QCOMPARE(label->alignment(), Qt::AlignLeft | Qt::AlignTop);
    QVERIFY(label->openExternalLinks());
    QCOMPARE(label->styleSheet(), QStringLiteral("font-size:14px;"));
    QCOMPARE(label->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));

    auto *icon = box.findChild<QLabel *>(QStringLiteral("qt_msgboxex_icon_label"));
    QVERIFY(icon);
    QVERIFY(icon->isHidden());
    QCOMPARE(icon->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));

    QDialogButtonBox *buttons = buttonBox(&box);
    QVERIFY(buttons);
    QCOMPARE(buttons->styleSheet(), QStringLiteral("QDialogButtonBox{button-layout:3;}"));
    QCOMPARE(buttons->layout()->spacing(), 16);
    QCOMPARE(buttons->centerButtons(),
             box.style()->styleHint(QStyle::SH_MessageBox_CenterButtons, nullptr, &box) != 0);

    auto *shadow = qobject_cast<QGraphicsDropShadowEffect *>(box.graphicsEffect());
    QVERIFY(shadow);
    QCOMPARE(shadow->blurRadius(), 24.0);
    QCOMPARE(shadow->offset(), QPointF(0.0, 4.0));
    QCOMPARE(shadow->color(), QColor(0, 0, 0, 0));

    box.show();
    QVERIFY(settle(&box));
    QVERIFY(icon->isHidden());
    QCOMPARE(buttons->layout()->spacing(), 16);
    QCOMPARE(label->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(label->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(label->minimumHeight(), 60);
}

void tst_FramelessMessageBoxContent::layoutOfTheParts()
{
    FramelessMessageBox box;
    box.setCheckBox(new QCheckBox(QStringLiteral("c")));

    auto *content = qobject_cast<QVBoxLayout *>(box.layout());
    QVERIFY(content);
    QCOMPARE(content->spacing(), 0);
    QCOMPARE(content->contentsMargins(), QMargins());
    QCOMPARE(content->count(), 1);
    QCOMPARE(box.getMainLayout()->itemAt(2)->layout(), content);
    QCOMPARE(box.getMainLayout()->count(), 5);

    auto *row = qobject_cast<QHBoxLayout *>(content->itemAt(0)->layout());
    QVERIFY(row);
    QCOMPARE(row->spacing(), 0);
    QCOMPARE(row->contentsMargins(), QMargins());
    QCOMPARE(row->count(), 3);
    for (const int side : {0, 2}) {
        auto *spacer = qobject_cast<QLabel *>(row->itemAt(side)->widget());
        QVERIFY(spacer);
        QCOMPARE(spacer->minimumWidth(), 25);
        QCOMPARE(spacer->maximumWidth(), 25);
        QCOMPARE(spacer->styleSheet(),
                 QStringLiteral("QLabel{background:#2B2B2B;background - color:transparent;}"));
        QVERIFY(!spacer->isHidden());
    }
    auto *column = qobject_cast<QVBoxLayout *>(row->itemAt(1)->layout());
    QVERIFY(column);
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->contentsMargins(), QMargins());
    QCOMPARE(column->count(), 1);
    QCOMPARE(column->itemAt(0)->widget(), messageLabel(&box));
    QCOMPARE(column->stretch(0), 1);

    QHBoxLayout *bottom = box.bottomLayout();
    QCOMPARE(bottom->contentsMargins(), QMargins(16, 16, 24, 16));
    const int checkBoxAt = bottom->indexOf(box.checkBox());
    const int buttonsAt = bottom->indexOf(buttonBox(&box));
    QCOMPARE(buttonsAt, bottom->count() - 1);
    QCOMPARE(checkBoxAt, buttonsAt - 1);
    QCOMPARE(bottom->stretch(checkBoxAt), 1);
    QCOMPARE(bottom->stretch(buttonsAt), 0);
}

void tst_FramelessMessageBoxContent::icons_data()
{
    QTest::addColumn<int>("icon");
    QTest::addColumn<QString>("image");
    QTest::newRow("Information") << int(QMessageBox::Information) << "success.png";
    QTest::newRow("Warning") << int(QMessageBox::Warning) << "ask.png";
    QTest::newRow("Critical") << int(QMessageBox::Critical) << "warning.png";
    QTest::newRow("Question") << int(QMessageBox::Question) << "ask.png";
    QTest::newRow("NoIcon") << int(QMessageBox::NoIcon) << QString();
    QTest::newRow("unknown") << 7 << QString();
}

void tst_FramelessMessageBoxContent::icons()
{
    QFETCH(int, icon);
    QFETCH(QString, image);
    const auto which = static_cast<QMessageBox::Icon>(icon);
    FramelessMessageBox box;
    box.setIcon(which);
    QCOMPARE(int(box.icon()), icon);
    if (image.isEmpty()) {
        QVERIFY(box.iconPixmap().isNull());
        QVERIFY(box.windowIcon().isNull());
        return;
    }
    const QString path = lmtest::themeDir() + QStringLiteral("/qssimage/") + image;
    QVERIFY2(QFile::exists(path), qPrintable(path));
    const QPixmap expected = QIcon(path).pixmap(QSize(16, 16));
    QCOMPARE(box.iconPixmap().size() / box.iconPixmap().devicePixelRatio(), QSize(16, 16));
    QCOMPARE(box.iconPixmap().toImage(), expected.toImage());
    QCOMPARE(box.windowIcon().pixmap(16, 16).toImage(), expected.toImage());
    QCOMPARE(box.QWidget::windowIcon().pixmap(16, 16).toImage(), expected.toImage());

    FramelessMessageBox constructed(which, QString(), QString());
    QCOMPARE(constructed.iconPixmap().toImage(), expected.toImage());
}

void tst_FramelessMessageBoxContent::iconPixmap()
{
    FramelessMessageBox box;
    box.setIcon(QMessageBox::Critical);
    const QImage before = box.windowIcon().pixmap(16, 16).toImage();
    QPixmap red(40, 30);
    red.fill(Qt::red);
    box.setIconPixmap(red);
    QCOMPARE(box.icon(), QMessageBox::NoIcon);
    QCOMPARE(box.iconPixmap().toImage(), red.toImage());
    QCOMPARE(box.windowIcon().pixmap(16, 16).toImage(), before);
    box.show();
    QVERIFY(box.findChild<QLabel *>(QStringLiteral("qt_msgboxex_icon_label"))->isHidden());
    box.setIconPixmap(QPixmap());
    QVERIFY(box.iconPixmap().isNull());
}

void tst_FramelessMessageBoxContent::aClearShadowChangesNoPixel()
{
    FramelessMessageBox box(QMessageBox::Question, QStringLiteral("Title"),
                            QStringLiteral("Save the classification?"),
                            QMessageBox::Yes | QMessageBox::No);
    box.show();
    QVERIFY(settle(&box));
    const QImage ours = box.grab().toImage();

    auto *stock = new QGraphicsDropShadowEffect(&box);
    stock->setBlurRadius(24.0);
    stock->setOffset(0.0, 4.0);
    stock->setColor(QColor(0, 0, 0, 0));
    box.setGraphicsEffect(stock);
    QCOMPARE(ours, box.grab().toImage());
}

void tst_FramelessMessageBoxContent::aShadowWithAColourIsPainted()
{
    FramelessMessageBox box;
    box.setAttribute(Qt::WA_TranslucentBackground);
    box.show();
    QVERIFY(settle(&box));
    const QImage clear = box.grab().toImage();
    auto *shadow = qobject_cast<QGraphicsDropShadowEffect *>(box.graphicsEffect());
    QVERIFY(shadow);
    shadow->setColor(Qt::red);
    shadow->setOffset(40.0, 40.0);
    QVERIFY(box.grab().toImage() != clear);
    shadow->setColor(QColor(0, 0, 0, 0));
    QCOMPARE(box.grab().toImage(), clear);
}

void tst_FramelessMessageBoxContent::aButtonIsRepaintedAlone()
{
    FramelessMessageBox box(QMessageBox::Question, QStringLiteral("Title"),
                            QStringLiteral("Save the classification?"),
                            QMessageBox::Yes | QMessageBox::No);
    box.show();
    QVERIFY(settle(&box));
    QAbstractButton *button = box.button(QMessageBox::Yes);
    PaintCounter label(messageLabel(&box));
    PaintCounter painted(button);
    button->update();
    QTRY_COMPARE(painted.count, 1);
    QCOMPARE(label.count, 0);

    messageLabel(&box)->update();
    QTRY_COMPARE(label.count, 1);
}

void tst_FramelessMessageBoxContent::titleBarOfAShownBox()
{
    FramelessMessageBox box(QMessageBox::Critical, QStringLiteral("t"), QStringLiteral("m"),
                            QMessageBox::Ok);
    QToolButton *logo = box.getTitleBar()->titleButton(LM::Widgets::TitleBar::LogoButton);
    QVERIFY(!logo->isVisible());
    box.show();
    QVERIFY(settle(&box));
    QVERIFY(logo->isVisible());
    QCOMPARE(box.getTitleBar()->titleLabel()->objectName(), QStringLiteral("Messageboxtitlelabel"));
    QCOMPARE(box.getTitleBar()->titleLabel()->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
}

void tst_FramelessMessageBoxContent::wordWrap()
{
    FramelessMessageBox box;
    QLabel *label = messageLabel(&box);
    box.setText(QStringLiteral("plain"));
    QVERIFY(!label->wordWrap());
    box.setText(QStringLiteral("<b>rich</b>"));
    QVERIFY(label->wordWrap());
    box.setTextFormat(Qt::PlainText);
    QVERIFY(!label->wordWrap());
    box.setText(QStringLiteral("<i>rich</i>"));
    QVERIFY(!label->wordWrap());
    box.setTextFormat(Qt::AutoText);
    QVERIFY(label->wordWrap());
    box.setText(QStringLiteral("plain"));
    QVERIFY(!label->wordWrap());
    box.setTextFormat(Qt::RichText);
    QVERIFY(label->wordWrap());
    QCOMPARE(box.textFormat(), Qt::RichText);
}

void tst_FramelessMessageBoxContent::textInteraction()
{
    FramelessMessageBox box;
    QCOMPARE(box.textInteractionFlags(), QMessageBox().textInteractionFlags());
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    QCOMPARE(box.textInteractionFlags(), Qt::TextSelectableByMouse);
    QCOMPARE(messageLabel(&box)->textInteractionFlags(), Qt::TextSelectableByMouse);
}

void tst_FramelessMessageBoxContent::links()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QStringLiteral("t"),
                            QStringLiteral("<a href='x:y'>link</a>"), QMessageBox::Ok);
    QSignalSpy linked(messageLabel(&box), &QLabel::linkHovered);
    box.show();
    QVERIFY(settle(&box));
    QTest::mouseMove(messageLabel(&box), QPoint(8, 8));
    QTRY_COMPARE(linked.count(), 1);
    QCOMPARE(linked.first().first().toString(), QStringLiteral("x:y"));
}

void tst_FramelessMessageBoxContent::languageChange()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QStringLiteral("t"), QStringLiteral("m"),
                            QMessageBox::Close | QMessageBox::RestoreDefaults |
                                QMessageBox::Cancel);
    box.addButton(QMessageBox::Discard);
    box.changeButtonText(QDialogButtonBox::Cancel, QStringLiteral("Mine"));
    QPushButton *custom = box.addButton(QStringLiteral("Custom"), QMessageBox::ActionRole);
    box.setDetailedText(QStringLiteral("d"));
    QAbstractButton *details = buttonReading(&box, "Show Details...");
    const QString qtCaption = box.button(QMessageBox::RestoreDefaults)->text();
    box.show();
    QVERIFY(settle(&box));

    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QTRY_COMPARE(details->text(), QStringLiteral("own#Show Details..."));
    QCOMPARE(box.button(QMessageBox::Close)->text(), QStringLiteral("fixed#Exit"));
    QCOMPARE(box.button(QMessageBox::Discard)->text(), QStringLiteral("own#Discard"));
    QCOMPARE(box.button(QMessageBox::Cancel)->text(), QStringLiteral("Mine"));
    QCOMPARE(box.button(QMessageBox::RestoreDefaults)->text(), QStringLiteral("Qt#") + qtCaption);
    QCOMPARE(custom->text(), QStringLiteral("Custom"));

    QTest::mouseClick(details, Qt::LeftButton);
    QCOMPARE(details->text(), QStringLiteral("own#Hide Details..."));
    QCoreApplication::removeTranslator(&translator);
    QTRY_COMPARE(details->text(), QStringLiteral("Hide Details..."));
    QCOMPARE(box.button(QMessageBox::Close)->text(), QStringLiteral("Exit"));
    QCOMPARE(box.button(QMessageBox::Cancel)->text(), QStringLiteral("Mine"));
    QCOMPARE(box.button(QMessageBox::RestoreDefaults)->text(), qtCaption);
}

void tst_FramelessMessageBoxContent::styleChange()
{
    FramelessMessageBox box(QMessageBox::Critical, QStringLiteral("t"), QStringLiteral("m"),
                            QMessageBox::Ok);
    box.setInformativeText(QStringLiteral("i"));
    box.show();
    QVERIFY(settle(&box));
    const QSize size = box.size();
    const bool centred = buttonBox(&box)->centerButtons();
    QVERIFY(!centred);

    QPixmap foreign(16, 16);
    foreign.fill(Qt::magenta);
    box.setWindowIcon(QIcon(foreign));
    QApplication::setStyle(new CentringStyle);
    // The image of the icon is read again, and takes its place back.
    QCOMPARE(box.windowIcon().pixmap(16, 16).toImage(), box.iconPixmap().toImage());
    QVERIFY(box.iconPixmap().toImage() != foreign.toImage());
    QVERIFY(buttonBox(&box)->centerButtons());
    QCOMPARE(box.textInteractionFlags(), Qt::TextBrowserInteraction);
    QCOMPARE(informativeLabel()->textInteractionFlags(), Qt::TextBrowserInteraction);
    QCOMPARE(box.icon(), QMessageBox::Critical);
    QVERIFY(settle(&box));
    QCOMPARE(box.size(), size);

    lmtest::prepareApplication();
    QVERIFY(!buttonBox(&box)->centerButtons());
    QCOMPARE(box.textInteractionFlags(), QMessageBox().textInteractionFlags());
}

LMTEST_MAIN(tst_FramelessMessageBoxContent)

#include "tst_framelessmessagebox_content.moc"
