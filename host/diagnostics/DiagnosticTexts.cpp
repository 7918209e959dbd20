#include "diagnostics/DiagnosticTexts.h"

#include "diagnostics/EConsoleEvent.h"
#include "diagnostics/EReceiverEvent.h"
#include "parameters/TParameterCatalogue.h"

#include <algorithm>
#include <iterator>

namespace {

struct tagText
{
    EDiagnosticComponent component;
    EDiagnosticType type;
    int code;
    const char* text;
};

constexpr tagText Texts[] = {
    {DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, CONSOLE_EVENT_LINES_LOST, "Lines lost"},
    {DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, RECEIVER_EVENT_FIRST_FIX, "First fix"},
    {DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, RECEIVER_EVENT_FIX_LOST, "Fix lost"},
    {DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, RECEIVER_EVENT_FIX_REGAINED, "Fix regained"},
    {DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, RECEIVER_EVENT_TIME_SET, "Time set"},
    {DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, RECEIVER_EVENT_BAD_CHECKSUMS, "Bad checksums"},
    {DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, RECEIVER_EVENT_FIX_UNSTABLE, "Fix unstable"},
    {DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, RECEIVER_EVENT_TIME_CORRECTED, "Time corrected"},
    {DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, RECEIVER_EVENT_TIME_REFUSED, "Time refused"},
};

} // namespace

const QString& DiagnosticText(EDiagnosticComponent component, EDiagnosticType type, int code)
{
    if (type == DIAG_TYPE_PARAM) {
        if (const tagParameter* const parameter = TParameterCatalogue::Find(code))
            return parameter->name;
    }
    // One place for each thread: codes without a name may be of any number.
    thread_local QString text;
    const auto* const row = std::find_if(std::begin(Texts), std::end(Texts), [&](const tagText& each) {
        return each.component == component && each.type == type && each.code == code;
    });
    text = row == std::end(Texts) ? QString::number(code) : QString::fromLatin1(row->text);
    return text;
}
