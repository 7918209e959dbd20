#include "CoreTest.h"
#include "TFileSizeLimit.h"
#include "TLogRoom.h"

#include <QtTest>

namespace {

const long long NoLimit = 1024 * 1024;

} // namespace

class LogSizeLimit : public QObject
{
    Q_OBJECT

private slots:
    void whatDoesNotFitIntoTheFileIsCutOff_data();
    void whatDoesNotFitIntoTheFileIsCutOff();
};

void LogSizeLimit::whatDoesNotFitIntoTheFileIsCutOff_data()
{
    QTest::addColumn<int>("stagingSize");
    QTest::addColumn<int>("room");
    for (int stagingSize : {0, 10}) {
        for (int size = 0; size <= 14; ++size) {
            const QByteArray name = QByteArray::number(stagingSize) + " staged, room for " + QByteArray::number(size);
            QTest::newRow(name.constData()) << stagingSize << size;
        }
    }
}

void LogSizeLimit::whatDoesNotFitIntoTheFileIsCutOff()
{
    QFETCH(int, stagingSize);
    QFETCH(int, room);
    const TLogRoom logRoom;
    TDiagnosticLog log(stagingSize, NoLimit, 4, logRoom.parameter);
    QVERIFY(log.Restore(logRoom.Base(), 0, 0));
    const QByteArray first = "0123456";
    const QByteArray second = "abcdef";
    bool isFirstLogged = false;
    bool isSecondLogged = false;
    {
        const TFileSizeLimit limit(room);
        QVERIFY(limit.IsSet());
        isFirstLogged = Log(log, first);
        isSecondLogged = Log(log, second);
    }
    const QByteArray content = (first + second).left(room);
    QCOMPARE(logRoom.Content(1), content);
    QCOMPARE(isFirstLogged, stagingSize > 0 || room >= first.size());
    QCOMPARE(isSecondLogged, content.endsWith(second));

    // The file is still open, and nothing that was cut off comes later.
    QVERIFY(Log(log, "ghi"));
    log.Close();
    QCOMPARE(logRoom.Content(1), QByteArray(content + "ghi"));
}

int main(int argc, char** argv) { return RunCoreTest<LogSizeLimit>(argc, argv); }

#include "LogSizeLimit.moc"
