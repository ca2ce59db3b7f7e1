# What belongs to the program when it is given away, as `cmake --install` lays it out: the programs and the help
# pages side by side, since the program looks for both in its own folder, and the samples below.

set(programs LarkspurFiler LARKVIEW)
add_custom_target(programs DEPENDS ${programs})

install(TARGETS ${programs} RUNTIME DESTINATION .)
install(DIRECTORY help/ DESTINATION .)
install(DIRECTORY samples DESTINATION .)
