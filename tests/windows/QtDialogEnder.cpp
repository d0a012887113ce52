#include "windows/QtDialogEnder.h"

#include <QApplication>
#include <QTimerEvent>

namespace TestSupport {

QtDialogEnder::QtDialogEnder()
{
    constexpr int period = 10; // milliseconds
    startTimer(period);
}

void QtDialogEnder::timerEvent(QTimerEvent* event)
{
    QObject::timerEvent(event);
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible())
        return;
    m_dialogs.append(SeenQtDialog{dialog->windowTitle(), dialog->fileMode(), dialog->nameFilters(),
                                  dialog->selectedNameFilter(), dialog->directory().absolutePath(),
                                  dialog->testOption(QFileDialog::HideNameFilterDetails), dialog->parentWidget()});
    dialog->reject();
}

} // namespace TestSupport
