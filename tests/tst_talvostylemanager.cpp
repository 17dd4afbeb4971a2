#include "lmtest.h"

#include <lmwidgets/talvodialogbase.h>
#include <lmwidgets/talvostylemanager.h>

#include <QMetaMethod>
#include <QPointer>
#include <QSemaphore>
#include <QSignalSpy>
#include <QThread>

#include <functional>
#include <limits>
#include <memory>
#include <vector>

using LM::Widgets::TalvoDialogBase;
using LM::Widgets::TalvoStyleManager;

namespace {

TalvoStyleManager *manager()
{
    return TalvoStyleManager::instance().data();
}

class CountingDialog : public TalvoDialogBase
{
public:
    using TalvoDialogBase::TalvoDialogBase;

    void initStyleSheet() override
    {
        ++calls;
        seenPath = manager()->currentThemePath();
        seenStyle = manager()->currentStyle();
    }

    int calls = 0;
    QString seenPath;
    int seenStyle = -1;
};

class Receiver : public QObject
{
    Q_OBJECT

public:
    int calls = 0;

public Q_SLOTS:
    void count() { ++calls; }
};

/** Emits every signal of the manager once. */
void emitAll()
{
    manager()->shiftStyle(manager()->currentStyle());
    manager()->areaMeasureLabelSelected(1);
    manager()->updatePerspectiveState();
    manager()->updateSectionThickness(QStringLiteral("a"), 1.0);
    Q_EMIT manager()->updateCloudPointSizeSignal();
    manager()->deleteVertexArrays(QStringLiteral("a"), 1);
    manager()->deleteBuffers(QStringLiteral("a"), 1);
    manager()->removePointCloudObject(1);
    manager()->showErrorMessage(QStringLiteral("a"));
    manager()->updateMappingPointSize(true, 1);
}

constexpr int SignalCount = 10;

/** Opens up what QObject keeps for its own subclasses. */
class Connections : public QObject
{
public:
    static bool exist(const QMetaMethod &signal)
    {
        return (manager()->*&Connections::isSignalConnected)(signal);
    }
};

} // namespace

class tst_TalvoStyleManager : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    // The first, since the one manager of the process is not to exist before it.
    void instanceFromSeveralThreads();
    void themeAtStart();
    void projectStringsAtStart();
    void metaObject();
    void instanceIsOne();
    void themePaths_data();
    void themePaths();
    void unknownThemeIsStored_data();
    void unknownThemeIsStored();
    void shiftEmitsAlways();
    void themeIsStoredBeforeTheSignal();
    void nullDialogIsIgnored();
    void dialogAddedTwice();
    void dialogReadsTheNewTheme();
    void deletedDialogIsDisconnected();
    void projectStrings();
    void relays();
    void relaysExtremeValues();
    void hostEmitsCloudPointSize();
    void disconnectAllSignals();
    void disconnectAllSignalsQueued();
    void disconnectWithinASlot();
    void disconnectedDialogsStayBehind();
    void shiftFromAnotherThread();
};

void tst_TalvoStyleManager::cleanup()
{
    manager()->disconnectAllSignals();
    manager()->shiftStyle(TalvoStyleManager::Black);
    manager()->setProjectPath(QString());
    manager()->setProjectTimeStamp(QString());
}

void tst_TalvoStyleManager::instanceFromSeveralThreads()
{
    constexpr int ThreadCount = 8;
    QSemaphore start;
    std::vector<TalvoStyleManager *> seen(ThreadCount, nullptr);
    std::vector<QScopedPointer<TalvoStyleManager> *> owners(ThreadCount, nullptr);
    std::vector<std::unique_ptr<QThread>> threads;
    for (size_t i = 0; i < ThreadCount; ++i) {
        threads.emplace_back(QThread::create([&start, &seen, &owners, i] {
            start.acquire();
            QScopedPointer<TalvoStyleManager> &owner = TalvoStyleManager::instance();
            owners[i] = &owner;
            seen[i] = owner.data();
        }));
        threads.back()->start();
    }
    start.release(ThreadCount);
    for (const auto &thread : threads) {
        QVERIFY(thread->wait(30000));
    }
    for (size_t i = 0; i < ThreadCount; ++i) {
        QVERIFY(seen[i]);
        QCOMPARE(seen[i], manager());
        QCOMPARE(owners[i], &TalvoStyleManager::instance());
    }
    QCOMPARE(manager()->thread(), qApp->thread());
    QVERIFY(!manager()->parent());
}

void tst_TalvoStyleManager::themeAtStart()
{
    QCOMPARE(int(manager()->currentStyle()), 0);
    QCOMPARE(manager()->currentStyle(), TalvoStyleManager::Black);
    QVERIFY(manager()->currentThemePath().endsWith(QLatin1String("/theme/Black/")));
}

void tst_TalvoStyleManager::projectStringsAtStart()
{
    QVERIFY(manager()->getProjectPath().isEmpty());
    QVERIFY(manager()->getProjectTimeStamp().isEmpty());
}

void tst_TalvoStyleManager::metaObject()
{
    const QMetaObject &meta = TalvoStyleManager::staticMetaObject;
    QCOMPARE(meta.className(), "LM::Widgets::TalvoStyleManager");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    const QStringList expected{
        QStringLiteral("signal themeStyleShift()"),
        QStringLiteral("signal measureLabelSelected(int uuid)"),
        QStringLiteral("signal updatePerspectiveStateSignal()"),
        QStringLiteral("signal SectionThicknessUpdate(QString name, double thick)"),
        QStringLiteral("signal updateCloudPointSizeSignal()"),
        QStringLiteral("signal signalDeleteVertexArrays(QString objname, uint id)"),
        QStringLiteral("signal signalDeleteBuffers(QString objname, uint id)"),
        QStringLiteral("signal pointcloudRemoved(int id)"),
        QStringLiteral("signal signalErrorMessage(QString mes)"),
        QStringLiteral("signal signalUpdateMappingPointSize(bool, int)"),
    };
    QCOMPARE(lmtest::ownMethods(meta), expected);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_TalvoStyleManager::instanceIsOne()
{
    QCOMPARE(&TalvoStyleManager::instance(), &TalvoStyleManager::instance());
    const QPointer<TalvoStyleManager> first = manager();
    QCOMPARE(manager(), first.data());
}

void tst_TalvoStyleManager::themePaths_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("folder");
    QTest::newRow("black") << 0 << QStringLiteral("/theme/Black/");
    QTest::newRow("white") << 1 << QStringLiteral("/theme/White/");
    QTest::newRow("blue") << 2 << QStringLiteral("/theme/Blue/");
}

void tst_TalvoStyleManager::themePaths()
{
    QFETCH(int, style);
    QFETCH(QString, folder);
    manager()->shiftStyle(TalvoStyleManager::ThemeStyleType(style));
    QCOMPARE(int(manager()->currentStyle()), style);
    QCOMPARE(manager()->currentThemePath(), QCoreApplication::applicationDirPath() + folder);
}

void tst_TalvoStyleManager::unknownThemeIsStored_data()
{
    QTest::addColumn<int>("style");
    QTest::newRow("one past the last") << 3;
    QTest::newRow("two past the last") << 4;
    QTest::newRow("negative") << -1;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void tst_TalvoStyleManager::unknownThemeIsStored()
{
    QFETCH(int, style);
    manager()->shiftStyle(TalvoStyleManager::White);
    QSignalSpy spy(manager(), &TalvoStyleManager::themeStyleShift);
    manager()->shiftStyle(static_cast<TalvoStyleManager::ThemeStyleType>(style));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(int(manager()->currentStyle()), style);
    QCOMPARE(manager()->currentThemePath(),
             QCoreApplication::applicationDirPath() + QStringLiteral("/theme/Black/"));
}

void tst_TalvoStyleManager::shiftEmitsAlways()
{
    QSignalSpy spy(manager(), &TalvoStyleManager::themeStyleShift);
    manager()->shiftStyle(manager()->currentStyle());
    QCOMPARE(spy.count(), 1);
    manager()->shiftStyle(TalvoStyleManager::Blue);
    QCOMPARE(spy.count(), 2);
    manager()->shiftStyle(TalvoStyleManager::Blue);
    QCOMPARE(spy.count(), 3);
}

void tst_TalvoStyleManager::themeIsStoredBeforeTheSignal()
{
    QString path;
    connect(manager(), &TalvoStyleManager::themeStyleShift, this,
            [&path] { path = manager()->currentThemePath(); });
    manager()->shiftStyle(TalvoStyleManager::White);
    QVERIFY(path.endsWith(QLatin1String("/theme/White/")));
}

void tst_TalvoStyleManager::nullDialogIsIgnored()
{
    const QMetaMethod shift = QMetaMethod::fromSignal(&TalvoStyleManager::themeStyleShift);
    QVERIFY(!Connections::exist(shift));
    manager()->addTalvoDialogBase(nullptr);
    QVERIFY(!Connections::exist(shift));
    manager()->shiftStyle(TalvoStyleManager::White);
    QCOMPARE(manager()->currentStyle(), TalvoStyleManager::White);
}

void tst_TalvoStyleManager::dialogAddedTwice()
{
    CountingDialog dialog;
    manager()->shiftStyle(TalvoStyleManager::White);
    QCOMPARE(dialog.calls, 1);
    manager()->addTalvoDialogBase(&dialog);
    manager()->shiftStyle(TalvoStyleManager::Blue);
    QCOMPARE(dialog.calls, 3);
    manager()->addTalvoDialogBase(&dialog);
    manager()->shiftStyle(TalvoStyleManager::Blue);
    QCOMPARE(dialog.calls, 6);
}

void tst_TalvoStyleManager::dialogReadsTheNewTheme()
{
    CountingDialog dialog;
    manager()->shiftStyle(TalvoStyleManager::Blue);
    QCOMPARE(dialog.seenStyle, 2);
    QVERIFY(dialog.seenPath.endsWith(QLatin1String("/theme/Blue/")));
}

void tst_TalvoStyleManager::deletedDialogIsDisconnected()
{
    const QMetaMethod shift = QMetaMethod::fromSignal(&TalvoStyleManager::themeStyleShift);
    auto *dialog = new CountingDialog;
    manager()->addTalvoDialogBase(dialog);
    QVERIFY(Connections::exist(shift));
    delete dialog;
    QVERIFY(!Connections::exist(shift));
    manager()->shiftStyle(TalvoStyleManager::White);
}

void tst_TalvoStyleManager::projectStrings()
{
    const QString path = QStringLiteral("/données/プロジェクト/../%1 \"x\"");
    manager()->setProjectPath(path);
    QCOMPARE(manager()->getProjectPath(), path);
    QVERIFY(manager()->getProjectTimeStamp().isEmpty());
    manager()->setProjectTimeStamp(QStringLiteral("20240101120000"));
    QCOMPARE(manager()->getProjectTimeStamp(), QStringLiteral("20240101120000"));
    QCOMPARE(manager()->getProjectPath(), path);
    manager()->setProjectPath(QString());
    QVERIFY(manager()->getProjectPath().isEmpty());
    QCOMPARE(manager()->getProjectTimeStamp(), QStringLiteral("20240101120000"));
}

void tst_TalvoStyleManager::relays()
{
    QSignalSpy labels(manager(), &TalvoStyleManager::measureLabelSelected);
    QSignalSpy perspective(manager(), &TalvoStyleManager::updatePerspectiveStateSignal);
    QSignalSpy thickness(manager(), &TalvoStyleManager::SectionThicknessUpdate);
    QSignalSpy cloudSize(manager(), &TalvoStyleManager::updateCloudPointSizeSignal);
    QSignalSpy arrays(manager(), &TalvoStyleManager::signalDeleteVertexArrays);
    QSignalSpy buffers(manager(), &TalvoStyleManager::signalDeleteBuffers);
    QSignalSpy removed(manager(), &TalvoStyleManager::pointcloudRemoved);
    QSignalSpy errors(manager(), &TalvoStyleManager::signalErrorMessage);
    QSignalSpy mapping(manager(), &TalvoStyleManager::signalUpdateMappingPointSize);

    manager()->areaMeasureLabelSelected(7);
    QCOMPARE(labels.takeFirst(), QVariantList{7});
    manager()->updatePerspectiveState();
    QCOMPARE(perspective.takeFirst(), QVariantList());
    manager()->updateSectionThickness(QStringLiteral("section"), 0.25);
    QCOMPARE(thickness.takeFirst(), (QVariantList{QStringLiteral("section"), 0.25}));
    manager()->deleteVertexArrays(QStringLiteral("cloud"), 3U);
    QCOMPARE(arrays.takeFirst(), (QVariantList{QStringLiteral("cloud"), 3U}));
    manager()->deleteBuffers(QStringLiteral("grid"), 4U);
    QCOMPARE(buffers.takeFirst(), (QVariantList{QStringLiteral("grid"), 4U}));
    manager()->removePointCloudObject(11);
    QCOMPARE(removed.takeFirst(), QVariantList{11});
    manager()->showErrorMessage(QStringLiteral("no such file"));
    QCOMPARE(errors.takeFirst(), QVariantList{QStringLiteral("no such file")});
    manager()->updateMappingPointSize(true, 5);
    QCOMPARE(mapping.takeFirst(), (QVariantList{true, 5}));
    manager()->updateMappingPointSize(false, -5);
    QCOMPARE(mapping.takeFirst(), (QVariantList{false, -5}));

    // Each call emits its own signal once and no other.
    QCOMPARE(labels.count() + perspective.count() + thickness.count() + cloudSize.count() +
                 arrays.count() + buffers.count() + removed.count() + errors.count() +
                 mapping.count(),
             0);
}

void tst_TalvoStyleManager::relaysExtremeValues()
{
    QSignalSpy labels(manager(), &TalvoStyleManager::measureLabelSelected);
    manager()->areaMeasureLabelSelected(std::numeric_limits<int>::min());
    QCOMPARE(labels.takeFirst().at(0).toInt(), std::numeric_limits<int>::min());

    QSignalSpy thickness(manager(), &TalvoStyleManager::SectionThicknessUpdate);
    manager()->updateSectionThickness(QString(), std::numeric_limits<double>::quiet_NaN());
    QVERIFY(qIsNaN(thickness.takeFirst().at(1).toDouble()));

    QSignalSpy buffers(manager(), &TalvoStyleManager::signalDeleteBuffers);
    manager()->deleteBuffers(QString(), std::numeric_limits<unsigned int>::max());
    QCOMPARE(buffers.takeFirst().at(1).toUInt(), std::numeric_limits<unsigned int>::max());

    QSignalSpy errors(manager(), &TalvoStyleManager::signalErrorMessage);
    const QString hostile =
        QString(QChar(0)) + QStringLiteral("<b>%1%n</b>") + QString(100000, QLatin1Char('x'));
    manager()->showErrorMessage(hostile);
    QCOMPARE(errors.takeFirst().at(0).toString(), hostile);
}

void tst_TalvoStyleManager::hostEmitsCloudPointSize()
{
    QSignalSpy spy(manager(), &TalvoStyleManager::updateCloudPointSizeSignal);
    Q_EMIT manager()->updateCloudPointSizeSignal();
    QCOMPARE(spy.count(), 1);
}

void tst_TalvoStyleManager::disconnectAllSignals()
{
    Receiver receiver;
    int functorCalls = 0;
    int contextFreeCalls = 0;
    const QMetaObject &meta = TalvoStyleManager::staticMetaObject;
    const QMetaMethod slot =
        receiver.metaObject()->method(receiver.metaObject()->indexOfSlot("count()"));
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QVERIFY(connect(manager(), meta.method(i), &receiver, slot));
    }
    connect(manager(), SIGNAL(themeStyleShift()), &receiver, SLOT(count()));
    connect(manager(), &TalvoStyleManager::pointcloudRemoved, this,
            [&functorCalls] { ++functorCalls; });
    connect(manager(), &TalvoStyleManager::signalErrorMessage,
            [&contextFreeCalls] { ++contextFreeCalls; });

    emitAll();
    QCOMPARE(receiver.calls, SignalCount + 1);
    QCOMPARE(functorCalls, 1);
    QCOMPARE(contextFreeCalls, 1);

    manager()->disconnectAllSignals();
    emitAll();
    QCOMPARE(receiver.calls, SignalCount + 1);
    QCOMPARE(functorCalls, 1);
    QCOMPARE(contextFreeCalls, 1);
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QVERIFY2(!Connections::exist(meta.method(i)), meta.method(i).name().constData());
    }
}

void tst_TalvoStyleManager::disconnectAllSignalsQueued()
{
    Receiver receiver;
    connect(manager(), &TalvoStyleManager::pointcloudRemoved, &receiver, &Receiver::count,
            Qt::QueuedConnection);
    manager()->removePointCloudObject(1);
    QCOMPARE(receiver.calls, 0);
    QTRY_COMPARE(receiver.calls, 1);

    manager()->disconnectAllSignals();
    manager()->removePointCloudObject(1);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(receiver.calls, 1);
}

void tst_TalvoStyleManager::disconnectWithinASlot()
{
    Receiver late;
    connect(manager(), &TalvoStyleManager::themeStyleShift, this,
            [] { manager()->disconnectAllSignals(); });
    connect(manager(), &TalvoStyleManager::themeStyleShift, &late, &Receiver::count);
    manager()->shiftStyle(TalvoStyleManager::White);
    QCOMPARE(late.calls, 0);
    QCOMPARE(manager()->currentStyle(), TalvoStyleManager::White);
}

void tst_TalvoStyleManager::disconnectedDialogsStayBehind()
{
    CountingDialog earlier;
    manager()->disconnectAllSignals();
    CountingDialog later;
    manager()->shiftStyle(TalvoStyleManager::White);
    QCOMPARE(earlier.calls, 0);
    QCOMPARE(later.calls, 1);

    manager()->addTalvoDialogBase(&earlier);
    manager()->shiftStyle(TalvoStyleManager::Blue);
    QCOMPARE(earlier.calls, 1);
    QCOMPARE(later.calls, 2);
}

void tst_TalvoStyleManager::shiftFromAnotherThread()
{
    // The connection is automatic: a dialog is reached through the event loop of its own thread.
    CountingDialog dialog;
    std::unique_ptr<QThread> thread(
        QThread::create([] { manager()->shiftStyle(TalvoStyleManager::White); }));
    thread->start();
    QVERIFY(thread->wait(30000));
    QCOMPARE(dialog.calls, 0);
    QTRY_COMPARE(dialog.calls, 1);
    QCOMPARE(dialog.seenStyle, 1);
}

LMTEST_MAIN(tst_TalvoStyleManager)

#include "tst_talvostylemanager.moc"
