# A release compiles a few files of a folder at a time: most of what each takes is the headers that they share. So the names
# in unnamed namespaces differ within a folder. What takes long by itself, or is compiled otherwise, stays alone.
function(compile_by_folders target files)
  if(NOT TESSARYN_UNITY)
    return()
  endif()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  target_compile_options(${target} PRIVATE -Wno-subobject-linkage)  # what a file hides in a struct of its own
  foreach(source ${ARGN})
    get_filename_component(source ${source} ABSOLUTE)
    file(RELATIVE_PATH folder ${CMAKE_SOURCE_DIR} ${source})
    get_filename_component(folder ${folder} DIRECTORY)
    string(MAKE_C_IDENTIFIER "${folder}" folder)
    math(EXPR part "(0${count_${folder}}) / ${files}")
    math(EXPR count_${folder} "0${count_${folder}} + 1")
    set_source_files_properties(${source} PROPERTIES UNITY_GROUP "${folder}_${part}")
  endforeach()
  set_source_files_properties(${CMAKE_SOURCE_DIR}/src/play/game_file_fields.cpp PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()
