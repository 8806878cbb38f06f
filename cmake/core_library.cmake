# The core as a static library, which a release's programs are optimised with as a whole while they are linked: the hot
# path crosses many files. What is for tests is in NAME_OBJECTS: in a release one object file, optimised as a whole
# likewise, but once for all of them, so that linking takes seconds.
function(add_core_library name)
  add_library(${name} STATIC ${CORE_SOURCES})
  compile_by_folders(${name} 6 ${CORE_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC Threads::Threads ${CMAKE_DL_LIBS})
  set(objects $<TARGET_OBJECTS:${name}>)
  if(TESSARYN_IPO)
    set_target_properties(${name} PROPERTIES INTERPROCEDURAL_OPTIMIZATION ON)
  endif()
  if(TESSARYN_IPO AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    set(together ${CMAKE_CURRENT_BINARY_DIR}/${name}_together.o)
    add_custom_command(OUTPUT ${together}
      COMMAND ${CMAKE_CXX_COMPILER} -Wno-stringop-overflow -flto=auto -r -nostdlib -flinker-output=nolto-rel -o ${together} ${objects}
      DEPENDS ${name} ${objects}
      COMMENT "Optimising the core as a whole" COMMAND_EXPAND_LISTS VERBATIM)
    set(objects ${together})
  endif()
  add_custom_target(${name}_for_tests DEPENDS ${objects})
  set(${name}_OBJECTS ${objects} PARENT_SCOPE)
endfunction()

# The same core under the address and undefined-behaviour sanitizers, with its consistency checks, whatever the build
# type, as object files; null and misaligned pointers are the address sanitizer's to find.
function(add_checked_core name)
  add_library(${name} OBJECT ${CORE_SOURCES})
  compile_by_folders(${name} 6 ${CORE_SOURCES})
  tell_version(${CMAKE_SOURCE_DIR}/src/lab/html_report.cpp)
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_compile_options(${name} PRIVATE -UNDEBUG -O1 -g1 -fno-omit-frame-pointer
    -fsanitize=address,undefined -fno-sanitize=null,alignment,vptr,object-size -fno-sanitize-recover=all)
endfunction()
