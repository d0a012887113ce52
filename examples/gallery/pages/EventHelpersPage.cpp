#include "Page.h"
#include "PageRegistry.h"

#include <KQt/Ui/WidgetMouseHandler.h>
#include <KQt/Ui/WidgetResizeHandler.h>

#include <QLabel>
#include <QVBoxLayout>

namespace Gallery {

namespace {

using Kestrel::Gui::WidgetMouseHandler;
using Kestrel::Gui::WidgetResizeHandler;

class EventHelpersPage : public Page
{
public:
    explicit EventHelpersPage(QWidget* parent)
        : Page(tr("Move over the pad, press it, resize the window."), parent)
    {
        auto* pad = new QLabel(tr("Pad"));
        pad->setAlignment(Qt::AlignCenter);
        pad->setFrameShape(QFrame::StyledPanel);
        pad->setAttribute(Qt::WA_Hover);
        stage()->addWidget(pad);

        auto* mouse = new WidgetMouseHandler(pad);
        connect(mouse, &WidgetMouseHandler::MouseEntered, this, [this] { log(QStringLiteral("MouseEntered()")); });
        addSwitch(tr("Propagate events"), true, [mouse](bool on) { mouse->EnableEventPropagation(on); });
    }
};

const PageRegistration registration(200, QT_TRANSLATE_NOOP("Gallery", "Event helpers"),
                                    [](QWidget* parent) { return new EventHelpersPage(parent); });

} // namespace

} // namespace Gallery
