#include "terminal/RegisterTerminalTypes.h"

#include "module/SharedObject.h"
#include "module/TTypeRegistrar.h"
#include "receiver/TReceiver.h"
#include "terminal/TAbout.h"
#include "terminal/TClock.h"
#include "terminal/TDrives.h"
#include "terminal/TProblems.h"
#include "terminal/TSelections.h"

void RegisterTerminalTypes(const TTypeRegistrar& types)
{
    types.AddShared<TAbout>("About", SharedObject<TAbout>);
    types.AddShared<TClock>("Clock", SharedObject<TClock>);
    types.AddShared<TDrives>("Drives", SharedObject<TDrives>);
    types.AddShared<TProblems>("Problems", SharedObject<TProblems>);
    types.AddShared<TReceiver>("Receiver", SharedObject<TReceiver>);
    types.AddShared<TSelections>("Selections", SharedObject<TSelections>);
}
