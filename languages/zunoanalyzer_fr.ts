<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Channel</name>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>This recording holds no speed.</source>
        <translation>Cet enregistrement ne contient pas de vitesse.</translation>
    </message>
    <message>
        <source>Lean angle, left below 0</source>
        <translation>Angle d&apos;inclinaison, gauche sous 0</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>This recording holds no lean angle.</source>
        <translation>Cet enregistrement ne contient pas d&apos;angle d&apos;inclinaison.</translation>
    </message>
    <message>
        <source>Acceleration, braking below 0</source>
        <translation>Accélération, freinage sous 0</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>This recording holds no acceleration.</source>
        <translation>Cet enregistrement ne contient pas d&apos;accélération.</translation>
    </message>
    <message>
        <source>Front suspension, mean and range</source>
        <translation>Suspension avant, moyenne et plage</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>This recording holds no front suspension.</source>
        <translation>Cet enregistrement ne contient pas de mesures de la suspension avant.</translation>
    </message>
    <message>
        <source>Rear suspension, mean and range</source>
        <translation>Suspension arrière, moyenne et plage</translation>
    </message>
    <message>
        <source>This recording holds no rear suspension.</source>
        <translation>Cet enregistrement ne contient pas de mesures de la suspension arrière.</translation>
    </message>
    <message>
        <source>Time gap, behind above 0</source>
        <translation>Écart de temps, retard au-dessus de 0</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>s since 1970</source>
        <translation>s depuis 1970</translation>
    </message>
    <message>
        <source>ms since 1970</source>
        <translation>ms depuis 1970</translation>
    </message>
    <message>
        <source>knots</source>
        <translation>nœuds</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>inconnue</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>minutes</translation>
    </message>
    <message>
        <source>°, west positive</source>
        <translation>°, ouest positif</translation>
    </message>
    <message>
        <source>minutes, west positive</source>
        <translation>minutes, ouest positif</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Seconde</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>North or south</source>
        <translation>Nord ou sud</translation>
    </message>
    <message>
        <source>East or west</source>
        <translation>Est ou ouest</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Cap</translation>
    </message>
    <message>
        <source>Longitudinal acceleration</source>
        <translation>Accélération longitudinale</translation>
    </message>
    <message>
        <source>Lateral acceleration</source>
        <translation>Accélération latérale</translation>
    </message>
    <message>
        <source>Acceleration, first axis</source>
        <translation>Accélération, premier axe</translation>
    </message>
    <message>
        <source>Acceleration, second axis</source>
        <translation>Accélération, deuxième axe</translation>
    </message>
    <message>
        <source>Acceleration, third axis</source>
        <translation>Accélération, troisième axe</translation>
    </message>
    <message>
        <source>Lean angle</source>
        <translation>Angle d&apos;inclinaison</translation>
    </message>
    <message>
        <source>Front suspension</source>
        <translation>Suspension avant</translation>
    </message>
    <message>
        <source>Rear suspension</source>
        <translation>Suspension arrière</translation>
    </message>
    <message>
        <source>New position (1 or 0)</source>
        <translation>Nouvelle position (1 ou 0)</translation>
    </message>
    <message>
        <source>Lap number</source>
        <translation>Numéro du tour</translation>
    </message>
    <message>
        <source>Positions a second</source>
        <translation>Positions par seconde</translation>
    </message>
</context>
<context>
    <name>Deletion</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 autres</translation>
    </message>
    <message>
        <source>Recordings: %1</source>
        <translation>Enregistrements&#xa0;: %1</translation>
    </message>
    <message>
        <source>other files: %1</source>
        <translation>autres fichiers&#xa0;: %1</translation>
    </message>
    <message>
        <source>hidden files: %1</source>
        <translation>fichiers cachés&#xa0;: %1</translation>
    </message>
    <message>
        <source>This stays, as the logger named it: %1</source>
        <translation>Ceci reste, car le boîtier l&apos;a nommé ainsi&#xa0;: %1</translation>
    </message>
    <message>
        <source>This stays, as it is not in your library: %1</source>
        <translation>Ceci reste, car ce n&apos;est pas dans votre bibliothèque&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>DemoSessions</name>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;a pas pu être écrit&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>there is no position in it</source>
        <translation>il ne contient aucune position</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop grand</translation>
    </message>
    <message>
        <source>its points have no times</source>
        <translation>ses points n&apos;ont pas d&apos;heure</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>there is no track in it</source>
        <translation>il ne contient aucune trace</translation>
    </message>
    <message>
        <source>no sentence has a time and a position</source>
        <translation>aucune phrase n&apos;a d&apos;heure et de position</translation>
    </message>
    <message>
        <source>the archive is damaged</source>
        <translation>l&apos;archive est endommagée</translation>
    </message>
    <message>
        <source>there is no row of a trace</source>
        <translation>il n&apos;y a aucune ligne de trace</translation>
    </message>
    <message>
        <source>no row can be read; the first is line %1</source>
        <translation>aucune ligne ne peut être lue&#xa0;; la première est la ligne %1</translation>
    </message>
    <message>
        <source>there is no row below [data]</source>
        <translation>il n&apos;y a aucune ligne sous [data]</translation>
    </message>
    <message>
        <source>there is no table with columns for time, latitude and longitude</source>
        <translation>il n&apos;y a pas de tableau avec des colonnes d&apos;heure, de latitude et de longitude</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>ne peut pas être lu</translation>
    </message>
    <message>
        <source>is of no kind that can be read</source>
        <translation>n&apos;est d&apos;aucun type lisible</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>le dossier ne peut pas être créé</translation>
    </message>
    <message>
        <source>there is not a second of a ride in it</source>
        <translation>il ne contient pas une seconde de roulage</translation>
    </message>
    <message>
        <source>%1 Hz: lap times may be off by %2 s</source>
        <translation>%1 Hz&#xa0;: les temps au tour peuvent être faux de %2 s</translation>
    </message>
    <message>
        <source>%1 damaged lines left out, the first is line %2</source>
        <translation>%1 lignes endommagées omises, la première est la ligne %2</translation>
    </message>
    <message>
        <source>%1 impossible positions left out</source>
        <translation>%1 positions impossibles omises</translation>
    </message>
    <message>
        <source>%1 gaps without a position</source>
        <translation>%1 lacunes sans position</translation>
    </message>
    <message>
        <source>no speed: computed from positions</source>
        <translation>pas de vitesse&#xa0;: calculée à partir des positions</translation>
    </message>
    <message>
        <source>no date: that of the file is taken</source>
        <translation>pas de date&#xa0;: celle du fichier est prise</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>The manual is not there; it belongs to %1</source>
        <translation>Le manuel est introuvable&#xa0;; sa place est dans %1</translation>
    </message>
    <message>
        <source>No program opens the manual: %1</source>
        <translation>Aucun programme n&apos;ouvre le manuel&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>IdealTimeSearch</name>
    <message>
        <source>it has been removed</source>
        <translation>elle a été supprimée</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>session: reason</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>no map is known for the place where it was recorded</source>
        <translation>aucune carte n&apos;est connue pour le lieu de son enregistrement</translation>
    </message>
    <message>
        <source>it has no laps on the map &quot;%1&quot;</source>
        <translation>elle ne contient aucun tour sur la carte «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1: it was ridden on &quot;%2&quot;</source>
        <translation>%1&#xa0;: elle a été roulée sur «&#xa0;%2&#xa0;»</translation>
    </message>
</context>
<context>
    <name>ImportResult</name>
    <message>
        <source>Imported: %1</source>
        <translation>Importées&#xa0;: %1</translation>
    </message>
    <message>
        <source>already there: %1</source>
        <translation>déjà présentes&#xa0;: %1</translation>
    </message>
    <message>
        <source>no session files: %1</source>
        <translation>fichiers non reconnus&#xa0;: %1</translation>
    </message>
    <message>
        <source>could not be copied: %1</source>
        <translation>copie impossible&#xa0;: %1</translation>
    </message>
    <message>
        <source>Import cancelled. %1</source>
        <translation>Importation annulée. %1</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>No session files:</source>
        <translation>Fichiers non reconnus&#xa0;:</translation>
    </message>
    <message>
        <source>Could not be copied:</source>
        <translation>N&apos;ont pas pu être copiés&#xa0;:</translation>
    </message>
    <message>
        <source>under another name: %1</source>
        <translation>sous un autre nom&#xa0;: %1</translation>
    </message>
    <message>
        <source>Under another name, as another session has theirs:</source>
        <translation>Sous un autre nom, car une autre session porte le leur&#xa0;:</translation>
    </message>
</context>
<context>
    <name>LapScene</name>
    <message>
        <source>gaining</source>
        <translation>gain</translation>
    </message>
    <message>
        <source>losing %1 s / 100 m</source>
        <translation>perte %1 s / 100 m</translation>
    </message>
    <message>
        <source>braking</source>
        <translation>freinage</translation>
    </message>
    <message>
        <source>accelerating</source>
        <translation>accélération</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>reference, lap %1</source>
        <translation>référence, tour %1</translation>
    </message>
    <message>
        <source>brakes</source>
        <translation>freine</translation>
    </message>
    <message>
        <source>on the gas</source>
        <translation>gaz</translation>
    </message>
    <message>
        <source>Offline map</source>
        <translation>Carte hors ligne</translation>
    </message>
    <message>
        <source>first sample</source>
        <translation>premier point</translation>
    </message>
    <message>
        <source>last sample</source>
        <translation>dernier point</translation>
    </message>
</context>
<context>
    <name>LibraryFolder</name>
    <message>
        <source>As soon as it is back, your sessions are shown again.</source>
        <translation>Dès qu&apos;il est de retour, vos sessions s&apos;affichent à nouveau.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the folder of your sessions: that takes the whole path of a folder of its own.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être le dossier de vos sessions&#xa0;: il faut le chemin complet d&apos;un dossier à part.</translation>
    </message>
    <message>
        <source>The folder of your sessions is not there any more: it was moved, or its drive was taken out.

%1</source>
        <translation>Le dossier de vos sessions n&apos;est plus là&#xa0;: il a été déplacé, ou son disque a été retiré.

%1</translation>
    </message>
    <message>
        <source>There is nothing left in the folder of your sessions: it was emptied, or its drive was taken out.

%1</source>
        <translation>Il n&apos;y a plus rien dans le dossier de vos sessions&#xa0;: il a été vidé, ou son disque a été retiré.

%1</translation>
    </message>
</context>
<context>
    <name>MapPage</name>
    <message>
        <source>braking</source>
        <translation>freinage</translation>
    </message>
    <message>
        <source>accelerating</source>
        <translation>accélération</translation>
    </message>
    <message>
        <source>first lap</source>
        <translation>premier tour</translation>
    </message>
    <message>
        <source>second lap</source>
        <translation>second tour</translation>
    </message>
    <message>
        <source>Loading the map...</source>
        <translation>Chargement de la carte...</translation>
    </message>
    <message>
        <source>Offline map: there is no key for the satellite map</source>
        <translation>Carte hors ligne&#xa0;: aucune clé pour la carte satellite</translation>
    </message>
    <message>
        <source>Offline map: the satellite map cannot be reached</source>
        <translation>Carte hors ligne&#xa0;: la carte satellite est inaccessible</translation>
    </message>
    <message>
        <source>Offline map: the satellite map does not answer</source>
        <translation>Carte hors ligne&#xa0;: la carte satellite ne répond pas</translation>
    </message>
    <message>
        <source>Offline map: the satellite map refuses the key</source>
        <translation>Carte hors ligne&#xa0;: la carte satellite refuse la clé</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>On the sign of the start/finish line.</extracomment>
        <translation>Départ</translation>
    </message>
</context>
<context>
    <name>OutlineChoice</name>
    <message>
        <source>As it is</source>
        <translation>Tel quel</translation>
    </message>
</context>
<context>
    <name>SessionFile</name>
    <message>
        <source>cannot be read</source>
        <translation>ne peut pas être lu</translation>
    </message>
    <message>
        <source>is no session file</source>
        <translation>n&apos;est pas un fichier de session</translation>
    </message>
    <message>
        <source>has a format that is too old</source>
        <translation>est d&apos;un format trop ancien</translation>
    </message>
    <message>
        <source>is too large: a session has 1 GB and 20 million samples at most</source>
        <translation>est trop grand&#xa0;: une session a 1 Go et 20 millions de points au plus</translation>
    </message>
</context>
<context>
    <name>SessionSummary</name>
    <message>
        <source>1 sample without GPS</source>
        <translation>1 point sans GPS</translation>
    </message>
    <message>
        <source>%1 samples without GPS</source>
        <translation>%1 points sans GPS</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; has no start point, so laps cannot be cut.

Choose another map with &quot;Maps&quot; (Ctrl+M).</source>
        <translation>La carte «&#xa0;%1&#xa0;» n&apos;a pas de point de départ&#xa0;: les tours ne peuvent pas être découpés.

Choisissez une autre carte avec «&#xa0;Cartes&#xa0;» (Ctrl+M).</translation>
    </message>
    <message>
        <source>This session never passes the start/finish line of the map &quot;%1&quot;.

If it was ridden on another circuit, choose its map with &quot;Maps&quot; (Ctrl+M).</source>
        <translation>Cette session ne franchit jamais la ligne de départ/arrivée de la carte «&#xa0;%1&#xa0;».

Si elle a été roulée sur un autre circuit, choisissez la carte de ce circuit avec «&#xa0;Cartes&#xa0;» (Ctrl+M).</translation>
    </message>
    <message>
        <source>Ideal Time : %1</source>
        <translation>Temps idéal&#xa0;: %1</translation>
    </message>
    <message>
        <source>Traveled distance : %1 m</source>
        <translation>Distance parcourue&#xa0;: %1 m</translation>
    </message>
    <message>
        <source>Infos of first lap selected : Map : %1 --- Session : %2 --- Lap num : %3 --- Lap time : %4 --- max speed : %5 km/h</source>
        <translation>Infos du premier tour choisi&#xa0;: Carte&#xa0;: %1 --- Session&#xa0;: %2 --- Tour n°&#xa0;: %3 --- Temps&#xa0;: %4 --- Vitesse max.&#xa0;: %5 km/h</translation>
    </message>
    <message>
        <source>No map is known for the place where this session was recorded, so it cannot be cut into laps.

Make a new map from it, choose a map with &quot;Maps&quot; (Ctrl+M), or copy the circuit&apos;s map file to
%1</source>
        <translation>Aucune carte n&apos;est connue pour le lieu où cette session a été enregistrée&#xa0;: elle ne peut pas être découpée en tours.

Faites-en une nouvelle carte, choisissez une carte avec «&#xa0;Cartes&#xa0;» (Ctrl+M) ou copiez le fichier de carte du circuit dans
%1</translation>
    </message>
    <message>
        <source>There is not enough memory to show this session.</source>
        <translation>Il n&apos;y a pas assez de mémoire pour afficher cette session.</translation>
    </message>
    <message>
        <source>Traveled distance : %1</source>
        <translation>Distance parcourue&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>TimePlace</name>
    <message>
        <source>Start/finish</source>
        <translation>Départ/arrivée</translation>
    </message>
    <message>
        <source>Corner %1</source>
        <translation>Virage %1</translation>
    </message>
    <message>
        <source>Corners %1</source>
        <translation>Virages %1</translation>
    </message>
    <message>
        <source>right</source>
        <translation>droite</translation>
    </message>
    <message>
        <source>left</source>
        <translation>gauche</translation>
    </message>
    <message>
        <source>%1 seconds lost</source>
        <translation>%1 secondes perdues</translation>
    </message>
    <message>
        <source>%1 seconds won</source>
        <translation>%1 secondes gagnées</translation>
    </message>
</context>
<context>
    <name>zuno::AboutWidget</name>
    <message>
        <source>About ZUNO Analyzer</source>
        <translation>À propos de ZUNO Analyzer</translation>
    </message>
    <message>
        <source>ZUNO Analyzer</source>
        <translation>ZUNO Analyzer</translation>
    </message>
    <message>
        <source>Version 1.5.0.0</source>
        <translation>Version 1.5.0.0</translation>
    </message>
    <message>
        <source>Web site :</source>
        <translation>Site web&#xa0;:</translation>
    </message>
    <message>
        <source>Email :</source>
        <translation>E-mail&#xa0;:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>zuno::AcquisitionLibrary</name>
    <message>
        <source>A name in your library could not be read; it is &quot;%1&quot; now.</source>
        <translation>Un nom de votre bibliothèque était illisible&#xa0;; c&apos;est maintenant «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>zuno::AppearanceSettings</name>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unités</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Metres</source>
        <translation>Mètres</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Pieds</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sessions</translation>
    </message>
    <message>
        <source>Choose the folder of your sessions</source>
        <translation>Choisir le dossier de vos sessions</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Choisir...</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Cartes</translation>
    </message>
    <message>
        <source>Choose the folder of your maps</source>
        <translation>Choisir le dossier de vos cartes</translation>
    </message>
    <message>
        <source>Folder of your sessions</source>
        <translation>Dossier de vos sessions</translation>
    </message>
    <message>
        <source>Folder of your maps</source>
        <translation>Dossier de vos cartes</translation>
    </message>
</context>
<context>
    <name>zuno::AxisStrip</name>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 s</translation>
    </message>
</context>
<context>
    <name>zuno::Cause</name>
    <message>
        <source>arrives %1 km/h slower</source>
        <translation>arrive %1 km/h plus lentement</translation>
    </message>
    <message>
        <source>brakes %1 m earlier</source>
        <translation>freine %1 m plus tôt</translation>
    </message>
    <message>
        <source>%1 km/h slower into the corner</source>
        <translation>%1 km/h plus lent à l&apos;entrée du virage</translation>
    </message>
    <message>
        <source>%1 km/h slower at the slowest point</source>
        <translation>%1 km/h plus lent au point le plus lent</translation>
    </message>
    <message>
        <source>%1 km/h slower at the exit, on the gas %2 m later</source>
        <translation>%1 km/h plus lent à la sortie, gaz %2 m plus tard</translation>
    </message>
    <message>
        <source>%1 km/h slower at the exit</source>
        <translation>%1 km/h plus lent à la sortie</translation>
    </message>
    <message>
        <source>up to %1 km/h slower before the corner</source>
        <translation>jusqu&apos;à %1 km/h plus lent avant le virage</translation>
    </message>
    <message>
        <source>up to %1 km/h slower in the corner</source>
        <translation>jusqu&apos;à %1 km/h plus lent dans le virage</translation>
    </message>
    <message>
        <source>up to %1 km/h slower after the corner</source>
        <translation>jusqu&apos;à %1 km/h plus lent après le virage</translation>
    </message>
    <message>
        <source>corner %1: %2</source>
        <translation>virage %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>zuno::ChartHead</name>
    <message>
        <source>Lap %1</source>
        <translation>Tour %1</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Écart</translation>
    </message>
    <message>
        <source>Lap %1 was not here</source>
        <translation>Le tour %1 n&apos;est pas passé ici</translation>
    </message>
    <message>
        <source>Delay on the lap %1</source>
        <translation>Retard sur le tour %1</translation>
    </message>
    <message>
        <source>Ahead on the lap %1 (%2 - %3)</source>
        <translation>Avance sur le tour %1 (%2 - %3)</translation>
    </message>
</context>
<context>
    <name>zuno::CheckableComboBox</name>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(vide)</translation>
    </message>
</context>
<context>
    <name>zuno::ColumnDialog</name>
    <message>
        <source>Columns of %1</source>
        <translation>Colonnes de %1</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Grandeur</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>non utilisée</translation>
    </message>
    <message>
        <source>Time, latitude and longitude are needed.</source>
        <translation>Il faut le temps, la latitude et la longitude.</translation>
    </message>
    <message>
        <source>These columns give no ride of a second.</source>
        <translation>Ces colonnes ne donnent pas une seconde de roulage.</translation>
    </message>
    <message>
        <source>%1 s of a ride from the begin of the file; lines that cannot be read: %2</source>
        <translation>%1 s de roulage dès le début du fichier&#xa0;; lignes illisibles&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>zuno::Comparing</name>
    <message>
        <source>Compare with this lap</source>
        <translation>Comparer à ce tour</translation>
    </message>
    <message>
        <source>Choose the reference</source>
        <translation>Choisir la référence</translation>
    </message>
    <message>
        <source>No comparison</source>
        <translation>Pas de comparaison</translation>
    </message>
    <message>
        <source>Swap lap and reference</source>
        <translation>Échanger tour et référence</translation>
    </message>
    <message>
        <source>Largest loss</source>
        <translation>Plus grande perte</translation>
    </message>
    <message>
        <source>Second largest loss</source>
        <translation>Deuxième plus grande perte</translation>
    </message>
    <message>
        <source>Third largest loss</source>
        <translation>Troisième plus grande perte</translation>
    </message>
    <message>
        <source>Corner before</source>
        <translation>Virage précédent</translation>
    </message>
    <message>
        <source>Next corner</source>
        <translation>Virage suivant</translation>
    </message>
    <message>
        <source>The whole lap</source>
        <translation>Le tour entier</translation>
    </message>
    <message>
        <source>The name could not be kept: %1</source>
        <translation>Le nom n&apos;a pas pu être conservé&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>zuno::Comparison</name>
    <message>
        <source>New best lap here: %1, lap %2 of %3</source>
        <translation>Nouveau meilleur tour ici&#xa0;: %1, tour %2 de %3</translation>
    </message>
    <message>
        <source>This lap does not go from line to line, so its corners cannot be compared.</source>
        <translation>Ce tour ne va pas d&apos;un passage sur la ligne au suivant&#xa0;: ses virages ne peuvent pas être comparés.</translation>
    </message>
    <message>
        <source>Choose a reference to see where the time is.</source>
        <translation>Choisissez une référence pour voir où est le temps.</translation>
    </message>
    <message>
        <source>Looking for the best lap...</source>
        <translation>Recherche du meilleur tour...</translation>
    </message>
    <message>
        <source>No corners are known here, so there is nothing to compare them by.</source>
        <translation>Aucun virage n&apos;est connu ici&#xa0;: il n&apos;y a rien à comparer.</translation>
    </message>
    <message>
        <source>There is no lap from line to line.</source>
        <translation>Il n&apos;y a aucun tour d&apos;un passage sur la ligne au suivant.</translation>
    </message>
    <message>
        <source>The map&apos;s outline is too rough for its corners.</source>
        <translation>Le tracé de la carte est trop grossier pour ses virages.</translation>
    </message>
    <message>
        <source>The receiver measured about once a second; that is too seldom for corners.</source>
        <translation>Le récepteur a mesuré environ une fois par seconde&#xa0;; c&apos;est trop peu pour des virages.</translation>
    </message>
</context>
<context>
    <name>zuno::ComparisonBar</name>
    <message>
        <source>against</source>
        <translation>contre</translation>
    </message>
    <message>
        <source>Chooses what every lap is compared with (R)</source>
        <translation>Choisit à quoi chaque tour est comparé (R)</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>Draws another lap as well (O in the table)</source>
        <translation>Trace un tour de plus (O dans le tableau)</translation>
    </message>
    <message>
        <source>+ Lap</source>
        <translation>+ Tour</translation>
    </message>
    <message>
        <source>Makes the reference the selected lap, and the selected lap the reference (X)</source>
        <translation>Fait de la référence le tour sélectionné, et du tour sélectionné la référence (X)</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Échanger</translation>
    </message>
    <message>
        <source>No comparison (Shift+R)</source>
        <translation>Pas de comparaison (Maj+R)</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Lap %1</source>
        <translation>Tour %1</translation>
    </message>
    <message>
        <source>Nothing to compare yet: there are no laps.</source>
        <translation>Rien à comparer encore&#xa0;: il n&apos;y a pas de tours.</translation>
    </message>
    <message>
        <source>Looking for the best lap...</source>
        <translation>Recherche du meilleur tour...</translation>
    </message>
    <message>
        <source>Best of session</source>
        <translation>Meilleur de la session</translation>
    </message>
    <message>
        <source>Best ever here</source>
        <translation>Meilleur de tous ici</translation>
    </message>
    <message>
        <source>Best ever here, same motorcycle</source>
        <translation>Meilleur de tous ici, même moto</translation>
    </message>
    <message>
        <source>chosen by hand</source>
        <translation>choisi à la main</translation>
    </message>
    <message>
        <source>No reference on this circuit yet</source>
        <translation>Pas encore de référence sur ce circuit</translation>
    </message>
    <message>
        <source>reference</source>
        <translation>référence</translation>
    </message>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>as fast</source>
        <translation>aussi vite</translation>
    </message>
    <message>
        <source>slower</source>
        <translation>plus lent</translation>
    </message>
    <message>
        <source>faster</source>
        <translation>plus rapide</translation>
    </message>
    <message>
        <source>Takes lap %1 away</source>
        <translation>Retire le tour %1</translation>
    </message>
    <message>
        <source>Six laps are drawn at most; take one away first.</source>
        <translation>Six tours sont tracés au plus&#xa0;; retirez-en d&apos;abord un.</translation>
    </message>
</context>
<context>
    <name>zuno::ConfigurationWidget</name>
    <message>
        <source>ZUNO Analyzer settings</source>
        <translation>Paramètres de ZUNO Analyzer</translation>
    </message>
    <message>
        <source>Display colunms</source>
        <translation>Colonnes à afficher</translation>
    </message>
    <message>
        <source>Lap type</source>
        <translation>Type de tour</translation>
    </message>
    <message>
        <source>Cumulate time</source>
        <translation>Temps cumulé</translation>
    </message>
    <message>
        <source>Max speed</source>
        <translation>Vitesse max.</translation>
    </message>
    <message>
        <source>Min Speed</source>
        <translation>Vitesse min.</translation>
    </message>
    <message>
        <source>Angle left</source>
        <translation>Angle gauche</translation>
    </message>
    <message>
        <source>Angle right</source>
        <translation>Angle droit</translation>
    </message>
    <message>
        <source>Accel</source>
        <translation>Accél.</translation>
    </message>
    <message>
        <source>Decel</source>
        <translation>Décél.</translation>
    </message>
    <message>
        <source>Min front suspension</source>
        <translation>Suspension avant min.</translation>
    </message>
    <message>
        <source>Max front suspension</source>
        <translation>Suspension avant max.</translation>
    </message>
    <message>
        <source>Min rear suspension</source>
        <translation>Suspension arrière min.</translation>
    </message>
    <message>
        <source>Max rear suspension</source>
        <translation>Suspension arrière max.</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Secteurs</translation>
    </message>
    <message>
        <source>Display on the map</source>
        <translation>Affichage sur la carte</translation>
    </message>
    <message>
        <source>Show local min/max speed</source>
        <translation>Vitesses min./max. locales</translation>
    </message>
    <message>
        <source>Show sectors points</source>
        <translation>Points des secteurs</translation>
    </message>
    <message>
        <source>Use gradient lap comparison</source>
        <translation>Dégradé pour comparer les tours</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>New releases</source>
        <translation>Nouvelles versions</translation>
    </message>
    <message>
        <source>Look for a new release at every start</source>
        <translation>Chercher une nouvelle version à chaque démarrage</translation>
    </message>
</context>
<context>
    <name>zuno::CornerNames</name>
    <message>
        <source>The file of corners beside the map is damaged, or a later program wrote it; it is left alone.</source>
        <translation>Le fichier des virages à côté de la carte est endommagé, ou d&apos;une version plus récente&#xa0;; il reste tel quel.</translation>
    </message>
</context>
<context>
    <name>zuno::CornerStrip</name>
    <message>
        <source>Corners of the lap</source>
        <translation>Virages du tour</translation>
    </message>
    <message>
        <source>Corner %1</source>
        <translation>Virage %1</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Ligne droite</translation>
    </message>
    <message>
        <source>%1: %2 s</source>
        <comment>a corner and its time</comment>
        <translation>%1&#xa0;: %2 s</translation>
    </message>
    <message>
        <source>%1: %2 s, %3 s</source>
        <comment>a corner, its time, the difference to the other lap</comment>
        <translation>%1&#xa0;: %2 s, %3 s</translation>
    </message>
</context>
<context>
    <name>zuno::CornerTable</name>
    <message>
        <source>Corners</source>
        <translation>Virages</translation>
    </message>
    <message>
        <source>A click shows the corner in charts and map, F2 gives it a name</source>
        <translation>Un clic montre le virage dans les graphiques et sur la carte, F2 lui donne un nom</translation>
    </message>
    <message>
        <source>Name of the corner</source>
        <translation>Nom du virage</translation>
    </message>
    <message>
        <source>Corner %1:</source>
        <translation>Virage %1&#xa0;:</translation>
    </message>
</context>
<context>
    <name>zuno::CornerTableModel</name>
    <message>
        <source>right</source>
        <translation>droite</translation>
    </message>
    <message>
        <source>left</source>
        <translation>gauche</translation>
    </message>
    <message>
        <source>T%1</source>
        <comment>a corner&apos;s number</comment>
        <translation>T%1</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Virage</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Diff.</source>
        <translation>Écart</translation>
    </message>
    <message>
        <source>Brakes at</source>
        <translation>Freine à</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Lean</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>On the gas</source>
        <translation>Gaz</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Dispersion</translation>
    </message>
    <message>
        <source>Spread, %1 laps</source>
        <translation>Dispersion, %1 tours</translation>
    </message>
</context>
<context>
    <name>zuno::CornersPane</name>
    <message>
        <source>Join</source>
        <translation>Réunir</translation>
    </message>
    <message>
        <source>Makes one corner of the selected one and the next</source>
        <translation>Fait un seul virage du virage sélectionné et du suivant</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Diviser</translation>
    </message>
    <message>
        <source>Makes two corners of the selected one</source>
        <translation>Fait deux virages du virage sélectionné</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>The selected one counts as no corner</source>
        <translation>Le virage sélectionné ne compte pas comme virage</translation>
    </message>
    <message>
        <source>As found</source>
        <translation>Comme trouvés</translation>
    </message>
    <message>
        <source>Takes back all changes of the corners</source>
        <translation>Annule toutes les modifications des virages</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Virage</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>From the line</source>
        <translation>Depuis la ligne</translation>
    </message>
    <message>
        <source>Turns</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>A double click on a corner gives it a name</source>
        <translation>Un double-clic sur un virage lui donne un nom</translation>
    </message>
    <message>
        <source>right</source>
        <translation>droite</translation>
    </message>
    <message>
        <source>left</source>
        <translation>gauche</translation>
    </message>
    <message>
        <source>%1°</source>
        <translation>%1°</translation>
    </message>
</context>
<context>
    <name>zuno::DownloadInProgress</name>
    <message>
        <source>Download ZUNO Analyzer update</source>
        <translation>Télécharger la mise à jour de ZUNO Analyzer</translation>
    </message>
    <message>
        <source>Downloading the new version...</source>
        <translation>Téléchargement de la nouvelle version...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>zuno::EmptyPage</name>
    <message>
        <source>There are no sessions yet.</source>
        <translation>Il n&apos;y a pas encore de sessions.</translation>
    </message>
    <message>
        <source>Drop the session files (.ra1) of your logger here, or a whole folder.</source>
        <translation>Déposez ici les fichiers de session (.ra1) de votre boîtier, ou un dossier entier.</translation>
    </message>
    <message>
        <source>Import (Ctrl+I)</source>
        <translation>Importer (Ctrl+I)</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importer...</translation>
    </message>
    <message>
        <source>Show the demo</source>
        <translation>Montrer la démo</translation>
    </message>
    <message>
        <source>The demo: invented sessions of three riders on three circuits. They can be taken away again with one click.</source>
        <translation>La démo&#xa0;: des sessions inventées de trois pilotes sur trois circuits. Un clic suffit pour les retirer.</translation>
    </message>
    <message>
        <source>1  Import a session      2  Its circuit is found, laps are cut      3  See where the time is</source>
        <translation>1  Importez une session      2  Son circuit est trouvé, les tours sont découpés      3  Voyez où est le temps</translation>
    </message>
    <message>
        <source>Files can also be copied to %1</source>
        <translation>Les fichiers peuvent aussi être copiés dans %1</translation>
    </message>
</context>
<context>
    <name>zuno::ExportDialogs</name>
    <message>
        <source>Export Session file</source>
        <translation>Exporter le fichier de session</translation>
    </message>
    <message>
        <source>RA1 files (.ra1);</source>
        <translation>Fichiers RA1 (.ra1);</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already; nothing was exported.</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà&#xa0;; rien n&apos;a été exporté.</translation>
    </message>
    <message>
        <source>Export Session Data file</source>
        <translation>Exporter les données de la session</translation>
    </message>
    <message>
        <source>CSV files (.csv);</source>
        <translation>Fichiers CSV (.csv);</translation>
    </message>
    <message>
        <source>the session&apos;s file has changed or is gone</source>
        <translation>le fichier de la session a changé ou disparu</translation>
    </message>
    <message>
        <source>Export Lap file</source>
        <translation>Exporter le tour</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;.</source>
        <translation>Exporté vers «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;a pas pu être écrit&#xa0;: %2</translation>
    </message>
    <message>
        <source>Export for other programs</source>
        <translation>Exporter pour d&apos;autres programmes</translation>
    </message>
    <message>
        <source>%1 sessions were exported to &quot;%2&quot;.</source>
        <translation>%1 sessions exportées vers «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>CSV with units (*.csv)</source>
        <translation>CSV avec unités (*.csv)</translation>
    </message>
</context>
<context>
    <name>zuno::IdealTimeDialog</name>
    <message>
        <source>Multi sessions ideal time</source>
        <translation>Temps idéal sur plusieurs sessions</translation>
    </message>
    <message>
        <source>%v / %m</source>
        <translation>%v / %m</translation>
    </message>
    <message>
        <source>Copy table</source>
        <translation>Copier le tableau</translation>
    </message>
    <message>
        <source>Enter or a double click shows the lap, Ctrl+C copies the table</source>
        <translation>Entrée ou un double-clic affiche le tour, Ctrl+C copie le tableau</translation>
    </message>
    <message>
        <source>Computing the ideal time...</source>
        <translation>Calcul du temps idéal...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Show this lap</source>
        <translation>Afficher ce tour</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Map : %1</source>
        <translation>Carte&#xa0;: %1</translation>
    </message>
    <message>
        <source>sessions : %1 of %2</source>
        <translation>sessions&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>None of these sessions can be cut into laps, so there is no ideal time.</source>
        <translation>Aucune de ces sessions ne peut être découpée en tours&#xa0;: il n&apos;y a pas de temps idéal.</translation>
    </message>
    <message>
        <source>These sessions have no valid lap that went through a section, so there is no ideal time.</source>
        <translation>Ces sessions n&apos;ont aucun tour valide qui traverse un secteur&#xa0;: il n&apos;y a pas de temps idéal.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation>Ignorées&#xa0;:</translation>
    </message>
</context>
<context>
    <name>zuno::IdealTimeModel</name>
    <message>
        <source>Section %1</source>
        <translation>Secteur %1</translation>
    </message>
    <message>
        <source>Ideal time</source>
        <translation>Temps idéal</translation>
    </message>
    <message>
        <source>Best lap</source>
        <translation>Meilleur tour</translation>
    </message>
    <message>
        <source>Best continuous lap</source>
        <translation>Meilleur tour continu</translation>
    </message>
    <message>
        <source>Best continuous lap, from the end of section %1</source>
        <translation>Meilleur tour continu, dès la fin du secteur %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>laps</comment>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>What the best lap lost in a section; what a lap lost on the ideal time (seconds)</source>
        <translation>Ce que le meilleur tour a perdu dans un secteur&#xa0;; ce qu&apos;un tour a perdu sur le temps idéal (secondes)</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Best time</source>
        <translation>Meilleur temps</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Pilote</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Tour</translation>
    </message>
    <message>
        <source>In best lap</source>
        <translation>Meill. tour</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Écart</translation>
    </message>
</context>
<context>
    <name>zuno::IdealTimeText</name>
    <message>
        <source>without section %1: no lap passed timing point %1 in its circle</source>
        <translation>sans la section %1&#xa0;: aucun tour n&apos;a passé le point %1 dans son cercle</translation>
    </message>
    <message>
        <source>without those of lap %1, the best, from section %2 on: it passed timing point %2 outside of its circle</source>
        <translation>sans celles du tour %1, le meilleur, à partir de la section %2&#xa0;: il a passé le point %2 hors de son cercle</translation>
    </message>
</context>
<context>
    <name>zuno::ImportDialog</name>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Sessions are made of these recordings; the files themselves stay as they are.</source>
        <translation>Des sessions sont créées à partir de ces enregistrements&#xa0;; les fichiers eux-mêmes restent tels quels.</translation>
    </message>
    <message>
        <source>Columns...</source>
        <translation>Colonnes...</translation>
    </message>
    <message>
        <source>Says what the columns of the selected table hold</source>
        <translation>Indique ce que contiennent les colonnes du tableau sélectionné</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Lecture de %1</translation>
    </message>
    <message>
        <source>1 session will be imported.</source>
        <translation>1 session sera importée.</translation>
    </message>
    <message>
        <source>%1 sessions will be imported.</source>
        <translation>%1 sessions seront importées.</translation>
    </message>
</context>
<context>
    <name>zuno::ImportTable</name>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Circuit</source>
        <translation>Circuit</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Laps</source>
        <translation>Tours</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>no map of this circuit</source>
        <translation>pas de carte de ce circuit</translation>
    </message>
    <message>
        <source>was imported before, as &quot;%1&quot;</source>
        <translation>a déjà été importé, comme «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1; say what its columns are</source>
        <translation>%1&#xa0;; indiquez ce que sont ses colonnes</translation>
    </message>
</context>
<context>
    <name>zuno::InformationNotice</name>
    <message>
        <source>Put it back</source>
        <translation>Reprendre l&apos;autre</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Garder le mien</translation>
    </message>
</context>
<context>
    <name>zuno::InformationWriter</name>
    <message>
        <source>%1 was not changed: %2. Changes are kept until the program ends.</source>
        <translation>%1 n&apos;a pas été modifié&#xa0;: %2. Les modifications sont conservées jusqu&apos;à la fermeture du programme.</translation>
    </message>
    <message>
        <source>the file holds another recording now</source>
        <translation>le fichier contient maintenant un autre enregistrement</translation>
    </message>
    <message>
        <source>%1 was changed by another program meanwhile; its changes were kept.</source>
        <translation>%1 a été modifié entre-temps par un autre programme&#xa0;; ses modifications ont été conservées.</translation>
    </message>
    <message>
        <source>the file is write-protected</source>
        <translation>le fichier est protégé en écriture</translation>
    </message>
    <message>
        <source>the file is damaged, or ends too early</source>
        <translation>le fichier est endommagé ou tronqué</translation>
    </message>
    <message>
        <source>its format is not known</source>
        <translation>son format n&apos;est pas connu</translation>
    </message>
    <message>
        <source>%1 was changed by another program meanwhile. Where you both typed, your text stands; the page &quot;Session infos&quot; offers the other one.</source>
        <translation>%1 a été modifié entre-temps par un autre programme. Là où vous avez tapé tous deux, votre texte reste&#xa0;; la page «&#xa0;Infos de la session&#xa0;» propose l&apos;autre.</translation>
    </message>
    <message>
        <source>the file is not in your library</source>
        <translation>le fichier n&apos;est pas dans votre bibliothèque</translation>
    </message>
</context>
<context>
    <name>zuno::KeySheet</name>
    <message>
        <source>In the list of sessions</source>
        <translation>Dans la liste des sessions</translation>
    </message>
    <message>
        <source>In the laps table</source>
        <translation>Dans le tableau des tours</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>Partout</translation>
    </message>
    <message>
        <source>About ZUNO Analyzer</source>
        <translation>À propos de ZUNO Analyzer</translation>
    </message>
    <message>
        <source>In the charts</source>
        <translation>Dans les graphiques</translation>
    </message>
    <message>
        <source>Cursor to the sample before or after</source>
        <translation>Curseur au point précédent ou suivant</translation>
    </message>
    <message>
        <source>Cursor to the begin or end</source>
        <translation>Curseur au début ou à la fin</translation>
    </message>
    <message>
        <source>Zoom in or out around the cursor</source>
        <translation>Agrandir ou réduire autour du curseur</translation>
    </message>
    <message>
        <source>A page back or on</source>
        <translation>Une page en arrière ou en avant</translation>
    </message>
    <message>
        <source>The whole lap</source>
        <translation>Le tour entier</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>The biggest losses</source>
        <translation>Les plus grandes pertes</translation>
    </message>
    <message>
        <source>The corner before or after</source>
        <translation>Le virage précédent ou suivant</translation>
    </message>
    <message>
        <source>Over the distance or the time</source>
        <translation>Sur la distance ou le temps</translation>
    </message>
    <message>
        <source>Measure between two places</source>
        <translation>Mesurer entre deux endroits</translation>
    </message>
</context>
<context>
    <name>zuno::LapCharts</name>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Accel/Decel</source>
        <translation>Accél./Décél.</translation>
    </message>
    <message>
        <source>Front susp.</source>
        <translation>Susp. avant</translation>
    </message>
    <message>
        <source>Rear susp.</source>
        <translation>Susp. arrière</translation>
    </message>
    <message>
        <source>Compare positions</source>
        <translation>Comparer les positions</translation>
    </message>
    <message>
        <source>Compare time</source>
        <translation>Comparer le temps</translation>
    </message>
    <message>
        <source>Distance</source>
        <comment>the charts&apos; axis</comment>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Time</source>
        <comment>the charts&apos; axis</comment>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>the whole session</source>
        <translation>toute la session</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Mesurer</translation>
    </message>
    <message>
        <source>Measure between two places (M)</source>
        <translation>Mesurer entre deux endroits (M)</translation>
    </message>
    <message>
        <source>Whole lap</source>
        <translation>Tour entier</translation>
    </message>
    <message>
        <source>Show the whole lap (Esc)</source>
        <translation>Afficher le tour entier (Échap)</translation>
    </message>
    <message>
        <source>Previous corner (,)</source>
        <translation>Virage précédent (,)</translation>
    </message>
    <message>
        <source>Previous corner</source>
        <translation>Virage précédent</translation>
    </message>
    <message>
        <source>Next corner (.)</source>
        <translation>Virage suivant (.)</translation>
    </message>
    <message>
        <source>Next corner</source>
        <translation>Virage suivant</translation>
    </message>
    <message>
        <source>Whole session</source>
        <translation>Toute la session</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Virage</translation>
    </message>
    <message>
        <source>Corner %1</source>
        <translation>Virage %1</translation>
    </message>
</context>
<context>
    <name>zuno::LapChooser</name>
    <message>
        <source>Lap of another file</source>
        <translation>Tour d&apos;un autre fichier</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Pilote</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Lap %1</source>
        <translation>Tour %1</translation>
    </message>
    <message>
        <source>No lap of this circuit</source>
        <translation>Aucun tour de ce circuit</translation>
    </message>
</context>
<context>
    <name>zuno::LapFlag</name>
    <message>
        <source>from the pits</source>
        <translation>sort des stands</translation>
    </message>
    <message>
        <source>into the pits</source>
        <translation>rentre aux stands</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrêté</translation>
    </message>
    <message>
        <source>slow +%1 %</source>
        <translation>lent +%1 %</translation>
    </message>
    <message>
        <source>positions off</source>
        <translation>positions fausses</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>lacune</translation>
    </message>
    <message>
        <source>held up</source>
        <translation>gêné</translation>
    </message>
</context>
<context>
    <name>zuno::LapReason</name>
    <message>
        <source>held up</source>
        <translation>gêné</translation>
    </message>
    <message>
        <source>missed the line</source>
        <translation>ligne manquée</translation>
    </message>
    <message>
        <source>warm-up</source>
        <translation>tour de chauffe</translation>
    </message>
    <message>
        <source>other</source>
        <translation>autre</translation>
    </message>
</context>
<context>
    <name>zuno::LapsPane</name>
    <message>
        <source>Ideal time :</source>
        <translation>Temps idéal&#xa0;:</translation>
    </message>
    <message>
        <source>Traveled distance :</source>
        <translation>Distance parcourue&#xa0;:</translation>
    </message>
    <message>
        <source>New map from this session...</source>
        <translation>Nouvelle carte de cette session...</translation>
    </message>
    <message>
        <source>The best time of each section, and the lap that holds it</source>
        <translation>Le meilleur temps de chaque secteur et le tour qui le détient</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Best time</source>
        <translation>Meilleur temps</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Tour</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Choisir un autre dossier...</translation>
    </message>
    <message>
        <source>Laps</source>
        <translation>Tours</translation>
    </message>
    <message>
        <source>The laps of the session</source>
        <translation>Les tours de la session</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Virages</translation>
    </message>
    <message>
        <source>The corners of the circuit in the selected lap</source>
        <translation>Les virages du circuit dans le tour sélectionné</translation>
    </message>
</context>
<context>
    <name>zuno::LapsTableModel</name>
    <message>
        <source>Complete</source>
        <translation>Complet</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>Incomplet</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Tour</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Cumulated time</source>
        <translation>Temps cumulé</translation>
    </message>
    <message>
        <source>Lap time</source>
        <translation>Temps au tour</translation>
    </message>
    <message>
        <source>Max speed</source>
        <translation>Vit. max.</translation>
    </message>
    <message>
        <source>Min speed</source>
        <translation>Vit. min.</translation>
    </message>
    <message>
        <source>Left Angle</source>
        <translation>Angle gauche</translation>
    </message>
    <message>
        <source>Right Angle</source>
        <translation>Angle droit</translation>
    </message>
    <message>
        <source>Accel</source>
        <translation>Accél.</translation>
    </message>
    <message>
        <source>Decel</source>
        <translation>Décél.</translation>
    </message>
    <message>
        <source>Min front susp.</source>
        <translation>Susp. avant min.</translation>
    </message>
    <message>
        <source>Max front susp.</source>
        <translation>Susp. avant max.</translation>
    </message>
    <message>
        <source>Min rear susp.</source>
        <translation>Susp. arr. min.</translation>
    </message>
    <message>
        <source>Max rear susp.</source>
        <translation>Susp. arr. max.</translation>
    </message>
    <message>
        <source>Section %1</source>
        <translation>Secteur %1</translation>
    </message>
    <message>
        <source>Counted twice</source>
        <translation>Compté deux fois</translation>
    </message>
</context>
<context>
    <name>zuno::LapsView</name>
    <message>
        <source>V throws a lap out or takes it back, C compares, Ctrl+E exports; the menu key shows everything that can be done with a lap</source>
        <translation>V écarte un tour ou le reprend, C compare, Ctrl+E exporte&#xa0;; la touche Menu montre tout ce que l&apos;on peut faire d&apos;un tour</translation>
    </message>
    <message>
        <source>Reselect first lap</source>
        <translation>Choisir un autre premier tour</translation>
    </message>
    <message>
        <source>Export lap</source>
        <translation>Exporter le tour</translation>
    </message>
    <message>
        <source>Invalidate lap</source>
        <translation>Invalider le tour</translation>
    </message>
    <message>
        <source>Validate lap</source>
        <translation>Valider le tour</translation>
    </message>
    <message>
        <source>Compare to this lap</source>
        <translation>Comparer à ce tour</translation>
    </message>
    <message>
        <source>Compare this lap with...</source>
        <translation>Comparer ce tour avec...</translation>
    </message>
    <message>
        <source>This is the first lap itself; choose another one to compare it with.</source>
        <translation>C&apos;est le premier tour lui-même&#xa0;; choisissez-en un autre à comparer.</translation>
    </message>
    <message>
        <source>Draw no longer besides</source>
        <translation>Ne plus tracer en plus</translation>
    </message>
    <message>
        <source>Draw besides</source>
        <translation>Tracer en plus</translation>
    </message>
    <message>
        <source>Six laps are drawn at most; take one away first.</source>
        <translation>Six tours sont tracés au plus&#xa0;; retirez-en d&apos;abord un.</translation>
    </message>
</context>
<context>
    <name>zuno::LibraryPane</name>
    <message>
        <source>Demo sessions</source>
        <translation>Sessions de démo</translation>
    </message>
    <message>
        <source>Takes the demo sessions and their maps away</source>
        <translation>Retire les sessions de démo et leurs cartes</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
</context>
<context>
    <name>zuno::LibraryTree</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Do not use [^\/`~@#$%^&amp;*:?&quot;&lt;&gt;|] characters</source>
        <translation>N&apos;utilisez pas les caractères [^\/`~@#$%^&amp;*:?&quot;&lt;&gt;|]</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>Export Session</source>
        <translation>Exporter la session</translation>
    </message>
    <message>
        <source>Export Session Data (CSV)</source>
        <translation>Exporter les données de la session (CSV)</translation>
    </message>
    <message>
        <source>Compute multisession ideal time</source>
        <translation>Calculer le temps idéal sur plusieurs sessions</translation>
    </message>
    <message>
        <source>Enter displays a session, F2 renames, Del deletes</source>
        <translation>Entrée affiche une session, F2 renomme, Suppr supprime</translation>
    </message>
    <message>
        <source>Rename File</source>
        <translation>Renommer le fichier</translation>
    </message>
    <message>
        <source>New name :</source>
        <translation>Nouveau nom&#xa0;:</translation>
    </message>
    <message>
        <source>There is a &quot;%1&quot; already; nothing was renamed.</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà&#xa0;; rien n&apos;a été renommé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;a pas pu être renommé.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected files PERMANENTLY (not moved into the trash bin)?</source>
        <translation>Voulez-vous vraiment supprimer DÉFINITIVEMENT les fichiers sélectionnés (sans les mettre à la corbeille)&#xa0;?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;a pas pu être supprimé.</translation>
    </message>
    <message>
        <source>Create new folder</source>
        <translation>Créer un dossier</translation>
    </message>
    <message>
        <source>Folder name :</source>
        <translation>Nom du dossier&#xa0;:</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n&apos;a pas pu être créé.</translation>
    </message>
    <message>
        <source>Do you want to move this to the trash?</source>
        <translation>Mettre ceci à la corbeille&#xa0;?</translation>
    </message>
    <message>
        <source>There is no trash that takes this:</source>
        <translation>Aucune corbeille n&apos;accepte ceci&#xa0;:</translation>
    </message>
    <message>
        <source>Export for other programs</source>
        <translation>Exporter pour d&apos;autres programmes</translation>
    </message>
</context>
<context>
    <name>zuno::LineSwitch</name>
    <message>
        <source>Gain/loss</source>
        <translation>Gain/perte</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Lean</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Accel/Decel</source>
        <translation>Accél./Décél.</translation>
    </message>
    <message>
        <source>Colour the line by: %1 (L)</source>
        <translation>Colorer la ligne selon&#xa0;: %1 (L)</translation>
    </message>
    <message>
        <source>What the colours of the line tell (L)</source>
        <translation>Ce que disent les couleurs de la ligne (L)</translation>
    </message>
</context>
<context>
    <name>zuno::LossButton</name>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>The speeds do not confirm it</source>
        <translation>Les vitesses ne le confirment pas</translation>
    </message>
    <message>
        <source>Within 2 km/h everywhere</source>
        <translation>Moins de 2 km/h d&apos;écart partout</translation>
    </message>
</context>
<context>
    <name>zuno::MapCheckModel</name>
    <message>
        <source>Incomplete</source>
        <translation>Incomplet</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Tour</translation>
    </message>
    <message>
        <source>Lap time</source>
        <translation>Temps au tour</translation>
    </message>
    <message>
        <source>Section %1</source>
        <translation>Secteur %1</translation>
    </message>
</context>
<context>
    <name>zuno::MapCheckPane</name>
    <message>
        <source>Choose a session to see the laps that the map gives.</source>
        <translation>Choisissez une session pour voir les tours que donne la carte.</translation>
    </message>
    <message>
        <source>No complete lap. Length: %1</source>
        <translation>Aucun tour complet. Longueur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Complete laps: %1. Best: %2 (lap %3). Ideal: %4. Length: %5</source>
        <translation>Complets&#xa0;: %1. Meilleur&#xa0;: %2 (tour %3). Idéal&#xa0;: %4. Longueur&#xa0;: %5</translation>
    </message>
    <message>
        <source>No problems found.</source>
        <translation>Aucun problème trouvé.</translation>
    </message>
</context>
<context>
    <name>zuno::MapDraft</name>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» ne peut pas être créé.</translation>
    </message>
</context>
<context>
    <name>zuno::MapEdit</name>
    <message>
        <source>Move point</source>
        <translation>le déplacement du point</translation>
    </message>
    <message>
        <source>Add timing point</source>
        <translation>l&apos;ajout du point de chronométrage</translation>
    </message>
    <message>
        <source>Remove timing point</source>
        <translation>le retrait du point de chronométrage</translation>
    </message>
    <message>
        <source>Change gate size</source>
        <translation>le changement de taille des portes</translation>
    </message>
    <message>
        <source>Change outline</source>
        <translation>le changement de tracé</translation>
    </message>
    <message>
        <source>Take the gates of the file</source>
        <translation>la reprise des portes du fichier</translation>
    </message>
    <message>
        <source>Change corner</source>
        <translation>la modification du virage</translation>
    </message>
    <message>
        <source>Corners as found</source>
        <translation>le retour aux virages trouvés</translation>
    </message>
</context>
<context>
    <name>zuno::MapEditor</name>
    <message>
        <source>Map editor</source>
        <translation>Éditeur de carte</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Country :</source>
        <translation>Pays&#xa0;:</translation>
    </message>
    <message>
        <source>The folder below the maps folder; may be empty</source>
        <translation>Le sous-dossier du dossier des cartes&#xa0;; peut rester vide</translation>
    </message>
    <message>
        <source>Session :</source>
        <translation>Session&#xa0;:</translation>
    </message>
    <message>
        <source>The session whose laps are shown</source>
        <translation>La session dont les tours sont affichés</translation>
    </message>
    <message>
        <source>Outline :</source>
        <translation>Tracé&#xa0;:</translation>
    </message>
    <message>
        <source>The lap that the outline of the track follows</source>
        <translation>Le tour que suit le tracé du circuit</translation>
    </message>
    <message>
        <source>Gate size :</source>
        <translation>Taille des portes&#xa0;:</translation>
    </message>
    <message>
        <source>How far from a timing point a lap is timed; twice as far at the start/finish line</source>
        <translation>Jusqu&apos;à quelle distance d&apos;un point de chronométrage un tour est chronométré&#xa0;; le double sur la ligne de départ/arrivée</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Défaire</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refaire</translation>
    </message>
    <message>
        <source>The map has no start/finish line.</source>
        <translation>La carte n&apos;a pas de ligne de départ/arrivée.</translation>
    </message>
    <message>
        <source>The map has been changed. Do you want to save it?</source>
        <translation>La carte a été modifiée. Voulez-vous l&apos;enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1&#xa0;m</translation>
    </message>
    <message>
        <source>A map has room for %1 timing points. Remove one of them to add another.</source>
        <translation>Une carte a de la place pour %1 points de chronométrage. Retirez-en un pour en ajouter un autre.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Virages</translation>
    </message>
</context>
<context>
    <name>zuno::MapMaker</name>
    <message>
        <source>Hardly a sample of this session says where the motorcycle was, so no map can be made from it.</source>
        <translation>Presque aucun point de mesure de cette session ne dit où était la moto&#xa0;: il n&apos;est pas possible d&apos;en faire une carte.</translation>
    </message>
    <message>
        <source>The motorcycle stood still for the whole session, so no map can be made from it.</source>
        <translation>La moto est restée immobile pendant toute la session&#xa0;: il n&apos;est pas possible d&apos;en faire une carte.</translation>
    </message>
    <message>
        <source>This session never comes back to where it was, in the same direction: it holds no lap to make a map from. Take a session with one whole lap and a bit more.</source>
        <translation>Cette session ne repasse jamais au même endroit dans le même sens&#xa0;: elle ne contient aucun tour dont on puisse faire une carte. Prenez une session avec un tour entier et un peu plus.</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Cartes</translation>
    </message>
    <message>
        <source>New map</source>
        <translation>Nouvelle carte</translation>
    </message>
    <message>
        <source>This is a proposal. Give it a name and save it, or drag its points.</source>
        <translation>Ceci est une proposition. Nommez-la et enregistrez-la, ou déplacez ses points.</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; was not made with this program and stays as it is. You are changing a copy of it.</source>
        <translation>La carte «&#xa0;%1&#xa0;» n&apos;a pas été faite avec ce programme et reste telle quelle. Vous en modifiez une copie.</translation>
    </message>
    <message>
        <source>There is a map &quot;%1&quot; already. Do you want to replace it?</source>
        <translation>La carte «&#xa0;%1&#xa0;» existe déjà. Voulez-vous la remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>The map could not be saved: %1</source>
        <translation>La carte n&apos;a pas pu être enregistrée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Rename map</source>
        <translation>Renommer la carte</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>There is a map &quot;%1&quot; already.</source>
        <translation>La carte «&#xa0;%1&#xa0;» existe déjà.</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; could not be renamed.</source>
        <translation>La carte «&#xa0;%1&#xa0;» n&apos;a pas pu être renommée.</translation>
    </message>
    <message>
        <source>Do you want to delete the map &quot;%1&quot;?</source>
        <translation>Voulez-vous supprimer la carte «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>The map cannot be moved to the trash. Do you want to delete it for good?</source>
        <translation>La carte ne peut pas être mise à la corbeille. Voulez-vous la supprimer définitivement&#xa0;?</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; could not be deleted.</source>
        <translation>La carte «&#xa0;%1&#xa0;» n&apos;a pas pu être supprimée.</translation>
    </message>
    <message>
        <source>This is a proposal with the start line of the imported file; Undo takes the line that was found in the laps. Give it a name and save it, or drag its points.</source>
        <translation>Ceci est une proposition avec la ligne de départ du fichier importé&#xa0;; Défaire prend la ligne trouvée dans les tours. Nommez-la et enregistrez-la, ou déplacez ses points.</translation>
    </message>
    <message>
        <source>The file of the map&apos;s corners cannot be read, and is left alone.</source>
        <translation>Le fichier des virages de la carte est illisible&#xa0;; il reste tel quel.</translation>
    </message>
    <message>
        <source>A later version of the program changed the map&apos;s corners; they are left alone.</source>
        <translation>Une version plus récente du programme a modifié les virages de la carte&#xa0;; ils restent tels quels.</translation>
    </message>
    <message>
        <source>The corners could not be saved: %1</source>
        <translation>Les virages n&apos;ont pas pu être enregistrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Its corners alone can be changed without a copy.</source>
        <translation>Seuls ses virages peuvent être modifiés sans copie.</translation>
    </message>
    <message>
        <source>The corners of the map &quot;%1&quot; could not be renamed.</source>
        <translation>Les virages de la carte «&#xa0;%1&#xa0;» n&apos;ont pas pu être renommés.</translation>
    </message>
</context>
<context>
    <name>zuno::MapName</name>
    <message>
        <source>Give the map a name to save it.</source>
        <translation>Donnez un nom à la carte pour l&apos;enregistrer.</translation>
    </message>
    <message>
        <source>Dots cannot stand in a map&apos;s name or folder.</source>
        <translation>Le nom et le dossier d&apos;une carte ne peuvent pas contenir de points.</translation>
    </message>
    <message>
        <source>These cannot stand in a map&apos;s name or folder: %1</source>
        <translation>Le nom et le dossier d&apos;une carte ne peuvent pas contenir&#xa0;: %1</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device; choose another one.</source>
        <translation>Windows réserve ce nom à un périphérique&#xa0;; choisissez-en un autre.</translation>
    </message>
    <message>
        <source>This name is too long; %1 characters are the most.</source>
        <translation>Ce nom est trop long&#xa0;; il a %1 caractères au plus.</translation>
    </message>
    <message>
        <source>New track</source>
        <translation>Nouveau circuit</translation>
    </message>
</context>
<context>
    <name>zuno::MapPane</name>
    <message>
        <source>Map :</source>
        <translation>Carte&#xa0;:</translation>
    </message>
    <message>
        <source>Map Length :</source>
        <translation>Longueur de la carte&#xa0;:</translation>
    </message>
    <message>
        <source>errorMap</source>
        <translation>errorMap</translation>
    </message>
    <message>
        <source>New map from this session...</source>
        <translation>Nouvelle carte de cette session...</translation>
    </message>
    <message>
        <source>No map found, please try to select one from the Map configuraton panel</source>
        <translation>Aucune carte trouvée, choisissez-en une dans la configuration des cartes</translation>
    </message>
    <message>
        <source>Map : %1</source>
        <translation>Carte&#xa0;: %1</translation>
    </message>
    <message>
        <source>Map length : %1 m</source>
        <translation>Longueur de la carte&#xa0;: %1 m</translation>
    </message>
    <message>
        <source>Next colours of the line on the map</source>
        <translation>Couleurs suivantes de la ligne sur la carte</translation>
    </message>
    <message>
        <source>Map length : %1</source>
        <translation>Longueur de la carte&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>zuno::MapPointsPane</name>
    <message>
        <source>Left and right arrows move the selected point by 1 m, with Shift by 10 m</source>
        <translation>Les flèches gauche et droite déplacent le point sélectionné de 1 m, avec Maj de 10 m</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>From the line</source>
        <translation>Depuis la ligne</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Adds a timing point in the longest section; a click on the track adds one there</source>
        <translation>Ajoute un point de chronométrage dans le secteur le plus long&#xa0;; un clic sur la piste en ajoute un à cet endroit</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Start/finish</source>
        <translation>Départ/arrivée</translation>
    </message>
    <message>
        <source>%1 (on the line)</source>
        <translation>%1 (sur la ligne)</translation>
    </message>
</context>
<context>
    <name>zuno::MapWarning</name>
    <message>
        <source>the line</source>
        <translation>la ligne</translation>
    </message>
    <message>
        <source>timing point %1</source>
        <translation>le point de chronométrage %1</translation>
    </message>
    <message>
        <source> (%1 laps)</source>
        <translation> (%1 tours)</translation>
    </message>
    <message>
        <source> (lap %1)</source>
        <translation> (tour %1)</translation>
    </message>
    <message>
        <source> (laps %1)</source>
        <translation> (tours %1)</translation>
    </message>
    <message>
        <source>There is no start/finish point, so there are no laps.</source>
        <translation>Il n&apos;y a pas de point de départ/arrivée, donc pas de tours.</translation>
    </message>
    <message>
        <source>This session never passes the line.</source>
        <translation>Cette session ne franchit jamais la ligne.</translation>
    </message>
    <message>
        <source>Laps pass by %1 outside of its circle%3. Move the point onto their way or make the gate larger.</source>
        <translation>Des tours manquent %1%3&#xa0;: ils passent hors de son cercle. Mettez le point sur leur trajet ou agrandissez la porte.</translation>
    </message>
    <message>
        <source>Laps come to %1 before they come to %2. Number the points in riding order.</source>
        <translation>Des tours atteignent %1 avant %2. Numérotez les points dans l&apos;ordre de passage.</translation>
    </message>
    <message>
        <source>Another piece of the track runs through the circle of %1%3. Make the gate smaller or move the point.</source>
        <translation>Un autre morceau de la piste traverse le cercle qui entoure %1%3. Réduisez la porte ou déplacez le point.</translation>
    </message>
    <message>
        <source>A pit lane, or a ride in the other direction, passes through the circle of %1%3. Make the gate smaller or move the point.</source>
        <translation>Une voie des stands, ou un passage en sens inverse, traverse le cercle qui entoure %1%3. Réduisez la porte ou déplacez le point.</translation>
    </message>
    <message>
        <source>The circles of %1 and %2 touch. Move the points apart or make the gate smaller.</source>
        <translation>Les cercles qui entourent %1 et %2 se touchent. Écartez les points ou réduisez la porte.</translation>
    </message>
    <message>
        <source>One pass of the line counts twice%3: the rider was still inside its circle when it could count again. Make the gate smaller or move the line to where everybody is fast.</source>
        <translation>Un passage sur la ligne compte deux fois%3&#xa0;: le pilote était encore dans son cercle quand elle pouvait compter de nouveau. Réduisez la porte ou déplacez la ligne là où tout le monde est rapide.</translation>
    </message>
    <message>
        <source>No lap is as long as the outline, so none counts as complete.</source>
        <translation>Aucun tour n&apos;est aussi long que le tracé&#xa0;: aucun ne compte comme complet.</translation>
    </message>
    <message>
        <source>The last point, %1, is not on the line: the rest of the lap belongs to no section.</source>
        <translation>Le dernier point, %1, n&apos;est pas sur la ligne&#xa0;: le reste du tour n&apos;appartient à aucun secteur.</translation>
    </message>
    <message>
        <source>A lap has room for %4 sections; timing points after %1 are left out.</source>
        <translation>Un tour a %4 secteurs au plus&#xa0;; les points de chronométrage après %1 sont ignorés.</translation>
    </message>
    <message>
        <source>The map would not be found for this session by itself: the line is more than 1 km from where the recording begins, and the ride does not follow the outline. Choose the map with &quot;Maps&quot;.</source>
        <translation>La carte ne serait pas trouvée d&apos;elle-même pour cette session&#xa0;: la ligne est à plus de 1 km du début de l&apos;enregistrement, et le parcours ne suit pas le tracé. Choisissez la carte avec «&#xa0;Cartes&#xa0;».</translation>
    </message>
    <message>
        <source>A pass of the line below %5 km/h counts twice, as on a wet or slow day. Make the gate smaller or move the line to where everybody is fast.</source>
        <translation>Un passage de la ligne sous %5 km/h compte deux fois, comme un jour humide ou lent. Rendez la porte plus petite ou placez la ligne là où tous vont vite.</translation>
    </message>
</context>
<context>
    <name>zuno::MapsWidget</name>
    <message>
        <source>Maps Configuration</source>
        <translation>Configuration des cartes</translation>
    </message>
    <message>
        <source>Auto detect map</source>
        <translation>Détecter la carte</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Choose other Map for session : %1</source>
        <translation>Choisir une autre carte pour la session&#xa0;: %1</translation>
    </message>
    <message>
        <source>No session loaded</source>
        <translation>Aucune session chargée</translation>
    </message>
    <message>
        <source>New map from this session...</source>
        <translation>Nouvelle carte de cette session...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Modifier...</translation>
    </message>
    <message>
        <source>Rename...</source>
        <translation>Renommer...</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>Supprimer...</translation>
    </message>
    <message>
        <source>Reload maps</source>
        <translation>Recharger les cartes</translation>
    </message>
</context>
<context>
    <name>zuno::MeasureLine</name>
    <message>
        <source>%1 to %2: %3</source>
        <comment>places, and the distance between them</comment>
        <translation>%1 à %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Speed min</source>
        <translation>Vitesse min.</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>moyenne</translation>
    </message>
    <message>
        <source>max</source>
        <translation>max.</translation>
    </message>
    <message>
        <source>End measuring (Esc)</source>
        <translation>Terminer la mesure (Échap)</translation>
    </message>
    <message>
        <source>Click two places in a chart, or draw from one to the other.</source>
        <translation>Cliquez deux endroits dans un graphique, ou tirez de l&apos;un à l&apos;autre.</translation>
    </message>
</context>
<context>
    <name>zuno::PageFailure</name>
    <message>
        <source>The map has stopped several times, and was left alone. Everything else goes on working.</source>
        <translation>La carte s&apos;est arrêtée plusieurs fois et n&apos;est plus relancée. Tout le reste continue de fonctionner.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
</context>
<context>
    <name>zuno::PassProgress</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
</context>
<context>
    <name>zuno::Reference</name>
    <message>
        <source>No lap serves as reference yet.</source>
        <translation>Aucun tour ne sert encore de référence.</translation>
    </message>
    <message>
        <source>The file of the reference, &quot;%1&quot;, is gone.</source>
        <translation>Le fichier de la référence, «&#xa0;%1&#xa0;», a disparu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no lap %2 on this circuit any more.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;a plus de tour %2 sur ce circuit.</translation>
    </message>
    <message>
        <source>The session does not say which vehicle it was.</source>
        <translation>La session ne dit pas de quelle moto il s&apos;agit.</translation>
    </message>
</context>
<context>
    <name>zuno::ReferenceMenu</name>
    <message>
        <source>Clear: no comparison</source>
        <translation>Effacer&#xa0;: pas de comparaison</translation>
    </message>
    <message>
        <source>Best of session</source>
        <translation>Meilleur de la session</translation>
    </message>
    <message>
        <source>Best ever here</source>
        <translation>Meilleur de tous ici</translation>
    </message>
    <message>
        <source>only the same motorcycle</source>
        <translation>seulement la même moto</translation>
    </message>
    <message>
        <source>This lap: %1, %2</source>
        <translation>Ce tour&#xa0;: %1, %2</translation>
    </message>
    <message>
        <source>This lap</source>
        <translation>Ce tour</translation>
    </message>
    <message>
        <source>Lap of another file...</source>
        <translation>Tour d&apos;un autre fichier...</translation>
    </message>
    <message>
        <source>Recent: none on this circuit</source>
        <translation>Récents&#xa0;: aucun sur ce circuit</translation>
    </message>
    <message>
        <source>Lap %1 of %2</source>
        <translation>Tour %1 de %2</translation>
    </message>
</context>
<context>
    <name>zuno::RidePreview</name>
    <message>
        <source>Path</source>
        <translation>Trajectoire</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>jusqu&apos;à %1</translation>
    </message>
</context>
<context>
    <name>zuno::SessionImport</name>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Importing sessions: %1 of %2</source>
        <translation>Importation des sessions&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Nothing was imported: the folder of your sessions is not there.</source>
        <translation>Rien n&apos;a été importé&#xa0;: le dossier de vos sessions n&apos;est pas là.</translation>
    </message>
</context>
<context>
    <name>zuno::SessionInfos</name>
    <message>
        <source>%1 / %2</source>
        <extracomment>Below the notes: how many characters they have, and may have.</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Date&#xa0;:</translation>
    </message>
    <message>
        <source>Track :</source>
        <translation>Circuit&#xa0;:</translation>
    </message>
    <message>
        <source>Best lap :</source>
        <translation>Meilleur tour&#xa0;:</translation>
    </message>
    <message>
        <source>Ideal time :</source>
        <translation>Temps idéal&#xa0;:</translation>
    </message>
    <message>
        <source>Event :</source>
        <translation>Événement&#xa0;:</translation>
    </message>
    <message>
        <source>Driver :</source>
        <translation>Pilote&#xa0;:</translation>
    </message>
    <message>
        <source>Vehicle :</source>
        <translation>Moto&#xa0;:</translation>
    </message>
    <message>
        <source>Tires :</source>
        <translation>Pneus&#xa0;:</translation>
    </message>
    <message>
        <source>Track temp :</source>
        <translation>Temp. de la piste&#xa0;:</translation>
    </message>
    <message>
        <source>degres</source>
        <translation>degrés</translation>
    </message>
    <message>
        <source>Track condition :</source>
        <translation>État de la piste&#xa0;:</translation>
    </message>
    <message>
        <source>Notes :</source>
        <translation>Notes&#xa0;:</translation>
    </message>
    <message>
        <source>Enter here, for example, your tyre pressures, your suspension settings...</source>
        <translation>Notez ici, par exemple, vos pressions de pneus, vos réglages de suspension...</translation>
    </message>
    <message>
        <source>This file has a format that this version does not know (%1). It is shown, but nothing can be stored in it.</source>
        <translation>Ce fichier a un format que cette version ne connaît pas (%1). Il est affiché, mais rien ne peut y être enregistré.</translation>
    </message>
    <message>
        <source>This file is damaged, or not complete yet. It is shown, but nothing can be stored in it.</source>
        <translation>Ce fichier est endommagé, ou pas encore complet. Il est affiché, mais rien ne peut y être enregistré.</translation>
    </message>
    <message>
        <source>Another program typed here at the same time, and your text has taken its place: %1</source>
        <translation>Un autre programme a tapé ici en même temps, et votre texte a pris la place de&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>zuno::SessionName</name>
    <message>
        <source>A name that begins with a dot is hidden: it would not be listed any more.</source>
        <translation>Un nom qui commence par un point est caché&#xa0;: il ne serait plus dans la liste.</translation>
    </message>
    <message>
        <source>These cannot stand in a name: %1</source>
        <translation>Ces signes ne peuvent pas figurer dans un nom&#xa0;: %1</translation>
    </message>
    <message>
        <source>A name cannot begin or end with a blank, nor end with a dot.</source>
        <translation>Un nom ne peut ni commencer ni finir par une espace, ni finir par un point.</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device; choose another one.</source>
        <translation>Windows réserve ce nom à un périphérique&#xa0;; choisissez-en un autre.</translation>
    </message>
    <message>
        <source>Names with &quot;ZUNO&quot; are kept for the folders of loggers, which can be neither renamed nor deleted.</source>
        <translation>Les noms avec «&#xa0;ZUNO&#xa0;» sont réservés aux dossiers des boîtiers, qui ne peuvent être ni renommés ni supprimés.</translation>
    </message>
</context>
<context>
    <name>zuno::SessionsStats</name>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Date&#xa0;:</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>Plusieurs</translation>
    </message>
    <message>
        <source>Track :</source>
        <translation>Circuit&#xa0;:</translation>
    </message>
    <message>
        <source>Vehicle :</source>
        <translation>Moto&#xa0;:</translation>
    </message>
    <message>
        <source>Driver :</source>
        <translation>Pilote&#xa0;:</translation>
    </message>
    <message>
        <source>Event :</source>
        <translation>Événement&#xa0;:</translation>
    </message>
    <message>
        <source>Track condition :</source>
        <translation>État de la piste&#xa0;:</translation>
    </message>
    <message>
        <source>Reset all filters</source>
        <translation>Effacer les filtres</translation>
    </message>
    <message>
        <source>Sessions without a lap time are not listed</source>
        <translation>Les sessions sans temps au tour ne sont pas listées</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Sessions : %1 of %2</source>
        <translation>Sessions&#xa0;: %1 sur %2</translation>
    </message>
</context>
<context>
    <name>zuno::SessionsStatsTableModel</name>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Circuit</translation>
    </message>
    <message>
        <source>Best Lap</source>
        <translation>Meilleur tour</translation>
    </message>
    <message>
        <source>Ideal Time</source>
        <translation>Temps idéal</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Moto</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Pilote</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>Track condition</source>
        <translation>État de la piste</translation>
    </message>
    <message>
        <source>Track temperature</source>
        <translation>Temp. piste</translation>
    </message>
    <message>
        <source>Tires</source>
        <translation>Pneus</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
</context>
<context>
    <name>zuno::StorableEdits</name>
    <message>
        <source>Replaced: %1</source>
        <translation>Remplacés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Ignorés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Cut at %1 characters</source>
        <translation>Coupé à %1 caractères</translation>
    </message>
</context>
<context>
    <name>zuno::TemperatureBox</name>
    <message>
        <source>unknown</source>
        <extracomment>A track temperature that nobody noted.</extracomment>
        <translation>inconnue</translation>
    </message>
</context>
<context>
    <name>zuno::ThemeButton</name>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Light theme, for the sun (%1)</source>
        <translation>Thème clair, pour le soleil (%1)</translation>
    </message>
    <message>
        <source>Dark theme (%1)</source>
        <translation>Thème sombre (%1)</translation>
    </message>
</context>
<context>
    <name>zuno::UnsavedChanges</name>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>What you have said about these sessions could not be written into their files:

%1</source>
        <translation>Ce que vous avez noté sur ces sessions n&apos;a pas pu être écrit dans leurs fichiers&#xa0;:

%1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Save elsewhere...</source>
        <translation>Enregistrer ailleurs...</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>Fermer sans enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save elsewhere</source>
        <translation>Enregistrer ailleurs</translation>
    </message>
    <message>
        <source>These could not be saved there, either:

%1</source>
        <translation>Celles-ci n&apos;ont pas pu être enregistrées là non plus&#xa0;:

%1</translation>
    </message>
</context>
<context>
    <name>zuno::UpdateApp</name>
    <message>
        <source>ZUNO Analyzer update</source>
        <translation>Mise à jour de ZUNO Analyzer</translation>
    </message>
    <message>
        <source>A new version of the application is available. 
Do you want to download it now?</source>
        <translation>Une nouvelle version de l&apos;application est disponible. 
Voulez-vous la télécharger maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The new version could not be downloaded and started.</source>
        <translation>La nouvelle version n&apos;a pas pu être téléchargée et lancée.</translation>
    </message>
    <message>
        <source>Version: %1
Size: %2
From: %3</source>
        <translation>Version&#xa0;: %1
Taille&#xa0;: %2
De&#xa0;: %3</translation>
    </message>
    <message>
        <source>A new version of the application is available.</source>
        <translation>Une nouvelle version de l&apos;application est disponible.</translation>
    </message>
    <message>
        <source>Version: %1
This one was installed as a package of your system: install the new package in its place.</source>
        <translation>Version&#xa0;: %1
Celle-ci a été installée comme paquet de votre système&#xa0;: installez le nouveau paquet à sa place.</translation>
    </message>
</context>
<context>
    <name>zuno::UpgradePass</name>
    <message>
        <source>Adding additionnal infos to sessions - for version 1.4.0.0 </source>
        <translation>Ajout d&apos;informations aux sessions - pour la version 1.4.0.0 </translation>
    </message>
    <message>
        <source> sessions to parse 
In order to have access to all your statistics with this new version of Analyzer, let this analysis finish </source>
        <translation> sessions à analyser 
Pour accéder à toutes vos statistiques avec cette nouvelle version d&apos;Analyzer, laissez cette analyse se terminer </translation>
    </message>
</context>
<context>
    <name>zuno::WherePane</name>
    <message>
        <source>Where is the time</source>
        <translation>Où est le temps</translation>
    </message>
    <message>
        <source>Choose a reference...</source>
        <translation>Choisir une référence...</translation>
    </message>
    <message>
        <source>The other corners</source>
        <translation>Les autres virages</translation>
    </message>
    <message>
        <source>thin: won and lost inside the corner</source>
        <translation>fin&#xa0;: gagné et perdu dans le virage</translation>
    </message>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Against the best of each corner</source>
        <translation>Contre le meilleur de chaque virage</translation>
    </message>
    <message>
        <source>The other %1 places</source>
        <translation>Les %1 autres endroits</translation>
    </message>
</context>
<context>
    <name>zuno::ZunoAnalyzer</name>
    <message>
        <source>ZUNO Analyzer</source>
        <translation>ZUNO Analyzer</translation>
    </message>
    <message>
        <source>   Import   </source>
        <translation>   Importer   </translation>
    </message>
    <message>
        <source>   Settings   </source>
        <translation>   Paramètres   </translation>
    </message>
    <message>
        <source>   Maps   </source>
        <translation>   Cartes   </translation>
    </message>
    <message>
        <source>   Statistics   </source>
        <translation>   Statistiques   </translation>
    </message>
    <message>
        <source>   Help   </source>
        <translation>   Aide   </translation>
    </message>
    <message>
        <source>Maps and Laps  </source>
        <translation>Cartes et tours  </translation>
    </message>
    <message>
        <source> Session infos  </source>
        <translation> Infos de la session  </translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no session that can be shown: it is damaged, empty, or was written by something else.</source>
        <translation>«&#xa0;%1&#xa0;» ne contient aucune session affichable&#xa0;: le fichier est endommagé, vide ou d&apos;une autre origine.</translation>
    </message>
    <message>
        <source>Select one or more session files to import</source>
        <translation>Choisir un ou plusieurs fichiers de session à importer</translation>
    </message>
    <message>
        <source>RA1 Files (*.ra1)</source>
        <translation>Fichiers RA1 (*.ra1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in your library. Do you want to import it?</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas dans votre bibliothèque. Voulez-vous l&apos;importer&#xa0;?</translation>
    </message>
    <message>
        <source>There are no sessions yet.

Drop the session files (.ra1) of your logger here, choose them with &quot;Import&quot; (Ctrl+I), or copy them to
%1</source>
        <translation>Il n&apos;y a pas encore de session.

Déposez ici les fichiers de session (.ra1) de votre boîtier, choisissez-les avec «&#xa0;Importer&#xa0;» (Ctrl+I) ou copiez-les dans
%1</translation>
    </message>
    <message>
        <source>Select a session in the list on the left to see its laps.</source>
        <translation>Choisissez une session dans la liste à gauche pour voir ses tours.</translation>
    </message>
    <message>
        <source>Lap %1 (%2) against lap %3 (%4): %5 s</source>
        <translation>Tour %1 (%2) contre tour %3 (%4)&#xa0;: %5 s</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer there: it was deleted or moved.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est plus là&#xa0;: le fichier a été supprimé ou déplacé.</translation>
    </message>
    <message>
        <source>Folder of your sessions</source>
        <translation>Dossier de vos sessions</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there, or is no file.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas là, ou n&apos;est pas un fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to be shown: a session has 1 GB and 20 million samples at most.</source>
        <translation>«&#xa0;%1&#xa0;» est trop grand pour être affiché&#xa0;: une session a 1 Go et 20 millions de points au plus.</translation>
    </message>
    <message>
        <source>Map and Laps</source>
        <translation>Carte et tours</translation>
    </message>
    <message>
        <source>Nothing can be stored in %1: the disk is full, or the folder cannot be written to.</source>
        <translation>Rien ne peut être enregistré dans %1&#xa0;: le disque est plein, ou le dossier n&apos;est pas accessible en écriture.</translation>
    </message>
    <message>
        <source>All keys</source>
        <translation>Toutes les touches</translation>
    </message>
    <message>
        <source>Recordings (%1)</source>
        <translation>Enregistrements (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The other language is there when the program starts again. Do you want to start it again now?</source>
        <translation>L&apos;autre langue apparaît au redémarrage du programme. Voulez-vous le redémarrer maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>Demo files that could not be removed: %1</source>
        <translation>Fichiers de démo qui n&apos;ont pas pu être retirés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sessions</translation>
    </message>
    <message>
        <source>Shows the list of sessions (F9)</source>
        <translation>Affiche la liste des sessions (F9)</translation>
    </message>
    <message>
        <source>List of sessions</source>
        <translation>Liste des sessions</translation>
    </message>
    <message>
        <source>Reading your library: %1 of %2 recordings</source>
        <translation>Lecture de votre bibliothèque&#xa0;: %1 sur %2 enregistrements</translation>
    </message>
</context>
</TS>
