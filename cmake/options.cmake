# Compiler and linker options. Targets get them by linking ostrane_options, directly or indirectly.
add_library(ostrane_options INTERFACE)

# The presets turn warnings into errors (CMAKE_COMPILE_WARNING_AS_ERROR).
target_compile_options(ostrane_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 gives a false warning for "literal" + std::string in optimised code.
  target_compile_options(ostrane_options INTERFACE -Wno-restrict)
endif()
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  target_compile_options(ostrane_options INTERFACE -Wreserved-identifier)
endif()
target_compile_definitions(ostrane_options INTERFACE _GLIBCXX_ASSERTIONS)

if(OSTRANE_SANITIZE OR OSTRANE_FUZZ)
  # -O1 builds a third faster than -O2.
  target_compile_options(ostrane_options INTERFACE -O1 -g1 -fsanitize=address,undefined
                         -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(ostrane_options INTERFACE -fsanitize=address,undefined)
elseif(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  # Debian's hardening options (hardening=+all); its compiler enables PIE by default. _FORTIFY_SOURCE
  # checks buffers of known size. The program copies into spans and vectors, which
  # _GLIBCXX_ASSERTIONS checks.
  set(optimised $<OR:$<CONFIG:Release>,$<CONFIG:RelWithDebInfo>,$<CONFIG:MinSizeRel>>)
  target_compile_options(ostrane_options INTERFACE -fstack-protector-strong -Wformat
                         -Werror=format-security)
  target_link_options(ostrane_options INTERFACE -Wl,-z,relro -Wl,-z,now)
  if(NOT CMAKE_CXX_FLAGS MATCHES "_FORTIFY_SOURCE")
    target_compile_options(ostrane_options INTERFACE $<${optimised}:-U_FORTIFY_SOURCE>
                           $<${optimised}:-D_FORTIFY_SOURCE=2>)
  endif()
endif()

# Programs for Windows need no DLLs of the compiler, except those that share it with the DLLs of Qt. The
# same sources give the same files.
if(MINGW)
  target_link_options(ostrane_options INTERFACE -Wl,--no-insert-timestamp
                      $<$<NOT:$<BOOL:$<TARGET_PROPERTY:SHARES_RUNTIME>>>:-static>)
endif()

# precompile(TARGET HEADER...): precompiles these headers and common ones of the standard library for
# the target, so that a build takes less than half the time. The preset release turns this off: there
# each file must include what it uses.
function(precompile target)
  target_precompile_headers(${target} PRIVATE ${ARGN} <algorithm> <cstdint> <filesystem> <functional>
                            <memory> <optional> <string> <string_view> <unordered_map> <vector>)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
    # GCC 12 gives more false warnings for strings in precompiled headers.
    target_compile_options(${target} PRIVATE -Wno-array-bounds -Wno-stringop-overflow
                           -Wno-stringop-overread)
  endif()
endfunction()
