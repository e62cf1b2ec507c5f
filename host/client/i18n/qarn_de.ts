<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AddressRules</name>
    <message>
        <location filename="../devices/AddressRules.cpp" line="+18"/>
        <source>Enter an address such as 192.168.1.20 or https://gate.local:8443</source>
        <translation>Geben Sie eine Adresse ein, etwa 192.168.1.20 oder https://gate.local:8443</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The address must begin with http:// or https://</source>
        <translation>Die Adresse muss mit http:// oder https:// beginnen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The address must hold no user name, ? or #</source>
        <translation>Die Adresse darf keinen Benutzernamen, kein ? und kein # enthalten</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>A token has only letters, digits and signs of the English keyboard, and no blanks</source>
        <translation>Ein Token besteht nur aus Buchstaben, Ziffern und Zeichen der englischen Tastatur, ohne Leerzeichen</translation>
    </message>
</context>
<context>
    <name>AlertHistoryDlg</name>
    <message>
        <location filename="../alerts/AlertHistoryDlg.cpp" line="+23"/>
        <location line="+25"/>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>No messages yet</source>
        <translation>Noch keine Meldungen</translation>
    </message>
</context>
<context>
    <name>CertificateDlg</name>
    <message>
        <location filename="../devices/CertificateDlg.cpp" line="+43"/>
        <source>Certificate of %1</source>
        <translation>Zertifikat von %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>This device shows a certificate that the system does not trust. Compare the fingerprint with the one that the device itself displays. Trust it only when both are the same: otherwise someone may be standing between you and the device.</source>
        <translation>Dieses Gerät zeigt ein Zertifikat, dem das System nicht vertraut. Vergleichen Sie den Fingerabdruck mit dem, den das Gerät selbst anzeigt. Vertrauen Sie ihm nur, wenn beide gleich sind: Sonst steht vielleicht jemand zwischen Ihnen und dem Gerät.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Trust this certificate</source>
        <translation>Diesem Zertifikat vertrauen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Issued to</source>
        <translation>Ausgestellt für</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Issued by</source>
        <translation>Ausgestellt von</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Valid</source>
        <translation>Gültig</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fingerprint (SHA-256)</source>
        <translation>Fingerabdruck (SHA-256)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not trusted because</source>
        <translation>Nicht vertraut, weil</translation>
    </message>
</context>
<context>
    <name>DemoDevice</name>
    <message>
        <location filename="../demo/DemoDevice.cpp" line="+76"/>
        <source>The simulated device cannot be started: is face-device-sim installed beside the client?</source>
        <translation>Das simulierte Gerät startet nicht: Ist face-device-sim neben dem Programm installiert?</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Simulated door</source>
        <translation>Simulierte Tür</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Entrance</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Ausgang</translation>
    </message>
</context>
<context>
    <name>DeviceDlg</name>
    <message>
        <location filename="../devices/DeviceDlg.cpp" line="+36"/>
        <source>Add device</source>
        <translation>Gerät hinzufügen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Edit device</source>
        <translation>Gerät bearbeiten</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Address</source>
        <translation>Anschrift</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>192.168.1.20 or https://gate.local:8443</source>
        <translation>192.168.1.20 oder https://gate.local:8443</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Token</source>
        <translation>Token</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>As set on the device; empty for none</source>
        <translation>Wie am Gerät eingestellt; leer für keines</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Empty: the name that the device gives itself</source>
        <translation>Leer: der Name, den das Gerät sich gibt</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location line="+40"/>
        <source>%1 has this address already. Enter another one.</source>
        <translation>%1 hat diese Adresse schon. Geben Sie eine andere ein.</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Asking the device for its channels...</source>
        <translation>Kanäle werden vom Gerät gelesen...</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>The store did not take the device. The alert tells why.</source>
        <translation>Das Register hat das Gerät nicht angenommen. Die Meldung nennt den Grund.</translation>
    </message>
</context>
<context>
    <name>DevicesModel</name>
    <message>
        <location filename="../devices/DevicesModel.cpp" line="+129"/>
        <source>Certificate not trusted</source>
        <translation>Zertifikat nicht vertraut</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Token refused</source>
        <translation>Token abgelehnt</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Online</source>
        <translation>Erreichbar</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Offline</source>
        <translation>Nicht erreichbar</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Not tested yet</source>
        <translation>Noch nicht getestet</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Address</source>
        <translation>Anschrift</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
</context>
<context>
    <name>DevicesPage</name>
    <message>
        <location filename="../devices/DevicesPage.cpp" line="+52"/>
        <source>Add device</source>
        <translation>Gerät hinzufügen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Test connection</source>
        <translation>Testen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>No devices yet.

Press &quot;Add device&quot; and enter the address of a face-recognition device.
Its channels can then receive the faces of the register.</source>
        <translation>Noch keine Geräte.

Drücken Sie „Gerät hinzufügen“ und geben Sie die Adresse eines Gesichtserkennungsgeräts ein.
Seine Kanäle können dann die Gesichter des Registers empfangen.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <location line="+108"/>
        <source>Testing %1...</source>
        <translation>%1 wird getestet...</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Remove the device &quot;%1&quot;? The faces that it holds stay on it.</source>
        <translation>Das Gerät „%1“ entfernen? Seine Gesichter bleiben auf ihm.</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 answered within %2 ms and has %3 channel(s).</source>
        <translation>%1 hat nach %2 ms geantwortet; Kanäle: %3.</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <location filename="../startup/Language.cpp" line="+11"/>
        <source>Language of the system</source>
        <translation>Sprache des Systems</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../startup/Session.cpp" line="+49"/>
        <source>Demonstration</source>
        <translation>Vorführung</translation>
    </message>
    <message>
        <location filename="../window/MainWindow.cpp" line="+45"/>
        <source>Persons</source>
        <translation>Personen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Person register</source>
        <translation>Personenregister</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>QuitGuard</name>
    <message>
        <location filename="../window/QuitGuard.cpp" line="+30"/>
        <source>Quitting...</source>
        <translation>Wird beendet...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The work that is running ends first. Nothing is lost.</source>
        <translation>Die laufende Arbeit wird erst abgeschlossen. Nichts geht verloren.</translation>
    </message>
</context>
<context>
    <name>SettingsDlg</name>
    <message>
        <location filename="../settings/SettingsDlg.cpp" line="+49"/>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <location line="+22"/>
        <location line="+1"/>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Rows a page</source>
        <translation>Zeilen je Seite</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+3"/>
        <source>Person register</source>
        <translation>Personenregister</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Language and person register take effect at the next start.</source>
        <translation>Sprache und Personenregister gelten ab dem nächsten Start.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Open or make a person register</source>
        <translation>Personenregister öffnen oder anlegen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Person register (*.db)</source>
        <translation>Personenregister (*.db)</translation>
    </message>
</context>
<context>
    <name>StoreFailureDlg</name>
    <message>
        <location filename="../startup/StoreFailureDlg.cpp" line="+29"/>
        <source>The person register cannot be opened</source>
        <translation>Das Personenregister lässt sich nicht öffnen</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Nothing was changed. Try again once the cause is gone, or use another file.</source>
        <translation>Nichts wurde verändert. Beheben Sie die Ursache und versuchen Sie es erneut, oder nehmen Sie eine andere Datei.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Another file...</source>
        <translation>Andere Datei...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Open or make a person register</source>
        <translation>Personenregister öffnen oder anlegen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Person register (*.db)</source>
        <translation>Personenregister (*.db)</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <location filename="../../qarn_worker/PathCheck.cpp" line="+54"/>
        <source>The directory &quot;%1&quot; does not exist. Create it or choose another one.</source>
        <translation>Das Verzeichnis „%1“ gibt es nicht. Legen Sie es an oder wählen Sie ein anderes.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&quot;%1&quot; is not a directory. Choose a directory.</source>
        <translation>„%1“ ist kein Verzeichnis. Wählen Sie ein Verzeichnis.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&quot;%1&quot; cannot be written to. Change its permissions or choose another place.</source>
        <translation>In „%1“ kann nicht geschrieben werden. Ändern Sie die Rechte oder wählen Sie einen anderen Ort.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>There is no room left at &quot;%1&quot;. Free some space or choose another place.</source>
        <translation>Auf „%1“ ist kein Platz mehr. Schaffen Sie Platz oder wählen Sie einen anderen Ort.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <location filename="../window/TitleBar.cpp" line="+28"/>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+40"/>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <location line="-39"/>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>XCOMMON::ToolsCollection</name>
    <message>
        <location filename="../../XCOMMON/ToolsCollection.cpp" line="+59"/>
        <source>The image &quot;%1&quot; cannot be read: there is no such file. Choose another one.</source>
        <translation>Das Bild „%1“ kann nicht gelesen werden: Es gibt keine solche Datei. Wählen Sie ein anderes.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The image &quot;%1&quot; cannot be read: %2. Check its permissions or choose another one.</source>
        <translation>Das Bild „%1“ kann nicht gelesen werden: %2. Prüfen Sie die Rechte oder wählen Sie ein anderes.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The image &quot;%1&quot; is larger than %2 MiB. Choose a smaller one.</source>
        <translation>Das Bild „%1“ ist größer als %2 MiB. Wählen Sie ein kleineres.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The image &quot;%1&quot; cannot be read: %2. Try again or choose another one.</source>
        <translation>Das Bild „%1“ kann nicht gelesen werden: %2. Versuchen Sie es erneut oder wählen Sie ein anderes.</translation>
    </message>
</context>
<context>
    <name>dvx_sdk</name>
    <message>
        <location filename="../../dvx_client_sdk/ResponseCodes.cpp" line="+17"/>
        <source>The device answered.</source>
        <translation>Das Gerät hat geantwortet.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nothing answers at this address. Check the address, the network and whether the device is switched on.</source>
        <translation>Unter dieser Adresse antwortet niemand. Prüfen Sie die Adresse, das Netz und ob das Gerät eingeschaltet ist.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The device did not answer in time. Check the network and whether the device is busy.</source>
        <translation>Das Gerät hat nicht rechtzeitig geantwortet. Prüfen Sie das Netz und ob das Gerät ausgelastet ist.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>What answers at this address is not a face device, or does not work as it should. Check the address.</source>
        <translation>Unter dieser Adresse antwortet kein Gesichtserkennungsgerät, oder es arbeitet nicht richtig. Prüfen Sie die Adresse.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The device is not known any more. Add it on the Devices page.</source>
        <translation>Das Gerät ist nicht mehr bekannt. Fügen Sie es auf der Seite Geräte hinzu.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The device has no such channel. Test the device on the Devices page to read its channels again.</source>
        <translation>Das Gerät hat diesen Kanal nicht. Testen Sie das Gerät auf der Seite Geräte, um die Kanäle neu zu lesen.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The face is not known. Read the channel&apos;s faces again.</source>
        <translation>Das Gesicht ist nicht bekannt. Lesen Sie die Gesichter des Kanals neu.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The device&apos;s certificate is not trusted. Test the device on the Devices page to look at it.</source>
        <translation>Dem Zertifikat des Geräts wird nicht vertraut. Testen Sie das Gerät auf der Seite Geräte, um es anzusehen.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>No encrypted connection could be made. Check whether the address must begin with http:// instead of https://.</source>
        <translation>Es kam keine verschlüsselte Verbindung zustande. Prüfen Sie, ob die Adresse mit http:// statt https:// beginnen muss.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The device closed the connection before it had answered. Try again.</source>
        <translation>Das Gerät hat die Verbindung vor der Antwort geschlossen. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The device&apos;s address or token cannot be used. Correct it on the Devices page.</source>
        <translation>Adresse oder Token des Geräts sind unbrauchbar. Berichtigen Sie sie auf der Seite Geräte.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The program is about to end.</source>
        <translation>Das Programm wird gerade beendet.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The device refuses the token. Enter the token that is set on the device.</source>
        <translation>Das Gerät lehnt das Token ab. Geben Sie das Token ein, das am Gerät eingestellt ist.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The token may not do this. Check its rights on the device.</source>
        <translation>Das Token darf das nicht. Prüfen Sie seine Rechte am Gerät.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The device does not have what was asked for. Check the address.</source>
        <translation>Das Gerät hat das Gewünschte nicht. Prüfen Sie die Adresse.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The device holds a face with this serial number already.</source>
        <translation>Das Gerät hat bereits ein Gesicht mit dieser Seriennummer.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The photograph is too large for the device.</source>
        <translation>Das Foto ist zu groß für das Gerät.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The device is busy. Try again in a moment.</source>
        <translation>Das Gerät ist beschäftigt. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The device is full. Delete faces that are not needed any more.</source>
        <translation>Das Gerät ist voll. Löschen Sie Gesichter, die nicht mehr gebraucht werden.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The device refused with HTTP status %1.</source>
        <translation>Das Gerät hat mit HTTP-Status %1 abgelehnt.</translation>
    </message>
</context>
<context>
    <name>dvx_sdk::HttpConnection</name>
    <message>
        <location filename="../../dvx_client_sdk/HttpConnection.cpp" line="+106"/>
        <source>The device shows another certificate than the one that was accepted.</source>
        <translation>Das Gerät zeigt ein anderes Zertifikat als das angenommene.</translation>
    </message>
</context>
<context>
    <name>qarn_base::AbilityDevsSelFromTreeDlg</name>
    <message>
        <location filename="../../qarn_base/AbilityDevsSelFromTreeDlg.cpp" line="+57"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Check at least one channel.</source>
        <translation>Markieren Sie mindestens einen Kanal.</translation>
    </message>
</context>
<context>
    <name>qarn_base::AbilityDevsTree</name>
    <message>
        <location filename="../../qarn_base/AbilityDevsTree.cpp" line="+53"/>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>There is no device yet. Add one on the Devices page.</source>
        <translation>Noch kein Gerät. Fügen Sie eines auf der Seite Geräte hinzu.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No device offers this function.</source>
        <translation>Kein Gerät bietet diese Funktion.</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>%1 (offline)</source>
        <translation>%1 (nicht erreichbar)</translation>
    </message>
</context>
<context>
    <name>qarn_base::BaseTools</name>
    <message>
        <location filename="../../qarn_base/BaseTools.cpp" line="+18"/>
        <source>Male</source>
        <translation>Männlich</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Female</source>
        <translation>Weiblich</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Valid</source>
        <translation>Gültig</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Invalid</source>
        <translation>Ungültig</translation>
    </message>
</context>
<context>
    <name>qarn_base::DatetimeSpanSelWt</name>
    <message>
        <location filename="../../qarn_base/DatetimeSpanSelWt.cpp" line="+79"/>
        <location line="+16"/>
        <source>Start</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <location line="-15"/>
        <location line="+17"/>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="-15"/>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location line="+57"/>
        <source>The clock change skips this start time. Choose another one.</source>
        <translation>Die Zeitumstellung überspringt diesen Beginn. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The clock change skips this end time. Choose another one.</source>
        <translation>Die Zeitumstellung überspringt dieses Ende. Wählen Sie ein anderes.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The end must not be before the start.</source>
        <translation>Das Ende darf nicht vor dem Beginn liegen.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The period must not be longer than %1.</source>
        <translation>Der Zeitraum darf nicht länger sein als %1.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1 days</source>
        <translation>%1 Tage</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 hours</source>
        <translation>%1 Stunden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 seconds</source>
        <translation>%1 Sekunden</translation>
    </message>
</context>
<context>
    <name>qarn_base::ItemModifyDlg</name>
    <message>
        <location filename="../../qarn_base/ItemModifyDlg.cpp" line="+58"/>
        <location line="+2"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Add continuously</source>
        <translation>Weitere anlegen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>The name must not be blank.</source>
        <translation>Der Name darf nicht leer sein.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&quot;%1&quot; is already taken. Choose another name.</source>
        <translation>„%1“ ist schon vergeben. Wählen Sie einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>qarn_base::OperBt</name>
    <message>
        <location filename="../../qarn_base/OperBt.cpp" line="+36"/>
        <source>add</source>
        <translation>hinzufügen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>edit</source>
        <translation>bearbeiten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>delete</source>
        <translation>löschen</translation>
    </message>
</context>
<context>
    <name>qarn_base::PageEditWt</name>
    <message>
        <location filename="../../qarn_base/PageEditWt.cpp" line="+92"/>
        <source>first page</source>
        <translation>erste Seite</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>previous page</source>
        <translation>vorige Seite</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>number of pages</source>
        <translation>Anzahl der Seiten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>next page</source>
        <translation>nächste Seite</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>last page</source>
        <translation>letzte Seite</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>rows a page</source>
        <translation>Zeilen je Seite</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>number of persons</source>
        <translation>Anzahl der Personen</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>per page</source>
        <translation>je Seite</translation>
    </message>
</context>
<context>
    <name>qarn_base::PersonTree</name>
    <message>
        <location filename="../../qarn_base/PersonTree.cpp" line="+39"/>
        <source>Organizations</source>
        <translation>Organisationen</translation>
    </message>
</context>
<context>
    <name>qarn_base::SearchBox</name>
    <message>
        <location filename="../../qarn_base/SearchBox.cpp" line="+15"/>
        <location line="+1"/>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>qarn_base::SelDirLineEt</name>
    <message>
        <location filename="../../qarn_base/SelDirLineEt.cpp" line="+16"/>
        <source>Press Return to choose a path</source>
        <translation>Eingabetaste: Pfad wählen</translation>
    </message>
</context>
<context>
    <name>qarn_base::TimeSpaceLineEt</name>
    <message>
        <location filename="../../qarn_base/TimeSpaceLineEt.cpp" line="+16"/>
        <source>Press Return to change the period</source>
        <translation>Eingabetaste: Zeitraum ändern</translation>
    </message>
</context>
<context>
    <name>qarn_base::TitleBar</name>
    <message>
        <location filename="../../qarn_base/TitleBar.cpp" line="+73"/>
        <source>minimize</source>
        <translation>minimieren</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>maximize</source>
        <translation>maximieren</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>close</source>
        <translation>schließen</translation>
    </message>
</context>
<context>
    <name>qarn_base::XMessageBox</name>
    <message>
        <location filename="../../qarn_base/XMessageBox.cpp" line="+25"/>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Information</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>qarn_data</name>
    <message>
        <location filename="../../qarn_data/Backup.cpp" line="+36"/>
        <location filename="../../qarn_data/StoreFile.cpp" line="+113"/>
        <source>It is a folder. Choose a file.</source>
        <translation>Das ist ein Ordner. Wählen Sie eine Datei.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The file cannot be written. Check the disk and your rights there.</source>
        <translation>Die Datei kann nicht geschrieben werden. Prüfen Sie den Datenträger und Ihre Rechte dort.</translation>
    </message>
    <message>
        <location filename="../../qarn_data/OrganizationWriter.cpp" line="+31"/>
        <source>%1: it has no id.</source>
        <translation>%1: Die Kennung fehlt.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1: the id is taken.</source>
        <translation>%1: Die Kennung ist vergeben.</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+14"/>
        <source>%1: the organization above it does not exist; choose another one.</source>
        <translation>%1: Die übergeordnete Organisation gibt es nicht; wählen Sie eine andere.</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>%1 no longer exists.</source>
        <translation>%1 gibt es nicht mehr.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 is the top organization and stays at the top.</source>
        <translation>%1 ist die oberste Organisation und bleibt oben.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 cannot stand below itself; choose another organization.</source>
        <translation>%1 kann nicht unter sich selbst stehen; wählen Sie eine andere Organisation.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>%1 is the top organization and cannot be deleted.</source>
        <translation>%1 ist die oberste Organisation und kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 still holds persons; move or delete them first.</source>
        <translation>%1 enthält noch Personen; verschieben oder löschen Sie diese zuerst.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 still holds %2; delete or move that first.</source>
        <translation>%1 enthält noch %2; löschen oder verschieben Sie das zuerst.</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>The organization could not be added</source>
        <translation>Die Organisation wurde nicht angelegt</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>The organization could not be changed</source>
        <translation>Die Organisation wurde nicht geändert</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Organizations could not be deleted</source>
        <translation>Organisationen wurden nicht gelöscht</translation>
    </message>
    <message>
        <location line="+94"/>
        <source>The organization could not be made</source>
        <translation>Die Organisation wurde nicht angelegt</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>The custom fields could not be changed</source>
        <translation>Die eigenen Felder wurden nicht geändert</translation>
    </message>
    <message>
        <location filename="../../qarn_data/PersonMover.cpp" line="+131"/>
        <source>Persons could not be moved</source>
        <translation>Personen wurden nicht verschoben</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The organization does not exist. Choose another one.</source>
        <translation>Die Organisation gibt es nicht. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <location filename="../../qarn_data/PersonRules.cpp" line="+66"/>
        <source>And %n more.</source>
        <translation>Und %n weitere.</translation>
    </message>
    <message>
        <location filename="../../qarn_data/PersonWriter.cpp" line="+112"/>
        <source>Persons could not be added</source>
        <translation>Personen wurden nicht angelegt</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>%1 is no longer in the register.</source>
        <translation>%1 ist nicht mehr im Register.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1: the serial number is taken; choose another one.</source>
        <translation>%1: Die Seriennummer ist vergeben; wählen Sie eine andere.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1: the organization does not exist; choose another one.</source>
        <translation>%1: Die Organisation gibt es nicht; wählen Sie eine andere.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 is in that organization already.</source>
        <translation>%1 ist schon in dieser Organisation.</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>The person could not be updated</source>
        <translation>Die Person wurde nicht geändert</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Persons could not be deleted</source>
        <translation>Personen wurden nicht gelöscht</translation>
    </message>
    <message>
        <location filename="../../qarn_data/StoreFile.cpp" line="-81"/>
        <source>The folder does not exist. Create it or choose another place.</source>
        <translation>Den Ordner gibt es nicht. Legen Sie ihn an oder wählen Sie einen anderen Ort.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Its folder is not a folder. Choose another place.</source>
        <translation>Der Ordner dazu ist kein Ordner. Wählen Sie einen anderen Ort.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The folder is read-only, and the store needs room beside its file. Give yourself the right to write there.</source>
        <translation>Der Ordner ist schreibgeschützt, das Register braucht aber Platz neben seiner Datei. Geben Sie sich dort Schreibrecht.</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>The file cannot be read: %1.</source>
        <translation>Die Datei kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The file is not a person register. Choose another file.</source>
        <translation>Die Datei ist kein Personenregister. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The file belongs to another program. Choose another file.</source>
        <translation>Die Datei gehört einem anderen Programm. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The file was written by a newer version (%1, this one knows %2). Update this program.</source>
        <translation>Die Datei stammt von einer neueren Version (%1, bekannt ist %2). Aktualisieren Sie dieses Programm.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The file is damaged: its end is missing. Restore it from a backup.</source>
        <translation>Die Datei ist beschädigt: Ihr Ende fehlt. Stellen Sie sie aus einer Sicherung wieder her.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>No file is named.</source>
        <translation>Es ist keine Datei angegeben.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>It is not a regular file. Choose another file.</source>
        <translation>Das ist keine gewöhnliche Datei. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The file cannot be read. Give yourself the right to read it.</source>
        <translation>Die Datei kann nicht gelesen werden. Geben Sie sich das Leserecht.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The file is read-only. Give yourself the right to write it.</source>
        <translation>Die Datei ist schreibgeschützt. Geben Sie sich das Schreibrecht.</translation>
    </message>
    <message>
        <location filename="../../qarn_data/TokenCipher.cpp" line="+56"/>
        <source>The system gives no random numbers.</source>
        <translation>Das System liefert keine Zufallszahlen.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The key file %1 cannot be made. Check your rights in its folder.</source>
        <translation>Die Schlüsseldatei %1 kann nicht angelegt werden. Prüfen Sie Ihre Rechte in ihrem Ordner.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The key file %1 cannot be read or is damaged. Restore it from a backup.</source>
        <translation>Die Schlüsseldatei %1 ist unlesbar oder beschädigt. Stellen Sie sie aus einer Sicherung wieder her.</translation>
    </message>
</context>
<context>
    <name>qarn_data::Admission</name>
    <message>
        <location filename="../../qarn_data/PersonWriter.cpp" line="-148"/>
        <source>%1: the id is taken.</source>
        <translation>%1: Die Kennung ist vergeben.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1: the serial number is taken; choose another one.</source>
        <translation>%1: Die Seriennummer ist vergeben; wählen Sie eine andere.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1: the organization does not exist; choose another one.</source>
        <translation>%1: Die Organisation gibt es nicht; wählen Sie eine andere.</translation>
    </message>
</context>
<context>
    <name>qarn_data::DeviceRegistry</name>
    <message>
        <location filename="../../qarn_data/DeviceRegistry.cpp" line="+81"/>
        <source>The device could not be saved</source>
        <translation>Das Gerät wurde nicht gespeichert</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>It has no id.</source>
        <translation>Die Kennung fehlt.</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>The device could not be removed</source>
        <translation>Das Gerät wurde nicht entfernt</translation>
    </message>
</context>
<context>
    <name>qarn_data::Move</name>
    <message>
        <location filename="../../qarn_data/PersonMover.cpp" line="-93"/>
        <source>%1 is no longer in the register.</source>
        <translation>%1 ist nicht mehr im Register.</translation>
    </message>
</context>
<context>
    <name>qarn_data::Register</name>
    <message>
        <location filename="../../qarn_data/Register.cpp" line="+66"/>
        <source>The store %1 cannot be opened. %2</source>
        <translation>Das Register %1 lässt sich nicht öffnen. %2</translation>
    </message>
    <message>
        <location line="+80"/>
        <location line="+21"/>
        <source>No store is open.</source>
        <translation>Es ist kein Register geöffnet.</translation>
    </message>
    <message>
        <location line="-12"/>
        <source>It is the open store itself. Choose another file.</source>
        <translation>Das ist das geöffnete Register selbst. Wählen Sie eine andere Datei.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The backup %1 cannot be made. %2</source>
        <translation>Die Sicherung %1 kann nicht angelegt werden. %2</translation>
    </message>
</context>
<context>
    <name>qarn_data::SqlStore</name>
    <message>
        <location filename="../../qarn_data/SqlStore.cpp" line="+72"/>
        <source>The file was written by a newer version. Update this program.</source>
        <translation>Die Datei stammt von einer neueren Version. Aktualisieren Sie dieses Programm.</translation>
    </message>
</context>
<context>
    <name>qarn_data::SqliteDialect</name>
    <message>
        <location filename="../../qarn_data/SqliteDialect.cpp" line="+170"/>
        <source>Another program is using it. Try again when that has finished.</source>
        <translation>Ein anderes Programm benutzt sie. Versuchen Sie es erneut, wenn es fertig ist.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>It is read-only. Give yourself the right to write the file and its folder.</source>
        <translation>Schreibgeschützt. Geben Sie sich Schreibrecht für Datei und Ordner.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The disk is full. Free some space and try again.</source>
        <translation>Der Datenträger ist voll. Schaffen Sie Platz und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The disk does not take or give the data (%1). Check the disk and its free space.</source>
        <translation>Der Datenträger nimmt oder liefert die Daten nicht (%1). Prüfen Sie ihn und den freien Platz.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The file is damaged (%1). Restore it from a backup.</source>
        <translation>Die Datei ist beschädigt (%1). Stellen Sie sie aus einer Sicherung wieder her.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The file is not a person register. Choose another file.</source>
        <translation>Die Datei ist kein Personenregister. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The file cannot be opened. Check its folder and your rights there.</source>
        <translation>Die Datei lässt sich nicht öffnen. Prüfen Sie den Ordner und Ihre Rechte dort.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The database says: %1.</source>
        <translation>Die Datenbank meldet: %1.</translation>
    </message>
</context>
<context>
    <name>qarn_data::WriteSession</name>
    <message>
        <location filename="../../qarn_data/WriteSession.cpp" line="+58"/>
        <source>No store is open.</source>
        <translation>Es ist kein Register geöffnet.</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>%1 (%2). %3</source>
        <translation>%1 (%2). %3</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::ChangePersonsOrganizationDlg</name>
    <message>
        <location filename="../../../personMgr/tree/ChangePersonsOrganizationDlg.ui" line="+64"/>
        <location line="+35"/>
        <source>Organization Name</source>
        <translation>Name der Organisation</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Remove from the original organization</source>
        <translation>Aus der bisherigen Organisation entfernen</translation>
    </message>
    <message>
        <location line="+55"/>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location filename="../../../personMgr/tree/ChangePersonsOrganizationDlg.cpp" line="+21"/>
        <source>Change Persons Organization</source>
        <translation>Organisation der Personen ändern</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Please Select organization to move persons</source>
        <translation>Wählen Sie die Organisation, in die die Personen verschoben werden</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::CustomFieldsModifyDlg</name>
    <message>
        <location filename="../../../personMgr/editor/CustomFieldsModifyDlg.ui" line="+62"/>
        <source>defined personnel information fields,such as position, specialty, etc</source>
        <translation>eigene Felder für Angaben zur Person, etwa Stellung oder Fachgebiet</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <location line="+75"/>
        <source>Field Name</source>
        <translation>Feldname</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Oper</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <location line="+85"/>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location filename="../../../personMgr/editor/CustomFieldsModifyDlg.cpp" line="+41"/>
        <source>Custom Fields Set</source>
        <translation>Eigene Felder</translation>
    </message>
    <message>
        <location line="+65"/>
        <source>the maximum number of custom fields has been reached</source>
        <translation>Mehr eigene Felder sind nicht möglich</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Custom Field</source>
        <translation>Eigenes Feld</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Do you want to delete this custom field?</source>
        <translation>Dieses eigene Feld löschen?</translation>
    </message>
    <message>
        <location line="+60"/>
        <source>custom field name has exist</source>
        <translation>Diesen Feldnamen gibt es schon</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::ExportPersonsDlg</name>
    <message>
        <location filename="../../../personMgr/transfer/ExportPersonsDlg.ui" line="+49"/>
        <location line="+370"/>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <location line="-358"/>
        <source>Person Info</source>
        <translation>Angaben zur Person</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Person Face</source>
        <translation>Gesicht</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Export child organization persons</source>
        <translation>Auch Personen untergeordneter Organisationen</translation>
    </message>
    <message>
        <location line="+19"/>
        <location line="+26"/>
        <location line="+129"/>
        <source>Sel expot colums</source>
        <translation>Spalten wählen</translation>
    </message>
    <message>
        <location line="-102"/>
        <location line="+129"/>
        <source>Sel All Columns</source>
        <translation>Alle Spalten</translation>
    </message>
    <message>
        <location line="-121"/>
        <location line="+129"/>
        <source>Serail Num</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <location line="-121"/>
        <location line="+129"/>
        <source>Person Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="-121"/>
        <location filename="../../../personMgr/transfer/ExportPersonsDlg.cpp" line="+32"/>
        <source>Organization</source>
        <translation>Organisation</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+121"/>
        <source>Gender</source>
        <translation>Geschlecht</translation>
    </message>
    <message>
        <location line="-113"/>
        <location filename="../../../personMgr/transfer/ExportPersonsDlg.cpp" line="+2"/>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+113"/>
        <location filename="../../../personMgr/transfer/ExportPersonsDlg.cpp" line="+1"/>
        <source>Phone Num</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <location line="-105"/>
        <location line="+113"/>
        <location filename="../../../personMgr/transfer/ExportPersonsDlg.cpp" line="+1"/>
        <source>Identity ID</source>
        <translation>Ausweisnummer</translation>
    </message>
    <message>
        <location line="-105"/>
        <location filename="../../../personMgr/transfer/ExportPersonsDlg.cpp" line="+1"/>
        <source>Valid Time</source>
        <translation>Gültig ab</translation>
    </message>
    <message>
        <location line="+8"/>
        <location filename="../../../personMgr/transfer/ExportPersonsDlg.cpp" line="+1"/>
        <source>Invalid Time</source>
        <translation>Gültig bis</translation>
    </message>
    <message>
        <location line="+129"/>
        <source>Column order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <location line="+75"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location filename="../../../personMgr/transfer/ExportPersonsDlg.cpp" line="-8"/>
        <source>*Serail Num</source>
        <translation>*Seriennummer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>*Person Name</source>
        <translation>*Name</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Sex</source>
        <translation>Geschlecht</translation>
    </message>
    <message>
        <location line="+165"/>
        <source>Please select export columns</source>
        <translation>Wählen Sie Spalten für den Export</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::FaceImageModifyWt</name>
    <message>
        <location filename="../../../personMgr/editor/FaceImageModifyWt.ui" line="+57"/>
        <source>Add Face</source>
        <translation>Gesicht hinzufügen</translation>
    </message>
    <message>
        <location filename="../../../personMgr/editor/FaceImageModifyWt.cpp" line="+59"/>
        <location line="+1"/>
        <source>delete</source>
        <translation>löschen</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Click to change face Iamge</source>
        <translation>Klicken, um das Bild zu ändern</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>Select face image</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Change face image</source>
        <translation>Bild ändern</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Images (*.jpg)</source>
        <translation>Bilder (*.jpg)</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Do you want to delete the current face image?</source>
        <translation>Das angezeigte Bild löschen?</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::ImportPersonsDlg</name>
    <message>
        <location filename="../../../personMgr/transfer/ImportPersonsDlg.ui" line="+49"/>
        <location line="+301"/>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <location line="-289"/>
        <source>Person Info</source>
        <translation>Angaben zur Person</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Person Face</source>
        <translation>Gesicht</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Import File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <location line="+56"/>
        <source>Download personnel import template</source>
        <translation>Importvorlage speichern</translation>
    </message>
    <message>
        <location line="+69"/>
        <source>Naming Rules</source>
        <translation>Benennung</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Serial Num_Person Name_Sex</source>
        <translation>Seriennummer_Name_Geschlecht</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>SerialNum</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>PersonName</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="+10"/>
        <location filename="../../../personMgr/transfer/ImportPersonsDlg.cpp" line="+58"/>
        <location line="+21"/>
        <source>Sex</source>
        <translation>Geschlecht</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>1.Single picture less than 200K
2.Format only supports jpg
3.sex:Male,Female</source>
        <translation>1. Ein Bild höchstens 200K
2. Nur das Format jpg
3. Geschlecht: Männlich, Weiblich</translation>
    </message>
    <message>
        <location line="+72"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location filename="../../../personMgr/transfer/ImportPersonsDlg.cpp" line="-26"/>
        <source>Import persons</source>
        <translation>Personen importieren</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+23"/>
        <source>Serial Num</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <location line="-22"/>
        <location line="+22"/>
        <source>Person Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Select Person faces dir</source>
        <translation>Verzeichnis mit Bildern wählen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Select Person info file</source>
        <translation>Datei mit Personen wählen</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Please select person faces dir</source>
        <translation>Wählen Sie ein Verzeichnis mit Bildern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Please select person info file</source>
        <translation>Wählen Sie eine Datei mit Personen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Please set naming rules</source>
        <translation>Legen Sie die Benennung fest</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Download Person import template</source>
        <translation>Importvorlage speichern</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Download import person template finished</source>
        <translation>Importvorlage gespeichert</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Download person import template failed</source>
        <translation>Importvorlage nicht gespeichert</translation>
    </message>
    <message>
        <location filename="../../../personMgr/transfer/PersonFileFormat.cpp" line="+51"/>
        <source>Rules:</source>
        <translation>Regeln:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>1. Star is required</source>
        <translation>1. Felder mit Stern sind nötig</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>2. 1:Male 2:Female</source>
        <translation>2. 1:Männlich 2:Weiblich</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>3. Date Format:YYYY-MM-DD</source>
        <translation>3. Datum: JJJJ-MM-TT</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>4. Hierarchical use / segmentation of the organization</source>
        <translation>4. Ebenen der Organisation durch / trennen</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>*Serial Num</source>
        <translation>*Seriennummer</translation>
    </message>
    <message>
        <location line="-20"/>
        <source>*Person Name</source>
        <translation>*Name</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>*Organization</source>
        <translation>*Organisation</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>*Sex</source>
        <translation>*Geschlecht</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Phone Num</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Valid Time</source>
        <translation>Gültig ab</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Invalid Time</source>
        <translation>Gültig bis</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::ImportPersonsThread</name>
    <message>
        <location filename="../../../personMgr/transfer/ImportPersonsThread.cpp" line="+83"/>
        <source>Failed to open the file containing face information</source>
        <translation>Die Datei mit den Angaben lässt sich nicht öffnen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Failed to read %1: %2. No new persons were added; import the file again</source>
        <translation>%1 konnte nicht gelesen werden: %2. Keine neuen Personen wurden angelegt; importieren Sie die Datei erneut</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>The directory does not contain face images</source>
        <translation>Das Verzeichnis enthält keine Bilder</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Male</source>
        <translation>Männlich</translation>
    </message>
    <message>
        <location line="+64"/>
        <source>import persons finished(Existing persons updated the information)</source>
        <translation>Personen importiert (vorhandene Personen wurden aktualisiert)</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonCustomInfoWt</name>
    <message>
        <location filename="../../../personMgr/editor/PersonCustomInfoWt.cpp" line="+37"/>
        <source>Please add custom field first</source>
        <translation>Legen Sie zuerst eigene Felder an</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonExtraInfoWt</name>
    <message>
        <location filename="../../../personMgr/editor/PersonExtraInfoWt.ui" line="+67"/>
        <source>Birth Date</source>
        <translation>Geburtsdatum</translation>
    </message>
    <message>
        <location line="+25"/>
        <location line="+281"/>
        <source>yyyy-MM-dd</source>
        <translation>dd.MM.yyyy</translation>
    </message>
    <message>
        <location line="-246"/>
        <source>Identity Type</source>
        <translation>Ausweisart</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>identity Chinese id</source>
        <translation>chinesischer Personalausweis</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>identity student id</source>
        <translation>Studierendenausweis</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>identity officer id</source>
        <translation>Dienstausweis</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>identity driver id</source>
        <translation>Führerschein</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>identity passport id</source>
        <translation>Reisepass</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>identity foreigner in china id</source>
        <translation>Aufenthaltstitel für Ausländer in China</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>identity hongkong or macao access id</source>
        <translation>Reisegenehmigung Hongkong/Macau</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>identity hongkong or macao live id</source>
        <translation>Aufenthaltstitel Hongkong/Macau</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>identity taiwan live id</source>
        <translation>Aufenthaltstitel Taiwan</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>identity other</source>
        <translation>anderer Ausweis</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Identity ID</source>
        <translation>Ausweisnummer</translation>
    </message>
    <message>
        <location line="+57"/>
        <source>Job</source>
        <translation>Beruf</translation>
    </message>
    <message>
        <location line="+57"/>
        <source>Employ Date</source>
        <translation>Eingestellt am</translation>
    </message>
    <message>
        <location line="+60"/>
        <source>Address</source>
        <translation>Anschrift</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonInfoModifyDlg</name>
    <message>
        <location filename="../../../personMgr/editor/PersonInfoModifyDlg.ui" line="+139"/>
        <source>Add continuously</source>
        <translation>Weitere anlegen</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location filename="../../../personMgr/editor/PersonInfoModifyDlg.cpp" line="+41"/>
        <source>Add Person</source>
        <translation>Person anlegen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Edit Person</source>
        <translation>Person bearbeiten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonInfoModifyWt</name>
    <message>
        <location filename="../../../personMgr/editor/PersonInfoModifyWt.ui" line="+35"/>
        <source>Basic Info</source>
        <translation>Grunddaten</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>&lt;font color=&quot;#dc4d4d&quot;&gt;* &lt;/font&gt;Name</source>
        <translation>&lt;font color=&quot;#dc4d4d&quot;&gt;* &lt;/font&gt;Name</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>&lt;font color=&quot;#dc4d4d&quot;&gt;* &lt;/font&gt;Serail Num</source>
        <translation>&lt;font color=&quot;#dc4d4d&quot;&gt;* &lt;/font&gt;Seriennummer</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Sex</source>
        <translation>Geschlecht</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Male</source>
        <translation>Männlich</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Female</source>
        <translation>Weiblich</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Phone Num</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Valid Time Range</source>
        <translation>Gültigkeit</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Remarks</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <location line="+67"/>
        <source>Face image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Face image 1</source>
        <translation>Bild 1</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Face image 2</source>
        <translation>Bild 2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Face image 3</source>
        <translation>Bild 3</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <location line="+56"/>
        <source>Custom Info</source>
        <translation>Eigene Felder</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Extra Info</source>
        <translation>Weitere Angaben</translation>
    </message>
    <message>
        <location filename="../../../personMgr/editor/PersonInfoModifyWt.cpp" line="+108"/>
        <source>person name can&apos;t be empty or all blank space!</source>
        <translation>Der Name darf nicht leer sein!</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>serail num can&apos;t be empty or all blank space!</source>
        <translation>Die Seriennummer darf nicht leer sein!</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>serail num has exist!</source>
        <translation>Die Seriennummer ist schon vergeben!</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonInfoWt</name>
    <message>
        <location filename="../../../personMgr/table/PersonInfoWt.ui" line="+218"/>
        <source>edit</source>
        <translation>bearbeiten</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>delete</source>
        <translation>löschen</translation>
    </message>
    <message>
        <location filename="../../../personMgr/table/PersonInfoWt.cpp" line="+66"/>
        <source>select %1</source>
        <translation>%1 auswählen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>edit %1</source>
        <translation>%1 bearbeiten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>delete %1</source>
        <translation>%1 löschen</translation>
    </message>
    <message>
        <location line="+69"/>
        <source>Do you want to delete the person: %1?</source>
        <translation>Diese Person löschen: %1?</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonMgrForm</name>
    <message>
        <location filename="../../../personMgr/form/PersonMgrForm.ui" line="+14"/>
        <source>PersonMgrForm</source>
        <translation>Personen</translation>
    </message>
    <message>
        <location line="+84"/>
        <location line="+128"/>
        <source>Organizations</source>
        <translation>Organisationen</translation>
    </message>
    <message>
        <location line="-96"/>
        <location line="+3"/>
        <source>add organization</source>
        <translation>Organisation hinzufügen</translation>
    </message>
    <message>
        <location line="+27"/>
        <location line="+3"/>
        <source>delete organization</source>
        <translation>Organisation löschen</translation>
    </message>
    <message>
        <location line="+51"/>
        <location line="+3"/>
        <source>display child organization person</source>
        <translation>auch untergeordnete anzeigen</translation>
    </message>
    <message>
        <location line="+100"/>
        <location line="+19"/>
        <location line="+539"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="-536"/>
        <source>Please input name...</source>
        <translation>Name...</translation>
    </message>
    <message>
        <location line="+38"/>
        <location line="+19"/>
        <location line="+454"/>
        <source>Serial Num</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <location line="-451"/>
        <source>Please input serail num...</source>
        <translation>Seriennummer...</translation>
    </message>
    <message>
        <location line="+38"/>
        <location line="+19"/>
        <source>Valid Range</source>
        <translation>Gültigkeit</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Valid And Invalid</source>
        <translation>Alle</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Invalid</source>
        <translation>Ungültig</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Valid</source>
        <translation>Gültig</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <location line="+56"/>
        <source>Add Person</source>
        <translation>Person anlegen</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Del Person</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Move Person</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Import Person</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Export Person</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Send to Dev</source>
        <translation>An Geräte</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Sync From Dev</source>
        <translation>Von Geräten</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>CustomProperty</source>
        <translation>Eigene Felder</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Face Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <location line="+75"/>
        <source>Sex</source>
        <translation>Geschlecht</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Organization</source>
        <translation>Organisation</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Is Valid</source>
        <translation>Gültig</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Oper</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <location filename="../../../personMgr/form/PersonMgrFormPersons.cpp" line="+40"/>
        <source>Please select which organization to add person first</source>
        <translation>Wählen Sie zuerst die Organisation der neuen Person</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Delete Checked Persons</source>
        <translation>Markierte Personen löschen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Delete All Persons</source>
        <translation>Alle Personen löschen</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Please select persons to delete</source>
        <translation>Markieren Sie die Personen, die gelöscht werden sollen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Do you want to delete selected persons?</source>
        <translation>Die markierten Personen löschen?</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>There is no person to delete in the table</source>
        <translation>Die Liste enthält keine Person zum Löschen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Do you want to delete all the persons in the table?</source>
        <translation>Alle Personen der Liste löschen?</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Please select persons to move</source>
        <translation>Markieren Sie die Personen, die verschoben werden sollen</translation>
    </message>
    <message>
        <location filename="../../../personMgr/form/PersonMgrFormSync.cpp" line="+38"/>
        <location line="+47"/>
        <location filename="../../../personMgr/form/PersonMgrFormTransfer.cpp" line="+72"/>
        <source>Exporting Persons...</source>
        <translation>Personen werden exportiert...</translation>
    </message>
    <message>
        <location line="-42"/>
        <source>Synchronize persons to devs finished</source>
        <translation>Personen an die Geräte gesendet</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+51"/>
        <source>sync persons time out</source>
        <translation>Zeitüberschreitung beim Abgleich</translation>
    </message>
    <message>
        <location line="-39"/>
        <source>Please select organization to synchronize</source>
        <translation>Wählen Sie die Organisation, die gesendet werden soll</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Please check persons to synchronize</source>
        <translation>Markieren Sie die Personen, die gesendet werden sollen</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Please select organization to synchronize faces from devs</source>
        <translation>Wählen Sie die Organisation für die Gesichter der Geräte</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Synchronize faces from Devs</source>
        <translation>Gesichter von Geräten holen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Please Check whick devs synchronize faces from</source>
        <translation>Markieren Sie die Geräte, von denen Gesichter geholt werden</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Synchronize</source>
        <translation>Abgleichen</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Synchronize persons from devs finished</source>
        <translation>Personen von den Geräten geholt</translation>
    </message>
    <message>
        <location filename="../../../personMgr/form/PersonMgrFormTransfer.cpp" line="-38"/>
        <source>Please select whick organization to export persons</source>
        <translation>Wählen Sie die Organisation, deren Personen exportiert werden</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Export Organization[%1]Persons</source>
        <translation>Personen von [%1] exportieren</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Export Persons</source>
        <translation>Personen exportieren</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Select Export Path</source>
        <translation>Zielverzeichnis wählen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>path cannot contain=</source>
        <translation>Der Pfad darf kein = enthalten</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Export persons finished</source>
        <translation>Personen exportiert</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Export persons failed</source>
        <translation>Export fehlgeschlagen</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Importing Persons...</source>
        <translation>Personen werden importiert...</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Please select which organization to import persons</source>
        <translation>Wählen Sie die Organisation für die importierten Personen</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonMgrTree</name>
    <message>
        <location filename="../../../personMgr/tree/PersonMgrTree.cpp" line="+49"/>
        <source>Please select which organization to add to</source>
        <translation>Wählen Sie die übergeordnete Organisation</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Please select which organization to delete</source>
        <translation>Wählen Sie die Organisation, die gelöscht werden soll</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>root organization can not be deleted</source>
        <translation>Die oberste Organisation kann nicht gelöscht werden</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>New Organization</source>
        <translation>Neue Organisation</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Add Organization</source>
        <translation>Organisation anlegen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Edit Organization</source>
        <translation>Organisation bearbeiten</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>organization has persons, can not be deleted</source>
        <translation>Die Organisation enthält Personen und kann nicht gelöscht werden</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Do you want to delete the select organization?</source>
        <translation>Die gewählte Organisation löschen?</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonsTableWt</name>
    <message>
        <location filename="../../../personMgr/table/PersonsTableWt.cpp" line="+152"/>
        <source>No persons to show. Select another organization, change the filters, or add persons.</source>
        <translation>Keine Personen. Wählen Sie eine andere Organisation, ändern Sie die Filter oder legen Sie Personen an.</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::SynchronizeFacesThread</name>
    <message>
        <location filename="../../../personMgr/sync/SynchronizeFacesThread.cpp" line="+191"/>
        <source>getting %1 faces....</source>
        <translation>Gesichter von %1 werden gelesen....</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>get %1 faces failed</source>
        <translation>Gesichter von %1 konnten nicht gelesen werden</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>deleting %1 faces....</source>
        <translation>Gesichter auf %1 werden gelöscht....</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>adding %1 faces...</source>
        <translation>Gesichter werden an %1 gesendet...</translation>
    </message>
    <message>
        <location line="+64"/>
        <source>del %1 face from %2 failed</source>
        <translation>%1 konnte auf %2 nicht gelöscht werden</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>add %1 face to %2 failed</source>
        <translation>%1 konnte nicht an %2 gesendet werden</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::SynchronizeFacesToDevsDlg</name>
    <message>
        <location filename="../../../personMgr/sync/SynchronizeFacesToDevsDlg.ui" line="+56"/>
        <location line="+280"/>
        <source>Synchronize</source>
        <translation>Abgleichen</translation>
    </message>
    <message>
        <location line="-237"/>
        <source>Checked Presons</source>
        <translation>Markierte Personen</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>Sel Organization</source>
        <translation>Gewählte Organisation</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Child org persons</source>
        <translation>Auch untergeordnete</translation>
    </message>
    <message>
        <location line="+62"/>
        <source>Delete Persons that deleted from dvx4700 platform</source>
        <translation>Hier gelöschte Personen auf den Geräten löschen</translation>
    </message>
    <message>
        <location line="+22"/>
        <location line="+22"/>
        <source>Dev Sel</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <location line="+72"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location filename="../../../personMgr/sync/SynchronizeFacesToDevsDlg.cpp" line="+28"/>
        <source>Synchronize faces to Devs</source>
        <translation>Gesichter an Geräte senden</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Please Check whick devs to synchronize</source>
        <translation>Markieren Sie die Geräte</translation>
    </message>
</context>
<context>
    <name>qarn_worker::DictDef</name>
    <message>
        <location filename="../../qarn_worker/DictDef.cpp" line="+7"/>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Success</source>
        <translation>Erfolg</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
</TS>
