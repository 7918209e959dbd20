#include "../../system/TPrivateMounts.h"
#include "../fields/TFieldTerminal.h"
#include "Obstacles.h"

#include "fields/TOpenDrive.h"

#include <QDir>
#include <QtTest>

#include <iterator>
#include <memory>

/// A stick from a stranger, whose file system has links. None of them leads out of it.
class HostileSticks : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void noLinkIsFollowedOutOfTheStick_data() { AddLinks(); }
    void noLinkIsFollowedOutOfTheStick();
    void noLinkIsWrittenThrough_data() { AddLinks(); }
    void noLinkIsWrittenThrough();
    void whatIsNoFileIsNotCopied_data();
    void whatIsNoFileIsNotCopied();
    void namesThatLeadElsewhereAreNotCopied_data();
    void namesThatLeadElsewhereAreNotCopied();
    void linksOnTheWayAreFound();
    void theCopyIsForTheOperatorAlone();

private:
    static void AddLinks();
    QString OnStick(const QString& path) const { return m_Terminal->folder.Path(QLatin1String("usb/") + path); }
    EFieldResult Copy(EFieldDrive target)
    {
        tagFieldCopy copy;
        return m_Terminal->Tree().Copy(TFieldTerminal::Path("Smith/North/F1/J_1"), target, true, {}, &copy,
                                       &m_Terminal->error);
    }
    void PutLink(const QString& at, const QString& to);

    std::unique_ptr<TMemoryDrive> m_Stick; ///< destroyed after the terminal, whose folder it is in
    std::unique_ptr<TFieldTerminal> m_Terminal;
};

namespace {

const QByteArray Secret = "not on the stick";
const QLatin1String Job("Clients/Smith/North/F1/Jobs/J_1");
const QLatin1String JobFile("Clients/Smith/North/F1/Jobs/J_1/J_1.ini");

} // namespace

void HostileSticks::init()
{
    if (!PrivateMounts::ArePermitted())
        QSKIP("Mounting is not permitted here.");
    m_Terminal = std::make_unique<TFieldTerminal>();
    m_Terminal->folder.MakeFolder(QLatin1String("usb"));
    m_Stick = std::make_unique<TMemoryDrive>(m_Terminal->folder.Path(QLatin1String("usb")), "size=1m");
    QVERIFY(m_Stick->IsMounted());
}

void HostileSticks::cleanup()
{
    m_Terminal.reset();
    m_Stick.reset();
}

void HostileSticks::AddLinks()
{
    QTest::addColumn<QString>("place");
    for (const char* place :
         {"Clients", "Clients/Smith", "Clients/Smith/North", "Clients/Smith/North/F1", "Clients/Smith/North/F1/Jobs",
          "Clients/Smith/North/F1/Jobs/J_1", "Clients/Smith/North/F1/Jobs/J_1/J_1.ini"})
        QTest::newRow(place) << QString::fromLatin1(place);
}

/// Makes what stands at the place on a real stick in a folder beside it, and puts a link to it on the stick.
void HostileSticks::PutLink(const QString& at, const QString& to)
{
    const QString path = OnStick(at);
    QDir().mkpath(QFileInfo(path).path());
    QCOMPARE(symlink(to.toUtf8().constData(), path.toUtf8().constData()), 0);
}

void HostileSticks::noLinkIsFollowedOutOfTheStick()
{
    QFETCH(QString, place);
    m_Terminal->folder.MakeFile(QLatin1String("outside/") + JobFile, Secret);
    PutLink(place, m_Terminal->folder.Path(QLatin1String("outside/") + place));
    QVERIFY(QFileInfo::exists(OnStick(JobFile))); // by the link
    const EFieldResult result = Copy(FIELD_DRIVE_INTERNAL);
    QCOMPARE(result, FIELD_FAILED);
    QVERIFY(!m_Terminal->error.isEmpty());
    QVERIFY(m_Terminal->Entries().filter(QLatin1String("J_1")).isEmpty());
    QList<tagFieldItem> items;
    m_Terminal->Tree().List(FIELD_DRIVE_STICK, {}, &items, &m_Terminal->error);
    for (const tagFieldItem& item : items)
        QCOMPARE(item.bytes, 0);
}

void HostileSticks::noLinkIsWrittenThrough()
{
    QFETCH(QString, place);
    const QString outside = QLatin1String("outside/") + place;
    m_Terminal->MakeFile("Smith/North/F1/Jobs/J_1/J_1.ini", "job");
    if (place == JobFile)
        m_Terminal->folder.MakeFile(outside, Secret);
    else
        m_Terminal->folder.MakeFile(outside + QLatin1String("/kept"), Secret);
    const QStringList before = m_Terminal->folder.Entries().filter(QLatin1String("outside/"));
    PutLink(place, m_Terminal->folder.Path(outside));
    const EFieldResult result = Copy(FIELD_DRIVE_STICK);
    QCOMPARE(m_Terminal->folder.Entries().filter(QLatin1String("outside/")), before);
    QCOMPARE(m_Terminal->folder.Content(place == JobFile ? outside : outside + QLatin1String("/kept")), Secret);
    // A link in the place of the file alone is replaced, as the file would be.
    QCOMPARE(result, place == JobFile ? FIELD_DONE : FIELD_FAILED);
    QCOMPARE(m_Terminal->error.isEmpty(), result == FIELD_DONE);
}

void HostileSticks::whatIsNoFileIsNotCopied_data()
{
    QTest::addColumn<int>("kind");
    for (std::size_t kind = 0; kind < std::size(OtherKinds); ++kind) {
        if (QByteArray(OtherKinds[kind].name) != "folder")
            QTest::newRow(OtherKinds[kind].name) << static_cast<int>(kind);
    }
}

void HostileSticks::whatIsNoFileIsNotCopied()
{
    QFETCH(int, kind);
    QDir().mkpath(OnStick(Job));
    QVERIFY(OtherKinds[kind].make(OnStick(JobFile).toUtf8().constData(), ""));
    QCOMPARE(Copy(FIELD_DRIVE_INTERNAL), FIELD_FAILED);
    QVERIFY2(m_Terminal->error.contains(QLatin1String("is neither a file nor a folder")),
             qPrintable(m_Terminal->error));
    QVERIFY(m_Terminal->Entries().filter(QLatin1String("J_1")).isEmpty());
}

void HostileSticks::namesThatLeadElsewhereAreNotCopied_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("a separator of other systems") << QByteArray("..\\..\\x");
    QTest::newRow("a drive of other systems") << QByteArray("C:x");
    QTest::newRow("a control character") << QByteArray("a\nb");
    QTest::newRow("an escape sequence") << QByteArray("\x1b]0;x\x07");
    QTest::newRow("a device of other systems") << QByteArray("NUL");
}

void HostileSticks::namesThatLeadElsewhereAreNotCopied()
{
    QFETCH(QByteArray, name);
    QDir().mkpath(OnStick(Job));
    const QByteArray path = OnStick(Job).toUtf8() + '/' + name;
    QCOMPARE(mknod(path.constData(), S_IFREG | S_IRUSR, 0), 0);
    QCOMPARE(Copy(FIELD_DRIVE_INTERNAL), FIELD_FAILED);
    QVERIFY2(m_Terminal->error.contains(QLatin1String("the name")), qPrintable(m_Terminal->error));
    QVERIFY(m_Terminal->Entries().filter(QLatin1String("J_1")).isEmpty());
}

void HostileSticks::linksOnTheWayAreFound()
{
    QDir().mkpath(OnStick(QLatin1String("a/b")));
    PutLink(QLatin1String("a/b/link"), QLatin1String("."));
    const TOpenDrive stick(OnStick(QString()).chopped(1));
    QVERIFY(!stick.HasLink(QString()));
    QVERIFY(!stick.HasLink(QLatin1String("a/b")));
    QVERIFY(!stick.HasLink(QLatin1String("a/none/c")));
    QVERIFY(stick.HasLink(QLatin1String("a/b/link")));
    QVERIFY(stick.HasLink(QLatin1String("a//b/link/c")));
}

/// On a stick with FAT every file is often writable for all.
void HostileSticks::theCopyIsForTheOperatorAlone()
{
    QDir().mkpath(OnStick(Job));
    QFile file(OnStick(JobFile));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(fchmod(file.handle(), 0777), 0);
    file.close();
    QVERIFY2(Copy(FIELD_DRIVE_INTERNAL) == FIELD_DONE, qPrintable(m_Terminal->error));
    struct stat status = {};
    const QByteArray copy = m_Terminal->folder.Path(QLatin1String("internal/") + JobFile).toUtf8();
    QCOMPARE(stat(copy.constData(), &status), 0);
    QCOMPARE(status.st_mode & S_IWOTH, mode_t(0));
}

int main(int argc, char** argv)
{
    PrivateMounts::Enter();
    const QCoreApplication application(argc, argv);
    HostileSticks test;
    return QTest::qExec(&test, argc, argv);
}
#include "HostileSticks.moc"
