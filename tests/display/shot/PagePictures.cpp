#include "display/shot/PageTable.h"
#include "display/shot/Pictures.h"

#include <QDir>
#include <QFile>
#include <QImage>
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
    QMap<QString, QByteArray> runs[2];
    for (QMap<QString, QByteArray>& pictures : runs) {
        const QTemporaryDir folder;
        tagDisplayOptions options;
        options.pictureFolder = folder.path();
        QString error;
        QVERIFY2(WritePictures(options, &error), qPrintable(error));
        pictures = PicturesIn(folder.path());
    }
    QCOMPARE(runs[0].keys(), runs[1].keys());
    for (const QString& name : runs[0].keys())
        QVERIFY2(runs[0].value(name) == runs[1].value(name), qPrintable(name));
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

QTEST_MAIN(PagePictures)
#include "PagePictures.moc"
