#pragma once

#include <QObject>
#include <QTest>
#include <QVariantList>

/// Records every emission of a signal, like QSignalSpy, but on the thread on which it was made:
/// signals that a worker emits arrive through the event loop, so that reading the record is no
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
