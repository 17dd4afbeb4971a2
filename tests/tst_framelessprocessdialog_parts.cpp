#include "processdialogtest.h"

#include <QProxyStyle>
#include <QStyleFactory>
#include <QVBoxLayout>

#include <memory>

using namespace processdialogtest;
using LM::Widgets::FramelessProcessDialog;

namespace {

/** A style whose numbers the test chooses. */
class NumbersStyle : public QProxyStyle
{
public:
    NumbersStyle(int spacing, bool centered)
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))),
          m_spacing(spacing),
          m_centered(centered)
    {
    }
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        return metric == PM_LayoutVerticalSpacing
                   ? m_spacing
                   : QProxyStyle::pixelMetric(metric, option, widget);
    }
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override
    {
        switch (hint) {
        case SH_ProgressDialog_CenterCancelButton:
            return m_centered;
        case SH_ProgressDialog_TextLabelAlignment:
            return int(Qt::AlignRight | Qt::AlignTop);
        default:
            return QProxyStyle::styleHint(hint, option, widget, data);
        }
    }

private:
    int m_spacing;
    bool m_centered;
};

class FixedHint : public QProgressBar
{
public:
    explicit FixedHint(int height = 20) : m_height(height) {}
    QSize sizeHint() const override { return {90, m_height}; }
    // Else the style's smallest size would hold up the geometry.
    QSize minimumSizeHint() const override { return {0, 0}; }

private:
    int m_height;
};

class FixedButton : public QPushButton
{
public:
    explicit FixedButton(int height = 30) : m_height(height) {}
    QSize sizeHint() const override { return {80, m_height}; }

private:
    int m_height;
};

/** The same numbers, worked out step by step by hand for spacing 10, bar 20 and button 80 x 30. */
struct Expected
{
    int height;
    int labelHeight;
    int barTop;
    int barHeight;
    int buttonTop;
    int buttonHeight;
};

// Of a message handler, which is a plain function.
QList<QByteArray> *logged = nullptr;
QByteArray loggedFile;
QByteArray loggedFunction;

void collect(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtWarningMsg) {
        logged->append(text.toUtf8());
        loggedFile = context.file;
        loggedFunction = context.function;
    }
}

} // namespace

/** Places, sizes and replaced parts of the progress dialog. */
class tst_FramelessProcessDialogParts : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void smallHeights_data();
    void smallHeights();
    void floors();
    void everySize();
    void places();
    void withoutButton();
    void sizeHint();
    void longWords();
    void growing();
    void styleChange();

    void warnings();
    void replaceLabel();
    void replaceButton();
    void replaceBar();
    void nullReplacements();
    void partsOfTheHostsOwn();
    void childBecomesPart();
    void partInsidePrevious();
    void ancestorsAreRefused();
    void titleAsLabel();
    void deletedParts();
    void buttonText();
};

void tst_FramelessProcessDialogParts::smallHeights_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("labelHeight");
    QTest::addColumn<int>("barTop");
    QTest::addColumn<int>("barHeight");
    QTest::addColumn<int>("buttonTop");
    QTest::addColumn<int>("buttonHeight");
    const Expected rows[] = {
        // 400 - 98 - 40 - 24 - 20 = 218
        {400, 218, 276, 20, 346, 30},
        // 243 - 182 = 61 >= 60; 242 - 182 = 60 >= 60
        {242, 60, 118, 20, 188, 30},
        // 241 - 182 = 59 < 60 = 241 / 4: the spacing is 5, the margin 12, button 23, bar 14;
        // 241 - 88 - 28 - 12 - 14 = 99
        {241, 99, 152, 14, 206, 23},
        // 189 - 142 = 47 = 189 / 4; the first attempt gave 7
        {189, 47, 100, 14, 154, 23},
        // 188 - 142 = 46 < 47: spacing 2, margin 6, button 19, bar 11; 188 - 82 - 21 - 6 - 11 = 68
        {188, 68, 118, 11, 163, 19},
        // 160 - 120 = 40 = 160 / 4
        {160, 40, 90, 11, 135, 19},
        // 159 - 120 = 39 = 159 / 4
        {159, 39, 89, 11, 134, 19},
        // 157 - 120 = 37 < 39: spacing 1, margin 3, button 16, bar 9; 157 - 80 - 17 - 3 - 9 = 48
        {157, 48, 97, 9, 138, 16},
        // 144 - 109 = 35 < 36: spacing 0, margin 1, button 14, bar 8; 144 - 78 - 14 - 1 - 8 = 43
        {144, 43, 91, 8, 129, 14},
        // The fifth attempt fails too: 130 - 101 = 29 < 32, and the last halving still counts:
        // margin 0, button 12, bar 7
        {130, 29, 77, 7, 118, 12},
        // 0 in all attempts, as long as a fourth of the height is more
        {60, 0, 48, 7, 48, 12},
        {4, 0, 48, 7, -8, 12},
        {3, 0, 58, 20, -51, 30},
        {1, 0, 58, 20, -53, 30},
    };
    for (const Expected &row : rows) {
        QTest::addRow("%d", row.height) << row.height << row.labelHeight << row.barTop
                                        << row.barHeight << row.buttonTop << row.buttonHeight;
    }
}

void tst_FramelessProcessDialogParts::smallHeights()
{
    NumbersStyle style(10, true);
    Dialog dialog;
    dialog.setStyle(&style);
    auto *bar = new FixedHint;
    dialog.setBar(bar);
    dialog.setCancelButton(new FixedButton);
    // Only a visible dialog is told of each size; its size hint must not hold up the small ones.
    dialog.show();
    QFETCH(int, height);
    dialog.resize(300, height);
    QFETCH(int, labelHeight);
    QFETCH(int, barTop);
    QFETCH(int, barHeight);
    QFETCH(int, buttonTop);
    QFETCH(int, buttonHeight);
    QCOMPARE(dialog.label()->geometry(), QRect(24, 48, 252, labelHeight));
    QCOMPARE(bar->geometry(), QRect(24, barTop, 206, barHeight));
    QCOMPARE(dialog.percent()->geometry(), QRect(238, barTop, 38, barHeight));
    QCOMPARE(dialog.button()->geometry(), QRect(110, buttonTop, 80, buttonHeight));
    QCOMPARE(dialog.title()->geometry(), QRect(15, 13, 280, 30));
}

void tst_FramelessProcessDialogParts::floors()
{
    // Less than 4 px is left of either part after the first halving of so much spacing.
    NumbersStyle style(40, true);
    Dialog dialog;
    dialog.setStyle(&style);
    auto *bar = new FixedHint(12);
    dialog.setBar(bar);
    dialog.setCancelButton(new FixedButton(20));
    dialog.show();
    // All five attempts fail; the spacing ends at 1 and the margin at 0.
    dialog.resize(300, 100);
    QCOMPARE(dialog.label()->height(), 100 - (2 * 2 + 78) - (4 + 2) - 1 - 4);
    QCOMPARE(bar->geometry(), QRect(24, 7 + 1 + 48, 206, 4));
    QCOMPARE(dialog.percent()->height(), 4);
    QCOMPARE(dialog.button()->geometry(), QRect(110, 96, 80, 4));
}

void tst_FramelessProcessDialogParts::everySize()
{
    for (const int spacing : {-1, 0, 3, 6, 40}) {
        NumbersStyle style(spacing, false);
        Dialog dialog;
        dialog.setStyle(&style);
        auto *bar = new FixedHint;
        dialog.setBar(bar);
        dialog.setCancelButton(new FixedButton);
        dialog.show();
        for (int height = 0; height < 420; ++height) {
            dialog.resize(200, height);
            QVERIFY(dialog.button()->height() >= 4);
            QVERIFY(bar->height() >= 4);
            QVERIFY(dialog.label()->height() >= 0);
            QCOMPARE(dialog.percent()->y(), bar->y());
        }
        for (int width = 0; width < 120; ++width) {
            dialog.resize(width, 300);
            QCOMPARE(dialog.label()->width(), width - 48);
            QCOMPARE(bar->width(), width - 94);
        }
    }
}

void tst_FramelessProcessDialogParts::places()
{
    NumbersStyle left(10, false);
    Dialog dialog;
    dialog.setStyle(&left);
    dialog.show();
    dialog.resize(401, 300);
    QPushButton *button = dialog.button();
    QCOMPARE(button->pos(),
             QPoint(401 - 24 - button->sizeHint().width(), 300 - 24 - button->sizeHint().height()));
    QCOMPARE(button->size(), button->sizeHint());
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QCOMPARE(dialog.bar()->height(), 24); // whatever its hint says
    QCOMPARE(dialog.percent()->geometry(),
             QRect(339, dialog.bar()->y(), 38, dialog.bar()->sizeHint().height()));

    // Both halves are whole numbers, each for itself.
    NumbersStyle centered(10, true);
    dialog.setStyle(&centered);
    QCOMPARE(button->x(), 401 / 2 - button->width() / 2);
}

void tst_FramelessProcessDialogParts::withoutButton()
{
    NumbersStyle style(10, true);
    Dialog dialog(QString(), QString(), 0, 10);
    dialog.setStyle(&style);
    dialog.setBar(new FixedHint);
    dialog.show();
    dialog.resize(300, 300);
    QCOMPARE(dialog.label()->height(), 300 - 98 - 24 - 20);
    QCOMPARE(dialog.sizeHint().height(), 10 + 20 + dialog.label()->sizeHint().height() + 96);
}

void tst_FramelessProcessDialogParts::sizeHint()
{
    NumbersStyle style(10, true);
    Dialog dialog;
    dialog.setStyle(&style);
    dialog.setBar(new FixedHint);
    dialog.setCancelButton(new FixedButton);
    const auto height = [&](int label) { return 10 + 20 + label + 96 + 30 + 10 + 30; };
    QCOMPARE(dialog.sizeHint(), QSize(200, height(dialog.label()->sizeHint().height())));
    dialog.label()->setFixedSize(10, 10);
    auto *wide = new QLabel;
    wide->setPixmap(QPixmap(170, 40));
    wide->setMargin(0);
    dialog.setLabel(wide);
    QCOMPARE(wide->sizeHint(), QSize(170, 40));
    QCOMPARE(dialog.sizeHint(), QSize(200, height(40)));
    wide->setPixmap(QPixmap(171, 40));
    QCOMPARE(dialog.sizeHint(), QSize(201, height(40)));
    dialog.setLabel(nullptr);
    QCOMPARE(dialog.sizeHint(), QSize(200, height(0)));
}

void tst_FramelessProcessDialogParts::longWords()
{
    const QString word = QStringLiteral("Hoehenbezugssystemumrechnungstabellenzeilennummer");
    Dialog dialog(QStringLiteral("The ") + word + QStringLiteral(" is read."), QString(), 0, 100);
    QLabel plain(dialog.labelText());
    plain.setWordWrap(true);
    const int wordWidth = plain.minimumSizeHint().width();
    QVERIFY(wordWidth > 200);
    dialog.show();
    QCOMPARE(dialog.width(), dialog.label()->sizeHint().width() + 30);
    QVERIFY(dialog.label()->width() >= wordWidth);
    // Words that fit leave the hint as that of any label.
    for (const int words : {0, 1, 3, 30, 300}) {
        const QString text = QStringLiteral("word ").repeated(words);
        dialog.setLabelText(text);
        plain.setText(text);
        QCOMPARE(dialog.label()->sizeHint(), plain.sizeHint());
    }
}

void tst_FramelessProcessDialogParts::growing()
{
    Dialog dialog;
    dialog.resize(900, 700);
    dialog.setLabelText(QStringLiteral("Reading tiles"));
    QCOMPARE(dialog.size(), dialog.sizeHint()); // hidden: it shrinks as well
    dialog.show();
    dialog.resize(900, 700);
    dialog.setLabelText(QStringLiteral("Reading tiles of the second flight"));
    QCOMPARE(dialog.size(), QSize(900, 700));
    dialog.resize(50, 50);
    dialog.setLabelText(QStringLiteral("Reading"));
    QCOMPARE(dialog.size(), dialog.sizeHint().expandedTo(QSize(50, 50)));
}

void tst_FramelessProcessDialogParts::styleChange()
{
    Dialog dialog;
    dialog.show();
    dialog.resize(300, 400);
    const int y = dialog.bar()->y();
    NumbersStyle style(30, true);
    dialog.setStyle(&style);
    QVERIFY(dialog.bar()->y() != y);
    QCOMPARE(dialog.bar()->y(), 48 + dialog.label()->height() + 30);
    dialog.button()->setGeometry(0, 0, 5, 5);
    dialog.setStyleSheet(QStringLiteral("QPushButton { min-width: 150px; }"));
    QVERIFY(dialog.button()->width() >= 150);
}

void tst_FramelessProcessDialogParts::warnings()
{
    Dialog dialog;
    QLabel *label = dialog.label();
    QPushButton *button = dialog.button();
    QProgressBar *bar = dialog.bar();
    QList<QByteArray> messages;
    logged = &messages;
    const QtMessageHandler handler = qInstallMessageHandler(collect);
    dialog.setLabel(label);
    const QByteArray file = loggedFile;
    const QByteArray function = loggedFunction;
    dialog.setCancelButton(button);
    dialog.setBar(nullptr);
    dialog.setBar(bar);
    dialog.setLabel(nullptr);
    dialog.setLabel(nullptr);
    dialog.setCancelButton(nullptr);
    dialog.setCancelButton(nullptr);
    qInstallMessageHandler(handler);
    QCOMPARE(messages,
             QList<QByteArray>(
                 {"FramelessProcessDialog::setLabel: Attempt to set the same label again",
                  "FramelessProcessDialog::setCancelButton: Attempt to set the same button again",
                  "FramelessProcessDialog::setBar: Cannot set a null progress bar",
                  "FramelessProcessDialog::setBar: Attempt to set the same progress bar again"}));
    QVERIFY2(file.contains("lmwidgets/framelessprocessdialog"), file.constData());
    QVERIFY2(function.contains("FramelessProcessDialog::setLabel(QLabel"), function.constData());
    QCOMPARE(dialog.bar(), bar);
    QVERIFY(!dialog.button());
}

void tst_FramelessProcessDialogParts::replaceLabel()
{
    Dialog dialog;
    showByProgress(&dialog);
    const QPointer<QLabel> previous(dialog.label());
    auto *label = new QLabel(QStringLiteral("Own"));
    dialog.setLabel(label);
    QVERIFY(!previous);
    QCOMPARE(label->parentWidget(), &dialog);
    QVERIFY(label->isVisible());
    QCOMPARE(dialog.labelText(), QStringLiteral("Own"));
    QCOMPARE(label->pos(), QPoint(24, 48));
    QCOMPARE(label->width(), dialog.width() - 48);
    dialog.setLabelText(QStringLiteral("Changed"));
    QCOMPARE(label->text(), QStringLiteral("Changed"));
}

void tst_FramelessProcessDialogParts::replaceButton()
{
    Dialog dialog;
    showByProgress(&dialog);
    dialog.resize(300, 300);
    const QPointer<QPushButton> previous(dialog.button());
    auto *button = new QPushButton(QStringLiteral("Own"));
    dialog.setCancelButton(button);
    QVERIFY(!previous);
    QVERIFY(button->isVisible());
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QCOMPARE(button->y(), dialog.height() - 24 - button->height());
    QSignalSpy canceled(&dialog, &FramelessProcessDialog::canceled);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(canceled.count(), 1);
    QVERIFY(dialog.wasCanceled());
}

void tst_FramelessProcessDialogParts::replaceBar()
{
    Dialog dialog;
    showByProgress(&dialog);
    const QPointer<QProgressBar> previous(dialog.bar());
    auto *bar = new QProgressBar;
    bar->setRange(10, 20);
    bar->setValue(12);
    dialog.setBar(bar);
    QVERIFY(!previous);
    QVERIFY(bar->isVisible());
    QVERIFY(bar->isTextVisible()); // it stays as the host has made it
    QCOMPARE(bar->x(), 24);
    QCOMPARE(bar->width(), dialog.width() - 94);
    QCOMPARE(dialog.minimum(), 10);
    QCOMPARE(dialog.maximum(), 20);
    QCOMPARE(dialog.value(), 12);
    dialog.setValue(15);
    QCOMPARE(bar->value(), 15);
    QCOMPARE(dialog.percent()->text(), QStringLiteral("50%"));
}

void tst_FramelessProcessDialogParts::nullReplacements()
{
    Dialog dialog;
    showByProgress(&dialog);
    const QPointer<QLabel> label(dialog.label());
    const QPointer<QPushButton> button(dialog.button());
    dialog.setLabel(nullptr);
    dialog.setCancelButton(nullptr);
    QVERIFY(!label);
    QVERIFY(!button);
    QCOMPARE(dialog.labelText(), QString());
    dialog.setLabelText(QStringLiteral("nowhere"));
    QCOMPARE(dialog.labelText(), QString());
    dialog.setValue(50);
    QCOMPARE(dialog.value(), 50);
}

void tst_FramelessProcessDialogParts::partsOfTheHostsOwn()
{
    // Each widget is shown only once the dialog is.
    Dialog dialog;
    auto *label = new QLabel(QStringLiteral("Own"));
    dialog.setLabel(label);
    QVERIFY(!label->isVisible());
    QVERIFY(!label->isHidden());
    dialog.show();
    QVERIFY(label->isVisible());
}

void tst_FramelessProcessDialogParts::childBecomesPart()
{
    Dialog dialog;
    dialog.show();
    auto *label = new QLabel(QStringLiteral("Child"), &dialog);
    label->show();
    EventCounter hidings(label, QEvent::Hide);
    dialog.setLabel(label);
    QCOMPARE(hidings.count, 1);
    QVERIFY(label->isVisible());
    QCOMPARE(label->pos(), QPoint(24, 48));
}

void tst_FramelessProcessDialogParts::partInsidePrevious()
{
    Dialog dialog;
    auto *outer = new QLabel;
    auto *inner = new QLabel(QStringLiteral("Inner"), outer);
    dialog.setLabel(outer);
    const QPointer<QLabel> outerGuard(outer);
    dialog.setLabel(inner);
    QVERIFY(!outerGuard);
    QCOMPARE(dialog.labelText(), QStringLiteral("Inner"));
    QCOMPARE(inner->parentWidget(), &dialog);
}

void tst_FramelessProcessDialogParts::ancestorsAreRefused()
{
    QLabel window;
    QProgressBar barWindow(&window);
    QPushButton buttonWindow(&barWindow);
    Dialog dialog(&buttonWindow);
    const QPointer<QProgressBar> bar(dialog.bar());
    dialog.setLabel(&window);
    dialog.setBar(&barWindow);
    dialog.setCancelButton(&buttonWindow);
    QCOMPARE(dialog.parentWidget(), &buttonWindow);
    QCOMPARE(dialog.bar(), bar.data());
    QSignalSpy canceled(&dialog, &FramelessProcessDialog::canceled);
    buttonWindow.click();
    QCOMPARE(canceled.count(), 0);
}

void tst_FramelessProcessDialogParts::titleAsLabel()
{
    Dialog dialog;
    dialog.setLabel(dialog.title());
    dialog.setWindowTitle(QStringLiteral("both"));
    QCOMPARE(dialog.labelText(), QStringLiteral("both"));
    dialog.setLabel(new QLabel(QStringLiteral("label")));
    QVERIFY(!dialog.title());
    dialog.setWindowTitle(QStringLiteral("none"));
    dialog.show();
    dialog.resize(400, 400);
    QCOMPARE(dialog.labelText(), QStringLiteral("label"));
}

void tst_FramelessProcessDialogParts::deletedParts()
{
    Dialog dialog;
    showByProgress(&dialog);
    delete dialog.percent();
    delete dialog.label();
    delete dialog.title();
    delete dialog.button();
    dialog.setValue(44);
    QCOMPARE(dialog.value(), 44);
    delete dialog.bar();
    dialog.resize(333, 222);
    dialog.setRange(0, 7);
    dialog.setMinimum(1);
    dialog.setMaximum(2);
    dialog.setValue(3);
    dialog.setMinimumDuration(5);
    dialog.setLabelText(QStringLiteral("x"));
    dialog.setWindowTitle(QStringLiteral("x"));
    dialog.cancel();
    dialog.reset();
    QCOMPARE(dialog.value(), 0);
    QCOMPARE(dialog.minimum(), 0);
    QCOMPARE(dialog.maximum(), 0);
    dialog.setBar(new QProgressBar);
    QCOMPARE(dialog.maximum(), 100);
}

void tst_FramelessProcessDialogParts::buttonText()
{
    Dialog dialog;
    showByProgress(&dialog);
    dialog.resize(300, 300);
    const QPointer<QPushButton> button(dialog.button());
    dialog.setCancelButtonText(QStringLiteral("Stop copying these tiles"));
    QCOMPARE(dialog.button(), button.data());
    QCOMPARE(button->text(), QStringLiteral("Stop copying these tiles"));
    QCOMPARE(button->size(), button->sizeHint());
    dialog.setCancelButtonText(QStringLiteral(""));
    QVERIFY(button);
    dialog.setCancelButtonText(QString());
    QVERIFY(!button);
    dialog.setCancelButtonText(QStringLiteral("Again"));
    QVERIFY(dialog.button());
    QVERIFY(dialog.button()->isVisible());
    QCOMPARE(dialog.size(), dialog.sizeHint().expandedTo(dialog.size()));
    QSignalSpy canceled(&dialog, &FramelessProcessDialog::canceled);
    QTest::mouseClick(dialog.button(), Qt::LeftButton);
    QCOMPARE(canceled.count(), 1);
}

LMTEST_MAIN(tst_FramelessProcessDialogParts)

#include "tst_framelessprocessdialog_parts.moc"
