#include "Operations.h"

#include "TTemporaryFolder.h"

#include "fields/TFieldTree.h"
#include "parameters/HostParameters.h"
#include "stores/TMemoryStore.h"
#include "stores/TSqliteStore.h"
#include "support/SupportBundle.h"
#include "terminal/DataFolder.h"
#include "terminal/TTerminal.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

// A field is renamed; the folder is that of a terminal.

const QStringList Farm = {QLatin1String("Smith"), QLatin1String("North")};
const QLatin1String Names[] = {QLatin1String("F1"), QLatin1String("F2")}; // before and after
const char* const Files[] = {"%/%.ini", "%/Boundaries/%/%.bdy", "%/Jobs/J_1/J_1.ini"};

QString FarmFolder(const QString& folder) { return folder + QLatin1String("/internal/Clients/Smith/North/"); }

QString FileOf(const QString& folder, const char* pattern, const QString& field)
{
    return FarmFolder(folder) + QString::fromLatin1(pattern).replace(QLatin1Char('%'), field);
}

QByteArray Content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Put(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) ||
        file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// A terminal that runs while the object lives.
struct tagTerminal
{
    tagTerminal() : terminal(store), tree(store) {}

    bool Start(const QString& folder) { return terminal.Start(folder, &error); }

    TMemoryStore store;
    TTerminal terminal;
    TFieldTree tree;
    QString error;
};

void PrepareField(const QString& folder)
{
    QDir().mkpath(folder);
    tagTerminal terminal;
    if (!terminal.Start(folder)) // which makes its folders
        qFatal("%s", qPrintable(terminal.error));
    for (const char* pattern : Files)
        Put(FileOf(folder, pattern, Names[0]), pattern);
}

/// Where the field is as a whole: 0 or 1; -1 when it is in neither place.
int PlaceOfField(const QString& folder)
{
    for (const int place : {0, 1}) {
        bool isWhole = !QFile::exists(FarmFolder(folder) + Names[1 - place]);
        for (const char* pattern : Files)
            isWhole = isWhole && Content(FileOf(folder, pattern, Names[place])) == pattern;
        if (isWhole)
            return place;
    }
    return -1;
}

bool RenameField(const QString& folder, const std::function<void()>& begin, TPromises& promises)
{
    tagTerminal terminal;
    if (!terminal.Start(folder))
        return false;
    begin();
    const bool isDone = terminal.tree.Rename(Farm + QStringList(Names[0]), Names[1], &terminal.error) == FIELD_DONE;
    if (isDone)
        promises.Make(1);
    return isDone;
}

QByteArray BrokenField(const QString& folder, const tagAftermath& after)
{
    tagTerminal next;
    QList<tagFieldItem> items;
    if (!next.Start(folder) || next.tree.List(FIELD_DRIVE_INTERNAL, Farm, &items, &next.error) != FIELD_DONE)
        return "the next program cannot list the fields: " + next.error.toUtf8();
    const int place = PlaceOfField(folder);
    if (place < 0)
        return "the field is in neither place";
    if (!after.promises.empty() && place != 1)
        return "the field has its old name again";
    if (next.tree.Rename(Farm + QStringList(Names[place]), Names[1 - place], &next.error) != FIELD_DONE)
        return "the next renaming fails: " + next.error.toUtf8();
    if (PlaceOfField(folder) != 1 - place)
        return "the next renaming has left something";
    return Leftovers(folder + QLatin1String("/internal/Clients"));
}

// A field is copied to a stick; the folder is that of the clients on it.

const QByteArray OldFile = "an older file";

QByteArray FileToCopy(const char* pattern) { return QByteArray(pattern).repeated(20000); } // in several pieces

QString CopyOf(const QString& folder, const char* pattern)
{
    return folder + QLatin1String("/Smith/North/") + QString::fromLatin1(pattern).replace(QLatin1Char('%'), Names[0]);
}

void PrepareClients(const QString& folder) { Put(CopyOf(folder, Files[0]), OldFile); }

bool CopyField(const QString& folder, const std::function<void()>& begin, TPromises& promises)
{
    static const TTemporaryFolder data; // not on the stick
    tagTerminal terminal;
    terminal.store.SetParameter(PARAM_EXTERNAL_DRIVE, QFileInfo(folder).path(), true);
    if (!terminal.Start(data.Path()))
        return false;
    for (const char* pattern : Files)
        Put(FileOf(data.Path(), pattern, Names[0]), FileToCopy(pattern));
    begin();
    tagFieldCopy copy;
    const bool isDone = terminal.tree.Copy(Farm + QStringList(Names[0]), FIELD_DRIVE_STICK, true, {}, &copy,
                                           &terminal.error) == FIELD_DONE;
    if (isDone)
        promises.Make(1);
    return isDone;
}

/// Which of the copies is neither the old file nor the new one, or not @p isNew; empty when all are.
QByteArray BrokenCopy(const QString& folder, bool isNew)
{
    for (const char* pattern : Files) {
        const QString path = CopyOf(folder, pattern);
        const QByteArray there = Content(path);
        const bool isOld = pattern == Files[0] ? there == OldFile : !QFile::exists(path);
        if (there != FileToCopy(pattern) && (isNew || !isOld))
            return "not the file that was copied: " + path.toUtf8();
    }
    return QByteArray();
}

QByteArray BrokenClients(const QString& folder, const tagAftermath& after)
{
    QByteArray broken = BrokenCopy(folder, !after.promises.empty());
    TPromises promises;
    promises.Begin();
    const bool isDone = CopyField(
        folder, [] {}, promises);
    if (broken.isEmpty() && !isDone)
        broken = "the next copy fails";
    if (broken.isEmpty())
        broken = BrokenCopy(folder, true);
    return broken.isEmpty() ? Leftovers(folder) : broken;
}

// A support bundle is written; the folder is the stick.

QString Archive(const QString& folder) { return folder + QLatin1String("/support.zip"); }

const QByteArray OldArchive = "an older archive";

bool IsArchive(const QByteArray& bytes)
{
    const int bytesOfEnd = 22; // of a zip archive without a comment
    return bytes.startsWith("PK\x03\x04") && bytes.right(bytesOfEnd).startsWith("PK\x05\x06");
}

void PrepareStick(const QString& folder) { Put(Archive(folder), OldArchive); }

bool WriteBundle(const QString& folder, const std::function<void()>& begin, TPromises& promises)
{
    static const TTemporaryFolder data; // not on the stick
    QString error;
    const auto store = TSqliteStore::Open(DataFolder::StoreFile(data.Path()), &error);
    if (!store)
        return false;
    TTerminal terminal(*store);
    if (!terminal.Start(data.Path(), &error))
        return false;
    begin();
    tagSupportBundle bundle;
    const bool isDone =
        WriteSupportBundle(*store, Archive(folder), {data.Path(), QString(), false}, {}, &bundle, &error);
    if (isDone)
        promises.Make(1);
    return isDone;
}

QByteArray BrokenBundle(const QString& folder, const tagAftermath& after)
{
    const QByteArray there = Content(Archive(folder));
    if (!IsArchive(there) && (there != OldArchive || !after.promises.empty()))
        return "neither the old nor the new archive";
    TPromises promises;
    promises.Begin();
    if (!WriteBundle(
            folder, [] {}, promises) ||
        !IsArchive(Content(Archive(folder))))
        return "the next bundle fails";
    return Leftovers(folder);
}

} // namespace

std::vector<tagOperation> FieldOperations()
{
    return {
        {"renamed field", &PrepareField, &RenameField, &BrokenField, false, true, 4},
        {"field copied to a stick", &PrepareClients, &CopyField, &BrokenClients, false, true, 4, true},
        {"support bundle", &PrepareStick, &WriteBundle, &BrokenBundle, false, true, 8},
    };
}
