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
</TS>
