#pragma once

#include "console/line/Command.h"

// The commands; see tagCommand::run.

int RunRun(const tagContext& context, const QStringList& arguments);
int RunSimulate(const tagContext& context, const QStringList& arguments);
int RunGet(const tagContext& context, const QStringList& arguments);
int RunSet(const tagContext& context, const QStringList& arguments);
int RunReset(const tagContext& context, const QStringList& arguments);
int RunDescribe(const tagContext& context, const QStringList& arguments);
int RunList(const tagContext& context, const QStringList& arguments);
int RunBackup(const tagContext& context, const QStringList& arguments);
int RunHistory(const tagContext& context, const QStringList& arguments);
int RunUndo(const tagContext& context, const QStringList& arguments);
int RunMonitor(const tagContext& context, const QStringList& arguments);
int RunExport(const tagContext& context, const QStringList& arguments);
int RunImport(const tagContext& context, const QStringList& arguments);
int RunColors(const tagContext& context, const QStringList& arguments);
int RunSun(const tagContext& context, const QStringList& arguments);
int RunClock(const tagContext& context, const QStringList& arguments);
int RunSelect(const tagContext& context, const QStringList& arguments);
int RunSelections(const tagContext& context, const QStringList& arguments);
int RunFields(const tagContext& context, const QStringList& arguments);
int RunPaths(const tagContext& context, const QStringList& arguments);
int RunStorage(const tagContext& context, const QStringList& arguments);
int RunSupport(const tagContext& context, const QStringList& arguments);
int RunUnits(const tagContext& context, const QStringList& arguments);
int RunConvert(const tagContext& context, const QStringList& arguments);
int RunShow(const tagContext& context, const QStringList& arguments);
int RunDump(const tagContext& context, const QStringList& arguments);
int RunLog(const tagContext& context, const QStringList& arguments);
int RunLogTail(const tagContext& context, const QStringList& arguments);
int RunLogList(const tagContext& context, const QStringList& arguments);
