#include "filesscenario.h"

#include "reporter.h"

#include <lmwidgets/framelessfiledialog.h>
#include <lmwidgets/framelessmessagebox.h>
#include <lmwidgets/titlebar.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

using LM::Widgets::FramelessFileDialog;
using LM::Widgets::FramelessMessageBox;
using LM::Widgets::TitleBar;

namespace {

constexpr QRect MainGeometry(60, 60, 360, 260);

QString folder()
{
    return QDir(qEnvironmentVariable("DESKTOP_FILES")).canonicalPath();
}

void sayEntries(const QAbstractItemView *view)
{
    for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row) {
        const QModelIndex index = view->model()->index(row, 0, view->rootIndex());
        const QRect rect = view->visualRect(index);
        const QPoint place = view->viewport()->mapToGlobal(rect.topLeft());
        Reporter::say(QStringLiteral("entry %1 %2 %3 %4 %5")
                          .arg(index.data().toString())
                          .arg(place.x())
                          .arg(place.y())
                          .arg(rect.width())
                          .arg(rect.height()));
    }
}

void nameFileDialog(FramelessFileDialog *dialog)
{
    dialog->setObjectName(QStringLiteral("files"));
    auto *buttons = dialog->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    const bool saves = dialog->acceptMode() == QFileDialog::AcceptSave;
    QPushButton *accept = buttons->button(saves ? QDialogButtonBox::Save : QDialogButtonBox::Open);
    accept->setObjectName(QStringLiteral("files-accept"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("files-cancel"));
    dialog->getTitleBar()
        ->titleButton(TitleBar::CloseButton)
        ->setObjectName(QStringLiteral("files-close"));
    Reporter::follow(dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")));
    Reporter::follow(dialog);
    const auto *view = dialog->findChild<QAbstractItemView *>(QStringLiteral("treeView"));
    // The view has its rows when it has seen the model's signals too.
    const auto sayLater = [view] { QTimer::singleShot(0, view, [view] { sayEntries(view); }); };
    const auto *model = dialog->findChild<QFileSystemModel *>();
    QObject::connect(model, &QFileSystemModel::directoryLoaded, view, sayLater);
    QObject::connect(model, &QFileSystemModel::rowsInserted, view, sayLater);
    QObject::connect(model, &QFileSystemModel::layoutChanged, view, sayLater);
}

/** Gives the dialogs that the functions make names by which the driver finds their parts. */
class FileDialogNames : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Show) {
            return false;
        }
        auto *files = qobject_cast<FramelessFileDialog *>(watched);
        if (files && files->objectName().isEmpty()) {
            nameFileDialog(files);
        } else if (auto *box = qobject_cast<FramelessMessageBox *>(watched)) {
            box->button(QMessageBox::Ok)->setObjectName(QStringLiteral("box-ok"));
            Reporter::follow(box);
        } else if (auto *notice = qobject_cast<QMessageBox *>(watched)) {
            notice->setObjectName(QStringLiteral("notice"));
            notice->button(QMessageBox::Ok)->setObjectName(QStringLiteral("notice-ok"));
            Reporter::follow(notice);
        }
        return false;
    }
};

void sayChosen(const QUrl &url)
{
    const QString name = QDir(folder()).relativeFilePath(url.toLocalFile());
    Reporter::say(QLatin1String("chosen ") + (url.isEmpty() ? QStringLiteral("nothing") : name));
}

void save(QWidget *parent)
{
    sayChosen(
        FramelessFileDialog::getSaveFileUrl(parent, QString(), QUrl::fromLocalFile(folder())));
}

void open(QWidget *parent)
{
    sayChosen(
        FramelessFileDialog::getOpenFileUrl(parent, QString(), QUrl::fromLocalFile(folder())));
}

void runFromMain(void (*ask)(QWidget *))
{
    qApp->installEventFilter(new FileDialogNames(qApp));
    auto *window = new QWidget;
    window->setObjectName(QStringLiteral("main"));
    auto *layout = new QVBoxLayout(window);
    auto *button = new QPushButton(QStringLiteral("File"));
    button->setObjectName(QStringLiteral("main-button"));
    layout->addWidget(button);
    QObject::connect(button, &QPushButton::clicked, window, [ask, window] { ask(window); });
    window->setGeometry(MainGeometry);
    window->show();
}

} // namespace

void runFilesOpen()
{
    runFromMain(open);
}

void runFilesSave()
{
    runFromMain(save);
}

void runFilesAlone()
{
    qApp->installEventFilter(new FileDialogNames(qApp));
    QTimer::singleShot(0, qApp, [] { save(nullptr); });
}

void runFilesNative()
{
    // Qt builds no widgets for a dialog that is the platform's.
    const QFileDialog stock;
    const bool isNative = stock.findChildren<QLineEdit *>().isEmpty();
    Reporter::say(QLatin1String(isNative ? "native yes" : "native no"));
    runFilesOpen();
}

void preferNativeFileDialogs()
{
    qputenv("QT_QPA_PLATFORMTHEME", "gtk3");
}
