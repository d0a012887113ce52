<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
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
        <translation>אטימות</translation>
    </message>
    <message>
        <source>Color</source>
        <extracomment>Read by screen readers: the name of the field in the colour popup where a colour is typed as &quot;#rrggbb&quot;.</extracomment>
        <translation>צבע</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::FontStylePicker</name>
    <message>
        <source>Bold</source>
        <extracomment>Tool tip of a toggle button: bold letters. The usual word of word processors.</extracomment>
        <translation>מודגש</translation>
    </message>
    <message>
        <source>Italic</source>
        <extracomment>Tool tip of a toggle button: italic letters. The usual word of word processors.</extracomment>
        <translation>נטוי</translation>
    </message>
    <message>
        <source>Underline</source>
        <extracomment>Tool tip of a toggle button: underlined letters. The usual word of word processors.</extracomment>
        <translation>קו תחתון</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineStyleComboBox</name>
    <message>
        <source>none</source>
        <extracomment>Name of a line style, read out by screen readers: no line.</extracomment>
        <translation>ללא</translation>
    </message>
    <message>
        <source>solid</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>רציף</translation>
    </message>
    <message>
        <source>dash</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>מקווקו</translation>
    </message>
    <message>
        <source>dot</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>מנוקד</translation>
    </message>
    <message>
        <source>dash dot</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>קו נקודה</translation>
    </message>
    <message>
        <source>dash dot dot</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>קו נקודה נקודה</translation>
    </message>
    <message>
        <source>custom</source>
        <extracomment>Name of a line style, read out by screen readers: a dash pattern of the application&apos;s.</extracomment>
        <translation>מותאם אישית</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineWidthComboBox</name>
    <message>
        <source>none</source>
        <extracomment>In the closed box, instead of a sample line, where the line width is zero: no line. At most about 8 letters.</extracomment>
        <translation>ללא</translation>
    </message>
    <message>
        <source>%1 px</source>
        <extracomment>A line width in pixels, read out by screen readers; %1 is the number.</extracomment>
        <translation>%1 פיקסלים</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineWidthDelegate</name>
    <message>
        <source>none</source>
        <extracomment>In the list of line widths, instead of a sample line, where the width is zero: no line. At most about 8 letters.</extracomment>
        <translation>ללא</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::PreviewImageLabel</name>
    <message>
        <source>Applied effects</source>
        <extracomment>Tool tip of the star on the preview of a picture or film: tells, and on a click shows, which effects were applied to it.</extracomment>
        <translation>אפקטים שהוחלו</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>Name of the play button of a preview tile, read out by screen readers.</extracomment>
        <translation>ניגון</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::RColorPickerPopup</name>
    <message>
        <source>More...</source>
        <extracomment>Button at the bottom of the colour palette: opens a dialog with all colours. At most about 15 letters: the button does not grow.</extracomment>
        <translation>עוד...</translation>
    </message>
    <message>
        <source>Default</source>
        <extracomment>Button at the top of the colour palette: chooses the default colour, not a default action. At most about 15 letters: the button does not grow.</extracomment>
        <translation>ברירת מחדל</translation>
    </message>
    <message>
        <source>Colors</source>
        <extracomment>Name of the popup with the named colours, read out by screen readers.</extracomment>
        <translation>צבעים</translation>
    </message>
    <message>
        <source>Black</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>שחור</translation>
    </message>
    <message>
        <source>Brown</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>חום</translation>
    </message>
    <message>
        <source>Dark Olive Green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>ירוק זית כהה</translation>
    </message>
    <message>
        <source>Dark Green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>ירוק כהה</translation>
    </message>
    <message>
        <source>Dark Teal</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>טורקיז כהה</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>כחול כהה</translation>
    </message>
    <message>
        <source>Indigo</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>אינדיגו</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>אפור כהה</translation>
    </message>
    <message>
        <source>Dark red</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>אדום כהה</translation>
    </message>
    <message>
        <source>Orange</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>כתום</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>צהוב כהה</translation>
    </message>
    <message>
        <source>Green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>ירוק</translation>
    </message>
    <message>
        <source>Teal</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>ירוק כחלחל</translation>
    </message>
    <message>
        <source>Blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>כחול</translation>
    </message>
    <message>
        <source>Blue-grey</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>כחול אפור</translation>
    </message>
    <message>
        <source>Grey - 40</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>אפור - 40</translation>
    </message>
    <message>
        <source>Red</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>אדום</translation>
    </message>
    <message>
        <source>Light orange</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>כתום בהיר</translation>
    </message>
    <message>
        <source>Lime</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>ליים</translation>
    </message>
    <message>
        <source>Sea green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>ירוק ים</translation>
    </message>
    <message>
        <source>Aqua</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>אקווה</translation>
    </message>
    <message>
        <source>Light blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>כחול בהיר</translation>
    </message>
    <message>
        <source>Violet</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>סגול</translation>
    </message>
    <message>
        <source>Grey - 50</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>אפור - 50</translation>
    </message>
    <message>
        <source>Pink</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>ורוד</translation>
    </message>
    <message>
        <source>Gold</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>זהב</translation>
    </message>
    <message>
        <source>Yellow</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>צהוב</translation>
    </message>
    <message>
        <source>Bright green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>ירוק זוהר</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>טורקיז</translation>
    </message>
    <message>
        <source>Skyblue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>תכלת</translation>
    </message>
    <message>
        <source>Plum</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>שזיף</translation>
    </message>
    <message>
        <source>Light grey</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>אפור בהיר</translation>
    </message>
    <message>
        <source>Rose</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>ורד</translation>
    </message>
    <message>
        <source>Tan</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>שזוף</translation>
    </message>
    <message>
        <source>Light yellow</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>צהוב בהיר</translation>
    </message>
    <message>
        <source>Pale green </source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>ירוק חיוור</translation>
    </message>
    <message>
        <source>Pale turquoise</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>טורקיז חיוור</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>כחול חיוור</translation>
    </message>
    <message>
        <source>Lavender</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>לבנדר</translation>
    </message>
    <message>
        <source>White</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>לבן</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::TextAlignPicker</name>
    <message>
        <source>Align left</source>
        <extracomment>Tool tip of a toggle button: the paragraph is aligned with the left edge.</extracomment>
        <translation>יישור לשמאל</translation>
    </message>
    <message>
        <source>Align right</source>
        <extracomment>Tool tip of a toggle button: the paragraph is aligned with the right edge.</extracomment>
        <translation>יישור לימין</translation>
    </message>
    <message>
        <source>Justify</source>
        <extracomment>Tool tip of a toggle button: the lines of the paragraph reach from edge to edge. The usual word of word processors.</extracomment>
        <translation>יישור לשני הצדדים</translation>
    </message>
    <message>
        <source>Align center</source>
        <extracomment>Tool tip of a toggle button: the paragraph is centred between the edges.</extracomment>
        <translation>מרכוז</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Left: %1# Top: %2# Width: %3# Height: %4#</source>
        <extracomment>Caption above a selection frame: position and size of the frame in per cent of the area it lies in. %1 to %4 are whole numbers. Each # becomes a per cent sign: keep it after its number. One line, as short as can be: the caption is cut off at the edge of a narrow area.</extracomment>
        <translation>שמאל: %1# למעלה: %2# רוחב: %3# גובה: %4#</translation>
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
        <translation>רשימת השמעה</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <extracomment>Tool tip of a button: detaches the playlist&apos;s panel from the window, so that it floats.</extracomment>
        <translation>ביטול נעיצת רשימת ההשמעה</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Tool tip of a button: closes the playlist&apos;s panel. A verb.</extracomment>
        <translation>סגירה</translation>
    </message>
</context>
</TS>
