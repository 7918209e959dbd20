#pragma once

/// Makes `import CabDisplay 1.0` work in every QML engine of the program: the types that only this display has. Call it
/// after CabQuick::Publish() and before the first engine.
void RegisterDisplayTypes();
