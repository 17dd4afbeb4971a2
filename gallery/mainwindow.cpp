#include "mainwindow.h"

#include "hostcode.h"
#include "language.h"
#include "page.h"
#include "pageparts.h"
#include "signallog.h"
#include "themes.h"

#include <lmwidgets/talvostylemanager.h>

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QVariant>
#include <QVBoxLayout>

#include <algorithm>

namespace gallery {

using LM::Widgets::TalvoStyleManager;

namespace {

constexpr QSize WindowSize(1280, 800);
constexpr int WindowMargin = 12;
constexpr int ListWidth = 226;
constexpr int ListItemHeight = 32;
constexpr int CodeMargin = 8;
constexpr int CodeTopMargin = 6;
constexpr int PageHeight = 560;
constexpr int LogHeight = 190;
constexpr int LogWidth = 620;
constexpr int CodeWidth = 620;
constexpr double Scales[] = {1, 1.25, 1.5, 2};

double currentScale()
{
    const double scale = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble();
    return scale > 0 ? scale : 1;
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent),
      m_list(new QListWidget),
      m_stack(new QStackedWidget),
      m_log(new SignalLog)
{
    setWindowTitle(QStringLiteral("lmwidgets gallery"));
    auto *upper = new QWidget;
    auto *upperLayout = new QHBoxLayout(upper);
    upperLayout->setContentsMargins(0, 0, 0, WindowMargin);
    upperLayout->setSpacing(WindowMargin);
    upperLayout->addWidget(createPageColumn());
    upperLayout->addWidget(m_stack, 1);

    auto *splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(upper);
    auto *lower = new QSplitter;
    lower->setChildrenCollapsible(false);
    lower->addWidget(m_log);
    lower->addWidget(createCodePanel());
    lower->setSizes({LogWidth, CodeWidth});
    splitter->addWidget(lower);
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
    setTabOrder(m_search, m_list);
    m_list->setFocus();
}

QWidget *MainWindow::createHeader()
{
    auto *header = new QWidget;
    auto *layout = new QHBoxLayout(header);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(heading(QStringLiteral("lmwidgets gallery"), HeadingLevel::Window));
    layout->addStretch();
    layout->setSpacing(WindowMargin);
    layout->addWidget(createDirectionSwitch());
    layout->addWidget(createLanguageSwitch());
    layout->addWidget(createScaleSwitch());
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

QWidget *MainWindow::createLanguageSwitch()
{
    auto *box = new QComboBox;
    box->setObjectName(QStringLiteral("galleryLanguage"));
    box->setAccessibleName(QStringLiteral("Language"));
    box->setToolTip(QStringLiteral("The language of the library's own texts"));
    for (const QString &name : languageNames()) {
        box->addItem(languageTitle(name), name);
    }
    box->setCurrentIndex(box->findData(currentLanguage()));
    connect(box, QOverload<int>::of(&QComboBox::activated), this,
            [box](int index) { setLanguage(box->itemData(index).toString()); });
    return box;
}

QWidget *MainWindow::createDirectionSwitch()
{
    auto *box = check(QStringLiteral("Right to left"), QApplication::isRightToLeft(),
                      [](bool checked) { setRightToLeft(checked); });
    box->setObjectName(QStringLiteral("galleryDirection"));
    return box;
}

QWidget *MainWindow::createScaleSwitch()
{
    auto *box = new QComboBox;
    box->setObjectName(QStringLiteral("galleryScale"));
    box->setAccessibleName(QStringLiteral("Scale"));
    box->setToolTip(QStringLiteral("Opens the gallery anew, larger or smaller"));
    for (const double scale : Scales) {
        box->addItem(QStringLiteral("%1 %").arg(scale * 100), scale);
    }
    const int current = box->findData(currentScale());
    box->setCurrentIndex(current);
    connect(box, QOverload<int>::of(&QComboBox::activated), this, [this, box, current](int index) {
        if (index != current) {
            Q_EMIT scaleChosen(argumentsForScale(box->itemData(index).toDouble()));
        }
    });
    return box;
}

QStringList MainWindow::argumentsForScale(double factor) const
{
    QStringList arguments = {QStringLiteral("--no-splash"),
                             QStringLiteral("--scale"),
                             QString::number(factor),
                             QStringLiteral("--theme"),
                             themeName(TalvoStyleManager::instance()->currentStyle()),
                             QStringLiteral("--language"),
                             currentLanguage(),
                             QStringLiteral("--page"),
                             pages().at(m_list->currentRow()).name()};
    if (QApplication::isRightToLeft()) {
        arguments.append(QStringLiteral("--rtl"));
    }
    return arguments;
}

QWidget *MainWindow::createCodePanel()
{
    m_code = new QLabel;
    m_code->setObjectName(QStringLiteral("galleryCode"));
    m_code->setTextFormat(Qt::PlainText);
    m_code->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_code->setAlignment(Qt::AlignLeft | Qt::AlignTop | Qt::AlignAbsolute);
    m_code->setMargin(CodeMargin);

    auto *area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setWidget(m_code);
    // Code is written from left to right in every language.
    area->setLayoutDirection(Qt::LeftToRight);
    area->setObjectName(QStringLiteral("galleryFramed"));

    auto *bar = new QHBoxLayout;
    bar->addWidget(heading(QStringLiteral("Host code"), HeadingLevel::Section));
    bar->addStretch();
    bar->addWidget(button(QStringLiteral("Copy"),
                          [this] { QApplication::clipboard()->setText(m_code->text()); }));

    auto *panel = new QWidget;
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(WindowMargin, CodeTopMargin, 0, 0);
    layout->addLayout(bar);
    layout->addWidget(area);
    return panel;
}

QWidget *MainWindow::createPageColumn()
{
    m_search = new QLineEdit;
    m_search->setObjectName(QStringLiteral("gallerySearch"));
    m_search->setPlaceholderText(QStringLiteral("Search widgets"));
    m_search->setClearButtonEnabled(true);
    connect(m_search, &QLineEdit::textChanged, this, &MainWindow::search);

    m_list->setObjectName(QStringLiteral("galleryPageList"));
    for (const Page &page : pages()) {
        auto *item = new QListWidgetItem(page.title(), m_list);
        item->setSizeHint(QSize(0, ListItemHeight));
    }
    connect(m_list, &QListWidget::currentRowChanged, this, &MainWindow::showRow);

    auto *column = new QWidget;
    column->setFixedWidth(ListWidth);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_search);
    layout->addWidget(m_list);
    return column;
}

void MainWindow::search(const QString &text)
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    int firstFound = -1;
    for (int row = 0; row < pages().size(); ++row) {
        const Page &page = pages().at(row);
        const QString searched = page.title() + page.description() + hostCode(page.name());
        const bool isFound =
            std::all_of(words.begin(), words.end(), [&searched](const QString &word) {
                return searched.contains(word, Qt::CaseInsensitive);
            });
        m_list->item(row)->setHidden(!isFound);
        if (isFound && firstFound < 0) {
            firstFound = row;
        }
    }
    const QListWidgetItem *current = m_list->currentItem();
    if (firstFound >= 0 && (!current || current->isHidden())) {
        m_list->setCurrentRow(firstFound);
    }
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
        m_code->setText(hostCode(pages().at(row).name()));
    }
}

} // namespace gallery
