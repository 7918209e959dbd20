#pragma once

#include "HostExport.h"
#include "coverage/CoverageStrip.h"

#include <memory>

/// Adds up the ground that was covered. Ground that was covered twice counts once.
///
/// @code
/// TCoverageTally tally;
/// for (const tagCoverageStrip& strip : coverage.strips)
///     tally.Add(strip);
/// Show(tally.Area() / 10000); // hectares
/// @endcode
///
/// The ground is divided into cells of CellSize. A cell is covered when its centre is. Errors at the edges cancel out:
/// from a tenth of a hectare on, an area is right to 1 in 1000. Only the edges of passes that are exactly along the
/// axes or the diagonals of the plane can all be wrong to the same side, by 7 cm at most.
///
/// Ground that is covered all over takes no memory beside a few bytes for each square of 6.4 m; the edges and gaps take
/// at most MostBytes. Ground beyond that counts as often as it is covered.
///
/// An object is used by one thread at a time.
class CABHOST_EXPORT TCoverageTally
{
public:
    static constexpr double CellSize = 0.1; ///< metres
    static constexpr int MostBytes = 32 * 1024 * 1024;

    TCoverageTally();
    ~TCoverageTally();

    TCoverageTally(const TCoverageTally&) = delete;
    TCoverageTally& operator=(const TCoverageTally&) = delete;

    /// Takes some microseconds for a strip of 12 m. Does nothing when a corner is not a number, or farther from the
    /// origin than 1000 km, or from another corner than 1 km.
    void Add(const tagCoverageStrip& strip);

    /// Forgets everything.
    void Clear();

    /// Square metres.
    double Area() const;

    /// The length of all strips, from the middle of the implement to its middle, in metres. Counts each pass.
    double Distance() const;

private:
    struct tagState;
    std::unique_ptr<tagState> m_State;
};
