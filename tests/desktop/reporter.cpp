#include "reporter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QEvent>
#include <QLineEdit>
#include <QRubberBand>
#include <QSocketNotifier>
#include <QTextStream>
#include <QWidget>

#include <unistd.h>

namespace {

QString rectText(const QRect &rect)
{
    return QStringLiteral("%1 %2 %3 %4")
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}

QRect globalRect(const QWidget *widget)
{
    return QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size());
}

QWidget *findWidget(const QString &name)
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (widget->objectName() == name && widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

QString stateText(const QWidget *window)
{
    if (window->isMinimized()) {
        return QStringLiteral("minimized");
    }
    return window->isMaximized() ? QStringLiteral("maximized") : QStringLiteral("normal");
}

} // namespace

Reporter::Reporter(QObject *parent) : QObject(parent)
{
    auto *notifier = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] { readOrders(); });
    connect(qApp, &QApplication::focusChanged, this, [](QWidget *, QWidget *now) {
        say(QLatin1String("focus ") + (now ? now->objectName() : QStringLiteral("-")));
    });
    qApp->installEventFilter(this);
}

void Reporter::say(const QString &line)
{
    QTextStream(stdout) << line << '\n';
}

void Reporter::follow(QLineEdit *edit)
{
    connect(edit, &QLineEdit::textChanged, edit, [edit](const QString &text) {
        say(QStringLiteral("text %1 %2").arg(edit->objectName(), text));
    });
}

void Reporter::follow(QComboBox *box)
{
    connect(box, &QComboBox::currentTextChanged, box, [box](const QString &text) {
        say(QStringLiteral("choice %1 %2").arg(box->objectName(), text));
    });
}

void Reporter::follow(QAbstractButton *button)
{
    connect(button, &QAbstractButton::clicked, button,
            [button] { say(QLatin1String("clicked ") + button->objectName()); });
}

void Reporter::follow(QDialog *dialog)
{
    connect(dialog, &QDialog::finished, dialog, [dialog](int result) {
        say(QStringLiteral("finished %1 %2").arg(dialog->objectName()).arg(result));
    });
}

bool Reporter::eventFilter(QObject *watched, QEvent *event)
{
    auto *window = qobject_cast<QWidget *>(watched);
    if (!window || !window->isWindow()) {
        return false;
    }
    const QString name =
        qobject_cast<QRubberBand *>(window) ? QStringLiteral("band") : window->objectName();
    if (name.isEmpty()) {
        return false;
    }
    switch (event->type()) {
    case QEvent::Paint:
        if (!m_painted.contains(window)) {
            m_painted.insert(window);
            say(QStringLiteral("painted %1 %2").arg(name, rectText(globalRect(window))));
        }
        break;
    case QEvent::Move:
    case QEvent::Resize:
        say(QStringLiteral("geometry %1 %2").arg(name, rectText(globalRect(window))));
        break;
    case QEvent::WindowActivate:
        say(QLatin1String("active ") + name);
        break;
    case QEvent::WindowDeactivate:
        say(QLatin1String("inactive ") + name);
        break;
    case QEvent::WindowStateChange:
        say(QStringLiteral("state %1 %2").arg(name, stateText(window)));
        break;
    case QEvent::Hide:
        m_painted.remove(window);
        say(QLatin1String("hidden ") + name);
        break;
    default:
        break;
    }
    return false;
}

void Reporter::readOrders()
{
    char buffer[4096];
    const ssize_t count = ::read(STDIN_FILENO, buffer, sizeof buffer);
    if (count <= 0) {
        // The driver is gone.
        ::_exit(1);
    }
    const QStringList lines = QString::fromUtf8(buffer, static_cast<int>(count))
                                  .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        obey(line.section(QLatin1Char(' '), 0, 0), line.section(QLatin1Char(' '), 1));
    }
}

void Reporter::obey(const QString &order, const QString &name)
{
    if (order == QLatin1String("quit")) {
        QCoreApplication::quit();
        return;
    }
    QWidget *widget =
        order == QLatin1String("popup") ? QApplication::activePopupWidget() : findWidget(name);
    if (order == QLatin1String("where") || order == QLatin1String("popup")) {
        const QString place = widget ? rectText(globalRect(widget)) : QStringLiteral("none");
        say(order == QLatin1String("popup") ? QStringLiteral("popup %1").arg(place)
                                            : QStringLiteral("where %1 %2").arg(name, place));
    } else if (!widget) {
        say(QStringLiteral("unknown %1 %2").arg(order, name));
    } else if (order == QLatin1String("activate")) {
        widget->activateWindow();
    } else if (order == QLatin1String("move")) {
        widget->move(20, 20);
    } else if (order == QLatin1String("close")) {
        widget->close();
    } else if (order == QLatin1String("delete")) {
        delete widget;
        say(QLatin1String("deleted ") + name);
    }
}
