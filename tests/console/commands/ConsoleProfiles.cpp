#include "ConsoleTest.h"

using namespace ConsoleTest;

/// export and import, from one data folder to another.
class ConsoleProfiles : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void theDifferenceIsPrintedAndTaken();
    void nothingChangesInADryRun();
    void groupsAreChosen();
    void conflictsNeedAnAnswer_data();
    void conflictsNeedAnAnswer();
    void jsonHoldsTheSame();
    void whatIsNotKnownIsListed();
    void editedFilesNeedToBeSaidSo();
    void wrongFilesAreRefused_data();
    void wrongFilesAreRefused();
    void wrongFilesLeaveNoTrace();
    void aFolderThatIsMissingIsAFailure();
    void leftOutValuesAreSaid();

private:
    TConsole::tagResult Export(const char* options = "")
    {
        return m_Theirs->Run(Words("export") << m_File << Words(options));
    }
    TConsole::tagResult Import(const char* options = "")
    {
        return m_Ours->Run(Words("import") << m_File << Words(options));
    }
    void Edit(const char* before, const char* after)
    {
        const QByteArray text = Contents(m_File);
        QVERIFY(text.contains(before));
        QVERIFY(QFile::remove(m_File));
        WriteFile(m_File, QByteArray(text).replace(before, after));
    }
    QString Others() const // what is not imported by default
    {
        return Utf8("; %1 of other groups\n")
            .arg(Object(m_Theirs->Run({Utf8("export"), m_Theirs->Path("other"), Utf8("--groups"), Utf8("device"),
                                       Utf8("--json")}))
                     .value(Utf8("parameters"))
                     .toInt());
    }

    std::unique_ptr<TConsole> m_Ours;
    std::unique_ptr<TConsole> m_Theirs;
    QString m_File;
};

void ConsoleProfiles::init()
{
    m_Ours = std::make_unique<TConsole>();
    m_Theirs = std::make_unique<TConsole>();
    m_File = m_Theirs->Path("stick.profile");
    Run(*m_Theirs, "set units.area acre");
    Run(*m_Theirs, "set active.job J_1");
    Run(*m_Theirs, "set active.client Smith");
}

void ConsoleProfiles::theDifferenceIsPrintedAndTaken()
{
    const auto exported = Export();
    QCOMPARE(exported.errors, QString());
    QCOMPARE(exported.status, 0);
    QVERIFY2(exported.output.endsWith(Utf8(" parameters exported\n")), qPrintable(exported.output));
    const auto imported = Import();
    QCOMPARE(imported.errors, QString());
    QCOMPARE(imported.output, Utf8("Parameter      Old        New\n"
                                   "active.job     (not set)  J_1\n"
                                   "active.client  (none)     Smith\n"
                                   "units.area     hectare    acre\n"
                                   "3 parameters changed") +
                                  Others());
    QCOMPARE(imported.status, 0);
    QCOMPARE(Get(*m_Ours, "units.area"), Utf8("acre"));
    QCOMPARE(Get(*m_Ours, "active.job"), Utf8("J_1"));
    QCOMPARE(Import().output, Utf8("0 parameters changed") + Others());
}

void ConsoleProfiles::nothingChangesInADryRun()
{
    Export();
    const QString before = Run(*m_Ours, "list").output;
    const auto result = Import("--dry-run");
    QCOMPARE(result.status, 0);
    QVERIFY2(result.output.contains(Utf8("units.area     hectare    acre\n3 parameters to change; ")),
             qPrintable(result.output));
    QCOMPARE(Run(*m_Ours, "list").output, before);
}

void ConsoleProfiles::groupsAreChosen()
{
    Run(*m_Theirs, "set log.user-number 77");
    Export();
    QVERIFY(Import("--groups selections,device").output.contains(Utf8("log.user-number")));
    QCOMPARE(Get(*m_Ours, "log.user-number"), Utf8("77"));
    QCOMPARE(Get(*m_Ours, "units.area"), Utf8("hectare"));
    QCOMPARE(Export("--groups display").status, 0);
    QVERIFY(!Contents(m_File).contains("units.area"));
    QVERIFY(Contents(m_File).contains("display.night-lightbar"));
}

void ConsoleProfiles::conflictsNeedAnAnswer_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("value");
    QTest::newRow("ours") << QStringLiteral("--ours") << QStringLiteral("hectare");
    QTest::newRow("theirs") << QStringLiteral("--theirs") << QStringLiteral("acre");
}

void ConsoleProfiles::conflictsNeedAnAnswer()
{
    QFETCH(QString, answer);
    QFETCH(QString, value);
    Export();
    Import();
    Run(*m_Ours, "set units.area hectare");
    Run(*m_Theirs, "set units.pressure bar");
    Export();
    for (const char* options : {"", "--dry-run"}) {
        const auto refused = Import(options);
        QCOMPARE(refused.status, 1);
        QVERIFY2(refused.output.startsWith(Utf8("Conflict    Ours     Theirs  Base\n"
                                                "units.area  hectare  acre    acre\n"
                                                "Parameter       Old  New\n"
                                                "units.pressure  kPa  bar\n")),
                 qPrintable(refused.output));
        QCOMPARE(refused.errors,
                 Utf8("cabsettings: nothing is imported: 1 conflict; --ours keeps the values of this terminal, "
                      "--theirs takes those of the profile\n"));
        QCOMPARE(Get(*m_Ours, "units.pressure"), Utf8("kPa"));
    }
    const auto answered = Import(answer.toUtf8().constData());
    QCOMPARE(answered.errors, QString());
    QCOMPARE(answered.status, 0);
    QCOMPARE(Get(*m_Ours, "units.area"), value);
    QCOMPARE(Get(*m_Ours, "units.pressure"), Utf8("bar"));
}

void ConsoleProfiles::jsonHoldsTheSame()
{
    const QJsonObject exported = Object(Export("--json"));
    QCOMPARE(Fields(exported), Words("file groups leftOut origin parameters"));
    QCOMPARE(exported.value(Utf8("file")).toString(), m_File);
    QCOMPARE(exported.value(Utf8("origin")).toObject().value(Utf8("terminal")).toString(),
             Get(*m_Theirs, "terminal.identity"));

    const QJsonObject imported = Object(Import("--json"));
    QCOMPARE(Fields(imported), Words("applied changes conflicts format ignored notSelected origin"));
    QVERIFY(imported.value(Utf8("applied")).toBool());
    const QJsonArray changes = imported.value(Utf8("changes")).toArray();
    QCOMPARE(static_cast<int>(changes.size()), 3);
    const QJsonObject job = Find(changes, "name", Utf8("active.job"));
    QCOMPARE(Fields(job), Words("name new number old"));
    QVERIFY(job.value(Utf8("old")).isNull());
    QCOMPARE(job.value(Utf8("new")).toString(), Utf8("J_1"));
    QCOMPARE(job.value(Utf8("number")).toInt(), 8919);

    Run(*m_Ours, "set units.area hectare");
    const auto refused = Import("--json");
    QCOMPARE(refused.status, 1);
    QVERIFY(!Object(refused).value(Utf8("applied")).toBool());
    const QJsonObject conflict = Object(refused).value(Utf8("conflicts")).toArray().at(0).toObject();
    QCOMPARE(Fields(conflict), Words("base name number ours theirs"));
    QCOMPARE(conflict.value(Utf8("ours")).toString(), Utf8("hectare"));
}

void ConsoleProfiles::whatIsNotKnownIsListed()
{
    Export();
    Edit("\"format\": 1", "\"format\": 2");
    Edit("  \"parameters\": [", "  \"parameters\": [{\"number\": 31000, \"name\": \"future.thing\", \"type\": \"int\", "
                                "\"value\": 1},");
    const auto result = Import("--edited --dry-run");
    QCOMPARE(result.status, 0);
    QVERIFY2(result.output.contains(Utf8("Ignored: line 11: the parameter future.thing (31000)\n3 parameters to ")),
             qPrintable(result.output));
}

void ConsoleProfiles::editedFilesNeedToBeSaidSo()
{
    Export();
    Edit("\"value\": \"acre\"", "\"value\": \"hectare\"");
    const auto refused = Import();
    QCOMPARE(refused.status, 1);
    QCOMPARE(refused.errors,
             Utf8("cabsettings: %1: its content does not match its hash; it was edited or is damaged\n").arg(m_File));
    QCOMPARE(Import("--edited").status, 0);
    QCOMPARE(Get(*m_Ours, "active.job"), Utf8("J_1"));
}

void ConsoleProfiles::wrongFilesAreRefused_data()
{
    QTest::addColumn<QByteArray>("before"); // replaced in the file; empty: "after" is the file
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* name, const char* before, const char* after, const char* error) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after) << Utf8(error);
    };
    row("a wrong value", "\"value\": \"acre\"", "\"value\": \"acres\"",
        ": invalid value \"acres\" for units.area; expected hectare (0) or acre (1)\n");
    row("another product", "cabsettings profile", "planter", ":1: not a profile; expected the product");
    row("no JSON", "", "units.area=acre\n", ":1: not valid JSON: ");
    row("empty", "", "", ": the file is empty\n");
}

void ConsoleProfiles::wrongFilesAreRefused()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, error);
    Export();
    if (before.isEmpty()) {
        QVERIFY(QFile::remove(m_File));
        WriteFile(m_File, after);
    } else {
        Edit(before.constData(), after.constData());
    }
    const QString settings = Run(*m_Ours, "list").output;
    const auto result = Import("--edited");
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.startsWith(Utf8("cabsettings: ") + m_File + QLatin1Char(':')), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(error), qPrintable(result.errors));
    QCOMPARE(result.errors.count(QLatin1Char('\n')), 1);
    QCOMPARE(Run(*m_Ours, "list").output, settings);
}

void ConsoleProfiles::wrongFilesLeaveNoTrace()
{
    QCOMPARE(Import().status, 1);
    QVERIFY(!QFile::exists(m_Ours->DataFolder()));
}

void ConsoleProfiles::aFolderThatIsMissingIsAFailure()
{
    const QString file = m_Theirs->Path("missing/stick.profile");
    const auto result = m_Theirs->Run({Utf8("export"), file});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, Utf8("cabsettings: cannot write %1: No such file or directory\n").arg(file));
}

void ConsoleProfiles::leftOutValuesAreSaid()
{
    Store(*m_Theirs, QMap<EParamID, QVariant>{{PARAM_AREA_UNIT, 7}});
    const auto result = Export();
    QCOMPARE(result.status, 0);
    QVERIFY2(result.output.startsWith(
                 Utf8("Left out: invalid value \"7\" for units.area; expected hectare (0) or acre (1)\n")),
             qPrintable(result.output));
}

QTEST_GUILESS_MAIN(ConsoleProfiles)
#include "ConsoleProfiles.moc"
