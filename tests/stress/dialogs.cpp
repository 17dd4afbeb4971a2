#include "dialogs.h"

#include "endurance.h"

#include <lmwidgets/lmwidgets.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <QVBoxLayout>

#include <functional>

using namespace LM::Widgets;

namespace {

using Maker = std::function<QDialog *(QWidget *)>;

struct Kind
{
    const char *name;
    Maker make;
};

enum Ending { ByButton, ByEscape, ByClosing, ByDeleting, ByDeleteOnClose, ByExec, EndingCount };

template <typename Frame>
void addContent(Frame *dialog)
{
    auto *layout = new QVBoxLayout;
    layout->addWidget(new QLineEdit(QStringLiteral("Ground")));
    auto *slider = new TalvoDoubleSlider;
    layout->addWidget(slider);
    layout->addWidget(new ToggleSwitch);
    layout->addWidget(new EditComboBox);
    layout->addWidget(new CustomSpinBox);
    layout->addWidget(new CollapsibleGroupBox);
    dialog->setLayout(layout);
    dialog->setWindowTitle(QStringLiteral("Classes"));
}

QDialog *makeFrame(QWidget *parent)
{
    auto *dialog = new FramelessDialog(parent);
    addContent(dialog);
    dialog->setMinButtonVisible(true);
    dialog->setMaxButtonVisible(true);
    dialog->setDialogResizable(true);
    return dialog;
}

QDialog *makeSecondFrame(QWidget *parent)
{
    auto *dialog = new VantoroFramelessDialog(parent);
    addContent(dialog);
    return dialog;
}

QDialog *makeBox(QWidget *parent)
{
    auto *box = new FramelessMessageBox(QMessageBox::Question, QStringLiteral("Layers"),
                                        QStringLiteral("Remove the layer?"),
                                        QMessageBox::Ok | QMessageBox::Cancel, parent);
    box->setInformativeText(QStringLiteral("It holds 14 tiles."));
    box->setDetailedText(QStringLiteral("Tile 1\nTile 2"));
    box->setCheckBox(new QCheckBox(QStringLiteral("Do not ask again")));
    return box;
}

QDialog *makeFileDialog(QWidget *parent)
{
    return new FramelessFileDialog(parent, QStringLiteral("Open"), QDir::currentPath(),
                                   QStringLiteral("Point clouds (*.las);;All files (*)"));
}

QDialog *makeProgress(QWidget *parent)
{
    auto *dialog = new FramelessProcessDialog(QStringLiteral("Reading"), QStringLiteral("Stop"), 0,
                                              10, parent);
    dialog->setValue(3);
    return dialog;
}

QDialog *makeValueDialog(QWidget *parent)
{
    auto *dialog = new TalvoDoubleInputDlg(parent);
    QString suffix = QStringLiteral(" m");
    dialog->setParamData(QStringLiteral("Distance"), 0, 100, 2, 1.5, 0.1, suffix);
    return dialog;
}

QDialog *makeWaiting(QWidget *parent)
{
    auto *box = new FramelessWaitingDialog(parent);
    box->showCancelButton();
    box->setWaitdialogDisplay(QStringLiteral("Reading 14 tiles..."));
    return box;
}

QDialog *makeBalloon(QWidget *parent)
{
    auto *balloon = new TalvoTriangleDlg(parent);
    balloon->resize(200, 80);
    balloon->setTriabgleData(TalvoTriangleDlg::Top, 92, 10, 16);
    auto *layout = new QVBoxLayout(balloon);
    layout->addWidget(new QLabel(QStringLiteral("Height above ground")));
    return balloon;
}

const QVector<Kind> &kinds()
{
    static const QVector<Kind> all = {
        {"FramelessDialog", makeFrame},           {"VantoroFramelessDialog", makeSecondFrame},
        {"FramelessMessageBox", makeBox},         {"FramelessFileDialog", makeFileDialog},
        {"FramelessProcessDialog", makeProgress}, {"TalvoDoubleInputDlg", makeValueDialog},
        {"FramelessWaitingDialog", makeWaiting},  {"TalvoTriangleDlg", makeBalloon}};
    return all;
}

/** The class's own show(), which is no virtual function. */
void showIt(QDialog *dialog)
{
    QMetaObject::invokeMethod(dialog, "show");
}

bool isShown(const QPointer<QDialog> &dialog)
{
    return dialog && waitUntilShown(dialog);
}

/** The first button that ends the dialog, if it has one. */
void pressButton(QDialog *dialog)
{
    const QPointer<QDialog> guard(dialog);
    const QList<QPushButton *> buttons = dialog->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (guard && dialog->isVisible() && button->isVisible() && button->isEnabled()) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
}

void runModal(QDialog *dialog)
{
    const QPointer<QDialog> guard(dialog);
    QTimer::singleShot(0, dialog, [guard] {
        if (isShown(guard)) {
            guard->reject();
        }
    });
    dialog->exec();
}

void endDialog(const QPointer<QDialog> &dialog, int ending)
{
    switch (ending) {
    case ByButton:
        pressButton(dialog);
        break;
    case ByEscape:
        QTest::keyClick(dialog.data(), Qt::Key_Escape);
        break;
    case ByClosing:
        dialog->close();
        break;
    case ByDeleteOnClose:
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->close();
        break;
    default:
        break;
    }
}

void openAndEnd(const Maker &make, QWidget *parent, int round)
{
    const int ending = round % EndingCount;
    // With and without a parent, for each of the endings in turn.
    const QPointer<QDialog> dialog(make(round / EndingCount % 2 == 0 ? parent : nullptr));
    if (ending == ByExec) {
        runModal(dialog);
    } else {
        showIt(dialog);
        if (!isShown(dialog)) {
            qWarning("a dialog does not appear");
        } else {
            endDialog(dialog, ending);
        }
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    delete dialog.data();
}

void askByStaticFunction(QWidget *parent)
{
    QTimer::singleShot(0, qApp, [] {
        const QPointer<QDialog> box(qobject_cast<QDialog *>(QApplication::activeModalWidget()));
        if (isShown(box)) {
            pressButton(box);
        }
    });
    FramelessMessageBox::question(parent, QStringLiteral("Layers"),
                                  QStringLiteral("Remove the layer?"),
                                  QMessageBox::Yes | QMessageBox::No, QMessageBox::NoButton);
}

void chooseByStaticFunction()
{
    // The dialogs of this function stay with the parent that the host passes.
    QWidget parent;
    QTimer::singleShot(0, qApp, [] {
        const QPointer<QDialog> dialog(qobject_cast<QDialog *>(QApplication::activeModalWidget()));
        if (isShown(dialog)) {
            dialog->close();
        }
    });
    FramelessFileDialog::getOpenFileUrl(&parent, QString(),
                                        QUrl::fromLocalFile(QDir::currentPath()));
}

void showSplash(int round)
{
    QPixmap picture(400, 200);
    picture.fill(Qt::darkGray);
    TalvoSplashScreen splash(QStringLiteral("1.2"), picture);
    splash.show();
    for (int beat = 0; beat <= round % 3; ++beat) {
        splash.beat();
    }
    splash.close();
}

void waitForWorker(QWidget *parent)
{
    FramelessWaitingDialog *box = FramelessWaitingDialog::instance(parent);
    box->startWaiting(QStringLiteral("Reading 14 tiles..."));
    if (waitUntilShown(box)) {
        box->jumpToNextFrame();
    }
    box->stopWaiting();
    delete box;
}

} // namespace

bool stressDialogs(int rounds)
{
    QWidget window;
    window.resize(640, 480);
    window.show();
    bool good = waitUntilShown(&window);
    const Duration duration{rounds, 0};
    const Allowance allowance;
    for (const Kind &kind : kinds()) {
        good = endure(QLatin1String(kind.name), duration, allowance,
                      [&](int round) { openAndEnd(kind.make, &window, round); }) &&
               good;
    }
    good = endure(QStringLiteral("FramelessMessageBox::question"), duration, allowance,
                  [&](int) { askByStaticFunction(&window); }) &&
           good;
    good = endure(QStringLiteral("FramelessFileDialog::getOpenFileUrl"), duration, allowance,
                  [](int) { chooseByStaticFunction(); }) &&
           good;
    good = endure(QStringLiteral("FramelessWaitingDialog::instance"), duration, allowance,
                  [&](int) { waitForWorker(&window); }) &&
           good;
    return endure(QStringLiteral("TalvoSplashScreen"), duration, allowance, showSplash) && good;
}

QVector<QDialog *> makeLiveDialogs(int count, QWidget *parent)
{
    const QVector<Maker> makers = {makeFrame,      makeSecondFrame, makeBox,
                                   makeFileDialog, makeProgress,    makeValueDialog};
    QVector<QDialog *> dialogs;
    for (int i = 0; i < count; ++i) {
        QDialog *dialog = makers.at(i % makers.size())(parent);
        showIt(dialog);
        dialogs.append(dialog);
    }
    return dialogs;
}
