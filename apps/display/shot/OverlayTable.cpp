#include "display/shot/OverlayTable.h"

#include "module/CabQuick.h"
#include "nmea/NmeaChecksum.h"
#include "nmea/TFieldSimulator.h"
#include "parameters/HostParameters.h"
#include "parameters/ParameterRows.h"
#include "platform/EParamID.h"
#include "receiver/SimulatedField.h"
#include "receiver/TReceiver.h"
#include "region/ELanguage.h"
#include "stores/TSqliteStore.h"
#include "texts/HostText.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

/// A restart is needed for a language other than that of the start. Each has its other, so that a second change brings
/// the first language back, and nothing has to be kept meanwhile.
static_assert(LANGUAGE_ENGLISH == 0 && LANGUAGE_SLOVENIAN % 2 == 1, "the languages are pairs");
int OtherLanguage(int language) { return language % 2 == 0 ? language + 1 : language - 1; }

/// What the display itself says in such a case, in its language.
QString Sentence(const char* context, const char* text) { return QCoreApplication::translate(context, text); }

} // namespace

void OverlayChanges::SetServer(TSqliteStore& store, bool isThere)
{
    store.SetParameter(PARAM_RECEIVER_ADDRESS,
                       QLatin1String(isThere ? "tcp://receiver.example.org:2947" : ParameterRows::SimulatorAddress),
                       true);
}

void OverlayChanges::SetPosition(TSqliteStore& /*store*/, bool isThere)
{
    const QByteArray lost = "GNRMC,060002.00,V,,,,,,,010524,,,N";
    TFieldSimulator simulator(CabQuick::SimulatedPlan());
    CabQuick::Receiver().Show(isThere ? simulator.NextEpoch() : '$' + lost + NmeaChecksum(lost) + "\r\n");
}

void OverlayChanges::SetLongProblem(TSqliteStore& /*store*/, bool isThere)
{
    const QLatin1String key("example");
    if (!isThere)
        CabQuick::ClearProblem(key);
    else
        CabQuick::SetProblem(
            key, Sentence("TWork", "The coverage is kept in memory until it can be stored. %1")
                     .arg(CabQuick::HostText(QStringLiteral(
                         "cannot write /media/internal/Smith/North/F1/Jobs/Spring_2024/Spring_2024.cov: No space "
                         "left on device"))));
}

void OverlayChanges::SetNewLanguage(TSqliteStore& store, bool /*isThere*/)
{
    store.SetParameter(PARAM_LANGUAGE, OtherLanguage(store.GetParameter(PARAM_LANGUAGE).toInt()), true);
}

/// As many messages as the display ever shows above a page.
void OverlayChanges::SetEverything(TSqliteStore& store, bool isThere)
{
    SetLongProblem(store, isThere);
    SetNewLanguage(store, isThere);
    SetPosition(store, isThere);
    const QLatin1String key("example-stick");
    if (!isThere)
        CabQuick::ClearProblem(key);
    else
        CabQuick::SetProblem(key, Sentence("Transfer", "The stick was removed before everything was on it."));
}

const tagOverlay* FindOverlay(const QString& name)
{
    const auto* const overlay = std::find_if(
        Overlays.begin(), Overlays.end(), [&name](const tagOverlay& row) { return name == QLatin1String(row.name); });
    return overlay == Overlays.end() ? nullptr : overlay;
}

QStringList OverlayNames()
{
    QStringList names;
    for (const tagOverlay& overlay : Overlays)
        names.append(QLatin1String(overlay.name));
    return names;
}
