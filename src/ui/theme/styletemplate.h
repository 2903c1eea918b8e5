#pragma once

#include "tokens.h"

#include <QString>
#include <QStringList>

#include <initializer_list>

namespace theme {

/// A value that a call puts into a hole of a style. A hole is a placeholder: see fillHoles().
struct Value {
    Value(const char *theHole, Colour colour)
        : hole(theHole)
        , text(colour.value())
    {
    }
    Value(const char *theHole, int number)
        : hole(theHole)
        , text(QString::number(number))
    {
    }
    Value(const char *theHole, const QString &theText)
        : hole(theHole)
        , text(theText)
    {
    }

    QLatin1StringView hole;
    QString text;
};

/// A style whose holes are filled.
struct Filled {
    QString text;
    /// One sentence for each fault: a hole without a value, a value without a hole, a value with
    /// the name of a token.
    QStringList faults;
};

/// Fills the holes of @p style. A hole is a name in braces without blanks, such as {accent}. The
/// braces of a CSS rule contain blanks, so they are no holes. A name that is not in @p values comes
/// from the table of tokens. All other text stays as it is.
[[nodiscard]] Filled fillHoles(QStringView style, std::initializer_list<Value> values = {});

/// As fillHoles(), for the program itself. A fault is a warning in the log and stops a debug build.
[[nodiscard]] QString fill(QStringView style, std::initializer_list<Value> values = {});

} // namespace theme
