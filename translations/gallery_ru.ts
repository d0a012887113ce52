<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>Gallery</name>
    <message>
        <source>Advanced colour picker</source>
        <translation>Расширенный выбор цвета</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>Поля со списком</translation>
    </message>
    <message>
        <source>Drop and drag</source>
        <translation>Сброс и перетаскивание</translation>
    </message>
    <message>
        <source>Event helpers</source>
        <translation>Помощники событий</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Пипетка</translation>
    </message>
    <message>
        <source>Formatting</source>
        <translation>Форматирование</translation>
    </message>
    <message>
        <source>Frame over a window</source>
        <translation>Рамка над окном</translation>
    </message>
    <message>
        <source>Labels and inputs</source>
        <translation>Надписи и поля ввода</translation>
    </message>
    <message>
        <source>Named palette</source>
        <translation>Палитра с названиями</translation>
    </message>
    <message>
        <source>Pens and lines</source>
        <translation>Перья и линии</translation>
    </message>
    <message>
        <source>Selection frames</source>
        <translation>Рамки выделения</translation>
    </message>
    <message>
        <source>Tiles and title bars</source>
        <translation>Плитки и заголовки</translation>
    </message>
    <message>
        <source>Walkthrough</source>
        <translation>Экскурсия</translation>
    </message>
    <message>
        <source>Widget renderer</source>
        <translation>Отрисовка виджетов</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>Диалоги файлов</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>Панель задач</translation>
    </message>
</context>
<context>
    <name>Gallery::AdvancedColorPickerPage</name>
    <message>
        <source>Click a colour to open its popup; the note takes the new colour while you choose.</source>
        <translation>Щёлкните цвет, чтобы открыть его окно; записка принимает новый цвет уже во время выбора.</translation>
    </message>
    <message>
        <source>Buy milk, feed the cat</source>
        <translation>Купить молока, покормить кошку</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Бумага</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Чернила</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Маркер</translation>
    </message>
    <message>
        <source>Drag a colour from the palette to one of the twelve slots above it. The slots are shared: open another picker and find the colour there.</source>
        <translation>Перетащите цвет из палитры в одну из двенадцати ячеек над ней. Ячейки общие: откройте другой выбор цвета и найдите этот цвет там.</translation>
    </message>
    <message>
        <source>Opacity of the marker</source>
        <translation>Непрозрачность маркера</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включено</translation>
    </message>
    <message>
        <source>Random colours</source>
        <translation>Случайные цвета</translation>
    </message>
    <message>
        <source>A colour that is set by the program makes no signal.</source>
        <translation>Цвет, заданный программой, не вызывает сигнала.</translation>
    </message>
    <message>
        <source>Open popup here</source>
        <translation>Открыть окно здесь</translation>
    </message>
</context>
<context>
    <name>Gallery::ComboBoxesPage</name>
    <message>
        <source>Combo boxes that are narrower than their items. Turn the wheel over the form, open the lists.</source>
        <translation>Поля со списком более узкие, чем их элементы. Покрутите колесо над формой, откройте списки.</translation>
    </message>
    <message>
        <source>Narrow box</source>
        <translation>Узкое поле</translation>
    </message>
    <message>
        <source>Elided text and wide popup</source>
        <translation>Сокращённый текст и широкий список</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Строка %1</translation>
    </message>
    <message>
        <source>No wheel in a scrolling form</source>
        <translation>Без колеса в прокручиваемой форме</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Вырезать</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Box with separators</source>
        <translation>Поле с разделителями</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>Разделители</translation>
    </message>
    <message>
        <source>A preset with a rather long name</source>
        <translation>Набор с довольно длинным названием</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Наборы</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>Спокойный</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Яркий</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Ночь</translation>
    </message>
    <message>
        <source>Preset panel</source>
        <translation>Панель наборов</translation>
    </message>
    <message>
        <source>Wide popup</source>
        <translation>Широкий список</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Колесо мыши</translation>
    </message>
    <message>
        <source>Elide text</source>
        <translation>Сокращать текст</translation>
    </message>
    <message>
        <source>Tool tip:</source>
        <translation>Подсказка:</translation>
    </message>
    <message>
        <source>Styled separators</source>
        <translation>Оформленные разделители</translation>
    </message>
    <message>
        <source>Preset icon</source>
        <translation>Значок набора</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Короткий</translation>
    </message>
    <message>
        <source>An item whose text is much longer than the box</source>
        <translation>Элемент, текст которого намного длиннее поля</translation>
    </message>
    <message>
        <source>Another one that does not fit</source>
        <translation>Ещё один, который не помещается</translation>
    </message>
</context>
<context>
    <name>Gallery::DropAndDragPage</name>
    <message>
        <source>Drop files from a file manager: one observer takes pictures, the other texts, and each hears of everything that is dropped. Drag the panel by any point, its button included: what was dragged is not clicked.</source>
        <translation>Сбросьте файлы из файлового менеджера: один наблюдатель берёт изображения, другой — тексты, и каждый узнаёт обо всём, что сброшено. Перетаскивайте панель за любую точку, даже за её кнопку: что перетащили, то не нажато.</translation>
    </message>
    <message>
        <source>Pictures are welcome</source>
        <translation>Изображениям здесь рады</translation>
    </message>
    <message>
        <source>Texts are welcome</source>
        <translation>Текстам здесь рады</translation>
    </message>
    <message>
        <source>Drop pictures or texts here</source>
        <translation>Сбросьте сюда изображения или тексты</translation>
    </message>
    <message>
        <source>Drag me anywhere</source>
        <translation>Тащите меня куда угодно</translation>
    </message>
    <message>
        <source>Click me</source>
        <translation>Нажмите меня</translation>
    </message>
</context>
<context>
    <name>Gallery::EventHelpersPage</name>
    <message>
        <source>Scribble on the pad: the lamps below show the signals that the helpers make of its events. Without propagation the signals still come, but the pad itself sees no mouse any more.</source>
        <translation>Порисуйте в блокноте: лампочки внизу показывают сигналы, которые помощники делают из его событий. Без передачи событий сигналы приходят по-прежнему, но сам блокнот мышь больше не видит.</translation>
    </message>
    <message>
        <source>Scribble here</source>
        <translation>Рисуйте здесь</translation>
    </message>
    <message>
        <source>Events go on to the pad</source>
        <translation>События доходят до блокнота</translation>
    </message>
    <message>
        <source>Hover events</source>
        <translation>События наведения</translation>
    </message>
    <message>
        <source>Moves without a button</source>
        <translation>Движения без кнопки</translation>
    </message>
    <message>
        <source>Wipe the pad</source>
        <translation>Очистить блокнот</translation>
    </message>
    <message>
        <source>Drop it here</source>
        <translation>Сбросьте сюда</translation>
    </message>
    <message>
        <source>Drag this text</source>
        <translation>Перетащите этот текст</translation>
    </message>
    <message>
        <source>Drop field is guarded</source>
        <translation>Поле сброса защищено</translation>
    </message>
    <message>
        <source>Window stays on top</source>
        <translation>Окно поверх всех</translation>
    </message>
</context>
<context>
    <name>Gallery::EyedropperPage</name>
    <message>
        <source>Press the button, then click into the picture: the button takes the colour under the cursor. Any key picks as well; a click elsewhere ends it without a colour.</source>
        <translation>Нажмите кнопку, затем щёлкните изображение: кнопка примет цвет под указателем. Подойдёт и любая клавиша; щелчок в другом месте завершает выбор без цвета.</translation>
    </message>
    <message>
        <source>Pick a colour from the picture</source>
        <translation>Взять цвет из изображения</translation>
    </message>
    <message>
        <source>Button shows the colour</source>
        <translation>Кнопка показывает цвет</translation>
    </message>
    <message>
        <source>Picture is the target</source>
        <translation>Цель — изображение</translation>
    </message>
    <message>
        <source>Frame round the picture</source>
        <translation>Рамка вокруг изображения</translation>
    </message>
    <message>
        <source>Pick without the button</source>
        <translation>Взять без кнопки</translation>
    </message>
    <message>
        <source>The program waits for the colour.</source>
        <translation>Программа ждёт цвет.</translation>
    </message>
</context>
<context>
    <name>Gallery::FileDialogsPage</name>
    <message>
        <source>Each button calls the function of its name and shows what comes back: the result, string by string, and the filter that was written back. On Windows getOpen() shows the dialog of the system, which takes files and folders together.</source>
        <translation>Каждая кнопка вызывает функцию со своим именем и показывает, что вернулось: результат строка за строкой и записанный обратно фильтр. В Windows getOpen() показывает системный диалог, который принимает вместе и файлы, и папки.</translation>
    </message>
    <message>
        <source>This disc is read-only: nothing can be written to it.</source>
        <translation>Этот диск только для чтения: на него нельзя ничего записать.</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>&amp;Результат</translation>
    </message>
    <message>
        <source>Nothing was asked yet</source>
        <translation>Пока ничего не спрашивали</translation>
    </message>
    <message>
        <source>Choose something</source>
        <translation>Выберите что-нибудь</translation>
    </message>
    <message>
        <source>Images (*.jpg *.png);;Texts (*.txt *.md);;All files (*)</source>
        <translation>Изображения (*.jpg *.png);;Тексты (*.txt *.md);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Заголовок</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>getOpen(): files</source>
        <translation>getOpen(): файлы</translation>
    </message>
    <message>
        <source>getOpen(): folders</source>
        <translation>getOpen(): папки</translation>
    </message>
    <message>
        <source>getOpen(): several</source>
        <translation>getOpen(): несколько</translation>
    </message>
    <message>
        <source>An empty list</source>
        <translation>Пустой список</translation>
    </message>
    <message>
        <source>Filter written back: %1</source>
        <translation>Записанный обратно фильтр: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::FormattingPage</name>
    <message>
        <source>Format the sample with the two strips. Their icons come from the page&apos;s style sheet, which selects the buttons by their property &quot;styleTag&quot;.</source>
        <translation>Оформите образец двумя панелями. Их значки берутся из таблицы стилей страницы, которая выбирает кнопки по свойству «styleTag».</translation>
    </message>
    <message>
        <source>The quick brown fox jumps over the lazy dog, and the dog, being lazy, lets it jump as often as it likes.</source>
        <translation>Быстрая рыжая лиса прыгает через ленивую собаку, а собака, раз уж она ленива, позволяет ей прыгать сколько угодно.</translation>
    </message>
    <message>
        <source>Plain font</source>
        <translation>Простой шрифт</translation>
    </message>
    <message>
        <source>The program sets a font: a signal for each toggle that changes.</source>
        <translation>Программа задаёт шрифт: по сигналу на каждый изменившийся переключатель.</translation>
    </message>
    <message>
        <source>Set to left</source>
        <translation>По левому краю</translation>
    </message>
    <message>
        <source>The program checks a button: no signal, and the sample stays as it is.</source>
        <translation>Программа отмечает кнопку: сигнала нет, и образец остаётся прежним.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включено</translation>
    </message>
</context>
<context>
    <name>Gallery::FrameOverWindowPage</name>
    <message>
        <source>The window below goes on living while the frame lies over it. In edit mode the mouse moves the frame; otherwise it reaches the window.</source>
        <translation>Окно внизу продолжает жить, пока над ним лежит рамка. В режиме правки мышь двигает рамку; иначе она достигает окна.</translation>
    </message>
    <message>
        <source>Type here while edit mode is off</source>
        <translation>Пишите здесь вне режима правки</translation>
    </message>
    <message>
        <source>Press here while edit mode is off</source>
        <translation>Нажимайте здесь вне режима правки</translation>
    </message>
    <message>
        <source>A window with its own life</source>
        <translation>Окно, живущее своей жизнью</translation>
    </message>
    <message>
        <source>From %1 %, %2 %: %3 % wide, %4 % high</source>
        <comment>position and size of the frame</comment>
        <translation>От %1 %, %2 %: ширина %3 %, высота %4 %</translation>
    </message>
    <message>
        <source>Edit mode</source>
        <translation>Режим правки</translation>
    </message>
    <message>
        <source>Keep the ratio</source>
        <translation>Сохранять пропорции</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>Рабочая область</translation>
    </message>
    <message>
        <source>Veil</source>
        <translation>Завеса</translation>
    </message>
</context>
<context>
    <name>Gallery::GalleryHint</name>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Не сейчас</translation>
    </message>
    <message>
        <source>Never again</source>
        <translation>Больше никогда</translation>
    </message>
</context>
<context>
    <name>Gallery::LabelsAndInputsPage</name>
    <message>
        <source>Drag the handle beside the column to narrow it: labels and the line edit elide their texts and tell the whole of them in tool tips. The line edit shows all of it while you edit.</source>
        <translation>Потяните за ручку рядом со столбцом, чтобы сузить его: надписи и поле ввода сокращают свои тексты и показывают их целиком в подсказках. Во время правки поле показывает весь текст.</translation>
    </message>
    <message>
        <source>A file name that is much too long for a column as narrow as this one.txt</source>
        <translation>Имя файла, слишком длинное для такого узкого столбца.txt</translation>
    </message>
    <message>
        <source>Mixed directions: %1, elided in order</source>
        <translation>Смешанные направления: %1, сокращено по порядку</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Короткий</translation>
    </message>
    <message>
        <source>Drag the handle at the edge of this field.</source>
        <translation>Потяните за ручку на краю этого поля.</translation>
    </message>
    <message>
        <source>Press here, with any button</source>
        <translation>Нажмите здесь любой кнопкой</translation>
    </message>
    <message>
        <source>Clipped text</source>
        <translation>Сокращённый текст</translation>
    </message>
    <message>
        <source>A text that is shown whole while you edit it, and elided while you do not</source>
        <translation>Текст, который виден целиком во время правки и сокращён в остальное время</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Заметки</translation>
    </message>
    <message>
        <source>Labels report presses</source>
        <translation>Надписи сообщают о нажатиях</translation>
    </message>
    <message>
        <source>Labels elide their texts</source>
        <translation>Надписи сокращают тексты</translation>
    </message>
    <message>
        <source>at the end</source>
        <translation>в конце</translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation>в середине</translation>
    </message>
    <message>
        <source>at the beginning</source>
        <translation>в начале</translation>
    </message>
    <message>
        <source>Elide</source>
        <translation>Сокращать</translation>
    </message>
    <message>
        <source>What do you think of it?</source>
        <translation>Что вы об этом думаете?</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>Текст-заполнитель</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Число</translation>
    </message>
    <message>
        <source>Digits at most</source>
        <translation>Не больше цифр</translation>
    </message>
</context>
<context>
    <name>Gallery::MainWindow</name>
    <message>
        <source>KQtUi gallery</source>
        <translation>Галерея KQtUi</translation>
    </message>
    <message>
        <source>&amp;Find a page</source>
        <translation>&amp;Найти страницу</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>&amp;Dark palette</source>
        <translation>&amp;Тёмная палитра</translation>
    </message>
    <message>
        <source>&amp;Right to left</source>
        <translation>&amp;Справа налево</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Язык</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>Язык: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::NamedPalettePage</name>
    <message>
        <source>Click the button: a default colour, forty named colours, and a dialog behind &quot;More...&quot;.</source>
        <translation>Нажмите кнопку: цвет по умолчанию, сорок цветов с названиями и диалог за кнопкой «Ещё...».</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Цвет</translation>
    </message>
    <message>
        <source>While its popup is open the picker&apos;s property &quot;pressed&quot; is true: the page&apos;s style sheet gives it a thick border then.</source>
        <translation>Пока палитра открыта, свойство «pressed» кнопки истинно: таблица стилей страницы даёт ей тогда толстую рамку.</translation>
    </message>
    <message>
        <source>Colorized</source>
        <translation>Окрашено</translation>
    </message>
    <message>
        <source>Dark popup</source>
        <translation>Тёмная палитра</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включено</translation>
    </message>
    <message>
        <source>Make it the default</source>
        <translation>Сделать цветом по умолчанию</translation>
    </message>
    <message>
        <source>The popup&apos;s &quot;Default&quot; button chooses this colour from now on.</source>
        <translation>Кнопка «По умолчанию» в палитре отныне выбирает этот цвет.</translation>
    </message>
</context>
<context>
    <name>Gallery::Page</name>
    <message>
        <source>Properties</source>
        <translation>Свойства</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Сигналы</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Код</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
</context>
<context>
    <name>Gallery::PageList</name>
    <message>
        <source>Pages</source>
        <translation>Страницы</translation>
    </message>
    <message>
        <source>Title or component</source>
        <translation>Название или компонент</translation>
    </message>
</context>
<context>
    <name>Gallery::PensAndLinesPage</name>
    <message>
        <source>Pens, lines and opacity: each group draws what its boxes say.</source>
        <translation>Перья, линии и непрозрачность: каждая группа рисует то, что задано в её полях.</translation>
    </message>
    <message>
        <source>Pen picker</source>
        <translation>Выбор пера</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>Стиль линии</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Толщина линии</translation>
    </message>
    <message>
        <source>Line style and line width</source>
        <translation>Стиль и толщина линии</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Непрозрачность</translation>
    </message>
    <message>
        <source>Opacity adapter</source>
        <translation>Адаптер непрозрачности</translation>
    </message>
    <message>
        <source>Value: %1</source>
        <translation>Значение: %1</translation>
    </message>
    <message>
        <source>Slider with a zero tick</source>
        <translation>Ползунок с отметкой нуля</translation>
    </message>
    <message>
        <source>Coloured tick</source>
        <translation>Цветная отметка</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включено</translation>
    </message>
</context>
<context>
    <name>Gallery::SelectionFramesPage</name>
    <message>
        <source>Drag the frames, their corners and their sides. The small picture is what the frames are rendered to, with its alpha.</source>
        <translation>Перетаскивайте рамки, их углы и стороны. Маленькое изображение — то, во что рамки отрисованы, вместе с альфа-каналом.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Область</translation>
    </message>
    <message>
        <source>Holiday by the sea</source>
        <translation>Отпуск у моря</translation>
    </message>
    <message>
        <source>Picture keeps its ratio</source>
        <translation>Изображение сохраняет пропорции</translation>
    </message>
    <message>
        <source>Region keeps its ratio</source>
        <translation>Область сохраняет пропорции</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>Рабочая область</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Прозрачность</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Заливка</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Контур</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Шрифт</translation>
    </message>
</context>
<context>
    <name>Gallery::SignalLog</name>
    <message>
        <source>Signals appear here.</source>
        <translation>Здесь появляются сигналы.</translation>
    </message>
</context>
<context>
    <name>Gallery::TaskbarPage</name>
    <message>
        <source>Move the slider or press a button, and look at the taskbar or dock of your desktop: that begins an operation. Below stands what was asked for, and what is seen of it where.</source>
        <translation>Передвиньте ползунок или нажмите кнопку и посмотрите на панель задач или док рабочего стола: так начинается операция. Ниже указано, что было запрошено и что из этого где видно.</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>В Windows</translation>
    </message>
    <message>
        <source>The button of this window in the taskbar fills: green while the operation runs, yellow when it is paused, red when it was stopped. A busy one has a light that runs through it.</source>
        <translation>Кнопка этого окна на панели задач заполняется: зелёным, пока операция идёт, жёлтым, когда она приостановлена, красным, если её остановили. Если ход неизвестен, по кнопке пробегает свет.</translation>
    </message>
    <message>
        <source>Linux</source>
        <translation>В Linux</translation>
    </message>
    <message>
        <source>The entry of this application has a bar, in docks that know its desktop file and show progress: those of KDE Plasma and Ubuntu, Dash to Dock, Plank and others. Busy is an empty bar, paused looks like running, and what was stopped asks for attention.</source>
        <translation>У значка этого приложения появляется полоса в доках, которые знают его desktop-файл и показывают ход операций: в KDE Plasma и Ubuntu, Dash to Dock, Plank и других. Неизвестный ход — пустая полоса, пауза выглядит как работа, а остановленное просит внимания.</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>В других системах</translation>
    </message>
    <message>
        <source>Nothing is seen.</source>
        <translation>Ничего не видно.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход операции</translation>
    </message>
    <message>
        <source>End the operation</source>
        <translation>Завершить операцию</translation>
    </message>
    <message>
        <source>Desktop file</source>
        <translation>Файл desktop</translation>
    </message>
    <message>
        <source>There is no operation.</source>
        <translation>Операции нет.</translation>
    </message>
    <message>
        <source>The indicator is hidden.</source>
        <translation>Индикатор скрыт.</translation>
    </message>
    <message>
        <source>The operation was stopped.</source>
        <translation>Операция остановлена.</translation>
    </message>
    <message>
        <source>The operation is paused.</source>
        <translation>Операция приостановлена.</translation>
    </message>
    <message>
        <source>The operation runs; how far it is nobody knows.</source>
        <translation>Операция идёт; насколько она продвинулась, никто не знает.</translation>
    </message>
    <message>
        <source>The operation runs.</source>
        <translation>Операция идёт.</translation>
    </message>
</context>
<context>
    <name>Gallery::TilesPage</name>
    <message>
        <source>Tiles with a star, a play button and a duration over a picture; and a panel whose title bar can be dragged, detached and closed.</source>
        <translation>Плитки со звездой, кнопкой воспроизведения и длительностью поверх изображения; и панель, заголовок которой можно перетаскивать, откреплять и закрывать.</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Рассвет</translation>
    </message>
    <message>
        <source>Noon</source>
        <translation>Полдень</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Закат</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Ночь</translation>
    </message>
    <message>
        <source>Pin playlist</source>
        <translation>Закрепить список воспроизведения</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <translation>Открепить список воспроизведения</translation>
    </message>
    <message>
        <source>Stars</source>
        <translation>Звёзды</translation>
    </message>
    <message>
        <source>Play buttons</source>
        <translation>Кнопки воспроизведения</translation>
    </message>
    <message>
        <source>Clips can be played</source>
        <translation>Ролики можно воспроизводить</translation>
    </message>
    <message>
        <source>Styled as floating</source>
        <translation>Оформить как плавающую</translation>
    </message>
    <message>
        <source>Show the panel</source>
        <translation>Показать панель</translation>
    </message>
</context>
<context>
    <name>Gallery::Tour</name>
    <message>
        <source>Welcome to the gallery</source>
        <translation>Добро пожаловать в галерею</translation>
    </message>
    <message>
        <source>Every family of components has a page of its own, and all of them are alive. The tour shows you around in a minute.</source>
        <translation>У каждого семейства компонентов своя страница, и все они живые. Экскурсия покажет вам всё за минуту.</translation>
    </message>
    <message>
        <source>Find a page</source>
        <translation>Найти страницу</translation>
    </message>
    <message>
        <source>Type part of a title. The arrow keys move through the pages that are left.</source>
        <translation>Введите часть названия. Клавиши со стрелками перебирают оставшиеся страницы.</translation>
    </message>
    <message>
        <source>Dark, and from right to left</source>
        <translation>Тёмная и справа налево</translation>
    </message>
    <message>
        <source>These two switches are one target: the frame goes round both. This hint stays clear of the filter, so that you can go on typing.</source>
        <translation>Эти два переключателя — одна цель: рамка обводит оба. Эта подсказка не закрывает фильтр, чтобы вы могли печатать дальше.</translation>
    </message>
    <message>
        <source>In your language</source>
        <translation>На вашем языке</translation>
    </message>
    <message>
        <source>The texts change at once, those of this hint as well. Clicking what a hint points at takes you on, just as Next does.</source>
        <translation>Тексты меняются сразу, и в этой подсказке тоже. Щелчок по тому, на что указывает подсказка, ведёт дальше, так же как «Далее».</translation>
    </message>
    <message>
        <source>Open a page</source>
        <translation>Открыть страницу</translation>
    </message>
    <message>
        <source>Choose &quot;Walkthrough&quot; in the list. The last hint waits for that page to be opened.</source>
        <translation>Выберите «Экскурсия» в списке. Последняя подсказка ждёт, пока эта страница откроется.</translation>
    </message>
    <message>
        <source>How the tour works</source>
        <translation>Как устроена экскурсия</translation>
    </message>
    <message>
        <source>A walkthrough is a machine of named states. Here you see another one at work, and can drive it yourself.</source>
        <translation>Экскурсия — это машина именованных состояний. Здесь видно другую за работой, и ею можно управлять самому.</translation>
    </message>
</context>
<context>
    <name>Gallery::WalkthroughPage</name>
    <message>
        <source>One target</source>
        <translation>Одна цель</translation>
    </message>
    <message>
        <source>Press the button, or Next.</source>
        <translation>Нажмите кнопку или «Далее».</translation>
    </message>
    <message>
        <source>Two targets</source>
        <translation>Две цели</translation>
    </message>
    <message>
        <source>Hide one with the switches: the frame follows. Hide both, and the hint goes.</source>
        <translation>Скройте одну переключателями: рамка последует. Скройте обе, и подсказка исчезнет.</translation>
    </message>
    <message>
        <source>A small tour of its own. Start it, hide its targets, or enter a state by double-clicking it: the lists show the machine&apos;s groups, and what each hint still waits for.</source>
        <translation>Небольшая отдельная экскурсия. Запустите её, скройте её цели или войдите в состояние двойным щелчком: списки показывают группы машины и то, чего ещё ждёт каждая подсказка.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>First lamp</source>
        <translation>Первая лампочка</translation>
    </message>
    <message>
        <source>Second lamp</source>
        <translation>Вторая лампочка</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>Active state</source>
        <translation>Активное состояние</translation>
    </message>
    <message>
        <source>Groups and states</source>
        <translation>Группы и состояния</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Подсказка</translation>
    </message>
    <message>
        <source>Unmet conditions</source>
        <translation>Невыполненные условия</translation>
    </message>
    <message>
        <source>Waits for</source>
        <translation>Ждёт</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Подсказки</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>Начать экскурсию</translation>
    </message>
    <message>
        <source>Stop the tour</source>
        <translation>Остановить экскурсию</translation>
    </message>
    <message>
        <source>Hints enabled</source>
        <translation>Подсказки включены</translation>
    </message>
    <message>
        <source>Save is shown</source>
        <translation>Кнопка «Сохранить» видна</translation>
    </message>
    <message>
        <source>First lamp is shown</source>
        <translation>Первая лампочка видна</translation>
    </message>
    <message>
        <source>Second lamp is shown</source>
        <translation>Вторая лампочка видна</translation>
    </message>
    <message>
        <source>Hints avoid the list of hints</source>
        <translation>Подсказки обходят свой список</translation>
    </message>
    <message>
        <source>entered %1</source>
        <translation>вход в %1</translation>
    </message>
</context>
<context>
    <name>Gallery::WidgetRendererPage</name>
    <message>
        <source>The widgets are drawn into the picture beside them, and cut out of their window. Cut out, they still answer to the mouse.</source>
        <translation>Виджеты рисуются в изображение рядом с ними и вырезаются из своего окна. И вырезанные, они отвечают мыши.</translation>
    </message>
    <message>
        <source>Compose</source>
        <translation>Составить</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>Вернуть</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Кнопка</translation>
    </message>
    <message>
        <source>Check box</source>
        <translation>Флажок</translation>
    </message>
</context>
</TS>
