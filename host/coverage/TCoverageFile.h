#pragma once

#include "HostExport.h"
#include "coverage/CoverageStrip.h"
#include "guidance/GeoPoint.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

class TCoverageWriter;

/// The coverage that was found in a file.
struct tagCoverage
{
    /// The place where the plane of the strips touches the ground. Nothing when there is no coverage yet.
    std::optional<tagGeoPoint> origin;
    std::vector<tagCoverageStrip> strips; ///< in the order in which they were made; exact to half a millimetre
    qint64 lostBytes = 0;                 ///< of blocks that were damaged or not complete
    qint64 lostStrips = 0;                ///< in these bytes, as far as they tell
    bool isHeld = false; ///< it could not be opened, because another program has it open: a later try may succeed
};

/// How far the writing of a coverage is.
struct tagCoverageState
{
    qint64 written = 0; ///< strips that are on the disk, of those that were added
    qint64 waiting = 0; ///< strips in memory alone
    qint64 lost = 0;    ///< strips that were dropped, because too many were waiting
    QString problem;    ///< why the last writing has failed, in one line; empty when all is well
};

/// The coverage of a job: the strips that were covered, written while they are made.
///
/// @code
/// tagCoverage coverage;
/// const std::unique_ptr<TCoverageFile> file = TCoverageFile::Open(system.GetActiveCoveragePath(), &coverage, &error);
/// if (file && !coverage.origin)
///     file->SetOrigin({status.latitude, status.longitude});
/// file->Add(strip); // at every fix
/// @endcode
///
/// Strips are appended, by a thread of this object, and are on the disk at most WriteSeconds after they were added, or
/// when BytesBeforeWrite are waiting. Each piece that is appended has a checksum. So a power cut or a killed process
/// costs these seconds; a piece that was not completed is found at the next opening, at whatever byte it ends, and cut
/// off. A damaged piece with good ones behind it stays in the file, and is left out.
///
/// While the disk is full, or writing fails for another reason, the strips wait in memory, and are written as soon as
/// it is possible; MostWaitingStrips are kept.
///
/// The file is made with the first strip. While it is open, other programs cannot open it as a coverage. Add() and the
/// other functions are called by one thread at a time, and do not wait for the disk, except Open(), Flush() and the
/// destructor.
class CABHOST_EXPORT TCoverageFile
{
public:
    static constexpr int WriteSeconds = 5;
    static constexpr int BytesBeforeWrite = 65536;
    static constexpr int MostWaitingStrips = 250000; ///< seven hours at 10 Hz, in 4 MB

    /// Opens the coverage, and reads what is there.
    /// @param path need not exist, nor its folder.
    /// @return null, with @p error, when the file cannot be read or cut, another program has it open, or it is not a
    /// coverage of this version. It is then as it was, and nothing is in @p found but whether it is held.
    static std::unique_ptr<TCoverageFile> Open(const QString& path, tagCoverage* found, QString* error);

    /// Writes what is waiting, once.
    ~TCoverageFile();

    TCoverageFile(const TCoverageFile&) = delete;
    TCoverageFile& operator=(const TCoverageFile&) = delete;

    /// Sets the origin of the plane. Does nothing when the coverage has one.
    void SetOrigin(const tagGeoPoint& origin);

    /// Adds a strip. Does nothing before there is an origin, and when a corner is not a number or farther than 2000 km.
    void Add(const tagCoverageStrip& strip);

    /// Waits until everything that was added is on the disk. Returns false when that has failed.
    bool Flush();

    tagCoverageState State() const;

private:
    explicit TCoverageFile(std::unique_ptr<TCoverageWriter> writer);

    std::unique_ptr<TCoverageWriter> m_Writer;
};
