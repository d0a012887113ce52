#include "Page.h"
#include "PageRegistry.h"

#include <KQt/Ui/TaskbarProgress.h>

#include <QCoreApplication>
#include <QFormLayout>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

#include <memory>

namespace Gallery {

namespace {

using Kestrel::Gui::TaskbarProgress;

constexpr int percent = 100;

class TaskbarPage : public Page
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::TaskbarPage)

public:
    explicit TaskbarPage(QWidget* parent)
        : Page(tr("Move the slider or press a button, and look at the taskbar or dock of your desktop: that begins an "
                  "operation. Below stands what was asked for, and what is seen of it where."),
               parent)
    {
        stage()->addWidget(m_asked);
        stage()->addWidget(m_bar);
        addExplanation();
        addControls();
        tell();
    }

private:
    enum class Look { None, Hidden, Running, Busy };
    enum class Halt { None, Paused, Stopped };

    void addExplanation()
    {
        auto* table = new QGridLayout;
        table->setColumnStretch(1, 1);
        addPlace(table, tr("Windows"),
                 tr("The button of this window in the taskbar fills: green while the operation runs, yellow when it is "
                    "paused, red when it was stopped. A busy one has a light that runs through it."));
        addPlace(
            table, tr("Linux"),
            tr("The entry of this application has a bar, in docks that know its desktop file and show progress: those "
               "of KDE Plasma and Ubuntu, Dash to Dock, Plank and others. Busy is an empty bar, paused looks like "
               "running, and what was stopped asks for attention."));
        addPlace(table, tr("Elsewhere"), tr("Nothing is seen."));
        stage()->addStretch(1);
        stage()->addLayout(table);
        stage()->addStretch(2);
    }

    static void addPlace(QGridLayout* table, const QString& place, const QString& whatIsSeen)
    {
        auto* text = new QLabel(whatIsSeen);
        text->setWordWrap(true);
        auto* name = new QLabel(place);
        QFont bold = name->font();
        bold.setBold(true);
        name->setFont(bold);
        const int row = table->rowCount();
        table->addWidget(name, row, 0, Qt::AlignTop);
        table->addWidget(text, row, 1);
    }

    void addControls()
    {
        m_slider = new QSlider(Qt::Horizontal);
        m_slider->setRange(0, percent);
        //! [code]
        connect(m_slider, &QSlider::valueChanged, this,
                [this](int value) { progress().SetProgress(value / double(percent)); });
        //! [code]
        connect(m_slider, &QSlider::valueChanged, this, [this](int value) {
            logCounted(QStringLiteral("SetProgress(%1)").arg(value / double(percent)));
            m_look = Look::Running;
            tell();
        });
        controls()->addRow(tr("Progress"), m_slider);

        addButton(QStringLiteral("SetIndeterminate"), &TaskbarPage::setBusy);
        addButton(QStringLiteral("Pause"), &TaskbarPage::pause);
        addButton(QStringLiteral("Stop"), &TaskbarPage::stop);
        addButton(QStringLiteral("Reset"), &TaskbarPage::reset);
        addButton(tr("End the operation"), &TaskbarPage::end);
        addDesktopFile();
    }

    void addButton(const QString& label, void (TaskbarPage::*press)())
    {
        auto* button = new QPushButton(label);
        connect(button, &QPushButton::clicked, this, press);
        controls()->addRow(button);
    }

    /// Only docks know applications by it; with the name of another application it is that one's entry.
    void addDesktopFile()
    {
#ifdef Q_OS_LINUX
        auto* edit = new QLineEdit(QGuiApplication::desktopFileName());
        connect(edit, &QLineEdit::textEdited, this, [this](const QString& name) {
            end();
            QGuiApplication::setDesktopFileName(name);
        });
        controls()->addRow(tr("Desktop file"), edit);
#endif
    }

    //! [code]
    TaskbarProgress& progress()
    {
        if (!m_progress)
            m_progress = std::make_unique<TaskbarProgress>(window()->windowHandle());
        return *m_progress;
    }

    void setBusy()
    {
        progress().SetIndeterminate();
        become(Look::Busy, QStringLiteral("SetIndeterminate()"));
    }

    void pause()
    {
        progress().Pause();
        halt(Halt::Paused, QStringLiteral("Pause()"));
    }

    void stop()
    {
        progress().Stop();
        halt(Halt::Stopped, QStringLiteral("Stop()"));
    }

    void reset()
    {
        progress().Reset();
        become(Look::Hidden, QStringLiteral("Reset()"));
    }

    /// The next operation has an object of its own, which is neither paused nor stopped.
    void end()
    {
        m_progress.reset();
        m_halt = Halt::None;
        become(Look::None, QStringLiteral("~TaskbarProgress()"));
    }
    //! [code]

    void become(Look look, const QString& call)
    {
        log(call);
        m_look = look;
        if (look != Look::Running)
            rewind();
        tell();
    }

    void halt(Halt halt, const QString& call)
    {
        log(call);
        if (m_look == Look::None)
            m_look = Look::Running;
        if (m_halt != Halt::Stopped)
            m_halt = halt;
        tell();
    }

    void rewind()
    {
        const QSignalBlocker blocker(m_slider);
        m_slider->setValue(0);
    }

    /// What was asked for, in words and as a bar.
    void tell()
    {
        m_bar->setRange(0, m_look == Look::Busy && m_halt == Halt::None ? 0 : percent);
        m_bar->setValue(m_slider->value());
        m_bar->setEnabled(m_look == Look::Running || m_look == Look::Busy);
        m_asked->setText(words());
    }

    QString words() const
    {
        if (m_look == Look::None)
            return tr("There is no operation.");
        if (m_look == Look::Hidden)
            return tr("The indicator is hidden.");
        if (m_halt == Halt::Stopped)
            return tr("The operation was stopped.");
        if (m_halt == Halt::Paused)
            return tr("The operation is paused.");
        return m_look == Look::Busy ? tr("The operation runs; how far it is nobody knows.") : tr("The operation runs.");
    }

    QLabel* m_asked = new QLabel;
    QProgressBar* m_bar = new QProgressBar;
    QSlider* m_slider = nullptr;
    Look m_look = Look::None;
    Halt m_halt = Halt::None;
    std::unique_ptr<TaskbarProgress> m_progress;
};

const PageRegistration registration(420, QT_TRANSLATE_NOOP("Gallery", "Taskbar"),
                                    [](QWidget* parent) { return new TaskbarPage(parent); });

} // namespace

} // namespace Gallery
