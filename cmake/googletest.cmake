# One test framework for native and for cross-built tests: an installed one where there is one for
# this target, else Debian's sources, else an archive that the builder names together with its hash.
set(KORVENTALLY_GOOGLETEST_SOURCES /usr/src/googletest CACHE PATH "GoogleTest's sources")
set(KORVENTALLY_GOOGLETEST_URL "" CACHE STRING "An archive of GoogleTest's sources to fetch")
set(KORVENTALLY_GOOGLETEST_SHA256 "" CACHE STRING "The SHA-256 hash of that archive")

find_package(GTest QUIET CONFIG)
if(TARGET GTest::gtest_main)
  message(STATUS "GoogleTest: installed")
  return()
endif()

if(EXISTS ${KORVENTALLY_GOOGLETEST_SOURCES}/CMakeLists.txt)
  set(INSTALL_GTEST OFF)
  add_subdirectory(${KORVENTALLY_GOOGLETEST_SOURCES} ${CMAKE_BINARY_DIR}/googletest
                   EXCLUDE_FROM_ALL)
elseif(KORVENTALLY_GOOGLETEST_URL AND KORVENTALLY_GOOGLETEST_SHA256)
  include(FetchContent)
  set(INSTALL_GTEST OFF)
  FetchContent_Declare(googletest URL ${KORVENTALLY_GOOGLETEST_URL}
                       URL_HASH SHA256=${KORVENTALLY_GOOGLETEST_SHA256})
  FetchContent_MakeAvailable(googletest)
else()
  message(FATAL_ERROR "GoogleTest was not found: install it or its sources (Debian: googletest), "
                      "or name an archive with KORVENTALLY_GOOGLETEST_URL and its hash with "
                      "KORVENTALLY_GOOGLETEST_SHA256, or build with -DKORVENTALLY_TESTS=OFF.")
endif()
foreach(target gtest gtest_main gmock gmock_main)
  if(TARGET ${target})
    target_compile_options(${target} PRIVATE -w)
  endif()
endforeach()
