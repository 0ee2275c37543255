# Libraries that come from the system; README says what each is for.
find_package(nlohmann_json REQUIRED)
find_package(CLI11 REQUIRED)
find_package(SQLite3 REQUIRED)

# Makes a source of the bridge; nothing of it is in what is built.
find_package(Python3 REQUIRED COMPONENTS Interpreter)

find_path(CSV_INCLUDE_DIR csv.h REQUIRED)
find_library(CSV_LIBRARY NAMES csv REQUIRED)
add_library(ostrel_csv INTERFACE)
target_include_directories(ostrel_csv SYSTEM INTERFACE ${CSV_INCLUDE_DIR})
target_link_libraries(ostrel_csv INTERFACE ${CSV_LIBRARY})
