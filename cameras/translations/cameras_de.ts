<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Cameras::Camera</name>
    <message>
        <source>it is a directory</source>
        <translation>es ist ein Verzeichnis</translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>die Datei ist zu groß</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Transport Layer</source>
        <translation>Transportschicht</translation>
    </message>
    <message>
        <source>Stream Grabber</source>
        <translation>Datenstrom</translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation>%1 lässt sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>the embedded camera</source>
        <translation>Die eingebaute Kamera</translation>
    </message>
    <message>
        <source>the camera %1</source>
        <translation>Die Kamera %1</translation>
    </message>
</context>
<context>
    <name>Cameras::Description</name>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>document type declarations are not allowed</source>
        <translation>Dokumenttyp-Deklarationen sind nicht erlaubt</translation>
    </message>
    <message>
        <source>this is no camera description</source>
        <translation>dies ist keine Kamerabeschreibung</translation>
    </message>
    <message>
        <source>the description has no category &quot;Root&quot;</source>
        <translation>der Beschreibung fehlt die Kategorie „Root“</translation>
    </message>
    <message>
        <source>a text is longer than %1 characters</source>
        <translation>ein Text ist länger als %1 Zeichen</translation>
    </message>
    <message>
        <source>elements nest more than %1 deep</source>
        <translation>Elemente sind tiefer als %1 Ebenen verschachtelt</translation>
    </message>
    <message>
        <source>there are more than %1 elements</source>
        <translation>es sind mehr als %1 Elemente</translation>
    </message>
    <message>
        <source>there are more than %1 nodes</source>
        <translation>es sind mehr als %1 Knoten</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) of %1 not read: one may take %2 evaluations, all together %3 (%4)</source>
        <translation>
            <numerusform>%n Merkmal von %1 wird nicht gelesen: eines darf %2 Auswertungen brauchen, alle zusammen %3 (%4)</numerusform>
            <numerusform>%n Merkmale von %1 werden nicht gelesen: eines darf %2 Auswertungen brauchen, alle zusammen %3 (%4)</numerusform>
        </translation>
    </message>
    <message>
        <source>the registers take more than %1 MiB</source>
        <translation>die Register belegen mehr als %1 MiB</translation>
    </message>
</context>
<context>
    <name>Cameras::Engine</name>
    <message>
        <source>the engine cannot read the description</source>
        <translation>die Beschreibung lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not allowed, expected %3</source>
        <translation>%1: „%2“ ist nicht erlaubt, erwartet: %3</translation>
    </message>
    <message>
        <source>%1 cannot be written now</source>
        <translation>%1 kann jetzt nicht geschrieben werden</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>eine ganze Zahl</translation>
    </message>
    <message>
        <source>an integer of at most 64 bits</source>
        <translation>eine ganze Zahl von höchstens 64 Bit</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>true, false, 1 or 0</source>
        <translation>true, false, 1 oder 0</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>kein Text</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is out of range, allowed are %3 to %4</source>
        <translation>%1: „%2“ liegt außerhalb des Bereichs, erlaubt sind %3 bis %4</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not allowed, expected %3 plus a multiple of %4</source>
        <translation>%1: „%2“ ist nicht erlaubt, erwartet: %3 plus ein Vielfaches von %4</translation>
    </message>
    <message>
        <source>no null characters</source>
        <translation>keine Nullzeichen</translation>
    </message>
    <message>
        <source>at most %1 bytes</source>
        <translation>höchstens %1 Bytes</translation>
    </message>
    <message>
        <source>an integer, such as 0x1f</source>
        <translation>eine ganze Zahl, etwa 0x1f</translation>
    </message>
    <message>
        <source>four numbers from 0 to 255, such as 192.168.0.10</source>
        <translation>vier Zahlen von 0 bis 255, etwa 192.168.0.10</translation>
    </message>
    <message>
        <source>six hexadecimal numbers, such as 00:1B:2C:3D:4E:5F</source>
        <translation>sechs hexadezimale Zahlen, etwa 00:1B:2C:3D:4E:5F</translation>
    </message>
    <message>
        <source>a subnet mask, whose ones stand together, such as 255.255.255.0</source>
        <translation>eine Subnetzmaske, deren Einsen zusammenstehen, etwa 255.255.255.0</translation>
    </message>
    <message>
        <source>%1 (not available)</source>
        <translation>%1 (nicht verfügbar)</translation>
    </message>
    <message>
        <source>%1 is not read: the registers would take more than %2 MiB</source>
        <translation>%1 wird nicht gelesen: die Register würden mehr als %2 MiB belegen</translation>
    </message>
</context>
<context>
    <name>Cameras::NodeProperties</name>
    <message>
        <source>%1: &quot;%2&quot; is no %3, expected %4</source>
        <translation>%1: „%2“ ist nicht vom Typ %3, erwartet: %4</translation>
    </message>
    <message>
        <source>%1: the property &quot;%2&quot; cannot be imposed, only Visibility and AccessMode can</source>
        <translation>%1: Die Eigenschaft „%2“ kann nicht vorgegeben werden, nur Visibility und AccessMode</translation>
    </message>
</context>
<context>
    <name>Cameras::RegisterImage</name>
    <message>
        <source>line %1: expected an address and bytes in hexadecimal digits</source>
        <translation>Zeile %1: erwartet werden eine Adresse und Bytes in hexadezimalen Ziffern</translation>
    </message>
    <message>
        <source>there are more than %1 lines</source>
        <translation>es sind mehr als %1 Zeilen</translation>
    </message>
    <message>
        <source>the registers take more than %1 MiB</source>
        <translation>die Register belegen mehr als %1 MiB</translation>
    </message>
</context>
<context>
    <name>Cameras::Session</name>
    <message>
        <source>no answer in time</source>
        <translation>keine rechtzeitige Antwort</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The camera was closed.</source>
        <translation>Die Kamera wurde geschlossen.</translation>
    </message>
    <message>
        <source>The camera does not answer.</source>
        <translation>Die Kamera antwortet nicht.</translation>
    </message>
    <message>
        <source>the camera is open read-only</source>
        <translation>die Kamera ist nur lesend geöffnet</translation>
    </message>
    <message>
        <source>%1: the camera did not answer in time, so it is not known whether this was written</source>
        <translation>%1: Die Kamera hat nicht rechtzeitig geantwortet. Ob geschrieben wurde, ist nicht bekannt</translation>
    </message>
    <message>
        <source>%1: not written, since the camera was busy for a second</source>
        <translation>%1: nicht geschrieben, da die Kamera eine Sekunde lang beschäftigt war</translation>
    </message>
    <message>
        <source>%1 Whether the last change of %2 has arrived is not known.</source>
        <translation>%1 Ob die letzte Änderung von %2 angekommen ist, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>the system has no thread left</source>
        <translation>das System hat keinen Thread mehr frei</translation>
    </message>
    <message>
        <source>No images can be had: %1</source>
        <translation>Es sind keine Bilder zu bekommen: %1</translation>
    </message>
    <message>
        <source>No more images come, since another program controls the camera.</source>
        <translation>Es kommen keine Bilder mehr, da ein anderes Programm die Kamera kontrolliert.</translation>
    </message>
</context>
<context>
    <name>Cameras::DescriptionArchive</name>
    <message>
        <source>the file is too large</source>
        <translation>die Datei ist zu groß</translation>
    </message>
    <message>
        <source>the archive holds no camera description</source>
        <translation>das Archiv enthält keine Kamerabeschreibung</translation>
    </message>
    <message>
        <source>the archive is damaged</source>
        <translation>das Archiv ist beschädigt</translation>
    </message>
</context>
<context>
    <name>Cameras::EngineFailure</name>
    <message>
        <source>the camera does not answer</source>
        <translation>die Kamera antwortet nicht</translation>
    </message>
    <message>
        <source>the camera is not connected</source>
        <translation>die Kamera ist nicht verbunden</translation>
    </message>
    <message>
        <source>there is no such camera</source>
        <translation>es gibt keine solche Kamera</translation>
    </message>
    <message>
        <source>the camera hands out no description of its features</source>
        <translation>die Kamera gibt keine Beschreibung ihrer Merkmale heraus</translation>
    </message>
    <message>
        <source>another program controls the camera</source>
        <translation>ein anderes Programm kontrolliert die Kamera</translation>
    </message>
    <message>
        <source>the camera denies the access</source>
        <translation>die Kamera verweigert den Zugriff</translation>
    </message>
    <message>
        <source>the camera protects it from being written</source>
        <translation>die Kamera schützt es vor dem Schreiben</translation>
    </message>
    <message>
        <source>the camera is busy</source>
        <translation>die Kamera ist beschäftigt</translation>
    </message>
    <message>
        <source>the camera has no such register</source>
        <translation>die Kamera hat kein solches Register</translation>
    </message>
    <message>
        <source>the camera does not accept the value</source>
        <translation>die Kamera nimmt den Wert nicht an</translation>
    </message>
    <message>
        <source>the camera does not support it</source>
        <translation>die Kamera unterstützt es nicht</translation>
    </message>
    <message>
        <source>the camera refuses</source>
        <translation>die Kamera lehnt ab</translation>
    </message>
    <message>
        <source>the value is out of range</source>
        <translation>der Wert liegt außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>it can only be read</source>
        <translation>es kann nur gelesen werden</translation>
    </message>
    <message>
        <source>there is no such entry</source>
        <translation>es gibt keinen solchen Eintrag</translation>
    </message>
    <message>
        <source>the length does not fit</source>
        <translation>die Länge passt nicht</translation>
    </message>
    <message>
        <source>the camera&apos;s description of it is not usable</source>
        <translation>die Beschreibung der Kamera davon ist nicht brauchbar</translation>
    </message>
    <message>
        <source>the connection to the camera failed</source>
        <translation>die Verbindung zur Kamera ist gestört</translation>
    </message>
</context>
<context>
    <name>Cameras::LiveCamera</name>
    <message>
        <source>there is no such camera</source>
        <translation>es gibt keine solche Kamera</translation>
    </message>
    <message>
        <source>no camera answers at %1</source>
        <translation>unter %1 antwortet keine Kamera</translation>
    </message>
    <message>
        <source>%1 is in none of this computer&apos;s subnets</source>
        <translation>%1 liegt in keinem Teilnetz dieses Rechners</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>the camera hands out no description of its features</source>
        <translation>die Kamera gibt keine Beschreibung ihrer Merkmale heraus</translation>
    </message>
    <message>
        <source>The camera %1 does not answer.</source>
        <translation>Die Kamera %1 antwortet nicht.</translation>
    </message>
    <message>
        <source>The camera at %1 does not answer.</source>
        <translation>Die Kamera unter %1 antwortet nicht.</translation>
    </message>
    <message>
        <source>held by another program</source>
        <translation>von einem anderen Programm belegt</translation>
    </message>
    <message>
        <source>held by another program at %1</source>
        <translation>von einem anderen Programm auf %1 belegt</translation>
    </message>
    <message>
        <source>The camera at %1 answers again.</source>
        <translation>Die Kamera unter %1 antwortet wieder.</translation>
    </message>
    <message>
        <source>Another camera answers at %1: serial number %2.</source>
        <translation>Unter %1 antwortet eine andere Kamera: Seriennummer %2.</translation>
    </message>
    <message>
        <source>the camera&apos;s description cannot be read from %1</source>
        <translation>die Beschreibung der Kamera lässt sich von %1 nicht lesen</translation>
    </message>
    <message>
        <source>the camera at %1 answers, but does not let itself be read</source>
        <translation>die Kamera unter %1 antwortet, lässt sich aber nicht lesen</translation>
    </message>
</context>
<context>
    <name>Cameras::FrameSource</name>
    <message>
        <source>The camera has sent as many images as AcquisitionMode asks for.</source>
        <translation>Die Kamera hat so viele Bilder gesendet, wie AcquisitionMode verlangt.</translation>
    </message>
</context>
<context>
    <name>Cameras::LiveSource</name>
    <message>
        <source>the camera does not tell how large they are (PayloadSize)</source>
        <translation>die Kamera sagt nicht, wie groß sie sind (PayloadSize)</translation>
    </message>
    <message>
        <source>the camera tells that they have %1 bytes (PayloadSize)</source>
        <translation>die Kamera sagt, sie hätten %1 Bytes (PayloadSize)</translation>
    </message>
    <message>
        <source>the camera has no stream</source>
        <translation>die Kamera hat keinen Datenstrom</translation>
    </message>
    <message>
        <source>The payload is of the kind %1 and holds no image.</source>
        <translation>Die Nutzdaten sind von der Art %1 und enthalten kein Bild.</translation>
    </message>
    <message>
        <source>The payload has %1 parts, of which this is number %2.</source>
        <translation>Die Nutzdaten haben %1 Teile; dieser ist Nummer %2.</translation>
    </message>
    <message>
        <source>Chunk data came with the image.</source>
        <translation>Mit dem Bild kamen Chunk-Daten.</translation>
    </message>
    <message>
        <source>The image is larger than the camera told (PayloadSize).</source>
        <translation>Das Bild ist größer, als die Kamera gesagt hat (PayloadSize).</translation>
    </message>
    <message>
        <source>Packets are missing: %1.</source>
        <translation>Es fehlen Pakete: %1.</translation>
    </message>
    <message>
        <source>A part is missing.</source>
        <translation>Ein Teil fehlt.</translation>
    </message>
</context>
<context>
    <name>Cameras::ReceivedFrame</name>
    <message>
        <source>The camera tells of an image of %1 x %2 pixels.</source>
        <translation>Die Kamera meldet ein Bild von %1 x %2 Pixeln.</translation>
    </message>
    <message>
        <source>%1 of %2 bytes are missing.</source>
        <translation>Es fehlen %1 von %2 Bytes.</translation>
    </message>
</context>
<context>
    <name>Cameras::SimulatedImage</name>
    <message>
        <source>The simulated camera makes no images in the pixel format %1.</source>
        <translation>Die simulierte Kamera macht keine Bilder im Pixelformat %1.</translation>
    </message>
    <message>
        <source>The simulated camera makes no images of %1 x %2 pixels.</source>
        <translation>Die simulierte Kamera macht keine Bilder von %1 x %2 Pixeln.</translation>
    </message>
</context>
</TS>
