<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
        <translation>DECKKRAFT</translation>
    </message>
    <message>
        <source>Color</source>
        <extracomment>Read by screen readers: the name of the field in the colour popup where a colour is typed as &quot;#rrggbb&quot;.</extracomment>
        <translation>Farbe</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::FontStylePicker</name>
    <message>
        <source>Bold</source>
        <extracomment>Tool tip of a toggle button: bold letters. The usual word of word processors.</extracomment>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <extracomment>Tool tip of a toggle button: italic letters. The usual word of word processors.</extracomment>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Underline</source>
        <extracomment>Tool tip of a toggle button: underlined letters. The usual word of word processors.</extracomment>
        <translation>Unterstrichen</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineStyleComboBox</name>
    <message>
        <source>none</source>
        <extracomment>Name of a line style, read out by screen readers: no line.</extracomment>
        <translation>keine</translation>
    </message>
    <message>
        <source>solid</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>durchgezogen</translation>
    </message>
    <message>
        <source>dash</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>gestrichelt</translation>
    </message>
    <message>
        <source>dot</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>gepunktet</translation>
    </message>
    <message>
        <source>dash dot</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>Strich Punkt</translation>
    </message>
    <message>
        <source>dash dot dot</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>Strich Punkt Punkt</translation>
    </message>
    <message>
        <source>custom</source>
        <extracomment>Name of a line style, read out by screen readers: a dash pattern of the application&apos;s.</extracomment>
        <translation>benutzerdefiniert</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineWidthComboBox</name>
    <message>
        <source>none</source>
        <extracomment>In the closed box, instead of a sample line, where the line width is zero: no line. At most about 8 letters.</extracomment>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1 px</source>
        <extracomment>A line width in pixels, read out by screen readers; %1 is the number.</extracomment>
        <translation>%1 px</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineWidthDelegate</name>
    <message>
        <source>none</source>
        <extracomment>In the list of line widths, instead of a sample line, where the width is zero: no line. At most about 8 letters.</extracomment>
        <translation>keine</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::PreviewImageLabel</name>
    <message>
        <source>Applied effects</source>
        <extracomment>Tool tip of the star on the preview of a picture or film: tells, and on a click shows, which effects were applied to it.</extracomment>
        <translation>Angewendete Effekte</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>Name of the play button of a preview tile, read out by screen readers.</extracomment>
        <translation>Abspielen</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::RColorPickerPopup</name>
    <message>
        <source>More...</source>
        <extracomment>Button at the bottom of the colour palette: opens a dialog with all colours. At most about 15 letters: the button does not grow.</extracomment>
        <translation>Mehr ...</translation>
    </message>
    <message>
        <source>Default</source>
        <extracomment>Button at the top of the colour palette: chooses the default colour, not a default action. At most about 15 letters: the button does not grow.</extracomment>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Colors</source>
        <extracomment>Name of the popup with the named colours, read out by screen readers.</extracomment>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Black</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Brown</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Braun</translation>
    </message>
    <message>
        <source>Dark Olive Green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Dunkles Olivgrün</translation>
    </message>
    <message>
        <source>Dark Green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Dunkelgrün</translation>
    </message>
    <message>
        <source>Dark Teal</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Dunkles Blaugrün</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Dunkelblau</translation>
    </message>
    <message>
        <source>Indigo</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Indigo</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Dunkelgrau</translation>
    </message>
    <message>
        <source>Dark red</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Dunkelrot</translation>
    </message>
    <message>
        <source>Orange</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Dunkelgelb</translation>
    </message>
    <message>
        <source>Green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Teal</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Blaugrün</translation>
    </message>
    <message>
        <source>Blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Blue-grey</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Blaugrau</translation>
    </message>
    <message>
        <source>Grey - 40</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Grau - 40</translation>
    </message>
    <message>
        <source>Red</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Light orange</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Hellorange</translation>
    </message>
    <message>
        <source>Lime</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Limettengrün</translation>
    </message>
    <message>
        <source>Sea green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Seegrün</translation>
    </message>
    <message>
        <source>Aqua</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Aquamarin</translation>
    </message>
    <message>
        <source>Light blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Hellblau</translation>
    </message>
    <message>
        <source>Violet</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Grey - 50</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Grau - 50</translation>
    </message>
    <message>
        <source>Pink</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Gold</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Gold</translation>
    </message>
    <message>
        <source>Yellow</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Bright green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Leuchtend Grün</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Türkis</translation>
    </message>
    <message>
        <source>Skyblue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Himmelblau</translation>
    </message>
    <message>
        <source>Plum</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Pflaume</translation>
    </message>
    <message>
        <source>Light grey</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Hellgrau</translation>
    </message>
    <message>
        <source>Rose</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Zartrosa</translation>
    </message>
    <message>
        <source>Tan</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Hellbraun</translation>
    </message>
    <message>
        <source>Light yellow</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Hellgelb</translation>
    </message>
    <message>
        <source>Pale green </source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Blassgrün</translation>
    </message>
    <message>
        <source>Pale turquoise</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Blasstürkis</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Blassblau</translation>
    </message>
    <message>
        <source>Lavender</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Lavendel</translation>
    </message>
    <message>
        <source>White</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Weiß</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::TextAlignPicker</name>
    <message>
        <source>Align left</source>
        <extracomment>Tool tip of a toggle button: the paragraph is aligned with the left edge.</extracomment>
        <translation>Linksbündig</translation>
    </message>
    <message>
        <source>Align right</source>
        <extracomment>Tool tip of a toggle button: the paragraph is aligned with the right edge.</extracomment>
        <translation>Rechtsbündig</translation>
    </message>
    <message>
        <source>Justify</source>
        <extracomment>Tool tip of a toggle button: the lines of the paragraph reach from edge to edge. The usual word of word processors.</extracomment>
        <translation>Blocksatz</translation>
    </message>
    <message>
        <source>Align center</source>
        <extracomment>Tool tip of a toggle button: the paragraph is centred between the edges.</extracomment>
        <translation>Zentriert</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Left: %1# Top: %2# Width: %3# Height: %4#</source>
        <extracomment>Caption above a selection frame: position and size of the frame in per cent of the area it lies in. %1 to %4 are whole numbers. Each # becomes a per cent sign: keep it after its number. One line, as short as can be: the caption is cut off at the edge of a narrow area.</extracomment>
        <translation>Links: %1# Oben: %2# Breite: %3# Höhe: %4#</translation>
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
        <translation>Wiedergabeliste</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <extracomment>Tool tip of a button: detaches the playlist&apos;s panel from the window, so that it floats.</extracomment>
        <translation>Wiedergabeliste lösen</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Tool tip of a button: closes the playlist&apos;s panel. A verb.</extracomment>
        <translation>Schließen</translation>
    </message>
</context>
</TS>
