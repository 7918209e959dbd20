#include "StoreTestSupport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QtTest>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

std::unique_ptr<QTemporaryDir> MakeFolder()
{
    if (!qEnvironmentVariableIsEmpty("TMPDIR"))
        return std::make_unique<QTemporaryDir>();
    auto folder = std::make_unique<QTemporaryDir>(QLatin1String("/dev/shm/stores-XXXXXX"));
    return folder->isValid() ? std::move(folder) : std::make_unique<QTemporaryDir>();
}

std::unique_ptr<TSqliteStore> OpenStore(const QString& path)
{
    QString error;
    auto store = TSqliteStore::Open(path, &error);
    if (!store)
        qWarning("%s", qPrintable(error));
    return store;
}

QMap<int, QVariant> StoredValues(const QString& path)
{
    const auto store = OpenStore(path);
    return store ? store->Values() : QMap<int, QVariant>();
}

QByteArray FileBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void SetFileBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

QStringList NamesBeside(const QString& path)
{
    return QFileInfo(path).dir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
}

QVariant RunSql(const QString& path, const QString& statement)
{
    const QString name = QLatin1String("raw");
    QVariant value;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), name);
        database.setDatabaseName(path);
        if (!database.open())
            qFatal("cannot open %s", qPrintable(path));
        QSqlQuery query(database);
        if (!query.exec(statement))
            qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
        if (query.next())
            value = query.value(0);
    }
    QSqlDatabase::removeDatabase(name);
    return value;
}

namespace {

const QLatin1String OtherProgram("other");

} // namespace

TOtherProgram::TOtherProgram(const QString& path)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), OtherProgram);
    database.setDatabaseName(path);
    if (!database.open())
        qFatal("cannot open %s", qPrintable(path));
}

TOtherProgram::~TOtherProgram() { QSqlDatabase::removeDatabase(OtherProgram); }

void TOtherProgram::Run(const QString& statement)
{
    QSqlQuery query(QSqlDatabase::database(OtherProgram));
    if (!query.exec(statement))
        qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
}

TStandardErrorCapture::TStandardErrorCapture() : m_Original(dup(STDERR_FILENO))
{
    if (!m_File.open())
        qFatal("no temporary file");
    std::fflush(stderr);
    dup2(m_File.handle(), STDERR_FILENO);
}

TStandardErrorCapture::~TStandardErrorCapture()
{
    std::fflush(stderr);
    dup2(m_Original, STDERR_FILENO);
    close(m_Original);
}

QStringList TStandardErrorCapture::Lines()
{
    std::fflush(stderr);
    QStringList lines = QString::fromUtf8(FileBytes(m_File.fileName())).split(QLatin1Char('\n'));
    lines.removeLast(); // the empty text after the last line break
    // Clang's check for leaks says so of a thread that ends at that moment, when it cannot look at its registers.
    return lines.filter(QRegularExpression(QLatin1String("^(?!==\\d+==Unable to get registers from thread)")));
}

TChild::TChild(const QStringList& arguments) : m_Process(-1), m_Output(-1)
{
    std::vector<QByteArray> texts{QFile::encodeName(QCoreApplication::applicationFilePath())};
    for (const QString& argument : arguments)
        texts.push_back(argument.toUtf8());
    std::vector<char*> pointers;
    for (QByteArray& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);

    int ends[2];
    if (pipe(ends) != 0)
        qFatal("no pipe");
    m_Process = fork();
    if (m_Process == 0) {
        dup2(ends[1], STDOUT_FILENO);
        close(ends[0]);
        close(ends[1]);
        execv(pointers.front(), pointers.data());
        _exit(EXIT_FAILURE);
    }
    close(ends[1]);
    m_Output = ends[0];
}

TChild::~TChild()
{
    Kill();
    WasKilled();
    close(m_Output);
}

int TChild::NextNumber()
{
    int number = 0;
    return read(m_Output, &number, sizeof number) == sizeof number ? number : -1;
}

void TChild::Kill()
{
    if (m_Process > 0)
        kill(m_Process, SIGKILL);
}

bool TChild::WasKilled()
{
    int status = 0;
    const bool isEnded = m_Process > 0 && waitpid(m_Process, &status, 0) == m_Process;
    m_Process = -1;
    return isEnded && WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

void TChild::Tell(int number)
{
    if (write(STDOUT_FILENO, &number, sizeof number) != sizeof number)
        std::abort();
}

void TChild::KillMyself()
{
    kill(getpid(), SIGKILL);
    std::abort();
}
