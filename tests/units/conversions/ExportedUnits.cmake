# A host that was linked against an older library looks for its functions by name: none may vanish or change its
# arguments, and a new one is written down so that it cannot vanish either.
#
# cmake -D NM=nm -D LIBRARY=libcabsettings.so -D NAMES=exported-units.txt -P ExportedUnits.cmake

execute_process(COMMAND ${NM} --dynamic --demangle --defined-only ${LIBRARY}
    OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" symbols "${symbols}")
set(exported "")
foreach(symbol IN LISTS symbols)
    string(REGEX REPLACE "^[0-9a-f]+ [A-Za-z] " "" name "${symbol}")
    if(name MATCHES "^(TUnits::|TUnitAbbreviations::|(SEED|GRANULAR|NH3|KESTA_SPRAYER|LIQUID)_UNITS$)"
       AND NOT name MATCHES "etaObject|::qt_|::tr(Utf8)?\\(|::~?TUnitAbbreviations\\(") # Qt's own, by generation
        list(APPEND exported "${name}")
    endif()
endforeach()

file(STRINGS ${NAMES} expected)
set(missing ${expected})
list(REMOVE_ITEM missing ${exported})
set(unlisted ${exported})
list(REMOVE_ITEM unlisted ${expected})
list(LENGTH expected count)
if(count LESS 100 OR missing OR unlisted)
    list(JOIN missing "\n  " missing)
    list(JOIN unlisted "\n  " unlisted)
    message(FATAL_ERROR "of ${count} names in ${NAMES}\nnot exported:\n  ${missing}\nexported but not listed:\n  ${unlisted}")
endif()
