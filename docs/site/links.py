"""usage: links.py SITE: every link within the site leads to a file, and to a place in it; mkdocs checks files.
"""
import sys
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote, urlsplit


class Page(HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.places, self.links = {""}, set()
        self.feed(path.read_text())

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name == "id":
                self.places.add(value)
            elif name in ("href", "src") and value:
                self.links.add(value)


site = Path(sys.argv[1]).resolve()
pages = {path: Page(path) for path in site.rglob("*.html") if path.name != "404.html"}
broken = 0
for path, page in pages.items():
    for link in page.links:
        parts = urlsplit(link)
        if parts.scheme or parts.netloc:
            continue
        target = (path.parent / unquote(parts.path)).resolve() if parts.path else path
        if target.is_dir():
            target /= "index.html"
        if not target.is_file() or (target in pages and unquote(parts.fragment) not in pages[target].places):
            print(f"{path.relative_to(site)}: {link} leads nowhere")
            broken += 1
sys.exit(broken > 0)
