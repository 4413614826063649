<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Channel</name>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>This recording holds no speed.</source>
        <translation>Diese Aufzeichnung enthält keine Werte des Tempos.</translation>
    </message>
    <message>
        <source>Lean angle, left below 0</source>
        <translation>Schräglage, links unter 0</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>This recording holds no lean angle.</source>
        <translation>Diese Aufzeichnung enthält keine Werte der Schräglage.</translation>
    </message>
    <message>
        <source>Acceleration, braking below 0</source>
        <translation>Beschleunigung, Bremsen unter 0</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>This recording holds no acceleration.</source>
        <translation>Diese Aufzeichnung enthält keine Werte der Beschleunigung.</translation>
    </message>
    <message>
        <source>Front suspension, mean and range</source>
        <translation>Federung vorn, Mittel und Bereich</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>This recording holds no front suspension.</source>
        <translation>Diese Aufzeichnung enthält keine Werte der vorderen Federung.</translation>
    </message>
    <message>
        <source>Rear suspension, mean and range</source>
        <translation>Federung hinten, Mittel und Bereich</translation>
    </message>
    <message>
        <source>This recording holds no rear suspension.</source>
        <translation>Diese Aufzeichnung enthält keine Werte der hinteren Federung.</translation>
    </message>
    <message>
        <source>Time gap, behind above 0</source>
        <translation>Zeitabstand, Rückstand über 0</translation>
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
        <translation>s seit 1970</translation>
    </message>
    <message>
        <source>ms since 1970</source>
        <translation>ms seit 1970</translation>
    </message>
    <message>
        <source>knots</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>°, west positive</source>
        <translation>°, Westen positiv</translation>
    </message>
    <message>
        <source>minutes, west positive</source>
        <translation>Minuten, Westen positiv</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Sekunde</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>North or south</source>
        <translation>Nord oder Süd</translation>
    </message>
    <message>
        <source>East or west</source>
        <translation>Ost oder West</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Kurs</translation>
    </message>
    <message>
        <source>Longitudinal acceleration</source>
        <translation>Längsbeschleunigung</translation>
    </message>
    <message>
        <source>Lateral acceleration</source>
        <translation>Querbeschleunigung</translation>
    </message>
    <message>
        <source>Acceleration, first axis</source>
        <translation>Beschl., erste Achse</translation>
    </message>
    <message>
        <source>Acceleration, second axis</source>
        <translation>Beschl., zweite Achse</translation>
    </message>
    <message>
        <source>Acceleration, third axis</source>
        <translation>Beschl., dritte Achse</translation>
    </message>
    <message>
        <source>Lean angle</source>
        <translation>Schräglage</translation>
    </message>
    <message>
        <source>Front suspension</source>
        <translation>Federung vorn</translation>
    </message>
    <message>
        <source>Rear suspension</source>
        <translation>Federung hinten</translation>
    </message>
    <message>
        <source>New position (1 or 0)</source>
        <translation>Neue Position (1 oder 0)</translation>
    </message>
    <message>
        <source>Lap number</source>
        <translation>Nummer der Runde</translation>
    </message>
    <message>
        <source>Positions a second</source>
        <translation>Positionen pro Sekunde</translation>
    </message>
</context>
<context>
    <name>Deletion</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Recordings: %1</source>
        <translation>Aufzeichnungen: %1</translation>
    </message>
    <message>
        <source>other files: %1</source>
        <translation>andere Dateien: %1</translation>
    </message>
    <message>
        <source>hidden files: %1</source>
        <translation>versteckte Dateien: %1</translation>
    </message>
    <message>
        <source>This stays, as the logger named it: %1</source>
        <translation>Das bleibt, denn der Logger hat es so benannt: %1</translation>
    </message>
    <message>
        <source>This stays, as it is not in your library: %1</source>
        <translation>Das bleibt, denn es ist nicht in Ihrer Bibliothek: %1</translation>
    </message>
</context>
<context>
    <name>DemoSessions</name>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>„%1“ konnte nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>there is no position in it</source>
        <translation>sie enthält keine Position</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>sie ist zu groß</translation>
    </message>
    <message>
        <source>its points have no times</source>
        <translation>ihre Punkte haben keine Zeiten</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>there is no track in it</source>
        <translation>sie enthält keinen Track</translation>
    </message>
    <message>
        <source>no sentence has a time and a position</source>
        <translation>kein Satz hat Zeit und Position</translation>
    </message>
    <message>
        <source>the archive is damaged</source>
        <translation>das Archiv ist beschädigt</translation>
    </message>
    <message>
        <source>there is no row of a trace</source>
        <translation>es gibt keine Zeile einer Spur</translation>
    </message>
    <message>
        <source>no row can be read; the first is line %1</source>
        <translation>keine Zeile ist lesbar; die erste ist Zeile %1</translation>
    </message>
    <message>
        <source>there is no row below [data]</source>
        <translation>unter [data] steht keine Zeile</translation>
    </message>
    <message>
        <source>there is no table with columns for time, latitude and longitude</source>
        <translation>es gibt keine Tabelle mit Spalten für Zeit, Breite und Länge</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>ist nicht lesbar</translation>
    </message>
    <message>
        <source>is of no kind that can be read</source>
        <translation>ist von keiner Art, die gelesen werden kann</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>der Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>there is not a second of a ride in it</source>
        <translation>sie enthält keine Sekunde einer Fahrt</translation>
    </message>
    <message>
        <source>%1 Hz: lap times may be off by %2 s</source>
        <translation>%1 Hz: Rundenzeiten können um %2 s falsch sein</translation>
    </message>
    <message>
        <source>%1 damaged lines left out, the first is line %2</source>
        <translation>%1 beschädigte Zeilen ausgelassen, die erste ist Zeile %2</translation>
    </message>
    <message>
        <source>%1 impossible positions left out</source>
        <translation>%1 unmögliche Positionen ausgelassen</translation>
    </message>
    <message>
        <source>%1 gaps without a position</source>
        <translation>%1 Lücken ohne Position</translation>
    </message>
    <message>
        <source>no speed: computed from positions</source>
        <translation>keine Geschwindigkeit: aus Positionen berechnet</translation>
    </message>
    <message>
        <source>no date: that of the file is taken</source>
        <translation>kein Datum: das der Datei gilt</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>The manual is not there; it belongs to %1</source>
        <translation>Das Handbuch ist nicht da; es gehört nach %1</translation>
    </message>
    <message>
        <source>No program opens the manual: %1</source>
        <translation>Kein Programm kann das Handbuch öffnen: %1</translation>
    </message>
</context>
<context>
    <name>IdealTimeSearch</name>
    <message>
        <source>it has been removed</source>
        <translation>sie wurde gelöscht</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>session: reason</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>no map is known for the place where it was recorded</source>
        <translation>zum Ort ihrer Aufzeichnung ist keine Karte bekannt</translation>
    </message>
    <message>
        <source>it has no laps on the map &quot;%1&quot;</source>
        <translation>sie hat keine Runden auf der Karte „%1“</translation>
    </message>
    <message>
        <source>%1: it was ridden on &quot;%2&quot;</source>
        <translation>%1: sie wurde auf „%2“ gefahren</translation>
    </message>
</context>
<context>
    <name>ImportResult</name>
    <message>
        <source>Imported: %1</source>
        <translation>Importiert: %1</translation>
    </message>
    <message>
        <source>already there: %1</source>
        <translation>schon vorhanden: %1</translation>
    </message>
    <message>
        <source>no session files: %1</source>
        <translation>keine Sessiondateien: %1</translation>
    </message>
    <message>
        <source>could not be copied: %1</source>
        <translation>nicht kopierbar: %1</translation>
    </message>
    <message>
        <source>Import cancelled. %1</source>
        <translation>Import abgebrochen. %1</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>No session files:</source>
        <translation>Keine Sessiondateien:</translation>
    </message>
    <message>
        <source>Could not be copied:</source>
        <translation>Konnten nicht kopiert werden:</translation>
    </message>
    <message>
        <source>under another name: %1</source>
        <translation>unter anderem Namen: %1</translation>
    </message>
    <message>
        <source>Under another name, as another session has theirs:</source>
        <translation>Unter anderem Namen, da eine andere Session so heißt:</translation>
    </message>
</context>
<context>
    <name>LapScene</name>
    <message>
        <source>gaining</source>
        <translation>Gewinn</translation>
    </message>
    <message>
        <source>losing %1 s / 100 m</source>
        <translation>Verlust %1 s / 100 m</translation>
    </message>
    <message>
        <source>braking</source>
        <translation>Bremsen</translation>
    </message>
    <message>
        <source>accelerating</source>
        <translation>Beschleunigen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>reference, lap %1</source>
        <translation>Referenz, Runde %1</translation>
    </message>
    <message>
        <source>brakes</source>
        <translation>bremst</translation>
    </message>
    <message>
        <source>on the gas</source>
        <translation>am Gas</translation>
    </message>
    <message>
        <source>Offline map</source>
        <translation>Offline-Karte</translation>
    </message>
    <message>
        <source>first sample</source>
        <translation>erster Messpunkt</translation>
    </message>
    <message>
        <source>last sample</source>
        <translation>letzter Messpunkt</translation>
    </message>
</context>
<context>
    <name>LibraryFolder</name>
    <message>
        <source>As soon as it is back, your sessions are shown again.</source>
        <translation>Sobald er wieder da ist, werden Ihre Sessions wieder gezeigt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the folder of your sessions: that takes the whole path of a folder of its own.</source>
        <translation>„%1“ kann nicht der Ordner Ihrer Sessions sein: Das muss der volle Pfad eines eigenen Ordners sein.</translation>
    </message>
    <message>
        <source>The folder of your sessions is not there any more: it was moved, or its drive was taken out.

%1</source>
        <translation>Der Ordner Ihrer Sessions ist nicht mehr da: Er wurde verschoben, oder sein Laufwerk wurde entfernt.

%1</translation>
    </message>
    <message>
        <source>There is nothing left in the folder of your sessions: it was emptied, or its drive was taken out.

%1</source>
        <translation>Im Ordner Ihrer Sessions ist nichts mehr: Er wurde geleert, oder sein Laufwerk wurde entfernt.

%1</translation>
    </message>
</context>
<context>
    <name>MapPage</name>
    <message>
        <source>braking</source>
        <translation>Bremsen</translation>
    </message>
    <message>
        <source>accelerating</source>
        <translation>Beschleunigen</translation>
    </message>
    <message>
        <source>first lap</source>
        <translation>erste Runde</translation>
    </message>
    <message>
        <source>second lap</source>
        <translation>zweite Runde</translation>
    </message>
    <message>
        <source>Loading the map...</source>
        <translation>Karte wird geladen...</translation>
    </message>
    <message>
        <source>Offline map: there is no key for the satellite map</source>
        <translation>Offline-Karte: kein Schlüssel für die Satellitenkarte</translation>
    </message>
    <message>
        <source>Offline map: the satellite map cannot be reached</source>
        <translation>Offline-Karte: die Satellitenkarte ist nicht erreichbar</translation>
    </message>
    <message>
        <source>Offline map: the satellite map does not answer</source>
        <translation>Offline-Karte: die Satellitenkarte antwortet nicht</translation>
    </message>
    <message>
        <source>Offline map: the satellite map refuses the key</source>
        <translation>Offline-Karte: die Satellitenkarte lehnt den Schlüssel ab</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>On the sign of the start/finish line.</extracomment>
        <translation>Start</translation>
    </message>
</context>
<context>
    <name>OutlineChoice</name>
    <message>
        <source>As it is</source>
        <translation>Unverändert</translation>
    </message>
</context>
<context>
    <name>SessionFile</name>
    <message>
        <source>cannot be read</source>
        <translation>kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>is no session file</source>
        <translation>ist keine Sessiondatei</translation>
    </message>
    <message>
        <source>has a format that is too old</source>
        <translation>hat ein zu altes Format</translation>
    </message>
    <message>
        <source>is too large: a session has 1 GB and 20 million samples at most</source>
        <translation>ist zu groß: Eine Session hat höchstens 1 GB und 20 Millionen Messpunkte</translation>
    </message>
</context>
<context>
    <name>SessionSummary</name>
    <message>
        <source>1 sample without GPS</source>
        <translation>1 Messpunkt ohne GPS</translation>
    </message>
    <message>
        <source>%1 samples without GPS</source>
        <translation>%1 Messpunkte ohne GPS</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; has no start point, so laps cannot be cut.

Choose another map with &quot;Maps&quot; (Ctrl+M).</source>
        <translation>Die Karte „%1“ hat keinen Startpunkt, daher gibt es keine Runden.

Wählen Sie mit „Karten“ (Strg+M) eine andere Karte.</translation>
    </message>
    <message>
        <source>This session never passes the start/finish line of the map &quot;%1&quot;.

If it was ridden on another circuit, choose its map with &quot;Maps&quot; (Ctrl+M).</source>
        <translation>Diese Session überquert nie die Start-Ziel-Linie der Karte „%1“.

Wurde sie auf einer anderen Strecke gefahren, so wählen Sie deren Karte mit „Karten“ (Strg+M).</translation>
    </message>
    <message>
        <source>Ideal Time : %1</source>
        <translation>Idealzeit: %1</translation>
    </message>
    <message>
        <source>Traveled distance : %1 m</source>
        <translation>Gefahrene Strecke: %1 m</translation>
    </message>
    <message>
        <source>Infos of first lap selected : Map : %1 --- Session : %2 --- Lap num : %3 --- Lap time : %4 --- max speed : %5 km/h</source>
        <translation>Erste gewählte Runde: Karte: %1 --- Session: %2 --- Runde Nr.: %3 --- Rundenzeit: %4 --- Max. Tempo: %5 km/h</translation>
    </message>
    <message>
        <source>No map is known for the place where this session was recorded, so it cannot be cut into laps.

Make a new map from it, choose a map with &quot;Maps&quot; (Ctrl+M), or copy the circuit&apos;s map file to
%1</source>
        <translation>Zum Ort dieser Aufzeichnung ist keine Karte bekannt, daher kann die Session nicht in Runden geteilt werden.

Machen Sie daraus eine Karte, wählen Sie eine mit „Karten“ (Strg+M), oder kopieren Sie die Kartendatei der Strecke nach
%1</translation>
    </message>
    <message>
        <source>There is not enough memory to show this session.</source>
        <translation>Der Arbeitsspeicher reicht nicht, um diese Session zu zeigen.</translation>
    </message>
    <message>
        <source>Traveled distance : %1</source>
        <translation>Gefahrene Strecke: %1</translation>
    </message>
</context>
<context>
    <name>TimePlace</name>
    <message>
        <source>Start/finish</source>
        <translation>Start-Ziel</translation>
    </message>
    <message>
        <source>Corner %1</source>
        <translation>Kurve %1</translation>
    </message>
    <message>
        <source>Corners %1</source>
        <translation>Kurven %1</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>%1 seconds lost</source>
        <translation>%1 Sekunden verloren</translation>
    </message>
    <message>
        <source>%1 seconds won</source>
        <translation>%1 Sekunden gewonnen</translation>
    </message>
</context>
<context>
    <name>zuno::AboutWidget</name>
    <message>
        <source>About ZUNO Analyzer</source>
        <translation>Über ZUNO Analyzer</translation>
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
        <translation>Website:</translation>
    </message>
    <message>
        <source>Email :</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>zuno::AcquisitionLibrary</name>
    <message>
        <source>A name in your library could not be read; it is &quot;%1&quot; now.</source>
        <translation>Ein Name in Ihrer Bibliothek war nicht lesbar; er ist jetzt „%1“.</translation>
    </message>
</context>
<context>
    <name>zuno::AppearanceSettings</name>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distanz</translation>
    </message>
    <message>
        <source>Metres</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Fuß</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sessions</translation>
    </message>
    <message>
        <source>Choose the folder of your sessions</source>
        <translation>Ordner Ihrer Sessions wählen</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Wählen...</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>Choose the folder of your maps</source>
        <translation>Ordner Ihrer Karten wählen</translation>
    </message>
    <message>
        <source>Folder of your sessions</source>
        <translation>Ordner Ihrer Sessions</translation>
    </message>
    <message>
        <source>Folder of your maps</source>
        <translation>Ordner Ihrer Karten</translation>
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
        <translation>kommt %1 km/h langsamer an</translation>
    </message>
    <message>
        <source>brakes %1 m earlier</source>
        <translation>bremst %1 m früher</translation>
    </message>
    <message>
        <source>%1 km/h slower into the corner</source>
        <translation>%1 km/h langsamer in die Kurve</translation>
    </message>
    <message>
        <source>%1 km/h slower at the slowest point</source>
        <translation>%1 km/h langsamer am langsamsten Punkt</translation>
    </message>
    <message>
        <source>%1 km/h slower at the exit, on the gas %2 m later</source>
        <translation>%1 km/h langsamer am Ausgang, %2 m später am Gas</translation>
    </message>
    <message>
        <source>%1 km/h slower at the exit</source>
        <translation>%1 km/h langsamer am Ausgang</translation>
    </message>
    <message>
        <source>up to %1 km/h slower before the corner</source>
        <translation>bis zu %1 km/h langsamer vor der Kurve</translation>
    </message>
    <message>
        <source>up to %1 km/h slower in the corner</source>
        <translation>bis zu %1 km/h langsamer in der Kurve</translation>
    </message>
    <message>
        <source>up to %1 km/h slower after the corner</source>
        <translation>bis zu %1 km/h langsamer nach der Kurve</translation>
    </message>
    <message>
        <source>corner %1: %2</source>
        <translation>Kurve %1: %2</translation>
    </message>
</context>
<context>
    <name>zuno::ChartHead</name>
    <message>
        <source>Lap %1</source>
        <translation>Runde %1</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Lap %1 was not here</source>
        <translation>Runde %1 war nicht hier</translation>
    </message>
    <message>
        <source>Delay on the lap %1</source>
        <translation>Rückstand auf Runde %1</translation>
    </message>
    <message>
        <source>Ahead on the lap %1 (%2 - %3)</source>
        <translation>Vorsprung auf Runde %1 (%2 - %3)</translation>
    </message>
</context>
<context>
    <name>zuno::CheckableComboBox</name>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
</context>
<context>
    <name>zuno::ColumnDialog</name>
    <message>
        <source>Columns of %1</source>
        <translation>Spalten von %1</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>nicht verwendet</translation>
    </message>
    <message>
        <source>Time, latitude and longitude are needed.</source>
        <translation>Zeit, Breite und Länge werden gebraucht.</translation>
    </message>
    <message>
        <source>These columns give no ride of a second.</source>
        <translation>Diese Spalten ergeben keine Sekunde einer Fahrt.</translation>
    </message>
    <message>
        <source>%1 s of a ride from the begin of the file; lines that cannot be read: %2</source>
        <translation>%1 s einer Fahrt ab dem Anfang der Datei; nicht lesbare Zeilen: %2</translation>
    </message>
</context>
<context>
    <name>zuno::Comparing</name>
    <message>
        <source>Compare with this lap</source>
        <translation>Mit dieser Runde vergleichen</translation>
    </message>
    <message>
        <source>Choose the reference</source>
        <translation>Referenz wählen</translation>
    </message>
    <message>
        <source>No comparison</source>
        <translation>Kein Vergleich</translation>
    </message>
    <message>
        <source>Swap lap and reference</source>
        <translation>Runde und Referenz tauschen</translation>
    </message>
    <message>
        <source>Largest loss</source>
        <translation>Größter Verlust</translation>
    </message>
    <message>
        <source>Second largest loss</source>
        <translation>Zweitgrößter Verlust</translation>
    </message>
    <message>
        <source>Third largest loss</source>
        <translation>Drittgrößter Verlust</translation>
    </message>
    <message>
        <source>Corner before</source>
        <translation>Kurve davor</translation>
    </message>
    <message>
        <source>Next corner</source>
        <translation>Kurve danach</translation>
    </message>
    <message>
        <source>The whole lap</source>
        <translation>Die ganze Runde</translation>
    </message>
    <message>
        <source>The name could not be kept: %1</source>
        <translation>Der Name konnte nicht behalten werden: %1</translation>
    </message>
</context>
<context>
    <name>zuno::Comparison</name>
    <message>
        <source>New best lap here: %1, lap %2 of %3</source>
        <translation>Neue beste Runde hier: %1, Runde %2 von %3</translation>
    </message>
    <message>
        <source>This lap does not go from line to line, so its corners cannot be compared.</source>
        <translation>Diese Runde geht nicht von der Linie bis zur Linie, daher lassen sich ihre Kurven nicht vergleichen.</translation>
    </message>
    <message>
        <source>Choose a reference to see where the time is.</source>
        <translation>Wählen Sie eine Referenz, um zu sehen, wo die Zeit liegt.</translation>
    </message>
    <message>
        <source>Looking for the best lap...</source>
        <translation>Beste Runde wird gesucht...</translation>
    </message>
    <message>
        <source>No corners are known here, so there is nothing to compare them by.</source>
        <translation>Hier sind keine Kurven bekannt, daher gibt es nichts zu vergleichen.</translation>
    </message>
    <message>
        <source>There is no lap from line to line.</source>
        <translation>Es gibt keine Runde von der Linie bis zur Linie.</translation>
    </message>
    <message>
        <source>The map&apos;s outline is too rough for its corners.</source>
        <translation>Der Verlauf der Karte ist zu grob für ihre Kurven.</translation>
    </message>
    <message>
        <source>The receiver measured about once a second; that is too seldom for corners.</source>
        <translation>Der Empfänger hat etwa einmal pro Sekunde gemessen; das ist zu selten für Kurven.</translation>
    </message>
</context>
<context>
    <name>zuno::ComparisonBar</name>
    <message>
        <source>against</source>
        <translation>gegen</translation>
    </message>
    <message>
        <source>Chooses what every lap is compared with (R)</source>
        <translation>Wählt, womit jede Runde verglichen wird (R)</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>Draws another lap as well (O in the table)</source>
        <translation>Zeichnet noch eine Runde (O in der Tabelle)</translation>
    </message>
    <message>
        <source>+ Lap</source>
        <translation>+ Runde</translation>
    </message>
    <message>
        <source>Makes the reference the selected lap, and the selected lap the reference (X)</source>
        <translation>Macht die Referenz zur gewählten Runde und die gewählte Runde zur Referenz (X)</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Tauschen</translation>
    </message>
    <message>
        <source>No comparison (Shift+R)</source>
        <translation>Kein Vergleich (Umschalt+R)</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Aufheben</translation>
    </message>
    <message>
        <source>Lap %1</source>
        <translation>Runde %1</translation>
    </message>
    <message>
        <source>Nothing to compare yet: there are no laps.</source>
        <translation>Noch nichts zu vergleichen: Es gibt keine Runden.</translation>
    </message>
    <message>
        <source>Looking for the best lap...</source>
        <translation>Beste Runde wird gesucht...</translation>
    </message>
    <message>
        <source>Best of session</source>
        <translation>Beste der Session</translation>
    </message>
    <message>
        <source>Best ever here</source>
        <translation>Beste überhaupt hier</translation>
    </message>
    <message>
        <source>Best ever here, same motorcycle</source>
        <translation>Beste überhaupt hier, gleiches Motorrad</translation>
    </message>
    <message>
        <source>chosen by hand</source>
        <translation>von Hand gewählt</translation>
    </message>
    <message>
        <source>No reference on this circuit yet</source>
        <translation>Noch keine Referenz auf dieser Strecke</translation>
    </message>
    <message>
        <source>reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>as fast</source>
        <translation>gleich schnell</translation>
    </message>
    <message>
        <source>slower</source>
        <translation>langsamer</translation>
    </message>
    <message>
        <source>faster</source>
        <translation>schneller</translation>
    </message>
    <message>
        <source>Takes lap %1 away</source>
        <translation>Nimmt Runde %1 weg</translation>
    </message>
    <message>
        <source>Six laps are drawn at most; take one away first.</source>
        <translation>Höchstens sechs Runden werden gezeichnet; nehmen Sie erst eine weg.</translation>
    </message>
</context>
<context>
    <name>zuno::ConfigurationWidget</name>
    <message>
        <source>ZUNO Analyzer settings</source>
        <translation>Einstellungen von ZUNO Analyzer</translation>
    </message>
    <message>
        <source>Display colunms</source>
        <translation>Angezeigte Spalten</translation>
    </message>
    <message>
        <source>Lap type</source>
        <translation>Rundenart</translation>
    </message>
    <message>
        <source>Cumulate time</source>
        <translation>Gesamtzeit</translation>
    </message>
    <message>
        <source>Max speed</source>
        <translation>Max. Tempo</translation>
    </message>
    <message>
        <source>Min Speed</source>
        <translation>Min. Tempo</translation>
    </message>
    <message>
        <source>Angle left</source>
        <translation>Schräglage links</translation>
    </message>
    <message>
        <source>Angle right</source>
        <translation>Schräglage rechts</translation>
    </message>
    <message>
        <source>Accel</source>
        <translation>Beschl.</translation>
    </message>
    <message>
        <source>Decel</source>
        <translation>Verzög.</translation>
    </message>
    <message>
        <source>Min front suspension</source>
        <translation>Federung vorn min.</translation>
    </message>
    <message>
        <source>Max front suspension</source>
        <translation>Federung vorn max.</translation>
    </message>
    <message>
        <source>Min rear suspension</source>
        <translation>Federung hinten min.</translation>
    </message>
    <message>
        <source>Max rear suspension</source>
        <translation>Federung hinten max.</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sektoren</translation>
    </message>
    <message>
        <source>Display on the map</source>
        <translation>Anzeige auf der Karte</translation>
    </message>
    <message>
        <source>Show local min/max speed</source>
        <translation>Örtliche Min./Max. des Tempos</translation>
    </message>
    <message>
        <source>Show sectors points</source>
        <translation>Zeitnahmepunkte der Sektoren</translation>
    </message>
    <message>
        <source>Use gradient lap comparison</source>
        <translation>Rundenvergleich mit Farbverlauf</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>New releases</source>
        <translation>Neue Versionen</translation>
    </message>
    <message>
        <source>Look for a new release at every start</source>
        <translation>Bei jedem Start nach einer neuen Version suchen</translation>
    </message>
</context>
<context>
    <name>zuno::CornerNames</name>
    <message>
        <source>The file of corners beside the map is damaged, or a later program wrote it; it is left alone.</source>
        <translation>Die Datei der Kurven neben der Karte ist beschädigt oder von einer neueren Version; sie bleibt, wie sie ist.</translation>
    </message>
</context>
<context>
    <name>zuno::CornerStrip</name>
    <message>
        <source>Corners of the lap</source>
        <translation>Kurven der Runde</translation>
    </message>
    <message>
        <source>Corner %1</source>
        <translation>Kurve %1</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Gerade</translation>
    </message>
    <message>
        <source>%1: %2 s</source>
        <comment>a corner and its time</comment>
        <translation>%1: %2 s</translation>
    </message>
    <message>
        <source>%1: %2 s, %3 s</source>
        <comment>a corner, its time, the difference to the other lap</comment>
        <translation>%1: %2 s, %3 s</translation>
    </message>
</context>
<context>
    <name>zuno::CornerTable</name>
    <message>
        <source>Corners</source>
        <translation>Kurven</translation>
    </message>
    <message>
        <source>A click shows the corner in charts and map, F2 gives it a name</source>
        <translation>Ein Klick zeigt die Kurve in Diagrammen und Karte, F2 gibt ihr einen Namen</translation>
    </message>
    <message>
        <source>Name of the corner</source>
        <translation>Name der Kurve</translation>
    </message>
    <message>
        <source>Corner %1:</source>
        <translation>Kurve %1:</translation>
    </message>
</context>
<context>
    <name>zuno::CornerTableModel</name>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>T%1</source>
        <comment>a corner&apos;s number</comment>
        <translation>T%1</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Diff.</source>
        <translation>Diff.</translation>
    </message>
    <message>
        <source>Brakes at</source>
        <translation>Bremst bei</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Lean</source>
        <translation>Schräglage</translation>
    </message>
    <message>
        <source>On the gas</source>
        <translation>Am Gas</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Streuung</translation>
    </message>
    <message>
        <source>Spread, %1 laps</source>
        <translation>Streuung, %1 Runden</translation>
    </message>
</context>
<context>
    <name>zuno::CornersPane</name>
    <message>
        <source>Join</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Makes one corner of the selected one and the next</source>
        <translation>Macht aus der gewählten und der nächsten eine Kurve</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Makes two corners of the selected one</source>
        <translation>Macht aus der gewählten zwei Kurven</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>The selected one counts as no corner</source>
        <translation>Die gewählte zählt nicht als Kurve</translation>
    </message>
    <message>
        <source>As found</source>
        <translation>Wie gefunden</translation>
    </message>
    <message>
        <source>Takes back all changes of the corners</source>
        <translation>Nimmt alle Änderungen der Kurven zurück</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>From the line</source>
        <translation>Ab der Linie</translation>
    </message>
    <message>
        <source>Turns</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>A double click on a corner gives it a name</source>
        <translation>Ein Doppelklick auf eine Kurve gibt ihr einen Namen</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>left</source>
        <translation>links</translation>
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
        <translation>Update von ZUNO Analyzer laden</translation>
    </message>
    <message>
        <source>Downloading the new version...</source>
        <translation>Die neue Version wird geladen...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>zuno::EmptyPage</name>
    <message>
        <source>There are no sessions yet.</source>
        <translation>Es gibt noch keine Sessions.</translation>
    </message>
    <message>
        <source>Drop the session files (.ra1) of your logger here, or a whole folder.</source>
        <translation>Ziehen Sie die Sessiondateien (.ra1) Ihres Loggers hierher oder einen ganzen Ordner.</translation>
    </message>
    <message>
        <source>Import (Ctrl+I)</source>
        <translation>Importieren (Strg+I)</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importieren...</translation>
    </message>
    <message>
        <source>Show the demo</source>
        <translation>Demo zeigen</translation>
    </message>
    <message>
        <source>The demo: invented sessions of three riders on three circuits. They can be taken away again with one click.</source>
        <translation>Die Demo: erfundene Sessions von drei Fahrern auf drei Strecken. Ein Klick entfernt sie wieder.</translation>
    </message>
    <message>
        <source>1  Import a session      2  Its circuit is found, laps are cut      3  See where the time is</source>
        <translation>1  Eine Session importieren      2  Die Strecke wird gefunden, Runden werden geteilt      3  Sehen, wo die Zeit liegt</translation>
    </message>
    <message>
        <source>Files can also be copied to %1</source>
        <translation>Dateien lassen sich auch nach %1 kopieren</translation>
    </message>
</context>
<context>
    <name>zuno::ExportDialogs</name>
    <message>
        <source>Export Session file</source>
        <translation>Sessiondatei exportieren</translation>
    </message>
    <message>
        <source>RA1 files (.ra1);</source>
        <translation>RA1-Dateien (.ra1);</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already; nothing was exported.</source>
        <translation>„%1“ gibt es schon; es wurde nichts exportiert.</translation>
    </message>
    <message>
        <source>Export Session Data file</source>
        <translation>Sessiondaten exportieren</translation>
    </message>
    <message>
        <source>CSV files (.csv);</source>
        <translation>CSV-Dateien (.csv);</translation>
    </message>
    <message>
        <source>the session&apos;s file has changed or is gone</source>
        <translation>die Datei der Session hat sich geändert oder ist weg</translation>
    </message>
    <message>
        <source>Export Lap file</source>
        <translation>Runde exportieren</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;.</source>
        <translation>Nach „%1“ exportiert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>„%1“ konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Export for other programs</source>
        <translation>Für andere Programme exportieren</translation>
    </message>
    <message>
        <source>%1 sessions were exported to &quot;%2&quot;.</source>
        <translation>%1 Sessions wurden nach „%2“ exportiert.</translation>
    </message>
    <message>
        <source>CSV with units (*.csv)</source>
        <translation>CSV mit Einheiten (*.csv)</translation>
    </message>
</context>
<context>
    <name>zuno::IdealTimeDialog</name>
    <message>
        <source>Multi sessions ideal time</source>
        <translation>Idealzeit über mehrere Sessions</translation>
    </message>
    <message>
        <source>%v / %m</source>
        <translation>%v / %m</translation>
    </message>
    <message>
        <source>Copy table</source>
        <translation>Tabelle kopieren</translation>
    </message>
    <message>
        <source>Enter or a double click shows the lap, Ctrl+C copies the table</source>
        <translation>Enter oder ein Doppelklick zeigt die Runde, Strg+C kopiert die Tabelle</translation>
    </message>
    <message>
        <source>Computing the ideal time...</source>
        <translation>Idealzeit wird berechnet...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Show this lap</source>
        <translation>Diese Runde zeigen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Map : %1</source>
        <translation>Karte: %1</translation>
    </message>
    <message>
        <source>sessions : %1 of %2</source>
        <translation>Sessions: %1 von %2</translation>
    </message>
    <message>
        <source>None of these sessions can be cut into laps, so there is no ideal time.</source>
        <translation>Keine dieser Sessions kann in Runden geteilt werden, daher gibt es keine Idealzeit.</translation>
    </message>
    <message>
        <source>These sessions have no valid lap that went through a section, so there is no ideal time.</source>
        <translation>In diesen Sessions durchfährt keine gültige Runde einen Sektor, daher gibt es keine Idealzeit.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation>Ausgelassen:</translation>
    </message>
</context>
<context>
    <name>zuno::IdealTimeModel</name>
    <message>
        <source>Section %1</source>
        <translation>Sektor %1</translation>
    </message>
    <message>
        <source>Ideal time</source>
        <translation>Idealzeit</translation>
    </message>
    <message>
        <source>Best lap</source>
        <translation>Beste Runde</translation>
    </message>
    <message>
        <source>Best continuous lap</source>
        <translation>Beste durchgehende Runde</translation>
    </message>
    <message>
        <source>Best continuous lap, from the end of section %1</source>
        <translation>Beste durchgehende Runde ab Ende von Sektor %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>laps</comment>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>What the best lap lost in a section; what a lap lost on the ideal time (seconds)</source>
        <translation>Was die beste Runde in einem Sektor verlor; was eine Runde auf die Idealzeit verlor (Sekunden)</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sektor</translation>
    </message>
    <message>
        <source>Best time</source>
        <translation>Bestzeit</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Fahrer</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Runde</translation>
    </message>
    <message>
        <source>In best lap</source>
        <translation>In bester Runde</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
</context>
<context>
    <name>zuno::IdealTimeText</name>
    <message>
        <source>without section %1: no lap passed timing point %1 in its circle</source>
        <translation>ohne Abschnitt %1: Keine Runde kam durch den Kreis von Punkt %1</translation>
    </message>
    <message>
        <source>without those of lap %1, the best, from section %2 on: it passed timing point %2 outside of its circle</source>
        <translation>ohne die der besten Runde %1 ab Abschnitt %2: Sie kam außerhalb des Kreises an Punkt %2 vorbei</translation>
    </message>
</context>
<context>
    <name>zuno::ImportDialog</name>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Sessions are made of these recordings; the files themselves stay as they are.</source>
        <translation>Aus diesen Aufzeichnungen werden Sessions gemacht; die Dateien selbst bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Columns...</source>
        <translation>Spalten...</translation>
    </message>
    <message>
        <source>Says what the columns of the selected table hold</source>
        <translation>Legt fest, was die Spalten der gewählten Tabelle enthalten</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message>
        <source>1 session will be imported.</source>
        <translation>1 Session wird importiert.</translation>
    </message>
    <message>
        <source>%1 sessions will be imported.</source>
        <translation>%1 Sessions werden importiert.</translation>
    </message>
</context>
<context>
    <name>zuno::ImportTable</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Circuit</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Messrate</translation>
    </message>
    <message>
        <source>Laps</source>
        <translation>Runden</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Bemerkungen</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>no map of this circuit</source>
        <translation>keine Karte dieser Strecke</translation>
    </message>
    <message>
        <source>was imported before, as &quot;%1&quot;</source>
        <translation>wurde schon importiert, als „%1“</translation>
    </message>
    <message>
        <source>%1; say what its columns are</source>
        <translation>%1; legen Sie fest, was die Spalten sind</translation>
    </message>
</context>
<context>
    <name>zuno::InformationNotice</name>
    <message>
        <source>Put it back</source>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Meinen behalten</translation>
    </message>
</context>
<context>
    <name>zuno::InformationWriter</name>
    <message>
        <source>%1 was not changed: %2. Changes are kept until the program ends.</source>
        <translation>%1 wurde nicht geändert: %2. Änderungen bleiben bis zum Programmende erhalten.</translation>
    </message>
    <message>
        <source>the file holds another recording now</source>
        <translation>die Datei enthält jetzt eine andere Aufzeichnung</translation>
    </message>
    <message>
        <source>%1 was changed by another program meanwhile; its changes were kept.</source>
        <translation>%1 wurde inzwischen von einem anderen Programm geändert; dessen Änderungen wurden beibehalten.</translation>
    </message>
    <message>
        <source>the file is write-protected</source>
        <translation>die Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>the file is damaged, or ends too early</source>
        <translation>die Datei ist beschädigt oder endet zu früh</translation>
    </message>
    <message>
        <source>its format is not known</source>
        <translation>ihr Format ist nicht bekannt</translation>
    </message>
    <message>
        <source>%1 was changed by another program meanwhile. Where you both typed, your text stands; the page &quot;Session infos&quot; offers the other one.</source>
        <translation>%1 wurde inzwischen von einem anderen Programm geändert. Wo Sie beide getippt haben, gilt Ihr Text; die Seite „Session-Infos“ bietet den anderen an.</translation>
    </message>
    <message>
        <source>the file is not in your library</source>
        <translation>die Datei ist nicht in Ihrer Bibliothek</translation>
    </message>
</context>
<context>
    <name>zuno::KeySheet</name>
    <message>
        <source>In the list of sessions</source>
        <translation>In der Liste der Sessions</translation>
    </message>
    <message>
        <source>In the laps table</source>
        <translation>In der Rundentabelle</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>Überall</translation>
    </message>
    <message>
        <source>About ZUNO Analyzer</source>
        <translation>Über ZUNO Analyzer</translation>
    </message>
    <message>
        <source>In the charts</source>
        <translation>In den Diagrammen</translation>
    </message>
    <message>
        <source>Cursor to the sample before or after</source>
        <translation>Cursor zum Messpunkt davor oder danach</translation>
    </message>
    <message>
        <source>Cursor to the begin or end</source>
        <translation>Cursor zum Anfang oder Ende</translation>
    </message>
    <message>
        <source>Zoom in or out around the cursor</source>
        <translation>Um den Cursor vergrößern oder verkleinern</translation>
    </message>
    <message>
        <source>A page back or on</source>
        <translation>Eine Seite zurück oder weiter</translation>
    </message>
    <message>
        <source>The whole lap</source>
        <translation>Die ganze Runde</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>The biggest losses</source>
        <translation>Die größten Verluste</translation>
    </message>
    <message>
        <source>The corner before or after</source>
        <translation>Die Kurve davor oder danach</translation>
    </message>
    <message>
        <source>Over the distance or the time</source>
        <translation>Über die Distanz oder die Zeit</translation>
    </message>
    <message>
        <source>Measure between two places</source>
        <translation>Zwischen zwei Stellen messen</translation>
    </message>
</context>
<context>
    <name>zuno::LapCharts</name>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Schräglage</translation>
    </message>
    <message>
        <source>Accel/Decel</source>
        <translation>Beschl./Verzög.</translation>
    </message>
    <message>
        <source>Front susp.</source>
        <translation>Fed. vorn</translation>
    </message>
    <message>
        <source>Rear susp.</source>
        <translation>Fed. hinten</translation>
    </message>
    <message>
        <source>Compare positions</source>
        <translation>Positionen vergleichen</translation>
    </message>
    <message>
        <source>Compare time</source>
        <translation>Zeit vergleichen</translation>
    </message>
    <message>
        <source>Distance</source>
        <comment>the charts&apos; axis</comment>
        <translation>Distanz</translation>
    </message>
    <message>
        <source>Time</source>
        <comment>the charts&apos; axis</comment>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>the whole session</source>
        <translation>die ganze Session</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Messen</translation>
    </message>
    <message>
        <source>Measure between two places (M)</source>
        <translation>Zwischen zwei Stellen messen (M)</translation>
    </message>
    <message>
        <source>Whole lap</source>
        <translation>Ganze Runde</translation>
    </message>
    <message>
        <source>Show the whole lap (Esc)</source>
        <translation>Die ganze Runde zeigen (Esc)</translation>
    </message>
    <message>
        <source>Previous corner (,)</source>
        <translation>Kurve davor (,)</translation>
    </message>
    <message>
        <source>Previous corner</source>
        <translation>Kurve davor</translation>
    </message>
    <message>
        <source>Next corner (.)</source>
        <translation>Kurve danach (.)</translation>
    </message>
    <message>
        <source>Next corner</source>
        <translation>Kurve danach</translation>
    </message>
    <message>
        <source>Whole session</source>
        <translation>Ganze Session</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Corner %1</source>
        <translation>Kurve %1</translation>
    </message>
</context>
<context>
    <name>zuno::LapChooser</name>
    <message>
        <source>Lap of another file</source>
        <translation>Runde einer anderen Datei</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Fahrer</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Lap %1</source>
        <translation>Runde %1</translation>
    </message>
    <message>
        <source>No lap of this circuit</source>
        <translation>Keine Runde dieser Strecke</translation>
    </message>
</context>
<context>
    <name>zuno::LapFlag</name>
    <message>
        <source>from the pits</source>
        <translation>aus der Box</translation>
    </message>
    <message>
        <source>into the pits</source>
        <translation>in die Box</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>slow +%1 %</source>
        <translation>langsam +%1 %</translation>
    </message>
    <message>
        <source>positions off</source>
        <translation>Positionen falsch</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>Lücke</translation>
    </message>
    <message>
        <source>held up</source>
        <translation>aufgehalten</translation>
    </message>
</context>
<context>
    <name>zuno::LapReason</name>
    <message>
        <source>held up</source>
        <translation>aufgehalten</translation>
    </message>
    <message>
        <source>missed the line</source>
        <translation>Linie verfehlt</translation>
    </message>
    <message>
        <source>warm-up</source>
        <translation>Aufwärmrunde</translation>
    </message>
    <message>
        <source>other</source>
        <translation>anderer Grund</translation>
    </message>
</context>
<context>
    <name>zuno::LapsPane</name>
    <message>
        <source>Ideal time :</source>
        <translation>Idealzeit:</translation>
    </message>
    <message>
        <source>Traveled distance :</source>
        <translation>Gefahrene Strecke:</translation>
    </message>
    <message>
        <source>New map from this session...</source>
        <translation>Neue Karte aus dieser Session...</translation>
    </message>
    <message>
        <source>The best time of each section, and the lap that holds it</source>
        <translation>Die Bestzeit jedes Sektors und die Runde, in der sie gefahren wurde</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sektor</translation>
    </message>
    <message>
        <source>Best time</source>
        <translation>Bestzeit</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Runde</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Anderen Ordner wählen ...</translation>
    </message>
    <message>
        <source>Laps</source>
        <translation>Runden</translation>
    </message>
    <message>
        <source>The laps of the session</source>
        <translation>Die Runden der Session</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Kurven</translation>
    </message>
    <message>
        <source>The corners of the circuit in the selected lap</source>
        <translation>Die Kurven der Strecke in der gewählten Runde</translation>
    </message>
</context>
<context>
    <name>zuno::LapsTableModel</name>
    <message>
        <source>Complete</source>
        <translation>Vollständig</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>Unvollständig</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Runde</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Cumulated time</source>
        <translation>Gesamtzeit</translation>
    </message>
    <message>
        <source>Lap time</source>
        <translation>Rundenzeit</translation>
    </message>
    <message>
        <source>Max speed</source>
        <translation>Max. Tempo</translation>
    </message>
    <message>
        <source>Min speed</source>
        <translation>Min. Tempo</translation>
    </message>
    <message>
        <source>Left Angle</source>
        <translation>Schräglage L</translation>
    </message>
    <message>
        <source>Right Angle</source>
        <translation>Schräglage R</translation>
    </message>
    <message>
        <source>Accel</source>
        <translation>Beschl.</translation>
    </message>
    <message>
        <source>Decel</source>
        <translation>Verzög.</translation>
    </message>
    <message>
        <source>Min front susp.</source>
        <translation>Fed. vorn min.</translation>
    </message>
    <message>
        <source>Max front susp.</source>
        <translation>Fed. vorn max.</translation>
    </message>
    <message>
        <source>Min rear susp.</source>
        <translation>Fed. hinten min.</translation>
    </message>
    <message>
        <source>Max rear susp.</source>
        <translation>Fed. hinten max.</translation>
    </message>
    <message>
        <source>Section %1</source>
        <translation>Sektor %1</translation>
    </message>
    <message>
        <source>Counted twice</source>
        <translation>Doppelt gezählt</translation>
    </message>
</context>
<context>
    <name>zuno::LapsView</name>
    <message>
        <source>V throws a lap out or takes it back, C compares, Ctrl+E exports; the menu key shows everything that can be done with a lap</source>
        <translation>V verwirft eine Runde oder nimmt sie zurück, C vergleicht, Strg+E exportiert; die Menütaste zeigt alles, was mit einer Runde möglich ist</translation>
    </message>
    <message>
        <source>Reselect first lap</source>
        <translation>Erste Runde neu wählen</translation>
    </message>
    <message>
        <source>Export lap</source>
        <translation>Runde exportieren</translation>
    </message>
    <message>
        <source>Invalidate lap</source>
        <translation>Runde ungültig machen</translation>
    </message>
    <message>
        <source>Validate lap</source>
        <translation>Runde gültig machen</translation>
    </message>
    <message>
        <source>Compare to this lap</source>
        <translation>Mit dieser Runde vergleichen</translation>
    </message>
    <message>
        <source>Compare this lap with...</source>
        <translation>Diese Runde vergleichen mit...</translation>
    </message>
    <message>
        <source>This is the first lap itself; choose another one to compare it with.</source>
        <translation>Das ist die erste Runde selbst; wählen Sie eine andere zum Vergleichen.</translation>
    </message>
    <message>
        <source>Draw no longer besides</source>
        <translation>Nicht mehr zusätzlich zeichnen</translation>
    </message>
    <message>
        <source>Draw besides</source>
        <translation>Zusätzlich zeichnen</translation>
    </message>
    <message>
        <source>Six laps are drawn at most; take one away first.</source>
        <translation>Höchstens sechs Runden werden gezeichnet; nehmen Sie erst eine weg.</translation>
    </message>
</context>
<context>
    <name>zuno::LibraryPane</name>
    <message>
        <source>Demo sessions</source>
        <translation>Demo-Sessions</translation>
    </message>
    <message>
        <source>Takes the demo sessions and their maps away</source>
        <translation>Entfernt die Demo-Sessions und ihre Karten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>zuno::LibraryTree</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Do not use [^\/`~@#$%^&amp;*:?&quot;&lt;&gt;|] characters</source>
        <translation>Die Zeichen [^\/`~@#$%^&amp;*:?&quot;&lt;&gt;|] sind nicht erlaubt</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Export Session</source>
        <translation>Session exportieren</translation>
    </message>
    <message>
        <source>Export Session Data (CSV)</source>
        <translation>Sessiondaten exportieren (CSV)</translation>
    </message>
    <message>
        <source>Compute multisession ideal time</source>
        <translation>Idealzeit über mehrere Sessions berechnen</translation>
    </message>
    <message>
        <source>Enter displays a session, F2 renames, Del deletes</source>
        <translation>Enter zeigt eine Session, F2 benennt um, Entf löscht</translation>
    </message>
    <message>
        <source>Rename File</source>
        <translation>Datei umbenennen</translation>
    </message>
    <message>
        <source>New name :</source>
        <translation>Neuer Name:</translation>
    </message>
    <message>
        <source>There is a &quot;%1&quot; already; nothing was renamed.</source>
        <translation>„%1“ gibt es schon; es wurde nichts umbenannt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed.</source>
        <translation>„%1“ konnte nicht umbenannt werden.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected files PERMANENTLY (not moved into the trash bin)?</source>
        <translation>Die gewählten Dateien wirklich ENDGÜLTIG löschen (nicht in den Papierkorb verschieben)?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted.</source>
        <translation>„%1“ konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Create new folder</source>
        <translation>Neuen Ordner anlegen</translation>
    </message>
    <message>
        <source>Folder name :</source>
        <translation>Name des Ordners:</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created.</source>
        <translation>Der Ordner „%1“ konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Do you want to move this to the trash?</source>
        <translation>Das in den Papierkorb verschieben?</translation>
    </message>
    <message>
        <source>There is no trash that takes this:</source>
        <translation>Kein Papierkorb nimmt das an:</translation>
    </message>
    <message>
        <source>Export for other programs</source>
        <translation>Für andere Programme exportieren</translation>
    </message>
</context>
<context>
    <name>zuno::LineSwitch</name>
    <message>
        <source>Gain/loss</source>
        <translation>Gewinn/Verlust</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Lean</source>
        <translation>Schräglage</translation>
    </message>
    <message>
        <source>Accel/Decel</source>
        <translation>Beschl./Verzög.</translation>
    </message>
    <message>
        <source>Colour the line by: %1 (L)</source>
        <translation>Linie färben nach: %1 (L)</translation>
    </message>
    <message>
        <source>What the colours of the line tell (L)</source>
        <translation>Was die Farben der Linie sagen (L)</translation>
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
        <translation>Das Tempo bestätigt es nicht</translation>
    </message>
    <message>
        <source>Within 2 km/h everywhere</source>
        <translation>Überall innerhalb von 2 km/h</translation>
    </message>
</context>
<context>
    <name>zuno::MapCheckModel</name>
    <message>
        <source>Incomplete</source>
        <translation>Unvollständig</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Runde</translation>
    </message>
    <message>
        <source>Lap time</source>
        <translation>Rundenzeit</translation>
    </message>
    <message>
        <source>Section %1</source>
        <translation>Sektor %1</translation>
    </message>
</context>
<context>
    <name>zuno::MapCheckPane</name>
    <message>
        <source>Choose a session to see the laps that the map gives.</source>
        <translation>Wählen Sie eine Session, um die Runden dieser Karte zu sehen.</translation>
    </message>
    <message>
        <source>No complete lap. Length: %1</source>
        <translation>Keine vollständige Runde. Länge: %1</translation>
    </message>
    <message>
        <source>Complete laps: %1. Best: %2 (lap %3). Ideal: %4. Length: %5</source>
        <translation>Vollständig: %1. Beste: %2 (Runde %3). Ideal: %4. Länge: %5</translation>
    </message>
    <message>
        <source>No problems found.</source>
        <translation>Keine Probleme gefunden.</translation>
    </message>
</context>
<context>
    <name>zuno::MapDraft</name>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden.</translation>
    </message>
</context>
<context>
    <name>zuno::MapEdit</name>
    <message>
        <source>Move point</source>
        <translation>Punkt verschieben</translation>
    </message>
    <message>
        <source>Add timing point</source>
        <translation>Zeitnahmepunkt hinzufügen</translation>
    </message>
    <message>
        <source>Remove timing point</source>
        <translation>Zeitnahmepunkt entfernen</translation>
    </message>
    <message>
        <source>Change gate size</source>
        <translation>Größe der Tore ändern</translation>
    </message>
    <message>
        <source>Change outline</source>
        <translation>Verlauf ändern</translation>
    </message>
    <message>
        <source>Take the gates of the file</source>
        <translation>Tore der Datei übernehmen</translation>
    </message>
    <message>
        <source>Change corner</source>
        <translation>Kurve ändern</translation>
    </message>
    <message>
        <source>Corners as found</source>
        <translation>Kurven wie gefunden</translation>
    </message>
</context>
<context>
    <name>zuno::MapEditor</name>
    <message>
        <source>Map editor</source>
        <translation>Karteneditor</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Country :</source>
        <translation>Land:</translation>
    </message>
    <message>
        <source>The folder below the maps folder; may be empty</source>
        <translation>Der Ordner im Ordner der Karten; darf leer sein</translation>
    </message>
    <message>
        <source>Session :</source>
        <translation>Session:</translation>
    </message>
    <message>
        <source>The session whose laps are shown</source>
        <translation>Die Session, deren Runden gezeigt werden</translation>
    </message>
    <message>
        <source>Outline :</source>
        <translation>Verlauf:</translation>
    </message>
    <message>
        <source>The lap that the outline of the track follows</source>
        <translation>Die Runde, der der Verlauf der Strecke folgt</translation>
    </message>
    <message>
        <source>Gate size :</source>
        <translation>Torgröße:</translation>
    </message>
    <message>
        <source>How far from a timing point a lap is timed; twice as far at the start/finish line</source>
        <translation>Wie weit von einem Zeitnahmepunkt entfernt eine Runde noch gemessen wird; an der Start-Ziel-Linie doppelt so weit</translation>
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
        <source>none</source>
        <translation>keines</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>The map has no start/finish line.</source>
        <translation>Die Karte hat keine Start-Ziel-Linie.</translation>
    </message>
    <message>
        <source>The map has been changed. Do you want to save it?</source>
        <translation>Die Karte wurde geändert. Möchten Sie sie speichern?</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>A map has room for %1 timing points. Remove one of them to add another.</source>
        <translation>Eine Karte hat Platz für %1 Zeitnahmepunkte. Entfernen Sie einen, um einen anderen hinzuzufügen.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Kurven</translation>
    </message>
</context>
<context>
    <name>zuno::MapMaker</name>
    <message>
        <source>Hardly a sample of this session says where the motorcycle was, so no map can be made from it.</source>
        <translation>Kaum ein Messpunkt dieser Session sagt, wo das Motorrad war, daher lässt sich daraus keine Karte machen.</translation>
    </message>
    <message>
        <source>The motorcycle stood still for the whole session, so no map can be made from it.</source>
        <translation>Das Motorrad stand die ganze Session lang still, daher lässt sich daraus keine Karte machen.</translation>
    </message>
    <message>
        <source>This session never comes back to where it was, in the same direction: it holds no lap to make a map from. Take a session with one whole lap and a bit more.</source>
        <translation>Diese Session kommt nie in derselben Richtung an eine Stelle zurück: Sie enthält keine Runde für eine Karte. Nehmen Sie eine Session mit einer ganzen Runde und etwas mehr.</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>New map</source>
        <translation>Neue Karte</translation>
    </message>
    <message>
        <source>This is a proposal. Give it a name and save it, or drag its points.</source>
        <translation>Das ist ein Vorschlag: benennen und speichern, oder die Punkte ziehen.</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; was not made with this program and stays as it is. You are changing a copy of it.</source>
        <translation>Die Karte „%1“ stammt nicht aus diesem Programm und bleibt, wie sie ist. Sie ändern eine Kopie davon.</translation>
    </message>
    <message>
        <source>There is a map &quot;%1&quot; already. Do you want to replace it?</source>
        <translation>Eine Karte „%1“ gibt es schon. Möchten Sie sie ersetzen?</translation>
    </message>
    <message>
        <source>The map could not be saved: %1</source>
        <translation>Die Karte konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>Rename map</source>
        <translation>Karte umbenennen</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>There is a map &quot;%1&quot; already.</source>
        <translation>Eine Karte „%1“ gibt es schon.</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; could not be renamed.</source>
        <translation>Die Karte „%1“ konnte nicht umbenannt werden.</translation>
    </message>
    <message>
        <source>Do you want to delete the map &quot;%1&quot;?</source>
        <translation>Möchten Sie die Karte „%1“ löschen?</translation>
    </message>
    <message>
        <source>The map cannot be moved to the trash. Do you want to delete it for good?</source>
        <translation>Die Karte kann nicht in den Papierkorb verschoben werden. Möchten Sie sie endgültig löschen?</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; could not be deleted.</source>
        <translation>Die Karte „%1“ konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>This is a proposal with the start line of the imported file; Undo takes the line that was found in the laps. Give it a name and save it, or drag its points.</source>
        <translation>Das ist ein Vorschlag mit der Startlinie der importierten Datei; Rückgängig nimmt die Linie, die in den Runden gefunden wurde. Benennen und speichern, oder die Punkte ziehen.</translation>
    </message>
    <message>
        <source>The file of the map&apos;s corners cannot be read, and is left alone.</source>
        <translation>Die Datei der Kurven dieser Karte ist nicht lesbar und bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>A later version of the program changed the map&apos;s corners; they are left alone.</source>
        <translation>Eine neuere Version des Programms hat die Kurven der Karte geändert; sie bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>The corners could not be saved: %1</source>
        <translation>Die Kurven konnten nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>Its corners alone can be changed without a copy.</source>
        <translation>Nur ihre Kurven lassen sich ohne Kopie ändern.</translation>
    </message>
    <message>
        <source>The corners of the map &quot;%1&quot; could not be renamed.</source>
        <translation>Die Kurven der Karte „%1“ konnten nicht umbenannt werden.</translation>
    </message>
</context>
<context>
    <name>zuno::MapName</name>
    <message>
        <source>Give the map a name to save it.</source>
        <translation>Geben Sie der Karte einen Namen, um sie zu speichern.</translation>
    </message>
    <message>
        <source>Dots cannot stand in a map&apos;s name or folder.</source>
        <translation>Name und Ordner einer Karte dürfen keinen Punkt (.) enthalten.</translation>
    </message>
    <message>
        <source>These cannot stand in a map&apos;s name or folder: %1</source>
        <translation>Diese Zeichen dürfen in Name und Ordner einer Karte nicht stehen: %1</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device; choose another one.</source>
        <translation>Windows benutzt diesen Namen für ein Gerät; wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>This name is too long; %1 characters are the most.</source>
        <translation>Dieser Name ist zu lang; höchstens %1 Zeichen sind möglich.</translation>
    </message>
    <message>
        <source>New track</source>
        <translation>Neue Strecke</translation>
    </message>
</context>
<context>
    <name>zuno::MapPane</name>
    <message>
        <source>Map :</source>
        <translation>Karte:</translation>
    </message>
    <message>
        <source>Map Length :</source>
        <translation>Länge der Karte:</translation>
    </message>
    <message>
        <source>errorMap</source>
        <translation>errorMap</translation>
    </message>
    <message>
        <source>New map from this session...</source>
        <translation>Neue Karte aus dieser Session...</translation>
    </message>
    <message>
        <source>No map found, please try to select one from the Map configuraton panel</source>
        <translation>Keine Karte gefunden, bitte in der Kartenauswahl eine wählen</translation>
    </message>
    <message>
        <source>Map : %1</source>
        <translation>Karte: %1</translation>
    </message>
    <message>
        <source>Map length : %1 m</source>
        <translation>Länge der Karte: %1 m</translation>
    </message>
    <message>
        <source>Next colours of the line on the map</source>
        <translation>Nächste Farben der Linie auf der Karte</translation>
    </message>
    <message>
        <source>Map length : %1</source>
        <translation>Länge der Karte: %1</translation>
    </message>
</context>
<context>
    <name>zuno::MapPointsPane</name>
    <message>
        <source>Left and right arrows move the selected point by 1 m, with Shift by 10 m</source>
        <translation>Die Pfeiltasten links und rechts verschieben den gewählten Punkt um 1 m, mit Umschalt um 10 m</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>From the line</source>
        <translation>Ab der Linie</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Adds a timing point in the longest section; a click on the track adds one there</source>
        <translation>Fügt im längsten Sektor einen Zeitnahmepunkt hinzu; ein Klick auf die Strecke fügt dort einen hinzu</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Start/finish</source>
        <translation>Start-Ziel</translation>
    </message>
    <message>
        <source>%1 (on the line)</source>
        <translation>%1 (auf der Linie)</translation>
    </message>
</context>
<context>
    <name>zuno::MapWarning</name>
    <message>
        <source>the line</source>
        <translation>Start-Ziel-Linie</translation>
    </message>
    <message>
        <source>timing point %1</source>
        <translation>Zeitnahmepunkt %1</translation>
    </message>
    <message>
        <source> (%1 laps)</source>
        <translation> (%1 Runden)</translation>
    </message>
    <message>
        <source> (lap %1)</source>
        <translation> (Runde %1)</translation>
    </message>
    <message>
        <source> (laps %1)</source>
        <translation> (Runden %1)</translation>
    </message>
    <message>
        <source>There is no start/finish point, so there are no laps.</source>
        <translation>Die Karte hat keinen Startpunkt, daher gibt es keine Runden.</translation>
    </message>
    <message>
        <source>This session never passes the line.</source>
        <translation>Diese Session überquert nie die Start-Ziel-Linie.</translation>
    </message>
    <message>
        <source>Laps pass by %1 outside of its circle%3. Move the point onto their way or make the gate larger.</source>
        <translation>%1: Runden führen außen am Kreis vorbei%3. Verschieben Sie den Punkt auf ihren Weg, oder vergrößern Sie das Tor.</translation>
    </message>
    <message>
        <source>Laps come to %1 before they come to %2. Number the points in riding order.</source>
        <translation>Runden erreichen %1 vor %2. Nummerieren Sie die Punkte in der Reihenfolge der Fahrt.</translation>
    </message>
    <message>
        <source>Another piece of the track runs through the circle of %1%3. Make the gate smaller or move the point.</source>
        <translation>%1: Ein anderes Stück der Strecke führt durch den Kreis%3. Verkleinern Sie das Tor, oder verschieben Sie den Punkt.</translation>
    </message>
    <message>
        <source>A pit lane, or a ride in the other direction, passes through the circle of %1%3. Make the gate smaller or move the point.</source>
        <translation>%1: Eine Boxengasse oder eine Fahrt in Gegenrichtung führt durch den Kreis%3. Verkleinern Sie das Tor, oder verschieben Sie den Punkt.</translation>
    </message>
    <message>
        <source>The circles of %1 and %2 touch. Move the points apart or make the gate smaller.</source>
        <translation>Die Kreise von %1 und %2 berühren sich. Ziehen Sie die Punkte auseinander, oder verkleinern Sie das Tor.</translation>
    </message>
    <message>
        <source>One pass of the line counts twice%3: the rider was still inside its circle when it could count again. Make the gate smaller or move the line to where everybody is fast.</source>
        <translation>Eine Fahrt über die Linie zählt doppelt%3: Der Fahrer war noch in ihrem Kreis, als sie wieder zählen konnte. Verkleinern Sie das Tor, oder verschieben Sie die Linie dorthin, wo alle schnell sind.</translation>
    </message>
    <message>
        <source>No lap is as long as the outline, so none counts as complete.</source>
        <translation>Keine Runde ist so lang wie der Verlauf der Strecke, daher gilt keine als vollständig.</translation>
    </message>
    <message>
        <source>The last point, %1, is not on the line: the rest of the lap belongs to no section.</source>
        <translation>Der letzte Punkt, %1, liegt nicht auf der Start-Ziel-Linie: Der Rest der Runde gehört zu keinem Sektor.</translation>
    </message>
    <message>
        <source>A lap has room for %4 sections; timing points after %1 are left out.</source>
        <translation>Eine Runde hat Platz für %4 Sektoren; die Punkte nach %1 werden ausgelassen.</translation>
    </message>
    <message>
        <source>The map would not be found for this session by itself: the line is more than 1 km from where the recording begins, and the ride does not follow the outline. Choose the map with &quot;Maps&quot;.</source>
        <translation>Die Karte würde für diese Session nicht von selbst gefunden: Die Linie ist mehr als 1 km vom Anfang der Aufzeichnung entfernt, und die Fahrt folgt dem Umriss nicht. Wählen Sie die Karte mit „Karten“.</translation>
    </message>
    <message>
        <source>A pass of the line below %5 km/h counts twice, as on a wet or slow day. Make the gate smaller or move the line to where everybody is fast.</source>
        <translation>Ein Überfahren der Linie unter %5 km/h zählt doppelt, wie an einem nassen oder langsamen Tag. Machen Sie das Tor kleiner oder legen Sie die Linie dorthin, wo alle schnell sind.</translation>
    </message>
</context>
<context>
    <name>zuno::MapsWidget</name>
    <message>
        <source>Maps Configuration</source>
        <translation>Kartenauswahl</translation>
    </message>
    <message>
        <source>Auto detect map</source>
        <translation>Karte automatisch finden</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Choose other Map for session : %1</source>
        <translation>Andere Karte wählen für die Session: %1</translation>
    </message>
    <message>
        <source>No session loaded</source>
        <translation>Keine Session geladen</translation>
    </message>
    <message>
        <source>New map from this session...</source>
        <translation>Neue Karte aus dieser Session...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Bearbeiten...</translation>
    </message>
    <message>
        <source>Rename...</source>
        <translation>Umbenennen...</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>Löschen...</translation>
    </message>
    <message>
        <source>Reload maps</source>
        <translation>Karten neu laden</translation>
    </message>
</context>
<context>
    <name>zuno::MeasureLine</name>
    <message>
        <source>%1 to %2: %3</source>
        <comment>places, and the distance between them</comment>
        <translation>%1 bis %2: %3</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Speed min</source>
        <translation>Tempo min.</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>max</source>
        <translation>max.</translation>
    </message>
    <message>
        <source>End measuring (Esc)</source>
        <translation>Messen beenden (Esc)</translation>
    </message>
    <message>
        <source>Click two places in a chart, or draw from one to the other.</source>
        <translation>Klicken Sie zwei Stellen in einem Diagramm an, oder ziehen Sie von der einen zur anderen.</translation>
    </message>
</context>
<context>
    <name>zuno::PageFailure</name>
    <message>
        <source>The map has stopped several times, and was left alone. Everything else goes on working.</source>
        <translation>Die Karte ist mehrmals stehen geblieben und wird nicht mehr gestartet. Alles andere geht weiter.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Noch einmal versuchen</translation>
    </message>
</context>
<context>
    <name>zuno::PassProgress</name>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
</context>
<context>
    <name>zuno::Reference</name>
    <message>
        <source>No lap serves as reference yet.</source>
        <translation>Noch keine Runde dient als Referenz.</translation>
    </message>
    <message>
        <source>The file of the reference, &quot;%1&quot;, is gone.</source>
        <translation>Die Datei der Referenz, „%1“, ist weg.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no lap %2 on this circuit any more.</source>
        <translation>„%1“ hat auf dieser Strecke keine Runde %2 mehr.</translation>
    </message>
    <message>
        <source>The session does not say which vehicle it was.</source>
        <translation>Die Session sagt nicht, welches Motorrad es war.</translation>
    </message>
</context>
<context>
    <name>zuno::ReferenceMenu</name>
    <message>
        <source>Clear: no comparison</source>
        <translation>Aufheben: kein Vergleich</translation>
    </message>
    <message>
        <source>Best of session</source>
        <translation>Beste der Session</translation>
    </message>
    <message>
        <source>Best ever here</source>
        <translation>Beste überhaupt hier</translation>
    </message>
    <message>
        <source>only the same motorcycle</source>
        <translation>nur dasselbe Motorrad</translation>
    </message>
    <message>
        <source>This lap: %1, %2</source>
        <translation>Diese Runde: %1, %2</translation>
    </message>
    <message>
        <source>This lap</source>
        <translation>Diese Runde</translation>
    </message>
    <message>
        <source>Lap of another file...</source>
        <translation>Runde einer anderen Datei...</translation>
    </message>
    <message>
        <source>Recent: none on this circuit</source>
        <translation>Zuletzt: keine auf dieser Strecke</translation>
    </message>
    <message>
        <source>Lap %1 of %2</source>
        <translation>Runde %1 von %2</translation>
    </message>
</context>
<context>
    <name>zuno::RidePreview</name>
    <message>
        <source>Path</source>
        <translation>Weg</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>bis %1</translation>
    </message>
</context>
<context>
    <name>zuno::SessionImport</name>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Importing sessions: %1 of %2</source>
        <translation>Sessions werden importiert: %1 von %2</translation>
    </message>
    <message>
        <source>Nothing was imported: the folder of your sessions is not there.</source>
        <translation>Nichts wurde importiert: Der Ordner Ihrer Sessions ist nicht da.</translation>
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
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Track :</source>
        <translation>Strecke:</translation>
    </message>
    <message>
        <source>Best lap :</source>
        <translation>Beste Runde:</translation>
    </message>
    <message>
        <source>Ideal time :</source>
        <translation>Idealzeit:</translation>
    </message>
    <message>
        <source>Event :</source>
        <translation>Veranstaltung:</translation>
    </message>
    <message>
        <source>Driver :</source>
        <translation>Fahrer:</translation>
    </message>
    <message>
        <source>Vehicle :</source>
        <translation>Motorrad:</translation>
    </message>
    <message>
        <source>Tires :</source>
        <translation>Reifen:</translation>
    </message>
    <message>
        <source>Track temp :</source>
        <translation>Streckentemperatur:</translation>
    </message>
    <message>
        <source>degres</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Track condition :</source>
        <translation>Streckenzustand:</translation>
    </message>
    <message>
        <source>Notes :</source>
        <translation>Notizen:</translation>
    </message>
    <message>
        <source>Enter here, for example, your tyre pressures, your suspension settings...</source>
        <translation>Hier zum Beispiel Reifendrücke und Fahrwerkseinstellungen eintragen...</translation>
    </message>
    <message>
        <source>This file has a format that this version does not know (%1). It is shown, but nothing can be stored in it.</source>
        <translation>Diese Datei hat ein Format, das diese Version nicht kennt (%1). Sie wird gezeigt, aber in ihr kann nichts gespeichert werden.</translation>
    </message>
    <message>
        <source>This file is damaged, or not complete yet. It is shown, but nothing can be stored in it.</source>
        <translation>Diese Datei ist beschädigt oder noch nicht vollständig. Sie wird gezeigt, aber in ihr kann nichts gespeichert werden.</translation>
    </message>
    <message>
        <source>Another program typed here at the same time, and your text has taken its place: %1</source>
        <translation>Ein anderes Programm hat hier zur selben Zeit getippt, und Ihr Text steht jetzt an der Stelle von: %1</translation>
    </message>
</context>
<context>
    <name>zuno::SessionName</name>
    <message>
        <source>A name that begins with a dot is hidden: it would not be listed any more.</source>
        <translation>Ein Name, der mit einem Punkt beginnt, ist versteckt: Er würde nicht mehr aufgeführt.</translation>
    </message>
    <message>
        <source>These cannot stand in a name: %1</source>
        <translation>In einem Namen dürfen nicht stehen: %1</translation>
    </message>
    <message>
        <source>A name cannot begin or end with a blank, nor end with a dot.</source>
        <translation>Ein Name darf nicht mit einem Leerzeichen beginnen oder enden, auch nicht mit einem Punkt enden.</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device; choose another one.</source>
        <translation>Windows benutzt diesen Namen für ein Gerät; wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>Names with &quot;ZUNO&quot; are kept for the folders of loggers, which can be neither renamed nor deleted.</source>
        <translation>Namen mit „ZUNO“ sind den Ordnern der Logger vorbehalten, die weder umbenannt noch gelöscht werden können.</translation>
    </message>
</context>
<context>
    <name>zuno::SessionsStats</name>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>Mehrere</translation>
    </message>
    <message>
        <source>Track :</source>
        <translation>Strecke:</translation>
    </message>
    <message>
        <source>Vehicle :</source>
        <translation>Motorrad:</translation>
    </message>
    <message>
        <source>Driver :</source>
        <translation>Fahrer:</translation>
    </message>
    <message>
        <source>Event :</source>
        <translation>Veranstaltung:</translation>
    </message>
    <message>
        <source>Track condition :</source>
        <translation>Streckenzustand:</translation>
    </message>
    <message>
        <source>Reset all filters</source>
        <translation>Filter zurücksetzen</translation>
    </message>
    <message>
        <source>Sessions without a lap time are not listed</source>
        <translation>Sessions ohne Rundenzeit sind nicht aufgeführt</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Sessions : %1 of %2</source>
        <translation>Sessions: %1 von %2</translation>
    </message>
</context>
<context>
    <name>zuno::SessionsStatsTableModel</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Best Lap</source>
        <translation>Beste Runde</translation>
    </message>
    <message>
        <source>Ideal Time</source>
        <translation>Idealzeit</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Motorrad</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Fahrer</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Veranstaltung</translation>
    </message>
    <message>
        <source>Track condition</source>
        <translation>Streckenzustand</translation>
    </message>
    <message>
        <source>Track temperature</source>
        <translation>Streckentemp.</translation>
    </message>
    <message>
        <source>Tires</source>
        <translation>Reifen</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
</context>
<context>
    <name>zuno::StorableEdits</name>
    <message>
        <source>Replaced: %1</source>
        <translation>Ersetzt: %1</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Ausgelassen: %1</translation>
    </message>
    <message>
        <source>Cut at %1 characters</source>
        <translation>Nach %1 Zeichen abgeschnitten</translation>
    </message>
</context>
<context>
    <name>zuno::TemperatureBox</name>
    <message>
        <source>unknown</source>
        <extracomment>A track temperature that nobody noted.</extracomment>
        <translation>unbekannt</translation>
    </message>
</context>
<context>
    <name>zuno::ThemeButton</name>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light theme, for the sun (%1)</source>
        <translation>Helles Design, für die Sonne (%1)</translation>
    </message>
    <message>
        <source>Dark theme (%1)</source>
        <translation>Dunkles Design (%1)</translation>
    </message>
</context>
<context>
    <name>zuno::UnsavedChanges</name>
    <message>
        <source>Unsaved changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>What you have said about these sessions could not be written into their files:

%1</source>
        <translation>Was Sie zu diesen Sessions eingetragen haben, konnte nicht in ihre Dateien geschrieben werden:

%1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Noch einmal versuchen</translation>
    </message>
    <message>
        <source>Save elsewhere...</source>
        <translation>Woanders speichern...</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>Schließen, ohne zu speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save elsewhere</source>
        <translation>Woanders speichern</translation>
    </message>
    <message>
        <source>These could not be saved there, either:

%1</source>
        <translation>Diese ließen sich auch dort nicht speichern:

%1</translation>
    </message>
</context>
<context>
    <name>zuno::UpdateApp</name>
    <message>
        <source>ZUNO Analyzer update</source>
        <translation>Update von ZUNO Analyzer</translation>
    </message>
    <message>
        <source>A new version of the application is available. 
Do you want to download it now?</source>
        <translation>Eine neue Version des Programms ist verfügbar. 
Jetzt herunterladen?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The new version could not be downloaded and started.</source>
        <translation>Die neue Version konnte nicht geladen und gestartet werden.</translation>
    </message>
    <message>
        <source>Version: %1
Size: %2
From: %3</source>
        <translation>Version: %1
Größe: %2
Von: %3</translation>
    </message>
    <message>
        <source>A new version of the application is available.</source>
        <translation>Eine neue Version der Anwendung ist verfügbar.</translation>
    </message>
    <message>
        <source>Version: %1
This one was installed as a package of your system: install the new package in its place.</source>
        <translation>Version: %1
Diese wurde als Paket Ihres Systems installiert: Installieren Sie das neue Paket an ihrer Stelle.</translation>
    </message>
</context>
<context>
    <name>zuno::UpgradePass</name>
    <message>
        <source>Adding additionnal infos to sessions - for version 1.4.0.0 </source>
        <translation>Zusätzliche Angaben zu den Sessions - für Version 1.4.0.0 </translation>
    </message>
    <message>
        <source> sessions to parse 
In order to have access to all your statistics with this new version of Analyzer, let this analysis finish </source>
        <translation> Sessions zu lesen 
Damit diese neue Version von Analyzer alle Statistiken zeigen kann, lassen Sie diese Auswertung zu Ende laufen </translation>
    </message>
</context>
<context>
    <name>zuno::WherePane</name>
    <message>
        <source>Where is the time</source>
        <translation>Wo liegt die Zeit</translation>
    </message>
    <message>
        <source>Choose a reference...</source>
        <translation>Referenz wählen...</translation>
    </message>
    <message>
        <source>The other corners</source>
        <translation>Die anderen Kurven</translation>
    </message>
    <message>
        <source>thin: won and lost inside the corner</source>
        <translation>dünn: Gewinn, Verlust in der Kurve</translation>
    </message>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Against the best of each corner</source>
        <translation>Gegen das Beste jeder Kurve</translation>
    </message>
    <message>
        <source>The other %1 places</source>
        <translation>Die anderen %1 Stellen</translation>
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
        <translation>   Importieren   </translation>
    </message>
    <message>
        <source>   Settings   </source>
        <translation>   Einstellungen   </translation>
    </message>
    <message>
        <source>   Maps   </source>
        <translation>   Karten   </translation>
    </message>
    <message>
        <source>   Statistics   </source>
        <translation>   Statistik   </translation>
    </message>
    <message>
        <source>   Help   </source>
        <translation>   Hilfe   </translation>
    </message>
    <message>
        <source>Maps and Laps  </source>
        <translation>Karten und Runden  </translation>
    </message>
    <message>
        <source> Session infos  </source>
        <translation> Session-Infos  </translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no session that can be shown: it is damaged, empty, or was written by something else.</source>
        <translation>„%1“ enthält keine darstellbare Session: die Datei ist beschädigt, leer oder anderer Herkunft.</translation>
    </message>
    <message>
        <source>Select one or more session files to import</source>
        <translation>Eine oder mehrere Sessiondateien zum Importieren wählen</translation>
    </message>
    <message>
        <source>RA1 Files (*.ra1)</source>
        <translation>RA1-Dateien (*.ra1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in your library. Do you want to import it?</source>
        <translation>„%1“ ist nicht in Ihrer Bibliothek. Importieren?</translation>
    </message>
    <message>
        <source>There are no sessions yet.

Drop the session files (.ra1) of your logger here, choose them with &quot;Import&quot; (Ctrl+I), or copy them to
%1</source>
        <translation>Es gibt noch keine Sessions.

Ziehen Sie die Sessiondateien (.ra1) Ihres Loggers hierher, wählen Sie sie mit „Importieren“ (Strg+I), oder kopieren Sie sie nach
%1</translation>
    </message>
    <message>
        <source>Select a session in the list on the left to see its laps.</source>
        <translation>Wählen Sie links eine Session, um ihre Runden zu sehen.</translation>
    </message>
    <message>
        <source>Lap %1 (%2) against lap %3 (%4): %5 s</source>
        <translation>Runde %1 (%2) gegen Runde %3 (%4): %5 s</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer there: it was deleted or moved.</source>
        <translation>„%1“ ist nicht mehr da: die Datei wurde gelöscht oder verschoben.</translation>
    </message>
    <message>
        <source>Folder of your sessions</source>
        <translation>Ordner Ihrer Sessions</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there, or is no file.</source>
        <translation>„%1“ ist nicht da oder keine Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to be shown: a session has 1 GB and 20 million samples at most.</source>
        <translation>„%1“ ist zu groß, um gezeigt zu werden: Eine Session hat höchstens 1 GB und 20 Millionen Messpunkte.</translation>
    </message>
    <message>
        <source>Map and Laps</source>
        <translation>Karte und Runden</translation>
    </message>
    <message>
        <source>Nothing can be stored in %1: the disk is full, or the folder cannot be written to.</source>
        <translation>In %1 lässt sich nichts speichern: Der Datenträger ist voll, oder in den Ordner kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>All keys</source>
        <translation>Alle Tasten</translation>
    </message>
    <message>
        <source>Recordings (%1)</source>
        <translation>Aufzeichnungen (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The other language is there when the program starts again. Do you want to start it again now?</source>
        <translation>Die andere Sprache erscheint, wenn das Programm neu startet. Möchten Sie es jetzt neu starten?</translation>
    </message>
    <message>
        <source>Demo files that could not be removed: %1</source>
        <translation>Demo-Dateien, die nicht entfernt werden konnten: %1</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sessions</translation>
    </message>
    <message>
        <source>Shows the list of sessions (F9)</source>
        <translation>Zeigt die Liste der Sessions (F9)</translation>
    </message>
    <message>
        <source>List of sessions</source>
        <translation>Liste der Sessions</translation>
    </message>
    <message>
        <source>Reading your library: %1 of %2 recordings</source>
        <translation>Ihre Bibliothek wird gelesen: %1 von %2 Aufzeichnungen</translation>
    </message>
</context>
</TS>
