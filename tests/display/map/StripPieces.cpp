#include "Track.h"

#include "display/map/TStripIndex.h"

#include <QtTest>

#include <limits>
#include <set>

namespace {

using Piece = std::array<float, 8>;

Piece Numbers(const tagMapStrip& piece)
{
    Piece numbers = {};
    std::size_t at = 0;
    for (const tagMapStrip::tagPlace& corner : piece.corners) {
        numbers[at++] = corner.east;
        numbers[at++] = corner.north;
    }
    return numbers;
}

std::vector<Piece> AllPieces(const TStripIndex& index, const QVector<tagMapStrip>& strips, double step)
{
    std::vector<Piece> pieces;
    index.ForEachPiece(strips, {0, int(strips.size())}, step,
                       [&](const tagMapStrip& piece) { pieces.push_back(Numbers(piece)); });
    return pieces;
}

QRectF Bounds(const tagMapStrip& strip)
{
    QPolygonF corners;
    for (const tagMapStrip::tagPlace& corner : strip.corners)
        corners << QPointF(double(corner.east), double(corner.north));
    return corners.boundingRect();
}

tagMapStrip StripAt(float east, float north, float length)
{
    return {{{{east, north}, {east + 1, north}, {east + 1, north + length}, {east, north + length}}}};
}

} // namespace

class StripPieces : public QObject
{
    Q_OBJECT

private slots:
    void PiecesThatEndOneByOneAreAllPieces_data()
    {
        QTest::addColumn<double>("step");
        for (const double step : {0.01, 0.3, 1.0, 4.0, 50.0})
            QTest::addRow("%g m", step) << step;
    }
    void PiecesThatEndOneByOneAreAllPieces()
    {
        QFETCH(double, step);
        const QVector<tagMapStrip> track = CrookedTrack(2000, 6, 5);
        QVERIFY(track.size() > 500);
        QVector<tagMapStrip> strips;
        TStripIndex index;
        std::vector<Piece> ended;
        for (const tagMapStrip& strip : track) {
            strips.append(strip);
            index.Append(strips);
            index.ForEachEnded(strips, step, [&](const tagMapStrip& piece) { ended.push_back(Numbers(piece)); });
        }
        QCOMPARE(ended, AllPieces(index, strips, step));
        QVERIFY(!ended.empty());
    }

    void AWiderStepMakesFewerPieces()
    {
        const QVector<tagMapStrip> strips = CrookedTrack(2000, 6, 5);
        TStripIndex index;
        index.Reset(strips);
        QVERIFY(AllPieces(index, strips, 0.001).size() > std::size_t(strips.size()) * 9 / 10);
        QVERIFY(AllPieces(index, strips, 5).size() < std::size_t(strips.size()) / 4);
    }

    void PiecesOfARunAreThoseOfTheWhole()
    {
        const QVector<tagMapStrip> strips = CrookedTrack(1500, 6, 9);
        TStripIndex index;
        index.Reset(strips);
        const std::vector<Piece> whole = AllPieces(index, strips, 2);
        const std::set<Piece> known(whole.begin(), whole.end());
        for (int first = 0; first < strips.size() - 40; first += 7) {
            int pieces = 0;
            index.ForEachPiece(strips, {first, first + 40}, 2, [&](const tagMapStrip& piece) {
                ++pieces;
                QVERIFY(known.count(Numbers(piece)) == 1);
            });
            QVERIFY(pieces > 0);
        }
    }

    void EveryStripOfAPlaceIsFound()
    {
        const QVector<tagMapStrip> strips = CrookedTrack(3000, 12, 3);
        TStripIndex index;
        index.Reset(strips);
        for (int x = -300; x < 300; x += 45) {
            for (int y = -300; y < 300; y += 45) {
                const QRectF ground(x, y, 60, 60);
                const std::vector<TStripIndex::tagRun> runs = index.Within(ground);
                int end = -1;
                for (const TStripIndex::tagRun& run : runs) {
                    QVERIFY(run.first > end && run.last > run.first);
                    end = run.last;
                }
                for (int strip = 0; strip < strips.size(); ++strip) {
                    const bool isFound = std::any_of(runs.begin(), runs.end(), [strip](const TStripIndex::tagRun& run) {
                        return run.first <= strip && strip < run.last;
                    });
                    QVERIFY(isFound || !Bounds(strips[strip]).intersects(ground));
                }
            }
        }
    }

    /// Ten passes of a kilometre: each square of 64 m holds a run for each pass, not one for each fix.
    void TheIndexGrowsWithPassesNotWithFixes()
    {
        QVector<tagMapStrip> strips;
        for (int pass = 0; pass < 10; ++pass)
            for (int fix = 0; fix < 3000; ++fix)
                strips.append(StripAt(float(pass) * 12, float(fix) / 3, 1.0F / 3));
        TStripIndex index;
        index.Reset(strips);
        QCOMPARE(strips.size(), 30000);
        QVERIFY2(index.Runs() <= 10 * 17 * 3, qPrintable(QString::number(index.Runs())));
        QVERIFY(index.Squares() <= 3 * 17);
    }

    void APlaceThatIsNoneIsLeftOut()
    {
        constexpr float Nan = std::numeric_limits<float>::quiet_NaN();
        constexpr float Inf = std::numeric_limits<float>::infinity();
        const QVector<tagMapStrip> strips = {StripAt(0, 0, 1), StripAt(Nan, 0, 1), StripAt(0, Inf, 1),
                                             StripAt(1e30F, 0, 1), StripAt(5, 5, 1)};
        TStripIndex index;
        index.Reset(strips);
        const std::vector<TStripIndex::tagRun> runs = index.Within(QRectF(-100, -100, 200, 200));
        QCOMPARE(int(runs.size()), 2);
        QCOMPARE(runs[0].first, 0);
        QCOMPARE(runs[0].last, 1);
        QCOMPARE(runs[1].first, 4);
    }

    /// A receiver that was lost for kilometres leaves a strip that is in every part of the field.
    void AVeryLongStripIsFoundEverywhere()
    {
        const QVector<tagMapStrip> strips = {{{{{0, 0}, {1, 0}, {90001, 90000}, {90000, 90000}}}}};
        TStripIndex index;
        index.Reset(strips);
        QCOMPARE(index.Squares(), 0);
        QCOMPARE(int(index.Within(QRectF(45000, 45000, 10, 10)).size()), 1);
    }
};

QTEST_APPLESS_MAIN(StripPieces)
#include "StripPieces.moc"
