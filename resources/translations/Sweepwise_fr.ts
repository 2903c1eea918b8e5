<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>À propos</translation>
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
        <translation>Le majordome attitré de votre PC

🧹 Fichiers inutiles - Libérez de l’espace disque
🌐 Navigateurs - Protégez votre vie privée
🔧 Registre - Améliorez les performances du PC
⚡ Démarrage - Accélérez le lancement de Windows</translation>
    </message>
    <message>
        <source>© 2026 Norvak. All rights reserved.</source>
        <translation>© 2026 Norvak. Tous droits réservés.</translation>
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
        <translation>Outil de nettoyage</translation>
    </message>
    <message>
        <source>Scan and clean up unnecessary files</source>
        <translation>Recherchez et nettoyez les fichiers inutiles</translation>
    </message>
    <message>
        <source>Cleanable</source>
        <translation>À nettoyer</translation>
    </message>
    <message>
        <source>Click &quot;Start Scanning&quot; to find cleanable items</source>
        <translation>Cliquez sur «&#xa0;Lancer l’analyse&#xa0;» pour trouver les éléments à nettoyer</translation>
    </message>
    <message>
        <source>Start Scanning</source>
        <translation>Lancer l’analyse</translation>
    </message>
    <message>
        <source>Clean Now</source>
        <translation>Nettoyer</translation>
    </message>
    <message>
        <source>Selected: --</source>
        <translation>Sélection&#xa0;: --</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>No items selected</source>
        <translation>Aucun élément sélectionné</translation>
    </message>
    <message>
        <source>Confirm Clean</source>
        <translation>Confirmer le nettoyage</translation>
    </message>
    <message>
        <source>Are you sure you want to clean %1 selected items?
This action cannot be undone!</source>
        <translation>Voulez-vous vraiment nettoyer les éléments sélectionnés (%1)&#xa0;?
Cette action est irréversible&#xa0;!</translation>
    </message>
    <message>
        <source>Selected: %1 items, %2</source>
        <translation>Sélection&#xa0;: %1&#xa0;élément(s), %2</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1&#xa0;élément(s)</translation>
    </message>
    <message>
        <source>Selected: %1 items</source>
        <translation>Sélection&#xa0;: %1&#xa0;élément(s)</translation>
    </message>
    <message>
        <source>Cleaned %1 items, freed %2</source>
        <translation>Éléments nettoyés&#xa0;: %1, espace libéré&#xa0;: %2</translation>
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
        <translation>Fichier introuvable</translation>
    </message>
    <message>
        <source>Holds part of a database: removing it loses data saved by the browser, websites or extensions</source>
        <translation>Contient une partie d’une base de données&#xa0;: sa suppression entraîne la perte de données enregistrées par le navigateur, des sites web ou des extensions</translation>
    </message>
    <message>
        <source>Belongs to an extension, which does not work without all its files</source>
        <translation>Fait partie d’une extension, qui ne fonctionne pas s’il lui manque un fichier</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>Son dossier n’est pas celui qui a été répertorié</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>Show the data of %1</source>
        <translation>Afficher les données de %1</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1&#xa0;élément(s)</translation>
    </message>
</context>
<context>
    <name>BrowserPage</name>
    <message>
        <source>Browser Cleaner</source>
        <translation>Navigateurs</translation>
    </message>
    <message>
        <source>Clean browser cache, cookies and history</source>
        <translation>Nettoyez le cache, les cookies et l’historique des navigateurs</translation>
    </message>
    <message>
        <source>Cleanable Data</source>
        <translation>Données à nettoyer</translation>
    </message>
    <message>
        <source>Select Browser:</source>
        <translation>Navigateurs&#xa0;:</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
</context>
<context>
    <name>BrowserRule</name>
    <message>
        <source>Browser Cache</source>
        <translation>Cache du navigateur</translation>
    </message>
    <message>
        <source>Temporary web page cache files</source>
        <translation>Fichiers de cache temporaires des pages web</translation>
    </message>
    <message>
        <source>Code Cache</source>
        <translation>Cache de code</translation>
    </message>
    <message>
        <source>JavaScript code cache</source>
        <translation>Cache du code JavaScript</translation>
    </message>
    <message>
        <source>GPU Cache</source>
        <translation>Cache GPU</translation>
    </message>
    <message>
        <source>GPU rendering cache</source>
        <translation>Cache de rendu GPU</translation>
    </message>
    <message>
        <source>Shader Cache</source>
        <translation>Cache des nuanceurs</translation>
    </message>
    <message>
        <source>GPU shader compilation cache</source>
        <translation>Cache de compilation des nuanceurs GPU</translation>
    </message>
    <message>
        <source>Service Workers</source>
        <translatorcomment>same</translatorcomment>
        <translation>Service Workers</translation>
    </message>
    <message>
        <source>Service Worker cache</source>
        <translation>Cache des Service Workers</translation>
    </message>
    <message>
        <source>Media Cache</source>
        <translation>Cache multimédia</translation>
    </message>
    <message>
        <source>Media file cache</source>
        <translation>Cache des fichiers multimédias</translation>
    </message>
    <message>
        <source>Network Cache</source>
        <translation>Cache réseau</translation>
    </message>
    <message>
        <source>HTTP network request cache</source>
        <translation>Cache des requêtes réseau HTTP</translation>
    </message>
    <message>
        <source>Jump List</source>
        <translation>Liste de raccourcis</translation>
    </message>
    <message>
        <source>Taskbar Jump List icon cache</source>
        <translation>Cache des icônes de la liste de raccourcis de la barre des tâches</translation>
    </message>
    <message>
        <source>Blob Storage</source>
        <translation>Stockage de blobs</translation>
    </message>
    <message>
        <source>Temporary binary data storage</source>
        <translation>Stockage temporaire de données binaires</translation>
    </message>
    <message>
        <source>WebRTC Logs</source>
        <translation>Journaux WebRTC</translation>
    </message>
    <message>
        <source>Video call debug logs</source>
        <translation>Journaux de débogage des appels vidéo</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Rapports de plantage</translation>
    </message>
    <message>
        <source>Browser crash report files</source>
        <translation>Fichiers de rapports de plantage du navigateur</translation>
    </message>
    <message>
        <source>Browser Logs</source>
        <translation>Journaux du navigateur</translation>
    </message>
    <message>
        <source>Browser debug and error logs</source>
        <translation>Journaux de débogage et d’erreurs du navigateur</translation>
    </message>
    <message>
        <source>Website Thumbnails</source>
        <translation>Miniatures de sites web</translation>
    </message>
    <message>
        <source>New Tab page website thumbnails</source>
        <translation>Miniatures des sites web de la page Nouvel onglet</translation>
    </message>
    <message>
        <source>Favicon Cache</source>
        <translation>Cache des favicons</translation>
    </message>
    <message>
        <source>Website icon (favicon) cache</source>
        <translation>Cache des icônes de sites web (favicons)</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>Cache des polices</translation>
    </message>
    <message>
        <source>Web font cache files</source>
        <translation>Fichiers de cache des polices web</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Stockage local</translation>
    </message>
    <message>
        <source>Website Local Storage (site settings may be lost)</source>
        <translation>Stockage local des sites web (perte possible des paramètres de sites)</translation>
    </message>
    <message>
        <source>IndexedDB</source>
        <translatorcomment>same</translatorcomment>
        <translation>IndexedDB</translation>
    </message>
    <message>
        <source>Website database storage (offline data may be lost)</source>
        <translation>Bases de données des sites web (perte possible des données hors connexion)</translation>
    </message>
    <message>
        <source>Cookies</source>
        <translatorcomment>same</translatorcomment>
        <translation>Cookies</translation>
    </message>
    <message>
        <source>Website Cookies (requires re-login to all sites)</source>
        <translation>Cookies des sites web (reconnexion nécessaire sur tous les sites)</translation>
    </message>
    <message>
        <source>Browsing History</source>
        <translation>Historique de navigation</translation>
    </message>
    <message>
        <source>Web browsing history records</source>
        <translation>Historique des pages web visitées</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Historique des téléchargements</translation>
    </message>
    <message>
        <source>Download history records (downloaded files are not deleted)</source>
        <translation>Liste des téléchargements (les fichiers téléchargés ne sont pas supprimés)</translation>
    </message>
    <message>
        <source>Session Data</source>
        <translation>Données de session</translation>
    </message>
    <message>
        <source>Current and recent session data (tabs may be lost)</source>
        <translation>Données des sessions actuelles et récentes (perte possible d’onglets)</translation>
    </message>
    <message>
        <source>Form Data</source>
        <translation>Données de formulaires</translation>
    </message>
    <message>
        <source>Autofill form data (requires re-entry after cleaning)</source>
        <translation>Données de remplissage automatique des formulaires (à ressaisir après le nettoyage)</translation>
    </message>
    <message>
        <source>Safe Browsing Data</source>
        <translation>Données de navigation sécurisée</translation>
    </message>
    <message>
        <source>Safe Browsing protection data (not recommended to clean)</source>
        <translation>Données de protection de la navigation sécurisée (nettoyage déconseillé)</translation>
    </message>
</context>
<context>
    <name>BrowserSubItem</name>
    <message>
        <source>%1 items</source>
        <translation>%1&#xa0;élément(s)</translation>
    </message>
    <message>
        <source>View Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>View details of %1</source>
        <translation>Afficher les détails de «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>CategoryWidget</name>
    <message>
        <source>View Details</source>
        <translation>Afficher les détails</translation>
    </message>
    <message>
        <source>Show items of %1</source>
        <translation>Afficher les éléments de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Load more (%1 remaining)</source>
        <translation>Afficher plus (encore %1)</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1&#xa0;élément(s)</translation>
    </message>
    <message>
        <source>%1: %2 items, view details</source>
        <translation>%1&#xa0;: %2&#xa0;élément(s), afficher les détails</translation>
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
        <translation>Élevé</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>Risk: %1</source>
        <translation>Risque : %1</translation>
    </message>
</context>
<context>
    <name>DashboardResultsPanel</name>
    <message>
        <source>Can be cleaned</source>
        <translation>À nettoyer</translation>
    </message>
    <message>
        <source>Keep Your PC Running at Peak Performance</source>
        <translation>Gardez votre PC au maximum de ses performances</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 Analyser</translation>
    </message>
    <message>
        <source>🗑️ Clean All</source>
        <translation>🗑️ Tout nettoyer</translation>
    </message>
    <message>
        <source>Junk Files</source>
        <translation>Fichiers inutiles</translation>
    </message>
    <message>
        <source>Browser Data</source>
        <translation>Données de navigation</translation>
    </message>
    <message>
        <source>Registry Issues</source>
        <translation>Problèmes du Registre</translation>
    </message>
    <message>
        <source>&lt;span style=&apos;font-weight:600;&apos;&gt;Tip:&lt;/span&gt; Regular cleaning can improve your PC performance by up to 30%</source>
        <translation>&lt;span style=&apos;font-weight:600;&apos;&gt;Conseil&#xa0;:&lt;/span&gt; un nettoyage régulier peut améliorer les performances de votre PC jusqu’à 30&#xa0;%</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Analyse en cours...</translation>
    </message>
    <message>
        <source>Ready to scan</source>
        <translation>Prêt pour l’analyse</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Total : %1</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>Go</translation>
    </message>
</context>
<context>
    <name>DashboardStartPanel</name>
    <message>
        <source>🔍  Start Full Scan</source>
        <translation>🔍  Analyse complète</translation>
    </message>
    <message>
        <source>Ready to Clean Your PC</source>
        <translation>Prêt à nettoyer votre PC</translation>
    </message>
    <message>
        <source>Click the button below to scan for junk files and free up space</source>
        <translation>Cliquez sur le bouton ci-dessous pour rechercher les fichiers inutiles et libérer de l’espace</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Préparation...</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Analyse en cours...</translation>
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
        <translation>Ouvrir l’emplacement</translation>
    </message>
    <message>
        <source>Open file location of %1</source>
        <translation>Ouvrir l’emplacement de «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>DriveCard</name>
    <message>
        <source>Local Disk</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>%1 (Removable)</source>
        <translation>%1 (amovible)</translation>
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
        <translation>Utilisé&#xa0;: %1&#xa0;%</translation>
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
        <translation>Information</translation>
    </message>
    <message>
        <source>The file manager could not be started to show this file:
%1</source>
        <translation>Impossible de lancer le gestionnaire de fichiers pour afficher ce fichier&#xa0;:
%1</translation>
    </message>
    <message>
        <source>This file no longer exists:
%1</source>
        <translation>Ce fichier n’existe plus&#xa0;:
%1</translation>
    </message>
</context>
<context>
    <name>ItemDetailDialog</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>%1  |  %2 files</source>
        <translation>%1  |  %2&#xa0;fichier(s)</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1&#xa0;élément(s)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Action</source>
        <translatorcomment>same</translatorcomment>
        <translation>Action</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
</context>
<context>
    <name>JunkCleaner</name>
    <message>
        <source>File not found</source>
        <translation>Fichier introuvable</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>Son dossier n’est pas celui qui a été répertorié</translation>
    </message>
</context>
<context>
    <name>JunkPage</name>
    <message>
        <source>Junk Cleaner</source>
        <translation>Fichiers inutiles</translation>
    </message>
    <message>
        <source>Clean system temp files, cache and logs</source>
        <translation>Nettoyez les fichiers temporaires, caches et journaux du système</translation>
    </message>
    <message>
        <source>Cleanable Space</source>
        <translation>Espace à libérer</translation>
    </message>
</context>
<context>
    <name>JunkRule</name>
    <message>
        <source>System Temporary Files</source>
        <translation>Fichiers temporaires du système</translation>
    </message>
    <message>
        <source>Files in Windows Temp folders</source>
        <translation>Fichiers des dossiers Temp de Windows</translation>
    </message>
    <message>
        <source>Prefetch Files</source>
        <translation>Fichiers Prefetch</translation>
    </message>
    <message>
        <source>Windows Prefetch cache files</source>
        <translation>Fichiers de cache Prefetch de Windows</translation>
    </message>
    <message>
        <source>Thumbnail Cache</source>
        <translation>Cache des miniatures</translation>
    </message>
    <message>
        <source>Explorer thumbnail and icon cache files</source>
        <translation>Fichiers de cache des miniatures et des icônes de l’Explorateur</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>Fichiers journaux</translation>
    </message>
    <message>
        <source>Windows setup, servicing and device log files</source>
        <translation>Journaux d’installation, de maintenance et de périphériques de Windows</translation>
    </message>
    <message>
        <source>Windows Update Logs</source>
        <translation>Journaux de Windows Update</translation>
    </message>
    <message>
        <source>Windows Update history and event logs</source>
        <translation>Historique et journaux d’événements de Windows Update</translation>
    </message>
    <message>
        <source>IIS Log Files</source>
        <translation>Fichiers journaux IIS</translation>
    </message>
    <message>
        <source>Web server and HTTP error log files</source>
        <translation>Journaux du serveur web et des erreurs HTTP</translation>
    </message>
    <message>
        <source>Memory Dumps</source>
        <translation>Vidages mémoire</translation>
    </message>
    <message>
        <source>Memory dumps left by system and program crashes</source>
        <translation>Vidages mémoire laissés par les plantages du système et des programmes</translation>
    </message>
    <message>
        <source>Windows Update Cache</source>
        <translation>Cache de Windows Update</translation>
    </message>
    <message>
        <source>Downloaded Windows Update installation files</source>
        <translation>Fichiers d’installation téléchargés par Windows Update</translation>
    </message>
    <message>
        <source>Error Reports</source>
        <translation>Rapports d’erreurs</translation>
    </message>
    <message>
        <source>Queued and archived program error reports</source>
        <translation>Rapports d’erreurs de programmes, en attente et archivés</translation>
    </message>
    <message>
        <source>Delivery Optimization Files</source>
        <translation>Optimisation de la distribution</translation>
    </message>
    <message>
        <source>Update files kept for sharing with other PCs</source>
        <translation>Fichiers de mise à jour conservés pour être partagés avec d’autres PC</translation>
    </message>
    <message>
        <source>Windows Defender Scan History</source>
        <translation>Historique d’analyse de Windows Defender</translation>
    </message>
    <message>
        <source>Windows Defender scan history and definition backups</source>
        <translation>Historique d’analyse et sauvegardes des définitions de Windows Defender</translation>
    </message>
    <message>
        <source>.NET Framework Cache Logs</source>
        <translation>Journaux de cache .NET Framework</translation>
    </message>
    <message>
        <source>.NET temporary web files and usage logs</source>
        <translation>Fichiers web temporaires et journaux d’utilisation de .NET</translation>
    </message>
    <message>
        <source>System Integrity Check Logs</source>
        <translation>Journaux d’intégrité du système</translation>
    </message>
    <message>
        <source>Logs of system file and component checks</source>
        <translation>Journaux des vérifications des fichiers système et des composants</translation>
    </message>
    <message>
        <source>Installer Cache</source>
        <translation>Cache de Windows Installer</translation>
    </message>
    <message>
        <source>Windows Installer patch cache, needed to uninstall some updates</source>
        <translation>Cache des correctifs de Windows Installer, nécessaire pour désinstaller certaines mises à jour</translation>
    </message>
    <message>
        <source>Recent Documents</source>
        <translation>Documents récents</translation>
    </message>
    <message>
        <source>Shortcuts to recently opened documents</source>
        <translation>Raccourcis vers les documents ouverts récemment</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>Cache des polices</translation>
    </message>
    <message>
        <source>Windows font cache files</source>
        <translation>Fichiers de cache des polices de Windows</translation>
    </message>
    <message>
        <source>Old Windows Installation</source>
        <translation>Ancienne installation de Windows</translation>
    </message>
    <message>
        <source>Files of a previous Windows installation, needed to go back to it</source>
        <translation>Fichiers d’une installation précédente de Windows, nécessaires pour y revenir</translation>
    </message>
    <message>
        <source>Web Cache</source>
        <translation>Cache web</translation>
    </message>
    <message>
        <source>Windows web cache, downloaded pages and cookies</source>
        <translation>Cache web de Windows, pages téléchargées et cookies</translation>
    </message>
    <message>
        <source>Office Cache</source>
        <translation>Cache Office</translation>
    </message>
    <message>
        <source>Office document cache and unsaved files</source>
        <translation>Cache des documents Office et fichiers non enregistrés</translation>
    </message>
    <message>
        <source>Tencent Product Logs</source>
        <translation>Journaux des produits Tencent</translation>
    </message>
    <message>
        <source>Log files of Tencent products</source>
        <translation>Fichiers journaux des produits Tencent</translation>
    </message>
    <message>
        <source>NVIDIA Cache</source>
        <translation>Cache NVIDIA</translation>
    </message>
    <message>
        <source>NVIDIA graphics shader cache</source>
        <translation>Cache des nuanceurs graphiques NVIDIA</translation>
    </message>
    <message>
        <source>AMD Cache</source>
        <translation>Cache AMD</translation>
    </message>
    <message>
        <source>AMD graphics shader cache</source>
        <translation>Cache des nuanceurs graphiques AMD</translation>
    </message>
    <message>
        <source>DirectX Shader Cache</source>
        <translation>Cache des nuanceurs DirectX</translation>
    </message>
    <message>
        <source>Compiled DirectX shaders, made again when needed</source>
        <translation>Nuanceurs DirectX compilés, recréés au besoin</translation>
    </message>
    <message>
        <source>Windows Search Data</source>
        <translation>Données de Windows Search</translation>
    </message>
    <message>
        <source>Logs of the Windows Search indexer</source>
        <translation>Journaux de l’indexeur de Windows Search</translation>
    </message>
    <message>
        <source>Diagnostic Data</source>
        <translation>Données de diagnostic</translation>
    </message>
    <message>
        <source>Windows troubleshooting and diagnostic data</source>
        <translation>Données de diagnostic et de résolution des problèmes de Windows</translation>
    </message>
</context>
<context>
    <name>LargeFilePage</name>
    <message>
        <source>Tip</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Please select at least one drive to scan.</source>
        <translation>Sélectionnez au moins un lecteur à analyser.</translation>
    </message>
    <message>
        <source>Custom File Size</source>
        <translation>Taille de fichier personnalisée</translation>
    </message>
    <message>
        <source>Enter minimum file size (MB):</source>
        <translation>Entrez la taille minimale des fichiers (Mo)&#xa0;:</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;Mo</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>Analyse terminée</translation>
    </message>
    <message>
        <source>No large files found that match the criteria.</source>
        <translation>Aucun fichier volumineux ne correspond aux critères.</translation>
    </message>
    <message>
        <source>📂 Open file location</source>
        <translation>📂 Ouvrir l’emplacement du fichier</translation>
    </message>
    <message>
        <source>🗑️ Delete this file</source>
        <translation>🗑️ Supprimer ce fichier</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this file?

%1
Size: %2

This action cannot be undone!</source>
        <translation>Voulez-vous vraiment supprimer ce fichier&#xa0;?

%1
Taille&#xa0;: %2

Cette action est irréversible&#xa0;!</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>Confirmer la suppression</translation>
    </message>
    <message>
        <source>Delete Failed</source>
        <translation>Échec de la suppression</translation>
    </message>
    <message>
        <source>Unable to delete this file. It may be in use by another program.</source>
        <translation>Impossible de supprimer ce fichier. Il est peut-être utilisé par un autre programme.</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>All files have been deleted</source>
        <translation>Tous les fichiers ont été supprimés</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected %1 files?

Total: %2

This action cannot be undone!</source>
        <translation>Voulez-vous vraiment supprimer les fichiers sélectionnés (%1)&#xa0;?

Total&#xa0;: %2

Cette action est irréversible&#xa0;!</translation>
    </message>
    <message>
        <source>Deleted %1 files successfully.</source>
        <translation>Fichiers supprimés&#xa0;: %1.</translation>
    </message>
    <message>
        <source> %1 files failed to delete.</source>
        <translation> Échecs de suppression&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Delete Completed</source>
        <translation>Suppression terminée</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>Échec de l’opération</translation>
    </message>
</context>
<context>
    <name>LargeFileResultsView</name>
    <message>
        <source>← Back</source>
        <translation>← Retour</translation>
    </message>
    <message>
        <source>🗑️ Delete Selected</source>
        <translation>🗑️ Supprimer la sélection</translation>
    </message>
    <message>
        <source>Scan Results</source>
        <translation>Résultats de l’analyse</translation>
    </message>
    <message>
        <source>Found %1 large files, total %2</source>
        <translation>Fichiers trouvés&#xa0;: %1, total&#xa0;: %2</translation>
    </message>
    <message>
        <source>Selected: %1 files (%2)</source>
        <translation>Sélection&#xa0;: %1&#xa0;fichier(s), %2</translation>
    </message>
</context>
<context>
    <name>LargeFileSelectionView</name>
    <message>
        <source>Find Large Files</source>
        <translation>Rechercher les fichiers volumineux</translation>
    </message>
    <message>
        <source>Scan and clean files that take up a lot of disk space</source>
        <translation>Recherchez et supprimez les fichiers qui occupent beaucoup d’espace disque</translation>
    </message>
    <message>
        <source>Select Scan Location</source>
        <translation>Lecteurs à analyser</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 Analyser</translation>
    </message>
    <message>
        <source>Minimum File Size:</source>
        <translation>Taille minimale des fichiers&#xa0;:</translation>
    </message>
    <message>
        <source>50 MB</source>
        <translation>50&#xa0;Mo</translation>
    </message>
    <message>
        <source>100 MB</source>
        <translation>100&#xa0;Mo</translation>
    </message>
    <message>
        <source>200 MB</source>
        <translation>200&#xa0;Mo</translation>
    </message>
    <message>
        <source>500 MB</source>
        <translation>500&#xa0;Mo</translation>
    </message>
    <message>
        <source>1 GB</source>
        <translation>1&#xa0;Go</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Autre...</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Erreur de configuration</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Impossible de charger les liens des pages.

Contactez l’assistance technique ou réinstallez l’application.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Impossible d’ouvrir le navigateur</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Impossible d’ouvrir le navigateur par défaut.

Copiez le lien et ouvrez-le manuellement&#xa0;:
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
        <translation>Tableau de bord</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>Fichiers inutiles</translation>
    </message>
    <message>
        <source>Browser Cleaner</source>
        <translation>Navigateurs</translation>
    </message>
    <message>
        <source>Registry Cleaner</source>
        <translation>Registre</translation>
    </message>
    <message>
        <source>Startup Manager</source>
        <translation>Démarrage</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>Fichiers volumineux</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>Afficher la fenêtre principale</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Sweepwise - PC Cleaning Tool</source>
        <translation>Sweepwise - Outil de nettoyage pour PC</translation>
    </message>
    <message>
        <source>About Sweepwise</source>
        <translation>À propos de Sweepwise</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Sweepwise - PC Cleaning Tool&lt;/h3&gt;&lt;p&gt;Version %1&lt;/p&gt;&lt;p&gt;Clean your PC with one click!&lt;br&gt;Remove junk files, browser data, and registry issues.&lt;/p&gt;&lt;p&gt;© 2026 Norvak. All rights reserved.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Sweepwise - Outil de nettoyage pour PC&lt;/h3&gt;&lt;p&gt;Version %1&lt;/p&gt;&lt;p&gt;Nettoyez votre PC en un clic&#xa0;!&lt;br&gt;Éliminez les fichiers inutiles, les données de navigation et les problèmes du Registre.&lt;/p&gt;&lt;p&gt;© 2026 Norvak. Tous droits réservés.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Program minimized to system tray. Double-click the icon to restore.</source>
        <translation>L’application a été réduite dans la zone de notification. Double-cliquez sur l’icône pour la restaurer.</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>A clean is still running. Start the scan when it is over.</source>
        <translation>Un nettoyage est encore en cours. Lancez l’analyse lorsqu’il sera terminé.</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Scanning...</source>
        <translation>Analyse en cours...</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>Nettoyage en cours...</translation>
    </message>
    <message>
        <source>正在分析系统...</source>
        <translation>Analyse du système...</translation>
    </message>
    <message>
        <source>正在删除文件...</source>
        <translation>Suppression des fichiers...</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>已清理: %1</source>
        <translation>Espace libéré&#xa0;: %1</translation>
    </message>
    <message>
        <source>完成!</source>
        <translation>Terminé&#xa0;!</translation>
    </message>
    <message>
        <source>操作失败</source>
        <translation>Échec de l’opération</translation>
    </message>
</context>
<context>
    <name>RegistryBackup</name>
    <message>
        <source>There is no such folder</source>
        <translation>Ce dossier n’existe pas</translation>
    </message>
    <message>
        <source>It is a file of the registry itself</source>
        <translation>Il s’agit d’un fichier du Registre lui-même</translation>
    </message>
    <message>
        <source>A folder stands there</source>
        <translation>Un dossier se trouve à cet emplacement</translation>
    </message>
    <message>
        <source>A link stands there, which leads elsewhere</source>
        <translation>Un lien menant ailleurs se trouve à cet emplacement</translation>
    </message>
    <message>
        <source>What stands there is not a file</source>
        <translation>Ce qui se trouve à cet emplacement n’est pas un fichier</translation>
    </message>
</context>
<context>
    <name>RegistryBackupDialog</name>
    <message>
        <source>Backup registry before cleaning (Recommended)</source>
        <translation>Sauvegarder le Registre avant le nettoyage (recommandé)</translation>
    </message>
    <message>
        <source>Clean Registry</source>
        <translation>Nettoyer le Registre</translation>
    </message>
    <message>
        <source>About to clean &lt;b&gt;%1&lt;/b&gt; invalid registry entries</source>
        <translation>Entrées de Registre non valides à nettoyer&#xa0;: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>⚠️ Backup file can be used to restore accidentally deleted registry entries</source>
        <translation>⚠️ La sauvegarde permet de restaurer des entrées de Registre supprimées par erreur</translation>
    </message>
    <message>
        <source>Save to:</source>
        <translation>Fichier&#xa0;:</translation>
    </message>
    <message>
        <source>Backup file</source>
        <translation>Fichier de sauvegarde</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Start Cleaning</source>
        <translation>Nettoyer</translation>
    </message>
    <message>
        <source>Select backup location</source>
        <translation>Sélectionner l’emplacement de la sauvegarde</translation>
    </message>
    <message>
        <source>Registry files (*.reg)</source>
        <translation>Fichiers de Registre (*.reg)</translation>
    </message>
    <message>
        <source>The backup cannot be written here:
%1

%2</source>
        <translation>Impossible d’enregistrer la sauvegarde à cet emplacement&#xa0;:
%1

%2</translation>
    </message>
    <message>
        <source>There is a file of this name already:
%1

Replace it?</source>
        <translation>Un fichier porte déjà ce nom&#xa0;:
%1

Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>Impossible de créer le dossier.</translation>
    </message>
    <message>
        <source>The file is write-protected.</source>
        <translation>Le fichier est protégé en écriture.</translation>
    </message>
</context>
<context>
    <name>RegistryChecks</name>
    <message>
        <source>Path: %1</source>
        <translation>Chemin&#xa0;: %1</translation>
    </message>
    <message>
        <source>Command: %1</source>
        <translation>Commande&#xa0;: %1</translation>
    </message>
    <message>
        <source>DLL: %1</source>
        <translation>DLL&#xa0;: %1</translation>
    </message>
    <message>
        <source>EXE: %1</source>
        <translation>EXE&#xa0;: %1</translation>
    </message>
    <message>
        <source>Font file: %1</source>
        <translation>Fichier de police&#xa0;: %1</translation>
    </message>
    <message>
        <source>DLL path: %1</source>
        <translation>Chemin de la DLL&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>RegistryCleaner</name>
    <message>
        <source>Invalid Software Paths</source>
        <translation>Chemins de logiciels non valides</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent locations</source>
        <translation>Entrées de Registre pointant vers des emplacements inexistants</translation>
    </message>
    <message>
        <source>Invalid File Associations</source>
        <translation>Associations de fichiers non valides</translation>
    </message>
    <message>
        <source>File associations pointing to missing programs</source>
        <translation>Associations de fichiers pointant vers des programmes manquants</translation>
    </message>
    <message>
        <source>Invalid COM/ActiveX</source>
        <translation>COM/ActiveX non valides</translation>
    </message>
    <message>
        <source>Invalid COM components and ActiveX controls</source>
        <translation>Composants COM et contrôles ActiveX non valides</translation>
    </message>
    <message>
        <source>Invalid Font References</source>
        <translation>Références de polices non valides</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent font files</source>
        <translation>Entrées de Registre pointant vers des fichiers de police inexistants</translation>
    </message>
    <message>
        <source>Invalid Startup Items</source>
        <translation>Éléments de démarrage non valides</translation>
    </message>
    <message>
        <source>Startup items pointing to non-existent programs</source>
        <translation>Éléments de démarrage pointant vers des programmes inexistants</translation>
    </message>
    <message>
        <source>Invalid Shared DLLs</source>
        <translation>DLL partagées non valides</translation>
    </message>
    <message>
        <source>References to non-existent shared DLL files</source>
        <translation>Références à des fichiers DLL partagés inexistants</translation>
    </message>
    <message>
        <source>MUI Cache</source>
        <translation>Cache MUI</translation>
    </message>
    <message>
        <source>Application MUI cache data</source>
        <translation>Données du cache MUI des applications</translation>
    </message>
    <message>
        <source>Scanning invalid software paths...</source>
        <translation>Recherche de chemins de logiciels non valides...</translation>
    </message>
    <message>
        <source>Scanning invalid file associations...</source>
        <translation>Recherche d’associations de fichiers non valides...</translation>
    </message>
    <message>
        <source>Scanning invalid COM components...</source>
        <translation>Recherche de composants COM non valides...</translation>
    </message>
    <message>
        <source>Scanning invalid font references...</source>
        <translation>Recherche de références de polices non valides...</translation>
    </message>
    <message>
        <source>Scanning invalid startup items...</source>
        <translation>Recherche d’éléments de démarrage non valides...</translation>
    </message>
    <message>
        <source>Scanning invalid shared DLLs...</source>
        <translation>Recherche de DLL partagées non valides...</translation>
    </message>
    <message>
        <source>Scanning MUI cache...</source>
        <translation>Analyse du cache MUI...</translation>
    </message>
    <message>
        <source>Its name cannot be told from a path</source>
        <translation>Impossible de distinguer son nom d’un chemin</translation>
    </message>
    <message>
        <source>It has changed since the scan</source>
        <translation>L’entrée a changé depuis l’analyse</translation>
    </message>
    <message>
        <source>It could not be read again before the clean</source>
        <translation>Elle n’a pas pu être relue avant le nettoyage</translation>
    </message>
</context>
<context>
    <name>RegistryPage</name>
    <message>
        <source>Registry Cleaner</source>
        <translation>Registre</translation>
    </message>
    <message>
        <source>Clean invalid registry entries</source>
        <translation>Nettoyez les entrées de Registre non valides</translation>
    </message>
    <message>
        <source>Issues Found</source>
        <translation>Problèmes détectés</translation>
    </message>
    <message>
        <source>选中: --</source>
        <translation>Sélection&#xa0;: --</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>没有选中任何项目</source>
        <translation>Aucun élément sélectionné</translation>
    </message>
    <message>
        <source>Entries removed without a backup: %1</source>
        <translation>Entrées supprimées sans sauvegarde&#xa0;: %1</translation>
    </message>
    <message>
        <source>No entries were removed.</source>
        <translation>Aucune entrée n’a été supprimée.</translation>
    </message>
    <message>
        <source>The registry backup could not be written:
%1

%2</source>
        <translation>Impossible d’enregistrer la sauvegarde du Registre&#xa0;:
%1

%2</translation>
    </message>
</context>
<context>
    <name>RegistryRestore</name>
    <message>
        <source>this is not a registry backup</source>
        <translation>ce n’est pas une sauvegarde du Registre</translation>
    </message>
    <message>
        <source>the file breaks off here</source>
        <translation>le fichier s’interrompt ici</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the line does not end where it should</source>
        <translation>la ligne ne se termine pas où elle devrait</translation>
    </message>
    <message>
        <source>the key has no end</source>
        <translation>il manque la fin de la clé</translation>
    </message>
    <message>
        <source>the key&apos;s path is not complete</source>
        <translation>le chemin de la clé est incomplet</translation>
    </message>
    <message>
        <source>the key lies in no known hive</source>
        <translation>la clé n’appartient à aucune ruche connue</translation>
    </message>
    <message>
        <source>there is no key before this line</source>
        <translation>aucune clé ne précède cette ligne</translation>
    </message>
    <message>
        <source>this is neither a key nor a value</source>
        <translation>ce n’est ni une clé ni une valeur</translation>
    </message>
    <message>
        <source>a value&apos;s name has no value</source>
        <translation>le nom de la valeur n’est suivi d’aucune donnée</translation>
    </message>
    <message>
        <source>the kind of the value is not known</source>
        <translation>la nature de la valeur est inconnue</translation>
    </message>
    <message>
        <source>a backslash stands before something else than a quote or a backslash</source>
        <translation>une barre oblique inverse précède autre chose qu’un guillemet ou une barre oblique inverse</translation>
    </message>
    <message>
        <source>the text has no closing quote</source>
        <translation>le guillemet fermant du texte est absent</translation>
    </message>
    <message>
        <source>eight hexadecimal digits are wanted here</source>
        <translation>huit chiffres hexadécimaux sont attendus ici</translation>
    </message>
    <message>
        <source>the type of the value is not a number</source>
        <translation>le type de la valeur n’est pas un nombre</translation>
    </message>
    <message>
        <source>a byte of two hexadecimal digits is wanted here</source>
        <translation>un octet de deux chiffres hexadécimaux est attendu ici</translation>
    </message>
    <message>
        <source>the list of bytes breaks off</source>
        <translation>la liste d’octets s’interrompt</translation>
    </message>
    <message>
        <source>The restoring was cancelled</source>
        <translation>La restauration a été annulée</translation>
    </message>
</context>
<context>
    <name>RegistryTexts</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not the path of a key</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas le chemin d’une clé</translation>
    </message>
    <message>
        <source>There is no such key</source>
        <translation>Cette clé n’existe pas</translation>
    </message>
    <message>
        <source>The key is a link to another one</source>
        <translation>La clé est un lien vers une autre clé</translation>
    </message>
    <message>
        <source>There are keys below it</source>
        <translation>La clé contient des sous-clés</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>Cette valeur n’existe pas</translation>
    </message>
    <message>
        <source>There is no registry</source>
        <translation>Registre introuvable</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Impossible d’écrire dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Windows programs are running in the Wine prefix %1; end them and try again</source>
        <translation>Des programmes Windows sont en cours d’exécution dans le préfixe Wine %1&#xa0;; fermez-les et réessayez</translation>
    </message>
    <message>
        <source>%1 was changed by another program; scan again</source>
        <translation>%1 a été modifié par un autre programme&#xa0;; relancez l’analyse</translation>
    </message>
    <message>
        <source>A value without a name is not written</source>
        <translation>Les valeurs sans nom ne sont pas prises en charge</translation>
    </message>
    <message>
        <source>The name or the text cannot be stored as it is</source>
        <translation>Le nom ou le texte ne peut pas être enregistré tel quel</translation>
    </message>
    <message>
        <source>The registry did not take the value</source>
        <translation>Le Registre n’a pas accepté la valeur</translation>
    </message>
    <message>
        <source>The registry did not let go of the value</source>
        <translation>Le Registre n’a pas supprimé la valeur</translation>
    </message>
    <message>
        <source>A class is changed in the user&apos;s or in the machine&apos;s hive</source>
        <translation>Une classe se modifie dans la ruche de l’utilisateur ou dans celle de l’ordinateur</translation>
    </message>
    <message>
        <source>It is not a registry file</source>
        <translation>Il ne s’agit pas d’un fichier du Registre</translation>
    </message>
    <message>
        <source>It is damaged</source>
        <translation>Il est endommagé</translation>
    </message>
</context>
<context>
    <name>ResultWidget</name>
    <message>
        <source>Expanded</source>
        <translation>Développé</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Réduit</translation>
    </message>
</context>
<context>
    <name>ScanProgressDialog</name>
    <message>
        <source>Scanning for large files...</source>
        <translation>Recherche de fichiers volumineux...</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Préparation...</translation>
    </message>
    <message>
        <source>Found %1 large files (%2)</source>
        <translation>Fichiers volumineux trouvés&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Scanning: %1</source>
        <translation>Analyse&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Start with Windows</source>
        <translation>Lancer au démarrage de Windows</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Réduire dans la zone de notification à la fermeture</translation>
    </message>
    <message>
        <source>Confirm before cleaning</source>
        <translation>Demander confirmation avant de nettoyer</translation>
    </message>
    <message>
        <source>Auto backup before registry cleaning</source>
        <translation>Toujours sauvegarder avant de nettoyer le Registre</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Nettoyage</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Valider</translation>
    </message>
    <message>
        <source>The settings could not be saved:
%1</source>
        <translation>Impossible d’enregistrer les paramètres&#xa0;:
%1</translation>
    </message>
</context>
<context>
    <name>StartupCard</name>
    <message>
        <source>Start %1 automatically</source>
        <translation>Lancer %1 automatiquement</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
</context>
<context>
    <name>StartupPage</name>
    <message>
        <source>Startup Manager</source>
        <translation>Démarrage</translation>
    </message>
    <message>
        <source>Check programs to enable auto-start at boot</source>
        <translation>Cochez les programmes à lancer au démarrage</translation>
    </message>
    <message>
        <source>%1 programs</source>
        <translation>%1&#xa0;programme(s)</translation>
    </message>
    <message>
        <source>Search programs...</source>
        <translation>Rechercher un programme...</translation>
    </message>
    <message>
        <source>Search programs</source>
        <translation>Rechercher un programme</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Checked programs will run automatically at startup</source>
        <translation>Les programmes cochés se lancent automatiquement au démarrage</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>Analyse des programmes installés...</translation>
    </message>
    <message>
        <source>First load may take a few seconds</source>
        <translation>Le premier chargement peut prendre quelques secondes</translation>
    </message>
    <message>
        <source>%1 programs · %2 startup items</source>
        <translation>%1&#xa0;programme(s) · %2&#xa0;élément(s) de démarrage</translation>
    </message>
    <message>
        <source>Failed to add startup item</source>
        <translation>Impossible d’ajouter l’élément de démarrage</translation>
    </message>
    <message>
        <source>Failed to remove startup item</source>
        <translation>Impossible de supprimer l’élément de démarrage</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>Échec de l’opération</translation>
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
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Assistance</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Langue modifiée</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>La langue a été modifiée.

L’application va maintenant redémarrer.</translation>
    </message>
    <message>
        <source>The application could not be restarted. Please start it again yourself.</source>
        <translation>Impossible de redémarrer l’application. Veuillez la relancer vous-même.</translation>
    </message>
    <message>
        <source>The language could not be saved and does not change:
%1</source>
        <translation>Impossible d’enregistrer la langue, elle reste donc inchangée&#xa0;:
%1</translation>
    </message>
</context>
<context>
    <name>Worker</name>
    <message>
        <source>The system cannot start another thread. End some programs and try again.</source>
        <translation>Le système ne peut pas démarrer d’autre fil d’exécution. Fermez quelques programmes et réessayez.</translation>
    </message>
</context>
<context>
    <name>formatSize</name>
    <message>
        <source>0 B</source>
        <translation>0&#xa0;o</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;Go</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;Mo</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1&#xa0;o</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;Ko</translation>
    </message>
</context>
</TS>
