#pragma once

#include "PageSource.h"

#include <QString>

#include <functional>
#include <vector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Gallery {

class Page;

/// How the gallery knows its pages: each page's file defines one of these at namespace scope. The page's class declares
/// its own translation context: Q_DECLARE_TR_FUNCTIONS(Gallery::AdvancedColorPickerPage).
///
///     const PageRegistration registration(100, QT_TRANSLATE_NOOP("Gallery", "Advanced colour picker"),
///                                         [](QWidget* parent) { return new AdvancedColorPickerPage(parent); });
struct PageRegistration
{
    /// @param position where the page stands in the list, ascending
    /// @param title    untranslated, context "Gallery"; a string literal
    /// @param file     the file that the registration stands in, by itself
    PageRegistration(int position, const char* title, std::function<Page*(QWidget* parent)> create,
                     const char* file = __builtin_FILE());

    QString translatedTitle() const;
    /// The title as part of a file name and on the command line, in no language but the sources'.
    QString slug() const;

    /// The code that the page shows and the components it is about.
    PageSource source() const;

    int position;
    const char* title;
    std::function<Page*(QWidget* parent)> create;
    const char* file;
};

/// Every registered page in the order of the list.
std::vector<PageRegistration> registeredPages();

/// @p text in lower case, its words joined by "-".
QString slug(const QString& text);

} // namespace Gallery
