#include "display/shot/Pictures.h"

#include "display/fieldwork/DemoField.h"
#include "display/fieldwork/TWork.h"
#include "display/map/TMapItem.h"
#include "display/session/TDisplaySession.h"
#include "display/shot/ExampleTransfers.h"
#include "display/shot/OpenOverlay.h"
#include "display/shot/PageTable.h"

#include "module/CabQuick.h"
#include "nmea/TFieldSimulator.h"
#include "platform/EParamID.h"
#include "receiver/SimulatedField.h"
#include "receiver/TReceiver.h"
#include "region/TRegionSettingsProxy.h"
#include "stores/TSqliteStore.h"
#include "terminal/DataFolder.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QStyleHints>
#include <QTemporaryDir>
#include <QTimer>
#include <QtMath>
#include <QtQml>

#include <algorithm>
#include <cmath>

namespace {

const QDateTime Moment(QDate(2024, 5, 1), QTime(12, 5), Qt::UTC);
constexpr int SecondsFromUtc = 2 * 60 * 60;

// Into the seventh pass: what is covered, the pond and the zone are all on the map.
constexpr int EpochsBefore = 10335;
constexpr int EpochsBetweenWrites = 1000;
constexpr double GreatestNoise = 0.07; // metres; the light bar has something to show
constexpr int ZoomSteps = 2;
constexpr int Attempts = 20;
constexpr int StepsOfClock = 60;
constexpr int StepMs = 20;
constexpr int StepsOfWork = 3000; // a minute
constexpr int SettleMs = 100;     // until a page has asked for what it shows

void Wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

bool IsAlong(double course, double heading)
{
    const double greatestSine = 0.05;
    return std::abs(std::sin(qDegreesToRadians(course - heading))) < greatestSine;
}

/// Drives to the place of the pictures, as the live receiver would, and works in the passes.
void DriveToPlace(TWork& work)
{
    while (work.IsLoading())
        Wait(StepMs);
    tagFieldPlan plan = CabQuick::SimulatedPlan();
    plan.start = Moment.addMSecs(-EpochsBefore * qint64(1000) / plan.rate);
    // The first time of the receiver makes the distance from the clock's time the one from UTC.
    const QDateTime local = plan.start.addSecs(SecondsFromUtc);
    const QDate date = local.date();
    const QTime time = local.time();
    TRegionSettingsProxy().SetUserDateTime(date.year(), date.month(), date.day(), time.hour(), time.minute(),
                                           time.second());
    plan.noise = GreatestNoise;
    TFieldSimulator simulator(plan);
    int along = 0;
    for (int epoch = 0; epoch <= EpochsBefore; ++epoch) {
        CabQuick::Receiver().Show(simulator.NextEpoch());
        // In a turn the course is that of a pass for a moment.
        along = IsAlong(CabQuick::Receiver().Course(), plan.heading) ? along + 1 : 0;
        work.SetWorking(along > plan.rate);
        // The size of the job's files is in a picture. By itself coverage is written after some seconds, which are more
        // of the drive on a faster machine.
        if (epoch % EpochsBetweenWrites == 0)
            work.Flush();
    }
    work.Flush();
    // The figures follow at most twice a second.
    bool isTold = false;
    const QMetaObject::Connection told =
        QObject::connect(&work, &TWork::figuresChanged, &work, [&isTold] { isTold = true; });
    CabQuick::Receiver().Show(simulator.NextEpoch());
    while (!isTold)
        Wait(StepMs);
    QObject::disconnect(told);
}

/// Entries of the user log have the milliseconds at which the machine has written them; in a picture, those of the
/// moment.
bool SetTimesOfLog(const QString& dataFolder)
{
    const QDir folder(DataFolder::InternalDrive(dataFolder) + QLatin1String("Diagnostics"));
    const QString moment =
        QLocale::c().toString(Moment.addSecs(SecondsFromUtc), QLatin1String("yyyy.MM.dd-hh:mm:ss:zzz"));
    static const QRegularExpression time(QStringLiteral("^[0-9.]{10}-[0-9:]{12}"), QRegularExpression::MultilineOption);
    const QStringList names = folder.entryList({QStringLiteral("User*.csv")}, QDir::Files);
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadWrite))
            return false;
        const QByteArray text = QString::fromUtf8(file.readAll()).replace(time, moment).toUtf8();
        if (!file.seek(0) || file.write(text) != text.size())
            return false;
    }
    return !names.isEmpty();
}

QImage Grab(QQuickItem& item)
{
    const QSharedPointer<QQuickItemGrabResult> result = item.grabToImage();
    if (!result)
        return {};
    QEventLoop loop;
    QObject::connect(result.data(), &QQuickItemGrabResult::ready, &loop, &QEventLoop::quit);
    loop.exec();
    return result->image();
}

/// What the display's clock shows, which looks at the time once a second.
QString ShownTime(QQmlEngine& engine)
{
    const int type = qmlTypeId("CabSettings", 1, 0, "Clock");
    const auto* const clock = engine.singletonInstance<QObject*>(type);
    return clock->property("time").toString();
}

/// The clock goes on while a picture is made: one for which it shows the moment before and after is right. Null when
/// the machine is too slow for that.
QImage GrabAtMoment(QQuickItem& item)
{
    QQmlEngine& engine = *qmlEngine(&item);
    for (int attempt = 0; attempt < Attempts; ++attempt) {
        QTime time = Moment.time();
        QDate date = Moment.date();
        TRegionSettingsProxy region;
        region.SetUTCTimeAndDate(time, date, true);
        const QString expected = region.GetTimeString();
        for (int step = 0; step < StepsOfClock && ShownTime(engine) != expected; ++step)
            Wait(StepMs);
        QImage image = Grab(item);
        if (ShownTime(engine) == expected)
            return image;
    }
    return {};
}

bool WritePicture(QQuickItem& display, const QString& path, QString* error)
{
    Wait(SettleMs);
    for (int step = 0; CabQuick::IsBusy(); ++step) {
        if (step == StepsOfWork) {
            *error =
                QString::fromLatin1("cannot write the picture \"%1\": what it shows is still being read").arg(path);
            return false;
        }
        Wait(StepMs);
    }
    const QImage image = GrabAtMoment(display);
    if (!image.isNull() && image.save(path))
        return true;
    *error = QString::fromLatin1("cannot write the picture \"%1\"").arg(path);
    return false;
}

bool WritePageOrOverlay(const TDisplaySession& session, const QString& name, const QString& path, QString* error)
{
    auto* const display = session.Window()->findChild<QQuickItem*>(QStringLiteral("display"));
    if (const tagPage* const page = FindPage(name)) {
        OpenPage(*session.Window(), *page);
        return WritePicture(*display, path, error);
    }
    const tagOverlay& overlay = *FindOverlay(name);
    if (!OpenOverlay(*session.Window(), session.Store(), overlay, error) || !WritePicture(*display, path, error))
        return false;
    CloseOverlay(*session.Window(), session.Store(), overlay);
    return true;
}

/// The names of what is pictured when the options name nothing.
QStringList AllPictures()
{
    QStringList names = PageNames();
    for (const tagOverlay& overlay : Overlays) {
        if (overlay.isPictured)
            names.append(QLatin1String(overlay.name));
    }
    return names;
}

} // namespace

bool WritePictures(const tagDisplayOptions& options, QString* error)
{
    const QTemporaryDir folder;
    if (!folder.isValid() || !QDir().mkpath(options.pictureFolder)) {
        *error = QString::fromLatin1("cannot create the folder \"%1\"").arg(options.pictureFolder);
        return false;
    }
    tagDisplayOptions own = options;
    own.dataFolder = folder.path();
    TDisplaySession session;
    if (!session.Start(own, error))
        return false;
    session.Store().SetParameter(PARAM_DAY_MODE, !options.isNight, true);
    if (!session.OpenWindow(own, error) || !MakeDemoField(session.Engine(), error))
        return false;
    auto* const map = session.Window()->findChild<TMapItem*>();
    map->SetZoom(map->Zoom() - ZoomSteps);
    TWork& work = *TWork::Of(session.Engine());
    DriveToPlace(work);
    // The sizes of the files are in the pictures.
    if (!work.Flush() || !SetTimesOfLog(own.dataFolder)) {
        *error = QStringLiteral("cannot write the files of the example");
        return false;
    }
    CabQuick::ShowDrives(ExampleTransfers::Drives());
    // A cursor that blinks would be in some of the pictures only.
    QGuiApplication::styleHints()->setCursorFlashTime(0);
    const QStringList names = options.page.isEmpty() ? AllPictures() : QStringList{options.page};
    const QString ending = QLatin1String(options.isNight ? "-night.png" : ".png");
    return std::all_of(names.begin(), names.end(), [&](const QString& name) {
        return WritePageOrOverlay(session, name, options.pictureFolder + QLatin1Char('/') + name + ending, error);
    });
}
