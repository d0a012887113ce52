#include <KQt/Ui/Accessibility/InstallAccessibility.h>

#include <KQt/Ui/Accessibility/AdvancedColorPickerPopupInterface.h>
#include <KQt/Ui/Accessibility/ButtonInterface.h>
#include <KQt/Ui/Accessibility/ClippingTextLineEditInterface.h>
#include <KQt/Ui/Accessibility/ColorPickerInterface.h>
#include <KQt/Ui/Accessibility/HighlightFrameInterface.h>
#include <KQt/Ui/Accessibility/LabelInterface.h>
#include <KQt/Ui/Accessibility/LineComboBoxInterface.h>
#include <KQt/Ui/Accessibility/LineListInterface.h>
#include <KQt/Ui/Accessibility/PenPickerInterface.h>
#include <KQt/Ui/Accessibility/PickerButtonInterface.h>
#include <KQt/Ui/Accessibility/RColorPickerPopupInterface.h>
#include <KQt/Ui/Accessibility/TileButtonInterface.h>
#include <KQt/Ui/Accessibility/TitleBarInterface.h>
#include <KQt/Ui/Accessibility/WalkthroughHintInterface.h>
#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/AdvancedColorPickerPopup.h>
#include <KQt/Ui/ClickableLabel.h>
#include <KQt/Ui/ClippingTextLineEdit.h>
#include <KQt/Ui/ExtendedLabel.h>
#include <KQt/Ui/HighlightFrame.h>
#include <KQt/Ui/LineStyleComboBox.h>
#include <KQt/Ui/LineWidthComboBox.h>
#include <KQt/Ui/PenPicker.h>
#include <KQt/Ui/PickerButton.h>
#include <KQt/Ui/PreviewImageLabel.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>
#include <KQt/Ui/StyledDockWidgetTitlebar.h>
#include <KQt/Ui/WalkthroughHint.h>
#include <KQt/Ui/WidgetColorPickerButton.h>

#include <QCoreApplication>
#include <QListView>
#include <QPushButton>
#include <QToolButton>

namespace Kestrel::Gui::Detail {

namespace {

/// Null where @p object is not a Widget any more: it may be asked for while it is being deleted.
template <typename Widget, typename Interface>
QAccessibleInterface* make(QObject* object)
{
    auto* const widget = qobject_cast<Widget*>(object);
    return widget ? new Interface(widget) : nullptr;
}

template <typename Ancestor>
Ancestor* ancestorOf(const QObject* object)
{
    for (QObject* parent = object->parent(); parent; parent = parent->parent()) {
        if (auto* const ancestor = qobject_cast<Ancestor*>(parent))
            return ancestor;
    }
    return nullptr;
}

/// The star and the play button of a tile; every other tool button is Qt's business.
QAccessibleInterface* makeTileButton(QObject* object)
{
    return qobject_cast<PreviewImageLabel*>(object->parent()) ? make<QToolButton, TileButtonInterface>(object)
                                                              : nullptr;
}

QAccessibleInterface* makeTitleBarButton(QObject* object)
{
    return ancestorOf<StyledDockWidgetTitlebar>(object) ? make<QPushButton, ButtonInterface>(object) : nullptr;
}

QAccessibleInterface* makeLineList(QObject* object)
{
    auto* const view = qobject_cast<QListView*>(object);
    auto* const box = ancestorOf<QComboBox>(object);
    if (!view || !box || (!qobject_cast<LineStyleComboBox*>(box) && !qobject_cast<LineWidthComboBox*>(box)))
        return nullptr;
    return new LineListInterface(view, box);
}

struct Maker
{
    const char* className;
    QAccessibleInterface* (*make)(QObject*);
};

constexpr Maker makers[] = {
    {"Kestrel::Gui::AdvancedColorPicker", make<AdvancedColorPicker, ColorPickerInterface>},
    {"Kestrel::Gui::AdvancedColorPickerPopup", make<AdvancedColorPickerPopup, AdvancedColorPickerPopupInterface>},
    {"Kestrel::Gui::ClickableLabel", make<ClickableLabel, LabelInterface>},
    {"Kestrel::Gui::ClippingTextLineEdit", make<ClippingTextLineEdit, ClippingTextLineEditInterface>},
    {"Kestrel::Gui::ExtendedLabel", make<ExtendedLabel, LabelInterface>},
    {"Kestrel::Gui::HighlightFrame", make<HighlightFrame, HighlightFrameInterface>},
    {"Kestrel::Gui::LineStyleComboBox", make<LineStyleComboBox, LineComboBoxInterface>},
    {"Kestrel::Gui::LineWidthComboBox", make<LineWidthComboBox, LineComboBoxInterface>},
    {"Kestrel::Gui::PenPicker", make<PenPicker, PenPickerInterface>},
    {"Kestrel::Gui::PickerButton", make<PickerButton, PickerButtonInterface>},
    {"Kestrel::Gui::RColorPicker", make<RColorPicker, ColorPickerInterface>},
    {"Kestrel::Gui::RColorPickerPopup", make<RColorPickerPopup, RColorPickerPopupInterface>},
    {"Kestrel::Gui::StyledDockWidgetTitlebar", make<StyledDockWidgetTitlebar, TitleBarInterface>},
    {"Kestrel::Gui::WalkthroughHint", make<WalkthroughHint, WalkthroughHintInterface>},
    {"Kestrel::Gui::WidgetColorPickerButton", make<WidgetColorPickerButton, ColorPickerInterface>},
    // Parts of the library's widgets that are Qt's own classes.
    {"QListView", makeLineList},
    {"QPushButton", makeTitleBarButton},
    {"QToolButton", makeTileButton},
};

/// Asked for each class of an object, from its own to QObject, until there is an answer.
QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    for (const Maker& maker : makers) {
        if (object && className == QLatin1String(maker.className))
            return maker.make(object);
    }
    return nullptr;
}

// Qt forgets all factories when the application object goes. Installing again comes after QApplication has installed
// its own, so that ours is asked first for Qt's classes too.
bool isInstalled = false;

} // namespace

void installAccessibility()
{
    if (isInstalled)
        return;
    isInstalled = true;
    QAccessible::installFactory(makeInterface);
    qAddPostRoutine([] { isInstalled = false; });
}

void forgetAccessibleInterface(QObject* object)
{
    if (!QAccessible::isActive())
        return;
    if (QAccessibleInterface* const shown = QAccessible::queryAccessibleInterface(object))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(shown));
}

} // namespace Kestrel::Gui::Detail
