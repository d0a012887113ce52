#pragma once

#include <KQt/Ui/StandardDialogs.h>

namespace Kestrel::Gui {

/// Asks with the dialog of the system. An empty list means that the user cancelled; std::runtime_error, that the dialog
/// could not be shown. @p parent is not touched any more once the dialog is open.
using NativeFileDialog = QStringList (*)(QWidget* parent, const QString& caption, const QString& dir,
                                         const QString& filter, QString* selectedFilter,
                                         StandardDialogs::OpenMode mode);

/// The system's dialog, null where the system has none that can offer files and folders.
NativeFileDialog nativeFileDialog();

/// The file that every failure of the native dialog, and the record of it, names as its place.
constexpr char nativeFileDialogSource[] = "KQt/Ui/Platforms/win/StandardDialogs.cpp";

/// The lines that they name. Readers of logs tell failures apart by them, so they stay what they are whatever moves in
/// the file.
namespace NativeFileDialogLine {

constexpr int getOptionsFailed = 245;
constexpr int setOptionsFailed = 261;
constexpr int coInitializeFailed = 375;
constexpr int createInstanceFailed = 383;
constexpr int adviseFailed = 401;
constexpr int showFailed = 412;
/// Of the log record that tells of any of them.
constexpr int fallbackRecord = 447;

} // namespace NativeFileDialogLine

} // namespace Kestrel::Gui
