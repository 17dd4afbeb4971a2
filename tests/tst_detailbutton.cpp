#include "lmtest.h"

#include <lmwidgets/detailbutton.h>

#include <QStyleOptionButton>
#include <QTranslator>

using LM::Widgets::DetailButton;

namespace {

/** Makes one caption of the button wider than it is in English. */
class LongHideCaption : public QTranslator
{
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return qstrcmp(source, "Hide Details...") == 0
                   ? QStringLiteral("Ausf\u00fchrliche Einzelheiten ausblenden...")
                   : QString();
    }
};

QSize stockSize(const QString &caption)
{
    QPushButton button(caption);
    button.setAutoDefault(false);
    return button.sizeHint();
}

} // namespace

class tst_DetailButton : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void atStart();
    void metaObject();
    void sizeDoesNotDependOnTheCaption();
    void sizeIsThatOfTheWiderCaption();
    void sizeFollowsTheLanguage();
    void sizeHeedsTheGlobalStrut();
    void click();
};

void tst_DetailButton::atStart()
{
    QWidget parent;
    auto *button = new DetailButton(&parent);
    QCOMPARE(button->parentWidget(), &parent);
    QCOMPARE(button->text(), QStringLiteral("Show Details..."));
    QCOMPARE(button->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(button->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
}

void tst_DetailButton::metaObject()
{
    const QMetaObject &meta = DetailButton::staticMetaObject;
    QCOMPARE(meta.className(), "LM::Widgets::DetailButton");
    QCOMPARE(meta.superClass(), &QPushButton::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

void tst_DetailButton::sizeDoesNotDependOnTheCaption()
{
    DetailButton button;
    const QSize shown = button.sizeHint();
    button.setText(QStringLiteral("Hide Details..."));
    QCOMPARE(button.sizeHint(), shown);
    button.setText(QString(200, QLatin1Char('W')));
    QCOMPARE(button.sizeHint(), shown);
}

void tst_DetailButton::sizeIsThatOfTheWiderCaption()
{
    DetailButton button;
    button.setAutoDefault(false);
    const QSize show = stockSize(QStringLiteral("Show Details..."));
    const QSize hide = stockSize(QStringLiteral("Hide Details..."));
    QVERIFY(show != hide);
    QCOMPARE(button.sizeHint(), show.expandedTo(hide));
}

void tst_DetailButton::sizeFollowsTheLanguage()
{
    DetailButton button;
    const QSize english = button.sizeHint();
    LongHideCaption translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    // It still reads the short caption, and has room for the long one.
    QVERIFY(button.sizeHint().width() > english.width());
    QCOMPARE(button.sizeHint().width(),
             stockSize(translator.translate("", "Hide Details...", nullptr, -1)).width());
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(button.sizeHint(), english);
}

void tst_DetailButton::sizeHeedsTheGlobalStrut()
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    DetailButton button;
    const QSize usual = button.sizeHint();
    QApplication::setGlobalStrut(QSize(usual.width() + 50, 1));
    QCOMPARE(button.sizeHint(), QSize(usual.width() + 50, usual.height()));
    QApplication::setGlobalStrut(QSize(1, usual.height() + 7));
    QCOMPARE(button.sizeHint(), QSize(usual.width(), usual.height() + 7));
    QApplication::setGlobalStrut(QSize(0, 0));
    QCOMPARE(button.sizeHint(), usual);
    QT_WARNING_POP
}

void tst_DetailButton::click()
{
    DetailButton button;
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QSignalSpy clicked(&button, &QPushButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
    // The caption is the owner's business.
    QCOMPARE(button.text(), QStringLiteral("Show Details..."));
}

LMTEST_MAIN(tst_DetailButton)

#include "tst_detailbutton.moc"
