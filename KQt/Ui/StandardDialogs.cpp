#include <KQt/Ui/StandardDialogs.h>

#include <KQt/Ui/DialogOptions.h>
#include <KQt/Ui/FileDialogParentGuard.h>
#include <KQt/Ui/InterruptedCalls.h>
#include <KQt/Ui/Platforms/NativeFileDialog.h>

#include <Basalt/IoPath.h>

#include <glog/logging.h>

#include <QMessageBox>
#include <QPointer>

#include <exception>

namespace Kestrel::Gui {

namespace {

void logFallback(const std::exception& failure)
{
    google::LogMessage(nativeFileDialogSource, NativeFileDialogLine::fallbackRecord, google::GLOG_WARNING).stream()
        << failure.what();
}

} // namespace

const char* const StandardDialogs::qt_file_dialog_filter_reg_exp =
    R"(^(.*)\(([a-zA-Z0-9_.*? +;#\-\[\]@\{\}/!<>\$%&=^~:\|]*)\)$)";

// Strings come by value, as the interface has it. NOLINTBEGIN(performance-unnecessary-value-param)

QStringList StandardDialogs::getOpen(QWidget* parent, QString caption, QString dir, QString filter,
                                     QString* selectedFilter, OpenMode mode)
{
    if ((mode & (OpenMode::Files | OpenMode::Directories)) == OpenMode())
        mode = mode | OpenMode::Files;
    return GetOpenImpl(parent, caption, dir, filter, selectedFilter, mode, QFileDialog::HideNameFilterDetails,
                       ImplMode::Native);
}

QString StandardDialogs::getOpenFileName(QWidget* parent, QString caption, QString dir, QString filter,
                                         QString* selectedFilter, QFileDialog::Options options)
{
    const QStringList files =
        GetOpenImpl(parent, caption, dir, filter, selectedFilter, OpenMode::Files, options, ImplMode::Qt);
    return files.isEmpty() ? QString() : files.first();
}

QStringList StandardDialogs::getOpenFileNames(QWidget* parent, QString caption, QString dir, QString filter,
                                              QString* selectedFilter, QFileDialog::Options options)
{
    return GetOpenImpl(parent, caption, dir, filter, selectedFilter, OpenMode::Files | OpenMode::Multiple, options,
                       ImplMode::Qt);
}

QString StandardDialogs::getSaveFileName(QWidget* parent, QString caption, QString dir, QString filter,
                                         QString* selectedFilter, QFileDialog::Options options)
{
    const FileDialogParentGuard guard(parent);
    return QFileDialog::getSaveFileName(parent, caption, dir, filter, selectedFilter, options);
}

QString StandardDialogs::getExistingDirectory(QWidget* parent, QString caption, QString dir,
                                              QFileDialog::Options options)
{
    const FileDialogParentGuard guard(parent);
    return QFileDialog::getExistingDirectory(parent, caption, dir, options);
}

QString StandardDialogs::getDVDDirectory(QWidget* parent, QString caption, QString dir, QFileDialog::Options options)
{
    const FileDialogParentGuard guard(parent);
    const QString path = QFileDialog::getExistingDirectory(parent, caption, dir, options);
    const ioPath disc = Core::RemoveDirectorySuffixIfRequired(ioPath(path.toStdString()), "VIDEO_TS");
    return QString::fromStdString(disc.ToUtf8());
}

void StandardDialogs::showWarning(QWidget* parent, QString title, QString text)
{
    // On the heap: a parent that goes while the box is open takes it along.
    const QPointer<QMessageBox> box = new QMessageBox(QMessageBox::Information, title, text, QMessageBox::Ok, parent,
                                                      Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    Detail::execDialog(box);
    delete box;
}

// NOLINTEND(performance-unnecessary-value-param)

QStringList StandardDialogs::GetOpenImpl(QWidget* parent, const QString& caption, const QString& dir,
                                         const QString& filter, QString* selectedFilter, OpenMode mode,
                                         QFileDialog::Options options, ImplMode impl)
{
    // It may go while the native dialog is open.
    const QPointer<QWidget> owner(parent);
    const NativeFileDialog native = impl == ImplMode::Native ? nativeFileDialog() : nullptr;
    if (native) {
        try {
            return native(parent, caption, dir, filter, selectedFilter, mode);
        } catch (const std::exception& failure) {
            logFallback(failure);
        }
    }
    return GetOpenImplQt(owner, caption, dir, filter, selectedFilter, mode, options);
}

QStringList StandardDialogs::GetOpenImplQt(QWidget* parent, const QString& caption, const QString& dir,
                                           const QString& filter, QString* selectedFilter, OpenMode mode,
                                           QFileDialog::Options options)
{
    const FileDialogParentGuard guard(parent);
    if (!includes(mode, OpenMode::Files))
        return {QFileDialog::getExistingDirectory(parent, caption, dir, options)};
    if (!includes(mode, OpenMode::Multiple))
        return {QFileDialog::getOpenFileName(parent, caption, dir, filter, selectedFilter, options)};
    return QFileDialog::getOpenFileNames(parent, caption, dir, filter, selectedFilter, options);
}

} // namespace Kestrel::Gui
