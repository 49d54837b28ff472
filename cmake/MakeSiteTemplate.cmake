# Makes the site's template in ${template}: the files of ${resources}/site and, of each page of
# ${resources}/site-twins, one for the season and one, in a folder or under a name with "Playoff" before it, for the
# play-offs.
file(REMOVE_RECURSE "${template}")
file(COPY "${resources}/site/" DESTINATION "${template}")

function(make_pages)
    file(GLOB_RECURSE pages RELATIVE "${resources}/site-twins" "${resources}/site-twins/*.in")
    foreach(page IN LISTS pages)
        string(REGEX REPLACE "\\.in$" "" target "${template}/${playoff_folder}${page}")
        configure_file("${resources}/site-twins/${page}" "${target}" @ONLY NEWLINE_STYLE UNIX)
    endforeach()
endfunction()

# What names of folders and pages, of tables of data, and titles begin with; the other part of the year's; where the
# standings are; and which link of the bar a page belongs to.
set(part season)
set(part_name season)
set(playoff_folder "")
set(playoff_data "")
set(playoff_title "")
set(other_folder Playoff)
set(other_title "Playoff ")
set(places Standings)
set(places_title Standings)
set(season_page " aria-current=\"page\"")
set(season_section " aria-current=\"true\"")
set(playoffs_section "")
make_pages()

set(part playoffs)
set(part_name play-offs)
set(playoff_folder Playoff)
set(playoff_data playoff-)
set(playoff_title "Playoff ")
set(other_folder "")
set(other_title "Season ")
set(places PlayoffTree)
set(places_title "Playoff Tree")
set(season_page "")
set(season_section "")
set(playoffs_section " aria-current=\"true\"")
make_pages()

file(TOUCH "${template}.made")
