#include "Operations.h"

#include "../host/coverage/Drive.h"

#include "boundaries/Boundary.h"
#include "boundaries/ExclusionZones.h"
#include "coverage/TCoverageFile.h"
#include "guidance/FlagPoints.h"
#include "guidance/GuidanceLine.h"
#include "machine/Implement.h"
#include "profiles/ProfileGroups.h"
#include "profiles/TProfile.h"
#include "stores/TMemoryStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

QString Path(const QString& folder, const char* name) { return folder + QLatin1Char('/') + QLatin1String(name); }

/// A file that an operation replaces as a whole: its old and its new version, 0 and 1.
struct tagWholeFile
{
    const char* name;
    bool (*write)(const QString& path, int version, QString* error);
    int (*read)(const QString& path); ///< the version; -1 for anything else
};

// In a folder that the operation makes, and in one that is there.

bool WriteLine(const QString& path, int version, QString* error)
{
    return WriteGuidanceLine(path, {{52, 10}, {52.001, 10 + version * 0.001}}, error);
}

int ReadLine(const QString& path)
{
    QString error;
    const auto line = ReadGuidanceLine(path, &error);
    if (!line || line->b.latitude != 52.001)
        return -1;
    return line->b.longitude == 10 ? 0 : line->b.longitude == 10.001 ? 1 : -1;
}

tagBoundary SomeBoundary(int version)
{
    tagBoundary boundary;
    for (int corner = 0; corner < 1000 + version; ++corner)
        boundary.external.push_back({52 + 0.01 * std::sin(corner), 10 + 0.01 * std::cos(corner)});
    return boundary;
}

bool WriteOutline(const QString& path, int version, QString* error)
{
    return WriteBoundary(path, SomeBoundary(version), error);
}

int ReadOutline(const QString& path)
{
    QString error;
    const auto boundary = ReadBoundary(path, &error);
    return boundary ? static_cast<int>(boundary->external.size()) - 1000 : -1;
}

bool WriteMachine(const QString& path, int version, QString* error)
{
    return WriteImplement(path, {12.0 + version, 4, 1}, error);
}

int ReadMachine(const QString& path)
{
    QString error;
    const auto implement = ReadImplement(path, &error);
    return implement ? static_cast<int>(implement->width) - 12 : -1;
}

TProfile SomeProfile(int version)
{
    TMemoryStore store;
    store.SetParameter(PARAM_METRIC, version == 0, true);
    store.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
    return TProfile::Of(store, ProfileGroups::All(), QLatin1String("1.0.0"));
}

bool WriteProfile(const QString& path, int version, QString* error) { return SomeProfile(version).Write(path, error); }

int ReadProfile(const QString& path)
{
    QStringList problems;
    const auto profile = TProfile::Read(path, PROFILE_EDITS_REFUSED, &problems);
    if (!profile)
        return -1;
    for (const tagProfileParameter& parameter : profile->Parameters()) {
        if (parameter.known->id == PARAM_METRIC)
            return parameter.value.toBool() ? 0 : 1;
    }
    return -1;
}

/// Other zones, and one more of them: the index differs too.
bool WriteZones(const QString& path, int version, QString* error)
{
    std::vector<TGeoRing> zones;
    for (int zone = 0; zone < 20 + version; ++zone)
        zones.push_back({{52, 10}, {52.001, 10 + 0.001 * zone}, {52, 10.002 + version * 0.001}, {51.999, 10}});
    return WriteExclusionZones(path, zones, error);
}

int ReadZones(const QString& path)
{
    QString error;
    const auto zones = ReadExclusionZones(path, &error);
    if (!zones || zones->empty())
        return -1;
    const int version = static_cast<int>(zones->size()) - 20;
    for (const TGeoRing& zone : *zones) {
        const auto isCorner = [version](const tagGeoPoint& corner) {
            return corner.longitude == 10.002 + version * 0.001;
        };
        if (zone.size() != 4 || std::none_of(zone.begin(), zone.end(), isCorner))
            return -1;
    }
    return version;
}

constexpr tagWholeFile Zones = {"Zones/F1/F1.shp", &WriteZones, &ReadZones};
constexpr tagWholeFile Line = {"Fields/F1/ABLines/line.ini", &WriteLine, &ReadLine};
constexpr tagWholeFile LineOfField = {"Lines/line.ini", &WriteLine, &ReadLine};
constexpr tagWholeFile Outline = {"F1.bdy", &WriteOutline, &ReadOutline};
constexpr tagWholeFile Machine = {"implement.ini", &WriteMachine, &ReadMachine};
constexpr tagWholeFile Profile = {"tractor.profile", &WriteProfile, &ReadProfile};

template <const tagWholeFile& File>
void PrepareOld(const QString& folder)
{
    QString error;
    if (!File.write(Path(folder, File.name), 0, &error))
        qFatal("%s", qPrintable(error));
}

/// The old zones were written by a program that numbers its records from 0.
void PrepareZones(const QString& folder)
{
    QString error;
    const QString path = Path(folder, "Zones/F1/F1.shp");
    if (!WriteZones(path, 0, &error))
        qFatal("%s", qPrintable(error));
    QFile file(path);
    const qint64 firstRecord = 100;
    if (!file.open(QIODevice::ReadWrite) || !file.seek(firstRecord) || file.write(QByteArray(4, '\0')) != 4)
        qFatal("cannot write %s", qPrintable(path));
}

void PrepareNothing(const QString& folder) { QDir().mkpath(folder); }

template <const tagWholeFile& File>
bool WriteNew(const QString& folder, const std::function<void()>& begin, TPromises& promises)
{
    begin();
    QString error;
    const bool isWritten = File.write(Path(folder, File.name), 1, &error);
    if (isWritten)
        promises.Make(1);
    return isWritten && error.isEmpty();
}

/// Another program has just made the folder, and has not synced it.
template <const tagWholeFile& File>
bool WriteInNewFolder(const QString& folder, const std::function<void()>& begin, TPromises& promises)
{
    begin();
    return QDir(folder).mkdir(QFileInfo(QLatin1String(File.name)).path()) && WriteNew<File>(
                                                                                 folder, [] {}, promises);
}

template <const tagWholeFile& File, bool IsReplaced>
QByteArray BrokenFile(const QString& folder, const tagAftermath& after)
{
    const QString path = Path(folder, File.name);
    const int version = File.read(path);
    if (!after.promises.empty() && version != 1)
        return "what was written is not there";
    if (version < 0 && (IsReplaced || QFile::exists(path)))
        return "neither the old nor the new file";
    QString error;
    if (!File.write(path, 1, &error) || File.read(path) != 1)
        return "the next program cannot write: " + error.toUtf8();
    return Leftovers(folder);
}

template <const tagWholeFile& File>
tagOperation Replacing(const char* name)
{
    return {name, &PrepareOld<File>, &WriteNew<File>, &BrokenFile<File, true>, false, true, 1};
}

template <const tagWholeFile& File>
tagOperation Making(const char* name)
{
    return {name, &PrepareNothing, &WriteNew<File>, &BrokenFile<File, false>, false, true, 1};
}

// The coverage.

constexpr int OldStrips = 10;
constexpr int NewStrips = 30;
constexpr const char* CoverageName = "Jobs/J_1/J_1.cov";

std::vector<tagCoverageStrip> Strips() { return Pass({0, 0}, 15, 12, 0.28, OldStrips + NewStrips); }

std::unique_ptr<TCoverageFile> OpenCoverage(const QString& folder, tagCoverage* found)
{
    QString error;
    return TCoverageFile::Open(Path(folder, CoverageName), found, &error);
}

void AddStrips(TCoverageFile& file, std::size_t from, std::size_t to)
{
    const std::vector<tagCoverageStrip> strips = Strips();
    file.SetOrigin({52, 10});
    for (std::size_t strip = from; strip < to; ++strip)
        file.Add(strips.at(strip));
}

void PrepareCoverage(const QString& folder)
{
    tagCoverage found;
    const auto file = OpenCoverage(folder, &found);
    AddStrips(*file, 0, OldStrips);
    if (!file->Flush())
        qFatal("no coverage");
}

/// Promises the number of the strips that are on the disk.
bool AppendCoverage(const QString& folder, const std::function<void()>& begin, TPromises& promises)
{
    begin();
    tagCoverage found;
    const auto file = OpenCoverage(folder, &found);
    if (!file)
        return false;
    const std::size_t there = found.strips.size();
    bool isDone = true;
    for (std::size_t strip = there; strip < OldStrips + NewStrips; strip += 6) {
        AddStrips(*file, strip, std::min<std::size_t>(strip + 6, OldStrips + NewStrips));
        isDone = file->Flush() && isDone;
        promises.Make(static_cast<int>(there) + static_cast<int>(file->State().written));
    }
    return isDone;
}

template <std::size_t Old>
QByteArray BrokenCoverage(const QString& folder, const tagAftermath& after)
{
    tagCoverage found;
    auto file = OpenCoverage(folder, &found);
    if (!file)
        return "the coverage cannot be opened";
    const std::size_t promised =
        std::max(after.promises.empty() ? 0 : static_cast<std::size_t>(after.promises.back()), Old);
    if (found.strips.size() < promised)
        return QByteArray::number(static_cast<int>(promised - found.strips.size())) + " strips are missing";
    const std::vector<tagCoverageStrip> strips = Strips();
    for (std::size_t strip = 0; strip < found.strips.size(); ++strip) {
        if (strip >= strips.size() || !IsSame(found.strips[strip], strips[strip]))
            return "strip " + QByteArray::number(static_cast<int>(strip)) + " is not what was added";
    }
    AddStrips(*file, found.strips.size(), strips.size());
    if (!file->Flush())
        return "the next program cannot write";
    file.reset();
    file = OpenCoverage(folder, &found);
    if (!file || found.strips.size() != strips.size() || found.lostBytes != 0)
        return "the next program has not written all";
    return Leftovers(folder);
}

} // namespace

std::vector<tagOperation> FileOperations()
{
    return {
        Making<Line>("first guidance line"),
        Replacing<Line>("guidance line"),
        {"guidance line in a new folder", &PrepareNothing, &WriteInNewFolder<LineOfField>,
         &BrokenFile<LineOfField, false>, false, true, 1},
        Replacing<Outline>("boundary"),
        Replacing<Machine>("implement"),
        Making<Zones>("first exclusion zones"),
        {"exclusion zones", &PrepareZones, &WriteNew<Zones>, &BrokenFile<Zones, true>, false, true, 1},
        Replacing<Profile>("export of a profile"),
        {"first coverage", &PrepareNothing, &AppendCoverage, &BrokenCoverage<0>, false, true, 1},
        {"coverage", &PrepareCoverage, &AppendCoverage, &BrokenCoverage<OldStrips>, false, true, 1},
    };
}
