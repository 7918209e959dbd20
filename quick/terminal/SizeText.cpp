#include "terminal/SizeText.h"

#include "units/TUnits.h"

#include <QCoreApplication>

#include <iterator>

namespace {

const qint64 Thousand = 1000;

const char* const Bytes = QT_TRANSLATE_N_NOOP("Sizes", "%n byte(s)");

/// By the power of a thousand, from the first on.
constexpr const char* Sizes[] = {
    QT_TRANSLATE_NOOP("Sizes", "%1 kB"),
    QT_TRANSLATE_NOOP("Sizes", "%1 MB"),
    QT_TRANSLATE_NOOP("Sizes", "%1 GB"),
    QT_TRANSLATE_NOOP("Sizes", "%1 TB"),
};

} // namespace

QString SizeText(qint64 bytes)
{
    if (bytes < Thousand)
        return QCoreApplication::translate("Sizes", Bytes, nullptr, static_cast<int>(bytes));
    const double next = 999.95; // it would be shown as 1000.0
    double size = static_cast<double>(bytes) / Thousand;
    std::size_t power = 0;
    for (; size >= next && power + 1 < std::size(Sizes); ++power)
        size /= Thousand;
    const QString number = QString::number(size, 'f', 1);
    return QCoreApplication::translate("Sizes", Sizes[power]).arg(TUnits::InternalToDisplayableFloatStr(number));
}
