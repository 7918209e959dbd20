#pragma once

#include "coverage/CoverageBlocks.h"
#include "coverage/TCoverageFile.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QMutex>
#include <QString>
#include <QThread>
#include <QWaitCondition>

#include <deque>
#include <vector>

/// The thread that appends to a coverage file.
class TCoverageWriter : private QThread
{
public:
    /// @param descriptor of the open file, which this object closes; -1 when the file does not exist yet.
    /// @param end number of good bytes in the file: writing goes on there.
    TCoverageWriter(const QString& path, int descriptor, qint64 end, bool hasOrigin);
    ~TCoverageWriter() override;

    void SetOrigin(const tagGeoPoint& origin);
    void Add(const tagCoverageStrip& strip);
    bool Flush();
    tagCoverageState State() const;

private:
    /// What is written in one go, in whole blocks.
    struct tagPiece
    {
        QByteArray bytes;
        qint64 strips;
    };

    void run() override;
    void EndRun();
    void AwaitWork();
    tagPiece TakeStaged();
    bool Make(QString* reason);
    qint64 WritePieces(QString* reason);

    const QString m_Path;

    mutable QMutex m_Mutex;
    QWaitCondition m_Changed; ///< for the thread
    QWaitCondition m_Tried;   ///< for Flush()
    QByteArray m_Header;      ///< to be written first; empty when the file has one
    CoverageBlocks::TRun m_Run;
    std::vector<CoverageBlocks::TRun> m_CompleteRuns;
    int m_StagedStrips = 0; ///< in these runs
    QDeadlineTimer m_Due;   ///< of the oldest strip that waits
    tagCoverageState m_State;
    qint64 m_Wanted = 0; ///< number of the try at which Flush() looks
    qint64 m_Tries = 0;
    bool m_HasOrigin;
    bool m_IsEnding = false;

    // The thread's own.
    int m_Descriptor;
    qint64 m_End; ///< of the good bytes in the file
    std::deque<tagPiece> m_Pieces;
};
