#include "console/commands/ColorCheck.h"

#include "console/line/Output.h"

#include "colors/ColorContrast.h"
#include "parameters/ParameterText.h"

#include <QJsonArray>
#include <QJsonObject>

#include <cmath>

namespace {

const double Hundredths = 100;

QString Scheme(const tagContrastCheck& check) { return QLatin1String(check.isDay ? "day" : "night"); }

QString Verdict(const tagContrastCheck& check)
{
    if (std::isnan(check.ratio))
        return QLatin1String("no colour");
    return QLatin1String(check.isLegible ? "ok" : "too low");
}

/// Rounded down, so that no ratio below its bound is shown as the bound.
double Shown(double ratio) { return std::floor(ratio * Hundredths) / Hundredths; }

QString RatioText(double ratio)
{
    return std::isnan(ratio) ? QLatin1String("-") : QString::number(Shown(ratio), 'f', 2);
}

QString ColorText(const QColor& color) { return color.isValid() ? ParameterText::FromValue(color) : QString(); }

QJsonObject Json(const tagContrastCheck& check)
{
    return {{QLatin1String("element"), check.element},
            {QLatin1String("ground"), check.ground},
            {QLatin1String("scheme"), Scheme(check)},
            {QLatin1String("color"), ColorText(check.color)},
            {QLatin1String("groundColor"), ColorText(check.groundColor)},
            {QLatin1String("ratio"), std::isnan(check.ratio) ? QJsonValue() : QJsonValue(Shown(check.ratio))},
            {QLatin1String("bound"), check.bound},
            {QLatin1String("origin"), check.origin},
            {QLatin1String("verdict"), Verdict(check)}};
}

QStringList Row(const tagContrastCheck& check)
{
    return {check.element,  check.ground, Scheme(check), RatioText(check.ratio), QString::number(check.bound, 'f', 1),
            Verdict(check), check.origin};
}

} // namespace

void PrintColorCheck(TParameterStore& store, const QStringList& modes, bool asJson)
{
    QJsonArray objects;
    QList<QStringList> rows = {{QLatin1String("element"), QLatin1String("ground"), QLatin1String("scheme"),
                                QLatin1String("ratio"), QLatin1String("bound"), QLatin1String("verdict"),
                                QLatin1String("where the bound comes from")}};
    int warnings = 0;
    const QList<tagContrastCheck> checks = CheckContrasts(store);
    for (const tagContrastCheck& check : checks) {
        if (!modes.contains(Scheme(check)))
            continue;
        objects.append(Json(check));
        rows.append(Row(check));
        warnings += check.isLegible ? 0 : 1;
    }
    if (asJson) {
        PrintJson(objects);
        return;
    }
    PrintTable(rows);
    const int pairs = static_cast<int>(rows.size()) - 1;
    PrintLine(
        warnings == 0
            ? QString::fromLatin1("\nAll %1 pairs are legible.").arg(pairs)
            : QString::fromLatin1("\nWarning: the contrast is too low in %1 of %2 pairs.").arg(warnings).arg(pairs));
}
