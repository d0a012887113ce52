#include "WidgetTable.h"

#include "FormMetaObject.h"

#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/AdvancedComboBox.h>
#include <KQt/Ui/AdvancedSpinBox.h>
#include <KQt/Ui/ClickableLabel.h>
#include <KQt/Ui/ClippingTextLineEdit.h>
#include <KQt/Ui/CustomSliderWithZeroTick.h>
#include <KQt/Ui/ExtendedLabel.h>
#include <KQt/Ui/FontStylePicker.h>
#include <KQt/Ui/LineStyleComboBox.h>
#include <KQt/Ui/LineWidthComboBox.h>
#include <KQt/Ui/NoWheelComboBox.h>
#include <KQt/Ui/PenPicker.h>
#include <KQt/Ui/PresetComboBox.h>
#include <KQt/Ui/PreviewImageLabel.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/StyledDockWidgetTitlebar.h>
#include <KQt/Ui/TextAlignPicker.h>
#include <KQt/Ui/TextEditWithPlaceholder.h>
#include <KQt/Ui/WidgetColorPickerButton.h>

namespace Kestrel::Gui::Designer {

namespace {

constexpr const char* colours = "KQtUi Colours";
constexpr const char* comboBoxes = "KQtUi Combo boxes";
constexpr const char* labels = "KQtUi Labels";
constexpr const char* inputs = "KQtUi Inputs";
constexpr const char* formatting = "KQtUi Formatting";
constexpr const char* tiles = "KQtUi Tiles and title bars";

/// What few entries have.
struct Extras
{
    Extras& showName(const char* property)
    {
        text = property;
        return *this;
    }
    Extras& takeSeveralLines(const char* property)
    {
        multiLine = property;
        return *this;
    }
    Extras& layHorizontally()
    {
        horizontal = true;
        return *this;
    }

    const char* text = nullptr;
    const char* multiLine = nullptr;
    bool horizontal = false;
};

template <typename Widget>
QWidget* create(QWidget* parent)
{
    return new Widget(parent);
}

/// PreviewImageLabel takes no notice of the parent that its constructor is given.
template <>
QWidget* create<PreviewImageLabel>(QWidget* parent)
{
    auto* tile = new PreviewImageLabel(parent);
    tile->setParent(parent);
    return tile;
}

/// What form editors need to treat differently; nothing for most classes.
template <typename Widget>
QVector<PropertyTreatment> treatments()
{
    return {};
}

/// It reads as false while the popup is closed, whatever was set, and that would be saved.
template <>
QVector<PropertyTreatment> treatments<AdvancedColorPicker>()
{
    return {{"opacityAdjustmentAvailable", PropertyTreatment::NotOffered}};
}

/// The setters of the tick are private: a compiled form cannot call them.
template <>
QVector<PropertyTreatment> treatments<CustomSliderWithZeroTick>()
{
    return {{"topTickEndColor", PropertyTreatment::SetByProperty},
            {"bottomTickEndColor", PropertyTreatment::SetByProperty},
            {"centerTickColor", PropertyTreatment::SetByProperty},
            {"tickWidth", PropertyTreatment::SetByProperty},
            {"tickHeight", PropertyTreatment::SetByProperty}};
}

/// A widget as form editors are to see it.
template <typename Widget>
class InEditor : public Widget
{
public:
    using Widget::Widget;

    const QMetaObject* metaObject() const override
    {
        static const FormMetaObject treated(Widget::staticMetaObject, treatments<Widget>());
        return treated.object();
    }
};

template <typename Widget>
WidgetEntry::Factory editorFactory()
{
    return treatments<Widget>().isEmpty() ? create<Widget> : create<InEditor<Widget>>;
}

template <typename Widget>
WidgetEntry entry(const char* group, QSize size, Icons::Drawing drawing, const char* toolTip, const char* whatsThis,
                  const Extras& extras = Extras())
{
    const QMetaObject& meta = Widget::staticMetaObject;
    return {meta.className(),
            meta.superClass()->className(),
            create<Widget>,
            editorFactory<Widget>(),
            group,
            size,
            drawing,
            toolTip,
            whatsThis,
            extras.text,
            extras.multiLine,

            extras.horizontal};
}

} // namespace

QString WidgetEntry::plainName() const
{
    return QString::fromLatin1(className).section(QStringLiteral("::"), -1);
}

QString WidgetEntry::header() const
{
    return QStringLiteral("KQt/Ui/%1.h").arg(plainName());
}

QString WidgetEntry::objectName() const
{
    QString name = plainName();
    // "RColorPicker" becomes "rColorPicker".
    name[0] = name.at(0).toLower();
    return name;
}

const QVector<WidgetEntry>& widgetTable()
{
    // clang-format off
    static const QVector<WidgetEntry> table = {
        entry<AdvancedColorPicker>(colours, {64, 26}, Icons::advancedColorPicker,
            "Colour picker with 120 colours, own colours and opacity",
            "A button that shows a colour and opens a popup with 120 colours, twelve slots of the user's own, a "
            "hexadecimal entry and opacity."),
        entry<RColorPicker>(colours, {64, 26}, Icons::namedColorPicker,
            "Colour picker with 40 named colours",
            "A button that opens a palette of forty named colours with a default colour and a dialog for all "
            "others."),
        entry<PenPicker>(colours, {140, 30}, Icons::penPicker,
            "Colour and width of a pen",
            "A box for the line width and a colour picker side by side; together they edit a pen."),
        entry<WidgetColorPickerButton>(colours, {32, 26}, Icons::eyedropper,
            "Eyedropper for the colours of a widget",
            "A tool button that picks a colour from one target widget. It is disabled until setTargetWidget() "
            "gives it one."),

        entry<AdvancedComboBox>(comboBoxes, {140, 26}, Icons::elidingComboBox,
            "Combo box with elided text and a wide list",
            "A combo box that elides its text and then shows it as tool tip, opens a list as wide as its widest "
            "item, and can leave the wheel alone."),
        entry<PresetComboBox>(comboBoxes, {140, 26}, Icons::presetComboBox,
            "Combo box that asks for a panel of presets",
            "A combo box that asks the application to show a panel where others open their list; it can show an "
            "icon at its right end."),
        entry<NoWheelComboBox>(comboBoxes, {140, 26}, Icons::noWheelComboBox,
            "Combo box that the mouse wheel does not change",
            "A combo box that leaves the mouse wheel to the area that scrolls around it."),
        entry<LineStyleComboBox>(comboBoxes, {100, 26}, Icons::lineStyleComboBox,
            "Pen styles, shown as lines",
            "A combo box that draws its items as lines. The program adds them, each with its Qt::PenStyle under "
            "Qt::UserRole."),
        entry<LineWidthComboBox>(comboBoxes, {100, 26}, Icons::lineWidthComboBox,
            "Line widths, shown as lines",
            "A combo box that draws its items as lines. The program adds them, each with its width in pixels "
            "under Qt::UserRole."),

        entry<ClickableLabel>(labels, {120, 22}, Icons::clickableLabel,
            "Label that reports clicks",
            "A label that emits clicked() for each press of a mouse button, while it is clickable.",
            Extras().showName("text")),
        entry<ExtendedLabel>(labels, {120, 22}, Icons::elidingLabel,
            "Label that elides its text and reports clicks",
            "A label that elides its text to its width and then shows the whole of it as tool tip. The text is "
            "the property originalText.",
            Extras().showName("originalText")),

        entry<ClippingTextLineEdit>(inputs, {140, 26}, Icons::elidingLineEdit,
            "Line edit that elides its text",
            "A line edit that elides its text while nobody edits it, with the whole text as tool tip. The program "
            "sets it by SetOriginalText()."),
        entry<TextEditWithPlaceholder>(inputs, {180, 90}, Icons::placeholderTextEdit,
            "Text edit with a hint",
            "A plain-text editor that shows a dimmed hint while it is empty and has no focus.",
            Extras().showName("placeholderText").takeSeveralLines("placeholderText")),
        entry<AdvancedSpinBox>(inputs, {80, 26}, Icons::limitedSpinBox,
            "Spin box of limited length",
            "A spin box whose text field takes a limited number of characters, prefix and suffix included."),
        entry<CustomSliderWithZeroTick>(inputs, {160, 26}, Icons::zeroTickSlider,
            "Slider that marks its zero",
            "A slider that marks the value it has when it is first shown with a short line of three colours.",
            Extras().layHorizontally()),

        entry<FontStylePicker>(formatting, {96, 30}, Icons::fontStylePicker,
            "Bold, italic, underline",
            "Three toggle buttons that turn a font into another. A style sheet gives them their look by the "
            "property styleTag."),
        entry<TextAlignPicker>(formatting, {124, 30}, Icons::textAlignPicker,
            "Left, right, justified, centred",
            "Four buttons of which one is checked. A style sheet gives them their look by the property styleTag."),

        entry<PreviewImageLabel>(tiles, {160, 90}, Icons::previewTile,
            "Preview picture with star and play button",
            "A label for a picture with a star button, a play button and a duration over it. Put it into a "
            "layout: the code made of a form builds it without a parent."),
        entry<StyledDockWidgetTitlebar>(tiles, {240, 25}, Icons::dockTitleBar,
            "Title bar for dock widgets",
            "A drag handle, the title, and buttons to restore and to close; made for "
            "QDockWidget::setTitleBarWidget()."),
    };
    // clang-format on
    return table;
}

} // namespace Kestrel::Gui::Designer
