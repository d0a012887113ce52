#pragma once

#include <QString>
#include <QVector>

#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QTranslator;
QT_END_NAMESPACE

namespace Gallery {

struct Language
{
    QString code; ///< ISO 639-1, with the country where the translation is for one: "pt_BR"
    QString name; ///< in the language itself
};

/// The languages that the gallery speaks, English first.
const QVector<Language>& languages();

/// The application's texts in one of languages(): the gallery's, the library's and Qt's own.
class LanguageSwitch
{
public:
    LanguageSwitch();
    ~LanguageSwitch();
    LanguageSwitch(const LanguageSwitch&) = delete;
    LanguageSwitch& operator=(const LanguageSwitch&) = delete;

    QString code() const { return m_code; }
    /// Replaces the installed translations and lays the application out in the direction of the language.
    void use(const QString& code);

private:
    void install(const QString& name, const QString& folder);

    QString m_code;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace Gallery
