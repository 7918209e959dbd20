#pragma once

#include "module/TParameterHub.h"

/// The only object of its class in the module. Made at its first use with the hub as its parent, and destroyed after
/// the hub, so its destructor must not use the hub.
template <class Type>
Type* SharedObject()
{
    TParameterHub& hub = TParameterHub::Instance();
    auto* const object = hub.findChild<Type*>(QString(), Qt::FindDirectChildrenOnly);
    return object ? object : new Type(&hub);
}
