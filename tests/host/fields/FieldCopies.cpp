#include "TFieldTerminal.h"

#include "../../system/TPrivateMounts.h"

#include <QDateTime>

#include <sys/stat.h>

#include <memory>

/// Copies of items to a stick and back.
class FieldCopies : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void everythingIsCopied();
    void anItemIsCopiedToTheSamePlace_data();
    void anItemIsCopiedToTheSamePlace();
    void aCopyGoesOnWhereItWasCutOff();
    void whatDiffersIsReplacedOnlyWithForce();
    void aCopyComesBack();
    void withoutAStickNothingIsCopied();
    void whatAStickCannotHoldIsNotCopied_data();
    void whatAStickCannotHoldIsNotCopied();
    void aStickWithoutRoomIsSaidFirst();
    void aStickThatFillsKeepsWhatIsCopied();
    void aReadOnlyStickIsSaid();
    void aPulledStickIsSaid();
    void aStickThatStoresSomethingElseIsSaid();
    void whatAKilledCopyLeftIsRemoved();

private:
    EFieldResult Copy(const char* path, EFieldDrive drive = FIELD_DRIVE_STICK, bool force = false,
                      const TFieldCopyProgress& progress = {})
    {
        return m_Terminal->Tree().Copy(TFieldTerminal::Path(path), drive, force, progress, &m_Copy, &m_Terminal->error);
    }

    QString Error() const { return m_Terminal->error; }
    QStringList OnStick() const
    {
        return m_Terminal->folder.Entries().filter(QRegularExpression(QLatin1String("^usb/.*[^/]$")));
    }
    QByteArray StickContent(const char* path) const
    {
        return m_Terminal->folder.Content(QLatin1String("usb/") + QString::fromUtf8(path));
    }
    void MakeOnStick(const char* path, const QByteArray& content) const
    {
        m_Terminal->folder.MakeFile(QLatin1String("usb/") + QString::fromUtf8(path), content);
    }

    std::unique_ptr<TMemoryDrive> m_Stick; ///< destroyed after the terminal, whose folder it is in
    std::unique_ptr<TFieldTerminal> m_Terminal;
    tagFieldCopy m_Copy = {};
};

namespace {

const char* const StickOptions = "size=1m";

} // namespace

void FieldCopies::init()
{
    if (!PrivateMounts::ArePermitted())
        QSKIP("Mounting is not permitted here.");
    m_Stick.reset();
    m_Terminal.reset(); // one terminal can run at a time
    m_Terminal = std::make_unique<TFieldTerminal>();
    m_Terminal->folder.MakeFolder(QLatin1String("usb"));
    m_Stick = std::make_unique<TMemoryDrive>(m_Terminal->folder.Path(QLatin1String("usb")), StickOptions);
    QVERIFY(m_Stick->IsMounted());
    m_Terminal->MakeFile("Smith/North/F1/F1.ini", "field");
    m_Terminal->MakeFile("Smith/North/F1/Jobs/J_1/J_1.cov", QByteArray(200000, 'c'));
    m_Terminal->MakeFile("Smith/North/F1/Jobs/J_1/J_1.ini", "job");
    m_Terminal->MakeFile("Smith/South/F2/F2.ini", "");
    m_Terminal->folder.MakeFolder(QLatin1String("internal/Clients/Smith/South/F2/Jobs"));
}

void FieldCopies::everythingIsCopied()
{
    QFile source(m_Terminal->folder.Path(QLatin1String("internal/Clients/Smith/North/F1/F1.ini")));
    const QDateTime time = QDateTime::fromSecsSinceEpoch(1700000000);
    QVERIFY(source.open(QIODevice::ReadWrite) && source.setFileTime(time, QFileDevice::FileModificationTime));
    source.close();
    QList<qint64> bytes;
    tagFieldCopyState last = {};
    const EFieldResult result = Copy("Smith", FIELD_DRIVE_STICK, false, [&](const tagFieldCopyState& state) {
        bytes.append(state.bytes);
        last = state;
    });
    QVERIFY2(result == FIELD_DONE, qPrintable(Error()));
    QStringList expected;
    for (const QString& entry : m_Terminal->Entries())
        expected.append(QLatin1String("usb/Clients/") + entry);
    QCOMPARE(m_Terminal->folder.Entries().filter(QLatin1String("usb/Clients/S")), expected);
    QCOMPARE(StickContent("Clients/Smith/North/F1/Jobs/J_1/J_1.cov"), QByteArray(200000, 'c'));
    const QFileInfo copy(m_Terminal->folder.Path(QLatin1String("usb/Clients/Smith/North/F1/F1.ini")));
    QCOMPARE(copy.lastModified(), time);
    QCOMPARE(m_Copy.copied, 4);
    QCOMPARE(m_Copy.identical, 0);
    QCOMPARE(m_Copy.bytes, 200008);
    QVERIFY(bytes.size() > 4); // long files in several steps
    QVERIFY(std::is_sorted(bytes.begin(), bytes.end()));
    QCOMPARE(last.files, last.allFiles);
    QCOMPARE(last.bytes, last.allBytes);
    QCOMPARE(last.allBytes, 200008);
}

void FieldCopies::anItemIsCopiedToTheSamePlace_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("files");
    QTest::newRow("a farm") << "Smith/South" << List("usb/Clients/Smith/South/F2/F2.ini");
    QTest::newRow("a job") << "Smith/North/F1/J_1"
                           << List("usb/Clients/Smith/North/F1/Jobs/J_1/J_1.cov|"
                                   "usb/Clients/Smith/North/F1/Jobs/J_1/J_1.ini");
}

void FieldCopies::anItemIsCopiedToTheSamePlace()
{
    QFETCH(QString, path);
    QVERIFY2(Copy(path.toUtf8().constData()) == FIELD_DONE, qPrintable(Error()));
    QTEST(OnStick(), "files");
}

void FieldCopies::aCopyGoesOnWhereItWasCutOff()
{
    QCOMPARE(Copy("Smith"), FIELD_DONE);
    QVERIFY(QFile::remove(m_Terminal->folder.Path(QLatin1String("usb/Clients/Smith/North/F1/Jobs/J_1/J_1.ini"))));
    QCOMPARE(Copy("Smith"), FIELD_DONE);
    QCOMPARE(m_Copy.copied, 1);
    QCOMPARE(m_Copy.identical, 3);
    QCOMPARE(m_Copy.bytes, 3);
    QCOMPARE(Copy("Smith"), FIELD_DONE);
    QCOMPARE(m_Copy.copied, 0);
    QCOMPARE(OnStick().size(), 4);
}

void FieldCopies::whatDiffersIsReplacedOnlyWithForce()
{
    // Of the same length, so that the content decides.
    MakeOnStick("Clients/Smith/North/F1/F1.ini", "FIELD");
    QCOMPARE(Copy("Smith"), FIELD_REFUSED);
    QCOMPARE(Error(), QString::fromLatin1("1 file(s) that are on the drive already differ, the first is "
                                          "\"Clients/Smith/North/F1/F1.ini\""));
    QCOMPARE(OnStick().size(), 1);
    QCOMPARE(StickContent("Clients/Smith/North/F1/F1.ini"), QByteArray("FIELD"));
    QCOMPARE(Copy("Smith", FIELD_DRIVE_STICK, true), FIELD_DONE);
    QCOMPARE(StickContent("Clients/Smith/North/F1/F1.ini"), QByteArray("field"));
    QCOMPARE(OnStick().size(), 4);
}

void FieldCopies::aCopyComesBack()
{
    const QStringList before = m_Terminal->Entries();
    QCOMPARE(Copy("Smith"), FIELD_DONE);
    QCOMPARE(m_Terminal->Tree().Remove(TFieldTerminal::Path("Smith"), true, &m_Terminal->error), FIELD_DONE);
    QList<tagFieldItem> items;
    QCOMPARE(m_Terminal->Tree().List(FIELD_DRIVE_STICK, {}, &items, &m_Terminal->error), FIELD_DONE);
    QCOMPARE(TFieldTerminal::Texts(items).value(0), QString::fromLatin1("Smith 4 200008"));
    QCOMPARE(Copy("Smith", FIELD_DRIVE_INTERNAL), FIELD_DONE);
    QCOMPARE(m_Terminal->Entries(), before);
    QCOMPARE(m_Terminal->Content("Smith/North/F1/F1.ini"), QByteArray("field"));
    QCOMPARE(Copy("Jones", FIELD_DRIVE_INTERNAL), FIELD_FAILED);
    QCOMPARE(Error(), QString::fromLatin1("there is no client \"Jones\""));
}

void FieldCopies::withoutAStickNothingIsCopied()
{
    m_Stick.reset();
    QCOMPARE(Copy("Smith"), FIELD_FAILED);
    QCOMPARE(Error(),
             QString::fromLatin1("no stick is mounted at \"%1\"").arg(m_Terminal->folder.Path(QLatin1String("usb"))));
    QCOMPARE(OnStick(), QStringList());
}

void FieldCopies::whatAStickCannotHoldIsNotCopied_data()
{
    QTest::addColumn<QString>("internal");
    QTest::addColumn<QString>("onStick");
    QTest::addColumn<QString>("problem");
    const QString tail = QLatin1String(": it ignores letter case and the encoding of accents");
    QTest::newRow("two files in one folder") << "Smith/North/F1/f1.INI"
                                             << ""
                                             << QLatin1String("a stick cannot hold \"Clients/Smith/North/F1/f1.INI\" "
                                                              "beside \"F1.ini\"") +
                                                    tail;
    QTest::newRow("a file on the stick") << ""
                                         << "Clients/Smith/North/F1/F1.INI"
                                         << QLatin1String("a stick cannot hold \"Clients/Smith/North/F1/F1.ini\" "
                                                          "beside \"F1.INI\"") +
                                                tail;
    QTest::newRow("a client on the stick")
        << ""
        << "Clients/SMITH/x.ini" << QLatin1String("a stick cannot hold the client \"Smith\" beside \"SMITH\"") + tail;
    QTest::newRow("a name that FAT does not allow")
        << "Smith/North/F1/a:b"
        << ""
        << QString::fromLatin1("cannot copy \"Clients/Smith/North/F1/a:b\": the name contains \":\", which FAT file "
                               "systems do not allow");
    QTest::newRow("a folder in the place of a file")
        << ""
        << "Clients/Smith/North/F1/F1.ini/x"
        << QString::fromLatin1("\"Clients/Smith/North/F1/F1.ini\" is a folder on one drive and a file on the other");
}

void FieldCopies::whatAStickCannotHoldIsNotCopied()
{
    QFETCH(QString, internal);
    QFETCH(QString, onStick);
    if (!internal.isEmpty())
        m_Terminal->MakeFile(internal.toUtf8().constData());
    if (!onStick.isEmpty())
        MakeOnStick(onStick.toUtf8().constData(), "x");
    const QStringList before = OnStick();
    QCOMPARE(Copy("Smith", FIELD_DRIVE_STICK, true), FIELD_FAILED);
    QTEST(Error(), "problem");
    QCOMPARE(OnStick(), before);
}

void FieldCopies::aStickWithoutRoomIsSaidFirst()
{
    m_Terminal->MakeFile("Smith/North/F1/Jobs/J_2/J_2.cov", QByteArray(1000000, 'c'));
    QCOMPARE(Copy("Smith"), FIELD_FAILED);
    QVERIFY2(Error().startsWith(QLatin1String("the files need 1200008 bytes; 1048576 are free on ")),
             qPrintable(Error()));
    QCOMPARE(OnStick(), QStringList());
}

void FieldCopies::aStickThatFillsKeepsWhatIsCopied()
{
    // Room for the root, nine folders and two files.
    QVERIFY(m_Stick->MountAgain(0, "nr_inodes=12"));
    QCOMPARE(Copy("Smith"), FIELD_FAILED);
    QVERIFY2(
        Error().endsWith(QLatin1String(": No space left on device; 2 of 4 files are copied, and the next copy goes "
                                       "on from there")),
        qPrintable(Error()));
    QCOMPARE(m_Copy.copied, 2);
    QCOMPARE(OnStick().size(), 2);
    QVERIFY(m_Stick->MountAgain(0, "nr_inodes=100"));
    QCOMPARE(Copy("Smith"), FIELD_DONE);
    QCOMPARE(m_Copy.copied, 2);
    QCOMPARE(m_Copy.identical, 2);
}

void FieldCopies::aReadOnlyStickIsSaid()
{
    QVERIFY(m_Stick->MountAgain(MS_RDONLY, StickOptions));
    QCOMPARE(Copy("Smith"), FIELD_FAILED);
    QCOMPARE(Error(), QString::fromLatin1("cannot make the folder %1/Clients: Read-only file system")
                          .arg(m_Terminal->folder.Path(QLatin1String("usb"))));
}

void FieldCopies::aPulledStickIsSaid()
{
    const EFieldResult result = Copy("Smith", FIELD_DRIVE_STICK, false, [this](const tagFieldCopyState& state) {
        if (state.files == 1)
            m_Stick->Pull();
    });
    QCOMPARE(result, FIELD_FAILED);
    QVERIFY2(Error().startsWith(QLatin1String("the stick was pulled; ")), qPrintable(Error()));
    QCOMPARE(OnStick(), QStringList()); // nothing is written to the mount point either
    QVERIFY(!m_Terminal->folder.Exists(QLatin1String("usb/Clients")));
}

void FieldCopies::aStickThatStoresSomethingElseIsSaid()
{
    const QDir folder(m_Terminal->folder.Path(QLatin1String("usb/Clients/Smith/North/F1/Jobs/J_1")));
    const EFieldResult result = Copy("Smith", FIELD_DRIVE_STICK, false, [&folder](const tagFieldCopyState&) {
        for (const QString& name :
             folder.entryList({QLatin1String(".cabsettings-copy-*")}, QDir::Files | QDir::Hidden)) {
            QFile file(folder.filePath(name));
            if (file.open(QIODevice::ReadWrite))
                file.write("C");
        }
    });
    QCOMPARE(result, FIELD_FAILED);
    QVERIFY2(Error().startsWith(QLatin1String("\"Clients/Smith/North/F1/Jobs/J_1/J_1.cov\" reads back differently")),
             qPrintable(Error()));
    QCOMPARE(OnStick(), List("usb/Clients/Smith/North/F1/F1.ini"));
}

void FieldCopies::whatAKilledCopyLeftIsRemoved()
{
    MakeOnStick("Clients/Smith/North/F1/.cabsettings-copy-a1B2c3", "fie");
    QCOMPARE(Copy("Smith"), FIELD_DONE);
    QCOMPARE(OnStick().size(), 4);
}

int main(int argc, char* argv[])
{
    PrivateMounts::Enter();
    const QCoreApplication application(argc, argv);
    FieldCopies test;
    return QTest::qExec(&test, argc, argv);
}

#include "FieldCopies.moc"
