#include "Drive.h"
#include "TTemporaryFolder.h"

#include "coverage/TCoverageFile.h"

#include <QtTest>

namespace {

const tagGeoPoint Origin = {52.25, -10.125};
const QLatin1String Name("Jobs/J_1/J_1.cov");

/// The checksum of a piece, as ZIP has it.
unsigned Crc32(const QByteArray& bytes)
{
    unsigned sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum & 1) != 0 ? (sum >> 1) ^ 0xEDB88320 : sum >> 1;
    }
    return ~sum;
}

QByteArray Number(unsigned number)
{
    QByteArray bytes(4, '\0');
    for (int i = 0; i < 4; ++i)
        bytes[i] = static_cast<char>((number >> (24 - 8 * i)) & 0xFF);
    return bytes;
}

QByteArray Piece(unsigned version, const QByteArray& payload)
{
    const QByteArray bytes =
        QByteArray("\xFE\xED\xBA\xAC") + Number(version) + Number(static_cast<unsigned>(payload.size())) + payload;
    return bytes + Number(Crc32(bytes));
}

} // namespace

/// A coverage that is opened, added to and closed.
class TCoverageRoom
{
public:
    QString Path() const { return folder.Path(Name); }
    QByteArray Content() const { return folder.Content(Name); }
    void SetContent(const QByteArray& bytes) const { folder.MakeFile(Name, bytes); }

    std::unique_ptr<TCoverageFile> Open()
    {
        auto file = TCoverageFile::Open(Path(), &found, &error);
        if (file && !found.origin)
            file->SetOrigin(Origin);
        return file;
    }

    bool Append(const std::vector<tagCoverageStrip>& strips)
    {
        const auto file = Open();
        if (!file)
            return false;
        for (const tagCoverageStrip& strip : strips)
            file->Add(strip);
        return file->Flush();
    }

    /// Opens the coverage; whether it is just @p strips.
    bool Has(const std::vector<tagCoverageStrip>& strips)
    {
        const auto file = Open();
        return file && found.strips.size() == strips.size() &&
               std::equal(strips.begin(), strips.end(), found.strips.begin(), IsSame);
    }

    TTemporaryFolder folder;
    tagCoverage found;
    QString error;
};

class CoverageFile : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void stripsComeBack();
    void whatIsNoPlaceIsLeftOut();
    void theFileIsMadeWithTheFirstStrip();
    void closingWritesWhatIsWaiting();
    void manyStripsAreWrittenBeforeTheirTime();
    void aTornTailIsCutOffAtEveryByte();
    void aTornBeginningIsNoLoss();
    void damageWithinIsLeftOut();
    void otherVersionsStayAsTheyAre_data();
    void otherVersionsStayAsTheyAre();
    void otherFilesStayAsTheyAre_data();
    void otherFilesStayAsTheyAre();
    void onlyOneProgramWrites();
    void aFolderIsNoCoverage();

private:
    std::unique_ptr<TCoverageRoom> m_Room;
    const std::vector<tagCoverageStrip> m_First = Pass({0, 0}, 15, 12, 0.28, 20);
    const std::vector<tagCoverageStrip> m_Second = Pass({-40.5, 90}, 195, 12, 0.28, 5);
};

void CoverageFile::init() { m_Room = std::make_unique<TCoverageRoom>(); }

void CoverageFile::stripsComeBack()
{
    QVERIFY(m_Room->Append(m_First));
    QVERIFY(!m_Room->found.origin);
    QVERIFY(m_Room->Append(m_Second));
    QVERIFY(m_Room->found.origin);
    QCOMPARE(m_Room->found.origin->latitude, Origin.latitude);
    QCOMPARE(m_Room->found.origin->longitude, Origin.longitude);

    std::vector<tagCoverageStrip> all = m_First;
    all.insert(all.end(), m_Second.begin(), m_Second.end());
    QVERIFY(m_Room->Has(all));
    QCOMPARE(m_Room->found.lostBytes, 0);
    // A run of strips that join takes 16 bytes for each.
    QCOMPARE(m_Room->Content().size(), 52 + 2 * (16 + 4) + (21 + 6) * 16);
}

void CoverageFile::whatIsNoPlaceIsLeftOut()
{
    std::vector<tagCoverageStrip> strips = m_First;
    strips[3].corners[1].east = qQNaN();
    strips[7].corners[2].north = 1e9;
    QVERIFY(m_Room->Append(strips));
    strips.erase(strips.begin() + 7);
    strips.erase(strips.begin() + 3);
    QVERIFY(m_Room->Has(strips));
}

void CoverageFile::theFileIsMadeWithTheFirstStrip()
{
    {
        const auto file = m_Room->Open();
        QVERIFY(file->Flush());
        QCOMPARE(m_Room->folder.Entries(), QStringList());
        file->Add(m_First.front());
        QCOMPARE(file->State().waiting, 1);
        QVERIFY(file->Flush());
        QCOMPARE(file->State().waiting, 0);
        QCOMPARE(file->State().written, 1);
    }
    QVERIFY(m_Room->folder.Exists(Name));
}

void CoverageFile::closingWritesWhatIsWaiting()
{
    {
        const auto file = m_Room->Open();
        for (const tagCoverageStrip& strip : m_First)
            file->Add(strip);
    }
    QVERIFY(m_Room->Has(m_First));
}

void CoverageFile::manyStripsAreWrittenBeforeTheirTime()
{
    const auto file = m_Room->Open();
    const int count = TCoverageFile::BytesBeforeWrite / 16;
    const tagCoverageStrip strip = m_First.front();
    for (int i = 0; i < count; ++i)
        file->Add(strip);
    QTRY_COMPARE_WITH_TIMEOUT(file->State().written, count, 60000);
}

void CoverageFile::aTornTailIsCutOffAtEveryByte()
{
    QVERIFY(m_Room->Append(m_First));
    const QByteArray good = m_Room->Content();
    QVERIFY(m_Room->Append(m_Second));
    const QByteArray whole = m_Room->Content();
    for (int size = static_cast<int>(good.size()); size < whole.size(); ++size) {
        m_Room->SetContent(whole.left(size));
        QVERIFY2(m_Room->Has(m_First), qPrintable(QString::number(size)));
        const int torn = size - static_cast<int>(good.size());
        QCOMPARE(m_Room->found.lostBytes, torn);
        const int bytesWithLength = 12;
        QCOMPARE(m_Room->found.lostStrips, torn < bytesWithLength ? 0 : static_cast<int>(m_Second.size()));
        QCOMPARE(m_Room->Content(), good);
    }
    // A disk that has made room but has not written: zeros.
    for (int size = static_cast<int>(good.size()) + 1; size < whole.size(); size += 7) {
        m_Room->SetContent(whole.left(size) + QByteArray(static_cast<int>(whole.size()) - size, '\0'));
        QVERIFY(m_Room->Has(m_First));
        QCOMPARE(m_Room->Content(), good);
    }
    QVERIFY(m_Room->Append(m_Second));
    QCOMPARE(m_Room->Content(), whole);
}

void CoverageFile::aTornBeginningIsNoLoss()
{
    QVERIFY(m_Room->Append(m_First));
    const QByteArray whole = m_Room->Content();
    const int headerBytes = 16 + 4 + 16 + 16; // frame, kind, latitude, longitude
    for (int size = 0; size < headerBytes; ++size) {
        m_Room->SetContent(whole.left(size));
        QVERIFY2(m_Room->Append(m_First), qPrintable(m_Room->error));
        QCOMPARE(m_Room->found.lostBytes, size);
        QCOMPARE(m_Room->Content(), whole);
    }
}

void CoverageFile::damageWithinIsLeftOut()
{
    QVERIFY(m_Room->Append(m_First));
    const int begin = static_cast<int>(m_Room->Content().size());
    QVERIFY(m_Room->Append(m_Second));
    const int end = static_cast<int>(m_Room->Content().size());
    QVERIFY(m_Room->Append(m_First));
    const QByteArray whole = m_Room->Content();
    std::vector<tagCoverageStrip> rest = m_First;
    rest.insert(rest.end(), m_First.begin(), m_First.end());
    for (int at = begin; at < end; ++at) {
        QByteArray damaged = whole;
        damaged[at] = static_cast<char>(damaged.at(at) ^ 0x10);
        m_Room->SetContent(damaged);
        QVERIFY2(m_Room->Has(rest), qPrintable(QString::number(at)));
        QCOMPARE(m_Room->found.lostBytes, end - begin);
        QCOMPARE(m_Room->Content(), damaged);
    }
}

void CoverageFile::otherVersionsStayAsTheyAre_data()
{
    QTest::addColumn<bool>("isWhole");
    QTest::newRow("all of it") << true;
    QTest::newRow("a later piece") << false;
}

void CoverageFile::otherVersionsStayAsTheyAre()
{
    QFETCH(bool, isWhole);
    QVERIFY(m_Room->Append(m_First));
    const QByteArray other = isWhole ? Piece(2, "something new") : m_Room->Content() + Piece(2, "something new");
    m_Room->SetContent(other);
    QVERIFY(!m_Room->Open());
    QCOMPARE(m_Room->error, m_Room->Path() + QLatin1String(" is a coverage of version 2; this program has version 1"));
    QVERIFY(m_Room->found.strips.empty());
    QCOMPARE(m_Room->Content(), other);
}

void CoverageFile::otherFilesStayAsTheyAre_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("problem");
    const QString isNone = QLatin1String(" is not a coverage");
    QTest::newRow("text") << QByteArray("[Job]\nname=J_1\n") << isNone;
    QTest::newRow("one letter") << QByteArray("x") << isNone;
    QTest::newRow("another kind") << Piece(1, QByteArray("\0\0\0\2\0x", 6)) << isNone;
    QTest::newRow("damaged beginning") << Piece(1, QByteArray(36, 'x')).replace(20, 1, "y")
                                       << QString::fromLatin1(" is damaged: its beginning cannot be read");
}

void CoverageFile::otherFilesStayAsTheyAre()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, problem);
    m_Room->SetContent(content);
    QVERIFY(!m_Room->Open());
    QCOMPARE(m_Room->error, m_Room->Path() + problem);
    QCOMPARE(m_Room->Content(), content);
}

void CoverageFile::onlyOneProgramWrites()
{
    QVERIFY(m_Room->Append(m_First));
    const auto file = m_Room->Open();
    QVERIFY(file);
    QVERIFY(!m_Room->Open()); // another opening is another program's, as far as the lock goes
    QCOMPARE(m_Room->error, QLatin1String("another program has ") + m_Room->Path() + QLatin1String(" open"));
    QVERIFY(m_Room->found.isHeld);
}

void CoverageFile::aFolderIsNoCoverage()
{
    m_Room->folder.MakeFolder(Name);
    QVERIFY(!m_Room->Open());
    QVERIFY2(m_Room->error.startsWith(QLatin1String("cannot open")), qPrintable(m_Room->error));
}

QTEST_GUILESS_MAIN(CoverageFile)
#include "CoverageFile.moc"
