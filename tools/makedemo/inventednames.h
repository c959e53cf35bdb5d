#pragma once

#include <QString>

#include <cstdint>

/// A stream of numbers that one seed decides. Each invented row has its own, so that a row depends on its number alone.
class Dice
{
public:
    explicit Dice(std::uint64_t seed);
    /// 0 up to but not including `sides`.
    int roll(int sides);
    /// 0.0 up to but not including 1.0.
    double fraction();

private:
    std::uint64_t state;
};

/// A town's name in capitals, such as "ROCHEBOURG SUR LAINE": not unique.
QString inventedTown(Dice& dice);
/// A pronounceable word of five letters, or six from the 200001st on: unique for each index from 0 to 5399999.
QString inventedFiveLetters(int index);
/// Letters of a beacon: three, or four from the 17577th on: unique for each index from 0 to 474551.
QString inventedBeacon(int index);
/// A number in base 36 with leading zeros, in capitals.
QString inventedCode(int number, int digits);
