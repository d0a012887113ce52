#pragma once

#include <QtGlobal>

#include <functional>
#include <vector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Gallery {

class Page;

/// How the gallery knows its pages: each page's file defines one of these at namespace scope.
///
///     const PageRegistration registration(100, QT_TRANSLATE_NOOP("Gallery", "Advanced colour picker"),
///                                         [](QWidget* parent) { return new AdvancedColorPickerPage(parent); });
struct PageRegistration
{
    /// @param position where the page stands in the list, ascending
    /// @param title    untranslated, context "Gallery"; a string literal
    PageRegistration(int position, const char* title, std::function<Page*(QWidget* parent)> create);

    int position;
    const char* title;
    std::function<Page*(QWidget* parent)> create;
};

/// Every registered page in the order of the list.
std::vector<PageRegistration> registeredPages();

} // namespace Gallery
