#include "Drive.h"
#include "SystemCalls.h"
#include "TTemporaryFolder.h"

#include "coverage/TCoverageFile.h"

#include <QtTest>

/// What the coverage says is written would survive a power cut: the file was synced after the last write.
class CoverageIsSynced : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void afterFlush();
    void afterItsTime();
    void whenItIsClosed();

private:
    std::unique_ptr<TTemporaryFolder> m_Folder;
    std::unique_ptr<TCoverageFile> m_File;
    const std::vector<tagCoverageStrip> m_Strips = Pass({0, 0}, 15, 12, 0.28, 20);
};

void CoverageIsSynced::init()
{
    m_File.reset();
    m_Folder = std::make_unique<TTemporaryFolder>();
    tagCoverage found;
    QString error;
    m_File = TCoverageFile::Open(m_Folder->Path(QLatin1String("J_1.cov")), &found, &error);
    QVERIFY2(m_File, qPrintable(error));
    m_File->SetOrigin({52, 10});
    SystemCalls::Count();
}

void CoverageIsSynced::afterFlush()
{
    int written = 0;
    for (const tagCoverageStrip& strip : m_Strips) {
        const int calls = SystemCalls::Counted();
        m_File->Add(strip);
        QVERIFY(m_File->Flush());
        QCOMPARE(m_File->State().written, static_cast<qint64>(++written));
        QVERIFY(SystemCalls::Counted() >= calls + 2); // the write and the sync
        QCOMPARE(SystemCalls::UnsyncedFiles(), 0);
    }
}

void CoverageIsSynced::afterItsTime()
{
    for (const tagCoverageStrip& strip : m_Strips)
        m_File->Add(strip);
    const int patience = 60000;
    QTRY_COMPARE_WITH_TIMEOUT(m_File->State().written, static_cast<qint64>(m_Strips.size()), patience);
    QVERIFY(SystemCalls::Counted() >= 2);
    QCOMPARE(SystemCalls::UnsyncedFiles(), 0);
}

void CoverageIsSynced::whenItIsClosed()
{
    for (const tagCoverageStrip& strip : m_Strips)
        m_File->Add(strip);
    m_File.reset();
    QVERIFY(SystemCalls::Counted() >= 2);
    QCOMPARE(SystemCalls::UnsyncedFiles(), 0);
}

QTEST_GUILESS_MAIN(CoverageIsSynced)
#include "CoverageIsSynced.moc"
