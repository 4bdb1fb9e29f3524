# One static library a room, made of the sources that lie in the room's folder.

add_library(thornquill_options INTERFACE)
target_compile_options(thornquill_options INTERFACE -Wall -Wextra -Wshadow -Wnon-virtual-dtor
                                                    -Woverloaded-virtual -Wconversion -Wsign-conversion)
if(THORNQUILL_WARNINGS_AS_ERRORS)
  target_compile_options(thornquill_options INTERFACE -Werror)
endif()
if(THORNQUILL_SANITIZE)
  set(sanitizers ${THORNQUILL_SANITIZE})
  if(sanitizers STREQUAL ON)
    set(sanitizers address,undefined)
  endif()
  target_compile_options(thornquill_options INTERFACE -fsanitize=${sanitizers}
                                                      -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(thornquill_options INTERFACE -fsanitize=${sanitizers})
endif()
if(THORNQUILL_FUZZ)
  # -O1 keeps the branches that the fuzzer counts apart.
  target_compile_options(thornquill_options INTERFACE -O1 -g1 -fsanitize=fuzzer-no-link -D_GLIBCXX_ASSERTIONS)
endif()
target_include_directories(thornquill_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_definitions(thornquill_options INTERFACE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII)
target_link_libraries(thornquill_options INTERFACE Qt6::Widgets)

# The toolkit's headers are compiled once and shared by every room.
file(WRITE ${CMAKE_BINARY_DIR}/toolkit.cpp "")
add_library(toolkit STATIC ${CMAKE_BINARY_DIR}/toolkit.cpp)
target_link_libraries(toolkit PUBLIC thornquill_options)
target_precompile_headers(toolkit PRIVATE <QtWidgets/QtWidgets> <functional> <optional> <string> <string_view>
                          <vector>)

function(thornquill_room name)
  cmake_parse_arguments(ROOM "" "" "LINKS;EXCEPT" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${name}/*.cpp ${CMAKE_SOURCE_DIR}/${name}/*.h)
  foreach(left_out IN LISTS ROOM_EXCEPT)
    list(REMOVE_ITEM sources ${CMAKE_SOURCE_DIR}/${name}/${left_out})
  endforeach()
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES AUTOMOC ON LINKER_LANGUAGE CXX)
  target_link_libraries(${name} PUBLIC thornquill_options ${ROOM_LINKS})
  target_precompile_headers(${name} REUSE_FROM toolkit)
  file(GLOB resources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${name}/*.qrc)
  if(resources)
    target_sources(${name} PRIVATE ${resources})
    set_target_properties(${name} PROPERTIES AUTORCC ON)
  endif()
endfunction()
