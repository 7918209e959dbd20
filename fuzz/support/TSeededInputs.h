#pragma once

#include <QByteArray>
#include <QList>

#include <random>

/// Inputs that follow from a number and from the inputs to begin with, and from nothing else: the same on every
/// machine, in every run. A fuzzer goes on from the inputs that reach new code; what is reached depends on clocks,
/// addresses and names of temporary files too, so its inputs are others in each run.
///
/// @code
/// TSeededInputs inputs(1);
/// inputs.Add(seed);
/// target.check(inputs.Next(16384));
/// @endcode
class TSeededInputs
{
public:
    explicit TSeededInputs(unsigned seed) : m_Random(seed) {}

    /// An input to begin with. The order of the calls does not matter; there are none behind the first Next().
    void Add(const QByteArray& input) { m_Beginnings.append(input); }

    /// The next input: one to begin with, changed in a few places. Not empty, and of @p most bytes at most.
    QByteArray Next(int most);

private:
    int Below(int end);
    QByteArray Piece();
    void Change(QByteArray& input);

    std::mt19937 m_Random; // gives the same numbers with every compiler, other than the distributions of the library
    QList<QByteArray> m_Beginnings;
    bool m_IsSorted = false;
};
