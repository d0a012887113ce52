#pragma once

#include <QWidget>

namespace Gallery {

class Page;
struct PageRegistration;

/// A page below its title.
class PageFrame : public QWidget
{
    Q_OBJECT

public:
    explicit PageFrame(const PageRegistration& registration, QWidget* parent = nullptr);
    ~PageFrame() override;

    Page* page() const { return m_page; }

private:
    Page* m_page;
};

} // namespace Gallery
