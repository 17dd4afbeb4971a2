#include "lmtest.h"

#include <lmwidgets/talvodoubleinputdlg.h>
#include <lmwidgets/titlebar.h>

#include <QDoubleSpinBox>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QTranslator>
#include <QVBoxLayout>

#include <cmath>
#include <limits>

namespace {

QDoubleSpinBox *input(TalvoDoubleInputDlg *dialog)
{
    return dialog->findChild<QDoubleSpinBox *>(QStringLiteral("doubleSpinBox"));
}

QLabel *label(TalvoDoubleInputDlg *dialog)
{
    return dialog->findChild<QLabel *>(QStringLiteral("label_2"));
}

QWidget *form(TalvoDoubleInputDlg *dialog)
{
    return dialog->findChild<QWidget *>(QStringLiteral("TalvoDoubleInputDlg"));
}

void set(TalvoDoubleInputDlg *dialog, double minimum, double maximum, int decimals, double value,
         QString suffix = QString())
{
    dialog->setParamData(QStringLiteral("Distance"), minimum, maximum, decimals, value, 0.5,
                         suffix);
}

/** Puts the context before what it is asked for. */
class MarkingTranslator : public QTranslator
{
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QLatin1String(context) + QLatin1Char('#') + QLatin1String(source);
    }
};

} // namespace

class tst_TalvoDoubleInputDlg : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void interface();
    void valueIsClampedToTheNewRange();
    void valueIsRounded();
    void freshValue();
    void parts();
    void form_();
    void texts();
    void styleSheet();
    void setParamData();
    void signalsOfAStockSpinBox();
    void suffixStays();
    void oddNumbers();
    void notANumber_data();
    void notANumber();
    void keyboard();
    void escapeRejects();
    void mouse();
    void partsDeletedByTheHost();
    void deletedFromASlot();
    void deletedFromValueChanged_data();
    void deletedFromValueChanged();
    void parentDestroyed();
};

void tst_TalvoDoubleInputDlg::interface()
{
    QCOMPARE(TalvoDoubleInputDlg::staticMetaObject.superClass(),
             &LM::Widgets::FramelessDialog::staticMetaObject);
    QVERIFY(lmtest::ownMethods(TalvoDoubleInputDlg::staticMetaObject).isEmpty());
    QCOMPARE(TalvoDoubleInputDlg::staticMetaObject.propertyOffset(),
             TalvoDoubleInputDlg::staticMetaObject.propertyCount());
}

void tst_TalvoDoubleInputDlg::valueIsClampedToTheNewRange()
{
    TalvoDoubleInputDlg dialog;
    set(&dialog, 0.0, 5.0, 2, 7.5);
    QCOMPARE(dialog.getValue(), 5.0);
    set(&dialog, 6.0, 9.0, 2, 7.5);
    QCOMPARE(dialog.getValue(), 7.5);
    set(&dialog, 8.0, 9.0, 2, 7.5);
    QCOMPARE(dialog.getValue(), 8.0);
}

void tst_TalvoDoubleInputDlg::valueIsRounded()
{
    TalvoDoubleInputDlg dialog;
    set(&dialog, 0.0, 5.0, 2, 1.234);
    QCOMPARE(dialog.getValue(), 1.23);
    QCOMPARE(input(&dialog)->cleanText(), QLocale().toString(1.23, 'f', 2));
    // The decimals come first: the range keeps its own.
    set(&dialog, 0.0, 0.0005, 4, 0.00049);
    QCOMPARE(dialog.getValue(), 0.0005);
}

void tst_TalvoDoubleInputDlg::freshValue()
{
    TalvoDoubleInputDlg dialog;
    QCOMPARE(dialog.getValue(), 0.0);
}

void tst_TalvoDoubleInputDlg::parts()
{
    TalvoDoubleInputDlg dialog;
    QVERIFY(dialog.findChild<QVBoxLayout *>(QStringLiteral("verticalLayout")));
    QVERIFY(dialog.findChild<QHBoxLayout *>(QStringLiteral("horizontalLayout")));
    QWidget *row = dialog.findChild<QWidget *>(QStringLiteral("widget"));
    QVERIFY(row);
    QCOMPARE(row->parentWidget(), form(&dialog));
    QCOMPARE(row->styleSheet(), QLatin1Char('\n') + QString(28, QLatin1Char(' ')) +
                                    QStringLiteral("background-color: rgb(51, 51, 51);\n") +
                                    QString(28, QLatin1Char(' ')) +
                                    QStringLiteral("color: rgb(221, 221, 221);\n") +
                                    QString(24, QLatin1Char(' ')));
    QCOMPARE(label(&dialog)->parentWidget(), row);
    QCOMPARE(input(&dialog)->parentWidget(), row);
    QCOMPARE(label(&dialog)->minimumSize(), QSize(0, 20));
    QCOMPARE(label(&dialog)->maximumSize(), QSize(16777215, 20));
    QCOMPARE(input(&dialog)->minimumSize(), QSize(0, 32));
    QCOMPARE(input(&dialog)->maximumSize(), QSize(16777215, 32));

    const auto *inner = qobject_cast<QHBoxLayout *>(row->layout());
    QVERIFY(inner);
    QCOMPARE(inner->spacing(), 16);
    QCOMPARE(inner->contentsMargins(), QMargins(16, 16, 16, 16));
    QCOMPARE(inner->stretch(0), 0);
    QCOMPARE(inner->stretch(1), 10);
}

void tst_TalvoDoubleInputDlg::form_()
{
    TalvoDoubleInputDlg dialog;
    QWidget *holder = form(&dialog);
    QVERIFY(holder);
    QCOMPARE(holder->size(), QSize(528, 64));
    QCOMPARE(holder->minimumSize(), QSize(528, 0));
    QCOMPARE(holder->maximumSize(), QSize(9999, 9999));
    const QLayout *outer = holder->layout();
    QCOMPARE(outer->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(outer->contentsMargins(), QMargins(24, 0, 24, 0));
    QCOMPARE(outer->count(), 1);
    QCOMPARE(outer->itemAt(0)->widget()->objectName(), QStringLiteral("widget"));

    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(holder->width(), 528);
    // The label keeps its natural width, the spin box takes the rest.
    QCOMPARE(label(&dialog)->width(), label(&dialog)->sizeHint().width());
    QCOMPARE(input(&dialog)->geometry().right(), 528 - 48 - 16 - 1);
}

void tst_TalvoDoubleInputDlg::texts()
{
    {
        TalvoDoubleInputDlg dialog;
        QCOMPARE(form(&dialog)->windowTitle(), QStringLiteral("Statistical Outlier Removal"));
        QCOMPARE(label(&dialog)->text(), QStringLiteral("Video Data"));
        QVERIFY(dialog.windowTitle().isEmpty());
        QCOMPARE(input(&dialog)->accessibleName(), QStringLiteral("Video Data"));
    }
    MarkingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    {
        TalvoDoubleInputDlg dialog;
        QCOMPARE(form(&dialog)->windowTitle(),
                 QStringLiteral("TalvoDoubleInputDlg#Statistical Outlier Removal"));
        QCOMPARE(label(&dialog)->text(), QStringLiteral("TalvoDoubleInputDlg#Video Data"));
    }
    QCoreApplication::removeTranslator(&translator);
}

void tst_TalvoDoubleInputDlg::styleSheet()
{
    QFile file(lmtest::themeDir() + QStringLiteral("/themestyle.qss"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    TalvoDoubleInputDlg dialog;
    QVERIFY(!dialog.styleSheet().isEmpty());
    QCOMPARE(dialog.styleSheet(), QString::fromUtf8(file.readAll()));
}

void tst_TalvoDoubleInputDlg::setParamData()
{
    TalvoDoubleInputDlg dialog;
    QString suffix = QStringLiteral(" m");
    dialog.setParamData(QStringLiteral("Search radius"), -2.5, 40.0, 3, 1.125, 0.25, suffix);
    QCOMPARE(label(&dialog)->text(), QStringLiteral("Search radius"));
    const QDoubleSpinBox *box = input(&dialog);
    QCOMPARE(box->minimum(), -2.5);
    QCOMPARE(box->maximum(), 40.0);
    QCOMPARE(box->decimals(), 3);
    QCOMPARE(box->singleStep(), 0.25);
    QCOMPARE(box->suffix(), QStringLiteral(" m"));
    QCOMPARE(dialog.getValue(), 1.125);
    QCOMPARE(suffix, QStringLiteral(" m"));
    QCOMPARE(box->accessibleName(), QStringLiteral("Search radius"));
}

void tst_TalvoDoubleInputDlg::signalsOfAStockSpinBox()
{
    TalvoDoubleInputDlg dialog;
    QDoubleSpinBox stock;
    QStringList ours;
    QStringList others;
    const auto record = [](QDoubleSpinBox *box, QStringList *log) {
        connect(box, &QDoubleSpinBox::textChanged, box,
                [log](const QString &text) { log->append(QLatin1String("text ") + text); });
        connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), box,
                [log](double value) { log->append(QStringLiteral("value %1").arg(value)); });
    };
    record(input(&dialog), &ours);
    record(&stock, &others);
    QSignalSpy ourTexts(input(&dialog), SIGNAL(valueChanged(QString)));
    QSignalSpy otherTexts(&stock, SIGNAL(valueChanged(QString)));

    const struct
    {
        double minimum;
        double maximum;
        int decimals;
        double value;
        const char *suffix;
    } steps[] = {{1.0, 9.0, 2, 7.25, ""},  {1.0, 4.0, 2, 3.5, " m"}, {1.0, 4.0, 0, 3.5, ""},
                 {1.0, 4.0, 0, 3.5, ""},   {5.0, 1.0, 3, 2.0, ""},   {-9.0, 9.0, 1, 9.0, " ft"},
                 {-9.0, 8.0, 0, 20.0, ""}, {-9.0, 8.0, 2, 0.0, ""}};
    for (const auto &step : steps) {
        const QString suffix = QLatin1String(step.suffix);
        set(&dialog, step.minimum, step.maximum, step.decimals, step.value, suffix);
        stock.setDecimals(step.decimals);
        stock.setRange(step.minimum, step.maximum);
        stock.setValue(step.value);
        if (!suffix.isEmpty()) {
            stock.setSuffix(suffix);
        }
        QCOMPARE(dialog.getValue(), stock.value());
        QCOMPARE(input(&dialog)->text(), stock.text());
    }
    QVERIFY(others.count() > 8);
    QCOMPARE(ours, others);
    QCOMPARE(ourTexts.count(), others.count() / 2);
    QCOMPARE(QList<QVariantList>(ourTexts), QList<QVariantList>(otherTexts));
}

void tst_TalvoDoubleInputDlg::suffixStays()
{
    TalvoDoubleInputDlg dialog;
    set(&dialog, 0.0, 5.0, 2, 1.0, QStringLiteral(" m"));
    set(&dialog, 0.0, 5.0, 2, 2.0);
    QCOMPARE(input(&dialog)->suffix(), QStringLiteral(" m"));
    set(&dialog, 0.0, 5.0, 2, 2.0, QStringLiteral(" °"));
    QCOMPARE(input(&dialog)->suffix(), QStringLiteral(" °"));
}

void tst_TalvoDoubleInputDlg::oddNumbers()
{
    TalvoDoubleInputDlg dialog;
    set(&dialog, 5.0, 1.0, 2, 3.0);
    QCOMPARE(dialog.getValue(), 5.0);
    set(&dialog, 0.0, 5.0, -3, 2.4);
    QCOMPARE(dialog.getValue(), 2.0);
    const double infinity = std::numeric_limits<double>::infinity();
    set(&dialog, 0.0, 5.0, 2, infinity);
    QCOMPARE(dialog.getValue(), 5.0);
    set(&dialog, 0.0, 5.0, 2, -infinity);
    QCOMPARE(dialog.getValue(), 0.0);
    set(&dialog, -infinity, infinity, 400, 2.5);
    QCOMPARE(dialog.getValue(), 2.5);
}

void tst_TalvoDoubleInputDlg::notANumber_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("expectedMinimum");
    QTest::addColumn<double>("expectedMaximum");
    QTest::addColumn<double>("expectedValue");
    QTest::addColumn<double>("expectedStep");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    // The dialog stands at 7 in a range from 1 to 9, with steps of 0.5.
    QTest::newRow("value") << 1.0 << 9.0 << nan << 0.5 << 1.0 << 9.0 << 7.0 << 0.5;
    QTest::newRow("value, other range") << 1.0 << 4.0 << nan << 0.5 << 1.0 << 4.0 << 4.0 << 0.5;
    QTest::newRow("minimum") << nan << 4.0 << 3.0 << 0.5 << 1.0 << 9.0 << 3.0 << 0.5;
    QTest::newRow("maximum") << 2.0 << nan << 3.0 << 0.5 << 1.0 << 9.0 << 3.0 << 0.5;
    QTest::newRow("step") << 1.0 << 9.0 << 3.0 << nan << 1.0 << 9.0 << 3.0 << 0.5;
    QTest::newRow("all") << nan << nan << nan << nan << 1.0 << 9.0 << 7.0 << 0.5;
}

void tst_TalvoDoubleInputDlg::notANumber()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, value);
    QFETCH(double, step);
    TalvoDoubleInputDlg dialog;
    set(&dialog, 1.0, 9.0, 2, 7.0);
    QString suffix;
    dialog.setParamData(QStringLiteral("Distance"), minimum, maximum, 2, value, step, suffix);
    QTEST(input(&dialog)->minimum(), "expectedMinimum");
    QTEST(input(&dialog)->maximum(), "expectedMaximum");
    QTEST(dialog.getValue(), "expectedValue");
    QTEST(input(&dialog)->singleStep(), "expectedStep");
    // It works on afterwards.
    set(&dialog, 0.0, 5.0, 2, 2.5);
    QCOMPARE(dialog.getValue(), 2.5);
}

void tst_TalvoDoubleInputDlg::keyboard()
{
    TalvoDoubleInputDlg dialog;
    set(&dialog, 0.0, 100.0, 2, 7.5);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTRY_COMPARE(QApplication::focusWidget(), input(&dialog));
    input(&dialog)->selectAll();
    QTest::keyClicks(input(&dialog), QLocale().toString(12.5));
    QTest::keyClick(input(&dialog), Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.getValue(), 12.5);
}

void tst_TalvoDoubleInputDlg::escapeRejects()
{
    TalvoDoubleInputDlg dialog;
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.show();
    QTest::keyClick(input(&dialog), Qt::Key_Escape);
    QCOMPARE(rejected.count(), 1);
    QVERIFY(!dialog.isVisible());
}

void tst_TalvoDoubleInputDlg::mouse()
{
    TalvoDoubleInputDlg dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::mouseClick(dialog.GetOKButton(), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    dialog.show();
    QTest::mouseClick(dialog.GetCancelButton(), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    dialog.show();
    QTest::mouseClick(dialog.getTitleBar()->titleButton(LM::Widgets::TitleBar::CloseButton),
                      Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
}

void tst_TalvoDoubleInputDlg::partsDeletedByTheHost()
{
    TalvoDoubleInputDlg dialog;
    delete label(&dialog);
    set(&dialog, 0.0, 5.0, 2, 3.0);
    QCOMPARE(dialog.getValue(), 3.0);
    delete input(&dialog);
    set(&dialog, 0.0, 5.0, 2, 4.0);
    QCOMPARE(dialog.getValue(), 0.0);
}

void tst_TalvoDoubleInputDlg::deletedFromASlot()
{
    const QPointer<TalvoDoubleInputDlg> dialog = new TalvoDoubleInputDlg;
    connect(dialog.data(), &QDialog::accepted, [dialog] { delete dialog.data(); });
    dialog->show();
    dialog->accept();
    QVERIFY(!dialog);
}

void tst_TalvoDoubleInputDlg::deletedFromValueChanged_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("value");
    // What changes the value 7.25 first.
    QTest::newRow("decimals") << 1.0 << 9.0 << 1 << 7.25;
    QTest::newRow("range") << 1.0 << 4.0 << 2 << 3.0;
    QTest::newRow("value") << 1.0 << 9.0 << 2 << 3.0;
}

void tst_TalvoDoubleInputDlg::deletedFromValueChanged()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(int, decimals);
    QFETCH(double, value);
    {
        const QPointer<TalvoDoubleInputDlg> dialog = new TalvoDoubleInputDlg;
        set(dialog, 1.0, 9.0, 2, 7.25);
        connect(input(dialog), QOverload<double>::of(&QDoubleSpinBox::valueChanged),
                [dialog] { delete dialog.data(); });
        set(dialog, minimum, maximum, decimals, value, QStringLiteral(" m"));
        QVERIFY(!dialog);
    }
    TalvoDoubleInputDlg dialog;
    set(&dialog, 1.0, 9.0, 2, 7.25);
    QDoubleSpinBox *box = input(&dialog);
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), [box] { delete box; });
    set(&dialog, minimum, maximum, decimals, value, QStringLiteral(" m"));
    QVERIFY(!input(&dialog));
    QCOMPARE(dialog.getValue(), 0.0);
}

void tst_TalvoDoubleInputDlg::parentDestroyed()
{
    auto *parent = new QWidget;
    const QPointer<TalvoDoubleInputDlg> dialog = new TalvoDoubleInputDlg(parent);
    dialog->show();
    delete parent;
    QVERIFY(!dialog);
}

LMTEST_MAIN(tst_TalvoDoubleInputDlg)
#include "tst_talvodoubleinputdlg.moc"
