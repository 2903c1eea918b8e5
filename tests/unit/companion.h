#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class RegistryFixture;
class TestHome;

/// What the tests of the companion share. They run it as its users do, as a process.
namespace companion {

struct Run {
    int exitCode = -1; ///< -1 after a crash
    QByteArray output;
    QByteArray error;
};

/// Runs the companion to its end, with the environment of the test and @p variables, each in the
/// form NAME=VALUE.
[[nodiscard]] Run run(const QStringList &arguments, const QStringList &variables = {});
/// The same environment, to start the companion in another way.
[[nodiscard]] QStringList environment(const QStringList &variables);

/// Gives the companion a temporary folder that contains only "a.tmp" (3 bytes) and "sub/b" (1500
/// bytes). Returns its path.
QString fillTemporaryFolder(const TestHome &home);

/// Makes the file @p folder / @p name of @p size bytes.
void writeFile(const QString &folder, const QString &name, int size);

/// Adds a program to the list of the installed ones and makes its file. Returns the path of the
/// file as the registry has it. The fixture is not written yet.
QString addProgram(RegistryFixture &fixture, const TestHome &home, const QString &name);

} // namespace companion
