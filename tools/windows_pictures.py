#!/usr/bin/env python3
"""Takes the pictures of the native windows, on a display: a script opens the windows, as a host's would.

usage: windows_pictures.py FERROWINDCTL     by make_windows_pictures.sh
"""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
# Without them the frames of windows have letters for signs.
FONTS = pathlib.Path('/usr/share/wine/fonts')
COMPONENT = ROOT / 'build' / 'windows' / 'bin' / 'Ferrowind.dll'
PICTURE = ROOT / 'docs' / 'pictures' / 'calendars-windows.png'
WIDTH, HEIGHT = 1130, 540
TWIPS = 15

# The script's own message keeps its windows alive; it opens in the middle of the screen, below them.
HOST = r'''
Const kKey = "HKCU\Software\Tessaro\Ferrowind\"
Const kPlace = "Tessaro\Calendar\7E34C663-43BF-11d6-8AE5-0050228F1EE8\Window Calendars\"
Set shell = CreateObject("WScript.Shell")
shell.RegWrite kKey & "ConnectionString", "sqlite:Z:@DATABASE@"
shell.RegWrite kKey & kPlace & "Left", "Single:0"
shell.RegWrite kKey & kPlace & "Top", "Single:0"
shell.RegWrite kKey & kPlace & "Width", "Single:@WIDTH@"
shell.RegWrite kKey & kPlace & "Height", "Single:@HEIGHT@"
Set calendar = CreateObject("Ferrowind.Calendar")
calendar.Show
MsgBox "OK ends the script."
'''


def wine(prefix: pathlib.Path, *arguments: str) -> list[str]:
    return [str(ROOT / 'tools' / 'wine.sh'), str(prefix), *arguments]


def camera() -> bytes:
    command = ['import', '-silent', '-window', 'root', '-crop', f'{WIDTH}x{HEIGHT}+0+0', '+repage', 'ppm:-']
    return subprocess.run(command, stdout=subprocess.PIPE, check=True).stdout


def picture_at_rest() -> bytes:
    """One that has not changed for a while, and is not of an empty screen."""
    unchanged = 0
    last = b''
    for _ in range(100):
        time.sleep(0.3)
        seen = camera()
        unchanged = unchanged + 1 if seen == last and len(set(seen)) > 2 else 0
        if unchanged == 5:
            return seen
        last = seen
    sys.exit('The windows do not come to rest')


def main(tool: str) -> None:
    with tempfile.TemporaryDirectory(prefix='ferrowind-') as folder:
        home = pathlib.Path(folder)
        database = home / 'calendars.db'
        subprocess.run([tool, 'init', f'sqlite:{database}', '--year', '2026'], check=True, stdout=subprocess.DEVNULL)
        prefix = home / 'wine'
        subprocess.run(wine(prefix, 'cmd', '/c', 'exit'), check=True)
        for font in FONTS.glob('*.ttf'):
            shutil.copy(font, prefix / 'drive_c' / 'windows' / 'Fonts')
        subprocess.run(wine(prefix, 'regsvr32', '/s', f'Z:{COMPONENT}'), check=True)
        text = HOST
        for name, value in (('DATABASE', database), ('WIDTH', WIDTH * TWIPS), ('HEIGHT', HEIGHT * TWIPS)):
            text = text.replace(f'@{name}@', str(value))
        script = home / 'host.vbs'
        script.write_text(text)
        with subprocess.Popen(wine(prefix, 'cscript.exe', '//nologo', f'Z:{script}')) as host:
            picture_at_rest()
            # The year of the euro.
            subprocess.run(['xdotool', 'mousemove', '60', '100', 'click', '1', 'sleep', '1', 'type', '--delay', '80', 'eur'],
                           check=True)
            subprocess.run(['xdotool', 'key', '--delay', '300', 'Right', 'Down'], check=True)
            taken = picture_at_rest()
            subprocess.run(['convert', 'ppm:-', '-strip', '-define', 'png:compression-level=9', str(PICTURE)],
                           input=taken, check=True)
            subprocess.run(['wineserver', '--kill'], env={'WINEPREFIX': str(prefix), 'PATH': '/usr/bin:/bin'}, check=False)
            host.wait()
    print(PICTURE.relative_to(ROOT))


if __name__ == '__main__':
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(sys.argv[1])
