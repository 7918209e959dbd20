#include "FacadeWorks.h"

#include "FacadeOperations.h"
#include "Latin1.h"

#include "colors/TColorSettingsProxy.h"
#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"
#include "logs/TUserLogAccessor.h"
#include "platform/TConfigManager.h"
#include "region/TRegionSettingsProxy.h"
#include "serialization/TBinarySerializer.h"
#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"
#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"

#include <QBuffer>
#include <QColor>
#include <QDir>
#include <QFile>

#include <array>

const char* const FirstName = "Start";
QColor FirstColor() { return QColor(12, 34, 56); } // as the calls of FacadeCalls() set it

namespace {

// ---- Texts that tell whether they are whole ----------------------------------------------------------------------

constexpr int NamesOfThread = 7;

/// One of the names that a thread writes. They differ in length, so that two of them do not mix unseen.
QString WrittenName(int thread, int name)
{
    return Latin1("T%1-%2-").arg(thread).arg(name) +
           QString(1 + 11 * name, QLatin1Char(static_cast<char>('a' + thread)));
}

/// Whether some thread writes exactly @p text, one of the calls of FacadeCalls() does, or it was there at first.
bool IsWritten(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char('-'));
    if (parts.size() == 3)
        return text == WrittenName(parts[0].mid(1).toInt(), parts[1].toInt());
    return text.isEmpty() || text == Latin1(FirstName) || text == Latin1("Some name") ||
           text == TSystemSettings::DefaultVehicleProfile || text == TSystemSettings::DefaultImplementProfile ||
           text == TSystemSettings::DefaultSprayerProfile;
}

// ---- Logs --------------------------------------------------------------------------------------------------------

bool LogTroubleCode(tagWorker& worker)
{
    const QByteArray text = LineText(worker, worker.user);
    const bool isLogged = TUserDiagnosticLogProxy().AddEntry(DIAG_COMPONENT_IMPLEMENT, DIAG_TYPE_DTC, worker.number,
                                                             Latin1(text), QLatin1String("first,second"));
    NoteLine(worker.user, "Implement,DTC," + QByteArray::number(worker.number) + ',' + text + ",first second",
             isLogged);
    return true;
}

bool LogEventByAccessor(tagWorker& worker)
{
    const QByteArray text = LineText(worker, worker.user);
    const bool isLogged =
        TUserLogAccessor().AddEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, worker.number, Latin1(text), QString());
    NoteLine(worker.user, "Console,Event," + worker.eventText + ',' + text + ',', isLogged);
    return true;
}

bool LogText(tagWorker& worker)
{
    TUserDiagnosticLogProxy log;
    const QByteArray text = LineText(worker, worker.user);
    NoteLine(worker.user, text, static_cast<TDiagnosticLogProxy&>(log).AddEntry(Latin1(text)));
    return true;
}

bool LogSentence(tagWorker& worker)
{
    const QByteArray text = LineText(worker, worker.nmea);
    const QByteArray line = text + "\r\n";
    NoteLine(worker.nmea, text, TNEMADiagnosticLogProxy().Log(line.constData(), static_cast<int>(line.size())));
    return true;
}

bool LogSentenceAsBytes(tagWorker& worker)
{
    const QByteArray text = LineText(worker, worker.nmea);
    const QByteArray line = text + "\r\n";
    TNEMADiagnosticLogProxy log;
    NoteLine(worker.nmea, text, log.LogDiagnostic(line.constData(), static_cast<int>(line.size())));
    return true;
}

/// Without a pause, so that the threads meet in the log rather than in the store. Both logs go on to another file, and
/// none grows to the size at which the oldest file is removed.
template <bool (*Log)(tagWorker&)>
bool Repeatedly(tagWorker& worker)
{
    constexpr int Times = 6;
    for (int i = 0; i < Times; ++i)
        Log(worker);
    return true;
}

bool Flush(tagWorker&)
{
    TUserDiagnosticLogProxy().FlushTempBuffer();
    TNEMADiagnosticLogProxy().FlushTempBuffer();
    return true;
}

/// A log may be closed by another thread, but it never fails and never finds a lost line again.
bool LooksSound(TDiagnosticLogProxy& log, long long& mostLost)
{
    const TDiagnosticLog::tagState state = log.GetState();
    const bool isSound = !state.hasFailed && state.lostLines >= mostLost;
    mostLost = state.lostLines;
    return isSound && !log.Reopen();
}

bool LookAtLogs(tagWorker& worker)
{
    TUserDiagnosticLogProxy user;
    TNEMADiagnosticLogProxy nmea;
    return LooksSound(user, worker.user.mostLost) && LooksSound(nmea, worker.nmea.mostLost);
}

/// What was exported ends with a whole line: no thread writes while files are copied.
bool ExportsWholeLines(TDiagnosticLogProxy& log, const QString& folder)
{
    QDir().mkpath(folder);
    const TDiagnosticLog::tagExportResult result = log.Export(folder);
    bool isWhole = result.allCopied && result.filesFound > 0 && result.filesHandled == result.filesFound;
    for (const QString& name : QDir(folder).entryList(QDir::Files)) {
        QFile file(folder + QLatin1Char('/') + name);
        isWhole = isWhole && file.open(QIODevice::ReadOnly) &&
                  (file.size() == 0 || (file.seek(file.size() - 2) && file.readAll() == "\r\n"));
    }
    return isWhole;
}

bool ExportLogs(tagWorker& worker)
{
    TUserDiagnosticLogProxy user;
    TNEMADiagnosticLogProxy nmea;
    return ExportsWholeLines(user, worker.exports + QLatin1String("/User")) &&
           ExportsWholeLines(nmea, worker.exports + QLatin1String("/NMEA"));
}

/// Meanwhile other threads lose the lines they give to the log, and are told so.
bool CloseAndRestoreLogs(tagWorker& worker)
{
    TUserDiagnosticLogProxy user;
    TNEMADiagnosticLogProxy nmea;
    user.Close();
    nmea.Close();
    user.Restore(worker.userLog, 0, 0);
    nmea.Restore(worker.nmeaLog, 0, 0);
    return true;
}

bool HoldLocks(tagWorker&)
{
    TUserDiagnosticLogProxy user;
    TNEMADiagnosticLogProxy nmea;
    user.Lock();
    user.Unlock();
    nmea.Lock();
    nmea.Unlock();
    return true;
}

// ---- Values ------------------------------------------------------------------------------------------------------

struct tagNamed
{
    void (TSystemSettingsProxy::*set)(const QString&);
    QString (*get)(const TSystemSettingsProxy&);
};

using FSystem = const TSystemSettingsProxy&;

/// The last three are in the memory of the library, the others in the store.
constexpr tagNamed NamedItems[] = {
    {&TSystemSettingsProxy::SetActiveVehicle, [](FSystem s) { return s.GetActiveVehicle(); }},
    {&TSystemSettingsProxy::SetActiveImplement, [](FSystem s) { return s.GetActiveImplement(); }},
    {&TSystemSettingsProxy::SetActiveJob, [](FSystem s) { return s.GetActiveJob(); }},
    {&TSystemSettingsProxy::SetActiveBoundary, [](FSystem s) { return s.GetActiveBoundary(); }},
    {&TSystemSettingsProxy::SetActiveShapeFile, [](FSystem s) { return s.GetActiveShapeFile(); }},
    {&TSystemSettingsProxy::SetCFFRoot, [](FSystem s) { return s.GetCFFRoot(); }},
    {&TSystemSettingsProxy::SetSoftwareVersion, [](FSystem s) { return s.GetSoftwareVersion(false); }},
    {&TSystemSettingsProxy::SetSoftwareVersion,
     [](FSystem s) { return s.GetPackageName().section(QLatin1Char('-'), 1); }},
};

bool WriteAndReadNames(tagWorker& worker)
{
    TSystemSettingsProxy system;
    for (const tagNamed& item : NamedItems) {
        (system.*item.set)(WrittenName(worker.number, worker.Draw(NamesOfThread)));
        if (!IsWritten(item.get(system)))
            return false;
    }
    return true;
}

/// The path holds the name twice. Both are read in one call, so that no other thread changes the name in between.
bool ComposePaths(tagWorker&)
{
    const QStringList parts = TSystemSettingsProxy().GetActiveVehiclePath().split(QLatin1Char('/'));
    const QString name = parts.value(parts.size() - 2);
    return IsWritten(name) && parts.value(parts.size() - 1) == name + QLatin1String(".ini");
}

bool WriteAndReadColours(tagWorker& worker)
{
    constexpr int Green = 100;
    constexpr int Blue = 200;
    TColorSettingsProxy colors;
    colors.SetDayMode(worker.Draw(2) == 0);
    colors.SetMapColor(QColor(worker.number, Green, Blue));
    const QColor color = colors.GetMapColor();
    const bool isOfWorker = color.green() == Green && color.blue() == Blue && color.red() < 16;
    return !color.isValid() || isOfWorker || color == FirstColor();
}

bool SetAndReadClock(tagWorker& worker)
{
    QTime time(12, 0, 0);
    QDate date(2030 + worker.number, 6, 15);
    TRegionSettingsProxy region;
    region.SetUTCTimeAndDate(time, date, true);
    return region.IsGPSTimeRecieved() && region.GetDate().isValid() && region.GetTime().isValid() &&
           region.GetDateTime().isValid() && region.GetDateTimeString().size() == 11;
}

// ---- What has no lock --------------------------------------------------------------------------------------------

bool ShowQuantities(tagWorker& worker)
{
    ChooseMeasures(worker.Draw(MeasureChoices));
    for (int unit = worker.Draw(8); unit < TUnitAbbreviations::UnitCount; unit += 8)
        worker.quantities.emplace(unit, QuantityText(unit));
    return true;
}

bool FindUnits(tagWorker& worker)
{
    const EUnitsType unit = static_cast<EUnitsType>(worker.Draw(TUnitAbbreviations::UnitCount));
    const QString abbreviation = TUnitAbbreviations::GetStringFromUnitType(unit, true);
    const EUnitsType found = TUnitAbbreviations::GetUnitTypeFromString(abbreviation, true);
    return abbreviation.isEmpty() ||
           TUnitAbbreviations::GetStringFromUnitType(found, true).compare(abbreviation, Qt::CaseInsensitive) == 0;
}

bool ConvertThereAndBack(tagWorker& worker)
{
    const double value = 1 + worker.Draw(1000);
    const double back = TUnits::ConvertUnit(TUnits::ConvertUnit(value, UNITS_KPA, UNITS_PSI), UNITS_PSI, UNITS_KPA);
    return qAbs(back - value) < value * 1e-6 &&
           TUnits::DisplayableToInternalFloatStr(TUnits::InternalToDisplayableFloatStr(Latin1("12.5"))) ==
               Latin1("12.5");
}

bool SerialiseThereAndBack(tagWorker& worker)
{
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    TBinarySerializer serializer(&buffer);
    const QString text = WrittenName(worker.number, worker.Draw(NamesOfThread));
    serializer.writeStartOfDataBlock(3);
    serializer << worker.number << text;
    buffer.seek(0);
    unsigned version = 0;
    int number = -1;
    QString read;
    const bool isBlock = serializer.readStartOfDataBlock(version);
    serializer >> number >> read;
    return isBlock && version == 3 && number == worker.number && read == text && serializer.atEnd();
}

bool CheckExtensions(tagWorker&) { return TSystemSettings::AreFilenameExtensionInvariantsSatisfied(); }

template <class Facade, class Operation>
void Append(const std::vector<Operation>& operations, std::vector<tagFacadeCall>& calls)
{
    for (const Operation& operation : operations) {
        calls.push_back({operation.name, [&operation] {
                             Facade facade;
                             operation.onFacade(facade);
                         }});
    }
}

} // namespace

// Mostly short; a few are longer than the staging buffer of the NMEA log.
QByteArray LineText(tagWorker& worker, const tagWorker::tagLogged& log)
{
    const int most = worker.Draw(8) == 0 ? 1200 : 80;
    const qlonglong number = log.lines.size() + log.refused;
    return QByteArray::number(worker.number) + '-' + QByteArray::number(number) + '-' +
           QByteArray(worker.Draw(most), static_cast<char>('a' + worker.number));
}

void NoteLine(tagWorker::tagLogged& log, const QByteArray& line, bool isLogged)
{
    if (isLogged)
        log.lines.append(line);
    else
        ++log.refused;
}

const std::vector<tagWork>& FacadeWorks()
{
    static const std::vector<tagWork> works = {
        {"AddEntry of a trouble code", 6, Repeatedly<LogTroubleCode>},
        {"AddEntry of the accessor", 6, Repeatedly<LogEventByAccessor>},
        {"AddEntry of a text", 6, Repeatedly<LogText>},
        {"Log", 6, Repeatedly<LogSentence>},
        {"LogDiagnostic", 6, Repeatedly<LogSentenceAsBytes>},
        {"FlushTempBuffer", 2, Flush},
        {"GetState and Reopen", 2, LookAtLogs},
        {"Export", 1, ExportLogs},
        {"Close and Restore", 1, CloseAndRestoreLogs},
        {"Lock and Unlock", 1, HoldLocks},
        {"names set and read", 4, WriteAndReadNames},
        {"a path that holds a name twice", 4, ComposePaths},
        {"colours set and read", 4, WriteAndReadColours},
        {"the clock set and read", 4, SetAndReadClock},
        {"quantities", 4, ShowQuantities},
        {"units by their abbreviations", 4, FindUnits},
        {"values there and back", 4, ConvertThereAndBack},
        {"the serializer there and back", 4, SerialiseThereAndBack},
        {"the extensions", 1, CheckExtensions},
    };
    return works;
}

std::vector<tagFacadeCall> FacadeCalls()
{
    std::vector<tagFacadeCall> calls;
    Append<TSystemSettingsProxy>(SystemOperations(), calls);
    Append<TRegionSettingsProxy>(RegionOperations(), calls);
    Append<TColorSettingsProxy>(ColorOperations(), calls);
    return calls;
}

void ChooseMeasures(int bits)
{
    constexpr EParamID Measures[] = {PARAM_METRIC, PARAM_US_MEASURES, PARAM_AREA_UNIT, PARAM_PRESSURE_UNIT};
    static_assert(1 << (sizeof(Measures) / sizeof(Measures[0])) == MeasureChoices, "one bit for each");
    for (const EParamID id : Measures) {
        ConfigManager->SetParameter(id, bits & 1, true);
        bits >>= 1;
    }
}

QString QuantityText(int unit)
{
    constexpr double Value = 12.345;
    return TUnits::GetValueString(Value, static_cast<EUnitsType>(unit), 2, nullptr);
}
