# What every target of the project shares: warnings, sanitizers, the include root, and how sources are found.
# Sources are globbed, so that a new file needs no second edit.

add_library(quor_options INTERFACE)
target_include_directories(quor_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(quor_options INTERFACE -Wall -Wextra -Wpedantic -Werror)
if(QUOR_SANITIZE)
  target_compile_options(quor_options INTERFACE -fsanitize=${QUOR_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(quor_options INTERFACE -fsanitize=${QUOR_SANITIZE})
endif()
if(QUOR_FUZZ)
  # Coverage of the library and the module guides the fuzzers.
  target_compile_options(quor_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# quor_sources(OUT [FOLDER…]): every .cpp below the folders (default: the current one).
function(quor_sources out)
  set(folders "")
  foreach(folder IN LISTS ARGN)
    list(APPEND folders ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
  endforeach()
  if(NOT folders)
    set(folders ${CMAKE_CURRENT_SOURCE_DIR})
  endif()
  set(found "")
  foreach(folder IN LISTS folders)
    file(GLOB_RECURSE here CONFIGURE_DEPENDS ${folder}/*.cpp)
    list(APPEND found ${here})
  endforeach()
  set(${out} ${found} PARENT_SCOPE)
endfunction()
