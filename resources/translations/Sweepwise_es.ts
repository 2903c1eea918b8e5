<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Your Personal System Butler

🧹 Junk Cleaner - Free up valuable disk space
🌐 Browser Cleaner - Protect your privacy
🔧 Registry Cleaner - Boost system performance
⚡ Startup Manager - Speed up boot time</source>
        <translation>El mayordomo personal de su PC

🧹 Limpiar basura - Libere espacio en disco
🌐 Limpiar navegador - Proteja su privacidad
🔧 Limpiar Registro - Mejore el rendimiento
⚡ Gestor de inicio - Acelere el arranque</translation>
    </message>
    <message>
        <source>© 2026 Norvak. All rights reserved.</source>
        <translation>© 2026 Norvak. Todos los derechos reservados.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>BasePage</name>
    <message>
        <source>Cleanup Tool</source>
        <translation>Herramienta de limpieza</translation>
    </message>
    <message>
        <source>Scan and clean up unnecessary files</source>
        <translation>Analice su PC y limpie los archivos innecesarios</translation>
    </message>
    <message>
        <source>Cleanable</source>
        <translation>Se puede limpiar</translation>
    </message>
    <message>
        <source>Click &quot;Start Scanning&quot; to find cleanable items</source>
        <translation>Haga clic en «Iniciar análisis» para buscar elementos que limpiar</translation>
    </message>
    <message>
        <source>Start Scanning</source>
        <translation>Iniciar análisis</translation>
    </message>
    <message>
        <source>Clean Now</source>
        <translation>Limpiar ahora</translation>
    </message>
    <message>
        <source>Selected: --</source>
        <translation>Seleccionados: --</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>No items selected</source>
        <translation>No hay ningún elemento seleccionado</translation>
    </message>
    <message>
        <source>Confirm Clean</source>
        <translation>Confirmar limpieza</translation>
    </message>
    <message>
        <source>Are you sure you want to clean %1 selected items?
This action cannot be undone!</source>
        <translation>¿Seguro que quiere limpiar los elementos seleccionados (%1)?
Esta acción no se puede deshacer.</translation>
    </message>
    <message>
        <source>Selected: %1 items, %2</source>
        <translation>Seleccionados: %1 (%2)</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Total: %1</translation>
    </message>
    <message>
        <source>Selected: %1 items</source>
        <translation>Seleccionados: %1</translation>
    </message>
    <message>
        <source>Cleaned %1 items, freed %2</source>
        <translation>Elementos limpiados: %1; espacio liberado: %2</translation>
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
        <translation>No se ha encontrado el archivo</translation>
    </message>
    <message>
        <source>Holds part of a database: removing it loses data saved by the browser, websites or extensions</source>
        <translation>Contiene parte de una base de datos: si se elimina, se pierden datos guardados por el navegador, los sitios web o las extensiones</translation>
    </message>
    <message>
        <source>Belongs to an extension, which does not work without all its files</source>
        <translation>Pertenece a una extensión, que no funciona si le falta algún archivo</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>Su carpeta no es la que figuraba en la lista</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>Show the data of %1</source>
        <translation>Mostrar los datos de %1</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Elementos: %1</translation>
    </message>
</context>
<context>
    <name>BrowserPage</name>
    <message>
        <source>Browser Cleaner</source>
        <translation>Limpiar navegador</translation>
    </message>
    <message>
        <source>Clean browser cache, cookies and history</source>
        <translation>Limpie la caché, las cookies y el historial de los navegadores</translation>
    </message>
    <message>
        <source>Cleanable Data</source>
        <translation>Datos por limpiar</translation>
    </message>
    <message>
        <source>Select Browser:</source>
        <translation>Navegadores:</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otros</translation>
    </message>
</context>
<context>
    <name>BrowserRule</name>
    <message>
        <source>Browser Cache</source>
        <translation>Caché del navegador</translation>
    </message>
    <message>
        <source>Temporary web page cache files</source>
        <translation>Archivos temporales de la caché de páginas web</translation>
    </message>
    <message>
        <source>Code Cache</source>
        <translation>Caché de código</translation>
    </message>
    <message>
        <source>JavaScript code cache</source>
        <translation>Caché de código JavaScript</translation>
    </message>
    <message>
        <source>GPU Cache</source>
        <translation>Caché de la GPU</translation>
    </message>
    <message>
        <source>GPU rendering cache</source>
        <translation>Caché de renderizado de la GPU</translation>
    </message>
    <message>
        <source>Shader Cache</source>
        <translation>Caché de sombreadores</translation>
    </message>
    <message>
        <source>GPU shader compilation cache</source>
        <translation>Caché de compilación de sombreadores de la GPU</translation>
    </message>
    <message>
        <source>Service Workers</source>
        <translatorcomment>same</translatorcomment>
        <translation>Service Workers</translation>
    </message>
    <message>
        <source>Service Worker cache</source>
        <translation>Caché de los Service Workers</translation>
    </message>
    <message>
        <source>Media Cache</source>
        <translation>Caché multimedia</translation>
    </message>
    <message>
        <source>Media file cache</source>
        <translation>Caché de archivos multimedia</translation>
    </message>
    <message>
        <source>Network Cache</source>
        <translation>Caché de red</translation>
    </message>
    <message>
        <source>HTTP network request cache</source>
        <translation>Caché de solicitudes de red HTTP</translation>
    </message>
    <message>
        <source>Jump List</source>
        <translation>Lista de accesos directos</translation>
    </message>
    <message>
        <source>Taskbar Jump List icon cache</source>
        <translation>Caché de iconos de la lista de accesos directos de la barra de tareas</translation>
    </message>
    <message>
        <source>Blob Storage</source>
        <translation>Almacenamiento de blobs</translation>
    </message>
    <message>
        <source>Temporary binary data storage</source>
        <translation>Almacenamiento temporal de datos binarios</translation>
    </message>
    <message>
        <source>WebRTC Logs</source>
        <translation>Archivos de registro de WebRTC</translation>
    </message>
    <message>
        <source>Video call debug logs</source>
        <translation>Archivos de registro de depuración de videollamadas</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Informes de bloqueos</translation>
    </message>
    <message>
        <source>Browser crash report files</source>
        <translation>Archivos de informes de bloqueos del navegador</translation>
    </message>
    <message>
        <source>Browser Logs</source>
        <translation>Archivos de registro del navegador</translation>
    </message>
    <message>
        <source>Browser debug and error logs</source>
        <translation>Archivos de registro de depuración y de errores del navegador</translation>
    </message>
    <message>
        <source>Website Thumbnails</source>
        <translation>Miniaturas de sitios web</translation>
    </message>
    <message>
        <source>New Tab page website thumbnails</source>
        <translation>Miniaturas de sitios web de la página Nueva pestaña</translation>
    </message>
    <message>
        <source>Favicon Cache</source>
        <translation>Caché de favicons</translation>
    </message>
    <message>
        <source>Website icon (favicon) cache</source>
        <translation>Caché de iconos de sitios web (favicons)</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>Caché de fuentes</translation>
    </message>
    <message>
        <source>Web font cache files</source>
        <translation>Archivos de caché de fuentes web</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Almacenamiento local</translation>
    </message>
    <message>
        <source>Website Local Storage (site settings may be lost)</source>
        <translation>Almacenamiento local de los sitios web (puede perderse su configuración)</translation>
    </message>
    <message>
        <source>IndexedDB</source>
        <translatorcomment>same</translatorcomment>
        <translation>IndexedDB</translation>
    </message>
    <message>
        <source>Website database storage (offline data may be lost)</source>
        <translation>Bases de datos de los sitios web (pueden perderse los datos sin conexión)</translation>
    </message>
    <message>
        <source>Cookies</source>
        <translatorcomment>same</translatorcomment>
        <translation>Cookies</translation>
    </message>
    <message>
        <source>Website Cookies (requires re-login to all sites)</source>
        <translation>Cookies de los sitios web (habrá que volver a iniciar sesión en todos)</translation>
    </message>
    <message>
        <source>Browsing History</source>
        <translation>Historial de navegación</translation>
    </message>
    <message>
        <source>Web browsing history records</source>
        <translation>Historial de las páginas web visitadas</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Historial de descargas</translation>
    </message>
    <message>
        <source>Download history records (downloaded files are not deleted)</source>
        <translation>Historial de descargas (los archivos descargados no se eliminan)</translation>
    </message>
    <message>
        <source>Session Data</source>
        <translation>Datos de sesión</translation>
    </message>
    <message>
        <source>Current and recent session data (tabs may be lost)</source>
        <translation>Datos de la sesión actual y de las recientes (pueden perderse pestañas)</translation>
    </message>
    <message>
        <source>Form Data</source>
        <translation>Datos de formularios</translation>
    </message>
    <message>
        <source>Autofill form data (requires re-entry after cleaning)</source>
        <translation>Datos para autocompletar formularios (habrá que volver a escribirlos)</translation>
    </message>
    <message>
        <source>Safe Browsing Data</source>
        <translation>Datos de Navegación segura</translation>
    </message>
    <message>
        <source>Safe Browsing protection data (not recommended to clean)</source>
        <translation>Datos de protección de Navegación segura (no se recomienda limpiarlos)</translation>
    </message>
</context>
<context>
    <name>BrowserSubItem</name>
    <message>
        <source>%1 items</source>
        <translation>Elementos: %1</translation>
    </message>
    <message>
        <source>View Details</source>
        <translation>Ver detalles</translation>
    </message>
    <message>
        <source>View details of %1</source>
        <translation>Ver detalles de %1</translation>
    </message>
</context>
<context>
    <name>CategoryWidget</name>
    <message>
        <source>View Details</source>
        <translation>Ver detalles</translation>
    </message>
    <message>
        <source>Show items of %1</source>
        <translation>Mostrar los elementos de %1</translation>
    </message>
    <message>
        <source>Load more (%1 remaining)</source>
        <translation>Cargar más (restantes: %1)</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Elementos: %1</translation>
    </message>
    <message>
        <source>%1: %2 items, view details</source>
        <translation>%1, elementos: %2, ver detalles</translation>
    </message>
</context>
<context>
    <name>CircleProgressWidget</name>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
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
        <translation>Medio</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bajo</translation>
    </message>
    <message>
        <source>Risk: %1</source>
        <translation>Riesgo: %1</translation>
    </message>
</context>
<context>
    <name>DashboardResultsPanel</name>
    <message>
        <source>Can be cleaned</source>
        <translation>Se puede limpiar</translation>
    </message>
    <message>
        <source>Keep Your PC Running at Peak Performance</source>
        <translation>Mantenga su PC al máximo rendimiento</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 Analizar</translation>
    </message>
    <message>
        <source>🗑️ Clean All</source>
        <translation>🗑️ Limpiar todo</translation>
    </message>
    <message>
        <source>Junk Files</source>
        <translation>Archivos basura</translation>
    </message>
    <message>
        <source>Browser Data</source>
        <translation>Datos de navegadores</translation>
    </message>
    <message>
        <source>Registry Issues</source>
        <translation>Fallos del Registro</translation>
    </message>
    <message>
        <source>&lt;span style=&apos;font-weight:600;&apos;&gt;Tip:&lt;/span&gt; Regular cleaning can improve your PC performance by up to 30%</source>
        <translation>&lt;span style=&apos;font-weight:600;&apos;&gt;Consejo:&lt;/span&gt; La limpieza periódica puede mejorar el rendimiento de su PC hasta en un 30&#xa0;%</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Analizando...</translation>
    </message>
    <message>
        <source>Ready to scan</source>
        <translation>Listo para analizar</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Total: %1</translation>
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
        <translation>🔍  Analizar todo</translation>
    </message>
    <message>
        <source>Ready to Clean Your PC</source>
        <translation>Listo para limpiar su PC</translation>
    </message>
    <message>
        <source>Click the button below to scan for junk files and free up space</source>
        <translation>Haga clic en el botón de abajo para buscar archivos basura y liberar espacio</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Analizando...</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>DetailItemWidget</name>
    <message>
        <source>Open file location</source>
        <translation>Abrir ubicación del archivo</translation>
    </message>
    <message>
        <source>Open file location of %1</source>
        <translation>Abrir ubicación del archivo %1</translation>
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
        <translation>%1 (extraíble)</translation>
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
        <translation>Usado: %1&#xa0;%</translation>
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
        <translation>No se ha podido abrir el gestor de archivos para mostrar este archivo:
%1</translation>
    </message>
    <message>
        <source>This file no longer exists:
%1</source>
        <translation>Este archivo ya no existe:
%1</translation>
    </message>
</context>
<context>
    <name>ItemDetailDialog</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>%1  |  %2 files</source>
        <translation>%1  |  Archivos: %2</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Elementos: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
</context>
<context>
    <name>JunkCleaner</name>
    <message>
        <source>File not found</source>
        <translation>No se ha encontrado el archivo</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>Su carpeta no es la que figuraba en la lista</translation>
    </message>
</context>
<context>
    <name>JunkPage</name>
    <message>
        <source>Junk Cleaner</source>
        <translation>Limpiar basura</translation>
    </message>
    <message>
        <source>Clean system temp files, cache and logs</source>
        <translation>Limpie archivos temporales, caché y registros (log)</translation>
    </message>
    <message>
        <source>Cleanable Space</source>
        <translation>Espacio recuperable</translation>
    </message>
</context>
<context>
    <name>JunkRule</name>
    <message>
        <source>System Temporary Files</source>
        <translation>Archivos temporales del sistema</translation>
    </message>
    <message>
        <source>Files in Windows Temp folders</source>
        <translation>Archivos de las carpetas Temp de Windows</translation>
    </message>
    <message>
        <source>Prefetch Files</source>
        <translation>Archivos de Prefetch</translation>
    </message>
    <message>
        <source>Windows Prefetch cache files</source>
        <translation>Archivos de caché de Prefetch de Windows</translation>
    </message>
    <message>
        <source>Thumbnail Cache</source>
        <translation>Caché de miniaturas</translation>
    </message>
    <message>
        <source>Explorer thumbnail and icon cache files</source>
        <translation>Archivos de caché de miniaturas e iconos del Explorador</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>Archivos de registro (log)</translation>
    </message>
    <message>
        <source>Windows setup, servicing and device log files</source>
        <translation>Archivos de registro de instalación, mantenimiento y dispositivos de Windows</translation>
    </message>
    <message>
        <source>Windows Update Logs</source>
        <translation>Archivos de registro de Windows Update</translation>
    </message>
    <message>
        <source>Windows Update history and event logs</source>
        <translation>Historial y registros de eventos de Windows Update</translation>
    </message>
    <message>
        <source>IIS Log Files</source>
        <translation>Archivos de registro de IIS</translation>
    </message>
    <message>
        <source>Web server and HTTP error log files</source>
        <translation>Archivos de registro del servidor web y de errores HTTP</translation>
    </message>
    <message>
        <source>Memory Dumps</source>
        <translation>Volcados de memoria</translation>
    </message>
    <message>
        <source>Memory dumps left by system and program crashes</source>
        <translation>Volcados de memoria de bloqueos del sistema y de programas</translation>
    </message>
    <message>
        <source>Windows Update Cache</source>
        <translation>Caché de Windows Update</translation>
    </message>
    <message>
        <source>Downloaded Windows Update installation files</source>
        <translation>Archivos de instalación descargados por Windows Update</translation>
    </message>
    <message>
        <source>Error Reports</source>
        <translation>Informes de errores</translation>
    </message>
    <message>
        <source>Queued and archived program error reports</source>
        <translation>Informes de errores de programas, en cola y archivados</translation>
    </message>
    <message>
        <source>Delivery Optimization Files</source>
        <translation>Optimización de distribución</translation>
    </message>
    <message>
        <source>Update files kept for sharing with other PCs</source>
        <translation>Archivos de actualización guardados para compartirlos con otros equipos</translation>
    </message>
    <message>
        <source>Windows Defender Scan History</source>
        <translation>Historial de análisis de Windows Defender</translation>
    </message>
    <message>
        <source>Windows Defender scan history and definition backups</source>
        <translation>Historial de análisis y copias de seguridad de las definiciones de Windows Defender</translation>
    </message>
    <message>
        <source>.NET Framework Cache Logs</source>
        <translation>Archivos de registro de .NET Framework</translation>
    </message>
    <message>
        <source>.NET temporary web files and usage logs</source>
        <translation>Archivos web temporales y registros de uso de .NET</translation>
    </message>
    <message>
        <source>System Integrity Check Logs</source>
        <translation>Archivos de registro de integridad</translation>
    </message>
    <message>
        <source>Logs of system file and component checks</source>
        <translation>Archivos de registro de las comprobaciones de archivos y componentes del sistema</translation>
    </message>
    <message>
        <source>Installer Cache</source>
        <translation>Caché del instalador</translation>
    </message>
    <message>
        <source>Windows Installer patch cache, needed to uninstall some updates</source>
        <translation>Caché de revisiones de Windows Installer, necesaria para desinstalar algunas actualizaciones</translation>
    </message>
    <message>
        <source>Recent Documents</source>
        <translation>Documentos recientes</translation>
    </message>
    <message>
        <source>Shortcuts to recently opened documents</source>
        <translation>Accesos directos a documentos abiertos recientemente</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>Caché de fuentes</translation>
    </message>
    <message>
        <source>Windows font cache files</source>
        <translation>Archivos de caché de fuentes de Windows</translation>
    </message>
    <message>
        <source>Old Windows Installation</source>
        <translation>Instalación anterior de Windows</translation>
    </message>
    <message>
        <source>Files of a previous Windows installation, needed to go back to it</source>
        <translation>Archivos de una instalación anterior de Windows, necesarios para volver a ella</translation>
    </message>
    <message>
        <source>Web Cache</source>
        <translation>Caché web</translation>
    </message>
    <message>
        <source>Windows web cache, downloaded pages and cookies</source>
        <translation>Caché web de Windows, páginas descargadas y cookies</translation>
    </message>
    <message>
        <source>Office Cache</source>
        <translation>Caché de Office</translation>
    </message>
    <message>
        <source>Office document cache and unsaved files</source>
        <translation>Caché de documentos de Office y archivos sin guardar</translation>
    </message>
    <message>
        <source>Tencent Product Logs</source>
        <translation>Archivos de registro de Tencent</translation>
    </message>
    <message>
        <source>Log files of Tencent products</source>
        <translation>Archivos de registro de los productos de Tencent</translation>
    </message>
    <message>
        <source>NVIDIA Cache</source>
        <translation>Caché de NVIDIA</translation>
    </message>
    <message>
        <source>NVIDIA graphics shader cache</source>
        <translation>Caché de sombreadores gráficos de NVIDIA</translation>
    </message>
    <message>
        <source>AMD Cache</source>
        <translation>Caché de AMD</translation>
    </message>
    <message>
        <source>AMD graphics shader cache</source>
        <translation>Caché de sombreadores gráficos de AMD</translation>
    </message>
    <message>
        <source>DirectX Shader Cache</source>
        <translation>Caché de sombreadores de DirectX</translation>
    </message>
    <message>
        <source>Compiled DirectX shaders, made again when needed</source>
        <translation>Sombreadores de DirectX compilados; se vuelven a crear cuando hacen falta</translation>
    </message>
    <message>
        <source>Windows Search Data</source>
        <translation>Datos de Windows Search</translation>
    </message>
    <message>
        <source>Logs of the Windows Search indexer</source>
        <translation>Archivos de registro del indexador de Windows Search</translation>
    </message>
    <message>
        <source>Diagnostic Data</source>
        <translation>Datos de diagnóstico</translation>
    </message>
    <message>
        <source>Windows troubleshooting and diagnostic data</source>
        <translation>Datos de diagnóstico y solución de problemas de Windows</translation>
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
        <translation>Seleccione al menos una unidad para analizar.</translation>
    </message>
    <message>
        <source>Custom File Size</source>
        <translation>Tamaño personalizado</translation>
    </message>
    <message>
        <source>Enter minimum file size (MB):</source>
        <translation>Escriba el tamaño mínimo de archivo (MB):</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>Análisis completado</translation>
    </message>
    <message>
        <source>No large files found that match the criteria.</source>
        <translation>No se han encontrado archivos grandes que cumplan los criterios.</translation>
    </message>
    <message>
        <source>📂 Open file location</source>
        <translation>📂 Abrir ubicación del archivo</translation>
    </message>
    <message>
        <source>🗑️ Delete this file</source>
        <translation>🗑️ Eliminar este archivo</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this file?

%1
Size: %2

This action cannot be undone!</source>
        <translation>¿Seguro que quiere eliminar este archivo?

%1
Tamaño: %2

Esta acción no se puede deshacer.</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>Confirmar eliminación</translation>
    </message>
    <message>
        <source>Delete Failed</source>
        <translation>Error al eliminar</translation>
    </message>
    <message>
        <source>Unable to delete this file. It may be in use by another program.</source>
        <translation>No se puede eliminar este archivo. Es posible que otro programa lo esté usando.</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>All files have been deleted</source>
        <translation>Se han eliminado todos los archivos</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected %1 files?

Total: %2

This action cannot be undone!</source>
        <translation>¿Seguro que quiere eliminar los archivos seleccionados (%1)?

Total: %2

Esta acción no se puede deshacer.</translation>
    </message>
    <message>
        <source>Deleted %1 files successfully.</source>
        <translation>Archivos eliminados: %1.</translation>
    </message>
    <message>
        <source> %1 files failed to delete.</source>
        <translation> Archivos que no se han podido eliminar: %1.</translation>
    </message>
    <message>
        <source>Delete Completed</source>
        <translation>Eliminación completada</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>Error en la operación</translation>
    </message>
</context>
<context>
    <name>LargeFileResultsView</name>
    <message>
        <source>← Back</source>
        <translation>← Atrás</translation>
    </message>
    <message>
        <source>🗑️ Delete Selected</source>
        <translation>🗑️ Eliminar seleccionados</translation>
    </message>
    <message>
        <source>Scan Results</source>
        <translation>Resultados del análisis</translation>
    </message>
    <message>
        <source>Found %1 large files, total %2</source>
        <translation>Archivos encontrados: %1 (%2)</translation>
    </message>
    <message>
        <source>Selected: %1 files (%2)</source>
        <translation>Seleccionados: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>LargeFileSelectionView</name>
    <message>
        <source>Find Large Files</source>
        <translation>Buscar archivos grandes</translation>
    </message>
    <message>
        <source>Scan and clean files that take up a lot of disk space</source>
        <translation>Busque y elimine los archivos que ocupan mucho espacio en disco</translation>
    </message>
    <message>
        <source>Select Scan Location</source>
        <translation>Seleccione la ubicación que quiere analizar</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 Analizar</translation>
    </message>
    <message>
        <source>Minimum File Size:</source>
        <translation>Tamaño mínimo de archivo:</translation>
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
        <translation>Otro...</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Error de configuración</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>No se pueden cargar los enlaces de las páginas.

Contacte con el soporte técnico o reinstale el programa.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>No se puede abrir el navegador</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>No se puede abrir el navegador predeterminado.

Copie el enlace y ábralo manualmente:
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
        <translation>Panel principal</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>Limpiar basura</translation>
    </message>
    <message>
        <source>Browser Cleaner</source>
        <translation>Limpiar navegador</translation>
    </message>
    <message>
        <source>Registry Cleaner</source>
        <translation>Limpiar Registro</translation>
    </message>
    <message>
        <source>Startup Manager</source>
        <translation>Gestor de inicio</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>Archivos grandes</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>Mostrar la ventana principal</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Sweepwise - PC Cleaning Tool</source>
        <translation>Sweepwise - Herramienta de limpieza para PC</translation>
    </message>
    <message>
        <source>About Sweepwise</source>
        <translation>Acerca de Sweepwise</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Sweepwise - PC Cleaning Tool&lt;/h3&gt;&lt;p&gt;Version %1&lt;/p&gt;&lt;p&gt;Clean your PC with one click!&lt;br&gt;Remove junk files, browser data, and registry issues.&lt;/p&gt;&lt;p&gt;© 2026 Norvak. All rights reserved.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Sweepwise - Herramienta de limpieza para PC&lt;/h3&gt;&lt;p&gt;Versión %1&lt;/p&gt;&lt;p&gt;¡Limpie su PC con un solo clic!&lt;br&gt;Elimine basura, datos de navegadores y fallos del Registro.&lt;/p&gt;&lt;p&gt;© 2026 Norvak. Todos los derechos reservados.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Program minimized to system tray. Double-click the icon to restore.</source>
        <translation>El programa se ha minimizado en el área de notificación. Haga doble clic en el icono para restaurarlo.</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>A clean is still running. Start the scan when it is over.</source>
        <translation>Aún hay una limpieza en curso. Inicie el análisis cuando haya terminado.</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Scanning...</source>
        <translation>Analizando...</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>Limpiando...</translation>
    </message>
    <message>
        <source>正在分析系统...</source>
        <translation>Analizando el sistema...</translation>
    </message>
    <message>
        <source>正在删除文件...</source>
        <translation>Eliminando archivos...</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>已清理: %1</source>
        <translation>Limpiado: %1</translation>
    </message>
    <message>
        <source>完成!</source>
        <translation>¡Completado!</translation>
    </message>
    <message>
        <source>操作失败</source>
        <translation>Error en la operación</translation>
    </message>
</context>
<context>
    <name>RegistryBackup</name>
    <message>
        <source>There is no such folder</source>
        <translation>Esa carpeta no existe</translation>
    </message>
    <message>
        <source>It is a file of the registry itself</source>
        <translation>Es un archivo del propio Registro</translation>
    </message>
    <message>
        <source>A folder stands there</source>
        <translation>Ahí ya hay una carpeta</translation>
    </message>
    <message>
        <source>A link stands there, which leads elsewhere</source>
        <translation>Ahí hay un vínculo que lleva a otro lugar</translation>
    </message>
    <message>
        <source>What stands there is not a file</source>
        <translation>Lo que hay ahí no es un archivo</translation>
    </message>
</context>
<context>
    <name>RegistryBackupDialog</name>
    <message>
        <source>Backup registry before cleaning (Recommended)</source>
        <translation>Hacer copia de seguridad antes de limpiar (recomendado)</translation>
    </message>
    <message>
        <source>Clean Registry</source>
        <translation>Limpiar Registro</translation>
    </message>
    <message>
        <source>About to clean &lt;b&gt;%1&lt;/b&gt; invalid registry entries</source>
        <translation>Entradas no válidas del Registro que se van a limpiar: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>⚠️ Backup file can be used to restore accidentally deleted registry entries</source>
        <translation>⚠️ La copia de seguridad permite restaurar entradas del Registro eliminadas por error</translation>
    </message>
    <message>
        <source>Save to:</source>
        <translation>Destino:</translation>
    </message>
    <message>
        <source>Backup file</source>
        <translation>Archivo de copia de seguridad</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Start Cleaning</source>
        <translation>Iniciar limpieza</translation>
    </message>
    <message>
        <source>Select backup location</source>
        <translation>Seleccionar la ubicación de la copia de seguridad</translation>
    </message>
    <message>
        <source>Registry files (*.reg)</source>
        <translation>Archivos del Registro (*.reg)</translation>
    </message>
    <message>
        <source>The backup cannot be written here:
%1

%2</source>
        <translation>La copia de seguridad no se puede guardar aquí:
%1

%2</translation>
    </message>
    <message>
        <source>There is a file of this name already:
%1

Replace it?</source>
        <translation>Ya existe un archivo con este nombre:
%1

¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>No se puede crear la carpeta.</translation>
    </message>
    <message>
        <source>The file is write-protected.</source>
        <translation>El archivo está protegido contra escritura.</translation>
    </message>
</context>
<context>
    <name>RegistryChecks</name>
    <message>
        <source>Path: %1</source>
        <translation>Ruta: %1</translation>
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
        <translation>Archivo de fuente: %1</translation>
    </message>
    <message>
        <source>DLL path: %1</source>
        <translation>Ruta de la DLL: %1</translation>
    </message>
</context>
<context>
    <name>RegistryCleaner</name>
    <message>
        <source>Invalid Software Paths</source>
        <translation>Rutas de software no válidas</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent locations</source>
        <translation>Entradas del Registro que apuntan a ubicaciones inexistentes</translation>
    </message>
    <message>
        <source>Invalid File Associations</source>
        <translation>Asociaciones de archivos no válidas</translation>
    </message>
    <message>
        <source>File associations pointing to missing programs</source>
        <translation>Asociaciones de archivos que apuntan a programas inexistentes</translation>
    </message>
    <message>
        <source>Invalid COM/ActiveX</source>
        <translation>Elementos COM/ActiveX no válidos</translation>
    </message>
    <message>
        <source>Invalid COM components and ActiveX controls</source>
        <translation>Componentes COM y controles ActiveX no válidos</translation>
    </message>
    <message>
        <source>Invalid Font References</source>
        <translation>Referencias a fuentes no válidas</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent font files</source>
        <translation>Entradas del Registro que apuntan a archivos de fuente inexistentes</translation>
    </message>
    <message>
        <source>Invalid Startup Items</source>
        <translation>Elementos de inicio no válidos</translation>
    </message>
    <message>
        <source>Startup items pointing to non-existent programs</source>
        <translation>Elementos de inicio que apuntan a programas inexistentes</translation>
    </message>
    <message>
        <source>Invalid Shared DLLs</source>
        <translation>DLL compartidas no válidas</translation>
    </message>
    <message>
        <source>References to non-existent shared DLL files</source>
        <translation>Referencias a archivos DLL compartidos inexistentes</translation>
    </message>
    <message>
        <source>MUI Cache</source>
        <translation>Caché de MUI</translation>
    </message>
    <message>
        <source>Application MUI cache data</source>
        <translation>Datos de la caché de MUI de las aplicaciones</translation>
    </message>
    <message>
        <source>Scanning invalid software paths...</source>
        <translation>Buscando rutas de software no válidas...</translation>
    </message>
    <message>
        <source>Scanning invalid file associations...</source>
        <translation>Buscando asociaciones de archivos no válidas...</translation>
    </message>
    <message>
        <source>Scanning invalid COM components...</source>
        <translation>Buscando componentes COM no válidos...</translation>
    </message>
    <message>
        <source>Scanning invalid font references...</source>
        <translation>Buscando referencias a fuentes no válidas...</translation>
    </message>
    <message>
        <source>Scanning invalid startup items...</source>
        <translation>Buscando elementos de inicio no válidos...</translation>
    </message>
    <message>
        <source>Scanning invalid shared DLLs...</source>
        <translation>Buscando DLL compartidas no válidas...</translation>
    </message>
    <message>
        <source>Scanning MUI cache...</source>
        <translation>Analizando la caché de MUI...</translation>
    </message>
    <message>
        <source>Its name cannot be told from a path</source>
        <translation>No se puede distinguir su nombre de una ruta</translation>
    </message>
    <message>
        <source>It has changed since the scan</source>
        <translation>La entrada ha cambiado desde el análisis</translation>
    </message>
    <message>
        <source>It could not be read again before the clean</source>
        <translation>No se pudo volver a leer antes de la limpieza</translation>
    </message>
</context>
<context>
    <name>RegistryPage</name>
    <message>
        <source>Registry Cleaner</source>
        <translation>Limpiar Registro</translation>
    </message>
    <message>
        <source>Clean invalid registry entries</source>
        <translation>Limpie las entradas no válidas del Registro</translation>
    </message>
    <message>
        <source>Issues Found</source>
        <translation>Fallos encontrados</translation>
    </message>
    <message>
        <source>选中: --</source>
        <translation>Seleccionados: --</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>没有选中任何项目</source>
        <translation>No hay ningún elemento seleccionado</translation>
    </message>
    <message>
        <source>Entries removed without a backup: %1</source>
        <translation>Entradas eliminadas sin copia de seguridad: %1</translation>
    </message>
    <message>
        <source>No entries were removed.</source>
        <translation>No se ha eliminado ninguna entrada.</translation>
    </message>
    <message>
        <source>The registry backup could not be written:
%1

%2</source>
        <translation>No se ha podido guardar la copia de seguridad del Registro:
%1

%2</translation>
    </message>
</context>
<context>
    <name>RegistryRestore</name>
    <message>
        <source>this is not a registry backup</source>
        <translation>esto no es una copia de seguridad del Registro</translation>
    </message>
    <message>
        <source>the file breaks off here</source>
        <translation>el archivo se interrumpe aquí</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>the line does not end where it should</source>
        <translation>la línea no termina donde debería</translation>
    </message>
    <message>
        <source>the key has no end</source>
        <translation>a la clave le falta el cierre</translation>
    </message>
    <message>
        <source>the key&apos;s path is not complete</source>
        <translation>la ruta de la clave está incompleta</translation>
    </message>
    <message>
        <source>the key lies in no known hive</source>
        <translation>la clave no pertenece a ningún subárbol conocido</translation>
    </message>
    <message>
        <source>there is no key before this line</source>
        <translation>no hay ninguna clave antes de esta línea</translation>
    </message>
    <message>
        <source>this is neither a key nor a value</source>
        <translation>esto no es ni una clave ni un valor</translation>
    </message>
    <message>
        <source>a value&apos;s name has no value</source>
        <translation>falta el contenido después del nombre de un valor</translation>
    </message>
    <message>
        <source>the kind of the value is not known</source>
        <translation>se desconoce el formato del valor</translation>
    </message>
    <message>
        <source>a backslash stands before something else than a quote or a backslash</source>
        <translation>una barra invertida precede a algo que no es una comilla ni otra barra invertida</translation>
    </message>
    <message>
        <source>the text has no closing quote</source>
        <translation>al texto le faltan las comillas de cierre</translation>
    </message>
    <message>
        <source>eight hexadecimal digits are wanted here</source>
        <translation>aquí se esperan ocho dígitos hexadecimales</translation>
    </message>
    <message>
        <source>the type of the value is not a number</source>
        <translation>el tipo del valor no es un número</translation>
    </message>
    <message>
        <source>a byte of two hexadecimal digits is wanted here</source>
        <translation>aquí se espera un byte de dos dígitos hexadecimales</translation>
    </message>
    <message>
        <source>the list of bytes breaks off</source>
        <translation>la lista de bytes se interrumpe</translation>
    </message>
    <message>
        <source>The restoring was cancelled</source>
        <translation>La restauración se canceló</translation>
    </message>
</context>
<context>
    <name>RegistryTexts</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not the path of a key</source>
        <translation>«%1» no es la ruta de una clave</translation>
    </message>
    <message>
        <source>There is no such key</source>
        <translation>Esa clave no existe</translation>
    </message>
    <message>
        <source>The key is a link to another one</source>
        <translation>La clave es un vínculo a otra</translation>
    </message>
    <message>
        <source>There are keys below it</source>
        <translation>La clave contiene subclaves</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>Ese valor no existe</translation>
    </message>
    <message>
        <source>There is no registry</source>
        <translation>No se ha encontrado el Registro</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>No se puede escribir en %1: %2</translation>
    </message>
    <message>
        <source>Windows programs are running in the Wine prefix %1; end them and try again</source>
        <translation>Hay programas de Windows en ejecución en el prefijo de Wine %1; ciérrelos e inténtelo de nuevo</translation>
    </message>
    <message>
        <source>%1 was changed by another program; scan again</source>
        <translation>Otro programa ha modificado %1; vuelva a realizar el análisis</translation>
    </message>
    <message>
        <source>A value without a name is not written</source>
        <translation>No se puede escribir un valor sin nombre</translation>
    </message>
    <message>
        <source>The name or the text cannot be stored as it is</source>
        <translation>El nombre o el texto no se pueden guardar tal cual</translation>
    </message>
    <message>
        <source>The registry did not take the value</source>
        <translation>El Registro no ha aceptado el valor</translation>
    </message>
    <message>
        <source>The registry did not let go of the value</source>
        <translation>El Registro no ha permitido quitar el valor</translation>
    </message>
    <message>
        <source>A class is changed in the user&apos;s or in the machine&apos;s hive</source>
        <translation>Una clase se cambia en el subárbol del usuario o en el del equipo</translation>
    </message>
    <message>
        <source>It is not a registry file</source>
        <translation>No es un archivo del registro</translation>
    </message>
    <message>
        <source>It is damaged</source>
        <translation>Está dañado</translation>
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
        <translation>Contraído</translation>
    </message>
</context>
<context>
    <name>ScanProgressDialog</name>
    <message>
        <source>Scanning for large files...</source>
        <translation>Buscando archivos grandes...</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>Found %1 large files (%2)</source>
        <translation>Archivos grandes encontrados: %1 (%2)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Scanning: %1</source>
        <translation>Ruta: %1</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Start with Windows</source>
        <translation>Iniciar con Windows</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Minimizar en el área de notificación al cerrar</translation>
    </message>
    <message>
        <source>Confirm before cleaning</source>
        <translation>Confirmar antes de limpiar</translation>
    </message>
    <message>
        <source>Auto backup before registry cleaning</source>
        <translation>Hacer copia de seguridad antes de limpiar el Registro</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>General</source>
        <translatorcomment>same</translatorcomment>
        <translation>General</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Limpieza</translation>
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
        <translation>No se ha podido guardar la configuración:
%1</translation>
    </message>
</context>
<context>
    <name>StartupCard</name>
    <message>
        <source>Start %1 automatically</source>
        <translation>Iniciar %1 automáticamente</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Habilitado</translation>
    </message>
</context>
<context>
    <name>StartupPage</name>
    <message>
        <source>Startup Manager</source>
        <translation>Gestor de inicio</translation>
    </message>
    <message>
        <source>Check programs to enable auto-start at boot</source>
        <translation>Marque los programas que quiera iniciar con Windows</translation>
    </message>
    <message>
        <source>%1 programs</source>
        <translation>Programas: %1</translation>
    </message>
    <message>
        <source>Search programs...</source>
        <translation>Buscar programas...</translation>
    </message>
    <message>
        <source>Search programs</source>
        <translation>Buscar programas</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Checked programs will run automatically at startup</source>
        <translation>Los programas marcados se ejecutarán automáticamente al iniciar Windows</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>Buscando programas instalados...</translation>
    </message>
    <message>
        <source>First load may take a few seconds</source>
        <translation>La primera carga puede tardar unos segundos</translation>
    </message>
    <message>
        <source>%1 programs · %2 startup items</source>
        <translation>Programas: %1 · Elementos de inicio: %2</translation>
    </message>
    <message>
        <source>Failed to add startup item</source>
        <translation>No se ha podido agregar el elemento de inicio</translation>
    </message>
    <message>
        <source>Failed to remove startup item</source>
        <translation>No se ha podido quitar el elemento de inicio</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>Error en la operación</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
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
        <translation>Cerrar</translation>
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
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Soporte técnico</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Idioma cambiado</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>Se ha cambiado el idioma.

El programa se reiniciará ahora.</translation>
    </message>
    <message>
        <source>The application could not be restarted. Please start it again yourself.</source>
        <translation>No se ha podido reiniciar el programa. Vuelva a iniciarlo manualmente.</translation>
    </message>
    <message>
        <source>The language could not be saved and does not change:
%1</source>
        <translation>No se ha podido guardar el idioma, por lo que no cambia:
%1</translation>
    </message>
</context>
<context>
    <name>Worker</name>
    <message>
        <source>The system cannot start another thread. End some programs and try again.</source>
        <translation>El sistema no puede iniciar otro hilo. Cierre algunos programas e inténtelo de nuevo.</translation>
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
