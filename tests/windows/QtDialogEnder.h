#pragma once

#include <QFileDialog>
#include <QObject>
#include <QStringList>
#include <QVector>

namespace TestSupport {

/// What one of Qt's file dialogs looked like when it was open.
struct SeenQtDialog
{
    QString title;
    QFileDialog::FileMode fileMode = QFileDialog::AnyFile;
    QStringList nameFilters;
    QString selectedNameFilter;
    QString directory;
    bool hidesFilterDetails = false;
    const QWidget* parent = nullptr; ///< only for comparison
};

/// Cancels each of Qt's file dialogs that opens while it exists, and remembers them.
class QtDialogEnder : public QObject
{
    Q_OBJECT

public:
    QtDialogEnder();

    const QVector<SeenQtDialog>& dialogs() const { return m_dialogs; }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    QVector<SeenQtDialog> m_dialogs;
};

} // namespace TestSupport
