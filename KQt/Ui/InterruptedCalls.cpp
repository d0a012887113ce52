#include <KQt/Ui/InterruptedCalls.h>

#include <QDialog>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QRegion>
#include <QScopeGuard>
#include <QWidget>

#include <memory>
#include <utility>

namespace Kestrel::Gui::Detail {

namespace {

/// Deletes a painter together with a window.
class KeptPainter final : public QObject
{
public:
    KeptPainter(std::unique_ptr<QPainter> painter, QWidget* window)
        : QObject(window)
        , m_painter(std::move(painter))
    {
    }

private:
    std::unique_ptr<QPainter> m_painter;
};

void forgetPainting(QWidget& widget)
{
    widget.setAttribute(Qt::WA_WState_InPaintEvent, false);
    const auto children = widget.findChildren<QWidget*>();
    for (QWidget* child : children)
        child->setAttribute(Qt::WA_WState_InPaintEvent, false);
}

} // namespace

void forgetClosing(QWidget& widget)
{
    // A friend that QWidget declares; only calls with a widget find it.
    qt_qwidget_data(&widget)->is_closing = 0;
}

int execDialog(QDialog* dialog)
{
    auto abandon = qScopeGuard([abandoned = QPointer<QDialog>(dialog)] {
        // Hidden as a plain widget: a dialog would turn to its event loop, which is gone from the stack. One that is
        // hidden already leaves it alone when it is deleted.
        if (abandoned)
            abandoned->QWidget::setVisible(false);
        delete abandoned;
    });
    const int result = dialog->exec();
    abandon.dismiss();
    return result;
}

void renderWidget(QWidget& widget, QPixmap& picture, const QPoint& offset, const QRegion& source)
{
    const QPointer<QWidget> rendered(&widget);
    const QPointer<QWidget> window(widget.window());
    auto painter = std::make_unique<QPainter>(&picture);
    auto interrupted = qScopeGuard([&] {
        painter->end();
        // The window goes on knowing the painter, and asks it whether it is active before it is painted.
        if (window)
            new KeptPainter(std::move(painter), window);
        if (rendered)
            forgetPainting(*rendered);
    });
    widget.render(painter.get(), offset, source, QWidget::IgnoreMask);
    interrupted.dismiss();
}

} // namespace Kestrel::Gui::Detail
