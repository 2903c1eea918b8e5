#pragma once

#include <QString>

#include <windows.h>

namespace platform {

[[nodiscard]] inline qint64 sizeOf(DWORD high, DWORD low)
{
    return static_cast<qint64>((static_cast<quint64>(high) << 32) | low);
}

/// Owns a search for the entries of a folder.
class FolderSearch final
{
    Q_DISABLE_COPY_MOVE(FolderSearch)
public:
    /// @p pattern is an extended path that ends in "\*".
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

    /// Once false, the thread's last error tells why.
    [[nodiscard]] bool hasEntry() const { return m_hasEntry; }
    [[nodiscard]] const WIN32_FIND_DATAW &entry() const { return m_data; }
    void next() { m_hasEntry = ::FindNextFileW(m_handle, &m_data) != 0; }

private:
    WIN32_FIND_DATAW m_data{};
    HANDLE m_handle;
    bool m_hasEntry;
};

} // namespace platform
