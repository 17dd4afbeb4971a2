#include "subject.h"

#include <lmwidgets/buttonlefthavegreendots.h>
#include <lmwidgets/customlayertoolbutton.h>
#include <lmwidgets/detailbutton.h>
#include <lmwidgets/groupboxcollapsebutton.h>
#include <lmwidgets/hyperlinklabel.h>
#include <lmwidgets/roundcheckbox.h>
#include <lmwidgets/talvoanimatedicon.h>
#include <lmwidgets/toggleswitch.h>
#include <lmwidgets/vantorotoolbutton.h>

#include <QCoreApplication>
#include <QIcon>
#include <QPushButton>
#include <QtTest>

namespace baseline {

using LM::Widgets::customLayerToolButton;
using LM::Widgets::DetailButton;
using LM::Widgets::HyperlinkLabel;
using LM::Widgets::RoundCheckBox;
using LM::Widgets::ToggleSwitch;

namespace {

constexpr QSize ToolIconSize(20, 20);
constexpr QSize BusyIconSize(32, 32);

Subject dotsButtons()
{
    const auto create = [](const QString &text) {
        auto *button = new ButtonLeftHaveGreenDots;
        button->setText(text);
        return button;
    };
    Subject subject{QStringLiteral("ButtonLeftHaveGreenDots"),
                    buttonStates([create] { return create(QStringLiteral("Run")); })};
    subject.states +=
        {{QStringLiteral("long text"),
          [create] { return create(QStringLiteral("Classify ground points")); }, nullptr},
         {QStringLiteral("with icon"),
          [create] {
              auto *button = create(QStringLiteral("Run"));
              button->setIcon(QIcon(themeImage(QStringLiteral("layer_view"))));
              button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
              return button;
          },
          nullptr},
         {QStringLiteral("red ring"),
          [create] {
              auto *button = create(QStringLiteral("Run"));
              button->setShowDotColor(Qt::red);
              return button;
          },
          nullptr}};
    return subject;
}

Subject layerButtons()
{
    const auto make = [](void (*show)(customLayerToolButton *)) {
        return [show] {
            auto *button = new customLayerToolButton(0, 0);
            show(button);
            return button;
        };
    };
    const auto remove = make([](customLayerToolButton *button) { button->setDelete(); });
    Subject subject{QStringLiteral("customLayerToolButton"), buttonStates(remove)};
    const QVector<QPair<QString, void (*)(customLayerToolButton *)>> looks = {
        {QStringLiteral("edit"),
         [](customLayerToolButton *button) { button->setEditEnable(true); }},
        {QStringLiteral("no edit"),
         [](customLayerToolButton *button) { button->setEditEnable(false); }},
        {QStringLiteral("locked"),
         [](customLayerToolButton *button) { button->setLockState(true); }},
        {QStringLiteral("unlocked"),
         [](customLayerToolButton *button) { button->setLockState(false); }},
        {QStringLiteral("visible"),
         [](customLayerToolButton *button) { button->setVisibleState(true); }},
        {QStringLiteral("hidden"),
         [](customLayerToolButton *button) { button->setVisibleState(false); }},
        {QStringLiteral("colour"),
         [](customLayerToolButton *button) { button->setColor(QColor(230, 70, 60)); }}};
    for (const auto &look : looks) {
        const auto create = make(look.second);
        subject.states += {{look.first, create, nullptr},
                           {look.first + QStringLiteral(" hovered"), create,
                            [](QWidget *shown) { return hover(shown); }},
                           {look.first + QStringLiteral(" disabled"), disabled(create), nullptr}};
    }
    return subject;
}

Subject detailButtons()
{
    const auto create = [](const QString &text) {
        auto *button = new DetailButton;
        if (!text.isEmpty()) {
            button->setText(text);
        }
        return button;
    };
    Subject subject{QStringLiteral("DetailButton"),
                    buttonStates([create] { return create(QString()); })};
    subject.states +=
        {{QStringLiteral("other text"), [create] { return create(QStringLiteral("Why?")); },
          nullptr},
         {QStringLiteral("long text"),
          [create] { return create(QStringLiteral("What has been skipped and for which reason")); },
          nullptr}};
    return subject;
}

Subject collapseButtons()
{
    return {QStringLiteral("GroupBoxCollapseButton"), buttonStates([] {
                auto *button = new GroupBoxCollapseButton;
                button->setIcon(QIcon(themeImage(QStringLiteral("dockwidgeticontop"))));
                return button;
            })};
}

Subject links()
{
    const auto create = [](const QString &text) {
        auto *label = new HyperlinkLabel;
        label->setBaseProperty(false);
        label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
        label->setHyperlinksText(text);
        label->setFileDir(QStringLiteral("file:///data"));
        return label;
    };
    Subject subject{QStringLiteral("HyperlinkLabel"),
                    widgetStates([create] { return create(QStringLiteral("Open the folder")); })};
    subject.states += {
        {QStringLiteral("marked-up text"),
         [create] { return create(QStringLiteral("Roads & <rails>")); }, nullptr},
    };
    return subject;
}

Subject roundBoxes()
{
    const auto create = [](bool checked) {
        return [checked] {
            auto *box = new RoundCheckBox;
            box->setChecked(checked);
            return box;
        };
    };
    Subject subject{QStringLiteral("RoundCheckBox"), widgetStates(create(false))};
    for (State state : widgetStates(create(true))) {
        state.name.prepend(QStringLiteral("checked "));
        subject.states.append(state);
    }
    return subject;
}

Subject switches()
{
    const auto create = [](const QString &text, bool checked) {
        return [text, checked] {
            auto *toggle = new ToggleSwitch;
            toggle->setText(text);
            toggle->setChecked(checked);
            return toggle;
        };
    };
    const QString text = QStringLiteral("Ground points");
    Subject subject{QStringLiteral("ToggleSwitch"), widgetStates(create(text, false))};
    for (State state : widgetStates(create(text, true))) {
        state.name.prepend(QStringLiteral("checked "));
        subject.states.append(state);
    }
    subject.states +=
        {{QStringLiteral("no text"), create(QString(), true), nullptr},
         {QStringLiteral("long text"),
          create(QStringLiteral("Buildings and everything else that people have built"), false),
          nullptr}};
    for (State &state : subject.states) {
        const Arrange arrange = state.arrange;
        state.arrange = [arrange](QWidget *shown) {
            return waitUntilStill(arrange ? arrange(shown) : shown);
        };
    }
    return subject;
}

Subject animatedIcons()
{
    const auto create = [](const QString &path) {
        auto *button = new QPushButton(QStringLiteral("Importing 12 scans"));
        auto *icon = new TalvoAnimatedIcon(path, button);
        button->setIconSize(BusyIconSize);
        // Only somebody who listens makes it move. The first frame is taken, however late this is.
        const auto takeFrame = [button, icon] {
            if (button->icon().isNull()) {
                button->setIcon(icon->icon());
            }
        };
        QObject::connect(icon, &TalvoAnimatedIcon::frameChanged, button, takeFrame);
        icon->connectFrameChanged(button, SLOT(update()));
        if (!path.isEmpty() && !QTest::qWaitFor([button] { return !button->icon().isNull(); })) {
            qWarning("there is no frame");
        }
        return button;
    };
    return {QStringLiteral("TalvoAnimatedIcon"),
            {{QStringLiteral("first frame"),
              [create] {
                  return create(QCoreApplication::applicationDirPath() +
                                QStringLiteral("/theme/qssimage/waiting.gif"));
              },
              nullptr},
             {QStringLiteral("no file"), [create] { return create(QString()); }, nullptr}}};
}

Subject toolButtons()
{
    const auto create = [](const QString &picture) {
        return [picture] {
            auto *button = new VantoroToolButton;
            button->setIconSize(ToolIconSize);
            button->setIconPixmap(picture, picture + QStringLiteral("_hover"),
                                  picture + QStringLiteral("_disabled"));
            return button;
        };
    };
    Subject subject{QStringLiteral("VantoroToolButton"),
                    buttonStates(create(QStringLiteral("layer_edit")))};
    for (const QString &picture : {QStringLiteral("layer_lock"), QStringLiteral("layer_view"),
                                   QStringLiteral("delete_2dvec")}) {
        const auto make = create(picture);
        subject.states += {{picture, make, nullptr},
                           {picture + QStringLiteral(" hovered"), make,
                            [](QWidget *shown) { return hover(shown); }},
                           {picture + QStringLiteral(" disabled"), disabled(make), nullptr}};
    }
    return subject;
}

} // namespace

QVector<Subject> buttonSubjects()
{
    return {dotsButtons(), layerButtons(), detailButtons(), collapseButtons(), links(),
            roundBoxes(),  switches(),     animatedIcons(), toolButtons()};
}

} // namespace baseline
