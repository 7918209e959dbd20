#include "console/terminal/Session.h"

#include "console/line/Output.h"
#include "console/terminal/Store.h"

TSession::TSession() = default;
TSession::~TSession() = default;

bool TSession::Open(const tagContext& context)
{
    m_Store = OpenStore(context);
    if (!m_Store)
        return false;
    m_Terminal = std::make_unique<TTerminal>(*m_Store);
    QString error;
    if (m_Terminal->Start(context.dataFolder, &error))
        return true;
    Fail(error);
    return false;
}
