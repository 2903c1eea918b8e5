<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Your Personal System Butler

🧹 Junk Cleaner - Free up valuable disk space
🌐 Browser Cleaner - Protect your privacy
🔧 Registry Cleaner - Boost system performance
⚡ Startup Manager - Speed up boot time</source>
        <translation>L&apos;assistente personale del PC

🧹 Pulizia sistema - Più spazio libero su disco
🌐 Pulizia browser - Privacy protetta
🔧 Pulizia registro - Prestazioni migliori
⚡ Gestione avvio - Avvio del PC più rapido</translation>
    </message>
    <message>
        <source>© 2026 Norvak. All rights reserved.</source>
        <translation>© 2026 Norvak. Tutti i diritti riservati.</translation>
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
        <translation>Strumento di pulizia</translation>
    </message>
    <message>
        <source>Scan and clean up unnecessary files</source>
        <translation>Analisi e pulizia dei file non necessari</translation>
    </message>
    <message>
        <source>Cleanable</source>
        <translation>Da pulire</translation>
    </message>
    <message>
        <source>Click &quot;Start Scanning&quot; to find cleanable items</source>
        <translation>Fare clic su «Avvia analisi» per trovare gli elementi da pulire</translation>
    </message>
    <message>
        <source>Start Scanning</source>
        <translation>Avvia analisi</translation>
    </message>
    <message>
        <source>Clean Now</source>
        <translation>Pulisci ora</translation>
    </message>
    <message>
        <source>Selected: --</source>
        <translation>Elementi selezionati: --</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>No items selected</source>
        <translation>Nessun elemento selezionato</translation>
    </message>
    <message>
        <source>Confirm Clean</source>
        <translation>Conferma pulizia</translation>
    </message>
    <message>
        <source>Are you sure you want to clean %1 selected items?
This action cannot be undone!</source>
        <translation>Pulire gli elementi selezionati (%1)?
L&apos;operazione non può essere annullata.</translation>
    </message>
    <message>
        <source>Selected: %1 items, %2</source>
        <translation>Elementi selezionati: %1 (%2)</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Elementi: %1</translation>
    </message>
    <message>
        <source>Selected: %1 items</source>
        <translation>Elementi selezionati: %1</translation>
    </message>
    <message>
        <source>Cleaned %1 items, freed %2</source>
        <translation>Elementi puliti: %1. Spazio liberato: %2</translation>
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
        <translation>File non trovato</translation>
    </message>
    <message>
        <source>Holds part of a database: removing it loses data saved by the browser, websites or extensions</source>
        <translation>Contiene parte di un database: l&apos;eliminazione comporta la perdita di dati salvati dal browser, dai siti Web o dalle estensioni</translation>
    </message>
    <message>
        <source>Belongs to an extension, which does not work without all its files</source>
        <translation>Fa parte di un&apos;estensione, che non funziona senza tutti i suoi file</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>La cartella non è quella che era stata elencata</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>Show the data of %1</source>
        <translation>Mostra i dati di %1</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Elementi: %1</translation>
    </message>
</context>
<context>
    <name>BrowserPage</name>
    <message>
        <source>Browser Cleaner</source>
        <translation>Pulizia browser</translation>
    </message>
    <message>
        <source>Clean browser cache, cookies and history</source>
        <translation>Pulizia di cache, cookie e cronologia dei browser</translation>
    </message>
    <message>
        <source>Cleanable Data</source>
        <translation>Dati da pulire</translation>
    </message>
    <message>
        <source>Select Browser:</source>
        <translation>Browser:</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Altro</translation>
    </message>
</context>
<context>
    <name>BrowserRule</name>
    <message>
        <source>Browser Cache</source>
        <translation>Cache del browser</translation>
    </message>
    <message>
        <source>Temporary web page cache files</source>
        <translation>File temporanei della cache delle pagine Web</translation>
    </message>
    <message>
        <source>Code Cache</source>
        <translation>Cache del codice</translation>
    </message>
    <message>
        <source>JavaScript code cache</source>
        <translation>Cache del codice JavaScript</translation>
    </message>
    <message>
        <source>GPU Cache</source>
        <translation>Cache della GPU</translation>
    </message>
    <message>
        <source>GPU rendering cache</source>
        <translation>Cache di rendering della GPU</translation>
    </message>
    <message>
        <source>Shader Cache</source>
        <translation>Cache degli shader</translation>
    </message>
    <message>
        <source>GPU shader compilation cache</source>
        <translation>Cache di compilazione degli shader della GPU</translation>
    </message>
    <message>
        <source>Service Workers</source>
        <translation>Service Worker</translation>
    </message>
    <message>
        <source>Service Worker cache</source>
        <translation>Cache dei Service Worker</translation>
    </message>
    <message>
        <source>Media Cache</source>
        <translation>Cache multimediale</translation>
    </message>
    <message>
        <source>Media file cache</source>
        <translation>Cache dei file multimediali</translation>
    </message>
    <message>
        <source>Network Cache</source>
        <translation>Cache di rete</translation>
    </message>
    <message>
        <source>HTTP network request cache</source>
        <translation>Cache delle richieste di rete HTTP</translation>
    </message>
    <message>
        <source>Jump List</source>
        <translatorcomment>same</translatorcomment>
        <translation>Jump List</translation>
    </message>
    <message>
        <source>Taskbar Jump List icon cache</source>
        <translation>Cache delle icone delle Jump List nella barra delle applicazioni</translation>
    </message>
    <message>
        <source>Blob Storage</source>
        <translation>Archivio BLOB</translation>
    </message>
    <message>
        <source>Temporary binary data storage</source>
        <translation>Archivio temporaneo di dati binari</translation>
    </message>
    <message>
        <source>WebRTC Logs</source>
        <translation>Log WebRTC</translation>
    </message>
    <message>
        <source>Video call debug logs</source>
        <translation>Log di debug delle videochiamate</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Segnalazioni di arresti anomali</translation>
    </message>
    <message>
        <source>Browser crash report files</source>
        <translation>File di segnalazione degli arresti anomali del browser</translation>
    </message>
    <message>
        <source>Browser Logs</source>
        <translation>Log del browser</translation>
    </message>
    <message>
        <source>Browser debug and error logs</source>
        <translation>Log di debug e di errore del browser</translation>
    </message>
    <message>
        <source>Website Thumbnails</source>
        <translation>Anteprime dei siti Web</translation>
    </message>
    <message>
        <source>New Tab page website thumbnails</source>
        <translation>Anteprime dei siti Web nella pagina Nuova scheda</translation>
    </message>
    <message>
        <source>Favicon Cache</source>
        <translation>Cache delle favicon</translation>
    </message>
    <message>
        <source>Website icon (favicon) cache</source>
        <translation>Cache delle icone dei siti Web (favicon)</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>Cache dei tipi di carattere</translation>
    </message>
    <message>
        <source>Web font cache files</source>
        <translation>File della cache dei tipi di carattere Web</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Archiviazione locale</translation>
    </message>
    <message>
        <source>Website Local Storage (site settings may be lost)</source>
        <translation>Archiviazione locale dei siti Web (le impostazioni dei siti potrebbero andare perse)</translation>
    </message>
    <message>
        <source>IndexedDB</source>
        <translatorcomment>same</translatorcomment>
        <translation>IndexedDB</translation>
    </message>
    <message>
        <source>Website database storage (offline data may be lost)</source>
        <translation>Database dei siti Web (i dati offline potrebbero andare persi)</translation>
    </message>
    <message>
        <source>Cookies</source>
        <translation>Cookie</translation>
    </message>
    <message>
        <source>Website Cookies (requires re-login to all sites)</source>
        <translation>Cookie dei siti Web (sarà necessario accedere di nuovo a tutti i siti)</translation>
    </message>
    <message>
        <source>Browsing History</source>
        <translation>Cronologia di navigazione</translation>
    </message>
    <message>
        <source>Web browsing history records</source>
        <translation>Cronologia delle pagine Web visitate</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Cronologia dei download</translation>
    </message>
    <message>
        <source>Download history records (downloaded files are not deleted)</source>
        <translation>Elenco dei download effettuati (i file scaricati non vengono eliminati)</translation>
    </message>
    <message>
        <source>Session Data</source>
        <translation>Dati di sessione</translation>
    </message>
    <message>
        <source>Current and recent session data (tabs may be lost)</source>
        <translation>Dati delle sessioni attuali e recenti (le schede potrebbero andare perse)</translation>
    </message>
    <message>
        <source>Form Data</source>
        <translation>Dati dei moduli</translation>
    </message>
    <message>
        <source>Autofill form data (requires re-entry after cleaning)</source>
        <translation>Dati di compilazione automatica dei moduli (da reinserire dopo la pulizia)</translation>
    </message>
    <message>
        <source>Safe Browsing Data</source>
        <translation>Dati di Navigazione sicura</translation>
    </message>
    <message>
        <source>Safe Browsing protection data (not recommended to clean)</source>
        <translation>Dati di protezione di Navigazione sicura (pulizia sconsigliata)</translation>
    </message>
</context>
<context>
    <name>BrowserSubItem</name>
    <message>
        <source>%1 items</source>
        <translation>Elementi: %1</translation>
    </message>
    <message>
        <source>View Details</source>
        <translation>Mostra dettagli</translation>
    </message>
    <message>
        <source>View details of %1</source>
        <translation>Mostra dettagli di %1</translation>
    </message>
</context>
<context>
    <name>CategoryWidget</name>
    <message>
        <source>View Details</source>
        <translation>Mostra dettagli</translation>
    </message>
    <message>
        <source>Show items of %1</source>
        <translation>Mostra elementi di %1</translation>
    </message>
    <message>
        <source>Load more (%1 remaining)</source>
        <translation>Carica altri (rimanenti: %1)</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Elementi: %1</translation>
    </message>
    <message>
        <source>%1: %2 items, view details</source>
        <translation>%1, elementi: %2, mostra dettagli</translation>
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
        <translation>Medio</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Basso</translation>
    </message>
    <message>
        <source>Risk: %1</source>
        <translation>Rischio: %1</translation>
    </message>
</context>
<context>
    <name>DashboardResultsPanel</name>
    <message>
        <source>Can be cleaned</source>
        <translation>Da pulire</translation>
    </message>
    <message>
        <source>Keep Your PC Running at Peak Performance</source>
        <translation>Il PC sempre al massimo delle prestazioni</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 Analizza</translation>
    </message>
    <message>
        <source>🗑️ Clean All</source>
        <translation>🗑️ Pulisci tutto</translation>
    </message>
    <message>
        <source>Junk Files</source>
        <translation>File inutili</translation>
    </message>
    <message>
        <source>Browser Data</source>
        <translation>Dati dei browser</translation>
    </message>
    <message>
        <source>Registry Issues</source>
        <translation>Problemi del registro</translation>
    </message>
    <message>
        <source>&lt;span style=&apos;font-weight:600;&apos;&gt;Tip:&lt;/span&gt; Regular cleaning can improve your PC performance by up to 30%</source>
        <translation>&lt;span style=&apos;font-weight:600;&apos;&gt;Suggerimento:&lt;/span&gt; una pulizia regolare può migliorare le prestazioni del PC fino al 30%</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Analisi in corso...</translation>
    </message>
    <message>
        <source>Ready to scan</source>
        <translation>Pronto per l&apos;analisi</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Totale: %1</translation>
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
        <translation>🔍  Analisi completa</translation>
    </message>
    <message>
        <source>Ready to Clean Your PC</source>
        <translation>Tutto pronto per pulire il PC</translation>
    </message>
    <message>
        <source>Click the button below to scan for junk files and free up space</source>
        <translation>Fare clic sul pulsante qui sotto per cercare i file inutili e liberare spazio</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparazione in corso...</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Analisi in corso...</translation>
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
        <translation>Apri percorso file</translation>
    </message>
    <message>
        <source>Open file location of %1</source>
        <translation>Apri percorso file di %1</translation>
    </message>
</context>
<context>
    <name>DriveCard</name>
    <message>
        <source>Local Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>%1 (Removable)</source>
        <translation>%1 (rimovibile)</translation>
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
        <translation>Spazio utilizzato: %1%</translation>
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
        <translation>Avviso</translation>
    </message>
    <message>
        <source>The file manager could not be started to show this file:
%1</source>
        <translation>Impossibile avviare il gestore di file per mostrare questo file:
%1</translation>
    </message>
    <message>
        <source>This file no longer exists:
%1</source>
        <translation>Il file non esiste più:
%1</translation>
    </message>
</context>
<context>
    <name>ItemDetailDialog</name>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>%1  |  %2 files</source>
        <translation>%1  |  %2 file</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Elementi: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
</context>
<context>
    <name>JunkCleaner</name>
    <message>
        <source>File not found</source>
        <translation>File non trovato</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>La cartella non è quella che era stata elencata</translation>
    </message>
</context>
<context>
    <name>JunkPage</name>
    <message>
        <source>Junk Cleaner</source>
        <translation>Pulizia sistema</translation>
    </message>
    <message>
        <source>Clean system temp files, cache and logs</source>
        <translation>Pulizia di file temporanei, cache e log di sistema</translation>
    </message>
    <message>
        <source>Cleanable Space</source>
        <translation>Spazio da liberare</translation>
    </message>
</context>
<context>
    <name>JunkRule</name>
    <message>
        <source>System Temporary Files</source>
        <translation>File temporanei di sistema</translation>
    </message>
    <message>
        <source>Files in Windows Temp folders</source>
        <translation>File nelle cartelle Temp di Windows</translation>
    </message>
    <message>
        <source>Prefetch Files</source>
        <translation>File di Prefetch</translation>
    </message>
    <message>
        <source>Windows Prefetch cache files</source>
        <translation>File della cache Prefetch di Windows</translation>
    </message>
    <message>
        <source>Thumbnail Cache</source>
        <translation>Cache delle anteprime</translation>
    </message>
    <message>
        <source>Explorer thumbnail and icon cache files</source>
        <translation>File della cache di anteprime e icone di Esplora file</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>File di log</translation>
    </message>
    <message>
        <source>Windows setup, servicing and device log files</source>
        <translation>File di log di installazione, manutenzione e dispositivi di Windows</translation>
    </message>
    <message>
        <source>Windows Update Logs</source>
        <translation>Log di Windows Update</translation>
    </message>
    <message>
        <source>Windows Update history and event logs</source>
        <translation>Cronologia e log eventi di Windows Update</translation>
    </message>
    <message>
        <source>IIS Log Files</source>
        <translation>File di log di IIS</translation>
    </message>
    <message>
        <source>Web server and HTTP error log files</source>
        <translation>File di log del server Web e degli errori HTTP</translation>
    </message>
    <message>
        <source>Memory Dumps</source>
        <translation>Dump della memoria</translation>
    </message>
    <message>
        <source>Memory dumps left by system and program crashes</source>
        <translation>Dump della memoria creati in seguito ad arresti anomali del sistema e dei programmi</translation>
    </message>
    <message>
        <source>Windows Update Cache</source>
        <translation>Cache di Windows Update</translation>
    </message>
    <message>
        <source>Downloaded Windows Update installation files</source>
        <translation>File di installazione scaricati da Windows Update</translation>
    </message>
    <message>
        <source>Error Reports</source>
        <translation>Segnalazioni errori</translation>
    </message>
    <message>
        <source>Queued and archived program error reports</source>
        <translation>Segnalazioni errori dei programmi, in coda e archiviate</translation>
    </message>
    <message>
        <source>Delivery Optimization Files</source>
        <translation>File di Ottimizzazione recapito</translation>
    </message>
    <message>
        <source>Update files kept for sharing with other PCs</source>
        <translation>File di aggiornamento conservati per la condivisione con altri PC</translation>
    </message>
    <message>
        <source>Windows Defender Scan History</source>
        <translation>Cronologia analisi di Windows Defender</translation>
    </message>
    <message>
        <source>Windows Defender scan history and definition backups</source>
        <translation>Cronologia delle analisi e backup delle definizioni di Windows Defender</translation>
    </message>
    <message>
        <source>.NET Framework Cache Logs</source>
        <translation>Log della cache di .NET Framework</translation>
    </message>
    <message>
        <source>.NET temporary web files and usage logs</source>
        <translation>File Web temporanei e log di utilizzo di .NET</translation>
    </message>
    <message>
        <source>System Integrity Check Logs</source>
        <translation>Log di verifica dell&apos;integrità del sistema</translation>
    </message>
    <message>
        <source>Logs of system file and component checks</source>
        <translation>Log delle verifiche di file e componenti di sistema</translation>
    </message>
    <message>
        <source>Installer Cache</source>
        <translation>Cache di Windows Installer</translation>
    </message>
    <message>
        <source>Windows Installer patch cache, needed to uninstall some updates</source>
        <translation>Cache delle patch di Windows Installer, necessaria per disinstallare alcuni aggiornamenti</translation>
    </message>
    <message>
        <source>Recent Documents</source>
        <translation>Documenti recenti</translation>
    </message>
    <message>
        <source>Shortcuts to recently opened documents</source>
        <translation>Collegamenti ai documenti aperti di recente</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>Cache dei tipi di carattere</translation>
    </message>
    <message>
        <source>Windows font cache files</source>
        <translation>File della cache dei tipi di carattere di Windows</translation>
    </message>
    <message>
        <source>Old Windows Installation</source>
        <translation>Installazione di Windows precedente</translation>
    </message>
    <message>
        <source>Files of a previous Windows installation, needed to go back to it</source>
        <translation>File di un&apos;installazione di Windows precedente, necessari per ripristinarla</translation>
    </message>
    <message>
        <source>Web Cache</source>
        <translation>Cache Web</translation>
    </message>
    <message>
        <source>Windows web cache, downloaded pages and cookies</source>
        <translation>Cache Web di Windows, pagine scaricate e cookie</translation>
    </message>
    <message>
        <source>Office Cache</source>
        <translation>Cache di Office</translation>
    </message>
    <message>
        <source>Office document cache and unsaved files</source>
        <translation>Cache dei documenti e file non salvati di Office</translation>
    </message>
    <message>
        <source>Tencent Product Logs</source>
        <translation>Log dei prodotti Tencent</translation>
    </message>
    <message>
        <source>Log files of Tencent products</source>
        <translation>File di log dei prodotti Tencent</translation>
    </message>
    <message>
        <source>NVIDIA Cache</source>
        <translation>Cache NVIDIA</translation>
    </message>
    <message>
        <source>NVIDIA graphics shader cache</source>
        <translation>Cache degli shader grafici NVIDIA</translation>
    </message>
    <message>
        <source>AMD Cache</source>
        <translation>Cache AMD</translation>
    </message>
    <message>
        <source>AMD graphics shader cache</source>
        <translation>Cache degli shader grafici AMD</translation>
    </message>
    <message>
        <source>DirectX Shader Cache</source>
        <translation>Cache degli shader DirectX</translation>
    </message>
    <message>
        <source>Compiled DirectX shaders, made again when needed</source>
        <translation>Shader DirectX compilati, ricreati quando necessario</translation>
    </message>
    <message>
        <source>Windows Search Data</source>
        <translation>Dati di Windows Search</translation>
    </message>
    <message>
        <source>Logs of the Windows Search indexer</source>
        <translation>Log dell&apos;indicizzatore di Windows Search</translation>
    </message>
    <message>
        <source>Diagnostic Data</source>
        <translation>Dati di diagnostica</translation>
    </message>
    <message>
        <source>Windows troubleshooting and diagnostic data</source>
        <translation>Dati di diagnostica e risoluzione dei problemi di Windows</translation>
    </message>
</context>
<context>
    <name>LargeFilePage</name>
    <message>
        <source>Tip</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Please select at least one drive to scan.</source>
        <translation>Selezionare almeno un&apos;unità da analizzare.</translation>
    </message>
    <message>
        <source>Custom File Size</source>
        <translation>Dimensione personalizzata</translation>
    </message>
    <message>
        <source>Enter minimum file size (MB):</source>
        <translation>Immettere la dimensione minima dei file (MB):</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>Analisi completata</translation>
    </message>
    <message>
        <source>No large files found that match the criteria.</source>
        <translation>Nessun file di grandi dimensioni corrisponde ai criteri.</translation>
    </message>
    <message>
        <source>📂 Open file location</source>
        <translation>📂 Apri percorso file</translation>
    </message>
    <message>
        <source>🗑️ Delete this file</source>
        <translation>🗑️ Elimina questo file</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this file?

%1
Size: %2

This action cannot be undone!</source>
        <translation>Eliminare questo file?

%1
Dimensione: %2

L&apos;operazione non può essere annullata.</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>Conferma eliminazione</translation>
    </message>
    <message>
        <source>Delete Failed</source>
        <translation>Eliminazione non riuscita</translation>
    </message>
    <message>
        <source>Unable to delete this file. It may be in use by another program.</source>
        <translation>Impossibile eliminare il file. Potrebbe essere in uso da parte di un altro programma.</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>All files have been deleted</source>
        <translation>Tutti i file sono stati eliminati</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected %1 files?

Total: %2

This action cannot be undone!</source>
        <translation>Eliminare i file selezionati (%1)?

Totale: %2

L&apos;operazione non può essere annullata.</translation>
    </message>
    <message>
        <source>Deleted %1 files successfully.</source>
        <translation>File eliminati: %1.</translation>
    </message>
    <message>
        <source> %1 files failed to delete.</source>
        <translation> File non eliminati: %1.</translation>
    </message>
    <message>
        <source>Delete Completed</source>
        <translation>Eliminazione completata</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>Operazione non riuscita</translation>
    </message>
</context>
<context>
    <name>LargeFileResultsView</name>
    <message>
        <source>← Back</source>
        <translation>← Indietro</translation>
    </message>
    <message>
        <source>🗑️ Delete Selected</source>
        <translation>🗑️ Elimina selezionati</translation>
    </message>
    <message>
        <source>Scan Results</source>
        <translation>Risultati dell&apos;analisi</translation>
    </message>
    <message>
        <source>Found %1 large files, total %2</source>
        <translation>File trovati: %1, totale: %2</translation>
    </message>
    <message>
        <source>Selected: %1 files (%2)</source>
        <translation>File selezionati: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>LargeFileSelectionView</name>
    <message>
        <source>Find Large Files</source>
        <translation>Trova file di grandi dimensioni</translation>
    </message>
    <message>
        <source>Scan and clean files that take up a lot of disk space</source>
        <translation>Ricerca ed eliminazione dei file che occupano molto spazio su disco</translation>
    </message>
    <message>
        <source>Select Scan Location</source>
        <translation>Selezionare le unità da analizzare</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 Analizza</translation>
    </message>
    <message>
        <source>Minimum File Size:</source>
        <translation>Dimensione minima dei file:</translation>
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
        <translation>Altro...</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Errore di configurazione</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Impossibile caricare i collegamenti alle pagine.

Contattare il supporto tecnico o reinstallare il programma.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Impossibile aprire il browser</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Impossibile aprire il browser predefinito.

Copiare il collegamento e aprirlo manualmente:
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
        <translation>Panoramica</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>Pulizia sistema</translation>
    </message>
    <message>
        <source>Browser Cleaner</source>
        <translation>Pulizia browser</translation>
    </message>
    <message>
        <source>Registry Cleaner</source>
        <translation>Pulizia registro</translation>
    </message>
    <message>
        <source>Startup Manager</source>
        <translation>Gestione avvio</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>File grandi</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>Mostra finestra principale</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Sweepwise - PC Cleaning Tool</source>
        <translation>Sweepwise - Strumento di pulizia per PC</translation>
    </message>
    <message>
        <source>About Sweepwise</source>
        <translation>Informazioni su Sweepwise</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Sweepwise - PC Cleaning Tool&lt;/h3&gt;&lt;p&gt;Version %1&lt;/p&gt;&lt;p&gt;Clean your PC with one click!&lt;br&gt;Remove junk files, browser data, and registry issues.&lt;/p&gt;&lt;p&gt;© 2026 Norvak. All rights reserved.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Sweepwise - Strumento di pulizia per PC&lt;/h3&gt;&lt;p&gt;Versione %1&lt;/p&gt;&lt;p&gt;Un PC pulito con un solo clic!&lt;br&gt;Rimuove file inutili, dati dei browser e problemi del registro.&lt;/p&gt;&lt;p&gt;© 2026 Norvak. Tutti i diritti riservati.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Program minimized to system tray. Double-click the icon to restore.</source>
        <translation>Il programma è stato ridotto a icona nell&apos;area di notifica. Fare doppio clic sull&apos;icona per ripristinarlo.</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>A clean is still running. Start the scan when it is over.</source>
        <translation>È ancora in corso una pulizia. Avviare la scansione al termine.</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Scanning...</source>
        <translation>Analisi in corso...</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>Pulizia in corso...</translation>
    </message>
    <message>
        <source>正在分析系统...</source>
        <translation>Analisi del sistema...</translation>
    </message>
    <message>
        <source>正在删除文件...</source>
        <translation>Eliminazione dei file...</translation>
    </message>
    <message>
        <source>%1%</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>已清理: %1</source>
        <translation>Spazio liberato: %1</translation>
    </message>
    <message>
        <source>完成!</source>
        <translation>Operazione completata!</translation>
    </message>
    <message>
        <source>操作失败</source>
        <translation>Operazione non riuscita</translation>
    </message>
</context>
<context>
    <name>RegistryBackup</name>
    <message>
        <source>There is no such folder</source>
        <translation>La cartella non esiste</translation>
    </message>
    <message>
        <source>It is a file of the registry itself</source>
        <translation>È un file del registro stesso</translation>
    </message>
    <message>
        <source>A folder stands there</source>
        <translation>In questa posizione c&apos;è una cartella</translation>
    </message>
    <message>
        <source>A link stands there, which leads elsewhere</source>
        <translation>In questa posizione c&apos;è un collegamento che porta altrove</translation>
    </message>
    <message>
        <source>What stands there is not a file</source>
        <translation>Ciò che si trova in questa posizione non è un file</translation>
    </message>
</context>
<context>
    <name>RegistryBackupDialog</name>
    <message>
        <source>Backup registry before cleaning (Recommended)</source>
        <translation>Backup del registro prima della pulizia (consigliato)</translation>
    </message>
    <message>
        <source>Clean Registry</source>
        <translation>Pulizia registro</translation>
    </message>
    <message>
        <source>About to clean &lt;b&gt;%1&lt;/b&gt; invalid registry entries</source>
        <translation>Voci del registro non valide da pulire: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>⚠️ Backup file can be used to restore accidentally deleted registry entries</source>
        <translation>⚠️ Il file di backup consente di ripristinare le voci del registro eliminate per errore</translation>
    </message>
    <message>
        <source>Save to:</source>
        <translation>Salva in:</translation>
    </message>
    <message>
        <source>Backup file</source>
        <translation>File di backup</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Start Cleaning</source>
        <translation>Avvia pulizia</translation>
    </message>
    <message>
        <source>Select backup location</source>
        <translation>Selezionare il percorso del backup</translation>
    </message>
    <message>
        <source>Registry files (*.reg)</source>
        <translation>File del registro (*.reg)</translation>
    </message>
    <message>
        <source>The backup cannot be written here:
%1

%2</source>
        <translation>Impossibile salvare il backup in questa posizione:
%1

%2</translation>
    </message>
    <message>
        <source>There is a file of this name already:
%1

Replace it?</source>
        <translation>Esiste già un file con questo nome:
%1

Sostituirlo?</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>Impossibile creare la cartella.</translation>
    </message>
    <message>
        <source>The file is write-protected.</source>
        <translation>Il file è protetto da scrittura.</translation>
    </message>
</context>
<context>
    <name>RegistryChecks</name>
    <message>
        <source>Path: %1</source>
        <translation>Percorso: %1</translation>
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
        <translation>File del tipo di carattere: %1</translation>
    </message>
    <message>
        <source>DLL path: %1</source>
        <translation>Percorso della DLL: %1</translation>
    </message>
</context>
<context>
    <name>RegistryCleaner</name>
    <message>
        <source>Invalid Software Paths</source>
        <translation>Percorsi software non validi</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent locations</source>
        <translation>Voci del registro che puntano a percorsi inesistenti</translation>
    </message>
    <message>
        <source>Invalid File Associations</source>
        <translation>Associazioni di file non valide</translation>
    </message>
    <message>
        <source>File associations pointing to missing programs</source>
        <translation>Associazioni di file che puntano a programmi mancanti</translation>
    </message>
    <message>
        <source>Invalid COM/ActiveX</source>
        <translation>COM/ActiveX non validi</translation>
    </message>
    <message>
        <source>Invalid COM components and ActiveX controls</source>
        <translation>Componenti COM e controlli ActiveX non validi</translation>
    </message>
    <message>
        <source>Invalid Font References</source>
        <translation>Riferimenti non validi a tipi di carattere</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent font files</source>
        <translation>Voci del registro che puntano a tipi di carattere inesistenti</translation>
    </message>
    <message>
        <source>Invalid Startup Items</source>
        <translation>Elementi di avvio non validi</translation>
    </message>
    <message>
        <source>Startup items pointing to non-existent programs</source>
        <translation>Elementi di avvio che puntano a programmi inesistenti</translation>
    </message>
    <message>
        <source>Invalid Shared DLLs</source>
        <translation>DLL condivise non valide</translation>
    </message>
    <message>
        <source>References to non-existent shared DLL files</source>
        <translation>Riferimenti a DLL condivise inesistenti</translation>
    </message>
    <message>
        <source>MUI Cache</source>
        <translation>Cache MUI</translation>
    </message>
    <message>
        <source>Application MUI cache data</source>
        <translation>Dati della cache MUI delle applicazioni</translation>
    </message>
    <message>
        <source>Scanning invalid software paths...</source>
        <translation>Ricerca di percorsi software non validi...</translation>
    </message>
    <message>
        <source>Scanning invalid file associations...</source>
        <translation>Ricerca di associazioni di file non valide...</translation>
    </message>
    <message>
        <source>Scanning invalid COM components...</source>
        <translation>Ricerca di componenti COM non validi...</translation>
    </message>
    <message>
        <source>Scanning invalid font references...</source>
        <translation>Ricerca di riferimenti non validi a tipi di carattere...</translation>
    </message>
    <message>
        <source>Scanning invalid startup items...</source>
        <translation>Ricerca di elementi di avvio non validi...</translation>
    </message>
    <message>
        <source>Scanning invalid shared DLLs...</source>
        <translation>Ricerca di DLL condivise non valide...</translation>
    </message>
    <message>
        <source>Scanning MUI cache...</source>
        <translation>Analisi della cache MUI...</translation>
    </message>
    <message>
        <source>Its name cannot be told from a path</source>
        <translation>Il nome non è distinguibile da un percorso</translation>
    </message>
    <message>
        <source>It has changed since the scan</source>
        <translation>La voce è cambiata dopo la scansione</translation>
    </message>
    <message>
        <source>It could not be read again before the clean</source>
        <translation>Non è stato possibile rileggerla prima della pulizia</translation>
    </message>
</context>
<context>
    <name>RegistryPage</name>
    <message>
        <source>Registry Cleaner</source>
        <translation>Pulizia registro</translation>
    </message>
    <message>
        <source>Clean invalid registry entries</source>
        <translation>Pulizia delle voci del registro non valide</translation>
    </message>
    <message>
        <source>Issues Found</source>
        <translation>Problemi rilevati</translation>
    </message>
    <message>
        <source>选中: --</source>
        <translation>Elementi selezionati: --</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>没有选中任何项目</source>
        <translation>Nessun elemento selezionato</translation>
    </message>
    <message>
        <source>Entries removed without a backup: %1</source>
        <translation>Voci rimosse senza backup: %1</translation>
    </message>
    <message>
        <source>No entries were removed.</source>
        <translation>Nessuna voce è stata rimossa.</translation>
    </message>
    <message>
        <source>The registry backup could not be written:
%1

%2</source>
        <translation>Impossibile salvare il backup del registro:
%1

%2</translation>
    </message>
</context>
<context>
    <name>RegistryRestore</name>
    <message>
        <source>this is not a registry backup</source>
        <translation>il file non è un backup del registro</translation>
    </message>
    <message>
        <source>the file breaks off here</source>
        <translation>il file si interrompe qui</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>riga %1: %2</translation>
    </message>
    <message>
        <source>the line does not end where it should</source>
        <translation>la riga non termina dove dovrebbe</translation>
    </message>
    <message>
        <source>the key has no end</source>
        <translation>la chiave non è chiusa</translation>
    </message>
    <message>
        <source>the key&apos;s path is not complete</source>
        <translation>il percorso della chiave è incompleto</translation>
    </message>
    <message>
        <source>the key lies in no known hive</source>
        <translation>la chiave non appartiene ad alcun hive noto</translation>
    </message>
    <message>
        <source>there is no key before this line</source>
        <translation>nessuna chiave precede questa riga</translation>
    </message>
    <message>
        <source>this is neither a key nor a value</source>
        <translation>la riga non contiene né una chiave né un valore</translation>
    </message>
    <message>
        <source>a value&apos;s name has no value</source>
        <translation>al nome di un valore non corrisponde alcun dato</translation>
    </message>
    <message>
        <source>the kind of the value is not known</source>
        <translation>il tipo di valore è sconosciuto</translation>
    </message>
    <message>
        <source>a backslash stands before something else than a quote or a backslash</source>
        <translation>una barra rovesciata precede un carattere diverso dalle virgolette o da un&apos;altra barra rovesciata</translation>
    </message>
    <message>
        <source>the text has no closing quote</source>
        <translation>mancano le virgolette di chiusura del testo</translation>
    </message>
    <message>
        <source>eight hexadecimal digits are wanted here</source>
        <translation>qui sono richieste otto cifre esadecimali</translation>
    </message>
    <message>
        <source>the type of the value is not a number</source>
        <translation>il tipo del valore non è un numero</translation>
    </message>
    <message>
        <source>a byte of two hexadecimal digits is wanted here</source>
        <translation>qui è richiesto un byte di due cifre esadecimali</translation>
    </message>
    <message>
        <source>the list of bytes breaks off</source>
        <translation>l&apos;elenco dei byte si interrompe</translation>
    </message>
    <message>
        <source>The restoring was cancelled</source>
        <translation>Il ripristino è stato annullato</translation>
    </message>
</context>
<context>
    <name>RegistryTexts</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not the path of a key</source>
        <translation>«%1» non è il percorso di una chiave</translation>
    </message>
    <message>
        <source>There is no such key</source>
        <translation>La chiave non esiste</translation>
    </message>
    <message>
        <source>The key is a link to another one</source>
        <translation>La chiave è un collegamento a un&apos;altra chiave</translation>
    </message>
    <message>
        <source>There are keys below it</source>
        <translation>La chiave contiene sottochiavi</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>Il valore non esiste</translation>
    </message>
    <message>
        <source>There is no registry</source>
        <translation>Il registro non esiste</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>Windows programs are running in the Wine prefix %1; end them and try again</source>
        <translation>Programmi Windows in esecuzione nel prefisso Wine %1: chiuderli e riprovare</translation>
    </message>
    <message>
        <source>%1 was changed by another program; scan again</source>
        <translation>%1 è stato modificato da un altro programma: ripetere l&apos;analisi</translation>
    </message>
    <message>
        <source>A value without a name is not written</source>
        <translation>Non è possibile scrivere un valore senza nome</translation>
    </message>
    <message>
        <source>The name or the text cannot be stored as it is</source>
        <translation>Impossibile memorizzare il nome o il testo senza modificarlo</translation>
    </message>
    <message>
        <source>The registry did not take the value</source>
        <translation>Il registro non ha accettato il valore</translation>
    </message>
    <message>
        <source>The registry did not let go of the value</source>
        <translation>Il registro non ha rimosso il valore</translation>
    </message>
    <message>
        <source>A class is changed in the user&apos;s or in the machine&apos;s hive</source>
        <translation>Una classe si modifica nell&apos;hive dell&apos;utente o in quello del computer</translation>
    </message>
    <message>
        <source>It is not a registry file</source>
        <translation>Non è un file del registro</translation>
    </message>
    <message>
        <source>It is damaged</source>
        <translation>È danneggiato</translation>
    </message>
</context>
<context>
    <name>ResultWidget</name>
    <message>
        <source>Expanded</source>
        <translation>Espanso</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Compresso</translation>
    </message>
</context>
<context>
    <name>ScanProgressDialog</name>
    <message>
        <source>Scanning for large files...</source>
        <translation>Ricerca di file di grandi dimensioni...</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparazione in corso...</translation>
    </message>
    <message>
        <source>Found %1 large files (%2)</source>
        <translation>File di grandi dimensioni trovati: %1 (%2)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Scanning: %1</source>
        <translation>Analisi: %1</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Start with Windows</source>
        <translation>Avvia con Windows</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Riduci nell&apos;area di notifica alla chiusura</translation>
    </message>
    <message>
        <source>Confirm before cleaning</source>
        <translation>Chiedi conferma prima della pulizia</translation>
    </message>
    <message>
        <source>Auto backup before registry cleaning</source>
        <translation>Backup automatico prima della pulizia del registro</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Pulizia</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>The settings could not be saved:
%1</source>
        <translation>Impossibile salvare le impostazioni:
%1</translation>
    </message>
</context>
<context>
    <name>StartupCard</name>
    <message>
        <source>Start %1 automatically</source>
        <translation>Avvia %1 automaticamente</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Abilitato</translation>
    </message>
</context>
<context>
    <name>StartupPage</name>
    <message>
        <source>Startup Manager</source>
        <translation>Gestione avvio</translation>
    </message>
    <message>
        <source>Check programs to enable auto-start at boot</source>
        <translation>Selezionare i programmi da avviare con il PC</translation>
    </message>
    <message>
        <source>%1 programs</source>
        <translation>Programmi: %1</translation>
    </message>
    <message>
        <source>Search programs...</source>
        <translation>Cerca programmi...</translation>
    </message>
    <message>
        <source>Search programs</source>
        <translation>Cerca programmi</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Checked programs will run automatically at startup</source>
        <translation>I programmi selezionati verranno eseguiti automaticamente all&apos;avvio</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>Analisi dei programmi installati...</translation>
    </message>
    <message>
        <source>First load may take a few seconds</source>
        <translation>Il primo caricamento può richiedere alcuni secondi</translation>
    </message>
    <message>
        <source>%1 programs · %2 startup items</source>
        <translation>Programmi: %1 · Elementi di avvio: %2</translation>
    </message>
    <message>
        <source>Failed to add startup item</source>
        <translation>Impossibile aggiungere l&apos;elemento di avvio</translation>
    </message>
    <message>
        <source>Failed to remove startup item</source>
        <translation>Impossibile rimuovere l&apos;elemento di avvio</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>Operazione non riuscita</translation>
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
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Supporto</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Lingua modificata</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>La lingua è stata modificata.

Il programma verrà ora riavviato.</translation>
    </message>
    <message>
        <source>The application could not be restarted. Please start it again yourself.</source>
        <translation>Impossibile riavviare il programma. Avviarlo di nuovo manualmente.</translation>
    </message>
    <message>
        <source>The language could not be saved and does not change:
%1</source>
        <translation>Impossibile salvare la lingua, che resta quindi invariata:
%1</translation>
    </message>
</context>
<context>
    <name>Worker</name>
    <message>
        <source>The system cannot start another thread. End some programs and try again.</source>
        <translation>Il sistema non può avviare un altro thread. Chiudi alcuni programmi e riprova.</translation>
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
