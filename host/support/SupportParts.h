#pragma once

#include "stores/TSqliteStore.h"
#include "support/SupportBundle.h"
#include "support/TBlanker.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <memory>

/// What all parts of a bundle are made from.
struct tagSupportSource
{
    TParameterStore& parameters; ///< in an anonymous bundle with blanked values
    const TSqliteStore& store;   ///< for its journal
    const tagSupportRequest& request;
    TBlanker* blanker; ///< null unless names and positions are blanked
    QStringList* problems;
};

/// Takes a piece of a member. False when it cannot be written, so that the rest need not be made.
using TSupportSink = std::function<bool(const QByteArray&)>;

/// What the lines of a member are, and so how they are blanked.
enum ESupportLines : int
{
    SUPPORT_LINES_TEXT,
    SUPPORT_LINES_NMEA,
    SUPPORT_LINES_DONE, ///< made of blanked parameters and paths
};

/// One file of a bundle.
struct tagSupportMember
{
    QString name;
    ESupportLines lines;
    std::function<void(const tagSupportSource&, const TSupportSink&)> write;
};

/// All files of a bundle, in order.
QList<tagSupportMember> SupportMembers();

/// Makes all names known that the terminal has. False, with a reason, when the files of the user log cannot be listed:
/// names that stand only there would not be blanked.
bool CollectNames(TSqliteStore& store, const tagSupportRequest& request, TBlanker* blanker, QString* error);
