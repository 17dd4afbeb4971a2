# Each public header must compile by itself, in a host that uses Qt's keywords and in one that does not,
# and all of them together. The build is the test.
add_library(lmwidgets_headers OBJECT)
add_library(lmwidgets_headers_no_keywords OBJECT)

foreach(path IN LISTS lmwidgets_public_headers)
    get_filename_component(header "${path}" NAME)
    string(MAKE_C_IDENTIFIER "${header}" name)
    # Twice, which a missing include guard would not survive.
    set(content "#include <lmwidgets/${header}>\n#include <lmwidgets/${header}>\n")
    # A source that has nothing but the inclusion is an empty translation unit to some compilers.
    string(APPEND content "\nint lmwidgets_compiles_${name}();\nint lmwidgets_compiles_${name}()\n{\n    return 0;\n}\n")
    set(source "${CMAKE_CURRENT_BINARY_DIR}/headers/${name}.cpp")
    file(GENERATE OUTPUT "${source}" CONTENT "${content}")
    target_sources(lmwidgets_headers PRIVATE "${source}")
    target_sources(lmwidgets_headers_no_keywords PRIVATE "${source}")
endforeach()

foreach(target lmwidgets_headers lmwidgets_headers_no_keywords)
    target_link_libraries(${target} PRIVATE lmwidgets::lmwidgets)
    if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wshadow -Wconversion -Werror)
    endif()
endforeach()
target_compile_definitions(lmwidgets_headers_no_keywords PRIVATE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII)
