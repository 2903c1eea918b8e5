#pragma once

#include <QtGlobal>

/// Random numbers that depend on the seed only: the same seed gives the same numbers on every
/// system.
class Dice final
{
public:
    explicit Dice(quint64 seed)
        : m_state(seed)
    {
    }

    /// A number from 0 to @p end - 1; @p end is at least 1.
    [[nodiscard]] int below(int end)
    {
        return static_cast<int>(next() % static_cast<quint64>(end));
    }
    [[nodiscard]] int between(int first, int last) { return first + below(last - first + 1); }
    [[nodiscard]] bool chance(int percent) { return below(100) < percent; }
    template<class List>
    [[nodiscard]] auto pick(const List &list) -> const typename List::value_type &
    {
        return *(list.begin() + below(static_cast<int>(list.size())));
    }

private:
    // SplitMix64: different seeds give different sequences, also seeds next to each other.
    quint64 next()
    {
        m_state += 0x9e3779b97f4a7c15;
        quint64 mixed = m_state;
        mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9;
        mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111eb;
        return mixed ^ (mixed >> 31);
    }

    quint64 m_state;
};
