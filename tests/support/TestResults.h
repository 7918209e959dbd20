#pragma once

#include <QByteArray>
#include <QFile>
#include <QList>

/// The environment variable that names the file to which tests append what they have measured.
const char* const TestResultsVariable = "CABSETTINGS_TEST_RESULTS";

/// Appends one line: the table it belongs to, then the fields, with tabs between them. docs/reliability.md is made from
/// these lines. Does nothing where the variable is not set.
inline void AppendTestResult(const QByteArray& table, const QList<QByteArray>& fields)
{
    const QByteArray path = qgetenv(TestResultsVariable);
    if (path.isEmpty())
        return;
    QFile file(QFile::decodeName(path));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        qFatal("cannot write %s", path.constData());
    QByteArray line = table;
    for (const QByteArray& field : fields)
        line += '\t' + field;
    file.write(line + '\n'); // in one write: the lines of programs that run side by side stay whole
}
