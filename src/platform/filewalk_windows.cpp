#include "filewalk.h"

#include "namefilter.h"
#include "openentry_windows.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include <windows.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

qint64 sizeOf(DWORD high, DWORD low)
{
    return static_cast<qint64>((static_cast<quint64>(high) << 32) | low);
}

/// Owns a search for the entries of a folder.
class FolderSearch
{
    Q_DISABLE_COPY_MOVE(FolderSearch)
public:
    explicit FolderSearch(const QString &pattern)
        : m_handle(::FindFirstFileExW(reinterpret_cast<const wchar_t *>(pattern.utf16()),
                                      FindExInfoBasic, &m_data, FindExSearchNameMatch, nullptr,
                                      FIND_FIRST_EX_LARGE_FETCH))
        , m_hasEntry(m_handle != INVALID_HANDLE_VALUE)
    {
    }
    ~FolderSearch()
    {
        if (m_handle != INVALID_HANDLE_VALUE)
            ::FindClose(m_handle);
    }

    [[nodiscard]] bool hasEntry() const { return m_hasEntry; }
    [[nodiscard]] const WIN32_FIND_DATAW &entry() const { return m_data; }
    void next() { m_hasEntry = ::FindNextFileW(m_handle, &m_data) != 0; }

private:
    WIN32_FIND_DATAW m_data{};
    HANDLE m_handle;
    bool m_hasEntry;
};

/// Walks one tree by path. A folder that is exchanged for a link while the walk runs may have what
/// is behind it listed; the remover's own check keeps that from being removed.
class Walk
{
public:
    Walk(const WalkOptions &options, const FileVisitor &visit)
        : m_options(options)
        , m_filter(options.nameFilters)
        , m_visit(visit)
    {
    }

    WalkReport run(const QString &root)
    {
        const QString top = root.endsWith(u'/') ? root.chopped(1) : root;
        // What is no absolute path must not become one: a bare pattern lists the current drive.
        if (extendedPath(asRoot(top)).isEmpty()) {
            addFailure(root, ERROR_INVALID_NAME);
            return std::move(m_report);
        }
        if (inspect(asRoot(top)).kind == EntryKind::Link) {
            addFailure(root, linkOnTheWay);
            return std::move(m_report);
        }
        m_pending.push_back(top);
        while (!m_pending.empty() && !isStopped()) {
            const QString folder = std::move(m_pending.back());
            m_pending.pop_back();
            readFolder(folder);
        }
        return std::move(m_report);
    }

private:
    // Without its slash a drive would be whatever folder is current on it.
    static QString asRoot(const QString &folder)
    {
        return folder.endsWith(u':') ? folder + u'/' : folder;
    }

    bool isStopped() const
    {
        return m_options.stopRequested && m_options.stopRequested->load(std::memory_order_relaxed);
    }

    void addFailure(const QString &path, DWORD error)
    {
        if (++m_report.failureCount <= WalkReport::maximumFailures)
            m_report.failures.append({path, reasonOf(error)});
    }

    void readFolder(const QString &folder)
    {
        const std::size_t firstSubfolder = m_pending.size();
        QString pattern = extendedPath(asRoot(folder));
        pattern += pattern.endsWith(u'\\') ? "*"_L1 : "\\*"_L1;
        FolderSearch search(pattern);
        for (; search.hasEntry(); search.next()) {
            if (isStopped())
                return;
            readEntry(folder, search.entry());
        }
        // A folder that is gone since its parent was read is no failure, nor is an empty drive.
        const DWORD error = ::GetLastError();
        if (error != ERROR_NO_MORE_FILES && !isMissing(error))
            addFailure(folder, error);
        // The last one pushed is read first; reversed, subfolders come in the order of their
        // parent's listing.
        std::reverse(m_pending.begin() + static_cast<std::ptrdiff_t>(firstSubfolder),
                     m_pending.end());
    }

    void readEntry(const QString &folder, const WIN32_FIND_DATAW &entry)
    {
        constexpr DWORD leftOut = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
        if ((entry.dwFileAttributes & leftOut) != 0)
            return;
        QString name = QString::fromWCharArray(entry.cFileName);
        switch (natureOf(entry.dwFileAttributes, entry.dwReserved0)) {
        case EntryNature::Folder:
            if (m_options.recursive && name != "."_L1 && name != ".."_L1)
                m_pending.push_back(joined(folder, name));
            return;
        case EntryNature::File:
            if (m_filter.matches(name))
                visit(folder, std::move(name), sizeOf(entry.nFileSizeHigh, entry.nFileSizeLow));
            return;
        case EntryNature::FileLink:
            if (m_filter.matches(name)) {
                if (const std::optional<qint64> size = targetSize(joined(folder, name)))
                    visit(folder, std::move(name), *size);
            }
            return;
        case EntryNature::FolderLink:
        case EntryNature::Special:
            return;
        }
    }

    void visit(const QString &folder, QString name, qint64 size)
    {
        QString path = joined(folder, name);
        m_visit({std::move(name), std::move(path), size});
    }

    /// Nothing when the link leads to no file.
    static std::optional<qint64> targetSize(const QString &link)
    {
        const UniqueHandle target =
            openEntry(extendedPath(link), FILE_READ_ATTRIBUTES, Links::Follow);
        FILE_STANDARD_INFO info{};
        if (!target.isValid() || ::GetFileType(target.get()) != FILE_TYPE_DISK
            || !::GetFileInformationByHandleEx(target.get(), FileStandardInfo, &info, sizeof info)
            || info.Directory)
            return {};
        return info.EndOfFile.QuadPart;
    }

    static QString joined(const QString &folder, const QString &name)
    {
        QString path;
        path.reserve(folder.size() + 1 + name.size());
        path += folder;
        path += u'/';
        path += name;
        return path;
    }

    const WalkOptions &m_options;
    const NameFilter m_filter;
    const FileVisitor &m_visit;
    std::vector<QString> m_pending; ///< with forward slashes, none at the end
    WalkReport m_report;
};

} // namespace

Entry inspect(const QString &path)
{
    const QString extended = extendedPath(path);
    if (extended.isEmpty())
        return {};
    const UniqueHandle entry = openEntry(extended, FILE_READ_ATTRIBUTES, Links::Open);
    if (!entry.isValid())
        return {isMissing(::GetLastError()) ? EntryKind::Missing : EntryKind::Other, 0};
    if (PlaceCheck().placeOf(entry, extended) == PlaceCheck::Place::Elsewhere)
        return {EntryKind::Link, 0};
    const std::optional<EntryAttributes> attributes = attributesOf(entry);
    FILE_STANDARD_INFO standard{};
    if (!attributes || ::GetFileType(entry.get()) != FILE_TYPE_DISK
        || !::GetFileInformationByHandleEx(entry.get(), FileStandardInfo, &standard,
                                           sizeof standard))
        return {EntryKind::Other, 0};
    switch (attributes->nature) {
    case EntryNature::File:
        return {EntryKind::File, standard.EndOfFile.QuadPart};
    case EntryNature::Folder:
        return {EntryKind::Folder, 0};
    case EntryNature::FileLink:
    case EntryNature::FolderLink:
        return {EntryKind::Link, 0};
    case EntryNature::Special:
        break;
    }
    return {EntryKind::Other, 0};
}

WalkReport walkFiles(const QString &root, const WalkOptions &options, const FileVisitor &visit)
{
    return Walk(options, visit).run(root);
}

} // namespace platform
