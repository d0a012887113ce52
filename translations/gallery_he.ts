<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>Gallery</name>
    <message>
        <source>Advanced colour picker</source>
        <translation>בורר צבעים מתקדם</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>תיבות משולבות</translation>
    </message>
    <message>
        <source>Drop and drag</source>
        <translation>שחרור וגרירה</translation>
    </message>
    <message>
        <source>Event helpers</source>
        <translation>עזרי אירועים</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>טפטפת</translation>
    </message>
    <message>
        <source>Formatting</source>
        <translation>עיצוב</translation>
    </message>
    <message>
        <source>Frame over a window</source>
        <translation>מסגרת מעל חלון</translation>
    </message>
    <message>
        <source>Labels and inputs</source>
        <translation>תוויות וקלט</translation>
    </message>
    <message>
        <source>Named palette</source>
        <translation>לוח צבעים בעלי שם</translation>
    </message>
    <message>
        <source>Pens and lines</source>
        <translation>עטים וקווים</translation>
    </message>
    <message>
        <source>Selection frames</source>
        <translation>מסגרות בחירה</translation>
    </message>
    <message>
        <source>Tiles and title bars</source>
        <translation>אריחים ושורות כותרת</translation>
    </message>
    <message>
        <source>Walkthrough</source>
        <translation>סיור מודרך</translation>
    </message>
    <message>
        <source>Widget renderer</source>
        <translation>ציור רכיבים</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>תיבות דו־שיח לקבצים</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>שורת המשימות</translation>
    </message>
</context>
<context>
    <name>Gallery::AdvancedColorPickerPage</name>
    <message>
        <source>Click a colour to open its popup; the note takes the new colour while you choose.</source>
        <translation>לחצו על צבע כדי לפתוח את החלון הקופץ שלו; הפתק מקבל את הצבע החדש בזמן הבחירה.</translation>
    </message>
    <message>
        <source>Buy milk, feed the cat</source>
        <translation>לקנות חלב, להאכיל את החתול</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>נייר</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>דיו</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>מרקר</translation>
    </message>
    <message>
        <source>Drag a colour from the palette to one of the twelve slots above it. The slots are shared: open another picker and find the colour there.</source>
        <translation>גררו צבע מהלוח לאחד משנים־עשר התאים שמעליו. התאים משותפים: פתחו בורר אחר ותמצאו שם את הצבע.</translation>
    </message>
    <message>
        <source>Opacity of the marker</source>
        <translation>אטימות המרקר</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>פעיל</translation>
    </message>
    <message>
        <source>Random colours</source>
        <translation>צבעים אקראיים</translation>
    </message>
    <message>
        <source>A colour that is set by the program makes no signal.</source>
        <translation>צבע שהתוכנית קובעת אינו שולח אות.</translation>
    </message>
    <message>
        <source>Open popup here</source>
        <translation>פתיחת החלון הקופץ כאן</translation>
    </message>
</context>
<context>
    <name>Gallery::ComboBoxesPage</name>
    <message>
        <source>Combo boxes that are narrower than their items. Turn the wheel over the form, open the lists.</source>
        <translation>תיבות משולבות צרות מהפריטים שלהן. סובבו את הגלגלת מעל הטופס, פתחו את הרשימות.</translation>
    </message>
    <message>
        <source>Narrow box</source>
        <translation>תיבה צרה</translation>
    </message>
    <message>
        <source>Elided text and wide popup</source>
        <translation>טקסט מקוצר ורשימה רחבה</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>שורה %1</translation>
    </message>
    <message>
        <source>No wheel in a scrolling form</source>
        <translation>בלי גלגלת בטופס נגלל</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>גזירה</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>העתקה</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>הדבקה</translation>
    </message>
    <message>
        <source>Box with separators</source>
        <translation>תיבה עם מפרידים</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>מפרידים</translation>
    </message>
    <message>
        <source>A preset with a rather long name</source>
        <translation>ערכה ששמה ארוך למדי</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>ערכות</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>רגוע</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>בהיר</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>לילה</translation>
    </message>
    <message>
        <source>Preset panel</source>
        <translation>לוח ערכות</translation>
    </message>
    <message>
        <source>Wide popup</source>
        <translation>רשימה רחבה</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>גלגלת העכבר</translation>
    </message>
    <message>
        <source>Elide text</source>
        <translation>קיצור הטקסט</translation>
    </message>
    <message>
        <source>Tool tip:</source>
        <translation>תיאור קופץ:</translation>
    </message>
    <message>
        <source>Styled separators</source>
        <translation>מפרידים מעוצבים</translation>
    </message>
    <message>
        <source>Preset icon</source>
        <translation>סמל הערכה</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>קצר</translation>
    </message>
    <message>
        <source>An item whose text is much longer than the box</source>
        <translation>פריט שהטקסט שלו ארוך בהרבה מהתיבה</translation>
    </message>
    <message>
        <source>Another one that does not fit</source>
        <translation>עוד אחד שאינו נכנס</translation>
    </message>
</context>
<context>
    <name>Gallery::DropAndDragPage</name>
    <message>
        <source>Drop files from a file manager: one observer takes pictures, the other texts, and each hears of everything that is dropped. Drag the panel by any point, its button included: what was dragged is not clicked.</source>
        <translation>שחררו קבצים ממנהל הקבצים: צופה אחד לוקח תמונות, השני טקסטים, וכל אחד מהם שומע על כל מה ששוחרר. גררו את הלוח מכל נקודה, גם מהכפתור שלו: מה שנגרר אינו נלחץ.</translation>
    </message>
    <message>
        <source>Pictures are welcome</source>
        <translation>תמונות יתקבלו בברכה</translation>
    </message>
    <message>
        <source>Texts are welcome</source>
        <translation>טקסטים יתקבלו בברכה</translation>
    </message>
    <message>
        <source>Drop pictures or texts here</source>
        <translation>שחררו כאן תמונות או טקסטים</translation>
    </message>
    <message>
        <source>Drag me anywhere</source>
        <translation>גררו אותי לכל מקום</translation>
    </message>
    <message>
        <source>Click me</source>
        <translation>לחצו עליי</translation>
    </message>
</context>
<context>
    <name>Gallery::EventHelpersPage</name>
    <message>
        <source>Scribble on the pad: the lamps below show the signals that the helpers make of its events. Without propagation the signals still come, but the pad itself sees no mouse any more.</source>
        <translation>שרבטו על הלוח: הנורות שמתחתיו מציגות את האותות שהעזרים יוצרים מהאירועים שלו. בלי העברה האותות עדיין מגיעים, אבל הלוח עצמו כבר אינו רואה את העכבר.</translation>
    </message>
    <message>
        <source>Scribble here</source>
        <translation>שרבטו כאן</translation>
    </message>
    <message>
        <source>Events go on to the pad</source>
        <translation>האירועים מגיעים ללוח</translation>
    </message>
    <message>
        <source>Hover events</source>
        <translation>אירועי ריחוף</translation>
    </message>
    <message>
        <source>Moves without a button</source>
        <translation>תנועות בלי כפתור</translation>
    </message>
    <message>
        <source>Wipe the pad</source>
        <translation>ניקוי הלוח</translation>
    </message>
    <message>
        <source>Drop it here</source>
        <translation>שחררו אותו כאן</translation>
    </message>
    <message>
        <source>Drag this text</source>
        <translation>גררו את הטקסט הזה</translation>
    </message>
    <message>
        <source>Drop field is guarded</source>
        <translation>אזור השחרור מוגן</translation>
    </message>
    <message>
        <source>Window stays on top</source>
        <translation>החלון נשאר למעלה</translation>
    </message>
</context>
<context>
    <name>Gallery::EyedropperPage</name>
    <message>
        <source>Press the button, then click into the picture: the button takes the colour under the cursor. Any key picks as well; a click elsewhere ends it without a colour.</source>
        <translation>לחצו על הכפתור ואז בתוך התמונה: הכפתור מקבל את הצבע שמתחת לסמן. גם כל מקש בוחר; לחיצה במקום אחר מסיימת בלי צבע.</translation>
    </message>
    <message>
        <source>Pick a colour from the picture</source>
        <translation>בחירת צבע מהתמונה</translation>
    </message>
    <message>
        <source>Button shows the colour</source>
        <translation>הכפתור מציג את הצבע</translation>
    </message>
    <message>
        <source>Picture is the target</source>
        <translation>התמונה היא היעד</translation>
    </message>
    <message>
        <source>Frame round the picture</source>
        <translation>מסגרת סביב התמונה</translation>
    </message>
    <message>
        <source>Pick without the button</source>
        <translation>בחירה בלי הכפתור</translation>
    </message>
    <message>
        <source>The program waits for the colour.</source>
        <translation>התוכנית ממתינה לצבע.</translation>
    </message>
</context>
<context>
    <name>Gallery::FileDialogsPage</name>
    <message>
        <source>Each button calls the function of its name and shows what comes back: the result, string by string, and the filter that was written back. On Windows getOpen() shows the dialog of the system, which takes files and folders together.</source>
        <translation>כל כפתור קורא לפונקציה ששמה עליו ומציג את מה שחוזר ממנה: התוצאה, מחרוזת אחר מחרוזת, והמסנן שנכתב חזרה. ב־Windows הפונקציה getOpen()‎ מציגה את תיבת הדו־שיח של המערכת, שמקבלת קבצים ותיקיות יחד.</translation>
    </message>
    <message>
        <source>This disc is read-only: nothing can be written to it.</source>
        <translation>התקליטור הזה לקריאה בלבד: אי אפשר לכתוב עליו דבר.</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>&amp;תוצאה</translation>
    </message>
    <message>
        <source>Nothing was asked yet</source>
        <translation>עדיין לא נשאל דבר</translation>
    </message>
    <message>
        <source>Choose something</source>
        <translation>בחרו משהו</translation>
    </message>
    <message>
        <source>Images (*.jpg *.png);;Texts (*.txt *.md);;All files (*)</source>
        <translation>תמונות (*.jpg *.png);;טקסטים (*.txt *.md);;כל הקבצים (*)</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>כותרת</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>תיקייה</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>מסנן</translation>
    </message>
    <message>
        <source>getOpen(): files</source>
        <translation>getOpen()‎: קבצים</translation>
    </message>
    <message>
        <source>getOpen(): folders</source>
        <translation>getOpen()‎: תיקיות</translation>
    </message>
    <message>
        <source>getOpen(): several</source>
        <translation>getOpen()‎: כמה יחד</translation>
    </message>
    <message>
        <source>An empty list</source>
        <translation>רשימה ריקה</translation>
    </message>
    <message>
        <source>Filter written back: %1</source>
        <translation>המסנן שנכתב חזרה: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::FormattingPage</name>
    <message>
        <source>Format the sample with the two strips. Their icons come from the page&apos;s style sheet, which selects the buttons by their property &quot;styleTag&quot;.</source>
        <translation>עצבו את הדוגמה בשתי השורות. הסמלים שלהן באים מגיליון הסגנונות של הדף, שבוחר את הכפתורים לפי המאפיין „styleTag”.</translation>
    </message>
    <message>
        <source>The quick brown fox jumps over the lazy dog, and the dog, being lazy, lets it jump as often as it likes.</source>
        <translation>השועל החום הזריז קופץ מעל הכלב העצלן, והכלב, מרוב עצלות, נותן לו לקפוץ ככל שירצה.</translation>
    </message>
    <message>
        <source>Plain font</source>
        <translation>גופן רגיל</translation>
    </message>
    <message>
        <source>The program sets a font: a signal for each toggle that changes.</source>
        <translation>התוכנית קובעת גופן: אות לכל מתג שמשתנה.</translation>
    </message>
    <message>
        <source>Set to left</source>
        <translation>קביעה לשמאל</translation>
    </message>
    <message>
        <source>The program checks a button: no signal, and the sample stays as it is.</source>
        <translation>התוכנית מסמנת כפתור: אין אות, והדוגמה נשארת כפי שהיא.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>פעיל</translation>
    </message>
</context>
<context>
    <name>Gallery::FrameOverWindowPage</name>
    <message>
        <source>The window below goes on living while the frame lies over it. In edit mode the mouse moves the frame; otherwise it reaches the window.</source>
        <translation>החלון שלמטה ממשיך לחיות בזמן שהמסגרת מונחת עליו. במצב עריכה העכבר מזיז את המסגרת; אחרת הוא מגיע אל החלון.</translation>
    </message>
    <message>
        <source>Type here while edit mode is off</source>
        <translation>הקלידו כאן כשמצב העריכה כבוי</translation>
    </message>
    <message>
        <source>Press here while edit mode is off</source>
        <translation>לחצו כאן כשמצב העריכה כבוי</translation>
    </message>
    <message>
        <source>A window with its own life</source>
        <translation>חלון עם חיים משלו</translation>
    </message>
    <message>
        <source>From %1 %, %2 %: %3 % wide, %4 % high</source>
        <comment>position and size of the frame</comment>
        <translation>מ־%1 %, %2 %: רוחב %3 %, גובה %4 %</translation>
    </message>
    <message>
        <source>Edit mode</source>
        <translation>מצב עריכה</translation>
    </message>
    <message>
        <source>Keep the ratio</source>
        <translation>שמירה על היחס</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>שטח העבודה</translation>
    </message>
    <message>
        <source>Veil</source>
        <translation>מסך</translation>
    </message>
</context>
<context>
    <name>Gallery::GalleryHint</name>
    <message>
        <source>Next</source>
        <translation>הבא</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>לא עכשיו</translation>
    </message>
    <message>
        <source>Never again</source>
        <translation>לעולם לא</translation>
    </message>
</context>
<context>
    <name>Gallery::LabelsAndInputsPage</name>
    <message>
        <source>Drag the handle beside the column to narrow it: labels and the line edit elide their texts and tell the whole of them in tool tips. The line edit shows all of it while you edit.</source>
        <translation>גררו את הידית כדי להצר את העמודה שלידה: התוויות ושדה הטקסט מקצרים את הטקסטים שלהם ומציגים אותם במלואם בתיאור קופץ. השדה מציג את כולו בזמן העריכה.</translation>
    </message>
    <message>
        <source>A file name that is much too long for a column as narrow as this one.txt</source>
        <translation>שם קובץ ארוך מדי בשביל עמודה צרה כמו זאת.txt</translation>
    </message>
    <message>
        <source>Mixed directions: %1, elided in order</source>
        <translation>כיוונים מעורבים: %1, מקוצר לפי הסדר</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>קצר</translation>
    </message>
    <message>
        <source>Drag the handle at the edge of this field.</source>
        <translation>גררו את הידית שבקצה השדה הזה.</translation>
    </message>
    <message>
        <source>Press here, with any button</source>
        <translation>לחצו כאן, בכל כפתור</translation>
    </message>
    <message>
        <source>Clipped text</source>
        <translation>טקסט מקוצר</translation>
    </message>
    <message>
        <source>A text that is shown whole while you edit it, and elided while you do not</source>
        <translation>טקסט שמוצג במלואו בזמן העריכה ומקוצר בשאר הזמן</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>הערות</translation>
    </message>
    <message>
        <source>Labels report presses</source>
        <translation>התוויות מדווחות על לחיצות</translation>
    </message>
    <message>
        <source>Labels elide their texts</source>
        <translation>התוויות מקצרות את הטקסטים</translation>
    </message>
    <message>
        <source>at the end</source>
        <translation>בסוף</translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation>באמצע</translation>
    </message>
    <message>
        <source>at the beginning</source>
        <translation>בהתחלה</translation>
    </message>
    <message>
        <source>Elide</source>
        <translation>קיצור</translation>
    </message>
    <message>
        <source>What do you think of it?</source>
        <translation>מה דעתכם על זה?</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>טקסט רמז</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>מספר</translation>
    </message>
    <message>
        <source>Digits at most</source>
        <translation>ספרות לכל היותר</translation>
    </message>
</context>
<context>
    <name>Gallery::MainWindow</name>
    <message>
        <source>KQtUi gallery</source>
        <translation>הגלריה של KQtUi</translation>
    </message>
    <message>
        <source>&amp;Find a page</source>
        <translation>&amp;חיפוש דף</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;יציאה</translation>
    </message>
    <message>
        <source>&amp;Dark palette</source>
        <translation>צבעים &amp;כהים</translation>
    </message>
    <message>
        <source>&amp;Right to left</source>
        <translation>מימין ל&amp;שמאל</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;קובץ</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;תצוגה</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;שפה</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>שפה: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::NamedPalettePage</name>
    <message>
        <source>Click the button: a default colour, forty named colours, and a dialog behind &quot;More...&quot;.</source>
        <translation>לחצו על הכפתור: צבע ברירת מחדל, ארבעים צבעים בעלי שם, ותיבת דו־שיח מאחורי „עוד...”.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>צבע</translation>
    </message>
    <message>
        <source>While its popup is open the picker&apos;s property &quot;pressed&quot; is true: the page&apos;s style sheet gives it a thick border then.</source>
        <translation>כשהחלון הקופץ פתוח, המאפיין „pressed” של הבורר הוא אמת: גיליון הסגנונות של הדף נותן לו אז גבול עבה.</translation>
    </message>
    <message>
        <source>Colorized</source>
        <translation>צבוע</translation>
    </message>
    <message>
        <source>Dark popup</source>
        <translation>חלון קופץ כהה</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>פעיל</translation>
    </message>
    <message>
        <source>Make it the default</source>
        <translation>קביעה כברירת מחדל</translation>
    </message>
    <message>
        <source>The popup&apos;s &quot;Default&quot; button chooses this colour from now on.</source>
        <translation>הכפתור „ברירת מחדל” של החלון הקופץ בוחר מעתה את הצבע הזה.</translation>
    </message>
</context>
<context>
    <name>Gallery::Page</name>
    <message>
        <source>Properties</source>
        <translation>מאפיינים</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>ניקוי</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>אותות</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>קוד</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>העתקה</translation>
    </message>
</context>
<context>
    <name>Gallery::PageList</name>
    <message>
        <source>Pages</source>
        <translation>דפים</translation>
    </message>
    <message>
        <source>Title or component</source>
        <translation>כותרת או רכיב</translation>
    </message>
</context>
<context>
    <name>Gallery::PensAndLinesPage</name>
    <message>
        <source>Pens, lines and opacity: each group draws what its boxes say.</source>
        <translation>עטים, קווים ואטימות: כל קבוצה מציירת את מה שהתיבות שלה אומרות.</translation>
    </message>
    <message>
        <source>Pen picker</source>
        <translation>בורר עט</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>סגנון קו</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>עובי קו</translation>
    </message>
    <message>
        <source>Line style and line width</source>
        <translation>סגנון ועובי הקו</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>אטימות</translation>
    </message>
    <message>
        <source>Opacity adapter</source>
        <translation>מתאם אטימות</translation>
    </message>
    <message>
        <source>Value: %1</source>
        <translation>ערך: %1</translation>
    </message>
    <message>
        <source>Slider with a zero tick</source>
        <translation>מחוון עם סימון האפס</translation>
    </message>
    <message>
        <source>Coloured tick</source>
        <translation>סימון צבעוני</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>פעיל</translation>
    </message>
</context>
<context>
    <name>Gallery::SelectionFramesPage</name>
    <message>
        <source>Drag the frames, their corners and their sides. The small picture is what the frames are rendered to, with its alpha.</source>
        <translation>גררו את המסגרות, את הפינות ואת הצדדים שלהן. התמונה הקטנה היא תוצאת הציור של המסגרות, עם ערוץ האלפא שלה.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>תמונה</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>טקסט</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>אזור</translation>
    </message>
    <message>
        <source>Holiday by the sea</source>
        <translation>חופשה ליד הים</translation>
    </message>
    <message>
        <source>Picture keeps its ratio</source>
        <translation>התמונה שומרת על היחס</translation>
    </message>
    <message>
        <source>Region keeps its ratio</source>
        <translation>האזור שומר על היחס</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>שטח העבודה</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>שקיפות</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>מילוי</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>קו מתאר</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>גופן</translation>
    </message>
</context>
<context>
    <name>Gallery::SignalLog</name>
    <message>
        <source>Signals appear here.</source>
        <translation>כאן יופיעו אותות.</translation>
    </message>
</context>
<context>
    <name>Gallery::TaskbarPage</name>
    <message>
        <source>Move the slider or press a button, and look at the taskbar or dock of your desktop: that begins an operation. Below stands what was asked for, and what is seen of it where.</source>
        <translation>הזיזו את המחוון או לחצו על כפתור, והביטו בשורת המשימות או במעגן של שולחן העבודה: כך מתחילה פעולה. למטה כתוב מה התבקש, ומה רואים ממנו והיכן.</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>מערכת Windows</translation>
    </message>
    <message>
        <source>The button of this window in the taskbar fills: green while the operation runs, yellow when it is paused, red when it was stopped. A busy one has a light that runs through it.</source>
        <translation>הכפתור של החלון הזה בשורת המשימות מתמלא: ירוק בזמן שהפעולה רצה, צהוב כשהיא מושהית, אדום אם נעצרה. בפעולה שמשכה אינו ידוע רץ בו אור.</translation>
    </message>
    <message>
        <source>Linux</source>
        <translation>מערכת Linux</translation>
    </message>
    <message>
        <source>The entry of this application has a bar, in docks that know its desktop file and show progress: those of KDE Plasma and Ubuntu, Dash to Dock, Plank and others. Busy is an empty bar, paused looks like running, and what was stopped asks for attention.</source>
        <translation>לרשומה של היישום הזה יש פס, במעגנים שמכירים את קובץ שולחן העבודה שלו ומציגים התקדמות: אלה של KDE Plasma ו־Ubuntu, של Dash to Dock, של Plank ואחרים. משך לא ידוע הוא פס ריק, השהיה נראית כמו ריצה, ומה שנעצר מבקש תשומת לב.</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>במקומות אחרים</translation>
    </message>
    <message>
        <source>Nothing is seen.</source>
        <translation>לא רואים דבר.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>התקדמות</translation>
    </message>
    <message>
        <source>End the operation</source>
        <translation>סיום הפעולה</translation>
    </message>
    <message>
        <source>Desktop file</source>
        <translation>קובץ שולחן עבודה</translation>
    </message>
    <message>
        <source>There is no operation.</source>
        <translation>אין פעולה.</translation>
    </message>
    <message>
        <source>The indicator is hidden.</source>
        <translation>המחוון מוסתר.</translation>
    </message>
    <message>
        <source>The operation was stopped.</source>
        <translation>הפעולה נעצרה.</translation>
    </message>
    <message>
        <source>The operation is paused.</source>
        <translation>הפעולה מושהית.</translation>
    </message>
    <message>
        <source>The operation runs; how far it is nobody knows.</source>
        <translation>הפעולה רצה; איש אינו יודע עד כמה התקדמה.</translation>
    </message>
    <message>
        <source>The operation runs.</source>
        <translation>הפעולה רצה.</translation>
    </message>
</context>
<context>
    <name>Gallery::TilesPage</name>
    <message>
        <source>Tiles with a star, a play button and a duration over a picture; and a panel whose title bar can be dragged, detached and closed.</source>
        <translation>אריחים עם כוכב, כפתור ניגון ומשך מעל תמונה; ולוח שאפשר לגרור, לנתק ולסגור את שורת הכותרת שלו.</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>זריחה</translation>
    </message>
    <message>
        <source>Noon</source>
        <translation>צהריים</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>שקיעה</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>לילה</translation>
    </message>
    <message>
        <source>Pin playlist</source>
        <translation>נעיצת רשימת ההשמעה</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <translation>ביטול נעיצת רשימת ההשמעה</translation>
    </message>
    <message>
        <source>Stars</source>
        <translation>כוכבים</translation>
    </message>
    <message>
        <source>Play buttons</source>
        <translation>כפתורי ניגון</translation>
    </message>
    <message>
        <source>Clips can be played</source>
        <translation>אפשר לנגן את הקטעים</translation>
    </message>
    <message>
        <source>Styled as floating</source>
        <translation>מעוצב כלוח צף</translation>
    </message>
    <message>
        <source>Show the panel</source>
        <translation>הצגת הלוח</translation>
    </message>
</context>
<context>
    <name>Gallery::Tour</name>
    <message>
        <source>Welcome to the gallery</source>
        <translation>ברוכים הבאים לגלריה</translation>
    </message>
    <message>
        <source>Every family of components has a page of its own, and all of them are alive. The tour shows you around in a minute.</source>
        <translation>לכל משפחת רכיבים דף משלה, וכולם חיים. הסיור מראה לכם הכול בדקה.</translation>
    </message>
    <message>
        <source>Find a page</source>
        <translation>חיפוש דף</translation>
    </message>
    <message>
        <source>Type part of a title. The arrow keys move through the pages that are left.</source>
        <translation>הקלידו חלק מכותרת. מקשי החיצים עוברים בין הדפים שנשארו.</translation>
    </message>
    <message>
        <source>Dark, and from right to left</source>
        <translation>כהה, ומימין לשמאל</translation>
    </message>
    <message>
        <source>These two switches are one target: the frame goes round both. This hint stays clear of the filter, so that you can go on typing.</source>
        <translation>שני המתגים האלה הם יעד אחד: המסגרת מקיפה את שניהם. הרמז הזה אינו מסתיר את שדה הסינון, כדי שתוכלו להמשיך להקליד.</translation>
    </message>
    <message>
        <source>In your language</source>
        <translation>בשפה שלכם</translation>
    </message>
    <message>
        <source>The texts change at once, those of this hint as well. Clicking what a hint points at takes you on, just as Next does.</source>
        <translation>הטקסטים משתנים מיד, גם אלה של הרמז הזה. לחיצה על מה שהרמז מצביע עליו מקדמת אתכם, בדיוק כמו הבא.</translation>
    </message>
    <message>
        <source>Open a page</source>
        <translation>פתיחת דף</translation>
    </message>
    <message>
        <source>Choose &quot;Walkthrough&quot; in the list. The last hint waits for that page to be opened.</source>
        <translation>בחרו „סיור מודרך” ברשימה. הרמז האחרון ממתין לפתיחת הדף הזה.</translation>
    </message>
    <message>
        <source>How the tour works</source>
        <translation>איך הסיור עובד</translation>
    </message>
    <message>
        <source>A walkthrough is a machine of named states. Here you see another one at work, and can drive it yourself.</source>
        <translation>סיור מודרך הוא מכונה של מצבים בעלי שם. כאן תראו אחת אחרת בפעולה, ותוכלו לנהוג בה בעצמכם.</translation>
    </message>
</context>
<context>
    <name>Gallery::WalkthroughPage</name>
    <message>
        <source>One target</source>
        <translation>יעד אחד</translation>
    </message>
    <message>
        <source>Press the button, or Next.</source>
        <translation>לחצו על הכפתור, או על הבא.</translation>
    </message>
    <message>
        <source>Two targets</source>
        <translation>שני יעדים</translation>
    </message>
    <message>
        <source>Hide one with the switches: the frame follows. Hide both, and the hint goes.</source>
        <translation>הסתירו אחד מהם במתגים: המסגרת עוקבת. הסתירו את שניהם, והרמז נעלם.</translation>
    </message>
    <message>
        <source>A small tour of its own. Start it, hide its targets, or enter a state by double-clicking it: the lists show the machine&apos;s groups, and what each hint still waits for.</source>
        <translation>סיור קטן משלו. התחילו אותו, הסתירו את יעדיו, או היכנסו למצב בלחיצה כפולה: הרשימות מציגות את קבוצות המכונה ואת מה שכל רמז עוד ממתין לו.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>שמירה</translation>
    </message>
    <message>
        <source>First lamp</source>
        <translation>נורה ראשונה</translation>
    </message>
    <message>
        <source>Second lamp</source>
        <translation>נורה שנייה</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>קבוצה</translation>
    </message>
    <message>
        <source>Active state</source>
        <translation>מצב פעיל</translation>
    </message>
    <message>
        <source>Groups and states</source>
        <translation>קבוצות ומצבים</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>רמז</translation>
    </message>
    <message>
        <source>Unmet conditions</source>
        <translation>תנאים שלא התקיימו</translation>
    </message>
    <message>
        <source>Waits for</source>
        <translation>ממתין ל</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>רמזים</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>התחלת הסיור</translation>
    </message>
    <message>
        <source>Stop the tour</source>
        <translation>עצירת הסיור</translation>
    </message>
    <message>
        <source>Hints enabled</source>
        <translation>הרמזים פעילים</translation>
    </message>
    <message>
        <source>Save is shown</source>
        <translation>כפתור השמירה מוצג</translation>
    </message>
    <message>
        <source>First lamp is shown</source>
        <translation>הנורה הראשונה מוצגת</translation>
    </message>
    <message>
        <source>Second lamp is shown</source>
        <translation>הנורה השנייה מוצגת</translation>
    </message>
    <message>
        <source>Hints avoid the list of hints</source>
        <translation>הרמזים נמנעים מהרשימה שלהם</translation>
    </message>
    <message>
        <source>entered %1</source>
        <translation>כניסה אל %1</translation>
    </message>
</context>
<context>
    <name>Gallery::WidgetRendererPage</name>
    <message>
        <source>The widgets are drawn into the picture beside them, and cut out of their window. Cut out, they still answer to the mouse.</source>
        <translation>הרכיבים מצוירים בתמונה שלידם ונגזרים מהחלון שלהם. גם גזורים הם עדיין מגיבים לעכבר.</translation>
    </message>
    <message>
        <source>Compose</source>
        <translation>הרכבה</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>החזרה</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>כפתור</translation>
    </message>
    <message>
        <source>Check box</source>
        <translation>תיבת סימון</translation>
    </message>
</context>
</TS>
