// log tail: the newest lines of a log, and those that come.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"
#include "console/line/QuitOnSignal.h"
#include "console/logs/LogArgument.h"
#include "console/logs/LogNames.h"
#include "diagnostics/TLogTail.h"

#include "logs/TLogSeries.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QTimer>

#include <cstdio>
#include <limits>
#include <optional>

namespace {

const char* const LinesOption = "n";
const char* const FollowOption = "follow";

const int FollowIntervalMs = 200;

/// "2024.05.01-13:07:09:042" in ISO form; null when the text is not a date and time.
QJsonValue Time(const QString& text)
{
    const QDate date = QDate::fromString(text.left(10), QLatin1String("yyyy.MM.dd"));
    const QTime time = QTime::fromString(text.mid(11), QLatin1String("HH:mm:ss:zzz"));
    if (!date.isValid() || !time.isValid())
        return QJsonValue();
    return date.toString(Qt::ISODate) + QLatin1Char('T') + time.toString(Qt::ISODateWithMs);
}

/// The fields of an entry of the user log; null in other lines. The code's text is the host's, and may hold
/// commas itself.
QJsonObject Fields(const QString& text)
{
    QStringList parts = text.split(QLatin1Char(','));
    const bool isEntry = parts.size() >= 6;
    while (parts.size() > 6) {
        parts[3] += QLatin1Char(',') + parts.at(4);
        parts.removeAt(4);
    }
    QJsonObject fields{{QLatin1String("time"), Time(parts.first())}};
    const char* const names[] = {"component", "type", "code", "text1", "text2"};
    for (int i = 0; i < 5; ++i)
        fields.insert(QLatin1String(names[i]), isEntry ? QJsonValue(parts.at(i + 1)) : QJsonValue());
    return fields;
}

/// How the lines of a log are printed.
class TLinePrinter
{
public:
    TLinePrinter(const QString& log, bool isJson, bool isFollowing)
        : m_HasFields(log == QLatin1String("user")), m_IsJson(isJson), m_IsFollowing(isFollowing)
    {}

    void PrintLines(const QList<tagLogLine>& lines) const
    {
        QJsonArray array;
        for (const tagLogLine& line : lines) {
            if (!m_IsJson)
                PrintLine(Harmless(line.text));
            else if (m_IsFollowing) // what has no end is no array
                PrintJsonLine(Json(line));
            else
                array.append(Json(line));
        }
        if (m_IsJson && !m_IsFollowing)
            PrintJson(array);
    }

private:
    QJsonObject Json(const tagLogLine& line) const
    {
        QJsonObject object = m_HasFields ? Fields(line.text) : QJsonObject();
        object.insert(QLatin1String("file"), line.file);
        object.insert(QLatin1String("text"), line.text);
        return object;
    }

    bool m_HasFields;
    bool m_IsJson;
    bool m_IsFollowing;
};

/// Prints what comes until an interrupt, and then what there is of a line that has begun. Empty, or what went wrong.
QString Follow(TLogTail& tail, const TLinePrinter& printer)
{
    QString error;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        printer.PrintLines(tail.Read(&error));
        std::fflush(stdout);
        if (!error.isEmpty() || OutputFailed())
            QCoreApplication::quit();
    });
    timer.start(FollowIntervalMs);
    QCoreApplication::exec();
    if (error.isEmpty())
        printer.PrintLines(tail.Read(&error));
    if (!tail.Unfinished().text.isEmpty())
        printer.PrintLines({tail.Unfinished()});
    return error;
}

} // namespace

int RunLogTail(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("log tail"), QLatin1String("LOG"),
                      QString::fromLatin1("Prints the newest lines of a log, across its files. LOG is one of: %1. "
                                          "Control characters are printed as \\x1b.")
                          .arg(LogNames().join(QLatin1String(", "))),
                      QLatin1String("cabsettings log tail --follow nmea"));
    line.AddOption(QLatin1String(LinesOption), QLatin1String("Number of lines."), QLatin1String("N"),
                   QLatin1String("10"));
    line.AddOption(QLatin1String(FollowOption),
                   QLatin1String("Prints new lines as they come, from file to file, until an interrupt."));
    line.AddJsonOption(
        QLatin1String("Prints an array of objects, with --follow one object on each line: file, text; for the user log "
                      "also time, component, type, code, text1, text2 (null in a line that is not an entry)."));
    if (const auto status = line.Read(arguments, 1, 1))
        return *status;
    const auto count = line.WholeNumber(QLatin1String(LinesOption), 0, std::numeric_limits<int>::max());
    const QString log = line.Words().first();
    if (!count || !IsLog(log, line))
        return STATUS_MISUSED;
    const bool isFollowing = line.IsSet(QLatin1String(FollowOption));

    std::optional<TQuitOnSignal> quitOnSignal;
    if (isFollowing)
        quitOnSignal.emplace(); // before any thread starts, so that none takes the signal instead
    const auto drive = FindLogDrive(context);
    if (!drive)
        return STATUS_FAILED;
    const QString basePath = LogBasePath(log, *drive);
    TLogTail tail(basePath);
    QString error;
    QList<tagLogLine> lines = tail.Read(&error);
    if (!isFollowing && TLogSeries(basePath).GetFiles().empty())
        return Fail(QString::fromLatin1("the %1 log has no file in \"%2\"").arg(log, QFileInfo(basePath).path()));
    if (!isFollowing && !tail.Unfinished().text.isEmpty())
        lines.append(tail.Unfinished());
    const TLinePrinter printer(log, line.WantsJson(), isFollowing);
    printer.PrintLines(lines.mid(qMax(0, static_cast<int>(lines.size()) - *count)));
    std::fflush(stdout);
    if (isFollowing && error.isEmpty() && !OutputFailed())
        error = Follow(tail, printer);
    return error.isEmpty() ? STATUS_DONE : Fail(error);
}
