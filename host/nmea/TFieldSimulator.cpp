#include "nmea/TFieldSimulator.h"

#include "nmea/DrivenPath.h"
#include "nmea/LocalPlane.h"
#include "nmea/SentenceWriter.h"

#include <random>

namespace {

const double MillisecondsPerSecond = 1000;

/// A number from -@p most to @p most. Not by std::uniform_real_distribution: its results differ between C++ libraries.
double Noise(std::mt19937& engine, double most)
{
    return most * (2 * static_cast<double>(engine()) / static_cast<double>(std::mt19937::max()) - 1);
}

} // namespace

struct TFieldSimulator::tagState
{
    explicit tagState(const tagFieldPlan& fieldPlan)
        : plan(fieldPlan), plane(plan.latitude, plan.longitude), path(DrivenPath(plan)), noise(plan.noiseSeed)
    {}

    /// Time of the next epoch since the start; a whole number, because the sentences have three decimals of a second.
    qint64 Milliseconds() const { return (epoch * 1000 + plan.rate / 2) / plan.rate; }
    double SecondsInSegment() const
    {
        return static_cast<double>(Milliseconds()) / MillisecondsPerSecond - segmentStart;
    }
    bool AtEnd() const { return segment == path.size(); }
    void FindSegment();

    const tagFieldPlan plan;
    const TLocalPlane plane;
    const std::vector<tagSegment> path;
    std::mt19937 noise;
    qint64 epoch = 0;        ///< the next one
    std::size_t segment = 0; ///< the one in which the next epoch lies
    double segmentStart = 0; ///< seconds since the start
};

void TFieldSimulator::tagState::FindSegment()
{
    while (!AtEnd() && SecondsInSegment() > path[segment].Duration()) {
        segmentStart += path[segment].Duration();
        ++segment;
    }
}

TFieldSimulator::TFieldSimulator(const tagFieldPlan& plan)
    : m_State(CheckFieldPlan(plan).isEmpty() ? std::make_unique<tagState>(plan) : nullptr)
{}

TFieldSimulator::~TFieldSimulator() = default;

bool TFieldSimulator::AtEnd() const { return !m_State || m_State->AtEnd(); }

QByteArray TFieldSimulator::NextEpoch()
{
    if (AtEnd())
        return QByteArray();

    tagState& state = *m_State;
    const tagSegment& segment = state.path[state.segment];
    const tagPose pose = segment.PoseAt(state.SecondsInSegment());
    const double eastNoise = Noise(state.noise, state.plan.noise);
    const double northNoise = Noise(state.noise, state.plan.noise);
    const tagGroundPose ground = state.plane.ToGround(pose.east + eastNoise, pose.north + northNoise, pose.heading);
    const tagEpoch epoch = {state.plan.start.toUTC().addMSecs(state.Milliseconds()),
                            ground.latitude,
                            ground.longitude,
                            state.plan.altitude,
                            segment.SpeedAt(state.SecondsInSegment()),
                            ground.course};
    ++state.epoch;
    state.FindSegment();
    return WriteSentences(state.plan.talker, epoch);
}
