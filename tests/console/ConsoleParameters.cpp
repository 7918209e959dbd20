#include "TConsole.h"

#include <QtTest>

class ConsoleParameters : public QObject
{
    Q_OBJECT

private slots:
    void whatIsSetIsRead_data();
    void whatIsSetIsRead();
    void aFirstStartHasValues_data();
    void aFirstStartHasValues();
    void theListShowsNumberTypeAndValue();
    void anAbsentParameterIsAFailure();
    void aFolderThatCannotBeMadeIsAFailure();
    void aFileThatIsNoStoreIsRefusedAndKept();
};

void ConsoleParameters::whatIsSetIsRead_data()
{
    QTest::addColumn<QStringList>("set");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("read");
    const auto row = [](const char* name, const QStringList& set, const char* number, const char* read) {
        QTest::newRow(name) << set << QString::fromUtf8(number) << QString::fromUtf8(read);
    };
    const auto words = [](const char* text) { return QString::fromUtf8(text).split(QLatin1Char(' ')); };
    row("bool", words("8953 false"), "8953", "false");
    row("bool as 1", words("8954 1"), "8954", "true");
    row("int", words("8960 1"), "8960", "1");
    row("negative int", words("8949 -5"), "8949", "-5");
    row("greatest int", words("8951 2147483647"), "8951", "2147483647");
    row("string", words("8932 Müller"), "8932", "Müller");
    row("string with blanks", {QLatin1String("8933"), QLatin1String("Upper North  Farm ")}, "8933",
        "Upper North  Farm ");
    row("empty string", {QLatin1String("8934"), QString()}, "8934", "");
    row("colour", words("9064 #ff8040"), "9064", "#ff8040");
    row("translucent colour", words("9064 #80ff8040"), "9064", "#80ff8040");
    row("colour by name", words("9065 navy"), "9065", "#000080");
    row("a parameter of the host's own", words("--type double 20000 0.1"), "20000", "0.1");
    row("another type", words("--type string 8960 two"), "8960", "two");
}

void ConsoleParameters::whatIsSetIsRead()
{
    QFETCH(QStringList, set);
    QFETCH(QString, number);
    QFETCH(QString, read);
    const TConsole console;
    const TConsole::tagResult stored = console.Run(QStringList{QLatin1String("set")} + set);
    QCOMPARE(stored.errors, QString());
    QCOMPARE(stored.status, 0);
    const TConsole::tagResult got = console.Run({QLatin1String("get"), number});
    QCOMPARE(got.status, 0);
    QCOMPARE(got.output, read + QLatin1Char('\n'));
}

void ConsoleParameters::aFirstStartHasValues_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("value");
    QTest::newRow("metric") << "8953"
                            << "true";
    QTest::newRow("language") << "9009"
                              << "0";
    QTest::newRow("24-hour clock") << "9011"
                                   << "true";
    QTest::newRow("day mode") << "9060"
                              << "true";
    QTest::newRow("client") << "8932"
                            << "";
}

void ConsoleParameters::aFirstStartHasValues()
{
    QFETCH(QString, number);
    QFETCH(QString, value);
    const TConsole console;
    const TConsole::tagResult got = console.Run({QLatin1String("get"), number});
    QCOMPARE(got.errors, QString());
    QCOMPARE(got.output, value + QLatin1Char('\n'));
}

void ConsoleParameters::theListShowsNumberTypeAndValue()
{
    const TConsole console;
    console.Run({QLatin1String("set"), QLatin1String("8932"), QLatin1String("Smith")});
    const TConsole::tagResult list = console.Run({QLatin1String("list")});
    QCOMPARE(list.status, 0);
    const QStringList lines = list.output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QVERIFY(lines.size() > 50);
    QVERIFY2(lines.contains(QLatin1String("8932   string  Smith")), qPrintable(list.output));
    QVERIFY2(lines.contains(QLatin1String("8953   bool    true")), qPrintable(list.output));
    QVERIFY2(lines.contains(QLatin1String("9064   color   #101418")), qPrintable(list.output));
    int previous = -1;
    for (const QString& line : lines) {
        const int number = line.section(QLatin1Char(' '), 0, 0).toInt();
        QVERIFY(number > previous);
        previous = number;
    }
}

void ConsoleParameters::anAbsentParameterIsAFailure()
{
    const TConsole console;
    const TConsole::tagResult got = console.Run({QLatin1String("get"), QLatin1String("77")});
    QCOMPARE(got.status, 1);
    QCOMPARE(got.errors, QString::fromLatin1("cabsettings: parameter 77 is not set\n"));
}

void ConsoleParameters::aFolderThatCannotBeMadeIsAFailure()
{
    const TConsole console;
    QFile file(console.DataFolder());
    QVERIFY(file.open(QIODevice::WriteOnly));
    const TConsole::tagResult got = console.Run({QLatin1String("list")});
    QCOMPARE(got.status, 1);
    QVERIFY2(got.errors.contains(console.DataFolder()), qPrintable(got.errors));
    QCOMPARE(got.errors.count(QLatin1Char('\n')), 1);
}

void ConsoleParameters::aFileThatIsNoStoreIsRefusedAndKept()
{
    const TConsole console;
    QVERIFY(QDir().mkpath(console.DataFolder()));
    QFile file(console.DataFolder() + QLatin1String("/settings.db"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write("a shopping list\n"), 16);
    file.close();
    const TConsole::tagResult got = console.Run({QLatin1String("set"), QLatin1String("8953"), QLatin1String("true")});
    QCOMPARE(got.status, 1);
    QVERIFY2(got.errors.contains(QLatin1String("settings.db")), qPrintable(got.errors));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("a shopping list\n"));
}

QTEST_GUILESS_MAIN(ConsoleParameters)
#include "ConsoleParameters.moc"
