# What a program elsewhere finds with find_package(CabSettings [COMPONENTS Host|Quick]), or with pkg-config as
# cabsettings, cabhost and cabquick. Nothing that is installed knows where it lies: a prefix can be moved.
include(CMakePackageConfigHelpers)

set(_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/CabSettings)
set(_pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}/${_pkgconfig_dir}
    OUTPUT_VARIABLE _pkgconfig_to_prefix)

# The parts of each generation of Qt that the headers include, by the names of find_package() and of pkg-config.
set(_components_of_qt4 QtCore QtGui)
set(_components_of_qt5 Core Gui)
set(_components_of_qt6 Core Gui Core5Compat)
set(_packages_of_qt4 QtCore QtGui)
set(_packages_of_qt5 Qt5Core Qt5Gui)
set(_packages_of_qt6 Qt6Core Qt6Gui Qt6Core5Compat)
list(JOIN _components_of_qt${CABSETTINGS_QT} " " _qt_components)
list(JOIN _packages_of_qt${CABSETTINGS_QT} " " _qt_packages)

# cabsettings_install(target folder exports): a library, its headers below include/folder, and what finds it.
function(cabsettings_install target folder exports)
    install(TARGETS ${target} EXPORT ${exports}
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder})
    install(EXPORT ${exports} NAMESPACE CabSettings:: DESTINATION ${_package_dir})
    configure_file(cmake/${folder}.pc.in ${folder}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${folder}.pc DESTINATION ${_pkgconfig_dir})
endfunction()

cabsettings_install(CabSettings cabsettings CabSettingsTargets)
if(CABSETTINGS_HOST)
    cabsettings_install(CabHost cabhost CabSettingsHostTargets)
    install(TARGETS cabsettings-console)
    install(FILES apps/console/completion.bash RENAME cabsettings
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
    # The program's own; a build for another machine without an emulator has none.
    install(FILES ${PROJECT_BINARY_DIR}/apps/console/cabsettings.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 OPTIONAL)
endif()
if(CABSETTINGS_HOST AND CABSETTINGS_DISPLAY)
    cabsettings_install(CabQuick cabquick CabSettingsQuickTargets)
    set(_qml_dir ${CMAKE_INSTALL_LIBDIR}/qt${CABSETTINGS_QT}/qml/CabSettings) # where Debian's Qt looks for modules
    install(TARGETS CabQuickPlugin LIBRARY DESTINATION ${_qml_dir})
    install(FILES quick/plugin/qmldir DESTINATION ${_qml_dir})
    install(TARGETS cabdisplay)
    install(FILES apps/display/install/cabdisplay.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
    install(FILES apps/display/install/cabdisplay.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
    install(FILES ${PROJECT_BINARY_DIR}/apps/display/cabdisplay.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 OPTIONAL)
endif()

configure_package_config_file(cmake/CabSettingsConfig.cmake.in CabSettingsConfig.cmake
    INSTALL_DESTINATION ${_package_dir})
write_basic_package_version_file(CabSettingsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/CabSettingsConfig.cmake
    ${PROJECT_BINARY_DIR}/CabSettingsConfigVersion.cmake
    DESTINATION ${_package_dir})
