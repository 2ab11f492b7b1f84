# An error in parsing data from disks, services or desktops should end the program, not let an attacker control it.
include(CheckCXXCompilerFlag)
include(CheckPIESupported)

check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

target_compile_options(keldra-rules INTERFACE -fstack-protector-strong -fstack-clash-protection)
check_cxx_compiler_flag(-fcf-protection HAS_CONTROL_FLOW_PROTECTION)
if(HAS_CONTROL_FLOW_PROTECTION)
  target_compile_options(keldra-rules INTERFACE -fcf-protection)
endif()
target_compile_definitions(keldra-rules INTERFACE $<$<NOT:$<CONFIG:Debug>>:_FORTIFY_SOURCE=2>)
target_link_options(keldra-rules INTERFACE LINKER:-z,relro LINKER:-z,now)
