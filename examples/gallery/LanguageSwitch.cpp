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
        {QStringLiteral("es"), QStringLiteral("Español")},
        {QStringLiteral("fr"), QStringLiteral("Français")},
        {QStringLiteral("it"), QStringLiteral("Italiano")},
        {QStringLiteral("pl"), QStringLiteral("Polski")},
        {QStringLiteral("pt_BR"), QStringLiteral("Português (Brasil)")},
        {QStringLiteral("ru"), QStringLiteral("Русский")},
        {QStringLiteral("uk"), QStringLiteral("Українська")},
        {QStringLiteral("he"), QStringLiteral("עברית")},
        {QStringLiteral("ar"), QStringLiteral("العربية")},
        {QStringLiteral("ja"), QStringLiteral("日本語")},
        {QStringLiteral("zh_CN"), QStringLiteral("简体中文")},
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
        install(QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
        install(QStringLiteral("kqtui"), embedded);
        install(QStringLiteral("gallery"), embedded);
    }
    QGuiApplication::setLayoutDirection(QLocale(code).textDirection());
}

void LanguageSwitch::install(const QString& name, const QString& folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(QLocale(m_code), name, QStringLiteral("_"), folder))
        return;
    QCoreApplication::installTranslator(translator.get());
    m_translators.push_back(std::move(translator));
}

} // namespace Gallery
