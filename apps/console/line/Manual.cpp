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
Works on a data folder, which stands for one terminal: its parameters, its drives and its logs. Several programs may use
one data folder at the same time.
.TP
\fB\-\-data\fR \fIDIR\fR
The data folder. Default: \fIcabsettings\fR in the user's data folder.
.TP
\fB\-\-version\fR
Prints the version.
.SH COMMANDS
)";

const char* const Tail = R"(.SH EXIT STATUS
0 for success, 1 for a failure, 2 for a wrong command line. A message on standard error then names what is wrong and
what is expected.
.SH ENVIRONMENT
.TP
\fBXDG_DATA_HOME\fR
The user's data folder. Default: \fI~/.local/share\fR.
)";

} // namespace

bool Manual::IsAsked(const QStringList& arguments)
{
    return arguments.size() == 2 && arguments.last() == QLatin1String("--manual");
}

void Manual::PrintHead() { Print(QString::fromLatin1(Head)); }
void Manual::PrintTail() { Print(QString::fromLatin1(Tail)); }

void Manual::PrintCommand(const tagUsage& usage)
{
    PrintLine(QLatin1String(".SS ") + Escaped(usage.Synopsis()));
    PrintLine(Escaped(usage.description));
    for (const tagOption& option : usage.options) {
        const QString value =
            option.TakesValue() ? QString::fromLatin1(" \\fI%1\\fR").arg(option.valueName) : QString();
        PrintLine(QLatin1String(".TP"));
        PrintLine(QString::fromLatin1("\\fB%1\\fR%2").arg(Escaped(option.name), value));
        PrintLine(Escaped(option.Help()));
    }
    PrintLine(QLatin1String(".PP\nExample:\n.RS\n.EX"));
    PrintLine(Escaped(usage.example));
    PrintLine(QLatin1String(".EE\n.RE"));
}
