#include "TQuickTerminal.h"

#include "../../system/TPrivateMounts.h"

#include <cmath>

/// The room on the drives and in the memory, in QML.
class Drives : public QObject
{
    Q_OBJECT

private slots:
    void theInternalDriveAndTheMemoryAreMeasured();
    void withoutAStickThereIsNone();
    void aStickComesAndGoes();
    void whatStaysIsNotTold();
    void aPictureHasDrivesOfItsOwn();
};

void Drives::theInternalDriveAndTheMemoryAreMeasured()
{
    const TQuickTerminal terminal;
    QTRY_VERIFY_WITH_TIMEOUT(terminal.Get("Drives.internalTotal").toDouble() > 0, Patience);
    QVERIFY(terminal.Get("Drives.internalFree <= Drives.internalTotal").toBool());
    QVERIFY(terminal.Get("Drives.memoryTotal > 0 && Drives.memoryFree <= Drives.memoryTotal").toBool());
    QVERIFY(terminal.Get("Drives.load >= 0 && Drives.load <= 1").toBool());
    const QRegularExpression shape(QLatin1String("^[0-9.]+ (bytes|[kMGT]B) free of [0-9.]+ (bytes|[kMGT]B)$"));
    QVERIFY2(shape.match(terminal.Text("Drives.internalText")).hasMatch(),
             qPrintable(terminal.Text("Drives.internalText")));
    QVERIFY(shape.match(terminal.Text("Drives.memoryText")).hasMatch());
}

void Drives::withoutAStickThereIsNone()
{
    const TQuickTerminal terminal;
    QTRY_VERIFY_WITH_TIMEOUT(terminal.Get("Drives.internalTotal").toDouble() > 0, Patience);
    QVERIFY(!terminal.Get("Drives.hasStick").toBool());
    QVERIFY(terminal.Get("isNaN(Drives.stickFree) && isNaN(Drives.stickTotal)").toBool());
    QCOMPARE(terminal.Text("Drives.stickText"), QLatin1String("No stick"));
}

void Drives::aStickComesAndGoes()
{
    if (!PrivateMounts::ArePermitted())
        QSKIP("Mounting is not permitted here.");
    const TQuickTerminal terminal;
    terminal.folder.MakeFolder(QLatin1String("usb"));
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Drives.stickText"), QLatin1String("No stick"), Patience);
    {
        const TMemoryDrive stick(terminal.folder.Path(QLatin1String("usb")), "size=2000k,mode=0777");
        QVERIFY(stick.IsMounted());
        QTRY_VERIFY_WITH_TIMEOUT(terminal.Get("Drives.hasStick").toBool(), Patience);
        QCOMPARE(terminal.Get("Drives.stickTotal").toDouble(), 2048000.0);
        QCOMPARE(terminal.Text("Drives.stickText"), QLatin1String("2.0 MB free of 2.0 MB"));
        terminal.folder.MakeFile(QLatin1String("usb/full"), QByteArray(1024000, 'x'));
        QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Drives.stickText"), QLatin1String("1.0 MB free of 2.0 MB"), Patience);
    }
    QTRY_VERIFY_WITH_TIMEOUT(!terminal.Get("Drives.hasStick").toBool(), Patience);
    QCOMPARE(terminal.Text("Drives.stickText"), QLatin1String("No stick"));
}

void Drives::whatStaysIsNotTold()
{
    const TQuickTerminal terminal;
    QTRY_VERIFY_WITH_TIMEOUT(terminal.Get("Drives.internalTotal").toDouble() > 0, Patience);
    QSignalSpy sticks(terminal.Named("Drives"), SIGNAL(stickChanged()));
    QSignalSpy texts(terminal.Named("Drives"), SIGNAL(stickTextChanged()));
    QSignalSpy loads(terminal.Named("Drives"), SIGNAL(memoryChanged()));
    QTRY_VERIFY_WITH_TIMEOUT(loads.size() >= 2, 60000); // two looks
    QCOMPARE(sticks.size(), 0);
    QCOMPARE(texts.size(), 0);
}

void Drives::aPictureHasDrivesOfItsOwn()
{
    const TQuickTerminal terminal;
    CabQuick::ShowDrives({{28000000000, 12300000000}, tagSpace{8000000000, 7400000000}, {2000000000, 1400000000}, 0.5});
    QCOMPARE(terminal.Text("Drives.internalText"), QLatin1String("12.3 GB free of 28.0 GB"));
    QCOMPARE(terminal.Text("Drives.stickText"), QLatin1String("7.4 GB free of 8.0 GB"));
    QCOMPARE(terminal.Text("Drives.memoryText"), QLatin1String("1.4 GB free of 2.0 GB"));
    QVERIFY(terminal.Get("Drives.hasStick").toBool());
    QCOMPARE(terminal.Get("Drives.load").toDouble(), 0.5);
}

int main(int argc, char* argv[])
{
    PrivateMounts::Enter();
    const QCoreApplication application(argc, argv);
    Drives test;
    return QTest::qExec(&test, argc, argv);
}

#include "Drives.moc"
