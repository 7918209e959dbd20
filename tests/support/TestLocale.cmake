# Read by ctest. Tests run in one locale wherever they run; CABSETTINGS_TEST_LOCALE=fa_IR.UTF-8 in the environment chooses
# another one. Qt takes its names as they are, whether or not the system has such a locale.
set(ENV{LC_ALL} C.UTF-8)
if(NOT "$ENV{CABSETTINGS_TEST_LOCALE}" STREQUAL "")
    set(ENV{LC_ALL} $ENV{CABSETTINGS_TEST_LOCALE})
endif()
