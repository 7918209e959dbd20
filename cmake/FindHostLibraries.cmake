# Finds what the ready host needs beside Qt: a JSON reader that knows the line of a value, archives,
# the sun, and shapefiles.
find_package(jsoncpp REQUIRED)
find_package(LibArchive REQUIRED)

find_path(LIBNOVA_INCLUDE_DIR libnova/libnova.h REQUIRED)
find_library(LIBNOVA_LIBRARY nova REQUIRED)
add_library(LibNova::LibNova UNKNOWN IMPORTED)
set_target_properties(LibNova::LibNova PROPERTIES
    IMPORTED_LOCATION ${LIBNOVA_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${LIBNOVA_INCLUDE_DIR})

find_path(SHAPELIB_INCLUDE_DIR shapefil.h REQUIRED)
find_library(SHAPELIB_LIBRARY shp REQUIRED)
add_library(ShapeLib::ShapeLib UNKNOWN IMPORTED)
set_target_properties(ShapeLib::ShapeLib PROPERTIES
    IMPORTED_LOCATION ${SHAPELIB_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${SHAPELIB_INCLUDE_DIR})
