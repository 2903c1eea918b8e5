#pragma once

#include "unix/openfolder.h"

#include <atomic>
#include <cerrno>
#include <memory>

#include <dirent.h>
#include <fcntl.h>

namespace platform {

/// Reads the entries of open folders, one folder after the other. A walker, a listing or a removal
/// owns one and uses it on its own thread.
///
/// One system call reads many entries into a buffer that is used again. A single entry costs
/// neither a call nor an allocation. Entries may be removed while the folder is read.
class FolderReader final
{
    Q_DISABLE_COPY_MOVE(FolderReader)
public:
    /// Reading ends when @p stopRequested is set, which may be null.
    explicit FolderReader(const std::atomic_bool *stopRequested)
        : m_stopRequested(stopRequested)
        , m_buffer(std::make_unique_for_overwrite<char[]>(bufferSize))
    {
    }

    /// Starts with a folder that is open for reading. The caller keeps it open until the last
    /// next().
    void begin(int folder)
    {
        m_folder = folder;
        m_length = 0;
        m_offset = 0;
        m_error = 0;
    }

    /// The next entry other than "." and "..", valid until the next call. Null at the end of the
    /// folder, on failure, and after a stop.
    [[nodiscard]] const dirent64 *next()
    {
        while (!isStopped() && (m_offset < m_length || fill())) {
            const auto *entry = reinterpret_cast<const dirent64 *>(m_buffer.get() + m_offset);
            m_offset += entry->d_reclen;
            if (!isFolderOrParent(entry->d_name))
                return entry;
        }
        return nullptr;
    }

    /// The errno of the failure that ended reading, else 0.
    [[nodiscard]] int error() const { return m_error; }

    /// Whether the next call of next() needs a system call.
    [[nodiscard]] bool isBufferConsumed() const { return m_offset == m_length; }

    /// The type of an entry, such as DT_REG. If the file system does not list types, a system call
    /// looks it up.
    [[nodiscard]] unsigned char typeOf(const dirent64 &entry) const
    {
        if (entry.d_type != DT_UNKNOWN)
            return entry.d_type;
        FileStatus status{};
        if (::fstatat(m_folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
            return DT_UNKNOWN;
        return static_cast<unsigned char>(IFTODT(status.st_mode));
    }

private:
    // One call reads a folder of a thousand files, and the buffer still fits into the cache.
    static constexpr std::size_t bufferSize = 65'536;

    bool isStopped() const
    {
        return m_stopRequested && m_stopRequested->load(std::memory_order_relaxed);
    }

    bool fill()
    {
        m_offset = 0;
        m_length = ::getdents64(m_folder, m_buffer.get(), bufferSize);
        if (m_length < 0) {
            m_error = errno;
            m_length = 0;
        }
        return m_length > 0;
    }

    static bool isFolderOrParent(const char *name)
    {
        return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
    }

    const std::atomic_bool *const m_stopRequested;
    const std::unique_ptr<char[]> m_buffer;
    int m_folder = -1;
    ssize_t m_length = 0; ///< bytes in the buffer
    ssize_t m_offset = 0; ///< offset of the next entry in the buffer
    int m_error = 0;
};

} // namespace platform
