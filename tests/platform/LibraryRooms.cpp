#include "CoreTest.h"
#include "Latin1.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QStringList>
#include <QtTest>

/// The folders of src/ and those within them, and which of them each may include.
class LibraryRooms : public QObject
{
    Q_OBJECT

private slots:
    void everyRoomHasItsRow();
    void noRoomIncludesOneAboveIt_data();
    void noRoomIncludesOneAboveIt();
};

namespace {

struct tagRoom
{
    const char* name;
    const char* below; ///< the rooms that it may include, separated by blanks
};

const tagRoom Rooms[] = {
    {"platform", ""},
    {"access", "platform"},
    {"serialization", "platform access"},
    {"units", "platform"},
    {"units/table", "platform units"},
    {"units/conversion", "platform access units units/table"},
    {"units/choice", "platform access units units/table units/conversion"},
    {"units/text", "platform access units units/table units/conversion units/choice"},
    {"colors", "platform access"},
    {"region", "platform access"},
    {"logs", "platform access"},
    {"system", "platform access region"},
    {"settings", "platform access serialization units colors region logs system"},
};

QDir Sources() { return QDir(QString::fromUtf8(CABSETTINGS_SOURCES)); }

/// The folders below @p folder, by their paths from src/.
QStringList RoomsBelow(const QString& folder)
{
    QStringList rooms;
    const QStringList names = QDir(Sources().filePath(folder)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : names) {
        const QString room = folder.isEmpty() ? name : folder + QLatin1Char('/') + name;
        rooms << room << RoomsBelow(room);
    }
    return rooms;
}

/// What stands in quotes behind each #include of a file.
QStringList IncludesOf(const QString& path)
{
    QFile file(path);
    QStringList includes;
    if (!file.open(QIODevice::ReadOnly))
        return includes;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (line.startsWith(Latin1("#include \"")))
            includes.append(line.section(QLatin1Char('"'), 1, 1));
    }
    return includes;
}

} // namespace

void LibraryRooms::everyRoomHasItsRow()
{
    QSet<QString> rows;
    for (const tagRoom& room : Rooms)
        rows.insert(Latin1(room.name));
    QSet<QString> folders;
    const QStringList rooms = RoomsBelow(QString());
    for (const QString& room : rooms)
        folders.insert(room);
    QCOMPARE(folders, rows);
}

void LibraryRooms::noRoomIncludesOneAboveIt_data()
{
    QTest::addColumn<QString>("room");
    QTest::addColumn<QStringList>("allowed");

    for (const tagRoom& room : Rooms)
        QTest::newRow(room.name) << Latin1(room.name)
                                 << (Latin1(room.below).split(QLatin1Char(' ')) << Latin1(room.name));
}

void LibraryRooms::noRoomIncludesOneAboveIt()
{
    QFETCH(QString, room);
    QFETCH(QStringList, allowed);

    const QDir folder(Sources().filePath(room));
    const QStringList files = folder.entryList(QDir::Files);
    QVERIFY(!files.isEmpty());
    for (const QString& file : files) {
        const QStringList includes = IncludesOf(folder.filePath(file));
        for (const QString& include : includes) {
            const QString other = include.section(QLatin1Char('/'), 0, -2);
            QVERIFY2(include.endsWith(Latin1(".moc")) || allowed.contains(other),
                     qPrintable(room + QLatin1Char('/') + file + Latin1(" includes ") + include));
        }
    }
}

QTEST_APPLESS_MAIN(LibraryRooms)
#include "LibraryRooms.moc"
