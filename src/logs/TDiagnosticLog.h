#pragma once

#include "platform/EParamID.h"
#include "platform/Export.h"

#include <QByteArray>
#include <QDate>
#include <QFile>
#include <QString>

#include <vector>

/// A text log kept as a numbered series of files in one folder, with a limit on the size of a file and on the number of
/// files, and an optional staging buffer that gathers small writes.
///
/// A base path of /logs/user.log gives /logs/user00001.log, /logs/user00002.log and so on; 99999 is followed by 00001.
/// Every file of the folder whose name starts with "user" and ends with ".log" belongs to the series.
///
///     TDiagnosticLog log(0, 0x100000, 4, PARAM_USER_LOG_FILE_NUMBER);
///     if (log.Restore(QLatin1String("/logs/user.log"), 0, 0))
///         log.AddEntry(QLatin1String("started"));
///
/// Failures are reported by the results alone. The log has no lock of its own: callers go through the façades
/// (TUserDiagnosticLogProxy, TNEMADiagnosticLogProxy), which serialise the calls.
class CABSETTINGS_EXPORT TDiagnosticLog
{
public:
    /// The result of an export.
    struct tagExportResult
    {
        int filesFound;   ///< files of the series
        int filesHandled; ///< files tried, whether copied or not
        bool allCopied;   ///< every file found was copied; false when the log's folder does not exist or cannot be read
    };

    /// What a host needs to keep a log going; see GetState().
    struct tagState
    {
        bool isOpen;
        bool hasFailed;      ///< closed because its file could not be opened, not by Close(); see Reopen()
        long long lostLines; ///< lines given to this object that are in no file
    };

    /// @param stagingSize bytes of the staging buffer; 0 writes every entry straight to the file.
    /// @param maxFileSize bytes; a file that has grown past it is followed by the next one.
    /// @param maxFileCount files kept; 1 names a single file, without a number.
    /// @param iterationParam parameter that holds the number of the next file, read here and written whenever a number
    ///        is taken. That write happens inside the calls below, under the façade's lock: the store must not log.
    TDiagnosticLog(int stagingSize, long long maxFileSize, int maxFileCount, EParamID iterationParam);

    /// Writes what is staged and closes the log.
    virtual ~TDiagnosticLog();

    TDiagnosticLog(const TDiagnosticLog&) = delete;
    TDiagnosticLog& operator=(const TDiagnosticLog&) = delete;

    /// Names the series and opens its current file. An open log is not changed, and the result is false. False too when
    /// the folder does not exist, since it is never made here, or when the file cannot be opened; the log is then
    /// closed.
    /// @param basePath folder, stem and extension of the series.
    /// @param maxFileCount number of files kept; 0 for the constructor's number.
    /// @param maxFileSize bytes; 0 for the constructor's limit.
    bool Restore(const QString& basePath, int maxFileCount, long long maxFileSize);

    /// Opens the current file at its end. False when the log is open already, was never restored, or cannot be opened.
    bool Open();

    /// Opens a log that has failed. It tries the same file again and takes no new number. False when the log has not
    /// failed, and when the file still cannot be opened.
    bool Reopen();

    /// Whether the log is open, and what it has lost. A log has failed when Restore(), Open() or Export() could not
    /// open its file, or when there was no next file; Close() and CloseWithoutFlush() end that state. Lost are the
    /// lines that were given to a closed log, were not written because the disk was full, or were staged and then
    /// dropped. A line ends with a line feed or where the data of a call ends.
    tagState GetState() const;

    /// Writes what is staged and closes the file.
    void Close();

    /// Closes the file. What is staged stays staged; a flush of the closed log drops it.
    void CloseWithoutFlush();

    /// Stages @p length bytes. If they do not fit into the staging buffer, writes what is staged and then these bytes.
    /// False when the log is closed or when not all of these bytes were written. Staged bytes that cannot be written
    /// are dropped, which the result does not tell; see GetState().
    bool LogDiagnostic(const char* data, int length);

    /// Writes what is staged. False when nothing was staged, the log is closed, or not everything was written; the
    /// staging buffer is empty afterwards in every case.
    bool FlushTempBuffer();

    /// Writes past the staging buffer, and starts the next file of the series when this one has grown past its limit.
    /// False when the log is closed, not everything was written (the file stays open), the length is negative, or the
    /// next file cannot be opened. Devices have no size limit.
    ///
    /// A file that another program has removed is left within a second, before anything else is written: the log goes
    /// on in the newest file of the series or in a new one.
    bool WriteToLog(const char* data, int length);

    /// Logs one line: local date and time ("2024.05.01-13:07:09:042,"), @p text in Latin-1 (other characters become
    /// "?"), carriage return, line feed. An invalid date or time is left out. Result as of LogDiagnostic().
    bool AddEntry(const QString& text);

    /// Copies every file of the series, complete, into the folder @p target, overwriting, and opens the log again.
    tagExportResult Export(const QString& target);

    /// Copies as Export() does, the oldest file first, but leaves the log open or closed as it is. When one copy fails,
    /// the others are made all the same.
    tagExportResult ExportFile(const QString& target);

    /// Path of the file to log to next: the newest of the series if it has room, otherwise a new one. For a new one the
    /// oldest file is removed when there are too many. Empty when the folder does not exist.
    QString GenerateNextFileName();

    /// Takes the next number of the series, in five digits.
    QString NextLogFileIterationNumber();

private:
    /// Which file of the series counts as the newest. When the log goes on to its next file, it is the file that the
    /// log has just filled, whatever the times: if the machine's clock was set back, older files seem to be newer. The
    /// next number would then follow one of those, and the file just written could be removed as the oldest.
    enum ENewest
    {
        NEWEST_BY_TIME,
        NEWEST_IS_CURRENT
    };

    bool Restore(const QString& basePath, int maxFileCount, long long maxFileSize, ENewest newest);
    QString NextFileName(ENewest newestIs);

    /// Writes what is staged, for which there is room in the file, and @p data behind it, in one call to the system.
    /// Result as of WriteToLog(), for @p data alone: what is staged is dropped where it cannot be written.
    bool WriteBehindStaged(const char* data, int length);

    /// Writes at the end of the open file, and tells how many bytes got there.
    int Append(const char* data, int length);

    /// Starts the next file of the series when this one has grown past its limit; false when it cannot be opened.
    bool GoOn();

    /// Leaves a file that has been removed for another one of the series. False when the log is closed, also because no
    /// other file can be opened. Looks at most once a second.
    bool KeepFile();

    void CloseFile();
    void CountLost(const char* data, int length);

    std::vector<char> m_Staging; ///< twice the size, so that a line which no longer fits can be written with the rest
    int m_StagingFill;
    QFile m_File;
    bool m_IsOpen;
    int m_StagingSize;
    long long m_DefaultMaxFileSize;
    long long m_MaxFileSize;
    QString m_BasePath;
    QString m_FileName;
    int m_DefaultMaxFileCount;
    int m_MaxFileCount;
    EParamID m_IterationParam;
    int m_Iteration;
    long long m_FileLength; ///< as found on opening, plus what this log has written since
    QDate m_StampedDate;    ///< of the last entry
    QByteArray m_DateStamp; ///< that date as it stands in a line; changes once a day
    bool m_HasFailed;
    long long m_LostLines;
    long long m_LookedAt; ///< when KeepFile() looked last, in milliseconds of a clock that is never set
};
