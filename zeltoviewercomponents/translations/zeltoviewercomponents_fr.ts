<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AddressValidator</name>
    <message>
        <source>There are blanks in the address.</source>
        <translation>L'adresse contient des espaces.</translation>
    </message>
    <message>
        <source>There are more than four numbers.</source>
        <translation>Il y a plus de quatre nombres.</translation>
    </message>
    <message>
        <source>Only digits and dots are allowed.</source>
        <translation>Seuls les chiffres et les points sont autorisés.</translation>
    </message>
    <message>
        <source>Write %1 without leading zeros.</source>
        <translation>Écrivez %1 sans zéros initiaux.</translation>
    </message>
    <message>
        <source>%1 is larger than 255.</source>
        <translation>%1 est supérieur à 255.</translation>
    </message>
    <message>
        <source>Enter four numbers with dots between them.</source>
        <translation>Saisissez quatre nombres séparés par des points.</translation>
    </message>
</context>
<context>
    <name>ComboSlider</name>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>Plage : %1..%2 (incrément : %3)</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>Plage : %1..%2</translation>
    </message>
</context>
<context>
    <name>DoubleComboSlider</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>Plage : %1..%2</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBox</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>Plage : %1..%2</translation>
    </message>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>Plage : %1..%2 (incrément : %3)</translation>
    </message>
</context>
<context>
    <name>ErrorHandling</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Unexpected exception occurred</source>
        <translation>Une exception inattendue s'est produite</translation>
    </message>
</context>
<context>
    <name>FeatureTreeINodeItem</name>
    <message>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;non implémenté&gt;</translation>
    </message>
    <message>
        <source>&lt;not available&gt;</source>
        <translation>&lt;non disponible&gt;</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;non lisible&gt;</translation>
    </message>
    <message>
        <source>%1: "%2" has characters outside Latin-1, which this camera cannot store.</source>
        <translation>%1 : « %2 » contient des caractères hors de Latin-1, que cette caméra ne peut pas enregistrer.</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <source>Failed to get a feature value</source>
        <translation>La lecture d'un paramètre a échoué</translation>
    </message>
    <message>
        <source>Failed to set a feature value.</source>
        <translation>La modification d'un paramètre a échoué.</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Failed to get the node 'Root' from the node map</source>
        <translation>Le nœud « Root » n'a pas pu être lu dans la carte des nœuds</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Favorites&lt;/h3&gt;&lt;b&gt;This node contains a list of features selected by the user&lt;/b&gt;&lt;br&gt;&lt;br&gt;To add a feature, right-click the feature and choose 'Add to Favorites' from the context menu. You can also use drag and drop to add features to your favorites.&lt;br&gt;Favorites can be moved up and down within the list as well as removed from the list by right-clicking an item and choosing the appropriate option from the context menu.</source>
        <translation>&lt;h3&gt;Favoris&lt;/h3&gt;&lt;b&gt;Ce nœud contient une liste de paramètres choisis par l'utilisateur&lt;/b&gt;&lt;br&gt;&lt;br&gt;Pour ajouter un paramètre, faites un clic droit sur celui-ci et choisissez « Ajouter aux favoris » dans le menu contextuel. Vous pouvez aussi ajouter des paramètres aux favoris par glisser-déposer.&lt;br&gt;Un clic droit sur un favori permet de le déplacer vers le haut ou vers le bas dans la liste, ou de l'en retirer, au moyen du menu contextuel.</translation>
    </message>
    <message>
        <source>Add favorites by right-clicking a feature below.</source>
        <translation>Ajoutez des favoris par un clic droit sur un paramètre ci-dessous.</translation>
    </message>
    <message>
        <source>To add a feature, right-click the feature and choose 'Add to Favorites' from the context menu. You can also use drag and drop to add features to your favorites.</source>
        <translation>Pour ajouter un paramètre, faites un clic droit sur celui-ci et choisissez « Ajouter aux favoris » dans le menu contextuel. Vous pouvez aussi ajouter des paramètres aux favoris par glisser-déposer.</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>favori</translation>
    </message>
    <message>
        <source>%1 %2 (%3 is unavailable for the current camera)</source>
        <translation>%1 %2 (%3 n'est pas disponible pour la caméra actuelle)</translation>
    </message>
    <message>
        <source>%1 %2 (%3 are unavailable for the current camera)</source>
        <translation>%1 %2 (%3 ne sont pas disponibles pour la caméra actuelle)</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <source>No search results found.</source>
        <translation>Aucun résultat.</translation>
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
        <translation>Ajouter aux favoris</translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Polling</source>
        <translation>Interrogation</translation>
    </message>
    <message>
        <source>Search (%1)</source>
        <translation>Rechercher (%1)</translation>
    </message>
    <message>
        <source>&lt;B&gt;%1 search results (%2 of them visible at higher user level)&lt;/B&gt;</source>
        <translation>&lt;B&gt;%1 résultats (dont %2 visibles à un niveau d'utilisateur supérieur)&lt;/B&gt;</translation>
    </message>
    <message>
        <source>The camera gave no reason.</source>
        <translation>La caméra n'a donné aucune raison.</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) found</source>
        <translation>
            <numerusform>%n paramètre trouvé</numerusform>
            <numerusform>%n paramètres trouvés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n more at a higher level</source>
        <translation>
            <numerusform>%1, %n autre à un niveau supérieur</numerusform>
            <numerusform>%1, %n autres à un niveau supérieur</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidgetClass</name>
    <message>
        <source>FeatureTreeWidget</source>
        <translation>FeatureTreeWidget</translation>
    </message>
    <message>
        <source>Show Unavailable Favorites</source>
        <translation>Afficher les favoris non disponibles</translation>
    </message>
    <message>
        <source>P&amp;olling</source>
        <translation>I&amp;nterrogation</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Refreshes the  feature tree</source>
        <translation>Actualise l'arborescence des paramètres</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Paramètres</translation>
    </message>
</context>
<context>
    <name>FloatEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;non lisible&gt;</translation>
    </message>
</context>
<context>
    <name>FloatSliderEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;non lisible&gt;</translation>
    </message>
</context>
<context>
    <name>HelpLink</name>
    <message>
        <source>Get help</source>
        <translation>Obtenir de l'aide</translation>
    </message>
    <message>
        <source>The help page could not be opened.</source>
        <translation>La page d'aide n'a pas pu être ouverte.</translation>
    </message>
    <message>
        <source>Copy Link Location</source>
        <translation>Copier l'adresse du lien</translation>
    </message>
</context>
<context>
    <name>IntEditor</name>
    <message>
        <source>Range: 0x%1..0x%2</source>
        <translation>Plage : 0x%1..0x%2</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>Plage : %1..%2</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;non lisible&gt;</translation>
    </message>
</context>
<context>
    <name>IpAddressWidget</name>
    <message>
        <source>IP Configuration</source>
        <translation>Configuration IP</translation>
    </message>
    <message>
        <source>&amp;IP address:</source>
        <translation>Adresse &amp;IP :</translation>
    </message>
    <message>
        <source>&amp;Subnet mask:</source>
        <translation>Masque de &amp;sous-réseau :</translation>
    </message>
    <message>
        <source>Default &amp;gateway:</source>
        <translation>&amp;Passerelle par défaut :</translation>
    </message>
    <message>
        <source>&amp;MAC address:</source>
        <translation>Adresse &amp;MAC :</translation>
    </message>
    <message>
        <source>Prefix length %1</source>
        <translation>Longueur de préfixe %1</translation>
    </message>
</context>
<context>
    <name>MessageBoxCheckable</name>
    <message>
        <source>&amp;Don't show this dialog again</source>
        <translation>&amp;Ne plus afficher cette boîte de dialogue</translation>
    </message>
</context>
<context>
    <name>QIpAddressValidator</name>
    <message>
        <source>This is the broadcast address, no device can have it.</source>
        <translation>C'est l'adresse de diffusion, aucun appareil ne peut l'avoir.</translation>
    </message>
    <message>
        <source>Addresses that begin with 0 stand for no device.</source>
        <translation>Les adresses qui commencent par 0 ne désignent aucun appareil.</translation>
    </message>
    <message>
        <source>Addresses that begin with 127 stay inside the computer.</source>
        <translation>Les adresses qui commencent par 127 restent à l'intérieur de l'ordinateur.</translation>
    </message>
    <message>
        <source>Addresses from 240.0.0.0 on are reserved.</source>
        <translation>Les adresses à partir de 240.0.0.0 sont réservées.</translation>
    </message>
    <message>
        <source>Addresses from 224.0.0.0 on are for groups of devices (multicast).</source>
        <translation>Les adresses à partir de 224.0.0.0 désignent des groupes d'appareils (multidiffusion).</translation>
    </message>
</context>
<context>
    <name>QIpAddressWithNetmaskValidator</name>
    <message>
        <source>The gateway cannot be the device itself. Enter 0.0.0.0 for none.</source>
        <translation>La passerelle ne peut pas être l'appareil lui-même. Saisissez 0.0.0.0 pour n'en avoir aucune.</translation>
    </message>
    <message>
        <source>The gateway is not in the device's subnet. Enter 0.0.0.0 for none.</source>
        <translation>La passerelle n'est pas dans le sous-réseau de l'appareil. Saisissez 0.0.0.0 pour n'en avoir aucune.</translation>
    </message>
    <message>
        <source>With this mask, this is the address of the network itself.</source>
        <translation>Avec ce masque, c'est l'adresse du réseau lui-même.</translation>
    </message>
    <message>
        <source>With this mask, this is the broadcast address of the network.</source>
        <translation>Avec ce masque, c'est l'adresse de diffusion du réseau.</translation>
    </message>
</context>
<context>
    <name>QIpNetmaskValidator</name>
    <message>
        <source>The mask 0.0.0.0 tells no network from another.</source>
        <translation>Le masque 0.0.0.0 ne distingue aucun réseau d'un autre.</translation>
    </message>
    <message>
        <source>This is no mask: its ones must stand together, as in 255.255.255.0.</source>
        <translation>Ce n'est pas un masque : ses uns doivent se suivre, comme dans 255.255.255.0.</translation>
    </message>
    <message>
        <source>Enter a number from 1 to 32 after the slash.</source>
        <translation>Saisissez un nombre de 1 à 32 après la barre oblique.</translation>
    </message>
    <message>
        <source>Only a number from 1 to 32 can follow the slash.</source>
        <translation>Seul un nombre de 1 à 32 peut suivre la barre oblique.</translation>
    </message>
</context>
<context>
    <name>QMacAddressValidator</name>
    <message>
        <source>This address is for a group of devices (multicast).</source>
        <translation>Cette adresse désigne un groupe d'appareils (multidiffusion).</translation>
    </message>
    <message>
        <source>An address of nothing but zeros stands for no device.</source>
        <translation>Une adresse qui n'a que des zéros ne désigne aucun appareil.</translation>
    </message>
    <message>
        <source>Only the digits 0 to 9 and A to F are allowed, with colons or hyphens.</source>
        <translation>Seuls les chiffres de 0 à 9 et les lettres de A à F sont autorisés, avec des deux-points ou des traits d'union.</translation>
    </message>
    <message>
        <source>There are more than six numbers of two digits.</source>
        <translation>Il y a plus de six nombres à deux chiffres.</translation>
    </message>
    <message>
        <source>Enter six numbers of two digits, such as 00:1B:2C:3D:4E:5F.</source>
        <translation>Saisissez six nombres à deux chiffres, par exemple 00:1B:2C:3D:4E:5F.</translation>
    </message>
</context>
<context>
    <name>ToolButtonEditor</name>
    <message>
        <source>Execute</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>En cours…</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>NumberText</name>
    <message>
        <source>"%1" is not a number: %2</source>
        <translation>« %1 » n'est pas un nombre : %2</translation>
    </message>
    <message>
        <source>nothing may stand between thousands; %1</source>
        <translation>rien ne peut séparer les milliers ; %1</translation>
    </message>
    <message>
        <source>the exponent is missing</source>
        <translation>l'exposant manque</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop grand</translation>
    </message>
    <message>
        <source>leave out the unit</source>
        <translation>omettez l'unité</translation>
    </message>
    <message>
        <source>use digits, a decimal sign and an exponent as in %1</source>
        <translation>utilisez des chiffres, un séparateur décimal et un exposant comme dans %1</translation>
    </message>
    <message>
        <source>use %1 as the decimal sign</source>
        <translation>utilisez %1 comme séparateur décimal</translation>
    </message>
    <message>
        <source>The number is not complete.</source>
        <translation>Le nombre n'est pas complet.</translation>
    </message>
    <message>
        <source>%1 is the maximum</source>
        <translation>%1 est le maximum</translation>
    </message>
    <message>
        <source>%1 is the minimum</source>
        <translation>%1 est le minimum</translation>
    </message>
    <message>
        <source>%1 is the nearest value (increment: %2)</source>
        <translation>%1 est la valeur la plus proche (incrément : %2)</translation>
    </message>
</context>
<context>
    <name>IntSliderEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;non lisible&gt;</translation>
    </message>
</context>
<context>
    <name>IntegerText</name>
    <message>
        <source>Enter four numbers from 0 to 255 with dots between them and without leading zeros, such as 192.168.0.10.</source>
        <translation>Saisissez quatre nombres de 0 à 255 séparés par des points et sans zéros initiaux, par exemple 192.168.0.10.</translation>
    </message>
    <message>
        <source>Enter six hexadecimal numbers with colons between them, such as 00:1B:2C:3D:4E:5F.</source>
        <translation>Saisissez six nombres hexadécimaux séparés par des deux-points, par exemple 00:1B:2C:3D:4E:5F.</translation>
    </message>
    <message>
        <source>Enter a hexadecimal number behind 0x, with the digits 0 to 9 and a to f.</source>
        <translation>Saisissez un nombre hexadécimal après 0x, avec les chiffres de 0 à 9 et les lettres de a à f.</translation>
    </message>
    <message>
        <source>Enter a whole number, without decimals and without separators.</source>
        <translation>Saisissez un nombre entier, sans décimales ni séparateurs.</translation>
    </message>
    <message>
        <source>Enter a whole number alone, without a unit.</source>
        <translation>Saisissez un nombre entier seul, sans unité.</translation>
    </message>
    <message>
        <source>Enter a whole number.</source>
        <translation>Saisissez un nombre entier.</translation>
    </message>
    <message>
        <source>The limits of this feature contradict each other, so that no number fits.</source>
        <translation>Les limites de ce paramètre se contredisent : aucun nombre ne convient.</translation>
    </message>
    <message>
        <source>%1 is the next value below, in steps of %2</source>
        <translation>%1 est la valeur immédiatement inférieure, par pas de %2</translation>
    </message>
    <message>
        <source>This value was refused.</source>
        <translation>Cette valeur a été refusée.</translation>
    </message>
</context>
<context>
    <name>FeatureSettings</name>
    <message>
        <source>%1: it is a directory</source>
        <translation>%1 : c'est un dossier</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossible d'écrire %1 : %2</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>longer than %1 KiB</source>
        <translation>plus longue que %1 Kio</translation>
    </message>
    <message>
        <source>a file of more than %1 MiB holds no camera settings</source>
        <translation>un fichier de plus de %1 Mio ne contient pas de réglages de caméra</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>this is no UTF-8 text</source>
        <translation>ce n'est pas un texte UTF-8</translation>
    </message>
    <message>
        <source>"%1" is no name of a feature</source>
        <translation>« %1 » n'est pas un nom de paramètre</translation>
    </message>
    <message>
        <source>%1 has no value</source>
        <translation>%1 n'a pas de valeur</translation>
    </message>
    <message>
        <source>there are more than %1 values</source>
        <translation>il y a plus de %1 valeurs</translation>
    </message>
</context>
<context>
    <name>SettingsReading</name>
    <message>
        <source>%1 makes more than %2 combinations; only the present one is read</source>
        <translation>%1 donne plus de %2 combinaisons ; seule l'actuelle est lue</translation>
    </message>
    <message>
        <source>%1 selects among more than %2 values; only the present one is read</source>
        <translation>%1 sélectionne parmi plus de %2 valeurs ; seule l'actuelle est lue</translation>
    </message>
    <message>
        <source>%1 selects among more than %2 values; what it selects is left out</source>
        <translation>%1 sélectionne parmi plus de %2 valeurs ; ce qu'il sélectionne est laissé de côté</translation>
    </message>
    <message>
        <source>%1=%2 cannot be chosen: %3</source>
        <translation>%1=%2 ne peut pas être choisi : %3</translation>
    </message>
    <message>
        <source>%1 cannot be put back to %2: %3</source>
        <translation>%1 ne peut pas être remis à %2 : %3</translation>
    </message>
</context>
<context>
    <name>SettingsApplying</name>
    <message>
        <source>%1 is no feature that has a value</source>
        <translation>%1 n'est pas un paramètre ayant une valeur</translation>
    </message>
</context>
<context>
    <name>SettingsReport</name>
    <message numerus="yes">
        <source>%n set</source>
        <translation>
            <numerusform>%n modifié</numerusform>
            <numerusform>%n modifiés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unchanged</source>
        <translation>
            <numerusform>%n inchangé</numerusform>
            <numerusform>%n inchangés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n refusé</numerusform>
            <numerusform>%n refusés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n missing</source>
        <translation>
            <numerusform>%n manquant</numerusform>
            <numerusform>%n manquants</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n read back differently</source>
        <translation>
            <numerusform>%n relu différemment</numerusform>
            <numerusform>%n relus différemment</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not tried</source>
        <translation>
            <numerusform>%n non essayé</numerusform>
            <numerusform>%n non essayés</numerusform>
        </translation>
    </message>
    <message>
        <source>The camera was lost: %1.</source>
        <translation>La connexion à la caméra a été perdue : %1.</translation>
    </message>
    <message>
        <source>Cancelled: %1.</source>
        <translation>Annulé : %1.</translation>
    </message>
    <message>
        <source>Done: %1.</source>
        <translation>Terminé : %1.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>set</source>
        <translation>modifié</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>inchangé</translation>
    </message>
    <message>
        <source>refused: %1</source>
        <translation>refusé : %1</translation>
    </message>
    <message>
        <source>the camera has no such feature</source>
        <translation>la caméra n'a pas ce paramètre</translation>
    </message>
    <message>
        <source>"%1" was written, "%2" is read back</source>
        <translation>« %1 » a été écrit, « %2 » est relu</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>non essayé</translation>
    </message>
</context>
<context>
    <name>SettingsProgress</name>
    <message>
        <source>Starting…</source>
        <translation>Démarrage…</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 sur %2 : %3</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Annulation…</translation>
    </message>
</context>
<context>
    <name>SettingsReportDialog</name>
    <message>
        <source>Settings Loaded</source>
        <translation>Réglages chargés</translation>
    </message>
    <message>
        <source>Show &amp;all features</source>
        <translation>Afficher &amp;tous les paramètres</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Asked for</source>
        <translation>Demandé</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Put Back What Was Before</source>
        <translation>&amp;Rétablir ce qui était avant</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
</context>
<context>
    <name>ChangeHistory</name>
    <message>
        <source>Failed to undo a change.</source>
        <translation>L'annulation d'une modification a échoué.</translation>
    </message>
    <message>
        <source>Failed to redo a change.</source>
        <translation>Le rétablissement d'une modification a échoué.</translation>
    </message>
    <message>
        <source>%1: the feature is gone</source>
        <translation>%1 : le paramètre n'existe plus</translation>
    </message>
    <message>
        <source>Failed to set a feature value.</source>
        <translation>La modification d'un paramètre a échoué.</translation>
    </message>
    <message>
        <source>values set: %1</source>
        <translation>valeurs modifiées : %1</translation>
    </message>
</context>
<context>
    <name>ChangeHistoryWidget</name>
    <message>
        <source>&amp;Go to Feature</source>
        <translation>A&amp;ller au paramètre</translation>
    </message>
    <message>
        <source>Put &amp;Back the Value Before</source>
        <translation>Remettre la valeur d'a&amp;vant</translation>
    </message>
    <message>
        <source>Set the Value &amp;After Again</source>
        <translation>Remettre la valeur d'a&amp;près</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Save as Text…</source>
        <translation>&amp;Enregistrer comme texte…</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Modifications</translation>
    </message>
    <message>
        <source>What was changed since the camera was opened</source>
        <translation>Ce qui a été modifié depuis l'ouverture de la caméra</translation>
    </message>
    <message>
        <source>Search changes</source>
        <translation>Rechercher dans les modifications</translation>
    </message>
    <message>
        <source>Save Changes as Text</source>
        <translation>Enregistrer les modifications comme texte</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation>Fichiers texte (*.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossible d'écrire %1 : %2</translation>
    </message>
</context>
<context>
    <name>ChangeList</name>
    <message>
        <source>refused: %1</source>
        <translation>refusé : %1</translation>
    </message>
    <message>
        <source>undone</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>executed</source>
        <translation>exécuté</translation>
    </message>
    <message>
        <source>done</source>
        <translation>fait</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
</context>
<context>
    <name>DifferenceList</name>
    <message>
        <source>no value</source>
        <translation>aucune valeur</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Ici</translation>
    </message>
    <message>
        <source>There</source>
        <translation>Là-bas</translation>
    </message>
</context>
<context>
    <name>SettingsComparisonWidget</name>
    <message>
        <source>&amp;Go to Feature</source>
        <translation>A&amp;ller au paramètre</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>&amp;Reprendre</translation>
    </message>
    <message>
        <source>Take Over &amp;All</source>
        <translation>Reprendre &amp;tout</translation>
    </message>
    <message>
        <source>Compare A&amp;gain</source>
        <translation>&amp;Comparer de nouveau</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Différences</translation>
    </message>
    <message>
        <source>In what the camera differs from a file, another camera or how it was</source>
        <translation>En quoi la caméra diffère d'un fichier, d'une autre caméra ou de ce qu'elle était</translation>
    </message>
    <message>
        <source>Sets the values from there that are selected</source>
        <translation>Reprend les valeurs de là-bas qui sont sélectionnées</translation>
    </message>
    <message>
        <source>Sets all values from there that are shown</source>
        <translation>Reprend toutes les valeurs de là-bas qui sont affichées</translation>
    </message>
    <message>
        <source>Search differences</source>
        <translation>Rechercher dans les différences</translation>
    </message>
    <message>
        <source>No difference from %1</source>
        <translation>Aucune différence avec %1</translation>
    </message>
    <message>
        <source>Differences from %1</source>
        <translation>Différences avec %1</translation>
    </message>
    <message>
        <source>Nothing is compared.</source>
        <translation>Rien n'est comparé.</translation>
    </message>
    <message>
        <source>&amp;Different (%1)</source>
        <translation>&amp;Différents (%1)</translation>
    </message>
    <message>
        <source>Only &amp;here (%1)</source>
        <translation>Seulement &amp;ici (%1)</translation>
    </message>
    <message>
        <source>Only th&amp;ere (%1)</source>
        <translation>Seulement là-&amp;bas (%1)</translation>
    </message>
</context>
<context>
    <name>SearchEdit</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
</context>
</TS>
