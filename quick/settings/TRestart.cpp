#include "settings/TRestart.h"

#include "module/TParameterHub.h"
#include "settings/RestartRows.h"

#include "stores/TSqliteStore.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr tagRestartRow Rows[] = {
    {PARAM_LANGUAGE, &TParameterHub::LanguageAtStart,
     QT_TRANSLATE_NOOP("TRestart", "The new language is shown after a restart.")},
    {PARAM_DECIMAL_POINT, &TParameterHub::DecimalPointAtStart,
     QT_TRANSLATE_NOOP("TRestart", "The new decimal sign is shown after a restart.")},
};

} // namespace

const tagRestartRow* FindRestartRow(int number)
{
    const auto* const found = std::find_if(std::begin(Rows), std::end(Rows),
                                           [number](const tagRestartRow& row) { return row.number == number; });
    return found == std::end(Rows) ? nullptr : found;
}

TRestart::TRestart(QObject* parent) : QObject(parent)
{
    connect(&TParameterHub::Instance(), &TParameterHub::Changed, this, [this](int number) {
        if (FindRestartRow(number))
            Look();
    });
    Look();
}

void TRestart::request() { emit requested(); }

void TRestart::Look()
{
    TParameterHub& hub = TParameterHub::Instance();
    const auto* const needed = std::find_if(std::begin(Rows), std::end(Rows), [&hub](const tagRestartRow& row) {
        return hub.Store().GetParameter(static_cast<EParamID>(row.number)).toInt() != (hub.*row.atStart)();
    });
    const QString reason = needed == std::end(Rows) ? QString() : tr(needed->reason);
    if (reason == m_Reason)
        return;
    m_Reason = reason;
    emit reasonChanged();
}
