#include "page.h"

#include "pageparts.h"

#include <QLabel>
#include <QVBoxLayout>

#include <utility>

namespace gallery {

#define LMGALLERY_PAGE(name) Page name##Page();
#include "pages.h"

namespace {

constexpr int ViewMargin = 24;
constexpr int ViewSpacing = 8;

} // namespace

Page::Page(const QString &name, const QString &title, const QString &description, Factory factory)
    : m_name(name), m_title(title), m_description(description), m_factory(std::move(factory))
{
}

Page &Page::shot(const QString &name, std::function<QWidget *()> open)
{
    m_shots.append({name, std::move(open), nullptr});
    return *this;
}

Page &Page::blockingShot(const QString &name, std::function<void()> exec)
{
    m_shots.append({name, nullptr, std::move(exec)});
    return *this;
}

QWidget *Page::createView(SignalLog &log) const
{
    auto *view = new QWidget;
    view->setObjectName(QStringLiteral("galleryPage"));
    auto *layout = new QVBoxLayout(view);
    layout->setContentsMargins(ViewMargin, ViewMargin, ViewMargin, ViewMargin);
    layout->setSpacing(ViewSpacing);
    layout->addWidget(heading(m_title, HeadingLevel::Page));
    layout->addWidget(paragraph(m_description));
    layout->addWidget(m_factory(log));
    layout->addStretch();
    return view;
}

const QVector<Page> &pages()
{
    static const QVector<Page> all = {
#define LMGALLERY_PAGE(name) name##Page(),
#include "pages.h"
    };
    return all;
}

const Page *findPage(const QString &name)
{
    for (const Page &page : pages()) {
        if (page.name() == name) {
            return &page;
        }
    }
    return nullptr;
}

} // namespace gallery
