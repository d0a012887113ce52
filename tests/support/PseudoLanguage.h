#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>
#include <QString>
#include <QTranslator>

namespace TestSupport {

/// While it exists, each text reads "[!context!text!]": what does not was not translated. Installing and removing it
/// sends LanguageChange events as a change of the application's language does.
class PseudoLanguage : public QTranslator
{
public:
    PseudoLanguage() { QCoreApplication::installTranslator(this); }
    ~PseudoLanguage() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* sourceText, const char* /*disambiguation*/ = nullptr,
                      int /*n*/ = -1) const override
    {
        return translated(context, sourceText);
    }

    /// What a text reads in this language.
    static QString translated(const char* context, const char* sourceText)
    {
        return QStringLiteral("[!%1!%2!]").arg(QString::fromUtf8(context), QString::fromUtf8(sourceText));
    }

    /// The translated parts of a text.
    static QSet<QString> translatedParts(const QString& text)
    {
        QSet<QString> parts;
        auto matches = part().globalMatch(text);
        while (matches.hasNext())
            parts.insert(matches.next().captured());
        return parts;
    }

    /// What is left of a text without them.
    static QString untranslatedPart(QString text) { return text.remove(part()); }

private:
    static const QRegularExpression& part()
    {
        static const QRegularExpression expression(QStringLiteral("\\[!.*?!\\]"));
        return expression;
    }
};

} // namespace TestSupport
