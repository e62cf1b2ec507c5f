<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AddressRules</name>
    <message>
        <source>Enter an address such as 192.168.1.20 or https://gate.local:8443</source>
        <translation>Geben Sie eine Adresse ein, etwa 192.168.1.20 oder https://gate.local:8443</translation>
    </message>
    <message>
        <source>The address must begin with http:// or https://</source>
        <translation>Die Adresse muss mit http:// oder https:// beginnen</translation>
    </message>
    <message>
        <source>The address must hold no user name, ? or #</source>
        <translation>Die Adresse darf keinen Benutzernamen, kein ? und kein # enthalten</translation>
    </message>
    <message>
        <source>A token has only letters, digits and signs of the English keyboard, and no blanks</source>
        <translation>Ein Token besteht nur aus Buchstaben, Ziffern und Zeichen der englischen Tastatur, ohne Leerzeichen</translation>
    </message>
</context>
<context>
    <name>AlertHistoryDlg</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>No messages yet</source>
        <translation>Noch keine Meldungen</translation>
    </message>
</context>
<context>
    <name>BackupThread</name>
    <message>
        <source>The person register was backed up to %1</source>
        <translation>Das Personenregister wurde in %1 gesichert</translation>
    </message>
</context>
<context>
    <name>CertificateDlg</name>
    <message>
        <source>Certificate of %1</source>
        <translation>Zertifikat von %1</translation>
    </message>
    <message>
        <source>This device shows a certificate that the system does not trust. Compare the fingerprint with the one that the device itself displays. Trust it only when both are the same: otherwise someone may be standing between you and the device.</source>
        <translation>Dieses Gerät zeigt ein Zertifikat, dem das System nicht vertraut. Vergleichen Sie den Fingerabdruck mit dem, den das Gerät selbst anzeigt. Vertrauen Sie ihm nur, wenn beide gleich sind: Sonst steht vielleicht jemand zwischen Ihnen und dem Gerät.</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>Diesem Zertifikat vertrauen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>Ausgestellt für</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>Ausgestellt von</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Gültig</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Fingerprint (SHA-256)</source>
        <translation>Fingerabdruck (SHA-256)</translation>
    </message>
    <message>
        <source>Not trusted because</source>
        <translation>Nicht vertraut, weil</translation>
    </message>
</context>
<context>
    <name>DemoDevice</name>
    <message>
        <source>The simulated device cannot be started: is face-device-sim installed beside the client?</source>
        <translation>Das simulierte Gerät startet nicht: Ist face-device-sim neben dem Programm installiert?</translation>
    </message>
    <message>
        <source>Simulated door</source>
        <translation>Simulierte Tür</translation>
    </message>
    <message>
        <source>Entrance</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ausgang</translation>
    </message>
</context>
<context>
    <name>DeviceDlg</name>
    <message>
        <source>Add device</source>
        <translation>Gerät hinzufügen</translation>
    </message>
    <message>
        <source>Edit device</source>
        <translation>Gerät bearbeiten</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Anschrift</translation>
    </message>
    <message>
        <source>192.168.1.20 or https://gate.local:8443</source>
        <translation>192.168.1.20 oder https://gate.local:8443</translation>
    </message>
    <message>
        <source>Token</source>
        <translation>Token</translation>
    </message>
    <message>
        <source>As set on the device; empty for none</source>
        <translation>Wie am Gerät eingestellt; leer für keines</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Empty: the name that the device gives itself</source>
        <translation>Leer: der Name, den das Gerät sich gibt</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%1 has this address already. Enter another one.</source>
        <translation>%1 hat diese Adresse schon. Geben Sie eine andere ein.</translation>
    </message>
    <message>
        <source>Asking the device for its channels...</source>
        <translation>Kanäle werden vom Gerät gelesen...</translation>
    </message>
    <message>
        <source>The store did not take the device. The alert tells why.</source>
        <translation>Das Register hat das Gerät nicht angenommen. Die Meldung nennt den Grund.</translation>
    </message>
</context>
<context>
    <name>DevicesModel</name>
    <message>
        <source>Certificate not trusted</source>
        <translation>Zertifikat nicht vertraut</translation>
    </message>
    <message>
        <source>Token refused</source>
        <translation>Token abgelehnt</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Erreichbar</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Nicht erreichbar</translation>
    </message>
    <message>
        <source>Not tested yet</source>
        <translation>Noch nicht getestet</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Anschrift</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Not a face device</source>
        <translation>Kein Gesichtserkennungsgerät</translation>
    </message>
</context>
<context>
    <name>DevicesPage</name>
    <message>
        <source>Add device</source>
        <translation>Gerät hinzufügen</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Testen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>No devices yet.

Press &quot;Add device&quot; and enter the address of a face-recognition device.
Its channels can then receive the faces of the register.</source>
        <translation>Noch keine Geräte.

Drücken Sie „Gerät hinzufügen“ und geben Sie die Adresse eines Gesichtserkennungsgeräts ein.
Seine Kanäle können dann die Gesichter des Registers empfangen.</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Testing %1...</source>
        <translation>%1 wird getestet...</translation>
    </message>
    <message>
        <source>Remove the device &quot;%1&quot;? The faces that it holds stay on it.</source>
        <translation>Das Gerät „%1“ entfernen? Seine Gesichter bleiben auf ihm.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 answered within %2 ms and has %3 channel(s).</source>
        <translation>%1 hat nach %2 ms geantwortet; Kanäle: %3.</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Language of the system</source>
        <translation>Sprache des Systems</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Demonstration</source>
        <translation>Vorführung</translation>
    </message>
    <message>
        <source>Persons</source>
        <translation>Personen</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Person register</source>
        <translation>Personenregister</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>QuitGuard</name>
    <message>
        <source>Quitting...</source>
        <translation>Wird beendet...</translation>
    </message>
    <message>
        <source>The work that is running ends first. Nothing is lost.</source>
        <translation>Die laufende Arbeit wird erst abgeschlossen. Nichts geht verloren.</translation>
    </message>
</context>
<context>
    <name>SettingsDlg</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Rows a page</source>
        <translation>Zeilen je Seite</translation>
    </message>
    <message>
        <source>Person register</source>
        <translation>Personenregister</translation>
    </message>
    <message>
        <source>Language and person register take effect at the next start.</source>
        <translation>Sprache und Personenregister gelten ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Open or make a person register</source>
        <translation>Personenregister öffnen oder anlegen</translation>
    </message>
    <message>
        <source>Person register (*.db)</source>
        <translation>Personenregister (*.db)</translation>
    </message>
    <message>
        <source>Back up...</source>
        <translation>Sichern...</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Sicherung</translation>
    </message>
    <message>
        <source>Back up the person register</source>
        <translation>Personenregister sichern</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Sicherung läuft...</translation>
    </message>
</context>
<context>
    <name>StoreFailureDlg</name>
    <message>
        <source>The person register cannot be opened</source>
        <translation>Das Personenregister lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>Nothing was changed. Try again once the cause is gone, or use another file.</source>
        <translation>Nichts wurde verändert. Beheben Sie die Ursache und versuchen Sie es erneut, oder nehmen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Another file...</source>
        <translation>Andere Datei...</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Open or make a person register</source>
        <translation>Personenregister öffnen oder anlegen</translation>
    </message>
    <message>
        <source>Person register (*.db)</source>
        <translation>Personenregister (*.db)</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>The directory &quot;%1&quot; does not exist. Create it or choose another one.</source>
        <translation>Das Verzeichnis „%1“ gibt es nicht. Legen Sie es an oder wählen Sie ein anderes.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a directory. Choose a directory.</source>
        <translation>„%1“ ist kein Verzeichnis. Wählen Sie ein Verzeichnis.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written to. Change its permissions or choose another place.</source>
        <translation>In „%1“ kann nicht geschrieben werden. Ändern Sie die Rechte oder wählen Sie einen anderen Ort.</translation>
    </message>
    <message>
        <source>There is no room left at &quot;%1&quot;. Free some space or choose another place.</source>
        <translation>Auf „%1“ ist kein Platz mehr. Schaffen Sie Platz oder wählen Sie einen anderen Ort.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>XCOMMON::ToolsCollection</name>
    <message>
        <source>The image &quot;%1&quot; cannot be read: there is no such file. Choose another one.</source>
        <translation>Das Bild „%1“ kann nicht gelesen werden: Es gibt keine solche Datei. Wählen Sie ein anderes.</translation>
    </message>
    <message>
        <source>The image &quot;%1&quot; cannot be read: %2. Check its permissions or choose another one.</source>
        <translation>Das Bild „%1“ kann nicht gelesen werden: %2. Prüfen Sie die Rechte oder wählen Sie ein anderes.</translation>
    </message>
    <message>
        <source>The image &quot;%1&quot; is larger than %2 MiB. Choose a smaller one.</source>
        <translation>Das Bild „%1“ ist größer als %2 MiB. Wählen Sie ein kleineres.</translation>
    </message>
    <message>
        <source>The image &quot;%1&quot; cannot be read: %2. Try again or choose another one.</source>
        <translation>Das Bild „%1“ kann nicht gelesen werden: %2. Versuchen Sie es erneut oder wählen Sie ein anderes.</translation>
    </message>
</context>
<context>
    <name>dvx_sdk</name>
    <message>
        <source>The device answered.</source>
        <translation>Das Gerät hat geantwortet.</translation>
    </message>
    <message>
        <source>Nothing answers at this address. Check the address, the network and whether the device is switched on.</source>
        <translation>Unter dieser Adresse antwortet niemand. Prüfen Sie die Adresse, das Netz und ob das Gerät eingeschaltet ist.</translation>
    </message>
    <message>
        <source>The device did not answer in time. Check the network and whether the device is busy.</source>
        <translation>Das Gerät hat nicht rechtzeitig geantwortet. Prüfen Sie das Netz und ob das Gerät ausgelastet ist.</translation>
    </message>
    <message>
        <source>What answers at this address is not a face device, or does not work as it should. Check the address.</source>
        <translation>Unter dieser Adresse antwortet kein Gesichtserkennungsgerät, oder es arbeitet nicht richtig. Prüfen Sie die Adresse.</translation>
    </message>
    <message>
        <source>The device is not known any more. Add it on the Devices page.</source>
        <translation>Das Gerät ist nicht mehr bekannt. Fügen Sie es auf der Seite Geräte hinzu.</translation>
    </message>
    <message>
        <source>The device has no such channel. Test the device on the Devices page to read its channels again.</source>
        <translation>Das Gerät hat diesen Kanal nicht. Testen Sie das Gerät auf der Seite Geräte, um die Kanäle neu zu lesen.</translation>
    </message>
    <message>
        <source>The face is not known. Read the channel&apos;s faces again.</source>
        <translation>Das Gesicht ist nicht bekannt. Lesen Sie die Gesichter des Kanals neu.</translation>
    </message>
    <message>
        <source>The device&apos;s certificate is not trusted. Test the device on the Devices page to look at it.</source>
        <translation>Dem Zertifikat des Geräts wird nicht vertraut. Testen Sie das Gerät auf der Seite Geräte, um es anzusehen.</translation>
    </message>
    <message>
        <source>No encrypted connection could be made. Check whether the address must begin with http:// instead of https://.</source>
        <translation>Es kam keine verschlüsselte Verbindung zustande. Prüfen Sie, ob die Adresse mit http:// statt https:// beginnen muss.</translation>
    </message>
    <message>
        <source>The device closed the connection before it had answered. Try again.</source>
        <translation>Das Gerät hat die Verbindung vor der Antwort geschlossen. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The device&apos;s address or token cannot be used. Correct it on the Devices page.</source>
        <translation>Adresse oder Token des Geräts sind unbrauchbar. Berichtigen Sie sie auf der Seite Geräte.</translation>
    </message>
    <message>
        <source>The program is about to end.</source>
        <translation>Das Programm wird gerade beendet.</translation>
    </message>
    <message>
        <source>The device refuses the token. Enter the token that is set on the device.</source>
        <translation>Das Gerät lehnt das Token ab. Geben Sie das Token ein, das am Gerät eingestellt ist.</translation>
    </message>
    <message>
        <source>The token may not do this. Check its rights on the device.</source>
        <translation>Das Token darf das nicht. Prüfen Sie seine Rechte am Gerät.</translation>
    </message>
    <message>
        <source>The device does not have what was asked for. Check the address.</source>
        <translation>Das Gerät hat das Gewünschte nicht. Prüfen Sie die Adresse.</translation>
    </message>
    <message>
        <source>The device holds a face with this serial number already.</source>
        <translation>Das Gerät hat bereits ein Gesicht mit dieser Seriennummer.</translation>
    </message>
    <message>
        <source>The photograph is too large for the device.</source>
        <translation>Das Foto ist zu groß für das Gerät.</translation>
    </message>
    <message>
        <source>The device is busy. Try again in a moment.</source>
        <translation>Das Gerät ist beschäftigt. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>The device is full. Delete faces that are not needed any more.</source>
        <translation>Das Gerät ist voll. Löschen Sie Gesichter, die nicht mehr gebraucht werden.</translation>
    </message>
    <message>
        <source>The device refused with HTTP status %1.</source>
        <translation>Das Gerät hat mit HTTP-Status %1 abgelehnt.</translation>
    </message>
</context>
<context>
    <name>dvx_sdk::HttpConnection</name>
    <message>
        <source>The device shows another certificate than the one that was accepted.</source>
        <translation>Das Gerät zeigt ein anderes Zertifikat als das angenommene.</translation>
    </message>
</context>
<context>
    <name>qarn_base::AbilityDevsSelFromTreeDlg</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Check at least one channel.</source>
        <translation>Markieren Sie mindestens einen Kanal.</translation>
    </message>
</context>
<context>
    <name>qarn_base::AbilityDevsTree</name>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>There is no device yet. Add one on the Devices page.</source>
        <translation>Noch kein Gerät. Fügen Sie eines auf der Seite Geräte hinzu.</translation>
    </message>
    <message>
        <source>No device offers this function.</source>
        <translation>Kein Gerät bietet diese Funktion.</translation>
    </message>
    <message>
        <source>%1 (offline)</source>
        <translation>%1 (nicht erreichbar)</translation>
    </message>
</context>
<context>
    <name>qarn_base::BaseTools</name>
    <message>
        <source>Male</source>
        <translation>Männlich</translation>
    </message>
    <message>
        <source>Female</source>
        <translation>Weiblich</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Gültig</translation>
    </message>
    <message>
        <source>Invalid</source>
        <translation>Ungültig</translation>
    </message>
</context>
<context>
    <name>qarn_base::DatetimeSpanSelWt</name>
    <message>
        <source>Start</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The clock change skips this start time. Choose another one.</source>
        <translation>Die Zeitumstellung überspringt diesen Beginn. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The clock change skips this end time. Choose another one.</source>
        <translation>Die Zeitumstellung überspringt dieses Ende. Wählen Sie ein anderes.</translation>
    </message>
    <message>
        <source>The end must not be before the start.</source>
        <translation>Das Ende darf nicht vor dem Beginn liegen.</translation>
    </message>
    <message>
        <source>The period must not be longer than %1.</source>
        <translation>Der Zeitraum darf nicht länger sein als %1.</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 Tage</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 Stunden</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 Sekunden</translation>
    </message>
</context>
<context>
    <name>qarn_base::ItemModifyDlg</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Add continuously</source>
        <translation>Weitere anlegen</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The name must not be blank.</source>
        <translation>Der Name darf nicht leer sein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already taken. Choose another name.</source>
        <translation>„%1“ ist schon vergeben. Wählen Sie einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>qarn_base::OperBt</name>
    <message>
        <source>add</source>
        <translation>hinzufügen</translation>
    </message>
    <message>
        <source>edit</source>
        <translation>bearbeiten</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>löschen</translation>
    </message>
</context>
<context>
    <name>qarn_base::PageEditWt</name>
    <message>
        <source>first page</source>
        <translation>erste Seite</translation>
    </message>
    <message>
        <source>previous page</source>
        <translation>vorige Seite</translation>
    </message>
    <message>
        <source>page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>number of pages</source>
        <translation>Anzahl der Seiten</translation>
    </message>
    <message>
        <source>next page</source>
        <translation>nächste Seite</translation>
    </message>
    <message>
        <source>last page</source>
        <translation>letzte Seite</translation>
    </message>
    <message>
        <source>rows a page</source>
        <translation>Zeilen je Seite</translation>
    </message>
    <message>
        <source>number of persons</source>
        <translation>Anzahl der Personen</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>per page</source>
        <translation>je Seite</translation>
    </message>
</context>
<context>
    <name>qarn_base::PersonTree</name>
    <message>
        <source>Organizations</source>
        <translation>Organisationen</translation>
    </message>
</context>
<context>
    <name>qarn_base::SearchBox</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>qarn_base::SelDirLineEt</name>
    <message>
        <source>Press Return to choose a path</source>
        <translation>Eingabetaste: Pfad wählen</translation>
    </message>
</context>
<context>
    <name>qarn_base::TimeSpaceLineEt</name>
    <message>
        <source>Press Return to change the period</source>
        <translation>Eingabetaste: Zeitraum ändern</translation>
    </message>
</context>
<context>
    <name>qarn_base::TitleBar</name>
    <message>
        <source>minimize</source>
        <translation>minimieren</translation>
    </message>
    <message>
        <source>maximize</source>
        <translation>maximieren</translation>
    </message>
    <message>
        <source>close</source>
        <translation>schließen</translation>
    </message>
</context>
<context>
    <name>qarn_base::XMessageBox</name>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>qarn_data</name>
    <message>
        <source>It is a folder. Choose a file.</source>
        <translation>Das ist ein Ordner. Wählen Sie eine Datei.</translation>
    </message>
    <message>
        <source>The file cannot be written. Check the disk and your rights there.</source>
        <translation>Die Datei kann nicht geschrieben werden. Prüfen Sie den Datenträger und Ihre Rechte dort.</translation>
    </message>
    <message>
        <source>%1: it has no id.</source>
        <translation>%1: Die Kennung fehlt.</translation>
    </message>
    <message>
        <source>%1: the id is taken.</source>
        <translation>%1: Die Kennung ist vergeben.</translation>
    </message>
    <message>
        <source>%1: the organization above it does not exist; choose another one.</source>
        <translation>%1: Die übergeordnete Organisation gibt es nicht; wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>%1 no longer exists.</source>
        <translation>%1 gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>%1 is the top organization and stays at the top.</source>
        <translation>%1 ist die oberste Organisation und bleibt oben.</translation>
    </message>
    <message>
        <source>%1 cannot stand below itself; choose another organization.</source>
        <translation>%1 kann nicht unter sich selbst stehen; wählen Sie eine andere Organisation.</translation>
    </message>
    <message>
        <source>%1 is the top organization and cannot be deleted.</source>
        <translation>%1 ist die oberste Organisation und kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>%1 still holds persons; move or delete them first.</source>
        <translation>%1 enthält noch Personen; verschieben oder löschen Sie diese zuerst.</translation>
    </message>
    <message>
        <source>%1 still holds %2; delete or move that first.</source>
        <translation>%1 enthält noch %2; löschen oder verschieben Sie das zuerst.</translation>
    </message>
    <message>
        <source>The organization could not be added</source>
        <translation>Die Organisation wurde nicht angelegt</translation>
    </message>
    <message>
        <source>The organization could not be changed</source>
        <translation>Die Organisation wurde nicht geändert</translation>
    </message>
    <message>
        <source>Organizations could not be deleted</source>
        <translation>Organisationen wurden nicht gelöscht</translation>
    </message>
    <message>
        <source>The organization could not be made</source>
        <translation>Die Organisation wurde nicht angelegt</translation>
    </message>
    <message>
        <source>The custom fields could not be changed</source>
        <translation>Die eigenen Felder wurden nicht geändert</translation>
    </message>
    <message>
        <source>Persons could not be moved</source>
        <translation>Personen wurden nicht verschoben</translation>
    </message>
    <message>
        <source>The organization does not exist. Choose another one.</source>
        <translation>Die Organisation gibt es nicht. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>And %n more.</source>
        <translation>Und %n weitere.</translation>
    </message>
    <message>
        <source>Persons could not be added</source>
        <translation>Personen wurden nicht angelegt</translation>
    </message>
    <message>
        <source>%1 is no longer in the register.</source>
        <translation>%1 ist nicht mehr im Register.</translation>
    </message>
    <message>
        <source>%1: the serial number is taken; choose another one.</source>
        <translation>%1: Die Seriennummer ist vergeben; wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>%1: the organization does not exist; choose another one.</source>
        <translation>%1: Die Organisation gibt es nicht; wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>%1 is in that organization already.</source>
        <translation>%1 ist schon in dieser Organisation.</translation>
    </message>
    <message>
        <source>The person could not be updated</source>
        <translation>Die Person wurde nicht geändert</translation>
    </message>
    <message>
        <source>Persons could not be deleted</source>
        <translation>Personen wurden nicht gelöscht</translation>
    </message>
    <message>
        <source>The folder does not exist. Create it or choose another place.</source>
        <translation>Den Ordner gibt es nicht. Legen Sie ihn an oder wählen Sie einen anderen Ort.</translation>
    </message>
    <message>
        <source>Its folder is not a folder. Choose another place.</source>
        <translation>Der Ordner dazu ist kein Ordner. Wählen Sie einen anderen Ort.</translation>
    </message>
    <message>
        <source>The folder is read-only, and the store needs room beside its file. Give yourself the right to write there.</source>
        <translation>Der Ordner ist schreibgeschützt, das Register braucht aber Platz neben seiner Datei. Geben Sie sich dort Schreibrecht.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>Die Datei kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The file is not a person register. Choose another file.</source>
        <translation>Die Datei ist kein Personenregister. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>The file belongs to another program. Choose another file.</source>
        <translation>Die Datei gehört einem anderen Programm. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>The file was written by a newer version (%1, this one knows %2). Update this program.</source>
        <translation>Die Datei stammt von einer neueren Version (%1, bekannt ist %2). Aktualisieren Sie dieses Programm.</translation>
    </message>
    <message>
        <source>The file is damaged: its end is missing. Restore it from a backup.</source>
        <translation>Die Datei ist beschädigt: Ihr Ende fehlt. Stellen Sie sie aus einer Sicherung wieder her.</translation>
    </message>
    <message>
        <source>No file is named.</source>
        <translation>Es ist keine Datei angegeben.</translation>
    </message>
    <message>
        <source>It is not a regular file. Choose another file.</source>
        <translation>Das ist keine gewöhnliche Datei. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>The file cannot be read. Give yourself the right to read it.</source>
        <translation>Die Datei kann nicht gelesen werden. Geben Sie sich das Leserecht.</translation>
    </message>
    <message>
        <source>The file is read-only. Give yourself the right to write it.</source>
        <translation>Die Datei ist schreibgeschützt. Geben Sie sich das Schreibrecht.</translation>
    </message>
    <message>
        <source>The system gives no random numbers.</source>
        <translation>Das System liefert keine Zufallszahlen.</translation>
    </message>
    <message>
        <source>The key file %1 cannot be made. Check your rights in its folder.</source>
        <translation>Die Schlüsseldatei %1 kann nicht angelegt werden. Prüfen Sie Ihre Rechte in ihrem Ordner.</translation>
    </message>
    <message>
        <source>The key file %1 cannot be read or is damaged. Restore it from a backup.</source>
        <translation>Die Schlüsseldatei %1 ist unlesbar oder beschädigt. Stellen Sie sie aus einer Sicherung wieder her.</translation>
    </message>
</context>
<context>
    <name>qarn_data::Admission</name>
    <message>
        <source>%1: the id is taken.</source>
        <translation>%1: Die Kennung ist vergeben.</translation>
    </message>
    <message>
        <source>%1: the serial number is taken; choose another one.</source>
        <translation>%1: Die Seriennummer ist vergeben; wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>%1: the organization does not exist; choose another one.</source>
        <translation>%1: Die Organisation gibt es nicht; wählen Sie eine andere.</translation>
    </message>
</context>
<context>
    <name>qarn_data::DeviceRegistry</name>
    <message>
        <source>The device could not be saved</source>
        <translation>Das Gerät wurde nicht gespeichert</translation>
    </message>
    <message>
        <source>It has no id.</source>
        <translation>Die Kennung fehlt.</translation>
    </message>
    <message>
        <source>The device could not be removed</source>
        <translation>Das Gerät wurde nicht entfernt</translation>
    </message>
</context>
<context>
    <name>qarn_data::Move</name>
    <message>
        <source>%1 is no longer in the register.</source>
        <translation>%1 ist nicht mehr im Register.</translation>
    </message>
</context>
<context>
    <name>qarn_data::Register</name>
    <message>
        <source>The store %1 cannot be opened. %2</source>
        <translation>Das Register %1 lässt sich nicht öffnen. %2</translation>
    </message>
    <message>
        <source>No store is open.</source>
        <translation>Es ist kein Register geöffnet.</translation>
    </message>
    <message>
        <source>It is the open store itself. Choose another file.</source>
        <translation>Das ist das geöffnete Register selbst. Wählen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>The backup %1 cannot be made. %2</source>
        <translation>Die Sicherung %1 kann nicht angelegt werden. %2</translation>
    </message>
    <message>
        <source>What others change in the register cannot be shown. %1</source>
        <translation>Was andere im Register ändern, kann nicht angezeigt werden. %1</translation>
    </message>
</context>
<context>
    <name>qarn_data::SqlStore</name>
    <message>
        <source>The file was written by a newer version. Update this program.</source>
        <translation>Die Datei stammt von einer neueren Version. Aktualisieren Sie dieses Programm.</translation>
    </message>
</context>
<context>
    <name>qarn_data::SqliteDialect</name>
    <message>
        <source>Another program is using it. Try again when that has finished.</source>
        <translation>Ein anderes Programm benutzt sie. Versuchen Sie es erneut, wenn es fertig ist.</translation>
    </message>
    <message>
        <source>It is read-only. Give yourself the right to write the file and its folder.</source>
        <translation>Schreibgeschützt. Geben Sie sich Schreibrecht für Datei und Ordner.</translation>
    </message>
    <message>
        <source>The disk is full. Free some space and try again.</source>
        <translation>Der Datenträger ist voll. Schaffen Sie Platz und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The disk does not take or give the data (%1). Check the disk and its free space.</source>
        <translation>Der Datenträger nimmt oder liefert die Daten nicht (%1). Prüfen Sie ihn und den freien Platz.</translation>
    </message>
    <message>
        <source>The file is damaged (%1). Restore it from a backup.</source>
        <translation>Die Datei ist beschädigt (%1). Stellen Sie sie aus einer Sicherung wieder her.</translation>
    </message>
    <message>
        <source>The file is not a person register. Choose another file.</source>
        <translation>Die Datei ist kein Personenregister. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>The file cannot be opened. Check its folder and your rights there.</source>
        <translation>Die Datei lässt sich nicht öffnen. Prüfen Sie den Ordner und Ihre Rechte dort.</translation>
    </message>
    <message>
        <source>The database says: %1.</source>
        <translation>Die Datenbank meldet: %1.</translation>
    </message>
</context>
<context>
    <name>qarn_data::WriteSession</name>
    <message>
        <source>No store is open.</source>
        <translation>Es ist kein Register geöffnet.</translation>
    </message>
    <message>
        <source>%1 (%2). %3</source>
        <translation>%1 (%2). %3</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::ChangePersonsOrganizationDlg</name>
    <message>
        <source>Organization Name</source>
        <translation>Name der Organisation</translation>
    </message>
    <message>
        <source>Remove from the original organization</source>
        <translation>Aus der bisherigen Organisation entfernen</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Change Persons Organization</source>
        <translation>Organisation der Personen ändern</translation>
    </message>
    <message>
        <source>Please Select organization to move persons</source>
        <translation>Wählen Sie die Organisation, in die die Personen verschoben werden</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::CustomFieldsModifyDlg</name>
    <message>
        <source>defined personnel information fields,such as position, specialty, etc</source>
        <translation>eigene Felder für Angaben zur Person, etwa Stellung oder Fachgebiet</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Field Name</source>
        <translation>Feldname</translation>
    </message>
    <message>
        <source>Oper</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Custom Fields Set</source>
        <translation>Eigene Felder</translation>
    </message>
    <message>
        <source>the maximum number of custom fields has been reached</source>
        <translation>Mehr eigene Felder sind nicht möglich</translation>
    </message>
    <message>
        <source>Custom Field</source>
        <translation>Eigenes Feld</translation>
    </message>
    <message>
        <source>Do you want to delete this custom field?</source>
        <translation>Dieses eigene Feld löschen?</translation>
    </message>
    <message>
        <source>custom field name has exist</source>
        <translation>Diesen Feldnamen gibt es schon</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::ExportPersonsDlg</name>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Person Info</source>
        <translation>Angaben zur Person</translation>
    </message>
    <message>
        <source>Person Face</source>
        <translation>Gesicht</translation>
    </message>
    <message>
        <source>Export child organization persons</source>
        <translation>Auch Personen untergeordneter Organisationen</translation>
    </message>
    <message>
        <source>Sel expot colums</source>
        <translation>Spalten wählen</translation>
    </message>
    <message>
        <source>Sel All Columns</source>
        <translation>Alle Spalten</translation>
    </message>
    <message>
        <source>Serail Num</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Person Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Organization</source>
        <translation>Organisation</translation>
    </message>
    <message>
        <source>Gender</source>
        <translation>Geschlecht</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Phone Num</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Identity ID</source>
        <translation>Ausweisnummer</translation>
    </message>
    <message>
        <source>Valid Time</source>
        <translation>Gültig ab</translation>
    </message>
    <message>
        <source>Invalid Time</source>
        <translation>Gültig bis</translation>
    </message>
    <message>
        <source>Column order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>*Serail Num</source>
        <translation>*Seriennummer</translation>
    </message>
    <message>
        <source>*Person Name</source>
        <translation>*Name</translation>
    </message>
    <message>
        <source>Sex</source>
        <translation>Geschlecht</translation>
    </message>
    <message>
        <source>Please select export columns</source>
        <translation>Wählen Sie Spalten für den Export</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::FaceImageModifyWt</name>
    <message>
        <source>Add Face</source>
        <translation>Gesicht hinzufügen</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>löschen</translation>
    </message>
    <message>
        <source>Click to change face Iamge</source>
        <translation>Klicken, um das Bild zu ändern</translation>
    </message>
    <message>
        <source>Select face image</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Change face image</source>
        <translation>Bild ändern</translation>
    </message>
    <message>
        <source>Images (*.jpg)</source>
        <translation>Bilder (*.jpg)</translation>
    </message>
    <message>
        <source>Do you want to delete the current face image?</source>
        <translation>Das angezeigte Bild löschen?</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::ImportPersonsDlg</name>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Person Info</source>
        <translation>Angaben zur Person</translation>
    </message>
    <message>
        <source>Person Face</source>
        <translation>Gesicht</translation>
    </message>
    <message>
        <source>Import File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Download personnel import template</source>
        <translation>Importvorlage speichern</translation>
    </message>
    <message>
        <source>Naming Rules</source>
        <translation>Benennung</translation>
    </message>
    <message>
        <source>Serial Num_Person Name_Sex</source>
        <translation>Seriennummer_Name_Geschlecht</translation>
    </message>
    <message>
        <source>SerialNum</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>PersonName</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Sex</source>
        <translation>Geschlecht</translation>
    </message>
    <message>
        <source>1.Single picture less than 200K
2.Format only supports jpg
3.sex:Male,Female</source>
        <translation>1. Ein Bild höchstens 200K
2. Nur das Format jpg
3. Geschlecht: Männlich, Weiblich</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Import persons</source>
        <translation>Personen importieren</translation>
    </message>
    <message>
        <source>Serial Num</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Person Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Select Person faces dir</source>
        <translation>Verzeichnis mit Bildern wählen</translation>
    </message>
    <message>
        <source>Select Person info file</source>
        <translation>Datei mit Personen wählen</translation>
    </message>
    <message>
        <source>Please select person faces dir</source>
        <translation>Wählen Sie ein Verzeichnis mit Bildern</translation>
    </message>
    <message>
        <source>Please select person info file</source>
        <translation>Wählen Sie eine Datei mit Personen</translation>
    </message>
    <message>
        <source>Please set naming rules</source>
        <translation>Legen Sie die Benennung fest</translation>
    </message>
    <message>
        <source>Download Person import template</source>
        <translation>Importvorlage speichern</translation>
    </message>
    <message>
        <source>Download import person template finished</source>
        <translation>Importvorlage gespeichert</translation>
    </message>
    <message>
        <source>Download person import template failed</source>
        <translation>Importvorlage nicht gespeichert</translation>
    </message>
    <message>
        <source>Rules:</source>
        <translation>Regeln:</translation>
    </message>
    <message>
        <source>1. Star is required</source>
        <translation>1. Felder mit Stern sind nötig</translation>
    </message>
    <message>
        <source>2. 1:Male 2:Female</source>
        <translation>2. 1:Männlich 2:Weiblich</translation>
    </message>
    <message>
        <source>3. Date Format:YYYY-MM-DD</source>
        <translation>3. Datum: JJJJ-MM-TT</translation>
    </message>
    <message>
        <source>4. Hierarchical use / segmentation of the organization</source>
        <translation>4. Ebenen der Organisation durch / trennen</translation>
    </message>
    <message>
        <source>*Serial Num</source>
        <translation>*Seriennummer</translation>
    </message>
    <message>
        <source>*Person Name</source>
        <translation>*Name</translation>
    </message>
    <message>
        <source>*Organization</source>
        <translation>*Organisation</translation>
    </message>
    <message>
        <source>*Sex</source>
        <translation>*Geschlecht</translation>
    </message>
    <message>
        <source>Phone Num</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Valid Time</source>
        <translation>Gültig ab</translation>
    </message>
    <message>
        <source>Invalid Time</source>
        <translation>Gültig bis</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::ImportPersonsThread</name>
    <message>
        <source>Failed to open the file containing face information</source>
        <translation>Die Datei mit den Angaben lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>Failed to read %1: %2. No new persons were added; import the file again</source>
        <translation>%1 konnte nicht gelesen werden: %2. Keine neuen Personen wurden angelegt; importieren Sie die Datei erneut</translation>
    </message>
    <message>
        <source>The directory does not contain face images</source>
        <translation>Das Verzeichnis enthält keine Bilder</translation>
    </message>
    <message>
        <source>Male</source>
        <translation>Männlich</translation>
    </message>
    <message>
        <source>import persons finished(Existing persons updated the information)</source>
        <translation>Personen importiert (vorhandene Personen wurden aktualisiert)</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonCustomInfoWt</name>
    <message>
        <source>Please add custom field first</source>
        <translation>Legen Sie zuerst eigene Felder an</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonExtraInfoWt</name>
    <message>
        <source>Birth Date</source>
        <translation>Geburtsdatum</translation>
    </message>
    <message>
        <source>yyyy-MM-dd</source>
        <translation>dd.MM.yyyy</translation>
    </message>
    <message>
        <source>Identity Type</source>
        <translation>Ausweisart</translation>
    </message>
    <message>
        <source>identity Chinese id</source>
        <translation>chinesischer Personalausweis</translation>
    </message>
    <message>
        <source>identity student id</source>
        <translation>Studierendenausweis</translation>
    </message>
    <message>
        <source>identity officer id</source>
        <translation>Dienstausweis</translation>
    </message>
    <message>
        <source>identity driver id</source>
        <translation>Führerschein</translation>
    </message>
    <message>
        <source>identity passport id</source>
        <translation>Reisepass</translation>
    </message>
    <message>
        <source>identity foreigner in china id</source>
        <translation>Aufenthaltstitel für Ausländer in China</translation>
    </message>
    <message>
        <source>identity hongkong or macao access id</source>
        <translation>Reisegenehmigung Hongkong/Macau</translation>
    </message>
    <message>
        <source>identity hongkong or macao live id</source>
        <translation>Aufenthaltstitel Hongkong/Macau</translation>
    </message>
    <message>
        <source>identity taiwan live id</source>
        <translation>Aufenthaltstitel Taiwan</translation>
    </message>
    <message>
        <source>identity other</source>
        <translation>anderer Ausweis</translation>
    </message>
    <message>
        <source>Identity ID</source>
        <translation>Ausweisnummer</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Beruf</translation>
    </message>
    <message>
        <source>Employ Date</source>
        <translation>Eingestellt am</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Anschrift</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonInfoModifyDlg</name>
    <message>
        <source>Add continuously</source>
        <translation>Weitere anlegen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Add Person</source>
        <translation>Person anlegen</translation>
    </message>
    <message>
        <source>Edit Person</source>
        <translation>Person bearbeiten</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonInfoModifyWt</name>
    <message>
        <source>Basic Info</source>
        <translation>Grunddaten</translation>
    </message>
    <message>
        <source>&lt;font color=&quot;#dc4d4d&quot;&gt;* &lt;/font&gt;Name</source>
        <translation>&lt;font color=&quot;#dc4d4d&quot;&gt;* &lt;/font&gt;Name</translation>
    </message>
    <message>
        <source>&lt;font color=&quot;#dc4d4d&quot;&gt;* &lt;/font&gt;Serail Num</source>
        <translation>&lt;font color=&quot;#dc4d4d&quot;&gt;* &lt;/font&gt;Seriennummer</translation>
    </message>
    <message>
        <source>Sex</source>
        <translation>Geschlecht</translation>
    </message>
    <message>
        <source>Male</source>
        <translation>Männlich</translation>
    </message>
    <message>
        <source>Female</source>
        <translation>Weiblich</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Phone Num</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Valid Time Range</source>
        <translation>Gültigkeit</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>Face image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Face image 1</source>
        <translation>Bild 1</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Face image 2</source>
        <translation>Bild 2</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>Face image 3</source>
        <translation>Bild 3</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>Custom Info</source>
        <translation>Eigene Felder</translation>
    </message>
    <message>
        <source>Extra Info</source>
        <translation>Weitere Angaben</translation>
    </message>
    <message>
        <source>person name can&apos;t be empty or all blank space!</source>
        <translation>Der Name darf nicht leer sein!</translation>
    </message>
    <message>
        <source>serail num can&apos;t be empty or all blank space!</source>
        <translation>Die Seriennummer darf nicht leer sein!</translation>
    </message>
    <message>
        <source>serail num has exist!</source>
        <translation>Die Seriennummer ist schon vergeben!</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonInfoWt</name>
    <message>
        <source>edit</source>
        <translation>bearbeiten</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>löschen</translation>
    </message>
    <message>
        <source>select %1</source>
        <translation>%1 auswählen</translation>
    </message>
    <message>
        <source>edit %1</source>
        <translation>%1 bearbeiten</translation>
    </message>
    <message>
        <source>delete %1</source>
        <translation>%1 löschen</translation>
    </message>
    <message>
        <source>Do you want to delete the person: %1?</source>
        <translation>Diese Person löschen: %1?</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonMgrForm</name>
    <message>
        <source>PersonMgrForm</source>
        <translation>Personen</translation>
    </message>
    <message>
        <source>Organizations</source>
        <translation>Organisationen</translation>
    </message>
    <message>
        <source>add organization</source>
        <translation>Organisation hinzufügen</translation>
    </message>
    <message>
        <source>delete organization</source>
        <translation>Organisation löschen</translation>
    </message>
    <message>
        <source>display child organization person</source>
        <translation>auch untergeordnete anzeigen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Please input name...</source>
        <translation>Name...</translation>
    </message>
    <message>
        <source>Serial Num</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Please input serail num...</source>
        <translation>Seriennummer...</translation>
    </message>
    <message>
        <source>Valid Range</source>
        <translation>Gültigkeit</translation>
    </message>
    <message>
        <source>Valid And Invalid</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Invalid</source>
        <translation>Ungültig</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Gültig</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Add Person</source>
        <translation>Person anlegen</translation>
    </message>
    <message>
        <source>Del Person</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Move Person</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Import Person</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Export Person</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Send to Dev</source>
        <translation>An Geräte</translation>
    </message>
    <message>
        <source>Sync From Dev</source>
        <translation>Von Geräten</translation>
    </message>
    <message>
        <source>CustomProperty</source>
        <translation>Eigene Felder</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Face Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Sex</source>
        <translation>Geschlecht</translation>
    </message>
    <message>
        <source>Organization</source>
        <translation>Organisation</translation>
    </message>
    <message>
        <source>Is Valid</source>
        <translation>Gültig</translation>
    </message>
    <message>
        <source>Oper</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Please select which organization to add person first</source>
        <translation>Wählen Sie zuerst die Organisation der neuen Person</translation>
    </message>
    <message>
        <source>Delete Checked Persons</source>
        <translation>Markierte Personen löschen</translation>
    </message>
    <message>
        <source>Delete All Persons</source>
        <translation>Alle Personen löschen</translation>
    </message>
    <message>
        <source>Please select persons to delete</source>
        <translation>Markieren Sie die Personen, die gelöscht werden sollen</translation>
    </message>
    <message>
        <source>Do you want to delete selected persons?</source>
        <translation>Die markierten Personen löschen?</translation>
    </message>
    <message>
        <source>There is no person to delete in the table</source>
        <translation>Die Liste enthält keine Person zum Löschen</translation>
    </message>
    <message>
        <source>Do you want to delete all the persons in the table?</source>
        <translation>Alle Personen der Liste löschen?</translation>
    </message>
    <message>
        <source>Please select persons to move</source>
        <translation>Markieren Sie die Personen, die verschoben werden sollen</translation>
    </message>
    <message>
        <source>Exporting Persons...</source>
        <translation>Personen werden exportiert...</translation>
    </message>
    <message>
        <source>Synchronize persons to devs finished</source>
        <translation>Personen an die Geräte gesendet</translation>
    </message>
    <message>
        <source>sync persons time out</source>
        <translation>Zeitüberschreitung beim Abgleich</translation>
    </message>
    <message>
        <source>Please select organization to synchronize</source>
        <translation>Wählen Sie die Organisation, die gesendet werden soll</translation>
    </message>
    <message>
        <source>Please check persons to synchronize</source>
        <translation>Markieren Sie die Personen, die gesendet werden sollen</translation>
    </message>
    <message>
        <source>Please select organization to synchronize faces from devs</source>
        <translation>Wählen Sie die Organisation für die Gesichter der Geräte</translation>
    </message>
    <message>
        <source>Synchronize faces from Devs</source>
        <translation>Gesichter von Geräten holen</translation>
    </message>
    <message>
        <source>Please Check whick devs synchronize faces from</source>
        <translation>Markieren Sie die Geräte, von denen Gesichter geholt werden</translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation>Abgleichen</translation>
    </message>
    <message>
        <source>Synchronize persons from devs finished</source>
        <translation>Personen von den Geräten geholt</translation>
    </message>
    <message>
        <source>Please select whick organization to export persons</source>
        <translation>Wählen Sie die Organisation, deren Personen exportiert werden</translation>
    </message>
    <message>
        <source>Export Organization[%1]Persons</source>
        <translation>Personen von [%1] exportieren</translation>
    </message>
    <message>
        <source>Export Persons</source>
        <translation>Personen exportieren</translation>
    </message>
    <message>
        <source>Select Export Path</source>
        <translation>Zielverzeichnis wählen</translation>
    </message>
    <message>
        <source>path cannot contain=</source>
        <translation>Der Pfad darf kein = enthalten</translation>
    </message>
    <message>
        <source>Export persons finished</source>
        <translation>Personen exportiert</translation>
    </message>
    <message>
        <source>Export persons failed</source>
        <translation>Export fehlgeschlagen</translation>
    </message>
    <message>
        <source>Importing Persons...</source>
        <translation>Personen werden importiert...</translation>
    </message>
    <message>
        <source>Please select which organization to import persons</source>
        <translation>Wählen Sie die Organisation für die importierten Personen</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonMgrTree</name>
    <message>
        <source>Please select which organization to add to</source>
        <translation>Wählen Sie die übergeordnete Organisation</translation>
    </message>
    <message>
        <source>Please select which organization to delete</source>
        <translation>Wählen Sie die Organisation, die gelöscht werden soll</translation>
    </message>
    <message>
        <source>root organization can not be deleted</source>
        <translation>Die oberste Organisation kann nicht gelöscht werden</translation>
    </message>
    <message>
        <source>New Organization</source>
        <translation>Neue Organisation</translation>
    </message>
    <message>
        <source>Add Organization</source>
        <translation>Organisation anlegen</translation>
    </message>
    <message>
        <source>Edit Organization</source>
        <translation>Organisation bearbeiten</translation>
    </message>
    <message>
        <source>organization has persons, can not be deleted</source>
        <translation>Die Organisation enthält Personen und kann nicht gelöscht werden</translation>
    </message>
    <message>
        <source>Do you want to delete the select organization?</source>
        <translation>Die gewählte Organisation löschen?</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonsTableWt</name>
    <message>
        <source>No persons to show. Select another organization, change the filters, or add persons.</source>
        <translation>Keine Personen. Wählen Sie eine andere Organisation, ändern Sie die Filter oder legen Sie Personen an.</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::SynchronizeFacesThread</name>
    <message>
        <source>getting %1 faces....</source>
        <translation>Gesichter von %1 werden gelesen....</translation>
    </message>
    <message>
        <source>get %1 faces failed</source>
        <translation>Gesichter von %1 konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>deleting %1 faces....</source>
        <translation>Gesichter auf %1 werden gelöscht....</translation>
    </message>
    <message>
        <source>adding %1 faces...</source>
        <translation>Gesichter werden an %1 gesendet...</translation>
    </message>
    <message>
        <source>del %1 face from %2 failed</source>
        <translation>%1 konnte auf %2 nicht gelöscht werden</translation>
    </message>
    <message>
        <source>add %1 face to %2 failed</source>
        <translation>%1 konnte nicht an %2 gesendet werden</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::SynchronizeFacesToDevsDlg</name>
    <message>
        <source>Synchronize</source>
        <translation>Abgleichen</translation>
    </message>
    <message>
        <source>Checked Presons</source>
        <translation>Markierte Personen</translation>
    </message>
    <message>
        <source>Sel Organization</source>
        <translation>Gewählte Organisation</translation>
    </message>
    <message>
        <source>Child org persons</source>
        <translation>Auch untergeordnete</translation>
    </message>
    <message>
        <source>Delete Persons that deleted from dvx4700 platform</source>
        <translation>Hier gelöschte Personen auf den Geräten löschen</translation>
    </message>
    <message>
        <source>Dev Sel</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Synchronize faces to Devs</source>
        <translation>Gesichter an Geräte senden</translation>
    </message>
    <message>
        <source>Please Check whick devs to synchronize</source>
        <translation>Markieren Sie die Geräte</translation>
    </message>
</context>
<context>
    <name>qarn_worker::DictDef</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Erfolg</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
</TS>
