# What every target of the project is built with. Targets link CabSettings::BuildSettings privately.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_INSTALL_RPATH "$ORIGIN:$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

# What only the project itself decides, not another one that adds it as a folder.
if(PROJECT_IS_TOP_LEVEL)
    if(NOT CMAKE_BUILD_TYPE)
        set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Kind of build" FORCE)
    endif()
    if(NOT DEFINED CMAKE_COMPILE_WARNING_AS_ERROR)
        set(CMAKE_COMPILE_WARNING_AS_ERROR ON)
    endif()
    include(cmake/CompilerCache.cmake)
endif()
include(cmake/PrecompiledHeaders.cmake)

add_library(BuildSettings INTERFACE)
add_library(CabSettings::BuildSettings ALIAS BuildSettings)
target_compile_options(BuildSettings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Wnon-virtual-dtor
    -Woverloaded-virtual -Wcast-qual -Wformat=2 -Wundef)
# What GCC finds by following calls into inline functions of Qt depends on the optimisation, and it is nothing that the
# caller could mend: never an error. CI fails by any warning.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    set(_found_by_flow array-bounds free-nonheap-object maybe-uninitialized nonnull restrict strict-aliasing
        stringop-overflow uninitialized)
    if(CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12)
        list(APPEND _found_by_flow dangling-pointer stringop-overread use-after-free)
    endif()
    list(TRANSFORM _found_by_flow PREPEND -Wno-error=)
    target_compile_options(BuildSettings INTERFACE ${_found_by_flow})
else()
    # QSKIP with its reason alone is what Qt 5 documents, and Clang takes it for an extension.
    target_compile_options(BuildSettings INTERFACE -Wno-gnu-zero-variadic-macro-arguments)
endif()
# Drives and files beyond 2 GiB, and times beyond 2038, on 32-bit displays; no silent narrowing of C strings to QString.
target_compile_definitions(BuildSettings INTERFACE _FILE_OFFSET_BITS=64 _TIME_BITS=64 QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)

if(CABSETTINGS_SANITIZE)
    target_compile_options(BuildSettings INTERFACE
        -fsanitize=${CABSETTINGS_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(BuildSettings INTERFACE -fsanitize=${CABSETTINGS_SANITIZE})
    if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        # GCC defines this itself: a test allows for the memory and the time that the sanitizer takes.
        if(CABSETTINGS_SANITIZE MATCHES "address")
            target_compile_definitions(BuildSettings INTERFACE __SANITIZE_ADDRESS__)
        endif()
        # An empty list of Qt 6 is copied by memcpy(to, nullptr, 0), in a header of Qt.
        if(CABSETTINGS_QT EQUAL 6)
            target_compile_options(BuildSettings INTERFACE -fno-sanitize=nonnull-attribute)
        endif()
    endif()
endif()

# The thread sanitizer learns from these what Qt's locks and threads do, which are built without it.
if(CABSETTINGS_SANITIZE STREQUAL "thread")
    add_library(ThreadAnnotations OBJECT ${PROJECT_SOURCE_DIR}/tests/threads/ThreadAnnotations.cpp)
    target_link_libraries(ThreadAnnotations PRIVATE Qt${CABSETTINGS_QT}::Core BuildSettings)
    target_sources(BuildSettings INTERFACE
        $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:$<TARGET_OBJECTS:ThreadAnnotations>>)
endif()
