# What a program elsewhere finds with find_package(CabSettings [COMPONENTS Host]).
include(CMakePackageConfigHelpers)

set(_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/CabSettings)

install(TARGETS CabSettings EXPORT CabSettingsTargets
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/cabsettings)
install(EXPORT CabSettingsTargets NAMESPACE CabSettings:: DESTINATION ${_package_dir})

if(CABSETTINGS_HOST)
    install(TARGETS CabHost EXPORT CabSettingsHostTargets
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/cabhost)
    install(EXPORT CabSettingsHostTargets NAMESPACE CabSettings:: DESTINATION ${_package_dir})
    install(TARGETS cabsettings-console)
endif()

configure_package_config_file(cmake/CabSettingsConfig.cmake.in CabSettingsConfig.cmake
    INSTALL_DESTINATION ${_package_dir})
write_basic_package_version_file(CabSettingsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    ${CMAKE_CURRENT_BINARY_DIR}/CabSettingsConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/CabSettingsConfigVersion.cmake
    DESTINATION ${_package_dir})
