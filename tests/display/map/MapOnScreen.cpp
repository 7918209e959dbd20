#include "MapWindow.h"

#include <QGuiApplication>
#include <QScreen>
#include <QtTest>

namespace {

constexpr QRect Place(130, 90, 500, 400);

/// What stands on the window, drawn part by part in frame after frame. Pictures of single items are drawn as a whole.
QImage Shown(QQuickWindow& window)
{
    QSignalSpy drawn(&window, &QQuickWindow::frameSwapped);
    window.update();
    if (!drawn.wait(10000))
        return {};
    return window.screen()->grabWindow(window.winId()).toImage().convertToFormat(QImage::Format_RGB32);
}

/// How many pixels are another colour. Turned tiles may be rounded to one beside it.
int Differences(const QImage& a, const QImage& b)
{
    if (a.size() != b.size())
        return a.width() * a.height() + 1;
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (a.pixel(x, y) != b.pixel(x, y) && !IsNear(a.pixelColor(x, y), b.pixelColor(x, y), 12))
                ++count;
    return count;
}

} // namespace

class MapOnScreen : public QObject
{
    Q_OBJECT

private slots:
    void EachFrameIsWhatAWholePictureShows_data()
    {
        QTest::addColumn<double>("heading");
        for (const double heading : {0.0, 15.0, 200.0})
            QTest::addRow("heading %g", heading) << heading;
    }
    void EachFrameIsWhatAWholePictureShows()
    {
        QFETCH(double, heading);
        tagMapWindow shown;
        shown.window->setColor(Qt::magenta);
        shown.map->setPosition(Place.topLeft());
        shown.map->setSize(Place.size());
        shown.model.SetFlags({{10, 10}});
        const QPointF ahead(std::sin(qDegreesToRadians(heading)), std::cos(qDegreesToRadians(heading)));
        const auto drive = [&](double metres) { shown.model.SetVehicle({ahead * metres, heading, 12, 6, true}); };
        drive(0);
        QVERIFY2(!Shown(*shown.window).isNull(), "no frame");

        for (int frame = 1; frame <= 10; ++frame)
            Compare(shown, [&] { drive(frame * 10); });
        Compare(shown, [&] { shown.model.SetGuidance({{0, 0}, ahead * 100, 12, 0, true}); });
        Compare(shown, [&] { shown.model.SetFlags({{10, 10}, ahead * 120, ahead * 90 + QPointF(20, 5)}); });
        Compare(shown, [&] { shown.map->SetCrossHairsColor(Qt::blue); });
        Compare(shown, [&] { shown.map->SetVehicleColor(Qt::red); });
        Compare(shown, [&] { shown.map->zoomOut(); });
    }

private:
    template <typename Change>
    static void Compare(tagMapWindow& shown, Change&& change)
    {
        if (QTest::currentTestFailed())
            return;
        change();
        const QImage window = Shown(*shown.window);
        const int wrong = Differences(window.copy(Place), shown.Picture());
        QVERIFY2(wrong == 0, qPrintable(QStringLiteral("%1 pixels").arg(wrong)));
        // And nothing beside the map.
        for (const QPoint& beside : {QPoint(-2, 200), QPoint(501, 200), QPoint(250, -2), QPoint(250, 401)})
            QCOMPARE(window.pixelColor(Place.topLeft() + beside), QColor(Qt::magenta));
    }
};

QTEST_MAIN(MapOnScreen)
#include "MapOnScreen.moc"
