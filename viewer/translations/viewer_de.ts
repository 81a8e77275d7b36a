<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CameraDialog</name>
    <message>
        <source>Connect to Camera</source>
        <translation>Mit Kamera verbinden</translation>
    </message>
    <message>
        <source>Reachable cameras</source>
        <translation>Erreichbare Kameras</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Verbinden</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>&amp;Neu suchen</translation>
    </message>
    <message>
        <source>%1 %2 (%3), %4</source>
        <translation>%1 %2 (%3), %4</translation>
    </message>
    <message>
        <source>No camera answers. Check its power, its cable and the network interface, then rescan.</source>
        <translation>Keine Kamera antwortet. Prüfen Sie Stromversorgung, Kabel und Netzwerkschnittstelle und suchen Sie neu.</translation>
    </message>
    <message>
        <source>%1, available</source>
        <translation>%1, verfügbar</translation>
    </message>
    <message>
        <source>%1, in use by another program, opens read-only</source>
        <translation>%1, von einem anderen Programm benutzt, öffnet nur lesend</translation>
    </message>
    <message>
        <source>%1, in use by a program at %2, opens read-only</source>
        <translation>%1, von einem Programm auf %2 benutzt, öffnet nur lesend</translation>
    </message>
    <message>
        <source>%1, held by another program for itself</source>
        <translation>%1, von einem anderen Programm allein belegt</translation>
    </message>
    <message>
        <source>%1, not in a subnet of this computer</source>
        <translation>%1, in keinem Teilnetz dieses Rechners</translation>
    </message>
    <message>
        <source>%1, does not answer</source>
        <translation>%1, antwortet nicht</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Suche läuft …</translation>
    </message>
    <message>
        <source>Waiting until the opening of a camera has ended…</source>
        <translation>Wartet, bis das Öffnen einer Kamera beendet ist …</translation>
    </message>
</context>
<context>
    <name>ColoursMenu</name>
    <message>
        <source>C&amp;olours</source>
        <translation>F&amp;arben</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>Wie das &amp;System</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
</context>
<context>
    <name>DescriptionPane</name>
    <message>
        <source>Integer</source>
        <translation>Ganzzahl</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>Wahrheitswert</translation>
    </message>
    <message>
        <source>Floating-point number</source>
        <translation>Gleitkommazahl</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>Aufzählung</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Not implemented</source>
        <translation>Nicht vorhanden</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>Lesen und schreiben</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Nur lesen</translation>
    </message>
    <message>
        <source>Write only</source>
        <translation>Nur schreiben</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>%1 to %2%3</source>
        <translation>%1 bis %2%3</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Increment</source>
        <translation>Schrittweite</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Zugriff</translation>
    </message>
    <message>
        <source>Visibility</source>
        <translation>Sichtbarkeit</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Description of the current feature</source>
        <translation>Beschreibung des aktuellen Merkmals</translation>
    </message>
</context>
<context>
    <name>IpConfiguration</name>
    <message>
        <source>The reason is not known.</source>
        <translation>Der Grund ist nicht bekannt.</translation>
    </message>
    <message>
        <source>This camera has no features for an IP configuration</source>
        <translation>Diese Kamera hat keine Merkmale für eine IP-Konfiguration</translation>
    </message>
    <message>
        <source>The camera does not allow its IP configuration to be changed now</source>
        <translation>Die Kamera erlaubt jetzt keine Änderung ihrer IP-Konfiguration</translation>
    </message>
    <message>
        <source>The IP configuration was not changed. %1</source>
        <translation>Die IP-Konfiguration wurde nicht geändert. %1</translation>
    </message>
</context>
<context>
    <name>Levels</name>
    <message>
        <source>&amp;Beginner</source>
        <translation>&amp;Einsteiger</translation>
    </message>
    <message>
        <source>&amp;Expert</source>
        <translation>E&amp;xperte</translation>
    </message>
    <message>
        <source>&amp;Guru</source>
        <translation>&amp;Guru</translation>
    </message>
    <message>
        <source>&amp;All Features</source>
        <translation>&amp;Alle Merkmale</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Unsichtbar</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Features</source>
        <translation>Merkmale</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Copy &amp;Tree to Clipboard</source>
        <translation>&amp;Baum in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open Description File…</source>
        <translation>Beschreibungsdatei ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Connect to Camera…</source>
        <translation>Mit Kamera &amp;verbinden…</translation>
    </message>
    <message>
        <source>Ctrl+K</source>
        <translation>Ctrl+K</translation>
    </message>
    <message>
        <source>C&amp;lose Camera</source>
        <translation>Kamera &amp;schließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Monitor Mode</source>
        <translation>&amp;Überwachungsmodus</translation>
    </message>
    <message>
        <source>Polling re-reads all features, not only the volatile ones</source>
        <translation>Beim Abfragen werden alle Merkmale neu gelesen, nicht nur die veränderlichen</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>&amp;Kamera</translation>
    </message>
    <message>
        <source>&amp;IP Configuration…</source>
        <translation>&amp;IP-Konfiguration…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Show All Messages Again</source>
        <translation>Alle Meldungen &amp;wieder zeigen</translation>
    </message>
    <message>
        <source>Brings back the messages that were silenced</source>
        <translation>Holt die Meldungen zurück, die abgestellt wurden</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>Ü&amp;ber…</translation>
    </message>
    <message>
        <source>&amp;Level</source>
        <translation>&amp;Stufe</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 – Zelto Viewer</source>
        <translation>%1 – Zelto Viewer</translation>
    </message>
    <message>
        <source>No camera</source>
        <translation>Keine Kamera</translation>
    </message>
    <message>
        <source>Zelto Viewer</source>
        <translation>Zelto Viewer</translation>
    </message>
    <message>
        <source>Open Description File</source>
        <translation>Beschreibungsdatei öffnen</translation>
    </message>
    <message>
        <source>Camera descriptions (*.xml *.zip);;All files (*)</source>
        <translation>Kamerabeschreibungen (*.xml *.zip);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Neu verbinden</translation>
    </message>
    <message>
        <source>Close Camera</source>
        <translation>Kamera schließen</translation>
    </message>
    <message>
        <source>Close the camera %1?
Changes that were not saved to one of its user sets last until it is switched off.</source>
        <translation>Die Kamera %1 schließen?
Änderungen, die in keinem ihrer Benutzersätze gespeichert sind, bleiben nur bis zum Ausschalten.</translation>
    </message>
    <message>
        <source>IP Configuration</source>
        <translation>IP-Konfiguration</translation>
    </message>
    <message>
        <source>The new IP configuration takes effect after the camera restarts.</source>
        <translation>Die neue IP-Konfiguration gilt, sobald die Kamera neu gestartet ist.</translation>
    </message>
    <message>
        <source>Address, mask and gateway that the camera starts with</source>
        <translation>Adresse, Maske und Gateway, mit denen die Kamera startet</translation>
    </message>
    <message>
        <source>No camera is open</source>
        <translation>Es ist keine Kamera geöffnet</translation>
    </message>
    <message>
        <source>The camera was lost</source>
        <translation>Die Verbindung zur Kamera ist abgebrochen</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s)</source>
        <translation>
            <numerusform>%n Treffer</numerusform>
            <numerusform>%n Treffer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n result(s), %1 of them at a higher level</source>
        <translation>
            <numerusform>%n Treffer, davon %1 auf höherer Stufe</numerusform>
            <numerusform>%n Treffer, davon %1 auf höherer Stufe</numerusform>
        </translation>
    </message>
    <message>
        <source>All messages are shown again.</source>
        <translation>Alle Meldungen werden wieder gezeigt.</translation>
    </message>
    <message>
        <source>About Zelto Viewer</source>
        <translation>Über Zelto Viewer</translation>
    </message>
    <message>
        <source>&lt;b&gt;Zelto Viewer %1&lt;/b&gt;&lt;p&gt;Shows a camera&apos;s features in a tree, for GigE Vision and USB3 Vision cameras and for any GenICam camera description file.</source>
        <translation>&lt;b&gt;Zelto Viewer %1&lt;/b&gt;&lt;p&gt;Zeigt die Merkmale einer Kamera als Baum, für GigE-Vision- und USB3-Vision-Kameras und für jede GenICam-Kamerabeschreibung.</translation>
    </message>
    <message>
        <source>No camera is open.
Open a description file or connect to a camera (menu File).</source>
        <translation>Keine Kamera ist geöffnet.
Öffnen Sie eine Beschreibungsdatei oder verbinden Sie eine Kamera (Menü Datei).</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>&amp;Neu verbinden</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>The tree was copied to the clipboard.</source>
        <translation>Der Baum wurde in die Zwischenablage kopiert.</translation>
    </message>
    <message>
        <source>The open camera has no such feature.</source>
        <translation>Die geöffnete Kamera hat dieses Merkmal nicht.</translation>
    </message>
    <message>
        <source>&amp;Take Control</source>
        <translation>Kontrolle ü&amp;bernehmen</translation>
    </message>
    <message>
        <source>Take Control</source>
        <translation>Kontrolle übernehmen</translation>
    </message>
    <message>
        <source>The camera is open read-only. No program controls it now.</source>
        <translation>Die Kamera ist nur lesend geöffnet. Zurzeit kontrolliert sie kein Programm.</translation>
    </message>
    <message>
        <source>The camera is held by another program and open read-only.</source>
        <translation>Die Kamera wird von einem anderen Programm kontrolliert und ist nur lesend geöffnet.</translation>
    </message>
    <message>
        <source>The camera is held by another program at %1 and open read-only.</source>
        <translation>Die Kamera wird von einem anderen Programm auf %1 kontrolliert und ist nur lesend geöffnet.</translation>
    </message>
    <message>
        <source>Taking control of the camera…</source>
        <translation>Die Kontrolle über die Kamera wird übernommen …</translation>
    </message>
    <message>
        <source>The control of the camera was not taken: %1</source>
        <translation>Die Kontrolle über die Kamera wurde nicht übernommen: %1</translation>
    </message>
    <message>
        <source>Allows the camera&apos;s features to be changed</source>
        <translation>Damit lassen sich die Merkmale der Kamera ändern</translation>
    </message>
    <message>
        <source>Only of a camera that is open read-only and free</source>
        <translation>Nur bei einer Kamera, die nur lesend geöffnet und frei ist</translation>
    </message>
    <message>
        <source>Open R&amp;ecent</source>
        <translation>Zuletzt &amp;geöffnet</translation>
    </message>
    <message>
        <source>How many features are shown</source>
        <translation>Wie viele Merkmale gezeigt werden</translation>
    </message>
    <message>
        <source>Level: %1</source>
        <translation>Stufe: %1</translation>
    </message>
    <message>
        <source>the camera %1</source>
        <translation>Die Kamera %1</translation>
    </message>
    <message>
        <source>the embedded camera</source>
        <translation>Die eingebaute Kamera</translation>
    </message>
    <message>
        <source>The opening was cancelled.</source>
        <translation>Das Öffnen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>%1[*] – %2 – Zelto Viewer</source>
        <translation>%1[*] – %2 – Zelto Viewer</translation>
    </message>
    <message>
        <source>This feature is not shown at the current level</source>
        <translation>Dieses Merkmal wird auf der aktuellen Stufe nicht gezeigt</translation>
    </message>
    <message>
        <source>Camera Settings</source>
        <translation>Kameraeinstellungen</translation>
    </message>
    <message>
        <source>Values of the camera differ from the settings file %1.
Close without saving them?</source>
        <translation>Werte der Kamera weichen von der Einstellungsdatei %1 ab.
Schließen, ohne sie zu speichern?</translation>
    </message>
    <message>
        <source>The camera was sending images when it was lost.</source>
        <translation>Die Kamera sandte Bilder, als die Verbindung abbrach.</translation>
    </message>
    <message>
        <source>Start Images</source>
        <translation>Bilder starten</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
    <message numerus="yes">
        <source>(%n earlier message(s))</source>
        <translation>
            <numerusform>(%n frühere Meldung)</numerusform>
            <numerusform>(%n frühere Meldungen)</numerusform>
        </translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Message: %1</source>
        <translation>Meldung: %1</translation>
    </message>
</context>
<context>
    <name>VisitedFeaturesPanel</name>
    <message>
        <source>Visited Features</source>
        <translation>Besuchte Merkmale</translation>
    </message>
    <message>
        <source>The features you visited last; a click goes back</source>
        <translation>Die zuletzt besuchten Merkmale; ein Klick führt zurück</translation>
    </message>
    <message>
        <source>This feature is not shown at the current level</source>
        <translation>Dieses Merkmal wird auf der aktuellen Stufe nicht gezeigt</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Cannot write %1.</source>
        <translation>%1 lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 lässt sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>Cannot write to the standard output.</source>
        <translation>Die Standardausgabe kann nicht beschrieben werden.</translation>
    </message>
    <message>
        <source>Value Editors – Zelto Viewer</source>
        <translation>Werteditoren – Zelto Viewer</translation>
    </message>
</context>
<context>
    <name>CommandQuestion</name>
    <message>
        <source>Restart the camera?
The connection breaks, and changes that were not saved to one of its user sets are lost.</source>
        <translation>Die Kamera neu starten?
Die Verbindung bricht ab, und Änderungen, die in keinem ihrer Benutzersätze gespeichert sind, gehen verloren.</translation>
    </message>
    <message>
        <source>Reset the camera to its factory settings?
All settings are lost, those saved to its user sets too.</source>
        <translation>Die Kamera auf die Werkseinstellungen zurücksetzen?
Alle Einstellungen gehen verloren, auch die in ihren Benutzersätzen gespeicherten.</translation>
    </message>
    <message>
        <source>Load the user set &quot;%1&quot;?
It overwrites the present settings.</source>
        <translation>Den Benutzersatz „%1“ laden?
Er überschreibt die jetzigen Einstellungen.</translation>
    </message>
    <message>
        <source>Save the present settings to the user set &quot;%1&quot;?
They overwrite what is saved there.</source>
        <translation>Die jetzigen Einstellungen im Benutzersatz „%1“ speichern?
Sie überschreiben, was dort gespeichert ist.</translation>
    </message>
    <message>
        <source>Write to the camera&apos;s file &quot;%1&quot;?
What the file holds is overwritten.</source>
        <translation>In die Datei „%1“ der Kamera schreiben?
Was die Datei enthält, wird überschrieben.</translation>
    </message>
    <message>
        <source>Delete the camera&apos;s file &quot;%1&quot;?
What the file holds is lost.</source>
        <translation>Die Datei „%1“ der Kamera löschen?
Was die Datei enthält, geht verloren.</translation>
    </message>
</context>
<context>
    <name>TreeMenu</name>
    <message>
        <source>&amp;Expand All</source>
        <translation>Alles a&amp;ufklappen</translation>
    </message>
    <message>
        <source>Collapse &amp;All</source>
        <translation>Alles &amp;zuklappen</translation>
    </message>
    <message>
        <source>Copy &amp;Name</source>
        <translation>&amp;Namen kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Value</source>
        <translation>&amp;Wert kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Full Name</source>
        <translation>&amp;Vollen Namen kopieren</translation>
    </message>
    <message>
        <source>&amp;Go To Feature</source>
        <translation>Zum &amp;Merkmal gehen</translation>
    </message>
    <message>
        <source>This feature is not shown at the current level</source>
        <translation>Dieses Merkmal wird auf der aktuellen Stufe nicht gezeigt</translation>
    </message>
</context>
<context>
    <name>RecentSources</name>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>The file does not exist at present</source>
        <translation>Die Datei gibt es zurzeit nicht</translation>
    </message>
</context>
<context>
    <name>OpeningPage</name>
    <message>
        <source>Opening %1</source>
        <translation>%1 wird geöffnet</translation>
    </message>
    <message>
        <source>Waiting until the search for another camera, or its opening, has ended…</source>
        <translation>Wartet, bis die Suche oder das Öffnen einer anderen Kamera beendet ist …</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Verbindung wird aufgebaut …</translation>
    </message>
    <message>
        <source>Reading the description…</source>
        <translation>Die Beschreibung wird gelesen …</translation>
    </message>
    <message>
        <source>Reading the features: %1 of %2</source>
        <translation>Die Merkmale werden gelesen: %1 von %2</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>&amp;Save Settings…</source>
        <translation>Einstellungen &amp;speichern…</translation>
    </message>
    <message>
        <source>&amp;Load Settings…</source>
        <translation>Einstellungen &amp;laden…</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Saves all values that can be changed to a text file</source>
        <translation>Speichert alle änderbaren Werte in eine Textdatei</translation>
    </message>
    <message>
        <source>Brings the values in a file to the camera</source>
        <translation>Bringt die Werte in einer Datei zur Kamera</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Einstellungen speichern</translation>
    </message>
    <message>
        <source>Load Settings</source>
        <translation>Einstellungen laden</translation>
    </message>
    <message>
        <source>Camera settings (*.txt);;All files (*)</source>
        <translation>Kameraeinstellungen (*.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1: there are no settings in it</source>
        <translation>%1: darin sind keine Einstellungen</translation>
    </message>
    <message>
        <source>These are settings of the model %1, and the open camera is a %2.
Load them all the same?</source>
        <translation>Das sind Einstellungen des Modells %1, und die offene Kamera ist eine %2.
Trotzdem laden?</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Laden</translation>
    </message>
    <message>
        <source>No settings were saved.</source>
        <translation>Es wurden keine Einstellungen gespeichert.</translation>
    </message>
    <message>
        <source>The settings were saved, but for some that cannot be read.</source>
        <translation>Die Einstellungen wurden gespeichert, bis auf einige, die nicht gelesen werden können.</translation>
    </message>
    <message>
        <source>The settings were saved to %1.</source>
        <translation>Die Einstellungen wurden in %1 gespeichert.</translation>
    </message>
    <message>
        <source>What was before is back. %1</source>
        <translation>Der vorige Stand ist wieder da. %1</translation>
    </message>
    <message>
        <source>Settings loaded. %1</source>
        <translation>Einstellungen geladen. %1</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>no feature %1</source>
        <translation>kein Merkmal %1</translation>
    </message>
    <message>
        <source>no feature %1; did you mean %2?</source>
        <translation>kein Merkmal %1; meinten Sie %2?</translation>
    </message>
    <message>
        <source>%1: this is no feature that has a value</source>
        <translation>%1: das ist kein Merkmal mit einem Wert</translation>
    </message>
    <message>
        <source>%1: it cannot be read now</source>
        <translation>%1: kann jetzt nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1: the camera does not answer</source>
        <translation>%1: die Kamera antwortet nicht</translation>
    </message>
    <message>
        <source>%1: this is no command</source>
        <translation>%1: das ist kein Befehl</translation>
    </message>
    <message>
        <source>the camera does not answer</source>
        <translation>die Kamera antwortet nicht</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>unterbrochen</translation>
    </message>
    <message>
        <source>standard input: %1</source>
        <translation>Standardeingabe: %1</translation>
    </message>
    <message>
        <source>%1: there are no settings in it</source>
        <translation>%1: darin sind keine Einstellungen</translation>
    </message>
    <message>
        <source>%1: these are settings of %2, and this is %3; --force loads them all the same</source>
        <translation>%1: das sind Einstellungen von %2, und dies ist %3; --force lädt sie trotzdem</translation>
    </message>
    <message>
        <source>Cannot write to the standard output.</source>
        <translation>Auf die Standardausgabe kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 is there already, and nothing is overwritten</source>
        <translation>%1 gibt es schon, und nichts wird überschrieben</translation>
    </message>
    <message>
        <source>this camera delivers no images</source>
        <translation>diese Kamera liefert keine Bilder</translation>
    </message>
    <message>
        <source>no image came</source>
        <translation>es kam kein Bild</translation>
    </message>
</context>
<context>
    <name>Comparison</name>
    <message>
        <source>Opening %1…</source>
        <translation>%1 wird geöffnet …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Compare &amp;With</source>
        <translation>&amp;Vergleichen mit</translation>
    </message>
    <message>
        <source>A &amp;File…</source>
        <translation>Einer &amp;Datei…</translation>
    </message>
    <message>
        <source>The State When &amp;Opened</source>
        <translation>Dem Zustand beim Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Another &amp;Description…</source>
        <translation>Einer anderen &amp;Beschreibung…</translation>
    </message>
    <message>
        <source>Another &amp;Camera…</source>
        <translation>Einer anderen &amp;Kamera…</translation>
    </message>
    <message>
        <source>Compare With a Settings File</source>
        <translation>Mit einer Einstellungsdatei vergleichen</translation>
    </message>
    <message>
        <source>Camera settings (*.txt);;All files (*)</source>
        <translation>Kameraeinstellungen (*.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>the state when opened</source>
        <translation>dem Zustand beim Öffnen</translation>
    </message>
    <message>
        <source>Compare With Another Description</source>
        <translation>Mit einer anderen Beschreibung vergleichen</translation>
    </message>
    <message>
        <source>Camera descriptions (*.xml *.zip);;All files (*)</source>
        <translation>Kamerabeschreibungen (*.xml *.zip);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>HistoryActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederherstellen: %1</translation>
    </message>
    <message>
        <source>what was before</source>
        <translation>was vorher war</translation>
    </message>
</context>
<context>
    <name>WatchModel</name>
    <message>
        <source>Feature</source>
        <translation>Merkmal</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittel</translation>
    </message>
</context>
<context>
    <name>WatchPlot</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 ago</source>
        <translation>vor %1</translation>
    </message>
    <message>
        <source>now</source>
        <translation>jetzt</translation>
    </message>
    <message>
        <source>Plot of the watched features</source>
        <translation>Verlauf der beobachteten Merkmale</translation>
    </message>
    <message>
        <source>Make a feature current in the tree, and add it.</source>
        <translation>Wählen Sie im Baum ein Merkmal und fügen Sie es hinzu.</translation>
    </message>
</context>
<context>
    <name>WatchPanel</name>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>Re&amp;start</source>
        <translation>&amp;Neu beginnen</translation>
    </message>
    <message>
        <source>M&amp;ore</source>
        <translation>&amp;Mehr</translation>
    </message>
    <message>
        <source>Save as &amp;CSV…</source>
        <translation>Als &amp;CSV speichern…</translation>
    </message>
    <message>
        <source>Save as P&amp;NG…</source>
        <translation>Als P&amp;NG speichern…</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Beobachten</translation>
    </message>
    <message>
        <source>Values of chosen features over time</source>
        <translation>Werte gewählter Merkmale im Verlauf der Zeit</translation>
    </message>
    <message>
        <source>Forgets the values so far</source>
        <translation>Vergisst die bisherigen Werte</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Last minute</source>
        <translation>Letzte Minute</translation>
    </message>
    <message>
        <source>Last 10 minutes</source>
        <translation>Letzte 10 Minuten</translation>
    </message>
    <message>
        <source>Last hour</source>
        <translation>Letzte Stunde</translation>
    </message>
    <message>
        <source>Time that the plot shows</source>
        <translation>Zeit, die der Verlauf zeigt</translation>
    </message>
    <message>
        <source>Watches the current feature of the tree, %1</source>
        <translation>Beobachtet das aktuelle Merkmal des Baums, %1</translation>
    </message>
    <message>
        <source>Watches the current feature of the tree, if it is a number or a Boolean</source>
        <translation>Beobachtet das aktuelle Merkmal des Baums, wenn es eine Zahl oder ein Wahrheitswert ist</translation>
    </message>
    <message>
        <source>Save Watched Values</source>
        <translation>Beobachtete Werte speichern</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Kommagetrennte Werte (*.csv)</translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation>Verlauf speichern</translation>
    </message>
    <message>
        <source>Images (*.png)</source>
        <translation>Bilder (*.png)</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 lässt sich nicht schreiben: %2</translation>
    </message>
</context>
<context>
    <name>LanguagesMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>Spra&amp;che</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>Wie das &amp;System</translation>
    </message>
</context>
<context>
    <name>FrameFile</name>
    <message>
        <source>The pixel format %1 cannot be saved in this kind of file. Its bytes can, as a file whose name ends in .raw.</source>
        <translation>Das Pixelformat %1 kann in dieser Art von Datei nicht gespeichert werden. Seine Bytes können es, als Datei, deren Name auf .raw endet.</translation>
    </message>
    <message>
        <source>There is nothing in the image that could be saved.</source>
        <translation>In dem Bild ist nichts, was sich speichern ließe.</translation>
    </message>
    <message>
        <source>%1 is there already, and nothing is overwritten.</source>
        <translation>%1 gibt es schon, und nichts wird überschrieben.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 lässt sich nicht schreiben: %2</translation>
    </message>
</context>
<context>
    <name>FrameRecorder</name>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 lässt sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>No folder can be made in %1.</source>
        <translation>In %1 kann kein Ordner angelegt werden.</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>Black: %1 (%2 %)   Saturated: %3 (%4 %)</source>
        <translation>Schwarz: %1 (%2 %)   Gesättigt: %3 (%4 %)</translation>
    </message>
</context>
<context>
    <name>ImagePane</name>
    <message>
        <source>%1mean %2, deviation %3</source>
        <translation>%1Mittel %2, Abweichung %3</translation>
    </message>
    <message>
        <source>sharpness %1</source>
        <translation>Schärfe %1</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>St&amp;art Images</source>
        <translation>Bilder st&amp;arten</translation>
    </message>
    <message>
        <source>St&amp;op Images</source>
        <translation>Bilder anh&amp;alten</translation>
    </message>
    <message>
        <source>Shows what the camera sees</source>
        <translation>Zeigt, was die Kamera sieht</translation>
    </message>
    <message>
        <source>Si&amp;ngle Image</source>
        <translation>Ein&amp;zelnes Bild</translation>
    </message>
    <message>
        <source>Takes one image</source>
        <translation>Nimmt ein Bild auf</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Shows all of the image</source>
        <translation>Zeigt das ganze Bild</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Shows each pixel as one of the screen</source>
        <translation>Zeigt jedes Pixel als eines des Bildschirms</translation>
    </message>
    <message>
        <source>Crosshair</source>
        <translation>Fadenkreuz</translation>
    </message>
    <message>
        <source>Marks the middle of the image</source>
        <translation>Zeigt die Mitte des Bildes</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>Divides the image into thirds</source>
        <translation>Teilt das Bild in Drittel</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Dragging moves the image</source>
        <translation>Ziehen verschiebt das Bild</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Dragging draws a rectangle, of which mean, deviation and sharpness are shown</source>
        <translation>Ziehen zeichnet ein Rechteck, dessen Mittel, Abweichung und Schärfe gezeigt werden</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Dragging draws a line, along which the values are shown</source>
        <translation>Ziehen zeichnet eine Linie, entlang derer die Werte gezeigt werden</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>Shows the histogram, gamma and contrast</source>
        <translation>Zeigt Histogramm, Gamma und Kontrast</translation>
    </message>
    <message>
        <source>Mark Extremes</source>
        <translation>Extreme kennzeichnen</translation>
    </message>
    <message>
        <source>Marks saturated pixels red and black ones blue</source>
        <translation>Zeigt gesättigte Pixel rot und schwarze blau</translation>
    </message>
    <message>
        <source>&amp;Full Frame</source>
        <translation>Volles Bil&amp;d</translation>
    </message>
    <message>
        <source>Makes all of the sensor the region of interest; dragging in the image with Ctrl makes it what is drawn</source>
        <translation>Macht den ganzen Sensor zum Bildausschnitt; Ziehen im Bild mit Strg macht das Gezeichnete dazu</translation>
    </message>
    <message>
        <source>&amp;Logarithmic</source>
        <translation>&amp;Logarithmisch</translation>
    </message>
    <message>
        <source>Shows rare values as well</source>
        <translation>Zeigt auch seltene Werte</translation>
    </message>
    <message>
        <source>Statistics of the rectangle</source>
        <translation>Statistik des Rechtecks</translation>
    </message>
    <message>
        <source>Of the drawn rectangle. Sharpness: steps between neighbours, in percent of the mean</source>
        <translation>Des gezeichneten Rechtecks. Schärfe: Stufen zwischen Nachbarn, in Prozent des Mittels</translation>
    </message>
    <message>
        <source>Pixel under the cursor</source>
        <translation>Pixel unter dem Mauszeiger</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>No camera is open.</source>
        <translation>Es ist keine Kamera geöffnet.</translation>
    </message>
    <message>
        <source>This camera delivers no images.</source>
        <translation>Diese Kamera liefert keine Bilder.</translation>
    </message>
    <message>
        <source>Start the images with F9.</source>
        <translation>Mit F9 beginnen die Bilder.</translation>
    </message>
    <message>
        <source>%1 × %2, %3, frame %4, %5 %</source>
        <translation>%1 × %2, %3, Bild %4, %5 %</translation>
    </message>
    <message>
        <source>x %1, y %2:  %3</source>
        <translation>x %1, y %2:  %3</translation>
    </message>
</context>
<context>
    <name>ImageSaving</name>
    <message>
        <source>Save I&amp;mage…</source>
        <translation>Bild s&amp;peichern…</translation>
    </message>
    <message>
        <source>Saves the image: what is shown as PNG, the raw values as TIFF, PGM or PPM</source>
        <translation>Speichert das Bild: was zu sehen ist als PNG, die Rohwerte als TIFF, PGM oder PPM</translation>
    </message>
    <message>
        <source>Keeps the next images as files, with a table of their numbers and times</source>
        <translation>Bewahrt die nächsten Bilder als Dateien auf, mit einer Tabelle ihrer Nummern und Zeiten</translation>
    </message>
    <message>
        <source>Stop &amp;Recording</source>
        <translation>Aufzeich&amp;nung beenden</translation>
    </message>
    <message>
        <source>&amp;Record Images…</source>
        <translation>Bilder aufzeich&amp;nen…</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>As shown (*.png);;Raw values (*.tif *.tiff);;Raw values (*.pgm *.ppm);;Bytes (*.raw);;All files (*)</source>
        <translation>Wie zu sehen (*.png);;Rohwerte (*.tif *.tiff);;Rohwerte (*.pgm *.ppm);;Bytes (*.raw);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The image was saved to %1.</source>
        <translation>Das Bild wurde in %1 gespeichert.</translation>
    </message>
    <message>
        <source>Images recorded: %1 of %2</source>
        <translation>Aufgezeichnete Bilder: %1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>The recording ended after %n image(s). %1</source>
        <translation>
            <numerusform>Die Aufzeichnung endete nach %n Bild. %1</numerusform>
            <numerusform>Die Aufzeichnung endete nach %n Bildern. %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were left out, since the disk was too slow.</source>
        <translation>
            <numerusform>%n Bild wurde ausgelassen, weil die Platte zu langsam war.</numerusform>
            <numerusform>%n Bilder wurden ausgelassen, weil die Platte zu langsam war.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were recorded to %1.</source>
        <translation>
            <numerusform>%n Bild wurde in %1 aufgezeichnet.</numerusform>
            <numerusform>%n Bilder wurden in %1 aufgezeichnet.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImageView</name>
    <message>
        <source>Camera image</source>
        <translation>Kamerabild</translation>
    </message>
    <message>
        <source>The pixel format %1 cannot be shown. Its bytes can be saved.</source>
        <translation>Das Pixelformat %1 kann nicht gezeigt werden. Seine Bytes können gespeichert werden.</translation>
    </message>
    <message>
        <source>An image of %1 × %2 pixels cannot be shown.</source>
        <translation>Ein Bild von %1 × %2 Pixeln kann nicht gezeigt werden.</translation>
    </message>
</context>
<context>
    <name>LookControls</name>
    <message>
        <source>Ga&amp;mma</source>
        <translation>Ga&amp;mma</translation>
    </message>
    <message>
        <source>Makes dark parts of what is shown brighter</source>
        <translation>Macht dunkle Teile der Anzeige heller</translation>
    </message>
    <message>
        <source>Blac&amp;k</source>
        <translation>Sch&amp;warz</translation>
    </message>
    <message>
        <source>The share of the largest value that is shown black</source>
        <translation>Der Anteil am größten Wert, der schwarz gezeigt wird</translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation>We&amp;iß</translation>
    </message>
    <message>
        <source>The share of the largest value that is shown white</source>
        <translation>Der Anteil am größten Wert, der weiß gezeigt wird</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Shows values as they are: gamma and contrast change nothing of the camera</source>
        <translation>Zeigt die Werte, wie sie sind: Gamma und Kontrast ändern nichts an der Kamera</translation>
    </message>
</context>
<context>
    <name>ProfileView</name>
    <message>
        <source>Line profile</source>
        <translation>Linienprofil</translation>
    </message>
    <message>
        <source>The raw values along the drawn line</source>
        <translation>Die Rohwerte entlang der gezeichneten Linie</translation>
    </message>
</context>
<context>
    <name>RecordDialog</name>
    <message>
        <source>Record Images</source>
        <translation>Bilder aufzeichnen</translation>
    </message>
    <message>
        <source>The images get a new folder in this one; nothing is overwritten</source>
        <translation>Die Bilder bekommen darin einen neuen Ordner; nichts wird überschrieben</translation>
    </message>
    <message>
        <source>TIFF, raw values</source>
        <translation>TIFF, Rohwerte</translation>
    </message>
    <message>
        <source>PGM or PPM, raw values</source>
        <translation>PGM oder PPM, Rohwerte</translation>
    </message>
    <message>
        <source>PNG, as shown with 8 bits</source>
        <translation>PNG, wie zu sehen mit 8 Bit</translation>
    </message>
    <message>
        <source>Bytes as they came</source>
        <translation>Bytes, wie sie kamen</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Durchsuchen…</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Aufzeichnen</translation>
    </message>
    <message>
        <source>&amp;Images:</source>
        <translation>&amp;Bilder:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>A&amp;rt:</translation>
    </message>
    <message>
        <source>Folder for Images</source>
        <translation>Ordner für Bilder</translation>
    </message>
</context>
<context>
    <name>RegionOfInterest</name>
    <message>
        <source>region of interest</source>
        <translation>Bildausschnitt</translation>
    </message>
    <message>
        <source>The camera did not take the whole region. %1</source>
        <translation>Die Kamera hat nicht den ganzen Ausschnitt übernommen. %1</translation>
    </message>
</context>
<context>
    <name>StreamControl</name>
    <message>
        <source>%1 frames/s, %2 MB/s, %3 complete, %4 incomplete, %5 dropped</source>
        <translation>%1 Bilder/s, %2 MB/s, %3 vollständig, %4 unvollständig, %5 verworfen</translation>
    </message>
</context>
</TS>
