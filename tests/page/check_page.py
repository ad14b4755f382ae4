#!/usr/bin/python3
"""Looks at the page beside a list file in a real browser, as a reader of it would.

Usage: check_page.py LIST-FILE [FOLDER]
Opens LIST-FILE.html in Chromium (Debian's chromium, chromium-driver, python3-selenium) in three widths
and on paper, and ends with 0 if nothing is wrong with it: no error on the console, nothing fetched,
no sideways scrolling, a mark for each receptor, figures that stand in the list file. Into FOLDER go
pictures of each width, light and dark, and the printed pages. Each check is shown to bite first, on a
page that was spoilt.
"""
import base64
import pathlib
import re
import sys
import tempfile
import time

from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service

WIDTHS = (360, 1024, 1600)
SPOILT = [  # what is changed in the page, into what, and what must be noticed then
    ("</body>", "<script>throw 1</script></body>", "console"),
    ("</body>", '<img src="file:///nowhere.png" alt=""/></body>', "fetched"),
    ("<main", '<p style="width:5000px">wide</p><main', "sideways"),
    ('class="marks">', 'class="marks"><use/>', "marks"),
    ('<td class="n">', '<td class="n">7', "figure"),
]


def open_browser():
    options = Options()
    for argument in ("--headless=new", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
                     "--disable-dev-shm-usage"):
        options.add_argument(argument)
    options.binary_location = "/usr/bin/chromium"
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    return webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)


def resize(browser, width):
    browser.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
        "width": width, "height": 900, "deviceScaleFactor": 1, "mobile": False})


def theme(browser, name):
    browser.execute_cdp_cmd("Emulation.setEmulatedMedia", {
        "features": [{"name": "prefers-color-scheme", "value": name}]})


def faults(browser, page, listing):
    """Every fault of the page as a sentence, each beginning with the word for its kind."""
    found = []
    browser.get_log("browser")
    browser.get(page.as_uri())
    found += ["console: " + entry["message"] for entry in browser.get_log("browser")]
    fetched = browser.execute_script(
        "return performance.getEntriesByType('resource').length + document.querySelectorAll("
        "'[src], link, script, [href]:not([href^=\"#\"])').length")
    if fetched:
        found.append("fetched: %d other files" % fetched)
    for width in WIDTHS:
        resize(browser, width)
        wide = browser.execute_script("return document.documentElement.scrollWidth")
        if wide > width:
            found.append("sideways: %d px at a width of %d" % (wide, width))
    marks = browser.execute_script(
        "return document.querySelectorAll('.marks use, .marks circle').length")
    receptors = int(re.search(r" lines, ([\d,]+) receptors?$", listing, re.M)[1].replace(",", ""))
    drawn = re.search(r"Drawn are ([\d,]+) of ([\d,]+) receptors", browser.page_source)
    if drawn and int(drawn[2].replace(",", "")) == receptors:
        receptors = int(drawn[1].replace(",", ""))
    if marks != receptors:
        found.append("marks: %d of %d receptors" % (marks, receptors))
    figures = browser.execute_script(
        "return Array.from(document.querySelectorAll('td.n'), cell => cell.textContent.trim())")
    if not figures:
        found.append("figure: none at all")
    words = set(listing.split())
    found += ["figure: %s is not in the list file" % figure for figure in figures
              if figure and not set(figure.replace("%", "").split()) <= words]
    return found


def expect_noticed(browser, page, listing):
    text = page.read_text(encoding="utf-8")
    with tempfile.TemporaryDirectory(prefix="korventally_page") as folder:
        for old, new, kind in SPOILT:
            spoilt = pathlib.Path(folder) / "spoilt.html"
            if old not in text:
                sys.exit("The check of a page cannot be tried: there is no %s in it." % old)
            spoilt.write_text(text.replace(old, new, 1), encoding="utf-8")
            if not any(fault.startswith(kind) for fault in faults(browser, spoilt, listing)):
                sys.exit("A spoilt page passed: %s instead of %s." % (new, old))


def photograph(browser, page, folder):
    browser.get(page.as_uri())
    for name in ("light", "dark"):
        theme(browser, name)
        for width in WIDTHS:
            resize(browser, width)
            time.sleep(0.2)
            picture = browser.execute_cdp_cmd(
                "Page.captureScreenshot", {"captureBeyondViewport": True, "format": "png"})
            (folder / ("page-%s-%d.png" % (name, width))).write_bytes(
                base64.b64decode(picture["data"]))
    theme(browser, "light")


def paper(browser, page):
    browser.get(page.as_uri())
    printed = browser.execute_cdp_cmd("Page.printToPDF", {"preferCSSPageSize": True})
    return base64.b64decode(printed["data"])


def main():
    listing_file = pathlib.Path(sys.argv[1]).resolve()
    page = listing_file.with_name(listing_file.name + ".html")
    listing = listing_file.read_text(encoding="utf-8", errors="replace")
    browser = open_browser()
    try:
        expect_noticed(browser, page, listing)
        found = faults(browser, page, listing)
        printed = paper(browser, page)
        sheets = len(re.findall(rb"/Type\s*/Page\b", printed))
        if not printed.startswith(b"%PDF") or sheets == 0:
            found.append("paper: nothing was printed")
        if len(sys.argv) > 2:
            folder = pathlib.Path(sys.argv[2])
            photograph(browser, page, folder)
            (folder / "page.pdf").write_bytes(printed)
    finally:
        browser.quit()
    for fault in found:
        print(fault)
    print("%d widths, %d sheets of paper, %d faults" % (len(WIDTHS), sheets, len(found)))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
