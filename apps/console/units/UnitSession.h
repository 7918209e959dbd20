#pragma once

#include "console/line/Command.h"
#include "console/line/CommandLine.h"

#include "stores/TSqliteStore.h"
#include "units/EUnitsType.h"

#include <QTranslator>

#include <memory>
#include <optional>

/// The settings of the data folder, for commands that convert and write values, without a terminal that runs.
class TUnitSession
{
public:
    TUnitSession();
    ~TUnitSession();

    /// Adds "--system", which replaces the stored measures for one call.
    static void AddOptions(TCommandLine& line);

    /// Opens the store and names the units in English. A status when that failed, which was said.
    std::optional<int> Open(const tagContext& context, const TCommandLine& line);

    /// From here on, texts are in the operator's language.
    void SpeakTheOperatorsLanguage();

private:
    std::unique_ptr<TSqliteStore> m_Store;
    QTranslator m_Translator;
};

/// The unit that was typed; nothing after a line on standard error when there is none.
std::optional<EUnitsType> ReadUnit(const TCommandLine& line, const QString& text);

/// The finite number that was typed, with a full stop; nothing after a line on standard error when it is none.
std::optional<double> ReadNumber(const TCommandLine& line, const QString& text);
