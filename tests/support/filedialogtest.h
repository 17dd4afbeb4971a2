#ifndef FILEDIALOGTEST_H
#define FILEDIALOGTEST_H

/** @file
 * What the tests of the framed file dialog share: a folder of files, settings of their own, and
 * answering a dialog that runs its own event loop.
 */

#include "lmtest.h"
#include "ownsettings.h"

#include <lmwidgets/framelessfiledialog.h>

#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>

namespace filedialogtest {

using Dialog = LM::Widgets::FramelessFileDialog;
using Act = std::function<void(Dialog *)>;

constexpr int GiveUpAfter = 20000;

/** A folder with two scans, a text and another folder; Qt keeps its settings there meanwhile. */
class Folder
{
public:
    Folder()
    {
        for (const char *name : {"alpha.las", "beta.las", "notes.txt"}) {
            add(QLatin1String(name));
        }
        QDir(path()).mkdir(QStringLiteral("sub"));
    }

    QString path() const { return QDir(m_dir.path()).canonicalPath(); }
    QString file(const QString &name) const { return path() + QLatin1Char('/') + name; }
    QUrl url() const { return QUrl::fromLocalFile(path()); }
    QUrl url(const QString &name) const { return QUrl::fromLocalFile(file(name)); }

    void add(const QString &name) const
    {
        QFile created(file(name));
        if (!created.open(QIODevice::WriteOnly)) {
            qFatal("cannot write %s", qPrintable(created.fileName()));
        }
    }

private:
    // Qt's file dialog writes down where it has been each time it is destroyed.
    lmtest::OwnSettings m_settings;
    QTemporaryDir m_dir;
};

inline QFileDialog *browser(const Dialog *dialog)
{
    return dialog->findChild<QFileDialog *>();
}

inline QLineEdit *nameEdit(const QWidget *dialog)
{
    return dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
}

/** The button that opens, saves or chooses. */
inline QPushButton *acceptButton(const QWidget *dialog)
{
    const auto *box = dialog->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    QPushButton *open = box->button(QDialogButtonBox::Open);
    return open ? open : box->button(QDialogButtonBox::Save);
}

inline QPushButton *cancelButton(const QWidget *dialog)
{
    return dialog->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"))
        ->button(QDialogButtonBox::Cancel);
}

inline bool waitForShown(QWidget *widget)
{
    widget->activateWindow();
    return QTest::qWaitForWindowActive(widget);
}

/** Writes @p name into the field and clicks the button beside it. */
inline void enter(QWidget *dialog, const QString &name)
{
    nameEdit(dialog)->setText(name);
    QTest::mouseClick(acceptButton(dialog), Qt::LeftButton);
}

/** Runs @p act in the event loop of the modal widget that the caller is about to run. */
inline void whenModal(const std::function<void(QWidget *)> &act)
{
    QTimer::singleShot(0, qApp, [act] {
        QWidget *modal = QApplication::activeModalWidget();
        QVERIFY(modal);
        // A dialog that nothing closes must not keep the program until CTest kills it.
        if (auto *dialog = qobject_cast<QDialog *>(modal)) {
            QTimer::singleShot(GiveUpAfter, dialog, [dialog] { dialog->done(-12345); });
        }
        QVERIFY(waitForShown(modal));
        act(modal);
    });
}

/** The same for a framed file dialog. */
inline void whenShown(const Act &act)
{
    whenModal([act](QWidget *modal) {
        auto *dialog = qobject_cast<Dialog *>(modal);
        QVERIFY(dialog);
        act(dialog);
    });
}

/** The framed file dialogs that nobody owns, which their caller would have left behind. */
inline QList<Dialog *> orphans()
{
    QList<Dialog *> found;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget *widget : all) {
        auto *dialog = qobject_cast<Dialog *>(widget);
        if (dialog && !dialog->parentWidget()) {
            found.append(dialog);
        }
    }
    return found;
}

} // namespace filedialogtest

#endif
