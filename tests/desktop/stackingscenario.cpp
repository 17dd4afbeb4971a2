#include "stackingscenario.h"

#include "reporter.h"

#include <lmwidgets/framelessdialog.h>
#include <lmwidgets/framelessmessagebox.h>
#include <lmwidgets/vantoroframelessdialog.h>

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QEvent>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <functional>

using LM::Widgets::FramelessDialog;
using LM::Widgets::FramelessMessageBox;
using LM::Widgets::VantoroFramelessDialog;

namespace {

constexpr QRect MainGeometry(60, 60, 360, 260);
constexpr QPoint FirstPosition(300, 150);
constexpr QPoint Step(80, 90);
constexpr QSize DialogSize(420, 300);
constexpr int StackHeight = 3;

QLineEdit *makeEdit(const QString &name)
{
    auto *edit = new QLineEdit;
    edit->setObjectName(name);
    Reporter::follow(edit);
    return edit;
}

QPushButton *makeButton(const QString &name, std::function<void()> clicked)
{
    auto *button = new QPushButton(name);
    button->setObjectName(name);
    button->setAutoDefault(false);
    Reporter::follow(button);
    QObject::connect(button, &QPushButton::clicked, button, std::move(clicked));
    return button;
}

void openStacked(QWidget *parent, int level)
{
    const QPointer<FramelessDialog> dialog(new FramelessDialog(parent));
    const QString name = QStringLiteral("dialog%1").arg(level);
    dialog->setObjectName(name);
    auto *layout = new QVBoxLayout;
    layout->addWidget(makeEdit(name + QStringLiteral("-edit")));
    if (level < StackHeight) {
        layout->addWidget(makeButton(name + QStringLiteral("-more"),
                                     [dialog, level] { openStacked(dialog, level + 1); }));
    }
    dialog->setLayout(layout);
    dialog->move(FirstPosition + (level - 1) * Step);
    dialog->resize(DialogSize);
    Reporter::follow(dialog.data());
    Reporter::say(QStringLiteral("exec %1").arg(dialog->exec()));
    // The window below may be gone, and the dialog with it.
    delete dialog.data();
}

/** Names the stock dialogs by their classes, and their buttons by their texts. */
class StockNames : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *dialog = qobject_cast<QDialog *>(watched);
        if (event->type() != QEvent::Show || !dialog ||
            !QByteArray(dialog->metaObject()->className()).startsWith('Q') ||
            dialog->objectName() == QLatin1String("hostdialog")) {
            return false;
        }
        dialog->setObjectName(QString::fromLatin1(dialog->metaObject()->className()));
        Reporter::follow(dialog);
        const QList<QPushButton *> buttons = dialog->findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            button->setObjectName(
                QLatin1String("stock-") +
                button->text().remove(QLatin1Char('&')).section(QLatin1Char(' '), 0, 0));
        }
        return false;
    }
};

/** A dialog that a host derives from Qt's own class. */
class HostDialog : public QDialog
{
public:
    explicit HostDialog(QWidget *parent) : QDialog(parent)
    {
        setObjectName(QStringLiteral("hostdialog"));
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(makeEdit(QStringLiteral("host-edit")));
        Reporter::follow(this);
    }
};

QLayout *stockButtons(QWidget *dialog)
{
    auto *layout = new QVBoxLayout;
    layout->addWidget(makeEdit(QStringLiteral("edit")));
    layout->addWidget(makeButton(QStringLiteral("ask"), [dialog] {
        QMessageBox::question(dialog, QStringLiteral("Ask"), QStringLiteral("Go on?"));
    }));
    layout->addWidget(makeButton(QStringLiteral("colour"),
                                 [dialog] { QColorDialog::getColor(Qt::red, dialog); }));
    layout->addWidget(makeButton(QStringLiteral("file"), [dialog] {
        QFileDialog::getOpenFileName(dialog, QString(), QString(), QString(), nullptr,
                                     QFileDialog::DontUseNativeDialog);
    }));
    layout->addWidget(makeButton(QStringLiteral("number"), [dialog] {
        QInputDialog::getInt(dialog, QStringLiteral("Number"), QStringLiteral("How many?"));
    }));
    layout->addWidget(makeButton(QStringLiteral("own"), [dialog] { HostDialog(dialog).exec(); }));
    layout->addWidget(makeButton(QStringLiteral("modeless"), [dialog] {
        auto *own = new HostDialog(dialog);
        own->setAttribute(Qt::WA_DeleteOnClose);
        own->show();
    }));
    layout->addWidget(makeButton(QStringLiteral("orphan"), [] {
        QMessageBox::question(nullptr, QStringLiteral("Ask"), QStringLiteral("Go on?"));
    }));
    // A control in a page of the content asks, and not the dialog itself.
    auto *page = new QWidget;
    auto *pageLayout = new QVBoxLayout(page);
    pageLayout->setContentsMargins(0, 0, 0, 0);
    pageLayout->addWidget(makeButton(QStringLiteral("inner"), [page] {
        QMessageBox::question(page, QStringLiteral("Ask"), QStringLiteral("Go on?"));
    }));
    layout->addWidget(page);
    return layout;
}

template <typename Frame>
void openStockHost()
{
    qApp->installEventFilter(new StockNames(qApp));
    auto *dialog = new Frame;
    dialog->setObjectName(QStringLiteral("dialog"));
    dialog->setLayout(stockButtons(dialog));
    dialog->move(200, 100);
    dialog->resize(700, 600);
    dialog->show();
}

} // namespace

void runStack()
{
    auto *window = new QWidget;
    window->setObjectName(QStringLiteral("main"));
    auto *layout = new QVBoxLayout(window);
    layout->addWidget(makeEdit(QStringLiteral("main-edit")));
    layout->addWidget(
        makeButton(QStringLiteral("main-button"), [window] { openStacked(window, 1); }));
    layout->addStretch();
    window->setGeometry(MainGeometry);
    window->show();
}

void runStock()
{
    openStockHost<FramelessDialog>();
}

void runStockOverSecondFrame()
{
    openStockHost<VantoroFramelessDialog>();
}

void runStockOverBox()
{
    qApp->installEventFilter(new StockNames(qApp));
    QTimer::singleShot(0, qApp, [] {
        FramelessMessageBox box(QMessageBox::Question, QStringLiteral("Layers"),
                                QStringLiteral("Remove the layer?"), QMessageBox::Ok);
        auto *check =
            new QCheckBox(QStringLiteral("A text that reaches beyond the middle of the box"));
        check->setObjectName(QStringLiteral("ask"));
        box.setCheckBox(check);
        QObject::connect(check, &QCheckBox::clicked, &box, [&box] {
            QMessageBox::question(&box, QStringLiteral("Ask"), QStringLiteral("Go on?"));
        });
        box.exec();
    });
}
