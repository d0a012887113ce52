<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
        <translation>OPACITÉ</translation>
    </message>
    <message>
        <source>Color</source>
        <extracomment>Read by screen readers: the name of the field in the colour popup where a colour is typed as &quot;#rrggbb&quot;.</extracomment>
        <translation>Couleur</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::FontStylePicker</name>
    <message>
        <source>Bold</source>
        <extracomment>Tool tip of a toggle button: bold letters. The usual word of word processors.</extracomment>
        <translation>Gras</translation>
    </message>
    <message>
        <source>Italic</source>
        <extracomment>Tool tip of a toggle button: italic letters. The usual word of word processors.</extracomment>
        <translation>Italique</translation>
    </message>
    <message>
        <source>Underline</source>
        <extracomment>Tool tip of a toggle button: underlined letters. The usual word of word processors.</extracomment>
        <translation>Souligné</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineStyleComboBox</name>
    <message>
        <source>none</source>
        <extracomment>Name of a line style, read out by screen readers: no line.</extracomment>
        <translation>aucun</translation>
    </message>
    <message>
        <source>solid</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>continu</translation>
    </message>
    <message>
        <source>dash</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>tirets</translation>
    </message>
    <message>
        <source>dot</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>points</translation>
    </message>
    <message>
        <source>dash dot</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>tiret point</translation>
    </message>
    <message>
        <source>dash dot dot</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>tiret point point</translation>
    </message>
    <message>
        <source>custom</source>
        <extracomment>Name of a line style, read out by screen readers: a dash pattern of the application&apos;s.</extracomment>
        <translation>personnalisé</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineWidthComboBox</name>
    <message>
        <source>none</source>
        <extracomment>In the closed box, instead of a sample line, where the line width is zero: no line. At most about 8 letters.</extracomment>
        <translation>aucune</translation>
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
        <translation>aucune</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::PreviewImageLabel</name>
    <message>
        <source>Applied effects</source>
        <extracomment>Tool tip of the star on the preview of a picture or film: tells, and on a click shows, which effects were applied to it.</extracomment>
        <translation>Effets appliqués</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>Name of the play button of a preview tile, read out by screen readers.</extracomment>
        <translation>Lire</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::RColorPickerPopup</name>
    <message>
        <source>More...</source>
        <extracomment>Button at the bottom of the colour palette: opens a dialog with all colours. At most about 15 letters: the button does not grow.</extracomment>
        <translation>Plus...</translation>
    </message>
    <message>
        <source>Default</source>
        <extracomment>Button at the top of the colour palette: chooses the default colour, not a default action. At most about 15 letters: the button does not grow.</extracomment>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Colors</source>
        <extracomment>Name of the popup with the named colours, read out by screen readers.</extracomment>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Black</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Brown</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Marron</translation>
    </message>
    <message>
        <source>Dark Olive Green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Vert olive foncé</translation>
    </message>
    <message>
        <source>Dark Green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Vert foncé</translation>
    </message>
    <message>
        <source>Dark Teal</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Bleu canard foncé</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Bleu foncé</translation>
    </message>
    <message>
        <source>Indigo</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Indigo</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Gris foncé</translation>
    </message>
    <message>
        <source>Dark red</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Rouge foncé</translation>
    </message>
    <message>
        <source>Orange</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Jaune foncé</translation>
    </message>
    <message>
        <source>Green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Teal</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Bleu canard</translation>
    </message>
    <message>
        <source>Blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Blue-grey</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Gris bleuté</translation>
    </message>
    <message>
        <source>Grey - 40</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Gris - 40</translation>
    </message>
    <message>
        <source>Red</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Light orange</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Orange clair</translation>
    </message>
    <message>
        <source>Lime</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Citron vert</translation>
    </message>
    <message>
        <source>Sea green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Vert de mer</translation>
    </message>
    <message>
        <source>Aqua</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Aigue-marine</translation>
    </message>
    <message>
        <source>Light blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Bleu clair</translation>
    </message>
    <message>
        <source>Violet</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Grey - 50</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Gris - 50</translation>
    </message>
    <message>
        <source>Pink</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Rose</translation>
    </message>
    <message>
        <source>Gold</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Or</translation>
    </message>
    <message>
        <source>Yellow</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Bright green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Vert vif</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Turquoise</translation>
    </message>
    <message>
        <source>Skyblue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Bleu ciel</translation>
    </message>
    <message>
        <source>Plum</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Prune</translation>
    </message>
    <message>
        <source>Light grey</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Gris clair</translation>
    </message>
    <message>
        <source>Rose</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Rose pâle</translation>
    </message>
    <message>
        <source>Tan</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Brun clair</translation>
    </message>
    <message>
        <source>Light yellow</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Jaune clair</translation>
    </message>
    <message>
        <source>Pale green </source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Vert pâle</translation>
    </message>
    <message>
        <source>Pale turquoise</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Turquoise pâle</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Bleu pâle</translation>
    </message>
    <message>
        <source>Lavender</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Lavande</translation>
    </message>
    <message>
        <source>White</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Blanc</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::TextAlignPicker</name>
    <message>
        <source>Align left</source>
        <extracomment>Tool tip of a toggle button: the paragraph is aligned with the left edge.</extracomment>
        <translation>Aligner à gauche</translation>
    </message>
    <message>
        <source>Align right</source>
        <extracomment>Tool tip of a toggle button: the paragraph is aligned with the right edge.</extracomment>
        <translation>Aligner à droite</translation>
    </message>
    <message>
        <source>Justify</source>
        <extracomment>Tool tip of a toggle button: the lines of the paragraph reach from edge to edge. The usual word of word processors.</extracomment>
        <translation>Justifier</translation>
    </message>
    <message>
        <source>Align center</source>
        <extracomment>Tool tip of a toggle button: the paragraph is centred between the edges.</extracomment>
        <translation>Centrer</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Left: %1# Top: %2# Width: %3# Height: %4#</source>
        <extracomment>Caption above a selection frame: position and size of the frame in per cent of the area it lies in. %1 to %4 are whole numbers. Each # becomes a per cent sign: keep it after its number. One line, as short as can be: the caption is cut off at the edge of a narrow area.</extracomment>
        <translation>Gauche : %1# Haut : %2# Largeur : %3# Hauteur : %4#</translation>
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
        <translation>Liste de lecture</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <extracomment>Tool tip of a button: detaches the playlist&apos;s panel from the window, so that it floats.</extracomment>
        <translation>Détacher la liste de lecture</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Tool tip of a button: closes the playlist&apos;s panel. A verb.</extracomment>
        <translation>Fermer</translation>
    </message>
</context>
</TS>
