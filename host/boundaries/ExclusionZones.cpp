#include "boundaries/ExclusionZones.h"

#include "blocks/WorkFile.h"
#include "boundaries/TShapeFiles.h"
#include "platform/RegularFile.h"
#include "stores/DurableFiles.h"
#include "stores/DurableFolder.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <shapefil.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>
#include <type_traits>
#include <utility>

namespace {

constexpr char Name[] = "zones.shp"; ///< in memory
constexpr int HeaderBytes = 100;
constexpr int LengthPlace = 24;      ///< of a file, in words of two bytes
constexpr int RowBytes = 8;          ///< of the index: the place of a record and the length of its content, in words
constexpr int RecordHeaderBytes = 8; ///< the number of the record, from 1, and the length of its content, in words

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

qint64 Number(const QByteArray& bytes, qint64 at) { return qFromBigEndian<quint32>(bytes.constData() + at); }
qint64 Words(const QByteArray& bytes, qint64 at) { return 2 * Number(bytes, at); }

/// Whether a file is as long as its header says. The library believes the header, and takes memory for it.
bool HasItsLength(const QByteArray& bytes)
{
    return bytes.size() >= HeaderBytes && Words(bytes, LengthPlace) <= bytes.size();
}

QString Damage(const QString& path) { return QString::fromLatin1("%1 is damaged").arg(path); }

/// Returns false, with @p error, when a file is larger than is read.
bool IsOfSize(const QString& path, qint64 bytes, QString* error)
{
    if (bytes <= WorkFile::MostBytes)
        return true;
    *error = QString::fromLatin1("%1 is too large: it has %2 bytes, a file of exclusion zones has at most %3")
                 .arg(path, QString::number(bytes), QString::number(WorkFile::MostBytes));
    return false;
}

/// Returns false, with @p error, when the file cannot be one of a shapefile.
bool ReadWhole(const QString& path, QByteArray* bytes, QString* error)
{
    QFile file;
    const int descriptor = OpenRegularFile(path.toUtf8());
    if (descriptor < 0 && errno != EINVAL) {
        *error = DurableFiles::SystemReason(QLatin1String("cannot read"), path);
        return false;
    }
    const bool isOpen = descriptor >= 0 && file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    if (isOpen && !IsOfSize(path, file.size(), error))
        return false;
    *bytes = isOpen ? file.readAll() : QByteArray();
    if (!HasItsLength(*bytes))
        *error = Damage(path);
    return error->isEmpty();
}

/// The index of the records, one behind the other; empty when they are not.
QByteArray IndexOf(const QByteArray& shapes)
{
    QByteArray index = shapes.left(HeaderBytes);
    const qint64 end = Words(shapes, LengthPlace);
    qint64 at = HeaderBytes;
    for (qint64 number = 1; at < end; ++number) {
        if (at + RecordHeaderBytes > end || Number(shapes, at) != number)
            return QByteArray();
        const qint64 length = Words(shapes, at + 4);
        QByteArray row(RowBytes, '\0');
        qToBigEndian(static_cast<quint32>(at / 2), row.data());
        qToBigEndian(static_cast<quint32>(length / 2), row.data() + 4);
        index += row;
        at += RecordHeaderBytes + length;
    }
    qToBigEndian(static_cast<quint32>(index.size() / 2), index.data() + LengthPlace);
    return at == end ? index : QByteArray();
}

bool IsPolygon(int type) { return type == SHPT_POLYGON || type == SHPT_POLYGONZ || type == SHPT_POLYGONM; }

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

bool WriteShapes(const std::vector<TGeoRing>& zones, SAHooks* hooks)
{
    const TShapeFile file(SHPCreateLL(Name, SHPT_POLYGON, hooks));
    const TTable table(DBFCreateLL(Name, nullptr, hooks));
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
    TShapeFiles files;
    SAHooks hooks = TShapeFiles::Hooks();
    if (!ReadWhole(path, &files["shp"], error) || !ReadWhole(index, &files["shx"], error))
        return std::nullopt;
    // When writing was cut off, the index may be of other zones than the shapes, which are whole.
    const QByteArray rebuilt = IndexOf(files["shp"]);
    if (!rebuilt.isEmpty())
        files["shx"] = rebuilt;
    const TShapeFile file(SHPOpenLL(Name, "rb", &hooks));
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
    TShapeFiles files;
    SAHooks hooks = TShapeFiles::Hooks();
    if (!MakeFolderDurably(QFileInfo(path).path(), error))
        return false;
    if (!WriteShapes(zones, &hooks)) {
        *error = QString::fromLatin1("cannot write %1").arg(path);
        return false;
    }
    // With the shapes, the new zones are there. An old index is replaced after them: it can be made from new shapes,
    // but the new one not from old shapes, which another program may have numbered in its way.
    std::array<const char*, 3> extensions = {"dbf", "shx", "shp"};
    if (QFile::exists(Beside(path, "shx")))
        std::swap(extensions[1], extensions[2]);
    const auto isOfSize = [&](const char* extension) {
        return IsOfSize(Beside(path, extension), files[extension].size(), error);
    };
    return std::all_of(extensions.begin(), extensions.end(), isOfSize) &&
           std::all_of(extensions.begin(), extensions.end(), [&](const char* extension) {
               return DurableFiles::Write(Beside(path, extension), files[extension], error);
           });
}
