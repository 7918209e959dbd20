#include "terminal/FirstStartValues.h"

#include "parameters/TParameterCatalogue.h"

void SetFirstStartValues(TParameterStore& store)
{
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        const QVariant value = TParameterCatalogue::FirstValue(parameter);
        if (value.isValid() && !store.HasParameter(parameter.id))
            store.SetParameter(parameter.id, value, true);
    }
}
