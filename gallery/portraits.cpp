#include "portraits.h"

#include "pageparts.h"
#include "splashpicture.h"
#include "themes.h"

#include <lmwidgets/lmwidgets.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFormLayout>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMovie>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeView>
#include <QUrl>
#include <QVBoxLayout>

namespace gallery {

using namespace LM::Widgets;

namespace {

constexpr int StageMargin = 16;
constexpr int StageSpacing = 12;
constexpr int FieldWidth = 220;
constexpr int FieldHeight = 32;
constexpr int PanelWidth = 260;
constexpr int PictureEdge = 20;
constexpr int MovieFrame = 9;
constexpr int ReadingLimit = 5000; // ms
constexpr int EventSlice = 20;     // ms
constexpr int LongestPause = 300;  // ms
constexpr QSize TableSize(430, 150);
constexpr QSize FileDialogSize(560, 380);
constexpr QSize BalloonSize(220, 84);

/** A window on the theme's ground with the widgets in a column. */
QWidget *stage(const QVector<QWidget *> &widgets)
{
    auto *window = new QWidget;
    auto *layout = new QVBoxLayout(window);
    layout->setContentsMargins(StageMargin, StageMargin, StageMargin, StageMargin);
    layout->setSpacing(StageSpacing);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    for (QWidget *widget : widgets) {
        layout->addWidget(widget);
    }
    return window;
}

/** Runs the event loop until @p condition holds, but not for ever. */
template <typename Condition>
void waitFor(const Condition &condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < ReadingLimit) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, EventSlice);
    }
}

// The frame

QWidget *framelessDialog()
{
    auto *dialog = new FramelessDialog;
    dialog->setWindowTitle(QStringLiteral("Rename layer"));
    auto *content = new QWidget;
    auto *form = new QFormLayout(content);
    form->setContentsMargins(StageMargin, StageMargin, StageMargin, StageMargin);
    form->addRow(QStringLiteral("Name"), new QLineEdit(QStringLiteral("Ground points")));
    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    dialog->setLayout(layout);
    dialog->resize(400, 200);
    return dialog;
}

QWidget *vantoroDialog()
{
    auto *dialog = new VantoroFramelessDialog;
    dialog->setWindowTitle(QStringLiteral("Project"));
    auto *form = new QFormLayout;
    form->setContentsMargins(StageMargin, StageMargin, StageMargin, StageMargin);
    form->addRow(QStringLiteral("Name"), new QLineEdit(QStringLiteral("Site north")));
    form->addRow(QStringLiteral("System"), new QLineEdit(QStringLiteral("EPSG:25832")));
    dialog->setLayout(form);
    dialog->getApplyButton()->show();
    dialog->resize(480, 260);
    return dialog;
}

QWidget *titleBar()
{
    auto *bar = new TitleBar;
    bar->setTitle(QStringLiteral("Viewer"));
    bar->setTitleButtonIcon(TitleBar::LogoButton, glyphIcon(Glyph::Logo));
    bar->setMaximized(false);
    auto *pin = new QAction(glyphIcon(Glyph::Pin), QStringLiteral("Pin"), bar);
    bar->appendExtendTitleButton(pin, QSize(PictureEdge, PictureEdge), QSize(16, 16));
    bar->setFixedWidth(420);
    return stage({bar});
}

QWidget *frameLine()
{
    const QString property = QStringLiteral("isBackgroundSeparator");
    auto *across = FrameLine::createHorizontalLine(property, nullptr, 1, 0, 0);
    auto *upright = FrameLine::createVerticalLine(property, nullptr, 1, 0, 0);
    upright->setFixedHeight(FieldHeight);
    across->setFixedWidth(FieldWidth);
    return stage(
        {new QLabel(QStringLiteral("Above the line")), across,
         row({new QLabel(QStringLiteral("left")), upright, new QLabel(QStringLiteral("right"))})});
}

// Dialogs

QWidget *messageBox()
{
    return new FramelessMessageBox(
        QMessageBox::Question, QStringLiteral("Layers"),
        QStringLiteral("Delete the layer \"Ground points\"? Its 1,240 points stay in the cloud."),
        QMessageBox::Yes | QMessageBox::No);
}

QWidget *detailsText()
{
    auto *details = new QMessageBoxDetailsText;
    details->setText(QStringLiteral("station_01.las: 184,320 points\n"
                                    "station_02.las: 201,728 points\n"
                                    "station_03.laz: cannot be read, the file ends too early"));
    details->setFixedWidth(420);
    return stage({details});
}

QWidget *detailButton()
{
    return stage({new DetailButton});
}

/** Has the same name each time, so that two pictures are alike. */
QDir sampleRoot()
{
    return QDir(QDir::temp().filePath(QStringLiteral("lmgallery-widget-pictures")));
}

QDir sampleFolder()
{
    const QDir folder(sampleRoot().filePath(QStringLiteral("Scans")));
    for (const char *name : {"Site north", "Tiles"}) {
        folder.mkpath(QLatin1String(name));
    }
    const struct
    {
        const char *name;
        qint64 size;
    } files[] = {{"station_01.las", 184320}, {"station_02.las", 201728}, {"contours.dxf", 12288}};
    for (const auto &each : files) {
        QFile file(folder.filePath(QLatin1String(each.name)));
        if (file.open(QIODevice::WriteOnly)) {
            file.resize(each.size);
        }
    }
    return folder;
}

QWidget *fileDialog()
{
    const QDir folder = sampleFolder();
    auto *dialog = new FramelessFileDialog(nullptr, QString(), folder.path(),
                                           QStringLiteral("Point clouds (*.las);;All files (*)"));
    dialog->setViewMode(QFileDialog::List);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setWindowTitle(QStringLiteral("Open File"));
    dialog->setSidebarUrls({QUrl::fromLocalFile(folder.path())});
    dialog->resize(FileDialogSize);
    QObject::connect(dialog, &QObject::destroyed, qApp, [] { sampleRoot().removeRecursively(); });
    return dialog;
}

void chooseFile(QWidget *window)
{
    auto *dialog = static_cast<FramelessFileDialog *>(window);
    const auto *view = dialog->findChild<QAbstractItemView *>(QStringLiteral("listView"));
    waitFor([view] { return view->model()->rowCount(view->rootIndex()) >= 4; });
    dialog->selectFile(QStringLiteral("station_02.las"));
}

QWidget *progressDialog()
{
    auto *dialog = new FramelessProcessDialog(QStringLiteral("Writing tile 37 of 100..."),
                                              QStringLiteral("Stop"), 0, 100);
    dialog->setWindowTitle(QStringLiteral("Export"));
    dialog->resize(QSize(420, 0).expandedTo(dialog->sizeHint()));
    return dialog;
}

void progress(QWidget *window)
{
    static_cast<FramelessProcessDialog *>(window)->setValue(37);
}

QWidget *waitingDialog()
{
    auto *dialog = new FramelessWaitingDialog;
    dialog->showCancelButton();
    return dialog;
}

void wait(QWidget *window)
{
    static_cast<FramelessWaitingDialog *>(window)->startWaiting(
        QStringLiteral("Reading points..."));
    const auto labels = window->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (QMovie *movie = label->movie()) {
            movie->stop();
            movie->jumpToFrame(MovieFrame);
        }
    }
}

QWidget *doubleInput()
{
    auto *dialog = new TalvoDoubleInputDlg;
    QString suffix = QStringLiteral(" m");
    dialog->setWindowTitle(QStringLiteral("Statistical outlier removal"));
    dialog->setParamData(QStringLiteral("Search radius"), 0.05, 25.0, 2, 1.5, 0.05, suffix);
    return dialog;
}

QWidget *balloon()
{
    auto *balloon = new TalvoTriangleDlg;
    balloon->resize(BalloonSize);
    balloon->setTriabgleData(TalvoTriangleDlg::Left, 34, 10, 16);
    auto *layout = new QVBoxLayout(balloon);
    layout->setContentsMargins(22, 12, 12, 12);
    auto *text = new QLabel(QStringLiteral("1,240 points of the layer Ground"));
    text->setWordWrap(true);
    text->setStyleSheet(QStringLiteral("color:#F2F2F2;background-color:transparent;"));
    layout->addWidget(text);
    return balloon;
}

// Inputs

template <typename Switch>
Switch *switched(bool on)
{
    auto *result = new Switch;
    result->setChecked(on);
    return result;
}

QWidget *toggleSwitch()
{
    auto *on = switched<ToggleSwitch>(true);
    on->setText(QStringLiteral("Ground points"));
    auto *off = switched<ToggleSwitch>(false);
    off->setText(QStringLiteral("Vegetation"));
    return stage({on, off});
}

/** The knob slides for a quarter of a second, longer on a busy machine. */
void arrive(QWidget *window)
{
    QElapsedTimer sinceChange;
    sinceChange.start();
    QImage former;
    waitFor([&] {
        const QImage picture = window->grab().toImage();
        if (picture != former) {
            former = picture;
            sinceChange.restart();
        }
        return sinceChange.hasExpired(LongestPause);
    });
}

QWidget *roundCheckBox()
{
    return stage({row({switched<RoundCheckBox>(true), switched<RoundCheckBox>(false)})});
}

QWidget *editComboBox()
{
    auto *filled = new EditComboBox({QStringLiteral("0.1 m"), QStringLiteral("0.5 m")}, nullptr);
    filled->setCurrentText(QStringLiteral("0.5 m"));
    auto *empty = new EditComboBox;
    empty->setPlaceHolderText(QStringLiteral("Search a system"));
    for (EditComboBox *box : {filled, empty}) {
        box->setFixedSize(FieldWidth, FieldHeight);
    }
    return stage({filled, empty});
}

QWidget *slider()
{
    auto *slider = new TalvoDoubleSlider;
    slider->setFixedSize(PanelWidth, PictureEdge);
    slider->setQxtSpanRange(0.0, 255.0);
    slider->setSpan(60.0, 190.0);
    return stage({slider});
}

QWidget *spinBox()
{
    auto *filled = new CustomSpinBox;
    filled->setValue(12.5);
    filled->setFixedWidth(FieldWidth);
    auto *blank = new CustomSpinBox;
    blank->setFixedWidth(FieldWidth);
    blank->clear();
    return stage({filled, blank});
}

QWidget *hyperlink()
{
    auto *link = new HyperlinkLabel;
    link->setHyperlinksText(QStringLiteral("Open the project's folder"));
    return stage({link});
}

QWidget *toolButtons()
{
    QVector<QWidget *> buttons;
    for (const char *picture : {"layer_edit", "layer_lock", "layer_view", "delete_2dvec"}) {
        const QString name = QLatin1String(picture);
        auto *each = new VantoroToolButton;
        each->setIconSize(QSize(PictureEdge, PictureEdge));
        each->setIconPixmap(name, name + QStringLiteral("_hover"),
                            name + QStringLiteral("_disabled"));
        buttons.append(each);
    }
    buttons.last()->setEnabled(false);
    return stage({row(buttons)});
}

QWidget *dotButton()
{
    auto *button = new ButtonLeftHaveGreenDots;
    button->setText(QStringLiteral("Run"));
    return stage({button});
}

QWidget *linkedTabs(bool withPages)
{
    const QStringList steps = {QStringLiteral("Import"), QStringLiteral("Register"),
                               QStringLiteral("Classify"), QStringLiteral("Export")};
    const QColor states[] = {QColor(0, 200, 80), QColor(230, 60, 50), QColor(255, 200, 5),
                             QColor(0x90, 0x90, 0x90)};
    QCustomTabBar *bar = nullptr;
    QWidget *shown = nullptr;
    if (withPages) {
        auto *tabs = new QCustomTabWidget;
        tabs->setTabPosition(QTabWidget::West);
        for (const QString &step : steps) {
            auto *page = new QLabel(step);
            page->setAlignment(Qt::AlignCenter);
            tabs->addTab(page, step);
        }
        tabs->setFixedSize(380, 200);
        bar = static_cast<QCustomTabBar *>(tabs->tabBar());
        shown = tabs;
    } else {
        bar = new QCustomTabBar;
        bar->setShape(QTabBar::RoundedWest);
        for (const QString &step : steps) {
            bar->addTab(step);
        }
        shown = bar;
    }
    for (int i = 0; i < steps.size(); ++i) {
        bar->setTabColor(i, states[i]);
    }
    return stage({shown});
}

QWidget *tabBar()
{
    return linkedTabs(false);
}

QWidget *tabWidget()
{
    return linkedTabs(true);
}

QWidget *animatedIcon()
{
    const QString path =
        QCoreApplication::applicationDirPath() + QStringLiteral("/theme/qssimage/waiting.gif");
    auto *busy = new QPushButton(QStringLiteral("Importing 12 scans"));
    busy->setIconSize(QSize(PictureEdge, PictureEdge));
    auto *animation = new TalvoAnimatedIcon(path, busy);
    animation->connectFrameChanged(busy, SLOT(update()));
    waitFor([animation] { return !animation->icon().isNull(); });
    busy->setIcon(animation->icon());
    animation->disconnectFrameChanged(busy, SLOT(update()));
    return stage({busy});
}

QWidget *splashScreen()
{
    return new TalvoSplashScreen(QStringLiteral("2.4.1"), splashPicture());
}

// Containers

template <typename Box>
QWidget *groupBoxes()
{
    auto *colour = new Box(QStringLiteral("Colour"));
    auto *form = new QFormLayout(colour);
    form->addRow(QStringLiteral("Attribute"), new QLineEdit(QStringLiteral("Intensity")));
    form->addRow(QStringLiteral("Steps"), new QSpinBox);
    auto *line = new Box(QStringLiteral("Line"));
    (new QVBoxLayout(line))->addWidget(new QCheckBox(QStringLiteral("Dashed")));
    line->setCollapsed(true);
    QWidget *window = stage({colour, line});
    colour->setFixedWidth(PanelWidth);
    line->setFixedWidth(PanelWidth);
    return window;
}

QWidget *collapseButton()
{
    QVector<QWidget *> buttons;
    for (const char *picture : {"dockwidgeticontop", "dockwidgeticonbuttom"}) {
        auto *each = new GroupBoxCollapseButton;
        each->setIcon(QIcon(themeImage(QLatin1String(picture))));
        each->setAutoRaise(true);
        buttons.append(each);
    }
    return stage({row(buttons)});
}

QWidget *flowLayout()
{
    auto *tags = new QWidget;
    auto *flow = new FlowLayout(tags, StageMargin, 8, 8);
    for (const char *name : {"ground", "low vegetation", "building", "water", "bridge deck", "rail",
                             "road surface", "noise", "wire"}) {
        auto *tag = new QPushButton(QLatin1String(name));
        tag->setAutoDefault(false);
        flow->addWidget(tag);
    }
    tags->ensurePolished();
    tags->setFixedWidth(380);
    return tags;
}

void fitHeight(QWidget *window)
{
    window->setFixedHeight(window->heightForWidth(window->width()));
}

// Tables

QWidget *layerTable()
{
    auto *table = new CustomLayerTableWidget;
    table->creatUiType(CustomLayerTableWidget::LAYER_LIST);
    const struct
    {
        const char *name;
        QColor color;
    } layers[] = {{"Ground points", QColor(170, 120, 60)},
                  {"Buildings", QColor(230, 70, 60)},
                  {"Roads", QColor(Qt::lightGray)},
                  {"Vegetation", QColor(80, 170, 80)}};
    for (const auto &layer : layers) {
        table->addLayerRow();
        const int row = table->rowCount() - 1;
        table->item(row, 0)->setText(QLatin1String(layer.name));
        static_cast<customLayerToolButton *>(table->cellWidget(row, 5))->setColor(layer.color);
    }
    for (int row = 1; row < table->rowCount(); ++row) {
        static_cast<customLayerToolButton *>(table->cellWidget(row, 3))->setLockState(false);
    }
    static_cast<customLayerToolButton *>(table->cellWidget(3, 4))->setVisibleState(false);
    int height = 2 * table->frameWidth();
    for (int row = 0; row < table->rowCount(); ++row) {
        height += table->rowHeight(row);
    }
    table->setFixedSize(TableSize.width(), height);
    return stage({table});
}

QWidget *layerButtons()
{
    QVector<QWidget *> buttons;
    for (int column = 1; column <= 5; ++column) {
        auto *each = new customLayerToolButton(0, column);
        each->setIconSize(QSize(PictureEdge, PictureEdge));
        buttons.append(each);
    }
    static_cast<customLayerToolButton *>(buttons[0])->setDelete();
    static_cast<customLayerToolButton *>(buttons[1])->setEditEnable(true);
    static_cast<customLayerToolButton *>(buttons[2])->setLockState(true);
    static_cast<customLayerToolButton *>(buttons[3])->setVisibleState(true);
    static_cast<customLayerToolButton *>(buttons[4])->setColor(QColor(80, 170, 80));
    return stage({row(buttons)});
}

QWidget *lineTypes()
{
    QVector<QWidget *> boxes;
    for (const char *name : {"CONTINUOUS", "ACAD_ISO04W100", "ACAD_ISO10W100"}) {
        auto *box = new LineTypeComboBox;
        box->setFixedSize(PanelWidth, FieldHeight);
        box->updateIcons();
        box->setCurrentIndex(box->findData(QLatin1String(name)));
        boxes.append(box);
    }
    return stage(boxes);
}

enum Column { NameColumn, HeightColumn, CodeColumn, ColumnCount };

/** A table with a check box in its header and a delegate for each column. */
QWidget *delegates()
{
    auto *view = new QTableView;
    auto *model = new QStandardItemModel(0, ColumnCount, view);
    model->setHorizontalHeaderLabels(
        {QStringLiteral("Layer"), QStringLiteral("Height"), QStringLiteral("Code")});
    const char *rows[][ColumnCount] = {{"Ground", "0.000", "GRD1"},
                                       {"Kerb stones", "0.125", "KRB2"},
                                       {"Facades", "12.750", "FAC3"}};
    for (const auto &row : rows) {
        QList<QStandardItem *> items;
        for (const char *text : row) {
            items.append(new QStandardItem(QLatin1String(text)));
        }
        items.first()->setCheckable(true);
        items.first()->setCheckState(Qt::Checked);
        model->appendRow(items);
    }
    view->setModel(model);
    auto *header =
        new CheckBoxHeaderView(NameColumn, QPoint(17, 8), QSize(16, 16), Qt::Horizontal, view);
    view->setHorizontalHeader(header);
    header->setFixedHeight(FieldHeight);
    header->setDefaultAlignment(Qt::AlignCenter);
    header->setStretchLastSection(true);
    view->setItemDelegateForColumn(NameColumn, new CustomDelegate(view));
    view->setItemDelegateForColumn(HeightColumn, new kvItemDoubleSpinboxDelegate(view));
    view->setItemDelegateForColumn(
        CodeColumn,
        new KVItemLineEditDelegate(QRegExp(QStringLiteral("[A-Z]{3}[0-9]{1,2}")), view));
    view->verticalHeader()->hide();
    view->setColumnWidth(NameColumn, 170);
    view->setFixedSize(TableSize);
    return stage({view});
}

/** Opens the editor of @p column in the second row. */
void edit(QWidget *window, int column)
{
    auto *view = window->findChild<QTableView *>();
    view->edit(view->model()->index(1, column));
}

void editHeight(QWidget *window)
{
    edit(window, HeightColumn);
}

void editCode(QWidget *window)
{
    edit(window, CodeColumn);
}

} // namespace

QVector<Portrait> portraits()
{
    return {
        {QStringLiteral("buttonlefthavegreendots"), dotButton},
        {QStringLiteral("checkboxheaderview"), delegates},
        {QStringLiteral("collapsiblegroupbox"), groupBoxes<CollapsibleGroupBox>},
        {QStringLiteral("collapsiblegroupboxbasic"), groupBoxes<CollapsibleGroupBoxBasic>},
        {QStringLiteral("customdelegate"), delegates},
        {QStringLiteral("customlayertablewidget"), layerTable},
        {QStringLiteral("customlayertoolbutton"), layerButtons},
        {QStringLiteral("customspinbox"), spinBox},
        {QStringLiteral("detailbutton"), detailButton},
        {QStringLiteral("editcombobox"), editComboBox},
        {QStringLiteral("flowlayout"), flowLayout, fitHeight},
        {QStringLiteral("framelessdialog"), framelessDialog},
        {QStringLiteral("framelessfiledialog"), fileDialog, chooseFile},
        {QStringLiteral("framelessmessagebox"), messageBox},
        {QStringLiteral("framelessprocessdialog"), progressDialog, progress},
        {QStringLiteral("framelesswaitingdialog"), waitingDialog, wait},
        {QStringLiteral("frameline"), frameLine},
        {QStringLiteral("groupboxcollapsebutton"), collapseButton},
        {QStringLiteral("hyperlinklabel"), hyperlink},
        {QStringLiteral("kvitemdoublespinboxdelegate"), delegates, editHeight},
        {QStringLiteral("kvitemlineeditdelegate"), delegates, editCode},
        {QStringLiteral("linetypecombobox"), lineTypes},
        {QStringLiteral("qcustomtabbar"), tabBar},
        {QStringLiteral("qcustomtabwidget"), tabWidget},
        {QStringLiteral("qmessageboxdetailstext"), detailsText},
        {QStringLiteral("roundcheckbox"), roundCheckBox},
        {QStringLiteral("talvoanimatedicon"), animatedIcon},
        {QStringLiteral("talvodoubleinputdlg"), doubleInput},
        {QStringLiteral("talvodoubleslider"), slider},
        {QStringLiteral("talvosplashscreen"), splashScreen},
        {QStringLiteral("talvotriangledlg"), balloon},
        {QStringLiteral("titlebar"), titleBar},
        {QStringLiteral("toggleswitch"), toggleSwitch, arrive},
        {QStringLiteral("vantoroframelessdialog"), vantoroDialog},
        {QStringLiteral("vantorotoolbutton"), toolButtons},
    };
}

} // namespace gallery
