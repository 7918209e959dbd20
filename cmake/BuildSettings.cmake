# What every target of the project is built with. Targets link CabSettings::BuildSettings privately.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_INSTALL_RPATH "$ORIGIN:$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Kind of build" FORCE)
endif()

add_library(BuildSettings INTERFACE)
add_library(CabSettings::BuildSettings ALIAS BuildSettings)
target_compile_options(BuildSettings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Wnon-virtual-dtor
    -Woverloaded-virtual -Wcast-qual -Wformat=2 -Wundef -Werror)
# Drives and files beyond 2 GiB, and times beyond 2038, on 32-bit displays; no silent narrowing of C strings to QString.
target_compile_definitions(BuildSettings INTERFACE _FILE_OFFSET_BITS=64 _TIME_BITS=64 QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)

if(CABSETTINGS_SANITIZE)
    target_compile_options(BuildSettings INTERFACE
        -fsanitize=${CABSETTINGS_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(BuildSettings INTERFACE -fsanitize=${CABSETTINGS_SANITIZE})
endif()

# The thread sanitizer learns from these what Qt's locks and threads do, which are built without it.
if(CABSETTINGS_SANITIZE STREQUAL "thread")
    add_library(ThreadAnnotations OBJECT ${PROJECT_SOURCE_DIR}/tests/threads/ThreadAnnotations.cpp)
    target_link_libraries(ThreadAnnotations PRIVATE Qt${CABSETTINGS_QT}::Core BuildSettings)
    target_sources(BuildSettings INTERFACE
        $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:$<TARGET_OBJECTS:ThreadAnnotations>>)
endif()
