#include "module/CabQuick.h"

#include "module/TParameterHub.h"

#include <memory>

namespace {

std::unique_ptr<TParameterHub>& Hub()
{
    static std::unique_ptr<TParameterHub> hub;
    return hub;
}

} // namespace

TParameterHub& TParameterHub::Instance()
{
    Q_ASSERT(Hub());
    return *Hub();
}

bool TParameterHub::IsPublished() { return Hub() != nullptr; }

void CabQuick::Publish(TSqliteStore& store, const QString& dataFolder)
{
    Hub() = std::make_unique<TParameterHub>(store, dataFolder);
}

void CabQuick::Withdraw() { Hub().reset(); }
