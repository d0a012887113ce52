#include "LanguageSwitch.h"
#include "MainWindow.h"
#include "Preferences.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace Gallery;

/// What the gallery's window remembers from one start to the next.
class tst_GalleryPreferences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void firstStart();
    void choicesAreKept();
    void commandLineGoesFirst();
    void languageOnTheCommandLineBringsItsDirection();
    void keptDirectionMayDifferFromTheLanguages();
    void whatIsNoLongerKnownIsForgotten();
    void windowComesBackWhereItWas();
    void brokenArrangementChangesNothing();

private:
    QTemporaryDir m_folder;
    std::unique_ptr<QSettings> m_settings;
    LanguageSwitch m_language;
};

void tst_GalleryPreferences::init()
{
    m_settings = std::make_unique<QSettings>(m_folder.filePath(QStringLiteral("gallery.ini")), QSettings::IniFormat);
    m_settings->clear();
}

void tst_GalleryPreferences::cleanup()
{
    m_language.use(QStringLiteral("en"));
    applyScheme(Scheme::Light);
}

void tst_GalleryPreferences::firstStart()
{
    const Options options = Preferences(*m_settings).completed({});
    QVERIFY(options.scheme == Scheme::Light);
    QVERIFY(!options.language);
    QVERIFY(!options.rightToLeft);
    QVERIFY(options.page.isEmpty());
}

void tst_GalleryPreferences::choicesAreKept()
{
    {
        MainWindow window(m_language);
        window.setScheme(Scheme::Dark);
        window.setLanguage(QStringLiteral("ar"));
        window.showPage(QStringLiteral("combo-boxes"));
        Preferences(*m_settings).keep(window);
    }
    m_settings->sync();
    QSettings again(m_settings->fileName(), QSettings::IniFormat);
    const Options options = Preferences(again).completed({});
    QVERIFY(options.scheme == Scheme::Dark);
    QVERIFY(options.language == QStringLiteral("ar"));
    QVERIFY(options.rightToLeft == true);
    QCOMPARE(options.page, QStringLiteral("combo-boxes"));
}

void tst_GalleryPreferences::commandLineGoesFirst()
{
    {
        MainWindow window(m_language);
        window.setScheme(Scheme::Dark);
        window.showPage(QStringLiteral("combo-boxes"));
        Preferences(*m_settings).keep(window);
    }
    Options given;
    given.scheme = Scheme::Light;
    given.page = QStringLiteral("eyedropper");
    given.rightToLeft = true;
    const Options options = Preferences(*m_settings).completed(given);
    QVERIFY(options.scheme == Scheme::Light);
    QCOMPARE(options.page, QStringLiteral("eyedropper"));
    QVERIFY(options.rightToLeft == true);
    QVERIFY(options.language == QStringLiteral("en"));
}

void tst_GalleryPreferences::languageOnTheCommandLineBringsItsDirection()
{
    {
        MainWindow window(m_language);
        window.setLanguage(QStringLiteral("ar"));
        Preferences(*m_settings).keep(window);
    }
    Options given;
    given.language = QStringLiteral("de");
    const Options options = Preferences(*m_settings).completed(given);
    QVERIFY(options.language == QStringLiteral("de"));
    QVERIFY(!options.rightToLeft);
}

void tst_GalleryPreferences::keptDirectionMayDifferFromTheLanguages()
{
    {
        MainWindow window(m_language);
        window.setLanguage(QStringLiteral("de"));
        window.setRightToLeft(true);
        Preferences(*m_settings).keep(window);
    }
    QVERIFY(Preferences(*m_settings).completed({}).rightToLeft == true);
}

void tst_GalleryPreferences::whatIsNoLongerKnownIsForgotten()
{
    m_settings->setValue(QStringLiteral("window/language"), QStringLiteral("xx"));
    m_settings->setValue(QStringLiteral("window/page"), QStringLiteral("nowhere"));
    const Options options = Preferences(*m_settings).completed({});
    QVERIFY(!options.language);
    MainWindow window(m_language);
    window.showPage(options.page);
    QVERIFY(window.currentFrame());
}

void tst_GalleryPreferences::windowComesBackWhereItWas()
{
    constexpr QSize size(900, 600);
    {
        MainWindow window(m_language);
        window.resize(size);
        window.show();
        Preferences(*m_settings).keep(window);
    }
    MainWindow window(m_language);
    QVERIFY(window.size() != size);
    Preferences(*m_settings).restoreArrangement(window);
    QCOMPARE(window.size(), size);
}

void tst_GalleryPreferences::brokenArrangementChangesNothing()
{
    MainWindow window(m_language);
    const QSize before = window.size();
    for (const QByteArray& broken : {QByteArray(), QByteArray("nonsense"), QByteArray(1000, '\xff')}) {
        window.restoreArrangement(broken);
        QCOMPARE(window.size(), before);
    }
}

QTEST_MAIN(tst_GalleryPreferences)
#include "tst_GalleryPreferences.moc"
