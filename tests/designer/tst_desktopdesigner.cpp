/** @file
 * Qt Designer itself on a real X11 desktop, with the plugin of the build tree: it opens and saves a
 * form with every widget, and the user drags a widget of the library from the widget box to a form.
 */

#include "desktoptest.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <functional>
#include <memory>

class tst_DesktopDesigner : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void opensAndSaves();
    void dragFromWidgetBox();

private:
    void start(const QString &form);
    void waitForForm(const QString &saved);
    bool saveUntil(const std::function<bool()> &isSaved);
    QString contents() const;
    void dragToForm();

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ChildProcess> m_designer;
    QString m_form;
};

namespace {

constexpr int StartTimeoutMs = 60000;
constexpr int AttemptMs = 1000;

// In Designer's main window as it opens first on the screen of these tests: the filter of the widget
// box, the only entry that it leaves, and the form.
constexpr QPoint FilterField(100, 117);
constexpr QPoint FirstEntry(80, 165);
constexpr QPoint OnTheForm(400, 250);

const char emptyForm[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0">
 <class>Panel</class>
 <widget class="QWidget" name="Panel">
  <property name="geometry">
   <rect>
    <x>0</x>
    <y>0</y>
    <width>400</width>
    <height>300</height>
   </rect>
  </property>
  <property name="windowTitle">
   <string>Panel</string>
  </property>
 </widget>
 <resources/>
 <connections/>
</ui>
)";

/** The same form as somebody else might have written it: Designer's own indentation is gone. */
QString withoutIndentation(const QString &xml)
{
    QStringList lines = xml.split('\n');
    for (QString &line : lines) {
        line = line.trimmed();
    }
    return lines.join('\n');
}

} // namespace

void tst_DesktopDesigner::initTestCase()
{
    QVERIFY2(QFileInfo(QStringLiteral(DESIGNER_PROGRAM)).isExecutable(),
             "Qt Designer is not installed; on Debian it is in qttools5-dev-tools");
    DesktopTest::initTestCase();
}

void tst_DesktopDesigner::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_form = m_folder->filePath(QStringLiteral("form.ui"));
}

void tst_DesktopDesigner::cleanup()
{
    if (m_designer) {
        // It would ask whether to save what a test that failed has left.
        m_designer->kill();
        m_designer->waitForFinished();
        m_designer.reset();
    }
}

/** Starts Designer with @p form as it opens for somebody who never used it. */
void tst_DesktopDesigner::start(const QString &form)
{
    QFile file(m_form);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(form.toUtf8());
    file.close();

    QProcessEnvironment environment = m_desktop.environment();
    environment.insert(QStringLiteral("HOME"), m_folder->path());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_folder->path());
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"),
                       QFileInfo(QFileInfo(QStringLiteral(DESIGNER_PLUGIN)).path()).path());
    environment.insert(QStringLiteral("QT_STYLE_OVERRIDE"), QStringLiteral("Fusion"));
    environment.remove(QStringLiteral("QT_QPA_PLATFORMTHEME"));
    m_designer = std::make_unique<ChildProcess>();
    m_designer->setProcessEnvironment(environment);
    m_designer->setProcessChannelMode(QProcess::MergedChannels);
    m_designer->start(QStringLiteral(DESIGNER_PROGRAM), {m_form});
    QVERIFY(m_designer->waitForStarted());
}

QString tst_DesktopDesigner::contents() const
{
    QFile file(m_form);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/** Saves the form again and again until @p isSaved finds in the file what it looks for. */
bool tst_DesktopDesigner::saveUntil(const std::function<bool()> &isSaved)
{
    return QTest::qWaitFor(
        [this, &isSaved] {
            m_desktop.xdotool(QStringLiteral("key ctrl+s"));
            return QTest::qWaitFor(isSaved, AttemptMs);
        },
        StartTimeoutMs);
}

/** Waits until Designer is up and has the form open: then it saves it, in its own writing. */
void tst_DesktopDesigner::waitForForm(const QString &saved)
{
    QString window;
    const bool isUp = QTest::qWaitFor(
        [this, &window] {
            window = m_desktop.xdotool({"search", "--onlyvisible", "--name", "^Qt Designer$"});
            return !window.isEmpty();
        },
        StartTimeoutMs);
    QVERIFY2(isUp, m_designer->readAll().constData());
    input(QStringLiteral("windowactivate --sync ") + window.section('\n', -1));
    if (!saveUntil([this, &saved] { return contents() == saved; })) {
        QCOMPARE(contents(), saved);
    }
}

void tst_DesktopDesigner::opensAndSaves()
{
    QFile file(QStringLiteral(LMWIDGETS_SOURCE_DIR "/tests/designer/allwidgets.ui"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString form = QString::fromUtf8(file.readAll());
    const QString unformatted = withoutIndentation(form);
    QVERIFY(unformatted != form);
    STEP(start(unformatted));
    STEP(waitForForm(form));
    const QByteArray said = m_designer->readAll();
    for (const QByteArray complaint :
         {"lmwidgets", "LM::Widgets", "custom widget", "Cannot load"}) {
        QVERIFY2(!said.contains(complaint), said.constData());
    }
    QCOMPARE(m_designer->state(), QProcess::Running);
}

/** One drag from the widget box to the form. */
void tst_DesktopDesigner::dragToForm()
{
    input(QStringLiteral("mousemove ") + pointText(FirstEntry));
    const QString free = m_desktop.pointerPicture();
    input(QStringLiteral("mousedown 1 mousemove %1 mousemove %2")
              .arg(pointText(FirstEntry + QPoint(20, 20)), pointText(OnTheForm - QPoint(5, 5))));
    // The pointer shows that Designer has noticed; if not, the drag comes to nothing.
    if (!QTest::qWaitFor([&] { return m_desktop.pointerPicture() != free; }, AttemptMs)) {
        qInfo("nothing was taken along");
    }
    input(QStringLiteral("mousemove %1 mouseup 1").arg(pointText(OnTheForm)));
}

void tst_DesktopDesigner::dragFromWidgetBox()
{
    const QString form = QLatin1String(emptyForm);
    STEP(start(withoutIndentation(form)));
    STEP(waitForForm(form));
    STEP(clickAt(FilterField));
    STEP(type(QStringLiteral("toggle switch")));
    // Where the box has not filtered its entries yet, or the form is not there to take the widget, the
    // user would try once more.
    const QString element = QStringLiteral("<widget class=\"LM::Widgets::ToggleSwitch\"");
    const bool dropped = QTest::qWaitFor(
        [this, &element] {
            dragToForm();
            m_desktop.xdotool(QStringLiteral("key ctrl+s"));
            return QTest::qWaitFor([this, &element] { return contents().contains(element); },
                                   AttemptMs);
        },
        StartTimeoutMs);
    QVERIFY2(dropped, qPrintable(contents() + QString::fromUtf8(m_designer->readAll())));
    const QString saved = contents();
    QVERIFY(saved.contains(QLatin1String("name=\"toggleSwitch\"")));
    QVERIFY(saved.contains(QLatin1String("<extends>QWidget</extends>")));
    QVERIFY(saved.contains(QLatin1String("<header>lmwidgets/toggleswitch.h</header>")));
    QCOMPARE(m_designer->state(), QProcess::Running);
}

QTEST_GUILESS_MAIN(tst_DesktopDesigner)

#include "tst_desktopdesigner.moc"
