#!/usr/bin/python3
"""Draws every picture of the project, from teams.json, and writes them into the resources folder.

    draw.py [FOLDER]        FOLDER is taken for the resources folder

Run it after a change to a drawing or a colour and commit what it wrote: the build takes the pictures as
files. It needs python3-cairo and python3-pil; the same versions of these give the same files, byte for byte.
"""

import json
import sys
from functools import partial
from pathlib import Path

import figures
import icon
import pictures
import trophies
from canvas import write_gif, write_ico, write_png

RESOURCES = Path(__file__).resolve().parent.parent
FAVICON_SIZES = (16, 32, 48)
SITE_ICONS = {"apple-touch-icon": 180, "icon-192": 192, "icon-512": 512}
ICON_SIZES = (16, 22, 24, 32, 48, 64, 128, 256)
WINDOWS_ICON_SIZES = (16, 24, 32, 48, 64, 256)
LOGO, BIG_LOGO = 96, 160

HEADERS = {
    "AllTimeRecords": "All-Time Records",
    "BoxScores": "Box Scores",
    "CoachingStats": "Coaching Stats",
    "ConferenceStandings": "Conference Standings",
    "DivisionStandings": "Division Standings",
    "HomeAwayStandings": "Home / Away Standings",
    "LeagueLeaders": "League Leaders",
    "PlayerProfiles": "Player Profiles",
    "PlayerStats": "Player Stats",
    "PlayoffLeagueLeaders": "Playoff League Leaders",
    "PlayoffPlayerStats": "Playoff Player Stats",
    "PlayoffTeamStats": "Playoff Team Stats",
    "PlayoffTree": "Playoff Tree",
    "Playoffs": "Playoffs",
    "Standings": "Standings",
    "TeamRoster": "Team Roster",
    "TeamStats": "Team Stats",
    "vsConfStandings": "vs. Conference Standings",
}


def names_of_pictures(teams):
    """The style sheet that gives the teams' pictures their names, which the pages' own markup does not."""
    rules = []
    for team in teams:
        full = f'{team["city"]} {team["name"]}'
        for folder, name in (("LogoMinis", team.get("short", team["city"])),
                             ("BannerMinis", team.get("short", team["city"])), ("BigBanners", full)):
            if team["abbr"] != "ALL":
                file = f'{folder}/{team["abbr"]}.gif'
                rules.append(f'  &[src$="{file}"] {{ content: url({file}) / "{name}"; }}\n')
    return ("/* What the pictures of the teams show, for who cannot see them; draw.py writes this file. */\n\n"
            f'img:not([alt]) {{\n{"".join(rules)}}}\n')


def draw_site(teams, site):
    for name, title in HEADERS.items():
        write_gif(pictures.header(title), site / "Headers" / f"{name}.gif")
    write_gif(pictures.league_logo(), site / "Headers" / "Iceline-Logo.gif")
    write_gif(pictures.blank_banner(), site / "BannerMinis" / "Blank.gif")
    for team in teams:
        file = team["abbr"] + ".gif"
        write_gif(pictures.big_banner(team), site / "BigBanners" / file)
        write_gif(pictures.logo(team, BIG_LOGO), site / "BigLogos" / file)
        if team["abbr"] != "ALL":
            write_gif(pictures.mini_banner(team), site / "BannerMinis" / file)
            write_gif(pictures.mini_logo(team), site / "LogoMinis" / file)
    for name in figures.FIGURES:
        write_gif(figures.card(name), site / "PlayerCards" / f"{name}.gif")
    write_ico([icon.png(size) for size in FAVICON_SIZES], site / "favicon.ico")
    (site / "favicon.svg").write_text(icon.svg())
    for name, size in SITE_ICONS.items():
        write_png(icon.png(size), site / f"{name}.png")
    write_png(pictures.preview(), site / "preview.png")
    (site / "crests.css").write_text(names_of_pictures(teams))


def window_pictures(teams):
    """Pairs of a picture's name and the function that draws it at a density."""
    yield "iceline", lambda density: icon.png(128 * density)
    yield "league-logo", pictures.league_logo
    yield "banners-mini/Blank", pictures.blank_banner
    for team in teams:
        abbr = team["abbr"]
        yield f"banners-big/{abbr}", partial(pictures.big_banner, team)
        yield f"logos/{abbr}", partial(pictures.logo, team, LOGO)
        yield f"logos-big/{abbr}", partial(pictures.logo, team, BIG_LOGO)
        if abbr != "ALL":
            yield f"banners-mini/{abbr}", partial(pictures.mini_banner, team)
    for name in figures.FIGURES:
        yield f"cards/{name}", partial(figures.card, name)
    for number, draw in trophies.trophies():
        yield f"trophies/{number}", draw


def draw_windows(teams, folder):
    """Each picture at one and at two device pixels a pixel, and the list by which Qt compiles them in."""
    files = []
    for name, draw in window_pictures(teams):
        for density, suffix in ((1, ""), (2, "@2x")):
            files.append(f"{name}{suffix}.png")
            write_png(draw(density), folder / files[-1])
    entries = "".join(f"    <file>{file}</file>\n" for file in sorted(files))
    (folder / "pictures.qrc").write_text(
        f'<RCC>\n  <qresource prefix="/pictures">\n{entries}  </qresource>\n</RCC>\n')


def draw_icon(folder):
    for size in ICON_SIZES:
        write_png(icon.png(size), folder / f"iceline-{size}.png")
    write_ico([icon.png(size) for size in WINDOWS_ICON_SIZES], folder / "iceline.ico")
    (folder / "iceline.svg").write_text(icon.svg())


def draw_all(resources):
    teams = json.loads((RESOURCES / "art" / "teams.json").read_text())
    draw_icon(resources / "art" / "icon")
    draw_site(teams, resources / "site")
    draw_windows(teams, resources / "pictures")


if __name__ == "__main__":
    draw_all(Path(sys.argv[1]) if len(sys.argv) > 1 else RESOURCES)
