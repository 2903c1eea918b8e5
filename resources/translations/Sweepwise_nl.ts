<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>Your Personal System Butler

🧹 Junk Cleaner - Free up valuable disk space
🌐 Browser Cleaner - Protect your privacy
🔧 Registry Cleaner - Boost system performance
⚡ Startup Manager - Speed up boot time</source>
        <translation>De persoonlijke butler voor uw pc

🧹 Schijf opruimen – maak kostbare ruimte vrij
🌐 Browser opruimen – bescherm uw privacy
🔧 Register opruimen – verbeter de prestaties
⚡ Opstartbeheer – laat uw pc sneller opstarten</translation>
    </message>
    <message>
        <source>© 2026 Norvak. All rights reserved.</source>
        <translation>© 2026 Norvak. Alle rechten voorbehouden.</translation>
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
        <translation>Opruimprogramma</translation>
    </message>
    <message>
        <source>Scan and clean up unnecessary files</source>
        <translation>Onnodige bestanden zoeken en opruimen</translation>
    </message>
    <message>
        <source>Cleanable</source>
        <translation>Op te ruimen</translation>
    </message>
    <message>
        <source>Click &quot;Start Scanning&quot; to find cleanable items</source>
        <translation>Klik op ‘Scan starten’ om te zoeken naar items die u kunt opruimen</translation>
    </message>
    <message>
        <source>Start Scanning</source>
        <translation>Scan starten</translation>
    </message>
    <message>
        <source>Clean Now</source>
        <translation>Nu opruimen</translation>
    </message>
    <message>
        <source>Selected: --</source>
        <translation>Geselecteerde items: --</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Melding</translation>
    </message>
    <message>
        <source>No items selected</source>
        <translation>Er zijn geen items geselecteerd</translation>
    </message>
    <message>
        <source>Confirm Clean</source>
        <translation>Opruimen bevestigen</translation>
    </message>
    <message>
        <source>Are you sure you want to clean %1 selected items?
This action cannot be undone!</source>
        <translation>Weet u zeker dat u de geselecteerde items (%1) wilt opruimen?
Dit kan niet ongedaan worden gemaakt!</translation>
    </message>
    <message>
        <source>Selected: %1 items, %2</source>
        <translation>Geselecteerde items: %1 (%2)</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Selected: %1 items</source>
        <translation>Geselecteerde items: %1</translation>
    </message>
    <message>
        <source>Cleaned %1 items, freed %2</source>
        <translation>Opgeruimde items: %1, vrijgemaakte ruimte: %2</translation>
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
        <translation>Bestand niet gevonden</translation>
    </message>
    <message>
        <source>Holds part of a database: removing it loses data saved by the browser, websites or extensions</source>
        <translation>Bevat een deel van een database: bij verwijderen gaan gegevens verloren die de browser, websites of extensies hebben opgeslagen</translation>
    </message>
    <message>
        <source>Belongs to an extension, which does not work without all its files</source>
        <translation>Hoort bij een extensie, die zonder al haar bestanden niet werkt</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>De map is niet de map die in de lijst stond</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>Show the data of %1</source>
        <translation>Gegevens van %1 weergeven</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Items: %1</translation>
    </message>
</context>
<context>
    <name>BrowserPage</name>
    <message>
        <source>Browser Cleaner</source>
        <translation>Browser opruimen</translation>
    </message>
    <message>
        <source>Clean browser cache, cookies and history</source>
        <translation>Browsercache, cookies en geschiedenis opruimen</translation>
    </message>
    <message>
        <source>Cleanable Data</source>
        <translation>Op te ruimen gegevens</translation>
    </message>
    <message>
        <source>Select Browser:</source>
        <translation>Browsers kiezen:</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Overige</translation>
    </message>
</context>
<context>
    <name>BrowserRule</name>
    <message>
        <source>Browser Cache</source>
        <translation>Browsercache</translation>
    </message>
    <message>
        <source>Temporary web page cache files</source>
        <translation>Tijdelijke cachebestanden van webpagina’s</translation>
    </message>
    <message>
        <source>Code Cache</source>
        <translation>Codecache</translation>
    </message>
    <message>
        <source>JavaScript code cache</source>
        <translation>Cache voor JavaScript-code</translation>
    </message>
    <message>
        <source>GPU Cache</source>
        <translation>GPU-cache</translation>
    </message>
    <message>
        <source>GPU rendering cache</source>
        <translation>Cache voor GPU-rendering</translation>
    </message>
    <message>
        <source>Shader Cache</source>
        <translation>Shadercache</translation>
    </message>
    <message>
        <source>GPU shader compilation cache</source>
        <translation>Cache voor gecompileerde GPU-shaders</translation>
    </message>
    <message>
        <source>Service Workers</source>
        <translation>Serviceworkers</translation>
    </message>
    <message>
        <source>Service Worker cache</source>
        <translation>Cache van serviceworkers</translation>
    </message>
    <message>
        <source>Media Cache</source>
        <translation>Mediacache</translation>
    </message>
    <message>
        <source>Media file cache</source>
        <translation>Cache voor mediabestanden</translation>
    </message>
    <message>
        <source>Network Cache</source>
        <translation>Netwerkcache</translation>
    </message>
    <message>
        <source>HTTP network request cache</source>
        <translation>Cache voor HTTP-netwerkaanvragen</translation>
    </message>
    <message>
        <source>Jump List</source>
        <translation>Jumplist</translation>
    </message>
    <message>
        <source>Taskbar Jump List icon cache</source>
        <translation>Pictogrammencache voor jumplists op de taakbalk</translation>
    </message>
    <message>
        <source>Blob Storage</source>
        <translation>Blob-opslag</translation>
    </message>
    <message>
        <source>Temporary binary data storage</source>
        <translation>Tijdelijke opslag van binaire gegevens</translation>
    </message>
    <message>
        <source>WebRTC Logs</source>
        <translation>WebRTC-logboeken</translation>
    </message>
    <message>
        <source>Video call debug logs</source>
        <translation>Foutopsporingslogboeken van videogesprekken</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Crashrapporten</translation>
    </message>
    <message>
        <source>Browser crash report files</source>
        <translation>Crashrapportbestanden van de browser</translation>
    </message>
    <message>
        <source>Browser Logs</source>
        <translation>Browserlogboeken</translation>
    </message>
    <message>
        <source>Browser debug and error logs</source>
        <translation>Foutopsporings- en foutlogboeken van de browser</translation>
    </message>
    <message>
        <source>Website Thumbnails</source>
        <translation>Websiteminiaturen</translation>
    </message>
    <message>
        <source>New Tab page website thumbnails</source>
        <translation>Miniaturen van websites op de pagina Nieuw tabblad</translation>
    </message>
    <message>
        <source>Favicon Cache</source>
        <translation>Faviconcache</translation>
    </message>
    <message>
        <source>Website icon (favicon) cache</source>
        <translation>Cache voor websitepictogrammen (favicons)</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>Lettertypecache</translation>
    </message>
    <message>
        <source>Web font cache files</source>
        <translation>Cachebestanden voor weblettertypen</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Lokale opslag</translation>
    </message>
    <message>
        <source>Website Local Storage (site settings may be lost)</source>
        <translation>Lokale opslag van websites (site-instellingen kunnen verloren gaan)</translation>
    </message>
    <message>
        <source>IndexedDB</source>
        <translatorcomment>same</translatorcomment>
        <translation>IndexedDB</translation>
    </message>
    <message>
        <source>Website database storage (offline data may be lost)</source>
        <translation>Databaseopslag van websites (offlinegegevens kunnen verloren gaan)</translation>
    </message>
    <message>
        <source>Cookies</source>
        <translatorcomment>same</translatorcomment>
        <translation>Cookies</translation>
    </message>
    <message>
        <source>Website Cookies (requires re-login to all sites)</source>
        <translation>Cookies van websites (u moet zich op alle sites opnieuw aanmelden)</translation>
    </message>
    <message>
        <source>Browsing History</source>
        <translation>Browsegeschiedenis</translation>
    </message>
    <message>
        <source>Web browsing history records</source>
        <translation>Lijst met bezochte webpagina’s</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Downloadgeschiedenis</translation>
    </message>
    <message>
        <source>Download history records (downloaded files are not deleted)</source>
        <translation>Lijst met downloads (gedownloade bestanden worden niet verwijderd)</translation>
    </message>
    <message>
        <source>Session Data</source>
        <translation>Sessiegegevens</translation>
    </message>
    <message>
        <source>Current and recent session data (tabs may be lost)</source>
        <translation>Gegevens van huidige en recente sessies (tabbladen kunnen verloren gaan)</translation>
    </message>
    <message>
        <source>Form Data</source>
        <translation>Formuliergegevens</translation>
    </message>
    <message>
        <source>Autofill form data (requires re-entry after cleaning)</source>
        <translation>Automatisch ingevulde formuliergegevens (moeten na het opruimen opnieuw worden ingevoerd)</translation>
    </message>
    <message>
        <source>Safe Browsing Data</source>
        <translation>Safe Browsing-gegevens</translation>
    </message>
    <message>
        <source>Safe Browsing protection data (not recommended to clean)</source>
        <translation>Beveiligingsgegevens van Safe Browsing (opruimen niet aanbevolen)</translation>
    </message>
</context>
<context>
    <name>BrowserSubItem</name>
    <message>
        <source>%1 items</source>
        <translation>Items: %1</translation>
    </message>
    <message>
        <source>View Details</source>
        <translation>Details weergeven</translation>
    </message>
    <message>
        <source>View details of %1</source>
        <translation>Details van %1 weergeven</translation>
    </message>
</context>
<context>
    <name>CategoryWidget</name>
    <message>
        <source>View Details</source>
        <translation>Details weergeven</translation>
    </message>
    <message>
        <source>Show items of %1</source>
        <translation>Items van %1 weergeven</translation>
    </message>
    <message>
        <source>Load more (%1 remaining)</source>
        <translation>Meer laden (nog %1)</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Items: %1</translation>
    </message>
    <message>
        <source>%1: %2 items, view details</source>
        <translation>%1: aantal items %2, details weergeven</translation>
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
        <translation>Hoog</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Middel</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Laag</translation>
    </message>
    <message>
        <source>Risk: %1</source>
        <translation>Risico: %1</translation>
    </message>
</context>
<context>
    <name>DashboardResultsPanel</name>
    <message>
        <source>Can be cleaned</source>
        <translation>Op te ruimen</translation>
    </message>
    <message>
        <source>Keep Your PC Running at Peak Performance</source>
        <translation>Houd uw pc in topconditie</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 Scan starten</translation>
    </message>
    <message>
        <source>🗑️ Clean All</source>
        <translation>🗑️ Alles opruimen</translation>
    </message>
    <message>
        <source>Junk Files</source>
        <translation>Onnodige bestanden</translation>
    </message>
    <message>
        <source>Browser Data</source>
        <translation>Browsergegevens</translation>
    </message>
    <message>
        <source>Registry Issues</source>
        <translation>Registerfouten</translation>
    </message>
    <message>
        <source>&lt;span style=&apos;font-weight:600;&apos;&gt;Tip:&lt;/span&gt; Regular cleaning can improve your PC performance by up to 30%</source>
        <translation>&lt;span style=&apos;font-weight:600;&apos;&gt;Tip:&lt;/span&gt; regelmatig opruimen kan de prestaties van uw pc met maximaal 30% verbeteren</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Bezig met scannen...</translation>
    </message>
    <message>
        <source>Ready to scan</source>
        <translation>Klaar om te scannen</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1</translation>
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
        <translation>🔍  Volledige scan</translation>
    </message>
    <message>
        <source>Ready to Clean Your PC</source>
        <translation>Klaar om uw pc op te ruimen</translation>
    </message>
    <message>
        <source>Click the button below to scan for junk files and free up space</source>
        <translation>Klik op de knop hieronder om te scannen op onnodige bestanden en ruimte vrij te maken</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Bezig met voorbereiden...</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Bezig met scannen...</translation>
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
        <translation>Bestandslocatie openen</translation>
    </message>
    <message>
        <source>Open file location of %1</source>
        <translation>Bestandslocatie van %1 openen</translation>
    </message>
</context>
<context>
    <name>DriveCard</name>
    <message>
        <source>Local Disk</source>
        <translation>Schijf</translation>
    </message>
    <message>
        <source>%1 (Removable)</source>
        <translation>%1 (verwisselbaar)</translation>
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
        <translation>In gebruik: %1%</translation>
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
        <translation>Melding</translation>
    </message>
    <message>
        <source>The file manager could not be started to show this file:
%1</source>
        <translation>Het bestandsbeheerprogramma kan niet worden gestart om dit bestand te tonen:
%1</translation>
    </message>
    <message>
        <source>This file no longer exists:
%1</source>
        <translation>Dit bestand bestaat niet meer:
%1</translation>
    </message>
</context>
<context>
    <name>ItemDetailDialog</name>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>%1  |  %2 files</source>
        <translation>%1  |  Bestanden: %2</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Items: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Actie</translation>
    </message>
    <message>
        <source>Details</source>
        <translatorcomment>same</translatorcomment>
        <translation>Details</translation>
    </message>
</context>
<context>
    <name>JunkCleaner</name>
    <message>
        <source>File not found</source>
        <translation>Bestand niet gevonden</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>De map is niet de map die in de lijst stond</translation>
    </message>
</context>
<context>
    <name>JunkPage</name>
    <message>
        <source>Junk Cleaner</source>
        <translation>Schijf opruimen</translation>
    </message>
    <message>
        <source>Clean system temp files, cache and logs</source>
        <translation>Tijdelijke systeembestanden, caches en logboeken opruimen</translation>
    </message>
    <message>
        <source>Cleanable Space</source>
        <translation>Vrij te maken ruimte</translation>
    </message>
</context>
<context>
    <name>JunkRule</name>
    <message>
        <source>System Temporary Files</source>
        <translation>Tijdelijke systeembestanden</translation>
    </message>
    <message>
        <source>Files in Windows Temp folders</source>
        <translation>Bestanden in de Temp-mappen van Windows</translation>
    </message>
    <message>
        <source>Prefetch Files</source>
        <translation>Prefetch-bestanden</translation>
    </message>
    <message>
        <source>Windows Prefetch cache files</source>
        <translation>Prefetch-cachebestanden van Windows</translation>
    </message>
    <message>
        <source>Thumbnail Cache</source>
        <translation>Miniaturencache</translation>
    </message>
    <message>
        <source>Explorer thumbnail and icon cache files</source>
        <translation>Cachebestanden van Verkenner voor miniaturen en pictogrammen</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>Logboekbestanden</translation>
    </message>
    <message>
        <source>Windows setup, servicing and device log files</source>
        <translation>Logboekbestanden van Windows-installatie, onderhoud en apparaten</translation>
    </message>
    <message>
        <source>Windows Update Logs</source>
        <translation>Windows Update-logboeken</translation>
    </message>
    <message>
        <source>Windows Update history and event logs</source>
        <translation>Geschiedenis en gebeurtenislogboeken van Windows Update</translation>
    </message>
    <message>
        <source>IIS Log Files</source>
        <translation>IIS-logboekbestanden</translation>
    </message>
    <message>
        <source>Web server and HTTP error log files</source>
        <translation>Logboekbestanden van de webserver en van HTTP-fouten</translation>
    </message>
    <message>
        <source>Memory Dumps</source>
        <translation>Geheugendumps</translation>
    </message>
    <message>
        <source>Memory dumps left by system and program crashes</source>
        <translation>Geheugendumps die zijn achtergebleven na systeem- en programmacrashes</translation>
    </message>
    <message>
        <source>Windows Update Cache</source>
        <translation>Windows Update-cache</translation>
    </message>
    <message>
        <source>Downloaded Windows Update installation files</source>
        <translation>Gedownloade installatiebestanden van Windows Update</translation>
    </message>
    <message>
        <source>Error Reports</source>
        <translation>Foutrapporten</translation>
    </message>
    <message>
        <source>Queued and archived program error reports</source>
        <translation>Foutrapporten van programma’s, in de wachtrij of gearchiveerd</translation>
    </message>
    <message>
        <source>Delivery Optimization Files</source>
        <translation>Delivery Optimization-bestanden</translation>
    </message>
    <message>
        <source>Update files kept for sharing with other PCs</source>
        <translation>Updatebestanden die worden bewaard om met andere pc’s te delen</translation>
    </message>
    <message>
        <source>Windows Defender Scan History</source>
        <translation>Windows Defender-scangeschiedenis</translation>
    </message>
    <message>
        <source>Windows Defender scan history and definition backups</source>
        <translation>Scangeschiedenis en back-ups van definities van Windows Defender</translation>
    </message>
    <message>
        <source>.NET Framework Cache Logs</source>
        <translation>.NET Framework-cachelogboeken</translation>
    </message>
    <message>
        <source>.NET temporary web files and usage logs</source>
        <translation>Tijdelijke webbestanden en gebruikslogboeken van .NET</translation>
    </message>
    <message>
        <source>System Integrity Check Logs</source>
        <translation>Logboeken van systeemintegriteitscontroles</translation>
    </message>
    <message>
        <source>Logs of system file and component checks</source>
        <translation>Logboeken van controles van systeembestanden en onderdelen</translation>
    </message>
    <message>
        <source>Installer Cache</source>
        <translation>Windows Installer-cache</translation>
    </message>
    <message>
        <source>Windows Installer patch cache, needed to uninstall some updates</source>
        <translation>Patchcache van Windows Installer, nodig om sommige updates te verwijderen</translation>
    </message>
    <message>
        <source>Recent Documents</source>
        <translation>Recente documenten</translation>
    </message>
    <message>
        <source>Shortcuts to recently opened documents</source>
        <translation>Snelkoppelingen naar onlangs geopende documenten</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>Lettertypecache</translation>
    </message>
    <message>
        <source>Windows font cache files</source>
        <translation>Cachebestanden van Windows voor lettertypen</translation>
    </message>
    <message>
        <source>Old Windows Installation</source>
        <translation>Vorige Windows-installatie</translation>
    </message>
    <message>
        <source>Files of a previous Windows installation, needed to go back to it</source>
        <translation>Bestanden van een vorige Windows-installatie, nodig om ernaar terug te keren</translation>
    </message>
    <message>
        <source>Web Cache</source>
        <translation>Webcache</translation>
    </message>
    <message>
        <source>Windows web cache, downloaded pages and cookies</source>
        <translation>Webcache van Windows, gedownloade pagina’s en cookies</translation>
    </message>
    <message>
        <source>Office Cache</source>
        <translation>Office-cache</translation>
    </message>
    <message>
        <source>Office document cache and unsaved files</source>
        <translation>Documentcache en niet-opgeslagen bestanden van Office</translation>
    </message>
    <message>
        <source>Tencent Product Logs</source>
        <translation>Logboeken van Tencent-producten</translation>
    </message>
    <message>
        <source>Log files of Tencent products</source>
        <translation>Logboekbestanden van Tencent-producten</translation>
    </message>
    <message>
        <source>NVIDIA Cache</source>
        <translation>NVIDIA-cache</translation>
    </message>
    <message>
        <source>NVIDIA graphics shader cache</source>
        <translation>Grafische shadercache van NVIDIA</translation>
    </message>
    <message>
        <source>AMD Cache</source>
        <translation>AMD-cache</translation>
    </message>
    <message>
        <source>AMD graphics shader cache</source>
        <translation>Grafische shadercache van AMD</translation>
    </message>
    <message>
        <source>DirectX Shader Cache</source>
        <translation>DirectX-shadercache</translation>
    </message>
    <message>
        <source>Compiled DirectX shaders, made again when needed</source>
        <translation>Gecompileerde DirectX-shaders; worden zo nodig opnieuw gemaakt</translation>
    </message>
    <message>
        <source>Windows Search Data</source>
        <translation>Windows Search-gegevens</translation>
    </message>
    <message>
        <source>Logs of the Windows Search indexer</source>
        <translation>Logboeken van de indexeerfunctie van Windows Search</translation>
    </message>
    <message>
        <source>Diagnostic Data</source>
        <translation>Diagnostische gegevens</translation>
    </message>
    <message>
        <source>Windows troubleshooting and diagnostic data</source>
        <translation>Gegevens van Windows voor probleemoplossing en diagnose</translation>
    </message>
</context>
<context>
    <name>LargeFilePage</name>
    <message>
        <source>Tip</source>
        <translation>Let op</translation>
    </message>
    <message>
        <source>Please select at least one drive to scan.</source>
        <translation>Selecteer minstens één station om te scannen.</translation>
    </message>
    <message>
        <source>Custom File Size</source>
        <translation>Aangepaste bestandsgrootte</translation>
    </message>
    <message>
        <source>Enter minimum file size (MB):</source>
        <translation>Voer de minimale bestandsgrootte in (MB):</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>Scan voltooid</translation>
    </message>
    <message>
        <source>No large files found that match the criteria.</source>
        <translation>Er zijn geen grote bestanden gevonden die aan de criteria voldoen.</translation>
    </message>
    <message>
        <source>📂 Open file location</source>
        <translation>📂 Bestandslocatie openen</translation>
    </message>
    <message>
        <source>🗑️ Delete this file</source>
        <translation>🗑️ Dit bestand verwijderen</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this file?

%1
Size: %2

This action cannot be undone!</source>
        <translation>Weet u zeker dat u dit bestand wilt verwijderen?

%1
Grootte: %2

Dit kan niet ongedaan worden gemaakt!</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>Verwijderen bevestigen</translation>
    </message>
    <message>
        <source>Delete Failed</source>
        <translation>Verwijderen mislukt</translation>
    </message>
    <message>
        <source>Unable to delete this file. It may be in use by another program.</source>
        <translation>Dit bestand kan niet worden verwijderd. Mogelijk wordt het door een ander programma gebruikt.</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informatie</translation>
    </message>
    <message>
        <source>All files have been deleted</source>
        <translation>Alle bestanden zijn verwijderd</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected %1 files?

Total: %2

This action cannot be undone!</source>
        <translation>Weet u zeker dat u de geselecteerde bestanden (%1) wilt verwijderen?

Totaal: %2

Dit kan niet ongedaan worden gemaakt!</translation>
    </message>
    <message>
        <source>Deleted %1 files successfully.</source>
        <translation>Verwijderde bestanden: %1.</translation>
    </message>
    <message>
        <source> %1 files failed to delete.</source>
        <translation> Niet-verwijderde bestanden: %1.</translation>
    </message>
    <message>
        <source>Delete Completed</source>
        <translation>Verwijderen voltooid</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>Bewerking mislukt</translation>
    </message>
</context>
<context>
    <name>LargeFileResultsView</name>
    <message>
        <source>← Back</source>
        <translation>← Terug</translation>
    </message>
    <message>
        <source>🗑️ Delete Selected</source>
        <translation>🗑️ Selectie verwijderen</translation>
    </message>
    <message>
        <source>Scan Results</source>
        <translation>Scanresultaten</translation>
    </message>
    <message>
        <source>Found %1 large files, total %2</source>
        <translation>Gevonden grote bestanden: %1 (%2)</translation>
    </message>
    <message>
        <source>Selected: %1 files (%2)</source>
        <translation>Geselecteerde bestanden: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>LargeFileSelectionView</name>
    <message>
        <source>Find Large Files</source>
        <translation>Grote bestanden zoeken</translation>
    </message>
    <message>
        <source>Scan and clean files that take up a lot of disk space</source>
        <translation>Bestanden die veel schijfruimte innemen zoeken en opruimen</translation>
    </message>
    <message>
        <source>Select Scan Location</source>
        <translation>Selecteer stations om te scannen</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 Scan starten</translation>
    </message>
    <message>
        <source>Minimum File Size:</source>
        <translation>Minimale bestandsgrootte:</translation>
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
        <translation>Aangepast...</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Configuratiefout</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>De koppelingen naar de webpagina’s kunnen niet worden geladen.

Neem contact op met de technische ondersteuning of installeer het programma opnieuw.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Browser kan niet worden geopend</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>De standaardbrowser kan niet worden geopend.

Kopieer de koppeling en open deze zelf in een browser:
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
        <translation>Overzicht</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>Schijf opruimen</translation>
    </message>
    <message>
        <source>Browser Cleaner</source>
        <translation>Browser opruimen</translation>
    </message>
    <message>
        <source>Registry Cleaner</source>
        <translation>Register opruimen</translation>
    </message>
    <message>
        <source>Startup Manager</source>
        <translation>Opstartbeheer</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>Grote bestanden</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>Hoofdvenster weergeven</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Sweepwise - PC Cleaning Tool</source>
        <translation>Sweepwise – Opruimprogramma voor uw pc</translation>
    </message>
    <message>
        <source>About Sweepwise</source>
        <translation>Info over Sweepwise</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Sweepwise - PC Cleaning Tool&lt;/h3&gt;&lt;p&gt;Version %1&lt;/p&gt;&lt;p&gt;Clean your PC with one click!&lt;br&gt;Remove junk files, browser data, and registry issues.&lt;/p&gt;&lt;p&gt;© 2026 Norvak. All rights reserved.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Sweepwise – Opruimprogramma voor uw pc&lt;/h3&gt;&lt;p&gt;Versie %1&lt;/p&gt;&lt;p&gt;Ruim uw pc met één klik op!&lt;br&gt;Verwijder onnodige bestanden en browsergegevens en los registerproblemen op.&lt;/p&gt;&lt;p&gt;© 2026 Norvak. Alle rechten voorbehouden.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Program minimized to system tray. Double-click the icon to restore.</source>
        <translation>Het programma is geminimaliseerd naar het systeemvak. Dubbelklik op het pictogram om het venster weer te openen.</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Melding</translation>
    </message>
    <message>
        <source>A clean is still running. Start the scan when it is over.</source>
        <translation>Er wordt nog opgeschoond. Start de scan wanneer dat klaar is.</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Scanning...</source>
        <translation>Bezig met scannen...</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>Bezig met opruimen...</translation>
    </message>
    <message>
        <source>正在分析系统...</source>
        <translation>Systeem wordt geanalyseerd...</translation>
    </message>
    <message>
        <source>正在删除文件...</source>
        <translation>Bestanden worden verwijderd...</translation>
    </message>
    <message>
        <source>%1%</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>已清理: %1</source>
        <translation>Opgeruimd: %1</translation>
    </message>
    <message>
        <source>完成!</source>
        <translation>Voltooid!</translation>
    </message>
    <message>
        <source>操作失败</source>
        <translation>Bewerking mislukt</translation>
    </message>
</context>
<context>
    <name>RegistryBackup</name>
    <message>
        <source>There is no such folder</source>
        <translation>Deze map bestaat niet</translation>
    </message>
    <message>
        <source>It is a file of the registry itself</source>
        <translation>Dit is een bestand van het register zelf</translation>
    </message>
    <message>
        <source>A folder stands there</source>
        <translation>Daar staat een map</translation>
    </message>
    <message>
        <source>A link stands there, which leads elsewhere</source>
        <translation>Daar staat een koppeling die naar elders leidt</translation>
    </message>
    <message>
        <source>What stands there is not a file</source>
        <translation>Wat daar staat, is geen bestand</translation>
    </message>
</context>
<context>
    <name>RegistryBackupDialog</name>
    <message>
        <source>Backup registry before cleaning (Recommended)</source>
        <translation>Back-up van register maken vóór opruimen (aanbevolen)</translation>
    </message>
    <message>
        <source>Clean Registry</source>
        <translation>Register opruimen</translation>
    </message>
    <message>
        <source>About to clean &lt;b&gt;%1&lt;/b&gt; invalid registry entries</source>
        <translation>Op te ruimen ongeldige registervermeldingen: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>⚠️ Backup file can be used to restore accidentally deleted registry entries</source>
        <translation>⚠️ Met het back-upbestand kunt u per ongeluk verwijderde registervermeldingen herstellen</translation>
    </message>
    <message>
        <source>Save to:</source>
        <translation>Opslaan in:</translation>
    </message>
    <message>
        <source>Backup file</source>
        <translation>Back-upbestand</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Bladeren...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Start Cleaning</source>
        <translation>Nu opruimen</translation>
    </message>
    <message>
        <source>Select backup location</source>
        <translation>Selecteer een back-uplocatie</translation>
    </message>
    <message>
        <source>Registry files (*.reg)</source>
        <translation>Registerbestanden (*.reg)</translation>
    </message>
    <message>
        <source>The backup cannot be written here:
%1

%2</source>
        <translation>De back-up kan hier niet worden opgeslagen:
%1

%2</translation>
    </message>
    <message>
        <source>There is a file of this name already:
%1

Replace it?</source>
        <translation>Er bestaat al een bestand met deze naam:
%1

Vervangen?</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>De map kan niet worden gemaakt.</translation>
    </message>
    <message>
        <source>The file is write-protected.</source>
        <translation>Het bestand is tegen schrijven beveiligd.</translation>
    </message>
</context>
<context>
    <name>RegistryChecks</name>
    <message>
        <source>Path: %1</source>
        <translation>Pad: %1</translation>
    </message>
    <message>
        <source>Command: %1</source>
        <translation>Opdracht: %1</translation>
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
        <translation>Lettertypebestand: %1</translation>
    </message>
    <message>
        <source>DLL path: %1</source>
        <translation>DLL-pad: %1</translation>
    </message>
</context>
<context>
    <name>RegistryCleaner</name>
    <message>
        <source>Invalid Software Paths</source>
        <translation>Ongeldige softwarepaden</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent locations</source>
        <translation>Registervermeldingen die verwijzen naar niet-bestaande locaties</translation>
    </message>
    <message>
        <source>Invalid File Associations</source>
        <translation>Ongeldige bestandskoppelingen</translation>
    </message>
    <message>
        <source>File associations pointing to missing programs</source>
        <translation>Bestandskoppelingen die verwijzen naar ontbrekende programma’s</translation>
    </message>
    <message>
        <source>Invalid COM/ActiveX</source>
        <translation>Ongeldige COM/ActiveX-onderdelen</translation>
    </message>
    <message>
        <source>Invalid COM components and ActiveX controls</source>
        <translation>Ongeldige COM-onderdelen en ActiveX-besturingselementen</translation>
    </message>
    <message>
        <source>Invalid Font References</source>
        <translation>Ongeldige lettertypeverwijzingen</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent font files</source>
        <translation>Registervermeldingen die verwijzen naar niet-bestaande lettertypebestanden</translation>
    </message>
    <message>
        <source>Invalid Startup Items</source>
        <translation>Ongeldige opstartitems</translation>
    </message>
    <message>
        <source>Startup items pointing to non-existent programs</source>
        <translation>Opstartitems die verwijzen naar niet-bestaande programma’s</translation>
    </message>
    <message>
        <source>Invalid Shared DLLs</source>
        <translation>Ongeldige gedeelde DLL’s</translation>
    </message>
    <message>
        <source>References to non-existent shared DLL files</source>
        <translation>Verwijzingen naar niet-bestaande gedeelde DLL-bestanden</translation>
    </message>
    <message>
        <source>MUI Cache</source>
        <translation>MUI-cache</translation>
    </message>
    <message>
        <source>Application MUI cache data</source>
        <translation>MUI-cachegegevens van programma’s</translation>
    </message>
    <message>
        <source>Scanning invalid software paths...</source>
        <translation>Scannen op ongeldige softwarepaden...</translation>
    </message>
    <message>
        <source>Scanning invalid file associations...</source>
        <translation>Scannen op ongeldige bestandskoppelingen...</translation>
    </message>
    <message>
        <source>Scanning invalid COM components...</source>
        <translation>Scannen op ongeldige COM-onderdelen...</translation>
    </message>
    <message>
        <source>Scanning invalid font references...</source>
        <translation>Scannen op ongeldige lettertypeverwijzingen...</translation>
    </message>
    <message>
        <source>Scanning invalid startup items...</source>
        <translation>Scannen op ongeldige opstartitems...</translation>
    </message>
    <message>
        <source>Scanning invalid shared DLLs...</source>
        <translation>Scannen op ongeldige gedeelde DLL’s...</translation>
    </message>
    <message>
        <source>Scanning MUI cache...</source>
        <translation>MUI-cache scannen...</translation>
    </message>
    <message>
        <source>Its name cannot be told from a path</source>
        <translation>De naam ervan is niet van een pad te onderscheiden</translation>
    </message>
    <message>
        <source>It has changed since the scan</source>
        <translation>Het item is sinds de scan gewijzigd</translation>
    </message>
    <message>
        <source>It could not be read again before the clean</source>
        <translation>Het kon voor het opschonen niet opnieuw worden gelezen</translation>
    </message>
</context>
<context>
    <name>RegistryPage</name>
    <message>
        <source>Registry Cleaner</source>
        <translation>Register opruimen</translation>
    </message>
    <message>
        <source>Clean invalid registry entries</source>
        <translation>Ongeldige registervermeldingen opruimen</translation>
    </message>
    <message>
        <source>Issues Found</source>
        <translation>Gevonden problemen</translation>
    </message>
    <message>
        <source>选中: --</source>
        <translation>Geselecteerde items: --</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Melding</translation>
    </message>
    <message>
        <source>没有选中任何项目</source>
        <translation>Er zijn geen items geselecteerd</translation>
    </message>
    <message>
        <source>Entries removed without a backup: %1</source>
        <translation>Zonder back-up verwijderde vermeldingen: %1</translation>
    </message>
    <message>
        <source>No entries were removed.</source>
        <translation>Er zijn geen vermeldingen verwijderd.</translation>
    </message>
    <message>
        <source>The registry backup could not be written:
%1

%2</source>
        <translation>De back-up van het register kan niet worden opgeslagen:
%1

%2</translation>
    </message>
</context>
<context>
    <name>RegistryRestore</name>
    <message>
        <source>this is not a registry backup</source>
        <translation>dit is geen back-up van het register</translation>
    </message>
    <message>
        <source>the file breaks off here</source>
        <translation>het bestand breekt hier af</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>regel %1: %2</translation>
    </message>
    <message>
        <source>the line does not end where it should</source>
        <translation>de regel eindigt niet waar dat hoort</translation>
    </message>
    <message>
        <source>the key has no end</source>
        <translation>de sleutel is niet afgesloten</translation>
    </message>
    <message>
        <source>the key&apos;s path is not complete</source>
        <translation>het pad van de sleutel is niet volledig</translation>
    </message>
    <message>
        <source>the key lies in no known hive</source>
        <translation>de sleutel hoort bij geen bekende registercomponent</translation>
    </message>
    <message>
        <source>there is no key before this line</source>
        <translation>vóór deze regel staat geen sleutel</translation>
    </message>
    <message>
        <source>this is neither a key nor a value</source>
        <translation>dit is geen sleutel en ook geen waarde</translation>
    </message>
    <message>
        <source>a value&apos;s name has no value</source>
        <translation>bij de naam van een waarde ontbreekt de waarde zelf</translation>
    </message>
    <message>
        <source>the kind of the value is not known</source>
        <translation>de soort waarde is onbekend</translation>
    </message>
    <message>
        <source>a backslash stands before something else than a quote or a backslash</source>
        <translation>na een backslash staat iets anders dan een aanhalingsteken of een backslash</translation>
    </message>
    <message>
        <source>the text has no closing quote</source>
        <translation>het afsluitende aanhalingsteken van de tekst ontbreekt</translation>
    </message>
    <message>
        <source>eight hexadecimal digits are wanted here</source>
        <translation>hier worden acht hexadecimale cijfers verwacht</translation>
    </message>
    <message>
        <source>the type of the value is not a number</source>
        <translation>het type van de waarde is geen getal</translation>
    </message>
    <message>
        <source>a byte of two hexadecimal digits is wanted here</source>
        <translation>hier wordt een byte van twee hexadecimale cijfers verwacht</translation>
    </message>
    <message>
        <source>the list of bytes breaks off</source>
        <translation>de lijst met bytes breekt af</translation>
    </message>
    <message>
        <source>The restoring was cancelled</source>
        <translation>Het herstellen is geannuleerd</translation>
    </message>
</context>
<context>
    <name>RegistryTexts</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kan niet worden gelezen: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not the path of a key</source>
        <translation>‘%1’ is niet het pad van een sleutel</translation>
    </message>
    <message>
        <source>There is no such key</source>
        <translation>Deze sleutel bestaat niet</translation>
    </message>
    <message>
        <source>The key is a link to another one</source>
        <translation>De sleutel is een koppeling naar een andere sleutel</translation>
    </message>
    <message>
        <source>There are keys below it</source>
        <translation>De sleutel bevat subsleutels</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>Deze waarde bestaat niet</translation>
    </message>
    <message>
        <source>There is no registry</source>
        <translation>Er is geen register</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kan niet worden geschreven: %2</translation>
    </message>
    <message>
        <source>Windows programs are running in the Wine prefix %1; end them and try again</source>
        <translation>Er zijn Windows-programma’s actief in de Wine-prefix %1; sluit ze af en probeer het opnieuw</translation>
    </message>
    <message>
        <source>%1 was changed by another program; scan again</source>
        <translation>%1 is door een ander programma gewijzigd; voer de scan opnieuw uit</translation>
    </message>
    <message>
        <source>A value without a name is not written</source>
        <translation>Een waarde zonder naam wordt niet geschreven</translation>
    </message>
    <message>
        <source>The name or the text cannot be stored as it is</source>
        <translation>De naam of de tekst kan niet in deze vorm worden opgeslagen</translation>
    </message>
    <message>
        <source>The registry did not take the value</source>
        <translation>De waarde is niet in het register opgenomen</translation>
    </message>
    <message>
        <source>The registry did not let go of the value</source>
        <translation>De waarde is niet uit het register verwijderd</translation>
    </message>
    <message>
        <source>A class is changed in the user&apos;s or in the machine&apos;s hive</source>
        <translation>Een klasse wordt gewijzigd in de component van de gebruiker of in die van de computer</translation>
    </message>
    <message>
        <source>It is not a registry file</source>
        <translation>Het is geen registerbestand</translation>
    </message>
    <message>
        <source>It is damaged</source>
        <translation>Het is beschadigd</translation>
    </message>
</context>
<context>
    <name>ResultWidget</name>
    <message>
        <source>Expanded</source>
        <translation>Uitgevouwen</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Samengevouwen</translation>
    </message>
</context>
<context>
    <name>ScanProgressDialog</name>
    <message>
        <source>Scanning for large files...</source>
        <translation>Scannen op grote bestanden...</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Bezig met voorbereiden...</translation>
    </message>
    <message>
        <source>Found %1 large files (%2)</source>
        <translation>Gevonden grote bestanden: %1 (%2)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Scanning: %1</source>
        <translation>Scannen: %1</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Start with Windows</source>
        <translation>Samen met Windows starten</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Bij sluiten minimaliseren naar het systeemvak</translation>
    </message>
    <message>
        <source>Confirm before cleaning</source>
        <translation>Bevestiging vragen vóór opruimen</translation>
    </message>
    <message>
        <source>Auto backup before registry cleaning</source>
        <translation>Vóór opruimen automatisch back-up van register maken</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Opruimen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>The settings could not be saved:
%1</source>
        <translation>De instellingen kunnen niet worden opgeslagen:
%1</translation>
    </message>
</context>
<context>
    <name>StartupCard</name>
    <message>
        <source>Start %1 automatically</source>
        <translation>%1 automatisch starten</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ingeschakeld</translation>
    </message>
</context>
<context>
    <name>StartupPage</name>
    <message>
        <source>Startup Manager</source>
        <translation>Opstartbeheer</translation>
    </message>
    <message>
        <source>Check programs to enable auto-start at boot</source>
        <translation>Vink aan wat automatisch moet starten</translation>
    </message>
    <message>
        <source>%1 programs</source>
        <translation>Programma’s: %1</translation>
    </message>
    <message>
        <source>Search programs...</source>
        <translation>Programma’s zoeken...</translation>
    </message>
    <message>
        <source>Search programs</source>
        <translation>Programma’s zoeken</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Vernieuwen</translation>
    </message>
    <message>
        <source>Checked programs will run automatically at startup</source>
        <translation>Aangevinkte programma’s starten automatisch bij het opstarten</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>Geïnstalleerde programma’s scannen...</translation>
    </message>
    <message>
        <source>First load may take a few seconds</source>
        <translation>De eerste keer laden kan enkele seconden duren</translation>
    </message>
    <message>
        <source>%1 programs · %2 startup items</source>
        <translation>Programma’s: %1 · Opstartitems: %2</translation>
    </message>
    <message>
        <source>Failed to add startup item</source>
        <translation>Het opstartitem kan niet worden toegevoegd</translation>
    </message>
    <message>
        <source>Failed to remove startup item</source>
        <translation>Het opstartitem kan niet worden verwijderd</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>Bewerking mislukt</translation>
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
        <translation>Minimaliseren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximaliseren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Vorig formaat</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Help</source>
        <translatorcomment>same</translatorcomment>
        <translation>Help</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Ondersteuning</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Taal gewijzigd</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>De taal is gewijzigd.

Het programma wordt nu opnieuw gestart.</translation>
    </message>
    <message>
        <source>The application could not be restarted. Please start it again yourself.</source>
        <translation>Het programma kan niet opnieuw worden gestart. Start het zelf opnieuw.</translation>
    </message>
    <message>
        <source>The language could not be saved and does not change:
%1</source>
        <translation>De taal kan niet worden opgeslagen en blijft daarom ongewijzigd:
%1</translation>
    </message>
</context>
<context>
    <name>Worker</name>
    <message>
        <source>The system cannot start another thread. End some programs and try again.</source>
        <translation>Het systeem kan geen nieuwe thread starten. Sluit enkele programma’s en probeer het opnieuw.</translation>
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
