# The two Mersenne Twister libraries, found in the application folder at start-up under these names.
add_custom_target(tessaryn_support)
foreach(name mt19937ar cokus)
  if(EXISTS ${CMAKE_SOURCE_DIR}/src/dice/support/${name}.cpp)
    add_library(${name} MODULE src/dice/support/${name}.cpp)
    set_target_properties(${name} PROPERTIES PREFIX "" SUFFIX ".dll"
      LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
    # They need nothing of it, but a library that says so looks broken to packagers.
    target_link_libraries(${name} PRIVATE -Wl,--no-as-needed c)
    add_dependencies(tessaryn_support ${name})
  endif()
endforeach()
