#include "page.h"
#include "pageparts.h"
#include "signallog.h"

#include <lmwidgets/roundcheckbox.h>
#include <lmwidgets/toggleswitch.h>

#include <QCheckBox>
#include <QFormLayout>
#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

namespace gallery {

using LM::Widgets::RoundCheckBox;
using LM::Widgets::ToggleSwitch;

namespace {

constexpr int PanelPadding = 16;
constexpr int PanelWidth = 420;

/** The text of a switch is white in every theme: it needs a dark ground. */
QFrame *darkPanel()
{
    auto *panel = new QFrame;
    panel->setObjectName(QStringLiteral("switchPanel"));
    panel->setStyleSheet(QStringLiteral("#switchPanel{background-color:#2B2B2B;border:1px solid "
                                        "#585858;} #switchPanel QLabel{color:#F2F2F2;}"));
    panel->setMinimumWidth(PanelWidth);
    panel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return panel;
}

ToggleSwitch *makeSwitch(const QString &text, bool on)
{
    auto *toggle = new ToggleSwitch;
    toggle->setText(text);
    toggle->setChecked(on);
    return toggle;
}

RoundCheckBox *makeBox(const QString &name, bool on)
{
    auto *box = new RoundCheckBox;
    box->setAccessibleName(name);
    box->setChecked(on);
    return box;
}

/** A settings list: what is drawn of a point cloud. */
QFrame *makeSettings(SignalLog *log)
{
    QFrame *panel = darkPanel();
    auto *list = new QVBoxLayout(panel);
    list->setContentsMargins(PanelPadding, PanelPadding, PanelPadding, PanelPadding);
    const QVector<QPair<QString, bool>> settings = {
        {QStringLiteral("Ground points"), true},
        {QStringLiteral("Vegetation"), false},
        {QStringLiteral("Buildings, roofs and everything else that people have built"), true},
        {QStringLiteral("Noise"), false}};
    list->setSizeConstraint(QLayout::SetMinimumSize);
    for (const auto &setting : settings) {
        ToggleSwitch *toggle = makeSwitch(setting.first, setting.second);
        list->addWidget(toggle);
        if (log) {
            log->watch(toggle, setting.first);
        }
    }
    return panel;
}

QFrame *makeLocks(SignalLog *log)
{
    QFrame *panel = darkPanel();
    auto *form = new QFormLayout(panel);
    form->setContentsMargins(PanelPadding, PanelPadding, PanelPadding, PanelPadding);
    const QVector<QPair<QString, bool>> layers = {{QStringLiteral("Lock the layer Roads"), true},
                                                  {QStringLiteral("Lock the layer Rails"), false}};
    for (const auto &layer : layers) {
        RoundCheckBox *box = makeBox(layer.first, layer.second);
        form->addRow(new QLabel(layer.first), box);
        if (log) {
            log->watch(box, layer.first);
        }
    }
    return panel;
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    QVBoxLayout *layout = contentLayout(content);

    QVBoxLayout *body = addSection(
        layout, QStringLiteral("What is drawn"),
        QStringLiteral("Click the switch, not its text: the state changes at once and the knob "
                       "follows. Click twice quickly and it turns round where it is."));
    QFrame *settings = makeSettings(&log);
    body->addWidget(settings);
    body->addWidget(row({check(QStringLiteral("Enabled"), true,
                               [settings](bool enabled) { settings->setEnabled(enabled); })}));

    body = addSection(layout, QStringLiteral("Locks"),
                      QStringLiteral("Checked is left. Any mouse button that is released on the "
                                     "box turns it over."));
    QFrame *locks = makeLocks(&log);
    body->addWidget(locks);
    body->addWidget(row({check(QStringLiteral("Enabled"), true,
                               [locks](bool enabled) { locks->setEnabled(enabled); })}));
    return content;
}

} // namespace

Page switchesPage()
{
    return Page(QStringLiteral("switches"), QStringLiteral("Switches"),
                QStringLiteral("ToggleSwitch with a sliding knob and a text, and RoundCheckBox "
                               "whose knob jumps."),
                createContent);
}

} // namespace gallery
