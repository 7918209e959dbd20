#include "display/bench/BenchWork.h"

#include "display/fieldwork/DemoField.h"
#include "display/fieldwork/TWork.h"

#include "module/CabQuick.h"
#include "receiver/TReceiver.h"

#include <QEventLoop>

bool StartBenchWork(QQmlEngine& engine, QString* error)
{
    if (!MakeDemoField(engine, error))
        return false;
    TWork& work = *TWork::Of(engine);
    // What was selected before may be loaded first.
    const auto isReady = [&work] { return !work.IsLoading() && work.JobText() == QLatin1String(DemoField::Job); };
    QEventLoop loop;
    QObject::connect(&work, &TWork::loadingChanged, &loop, [&] {
        if (isReady())
            loop.quit();
    });
    if (!isReady())
        loop.exec();
    work.SetWorking(true);
    CabQuick::Receiver().SetRunning(true);
    return true;
}
