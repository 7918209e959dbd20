#pragma once

#include <QString>
#include <QtGlobal>

/// A size as operators know it from the labels of drives, "12.3 GB", with the decimal sign of the display.
QString SizeText(qint64 bytes);
