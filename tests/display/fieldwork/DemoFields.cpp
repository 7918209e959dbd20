#include "TWorkRoom.h"

#include <cmath>

class DemoFields : public QObject
{
    Q_OBJECT

private slots:
    void theJobIsThereWithItsField();
    void theDriveStaysInTheField();
    void filesThatExistStay();
};

void DemoFields::theJobIsThereWithItsField()
{
    const TWorkRoom room;
    QCOMPARE(room.Problems(), QStringList());
    QCOMPARE(room.work->JobText(), QLatin1String("J_1"));
    QVERIFY(room.work->HasLine());
    QVERIFY(room.work->AreaLeft() > 18 && room.work->AreaLeft() < 20); // hectares
    QMap<int, int> areas;
    for (const tagMapArea& area : room.work->Map()->Areas()) {
        ++areas[area.kind];
        QVERIFY(area.outline.size() >= 5);
    }
    const QMap<int, int> expected = {{MAP_AREA_EXTERNAL_BOUNDARY, 1},
                                     {MAP_AREA_INTERNAL_BOUNDARY, 1},
                                     {MAP_AREA_INACTIVE_BOUNDARY, 1},
                                     {MAP_AREA_EXCLUSION_ZONE, 1}};
    QCOMPARE(areas, expected);
}

void DemoFields::theDriveStaysInTheField()
{
    TWorkRoom room;
    QPolygonF outline;
    for (const tagMapArea& area : room.work->Map()->Areas())
        if (area.kind == MAP_AREA_EXTERNAL_BOUNDARY)
            outline = area.outline;
    TFieldSimulator simulator(CabQuick::SimulatedPlan());
    TReceiver& receiver = CabQuick::Receiver();
    double farthest = 0;
    for (int i = 0; i < 4 * 1700; ++i) { // four passes with their turns
        const QByteArray epoch = simulator.NextEpoch();
        if (i % 10 != 0)
            continue;
        receiver.Show(epoch);
        QVERIFY(room.work->Map()->Vehicle());
        const tagMapVehicle& vehicle = *room.work->Map()->Vehicle();
        QVERIFY2(outline.containsPoint(vehicle.place, Qt::OddEvenFill),
                 qPrintable(QString::fromLatin1("%1 %2").arg(vehicle.place.x()).arg(vehicle.place.y())));
        farthest = std::max(farthest, std::abs(room.work->OffLine()));
    }
    QVERIFY(room.work->LineNumber() >= 3); // each pass has its line
    QVERIFY(farthest <= 6.01);             // never farther than halfway to the next
}

void DemoFields::filesThatExistStay()
{
    TWorkRoom room;
    const QString line = room.FieldFile("ABLines/AB_1/AB_1.ini");
    QString error;
    const tagGuidanceLine own = {{52, 10}, {52, 10.002}};
    QVERIFY2(WriteGuidanceLine(line, own, &error), qPrintable(error));
    room.Select("job", "J_2");
    QVERIFY2(MakeDemoField(*qmlEngine(room.terminal.Object()), &error), qPrintable(error));
    QCOMPARE(ReadGuidanceLine(line, &error)->b.longitude, 10.002);
    QCOMPARE(room.terminal.Text("Selections.job"), QLatin1String("J_1"));
}

QTEST_MAIN(DemoFields)
#include "DemoFields.moc"
