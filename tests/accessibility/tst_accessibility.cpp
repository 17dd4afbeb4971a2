/** @file
 * The controls as assistive technology finds and operates them from another process.
 */

#include "assistant.h"
#include "desktoptest.h"

#include <memory>

namespace {

// As the accessibility bus counts them.
constexpr int CheckedState = 4;
constexpr int EditableState = 7;
constexpr int ExpandedState = 10;
constexpr int SelectedState = 23;

} // namespace

class tst_Accessibility : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void sliderIsFound();
    void sliderValues();
    void sliderIsOperated_data();
    void sliderIsOperated();
    void sliderReportsChanges();
    void switches_data();
    void switches();
    void comboIsFound();
    void comboOpensAndCloses();
    void tabsAreFound();
    void tabIsPressed();

private:
    static QString value() { return QStringLiteral("Value"); }
    static QString current() { return QStringLiteral("CurrentValue"); }
    AccessibleNode handle(const QString &name) const;

    Assistant m_assistant;
    std::unique_ptr<Host> m_host;
    AccessibleNode m_application;
};

void tst_Accessibility::initTestCase()
{
    STEP(DesktopTest::initTestCase());
    const QString problem = m_assistant.start(&m_desktop);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void tst_Accessibility::init()
{
    m_host = std::make_unique<Host>(m_desktop, QString(), QString(),
                                    QStringLiteral("accessibility_host"));
    STEP(expect(*m_host, QStringLiteral("painted controls .*")));
    const auto findApplication = [this] {
        m_application = m_assistant.application(QStringLiteral("accessibility_host"));
        return m_application.isValid();
    };
    QVERIFY(QTest::qWaitFor(findApplication, TimeoutMs));
    m_host->mark();
}

void tst_Accessibility::cleanup()
{
    m_host.reset();
    QVERIFY(QTest::qWaitFor(
        [this] { return !m_assistant.application(QStringLiteral("accessibility_host")).isValid(); },
        TimeoutMs));
}

/** The handle called @p name of the slider that the host calls "Height". */
AccessibleNode tst_Accessibility::handle(const QString &name) const
{
    const AccessibleNode group =
        m_application.find(QStringLiteral("panel"), QStringLiteral("Height"));
    return group.isValid() ? group.find(QStringLiteral("slider"), name) : AccessibleNode();
}

void tst_Accessibility::sliderIsFound()
{
    const AccessibleNode group =
        m_application.find(QStringLiteral("panel"), QStringLiteral("Height"));
    QVERIFY(group.isValid());
    const QVector<AccessibleNode> handles = group.children();
    QCOMPARE(handles.size(), 2);
    QCOMPARE(handles.at(0).role(), QStringLiteral("slider"));
    QCOMPARE(handles.at(0).name(), QStringLiteral("Lower value"));
    QCOMPARE(handles.at(1).role(), QStringLiteral("slider"));
    QCOMPARE(handles.at(1).name(), QStringLiteral("Upper value"));
}

void tst_Accessibility::sliderValues()
{
    const AccessibleNode lower = handle(QStringLiteral("Lower value"));
    const AccessibleNode upper = handle(QStringLiteral("Upper value"));
    QVERIFY(lower.isValid() && upper.isValid());
    QCOMPARE(lower.property(value(), current()), QVariant(20.0));
    QCOMPARE(upper.property(value(), current()), QVariant(60.0));
    QCOMPARE(lower.property(value(), QStringLiteral("MinimumValue")), QVariant(0.0));
    QCOMPARE(upper.property(value(), QStringLiteral("MaximumValue")), QVariant(100.0));
}

void tst_Accessibility::sliderIsOperated_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("wanted");
    QTest::addColumn<QString>("heard");
    QTest::addColumn<double>("lower");
    QTest::addColumn<double>("upper");
    QTest::newRow("lower") << "Lower value" << 33.5 << "lower 33.5" << 33.5 << 60.0;
    QTest::newRow("upper") << "Upper value" << 77.25 << "upper 77.25" << 20.0 << 77.25;
    QTest::newRow("lower past upper") << "Lower value" << 80.0 << "upper 80" << 60.0 << 80.0;
    QTest::newRow("too large") << "Upper value" << 1000.0 << "upper 100" << 20.0 << 100.0;
}

void tst_Accessibility::sliderIsOperated()
{
    QFETCH(QString, name);
    QFETCH(double, wanted);
    QFETCH(QString, heard);
    QFETCH(double, lower);
    QFETCH(double, upper);
    QVERIFY(handle(name).setProperty(value(), current(), wanted));
    STEP(expect(*m_host, heard));
    QCOMPARE(handle(QStringLiteral("Lower value")).property(value(), current()), QVariant(lower));
    QCOMPARE(handle(QStringLiteral("Upper value")).property(value(), current()), QVariant(upper));
}

void tst_Accessibility::sliderReportsChanges()
{
    QVERIFY(m_assistant.listen());
    const AccessibleNode lower = handle(QStringLiteral("Lower value"));
    const AccessibleNode upper = handle(QStringLiteral("Upper value"));
    m_assistant.takeValueChanges();
    // The application hears of the wish some time later.
    double wanted = 0.0;
    QStringList changes;
    QVERIFY(QTest::qWaitFor(
        [&] {
            wanted = wanted > 40.0 ? 1.0 : wanted + 1.0;
            lower.setProperty(value(), current(), wanted);
            changes += m_assistant.takeValueChanges();
            return changes.contains(lower.path());
        },
        TimeoutMs));
    QVERIFY(!changes.contains(upper.path()));
    QVERIFY(upper.setProperty(value(), current(), 90.0));
    QVERIFY(QTest::qWaitFor([&] { return m_assistant.takeValueChanges().contains(upper.path()); },
                            TimeoutMs));
}

void tst_Accessibility::switches_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("heard");
    QTest::newRow("ToggleSwitch") << "Ground points"
                                  << "toggle %1";
    QTest::newRow("RoundCheckBox") << "Lock"
                                   << "round %1";
}

void tst_Accessibility::switches()
{
    QFETCH(QString, name);
    QFETCH(QString, heard);
    const AccessibleNode box = m_application.find(QStringLiteral("check box"), name);
    QVERIFY(box.isValid());
    QVERIFY(!box.hasState(CheckedState));
    QVERIFY(box.doAction(QStringLiteral("Toggle")));
    STEP(expect(*m_host, heard.arg(QStringLiteral("on"))));
    QVERIFY(box.hasState(CheckedState));
    QVERIFY(box.doAction(QStringLiteral("Toggle")));
    STEP(expect(*m_host, heard.arg(QStringLiteral("off"))));
    QVERIFY(!box.hasState(CheckedState));
}

void tst_Accessibility::comboIsFound()
{
    const AccessibleNode combo =
        m_application.find(QStringLiteral("combo box"), QStringLiteral("System"));
    QVERIFY(combo.isValid());
    QVERIFY(combo.hasState(EditableState));
    QVERIFY(!combo.hasState(ExpandedState));
    // The text is that of the field inside.
    AccessibleNode field;
    for (const AccessibleNode &child : combo.children()) {
        if (child.role() == QStringLiteral("text")) {
            field = child;
        }
    }
    QVERIFY(field.isValid());
    const QDBusMessage text =
        field.call(QStringLiteral("Text"), QStringLiteral("GetText"), {0, -1});
    QCOMPARE(text.arguments().value(0).toString(), QStringLiteral("NAD83"));
    const QDBusMessage written =
        field.call(QStringLiteral("EditableText"), QStringLiteral("SetTextContents"),
                   {QStringLiteral("WGS 84")});
    QCOMPARE(written.arguments().value(0).toBool(), true);
    STEP(expect(*m_host, QStringLiteral("system 0")));
}

void tst_Accessibility::comboOpensAndCloses()
{
    const AccessibleNode combo =
        m_application.find(QStringLiteral("combo box"), QStringLiteral("System"));
    QVERIFY(combo.isValid());
    QVERIFY(combo.doAction(QStringLiteral("ShowMenu")));
    QVERIFY(QTest::qWaitFor([&] { return combo.hasState(ExpandedState); }, TimeoutMs));
    QVERIFY(combo.doAction(QStringLiteral("ShowMenu")));
    QVERIFY(QTest::qWaitFor([&] { return !combo.hasState(ExpandedState); }, TimeoutMs));
}

void tst_Accessibility::tabsAreFound()
{
    const AccessibleNode bar =
        m_application.find(QStringLiteral("page tab list"), QStringLiteral("Steps"));
    QVERIFY(bar.isValid());
    const AccessibleNode first = bar.find(QStringLiteral("page tab"), QStringLiteral("Import"));
    const AccessibleNode second = bar.find(QStringLiteral("page tab"), QStringLiteral("Classify"));
    QVERIFY(first.isValid() && second.isValid());
    QVERIFY(first.hasState(SelectedState));
    QVERIFY(!second.hasState(SelectedState));
    // What the dots mean.
    const QString description = QStringLiteral("Description");
    QCOMPARE(first.property(QStringLiteral("Accessible"), description),
             QVariant(QStringLiteral("done")));
    QCOMPARE(second.property(QStringLiteral("Accessible"), description),
             QVariant(QStringLiteral("failed")));
}

void tst_Accessibility::tabIsPressed()
{
    const AccessibleNode bar =
        m_application.find(QStringLiteral("page tab list"), QStringLiteral("Steps"));
    QVERIFY(bar.isValid());
    const AccessibleNode second = bar.find(QStringLiteral("page tab"), QStringLiteral("Classify"));
    QVERIFY(second.isValid());
    QVERIFY(second.doAction(QStringLiteral("Press")));
    STEP(expect(*m_host, QStringLiteral("tab 1")));
    QVERIFY(second.hasState(SelectedState));
}

QTEST_GUILESS_MAIN(tst_Accessibility)

#include "tst_accessibility.moc"
