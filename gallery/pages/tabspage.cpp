#include "page.h"
#include "pageparts.h"
#include "signallog.h"

#include <lmwidgets/qcustomtabbar.h>
#include <lmwidgets/qcustomtabwidget.h>

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace gallery {

using LM::Widgets::QCustomTabBar;
using LM::Widgets::QCustomTabWidget;

namespace {

constexpr QSize TabsSize(460, 240);
const QColor WaitingColor(0x90, 0x90, 0x90);
const QColor RunningColor(255, 200, 5);
const QColor FinishedColor(0, 200, 80);
const QColor FailedColor(230, 60, 50);

enum class StepState { Waiting, Running, Finished, Failed };

/** The steps of a process, one page each, whose dots tell how far it has come. */
class StepTabs : public QCustomTabWidget
{
public:
    StepTabs()
    {
        setTabPosition(QTabWidget::West);
        for (const QString &name :
             {QStringLiteral("Import"), QStringLiteral("Register"), QStringLiteral("Classify"),
              QStringLiteral("Thin out"), QStringLiteral("Export")}) {
            auto *page = new QLabel(name);
            page->setAlignment(Qt::AlignCenter);
            addTab(page, name);
        }
        setFixedSize(TabsSize);
        restart();
    }

    void restart()
    {
        m_running = -1;
        for (int i = 0; i < count(); ++i) {
            setState(i, StepState::Waiting);
        }
    }

    /** Ends the step that runs, and begins the next one. */
    void goOn(bool failed)
    {
        if (m_running >= 0 && m_running < count()) {
            setState(m_running, failed ? StepState::Failed : StepState::Finished);
        }
        if (++m_running < count()) {
            setState(m_running, StepState::Running);
            setCurrentIndex(m_running);
        }
    }

private:
    void setState(int index, StepState state)
    {
        QColor color = WaitingColor;
        QString meaning = QStringLiteral("Waiting");
        switch (state) {
        case StepState::Waiting:
            break;
        case StepState::Running:
            color = RunningColor;
            meaning = QStringLiteral("Running");
            break;
        case StepState::Finished:
            color = FinishedColor;
            meaning = QStringLiteral("Finished");
            break;
        case StepState::Failed:
            color = FailedColor;
            meaning = QStringLiteral("Failed");
            break;
        }
        static_cast<QCustomTabBar *>(tabBar())->setTabColor(index, color);
        // For those who cannot tell the colours: screen readers read it too.
        setTabToolTip(index, meaning);
    }

    int m_running = -1;
};

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    auto *layout = contentLayout(content);
    auto *body =
        addSection(layout, QStringLiteral("The steps of a process"),
                   QStringLiteral("Select a step by mouse, or by the left and right arrow "
                                  "keys when the tabs have the focus. The dot of a step tells its "
                                  "state, and so does its tool tip."));
    auto *tabs = new StepTabs;
    log.watch(tabs, QStringLiteral("tabs"));
    body->addWidget(row({tabs}));
    body->addWidget(row({button(QStringLiteral("Next step"), [tabs] { tabs->goOn(false); }),
                         button(QStringLiteral("Step fails"), [tabs] { tabs->goOn(true); }),
                         button(QStringLiteral("Restart"), [tabs] { tabs->restart(); })}));
    return content;
}

QWidget *stepsShot()
{
    auto *tabs = new StepTabs;
    tabs->goOn(false);
    tabs->goOn(false);
    tabs->goOn(true);
    tabs->show();
    return tabs;
}

} // namespace

Page tabsPage()
{
    return Page(QStringLiteral("tabs"), QStringLiteral("Tabs with dots"),
                QStringLiteral("QCustomTabWidget places a coloured dot before each tab's text."),
                createContent)
        .shot(QStringLiteral("steps"), stepsShot);
}

} // namespace gallery
