#include "ConsoleTest.h"

#include "../../system/TPrivateMounts.h"

#include <pty.h>

using namespace ConsoleTest;

/// fields: the tool's side of what TFieldTree does.
class ConsoleFields : public QObject
{
    Q_OBJECT

private slots:
    void itemsAreAddedAndListed();
    void theListIsAlsoJson();
    void operationsPrintWhatTheyHaveDone();
    void aRenamedItemStaysSelected();
    void whatWouldBeLostNeedsForce();
    void anItemIsCopiedToTheStickAndBack();
    void progressIsShownOnATerminalAlone();
    void failuresAreOneLine_data();
    void failuresAreOneLine();
    void namesCannotSteerATerminal();
    void existingItemsAreOffered();
    void wrongUsageSaysWhatIsAccepted_data();
    void wrongUsageSaysWhatIsAccepted();

private:
    static void MakeFile(const TConsole& console, const char* path, const QByteArray& contents = QByteArray("x"))
    {
        WriteFile(console.DataFolder() + Utf8("/internal/Clients/") + Utf8(path), contents);
    }

    static void VerifyDone(const TConsole::tagResult& result, const char* output)
    {
        QCOMPARE(result.errors, QString());
        QCOMPARE(result.output, Utf8(output));
        QCOMPARE(result.status, 0);
    }
};

void ConsoleFields::itemsAreAddedAndListed()
{
    const TConsole console;
    VerifyDone(Run(console, "fields list"), "path  kind  files  bytes\n");
    VerifyDone(Run(console, "fields add Smith/North/F1/J_1"), "");
    MakeFile(console, "Smith/North/F1/Jobs/J_1/J_1.ini", "12345");
    Store(console, Utf8("active.client=Smith|active.farm=North|active.field=F2"));
    VerifyDone(Run(console, "fields list"), "path                kind    files  bytes\n"
                                            "Smith               client  1      5      active\n"
                                            "Smith/North         farm    1      5      active\n"
                                            "Smith/North/F1      field   1      5\n"
                                            "Smith/North/F1/J_1  job     1      5\n");
}

void ConsoleFields::theListIsAlsoJson()
{
    const TConsole console;
    MakeFile(console, "Smith/North/F1/F1.ini", "12345");
    const QJsonArray items = Array(Run(console, "fields list Smith/North --json"));
    QCOMPARE(items.size(), 2);
    const QJsonObject field = Find(items, "kind", Utf8("field"));
    QCOMPARE(field, (QJsonObject{{Utf8("kind"), Utf8("field")},
                                 {Utf8("path"), Utf8("Smith/North/F1")},
                                 {Utf8("files"), 1},
                                 {Utf8("bytes"), 5},
                                 {Utf8("active"), false}}));
}

void ConsoleFields::operationsPrintWhatTheyHaveDone()
{
    const TConsole console;
    QCOMPARE(Object(Run(console, "fields add Smith/North --json")),
             (QJsonObject{{Utf8("kind"), Utf8("farm")}, {Utf8("path"), Utf8("Smith/North")}}));
    QCOMPARE(Object(Run(console, "fields rename Smith/North South --json")),
             (QJsonObject{{Utf8("kind"), Utf8("farm")},
                          {Utf8("path"), Utf8("Smith/South")},
                          {Utf8("before"), Utf8("Smith/North")}}));
    QCOMPARE(Object(Run(console, "fields remove Smith --json")),
             (QJsonObject{{Utf8("kind"), Utf8("client")}, {Utf8("path"), Utf8("Smith")}}));
}

void ConsoleFields::aRenamedItemStaysSelected()
{
    const TConsole console;
    MakeFile(console, "Smith/North/F1/Jobs/J_1/J_1.cov");
    Store(console, Utf8("active.client=Smith|active.farm=North|active.field=F1|active.job=J_1"));
    VerifyDone(console.Run({Utf8("fields"), Utf8("rename"), Utf8("Smith/North/F1/J_1"), Utf8("Östlich 7")}), "");
    QCOMPARE(Get(console, "active.job"), Utf8("Östlich 7"));
    QVERIFY(QFileInfo::exists(console.DataFolder() +
                              Utf8("/internal/Clients/Smith/North/F1/Jobs/Östlich 7/Östlich 7.cov")));
}

void ConsoleFields::whatWouldBeLostNeedsForce()
{
    const TConsole console;
    MakeFile(console, "Smith/North/F1/F1.ini");
    Store(console, Utf8("active.client=Smith|active.farm=North|active.field=F1|active.job=J_1"));
    const TConsole::tagResult refused = Run(console, "fields remove Smith");
    QCOMPARE(refused.status, 1);
    QCOMPARE(refused.errors, Utf8("cabsettings: the client \"Smith\" is active and holds 1 file(s); "
                                  "--force removes it\n"));
    QCOMPARE(Get(console, "active.client"), Utf8("Smith"));
    VerifyDone(Run(console, "fields remove Smith --force"), "");
    for (const char* parameter : {"active.client", "active.farm", "active.field", "active.job"})
        QCOMPARE(Get(console, parameter), QString());
    QCOMPARE(Tree(console.DataFolder() + Utf8("/internal/Clients")), QStringList());
}

void ConsoleFields::anItemIsCopiedToTheStickAndBack()
{
    if (!PrivateMounts::ArePermitted())
        QSKIP("Mounting is not permitted here.");
    const TConsole console;
    const QString mountPoint = console.DataFolder() + Utf8("/usb");
    QDir().mkpath(mountPoint);
    const TMemoryDrive stick(mountPoint, "size=1m");
    MakeFile(console, "Smith/North/F1/F1.ini", "12345");
    MakeFile(console, "Smith/North/F1/Jobs/J_1/J_1.ini", "1");
    VerifyDone(Run(console, "fields copy Smith --to stick"), "2 files copied (6 bytes), 0 already there\n");
    QCOMPARE(Tree(mountPoint + Utf8("/Clients")), Tree(console.DataFolder() + Utf8("/internal/Clients")));
    VerifyDone(Run(console, "fields list --on stick Smith/North/F1/J_1"), "path                kind  files  bytes\n"
                                                                          "Smith/North/F1/J_1  job   1      1\n");
    MakeFile(console, "Smith/North/F1/F1.ini", "6");
    const TConsole::tagResult refused = Run(console, "fields copy Smith/North --to stick");
    QCOMPARE(refused.status, 1);
    QCOMPARE(refused.errors, Utf8("cabsettings: 1 file(s) that are on the drive already differ, the first is "
                                  "\"Clients/Smith/North/F1/F1.ini\"; --force replaces them\n"));
    QCOMPARE(Object(Run(console, "fields copy Smith/North --to internal --force --json")),
             (QJsonObject{{Utf8("kind"), Utf8("farm")},
                          {Utf8("path"), Utf8("Smith/North")},
                          {Utf8("to"), Utf8("internal")},
                          {Utf8("copied"), 1},
                          {Utf8("identical"), 1},
                          {Utf8("bytes"), 5}}));
    QCOMPARE(Contents(console.DataFolder() + Utf8("/internal/Clients/Smith/North/F1/F1.ini")), QByteArray("12345"));
}

void ConsoleFields::progressIsShownOnATerminalAlone()
{
    if (!PrivateMounts::ArePermitted())
        QSKIP("Mounting is not permitted here.");
    const TConsole console;
    QDir().mkpath(console.DataFolder() + Utf8("/usb"));
    const TMemoryDrive stick(console.DataFolder() + Utf8("/usb"), "size=1m");
    MakeFile(console, "Smith/North/F1/F1.ini", "12345");

    int terminal = -1;
    int program = -1;
    char name[256] = "";
    QCOMPARE(openpty(&terminal, &program, name, nullptr, nullptr), 0);
    QProcess process;
    process.setStandardErrorFile(QFile::decodeName(name));
    process.start(QLatin1String(CABSETTINGS_PROGRAM),
                  QStringList{Utf8("--data"), console.DataFolder()} + Words("fields copy Smith --to stick"));
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    char text[4096] = "";
    const ssize_t length = read(terminal, text, sizeof text - 1);
    QVERIFY(length > 0);
    const QByteArray shown(text, static_cast<int>(length));
    QVERIFY2(shown.startsWith("\r\033[K"), shown.constData());
    QVERIFY2(shown.contains(" of 1 files, 5 of 5 bytes (100 %)"), shown.constData());
    QVERIFY2(shown.endsWith("\r\033[K"), shown.constData()); // the line is gone at the end
    close(terminal);
    close(program);
}

void ConsoleFields::failuresAreOneLine_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("message");
    QTest::newRow("no such client") << "fields list Smyth"
                                    << "there is no client \"Smyth\"; did you mean \"Smith\"?";
    QTest::newRow("no such item to rename") << "fields rename Jones Miller"
                                            << "there is no client \"Jones\"";
    QTest::newRow("an item that exists") << "fields add Smith/North"
                                         << "the farm \"Smith/North\" exists already";
    QTest::newRow("letter case") << "fields rename Smith/South north"
                                 << "a stick cannot hold the farm \"Smith/north\" beside \"Smith/North\": it ignores "
                                    "letter case and the encoding of accents";
    QTest::newRow("no stick to copy to") << "fields copy Smith --to stick"
                                         << "no stick is mounted at \"DATA/usb\"";
    QTest::newRow("no stick to list") << "fields list --on stick"
                                      << "no stick is mounted at \"DATA/usb\"";
}

void ConsoleFields::failuresAreOneLine()
{
    QFETCH(QString, words);
    QFETCH(QString, message);
    const TConsole console;
    MakeFile(console, "Smith/North/F1/F1.ini");
    MakeFile(console, "Smith/South/F1/F1.ini");
    const TConsole::tagResult result = Run(console, words.toUtf8().constData());
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors, Utf8("cabsettings: ") + message.replace(Utf8("DATA"), console.DataFolder()) + Utf8("\n"));
}

void ConsoleFields::namesCannotSteerATerminal()
{
    const TConsole console;
    MakeFile(console, "Sm\033[2Jith/North/F1/F1.ini");
    const TConsole::tagResult result = Run(console, "fields list");
    QCOMPARE(result.status, 0);
    QVERIFY(!result.output.contains(QLatin1Char('\033')));
    QVERIFY2(result.output.contains(Utf8("Sm\\x1b[2Jith/North")), qPrintable(result.output));
}

void ConsoleFields::existingItemsAreOffered()
{
    const TConsole console;
    const QStringList none = Run(console, "fields remove --complete").output.split(QLatin1Char('\n'));
    QVERIFY(none.contains(Utf8("--force")) && !QFileInfo::exists(console.DataFolder()));
    VerifyDone(Run(console, "fields add Smith/North/F1"), "");
    for (const char* words :
         {"fields list", "fields rename", "fields remove", "fields copy", "fields copy --to stick"}) {
        const QStringList offered =
            console.Run(Words(words) + QStringList(Utf8("--complete"))).output.split(QLatin1Char('\n'));
        QVERIFY2(offered.contains(Utf8("Smith")) && offered.contains(Utf8("Smith/North/F1")), words);
    }
    const QStringList names = Run(console, "fields rename Smith --complete").output.split(QLatin1Char('\n'));
    QVERIFY(!names.contains(Utf8("Smith")));
}

void ConsoleFields::wrongUsageSaysWhatIsAccepted_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::addColumn<QString>("accepted");
    QTest::newRow("no command") << Words("fields") << "missing command"
                                << "list, add, rename, remove or copy";
    QTest::newRow("unknown command") << Words("fields delete") << "\"delete\""
                                     << "list, add, rename, remove or copy";
    QTest::newRow("no path") << Words("fields add") << "missing argument"
                             << "expected PATH";
    QTest::newRow("five names") << Words("fields add a/b/c/d/e") << "\"a/b/c/d/e\": it has 5 names"
                                << "expected CLIENT[/FARM[/FIELD[/JOB]]]";
    QTest::newRow("an empty name") << Words("fields remove Smith//F1") << "the name of the farm is empty"
                                   << "expected CLIENT[/FARM[/FIELD[/JOB]]]";
    QTest::newRow("a name that FAT does not allow") << Words("fields add Smith/a:b") << "invalid farm \"a:b\""
                                                    << "did you mean \"a_b\"?";
    QTest::newRow("a new name that FAT does not allow")
        << Words("fields rename Smith/North nul") << "invalid farm \"nul\""
        << "did you mean \"_nul\"?";
    QTest::newRow("no new name") << Words("fields rename Smith") << "missing argument"
                                 << "expected PATH NAME";
    QTest::newRow("no drive") << Words("fields copy Smith") << "missing option"
                              << "expected --to stick or --to internal";
    QTest::newRow("another drive") << Words("fields copy Smith --to usb") << "invalid value \"usb\" for --to"
                                   << "expected internal or stick";
    QTest::newRow("another drive to list") << Words("fields list --on usb") << "invalid value \"usb\" for --on"
                                           << "expected internal or stick";
}

void ConsoleFields::wrongUsageSaysWhatIsAccepted()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    QFETCH(QString, accepted);
    const TConsole console;
    VerifyMisused(console.Run(arguments), named, accepted);
    QVERIFY(!QFileInfo::exists(console.DataFolder()));
}

int main(int argc, char* argv[])
{
    PrivateMounts::Enter();
    const QCoreApplication application(argc, argv);
    ConsoleFields test;
    return QTest::qExec(&test, argc, argv);
}

#include "ConsoleFields.moc"
