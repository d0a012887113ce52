#include "PageRegistry.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace Gallery {

namespace {

// A function's static: registrations in other files may run before this file's own statics would exist.
std::vector<PageRegistration>& registry()
{
    static std::vector<PageRegistration> pages;
    return pages;
}

} // namespace

PageRegistration::PageRegistration(int position, const char* title, std::function<Page*(QWidget*)> create,
                                   const char* file)
    : position(position)
    , title(title)
    , create(std::move(create))
    , file(file)
{
    registry().push_back(*this);
}

QString PageRegistration::translatedTitle() const
{
    return QCoreApplication::translate("Gallery", title);
}

QString PageRegistration::slug() const
{
    return Gallery::slug(QString::fromUtf8(title));
}

PageSource PageRegistration::source() const
{
    return PageSource::ofFile(QFileInfo(QString::fromUtf8(file)).fileName());
}

std::vector<PageRegistration> registeredPages()
{
    std::vector<PageRegistration> pages = registry();
    std::sort(pages.begin(), pages.end(),
              [](const PageRegistration& a, const PageRegistration& b) { return a.position < b.position; });
    return pages;
}

QString slug(const QString& text)
{
    static const QRegularExpression betweenWords(QStringLiteral("[^a-z0-9]+"));
    return text.toLower().split(betweenWords, Qt::SkipEmptyParts).join(QLatin1Char('-'));
}

} // namespace Gallery
