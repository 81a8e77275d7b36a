<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CameraDialog</name>
    <message>
        <source>Connect to Camera</source>
        <translation>Se connecter à une caméra</translation>
    </message>
    <message>
        <source>Reachable cameras</source>
        <translation>Caméras accessibles</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>Se &amp;connecter</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>&amp;Rechercher de nouveau</translation>
    </message>
    <message>
        <source>%1 %2 (%3), %4</source>
        <translation>%1 %2 (%3), %4</translation>
    </message>
    <message>
        <source>No camera answers. Check its power, its cable and the network interface, then rescan.</source>
        <translation>Aucune caméra ne répond. Vérifiez son alimentation, son câble et l'interface réseau, puis recherchez de nouveau.</translation>
    </message>
    <message>
        <source>%1, available</source>
        <translation>%1, disponible</translation>
    </message>
    <message>
        <source>%1, in use by another program, opens read-only</source>
        <translation>%1, utilisée par un autre programme, s'ouvre en lecture seule</translation>
    </message>
    <message>
        <source>%1, in use by a program at %2, opens read-only</source>
        <translation>%1, utilisée par un programme à l'adresse %2, s'ouvre en lecture seule</translation>
    </message>
    <message>
        <source>%1, held by another program for itself</source>
        <translation>%1, réservée par un autre programme</translation>
    </message>
    <message>
        <source>%1, not in a subnet of this computer</source>
        <translation>%1, dans aucun sous-réseau de cet ordinateur</translation>
    </message>
    <message>
        <source>%1, does not answer</source>
        <translation>%1, ne répond pas</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Recherche…</translation>
    </message>
    <message>
        <source>Waiting until the opening of a camera has ended…</source>
        <translation>En attente de la fin de l'ouverture d'une caméra…</translation>
    </message>
</context>
<context>
    <name>ColoursMenu</name>
    <message>
        <source>C&amp;olours</source>
        <translation>C&amp;ouleurs</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>Comme le &amp;système</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>S&amp;ombre</translation>
    </message>
</context>
<context>
    <name>DescriptionPane</name>
    <message>
        <source>Integer</source>
        <translation>Entier</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>Booléen</translation>
    </message>
    <message>
        <source>Floating-point number</source>
        <translation>Nombre à virgule flottante</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>Énumération</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Not implemented</source>
        <translation>Non implémenté</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>Lecture et écriture</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Write only</source>
        <translation>Écriture seule</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Non disponible</translation>
    </message>
    <message>
        <source>%1 to %2%3</source>
        <translation>%1 à %2%3</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Plage</translation>
    </message>
    <message>
        <source>Increment</source>
        <translation>Incrément</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Entrées</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Accès</translation>
    </message>
    <message>
        <source>Visibility</source>
        <translation>Visibilité</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Description of the current feature</source>
        <translation>Description du paramètre actuel</translation>
    </message>
</context>
<context>
    <name>IpConfiguration</name>
    <message>
        <source>The reason is not known.</source>
        <translation>La raison n'est pas connue.</translation>
    </message>
    <message>
        <source>This camera has no features for an IP configuration</source>
        <translation>Cette caméra n'a pas de paramètres pour une configuration IP</translation>
    </message>
    <message>
        <source>The camera does not allow its IP configuration to be changed now</source>
        <translation>La caméra ne permet pas de modifier sa configuration IP maintenant</translation>
    </message>
    <message>
        <source>The IP configuration was not changed. %1</source>
        <translation>La configuration IP n'a pas été modifiée. %1</translation>
    </message>
</context>
<context>
    <name>Levels</name>
    <message>
        <source>&amp;Beginner</source>
        <translation>&amp;Débutant</translation>
    </message>
    <message>
        <source>&amp;Expert</source>
        <translation>&amp;Expert</translation>
    </message>
    <message>
        <source>&amp;Guru</source>
        <translation>&amp;Gourou</translation>
    </message>
    <message>
        <source>&amp;All Features</source>
        <translation>&amp;Tous les paramètres</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Invisible</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Features</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>Copy &amp;Tree to Clipboard</source>
        <translation>Copier l'ar&amp;borescence dans le presse-papiers</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open Description File…</source>
        <translation>&amp;Ouvrir un fichier de description…</translation>
    </message>
    <message>
        <source>&amp;Connect to Camera…</source>
        <translation>Se &amp;connecter à une caméra…</translation>
    </message>
    <message>
        <source>Ctrl+K</source>
        <translation>Ctrl+K</translation>
    </message>
    <message>
        <source>C&amp;lose Camera</source>
        <translation>&amp;Fermer la caméra</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>&amp;Panneaux</translation>
    </message>
    <message>
        <source>&amp;Monitor Mode</source>
        <translation>&amp;Mode de surveillance</translation>
    </message>
    <message>
        <source>Polling re-reads all features, not only the volatile ones</source>
        <translation>L'interrogation relit tous les paramètres, et pas seulement les volatils</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>&amp;Caméra</translation>
    </message>
    <message>
        <source>&amp;IP Configuration…</source>
        <translation>Configuration &amp;IP…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Show All Messages Again</source>
        <translation>Afficher de nouveau &amp;tous les messages</translation>
    </message>
    <message>
        <source>Brings back the messages that were silenced</source>
        <translation>Fait réapparaître les messages qui ont été masqués</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>À &amp;propos…</translation>
    </message>
    <message>
        <source>&amp;Level</source>
        <translation>&amp;Niveau</translation>
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
        <translation>Aucune caméra</translation>
    </message>
    <message>
        <source>Zelto Viewer</source>
        <translation>Zelto Viewer</translation>
    </message>
    <message>
        <source>Open Description File</source>
        <translation>Ouvrir un fichier de description</translation>
    </message>
    <message>
        <source>Camera descriptions (*.xml *.zip);;All files (*)</source>
        <translation>Descriptions de caméra (*.xml *.zip);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Reconnecter</translation>
    </message>
    <message>
        <source>Close Camera</source>
        <translation>Fermer la caméra</translation>
    </message>
    <message>
        <source>Close the camera %1?
Changes that were not saved to one of its user sets last until it is switched off.</source>
        <translation>Fermer la caméra %1 ?
Les modifications qui n'ont pas été enregistrées dans l'un de ses jeux utilisateur ne durent que jusqu'à son extinction.</translation>
    </message>
    <message>
        <source>IP Configuration</source>
        <translation>Configuration IP</translation>
    </message>
    <message>
        <source>The new IP configuration takes effect after the camera restarts.</source>
        <translation>La nouvelle configuration IP prend effet après le redémarrage de la caméra.</translation>
    </message>
    <message>
        <source>Address, mask and gateway that the camera starts with</source>
        <translation>L'adresse, le masque et la passerelle avec lesquels la caméra démarre</translation>
    </message>
    <message>
        <source>No camera is open</source>
        <translation>Aucune caméra n'est ouverte</translation>
    </message>
    <message>
        <source>The camera was lost</source>
        <translation>La connexion à la caméra a été perdue</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s)</source>
        <translation>
            <numerusform>%n résultat</numerusform>
            <numerusform>%n résultats</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n result(s), %1 of them at a higher level</source>
        <translation>
            <numerusform>%n résultat, dont %1 à un niveau supérieur</numerusform>
            <numerusform>%n résultats, dont %1 à un niveau supérieur</numerusform>
        </translation>
    </message>
    <message>
        <source>All messages are shown again.</source>
        <translation>Tous les messages sont de nouveau affichés.</translation>
    </message>
    <message>
        <source>About Zelto Viewer</source>
        <translation>À propos de Zelto Viewer</translation>
    </message>
    <message>
        <source>&lt;b&gt;Zelto Viewer %1&lt;/b&gt;&lt;p&gt;Shows a camera's features in a tree, for GigE Vision and USB3 Vision cameras and for any GenICam camera description file.</source>
        <translation>&lt;b&gt;Zelto Viewer %1&lt;/b&gt;&lt;p&gt;Affiche les paramètres d'une caméra sous forme d'arborescence, pour les caméras GigE Vision et USB3 Vision et pour tout fichier de description de caméra GenICam.</translation>
    </message>
    <message>
        <source>No camera is open.
Open a description file or connect to a camera (menu File).</source>
        <translation>Aucune caméra n'est ouverte.
Ouvrez un fichier de description ou connectez-vous à une caméra (menu Fichier).</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>Reco&amp;nnecter</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>The tree was copied to the clipboard.</source>
        <translation>L'arborescence a été copiée dans le presse-papiers.</translation>
    </message>
    <message>
        <source>The open camera has no such feature.</source>
        <translation>La caméra ouverte n'a pas ce paramètre.</translation>
    </message>
    <message>
        <source>&amp;Take Control</source>
        <translation>&amp;Prendre le contrôle</translation>
    </message>
    <message>
        <source>Take Control</source>
        <translation>Prendre le contrôle</translation>
    </message>
    <message>
        <source>The camera is open read-only. No program controls it now.</source>
        <translation>La caméra est ouverte en lecture seule. Aucun programme ne la contrôle maintenant.</translation>
    </message>
    <message>
        <source>The camera is held by another program and open read-only.</source>
        <translation>La caméra est tenue par un autre programme et ouverte en lecture seule.</translation>
    </message>
    <message>
        <source>The camera is held by another program at %1 and open read-only.</source>
        <translation>La caméra est tenue par un autre programme à l'adresse %1 et ouverte en lecture seule.</translation>
    </message>
    <message>
        <source>Taking control of the camera…</source>
        <translation>Prise de contrôle de la caméra…</translation>
    </message>
    <message>
        <source>The control of the camera was not taken: %1</source>
        <translation>Le contrôle de la caméra n'a pas été pris : %1</translation>
    </message>
    <message>
        <source>Allows the camera's features to be changed</source>
        <translation>Permet de modifier les paramètres de la caméra</translation>
    </message>
    <message>
        <source>Only of a camera that is open read-only and free</source>
        <translation>Seulement pour une caméra libre, ouverte en lecture seule</translation>
    </message>
    <message>
        <source>Open R&amp;ecent</source>
        <translation>Ouvrir un fichier &amp;récent</translation>
    </message>
    <message>
        <source>How many features are shown</source>
        <translation>Combien de paramètres sont affichés</translation>
    </message>
    <message>
        <source>Level: %1</source>
        <translation>Niveau : %1</translation>
    </message>
    <message>
        <source>the camera %1</source>
        <translation>la caméra %1</translation>
    </message>
    <message>
        <source>the embedded camera</source>
        <translation>la caméra intégrée</translation>
    </message>
    <message>
        <source>The opening was cancelled.</source>
        <translation>L'ouverture a été annulée.</translation>
    </message>
    <message>
        <source>%1[*] – %2 – Zelto Viewer</source>
        <translation>%1[*] – %2 – Zelto Viewer</translation>
    </message>
    <message>
        <source>This feature is not shown at the current level</source>
        <translation>Ce paramètre n'est pas affiché au niveau actuel</translation>
    </message>
    <message>
        <source>Camera Settings</source>
        <translation>Réglages de la caméra</translation>
    </message>
    <message>
        <source>Values of the camera differ from the settings file %1.
Close without saving them?</source>
        <translation>Des valeurs de la caméra diffèrent du fichier de réglages %1.
Fermer sans les enregistrer ?</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Dismiss</source>
        <translation>Masquer</translation>
    </message>
    <message numerus="yes">
        <source>(%n earlier message(s))</source>
        <translation>
            <numerusform>(%n message précédent)</numerusform>
            <numerusform>(%n messages précédents)</numerusform>
        </translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Message: %1</source>
        <translation>Message : %1</translation>
    </message>
</context>
<context>
    <name>VisitedFeaturesPanel</name>
    <message>
        <source>Visited Features</source>
        <translation>Paramètres visités</translation>
    </message>
    <message>
        <source>The features you visited last; a click goes back</source>
        <translation>Les derniers paramètres visités ; un clic y ramène</translation>
    </message>
    <message>
        <source>This feature is not shown at the current level</source>
        <translation>Ce paramètre n'est pas affiché au niveau actuel</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Cannot write %1.</source>
        <translation>Impossible d'écrire %1.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossible d'écrire %1 : %2</translation>
    </message>
    <message>
        <source>Cannot write to the standard output.</source>
        <translation>Impossible d'écrire sur la sortie standard.</translation>
    </message>
    <message>
        <source>Value Editors – Zelto Viewer</source>
        <translation>Éditeurs de valeurs – Zelto Viewer</translation>
    </message>
</context>
<context>
    <name>CommandQuestion</name>
    <message>
        <source>Restart the camera?
The connection breaks, and changes that were not saved to one of its user sets are lost.</source>
        <translation>Redémarrer la caméra ?
La connexion est coupée, et les modifications qui n'ont pas été enregistrées dans l'un de ses jeux utilisateur sont perdues.</translation>
    </message>
    <message>
        <source>Reset the camera to its factory settings?
All settings are lost, those saved to its user sets too.</source>
        <translation>Rétablir les réglages d'usine de la caméra ?
Tous les réglages sont perdus, y compris ceux de ses jeux utilisateur.</translation>
    </message>
    <message>
        <source>Load the user set "%1"?
It overwrites the present settings.</source>
        <translation>Charger le jeu utilisateur « %1 » ?
Il remplace les réglages actuels.</translation>
    </message>
    <message>
        <source>Save the present settings to the user set "%1"?
They overwrite what is saved there.</source>
        <translation>Enregistrer les réglages actuels dans le jeu utilisateur « %1 » ?
Ils remplacent ce qui y est enregistré.</translation>
    </message>
    <message>
        <source>Write to the camera's file "%1"?
What the file holds is overwritten.</source>
        <translation>Écrire dans le fichier « %1 » de la caméra ?
Le contenu du fichier est remplacé.</translation>
    </message>
    <message>
        <source>Delete the camera's file "%1"?
What the file holds is lost.</source>
        <translation>Supprimer le fichier « %1 » de la caméra ?
Le contenu du fichier est perdu.</translation>
    </message>
</context>
<context>
    <name>TreeMenu</name>
    <message>
        <source>&amp;Expand All</source>
        <translation>Tout &amp;développer</translation>
    </message>
    <message>
        <source>Collapse &amp;All</source>
        <translation>Tout &amp;réduire</translation>
    </message>
    <message>
        <source>Copy &amp;Name</source>
        <translation>Copier le &amp;nom</translation>
    </message>
    <message>
        <source>Copy &amp;Value</source>
        <translation>Copier la &amp;valeur</translation>
    </message>
    <message>
        <source>Copy &amp;Full Name</source>
        <translation>Copier le nom &amp;complet</translation>
    </message>
    <message>
        <source>&amp;Go To Feature</source>
        <translation>A&amp;ller au paramètre</translation>
    </message>
    <message>
        <source>This feature is not shown at the current level</source>
        <translation>Ce paramètre n'est pas affiché au niveau actuel</translation>
    </message>
</context>
<context>
    <name>RecentSources</name>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vider la liste</translation>
    </message>
    <message>
        <source>The file does not exist at present</source>
        <translation>Le fichier n'existe pas actuellement</translation>
    </message>
</context>
<context>
    <name>OpeningPage</name>
    <message>
        <source>Opening %1</source>
        <translation>Ouverture de %1</translation>
    </message>
    <message>
        <source>Waiting until the search for another camera, or its opening, has ended…</source>
        <translation>En attente de la fin de la recherche ou de l'ouverture d'une autre caméra…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connexion…</translation>
    </message>
    <message>
        <source>Reading the description…</source>
        <translation>Lecture de la description…</translation>
    </message>
    <message>
        <source>Reading the features: %1 of %2</source>
        <translation>Lecture des paramètres : %1 sur %2</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>&amp;Save Settings…</source>
        <translation>&amp;Enregistrer les réglages…</translation>
    </message>
    <message>
        <source>&amp;Load Settings…</source>
        <translation>C&amp;harger des réglages…</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Saves all values that can be changed to a text file</source>
        <translation>Enregistre dans un fichier texte toutes les valeurs modifiables</translation>
    </message>
    <message>
        <source>Brings the values in a file to the camera</source>
        <translation>Transmet à la caméra les valeurs d'un fichier</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Enregistrer les réglages</translation>
    </message>
    <message>
        <source>Load Settings</source>
        <translation>Charger des réglages</translation>
    </message>
    <message>
        <source>Camera settings (*.txt);;All files (*)</source>
        <translation>Réglages de caméra (*.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>%1: there are no settings in it</source>
        <translation>%1 : il ne contient aucun réglage</translation>
    </message>
    <message>
        <source>These are settings of the model %1, and the open camera is a %2.
Load them all the same?</source>
        <translation>Ce sont des réglages du modèle %1, et la caméra ouverte est une %2.
Les charger quand même ?</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Charger</translation>
    </message>
    <message>
        <source>No settings were saved.</source>
        <translation>Aucun réglage n'a été enregistré.</translation>
    </message>
    <message>
        <source>The settings were saved, but for some that cannot be read.</source>
        <translation>Les réglages ont été enregistrés, sauf certains qui ne peuvent pas être lus.</translation>
    </message>
    <message>
        <source>The settings were saved to %1.</source>
        <translation>Les réglages ont été enregistrés dans %1.</translation>
    </message>
    <message>
        <source>What was before is back. %1</source>
        <translation>L'état précédent est rétabli. %1</translation>
    </message>
    <message>
        <source>Settings loaded. %1</source>
        <translation>Réglages chargés. %1</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>no feature %1</source>
        <translation>aucun paramètre %1</translation>
    </message>
    <message>
        <source>no feature %1; did you mean %2?</source>
        <translation>aucun paramètre %1 ; vouliez-vous dire %2 ?</translation>
    </message>
    <message>
        <source>%1: this is no feature that has a value</source>
        <translation>%1 : ce n'est pas un paramètre ayant une valeur</translation>
    </message>
    <message>
        <source>%1: it cannot be read now</source>
        <translation>%1 : il ne peut pas être lu maintenant</translation>
    </message>
    <message>
        <source>%1: the camera does not answer</source>
        <translation>%1 : la caméra ne répond pas</translation>
    </message>
    <message>
        <source>%1: this is no command</source>
        <translation>%1 : ce n'est pas une commande</translation>
    </message>
    <message>
        <source>the camera does not answer</source>
        <translation>la caméra ne répond pas</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrompu</translation>
    </message>
    <message>
        <source>standard input: %1</source>
        <translation>entrée standard : %1</translation>
    </message>
    <message>
        <source>%1: there are no settings in it</source>
        <translation>%1 : il ne contient aucun réglage</translation>
    </message>
    <message>
        <source>%1: these are settings of %2, and this is %3; --force loads them all the same</source>
        <translation>%1 : ce sont des réglages de %2, et ceci est %3 ; --force les charge quand même</translation>
    </message>
    <message>
        <source>Cannot write to the standard output.</source>
        <translation>Impossible d'écrire sur la sortie standard.</translation>
    </message>
</context>
<context>
    <name>Comparison</name>
    <message>
        <source>Opening %1…</source>
        <translation>Ouverture de %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Compare &amp;With</source>
        <translation>Comparer a&amp;vec</translation>
    </message>
    <message>
        <source>A &amp;File…</source>
        <translation>Un &amp;fichier…</translation>
    </message>
    <message>
        <source>The State When &amp;Opened</source>
        <translation>L'état à l'&amp;ouverture</translation>
    </message>
    <message>
        <source>Another &amp;Description…</source>
        <translation>Une autre &amp;description…</translation>
    </message>
    <message>
        <source>Another &amp;Camera…</source>
        <translation>Une autre &amp;caméra…</translation>
    </message>
    <message>
        <source>Compare With a Settings File</source>
        <translation>Comparer avec un fichier de réglages</translation>
    </message>
    <message>
        <source>the state when opened</source>
        <translation>l'état à l'ouverture</translation>
    </message>
    <message>
        <source>Compare With Another Description</source>
        <translation>Comparer avec une autre description</translation>
    </message>
    <message>
        <source>Camera descriptions (*.xml *.zip);;All files (*)</source>
        <translation>Descriptions de caméra (*.xml *.zip);;Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>HistoryActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rétablir %1</translation>
    </message>
    <message>
        <source>what was before</source>
        <translation>ce qui était avant</translation>
    </message>
</context>
<context>
    <name>WatchModel</name>
    <message>
        <source>Feature</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
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
        <translation>Moyenne</translation>
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
        <translation>il y a %1</translation>
    </message>
    <message>
        <source>now</source>
        <translation>maintenant</translation>
    </message>
    <message>
        <source>Plot of the watched features</source>
        <translation>Courbe des paramètres surveillés</translation>
    </message>
    <message>
        <source>Make a feature current in the tree, and add it.</source>
        <translation>Sélectionnez un paramètre dans l'arborescence, puis ajoutez-le.</translation>
    </message>
</context>
<context>
    <name>WatchPanel</name>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>Re&amp;start</source>
        <translation>Re&amp;commencer</translation>
    </message>
    <message>
        <source>M&amp;ore</source>
        <translation>Pl&amp;us</translation>
    </message>
    <message>
        <source>Save as &amp;CSV…</source>
        <translation>Enregistrer en &amp;CSV…</translation>
    </message>
    <message>
        <source>Save as P&amp;NG…</source>
        <translation>Enregistrer en P&amp;NG…</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Surveillance</translation>
    </message>
    <message>
        <source>Values of chosen features over time</source>
        <translation>Valeurs de paramètres choisis au fil du temps</translation>
    </message>
    <message>
        <source>Forgets the values so far</source>
        <translation>Oublie les valeurs relevées jusqu'ici</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Last minute</source>
        <translation>Dernière minute</translation>
    </message>
    <message>
        <source>Last 10 minutes</source>
        <translation>10 dernières minutes</translation>
    </message>
    <message>
        <source>Last hour</source>
        <translation>Dernière heure</translation>
    </message>
    <message>
        <source>Time that the plot shows</source>
        <translation>Durée affichée par la courbe</translation>
    </message>
    <message>
        <source>Watches the current feature of the tree, %1</source>
        <translation>Surveille le paramètre actuel de l'arborescence, %1</translation>
    </message>
    <message>
        <source>Watches the current feature of the tree, if it is a number or a Boolean</source>
        <translation>Surveille le paramètre actuel de l'arborescence, si c'est un nombre ou un booléen</translation>
    </message>
    <message>
        <source>Save Watched Values</source>
        <translation>Enregistrer les valeurs surveillées</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Valeurs séparées par des virgules (*.csv)</translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation>Enregistrer la courbe</translation>
    </message>
    <message>
        <source>Images (*.png)</source>
        <translation>Images (*.png)</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossible d'écrire %1 : %2</translation>
    </message>
</context>
<context>
    <name>LanguagesMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>Comme le &amp;système</translation>
    </message>
</context>
</TS>
