"""Looks at the help pages in a real browser: a wide, a middle and a narrow window, dark and light.

Every page is copied beside a script that measures it and put into frames of these widths. The
browser runs without a screen, opens local files only, and prints the page with what was found.
The exit code is 77, which CTest reads as skipped, where there is no Chromium.
"""

import html
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

BROWSERS = ("chromium", "google-chrome", "google-chrome-stable", "chromium-browser")
WIDTHS = (1200, 768, 360)
# As the browser's setting numbers what a reader prefers.
SCHEMES = {"dark": 0, "light": 1}
SMALLEST_TEXT = 12
LEAST_CONTRAST = 4.5
SKIPPED = 77
TIMEOUT_SECONDS = 100

MEASURE = """
const found = [];
const say = text => { if (found.length < 20) found.push(text); };
const root = document.documentElement;
const channels = color => color.match(/[0-9.]+/g).map(Number);
const isClear = color => channels(color)[3] === 0;
function luminance(color) {
  const [r, g, b] = channels(color).map(value => value / 255).map(
    value => value <= 0.03928 ? value / 12.92 : ((value + 0.055) / 1.055) ** 2.4);
  return 0.2126 * r + 0.7152 * g + 0.0722 * b;
}
function ground(element) {
  while (element && isClear(getComputedStyle(element).backgroundColor)) {
    element = element.parentElement;
  }
  return element ? getComputedStyle(element).backgroundColor : 'rgb(255, 255, 255)';
}
function contrast(element) {
  const pair = [getComputedStyle(element).color, ground(element)].map(luminance);
  return (Math.max(...pair) + 0.05) / (Math.min(...pair) + 0.05);
}
function lookAtTexts() {
  const walk = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
  let count = 0;
  while (walk.nextNode()) {
    const text = walk.currentNode.data.trim();
    const element = walk.currentNode.parentElement;
    if (!text || element.tagName === 'SCRIPT') continue;
    ++count;
    const size = parseFloat(getComputedStyle(element).fontSize);
    const named = `"${text.slice(0, 40)}"`;
    if (size < SMALLEST_TEXT) say(`${named} is only ${size} pixels high`);
    if (contrast(element) < LEAST_CONTRAST) {
      say(`${named} has a contrast of only ${contrast(element).toFixed(1)}`);
    }
  }
  return count;
}
function lookAtLinks() {
  for (const link of document.querySelectorAll('a[href^="#"]')) {
    const target = document.getElementById(link.hash.slice(1));
    if (!target || !target.offsetHeight) say(`${link.hash} leads to nothing that shows`);
  }
}
function lookAtPictures() {
  for (const image of document.images) {
    const name = image.getAttribute('src');
    if (!image.complete || !image.naturalWidth) say(`${name} does not load`);
    else if (!image.offsetWidth) say(`${name} does not show`);
    else if (image.offsetWidth > image.naturalWidth) say(`${name} is stretched`);
  }
}
addEventListener('load', () => {
  if (innerWidth !== WANTED) say(`the window is ${innerWidth} pixels wide`);
  if (root.scrollWidth > innerWidth) {
    say(`the page is ${root.scrollWidth} pixels wide`);
  }
  const seen = { texts: lookAtTexts(), dark: matchMedia('(prefers-color-scheme: dark)').matches };
  lookAtLinks();
  lookAtPictures();
  parent.postMessage({ page: PAGE, width: WANTED, found, ...seen }, '*');
});
"""

FRAMES = """<!DOCTYPE html><html lang="en"><head><meta charset="utf-8"><title>Frames</title></head>
<body><pre id="findings"></pre><script>
addEventListener('message', event => {{
  document.getElementById('findings').textContent += JSON.stringify(event.data) + '\\n';
}});
</script>{frames}</body></html>"""


def browser():
    """One that starts: what is installed may be a note that it is to be had elsewhere."""
    for name in BROWSERS:
        path = shutil.which(name)
        if path and subprocess.run([path, "--version"], capture_output=True,
                                   check=False).returncode == 0:
            return path
    return None


def with_script(page, text, width):
    constants = (f"const PAGE = {json.dumps(page)}, WANTED = {width}, "
                 f"SMALLEST_TEXT = {SMALLEST_TEXT}, LEAST_CONTRAST = {LEAST_CONTRAST};")
    return text.replace("</body>", f"<script>{constants}{MEASURE}</script></body>")


def prepare(folder, pages):
    """Copies for every width, and the page of frames that shows all of them."""
    frames = []
    for page, text in pages.items():
        for width in WIDTHS:
            name = f"{width}_{page}"
            (folder / name).write_text(with_script(page, text, width), encoding="utf-8")
            frames.append(f'<iframe src="{name}" width="{width}" height="800" '
                          'style="border: 0"></iframe>')
    path = folder / "frames.html"
    path.write_text(FRAMES.format(frames="".join(frames)), encoding="utf-8")
    return path


def findings(program, path, scheme, profile):
    """What the frames said: one dictionary for each."""
    answer = subprocess.run(
        [program, "--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
         "--no-first-run", "--disable-background-networking", "--disable-component-update",
         f"--user-data-dir={profile}", f"--blink-settings=preferredColorScheme={SCHEMES[scheme]}",
         "--window-size=1300,900", "--virtual-time-budget=20000", "--dump-dom", path.as_uri()],
        capture_output=True, text=True, encoding="utf-8", timeout=TIMEOUT_SECONDS, check=False)
    listed = re.search(r'<pre id="findings">(.*?)</pre>', answer.stdout, re.DOTALL)
    if not listed:
        sys.exit(f"The browser did not show the page: {answer.stderr[-500:]}")
    return [json.loads(line) for line in html.unescape(listed[1]).splitlines()]


def complaints(said, pages, scheme):
    """Sentences about what the frames said, and about frames that said nothing."""
    for page in pages:
        for width in WIDTHS:
            where = f"{page}, {width} pixels wide, {scheme}"
            frame = next((f for f in said if (f["page"], f["width"]) == (page, width)), None)
            if frame is None:
                yield f"{where}: was not measured"
                continue
            if frame["dark"] != (scheme == "dark"):
                yield f"{where}: has the other colours"
            if not frame["texts"]:
                yield f"{where}: has no text"
            yield from (f"{where}: {sentence}" for sentence in frame["found"])


def look_at(program, source):
    """All complaints about the pages of a folder."""
    pages = {path.name: path.read_text(encoding="utf-8")
             for path in sorted(source.glob("help_*.html"))}
    if not pages:
        return [f"There are no pages in {source}"]
    found = []
    with tempfile.TemporaryDirectory(prefix="ormala-help.") as work:
        folder = pathlib.Path(work, "help")
        shutil.copytree(source, folder)
        path = prepare(folder, pages)
        for scheme in SCHEMES:
            said = findings(program, path, scheme, pathlib.Path(work, "profile"))
            found += complaints(said, pages, scheme)
    return found


def main():
    program = browser()
    if not program:
        print("There is no Chromium or Chrome here: the pages are not looked at in a browser.")
        sys.exit(SKIPPED)
    found = look_at(program, pathlib.Path(sys.argv[1]))
    print("\n".join(found) or "The pages show well at every width.")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
