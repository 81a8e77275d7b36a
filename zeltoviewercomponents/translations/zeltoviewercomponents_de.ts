<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AddressValidator</name>
    <message>
        <source>There are blanks in the address.</source>
        <translation>Die Adresse enthält Leerzeichen.</translation>
    </message>
    <message>
        <source>There are more than four numbers.</source>
        <translation>Das sind mehr als vier Zahlen.</translation>
    </message>
    <message>
        <source>Only digits and dots are allowed.</source>
        <translation>Nur Ziffern und Punkte sind erlaubt.</translation>
    </message>
    <message>
        <source>Write %1 without leading zeros.</source>
        <translation>Schreiben Sie %1 ohne führende Nullen.</translation>
    </message>
    <message>
        <source>%1 is larger than 255.</source>
        <translation>%1 ist größer als 255.</translation>
    </message>
    <message>
        <source>Enter four numbers with dots between them.</source>
        <translation>Geben Sie vier Zahlen mit Punkten dazwischen ein.</translation>
    </message>
</context>
<context>
    <name>ComboSlider</name>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>Bereich: %1..%2 (Schrittweite: %3)</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>Bereich: %1..%2</translation>
    </message>
</context>
<context>
    <name>DoubleComboSlider</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>Bereich: %1..%2</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBox</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>Bereich: %1..%2</translation>
    </message>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>Bereich: %1..%2 (Schrittweite: %3)</translation>
    </message>
</context>
<context>
    <name>ErrorHandling</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Unexpected exception occurred</source>
        <translation>Eine unerwartete Ausnahme ist aufgetreten</translation>
    </message>
</context>
<context>
    <name>FeatureTreeINodeItem</name>
    <message>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;nicht vorhanden&gt;</translation>
    </message>
    <message>
        <source>&lt;not available&gt;</source>
        <translation>&lt;nicht verfügbar&gt;</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;nicht lesbar&gt;</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; has characters outside Latin-1, which this camera cannot store.</source>
        <translation>%1: „%2“ enthält Zeichen außerhalb von Latin-1, die diese Kamera nicht speichern kann.</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <source>Failed to get a feature value</source>
        <translation>Der Wert eines Merkmals konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>Failed to set a feature value.</source>
        <translation>Der Wert eines Merkmals konnte nicht gesetzt werden.</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Merkmal</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Failed to get the node &apos;Root&apos; from the node map</source>
        <translation>Der Knoten „Root“ fehlt in der Knotentabelle</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Favorites&lt;/h3&gt;&lt;b&gt;This node contains a list of features selected by the user&lt;/b&gt;&lt;br&gt;&lt;br&gt;To add a feature, right-click the feature and choose &apos;Add to Favorites&apos; from the context menu. You can also use drag and drop to add features to your favorites.&lt;br&gt;Favorites can be moved up and down within the list as well as removed from the list by right-clicking an item and choosing the appropriate option from the context menu.</source>
        <translation>&lt;h3&gt;Favoriten&lt;/h3&gt;&lt;b&gt;Dieser Zweig enthält die Merkmale, die Sie ausgewählt haben&lt;/b&gt;&lt;br&gt;&lt;br&gt;Um ein Merkmal hinzuzufügen, klicken Sie es mit der rechten Maustaste an und wählen im Kontextmenü „Zu den Favoriten hinzufügen“. Sie können Merkmale auch auf die Favoriten ziehen.&lt;br&gt;Favoriten lassen sich in der Liste nach oben und unten verschieben und daraus entfernen: Klicken Sie einen Eintrag mit der rechten Maustaste an und wählen Sie den passenden Befehl im Kontextmenü.</translation>
    </message>
    <message>
        <source>Add favorites by right-clicking a feature below.</source>
        <translation>Fügen Sie Favoriten durch Rechtsklick auf ein Merkmal hinzu.</translation>
    </message>
    <message>
        <source>To add a feature, right-click the feature and choose &apos;Add to Favorites&apos; from the context menu. You can also use drag and drop to add features to your favorites.</source>
        <translation>Um ein Merkmal hinzuzufügen, klicken Sie es mit der rechten Maustaste an und wählen im Kontextmenü „Zu den Favoriten hinzufügen“. Sie können Merkmale auch auf die Favoriten ziehen.</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>%1 %2 (%3 is unavailable for the current camera)</source>
        <translation>%1 %2 (%3 ist bei der aktuellen Kamera nicht verfügbar)</translation>
    </message>
    <message>
        <source>%1 %2 (%3 are unavailable for the current camera)</source>
        <translation>%1 %2 (%3 sind bei der aktuellen Kamera nicht verfügbar)</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <source>No search results found.</source>
        <translation>Keine Treffer gefunden.</translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidget</name>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>Add to Favorites</source>
        <translation>Zu den Favoriten hinzufügen</translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Polling</source>
        <translation>Abfragen</translation>
    </message>
    <message>
        <source>Search (%1)</source>
        <translation>Suchen (%1)</translation>
    </message>
    <message>
        <source>&lt;B&gt;%1 search results (%2 of them visible at higher user level)&lt;/B&gt;</source>
        <translation>&lt;B&gt;%1 Treffer (%2 davon erst auf höherer Benutzerstufe sichtbar)&lt;/B&gt;</translation>
    </message>
    <message>
        <source>The camera gave no reason.</source>
        <translation>Die Kamera nennt keinen Grund.</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) found</source>
        <translation>
            <numerusform>%n Merkmal gefunden</numerusform>
            <numerusform>%n Merkmale gefunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n more at a higher level</source>
        <translation>
            <numerusform>%1, %n weiteres auf einer höheren Stufe</numerusform>
            <numerusform>%1, %n weitere auf einer höheren Stufe</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidgetClass</name>
    <message>
        <source>FeatureTreeWidget</source>
        <translation>Merkmalsbaum</translation>
    </message>
    <message>
        <source>Show Unavailable Favorites</source>
        <translation>Nicht verfügbare Favoriten zeigen</translation>
    </message>
    <message>
        <source>P&amp;olling</source>
        <translation>Abf&amp;ragen</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Refreshes the  feature tree</source>
        <translation>Aktualisiert den Merkmalsbaum</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Merkmale</translation>
    </message>
</context>
<context>
    <name>FloatEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;nicht lesbar&gt;</translation>
    </message>
</context>
<context>
    <name>FloatSliderEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;nicht lesbar&gt;</translation>
    </message>
</context>
<context>
    <name>HelpLink</name>
    <message>
        <source>Get help</source>
        <translation>Hilfe öffnen</translation>
    </message>
    <message>
        <source>The help page could not be opened.</source>
        <translation>Die Hilfeseite konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Copy Link Location</source>
        <translation>Linkadresse kopieren</translation>
    </message>
</context>
<context>
    <name>IntEditor</name>
    <message>
        <source>Range: 0x%1..0x%2</source>
        <translation>Bereich: 0x%1..0x%2</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>Bereich: %1..%2</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;nicht lesbar&gt;</translation>
    </message>
</context>
<context>
    <name>IpAddressWidget</name>
    <message>
        <source>IP Configuration</source>
        <translation>IP-Konfiguration</translation>
    </message>
    <message>
        <source>&amp;IP address:</source>
        <translation>&amp;IP-Adresse:</translation>
    </message>
    <message>
        <source>&amp;Subnet mask:</source>
        <translation>&amp;Subnetzmaske:</translation>
    </message>
    <message>
        <source>Default &amp;gateway:</source>
        <translation>Standard-&amp;Gateway:</translation>
    </message>
    <message>
        <source>&amp;MAC address:</source>
        <translation>&amp;MAC-Adresse:</translation>
    </message>
    <message>
        <source>Prefix length %1</source>
        <translation>Präfixlänge %1</translation>
    </message>
</context>
<context>
    <name>MessageBoxCheckable</name>
    <message>
        <source>&amp;Don&apos;t show this dialog again</source>
        <translation>&amp;Diesen Dialog nicht mehr zeigen</translation>
    </message>
</context>
<context>
    <name>QIpAddressValidator</name>
    <message>
        <source>This is the broadcast address, no device can have it.</source>
        <translation>Das ist die Broadcast-Adresse, kein Gerät kann sie haben.</translation>
    </message>
    <message>
        <source>Addresses that begin with 0 stand for no device.</source>
        <translation>Adressen, die mit 0 beginnen, stehen für kein Gerät.</translation>
    </message>
    <message>
        <source>Addresses that begin with 127 stay inside the computer.</source>
        <translation>Adressen, die mit 127 beginnen, bleiben im Rechner.</translation>
    </message>
    <message>
        <source>Addresses from 240.0.0.0 on are reserved.</source>
        <translation>Adressen ab 240.0.0.0 sind reserviert.</translation>
    </message>
    <message>
        <source>Addresses from 224.0.0.0 on are for groups of devices (multicast).</source>
        <translation>Adressen ab 224.0.0.0 sind für Gruppen von Geräten (Multicast).</translation>
    </message>
</context>
<context>
    <name>QIpAddressWithNetmaskValidator</name>
    <message>
        <source>The gateway cannot be the device itself. Enter 0.0.0.0 for none.</source>
        <translation>Das Gateway kann nicht das Gerät selbst sein. Geben Sie 0.0.0.0 für keines ein.</translation>
    </message>
    <message>
        <source>The gateway is not in the device&apos;s subnet. Enter 0.0.0.0 for none.</source>
        <translation>Das Gateway ist nicht im Subnetz des Geräts. Geben Sie 0.0.0.0 für keines ein.</translation>
    </message>
    <message>
        <source>With this mask, this is the address of the network itself.</source>
        <translation>Mit dieser Maske ist das die Adresse des Netzes selbst.</translation>
    </message>
    <message>
        <source>With this mask, this is the broadcast address of the network.</source>
        <translation>Mit dieser Maske ist das die Broadcast-Adresse des Netzes.</translation>
    </message>
</context>
<context>
    <name>QIpNetmaskValidator</name>
    <message>
        <source>The mask 0.0.0.0 tells no network from another.</source>
        <translation>Die Maske 0.0.0.0 unterscheidet keine Netze.</translation>
    </message>
    <message>
        <source>This is no mask: its ones must stand together, as in 255.255.255.0.</source>
        <translation>Das ist keine Maske: Ihre Einsen müssen zusammenstehen wie bei 255.255.255.0.</translation>
    </message>
    <message>
        <source>Enter a number from 1 to 32 after the slash.</source>
        <translation>Geben Sie nach dem Schrägstrich eine Zahl von 1 bis 32 ein.</translation>
    </message>
    <message>
        <source>Only a number from 1 to 32 can follow the slash.</source>
        <translation>Auf den Schrägstrich kann nur eine Zahl von 1 bis 32 folgen.</translation>
    </message>
</context>
<context>
    <name>QMacAddressValidator</name>
    <message>
        <source>This address is for a group of devices (multicast).</source>
        <translation>Diese Adresse ist für eine Gruppe von Geräten (Multicast).</translation>
    </message>
    <message>
        <source>An address of nothing but zeros stands for no device.</source>
        <translation>Eine Adresse nur aus Nullen steht für kein Gerät.</translation>
    </message>
    <message>
        <source>Only the digits 0 to 9 and A to F are allowed, with colons or hyphens.</source>
        <translation>Nur die Ziffern 0 bis 9 und A bis F sind erlaubt, mit Doppelpunkten oder Bindestrichen.</translation>
    </message>
    <message>
        <source>There are more than six numbers of two digits.</source>
        <translation>Das sind mehr als sechs zweistellige Zahlen.</translation>
    </message>
    <message>
        <source>Enter six numbers of two digits, such as 00:1B:2C:3D:4E:5F.</source>
        <translation>Geben Sie sechs zweistellige Zahlen ein, etwa 00:1B:2C:3D:4E:5F.</translation>
    </message>
</context>
<context>
    <name>ToolButtonEditor</name>
    <message>
        <source>Execute</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Läuft …</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>NumberText</name>
    <message>
        <source>&quot;%1&quot; is not a number: %2</source>
        <translation>„%1“ ist keine Zahl: %2</translation>
    </message>
    <message>
        <source>nothing may stand between thousands; %1</source>
        <translation>zwischen Tausendern darf nichts stehen; %1</translation>
    </message>
    <message>
        <source>the exponent is missing</source>
        <translation>der Exponent fehlt</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>sie ist zu groß</translation>
    </message>
    <message>
        <source>leave out the unit</source>
        <translation>ohne die Einheit eingeben</translation>
    </message>
    <message>
        <source>use digits, a decimal sign and an exponent as in %1</source>
        <translation>Ziffern, Dezimalzeichen und Exponent wie in %1 verwenden</translation>
    </message>
    <message>
        <source>use %1 as the decimal sign</source>
        <translation>als Dezimalzeichen „%1“ verwenden</translation>
    </message>
    <message>
        <source>The number is not complete.</source>
        <translation>Die Zahl ist nicht vollständig.</translation>
    </message>
    <message>
        <source>%1 is the maximum</source>
        <translation>%1 ist das Maximum</translation>
    </message>
    <message>
        <source>%1 is the minimum</source>
        <translation>%1 ist das Minimum</translation>
    </message>
    <message>
        <source>%1 is the nearest value (increment: %2)</source>
        <translation>%1 ist der nächstliegende Wert (Schrittweite: %2)</translation>
    </message>
</context>
<context>
    <name>IntSliderEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;nicht lesbar&gt;</translation>
    </message>
</context>
<context>
    <name>IntegerText</name>
    <message>
        <source>Enter four numbers from 0 to 255 with dots between them and without leading zeros, such as 192.168.0.10.</source>
        <translation>Geben Sie vier Zahlen von 0 bis 255 mit Punkten dazwischen und ohne führende Nullen ein, etwa 192.168.0.10.</translation>
    </message>
    <message>
        <source>Enter six hexadecimal numbers with colons between them, such as 00:1B:2C:3D:4E:5F.</source>
        <translation>Geben Sie sechs hexadezimale Zahlen mit Doppelpunkten dazwischen ein, etwa 00:1B:2C:3D:4E:5F.</translation>
    </message>
    <message>
        <source>Enter a hexadecimal number behind 0x, with the digits 0 to 9 and a to f.</source>
        <translation>Geben Sie hinter 0x eine hexadezimale Zahl mit den Ziffern 0 bis 9 und a bis f ein.</translation>
    </message>
    <message>
        <source>Enter a whole number, without decimals and without separators.</source>
        <translation>Geben Sie eine ganze Zahl ohne Nachkommastellen und ohne Trennzeichen ein.</translation>
    </message>
    <message>
        <source>Enter a whole number alone, without a unit.</source>
        <translation>Geben Sie nur eine ganze Zahl ein, ohne Einheit.</translation>
    </message>
    <message>
        <source>Enter a whole number.</source>
        <translation>Geben Sie eine ganze Zahl ein.</translation>
    </message>
    <message>
        <source>The limits of this feature contradict each other, so that no number fits.</source>
        <translation>Die Grenzen dieses Merkmals widersprechen sich, so dass keine Zahl passt.</translation>
    </message>
    <message>
        <source>%1 is the next value below, in steps of %2</source>
        <translation>%1 ist der nächste Wert darunter, in Schritten von %2</translation>
    </message>
    <message>
        <source>This value was refused.</source>
        <translation>Dieser Wert wurde abgelehnt.</translation>
    </message>
</context>
<context>
    <name>FeatureSettings</name>
    <message>
        <source>%1: it is a directory</source>
        <translation>%1: das ist ein Verzeichnis</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 lässt sich nicht schreiben: %2</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>longer than %1 KiB</source>
        <translation>länger als %1 KiB</translation>
    </message>
    <message>
        <source>a file of more than %1 MiB holds no camera settings</source>
        <translation>eine Datei von mehr als %1 MiB enthält keine Kameraeinstellungen</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>this is no UTF-8 text</source>
        <translation>das ist kein UTF-8-Text</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a feature</source>
        <translation>„%1“ ist kein Name eines Merkmals</translation>
    </message>
    <message>
        <source>%1 has no value</source>
        <translation>%1 hat keinen Wert</translation>
    </message>
    <message>
        <source>there are more than %1 values</source>
        <translation>es sind mehr als %1 Werte</translation>
    </message>
</context>
<context>
    <name>SettingsReading</name>
    <message>
        <source>%1 makes more than %2 combinations; only the present one is read</source>
        <translation>%1 ergibt mehr als %2 Kombinationen; nur die gegenwärtige wird gelesen</translation>
    </message>
    <message>
        <source>%1 selects among more than %2 values; only the present one is read</source>
        <translation>%1 wählt unter mehr als %2 Werten; nur der gegenwärtige wird gelesen</translation>
    </message>
    <message>
        <source>%1 selects among more than %2 values; what it selects is left out</source>
        <translation>%1 wählt unter mehr als %2 Werten; was davon abhängt, bleibt weg</translation>
    </message>
    <message>
        <source>%1=%2 cannot be chosen: %3</source>
        <translation>%1=%2 kann nicht gewählt werden: %3</translation>
    </message>
    <message>
        <source>%1 cannot be put back to %2: %3</source>
        <translation>%1 kann nicht auf %2 zurückgestellt werden: %3</translation>
    </message>
</context>
<context>
    <name>SettingsApplying</name>
    <message>
        <source>%1 is no feature that has a value</source>
        <translation>%1 ist kein Merkmal mit einem Wert</translation>
    </message>
</context>
<context>
    <name>SettingsReport</name>
    <message numerus="yes">
        <source>%n set</source>
        <translation>
            <numerusform>%n gesetzt</numerusform>
            <numerusform>%n gesetzt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unchanged</source>
        <translation>
            <numerusform>%n unverändert</numerusform>
            <numerusform>%n unverändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n abgelehnt</numerusform>
            <numerusform>%n abgelehnt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n missing</source>
        <translation>
            <numerusform>%n nicht vorhanden</numerusform>
            <numerusform>%n nicht vorhanden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n read back differently</source>
        <translation>
            <numerusform>%n anders zurückgelesen</numerusform>
            <numerusform>%n anders zurückgelesen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not tried</source>
        <translation>
            <numerusform>%n nicht versucht</numerusform>
            <numerusform>%n nicht versucht</numerusform>
        </translation>
    </message>
    <message>
        <source>The camera was lost: %1.</source>
        <translation>Die Kamera ging verloren: %1.</translation>
    </message>
    <message>
        <source>Cancelled: %1.</source>
        <translation>Abgebrochen: %1.</translation>
    </message>
    <message>
        <source>Done: %1.</source>
        <translation>Fertig: %1.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>set</source>
        <translation>gesetzt</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>unverändert</translation>
    </message>
    <message>
        <source>refused: %1</source>
        <translation>abgelehnt: %1</translation>
    </message>
    <message>
        <source>the camera has no such feature</source>
        <translation>die Kamera hat kein solches Merkmal</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was written, &quot;%2&quot; is read back</source>
        <translation>„%1“ wurde geschrieben, „%2“ wird zurückgelesen</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>nicht versucht</translation>
    </message>
</context>
<context>
    <name>SettingsProgress</name>
    <message>
        <source>Starting…</source>
        <translation>Beginn …</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 von %2: %3</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Abbruch …</translation>
    </message>
</context>
<context>
    <name>SettingsReportDialog</name>
    <message>
        <source>Settings Loaded</source>
        <translation>Einstellungen geladen</translation>
    </message>
    <message>
        <source>Show &amp;all features</source>
        <translation>&amp;Alle Merkmale zeigen</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Merkmal</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Asked for</source>
        <translation>Verlangt</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>&amp;Put Back What Was Before</source>
        <translation>&amp;Vorigen Stand wiederherstellen</translation>
    </message>
</context>
<context>
    <name>ChangeHistory</name>
    <message>
        <source>Failed to undo a change.</source>
        <translation>Eine Änderung konnte nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Failed to redo a change.</source>
        <translation>Eine Änderung konnte nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>%1: the feature is gone</source>
        <translation>%1: das Merkmal gibt es nicht mehr</translation>
    </message>
    <message>
        <source>Failed to set a feature value.</source>
        <translation>Der Wert eines Merkmals konnte nicht gesetzt werden.</translation>
    </message>
    <message>
        <source>values set: %1</source>
        <translation>gesetzte Werte: %1</translation>
    </message>
</context>
<context>
    <name>ChangeHistoryWidget</name>
    <message>
        <source>&amp;Go to Feature</source>
        <translation>Zum Merkmal &amp;gehen</translation>
    </message>
    <message>
        <source>Put &amp;Back the Value Before</source>
        <translation>Wert vor&amp;her wiederherstellen</translation>
    </message>
    <message>
        <source>Set the Value &amp;After Again</source>
        <translation>Wert nach&amp;her erneut setzen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Save as Text…</source>
        <translation>Als Text &amp;speichern…</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>What was changed since the camera was opened</source>
        <translation>Was geändert wurde, seit die Kamera geöffnet ist</translation>
    </message>
    <message>
        <source>Search changes</source>
        <translation>Änderungen durchsuchen</translation>
    </message>
    <message>
        <source>Save Changes as Text</source>
        <translation>Änderungen als Text speichern</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation>Textdateien (*.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 lässt sich nicht schreiben: %2</translation>
    </message>
</context>
<context>
    <name>ChangeList</name>
    <message>
        <source>refused: %1</source>
        <translation>abgelehnt: %1</translation>
    </message>
    <message>
        <source>undone</source>
        <translation>rückgängig gemacht</translation>
    </message>
    <message>
        <source>executed</source>
        <translation>ausgeführt</translation>
    </message>
    <message>
        <source>done</source>
        <translation>erledigt</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Merkmal</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
</context>
<context>
    <name>DifferenceList</name>
    <message>
        <source>no value</source>
        <translation>kein Wert</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Merkmal</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>There</source>
        <translation>Dort</translation>
    </message>
</context>
<context>
    <name>SettingsComparisonWidget</name>
    <message>
        <source>&amp;Go to Feature</source>
        <translation>Zum Merkmal &amp;gehen</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>&amp;Übernehmen</translation>
    </message>
    <message>
        <source>Take Over &amp;All</source>
        <translation>&amp;Alle übernehmen</translation>
    </message>
    <message>
        <source>Compare A&amp;gain</source>
        <translation>&amp;Neu vergleichen</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>In what the camera differs from a file, another camera or how it was</source>
        <translation>Worin die Kamera von einer Datei, einer anderen Kamera oder ihrem früheren Zustand abweicht</translation>
    </message>
    <message>
        <source>Sets the values from there that are selected</source>
        <translation>Setzt die ausgewählten Werte von dort</translation>
    </message>
    <message>
        <source>Sets all values from there that are shown</source>
        <translation>Setzt alle gezeigten Werte von dort</translation>
    </message>
    <message>
        <source>Search differences</source>
        <translation>Unterschiede durchsuchen</translation>
    </message>
    <message>
        <source>No difference from %1</source>
        <translation>Kein Unterschied zu: %1</translation>
    </message>
    <message>
        <source>Differences from %1</source>
        <translation>Unterschiede zu: %1</translation>
    </message>
    <message>
        <source>Nothing is compared.</source>
        <translation>Es wird nichts verglichen.</translation>
    </message>
    <message>
        <source>&amp;Different (%1)</source>
        <translation>&amp;Verschieden (%1)</translation>
    </message>
    <message>
        <source>Only &amp;here (%1)</source>
        <translation>Nur &amp;hier (%1)</translation>
    </message>
    <message>
        <source>Only th&amp;ere (%1)</source>
        <translation>Nur &amp;dort (%1)</translation>
    </message>
</context>
<context>
    <name>SearchEdit</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
</TS>
