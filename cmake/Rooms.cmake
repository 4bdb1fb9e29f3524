# One static library a room, made of the sources that lie in the room's folder; richtext/rtf makes richtext_rtf.

# What everything is compiled with that is ours.
add_library(thornquill_warnings INTERFACE)
target_compile_options(thornquill_warnings INTERFACE -Wall -Wextra -Wshadow -Wnon-virtual-dtor
                                                     -Woverloaded-virtual -Wconversion -Wsign-conversion)
if(THORNQUILL_WARNINGS_AS_ERRORS)
  target_compile_options(thornquill_warnings INTERFACE -Werror)
endif()

# And every room; thornquill_options adds the toolkit.
add_library(thornquill_standard INTERFACE)
target_link_libraries(thornquill_standard INTERFACE thornquill_warnings)
if(THORNQUILL_SANITIZE)
  set(sanitizers ${THORNQUILL_SANITIZE})
  if(sanitizers STREQUAL ON)
    set(sanitizers address,undefined)
  endif()
  target_compile_options(thornquill_standard INTERFACE -fsanitize=${sanitizers}
                                                      -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(thornquill_standard INTERFACE -fsanitize=${sanitizers})
endif()
if(THORNQUILL_FUZZ)
  # -O1 keeps the branches that the fuzzer counts apart.
  target_compile_options(thornquill_standard INTERFACE -O1 -g1 -fsanitize=fuzzer-no-link -D_GLIBCXX_ASSERTIONS)
endif()
target_include_directories(thornquill_standard INTERFACE ${CMAKE_SOURCE_DIR})
add_library(thornquill_options INTERFACE)
target_compile_definitions(thornquill_options INTERFACE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII)
target_link_libraries(thornquill_options INTERFACE thornquill_standard Qt6::Widgets)

# The toolkit's headers are compiled once and shared by every room.
file(WRITE ${CMAKE_BINARY_DIR}/toolkit.cpp "")
add_library(toolkit STATIC ${CMAKE_BINARY_DIR}/toolkit.cpp)
target_link_libraries(toolkit PUBLIC thornquill_options)
target_precompile_headers(toolkit PRIVATE <QtWidgets/QtWidgets> <functional> <optional> <string> <string_view>
                          <vector>)

# And the library's own, for rooms that do without the toolkit.
file(WRITE ${CMAKE_BINARY_DIR}/standard.cpp "")
add_library(standard STATIC ${CMAKE_BINARY_DIR}/standard.cpp)
target_link_libraries(standard PUBLIC thornquill_standard)
target_precompile_headers(standard PRIVATE <algorithm> <functional> <map> <optional> <string> <string_view>
                          <unordered_map> <utility> <vector>)

# Every build fails where a source looks up; without Python the tests alone do.
find_package(Python3 COMPONENTS Interpreter)
if(Python3_FOUND)
  add_custom_target(check_rooms ALL COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_SOURCE_DIR}/scripts/check-rooms)
endif()

# LINKS names the rooms that stand right under this one, by their folders, and libraries of others. A STANDARD room knows the
# standard library alone: the toolkit's headers are not to be found from it.
function(thornquill_room folder)
  cmake_parse_arguments(ROOM "STANDARD" "" "LINKS;EXCEPT" ${ARGN})
  string(REPLACE / _ name ${folder})
  string(REPLACE / _ links "${ROOM_LINKS}")
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*.cpp ${CMAKE_SOURCE_DIR}/${folder}/*.h)
  foreach(left_out IN LISTS ROOM_EXCEPT)
    list(REMOVE_ITEM sources ${CMAKE_SOURCE_DIR}/${folder}/${left_out})
  endforeach()
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  if(TARGET check_rooms)
    add_dependencies(${name} check_rooms)
  endif()
  if(ROOM_STANDARD)
    target_link_libraries(${name} PUBLIC thornquill_standard ${links})
    target_precompile_headers(${name} REUSE_FROM standard)
    return()
  endif()
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(${name} PUBLIC thornquill_options ${links})
  target_precompile_headers(${name} REUSE_FROM toolkit)
  file(GLOB resources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*.qrc)
  if(resources)
    target_sources(${name} PRIVATE ${resources})
    set_target_properties(${name} PROPERTIES AUTORCC ON)
  endif()
endfunction()
