<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>製品情報</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Your Personal System Butler

🧹 Junk Cleaner - Free up valuable disk space
🌐 Browser Cleaner - Protect your privacy
🔧 Registry Cleaner - Boost system performance
⚡ Startup Manager - Speed up boot time</source>
        <translation>あなた専属の PC 執事

🧹 不要ファイルの掃除 - ディスクの空きを増やす
🌐 ブラウザーの掃除 - プライバシーを守る
🔧 レジストリの掃除 - システムの性能を高める
⚡ スタートアップ管理 - 起動を速くする</translation>
    </message>
    <message>
        <source>© 2026 Norvak. All rights reserved.</source>
        <translatorcomment>same</translatorcomment>
        <translation>© 2026 Norvak. All rights reserved.</translation>
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
        <translation>掃除ツール</translation>
    </message>
    <message>
        <source>Scan and clean up unnecessary files</source>
        <translation>不要なファイルをスキャンして掃除します</translation>
    </message>
    <message>
        <source>Cleanable</source>
        <translation>掃除できる容量</translation>
    </message>
    <message>
        <source>Click &quot;Start Scanning&quot; to find cleanable items</source>
        <translation>「スキャン開始」をクリックして、掃除できる項目を探してください</translation>
    </message>
    <message>
        <source>Start Scanning</source>
        <translation>スキャン開始</translation>
    </message>
    <message>
        <source>Clean Now</source>
        <translation>今すぐ掃除</translation>
    </message>
    <message>
        <source>Selected: --</source>
        <translation>選択中: --</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>No items selected</source>
        <translation>項目が選択されていません</translation>
    </message>
    <message>
        <source>Confirm Clean</source>
        <translation>掃除の確認</translation>
    </message>
    <message>
        <source>Are you sure you want to clean %1 selected items?
This action cannot be undone!</source>
        <translation>選択した %1 件の項目を掃除しますか?
この操作は元に戻せません。</translation>
    </message>
    <message>
        <source>Selected: %1 items, %2</source>
        <translation>選択中: %1 件、%2</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 件</translation>
    </message>
    <message>
        <source>Selected: %1 items</source>
        <translation>選択中: %1 件</translation>
    </message>
    <message>
        <source>Cleaned %1 items, freed %2</source>
        <translation>%1 件を掃除し、空き容量を %2 増やしました</translation>
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
        <translation>ファイルが見つかりません</translation>
    </message>
    <message>
        <source>Holds part of a database: removing it loses data saved by the browser, websites or extensions</source>
        <translation>データベースの一部が含まれています。削除すると、ブラウザー、Web サイト、拡張機能が保存したデータが失われます</translation>
    </message>
    <message>
        <source>Belongs to an extension, which does not work without all its files</source>
        <translation>拡張機能の一部です。すべてのファイルが揃っていないと拡張機能は動作しません</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>フォルダーが一覧に表示されたときのものと異なります</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>Show the data of %1</source>
        <translation>%1 のデータを表示</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 件</translation>
    </message>
</context>
<context>
    <name>BrowserPage</name>
    <message>
        <source>Browser Cleaner</source>
        <translation>ブラウザーの掃除</translation>
    </message>
    <message>
        <source>Clean browser cache, cookies and history</source>
        <translation>ブラウザーのキャッシュ、Cookie、履歴を掃除します</translation>
    </message>
    <message>
        <source>Cleanable Data</source>
        <translation>掃除できるデータ</translation>
    </message>
    <message>
        <source>Select Browser:</source>
        <translation>ブラウザーを選択:</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
</context>
<context>
    <name>BrowserRule</name>
    <message>
        <source>Browser Cache</source>
        <translation>ブラウザー キャッシュ</translation>
    </message>
    <message>
        <source>Temporary web page cache files</source>
        <translation>Web ページの一時的なキャッシュ ファイル</translation>
    </message>
    <message>
        <source>Code Cache</source>
        <translation>コード キャッシュ</translation>
    </message>
    <message>
        <source>JavaScript code cache</source>
        <translation>JavaScript コードのキャッシュ</translation>
    </message>
    <message>
        <source>GPU Cache</source>
        <translation>GPU キャッシュ</translation>
    </message>
    <message>
        <source>GPU rendering cache</source>
        <translation>GPU レンダリングのキャッシュ</translation>
    </message>
    <message>
        <source>Shader Cache</source>
        <translation>シェーダー キャッシュ</translation>
    </message>
    <message>
        <source>GPU shader compilation cache</source>
        <translation>GPU シェーダーのコンパイル キャッシュ</translation>
    </message>
    <message>
        <source>Service Workers</source>
        <translation>Service Worker</translation>
    </message>
    <message>
        <source>Service Worker cache</source>
        <translation>Service Worker のキャッシュ</translation>
    </message>
    <message>
        <source>Media Cache</source>
        <translation>メディア キャッシュ</translation>
    </message>
    <message>
        <source>Media file cache</source>
        <translation>メディア ファイルのキャッシュ</translation>
    </message>
    <message>
        <source>Network Cache</source>
        <translation>ネットワーク キャッシュ</translation>
    </message>
    <message>
        <source>HTTP network request cache</source>
        <translation>HTTP ネットワーク要求のキャッシュ</translation>
    </message>
    <message>
        <source>Jump List</source>
        <translation>ジャンプ リスト</translation>
    </message>
    <message>
        <source>Taskbar Jump List icon cache</source>
        <translation>タスク バーのジャンプ リストのアイコン キャッシュ</translation>
    </message>
    <message>
        <source>Blob Storage</source>
        <translation>BLOB ストレージ</translation>
    </message>
    <message>
        <source>Temporary binary data storage</source>
        <translation>一時的なバイナリ データの保存領域</translation>
    </message>
    <message>
        <source>WebRTC Logs</source>
        <translation>WebRTC のログ</translation>
    </message>
    <message>
        <source>Video call debug logs</source>
        <translation>ビデオ通話のデバッグ ログ</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>クラッシュ レポート</translation>
    </message>
    <message>
        <source>Browser crash report files</source>
        <translation>ブラウザーのクラッシュ レポート ファイル</translation>
    </message>
    <message>
        <source>Browser Logs</source>
        <translation>ブラウザーのログ</translation>
    </message>
    <message>
        <source>Browser debug and error logs</source>
        <translation>ブラウザーのデバッグ ログとエラー ログ</translation>
    </message>
    <message>
        <source>Website Thumbnails</source>
        <translation>Web サイトのサムネイル</translation>
    </message>
    <message>
        <source>New Tab page website thumbnails</source>
        <translation>新しいタブ ページに表示される Web サイトのサムネイル</translation>
    </message>
    <message>
        <source>Favicon Cache</source>
        <translation>ファビコン キャッシュ</translation>
    </message>
    <message>
        <source>Website icon (favicon) cache</source>
        <translation>Web サイトのアイコン (ファビコン) のキャッシュ</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>フォント キャッシュ</translation>
    </message>
    <message>
        <source>Web font cache files</source>
        <translation>Web フォントのキャッシュ ファイル</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>ローカル ストレージ</translation>
    </message>
    <message>
        <source>Website Local Storage (site settings may be lost)</source>
        <translation>Web サイトのローカル ストレージ (サイトの設定が失われることがあります)</translation>
    </message>
    <message>
        <source>IndexedDB</source>
        <translatorcomment>same</translatorcomment>
        <translation>IndexedDB</translation>
    </message>
    <message>
        <source>Website database storage (offline data may be lost)</source>
        <translation>Web サイトのデータベース ストレージ (オフライン データが失われることがあります)</translation>
    </message>
    <message>
        <source>Cookies</source>
        <translation>Cookie</translation>
    </message>
    <message>
        <source>Website Cookies (requires re-login to all sites)</source>
        <translation>Web サイトの Cookie (すべてのサイトで再サインインが必要)</translation>
    </message>
    <message>
        <source>Browsing History</source>
        <translation>閲覧履歴</translation>
    </message>
    <message>
        <source>Web browsing history records</source>
        <translation>Web の閲覧履歴</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>ダウンロード履歴</translation>
    </message>
    <message>
        <source>Download history records (downloaded files are not deleted)</source>
        <translation>ダウンロード履歴 (ダウンロードしたファイルは削除されません)</translation>
    </message>
    <message>
        <source>Session Data</source>
        <translation>セッション データ</translation>
    </message>
    <message>
        <source>Current and recent session data (tabs may be lost)</source>
        <translation>現在と最近のセッション データ (タブが失われることがあります)</translation>
    </message>
    <message>
        <source>Form Data</source>
        <translation>フォーム データ</translation>
    </message>
    <message>
        <source>Autofill form data (requires re-entry after cleaning)</source>
        <translation>オートフィルのフォーム データ (掃除後は再入力が必要)</translation>
    </message>
    <message>
        <source>Safe Browsing Data</source>
        <translation>セーフ ブラウジング データ</translation>
    </message>
    <message>
        <source>Safe Browsing protection data (not recommended to clean)</source>
        <translation>セーフ ブラウジングの保護データ (掃除は推奨されません)</translation>
    </message>
</context>
<context>
    <name>BrowserSubItem</name>
    <message>
        <source>%1 items</source>
        <translation>%1 件</translation>
    </message>
    <message>
        <source>View Details</source>
        <translation>詳細を表示</translation>
    </message>
    <message>
        <source>View details of %1</source>
        <translation>%1 の詳細を表示</translation>
    </message>
</context>
<context>
    <name>CategoryWidget</name>
    <message>
        <source>View Details</source>
        <translation>詳細を表示</translation>
    </message>
    <message>
        <source>Show items of %1</source>
        <translation>%1 の項目を表示</translation>
    </message>
    <message>
        <source>Load more (%1 remaining)</source>
        <translation>さらに表示 (残り %1 件)</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 件</translation>
    </message>
    <message>
        <source>%1: %2 items, view details</source>
        <translation>%1: %2 件、詳細を表示</translation>
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
        <translation>高</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Risk: %1</source>
        <translation>リスク: %1</translation>
    </message>
</context>
<context>
    <name>DashboardResultsPanel</name>
    <message>
        <source>Can be cleaned</source>
        <translation>掃除できる容量</translation>
    </message>
    <message>
        <source>Keep Your PC Running at Peak Performance</source>
        <translation>PC をいつもベストな状態に</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 スキャン開始</translation>
    </message>
    <message>
        <source>🗑️ Clean All</source>
        <translation>🗑️ すべて掃除</translation>
    </message>
    <message>
        <source>Junk Files</source>
        <translation>不要ファイル</translation>
    </message>
    <message>
        <source>Browser Data</source>
        <translation>閲覧データ</translation>
    </message>
    <message>
        <source>Registry Issues</source>
        <translation>レジストリ問題</translation>
    </message>
    <message>
        <source>&lt;span style=&apos;font-weight:600;&apos;&gt;Tip:&lt;/span&gt; Regular cleaning can improve your PC performance by up to 30%</source>
        <translation>&lt;span style=&apos;font-weight:600;&apos;&gt;ヒント:&lt;/span&gt; 定期的に掃除すると、PC の性能が最大 30% 向上することがあります</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>スキャン中...</translation>
    </message>
    <message>
        <source>Ready to scan</source>
        <translation>スキャンの準備ができました</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 件</translation>
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
        <translation>🔍  フル スキャン開始</translation>
    </message>
    <message>
        <source>Ready to Clean Your PC</source>
        <translation>PC を掃除する準備ができました</translation>
    </message>
    <message>
        <source>Click the button below to scan for junk files and free up space</source>
        <translation>下のボタンをクリックすると、不要ファイルをスキャンして空き容量を増やせます</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>準備中...</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>スキャン中...</translation>
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
        <translation>ファイルの場所を開く</translation>
    </message>
    <message>
        <source>Open file location of %1</source>
        <translation>%1 のファイルの場所を開く</translation>
    </message>
</context>
<context>
    <name>DriveCard</name>
    <message>
        <source>Local Disk</source>
        <translation>ローカル ディスク</translation>
    </message>
    <message>
        <source>%1 (Removable)</source>
        <translation>%1 (リムーバブル)</translation>
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
        <translation>使用済み: %1%</translation>
    </message>
</context>
<context>
    <name>FileCard</name>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>FileLocation</name>
    <message>
        <source>Notice</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>The file manager could not be started to show this file:
%1</source>
        <translation>ファイル マネージャーを起動できなかったため、次のファイルを表示できません:
%1</translation>
    </message>
    <message>
        <source>This file no longer exists:
%1</source>
        <translation>次のファイルは既に存在しません:
%1</translation>
    </message>
</context>
<context>
    <name>ItemDetailDialog</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>%1  |  %2 files</source>
        <translation>%1  |  %2 個のファイル</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 件</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
</context>
<context>
    <name>JunkCleaner</name>
    <message>
        <source>File not found</source>
        <translation>ファイルが見つかりません</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>フォルダーが一覧に表示されたときのものと異なります</translation>
    </message>
</context>
<context>
    <name>JunkPage</name>
    <message>
        <source>Junk Cleaner</source>
        <translation>不要ファイルの掃除</translation>
    </message>
    <message>
        <source>Clean system temp files, cache and logs</source>
        <translation>システムの一時ファイル、キャッシュ、ログを掃除します</translation>
    </message>
    <message>
        <source>Cleanable Space</source>
        <translation>掃除できる容量</translation>
    </message>
</context>
<context>
    <name>JunkRule</name>
    <message>
        <source>System Temporary Files</source>
        <translation>システムの一時ファイル</translation>
    </message>
    <message>
        <source>Files in Windows Temp folders</source>
        <translation>Windows の Temp フォルダー内のファイル</translation>
    </message>
    <message>
        <source>Prefetch Files</source>
        <translation>Prefetch ファイル</translation>
    </message>
    <message>
        <source>Windows Prefetch cache files</source>
        <translation>Windows の Prefetch キャッシュ ファイル</translation>
    </message>
    <message>
        <source>Thumbnail Cache</source>
        <translation>サムネイル キャッシュ</translation>
    </message>
    <message>
        <source>Explorer thumbnail and icon cache files</source>
        <translation>エクスプローラーのサムネイルとアイコンのキャッシュ ファイル</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>ログ ファイル</translation>
    </message>
    <message>
        <source>Windows setup, servicing and device log files</source>
        <translation>Windows のセットアップ、保守、デバイスのログ ファイル</translation>
    </message>
    <message>
        <source>Windows Update Logs</source>
        <translation>Windows Update のログ</translation>
    </message>
    <message>
        <source>Windows Update history and event logs</source>
        <translation>Windows Update の履歴とイベント ログ</translation>
    </message>
    <message>
        <source>IIS Log Files</source>
        <translation>IIS のログ ファイル</translation>
    </message>
    <message>
        <source>Web server and HTTP error log files</source>
        <translation>Web サーバーと HTTP エラーのログ ファイル</translation>
    </message>
    <message>
        <source>Memory Dumps</source>
        <translation>メモリ ダンプ</translation>
    </message>
    <message>
        <source>Memory dumps left by system and program crashes</source>
        <translation>システムやプログラムのクラッシュ時に残されたメモリ ダンプ</translation>
    </message>
    <message>
        <source>Windows Update Cache</source>
        <translation>Windows Update のキャッシュ</translation>
    </message>
    <message>
        <source>Downloaded Windows Update installation files</source>
        <translation>ダウンロード済みの Windows Update インストール ファイル</translation>
    </message>
    <message>
        <source>Error Reports</source>
        <translation>エラー報告</translation>
    </message>
    <message>
        <source>Queued and archived program error reports</source>
        <translation>送信待ちおよび保管済みのプログラム エラー報告</translation>
    </message>
    <message>
        <source>Delivery Optimization Files</source>
        <translation>配信の最適化ファイル</translation>
    </message>
    <message>
        <source>Update files kept for sharing with other PCs</source>
        <translation>他の PC と共有するために保存された更新ファイル</translation>
    </message>
    <message>
        <source>Windows Defender Scan History</source>
        <translation>Windows Defender のスキャン履歴</translation>
    </message>
    <message>
        <source>Windows Defender scan history and definition backups</source>
        <translation>Windows Defender のスキャン履歴と定義ファイルのバックアップ</translation>
    </message>
    <message>
        <source>.NET Framework Cache Logs</source>
        <translation>.NET Framework のキャッシュ ログ</translation>
    </message>
    <message>
        <source>.NET temporary web files and usage logs</source>
        <translation>.NET の一時 Web ファイルと使用状況ログ</translation>
    </message>
    <message>
        <source>System Integrity Check Logs</source>
        <translation>システム整合性チェックのログ</translation>
    </message>
    <message>
        <source>Logs of system file and component checks</source>
        <translation>システム ファイルとコンポーネントのチェック ログ</translation>
    </message>
    <message>
        <source>Installer Cache</source>
        <translation>インストーラー キャッシュ</translation>
    </message>
    <message>
        <source>Windows Installer patch cache, needed to uninstall some updates</source>
        <translation>Windows Installer の修正プログラムのキャッシュ (一部の更新プログラムのアンインストールに必要)</translation>
    </message>
    <message>
        <source>Recent Documents</source>
        <translation>最近使ったドキュメント</translation>
    </message>
    <message>
        <source>Shortcuts to recently opened documents</source>
        <translation>最近開いたドキュメントへのショートカット</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>フォント キャッシュ</translation>
    </message>
    <message>
        <source>Windows font cache files</source>
        <translation>Windows のフォント キャッシュ ファイル</translation>
    </message>
    <message>
        <source>Old Windows Installation</source>
        <translation>以前の Windows のインストール</translation>
    </message>
    <message>
        <source>Files of a previous Windows installation, needed to go back to it</source>
        <translation>以前の Windows のファイル (元のバージョンに戻すときに必要)</translation>
    </message>
    <message>
        <source>Web Cache</source>
        <translation>Web キャッシュ</translation>
    </message>
    <message>
        <source>Windows web cache, downloaded pages and cookies</source>
        <translation>Windows の Web キャッシュ、ダウンロードしたページ、Cookie</translation>
    </message>
    <message>
        <source>Office Cache</source>
        <translation>Office のキャッシュ</translation>
    </message>
    <message>
        <source>Office document cache and unsaved files</source>
        <translation>Office のドキュメント キャッシュと未保存のファイル</translation>
    </message>
    <message>
        <source>Tencent Product Logs</source>
        <translation>Tencent 製品のログ</translation>
    </message>
    <message>
        <source>Log files of Tencent products</source>
        <translation>Tencent 製品のログ ファイル</translation>
    </message>
    <message>
        <source>NVIDIA Cache</source>
        <translation>NVIDIA のキャッシュ</translation>
    </message>
    <message>
        <source>NVIDIA graphics shader cache</source>
        <translation>NVIDIA グラフィックスのシェーダー キャッシュ</translation>
    </message>
    <message>
        <source>AMD Cache</source>
        <translation>AMD のキャッシュ</translation>
    </message>
    <message>
        <source>AMD graphics shader cache</source>
        <translation>AMD グラフィックスのシェーダー キャッシュ</translation>
    </message>
    <message>
        <source>DirectX Shader Cache</source>
        <translation>DirectX シェーダー キャッシュ</translation>
    </message>
    <message>
        <source>Compiled DirectX shaders, made again when needed</source>
        <translation>コンパイル済みの DirectX シェーダー (必要に応じて再作成)</translation>
    </message>
    <message>
        <source>Windows Search Data</source>
        <translation>Windows Search のデータ</translation>
    </message>
    <message>
        <source>Logs of the Windows Search indexer</source>
        <translation>Windows Search インデクサーのログ</translation>
    </message>
    <message>
        <source>Diagnostic Data</source>
        <translation>診断データ</translation>
    </message>
    <message>
        <source>Windows troubleshooting and diagnostic data</source>
        <translation>Windows のトラブルシューティングと診断のデータ</translation>
    </message>
</context>
<context>
    <name>LargeFilePage</name>
    <message>
        <source>Tip</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>Please select at least one drive to scan.</source>
        <translation>スキャンするドライブを 1 つ以上選択してください。</translation>
    </message>
    <message>
        <source>Custom File Size</source>
        <translation>ファイル サイズの指定</translation>
    </message>
    <message>
        <source>Enter minimum file size (MB):</source>
        <translation>最小ファイル サイズ (MB) を入力してください:</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>スキャン完了</translation>
    </message>
    <message>
        <source>No large files found that match the criteria.</source>
        <translation>条件に一致する大容量ファイルは見つかりませんでした。</translation>
    </message>
    <message>
        <source>📂 Open file location</source>
        <translation>📂 ファイルの場所を開く</translation>
    </message>
    <message>
        <source>🗑️ Delete this file</source>
        <translation>🗑️ このファイルを削除</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this file?

%1
Size: %2

This action cannot be undone!</source>
        <translation>このファイルを削除しますか?

%1
サイズ: %2

この操作は元に戻せません。</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>削除の確認</translation>
    </message>
    <message>
        <source>Delete Failed</source>
        <translation>削除できませんでした</translation>
    </message>
    <message>
        <source>Unable to delete this file. It may be in use by another program.</source>
        <translation>このファイルを削除できません。別のプログラムが使用している可能性があります。</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>All files have been deleted</source>
        <translation>すべてのファイルを削除しました</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected %1 files?

Total: %2

This action cannot be undone!</source>
        <translation>選択した %1 個のファイルを削除しますか?

合計: %2

この操作は元に戻せません。</translation>
    </message>
    <message>
        <source>Deleted %1 files successfully.</source>
        <translation>%1 個のファイルを削除しました。</translation>
    </message>
    <message>
        <source> %1 files failed to delete.</source>
        <translation> %1 個のファイルは削除できませんでした。</translation>
    </message>
    <message>
        <source>Delete Completed</source>
        <translation>削除完了</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>操作に失敗しました</translation>
    </message>
</context>
<context>
    <name>LargeFileResultsView</name>
    <message>
        <source>← Back</source>
        <translation>← 戻る</translation>
    </message>
    <message>
        <source>🗑️ Delete Selected</source>
        <translation>🗑️ 選択項目を削除</translation>
    </message>
    <message>
        <source>Scan Results</source>
        <translation>スキャン結果</translation>
    </message>
    <message>
        <source>Found %1 large files, total %2</source>
        <translation>大容量ファイルが %1 個見つかりました (合計 %2)</translation>
    </message>
    <message>
        <source>Selected: %1 files (%2)</source>
        <translation>選択中: %1 個のファイル (%2)</translation>
    </message>
</context>
<context>
    <name>LargeFileSelectionView</name>
    <message>
        <source>Find Large Files</source>
        <translation>大容量ファイルの検索</translation>
    </message>
    <message>
        <source>Scan and clean files that take up a lot of disk space</source>
        <translation>ディスク容量を多く使っているファイルをスキャンして掃除します</translation>
    </message>
    <message>
        <source>Select Scan Location</source>
        <translation>スキャンする場所を選択</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 スキャン開始</translation>
    </message>
    <message>
        <source>Minimum File Size:</source>
        <translation>最小ファイル サイズ:</translation>
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
        <translation>カスタム...</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>構成エラー</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>ページのリンクを読み込めません。

サポートに問い合わせるか、再インストールしてください。</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>ブラウザーを開けません</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>既定のブラウザーを開けません。

次のリンクをコピーして、ブラウザーで開いてください:
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
        <translation>ダッシュボード</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>不要ファイルの掃除</translation>
    </message>
    <message>
        <source>Browser Cleaner</source>
        <translation>ブラウザーの掃除</translation>
    </message>
    <message>
        <source>Registry Cleaner</source>
        <translation>レジストリの掃除</translation>
    </message>
    <message>
        <source>Startup Manager</source>
        <translation>スタートアップ管理</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>大容量ファイル</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>メイン ウィンドウを表示</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Sweepwise - PC Cleaning Tool</source>
        <translation>Sweepwise - PC 掃除ツール</translation>
    </message>
    <message>
        <source>About Sweepwise</source>
        <translation>Sweepwise の製品情報</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Sweepwise - PC Cleaning Tool&lt;/h3&gt;&lt;p&gt;Version %1&lt;/p&gt;&lt;p&gt;Clean your PC with one click!&lt;br&gt;Remove junk files, browser data, and registry issues.&lt;/p&gt;&lt;p&gt;© 2026 Norvak. All rights reserved.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Sweepwise - PC 掃除ツール&lt;/h3&gt;&lt;p&gt;バージョン %1&lt;/p&gt;&lt;p&gt;ワンクリックで PC を掃除!&lt;br&gt;不要ファイル、閲覧データ、レジストリの問題を取り除きます。&lt;/p&gt;&lt;p&gt;© 2026 Norvak. All rights reserved.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Program minimized to system tray. Double-click the icon to restore.</source>
        <translation>プログラムを通知領域に最小化しました。アイコンをダブルクリックすると元に戻ります。</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>A clean is still running. Start the scan when it is over.</source>
        <translation>クリーンアップを実行中です。完了してからスキャンを開始してください。</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Scanning...</source>
        <translation>スキャン中...</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>掃除中...</translation>
    </message>
    <message>
        <source>正在分析系统...</source>
        <translation>システムを分析しています...</translation>
    </message>
    <message>
        <source>正在删除文件...</source>
        <translation>ファイルを削除しています...</translation>
    </message>
    <message>
        <source>%1%</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>已清理: %1</source>
        <translation>掃除済み: %1</translation>
    </message>
    <message>
        <source>完成!</source>
        <translation>完了しました!</translation>
    </message>
    <message>
        <source>操作失败</source>
        <translation>操作に失敗しました</translation>
    </message>
</context>
<context>
    <name>RegistryBackup</name>
    <message>
        <source>There is no such folder</source>
        <translation>該当するフォルダーがありません</translation>
    </message>
    <message>
        <source>It is a file of the registry itself</source>
        <translation>レジストリ自体のファイルです</translation>
    </message>
    <message>
        <source>A folder stands there</source>
        <translation>同じ名前のフォルダーがあります</translation>
    </message>
    <message>
        <source>A link stands there, which leads elsewhere</source>
        <translation>別の場所へのリンクがあります</translation>
    </message>
    <message>
        <source>What stands there is not a file</source>
        <translation>ファイルではないものがあります</translation>
    </message>
</context>
<context>
    <name>RegistryBackupDialog</name>
    <message>
        <source>Backup registry before cleaning (Recommended)</source>
        <translation>掃除の前にレジストリをバックアップする (推奨)</translation>
    </message>
    <message>
        <source>Clean Registry</source>
        <translation>レジストリの掃除</translation>
    </message>
    <message>
        <source>About to clean &lt;b&gt;%1&lt;/b&gt; invalid registry entries</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; 件の無効なレジストリ エントリを掃除します</translation>
    </message>
    <message>
        <source>⚠️ Backup file can be used to restore accidentally deleted registry entries</source>
        <translation>⚠️ 誤って削除したエントリは、バックアップ ファイルから復元できます</translation>
    </message>
    <message>
        <source>Save to:</source>
        <translation>保存先:</translation>
    </message>
    <message>
        <source>Backup file</source>
        <translation>バックアップ ファイル</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>参照...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Start Cleaning</source>
        <translation>掃除開始</translation>
    </message>
    <message>
        <source>Select backup location</source>
        <translation>バックアップの保存先を選択</translation>
    </message>
    <message>
        <source>Registry files (*.reg)</source>
        <translation>レジストリ ファイル (*.reg)</translation>
    </message>
    <message>
        <source>The backup cannot be written here:
%1

%2</source>
        <translation>次の場所にはバックアップを保存できません:
%1

%2</translation>
    </message>
    <message>
        <source>There is a file of this name already:
%1

Replace it?</source>
        <translation>同じ名前のファイルがあります:
%1

置き換えますか?</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>フォルダーを作成できません。</translation>
    </message>
    <message>
        <source>The file is write-protected.</source>
        <translation>ファイルは書き込み禁止になっています。</translation>
    </message>
</context>
<context>
    <name>RegistryChecks</name>
    <message>
        <source>Path: %1</source>
        <translation>パス: %1</translation>
    </message>
    <message>
        <source>Command: %1</source>
        <translation>コマンド: %1</translation>
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
        <translation>フォント ファイル: %1</translation>
    </message>
    <message>
        <source>DLL path: %1</source>
        <translation>DLL のパス: %1</translation>
    </message>
</context>
<context>
    <name>RegistryCleaner</name>
    <message>
        <source>Invalid Software Paths</source>
        <translation>無効なソフトウェア パス</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent locations</source>
        <translation>存在しない場所を指すレジストリ エントリ</translation>
    </message>
    <message>
        <source>Invalid File Associations</source>
        <translation>無効なファイルの関連付け</translation>
    </message>
    <message>
        <source>File associations pointing to missing programs</source>
        <translation>見つからないプログラムを指すファイルの関連付け</translation>
    </message>
    <message>
        <source>Invalid COM/ActiveX</source>
        <translation>無効な COM/ActiveX</translation>
    </message>
    <message>
        <source>Invalid COM components and ActiveX controls</source>
        <translation>無効な COM コンポーネントと ActiveX コントロール</translation>
    </message>
    <message>
        <source>Invalid Font References</source>
        <translation>無効なフォント参照</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent font files</source>
        <translation>存在しないフォント ファイルを指すレジストリ エントリ</translation>
    </message>
    <message>
        <source>Invalid Startup Items</source>
        <translation>無効なスタートアップ項目</translation>
    </message>
    <message>
        <source>Startup items pointing to non-existent programs</source>
        <translation>存在しないプログラムを指すスタートアップ項目</translation>
    </message>
    <message>
        <source>Invalid Shared DLLs</source>
        <translation>無効な共有 DLL</translation>
    </message>
    <message>
        <source>References to non-existent shared DLL files</source>
        <translation>存在しない共有 DLL ファイルへの参照</translation>
    </message>
    <message>
        <source>MUI Cache</source>
        <translation>MUI キャッシュ</translation>
    </message>
    <message>
        <source>Application MUI cache data</source>
        <translation>アプリケーションの MUI キャッシュ データ</translation>
    </message>
    <message>
        <source>Scanning invalid software paths...</source>
        <translation>無効なソフトウェア パスをスキャン中...</translation>
    </message>
    <message>
        <source>Scanning invalid file associations...</source>
        <translation>無効なファイルの関連付けをスキャン中...</translation>
    </message>
    <message>
        <source>Scanning invalid COM components...</source>
        <translation>無効な COM コンポーネントをスキャン中...</translation>
    </message>
    <message>
        <source>Scanning invalid font references...</source>
        <translation>無効なフォント参照をスキャン中...</translation>
    </message>
    <message>
        <source>Scanning invalid startup items...</source>
        <translation>無効なスタートアップ項目をスキャン中...</translation>
    </message>
    <message>
        <source>Scanning invalid shared DLLs...</source>
        <translation>無効な共有 DLL をスキャン中...</translation>
    </message>
    <message>
        <source>Scanning MUI cache...</source>
        <translation>MUI キャッシュをスキャン中...</translation>
    </message>
    <message>
        <source>Its name cannot be told from a path</source>
        <translation>値の名前とパスを区別できません</translation>
    </message>
    <message>
        <source>It has changed since the scan</source>
        <translation>スキャン後に変更されています</translation>
    </message>
    <message>
        <source>It could not be read again before the clean</source>
        <translation>クリーニングの前に読み直せませんでした</translation>
    </message>
</context>
<context>
    <name>RegistryPage</name>
    <message>
        <source>Registry Cleaner</source>
        <translation>レジストリの掃除</translation>
    </message>
    <message>
        <source>Clean invalid registry entries</source>
        <translation>無効なレジストリ エントリを掃除します</translation>
    </message>
    <message>
        <source>Issues Found</source>
        <translation>見つかった問題</translation>
    </message>
    <message>
        <source>选中: --</source>
        <translation>選択中: --</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>没有选中任何项目</source>
        <translation>項目が選択されていません</translation>
    </message>
    <message>
        <source>Entries removed without a backup: %1</source>
        <translation>バックアップなしで削除したエントリ: %1 件</translation>
    </message>
    <message>
        <source>No entries were removed.</source>
        <translation>エントリは削除されませんでした。</translation>
    </message>
    <message>
        <source>The registry backup could not be written:
%1

%2</source>
        <translation>レジストリのバックアップを保存できませんでした:
%1

%2</translation>
    </message>
</context>
<context>
    <name>RegistryRestore</name>
    <message>
        <source>this is not a registry backup</source>
        <translation>レジストリのバックアップではありません</translation>
    </message>
    <message>
        <source>the file breaks off here</source>
        <translation>ファイルがここで途切れています</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>the line does not end where it should</source>
        <translation>行が正しい位置で終わっていません</translation>
    </message>
    <message>
        <source>the key has no end</source>
        <translation>キーが閉じられていません</translation>
    </message>
    <message>
        <source>the key&apos;s path is not complete</source>
        <translation>キーのパスが不完全です</translation>
    </message>
    <message>
        <source>the key lies in no known hive</source>
        <translation>キーのハイブが不明です</translation>
    </message>
    <message>
        <source>there is no key before this line</source>
        <translation>この行より前にキーがありません</translation>
    </message>
    <message>
        <source>this is neither a key nor a value</source>
        <translation>キーでも値でもありません</translation>
    </message>
    <message>
        <source>a value&apos;s name has no value</source>
        <translation>値の名前の後にデータがありません</translation>
    </message>
    <message>
        <source>the kind of the value is not known</source>
        <translation>値の種類が不明です</translation>
    </message>
    <message>
        <source>a backslash stands before something else than a quote or a backslash</source>
        <translation>バックスラッシュ (\) の後に、引用符でもバックスラッシュでもない文字があります</translation>
    </message>
    <message>
        <source>the text has no closing quote</source>
        <translation>文字列の終わりの引用符がありません</translation>
    </message>
    <message>
        <source>eight hexadecimal digits are wanted here</source>
        <translation>ここには 8 桁の 16 進数が必要です</translation>
    </message>
    <message>
        <source>the type of the value is not a number</source>
        <translation>値の種類が数値ではありません</translation>
    </message>
    <message>
        <source>a byte of two hexadecimal digits is wanted here</source>
        <translation>ここには 2 桁の 16 進数で表したバイトが必要です</translation>
    </message>
    <message>
        <source>the list of bytes breaks off</source>
        <translation>バイト列が途切れています</translation>
    </message>
    <message>
        <source>The restoring was cancelled</source>
        <translation>復元はキャンセルされました</translation>
    </message>
</context>
<context>
    <name>RegistryTexts</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not the path of a key</source>
        <translation>「%1」はキーのパスではありません</translation>
    </message>
    <message>
        <source>There is no such key</source>
        <translation>該当するキーがありません</translation>
    </message>
    <message>
        <source>The key is a link to another one</source>
        <translation>このキーは別のキーへのリンクです</translation>
    </message>
    <message>
        <source>There are keys below it</source>
        <translation>このキーにはサブキーがあります</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>該当する値がありません</translation>
    </message>
    <message>
        <source>There is no registry</source>
        <translation>レジストリがありません</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>Windows programs are running in the Wine prefix %1; end them and try again</source>
        <translation>Wine プレフィックス %1 で実行中の Windows プログラムを終了してから、やり直してください</translation>
    </message>
    <message>
        <source>%1 was changed by another program; scan again</source>
        <translation>%1 は別のプログラムによって変更されたため、もう一度スキャンしてください</translation>
    </message>
    <message>
        <source>A value without a name is not written</source>
        <translation>名前のない値は書き込めません</translation>
    </message>
    <message>
        <source>The name or the text cannot be stored as it is</source>
        <translation>名前またはテキストをそのまま保存できません</translation>
    </message>
    <message>
        <source>The registry did not take the value</source>
        <translation>レジストリに値を書き込めませんでした</translation>
    </message>
    <message>
        <source>The registry did not let go of the value</source>
        <translation>レジストリから値を削除できませんでした</translation>
    </message>
    <message>
        <source>A class is changed in the user&apos;s or in the machine&apos;s hive</source>
        <translation>クラスの変更は、ユーザーまたはコンピューターのハイブで行います</translation>
    </message>
    <message>
        <source>It is not a registry file</source>
        <translation>レジストリのファイルではありません</translation>
    </message>
    <message>
        <source>It is damaged</source>
        <translation>破損しています</translation>
    </message>
</context>
<context>
    <name>ResultWidget</name>
    <message>
        <source>Expanded</source>
        <translation>展開済み</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>折りたたみ済み</translation>
    </message>
</context>
<context>
    <name>ScanProgressDialog</name>
    <message>
        <source>Scanning for large files...</source>
        <translation>大容量ファイルをスキャン中...</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>準備中...</translation>
    </message>
    <message>
        <source>Found %1 large files (%2)</source>
        <translation>大容量ファイルが %1 個見つかりました (%2)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Scanning: %1</source>
        <translation>スキャン中: %1</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Start with Windows</source>
        <translation>Windows の起動時に自動的に実行する</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>閉じるときに通知領域へ最小化する</translation>
    </message>
    <message>
        <source>Confirm before cleaning</source>
        <translation>掃除の前に確認する</translation>
    </message>
    <message>
        <source>Auto backup before registry cleaning</source>
        <translation>レジストリの掃除の前に自動的にバックアップする</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>掃除</translation>
    </message>
    <message>
        <source>About</source>
        <translation>製品情報</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>The settings could not be saved:
%1</source>
        <translation>設定を保存できませんでした:
%1</translation>
    </message>
</context>
<context>
    <name>StartupCard</name>
    <message>
        <source>Start %1 automatically</source>
        <translation>%1 を自動的に実行する</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
</context>
<context>
    <name>StartupPage</name>
    <message>
        <source>Startup Manager</source>
        <translation>スタートアップ管理</translation>
    </message>
    <message>
        <source>Check programs to enable auto-start at boot</source>
        <translation>PC の起動時に自動的に実行するプログラムを選択します</translation>
    </message>
    <message>
        <source>%1 programs</source>
        <translation>プログラム %1 個</translation>
    </message>
    <message>
        <source>Search programs...</source>
        <translation>プログラムを検索...</translation>
    </message>
    <message>
        <source>Search programs</source>
        <translation>プログラムを検索</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Checked programs will run automatically at startup</source>
        <translation>チェックしたプログラムは起動時に自動実行されます</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>インストール済みのプログラムをスキャン中...</translation>
    </message>
    <message>
        <source>First load may take a few seconds</source>
        <translation>最初の読み込みには数秒かかることがあります</translation>
    </message>
    <message>
        <source>%1 programs · %2 startup items</source>
        <translation>プログラム %1 個 · スタートアップ項目 %2 個</translation>
    </message>
    <message>
        <source>Failed to add startup item</source>
        <translation>スタートアップ項目を追加できませんでした</translation>
    </message>
    <message>
        <source>Failed to remove startup item</source>
        <translation>スタートアップ項目を削除できませんでした</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>操作に失敗しました</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>About</source>
        <translation>製品情報</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>サポート</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>言語の変更</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>言語を変更しました。

アプリケーションを再起動します。</translation>
    </message>
    <message>
        <source>The application could not be restarted. Please start it again yourself.</source>
        <translation>アプリケーションを再起動できませんでした。手動で起動してください。</translation>
    </message>
    <message>
        <source>The language could not be saved and does not change:
%1</source>
        <translation>言語を保存できなかったため、変更されません:
%1</translation>
    </message>
</context>
<context>
    <name>Worker</name>
    <message>
        <source>The system cannot start another thread. End some programs and try again.</source>
        <translation>システムはこれ以上スレッドを開始できません。いくつかのプログラムを終了して、もう一度お試しください。</translation>
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
