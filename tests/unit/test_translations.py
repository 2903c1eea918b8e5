#!/usr/bin/env python3
"""What the check of the catalogues complains of: one damaged translation after the other.

Usage: test_translations.py FOLDER_OF_THE_SCRIPT
"""
import sys
import unittest

sys.path.insert(0, sys.argv.pop())
import translations  # noqa: E402


def complaints(code, source, text, state="", comment=""):
    return list(translations.complaints_of(code, source, translations.Message(text, state, comment)))


class Complaints(unittest.TestCase):
    def test_a_good_translation_has_none(self):
        self.assertEqual(complaints("de", "Selected: %1 items", "Ausgewählt: %1"), [])

    def test_missing(self):
        self.assertEqual(complaints("de", "Save", ""), ["missing"])
        self.assertEqual(complaints("de", "Save", "  "), ["missing"])

    def test_unfinished(self):
        self.assertEqual(complaints("de", "Save", "Speichern", state="unfinished"), ["unfinished"])

    def test_vanished(self):
        self.assertEqual(complaints("de", "Save", "Speichern", state="vanished"), ["vanished"])

    def test_the_same_by_accident(self):
        self.assertEqual(complaints("de", "Save", "Save"), ["is the source's text"])

    def test_the_same_by_intent(self):
        self.assertEqual(complaints("de", "OK", "OK", comment="same"), [])

    def test_no_longer_the_same(self):
        self.assertEqual(len(complaints("de", "OK", "In Ordnung", comment="same")), 1)

    def test_lost_and_added_placeholders(self):
        self.assertEqual(complaints("fr", "%1 of %2", "%1"), ["placeholders differ"])
        self.assertEqual(complaints("fr", "%1 files", "%1 fichiers (%2)"), ["placeholders differ"])
        self.assertEqual(complaints("fr", "%1 of %2", "%2 : %1"), [])

    def test_a_lost_line_break(self):
        self.assertEqual(complaints("it", "One\n\nTwo", "Uno\nDue"), ["line breaks differ"])

    def test_a_lost_tag(self):
        self.assertEqual(complaints("nl", "<b>%1</b> entries", "%1 items"), ["tags differ"])

    def test_a_lost_emblem(self):
        self.assertEqual(complaints("es", "🔍 Start Scan", "Analizar"), ["emoji or marks differ"])

    def test_blanks_at_the_ends(self):
        self.assertEqual(complaints("pt", " %1 failed", "%1 falhou"), ["leading blanks differ"])

    def test_dots(self):
        self.assertEqual(complaints("pt", "Scanning...", "A analisar"), ["dots at the end differ"])

    def test_chinese_that_is_left(self):
        self.assertIn("Chinese is left", complaints("ko", "退出", "退出"))
        self.assertEqual(complaints("ja", "退出", "終了"), [])

    def test_english_stays_as_it_is(self):
        self.assertEqual(complaints("en", "Clean Now", "Clean now"), ["differs from the English source"])
        self.assertEqual(complaints("en", "退出", "Exit"), [])


class Catalogues(unittest.TestCase):
    def test_a_stale_catalogue(self):
        current = {("A", "new"), ("A", "kept")}
        self.assertEqual(list(translations.differences("de", current, {("A", "kept"), ("A", "new")})), [])
        self.assertEqual(list(translations.differences("de", current, {("A", "kept"), ("B", "old")})),
                         ["de: A: missing: 'new'", "de: B: no longer in the source: 'old'"])

    def test_the_rules_are_among_the_texts(self):
        self.assertIn('QT_TRANSLATE_NOOP("JunkRule", "Prefetch Files")', translations.rule_texts())
        self.assertIn('QT_TRANSLATE_NOOP("BrowserRule", "Website Cookies (requires re-login to all sites)")',
                      translations.rule_texts())


unittest.main()
