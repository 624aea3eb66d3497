# The compositor's key routing, seen from clients that speak its protocols without a toolkit.
pkg_check_modules(WAYLAND_PROTOCOLS REQUIRED wayland-protocols)
pkg_get_variable(WAYLAND_PROTOCOLS_DIR wayland-protocols pkgdatadir)
set(xdg_shell ${WAYLAND_PROTOCOLS_DIR}/stable/xdg-shell/xdg-shell.xml)
foreach(output private-code:xdg-shell-protocol.c client-header:xdg-shell-client-protocol.h)
    string(REPLACE ":" ";" output ${output})
    list(POP_FRONT output kind file)
    add_custom_command(
        OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${file}
        COMMAND ${WAYLAND_SCANNER} ${kind} ${xdg_shell} ${CMAKE_CURRENT_BINARY_DIR}/${file}
        DEPENDS ${xdg_shell}
        VERBATIM)
endforeach()
add_library(veskar-xdg-shell STATIC
    ${CMAKE_CURRENT_BINARY_DIR}/xdg-shell-protocol.c ${CMAKE_CURRENT_BINARY_DIR}/xdg-shell-client-protocol.h)
target_include_directories(veskar-xdg-shell SYSTEM PUBLIC ${CMAKE_CURRENT_BINARY_DIR})
target_link_libraries(veskar-xdg-shell PUBLIC PkgConfig::WAYLAND_CLIENT)

add_executable(veskar-keyrouter-tests
    ${CMAKE_CURRENT_LIST_DIR}/KeyRouterTest.cpp ${CMAKE_CURRENT_LIST_DIR}/WaylandWindow.cpp)
target_link_libraries(veskar-keyrouter-tests PRIVATE
    veskar-compile-options veskar-keyrouter veskar-keys veskar-remote-client veskar-xdg-shell veskar-system-test-support)
veskar_add_system_test(KeyRouter $<TARGET_FILE:veskar-keyrouter-tests>)
add_dependencies(veskar-keyrouter-tests veskar-compositor)
