# Qt 4.8 has no package of its own: CMake finds it by its qmake, under other names.
if(CABSETTINGS_HOST)
    message(FATAL_ERROR
        "The ready host and the programs on it need Qt 5 or 6: with CABSETTINGS_QT=4 only the library and its tests "
        "are built. Configure with -DCABSETTINGS_HOST=OFF.")
endif()

set(_parts Core Gui)
if(CABSETTINGS_TESTS)
    list(APPEND _parts Test)
endif()
list(TRANSFORM _parts PREPEND Qt OUTPUT_VARIABLE _modules)
find_package(Qt4 4.8 COMPONENTS ${_modules})
if(NOT Qt4_FOUND)
    message(FATAL_ERROR "Qt 4.8 was not found. Name its qmake: -DQT_QMAKE_EXECUTABLE=/folder/of/qt4/bin/qmake")
endif()
foreach(_part IN LISTS _parts)
    add_library(Qt4::${_part} ALIAS Qt4::Qt${_part})
endforeach()
