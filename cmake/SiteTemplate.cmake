# The site's template beside the programs of the build tree, made again when a file of it has changed.
set(site_template ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/site-template)
set(make_site_template ${CMAKE_CURRENT_LIST_DIR}/MakeSiteTemplate.cmake)
file(GLOB_RECURSE site_files CONFIGURE_DEPENDS resources/site/* resources/site-twins/*)
add_custom_command(OUTPUT ${site_template}.made
    COMMAND ${CMAKE_COMMAND} -Dresources=${PROJECT_SOURCE_DIR}/resources -Dtemplate=${site_template}
        -P ${make_site_template}
    DEPENDS ${site_files} ${make_site_template}
    COMMENT "Making the site's template" VERBATIM)
add_custom_target(site_template ALL DEPENDS ${site_template}.made)
