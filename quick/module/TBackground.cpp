#include "module/TBackground.h"

#include "module/CabQuick.h"
#include "module/TParameterHub.h"

#include <algorithm>

TBackground& TBackground::Lane(const char* name)
{
    TParameterHub& hub = TParameterHub::Instance();
    auto* lane = hub.findChild<TBackground*>(QLatin1String(name), Qt::FindDirectChildrenOnly);
    if (!lane) {
        lane = new TBackground(&hub);
        lane->setObjectName(QLatin1String(name));
    }
    return *lane;
}

bool TBackground::IsBusy()
{
    const auto lanes = TParameterHub::Instance().findChildren<TBackground*>(QString(), Qt::FindDirectChildrenOnly);
    return std::any_of(lanes.begin(), lanes.end(), [](const TBackground* lane) { return lane->m_Jobs > 0; });
}

bool CabQuick::IsBusy() { return TBackground::IsBusy(); }

TBackground::TBackground(QObject* parent) : QObject(parent), m_Worker(std::make_unique<QObject>())
{
    m_Worker->moveToThread(&m_Thread);
    m_Thread.start();
}

TBackground::~TBackground()
{
    m_Thread.quit();
    m_Thread.wait();
}
