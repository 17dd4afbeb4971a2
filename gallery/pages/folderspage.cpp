#include "page.h"
#include "pageparts.h"
#include "signallog.h"
#include "themes.h"

#include <lmwidgets/talvobasicutil.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScopedPointer>
#include <QStringList>
#include <QThread>
#include <QToolButton>
#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr int PathWidth = 420;
constexpr QSize IconSize(24, 24);

const char Sender[] = "TalvoBasicUtil";

/** Runs @p work on another thread, and the event loop until it is done: windows stay alive. */
template <typename Work>
void runAside(const Work &work)
{
    QEventLoop loop;
    const QScopedPointer<QThread> thread(QThread::create(work));
    QObject::connect(thread.data(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    loop.exec();
    thread->wait();
}

void findFolders(QPushButton *opener, SignalLog *log)
{
    const QPointer<QPushButton> guard(opener);
    const QPointer<SignalLog> logGuard(log);
    opener->setEnabled(false);
    QString own;
    QString temporary;
    runAside([&own, &temporary] {
        own = TalvoBasicUtil::getDefaultPath();
        temporary = TalvoBasicUtil::getDefaultTempPath();
    });
    if (logGuard) {
        logGuard->note(QLatin1String(Sender), QStringLiteral("getDefaultPath"), own);
        logGuard->note(QLatin1String(Sender), QStringLiteral("getDefaultTempPath"), temporary);
    }
    if (guard) {
        guard->setEnabled(true);
    }
}

void addFoldersSection(QVBoxLayout *layout, SignalLog &log)
{
    QVBoxLayout *body = addSection(
        layout, QStringLiteral("The two folders"),
        QStringLiteral("Makes them for this program, as a host does at its start, and writes them "
                       "into the log. The first time the drives are looked at, which may take "
                       "seconds: it happens on another thread, and the window stays alive."));
    auto *opener = new QPushButton(QStringLiteral("Find the working folders"));
    opener->setAutoDefault(false);
    QObject::connect(opener, &QPushButton::clicked, opener,
                     [opener, &log] { findFolders(opener, &log); });
    body->addWidget(row({opener}));
}

void addCheckSection(QVBoxLayout *layout, SignalLog &log)
{
    QVBoxLayout *body = addSection(
        layout, QStringLiteral("Is a folder writable?"),
        QStringLiteral("A file is made in it and deleted at once. The border says what came of it, "
                       "as setLineEditStyle() draws it."));
    auto *edit = new QLineEdit(QDir::toNativeSeparators(QDir::tempPath()));
    edit->setFixedWidth(PathWidth);
    TalvoBasicUtil::setLineEditStyle(edit, true);
    const auto ask = [edit, &log] {
        const QString path = QDir::fromNativeSeparators(edit->text());
        const bool writable = TalvoBasicUtil::getPathWriteable(path);
        TalvoBasicUtil::setLineEditStyle(edit, writable);
        log.note(QLatin1String(Sender), QStringLiteral("getPathWriteable"),
                 writable ? QStringLiteral("true") : QStringLiteral("false"));
    };
    QObject::connect(edit, &QLineEdit::returnPressed, edit, ask);

    auto *wrong = new QLineEdit(QStringLiteral("/no/such/folder"));
    wrong->setReadOnly(true);
    wrong->setFixedWidth(PathWidth);
    TalvoBasicUtil::setLineEditStyle(wrong, false);
    body->addWidget(row({edit, button(QStringLiteral("Check"), ask)}));
    body->addWidget(row({wrong}));
}

QToolButton *actionButton(bool enabled)
{
    auto *result = new QToolButton;
    result->setIconSize(IconSize);
    result->setAutoRaise(true);
    result->setEnabled(enabled);
    // The icon is made from the theme that is current at the call.
    onTheme(result, [result] {
        TalvoBasicUtil::setActionIcon(result, QStringLiteral("layer_view"),
                                      QStringLiteral("layer_edit"),
                                      QStringLiteral("layer_dis_view"));
    });
    return result;
}

void addIconSection(QVBoxLayout *layout)
{
    QVBoxLayout *body = addSection(
        layout, QStringLiteral("A tool button with three pictures"),
        QStringLiteral("One for its normal state, one for the mouse over it, one for being "
                       "disabled. The left one is enabled, the right one is not."));
    body->addWidget(row({actionButton(true), actionButton(false)}));
}

void addFilesSection(QVBoxLayout *layout, SignalLog &log)
{
    QVBoxLayout *body = addSection(
        layout, QStringLiteral("All files in a folder"),
        QStringLiteral(
            "Counts what lies in the theme's folder and below, and how long that took."));
    body->addWidget(row({button(QStringLiteral("List the theme's files"), [&log] {
        QElapsedTimer timer;
        timer.start();
        QStringList files;
        TalvoBasicUtil::getAllFiles(
            QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/theme")), files);
        log.note(QLatin1String(Sender), QStringLiteral("getAllFiles"),
                 QStringLiteral("%1 files, %2 ms").arg(files.size()).arg(timer.elapsed()));
    })}));
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    QVBoxLayout *layout = contentLayout(content);
    addFoldersSection(layout, log);
    addCheckSection(layout, log);
    addIconSection(layout);
    addFilesSection(layout, log);
    return content;
}

} // namespace

Page foldersPage()
{
    return Page(QStringLiteral("folders"), QStringLiteral("Working folders"),
                QStringLiteral("TalvoBasicUtil chooses where the host keeps its working data, "
                               "clears it, and brings a few helpers for files and widgets."),
                createContent);
}

} // namespace gallery
