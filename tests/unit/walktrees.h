#pragma once

#include "testtree.h"

class QRandomGenerator;

/// The trees that both tst_filewalk and tst_treewalk walk.
namespace walktrees {

/// Makes about 120 files, folders and links below @p tree, many with unusual names.
void fillRandomly(const TestTree &tree, QRandomGenerator &random);

/// Makes @p depth nested folders with three files each, two of them in subfolders.
void makeBranches(const TestTree &tree, int depth);

#ifdef Q_OS_UNIX
/// A chain of @p depth nested folders with one file at its end. A test owns one. It removes the
/// chain itself, which is too deep for the temporary folder's own clean-up.
class NestedFolders final
{
    Q_DISABLE_COPY_MOVE(NestedFolders)
public:
    explicit NestedFolders(int depth);
    ~NestedFolders();

    [[nodiscard]] QString path() const { return m_tree.path(); }

private:
    TestTree m_tree;
};
#endif

} // namespace walktrees
