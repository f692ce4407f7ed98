# Copies the player IN to OUT and pads it to exactly SIZE bytes. What follows the program's
# own bytes is never executed; the package of a self-running résumé starts right after it.
if(NOT EXISTS "${IN}")
    message(FATAL_ERROR "PadPlayer: ${IN} does not exist")
endif()
file(SIZE "${IN}" size)
if(size GREATER SIZE)
    math(EXPR over "${size} - ${SIZE}")
    message(FATAL_ERROR
        "zentor-player is ${size} bytes, ${over} more than the ${SIZE} bytes a self-running "
        "résumé reserves for it. Make the player smaller (fewer sources or libraries) or "
        "change the player size in the process context, the package reader and "
        "src/player/CMakeLists.txt together.")
endif()
math(EXPR pad "${SIZE} - ${size}")
file(COPY_FILE "${IN}" "${OUT}.tmp")
if(pad GREATER 0)
    # CMake strings cannot hold NUL bytes; blanks pad just as well.
    string(REPEAT " " ${pad} blanks)
    file(APPEND "${OUT}.tmp" "${blanks}")
endif()
file(SIZE "${OUT}.tmp" padded)
if(NOT padded EQUAL SIZE)
    message(FATAL_ERROR "PadPlayer: ${OUT} came out ${padded} bytes instead of ${SIZE}")
endif()
file(RENAME "${OUT}.tmp" "${OUT}")
