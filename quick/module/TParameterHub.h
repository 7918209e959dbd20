#pragma once

#include "platform/EParamID.h"
#include "stores/TParameterWatch.h"

#include <QHash>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QThread>
#include <QVariant>

class TSqliteStore;

/// What all objects of the module share: the store, the data folder, and one watch of the parameters, so that a page
/// with a hundred settings does not need a hundred watches.
class TParameterHub : public QObject
{
    Q_OBJECT

public:
    TParameterHub(TSqliteStore& store, const QString& dataFolder);

    /// Ends when everything that Write() was given is on the disk, or has failed.
    ~TParameterHub() override;

    /// The hub that is published. Objects of the module exist only while there is one.
    static TParameterHub& Instance();

    static bool IsPublished();

    TSqliteStore& Store() const { return m_Store; }
    const QString& DataFolder() const { return m_DataFolder; }

    /// The operator's choice of a parameter. Its value is in memory when this returns. It is written to the disk by a
    /// thread of its own, so that a page does not stand still while the disk is slow or another program has the store
    /// locked; Written() follows. Values that wait are written in one transaction.
    /// @param value invalid: the parameter is removed.
    void Write(int number, const QVariant& value);

    /// The values with which this run of the program began, of the language and the decimal sign.
    int LanguageAtStart() const { return m_LanguageAtStart; }
    int DecimalPointAtStart() const { return m_DecimalPointAtStart; }

signals:
    /// The value of the parameter with this number has changed, by whichever thread or program.
    void Changed(int number);

    /// A value that Write() was given is on the disk. False: it is not, and the store tries again with the next write.
    void Written(int number, bool isOnDisk);

private:
    void WriteToDisk();

    TSqliteStore& m_Store;
    const QString m_DataFolder;
    const int m_LanguageAtStart;
    const int m_DecimalPointAtStart;
    TParameterWatch m_Watch;
    QMutex m_Mutex; // guards the next member, and that memory gets its values in their order
    QHash<int, QVariant> m_Unwritten;
    QThread m_DiskThread;
    QObject* const m_Writer; // lives in the disk thread, which deletes it
};
