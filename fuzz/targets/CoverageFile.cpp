// The coverage of a job in its file.

#include "blocks/DataBlock.h"
#include "coverage/TCoverageFile.h"
#include "coverage/TCoverageTally.h"
#include "support/FuzzTarget.h"
#include "support/TFuzzInput.h"
#include "support/TFuzzRoom.h"

#include <QFile>

#include <algorithm>
#include <cmath>

namespace {

const int MostBlocks = 32;
const std::size_t MostTallied = 4; // one strip can be a square kilometre
const double FarthestCorner = 2.2e6;
const tagGeoPoint Origin = {52.25, 10.5};

tagCoverageStrip Strip(double at) { return {{{{0, at}, {12, at}, {12, at + 2}, {0, at + 2}}}}; }

/// The content of a file: any bytes, or blocks with right checksums, so that what is in them gets behind the check.
QByteArray Content(TFuzzInput& input)
{
    if (!input.Bool())
        return input.Rest();
    QByteArray content;
    for (int count = 0; count < MostBlocks && !input.IsAtEnd(); ++count) {
        const int version = input.Byte();
        const QByteArray bytes = input.Bytes();
        content += version == 255 ? bytes : DataBlock::Framed(static_cast<unsigned>(version), bytes);
    }
    return content;
}

void ExpectSound(const tagCoverage& coverage, qint64 size)
{
    Expect(coverage.origin || coverage.strips.empty(), "strips lie around an origin");
    Expect(!coverage.origin || IsGeoPoint(*coverage.origin), "the origin is on the Earth");
    Expect(coverage.lostBytes >= 0 && coverage.lostBytes <= size && coverage.lostStrips >= 0,
           "no more is lost than there was");
    TCoverageTally tally;
    std::size_t count = 0;
    for (const tagCoverageStrip& strip : coverage.strips) {
        for (const tagPlanePoint& corner : strip.corners)
            Expect(std::abs(corner.east) <= FarthestCorner && std::abs(corner.north) <= FarthestCorner,
                   "a corner is not farther than can be written");
        if (count++ < MostTallied)
            tally.Add(strip);
    }
    Expect(std::isfinite(tally.Area()) && tally.Area() >= 0, "covered ground has an area");
}

bool AreSame(const tagCoverage& one, const tagCoverage& other)
{
    const auto areSame = [](const tagCoverageStrip& a, const tagCoverageStrip& b) {
        return std::equal(
            a.corners.begin(), a.corners.end(), b.corners.begin(),
            [](const tagPlanePoint& p, const tagPlanePoint& q) { return p.east == q.east && p.north == q.north; });
    };
    return one.origin.has_value() == other.origin.has_value() && one.strips.size() == other.strips.size() &&
           std::equal(one.strips.begin(), one.strips.end(), other.strips.begin(), areSame);
}

void Check(const QByteArray& bytes)
{
    TFuzzInput input(bytes);
    const QByteArray content = Content(input);
    const QString path = TFuzzRoom::Get().Path("coverage");
    FuzzFiles::Make(path, content);
    tagCoverage found;
    QString error;
    auto file = TCoverageFile::Open(path, &found, &error);
    if (!file) {
        Expect(!error.isEmpty() && found.strips.empty() && !found.origin, "a file that is refused gives nothing");
        Expect(FuzzFiles::Content(path) == content, "a file that is refused stays as it is");
        return;
    }
    ExpectSound(found, content.size());
    file.reset();
    Expect(content.startsWith(FuzzFiles::Content(path)), "nothing but an end is cut off");

    tagCoverage again;
    file = TCoverageFile::Open(path, &again, &error);
    Expect(file && AreSame(found, again), "the next opening finds the same", error);
    file->SetOrigin(Origin);
    file->Add(Strip(0));
    Expect(file->Flush(), "strips are added");
    file.reset();
    file = TCoverageFile::Open(path, &again, &error);
    Expect(file && again.strips.size() == found.strips.size() + 1, "a strip that was added is behind the others",
           error);
    file.reset();
    QFile::remove(path);
}

QList<QByteArray> Seeds()
{
    const QString path = TFuzzRoom::Get().Path("coverage-seed");
    QFile::remove(path);
    tagCoverage found;
    QString error;
    for (int run = 0; run < 3; ++run) {
        const auto file = TCoverageFile::Open(path, &found, &error);
        Expect(file != nullptr, "a seed is written", error);
        file->SetOrigin(Origin);
        for (int strip = 0; strip < 4; ++strip)
            file->Add(Strip(strip * 2 + run * 100));
        Expect(file->Flush(), "a seed is written");
    }
    const QByteArray bytes = FuzzFiles::Content(path);
    TFuzzSeed blocks;
    blocks.Byte(1);
    DataBlock::tagBlock block;
    for (int at = 0; DataBlock::Take(bytes, &at, &block);)
        blocks.Byte(static_cast<int>(block.version)).Bytes(block.payload);
    return {TFuzzSeed().Byte(0).Rest(bytes), blocks, TFuzzSeed().Byte(0).Rest(bytes.left(bytes.size() - 7))};
}

} // namespace

namespace FuzzTargets {

tagFuzzTarget CoverageFile() { return {"CoverageFile", Check, Seeds}; }

} // namespace FuzzTargets
