#include "TConsole.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

/// Files of serialized blocks, as `cabsettings dump` shows them.
class ConsoleDump : public QObject
{
    Q_OBJECT

private slots:
    void blocksAreShown_data();
    void blocksAreShown();
    void whatDoesNotFitIsSaid_data();
    void whatDoesNotFitIsSaid();
    void jsonHoldsTheSame();
    void filesThatCannotBeReadAreNamed();
    void aSmallFileTakesLittleMemory();
    void wrongUsageSaysWhatIsAccepted_data();
    void wrongUsageSaysWhatIsAccepted();

private:
    QString Write(const QByteArray& bytes) const
    {
        QFile file(m_Console.Path("blocks.bin"));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("the file of the test cannot be written");
        return file.fileName();
    }

    TConsole::tagResult Dump(const QByteArray& bytes, const QString& options) const
    {
        return m_Console.Run(QStringList{QLatin1String("dump"), Write(bytes)} +
                             options.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    }

    TConsole m_Console;
};

namespace {

const char* const OneBlock = "feedbaac00000003"
                             "0000000400460031"
                             "00000007"
                             "01"
                             "ffffffff";
const char* const SecondBlock = "feedbaac00000004"
                                "000000020000000100000002";

QByteArray Bytes(const char* hex) { return QByteArray::fromHex(hex); }

} // namespace

void ConsoleDump::blocksAreShown_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("output");
    const auto row = [](const char* name, const QByteArray& bytes, const char* options, const char* output) {
        QTest::newRow(name) << bytes << QString::fromLatin1(options) << QString::fromUtf8(output);
    };

    row("data to the next marker", Bytes(OneBlock) + Bytes(SecondBlock), "",
        "00000000  block 1, version 3\n"
        "  00000008  00 00 00 04 00 46 00 31 00 00 00 07 01 ff ff ff  .....F.1........\n"
        "  00000018  ff                                               .\n"
        "00000019  block 2, version 4\n"
        "  00000021  00 00 00 02 00 00 00 01 00 00 00 02              ............\n");
    row("values by their types", Bytes(OneBlock) + Bytes(SecondBlock), "--values string,int,bool,bytes --values ints",
        "00000000  block 1, version 3\n"
        "  00000008  00 00 00 04 00 46 00 31                          string  \"F1\"\n"
        "  00000010  00 00 00 07                                      int     7\n"
        "  00000014  01                                               bool    true\n"
        "  00000015  ff ff ff ff                                      bytes   null\n"
        "00000019  block 2, version 4\n"
        "  00000021  00 00 00 02 00 00 00 01 00 00 00 02              ints    [1,2]\n");
    row("the last types go on", Bytes("feedbaac0000000100feedbaac0000000200feedbaac0000000301"),
        "--values bool", // of every block
        "00000000  block 1, version 1\n"
        "  00000008  00                                               bool    false\n"
        "00000009  block 2, version 2\n"
        "  00000011  00                                               bool    false\n"
        "00000012  block 3, version 3\n"
        "  0000001a  01                                               bool    true\n");
    row("a value that looks like a marker", Bytes("feedbaac00000001feedbaac00000000"), "--values int,uint",
        "00000000  block 1, version 1\n"
        "  00000008  fe ed ba ac                                      int     -17974612\n"
        "  0000000c  00 00 00 00                                      uint    0\n");
    row("a header behind a header", Bytes("feedbaac00000001feedbaac0000000205"), "",
        "00000000  block 1, version 1\n"
        "00000008  block 2, version 2\n"
        "  00000010  05                                               .\n");
    row("numbers",
        Bytes("feedbaacffffffff"
              "ffffffff80000000"
              "3fb999999999999a3fb99999a0000000"
              "7ff8000000000000fff0000000000000"),
        "--values uint,int,double,float,double,float",
        "00000000  block 1, version 4294967295\n"
        "  00000008  ff ff ff ff                                      uint    4294967295\n"
        "  0000000c  80 00 00 00                                      int     -2147483648\n"
        "  00000010  3f b9 99 99 99 99 99 9a                          double  0.1\n"
        "  00000018  3f b9 99 99 a0 00 00 00                          float   0.10000000149011612\n"
        "  00000020  7f f8 00 00 00 00 00 00                          double  \"nan\"\n"
        "  00000028  ff f0 00 00 00 00 00 00                          float   \"-inf\"\n");
    row("texts and bytes",
        Bytes("feedbaac00000000"
              "ffffffff00000000"
              "000000087551002200 0a005c"
              "0000000200ff"
              "00000000"),
        "--values string,string,string,bytes,ints",
        "00000000  block 1, version 0\n"
        "  00000008  ff ff ff ff                                      string  null\n"
        "  0000000c  00 00 00 00                                      string  \"\"\n"
        "  00000010  00 00 00 08 75 51 00 22 00 0a 00 5c              string  \"畑\\\"\\n\\\\\"\n"
        "  0000001c  00 00 00 02 00 ff                                bytes   \"00ff\"\n"
        "  00000022  00 00 00 00                                      ints    []\n");
    row("a value of several lines", Bytes("feedbaac00000000000000140102030405060708090a0b0c0d0e0f1011121314"),
        "--values bytes",
        "00000000  block 1, version 0\n"
        "  00000008  00 00 00 14 01 02 03 04 05 06 07 08 09 0a 0b 0c  bytes   "
        "\"0102030405060708090a0b0c0d0e0f1011121314\"\n"
        "  00000018  0d 0e 0f 10 11 12 13 14\n");
}

void ConsoleDump::blocksAreShown()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, options);
    QFETCH(QString, output);
    const auto result = Dump(bytes, options);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.output, output);
    QCOMPARE(result.status, 0);
}

void ConsoleDump::whatDoesNotFitIsSaid_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("options");
    QTest::addColumn<int>("blocks");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* name, const QByteArray& bytes, const char* options, int blocks, const char* error) {
        QTest::newRow(name) << bytes << QString::fromLatin1(options) << blocks << QString::fromLatin1(error);
    };

    row("empty", QByteArray(), "", 0, "0x00000000 (0): the file is empty; expected the marker");
    row("foreign", QByteArray("root:x:0"), "", 0,
        "0x00000000 (0): expected the marker of a block, fe ed ba ac; found 72 6f 6f 74");
    row("foreign from its third byte", Bytes("feed1234"), "", 0,
        "0x00000002 (2): expected the marker of a block, fe ed ba ac; found fe ed 12 34");
    row("half a marker", Bytes("feed"), "", 0, "0x00000002 (2): the file ends inside the header at 0x00000000");
    row("half a version", Bytes("feedbaac0000"), "", 0,
        "0x00000006 (6): the file ends inside the header at 0x00000000");
    row("no data", Bytes("feedbaac00000001"), "", 0, "0x00000008 (8): no data follows the header at 0x00000000");
    row("no data in the second block", Bytes(OneBlock) + Bytes("feedbaac00000001"), "", 1,
        "0x00000021 (33): no data follows the header at 0x00000019");
    row("behind the values", Bytes(OneBlock), "--values string,int", 1,
        "0x00000014 (20): expected the marker of a block, fe ed ba ac; found 01 ff ff ff");
    row("no bool", Bytes(OneBlock), "--values string,bool,bool,bool,bool", 1,
        "0x00000013 (19): expected a bool, 00 or 01; found 07");
    row("a cut number", Bytes("feedbaac00000001000000"), "--values int", 1,
        "0x0000000b (11): the file ends inside the value of type int at 0x00000008");
    row("a cut double", Bytes("feedbaac0000000100000000"), "--values double", 1,
        "0x0000000c (12): the file ends inside the value of type double at 0x00000008");
    row("a cut length", Bytes("feedbaac000000010000"), "--values ints", 1,
        "0x0000000a (10): the file ends inside the value of type ints at 0x00000008");
    row("a cut text", Bytes("feedbaac00000001000000040041"), "--values string", 1,
        "0x00000008 (8): a value of type string claims 4 bytes; the file has 2 more");
    row("half a character", Bytes("feedbaac0000000100000003004100"), "--values string", 1,
        "0x00000008 (8): a value of type string claims 3 bytes; expected an even number");
    row("an absurd list", Bytes("feedbaac00000001ffffffff00000000"), "--values ints", 1,
        "0x00000008 (8): a value of type ints claims 17179869180 bytes; the file has 4 more");
}

void ConsoleDump::whatDoesNotFitIsSaid()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, options);
    QFETCH(int, blocks);
    QFETCH(QString, error);
    const auto result = Dump(bytes, options);
    QVERIFY2(result.errors.contains(QLatin1String(" at offset ") + error), qPrintable(result.errors));
    QVERIFY(result.errors.contains(m_Console.Path("blocks.bin")));
    // What stands before it is shown all the same.
    QCOMPARE(static_cast<int>(result.output.count(QLatin1String("block "))), blocks);
    QCOMPARE(result.status, 1);
}

void ConsoleDump::jsonHoldsTheSame()
{
    const auto result = Dump(Bytes(OneBlock) + Bytes(SecondBlock),
                             QLatin1String("--json --values string,int,bool,bytes --values ints"));
    QCOMPARE(result.status, 0);
    const QJsonArray blocks = QJsonDocument::fromJson(result.output.toUtf8()).array();
    QCOMPARE(static_cast<int>(blocks.size()), 2);
    const QJsonObject first = blocks.at(0).toObject();
    QCOMPARE(first.value(QLatin1String("offset")).toInt(), 0);
    QCOMPARE(first.value(QLatin1String("version")).toInt(), 3);
    const QJsonArray values = first.value(QLatin1String("values")).toArray();
    QCOMPARE(static_cast<int>(values.size()), 4);
    const QJsonObject text = values.at(0).toObject();
    QCOMPARE(text.value(QLatin1String("offset")).toInt(), 8);
    QCOMPARE(text.value(QLatin1String("type")).toString(), QLatin1String("string"));
    QCOMPARE(text.value(QLatin1String("bytes")).toString(), QLatin1String("0000000400460031"));
    QCOMPARE(text.value(QLatin1String("value")).toString(), QLatin1String("F1"));
    QVERIFY(values.at(3).toObject().value(QLatin1String("value")).isNull());
    const QJsonObject list = blocks.at(1).toObject().value(QLatin1String("values")).toArray().at(0).toObject();
    QCOMPARE(list.value(QLatin1String("value")).toArray(), (QJsonArray{1, 2}));
}

void ConsoleDump::filesThatCannotBeReadAreNamed()
{
    const auto missing = m_Console.Run({QLatin1String("dump"), m_Console.Path("missing.bin")});
    QCOMPARE(missing.status, 1);
    QVERIFY2(missing.errors.contains(QLatin1String("missing.bin\": No such file")), qPrintable(missing.errors));
    const auto folder = m_Console.Run({QLatin1String("dump"), m_Console.Path(".")});
    QCOMPARE(folder.status, 1);
    QVERIFY2(folder.errors.contains(QLatin1String("cannot read ")), qPrintable(folder.errors));
}

void ConsoleDump::aSmallFileTakesLittleMemory()
{
    QProcess process;
    process.start(QLatin1String("sh"), TConsole::WithLittleMemory({QLatin1String("dump"), Write(Bytes(OneBlock))}));
    QVERIFY(process.waitForFinished(-1)); // ctest ends a test that hangs
    const QByteArray errors = process.readAllStandardError();
    if (errors.contains("Sanitizer failed to allocate"))
        QSKIP("a sanitizer needs more than that for itself");
    QCOMPARE(errors, QByteArray());
    QCOMPARE(process.exitCode(), 0);
}

void ConsoleDump::wrongUsageSaysWhatIsAccepted_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    QTest::newRow("no file") << QStringList{} << QStringLiteral("expected FILE");
    QTest::newRow("two files") << QStringList{QStringLiteral("a"), QStringLiteral("b")}
                               << QStringLiteral("expected FILE");
    QTest::newRow("unknown type") << QStringList{QStringLiteral("a"), QStringLiteral("--values"),
                                                 QStringLiteral("int,word")}
                                  << QStringLiteral(
                                         "unknown type of value \"word\"; expected uint, int, float, double, "
                                         "bool, string, ints or bytes");
    QTest::newRow("no type") << QStringList{QStringLiteral("a"), QStringLiteral("--values"), QString()}
                             << QStringLiteral("unknown type of value \"\"");
    QTest::newRow("unknown option") << QStringList{QStringLiteral("a"), QStringLiteral("--types")}
                                    << QStringLiteral("types");
}

void ConsoleDump::wrongUsageSaysWhatIsAccepted()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    const auto result = m_Console.Run(QStringList{QLatin1String("dump")} + arguments);
    QCOMPARE(result.status, 2);
    QVERIFY2(result.errors.contains(error), qPrintable(result.errors));
    QCOMPARE(result.output, QString());
}

QTEST_GUILESS_MAIN(ConsoleDump)
#include "ConsoleDump.moc"
