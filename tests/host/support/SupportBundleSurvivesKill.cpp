#include "MemoryFolder.h"
#include "StoreTestSupport.h"
#include "SystemCalls.h"
#include "TTemporaryFolder.h"

#include "support/SupportBundle.h"
#include "terminal/DataFolder.h"
#include "terminal/TTerminal.h"

#include <QtTest>

#include <archive.h>
#include <archive_entry.h>

#include <cerrno>

/// libarchive does not end the compression of a member whose writing has failed. The sanitizer reads this function.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() { return "leak:deflateInit2_"; }

// The child runs this program with the folder of the terminal, the file of the archive and the call at which it is
// killed.
namespace {

const QLatin1String WriteAndDie("write-and-die");
const QByteArray Former("former");
const int LogBytes = 100000;

/// A terminal that writes a bundle.
bool Write(const QString& folder, const QString& archive, int nth, int failure, tagSupportBundle* bundle,
           QString* error)
{
    const auto store = OpenStore(DataFolder::StoreFile(folder));
    if (!store)
        return false;
    TTerminal terminal(*store);
    if (!terminal.Start(folder, error))
        return false;
    SystemCalls::Stop(nth, failure);
    const bool isWritten =
        WriteSupportBundle(*store, archive, {folder, QLatin1String("1.2.3"), false}, {}, bundle, error);
    SystemCalls::Count();
    return isWritten;
}

/// The names of the members, in the order of the archive; none when it is not complete.
QStringList MembersOf(const QString& path)
{
    QStringList names;
    archive* const zip = archive_read_new();
    archive_read_support_format_zip_seekable(zip); // reads the index, which is written last
    int status = archive_read_open_filename(zip, QFile::encodeName(path).constData(), 0x10000);
    archive_entry* entry = nullptr;
    while (status == ARCHIVE_OK && (status = archive_read_next_header(zip, &entry)) == ARCHIVE_OK) {
        names += QString::fromUtf8(archive_entry_pathname_utf8(entry));
        QByteArray piece(0x10000, '\0');
        la_ssize_t count = 0;
        while ((count = archive_read_data(zip, piece.data(), static_cast<std::size_t>(piece.size()))) > 0) {
        }
        status = count == 0 ? ARCHIVE_OK : ARCHIVE_FATAL; // the checksum is compared at the end
    }
    archive_read_free(zip);
    return status == ARCHIVE_EOF ? names : QStringList();
}

} // namespace

/// A program that writes a bundle is stopped at each of its calls that change files.
class SupportBundleSurvivesKill : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void theArchiveIsTheFormerOrTheWholeNewOne_data();
    void theArchiveIsTheFormerOrTheWholeNewOne();

private:
    std::unique_ptr<TTemporaryFolder> m_Folder;
    QString m_Data;
    QString m_Archive;
    QStringList m_Members;
};

void SupportBundleSurvivesKill::initTestCase()
{
    KeepTemporaryFilesInMemory();
    m_Folder = std::make_unique<TTemporaryFolder>();
    m_Data = m_Folder->Path(QLatin1String("terminal"));
    m_Archive = m_Folder->Path(QLatin1String("stick/support.zip"));
    QByteArray log;
    for (unsigned i = 0; i < LogBytes; ++i)
        log.append(static_cast<char>((i * i * 2654435761u) >> 13)); // does not compress
    m_Folder->MakeFile(QLatin1String("terminal/internal/Diagnostics/NMEA00001.csv"), log);
    m_Folder->MakeFolder(QLatin1String("stick"));
    tagSupportBundle bundle;
    QString error;
    QVERIFY2(Write(m_Data, m_Archive, INT_MAX, 0, &bundle, &error), qPrintable(error));
    m_Members = bundle.members;
    QVERIFY(m_Members.size() > 5);
    QCOMPARE(MembersOf(m_Archive), m_Members);
}

void SupportBundleSurvivesKill::theArchiveIsTheFormerOrTheWholeNewOne_data()
{
    QTest::addColumn<int>("failure");
    QTest::newRow("killed") << 0;
    QTest::newRow("the stick fails") << EIO;
    QTest::newRow("the stick is full") << ENOSPC;
}

void SupportBundleSurvivesKill::theArchiveIsTheFormerOrTheWholeNewOne()
{
    QFETCH(int, failure);
    int stopped = 0;
    int replaced = 0;
    for (bool isOver = false; !isOver;) {
        SetFileBytes(m_Archive, Former);
        tagSupportBundle bundle;
        QString error;
        if (failure == 0) {
            TChild child({WriteAndDie, m_Data, m_Archive, QString::number(stopped + 1)});
            isOver = !child.WasKilled();
        } else {
            isOver = Write(m_Data, m_Archive, stopped + 1, failure, &bundle, &error);
            QVERIFY2(isOver || error.contains(m_Archive), qPrintable(error));
        }
        const bool isNew = FileBytes(m_Archive) != Former;
        QVERIFY2(!isNew || MembersOf(m_Archive) == m_Members, qPrintable(QString::number(stopped)));
        QVERIFY(isNew || !isOver);
        stopped += isOver ? 0 : 1;
        replaced += isNew && !isOver ? 1 : 0;

        // The next bundle leaves nothing of this one behind.
        QVERIFY2(Write(m_Data, m_Archive, INT_MAX, 0, &bundle, &error), qPrintable(error));
        QCOMPARE(NamesBeside(m_Archive), QStringList(QLatin1String("support.zip")));
    }
    QVERIFY2(stopped >= 10, qPrintable(QString::number(stopped)));
    QVERIFY(replaced >= 1 && replaced < stopped);
    qInfo("stopped at %d calls, at %d of them with the new archive in place", stopped, replaced);
}

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == WriteAndDie) {
        tagSupportBundle bundle;
        QString error;
        return Write(arguments.at(2), arguments.at(3), arguments.at(4).toInt(), 0, &bundle, &error) ? 0 : 1;
    }
    SupportBundleSurvivesKill test;
    return QTest::qExec(&test, argc, argv);
}
#include "SupportBundleSurvivesKill.moc"
