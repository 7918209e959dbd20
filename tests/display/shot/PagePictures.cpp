#include "display/shot/OverlayTable.h"
#include "display/shot/PageTable.h"
#include "display/shot/Pictures.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

/// The bytes of each picture in the folder, by its name.
QMap<QString, QByteArray> PicturesIn(const QString& folder)
{
    QMap<QString, QByteArray> pictures;
    for (const QString& name : QDir(folder).entryList(QDir::Files, QDir::Name)) {
        QFile file(folder + QLatin1Char('/') + name);
        if (file.open(QIODevice::ReadOnly))
            pictures.insert(name, file.readAll());
    }
    return pictures;
}

} // namespace

/// The pictures that the program writes of its pages.
class PagePictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("QT_QUICK_BACKEND", "software"); }
    void everyPageHasOneOfItsOwn_data();
    void everyPageHasOneOfItsOwn();
    void twoRunsWriteTheSame();
    void whatCannotBeWrittenIsSaid();
    void theGuideNamesAll();
};

void PagePictures::everyPageHasOneOfItsOwn_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isNight");
    QTest::newRow("day") << QSize(1280, 800) << false;
    QTest::newRow("night, small") << QSize(800, 480) << true;
}

void PagePictures::everyPageHasOneOfItsOwn()
{
    QFETCH(QSize, size);
    QFETCH(bool, isNight);
    const QTemporaryDir folder;
    tagDisplayOptions options;
    options.pictureFolder = folder.path();
    options.size = size;
    options.isNight = isNight;
    QString error;
    QVERIFY2(WritePictures(options, &error), qPrintable(error));

    const QMap<QString, QByteArray> pictures = PicturesIn(folder.path());
    QStringList expected;
    const QString ending = QLatin1String(isNight ? "-night.png" : ".png");
    for (const QString& page : PageNames())
        expected.append(page + ending);
    for (const char* const overlay : {"keypad", "keypad-refused", "name", "color"})
        expected.append(QLatin1String(overlay) + ending);
    expected.sort();
    QCOMPARE(QStringList(pictures.keys()), expected);
    QMap<QByteArray, QString> seen;
    for (auto picture = pictures.begin(); picture != pictures.end(); ++picture) {
        QCOMPARE(QImage::fromData(picture.value()).size(), size);
        QVERIFY2(!seen.contains(picture.value()),
                 qPrintable(picture.key() + QLatin1String(" is the picture of ") + seen.value(picture.value())));
        seen.insert(picture.value(), picture.key());
    }
}

void PagePictures::twoRunsWriteTheSame()
{
    // The program itself: the renderer keeps the letters of a process, which are not those of another run to the pixel.
    const QTemporaryDir folders[2];
    QProcess runs[2];
    for (int run = 0; run < 2; ++run)
        runs[run].start(QLatin1String(CABSETTINGS_DISPLAY), {QLatin1String("--shot"), folders[run].path()});
    for (QProcess& run : runs) {
        const int patience = 100000;
        QVERIFY(run.waitForFinished(patience) && run.exitStatus() == QProcess::NormalExit);
        QVERIFY2(run.exitCode() == 0, run.readAllStandardError().constData());
    }
    const QMap<QString, QByteArray> pictures = PicturesIn(folders[0].path());
    const QMap<QString, QByteArray> again = PicturesIn(folders[1].path());
    QVERIFY(pictures.size() >= PageNames().size());
    QCOMPARE(again.keys(), pictures.keys());
    for (auto picture = pictures.begin(); picture != pictures.end(); ++picture)
        QVERIFY2(again.value(picture.key()) == picture.value(), qPrintable(picture.key()));
}

void PagePictures::whatCannotBeWrittenIsSaid()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QLatin1String("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    tagDisplayOptions options;
    options.pictureFolder = file.fileName() + QLatin1String("/pictures");
    QString error;
    QVERIFY(!WritePictures(options, &error));
    QCOMPARE(error, QString::fromLatin1("cannot create the folder \"%1\"").arg(options.pictureFolder));
}

void PagePictures::theGuideNamesAll()
{
    QFile file(QStringLiteral(CABSETTINGS_DISPLAY_GUIDE));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray guide = file.readAll();
    for (const QString& name : PageNames() + OverlayNames())
        QVERIFY2(guide.contains('`' + name.toUtf8() + '`'), qPrintable(name));
}

QTEST_MAIN(PagePictures)
#include "PagePictures.moc"
