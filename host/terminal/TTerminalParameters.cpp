#include "terminal/TTerminalParameters.h"

#include "diagnostics/LogTimes.h"
#include "stores/StandardError.h"
#include "stores/TChangeAuthor.h"
#include "terminal/DataFolder.h"

#include <QDir>
#include <QMutexLocker>

namespace {

void SayInUse(const QString& problem, const QString& drive)
{
    if (!problem.isEmpty())
        SayOnStandardError(QString::fromLatin1("%1; the terminal uses \"%2\"").arg(problem, drive));
}

} // namespace

TTerminalParameters::TTerminalParameters(TParameterStore& store, const QString& dataFolder)
    : m_Store(store), m_DataFolder(QDir(dataFolder).absolutePath())
{}

bool TTerminalParameters::PlaceDrives(QString* error)
{
    const QMutexLocker lock(&m_Mutex);
    UseExternalDrive(Stored(PARAM_EXTERNAL_DRIVE));
    return UseInternalDrive(Stored(PARAM_INTERNAL_DRIVE), error);
}

void TTerminalParameters::KeepInOrder(EParamID number, const QString& basePath)
{
    {
        const QMutexLocker lock(&m_Mutex);
        m_Logs.insert(number, basePath);
    }
    OrderLogTimes(basePath);
}

// A log stores its number when it has filled a file, and has not made the next one yet. That is never a change by the
// operator, also when the line that filled the file was written for one.
bool TTerminalParameters::SetParameter(EParamID id, const QVariant& value, bool persist)
{
    QString log;
    {
        const QMutexLocker lock(&m_Mutex);
        log = m_Logs.value(id);
    }
    if (log.isEmpty())
        return m_Store.SetParameter(id, value, persist);
    const TChangeAuthor author(CHANGE_AUTHOR_LIBRARY);
    const bool isStored = m_Store.SetParameter(id, value, persist);
    OrderLogTimes(log);
    return isStored;
}

QVariant TTerminalParameters::GetParameter(EParamID id)
{
    switch (id) {
    case PARAM_INTERNAL_DRIVE:
        return InternalDrive();
    case PARAM_EXTERNAL_DRIVE:
        return ExternalDrive();
    default:
        return m_Store.GetParameter(id);
    }
}

bool TTerminalParameters::HasParameter(EParamID id)
{
    return id == PARAM_INTERNAL_DRIVE || id == PARAM_EXTERNAL_DRIVE || m_Store.HasParameter(id);
}

const QString& TTerminalParameters::GetDiagnosticText(EDiagnosticComponent component, EDiagnosticType type, int code)
{
    return m_Store.GetDiagnosticText(component, type, code);
}

// The store is read under the lock, so that no thread goes back to a value that another thread has seen replaced.
QString TTerminalParameters::InternalDrive()
{
    const QMutexLocker lock(&m_Mutex);
    const QString asked = Stored(PARAM_INTERNAL_DRIVE);
    QString problem;
    if (asked != m_Internal.asked && !UseInternalDrive(asked, &problem))
        SayInUse(problem, m_Internal.inUse);
    return m_Internal.inUse;
}

QString TTerminalParameters::ExternalDrive()
{
    const QMutexLocker lock(&m_Mutex);
    const QString asked = Stored(PARAM_EXTERNAL_DRIVE);
    if (asked != m_External.asked)
        UseExternalDrive(asked);
    return m_External.inUse;
}

QString TTerminalParameters::Stored(EParamID drive) { return m_Store.GetParameter(drive).toString(); }

bool TTerminalParameters::UseInternalDrive(const QString& asked, QString* error)
{
    m_Internal.asked = asked;
    QString problem;
    const QString drive = DataFolder::InternalDrive(m_DataFolder, asked, &problem);
    if (!DataFolder::MakeTree(drive, error))
        return false;
    m_Internal.inUse = drive;
    SayInUse(problem, drive);
    return true;
}

// The drive in the data folder gets its mount point here; the system makes all others.
void TTerminalParameters::UseExternalDrive(const QString& asked)
{
    QString problem;
    m_External = {asked, DataFolder::ExternalDrive(m_DataFolder, asked, &problem)};
    if (m_External.inUse == DataFolder::ExternalDrive(m_DataFolder))
        QDir().mkpath(m_External.inUse);
    SayInUse(problem, m_External.inUse);
}
