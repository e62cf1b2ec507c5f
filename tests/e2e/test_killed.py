"""The client is killed in the middle of an import and of a synchronisation, and starts again on a register
that is whole."""

import unittest

from case import EndToEnd

HEADER = "*Serial Num,*Person Name,*Organization,*Sex,Phone Num,Email,Valid Time,Invalid Time,\n"
NEW_ROWS = 20000
UPDATES = 20000


class Killed(EndToEnd):
    """What both kinds of kill share."""

    arguments = ()

    def assert_whole(self):
        self.assertEqual(self.query("PRAGMA integrity_check"), [("ok",)])
        self.assertEqual(self.query("PRAGMA foreign_key_check"), [])
        self.assertEqual(self.query("SELECT count(*) FROM persons WHERE number NOT IN (SELECT person FROM records)"),
                         [(0,)])
        return self.query("SELECT count(*) FROM records")[0][0]

    def restart(self):
        client = self.start(*self.arguments)
        count = self.assert_whole()
        client.until(lambda: client.widgets("totalCnt")
                     and int(client.widget("totalCnt")["text"].split()[-1]) == count, f"{count} persons")
        return client, count


class KilledWhileImporting(Killed):
    def table(self, name, rows):
        path = self.home / name
        path.write_text(HEADER + "".join(rows), encoding="utf-8")
        return path

    def start_import(self, client, path):
        client.click("importPersonsBt")
        client.click("filePath")
        client.choose_file(path)
        client.click("importBt")

    def test_killed_while_importing(self):
        client = self.start()
        new = self.table("new.csv", (f"N{n},Person {n},Gate/{n % 40},1,,,,,\n" for n in range(NEW_ROWS)))
        journal = self.store.with_name("persons.db-wal")
        before = journal.stat().st_size if journal.exists() else 0
        self.start_import(client, new)
        client.until(lambda: journal.exists() and journal.stat().st_size > before, "the import writes")
        client.kill()
        client, count = self.restart()
        self.assertIn(count, (0, NEW_ROWS), "new persons come all at once or not at all")
        if count == 0:
            self.start_import(client, new)
        client.until(lambda: self.assert_whole() == NEW_ROWS, "all new persons")
        client.until(lambda: not client.widgets("caption"), "the import ends")

        # Existing persons are updated one by one; what was done stays.
        self.start_import(client, self.table(
            "again.csv", (f"N{n},Renamed {n},,1,,,,,\n" for n in range(UPDATES))))
        client.until(lambda: self.query("SELECT count(*) FROM persons WHERE name LIKE 'Renamed%'")[0][0] > 20,
                     "some updates")
        client.kill()
        client, count = self.restart()
        self.assertEqual(count, NEW_ROWS)
        renamed = self.query("SELECT count(*), max(CAST(substr(serial_num, 2) AS INTEGER)) FROM persons"
                             " WHERE name LIKE 'Renamed%'")[0]
        self.assertEqual(renamed[0], renamed[1] + 1, "the updates that were done are the first ones")
        client.quit()


class KilledWhileSynchronising(Killed):
    arguments = ("--demo",)

    @property
    def store(self):
        return self.home / "data" / "qarn-client" / "demo" / "persons.db"

    def test_killed_while_synchronising(self):
        client = self.start(*self.arguments)
        client.click_item("treeWidget", "All Organizations")
        client.click("synchronizeToDevBt")
        entry = client.item("treeWt", "Simulated door")
        client.click_at(entry, (8, entry["height"] / 2))
        client.click("synchronizeBt")
        journal = self.store.parent / "device.json"
        client.until(lambda: journal.exists() and journal.stat().st_size > 100000, "some faces on the device")
        self.assertTrue(client.widgets("caption"), "it still synchronises")
        client.kill()
        client, count = self.restart()
        self.assertEqual(count, 500)
        client.until(lambda: len(client.rows()) == 50, "the first page")
        client.quit()


if __name__ == "__main__":
    unittest.main(verbosity=2)
