#pragma once

#include "testtree.h"

#include <QString>

/// Makes profiles like those of the five browsers, in a tree with the folders "Local" and
/// "Roaming".
namespace browserprofiles {

/// Makes the files of a Chromium profile; @p profile is its path in the tree.
void makeChromium(const TestTree &tree, const QString &profile);
/// Makes the files of a Firefox profile: one part in the roaming data, one in the local data.
void makeFirefox(const TestTree &tree, const QString &name);
/// Makes the profiles of all five browsers: several of Chrome, two of Edge and four of Firefox. One
/// of the latter lies in another folder. Some names are Chinese or contain emoji.
void makeAll(const TestTree &tree);

} // namespace browserprofiles
