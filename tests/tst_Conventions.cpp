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
#include <KQt/Ui/LineStyleComboBox.h>
#include <KQt/Ui/LineWidthComboBox.h>
#include <KQt/Ui/NoWheelComboBox.h>
#include <KQt/Ui/PenPicker.h>
#include <KQt/Ui/PresetComboBox.h>
#include <KQt/Ui/PreviewImageLabel.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>
#include <KQt/Ui/SeparatorDelegate.h>
#include <KQt/Ui/SeparatorStyle.h>
#include <KQt/Ui/StyledDockWidgetTitlebar.h>
#include <KQt/Ui/TextAlignPicker.h>
#include <KQt/Ui/TextEditWithPlaceholder.h>
#include <KQt/Ui/WidgetColorPicker.h>
#include <KQt/Ui/WidgetColorPickerButton.h>
#include <KQt/Ui/WidgetMouseHandler.h>
#include <KQt/Ui/WidgetResizeHandler.h>

#include <QMetaProperty>
#include <QtTest>

Q_DECLARE_METATYPE(const QMetaObject*)

/// What holds for every exported class that is a QObject. A class that is added to the library is added here.
class tst_Conventions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObjectHasTheQualifiedName_data();
    void metaObjectHasTheQualifiedName();
};

void tst_Conventions::metaObjectHasTheQualifiedName_data()
{
    QTest::addColumn<const QMetaObject*>("metaObject");
    const auto row = [](const char* name, const QMetaObject& metaObject) { QTest::newRow(name) << &metaObject; };

    using namespace Kestrel::Gui;
    row("Kestrel::Gui::AdvancedColorPicker", AdvancedColorPicker::staticMetaObject);
    row("Kestrel::Gui::AdvancedColorPickerPopup", AdvancedColorPickerPopup::staticMetaObject);
    row("Kestrel::Gui::AdvancedComboBox", AdvancedComboBox::staticMetaObject);
    row("Kestrel::Gui::AdvancedSpinBox", AdvancedSpinBox::staticMetaObject);
    row("Kestrel::Gui::AnypointWidgetDrag", AnypointWidgetDrag::staticMetaObject);
    row("Kestrel::Gui::ClickableLabel", ClickableLabel::staticMetaObject);
    row("Kestrel::Gui::ClippingTextLineEdit", ClippingTextLineEdit::staticMetaObject);
    row("Kestrel::Gui::ColorPickerOpacityAdapter", ColorPickerOpacityAdapter::staticMetaObject);
    row("Kestrel::Gui::DisableDragAndDropEventFilter", DisableDragAndDropEventFilter::staticMetaObject);
    row("Kestrel::Gui::DragDropEventFilter", DragDropEventFilter::staticMetaObject);
    row("Kestrel::Gui::ExtendedLabel", ExtendedLabel::staticMetaObject);
    row("Kestrel::Gui::FontStylePicker", FontStylePicker::staticMetaObject);
    row("Kestrel::Gui::LineStyleComboBox", LineStyleComboBox::staticMetaObject);
    row("Kestrel::Gui::LineWidthComboBox", LineWidthComboBox::staticMetaObject);
    row("Kestrel::Gui::NoWheelComboBox", NoWheelComboBox::staticMetaObject);
    row("Kestrel::Gui::PenPicker", PenPicker::staticMetaObject);
    row("Kestrel::Gui::PresetComboBox", PresetComboBox::staticMetaObject);
    row("Kestrel::Gui::PreviewImageLabel", PreviewImageLabel::staticMetaObject);
    row("Kestrel::Gui::RColorPicker", RColorPicker::staticMetaObject);
    row("Kestrel::Gui::RColorPickerPopup", RColorPickerPopup::staticMetaObject);
    row("Kestrel::Gui::SeparatorDelegate", SeparatorDelegate::staticMetaObject);
    row("Kestrel::Gui::SeparatorStyle", SeparatorStyle::staticMetaObject);
    row("Kestrel::Gui::StyledDockWidgetTitlebar", StyledDockWidgetTitlebar::staticMetaObject);
    row("Kestrel::Gui::TextAlignPicker", TextAlignPicker::staticMetaObject);
    row("Kestrel::Gui::TextEditWithPlaceholder", TextEditWithPlaceholder::staticMetaObject);
    row("Kestrel::Gui::WidgetColorPicker", WidgetColorPicker::staticMetaObject);
    row("Kestrel::Gui::WidgetColorPickerButton", WidgetColorPickerButton::staticMetaObject);
    row("Kestrel::Gui::WidgetMouseHandler", WidgetMouseHandler::staticMetaObject);
    row("Kestrel::Gui::WidgetResizeHandler", WidgetResizeHandler::staticMetaObject);
    // The one class that lives outside the namespace.
    row("CustomSliderWithZeroTick", CustomSliderWithZeroTick::staticMetaObject);
}

void tst_Conventions::metaObjectHasTheQualifiedName()
{
    QFETCH(const QMetaObject*, metaObject);
    QCOMPARE(metaObject->className(), QTest::currentDataTag());

    for (int i = metaObject->propertyOffset(); i < metaObject->propertyCount(); ++i) {
        const QMetaProperty property = metaObject->property(i);
        QVERIFY2(property.isReadable() && property.isWritable(), property.name());
    }
}

QTEST_GUILESS_MAIN(tst_Conventions)
#include "tst_Conventions.moc"
