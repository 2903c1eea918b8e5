#include "fuzzing.h"

#include "browserrule.h"
#include "junkrule.h"
#include "rulefile.h"

#include <QFile>
#include <QTemporaryDir>

// A rule file of any content gives one rule for each element, or a problem with its reason.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QTemporaryDir folder;
    static const QString path = folder.filePath(QStringLiteral("rules.json"));
    const QByteArray bytes = fuzzing::bytesOf(data, size);
    QFile file(path);
    fuzzing::expect(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
                    "the file is written");
    file.close();
    const rulefile::Content content = rulefile::read(path);
    fuzzing::expect(content.size == bytes.size(), "the file is read whole");
    const QList<JunkRule> junk = rulefile::rulesOf<JunkRule>(content);
    const QList<BrowserRule> browser = rulefile::rulesOf<BrowserRule>(content);
    fuzzing::expect(junk.size() == browser.size(), "the rules are counted alike");
    if (content.problem != rulefile::Problem::None)
        fuzzing::expect(junk.isEmpty(), "a problem gives no rules");
    for (const JunkRule &rule : junk) {
        // A rule that matches everything must be known as such.
        if (rule.recursive
            && (rule.patterns.isEmpty() || rule.patterns.contains(QStringLiteral("*"))))
            fuzzing::expect(rule.matchesWholeTrees(), "a rule that takes all is known");
    }
    return 0;
}
