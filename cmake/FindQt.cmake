# Finds the chosen generation of Qt and gives its parts one name each: CabQt::Core, CabQt::Gui, ...
set(_components Core Gui)
if(CABSETTINGS_HOST)
    list(APPEND _components Sql Positioning)
endif()
if(CABSETTINGS_TESTS)
    list(APPEND _components Test)
endif()
if(CABSETTINGS_QT EQUAL 6)
    list(APPEND _components Core5Compat) # QRegExp, which the host boundary speaks
endif()
find_package(Qt${CABSETTINGS_QT} REQUIRED COMPONENTS ${_components})

foreach(_component IN LISTS _components)
    add_library(CabQt::${_component} INTERFACE IMPORTED)
    target_link_libraries(CabQt::${_component} INTERFACE Qt${CABSETTINGS_QT}::${_component})
endforeach()
