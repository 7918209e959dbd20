# Where ccache is installed, nothing is compiled twice. Another launcher, or none, is the user's choice:
# -DCMAKE_CXX_COMPILER_LAUNCHER=
if(NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    find_program(CABSETTINGS_CCACHE ccache)
    mark_as_advanced(CABSETTINGS_CCACHE)
    if(CABSETTINGS_CCACHE)
        set(CMAKE_CXX_COMPILER_LAUNCHER ${CABSETTINGS_CCACHE})
    endif()
endif()
