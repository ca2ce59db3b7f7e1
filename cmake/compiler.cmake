# What every target is compiled with. `warnings` is for the code of this repository only; `instrumentation`
# must be the same for everything that is linked together.

add_library(warnings INTERFACE)
add_library(instrumentation INTERFACE)

# The options name their language, since resources are compiled by a compiler of their own.
if(MSVC)
  target_compile_options(warnings INTERFACE $<$<COMPILE_LANGUAGE:CXX>:/W4;/WX>)
  add_compile_options($<$<COMPILE_LANGUAGE:CXX>:/permissive->
                      $<$<COMPILE_LANGUAGE:CXX>:/utf-8>
                      $<$<COMPILE_LANGUAGE:CXX>:/EHsc>)
  add_compile_definitions(_CRT_SECURE_NO_WARNINGS)
else()
  target_compile_options(warnings INTERFACE
                         $<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Wconversion;-Wshadow;-Werror>)
endif()

if(WIN32)
  # Windows 10 and 11.
  add_compile_definitions(WINVER=0x0A00 _WIN32_WINNT=0x0A00 NOMINMAX WIN32_LEAN_AND_MEAN UNICODE _UNICODE)
endif()
if(MINGW)
  # The compiler's own libraries go into the program; nothing has to be installed with it.
  target_link_options(instrumentation INTERFACE -static $<$<CONFIG:Release>:-s>)
endif()

if(FILER_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_options(instrumentation INTERFACE ${sanitizers})
  target_compile_definitions(instrumentation INTERFACE _GLIBCXX_ASSERTIONS)
  target_link_options(instrumentation INTERFACE ${sanitizers})
endif()
if(FILER_FUZZERS)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "The fuzzers need clang: cmake --preset fuzz")
  endif()
  target_compile_options(instrumentation INTERFACE -fsanitize=fuzzer-no-link)
endif()
