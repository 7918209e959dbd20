#include "console/line/Output.h"

#include "console/line/Command.h"

#include <QJsonDocument>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

const int Gap = 2; // blanks between columns

/// Flushes standard output first, so that the order is right when both go to one terminal.
void Say(const QString& text)
{
    std::fflush(stdout);
    std::fprintf(stderr, "cabsettings: %s\n", text.toUtf8().constData());
}

} // namespace

void Print(const QString& text) { PrintBytes(text.toUtf8()); }

void PrintLine(const QString& text) { Print(text + QLatin1Char('\n')); }

void PrintTrimmed(const QString& text)
{
    int length = static_cast<int>(text.size());
    while (length > 0 && text.at(length - 1) == QLatin1Char(' '))
        --length;
    PrintLine(text.left(length));
}

void PrintBytes(const QByteArray& bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
}

void PrintJson(const QJsonObject& object) { PrintBytes(QJsonDocument(object).toJson()); }

void PrintJson(const QJsonArray& array) { PrintBytes(QJsonDocument(array).toJson()); }

void PrintJsonLine(const QJsonObject& object)
{
    PrintBytes(QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n');
}

void PrintTable(const QList<QStringList>& rows)
{
    QList<int> widths;
    for (const QStringList& row : rows) {
        for (int i = 0; i < row.size(); ++i) {
            if (i == widths.size())
                widths.append(0);
            widths[i] = qMax(widths[i], static_cast<int>(row[i].size()));
        }
    }
    for (const QStringList& row : rows) {
        QString line;
        for (int i = 0; i < row.size(); ++i)
            line += i + 1 < row.size() ? row[i].leftJustified(widths[i] + Gap) : row[i];
        PrintTrimmed(line);
    }
}

QString Harmless(const QString& text)
{
    QString shown;
    for (const QChar character : text) {
        if (character.category() == QChar::Other_Control && character != QLatin1Char('\t'))
            shown += QString::fromLatin1("\\x%1").arg(character.unicode(), 2, 16, QLatin1Char('0'));
        else
            shown += character;
    }
    return shown;
}

QString OrNone(const QString& text) { return text.isEmpty() ? QLatin1String("(none)") : text; }

void Announce(const QString& text) { Say(text); }

int Fail(const QString& text)
{
    Say(text);
    return STATUS_FAILED;
}

int Misuse(const QString& text)
{
    Say(text);
    return STATUS_MISUSED;
}

bool OutputFailed() { return std::ferror(stdout) != 0; }

bool FlushOutput()
{
    const bool isFlushed = std::fflush(stdout) == 0;
    const int error = errno;
    if (isFlushed && !OutputFailed())
        return true;
    const char* const reason = isFlushed ? nullptr : strerrordesc_np(error); // unknown when an earlier write failed
    const QString text = QLatin1String("cannot write to standard output");
    Say(reason ? text + QLatin1String(": ") + QLatin1String(reason) : text);
    return false;
}
