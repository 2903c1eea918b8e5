#include "filewalk.h"

#include "entry.h"

#include <utility>

namespace platform {

namespace {

/// Turns each file of a walk into a WalkedFile. Lives on the stack of walkFiles(). It records a
/// folder only with the folder's first file.
class Lister final : public TreeVisitor
{
    Q_DISABLE_COPY_MOVE(Lister)
public:
    Lister(const FileVisitor &visit, ListedFolders *listed)
        : m_visit(visit)
        , m_listed(listed)
    {
    }

    [[nodiscard]] Wanted enterFolder(const QString &path) override
    {
        m_folder = path;
        m_isRecorded = m_listed == nullptr;
        return Wanted::SizesAndTimes;
    }

    void visitFile(const VisitedFile &file) override
    {
        if (!m_isRecorded)
            m_listed->add(m_folder, file.folder->id());
        m_isRecorded = true;
        QString name = file.name.toString();
        QString path = joinedPath(m_folder, name);
        m_visit({std::move(name), std::move(path), file.size});
    }

private:
    const FileVisitor &m_visit;
    ListedFolders *const m_listed;
    QString m_folder;
    bool m_isRecorded = true;
};

} // namespace

ReadFailures walkFiles(const QString &root, const WalkOptions &options, const FileVisitor &visit,
                       ListedFolders *listed)
{
    Lister lister(visit, listed);
    return walkTree(root, options, {&lister}).failures;
}

} // namespace platform
