#pragma once

#include <QList>

#include <random>

/// Chance that comes out the same for a seed, whatever the compiler: the engine's numbers are fixed by the language,
/// those of the library's distributions are not.
class Dice
{
public:
    explicit Dice(unsigned seed) : engine(seed) {}

    /// A number from 0 up to but not including `count`, which is at least 1.
    int below(int count)
    {
        return static_cast<int>(engine() % static_cast<unsigned>(count));
    }
    bool chance(int percent)
    {
        return below(100) < percent;
    }
    /// One of so many thousand steps between two numbers.
    double between(double least, double most)
    {
        constexpr int steps = 1000000;
        return least + (most - least) * below(steps) / steps;
    }
    /// An element of a list that is not empty.
    template <typename List>
    auto pick(const List& list) -> typename List::value_type
    {
        return list.at(below(static_cast<int>(list.size())));
    }

private:
    std::mt19937 engine;
};
