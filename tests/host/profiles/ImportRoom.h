#pragma once

#include "StoreTestSupport.h"
#include "parameters/HostParameters.h"
#include "profiles/ProfileImport.h"
#include "stores/TPersistenceHold.h"
#include "terminal/FirstStartValues.h"

#include <QtTest>

/// What the tests of imports have in common.
namespace ImportRoom {

inline QString Utf8(const char* text) { return QString::fromUtf8(text); }

/// Sets parameters from a text such as "units.area=acre units.us=true". An empty value removes the parameter.
inline void Set(TParameterStore& store, const QString& settings)
{
    TPersistenceHold hold(store);
    for (const QString& setting : settings.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const tagParameter* const parameter = TParameterCatalogue::Find(setting.section(QLatin1Char('='), 0, 0));
        const QString text = setting.section(QLatin1Char('='), 1);
        QString error = setting;
        const QVariant value =
            text.isEmpty() || !parameter ? QVariant() : TParameterCatalogue::Read(*parameter, text, &error);
        if (!parameter || (!text.isEmpty() && !value.isValid()))
            qFatal("%s", qPrintable(error));
        store.SetParameter(parameter->id, value, true);
    }
    if (!hold.Release())
        qFatal("the parameters cannot be stored");
}

/// A store with the values of a first start and an identity of its own.
inline std::unique_ptr<TSqliteStore> NewTerminal(const QString& path)
{
    auto store = OpenStore(path);
    TPersistenceHold hold(*store);
    SetFirstStartValues(*store);
    return store;
}

inline TProfile Exported(TParameterStore& store) { return TProfile::Of(store, ProfileGroups::All(), QString()); }

/// "units.area=acre units.us=true", in the order of the numbers.
inline QString Values(TParameterStore& store, const QString& names)
{
    QStringList texts;
    for (const QString& name : names.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const tagParameter* const parameter = TParameterCatalogue::Find(name);
        texts.append(name + QLatin1Char('=') +
                     TParameterCatalogue::Text(*parameter, store.GetParameter(parameter->id)));
    }
    return texts.join(QLatin1Char(' '));
}

/// "units.area: hectare > acre", one for each change, joined by commas.
inline QString Text(const QList<ProfileImport::tagChange>& changes)
{
    QStringList texts;
    for (const ProfileImport::tagChange& change : changes)
        texts.append(QString::fromLatin1("%1: %2 > %3")
                         .arg(change.parameter->name, change.ours.value_or(QLatin1String("-")), change.theirs));
    return texts.join(QLatin1String(", "));
}

/// "units.area: acre, hectare, hectare", ours, theirs and base, joined by semicolons.
inline QString Text(const QList<ProfileImport::tagConflict>& conflicts)
{
    QStringList texts;
    for (const ProfileImport::tagConflict& conflict : conflicts)
        texts.append(QString::fromLatin1("%1: %2, %3, %4")
                         .arg(conflict.parameter->name, conflict.ours.value_or(QLatin1String("-")), conflict.theirs,
                              conflict.base));
    return texts.join(QLatin1String("; "));
}

} // namespace ImportRoom
