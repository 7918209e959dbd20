#include "machine/Implement.h"

#include "blocks/WorkFile.h"
#include "serialization/TBinarySerializer.h"

#include <QBuffer>

namespace {

constexpr WorkFile::tagKind Kind = {"implement", 1};
constexpr int ContentBytes = 2 * sizeof(double) + sizeof(qint32);

} // namespace

QString CheckImplement(const tagImplement& implement)
{
    using namespace ImplementRange;
    struct tagRow
    {
        const char* name;
        double value;
        double least;
        double greatest;
    };
    const tagRow rows[] = {
        {"width (m)", implement.width, LeastWidth, GreatestWidth},
        {"distance behind the antenna (m)", implement.behind, LeastBehind, GreatestBehind},
        {"number of sections", static_cast<double>(implement.sections), LeastSections, GreatestSections},
    };
    for (const tagRow& row : rows) {
        const bool isAccepted = row.value >= row.least && row.value <= row.greatest; // false for NaN
        if (!isAccepted)
            return QString::fromLatin1("invalid %1 %2; expected a number from %3 to %4")
                .arg(QLatin1String(row.name))
                .arg(row.value)
                .arg(row.least)
                .arg(row.greatest);
    }
    return QString();
}

std::optional<tagImplement> ReadImplement(const QString& path, QString* error)
{
    std::optional<QByteArray> content = WorkFile::Read(path, Kind, error);
    if (!content)
        return std::nullopt;
    const bool isWhole = content->size() == ContentBytes;
    QBuffer buffer(&*content);
    buffer.open(QIODevice::ReadOnly);
    tagImplement implement;
    TBinarySerializer(&buffer) >> implement.width >> implement.behind >> implement.sections;
    if (isWhole && CheckImplement(implement).isEmpty())
        return implement;
    *error = WorkFile::Damage(path, Kind);
    return std::nullopt;
}

bool WriteImplement(const QString& path, const tagImplement& implement, QString* error)
{
    *error = CheckImplement(implement);
    if (!error->isEmpty())
        return false;
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    TBinarySerializer(&buffer) << implement.width << implement.behind << implement.sections;
    return WorkFile::Write(path, Kind, content, error);
}
