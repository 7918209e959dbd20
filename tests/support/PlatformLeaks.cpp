/// Qt's offscreen platform does not end what it makes at its start, and keeps alive with it what the scene graph has
/// drawn for the last windows. The leak sanitizer reads this function; what this project allocates itself is still
/// looked at.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libqoffscreen\n"
           "leak:libQt5Gui\n"
           "leak:libQt6Gui\n"
           "leak:libQt5Quick\n"
           "leak:libQt6Quick\n";
}
