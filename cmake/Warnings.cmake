# One interface target with the compiler and linker rules for all targets of the project.
add_library(keldra-rules INTERFACE)
target_compile_options(keldra-rules INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Woverloaded-virtual
  -Wnon-virtual-dtor -Wcast-align -Wunused -Wformat=2 -Wimplicit-fallthrough -Wsuggest-override
  -Wzero-as-null-pointer-constant -Werror)
target_compile_definitions(keldra-rules INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_NO_FOREACH)
target_include_directories(keldra-rules INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(KELDRA_SANITIZERS)
  target_compile_options(keldra-rules INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(keldra-rules INTERFACE -fsanitize=address,undefined)
elseif(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  include(cmake/Hardening.cmake)
endif()
