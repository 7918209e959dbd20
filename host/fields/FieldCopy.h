#pragma once

#include "fields/FileTree.h"
#include "fields/TFieldTree.h"
#include "fields/TOpenDrive.h"

#include <QSet>
#include <QString>
#include <QStringList>

/// One copy of an item from a drive to another; see TFieldTree::Copy().
class TFieldCopy
{
public:
    TFieldCopy(const QString& from, const QString& to, const TFieldCopyProgress& progress);

    EFieldResult Run(const QStringList& path, bool force, tagFieldCopy* copy, QString* error);

private:
    EFieldResult CopyAll(const QStringList& path, bool force, QString* error);
    bool ListSource(const QStringList& path, QString* error);
    bool FitsOnStick(QString* error) const;
    bool FitsBeside(const QString& folder, const QStringList& names, QString* error) const;
    EFieldResult CompareWithTarget(bool force, QString* error);
    bool HasRoom(QString* error) const;
    bool CopyMissing(QString* error);
    bool CopyFile(const QString& path, QString* error);
    bool Fail(const char* doing, const QString& path, QString* error) const;
    void Report(qint64 bytesOfFile) const;

    const TOpenDrive m_From;
    const TOpenDrive m_To;
    const QString m_ToRoot;
    const TFieldCopyProgress& m_Progress;

    QString m_Folder;                    ///< of the item, on both drives
    QList<FileTree::tagEntry> m_Entries; ///< relative to the drives
    QSet<QString> m_Missing;             ///< the files to copy
    tagFieldCopy m_Copy;
    tagFieldCopyState m_State;
};
