#include "Page.h"
#include "PageRegistry.h"

#include <KQt/Ui/StandardDialogs.h>

#include <QCoreApplication>
#include <QDir>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>

#include <functional>
#include <utility>

namespace Gallery {

namespace {

using Kestrel::Gui::StandardDialogs;
using OpenMode = StandardDialogs::OpenMode;

QString quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

class FileDialogsPage : public Page
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::FileDialogsPage)

public:
    explicit FileDialogsPage(QWidget* parent)
        : Page(tr("Each button calls the function of its name and shows what comes back: the result, string by string, "
                  "and the filter that was written back. On Windows getOpen() shows the dialog of the system, which "
                  "takes files and folders together."),
               parent)
    {
        addButtons();
        addResult();
        addControls();
    }

private:
    using Call = std::function<QStringList(QString* selectedFilter)>;

    void addButtons()
    {
        //! [code]
        addButton(QStringLiteral("getOpen"), [this](QString* selectedFilter) {
            return StandardDialogs::getOpen(this, caption(), dir(), filter(), selectedFilter, m_mode);
        });
        addButton(QStringLiteral("getOpenFileName"), [this](QString* selectedFilter) {
            return QStringList(StandardDialogs::getOpenFileName(this, caption(), dir(), filter(), selectedFilter));
        });
        addButton(QStringLiteral("getOpenFileNames"), [this](QString* selectedFilter) {
            return StandardDialogs::getOpenFileNames(this, caption(), dir(), filter(), selectedFilter);
        });
        addButton(QStringLiteral("getSaveFileName"), [this](QString* selectedFilter) {
            return QStringList(StandardDialogs::getSaveFileName(this, caption(), dir(), filter(), selectedFilter));
        });
        addButton(QStringLiteral("getExistingDirectory"), [this](QString*) {
            return QStringList(StandardDialogs::getExistingDirectory(this, caption(), dir()));
        });
        addButton(QStringLiteral("getDVDDirectory"),
                  [this](QString*) { return QStringList(StandardDialogs::getDVDDirectory(this, caption(), dir())); });
        addButton(QStringLiteral("showWarning"), [this](QString*) {
            StandardDialogs::showWarning(this, caption(), tr("This disc is read-only: nothing can be written to it."));
            return QStringList();
        });
        //! [code]
        stage()->addLayout(m_buttons);
    }

    void addButton(const QString& function, const Call& call)
    {
        constexpr int columns = 3;
        auto* button = new QPushButton(function);
        m_buttons->addWidget(button, m_buttons->count() / columns, m_buttons->count() % columns);
        connect(button, &QPushButton::clicked, this, [this, function, call] { show(function, call); });
    }

    void addResult()
    {
        m_result = new QListWidget;
        m_writtenBack = new QLabel;
        m_writtenBack->setTextInteractionFlags(Qt::TextSelectableByMouse);
        auto* resultTitle = new QLabel(tr("&Result"));
        resultTitle->setBuddy(m_result);
        stage()->addWidget(resultTitle);
        stage()->addWidget(m_result, 1);
        stage()->addWidget(m_writtenBack);
        showResult({tr("Nothing was asked yet")}, {});
    }

    void addControls()
    {
        m_caption = new QLineEdit(tr("Choose something"));
        m_dir = new QLineEdit(QDir::homePath());
        m_filter = new QLineEdit(tr("Images (*.jpg *.png);;Texts (*.txt *.md);;All files (*)"));
        m_filter->setCursorPosition(0);
        controls()->addRow(tr("Caption"), m_caption);
        controls()->addRow(tr("Folder"), m_dir);
        controls()->addRow(tr("Filter"), m_filter);
        addMode(OpenMode::Files, tr("getOpen(): files"), true);
        addMode(OpenMode::Directories, tr("getOpen(): folders"), false);
        addMode(OpenMode::Multiple, tr("getOpen(): several"), true);
    }

    void addMode(OpenMode part, const QString& label, bool initial)
    {
        addSwitch(label, initial, [this, part](bool on) {
            const int others = static_cast<int>(m_mode) & ~static_cast<int>(part);
            m_mode = static_cast<OpenMode>(others | (on ? static_cast<int>(part) : 0));
        });
    }

    void show(const QString& function, const Call& call)
    {
        // The window may go while the dialog is open.
        const QPointer<QWidget> alive(this);
        QString selectedFilter;
        const QStringList result = call(&selectedFilter);
        if (!alive)
            return;
        QStringList lines;
        for (const QString& text : result)
            lines << quoted(text);
        showResult(lines.isEmpty() ? QStringList(tr("An empty list")) : lines, selectedFilter);
        log(QStringLiteral("%1(): {%2}").arg(function, lines.join(QLatin1String(", "))));
    }

    void showResult(const QStringList& lines, const QString& selectedFilter)
    {
        m_result->clear();
        m_result->addItems(lines);
        m_writtenBack->setText(tr("Filter written back: %1").arg(quoted(selectedFilter)));
    }

    QString caption() const { return m_caption->text(); }
    QString dir() const { return m_dir->text(); }
    QString filter() const { return m_filter->text(); }

    OpenMode m_mode = OpenMode();
    QGridLayout* m_buttons = new QGridLayout;
    QListWidget* m_result = nullptr;
    QLabel* m_writtenBack = nullptr;
    QLineEdit* m_caption = nullptr;
    QLineEdit* m_dir = nullptr;
    QLineEdit* m_filter = nullptr;
};

const PageRegistration registration(410, QT_TRANSLATE_NOOP("Gallery", "File dialogs"),
                                    [](QWidget* parent) { return new FileDialogsPage(parent); });

} // namespace

} // namespace Gallery
