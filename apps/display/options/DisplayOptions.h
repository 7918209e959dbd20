#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

/// What the command line of the display asks for.
struct tagDisplayOptions
{
    QString dataFolder; ///< by default the one of the command-line tool
    QString receiver;   ///< address; empty: as stored
    QString language;   ///< as region.language takes it; empty: as stored
    QSize size = QSize(1280, 800);
    bool isFullScreen = false;
    QString pictureFolder; ///< empty: no pictures
    QString page;          ///< the only one to be shown or pictured; empty: the first one, or all pictures; an overlay
                           ///< with pictures only
    bool isNight = false;
    bool isBench = false;
    bool wantsHelp = false;
    bool wantsVersion = false;
    bool wantsManual = false; ///< the text of the manual page, for the build
};

/// Reads the arguments behind the program's name. Returns what is wrong and what is expected, or an empty text.
///
/// @code
/// tagDisplayOptions options;
/// const QString problem = ReadDisplayOptions(arguments, options);
/// @endcode
QString ReadDisplayOptions(const QStringList& arguments, tagDisplayOptions& options);

/// The arguments with which the display starts itself again: without those that it has stored, which the operator may
/// have changed since.
QStringList RestartArguments(const QStringList& arguments);

/// The text of --help.
QString DisplayHelp();

/// The manual page, as man reads it.
QString DisplayManual();
