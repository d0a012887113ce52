#pragma once

#include "windows/CallRecorder.h"
#include "windows/DialogScript.h"
#include "windows/InitializeSpy.h"
#include "windows/LogRecords.h"
#include "windows/QtDialogEnder.h"
#include "windows/ScriptedDialogClass.h"
#include "windows/ScriptedFileDialog.h"

#include <KQt/Ui/StandardDialogs.h>

namespace TestSupport {

/// Everything around one scripted dialog: change the script, open, look at what was recorded.
struct DialogStage
{
    CallRecorder recorder;
    DialogScript script;
    LogRecords log;
    QtDialogEnder qtDialogs;
    ScriptedDialogClass dialogClass{recorder, script};
    InitializeSpy initialize{recorder};

    QString filter;
    QString selectedFilter = QStringLiteral("as before");

    QStringList open(Kestrel::Gui::StandardDialogs::OpenMode mode, QWidget* parent = nullptr)
    {
        return Kestrel::Gui::StandardDialogs::getOpen(parent, QStringLiteral("Pick"), QString(), filter,
                                                      &selectedFilter, mode);
    }

    /// Whether the system's dialog did it alone, and nothing of it is left.
    bool endedWell() const
    {
        return log.records().isEmpty() && qtDialogs.dialogs().isEmpty() && recorder.living == 0 &&
               initialize.unpaired() == 0 && recorder.callsOf({QStringLiteral("unexpected")}).isEmpty();
    }
};

} // namespace TestSupport
