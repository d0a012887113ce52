#include <KQt/Ui/StandardDialogs.h>

#include "support/ModalDialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>
#include <QWidget>

#include <functional>
#include <memory>
#include <type_traits>

using Kestrel::Gui::StandardDialogs;
using OpenMode = StandardDialogs::OpenMode;
using TestSupport::ModalDialog;

namespace {

const QString caption = QStringLiteral("Choose something");
const QString filter = QStringLiteral("Texts (*.txt);;Pictures (*.jpg *.png)");
const QString pictures = QStringLiteral("Pictures (*.jpg *.png)");

/// What derived classes see.
struct Derived : StandardDialogs
{
    using StandardDialogs::GetOpenImpl;
    using StandardDialogs::GetOpenImplQt;
    using StandardDialogs::ImplMode;
    using StandardDialogs::qt_file_dialog_filter_reg_exp;
};

/// What a file dialog showed of what it was asked for.
struct Seen
{
    QString caption;
    QString dir;
    QStringList filters;
    QString selectedFilter;
    QFileDialog::FileMode mode = QFileDialog::AnyFile;
    QFileDialog::AcceptMode acceptMode = QFileDialog::AcceptOpen;
    QFileDialog::Options options;
    QObject* parent = nullptr;
};

Seen look(const QFileDialog& dialog)
{
    return {dialog.windowTitle(), dialog.directory().path(), dialog.nameFilters(), dialog.selectedNameFilter(),
            dialog.fileMode(),    dialog.acceptMode(),       dialog.options(),     dialog.parent()};
}

/// Types names into the dialog's line edit and presses Return.
void choose(QFileDialog& dialog, const QString& names)
{
    auto* edit = dialog.findChild<QLineEdit*>();
    edit->setText(names);
    QTest::keyClick(edit, Qt::Key_Return);
}

void chooseFilter(QFileDialog& dialog, const QString& name)
{
    auto* box = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    box->setCurrentIndex(box->findText(name));
    // As a user does it, which is what the dialog reacts to.
    Q_EMIT box->activated(box->currentIndex());
}

/// Says yes when Qt asks whether a file is to be replaced.
class ReplacementAnswer
{
public:
    ReplacementAnswer()
    {
        constexpr int interval = 5; // milliseconds
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                box->button(QMessageBox::Yes)->click();
        });
        m_timer.start(interval);
    }

private:
    QTimer m_timer;
};

/// A function that shows a file dialog, as the table of all of them calls it.
using Call = std::function<QStringList(QWidget* parent, const QString& dir, QString* selectedFilter)>;

struct Function
{
    const char* name;
    Call call;
    QFileDialog::FileMode mode;
    QFileDialog::AcceptMode acceptMode;
    QFileDialog::Options options;
    bool hasFilter;
    QStringList cancelled; ///< what comes back when the user cancels
};

constexpr auto files = QFileDialog::ExistingFiles;
constexpr auto file = QFileDialog::ExistingFile;
constexpr auto folder = QFileDialog::Directory;
constexpr QFileDialog::Option getOpenOptions = QFileDialog::HideNameFilterDetails;
/// Handed to those that take options.
constexpr QFileDialog::Option readOnly = QFileDialog::ReadOnly;

Call openWith(OpenMode mode)
{
    return [mode](QWidget* parent, const QString& dir, QString* selectedFilter) {
        return StandardDialogs::getOpen(parent, caption, dir, filter, selectedFilter, mode);
    };
}

Call implementationWith(OpenMode mode)
{
    return [mode](QWidget* parent, const QString& dir, QString* selectedFilter) {
        return Derived::GetOpenImplQt(parent, caption, dir, filter, selectedFilter, mode, readOnly);
    };
}

QVector<Function> functions()
{
    const QStringList nothing;
    const QStringList oneEmpty = {QString()};
    const auto open = QFileDialog::AcceptOpen;
    return {
        {"getOpen(nothing)", openWith(OpenMode()), file, open, getOpenOptions, true, oneEmpty},
        {"getOpen(Multiple)", openWith(OpenMode::Multiple), files, open, getOpenOptions, true, nothing},
        {"getOpen(Files)", openWith(OpenMode::Files), file, open, getOpenOptions, true, oneEmpty},
        {"getOpen(Files, Multiple)", openWith(OpenMode::Files | OpenMode::Multiple), files, open, getOpenOptions, true,
         nothing},
        {"getOpen(Directories)", openWith(OpenMode::Directories), folder, open, getOpenOptions, false, oneEmpty},
        {"getOpen(Directories, Multiple)", openWith(OpenMode::Directories | OpenMode::Multiple), folder, open,
         getOpenOptions, false, oneEmpty},
        {"getOpen(Files, Directories)", openWith(OpenMode::Files | OpenMode::Directories), file, open, getOpenOptions,
         true, oneEmpty},
        {"getOpen(all)", openWith(OpenMode::Files | OpenMode::Directories | OpenMode::Multiple), files, open,
         getOpenOptions, true, nothing},
        {"getOpenFileName",
         [](QWidget* parent, const QString& dir, QString* selectedFilter) {
             return QStringList(
                 StandardDialogs::getOpenFileName(parent, caption, dir, filter, selectedFilter, readOnly));
         },
         file, open, readOnly, true, oneEmpty},
        {"getOpenFileNames",
         [](QWidget* parent, const QString& dir, QString* selectedFilter) {
             return StandardDialogs::getOpenFileNames(parent, caption, dir, filter, selectedFilter, readOnly);
         },
         files, open, readOnly, true, nothing},
        {"getSaveFileName",
         [](QWidget* parent, const QString& dir, QString* selectedFilter) {
             return QStringList(
                 StandardDialogs::getSaveFileName(parent, caption, dir, filter, selectedFilter, readOnly));
         },
         QFileDialog::AnyFile, QFileDialog::AcceptSave, readOnly, true, oneEmpty},
        {"getExistingDirectory",
         [](QWidget* parent, const QString& dir, QString*) {
             return QStringList(StandardDialogs::getExistingDirectory(parent, caption, dir, readOnly));
         },
         folder, open, readOnly, false, oneEmpty},
        {"getDVDDirectory",
         [](QWidget* parent, const QString& dir, QString*) {
             return QStringList(StandardDialogs::getDVDDirectory(parent, caption, dir, readOnly));
         },
         folder, open, readOnly, false, oneEmpty},
        {"GetOpenImplQt(Files)", implementationWith(OpenMode::Files), file, open, readOnly, true, oneEmpty},
        {"GetOpenImplQt(Directories)", implementationWith(OpenMode::Directories), folder, open, readOnly, false,
         oneEmpty},
        {"GetOpenImplQt(Multiple)", implementationWith(OpenMode::Multiple), folder, open, readOnly, false, oneEmpty},
    };
}

} // namespace

Q_DECLARE_METATYPE(Function)

class tst_StandardDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void classHasNothingButStaticMembers();
    void openModes();
    void implementationModes();
    void filterExpressionSplitsAnEntry();

    void theDialogIsAskedForAllOfIt_data() { addFunctions(); }
    void theDialogIsAskedForAllOfIt();
    void cancelling_data() { addFunctions(); }
    void cancelling();
    void withoutAParent_data() { addFunctions(); }
    void withoutAParent();
    void parentGoesWhileTheDialogIsOpen_data() { addFunctions(); }
    void parentGoesWhileTheDialogIsOpen();
    void parentKeepsItsOtherDialogs();
    void defaultArguments();

    void oneFile_data();
    void oneFile();
    void severalFiles_data();
    void severalFiles();
    void oneFolder_data();
    void oneFolder();
    void fileToWrite();
    void theChosenFilterIsWrittenBack_data();
    void theChosenFilterIsWrittenBack();
    void aGivenFilterIsPreselected();
    void missingFolder();

    void discFolder_data();
    void discFolder();

    void warning();
    void warningOfNobody();
    void parentGoesWhileTheWarningIsShown();

private:
    static void addFunctions(bool (*wanted)(const Function&) = [](const Function&) { return true; });
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void tst_StandardDialogs::initTestCase()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QVERIFY(m_folder.isValid());
    for (const char* name : {"a.txt", "b.txt", "c.png"}) {
        QFile file(path(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("Movies/VIDEO_TS")));
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("MY_VIDEO_TS")));
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("VIDEO_TS/extra")));
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("Другие фильмы/VIDEO_TS")));
}

void tst_StandardDialogs::addFunctions(bool (*wanted)(const Function&))
{
    QTest::addColumn<Function>("function");
    const auto all = functions();
    for (const Function& function : all) {
        if (wanted(function))
            QTest::newRow(function.name) << function;
    }
}

// Every member is static; assignment is the compiler's own.
void tst_StandardDialogs::classHasNothingButStaticMembers()
{
    QVERIFY(std::is_empty_v<StandardDialogs>);
    QVERIFY(!std::is_polymorphic_v<StandardDialogs>);
    QVERIFY(std::is_trivially_copy_assignable_v<StandardDialogs>);
    QVERIFY(std::is_trivially_move_assignable_v<StandardDialogs>);
    QVERIFY(!(std::is_base_of_v<QObject, StandardDialogs>));
}

void tst_StandardDialogs::openModes()
{
    QVERIFY((std::is_same_v<std::underlying_type_t<OpenMode>, int>));
    QCOMPARE(static_cast<int>(OpenMode::Multiple), 1);
    QCOMPARE(static_cast<int>(OpenMode::Files), 2);
    QCOMPARE(static_cast<int>(OpenMode::Directories), 4);
    QCOMPARE(static_cast<int>(OpenMode::Files | OpenMode::Multiple), 3);
    QCOMPARE(static_cast<int>(OpenMode::Files | OpenMode::Directories | OpenMode::Multiple), 7);
    QVERIFY(((OpenMode::Files | OpenMode::Multiple) & OpenMode::Files) == OpenMode::Files);
    QVERIFY((OpenMode::Files & OpenMode::Multiple) == OpenMode());
    static_assert((OpenMode::Files | OpenMode::Multiple) != OpenMode::Files, "usable in constant expressions");
}

void tst_StandardDialogs::implementationModes()
{
    QVERIFY((std::is_same_v<std::underlying_type_t<Derived::ImplMode>, int>));
    QCOMPARE(static_cast<int>(Derived::ImplMode::Native), 0);
    QCOMPARE(static_cast<int>(Derived::ImplMode::Qt), 1);
}

void tst_StandardDialogs::filterExpressionSplitsAnEntry()
{
    QVERIFY((std::is_same_v<decltype(Derived::qt_file_dialog_filter_reg_exp), const char* const>));
    QCOMPARE(QByteArray(Derived::qt_file_dialog_filter_reg_exp),
             QByteArray("^(.*)\\(([a-zA-Z0-9_.*? +;#\\-\\[\\]@\\{\\}/!<>\\$%&=^~:\\|]*)\\)$"));

    const QRegularExpression expression(QString::fromLatin1(Derived::qt_file_dialog_filter_reg_exp));
    const auto match = expression.match(QStringLiteral("Images (*.jpg *.png)"));
    QCOMPARE(match.captured(1), QStringLiteral("Images "));
    QCOMPARE(match.captured(2), QStringLiteral("*.jpg *.png"));
}

void tst_StandardDialogs::theDialogIsAskedForAllOfIt()
{
    QFETCH(Function, function);
    QWidget parent;
    parent.show();
    Seen seen;
    ModalDialog<QFileDialog> dialog([&](QFileDialog& shown) { seen = look(shown); });
    function.call(&parent, m_folder.path(), nullptr);

    QVERIFY(dialog.wasShown());
    QCOMPARE(seen.caption, caption);
    QCOMPARE(seen.dir, m_folder.path());
    QCOMPARE(seen.mode, function.mode);
    QCOMPARE(seen.acceptMode, function.acceptMode);
    QCOMPARE(seen.options & ~QFileDialog::DontUseNativeDialog, function.options);
    QCOMPARE(seen.parent, &parent);
    if (function.hasFilter) {
        QCOMPARE(seen.filters.size(), 2);
        QVERIFY(seen.filters.constFirst().startsWith(QLatin1String("Texts")));
    }
}

void tst_StandardDialogs::cancelling()
{
    QFETCH(Function, function);
    QString selectedFilter = pictures;
    ModalDialog<QFileDialog> dialog([&](QFileDialog& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
    QCOMPARE(function.call(nullptr, m_folder.path(), &selectedFilter), function.cancelled);
    QVERIFY(dialog.wasShown());
    QCOMPARE(selectedFilter, pictures);
}

void tst_StandardDialogs::withoutAParent()
{
    QFETCH(Function, function);
    bool hasParent = true;
    ModalDialog<QFileDialog> dialog([&](QFileDialog& shown) { hasParent = shown.parent() != nullptr; });
    function.call(nullptr, m_folder.path(), nullptr);
    QVERIFY(dialog.wasShown());
    QVERIFY(!hasParent);
}

// The dialog stands on the stack; whoever deletes its parent, or the window around that, must not delete it.
void tst_StandardDialogs::parentGoesWhileTheDialogIsOpen()
{
    QFETCH(Function, function);
    auto window = std::make_unique<QWidget>();
    auto* parent = new QWidget(window.get());
    window->show();
    ModalDialog<QFileDialog> dialog([&](QFileDialog&) { window.reset(); });
    QCOMPARE(function.call(parent, m_folder.path(), nullptr), function.cancelled);
    QVERIFY(dialog.wasShown());
    QVERIFY(!window);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_StandardDialogs::parentKeepsItsOtherDialogs()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<QFileDialog> earlier = new QFileDialog(parent.get());
    QPointer<QFileDialog> later;
    ModalDialog<QFileDialog> dialog([&](QFileDialog&) {
        later = new QFileDialog(parent.get());
        parent.reset();
    });
    StandardDialogs::getOpenFileName(parent.get());
    QVERIFY(dialog.wasShown());
    QVERIFY(!earlier && !later);
}

void tst_StandardDialogs::defaultArguments()
{
    const auto shownBy = [](const std::function<void()>& call) {
        Seen seen;
        ModalDialog<QFileDialog> dialog([&seen](QFileDialog& shown) { seen = look(shown); });
        call();
        return seen;
    };
    QCOMPARE(shownBy([] { StandardDialogs::getOpen(); }).mode, file);
    QCOMPARE(shownBy([] { StandardDialogs::getOpenFileName(); }).mode, file);
    QCOMPARE(shownBy([] { StandardDialogs::getOpenFileNames(); }).mode, files);
    QCOMPARE(shownBy([] { StandardDialogs::getSaveFileName(); }).acceptMode, QFileDialog::AcceptSave);
    QVERIFY(shownBy([] { StandardDialogs::getExistingDirectory(); }).options.testFlag(QFileDialog::ShowDirsOnly));
    QVERIFY(shownBy([] { StandardDialogs::getDVDDirectory(); }).options.testFlag(QFileDialog::ShowDirsOnly));
    QVERIFY(!shownBy([] { StandardDialogs::getOpenFileName(); }).options.testFlag(QFileDialog::ShowDirsOnly));
}

void tst_StandardDialogs::oneFile_data()
{
    addFunctions([](const Function& function) { return function.mode != folder; });
}

void tst_StandardDialogs::oneFile()
{
    QFETCH(Function, function);
    ModalDialog<QFileDialog> dialog([](QFileDialog& shown) { choose(shown, QStringLiteral("b.txt")); });
    const ReplacementAnswer answer;
    QCOMPARE(function.call(nullptr, m_folder.path(), nullptr), QStringList(path(QStringLiteral("b.txt"))));
    QVERIFY(dialog.wasShown());
}

void tst_StandardDialogs::severalFiles_data()
{
    addFunctions([](const Function& function) { return function.mode == files; });
}

void tst_StandardDialogs::severalFiles()
{
    QFETCH(Function, function);
    ModalDialog<QFileDialog> dialog([](QFileDialog& shown) { choose(shown, QStringLiteral("\"b.txt\" \"a.txt\"")); });
    QCOMPARE(function.call(nullptr, m_folder.path(), nullptr),
             QStringList({path(QStringLiteral("b.txt")), path(QStringLiteral("a.txt"))}));
    QVERIFY(dialog.wasShown());
}

void tst_StandardDialogs::oneFolder_data()
{
    addFunctions([](const Function& function) { return function.mode == folder; });
}

void tst_StandardDialogs::oneFolder()
{
    QFETCH(Function, function);
    ModalDialog<QFileDialog> dialog([](QFileDialog& shown) { choose(shown, QStringLiteral("Movies")); });
    QCOMPARE(function.call(nullptr, m_folder.path(), nullptr), QStringList(path(QStringLiteral("Movies"))));
    QVERIFY(dialog.wasShown());
}

void tst_StandardDialogs::fileToWrite()
{
    ModalDialog<QFileDialog> dialog([](QFileDialog& shown) { choose(shown, QStringLiteral("new.txt")); });
    QCOMPARE(StandardDialogs::getSaveFileName(nullptr, caption, m_folder.path(), filter),
             path(QStringLiteral("new.txt")));
    QVERIFY(dialog.wasShown());
    QVERIFY(!QFile::exists(path(QStringLiteral("new.txt"))));
}

void tst_StandardDialogs::theChosenFilterIsWrittenBack_data()
{
    addFunctions([](const Function& function) { return function.hasFilter; });
}

void tst_StandardDialogs::theChosenFilterIsWrittenBack()
{
    QFETCH(Function, function);
    QString selectedFilter;
    const bool details = !function.options.testFlag(QFileDialog::HideNameFilterDetails);
    ModalDialog<QFileDialog> dialog([details](QFileDialog& shown) {
        chooseFilter(shown, details ? pictures : QStringLiteral("Pictures"));
        choose(shown, QStringLiteral("c.png"));
    });
    const ReplacementAnswer answer;
    QCOMPARE(function.call(nullptr, m_folder.path(), &selectedFilter), QStringList(path(QStringLiteral("c.png"))));
    QVERIFY(dialog.wasShown());
    // Where the dialog shows no patterns, Qt gives none.
    QCOMPARE(selectedFilter, details ? pictures : QStringLiteral("Pictures"));
}

void tst_StandardDialogs::aGivenFilterIsPreselected()
{
    QString selectedFilter = pictures;
    QString shownFilter;
    ModalDialog<QFileDialog> dialog([&](QFileDialog& shown) { shownFilter = shown.selectedNameFilter(); });
    StandardDialogs::getOpenFileName(nullptr, caption, m_folder.path(), filter, &selectedFilter);
    QCOMPARE(shownFilter, pictures);
}

void tst_StandardDialogs::missingFolder()
{
    ModalDialog<QFileDialog> dialog([](QFileDialog& shown) { shown.reject(); });
    QCOMPARE(StandardDialogs::getOpen(nullptr, caption, path(QStringLiteral("no/such/folder"))),
             QStringList(QString()));
    QVERIFY(dialog.wasShown());
}

void tst_StandardDialogs::discFolder_data()
{
    QTest::addColumn<QString>("picked");
    QTest::addColumn<QString>("result");

    QTest::newRow("video folder") << QStringLiteral("Movies/VIDEO_TS") << QStringLiteral("Movies");
    QTest::newRow("any other folder") << QStringLiteral("Movies") << QStringLiteral("Movies");
    QTest::newRow("a name that only ends like it") << QStringLiteral("MY_VIDEO_TS") << QStringLiteral("MY_VIDEO_TS");
    QTest::newRow("below a video folder") << QStringLiteral("VIDEO_TS/extra") << QStringLiteral("VIDEO_TS/extra");
    QTest::newRow("not Latin") << QStringLiteral("Другие фильмы/VIDEO_TS") << QStringLiteral("Другие фильмы");
}

void tst_StandardDialogs::discFolder()
{
    QFETCH(QString, picked);
    QFETCH(QString, result);
    ModalDialog<QFileDialog> dialog([&](QFileDialog& shown) { choose(shown, path(picked)); });
    QCOMPARE(StandardDialogs::getDVDDirectory(nullptr, caption, m_folder.path()), path(result));
    QVERIFY(dialog.wasShown());
}

// An information icon in a function of this name is meant.
void tst_StandardDialogs::warning()
{
    QWidget parent;
    parent.show();
    ModalDialog<QMessageBox> dialog([&](QMessageBox& box) {
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.windowTitle(), QStringLiteral("Title"));
        QCOMPARE(box.text(), QStringLiteral("Nothing <b>to</b> worry about"));
        QCOMPARE(box.standardButtons(), QMessageBox::Ok);
        QCOMPARE(box.parentWidget(), &parent);
        QCOMPARE(box.windowFlags() & 0x103, Qt::WindowFlags(0x103));
        QVERIFY(box.isModal());
        QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
    });
    StandardDialogs::showWarning(&parent, QStringLiteral("Title"), QStringLiteral("Nothing <b>to</b> worry about"));
    QVERIFY(dialog.wasShown());
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(parent.findChildren<QMessageBox*>().isEmpty());
}

void tst_StandardDialogs::warningOfNobody()
{
    ModalDialog<QMessageBox> dialog([](QMessageBox& box) { QVERIFY(!box.parent()); });
    StandardDialogs::showWarning();
    QVERIFY(dialog.wasShown());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_StandardDialogs::parentGoesWhileTheWarningIsShown()
{
    auto parent = std::make_unique<QWidget>();
    ModalDialog<QMessageBox> dialog([&](QMessageBox&) { parent.reset(); });
    StandardDialogs::showWarning(parent.get(), QStringLiteral("Title"), QStringLiteral("Text"));
    QVERIFY(dialog.wasShown());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QTEST_MAIN(tst_StandardDialogs)
#include "tst_StandardDialogs.moc"
