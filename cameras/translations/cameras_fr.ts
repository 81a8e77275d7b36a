<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Cameras::Camera</name>
    <message>
        <source>it is a directory</source>
        <translation>c'est un dossier</translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation>ce n'est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>le fichier est trop grand</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Transport Layer</source>
        <translation>Couche de transport</translation>
    </message>
    <message>
        <source>Stream Grabber</source>
        <translation>Acquisition du flux</translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation>Impossible d'ouvrir %1 : %2</translation>
    </message>
    <message>
        <source>the embedded camera</source>
        <translation>la caméra intégrée</translation>
    </message>
    <message>
        <source>the camera %1</source>
        <translation>la caméra %1</translation>
    </message>
</context>
<context>
    <name>Cameras::Description</name>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>document type declarations are not allowed</source>
        <translation>les déclarations de type de document ne sont pas autorisées</translation>
    </message>
    <message>
        <source>this is no camera description</source>
        <translation>ce n'est pas une description de caméra</translation>
    </message>
    <message>
        <source>the description has no category "Root"</source>
        <translation>la description n'a pas de catégorie « Root »</translation>
    </message>
    <message>
        <source>a text is longer than %1 characters</source>
        <translation>un texte a plus de %1 caractères</translation>
    </message>
    <message>
        <source>elements nest more than %1 deep</source>
        <translation>des éléments sont imbriqués à plus de %1 niveaux</translation>
    </message>
    <message>
        <source>there are more than %1 elements</source>
        <translation>il y a plus de %1 éléments</translation>
    </message>
    <message>
        <source>there are more than %1 nodes</source>
        <translation>il y a plus de %1 nœuds</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) of %1 not read: one may take %2 evaluations, all together %3 (%4)</source>
        <translation>
            <numerusform>%n paramètre de %1 n'est pas lu : l'un d'eux peut demander %2 évaluations, tous ensemble %3 (%4)</numerusform>
            <numerusform>%n paramètres de %1 ne sont pas lus : l'un d'eux peut demander %2 évaluations, tous ensemble %3 (%4)</numerusform>
        </translation>
    </message>
    <message>
        <source>the registers take more than %1 MiB</source>
        <translation>les registres occupent plus de %1 Mio</translation>
    </message>
</context>
<context>
    <name>Cameras::Engine</name>
    <message>
        <source>the engine cannot read the description</source>
        <translation>le moteur ne peut pas lire la description</translation>
    </message>
    <message>
        <source>%1: "%2" is not allowed, expected %3</source>
        <translation>%1 : « %2 » n'est pas autorisé, attendu : %3</translation>
    </message>
    <message>
        <source>%1 cannot be written now</source>
        <translation>%1 ne peut pas être écrit maintenant</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>un nombre entier</translation>
    </message>
    <message>
        <source>an integer of at most 64 bits</source>
        <translation>un nombre entier de 64 bits au plus</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>true, false, 1 or 0</source>
        <translation>true, false, 1 ou 0</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>aucun texte</translation>
    </message>
    <message>
        <source>%1: "%2" is out of range, allowed are %3 to %4</source>
        <translation>%1 : « %2 » est hors plage, valeurs autorisées de %3 à %4</translation>
    </message>
    <message>
        <source>%1: "%2" is not allowed, expected %3 plus a multiple of %4</source>
        <translation>%1 : « %2 » n'est pas autorisé, attendu : %3 plus un multiple de %4</translation>
    </message>
    <message>
        <source>no null characters</source>
        <translation>aucun caractère nul</translation>
    </message>
    <message>
        <source>at most %1 bytes</source>
        <translation>%1 octets au plus</translation>
    </message>
    <message>
        <source>an integer, such as 0x1f</source>
        <translation>un nombre entier, par exemple 0x1f</translation>
    </message>
    <message>
        <source>four numbers from 0 to 255, such as 192.168.0.10</source>
        <translation>quatre nombres de 0 à 255, par exemple 192.168.0.10</translation>
    </message>
    <message>
        <source>six hexadecimal numbers, such as 00:1B:2C:3D:4E:5F</source>
        <translation>six nombres hexadécimaux, par exemple 00:1B:2C:3D:4E:5F</translation>
    </message>
    <message>
        <source>a subnet mask, whose ones stand together, such as 255.255.255.0</source>
        <translation>un masque de sous-réseau dont les uns se suivent, par exemple 255.255.255.0</translation>
    </message>
    <message>
        <source>%1 (not available)</source>
        <translation>%1 (non disponible)</translation>
    </message>
    <message>
        <source>%1 is not read: the registers would take more than %2 MiB</source>
        <translation>%1 n'est pas lu : les registres occuperaient plus de %2 Mio</translation>
    </message>
</context>
<context>
    <name>Cameras::NodeProperties</name>
    <message>
        <source>%1: "%2" is no %3, expected %4</source>
        <translation>%1 : « %2 » n'est pas une valeur de %3, attendu : %4</translation>
    </message>
    <message>
        <source>%1: the property "%2" cannot be imposed, only Visibility and AccessMode can</source>
        <translation>%1 : la propriété « %2 » ne peut pas être imposée, seules Visibility et AccessMode le peuvent</translation>
    </message>
</context>
<context>
    <name>Cameras::RegisterImage</name>
    <message>
        <source>line %1: expected an address and bytes in hexadecimal digits</source>
        <translation>ligne %1 : une adresse et des octets en chiffres hexadécimaux sont attendus</translation>
    </message>
    <message>
        <source>there are more than %1 lines</source>
        <translation>il y a plus de %1 lignes</translation>
    </message>
    <message>
        <source>the registers take more than %1 MiB</source>
        <translation>les registres occupent plus de %1 Mio</translation>
    </message>
</context>
<context>
    <name>Cameras::Session</name>
    <message>
        <source>no answer in time</source>
        <translation>pas de réponse à temps</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>The camera was closed.</source>
        <translation>La caméra a été fermée.</translation>
    </message>
    <message>
        <source>The camera does not answer.</source>
        <translation>La caméra ne répond pas.</translation>
    </message>
    <message>
        <source>the camera is open read-only</source>
        <translation>la caméra est ouverte en lecture seule</translation>
    </message>
    <message>
        <source>%1: the camera did not answer in time, so it is not known whether this was written</source>
        <translation>%1 : la caméra n'a pas répondu à temps, on ne sait donc pas si cela a été écrit</translation>
    </message>
    <message>
        <source>%1: not written, since the camera was busy for a second</source>
        <translation>%1 : non écrit, car la caméra était occupée pendant une seconde</translation>
    </message>
    <message>
        <source>%1 Whether the last change of %2 has arrived is not known.</source>
        <translation>%1 On ne sait pas si la dernière modification de %2 est arrivée.</translation>
    </message>
    <message>
        <source>the system has no thread left</source>
        <translation>le système n'a plus de thread disponible</translation>
    </message>
    <message>
        <source>No more images come, since another program controls the camera.</source>
        <translation>Plus aucune image n'arrive, car un autre programme contrôle la caméra.</translation>
    </message>
    <message>
        <source>No images can be had: %1</source>
        <translation>Impossible d'obtenir des images : %1</translation>
    </message>
</context>
<context>
    <name>Cameras::DescriptionArchive</name>
    <message>
        <source>the file is too large</source>
        <translation>le fichier est trop grand</translation>
    </message>
    <message>
        <source>the archive holds no camera description</source>
        <translation>l'archive ne contient pas de description de caméra</translation>
    </message>
    <message>
        <source>the archive is damaged</source>
        <translation>l'archive est endommagée</translation>
    </message>
</context>
<context>
    <name>Cameras::EngineFailure</name>
    <message>
        <source>the camera does not answer</source>
        <translation>la caméra ne répond pas</translation>
    </message>
    <message>
        <source>the camera is not connected</source>
        <translation>la caméra n'est pas connectée</translation>
    </message>
    <message>
        <source>there is no such camera</source>
        <translation>cette caméra n'existe pas</translation>
    </message>
    <message>
        <source>the camera hands out no description of its features</source>
        <translation>la caméra ne fournit pas de description de ses paramètres</translation>
    </message>
    <message>
        <source>another program controls the camera</source>
        <translation>un autre programme contrôle la caméra</translation>
    </message>
    <message>
        <source>the camera denies the access</source>
        <translation>la caméra refuse l'accès</translation>
    </message>
    <message>
        <source>the camera protects it from being written</source>
        <translation>la caméra le protège contre l'écriture</translation>
    </message>
    <message>
        <source>the camera is busy</source>
        <translation>la caméra est occupée</translation>
    </message>
    <message>
        <source>the camera has no such register</source>
        <translation>la caméra n'a pas ce registre</translation>
    </message>
    <message>
        <source>the camera does not accept the value</source>
        <translation>la caméra n'accepte pas la valeur</translation>
    </message>
    <message>
        <source>the camera does not support it</source>
        <translation>la caméra ne le prend pas en charge</translation>
    </message>
    <message>
        <source>the camera refuses</source>
        <translation>la caméra refuse</translation>
    </message>
    <message>
        <source>the value is out of range</source>
        <translation>la valeur est hors plage</translation>
    </message>
    <message>
        <source>it can only be read</source>
        <translation>il est en lecture seule</translation>
    </message>
    <message>
        <source>there is no such entry</source>
        <translation>cette entrée n'existe pas</translation>
    </message>
    <message>
        <source>the length does not fit</source>
        <translation>la longueur ne convient pas</translation>
    </message>
    <message>
        <source>the camera's description of it is not usable</source>
        <translation>la description qu'en donne la caméra n'est pas utilisable</translation>
    </message>
    <message>
        <source>the connection to the camera failed</source>
        <translation>la connexion à la caméra a échoué</translation>
    </message>
</context>
<context>
    <name>Cameras::LiveCamera</name>
    <message>
        <source>there is no such camera</source>
        <translation>cette caméra n'existe pas</translation>
    </message>
    <message>
        <source>no camera answers at %1</source>
        <translation>aucune caméra ne répond à l'adresse %1</translation>
    </message>
    <message>
        <source>%1 is in none of this computer's subnets</source>
        <translation>%1 n'est dans aucun sous-réseau de cet ordinateur</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>the camera hands out no description of its features</source>
        <translation>la caméra ne fournit pas de description de ses paramètres</translation>
    </message>
    <message>
        <source>The camera %1 does not answer.</source>
        <translation>La caméra %1 ne répond pas.</translation>
    </message>
    <message>
        <source>The camera at %1 does not answer.</source>
        <translation>La caméra à l'adresse %1 ne répond pas.</translation>
    </message>
    <message>
        <source>held by another program</source>
        <translation>tenue par un autre programme</translation>
    </message>
    <message>
        <source>held by another program at %1</source>
        <translation>tenue par un autre programme à l'adresse %1</translation>
    </message>
    <message>
        <source>The camera at %1 answers again.</source>
        <translation>La caméra à l'adresse %1 répond de nouveau.</translation>
    </message>
    <message>
        <source>Another camera answers at %1: serial number %2.</source>
        <translation>Une autre caméra répond à l'adresse %1 : numéro de série %2.</translation>
    </message>
    <message>
        <source>the camera's description cannot be read from %1</source>
        <translation>la description de la caméra ne peut pas être lue depuis %1</translation>
    </message>
    <message>
        <source>the camera at %1 answers, but does not let itself be read</source>
        <translation>la caméra à l'adresse %1 répond, mais ne se laisse pas lire</translation>
    </message>
</context>
<context>
    <name>Cameras::FrameSource</name>
    <message>
        <source>The camera has sent as many images as AcquisitionMode asks for.</source>
        <translation>La caméra a envoyé autant d'images que le demande AcquisitionMode.</translation>
    </message>
</context>
<context>
    <name>Cameras::LiveSource</name>
    <message>
        <source>the camera does not tell how large they are (PayloadSize)</source>
        <translation>la caméra n'indique pas leur taille (PayloadSize)</translation>
    </message>
    <message>
        <source>the camera tells that they have %1 bytes (PayloadSize)</source>
        <translation>la caméra indique qu'elles ont %1 octets (PayloadSize)</translation>
    </message>
    <message>
        <source>the camera has no stream</source>
        <translation>la caméra n'a pas de flux</translation>
    </message>
    <message>
        <source>The payload is of the kind %1 and holds no image.</source>
        <translation>La charge utile est du type %1 et ne contient pas d'image.</translation>
    </message>
    <message>
        <source>The payload has %1 parts, of which this is number %2.</source>
        <translation>La charge utile a %1 parties, dont voici la numéro %2.</translation>
    </message>
    <message>
        <source>Chunk data came with the image.</source>
        <translation>Des données chunk accompagnent l'image.</translation>
    </message>
    <message>
        <source>The image is larger than the camera told (PayloadSize).</source>
        <translation>L'image est plus grande que la caméra ne l'a indiqué (PayloadSize).</translation>
    </message>
    <message>
        <source>Packets are missing: %1.</source>
        <translation>Paquets manquants : %1.</translation>
    </message>
    <message>
        <source>A part is missing.</source>
        <translation>Une partie manque.</translation>
    </message>
</context>
<context>
    <name>Cameras::ReceivedFrame</name>
    <message>
        <source>The camera tells of an image of %1 x %2 pixels.</source>
        <translation>La caméra annonce une image de %1 x %2 pixels.</translation>
    </message>
    <message>
        <source>%1 of %2 bytes are missing.</source>
        <translation>%1 octets sur %2 manquent.</translation>
    </message>
</context>
<context>
    <name>Cameras::SimulatedImage</name>
    <message>
        <source>The simulated camera makes no images in the pixel format %1.</source>
        <translation>La caméra simulée ne produit pas d'images au format de pixel %1.</translation>
    </message>
    <message>
        <source>The simulated camera makes no images of %1 x %2 pixels.</source>
        <translation>La caméra simulée ne produit pas d'images de %1 x %2 pixels.</translation>
    </message>
</context>
</TS>
