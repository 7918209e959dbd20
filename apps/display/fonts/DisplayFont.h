#pragma once

#include <QString>
#include <QStringList>

/// The families of the display's texts in a language such as "de": the first draws what it can, then the second. All
/// are of packages that the display depends on, so that texts look alike everywhere. Adds the fonts to the program.
/// Needs a QGuiApplication; call it in its thread.
/// @param language empty when no language is set.
QStringList DisplayFamilies(const QString& language);

/// Makes them the font of the program: B612, which was drawn for cockpits, where it has the letters of the language.
/// Without that font, and for the other languages, DejaVu Sans Condensed takes its place. Needs a QGuiApplication; call
/// it before the first text.
void InstallDisplayFont(const QString& language = QString());
