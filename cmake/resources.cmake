# Windows resources: dialog templates, the manifest, the icons and the version.

set(packaging_dir ${PROJECT_SOURCE_DIR}/packaging)

# Compiles templates into the target, or into every executable that links it when it is a library.
function(add_templates target)
  file(GLOB ids CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/resource.h ${PROJECT_SOURCE_DIR}/src/*/*_ids.h)
  set_source_files_properties(${ARGN} TARGET_DIRECTORY ${target} PROPERTIES OBJECT_DEPENDS "${ids}")
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "EXECUTABLE")
    target_sources(${target} PRIVATE ${ARGN})
    return()
  endif()
  list(TRANSFORM ARGN PREPEND ${PROJECT_SOURCE_DIR}/ REGEX "^[^/]" OUTPUT_VARIABLE templates)
  foreach(template IN LISTS templates)
    target_sources(${target} INTERFACE $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:${template}>)
  endforeach()
endfunction()

# Gives the program the manifest: without it the common controls are those of twenty years ago.
function(add_manifest target)
  if(MSVC)
    # The linker merges it into the manifest it writes itself.
    target_sources(${target} PRIVATE ${packaging_dir}/larkspur.manifest)
    target_link_options(${target} PRIVATE /MANIFESTUAC:NO)
  else()
    target_sources(${target} PRIVATE ${packaging_dir}/manifest.rc)
    target_include_directories(${target} PRIVATE ${packaging_dir})
    set_source_files_properties(${packaging_dir}/manifest.rc TARGET_DIRECTORY ${target}
                                PROPERTIES OBJECT_DEPENDS ${packaging_dir}/larkspur.manifest)
  endif()
endfunction()

# Gives the program its icons and the version of the project.
function(add_program_resources target description icons)
  configure_file(${packaging_dir}/version.rc.in ${PROJECT_BINARY_DIR}/${target}_version.rc @ONLY)
  target_sources(${target} PRIVATE ${packaging_dir}/${icons} ${PROJECT_BINARY_DIR}/${target}_version.rc)
  target_include_directories(${target} PRIVATE ${packaging_dir})
  file(GLOB pictures CONFIGURE_DEPENDS ${packaging_dir}/*.ico)
  set_source_files_properties(${packaging_dir}/${icons} TARGET_DIRECTORY ${target}
                              PROPERTIES OBJECT_DEPENDS "${pictures};${PROJECT_SOURCE_DIR}/src/resource.h")
endfunction()
