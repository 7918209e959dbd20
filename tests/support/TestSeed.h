#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>
#include <random>

const char* const TestSeedVariable = "CABSETTINGS_TEST_SEED";

/// The seed of everything random in a test program. Each run chooses another one and prints it; the same run is
/// repeated by giving that number back:
///
///     CABSETTINGS_TEST_SEED=2718281828 build/default/tests/units/text/Positions
///
/// Each test function starts its generator with the seed, so that it can also be repeated alone.
inline unsigned TestSeed()
{
    static const unsigned seed = [] {
        const QByteArray given = qgetenv(TestSeedVariable);
        bool isNumber = true;
        const unsigned chosen = given.isEmpty() ? std::random_device()() : given.toUInt(&isNumber);
        if (!isNumber) {
            std::fprintf(stderr, "%s=%s is not a number from 0 to 4294967295\n", TestSeedVariable, given.constData());
            std::_Exit(EXIT_FAILURE);
        }
        qDebug("%s=%u", TestSeedVariable, chosen);
        return chosen;
    }();
    return seed;
}
