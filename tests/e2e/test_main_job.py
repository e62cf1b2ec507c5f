"""The main job on the demonstration store, three times over: import the sample table and the photographs,
search, edit, export, send to the device, delete, fetch from the device. Looks at the store, the exported
bytes and the device's own file, not only at the screen."""

import json
import shutil
import unittest

from case import SAMPLES, EndToEnd

EXPECTED_DEMO = 500
SAMPLE_COUNT = 60


class MainJob(EndToEnd):
    def setUp(self):
        super().setUp()
        self.samples = self.home / "samples"  # as an operator would have them
        shutil.copytree(SAMPLES, self.samples)

    @property
    def store(self):
        return self.home / "data" / "qarn-client" / "demo" / "persons.db"

    def device_faces(self, channel=1):
        """Serial numbers on a channel, from the journal that the device keeps."""
        faces = {}
        for line in (self.store.parent / "device.json").read_text(encoding="utf-8").splitlines():
            entry = json.loads(line)
            if entry.get("channel") != channel:
                continue
            if "face" in entry:
                faces[entry["face"]["id"]] = entry["face"]["externalId"]
            else:
                faces.pop(entry["deleted"], None)
        return set(faces.values())

    def total(self, client):
        return int(client.widget("totalCnt")["text"].split()[-1])

    def wait_total(self, client, count):
        client.until(lambda: client.widgets("totalCnt") and self.total(client) == count, f"{count} persons")

    def wait_idle(self, client):
        client.until(lambda: not client.widgets("caption"), "the overlay goes")

    def close_toasts(self, client):
        while toasts := client.widgets("alertText"):  # they also go by themselves
            client.click_at(toasts[0])

    def import_samples(self, client):
        client.click("importPersonsBt")
        client.click("filePath")
        client.choose_file(self.samples / "persons.csv")
        self.picture(client, "import-table")
        client.click("importBt")
        self.wait_total(client, EXPECTED_DEMO + SAMPLE_COUNT)
        self.wait_idle(client)
        self.close_toasts(client)

        client.click_item("treeWidget", "Visitors")
        client.click("importPersonsBt")
        client.click("personFaceChecked")
        client.click("filePath")
        client.choose_file(self.samples / "portraits")
        self.picture(client, "import-faces")
        client.click("importBt")
        client.until(lambda: client.texts("caption") or client.texts("alertText"), "the import")
        self.wait_idle(client)
        self.close_toasts(client)
        with_face = self.query("SELECT count(*) FROM persons p JOIN person_faces f ON f.person = p.number"
                               " AND f.slot = 1 WHERE p.serial_num GLOB 'P[0-9]*'")
        self.assertEqual(with_face, [(SAMPLE_COUNT,)])

    def edit_one(self, client):
        client.fill("serialNum", "P0002")
        client.click("searchBt")
        client.until(lambda: client.rows() == ["P0002"], "the person searched for")
        self.picture(client, "search")
        client.click_at(client.widget("editBt", kind="RowButton"))
        client.fill("email", "tobias@register.example")
        self.picture(client, "edit-person")
        client.click("addBt")
        client.until(lambda: self.query("SELECT email FROM persons WHERE serial_num = 'P0002'")
                     == [("tobias@register.example",)], "the edit in the store")

    def export(self, client):
        target = self.home / "visitors.csv"
        client.click("resetBt")
        client.click_item("treeWidget", "Visitors")
        client.click("exportPersonsBt")
        children = client.widget("exportChildren")
        client.click_at(children, (8, children["height"] / 2))
        client.until(lambda: client.widget("exportChildren")["checked"] == 0, "children are left out")
        self.picture(client, "export")
        client.click("exportBt")
        client.choose_file(target)
        client.until(target.exists, "the exported file")
        self.wait_idle(client)
        self.close_toasts(client)
        lines = target.read_text(encoding="utf-8").split("\n")
        self.assertEqual(lines[0], "*Serail Num,*Person Name,Organization,Sex,Email,Phone Num,Identity ID,"
                                   "Valid Time,Invalid Time,")
        rows = self.query("SELECT p.serial_num, p.name, p.sex, p.email, p.phone_num, p.identity_id FROM records r"
                          " JOIN persons p ON p.number = r.person JOIN organizations o ON o.number = r.organization"
                          " WHERE o.name = 'Visitors' ORDER BY r.number")
        self.assertEqual(len(lines), len(rows) + 2)
        for line, (serial, name, sex, email, phone, identity) in zip(lines[1:], rows):
            word = "Male" if sex == 1 else "Female"
            start = f"{serial},{name},All Organizations > Visitors,{word},{email},{phone},{identity},"
            self.assertTrue(line.startswith(start), f"{line!r} does not start with {start!r}")
        return rows

    def check_rows(self, client, count):
        boxes = sorted(client.widgets("orderNum"), key=lambda w: w["y"])[:count]
        for box in boxes:
            client.click_at(box, (8, box["height"] / 2))

    def check_device(self, client):
        entry = client.item("treeWt", "Simulated door")
        client.click_at(entry, (8, entry["height"] / 2))
        client.until(lambda: client.item("treeWt", "Simulated door")["checked"] == 2, "the device is checked")

    def send(self, client, serials):
        self.check_rows(client, len(serials))
        client.click("synchronizeToDevBt")
        client.click("personsChecked")
        self.check_device(client)
        self.picture(client, "send-to-device")
        client.click("synchronizeBt")
        client.until(lambda: self.device_faces(1) == serials == self.device_faces(2), "the faces on the device")
        self.wait_idle(client)
        self.close_toasts(client)

    def delete(self, client, serials):
        client.click("deletePersonsBt")
        menu = client.until(lambda: [w for w in client.windows() if w["class"].endswith("XMenu")], "the menu")[0]
        client.click_at(menu, (40, 14))
        client.click("okBt")
        marks = ",".join("?" * len(serials))
        client.until(lambda: self.query(f"SELECT count(*) FROM persons WHERE serial_num IN ({marks})", *serials)
                     == [(0,)], "the persons are deleted")

    def fetch(self, client, serials):
        client.click("synchronizeFromDevBt")
        self.check_device(client)
        self.picture(client, "fetch-from-device")
        client.click("okBt")
        marks = ",".join("?" * len(serials))
        client.until(lambda: self.query("SELECT count(*) FROM persons p JOIN person_faces f ON f.person = p.number"
                                        f" WHERE f.slot = 1 AND p.serial_num IN ({marks})", *serials)
                     == [(len(serials),)], "the persons are back with their photographs")
        self.wait_idle(client)
        self.close_toasts(client)

    def main_job(self):
        client = self.start("--demo")
        self.wait_total(client, EXPECTED_DEMO)
        self.picture(client, "persons-page")
        self.import_samples(client)
        self.edit_one(client)
        rows = self.export(client)
        serials = {row[0] for row in rows[:3]}
        self.send(client, serials)
        self.delete(client, serials)
        self.wait_total(client, len(rows) - len(serials))
        self.fetch(client, serials)
        self.wait_total(client, len(rows))
        client.click_item("pageList", "Devices")
        client.until(lambda: "Online" in [i["text"] for i in client.items("devicesTable")], "the device is online")
        self.picture(client, "devices-page")
        client.click_item("pageList", "Persons")
        client.click("alertsBt")
        client.widget("alertTable")
        self.picture(client, "messages")
        client.key("Escape")
        client.until(lambda: not client.widgets("alertTable"), "the messages close")
        client.quit()

    def test_first_time(self):
        self.main_job()

    def test_second_time(self):
        self.main_job()

    def test_third_time(self):
        self.main_job()


if __name__ == "__main__":
    unittest.main(verbosity=2)
