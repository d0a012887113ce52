#include <KQt/Ui/DialogFileTypes.h>

#include <QRandomGenerator>
#include <QtTest>

#include <utility>

using Kestrel::Gui::DialogFileType;
using Kestrel::Gui::dialogFileTypes;
using Kestrel::Gui::selectedFilterText;

namespace {

using Pair = std::pair<QString, QString>;
using Pairs = QVector<Pair>;

Pairs typesOf(const QString& filter)
{
    const auto types = dialogFileTypes(filter);
    Pairs pairs;
    for (const DialogFileType& type : types)
        pairs.append({type.name, type.specification});
    return pairs;
}

/// White space is what it is in every language.
bool isWhite(QChar c)
{
    return c == u' ' || (c >= u'\t' && c <= u'\r') || c == QChar(0xA0) || c == QChar(0x3000);
}

/// The same conversion a second time, reading the filter from its end, a character at a time.
namespace Reference {

QStringList entriesOf(const QString& filter)
{
    QStringList entries;
    QString entry;
    for (int i = 0; i < filter.size(); ++i) {
        if (filter[i] == u';' && i + 1 < filter.size() && filter[i + 1] == u';') {
            entries += entry;
            entry.clear();
            ++i;
        } else {
            entry += filter[i];
        }
    }
    entries += entry;
    entries.removeAll(QString());
    return entries;
}

QString specificationOf(const QString& patterns)
{
    if (patterns.isEmpty())
        return QStringLiteral("*");
    QString specification;
    bool inRun = false;
    for (const QChar c : patterns) {
        const bool separates = c == u';' || isWhite(c);
        if (!separates)
            specification += c;
        else if (!inRun)
            specification += u';';
        inRun = separates;
    }
    return specification;
}

Pair typeOf(const QString& entry)
{
    int open = entry.size() - 1;
    while (open >= 0 && entry[open] != u'(')
        --open;
    if (open < 0)
        return {entry, specificationOf(entry)};

    QString inside;
    int at = open + 1;
    while (at < entry.size() && entry[at] != u')')
        inside += entry[at++];
    const bool closed = at < entry.size();
    while (!inside.isEmpty() && isWhite(inside[0]))
        inside.remove(0, 1);
    while (!inside.isEmpty() && isWhite(inside[inside.size() - 1]))
        inside.chop(1);

    QString name = entry.left(open);
    while (!name.isEmpty() && name[name.size() - 1] == u' ')
        name.chop(1);
    return {name, specificationOf(closed ? inside : entry)};
}

Pairs typesOf(const QString& filter)
{
    const auto entries = entriesOf(filter);
    Pairs types;
    for (const QString& entry : entries)
        types += typeOf(entry);
    return types;
}

} // namespace Reference

/// Text in which everything that means something in a filter turns up often.
QString randomFilter(QRandomGenerator& random)
{
    static const QStringList pieces = {
        QStringLiteral("("),           QStringLiteral(")"),      QStringLiteral(";"),     QStringLiteral(";;"),
        QStringLiteral(" "),           QStringLiteral("  "),     QStringLiteral("\t"),    QStringLiteral("\n"),
        QStringLiteral("\u00a0"),      QStringLiteral("\u3000"), QStringLiteral("*.png"), QStringLiteral("*"),
        QStringLiteral("Images"),      QStringLiteral("%1"),     QStringLiteral("%2"),    QStringLiteral("\\"),
        QStringLiteral("Bilder über"),
    };
    const int count = random.bounded(24);
    QString filter;
    for (int i = 0; i < count; ++i)
        filter += pieces[random.bounded(pieces.size())];
    return filter;
}

} // namespace

class tst_DialogFileTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneEntry_data();
    void oneEntry();
    void severalEntries_data();
    void severalEntries();
    void noEntry_data();
    void noEntry();
    void thousandsOfEntries();
    void oneHugeEntry();
    void randomFilters();
    void selectedText_data();
    void selectedText();
};

void tst_DialogFileTypes::oneEntry_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("specification");
    const auto row = [](const char* title, const char* filter, const char* name, const char* specification) {
        QTest::newRow(title) << QString::fromUtf8(filter) << QString::fromUtf8(name)
                             << QString::fromUtf8(specification);
    };

    row("one pattern", "Text (*.txt)", "Text", "*.txt");
    row("patterns", "Images (*.jpg *.png)", "Images", "*.jpg;*.png");
    row("all files", "All files (*)", "All files", "*");
    row("runs of blanks", "Images (*.jpg   *.png)", "Images", "*.jpg;*.png");
    row("semicolons", "Images (*.jpg;*.png)", "Images", "*.jpg;*.png");
    row("semicolons and white space", "Images (*.jpg ;\t\n *.png)", "Images", "*.jpg;*.png");
    row("white space around the patterns", "Text ( \t*.txt\n )", "Text", "*.txt");
    row("a semicolon around the patterns", "Text (;*.txt; )", "Text", ";*.txt;");

    row("no-break and wide blanks", "Images (\u00a0*.jpg\u3000*.png\u00a0)", "Images", "*.jpg;*.png");

    row("nothing in parentheses", "Text ()", "Text", "*");
    row("a blank in parentheses", "Text ( )", "Text", "*");
    row("white space in parentheses", "Text (\t \n)", "Text", "*");
    row("a semicolon in parentheses", "Text (;)", "Text", ";");
    row("only parentheses", "()", "", "*");
    row("only patterns", "(*.txt)", "", "*.txt");

    row("no parentheses", "Everything", "Everything", "Everything");
    row("patterns without parentheses", "*.jpg *.png", "*.jpg *.png", "*.jpg;*.png");
    row("blanks at the ends without parentheses", " *.jpg ", " *.jpg ", ";*.jpg;");
    row("a blank alone", " ", " ", ";");
    row("a semicolon alone", ";", ";", ";");

    row("no closing one", "Text (*.txt", "Text", "Text;(*.txt");
    row("no opening one", "Text *.txt)", "Text *.txt)", "Text;*.txt)");
    row("the wrong way round", "Text )*.txt(", "Text )*.txt", "Text;)*.txt(");
    row("opening one alone", "(", "", "(");
    row("closing one alone", ")", ")", ")");
    row("two pairs", "Text (plain) (*.txt)", "Text (plain)", "*.txt");
    row("a pair inside a pair", "Text (a (*.txt) b)", "Text (a", "*.txt");
    row("parentheses doubled", "Text ((*.txt))", "Text (", "*.txt");
    row("text after the pair", "Text (*.txt) and more", "Text", "*.txt");
    row("a closed pair before an open one", "Text (*.txt) (", "Text (*.txt)", "Text;(*.txt);(");

    row("blanks before the pair", "Text    (*.txt)", "Text", "*.txt");
    row("no blank before the pair", "Text(*.txt)", "Text", "*.txt");
    row("a tab before the pair stays", "Text\t(*.txt)", "Text\t", "*.txt");
    row("blanks after a tab go", "Text \t  (*.txt)", "Text \t", "*.txt");
    row("a wide blank before the pair stays", "Text\u3000(*.txt)", "Text\u3000", "*.txt");
    row("blanks at the front of the name stay", "  Text (*.txt)", "  Text", "*.txt");
    row("blanks for a name", "   (*.txt)", "", "*.txt");

    row("German", "Überblick über Bücher (*.größe)", "Überblick über Bücher", "*.größe");
    row("Russian", "Изображения (*.картинка *.png)", "Изображения", "*.картинка;*.png");
    row("Chinese", "图像 (*.图 *.png)", "图像", "*.图;*.png");
    row("Hebrew", "תמונות (*.png)", "תמונות", "*.png");
    row("beyond the first plane", "🎬 Movies (*.🎬 *.mp4)", "🎬 Movies", "*.🎬;*.mp4");
    row("full-width parentheses are text", "图像（*.png）", "图像（*.png）", "图像（*.png）");
    row("characters that mean something elsewhere", "C:\\ [a] {b} %1 &d (*.[ch]* %2 \\s)", "C:\\ [a] {b} %1 &d",
        "*.[ch]*;%2;\\s");
}

void tst_DialogFileTypes::oneEntry()
{
    QFETCH(QString, filter);
    QFETCH(QString, name);
    QFETCH(QString, specification);
    QCOMPARE(typesOf(filter), (Pairs{{name, specification}}));
    QCOMPARE(Reference::typesOf(filter), (Pairs{{name, specification}}));
}

void tst_DialogFileTypes::severalEntries_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<Pairs>("types");
    const QString images = QStringLiteral("Images");
    const QString all = QStringLiteral("All files");
    const QString star = QStringLiteral("*");
    const Pairs two = {{images, QStringLiteral("*.jpg;*.png")}, {all, star}};

    QTest::newRow("two") << "Images (*.jpg *.png);;All files (*)" << two;
    QTest::newRow("the other way round") << "All files (*);;Images (*.jpg *.png)" << Pairs{two[1], two[0]};
    QTest::newRow("an empty one between") << "Images (*.jpg *.png);;;;All files (*)" << two;
    QTest::newRow("empty ones at the ends") << ";;Images (*.jpg *.png);;;;All files (*);;" << two;
    QTest::newRow("a third semicolon belongs to the next")
        << "Images (*.jpg *.png);;;All files (*)" << Pairs{two[0], {QStringLiteral(";All files"), star}};
    QTest::newRow("the same twice") << "All files (*);;All files (*)" << Pairs{two[1], two[1]};
    QTest::newRow("a single semicolon does not part")
        << "Images (*.jpg);All files (*)" << Pairs{{QStringLiteral("Images (*.jpg);All files"), star}};
    QTest::newRow("a line feed does not part")
        << "Images (*.jpg)\nAll files (*)" << Pairs{{QStringLiteral("Images (*.jpg)\nAll files"), star}};
    QTest::newRow("two semicolons part inside parentheses too")
        << "Images (*.jpg;;*.png)"
        << Pairs{{images, QStringLiteral("Images;(*.jpg")}, {QStringLiteral("*.png)"), QStringLiteral("*.png)")}};
}

void tst_DialogFileTypes::severalEntries()
{
    QFETCH(QString, filter);
    QFETCH(Pairs, types);
    QCOMPARE(typesOf(filter), types);
    QCOMPARE(Reference::typesOf(filter), types);
}

void tst_DialogFileTypes::noEntry_data()
{
    QTest::addColumn<QString>("filter");

    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QString(QLatin1String(""));
    QTest::newRow("a separator") << QStringLiteral(";;");
    QTest::newRow("separators") << QStringLiteral(";;;;");
    QTest::newRow("many separators") << QString(2 * 5000, u';');
}

void tst_DialogFileTypes::noEntry()
{
    QFETCH(QString, filter);
    QVERIFY(dialogFileTypes(filter).isEmpty());
}

void tst_DialogFileTypes::thousandsOfEntries()
{
    constexpr int count = 20000;
    QStringList entries;
    for (int i = 0; i < count; ++i)
        entries += QStringLiteral("Kind %1 (*.k%1 *.l%1)").arg(i);

    const Pairs types = typesOf(entries.join(QStringLiteral(";;")));
    QCOMPARE(types.size(), count);
    for (int i = 0; i < count; ++i) {
        QCOMPARE(types[i].first, QStringLiteral("Kind %1").arg(i));
        QCOMPARE(types[i].second, QStringLiteral("*.k%1;*.l%1").arg(i));
    }
}

void tst_DialogFileTypes::oneHugeEntry()
{
    constexpr int length = 200000;
    const QString blanks(length, u' ');
    const QString open(length, u'(');
    const QString close(length, u')');

    QCOMPARE(typesOf(QStringLiteral("Text") + blanks + QStringLiteral("(*.a") + blanks + QStringLiteral("*.b)")),
             (Pairs{{QStringLiteral("Text"), QStringLiteral("*.a;*.b")}}));
    QCOMPARE(typesOf(open + QStringLiteral("*.a") + close), (Pairs{{open.left(length - 1), QStringLiteral("*.a")}}));
}

void tst_DialogFileTypes::randomFilters()
{
    QRandomGenerator random(20261121);
    for (int i = 0; i < 20000; ++i) {
        const QString filter = randomFilter(random);
        QVERIFY2(typesOf(filter) == Reference::typesOf(filter), qPrintable(filter));
    }
}

void tst_DialogFileTypes::selectedText_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("specification");
    QTest::addColumn<QString>("text");

    QTest::newRow("one pattern") << "All files"
                                 << "*"
                                 << "All files (*)";
    QTest::newRow("patterns") << "Images"
                              << "*.jpg;*.png"
                              << "Images (*.jpg *.png)";
    QTest::newRow("semicolons stay as many") << "Images"
                                             << ";*.jpg;;*.png;"
                                             << "Images ( *.jpg  *.png )";
    QTest::newRow("semicolons of the name stay") << "a;b"
                                                 << "*.a;*.b"
                                                 << "a;b (*.a *.b)";
    QTest::newRow("no name") << ""
                             << "*.txt"
                             << " (*.txt)";
    QTest::newRow("place markers in the name") << "100 %1 %2"
                                               << "*.txt"
                                               << "100 %1 %2 (*.txt)";
    QTest::newRow("place markers in the patterns") << "Text"
                                                   << "%1;%2"
                                                   << "Text (%1 %2)";
    QTest::newRow("no parentheses before") << "Everything"
                                           << "Everything"
                                           << "Everything (Everything)";
}

void tst_DialogFileTypes::selectedText()
{
    QFETCH(QString, name);
    QFETCH(QString, specification);
    QFETCH(QString, text);
    QCOMPARE(selectedFilterText(DialogFileType{name, specification}), text);
}

QTEST_APPLESS_MAIN(tst_DialogFileTypes)
#include "tst_DialogFileTypes.moc"
