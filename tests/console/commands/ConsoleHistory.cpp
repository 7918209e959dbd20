#include "ConsoleTest.h"

using namespace ConsoleTest;

/// history and undo.
class ConsoleHistory : public QObject
{
    Q_OBJECT

private slots:
    void changesArePrintedNewestFirst();
    void oneParametersChangesArePrinted();
    void jsonHasEveryField();
    void controlCharactersDoNotReachTheTerminal();
    void aDamagedEntryIsSaid();
    void undoTakesTheNewestChangeBack();
    void undoTakesTheChangeOfANumberBack();
    void aChangeThatWasChangedAgainIsNotUndone();
    void wrongUsageSaysWhatIsAccepted_data();
    void wrongUsageSaysWhatIsAccepted();

private:
    /// The printed rows without number, time and source.
    static QStringList Changes(const TConsole& console, const char* words)
    {
        QStringList changes;
        for (const QString& line : Run(console, words).output.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
            static const QRegularExpression form(
                Utf8("^\\d+ +\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d  none  (\\w+) +(.*)$"));
            const auto match = form.match(line);
            changes.append(match.hasMatch() ? match.captured(1) + QLatin1Char(' ') + match.captured(2) : line);
        }
        return changes;
    }

    static qint64 NewestNumber(const TConsole& console)
    {
        const QJsonArray entries = Array(Run(console, "history --count 1 --json"));
        return entries.first().toObject().value(Utf8("entry")).toVariant().toLongLong();
    }
};

void ConsoleHistory::changesArePrintedNewestFirst()
{
    const TConsole console;
    Run(console, "set units.area acre");
    Run(console, "set active.client Smith");
    Run(console, "set 30000 7 --type int");
    QCOMPARE(Changes(console, "history --count 3"),
             (QStringList{Utf8("tool 30000: (not set) -> 7"), Utf8("tool active.client: (none) -> Smith"),
                          Utf8("tool units.area: hectare -> acre")}));
    QCOMPARE(static_cast<int>(Changes(console, "history").size()), 20);
}

void ConsoleHistory::oneParametersChangesArePrinted()
{
    const TConsole console;
    Run(console, "set units.area acre");
    Run(console, "set units.metric false");
    Run(console, "reset units.area");
    const QStringList expected{Utf8("tool units.area: acre -> hectare"), Utf8("tool units.area: hectare -> acre"),
                               Utf8("library units.area: (not set) -> hectare")};
    QCOMPARE(Changes(console, "history units.area"), expected);
    QCOMPARE(Changes(console, "history 8960"), expected);
    const TConsole::tagResult none = Run(console, "history 30000");
    QCOMPARE(none.status, 0);
    QCOMPARE(none.output, QString());
}

void ConsoleHistory::jsonHasEveryField()
{
    const TConsole console;
    Store(console, {{PARAM_CLOCK_OFFSET, 3600}, {static_cast<EParamID>(20002), 2}});
    Run(console, "set units.area acre");
    const QJsonObject entry = Array(Run(console, "history --count 1 --json")).first().toObject();
    QCOMPARE(Fields(entry),
             (QStringList{Utf8("author"), Utf8("entry"), Utf8("name"), Utf8("new"), Utf8("newText"), Utf8("number"),
                          Utf8("old"), Utf8("oldText"), Utf8("time"), Utf8("timeSource"), Utf8("utc")}));
    QCOMPARE(entry.value(Utf8("author")).toString(), Utf8("tool"));
    QCOMPARE(entry.value(Utf8("name")).toString(), Utf8("units.area"));
    QCOMPARE(entry.value(Utf8("number")).toInt(), 8960);
    QCOMPARE(entry.value(Utf8("old")), QJsonValue(0));
    QCOMPARE(entry.value(Utf8("oldText")).toString(), Utf8("hectare"));
    QCOMPARE(entry.value(Utf8("new")), QJsonValue(1));
    QCOMPARE(entry.value(Utf8("newText")).toString(), Utf8("acre"));
    QCOMPARE(entry.value(Utf8("timeSource")).toString(), Utf8("receiver"));
    const QDateTime utc = QDateTime::fromString(entry.value(Utf8("utc")).toString(), Qt::ISODateWithMs);
    QCOMPARE(entry.value(Utf8("time")).toString() + QLatin1Char('Z'), utc.addSecs(3600).toString(Qt::ISODateWithMs));
}

void ConsoleHistory::controlCharactersDoNotReachTheTerminal()
{
    const TConsole console;
    Store(console, {{static_cast<EParamID>(30000), QLatin1String("a\nb\x1b[2J")}});
    QCOMPARE(Changes(console, "history 30000"), QStringList(Utf8("library 30000: (not set) -> a\\x0ab\\x1b[2J")));
}

void ConsoleHistory::aDamagedEntryIsSaid()
{
    const TConsole console;
    Run(console, "set units.area acre");
    const QString path = DataFolder::StoreFile(console.DataFolder());
    QByteArray bytes = Contents(path);
    const int at = static_cast<int>(bytes.lastIndexOf("tool")); // the author of the newest entry may be any
    QVERIFY(at > 0);
    bytes[at] = 'T';
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    const TConsole::tagResult result = Run(console, "history --count 1000");
    QCOMPARE(result.status, 1);
    QVERIFY2(QRegularExpression(Utf8("^cabsettings: entry \\d+ is damaged\n$")).match(result.errors).hasMatch(),
             qPrintable(result.errors));
    QVERIFY(!result.output.isEmpty());
    QCOMPARE(Get(console, "units.area"), Utf8("acre"));
}

void ConsoleHistory::undoTakesTheNewestChangeBack()
{
    const TConsole console;
    Run(console, "set units.area acre");
    const TConsole::tagResult result = Run(console, "undo");
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, Utf8("units.area: acre -> hectare\n"));
    QCOMPARE(Get(console, "units.area"), Utf8("hectare"));
    QCOMPARE(Changes(console, "history --count 1"), QStringList(Utf8("undo units.area: acre -> hectare")));
    const QJsonObject again = Object(Run(console, "undo --json"));
    QCOMPARE(again.value(Utf8("newText")).toString(), Utf8("acre"));
    QCOMPARE(Get(console, "units.area"), Utf8("acre"));
}

void ConsoleHistory::undoTakesTheChangeOfANumberBack()
{
    const TConsole console;
    Run(console, "set 30000 7 --type int");
    const qint64 number = NewestNumber(console);
    Run(console, "set units.area acre");
    const TConsole::tagResult result = console.Run({Utf8("undo"), QString::number(number)});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, Utf8("30000: 7 -> (not set)\n"));
    QCOMPARE(Run(console, "get 30000").status, 1);
    QCOMPARE(Get(console, "units.area"), Utf8("acre"));
}

void ConsoleHistory::aChangeThatWasChangedAgainIsNotUndone()
{
    const TConsole console;
    Run(console, "set units.area acre");
    const qint64 number = NewestNumber(console);
    Run(console, "set units.area hectare");
    const TConsole::tagResult result = console.Run({Utf8("undo"), QString::number(number)});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors,
             Utf8("cabsettings: units.area is \"hectare\" now; entry %1 set it to \"acre\"\n").arg(number));
    QCOMPARE(NewestNumber(console), number + 1);
}

void ConsoleHistory::wrongUsageSaysWhatIsAccepted_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("named");
    QTest::addColumn<QString>("accepted");
    QTest::newRow("unknown parameter") << Utf8("history units.metrik") << Utf8("units.metrik") << Utf8("units.metric");
    QTest::newRow("no count") << Utf8("history --count 0") << Utf8("\"0\"") << Utf8("a whole number from 1");
    QTest::newRow("two") << Utf8("history 1 2") << Utf8("\"2\"") << Utf8("[PARAMETER]");
    QTest::newRow("no entry") << Utf8("undo units.area") << Utf8("\"units.area\"") << Utf8("a number");
    QTest::newRow("entry 0") << Utf8("undo 0") << Utf8("\"0\"") << Utf8("a number");
}

void ConsoleHistory::wrongUsageSaysWhatIsAccepted()
{
    QFETCH(QString, arguments);
    QFETCH(QString, named);
    QFETCH(QString, accepted);
    const TConsole console;
    VerifyMisused(console.Run(arguments.split(QLatin1Char(' '))), named, accepted);
}

QTEST_GUILESS_MAIN(ConsoleHistory)
#include "ConsoleHistory.moc"
