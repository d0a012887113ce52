#pragma once

#include <QString>
#include <QStringList>

#include <windows.h>

#include <atomic>
#include <functional>
#include <thread>

namespace TestSupport {

/// A user of one of the system's file dialogs, on a thread of its own.
///
/// It waits for this process's dialog with a title, does what it was told, and waits for the dialog's end. A dialog
/// that stays open is cancelled after a while, so that the test goes on; endedByItself() tells.
class DialogOperator
{
public:
    DialogOperator(QString title, std::function<void(DialogOperator&)> act);
    ~DialogOperator();

    DialogOperator(const DialogOperator&) = delete;
    DialogOperator& operator=(const DialogOperator&) = delete;

    /// Waits until the user has nothing more to do. Call it once the dialog has been left.
    void finish();
    /// After finish().
    bool sawDialog() const { return m_dialog != nullptr; }
    bool endedByItself() const { return m_endedByItself; }

    // For the thread's own use, from the function that it was told.
    HWND dialog() const { return m_dialog; }
    HWND owner() const;
    QString title() const;
    HWND okButton() const;
    /// False where @p condition does not come true in a time that is long enough for every machine.
    bool waitFor(const std::function<bool()>& condition) const;
    /// Whether somebody else than its class handles the OK button's messages.
    bool isOkButtonHooked() const;
    QStringList fileTypes() const;
    int fileTypeIndex() const;
    void chooseFileType(int index) const;
    void enterFileName(const QString& name) const;
    void accept() const;
    void cancel() const;

private:
    void run();
    void cancelWhateverIsOpen() const;
    HWND control(const wchar_t* className, int id) const;

    QString m_title;
    std::function<void(DialogOperator&)> m_act;
    HWND m_dialog = nullptr;
    bool m_endedByItself = false;
    std::atomic<bool> m_left = false; ///< whoever opened the dialog goes on
    std::thread m_thread;
};

} // namespace TestSupport
