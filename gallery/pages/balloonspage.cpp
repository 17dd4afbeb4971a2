#include "page.h"
#include "pageparts.h"
#include "signallog.h"

#include <lmwidgets/talvodoubleinputdlg.h>
#include <lmwidgets/talvotriangledlg.h>

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace gallery {

namespace {

using Direction = TalvoTriangleDlg::TriangleDirection;

constexpr QSize BalloonSize(220, 84);
constexpr int PointerHeight = 10;
constexpr int PointerWidth = 16;
constexpr int TextMargin = 12;

/** A balloon with a text beside its pointer, which sits in the middle of its edge. */
TalvoTriangleDlg *makeBalloon(Direction direction, const QString &text, QWidget *parent)
{
    auto *balloon = new TalvoTriangleDlg(parent);
    balloon->resize(BalloonSize);
    const bool upright =
        direction == TalvoTriangleDlg::Left || direction == TalvoTriangleDlg::Right;
    const int edge = upright ? BalloonSize.height() : BalloonSize.width();
    balloon->setTriabgleData(direction, (edge - PointerWidth) / 2, PointerHeight, PointerWidth);

    auto *layout = new QVBoxLayout(balloon);
    const auto margin = [direction](Direction side) {
        return TextMargin + (direction == side ? PointerHeight : 0);
    };
    layout->setContentsMargins(margin(TalvoTriangleDlg::Left), margin(TalvoTriangleDlg::Top),
                               margin(TalvoTriangleDlg::Right), margin(TalvoTriangleDlg::Bottom));
    auto *label = new QLabel(text);
    label->setWordWrap(true);
    label->setStyleSheet(QStringLiteral("color:#F2F2F2;background-color:transparent;"));
    layout->addWidget(label);
    return balloon;
}

/** Where @p balloon has to be for its tip to touch the middle of the edge of @p control. */
QPoint placeAt(const QWidget *control, Direction direction)
{
    const QSize size = BalloonSize;
    const QPoint origin = control->mapToGlobal(QPoint());
    const QPoint middle = origin + QPoint(control->width() / 2, control->height() / 2);
    switch (direction) {
    case TalvoTriangleDlg::Left:
        return {origin.x() + control->width(), middle.y() - size.height() / 2};
    case TalvoTriangleDlg::Right:
        return {origin.x() - size.width(), middle.y() - size.height() / 2};
    case TalvoTriangleDlg::Top:
        return {middle.x() - size.width() / 2, origin.y() + control->height()};
    case TalvoTriangleDlg::Bottom:
        return {middle.x() - size.width() / 2, origin.y() - size.height()};
    }
    return origin;
}

struct Side
{
    const char *button;
    const char *text;
    Direction direction;
};

const Side Sides[] = {
    {"Balloon at the right", "The pointer is at the left edge.", TalvoTriangleDlg::Left},
    {"Balloon at the left", "The pointer is at the right edge.", TalvoTriangleDlg::Right},
    {"Balloon below", "The pointer is at the top edge.", TalvoTriangleDlg::Top},
    {"Balloon above", "The pointer is at the bottom edge.", TalvoTriangleDlg::Bottom},
};

/** A button that opens its balloon, and closes it again. */
QPushButton *balloonButton(const Side &side)
{
    const Direction direction = side.direction;
    auto *opener = new QPushButton(QString::fromLatin1(side.button));
    opener->setAutoDefault(false);
    opener->setCheckable(true);
    TalvoTriangleDlg *balloon = makeBalloon(direction, QString::fromLatin1(side.text), opener);
    QObject::connect(opener, &QPushButton::toggled, balloon, [opener, balloon, direction](bool on) {
        balloon->move(placeAt(opener, direction));
        balloon->setVisible(on);
    });
    QObject::connect(balloon, &QDialog::finished, opener, [opener] { opener->setChecked(false); });
    return opener;
}

void addBalloons(QVBoxLayout *layout)
{
    QVBoxLayout *body =
        addSection(layout, QStringLiteral("Balloons"),
                   QStringLiteral("Each points at the button that opens it; Escape closes it. The "
                                  "outline is drawn on some of its edges only."));
    QVector<QWidget *> openers;
    for (const Side &side : Sides) {
        openers.append(balloonButton(side));
    }
    body->addWidget(grid(2, openers));
}

void setDistance(TalvoDoubleInputDlg *dialog, double value)
{
    dialog->setWindowTitle(QStringLiteral("Statistical outlier removal"));
    QString suffix = QStringLiteral(" m");
    dialog->setParamData(QStringLiteral("Search radius"), 0.05, 25.0, 2, value, 0.05, suffix);
}

void askForDistance(QWidget *parent, SignalLog *log, QLabel *result)
{
    TalvoDoubleInputDlg dialog(parent);
    log->watch(&dialog, QStringLiteral("TalvoDoubleInputDlg"));
    setDistance(&dialog, 1.5);
    const bool accepted = dialog.exec() == QDialog::Accepted;
    result->setText(accepted ? QStringLiteral("%1 m").arg(dialog.getValue())
                             : QStringLiteral("cancelled"));
    log->note(QStringLiteral("TalvoDoubleInputDlg"), QStringLiteral("getValue()"),
              QString::number(dialog.getValue()));
}

void addValueDialog(QVBoxLayout *layout, SignalLog &log)
{
    QVBoxLayout *body = addSection(
        layout, QStringLiteral("One number"),
        QStringLiteral("The dialog has its label, range, decimals, step and unit from the host."));
    auto *result = new QLabel(QStringLiteral("not asked yet"));
    QWidget *page = layout->parentWidget();
    SignalLog *signalLog = &log;
    body->addWidget(row(
        {button(QStringLiteral("Ask for a distance"),
                [page, signalLog, result] { askForDistance(page->window(), signalLog, result); }),
         result}));
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    QVBoxLayout *layout = contentLayout(content);
    addValueDialog(layout, log);
    addBalloons(layout);
    return content;
}

std::function<QWidget *()> balloonShot(Direction direction)
{
    return [direction] {
        TalvoTriangleDlg *balloon =
            makeBalloon(direction, QStringLiteral("1,240 points of the layer Ground"), nullptr);
        balloon->show();
        return balloon;
    };
}

QWidget *openValueDialog()
{
    auto *dialog = new TalvoDoubleInputDlg;
    setDistance(dialog, 1.5);
    dialog->show();
    return dialog;
}

QWidget *openLongLabel()
{
    auto *dialog = new TalvoDoubleInputDlg;
    QString suffix = QStringLiteral(" points per square metre");
    dialog->setWindowTitle(QStringLiteral("Mindestpunktdichte der Bodenpunktklassifizierung"));
    dialog->setParamData(QStringLiteral("Mindestpunktdichte je Rasterzelle"), 0.0, 1000.0, 3, 12.5,
                         0.5, suffix);
    // Qt opens a window with up to two thirds of the screen, and that of the pictures is small.
    dialog->resize(dialog->sizeHint());
    dialog->show();
    return dialog;
}

} // namespace

Page balloonsPage()
{
    return Page(QStringLiteral("balloons"), QStringLiteral("Value and balloons"),
                QStringLiteral("TalvoDoubleInputDlg asks for one number; TalvoTriangleDlg is a "
                               "balloon that points at a control."),
                createContent)
        .shot(QStringLiteral("value"), openValueDialog)
        .shot(QStringLiteral("value-long"), openLongLabel)
        .shot(QStringLiteral("left"), balloonShot(TalvoTriangleDlg::Left))
        .shot(QStringLiteral("right"), balloonShot(TalvoTriangleDlg::Right))
        .shot(QStringLiteral("top"), balloonShot(TalvoTriangleDlg::Top))
        .shot(QStringLiteral("bottom"), balloonShot(TalvoTriangleDlg::Bottom));
}

} // namespace gallery
