# What every target shares, and the one way to declare a layer.

# Warnings and sanitizers of all our code.
add_library(swiftroll_warnings INTERFACE)
target_compile_options(swiftroll_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
# A release tells nothing of the folder that it was built in, so that two builds are the same.
target_compile_options(swiftroll_warnings INTERFACE
  $<$<CONFIG:Release>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>)
if(SWIFTROLL_WERROR)
  target_compile_options(swiftroll_warnings INTERFACE -Werror)
endif()
if(SWIFTROLL_SANITIZE)
  target_compile_options(swiftroll_warnings INTERFACE -fsanitize=${SWIFTROLL_SANITIZE}
                                                     -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(swiftroll_warnings INTERFACE -fsanitize=${SWIFTROLL_SANITIZE})
endif()

# swiftroll_layer(NAME [layers below ...]): the folder src/NAME as a static library that sees only the layers
# it names. Headers are included as "NAME/file.h"; each layer publishes its own folder through a private
# include tree, so that a folder that is not linked cannot be included. A folder within another one, as in
# OUTER/INNER, is the target swiftroll_OUTER_INNER.
function(swiftroll_layer name)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp)
  string(REPLACE / _ layer ${name})
  set(tree ${CMAKE_BINARY_DIR}/include/${layer})
  cmake_path(GET name PARENT_PATH outer)
  file(MAKE_DIRECTORY ${tree}/${outer})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${name} ${tree}/${name} SYMBOLIC)
  add_library(swiftroll_${layer} STATIC ${sources})
  target_include_directories(swiftroll_${layer} PUBLIC ${tree})
  target_link_libraries(swiftroll_${layer} PRIVATE swiftroll_warnings)
  foreach(below ${ARGN})
    string(REPLACE / _ below ${below})
    target_link_libraries(swiftroll_${layer} PUBLIC swiftroll_${below})
  endforeach()
endfunction()
