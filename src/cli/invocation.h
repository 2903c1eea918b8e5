#pragma once

#include <QFlags>
#include <QMap>
#include <QStringList>

#include <utility>

namespace cli {

/// Every option but those for help and version; commands.cpp declares each by its name.
enum class Option {
    Items = 1 << 0,
    Json = 1 << 1,
    Yes = 1 << 2,
    Category = 1 << 3,
    Backup = 1 << 4,
    NoBackup = 1 << 5,
    Browser = 1 << 6,
    MinSize = 1 << 7,
};
Q_DECLARE_FLAGS(Options, Option)
Q_DECLARE_OPERATORS_FOR_FLAGS(Options)

/// What the user gave to a command: its arguments, and its options by name. Made once the command
/// line was found to be right: there is no option that does not go with the command.
class Invocation final
{
public:
    Invocation(QStringList arguments, QMap<Option, QStringList> options)
        : m_arguments(std::move(arguments))
        , m_options(std::move(options))
    {
    }

    /// What follows the name of the command; as many as the command wants.
    [[nodiscard]] const QStringList &arguments() const { return m_arguments; }
    [[nodiscard]] bool has(Option option) const { return m_options.contains(option); }
    /// In the order in which they were given; none without the option.
    [[nodiscard]] QStringList values(Option option) const { return m_options.value(option); }
    /// The last one; empty without the option, and also where the user gave an empty one.
    [[nodiscard]] QString value(Option option) const
    {
        const QStringList all = values(option);
        return all.isEmpty() ? QString() : all.constLast();
    }

private:
    QStringList m_arguments;
    QMap<Option, QStringList> m_options;
};

} // namespace cli
