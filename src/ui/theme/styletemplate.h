#pragma once

#include "tokens.h"

#include <QString>
#include <QStringList>

#include <initializer_list>

namespace theme {

/// What a call puts into a hole of a style.
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

struct Filled {
    QString text;
    /// One sentence each: a hole without a value, a value without a hole, a value named like a
    /// token.
    QStringList faults;
};

/// Fills the holes of @p style: a hole is a name in braces without blanks, such as {accent}, so
/// that the braces of a rule are none. What @p values does not name comes from the table of tokens.
/// Everything else comes out as it is written.
[[nodiscard]] Filled fillHoles(QStringView style, std::initializer_list<Value> values = {});

/// The same for the program: a fault is a warning in the log, and ends a debug build.
[[nodiscard]] QString fill(QStringView style, std::initializer_list<Value> values = {});

} // namespace theme
