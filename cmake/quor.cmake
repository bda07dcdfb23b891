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

# quor_embed(OUT FILE NAMESPACE HEADER FUNCTION): adds a source to the list OUT in which FUNCTION, declared in HEADER as
# std::string_view FUNCTION(), answers the bytes of FILE (a path in the project).
function(quor_embed out file namespace header function)
  set(script ${PROJECT_SOURCE_DIR}/cmake/embed.cmake)
  set(source ${CMAKE_CURRENT_BINARY_DIR}/embedded/${function}.cpp)
  add_custom_command(
    OUTPUT ${source}
    COMMAND ${CMAKE_COMMAND} -DIN=${PROJECT_SOURCE_DIR}/${file} -DOUT=${source} -DNAME=${file} -DNAMESPACE=${namespace}
            -DHEADER=${header} -DFUNCTION=${function} -P ${script}
    DEPENDS ${PROJECT_SOURCE_DIR}/${file} ${script}
    COMMENT "Embedding ${file}")
  set(${out} ${${out}} ${source} PARENT_SCOPE)
endfunction()
