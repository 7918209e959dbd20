#pragma once

#include <QFileInfoList>

/// The files of a diagnostic log, by number.
///
/// @param basePath as the log was restored with: folder, stem and extension of the series.
QFileInfoList LogFiles(const QString& basePath);
