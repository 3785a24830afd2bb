# Warnings of our own code: -Wall -Wextra, no warnings allowed to stand.
function(zel_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra)
endfunction()
