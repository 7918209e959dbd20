#pragma once

/// Makes B612 the font of the program's texts: its digits have one width, so that figures do not jump. Without it,
/// Noto Sans is the font, whose digits have one width too; it also has what B612 lacks. Needs a QGuiApplication. Call
/// it before the first text.
void InstallDisplayFont();
