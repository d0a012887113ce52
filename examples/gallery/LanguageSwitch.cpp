#include "LanguageSwitch.h"

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <utility>

namespace Gallery {

const QVector<Language>& languages()
{
    static const QVector<Language> all = {
        {QStringLiteral("en"), QStringLiteral("English")},
        {QStringLiteral("de"), QStringLiteral("Deutsch")},
        {QStringLiteral("ar"), QStringLiteral("العربية")},
    };
    return all;
}

LanguageSwitch::LanguageSwitch()
    : m_code(languages().constFirst().code)
{
}

// A translator removes itself from the application.
LanguageSwitch::~LanguageSwitch() = default;

void LanguageSwitch::use(const QString& code)
{
    m_translators.clear();
    m_code = code;
    // English stands in the sources.
    if (code != languages().constFirst().code) {
        const QString embedded = QStringLiteral(":/translations");
        install(QStringLiteral("qtbase_"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
        install(QStringLiteral("kqtui_"), embedded);
        install(QStringLiteral("gallery_"), embedded);
    }
    QGuiApplication::setLayoutDirection(QLocale(code).textDirection());
}

void LanguageSwitch::install(const QString& name, const QString& folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(name + m_code, folder))
        return;
    QCoreApplication::installTranslator(translator.get());
    m_translators.push_back(std::move(translator));
}

} // namespace Gallery
