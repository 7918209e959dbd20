#include "console/line/Manual.h"

#include "console/line/Output.h"

namespace {

/// Text in which nothing is taken for a request of the formatter.
QString Escaped(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\e"));
    text.replace(QLatin1Char('-'), QLatin1String("\\-"));
    return text.startsWith(QLatin1Char('.')) || text.startsWith(QLatin1Char('\'')) ? QLatin1String("\\&") + text : text;
}

const char* const Head = R"(.TH CABSETTINGS 1 "" "cabsettings )" CABSETTINGS_VERSION R"(" "User Commands"
.SH NAME
cabsettings \- settings, units, paths and logs of an in\-cab guidance display
.SH SYNOPSIS
.B cabsettings
[\fB\-\-data\fR \fIDIR\fR] \fICOMMAND\fR ...
.SH DESCRIPTION
Works on the folder that stands for a terminal: its parameters, its drives and its logs. Several programs may work on
one folder at the same time.
.TP
\fB\-\-data\fR \fIDIR\fR
The folder. Unless it is given, it is \fIcabsettings\fR in the user's own data folder.
.TP
\fB\-\-version\fR
Prints the version.
.SH COMMANDS
)";

const char* const Tail = R"(.SH EXIT STATUS
0 when all is done, 1 when the thing itself failed, 2 when the command line was wrong. What was wrong, and what is
accepted, stands on standard error.
.SH ENVIRONMENT
.TP
\fBXDG_DATA_HOME\fR
Where the user's own data folder is.
)";

} // namespace

bool Manual::IsAsked(const QStringList& arguments)
{
    return arguments.size() == 2 && arguments.last() == QLatin1String("--manual");
}

void Manual::PrintHead() { Print(QString::fromLatin1(Head)); }
void Manual::PrintTail() { Print(QString::fromLatin1(Tail)); }

void Manual::PrintCommand(const QString& synopsis, const QString& description, const QList<tagOption>& options,
                          const QString& example)
{
    PrintLine(QLatin1String(".SS ") + Escaped(synopsis));
    PrintLine(Escaped(description));
    for (const tagOption& option : options) {
        const QString value =
            option.valueName.isEmpty() ? QString() : QString::fromLatin1(" \\fI%1\\fR").arg(option.valueName);
        PrintLine(QLatin1String(".TP"));
        PrintLine(QString::fromLatin1("\\fB%1\\fR%2").arg(Escaped(option.name), value));
        PrintLine(Escaped(option.description));
    }
    PrintLine(QLatin1String(".PP\nExample:\n.RS\n.EX"));
    PrintLine(Escaped(example));
    PrintLine(QLatin1String(".EE\n.RE"));
}
