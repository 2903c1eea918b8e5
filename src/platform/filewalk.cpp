#include "filewalk.h"

#include <utility>

namespace platform {

namespace {

/// Builds the record of every file that a walk meets.
class Lister final : public TreeVisitor
{
    Q_DISABLE_COPY_MOVE(Lister)
public:
    explicit Lister(const FileVisitor &visit)
        : m_visit(visit)
    {
    }

    [[nodiscard]] Wanted enterFolder(const QString &path) override
    {
        m_folder = path;
        return Wanted::SizesAndTimes;
    }

    void meetFile(const MetFile &file) override
    {
        QString name = file.name.toString();
        QString path = joinedPath(m_folder, name);
        m_visit({std::move(name), std::move(path), file.size});
    }

private:
    const FileVisitor &m_visit;
    QString m_folder;
};

} // namespace

WalkReport walkFiles(const QString &root, const WalkOptions &options, const FileVisitor &visit)
{
    Lister lister(visit);
    return walkTree(root, options, {&lister});
}

QString joinedPath(const QString &folder, const QString &name)
{
    QString path;
    path.reserve(folder.size() + 1 + name.size());
    path += folder;
    if (!folder.endsWith(u'/')) // only the top of a file system does
        path += u'/';
    path += name;
    return path;
}

} // namespace platform
