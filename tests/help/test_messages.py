# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""Whether the instructions explain the messages that the program shows, and those only: test_messages.py PROJECT"""

import pathlib
import re
import sys
import unittest

PROJECT = pathlib.Path(sys.argv.pop(1))
FOLDERS = ["core", "centerpivot", "solidset", "report", "entry", "settings", "ui"]
# What shows a message, and what stands before its text.
SHOWN = (r"(?:\b(?:Tell|TellError|Ask|IsConfirmed|AddError|AddWarning|AddParagraph\(checks,|RequireEntry\([\w.]+,|ShowNotice)\(?"
         r"(?:std::string\{)?|QMessageBox::NoIcon, windowTitle\(\),\s*QString\(|\.noFileMessage =|\{&UserSettings::\w+,)\s*")
LITERAL = r'"(?:[^"\\\n]|\\.)*"'


def texts_of_the_program(behind=""):
    """Its string literals, those that stand one after the other joined; those behind a pattern where one is given."""
    for folder in FOLDERS:
        for source in sorted((PROJECT / folder).rglob("*.[ch]*")):
            for joined in re.findall(rf"{behind}({LITERAL}(?:\s*{LITERAL})*)", source.read_text(encoding="utf-8")):
                text = "".join(piece[1:-1] for piece in re.findall(LITERAL, joined))
                yield text.replace(r"\r", "\r").replace(r"\n", "\n").replace(r"\"", '"')


class MessagesTest(unittest.TestCase):
    def setUp(self):
        self.texts = list(texts_of_the_program())
        source = (PROJECT / "help/help.md").read_text(encoding="utf-8")
        section = re.search(r"^## What the messages ask for$(.*?)^## ", source, re.MULTILINE | re.DOTALL).group(1)
        section = section.replace(r"\*", "*")
        self.messages = [" ".join(message.split()) for message in re.findall(r"\*\*(.+?)\*\*", section, re.DOTALL)]
        self.titles = re.findall(r'title "([^"]*)"|under "([^"]*)"', section)

    def test_there_are_messages(self):
        self.assertGreater(len(self.messages), 30)
        self.assertEqual(len(self.titles), 3)

    def test_each_message_is_the_programs(self):
        for message in self.messages:
            for part in message.split("…"):
                self.assertTrue(any(part.strip() in text for text in self.texts), part)

    def test_each_message_of_the_program_is_explained(self):
        parts = [part.strip() for message in self.messages for part in message.split("…") if part.strip()]
        shown = list(filter(None, texts_of_the_program(SHOWN)))
        self.assertGreaterEqual(len(shown), 50)
        for text in shown:
            self.assertTrue(any(part in text or text.strip() in part for part in parts), text)

    def test_each_title_is_the_programs(self):
        for title in map("".join, self.titles):
            self.assertIn(title, self.texts)


if __name__ == "__main__":
    unittest.main(verbosity=2)
