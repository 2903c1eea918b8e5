#pragma once

#include "registry.h"

#include <QHash>
#include <QSet>

#include <optional>
#include <vector>

namespace platform {

/// One registry file of a Wine prefix, such as system.reg: parsed, queried, changed and written. A
/// Registry owns it. Reading fills caches, so no two threads may use it at once.
///
/// The format is text, "WINE REGISTRY Version 2". A section "[Key\\Path] time" is a key. Each line
/// in it is a value; a long one continues after a backslash. decodeName() describes the escapes. A
/// key above a section exists without a section of its own. Unknown lines and unchanged parts are
/// written as they were read.
///
/// Names are found regardless of case. A key that is a symbolic link is not followed.
class RegistryFile final
{
public:
    using Key = qsizetype;
    static constexpr Key none = -1;
    static constexpr Key root = 0;

    /// Returns nothing when @p text is not such a file.
    [[nodiscard]] static std::optional<RegistryFile> parse(const QByteArray &text);

    [[nodiscard]] Key find(const QString &path) const; ///< none when there is no such key
    [[nodiscard]] QStringList subkeys(Key key) const;
    [[nodiscard]] bool isLink(Key key) const { return node(key).isLink; }
    [[nodiscard]] QStringList valueNames(Key key) const;
    [[nodiscard]] std::optional<RegistryValue> value(Key key, const QString &name) const;

    /// Removes the key with everything below it. It must not be the root.
    void removeTree(Key key);
    /// Returns false when there is no such value.
    bool removeValue(Key key, const QString &name);
    /// The key at @p path. It is created if it is missing, and so are the keys above it.
    Key create(const QString &path);
    void setValue(Key key, const RegistryValue &value);

    [[nodiscard]] bool isChanged() const { return m_isChanged; }
    [[nodiscard]] QByteArray text() const;

private:
    /// A value with its continuation lines, or a line that is not a readable value.
    struct Line {
        QByteArray raw; ///< with its line end
        bool isValue = false;
        QString name;
        qsizetype dataStart = 0; ///< offset of the data in raw, after the "="
    };
    /// A section as it was read. The head is its first line.
    struct Section {
        Key key = none;
        QByteArray head;
        QByteArray body;
    };
    /// A key. The changed lines of a node replace the bodies of its sections.
    struct Node {
        QString name;
        Key parent = none;
        std::vector<Key> children;
        std::vector<qsizetype> sections; ///< indices in m_sections, usually one
        bool isLink = false;
        bool isRemoved = false;
        bool needsSection = false; ///< must be written even without a value
        mutable std::optional<QList<Line>> lines; ///< parsed when first needed
        /// the index of a name's last line, by folded name
        mutable QHash<QString, qsizetype> values;
        bool isChanged = false; ///< the lines are written instead of the sections' bodies
    };

    RegistryFile() = default;

    [[nodiscard]] Node &node(Key key) { return m_nodes[static_cast<size_t>(key)]; }
    [[nodiscard]] const Node &node(Key key) const { return m_nodes[static_cast<size_t>(key)]; }
    [[nodiscard]] QList<Line> &lines(Key key) const;
    void indexValues(Key key) const;
    void removeLines(Key key, const QString &name);
    void indexSections();
    void addSection(const QByteArray &head, const QByteArray &body);
    Key childOf(Key parent, const QString &name) const;
    Key addChild(Key parent, const QString &name, bool isSorted);
    [[nodiscard]] QString path(Key key) const;
    void markRemoved(Key key);
    void writeLines(Key key, QByteArray &text) const;

    QByteArray m_text; ///< sections and lines point into this text
    QByteArray m_prologue;
    std::vector<Section> m_sections;
    std::vector<Node> m_nodes;
    QHash<std::pair<Key, QString>, Key> m_children; ///< by parent and folded name
    bool m_isChanged = false;
};

} // namespace platform
