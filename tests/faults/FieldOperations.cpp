#include "Operations.h"

#include "TTemporaryFolder.h"

#include "fields/TFieldTree.h"
#include "stores/TMemoryStore.h"
#include "stores/TSqliteStore.h"
#include "support/SupportBundle.h"
#include "terminal/DataFolder.h"
#include "terminal/TTerminal.h"

#include <QDir>
#include <QFile>

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
    explicit tagTerminal(const QString& folder) : terminal(store), tree(store)
    {
        isRunning = terminal.Start(folder, &error);
    }

    TMemoryStore store;
    TTerminal terminal;
    TFieldTree tree;
    QString error;
    bool isRunning = false;
};

void PrepareField(const QString& folder)
{
    QDir().mkpath(folder);
    const tagTerminal terminal(folder); // makes its folders
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
    tagTerminal terminal(folder);
    if (!terminal.isRunning)
        return false;
    begin();
    const bool isDone = terminal.tree.Rename(Farm + QStringList(Names[0]), Names[1], &terminal.error) == FIELD_DONE;
    if (isDone)
        promises.Make(1);
    return isDone;
}

QByteArray BrokenField(const QString& folder, const tagAftermath& after)
{
    tagTerminal next(folder);
    QList<tagFieldItem> items;
    if (!next.isRunning || next.tree.List(FIELD_DRIVE_INTERNAL, Farm, &items, &next.error) != FIELD_DONE)
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
        {"support bundle", &PrepareStick, &WriteBundle, &BrokenBundle, false, true, 8},
    };
}
