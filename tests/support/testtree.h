#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QTemporaryDir>

/// A temporary folder filled by the test.
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
    [[nodiscard]] bool has(const QString &relative) const; ///< a broken link counts as being there

    /// Every entry below with what it is and holds, for comparing before and after.
    [[nodiscard]] QMap<QString, QString> snapshot() const;

private:
    QTemporaryDir m_temporary;
    QString m_path;
};

/// While it lives a test that runs as the system's administrator works as an ordinary user, whom
/// permissions bind.
class OrdinaryUser final
{
    Q_DISABLE_COPY_MOVE(OrdinaryUser)
public:
    OrdinaryUser();
    ~OrdinaryUser();

private:
    bool m_changed = false;
};
