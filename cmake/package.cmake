# What belongs to the program when it is given away, as `cmake --install` lays it out: the programs and the help
# pages side by side, since the program looks for both in its own folder, and the samples below.

set(programs LarkspurFiler LARKVIEW)
add_custom_target(programs DEPENDS ${programs})

# Built, they find the same in the build folder: whatever builds the program builds its viewer and copies the pages.
file(GLOB_RECURSE help_files CONFIGURE_DEPENDS help/*)
set(help_copied ${PROJECT_BINARY_DIR}/help_$<CONFIG>.copied)
add_custom_command(OUTPUT ${help_copied}
                   COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/help $<TARGET_FILE_DIR:LarkspurFiler>
                   COMMAND ${CMAKE_COMMAND} -E touch ${help_copied}
                   DEPENDS ${help_files}
                   COMMENT "Copying the help pages beside the programs"
                   VERBATIM)
add_custom_target(help_pages DEPENDS ${help_copied})
add_dependencies(LarkspurFiler LARKVIEW help_pages)

install(TARGETS ${programs} RUNTIME DESTINATION .)
install(DIRECTORY help/ DESTINATION .)
install(DIRECTORY samples DESTINATION .)
