#include "CoreTest.h"
#include "TestHost.h"

#include "system/TSystemSettings.h"

#include <QCoreApplication>
#include <QProcess>
#include <QtTest>

#include <cstdio>
#include <cstdlib>

namespace {

/// The answer is found once per process, so each row asks in a process of its own: this program again, with the
/// patterns that the host gives in its environment.
const char* const FirstPattern = "CABSETTINGS_TEST_FIRST_PATTERN";
const char* const LaterPattern = "CABSETTINGS_TEST_LATER_PATTERN";

/// Prints the first answer, the answer after the host has changed its pattern, and how often the host was asked.
int AnswerTwice()
{
    TTestFiles::extensionPattern = QString::fromLatin1(std::getenv(FirstPattern));
    const bool first = TSystemSettings::AreFilenameExtensionInvariantsSatisfied();
    TTestFiles::extensionPattern = QString::fromLatin1(std::getenv(LaterPattern));
    const bool later = TSystemSettings::AreFilenameExtensionInvariantsSatisfied();
    std::printf("%d %d %d", first, later, TTestFiles::extensionPatternAsked);
    return 0;
}

/// What AnswerTwice() prints.
QByteArray AnswersOfAProcess(const QString& firstPattern, const QString& laterPattern)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(FirstPattern), firstPattern);
    environment.insert(QLatin1String(LaterPattern), laterPattern);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), QStringList());
    process.waitForFinished();
    return process.readAllStandardOutput();
}

const char* const LowerCase = "\\.[a-z]+";
const char* const Nothing = "[^\\s\\S]";

} // namespace

class FilenameExtensions : public QObject
{
    Q_OBJECT

private slots:
    void theHostsPatternDecides_data();
    void theHostsPatternDecides();
    void theFirstAnswerStands_data();
    void theFirstAnswerStands();
};

void FilenameExtensions::theHostsPatternDecides_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<bool>("satisfied");

    QTest::newRow("lower case") << QString::fromLatin1(LowerCase) << true;
    QTest::newRow("three letters") << QString::fromLatin1("\\.[a-z]{3}") << true;
    QTest::newRow("anything") << QString::fromLatin1(".*") << true;
    QTest::newRow("nothing") << QString::fromLatin1(Nothing) << false;
    QTest::newRow("upper case") << QString::fromLatin1("\\.[A-Z]+") << false;
    QTest::newRow("without the dot") << QString::fromLatin1("[a-z]+") << false;
    QTest::newRow("the beginning alone") << QString::fromLatin1("\\.[a-z]{2}") << false;
    QTest::newRow("the end alone") << QString::fromLatin1("[a-z]{3}") << false;

    const char* const tested[] = {"ini", "crv", "cov", "bdy", "pdf", "shp", "shx", "dbf", "xml", "log",
                                  "ipk", "idx", "csv", "gps", "tpo", "txt", "bin", "tgz", "msk", "dfr"};
    for (const char* extension : tested)
        QTest::newRow(extension) << QString::fromLatin1("\\.(?!%1$)[a-z]+").arg(QLatin1String(extension)) << false;

    const char* const leftOut[] = {"pbz", "ppd", "tar\\.gz", "wli"};
    for (const char* extension : leftOut)
        QTest::newRow(extension) << QString::fromLatin1("\\.(?!%1$)[a-z]+").arg(QLatin1String(extension)) << true;
}

void FilenameExtensions::theHostsPatternDecides()
{
    QFETCH(QString, pattern);
    QFETCH(bool, satisfied);
    QCOMPARE(AnswersOfAProcess(pattern, pattern), QByteArray(satisfied ? "1 1 1" : "0 0 1"));
}

void FilenameExtensions::theFirstAnswerStands_data()
{
    QTest::addColumn<QString>("firstPattern");
    QTest::addColumn<QString>("laterPattern");
    QTest::addColumn<QByteArray>("answers");

    QTest::newRow("yes") << QString::fromLatin1(LowerCase) << QString::fromLatin1(Nothing) << QByteArray("1 1 1");
    QTest::newRow("no") << QString::fromLatin1(Nothing) << QString::fromLatin1(LowerCase) << QByteArray("0 0 1");
}

void FilenameExtensions::theFirstAnswerStands()
{
    QFETCH(QString, firstPattern);
    QFETCH(QString, laterPattern);
    QFETCH(QByteArray, answers);
    QCOMPARE(AnswersOfAProcess(firstPattern, laterPattern), answers);
}

int main(int argc, char** argv)
{
    if (std::getenv(FirstPattern))
        return AnswerTwice();
    return RunCoreTest<FilenameExtensions>(argc, argv);
}

#include "FilenameExtensions.moc"
