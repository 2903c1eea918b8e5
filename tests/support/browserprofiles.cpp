#include "browserprofiles.h"

using namespace Qt::StringLiterals;

namespace browserprofiles {

namespace {

void writeFiles(const TestTree &tree, const QString &folder, const QString &names)
{
    int size = 100;
    const QStringList list = names.split(u'|');
    for (const QString &name : list)
        tree.file(folder + u'/' + name, QByteArray(size += 13, 'x'));
}

} // namespace

void makeChromium(const TestTree &tree, const QString &profile)
{
    writeFiles(
        tree, profile,
        u"Cache/Cache_Data/data_0|Cache/Cache_Data/data_1|Cache/Cache_Data/index|"
        "Cache/Cache_Data/f_000001|Code Cache/js/index|Code Cache/js/index-dir/the-real-index|"
        "Code Cache/wasm/index|GPUCache/data_0|GPUCache/index|ShaderCache/data_1|"
        "Service Worker/CacheStorage/0a1b/2c3d/index|Service Worker/Database/000003.log|"
        "Service Worker/ScriptCache/index|Media Cache/f_1|JumpListIconsRecentClosed/1.tmp|"
        "blob_storage/8d1f/blob|WebRTC Logs/webrtc.gz|Crashpad/reports/a.dmp|chrome_debug.log|"
        "Thumbnails/000001.ldb|Font Cache/font|Favicons|Favicons-journal"_s);
    writeFiles(
        tree, profile,
        u"Network/Cookies|Network/Cookies-journal|Network/Network Persistent State|History|"
        "History-journal|Visited Links|Top Sites|DownloadMetadata|Sessions/Session_1|"
        "Current Session|Last Tabs|Web Data|Web Data-journal|Login Data|Bookmarks|Preferences|"
        "Local Storage/leveldb/000003.log|Local Storage/leveldb/CURRENT|"
        "Local Storage/leveldb/MANIFEST-000001|Extension State/CURRENT|Extension State/LOG|"
        "Extension State/MANIFEST-000004|Extension State/000005.log|Extension State/000007.log|"
        "Sync Data/LevelDB/CURRENT|Sync Data/LevelDB/MANIFEST-000001|Sync Data/sync.log|"
        "Sync Data/LevelDB/000003.log|old.log/kept/CURRENT|old.log/kept/MANIFEST-000009|"
        "old.log/kept/favicons|old.log/debug.log|"
        "IndexedDB/https_www.example.com_0.indexeddb.leveldb/LOG|Safe Browsing/url.store|"
        "IndexedDB/https_例え.example_0.indexeddb.blob/1/00/5|"
        "Extensions/abc/1.0_0/manifest.json|Extensions/abc/1.0_0/history|"
        "Cache/Cache_Data/页面 🎉.bin|File System/000/t/00/cookies"_s);
    tree.folder(profile + "/Cache/empty"_L1);
}

void makeFirefox(const TestTree &tree, const QString &name)
{
    const QString roaming = "Roaming/Mozilla/Firefox/Profiles/"_L1 + name;
    writeFiles(
        tree, roaming,
        u"cookies.sqlite|cookies.sqlite-wal|cookies.sqlite-shm|places.sqlite|places.sqlite-wal|"
        "places.sqlite-shm|favicons.sqlite|favicons.sqlite-wal|favicons.sqlite-shm|"
        "formhistory.sqlite|downloads.sqlite|sessionstore.jsonlz4|logins.json|key4.db|"
        "sessionstore-backups/recovery.jsonlz4|sessionstore-backups/previous.jsonlz4|"
        "sessionstore-backups/recovery.baklz4|bookmarkbackups/bookmarks-2026-11-01.jsonlz4|"
        "storage/default/https+++www.example.com/ls/data.sqlite|"
        "storage/default/https+++www.example.com/idb/1.sqlite|"
        "storage/default/https+++www.example.com/.metadata-v2|"
        "storage/permanent/chrome/idb/2.sqlite|extensions.json|backup/cookies.sqlite"_s);
    writeFiles(tree, "Local/Mozilla/Firefox/Profiles/"_L1 + name,
               u"cache2/entries/0A1B2C|cache2/entries/3D4E5F|cache2/index|thumbnails/0.png|"
               "startupCache/urlCache.bin|shader-cache/1|safebrowsing/base-cookie-proto.vlpset"_s);
}

void makeAll(const TestTree &tree)
{
    const QString chrome = u"Local/Google/Chrome/User Data"_s;
    for (const QString &profile : {u"Default"_s, u"Profile 2"_s, u"Profile 10"_s,
                                   u"Profile 工作 🦊"_s, u"Guest Profile"_s, u"Profile"_s})
        makeChromium(tree, chrome + u'/' + profile);
    writeFiles(tree, chrome, u"Local State|First Run|Crashpad/reports/root.dmp|debug.log"_s);
    makeChromium(tree, u"Local/Microsoft/Edge/User Data/Default"_s);
    makeChromium(tree, u"Local/Microsoft/Edge/User Data/Profile 1"_s);
    makeChromium(tree, u"Local/BraveSoftware/Brave-Browser/User Data/Default"_s);
    makeChromium(tree, u"Roaming/Opera Software/Opera Stable/Default"_s);

    const QString firefox = u"Roaming/Mozilla/Firefox"_s;
    makeFirefox(tree, u"ab12cd34.default-release"_s);
    makeFirefox(tree, u"ef56.默认 🦊"_s);
    makeFirefox(tree, u"unnamed.in-the-file"_s);
    writeFiles(tree, u"Elsewhere/profile"_s, u"cookies.sqlite|Cache/0|prefs.js"_s);
    writeFiles(
        tree, firefox,
        u"Crash Reports/pending/1.dmp|Crash Reports/pending/1.extra|Crash Reports/InstallTime|"
        "Crash Reports/top.dmp|update.log|install.log|other.log|notes.txt"_s);
    tree.file(
        firefox + "/profiles.ini"_L1,
        "[Install308046B0AF4A39CB]\r\nDefault=Profiles/ab12cd34.default-release\r\nLocked=1\r\n"
        "\r\n[Profile0]\r\nName=default-release\r\nIsRelative=1\r\n"
        "Path=Profiles/ab12cd34.default-release\r\nDefault=1\r\n\r\n"
        "[Profile1]\r\nName=else\r\nIsRelative=0\r\nPath="
            + tree.path(u"Elsewhere/profile"_s).toUtf8()
            + "\r\n\r\n[Profile2]\r\nName=gone\r\nIsRelative=1\r\nPath=Profiles/gone\r\n\r\n"
              "[General]\r\nStartWithLastProfile=1\r\nPath=Profiles/unnamed.in-the-file\r\n"
              "IsRelative=1\r\nVersion=2\r\n");
}

} // namespace browserprofiles
