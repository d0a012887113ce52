<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Gallery</name>
    <message>
        <source>Advanced colour picker</source>
        <translation>Seletor de cor avançado</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>Caixas de combinação</translation>
    </message>
    <message>
        <source>Drop and drag</source>
        <translation>Soltar e arrastar</translation>
    </message>
    <message>
        <source>Event helpers</source>
        <translation>Auxiliares de eventos</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Conta-gotas</translation>
    </message>
    <message>
        <source>Formatting</source>
        <translation>Formatação</translation>
    </message>
    <message>
        <source>Frame over a window</source>
        <translation>Moldura sobre uma janela</translation>
    </message>
    <message>
        <source>Labels and inputs</source>
        <translation>Rótulos e entradas</translation>
    </message>
    <message>
        <source>Named palette</source>
        <translation>Paleta com nomes</translation>
    </message>
    <message>
        <source>Pens and lines</source>
        <translation>Canetas e linhas</translation>
    </message>
    <message>
        <source>Selection frames</source>
        <translation>Molduras de seleção</translation>
    </message>
    <message>
        <source>Tiles and title bars</source>
        <translation>Blocos e barras de título</translation>
    </message>
    <message>
        <source>Walkthrough</source>
        <translation>Tour guiado</translation>
    </message>
    <message>
        <source>Widget renderer</source>
        <translation>Renderização de widgets</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>Caixas de diálogo de arquivos</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>Barra de tarefas</translation>
    </message>
</context>
<context>
    <name>Gallery::AdvancedColorPickerPage</name>
    <message>
        <source>Click a colour to open its popup; the note takes the new colour while you choose.</source>
        <translation>Clique em uma cor para abrir a janela dela; a nota recebe a nova cor enquanto você escolhe.</translation>
    </message>
    <message>
        <source>Buy milk, feed the cat</source>
        <translation>Comprar leite, alimentar o gato</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Tinta</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Marcador</translation>
    </message>
    <message>
        <source>Drag a colour from the palette to one of the twelve slots above it. The slots are shared: open another picker and find the colour there.</source>
        <translation>Arraste uma cor da paleta para um dos doze espaços acima dela. Os espaços são compartilhados: abra outro seletor e encontre a cor lá.</translation>
    </message>
    <message>
        <source>Opacity of the marker</source>
        <translation>Opacidade do marcador</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Random colours</source>
        <translation>Cores aleatórias</translation>
    </message>
    <message>
        <source>A colour that is set by the program makes no signal.</source>
        <translation>Uma cor definida pelo programa não emite sinal.</translation>
    </message>
    <message>
        <source>Open popup here</source>
        <translation>Abrir a janela aqui</translation>
    </message>
</context>
<context>
    <name>Gallery::ComboBoxesPage</name>
    <message>
        <source>Combo boxes that are narrower than their items. Turn the wheel over the form, open the lists.</source>
        <translation>Caixas de combinação mais estreitas que seus itens. Gire a roda sobre o formulário, abra as listas.</translation>
    </message>
    <message>
        <source>Narrow box</source>
        <translation>Caixa estreita</translation>
    </message>
    <message>
        <source>Elided text and wide popup</source>
        <translation>Texto abreviado e lista larga</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Linha %1</translation>
    </message>
    <message>
        <source>No wheel in a scrolling form</source>
        <translation>Sem roda em um formulário com rolagem</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Box with separators</source>
        <translation>Caixa com separadores</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>Separadores</translation>
    </message>
    <message>
        <source>A preset with a rather long name</source>
        <translation>Uma predefinição com um nome bem longo</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Predefinições</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>Calmo</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noite</translation>
    </message>
    <message>
        <source>Preset panel</source>
        <translation>Painel de predefinições</translation>
    </message>
    <message>
        <source>Wide popup</source>
        <translation>Lista larga</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Roda do mouse</translation>
    </message>
    <message>
        <source>Elide text</source>
        <translation>Abreviar o texto</translation>
    </message>
    <message>
        <source>Tool tip:</source>
        <translation>Dica:</translation>
    </message>
    <message>
        <source>Styled separators</source>
        <translation>Separadores com estilo</translation>
    </message>
    <message>
        <source>Preset icon</source>
        <translation>Ícone da predefinição</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Curto</translation>
    </message>
    <message>
        <source>An item whose text is much longer than the box</source>
        <translation>Um item cujo texto é muito mais longo que a caixa</translation>
    </message>
    <message>
        <source>Another one that does not fit</source>
        <translation>Outro que não cabe</translation>
    </message>
</context>
<context>
    <name>Gallery::DropAndDragPage</name>
    <message>
        <source>Drop files from a file manager: one observer takes pictures, the other texts, and each hears of everything that is dropped. Drag the panel by any point, its button included: what was dragged is not clicked.</source>
        <translation>Solte arquivos de um gerenciador de arquivos: um observador recebe imagens, o outro textos, e cada um fica sabendo de tudo que é solto. Arraste o painel por qualquer ponto, inclusive pelo botão: o que foi arrastado não é clicado.</translation>
    </message>
    <message>
        <source>Pictures are welcome</source>
        <translation>Imagens são bem-vindas</translation>
    </message>
    <message>
        <source>Texts are welcome</source>
        <translation>Textos são bem-vindos</translation>
    </message>
    <message>
        <source>Drop pictures or texts here</source>
        <translation>Solte imagens ou textos aqui</translation>
    </message>
    <message>
        <source>Drag me anywhere</source>
        <translation>Arraste-me por qualquer ponto</translation>
    </message>
    <message>
        <source>Click me</source>
        <translation>Clique em mim</translation>
    </message>
</context>
<context>
    <name>Gallery::EventHelpersPage</name>
    <message>
        <source>Scribble on the pad: the lamps below show the signals that the helpers make of its events. Without propagation the signals still come, but the pad itself sees no mouse any more.</source>
        <translation>Rabisque no bloco: as lâmpadas abaixo mostram os sinais que os auxiliares criam com os eventos dele. Sem propagação os sinais ainda chegam, mas o próprio bloco não vê mais o mouse.</translation>
    </message>
    <message>
        <source>Scribble here</source>
        <translation>Rabisque aqui</translation>
    </message>
    <message>
        <source>Events go on to the pad</source>
        <translation>Os eventos chegam ao bloco</translation>
    </message>
    <message>
        <source>Hover events</source>
        <translation>Eventos de passagem do mouse</translation>
    </message>
    <message>
        <source>Moves without a button</source>
        <translation>Movimentos sem botão</translation>
    </message>
    <message>
        <source>Wipe the pad</source>
        <translation>Limpar o bloco</translation>
    </message>
    <message>
        <source>Drop it here</source>
        <translation>Solte-o aqui</translation>
    </message>
    <message>
        <source>Drag this text</source>
        <translation>Arraste este texto</translation>
    </message>
    <message>
        <source>Drop field is guarded</source>
        <translation>O campo de destino está protegido</translation>
    </message>
    <message>
        <source>Window stays on top</source>
        <translation>A janela fica sempre visível</translation>
    </message>
</context>
<context>
    <name>Gallery::EyedropperPage</name>
    <message>
        <source>Press the button, then click into the picture: the button takes the colour under the cursor. Any key picks as well; a click elsewhere ends it without a colour.</source>
        <translation>Pressione o botão e clique na imagem: o botão recebe a cor sob o cursor. Qualquer tecla também serve; um clique em outro lugar termina sem cor.</translation>
    </message>
    <message>
        <source>Pick a colour from the picture</source>
        <translation>Pegar uma cor da imagem</translation>
    </message>
    <message>
        <source>Button shows the colour</source>
        <translation>O botão mostra a cor</translation>
    </message>
    <message>
        <source>Picture is the target</source>
        <translation>A imagem é o alvo</translation>
    </message>
    <message>
        <source>Frame round the picture</source>
        <translation>Moldura em volta da imagem</translation>
    </message>
    <message>
        <source>Pick without the button</source>
        <translation>Pegar sem o botão</translation>
    </message>
    <message>
        <source>The program waits for the colour.</source>
        <translation>O programa espera pela cor.</translation>
    </message>
</context>
<context>
    <name>Gallery::FileDialogsPage</name>
    <message>
        <source>Each button calls the function of its name and shows what comes back: the result, string by string, and the filter that was written back. On Windows getOpen() shows the dialog of the system, which takes files and folders together.</source>
        <translation>Cada botão chama a função do seu nome e mostra o que ela devolve: o resultado, texto a texto, e o filtro escrito de volta. No Windows, getOpen() mostra a caixa de diálogo do sistema, que aceita arquivos e pastas ao mesmo tempo.</translation>
    </message>
    <message>
        <source>This disc is read-only: nothing can be written to it.</source>
        <translation>Este disco é somente leitura: nada pode ser gravado nele.</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>&amp;Resultado</translation>
    </message>
    <message>
        <source>Nothing was asked yet</source>
        <translation>Nada foi perguntado ainda</translation>
    </message>
    <message>
        <source>Choose something</source>
        <translation>Escolha algo</translation>
    </message>
    <message>
        <source>Images (*.jpg *.png);;Texts (*.txt *.md);;All files (*)</source>
        <translation>Imagens (*.jpg *.png);;Textos (*.txt *.md);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>getOpen(): files</source>
        <translation>getOpen(): arquivos</translation>
    </message>
    <message>
        <source>getOpen(): folders</source>
        <translation>getOpen(): pastas</translation>
    </message>
    <message>
        <source>getOpen(): several</source>
        <translation>getOpen(): vários</translation>
    </message>
    <message>
        <source>An empty list</source>
        <translation>Uma lista vazia</translation>
    </message>
    <message>
        <source>Filter written back: %1</source>
        <translation>Filtro escrito de volta: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::FormattingPage</name>
    <message>
        <source>Format the sample with the two strips. Their icons come from the page&apos;s style sheet, which selects the buttons by their property &quot;styleTag&quot;.</source>
        <translation>Formate a amostra com as duas barras. Os ícones vêm da folha de estilo da página, que seleciona os botões pela propriedade &quot;styleTag&quot;.</translation>
    </message>
    <message>
        <source>The quick brown fox jumps over the lazy dog, and the dog, being lazy, lets it jump as often as it likes.</source>
        <translation>A ligeira raposa marrom salta sobre o cão preguiçoso, e o cão, por ser preguiçoso, deixa que ela salte quanto quiser.</translation>
    </message>
    <message>
        <source>Plain font</source>
        <translation>Fonte simples</translation>
    </message>
    <message>
        <source>The program sets a font: a signal for each toggle that changes.</source>
        <translation>O programa define uma fonte: um sinal para cada botão que muda.</translation>
    </message>
    <message>
        <source>Set to left</source>
        <translation>Definir à esquerda</translation>
    </message>
    <message>
        <source>The program checks a button: no signal, and the sample stays as it is.</source>
        <translation>O programa marca um botão: nenhum sinal, e a amostra fica como está.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativado</translation>
    </message>
</context>
<context>
    <name>Gallery::FrameOverWindowPage</name>
    <message>
        <source>The window below goes on living while the frame lies over it. In edit mode the mouse moves the frame; otherwise it reaches the window.</source>
        <translation>A janela abaixo continua viva enquanto a moldura está sobre ela. No modo de edição o mouse move a moldura; fora dele, chega à janela.</translation>
    </message>
    <message>
        <source>Type here while edit mode is off</source>
        <translation>Digite aqui fora do modo de edição</translation>
    </message>
    <message>
        <source>Press here while edit mode is off</source>
        <translation>Pressione aqui fora do modo de edição</translation>
    </message>
    <message>
        <source>A window with its own life</source>
        <translation>Uma janela com vida própria</translation>
    </message>
    <message>
        <source>From %1 %, %2 %: %3 % wide, %4 % high</source>
        <comment>position and size of the frame</comment>
        <translation>De %1 %, %2 %: %3 % de largura, %4 % de altura</translation>
    </message>
    <message>
        <source>Edit mode</source>
        <translation>Modo de edição</translation>
    </message>
    <message>
        <source>Keep the ratio</source>
        <translation>Manter a proporção</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>Área de trabalho</translation>
    </message>
    <message>
        <source>Veil</source>
        <translation>Véu</translation>
    </message>
</context>
<context>
    <name>Gallery::GalleryHint</name>
    <message>
        <source>Next</source>
        <translation>Próximo</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Agora não</translation>
    </message>
    <message>
        <source>Never again</source>
        <translation>Nunca mais</translation>
    </message>
</context>
<context>
    <name>Gallery::LabelsAndInputsPage</name>
    <message>
        <source>Drag the handle beside the column to narrow it: labels and the line edit elide their texts and tell the whole of them in tool tips. The line edit shows all of it while you edit.</source>
        <translation>Arraste a alça ao lado da coluna para estreitá-la: os rótulos e o campo de texto abreviam seus textos e os mostram por inteiro em dicas. O campo mostra tudo durante a edição.</translation>
    </message>
    <message>
        <source>A file name that is much too long for a column as narrow as this one.txt</source>
        <translation>Um nome de arquivo longo demais para uma coluna tão estreita quanto esta.txt</translation>
    </message>
    <message>
        <source>Mixed directions: %1, elided in order</source>
        <translation>Direções misturadas: %1, abreviado em ordem</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Curto</translation>
    </message>
    <message>
        <source>Drag the handle at the edge of this field.</source>
        <translation>Arraste a alça na borda deste campo.</translation>
    </message>
    <message>
        <source>Press here, with any button</source>
        <translation>Pressione aqui, com qualquer botão</translation>
    </message>
    <message>
        <source>Clipped text</source>
        <translation>Texto abreviado</translation>
    </message>
    <message>
        <source>A text that is shown whole while you edit it, and elided while you do not</source>
        <translation>Um texto mostrado por inteiro durante a edição e abreviado fora dela</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Labels report presses</source>
        <translation>Os rótulos avisam ao pressionar</translation>
    </message>
    <message>
        <source>Labels elide their texts</source>
        <translation>Os rótulos abreviam seus textos</translation>
    </message>
    <message>
        <source>at the end</source>
        <translation>no fim</translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation>no meio</translation>
    </message>
    <message>
        <source>at the beginning</source>
        <translation>no início</translation>
    </message>
    <message>
        <source>Elide</source>
        <translation>Abreviar</translation>
    </message>
    <message>
        <source>What do you think of it?</source>
        <translation>O que você acha disso?</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>Texto de exemplo</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Digits at most</source>
        <translation>Dígitos no máximo</translation>
    </message>
</context>
<context>
    <name>Gallery::MainWindow</name>
    <message>
        <source>KQtUi gallery</source>
        <translation>Galeria do KQtUi</translation>
    </message>
    <message>
        <source>&amp;Find a page</source>
        <translation>&amp;Localizar uma página</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Dark palette</source>
        <translation>Paleta &amp;escura</translation>
    </message>
    <message>
        <source>&amp;Right to left</source>
        <translation>Da &amp;direita para a esquerda</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>E&amp;xibir</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>Idioma: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::NamedPalettePage</name>
    <message>
        <source>Click the button: a default colour, forty named colours, and a dialog behind &quot;More...&quot;.</source>
        <translation>Clique no botão: uma cor padrão, quarenta cores com nome e uma caixa de diálogo atrás de &quot;Mais...&quot;.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>While its popup is open the picker&apos;s property &quot;pressed&quot; is true: the page&apos;s style sheet gives it a thick border then.</source>
        <translation>Enquanto a paleta está aberta, a propriedade &quot;pressed&quot; do seletor é verdadeira: a folha de estilo da página lhe dá então uma borda grossa.</translation>
    </message>
    <message>
        <source>Colorized</source>
        <translation>Colorido</translation>
    </message>
    <message>
        <source>Dark popup</source>
        <translation>Paleta escura</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Make it the default</source>
        <translation>Tornar padrão</translation>
    </message>
    <message>
        <source>The popup&apos;s &quot;Default&quot; button chooses this colour from now on.</source>
        <translation>O botão &quot;Padrão&quot; da paleta escolhe esta cor a partir de agora.</translation>
    </message>
</context>
<context>
    <name>Gallery::Page</name>
    <message>
        <source>Properties</source>
        <translation>Propriedades</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Sinais</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>Gallery::PageList</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Title or component</source>
        <translation>Título ou componente</translation>
    </message>
</context>
<context>
    <name>Gallery::PensAndLinesPage</name>
    <message>
        <source>Pens, lines and opacity: each group draws what its boxes say.</source>
        <translation>Canetas, linhas e opacidade: cada grupo desenha o que dizem suas caixas.</translation>
    </message>
    <message>
        <source>Pen picker</source>
        <translation>Seletor de caneta</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>Estilo de linha</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Largura de linha</translation>
    </message>
    <message>
        <source>Line style and line width</source>
        <translation>Estilo e largura de linha</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidade</translation>
    </message>
    <message>
        <source>Opacity adapter</source>
        <translation>Adaptador de opacidade</translation>
    </message>
    <message>
        <source>Value: %1</source>
        <translation>Valor: %1</translation>
    </message>
    <message>
        <source>Slider with a zero tick</source>
        <translation>Controle deslizante com marca do zero</translation>
    </message>
    <message>
        <source>Coloured tick</source>
        <translation>Marca colorida</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativado</translation>
    </message>
</context>
<context>
    <name>Gallery::SelectionFramesPage</name>
    <message>
        <source>Drag the frames, their corners and their sides. The small picture is what the frames are rendered to, with its alpha.</source>
        <translation>Arraste as molduras, seus cantos e seus lados. A imagem pequena é o resultado da renderização das molduras, com seu canal alfa.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Região</translation>
    </message>
    <message>
        <source>Holiday by the sea</source>
        <translation>Férias na praia</translation>
    </message>
    <message>
        <source>Picture keeps its ratio</source>
        <translation>A imagem mantém a proporção</translation>
    </message>
    <message>
        <source>Region keeps its ratio</source>
        <translation>A região mantém a proporção</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>Área de trabalho</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Transparência</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Preenchimento</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fonte</translation>
    </message>
</context>
<context>
    <name>Gallery::SignalLog</name>
    <message>
        <source>Signals appear here.</source>
        <translation>Os sinais aparecem aqui.</translation>
    </message>
</context>
<context>
    <name>Gallery::TaskbarPage</name>
    <message>
        <source>Move the slider or press a button, and look at the taskbar or dock of your desktop: that begins an operation. Below stands what was asked for, and what is seen of it where.</source>
        <translation>Mova o controle deslizante ou pressione um botão e olhe para a barra de tarefas ou a dock da sua área de trabalho: assim começa uma operação. Abaixo está o que foi pedido, e o que se vê disso e onde.</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Windows</translation>
    </message>
    <message>
        <source>The button of this window in the taskbar fills: green while the operation runs, yellow when it is paused, red when it was stopped. A busy one has a light that runs through it.</source>
        <translation>O botão desta janela na barra de tarefas se enche: verde enquanto a operação corre, amarelo quando está em pausa, vermelho quando foi interrompida. Se o progresso é desconhecido, uma luz o percorre.</translation>
    </message>
    <message>
        <source>Linux</source>
        <translation>Linux</translation>
    </message>
    <message>
        <source>The entry of this application has a bar, in docks that know its desktop file and show progress: those of KDE Plasma and Ubuntu, Dash to Dock, Plank and others. Busy is an empty bar, paused looks like running, and what was stopped asks for attention.</source>
        <translation>A entrada deste aplicativo tem uma barra, nas docks que conhecem seu arquivo desktop e mostram o progresso: as do KDE Plasma e do Ubuntu, Dash to Dock, Plank e outras. Progresso desconhecido é uma barra vazia, em pausa parece em andamento, e o que foi interrompido pede atenção.</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>Em outros sistemas</translation>
    </message>
    <message>
        <source>Nothing is seen.</source>
        <translation>Não se vê nada.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>End the operation</source>
        <translation>Encerrar a operação</translation>
    </message>
    <message>
        <source>Desktop file</source>
        <translation>Arquivo desktop</translation>
    </message>
    <message>
        <source>There is no operation.</source>
        <translation>Não há nenhuma operação.</translation>
    </message>
    <message>
        <source>The indicator is hidden.</source>
        <translation>O indicador está oculto.</translation>
    </message>
    <message>
        <source>The operation was stopped.</source>
        <translation>A operação foi interrompida.</translation>
    </message>
    <message>
        <source>The operation is paused.</source>
        <translation>A operação está em pausa.</translation>
    </message>
    <message>
        <source>The operation runs; how far it is nobody knows.</source>
        <translation>A operação está em andamento; ninguém sabe em que ponto está.</translation>
    </message>
    <message>
        <source>The operation runs.</source>
        <translation>A operação está em andamento.</translation>
    </message>
</context>
<context>
    <name>Gallery::TilesPage</name>
    <message>
        <source>Tiles with a star, a play button and a duration over a picture; and a panel whose title bar can be dragged, detached and closed.</source>
        <translation>Blocos com uma estrela, um botão de reprodução e uma duração sobre uma imagem; e um painel cuja barra de título pode ser arrastada, destacada e fechada.</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Nascer do sol</translation>
    </message>
    <message>
        <source>Noon</source>
        <translation>Meio-dia</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Pôr do sol</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noite</translation>
    </message>
    <message>
        <source>Pin playlist</source>
        <translation>Fixar a lista de reprodução</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <translation>Desafixar a lista de reprodução</translation>
    </message>
    <message>
        <source>Stars</source>
        <translation>Estrelas</translation>
    </message>
    <message>
        <source>Play buttons</source>
        <translation>Botões de reprodução</translation>
    </message>
    <message>
        <source>Clips can be played</source>
        <translation>Os clipes podem ser reproduzidos</translation>
    </message>
    <message>
        <source>Styled as floating</source>
        <translation>Com estilo flutuante</translation>
    </message>
    <message>
        <source>Show the panel</source>
        <translation>Mostrar o painel</translation>
    </message>
</context>
<context>
    <name>Gallery::Tour</name>
    <message>
        <source>Welcome to the gallery</source>
        <translation>Boas-vindas à galeria</translation>
    </message>
    <message>
        <source>Every family of components has a page of its own, and all of them are alive. The tour shows you around in a minute.</source>
        <translation>Cada família de componentes tem sua própria página, e todos estão vivos. O tour mostra tudo a você em um minuto.</translation>
    </message>
    <message>
        <source>Find a page</source>
        <translation>Encontrar uma página</translation>
    </message>
    <message>
        <source>Type part of a title. The arrow keys move through the pages that are left.</source>
        <translation>Digite parte de um título. As setas do teclado percorrem as páginas restantes.</translation>
    </message>
    <message>
        <source>Dark, and from right to left</source>
        <translation>Escuro, e da direita para a esquerda</translation>
    </message>
    <message>
        <source>These two switches are one target: the frame goes round both. This hint stays clear of the filter, so that you can go on typing.</source>
        <translation>Estes dois botões são um só alvo: a moldura envolve ambos. Esta dica não cobre o filtro, para que você possa continuar digitando.</translation>
    </message>
    <message>
        <source>In your language</source>
        <translation>No seu idioma</translation>
    </message>
    <message>
        <source>The texts change at once, those of this hint as well. Clicking what a hint points at takes you on, just as Next does.</source>
        <translation>Os textos mudam na hora, inclusive os desta dica. Um clique no que uma dica aponta leva você adiante, assim como Próximo.</translation>
    </message>
    <message>
        <source>Open a page</source>
        <translation>Abrir uma página</translation>
    </message>
    <message>
        <source>Choose &quot;Walkthrough&quot; in the list. The last hint waits for that page to be opened.</source>
        <translation>Escolha &quot;Tour guiado&quot; na lista. A última dica espera que essa página seja aberta.</translation>
    </message>
    <message>
        <source>How the tour works</source>
        <translation>Como funciona o tour</translation>
    </message>
    <message>
        <source>A walkthrough is a machine of named states. Here you see another one at work, and can drive it yourself.</source>
        <translation>Um tour guiado é uma máquina de estados com nome. Aqui você vê outra em ação e pode conduzi-la.</translation>
    </message>
</context>
<context>
    <name>Gallery::WalkthroughPage</name>
    <message>
        <source>One target</source>
        <translation>Um alvo</translation>
    </message>
    <message>
        <source>Press the button, or Next.</source>
        <translation>Pressione o botão ou Próximo.</translation>
    </message>
    <message>
        <source>Two targets</source>
        <translation>Dois alvos</translation>
    </message>
    <message>
        <source>Hide one with the switches: the frame follows. Hide both, and the hint goes.</source>
        <translation>Oculte um com as caixas de seleção: a moldura acompanha. Oculte os dois, e a dica some.</translation>
    </message>
    <message>
        <source>A small tour of its own. Start it, hide its targets, or enter a state by double-clicking it: the lists show the machine&apos;s groups, and what each hint still waits for.</source>
        <translation>Um pequeno tour à parte. Inicie-o, oculte seus alvos ou entre em um estado com um clique duplo: as listas mostram os grupos da máquina e o que cada dica ainda espera.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>First lamp</source>
        <translation>Primeira lâmpada</translation>
    </message>
    <message>
        <source>Second lamp</source>
        <translation>Segunda lâmpada</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Active state</source>
        <translation>Estado ativo</translation>
    </message>
    <message>
        <source>Groups and states</source>
        <translation>Grupos e estados</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Dica</translation>
    </message>
    <message>
        <source>Unmet conditions</source>
        <translation>Condições não atendidas</translation>
    </message>
    <message>
        <source>Waits for</source>
        <translation>Espera por</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Dicas</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>Iniciar o tour</translation>
    </message>
    <message>
        <source>Stop the tour</source>
        <translation>Parar o tour</translation>
    </message>
    <message>
        <source>Hints enabled</source>
        <translation>Dicas ativadas</translation>
    </message>
    <message>
        <source>Save is shown</source>
        <translation>Salvar está visível</translation>
    </message>
    <message>
        <source>First lamp is shown</source>
        <translation>A primeira lâmpada está visível</translation>
    </message>
    <message>
        <source>Second lamp is shown</source>
        <translation>A segunda lâmpada está visível</translation>
    </message>
    <message>
        <source>Hints avoid the list of hints</source>
        <translation>As dicas evitam a lista de dicas</translation>
    </message>
    <message>
        <source>entered %1</source>
        <translation>entrou em %1</translation>
    </message>
</context>
<context>
    <name>Gallery::WidgetRendererPage</name>
    <message>
        <source>The widgets are drawn into the picture beside them, and cut out of their window. Cut out, they still answer to the mouse.</source>
        <translation>Os widgets são desenhados na imagem ao lado e recortados de sua janela. Mesmo recortados, ainda respondem ao mouse.</translation>
    </message>
    <message>
        <source>Compose</source>
        <translation>Compor</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>Devolver</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Botão</translation>
    </message>
    <message>
        <source>Check box</source>
        <translation>Caixa de seleção</translation>
    </message>
</context>
</TS>
