#include "support/SupportParts.h"

#include "fields/FieldDrives.h"
#include "fields/FieldPath.h"
#include "fields/FileTree.h"
#include "logs/TLogSeries.h"
#include "parameters/ParameterText.h"
#include "parameters/TParameterCatalogue.h"
#include "profiles/ProfileGroups.h"
#include "profiles/TProfile.h"
#include "stores/ChangeJournal.h"
#include "stores/DurableFiles.h"
#include "stores/StoreTable.h"
#include "stores/TSqliteConnection.h"
#include "support/UsedLibraries.h"
#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/DataFolder.h"

#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <cerrno>
#include <vector>

namespace {

using Proxy = TSystemSettingsProxy;

const QLatin1Char Separator('/');
const QLatin1Char Dot('.');
const QLatin1String LogMembers("logs/");
const int PatienceMs = 5000;
const qint64 PieceBytes = 0x10000;
const int JournalEntries = 10000; ///< all that a journal keeps

QByteArray Line(const QString& text) { return text.toUtf8() + '\n'; }

QByteArray Line(const char* name, const QString& value)
{
    return Line(QString::fromLatin1("%1: %2").arg(QLatin1String(name), value));
}

/// In the bundle, and in what the caller is told.
void Report(const tagSupportSource& source, const TSupportSink& sink, const QString& problem)
{
    source.problems->append(problem);
    sink(Line(problem));
}

void WriteProfile(const tagSupportSource& source, const TSupportSink& sink)
{
    sink(TProfile::Of(source.parameters, ProfileGroups::All(), source.request.softwareVersion).Text());
}

void WriteCatalogue(const tagSupportSource& source, const TSupportSink& sink)
{
    const QMap<int, QVariant> values = source.parameters.Values();
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        const QVariant value = values.value(parameter.id);
        sink(Line(QString::fromLatin1("%1 %2 = %3\n    %4; accepts %5")
                      .arg(QString::number(parameter.id), parameter.name,
                           value.isValid() ? TParameterCatalogue::Text(parameter, value) : QLatin1String("(not set)"),
                           parameter.meaning, parameter.accepts)));
    }
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        if (!TParameterCatalogue::Find(value.key()))
            sink(Line(QString::fromLatin1("%1 = %2").arg(QString::number(value.key()), value.value().toString())));
    }
}

void WriteStoreCheck(const tagSupportSource& source, const TSupportSink& sink)
{
    TSqliteConnection connection(DataFolder::StoreFile(source.request.dataFolder),
                                 TSqliteConnection::SQLITE_ACCESS_READ, PatienceMs);
    StoreTable::tagContent content;
    const tagStoreFinding finding = StoreTable::Read(connection, &content);
    if (finding.state == STORE_FILE_INACCESSIBLE) {
        Report(source, sink, QLatin1String("cannot check the store: ") + finding.words);
        return;
    }
    sink(Line("store", finding.state == STORE_FILE_CLEAN ? QLatin1String("structure is whole") : finding.words));
    if (!content.journalDamage.isEmpty())
        sink(Line("journal", content.journalDamage));
    sink(Line("parameters", QString::number(content.values.size())));
    if (!content.damaged.isEmpty())
        sink(Line("damage", StoreTable::DamageText(content.damaged)));
    for (auto row = content.unreadable.cbegin(); row != content.unreadable.cend(); ++row)
        sink(Line(QString::fromLatin1("parameter %1 cannot be read").arg(row.key())));
}

QString JournalValue(const tagParameter* known, const QVariant& value)
{
    if (!value.isValid())
        return QLatin1String("(not set)");
    return known ? TParameterCatalogue::Text(*known, value) : ParameterText::FromValue(value);
}

void WriteJournal(const tagSupportSource& source, const TSupportSink& sink)
{
    ChangeJournal::tagJournal journal;
    QString error;
    if (!ChangeJournal::Read(source.store, {std::nullopt, JournalEntries}, &journal, &error)) {
        Report(source, sink, error);
        return;
    }
    for (const ChangeJournal::tagEntry& entry : journal.entries) {
        const tagParameter* const known = TParameterCatalogue::Find(entry.parameter);
        sink(Line(QString::fromLatin1("%1  %2  %3  %4  %5 %6: %7 -> %8")
                      .arg(QString::number(entry.number), entry.time, entry.utc, entry.author,
                           QString::number(entry.parameter), known ? known->name : QString(),
                           JournalValue(known, entry.oldValue), JournalValue(known, entry.newValue))));
    }
    for (const qint64 number : journal.damaged)
        sink(Line(QString::fromLatin1("entry %1 cannot be read").arg(number)));
}

void WriteVersions(const tagSupportSource& source, const TSupportSink& sink)
{
    sink(Line("cabsettings", source.request.softwareVersion));
    sink(Line("software", Proxy().GetSoftwareVersion(true)));
    sink(Line("built", QLatin1String(TSystemSettings::CompileTime)));
    for (const tagUsedLibrary& library : UsedLibraries())
        sink(Line(library.name, library.version));
    sink(Line("system", QSysInfo::prettyProductName()));
    sink(Line("kernel", QSysInfo::kernelVersion()));
    sink(Line("processor", QSysInfo::currentCpuArchitecture()));
}

void WriteSystem(const tagSupportSource&, const TSupportSink& sink)
{
    unsigned total = 0;
    unsigned free = 0;
    Proxy().GetMainMemoryInfo(&total, &free);
    sink(Line("memory", QString::fromLatin1("%1 kB, %2 kB free").arg(total).arg(free)));
    if (Proxy().GetFileSystemInfo(&total, &free) == 0)
        sink(Line("internal drive", QString::fromLatin1("%1 blocks, %2 free").arg(total).arg(free)));
    QString stick;
    QString missing;
    int stickTotal = 0;
    int stickFree = 0;
    const bool hasStick = FieldDrives::Find(FIELD_DRIVE_STICK, &stick, &missing);
    if (hasStick && Proxy().GetUSBMemoryInfo(&stickTotal, &stickFree) == 1)
        sink(Line("stick", QString::fromLatin1("%1 blocks, %2 free").arg(stickTotal).arg(stickFree)));
    else
        sink(Line("stick", QLatin1String("none")));
    float load = 0;
    if (Proxy().GetCpuLoadInfo(&load) == 0)
        sink(Line("load", QString::number(double(load), 'f', 2)));
}

void WriteTree(const tagSupportSource& source, const TSupportSink& sink, const char* title, const QString& folder)
{
    sink(Line(QLatin1String(title) + QLatin1Char(':')));
    QList<FileTree::tagEntry> entries;
    QString reason;
    const bool isComplete = FileTree::List(folder, &entries, &reason);
    for (const FileTree::tagEntry& entry : entries) {
        const QString path = source.blanker ? source.blanker->Path(entry.path, entry.isFolder) : entry.path;
        sink(Line(entry.isFolder ? path + Separator : QString::fromLatin1("%1  %2").arg(path).arg(entry.size)));
    }
    if (!isComplete)
        Report(source, sink, source.blanker ? QLatin1String("the list is not complete") : reason);
}

void WriteFiles(const tagSupportSource& source, const TSupportSink& sink)
{
    QString drive;
    QString missing;
    FieldDrives::Find(FIELD_DRIVE_INTERNAL, &drive, &missing);
    WriteTree(source, sink, "data folder", source.request.dataFolder);
    if (!drive.startsWith(source.request.dataFolder + Separator))
        WriteTree(source, sink, "internal drive", drive);
}

void WriteFile(const tagSupportSource& source, const TSupportSink& sink, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        Report(source, sink, QString::fromLatin1("cannot read %1: %2").arg(path, file.errorString()));
        return;
    }
    for (QByteArray piece = file.read(PieceBytes); !piece.isEmpty(); piece = file.read(PieceBytes)) {
        if (!sink(piece))
            return;
    }
    if (file.error() != QFileDevice::NoError)
        Report(source, sink, QString::fromLatin1("cannot read %1: %2").arg(path, file.errorString()));
}

/// The folder of a log; errno is the reason.
QString CannotRead(const QString& basePath)
{
    const QString reason = DurableFiles::SystemText();
    return QString::fromLatin1("cannot read %1: %2").arg(QFileInfo(basePath).path(), reason);
}

/// The parts that are one file each.
struct tagPart
{
    const char* name;
    ESupportLines lines;
    void (*write)(const tagSupportSource&, const TSupportSink&);
};

constexpr tagPart Parts[] = {
    {"terminal.profile", SUPPORT_LINES_DONE, WriteProfile}, {"parameters.txt", SUPPORT_LINES_DONE, WriteCatalogue},
    {"journal.txt", SUPPORT_LINES_TEXT, WriteJournal},      {"store-check.txt", SUPPORT_LINES_TEXT, WriteStoreCheck},
    {"versions.txt", SUPPORT_LINES_DONE, WriteVersions},    {"system.txt", SUPPORT_LINES_DONE, WriteSystem},
    {"files.txt", SUPPORT_LINES_DONE, WriteFiles},
};

/// The parts that are a series of files each.
struct tagSeries
{
    ESupportLines lines;
    QString (Proxy::*basePath)() const;
};

constexpr tagSeries Series[] = {
    {SUPPORT_LINES_TEXT, &Proxy::GetInternalUserLogPath},
    {SUPPORT_LINES_NMEA, &Proxy::GetInternalNemaLogPath},
};

} // namespace

QList<tagSupportMember> SupportMembers()
{
    QList<tagSupportMember> members;
    for (const tagPart& part : Parts)
        members.append({QLatin1String(part.name), part.lines, part.write});
    for (const tagSeries& row : Series) {
        const QString basePath = (Proxy().*row.basePath)();
        const TLogSeries series(basePath);
        std::vector<TLogSeries::tagFile> files;
        if (!series.ReadFiles(QString(), &files)) {
            const QString problem = CannotRead(basePath);
            members.append({LogMembers + QFileInfo(basePath).completeBaseName() + QLatin1String("-problem.txt"),
                            SUPPORT_LINES_TEXT, [problem](const tagSupportSource& source, const TSupportSink& sink) {
                                Report(source, sink, problem);
                            }});
        }
        for (const TLogSeries::tagFile& file : files) {
            // Only names that the log itself gives are safe in an archive.
            if (!file.number || series.GetName(*file.number) != file.name)
                continue;
            const QString path = series.GetPath(file.name);
            members.append(
                {LogMembers + file.name, row.lines,
                 [path](const tagSupportSource& source, const TSupportSink& sink) { WriteFile(source, sink, path); }});
        }
    }
    return members;
}

bool CollectNames(TSqliteStore& store, const tagSupportRequest& request, TBlanker* blanker, QString* error)
{
    TFieldTree tree(store);
    QString missing;
    for (const EFieldDrive drive : {FIELD_DRIVE_INTERNAL, FIELD_DRIVE_STICK}) {
        QList<tagFieldItem> items;
        tree.List(drive, {}, &items, &missing);
        for (const tagFieldItem& item : items)
            blanker->Add(FieldPath::Kind(item.path), item.path.last());
    }
    const QMap<int, QVariant> values = store.Values();
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        if (parameter.mostBytes > 0)
            blanker->Add(parameter.name.section(Dot, 1), values.value(parameter.id).toString());
    }
    ChangeJournal::tagJournal journal;
    ChangeJournal::Read(store, {std::nullopt, JournalEntries}, &journal, &missing);
    for (const ChangeJournal::tagEntry& entry : journal.entries) {
        const tagParameter* const known = TParameterCatalogue::Find(entry.parameter);
        if (!known || known->mostBytes == 0)
            continue;
        blanker->Add(known->name.section(Dot, 1), entry.oldValue.toString());
        blanker->Add(known->name.section(Dot, 1), entry.newValue.toString());
    }
    const QString basePath = Proxy().GetInternalUserLogPath();
    const TLogSeries log(basePath);
    std::vector<TLogSeries::tagFile> files;
    if (!log.ReadFiles(QString(), &files) && errno != ENOENT) { // no folder has no names
        *error = CannotRead(basePath);
        return false;
    }
    for (const TLogSeries::tagFile& file : files) {
        QFile lines(log.GetPath(file.name));
        if (lines.open(QIODevice::ReadOnly)) {
            while (!lines.atEnd())
                blanker->AddFromUserLog(QString::fromLatin1(lines.readLine(PieceBytes)).trimmed());
        }
    }
    // Every other folder and file that has not the library's name is an item of the operator.
    QString drive;
    FieldDrives::Find(FIELD_DRIVE_INTERNAL, &drive, &missing);
    for (const QString& folder : {request.dataFolder, drive}) {
        QList<FileTree::tagEntry> entries;
        FileTree::List(folder, &entries, &missing);
        for (const FileTree::tagEntry& entry : entries)
            blanker->Path(entry.path, entry.isFolder);
    }
    return true;
}
