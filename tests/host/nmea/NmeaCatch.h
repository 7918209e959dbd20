#pragma once

#include "Deadline.h"

#include "nmea/TNmeaInput.h"

#include <QSignalSpy>
#include <QtTest>

/// What comes out of an input.
struct tagCatch
{
    explicit tagCatch(TNmeaInput& input)
        : lines(&input, &TNmeaInput::LineReceived)
        , losses(&input, &TNmeaInput::SourceLost)
        , returns(&input, &TNmeaInput::SourceRegained)
        , end(&input, &TNmeaInput::Finished)
    {}

    bool WaitForEnd() { return !end.isEmpty() || end.wait(Deadline); }
    bool WaitForLines(qint64 count)
    {
        return QTest::qWaitFor([&] { return lines.size() >= count; }, Deadline);
    }
    bool WaitForLosses(qint64 count)
    {
        return QTest::qWaitFor([&] { return losses.size() >= count; }, Deadline);
    }
    bool WaitForReturns(qint64 count)
    {
        return QTest::qWaitFor([&] { return returns.size() >= count; }, Deadline);
    }

    bool Ok() const { return end.value(0).value(0).toBool(); }
    QString Error() const { return end.value(0).value(1).toString(); }
    QByteArray Line(int index) const { return lines.value(index).value(0).toByteArray(); }

    QByteArray Stream() const
    {
        QByteArray stream;
        for (const QList<QVariant>& line : lines)
            stream += line.value(0).toByteArray();
        return stream;
    }

    QSignalSpy lines;
    QSignalSpy losses;
    QSignalSpy returns;
    QSignalSpy end;
};
