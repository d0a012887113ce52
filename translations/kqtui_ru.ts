<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
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
        <translation>НЕПРОЗРАЧНОСТЬ</translation>
    </message>
    <message>
        <source>Color</source>
        <extracomment>Read by screen readers: the name of the field in the colour popup where a colour is typed as &quot;#rrggbb&quot;.</extracomment>
        <translation>Цвет</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::FontStylePicker</name>
    <message>
        <source>Bold</source>
        <extracomment>Tool tip of a toggle button: bold letters. The usual word of word processors.</extracomment>
        <translation>Полужирный</translation>
    </message>
    <message>
        <source>Italic</source>
        <extracomment>Tool tip of a toggle button: italic letters. The usual word of word processors.</extracomment>
        <translation>Курсив</translation>
    </message>
    <message>
        <source>Underline</source>
        <extracomment>Tool tip of a toggle button: underlined letters. The usual word of word processors.</extracomment>
        <translation>Подчёркнутый</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineStyleComboBox</name>
    <message>
        <source>none</source>
        <extracomment>Name of a line style, read out by screen readers: no line.</extracomment>
        <translation>нет</translation>
    </message>
    <message>
        <source>solid</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>сплошная</translation>
    </message>
    <message>
        <source>dash</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>штриховая</translation>
    </message>
    <message>
        <source>dot</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>пунктирная</translation>
    </message>
    <message>
        <source>dash dot</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>штрих-пунктирная</translation>
    </message>
    <message>
        <source>dash dot dot</source>
        <extracomment>Name of a line style, read out by screen readers.</extracomment>
        <translation>штрих-двухпунктирная</translation>
    </message>
    <message>
        <source>custom</source>
        <extracomment>Name of a line style, read out by screen readers: a dash pattern of the application&apos;s.</extracomment>
        <translation>особая</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineWidthComboBox</name>
    <message>
        <source>none</source>
        <extracomment>In the closed box, instead of a sample line, where the line width is zero: no line. At most about 8 letters.</extracomment>
        <translation>нет</translation>
    </message>
    <message>
        <source>%1 px</source>
        <extracomment>A line width in pixels, read out by screen readers; %1 is the number.</extracomment>
        <translation>%1 пикселей</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::LineWidthDelegate</name>
    <message>
        <source>none</source>
        <extracomment>In the list of line widths, instead of a sample line, where the width is zero: no line. At most about 8 letters.</extracomment>
        <translation>нет</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::PreviewImageLabel</name>
    <message>
        <source>Applied effects</source>
        <extracomment>Tool tip of the star on the preview of a picture or film: tells, and on a click shows, which effects were applied to it.</extracomment>
        <translation>Применённые эффекты</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>Name of the play button of a preview tile, read out by screen readers.</extracomment>
        <translation>Воспроизвести</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::RColorPickerPopup</name>
    <message>
        <source>More...</source>
        <extracomment>Button at the bottom of the colour palette: opens a dialog with all colours. At most about 15 letters: the button does not grow.</extracomment>
        <translation>Ещё...</translation>
    </message>
    <message>
        <source>Default</source>
        <extracomment>Button at the top of the colour palette: chooses the default colour, not a default action. At most about 15 letters: the button does not grow.</extracomment>
        <translation>По умолчанию</translation>
    </message>
    <message>
        <source>Colors</source>
        <extracomment>Name of the popup with the named colours, read out by screen readers.</extracomment>
        <translation>Цвета</translation>
    </message>
    <message>
        <source>Black</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Чёрный</translation>
    </message>
    <message>
        <source>Brown</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Коричневый</translation>
    </message>
    <message>
        <source>Dark Olive Green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Тёмный оливково-зелёный</translation>
    </message>
    <message>
        <source>Dark Green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Тёмно-зелёный</translation>
    </message>
    <message>
        <source>Dark Teal</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Тёмный сине-зелёный</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Тёмно-синий</translation>
    </message>
    <message>
        <source>Indigo</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Индиго</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Тёмно-серый</translation>
    </message>
    <message>
        <source>Dark red</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Тёмно-красный</translation>
    </message>
    <message>
        <source>Orange</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Оранжевый</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Тёмно-жёлтый</translation>
    </message>
    <message>
        <source>Green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Зелёный</translation>
    </message>
    <message>
        <source>Teal</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Сине-зелёный</translation>
    </message>
    <message>
        <source>Blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Синий</translation>
    </message>
    <message>
        <source>Blue-grey</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Сине-серый</translation>
    </message>
    <message>
        <source>Grey - 40</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Серый - 40</translation>
    </message>
    <message>
        <source>Red</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Красный</translation>
    </message>
    <message>
        <source>Light orange</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Светло-оранжевый</translation>
    </message>
    <message>
        <source>Lime</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Лаймовый</translation>
    </message>
    <message>
        <source>Sea green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Морская зелень</translation>
    </message>
    <message>
        <source>Aqua</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Аквамариновый</translation>
    </message>
    <message>
        <source>Light blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Светло-синий</translation>
    </message>
    <message>
        <source>Violet</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Фиолетовый</translation>
    </message>
    <message>
        <source>Grey - 50</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Серый - 50</translation>
    </message>
    <message>
        <source>Pink</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Розовый</translation>
    </message>
    <message>
        <source>Gold</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Золотой</translation>
    </message>
    <message>
        <source>Yellow</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Жёлтый</translation>
    </message>
    <message>
        <source>Bright green</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Ярко-зелёный</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Бирюзовый</translation>
    </message>
    <message>
        <source>Skyblue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Небесно-голубой</translation>
    </message>
    <message>
        <source>Plum</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Сливовый</translation>
    </message>
    <message>
        <source>Light grey</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Светло-серый</translation>
    </message>
    <message>
        <source>Rose</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Бледно-розовый</translation>
    </message>
    <message>
        <source>Tan</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Желтовато-коричневый</translation>
    </message>
    <message>
        <source>Light yellow</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Светло-жёлтый</translation>
    </message>
    <message>
        <source>Pale green </source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Бледно-зелёный</translation>
    </message>
    <message>
        <source>Pale turquoise</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Бледно-бирюзовый</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Бледно-голубой</translation>
    </message>
    <message>
        <source>Lavender</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Лавандовый</translation>
    </message>
    <message>
        <source>White</source>
        <extracomment>Name of a colour of the palette, read out by screen readers.</extracomment>
        <translation>Белый</translation>
    </message>
</context>
<context>
    <name>Kestrel::Gui::TextAlignPicker</name>
    <message>
        <source>Align left</source>
        <extracomment>Tool tip of a toggle button: the paragraph is aligned with the left edge.</extracomment>
        <translation>По левому краю</translation>
    </message>
    <message>
        <source>Align right</source>
        <extracomment>Tool tip of a toggle button: the paragraph is aligned with the right edge.</extracomment>
        <translation>По правому краю</translation>
    </message>
    <message>
        <source>Justify</source>
        <extracomment>Tool tip of a toggle button: the lines of the paragraph reach from edge to edge. The usual word of word processors.</extracomment>
        <translation>По ширине</translation>
    </message>
    <message>
        <source>Align center</source>
        <extracomment>Tool tip of a toggle button: the paragraph is centred between the edges.</extracomment>
        <translation>По центру</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Left: %1# Top: %2# Width: %3# Height: %4#</source>
        <extracomment>Caption above a selection frame: position and size of the frame in per cent of the area it lies in. %1 to %4 are whole numbers. Each # becomes a per cent sign: keep it after its number. One line, as short as can be: the caption is cut off at the edge of a narrow area.</extracomment>
        <translation>Слева: %1# Сверху: %2# Ширина: %3# Высота: %4#</translation>
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
        <translation>Список воспроизведения</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <extracomment>Tool tip of a button: detaches the playlist&apos;s panel from the window, so that it floats.</extracomment>
        <translation>Открепить список воспроизведения</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Tool tip of a button: closes the playlist&apos;s panel. A verb.</extracomment>
        <translation>Закрыть</translation>
    </message>
</context>
</TS>
