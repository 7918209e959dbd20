/// Qt's offscreen platform does not end what it makes at its start. The leak sanitizer reads this function.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() { return "leak:libqoffscreen"; }
