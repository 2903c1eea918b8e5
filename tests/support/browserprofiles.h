#pragma once

#include "testtree.h"

#include <QString>

/// Profiles that look like those that the five browsers leave: a tree with the folders "Local" and
/// "Roaming".
namespace browserprofiles {

/// Fills @p profile, a path in the tree, as a Chromium browser does.
void makeChromium(const TestTree &tree, const QString &profile);
/// The same for the halves that Firefox keeps in roaming and in local data.
void makeFirefox(const TestTree &tree, const QString &name);
/// All five browsers: several profiles of Chrome, two of Edge and four of Firefox, one of
/// which lies elsewhere; names in Chinese and with emoji.
void makeAll(const TestTree &tree);

} // namespace browserprofiles
