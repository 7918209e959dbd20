#include "boundaries/ExclusionZones.h"

#include "platform/RegularFile.h"
#include "stores/DurableFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <shapefil.h>

#include <algorithm>
#include <memory>

namespace {

constexpr int IndexHeaderBytes = 100;
constexpr int LengthPlace = 24; ///< of a file, in words of two bytes
constexpr const char* Extensions[] = {"shp", "shx", "dbf"};

void BeSilent(const char*) {} // the library would print on standard error

SAHooks SilentHooks()
{
    SAHooks hooks;
    SASetupDefaultHooks(&hooks);
    hooks.Error = BeSilent;
    return hooks;
}

struct tagCloser
{
    void operator()(SHPHandle file) const { SHPClose(file); }
    void operator()(SHPObject* shape) const { SHPDestroyObject(shape); }
    void operator()(DBFHandle table) const { DBFClose(table); }
};
using TShapeFile = std::unique_ptr<std::remove_pointer_t<SHPHandle>, tagCloser>;
using TShape = std::unique_ptr<SHPObject, tagCloser>;
using TTable = std::unique_ptr<std::remove_pointer_t<DBFHandle>, tagCloser>;

/// "shx" beside "F1.shp".
QString Beside(const QString& path, const char* extension)
{
    const QFileInfo info(path);
    return info.path() + QLatin1Char('/') + info.completeBaseName() + QLatin1Char('.') + QLatin1String(extension);
}

/// Whether a file is as long as its header says. The library believes the header, and takes memory for it.
bool HasItsLength(const QString& path)
{
    QFile file;
    const int descriptor = OpenRegularFile(path.toUtf8());
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return false;
    const QByteArray header = file.read(IndexHeaderBytes);
    return header.size() == IndexHeaderBytes &&
           2 * static_cast<qint64>(qFromBigEndian<quint32>(header.constData() + LengthPlace)) <= file.size();
}

bool IsPolygon(int type) { return type == SHPT_POLYGON || type == SHPT_POLYGONZ || type == SHPT_POLYGONM; }

QString Damage(const QString& path) { return QString::fromLatin1("%1 is damaged").arg(path); }

TGeoRing Part(const SHPObject& shape, int part)
{
    const int begin = shape.panPartStart[part];
    int end = part + 1 < shape.nParts ? shape.panPartStart[part + 1] : shape.nVertices;
    const bool isClosed =
        end - begin > 1 && shape.padfX[begin] == shape.padfX[end - 1] && shape.padfY[begin] == shape.padfY[end - 1];
    if (isClosed)
        --end;
    TGeoRing ring;
    for (int i = begin; i < end; ++i)
        ring.push_back({shape.padfY[i], shape.padfX[i]});
    return ring;
}

/// Appends the zones of a shape. Returns false, with @p error, when they are not zones.
bool TakeZones(const SHPObject& shape, const QString& path, std::vector<TGeoRing>* zones, QString* error)
{
    for (int part = 0; part < shape.nParts; ++part) {
        TGeoRing ring = Part(shape, part);
        if (!std::all_of(ring.begin(), ring.end(), IsGeoPoint)) {
            *error = QString::fromLatin1("%1 has coordinates that are not degrees; expected WGS84").arg(path);
            return false;
        }
        if (ring.size() >= 3)
            zones->push_back(std::move(ring));
    }
    return true;
}

/// The corners of a zone as the library wants them: closed, and clockwise.
struct tagCorners
{
    explicit tagCorners(const TGeoRing& ring)
    {
        double twice = 0;
        for (std::size_t i = 0; i <= ring.size(); ++i) {
            const tagGeoPoint& corner = ring[i % ring.size()];
            const tagGeoPoint& next = ring[(i + 1) % ring.size()];
            twice += i < ring.size() ? corner.longitude * next.latitude - next.longitude * corner.latitude : 0;
            longitudes.push_back(corner.longitude);
            latitudes.push_back(corner.latitude);
        }
        if (twice > 0) {
            std::reverse(longitudes.begin(), longitudes.end());
            std::reverse(latitudes.begin(), latitudes.end());
        }
    }

    std::vector<double> longitudes;
    std::vector<double> latitudes;
};

bool WriteShapes(const QString& path, const std::vector<TGeoRing>& zones, SAHooks* hooks)
{
    const QByteArray name = path.toUtf8();
    const TShapeFile file(SHPCreateLL(name.constData(), SHPT_POLYGON, hooks));
    const TTable table(DBFCreateLL(name.constData(), nullptr, hooks));
    bool isGood = file && table && DBFAddField(table.get(), "ID", FTInteger, 9, 0) >= 0;
    for (std::size_t i = 0; isGood && i < zones.size(); ++i) {
        tagCorners corners(zones[i]);
        const TShape shape(SHPCreateSimpleObject(SHPT_POLYGON, static_cast<int>(corners.latitudes.size()),
                                                 corners.longitudes.data(), corners.latitudes.data(), nullptr));
        const int row = static_cast<int>(i);
        isGood = shape && SHPWriteObject(file.get(), -1, shape.get()) == row &&
                 DBFWriteIntegerAttribute(table.get(), row, 0, row + 1) != 0;
    }
    return isGood;
}

} // namespace

std::optional<std::vector<TGeoRing>> ReadExclusionZones(const QString& path, QString* error)
{
    error->clear();
    if (!QFile::exists(path))
        return std::nullopt;
    const QString index = Beside(path, "shx");
    if (!QFile::exists(index)) {
        *error = QString::fromLatin1("%1 has no index: there is no %2").arg(path, index);
        return std::nullopt;
    }
    SAHooks hooks = SilentHooks();
    const bool isWhole = HasItsLength(path) && HasItsLength(index);
    const TShapeFile file(isWhole ? SHPOpenLL(path.toUtf8().constData(), "rb", &hooks) : nullptr);
    if (!file) {
        *error = Damage(path);
        return std::nullopt;
    }
    int count = 0;
    int type = 0;
    SHPGetInfo(file.get(), &count, &type, nullptr, nullptr);
    if (!IsPolygon(type)) {
        *error = QString::fromLatin1("%1 has no polygons").arg(path);
        return std::nullopt;
    }
    std::vector<TGeoRing> zones;
    for (int i = 0; i < count; ++i) {
        const TShape shape(SHPReadObject(file.get(), i));
        if (!shape || (shape->nSHPType != SHPT_NULL && !IsPolygon(shape->nSHPType))) {
            *error = Damage(path);
            return std::nullopt;
        }
        if (!TakeZones(*shape, path, &zones, error))
            return std::nullopt;
    }
    return zones;
}

bool WriteExclusionZones(const QString& path, const std::vector<TGeoRing>& zones, QString* error)
{
    for (const TGeoRing& zone : zones) {
        if (zone.size() < 3 || !std::all_of(zone.begin(), zone.end(), IsGeoPoint)) {
            *error = QLatin1String("invalid exclusion zone; expected 3 corners or more, on the Earth");
            return false;
        }
    }
    const QString folder = QFileInfo(path).path();
    SAHooks hooks = SilentHooks();
    if (!QDir().mkpath(folder) || !WriteShapes(path, zones, &hooks)) {
        *error = QString::fromLatin1("cannot write %1").arg(path);
        return false;
    }
    for (const char* extension : Extensions) {
        if (!DurableFiles::SyncContent(Beside(path, extension), error))
            return false;
    }
    return true;
}
