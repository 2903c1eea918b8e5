#pragma once

#include <QString>

/// Links that Wine cannot make, played to the whole test program by standing between it and the
/// system's file functions. Real ones take part as they are.
///
/// Set up on one thread before the others start; only setJunctionActive() may be called while they
/// run.
namespace fakelinks {

/// Entries called @p name are reported with this reparse tag, in listings and by handle.
void tag(const QString &name, quint32 reparseTag);

/// From now on the empty folder @p path is a junction that leads to the folder @p target. What is
/// removed by that path itself is the empty folder, as with a real junction.
void makeJunction(const QString &path, const QString &target);

/// A junction that is not active is the plain folder that it was made from.
void setJunctionActive(bool active);

/// From now on the system tells of no open entry whether it has a tag, as on a memory stick.
void refuseTags();

/// Back to what is really there.
void clear();

} // namespace fakelinks
