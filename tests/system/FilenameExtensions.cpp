#include "CoreTest.h"
#include "InOwnProcess.h"
#include "TestHost.h"

#include "system/TSystemSettings.h"

namespace {

/// The first answer, the answer after the host has changed its pattern, and how often the host was asked. The answer is
/// found once per process, so each row asks in a process of its own.
QString AnswersOfAProcess(const QString& firstPattern, const QString& laterPattern)
{
    const QStringList answers = InOwnProcess([&firstPattern, &laterPattern] {
        TTestFiles::extensionPattern = firstPattern;
        const int first = TSystemSettings::AreFilenameExtensionInvariantsSatisfied();
        TTestFiles::extensionPattern = laterPattern;
        const int later = TSystemSettings::AreFilenameExtensionInvariantsSatisfied();
        return QStringList() << QString::number(first) << QString::number(later)
                             << QString::number(TTestFiles::extensionPatternAsked);
    });
    return answers.join(QLatin1String(" "));
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
    QCOMPARE(AnswersOfAProcess(pattern, pattern), QString::fromLatin1(satisfied ? "1 1 1" : "0 0 1"));
}

void FilenameExtensions::theFirstAnswerStands_data()
{
    QTest::addColumn<QString>("firstPattern");
    QTest::addColumn<QString>("laterPattern");
    QTest::addColumn<QString>("answers");

    QTest::newRow("yes") << QString::fromLatin1(LowerCase) << QString::fromLatin1(Nothing)
                         << QString::fromLatin1("1 1 1");
    QTest::newRow("no") << QString::fromLatin1(Nothing) << QString::fromLatin1(LowerCase)
                        << QString::fromLatin1("0 0 1");
}

void FilenameExtensions::theFirstAnswerStands()
{
    QFETCH(QString, firstPattern);
    QFETCH(QString, laterPattern);
    QFETCH(QString, answers);
    QCOMPARE(AnswersOfAProcess(firstPattern, laterPattern), answers);
}

int main(int argc, char** argv) { return RunCoreTest<FilenameExtensions>(argc, argv); }

#include "FilenameExtensions.moc"
