#include "Preferences.h"

#include "LanguageSwitch.h"
#include "MainWindow.h"

#include <QSettings>

#include <algorithm>

namespace Gallery {

namespace {

const QLatin1String DarkKey("window/dark");
const QLatin1String RightToLeftKey("window/rightToLeft");
const QLatin1String LanguageKey("window/language");
const QLatin1String PageKey("window/page");
const QLatin1String ArrangementKey("window/arrangement");

bool isKnownLanguage(const QString& code)
{
    return std::any_of(languages().begin(), languages().end(),
                       [&code](const Language& language) { return language.code == code; });
}

} // namespace

Preferences::Preferences(QSettings& settings)
    : m_settings(settings)
{
}

Options Preferences::completed(Options options) const
{
    if (!options.scheme)
        options.scheme = m_settings.value(DarkKey).toBool() ? Scheme::Dark : Scheme::Light;
    // A language brings its direction along; only a language that was kept has a direction that was kept.
    const QString language = m_settings.value(LanguageKey).toString();
    if (!options.language && isKnownLanguage(language)) {
        options.language = language;
        if (!options.rightToLeft && m_settings.contains(RightToLeftKey))
            options.rightToLeft = m_settings.value(RightToLeftKey).toBool();
    }
    if (options.page.isEmpty())
        options.page = m_settings.value(PageKey).toString();
    return options;
}

void Preferences::restoreArrangement(MainWindow& window) const
{
    window.restoreArrangement(m_settings.value(ArrangementKey).toByteArray());
}

void Preferences::keep(const MainWindow& window)
{
    m_settings.setValue(DarkKey, window.scheme() == Scheme::Dark);
    m_settings.setValue(RightToLeftKey, window.layoutDirection() == Qt::RightToLeft);
    m_settings.setValue(LanguageKey, window.language());
    m_settings.setValue(PageKey, window.currentPage());
    m_settings.setValue(ArrangementKey, window.arrangement());
}

} // namespace Gallery
