#include <KQt/Ui/PickerButtonDropFilter.h>

#include <KQt/Ui/PickerButton.h>

#include <QColor>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QVariant>

namespace Kestrel::Gui {

namespace {

void answerEnter(QDropEvent* event)
{
    event->ignore();
    if (event->mimeData()->hasColor())
        event->acceptProposedAction();
}

void takeDrop(PickerButton* swatch, QDropEvent* event)
{
    event->ignore();
    if (!event->mimeData()->hasColor())
        return;
    // What claims to be a colour and cannot be read as one becomes an invalid colour.
    swatch->setColor(qvariant_cast<QColor>(event->mimeData()->colorData()));
    event->acceptProposedAction();
}

} // namespace

PickerButtonDropFilter::PickerButtonDropFilter(QObject* parent)
    : QObject(parent)
{
}

PickerButtonDropFilter::~PickerButtonDropFilter() = default;

bool PickerButtonDropFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto* const swatch = qobject_cast<PickerButton*>(watched);
    if (!swatch)
        return false;

    const QPointer<PickerButtonDropFilter> self(this);
    const QPointer<PickerButton> swatchGuard(swatch);
    if (event->type() == QEvent::DragEnter)
        answerEnter(static_cast<QDropEvent*>(event));
    else
        takeDrop(swatch, static_cast<QDropEvent*>(event));

    // A slot of the swatch's colorChanged() may have deleted it. The event then ends here.
    if (!swatchGuard)
        return true;
    return self ? QObject::eventFilter(watched, event) : false;
}

} // namespace Kestrel::Gui
