#include "display/options/DisplayOptions.h"

#include <QtTest>

/// The command line of the display: what it accepts, and what it says of the rest.
class DisplayOptionsRead : public QObject
{
    Q_OBJECT

private slots:
    void withoutArgumentsAllIsAsStored();
    void everyOptionIsRead();
    void aValueMayBeJoined();
    void whatIsWrongIsSaid_data();
    void whatIsWrongIsSaid();
    void aRestartLeavesOutWhatIsStored_data();
    void aRestartLeavesOutWhatIsStored();
    void helpNamesEveryOption();

private:
    static QString Read(const char* line, tagDisplayOptions& options)
    {
        return ReadDisplayOptions(QString::fromLatin1(line).split(QLatin1Char(' ')), options);
    }
};

void DisplayOptionsRead::withoutArgumentsAllIsAsStored()
{
    tagDisplayOptions options;
    QCOMPARE(ReadDisplayOptions({}, options), QString());
    QVERIFY(options.dataFolder.endsWith(QLatin1String("/cabsettings")));
    QVERIFY(options.receiver.isEmpty() && options.language.isEmpty() && options.pictureFolder.isEmpty());
    QCOMPARE(options.size, QSize(1280, 800));
    QVERIFY(!options.isFullScreen && !options.isNight && !options.isBench && !options.wantsHelp &&
            !options.wantsVersion);
}

void DisplayOptionsRead::everyOptionIsRead()
{
    tagDisplayOptions options;
    QCOMPARE(Read("--data /data --receiver tcp://host:1 --language german --size 800x480 --full-screen --page logs "
                  "--shot out --night --bench --version --help",
                  options),
             QString());
    QCOMPARE(options.dataFolder, QLatin1String("/data"));
    QCOMPARE(options.receiver, QLatin1String("tcp://host:1"));
    QCOMPARE(options.language, QLatin1String("german"));
    QCOMPARE(options.size, QSize(800, 480));
    QCOMPARE(options.page, QLatin1String("logs"));
    QCOMPARE(options.pictureFolder, QLatin1String("out"));
    QVERIFY(options.isFullScreen && options.isNight && options.isBench && options.wantsVersion && options.wantsHelp);
}

void DisplayOptionsRead::aValueMayBeJoined()
{
    tagDisplayOptions options;
    QCOMPARE(Read("--receiver=serial:///dev/ttyS0?baud=9600 --size=800x1280", options), QString());
    QCOMPARE(options.receiver, QLatin1String("serial:///dev/ttyS0?baud=9600"));
    QCOMPARE(options.size, QSize(800, 1280));
}

void DisplayOptionsRead::whatIsWrongIsSaid_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("problem");
    const QString size = QLatin1String("; expected WIDTHxHEIGHT in pixels, each 480 to 4096, such as 1280x800");
    const auto row = [](const char* line, const QString& problem) {
        QTest::newRow(line) << QString::fromLatin1(line) << problem;
    };
    row("--nihgt", QLatin1String("unknown option \"--nihgt\""));
    row("work", QLatin1String("unknown option \"work\""));
    row("--data", QLatin1String("missing value; expected --data DIR"));
    row("--data=", QLatin1String("missing value; expected --data DIR"));
    row("--full-screen=yes", QLatin1String("unexpected value in \"--full-screen=yes\"; expected --full-screen"));
    row("--night", QLatin1String("--night needs --shot DIR"));
    row("--page keypad", QLatin1String("--page keypad needs --shot DIR"));
    for (const char* const word : {"800", "800x", "x480", "800x480x", "800x479", "4097x800", "1e3x800", "-800x480"})
        row(qPrintable(QString::fromLatin1("--size %1").arg(QLatin1String(word))),
            QString::fromLatin1("invalid size \"%1\"").arg(QLatin1String(word)) + size);
}

void DisplayOptionsRead::whatIsWrongIsSaid()
{
    QFETCH(const QString, line);
    QFETCH(const QString, problem);
    tagDisplayOptions options;
    QCOMPARE(Read(qPrintable(line), options), problem);
}

void DisplayOptionsRead::aRestartLeavesOutWhatIsStored_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("again");
    const auto row = [](const char* line, const char* again) {
        QTest::newRow(line) << QString::fromLatin1(line) << QString::fromLatin1(again);
    };
    row("--language de", "");
    row("--language=de --full-screen", "--full-screen");
    row("--data /data --receiver tcp://host:1 --size 800x480", "--data /data --size 800x480");
    row("--data --language --page logs", "--data --language --page logs"); // a folder of that name
}

void DisplayOptionsRead::aRestartLeavesOutWhatIsStored()
{
    QFETCH(const QString, line);
    QFETCH(const QString, again);
    QCOMPARE(RestartArguments(line.split(QLatin1Char(' '))).join(QLatin1Char(' ')), again);
}

void DisplayOptionsRead::helpNamesEveryOption()
{
    const QString help = DisplayHelp();
    for (const char* const name : {"--data DIR", "--receiver ADDRESS", "--language NAME", "--size WxH", "--full-screen",
                                   "--page PAGE", "--shot DIR", "--night", "--bench", "--version", "--help"})
        QVERIFY2(help.contains(QLatin1String(name)), name);
    QVERIFY(help.contains(QLatin1String("Pages: work, fields,")));
    QVERIFY(help.contains(QLatin1String("Pictures only: keypad,")));
    tagDisplayOptions options;
    const QString problem = Read("--page wrok", options);
    QVERIFY2(problem.startsWith(QLatin1String("unknown page \"wrok\"; expected work, fields,")), qPrintable(problem));
}

QTEST_GUILESS_MAIN(DisplayOptionsRead)
#include "DisplayOptionsRead.moc"
