#include "terminal/SizeText.h"

#include "units/TUnits.h"

#include <QLocale>

QString SizeText(qint64 bytes)
{
    const int decimals = 1;
    return TUnits::InternalToDisplayableFloatStr(
        QLocale::c().formattedDataSize(bytes, decimals, QLocale::DataSizeSIFormat));
}
