/** @file
 * loaded FORM: loads a form that uses the library without being linked to it: the plugin has to bring
 * the widgets, and the library with them. QT_PLUGIN_PATH says where the plugin is.
 */

#include <QApplication>
#include <QDomDocument>
#include <QFile>
#include <QUiLoader>
#include <QWidget>

#include <cstdio>
#include <memory>

namespace {

/** Counts the widgets that are not of the class that the form asks for. */
int countStrangers(const QDomElement &element, const QWidget *window)
{
    int strangers = 0;
    const QDomNodeList widgets = element.elementsByTagName("widget");
    for (int i = 0; i < widgets.size(); ++i) {
        const QDomElement widget = widgets.at(i).toElement();
        const QString name = widget.attribute("name");
        const QWidget *made =
            window->objectName() == name ? window : window->findChild<QWidget *>(name);
        const QString className = made ? made->metaObject()->className() : "nothing";
        if (className != widget.attribute("class")) {
            std::printf("%s is %s\n", qPrintable(name), qPrintable(className));
            ++strangers;
        }
    }
    return widgets.isEmpty() ? 1 : strangers;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QFile file(application.arguments().value(1));
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file)) {
        std::printf("no form\n");
        return 1;
    }
    file.seek(0);
    QUiLoader loader;
    const std::unique_ptr<QWidget> window(loader.load(&file));
    if (!window) {
        std::printf("%s\n", qPrintable(loader.errorString()));
        return 1;
    }
    window->show();
    const int strangers = countStrangers(document.documentElement(), window.get());
    std::printf("loaded: %s\n", strangers == 0 ? "as drawn" : "NOT as drawn");
    return strangers == 0 ? 0 : 1;
}
