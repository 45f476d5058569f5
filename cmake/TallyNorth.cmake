# Helpers shared by every target of the project.

# tn_add_test(NAME SOURCES file... [GUI] [LIBS lib...] [DEFINES def...] [DEPENDS target...])
# A QtTest executable registered with CTest. GUI tests link the widget library and run on the
# offscreen platform; the others link only the core library. DEPENDS names targets the test runs
# (the command-line program). An unknown argument is an error, not a silently ignored word.
function(tn_add_test name)
    cmake_parse_arguments(arg "GUI" "" "SOURCES;LIBS;DEFINES;DEPENDS" ${ARGN})
    if(arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "tn_add_test(${name}): unknown arguments ${arg_UNPARSED_ARGUMENTS}")
    endif()
    add_executable(${name} ${arg_SOURCES})
    if(arg_GUI)
        target_link_libraries(${name} PRIVATE tallynorth_ui)
    endif()
    target_link_libraries(${name} PRIVATE tallynorth_core tn_testsupport Qt6::Test ${arg_LIBS})
    if(arg_DEFINES)
        target_compile_definitions(${name} PRIVATE ${arg_DEFINES})
    endif()
    if(arg_DEPENDS)
        add_dependencies(${name} ${arg_DEPENDS})
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set(env "QT_QPA_PLATFORM=offscreen" "TALLYNORTH_LANG=en" "LC_ALL=C.UTF-8")
    # A column read by a name the statement does not select reads as null; only its warning tells.
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${env}" TIMEOUT 600
        FAIL_REGULAR_EXPRESSION "SqlStatement: unknown column|QSqlQuery::value: not positioned|QSqlQuery::value: unknown field")
endfunction()

# Generates Columns.h from the create-tables script: one constant per table and column, so a
# misspelled column name fails to compile.
function(tn_generate_columns target script)
    set(out "${CMAKE_CURRENT_BINARY_DIR}/generated/Columns.h")
    add_custom_command(
        OUTPUT "${out}"
        COMMAND ${CMAKE_COMMAND} -DSCRIPT=${script} -DOUT=${out}
                -P "${PROJECT_SOURCE_DIR}/cmake/GenerateColumns.cmake"
        DEPENDS "${script}" "${PROJECT_SOURCE_DIR}/cmake/GenerateColumns.cmake"
        COMMENT "Generating column identifiers")
    target_sources(${target} PRIVATE "${out}")
    target_include_directories(${target} PUBLIC "${CMAKE_CURRENT_BINARY_DIR}/generated")
endfunction()
