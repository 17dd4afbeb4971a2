#include "page.h"
#include "pageparts.h"
#include "signallog.h"

#include <lmwidgets/framelessprocessdialog.h>

#include <QElapsedTimer>
#include <QPointer>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>

#include <atomic>

namespace gallery {

using LM::Widgets::FramelessProcessDialog;

namespace {

constexpr int Tiles = 400;
constexpr int TileMs = 10;
constexpr int ShotValue = 37;
constexpr QSize WideSize(460, 0);

/** Stands for the work on one tile. */
void workOnTile()
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < TileMs) {
    }
}

FramelessProcessDialog *createDialog(const QString &title, const QString &text, QWidget *parent)
{
    auto *dialog = new FramelessProcessDialog(text, QStringLiteral("Cancel"), 0, Tiles, parent);
    dialog->setWindowTitle(title);
    dialog->setMinimumDuration(500);
    return dialog;
}

/** The operation as a host writes it where no thread is at hand: modal, so that setValue() lets the
 * click on the button through. */
void workInGuiThread(QWidget *page, SignalLog &log)
{
    const QPointer<QWidget> guard(page);
    const QPointer<FramelessProcessDialog> dialog(
        createDialog(QStringLiteral("Export"), QStringLiteral("Writing tiles..."), page->window()));
    dialog->setWindowModality(Qt::WindowModal);
    log.watch(dialog, QStringLiteral("GUI thread"));
    for (int tile = 0; tile < Tiles; ++tile) {
        dialog->setValue(tile);
        if (!dialog || dialog->wasCanceled()) {
            break;
        }
        workOnTile();
    }
    if (!guard || !dialog) {
        return;
    }
    const bool canceled = dialog->wasCanceled();
    if (!canceled) {
        dialog->setValue(Tiles);
    }
    log.note(QStringLiteral("GUI thread"), QStringLiteral("returned"),
             canceled ? QStringLiteral("canceled") : QStringLiteral("all tiles"));
    delete dialog;
}

/** Works through the tiles in a thread of its own, and tells of each. */
class Worker : public QThread
{
    Q_OBJECT

public:
    using QThread::QThread;
    ~Worker() override
    {
        stop();
        wait();
    }
    void stop() { m_stop = true; }

Q_SIGNALS:
    void progressed(int tile);

protected:
    void run() override
    {
        for (int tile = 0; tile <= Tiles && !m_stop; ++tile) {
            Q_EMIT progressed(tile);
            msleep(TileMs);
        }
    }

private:
    std::atomic<bool> m_stop = false;
};

void workInThread(QWidget *page, SignalLog &log)
{
    FramelessProcessDialog *dialog = createDialog(
        QStringLiteral("Import"), QStringLiteral("Reading points in a thread..."), page->window());
    log.watch(dialog, QStringLiteral("worker"));
    auto *worker = new Worker(dialog);
    // Values are on their way when the user cancels. They would show the dialog again.
    QObject::connect(worker, &Worker::progressed, dialog, [dialog](int tile) {
        if (!dialog->wasCanceled()) {
            dialog->setValue(tile);
        }
    });
    QObject::connect(dialog, &FramelessProcessDialog::canceled, worker, &Worker::stop);
    // The values that the worker had posted before it stopped are taken by then.
    QObject::connect(worker, &QThread::finished, dialog, [dialog, &log] {
        log.note(QStringLiteral("worker"), QStringLiteral("finished"),
                 dialog->wasCanceled() ? QStringLiteral("canceled") : QStringLiteral("all points"));
        dialog->deleteLater();
    });
    worker->start();
}

/** A dialog with something special, under the name of its button and its picture. */
struct Special
{
    QString name;
    QString label;
    FramelessProcessDialog *(*create)(QWidget *parent);
};

FramelessProcessDialog *createUsual(QWidget *parent)
{
    FramelessProcessDialog *dialog =
        createDialog(QStringLiteral("Export"), QStringLiteral("Writing tiles..."), parent);
    dialog->resize(WideSize.expandedTo(dialog->sizeHint()));
    return dialog;
}

FramelessProcessDialog *createSmall(QWidget *parent)
{
    return createDialog(QStringLiteral("Export"), QStringLiteral("Writing tiles..."), parent);
}

FramelessProcessDialog *createLong(QWidget *parent)
{
    return createDialog(
        QStringLiteral("Registration"),
        QStringLiteral(
            "Matching the overlap of north_03.las and north_04.las: the cloud is thinned "
            "to one point per decimetre first, then moved in up to two hundred rounds, "
            "and the result is written beside the first file."),
        parent);
}

FramelessProcessDialog *createLongWords(QWidget *parent)
{
    FramelessProcessDialog *dialog = createDialog(
        QStringLiteral("Punktwolkenregistrierung"),
        QStringLiteral("Koordinatensystemtransformation der Geländeoberflächenmodellkacheln "
                       "(Höhenbezugssystemumrechnungstabelle) ..."),
        parent);
    dialog->setCancelButtonText(QStringLiteral("Koordinatentransformation abbrechen"));
    return dialog;
}

FramelessProcessDialog *createUnstoppable(QWidget *parent)
{
    FramelessProcessDialog *dialog =
        createDialog(QStringLiteral("Save"), QStringLiteral("Closing the project file..."), parent);
    dialog->setCancelButtonText(QString());
    return dialog;
}

const QVector<Special> &specials()
{
    static const QVector<Special> all = {
        {QStringLiteral("usual"), QStringLiteral("Wide"), createUsual},
        {QStringLiteral("small"), QStringLiteral("At its size hint"), createSmall},
        {QStringLiteral("long"), QStringLiteral("Long label"), createLong},
        {QStringLiteral("longwords"), QStringLiteral("Long words"), createLongWords},
        {QStringLiteral("unstoppable"), QStringLiteral("No cancel button"), createUnstoppable}};
    return all;
}

void showPartDone(FramelessProcessDialog *dialog)
{
    const QSize size = dialog->size();
    dialog->show();
    dialog->resize(size.expandedTo(dialog->sizeHint()));
    dialog->setValue(Tiles * ShotValue / 100);
}

QPushButton *specialButton(const Special &special, QWidget *page, SignalLog &log)
{
    return button(special.label, [special, page, &log] {
        FramelessProcessDialog *dialog = special.create(page->window());
        log.watch(dialog, special.label);
        QObject::connect(dialog, &FramelessProcessDialog::canceled, dialog, &QObject::deleteLater);
        showPartDone(dialog);
        if (!dialog->findChild<QPushButton *>()) {
            // Nothing on it ends it; it is there to be looked at.
            dialog->setWindowFlag(Qt::FramelessWindowHint, false);
            dialog->show();
        }
    });
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    QVBoxLayout *layout = contentLayout(content);
    addSection(layout, QStringLiteral("An operation of four seconds"),
               QStringLiteral("The dialog appears when the operation is known to take long. Cancel "
                              "it with the button; Escape does nothing."))
        ->addWidget(row({button(QStringLiteral("In the GUI thread"),
                                [content, &log] { workInGuiThread(content, log); }),
                         button(QStringLiteral("In a worker thread"),
                                [content, &log] { workInThread(content, log); })}));
    QVector<QWidget *> buttons;
    for (const Special &special : specials()) {
        buttons.append(specialButton(special, content, log));
    }
    addSection(layout, QStringLiteral("Labels and sizes"),
               QStringLiteral("Shown at 37 % until they are canceled."))
        ->addWidget(grid(3, buttons));
    return content;
}

} // namespace

Page progressPage()
{
    Page page(QStringLiteral("progress"), QStringLiteral("Progress dialog"),
              QStringLiteral("FramelessProcessDialog shows how far a long operation is, as "
                             "QProgressDialog does, with a title and a percentage of its own."),
              createContent);
    for (const Special &special : specials()) {
        page.shot(special.name, [special] {
            FramelessProcessDialog *dialog = special.create(nullptr);
            showPartDone(dialog);
            return dialog;
        });
    }
    return page;
}

} // namespace gallery

#include "progresspage.moc"
