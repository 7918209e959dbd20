# Finds the parts of the chosen generation of Qt that the project needs; targets link Qt${CABSETTINGS_QT}::Core and so on.
if(CABSETTINGS_QT EQUAL 4)
    include(cmake/FindQt4Parts.cmake)
    return()
endif()

set(_components Core Gui)
if(CABSETTINGS_HOST)
    list(APPEND _components Sql Positioning Network SerialPort LinguistTools)
endif()
if(CABSETTINGS_TESTS)
    list(APPEND _components Test)
endif()
if(CABSETTINGS_QT EQUAL 6)
    list(APPEND _components Core5Compat) # QRegExp, which the host boundary speaks
endif()
find_package(Qt${CABSETTINGS_QT} REQUIRED COMPONENTS ${_components})
