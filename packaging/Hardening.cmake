# What Debian hardens its programs with: addresses that differ at each start, tables that nothing can write once the program
# runs, buffers that are checked. The sanitizers bring checks of their own.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
# Nothing replaces functions of a program, so the compiler may inline them in position-independent code, too.
add_compile_options(-fno-semantic-interposition -Werror=format-security)
add_link_options(-Wl,-z,relro -Wl,-z,now)
if(NOT SONAVEL_SANITIZE AND NOT SONAVEL_FUZZ)
  add_compile_options("$<$<CONFIG:Release>:-fstack-protector-strong;-D_FORTIFY_SOURCE=2>")
endif()
