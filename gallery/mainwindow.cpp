#include "mainwindow.h"

#include "page.h"
#include "pageparts.h"
#include "signallog.h"
#include "themes.h"

#include <lmwidgets/talvostylemanager.h>

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QVariant>
#include <QVBoxLayout>

namespace gallery {

using LM::Widgets::TalvoStyleManager;

namespace {

constexpr QSize WindowSize(1280, 800);
constexpr int WindowMargin = 12;
constexpr int ListWidth = 210;
constexpr int ListItemHeight = 32;
constexpr int PageHeight = 560;
constexpr int LogHeight = 170;

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent),
      m_list(new QListWidget),
      m_stack(new QStackedWidget),
      m_log(new SignalLog)
{
    setWindowTitle(QStringLiteral("lmwidgets gallery"));
    createPageList();

    auto *upper = new QWidget;
    auto *upperLayout = new QHBoxLayout(upper);
    upperLayout->setContentsMargins(0, 0, 0, WindowMargin);
    upperLayout->setSpacing(WindowMargin);
    upperLayout->addWidget(m_list);
    upperLayout->addWidget(m_stack, 1);

    auto *splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(upper);
    splitter->addWidget(m_log);
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({PageHeight, LogHeight});

    auto *central = new QWidget;
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
    layout->setSpacing(WindowMargin);
    layout->addWidget(createHeader());
    layout->addWidget(splitter, 1);
    setCentralWidget(central);

    m_log->watch(TalvoStyleManager::instance().data(), QStringLiteral("TalvoStyleManager"));
    resize(WindowSize);
    m_list->setCurrentRow(0);
    m_list->setFocus();
}

QWidget *MainWindow::createHeader()
{
    auto *header = new QWidget;
    auto *layout = new QHBoxLayout(header);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(heading(QStringLiteral("lmwidgets gallery"), HeadingLevel::Window));
    layout->addStretch();
    layout->addWidget(new QLabel(QStringLiteral("Theme")));
    layout->addWidget(createThemeSwitch());
    return header;
}

QWidget *MainWindow::createThemeSwitch()
{
    auto *group = new QButtonGroup(this);
    auto *result = new QWidget;
    auto *layout = new QHBoxLayout(result);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const QString &name : themeNames()) {
        auto *choice = new QPushButton(name);
        choice->setCheckable(true);
        choice->setProperty("galleryChoice", true);
        group->addButton(choice, themeFromName(name));
        layout->addWidget(choice);
    }
    connect(group, QOverload<QAbstractButton *>::of(&QButtonGroup::buttonClicked), this,
            [group](QAbstractButton *clicked) {
                TalvoStyleManager::instance()->shiftStyle(Theme(group->id(clicked)));
            });
    // The theme can be switched elsewhere too.
    onTheme(this, [group] {
        if (auto *current = group->button(TalvoStyleManager::instance()->currentStyle())) {
            current->setChecked(true);
        }
    });
    return result;
}

void MainWindow::createPageList()
{
    m_list->setObjectName(QStringLiteral("galleryPageList"));
    m_list->setFixedWidth(ListWidth);
    for (const Page &page : pages()) {
        auto *item = new QListWidgetItem(page.title(), m_list);
        item->setSizeHint(QSize(0, ListItemHeight));
    }
    connect(m_list, &QListWidget::currentRowChanged, this, &MainWindow::showRow);
}

void MainWindow::showPage(const QString &name)
{
    for (int row = 0; row < pages().size(); ++row) {
        if (pages().at(row).name() == name) {
            m_list->setCurrentRow(row);
        }
    }
}

void MainWindow::loadPages(const std::function<void()> &afterEach)
{
    for (int row = 0; row < pages().size(); ++row) {
        view(row);
        afterEach();
    }
}

QWidget *MainWindow::view(int row)
{
    if (!m_views.contains(row)) {
        auto *area = new QScrollArea;
        area->setWidgetResizable(true);
        area->setFrameShape(QFrame::NoFrame);
        area->setWidget(pages().at(row).createView(*m_log));
        m_stack->addWidget(area);
        m_views.insert(row, area);
    }
    return m_views.value(row);
}

void MainWindow::showRow(int row)
{
    if (row >= 0) {
        m_stack->setCurrentWidget(view(row));
    }
}

} // namespace gallery
