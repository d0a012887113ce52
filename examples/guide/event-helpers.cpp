#include <KQt/Ui/AlwaysOnTop.h>
#include <KQt/Ui/DisableDragAndDropEventFilter.h>
#include <KQt/Ui/WidgetMouseHandler.h>
#include <KQt/Ui/WidgetResizeHandler.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QVBoxLayout>

using namespace Kestrel::Gui;

// A window that can stay above all others: the helper is a base class.
class NoteWindow : public QWidget, public Helpers::AlwaysOnTop
{
public:
    NoteWindow()
        : Helpers::AlwaysOnTop(static_cast<QWidget&>(*this))
    {
    }
};

// What the lambdas capture lives as long as main(). clazy:excludeall=lambda-in-connect
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);

    NoteWindow window;
    auto* area = new QLabel(QStringLiteral("Move the mouse here, or resize the window."));
    auto* log = new QLabel;
    auto* note = new QLineEdit(QStringLiteral("Nothing can be dropped here"));
    auto* onTop = new QCheckBox(QStringLiteral("Always on top"));
    auto* layout = new QVBoxLayout(&window);
    for (QWidget* widget : {static_cast<QWidget*>(area), static_cast<QWidget*>(log), static_cast<QWidget*>(note),
                            static_cast<QWidget*>(onTop)})
        layout->addWidget(widget);

    // Moves are reported with a button held down, or while the widget tracks the mouse.
    area->setMouseTracking(true);
    auto* mouse = new WidgetMouseHandler(area);
    QObject::connect(mouse, &WidgetMouseHandler::MouseMoved, log, [log](const QMouseEvent* event) {
        log->setText(QStringLiteral("Mouse at %1, %2").arg(event->x()).arg(event->y()));
    });
    QObject::connect(mouse, &WidgetMouseHandler::MouseLeaved, log, &QLabel::clear);

    auto* resizing = new WidgetResizeHandler(&window);
    QObject::connect(resizing, &WidgetResizeHandler::Resized, log, [log](const QSize&, const QSize& size) {
        log->setText(QStringLiteral("%1 x %2").arg(size.width()).arg(size.height()));
    });

    note->installEventFilter(new DisableDragAndDropEventFilter(note));

    QObject::connect(onTop, &QCheckBox::toggled, &window, [&window](bool on) {
        window.SetAlwaysOnTop(on);
        window.show(); // new window flags hide a window
    });

    window.show();
    return QApplication::exec();
}
