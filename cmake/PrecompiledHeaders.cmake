# Most of the time in which a source is compiled goes into reading the headers of Qt and of the standard library. The parts
# of the project read them once each. A source still includes what it uses: packages are built without.
option(CABSETTINGS_PRECOMPILED_HEADERS "Read the headers of Qt once for each part" ${PROJECT_IS_TOP_LEVEL})

# ccache needs to be told that it may keep what is compiled with a precompiled header: nothing that is compiled so uses
# __DATE__ or __TIME__, and the header is newer than the sources. GCC has to leave a note of the header in what it
# preprocesses, and Clang must not ask how old the header is. The header has up to 180 MB: ccache reads it once, and not
# again for each source.
set(CABSETTINGS_PRECOMPILED_LAUNCHER ${CMAKE_CXX_COMPILER_LAUNCHER})
set(CABSETTINGS_PRECOMPILED_OPTIONS)
if(CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache")
    list(PREPEND CABSETTINGS_PRECOMPILED_LAUNCHER env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_ctime,include_file_mtime CCACHE_INODECACHE=1)
    set(CABSETTINGS_PRECOMPILED_OPTIONS
        $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>
        "$<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>")
endif()

# cabsettings_precompile(target header...): with what most sources of the target include, and with these headers.
function(cabsettings_precompile target)
    if(NOT CABSETTINGS_PRECOMPILED_HEADERS)
        return()
    endif()
    target_precompile_headers(${target} PRIVATE
        <QByteArray> <QCoreApplication> <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QMap> <QString> <QStringList>
        <QVariant> <QVector> <algorithm> <functional> <map> <memory> <optional> <vector>
        ${ARGN})
    target_compile_options(${target} PRIVATE ${CABSETTINGS_PRECOMPILED_OPTIONS})
    set_property(TARGET ${target} PROPERTY CXX_COMPILER_LAUNCHER ${CABSETTINGS_PRECOMPILED_LAUNCHER})
endfunction()
