#pragma once

#include <QString>
#include <QStringList>

/// The families of the display's texts in a language such as "de": the first draws what it can, then the second. All
/// are of packages that the display depends on, so that texts look alike everywhere. Adds the fonts to the program.
/// @param language empty for that of an operator who has chosen none.
QStringList DisplayFamilies(const QString& language);

/// Makes them the font of the program: B612, which was drawn for cockpits, where it has the letters of the language.
/// Without that font, and for the other languages, DejaVu Sans Condensed takes its place.
void InstallDisplayFont(const QString& language = QString());
