#pragma once

#include <QString>
#include <QTemporaryDir>

/// The home folder of a test: settings, data, caches and the C: drive are below one temporary
/// folder. So the test does not read or write the developer's own files. Create it before the
/// application object.
class TestHome final
{
    Q_DISABLE_COPY_MOVE(TestHome)
public:
    TestHome();

    [[nodiscard]] QString path() const { return m_folder; }
    /// The path of a folder below the home. Makes the folder if it is missing.
    QString folder(const QString &relative) const;
    /// Sets an environment variable to folder(@p relative) and returns that path.
    QString setFolderVariable(const char *variable, const QString &relative) const;

private:
    QTemporaryDir m_temporary;
    QString m_folder;
};

/// Defines the main function of a test that needs a home. @p ApplicationClass decides whether it is
/// a test with or without widgets.
#define SWEEPWISE_TEST_MAIN(TestClass, ApplicationClass)                                           \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        const TestHome home;                                                                       \
        ApplicationClass application(argc, argv);                                                  \
        QCoreApplication::setApplicationName(appinfo::name);                                       \
        QCoreApplication::setApplicationVersion(appinfo::version);                                 \
        QCoreApplication::setOrganizationName(appinfo::organisation);                              \
        TestClass test(home);                                                                      \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
