#include "TTemporaryFolder.h"

#include <QFile>
#include <QProcess>
#include <QtTest>

/// A launcher starts the display without standard input, output and error.
class ClosedHandles : public QObject
{
    Q_OBJECT

private slots:
    void noFileOfTheDisplayGetsTheirNumbers();
};

void ClosedHandles::noFileOfTheDisplayGetsTheirNumbers()
{
    const TTemporaryFolder folder;
    QProcess display;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String("QT_QPA_PLATFORM"), QLatin1String("offscreen"));
    display.setProcessEnvironment(environment);
    display.start(QLatin1String("sh"), {QLatin1String("-c"), QLatin1String("exec \"$0\" --data \"$1\" <&- >&- 2>&-"),
                                        QLatin1String(CABSETTINGS_DISPLAY), folder.Path()});
    QVERIFY(display.waitForStarted());
    const int patience = 60000;
    for (int handle = 0; handle <= 2; ++handle) {
        const QString path = QString::fromLatin1("/proc/%1/fd/%2").arg(display.processId()).arg(handle);
        QTRY_COMPARE_WITH_TIMEOUT(QFile::symLinkTarget(path), QStringLiteral("/dev/null"), patience);
    }
    display.kill();
    QVERIFY(display.waitForFinished(patience));
}

QTEST_MAIN(ClosedHandles)
#include "ClosedHandles.moc"
