<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AdvancedColorPickerPopup</name>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>OPACITY</source>
        <translation>العتامة</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::FontStylePicker</name>
    <message>
        <source>Bold</source>
        <translation>غامق</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>مائل</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>تسطير</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineWidthComboBox</name>
    <message>
        <source>none</source>
        <extracomment>Shown instead of a sample line where the line width is zero.</extracomment>
        <translation>بلا</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineWidthDelegate</name>
    <message>
        <source>none</source>
        <extracomment>Shown instead of a sample line where the line width is zero.</extracomment>
        <translation>بلا</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::PreviewImageLabel</name>
    <message>
        <source>Applied effects</source>
        <translation>التأثيرات المطبّقة</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::RColorPickerPopup</name>
    <message>
        <source>More...</source>
        <extracomment>Button that opens a dialog with all colours.</extracomment>
        <translation>المزيد...</translation>
    </message>
    <message>
        <source>Default</source>
        <extracomment>Button that chooses the default colour.</extracomment>
        <translation>افتراضي</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::TextAlignPicker</name>
    <message>
        <source>Align left</source>
        <translation>محاذاة إلى اليسار</translation>
    </message>
    <message>
        <source>Align right</source>
        <translation>محاذاة إلى اليمين</translation>
    </message>
    <message>
        <source>Justify</source>
        <translation>ضبط</translation>
    </message>
    <message>
        <source>Align center</source>
        <translation>توسيط</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Left: %1# Top: %2# Width: %3# Height: %4#</source>
        <translation>يسار: %1# أعلى: %2# العرض: %3# الارتفاع: %4#</translation>
    </message>
</context>
<context>
    <name>StyledDockWidgetTitlebar</name>
    <message>
        <source>StyledDockWidgetTitlebar</source>
        <translation>StyledDockWidgetTitlebar</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>قائمة التشغيل</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <translation>إلغاء تثبيت قائمة التشغيل</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
</TS>
