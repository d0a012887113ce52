#pragma once

#include <QFile>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QXmlStreamReader>

namespace TestSupport {

/// A text of a .ts file.
struct TranslationMessage
{
    QString context;
    QString source;
    QString comment; ///< tells texts apart that are alike
    QString note;    ///< for the translator
    bool finished = true;
    QStringList translations; ///< one, or one for each plural form

    /// What makes it another text to a translator.
    QString key() const { return context + QLatin1Char('|') + source + QLatin1Char('|') + comment; }
};

/// A .ts file as lupdate writes it.
struct TranslationFile
{
    QString language;
    QVector<TranslationMessage> messages;
    QString error; ///< empty where the file could be read
};

inline TranslationMessage readMessage(QXmlStreamReader& xml, const QString& context)
{
    TranslationMessage message;
    message.context = context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("comment")) {
            message.comment = xml.readElementText();
        } else if (xml.name() == QLatin1String("extracomment")) {
            message.note = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.finished = !xml.attributes().hasAttribute(QLatin1String("type"));
            QString text;
            while (xml.readNext() != QXmlStreamReader::EndElement && !xml.atEnd()) {
                if (xml.isStartElement())
                    message.translations << xml.readElementText();
                else
                    text += xml.text();
            }
            if (message.translations.isEmpty())
                message.translations << text;
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

inline TranslationFile readTranslationFile(const QString& path)
{
    TranslationFile result;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        result.error = file.errorString();
        return result;
    }
    QXmlStreamReader xml(&file);
    xml.readNextStartElement();
    result.language = xml.attributes().value(QLatin1String("language")).toString();
    while (xml.readNextStartElement()) {
        QString context;
        while (xml.readNextStartElement()) {
            if (xml.name() == QLatin1String("name"))
                context = xml.readElementText();
            else if (xml.name() == QLatin1String("message"))
                result.messages << readMessage(xml, context);
            else
                xml.skipCurrentElement();
        }
    }
    result.error = xml.hasError() ? xml.errorString() : QString();
    return result;
}

} // namespace TestSupport
