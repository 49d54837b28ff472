# The installed program is one folder that can be carried on a stick: the programs and the site's
# template beside them.
install(TARGETS iceline RUNTIME DESTINATION .)
if(ICELINE_DESKTOP)
    install(TARGETS iceline-scorebook RUNTIME DESTINATION .)
endif()
install(DIRECTORY resources/site/ DESTINATION site-template OPTIONAL PATTERN ".gitkeep" EXCLUDE)
