#include "support/TranslationFile.h"

#include <QDir>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>

using TestSupport::readTranslationFile;
using TestSupport::TranslationFile;
using TestSupport::TranslationMessage;

namespace {

const QStringList languages = { // clazy:exclude=non-pod-global-static
    QStringLiteral("ar"), QStringLiteral("de"), QStringLiteral("es"),    QStringLiteral("fr"),
    QStringLiteral("he"), QStringLiteral("it"), QStringLiteral("ja"),    QStringLiteral("pl"),
    QStringLiteral("ru"), QStringLiteral("uk"), QStringLiteral("pt_BR"), QStringLiteral("zh_CN")};

QDir folder()
{
    return {QStringLiteral(KQTUI_TRANSLATION_SOURCES)};
}

/// Everything that the expression finds in the text, sorted: its order may change in a translation.
QStringList allOf(const QRegularExpression& expression, const QString& text)
{
    QStringList found;
    auto matches = expression.globalMatch(text);
    while (matches.hasNext())
        found << matches.next().captured();
    found.sort();
    return found;
}

QStringList places(const QString& text)
{
    static const QRegularExpression place(QStringLiteral("%L?(\\d{1,2}|n)"));
    return allOf(place, text);
}

QStringList mnemonics(const QString& text)
{
    static const QRegularExpression mnemonic(QStringLiteral("&(?=[^&\\s])"));
    return allOf(mnemonic, text);
}

/// How a text ends: "..." for an ellipsis, ":", ".", "?", or nothing; each in the script of the language.
QString ending(const QString& text)
{
    const QString trimmed = text.trimmed();
    struct Ending
    {
        QString written;
        QString meaning;
    };
    static const QVector<Ending> endings = {
        {QStringLiteral("..."), QStringLiteral("...")}, {QStringLiteral("…"), QStringLiteral("...")},
        {QStringLiteral(":"), QStringLiteral(":")},     {QStringLiteral("："), QStringLiteral(":")},
        {QStringLiteral("."), QStringLiteral(".")},     {QStringLiteral("。"), QStringLiteral(".")},
        {QStringLiteral("?"), QStringLiteral("?")},     {QStringLiteral("？"), QStringLiteral("?")},
        {QStringLiteral("؟"), QStringLiteral("?")},
    };
    for (const Ending& candidate : endings) {
        if (trimmed.endsWith(candidate.written))
            return candidate.meaning;
    }
    return {};
}

bool isOf(QChar::Script script, const QString& language)
{
    if (language == QLatin1String("ar"))
        return script == QChar::Script_Arabic;
    if (language == QLatin1String("he"))
        return script == QChar::Script_Hebrew;
    if (language == QLatin1String("ru") || language == QLatin1String("uk"))
        return script == QChar::Script_Cyrillic;
    if (language == QLatin1String("ja"))
        return script == QChar::Script_Han || script == QChar::Script_Hiragana || script == QChar::Script_Katakana;
    if (language == QLatin1String("zh_CN"))
        return script == QChar::Script_Han;
    return script == QChar::Script_Latin;
}

bool hasLetters(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar character) { return character.isLetter(); });
}

/// The name of a component is the same in every language.
bool staysAsItIs(const TranslationMessage& message)
{
    return message.source == message.context.section(QStringLiteral("::"), -1);
}

} // namespace

/// The translations as they lie in the repository.
class tst_TranslationFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyLanguageHasItsFiles();
    void everyTextIsTranslated_data() { files(); }
    void everyTextIsTranslated();
    void theSameTextsInEveryLanguage_data() { files(); }
    void theSameTextsInEveryLanguage();
    void libraryTextsHaveNotes_data();
    void libraryTextsHaveNotes();
    void placesAreKept_data() { files(); }
    void placesAreKept();
    void mnemonicsAreKept_data() { files(); }
    void mnemonicsAreKept();
    void endingsAreKept_data() { files(); }
    void endingsAreKept();
    void textsAreInTheScriptOfTheLanguage_data() { files(); }
    void textsAreInTheScriptOfTheLanguage();

private:
    /// A row for each .ts file.
    static void files();
    /// The file of the row.
    static TranslationFile read();
};

void tst_TranslationFiles::files()
{
    QTest::addColumn<QString>("name");
    const auto names = folder().entryList({QStringLiteral("*.ts")});
    for (const QString& name : names)
        QTest::newRow(qPrintable(name)) << name;
}

TranslationFile tst_TranslationFiles::read()
{
    QFETCH(QString, name);
    return readTranslationFile(folder().filePath(name));
}

void tst_TranslationFiles::everyLanguageHasItsFiles()
{
    QStringList expected;
    for (const QString& program : {QStringLiteral("gallery_"), QStringLiteral("kqtui_")}) {
        for (const QString& language : languages)
            expected << program + language + QStringLiteral(".ts");
    }
    expected.sort();
    QStringList found = folder().entryList({QStringLiteral("*.ts")});
    found.sort();
    QCOMPARE(found, expected);
}

void tst_TranslationFiles::everyTextIsTranslated()
{
    QFETCH(QString, name);
    const TranslationFile file = read();
    QVERIFY2(file.error.isEmpty(), qPrintable(file.error));
    QCOMPARE(name.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('_'), 1), file.language);
    QVERIFY(!file.messages.isEmpty());
    for (const TranslationMessage& message : file.messages) {
        QVERIFY2(message.finished, qPrintable(message.key()));
        for (const QString& translation : message.translations) {
            QVERIFY2(!translation.isEmpty(), qPrintable(message.key()));
            QVERIFY2(translation == translation.trimmed(), qPrintable(message.key()));
        }
    }
}

void tst_TranslationFiles::theSameTextsInEveryLanguage()
{
    QFETCH(QString, name);
    const QString program = name.section(QLatin1Char('_'), 0, 0);
    const TranslationFile first = readTranslationFile(folder().filePath(program + QStringLiteral("_de.ts")));
    const TranslationFile file = read();
    QStringList expected;
    for (const TranslationMessage& message : first.messages)
        expected << message.key() + QLatin1Char('|') + message.note;
    QStringList found;
    for (const TranslationMessage& message : file.messages)
        found << message.key() + QLatin1Char('|') + message.note;
    // lupdate adds texts where it pleases.
    expected.sort();
    found.sort();
    QCOMPARE(found, expected);
}

void tst_TranslationFiles::libraryTextsHaveNotes_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << QStringLiteral("kqtui_%1.ts").arg(language);
}

void tst_TranslationFiles::libraryTextsHaveNotes()
{
    const TranslationFile file = read();
    for (const TranslationMessage& message : file.messages)
        QVERIFY2(!message.note.isEmpty(), qPrintable(message.key()));
}

void tst_TranslationFiles::placesAreKept()
{
    const TranslationFile file = read();
    for (const TranslationMessage& message : file.messages) {
        for (const QString& translation : message.translations) {
            QVERIFY2(places(translation) == places(message.source), qPrintable(message.key()));
            // Stands for the per cent sign in the captions of frames.
            QVERIFY2(translation.count(QLatin1Char('#')) == message.source.count(QLatin1Char('#')),
                     qPrintable(message.key()));
        }
    }
}

void tst_TranslationFiles::mnemonicsAreKept()
{
    const TranslationFile file = read();
    for (const TranslationMessage& message : file.messages) {
        for (const QString& translation : message.translations)
            QVERIFY2(mnemonics(translation).size() == mnemonics(message.source).size(), qPrintable(message.key()));
    }
}

void tst_TranslationFiles::endingsAreKept()
{
    const TranslationFile file = read();
    for (const TranslationMessage& message : file.messages) {
        for (const QString& translation : message.translations) {
            const QString text = message.key() + QStringLiteral("\n") + translation;
            QVERIFY2(ending(translation) == ending(message.source), qPrintable(text));
        }
    }
}

void tst_TranslationFiles::textsAreInTheScriptOfTheLanguage()
{
    const TranslationFile file = read();
    for (const TranslationMessage& message : file.messages) {
        if (!message.finished || !hasLetters(message.source) || staysAsItIs(message))
            continue;
        for (const QString& translation : message.translations) {
            const bool fits = std::any_of(translation.begin(), translation.end(),
                                          [&file](QChar character) { return isOf(character.script(), file.language); });
            QVERIFY2(fits, qPrintable(message.key()));
        }
    }
}

QTEST_GUILESS_MAIN(tst_TranslationFiles)
#include "tst_TranslationFiles.moc"
