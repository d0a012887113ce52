#pragma once

#include "Appearance.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QString>

#include <optional>

namespace Gallery {

/// What the gallery was asked for.
struct Options
{
    bool help = false;
    bool version = false;
    QString screenshotFolder; ///< empty: open the window
    QString page;             ///< slug of the page to show or to render; empty: the first one, or all
    // What the command line leaves open is as it was at the last start.
    std::optional<Scheme> scheme;
    std::optional<bool> rightToLeft;
    std::optional<QString> language; ///< one of the gallery's languages
};

/// The gallery's command line.
class CommandLine
{
public:
    CommandLine();

    /// Reads @p arguments, the program's name first.
    /// @returns nothing where they can't be understood; errorText() then says why.
    std::optional<Options> read(const QStringList& arguments);

    QString errorText() const { return m_error; }
    QString usage() const;

private:
    std::optional<Options> fail(const QString& error);
    std::optional<Options> readPresentation(Options options);
    std::optional<Options> readPage(Options options);

    QCommandLineParser m_parser;
    QCommandLineOption m_help;
    QCommandLineOption m_version;
    QCommandLineOption m_screenshots;
    QCommandLineOption m_page;
    QCommandLineOption m_palette;
    QCommandLineOption m_rightToLeft;
    QCommandLineOption m_language;
    QString m_error;
};

} // namespace Gallery
