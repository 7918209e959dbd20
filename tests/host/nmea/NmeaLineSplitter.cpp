#include "TestSeed.h"
#include "nmea/TNmeaLineSplitter.h"

#include <QtTest>

#include <random>

namespace {

const int Limit = TNmeaLineSplitter::MaxLineLength;

QList<QByteArray> TakeAll(TNmeaLineSplitter& splitter)
{
    QList<QByteArray> lines;
    for (QByteArray line = splitter.TakeLine(); !line.isEmpty(); line = splitter.TakeLine())
        lines.append(line);
    return lines;
}

/// Cut into pieces of @p pieceLength bytes on the way in.
QList<QByteArray> Split(const QByteArray& stream, int pieceLength)
{
    TNmeaLineSplitter splitter;
    QList<QByteArray> lines;
    for (int at = 0; at < stream.size(); at += pieceLength) {
        const QByteArray piece = stream.mid(at, pieceLength);
        splitter.Append(piece.constData(), static_cast<int>(piece.size()));
        lines += TakeAll(splitter);
    }
    const QByteArray rest = splitter.TakeRest();
    if (!rest.isEmpty())
        lines.append(rest);
    return lines;
}

} // namespace

class NmeaLineSplitter : public QObject
{
    Q_OBJECT

private slots:
    void linesComeOutAsReceived_data();
    void linesComeOutAsReceived();
    void theCutOfTheStreamDoesNotMatter_data();
    void theCutOfTheStreamDoesNotMatter();
    void anUnfinishedLineWaits();
    void theRestIsTakenOnce();
};

void NmeaLineSplitter::linesComeOutAsReceived_data()
{
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<QList<QByteArray>>("lines");

    const auto row = [](const char* name, const QList<QByteArray>& lines) {
        QTest::newRow(name) << lines.join() << lines;
    };
    row("nothing", {});
    row("line feeds", {"$A*41\n", "$B*42\n"});
    row("carriage returns", {"$A*41\r\n", "$B*42\r\n"});
    row("mixed", {"$A*41\n", "$B*42\r\n", "$C*43\n"});
    row("no end of the last line", {"$A*41\r\n", "$B"});
    row("carriage return at the end of the stream", {"$A*41\r\n", "$B*42\r"});
    row("empty lines", {"\n", "\r\n", "\n"});
    row("carriage return within a line", {"$A\r$B\r\r\n"});
    row("bytes of every kind", {QByteArray("\0\xff\x80\x01\r\0\n", 7), QByteArray("\0\n", 2), QByteArray("\0", 1)});
    row("longest line", {QByteArray(Limit - 1, 'x') + '\n', "y\n"});
    row("line feed behind the bound", {QByteArray(Limit, 'x'), "\n", "y\n"});
    row("no line end for long", {QByteArray(Limit, 'x'), QByteArray(Limit, 'x'), "x"});
    row("line behind what has no end", {QByteArray(Limit, '\0'), QByteArray(10, '\0') + "\r\n", "$A*41\r\n"});
}

void NmeaLineSplitter::linesComeOutAsReceived()
{
    QFETCH(QByteArray, stream);
    QFETCH(QList<QByteArray>, lines);
    QCOMPARE(Split(stream, static_cast<int>(stream.size()) + 1), lines);
    QCOMPARE(Split(stream, 1), lines);
}

void NmeaLineSplitter::theCutOfTheStreamDoesNotMatter_data()
{
    QTest::addColumn<unsigned>("seed");
    std::mt19937 seeds(TestSeed());
    for (int stream = 1; stream <= 200; ++stream)
        QTest::addRow("stream %d", stream) << static_cast<unsigned>(seeds());
}

void NmeaLineSplitter::theCutOfTheStreamDoesNotMatter()
{
    QFETCH(unsigned, seed);
    std::mt19937 engine(seed);
    const auto below = [&engine](int end) { return static_cast<int>(engine() % static_cast<unsigned>(end)); };

    QByteArray stream;
    const int lineEndEvery = 1 + below(3 * Limit);
    for (int length = below(20000); length > 0; --length)
        stream.append(below(lineEndEvery) == 0 ? '\n' : static_cast<char>(below(256)));

    TNmeaLineSplitter splitter;
    QList<QByteArray> lines;
    for (int at = 0; at < stream.size();) {
        const QByteArray piece = stream.mid(at, below(2 * Limit));
        at += static_cast<int>(piece.size());
        splitter.Append(piece.constData(), static_cast<int>(piece.size()));
        if (below(2) == 0)
            lines += TakeAll(splitter);
    }
    lines += TakeAll(splitter);
    const QByteArray rest = splitter.TakeRest();
    QCOMPARE(lines.join() + rest, stream);
    QVERIFY(!rest.contains('\n'));
    for (const QByteArray& line : lines) {
        QVERIFY(line.size() <= Limit);
        QVERIFY(line.endsWith('\n') || line.size() == Limit);
        QVERIFY(!line.left(line.size() - 1).contains('\n'));
    }
}

void NmeaLineSplitter::anUnfinishedLineWaits()
{
    TNmeaLineSplitter splitter;
    splitter.Append("$A*4", 4);
    QCOMPARE(splitter.TakeLine(), QByteArray());
    splitter.Append("1\r", 2);
    QCOMPARE(splitter.TakeLine(), QByteArray());
    splitter.Append("\n$", 2);
    QCOMPARE(splitter.TakeLine(), QByteArray("$A*41\r\n"));
    QCOMPARE(splitter.TakeLine(), QByteArray());
}

void NmeaLineSplitter::theRestIsTakenOnce()
{
    TNmeaLineSplitter splitter;
    splitter.Append("$A", 2);
    QCOMPARE(splitter.TakeRest(), QByteArray("$A"));
    QCOMPARE(splitter.TakeRest(), QByteArray());
    splitter.Append("$B\n", 3);
    QCOMPARE(splitter.TakeLine(), QByteArray("$B\n"));
}

QTEST_APPLESS_MAIN(NmeaLineSplitter)
#include "NmeaLineSplitter.moc"
