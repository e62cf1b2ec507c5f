"""From an empty store: organizations, fields, ten persons with photographs; page, filter, move, delete;
quit, start again, and find it all."""

import unittest

from case import PORTRAITS, EndToEnd

ROOT = "All Organizations"


class FirstDay(EndToEnd):
    def add_organization(self, client, parent, *names):
        client.click_item("treeWidget", parent)
        client.click("addOrganizationBt")
        for number, name in enumerate(names):
            client.fill("name", name, window="qarn_base::ItemModifyDlg")
            client.click("okBt" if number == len(names) - 1 else "addContinuouslyBt")
            client.until(lambda: name in [i["text"] for i in client.items("treeWidget")], f"{name} in the tree")

    def add_person(self, client, number, name, last):
        client.fill("name", name, window="qarn_personMgr::PersonInfoModifyDlg")
        client.fill("serailNum", f"a{number:03}")
        client.click_at(client.widget("faceImage", window="qarn_personMgr::PersonInfoModifyDlg"))
        client.choose_file(PORTRAITS[number % len(PORTRAITS)])
        client.click("addBt" if last else "addContinuouslyBt")

    def test_first_day(self):
        client = self.start()
        self.assertEqual(client.rows(), [])
        self.add_organization(client, ROOT, "Gate", "Office")

        client.click("setCustomFieldsBt")
        client.click("addFieldBt")
        client.write("Locker")
        client.key("Return")
        self.picture(client, "own-fields")
        client.click("okBt")

        client.click_item("treeWidget", "Gate")
        client.click("addPersonBt")
        names = ["Anna", "Bela", "Chioma", "David", "Elif", "\u738b\u5c0f\u660e", "Greta", "\u00d6mer", "Ivan", "Mei"]
        for number, name in enumerate(names):
            self.add_person(client, number, name, number == len(names) - 1)
        serials = [f"A{number:03}" for number in range(10)]
        client.until(lambda: client.rows() == serials, "the ten persons")
        self.picture(client, "first-day-ten-persons")

        client.click("searchLineEt")
        client.fill("name", "a", window="MainWindow")
        client.click("searchBt")
        client.until(lambda: client.rows() == ["A000", "A001", "A002", "A003", "A006", "A008"], "the names with an a")
        client.click("resetBt")
        client.click("searchBt")
        client.until(lambda: client.rows() == serials, "everybody again")

        client.click_item("treeWidget", "Gate")
        client.until(lambda: client.rows() == serials, "everybody is at the gate")
        boxes = sorted(client.widgets("orderNum"), key=lambda w: w["y"])
        for box in boxes[:2]:
            client.click_at(box, (8, box["height"] / 2))
        client.click("movePersonsBt")
        tree = client.widget("treeWidget", window="qarn_personMgr::ChangePersonsOrganizationDlg")
        office = next(i for i in client.items("treeWidget") if i["text"] == "Office" and i["x"] > tree["x"]
                      and i["x"] < tree["x"] + tree["width"])
        client.click_at(office)
        self.picture(client, "move-persons")
        client.click("okBt")
        client.until(lambda: not client.widgets("retainOld"), "the dialog closes")
        client.click_item("treeWidget", "Office")
        client.until(lambda: client.rows() == serials[:2], "two persons in the office")

        boxes = sorted(client.widgets("orderNum"), key=lambda w: w["y"])
        client.click_at(boxes[0], (8, boxes[0]["height"] / 2))
        client.click("deletePersonsBt")
        menu = client.until(lambda: [w for w in client.windows() if "Menu" in w["class"]], "the menu")[0]
        client.click_at(menu, (40, 14))
        client.click("okBt")
        client.until(lambda: client.rows() == ["A001"], "one person left")
        client.quit()

        client = self.start()
        remaining = [serial for serial in serials if serial != "A000"]
        client.until(lambda: sorted(client.rows()) == remaining, "everything after the restart")
        client.click_item("treeWidget", "Office")
        client.until(lambda: client.rows() == ["A001"], "the moved person")
        client.quit()


if __name__ == "__main__":
    unittest.main(verbosity=2)
