#include "appinfo.h"
#include "registry.h"
#include "registrycleaner.h"
#include "registryfixture.h"
#include "registrysettings.h"
#include "startupmanager.h"
#include "testhome.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTest>

#include <atomic>
#include <cstring>

#include <windows.h>

using namespace Qt::StringLiterals;
using platform::Hive;
using platform::Registry;

namespace {

/// Which of the system's functions fails, from its call with the number "skip" on, and how often.
struct Fault {
    const char *function = "";
    LSTATUS status = ERROR_SUCCESS;
    int skip = 0;
    int count = -1; ///< -1 means each call
};

Fault fault;
int calls = 0;

// Whether this call fails.
bool fails(const char *function)
{
    if (std::strcmp(fault.function, function) != 0)
        return false;
    const int number = calls++;
    return number >= fault.skip && (fault.count < 0 || number < fault.skip + fault.count);
}

template<class Function>
Function *systemFunction(const char *name)
{
    return reinterpret_cast<Function *>(
        reinterpret_cast<void *>(::GetProcAddress(::GetModuleHandleW(L"advapi32"), name)));
}

LSTATUS WINAPI openKey(HKEY key, LPCWSTR path, DWORD options, REGSAM access, PHKEY result)
{
    static const auto real = systemFunction<decltype(openKey)>("RegOpenKeyExW");
    return fails("RegOpenKeyExW") ? fault.status : real(key, path, options, access, result);
}

LSTATUS WINAPI enumerateKey(HKEY key, DWORD index, LPWSTR name, LPDWORD length, LPDWORD reserved,
                            LPWSTR className, LPDWORD classLength, PFILETIME time)
{
    static const auto real = systemFunction<decltype(enumerateKey)>("RegEnumKeyExW");
    return fails("RegEnumKeyExW")
        ? fault.status
        : real(key, index, name, length, reserved, className, classLength, time);
}

LSTATUS WINAPI enumerateValue(HKEY key, DWORD index, LPWSTR name, LPDWORD length, LPDWORD reserved,
                              LPDWORD type, LPBYTE data, LPDWORD size)
{
    static const auto real = systemFunction<decltype(enumerateValue)>("RegEnumValueW");
    return fails("RegEnumValueW") ? fault.status
                                  : real(key, index, name, length, reserved, type, data, size);
}

LSTATUS WINAPI queryValue(HKEY key, LPCWSTR name, LPDWORD reserved, LPDWORD type, LPBYTE data,
                          LPDWORD size)
{
    static const auto real = systemFunction<decltype(queryValue)>("RegQueryValueExW");
    return fails("RegQueryValueExW") ? fault.status : real(key, name, reserved, type, data, size);
}

} // namespace

// The linker takes these entries of the program's import table instead of the system's.
extern "C" {
extern decltype(&openKey) const importedOpenKey asm("__imp_RegOpenKeyExW");
decltype(&openKey) const importedOpenKey = openKey;
extern decltype(&enumerateKey) const importedEnumerateKey asm("__imp_RegEnumKeyExW");
decltype(&enumerateKey) const importedEnumerateKey = enumerateKey;
extern decltype(&enumerateValue) const importedEnumerateValue asm("__imp_RegEnumValueW");
decltype(&enumerateValue) const importedEnumerateValue = enumerateValue;
extern decltype(&queryValue) const importedQueryValue asm("__imp_RegQueryValueExW");
decltype(&queryValue) const importedQueryValue = queryValue;
}

namespace {

const QString testPath = u"Software\\Sweepwise Faults"_s;
const QString testKey = u"HKEY_CURRENT_USER\\"_s + testPath;
const QString runKey = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;

/// Makes calls fail while it exists.
class FaultInUse final
{
    Q_DISABLE_COPY_MOVE(FaultInUse)
public:
    explicit FaultInUse(const Fault &wanted)
    {
        calls = 0;
        fault = wanted;
    }
    ~FaultInUse() { fault = {}; }
};

} // namespace

/// A registry of the system that cannot be read everywhere.
class TestWindowsRegistry : public QObject
{
    Q_OBJECT
public:
    explicit TestWindowsRegistry(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_fixture = std::make_unique<RegistryFixture>(m_home);
        m_fixture->addText(testKey, u"Sweepwise A"_s, u"a"_s);
        m_fixture->addText(testKey, u"Sweepwise B"_s, u"b"_s);
        m_fixture->addKey(testKey + u"\\Sweepwise Sub"_s);
        m_fixture->addText(runKey, u"Sweepwise Fault Player"_s, u"C:\\no\\such\\player.exe"_s);
        m_fixture->write();
    }
    void cleanupTestCase() { m_fixture.reset(); }

    void aMissingKeyIsNoFailure()
    {
        const Registry registry;
        QVERIFY(!registry.hasKey(Hive::CurrentUser, testPath + "\\none"_L1));
        QVERIFY(registry.subkeys(Hive::CurrentUser, testPath + "\\none\\none"_L1).isEmpty());
        QVERIFY(!registry.value(Hive::CurrentUser, testPath, u"none"_s));
        QVERIFY(!registry.hasKey(Hive::CurrentUser, testPath + QChar(u'\0')));
        QVERIFY(registry.readFailures().isEmpty());
    }

    void aKeyThatCannotBeOpenedIsAFailure()
    {
        const FaultInUse used({"RegOpenKeyExW", ERROR_ACCESS_DENIED});
        const Registry registry;
        QVERIFY(registry.subkeys(Hive::CurrentUser, testPath).isEmpty());
        QVERIFY(registry.valueNames(Hive::CurrentUser, testPath).isEmpty());
        QVERIFY(!registry.value(Hive::CurrentUser, testPath, u"Sweepwise A"_s));
        QVERIFY(!registry.values(Hive::CurrentUser, testPath, 100));
        QCOMPARE(registry.readFailures().count(), 1);
        QCOMPARE(registry.readFailures().kept().constFirst().where, testKey);
        QVERIFY(!registry.readFailures().kept().constFirst().reason.isEmpty());
    }

    void anEnumerationThatFailsEndsAsAFailure_data()
    {
        QTest::addColumn<QByteArray>("function");
        QTest::newRow("keys") << QByteArray("RegEnumKeyExW");
        QTest::newRow("values") << QByteArray("RegEnumValueW");
    }

    void anEnumerationThatFailsEndsAsAFailure()
    {
        QFETCH(QByteArray, function);
        for (const LSTATUS status : {ERROR_ACCESS_DENIED, ERROR_NOT_ENOUGH_MEMORY}) {
            const FaultInUse used({function.constData(), status});
            const Registry registry;
            (void)registry.subkeys(Hive::CurrentUser, testPath);
            (void)registry.valueNames(Hive::CurrentUser, testPath);
            (void)registry.values(Hive::CurrentUser, testPath, 100);
            QCOMPARE(registry.readFailures().count(), 1);
        }
    }

    void aValueThatCannotBeReadIsAFailure()
    {
        const FaultInUse used({"RegQueryValueExW", ERROR_ACCESS_DENIED});
        const Registry registry;
        QVERIFY(!registry.value(Hive::CurrentUser, testPath, u"Sweepwise A"_s));
        QCOMPARE(registry.readFailures().count(), 1);
    }

    void aValueThatGrowsBetweenTwoReadsIsReadAgain()
    {
        const FaultInUse used({"RegQueryValueExW", ERROR_MORE_DATA, 1, 1});
        const Registry registry;
        QCOMPARE(registry.text(Hive::CurrentUser, testPath, u"Sweepwise A"_s), u"a"_s);
        QVERIFY(registry.readFailures().isEmpty());
    }

    void aValueThatNeverStopsGrowingIsAFailure()
    {
        const FaultInUse used({"RegQueryValueExW", ERROR_MORE_DATA});
        const Registry registry;
        QVERIFY(!registry.value(Hive::CurrentUser, testPath, u"Sweepwise A"_s));
        QCOMPARE(registry.readFailures().count(), 1);
    }

    void aValueThatCannotBeReadIsNotReportedAsRemoved()
    {
        const FaultInUse used({"RegQueryValueExW", ERROR_ACCESS_DENIED});
        QString error;
        QVERIFY(!platform::registrysettings::remove(Hive::CurrentUser, testPath, {u"Sweepwise B"_s},
                                                    error));
        QVERIFY(!error.isEmpty());
    }

    void aScanTellsWhatItCouldNotRead()
    {
        const FaultInUse used({"RegOpenKeyExW", ERROR_ACCESS_DENIED, 10, 1});
        RegistryCleaner cleaner;
        cleaner.startScan();
        QVERIFY(cleaner.waitForEnd(QDeadlineTimer(60'000)));
        QCOMPARE(cleaner.state(), CleanEngine::State::Finished);
        QCOMPARE(cleaner.incomplete().count(), 1);
    }

    void theStartUpListIsNotChangedWhenItCannotBeRead()
    {
        StartupManager manager;
        {
            const FaultInUse used({"RegOpenKeyExW", ERROR_ACCESS_DENIED});
            QVERIFY(!manager.removeFromStartup(u"Sweepwise Fault Player"_s));
            QVERIFY(!manager.addToStartup(u"Sweepwise Fault Player"_s, u"C:\\other.exe"_s));
            QVERIFY(!manager.errorString().isEmpty());
            manager.loadInstalledApps();
            QVERIFY(!manager.isStartupListRead());
            QVERIFY(!manager.incomplete().isEmpty());
        }
        const Registry registry;
        QCOMPARE(registry.text(Hive::CurrentUser,
                               u"Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s,
                               u"Sweepwise Fault Player"_s),
                 u"C:\\no\\such\\player.exe"_s);
    }

private:
    const TestHome &m_home;
    std::unique_ptr<RegistryFixture> m_fixture;
};

SWEEPWISE_TEST_MAIN(TestWindowsRegistry, QCoreApplication)
#include "tst_windowsregistry.moc"
