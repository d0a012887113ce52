<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Gallery</name>
    <message>
        <source>Advanced colour picker</source>
        <translation>高级颜色选择器</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>组合框</translation>
    </message>
    <message>
        <source>Drop and drag</source>
        <translation>放下与拖动</translation>
    </message>
    <message>
        <source>Event helpers</source>
        <translation>事件助手</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>取色器</translation>
    </message>
    <message>
        <source>Formatting</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Frame over a window</source>
        <translation>窗口上的框</translation>
    </message>
    <message>
        <source>Labels and inputs</source>
        <translation>标签与输入</translation>
    </message>
    <message>
        <source>Named palette</source>
        <translation>命名调色板</translation>
    </message>
    <message>
        <source>Pens and lines</source>
        <translation>画笔与线条</translation>
    </message>
    <message>
        <source>Selection frames</source>
        <translation>选择框</translation>
    </message>
    <message>
        <source>Tiles and title bars</source>
        <translation>图块与标题栏</translation>
    </message>
    <message>
        <source>Walkthrough</source>
        <translation>导览</translation>
    </message>
    <message>
        <source>Widget renderer</source>
        <translation>控件渲染</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>文件对话框</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>任务栏</translation>
    </message>
</context>
<context>
    <name>Gallery::AdvancedColorPickerPage</name>
    <message>
        <source>Click a colour to open its popup; the note takes the new colour while you choose.</source>
        <translation>单击一种颜色以打开其弹出窗口；选择时便签会随之变为新颜色。</translation>
    </message>
    <message>
        <source>Buy milk, feed the cat</source>
        <translation>买牛奶，喂猫</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>墨水</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>记号笔</translation>
    </message>
    <message>
        <source>Drag a colour from the palette to one of the twelve slots above it. The slots are shared: open another picker and find the colour there.</source>
        <translation>将调色板中的颜色拖到其上方十二个格子之一。格子是共用的：打开另一个选择器，也能在那里找到该颜色。</translation>
    </message>
    <message>
        <source>Opacity of the marker</source>
        <translation>记号笔的不透明度</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Random colours</source>
        <translation>随机颜色</translation>
    </message>
    <message>
        <source>A colour that is set by the program makes no signal.</source>
        <translation>由程序设置的颜色不会发出信号。</translation>
    </message>
    <message>
        <source>Open popup here</source>
        <translation>在此打开弹出窗口</translation>
    </message>
</context>
<context>
    <name>Gallery::ComboBoxesPage</name>
    <message>
        <source>Combo boxes that are narrower than their items. Turn the wheel over the form, open the lists.</source>
        <translation>比其选项更窄的组合框。在表单上滚动滚轮，打开列表看看。</translation>
    </message>
    <message>
        <source>Narrow box</source>
        <translation>窄框</translation>
    </message>
    <message>
        <source>Elided text and wide popup</source>
        <translation>省略的文本与宽列表</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>No wheel in a scrolling form</source>
        <translation>滚动表单中不响应滚轮</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Box with separators</source>
        <translation>带分隔线的框</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>分隔线</translation>
    </message>
    <message>
        <source>A preset with a rather long name</source>
        <translation>一个名称相当长的预设</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>平静</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>明亮</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>夜晚</translation>
    </message>
    <message>
        <source>Preset panel</source>
        <translation>预设面板</translation>
    </message>
    <message>
        <source>Wide popup</source>
        <translation>宽列表</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>鼠标滚轮</translation>
    </message>
    <message>
        <source>Elide text</source>
        <translation>省略文本</translation>
    </message>
    <message>
        <source>Tool tip:</source>
        <translation>工具提示：</translation>
    </message>
    <message>
        <source>Styled separators</source>
        <translation>带样式的分隔线</translation>
    </message>
    <message>
        <source>Preset icon</source>
        <translation>预设图标</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>短</translation>
    </message>
    <message>
        <source>An item whose text is much longer than the box</source>
        <translation>一个文本比框长得多的选项</translation>
    </message>
    <message>
        <source>Another one that does not fit</source>
        <translation>另一个放不下的选项</translation>
    </message>
</context>
<context>
    <name>Gallery::DropAndDragPage</name>
    <message>
        <source>Drop files from a file manager: one observer takes pictures, the other texts, and each hears of everything that is dropped. Drag the panel by any point, its button included: what was dragged is not clicked.</source>
        <translation>从文件管理器放下文件：一个观察者接收图片，另一个接收文本，而两者都会得知放下的一切。可以拖动面板的任意一点，包括其按钮：被拖动的不会被单击。</translation>
    </message>
    <message>
        <source>Pictures are welcome</source>
        <translation>欢迎图片</translation>
    </message>
    <message>
        <source>Texts are welcome</source>
        <translation>欢迎文本</translation>
    </message>
    <message>
        <source>Drop pictures or texts here</source>
        <translation>将图片或文本放在此处</translation>
    </message>
    <message>
        <source>Drag me anywhere</source>
        <translation>拖到任何地方</translation>
    </message>
    <message>
        <source>Click me</source>
        <translation>点我</translation>
    </message>
</context>
<context>
    <name>Gallery::EventHelpersPage</name>
    <message>
        <source>Scribble on the pad: the lamps below show the signals that the helpers make of its events. Without propagation the signals still come, but the pad itself sees no mouse any more.</source>
        <translation>在画板上涂鸦：下方的灯显示助手由其事件产生的信号。不传播时信号仍会到来，但画板本身不再感知鼠标。</translation>
    </message>
    <message>
        <source>Scribble here</source>
        <translation>在此涂鸦</translation>
    </message>
    <message>
        <source>Events go on to the pad</source>
        <translation>事件继续传给画板</translation>
    </message>
    <message>
        <source>Hover events</source>
        <translation>悬停事件</translation>
    </message>
    <message>
        <source>Moves without a button</source>
        <translation>不按键的移动</translation>
    </message>
    <message>
        <source>Wipe the pad</source>
        <translation>擦除画板</translation>
    </message>
    <message>
        <source>Drop it here</source>
        <translation>放在此处</translation>
    </message>
    <message>
        <source>Drag this text</source>
        <translation>拖动此文本</translation>
    </message>
    <message>
        <source>Drop field is guarded</source>
        <translation>放置区受保护</translation>
    </message>
    <message>
        <source>Window stays on top</source>
        <translation>窗口置顶</translation>
    </message>
</context>
<context>
    <name>Gallery::EyedropperPage</name>
    <message>
        <source>Press the button, then click into the picture: the button takes the colour under the cursor. Any key picks as well; a click elsewhere ends it without a colour.</source>
        <translation>按下按钮，然后在图片中单击：按钮会取得光标下的颜色。按任意键也可取色；在别处单击则结束且不取色。</translation>
    </message>
    <message>
        <source>Pick a colour from the picture</source>
        <translation>从图片中取色</translation>
    </message>
    <message>
        <source>Button shows the colour</source>
        <translation>按钮显示颜色</translation>
    </message>
    <message>
        <source>Picture is the target</source>
        <translation>以图片为目标</translation>
    </message>
    <message>
        <source>Frame round the picture</source>
        <translation>图片周围的框</translation>
    </message>
    <message>
        <source>Pick without the button</source>
        <translation>不用按钮取色</translation>
    </message>
    <message>
        <source>The program waits for the colour.</source>
        <translation>程序在等待颜色。</translation>
    </message>
</context>
<context>
    <name>Gallery::FileDialogsPage</name>
    <message>
        <source>Each button calls the function of its name and shows what comes back: the result, string by string, and the filter that was written back. On Windows getOpen() shows the dialog of the system, which takes files and folders together.</source>
        <translation>每个按钮调用其同名函数并显示返回的内容：逐个字符串的结果，以及写回的筛选器。在 Windows 上，getOpen() 显示系统对话框，可同时选择文件和文件夹。</translation>
    </message>
    <message>
        <source>This disc is read-only: nothing can be written to it.</source>
        <translation>此光盘为只读：无法向其中写入任何内容。</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>结果(&amp;R)</translation>
    </message>
    <message>
        <source>Nothing was asked yet</source>
        <translation>尚未询问任何内容</translation>
    </message>
    <message>
        <source>Choose something</source>
        <translation>请选择</translation>
    </message>
    <message>
        <source>Images (*.jpg *.png);;Texts (*.txt *.md);;All files (*)</source>
        <translation>图片 (*.jpg *.png);;文本 (*.txt *.md);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选器</translation>
    </message>
    <message>
        <source>getOpen(): files</source>
        <translation>getOpen(): 文件</translation>
    </message>
    <message>
        <source>getOpen(): folders</source>
        <translation>getOpen(): 文件夹</translation>
    </message>
    <message>
        <source>getOpen(): several</source>
        <translation>getOpen(): 多个</translation>
    </message>
    <message>
        <source>An empty list</source>
        <translation>空列表</translation>
    </message>
    <message>
        <source>Filter written back: %1</source>
        <translation>写回的筛选器: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::FormattingPage</name>
    <message>
        <source>Format the sample with the two strips. Their icons come from the page&apos;s style sheet, which selects the buttons by their property &quot;styleTag&quot;.</source>
        <translation>用两个工具条设置示例的格式。其图标来自页面的样式表，样式表通过属性“styleTag”选择按钮。</translation>
    </message>
    <message>
        <source>The quick brown fox jumps over the lazy dog, and the dog, being lazy, lets it jump as often as it likes.</source>
        <translation>敏捷的棕色狐狸跳过懒狗，而狗因为懒，任它想跳多少次就跳多少次。</translation>
    </message>
    <message>
        <source>Plain font</source>
        <translation>普通字体</translation>
    </message>
    <message>
        <source>The program sets a font: a signal for each toggle that changes.</source>
        <translation>程序设置字体：每个改变的开关发出一个信号。</translation>
    </message>
    <message>
        <source>Set to left</source>
        <translation>设为左对齐</translation>
    </message>
    <message>
        <source>The program checks a button: no signal, and the sample stays as it is.</source>
        <translation>程序选中一个按钮：没有信号，示例保持不变。</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
</context>
<context>
    <name>Gallery::FrameOverWindowPage</name>
    <message>
        <source>The window below goes on living while the frame lies over it. In edit mode the mouse moves the frame; otherwise it reaches the window.</source>
        <translation>框覆盖时，下方的窗口照常工作。在编辑模式下鼠标移动框；否则鼠标作用于窗口。</translation>
    </message>
    <message>
        <source>Type here while edit mode is off</source>
        <translation>编辑模式关闭时在此输入</translation>
    </message>
    <message>
        <source>Press here while edit mode is off</source>
        <translation>编辑模式关闭时在此按下</translation>
    </message>
    <message>
        <source>A window with its own life</source>
        <translation>一个自行工作的窗口</translation>
    </message>
    <message>
        <source>From %1 %, %2 %: %3 % wide, %4 % high</source>
        <comment>position and size of the frame</comment>
        <translation>起点 %1 %, %2 %: 宽 %3 %, 高 %4 %</translation>
    </message>
    <message>
        <source>Edit mode</source>
        <translation>编辑模式</translation>
    </message>
    <message>
        <source>Keep the ratio</source>
        <translation>保持比例</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>工作区</translation>
    </message>
    <message>
        <source>Veil</source>
        <translation>遮罩</translation>
    </message>
</context>
<context>
    <name>Gallery::GalleryHint</name>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>暂不</translation>
    </message>
    <message>
        <source>Never again</source>
        <translation>不再显示</translation>
    </message>
</context>
<context>
    <name>Gallery::LabelsAndInputsPage</name>
    <message>
        <source>Drag the handle beside the column to narrow it: labels and the line edit elide their texts and tell the whole of them in tool tips. The line edit shows all of it while you edit.</source>
        <translation>拖动列旁边的手柄以收窄该列：标签和输入框会省略文本，并在工具提示中显示全文。编辑时输入框显示全文。</translation>
    </message>
    <message>
        <source>A file name that is much too long for a column as narrow as this one.txt</source>
        <translation>对于这样窄的列来说太长的文件名.txt</translation>
    </message>
    <message>
        <source>Mixed directions: %1, elided in order</source>
        <translation>混合方向: %1，按顺序省略</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>短</translation>
    </message>
    <message>
        <source>Drag the handle at the edge of this field.</source>
        <translation>拖动此区域边缘的手柄。</translation>
    </message>
    <message>
        <source>Press here, with any button</source>
        <translation>用任意键在此按下</translation>
    </message>
    <message>
        <source>Clipped text</source>
        <translation>省略的文本</translation>
    </message>
    <message>
        <source>A text that is shown whole while you edit it, and elided while you do not</source>
        <translation>编辑时完整显示、其余时候省略的文本</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Labels report presses</source>
        <translation>标签报告按下</translation>
    </message>
    <message>
        <source>Labels elide their texts</source>
        <translation>标签省略文本</translation>
    </message>
    <message>
        <source>at the end</source>
        <translation>在末尾</translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation>在中间</translation>
    </message>
    <message>
        <source>at the beginning</source>
        <translation>在开头</translation>
    </message>
    <message>
        <source>Elide</source>
        <translation>省略</translation>
    </message>
    <message>
        <source>What do you think of it?</source>
        <translation>您觉得怎么样？</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>占位文本</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Digits at most</source>
        <translation>最多位数</translation>
    </message>
</context>
<context>
    <name>Gallery::MainWindow</name>
    <message>
        <source>KQtUi gallery</source>
        <translation>KQtUi 展示</translation>
    </message>
    <message>
        <source>&amp;Find a page</source>
        <translation>查找页面(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Dark palette</source>
        <translation>深色调色板(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Right to left</source>
        <translation>从右到左(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>语言: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::NamedPalettePage</name>
    <message>
        <source>Click the button: a default colour, forty named colours, and a dialog behind &quot;More...&quot;.</source>
        <translation>单击按钮：一种默认颜色、四十种命名颜色，以及“更多...”后面的对话框。</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>While its popup is open the picker&apos;s property &quot;pressed&quot; is true: the page&apos;s style sheet gives it a thick border then.</source>
        <translation>弹出窗口打开时，选择器的属性“pressed”为真：页面的样式表会给它加上粗边框。</translation>
    </message>
    <message>
        <source>Colorized</source>
        <translation>着色</translation>
    </message>
    <message>
        <source>Dark popup</source>
        <translation>深色弹出窗口</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Make it the default</source>
        <translation>设为默认</translation>
    </message>
    <message>
        <source>The popup&apos;s &quot;Default&quot; button chooses this colour from now on.</source>
        <translation>弹出窗口的“默认”按钮从此选择这种颜色。</translation>
    </message>
</context>
<context>
    <name>Gallery::Page</name>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
</context>
<context>
    <name>Gallery::PageList</name>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Title or component</source>
        <translation>标题或组件</translation>
    </message>
</context>
<context>
    <name>Gallery::PensAndLinesPage</name>
    <message>
        <source>Pens, lines and opacity: each group draws what its boxes say.</source>
        <translation>画笔、线条与不透明度：每组按其框中的设置绘制。</translation>
    </message>
    <message>
        <source>Pen picker</source>
        <translation>画笔选择器</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>线型</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>线宽</translation>
    </message>
    <message>
        <source>Line style and line width</source>
        <translation>线型与线宽</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Opacity adapter</source>
        <translation>不透明度适配器</translation>
    </message>
    <message>
        <source>Value: %1</source>
        <translation>值: %1</translation>
    </message>
    <message>
        <source>Slider with a zero tick</source>
        <translation>带零刻度的滑块</translation>
    </message>
    <message>
        <source>Coloured tick</source>
        <translation>彩色刻度</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
</context>
<context>
    <name>Gallery::SelectionFramesPage</name>
    <message>
        <source>Drag the frames, their corners and their sides. The small picture is what the frames are rendered to, with its alpha.</source>
        <translation>拖动框及其角和边。小图是框渲染的结果，带有透明通道。</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>Holiday by the sea</source>
        <translation>海边假日</translation>
    </message>
    <message>
        <source>Picture keeps its ratio</source>
        <translation>图片保持比例</translation>
    </message>
    <message>
        <source>Region keeps its ratio</source>
        <translation>区域保持比例</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>工作区</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>透明度</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>填充</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>轮廓</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
</context>
<context>
    <name>Gallery::SignalLog</name>
    <message>
        <source>Signals appear here.</source>
        <translation>信号显示在此处。</translation>
    </message>
</context>
<context>
    <name>Gallery::TaskbarPage</name>
    <message>
        <source>Move the slider or press a button, and look at the taskbar or dock of your desktop: that begins an operation. Below stands what was asked for, and what is seen of it where.</source>
        <translation>移动滑块或按下按钮，然后查看桌面的任务栏或程序坞：操作就此开始。下方显示所请求的内容，以及在何处能看到什么。</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Windows 系统</translation>
    </message>
    <message>
        <source>The button of this window in the taskbar fills: green while the operation runs, yellow when it is paused, red when it was stopped. A busy one has a light that runs through it.</source>
        <translation>任务栏上此窗口的按钮会逐渐填满：操作进行时为绿色，暂停时为黄色，停止时为红色。进度不明时有光带掠过。</translation>
    </message>
    <message>
        <source>Linux</source>
        <translation>Linux 系统</translation>
    </message>
    <message>
        <source>The entry of this application has a bar, in docks that know its desktop file and show progress: those of KDE Plasma and Ubuntu, Dash to Dock, Plank and others. Busy is an empty bar, paused looks like running, and what was stopped asks for attention.</source>
        <translation>在识别其桌面文件并显示进度的程序坞中，此应用程序的条目会带有进度条：如 KDE Plasma 和 Ubuntu 的程序坞、Dash to Dock、Plank 等。进度不明时为空条，暂停看起来与运行相同，而已停止的会请求注意。</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>其他系统</translation>
    </message>
    <message>
        <source>Nothing is seen.</source>
        <translation>什么也看不到。</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>End the operation</source>
        <translation>结束操作</translation>
    </message>
    <message>
        <source>Desktop file</source>
        <translation>桌面文件</translation>
    </message>
    <message>
        <source>There is no operation.</source>
        <translation>没有操作。</translation>
    </message>
    <message>
        <source>The indicator is hidden.</source>
        <translation>指示器已隐藏。</translation>
    </message>
    <message>
        <source>The operation was stopped.</source>
        <translation>操作已停止。</translation>
    </message>
    <message>
        <source>The operation is paused.</source>
        <translation>操作已暂停。</translation>
    </message>
    <message>
        <source>The operation runs; how far it is nobody knows.</source>
        <translation>操作正在进行；进展到哪里无人知晓。</translation>
    </message>
    <message>
        <source>The operation runs.</source>
        <translation>操作正在进行。</translation>
    </message>
</context>
<context>
    <name>Gallery::TilesPage</name>
    <message>
        <source>Tiles with a star, a play button and a duration over a picture; and a panel whose title bar can be dragged, detached and closed.</source>
        <translation>图片上带有星标、播放按钮和时长的图块；以及一个标题栏可拖动、分离和关闭的面板。</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>日出</translation>
    </message>
    <message>
        <source>Noon</source>
        <translation>正午</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>日落</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>夜晚</translation>
    </message>
    <message>
        <source>Pin playlist</source>
        <translation>固定播放列表</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <translation>取消固定播放列表</translation>
    </message>
    <message>
        <source>Stars</source>
        <translation>星标</translation>
    </message>
    <message>
        <source>Play buttons</source>
        <translation>播放按钮</translation>
    </message>
    <message>
        <source>Clips can be played</source>
        <translation>剪辑可播放</translation>
    </message>
    <message>
        <source>Styled as floating</source>
        <translation>浮动样式</translation>
    </message>
    <message>
        <source>Show the panel</source>
        <translation>显示面板</translation>
    </message>
</context>
<context>
    <name>Gallery::Tour</name>
    <message>
        <source>Welcome to the gallery</source>
        <translation>欢迎来到展示</translation>
    </message>
    <message>
        <source>Every family of components has a page of its own, and all of them are alive. The tour shows you around in a minute.</source>
        <translation>每类组件都有自己的页面，而且都可以操作。导览用一分钟带您看一遍。</translation>
    </message>
    <message>
        <source>Find a page</source>
        <translation>查找页面</translation>
    </message>
    <message>
        <source>Type part of a title. The arrow keys move through the pages that are left.</source>
        <translation>输入标题的一部分。用方向键在剩下的页面间移动。</translation>
    </message>
    <message>
        <source>Dark, and from right to left</source>
        <translation>深色，以及从右到左</translation>
    </message>
    <message>
        <source>These two switches are one target: the frame goes round both. This hint stays clear of the filter, so that you can go on typing.</source>
        <translation>这两个开关是同一个目标：框围住它们两个。此提示不会遮住筛选框，您可以继续输入。</translation>
    </message>
    <message>
        <source>In your language</source>
        <translation>用您的语言</translation>
    </message>
    <message>
        <source>The texts change at once, those of this hint as well. Clicking what a hint points at takes you on, just as Next does.</source>
        <translation>文本会立即改变，此提示中的也一样。单击提示所指之处可继续前进，与“下一步”相同。</translation>
    </message>
    <message>
        <source>Open a page</source>
        <translation>打开页面</translation>
    </message>
    <message>
        <source>Choose &quot;Walkthrough&quot; in the list. The last hint waits for that page to be opened.</source>
        <translation>在列表中选择“导览”。最后一个提示会等待该页面打开。</translation>
    </message>
    <message>
        <source>How the tour works</source>
        <translation>导览的工作方式</translation>
    </message>
    <message>
        <source>A walkthrough is a machine of named states. Here you see another one at work, and can drive it yourself.</source>
        <translation>导览是一台由命名状态组成的机器。您在这里可以看到另一台在工作，并可亲自操作。</translation>
    </message>
</context>
<context>
    <name>Gallery::WalkthroughPage</name>
    <message>
        <source>One target</source>
        <translation>一个目标</translation>
    </message>
    <message>
        <source>Press the button, or Next.</source>
        <translation>按下按钮，或“下一步”。</translation>
    </message>
    <message>
        <source>Two targets</source>
        <translation>两个目标</translation>
    </message>
    <message>
        <source>Hide one with the switches: the frame follows. Hide both, and the hint goes.</source>
        <translation>用开关隐藏其中一个：框会跟随。两个都隐藏，提示就会消失。</translation>
    </message>
    <message>
        <source>A small tour of its own. Start it, hide its targets, or enter a state by double-clicking it: the lists show the machine&apos;s groups, and what each hint still waits for.</source>
        <translation>一个独立的小导览。启动它，隐藏其目标，或双击进入某个状态：列表显示机器的组，以及每个提示仍在等待什么。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>First lamp</source>
        <translation>第一盏灯</translation>
    </message>
    <message>
        <source>Second lamp</source>
        <translation>第二盏灯</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>Active state</source>
        <translation>活动状态</translation>
    </message>
    <message>
        <source>Groups and states</source>
        <translation>组与状态</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Unmet conditions</source>
        <translation>未满足的条件</translation>
    </message>
    <message>
        <source>Waits for</source>
        <translation>等待</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>开始导览</translation>
    </message>
    <message>
        <source>Stop the tour</source>
        <translation>停止导览</translation>
    </message>
    <message>
        <source>Hints enabled</source>
        <translation>启用提示</translation>
    </message>
    <message>
        <source>Save is shown</source>
        <translation>显示“保存”</translation>
    </message>
    <message>
        <source>First lamp is shown</source>
        <translation>显示第一盏灯</translation>
    </message>
    <message>
        <source>Second lamp is shown</source>
        <translation>显示第二盏灯</translation>
    </message>
    <message>
        <source>Hints avoid the list of hints</source>
        <translation>提示避开提示列表</translation>
    </message>
    <message>
        <source>entered %1</source>
        <translation>已进入 %1</translation>
    </message>
</context>
<context>
    <name>Gallery::WidgetRendererPage</name>
    <message>
        <source>The widgets are drawn into the picture beside them, and cut out of their window. Cut out, they still answer to the mouse.</source>
        <translation>控件被绘制到旁边的图片中，并从其窗口中挖去。挖去之后，它们仍响应鼠标。</translation>
    </message>
    <message>
        <source>Compose</source>
        <translation>合成</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>归还</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>Check box</source>
        <translation>复选框</translation>
    </message>
</context>
</TS>
