#include "TSeasonStream.h"

#include "nmea/NmeaChecksum.h"

namespace {

/// In epochs.
constexpr int LossEvery = 18000;
constexpr int LossAt = 500;
constexpr int LossLength = 20;
constexpr int DamageEvery = 4200;
constexpr int DamageAt = 300;

/// The position sentence of an epoch says that there is no fix. It is the first one.
QByteArray WithoutFix(const QByteArray& epoch)
{
    const int star = static_cast<int>(epoch.indexOf('*'));
    QByteArray body = epoch.mid(1, star - 1);
    body.replace(body.indexOf(",A,"), 3, ",V,");
    const int end = static_cast<int>(epoch.indexOf('\r'));
    return '$' + body + NmeaChecksum(body) + epoch.mid(end);
}

/// The sentence of the speed, which nothing but the map needs.
QByteArray WithDamage(QByteArray epoch)
{
    const int at = static_cast<int>(epoch.indexOf("VTG,")) + 4;
    epoch[at] = epoch.at(at) == '9' ? '8' : '9';
    return epoch;
}

} // namespace

QByteArray TSeasonStream::NextEpoch()
{
    QByteArray epoch = m_Simulator.NextEpoch();
    const int sinceLoss = m_Epoch % LossEvery - LossAt;
    if (sinceLoss >= 0 && sinceLoss < LossLength)
        epoch = WithoutFix(epoch);
    if (sinceLoss == 0)
        ++m_Losses;
    if (m_Epoch % DamageEvery == DamageAt) {
        epoch = WithDamage(epoch);
        ++m_Damaged;
    }
    ++m_Epoch;
    return epoch;
}
