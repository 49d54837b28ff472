# The installed program is one folder that can be carried on a stick: the programs and the site's
# template beside them.
install(TARGETS iceline RUNTIME DESTINATION .)
if(ICELINE_DESKTOP)
    install(TARGETS iceline-scorebook RUNTIME DESTINATION .)
endif()
install(CODE "set(template_source \"${PROJECT_SOURCE_DIR}/resources/site\")")
install(SCRIPT ${CMAKE_CURRENT_LIST_DIR}/InstallTemplate.cmake)
