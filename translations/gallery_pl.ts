<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Gallery</name>
    <message>
        <source>Advanced colour picker</source>
        <translation>Zaawansowany wybór koloru</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>Pola kombi</translation>
    </message>
    <message>
        <source>Drop and drag</source>
        <translation>Upuszczanie i przeciąganie</translation>
    </message>
    <message>
        <source>Event helpers</source>
        <translation>Pomocnicy zdarzeń</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Kroplomierz</translation>
    </message>
    <message>
        <source>Formatting</source>
        <translation>Formatowanie</translation>
    </message>
    <message>
        <source>Frame over a window</source>
        <translation>Ramka nad oknem</translation>
    </message>
    <message>
        <source>Labels and inputs</source>
        <translation>Etykiety i pola</translation>
    </message>
    <message>
        <source>Named palette</source>
        <translation>Paleta nazwanych kolorów</translation>
    </message>
    <message>
        <source>Pens and lines</source>
        <translation>Pióra i linie</translation>
    </message>
    <message>
        <source>Selection frames</source>
        <translation>Ramki zaznaczenia</translation>
    </message>
    <message>
        <source>Tiles and title bars</source>
        <translation>Kafelki i paski tytułu</translation>
    </message>
    <message>
        <source>Walkthrough</source>
        <translation>Przewodnik</translation>
    </message>
    <message>
        <source>Widget renderer</source>
        <translation>Rysowanie widżetów</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>Okna wyboru plików</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>Pasek zadań</translation>
    </message>
</context>
<context>
    <name>Gallery::AdvancedColorPickerPage</name>
    <message>
        <source>Click a colour to open its popup; the note takes the new colour while you choose.</source>
        <translation>Kliknij kolor, aby otworzyć jego okienko; karteczka przyjmuje nowy kolor już podczas wybierania.</translation>
    </message>
    <message>
        <source>Buy milk, feed the cat</source>
        <translation>Kupić mleko, nakarmić kota</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Atrament</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Zakreślacz</translation>
    </message>
    <message>
        <source>Drag a colour from the palette to one of the twelve slots above it. The slots are shared: open another picker and find the colour there.</source>
        <translation>Przeciągnij kolor z palety na jedno z dwunastu pól nad nią. Pola są wspólne: otwórz inny wybór koloru, a znajdziesz tam ten kolor.</translation>
    </message>
    <message>
        <source>Opacity of the marker</source>
        <translation>Krycie zakreślacza</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>Random colours</source>
        <translation>Losowe kolory</translation>
    </message>
    <message>
        <source>A colour that is set by the program makes no signal.</source>
        <translation>Kolor ustawiony przez program nie wysyła sygnału.</translation>
    </message>
    <message>
        <source>Open popup here</source>
        <translation>Otwórz okienko tutaj</translation>
    </message>
</context>
<context>
    <name>Gallery::ComboBoxesPage</name>
    <message>
        <source>Combo boxes that are narrower than their items. Turn the wheel over the form, open the lists.</source>
        <translation>Pola kombi węższe od swoich pozycji. Kręć kółkiem nad formularzem, otwieraj listy.</translation>
    </message>
    <message>
        <source>Narrow box</source>
        <translation>Wąskie pole</translation>
    </message>
    <message>
        <source>Elided text and wide popup</source>
        <translation>Skrócony tekst i szeroka lista</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Wiersz %1</translation>
    </message>
    <message>
        <source>No wheel in a scrolling form</source>
        <translation>Bez kółka w przewijanym formularzu</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Wytnij</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Wklej</translation>
    </message>
    <message>
        <source>Box with separators</source>
        <translation>Pole z separatorami</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>Separatory</translation>
    </message>
    <message>
        <source>A preset with a rather long name</source>
        <translation>Ustawienie o dość długiej nazwie</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>Spokojne</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Jasne</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noc</translation>
    </message>
    <message>
        <source>Preset panel</source>
        <translation>Panel ustawień</translation>
    </message>
    <message>
        <source>Wide popup</source>
        <translation>Szeroka lista</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Kółko myszy</translation>
    </message>
    <message>
        <source>Elide text</source>
        <translation>Skracaj tekst</translation>
    </message>
    <message>
        <source>Tool tip:</source>
        <translation>Podpowiedź:</translation>
    </message>
    <message>
        <source>Styled separators</source>
        <translation>Separatory ze stylem</translation>
    </message>
    <message>
        <source>Preset icon</source>
        <translation>Ikona ustawienia</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Krótki</translation>
    </message>
    <message>
        <source>An item whose text is much longer than the box</source>
        <translation>Pozycja, której tekst jest dużo dłuższy niż pole</translation>
    </message>
    <message>
        <source>Another one that does not fit</source>
        <translation>Jeszcze jedna, która się nie mieści</translation>
    </message>
</context>
<context>
    <name>Gallery::DropAndDragPage</name>
    <message>
        <source>Drop files from a file manager: one observer takes pictures, the other texts, and each hears of everything that is dropped. Drag the panel by any point, its button included: what was dragged is not clicked.</source>
        <translation>Upuść pliki z menedżera plików: jeden obserwator przyjmuje obrazy, drugi teksty, a każdy dowiaduje się o wszystkim, co upuszczono. Przeciągaj panel za dowolny punkt, także za jego przycisk: to, co przeciągnięto, nie zostaje kliknięte.</translation>
    </message>
    <message>
        <source>Pictures are welcome</source>
        <translation>Obrazy mile widziane</translation>
    </message>
    <message>
        <source>Texts are welcome</source>
        <translation>Teksty mile widziane</translation>
    </message>
    <message>
        <source>Drop pictures or texts here</source>
        <translation>Upuść tu obrazy lub teksty</translation>
    </message>
    <message>
        <source>Drag me anywhere</source>
        <translation>Przeciągnij mnie dokądkolwiek</translation>
    </message>
    <message>
        <source>Click me</source>
        <translation>Kliknij mnie</translation>
    </message>
</context>
<context>
    <name>Gallery::EventHelpersPage</name>
    <message>
        <source>Scribble on the pad: the lamps below show the signals that the helpers make of its events. Without propagation the signals still come, but the pad itself sees no mouse any more.</source>
        <translation>Bazgraj po bloku: lampki poniżej pokazują sygnały, które pomocnicy tworzą z jego zdarzeń. Bez przekazywania sygnały nadal przychodzą, ale sam blok nie widzi już myszy.</translation>
    </message>
    <message>
        <source>Scribble here</source>
        <translation>Bazgraj tutaj</translation>
    </message>
    <message>
        <source>Events go on to the pad</source>
        <translation>Zdarzenia docierają do bloku</translation>
    </message>
    <message>
        <source>Hover events</source>
        <translation>Zdarzenia najechania</translation>
    </message>
    <message>
        <source>Moves without a button</source>
        <translation>Ruchy bez przycisku</translation>
    </message>
    <message>
        <source>Wipe the pad</source>
        <translation>Wyczyść blok</translation>
    </message>
    <message>
        <source>Drop it here</source>
        <translation>Upuść to tutaj</translation>
    </message>
    <message>
        <source>Drag this text</source>
        <translation>Przeciągnij ten tekst</translation>
    </message>
    <message>
        <source>Drop field is guarded</source>
        <translation>Pole upuszczania jest chronione</translation>
    </message>
    <message>
        <source>Window stays on top</source>
        <translation>Okno zawsze na wierzchu</translation>
    </message>
</context>
<context>
    <name>Gallery::EyedropperPage</name>
    <message>
        <source>Press the button, then click into the picture: the button takes the colour under the cursor. Any key picks as well; a click elsewhere ends it without a colour.</source>
        <translation>Naciśnij przycisk, a potem kliknij obraz: przycisk przyjmie kolor spod kursora. Wybiera też każdy klawisz; kliknięcie gdzie indziej kończy bez koloru.</translation>
    </message>
    <message>
        <source>Pick a colour from the picture</source>
        <translation>Pobierz kolor z obrazu</translation>
    </message>
    <message>
        <source>Button shows the colour</source>
        <translation>Przycisk pokazuje kolor</translation>
    </message>
    <message>
        <source>Picture is the target</source>
        <translation>Obraz jest celem</translation>
    </message>
    <message>
        <source>Frame round the picture</source>
        <translation>Ramka wokół obrazu</translation>
    </message>
    <message>
        <source>Pick without the button</source>
        <translation>Pobierz bez przycisku</translation>
    </message>
    <message>
        <source>The program waits for the colour.</source>
        <translation>Program czeka na kolor.</translation>
    </message>
</context>
<context>
    <name>Gallery::FileDialogsPage</name>
    <message>
        <source>Each button calls the function of its name and shows what comes back: the result, string by string, and the filter that was written back. On Windows getOpen() shows the dialog of the system, which takes files and folders together.</source>
        <translation>Każdy przycisk wywołuje funkcję o swojej nazwie i pokazuje, co wraca: wynik, napis po napisie, oraz zwrócony filtr. W systemie Windows getOpen() pokazuje okno systemowe, które przyjmuje razem pliki i foldery.</translation>
    </message>
    <message>
        <source>This disc is read-only: nothing can be written to it.</source>
        <translation>Ta płyta jest tylko do odczytu: nie można na niej nic zapisać.</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>&amp;Wynik</translation>
    </message>
    <message>
        <source>Nothing was asked yet</source>
        <translation>Jeszcze o nic nie zapytano</translation>
    </message>
    <message>
        <source>Choose something</source>
        <translation>Wybierz coś</translation>
    </message>
    <message>
        <source>Images (*.jpg *.png);;Texts (*.txt *.md);;All files (*)</source>
        <translation>Obrazy (*.jpg *.png);;Teksty (*.txt *.md);;Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Tytuł</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>getOpen(): files</source>
        <translation>getOpen(): pliki</translation>
    </message>
    <message>
        <source>getOpen(): folders</source>
        <translation>getOpen(): foldery</translation>
    </message>
    <message>
        <source>getOpen(): several</source>
        <translation>getOpen(): kilka</translation>
    </message>
    <message>
        <source>An empty list</source>
        <translation>Pusta lista</translation>
    </message>
    <message>
        <source>Filter written back: %1</source>
        <translation>Zwrócony filtr: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::FormattingPage</name>
    <message>
        <source>Format the sample with the two strips. Their icons come from the page&apos;s style sheet, which selects the buttons by their property &quot;styleTag&quot;.</source>
        <translation>Sformatuj próbkę za pomocą dwóch pasków. Ich ikony pochodzą z arkusza stylów strony, który wybiera przyciski według właściwości „styleTag”.</translation>
    </message>
    <message>
        <source>The quick brown fox jumps over the lazy dog, and the dog, being lazy, lets it jump as often as it likes.</source>
        <translation>Szybki brązowy lis skacze nad leniwym psem, a pies, jak to leniwy, pozwala mu skakać, ile zechce.</translation>
    </message>
    <message>
        <source>Plain font</source>
        <translation>Zwykła czcionka</translation>
    </message>
    <message>
        <source>The program sets a font: a signal for each toggle that changes.</source>
        <translation>Program ustawia czcionkę: sygnał dla każdego przełącznika, który się zmienia.</translation>
    </message>
    <message>
        <source>Set to left</source>
        <translation>Ustaw do lewej</translation>
    </message>
    <message>
        <source>The program checks a button: no signal, and the sample stays as it is.</source>
        <translation>Program zaznacza przycisk: bez sygnału, a próbka pozostaje bez zmian.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Włączone</translation>
    </message>
</context>
<context>
    <name>Gallery::FrameOverWindowPage</name>
    <message>
        <source>The window below goes on living while the frame lies over it. In edit mode the mouse moves the frame; otherwise it reaches the window.</source>
        <translation>Okno poniżej żyje dalej, gdy leży na nim ramka. W trybie edycji mysz przesuwa ramkę; poza nim dociera do okna.</translation>
    </message>
    <message>
        <source>Type here while edit mode is off</source>
        <translation>Pisz tutaj poza trybem edycji</translation>
    </message>
    <message>
        <source>Press here while edit mode is off</source>
        <translation>Naciskaj tutaj poza trybem edycji</translation>
    </message>
    <message>
        <source>A window with its own life</source>
        <translation>Okno żyjące własnym życiem</translation>
    </message>
    <message>
        <source>From %1 %, %2 %: %3 % wide, %4 % high</source>
        <comment>position and size of the frame</comment>
        <translation>Od %1 %, %2 %: szerokość %3 %, wysokość %4 %</translation>
    </message>
    <message>
        <source>Edit mode</source>
        <translation>Tryb edycji</translation>
    </message>
    <message>
        <source>Keep the ratio</source>
        <translation>Zachowaj proporcje</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>Obszar roboczy</translation>
    </message>
    <message>
        <source>Veil</source>
        <translation>Zasłona</translation>
    </message>
</context>
<context>
    <name>Gallery::GalleryHint</name>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Nie teraz</translation>
    </message>
    <message>
        <source>Never again</source>
        <translation>Nigdy więcej</translation>
    </message>
</context>
<context>
    <name>Gallery::LabelsAndInputsPage</name>
    <message>
        <source>Drag the handle beside the column to narrow it: labels and the line edit elide their texts and tell the whole of them in tool tips. The line edit shows all of it while you edit.</source>
        <translation>Przeciągnij uchwyt obok kolumny, aby ją zwęzić: etykiety i pole tekstowe skracają swoje teksty i podają je w całości w podpowiedziach. Podczas edycji pole pokazuje cały tekst.</translation>
    </message>
    <message>
        <source>A file name that is much too long for a column as narrow as this one.txt</source>
        <translation>Nazwa pliku o wiele za długa na kolumnę tak wąską jak ta.txt</translation>
    </message>
    <message>
        <source>Mixed directions: %1, elided in order</source>
        <translation>Mieszane kierunki: %1, skrócone po kolei</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Krótki</translation>
    </message>
    <message>
        <source>Drag the handle at the edge of this field.</source>
        <translation>Przeciągnij uchwyt na brzegu tego pola.</translation>
    </message>
    <message>
        <source>Press here, with any button</source>
        <translation>Naciśnij tutaj dowolnym przyciskiem</translation>
    </message>
    <message>
        <source>Clipped text</source>
        <translation>Skrócony tekst</translation>
    </message>
    <message>
        <source>A text that is shown whole while you edit it, and elided while you do not</source>
        <translation>Tekst widoczny w całości podczas edycji, a poza nią skrócony</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notatki</translation>
    </message>
    <message>
        <source>Labels report presses</source>
        <translation>Etykiety zgłaszają kliknięcia</translation>
    </message>
    <message>
        <source>Labels elide their texts</source>
        <translation>Etykiety skracają teksty</translation>
    </message>
    <message>
        <source>at the end</source>
        <translation>na końcu</translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation>pośrodku</translation>
    </message>
    <message>
        <source>at the beginning</source>
        <translation>na początku</translation>
    </message>
    <message>
        <source>Elide</source>
        <translation>Skracanie</translation>
    </message>
    <message>
        <source>What do you think of it?</source>
        <translation>Co o tym sądzisz?</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>Tekst zastępczy</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Liczba</translation>
    </message>
    <message>
        <source>Digits at most</source>
        <translation>Najwięcej cyfr</translation>
    </message>
</context>
<context>
    <name>Gallery::MainWindow</name>
    <message>
        <source>KQtUi gallery</source>
        <translation>Galeria KQtUi</translation>
    </message>
    <message>
        <source>&amp;Find a page</source>
        <translation>&amp;Znajdź stronę</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>&amp;Dark palette</source>
        <translation>&amp;Ciemna paleta</translation>
    </message>
    <message>
        <source>&amp;Right to left</source>
        <translation>Od &amp;prawej do lewej</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Widok</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Język</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>Język: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::NamedPalettePage</name>
    <message>
        <source>Click the button: a default colour, forty named colours, and a dialog behind &quot;More...&quot;.</source>
        <translation>Kliknij przycisk: kolor domyślny, czterdzieści nazwanych kolorów i okno dialogowe pod „Więcej...”.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Kolor</translation>
    </message>
    <message>
        <source>While its popup is open the picker&apos;s property &quot;pressed&quot; is true: the page&apos;s style sheet gives it a thick border then.</source>
        <translation>Gdy paleta jest otwarta, właściwość „pressed” przycisku jest prawdziwa: arkusz stylów strony nadaje mu wtedy grubą ramkę.</translation>
    </message>
    <message>
        <source>Colorized</source>
        <translation>Zabarwiony</translation>
    </message>
    <message>
        <source>Dark popup</source>
        <translation>Ciemna paleta</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>Make it the default</source>
        <translation>Ustaw jako domyślny</translation>
    </message>
    <message>
        <source>The popup&apos;s &quot;Default&quot; button chooses this colour from now on.</source>
        <translation>Przycisk „Domyślny” palety wybiera odtąd ten kolor.</translation>
    </message>
</context>
<context>
    <name>Gallery::Page</name>
    <message>
        <source>Properties</source>
        <translation>Właściwości</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Sygnały</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kod</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
</context>
<context>
    <name>Gallery::PageList</name>
    <message>
        <source>Pages</source>
        <translation>Strony</translation>
    </message>
    <message>
        <source>Title or component</source>
        <translation>Tytuł lub komponent</translation>
    </message>
</context>
<context>
    <name>Gallery::PensAndLinesPage</name>
    <message>
        <source>Pens, lines and opacity: each group draws what its boxes say.</source>
        <translation>Pióra, linie i krycie: każda grupa rysuje to, co mówią jej pola.</translation>
    </message>
    <message>
        <source>Pen picker</source>
        <translation>Wybór pióra</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>Styl linii</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Grubość linii</translation>
    </message>
    <message>
        <source>Line style and line width</source>
        <translation>Styl i grubość linii</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Krycie</translation>
    </message>
    <message>
        <source>Opacity adapter</source>
        <translation>Adapter krycia</translation>
    </message>
    <message>
        <source>Value: %1</source>
        <translation>Wartość: %1</translation>
    </message>
    <message>
        <source>Slider with a zero tick</source>
        <translation>Suwak ze znacznikiem zera</translation>
    </message>
    <message>
        <source>Coloured tick</source>
        <translation>Barwny znacznik</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Włączone</translation>
    </message>
</context>
<context>
    <name>Gallery::SelectionFramesPage</name>
    <message>
        <source>Drag the frames, their corners and their sides. The small picture is what the frames are rendered to, with its alpha.</source>
        <translation>Przeciągaj ramki, ich rogi i boki. Mały obraz to wynik rysowania ramek wraz z kanałem alfa.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Obszar</translation>
    </message>
    <message>
        <source>Holiday by the sea</source>
        <translation>Wakacje nad morzem</translation>
    </message>
    <message>
        <source>Picture keeps its ratio</source>
        <translation>Obraz zachowuje proporcje</translation>
    </message>
    <message>
        <source>Region keeps its ratio</source>
        <translation>Obszar zachowuje proporcje</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>Obszar roboczy</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Przezroczystość</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Wypełnienie</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Czcionka</translation>
    </message>
</context>
<context>
    <name>Gallery::SignalLog</name>
    <message>
        <source>Signals appear here.</source>
        <translation>Tutaj pojawiają się sygnały.</translation>
    </message>
</context>
<context>
    <name>Gallery::TaskbarPage</name>
    <message>
        <source>Move the slider or press a button, and look at the taskbar or dock of your desktop: that begins an operation. Below stands what was asked for, and what is seen of it where.</source>
        <translation>Przesuń suwak lub naciśnij przycisk i spójrz na pasek zadań lub dok pulpitu: tak zaczyna się operacja. Poniżej widać, czego zażądano oraz co i gdzie się pojawia.</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Windows</translation>
    </message>
    <message>
        <source>The button of this window in the taskbar fills: green while the operation runs, yellow when it is paused, red when it was stopped. A busy one has a light that runs through it.</source>
        <translation>Przycisk tego okna na pasku zadań wypełnia się: na zielono, gdy operacja trwa, na żółto, gdy jest wstrzymana, na czerwono, gdy ją przerwano. Przy nieznanym postępie przebiega przez niego światło.</translation>
    </message>
    <message>
        <source>Linux</source>
        <translation>Linux</translation>
    </message>
    <message>
        <source>The entry of this application has a bar, in docks that know its desktop file and show progress: those of KDE Plasma and Ubuntu, Dash to Dock, Plank and others. Busy is an empty bar, paused looks like running, and what was stopped asks for attention.</source>
        <translation>Pozycja tej aplikacji ma pasek w dokach, które znają jej plik desktop i pokazują postęp: w KDE Plasma i Ubuntu, Dash to Dock, Plank i innych. Nieznany postęp to pusty pasek, wstrzymanie wygląda jak działanie, a przerwana operacja prosi o uwagę.</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>Gdzie indziej</translation>
    </message>
    <message>
        <source>Nothing is seen.</source>
        <translation>Nic nie widać.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>End the operation</source>
        <translation>Zakończ operację</translation>
    </message>
    <message>
        <source>Desktop file</source>
        <translation>Plik desktop</translation>
    </message>
    <message>
        <source>There is no operation.</source>
        <translation>Nie ma żadnej operacji.</translation>
    </message>
    <message>
        <source>The indicator is hidden.</source>
        <translation>Wskaźnik jest ukryty.</translation>
    </message>
    <message>
        <source>The operation was stopped.</source>
        <translation>Operację przerwano.</translation>
    </message>
    <message>
        <source>The operation is paused.</source>
        <translation>Operacja jest wstrzymana.</translation>
    </message>
    <message>
        <source>The operation runs; how far it is nobody knows.</source>
        <translation>Operacja trwa; jak daleko zaszła, nikt nie wie.</translation>
    </message>
    <message>
        <source>The operation runs.</source>
        <translation>Operacja trwa.</translation>
    </message>
</context>
<context>
    <name>Gallery::TilesPage</name>
    <message>
        <source>Tiles with a star, a play button and a duration over a picture; and a panel whose title bar can be dragged, detached and closed.</source>
        <translation>Kafelki z gwiazdką, przyciskiem odtwarzania i czasem trwania na obrazie; oraz panel, którego pasek tytułu można przeciągać, odpinać i zamykać.</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Wschód słońca</translation>
    </message>
    <message>
        <source>Noon</source>
        <translation>Południe</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Zachód słońca</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noc</translation>
    </message>
    <message>
        <source>Pin playlist</source>
        <translation>Przypnij listę odtwarzania</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <translation>Odepnij listę odtwarzania</translation>
    </message>
    <message>
        <source>Stars</source>
        <translation>Gwiazdki</translation>
    </message>
    <message>
        <source>Play buttons</source>
        <translation>Przyciski odtwarzania</translation>
    </message>
    <message>
        <source>Clips can be played</source>
        <translation>Klipy można odtwarzać</translation>
    </message>
    <message>
        <source>Styled as floating</source>
        <translation>Styl pływający</translation>
    </message>
    <message>
        <source>Show the panel</source>
        <translation>Pokaż panel</translation>
    </message>
</context>
<context>
    <name>Gallery::Tour</name>
    <message>
        <source>Welcome to the gallery</source>
        <translation>Witamy w galerii</translation>
    </message>
    <message>
        <source>Every family of components has a page of its own, and all of them are alive. The tour shows you around in a minute.</source>
        <translation>Każda rodzina komponentów ma własną stronę i wszystkie są żywe. Przewodnik oprowadzi po nich w minutę.</translation>
    </message>
    <message>
        <source>Find a page</source>
        <translation>Znajdź stronę</translation>
    </message>
    <message>
        <source>Type part of a title. The arrow keys move through the pages that are left.</source>
        <translation>Wpisz część tytułu. Klawisze strzałek przechodzą przez pozostałe strony.</translation>
    </message>
    <message>
        <source>Dark, and from right to left</source>
        <translation>Ciemno i od prawej do lewej</translation>
    </message>
    <message>
        <source>These two switches are one target: the frame goes round both. This hint stays clear of the filter, so that you can go on typing.</source>
        <translation>Te dwa przełączniki są jednym celem: ramka otacza oba. Ta wskazówka nie zasłania pola filtru, więc można pisać dalej.</translation>
    </message>
    <message>
        <source>In your language</source>
        <translation>W Twoim języku</translation>
    </message>
    <message>
        <source>The texts change at once, those of this hint as well. Clicking what a hint points at takes you on, just as Next does.</source>
        <translation>Teksty zmieniają się od razu, także w tej wskazówce. Kliknięcie tego, co wskazuje wskazówka, prowadzi dalej, tak jak Dalej.</translation>
    </message>
    <message>
        <source>Open a page</source>
        <translation>Otwórz stronę</translation>
    </message>
    <message>
        <source>Choose &quot;Walkthrough&quot; in the list. The last hint waits for that page to be opened.</source>
        <translation>Wybierz z listy „Przewodnik”. Ostatnia wskazówka czeka na otwarcie tej strony.</translation>
    </message>
    <message>
        <source>How the tour works</source>
        <translation>Jak działa przewodnik</translation>
    </message>
    <message>
        <source>A walkthrough is a machine of named states. Here you see another one at work, and can drive it yourself.</source>
        <translation>Przewodnik to maszyna nazwanych stanów. Tutaj widać inną przy pracy i można nią sterować samodzielnie.</translation>
    </message>
</context>
<context>
    <name>Gallery::WalkthroughPage</name>
    <message>
        <source>One target</source>
        <translation>Jeden cel</translation>
    </message>
    <message>
        <source>Press the button, or Next.</source>
        <translation>Naciśnij przycisk albo Dalej.</translation>
    </message>
    <message>
        <source>Two targets</source>
        <translation>Dwa cele</translation>
    </message>
    <message>
        <source>Hide one with the switches: the frame follows. Hide both, and the hint goes.</source>
        <translation>Ukryj jeden przełącznikami: ramka podąży za zmianą. Ukryj oba, a wskazówka zniknie.</translation>
    </message>
    <message>
        <source>A small tour of its own. Start it, hide its targets, or enter a state by double-clicking it: the lists show the machine&apos;s groups, and what each hint still waits for.</source>
        <translation>Mały, osobny przewodnik. Uruchom go, ukryj jego cele albo wejdź w stan podwójnym kliknięciem: listy pokazują grupy maszyny i to, na co jeszcze czeka każda wskazówka.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>First lamp</source>
        <translation>Pierwsza lampka</translation>
    </message>
    <message>
        <source>Second lamp</source>
        <translation>Druga lampka</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupa</translation>
    </message>
    <message>
        <source>Active state</source>
        <translation>Aktywny stan</translation>
    </message>
    <message>
        <source>Groups and states</source>
        <translation>Grupy i stany</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Wskazówka</translation>
    </message>
    <message>
        <source>Unmet conditions</source>
        <translation>Niespełnione warunki</translation>
    </message>
    <message>
        <source>Waits for</source>
        <translation>Czeka na</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Wskazówki</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>Uruchom przewodnik</translation>
    </message>
    <message>
        <source>Stop the tour</source>
        <translation>Zatrzymaj przewodnik</translation>
    </message>
    <message>
        <source>Hints enabled</source>
        <translation>Wskazówki włączone</translation>
    </message>
    <message>
        <source>Save is shown</source>
        <translation>Przycisk Zapisz widoczny</translation>
    </message>
    <message>
        <source>First lamp is shown</source>
        <translation>Pierwsza lampka widoczna</translation>
    </message>
    <message>
        <source>Second lamp is shown</source>
        <translation>Druga lampka widoczna</translation>
    </message>
    <message>
        <source>Hints avoid the list of hints</source>
        <translation>Wskazówki omijają swoją listę</translation>
    </message>
    <message>
        <source>entered %1</source>
        <translation>wejście do %1</translation>
    </message>
</context>
<context>
    <name>Gallery::WidgetRendererPage</name>
    <message>
        <source>The widgets are drawn into the picture beside them, and cut out of their window. Cut out, they still answer to the mouse.</source>
        <translation>Widżety są rysowane w obrazie obok i wycinane ze swojego okna. Wycięte nadal reagują na mysz.</translation>
    </message>
    <message>
        <source>Compose</source>
        <translation>Złóż</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>Oddaj</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Przycisk</translation>
    </message>
    <message>
        <source>Check box</source>
        <translation>Pole wyboru</translation>
    </message>
</context>
</TS>
