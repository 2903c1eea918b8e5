#pragma once

#include <QString>
#include <QTemporaryDir>

/// A home of the test's own: settings, data, caches, temporary folder and C: drive all lie below
/// one temporary folder, so that nothing of the developer's is read or written. Make it before the
/// application object.
class TestHome final
{
    Q_DISABLE_COPY_MOVE(TestHome)
public:
    TestHome();

    [[nodiscard]] QString path() const { return m_folder; }
    /// A folder below the home, made if need be.
    QString folder(const QString &relative) const;
    /// Points an environment variable at folder(@p relative) and returns that folder.
    QString setFolderVariable(const char *variable, const QString &relative) const;

private:
    QTemporaryDir m_temporary;
    QString m_folder;
};

/// The main function of a test that needs a home: a guiless or a widget test, by the application
/// class.
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
