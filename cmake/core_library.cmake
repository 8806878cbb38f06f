# The core as one library, NAME; its object files are in NAME_OBJECTS. In a release they are optimised together once, into
# one object that programs, tests and benchmarks link as it stands: the hot path crosses many files, and linking takes
# seconds.
function(add_core_library name)
  add_library(${name}_files OBJECT ${CORE_SOURCES})
  target_include_directories(${name}_files PUBLIC ${CMAKE_SOURCE_DIR}/src)
  set(objects $<TARGET_OBJECTS:${name}_files>)
  if(CMAKE_BUILD_TYPE STREQUAL "Release" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT TESSARYN_SANITIZERS)
    target_compile_options(${name}_files PRIVATE -flto)
    set(together ${CMAKE_CURRENT_BINARY_DIR}/${name}_together.o)
    add_custom_command(OUTPUT ${together}
      COMMAND ${CMAKE_CXX_COMPILER} -flto=auto -r -nostdlib -flinker-output=nolto-rel -o ${together} ${objects}
      DEPENDS ${name}_files ${objects}
      COMMENT "Optimising the core as a whole" COMMAND_EXPAND_LISTS VERBATIM)
    set(objects ${together})
  endif()
  add_library(${name} STATIC ${objects})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${CMAKE_DL_LIBS})
  set(${name}_OBJECTS ${objects} PARENT_SCOPE)
endfunction()

# The same core under the address and undefined-behaviour sanitizers, with its consistency checks, whatever the build
# type, as object files; null and misaligned pointers are the address sanitizer's to find.
function(add_checked_core name)
  add_library(${name} OBJECT ${CORE_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_compile_options(${name} PRIVATE -UNDEBUG -O1 -g1 -fno-omit-frame-pointer
    -fsanitize=address,undefined -fno-sanitize=null,alignment,vptr,object-size -fno-sanitize-recover=all)
endfunction()
