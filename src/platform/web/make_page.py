#!/usr/bin/env python3
"""Makes the one file of the editor for browsers, and beside it what a place that serves it may offer
too: a manifest and a worker, by which it can be installed and works offline.

    make_page.py SOURCE_FOLDER SKIN_HEADER PROGRAM OUTPUT

PROGRAM: the compiled program's script; its code (.wasm) stands beside it."""
import base64
import hashlib
import io
import json
import pathlib
import re
import sys

from fontTools import subset, ttLib

PARTS = ("events", "brush", "files", "frame", "windows", "dialogs", "start")
FONTS = {"FONT": "DejaVuSans.ttf", "BOLD_FONT": "DejaVuSans-Bold.ttf"}
FONT_FOLDER = pathlib.Path("/usr/share/fonts/truetype/dejavu")
LETTERS = [*range(0x20, 0x7F), *range(0xA0, 0x180), *range(0x2010, 0x2027), 0x2026, 0x20AC, 0x2122]


def in_base64(data):
    return base64.b64encode(data).decode()


def font(name):
    """Its Latin letters."""
    options = subset.Options(flavor="woff2", hinting=False)
    options.drop_tables += ["FFTM"]  # when the font was made
    letters = ttLib.TTFont(FONT_FOLDER / name)
    chooser = subset.Subsetter(options)
    chooser.populate(unicodes=LETTERS)
    chooser.subset(letters)
    letters.flavor = "woff2"
    data = io.BytesIO()
    letters.save(data)
    return in_base64(data.getvalue())


def palette(skin):
    rows = (line.split() for line in (skin / "palette.txt").read_text().splitlines())
    return {row[0]: row[1] for row in rows if row and not row[0].startswith("#")}


def colored(text, colors):
    """The text with the colours in the places of their names; a name that is no role fails."""
    at_rules = ("font", "media")
    return re.sub(r"@([a-z_]+)",
                  lambda found: found[0] if found[1].split("_")[0] in at_rules else colors[found[1]],
                  text)


def vectors(path, width, faces):
    """A picture as wide as all its faces side by side, as its viewBox is."""
    text = path.read_text()
    return in_base64(text.replace(f'width="{width}"', f'width="{width * faces}"', 1).encode())


def pictures(skin, header):
    """As Skin.load of the page has them."""
    rows = re.findall(r'\{"(\w*)", (\d+), (\d+), (\d+)\}', header.read_text())
    return [{"name": name, "number": number, "width": int(width), "height": int(height),
             "faces": int(faces), "svg": vectors(skin / f"{name}.svg", int(width), int(faces))}
            for number, (name, width, height, faces) in enumerate(rows) if name]


def policy(scripts, style):
    """Nothing but what stands in the page, and from its own place what installs it."""
    def allowed(text):
        return f"'sha256-{in_base64(hashlib.sha256(text.encode()).digest())}'"
    return "; ".join((
        "default-src 'none'", f"script-src {' '.join(map(allowed, scripts))} 'wasm-unsafe-eval'",
        f"style-src {allowed(style)}", "img-src data: blob:", "font-src data:", "connect-src 'none'",
        "manifest-src 'self'", "worker-src 'self'", "base-uri 'none'", "form-action 'none'"))


def main():
    source, header, program, output = map(pathlib.Path, sys.argv[1:])
    page = source / "src/platform/web/page"
    skin = source / "assets/skin"
    sounds = {path.name: in_base64(path.read_bytes())
              for path in sorted((source / "assets/sounds").iterdir())}
    colors = palette(skin)
    style = colored((page / "page.css").read_text(), colors)
    for place, name in FONTS.items():
        style = style.replace(f"@{place}@", font(name))
    style = f"\n{style}\n"
    data = (f"const kSkin = {json.dumps(pictures(skin, header))};\n"
            f"const kSounds = {json.dumps(sounds)};\n"
            f"const kProgram = '{in_base64(program.with_suffix('.wasm').read_bytes())}';\n")
    own = "\n" + data + "\n".join((page / f"{part}.js").read_text() for part in PARTS) + "\n"
    made = "\n" + program.read_text().replace("</script", "<\\/script") + "\n"
    icon = skin / "app_icon.svg"
    text = (page / "page.html").read_text()
    for place, content in (("POLICY", policy((own, made), style)), ("ICON", in_base64(icon.read_bytes())),
                           ("INK", colors["ink"])):
        text = text.replace(f"@{place}@", content)
    for place, content in (("STYLE", style), ("PAGE", own), ("PROGRAM", made)):
        text = text.replace(f"\n@{place}@\n", content)
    output.write_text(text)
    folder = output.parent
    (folder / "icon.svg").write_bytes(icon.read_bytes())
    (folder / "offline.js").write_text(
        (page / "offline.js").read_text().replace("@PAGE@", output.name)
        .replace("@VERSION@", hashlib.sha256(text.encode()).hexdigest()[:16]))
    (folder / "manifest.webmanifest").write_text(json.dumps({
        "name": "Ombrelia Terrain Editor", "short_name": "Terrain Editor", "start_url": output.name,
        "display": "standalone", "background_color": colors["ink"], "theme_color": colors["ink"],
        "icons": [{"src": "icon.svg", "type": "image/svg+xml", "sizes": "any"}]}, indent=2) + "\n")


if __name__ == "__main__":
    main()
