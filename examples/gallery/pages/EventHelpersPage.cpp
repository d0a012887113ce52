#include "Page.h"
#include "PageRegistry.h"
#include "widgets/DragSource.h"
#include "widgets/DropPad.h"
#include "widgets/InkPad.h"
#include "widgets/SignalLamp.h"
#include "widgets/WindowOnTop.h"

#include <KQt/Ui/DisableDragAndDropEventFilter.h>
#include <KQt/Ui/WidgetMouseHandler.h>
#include <KQt/Ui/WidgetResizeHandler.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QGridLayout>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVariant>
#include <QVBoxLayout>

//! [shows] AlwaysOnTop

namespace Gallery {

namespace {

using Kestrel::Gui::DisableDragAndDropEventFilter;
using Kestrel::Gui::WidgetMouseHandler;
using Kestrel::Gui::WidgetResizeHandler;

QString text(QPoint point)
{
    return QStringLiteral("%1, %2").arg(point.x()).arg(point.y());
}

QString text(QSize size)
{
    return QStringLiteral("%1×%2").arg(size.width()).arg(size.height());
}

class EventHelpersPage : public Page
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::EventHelpersPage)

public:
    explicit EventHelpersPage(QWidget* parent)
        : Page(tr("Scribble on the pad: the lamps below show the signals that the helpers make of its events. Without "
                  "propagation the signals still come, but the pad itself sees no mouse any more."),
               parent)
        , m_pad(new InkPad(tr("Scribble here")))
    {
        stage()->addWidget(m_pad, 1);
        stage()->addLayout(m_lamps);
        watchMouse();
        watchSize();
        addDragAndDrop();
        addWindowSwitch();
    }

protected:
    void showEvent(QShowEvent* event) override
    {
        // Only now the page is in its window, whose state outlives the page.
        const QSignalBlocker blocker(m_onTop);
        m_onTop->setChecked(WindowOnTop(*window()).IsAlwaysOnTop());
        Page::showEvent(event);
    }

private:
    SignalLamp* addLamp(const QString& signal)
    {
        constexpr int columns = 3;
        auto* lamp = new SignalLamp(signal);
        m_lamps->addWidget(lamp, m_lamps->count() / columns, m_lamps->count() % columns);
        return lamp;
    }

    void report(SignalLamp* lamp, const QString& signal, const QString& arguments)
    {
        lamp->flash(arguments);
        const QString line = QStringLiteral("%1(%2)").arg(signal, arguments);
        if (signal.endsWith(QLatin1String("Moved")))
            logCounted(line);
        else
            log(line);
    }

    template <typename Event>
    void watch(WidgetMouseHandler* handler, const QString& name, void (WidgetMouseHandler::*signal)(Event*))
    {
        SignalLamp* lamp = addLamp(name);
        connect(handler, signal, this, [this, lamp, name](Event* event) { report(lamp, name, text(event->pos())); });
    }

    void watch(WidgetMouseHandler* handler, const QString& name, void (WidgetMouseHandler::*signal)())
    {
        SignalLamp* lamp = addLamp(name);
        connect(handler, signal, this, [this, lamp, name] { report(lamp, name, {}); });
    }

    void watchMouse()
    {
        //! [code]
        auto* mouse = new WidgetMouseHandler(m_pad);
        watch(mouse, QStringLiteral("MouseButtonPressed"), &WidgetMouseHandler::MouseButtonPressed);
        watch(mouse, QStringLiteral("MouseMoved"), &WidgetMouseHandler::MouseMoved);
        //! [code]
        watch(mouse, QStringLiteral("MouseButtonReleased"), &WidgetMouseHandler::MouseButtonReleased);
        watch(mouse, QStringLiteral("MouseHoverEntered"), &WidgetMouseHandler::MouseHoverEntered);
        watch(mouse, QStringLiteral("MouseHoverMoved"), &WidgetMouseHandler::MouseHoverMoved);
        watch(mouse, QStringLiteral("MouseHoverLeaved"), &WidgetMouseHandler::MouseHoverLeaved);
        watch(mouse, QStringLiteral("MouseEntered"), &WidgetMouseHandler::MouseEntered);
        watch(mouse, QStringLiteral("MouseLeaved"), &WidgetMouseHandler::MouseLeaved);

        addSwitch(tr("Events go on to the pad"), true, [mouse](bool on) { mouse->EnableEventPropagation(on); });
        addSwitch(tr("Hover events"), true, [this](bool on) { m_pad->setAttribute(Qt::WA_Hover, on); });
        addSwitch(tr("Moves without a button"), false, [this](bool on) { m_pad->setMouseTracking(on); });
        auto* clear = new QPushButton(tr("Wipe the pad"));
        connect(clear, &QPushButton::clicked, m_pad, &InkPad::clear);
        controls()->addRow(clear);
    }

    void watchSize()
    {
        //! [code]
        auto* resize = new WidgetResizeHandler(m_pad);
        //! [code]
        const QString name = QStringLiteral("Resized");
        SignalLamp* lamp = addLamp(name);
        //! [code]
        connect(resize, &WidgetResizeHandler::Resized, this, [this, lamp, name](QSize oldSize, QSize newSize) {
            lamp->flash(QStringLiteral("%1 → %2").arg(text(oldSize), text(newSize)));
            logCounted(QStringLiteral("%1(%2, %3)").arg(name, text(oldSize), text(newSize)));
        });
        //! [code]
    }

    void addDragAndDrop()
    {
        auto* target = new DropPad(tr("Drop it here"));
        auto* row = new QHBoxLayout;
        row->addWidget(new DragSource(tr("Drag this text")));
        row->addWidget(target, 1);
        stage()->addLayout(row);
        connect(target, &DropPad::dragEntered, this, [this] { log(QStringLiteral("dragEnterEvent()")); });
        connect(target, &DropPad::dropped, this,
                [this](const QString& dropped) { log(QStringLiteral("dropEvent(\"%1\")").arg(dropped)); });

        //! [code]
        auto* guard = new DisableDragAndDropEventFilter(target);
        addSwitch(tr("Drop field is guarded"), false, [target, guard](bool on) {
            target->removeEventFilter(guard);
            if (on)
                target->installEventFilter(guard);
        });
        //! [code]
    }

    void addWindowSwitch()
    {
        m_onTop = new QCheckBox(tr("Window stays on top"));
        controls()->addRow(m_onTop);
        connect(m_onTop, &QCheckBox::toggled, this, [this](bool on) {
            //! [code]
            WindowOnTop(*window()).set(on);
            //! [code]
            log(QStringLiteral("IsAlwaysOnTop() == %1")
                    .arg(QVariant(WindowOnTop(*window()).IsAlwaysOnTop()).toString()));
        });
    }

    InkPad* m_pad;
    QGridLayout* m_lamps = new QGridLayout;
    QCheckBox* m_onTop = nullptr;
};

const PageRegistration registration(200, QT_TRANSLATE_NOOP("Gallery", "Event helpers"),
                                    [](QWidget* parent) { return new EventHelpersPage(parent); });

} // namespace

} // namespace Gallery
