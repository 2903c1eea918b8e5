#pragma once

#include <QObject>
#include <QTest>
#include <QVariantList>

/// Records every emission of a signal, like QSignalSpy, but always on the thread that made the spy.
///
/// Signals of a worker thread arrive through the event loop. So reading the record is not a data
/// race.
class SignalSpy final : public QObject
{
    Q_DISABLE_COPY_MOVE(SignalSpy)
public:
    template<class Sender, class Object, class... Arguments>
    SignalSpy(const Sender *sender, void (Object::*signal)(Arguments...))
    {
        connect(sender, signal, this, [this](const Arguments &...arguments) {
            m_emissions.append(QVariantList{QVariant::fromValue(arguments)...});
        });
    }

    [[nodiscard]] qsizetype size() const { return m_emissions.size(); }
    [[nodiscard]] const QVariantList &at(qsizetype index) const { return m_emissions.at(index); }
    [[nodiscard]] const QVariantList &constFirst() const { return m_emissions.constFirst(); }
    [[nodiscard]] auto begin() const { return m_emissions.begin(); }
    [[nodiscard]] auto end() const { return m_emissions.end(); }

    /// Waits for the next emission; false when there is none within @p milliseconds.
    [[nodiscard]] bool wait(int milliseconds) const
    {
        const qsizetype before = size();
        return QTest::qWaitFor([this, before] { return size() > before; }, milliseconds);
    }

private:
    QList<QVariantList> m_emissions;
};
