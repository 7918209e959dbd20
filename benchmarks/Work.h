#pragma once

#include "BenchFolder.h"
#include "BenchHost.h"
#include "Inputs.h"
#include "Pairs.h"

#include "colors/TColorSettingsProxy.h"
#include "logs/TDiagnosticLog.h"
#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"
#include "region/TRegionSettingsProxy.h"
#include "serialization/TBinarySerializer.h"
#include "settings/TSettings.h"
#include "system/TSystemSettingsProxy.h"
#include "units/TUnits.h"

#include <QBuffer>
#include <QColor>
#include <QString>

/// What the library does for a display, one function for each piece of work. Each is called with a running number, by
/// which it chooses its input.
namespace Work {

// ---- Conversions

inline double FactorByName(unsigned number) { return TUnits::ConvertMetersToFeet(Inputs::Float(number)); }

inline double UnitByUnit(unsigned number)
{
    const tagUnits& pair = ShuffledUnits[number % Inputs::Count];
    return TUnits::ConvertUnit(Inputs::Value(number), pair.from, pair.to);
}

inline double Gallons(unsigned number)
{
    return TUnits::ConvertUnit(Inputs::Value(number), UNITS_LITERS, UNITS_GALLONS);
}

// ---- Texts

inline const QString Unit = QLatin1String(" L/ha");

inline QString ValueText(unsigned number) { return TUnits::GetValueString(Inputs::Value(number), Unit, 2, nullptr); }

inline QString AreaText(unsigned number) { return TUnits::GetAreaString(Inputs::Float(number), -1, nullptr); }

// ---- Logs

/// A display that runs: everything restored, both logs open.
struct tagDisplay
{
    tagDisplay()
    {
        TBenchStore::Instance().Fill();
        Settings = &settings;
        settings.Initialise();
        settings.Restore();
    }

    TSettings settings;
};

inline tagDisplay& Display()
{
    static tagDisplay display;
    return display;
}

constexpr char Entry[] = "Implement,DTC,4711,boom pressure low,section 3 of 12 closed\r\n";
constexpr int EntryLength = static_cast<int>(sizeof Entry) - 1;
inline const QString EntryText =
    QLatin1String("Implement,DTC,4711,section 3 closed"); // 61 bytes with stamp and line end

constexpr char Sentence[] = "$GPGGA,130709.00,4807.0380,N,01131.0000,E,4,12,0.8,545.4,M,46.9,M,1.0,0000*57\r\n";
constexpr int SentenceLength = 70; // an average line of a receiver's mix

inline bool FlushedLine(unsigned)
{
    static TUserDiagnosticLogProxy log;
    return log.LogDiagnostic(Entry, EntryLength);
}

inline bool StampedLine(unsigned)
{
    static TUserDiagnosticLogProxy log;
    return log.AddEntry(EntryText);
}

inline bool StagedLine(unsigned)
{
    static TNEMADiagnosticLogProxy log;
    return log.Log(Sentence, SentenceLength);
}

/// A log whose every line goes to a new file, in a folder with so many files of others.
struct tagRotatingLog
{
    explicit tagRotatingLog(const char* folder, int foreignFiles);

    TDiagnosticLog log;
};

inline bool RotatingLine(unsigned)
{
    static tagRotatingLog rotating("rotating", 0);
    return rotating.log.LogDiagnostic(Entry, EntryLength);
}

inline bool RotatingLineInFullFolder(unsigned)
{
    static tagRotatingLog rotating("rotating-1000", 1000);
    return rotating.log.LogDiagnostic(Entry, EntryLength);
}

// ---- Paths

inline const QString Client = QLatin1String("Hofmann");
inline const QString Farm = QLatin1String("Home farm");
inline const QString Field = QLatin1String("Long acre");
inline const QString Job = QLatin1String("J_Sprayer_010524_1307");

inline QString CoveragePath(unsigned)
{
    static TSystemSettings system;
    return system.GetCoverageFilePath(Client, Farm, Field, Job);
}

inline QString ActiveCoveragePath(unsigned)
{
    static TSystemSettingsProxy system;
    return system.GetActiveCoveragePath();
}

// ---- Parameters

inline QString LanguageExtension(unsigned)
{
    static TRegionSettingsProxy region;
    return region.GetLanguageExtension();
}

inline QColor TextColor(unsigned)
{
    static TColorSettingsProxy colors;
    return colors.GetTextColor();
}

// ---- Streams

/// A record as a host keeps it: what was applied where, section by section.
struct tagRecord
{
    unsigned id = 4711;
    int state = -1;
    double latitude = 48.117300;
    double longitude = 11.516667;
    bool isApplied = true;
    QString name = QLatin1String("Long acre");
    QVector<int> sections = QVector<int>(64, 1);
    QByteArray checksum = QByteArray(16, '\x5A');
};

/// @p Stream is a TBinarySerializer or a QDataStream.
template <class Stream>
int Scalars(unsigned number)
{
    static QBuffer buffer;
    if (!buffer.isOpen())
        buffer.open(QIODevice::ReadWrite);
    buffer.seek(0);
    Stream stream(&buffer);
    int integer = static_cast<int>(number);
    unsigned natural = number;
    double real = Inputs::Value(number);
    float single = Inputs::Float(number);
    bool truth = true;
    stream << integer << natural << real << single << truth;
    buffer.seek(0);
    stream >> integer >> natural >> real >> single >> truth;
    return integer;
}

template <class Stream>
int List(unsigned number)
{
    static QBuffer buffer;
    static QVector<int> list(1000, 1);
    if (!buffer.isOpen())
        buffer.open(QIODevice::ReadWrite);
    buffer.seek(0);
    Stream stream(&buffer);
    list[0] = static_cast<int>(number);
    stream << list;
    buffer.seek(0);
    stream >> list;
    return list.first();
}

template <class Stream>
int Record(unsigned number)
{
    static QBuffer buffer;
    static tagRecord record;
    if (!buffer.isOpen())
        buffer.open(QIODevice::ReadWrite);
    buffer.seek(0);
    Stream stream(&buffer);
    record.id = number;
    stream << record.id << record.state << record.latitude << record.longitude << record.isApplied << record.name
           << record.sections << record.checksum;
    buffer.seek(0);
    stream >> record.id >> record.state >> record.latitude >> record.longitude >> record.isApplied >> record.name >>
        record.sections >> record.checksum;
    return record.state;
}

// ---- Start

inline bool StartAndStop()
{
    TSettings settings;
    TSettings* const before = Settings;
    Settings = &settings;
    settings.Initialise();
    settings.Restore();
    Settings = before;
    return true;
}

inline bool StartOnEmptyStore(unsigned)
{
    TBenchStore::Instance().Empty();
    return StartAndStop();
}

inline bool StartOnFullStore(unsigned)
{
    TBenchStore::Instance().Fill();
    return StartAndStop();
}

} // namespace Work
