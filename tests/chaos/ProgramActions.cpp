#include "Actions.h"

#include "Chance.h"
#include "OddValues.h"
#include "Zoo.h"

#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/AlwaysOnTop.h>
#include <KQt/Ui/PenPicker.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/SelectionFrameWidget/SelectionFrameWidget.h>
#include <KQt/Ui/StandardDialogs.h>
#include <KQt/Ui/TaskbarProgress.h>
#include <KQt/Ui/WalkthroughController.h>
#include <KQt/Ui/WidgetColorPickerButton.h>
#include <KQt/Ui/WidgetRenderer.h>

#include <QAbstractItemView>
#include <QAbstractState>
#include <QApplication>
#include <QComboBox>
#include <QMainWindow>
#include <QMetaProperty>
#include <QPlainTextEdit>

#include <limits>

using namespace Kestrel::Gui;

namespace {

bool isOfTheLibrary(const QMetaProperty& property)
{
    const QByteArray owner = property.enclosingMetaObject()->className();
    return owner.startsWith("Kestrel") || owner == "CustomSliderWithZeroTick";
}

void writeProperty(Zoo& zoo, Chance& chance)
{
    QObject* object = zoo.anyExhibit();
    if (!object)
        return;
    std::vector<QMetaProperty> own;
    const QMetaObject* meta = object->metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        if (meta->property(i).isWritable() && isOfTheLibrary(meta->property(i)))
            own.push_back(meta->property(i));
    }
    if (own.empty())
        return;
    const QMetaProperty& property = chance.oneOf(own);
    const QVariant value = OddValues::valueOf(property.userType(), chance);
    if (value.isValid())
        property.write(object, value);
}

void setColorOrPen(Zoo& zoo, Chance& chance)
{
    QObject* object = zoo.anyExhibit();
    if (auto* advanced = qobject_cast<AdvancedColorPicker*>(object))
        advanced->setColor(OddValues::color(chance));
    else if (auto* named = qobject_cast<RColorPicker*>(object))
        named->setColor(OddValues::color(chance));
    else if (auto* pen = qobject_cast<PenPicker*>(object))
        pen->setPen(QPen(QBrush(OddValues::color(chance)), chance.between(0, 30)));
    else if (auto* dropper = qobject_cast<WidgetColorPickerButton*>(object))
        dropper->setColor(OddValues::color(chance));
}

void changeModel(Zoo& zoo, Chance& chance)
{
    auto* box = qobject_cast<QComboBox*>(zoo.anyExhibit());
    if (!box)
        return;
    constexpr int mostItems = 40;
    switch (chance.below(6)) {
    case 0:
        box->clear();
        break;
    case 1:
        box->removeItem(chance.below(box->count() + 1));
        break;
    case 2:
        box->setItemText(chance.below(box->count() + 1), OddValues::text(chance));
        break;
    case 3:
        box->setItemData(chance.below(box->count() + 1), OddValues::number(chance));
        break;
    case 4:
        box->setCurrentIndex(chance.between(-1, box->count()));
        break;
    default:
        if (box->count() < mostItems)
            box->insertItem(chance.below(box->count() + 1), OddValues::text(chance), chance.between(0, 10));
        break;
    }
}

void showOrHide(Zoo& zoo, Chance& chance)
{
    zoo.anyExhibitedWidget()->setVisible(chance.oneIn(2));
    zoo.window()->show();
}

void enableOrDisable(Zoo& zoo, Chance& chance)
{
    zoo.anyExhibitedWidget()->setEnabled(!chance.oneIn(3));
}

// Lower than a line of theirs, Qt's own text edits show and hide their scroll bars for ever. A renderer of an area
// without a size answers the events of what it has taken over by exceptions.
QSize leastSize(const QWidget& widget)
{
    if (qobject_cast<const QPlainTextEdit*>(&widget))
        return widget.minimumSizeHint();
    return widget.findChild<WidgetRenderer*>() ? QSize(1, 1) : QSize();
}

void moveOrResize(Zoo& zoo, Chance& chance)
{
    QWidget* widget = zoo.anyExhibitedWidget();
    if (chance.oneIn(2))
        widget->move(chance.between(-50, 700), chance.between(-50, 500));
    else
        widget->resize(QSize(chance.between(0, 400), chance.between(0, 300)).expandedTo(leastSize(*widget)));
    zoo.window()->resize(800, 600);
}

void reparent(Zoo& zoo, Chance& chance)
{
    QWidget* widget = zoo.anyExhibitedWidget();
    if (widget == zoo.window())
        return;
    widget->setParent(chance.oneIn(4) ? nullptr : zoo.window()->centralWidget());
    if (chance.oneIn(2))
        widget->show();
}

void openPopup(Zoo& zoo, Chance& chance)
{
    QObject* object = zoo.anyExhibit();
    if (auto* box = qobject_cast<QComboBox*>(object))
        box->showPopup();
    else if (auto* advanced = qobject_cast<AdvancedColorPicker*>(object))
        chance.oneIn(2) ? advanced->showPopup() : advanced->showPopup(QPoint(chance.below(200), chance.below(200)));
    else if (auto* named = qobject_cast<RColorPicker*>(object))
        named->showPopup();
}

void closePopups(Zoo& /*zoo*/, Chance& /*chance*/)
{
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
}

void pickColor(Zoo& zoo, Chance& /*chance*/)
{
    if (auto* button = qobject_cast<WidgetColorPickerButton*>(zoo.anyExhibit()))
        button->startPicking();
}

// Cancelled by the watchdog.
void openDialog(Zoo& zoo, Chance& chance)
{
    QWidget* parent = chance.oneIn(3) ? nullptr : zoo.window();
    const QString text = OddValues::text(chance);
    switch (chance.below(4)) {
    case 0:
        StandardDialogs::getOpen(parent, text, {}, text, nullptr,
                                 static_cast<StandardDialogs::OpenMode>(chance.below(8)));
        break;
    case 1:
        StandardDialogs::getSaveFileName(parent, text);
        break;
    case 2:
        StandardDialogs::getDVDDirectory(parent, text);
        break;
    default:
        StandardDialogs::showWarning(parent, text, text);
        break;
    }
}

void driveWalkthrough(Zoo& zoo, Chance& chance)
{
    static const std::vector<QString> paths = {QStringLiteral("first/ready"),   QStringLiteral("first/finished"),
                                               QStringLiteral("second/ready"),  QStringLiteral("second/disabled"),
                                               QStringLiteral("target/active"), QStringLiteral("new/state")};
    switch (chance.below(3)) {
    case 0:
        zoo.controller().gotoState(chance.oneOf(paths));
        break;
    case 1:
        zoo.controller().setEnabled(chance.oneIn(2));
        break;
    default:
        zoo.controller().setAvoidWidget(chance.oneIn(3) ? nullptr : zoo.anyExhibitedWidget());
        break;
    }
}

void driveTaskbar(Zoo& zoo, Chance& chance)
{
    zoo.window();
    TaskbarProgress& taskbar = zoo.taskbar();
    switch (chance.below(5)) {
    case 0:
        taskbar.SetIndeterminate();
        break;
    case 1:
        taskbar.Pause();
        break;
    case 2:
        taskbar.Stop();
        break;
    case 3:
        taskbar.Reset();
        break;
    default:
        taskbar.SetProgress(chance.oneIn(4) ? std::numeric_limits<double>::quiet_NaN() : chance.between(-2, 5) / 3.0);
        break;
    }
}

void renderFrames(Zoo& zoo, Chance& chance)
{
    auto* frames = qobject_cast<SelectionFrameWidget*>(zoo.anyExhibit());
    if (!frames)
        return;
    frames->EnableEditMode(!chance.oneIn(3));
    frames->SetBGColor(OddValues::color(chance));
    frames->SetWorkRect(QRectF(chance.between(-10, 50), chance.between(-10, 50), chance.below(200), chance.below(200)));
    frames->RenderToImage();
}

class OnTop : private Helpers::AlwaysOnTop
{
public:
    explicit OnTop(QWidget& window)
        : AlwaysOnTop(window)
    {
    }
    using AlwaysOnTop::SetAlwaysOnTop;
};

void stayOnTop(Zoo& zoo, Chance& chance)
{
    OnTop(*zoo.window()).SetAlwaysOnTop(chance.oneIn(2));
    zoo.window()->show();
}

} // namespace

std::vector<Action> programActions()
{
    return {
        {"add", 6, [](Zoo& zoo, Chance&) { zoo.add(); }},
        {"delete", 4, [](Zoo& zoo, Chance&) { zoo.removeOne(); }},
        {"write a property", 30, writeProperty},
        {"set a colour or pen", 8, setColorOrPen},
        {"change a model", 15, changeModel},
        {"show or hide", 8, showOrHide},
        {"enable or disable", 4, enableOrDisable},
        {"move or resize", 10, moveOrResize},
        {"re-parent", 3, reparent},
        {"open a popup", 10, openPopup},
        {"close popups", 6, closePopups},
        {"pick a colour", 1, pickColor},
        {"open a dialog", 1, openDialog},
        {"drive the walkthrough", 6, driveWalkthrough},
        {"drive the taskbar", 3, driveTaskbar},
        {"render frames", 3, renderFrames},
        {"stay on top", 1, stayOnTop},
    };
}
