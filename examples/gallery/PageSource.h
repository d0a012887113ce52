#pragma once

#include <QString>
#include <QStringList>

namespace Gallery {

/// What a page's own source tells about it. Every page's file is compiled into the gallery as ":/pages/<file name>".
///
/// The lines that make what a page shows stand between two lines of the form "//! [code]"; there can be several such
/// passages. What is shown is thereby what was compiled.
class PageSource
{
public:
    /// @param fileName without a folder; a file that is not there has neither code nor components
    static PageSource ofFile(const QString& fileName);

    explicit PageSource(QString text);

    /// The marked passages, each moved to the left margin, with an empty line between them.
    QString code() const;

    /// The components of the library that the page includes, and those after "//! [shows]" that it shows through
    /// others; by name and in the order of the file.
    QStringList components() const;

private:
    QString m_text;
};

} // namespace Gallery
