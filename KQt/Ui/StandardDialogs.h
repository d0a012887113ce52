#pragma once

#include <KQt/Ui/Export.h>

#include <QFileDialog>
#include <QString>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Kestrel::Gui {

/// Asks the user for files and folders, and shows a warning with one button.
///
/// All functions are static and run a modal dialog: they return when the user has closed it. Paths come back with
/// forward slashes. A filter has QFileDialog's form: entries separated by ";;", each a name with its patterns,
/// separated by blanks, in parentheses. Where a `selectedFilter` is given, the chosen entry is written to it; it is not
/// owned and must outlive the call, and null is allowed. Nothing throws.
///
/// The library starts no thread. Qt's dialog for files and folders has one of its own while it is open
/// ("QFileInfoGatherer"), in which it reads folders.
///
/// A parent is not owned. Null makes the dialog a window of its own. A parent that goes while Qt's dialog is open takes
/// it along: the user has cancelled.
class KQTUI_EXPORT StandardDialogs
{
public:
    /// What can be chosen in a dialog of getOpen(); the values are combined with `|` and taken apart with `&`.
    enum class OpenMode {
        Multiple = 1,    ///< more than one item
        Files = 2,       ///< files
        Directories = 4, ///< folders
    };

    /// Opens existing files, folders, or both.
    ///
    /// Where the system has a dialog of its own that can do this (Windows Vista and later), it is shown; everywhere
    /// else, and where the system's dialog fails, Qt's dialog is. The failure is logged as a warning.
    ///
    /// Only the system's dialog offers files and folders together: selected folders are taken like files. Qt's then
    /// offers files alone, and a single folder whatever @p mode says of `Multiple`.
    ///
    /// @param dir            where the dialog opens; where it is empty, or no folder that exists, the system chooses
    /// @param filter         the file types on offer; empty for none
    /// @param selectedFilter gets the file type that was chosen: from the system's dialog with its patterns, also when
    ///                       that was cancelled; from Qt's, which shows no patterns here, the name alone. The system's
    ///                       dialog always opens on the first type, whatever stands here.
    /// @param mode           without `Files` and `Directories`, `Files` is added
    /// @return what was chosen. Cancelled, the system's dialog and Qt's for several files give an empty list, Qt's for
    ///         one file or one folder a list with one empty string.
    static QStringList getOpen(QWidget* parent = nullptr, QString caption = QString(), QString dir = QString(),
                               QString filter = QString(), QString* selectedFilter = nullptr,
                               OpenMode mode = OpenMode::Files);

    /// Opens one existing file with Qt's dialog, as QFileDialog::getOpenFileName() does. Empty when cancelled.
    static QString getOpenFileName(QWidget* parent = nullptr, QString caption = QString(), QString dir = QString(),
                                   QString filter = QString(), QString* selectedFilter = nullptr,
                                   QFileDialog::Options options = QFileDialog::Options());

    /// Opens existing files with Qt's dialog, as QFileDialog::getOpenFileNames() does. Empty when cancelled.
    static QStringList getOpenFileNames(QWidget* parent = nullptr, QString caption = QString(), QString dir = QString(),
                                        QString filter = QString(), QString* selectedFilter = nullptr,
                                        QFileDialog::Options options = QFileDialog::Options());

    /// Asks for the name of a file to write, which need not exist, as QFileDialog::getSaveFileName() does. Empty when
    /// cancelled.
    static QString getSaveFileName(QWidget* parent = nullptr, QString caption = QString(), QString dir = QString(),
                                   QString filter = QString(), QString* selectedFilter = nullptr,
                                   QFileDialog::Options options = QFileDialog::Options());

    /// Asks for an existing folder, as QFileDialog::getExistingDirectory() does. Empty when cancelled.
    static QString getExistingDirectory(QWidget* parent = nullptr, QString caption = QString(), QString dir = QString(),
                                        QFileDialog::Options options = QFileDialog::ShowDirsOnly);

    /// Asks for the folder of a disc: getExistingDirectory(), but one named "VIDEO_TS" gives what it lies in.
    static QString getDVDDirectory(QWidget* parent = nullptr, QString caption = QString(), QString dir = QString(),
                                   QFileDialog::Options options = QFileDialog::ShowDirsOnly);

    /// Shows @p text with an OK button. The icon is that of an information, which is meant: a warning of this kind asks
    /// for no decision.
    static void showWarning(QWidget* parent = nullptr, QString title = QString(), QString text = QString());

protected:
    /// Which dialogs GetOpenImpl() may show.
    enum class ImplMode {
        Native = 0, ///< the system's where there is one, Qt's where that fails
        Qt = 1,     ///< Qt's
    };

    /// Splits an entry of a filter into its name (first capture) and its patterns (second). The library does not use
    /// it; it is here for derived classes.
    static const char* const qt_file_dialog_filter_reg_exp;

    /// What the functions that open something have in common. @p options are for Qt's dialog alone.
    static QStringList GetOpenImpl(QWidget* parent, const QString& caption, const QString& dir, const QString& filter,
                                   QString* selectedFilter, OpenMode mode, QFileDialog::Options options, ImplMode impl);
    /// The same with Qt's dialog. A single file or folder is always one element, also when it is empty.
    static QStringList GetOpenImplQt(QWidget* parent, const QString& caption, const QString& dir, const QString& filter,
                                     QString* selectedFilter, OpenMode mode, QFileDialog::Options options);
};

constexpr StandardDialogs::OpenMode operator|(StandardDialogs::OpenMode left, StandardDialogs::OpenMode right)
{
    return static_cast<StandardDialogs::OpenMode>(static_cast<int>(left) | static_cast<int>(right));
}

constexpr StandardDialogs::OpenMode operator&(StandardDialogs::OpenMode left, StandardDialogs::OpenMode right)
{
    return static_cast<StandardDialogs::OpenMode>(static_cast<int>(left) & static_cast<int>(right));
}

} // namespace Kestrel::Gui
