#include "CommandLine.h"

#include "LanguageSwitch.h"
#include "PageRegistry.h"

#include <QStringList>

namespace Gallery {

namespace {

QStringList languageCodes()
{
    QStringList codes;
    for (const Language& language : languages())
        codes << language.code;
    return codes;
}

QStringList pageSlugs()
{
    QStringList slugs;
    for (const PageRegistration& page : registeredPages())
        slugs << page.slug();
    return slugs;
}

} // namespace

CommandLine::CommandLine()
    : m_help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this text."))
    , m_version({QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Shows the version."))
    , m_screenshots(QStringLiteral("screenshots"),
                    QStringLiteral("Renders each page and each of its popups to a PNG file in <folder> instead of "
                                   "opening the window."),
                    QStringLiteral("folder"))
    , m_page(QStringLiteral("page"),
             QStringLiteral("The page to start with, or the only one to render: %1.")
                 .arg(pageSlugs().join(QStringLiteral(", "))),
             QStringLiteral("name"))
    , m_palette(QStringLiteral("palette"), QStringLiteral("The colours: light or dark."), QStringLiteral("palette"))
    , m_rightToLeft(QStringLiteral("rtl"), QStringLiteral("Lays everything out from right to left."))
    , m_language(QStringLiteral("language"),
                 QStringLiteral("The language of the texts: %1.").arg(languageCodes().join(QStringLiteral(", "))),
                 QStringLiteral("code"))
{
    m_parser.setApplicationDescription(
        QStringLiteral("Shows the components of KQtUi: try them, change their properties, watch their signals."));
    m_parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    m_parser.addOptions({m_help, m_version, m_screenshots, m_page, m_palette, m_rightToLeft, m_language});
}

QString CommandLine::usage() const
{
    return m_parser.helpText();
}

std::optional<Options> CommandLine::read(const QStringList& arguments)
{
    m_error.clear();
    if (!m_parser.parse(arguments))
        return fail(m_parser.errorText());
    if (!m_parser.positionalArguments().isEmpty())
        return fail(QStringLiteral("Unexpected argument '%1'.").arg(m_parser.positionalArguments().constFirst()));

    Options options;
    options.help = m_parser.isSet(m_help);
    options.version = m_parser.isSet(m_version);
    if (m_parser.isSet(m_rightToLeft))
        options.rightToLeft = true;
    options.screenshotFolder = m_parser.value(m_screenshots);
    if (m_parser.isSet(m_screenshots) && options.screenshotFolder.isEmpty())
        return fail(QStringLiteral("The folder for the screenshots is empty."));
    return readPresentation(options);
}

std::optional<Options> CommandLine::readPresentation(Options options)
{
    if (m_parser.isSet(m_palette)) {
        const QString scheme = m_parser.value(m_palette);
        if (scheme != QLatin1String("light") && scheme != QLatin1String("dark"))
            return fail(QStringLiteral("Unknown palette '%1'.").arg(scheme));
        options.scheme = scheme == QLatin1String("dark") ? Scheme::Dark : Scheme::Light;
    }
    if (m_parser.isSet(m_language)) {
        const QString language = m_parser.value(m_language);
        if (!languageCodes().contains(language))
            return fail(QStringLiteral("Unknown language '%1'.").arg(language));
        options.language = language;
    }
    return readPage(options);
}

std::optional<Options> CommandLine::readPage(Options options)
{
    if (!m_parser.isSet(m_page))
        return options;
    // The title is as good as its slug.
    options.page = slug(m_parser.value(m_page));
    if (!pageSlugs().contains(options.page))
        return fail(QStringLiteral("Unknown page '%1'.").arg(m_parser.value(m_page)));
    return options;
}

std::optional<Options> CommandLine::fail(const QString& error)
{
    m_error = error;
    return std::nullopt;
}

} // namespace Gallery
