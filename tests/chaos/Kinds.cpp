#include "Kinds.h"

#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/AdvancedColorPickerPopup.h>
#include <KQt/Ui/AdvancedComboBox.h>
#include <KQt/Ui/AdvancedSpinBox.h>
#include <KQt/Ui/AnypointWidgetDrag.h>
#include <KQt/Ui/ClickableLabel.h>
#include <KQt/Ui/ClippingTextLineEdit.h>
#include <KQt/Ui/ColorPickerOpacityAdapter.h>
#include <KQt/Ui/CustomSliderWithZeroTick.h>
#include <KQt/Ui/DisableDragAndDropEventFilter.h>
#include <KQt/Ui/DragDropEventFilter.h>
#include <KQt/Ui/ExtendedLabel.h>
#include <KQt/Ui/FontStylePicker.h>
#include <KQt/Ui/HighlightFrame.h>
#include <KQt/Ui/IDragDropEventFilterObserver.h>
#include <KQt/Ui/LineStyleComboBox.h>
#include <KQt/Ui/LineWidthComboBox.h>
#include <KQt/Ui/NoWheelComboBox.h>
#include <KQt/Ui/PenPicker.h>
#include <KQt/Ui/PresetComboBox.h>
#include <KQt/Ui/PreviewImageLabel.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>
#include <KQt/Ui/SelectionFrameWidget/ImageWatermarkItem.h>
#include <KQt/Ui/SelectionFrameWidget/SelectionFrameItem.h>
#include <KQt/Ui/SelectionFrameWidget/SelectionFrameWidget.h>
#include <KQt/Ui/SelectionFrameWidget/TextWatermarkItem.h>
#include <KQt/Ui/SeparatorDelegate.h>
#include <KQt/Ui/SeparatorStyle.h>
#include <KQt/Ui/StyledDockWidgetTitlebar.h>
#include <KQt/Ui/TextAlignPicker.h>
#include <KQt/Ui/TextEditWithPlaceholder.h>
#include <KQt/Ui/WidgetColorPickerButton.h>
#include <KQt/Ui/WidgetMouseHandler.h>
#include <KQt/Ui/WidgetRenderer.h>
#include <KQt/Ui/WidgetResizeHandler.h>

#include <QDockWidget>
#include <QGraphicsScene>
#include <QPixmap>
#include <QPushButton>
#include <QStandardItemModel>
#include <QWidget>

using namespace Kestrel::Gui;

namespace {

/// Whose frames tell nobody. Lives longer than any frame.
class SilentHandler : public ISelectionFrameEventHandler
{
public:
    void InteractionStateChanged() override {}
    void FrameChanged(const QRectF& /*relativeFrame*/) override {}
    void SetCursor(Qt::CursorShape /*shape*/) override {}

    static SilentHandler& instance()
    {
        static SilentHandler handler;
        return handler;
    }
};

class EagerObserver : public IDragDropEventFilterObserver
{
public:
    bool CanDropUrl(const std::string& url) override { return url.size() % 2 == 0; }
    void DropUrl(const std::string& /*path*/) override {}

    static EagerObserver& instance()
    {
        static EagerObserver observer;
        return observer;
    }
};

template <typename Widget>
Kind plain(const char* name)
{
    return {name, [](QWidget* parent) { return new Widget(parent); }};
}

template <typename Box>
Kind filled(const char* name)
{
    return {name, [](QWidget* parent) {
                auto* box = new Box(parent);
                for (int i = 0; i < 6; ++i)
                    box->addItem(QStringLiteral("item %1 that is wider than the box").arg(i), i);
                return box;
            }};
}

QObject* makeFrames(QWidget* parent)
{
    auto* frames = new SelectionFrameWidget(parent, parent->window()->windowHandle());
    frames->resize(200, 150);
    frames->scene()->setSceneRect(frames->rect());
    const QRectF work(10, 10, 180, 130);
    frames->SetWorkRect(work);
    frames->EnableEditMode(true);
    auto* plainFrame = new SelectionFrameItem(&SilentHandler::instance());
    auto* picture = new ImageWatermarkItem(&SilentHandler::instance());
    auto* text = new TextWatermarkItem(&SilentHandler::instance());
    frames->scene()->addItem(plainFrame);
    frames->scene()->addItem(picture);
    frames->scene()->addItem(text);
    plainFrame->Initialize(work, QRectF(20, 20, 60, 40));
    picture->Initialize(work, {});
    QPixmap pixmap(30, 20);
    pixmap.fill(Qt::red);
    picture->SetImage(pixmap, QRectF(90, 20, 60, 40));
    text->SetText(QStringLiteral("watermark"));
    text->Initialize(work, QRectF(20, 80, 100, 30));
    return frames;
}

QObject* makeTitleBar(QWidget* parent)
{
    auto* dock = new QDockWidget(parent);
    auto* titleBar = new StyledDockWidgetTitlebar(dock);
    dock->setTitleBarWidget(titleBar);
    QObject::connect(titleBar, &StyledDockWidgetTitlebar::Close, dock, &QDockWidget::close);
    QObject::connect(titleBar, &StyledDockWidgetTitlebar::Detach, dock,
                     [dock] { dock->setFloating(!dock->isFloating()); });
    return dock;
}

QObject* makeOpacity(QWidget* parent)
{
    auto* board = new QWidget(parent);
    auto* picker = new RColorPicker(board);
    auto* slider = new CustomSliderWithZeroTick(Qt::Horizontal, board);
    slider->setRange(0, 255);
    slider->move(60, 0);
    auto* adapter = new ColorPickerOpacityAdapter(picker, slider, board);
    adapter->setColor(Qt::blue);
    return board;
}

QObject* makeSeparators(QWidget* parent)
{
    auto* box = new AdvancedComboBox(parent);
    box->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    box->insertSeparator(1);
    box->setItemDelegate(new SeparatorDelegate(box));
    return box;
}

QObject* makeDropTarget(QWidget* parent)
{
    auto* target = new ClickableLabel(parent);
    target->setAcceptDrops(true);
    auto* filter = new DragDropEventFilter(target);
    filter->InstallDragDropObserver(&EagerObserver::instance());
    target->installEventFilter(filter);
    return target;
}

QObject* makeGuarded(QWidget* parent)
{
    auto* target = new ClippingTextLineEdit(parent);
    target->installEventFilter(new DisableDragAndDropEventFilter(target));
    return target;
}

QObject* makeDraggable(QWidget* parent)
{
    auto* panel = new QWidget(parent);
    panel->installEventFilter(new AnypointWidgetDrag(panel, panel));
    return panel;
}

QObject* makeWatched(QWidget* parent)
{
    auto* pad = new QWidget(parent);
    pad->setMouseTracking(true);
    pad->setAttribute(Qt::WA_Hover);
    new WidgetMouseHandler(pad);
    new WidgetResizeHandler(pad);
    return pad;
}

QObject* makeEyedropper(QWidget* parent)
{
    auto* button = new WidgetColorPickerButton(parent);
    button->setTargetWidget(parent);
    return button;
}

QObject* makeTarget(QWidget* parent)
{
    auto* target = new ExtendedLabel(parent);
    target->setProperty("walkthroughWidget", QStringLiteral("target"));
    target->SetOriginalText(QStringLiteral("a target of the walkthrough"));
    return target;
}

// It composes at every change of what it tracks: a small area of its own, not the window.
QObject* makeRenderer(QWidget* parent)
{
    auto* area = new QWidget(parent);
    area->resize(120, 60);
    new QPushButton(QStringLiteral("a"), area);
    auto* label = new ExtendedLabel(area);
    label->setGeometry(40, 20, 60, 20);
    auto* renderer = new WidgetRenderer(area, area);
    renderer->ChangeRendererFrame(QRect(area->mapToGlobal(QPoint()), QSize(60, 40)));
    return area;
}

} // namespace

const std::vector<Kind>& kinds()
{
    static const std::vector<Kind> all = {
        plain<AdvancedColorPicker>("AdvancedColorPicker"),
        plain<AdvancedColorPickerPopup>("AdvancedColorPickerPopup"),
        filled<AdvancedComboBox>("AdvancedComboBox"),
        plain<AdvancedSpinBox>("AdvancedSpinBox"),
        plain<ClickableLabel>("ClickableLabel"),
        plain<ClippingTextLineEdit>("ClippingTextLineEdit"),
        plain<CustomSliderWithZeroTick>("CustomSliderWithZeroTick"),
        plain<ExtendedLabel>("ExtendedLabel"),
        plain<FontStylePicker>("FontStylePicker"),
        filled<LineStyleComboBox>("LineStyleComboBox"),
        filled<LineWidthComboBox>("LineWidthComboBox"),
        filled<NoWheelComboBox>("NoWheelComboBox"),
        plain<PenPicker>("PenPicker"),
        filled<PresetComboBox>("PresetComboBox"),
        plain<PreviewImageLabel>("PreviewImageLabel"),
        plain<RColorPicker>("RColorPicker"),
        plain<RColorPickerPopup>("RColorPickerPopup"),
        plain<SeparatorStyle>("SeparatorStyle"),
        plain<TextAlignPicker>("TextAlignPicker"),
        plain<TextEditWithPlaceholder>("TextEditWithPlaceholder"),
        {"AnypointWidgetDrag", makeDraggable},
        {"ColorPickerOpacityAdapter", makeOpacity},
        {"DisableDragAndDropEventFilter", makeGuarded},
        {"DragDropEventFilter", makeDropTarget},
        {"HighlightFrame", [](QWidget* parent) { return new HighlightFrame(parent); }},
        {"SelectionFrameWidget", makeFrames},
        {"SeparatorDelegate", makeSeparators},
        {"StyledDockWidgetTitlebar", makeTitleBar},
        {"WalkthroughHint's target", makeTarget},
        {"WidgetColorPickerButton", makeEyedropper},
        {"WidgetMouseHandler", makeWatched},
        {"WidgetRenderer", makeRenderer},
    };
    return all;
}
