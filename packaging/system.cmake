# What the system layout has beyond the files of both layouts: launcher, desktop entry and its data, icons,
# manual page, Debian's documents.

install(PROGRAMS quorin-converter DESTINATION bin ${component_of_system})
install(FILES desktop/quorin-converter.desktop DESTINATION share/applications ${component_of_system})
install(FILES desktop/example.velmora.quorinconverter.metainfo.xml DESTINATION share/metainfo ${component_of_system})
install(FILES debian/copyright DESTINATION share/doc/quorin-converter ${component_of_system})
install(FILES debian/lintian-overrides DESTINATION share/lintian/overrides RENAME quorin-converter
    ${component_of_system})

set(made_files)
set(made_folder ${CMAKE_CURRENT_BINARY_DIR}/system)
file(MAKE_DIRECTORY ${made_folder})

# Icons: the drawing, and pictures of it in the sizes that desktops ask for.
set(logo ${CMAKE_SOURCE_DIR}/resources/icons/svg/logo.svg)
install(FILES ${logo} DESTINATION share/icons/hicolor/scalable/apps RENAME quorin-converter.svg ${component_of_system})
find_program(RSVG_CONVERT rsvg-convert)
if(RSVG_CONVERT)
    foreach(size 16 22 24 32 48 64 128 256 512)
        set(icon ${made_folder}/icon-${size}.png)
        add_custom_command(OUTPUT ${icon}
            COMMAND ${RSVG_CONVERT} --width=${size} --height=${size} --output=${icon} ${logo}
            DEPENDS ${logo} VERBATIM)
        list(APPEND made_files ${icon})
        install(FILES ${icon} DESTINATION share/icons/hicolor/${size}x${size}/apps
            RENAME quorin-converter.png ${component_of_system})
    endforeach()
else()
    install(CODE "message(FATAL_ERROR \"The icons are missing: install rsvg-convert and configure anew\")"
        ${component_of_system})
endif()

# Manual page and changelog, compressed without a time inside, so that the same sources make the same bytes.
find_program(GZIP gzip REQUIRED)
foreach(document changelog quorin-converter.1)
    set(source ${CMAKE_CURRENT_SOURCE_DIR}/debian/${document})
    set(compressed ${made_folder}/${document}.gz)
    add_custom_command(OUTPUT ${compressed}
        COMMAND ${GZIP} -9nc ${source} > ${compressed}
        DEPENDS ${source} VERBATIM)
    list(APPEND made_files ${compressed})
endforeach()
install(FILES ${made_folder}/changelog.gz DESTINATION share/doc/quorin-converter ${component_of_system})
install(FILES ${made_folder}/quorin-converter.1.gz DESTINATION share/man/man1 ${component_of_system})

# "packaging" builds all that is installed, and an installation asks for nothing else: the tests of a
# release build take longer than the program.
add_custom_target(packaging ALL DEPENDS ${made_files})
add_dependencies(packaging quorinConverter translations)
if(TARGET help_file)
    add_dependencies(packaging help_file)
endif()

# What the program reads comes from other people's files: nothing in it is writable once it runs.
if(NOT APPLE)
    target_link_options(quorinConverter PRIVATE LINKER:-z,relro,-z,now)
endif()
