# Warnings, Qt definitions and sanitizers for every target that belongs to this project.
function(lmwidgets_compile_options target)
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS
        QT_NO_CAST_TO_ASCII
        QT_NO_URL_CAST_FROM_STRING
        QT_DEPRECATED_WARNINGS
        QT_DISABLE_DEPRECATED_BEFORE=0x050E00
    )
    if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wshadow -Wconversion -Woverloaded-virtual
        )
        if(LMWIDGETS_WERROR)
            target_compile_options(${target} PRIVATE -Werror)
        endif()
    endif()
    if(LMWIDGETS_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=${LMWIDGETS_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined
        )
        target_link_options(${target} PRIVATE -fsanitize=${LMWIDGETS_SANITIZE})
    endif()
endfunction()
