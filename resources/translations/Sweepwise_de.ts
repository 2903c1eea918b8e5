<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translatorcomment>same</translatorcomment>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Your Personal System Butler

🧹 Junk Cleaner - Free up valuable disk space
🌐 Browser Cleaner - Protect your privacy
🔧 Registry Cleaner - Boost system performance
⚡ Startup Manager - Speed up boot time</source>
        <translation>Ihr persönlicher System-Butler

🧹 Datenmüll löschen – mehr Speicherplatz
🌐 Browser bereinigen – mehr Privatsphäre
🔧 Registry bereinigen – mehr Systemleistung
⚡ Autostart verwalten – schnellerer Systemstart</translation>
    </message>
    <message>
        <source>© 2026 Norvak. All rights reserved.</source>
        <translation>© 2026 Norvak. Alle Rechte vorbehalten.</translation>
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
        <translation>Bereinigungstool</translation>
    </message>
    <message>
        <source>Scan and clean up unnecessary files</source>
        <translation>Nicht benötigte Dateien suchen und bereinigen</translation>
    </message>
    <message>
        <source>Cleanable</source>
        <translation>Bereinigbar</translation>
    </message>
    <message>
        <source>Click &quot;Start Scanning&quot; to find cleanable items</source>
        <translation>Klicken Sie auf „Scan starten“, um bereinigbare Elemente zu finden</translation>
    </message>
    <message>
        <source>Start Scanning</source>
        <translation>Scan starten</translation>
    </message>
    <message>
        <source>Clean Now</source>
        <translation>Jetzt bereinigen</translation>
    </message>
    <message>
        <source>Selected: --</source>
        <translation>Ausgewählt: --</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>No items selected</source>
        <translation>Keine Elemente ausgewählt</translation>
    </message>
    <message>
        <source>Confirm Clean</source>
        <translation>Bereinigen bestätigen</translation>
    </message>
    <message>
        <source>Are you sure you want to clean %1 selected items?
This action cannot be undone!</source>
        <translation>Möchten Sie die ausgewählten Elemente (%1) wirklich bereinigen?
Dieser Vorgang kann nicht rückgängig gemacht werden!</translation>
    </message>
    <message>
        <source>Selected: %1 items, %2</source>
        <translation>Ausgewählt: %1 Treffer, %2</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 Treffer</translation>
    </message>
    <message>
        <source>Selected: %1 items</source>
        <translation>Ausgewählt: %1 Treffer</translation>
    </message>
    <message>
        <source>Cleaned %1 items, freed %2</source>
        <translation>Bereinigte Elemente: %1, freigegeben: %2</translation>
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
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>Holds part of a database: removing it loses data saved by the browser, websites or extensions</source>
        <translation>Enthält einen Teil einer Datenbank: Beim Löschen gehen Daten verloren, die der Browser, Websites oder Erweiterungen gespeichert haben</translation>
    </message>
    <message>
        <source>Belongs to an extension, which does not work without all its files</source>
        <translation>Gehört zu einer Erweiterung, die ohne alle ihre Dateien nicht funktioniert</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>Der Ordner ist nicht derselbe, der aufgelistet wurde</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>Show the data of %1</source>
        <translation>Daten von %1 anzeigen</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 Treffer</translation>
    </message>
</context>
<context>
    <name>BrowserPage</name>
    <message>
        <source>Browser Cleaner</source>
        <translation>Browser bereinigen</translation>
    </message>
    <message>
        <source>Clean browser cache, cookies and history</source>
        <translation>Cache, Cookies und Verlauf der Browser bereinigen</translation>
    </message>
    <message>
        <source>Cleanable Data</source>
        <translation>Bereinigbare Daten</translation>
    </message>
    <message>
        <source>Select Browser:</source>
        <translation>Browser wählen:</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstige</translation>
    </message>
</context>
<context>
    <name>BrowserRule</name>
    <message>
        <source>Browser Cache</source>
        <translation>Browser-Cache</translation>
    </message>
    <message>
        <source>Temporary web page cache files</source>
        <translation>Temporäre Cache-Dateien von Webseiten</translation>
    </message>
    <message>
        <source>Code Cache</source>
        <translation>Code-Cache</translation>
    </message>
    <message>
        <source>JavaScript code cache</source>
        <translation>Cache für JavaScript-Code</translation>
    </message>
    <message>
        <source>GPU Cache</source>
        <translation>GPU-Cache</translation>
    </message>
    <message>
        <source>GPU rendering cache</source>
        <translation>Cache für GPU-Rendering</translation>
    </message>
    <message>
        <source>Shader Cache</source>
        <translation>Shader-Cache</translation>
    </message>
    <message>
        <source>GPU shader compilation cache</source>
        <translation>Cache für kompilierte GPU-Shader</translation>
    </message>
    <message>
        <source>Service Workers</source>
        <translation>Service Worker</translation>
    </message>
    <message>
        <source>Service Worker cache</source>
        <translation>Cache der Service Worker</translation>
    </message>
    <message>
        <source>Media Cache</source>
        <translation>Medien-Cache</translation>
    </message>
    <message>
        <source>Media file cache</source>
        <translation>Cache für Mediendateien</translation>
    </message>
    <message>
        <source>Network Cache</source>
        <translation>Netzwerk-Cache</translation>
    </message>
    <message>
        <source>HTTP network request cache</source>
        <translation>Cache für HTTP-Netzwerkanfragen</translation>
    </message>
    <message>
        <source>Jump List</source>
        <translation>Sprungliste</translation>
    </message>
    <message>
        <source>Taskbar Jump List icon cache</source>
        <translation>Symbol-Cache der Sprungliste in der Taskleiste</translation>
    </message>
    <message>
        <source>Blob Storage</source>
        <translation>Blob-Speicher</translation>
    </message>
    <message>
        <source>Temporary binary data storage</source>
        <translation>Temporärer Speicher für Binärdaten</translation>
    </message>
    <message>
        <source>WebRTC Logs</source>
        <translation>WebRTC-Protokolle</translation>
    </message>
    <message>
        <source>Video call debug logs</source>
        <translation>Debug-Protokolle von Videoanrufen</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Absturzberichte</translation>
    </message>
    <message>
        <source>Browser crash report files</source>
        <translation>Dateien mit Absturzberichten des Browsers</translation>
    </message>
    <message>
        <source>Browser Logs</source>
        <translation>Browserprotokolle</translation>
    </message>
    <message>
        <source>Browser debug and error logs</source>
        <translation>Debug- und Fehlerprotokolle des Browsers</translation>
    </message>
    <message>
        <source>Website Thumbnails</source>
        <translation>Website-Miniaturansichten</translation>
    </message>
    <message>
        <source>New Tab page website thumbnails</source>
        <translation>Website-Miniaturansichten auf der Seite „Neuer Tab“</translation>
    </message>
    <message>
        <source>Favicon Cache</source>
        <translation>Favicon-Cache</translation>
    </message>
    <message>
        <source>Website icon (favicon) cache</source>
        <translation>Cache für Website-Symbole (Favicons)</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>Schriftarten-Cache</translation>
    </message>
    <message>
        <source>Web font cache files</source>
        <translation>Cache-Dateien für Webschriftarten</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Lokaler Speicher</translation>
    </message>
    <message>
        <source>Website Local Storage (site settings may be lost)</source>
        <translation>Lokaler Speicher von Websites (Website-Einstellungen können verloren gehen)</translation>
    </message>
    <message>
        <source>IndexedDB</source>
        <translatorcomment>same</translatorcomment>
        <translation>IndexedDB</translation>
    </message>
    <message>
        <source>Website database storage (offline data may be lost)</source>
        <translation>Datenbankspeicher von Websites (Offlinedaten können verloren gehen)</translation>
    </message>
    <message>
        <source>Cookies</source>
        <translatorcomment>same</translatorcomment>
        <translation>Cookies</translation>
    </message>
    <message>
        <source>Website Cookies (requires re-login to all sites)</source>
        <translation>Cookies von Websites (erneute Anmeldung bei allen Websites erforderlich)</translation>
    </message>
    <message>
        <source>Browsing History</source>
        <translation>Browserverlauf</translation>
    </message>
    <message>
        <source>Web browsing history records</source>
        <translation>Verlauf der besuchten Webseiten</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Downloadverlauf</translation>
    </message>
    <message>
        <source>Download history records (downloaded files are not deleted)</source>
        <translation>Verlauf der Downloads (heruntergeladene Dateien werden nicht gelöscht)</translation>
    </message>
    <message>
        <source>Session Data</source>
        <translation>Sitzungsdaten</translation>
    </message>
    <message>
        <source>Current and recent session data (tabs may be lost)</source>
        <translation>Daten der aktuellen und letzten Sitzungen (Tabs können verloren gehen)</translation>
    </message>
    <message>
        <source>Form Data</source>
        <translation>Formulardaten</translation>
    </message>
    <message>
        <source>Autofill form data (requires re-entry after cleaning)</source>
        <translation>Daten zum automatischen Ausfüllen von Formularen (nach dem Bereinigen neu einzugeben)</translation>
    </message>
    <message>
        <source>Safe Browsing Data</source>
        <translation>Safe Browsing-Daten</translation>
    </message>
    <message>
        <source>Safe Browsing protection data (not recommended to clean)</source>
        <translation>Schutzdaten von Safe Browsing (Bereinigen nicht empfohlen)</translation>
    </message>
</context>
<context>
    <name>BrowserSubItem</name>
    <message>
        <source>%1 items</source>
        <translation>%1 Treffer</translation>
    </message>
    <message>
        <source>View Details</source>
        <translation>Details anzeigen</translation>
    </message>
    <message>
        <source>View details of %1</source>
        <translation>Details zu „%1“ anzeigen</translation>
    </message>
</context>
<context>
    <name>CategoryWidget</name>
    <message>
        <source>View Details</source>
        <translation>Details anzeigen</translation>
    </message>
    <message>
        <source>Show items of %1</source>
        <translation>Elemente von „%1“ anzeigen</translation>
    </message>
    <message>
        <source>Load more (%1 remaining)</source>
        <translation>Mehr laden (noch %1)</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 Treffer</translation>
    </message>
    <message>
        <source>%1: %2 items, view details</source>
        <translation>%1: %2 Treffer, Details anzeigen</translation>
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
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Risk: %1</source>
        <translation>Risiko: %1</translation>
    </message>
</context>
<context>
    <name>DashboardResultsPanel</name>
    <message>
        <source>Can be cleaned</source>
        <translation>Bereinigbar</translation>
    </message>
    <message>
        <source>Keep Your PC Running at Peak Performance</source>
        <translation>So läuft Ihr PC immer mit voller Leistung</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 Scan starten</translation>
    </message>
    <message>
        <source>🗑️ Clean All</source>
        <translation>🗑️ Bereinigen</translation>
    </message>
    <message>
        <source>Junk Files</source>
        <translation>Datenmüll</translation>
    </message>
    <message>
        <source>Browser Data</source>
        <translation>Browserdaten</translation>
    </message>
    <message>
        <source>Registry Issues</source>
        <translation>Registry-Probleme</translation>
    </message>
    <message>
        <source>&lt;span style=&apos;font-weight:600;&apos;&gt;Tip:&lt;/span&gt; Regular cleaning can improve your PC performance by up to 30%</source>
        <translation>&lt;span style=&apos;font-weight:600;&apos;&gt;Tipp:&lt;/span&gt; Regelmäßiges Bereinigen kann die Leistung Ihres PCs um bis zu 30&#xa0;% steigern</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Scan läuft...</translation>
    </message>
    <message>
        <source>Ready to scan</source>
        <translation>Bereit zum Scannen</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 Treffer</translation>
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
        <translation>🔍  Vollscan starten</translation>
    </message>
    <message>
        <source>Ready to Clean Your PC</source>
        <translation>Bereit, Ihren PC zu bereinigen</translation>
    </message>
    <message>
        <source>Click the button below to scan for junk files and free up space</source>
        <translation>Klicken Sie auf die Schaltfläche unten, um Datenmüll zu suchen und Speicherplatz freizugeben</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Vorbereitung...</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Scan läuft...</translation>
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
        <translation>Dateipfad öffnen</translation>
    </message>
    <message>
        <source>Open file location of %1</source>
        <translation>Dateipfad von %1 öffnen</translation>
    </message>
</context>
<context>
    <name>DriveCard</name>
    <message>
        <source>Local Disk</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>%1 (Removable)</source>
        <translation>%1 (Wechselmedium)</translation>
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
        <translation>Belegt: %1&#xa0;%</translation>
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
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>The file manager could not be started to show this file:
%1</source>
        <translation>Der Dateimanager konnte nicht gestartet werden, um diese Datei anzuzeigen:
%1</translation>
    </message>
    <message>
        <source>This file no longer exists:
%1</source>
        <translation>Diese Datei ist nicht mehr vorhanden:
%1</translation>
    </message>
</context>
<context>
    <name>ItemDetailDialog</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>%1  |  %2 files</source>
        <translation>%1  |  Dateien: %2</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 Treffer</translation>
    </message>
    <message>
        <source>Name</source>
        <translatorcomment>same</translatorcomment>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
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
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>Der Ordner ist nicht derselbe, der aufgelistet wurde</translation>
    </message>
</context>
<context>
    <name>JunkPage</name>
    <message>
        <source>Junk Cleaner</source>
        <translation>Datenmüll löschen</translation>
    </message>
    <message>
        <source>Clean system temp files, cache and logs</source>
        <translation>Temporäre Systemdateien, Cache und Protokolle bereinigen</translation>
    </message>
    <message>
        <source>Cleanable Space</source>
        <translation>Bereinigbarer Speicher</translation>
    </message>
</context>
<context>
    <name>JunkRule</name>
    <message>
        <source>System Temporary Files</source>
        <translation>Temporäre Systemdateien</translation>
    </message>
    <message>
        <source>Files in Windows Temp folders</source>
        <translation>Dateien in den Temp-Ordnern von Windows</translation>
    </message>
    <message>
        <source>Prefetch Files</source>
        <translation>Prefetch-Dateien</translation>
    </message>
    <message>
        <source>Windows Prefetch cache files</source>
        <translation>Prefetch-Cache-Dateien von Windows</translation>
    </message>
    <message>
        <source>Thumbnail Cache</source>
        <translation>Miniaturansichten-Cache</translation>
    </message>
    <message>
        <source>Explorer thumbnail and icon cache files</source>
        <translation>Cache-Dateien des Explorers für Miniaturansichten und Symbole</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>Protokolldateien</translation>
    </message>
    <message>
        <source>Windows setup, servicing and device log files</source>
        <translation>Protokolldateien zu Windows-Setup, Wartung und Geräten</translation>
    </message>
    <message>
        <source>Windows Update Logs</source>
        <translation>Windows Update-Protokolle</translation>
    </message>
    <message>
        <source>Windows Update history and event logs</source>
        <translation>Verlaufs- und Ereignisprotokolle von Windows Update</translation>
    </message>
    <message>
        <source>IIS Log Files</source>
        <translation>IIS-Protokolldateien</translation>
    </message>
    <message>
        <source>Web server and HTTP error log files</source>
        <translation>Protokolldateien zu Webserver und HTTP-Fehlern</translation>
    </message>
    <message>
        <source>Memory Dumps</source>
        <translation>Speicherabbilder</translation>
    </message>
    <message>
        <source>Memory dumps left by system and program crashes</source>
        <translation>Speicherabbilder von System- und Programmabstürzen</translation>
    </message>
    <message>
        <source>Windows Update Cache</source>
        <translation>Windows Update-Cache</translation>
    </message>
    <message>
        <source>Downloaded Windows Update installation files</source>
        <translation>Heruntergeladene Installationsdateien von Windows Update</translation>
    </message>
    <message>
        <source>Error Reports</source>
        <translation>Fehlerberichte</translation>
    </message>
    <message>
        <source>Queued and archived program error reports</source>
        <translation>Anstehende und archivierte Fehlerberichte zu Programmen</translation>
    </message>
    <message>
        <source>Delivery Optimization Files</source>
        <translation>Übermittlungsoptimierungsdateien</translation>
    </message>
    <message>
        <source>Update files kept for sharing with other PCs</source>
        <translation>Updatedateien, die für andere PCs bereitgehalten werden</translation>
    </message>
    <message>
        <source>Windows Defender Scan History</source>
        <translation>Windows Defender-Scanverlauf</translation>
    </message>
    <message>
        <source>Windows Defender scan history and definition backups</source>
        <translation>Scanverlauf und gesicherte Definitionen von Windows Defender</translation>
    </message>
    <message>
        <source>.NET Framework Cache Logs</source>
        <translation>Cache-Protokolle von .NET Framework</translation>
    </message>
    <message>
        <source>.NET temporary web files and usage logs</source>
        <translation>Temporäre Webdateien und Nutzungsprotokolle von .NET</translation>
    </message>
    <message>
        <source>System Integrity Check Logs</source>
        <translation>Protokolle der Systemintegritätsprüfung</translation>
    </message>
    <message>
        <source>Logs of system file and component checks</source>
        <translation>Protokolle der Prüfung von Systemdateien und Komponenten</translation>
    </message>
    <message>
        <source>Installer Cache</source>
        <translation>Installer-Cache</translation>
    </message>
    <message>
        <source>Windows Installer patch cache, needed to uninstall some updates</source>
        <translation>Patch-Cache des Windows Installers, zum Deinstallieren mancher Updates erforderlich</translation>
    </message>
    <message>
        <source>Recent Documents</source>
        <translation>Zuletzt verwendete Dokumente</translation>
    </message>
    <message>
        <source>Shortcuts to recently opened documents</source>
        <translation>Verknüpfungen mit zuletzt geöffneten Dokumenten</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>Schriftarten-Cache</translation>
    </message>
    <message>
        <source>Windows font cache files</source>
        <translation>Cache-Dateien für Windows-Schriftarten</translation>
    </message>
    <message>
        <source>Old Windows Installation</source>
        <translation>Vorherige Windows-Installation</translation>
    </message>
    <message>
        <source>Files of a previous Windows installation, needed to go back to it</source>
        <translation>Dateien einer vorherigen Windows-Installation, für die Rückkehr zu ihr erforderlich</translation>
    </message>
    <message>
        <source>Web Cache</source>
        <translation>Web-Cache</translation>
    </message>
    <message>
        <source>Windows web cache, downloaded pages and cookies</source>
        <translation>Web-Cache von Windows, heruntergeladene Seiten und Cookies</translation>
    </message>
    <message>
        <source>Office Cache</source>
        <translation>Office-Cache</translation>
    </message>
    <message>
        <source>Office document cache and unsaved files</source>
        <translation>Dokument-Cache und nicht gespeicherte Dateien von Office</translation>
    </message>
    <message>
        <source>Tencent Product Logs</source>
        <translation>Tencent-Produktprotokolle</translation>
    </message>
    <message>
        <source>Log files of Tencent products</source>
        <translation>Protokolldateien von Tencent-Produkten</translation>
    </message>
    <message>
        <source>NVIDIA Cache</source>
        <translation>NVIDIA-Cache</translation>
    </message>
    <message>
        <source>NVIDIA graphics shader cache</source>
        <translation>Shader-Cache für NVIDIA-Grafik</translation>
    </message>
    <message>
        <source>AMD Cache</source>
        <translation>AMD-Cache</translation>
    </message>
    <message>
        <source>AMD graphics shader cache</source>
        <translation>Shader-Cache für AMD-Grafik</translation>
    </message>
    <message>
        <source>DirectX Shader Cache</source>
        <translation>DirectX-Shader-Cache</translation>
    </message>
    <message>
        <source>Compiled DirectX shaders, made again when needed</source>
        <translation>Kompilierte DirectX-Shader, werden bei Bedarf neu erstellt</translation>
    </message>
    <message>
        <source>Windows Search Data</source>
        <translation>Daten der Windows-Suche</translation>
    </message>
    <message>
        <source>Logs of the Windows Search indexer</source>
        <translation>Protokolle des Indexers der Windows-Suche</translation>
    </message>
    <message>
        <source>Diagnostic Data</source>
        <translation>Diagnosedaten</translation>
    </message>
    <message>
        <source>Windows troubleshooting and diagnostic data</source>
        <translation>Problembehandlungs- und Diagnosedaten von Windows</translation>
    </message>
</context>
<context>
    <name>LargeFilePage</name>
    <message>
        <source>Tip</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Please select at least one drive to scan.</source>
        <translation>Bitte wählen Sie mindestens ein Laufwerk für den Scan aus.</translation>
    </message>
    <message>
        <source>Custom File Size</source>
        <translation>Andere Dateigröße</translation>
    </message>
    <message>
        <source>Enter minimum file size (MB):</source>
        <translation>Mindestgröße der Dateien (MB):</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>Scan abgeschlossen</translation>
    </message>
    <message>
        <source>No large files found that match the criteria.</source>
        <translation>Es wurden keine großen Dateien gefunden, die den Kriterien entsprechen.</translation>
    </message>
    <message>
        <source>📂 Open file location</source>
        <translation>📂 Dateipfad öffnen</translation>
    </message>
    <message>
        <source>🗑️ Delete this file</source>
        <translation>🗑️ Diese Datei löschen</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this file?

%1
Size: %2

This action cannot be undone!</source>
        <translation>Möchten Sie diese Datei wirklich löschen?

%1
Größe: %2

Dieser Vorgang kann nicht rückgängig gemacht werden!</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>Löschen bestätigen</translation>
    </message>
    <message>
        <source>Delete Failed</source>
        <translation>Löschen fehlgeschlagen</translation>
    </message>
    <message>
        <source>Unable to delete this file. It may be in use by another program.</source>
        <translation>Diese Datei kann nicht gelöscht werden. Möglicherweise wird sie von einem anderen Programm verwendet.</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>All files have been deleted</source>
        <translation>Alle Dateien wurden gelöscht</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected %1 files?

Total: %2

This action cannot be undone!</source>
        <translation>Möchten Sie die ausgewählten Dateien (%1) wirklich löschen?

Gesamtgröße: %2

Dieser Vorgang kann nicht rückgängig gemacht werden!</translation>
    </message>
    <message>
        <source>Deleted %1 files successfully.</source>
        <translation>Gelöschte Dateien: %1.</translation>
    </message>
    <message>
        <source> %1 files failed to delete.</source>
        <translation> Nicht gelöschte Dateien: %1.</translation>
    </message>
    <message>
        <source>Delete Completed</source>
        <translation>Löschen abgeschlossen</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>Vorgang fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>LargeFileResultsView</name>
    <message>
        <source>← Back</source>
        <translation>← Zurück</translation>
    </message>
    <message>
        <source>🗑️ Delete Selected</source>
        <translation>🗑️ Auswahl löschen</translation>
    </message>
    <message>
        <source>Scan Results</source>
        <translation>Scanergebnisse</translation>
    </message>
    <message>
        <source>Found %1 large files, total %2</source>
        <translation>Gefundene große Dateien: %1, insgesamt %2</translation>
    </message>
    <message>
        <source>Selected: %1 files (%2)</source>
        <translation>Ausgewählte Dateien: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>LargeFileSelectionView</name>
    <message>
        <source>Find Large Files</source>
        <translation>Große Dateien suchen</translation>
    </message>
    <message>
        <source>Scan and clean files that take up a lot of disk space</source>
        <translation>Dateien suchen und bereinigen, die viel Speicherplatz belegen</translation>
    </message>
    <message>
        <source>Select Scan Location</source>
        <translation>Laufwerke für den Scan auswählen</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 Scan starten</translation>
    </message>
    <message>
        <source>Minimum File Size:</source>
        <translation>Mindestgröße der Dateien:</translation>
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
        <translation>Andere...</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Konfigurationsfehler</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Die Links zu den Webseiten konnten nicht geladen werden.

Wenden Sie sich an den technischen Support oder installieren Sie das Programm neu.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Browser kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Der Standardbrowser kann nicht geöffnet werden.

Kopieren Sie den Link und öffnen Sie ihn manuell:
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
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>Datenmüll löschen</translation>
    </message>
    <message>
        <source>Browser Cleaner</source>
        <translation>Browser bereinigen</translation>
    </message>
    <message>
        <source>Registry Cleaner</source>
        <translation>Registry bereinigen</translation>
    </message>
    <message>
        <source>Startup Manager</source>
        <translation>Autostart verwalten</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>Große Dateien</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>Hauptfenster anzeigen</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Sweepwise - PC Cleaning Tool</source>
        <translation>Sweepwise – Bereinigungstool für den PC</translation>
    </message>
    <message>
        <source>About Sweepwise</source>
        <translation>Info zu Sweepwise</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Sweepwise - PC Cleaning Tool&lt;/h3&gt;&lt;p&gt;Version %1&lt;/p&gt;&lt;p&gt;Clean your PC with one click!&lt;br&gt;Remove junk files, browser data, and registry issues.&lt;/p&gt;&lt;p&gt;© 2026 Norvak. All rights reserved.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Sweepwise – Bereinigungstool für den PC&lt;/h3&gt;&lt;p&gt;Version %1&lt;/p&gt;&lt;p&gt;Bereinigen Sie Ihren PC mit einem Klick!&lt;br&gt;Beseitigt Datenmüll, Browserdaten und Registry-Probleme.&lt;/p&gt;&lt;p&gt;© 2026 Norvak. Alle Rechte vorbehalten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Program minimized to system tray. Double-click the icon to restore.</source>
        <translation>Das Programm wurde in den Infobereich minimiert. Doppelklicken Sie auf das Symbol, um das Fenster wiederherzustellen.</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>A clean is still running. Start the scan when it is over.</source>
        <translation>Eine Bereinigung läuft noch. Starten Sie den Scan, wenn sie beendet ist.</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Scanning...</source>
        <translation>Scan läuft...</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>Bereinigung läuft...</translation>
    </message>
    <message>
        <source>正在分析系统...</source>
        <translation>System wird analysiert...</translation>
    </message>
    <message>
        <source>正在删除文件...</source>
        <translation>Dateien werden gelöscht...</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>已清理: %1</source>
        <translation>Bereinigt: %1</translation>
    </message>
    <message>
        <source>完成!</source>
        <translation>Fertig!</translation>
    </message>
    <message>
        <source>操作失败</source>
        <translation>Vorgang fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>RegistryBackup</name>
    <message>
        <source>There is no such folder</source>
        <translation>Dieser Ordner ist nicht vorhanden</translation>
    </message>
    <message>
        <source>It is a file of the registry itself</source>
        <translation>Das ist eine Datei der Registry selbst</translation>
    </message>
    <message>
        <source>A folder stands there</source>
        <translation>Dort befindet sich ein Ordner</translation>
    </message>
    <message>
        <source>A link stands there, which leads elsewhere</source>
        <translation>Dort befindet sich eine Verknüpfung, die woandershin führt</translation>
    </message>
    <message>
        <source>What stands there is not a file</source>
        <translation>Was sich dort befindet, ist keine Datei</translation>
    </message>
</context>
<context>
    <name>RegistryBackupDialog</name>
    <message>
        <source>Backup registry before cleaning (Recommended)</source>
        <translation>Registry vor dem Bereinigen sichern (empfohlen)</translation>
    </message>
    <message>
        <source>Clean Registry</source>
        <translation>Registry bereinigen</translation>
    </message>
    <message>
        <source>About to clean &lt;b&gt;%1&lt;/b&gt; invalid registry entries</source>
        <translation>Zu bereinigende ungültige Registry-Einträge: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>⚠️ Backup file can be used to restore accidentally deleted registry entries</source>
        <translation>⚠️ Mit der Sicherungsdatei lassen sich versehentlich gelöschte Registry-Einträge wiederherstellen</translation>
    </message>
    <message>
        <source>Save to:</source>
        <translation>Zieldatei:</translation>
    </message>
    <message>
        <source>Backup file</source>
        <translation>Sicherungsdatei</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Wählen...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Start Cleaning</source>
        <translation>Bereinigen</translation>
    </message>
    <message>
        <source>Select backup location</source>
        <translation>Speicherort der Sicherung auswählen</translation>
    </message>
    <message>
        <source>Registry files (*.reg)</source>
        <translation>Registry-Dateien (*.reg)</translation>
    </message>
    <message>
        <source>The backup cannot be written here:
%1

%2</source>
        <translation>Die Sicherung kann hier nicht gespeichert werden:
%1

%2</translation>
    </message>
    <message>
        <source>There is a file of this name already:
%1

Replace it?</source>
        <translation>Es gibt bereits eine Datei mit diesem Namen:
%1

Soll sie ersetzt werden?</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>Der Ordner kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The file is write-protected.</source>
        <translation>Die Datei ist schreibgeschützt.</translation>
    </message>
</context>
<context>
    <name>RegistryChecks</name>
    <message>
        <source>Path: %1</source>
        <translation>Pfad: %1</translation>
    </message>
    <message>
        <source>Command: %1</source>
        <translation>Befehl: %1</translation>
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
        <translation>Schriftartdatei: %1</translation>
    </message>
    <message>
        <source>DLL path: %1</source>
        <translation>DLL-Pfad: %1</translation>
    </message>
</context>
<context>
    <name>RegistryCleaner</name>
    <message>
        <source>Invalid Software Paths</source>
        <translation>Ungültige Softwarepfade</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent locations</source>
        <translation>Registry-Einträge, die auf nicht vorhandene Speicherorte verweisen</translation>
    </message>
    <message>
        <source>Invalid File Associations</source>
        <translation>Ungültige Dateizuordnungen</translation>
    </message>
    <message>
        <source>File associations pointing to missing programs</source>
        <translation>Dateizuordnungen, die auf fehlende Programme verweisen</translation>
    </message>
    <message>
        <source>Invalid COM/ActiveX</source>
        <translation>Ungültige COM-/ActiveX-Einträge</translation>
    </message>
    <message>
        <source>Invalid COM components and ActiveX controls</source>
        <translation>Ungültige COM-Komponenten und ActiveX-Steuerelemente</translation>
    </message>
    <message>
        <source>Invalid Font References</source>
        <translation>Ungültige Schriftartverweise</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent font files</source>
        <translation>Registry-Einträge, die auf nicht vorhandene Schriftartdateien verweisen</translation>
    </message>
    <message>
        <source>Invalid Startup Items</source>
        <translation>Ungültige Autostart-Einträge</translation>
    </message>
    <message>
        <source>Startup items pointing to non-existent programs</source>
        <translation>Autostart-Einträge, die auf nicht vorhandene Programme verweisen</translation>
    </message>
    <message>
        <source>Invalid Shared DLLs</source>
        <translation>Ungültige gemeinsam genutzte DLLs</translation>
    </message>
    <message>
        <source>References to non-existent shared DLL files</source>
        <translation>Verweise auf nicht vorhandene gemeinsam genutzte DLL-Dateien</translation>
    </message>
    <message>
        <source>MUI Cache</source>
        <translation>MUI-Cache</translation>
    </message>
    <message>
        <source>Application MUI cache data</source>
        <translation>Daten des MUI-Cache für Programme</translation>
    </message>
    <message>
        <source>Scanning invalid software paths...</source>
        <translation>Suche nach ungültigen Softwarepfaden...</translation>
    </message>
    <message>
        <source>Scanning invalid file associations...</source>
        <translation>Suche nach ungültigen Dateizuordnungen...</translation>
    </message>
    <message>
        <source>Scanning invalid COM components...</source>
        <translation>Suche nach ungültigen COM-Komponenten...</translation>
    </message>
    <message>
        <source>Scanning invalid font references...</source>
        <translation>Suche nach ungültigen Schriftartverweisen...</translation>
    </message>
    <message>
        <source>Scanning invalid startup items...</source>
        <translation>Suche nach ungültigen Autostart-Einträgen...</translation>
    </message>
    <message>
        <source>Scanning invalid shared DLLs...</source>
        <translation>Suche nach ungültigen gemeinsam genutzten DLLs...</translation>
    </message>
    <message>
        <source>Scanning MUI cache...</source>
        <translation>MUI-Cache wird gescannt...</translation>
    </message>
    <message>
        <source>Its name cannot be told from a path</source>
        <translation>Der Name lässt sich nicht von einem Pfad unterscheiden</translation>
    </message>
    <message>
        <source>It has changed since the scan</source>
        <translation>Der Eintrag hat sich seit dem Scan geändert</translation>
    </message>
    <message>
        <source>It could not be read again before the clean</source>
        <translation>Der Eintrag konnte vor dem Bereinigen nicht erneut gelesen werden</translation>
    </message>
</context>
<context>
    <name>RegistryPage</name>
    <message>
        <source>Registry Cleaner</source>
        <translation>Registry bereinigen</translation>
    </message>
    <message>
        <source>Clean invalid registry entries</source>
        <translation>Ungültige Registry-Einträge bereinigen</translation>
    </message>
    <message>
        <source>Issues Found</source>
        <translation>Gefundene Probleme</translation>
    </message>
    <message>
        <source>选中: --</source>
        <translation>Ausgewählt: --</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>没有选中任何项目</source>
        <translation>Keine Elemente ausgewählt</translation>
    </message>
    <message>
        <source>Entries removed without a backup: %1</source>
        <translation>Ohne Sicherung entfernte Einträge: %1</translation>
    </message>
    <message>
        <source>No entries were removed.</source>
        <translation>Es wurden keine Einträge entfernt.</translation>
    </message>
    <message>
        <source>The registry backup could not be written:
%1

%2</source>
        <translation>Die Sicherung der Registry konnte nicht gespeichert werden:
%1

%2</translation>
    </message>
</context>
<context>
    <name>RegistryRestore</name>
    <message>
        <source>this is not a registry backup</source>
        <translation>Das ist keine Registry-Sicherung</translation>
    </message>
    <message>
        <source>the file breaks off here</source>
        <translation>Die Datei bricht hier ab</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>the line does not end where it should</source>
        <translation>Die Zeile endet nicht an der erwarteten Stelle</translation>
    </message>
    <message>
        <source>the key has no end</source>
        <translation>Die schließende Klammer des Schlüssels fehlt</translation>
    </message>
    <message>
        <source>the key&apos;s path is not complete</source>
        <translation>Der Pfad des Schlüssels ist unvollständig</translation>
    </message>
    <message>
        <source>the key lies in no known hive</source>
        <translation>Der Schlüssel gehört zu keiner bekannten Registry-Struktur</translation>
    </message>
    <message>
        <source>there is no key before this line</source>
        <translation>Vor dieser Zeile steht kein Schlüssel</translation>
    </message>
    <message>
        <source>this is neither a key nor a value</source>
        <translation>Das ist weder ein Schlüssel noch ein Wert</translation>
    </message>
    <message>
        <source>a value&apos;s name has no value</source>
        <translation>Zum Namen eines Werts fehlt der Wert</translation>
    </message>
    <message>
        <source>the kind of the value is not known</source>
        <translation>Die Art des Werts ist unbekannt</translation>
    </message>
    <message>
        <source>a backslash stands before something else than a quote or a backslash</source>
        <translation>Auf einen umgekehrten Schrägstrich folgt weder ein Anführungszeichen noch ein weiterer umgekehrter Schrägstrich</translation>
    </message>
    <message>
        <source>the text has no closing quote</source>
        <translation>Das schließende Anführungszeichen des Texts fehlt</translation>
    </message>
    <message>
        <source>eight hexadecimal digits are wanted here</source>
        <translation>Hier werden acht Hexadezimalziffern erwartet</translation>
    </message>
    <message>
        <source>the type of the value is not a number</source>
        <translation>Der Typ des Werts ist keine Zahl</translation>
    </message>
    <message>
        <source>a byte of two hexadecimal digits is wanted here</source>
        <translation>Hier wird ein Byte aus zwei Hexadezimalziffern erwartet</translation>
    </message>
    <message>
        <source>the list of bytes breaks off</source>
        <translation>Die Byteliste bricht ab</translation>
    </message>
    <message>
        <source>The restoring was cancelled</source>
        <translation>Das Wiederherstellen wurde abgebrochen</translation>
    </message>
</context>
<context>
    <name>RegistryTexts</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not the path of a key</source>
        <translation>„%1“ ist kein Schlüsselpfad</translation>
    </message>
    <message>
        <source>There is no such key</source>
        <translation>Dieser Schlüssel ist nicht vorhanden</translation>
    </message>
    <message>
        <source>The key is a link to another one</source>
        <translation>Der Schlüssel ist eine Verknüpfung mit einem anderen Schlüssel</translation>
    </message>
    <message>
        <source>There are keys below it</source>
        <translation>Der Schlüssel enthält Unterschlüssel</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>Dieser Wert ist nicht vorhanden</translation>
    </message>
    <message>
        <source>There is no registry</source>
        <translation>Es ist keine Registry vorhanden</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Windows programs are running in the Wine prefix %1; end them and try again</source>
        <translation>Im Wine-Präfix %1 laufen noch Windows-Programme; beenden Sie diese und versuchen Sie es erneut</translation>
    </message>
    <message>
        <source>%1 was changed by another program; scan again</source>
        <translation>%1 wurde von einem anderen Programm geändert; scannen Sie erneut</translation>
    </message>
    <message>
        <source>A value without a name is not written</source>
        <translation>Ein Wert ohne Namen wird nicht geschrieben</translation>
    </message>
    <message>
        <source>The name or the text cannot be stored as it is</source>
        <translation>Der Name oder der Text lässt sich so nicht speichern</translation>
    </message>
    <message>
        <source>The registry did not take the value</source>
        <translation>Die Registry hat den Wert nicht übernommen</translation>
    </message>
    <message>
        <source>The registry did not let go of the value</source>
        <translation>Der Wert ließ sich nicht aus der Registry entfernen</translation>
    </message>
    <message>
        <source>A class is changed in the user&apos;s or in the machine&apos;s hive</source>
        <translation>Eine Klasse wird in der Struktur des Benutzers oder in der des Computers geändert</translation>
    </message>
    <message>
        <source>It is not a registry file</source>
        <translation>Das ist keine Registry-Datei</translation>
    </message>
    <message>
        <source>It is damaged</source>
        <translation>Die Datei ist beschädigt</translation>
    </message>
</context>
<context>
    <name>ResultWidget</name>
    <message>
        <source>Expanded</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Reduziert</translation>
    </message>
</context>
<context>
    <name>ScanProgressDialog</name>
    <message>
        <source>Scanning for large files...</source>
        <translation>Suche nach großen Dateien...</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Vorbereitung...</translation>
    </message>
    <message>
        <source>Found %1 large files (%2)</source>
        <translation>Gefundene große Dateien: %1 (%2)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Scanning: %1</source>
        <translation>Scan läuft: %1</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Start with Windows</source>
        <translation>Mit Windows starten</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Beim Schließen in den Infobereich minimieren</translation>
    </message>
    <message>
        <source>Confirm before cleaning</source>
        <translation>Vor dem Bereinigen nachfragen</translation>
    </message>
    <message>
        <source>Auto backup before registry cleaning</source>
        <translation>Registry vor dem Bereinigen automatisch sichern</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Bereinigung</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>The settings could not be saved:
%1</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden:
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
        <translation>Aktiviert</translation>
    </message>
</context>
<context>
    <name>StartupPage</name>
    <message>
        <source>Startup Manager</source>
        <translation>Autostart verwalten</translation>
    </message>
    <message>
        <source>Check programs to enable auto-start at boot</source>
        <translation>Wählen Sie, was beim Systemstart automatisch startet</translation>
    </message>
    <message>
        <source>%1 programs</source>
        <translation>Programme: %1</translation>
    </message>
    <message>
        <source>Search programs...</source>
        <translation>Programme suchen...</translation>
    </message>
    <message>
        <source>Search programs</source>
        <translation>Programme suchen</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Checked programs will run automatically at startup</source>
        <translation>Ausgewählte Programme werden beim Systemstart automatisch ausgeführt</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>Installierte Programme werden gescannt...</translation>
    </message>
    <message>
        <source>First load may take a few seconds</source>
        <translation>Der erste Ladevorgang kann einige Sekunden dauern</translation>
    </message>
    <message>
        <source>%1 programs · %2 startup items</source>
        <translation>Programme: %1 · Autostart-Einträge: %2</translation>
    </message>
    <message>
        <source>Failed to add startup item</source>
        <translation>Autostart-Eintrag konnte nicht hinzugefügt werden</translation>
    </message>
    <message>
        <source>Failed to remove startup item</source>
        <translation>Autostart-Eintrag konnte nicht entfernt werden</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>Vorgang fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Support</source>
        <translatorcomment>same</translatorcomment>
        <translation>Support</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Sprache geändert</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>Die Sprache wurde geändert.

Das Programm wird jetzt neu gestartet.</translation>
    </message>
    <message>
        <source>The application could not be restarted. Please start it again yourself.</source>
        <translation>Das Programm konnte nicht neu gestartet werden. Bitte starten Sie es selbst erneut.</translation>
    </message>
    <message>
        <source>The language could not be saved and does not change:
%1</source>
        <translation>Die Sprache konnte nicht gespeichert werden und bleibt daher unverändert:
%1</translation>
    </message>
</context>
<context>
    <name>Worker</name>
    <message>
        <source>The system cannot start another thread. End some programs and try again.</source>
        <translation>Das System kann keinen weiteren Thread starten. Beenden Sie einige Programme und versuchen Sie es erneut.</translation>
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
