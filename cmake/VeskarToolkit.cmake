# The toolkit and the edje compiler. Imported targets are system headers to the compiler, which keeps the toolkit's
# own warnings out of a build that treats warnings as errors.
find_package(PkgConfig REQUIRED)
# 1.24 has the newest calls of the application, in ecore-wl2.
pkg_check_modules(EFL REQUIRED IMPORTED_TARGET
    elementary>=1.24 evas ecore ecore-evas ecore-wl2>=1.24 ecore-input edje eina)

# Debian's pkg-config files name a folder that no package contains, and CMake refuses a target with such a folder. They
# also name the folder of this machine's C library: a compiler for another machine must not see it, and ours knows it
# anyway.
get_target_property(directories PkgConfig::EFL INTERFACE_INCLUDE_DIRECTORIES)
foreach(directory IN LISTS directories)
    if(NOT EXISTS ${directory} OR directory MATCHES "^/usr/include/[^/]+-linux-gnu[^/]*$")
        list(REMOVE_ITEM directories ${directory})
    endif()
endforeach()
set_target_properties(PkgConfig::EFL PROPERTIES INTERFACE_INCLUDE_DIRECTORIES "${directories}")

find_program(EDJE_CC edje_cc REQUIRED)

# Compiles SOURCE (an .edc file) to OUTPUT; further arguments are its images' and fonts' folders and its DEPENDS.
function(veskar_add_edje target source output)
    cmake_parse_arguments(ARG "" "" "FLAGS;DEPENDS" ${ARGN})
    get_filename_component(directory ${output} DIRECTORY)
    file(MAKE_DIRECTORY ${directory})
    add_custom_command(
        OUTPUT ${output}
        COMMAND ${EDJE_CC} ${ARG_FLAGS} ${source} ${output}
        DEPENDS ${source} ${ARG_DEPENDS}
        COMMENT "Compiling ${output}"
        VERBATIM)
    add_custom_target(${target} ALL DEPENDS ${output})
endfunction()
