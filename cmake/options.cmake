# One target carries the language level, the warnings and the strict Qt defines.
add_library(kurbo_options INTERFACE)
target_compile_features(kurbo_options INTERFACE cxx_std_20)
target_compile_options(kurbo_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
                                               -Wold-style-cast -Woverloaded-virtual -Wimplicit-fallthrough -Werror)
# GCC 12 sees uninitialised members in every std::variant that holds a QString.
target_compile_options(kurbo_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
target_compile_definitions(
  kurbo_options
  INTERFACE QT_NO_CAST_FROM_ASCII
            QT_NO_CAST_TO_ASCII
            QT_NO_CAST_FROM_BYTEARRAY
            QT_NO_URL_CAST_FROM_STRING
            QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
            QT_NO_KEYWORDS
            QT_STRICT_ITERATORS
            QT_DISABLE_DEPRECATED_BEFORE=0x060400
            KURBO_VERSION="${PROJECT_VERSION}")
if(KURBO_SANITIZE)
  target_compile_options(kurbo_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                 -fno-omit-frame-pointer)
  target_link_options(kurbo_options INTERFACE -fsanitize=address,undefined)
endif()
if(KURBO_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "The fuzzers are built by clang.")
  endif()
  target_compile_options(kurbo_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
