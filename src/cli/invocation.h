#pragma once

#include <QFlags>
#include <QMap>
#include <QStringList>

#include <utility>

namespace cli {

/// All options except those for help and version. commands.cpp gives each its name.
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

/// The arguments and options that the user gave to a command. It is made after the command line was
/// checked: every option in it is one that the command accepts.
class Invocation final
{
public:
    Invocation(QStringList arguments, QMap<Option, QStringList> options)
        : m_arguments(std::move(arguments))
        , m_options(std::move(options))
    {
    }

    /// The words after the name of the command. Their number is one that the command accepts.
    [[nodiscard]] const QStringList &arguments() const { return m_arguments; }
    [[nodiscard]] bool has(Option option) const { return m_options.contains(option); }
    /// The values of the option in the order in which they were given. Empty without the option.
    [[nodiscard]] QStringList values(Option option) const { return m_options.value(option); }
    /// The last value. Empty without the option, and also when the user gave an empty value.
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
