#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// Runs what the documentation shows. A transcript is a block of lines in which "$ " stands before a command, and its
/// output behind it; the commands of a document share a terminal.
class DocumentedTranscripts : public QObject
{
    Q_OBJECT

private slots:
    void transcriptsAreTrue_data();
    void transcriptsAreTrue();

private:
    static QString Output(const QString& command, const QString& folder)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const QString programs = QFileInfo(QLatin1String(CABSETTINGS_PROGRAM)).path();
        environment.insert(QLatin1String("PATH"),
                           programs + QLatin1Char(':') + environment.value(QLatin1String("PATH")));
        environment.insert(QLatin1String("XDG_DATA_HOME"), folder);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.setWorkingDirectory(folder);
        process.start(QLatin1String("sh"), {QLatin1String("-c"), command});
        process.closeWriteChannel();
        return process.waitForFinished(60000) ? QString::fromUtf8(process.readAll()) : QLatin1String("did not end");
    }
};

void DocumentedTranscripts::transcriptsAreTrue_data()
{
    QTest::addColumn<QString>("document");
    const QStringList documents =
        QDir(QLatin1String(CABSETTINGS_DOCUMENTS)).entryList({QLatin1String("*.md")}, QDir::Files, QDir::Name);
    QVERIFY(!documents.isEmpty());
    for (const QString& document : documents)
        QTest::newRow(qPrintable(document)) << document;
}

void DocumentedTranscripts::transcriptsAreTrue()
{
    QFETCH(QString, document);
    QFile file(QLatin1String(CABSETTINGS_DOCUMENTS) + QLatin1Char('/') + document);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));

    const QTemporaryDir folder;
    bool isInside = false;
    QString command;
    QString shown;
    int commands = 0;
    for (const QString& line : lines) {
        const bool isFence = line.startsWith(QLatin1String("```"));
        const bool isCommand = isInside && line.startsWith(QLatin1String("$ "));
        if ((isCommand || isFence) && !command.isEmpty()) {
            QCOMPARE(Output(command, folder.path()), shown);
            command.clear();
            ++commands;
        }
        if (isFence) {
            isInside = line == QLatin1String("```console");
        } else if (isCommand) {
            command = line.mid(2);
            shown.clear();
        } else if (isInside) {
            shown += line + QLatin1Char('\n');
        }
    }
    QVERIFY(!isInside);
    // The table of parameters is tested where the commands for it are; how fast the library is, the bench has measured.
    const QStringList withoutTranscript = {QLatin1String("display.md"),     QLatin1String("languages.md"),
                                           QLatin1String("parameters.md"),  QLatin1String("performance.md"),
                                           QLatin1String("reliability.md"), QLatin1String("threads.md"),
                                           QLatin1String("threats.md")};
    QVERIFY2(commands > 0 || withoutTranscript.contains(document), "there is a document without a transcript");
}

QTEST_GUILESS_MAIN(DocumentedTranscripts)
#include "DocumentedTranscripts.moc"
