<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>Your Personal System Butler

🧹 Junk Cleaner - Free up valuable disk space
🌐 Browser Cleaner - Protect your privacy
🔧 Registry Cleaner - Boost system performance
⚡ Startup Manager - Speed up boot time</source>
        <translation>나만의 시스템 관리 도우미

🧹 정크 파일 정리 - 소중한 디스크 공간 확보
🌐 브라우저 정리 - 개인 정보 보호
🔧 레지스트리 정리 - 시스템 성능 향상
⚡ 시작 프로그램 관리 - 부팅 시간 단축</translation>
    </message>
    <message>
        <source>© 2026 Norvak. All rights reserved.</source>
        <translatorcomment>same</translatorcomment>
        <translation>© 2026 Norvak. All rights reserved.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>BasePage</name>
    <message>
        <source>Cleanup Tool</source>
        <translation>정리 도구</translation>
    </message>
    <message>
        <source>Scan and clean up unnecessary files</source>
        <translation>불필요한 파일을 검사하고 정리합니다</translation>
    </message>
    <message>
        <source>Cleanable</source>
        <translation>정리 가능</translation>
    </message>
    <message>
        <source>Click &quot;Start Scanning&quot; to find cleanable items</source>
        <translation>정리할 수 있는 항목을 찾으려면 “검사 시작”을 클릭하세요</translation>
    </message>
    <message>
        <source>Start Scanning</source>
        <translation>검사 시작</translation>
    </message>
    <message>
        <source>Clean Now</source>
        <translation>지금 정리</translation>
    </message>
    <message>
        <source>Selected: --</source>
        <translation>선택됨: --</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>No items selected</source>
        <translation>선택한 항목이 없습니다</translation>
    </message>
    <message>
        <source>Confirm Clean</source>
        <translation>정리 확인</translation>
    </message>
    <message>
        <source>Are you sure you want to clean %1 selected items?
This action cannot be undone!</source>
        <translation>선택한 항목 %1개를 정리하시겠습니까?
이 작업은 되돌릴 수 없습니다!</translation>
    </message>
    <message>
        <source>Selected: %1 items, %2</source>
        <translation>선택됨: 항목 %1개, %2</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>항목 %1개</translation>
    </message>
    <message>
        <source>Selected: %1 items</source>
        <translation>선택됨: 항목 %1개</translation>
    </message>
    <message>
        <source>Cleaned %1 items, freed %2</source>
        <translation>항목 %1개 정리됨, %2 확보됨</translation>
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
        <translation>파일을 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>Holds part of a database: removing it loses data saved by the browser, websites or extensions</source>
        <translation>데이터베이스의 일부가 들어 있습니다. 삭제하면 브라우저, 웹사이트 또는 확장 프로그램이 저장한 데이터가 손실됩니다</translation>
    </message>
    <message>
        <source>Belongs to an extension, which does not work without all its files</source>
        <translation>확장 프로그램의 일부입니다. 파일이 모두 있어야 확장 프로그램이 작동합니다</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>목록에 있던 폴더와 다른 폴더입니다</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>Show the data of %1</source>
        <translation>%1 데이터 표시</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>항목 %1개</translation>
    </message>
</context>
<context>
    <name>BrowserPage</name>
    <message>
        <source>Browser Cleaner</source>
        <translation>브라우저 정리</translation>
    </message>
    <message>
        <source>Clean browser cache, cookies and history</source>
        <translation>브라우저 캐시, 쿠키 및 방문 기록을 정리합니다</translation>
    </message>
    <message>
        <source>Cleanable Data</source>
        <translation>정리 가능한 데이터</translation>
    </message>
    <message>
        <source>Select Browser:</source>
        <translation>브라우저 선택:</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>기타</translation>
    </message>
</context>
<context>
    <name>BrowserRule</name>
    <message>
        <source>Browser Cache</source>
        <translation>브라우저 캐시</translation>
    </message>
    <message>
        <source>Temporary web page cache files</source>
        <translation>웹 페이지의 임시 캐시 파일</translation>
    </message>
    <message>
        <source>Code Cache</source>
        <translation>코드 캐시</translation>
    </message>
    <message>
        <source>JavaScript code cache</source>
        <translation>JavaScript 코드 캐시</translation>
    </message>
    <message>
        <source>GPU Cache</source>
        <translation>GPU 캐시</translation>
    </message>
    <message>
        <source>GPU rendering cache</source>
        <translation>GPU 렌더링 캐시</translation>
    </message>
    <message>
        <source>Shader Cache</source>
        <translation>셰이더 캐시</translation>
    </message>
    <message>
        <source>GPU shader compilation cache</source>
        <translation>GPU 셰이더 컴파일 캐시</translation>
    </message>
    <message>
        <source>Service Workers</source>
        <translation>서비스 워커</translation>
    </message>
    <message>
        <source>Service Worker cache</source>
        <translation>서비스 워커 캐시</translation>
    </message>
    <message>
        <source>Media Cache</source>
        <translation>미디어 캐시</translation>
    </message>
    <message>
        <source>Media file cache</source>
        <translation>미디어 파일 캐시</translation>
    </message>
    <message>
        <source>Network Cache</source>
        <translation>네트워크 캐시</translation>
    </message>
    <message>
        <source>HTTP network request cache</source>
        <translation>HTTP 네트워크 요청 캐시</translation>
    </message>
    <message>
        <source>Jump List</source>
        <translation>점프 목록</translation>
    </message>
    <message>
        <source>Taskbar Jump List icon cache</source>
        <translation>작업 표시줄 점프 목록의 아이콘 캐시</translation>
    </message>
    <message>
        <source>Blob Storage</source>
        <translation>Blob 저장소</translation>
    </message>
    <message>
        <source>Temporary binary data storage</source>
        <translation>임시 이진 데이터 저장소</translation>
    </message>
    <message>
        <source>WebRTC Logs</source>
        <translation>WebRTC 로그</translation>
    </message>
    <message>
        <source>Video call debug logs</source>
        <translation>영상 통화 디버그 로그</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>충돌 보고서</translation>
    </message>
    <message>
        <source>Browser crash report files</source>
        <translation>브라우저 충돌 보고서 파일</translation>
    </message>
    <message>
        <source>Browser Logs</source>
        <translation>브라우저 로그</translation>
    </message>
    <message>
        <source>Browser debug and error logs</source>
        <translation>브라우저 디버그 및 오류 로그</translation>
    </message>
    <message>
        <source>Website Thumbnails</source>
        <translation>웹사이트 썸네일</translation>
    </message>
    <message>
        <source>New Tab page website thumbnails</source>
        <translation>새 탭 페이지의 웹사이트 썸네일</translation>
    </message>
    <message>
        <source>Favicon Cache</source>
        <translation>파비콘 캐시</translation>
    </message>
    <message>
        <source>Website icon (favicon) cache</source>
        <translation>웹사이트 아이콘(파비콘) 캐시</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>글꼴 캐시</translation>
    </message>
    <message>
        <source>Web font cache files</source>
        <translation>웹 글꼴 캐시 파일</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>로컬 저장소</translation>
    </message>
    <message>
        <source>Website Local Storage (site settings may be lost)</source>
        <translation>웹사이트 로컬 저장소(사이트 설정이 손실될 수 있음)</translation>
    </message>
    <message>
        <source>IndexedDB</source>
        <translatorcomment>same</translatorcomment>
        <translation>IndexedDB</translation>
    </message>
    <message>
        <source>Website database storage (offline data may be lost)</source>
        <translation>웹사이트 데이터베이스 저장소(오프라인 데이터가 손실될 수 있음)</translation>
    </message>
    <message>
        <source>Cookies</source>
        <translation>쿠키</translation>
    </message>
    <message>
        <source>Website Cookies (requires re-login to all sites)</source>
        <translation>웹사이트 쿠키(모든 사이트에 다시 로그인해야 함)</translation>
    </message>
    <message>
        <source>Browsing History</source>
        <translation>방문 기록</translation>
    </message>
    <message>
        <source>Web browsing history records</source>
        <translation>웹사이트를 방문한 기록</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>다운로드 기록</translation>
    </message>
    <message>
        <source>Download history records (downloaded files are not deleted)</source>
        <translation>파일을 다운로드한 기록(다운로드한 파일은 삭제되지 않음)</translation>
    </message>
    <message>
        <source>Session Data</source>
        <translation>세션 데이터</translation>
    </message>
    <message>
        <source>Current and recent session data (tabs may be lost)</source>
        <translation>현재 및 최근 세션 데이터(탭이 손실될 수 있음)</translation>
    </message>
    <message>
        <source>Form Data</source>
        <translation>양식 데이터</translation>
    </message>
    <message>
        <source>Autofill form data (requires re-entry after cleaning)</source>
        <translation>자동 완성 양식 데이터(정리 후 다시 입력해야 함)</translation>
    </message>
    <message>
        <source>Safe Browsing Data</source>
        <translation>세이프 브라우징 데이터</translation>
    </message>
    <message>
        <source>Safe Browsing protection data (not recommended to clean)</source>
        <translation>세이프 브라우징 보호 데이터(정리하지 않는 것이 좋음)</translation>
    </message>
</context>
<context>
    <name>BrowserSubItem</name>
    <message>
        <source>%1 items</source>
        <translation>항목 %1개</translation>
    </message>
    <message>
        <source>View Details</source>
        <translation>세부 정보 보기</translation>
    </message>
    <message>
        <source>View details of %1</source>
        <translation>%1 세부 정보 보기</translation>
    </message>
</context>
<context>
    <name>CategoryWidget</name>
    <message>
        <source>View Details</source>
        <translation>세부 정보 보기</translation>
    </message>
    <message>
        <source>Show items of %1</source>
        <translation>%1 항목 표시</translation>
    </message>
    <message>
        <source>Load more (%1 remaining)</source>
        <translation>더 보기(%1개 남음)</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>항목 %1개</translation>
    </message>
    <message>
        <source>%1: %2 items, view details</source>
        <translation>%1: 항목 %2개, 세부 정보 보기</translation>
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
        <translation>높음</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>보통</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>낮음</translation>
    </message>
    <message>
        <source>Risk: %1</source>
        <translation>위험도: %1</translation>
    </message>
</context>
<context>
    <name>DashboardResultsPanel</name>
    <message>
        <source>Can be cleaned</source>
        <translation>정리 가능</translation>
    </message>
    <message>
        <source>Keep Your PC Running at Peak Performance</source>
        <translation>PC를 항상 최상의 성능으로 유지하세요</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 검사 시작</translation>
    </message>
    <message>
        <source>🗑️ Clean All</source>
        <translation>🗑️ 모두 정리</translation>
    </message>
    <message>
        <source>Junk Files</source>
        <translation>정크 파일</translation>
    </message>
    <message>
        <source>Browser Data</source>
        <translation>브라우저 데이터</translation>
    </message>
    <message>
        <source>Registry Issues</source>
        <translation>레지스트리 문제</translation>
    </message>
    <message>
        <source>&lt;span style=&apos;font-weight:600;&apos;&gt;Tip:&lt;/span&gt; Regular cleaning can improve your PC performance by up to 30%</source>
        <translation>&lt;span style=&apos;font-weight:600;&apos;&gt;팁:&lt;/span&gt; 정기적으로 정리하면 PC 성능을 최대 30%까지 높일 수 있습니다</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>검사 중...</translation>
    </message>
    <message>
        <source>Ready to scan</source>
        <translation>검사 준비 완료</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>항목 %1개</translation>
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
        <translation>🔍  전체 검사 시작</translation>
    </message>
    <message>
        <source>Ready to Clean Your PC</source>
        <translation>PC를 정리할 준비가 되었습니다</translation>
    </message>
    <message>
        <source>Click the button below to scan for junk files and free up space</source>
        <translation>아래 단추를 클릭하여 정크 파일을 검사하고 공간을 확보하세요</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>준비 중...</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>검사 중...</translation>
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
        <translation>파일 위치 열기</translation>
    </message>
    <message>
        <source>Open file location of %1</source>
        <translation>%1 파일 위치 열기</translation>
    </message>
</context>
<context>
    <name>DriveCard</name>
    <message>
        <source>Local Disk</source>
        <translation>로컬 디스크</translation>
    </message>
    <message>
        <source>%1 (Removable)</source>
        <translation>%1(이동식)</translation>
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
        <translation>사용 중: %1%</translation>
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
        <translation>알림</translation>
    </message>
    <message>
        <source>The file manager could not be started to show this file:
%1</source>
        <translation>파일 관리자를 시작할 수 없어 다음 파일을 표시할 수 없습니다.
%1</translation>
    </message>
    <message>
        <source>This file no longer exists:
%1</source>
        <translation>다음 파일은 더 이상 존재하지 않습니다.
%1</translation>
    </message>
</context>
<context>
    <name>ItemDetailDialog</name>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>%1  |  %2 files</source>
        <translation>%1  |  파일 %2개</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>항목 %1개</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>세부 정보</translation>
    </message>
</context>
<context>
    <name>JunkCleaner</name>
    <message>
        <source>File not found</source>
        <translation>파일을 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>Its folder is not the one that was listed</source>
        <translation>목록에 있던 폴더와 다른 폴더입니다</translation>
    </message>
</context>
<context>
    <name>JunkPage</name>
    <message>
        <source>Junk Cleaner</source>
        <translation>정크 파일 정리</translation>
    </message>
    <message>
        <source>Clean system temp files, cache and logs</source>
        <translation>시스템 임시 파일, 캐시 및 로그를 정리합니다</translation>
    </message>
    <message>
        <source>Cleanable Space</source>
        <translation>정리 가능한 공간</translation>
    </message>
</context>
<context>
    <name>JunkRule</name>
    <message>
        <source>System Temporary Files</source>
        <translation>시스템 임시 파일</translation>
    </message>
    <message>
        <source>Files in Windows Temp folders</source>
        <translation>Windows Temp 폴더의 파일</translation>
    </message>
    <message>
        <source>Prefetch Files</source>
        <translation>프리페치 파일</translation>
    </message>
    <message>
        <source>Windows Prefetch cache files</source>
        <translation>Windows 프리페치 캐시 파일</translation>
    </message>
    <message>
        <source>Thumbnail Cache</source>
        <translation>썸네일 캐시</translation>
    </message>
    <message>
        <source>Explorer thumbnail and icon cache files</source>
        <translation>파일 탐색기의 썸네일 및 아이콘 캐시 파일</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>로그 파일</translation>
    </message>
    <message>
        <source>Windows setup, servicing and device log files</source>
        <translation>Windows 설치, 유지 관리 및 장치 로그 파일</translation>
    </message>
    <message>
        <source>Windows Update Logs</source>
        <translation>Windows 업데이트 로그</translation>
    </message>
    <message>
        <source>Windows Update history and event logs</source>
        <translation>Windows 업데이트 기록 및 이벤트 로그</translation>
    </message>
    <message>
        <source>IIS Log Files</source>
        <translation>IIS 로그 파일</translation>
    </message>
    <message>
        <source>Web server and HTTP error log files</source>
        <translation>웹 서버 및 HTTP 오류 로그 파일</translation>
    </message>
    <message>
        <source>Memory Dumps</source>
        <translation>메모리 덤프</translation>
    </message>
    <message>
        <source>Memory dumps left by system and program crashes</source>
        <translation>시스템 및 프로그램 충돌로 남은 메모리 덤프</translation>
    </message>
    <message>
        <source>Windows Update Cache</source>
        <translation>Windows 업데이트 캐시</translation>
    </message>
    <message>
        <source>Downloaded Windows Update installation files</source>
        <translation>다운로드한 Windows 업데이트 설치 파일</translation>
    </message>
    <message>
        <source>Error Reports</source>
        <translation>오류 보고서</translation>
    </message>
    <message>
        <source>Queued and archived program error reports</source>
        <translation>대기 중이거나 보관된 프로그램 오류 보고서</translation>
    </message>
    <message>
        <source>Delivery Optimization Files</source>
        <translation>배달 최적화 파일</translation>
    </message>
    <message>
        <source>Update files kept for sharing with other PCs</source>
        <translation>다른 PC와 공유하기 위해 보관된 업데이트 파일</translation>
    </message>
    <message>
        <source>Windows Defender Scan History</source>
        <translation>Windows Defender 검사 기록</translation>
    </message>
    <message>
        <source>Windows Defender scan history and definition backups</source>
        <translation>Windows Defender 검사 기록 및 정의 백업</translation>
    </message>
    <message>
        <source>.NET Framework Cache Logs</source>
        <translation>.NET Framework 캐시 로그</translation>
    </message>
    <message>
        <source>.NET temporary web files and usage logs</source>
        <translation>.NET 임시 웹 파일 및 사용 로그</translation>
    </message>
    <message>
        <source>System Integrity Check Logs</source>
        <translation>시스템 무결성 검사 로그</translation>
    </message>
    <message>
        <source>Logs of system file and component checks</source>
        <translation>시스템 파일 및 구성 요소 검사 로그</translation>
    </message>
    <message>
        <source>Installer Cache</source>
        <translation>설치 관리자 캐시</translation>
    </message>
    <message>
        <source>Windows Installer patch cache, needed to uninstall some updates</source>
        <translation>Windows Installer 패치 캐시(일부 업데이트를 제거할 때 필요)</translation>
    </message>
    <message>
        <source>Recent Documents</source>
        <translation>최근 문서</translation>
    </message>
    <message>
        <source>Shortcuts to recently opened documents</source>
        <translation>최근에 연 문서의 바로 가기</translation>
    </message>
    <message>
        <source>Font Cache</source>
        <translation>글꼴 캐시</translation>
    </message>
    <message>
        <source>Windows font cache files</source>
        <translation>Windows 글꼴 캐시 파일</translation>
    </message>
    <message>
        <source>Old Windows Installation</source>
        <translation>이전 Windows 설치</translation>
    </message>
    <message>
        <source>Files of a previous Windows installation, needed to go back to it</source>
        <translation>이전 Windows 설치의 파일(이전 버전으로 돌아갈 때 필요)</translation>
    </message>
    <message>
        <source>Web Cache</source>
        <translation>웹 캐시</translation>
    </message>
    <message>
        <source>Windows web cache, downloaded pages and cookies</source>
        <translation>Windows 웹 캐시, 다운로드한 페이지 및 쿠키</translation>
    </message>
    <message>
        <source>Office Cache</source>
        <translation>Office 캐시</translation>
    </message>
    <message>
        <source>Office document cache and unsaved files</source>
        <translation>Office 문서 캐시 및 저장하지 않은 파일</translation>
    </message>
    <message>
        <source>Tencent Product Logs</source>
        <translation>Tencent 제품 로그</translation>
    </message>
    <message>
        <source>Log files of Tencent products</source>
        <translation>Tencent 제품의 로그 파일</translation>
    </message>
    <message>
        <source>NVIDIA Cache</source>
        <translation>NVIDIA 캐시</translation>
    </message>
    <message>
        <source>NVIDIA graphics shader cache</source>
        <translation>NVIDIA 그래픽 셰이더 캐시</translation>
    </message>
    <message>
        <source>AMD Cache</source>
        <translation>AMD 캐시</translation>
    </message>
    <message>
        <source>AMD graphics shader cache</source>
        <translation>AMD 그래픽 셰이더 캐시</translation>
    </message>
    <message>
        <source>DirectX Shader Cache</source>
        <translation>DirectX 셰이더 캐시</translation>
    </message>
    <message>
        <source>Compiled DirectX shaders, made again when needed</source>
        <translation>컴파일된 DirectX 셰이더(필요할 때 다시 생성됨)</translation>
    </message>
    <message>
        <source>Windows Search Data</source>
        <translation>Windows Search 데이터</translation>
    </message>
    <message>
        <source>Logs of the Windows Search indexer</source>
        <translation>Windows Search 인덱서 로그</translation>
    </message>
    <message>
        <source>Diagnostic Data</source>
        <translation>진단 데이터</translation>
    </message>
    <message>
        <source>Windows troubleshooting and diagnostic data</source>
        <translation>Windows 문제 해결 및 진단 데이터</translation>
    </message>
</context>
<context>
    <name>LargeFilePage</name>
    <message>
        <source>Tip</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>Please select at least one drive to scan.</source>
        <translation>검사할 드라이브를 하나 이상 선택하세요.</translation>
    </message>
    <message>
        <source>Custom File Size</source>
        <translation>사용자 지정 파일 크기</translation>
    </message>
    <message>
        <source>Enter minimum file size (MB):</source>
        <translation>최소 파일 크기(MB) 입력:</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>검사 완료</translation>
    </message>
    <message>
        <source>No large files found that match the criteria.</source>
        <translation>조건에 맞는 대용량 파일이 없습니다.</translation>
    </message>
    <message>
        <source>📂 Open file location</source>
        <translation>📂 파일 위치 열기</translation>
    </message>
    <message>
        <source>🗑️ Delete this file</source>
        <translation>🗑️ 이 파일 삭제</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this file?

%1
Size: %2

This action cannot be undone!</source>
        <translation>이 파일을 삭제하시겠습니까?

%1
크기: %2

이 작업은 되돌릴 수 없습니다!</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>삭제 확인</translation>
    </message>
    <message>
        <source>Delete Failed</source>
        <translation>삭제 실패</translation>
    </message>
    <message>
        <source>Unable to delete this file. It may be in use by another program.</source>
        <translation>이 파일을 삭제할 수 없습니다. 다른 프로그램에서 사용 중일 수 있습니다.</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>All files have been deleted</source>
        <translation>모든 파일을 삭제했습니다</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected %1 files?

Total: %2

This action cannot be undone!</source>
        <translation>선택한 파일 %1개를 삭제하시겠습니까?

총 크기: %2

이 작업은 되돌릴 수 없습니다!</translation>
    </message>
    <message>
        <source>Deleted %1 files successfully.</source>
        <translation>파일 %1개를 삭제했습니다.</translation>
    </message>
    <message>
        <source> %1 files failed to delete.</source>
        <translation> 파일 %1개는 삭제하지 못했습니다.</translation>
    </message>
    <message>
        <source>Delete Completed</source>
        <translation>삭제 완료</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>작업 실패</translation>
    </message>
</context>
<context>
    <name>LargeFileResultsView</name>
    <message>
        <source>← Back</source>
        <translation>← 뒤로</translation>
    </message>
    <message>
        <source>🗑️ Delete Selected</source>
        <translation>🗑️ 선택한 파일 삭제</translation>
    </message>
    <message>
        <source>Scan Results</source>
        <translation>검사 결과</translation>
    </message>
    <message>
        <source>Found %1 large files, total %2</source>
        <translation>대용량 파일 %1개 발견, 총 %2</translation>
    </message>
    <message>
        <source>Selected: %1 files (%2)</source>
        <translation>선택됨: 파일 %1개(%2)</translation>
    </message>
</context>
<context>
    <name>LargeFileSelectionView</name>
    <message>
        <source>Find Large Files</source>
        <translation>대용량 파일 찾기</translation>
    </message>
    <message>
        <source>Scan and clean files that take up a lot of disk space</source>
        <translation>디스크 공간을 많이 차지하는 파일을 검사하고 정리합니다</translation>
    </message>
    <message>
        <source>Select Scan Location</source>
        <translation>검사 위치 선택</translation>
    </message>
    <message>
        <source>🔍 Start Scan</source>
        <translation>🔍 검사 시작</translation>
    </message>
    <message>
        <source>Minimum File Size:</source>
        <translation>최소 파일 크기:</translation>
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
        <translation>사용자 지정...</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>구성 오류</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>페이지 링크를 불러올 수 없습니다.

기술 지원에 문의하거나 소프트웨어를 다시 설치하세요.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>브라우저를 열 수 없음</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>기본 브라우저를 열 수 없습니다.

다음 링크를 복사하여 직접 접속하세요:
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
        <translation>대시보드</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>정크 파일 정리</translation>
    </message>
    <message>
        <source>Browser Cleaner</source>
        <translation>브라우저 정리</translation>
    </message>
    <message>
        <source>Registry Cleaner</source>
        <translation>레지스트리 정리</translation>
    </message>
    <message>
        <source>Startup Manager</source>
        <translation>시작 프로그램 관리</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>대용량 파일</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>메인 창 표시</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Sweepwise - PC Cleaning Tool</source>
        <translation>Sweepwise - PC 정리 도구</translation>
    </message>
    <message>
        <source>About Sweepwise</source>
        <translation>Sweepwise 정보</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Sweepwise - PC Cleaning Tool&lt;/h3&gt;&lt;p&gt;Version %1&lt;/p&gt;&lt;p&gt;Clean your PC with one click!&lt;br&gt;Remove junk files, browser data, and registry issues.&lt;/p&gt;&lt;p&gt;© 2026 Norvak. All rights reserved.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Sweepwise - PC 정리 도구&lt;/h3&gt;&lt;p&gt;버전 %1&lt;/p&gt;&lt;p&gt;클릭 한 번으로 PC를 정리하세요!&lt;br&gt;정크 파일, 브라우저 데이터 및 레지스트리 문제를 제거합니다.&lt;/p&gt;&lt;p&gt;© 2026 Norvak. All rights reserved.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Program minimized to system tray. Double-click the icon to restore.</source>
        <translation>프로그램이 시스템 트레이로 최소화되었습니다. 다시 열려면 아이콘을 두 번 클릭하세요.</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>A clean is still running. Start the scan when it is over.</source>
        <translation>정리가 아직 진행 중입니다. 완료된 후 검사를 시작하세요.</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Scanning...</source>
        <translation>검사 중...</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>정리 중...</translation>
    </message>
    <message>
        <source>正在分析系统...</source>
        <translation>시스템 분석 중...</translation>
    </message>
    <message>
        <source>正在删除文件...</source>
        <translation>파일 삭제 중...</translation>
    </message>
    <message>
        <source>%1%</source>
        <translatorcomment>same</translatorcomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>已清理: %1</source>
        <translation>정리됨: %1</translation>
    </message>
    <message>
        <source>完成!</source>
        <translation>완료!</translation>
    </message>
    <message>
        <source>操作失败</source>
        <translation>작업 실패</translation>
    </message>
</context>
<context>
    <name>RegistryBackup</name>
    <message>
        <source>There is no such folder</source>
        <translation>해당 폴더가 없습니다</translation>
    </message>
    <message>
        <source>It is a file of the registry itself</source>
        <translation>레지스트리 자체의 파일입니다</translation>
    </message>
    <message>
        <source>A folder stands there</source>
        <translation>같은 이름의 폴더가 있습니다</translation>
    </message>
    <message>
        <source>A link stands there, which leads elsewhere</source>
        <translation>다른 위치로 연결되는 링크가 있습니다</translation>
    </message>
    <message>
        <source>What stands there is not a file</source>
        <translation>파일이 아닌 항목이 있습니다</translation>
    </message>
</context>
<context>
    <name>RegistryBackupDialog</name>
    <message>
        <source>Backup registry before cleaning (Recommended)</source>
        <translation>정리하기 전에 레지스트리 백업(권장)</translation>
    </message>
    <message>
        <source>Clean Registry</source>
        <translation>레지스트리 정리</translation>
    </message>
    <message>
        <source>About to clean &lt;b&gt;%1&lt;/b&gt; invalid registry entries</source>
        <translation>잘못된 레지스트리 항목 &lt;b&gt;%1&lt;/b&gt;개를 정리합니다</translation>
    </message>
    <message>
        <source>⚠️ Backup file can be used to restore accidentally deleted registry entries</source>
        <translation>⚠️ 실수로 삭제한 레지스트리 항목을 백업 파일로 복원할 수 있습니다</translation>
    </message>
    <message>
        <source>Save to:</source>
        <translation>저장 위치:</translation>
    </message>
    <message>
        <source>Backup file</source>
        <translation>백업 파일</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>찾아보기...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Start Cleaning</source>
        <translation>정리 시작</translation>
    </message>
    <message>
        <source>Select backup location</source>
        <translation>백업 위치 선택</translation>
    </message>
    <message>
        <source>Registry files (*.reg)</source>
        <translation>레지스트리 파일(*.reg)</translation>
    </message>
    <message>
        <source>The backup cannot be written here:
%1

%2</source>
        <translation>다음 위치에는 백업을 저장할 수 없습니다.
%1

%2</translation>
    </message>
    <message>
        <source>There is a file of this name already:
%1

Replace it?</source>
        <translation>같은 이름의 파일이 있습니다.
%1

바꾸시겠습니까?</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>폴더를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>The file is write-protected.</source>
        <translation>파일이 쓰기 금지되어 있습니다.</translation>
    </message>
</context>
<context>
    <name>RegistryChecks</name>
    <message>
        <source>Path: %1</source>
        <translation>경로: %1</translation>
    </message>
    <message>
        <source>Command: %1</source>
        <translation>명령: %1</translation>
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
        <translation>글꼴 파일: %1</translation>
    </message>
    <message>
        <source>DLL path: %1</source>
        <translation>DLL 경로: %1</translation>
    </message>
</context>
<context>
    <name>RegistryCleaner</name>
    <message>
        <source>Invalid Software Paths</source>
        <translation>잘못된 소프트웨어 경로</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent locations</source>
        <translation>존재하지 않는 위치를 가리키는 레지스트리 항목</translation>
    </message>
    <message>
        <source>Invalid File Associations</source>
        <translation>잘못된 파일 연결</translation>
    </message>
    <message>
        <source>File associations pointing to missing programs</source>
        <translation>존재하지 않는 프로그램을 가리키는 파일 연결</translation>
    </message>
    <message>
        <source>Invalid COM/ActiveX</source>
        <translation>잘못된 COM/ActiveX</translation>
    </message>
    <message>
        <source>Invalid COM components and ActiveX controls</source>
        <translation>잘못된 COM 구성 요소 및 ActiveX 컨트롤</translation>
    </message>
    <message>
        <source>Invalid Font References</source>
        <translation>잘못된 글꼴 참조</translation>
    </message>
    <message>
        <source>Registry entries pointing to non-existent font files</source>
        <translation>존재하지 않는 글꼴 파일을 가리키는 레지스트리 항목</translation>
    </message>
    <message>
        <source>Invalid Startup Items</source>
        <translation>잘못된 시작 프로그램 항목</translation>
    </message>
    <message>
        <source>Startup items pointing to non-existent programs</source>
        <translation>존재하지 않는 프로그램을 가리키는 시작 프로그램 항목</translation>
    </message>
    <message>
        <source>Invalid Shared DLLs</source>
        <translation>잘못된 공유 DLL</translation>
    </message>
    <message>
        <source>References to non-existent shared DLL files</source>
        <translation>존재하지 않는 공유 DLL 파일에 대한 참조</translation>
    </message>
    <message>
        <source>MUI Cache</source>
        <translation>MUI 캐시</translation>
    </message>
    <message>
        <source>Application MUI cache data</source>
        <translation>응용 프로그램 MUI 캐시 데이터</translation>
    </message>
    <message>
        <source>Scanning invalid software paths...</source>
        <translation>잘못된 소프트웨어 경로 검사 중...</translation>
    </message>
    <message>
        <source>Scanning invalid file associations...</source>
        <translation>잘못된 파일 연결 검사 중...</translation>
    </message>
    <message>
        <source>Scanning invalid COM components...</source>
        <translation>잘못된 COM 구성 요소 검사 중...</translation>
    </message>
    <message>
        <source>Scanning invalid font references...</source>
        <translation>잘못된 글꼴 참조 검사 중...</translation>
    </message>
    <message>
        <source>Scanning invalid startup items...</source>
        <translation>잘못된 시작 프로그램 항목 검사 중...</translation>
    </message>
    <message>
        <source>Scanning invalid shared DLLs...</source>
        <translation>잘못된 공유 DLL 검사 중...</translation>
    </message>
    <message>
        <source>Scanning MUI cache...</source>
        <translation>MUI 캐시 검사 중...</translation>
    </message>
    <message>
        <source>Its name cannot be told from a path</source>
        <translation>이름을 경로와 구분할 수 없습니다</translation>
    </message>
    <message>
        <source>It has changed since the scan</source>
        <translation>검사 후 변경되었습니다</translation>
    </message>
    <message>
        <source>It could not be read again before the clean</source>
        <translation>정리하기 전에 다시 읽을 수 없었습니다</translation>
    </message>
</context>
<context>
    <name>RegistryPage</name>
    <message>
        <source>Registry Cleaner</source>
        <translation>레지스트리 정리</translation>
    </message>
    <message>
        <source>Clean invalid registry entries</source>
        <translation>잘못된 레지스트리 항목을 정리합니다</translation>
    </message>
    <message>
        <source>Issues Found</source>
        <translation>발견된 문제</translation>
    </message>
    <message>
        <source>选中: --</source>
        <translation>선택됨: --</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>没有选中任何项目</source>
        <translation>선택한 항목이 없습니다</translation>
    </message>
    <message>
        <source>Entries removed without a backup: %1</source>
        <translation>백업 없이 제거된 항목: %1개</translation>
    </message>
    <message>
        <source>No entries were removed.</source>
        <translation>제거된 항목이 없습니다.</translation>
    </message>
    <message>
        <source>The registry backup could not be written:
%1

%2</source>
        <translation>레지스트리 백업을 저장하지 못했습니다.
%1

%2</translation>
    </message>
</context>
<context>
    <name>RegistryRestore</name>
    <message>
        <source>this is not a registry backup</source>
        <translation>레지스트리 백업이 아닙니다</translation>
    </message>
    <message>
        <source>the file breaks off here</source>
        <translation>파일이 여기에서 끊겼습니다</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1번째 줄: %2</translation>
    </message>
    <message>
        <source>the line does not end where it should</source>
        <translation>줄이 끝나야 할 곳에서 끝나지 않습니다</translation>
    </message>
    <message>
        <source>the key has no end</source>
        <translation>키를 닫는 대괄호가 없습니다</translation>
    </message>
    <message>
        <source>the key&apos;s path is not complete</source>
        <translation>키 경로가 완전하지 않습니다</translation>
    </message>
    <message>
        <source>the key lies in no known hive</source>
        <translation>키가 알려진 하이브에 속하지 않습니다</translation>
    </message>
    <message>
        <source>there is no key before this line</source>
        <translation>이 줄 앞에 키가 없습니다</translation>
    </message>
    <message>
        <source>this is neither a key nor a value</source>
        <translation>키도 값도 아닙니다</translation>
    </message>
    <message>
        <source>a value&apos;s name has no value</source>
        <translation>값 이름 뒤에 데이터가 없습니다</translation>
    </message>
    <message>
        <source>the kind of the value is not known</source>
        <translation>값의 종류를 알 수 없습니다</translation>
    </message>
    <message>
        <source>a backslash stands before something else than a quote or a backslash</source>
        <translation>백슬래시 뒤에는 따옴표나 백슬래시만 올 수 있습니다</translation>
    </message>
    <message>
        <source>the text has no closing quote</source>
        <translation>텍스트를 닫는 따옴표가 없습니다</translation>
    </message>
    <message>
        <source>eight hexadecimal digits are wanted here</source>
        <translation>여기에는 16진수 8자리가 필요합니다</translation>
    </message>
    <message>
        <source>the type of the value is not a number</source>
        <translation>값의 종류가 숫자가 아닙니다</translation>
    </message>
    <message>
        <source>a byte of two hexadecimal digits is wanted here</source>
        <translation>여기에는 16진수 2자리로 된 바이트가 필요합니다</translation>
    </message>
    <message>
        <source>the list of bytes breaks off</source>
        <translation>바이트 목록이 중간에 끊겼습니다</translation>
    </message>
    <message>
        <source>The restoring was cancelled</source>
        <translation>복원이 취소되었습니다</translation>
    </message>
</context>
<context>
    <name>RegistryTexts</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not the path of a key</source>
        <translation>“%1”은(는) 키 경로가 아닙니다</translation>
    </message>
    <message>
        <source>There is no such key</source>
        <translation>해당 키가 없습니다</translation>
    </message>
    <message>
        <source>The key is a link to another one</source>
        <translation>이 키는 다른 키에 대한 링크입니다</translation>
    </message>
    <message>
        <source>There are keys below it</source>
        <translation>하위 키가 있습니다</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>해당 값이 없습니다</translation>
    </message>
    <message>
        <source>There is no registry</source>
        <translation>레지스트리가 없습니다</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1에 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Windows programs are running in the Wine prefix %1; end them and try again</source>
        <translation>Wine 프리픽스 %1에서 Windows 프로그램이 실행 중입니다. 종료한 후 다시 시도하세요</translation>
    </message>
    <message>
        <source>%1 was changed by another program; scan again</source>
        <translation>다른 프로그램이 %1을(를) 변경했습니다. 다시 검사하세요</translation>
    </message>
    <message>
        <source>A value without a name is not written</source>
        <translation>이름이 없는 값은 기록할 수 없습니다</translation>
    </message>
    <message>
        <source>The name or the text cannot be stored as it is</source>
        <translation>이름이나 텍스트를 그대로 저장할 수 없습니다</translation>
    </message>
    <message>
        <source>The registry did not take the value</source>
        <translation>레지스트리에 값이 기록되지 않았습니다</translation>
    </message>
    <message>
        <source>The registry did not let go of the value</source>
        <translation>레지스트리에서 값이 삭제되지 않았습니다</translation>
    </message>
    <message>
        <source>A class is changed in the user&apos;s or in the machine&apos;s hive</source>
        <translation>클래스는 사용자 또는 컴퓨터의 하이브에서 변경합니다</translation>
    </message>
    <message>
        <source>It is not a registry file</source>
        <translation>레지스트리 파일이 아닙니다</translation>
    </message>
    <message>
        <source>It is damaged</source>
        <translation>손상되었습니다</translation>
    </message>
</context>
<context>
    <name>ResultWidget</name>
    <message>
        <source>Expanded</source>
        <translation>펼쳐짐</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>접힘</translation>
    </message>
</context>
<context>
    <name>ScanProgressDialog</name>
    <message>
        <source>Scanning for large files...</source>
        <translation>대용량 파일 검사 중...</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>준비 중...</translation>
    </message>
    <message>
        <source>Found %1 large files (%2)</source>
        <translation>대용량 파일 %1개 발견(%2)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Scanning: %1</source>
        <translation>검사 중: %1</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Start with Windows</source>
        <translation>Windows 시작 시 자동 실행</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>닫을 때 트레이로 최소화</translation>
    </message>
    <message>
        <source>Confirm before cleaning</source>
        <translation>정리하기 전에 확인</translation>
    </message>
    <message>
        <source>Auto backup before registry cleaning</source>
        <translation>레지스트리를 정리하기 전에 자동 백업</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>정리</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>The settings could not be saved:
%1</source>
        <translation>설정을 저장하지 못했습니다.
%1</translation>
    </message>
</context>
<context>
    <name>StartupCard</name>
    <message>
        <source>Start %1 automatically</source>
        <translation>%1 자동 실행</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>사용</translation>
    </message>
</context>
<context>
    <name>StartupPage</name>
    <message>
        <source>Startup Manager</source>
        <translation>시작 프로그램 관리</translation>
    </message>
    <message>
        <source>Check programs to enable auto-start at boot</source>
        <translation>부팅할 때 자동으로 실행할 프로그램을 선택하세요</translation>
    </message>
    <message>
        <source>%1 programs</source>
        <translation>프로그램 %1개</translation>
    </message>
    <message>
        <source>Search programs...</source>
        <translation>프로그램 검색...</translation>
    </message>
    <message>
        <source>Search programs</source>
        <translation>프로그램 검색</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>새로 고침</translation>
    </message>
    <message>
        <source>Checked programs will run automatically at startup</source>
        <translation>선택한 프로그램은 부팅할 때 자동으로 실행됩니다</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>설치된 프로그램 검사 중...</translation>
    </message>
    <message>
        <source>First load may take a few seconds</source>
        <translation>처음 불러올 때는 몇 초 정도 걸릴 수 있습니다</translation>
    </message>
    <message>
        <source>%1 programs · %2 startup items</source>
        <translation>프로그램 %1개 · 시작 프로그램 %2개</translation>
    </message>
    <message>
        <source>Failed to add startup item</source>
        <translation>시작 프로그램을 추가하지 못했습니다</translation>
    </message>
    <message>
        <source>Failed to remove startup item</source>
        <translation>시작 프로그램을 제거하지 못했습니다</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>작업 실패</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Menu</source>
        <translation>메뉴</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>최대화</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>이전 크기로 복원</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>지원</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>언어 변경됨</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>언어가 변경되었습니다.

지금 프로그램을 다시 시작합니다.</translation>
    </message>
    <message>
        <source>The application could not be restarted. Please start it again yourself.</source>
        <translation>프로그램을 다시 시작할 수 없습니다. 직접 다시 실행하세요.</translation>
    </message>
    <message>
        <source>The language could not be saved and does not change:
%1</source>
        <translation>언어를 저장하지 못하여 변경되지 않습니다.
%1</translation>
    </message>
</context>
<context>
    <name>Worker</name>
    <message>
        <source>The system cannot start another thread. End some programs and try again.</source>
        <translation>시스템이 스레드를 더 시작할 수 없습니다. 일부 프로그램을 종료하고 다시 시도하세요.</translation>
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
