<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Gallery</name>
    <message>
        <source>Advanced colour picker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop and drag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event helpers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formatting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame over a window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels and inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Named palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pens and lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selection frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tiles and title bars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Walkthrough</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Widget renderer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::AdvancedColorPickerPage</name>
    <message>
        <source>Click a colour to open its popup; the note takes the new colour while you choose.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buy milk, feed the cat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ink</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Marker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag a colour from the palette to one of the twelve slots above it. The slots are shared: open another picker and find the colour there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity of the marker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A colour that is set by the program makes no signal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open popup here</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::ComboBoxesPage</name>
    <message>
        <source>Combo boxes that are narrower than their items. Turn the wheel over the form, open the lists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Narrow box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elided text and wide popup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No wheel in a scrolling form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Box with separators</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Separators</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A preset with a rather long name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Night</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wide popup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elide text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool tip:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Styled separators</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Short</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An item whose text is much longer than the box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another one that does not fit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::DropAndDragPage</name>
    <message>
        <source>Drop files from a file manager: one observer takes pictures, the other texts, and each hears of everything that is dropped. Drag the panel by any point, its button included: what was dragged is not clicked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures are welcome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts are welcome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop pictures or texts here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag me anywhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click me</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::EventHelpersPage</name>
    <message>
        <source>Scribble on the pad: the lamps below show the signals that the helpers make of its events. Without propagation the signals still come, but the pad itself sees no mouse any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scribble here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events go on to the pad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hover events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moves without a button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wipe the pad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop it here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag this text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop field is guarded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Window stays on top</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::EyedropperPage</name>
    <message>
        <source>Press the button, then click into the picture: the button takes the colour under the cursor. Any key picks as well; a click elsewhere ends it without a colour.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a colour from the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Button shows the colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture is the target</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::FormattingPage</name>
    <message>
        <source>Format the sample with the two strips. Their icons come from the page&apos;s style sheet, which selects the buttons by their property &quot;styleTag&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The quick brown fox jumps over the lazy dog, and the dog, being lazy, lets it jump as often as it likes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plain font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program sets a font: a signal for each toggle that changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set to left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program checks a button: no signal, and the sample stays as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::FrameOverWindowPage</name>
    <message>
        <source>The window below goes on living while the frame lies over it. In edit mode the mouse moves the frame; otherwise it reaches the window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type here while edit mode is off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press here while edit mode is off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A window with its own life</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From %1 %, %2 %: %3 % wide, %4 % high</source>
        <comment>position and size of the frame</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Veil</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::GalleryHint</name>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Never again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::LabelsAndInputsPage</name>
    <message>
        <source>Drag the handle to narrow the column at its left: labels and the line edit elide their texts and tell the whole of them in tool tips. The line edit shows all of it while you edit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file name that is much too long for a column as narrow as this one.txt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mixed directions: %1, elided in order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Short</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag the handle at the edge of this field.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press here, with any button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clipped text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text that is shown whole while you edit it, and elided while you do not</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels report presses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels elide their texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at the end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at the beginning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What do you think of it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Digits at most</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::MainWindow</name>
    <message>
        <source>KQtUi gallery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find a page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dark palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Right to left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::NamedPalettePage</name>
    <message>
        <source>Click the button: a default colour, forty named colours, and a dialog behind &quot;More...&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>While its popup is open the picker&apos;s property &quot;pressed&quot; is true: the page&apos;s style sheet gives it a thick border then.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colorized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark popup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make it the default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The popup&apos;s &quot;Default&quot; button chooses this colour from now on.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::Page</name>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signals</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::PageList</name>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::PensAndLinesPage</name>
    <message>
        <source>Pens, lines and opacity: each group draws what its boxes say.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pen picker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line style and line width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity adapter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slider with a zero tick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Coloured tick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::SelectionFramesPage</name>
    <message>
        <source>Drag the frames, their corners and their sides. The small picture is what the frames are rendered to, with its alpha.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Region</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Holiday by the sea</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture keeps its ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Region keeps its ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::SignalLog</name>
    <message>
        <source>Signals appear here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::TilesPage</name>
    <message>
        <source>Tiles with a star, a play button and a duration over a picture; and a panel whose title bar can be dragged, detached and closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Noon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Night</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin playlist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clips can be played</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Styled as floating</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the panel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::Tour</name>
    <message>
        <source>Welcome to the gallery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every family of components has a page of its own, and all of them are alive. The tour shows you around in a minute.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find a page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type part of a title. The arrow keys move through the pages that are left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark, and from right to left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These two switches are one target: the frame goes round both. This hint stays clear of the filter, so that you can go on typing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In your language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The texts change at once, those of this hint as well. Clicking what a hint points at takes you on, just as Next does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose &quot;Walkthrough&quot; in the list. The last hint waits for that page to be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the tour works</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A walkthrough is a machine of named states. Here you see another one at work, and can drive it yourself.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::WalkthroughPage</name>
    <message>
        <source>One target</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press the button, or Next.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two targets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide one with the switches: the frame follows. Hide both, and the hint goes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A small tour of its own. Start it, hide its targets, or enter a state by double-clicking it: the lists show the machine&apos;s groups, and what each hint still waits for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left lamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right lamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groups and states</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unmet conditions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waits for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hints</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop the tour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hints enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left lamp is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right lamp is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hints avoid the list of hints</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>entered %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::WidgetRendererPage</name>
    <message>
        <source>The widgets on the left are drawn into the picture on the right, and cut out of their window. Cut out, they still answer to the mouse.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check box</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
