# The compiler's warnings and the sanitizers, as targets that every target of the project links
# privately: a project that takes Orrivane in as a subfolder keeps its own flags.

include_guard(GLOBAL)

option(ORRIVANE_WERROR "Treat warnings as errors" OFF)
option(ORRIVANE_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)

add_library(orrivane_warnings INTERFACE)
target_compile_options(orrivane_warnings INTERFACE -Wall -Wextra $<$<BOOL:${ORRIVANE_WERROR}>:-Werror>)

add_library(orrivane_sanitizers INTERFACE)
if(ORRIVANE_SANITIZE)
  target_compile_options(orrivane_sanitizers INTERFACE
    -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  target_link_options(orrivane_sanitizers INTERFACE -fsanitize=address,undefined)
endif()

# orrivane_use_build_flags(<target>...): the warnings and the sanitizers for each target.
function(orrivane_use_build_flags)
  foreach(target IN LISTS ARGN)
    target_link_libraries(${target} PRIVATE orrivane_warnings orrivane_sanitizers)
  endforeach()
endfunction()
