#include "ConsoleTest.h"

using namespace ConsoleTest;

/// support: the tool's side of a support bundle.
class ConsoleSupport : public QObject
{
    Q_OBJECT

private slots:
    void anArchiveIsWritten();
    void theArchiveIsDescribedInJson();
    void anExistingArchiveIsReplaced();
    void failuresAreOneLine_data();
    void failuresAreOneLine();
    void wrongUsageSaysWhatIsAccepted_data();
    void wrongUsageSaysWhatIsAccepted();
};

void ConsoleSupport::anArchiveIsWritten()
{
    const TConsole console;
    QCOMPARE(Run(console, "log add started").status, 0);
    const QString path = console.Path("support.zip");
    const TConsole::tagResult result = console.Run({Utf8("support"), path});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QVERIFY2(QRegularExpression(QLatin1String("^\\d+ files in \"") + QRegularExpression::escape(path) +
                                QLatin1String("\"\\n$"))
                 .match(result.output)
                 .hasMatch(),
             qPrintable(result.output));
    QVERIFY(Contents(path).startsWith("PK\003\004"));
    QVERIFY(Contents(path).contains("logs/User00001.csv"));
}

void ConsoleSupport::theArchiveIsDescribedInJson()
{
    const TConsole console;
    const QString path = console.Path("support.zip");
    const QJsonObject object = Object(console.Run({Utf8("support"), path, Utf8("--anonymous"), Utf8("--json")}));
    QCOMPARE(Fields(object),
             (QStringList{Utf8("anonymous"), Utf8("bytes"), Utf8("members"), Utf8("path"), Utf8("problems")}));
    QCOMPARE(object.value(Utf8("path")).toString(), path);
    QCOMPARE(object.value(Utf8("anonymous")).toBool(), true);
    QCOMPARE(object.value(Utf8("bytes")).toDouble(), static_cast<double>(QFileInfo(path).size()));
    QVERIFY(object.value(Utf8("members")).toArray().contains(Utf8("terminal.profile")));
    QCOMPARE(object.value(Utf8("problems")).toArray(), QJsonArray());
}

void ConsoleSupport::anExistingArchiveIsReplaced()
{
    const TConsole console;
    const QString path = console.Path("support.zip");
    WriteFile(path, "former");
    QCOMPARE(console.Run({Utf8("support"), path}).status, 0);
    QVERIFY(Contents(path).startsWith("PK\003\004"));
}

void ConsoleSupport::failuresAreOneLine_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no such folder") << "missing/support.zip"
                                    << "No such file or directory";
    QTest::newRow("a folder") << "folder"
                              << "Is a directory";
}

void ConsoleSupport::failuresAreOneLine()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    const TConsole console;
    QDir().mkpath(console.Path("folder"));
    const QString file = console.Path(path.toUtf8().constData());
    const TConsole::tagResult result = console.Run({Utf8("support"), file});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors, QString::fromLatin1("cabsettings: cannot write %1: %2\n").arg(file, reason));
    QCOMPARE(Tree(console.Path("folder")), QStringList());
}

void ConsoleSupport::wrongUsageSaysWhatIsAccepted_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::addColumn<QString>("accepted");
    QTest::newRow("no file") << Words("support") << "missing argument"
                             << "expected FILE";
    QTest::newRow("two files") << Words("support a.zip b.zip") << "\"b.zip\""
                               << "expected FILE";
    QTest::newRow("unknown option") << Words("support a.zip --anonymus") << "\"--anonymus\""
                                    << "\"--anonymous\"";
}

void ConsoleSupport::wrongUsageSaysWhatIsAccepted()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    QFETCH(QString, accepted);
    const TConsole console;
    VerifyMisused(console.Run(arguments), named, accepted);
    QVERIFY(!QFileInfo::exists(console.DataFolder()));
}

QTEST_GUILESS_MAIN(ConsoleSupport)
#include "ConsoleSupport.moc"
