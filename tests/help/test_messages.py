# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""Whether the messages that the instructions explain are those that the program shows: test_messages.py PROJECT"""

import pathlib
import re
import sys
import unittest

PROJECT = pathlib.Path(sys.argv.pop(1))
FOLDERS = ["core", "centerpivot", "solidset", "report", "entry", "settings", "ui"]
LITERAL = r'"(?:[^"\\\n]|\\.)*"'


def texts_of_the_program():
    """Its string literals, those that stand one after the other joined."""
    for folder in FOLDERS:
        for source in sorted((PROJECT / folder).rglob("*.[ch]*")):
            for joined in re.findall(rf"{LITERAL}(?:\s*{LITERAL})*", source.read_text(encoding="utf-8")):
                text = "".join(piece[1:-1] for piece in re.findall(LITERAL, joined))
                yield text.replace(r"\r", "\r").replace(r"\n", "\n").replace(r"\"", '"')


class MessagesTest(unittest.TestCase):
    def setUp(self):
        self.texts = list(texts_of_the_program())
        source = (PROJECT / "help/help.md").read_text(encoding="utf-8")
        section = re.search(r"^## What the messages ask for$(.*?)^## ", source, re.MULTILINE | re.DOTALL).group(1)
        self.messages = [" ".join(message.split()) for message in re.findall(r"\*\*(.*?)\*\*", section, re.DOTALL)]
        self.titles = re.findall(r'title "([^"]*)"|under "([^"]*)"', section)

    def test_there_are_messages(self):
        self.assertGreater(len(self.messages), 30)
        self.assertEqual(len(self.titles), 3)

    def test_each_message_is_the_programs(self):
        for message in self.messages:
            for part in message.split("…"):
                self.assertTrue(any(part.strip() in text for text in self.texts), part)

    def test_each_title_is_the_programs(self):
        for title in map("".join, self.titles):
            self.assertIn(title, self.texts)


if __name__ == "__main__":
    unittest.main(verbosity=2)
