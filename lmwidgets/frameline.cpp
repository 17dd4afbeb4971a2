#include <lmwidgets/frameline.h>

#include <QFrame>
#include <QHBoxLayout>
#include <QVariant>
#include <QVBoxLayout>

#include <limits>

namespace LM {
namespace Widgets {

namespace {

/** The frame that both directions share: plain, tagged for the style sheet. */
QFrame *createLine(const QString &propertyName, QWidget *parent, int lineWidth)
{
    auto *line = new QFrame(parent);
    line->setFrameShadow(QFrame::Plain);
    // QFrame keeps it in a short, in which a larger one would come out negative.
    line->setLineWidth(qMin<int>(lineWidth, std::numeric_limits<short>::max()));
    if (!propertyName.isEmpty()) {
        line->setProperty(propertyName.toUtf8().constData(), true);
    }
    return line;
}

/** A thickness or margin as Qt counts it: nothing above what a widget can be. */
int toPixels(unsigned int length)
{
    return static_cast<int>(qMin<unsigned int>(length, QWIDGETSIZE_MAX));
}

/** Puts @p line into @p box, which is no widget's layout and therefore goes when the line goes. */
void placeInBox(QFrame *line, QBoxLayout *box)
{
    box->setSpacing(0);
    box->addWidget(line);
    QObject::connect(line, &QObject::destroyed, box, [box] { delete box; });
}

} // namespace

QFrame *FrameLine::createHorizontalLine(const QString &propertyName, QWidget *parent,
                                        const unsigned int &lineWidth,
                                        const unsigned int &crossMargin,
                                        const unsigned int &lengthMargin)
{
    auto *box = new QHBoxLayout;
    box->setContentsMargins(toPixels(lengthMargin), toPixels(crossMargin), toPixels(lengthMargin),
                            toPixels(crossMargin));

    QFrame *line = createLine(propertyName, parent, toPixels(lineWidth));
    line->setFixedHeight(toPixels(lineWidth));
    line->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    placeInBox(line, box);
    return line;
}

QFrame *FrameLine::createVerticalLine(const QString &propertyName, QWidget *parent,
                                      const unsigned int &lineWidth,
                                      const unsigned int &crossMargin,
                                      const unsigned int &lengthMargin)
{
    auto *box = new QVBoxLayout;
    box->setContentsMargins(toPixels(crossMargin), toPixels(lengthMargin), toPixels(crossMargin),
                            toPixels(lengthMargin));

    QFrame *line = createLine(propertyName, parent, toPixels(lineWidth));
    line->setFixedWidth(toPixels(lineWidth));
    line->setFrameShape(QFrame::VLine);
    line->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    placeInBox(line, box);
    return line;
}

} // namespace Widgets
} // namespace LM
