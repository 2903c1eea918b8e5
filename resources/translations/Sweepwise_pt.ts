<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Your Personal System Butler

🧹 Junk Cleaner - Free up valuable disk space
🌐 Browser Cleaner - Protect your privacy
🔧 Registry Cleaner - Boost system performance
⚡ Startup Manager - Speed up boot time</source>
        <translation>O mordomo pessoal do seu PC

🧹 Limpeza de lixo - Liberte espaço no disco
🌐 Limpeza do browser - Proteja a sua privacidade
🔧 Limpeza do registo - Melhore o desempenho
⚡ Gestão do arranque - Inicie o PC mais depressa</translation>
    </message>
    <message>
        <source>© 2026 Norvak. All rights reserved.</source>
        <translation>© 2026 Norvak. Todos os direitos reservados.</translation>
    </message>
    <message>
        <source>OK</source>
        <translatorcomment>same</translatorcomment>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>BasePage</name>
    <message>
        <source>Cleanup Tool</source>
        <translation>Ferramenta de limpeza</translation>
    </message>
    <message>
        <source>Scan and clean up unnecessary files</source>
        <translation>Procure e limpe ficheiros desnecessários</translation>
    </message>
    <message>
        <source>Cleanable</source>
        <translation>Pode ser limpo</translation>
    </message>
    <message>
        <source>Click &quot;Start Scanning&quot; to find cleanable items</source>
        <translation>Clique em «Iniciar análise» para encontrar itens a limpar</translation>
    </message>
    <message>
        <source>Start Scanning</source>
        <translation>Iniciar análise</translation>
    </message>
    <message>
        <source>Clean Now</source>
        <translation>Limpar agora</translation>
    </message>
    <message>
        <source>Selected: --</source>
        <translation>Itens selecionados: --</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>No items selected</source>
        <translation>Nenhum item selecionado</translation>
    </message>
    <message>
        <source>Confirm Clean</source>
        <translation>Confirmar limpeza</translation>
    </message>
    <message>
        <source>Are you sure you want to clean %1 selected items?
This action cannot be undone!</source>
        <translation>Tem a certeza de que pretende limpar os itens selecionados (%1)?
Esta ação não pode ser anulada!</translation>
    </message>
    <message>
        <source>Selected: %1 items, %2</source>
        <translation>Itens selecionados: %1 (%2)</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Itens: %1</translation>
    </message>
    <message>
        <source>Selected: %1 items</source>
        <translation>Itens selecionados: %1</translation>
    </message>
    <message>
        <source>Cleaned %1 items, freed %2</source>
        <translation>Itens limpos: %1, espaço libertado: %2</translation>
    </message>
</context>
<context>
    <name>BrowserCleaner</name>
    <message>
        <source>Google Chrome</source>
        <translatorcomment>same</translatorcomment>
        <translation>Google Chrome</translation>
    </message>
    <message>
        <source>Microsoft Edge</source>
        <translatorcomment>same</translatorcomment>
        <translation>Microsoft Edge</translation>
    </message>
    <message>
        <source>Mozilla Firefox</source>
        <translatorcomment>same</translatorcomment>
        <translation>Mozilla Firefox</translation>
    </message>
    <message>
        <source>Opera</source>
        <translatorcomment>same</translatorcomment>
        <translation>Opera</translation>
    </message>
    <message>
        <source>Brave</source>
        <translatorcomment>same</translatorcomment>
        <translation>Brave</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Ficheiro não encontrado</translation>
    </message>
    <message>
        <source>Holds part of a database: removing it loses data saved by the browser, websites or extensions</source>
        <translation>Contém parte de uma base de dados: a eliminação implica a perda de dados guardados pelo browser, por sites ou por extensões</translation>
    </message>
    <message>
        <source>Belongs to an extension, which does not work without all its files</source>
        <translation>Pertence a uma extensão, que não funciona sem todos os seus ficheiros</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>A pasta não é a que foi listada</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>Show the data of %1</source>
        <translation>Mostrar os dados de %1</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Itens: %1</translation>
    </message>
</context>
<context>
    <name>BrowserPage</name>
    <message>
        <source>Browser Cleaner</source>
        <translation>Limpeza do browser</translation>
    </message>
    <message>
        <source>Clean browser cache, cookies and history</source>
        <translation>Limpe a cache, os cookies e o histórico dos browsers</translation>
    </message>
    <message>
        <source>Cleanable Data</source>
        <translation>Dados a limpar</translation>
    </message>
    <message>
        <source>Select Browser:</source>
        <translation>Browsers:</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Outros</translation>
    </message>
</context>
<context>
    <name>BrowserRule</name>
    <message>
        <source>Browser Cache</source>
        <translation>Cache do browser</translation>
    </message>
    <message>
        <source>Temporary web page cache files</source>
        <translation>Ficheiros temporários de cache de páginas Web</translation>
    </message>
    <message>
        <source>Code Cache</source>
        <translation>Cache de código</translation>
    </message>
    <message>
        <source>JavaScript code cache</source>
        <translation>Cache de código JavaScript</translation>
    </message>
    <message>
        <source>GPU Cache</source>
        <translation>Cache da GPU</translation>
    </message>
    <message>
        <source>GPU rendering cache</source>
        <translation>Cache de renderização da GPU</translation>
    </message>
    <message>
        <source>Shader Cache</source>
        <translation>Cache de sombreadores</translation>
    </message>
    <message>
        <source>GPU shader compilation cache</source>
        <translation>Cache de compilação de sombreadores da GPU</translation>
    </message>
    <message>
        <source>Service Workers</source>
        <translatorcomment>same</translatorcomment>
        <translation>Service Workers</translation>
    </message>
    <message>
        <source>Service Worker cache</source>
        <translation>Cache dos Service Workers</translation>
    </message>
    <message>
        <source>Media Cache</source>
        <translation>Cache multimédia</translation>
    </message>
    <message>
        <source>Media file cache</source>
        <translation>Cache de ficheiros multimédia</translation>
    </message>
    <message>
        <source>Network Cache</source>
        <translation>Cache de rede</translation>
    </message>
    <message>
        <source>HTTP network request cache</source>
        <translation>Cache de pedidos de rede HTTP</translation>
    </message>
    <message>
        <source>Jump List</source>
        <translation>Lista de atalhos</translation>
    </message>
    <message>
        <source>Taskbar Jump List icon cache</source>
        <translation>Cache de ícones da lista de atalhos da barra de tarefas</translation>
    </message>
    <message>
        <source>Blob Storage</source>
        <translation>Armazenamento de blobs</translation>
    </message>
    <message>
        <source>Temporary binary data storage</source>
        <translation>Armazenamento temporário de dados binários</translation>
    </message>
    <message>
        <source>WebRTC Logs</source>
        <translation>Logs do WebRTC</translation>
    </message>
    <message>
        <source>Video call debug logs</source>
        <translation>Logs de depuração de videochamadas</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Relatórios de falhas</translation>
    </message>
    <message>
        <source>Browser crash report files</source>
        <translation>Ficheiros de relatórios de falhas do browser</translation>
    </message>
    <message>
        <source>Browser Logs</source>
        <translation>Logs do browser</translation>
    </message>
    <message>
        <source>Browser debug and error logs</source>
        <translation>Logs de depuração e de erros do browser</translation>
    </message>
    <message>
        <source>Website Thumbnails</source>
        <translation>Miniaturas de sites</translation>
    </message>
    <message>
        <source>New Tab page website thumbnails</source>
        <translation>Miniaturas de sites da página do novo separador</translation>
    </message>
    <message>
        <source>Favicon Cache</source>
        <translation>Cache de favicons</translation>
    </message>
    <message>
        <source>Website icon (favicon) cache</source>
        <translation>Cache de ícones de sites (favicons)</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>Cache de tipos de letra</translation>
    </message>
    <message>
        <source>Web font cache files</source>
        <translation>Ficheiros de cache de tipos de letra Web</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Armazenamento local</translation>
    </message>
    <message>
        <source>Website Local Storage (site settings may be lost)</source>
        <translation>Armazenamento local dos sites (as definições dos sites podem perder-se)</translation>
    </message>
    <message>
        <source>IndexedDB</source>
        <translatorcomment>same</translatorcomment>
        <translation>IndexedDB</translation>
    </message>
    <message>
        <source>Website database storage (offline data may be lost)</source>
        <translation>Bases de dados dos sites (os dados offline podem perder-se)</translation>
    </message>
    <message>
        <source>Cookies</source>
        <translatorcomment>same</translatorcomment>
        <translation>Cookies</translation>
    </message>
    <message>
        <source>Website Cookies (requires re-login to all sites)</source>
        <translation>Cookies dos sites (terá de iniciar sessão novamente em todos os sites)</translation>
    </message>
    <message>
        <source>Browsing History</source>
        <translation>Histórico de navegação</translation>
    </message>
    <message>
        <source>Web browsing history records</source>
        <translation>Histórico das páginas Web visitadas</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Histórico de transferências</translation>
    </message>
    <message>
        <source>Download history records (downloaded files are not deleted)</source>
        <translation>Histórico de transferências (os ficheiros transferidos não são eliminados)</translation>
    </message>
    <message>
        <source>Session Data</source>
        <translation>Dados de sessão</translation>
    </message>
    <message>
        <source>Current and recent session data (tabs may be lost)</source>
        <translation>Dados da sessão atual e das recentes (os separadores podem perder-se)</translation>
    </message>
    <message>
        <source>Form Data</source>
        <translation>Dados de formulários</translation>
    </message>
    <message>
        <source>Autofill form data (requires re-entry after cleaning)</source>
        <translation>Dados de preenchimento automático de formulários (terá de os introduzir novamente)</translation>
    </message>
    <message>
        <source>Safe Browsing Data</source>
        <translation>Dados da Navegação segura</translation>
    </message>
    <message>
        <source>Safe Browsing protection data (not recommended to clean)</source>
        <translation>Dados de proteção da Navegação segura (limpeza não recomendada)</translation>
    </message>
</context>
<context>
    <name>BrowserSubItem</name>
    <message>
        <source>%1 items</source>
        <translation>Itens: %1</translation>
    </message>
    <message>
        <source>View Details</source>
        <translation>Ver detalhes</translation>
    </message>
    <message>
        <source>View details of %1</source>
        <translation>Ver detalhes de %1</translation>
    </message>
</context>
<context>
    <name>CategoryWidget</name>
    <message>
        <source>View Details</source>
        <translation>Ver detalhes</translation>
    </message>
    <message>
        <source>Show items of %1</source>
        <translation>Mostrar itens de %1</translation>
    </message>
    <message>
        <source>Load more (%1 remaining)</source>
        <translation>Carregar mais (restantes: %1)</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Itens: %1</translation>
    </message>
    <message>
        <source>%1: %2 items, view details</source>
        <translation>%1 (itens: %2), ver detalhes</translation>
    </message>
</context>
<context>
    <name>CircleProgressWidget</name>
    <message>
        <source>%1%</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>CleanItemWidget</name>
    <message>
        <source>High</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Médio</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baixo</translation>
    </message>
    <message>
        <source>Risk: %1</source>
        <translation>Risco: %1</translation>
    </message>
</context>
<context>
    <name>DashboardResultsPanel</name>
    <message>
        <source>Can be cleaned</source>
        <translation>Pode ser limpo</translation>
    </message>
    <message>
        <source>Keep Your PC Running at Peak Performance</source>
        <translation>Mantenha o seu PC com o máximo desempenho</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 Analisar</translation>
    </message>
    <message>
        <source>🗑️ Clean All</source>
        <translation>🗑️ Limpar tudo</translation>
    </message>
    <message>
        <source>Junk Files</source>
        <translation>Ficheiros de lixo</translation>
    </message>
    <message>
        <source>Browser Data</source>
        <translation>Dados dos browsers</translation>
    </message>
    <message>
        <source>Registry Issues</source>
        <translation>Erros no registo</translation>
    </message>
    <message>
        <source>&lt;span style=&apos;font-weight:600;&apos;&gt;Tip:&lt;/span&gt; Regular cleaning can improve your PC performance by up to 30%</source>
        <translation>&lt;span style=&apos;font-weight:600;&apos;&gt;Sugestão:&lt;/span&gt; Uma limpeza regular pode melhorar o desempenho do PC até 30%</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>A analisar...</translation>
    </message>
    <message>
        <source>Ready to scan</source>
        <translation>Pronto para analisar</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Itens: %1</translation>
    </message>
    <message>
        <source>GB</source>
        <translatorcomment>same</translatorcomment>
        <translation>GB</translation>
    </message>
</context>
<context>
    <name>DashboardStartPanel</name>
    <message>
        <source>🔍  Start Full Scan</source>
        <translation>🔍  Análise completa</translation>
    </message>
    <message>
        <source>Ready to Clean Your PC</source>
        <translation>Pronto para limpar o seu PC</translation>
    </message>
    <message>
        <source>Click the button below to scan for junk files and free up space</source>
        <translation>Clique no botão abaixo para procurar ficheiros de lixo e libertar espaço</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>A preparar...</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>A analisar...</translation>
    </message>
    <message>
        <source>%1%</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>DetailItemWidget</name>
    <message>
        <source>Open file location</source>
        <translation>Abrir localização do ficheiro</translation>
    </message>
    <message>
        <source>Open file location of %1</source>
        <translation>Abrir localização do ficheiro %1</translation>
    </message>
</context>
<context>
    <name>DriveCard</name>
    <message>
        <source>Local Disk</source>
        <translation>Disco local</translation>
    </message>
    <message>
        <source>%1 (Removable)</source>
        <translation>%1 (Amovível)</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1/%2</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Used: %1%</source>
        <translation>Utilizado: %1%</translation>
    </message>
</context>
<context>
    <name>FileCard</name>
    <message>
        <source>%1, %2</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>FileLocation</name>
    <message>
        <source>Notice</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>The file manager could not be started to show this file:
%1</source>
        <translation>Não foi possível iniciar o gestor de ficheiros para mostrar este ficheiro:
%1</translation>
    </message>
    <message>
        <source>This file no longer exists:
%1</source>
        <translation>Este ficheiro já não existe:
%1</translation>
    </message>
</context>
<context>
    <name>ItemDetailDialog</name>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>%1  |  %2 files</source>
        <translation>%1  |  Ficheiros: %2</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Itens: %1</translation>
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
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
</context>
<context>
    <name>JunkCleaner</name>
    <message>
        <source>File not found</source>
        <translation>Ficheiro não encontrado</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>A pasta não é a que foi listada</translation>
    </message>
</context>
<context>
    <name>JunkPage</name>
    <message>
        <source>Junk Cleaner</source>
        <translation>Limpeza de lixo</translation>
    </message>
    <message>
        <source>Clean system temp files, cache and logs</source>
        <translation>Limpe ficheiros temporários, cache e logs do sistema</translation>
    </message>
    <message>
        <source>Cleanable Space</source>
        <translation>Espaço a libertar</translation>
    </message>
</context>
<context>
    <name>JunkRule</name>
    <message>
        <source>System Temporary Files</source>
        <translation>Ficheiros temporários do sistema</translation>
    </message>
    <message>
        <source>Files in Windows Temp folders</source>
        <translation>Ficheiros nas pastas Temp do Windows</translation>
    </message>
    <message>
        <source>Prefetch Files</source>
        <translation>Ficheiros Prefetch</translation>
    </message>
    <message>
        <source>Windows Prefetch cache files</source>
        <translation>Ficheiros de cache do Prefetch do Windows</translation>
    </message>
    <message>
        <source>Thumbnail Cache</source>
        <translation>Cache de miniaturas</translation>
    </message>
    <message>
        <source>Explorer thumbnail and icon cache files</source>
        <translation>Ficheiros de cache de miniaturas e ícones do Explorador</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>Ficheiros de log</translation>
    </message>
    <message>
        <source>Windows setup, servicing and device log files</source>
        <translation>Ficheiros de log da instalação, da manutenção e dos dispositivos do Windows</translation>
    </message>
    <message>
        <source>Windows Update Logs</source>
        <translation>Logs do Windows Update</translation>
    </message>
    <message>
        <source>Windows Update history and event logs</source>
        <translation>Histórico e logs de eventos do Windows Update</translation>
    </message>
    <message>
        <source>IIS Log Files</source>
        <translation>Ficheiros de log do IIS</translation>
    </message>
    <message>
        <source>Web server and HTTP error log files</source>
        <translation>Ficheiros de log do servidor Web e de erros HTTP</translation>
    </message>
    <message>
        <source>Memory Dumps</source>
        <translation>Informações de estado da memória</translation>
    </message>
    <message>
        <source>Memory dumps left by system and program crashes</source>
        <translation>Informações de estado da memória criadas por falhas do sistema e de programas</translation>
    </message>
    <message>
        <source>Windows Update Cache</source>
        <translation>Cache do Windows Update</translation>
    </message>
    <message>
        <source>Downloaded Windows Update installation files</source>
        <translation>Ficheiros de instalação transferidos pelo Windows Update</translation>
    </message>
    <message>
        <source>Error Reports</source>
        <translation>Relatórios de erros</translation>
    </message>
    <message>
        <source>Queued and archived program error reports</source>
        <translation>Relatórios de erros de programas, em fila e arquivados</translation>
    </message>
    <message>
        <source>Delivery Optimization Files</source>
        <translation>Ficheiros da Otimização da Entrega</translation>
    </message>
    <message>
        <source>Update files kept for sharing with other PCs</source>
        <translation>Ficheiros de atualizações guardados para partilha com outros computadores</translation>
    </message>
    <message>
        <source>Windows Defender Scan History</source>
        <translation>Histórico de análises do Windows Defender</translation>
    </message>
    <message>
        <source>Windows Defender scan history and definition backups</source>
        <translation>Histórico de análises e cópias de segurança das definições do Windows Defender</translation>
    </message>
    <message>
        <source>.NET Framework Cache Logs</source>
        <translation>Logs de cache do .NET Framework</translation>
    </message>
    <message>
        <source>.NET temporary web files and usage logs</source>
        <translation>Ficheiros Web temporários e logs de utilização do .NET</translation>
    </message>
    <message>
        <source>System Integrity Check Logs</source>
        <translation>Logs de verificação da integridade do sistema</translation>
    </message>
    <message>
        <source>Logs of system file and component checks</source>
        <translation>Logs das verificações de ficheiros e componentes do sistema</translation>
    </message>
    <message>
        <source>Installer Cache</source>
        <translation>Cache do instalador</translation>
    </message>
    <message>
        <source>Windows Installer patch cache, needed to uninstall some updates</source>
        <translation>Cache de correções do Windows Installer, necessária para desinstalar algumas atualizações</translation>
    </message>
    <message>
        <source>Recent Documents</source>
        <translation>Documentos recentes</translation>
    </message>
    <message>
        <source>Shortcuts to recently opened documents</source>
        <translation>Atalhos para documentos abertos recentemente</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>Cache de tipos de letra</translation>
    </message>
    <message>
        <source>Windows font cache files</source>
        <translation>Ficheiros de cache de tipos de letra do Windows</translation>
    </message>
    <message>
        <source>Old Windows Installation</source>
        <translation>Instalação anterior do Windows</translation>
    </message>
    <message>
        <source>Files of a previous Windows installation, needed to go back to it</source>
        <translation>Ficheiros de uma instalação anterior do Windows, necessários para voltar a essa instalação</translation>
    </message>
    <message>
        <source>Web Cache</source>
        <translation>Cache Web</translation>
    </message>
    <message>
        <source>Windows web cache, downloaded pages and cookies</source>
        <translation>Cache Web do Windows, páginas transferidas e cookies</translation>
    </message>
    <message>
        <source>Office Cache</source>
        <translation>Cache do Office</translation>
    </message>
    <message>
        <source>Office document cache and unsaved files</source>
        <translation>Cache de documentos do Office e ficheiros não guardados</translation>
    </message>
    <message>
        <source>Tencent Product Logs</source>
        <translation>Logs de produtos Tencent</translation>
    </message>
    <message>
        <source>Log files of Tencent products</source>
        <translation>Ficheiros de log de produtos Tencent</translation>
    </message>
    <message>
        <source>NVIDIA Cache</source>
        <translation>Cache da NVIDIA</translation>
    </message>
    <message>
        <source>NVIDIA graphics shader cache</source>
        <translation>Cache de sombreadores gráficos da NVIDIA</translation>
    </message>
    <message>
        <source>AMD Cache</source>
        <translation>Cache da AMD</translation>
    </message>
    <message>
        <source>AMD graphics shader cache</source>
        <translation>Cache de sombreadores gráficos da AMD</translation>
    </message>
    <message>
        <source>DirectX Shader Cache</source>
        <translation>Cache de sombreadores DirectX</translation>
    </message>
    <message>
        <source>Compiled DirectX shaders, made again when needed</source>
        <translation>Sombreadores DirectX compilados, criados de novo quando necessário</translation>
    </message>
    <message>
        <source>Windows Search Data</source>
        <translation>Dados do Windows Search</translation>
    </message>
    <message>
        <source>Logs of the Windows Search indexer</source>
        <translation>Logs do indexador do Windows Search</translation>
    </message>
    <message>
        <source>Diagnostic Data</source>
        <translation>Dados de diagnóstico</translation>
    </message>
    <message>
        <source>Windows troubleshooting and diagnostic data</source>
        <translation>Dados de diagnóstico e resolução de problemas do Windows</translation>
    </message>
</context>
<context>
    <name>LargeFilePage</name>
    <message>
        <source>Tip</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Please select at least one drive to scan.</source>
        <translation>Selecione pelo menos uma unidade para analisar.</translation>
    </message>
    <message>
        <source>Custom File Size</source>
        <translation>Tamanho personalizado</translation>
    </message>
    <message>
        <source>Enter minimum file size (MB):</source>
        <translation>Introduza o tamanho mínimo dos ficheiros (MB):</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>Análise concluída</translation>
    </message>
    <message>
        <source>No large files found that match the criteria.</source>
        <translation>Não foram encontrados ficheiros grandes que correspondam aos critérios.</translation>
    </message>
    <message>
        <source>📂 Open file location</source>
        <translation>📂 Abrir localização do ficheiro</translation>
    </message>
    <message>
        <source>🗑️ Delete this file</source>
        <translation>🗑️ Eliminar este ficheiro</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this file?

%1
Size: %2

This action cannot be undone!</source>
        <translation>Tem a certeza de que pretende eliminar este ficheiro?

%1
Tamanho: %2

Esta ação não pode ser anulada!</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>Confirmar eliminação</translation>
    </message>
    <message>
        <source>Delete Failed</source>
        <translation>Falha na eliminação</translation>
    </message>
    <message>
        <source>Unable to delete this file. It may be in use by another program.</source>
        <translation>Não foi possível eliminar este ficheiro. Pode estar a ser utilizado por outro programa.</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informação</translation>
    </message>
    <message>
        <source>All files have been deleted</source>
        <translation>Todos os ficheiros foram eliminados</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected %1 files?

Total: %2

This action cannot be undone!</source>
        <translation>Tem a certeza de que pretende eliminar os ficheiros selecionados (%1)?

Total: %2

Esta ação não pode ser anulada!</translation>
    </message>
    <message>
        <source>Deleted %1 files successfully.</source>
        <translation>Ficheiros eliminados com êxito: %1.</translation>
    </message>
    <message>
        <source> %1 files failed to delete.</source>
        <translation> Ficheiros que não foi possível eliminar: %1.</translation>
    </message>
    <message>
        <source>Delete Completed</source>
        <translation>Eliminação concluída</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>A operação falhou</translation>
    </message>
</context>
<context>
    <name>LargeFileResultsView</name>
    <message>
        <source>← Back</source>
        <translation>← Voltar</translation>
    </message>
    <message>
        <source>🗑️ Delete Selected</source>
        <translation>🗑️ Eliminar selecionados</translation>
    </message>
    <message>
        <source>Scan Results</source>
        <translation>Resultados da análise</translation>
    </message>
    <message>
        <source>Found %1 large files, total %2</source>
        <translation>Ficheiros encontrados: %1 (%2)</translation>
    </message>
    <message>
        <source>Selected: %1 files (%2)</source>
        <translation>Ficheiros selecionados: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>LargeFileSelectionView</name>
    <message>
        <source>Find Large Files</source>
        <translation>Localizar ficheiros grandes</translation>
    </message>
    <message>
        <source>Scan and clean files that take up a lot of disk space</source>
        <translation>Procure e elimine ficheiros que ocupam muito espaço no disco</translation>
    </message>
    <message>
        <source>Select Scan Location</source>
        <translation>Selecione a localização a analisar</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 Analisar</translation>
    </message>
    <message>
        <source>Minimum File Size:</source>
        <translation>Tamanho mínimo dos ficheiros:</translation>
    </message>
    <message>
        <source>50 MB</source>
        <translatorcomment>same</translatorcomment>
        <translation>50 MB</translation>
    </message>
    <message>
        <source>100 MB</source>
        <translatorcomment>same</translatorcomment>
        <translation>100 MB</translation>
    </message>
    <message>
        <source>200 MB</source>
        <translatorcomment>same</translatorcomment>
        <translation>200 MB</translation>
    </message>
    <message>
        <source>500 MB</source>
        <translatorcomment>same</translatorcomment>
        <translation>500 MB</translation>
    </message>
    <message>
        <source>1 GB</source>
        <translatorcomment>same</translatorcomment>
        <translation>1 GB</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Outro...</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Erro de configuração</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Não foi possível carregar as ligações das páginas.

Contacte o suporte técnico ou reinstale o programa.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Não foi possível abrir o browser</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Não foi possível abrir o browser predefinido.

Copie a ligação e abra-a manualmente:
%1</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Sweepwise</source>
        <translatorcomment>same</translatorcomment>
        <translation>Sweepwise</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>Limpeza de lixo</translation>
    </message>
    <message>
        <source>Browser Cleaner</source>
        <translation>Limpeza do browser</translation>
    </message>
    <message>
        <source>Registry Cleaner</source>
        <translation>Limpeza do registo</translation>
    </message>
    <message>
        <source>Startup Manager</source>
        <translation>Gestão do arranque</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>Ficheiros grandes</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>Mostrar janela principal</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Sweepwise - PC Cleaning Tool</source>
        <translation>Sweepwise - Ferramenta de limpeza do PC</translation>
    </message>
    <message>
        <source>About Sweepwise</source>
        <translation>Acerca do Sweepwise</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Sweepwise - PC Cleaning Tool&lt;/h3&gt;&lt;p&gt;Version %1&lt;/p&gt;&lt;p&gt;Clean your PC with one click!&lt;br&gt;Remove junk files, browser data, and registry issues.&lt;/p&gt;&lt;p&gt;© 2026 Norvak. All rights reserved.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Sweepwise - Ferramenta de limpeza do PC&lt;/h3&gt;&lt;p&gt;Versão %1&lt;/p&gt;&lt;p&gt;Limpe o seu PC com um só clique!&lt;br&gt;Remova ficheiros de lixo, dados dos browsers e erros no registo.&lt;/p&gt;&lt;p&gt;© 2026 Norvak. Todos os direitos reservados.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Program minimized to system tray. Double-click the icon to restore.</source>
        <translation>O programa foi minimizado para a área de notificação. Faça duplo clique no ícone para o restaurar.</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>A clean is still running. Start the scan when it is over.</source>
        <translation>Ainda está em curso uma limpeza. Inicie a análise quando terminar.</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Scanning...</source>
        <translation>A analisar...</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>A limpar...</translation>
    </message>
    <message>
        <source>正在分析系统...</source>
        <translation>A analisar o sistema...</translation>
    </message>
    <message>
        <source>正在删除文件...</source>
        <translation>A eliminar ficheiros...</translation>
    </message>
    <message>
        <source>%1%</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>已清理: %1</source>
        <translation>Espaço libertado: %1</translation>
    </message>
    <message>
        <source>完成!</source>
        <translation>Concluído!</translation>
    </message>
    <message>
        <source>操作失败</source>
        <translation>A operação falhou</translation>
    </message>
</context>
<context>
    <name>RegistryBackup</name>
    <message>
        <source>There is no such folder</source>
        <translation>A pasta não existe</translation>
    </message>
    <message>
        <source>It is a file of the registry itself</source>
        <translation>É um ficheiro do próprio registo</translation>
    </message>
    <message>
        <source>A folder stands there</source>
        <translation>Já existe uma pasta nesse local</translation>
    </message>
    <message>
        <source>A link stands there, which leads elsewhere</source>
        <translation>Nesse local há uma ligação que conduz a outro lugar</translation>
    </message>
    <message>
        <source>What stands there is not a file</source>
        <translation>O que existe nesse local não é um ficheiro</translation>
    </message>
</context>
<context>
    <name>RegistryBackupDialog</name>
    <message>
        <source>Backup registry before cleaning (Recommended)</source>
        <translation>Fazer cópia de segurança antes da limpeza (recomendado)</translation>
    </message>
    <message>
        <source>Clean Registry</source>
        <translation>Limpar registo</translation>
    </message>
    <message>
        <source>About to clean &lt;b&gt;%1&lt;/b&gt; invalid registry entries</source>
        <translation>Entradas inválidas do registo a limpar: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>⚠️ Backup file can be used to restore accidentally deleted registry entries</source>
        <translation>⚠️ A cópia de segurança permite restaurar entradas do registo eliminadas por engano</translation>
    </message>
    <message>
        <source>Save to:</source>
        <translation>Destino:</translation>
    </message>
    <message>
        <source>Backup file</source>
        <translation>Ficheiro da cópia de segurança</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Procurar...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Start Cleaning</source>
        <translation>Iniciar limpeza</translation>
    </message>
    <message>
        <source>Select backup location</source>
        <translation>Selecionar localização da cópia de segurança</translation>
    </message>
    <message>
        <source>Registry files (*.reg)</source>
        <translation>Ficheiros do registo (*.reg)</translation>
    </message>
    <message>
        <source>The backup cannot be written here:
%1

%2</source>
        <translation>Não é possível guardar a cópia de segurança aqui:
%1

%2</translation>
    </message>
    <message>
        <source>There is a file of this name already:
%1

Replace it?</source>
        <translation>Já existe um ficheiro com este nome:
%1

Pretende substituí-lo?</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>Não é possível criar a pasta.</translation>
    </message>
    <message>
        <source>The file is write-protected.</source>
        <translation>O ficheiro está protegido contra escrita.</translation>
    </message>
</context>
<context>
    <name>RegistryChecks</name>
    <message>
        <source>Path: %1</source>
        <translation>Caminho: %1</translation>
    </message>
    <message>
        <source>Command: %1</source>
        <translation>Comando: %1</translation>
    </message>
    <message>
        <source>DLL: %1</source>
        <translatorcomment>same</translatorcomment>
        <translation>DLL: %1</translation>
    </message>
    <message>
        <source>EXE: %1</source>
        <translatorcomment>same</translatorcomment>
        <translation>EXE: %1</translation>
    </message>
    <message>
        <source>Font file: %1</source>
        <translation>Ficheiro de tipo de letra: %1</translation>
    </message>
    <message>
        <source>DLL path: %1</source>
        <translation>Caminho da DLL: %1</translation>
    </message>
</context>
<context>
    <name>RegistryCleaner</name>
    <message>
        <source>Invalid Software Paths</source>
        <translation>Caminhos de software inválidos</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent locations</source>
        <translation>Entradas do registo que apontam para localizações inexistentes</translation>
    </message>
    <message>
        <source>Invalid File Associations</source>
        <translation>Associações de ficheiros inválidas</translation>
    </message>
    <message>
        <source>File associations pointing to missing programs</source>
        <translation>Associações de ficheiros que apontam para programas inexistentes</translation>
    </message>
    <message>
        <source>Invalid COM/ActiveX</source>
        <translation>Itens COM/ActiveX inválidos</translation>
    </message>
    <message>
        <source>Invalid COM components and ActiveX controls</source>
        <translation>Componentes COM e controlos ActiveX inválidos</translation>
    </message>
    <message>
        <source>Invalid Font References</source>
        <translation>Referências a tipos de letra inválidas</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent font files</source>
        <translation>Entradas do registo que apontam para ficheiros de tipos de letra inexistentes</translation>
    </message>
    <message>
        <source>Invalid Startup Items</source>
        <translation>Itens de arranque inválidos</translation>
    </message>
    <message>
        <source>Startup items pointing to non-existent programs</source>
        <translation>Itens de arranque que apontam para programas inexistentes</translation>
    </message>
    <message>
        <source>Invalid Shared DLLs</source>
        <translation>DLL partilhadas inválidas</translation>
    </message>
    <message>
        <source>References to non-existent shared DLL files</source>
        <translation>Referências a ficheiros DLL partilhados inexistentes</translation>
    </message>
    <message>
        <source>MUI Cache</source>
        <translation>Cache MUI</translation>
    </message>
    <message>
        <source>Application MUI cache data</source>
        <translation>Dados da cache MUI das aplicações</translation>
    </message>
    <message>
        <source>Scanning invalid software paths...</source>
        <translation>A procurar caminhos de software inválidos...</translation>
    </message>
    <message>
        <source>Scanning invalid file associations...</source>
        <translation>A procurar associações de ficheiros inválidas...</translation>
    </message>
    <message>
        <source>Scanning invalid COM components...</source>
        <translation>A procurar componentes COM inválidos...</translation>
    </message>
    <message>
        <source>Scanning invalid font references...</source>
        <translation>A procurar referências a tipos de letra inválidas...</translation>
    </message>
    <message>
        <source>Scanning invalid startup items...</source>
        <translation>A procurar itens de arranque inválidos...</translation>
    </message>
    <message>
        <source>Scanning invalid shared DLLs...</source>
        <translation>A procurar DLL partilhadas inválidas...</translation>
    </message>
    <message>
        <source>Scanning MUI cache...</source>
        <translation>A analisar a cache MUI...</translation>
    </message>
    <message>
        <source>Its name cannot be told from a path</source>
        <translation>Não é possível distinguir o nome de um caminho</translation>
    </message>
    <message>
        <source>It has changed since the scan</source>
        <translation>A entrada mudou desde a análise</translation>
    </message>
    <message>
        <source>It could not be read again before the clean</source>
        <translation>Não foi possível lê-la novamente antes da limpeza</translation>
    </message>
</context>
<context>
    <name>RegistryPage</name>
    <message>
        <source>Registry Cleaner</source>
        <translation>Limpeza do registo</translation>
    </message>
    <message>
        <source>Clean invalid registry entries</source>
        <translation>Limpe entradas inválidas do registo</translation>
    </message>
    <message>
        <source>Issues Found</source>
        <translation>Erros encontrados</translation>
    </message>
    <message>
        <source>选中: --</source>
        <translation>Itens selecionados: --</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>没有选中任何项目</source>
        <translation>Nenhum item selecionado</translation>
    </message>
    <message>
        <source>Entries removed without a backup: %1</source>
        <translation>Entradas removidas sem cópia de segurança: %1</translation>
    </message>
    <message>
        <source>No entries were removed.</source>
        <translation>Nenhuma entrada foi removida.</translation>
    </message>
    <message>
        <source>The registry backup could not be written:
%1

%2</source>
        <translation>Não foi possível guardar a cópia de segurança do registo:
%1

%2</translation>
    </message>
</context>
<context>
    <name>RegistryRestore</name>
    <message>
        <source>this is not a registry backup</source>
        <translation>isto não é uma cópia de segurança do registo</translation>
    </message>
    <message>
        <source>the file breaks off here</source>
        <translation>o ficheiro termina aqui inesperadamente</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>linha %1: %2</translation>
    </message>
    <message>
        <source>the line does not end where it should</source>
        <translation>a linha não termina onde devia</translation>
    </message>
    <message>
        <source>the key has no end</source>
        <translation>a chave não está fechada</translation>
    </message>
    <message>
        <source>the key&apos;s path is not complete</source>
        <translation>o caminho da chave está incompleto</translation>
    </message>
    <message>
        <source>the key lies in no known hive</source>
        <translation>a chave não pertence a nenhum ramo conhecido</translation>
    </message>
    <message>
        <source>there is no key before this line</source>
        <translation>não há nenhuma chave antes desta linha</translation>
    </message>
    <message>
        <source>this is neither a key nor a value</source>
        <translation>isto não é uma chave nem um valor</translation>
    </message>
    <message>
        <source>a value&apos;s name has no value</source>
        <translation>há um nome de valor sem valor atribuído</translation>
    </message>
    <message>
        <source>the kind of the value is not known</source>
        <translation>o formato do valor é desconhecido</translation>
    </message>
    <message>
        <source>a backslash stands before something else than a quote or a backslash</source>
        <translation>há uma barra invertida que não precede aspas nem outra barra invertida</translation>
    </message>
    <message>
        <source>the text has no closing quote</source>
        <translation>faltam as aspas de fecho do texto</translation>
    </message>
    <message>
        <source>eight hexadecimal digits are wanted here</source>
        <translation>são esperados aqui oito dígitos hexadecimais</translation>
    </message>
    <message>
        <source>the type of the value is not a number</source>
        <translation>o tipo do valor não é um número</translation>
    </message>
    <message>
        <source>a byte of two hexadecimal digits is wanted here</source>
        <translation>é esperado aqui um byte com dois dígitos hexadecimais</translation>
    </message>
    <message>
        <source>the list of bytes breaks off</source>
        <translation>a lista de bytes está incompleta</translation>
    </message>
    <message>
        <source>The restoring was cancelled</source>
        <translation>A restauração foi cancelada</translation>
    </message>
</context>
<context>
    <name>RegistryTexts</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Não é possível ler %1: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not the path of a key</source>
        <translation>«%1» não é o caminho de uma chave</translation>
    </message>
    <message>
        <source>There is no such key</source>
        <translation>A chave não existe</translation>
    </message>
    <message>
        <source>The key is a link to another one</source>
        <translation>A chave é uma ligação para outra chave</translation>
    </message>
    <message>
        <source>There are keys below it</source>
        <translation>A chave contém subchaves</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>O valor não existe</translation>
    </message>
    <message>
        <source>There is no registry</source>
        <translation>Não foi possível encontrar o registo</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Não é possível escrever em %1: %2</translation>
    </message>
    <message>
        <source>Windows programs are running in the Wine prefix %1; end them and try again</source>
        <translation>Há programas do Windows em execução no prefixo Wine %1; termine-os e tente novamente</translation>
    </message>
    <message>
        <source>%1 was changed by another program; scan again</source>
        <translation>%1 foi alterado por outro programa; repita a análise</translation>
    </message>
    <message>
        <source>A value without a name is not written</source>
        <translation>Não é possível escrever um valor sem nome</translation>
    </message>
    <message>
        <source>The name or the text cannot be stored as it is</source>
        <translation>Não é possível guardar o nome ou o texto tal como está</translation>
    </message>
    <message>
        <source>The registry did not take the value</source>
        <translation>O registo não aceitou o valor</translation>
    </message>
    <message>
        <source>The registry did not let go of the value</source>
        <translation>O registo não permitiu remover o valor</translation>
    </message>
    <message>
        <source>A class is changed in the user&apos;s or in the machine&apos;s hive</source>
        <translation>Uma classe altera-se no ramo do utilizador ou no do computador</translation>
    </message>
    <message>
        <source>It is not a registry file</source>
        <translation>Não é um ficheiro do registo</translation>
    </message>
    <message>
        <source>It is damaged</source>
        <translation>Está danificado</translation>
    </message>
</context>
<context>
    <name>ResultWidget</name>
    <message>
        <source>Expanded</source>
        <translation>Expandido</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Fechado</translation>
    </message>
</context>
<context>
    <name>ScanProgressDialog</name>
    <message>
        <source>Scanning for large files...</source>
        <translation>A procurar ficheiros grandes...</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>A preparar...</translation>
    </message>
    <message>
        <source>Found %1 large files (%2)</source>
        <translation>Ficheiros grandes encontrados: %1 (%2)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Scanning: %1</source>
        <translation>A analisar: %1</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Start with Windows</source>
        <translation>Iniciar com o Windows</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Minimizar para a área de notificação ao fechar</translation>
    </message>
    <message>
        <source>Confirm before cleaning</source>
        <translation>Confirmar antes de limpar</translation>
    </message>
    <message>
        <source>Auto backup before registry cleaning</source>
        <translation>Fazer cópia de segurança antes de limpar o registo</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Limpeza</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>The settings could not be saved:
%1</source>
        <translation>Não foi possível guardar as definições:
%1</translation>
    </message>
</context>
<context>
    <name>StartupCard</name>
    <message>
        <source>Start %1 automatically</source>
        <translation>Iniciar %1 automaticamente</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativado</translation>
    </message>
</context>
<context>
    <name>StartupPage</name>
    <message>
        <source>Startup Manager</source>
        <translation>Gestão do arranque</translation>
    </message>
    <message>
        <source>Check programs to enable auto-start at boot</source>
        <translation>Marque os programas a iniciar no arranque</translation>
    </message>
    <message>
        <source>%1 programs</source>
        <translation>Programas: %1</translation>
    </message>
    <message>
        <source>Search programs...</source>
        <translation>Procurar programas...</translation>
    </message>
    <message>
        <source>Search programs</source>
        <translation>Procurar programas</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Checked programs will run automatically at startup</source>
        <translation>Os programas marcados são executados automaticamente no arranque</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>A procurar programas instalados...</translation>
    </message>
    <message>
        <source>First load may take a few seconds</source>
        <translation>O primeiro carregamento pode demorar alguns segundos</translation>
    </message>
    <message>
        <source>%1 programs · %2 startup items</source>
        <translation>Programas: %1 · Itens de arranque: %2</translation>
    </message>
    <message>
        <source>Failed to add startup item</source>
        <translation>Não foi possível adicionar o item de arranque</translation>
    </message>
    <message>
        <source>Failed to remove startup item</source>
        <translation>Não foi possível remover o item de arranque</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>A operação falhou</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Menu</source>
        <translatorcomment>same</translatorcomment>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Suporte</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Idioma alterado</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>O idioma foi alterado.

O programa será agora reiniciado.</translation>
    </message>
    <message>
        <source>The application could not be restarted. Please start it again yourself.</source>
        <translation>Não foi possível reiniciar o programa. Inicie-o manualmente.</translation>
    </message>
    <message>
        <source>The language could not be saved and does not change:
%1</source>
        <translation>Não foi possível guardar o idioma, pelo que não muda:
%1</translation>
    </message>
</context>
<context>
    <name>Worker</name>
    <message>
        <source>The system cannot start another thread. End some programs and try again.</source>
        <translation>O sistema não consegue iniciar outro thread. Feche alguns programas e tente novamente.</translation>
    </message>
</context>
<context>
    <name>formatSize</name>
    <message>
        <source>0 B</source>
        <translatorcomment>same</translatorcomment>
        <translation>0 B</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1 KB</translation>
    </message>
</context>
</TS>
