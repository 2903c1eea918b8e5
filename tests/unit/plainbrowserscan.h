#pragma once

#include "browser.h"
#include "browserrule.h"
#include "scanresult.h"

/// What a browser scan is meant to find, looked for in the plainest way: rule by rule, profile by
/// profile, with one walk each and nothing but Qt. For trees without links.
[[nodiscard]] QList<CleanCategory> plainBrowserScan(const QList<Browser> &browsers,
                                                    const QList<BrowserRule> &rules,
                                                    const browsers::DataFolders &folders);
