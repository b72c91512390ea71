"""What puts the program into a desktop's menus, judged by the programs that desktops and their shops judge it by."""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).parents[3]
MENU = ROOT / "host/desktop/menu"
DOCUMENTS = pathlib.Path(os.environ["FERROWIND_DOCUMENTS"])
PROGRAM = os.environ["FERROWIND"]
NAME = "com.tessaro.ferrowind"
SIDES = (16, 22, 24, 32, 48, 64, 128, 256)
# Of the greatest difference that two pictures can have: painters round the corners of the tile in their own ways.
LIKE_EACH_OTHER = 0.03


def run(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, timeout=60)


class DesktopFiles(unittest.TestCase):

    def test_the_entry_of_the_menu_is_valid(self):
        result = run("desktop-file-validate", str(MENU / f"{NAME}.desktop"))
        self.assertEqual((result.returncode, result.stdout), (0, ""))

    def test_the_data_for_shops_are_valid(self):
        result = run("appstreamcli", "validate", "--no-net", str(DOCUMENTS / f"{NAME}.metainfo.xml"))
        self.assertEqual(result.returncode, 0, result.stdout)
        self.assertNotRegex(result.stdout, "(?m)^[EW]:")

    def test_shops_are_told_the_version_of_the_program(self):
        version = run(PROGRAM, "--version").stdout.split()[-1]
        text = (DOCUMENTS / f"{NAME}.metainfo.xml").read_text(encoding="utf-8")
        self.assertRegex(text, rf'<release version="{re.escape(version)}" date="\d{{4}}-\d\d-\d\d"/>')

    def test_the_window_says_the_name_of_its_entry(self):
        # A desktop without X takes the icon of a window from the entry that the program names.
        self.assertIn(f'setDesktopFileName(QStringLiteral("{NAME}"))',
                      (ROOT / "host/desktop/main.cpp").read_text(encoding="utf-8"))

    def test_there_is_an_icon_in_each_size_that_desktops_show(self):
        for side in SIDES:
            icon = DOCUMENTS / f"icons/{side}x{side}/apps/ferrowind.png"
            self.assertEqual(run("identify", "-format", "%m %w %h", str(icon)).stdout, f"PNG {side} {side}")

    def test_the_icon_that_grows_to_any_size_is_the_one_that_the_program_paints(self):
        folder = pathlib.Path(tempfile.mkdtemp(prefix="icons-"))
        self.addCleanup(shutil.rmtree, folder)
        for side in (16, 32, 128):
            drawn = folder / f"{side}.png"
            size = str(side)
            result = run("rsvg-convert", "-w", size, "-h", size, "-o", str(drawn), str(MENU / "ferrowind.svg"))
            self.assertEqual(result.returncode, 0, result.stdout)
            painted = DOCUMENTS / f"icons/{side}x{side}/apps/ferrowind.png"
            told = run("compare", "-metric", "RMSE", str(drawn), str(painted), "null:").stdout
            self.assertLess(float(re.search(r"\(([\d.e-]+)\)", told).group(1)), LIKE_EACH_OTHER, side)

    def test_the_manual_page_tells_every_option(self):
        page = DOCUMENTS / "ferrowind.1"
        self.assertEqual(run("mandoc", "-Tlint", "-Wwarning", str(page)).stdout, "")
        self.assertEqual(run("groff", "-ww", "-man", "-Tutf8", "-z", str(page)).stdout, "")
        shown = run("mandoc", "-Tascii", str(page)).stdout
        shown = re.sub(r".\x08", "", shown)
        options = re.findall(r"--[a-z-]+", run(PROGRAM, "--help").stdout)
        self.assertIn("--database", options)
        for option in options:
            self.assertIn(option, shown)


if __name__ == "__main__":
    unittest.main()
