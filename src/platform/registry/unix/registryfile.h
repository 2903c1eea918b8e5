#pragma once

#include "registry.h"

#include <QHash>
#include <QSet>

#include <optional>
#include <vector>

namespace platform {

/// One registry file of a Wine prefix, such as system.reg: read, asked, changed and written.
///
/// The format is text, "WINE REGISTRY Version 2": a section "[Key\\Path] time" a key, in it one
/// line a value, long ones continued after a backslash; see decodeName() for the escapes. Keys
/// above a section exist without a section of their own. What is not understood, and everything
/// that is not changed, is written as it was read.
///
/// Names are found without regard to case. A path is not followed through a key that is a
/// symbolic link.
class RegistryFile final
{
public:
    using Key = qsizetype;
    static constexpr Key none = -1;
    static constexpr Key root = 0;

    /// Nothing when @p text is not such a file.
    [[nodiscard]] static std::optional<RegistryFile> parse(const QByteArray &text);

    [[nodiscard]] Key find(const QString &path) const; ///< none when it does not exist
    [[nodiscard]] QStringList subkeys(Key key) const;
    [[nodiscard]] bool isLink(Key key) const { return node(key).isLink; }
    [[nodiscard]] QStringList valueNames(Key key) const;
    [[nodiscard]] std::optional<RegistryValue> value(Key key, const QString &name) const;

    /// Removes the key, which is not the root, with all below it.
    void removeTree(Key key);
    /// False when there is no such value.
    bool removeValue(Key key, const QString &name);
    /// The key at @p path, made if need be with those above it.
    Key create(const QString &path);
    void setValue(Key key, const RegistryValue &value);

    [[nodiscard]] bool isChanged() const { return m_isChanged; }
    [[nodiscard]] QByteArray text() const;

private:
    // A value with its continuation lines, or a line that is none or cannot be read.
    struct Line {
        QByteArray raw; ///< with its line end
        bool isValue = false;
        QString name;
        qsizetype dataStart = 0; ///< where in raw the data begin, after the "="
    };
    struct Section {
        Key key = none;
        QByteArray head;
        QByteArray body;
    };
    struct Node {
        QString name;
        Key parent = none;
        std::vector<Key> children;
        std::vector<qsizetype> sections; ///< indices in m_sections, usually one
        bool isLink = false;
        bool isRemoved = false;
        bool needsSection = false; ///< it must be written even without a value
        mutable std::optional<QList<Line>> lines; ///< read when first asked for
        mutable QHash<QString, qsizetype> values; ///< by folded name the last of that name's lines
        bool isChanged = false; ///< lines count, the sections' bodies do not
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

    QByteArray m_text; ///< what sections and lines point into
    QByteArray m_prologue;
    std::vector<Section> m_sections;
    std::vector<Node> m_nodes;
    QHash<std::pair<Key, QString>, Key> m_children; ///< by parent and folded name
    bool m_isChanged = false;
};

} // namespace platform
