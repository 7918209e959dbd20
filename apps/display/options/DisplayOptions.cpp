#include "display/options/DisplayOptions.h"

#include "display/shot/OverlayTable.h"
#include "display/shot/PageTable.h"

#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace {

struct tagOption
{
    const char* name;
    const char* value; ///< what follows; null for an option that stands alone
    const char* meaning;
    QString (*read)(const QString& value, tagDisplayOptions& options); ///< returns what is wrong with the value
    bool isStored = false; ///< the display stores it: it is not an option of a restart
};

template <QString tagDisplayOptions::*Member>
QString ReadText(const QString& value, tagDisplayOptions& options)
{
    options.*Member = value;
    return {};
}

template <bool tagDisplayOptions::*Member>
QString ReadFlag(const QString& /*value*/, tagDisplayOptions& options)
{
    options.*Member = true;
    return {};
}

constexpr const char* Description =
    "The display of the cab: map, guidance, coverage, and every setting of the terminal.";

constexpr int LeastWidth = 480;
constexpr int GreatestWidth = 4096;

QString ReadSize(const QString& value, tagDisplayOptions& options)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,5})x([0-9]{1,5})$"));
    const QRegularExpressionMatch match = form.match(value);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const int least = std::min(size.width(), size.height());
    const int greatest = std::max(size.width(), size.height());
    if (!match.hasMatch() || least < LeastWidth || greatest > GreatestWidth)
        return QString::fromLatin1(
                   "invalid size \"%1\"; expected WIDTHxHEIGHT in pixels, each %2 to %3, such as 1280x800")
            .arg(value)
            .arg(LeastWidth)
            .arg(GreatestWidth);
    options.size = size;
    return {};
}

QString ReadPage(const QString& value, tagDisplayOptions& options)
{
    if (FindPage(value) == nullptr && FindOverlay(value) == nullptr)
        return QString::fromLatin1("unknown page \"%1\"; expected %2")
            .arg(value, (PageNames() + OverlayNames()).join(QLatin1String(", ")));
    options.page = value;
    return {};
}

constexpr std::array Options = {
    tagOption{"--data", "DIR", "the data folder; by default that of the command-line tool",
              ReadText<&tagDisplayOptions::dataFolder>},
    tagOption{"--receiver", "ADDRESS", "simulator, a file, tcp://HOST:PORT, or serial:///DEVICE; it is kept",
              ReadText<&tagDisplayOptions::receiver>, true},
    tagOption{"--language", "NAME", "language of the texts, such as de; it is kept",
              ReadText<&tagDisplayOptions::language>, true},
    tagOption{"--size", "WxH", "size of the window in pixels, by default 1280x800", ReadSize},
    tagOption{"--full-screen", nullptr, "fills the screen", ReadFlag<&tagDisplayOptions::isFullScreen>},
    tagOption{"--page", "PAGE", "the page to begin with, or the only one to picture", ReadPage},
    tagOption{"--shot", "DIR",
              "writes pictures of all pages, and of what opens over them, on an example field, and ends",
              ReadText<&tagDisplayOptions::pictureFolder>},
    tagOption{"--night", nullptr, "with --shot: the colours of the night", ReadFlag<&tagDisplayOptions::isNight>},
    tagOption{"--bench", nullptr, "measures the frames, the load and the memory of the display, and ends",
              ReadFlag<&tagDisplayOptions::isBench>},
    tagOption{"--version", nullptr, "prints the version", ReadFlag<&tagDisplayOptions::wantsVersion>},
    tagOption{"--help", nullptr, "prints this text", ReadFlag<&tagDisplayOptions::wantsHelp>},
};

QString Left(const tagOption& option)
{
    const QString name = QLatin1String(option.name);
    return option.value == nullptr ? name : name + QLatin1Char(' ') + QLatin1String(option.value);
}

// A minus sign of its own: man would print a hyphen, which cannot be pasted.
QString Troff(QString text)
{
    return text.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('-'), QLatin1String("\\-"));
}

const tagOption* FindOption(const QString& argument)
{
    const QString name = argument.section(QLatin1Char('='), 0, 0);
    const auto* const option = std::find_if(Options.begin(), Options.end(),
                                            [&name](const tagOption& row) { return name == QLatin1String(row.name); });
    return option == Options.end() ? nullptr : &*option;
}

QString ReadOption(const QStringList& arguments, int& index, tagDisplayOptions& options)
{
    const QString& argument = arguments.at(index);
    const tagOption* const option = FindOption(argument);
    if (option == nullptr)
        return QString::fromLatin1("unknown option \"%1\"").arg(argument);
    const bool isJoined = argument.contains(QLatin1Char('='));
    if (option->value == nullptr && isJoined)
        return QString::fromLatin1("unexpected value in \"%1\"; expected %2")
            .arg(argument, QLatin1String(option->name));
    QString value = argument.section(QLatin1Char('='), 1);
    if (option->value != nullptr && !isJoined)
        value = arguments.value(++index);
    if (option->value != nullptr && value.isEmpty())
        return QString::fromLatin1("missing value; expected %1").arg(Left(*option));
    return option->read(value, options);
}

} // namespace

QString ReadDisplayOptions(const QStringList& arguments, tagDisplayOptions& options)
{
    options.dataFolder =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QLatin1String("/cabsettings");
    options.wantsManual = arguments == QStringList{QStringLiteral("--manual")};
    for (int index = 0; index < arguments.size() && !options.wantsManual; ++index) {
        QString problem = ReadOption(arguments, index, options);
        if (!problem.isEmpty())
            return problem;
    }
    if (options.isNight && options.pictureFolder.isEmpty())
        return QStringLiteral("--night needs --shot DIR");
    if (FindOverlay(options.page) != nullptr && options.pictureFolder.isEmpty())
        return QString::fromLatin1("--page %1 needs --shot DIR").arg(options.page);
    return {};
}

QStringList RestartArguments(const QStringList& arguments)
{
    QStringList kept;
    for (int index = 0; index < arguments.size(); ++index) {
        const QString& argument = arguments.at(index);
        const tagOption* const option = FindOption(argument);
        const bool hasNext = option != nullptr && option->value != nullptr && !argument.contains(QLatin1Char('='));
        const int count = hasNext ? 2 : 1;
        if (option == nullptr || !option->isStored)
            kept += arguments.mid(index, count);
        index += count - 1;
    }
    return kept;
}

QString DisplayHelp()
{
    QString text =
        QStringLiteral("Usage: cabdisplay [OPTION]...\n\n"
                       "The display of the cab: map, guidance, coverage, and every setting of the terminal.\n\n"
                       "Options:\n");
    int width = 0;
    for (const tagOption& option : Options)
        width = std::max(width, static_cast<int>(Left(option).size()));
    for (const tagOption& option : Options)
        text += QString::fromLatin1("  %1  %2\n").arg(Left(option), -width).arg(QLatin1String(option.meaning));
    text += QString::fromLatin1("\nPages: %1\n").arg(PageNames().join(QLatin1String(", ")));
    text += QString::fromLatin1("Pictures only: %1\n").arg(OverlayNames().join(QLatin1String(", ")));
    return text;
}

QString DisplayManual()
{
    QString text = QString::fromLatin1(".TH CABDISPLAY 1 \"\" \"cabsettings %1\"\n"
                                       ".SH NAME\ncabdisplay \\- display of a guidance terminal\n"
                                       ".SH SYNOPSIS\n.B cabdisplay\n[\\fIOPTION\\fR]...\n"
                                       ".SH DESCRIPTION\n%2\n.SH OPTIONS\n")
                       .arg(Troff(QLatin1String(CABSETTINGS_VERSION)), Troff(QLatin1String(Description)));
    for (const tagOption& option : Options)
        text += QString::fromLatin1(".TP\n.B %1\n%2\n").arg(Troff(Left(option)), Troff(QLatin1String(option.meaning)));
    text += QString::fromLatin1(".SH PAGES\n%1\n").arg(Troff(PageNames().join(QLatin1String(", "))));
    text += QString::fromLatin1(".PP\nPictures only: %1\n").arg(Troff(OverlayNames().join(QLatin1String(", "))));
    return text + QLatin1String(".SH SEE ALSO\n.BR cabsettings (1)\n");
}
