#include "receiver/ReceiverTexts.h"

#include "parameters/ParameterRows.h"
#include "texts/HostText.h"
#include "units/TUnits.h"

#include <QCoreApplication>

#include <cmath>
#include <iterator>

namespace {

const char* const Context = "Receiver";

QString Translated(const char* text) { return QCoreApplication::translate(Context, text); }

struct tagStateText
{
    const char* name;
    const char* text;
};

/// By EState.
constexpr tagStateText States[] = {
    {"off", QT_TRANSLATE_NOOP("Receiver", "Off")},
    {"connecting", QT_TRANSLATE_NOOP("Receiver", "Connecting")},
    {"receiving", QT_TRANSLATE_NOOP("Receiver", "Receiving")},
    {"silent", QT_TRANSLATE_NOOP("Receiver", "Silent")},
    {"lost", QT_TRANSLATE_NOOP("Receiver", "Lost")},
    {"ended", QT_TRANSLATE_NOOP("Receiver", "Ended")},
};
static_assert(std::size(States) == TReceiver::STATE_ENDED + 1);

/// By the quality of a GGA sentence.
constexpr const char* Fixes[] = {
    QT_TRANSLATE_NOOP("Receiver", "No fix"),
    "GPS",
    "DGPS",
    "PPS",
    "RTK",
    QT_TRANSLATE_NOOP("Receiver", "RTK float"),
    QT_TRANSLATE_NOOP("Receiver", "Estimated"),
    QT_TRANSLATE_NOOP("Receiver", "By hand"),
    QT_TRANSLATE_NOOP("Receiver", "Simulated"),
};
constexpr int GpsQuality = 1;

const double FirstWholeSeconds = 10; ///< from here on without decimals

} // namespace

QString ReceiverTexts::StateName(TReceiver::EState state) { return QLatin1String(States[state].name); }
QString ReceiverTexts::StateText(TReceiver::EState state) { return Translated(States[state].text); }

/// A receiver that tells no quality with its fix has the plainest one.
QString ReceiverTexts::Fix(int quality, bool hasFix)
{
    if (!hasFix)
        return Translated(Fixes[0]);
    const bool isKnown = quality > 0 && quality < static_cast<int>(std::size(Fixes));
    return Translated(Fixes[isKnown ? quality : GpsQuality]);
}

QString ReceiverTexts::Age(double seconds)
{
    if (std::isnan(seconds))
        return QString();
    return TUnits::GetValueString(seconds, UNITS_SECONDS, seconds < FirstWholeSeconds ? 1 : 0, nullptr);
}

QString ReceiverTexts::Dilution(double hdop)
{
    return std::isnan(hdop) ? QString() : TUnits::GetValueString(hdop, QString(), 1, nullptr).trimmed();
}

QString ReceiverTexts::Count(double count) { return TUnits::GetValueString(count, QString(), 0, nullptr).trimmed(); }

QString ReceiverTexts::Silent() { return Translated(QT_TRANSLATE_NOOP("Receiver", "The receiver sends nothing.")); }

QString ReceiverTexts::Lost(const QString& reason)
{
    return Translated(QT_TRANSLATE_NOOP("Receiver", "The receiver is lost and is being looked for. %1"))
        .arg(CabQuick::HostText(reason));
}

QString ReceiverTexts::Unreadable(const QString& error)
{
    return Translated(QT_TRANSLATE_NOOP("Receiver", "The receiver cannot be read. %1")).arg(CabQuick::HostText(error));
}

QString ReceiverTexts::Ended(const QString& address)
{
    return address == QLatin1String(ParameterRows::SimulatorAddress)
               ? Translated(QT_TRANSLATE_NOOP("Receiver", "The simulated field is done."))
               : Translated(QT_TRANSLATE_NOOP("Receiver", "The recording of the receiver is over."));
}
