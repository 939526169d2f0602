# Warnings, sanitizers and hardening, the same for every target. The presets make warnings errors:
# whoever only packages the program, with a compiler of tomorrow, isn't stopped by them.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
                    -Wold-style-cast -Woverloaded-virtual)

if(VELLARNO_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(CMAKE_BUILD_TYPE STREQUAL "Release")
  include(CheckIPOSupported)
  check_ipo_supported(RESULT lto_works LANGUAGES CXX)
  set(CMAKE_INTERPROCEDURAL_OPTIMIZATION ${lto_works})
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  add_compile_options(-fstack-protector-strong -fvisibility=hidden -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  add_link_options(-pie -Wl,-z,relro,-z,now -Wl,--as-needed -s)
endif()
