#include "subject.h"

#include <lmwidgets/framelessfiledialog.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>
#include <QUrl>

namespace baseline {

using LM::Widgets::FramelessFileDialog;

namespace {

const QString Filters = QStringLiteral("Point clouds (*.las *.laz);;All files (*)");
constexpr QSize DialogSize(640, 420);

/** A folder of files that are as old everywhere. */
class Folder
{
public:
    Folder()
    {
        QDir(m_root.path()).mkpath(QStringLiteral("Scans/Empty"));
        add("station_01.las", 184320);
        add("station_02.las", 201728);
        add("station_03.laz", 61440);
        add("notes.txt", 640);
    }

    QString path(const char *name) const { return m_root.filePath(QLatin1String(name)); }

private:
    void add(const char *name, qint64 size) const
    {
        QFile file(path("Scans/") + QLatin1String(name));
        const QDateTime time(QDate(2024, 5, 14), QTime(9, 30), Qt::UTC);
        if (!file.open(QIODevice::WriteOnly) || !file.resize(size) ||
            !file.setFileTime(time, QFileDevice::FileModificationTime)) {
            qWarning("cannot write %s", qPrintable(file.fileName()));
        }
    }

    QTemporaryDir m_root;
};

const Folder &folder()
{
    static const Folder made;
    return made;
}

FramelessFileDialog *dialog(const QString &title, const char *directory = "Scans",
                            const QString &filter = Filters)
{
    auto *dialog = new FramelessFileDialog(nullptr, title, folder().path(directory), filter);
    dialog->setWindowTitle(title);
    dialog->setSidebarUrls({QUrl::fromLocalFile(folder().path("Scans"))});
    // A folder is as old as this run; the list shows no times.
    dialog->setViewMode(QFileDialog::List);
    dialog->resize(DialogSize);
    return dialog;
}

QAbstractItemView *viewOf(QWidget *shown)
{
    const bool isList = static_cast<FramelessFileDialog *>(shown)->viewMode() == QFileDialog::List;
    return shown->findChild<QAbstractItemView *>(isList ? QStringLiteral("listView")
                                                        : QStringLiteral("treeView"));
}

/** Waits until @p count entries are read, and hides in which folder of this machine they are. */
QWidget *waitForEntries(QWidget *shown, int count)
{
    const QAbstractItemView *view = viewOf(shown);
    if (!QTest::qWaitFor(
            [view, count] { return view->model()->rowCount(view->rootIndex()) == count; })) {
        qWarning("%d entries are not read", count);
    }
    auto *path = shown->findChild<QComboBox *>(QStringLiteral("lookInCombo"));
    path->setItemText(path->currentIndex(), QStringLiteral("/data/Scans"));
    return shown;
}

Arrange entries(int count)
{
    return [count](QWidget *shown) { return waitForEntries(shown, count); };
}

} // namespace

QVector<Subject> fileDialogSubjects()
{
    const Create open = [] {
        FramelessFileDialog *result = dialog(QStringLiteral("Open File"));
        result->setFileMode(QFileDialog::ExistingFile);
        return result;
    };
    return {{QStringLiteral("FramelessFileDialog"),
             {{QStringLiteral("open"), open, entries(4)},
              {QStringLiteral("file selected"), open,
               [](QWidget *shown) {
                   waitForEntries(shown, 4);
                   QAbstractItemView *view = viewOf(shown);
                   view->setFocus();
                   view->setCurrentIndex(view->model()->index(2, 0, view->rootIndex()));
                   return shown;
               }},
              {QStringLiteral("with times"),
               [] {
                   FramelessFileDialog *result = dialog(QStringLiteral("Open File"));
                   result->setFileMode(QFileDialog::ExistingFile);
                   result->setFilter(QDir::Files);
                   result->setViewMode(QFileDialog::Detail);
                   return result;
               },
               entries(3)},
              {QStringLiteral("save"),
               [] {
                   FramelessFileDialog *result = dialog(QStringLiteral("Save File"));
                   result->setAcceptMode(QFileDialog::AcceptSave);
                   result->selectFile(QStringLiteral("merged.las"));
                   return result;
               },
               entries(4)},
              {QStringLiteral("folder"),
               [] {
                   FramelessFileDialog *result =
                       dialog(QStringLiteral("Select Directory"), "Scans", QString());
                   result->setFileMode(QFileDialog::Directory);
                   result->setOption(QFileDialog::ShowDirsOnly);
                   return result;
               },
               entries(1)},
              {QStringLiteral("empty"),
               [] { return dialog(QStringLiteral("Open File"), "Scans/Empty"); }, entries(0)}}}};
}

} // namespace baseline
