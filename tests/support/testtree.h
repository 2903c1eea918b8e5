#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QTemporaryDir>

/// Kind and content of every entry below a folder by its path, for a comparison before and after.
[[nodiscard]] QMap<QString, QString> snapshotOf(const QString &folder);

/// A temporary folder that the test fills. It is removed with the object.
class TestTree final
{
    Q_DISABLE_COPY_MOVE(TestTree)
public:
    TestTree();
    ~TestTree();

    [[nodiscard]] QString path() const { return m_path; }
    [[nodiscard]] QString path(const QString &relative) const { return m_path + u'/' + relative; }

    /// Makes a file with its folders; returns its path.
    QString file(const QString &relative, const QByteArray &content = "content") const;
    QString folder(const QString &relative) const;
    /// Makes a symbolic link at @p relative that leads to @p target.
    QString link(const QString &target, const QString &relative) const;
    /// Whether there is a file, folder or link; a broken link counts.
    [[nodiscard]] bool has(const QString &relative) const;

    /// snapshotOf() the whole folder.
    [[nodiscard]] QMap<QString, QString> snapshot() const;

private:
    QTemporaryDir m_temporary;
    QString m_path;
};

/// Makes a test that runs as root an ordinary user as long as the object exists. Root ignores file
/// permissions, an ordinary user does not.
class OrdinaryUser final
{
    Q_DISABLE_COPY_MOVE(OrdinaryUser)
public:
    OrdinaryUser();
    ~OrdinaryUser();

private:
    bool m_changed = false;
};

/// Sets the process's mask for new files as long as the object exists. By default nothing is
/// masked: what a program makes without a mode is then open to everybody. Does nothing on Windows.
class FileMask final
{
    Q_DISABLE_COPY_MOVE(FileMask)
public:
    explicit FileMask(unsigned mask = 0);
    ~FileMask();

private:
    unsigned m_before = 0;
};
