<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Gallery</name>
    <message>
        <source>Advanced colour picker</source>
        <translation>高度なカラーピッカー</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>コンボボックス</translation>
    </message>
    <message>
        <source>Drop and drag</source>
        <translation>ドロップとドラッグ</translation>
    </message>
    <message>
        <source>Event helpers</source>
        <translation>イベントヘルパー</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>スポイト</translation>
    </message>
    <message>
        <source>Formatting</source>
        <translation>書式設定</translation>
    </message>
    <message>
        <source>Frame over a window</source>
        <translation>ウィンドウ上の枠</translation>
    </message>
    <message>
        <source>Labels and inputs</source>
        <translation>ラベルと入力欄</translation>
    </message>
    <message>
        <source>Named palette</source>
        <translation>名前付きパレット</translation>
    </message>
    <message>
        <source>Pens and lines</source>
        <translation>ペンと線</translation>
    </message>
    <message>
        <source>Selection frames</source>
        <translation>選択枠</translation>
    </message>
    <message>
        <source>Tiles and title bars</source>
        <translation>タイルとタイトルバー</translation>
    </message>
    <message>
        <source>Walkthrough</source>
        <translation>ツアー</translation>
    </message>
    <message>
        <source>Widget renderer</source>
        <translation>ウィジェットの描画</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>ファイルダイアログ</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>タスクバー</translation>
    </message>
</context>
<context>
    <name>Gallery::AdvancedColorPickerPage</name>
    <message>
        <source>Click a colour to open its popup; the note takes the new colour while you choose.</source>
        <translation>色をクリックするとポップアップが開きます。選んでいる間、メモに新しい色が反映されます。</translation>
    </message>
    <message>
        <source>Buy milk, feed the cat</source>
        <translation>牛乳を買う、猫に餌をやる</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>紙</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>インク</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>マーカー</translation>
    </message>
    <message>
        <source>Drag a colour from the palette to one of the twelve slots above it. The slots are shared: open another picker and find the colour there.</source>
        <translation>パレットの色を、その上にある 12 個のスロットのどれかにドラッグしてください。スロットは共有です。別のピッカーを開くと、そこにもその色があります。</translation>
    </message>
    <message>
        <source>Opacity of the marker</source>
        <translation>マーカーの不透明度</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Random colours</source>
        <translation>ランダムな色</translation>
    </message>
    <message>
        <source>A colour that is set by the program makes no signal.</source>
        <translation>プログラムが設定した色ではシグナルは発生しません。</translation>
    </message>
    <message>
        <source>Open popup here</source>
        <translation>ここにポップアップを開く</translation>
    </message>
</context>
<context>
    <name>Gallery::ComboBoxesPage</name>
    <message>
        <source>Combo boxes that are narrower than their items. Turn the wheel over the form, open the lists.</source>
        <translation>項目より幅の狭いコンボボックスです。フォームの上でホイールを回し、一覧を開いてみてください。</translation>
    </message>
    <message>
        <source>Narrow box</source>
        <translation>幅の狭いボックス</translation>
    </message>
    <message>
        <source>Elided text and wide popup</source>
        <translation>省略されたテキストと幅の広いポップアップ</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>行 %1</translation>
    </message>
    <message>
        <source>No wheel in a scrolling form</source>
        <translation>スクロールするフォームでのホイール無効</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Box with separators</source>
        <translation>区切り線付きのボックス</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>区切り線</translation>
    </message>
    <message>
        <source>A preset with a rather long name</source>
        <translation>かなり長い名前のプリセット</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>落ち着いた</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>明るい</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>夜</translation>
    </message>
    <message>
        <source>Preset panel</source>
        <translation>プリセットパネル</translation>
    </message>
    <message>
        <source>Wide popup</source>
        <translation>幅の広いポップアップ</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>マウスホイール</translation>
    </message>
    <message>
        <source>Elide text</source>
        <translation>テキストを省略</translation>
    </message>
    <message>
        <source>Tool tip:</source>
        <translation>ツールチップ:</translation>
    </message>
    <message>
        <source>Styled separators</source>
        <translation>装飾された区切り線</translation>
    </message>
    <message>
        <source>Preset icon</source>
        <translation>プリセットのアイコン</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>短い</translation>
    </message>
    <message>
        <source>An item whose text is much longer than the box</source>
        <translation>ボックスよりずっと長いテキストの項目</translation>
    </message>
    <message>
        <source>Another one that does not fit</source>
        <translation>収まりきらないもう一つの項目</translation>
    </message>
</context>
<context>
    <name>Gallery::DropAndDragPage</name>
    <message>
        <source>Drop files from a file manager: one observer takes pictures, the other texts, and each hears of everything that is dropped. Drag the panel by any point, its button included: what was dragged is not clicked.</source>
        <translation>ファイルマネージャーからファイルをドロップしてください。一方のオブザーバーは画像を、もう一方はテキストを受け取り、どちらもドロップされたすべてを知らされます。パネルは、ボタンも含めてどこをつかんでもドラッグできます。ドラッグしたものはクリックされません。</translation>
    </message>
    <message>
        <source>Pictures are welcome</source>
        <translation>画像を歓迎します</translation>
    </message>
    <message>
        <source>Texts are welcome</source>
        <translation>テキストを歓迎します</translation>
    </message>
    <message>
        <source>Drop pictures or texts here</source>
        <translation>ここに画像かテキストをドロップ</translation>
    </message>
    <message>
        <source>Drag me anywhere</source>
        <translation>どこでもドラッグできます</translation>
    </message>
    <message>
        <source>Click me</source>
        <translation>クリックしてください</translation>
    </message>
</context>
<context>
    <name>Gallery::EventHelpersPage</name>
    <message>
        <source>Scribble on the pad: the lamps below show the signals that the helpers make of its events. Without propagation the signals still come, but the pad itself sees no mouse any more.</source>
        <translation>パッドに落書きしてください。下のランプは、ヘルパーがパッドのイベントから作るシグナルを示します。伝播を止めてもシグナルは届きますが、パッド自体にはマウスが見えなくなります。</translation>
    </message>
    <message>
        <source>Scribble here</source>
        <translation>ここに落書き</translation>
    </message>
    <message>
        <source>Events go on to the pad</source>
        <translation>イベントをパッドにも渡す</translation>
    </message>
    <message>
        <source>Hover events</source>
        <translation>ホバーイベント</translation>
    </message>
    <message>
        <source>Moves without a button</source>
        <translation>ボタンを押さない移動</translation>
    </message>
    <message>
        <source>Wipe the pad</source>
        <translation>パッドを消す</translation>
    </message>
    <message>
        <source>Drop it here</source>
        <translation>ここにドロップ</translation>
    </message>
    <message>
        <source>Drag this text</source>
        <translation>このテキストをドラッグ</translation>
    </message>
    <message>
        <source>Drop field is guarded</source>
        <translation>ドロップ欄を保護</translation>
    </message>
    <message>
        <source>Window stays on top</source>
        <translation>ウィンドウを常に手前に表示</translation>
    </message>
</context>
<context>
    <name>Gallery::EyedropperPage</name>
    <message>
        <source>Press the button, then click into the picture: the button takes the colour under the cursor. Any key picks as well; a click elsewhere ends it without a colour.</source>
        <translation>ボタンを押してから画像の中をクリックしてください。ボタンがカーソルの下の色になります。どのキーでも選べます。ほかの場所をクリックすると、色を選ばずに終わります。</translation>
    </message>
    <message>
        <source>Pick a colour from the picture</source>
        <translation>画像から色を選ぶ</translation>
    </message>
    <message>
        <source>Button shows the colour</source>
        <translation>ボタンに色を表示</translation>
    </message>
    <message>
        <source>Picture is the target</source>
        <translation>画像を対象にする</translation>
    </message>
    <message>
        <source>Frame round the picture</source>
        <translation>画像を囲む枠</translation>
    </message>
    <message>
        <source>Pick without the button</source>
        <translation>ボタンを使わずに選ぶ</translation>
    </message>
    <message>
        <source>The program waits for the colour.</source>
        <translation>プログラムは色を待っています。</translation>
    </message>
</context>
<context>
    <name>Gallery::FileDialogsPage</name>
    <message>
        <source>Each button calls the function of its name and shows what comes back: the result, string by string, and the filter that was written back. On Windows getOpen() shows the dialog of the system, which takes files and folders together.</source>
        <translation>各ボタンはその名前の関数を呼び出し、戻ってきたものを示します。文字列ごとの結果と、書き戻されたフィルターです。Windows では getOpen() がシステムのダイアログを表示し、ファイルとフォルダーを一緒に選べます。</translation>
    </message>
    <message>
        <source>This disc is read-only: nothing can be written to it.</source>
        <translation>このディスクは読み取り専用で、何も書き込めません。</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>結果(&amp;R)</translation>
    </message>
    <message>
        <source>Nothing was asked yet</source>
        <translation>まだ何も尋ねていません</translation>
    </message>
    <message>
        <source>Choose something</source>
        <translation>何か選んでください</translation>
    </message>
    <message>
        <source>Images (*.jpg *.png);;Texts (*.txt *.md);;All files (*)</source>
        <translation>画像 (*.jpg *.png);;テキスト (*.txt *.md);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>getOpen(): files</source>
        <translation>getOpen(): ファイル</translation>
    </message>
    <message>
        <source>getOpen(): folders</source>
        <translation>getOpen(): フォルダー</translation>
    </message>
    <message>
        <source>getOpen(): several</source>
        <translation>getOpen(): 複数</translation>
    </message>
    <message>
        <source>An empty list</source>
        <translation>空のリスト</translation>
    </message>
    <message>
        <source>Filter written back: %1</source>
        <translation>書き戻されたフィルター: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::FormattingPage</name>
    <message>
        <source>Format the sample with the two strips. Their icons come from the page&apos;s style sheet, which selects the buttons by their property &quot;styleTag&quot;.</source>
        <translation>2 本のバーで見本の書式を設定してください。アイコンはページのスタイルシートに由来し、「styleTag」プロパティでボタンを選んでいます。</translation>
    </message>
    <message>
        <source>The quick brown fox jumps over the lazy dog, and the dog, being lazy, lets it jump as often as it likes.</source>
        <translation>すばやい茶色の狐がのろまな犬を飛び越え、犬はのろまなので、狐に好きなだけ飛ばせておきます。</translation>
    </message>
    <message>
        <source>Plain font</source>
        <translation>標準のフォント</translation>
    </message>
    <message>
        <source>The program sets a font: a signal for each toggle that changes.</source>
        <translation>プログラムがフォントを設定します。変化したボタンごとにシグナルが一つ発生します。</translation>
    </message>
    <message>
        <source>Set to left</source>
        <translation>左揃えに設定</translation>
    </message>
    <message>
        <source>The program checks a button: no signal, and the sample stays as it is.</source>
        <translation>プログラムがボタンを選択します。シグナルは発生せず、見本はそのままです。</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
</context>
<context>
    <name>Gallery::FrameOverWindowPage</name>
    <message>
        <source>The window below goes on living while the frame lies over it. In edit mode the mouse moves the frame; otherwise it reaches the window.</source>
        <translation>枠が重なっている間も、下のウィンドウは動き続けます。編集モードではマウスで枠が動き、それ以外ではマウスはウィンドウに届きます。</translation>
    </message>
    <message>
        <source>Type here while edit mode is off</source>
        <translation>編集モードがオフのときにここに入力</translation>
    </message>
    <message>
        <source>Press here while edit mode is off</source>
        <translation>編集モードがオフのときにここを押す</translation>
    </message>
    <message>
        <source>A window with its own life</source>
        <translation>独立して動くウィンドウ</translation>
    </message>
    <message>
        <source>From %1 %, %2 %: %3 % wide, %4 % high</source>
        <comment>position and size of the frame</comment>
        <translation>位置 %1 %, %2 %: 幅 %3 %, 高さ %4 %</translation>
    </message>
    <message>
        <source>Edit mode</source>
        <translation>編集モード</translation>
    </message>
    <message>
        <source>Keep the ratio</source>
        <translation>縦横比を維持</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>作業領域</translation>
    </message>
    <message>
        <source>Veil</source>
        <translation>ベール</translation>
    </message>
</context>
<context>
    <name>Gallery::GalleryHint</name>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>今はしない</translation>
    </message>
    <message>
        <source>Never again</source>
        <translation>今後表示しない</translation>
    </message>
</context>
<context>
    <name>Gallery::LabelsAndInputsPage</name>
    <message>
        <source>Drag the handle beside the column to narrow it: labels and the line edit elide their texts and tell the whole of them in tool tips. The line edit shows all of it while you edit.</source>
        <translation>列の横にあるハンドルをドラッグして、列を狭めてください。ラベルと入力欄はテキストを省略し、全文をツールチップで示します。入力欄は編集中に全文を表示します。</translation>
    </message>
    <message>
        <source>A file name that is much too long for a column as narrow as this one.txt</source>
        <translation>この列のように狭い列にはあまりにも長すぎるファイル名.txt</translation>
    </message>
    <message>
        <source>Mixed directions: %1, elided in order</source>
        <translation>混在する方向: %1、順序どおりに省略</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>短い</translation>
    </message>
    <message>
        <source>Drag the handle at the edge of this field.</source>
        <translation>この欄の端にあるハンドルをドラッグしてください。</translation>
    </message>
    <message>
        <source>Press here, with any button</source>
        <translation>どのボタンでもここを押す</translation>
    </message>
    <message>
        <source>Clipped text</source>
        <translation>省略されたテキスト</translation>
    </message>
    <message>
        <source>A text that is shown whole while you edit it, and elided while you do not</source>
        <translation>編集中は全文が表示され、それ以外では省略されるテキスト</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Labels report presses</source>
        <translation>ラベルが押下を通知</translation>
    </message>
    <message>
        <source>Labels elide their texts</source>
        <translation>ラベルがテキストを省略</translation>
    </message>
    <message>
        <source>at the end</source>
        <translation>末尾</translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>at the beginning</source>
        <translation>先頭</translation>
    </message>
    <message>
        <source>Elide</source>
        <translation>省略</translation>
    </message>
    <message>
        <source>What do you think of it?</source>
        <translation>どう思いますか?</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>プレースホルダー</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>Digits at most</source>
        <translation>最大桁数</translation>
    </message>
</context>
<context>
    <name>Gallery::MainWindow</name>
    <message>
        <source>KQtUi gallery</source>
        <translation>KQtUi ギャラリー</translation>
    </message>
    <message>
        <source>&amp;Find a page</source>
        <translation>ページを検索(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Dark palette</source>
        <translation>暗いパレット(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Right to left</source>
        <translation>右から左(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>言語: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::NamedPalettePage</name>
    <message>
        <source>Click the button: a default colour, forty named colours, and a dialog behind &quot;More...&quot;.</source>
        <translation>ボタンをクリックしてください。既定の色、40 色の名前付きの色、そして「その他...」の奥にダイアログがあります。</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>While its popup is open the picker&apos;s property &quot;pressed&quot; is true: the page&apos;s style sheet gives it a thick border then.</source>
        <translation>ポップアップが開いている間、ピッカーの「pressed」プロパティは true になり、ページのスタイルシートが太い枠を付けます。</translation>
    </message>
    <message>
        <source>Colorized</source>
        <translation>着色</translation>
    </message>
    <message>
        <source>Dark popup</source>
        <translation>暗いポップアップ</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Make it the default</source>
        <translation>既定にする</translation>
    </message>
    <message>
        <source>The popup&apos;s &quot;Default&quot; button chooses this colour from now on.</source>
        <translation>ポップアップの「既定」ボタンは、以後この色を選びます。</translation>
    </message>
</context>
<context>
    <name>Gallery::Page</name>
    <message>
        <source>Properties</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>シグナル</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
</context>
<context>
    <name>Gallery::PageList</name>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Title or component</source>
        <translation>タイトルまたはコンポーネント</translation>
    </message>
</context>
<context>
    <name>Gallery::PensAndLinesPage</name>
    <message>
        <source>Pens, lines and opacity: each group draws what its boxes say.</source>
        <translation>ペン、線、不透明度。各グループはボックスの内容どおりに描かれます。</translation>
    </message>
    <message>
        <source>Pen picker</source>
        <translation>ペンピッカー</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>線のスタイル</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>線の太さ</translation>
    </message>
    <message>
        <source>Line style and line width</source>
        <translation>線のスタイルと太さ</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Opacity adapter</source>
        <translation>不透明度アダプター</translation>
    </message>
    <message>
        <source>Value: %1</source>
        <translation>値: %1</translation>
    </message>
    <message>
        <source>Slider with a zero tick</source>
        <translation>ゼロ目盛り付きスライダー</translation>
    </message>
    <message>
        <source>Coloured tick</source>
        <translation>色付きの目盛り</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
</context>
<context>
    <name>Gallery::SelectionFramesPage</name>
    <message>
        <source>Drag the frames, their corners and their sides. The small picture is what the frames are rendered to, with its alpha.</source>
        <translation>枠とその角や辺をドラッグしてください。小さい画像は、枠をアルファ付きで描画した結果です。</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>範囲</translation>
    </message>
    <message>
        <source>Holiday by the sea</source>
        <translation>海辺の休日</translation>
    </message>
    <message>
        <source>Picture keeps its ratio</source>
        <translation>画像の縦横比を維持</translation>
    </message>
    <message>
        <source>Region keeps its ratio</source>
        <translation>範囲の縦横比を維持</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>作業領域</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>透明度</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>塗りつぶし</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>輪郭</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>フォント</translation>
    </message>
</context>
<context>
    <name>Gallery::SignalLog</name>
    <message>
        <source>Signals appear here.</source>
        <translation>シグナルはここに表示されます。</translation>
    </message>
</context>
<context>
    <name>Gallery::TaskbarPage</name>
    <message>
        <source>Move the slider or press a button, and look at the taskbar or dock of your desktop: that begins an operation. Below stands what was asked for, and what is seen of it where.</source>
        <translation>スライダーを動かすかボタンを押して、デスクトップのタスクバーやドックを見てください。それで処理が始まります。下には、要求した内容と、どこで何が見えるかが示されます。</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Windows の場合</translation>
    </message>
    <message>
        <source>The button of this window in the taskbar fills: green while the operation runs, yellow when it is paused, red when it was stopped. A busy one has a light that runs through it.</source>
        <translation>タスクバーにあるこのウィンドウのボタンが塗られていきます。実行中は緑、一時停止中は黄、停止したときは赤です。進捗が不明なときは光が流れます。</translation>
    </message>
    <message>
        <source>Linux</source>
        <translation>Linux の場合</translation>
    </message>
    <message>
        <source>The entry of this application has a bar, in docks that know its desktop file and show progress: those of KDE Plasma and Ubuntu, Dash to Dock, Plank and others. Busy is an empty bar, paused looks like running, and what was stopped asks for attention.</source>
        <translation>デスクトップファイルを認識して進捗を表示するドックでは、このアプリケーションの項目にバーが付きます。KDE Plasma、Ubuntu、Dash to Dock、Plank などのドックです。進捗が不明なときは空のバーで、一時停止中は実行中と同じに見え、停止したものは注意を促します。</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>その他の環境</translation>
    </message>
    <message>
        <source>Nothing is seen.</source>
        <translation>何も表示されません。</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進捗</translation>
    </message>
    <message>
        <source>End the operation</source>
        <translation>処理を終了</translation>
    </message>
    <message>
        <source>Desktop file</source>
        <translation>デスクトップファイル</translation>
    </message>
    <message>
        <source>There is no operation.</source>
        <translation>処理はありません。</translation>
    </message>
    <message>
        <source>The indicator is hidden.</source>
        <translation>表示は隠されています。</translation>
    </message>
    <message>
        <source>The operation was stopped.</source>
        <translation>処理は停止されました。</translation>
    </message>
    <message>
        <source>The operation is paused.</source>
        <translation>処理は一時停止中です。</translation>
    </message>
    <message>
        <source>The operation runs; how far it is nobody knows.</source>
        <translation>処理は実行中ですが、どこまで進んだかは不明です。</translation>
    </message>
    <message>
        <source>The operation runs.</source>
        <translation>処理は実行中です。</translation>
    </message>
</context>
<context>
    <name>Gallery::TilesPage</name>
    <message>
        <source>Tiles with a star, a play button and a duration over a picture; and a panel whose title bar can be dragged, detached and closed.</source>
        <translation>画像の上に星、再生ボタン、再生時間が重なるタイルと、タイトルバーをドラッグしたり、切り離したり、閉じたりできるパネルです。</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>日の出</translation>
    </message>
    <message>
        <source>Noon</source>
        <translation>正午</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>日没</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>夜</translation>
    </message>
    <message>
        <source>Pin playlist</source>
        <translation>再生リストを固定</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <translation>再生リストの固定を解除</translation>
    </message>
    <message>
        <source>Stars</source>
        <translation>星</translation>
    </message>
    <message>
        <source>Play buttons</source>
        <translation>再生ボタン</translation>
    </message>
    <message>
        <source>Clips can be played</source>
        <translation>クリップを再生可能</translation>
    </message>
    <message>
        <source>Styled as floating</source>
        <translation>フローティングのスタイル</translation>
    </message>
    <message>
        <source>Show the panel</source>
        <translation>パネルを表示</translation>
    </message>
</context>
<context>
    <name>Gallery::Tour</name>
    <message>
        <source>Welcome to the gallery</source>
        <translation>ギャラリーへようこそ</translation>
    </message>
    <message>
        <source>Every family of components has a page of its own, and all of them are alive. The tour shows you around in a minute.</source>
        <translation>コンポーネントの種類ごとにページがあり、どれも実際に動きます。ツアーなら 1 分で一通りご案内します。</translation>
    </message>
    <message>
        <source>Find a page</source>
        <translation>ページを探す</translation>
    </message>
    <message>
        <source>Type part of a title. The arrow keys move through the pages that are left.</source>
        <translation>タイトルの一部を入力してください。矢印キーで残ったページを移動できます。</translation>
    </message>
    <message>
        <source>Dark, and from right to left</source>
        <translation>暗く、そして右から左へ</translation>
    </message>
    <message>
        <source>These two switches are one target: the frame goes round both. This hint stays clear of the filter, so that you can go on typing.</source>
        <translation>この 2 つのスイッチは 1 つのターゲットで、枠は両方を囲みます。このヒントは絞り込み欄を隠さないので、入力を続けられます。</translation>
    </message>
    <message>
        <source>In your language</source>
        <translation>あなたの言語で</translation>
    </message>
    <message>
        <source>The texts change at once, those of this hint as well. Clicking what a hint points at takes you on, just as Next does.</source>
        <translation>テキストはすぐに切り替わります。このヒントも同じです。ヒントが指すものをクリックすると、「次へ」と同じように先へ進みます。</translation>
    </message>
    <message>
        <source>Open a page</source>
        <translation>ページを開く</translation>
    </message>
    <message>
        <source>Choose &quot;Walkthrough&quot; in the list. The last hint waits for that page to be opened.</source>
        <translation>一覧から「ツアー」を選んでください。最後のヒントは、そのページが開かれるのを待っています。</translation>
    </message>
    <message>
        <source>How the tour works</source>
        <translation>ツアーのしくみ</translation>
    </message>
    <message>
        <source>A walkthrough is a machine of named states. Here you see another one at work, and can drive it yourself.</source>
        <translation>ツアーは名前付きの状態からなる機械です。ここでは別のツアーが動く様子を見て、自分で操作できます。</translation>
    </message>
</context>
<context>
    <name>Gallery::WalkthroughPage</name>
    <message>
        <source>One target</source>
        <translation>1 つのターゲット</translation>
    </message>
    <message>
        <source>Press the button, or Next.</source>
        <translation>ボタンか「次へ」を押してください。</translation>
    </message>
    <message>
        <source>Two targets</source>
        <translation>2 つのターゲット</translation>
    </message>
    <message>
        <source>Hide one with the switches: the frame follows. Hide both, and the hint goes.</source>
        <translation>スイッチで一方を隠すと、枠が追従します。両方を隠すと、ヒントは消えます。</translation>
    </message>
    <message>
        <source>A small tour of its own. Start it, hide its targets, or enter a state by double-clicking it: the lists show the machine&apos;s groups, and what each hint still waits for.</source>
        <translation>それ自体が小さなツアーです。開始したり、ターゲットを隠したり、ダブルクリックで状態に入ったりしてください。一覧には機械のグループと、各ヒントがまだ待っているものが表示されます。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>First lamp</source>
        <translation>1 つ目のランプ</translation>
    </message>
    <message>
        <source>Second lamp</source>
        <translation>2 つ目のランプ</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Active state</source>
        <translation>アクティブな状態</translation>
    </message>
    <message>
        <source>Groups and states</source>
        <translation>グループと状態</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>ヒント</translation>
    </message>
    <message>
        <source>Unmet conditions</source>
        <translation>満たされていない条件</translation>
    </message>
    <message>
        <source>Waits for</source>
        <translation>待機対象</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>ヒント</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>ツアーを開始</translation>
    </message>
    <message>
        <source>Stop the tour</source>
        <translation>ツアーを停止</translation>
    </message>
    <message>
        <source>Hints enabled</source>
        <translation>ヒントを有効にする</translation>
    </message>
    <message>
        <source>Save is shown</source>
        <translation>「保存」を表示</translation>
    </message>
    <message>
        <source>First lamp is shown</source>
        <translation>1 つ目のランプを表示</translation>
    </message>
    <message>
        <source>Second lamp is shown</source>
        <translation>2 つ目のランプを表示</translation>
    </message>
    <message>
        <source>Hints avoid the list of hints</source>
        <translation>ヒントの一覧を避けて表示</translation>
    </message>
    <message>
        <source>entered %1</source>
        <translation>%1 に入りました</translation>
    </message>
</context>
<context>
    <name>Gallery::WidgetRendererPage</name>
    <message>
        <source>The widgets are drawn into the picture beside them, and cut out of their window. Cut out, they still answer to the mouse.</source>
        <translation>ウィジェットは隣の画像に描画され、ウィンドウから切り抜かれます。切り抜かれても、マウスに反応します。</translation>
    </message>
    <message>
        <source>Compose</source>
        <translation>合成</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>ボタン</translation>
    </message>
    <message>
        <source>Check box</source>
        <translation>チェックボックス</translation>
    </message>
</context>
</TS>
