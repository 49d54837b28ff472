#!/usr/bin/python3
"""Checks that the pictures are complete, of the right size, readable, told apart, and what draw.py draws."""

import filecmp
import json
import subprocess
import sys
import tempfile
import unittest
from itertools import combinations
from pathlib import Path
from xml.etree import ElementTree

from PIL import Image, ImageChops, ImageStat

RESOURCES = Path(__file__).resolve().parents[2] / "resources"
SITE, WINDOWS, ART = RESOURCES / "site", RESOURCES / "pictures", RESOURCES / "art"

LEAGUE = """BOS BUF CGY CHI DET EDM HFD LI LA MIN MTL NJ NYR OTA PHI PIT QUE SJ STL TB TOR VAN WSH
    WPG""".split()
TEAMS = LEAGUE + ["ASE", "ASW"]
HEADERS = """TeamStats PlayoffTeamStats BoxScores CoachingStats DivisionStandings ConferenceStandings
    HomeAwayStandings vsConfStandings AllTimeRecords PlayoffTree Playoffs PlayerProfiles TeamRoster
    PlayerStats Standings LeagueLeaders PlayoffPlayerStats PlayoffLeagueLeaders""".split()
CARDS = ["Skater1", "Skater2", "Goalie1"]
BANNER, MINI, LOGO, BIG_LOGO, CARD = (360, 64), (120, 24), (96, 96), (160, 160), (200, 200)

SITE_PICTURES = {
    **{f"Headers/{name}": (480, 56) for name in HEADERS},
    "Headers/Iceline-Logo": (300, 200),
    **{f"LogoMinis/{abbr}": (24, 24) for abbr in TEAMS},
    **{f"BannerMinis/{abbr}": MINI for abbr in TEAMS + ["Blank"]},
    **{f"BigBanners/{abbr}": BANNER for abbr in TEAMS + ["ALL"]},
    **{f"BigLogos/{abbr}": BIG_LOGO for abbr in TEAMS + ["ALL"]},
    **{f"PlayerCards/{name}": CARD for name in CARDS},
}
WINDOW_PICTURES = {
    "iceline": (128, 128),
    "league-logo": (300, 200),
    **{f"banners-mini/{abbr}": MINI for abbr in TEAMS + ["Blank"]},
    **{f"banners-big/{abbr}": BANNER for abbr in TEAMS + ["ALL"]},
    **{f"logos/{abbr}": LOGO for abbr in TEAMS + ["ALL"]},
    **{f"logos-big/{abbr}": BIG_LOGO for abbr in TEAMS + ["ALL"]},
    **{f"cards/{name}": CARD for name in CARDS},
    **{f"trophies/{number}": (40, 56) for number in range(14)},
}
MOST_BYTES = 3 * 1024 * 1024


def sizes(folder, pattern):
    """The size in pixels of each picture under a folder, by its path without the ending."""
    found = {}
    for file in folder.rglob(pattern):
        with Image.open(file) as image:
            found[str(file.relative_to(folder).with_suffix(""))] = image.size
    return found


def luminance(colour):
    parts = [int(colour[i:i + 2], 16) / 255 for i in (1, 3, 5)]
    linear = [part / 12.92 if part <= 0.03928 else ((part + 0.055) / 1.055) ** 2.4 for part in parts]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def contrast(first, second):
    dark, light = sorted((luminance(first), luminance(second)))
    return (light + 0.05) / (dark + 0.05)


class Pictures(unittest.TestCase):
    def test_site_has_every_picture_in_its_size_and_no_other(self):
        self.assertEqual(sizes(SITE, "*.gif"), SITE_PICTURES)

    def test_windows_have_every_picture_at_both_densities(self):
        doubled = {f"{name}@2x": (2 * size[0], 2 * size[1]) for name, size in WINDOW_PICTURES.items()}
        self.assertEqual(sizes(WINDOWS, "*.png"), {**WINDOW_PICTURES, **doubled})

    def test_every_window_picture_is_compiled_in(self):
        resource = ElementTree.parse(WINDOWS / "pictures.qrc").getroot().find("qresource")
        listed = sorted(entry.text for entry in resource)
        self.assertEqual(resource.get("prefix"), "/pictures")
        self.assertEqual(listed, sorted(str(file.relative_to(WINDOWS)) for file in WINDOWS.rglob("*.png")))

    def test_all_pictures_together_stay_small(self):
        files = [file for ending in ("gif", "png", "svg") for file in RESOURCES.rglob("*." + ending)]
        self.assertLess(sum(file.stat().st_size for file in files), MOST_BYTES)

    def test_teams_are_told_apart_at_24_pixels(self):
        logos = {}
        for abbr in LEAGUE:
            with Image.open(SITE / "LogoMinis" / f"{abbr}.gif") as image:
                logos[abbr] = image.convert("RGB")
        for one, other in combinations(LEAGUE, 2):
            difference = ImageStat.Stat(ImageChops.difference(logos[one], logos[other]))
            self.assertGreater(max(difference.rms), 40, f"{one} and {other} look alike")

    def test_lettering_stands_out_from_its_plate(self):
        for team in json.loads((ART / "teams.json").read_text()):
            for part in ("mark", "trim"):
                self.assertGreaterEqual(contrast(team[part], team["base"]), 4.5, f"{team['abbr']} {part}")

    def test_titles_stand_in_the_middle_of_their_headers(self):
        for name in HEADERS:
            with Image.open(SITE / "Headers" / f"{name}.gif") as image:
                ink = image.convert("RGB").split()[0].point(lambda red: 255 if red > 248 else 0)
            left, top, right, bottom = ink.getbbox()
            self.assertAlmostEqual((left + right) / 2, image.width / 2, delta=1.5, msg=name)
            self.assertAlmostEqual((top + bottom) / 2, image.height / 2, delta=1, msg=name)

    def test_plates_have_clear_corners_and_a_whole_middle(self):
        for name, size in SITE_PICTURES.items():
            if name.startswith("PlayerCards/") or name == "BannerMinis/Blank":
                continue
            with Image.open(SITE / f"{name}.gif") as image:
                alpha = image.convert("RGBA").getchannel("A")
            width, height = size
            corners = [alpha.getpixel((x, y)) for x in (0, width - 1) for y in (0, height - 1)]
            self.assertEqual(corners, [0, 0, 0, 0], name)
            middle = alpha.crop((width // 4, height // 4, 3 * width // 4, 3 * height // 4))
            self.assertEqual(middle.getextrema(), (255, 255), name)

    def test_script_draws_the_same_files_again(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, ART / "draw.py", folder], check=True)
            files = [file for file in Path(folder).rglob("*") if file.is_file()]
            drawn = sorted(str(file.relative_to(folder)) for file in files)
            self.assertGreater(len(drawn), len(SITE_PICTURES) + len(WINDOW_PICTURES))
            _, changed, missing = filecmp.cmpfiles(folder, RESOURCES, drawn, shallow=False)
            self.assertEqual((changed, missing), ([], []))


if __name__ == "__main__":
    unittest.main()
