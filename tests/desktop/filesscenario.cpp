#include "filesscenario.h"

#include "reporter.h"

#include <lmwidgets/framelessfiledialog.h>

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>

using LM::Widgets::FramelessFileDialog;

namespace {

/** Names the framed dialogs, which the static functions make themselves, before they are shown. */
class Namer : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Polish && qobject_cast<FramelessFileDialog *>(watched)) {
            watched->setObjectName(QStringLiteral("files"));
        }
        return QObject::eventFilter(watched, event);
    }
};

void report(const QUrl &url)
{
    Reporter::say(QStringLiteral("chosen %1")
                      .arg(url.isEmpty() ? QStringLiteral("nothing") : url.toString()));
}

QPushButton *makeButton(const QString &name, int x, QWidget *window)
{
    auto *button = new QPushButton(name, window);
    button->setObjectName(name);
    button->setGeometry(x, 40, 100, 30);
    return button;
}

} // namespace

void runFiles()
{
    qApp->installEventFilter(new Namer(qApp));
    static const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("north.las")));
    if (file.open(QIODevice::WriteOnly)) {
        file.write("LASF");
    }
    file.close();
    Reporter::say(QStringLiteral("folder %1").arg(directory.path()));

    auto *window = new QWidget;
    window->setObjectName(QStringLiteral("main"));
    window->setGeometry(20, 20, 300, 120);
    const QUrl folder = QUrl::fromLocalFile(directory.path());
    QObject::connect(makeButton(QStringLiteral("save"), 20, window), &QPushButton::clicked, window,
                     [window, folder] {
                         report(FramelessFileDialog::getSaveFileUrl(window, QString(), folder));
                     });
    QObject::connect(makeButton(QStringLiteral("open"), 140, window), &QPushButton::clicked, window,
                     [window, folder] {
                         report(FramelessFileDialog::getOpenFileUrl(window, QString(), folder));
                     });
    window->show();
}
