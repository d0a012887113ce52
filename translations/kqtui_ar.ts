<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AdvancedColorPickerPopup</name>
    <message>
        <source>%</source>
        <extracomment>Follows the opacity in a number field 50 pixels wide (&quot;100%&quot;): there is no room for a space before it.</extracomment>
        <translation>%</translation>
    </message>
    <message>
        <source>OPACITY</source>
        <extracomment>Label before the opacity slider of the colour popup, in capitals where the script has them. At most about 12 letters.</extracomment>
        <translation>العتامة</translation>
    </message>
    <message>
        <source>Color</source>
        <extracomment>Read by screen readers: the name of the field in the colour popup where a colour is typed as &quot;#rrggbb&quot;.</extracomment>
        <translation>اللون</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::FontStylePicker</name>
    <message>
        <source>Bold</source>
        <extracomment>Tool tip of a toggle button: bold letters. The usual word of word processors.</extracomment>
        <translation>غامق</translation>
    </message>
    <message>
        <source>Italic</source>
        <extracomment>Tool tip of a toggle button: italic letters. The usual word of word processors.</extracomment>
        <translation>مائل</translation>
    </message>
    <message>
        <source>Underline</source>
        <extracomment>Tool tip of a toggle button: underlined letters. The usual word of word processors.</extracomment>
        <translation>تسطير</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineStyleComboBox</name>
    <message>
        <source>none</source>
        <extracomment>Name of a line style, read out by screen readers: no line.</extracomment>
        <translation>بلا</translation>
    </message>
    <message>
        <source>solid</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>متصل</translation>
    </message>
    <message>
        <source>dash</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>متقطع</translation>
    </message>
    <message>
        <source>dot</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>منقط</translation>
    </message>
    <message>
        <source>dash dot</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>شرطة نقطة</translation>
    </message>
    <message>
        <source>dash dot dot</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>شرطة نقطتان</translation>
    </message>
    <message>
        <source>custom</source>
        <extracomment>Name of a line style, read out by screen readers: a dash pattern of the application&apos;s.</extracomment>
        <translation>مخصص</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineWidthComboBox</name>
    <message>
        <source>none</source>
        <extracomment>In the closed box, instead of a sample line, where the line width is zero: no line. At most about 8 letters.</extracomment>
        <translation>بلا</translation>
    </message>
    <message>
        <source>%1 px</source>
        <extracomment>A line width in pixels, read out by screen readers; %1 is the number.</extracomment>
        <translation>%1 بكسل</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineWidthDelegate</name>
    <message>
        <source>none</source>
        <extracomment>In the list of line widths, instead of a sample line, where the width is zero: no line. At most about 8 letters.</extracomment>
        <translation>بلا</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::PreviewImageLabel</name>
    <message>
        <source>Applied effects</source>
        <extracomment>Tool tip of the star on the preview of a picture or film: tells, and on a click shows, which effects were applied to it.</extracomment>
        <translation>التأثيرات المطبّقة</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>Name of the play button of a preview tile, read out by screen readers.</extracomment>
        <translation>تشغيل</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::RColorPickerPopup</name>
    <message>
        <source>More...</source>
        <extracomment>Button at the bottom of the colour palette: opens a dialog with all colours. At most about 15 letters: the button does not grow.</extracomment>
        <translation>المزيد...</translation>
    </message>
    <message>
        <source>Default</source>
        <extracomment>Button at the top of the colour palette: chooses the default colour, not a default action. At most about 15 letters: the button does not grow.</extracomment>
        <translation>افتراضي</translation>
    </message>
    <message>
        <source>Colors</source>
        <extracomment>Name of the popup with the named colours, read out by screen readers.</extracomment>
        <translation>الألوان</translation>
    </message>
    <message>
        <source>Black</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أسود</translation>
    </message>
    <message>
        <source>Brown</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>بني</translation>
    </message>
    <message>
        <source>Dark Olive Green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أخضر زيتوني داكن</translation>
    </message>
    <message>
        <source>Dark Green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أخضر داكن</translation>
    </message>
    <message>
        <source>Dark Teal</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أزرق مخضر داكن</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أزرق داكن</translation>
    </message>
    <message>
        <source>Indigo</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>نيلي</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>رمادي داكن</translation>
    </message>
    <message>
        <source>Dark red</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أحمر داكن</translation>
    </message>
    <message>
        <source>Orange</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>برتقالي</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أصفر داكن</translation>
    </message>
    <message>
        <source>Green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أخضر</translation>
    </message>
    <message>
        <source>Teal</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أزرق مخضر</translation>
    </message>
    <message>
        <source>Blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أزرق</translation>
    </message>
    <message>
        <source>Blue-grey</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أزرق رمادي</translation>
    </message>
    <message>
        <source>Grey - 40</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>رمادي - 40</translation>
    </message>
    <message>
        <source>Red</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أحمر</translation>
    </message>
    <message>
        <source>Light orange</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>برتقالي فاتح</translation>
    </message>
    <message>
        <source>Lime</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>ليموني</translation>
    </message>
    <message>
        <source>Sea green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أخضر بحري</translation>
    </message>
    <message>
        <source>Aqua</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>مائي</translation>
    </message>
    <message>
        <source>Light blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أزرق فاتح</translation>
    </message>
    <message>
        <source>Violet</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>بنفسجي</translation>
    </message>
    <message>
        <source>Grey - 50</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>رمادي - 50</translation>
    </message>
    <message>
        <source>Pink</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>وردي</translation>
    </message>
    <message>
        <source>Gold</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>ذهبي</translation>
    </message>
    <message>
        <source>Yellow</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أصفر</translation>
    </message>
    <message>
        <source>Bright green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أخضر زاهٍ</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>فيروزي</translation>
    </message>
    <message>
        <source>Skyblue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أزرق سماوي</translation>
    </message>
    <message>
        <source>Plum</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>برقوقي</translation>
    </message>
    <message>
        <source>Light grey</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>رمادي فاتح</translation>
    </message>
    <message>
        <source>Rose</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>زهري</translation>
    </message>
    <message>
        <source>Tan</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أسمر</translation>
    </message>
    <message>
        <source>Light yellow</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أصفر فاتح</translation>
    </message>
    <message>
        <source>Pale green </source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أخضر شاحب</translation>
    </message>
    <message>
        <source>Pale turquoise</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>فيروزي شاحب</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أزرق شاحب</translation>
    </message>
    <message>
        <source>Lavender</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>خزامي</translation>
    </message>
    <message>
        <source>White</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>أبيض</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::TextAlignPicker</name>
    <message>
        <source>Align left</source>
        <extracomment>Tool tip of a toggle button: the paragraph is aligned with the left edge.</extracomment>
        <translation>محاذاة إلى اليسار</translation>
    </message>
    <message>
        <source>Align right</source>
        <extracomment>Tool tip of a toggle button: the paragraph is aligned with the right edge.</extracomment>
        <translation>محاذاة إلى اليمين</translation>
    </message>
    <message>
        <source>Justify</source>
        <extracomment>Tool tip of a toggle button: the lines of the paragraph reach from edge to edge. The usual word of word processors.</extracomment>
        <translation>ضبط</translation>
    </message>
    <message>
        <source>Align center</source>
        <extracomment>Tool tip of a toggle button: the paragraph is centred between the edges.</extracomment>
        <translation>توسيط</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Left: %1# Top: %2# Width: %3# Height: %4#</source>
        <extracomment>Caption above a selection frame: position and size of the frame in per cent of the area it lies in. %1 to %4 are whole numbers. Each # becomes a per cent sign: keep it after its number. One line, as short as can be: the caption is cut off at the edge of a narrow area.</extracomment>
        <translation>يسار: %1# أعلى: %2# العرض: %3# الارتفاع: %4#</translation>
    </message>
</context>
<context>
    <name>StyledDockWidgetTitlebar</name>
    <message>
        <source>StyledDockWidgetTitlebar</source>
        <extracomment>Name of the component; seen only where the bar is a window of its own. Stays as it is in every language.</extracomment>
        <translation>StyledDockWidgetTitlebar</translation>
    </message>
    <message>
        <source>Playlist</source>
        <extracomment>Title of a dock panel with a list of media to be played. At most about 30 letters.</extracomment>
        <translation>قائمة التشغيل</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <extracomment>Tool tip of a button: detaches the playlist&apos;s panel from the window, so that it floats.</extracomment>
        <translation>إلغاء تثبيت قائمة التشغيل</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Tool tip of a button: closes the playlist&apos;s panel. A verb.</extracomment>
        <translation>إغلاق</translation>
    </message>
</context>
</TS>
