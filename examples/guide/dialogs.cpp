#include <KQt/Ui/AnypointWidgetDrag.h>
#include <KQt/Ui/DragDropEventFilter.h>
#include <KQt/Ui/IDragDropEventFilterObserver.h>
#include <KQt/Ui/StandardDialogs.h>
#include <KQt/Ui/TaskbarProgress.h>

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <memory>
#include <string>

using namespace Kestrel::Gui;

// Takes pictures that are dropped onto the list.
class PictureDrops : public IDragDropEventFilterObserver
{
public:
    explicit PictureDrops(QListWidget* list)
        : m_list(list)
    {
    }

    bool CanDropUrl(const std::string& url) override
    {
        return QString::fromStdString(url).endsWith(QLatin1String(".png"));
    }
    void DropUrl(const std::string& path) override { m_list->addItem(QString::fromStdString(path)); }

private:
    QListWidget* m_list;
};

// What the lambdas capture lives as long as main(). clazy:excludeall=lambda-in-connect
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    // On Linux the entry in the dock is found by this name.
    QGuiApplication::setDesktopFileName(QStringLiteral("kqtui-guide"));

    QWidget window;
    auto* layout = new QVBoxLayout(&window);

    auto* list = new QListWidget;
    layout->addWidget(list);
    list->setAcceptDrops(true);
    PictureDrops drops(list);
    auto* filter = new DragDropEventFilter(list);
    filter->InstallDragDropObserver(&drops);
    list->viewport()->installEventFilter(filter);

    auto* open = new QPushButton(QStringLiteral("Open..."));
    layout->addWidget(open);
    QObject::connect(open, &QPushButton::clicked, list, [list, &window] {
        const QStringList files = StandardDialogs::getOpen(
            &window, QStringLiteral("Pictures"), QString(), QStringLiteral("Pictures (*.png *.jpg);;All files (*)"),
            nullptr, StandardDialogs::OpenMode::Files | StandardDialogs::OpenMode::Multiple);
        for (const QString& file : files) {
            if (!file.isEmpty()) // a cancelled dialog for one file gives an empty one
                list->addItem(file);
        }
    });

    // Ten seconds of work, seen on the taskbar as well. The window has a handle once it is native.
    auto* work = new QPushButton(QStringLiteral("Work"));
    layout->addWidget(work);
    window.winId();
    std::unique_ptr<TaskbarProgress> progress;
    QTimer timer;
    int done = 0;
    QObject::connect(work, &QPushButton::clicked, &timer, [&] {
        done = 0;
        progress = std::make_unique<TaskbarProgress>(window.windowHandle());
        timer.start(100);
    });
    QObject::connect(&timer, &QTimer::timeout, &window, [&] {
        progress->SetProgress(++done / 100.0);
        if (done == 100) {
            timer.stop();
            progress.reset();
        }
    });

    // A note without a title bar, moved by any point of it.
    QLabel note(QStringLiteral("Drag me anywhere"), &window, Qt::Tool | Qt::FramelessWindowHint);
    AnypointWidgetDrag drag(&note);
    note.installEventFilter(&drag);

    window.show();
    note.show();
    return QApplication::exec();
}
