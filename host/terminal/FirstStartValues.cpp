#include "terminal/FirstStartValues.h"

#include "parameters/HostParameters.h"
#include "parameters/TParameterCatalogue.h"

#include <QUuid>

void SetFirstStartValues(TParameterStore& store)
{
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        const QVariant value = TParameterCatalogue::FirstValue(parameter);
        if (value.isValid() && !store.HasParameter(parameter.id))
            store.SetParameter(parameter.id, value, true);
    }
    if (!store.HasParameter(PARAM_TERMINAL_IDENTITY))
        store.SetParameter(PARAM_TERMINAL_IDENTITY, QUuid::createUuid().toString(QUuid::WithoutBraces), true);
}
