# zentor_embed_player(LIBRARY lib NAME rcc_name ALIAS alias PROGRAM file SIZE bytes
#                     DEPENDS what_makes_the_program...)
# Pads PROGRAM to exactly SIZE bytes as ${CMAKE_CURRENT_BINARY_DIR}/ALIAS and compiles it into
# LIBRARY as the Qt resource ":/player/ALIAS" (Q_INIT_RESOURCE(NAME) links it in). Generation
# puts those bytes in front of every self-running résumé, whose package starts at SIZE.
function(zentor_embed_player)
    set(pad ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/PadPlayer.cmake)
    cmake_parse_arguments(ARG "" "LIBRARY;NAME;ALIAS;PROGRAM;SIZE" "DEPENDS" ${ARGN})
    set(padded ${CMAKE_CURRENT_BINARY_DIR}/${ARG_ALIAS})
    add_custom_command(OUTPUT ${padded}
        COMMAND ${CMAKE_COMMAND} -DIN=${ARG_PROGRAM} -DOUT=${padded} -DSIZE=${ARG_SIZE}
                -P ${pad}
        DEPENDS ${ARG_DEPENDS} ${pad}
        COMMENT "Padding ${ARG_ALIAS} to ${ARG_SIZE} bytes"
        VERBATIM)

    set(qrc ${CMAKE_CURRENT_BINARY_DIR}/${ARG_NAME}.qrc)
    file(WRITE ${qrc} "<RCC><qresource prefix=\"/player\"><file alias=\"${ARG_ALIAS}\">"
                      "${ARG_ALIAS}</file></qresource></RCC>\n")
    set(cpp ${CMAKE_CURRENT_BINARY_DIR}/qrc_${ARG_NAME}.cpp)
    add_custom_command(OUTPUT ${cpp}
        COMMAND Qt6::rcc --name ${ARG_NAME} -o ${cpp} ${qrc}
        DEPENDS ${padded} ${qrc}
        COMMENT "Embedding the padded ${ARG_ALIAS} as :/player/${ARG_ALIAS}"
        VERBATIM)
    target_sources(${ARG_LIBRARY} PRIVATE ${cpp})
endfunction()
