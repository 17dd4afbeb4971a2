#include "page.h"
#include "pageparts.h"
#include "signallog.h"
#include "themes.h"

#include <lmwidgets/talvostylemanager.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

namespace gallery {

using LM::Widgets::TalvoStyleManager;

namespace {

constexpr int ImageSizes[] = {16, 20, 32};
constexpr int ImageColumns = 3;
constexpr int CellSpacing = 8;

TalvoStyleManager *manager()
{
    return TalvoStyleManager::instance().data();
}

/** A path as text, with the application's own folder shortened. */
QString pathText(QString path)
{
    return path.replace(QApplication::applicationDirPath(), QStringLiteral("<application folder>"));
}

/** The images of a folder without those for double resolution, which QIcon finds by itself. */
QStringList imageNames(const QDir &directory)
{
    QStringList names;
    const QStringList files = directory.entryList(
        {QStringLiteral("*.png"), QStringLiteral("*.gif")}, QDir::Files, QDir::Name);
    for (const QString &file : files) {
        if (!QFileInfo(file).completeBaseName().endsWith(QLatin1String("@2x"))) {
            names.append(file);
        }
    }
    return names;
}

/** The pictures of title buttons are light in every theme, for the dark title bar. */
bool isTitleImage(const QString &name)
{
    return name.startsWith(QLatin1String("systembutton")) ||
           name.startsWith(QLatin1String("smallwindow"));
}

/** The image in the finest resolution that there is, scaled to @p size px. */
QPixmap scaledImage(const QFileInfo &file, int size)
{
    const QString fine =
        file.dir().filePath(file.completeBaseName() + QStringLiteral("@2x.") + file.suffix());
    const QImage image(QFileInfo::exists(fine) ? fine : file.filePath());
    const qreal ratio = qApp->devicePixelRatio();
    const QSize pixels = QSize(size, size) * ratio;
    if (image.isNull()) {
        return QPixmap();
    }
    QPixmap pixmap =
        QPixmap::fromImage(image.scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

QWidget *imageCell(const QFileInfo &file)
{
    auto *cell = new QWidget;
    auto *layout = new QHBoxLayout(cell);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(CellSpacing);
    for (const int size : ImageSizes) {
        auto *image = new QLabel;
        image->setFixedSize(size, size);
        image->setAlignment(Qt::AlignCenter);
        image->setPixmap(scaledImage(file, size));
        if (isTitleImage(file.fileName())) {
            image->setStyleSheet(QStringLiteral("background-color: #2B2B2B;"));
        }
        layout->addWidget(image);
    }
    layout->addWidget(new QLabel(file.completeBaseName()));
    layout->addStretch();
    return cell;
}

QWidget *imageTable(const QDir &directory)
{
    auto *table = new QWidget;
    auto *layout = new QGridLayout(table);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(CellSpacing);
    int index = 0;
    for (const QString &name : imageNames(directory)) {
        layout->addWidget(imageCell(QFileInfo(directory, name)), index / ImageColumns,
                          index % ImageColumns);
        ++index;
    }
    for (int column = 0; column < ImageColumns; ++column) {
        layout->setColumnStretch(column, 1);
    }
    if (index == 0) {
        layout->addWidget(paragraph(QStringLiteral("No image in this folder.")), 0, 0);
    }
    return table;
}

/** A table of the images in a folder, made anew on each theme switch. */
class ImageView : public QWidget
{
public:
    explicit ImageView(const std::function<QString()> &directory)
    {
        contentLayout(this);
        onTheme(this, [this, directory] { fill(directory()); });
    }

private:
    void fill(const QString &directory)
    {
        while (QLayoutItem *item = layout()->takeAt(0)) {
            delete item->widget();
            delete item;
        }
        auto *path = paragraph(pathText(directory));
        path->setTextFormat(Qt::PlainText);
        path->setToolTip(QDir::toNativeSeparators(directory));
        layout()->addWidget(path);
        layout()->addWidget(imageTable(QDir(directory)));
    }
};

QWidget *relayButtons()
{
    return grid(3, {button(QStringLiteral("areaMeasureLabelSelected(7)"),
                           [] { manager()->areaMeasureLabelSelected(7); }),
                    button(QStringLiteral("updatePerspectiveState()"),
                           [] { manager()->updatePerspectiveState(); }),
                    button(QStringLiteral("updateSectionThickness(\"A-A\", 0.25)"),
                           [] { manager()->updateSectionThickness(QStringLiteral("A-A"), 0.25); }),
                    button(QStringLiteral("updateCloudPointSizeSignal()"),
                           [] { Q_EMIT manager()->updateCloudPointSizeSignal(); }),
                    button(QStringLiteral("deleteVertexArrays(\"tile\", 3)"),
                           [] { manager()->deleteVertexArrays(QStringLiteral("tile"), 3); }),
                    button(QStringLiteral("deleteBuffers(\"tile\", 4)"),
                           [] { manager()->deleteBuffers(QStringLiteral("tile"), 4); }),
                    button(QStringLiteral("removePointCloudObject(12)"),
                           [] { manager()->removePointCloudObject(12); }),
                    button(QStringLiteral("showErrorMessage(\"Disk full\")"),
                           [] { manager()->showErrorMessage(QStringLiteral("Disk full")); }),
                    button(QStringLiteral("updateMappingPointSize(true, 5)"),
                           [] { manager()->updateMappingPointSize(true, 5); }),
                    button(QStringLiteral("shiftStyle(currentStyle())"),
                           [] { manager()->shiftStyle(manager()->currentStyle()); })});
}

QWidget *createContent(SignalLog &log)
{
    Q_UNUSED(log) // The window watches the manager for all pages.
    auto *content = new QWidget;
    auto *layout = contentLayout(content);

    auto *path = paragraph(QString());
    path->setTextFormat(Qt::PlainText);
    path->setTextInteractionFlags(Qt::TextSelectableByMouse);
    onTheme(path, [path] {
        path->setText(QStringLiteral("currentStyle() = %1, currentThemePath() = %2")
                          .arg(themeName(manager()->currentStyle()),
                               pathText(manager()->currentThemePath())));
        path->setToolTip(QDir::toNativeSeparators(manager()->currentThemePath()));
    });
    addSection(layout, QStringLiteral("Current theme"))->addWidget(path);

    addSection(
        layout, QStringLiteral("Notifications"),
        QStringLiteral(
            "Each button calls a method of the manager; the signal arrives in the log below."))
        ->addWidget(relayButtons());

    addSection(layout, QStringLiteral("Images of the theme"),
               QStringLiteral("At 16, 20 and 32 px, as currentThemePath() names them now."))
        ->addWidget(new ImageView(
            [] { return manager()->currentThemePath() + QStringLiteral("qssimage"); }));
    addSection(layout, QStringLiteral("Images that all themes share"))->addWidget(new ImageView([] {
        return QApplication::applicationDirPath() + QStringLiteral("/theme/qssimage");
    }));
    return content;
}

} // namespace

Page themePage()
{
    return Page(
        QStringLiteral("theme"), QStringLiteral("Theme"),
        QStringLiteral(
            "TalvoStyleManager knows the theme and its folder, tells dialogs of a switch, and "
            "relays notifications between parts of the host."),
        createContent);
}

} // namespace gallery
