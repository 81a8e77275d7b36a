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
    <message>
        <source>The camera was sending images when it was lost.</source>
        <translation>La caméra envoyait des images lorsque la connexion a été perdue.</translation>
    </message>
    <message>
        <source>Start Images</source>
        <translation>Démarrer les images</translation>
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
    <message>
        <source>%1 is there already, and nothing is overwritten</source>
        <translation>%1 existe déjà, et rien n'est écrasé</translation>
    </message>
    <message>
        <source>this camera delivers no images</source>
        <translation>cette caméra ne fournit pas d'images</translation>
    </message>
    <message>
        <source>no image came</source>
        <translation>aucune image n'est arrivée</translation>
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
        <source>Camera settings (*.txt);;All files (*)</source>
        <translation>Réglages de caméra (*.txt);;Tous les fichiers (*)</translation>
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
<context>
    <name>FrameFile</name>
    <message>
        <source>The pixel format %1 cannot be saved in this kind of file. Its bytes can, as a file whose name ends in .raw.</source>
        <translation>Le format de pixel %1 ne peut pas être enregistré dans ce type de fichier. Ses octets le peuvent, dans un fichier dont le nom se termine par .raw.</translation>
    </message>
    <message>
        <source>There is nothing in the image that could be saved.</source>
        <translation>L'image ne contient rien qui puisse être enregistré.</translation>
    </message>
    <message>
        <source>%1 is there already, and nothing is overwritten.</source>
        <translation>%1 existe déjà, et rien n'est écrasé.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossible d'écrire %1 : %2</translation>
    </message>
</context>
<context>
    <name>FrameRecorder</name>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossible d'écrire %1 : %2</translation>
    </message>
    <message>
        <source>No folder can be made in %1.</source>
        <translation>Impossible de créer un dossier dans %1.</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>Histogramme</translation>
    </message>
    <message>
        <source>Black: %1 (%2 %)   Saturated: %3 (%4 %)</source>
        <translation>Noirs : %1 (%2 %)   Saturés : %3 (%4 %)</translation>
    </message>
</context>
<context>
    <name>ImagePane</name>
    <message>
        <source>%1mean %2, deviation %3</source>
        <translation>%1moyenne %2, écart type %3</translation>
    </message>
    <message>
        <source>sharpness %1</source>
        <translation>netteté %1</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>St&amp;art Images</source>
        <translation>&amp;Démarrer les images</translation>
    </message>
    <message>
        <source>Shows what the camera sees</source>
        <translation>Affiche ce que voit la caméra</translation>
    </message>
    <message>
        <source>Si&amp;ngle Image</source>
        <translation>Image &amp;unique</translation>
    </message>
    <message>
        <source>Takes one image</source>
        <translation>Prend une image</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Shows all of the image</source>
        <translation>Affiche toute l'image</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Shows each pixel as one of the screen</source>
        <translation>Affiche chaque pixel comme un pixel de l'écran</translation>
    </message>
    <message>
        <source>Crosshair</source>
        <translation>Réticule</translation>
    </message>
    <message>
        <source>Marks the middle of the image</source>
        <translation>Marque le centre de l'image</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Divides the image into thirds</source>
        <translation>Divise l'image en tiers</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Dragging moves the image</source>
        <translation>Faire glisser déplace l'image</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Dragging draws a rectangle, of which mean, deviation and sharpness are shown</source>
        <translation>Faire glisser trace un rectangle, dont la moyenne, l'écart type et la netteté sont affichés</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Dragging draws a line, along which the values are shown</source>
        <translation>Faire glisser trace une ligne, le long de laquelle les valeurs sont affichées</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histogramme</translation>
    </message>
    <message>
        <source>Shows the histogram, gamma and contrast</source>
        <translation>Affiche l'histogramme, le gamma et le contraste</translation>
    </message>
    <message>
        <source>Mark Extremes</source>
        <translation>Marquer les extrêmes</translation>
    </message>
    <message>
        <source>Marks saturated pixels red and black ones blue</source>
        <translation>Marque en rouge les pixels saturés et en bleu les noirs</translation>
    </message>
    <message>
        <source>&amp;Full Frame</source>
        <translation>P&amp;leine image</translation>
    </message>
    <message>
        <source>Makes all of the sensor the region of interest; dragging in the image with Ctrl makes it what is drawn</source>
        <translation>Fait de tout le capteur la région d'intérêt ; faire glisser dans l'image avec Ctrl fait de ce qui est tracé la région d'intérêt</translation>
    </message>
    <message>
        <source>&amp;Logarithmic</source>
        <translation>&amp;Logarithmique</translation>
    </message>
    <message>
        <source>Shows rare values as well</source>
        <translation>Affiche aussi les valeurs rares</translation>
    </message>
    <message>
        <source>Statistics of the rectangle</source>
        <translation>Statistiques du rectangle</translation>
    </message>
    <message>
        <source>Of the drawn rectangle. Sharpness: steps between neighbours, in percent of the mean</source>
        <translation>Du rectangle tracé. Netteté : écarts entre voisins, en pour cent de la moyenne</translation>
    </message>
    <message>
        <source>Pixel under the cursor</source>
        <translation>Pixel sous le curseur</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>No camera is open.</source>
        <translation>Aucune caméra n'est ouverte.</translation>
    </message>
    <message>
        <source>This camera delivers no images.</source>
        <translation>Cette caméra ne fournit pas d'images.</translation>
    </message>
    <message>
        <source>Start the images with F9.</source>
        <translation>Démarrez les images avec F9.</translation>
    </message>
    <message>
        <source>St&amp;op Images</source>
        <translation>&amp;Arrêter les images</translation>
    </message>
    <message>
        <source>%1 × %2, %3, frame %4, %5 %</source>
        <translation>%1 × %2, %3, image %4, %5 %</translation>
    </message>
    <message>
        <source>x %1, y %2:  %3</source>
        <translation>x %1, y %2 :  %3</translation>
    </message>
</context>
<context>
    <name>ImageSaving</name>
    <message>
        <source>Save I&amp;mage…</source>
        <translation>Enre&amp;gistrer l'image…</translation>
    </message>
    <message>
        <source>Saves the image: what is shown as PNG, the raw values as TIFF, PGM or PPM</source>
        <translation>Enregistre l'image : ce qui est affiché en PNG, les valeurs brutes en TIFF, PGM ou PPM</translation>
    </message>
    <message>
        <source>Keeps the next images as files, with a table of their numbers and times</source>
        <translation>Conserve les prochaines images dans des fichiers, avec un tableau de leurs numéros et horodatages</translation>
    </message>
    <message>
        <source>Stop &amp;Recording</source>
        <translation>Arrêter l'enregi&amp;strement</translation>
    </message>
    <message>
        <source>&amp;Record Images…</source>
        <translation>Enregistrer une &amp;série d'images…</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>Enregistrer l'image</translation>
    </message>
    <message>
        <source>As shown (*.png);;Raw values (*.tif *.tiff);;Raw values (*.pgm *.ppm);;Bytes (*.raw);;All files (*)</source>
        <translation>Comme affiché (*.png);;Valeurs brutes (*.tif *.tiff);;Valeurs brutes (*.pgm *.ppm);;Octets (*.raw);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The image was saved to %1.</source>
        <translation>L'image a été enregistrée dans %1.</translation>
    </message>
    <message>
        <source>Images recorded: %1 of %2</source>
        <translation>Images enregistrées : %1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>The recording ended after %n image(s). %1</source>
        <translation>
            <numerusform>L'enregistrement s'est arrêté après %n image. %1</numerusform>
            <numerusform>L'enregistrement s'est arrêté après %n images. %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were left out, since the disk was too slow.</source>
        <translation>
            <numerusform>%n image a été laissée de côté, car le disque était trop lent.</numerusform>
            <numerusform>%n images ont été laissées de côté, car le disque était trop lent.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were recorded to %1.</source>
        <translation>
            <numerusform>%n image a été enregistrée dans %1.</numerusform>
            <numerusform>%n images ont été enregistrées dans %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImageView</name>
    <message>
        <source>Camera image</source>
        <translation>Image de la caméra</translation>
    </message>
    <message>
        <source>An image of %1 × %2 pixels cannot be shown.</source>
        <translation>Une image de %1 × %2 pixels ne peut pas être affichée.</translation>
    </message>
    <message>
        <source>The pixel format %1 cannot be shown. Its bytes can be saved.</source>
        <translation>Le format de pixel %1 ne peut pas être affiché. Ses octets peuvent être enregistrés.</translation>
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
        <translation>Éclaircit les parties sombres de ce qui est affiché</translation>
    </message>
    <message>
        <source>Blac&amp;k</source>
        <translation>&amp;Noir</translation>
    </message>
    <message>
        <source>The share of the largest value that is shown black</source>
        <translation>La part de la valeur maximale qui est affichée en noir</translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation>&amp;Blanc</translation>
    </message>
    <message>
        <source>The share of the largest value that is shown white</source>
        <translation>La part de la valeur maximale qui est affichée en blanc</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Shows values as they are: gamma and contrast change nothing of the camera</source>
        <translation>Affiche les valeurs telles qu'elles sont : le gamma et le contraste ne modifient rien dans la caméra</translation>
    </message>
</context>
<context>
    <name>ProfileView</name>
    <message>
        <source>Line profile</source>
        <translation>Profil de ligne</translation>
    </message>
    <message>
        <source>The raw values along the drawn line</source>
        <translation>Les valeurs brutes le long de la ligne tracée</translation>
    </message>
</context>
<context>
    <name>RecordDialog</name>
    <message>
        <source>Record Images</source>
        <translation>Enregistrer une série d'images</translation>
    </message>
    <message>
        <source>The images get a new folder in this one; nothing is overwritten</source>
        <translation>Les images sont placées dans un nouveau dossier à l'intérieur de celui-ci ; rien n'est écrasé</translation>
    </message>
    <message>
        <source>TIFF, raw values</source>
        <translation>TIFF, valeurs brutes</translation>
    </message>
    <message>
        <source>PGM or PPM, raw values</source>
        <translation>PGM ou PPM, valeurs brutes</translation>
    </message>
    <message>
        <source>PNG, as shown with 8 bits</source>
        <translation>PNG, comme affiché, sur 8 bits</translation>
    </message>
    <message>
        <source>Bytes as they came</source>
        <translation>Octets tels qu'ils sont arrivés</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Parcourir…</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Images:</source>
        <translation>&amp;Images :</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Dossier :</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>&amp;Type :</translation>
    </message>
    <message>
        <source>Folder for Images</source>
        <translation>Dossier pour les images</translation>
    </message>
</context>
<context>
    <name>RegionOfInterest</name>
    <message>
        <source>region of interest</source>
        <translation>région d'intérêt</translation>
    </message>
    <message>
        <source>The camera did not take the whole region. %1</source>
        <translation>La caméra n'a pas accepté toute la région. %1</translation>
    </message>
</context>
<context>
    <name>StreamControl</name>
    <message>
        <source>%1 frames/s, %2 MB/s, %3 complete, %4 incomplete, %5 dropped</source>
        <translation>%1 images/s, %2 Mo/s, %3 complètes, %4 incomplètes, %5 abandonnées</translation>
    </message>
</context>
</TS>
