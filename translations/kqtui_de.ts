<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AdvancedColorPickerPopup</name>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>OPACITY</source>
        <translation>DECKKRAFT</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineWidthComboBox</name>
    <message>
        <source>none</source>
        <extracomment>Shown instead of a sample line where the line width is zero.</extracomment>
        <translation>keine</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineWidthDelegate</name>
    <message>
        <source>none</source>
        <extracomment>Shown instead of a sample line where the line width is zero.</extracomment>
        <translation>keine</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::RColorPickerPopup</name>
    <message>
        <source>More...</source>
        <extracomment>Button that opens a dialog with all colours.</extracomment>
        <translation>Mehr ...</translation>
    </message>
    <message>
        <source>Default</source>
        <extracomment>Button that chooses the default colour.</extracomment>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Left: %1# Top: %2# Width: %3# Height: %4#</source>
        <translation>Links: %1# Oben: %2# Breite: %3# Höhe: %4#</translation>
    </message>
</context>
</TS>
