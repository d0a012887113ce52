#pragma once

#include <QDir>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Gallery {

class Page;
struct PageRegistration;

/// Writes pictures of pages and of what they can open, and says on the standard streams where each went.
///
/// A page's picture is "<slug>.png", that of a popup "<slug>--<popup>.png". A picture that is of one colour, or can't
/// be written, is a failure; the others are written all the same.
class Screenshots
{
public:
    /// @param folder is made where it does not exist
    explicit Screenshots(const QString& folder);

    /// Each page, or the one whose slug is @p onlyPage, with its popups.
    void write(const QString& onlyPage = {});

    /// The gallery's whole window, as "window.png".
    void writeWindow(QWidget& window);

    /// Whether every picture so far was written and shows something.
    bool ok() const { return m_ok; }

private:
    void writePage(const PageRegistration& registration);
    void checkStage(const Page& page, const QString& pageSlug);
    void writePopups(Page& page, const QString& pageSlug);
    void writePicture(QWidget& widget, const QString& name);
    void fail(const QString& reason);

    QDir m_folder;
    bool m_ok = true;
};

} // namespace Gallery
