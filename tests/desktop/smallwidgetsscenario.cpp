#include "smallwidgetsscenario.h"

#include "reporter.h"

#include <lmwidgets/customspinbox.h>
#include <lmwidgets/hyperlinklabel.h>
#include <lmwidgets/qcustomtabbar.h>
#include <lmwidgets/qcustomtabwidget.h>
#include <lmwidgets/talvostylemanager.h>
#include <lmwidgets/vantorotoolbutton.h>

#include <QApplication>
#include <QDesktopServices>
#include <QEvent>
#include <QHBoxLayout>
#include <QImage>
#include <QUrl>
#include <QVBoxLayout>

using LM::Widgets::CustomSpinBox;
using LM::Widgets::HyperlinkLabel;
using LM::Widgets::QCustomTabBar;
using LM::Widgets::QCustomTabWidget;
using LM::Widgets::TalvoStyleManager;

namespace {

constexpr QRect WindowGeometry(200, 100, 420, 420);
constexpr QSize PictureSize(20, 20);

/** Stands in for the programs that open addresses. */
class Opener : public QObject
{
    Q_OBJECT

public:
    explicit Opener(QObject *parent) : QObject(parent)
    {
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open");
    }
    ~Opener() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

public Q_SLOTS:
    void open(const QUrl &url)
    {
        Reporter::say(QLatin1String("opened ") + url.toString(QUrl::FullyEncoded));
    }
};

/** The name of the theme and the kind of the picture that @p button shows. */
QString pictureName(const QToolButton &button)
{
    const auto pixels = [](const QIcon &icon) {
        return icon.pixmap(PictureSize).toImage().convertToFormat(QImage::Format_ARGB32);
    };
    const QImage shown = pixels(button.icon());
    for (const char *theme : {"Black", "White"}) {
        for (const char *kind : {"", "_hover", "_disabled"}) {
            const QString path = QStringLiteral("%1/theme/%2/qssimage/layer_edit%3.png")
                                     .arg(QCoreApplication::applicationDirPath(),
                                          QLatin1String(theme), QLatin1String(kind));
            if (!shown.isNull() && shown == pixels(QIcon(path))) {
                return QLatin1String(theme) + QLatin1String(kind);
            }
        }
    }
    return QStringLiteral("unknown");
}

/** Says which picture a tool button shows, each time that it has been painted with another one. */
class PictureReporter : public QObject
{
public:
    explicit PictureReporter(QToolButton *button) : QObject(button), m_button(button)
    {
        button->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            const QString name = pictureName(*m_button);
            if (name != m_last) {
                m_last = name;
                Reporter::say(QStringLiteral("picture %1 %2").arg(m_button->objectName(), name));
            }
        }
        return false;
    }

private:
    QToolButton *const m_button;
    QString m_last;
};

VantoroToolButton *makeTool(const QString &name)
{
    auto *tool = new VantoroToolButton;
    tool->setObjectName(name);
    tool->setIconSize(PictureSize);
    tool->setIconPixmap(QStringLiteral("layer_edit"), QStringLiteral("layer_edit_hover"),
                        QStringLiteral("layer_edit_disabled"));
    new PictureReporter(tool);
    Reporter::follow(tool);
    return tool;
}

CustomSpinBox *makeNumber()
{
    auto *number = new CustomSpinBox;
    number->setObjectName(QStringLiteral("number"));
    number->setDecimals(0);
    number->setValue(12);
    QObject::connect(number, &QDoubleSpinBox::textChanged, number, [number](const QString &text) {
        if (text.isEmpty()) {
            Reporter::say(
                QStringLiteral("number '%1' %2").arg(number->text()).arg(number->value()));
        }
    });
    return number;
}

QCustomTabWidget *makeTabs()
{
    auto *tabs = new QCustomTabWidget;
    tabs->setObjectName(QStringLiteral("tabs"));
    tabs->tabBar()->setObjectName(QStringLiteral("bar"));
    tabs->tabBar()->setFocusPolicy(Qt::StrongFocus);
    tabs->setTabPosition(QTabWidget::West);
    for (int i = 0; i < 3; ++i) {
        auto *page = new QWidget;
        page->setObjectName(QStringLiteral("page%1").arg(i));
        tabs->addTab(page, QStringLiteral("Step %1").arg(i));
    }
    QObject::connect(tabs, &QTabWidget::currentChanged, tabs,
                     [](int index) { Reporter::say(QStringLiteral("tab %1").arg(index)); });
    return tabs;
}

/** Gives the dot of the current tab another colour, and says which one is on the screen then. */
void colorDot(QCustomTabWidget *tabs)
{
    auto *bar = static_cast<QCustomTabBar *>(tabs->tabBar());
    const int index = tabs->currentIndex();
    bar->setTabColor(index, Qt::red);
    const QRect tab = bar->tabRect(index);
    const QColor shown = bar->grab().toImage().pixelColor(tab.left() + 7, tab.center().y());
    Reporter::say(QStringLiteral("dot %1 %2").arg(index).arg(shown.name()));
}

QWidget *makeWindow()
{
    auto *window = new QWidget;
    window->setObjectName(QStringLiteral("small"));
    auto *layout = new QVBoxLayout(window);
    auto *tools = new QHBoxLayout;
    VantoroToolButton *first = makeTool(QStringLiteral("tool-a"));
    VantoroToolButton *second = makeTool(QStringLiteral("tool-b"));
    tools->addWidget(first);
    tools->addWidget(second);
    tools->addStretch();
    layout->addLayout(tools);

    auto *link = new HyperlinkLabel;
    link->setObjectName(QStringLiteral("link"));
    link->setHyperlinksText(QStringLiteral("The folder of the project"));
    link->setFileDir(QStringLiteral("file:///srv/projects/survey 07"));
    layout->addWidget(link);
    layout->addWidget(makeNumber());
    QCustomTabWidget *tabs = makeTabs();
    layout->addWidget(tabs, 1);

    QObject::connect(first, &QToolButton::clicked, tabs, [tabs] { colorDot(tabs); });
    QObject::connect(second, &QToolButton::clicked, second, [] {
        TalvoStyleManager *manager = TalvoStyleManager::instance().data();
        manager->shiftStyle(manager->currentStyle() == TalvoStyleManager::Black
                                ? TalvoStyleManager::White
                                : TalvoStyleManager::Black);
    });
    window->setGeometry(WindowGeometry);
    return window;
}

} // namespace

void runSmallWidgets()
{
    QWidget *window = makeWindow();
    new Opener(window);
    window->show();
}

void runDesktopLink()
{
    makeWindow()->show();
}

#include "smallwidgetsscenario.moc"
