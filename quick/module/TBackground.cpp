#include "module/TBackground.h"

#include "module/TParameterHub.h"

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
