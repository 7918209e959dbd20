#pragma once

#include "TestResults.h"

#include <QByteArray>

/// What one row of a test of faults has found, as a line of the table "faults": the program, the operation, the fault,
/// the number of points at which the operation was stopped, those of them at which it had done its work all the same,
/// and the number of broken invariants.
struct tagFaultResult
{
    QByteArray program;
    QByteArray operation;
    QByteArray fault;
    int points = 0;
    int done = 0;
    int broken = 0;

    void Append() const
    {
        AppendTestResult("faults", {program, operation, fault, QByteArray::number(points), QByteArray::number(done),
                                    QByteArray::number(broken)});
    }
};
