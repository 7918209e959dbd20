#pragma once

#include <QByteArray>
#include <QFile>

const char* const FaultResultsVariable = "CABSETTINGS_FAULT_RESULTS";

/// What one row of a test of faults has found. Appends one line to the file that the environment variable names, with
/// tabs between the fields: the program, the operation, the fault, the number of points at which the operation was
/// stopped, those of them at which it had done its work all the same, and the number of broken invariants.
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
        const QByteArray path = qgetenv(FaultResultsVariable);
        if (path.isEmpty())
            return;
        QFile file(QFile::decodeName(path));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
            qFatal("cannot write %s", path.constData());
        file.write(program + '\t' + operation + '\t' + fault + '\t' + QByteArray::number(points) + '\t' +
                   QByteArray::number(done) + '\t' + QByteArray::number(broken) + '\n');
    }
};
