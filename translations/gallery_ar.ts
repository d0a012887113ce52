<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Gallery</name>
    <message>
        <source>Event helpers</source>
        <translation>مساعدات الأحداث</translation>
    </message>
    <message>
        <source>Advanced colour picker</source>
        <translation>منتقي الألوان المتقدم</translation>
    </message>
    <message>
        <source>Named palette</source>
        <translation>لوحة الألوان المسماة</translation>
    </message>
    <message>
        <source>Pens and lines</source>
        <translation>الأقلام والخطوط</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>قطّارة الألوان</translation>
    </message>
    <message>
        <source>Walkthrough</source>
        <translation>جولة إرشادية</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>القوائم المنسدلة</translation>
    </message>
    <message>
        <source>Drop and drag</source>
        <translation>الإفلات والسحب</translation>
    </message>
    <message>
        <source>Formatting</source>
        <translation>التنسيق</translation>
    </message>
    <message>
        <source>Frame over a window</source>
        <translation>إطار فوق نافذة</translation>
    </message>
    <message>
        <source>Labels and inputs</source>
        <translation>التسميات وحقول الإدخال</translation>
    </message>
    <message>
        <source>Selection frames</source>
        <translation>إطارات التحديد</translation>
    </message>
    <message>
        <source>Tiles and title bars</source>
        <translation>المربعات وأشرطة العناوين</translation>
    </message>
    <message>
        <source>Widget renderer</source>
        <translation>راسم عناصر الواجهة</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>مربعات حوار الملفات</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>شريط المهام</translation>
    </message>
</context>
<context>
    <name>Gallery::AdvancedColorPickerPage</name>
    <message>
        <source>Click a colour to open its popup; the note takes the new colour while you choose.</source>
        <translation>انقر لونًا لفتح نافذته المنبثقة؛ تأخذ الملاحظة اللون الجديد أثناء الاختيار.</translation>
    </message>
    <message>
        <source>Buy milk, feed the cat</source>
        <translation>اشترِ الحليب وأطعم القط</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>الورق</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>الحبر</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>قلم التمييز</translation>
    </message>
    <message>
        <source>Drag a colour from the palette to one of the twelve slots above it. The slots are shared: open another picker and find the colour there.</source>
        <translation>اسحب لونًا من اللوح إلى إحدى الخانات الاثنتي عشرة فوقه. الخانات مشتركة: افتح منتقيًا آخر وستجد اللون هناك.</translation>
    </message>
    <message>
        <source>Opacity of the marker</source>
        <translation>عتامة قلم التمييز</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>مُفعّل</translation>
    </message>
    <message>
        <source>Random colours</source>
        <translation>ألوان عشوائية</translation>
    </message>
    <message>
        <source>A colour that is set by the program makes no signal.</source>
        <translation>اللون الذي يضبطه البرنامج لا يصدر إشارة.</translation>
    </message>
    <message>
        <source>Open popup here</source>
        <translation>افتح النافذة هنا</translation>
    </message>
</context>
<context>
    <name>Gallery::ComboBoxesPage</name>
    <message>
        <source>Combo boxes that are narrower than their items. Turn the wheel over the form, open the lists.</source>
        <translation>قوائم منسدلة أضيق من عناصرها. أدر عجلة الفأرة فوق النموذج، وافتح القوائم.</translation>
    </message>
    <message>
        <source>Narrow box</source>
        <translation>قائمة ضيقة</translation>
    </message>
    <message>
        <source>Elided text and wide popup</source>
        <translation>نص مختصر ونافذة منبثقة عريضة</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>الصف %1</translation>
    </message>
    <message>
        <source>No wheel in a scrolling form</source>
        <translation>لا عجلة في نموذج قابل للتمرير</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>قص</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>لصق</translation>
    </message>
    <message>
        <source>Box with separators</source>
        <translation>قائمة بفواصل</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>الفواصل</translation>
    </message>
    <message>
        <source>A preset with a rather long name</source>
        <translation>إعداد مسبق ذو اسم طويل بعض الشيء</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>الإعدادات المسبقة</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>هادئ</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>ساطع</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>ليلي</translation>
    </message>
    <message>
        <source>Preset panel</source>
        <translation>لوحة الإعدادات المسبقة</translation>
    </message>
    <message>
        <source>Wide popup</source>
        <translation>نافذة منبثقة عريضة</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>عجلة الفأرة</translation>
    </message>
    <message>
        <source>Elide text</source>
        <translation>اختصار النص</translation>
    </message>
    <message>
        <source>Tool tip:</source>
        <translation>تلميح الأداة:</translation>
    </message>
    <message>
        <source>Styled separators</source>
        <translation>فواصل منسّقة</translation>
    </message>
    <message>
        <source>Preset icon</source>
        <translation>أيقونة الإعداد المسبق</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>قصير</translation>
    </message>
    <message>
        <source>An item whose text is much longer than the box</source>
        <translation>عنصر نصه أطول بكثير من القائمة</translation>
    </message>
    <message>
        <source>Another one that does not fit</source>
        <translation>عنصر آخر لا يتسع له المكان</translation>
    </message>
</context>
<context>
    <name>Gallery::DropAndDragPage</name>
    <message>
        <source>Drop files from a file manager: one observer takes pictures, the other texts, and each hears of everything that is dropped. Drag the panel by any point, its button included: what was dragged is not clicked.</source>
        <translation>أفلت ملفات من مدير الملفات: يأخذ أحد المراقبين الصور والآخر النصوص، ويعلم كل منهما بكل ما يُفلَت. اسحب اللوحة من أي نقطة، حتى من زرها: ما سُحب لا يُعدّ منقورًا.</translation>
    </message>
    <message>
        <source>Pictures are welcome</source>
        <translation>الصور مرحّب بها</translation>
    </message>
    <message>
        <source>Texts are welcome</source>
        <translation>النصوص مرحّب بها</translation>
    </message>
    <message>
        <source>Drop pictures or texts here</source>
        <translation>أفلت الصور أو النصوص هنا</translation>
    </message>
    <message>
        <source>Drag me anywhere</source>
        <translation>اسحبني إلى أي مكان</translation>
    </message>
    <message>
        <source>Click me</source>
        <translation>انقرني</translation>
    </message>
</context>
<context>
    <name>Gallery::EventHelpersPage</name>
    <message>
        <source>Scribble on the pad: the lamps below show the signals that the helpers make of its events. Without propagation the signals still come, but the pad itself sees no mouse any more.</source>
        <translation>ارسم على اللوحة: تعرض المصابيح أدناه الإشارات التي تصنعها المساعدات من أحداثها. من دون تمرير الأحداث تستمر الإشارات، لكن اللوحة نفسها لا ترى الفأرة.</translation>
    </message>
    <message>
        <source>Scribble here</source>
        <translation>ارسم هنا</translation>
    </message>
    <message>
        <source>Events go on to the pad</source>
        <translation>تمرير الأحداث إلى اللوحة</translation>
    </message>
    <message>
        <source>Hover events</source>
        <translation>أحداث التحويم</translation>
    </message>
    <message>
        <source>Moves without a button</source>
        <translation>الحركة دون زر</translation>
    </message>
    <message>
        <source>Wipe the pad</source>
        <translation>مسح اللوحة</translation>
    </message>
    <message>
        <source>Drop it here</source>
        <translation>أفلته هنا</translation>
    </message>
    <message>
        <source>Drag this text</source>
        <translation>اسحب هذا النص</translation>
    </message>
    <message>
        <source>Drop field is guarded</source>
        <translation>حماية حقل الإفلات</translation>
    </message>
    <message>
        <source>Window stays on top</source>
        <translation>النافذة دائمًا في المقدمة</translation>
    </message>
</context>
<context>
    <name>Gallery::EyedropperPage</name>
    <message>
        <source>Press the button, then click into the picture: the button takes the colour under the cursor. Any key picks as well; a click elsewhere ends it without a colour.</source>
        <translation>اضغط الزر ثم انقر داخل الصورة: يأخذ الزر اللون الذي تحت المؤشر. أي مفتاح يلتقط أيضًا، والنقر خارجها ينهي العملية دون لون.</translation>
    </message>
    <message>
        <source>Pick a colour from the picture</source>
        <translation>التقط لونًا من الصورة</translation>
    </message>
    <message>
        <source>Button shows the colour</source>
        <translation>الزر يعرض اللون</translation>
    </message>
    <message>
        <source>Picture is the target</source>
        <translation>الصورة هي الهدف</translation>
    </message>
    <message>
        <source>Frame round the picture</source>
        <translation>إطار حول الصورة</translation>
    </message>
    <message>
        <source>Pick without the button</source>
        <translation>التقاط بدون الزر</translation>
    </message>
    <message>
        <source>The program waits for the colour.</source>
        <translation>البرنامج ينتظر اللون.</translation>
    </message>
</context>
<context>
    <name>Gallery::FileDialogsPage</name>
    <message>
        <source>Each button calls the function of its name and shows what comes back: the result, string by string, and the filter that was written back. On Windows getOpen() shows the dialog of the system, which takes files and folders together.</source>
        <translation>يستدعي كل زر الدالة التي يحمل اسمها ويعرض ما يعود منها: النتيجة سلسلةً سلسلة، والمرشّح الذي أُعيدت كتابته. على Windows تعرض getOpen()‎ مربع حوار النظام الذي يقبل الملفات والمجلدات معًا.</translation>
    </message>
    <message>
        <source>This disc is read-only: nothing can be written to it.</source>
        <translation>هذا القرص للقراءة فقط: لا يمكن كتابة أي شيء عليه.</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>ال&amp;نتيجة</translation>
    </message>
    <message>
        <source>Nothing was asked yet</source>
        <translation>لم يُطلب شيء بعد</translation>
    </message>
    <message>
        <source>Choose something</source>
        <translation>اختر شيئًا</translation>
    </message>
    <message>
        <source>Images (*.jpg *.png);;Texts (*.txt *.md);;All files (*)</source>
        <translation>صور (*.jpg *.png);;نصوص (*.txt *.md);;كل الملفات (*)</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>المجلد</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>المرشّح</translation>
    </message>
    <message>
        <source>getOpen(): files</source>
        <translation>getOpen()‎: ملفات</translation>
    </message>
    <message>
        <source>getOpen(): folders</source>
        <translation>getOpen()‎: مجلدات</translation>
    </message>
    <message>
        <source>getOpen(): several</source>
        <translation>getOpen()‎: عدة عناصر</translation>
    </message>
    <message>
        <source>An empty list</source>
        <translation>قائمة فارغة</translation>
    </message>
    <message>
        <source>Filter written back: %1</source>
        <translation>المرشّح المُعاد: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::FormattingPage</name>
    <message>
        <source>Format the sample with the two strips. Their icons come from the page&apos;s style sheet, which selects the buttons by their property &quot;styleTag&quot;.</source>
        <translation>نسّق العيّنة بالشريطين. تأتي أيقوناتهما من ورقة أنماط الصفحة التي تحدد الأزرار بخاصيتها &quot;styleTag&quot;.</translation>
    </message>
    <message>
        <source>The quick brown fox jumps over the lazy dog, and the dog, being lazy, lets it jump as often as it likes.</source>
        <translation>يقفز الثعلب البني السريع فوق الكلب الكسول، والكلب لكسله يدعه يقفز كلما شاء.</translation>
    </message>
    <message>
        <source>Plain font</source>
        <translation>خط عادي</translation>
    </message>
    <message>
        <source>The program sets a font: a signal for each toggle that changes.</source>
        <translation>يضبط البرنامج خطًا: إشارة لكل زر تبديل يتغير.</translation>
    </message>
    <message>
        <source>Set to left</source>
        <translation>ضبط إلى اليسار</translation>
    </message>
    <message>
        <source>The program checks a button: no signal, and the sample stays as it is.</source>
        <translation>يحدد البرنامج زرًا: لا إشارة، وتبقى العيّنة كما هي.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>مُفعّل</translation>
    </message>
</context>
<context>
    <name>Gallery::FrameOverWindowPage</name>
    <message>
        <source>The window below goes on living while the frame lies over it. In edit mode the mouse moves the frame; otherwise it reaches the window.</source>
        <translation>تظل النافذة أدناه حية بينما يعلوها الإطار. في وضع التحرير تحرّك الفأرة الإطار، وفي غيره تصل إلى النافذة.</translation>
    </message>
    <message>
        <source>Type here while edit mode is off</source>
        <translation>اكتب هنا عندما يكون وضع التحرير متوقفًا</translation>
    </message>
    <message>
        <source>Press here while edit mode is off</source>
        <translation>اضغط هنا عندما يكون وضع التحرير متوقفًا</translation>
    </message>
    <message>
        <source>A window with its own life</source>
        <translation>نافذة لها حياتها الخاصة</translation>
    </message>
    <message>
        <source>From %1 %, %2 %: %3 % wide, %4 % high</source>
        <comment>position and size of the frame</comment>
        <translation>من %1 %، %2 %: العرض %3 %، الارتفاع %4 %</translation>
    </message>
    <message>
        <source>Edit mode</source>
        <translation>وضع التحرير</translation>
    </message>
    <message>
        <source>Keep the ratio</source>
        <translation>الحفاظ على النسبة</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>منطقة العمل</translation>
    </message>
    <message>
        <source>Veil</source>
        <translation>التعتيم</translation>
    </message>
</context>
<context>
    <name>Gallery::GalleryHint</name>
    <message>
        <source>Next</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>ليس الآن</translation>
    </message>
    <message>
        <source>Never again</source>
        <translation>لا تظهر مجددًا</translation>
    </message>
</context>
<context>
    <name>Gallery::LabelsAndInputsPage</name>
    <message>
        <source>Drag the handle beside the column to narrow it: labels and the line edit elide their texts and tell the whole of them in tool tips. The line edit shows all of it while you edit.</source>
        <translation>اسحب المقبض لتضييق العمود المجاور له: تختصر التسميات وحقل الإدخال نصوصها وتذكرها كاملة في تلميحات الأدوات. يعرض حقل الإدخال النص كله أثناء تحريره.</translation>
    </message>
    <message>
        <source>A file name that is much too long for a column as narrow as this one.txt</source>
        <translation>اسم ملف أطول بكثير مما يتسع له عمود ضيق كهذا.txt</translation>
    </message>
    <message>
        <source>Mixed directions: %1, elided in order</source>
        <translation>اتجاهات مختلطة (KQtUi): %1، مختصرة بالترتيب</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>قصير</translation>
    </message>
    <message>
        <source>Drag the handle at the edge of this field.</source>
        <translation>اسحب المقبض عند حافة هذا الحقل.</translation>
    </message>
    <message>
        <source>Press here, with any button</source>
        <translation>اضغط هنا بأي زر</translation>
    </message>
    <message>
        <source>Clipped text</source>
        <translation>نص مختصر</translation>
    </message>
    <message>
        <source>A text that is shown whole while you edit it, and elided while you do not</source>
        <translation>نص يظهر كاملًا أثناء تحريره، ومختصرًا في غير ذلك</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>الملاحظات</translation>
    </message>
    <message>
        <source>Labels report presses</source>
        <translation>التسميات تبلغ عن الضغطات</translation>
    </message>
    <message>
        <source>Labels elide their texts</source>
        <translation>التسميات تختصر نصوصها</translation>
    </message>
    <message>
        <source>at the end</source>
        <translation>في النهاية</translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation>في الوسط</translation>
    </message>
    <message>
        <source>at the beginning</source>
        <translation>في البداية</translation>
    </message>
    <message>
        <source>Elide</source>
        <translation>الاختصار</translation>
    </message>
    <message>
        <source>What do you think of it?</source>
        <translation>ما رأيك فيه؟</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>النص النائب</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>العدد</translation>
    </message>
    <message>
        <source>Digits at most</source>
        <translation>أقصى عدد للأرقام</translation>
    </message>
</context>
<context>
    <name>Gallery::MainWindow</name>
    <message>
        <source>KQtUi gallery</source>
        <translation>معرض KQtUi</translation>
    </message>
    <message>
        <source>&amp;Find a page</source>
        <translation>&amp;بحث عن صفحة</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;خروج</translation>
    </message>
    <message>
        <source>&amp;Dark palette</source>
        <translation>ألوان &amp;داكنة</translation>
    </message>
    <message>
        <source>&amp;Right to left</source>
        <translation>من ال&amp;يمين إلى اليسار</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;عرض</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>ال&amp;لغة</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>اللغة: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::NamedPalettePage</name>
    <message>
        <source>Click the button: a default colour, forty named colours, and a dialog behind &quot;More...&quot;.</source>
        <translation>انقر الزر: لون افتراضي وأربعون لونًا مسمّى، ومربع حوار خلف «المزيد...».</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>اللون</translation>
    </message>
    <message>
        <source>While its popup is open the picker&apos;s property &quot;pressed&quot; is true: the page&apos;s style sheet gives it a thick border then.</source>
        <translation>ما دامت النافذة المنبثقة مفتوحة تكون الخاصية &quot;pressed&quot; صحيحة: عندئذ تمنحه ورقة أنماط الصفحة حدًا سميكًا.</translation>
    </message>
    <message>
        <source>Colorized</source>
        <translation>ملوّن</translation>
    </message>
    <message>
        <source>Dark popup</source>
        <translation>نافذة داكنة</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>مُفعّل</translation>
    </message>
    <message>
        <source>Make it the default</source>
        <translation>اجعله الافتراضي</translation>
    </message>
    <message>
        <source>The popup&apos;s &quot;Default&quot; button chooses this colour from now on.</source>
        <translation>زر «افتراضي» في النافذة يختار هذا اللون من الآن فصاعدًا.</translation>
    </message>
</context>
<context>
    <name>Gallery::Page</name>
    <message>
        <source>Properties</source>
        <translation>الخصائص</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>الإشارات</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>الشيفرة</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
</context>
<context>
    <name>Gallery::PageList</name>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>Title or component</source>
        <translation>عنوان أو مكوّن</translation>
    </message>
</context>
<context>
    <name>Gallery::PensAndLinesPage</name>
    <message>
        <source>Pens, lines and opacity: each group draws what its boxes say.</source>
        <translation>الأقلام والخطوط والعتامة: ترسم كل مجموعة ما تقوله حقولها.</translation>
    </message>
    <message>
        <source>Pen picker</source>
        <translation>منتقي القلم</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>نمط الخط</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>عرض الخط</translation>
    </message>
    <message>
        <source>Line style and line width</source>
        <translation>نمط الخط وعرضه</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>العتامة</translation>
    </message>
    <message>
        <source>Opacity adapter</source>
        <translation>محوّل العتامة</translation>
    </message>
    <message>
        <source>Value: %1</source>
        <translation>القيمة: %1</translation>
    </message>
    <message>
        <source>Slider with a zero tick</source>
        <translation>منزلق بعلامة الصفر</translation>
    </message>
    <message>
        <source>Coloured tick</source>
        <translation>علامة ملونة</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>مُفعّل</translation>
    </message>
</context>
<context>
    <name>Gallery::SelectionFramesPage</name>
    <message>
        <source>Drag the frames, their corners and their sides. The small picture is what the frames are rendered to, with its alpha.</source>
        <translation>اسحب الإطارات وزواياها وجوانبها. الصورة الصغيرة هي ما تُرسم إليه الإطارات، مع قناة ألفا.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>الصورة</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>النص</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>المنطقة</translation>
    </message>
    <message>
        <source>Holiday by the sea</source>
        <translation>عطلة على البحر</translation>
    </message>
    <message>
        <source>Picture keeps its ratio</source>
        <translation>الصورة تحافظ على نسبتها</translation>
    </message>
    <message>
        <source>Region keeps its ratio</source>
        <translation>المنطقة تحافظ على نسبتها</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>منطقة العمل</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>الشفافية</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>التعبئة</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>الحدود الخارجية</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>الخط</translation>
    </message>
</context>
<context>
    <name>Gallery::SignalLog</name>
    <message>
        <source>Signals appear here.</source>
        <translation>تظهر الإشارات هنا.</translation>
    </message>
</context>
<context>
    <name>Gallery::TaskbarPage</name>
    <message>
        <source>Move the slider or press a button, and look at the taskbar or dock of your desktop: that begins an operation. Below stands what was asked for, and what is seen of it where.</source>
        <translation>حرّك المنزلق أو اضغط زرًّا وانظر إلى شريط المهام أو الرصيف في سطح مكتبك: بذلك تبدأ عملية. وفي الأسفل ما طُلب، وما يُرى منه وأين.</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>نظام Windows</translation>
    </message>
    <message>
        <source>The button of this window in the taskbar fills: green while the operation runs, yellow when it is paused, red when it was stopped. A busy one has a light that runs through it.</source>
        <translation>يمتلئ زر هذه النافذة في شريط المهام: بالأخضر ما دامت العملية جارية، وبالأصفر عند إيقافها مؤقتًا، وبالأحمر إذا أُوقفت. وفي حالة الانشغال يجري فيه ضوء.</translation>
    </message>
    <message>
        <source>Linux</source>
        <translation>نظام Linux</translation>
    </message>
    <message>
        <source>The entry of this application has a bar, in docks that know its desktop file and show progress: those of KDE Plasma and Ubuntu, Dash to Dock, Plank and others. Busy is an empty bar, paused looks like running, and what was stopped asks for attention.</source>
        <translation>يظهر شريط على مدخل هذا التطبيق في الأرصفة التي تعرف ملف سطح المكتب الخاص به وتعرض التقدم: أرصفة KDE Plasma وUbuntu وDash to Dock وPlank وغيرها. الانشغال شريط فارغ، والمتوقف مؤقتًا يبدو كالجاري، وما أُوقف يطلب الانتباه.</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>في غيرهما</translation>
    </message>
    <message>
        <source>Nothing is seen.</source>
        <translation>لا يُرى شيء.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>End the operation</source>
        <translation>إنهاء العملية</translation>
    </message>
    <message>
        <source>Desktop file</source>
        <translation>ملف سطح المكتب</translation>
    </message>
    <message>
        <source>There is no operation.</source>
        <translation>لا توجد عملية.</translation>
    </message>
    <message>
        <source>The indicator is hidden.</source>
        <translation>المؤشر مخفي.</translation>
    </message>
    <message>
        <source>The operation was stopped.</source>
        <translation>أُوقفت العملية.</translation>
    </message>
    <message>
        <source>The operation is paused.</source>
        <translation>العملية متوقفة مؤقتًا.</translation>
    </message>
    <message>
        <source>The operation runs; how far it is nobody knows.</source>
        <translation>العملية جارية؛ ولا أحد يعلم إلى أين وصلت.</translation>
    </message>
    <message>
        <source>The operation runs.</source>
        <translation>العملية جارية.</translation>
    </message>
</context>
<context>
    <name>Gallery::TilesPage</name>
    <message>
        <source>Tiles with a star, a play button and a duration over a picture; and a panel whose title bar can be dragged, detached and closed.</source>
        <translation>مربعات عليها نجمة وزر تشغيل ومدة فوق صورة؛ ولوحة يمكن سحب شريط عنوانها وفصلها وإغلاقها.</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>الشروق</translation>
    </message>
    <message>
        <source>Noon</source>
        <translation>الظهيرة</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>الغروب</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>الليل</translation>
    </message>
    <message>
        <source>Pin playlist</source>
        <translation>تثبيت قائمة التشغيل</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <translation>إلغاء تثبيت قائمة التشغيل</translation>
    </message>
    <message>
        <source>Stars</source>
        <translation>النجوم</translation>
    </message>
    <message>
        <source>Play buttons</source>
        <translation>أزرار التشغيل</translation>
    </message>
    <message>
        <source>Clips can be played</source>
        <translation>المقاطع قابلة للتشغيل</translation>
    </message>
    <message>
        <source>Styled as floating</source>
        <translation>بمظهر عائم</translation>
    </message>
    <message>
        <source>Show the panel</source>
        <translation>إظهار اللوحة</translation>
    </message>
</context>
<context>
    <name>Gallery::Tour</name>
    <message>
        <source>Welcome to the gallery</source>
        <translation>مرحبًا بك في المعرض</translation>
    </message>
    <message>
        <source>Every family of components has a page of its own, and all of them are alive. The tour shows you around in a minute.</source>
        <translation>لكل عائلة من المكونات صفحة خاصة بها، وكلها حية. تعرّفك الجولة على المعرض في دقيقة.</translation>
    </message>
    <message>
        <source>Find a page</source>
        <translation>العثور على صفحة</translation>
    </message>
    <message>
        <source>Type part of a title. The arrow keys move through the pages that are left.</source>
        <translation>اكتب جزءًا من العنوان. تنقلك مفاتيح الأسهم بين الصفحات المتبقية.</translation>
    </message>
    <message>
        <source>Dark, and from right to left</source>
        <translation>داكن، ومن اليمين إلى اليسار</translation>
    </message>
    <message>
        <source>These two switches are one target: the frame goes round both. This hint stays clear of the filter, so that you can go on typing.</source>
        <translation>هذان المفتاحان هدف واحد: يحيط الإطار بهما معًا. يبقى هذا التلميح بعيدًا عن حقل التصفية لتتمكن من متابعة الكتابة.</translation>
    </message>
    <message>
        <source>In your language</source>
        <translation>بلغتك</translation>
    </message>
    <message>
        <source>The texts change at once, those of this hint as well. Clicking what a hint points at takes you on, just as Next does.</source>
        <translation>تتغير النصوص فورًا، ونص هذا التلميح أيضًا. النقر على ما يشير إليه التلميح ينقلك إلى ما بعده، مثل زر التالي.</translation>
    </message>
    <message>
        <source>Open a page</source>
        <translation>فتح صفحة</translation>
    </message>
    <message>
        <source>Choose &quot;Walkthrough&quot; in the list. The last hint waits for that page to be opened.</source>
        <translation>اختر «جولة إرشادية» من القائمة. ينتظر التلميح الأخير فتح تلك الصفحة.</translation>
    </message>
    <message>
        <source>How the tour works</source>
        <translation>كيف تعمل الجولة</translation>
    </message>
    <message>
        <source>A walkthrough is a machine of named states. Here you see another one at work, and can drive it yourself.</source>
        <translation>الجولة الإرشادية آلة من حالات مسماة. ترى هنا آلة أخرى تعمل، ويمكنك قيادتها بنفسك.</translation>
    </message>
</context>
<context>
    <name>Gallery::WalkthroughPage</name>
    <message>
        <source>One target</source>
        <translation>هدف واحد</translation>
    </message>
    <message>
        <source>Press the button, or Next.</source>
        <translation>اضغط الزر أو التالي.</translation>
    </message>
    <message>
        <source>Two targets</source>
        <translation>هدفان</translation>
    </message>
    <message>
        <source>Hide one with the switches: the frame follows. Hide both, and the hint goes.</source>
        <translation>أخفِ أحدهما بالمفاتيح: يتبعه الإطار. أخفِ الاثنين فيختفي التلميح.</translation>
    </message>
    <message>
        <source>A small tour of its own. Start it, hide its targets, or enter a state by double-clicking it: the lists show the machine&apos;s groups, and what each hint still waits for.</source>
        <translation>جولة صغيرة مستقلة. ابدأها أو أخفِ أهدافها أو ادخل حالة بالنقر المزدوج عليها: تعرض القوائم مجموعات الآلة وما ينتظره كل تلميح.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>First lamp</source>
        <translation>المصباح الأول</translation>
    </message>
    <message>
        <source>Second lamp</source>
        <translation>المصباح الثاني</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>المجموعة</translation>
    </message>
    <message>
        <source>Active state</source>
        <translation>الحالة النشطة</translation>
    </message>
    <message>
        <source>Groups and states</source>
        <translation>المجموعات والحالات</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>التلميح</translation>
    </message>
    <message>
        <source>Unmet conditions</source>
        <translation>الشروط غير المستوفاة</translation>
    </message>
    <message>
        <source>Waits for</source>
        <translation>ينتظر</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>التلميحات</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>بدء الجولة</translation>
    </message>
    <message>
        <source>Stop the tour</source>
        <translation>إيقاف الجولة</translation>
    </message>
    <message>
        <source>Hints enabled</source>
        <translation>التلميحات مفعلة</translation>
    </message>
    <message>
        <source>Save is shown</source>
        <translation>إظهار «حفظ»</translation>
    </message>
    <message>
        <source>First lamp is shown</source>
        <translation>إظهار المصباح الأول</translation>
    </message>
    <message>
        <source>Second lamp is shown</source>
        <translation>إظهار المصباح الثاني</translation>
    </message>
    <message>
        <source>Hints avoid the list of hints</source>
        <translation>التلميحات تتجنب هذه القائمة</translation>
    </message>
    <message>
        <source>entered %1</source>
        <translation>دخول %1</translation>
    </message>
</context>
<context>
    <name>Gallery::WidgetRendererPage</name>
    <message>
        <source>The widgets are drawn into the picture beside them, and cut out of their window. Cut out, they still answer to the mouse.</source>
        <translation>تُرسم عناصر الواجهة هنا في الصورة المجاورة لها، وتُقتطع من نافذتها. وحتى بعد اقتطاعها تظل تستجيب للفأرة.</translation>
    </message>
    <message>
        <source>Compose</source>
        <translation>تركيب</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>زر</translation>
    </message>
    <message>
        <source>Check box</source>
        <translation>خانة اختيار</translation>
    </message>
</context>
</TS>
