#include "CodeView.h"
#include "LanguageSwitch.h"
#include "MainWindow.h"
#include "Page.h"
#include "PageFrame.h"
#include "PageRegistry.h"
#include "PageSource.h"

#include <QClipboard>
#include <QDirIterator>
#include <QPushButton>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextLayout>
#include <QtTest>

using namespace Gallery;

/// The code that pages show, and the components that find them.
class tst_GalleryPageSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void code_data();
    void code();
    void componentsAreWhatIsIncluded();
    void unknownFile();
    void everyPageShowsCodeThatItIsCompiledFrom();
    void everyExportedComponentHasAPlace();
    void codeTabShowsAndCopies();
    void noTabWithoutCode();
    void codeFollowsThePalette();
};

void tst_GalleryPageSource::code_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("nothing marked") << QStringLiteral("int a;\nint b;\n") << QString();
    QTest::newRow("one passage") << QStringLiteral("a;\n//! [code]\nb;\nc;\n//! [code]\nd;\n")
                                 << QStringLiteral("b;\nc;");
    QTest::newRow("moved to the left margin")
        << QStringLiteral("    //! [code]\n    if (a)\n        b;\n\n    c;\n    //! [code]\n")
        << QStringLiteral("if (a)\n    b;\n\nc;");
    QTest::newRow("two passages") << QStringLiteral(
                                         "//! [code]\na;\n//! [code]\nb;\n  //! [code]\n  c;\n  //! [code]\n")
                                  << QStringLiteral("a;\n\nc;");
    QTest::newRow("not closed") << QStringLiteral("//! [code]\na;\n") << QString();
    QTest::newRow("a mark is a line of its own") << QStringLiteral("x; //! [code]\na;\n//! [code]\nb;\n") << QString();
}

void tst_GalleryPageSource::code()
{
    QFETCH(QString, text);
    QTEST(PageSource(text).code(), "expected");
}

void tst_GalleryPageSource::componentsAreWhatIsIncluded()
{
    const PageSource source(QStringLiteral("#include \"Page.h\"\n#include <KQt/Ui/PenPicker.h>\n#include <QLabel>\n"
                                           "#include <KQt/Ui/SelectionFrameWidget/SelectionFrameItem.h>\n"
                                           "// #include <KQt/Ui/Check.h>\n//! [shows] HighlightFrame AlwaysOnTop\n"));
    QCOMPARE(source.components(), QStringList({QStringLiteral("PenPicker"), QStringLiteral("SelectionFrameItem"),
                                               QStringLiteral("HighlightFrame"), QStringLiteral("AlwaysOnTop")}));
}

void tst_GalleryPageSource::unknownFile()
{
    const PageSource source = PageSource::ofFile(QStringLiteral("Nowhere.cpp"));
    QVERIFY(source.code().isEmpty());
    QVERIFY(source.components().isEmpty());
}

void tst_GalleryPageSource::everyPageShowsCodeThatItIsCompiledFrom()
{
    for (const PageRegistration& page : registeredPages()) {
        QVERIFY2(!page.source().code().isEmpty(), page.title);
        QVERIFY2(!page.source().components().isEmpty(), page.title);
    }
}

void tst_GalleryPageSource::everyExportedComponentHasAPlace()
{
    QStringList shown;
    for (const PageRegistration& page : registeredPages())
        shown << page.source().components();

    const QDir library(QStringLiteral(KQTUI_SOURCE_FOLDER "/KQt/Ui"));
    QDirIterator headers(library.path(), {QStringLiteral("*.h")}, QDir::Files, QDirIterator::Subdirectories);
    int components = 0;
    while (headers.hasNext()) {
        QFile header(headers.next());
        QVERIFY(header.open(QIODevice::ReadOnly));
        const QString name = headers.fileInfo().completeBaseName();
        // An exported class that is named as its file is a component; helpers of one are none.
        if (!header.readAll().contains("class KQTUI_EXPORT " + name.toUtf8()))
            continue;
        ++components;
        QVERIFY2(shown.contains(name), qPrintable(name));
    }
    QVERIFY(components > 40);
}

void tst_GalleryPageSource::codeTabShowsAndCopies()
{
    LanguageSwitch language;
    MainWindow window(language);
    window.showPage(QStringLiteral("combo-boxes"));
    Page& page = *window.currentFrame()->page();
    const auto* view = page.findChild<CodeView*>();
    QVERIFY(view->toPlainText().contains(QStringLiteral("new AdvancedComboBox;")));
    QVERIFY(view->isReadOnly());
    auto* copy = view->parentWidget()->findChild<QPushButton*>();
    QVERIFY(copy);
    copy->click();
    QCOMPARE(QGuiApplication::clipboard()->text(), view->toPlainText() + QLatin1Char('\n'));
}

void tst_GalleryPageSource::noTabWithoutCode()
{
    Page page(QStringLiteral("a page of the test"));
    const auto* tabs = page.findChild<QTabWidget*>();
    const int tab = tabs->indexOf(page.findChild<CodeView*>()->parentWidget());
    QVERIFY(!tabs->isTabVisible(tab));
    page.setCode(QStringLiteral("int a;"));
    QVERIFY(tabs->isTabVisible(tab));
}

void tst_GalleryPageSource::codeFollowsThePalette()
{
    CodeView view;
    view.setPlainText(QStringLiteral("return nullptr;"));
    const auto keyword = [&view] {
        return view.document()->firstBlock().layout()->formats().value(0).format.foreground().color();
    };
    const auto use = [&view](const QColor& base, const QColor& text) {
        QPalette palette;
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Text, text);
        view.setPalette(palette);
    };
    use(Qt::white, Qt::black);
    const QColor onLight = keyword();
    use(Qt::black, Qt::white);
    QVERIFY(keyword().lightness() > onLight.lightness());
    use(Qt::white, Qt::black);
    QCOMPARE(keyword(), onLight);
}

QTEST_MAIN(tst_GalleryPageSource)
#include "tst_GalleryPageSource.moc"
