#include "TQuickTerminal.h"

#include "../../system/TPrivateMounts.h"

#include "diagnostics/UserLogEntries.h"
#include "parameters/HostParameters.h"
#include "profiles/ProfileGroups.h"
#include "profiles/TProfile.h"
#include "system/TSystemSettingsProxy.h"

#include <QDir>
#include <QFileInfo>

/// Exports to the stick and imports from it, in QML.
class Transfers : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void logsAreCopied();
    void logsThatCannotBeListedAreNotReportedAsCopied();
    void noLinkOfTheStickIsFollowed();
    void aProfileIsWrittenAndListed();
    void aNameIsChecked_data();
    void aNameIsChecked();
    void aProfileIsComparedAndImported();
    void aConflictIsResolvedByTheOperator_data();
    void aConflictIsResolvedByTheOperator();
    void aFileThatIsNoProfileIsRefused();
    void aBundleForSupportIsWritten();
    void withoutAStickNothingIsDone();
    void aFullStickIsSaid();
    void theProblemOfAStickEndsWithIt();
    void aPulledStickIsSaid();
    void anObjectMayGoWhileItsTransferRuns();
    void aSecondTransferWaits();
    void aPictureHasATransferOfItsOwn();

private:
    QString State() const { return m_Terminal->Text("['idle', 'running', 'done', 'failed'][self.state]"); }

    /// Calls a method, and waits for the end of the transfer: "done: ..." or "failed: ...".
    QString End(const char* call) const
    {
        m_Terminal->Get(call);
        static_cast<void>(QTest::qWaitFor([this] { return State() != QLatin1String("running"); }, 60000));
        return State() + QLatin1String(": ") + m_Terminal->Text("self.error + self.result");
    }

    bool IsDone(const char* call) const { return End(call).startsWith(QLatin1String("done: ")); }
    bool HasFailed(const char* call) const { return End(call).startsWith(QLatin1String("failed: ")); }

    void MountStick(const char* options = "size=20m,mode=0777")
    {
        m_Stick = std::make_unique<TMemoryDrive>(m_Terminal->folder.Path(QLatin1String("usb")), options);
        QVERIFY(m_Stick->IsMounted());
    }

    QString OnStick(const char* name) const
    {
        return m_Terminal->folder.Path(QLatin1String("usb/") + QString::fromUtf8(name));
    }

    QStringList ListedNames() const
    {
        QStringList names;
        const QVariantList profiles = m_Terminal->Get("self.profiles()").toList();
        for (const QVariant& profile : profiles)
            names.append(profile.toMap().value(QLatin1String("name")).toString());
        return names;
    }

    QVariantMap First(const char* property) const { return m_Terminal->Get(property).toList().value(0).toMap(); }

    void SetBacklight(int percent) { m_Terminal->Store().SetParameter(PARAM_BACKLIGHT_NIGHT_LEVEL, percent, true); }
    int Backlight() const { return m_Terminal->Store().GetParameter(PARAM_BACKLIGHT_NIGHT_LEVEL).toInt(); }

    /// The profile of another terminal, on the stick.
    void WriteOthersProfile(const char* name, int backlight) const
    {
        const TTemporaryFolder folder;
        QString error;
        const auto other = TSqliteStore::Open(folder.Path(QLatin1String("settings.db")), &error);
        QVERIFY2(other, qPrintable(error));
        other->SetParameter(PARAM_TERMINAL_IDENTITY, QLatin1String("6ba7b810-9dad-41d1-80b4-00c04fd430c8"), true);
        other->SetParameter(PARAM_BACKLIGHT_NIGHT_LEVEL, backlight, true);
        const TProfile profile = TProfile::Of(*other, ProfileGroups::All(), QLatin1String("1"));
        QVERIFY2(profile.Write(OnStick(name), &error), qPrintable(error));
    }

    QString LogFolder() const { return QFileInfo(TSystemSettingsProxy().GetInternalUserLogPath()).path(); }

    /// A file of the user log that is as large as asked for, without taking room.
    void MakeLargeLog(qint64 bytes) const
    {
        const QFileInfo base(TSystemSettingsProxy().GetInternalUserLogPath());
        QFile file(QString::fromLatin1("%1/%2%3.%4")
                       .arg(base.path(), base.completeBaseName(), QLatin1String("00077"), base.suffix()));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(bytes));
    }

    std::unique_ptr<TMemoryDrive> m_Stick;
    std::unique_ptr<TQuickTerminal> m_Terminal;
};

void Transfers::init()
{
    if (!PrivateMounts::ArePermitted())
        QSKIP("Mounting is not permitted here.");
    m_Terminal = std::make_unique<TQuickTerminal>();
    m_Terminal->folder.MakeFolder(QLatin1String("usb"));
    m_Terminal->Load("Transfer {}");
    m_Terminal->Get("Problems.count"); // looked at by a display, too
}

void Transfers::cleanup()
{
    m_Stick.reset();
    m_Terminal.reset();
}

void Transfers::logsAreCopied()
{
    MountStick();
    AddUserLogEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, 0, QLatin1String("to be copied"), QString());
    MakeLargeLog(100000);
    QSignalSpy progress(m_Terminal->Object(), SIGNAL(progressChanged()));
    QVERIFY2(IsDone("self.exportLogs()"), qPrintable(m_Terminal->Text("self.error")));
    QCOMPARE(m_Terminal->Get("self.progress").toDouble(), 1.0);
    QVERIFY(progress.size() >= 2);
    const QDir logs(LogFolder());
    const QStringList names = logs.entryList(QDir::Files);
    QVERIFY(names.size() >= 3);
    QCOMPARE(QDir(OnStick("Diagnostics")).entryList(QDir::Files), names);
    for (const QString& name : names) {
        QFile original(logs.filePath(name));
        QFile copy(OnStick("Diagnostics/") + name);
        QVERIFY(original.open(QIODevice::ReadOnly) && copy.open(QIODevice::ReadOnly));
        QCOMPARE(copy.readAll(), original.readAll());
    }
    QCOMPARE(m_Terminal->Get("Problems.count").toInt(), 0);
}

void Transfers::logsThatCannotBeListedAreNotReportedAsCopied()
{
    MountStick();
    const QString folder = LogFolder();
    QVERIFY(QDir().rename(folder, folder + QLatin1String(".gone")));
    QVERIFY(QFile(folder).open(QIODevice::WriteOnly)); // a file stands in the way
    QVERIFY(HasFailed("self.exportLogs()"));
    QVERIFY2(m_Terminal->Text("self.error").contains(folder), qPrintable(m_Terminal->Text("self.error")));
    QTRY_COMPARE_WITH_TIMEOUT(m_Terminal->Text("Problems.first"), m_Terminal->Text("self.error"), Patience);
    QVERIFY(QFile::remove(folder) && QDir().rename(folder + QLatin1String(".gone"), folder));
    QVERIFY(IsDone("self.exportLogs()"));
}

void Transfers::noLinkOfTheStickIsFollowed()
{
    MountStick();
    m_Terminal->folder.MakeFile(QLatin1String("outside/kept"), "kept");
    const QString outside = m_Terminal->folder.Path(QLatin1String("outside"));
    QVERIFY(QFile::link(outside, OnStick("Diagnostics")));
    QVERIFY(HasFailed("self.exportLogs()"));
    QVERIFY(m_Terminal->Text("self.error").contains(OnStick("Diagnostics")));
    WriteOthersProfile("real.profile", 1);
    QVERIFY(QFile::rename(OnStick("real.profile"), outside + QLatin1String("/theirs.profile")));
    QVERIFY(QFile::link(outside + QLatin1String("/theirs.profile"), OnStick("link.profile")));
    QVERIFY(QFile::link(outside + QLatin1String("/kept"), OnStick("mine.profile")));
    QVERIFY(IsDone("self.exportProfile('mine', [])"));
    QTRY_COMPARE(ListedNames(), QStringList{QLatin1String("mine")});
    QCOMPARE(m_Terminal->folder.Content(QLatin1String("outside/kept")), QByteArray("kept"));
    QCOMPARE(QDir(outside).entryList(QDir::Files),
             (QStringList{QLatin1String("kept"), QLatin1String("theirs.profile")}));
}

void Transfers::aProfileIsWrittenAndListed()
{
    MountStick();
    QVERIFY2(IsDone("self.exportProfile('Traktor 1', [])"), qPrintable(m_Terminal->Text("self.error")));
    QStringList problems;
    const auto profile = TProfile::Read(OnStick("Traktor 1.profile"), PROFILE_EDITS_REFUSED, &problems);
    QVERIFY2(profile, qPrintable(problems.join(QLatin1Char(' '))));
    QCOMPARE(profile->Groups(), ProfileGroups::All());
    QCOMPARE(profile->Origin().software, QLatin1String("2.1.4-r7"));
    QVERIFY(IsDone("self.exportProfile('units.profile', ['units'])"));
    WriteOthersProfile("of another.profile", 1);
    m_Terminal->folder.MakeFile(QLatin1String("usb/damaged.profile"), "{");
    QTRY_COMPARE(ListedNames(), (QStringList{QLatin1String("Traktor 1"), QLatin1String("damaged"),
                                             QLatin1String("of another"), QLatin1String("units")}));
    const QVariantList listed = m_Terminal->Get("self.profiles()").toList();
    QCOMPARE(listed.at(0).toMap().value(QLatin1String("file")).toString(), OnStick("Traktor 1.profile"));
    QSet<QString> texts;
    for (int row = 0; row < 3; ++row)
        texts.insert(listed.at(row).toMap().value(QLatin1String("text")).toString());
    QCOMPARE(texts.size(), 3); // of this terminal, of none, of another
    QVERIFY(!texts.contains(QString()));
}

void Transfers::aNameIsChecked_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isAccepted");
    QTest::newRow("plain") << QString::fromUtf8("Süd 7") << true;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("a path") << QString::fromLatin1("../x") << false;
    QTest::newRow("not for a stick") << QString::fromLatin1("a:b") << false;
}

void Transfers::aNameIsChecked()
{
    QFETCH(QString, name);
    QFETCH(bool, isAccepted);
    MountStick();
    QCOMPARE(m_Terminal->Text(qPrintable(QString::fromUtf8("self.checkName('%1')").arg(name))).isEmpty(), isAccepted);
    const QString call = QString::fromUtf8("self.exportProfile('%1', [])").arg(name);
    QCOMPARE(IsDone(call.toUtf8().constData()), isAccepted);
}

void Transfers::aProfileIsComparedAndImported()
{
    MountStick();
    SetBacklight(20);
    WriteOthersProfile("other.profile", 30);
    const QString compare = QString::fromLatin1("self.compareProfile('%1')").arg(OnStick("other.profile"));
    QCOMPARE(End(compare.toUtf8().constData()), QLatin1String("idle: "));
    QCOMPARE(m_Terminal->Get("self.changes.length").toInt(), 1);
    QCOMPARE(m_Terminal->Get("self.conflicts.length").toInt(), 0);
    const QVariantMap change = First("self.changes");
    QCOMPARE(change.value(QLatin1String("name")).toString(), QLatin1String("display.night-backlight"));
    QVERIFY(!change.value(QLatin1String("title")).toString().isEmpty());
    QCOMPARE(change.value(QLatin1String("ours")).toString(), QLatin1String("20 %"));
    QCOMPARE(change.value(QLatin1String("theirs")).toString(), QLatin1String("30 %"));
    QCOMPARE(Backlight(), 20);
    const QString import = QString::fromLatin1("self.importProfile('%1', 'none')").arg(OnStick("other.profile"));
    QVERIFY2(IsDone(import.toUtf8().constData()), qPrintable(m_Terminal->Text("self.error")));
    QCOMPARE(Backlight(), 30);
}

void Transfers::aConflictIsResolvedByTheOperator_data()
{
    QTest::addColumn<bool>("isDone");
    QTest::addColumn<int>("backlight");
    QTest::newRow("none") << false << 50;
    QTest::newRow("ours") << true << 50;
    QTest::newRow("theirs") << true << 40;
}

void Transfers::aConflictIsResolvedByTheOperator()
{
    QFETCH(bool, isDone);
    QFETCH(int, backlight);
    MountStick();
    WriteOthersProfile("first.profile", 30);
    const QString first = QString::fromLatin1("self.importProfile('%1', 'none')").arg(OnStick("first.profile"));
    QVERIFY(IsDone(first.toUtf8().constData()));
    SetBacklight(50);
    WriteOthersProfile("second.profile", 40);
    const QString compare = QString::fromLatin1("self.compareProfile('%1')").arg(OnStick("second.profile"));
    QCOMPARE(End(compare.toUtf8().constData()), QLatin1String("idle: "));
    const QVariantMap conflict = First("self.conflicts");
    QCOMPARE(conflict.value(QLatin1String("ours")).toString(), QLatin1String("50 %"));
    QCOMPARE(conflict.value(QLatin1String("theirs")).toString(), QLatin1String("40 %"));
    QCOMPARE(conflict.value(QLatin1String("base")).toString(), QLatin1String("30 %"));
    const QString import = QString::fromLatin1("self.importProfile('%1', '%2')")
                               .arg(OnStick("second.profile"), QLatin1String(QTest::currentDataTag()));
    QCOMPARE(IsDone(import.toUtf8().constData()), isDone);
    QCOMPARE(Backlight(), backlight);
}

void Transfers::aFileThatIsNoProfileIsRefused()
{
    MountStick();
    m_Terminal->folder.MakeFile(QLatin1String("usb/damaged.profile"), "{");
    const QString compare = QString::fromLatin1("self.compareProfile('%1')").arg(OnStick("damaged.profile"));
    QVERIFY(HasFailed(compare.toUtf8().constData()));
    QVERIFY(!m_Terminal->Text("self.error").isEmpty());
    QCOMPARE(m_Terminal->Get("Problems.count").toInt(), 0); // the page says it
}

void Transfers::aBundleForSupportIsWritten()
{
    MountStick();
    QVERIFY2(IsDone("self.writeSupport(true)"), qPrintable(m_Terminal->Text("self.error")));
    const QStringList files = QDir(OnStick("")).entryList({QLatin1String("support_*.zip")}, QDir::Files);
    QCOMPARE(files.size(), 1);
    QVERIFY(QFileInfo(OnStick("") + files.first()).size() > 1000);
    QVERIFY(m_Terminal->Text("self.result").contains(files.first()));
}

void Transfers::withoutAStickNothingIsDone()
{
    for (const char* const call : {"self.exportLogs()", "self.exportProfile('a', [])", "self.writeSupport(false)"}) {
        QVERIFY(HasFailed(call));
        QTRY_COMPARE_WITH_TIMEOUT(m_Terminal->Text("Problems.first"), m_Terminal->Text("self.error"), Patience);
        QCOMPARE(QDir(OnStick("")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
    }
    MountStick();
    QTRY_COMPARE_WITH_TIMEOUT(m_Terminal->Get("Problems.count").toInt(), 0,
                              Patience); // a stick is there, and the operator tries again
    QVERIFY(IsDone("self.exportLogs()"));
}

void Transfers::aFullStickIsSaid()
{
    MountStick("size=64k,mode=0777");
    MakeLargeLog(10000000);
    QVERIFY(HasFailed("self.exportLogs()"));
    QTRY_COMPARE_WITH_TIMEOUT(m_Terminal->Text("Problems.first"), m_Terminal->Text("self.error"), Patience);
    QVERIFY(!m_Terminal->Text("self.error").contains(QLatin1String("/proc/"))); // as people know the path
    QVERIFY(m_Terminal->Text("self.error").contains(OnStick("Diagnostics")));
    QVERIFY(IsDone("self.exportProfile('small', ['units'])"));
    QTRY_COMPARE_WITH_TIMEOUT(m_Terminal->Get("Problems.count").toInt(), 0, Patience);
    QVERIFY(HasFailed("self.exportLogs()"));
    QTRY_COMPARE_WITH_TIMEOUT(m_Terminal->Get("Problems.count").toInt(), 1, Patience);
    QTRY_VERIFY_WITH_TIMEOUT(m_Terminal->Get("Drives.hasStick").toBool(), Patience);
    m_Stick->Pull();
    QTRY_COMPARE_WITH_TIMEOUT(m_Terminal->Get("Problems.count").toInt(), 0, Patience);
}

/// However briefly it was there, even when no look at the drives has seen it.
void Transfers::theProblemOfAStickEndsWithIt()
{
    MakeLargeLog(10000000);
    for (int i = 0; i < 3; ++i) {
        MountStick("size=64k,mode=0777");
        QVERIFY(HasFailed("self.exportLogs()"));
        QTRY_COMPARE_WITH_TIMEOUT(m_Terminal->Get("Problems.count").toInt(), 1, Patience);
        m_Stick->Pull();
        QTRY_COMPARE_WITH_TIMEOUT(m_Terminal->Get("Problems.count").toInt(), 0, Patience);
    }
}

void Transfers::aPulledStickIsSaid()
{
    MountStick("size=200m,mode=0777");
    MakeLargeLog(100000000);
    m_Terminal->Get("self.exportLogs()");
    while (!QFileInfo::exists(OnStick("Diagnostics")) && State() == QLatin1String("running"))
        ; // the copy has begun, and takes longer than the next line
    m_Stick->Pull();
    QTRY_COMPARE_WITH_TIMEOUT(State(), QLatin1String("failed"), Patience);
    QVERIFY(!m_Terminal->Text("self.error").isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(m_Terminal->Text("Problems.first"), m_Terminal->Text("self.error"), Patience);
    QCOMPARE(QDir(OnStick("")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
}

void Transfers::anObjectMayGoWhileItsTransferRuns()
{
    MountStick();
    MakeLargeLog(10000000);
    m_Terminal->Get("self.exportLogs()");
    m_Terminal->Load("Transfer {}");
    QVERIFY(IsDone("self.exportProfile('after', [])")); // behind the logs
    QVERIFY(QFileInfo::exists(OnStick("after.profile")));
    QCOMPARE(QDir(OnStick("Diagnostics")).entryList(QDir::Files), QDir(LogFolder()).entryList(QDir::Files));
    m_Terminal->Get("self.exportLogs()"); // the terminal ends while it runs
}

void Transfers::aSecondTransferWaits()
{
    MountStick();
    m_Terminal->Get("self.exportLogs()");
    m_Terminal->Get("self.exportProfile('ignored', [])"); // while one of the object is running
    QTRY_COMPARE_WITH_TIMEOUT(State(), QLatin1String("done"), Patience);
    QVERIFY(!QFileInfo::exists(OnStick("ignored.profile")));
}

void Transfers::aPictureHasATransferOfItsOwn()
{
    QSignalSpy states(m_Terminal->Object(), SIGNAL(stateChanged()));
    QSignalSpy progress(m_Terminal->Object(), SIGNAL(progressChanged()));
    QSignalSpy lists(m_Terminal->Object(), SIGNAL(profilesChanged()));
    CabQuick::ShowTransfer({0.4, {}, {}, {}});
    QCOMPARE(State(), QLatin1String("running"));
    QCOMPARE(m_Terminal->Get("self.progress").toDouble(), 0.4);
    CabQuick::ShowTransfer({{}, QLatin1String("No room."), {}, {}});
    QCOMPARE(State(), QLatin1String("failed"));
    QCOMPARE(m_Terminal->Text("self.error"), QLatin1String("No room."));
    QCOMPARE(m_Terminal->Text("self.result"), QString());
    const QVariantMap profile = {{QLatin1String("name"), QLatin1String("a")}};
    CabQuick::ShowTransfer({{}, {}, QLatin1String("It is there."), {profile}});
    QCOMPARE(State(), QLatin1String("done"));
    QCOMPARE(m_Terminal->Text("self.result"), QLatin1String("It is there."));
    QCOMPARE(m_Terminal->Text("self.error"), QString());
    QCOMPARE(ListedNames(), QStringList{QLatin1String("a")});
    QCOMPARE(states.size(), 3);
    QCOMPARE(progress.size(), 3);
    QCOMPARE(lists.size(), 3);

    // Objects made later show it, too, and those that have a state of their own go back to it.
    m_Terminal->Load("Transfer {}");
    QCOMPARE(State(), QLatin1String("done"));
    CabQuick::ShowTransfer({});
    QCOMPARE(State(), QLatin1String("idle"));
    QCOMPARE(m_Terminal->Get("self.progress").toDouble(), 0.0);
    QVERIFY(HasFailed("self.exportLogs()"));
}

int main(int argc, char* argv[])
{
    PrivateMounts::Enter();
    const QCoreApplication application(argc, argv);
    Transfers test;
    return QTest::qExec(&test, argc, argv);
}

#include "Transfers.moc"
