#include "Drive.h"
#include "TTemporaryFolder.h"

#include "coverage/TCoverageFile.h"

#include <QtTest>

#include <csignal>
#include <sys/resource.h>

namespace {

/// Limits the size of the files of this process, as a full disk does, while the object exists.
class TFullDisk
{
public:
    explicit TFullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN); // so that writing fails instead
        getrlimit(RLIMIT_FSIZE, &m_Before);
        const rlimit limit = {bytes, m_Before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~TFullDisk() { setrlimit(RLIMIT_FSIZE, &m_Before); }

private:
    rlimit m_Before = {};
};

} // namespace

class CoverageOnFullDisk : public QObject
{
    Q_OBJECT

private slots:
    void workGoesOnWhenThereIsRoom_data();
    void workGoesOnWhenThereIsRoom();
    void whatIsNotKeptIsCounted();
    void aFolderThatCannotBeMadeIsSaid();

private:
    static std::unique_ptr<TCoverageFile> Open(const QString& path, tagCoverage* found);
};

std::unique_ptr<TCoverageFile> CoverageOnFullDisk::Open(const QString& path, tagCoverage* found)
{
    QString error;
    auto file = TCoverageFile::Open(path, found, &error);
    if (!file)
        qWarning("%s", qPrintable(error));
    else
        file->SetOrigin({52, 10});
    return file;
}

void CoverageOnFullDisk::workGoesOnWhenThereIsRoom_data()
{
    QTest::addColumn<int>("room");
    QTest::newRow("none") << 0;
    for (const int room : {1, 40, 52, 53, 100, 200, 381, 382, 600})
        QTest::addRow("%d bytes", room) << room;
}

void CoverageOnFullDisk::workGoesOnWhenThereIsRoom()
{
    QFETCH(int, room);
    const TTemporaryFolder folder;
    const QString path = folder.Path(QLatin1String("J_1.cov"));
    const std::vector<tagCoverageStrip> strips = Pass({0, 0}, 15, 12, 0.28, 100);
    tagCoverage found;
    {
        const auto file = Open(path, &found);
        QVERIFY(file);
        {
            const TFullDisk full(static_cast<rlim_t>(room));
            for (int i = 0; i < 50; ++i) {
                file->Add(strips[static_cast<std::size_t>(i)]);
                if (i % 10 == 9)
                    file->Flush();
            }
            const tagCoverageState state = file->State();
            QVERIFY(state.waiting > 0);
            QCOMPARE(state.written + state.waiting, 50);
            QVERIFY2(state.problem.startsWith(QLatin1String("cannot write ") + path), qPrintable(state.problem));
            QVERIFY(QFileInfo(path).size() <= room);
        }
        for (int i = 50; i < 100; ++i)
            file->Add(strips[static_cast<std::size_t>(i)]);
        QVERIFY(file->Flush());
        QCOMPARE(file->State().problem, QString());
        QCOMPARE(file->State().written, 100);
        QCOMPARE(file->State().lost, 0);
    }
    QVERIFY(Open(path, &found));
    QCOMPARE(found.lostBytes, 0);
    QCOMPARE(found.strips.size(), strips.size());
    QVERIFY(std::equal(strips.begin(), strips.end(), found.strips.begin(), IsSame));
}

void CoverageOnFullDisk::whatIsNotKeptIsCounted()
{
    const TTemporaryFolder folder;
    const tagCoverageStrip strip = Pass({0, 0}, 0, 12, 0.3, 1).front();
    tagCoverage found;
    const auto file = Open(folder.Path(QLatin1String("J_1.cov")), &found);
    QVERIFY(file);
    {
        const TFullDisk full(0);
        for (int i = 0; i < TCoverageFile::MostWaitingStrips + 10; ++i)
            file->Add(strip);
        QVERIFY(!file->Flush());
        QCOMPARE(file->State().waiting, TCoverageFile::MostWaitingStrips);
        QCOMPARE(file->State().lost, 10);
    }
    QVERIFY(file->Flush());
    QCOMPARE(file->State().written, TCoverageFile::MostWaitingStrips);
    QCOMPARE(file->State().lost, 10);
}

void CoverageOnFullDisk::aFolderThatCannotBeMadeIsSaid()
{
    const TTemporaryFolder folder;
    folder.MakeFile(QLatin1String("Jobs"));
    tagCoverage found;
    QString error;
    const auto file = TCoverageFile::Open(folder.Path(QLatin1String("Jobs/J_1/J_1.cov")), &found, &error);
    QVERIFY(!file);
    QVERIFY2(error.startsWith(QLatin1String("cannot open")), qPrintable(error));
}

QTEST_GUILESS_MAIN(CoverageOnFullDisk)
#include "CoverageOnFullDisk.moc"
