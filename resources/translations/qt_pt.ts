<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt">
<context>
    <name>QShortcut</name>
    <message>
        <source>+</source>
        <translatorcomment>same</translatorcomment>
        <translation>+</translation>
    </message>
    <message>
        <source>Alt</source>
        <translatorcomment>same</translatorcomment>
        <translation>Alt</translation>
    </message>
    <message>
        <source>F%1</source>
        <translatorcomment>same</translatorcomment>
        <translation>F%1</translation>
    </message>
    <message>
        <source>Del</source>
        <translatorcomment>same</translatorcomment>
        <translation>Del</translation>
    </message>
    <message>
        <source>End</source>
        <translatorcomment>same</translatorcomment>
        <translation>End</translation>
    </message>
    <message>
        <source>Esc</source>
        <translatorcomment>same</translatorcomment>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Tab</source>
        <translatorcomment>same</translatorcomment>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translatorcomment>same</translatorcomment>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Home</source>
        <translatorcomment>same</translatorcomment>
        <translation>Home</translation>
    </message>
    <message>
        <source>Meta</source>
        <translatorcomment>same</translatorcomment>
        <translation>Meta</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translatorcomment>same</translatorcomment>
        <translation>PgUp</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>same</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Shift</source>
        <translatorcomment>same</translatorcomment>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espaço</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>PgDn</translation>
    </message>
    <message>
        <source>Return</source>
        <translatorcomment>same</translatorcomment>
        <translation>Return</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translatorcomment>same</translatorcomment>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translatorcomment>same</translatorcomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abortar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Restaurar predefinições</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>Nã&amp;o para todos</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Guardar tudo</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Não guardar</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Sim para &amp;todos</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Top</source>
        <translation>Topo</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Deslocar para baixo</translation>
    </message>
    <message>
        <source>Scroll here</source>
        <translation>Deslocar até aqui</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Deslocar para a esquerda</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Fundo</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Página para cima</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Página para a direita</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Deslocar para cima</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Deslocar para a direita</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Extremidade esquerda</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Página para baixo</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Página para a esquerda</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Extremidade direita</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Back</source>
        <translation>Retroceder</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Alias</source>
        <translatorcomment>same</translatorcomment>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidade</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Ficheiros</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Mostrar </translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>«%1» está protegido contra escrita.
Pretende eliminá-lo mesmo assim?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Tem a certeza de que pretende eliminar «%1»?</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lista de locais e marcadores</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nome do ficheiro:</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translatorcomment>same</translatorcomment>
        <translation>Alt+Left</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translatorcomment>same</translatorcomment>
        <translation>Alt+Up</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Pasta de ficheiros</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nova pasta</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Pasta superior</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nova pasta</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Este PC</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Procurar em:</translation>
    </message>
    <message>
        <source>Alt+Right</source>
        <translatorcomment>same</translatorcomment>
        <translation>Alt+Right</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Criar uma nova pasta</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Ficheiro %1</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Ficheiros do tipo:</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Localizar pasta</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostrar ficheiros &amp;ocultos</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Pasta não encontrada.
Verifique se o nome da pasta está correto.</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Vista de lista</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Escolher</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os ficheiros (*)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos os ficheiros (*)</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Pastas</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Mudar o nome</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Não foi possível eliminar a pasta.</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Pasta:</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 já existe.
Pretende substituí-lo?</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Ir para a pasta superior</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Locais recentes</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Retroceder</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Mudar para a vista de detalhes</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Criar nova pasta</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Atalho</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Vista de detalhes</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Ficheiro não encontrado.
Verifique se o nome do ficheiro está correto.</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Mudar para a vista de lista</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Anular</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;olar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Anular</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;olar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copiar localização da &amp;ligação</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Este PC</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nome de ficheiro inválido</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;Não é possível utilizar o nome «%1».&lt;/b&gt;&lt;p&gt;Experimente outro nome, com menos caracteres ou sem sinais de pontuação.</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Data de modificação</translation>
    </message>
</context>
<context>
    <name>QComboBox</name>
    <message>
        <source>True</source>
        <translation>Verdadeiro</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Falso</translation>
    </message>
    <message>
        <source>Open the combo box selection popup</source>
        <translation>Abrir a lista de seleção da caixa de combinação</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>What&apos;s This?</source>
        <translation>O que é isto?</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>Mostrar detalhes...</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Acerca do Qt</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Ocultar detalhes...</translation>
    </message>
    <message>
        <source>&lt;h3&gt;About Qt&lt;/h3&gt;&lt;p&gt;This program uses Qt version %1.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Acerca do Qt&lt;/h3&gt;&lt;p&gt;Este programa utiliza a versão %1 do Qt.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Qt is a C++ toolkit for cross-platform application development.&lt;/p&gt;&lt;p&gt;Qt provides single-source portability across all major desktop operating systems. It is also available for embedded Linux and other embedded and mobile operating systems.&lt;/p&gt;&lt;p&gt;Qt is available under multiple licensing options designed to accommodate the needs of our various users.&lt;/p&gt;&lt;p&gt;Qt licensed under our commercial license agreement is appropriate for development of proprietary/commercial software where you do not want to share any source code with third parties or otherwise cannot comply with the terms of GNU (L)GPL.&lt;/p&gt;&lt;p&gt;Qt licensed under GNU (L)GPL is appropriate for the development of Qt&amp;nbsp;applications provided you can comply with the terms and conditions of the respective licenses.&lt;/p&gt;&lt;p&gt;Please see &lt;a href=&quot;http://%2/&quot;&gt;%2&lt;/a&gt; for an overview of Qt licensing.&lt;/p&gt;&lt;p&gt;Copyright (C) %1 The Qt Company Ltd and other contributors.&lt;/p&gt;&lt;p&gt;Qt and the Qt logo are trademarks of The Qt Company Ltd.&lt;/p&gt;&lt;p&gt;Qt is The Qt Company Ltd product developed as an open source project. See &lt;a href=&quot;http://%3/&quot;&gt;%3&lt;/a&gt; for more information.&lt;/p&gt;</source>
        <translation>&lt;p&gt;O Qt é um conjunto de ferramentas em C++ para o desenvolvimento de aplicações multiplataforma.&lt;/p&gt;&lt;p&gt;O Qt permite usar o mesmo código-fonte em todos os principais sistemas operativos para computador. Também está disponível para Linux incorporado e para outros sistemas operativos incorporados e móveis.&lt;/p&gt;&lt;p&gt;O Qt está disponível com várias opções de licenciamento, concebidas para satisfazer as necessidades dos nossos diversos utilizadores.&lt;/p&gt;&lt;p&gt;O Qt licenciado ao abrigo do nosso contrato de licença comercial é adequado para o desenvolvimento de software proprietário ou comercial quando não pretende partilhar código-fonte com terceiros ou não pode, por outro motivo, cumprir os termos da GNU (L)GPL.&lt;/p&gt;&lt;p&gt;O Qt licenciado ao abrigo da GNU (L)GPL é adequado para o desenvolvimento de aplicações&amp;nbsp;Qt, desde que possa cumprir os termos e condições das respetivas licenças.&lt;/p&gt;&lt;p&gt;Consulte &lt;a href=&quot;http://%2/&quot;&gt;%2&lt;/a&gt; para obter uma visão geral do licenciamento do Qt.&lt;/p&gt;&lt;p&gt;Copyright (C) %1 The Qt Company Ltd e outros colaboradores.&lt;/p&gt;&lt;p&gt;Qt e o logótipo Qt são marcas comerciais da The Qt Company Ltd.&lt;/p&gt;&lt;p&gt;O Qt é um produto da The Qt Company Ltd desenvolvido como projeto de código aberto. Consulte &lt;a href=&quot;http://%3/&quot;&gt;%3&lt;/a&gt; para obter mais informações.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Diminuir</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>A&amp;umentar</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Selecionar tudo</translation>
    </message>
</context>
<context>
    <name>QInputDialog</name>
    <message>
        <source>Enter a value:</source>
        <translation>Introduza um valor:</translation>
    </message>
</context>
<context>
    <name>QProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No such file or directory</source>
        <translation>O ficheiro ou a pasta não existe</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permissão recusada</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Não há espaço livre no dispositivo</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Demasiados ficheiros abertos</translation>
    </message>
    <message>
        <source>file to open is a directory</source>
        <translation>o ficheiro a abrir é uma pasta</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Erro desconhecido</translation>
    </message>
</context>
<context>
    <name>QSaveFile</name>
    <message>
        <source>Existing file %1 is not writable</source>
        <translation>Não é possível escrever no ficheiro existente %1</translation>
    </message>
    <message>
        <source>Filename refers to a directory</source>
        <translation>O nome do ficheiro refere-se a uma pasta</translation>
    </message>
    <message>
        <source>Writing canceled by application</source>
        <translation>Escrita cancelada pela aplicação</translation>
    </message>
    <message>
        <source>QSaveFile cannot open &apos;%1&apos; without direct write fallback enabled.</source>
        <translation>O QSaveFile não consegue abrir «%1» sem a escrita direta alternativa ativada.</translation>
    </message>
</context>
<context>
    <name>QAccessibleActionInterface</name>
    <message>
        <source>Press</source>
        <translation>Premir</translation>
    </message>
    <message>
        <source>Shows the menu</source>
        <translation>Mostra o menu</translation>
    </message>
    <message>
        <source>Scrolls to the left</source>
        <translation>Desloca para a esquerda</translation>
    </message>
    <message>
        <source>Scroll Down</source>
        <translation>Deslocar para baixo</translation>
    </message>
    <message>
        <source>Scroll Left</source>
        <translation>Deslocar para a esquerda</translation>
    </message>
    <message>
        <source>Goes back a page</source>
        <translation>Retrocede uma página</translation>
    </message>
    <message>
        <source>Triggers the action</source>
        <translation>Aciona a ação</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Aumentar</translation>
    </message>
    <message>
        <source>Toggle</source>
        <translation>Alternar</translation>
    </message>
    <message>
        <source>Toggles the state</source>
        <translation>Alterna o estado</translation>
    </message>
    <message>
        <source>Scrolls up</source>
        <translation>Desloca para cima</translation>
    </message>
    <message>
        <source>Scrolls down</source>
        <translation>Desloca para baixo</translation>
    </message>
    <message>
        <source>Scroll Up</source>
        <translation>Deslocar para cima</translation>
    </message>
    <message>
        <source>Goes to the next page</source>
        <translation>Avança para a página seguinte</translation>
    </message>
    <message>
        <source>Scrolls to the right</source>
        <translation>Desloca para a direita</translation>
    </message>
    <message>
        <source>Increase the value</source>
        <translation>Aumenta o valor</translation>
    </message>
    <message>
        <source>Decrease the value</source>
        <translation>Diminui o valor</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Diminuir</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>Deslocar para a direita</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Sets the focus</source>
        <translation>Coloca o foco</translation>
    </message>
    <message>
        <source>SetFocus</source>
        <translation>Colocar o foco</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Página seguinte</translation>
    </message>
    <message>
        <source>ShowMenu</source>
        <translation>Mostrar menu</translation>
    </message>
</context>
<context>
    <name>QFile</name>
    <message>
        <source>Cannot remove source file</source>
        <translation>Não é possível remover o ficheiro de origem</translation>
    </message>
    <message>
        <source>Destination file is the same file.</source>
        <translation>O ficheiro de destino é o mesmo ficheiro.</translation>
    </message>
    <message>
        <source>Cannot open %1 for input</source>
        <translation>Não é possível abrir %1 para leitura</translation>
    </message>
    <message>
        <source>Destination file exists</source>
        <translation>O ficheiro de destino já existe</translation>
    </message>
    <message>
        <source>Cannot open destination file: %1</source>
        <translation>Não é possível abrir o ficheiro de destino: %1</translation>
    </message>
    <message>
        <source>Cannot create %1 for output: %2</source>
        <translation>Não é possível criar %1 para escrita: %2</translation>
    </message>
    <message>
        <source>Failure to write block: %1</source>
        <translation>Falha ao escrever um bloco: %1</translation>
    </message>
    <message>
        <source>Will not rename sequential file using block copy</source>
        <translation>Um ficheiro sequencial não é mudado de nome por cópia de blocos</translation>
    </message>
    <message>
        <source>Error while renaming: %1</source>
        <translation>Erro ao mudar o nome: %1</translation>
    </message>
    <message>
        <source>Source file does not exist.</source>
        <translation>O ficheiro de origem não existe.</translation>
    </message>
    <message>
        <source>Unable to restore from %1: %2</source>
        <translation>Não é possível restaurar a partir de %1: %2</translation>
    </message>
    <message>
        <source>Cannot open for output: %1</source>
        <translation>Não é possível abrir para escrita: %1</translation>
    </message>
</context>
</TS>
