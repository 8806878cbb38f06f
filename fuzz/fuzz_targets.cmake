# A fuzz target for every fuzz_*.cpp, with its seeds in corpus/<name>.
file(GLOB FUZZ_SOURCES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/fuzz/fuzz_*.cpp)
foreach(source ${FUZZ_SOURCES})
  get_filename_component(name ${source} NAME_WE)
  add_executable(${name} ${source})
  target_link_libraries(${name} PRIVATE tessaryn_core)
  target_compile_options(${name} PRIVATE -fsanitize=fuzzer)
  target_link_options(${name} PRIVATE -fsanitize=fuzzer)
endforeach()
# The core itself tells the fuzzer which of its branches an input took.
target_compile_options(tessaryn_core PRIVATE -fsanitize=fuzzer-no-link)
# The commands of play and the language server are the command-line program's own.
foreach(name fuzz_play fuzz_lsp)
  target_sources(${name} PRIVATE ${CLI_SOURCES})
  target_link_libraries(${name} PRIVATE CLI11::CLI11 nlohmann_json::nlohmann_json PkgConfig::READLINE)
endforeach()
# These walk a quarter of a million cells an input: noting each comparison there took a third of the time.
set_source_files_properties(${CMAKE_SOURCE_DIR}/src/play/game_file_fields.cpp ${CMAKE_SOURCE_DIR}/src/play/game_file_records.cpp
  PROPERTIES COMPILE_OPTIONS -fno-sanitize-coverage=trace-cmp)
