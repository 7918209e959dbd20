#include "TQuickTerminal.h"

#include "../../host/stores/StoreTestSupport.h"
#include "../../system/TPrivateMounts.h"

#include "diagnostics/KeptLogs.h"
#include "diagnostics/UserLogEntries.h"
#include "system/TSystemSettingsProxy.h"

/// What the terminal finds out by itself, says, and takes back when it is over.
class ProblemSources : public QObject
{
    Q_OBJECT

private slots:
    void aStoreThatAnotherProgramHolds();
    void aDriveThatIsNearlyFull();
    void logsThatLoseLines();
    void recordingThatIsOff();

private:
    static QStringList Keys(const TQuickTerminal& terminal)
    {
        QStringList keys;
        const auto* const model = qobject_cast<QAbstractItemModel*>(terminal.Named("Problems"));
        const int role = model->roleNames().key("key");
        for (int row = 0; row < model->rowCount(); ++row)
            keys.append(model->index(row, 0).data(role).toString());
        keys.sort();
        return keys;
    }

    static QStringList Words(const char* text) { return QString::fromLatin1(text).split(QLatin1Char(' ')); }

    static bool Fill(const TTemporaryFolder& folder)
    {
        QFile file(folder.Path(QLatin1String("full")));
        return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(QByteArray(2000000, 'x')) > 0;
    }
};

void ProblemSources::aStoreThatAnotherProgramHolds()
{
    const TQuickTerminal terminal;
    QCOMPARE(Keys(terminal), QStringList());
    {
        TOtherProgram other(terminal.Store().Path());
        other.Run(QLatin1String("BEGIN IMMEDIATE"));
        QVERIFY(!terminal.Store().SetParameter(PARAM_METRIC, false, true));
        QTRY_COMPARE_WITH_TIMEOUT(Keys(terminal), Words("store"), Patience);
        QVERIFY(terminal.Text("Problems.first").startsWith(QLatin1String("Changes of settings are not stored yet. ")));
        other.Run(QLatin1String("ROLLBACK"));
    }
    QTRY_COMPARE_WITH_TIMEOUT(Keys(terminal), QStringList(), Patience);
    QCOMPARE(OpenStore(terminal.Store().Path())->GetParameter(PARAM_METRIC), QVariant(false)); // written by then
}

void ProblemSources::aDriveThatIsNearlyFull()
{
    if (!PrivateMounts::ArePermitted())
        QSKIP("Mounting is not permitted here.");
    const TTemporaryFolder folder;
    const TMemoryDrive drive(folder.Path(), "size=1000k,mode=0777");
    QVERIFY(drive.IsMounted());
    const TQuickTerminal terminal({{PARAM_INTERNAL_DRIVE, folder.Path() + QLatin1Char('/')}});
    QVERIFY(Fill(folder));
    QTRY_VERIFY_WITH_TIMEOUT(Keys(terminal).contains(QLatin1String("drive")), Patience);
    QVERIFY(QFile::remove(folder.Path(QLatin1String("full"))));
    QTRY_COMPARE_WITH_TIMEOUT(Keys(terminal), QStringList(), Patience);
}

void ProblemSources::logsThatLoseLines()
{
    if (!PrivateMounts::ArePermitted())
        QSKIP("Mounting is not permitted here.");
    const TTemporaryFolder folder;
    const TMemoryDrive drive(folder.Path(), "size=1000k,mode=0777");
    QVERIFY(drive.IsMounted());
    const TQuickTerminal terminal({{PARAM_INTERNAL_DRIVE, folder.Path() + QLatin1Char('/')}});
    QCOMPARE(Keys(terminal), QStringList());
    QVERIFY(Fill(folder));
    for (int line = 0; line < 1000; ++line)
        AddUserLogEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, 0, QLatin1String("a long text to fill a page"),
                        QString());
    QTRY_VERIFY_WITH_TIMEOUT(Keys(terminal).contains(QLatin1String("logs")), Patience);
    QVERIFY(QFile::remove(folder.Path(QLatin1String("full"))));
    QTRY_COMPARE_WITH_TIMEOUT(Keys(terminal), QStringList(), 60000);
}

void ProblemSources::recordingThatIsOff()
{
    const TQuickTerminal terminal;
    TSystemSettingsProxy().UpdateLowFlashRecordingOff(true);
    QTRY_COMPARE_WITH_TIMEOUT(Keys(terminal), Words("recording"), Patience);
    TSystemSettingsProxy().UpdateLowFlashRecordingOff(false);
    QTRY_COMPARE_WITH_TIMEOUT(Keys(terminal), QStringList(), Patience);
}

int main(int argc, char* argv[])
{
    PrivateMounts::Enter();
    const QCoreApplication application(argc, argv);
    ProblemSources test;
    return QTest::qExec(&test, argc, argv);
}

#include "ProblemSources.moc"
