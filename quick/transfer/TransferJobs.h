#pragma once

#include "profiles/ProfileImport.h"
#include "stores/TSqliteStore.h"

#include <QString>
#include <QStringList>
#include <QVariantList>

#include <functional>

/// How a transfer has ended.
struct tagTransferResult
{
    bool isDone = false;
    QString text; ///< one sentence: what was done, or why it was not
    QVariantList changes;
    QVariantList conflicts;
};

/// 0 to 1.
using TTransferProgress = std::function<void(double)>;

/// The work of TTransfer, for its thread. What is written to the stick is on the stick when a function returns a result
/// that is done: files and folders are synced, and it is the stick that was there at the start.
namespace TransferJobs {

tagTransferResult ExportLogs(const TTransferProgress& progress);
tagTransferResult ExportProfile(TSqliteStore& store, const QString& name, const QStringList& groups);
tagTransferResult WriteSupport(TSqliteStore& store, const QString& dataFolder, bool isAnonymous,
                               const TTransferProgress& progress);

/// What an import would change. Done without a text.
tagTransferResult CompareProfile(TSqliteStore& store, const QString& file);
tagTransferResult ImportProfile(TSqliteStore& store, const QString& file, ProfileImport::EResolution resolution);

/// The profiles in the root of the stick, by name: maps of file (a path), name, and text, which says where it is from.
QVariantList Profiles(TSqliteStore& store);

/// The name of the file of a profile: with the extension, once.
QString ProfileFileName(const QString& name);

} // namespace TransferJobs
