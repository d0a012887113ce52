#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QTranslator>

namespace TestSupport {

/// Translates every text of one context to "<text>" and nothing else, while it exists. Installing and removing it sends
/// LanguageChange events as a change of the application's language does.
class ContextTranslator : public QTranslator
{
public:
    explicit ContextTranslator(const char* context)
        : m_context(context)
    {
        QCoreApplication::installTranslator(this);
    }
    ~ContextTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* sourceText, const char* /*disambiguation*/ = nullptr,
                      int /*n*/ = -1) const override
    {
        return m_context == context ? translated(sourceText) : QString();
    }

    /// What a text of the context reads while the translator exists.
    static QString translated(const char* sourceText)
    {
        return QLatin1Char('<') + QString::fromUtf8(sourceText) + QLatin1Char('>');
    }

private:
    QByteArray m_context;
};

} // namespace TestSupport
