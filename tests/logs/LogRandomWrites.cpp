#include "CoreTest.h"
#include "TLogRoom.h"
#include "TestSeed.h"

#include <QtTest>

#include <memory>
#include <random>

namespace {

const int LastNumber = 99999;

/// A log under a storm of calls, beside everything that was ever logged to it.
class TStorm
{
public:
    TStorm(unsigned seed, int stagingSize, int maxFileSize, int maxFileCount, int firstNumber)
        : m_Random(seed), m_StagingSize(stagingSize), m_MaxFileSize(maxFileSize), m_MaxFileCount(maxFileCount)
    {
        m_Room.store.values[m_Room.parameter] = firstNumber;
        m_Room.folder.MakeFolder(QLatin1String("stick"));
        Restart();
    }

    /// One call or a few that belong together. False when one was refused.
    bool Step()
    {
        switch (Any(0, 39)) {
        case 0:
            m_Log->Close();
            return m_Log->Open();
        case 1:
            m_Log->Close();
            return m_Log->Restore(m_Room.Base(), 0, 0);
        case 2:
            m_Log->CloseWithoutFlush(); // loses nothing as long as the log is opened before the next flush
            return m_Log->Open();
        case 3:
            m_Log->FlushTempBuffer();
            return true;
        case 4:
            return !m_Log->Restore(m_Room.Base(), 1, 1); // is open
        case 5:                                          // copies go to the disk one by one, hence few of them
            return Any(0, 19) != 0 || m_Log->Export(m_Room.folder.Path(QLatin1String("stick"))).allCopied;
        case 6:
            return Restart();
        case 7:
            m_Room.store.values.remove(m_Room.parameter); // the files tell the number
            return Restart();
        case 8:
            return Add();
        default:
            return Write();
        }
    }

    /// What is wrong with the files, if anything. The log is open and has nothing staged afterwards.
    QByteArray Fault()
    {
        m_Log->FlushTempBuffer();
        const QList<int> numbers = NumbersOldestFirst();
        if (numbers.isEmpty())
            return "no files, or numbers missing between them: " + m_Room.FileList().toLatin1();
        if (numbers.size() > m_MaxFileCount)
            return "too many files: " + m_Room.FileList().toLatin1();
        QByteArray kept;
        for (int number : numbers) {
            const QByteArray content = m_Room.Content(number);
            if (number != numbers.last() && content.size() < m_MaxFileSize)
                return "left before it was full: " + m_Room.Numbered(number).toLatin1();
            if (content.size() > m_MaxFileSize + qMax(LongestWrite, m_StagingSize))
                return "too large: " + m_Room.Numbered(number).toLatin1();
            kept += content;
        }
        if (!m_Logged.endsWith(kept))
            return "not what was logged last";
        if (numbers.size() < m_MaxFileCount && kept.size() < m_Logged.size())
            return "removed without need";
        return QByteArray();
    }

private:
    static constexpr int LongestWrite = 150;

    int Any(int least, int greatest) { return std::uniform_int_distribution<int>(least, greatest)(m_Random); }

    bool Write()
    {
        const QByteArray bytes = Bytes(Any(0, LongestWrite), Any(0, 255));
        m_Logged += bytes;
        return Log(*m_Log, bytes);
    }

    bool Add()
    {
        const QByteArray text = QByteArray::number(Any(0, 1000000));
        m_Logged += "2024.03.05-14:05:09:042," + text + "\r\n";
        return m_Log->AddEntry(QString::fromLatin1(text));
    }

    bool Restart()
    {
        m_Log.reset(); // writes what it has staged
        m_Log.reset(new TDiagnosticLog(m_StagingSize, m_MaxFileSize, m_MaxFileCount, m_Room.parameter));
        return m_Log->Restore(m_Room.Base(), 0, 0);
    }

    /// The numbers of the files from the only one without a predecessor on; empty when there are several of that kind.
    QList<int> NumbersOldestFirst() const
    {
        QList<int> present;
        for (const QString& file : m_Room.Files())
            present.append(file.mid(4, 5).toInt());
        QList<int> numbers;
        for (int number : present) {
            if (present.contains(number == 1 ? LastNumber : number - 1))
                continue;
            for (int next = number; present.contains(next); next = next == LastNumber ? 1 : next + 1)
                numbers.append(next);
        }
        return numbers.size() == present.size() && IsRow(numbers) ? numbers : QList<int>();
    }

    static bool IsRow(const QList<int>& numbers)
    {
        for (int index = 1; index < static_cast<int>(numbers.size()); ++index) {
            if (numbers[index] != numbers[index - 1] % LastNumber + 1)
                return false;
        }
        return true;
    }

    std::mt19937 m_Random;
    int m_StagingSize;
    int m_MaxFileSize;
    int m_MaxFileCount;
    TLogRoom m_Room;
    std::unique_ptr<TDiagnosticLog> m_Log;
    QByteArray m_Logged;
};

} // namespace

class LogRandomWrites : public QObject
{
    Q_OBJECT

private slots:
    void theFilesHoldWhatWasLoggedLast_data();
    void theFilesHoldWhatWasLoggedLast();
};

void LogRandomWrites::theFilesHoldWhatWasLoggedLast_data()
{
    QTest::addColumn<int>("stagingSize");
    QTest::addColumn<int>("maxFileSize");
    QTest::addColumn<int>("maxFileCount");
    QTest::addColumn<int>("firstNumber");

    QTest::newRow("no buffer") << 0 << 500 << 4 << 1;
    QTest::newRow("buffer") << 64 << 500 << 4 << 1;
    QTest::newRow("large buffer") << 1024 << 3000 << 4 << 1;
    QTest::newRow("buffer larger than a file") << 1024 << 100 << 4 << 1;
    QTest::newRow("two files") << 64 << 300 << 2 << 1;
    QTest::newRow("many files") << 64 << 200 << 40 << 1;
    QTest::newRow("round") << 0 << 500 << 4 << 99900;
    QTest::newRow("round, two files") << 64 << 300 << 2 << 99950;
    QTest::newRow("round, many files") << 64 << 200 << 40 << 99900;
    QTest::newRow("files of one write each") << 0 << 1 << 3 << 99000;
}

void LogRandomWrites::theFilesHoldWhatWasLoggedLast()
{
    QFETCH(int, stagingSize);
    QFETCH(int, maxFileSize);
    QFETCH(int, maxFileCount);
    QFETCH(int, firstNumber);
    TStorm storm(TestSeed(), stagingSize, maxFileSize, maxFileCount, firstNumber);
    for (int step = 0; step < 4000; ++step) {
        QVERIFY2(storm.Step(), QByteArray::number(step).constData());
        if (step % 50 == 0) {
            const QByteArray fault = storm.Fault();
            QVERIFY2(fault.isEmpty(), (fault + " at step " + QByteArray::number(step)).constData());
        }
    }
    QCOMPARE(storm.Fault(), QByteArray());
}

int main(int argc, char** argv) { return RunCoreTest<LogRandomWrites>(argc, argv); }

#include "LogRandomWrites.moc"
