#pragma once

#include "windows/openentry.h"

#include <QString>

#include <atomic>

#include <windows.h>

namespace platform {

/// Reads the entries of folders, one folder after the other. A walker, a listing or a removal owns
/// one and uses it on its own thread. The system reads many entries ahead.
class FolderReader final
{
    Q_DISABLE_COPY_MOVE(FolderReader)
public:
    /// Reading ends when @p stopRequested is set, which may be null.
    explicit FolderReader(const std::atomic_bool *stopRequested)
        : m_stopRequested(stopRequested)
    {
    }
    ~FolderReader() { close(); }

    /// Starts with the folder at an extended path. Returns false if it cannot be opened; then
    /// error() tells why and next() returns null.
    bool begin(const QString &folder)
    {
        close();
        QString pattern = folder;
        if (!pattern.endsWith(u'\\'))
            pattern += u'\\';
        pattern += u'*';
        m_search =
            ::FindFirstFileExW(reinterpret_cast<const wchar_t *>(pattern.utf16()), FindExInfoBasic,
                               &m_entry, FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
        m_error = isOpen() ? ERROR_SUCCESS : lastError();
        m_isFirst = true;
        return isOpen();
    }

    /// The next entry other than "." and "..", valid until the next call. At the end of the folder,
    /// on failure, and after a stop it is null and the folder is closed.
    [[nodiscard]] const WIN32_FIND_DATAW *next()
    {
        while (isOpen() && !isStopped() && advance()) {
            if (!isFolderOrParent(m_entry.cFileName))
                return &m_entry;
        }
        close();
        return nullptr;
    }

    /// The system's error that ended reading, else ERROR_SUCCESS.
    [[nodiscard]] DWORD error() const { return m_error; }

private:
    bool isOpen() const { return m_search != INVALID_HANDLE_VALUE; }

    bool isStopped() const
    {
        return m_stopRequested && m_stopRequested->load(std::memory_order_relaxed);
    }

    // The call that opened the folder has already read the first entry.
    bool advance()
    {
        if (m_isFirst) {
            m_isFirst = false;
            return true;
        }
        if (::FindNextFileW(m_search, &m_entry))
            return true;
        m_error = lastError();
        return false;
    }

    static DWORD lastError()
    {
        const DWORD error = ::GetLastError();
        return error == ERROR_NO_MORE_FILES ? ERROR_SUCCESS : error;
    }

    void close()
    {
        if (isOpen())
            ::FindClose(m_search);
        m_search = INVALID_HANDLE_VALUE;
    }

    static bool isFolderOrParent(const wchar_t *name)
    {
        return name[0] == L'.' && (name[1] == L'\0' || (name[1] == L'.' && name[2] == L'\0'));
    }

    const std::atomic_bool *const m_stopRequested;
    HANDLE m_search = INVALID_HANDLE_VALUE;
    WIN32_FIND_DATAW m_entry{};
    bool m_isFirst = false;
    DWORD m_error = ERROR_SUCCESS;
};

[[nodiscard]] inline EntryNature natureOf(const WIN32_FIND_DATAW &entry)
{
    return natureOf(entry.dwFileAttributes, entry.dwReserved0);
}

[[nodiscard]] inline qint64 sizeOf(const WIN32_FIND_DATAW &entry)
{
    return static_cast<qint64>((static_cast<quint64>(entry.nFileSizeHigh) << 32)
                               | entry.nFileSizeLow);
}

} // namespace platform
