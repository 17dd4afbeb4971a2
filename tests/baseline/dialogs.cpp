#include "subject.h"

#include <lmwidgets/framelessprocessdialog.h>
#include <lmwidgets/framelesswaitingdialog.h>
#include <lmwidgets/talvodoubleinputdlg.h>
#include <lmwidgets/talvosplashscreen.h>
#include <lmwidgets/talvotriangledlg.h>

#include <QLabel>
#include <QLinearGradient>
#include <QMovie>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

namespace baseline {

using LM::Widgets::FramelessProcessDialog;
using LM::Widgets::FramelessWaitingDialog;

namespace {

constexpr int Steps = 400;
constexpr int NeverShown = 1000000; // ms
constexpr QSize BalloonSize(180, 80);
constexpr int PointerHeight = 10;
constexpr int PointerWidth = 16;
constexpr QSize SplashSize(680, 469);
const QString LongText =
    QStringLiteral("Matching the overlap of north_03.las and north_04.las: the cloud is thinned to "
                   "one point per decimetre first, then moved in up to two hundred rounds.");
const QString LongWords =
    QStringLiteral("Koordinatensystemtransformation der Höhenbezugssystemumrechnungstabelle");

Arrange hoverButton()
{
    return [](QWidget *shown) {
        hover(shown->findChild<QPushButton *>());
        return shown;
    };
}

/** A dialog at @p value of 400. */
Create process(const QString &text, const QString &cancel, int value)
{
    return [=] {
        auto *dialog = new FramelessProcessDialog(text, cancel, 0, Steps);
        dialog->setWindowTitle(QStringLiteral("Export"));
        dialog->setMinimumDuration(NeverShown);
        dialog->setAutoReset(false);
        dialog->setAutoClose(false);
        dialog->setValue(value);
        dialog->resize(dialog->sizeHint());
        return dialog;
    };
}

Subject processDialogs()
{
    const QString text = QStringLiteral("Writing tiles...");
    const QString cancel = QStringLiteral("Cancel");
    const Create part = process(text, cancel, Steps * 37 / 100);
    return {QStringLiteral("FramelessProcessDialog"),
            {{QStringLiteral("part done"), part, nullptr},
             {QStringLiteral("nothing done"), process(text, cancel, 0), nullptr},
             {QStringLiteral("all done"), process(text, cancel, Steps), nullptr},
             {QStringLiteral("cancel hovered"), part, hoverButton()},
             {QStringLiteral("cancel focused"), part,
              [](QWidget *shown) {
                  focus(shown->findChild<QPushButton *>());
                  return shown;
              }},
             {QStringLiteral("no cancel button"), process(text, QString(), Steps / 2), nullptr},
             {QStringLiteral("long text"), process(LongText, cancel, Steps / 2), nullptr},
             {QStringLiteral("long words"),
              process(LongWords, QStringLiteral("Koordinatentransformation abbrechen"), Steps / 2),
              nullptr},
             {QStringLiteral("disabled"), disabled(part), nullptr}}};
}

/** A waiting box; its animation stands still at the first frame. */
Create waiting(const QString &text, bool canBeStopped)
{
    return [text, canBeStopped] {
        auto *box = new FramelessWaitingDialog;
        if (canBeStopped) {
            box->showCancelButton();
        }
        box->startWaiting(text);
        for (QLabel *label : box->findChildren<QLabel *>()) {
            if (QMovie *movie = label->movie()) {
                movie->stop();
                movie->jumpToFrame(0);
            }
        }
        return box;
    };
}

Subject waitingDialogs()
{
    const QString text = QStringLiteral("Reading 14 tiles...");
    return {QStringLiteral("FramelessWaitingDialog"),
            {{QStringLiteral("normal"), waiting(text, false), nullptr},
             {QStringLiteral("can be stopped"), waiting(text, true), nullptr},
             {QStringLiteral("stop hovered"), waiting(text, true), hoverButton()},
             {QStringLiteral("long text"), waiting(LongText, true), nullptr},
             {QStringLiteral("long words"), waiting(LongWords, true), nullptr},
             {QStringLiteral("no text"), waiting(QString(), true), nullptr}}};
}

TalvoDoubleInputDlg *inputDialog(const QString &title, const QString &label, QString unit)
{
    auto *dialog = new TalvoDoubleInputDlg;
    dialog->setWindowTitle(title);
    dialog->setParamData(label, 0.05, 25.0, 2, 1.5, 0.05, unit);
    dialog->resize(dialog->sizeHint());
    return dialog;
}

Subject inputDialogs()
{
    const Create create = [] {
        return inputDialog(QStringLiteral("Outlier removal"), QStringLiteral("Search radius"),
                           QStringLiteral(" m"));
    };
    return {QStringLiteral("TalvoDoubleInputDlg"),
            {{QStringLiteral("normal"), create, nullptr},
             {QStringLiteral("long texts"),
              [] {
                  return inputDialog(
                      QStringLiteral("Mindestpunktdichte der Bodenpunktklassifizierung"),
                      QStringLiteral("Mindestpunktdichte je Rasterzelle"),
                      QStringLiteral(" points per square metre"));
              },
              nullptr},
             {QStringLiteral("disabled"), disabled(create), nullptr}}};
}

QPixmap splashPicture()
{
    QPixmap pixmap(SplashSize);
    QLinearGradient gradient(0, 0, 0, SplashSize.height());
    gradient.setColorAt(0, QColor(0x2B, 0x2B, 0x2B));
    gradient.setColorAt(1, QColor(0x14, 0x17, 0x1C));
    QPainter painter(&pixmap);
    painter.fillRect(pixmap.rect(), gradient);
    return pixmap;
}

Subject splashScreens()
{
    const auto create = [](const QString &version, int beats) {
        return [version, beats] {
            auto *splash = new TalvoSplashScreen(version, splashPicture());
            for (int beat = 0; beat < beats; ++beat) {
                splash->beat();
            }
            return splash;
        };
    };
    const QString version = QStringLiteral("1.2.3");
    return {QStringLiteral("TalvoSplashScreen"),
            {{QStringLiteral("first"), create(version, 0), nullptr},
             {QStringLiteral("one beat"), create(version, 1), nullptr}}};
}

TalvoTriangleDlg *balloon(TalvoTriangleDlg::TriangleDirection direction)
{
    auto *balloon = new TalvoTriangleDlg;
    balloon->resize(BalloonSize);
    const bool upright =
        direction == TalvoTriangleDlg::Left || direction == TalvoTriangleDlg::Right;
    const int edge = upright ? BalloonSize.height() : BalloonSize.width();
    balloon->setTriabgleData(direction, (edge - PointerWidth) / 2, PointerHeight, PointerWidth);
    auto *label = new QLabel(QStringLiteral("1,240 points"));
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(QStringLiteral("color:#F2F2F2;background-color:transparent;"));
    (new QVBoxLayout(balloon))->addWidget(label);
    return balloon;
}

Subject balloons()
{
    Subject subject{QStringLiteral("TalvoTriangleDlg"), {}};
    const QVector<QPair<QString, TalvoTriangleDlg::TriangleDirection>> directions = {
        {QStringLiteral("left"), TalvoTriangleDlg::Left},
        {QStringLiteral("right"), TalvoTriangleDlg::Right},
        {QStringLiteral("top"), TalvoTriangleDlg::Top},
        {QStringLiteral("bottom"), TalvoTriangleDlg::Bottom}};
    for (const auto &each : directions) {
        const auto direction = each.second;
        subject.states.append({each.first, [direction] { return balloon(direction); }, nullptr});
    }
    subject.states.append({QStringLiteral("colours of the host"),
                           [] {
                               TalvoTriangleDlg *dialog = balloon(TalvoTriangleDlg::Bottom);
                               dialog->setDefaultBackgroundColor(QColor(0, 90, 160));
                               dialog->setDefaultBorderColor(Qt::white);
                               return dialog;
                           },
                           nullptr});
    return subject;
}

} // namespace

QVector<Subject> dialogSubjects()
{
    return {processDialogs(), waitingDialogs(), inputDialogs(), splashScreens(), balloons()};
}

} // namespace baseline
