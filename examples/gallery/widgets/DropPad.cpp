#include "DropPad.h"

#include <QDragEnterEvent>
#include <QMimeData>

namespace Gallery {

DropPad::DropPad(const QString& hint, QWidget* parent)
    : QLabel(hint, parent)
{
    constexpr int padding = 10;
    setFrameShape(QFrame::StyledPanel);
    setAlignment(Qt::AlignCenter);
    setMargin(padding);
    setAutoFillBackground(true);
    setAcceptDrops(true);
    setTextFormat(Qt::PlainText);
    setLit(false);
}

void DropPad::dragEnterEvent(QDragEnterEvent* event)
{
    if (!event->mimeData()->hasText())
        return;
    event->acceptProposedAction();
    setLit(true);
    Q_EMIT dragEntered();
}

void DropPad::dragLeaveEvent(QDragLeaveEvent* event)
{
    setLit(false);
    QLabel::dragLeaveEvent(event);
}

void DropPad::dropEvent(QDropEvent* event)
{
    setLit(false);
    event->acceptProposedAction();
    setText(event->mimeData()->text());
    Q_EMIT dropped(text());
}

void DropPad::setLit(bool lit)
{
    setBackgroundRole(lit ? QPalette::Highlight : QPalette::AlternateBase);
    setForegroundRole(lit ? QPalette::HighlightedText : QPalette::Text);
}

} // namespace Gallery
