#ifndef CLASSHOST_H
#define CLASSHOST_H

// What a host has that is named in the code of the class comments: the code is compiled in members of Host.

#include <lmwidgets/lmwidgets.h>

#include <QtWidgets>

#include <vector>

namespace class_comments {

struct Layer : QObject
{
    QString name() const;
    bool isLocked() const;
    void setLocked(bool locked);
    void setLineType(const QString &type);
};

struct Drawing : QObject
{
    const std::vector<Layer> &layers() const;
    void update(int row, const QVariant &value,
                const LM::Widgets::CustomLayerTableWidget::RESULTBUTTONTYPE &type);
};

struct Model : QStandardItemModel
{
    void checkAll(bool checked);
};

struct View : QTableView
{
    void setGroundVisible(bool visible);
};

struct Cloud : QObject
{
    void setFloor(double lower);
    void setCeiling(double upper);
};

struct Panel : QWidget
{
    void remember(bool collapsed);
};

struct Window : QMainWindow
{
    void restyle();
};

struct MainWindow : QMainWindow
{
};

struct GridSize : QWidget
{
    void setPreset(int index);
};

struct Filter
{
    void setDistance(double distance);
};

QString sheetFor(LM::Widgets::TalvoStyleManager::ThemeStyleType type);
void store();
void rename();
void write(const QString &path);
void deleteLayer();
void copyTile(int tile);
void readTiles();
void loadPlugins();

struct Host : Panel
{
    void setEdited(bool blank);

    // What is there already when the code begins.
    QWidget *toolBar, *panel, *form, *tagArea, *page, *mainWindow, *importPage, *details, *button;
    QDialog *dialog;
    Window *window;
    View *view;
    QTableWidget *table;
    QTabWidget *tabs;
    QHBoxLayout *layout;
    Model *model;
    Drawing *drawing;
    Layer *m_layer;
    GridSize *m_grid;
    Cloud *cloud;
    Filter *filter;
    QString folder, reportPath, log;
    QStringList tags;
    int count, row, argc;
    char **argv;
    bool failed;
};

} // namespace class_comments

#endif
