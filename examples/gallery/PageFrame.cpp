#include "PageFrame.h"

#include "Page.h"
#include "PageRegistry.h"

#include <QLabel>
#include <QVBoxLayout>

namespace Gallery {

PageFrame::PageFrame(const PageRegistration& registration, QWidget* parent)
    : QWidget(parent)
    , m_page(registration.create(this))
{
    m_page->setCode(registration.source().code());

    auto* title = new QLabel(registration.translatedTitle());
    title->setObjectName(QStringLiteral("title"));
    constexpr qreal titleScale = 1.6;
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * titleScale);
    font.setBold(true);
    title->setFont(font);

    constexpr int margin = 18;
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(title);
    layout->addWidget(m_page, 1);
}

// Hidden first: what the components signal when they vanish, as that the mouse leaves them, still finds the whole page.
PageFrame::~PageFrame()
{
    hide();
}

} // namespace Gallery
