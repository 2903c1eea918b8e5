#pragma once

#include "browser.h"
#include "browserrule.h"
#include "scanresult.h"

/// What a browser scan must find, computed in the simplest way: one walk of Qt's own for each rule
/// and profile. For trees without links.
[[nodiscard]] QList<CleanCategory> plainBrowserScan(const QList<Browser> &browsers,
                                                    const QList<BrowserRule> &rules,
                                                    const browsers::DataFolders &folders);
