#include "page.h"
#include "pageparts.h"
#include "signallog.h"

#include <lmwidgets/flowlayout.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

namespace gallery {

using LM::Widgets::FlowLayout;

namespace {

constexpr int TagSpacing = 8;
constexpr int TagMargin = 12;
constexpr int MostSpace = 600;
constexpr int SliderWidth = 240;

const QStringList &tagNames()
{
    static const QStringList names = {QStringLiteral("ground"),
                                      QStringLiteral("low vegetation"),
                                      QStringLiteral("building"),
                                      QStringLiteral("water"),
                                      QStringLiteral("bridge deck"),
                                      QStringLiteral("rail"),
                                      QStringLiteral("road surface"),
                                      QStringLiteral("overhead structure"),
                                      QStringLiteral("noise"),
                                      QStringLiteral("wire"),
                                      QStringLiteral("tower"),
                                      QStringLiteral("unclassified"),
                                      QStringLiteral("high vegetation, single trees and shrubs")};
    return names;
}

/** Tags that go when they are clicked. Whatever is around it gives it the height it needs. */
class TagArea : public QWidget
{
public:
    explicit TagArea(SignalLog *log)
        : m_log(log), m_flow(new FlowLayout(this, TagMargin, TagSpacing, TagSpacing))
    {
        for (const QString &name : tagNames()) {
            add(name);
        }
    }

    void add(const QString &name)
    {
        auto *tag = new QPushButton(name + QStringLiteral("  \u00d7"));
        tag->setAutoDefault(false);
        connect(tag, &QPushButton::clicked, this, [this, tag, name] {
            tag->deleteLater();
            m_flow->removeWidget(tag);
            report(QStringLiteral("removed"), name);
        });
        m_flow->addWidget(tag);
    }

    void addNext()
    {
        const QString name = tagNames().at(m_added++ % tagNames().size());
        add(name);
        report(QStringLiteral("added"), name);
    }

    /** Hides or shows every second tag. */
    void setThinned(bool thinned)
    {
        for (int i = 1; i < m_flow->count(); i += 2) {
            m_flow->itemAt(i)->widget()->setVisible(!thinned);
        }
    }

private:
    void report(const QString &event, const QString &name)
    {
        if (m_log) {
            m_log->note(QStringLiteral("FlowLayout"), event,
                        QStringLiteral("%1, heightForWidth(%2) = %3")
                            .arg(name)
                            .arg(width())
                            .arg(m_flow->heightForWidth(width())));
        }
    }

    SignalLog *m_log;
    FlowLayout *m_flow;
    int m_added = 0;
};

/** A slider that takes room away from what stands at the left of @p space. */
QSlider *widthSlider(QWidget *space)
{
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setRange(0, MostSpace);
    slider->setInvertedAppearance(true);
    slider->setFixedWidth(SliderWidth);
    QObject::connect(slider, &QSlider::valueChanged, space, &QWidget::setFixedWidth);
    space->setFixedWidth(0);
    return slider;
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    auto *layout = contentLayout(content);
    auto *body = addSection(
        layout, QStringLiteral("Tags"),
        QStringLiteral("Make the window narrower, or move the slider: the tags wrap, and what is "
                       "below follows. A click removes a tag."));
    auto *tags = new TagArea(&log);
    auto *space = new QWidget;
    body->addWidget(row({new QLabel(QStringLiteral("Width")), widthSlider(space),
                         button(QStringLiteral("Add a tag"), [tags] { tags->addNext(); }),
                         check(QStringLiteral("Hide every second"), false,
                               [tags](bool thinned) { tags->setThinned(thinned); })}));
    // A layout does not ask what the height is at a widget's maximum width, so the width is set by
    // what stands beside it.
    auto *line = new QHBoxLayout;
    line->setSpacing(0);
    line->addWidget(framed(tags), 1);
    line->addWidget(space);
    body->addLayout(line);
    body->addWidget(paragraph(QStringLiteral("This line stands below the last row of tags.")));
    return content;
}

/** A window of tags @p width px wide, as high as they need. */
std::function<QWidget *()> tagShot(int width)
{
    return [width] {
        auto *tags = new TagArea(nullptr);
        tags->setFocusPolicy(Qt::StrongFocus);
        tags->setFocus();
        tags->show();
        // The theme has given the tags their size now.
        tags->resize(width, tags->heightForWidth(width));
        return tags;
    };
}

} // namespace

Page flowPage()
{
    return Page(QStringLiteral("flow"), QStringLiteral("Flow layout"),
                QStringLiteral("FlowLayout places widgets from left to right and wraps them like "
                               "words; its height depends on its width."),
                createContent)
        .shot(QStringLiteral("narrow"), tagShot(360))
        .shot(QStringLiteral("wide"), tagShot(700));
}

} // namespace gallery
