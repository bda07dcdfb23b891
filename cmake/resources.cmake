# resources: programs look for language packs, colour books and photometric webs in ../share/quor. Copied there, they are
# found from the build folder too. A file that is edited is copied again, one that is gone goes from there as well.
set(from ${PROJECT_SOURCE_DIR}/resources)
set(to ${CMAKE_BINARY_DIR}/share/quor)

set(copies "")
foreach(folder IN ITEMS lang colorbooks webs)
  file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE ${from} ${from}/${folder}/*)
  foreach(file IN LISTS files)
    add_custom_command(
      OUTPUT ${to}/${file}
      COMMAND ${CMAKE_COMMAND} -E copy ${from}/${file} ${to}/${file}
      DEPENDS ${from}/${file}
      COMMENT "Copying resources/${file}")
    list(APPEND copies ${to}/${file})
  endforeach()
endforeach()

file(GLOB_RECURSE stale ${to}/*)
list(REMOVE_ITEM stale ${copies})
if(stale)
  file(REMOVE ${stale})
endif()

add_custom_target(resources ALL DEPENDS ${copies})
