#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes the manual's PDF of its Markdown text: makepdf.py manual_LANGUAGE.md MANUAL.pdf

The text is what GitHub shows, with two additions: the paragraph "[TOC]" is replaced by a table of
contents, and the text of a picture becomes the line below it. What it looks like is in manual.css.
Qt's web engine would print the page as well, but without outline, page numbers, title and language.
A link that leads nowhere, a picture that is not there, or a rule that is not understood is a fault,
and then there is no PDF.
"""

import html
import logging
import os
import re
import sys
from pathlib import Path

import markdown
import weasyprint
from markdown.extensions.toc import TocExtension, slugify_unicode

# A paragraph that is nothing but a picture.
PICTURE = re.compile(r'<p>(<img alt="([^"]*)" src="[^"]*" />)</p>')
# The PDF names pictures after their addresses, so these must not say where the sources lie.
ROOT = 'file:///'


class Faults(logging.Handler):
    """Keeps what is logged as a warning or worse."""

    def __init__(self):
        super().__init__(logging.WARNING)
        self.texts = []

    def emit(self, record):
        self.texts.append(record.getMessage())


def page_of(text, language):
    """The HTML page of a manual."""
    contents = TocExtension(toc_depth='2-3', slugify=slugify_unicode)
    converter = markdown.Markdown(extensions=['tables', 'fenced_code', contents])
    body = converter.convert(text)
    body = PICTURE.sub(r'<figure>\1<figcaption>\2</figcaption></figure>', body)
    title = re.search(r'^# (.+)$', text, re.MULTILINE)
    if title is None:
        raise ValueError('no title')
    return (f'<!DOCTYPE html><html lang="{language}"><head><meta charset="utf-8">'
            f'<title>{html.escape(title[1])}</title></head><body>{body}</body></html>')


def make(source, target):
    """Writes the PDF; returns what is wrong with the manual."""
    faults = Faults()
    weasyprint.LOGGER.handlers = [faults]
    language = source.stem.rpartition('_')[2]
    page = page_of(source.read_text(encoding='utf-8'), language)

    def fetch(address):
        path = source.resolve().parent / address.removeprefix(ROOT)
        return weasyprint.default_url_fetcher(path.as_uri())

    pdf = weasyprint.HTML(string=page, base_url=ROOT, url_fetcher=fetch).write_pdf(
        stylesheets=[Path(__file__).with_name('manual.css')])
    if not faults.texts:
        target.write_bytes(pdf)
    return faults.texts


def main():
    if len(sys.argv) != 3:
        return 'usage: makepdf.py manual_LANGUAGE.md MANUAL.pdf'
    # Fonts that are cut down have a date; the same text is to give the same file.
    os.environ['SOURCE_DATE_EPOCH'] = '0'
    source, target = map(Path, sys.argv[1:])
    try:
        faults = make(source, target)
    except (OSError, ValueError) as error:
        faults = [error]
    return '\n'.join(f'{source}: {fault}' for fault in faults) or None


if __name__ == '__main__':
    sys.exit(main())
