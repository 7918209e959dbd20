#include "../../system/TPrivateMounts.h"
#include "MemoryFolder.h"
#include "StoreTestSupport.h"
#include "SystemCalls.h"
#include "TTemporaryFolder.h"

#include "fields/TFieldTree.h"
#include "stores/TMemoryStore.h"
#include "terminal/TTerminal.h"

#include <QtTest>

#include <cerrno>

// The child runs this program with the folder of the terminal and the call at which it is killed.
namespace {

const QLatin1String CopyAndDie("copy-and-die");
const QStringList Client(QLatin1String("Smith"));

struct tagFile
{
    const char* path;
    int size;
};

constexpr tagFile Files[] = {
    {"Clients/Smith/North/F1/F1.ini", 500},
    {"Clients/Smith/North/F1/Jobs/J_1/J_1.cov", 150000}, // in several pieces
    {"Clients/Smith/North/F1/Jobs/J_1/J_1.ini", 300},
    {"Clients/Smith/South/F2/F2.ini", 0},
};

const tagFile& Replaced = Files[0];

QByteArray Content(const tagFile& file) { return QByteArray(file.size, file.path[qstrlen(file.path) - 5]); }
QByteArray FormerContent() { return QByteArray(Replaced.size, '?'); }

/// A terminal that copies the client to the stick, and replaces what differs.
EFieldResult Copy(const QString& folder, int nth, int failure, tagFieldCopy* copy, QString* error)
{
    TMemoryStore store;
    TTerminal terminal(store);
    if (!terminal.Start(folder, error))
        return FIELD_FAILED;
    SystemCalls::Stop(nth, failure);
    const EFieldResult result = TFieldTree(store).Copy(Client, FIELD_DRIVE_STICK, true, {}, copy, error);
    SystemCalls::Count();
    return result;
}

} // namespace

/// A copy to a stick is stopped at each of its calls that change files.
class FieldCopySurvivesKill : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void whatIsOnTheStickIsWhole_data();
    void whatIsOnTheStickIsWhole();

private:
    struct tagRoom
    {
        TTemporaryFolder folder;
        std::unique_ptr<TMemoryDrive> stick;

        QByteArray OnStick(const tagFile& file) const { return folder.Content(QLatin1String("usb/") + Name(file)); }
        bool IsOnStick(const tagFile& file) const { return folder.Exists(QLatin1String("usb/") + Name(file)); }
        static QString Name(const tagFile& file) { return QString::fromLatin1(file.path); }
    };

    static std::unique_ptr<tagRoom> MakeRoom();
    static void Check(const tagRoom& room, bool isOver, int* whole);
};

void FieldCopySurvivesKill::initTestCase()
{
    KeepTemporaryFilesInMemory();
    if (!PrivateMounts::ArePermitted())
        QSKIP("Mounting is not permitted here.");
}

// A stick that has another version of the first file.
std::unique_ptr<FieldCopySurvivesKill::tagRoom> FieldCopySurvivesKill::MakeRoom()
{
    auto room = std::make_unique<tagRoom>();
    for (const tagFile& file : Files)
        room->folder.MakeFile(QLatin1String("internal/") + tagRoom::Name(file), Content(file));
    room->folder.MakeFolder(QLatin1String("usb"));
    room->stick = std::make_unique<TMemoryDrive>(room->folder.Path(QLatin1String("usb")), "size=1m");
    room->folder.MakeFile(QLatin1String("usb/") + tagRoom::Name(Replaced), FormerContent());
    return room;
}

// What has its name on the stick is the former file or the whole new one, and the next copy completes the rest.
void FieldCopySurvivesKill::Check(const tagRoom& room, bool isOver, int* whole)
{
    *whole = 0;
    for (const tagFile& file : Files) {
        QCOMPARE(room.folder.Content(QLatin1String("internal/") + tagRoom::Name(file)), Content(file));
        const bool isWhole = room.IsOnStick(file) && room.OnStick(file) == Content(file);
        const bool isFormer = &file == &Replaced ? room.OnStick(file) == FormerContent() : !room.IsOnStick(file);
        QVERIFY2(isWhole || (isFormer && !isOver), file.path);
        *whole += isWhole ? 1 : 0;
    }
    const int all = static_cast<int>(std::size(Files));
    tagFieldCopy copy = {};
    QString error;
    QVERIFY2(Copy(room.folder.Path(), INT_MAX, 0, &copy, &error) == FIELD_DONE, qPrintable(error));
    QCOMPARE(copy.identical, *whole);
    QCOMPARE(copy.copied, all - *whole);
    for (const tagFile& file : Files)
        QCOMPARE(room.OnStick(file), Content(file));
    const QStringList onStick =
        room.folder.Entries().filter(QRegularExpression(QLatin1String("^(internal|usb)/Clients/Smith/.*[^/]$")));
    QCOMPARE(static_cast<int>(onStick.size()), 2 * all);
}

void FieldCopySurvivesKill::whatIsOnTheStickIsWhole_data()
{
    QTest::addColumn<int>("failure");
    QTest::newRow("killed") << 0;
    QTest::newRow("the stick fails") << EIO;
    QTest::newRow("the stick is full") << ENOSPC;
}

void FieldCopySurvivesKill::whatIsOnTheStickIsWhole()
{
    QFETCH(int, failure);
    int stopped = 0;
    int resumed = 0;
    for (bool isOver = false; !isOver;) {
        const auto room = MakeRoom();
        QVERIFY(room->stick->IsMounted());
        if (failure == 0) {
            TChild child({CopyAndDie, room->folder.Path(), QString::number(stopped + 1)});
            isOver = !child.WasKilled();
        } else {
            tagFieldCopy copy = {};
            QString error;
            isOver = Copy(room->folder.Path(), stopped + 1, failure, &copy, &error) == FIELD_DONE;
            QCOMPARE(error.isEmpty(), isOver);
        }
        int whole = 0;
        Check(*room, isOver, &whole);
        if (QTest::currentTestFailed()) {
            qWarning("after %d calls", stopped);
            return;
        }
        stopped += isOver ? 0 : 1;
        resumed += !isOver && whole > 0 ? 1 : 0;
    }
    QVERIFY2(stopped >= 20, qPrintable(QString::number(stopped)));
    QVERIFY(resumed >= 10 && resumed < stopped);
    qInfo("stopped at %d calls, at %d of them with files to go on from", stopped, resumed);
}

int main(int argc, char** argv)
{
    PrivateMounts::Enter();
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == CopyAndDie) {
        tagFieldCopy copy = {};
        QString error;
        return Copy(arguments.at(2), arguments.at(3).toInt(), 0, &copy, &error) == FIELD_DONE ? 0 : 1;
    }
    FieldCopySurvivesKill test;
    return QTest::qExec(&test, argc, argv);
}
#include "FieldCopySurvivesKill.moc"
