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
};

void Drives::theInternalDriveAndTheMemoryAreMeasured()
{
    const TQuickTerminal terminal;
    QTRY_VERIFY(terminal.Get("Drives.internalTotal").toDouble() > 0);
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
    QTRY_VERIFY(terminal.Get("Drives.internalTotal").toDouble() > 0);
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
    QTRY_COMPARE(terminal.Text("Drives.stickText"), QLatin1String("No stick"));
    {
        const TMemoryDrive stick(terminal.folder.Path(QLatin1String("usb")), "size=2000k,mode=0777");
        QVERIFY(stick.IsMounted());
        QTRY_VERIFY(terminal.Get("Drives.hasStick").toBool());
        QCOMPARE(terminal.Get("Drives.stickTotal").toDouble(), 2048000.0);
        QCOMPARE(terminal.Text("Drives.stickText"), QLatin1String("2.0 MB free of 2.0 MB"));
        terminal.folder.MakeFile(QLatin1String("usb/full"), QByteArray(1024000, 'x'));
        QTRY_COMPARE(terminal.Text("Drives.stickText"), QLatin1String("1.0 MB free of 2.0 MB"));
    }
    QTRY_VERIFY(!terminal.Get("Drives.hasStick").toBool());
    QCOMPARE(terminal.Text("Drives.stickText"), QLatin1String("No stick"));
}

void Drives::whatStaysIsNotTold()
{
    const TQuickTerminal terminal;
    QTRY_VERIFY(terminal.Get("Drives.internalTotal").toDouble() > 0);
    QSignalSpy sticks(terminal.Named("Drives"), SIGNAL(stickChanged()));
    QSignalSpy texts(terminal.Named("Drives"), SIGNAL(stickTextChanged()));
    QSignalSpy loads(terminal.Named("Drives"), SIGNAL(memoryChanged()));
    QTRY_VERIFY_WITH_TIMEOUT(loads.size() >= 2, 60000); // two looks
    QCOMPARE(sticks.size(), 0);
    QCOMPARE(texts.size(), 0);
}

int main(int argc, char* argv[])
{
    PrivateMounts::Enter();
    const QCoreApplication application(argc, argv);
    Drives test;
    return QTest::qExec(&test, argc, argv);
}

#include "Drives.moc"
