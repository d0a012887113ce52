<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>Gallery</name>
    <message>
        <source>Advanced colour picker</source>
        <translation>Розширений вибір кольору</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>Поля зі списком</translation>
    </message>
    <message>
        <source>Drop and drag</source>
        <translation>Скидання й перетягування</translation>
    </message>
    <message>
        <source>Event helpers</source>
        <translation>Помічники подій</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Піпетка</translation>
    </message>
    <message>
        <source>Formatting</source>
        <translation>Форматування</translation>
    </message>
    <message>
        <source>Frame over a window</source>
        <translation>Рамка над вікном</translation>
    </message>
    <message>
        <source>Labels and inputs</source>
        <translation>Написи та поля введення</translation>
    </message>
    <message>
        <source>Named palette</source>
        <translation>Палітра з назвами</translation>
    </message>
    <message>
        <source>Pens and lines</source>
        <translation>Пера та лінії</translation>
    </message>
    <message>
        <source>Selection frames</source>
        <translation>Рамки виділення</translation>
    </message>
    <message>
        <source>Tiles and title bars</source>
        <translation>Плитки та заголовки</translation>
    </message>
    <message>
        <source>Walkthrough</source>
        <translation>Екскурсія</translation>
    </message>
    <message>
        <source>Widget renderer</source>
        <translation>Малювання віджетів</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>Діалоги файлів</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>Панель завдань</translation>
    </message>
</context>
<context>
    <name>Gallery::AdvancedColorPickerPage</name>
    <message>
        <source>Click a colour to open its popup; the note takes the new colour while you choose.</source>
        <translation>Клацніть колір, щоб відкрити його вікно; записка набуває нового кольору вже під час вибору.</translation>
    </message>
    <message>
        <source>Buy milk, feed the cat</source>
        <translation>Купити молока, нагодувати кота</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Папір</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Чорнило</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Маркер</translation>
    </message>
    <message>
        <source>Drag a colour from the palette to one of the twelve slots above it. The slots are shared: open another picker and find the colour there.</source>
        <translation>Перетягніть колір із палітри до однієї з дванадцяти комірок над нею. Комірки спільні: відкрийте інший вибір кольору і знайдіть цей колір там.</translation>
    </message>
    <message>
        <source>Opacity of the marker</source>
        <translation>Непрозорість маркера</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Увімкнено</translation>
    </message>
    <message>
        <source>Random colours</source>
        <translation>Випадкові кольори</translation>
    </message>
    <message>
        <source>A colour that is set by the program makes no signal.</source>
        <translation>Колір, заданий програмою, не надсилає сигналу.</translation>
    </message>
    <message>
        <source>Open popup here</source>
        <translation>Відкрити вікно тут</translation>
    </message>
</context>
<context>
    <name>Gallery::ComboBoxesPage</name>
    <message>
        <source>Combo boxes that are narrower than their items. Turn the wheel over the form, open the lists.</source>
        <translation>Поля зі списком, вужчі за свої елементи. Покрутіть коліщатко над формою, відкрийте списки.</translation>
    </message>
    <message>
        <source>Narrow box</source>
        <translation>Вузьке поле</translation>
    </message>
    <message>
        <source>Elided text and wide popup</source>
        <translation>Скорочений текст і широкий список</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Рядок %1</translation>
    </message>
    <message>
        <source>No wheel in a scrolling form</source>
        <translation>Без коліщатка у формі з прокручуванням</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Вирізати</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копіювати</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставити</translation>
    </message>
    <message>
        <source>Box with separators</source>
        <translation>Поле з роздільниками</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>Роздільники</translation>
    </message>
    <message>
        <source>A preset with a rather long name</source>
        <translation>Набір із доволі довгою назвою</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Набори</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>Спокійний</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Яскравий</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Ніч</translation>
    </message>
    <message>
        <source>Preset panel</source>
        <translation>Панель наборів</translation>
    </message>
    <message>
        <source>Wide popup</source>
        <translation>Широкий список</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Коліщатко миші</translation>
    </message>
    <message>
        <source>Elide text</source>
        <translation>Скорочувати текст</translation>
    </message>
    <message>
        <source>Tool tip:</source>
        <translation>Підказка:</translation>
    </message>
    <message>
        <source>Styled separators</source>
        <translation>Оформлені роздільники</translation>
    </message>
    <message>
        <source>Preset icon</source>
        <translation>Значок набору</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Короткий</translation>
    </message>
    <message>
        <source>An item whose text is much longer than the box</source>
        <translation>Елемент, текст якого значно довший за поле</translation>
    </message>
    <message>
        <source>Another one that does not fit</source>
        <translation>Ще один, який не вміщується</translation>
    </message>
</context>
<context>
    <name>Gallery::DropAndDragPage</name>
    <message>
        <source>Drop files from a file manager: one observer takes pictures, the other texts, and each hears of everything that is dropped. Drag the panel by any point, its button included: what was dragged is not clicked.</source>
        <translation>Скиньте файли з файлового менеджера: один спостерігач бере зображення, другий — тексти, і кожен дізнається про все, що скинуто. Перетягуйте панель за будь-яку точку, навіть за її кнопку: те, що перетягли, не натиснуто.</translation>
    </message>
    <message>
        <source>Pictures are welcome</source>
        <translation>Зображенням тут раді</translation>
    </message>
    <message>
        <source>Texts are welcome</source>
        <translation>Текстам тут раді</translation>
    </message>
    <message>
        <source>Drop pictures or texts here</source>
        <translation>Скиньте сюди зображення або тексти</translation>
    </message>
    <message>
        <source>Drag me anywhere</source>
        <translation>Тягніть мене куди завгодно</translation>
    </message>
    <message>
        <source>Click me</source>
        <translation>Натисніть мене</translation>
    </message>
</context>
<context>
    <name>Gallery::EventHelpersPage</name>
    <message>
        <source>Scribble on the pad: the lamps below show the signals that the helpers make of its events. Without propagation the signals still come, but the pad itself sees no mouse any more.</source>
        <translation>Помалюйте в блокноті: лампочки внизу показують сигнали, які помічники роблять із його подій. Без передавання подій сигнали надходять і далі, але сам блокнот миші вже не бачить.</translation>
    </message>
    <message>
        <source>Scribble here</source>
        <translation>Малюйте тут</translation>
    </message>
    <message>
        <source>Events go on to the pad</source>
        <translation>Події доходять до блокнота</translation>
    </message>
    <message>
        <source>Hover events</source>
        <translation>Події наведення</translation>
    </message>
    <message>
        <source>Moves without a button</source>
        <translation>Рухи без кнопки</translation>
    </message>
    <message>
        <source>Wipe the pad</source>
        <translation>Очистити блокнот</translation>
    </message>
    <message>
        <source>Drop it here</source>
        <translation>Скиньте сюди</translation>
    </message>
    <message>
        <source>Drag this text</source>
        <translation>Перетягніть цей текст</translation>
    </message>
    <message>
        <source>Drop field is guarded</source>
        <translation>Поле скидання захищено</translation>
    </message>
    <message>
        <source>Window stays on top</source>
        <translation>Вікно поверх усіх</translation>
    </message>
</context>
<context>
    <name>Gallery::EyedropperPage</name>
    <message>
        <source>Press the button, then click into the picture: the button takes the colour under the cursor. Any key picks as well; a click elsewhere ends it without a colour.</source>
        <translation>Натисніть кнопку, потім клацніть зображення: кнопка набуде кольору під вказівником. Годиться й будь-яка клавіша; клацання деінде завершує вибір без кольору.</translation>
    </message>
    <message>
        <source>Pick a colour from the picture</source>
        <translation>Узяти колір із зображення</translation>
    </message>
    <message>
        <source>Button shows the colour</source>
        <translation>Кнопка показує колір</translation>
    </message>
    <message>
        <source>Picture is the target</source>
        <translation>Ціль — зображення</translation>
    </message>
    <message>
        <source>Frame round the picture</source>
        <translation>Рамка навколо зображення</translation>
    </message>
    <message>
        <source>Pick without the button</source>
        <translation>Узяти без кнопки</translation>
    </message>
    <message>
        <source>The program waits for the colour.</source>
        <translation>Програма чекає на колір.</translation>
    </message>
</context>
<context>
    <name>Gallery::FileDialogsPage</name>
    <message>
        <source>Each button calls the function of its name and shows what comes back: the result, string by string, and the filter that was written back. On Windows getOpen() shows the dialog of the system, which takes files and folders together.</source>
        <translation>Кожна кнопка викликає функцію зі своєю назвою і показує, що повернулося: результат рядок за рядком і записаний назад фільтр. У Windows getOpen() показує системний діалог, який приймає разом і файли, і теки.</translation>
    </message>
    <message>
        <source>This disc is read-only: nothing can be written to it.</source>
        <translation>Цей диск лише для читання: на нього не можна нічого записати.</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>&amp;Результат</translation>
    </message>
    <message>
        <source>Nothing was asked yet</source>
        <translation>Поки нічого не питали</translation>
    </message>
    <message>
        <source>Choose something</source>
        <translation>Виберіть щось</translation>
    </message>
    <message>
        <source>Images (*.jpg *.png);;Texts (*.txt *.md);;All files (*)</source>
        <translation>Зображення (*.jpg *.png);;Тексти (*.txt *.md);;Усі файли (*)</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Заголовок</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Тека</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Фільтр</translation>
    </message>
    <message>
        <source>getOpen(): files</source>
        <translation>getOpen(): файли</translation>
    </message>
    <message>
        <source>getOpen(): folders</source>
        <translation>getOpen(): теки</translation>
    </message>
    <message>
        <source>getOpen(): several</source>
        <translation>getOpen(): декілька</translation>
    </message>
    <message>
        <source>An empty list</source>
        <translation>Порожній список</translation>
    </message>
    <message>
        <source>Filter written back: %1</source>
        <translation>Записаний назад фільтр: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::FormattingPage</name>
    <message>
        <source>Format the sample with the two strips. Their icons come from the page&apos;s style sheet, which selects the buttons by their property &quot;styleTag&quot;.</source>
        <translation>Оформіть зразок двома панелями. Їхні значки походять із таблиці стилів сторінки, яка вибирає кнопки за властивістю «styleTag».</translation>
    </message>
    <message>
        <source>The quick brown fox jumps over the lazy dog, and the dog, being lazy, lets it jump as often as it likes.</source>
        <translation>Швидкий рудий лис стрибає через ледачого пса, а пес, бо ледачий, дозволяє йому стрибати скільки заманеться.</translation>
    </message>
    <message>
        <source>Plain font</source>
        <translation>Простий шрифт</translation>
    </message>
    <message>
        <source>The program sets a font: a signal for each toggle that changes.</source>
        <translation>Програма задає шрифт: по сигналу на кожен змінений перемикач.</translation>
    </message>
    <message>
        <source>Set to left</source>
        <translation>За лівим краєм</translation>
    </message>
    <message>
        <source>The program checks a button: no signal, and the sample stays as it is.</source>
        <translation>Програма позначає кнопку: сигналу немає, і зразок лишається таким, як був.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Увімкнено</translation>
    </message>
</context>
<context>
    <name>Gallery::FrameOverWindowPage</name>
    <message>
        <source>The window below goes on living while the frame lies over it. In edit mode the mouse moves the frame; otherwise it reaches the window.</source>
        <translation>Вікно внизу живе далі, поки над ним лежить рамка. У режимі редагування миша рухає рамку; інакше вона дістається вікна.</translation>
    </message>
    <message>
        <source>Type here while edit mode is off</source>
        <translation>Пишіть тут поза режимом редагування</translation>
    </message>
    <message>
        <source>Press here while edit mode is off</source>
        <translation>Натискайте тут поза режимом редагування</translation>
    </message>
    <message>
        <source>A window with its own life</source>
        <translation>Вікно з власним життям</translation>
    </message>
    <message>
        <source>From %1 %, %2 %: %3 % wide, %4 % high</source>
        <comment>position and size of the frame</comment>
        <translation>Від %1 %, %2 %: ширина %3 %, висота %4 %</translation>
    </message>
    <message>
        <source>Edit mode</source>
        <translation>Режим редагування</translation>
    </message>
    <message>
        <source>Keep the ratio</source>
        <translation>Зберігати пропорції</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>Робоча область</translation>
    </message>
    <message>
        <source>Veil</source>
        <translation>Завіса</translation>
    </message>
</context>
<context>
    <name>Gallery::GalleryHint</name>
    <message>
        <source>Next</source>
        <translation>Далі</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Не зараз</translation>
    </message>
    <message>
        <source>Never again</source>
        <translation>Більше ніколи</translation>
    </message>
</context>
<context>
    <name>Gallery::LabelsAndInputsPage</name>
    <message>
        <source>Drag the handle beside the column to narrow it: labels and the line edit elide their texts and tell the whole of them in tool tips. The line edit shows all of it while you edit.</source>
        <translation>Потягніть за ручку поруч зі стовпчиком, щоб звузити його: написи та поле введення скорочують свої тексти й показують їх повністю в підказках. Під час редагування поле показує весь текст.</translation>
    </message>
    <message>
        <source>A file name that is much too long for a column as narrow as this one.txt</source>
        <translation>Назва файлу, задовга для такого вузького стовпчика.txt</translation>
    </message>
    <message>
        <source>Mixed directions: %1, elided in order</source>
        <translation>Змішані напрямки: %1, скорочено за порядком</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Короткий</translation>
    </message>
    <message>
        <source>Drag the handle at the edge of this field.</source>
        <translation>Потягніть за ручку на краю цього поля.</translation>
    </message>
    <message>
        <source>Press here, with any button</source>
        <translation>Натисніть тут будь-якою кнопкою</translation>
    </message>
    <message>
        <source>Clipped text</source>
        <translation>Скорочений текст</translation>
    </message>
    <message>
        <source>A text that is shown whole while you edit it, and elided while you do not</source>
        <translation>Текст, який видно повністю під час редагування і скорочено решту часу</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Нотатки</translation>
    </message>
    <message>
        <source>Labels report presses</source>
        <translation>Написи повідомляють про натискання</translation>
    </message>
    <message>
        <source>Labels elide their texts</source>
        <translation>Написи скорочують тексти</translation>
    </message>
    <message>
        <source>at the end</source>
        <translation>у кінці</translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation>посередині</translation>
    </message>
    <message>
        <source>at the beginning</source>
        <translation>на початку</translation>
    </message>
    <message>
        <source>Elide</source>
        <translation>Скорочувати</translation>
    </message>
    <message>
        <source>What do you think of it?</source>
        <translation>Що ви про це думаєте?</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>Текст-заповнювач</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Число</translation>
    </message>
    <message>
        <source>Digits at most</source>
        <translation>Не більше цифр</translation>
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
        <translation>&amp;Знайти сторінку</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>В&amp;ийти</translation>
    </message>
    <message>
        <source>&amp;Dark palette</source>
        <translation>&amp;Темна палітра</translation>
    </message>
    <message>
        <source>&amp;Right to left</source>
        <translation>&amp;Справа наліво</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вигляд</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Мова</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>Мова: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::NamedPalettePage</name>
    <message>
        <source>Click the button: a default colour, forty named colours, and a dialog behind &quot;More...&quot;.</source>
        <translation>Натисніть кнопку: типовий колір, сорок кольорів із назвами та діалог за кнопкою «Більше...».</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Колір</translation>
    </message>
    <message>
        <source>While its popup is open the picker&apos;s property &quot;pressed&quot; is true: the page&apos;s style sheet gives it a thick border then.</source>
        <translation>Поки палітра відкрита, властивість «pressed» кнопки істинна: таблиця стилів сторінки дає їй тоді товсту рамку.</translation>
    </message>
    <message>
        <source>Colorized</source>
        <translation>Забарвлено</translation>
    </message>
    <message>
        <source>Dark popup</source>
        <translation>Темна палітра</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Увімкнено</translation>
    </message>
    <message>
        <source>Make it the default</source>
        <translation>Зробити типовим</translation>
    </message>
    <message>
        <source>The popup&apos;s &quot;Default&quot; button chooses this colour from now on.</source>
        <translation>Кнопка «Типовий» у палітрі відтепер вибирає цей колір.</translation>
    </message>
</context>
<context>
    <name>Gallery::Page</name>
    <message>
        <source>Properties</source>
        <translation>Властивості</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистити</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Сигнали</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Код</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копіювати</translation>
    </message>
</context>
<context>
    <name>Gallery::PageList</name>
    <message>
        <source>Pages</source>
        <translation>Сторінки</translation>
    </message>
    <message>
        <source>Title or component</source>
        <translation>Назва або компонент</translation>
    </message>
</context>
<context>
    <name>Gallery::PensAndLinesPage</name>
    <message>
        <source>Pens, lines and opacity: each group draws what its boxes say.</source>
        <translation>Пера, лінії та непрозорість: кожна група малює те, що задано в її полях.</translation>
    </message>
    <message>
        <source>Pen picker</source>
        <translation>Вибір пера</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>Стиль лінії</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Товщина лінії</translation>
    </message>
    <message>
        <source>Line style and line width</source>
        <translation>Стиль і товщина лінії</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Непрозорість</translation>
    </message>
    <message>
        <source>Opacity adapter</source>
        <translation>Адаптер непрозорості</translation>
    </message>
    <message>
        <source>Value: %1</source>
        <translation>Значення: %1</translation>
    </message>
    <message>
        <source>Slider with a zero tick</source>
        <translation>Повзунок із позначкою нуля</translation>
    </message>
    <message>
        <source>Coloured tick</source>
        <translation>Кольорова позначка</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Увімкнено</translation>
    </message>
</context>
<context>
    <name>Gallery::SelectionFramesPage</name>
    <message>
        <source>Drag the frames, their corners and their sides. The small picture is what the frames are rendered to, with its alpha.</source>
        <translation>Перетягуйте рамки, їхні кути та сторони. Мале зображення — те, у що рамки намальовано, разом з альфа-каналом.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Зображення</translation>
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
        <translation>Відпустка біля моря</translation>
    </message>
    <message>
        <source>Picture keeps its ratio</source>
        <translation>Зображення зберігає пропорції</translation>
    </message>
    <message>
        <source>Region keeps its ratio</source>
        <translation>Область зберігає пропорції</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>Робоча область</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Прозорість</translation>
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
        <translation>Тут з&apos;являються сигнали.</translation>
    </message>
</context>
<context>
    <name>Gallery::TaskbarPage</name>
    <message>
        <source>Move the slider or press a button, and look at the taskbar or dock of your desktop: that begins an operation. Below stands what was asked for, and what is seen of it where.</source>
        <translation>Пересуньте повзунок або натисніть кнопку й погляньте на панель завдань чи док стільниці: так починається операція. Нижче вказано, що було запитано і що з цього де видно.</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>У Windows</translation>
    </message>
    <message>
        <source>The button of this window in the taskbar fills: green while the operation runs, yellow when it is paused, red when it was stopped. A busy one has a light that runs through it.</source>
        <translation>Кнопка цього вікна на панелі завдань заповнюється: зеленим, поки операція триває, жовтим, коли її призупинено, червоним, якщо її зупинено. Якщо перебіг невідомий, кнопкою пробігає світло.</translation>
    </message>
    <message>
        <source>Linux</source>
        <translation>У Linux</translation>
    </message>
    <message>
        <source>The entry of this application has a bar, in docks that know its desktop file and show progress: those of KDE Plasma and Ubuntu, Dash to Dock, Plank and others. Busy is an empty bar, paused looks like running, and what was stopped asks for attention.</source>
        <translation>Значок цієї програми має смугу в доках, які знають її desktop-файл і показують перебіг: у KDE Plasma та Ubuntu, Dash to Dock, Plank та інших. Невідомий перебіг — порожня смуга, пауза виглядає як робота, а зупинене просить уваги.</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>В інших системах</translation>
    </message>
    <message>
        <source>Nothing is seen.</source>
        <translation>Нічого не видно.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Перебіг</translation>
    </message>
    <message>
        <source>End the operation</source>
        <translation>Завершити операцію</translation>
    </message>
    <message>
        <source>Desktop file</source>
        <translation>Файл desktop</translation>
    </message>
    <message>
        <source>There is no operation.</source>
        <translation>Операції немає.</translation>
    </message>
    <message>
        <source>The indicator is hidden.</source>
        <translation>Індикатор сховано.</translation>
    </message>
    <message>
        <source>The operation was stopped.</source>
        <translation>Операцію зупинено.</translation>
    </message>
    <message>
        <source>The operation is paused.</source>
        <translation>Операцію призупинено.</translation>
    </message>
    <message>
        <source>The operation runs; how far it is nobody knows.</source>
        <translation>Операція триває; наскільки вона просунулася, ніхто не знає.</translation>
    </message>
    <message>
        <source>The operation runs.</source>
        <translation>Операція триває.</translation>
    </message>
</context>
<context>
    <name>Gallery::TilesPage</name>
    <message>
        <source>Tiles with a star, a play button and a duration over a picture; and a panel whose title bar can be dragged, detached and closed.</source>
        <translation>Плитки із зіркою, кнопкою відтворення та тривалістю поверх зображення; і панель, заголовок якої можна перетягувати, відкріплювати та закривати.</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Світанок</translation>
    </message>
    <message>
        <source>Noon</source>
        <translation>Полудень</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Захід сонця</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Ніч</translation>
    </message>
    <message>
        <source>Pin playlist</source>
        <translation>Закріпити список відтворення</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <translation>Відкріпити список відтворення</translation>
    </message>
    <message>
        <source>Stars</source>
        <translation>Зірки</translation>
    </message>
    <message>
        <source>Play buttons</source>
        <translation>Кнопки відтворення</translation>
    </message>
    <message>
        <source>Clips can be played</source>
        <translation>Ролики можна відтворювати</translation>
    </message>
    <message>
        <source>Styled as floating</source>
        <translation>Оформити як рухому</translation>
    </message>
    <message>
        <source>Show the panel</source>
        <translation>Показати панель</translation>
    </message>
</context>
<context>
    <name>Gallery::Tour</name>
    <message>
        <source>Welcome to the gallery</source>
        <translation>Ласкаво просимо до галереї</translation>
    </message>
    <message>
        <source>Every family of components has a page of its own, and all of them are alive. The tour shows you around in a minute.</source>
        <translation>Кожна родина компонентів має власну сторінку, і всі вони живі. Екскурсія покаже вам усе за хвилину.</translation>
    </message>
    <message>
        <source>Find a page</source>
        <translation>Знайти сторінку</translation>
    </message>
    <message>
        <source>Type part of a title. The arrow keys move through the pages that are left.</source>
        <translation>Введіть частину назви. Клавіші зі стрілками перебирають решту сторінок.</translation>
    </message>
    <message>
        <source>Dark, and from right to left</source>
        <translation>Темна і справа наліво</translation>
    </message>
    <message>
        <source>These two switches are one target: the frame goes round both. This hint stays clear of the filter, so that you can go on typing.</source>
        <translation>Ці два перемикачі — одна ціль: рамка обводить обидва. Ця підказка не закриває фільтр, щоб ви могли друкувати далі.</translation>
    </message>
    <message>
        <source>In your language</source>
        <translation>Вашою мовою</translation>
    </message>
    <message>
        <source>The texts change at once, those of this hint as well. Clicking what a hint points at takes you on, just as Next does.</source>
        <translation>Тексти змінюються одразу, і в цій підказці теж. Клацання по тому, на що вказує підказка, веде далі, так само як «Далі».</translation>
    </message>
    <message>
        <source>Open a page</source>
        <translation>Відкрити сторінку</translation>
    </message>
    <message>
        <source>Choose &quot;Walkthrough&quot; in the list. The last hint waits for that page to be opened.</source>
        <translation>Виберіть «Екскурсія» у списку. Остання підказка чекає, поки цю сторінку відкриють.</translation>
    </message>
    <message>
        <source>How the tour works</source>
        <translation>Як улаштована екскурсія</translation>
    </message>
    <message>
        <source>A walkthrough is a machine of named states. Here you see another one at work, and can drive it yourself.</source>
        <translation>Екскурсія — це машина іменованих станів. Тут видно іншу за роботою, і нею можна керувати самому.</translation>
    </message>
</context>
<context>
    <name>Gallery::WalkthroughPage</name>
    <message>
        <source>One target</source>
        <translation>Одна ціль</translation>
    </message>
    <message>
        <source>Press the button, or Next.</source>
        <translation>Натисніть кнопку або «Далі».</translation>
    </message>
    <message>
        <source>Two targets</source>
        <translation>Дві цілі</translation>
    </message>
    <message>
        <source>Hide one with the switches: the frame follows. Hide both, and the hint goes.</source>
        <translation>Сховайте одну перемикачами: рамка рушить за нею. Сховайте обидві, і підказка зникне.</translation>
    </message>
    <message>
        <source>A small tour of its own. Start it, hide its targets, or enter a state by double-clicking it: the lists show the machine&apos;s groups, and what each hint still waits for.</source>
        <translation>Невелика окрема екскурсія. Запустіть її, сховайте її цілі або увійдіть у стан подвійним клацанням: списки показують групи машини і те, на що ще чекає кожна підказка.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Зберегти</translation>
    </message>
    <message>
        <source>First lamp</source>
        <translation>Перша лампочка</translation>
    </message>
    <message>
        <source>Second lamp</source>
        <translation>Друга лампочка</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Група</translation>
    </message>
    <message>
        <source>Active state</source>
        <translation>Активний стан</translation>
    </message>
    <message>
        <source>Groups and states</source>
        <translation>Групи та стани</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Підказка</translation>
    </message>
    <message>
        <source>Unmet conditions</source>
        <translation>Невиконані умови</translation>
    </message>
    <message>
        <source>Waits for</source>
        <translation>Чекає на</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Підказки</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>Почати екскурсію</translation>
    </message>
    <message>
        <source>Stop the tour</source>
        <translation>Зупинити екскурсію</translation>
    </message>
    <message>
        <source>Hints enabled</source>
        <translation>Підказки ввімкнено</translation>
    </message>
    <message>
        <source>Save is shown</source>
        <translation>Кнопку «Зберегти» видно</translation>
    </message>
    <message>
        <source>First lamp is shown</source>
        <translation>Першу лампочку видно</translation>
    </message>
    <message>
        <source>Second lamp is shown</source>
        <translation>Другу лампочку видно</translation>
    </message>
    <message>
        <source>Hints avoid the list of hints</source>
        <translation>Підказки оминають свій список</translation>
    </message>
    <message>
        <source>entered %1</source>
        <translation>вхід до %1</translation>
    </message>
</context>
<context>
    <name>Gallery::WidgetRendererPage</name>
    <message>
        <source>The widgets are drawn into the picture beside them, and cut out of their window. Cut out, they still answer to the mouse.</source>
        <translation>Віджети малюються в зображення поруч із ними і вирізаються зі свого вікна. Навіть вирізані, вони відповідають миші.</translation>
    </message>
    <message>
        <source>Compose</source>
        <translation>Скласти</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>Повернути</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Кнопка</translation>
    </message>
    <message>
        <source>Check box</source>
        <translation>Прапорець</translation>
    </message>
</context>
</TS>
