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
    /// The file at the absolute @p path. Nothing when there is none, with an empty @p error, and
    /// when it cannot be read as a whole; then @p error says why, for people. @p isDamaged, which
    /// may be null, tells whether the reason is the file's content and not the system.
    [[nodiscard]] static std::optional<RegistryFile> read(const QString &path, QString &error,
                                                          bool *isDamaged = nullptr);

    [[nodiscard]] Key find(const QString &path) const; ///< none when there is no such key
    [[nodiscard]] QStringList subkeys(Key key) const;
    [[nodiscard]] bool hasSubkeys(Key key) const { return node(key).childCount > 0; }
    [[nodiscard]] bool isLink(Key key) const { return node(key).isLink; }
    [[nodiscard]] QStringList valueNames(Key key) const;
    [[nodiscard]] std::optional<RegistryValue> value(Key key, const QString &name) const;

    /// Whether the key has lines that begin like a value and cannot be decoded. They are kept.
    [[nodiscard]] bool hasUnreadableValues(Key key) const;
    /// Whether a line is neither a key, nor a value, nor a remark: a part of the file is lost. What
    /// hasUnreadableValues() tells is not included.
    [[nodiscard]] bool isDamaged() const { return m_isDamaged; }

    /// Removes the key with everything below it. It must not be the root.
    void removeTree(Key key);
    /// Returns false when there is no such value.
    bool removeValue(Key key, const QString &name);
    /// Whether the key at @p path or one above it is a symbolic link. Keys may be missing.
    [[nodiscard]] bool leadsThroughLink(const QString &path) const;
    /// The key at @p path. It is created if it is missing, and so are the keys above it.
    Key create(const QString &path);
    void setValue(Key key, const RegistryValue &value);

    [[nodiscard]] bool isChanged() const { return m_isChanged; }
    [[nodiscard]] QByteArray text() const;

private:
    /// A value with its continuation lines, or a line that is not a readable value.
    struct Line {
        QByteArray raw; ///< with its line end; null when the line was removed
        bool isValue = false;
        QString name;
        qsizetype dataStart = 0; ///< offset of the data in raw, after the "="
        qsizetype previous = none; ///< the index of the line before it with the same name
    };
    /// The lines of a key. A line keeps its index, so that a change costs the same however many
    /// there are.
    struct Lines {
        std::vector<Line> all; ///< those of the file, then the new ones
        qsizetype newBegin = 0;
        QHash<QString, qsizetype> values; ///< the index of a name's last line, by folded name
        bool hasUnreadableValues = false;
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
        std::vector<Key> children; ///< the removed ones included
        qsizetype childCount = 0; ///< without the removed ones
        std::vector<qsizetype> sections; ///< indices in m_sections, usually one
        bool isLink = false;
        bool isRemoved = false;
        bool needsSection = false; ///< must be written even without a value
        mutable std::optional<Lines> lines; ///< parsed when first needed
        bool isChanged = false; ///< the lines are written instead of the sections' bodies
    };

    RegistryFile() = default;

    [[nodiscard]] Node &node(Key key) { return m_nodes[static_cast<size_t>(key)]; }
    [[nodiscard]] const Node &node(Key key) const { return m_nodes[static_cast<size_t>(key)]; }
    [[nodiscard]] Lines &lines(Key key) const;
    static void addLine(Lines &lines, Line &&line);
    void indexSections();
    void addSection(const QByteArray &head, const QByteArray &body);
    Key childOf(Key parent, const QString &name) const;
    Key addChild(Key parent, const QString &name);
    [[nodiscard]] QString path(Key key) const;
    void markRemoved(Key key);
    void writeLines(Key key, QByteArray &text) const;

    QByteArray m_text; ///< sections and lines point into this text
    QByteArray m_prologue;
    std::vector<Section> m_sections;
    std::vector<Node> m_nodes;
    QHash<std::pair<Key, QString>, Key> m_children; ///< by parent and folded name
    bool m_isChanged = false;
    bool m_isDamaged = false;
};

} // namespace platform
