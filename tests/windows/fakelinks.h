#pragma once

#include <QString>

#include <functional>

/// Fakes links that Wine cannot make. It replaces the system's file functions in the whole test
/// program. Real links stay visible.
///
/// To be set up before other threads start. Only setJunctionActive() may be called while they run.
namespace fakelinks {

/// Gives all entries with the name @p name this reparse tag, in listings and by handle.
void tag(const QString &name, quint32 reparseTag);

/// Turns the empty folder @p path into a junction to the folder @p target. Removing that path
/// removes the empty folder, as with a real junction.
void makeJunction(const QString &path, const QString &target);

/// Switches the junction on or off. When it is off, its path is a plain folder again.
void setJunctionActive(bool active);

/// Lets the system refuse to tell the tag of an open entry, as on a memory stick.
void refuseTags();

/// Lets the system refuse with the error @p error to open entries with the name @p name or to list
/// them. Links are refused only if they are followed.
void refuse(const QString &name, quint32 error);

/// Lets every listing break off behind its first entry, with the error @p error.
void breakListings(quint32 error);

/// Lets no folder have a file number, as on some servers.
void hideNumbers();

/// Calls @p action once, when the removed file number @p count is closed.
void callAfterRemovals(int count, const std::function<void()> &action);

/// Removes all fakes.
void clear();

} // namespace fakelinks
