#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>

const char* const TestLengthVariable = "CABSETTINGS_TEST_LENGTH";

/// How many times as long as usual a test goes on; 1 when nothing is asked for. Qt Test ends what takes more than five
/// minutes, unless it is told otherwise:
///
///     CABSETTINGS_TEST_LENGTH=300 QTEST_FUNCTION_TIMEOUT=7200000 build/default/tests/display/RandomTaps
inline int TestLength()
{
    static const int length = [] {
        const QByteArray given = qgetenv(TestLengthVariable);
        const int chosen = given.isEmpty() ? 1 : given.toInt();
        if (chosen < 1) {
            std::fprintf(stderr, "%s=%s is not a number from 1\n", TestLengthVariable, given.constData());
            std::_Exit(EXIT_FAILURE);
        }
        return chosen;
    }();
    return length;
}
