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
</TS>
