<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Your Personal System Butler

🧹 Junk Cleaner - Free up valuable disk space
🌐 Browser Cleaner - Protect your privacy
🔧 Registry Cleaner - Boost system performance
⚡ Startup Manager - Speed up boot time</source>
        <translation>Your Personal System Butler

🧹 Junk Cleaner - Free up valuable disk space
🌐 Browser Cleaner - Protect your privacy
🔧 Registry Cleaner - Boost system performance
⚡ Startup Manager - Speed up boot time</translation>
    </message>
    <message>
        <source>© 2026 Norvak. All rights reserved.</source>
        <translation>© 2026 Norvak. All rights reserved.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>BasePage</name>
    <message>
        <source>Cleanup Tool</source>
        <translation>Cleanup Tool</translation>
    </message>
    <message>
        <source>Scan and clean up unnecessary files</source>
        <translation>Scan and clean up unnecessary files</translation>
    </message>
    <message>
        <source>Cleanable</source>
        <translation>Cleanable</translation>
    </message>
    <message>
        <source>Click &quot;Start Scanning&quot; to find cleanable items</source>
        <translation>Click &quot;Start Scanning&quot; to find cleanable items</translation>
    </message>
    <message>
        <source>Start Scanning</source>
        <translation>Start Scanning</translation>
    </message>
    <message>
        <source>Clean Now</source>
        <translation>Clean Now</translation>
    </message>
    <message>
        <source>Selected: --</source>
        <translation>Selected: --</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>No items selected</source>
        <translation>No items selected</translation>
    </message>
    <message>
        <source>Confirm Clean</source>
        <translation>Confirm Clean</translation>
    </message>
    <message>
        <source>Are you sure you want to clean %1 selected items?
This action cannot be undone!</source>
        <translation>Are you sure you want to clean %1 selected items?
This action cannot be undone!</translation>
    </message>
    <message>
        <source>Selected: %1 items, %2</source>
        <translation>Selected: %1 items, %2</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 items</translation>
    </message>
    <message>
        <source>Selected: %1 items</source>
        <translation>Selected: %1 items</translation>
    </message>
    <message>
        <source>Cleaned %1 items, freed %2</source>
        <translation>Cleaned %1 items, freed %2</translation>
    </message>
</context>
<context>
    <name>BrowserCleaner</name>
    <message>
        <source>Google Chrome</source>
        <translation>Google Chrome</translation>
    </message>
    <message>
        <source>Microsoft Edge</source>
        <translation>Microsoft Edge</translation>
    </message>
    <message>
        <source>Mozilla Firefox</source>
        <translation>Mozilla Firefox</translation>
    </message>
    <message>
        <source>Opera</source>
        <translation>Opera</translation>
    </message>
    <message>
        <source>Brave</source>
        <translation>Brave</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>File not found</translation>
    </message>
    <message>
        <source>Holds part of a database: removing it loses data saved by the browser, websites or extensions</source>
        <translation>Holds part of a database: removing it loses data saved by the browser, websites or extensions</translation>
    </message>
    <message>
        <source>Belongs to an extension, which does not work without all its files</source>
        <translation>Belongs to an extension, which does not work without all its files</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>Its folder is not the one that was listed</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>Show the data of %1</source>
        <translation>Show the data of %1</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 items</translation>
    </message>
</context>
<context>
    <name>BrowserPage</name>
    <message>
        <source>Browser Cleaner</source>
        <translation>Browser Cleaner</translation>
    </message>
    <message>
        <source>Clean browser cache, cookies and history</source>
        <translation>Clean browser cache, cookies and history</translation>
    </message>
    <message>
        <source>Cleanable Data</source>
        <translation>Cleanable Data</translation>
    </message>
    <message>
        <source>Select Browser:</source>
        <translation>Select Browser:</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Other</translation>
    </message>
</context>
<context>
    <name>BrowserRule</name>
    <message>
        <source>Browser Cache</source>
        <translation>Browser Cache</translation>
    </message>
    <message>
        <source>Temporary web page cache files</source>
        <translation>Temporary web page cache files</translation>
    </message>
    <message>
        <source>Code Cache</source>
        <translation>Code Cache</translation>
    </message>
    <message>
        <source>JavaScript code cache</source>
        <translation>JavaScript code cache</translation>
    </message>
    <message>
        <source>GPU Cache</source>
        <translation>GPU Cache</translation>
    </message>
    <message>
        <source>GPU rendering cache</source>
        <translation>GPU rendering cache</translation>
    </message>
    <message>
        <source>Shader Cache</source>
        <translation>Shader Cache</translation>
    </message>
    <message>
        <source>GPU shader compilation cache</source>
        <translation>GPU shader compilation cache</translation>
    </message>
    <message>
        <source>Service Workers</source>
        <translation>Service Workers</translation>
    </message>
    <message>
        <source>Service Worker cache</source>
        <translation>Service Worker cache</translation>
    </message>
    <message>
        <source>Media Cache</source>
        <translation>Media Cache</translation>
    </message>
    <message>
        <source>Media file cache</source>
        <translation>Media file cache</translation>
    </message>
    <message>
        <source>Network Cache</source>
        <translation>Network Cache</translation>
    </message>
    <message>
        <source>HTTP network request cache</source>
        <translation>HTTP network request cache</translation>
    </message>
    <message>
        <source>Jump List</source>
        <translation>Jump List</translation>
    </message>
    <message>
        <source>Taskbar Jump List icon cache</source>
        <translation>Taskbar Jump List icon cache</translation>
    </message>
    <message>
        <source>Blob Storage</source>
        <translation>Blob Storage</translation>
    </message>
    <message>
        <source>Temporary binary data storage</source>
        <translation>Temporary binary data storage</translation>
    </message>
    <message>
        <source>WebRTC Logs</source>
        <translation>WebRTC Logs</translation>
    </message>
    <message>
        <source>Video call debug logs</source>
        <translation>Video call debug logs</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Crash Reports</translation>
    </message>
    <message>
        <source>Browser crash report files</source>
        <translation>Browser crash report files</translation>
    </message>
    <message>
        <source>Browser Logs</source>
        <translation>Browser Logs</translation>
    </message>
    <message>
        <source>Browser debug and error logs</source>
        <translation>Browser debug and error logs</translation>
    </message>
    <message>
        <source>Website Thumbnails</source>
        <translation>Website Thumbnails</translation>
    </message>
    <message>
        <source>New Tab page website thumbnails</source>
        <translation>New Tab page website thumbnails</translation>
    </message>
    <message>
        <source>Favicon Cache</source>
        <translation>Favicon Cache</translation>
    </message>
    <message>
        <source>Website icon (favicon) cache</source>
        <translation>Website icon (favicon) cache</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>Font Cache</translation>
    </message>
    <message>
        <source>Web font cache files</source>
        <translation>Web font cache files</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Local Storage</translation>
    </message>
    <message>
        <source>Website Local Storage (site settings may be lost)</source>
        <translation>Website Local Storage (site settings may be lost)</translation>
    </message>
    <message>
        <source>IndexedDB</source>
        <translation>IndexedDB</translation>
    </message>
    <message>
        <source>Website database storage (offline data may be lost)</source>
        <translation>Website database storage (offline data may be lost)</translation>
    </message>
    <message>
        <source>Cookies</source>
        <translation>Cookies</translation>
    </message>
    <message>
        <source>Website Cookies (requires re-login to all sites)</source>
        <translation>Website Cookies (requires re-login to all sites)</translation>
    </message>
    <message>
        <source>Browsing History</source>
        <translation>Browsing History</translation>
    </message>
    <message>
        <source>Web browsing history records</source>
        <translation>Web browsing history records</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Download History</translation>
    </message>
    <message>
        <source>Download history records (downloaded files are not deleted)</source>
        <translation>Download history records (downloaded files are not deleted)</translation>
    </message>
    <message>
        <source>Session Data</source>
        <translation>Session Data</translation>
    </message>
    <message>
        <source>Current and recent session data (tabs may be lost)</source>
        <translation>Current and recent session data (tabs may be lost)</translation>
    </message>
    <message>
        <source>Form Data</source>
        <translation>Form Data</translation>
    </message>
    <message>
        <source>Autofill form data (requires re-entry after cleaning)</source>
        <translation>Autofill form data (requires re-entry after cleaning)</translation>
    </message>
    <message>
        <source>Safe Browsing Data</source>
        <translation>Safe Browsing Data</translation>
    </message>
    <message>
        <source>Safe Browsing protection data (not recommended to clean)</source>
        <translation>Safe Browsing protection data (not recommended to clean)</translation>
    </message>
</context>
<context>
    <name>BrowserSubItem</name>
    <message>
        <source>%1 items</source>
        <translation>%1 items</translation>
    </message>
    <message>
        <source>View Details</source>
        <translation>View Details</translation>
    </message>
    <message>
        <source>View details of %1</source>
        <translation>View details of %1</translation>
    </message>
</context>
<context>
    <name>CategoryWidget</name>
    <message>
        <source>View Details</source>
        <translation>View Details</translation>
    </message>
    <message>
        <source>Show items of %1</source>
        <translation>Show items of %1</translation>
    </message>
    <message>
        <source>Load more (%1 remaining)</source>
        <translation>Load more (%1 remaining)</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 items</translation>
    </message>
    <message>
        <source>%1: %2 items, view details</source>
        <translation>%1: %2 items, view details</translation>
    </message>
</context>
<context>
    <name>CircleProgressWidget</name>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>CleanItemWidget</name>
    <message>
        <source>High</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Risk: %1</source>
        <translation>Risk: %1</translation>
    </message>
</context>
<context>
    <name>DashboardResultsPanel</name>
    <message>
        <source>Can be cleaned</source>
        <translation>Can be cleaned</translation>
    </message>
    <message>
        <source>Keep Your PC Running at Peak Performance</source>
        <translation>Keep Your PC Running at Peak Performance</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 Start Scan</translation>
    </message>
    <message>
        <source>🗑️ Clean All</source>
        <translation>🗑️ Clean All</translation>
    </message>
    <message>
        <source>Junk Files</source>
        <translation>Junk Files</translation>
    </message>
    <message>
        <source>Browser Data</source>
        <translation>Browser Data</translation>
    </message>
    <message>
        <source>Registry Issues</source>
        <translation>Registry Issues</translation>
    </message>
    <message>
        <source>&lt;span style=&apos;font-weight:600;&apos;&gt;Tip:&lt;/span&gt; Regular cleaning can improve your PC performance by up to 30%</source>
        <translation>&lt;span style=&apos;font-weight:600;&apos;&gt;Tip:&lt;/span&gt; Regular cleaning can improve your PC performance by up to 30%</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Scanning...</translation>
    </message>
    <message>
        <source>Ready to scan</source>
        <translation>Ready to scan</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 items</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
</context>
<context>
    <name>DashboardStartPanel</name>
    <message>
        <source>🔍  Start Full Scan</source>
        <translation>🔍  Start Full Scan</translation>
    </message>
    <message>
        <source>Ready to Clean Your PC</source>
        <translation>Ready to Clean Your PC</translation>
    </message>
    <message>
        <source>Click the button below to scan for junk files and free up space</source>
        <translation>Click the button below to scan for junk files and free up space</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparing...</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Scanning...</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>DetailItemWidget</name>
    <message>
        <source>Open file location</source>
        <translation>Open file location</translation>
    </message>
    <message>
        <source>Open file location of %1</source>
        <translation>Open file location of %1</translation>
    </message>
</context>
<context>
    <name>DriveCard</name>
    <message>
        <source>Local Disk</source>
        <translation>Local Disk</translation>
    </message>
    <message>
        <source>%1 (Removable)</source>
        <translation>%1 (Removable)</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1/%2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Used: %1%</source>
        <translation>Used: %1%</translation>
    </message>
</context>
<context>
    <name>FileCard</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>FileLocation</name>
    <message>
        <source>Notice</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>The file manager could not be started to show this file:
%1</source>
        <translation>The file manager could not be started to show this file:
%1</translation>
    </message>
    <message>
        <source>This file no longer exists:
%1</source>
        <translation>This file no longer exists:
%1</translation>
    </message>
</context>
<context>
    <name>ItemDetailDialog</name>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>%1  |  %2 files</source>
        <translation>%1  |  %2 files</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 items</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
</context>
<context>
    <name>JunkCleaner</name>
    <message>
        <source>File not found</source>
        <translation>File not found</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>Its folder is not the one that was listed</translation>
    </message>
</context>
<context>
    <name>JunkPage</name>
    <message>
        <source>Junk Cleaner</source>
        <translation>Junk Cleaner</translation>
    </message>
    <message>
        <source>Clean system temp files, cache and logs</source>
        <translation>Clean system temp files, cache and logs</translation>
    </message>
    <message>
        <source>Cleanable Space</source>
        <translation>Cleanable Space</translation>
    </message>
</context>
<context>
    <name>JunkRule</name>
    <message>
        <source>System Temporary Files</source>
        <translation>System Temporary Files</translation>
    </message>
    <message>
        <source>Files in Windows Temp folders</source>
        <translation>Files in Windows Temp folders</translation>
    </message>
    <message>
        <source>Prefetch Files</source>
        <translation>Prefetch Files</translation>
    </message>
    <message>
        <source>Windows Prefetch cache files</source>
        <translation>Windows Prefetch cache files</translation>
    </message>
    <message>
        <source>Thumbnail Cache</source>
        <translation>Thumbnail Cache</translation>
    </message>
    <message>
        <source>Explorer thumbnail and icon cache files</source>
        <translation>Explorer thumbnail and icon cache files</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>Log Files</translation>
    </message>
    <message>
        <source>Windows setup, servicing and device log files</source>
        <translation>Windows setup, servicing and device log files</translation>
    </message>
    <message>
        <source>Windows Update Logs</source>
        <translation>Windows Update Logs</translation>
    </message>
    <message>
        <source>Windows Update history and event logs</source>
        <translation>Windows Update history and event logs</translation>
    </message>
    <message>
        <source>IIS Log Files</source>
        <translation>IIS Log Files</translation>
    </message>
    <message>
        <source>Web server and HTTP error log files</source>
        <translation>Web server and HTTP error log files</translation>
    </message>
    <message>
        <source>Memory Dumps</source>
        <translation>Memory Dumps</translation>
    </message>
    <message>
        <source>Memory dumps left by system and program crashes</source>
        <translation>Memory dumps left by system and program crashes</translation>
    </message>
    <message>
        <source>Windows Update Cache</source>
        <translation>Windows Update Cache</translation>
    </message>
    <message>
        <source>Downloaded Windows Update installation files</source>
        <translation>Downloaded Windows Update installation files</translation>
    </message>
    <message>
        <source>Error Reports</source>
        <translation>Error Reports</translation>
    </message>
    <message>
        <source>Queued and archived program error reports</source>
        <translation>Queued and archived program error reports</translation>
    </message>
    <message>
        <source>Delivery Optimization Files</source>
        <translation>Delivery Optimization Files</translation>
    </message>
    <message>
        <source>Update files kept for sharing with other PCs</source>
        <translation>Update files kept for sharing with other PCs</translation>
    </message>
    <message>
        <source>Windows Defender Scan History</source>
        <translation>Windows Defender Scan History</translation>
    </message>
    <message>
        <source>Windows Defender scan history and definition backups</source>
        <translation>Windows Defender scan history and definition backups</translation>
    </message>
    <message>
        <source>.NET Framework Cache Logs</source>
        <translation>.NET Framework Cache Logs</translation>
    </message>
    <message>
        <source>.NET temporary web files and usage logs</source>
        <translation>.NET temporary web files and usage logs</translation>
    </message>
    <message>
        <source>System Integrity Check Logs</source>
        <translation>System Integrity Check Logs</translation>
    </message>
    <message>
        <source>Logs of system file and component checks</source>
        <translation>Logs of system file and component checks</translation>
    </message>
    <message>
        <source>Installer Cache</source>
        <translation>Installer Cache</translation>
    </message>
    <message>
        <source>Windows Installer patch cache, needed to uninstall some updates</source>
        <translation>Windows Installer patch cache, needed to uninstall some updates</translation>
    </message>
    <message>
        <source>Recent Documents</source>
        <translation>Recent Documents</translation>
    </message>
    <message>
        <source>Shortcuts to recently opened documents</source>
        <translation>Shortcuts to recently opened documents</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>Font Cache</translation>
    </message>
    <message>
        <source>Windows font cache files</source>
        <translation>Windows font cache files</translation>
    </message>
    <message>
        <source>Old Windows Installation</source>
        <translation>Old Windows Installation</translation>
    </message>
    <message>
        <source>Files of a previous Windows installation, needed to go back to it</source>
        <translation>Files of a previous Windows installation, needed to go back to it</translation>
    </message>
    <message>
        <source>Web Cache</source>
        <translation>Web Cache</translation>
    </message>
    <message>
        <source>Windows web cache, downloaded pages and cookies</source>
        <translation>Windows web cache, downloaded pages and cookies</translation>
    </message>
    <message>
        <source>Office Cache</source>
        <translation>Office Cache</translation>
    </message>
    <message>
        <source>Office document cache and unsaved files</source>
        <translation>Office document cache and unsaved files</translation>
    </message>
    <message>
        <source>Tencent Product Logs</source>
        <translation>Tencent Product Logs</translation>
    </message>
    <message>
        <source>Log files of Tencent products</source>
        <translation>Log files of Tencent products</translation>
    </message>
    <message>
        <source>NVIDIA Cache</source>
        <translation>NVIDIA Cache</translation>
    </message>
    <message>
        <source>NVIDIA graphics shader cache</source>
        <translation>NVIDIA graphics shader cache</translation>
    </message>
    <message>
        <source>AMD Cache</source>
        <translation>AMD Cache</translation>
    </message>
    <message>
        <source>AMD graphics shader cache</source>
        <translation>AMD graphics shader cache</translation>
    </message>
    <message>
        <source>DirectX Shader Cache</source>
        <translation>DirectX Shader Cache</translation>
    </message>
    <message>
        <source>Compiled DirectX shaders, made again when needed</source>
        <translation>Compiled DirectX shaders, made again when needed</translation>
    </message>
    <message>
        <source>Windows Search Data</source>
        <translation>Windows Search Data</translation>
    </message>
    <message>
        <source>Logs of the Windows Search indexer</source>
        <translation>Logs of the Windows Search indexer</translation>
    </message>
    <message>
        <source>Diagnostic Data</source>
        <translation>Diagnostic Data</translation>
    </message>
    <message>
        <source>Windows troubleshooting and diagnostic data</source>
        <translation>Windows troubleshooting and diagnostic data</translation>
    </message>
</context>
<context>
    <name>LargeFilePage</name>
    <message>
        <source>Tip</source>
        <translation>Tip</translation>
    </message>
    <message>
        <source>Please select at least one drive to scan.</source>
        <translation>Please select at least one drive to scan.</translation>
    </message>
    <message>
        <source>Custom File Size</source>
        <translation>Custom File Size</translation>
    </message>
    <message>
        <source>Enter minimum file size (MB):</source>
        <translation>Enter minimum file size (MB):</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>Scan Completed</translation>
    </message>
    <message>
        <source>No large files found that match the criteria.</source>
        <translation>No large files found that match the criteria.</translation>
    </message>
    <message>
        <source>📂 Open file location</source>
        <translation>📂 Open file location</translation>
    </message>
    <message>
        <source>🗑️ Delete this file</source>
        <translation>🗑️ Delete this file</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this file?

%1
Size: %2

This action cannot be undone!</source>
        <translation>Are you sure you want to delete this file?

%1
Size: %2

This action cannot be undone!</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>Confirm Delete</translation>
    </message>
    <message>
        <source>Delete Failed</source>
        <translation>Delete Failed</translation>
    </message>
    <message>
        <source>Unable to delete this file. It may be in use by another program.</source>
        <translation>Unable to delete this file. It may be in use by another program.</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>All files have been deleted</source>
        <translation>All files have been deleted</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected %1 files?

Total: %2

This action cannot be undone!</source>
        <translation>Are you sure you want to delete the selected %1 files?

Total: %2

This action cannot be undone!</translation>
    </message>
    <message>
        <source>Deleted %1 files successfully.</source>
        <translation>Deleted %1 files successfully.</translation>
    </message>
    <message>
        <source> %1 files failed to delete.</source>
        <translation> %1 files failed to delete.</translation>
    </message>
    <message>
        <source>Delete Completed</source>
        <translation>Delete Completed</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>Operation Failed</translation>
    </message>
</context>
<context>
    <name>LargeFileResultsView</name>
    <message>
        <source>← Back</source>
        <translation>← Back</translation>
    </message>
    <message>
        <source>🗑️ Delete Selected</source>
        <translation>🗑️ Delete Selected</translation>
    </message>
    <message>
        <source>Scan Results</source>
        <translation>Scan Results</translation>
    </message>
    <message>
        <source>Found %1 large files, total %2</source>
        <translation>Found %1 large files, total %2</translation>
    </message>
    <message>
        <source>Selected: %1 files (%2)</source>
        <translation>Selected: %1 files (%2)</translation>
    </message>
</context>
<context>
    <name>LargeFileSelectionView</name>
    <message>
        <source>Find Large Files</source>
        <translation>Find Large Files</translation>
    </message>
    <message>
        <source>Scan and clean files that take up a lot of disk space</source>
        <translation>Scan and clean files that take up a lot of disk space</translation>
    </message>
    <message>
        <source>Select Scan Location</source>
        <translation>Select Scan Location</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 Start Scan</translation>
    </message>
    <message>
        <source>Minimum File Size:</source>
        <translation>Minimum File Size:</translation>
    </message>
    <message>
        <source>50 MB</source>
        <translation>50 MB</translation>
    </message>
    <message>
        <source>100 MB</source>
        <translation>100 MB</translation>
    </message>
    <message>
        <source>200 MB</source>
        <translation>200 MB</translation>
    </message>
    <message>
        <source>500 MB</source>
        <translation>500 MB</translation>
    </message>
    <message>
        <source>1 GB</source>
        <translation>1 GB</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Custom...</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Configuration Error</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>The page links could not be loaded.

Please contact support or reinstall the program.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Could Not Open Browser</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>The default browser could not be opened.

Please copy the link and open it yourself:
%1</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Sweepwise</source>
        <translation>Sweepwise</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Dashboard</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>Junk Cleaner</translation>
    </message>
    <message>
        <source>Browser Cleaner</source>
        <translation>Browser Cleaner</translation>
    </message>
    <message>
        <source>Registry Cleaner</source>
        <translation>Registry Cleaner</translation>
    </message>
    <message>
        <source>Startup Manager</source>
        <translation>Startup Manager</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>Large Files</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>Show Main Window</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Sweepwise - PC Cleaning Tool</source>
        <translation>Sweepwise - PC Cleaning Tool</translation>
    </message>
    <message>
        <source>About Sweepwise</source>
        <translation>About Sweepwise</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Sweepwise - PC Cleaning Tool&lt;/h3&gt;&lt;p&gt;Version %1&lt;/p&gt;&lt;p&gt;Clean your PC with one click!&lt;br&gt;Remove junk files, browser data, and registry issues.&lt;/p&gt;&lt;p&gt;© 2026 Norvak. All rights reserved.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Sweepwise - PC Cleaning Tool&lt;/h3&gt;&lt;p&gt;Version %1&lt;/p&gt;&lt;p&gt;Clean your PC with one click!&lt;br&gt;Remove junk files, browser data, and registry issues.&lt;/p&gt;&lt;p&gt;© 2026 Norvak. All rights reserved.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Program minimized to system tray. Double-click the icon to restore.</source>
        <translation>Program minimized to system tray. Double-click the icon to restore.</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>A clean is still running. Start the scan when it is over.</source>
        <translation>A clean is still running. Start the scan when it is over.</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Scanning...</source>
        <translation>Scanning...</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>Cleaning...</translation>
    </message>
    <message>
        <source>正在分析系统...</source>
        <translation>Analyzing the system...</translation>
    </message>
    <message>
        <source>正在删除文件...</source>
        <translation>Deleting files...</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>已清理: %1</source>
        <translation>Cleaned: %1</translation>
    </message>
    <message>
        <source>完成!</source>
        <translation>Done!</translation>
    </message>
    <message>
        <source>操作失败</source>
        <translation>Operation Failed</translation>
    </message>
</context>
<context>
    <name>RegistryBackup</name>
    <message>
        <source>There is no such folder</source>
        <translation>There is no such folder</translation>
    </message>
    <message>
        <source>It is a file of the registry itself</source>
        <translation>It is a file of the registry itself</translation>
    </message>
    <message>
        <source>A folder stands there</source>
        <translation>A folder stands there</translation>
    </message>
    <message>
        <source>A link stands there, which leads elsewhere</source>
        <translation>A link stands there, which leads elsewhere</translation>
    </message>
    <message>
        <source>What stands there is not a file</source>
        <translation>What stands there is not a file</translation>
    </message>
</context>
<context>
    <name>RegistryBackupDialog</name>
    <message>
        <source>Backup registry before cleaning (Recommended)</source>
        <translation>Backup registry before cleaning (Recommended)</translation>
    </message>
    <message>
        <source>Clean Registry</source>
        <translation>Clean Registry</translation>
    </message>
    <message>
        <source>About to clean &lt;b&gt;%1&lt;/b&gt; invalid registry entries</source>
        <translation>About to clean &lt;b&gt;%1&lt;/b&gt; invalid registry entries</translation>
    </message>
    <message>
        <source>⚠️ Backup file can be used to restore accidentally deleted registry entries</source>
        <translation>⚠️ Backup file can be used to restore accidentally deleted registry entries</translation>
    </message>
    <message>
        <source>Save to:</source>
        <translation>Save to:</translation>
    </message>
    <message>
        <source>Backup file</source>
        <translation>Backup file</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Browse...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Start Cleaning</source>
        <translation>Start Cleaning</translation>
    </message>
    <message>
        <source>Select backup location</source>
        <translation>Select backup location</translation>
    </message>
    <message>
        <source>Registry files (*.reg)</source>
        <translation>Registry files (*.reg)</translation>
    </message>
    <message>
        <source>The backup cannot be written here:
%1

%2</source>
        <translation>The backup cannot be written here:
%1

%2</translation>
    </message>
    <message>
        <source>There is a file of this name already:
%1

Replace it?</source>
        <translation>There is a file of this name already:
%1

Replace it?</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>The folder cannot be made.</translation>
    </message>
    <message>
        <source>The file is write-protected.</source>
        <translation>The file is write-protected.</translation>
    </message>
</context>
<context>
    <name>RegistryChecks</name>
    <message>
        <source>Path: %1</source>
        <translation>Path: %1</translation>
    </message>
    <message>
        <source>Command: %1</source>
        <translation>Command: %1</translation>
    </message>
    <message>
        <source>DLL: %1</source>
        <translation>DLL: %1</translation>
    </message>
    <message>
        <source>EXE: %1</source>
        <translation>EXE: %1</translation>
    </message>
    <message>
        <source>Font file: %1</source>
        <translation>Font file: %1</translation>
    </message>
    <message>
        <source>DLL path: %1</source>
        <translation>DLL path: %1</translation>
    </message>
</context>
<context>
    <name>RegistryCleaner</name>
    <message>
        <source>Invalid Software Paths</source>
        <translation>Invalid Software Paths</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent locations</source>
        <translation>Registry entries pointing to non-existent locations</translation>
    </message>
    <message>
        <source>Invalid File Associations</source>
        <translation>Invalid File Associations</translation>
    </message>
    <message>
        <source>File associations pointing to missing programs</source>
        <translation>File associations pointing to missing programs</translation>
    </message>
    <message>
        <source>Invalid COM/ActiveX</source>
        <translation>Invalid COM/ActiveX</translation>
    </message>
    <message>
        <source>Invalid COM components and ActiveX controls</source>
        <translation>Invalid COM components and ActiveX controls</translation>
    </message>
    <message>
        <source>Invalid Font References</source>
        <translation>Invalid Font References</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent font files</source>
        <translation>Registry entries pointing to non-existent font files</translation>
    </message>
    <message>
        <source>Invalid Startup Items</source>
        <translation>Invalid Startup Items</translation>
    </message>
    <message>
        <source>Startup items pointing to non-existent programs</source>
        <translation>Startup items pointing to non-existent programs</translation>
    </message>
    <message>
        <source>Invalid Shared DLLs</source>
        <translation>Invalid Shared DLLs</translation>
    </message>
    <message>
        <source>References to non-existent shared DLL files</source>
        <translation>References to non-existent shared DLL files</translation>
    </message>
    <message>
        <source>MUI Cache</source>
        <translation>MUI Cache</translation>
    </message>
    <message>
        <source>Application MUI cache data</source>
        <translation>Application MUI cache data</translation>
    </message>
    <message>
        <source>Scanning invalid software paths...</source>
        <translation>Scanning invalid software paths...</translation>
    </message>
    <message>
        <source>Scanning invalid file associations...</source>
        <translation>Scanning invalid file associations...</translation>
    </message>
    <message>
        <source>Scanning invalid COM components...</source>
        <translation>Scanning invalid COM components...</translation>
    </message>
    <message>
        <source>Scanning invalid font references...</source>
        <translation>Scanning invalid font references...</translation>
    </message>
    <message>
        <source>Scanning invalid startup items...</source>
        <translation>Scanning invalid startup items...</translation>
    </message>
    <message>
        <source>Scanning invalid shared DLLs...</source>
        <translation>Scanning invalid shared DLLs...</translation>
    </message>
    <message>
        <source>Scanning MUI cache...</source>
        <translation>Scanning MUI cache...</translation>
    </message>
    <message>
        <source>Its name cannot be told from a path</source>
        <translation>Its name cannot be told from a path</translation>
    </message>
    <message>
        <source>It has changed since the scan</source>
        <translation>It has changed since the scan</translation>
    </message>
    <message>
        <source>It could not be read again before the clean</source>
        <translation>It could not be read again before the clean</translation>
    </message>
</context>
<context>
    <name>RegistryPage</name>
    <message>
        <source>Registry Cleaner</source>
        <translation>Registry Cleaner</translation>
    </message>
    <message>
        <source>Clean invalid registry entries</source>
        <translation>Clean invalid registry entries</translation>
    </message>
    <message>
        <source>Issues Found</source>
        <translation>Issues Found</translation>
    </message>
    <message>
        <source>选中: --</source>
        <translation>Selected: --</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>没有选中任何项目</source>
        <translation>No items selected</translation>
    </message>
    <message>
        <source>Entries removed without a backup: %1</source>
        <translation>Entries removed without a backup: %1</translation>
    </message>
    <message>
        <source>No entries were removed.</source>
        <translation>No entries were removed.</translation>
    </message>
    <message>
        <source>The registry backup could not be written:
%1

%2</source>
        <translation>The registry backup could not be written:
%1

%2</translation>
    </message>
</context>
<context>
    <name>RegistryRestore</name>
    <message>
        <source>this is not a registry backup</source>
        <translation>this is not a registry backup</translation>
    </message>
    <message>
        <source>the file breaks off here</source>
        <translation>the file breaks off here</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>line %1: %2</translation>
    </message>
    <message>
        <source>the line does not end where it should</source>
        <translation>the line does not end where it should</translation>
    </message>
    <message>
        <source>the key has no end</source>
        <translation>the key has no end</translation>
    </message>
    <message>
        <source>the key&apos;s path is not complete</source>
        <translation>the key&apos;s path is not complete</translation>
    </message>
    <message>
        <source>the key lies in no known hive</source>
        <translation>the key lies in no known hive</translation>
    </message>
    <message>
        <source>there is no key before this line</source>
        <translation>there is no key before this line</translation>
    </message>
    <message>
        <source>this is neither a key nor a value</source>
        <translation>this is neither a key nor a value</translation>
    </message>
    <message>
        <source>a value&apos;s name has no value</source>
        <translation>a value&apos;s name has no value</translation>
    </message>
    <message>
        <source>the kind of the value is not known</source>
        <translation>the kind of the value is not known</translation>
    </message>
    <message>
        <source>a backslash stands before something else than a quote or a backslash</source>
        <translation>a backslash stands before something else than a quote or a backslash</translation>
    </message>
    <message>
        <source>the text has no closing quote</source>
        <translation>the text has no closing quote</translation>
    </message>
    <message>
        <source>eight hexadecimal digits are wanted here</source>
        <translation>eight hexadecimal digits are wanted here</translation>
    </message>
    <message>
        <source>the type of the value is not a number</source>
        <translation>the type of the value is not a number</translation>
    </message>
    <message>
        <source>a byte of two hexadecimal digits is wanted here</source>
        <translation>a byte of two hexadecimal digits is wanted here</translation>
    </message>
    <message>
        <source>the list of bytes breaks off</source>
        <translation>the list of bytes breaks off</translation>
    </message>
    <message>
        <source>The restoring was cancelled</source>
        <translation>The restoring was cancelled</translation>
    </message>
</context>
<context>
    <name>RegistryTexts</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 cannot be read: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not the path of a key</source>
        <translation>&apos;%1&apos; is not the path of a key</translation>
    </message>
    <message>
        <source>There is no such key</source>
        <translation>There is no such key</translation>
    </message>
    <message>
        <source>The key is a link to another one</source>
        <translation>The key is a link to another one</translation>
    </message>
    <message>
        <source>There are keys below it</source>
        <translation>There are keys below it</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>There is no such value</translation>
    </message>
    <message>
        <source>There is no registry</source>
        <translation>There is no registry</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 cannot be written: %2</translation>
    </message>
    <message>
        <source>Windows programs are running in the Wine prefix %1; end them and try again</source>
        <translation>Windows programs are running in the Wine prefix %1; end them and try again</translation>
    </message>
    <message>
        <source>%1 was changed by another program; scan again</source>
        <translation>%1 was changed by another program; scan again</translation>
    </message>
    <message>
        <source>A value without a name is not written</source>
        <translation>A value without a name is not written</translation>
    </message>
    <message>
        <source>The name or the text cannot be stored as it is</source>
        <translation>The name or the text cannot be stored as it is</translation>
    </message>
    <message>
        <source>The registry did not take the value</source>
        <translation>The registry did not take the value</translation>
    </message>
    <message>
        <source>The registry did not let go of the value</source>
        <translation>The registry did not let go of the value</translation>
    </message>
    <message>
        <source>A class is changed in the user&apos;s or in the machine&apos;s hive</source>
        <translation>A class is changed in the user&apos;s or in the machine&apos;s hive</translation>
    </message>
    <message>
        <source>It is not a registry file</source>
        <translation>It is not a registry file</translation>
    </message>
    <message>
        <source>It is damaged</source>
        <translation>It is damaged</translation>
    </message>
</context>
<context>
    <name>ResultWidget</name>
    <message>
        <source>Expanded</source>
        <translation>Expanded</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Collapsed</translation>
    </message>
</context>
<context>
    <name>ScanProgressDialog</name>
    <message>
        <source>Scanning for large files...</source>
        <translation>Scanning for large files...</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparing...</translation>
    </message>
    <message>
        <source>Found %1 large files (%2)</source>
        <translation>Found %1 large files (%2)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Scanning: %1</source>
        <translation>Scanning: %1</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Start with Windows</source>
        <translation>Start with Windows</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Minimize to tray on close</translation>
    </message>
    <message>
        <source>Confirm before cleaning</source>
        <translation>Confirm before cleaning</translation>
    </message>
    <message>
        <source>Auto backup before registry cleaning</source>
        <translation>Auto backup before registry cleaning</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Cleaning</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>The settings could not be saved:
%1</source>
        <translation>The settings could not be saved:
%1</translation>
    </message>
</context>
<context>
    <name>StartupCard</name>
    <message>
        <source>Start %1 automatically</source>
        <translation>Start %1 automatically</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Enabled</translation>
    </message>
</context>
<context>
    <name>StartupPage</name>
    <message>
        <source>Startup Manager</source>
        <translation>Startup Manager</translation>
    </message>
    <message>
        <source>Check programs to enable auto-start at boot</source>
        <translation>Check programs to enable auto-start at boot</translation>
    </message>
    <message>
        <source>%1 programs</source>
        <translation>%1 programs</translation>
    </message>
    <message>
        <source>Search programs...</source>
        <translation>Search programs...</translation>
    </message>
    <message>
        <source>Search programs</source>
        <translation>Search programs</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>Checked programs will run automatically at startup</source>
        <translation>Checked programs will run automatically at startup</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>Scanning installed programs...</translation>
    </message>
    <message>
        <source>First load may take a few seconds</source>
        <translation>First load may take a few seconds</translation>
    </message>
    <message>
        <source>%1 programs · %2 startup items</source>
        <translation>%1 programs · %2 startup items</translation>
    </message>
    <message>
        <source>Failed to add startup item</source>
        <translation>Failed to add startup item</translation>
    </message>
    <message>
        <source>Failed to remove startup item</source>
        <translation>Failed to remove startup item</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>Operation Failed</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximize</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Language Changed</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>Language has been changed.

The application will restart now.</translation>
    </message>
    <message>
        <source>The application could not be restarted. Please start it again yourself.</source>
        <translation>The application could not be restarted. Please start it again yourself.</translation>
    </message>
    <message>
        <source>The language could not be saved and does not change:
%1</source>
        <translation>The language could not be saved and does not change:
%1</translation>
    </message>
</context>
<context>
    <name>Worker</name>
    <message>
        <source>The system cannot start another thread. End some programs and try again.</source>
        <translation>The system cannot start another thread. End some programs and try again.</translation>
    </message>
</context>
<context>
    <name>formatSize</name>
    <message>
        <source>0 B</source>
        <translation>0 B</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
</context>
</TS>
