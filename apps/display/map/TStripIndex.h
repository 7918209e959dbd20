#pragma once

#include "display/map/TMapModel.h"

#include <QRectF>

#include <unordered_map>
#include <vector>

/// Finds the strips of a part of the field without looking at all of them: a list of runs of strips for each square of
/// ground. A pass through a square is one run however many fixes it has, so ten hours of work are a few thousand runs.
///
/// Strips are drawn as pieces: consecutive strips that share an edge are one piece until the implement has moved by the
/// step. What is a piece depends on the strips alone, never on the part that is looked at, so that drawing each piece
/// when it ends gives the same picture as drawing all of them afterwards. A piece that has not ended is not drawn: it
/// is shorter than the step.
class TStripIndex
{
public:
    /// Forgets everything and indexes these.
    void Reset(const QVector<tagMapStrip>& strips);

    /// Indexes what was added to strips since the last call.
    void Append(const QVector<tagMapStrip>& strips);

    /// Strips first to last - 1.
    struct tagRun
    {
        int first;
        int last;
    };

    /// The runs of strips that may touch the ground, in order and without overlap.
    std::vector<tagRun> Within(const QRectF& ground) const;

    /// Calls draw with each piece of which a strip is in the run.
    template <typename Draw>
    void ForEachPiece(const QVector<tagMapStrip>& strips, const tagRun& run, double step, Draw&& draw) const
    {
        int first = PieceStart(strips, run.first, step);
        for (int strip = first; strip < strips.size(); ++strip) {
            if (!EndsPiece(strips, strip, step))
                continue;
            draw(Piece(strips, first, strip));
            first = strip + 1;
            if (first >= run.last)
                break;
        }
    }

    /// Calls draw with each piece that the last strip has ended: its own, and the one before it if it begins a new one.
    template <typename Draw>
    void ForEachEnded(const QVector<tagMapStrip>& strips, double step, Draw&& draw) const
    {
        const int last = int(strips.size()) - 1;
        if (last > 0 && !Continues(strips, last) && !EndsByStep(last - 1, step))
            draw(Piece(strips, PieceStart(strips, last - 1, step), last - 1));
        if (last >= 0 && EndsByStep(last, step))
            draw(Piece(strips, PieceStart(strips, last, step), last));
    }

    /// Squares of ground with coverage, and runs in them.
    int Squares() const { return int(m_Squares.size()); }
    int Runs() const;

private:
    static bool Continues(const QVector<tagMapStrip>& strips, int strip);
    bool EndsByStep(int strip, double step) const;
    bool EndsPiece(const QVector<tagMapStrip>& strips, int strip, double step) const
    {
        return EndsByStep(strip, step) || (strip + 1 < strips.size() && !Continues(strips, strip + 1));
    }
    int PieceStart(const QVector<tagMapStrip>& strips, int strip, double step) const;
    static tagMapStrip Piece(const QVector<tagMapStrip>& strips, int first, int last);
    void Add(const tagMapStrip& strip, int index);

    std::unordered_map<quint64, std::vector<tagRun>> m_Squares;
    std::vector<tagRun> m_Wide;      ///< of strips across too many squares to be in each
    std::vector<double> m_Travelled; ///< by the faster end of the implement, at the end of each strip, metres
};
