#include "TTemporaryFolder.h"

#include "diagnostics/TLogTail.h"

#include <QtTest>

#include <utime.h>

/// The newest lines of a log.
class LogTails : public QObject
{
    Q_OBJECT

private slots:
    void theFirstReadTakesTheNewestBytes_data();
    void theFirstReadTakesTheNewestBytes();
    void laterReadsTakeWhatHasCome();
    void aLineThatIsCutIsMarked_data();
    void aLineThatIsCutIsMarked();

private:
    static QStringList Texts(const QList<tagLogLine>& lines)
    {
        QStringList texts;
        for (const tagLogLine& line : lines)
            texts.append(line.text);
        return texts;
    }

    static QStringList Words(const char* text)
    {
        return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    }

    /// Two files of a series, the first one older.
    static void MakeSeries(const TTemporaryFolder& folder)
    {
        folder.MakeFile(QLatin1String("user00001.log"), "one\r\ntwo\r\n");
        folder.MakeFile(QLatin1String("user00002.log"), "three\r\nfour\r\n");
        const utimbuf past = {1000000000, 1000000000};
        QCOMPARE(utime(folder.Path(QLatin1String("user00001.log")).toUtf8().constData(), &past), 0);
    }
};

void LogTails::theFirstReadTakesTheNewestBytes_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("all") << qint64(-1) << Words("one two three four");
    QTest::newRow("more than there are") << qint64(1000) << Words("one two three four");
    QTest::newRow("as many as there are") << qint64(23) << Words("one two three four");
    QTest::newRow("within the first line") << qint64(22) << Words("two three four");
    QTest::newRow("at the end of the first line") << qint64(18) << Words("two three four");
    QTest::newRow("the second file") << qint64(13) << Words("three four");
    QTest::newRow("within the second file") << qint64(12) << Words("four");
    QTest::newRow("the last line") << qint64(6) << Words("four");
    QTest::newRow("part of the last line") << qint64(5) << Words("");
    QTest::newRow("nothing") << qint64(0) << Words("");
}

void LogTails::theFirstReadTakesTheNewestBytes()
{
    QFETCH(qint64, bytes);
    const TTemporaryFolder folder;
    MakeSeries(folder);
    TLogTail tail(folder.Path(QLatin1String("user.log")), bytes);
    QString error;
    QTEST(Texts(tail.Read(&error)), "lines");
    QCOMPARE(error, QString());
    QCOMPARE(Texts(tail.Read(&error)), QStringList());
}

void LogTails::laterReadsTakeWhatHasCome()
{
    const TTemporaryFolder folder;
    MakeSeries(folder);
    TLogTail tail(folder.Path(QLatin1String("user.log")), 5);
    QString error;
    QCOMPARE(Texts(tail.Read(&error)), QStringList());
    QFile file(folder.Path(QLatin1String("user00002.log")));
    QVERIFY(file.open(QIODevice::Append));
    file.write("five\r\nsi");
    file.flush();
    QCOMPARE(Texts(tail.Read(&error)), Words("five"));
    file.write("x\r\n");
    file.flush();
    folder.MakeFile(QLatin1String("user00003.log"), "seven\r\n");
    QCOMPARE(Texts(tail.Read(&error)), Words("six seven"));
}

void LogTails::aLineThatIsCutIsMarked_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<bool>("isCut");
    const int longest = TLogTail::LongestLine;
    QTest::newRow("the longest") << longest << QByteArray("\r\n") << false;
    QTest::newRow("the longest of another program") << longest << QByteArray("\n") << false;
    QTest::newRow("the longest, not finished") << longest << QByteArray() << false;
    QTest::newRow("one byte more") << longest + 1 << QByteArray("\r\n") << true;
    QTest::newRow("one byte more, of another program") << longest + 1 << QByteArray("\n") << true;
    QTest::newRow("one byte more, not finished") << longest + 1 << QByteArray() << true;
    QTest::newRow("a carriage return more") << longest << QByteArray("\r\r\n") << true;
    QTest::newRow("many bytes more") << 5 * longest << QByteArray("\r\n") << true;
    QTest::newRow("many bytes more, not finished") << 5 * longest << QByteArray() << true;
}

void LogTails::aLineThatIsCutIsMarked()
{
    QFETCH(int, length);
    QFETCH(QByteArray, end);
    QFETCH(bool, isCut);
    const TTemporaryFolder folder;
    folder.MakeFile(QLatin1String("user00001.log"), "one\r\n" + QByteArray(length, 'x') + end);
    TLogTail tail(folder.Path(QLatin1String("user.log")));
    QString error;
    QStringList lines = Texts(tail.Read(&error));
    if (!end.endsWith('\n'))
        lines += tail.Unfinished().text;
    QCOMPARE(lines.size(), 2);
    const QString whole(TLogTail::LongestLine, QLatin1Char('x'));
    QVERIFY(lines.last() == (isCut ? whole + TLogTail::CutMark : whole)); // a message would be too long
}

QTEST_APPLESS_MAIN(LogTails)
#include "LogTails.moc"
