<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Channel</name>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>This recording holds no speed.</source>
        <translation>Questa registrazione non contiene la velocità.</translation>
    </message>
    <message>
        <source>Lean angle, left below 0</source>
        <translation>Angolo di piega, sinistra sotto 0</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>This recording holds no lean angle.</source>
        <translation>Questa registrazione non contiene l&apos;angolo di piega.</translation>
    </message>
    <message>
        <source>Acceleration, braking below 0</source>
        <translation>Accelerazione, frenata sotto 0</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>This recording holds no acceleration.</source>
        <translation>Questa registrazione non contiene accelerazioni.</translation>
    </message>
    <message>
        <source>Front suspension, mean and range</source>
        <translation>Sospensione anteriore, media e intervallo</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>This recording holds no front suspension.</source>
        <translation>Questa registrazione non contiene la sospensione anteriore.</translation>
    </message>
    <message>
        <source>Rear suspension, mean and range</source>
        <translation>Sospensione posteriore, media e intervallo</translation>
    </message>
    <message>
        <source>This recording holds no rear suspension.</source>
        <translation>Questa registrazione non contiene la sospensione posteriore.</translation>
    </message>
    <message>
        <source>Time gap, behind above 0</source>
        <translation>Distacco, ritardo sopra 0</translation>
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
        <translation>s dal 1970</translation>
    </message>
    <message>
        <source>ms since 1970</source>
        <translation>ms dal 1970</translation>
    </message>
    <message>
        <source>knots</source>
        <translation>nodi</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>non nota</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>minuti</translation>
    </message>
    <message>
        <source>°, west positive</source>
        <translation>°, ovest positivo</translation>
    </message>
    <message>
        <source>minutes, west positive</source>
        <translation>minuti, ovest positivo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuto</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Secondo</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitudine</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitudine</translation>
    </message>
    <message>
        <source>North or south</source>
        <translation>Nord o sud</translation>
    </message>
    <message>
        <source>East or west</source>
        <translation>Est o ovest</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Direzione</translation>
    </message>
    <message>
        <source>Longitudinal acceleration</source>
        <translation>Accelerazione longitudinale</translation>
    </message>
    <message>
        <source>Lateral acceleration</source>
        <translation>Accelerazione laterale</translation>
    </message>
    <message>
        <source>Acceleration, first axis</source>
        <translation>Accelerazione, primo asse</translation>
    </message>
    <message>
        <source>Acceleration, second axis</source>
        <translation>Accelerazione, secondo asse</translation>
    </message>
    <message>
        <source>Acceleration, third axis</source>
        <translation>Accelerazione, terzo asse</translation>
    </message>
    <message>
        <source>Lean angle</source>
        <translation>Angolo di piega</translation>
    </message>
    <message>
        <source>Front suspension</source>
        <translation>Sospensione anteriore</translation>
    </message>
    <message>
        <source>Rear suspension</source>
        <translation>Sospensione posteriore</translation>
    </message>
    <message>
        <source>New position (1 or 0)</source>
        <translation>Nuova posizione (1 o 0)</translation>
    </message>
    <message>
        <source>Lap number</source>
        <translation>Numero del giro</translation>
    </message>
    <message>
        <source>Positions a second</source>
        <translation>Posizioni al secondo</translation>
    </message>
</context>
<context>
    <name>Deletion</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e altri %2</translation>
    </message>
    <message>
        <source>Recordings: %1</source>
        <translation>Registrazioni: %1</translation>
    </message>
    <message>
        <source>other files: %1</source>
        <translation>altri file: %1</translation>
    </message>
    <message>
        <source>hidden files: %1</source>
        <translation>file nascosti: %1</translation>
    </message>
    <message>
        <source>This stays, as the logger named it: %1</source>
        <translation>Questo resta, perché il nome è del logger: %1</translation>
    </message>
    <message>
        <source>This stays, as it is not in your library: %1</source>
        <translation>Questo resta, perché non è nella tua libreria: %1</translation>
    </message>
</context>
<context>
    <name>DemoSessions</name>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>Non è stato possibile scrivere «%1»: %2</translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>there is no position in it</source>
        <translation>non contiene nessuna posizione</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>è troppo grande</translation>
    </message>
    <message>
        <source>its points have no times</source>
        <translation>i suoi punti non hanno orari</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>riga %1: %2</translation>
    </message>
    <message>
        <source>there is no track in it</source>
        <translation>non contiene nessuna traccia</translation>
    </message>
    <message>
        <source>no sentence has a time and a position</source>
        <translation>nessuna frase ha ora e posizione</translation>
    </message>
    <message>
        <source>the archive is damaged</source>
        <translation>l&apos;archivio è danneggiato</translation>
    </message>
    <message>
        <source>there is no row of a trace</source>
        <translation>non c&apos;è nessuna riga di traccia</translation>
    </message>
    <message>
        <source>no row can be read; the first is line %1</source>
        <translation>nessuna riga è leggibile; la prima è la riga %1</translation>
    </message>
    <message>
        <source>there is no row below [data]</source>
        <translation>non c&apos;è nessuna riga sotto [data]</translation>
    </message>
    <message>
        <source>there is no table with columns for time, latitude and longitude</source>
        <translation>non c&apos;è una tabella con colonne per ora, latitudine e longitudine</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>non può essere letto</translation>
    </message>
    <message>
        <source>is of no kind that can be read</source>
        <translation>non è di un tipo leggibile</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>la cartella non può essere creata</translation>
    </message>
    <message>
        <source>there is not a second of a ride in it</source>
        <translation>non contiene un secondo di guida</translation>
    </message>
    <message>
        <source>%1 Hz: lap times may be off by %2 s</source>
        <translation>%1 Hz: i tempi sul giro possono sbagliare di %2 s</translation>
    </message>
    <message>
        <source>%1 damaged lines left out, the first is line %2</source>
        <translation>%1 righe danneggiate tralasciate, la prima è la riga %2</translation>
    </message>
    <message>
        <source>%1 impossible positions left out</source>
        <translation>%1 posizioni impossibili tralasciate</translation>
    </message>
    <message>
        <source>%1 gaps without a position</source>
        <translation>%1 lacune senza posizione</translation>
    </message>
    <message>
        <source>no speed: computed from positions</source>
        <translation>nessuna velocità: calcolata dalle posizioni</translation>
    </message>
    <message>
        <source>no date: that of the file is taken</source>
        <translation>nessuna data: vale quella del file</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>The manual is not there; it belongs to %1</source>
        <translation>Il manuale non c&apos;è; dovrebbe trovarsi in %1</translation>
    </message>
    <message>
        <source>No program opens the manual: %1</source>
        <translation>Nessun programma può aprire il manuale: %1</translation>
    </message>
</context>
<context>
    <name>IdealTimeSearch</name>
    <message>
        <source>it has been removed</source>
        <translation>è stata rimossa</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>session: reason</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>no map is known for the place where it was recorded</source>
        <translation>nessuna mappa è nota per il luogo in cui è stata registrata</translation>
    </message>
    <message>
        <source>it has no laps on the map &quot;%1&quot;</source>
        <translation>non contiene giri sulla mappa «%1»</translation>
    </message>
    <message>
        <source>%1: it was ridden on &quot;%2&quot;</source>
        <translation>%1: è stata registrata su «%2»</translation>
    </message>
</context>
<context>
    <name>ImportResult</name>
    <message>
        <source>Imported: %1</source>
        <translation>Importate: %1</translation>
    </message>
    <message>
        <source>already there: %1</source>
        <translation>già presenti: %1</translation>
    </message>
    <message>
        <source>no session files: %1</source>
        <translation>non file di sessione: %1</translation>
    </message>
    <message>
        <source>could not be copied: %1</source>
        <translation>copia non riuscita: %1</translation>
    </message>
    <message>
        <source>Import cancelled. %1</source>
        <translation>Importazione annullata. %1</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source>No session files:</source>
        <translation>Non sono file di sessione:</translation>
    </message>
    <message>
        <source>Could not be copied:</source>
        <translation>Non è stato possibile copiarli:</translation>
    </message>
    <message>
        <source>under another name: %1</source>
        <translation>con un altro nome: %1</translation>
    </message>
    <message>
        <source>Under another name, as another session has theirs:</source>
        <translation>Con un altro nome, perché il loro è di un&apos;altra sessione:</translation>
    </message>
</context>
<context>
    <name>LapScene</name>
    <message>
        <source>gaining</source>
        <translation>guadagno</translation>
    </message>
    <message>
        <source>losing %1 s / 100 m</source>
        <translation>perdita %1 s / 100 m</translation>
    </message>
    <message>
        <source>braking</source>
        <translation>frenata</translation>
    </message>
    <message>
        <source>accelerating</source>
        <translation>accelerazione</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>reference, lap %1</source>
        <translation>riferimento, giro %1</translation>
    </message>
    <message>
        <source>brakes</source>
        <translation>frena</translation>
    </message>
    <message>
        <source>on the gas</source>
        <translation>gas</translation>
    </message>
    <message>
        <source>Offline map</source>
        <translation>Mappa offline</translation>
    </message>
    <message>
        <source>first sample</source>
        <translation>primo campione</translation>
    </message>
    <message>
        <source>last sample</source>
        <translation>ultimo campione</translation>
    </message>
</context>
<context>
    <name>LibraryFolder</name>
    <message>
        <source>As soon as it is back, your sessions are shown again.</source>
        <translation>Appena torna, le sessioni si vedono di nuovo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the folder of your sessions: that takes the whole path of a folder of its own.</source>
        <translation>«%1» non può essere la cartella delle sessioni: serve il percorso completo di una cartella a parte.</translation>
    </message>
    <message>
        <source>The folder of your sessions is not there any more: it was moved, or its drive was taken out.

%1</source>
        <translation>La cartella delle tue sessioni non c&apos;è più: è stata spostata, o il suo disco è stato scollegato.

%1</translation>
    </message>
    <message>
        <source>There is nothing left in the folder of your sessions: it was emptied, or its drive was taken out.

%1</source>
        <translation>Nella cartella delle tue sessioni non c&apos;è più niente: è stata svuotata, o il suo disco è stato scollegato.

%1</translation>
    </message>
</context>
<context>
    <name>MapPage</name>
    <message>
        <source>braking</source>
        <translation>frenata</translation>
    </message>
    <message>
        <source>accelerating</source>
        <translation>accelerazione</translation>
    </message>
    <message>
        <source>first lap</source>
        <translation>primo giro</translation>
    </message>
    <message>
        <source>second lap</source>
        <translation>secondo giro</translation>
    </message>
    <message>
        <source>Loading the map...</source>
        <translation>Caricamento della mappa...</translation>
    </message>
    <message>
        <source>Offline map: there is no key for the satellite map</source>
        <translation>Mappa offline: nessuna chiave per la mappa satellitare</translation>
    </message>
    <message>
        <source>Offline map: the satellite map cannot be reached</source>
        <translation>Mappa offline: la mappa satellitare non è raggiungibile</translation>
    </message>
    <message>
        <source>Offline map: the satellite map does not answer</source>
        <translation>Mappa offline: la mappa satellitare non risponde</translation>
    </message>
    <message>
        <source>Offline map: the satellite map refuses the key</source>
        <translation>Mappa offline: la mappa satellitare rifiuta la chiave</translation>
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
        <translation>Così com&apos;è</translation>
    </message>
</context>
<context>
    <name>SessionFile</name>
    <message>
        <source>cannot be read</source>
        <translation>non si può leggere</translation>
    </message>
    <message>
        <source>is no session file</source>
        <translation>non è un file di sessione</translation>
    </message>
    <message>
        <source>has a format that is too old</source>
        <translation>ha un formato troppo vecchio</translation>
    </message>
    <message>
        <source>is too large: a session has 1 GB and 20 million samples at most</source>
        <translation>è troppo grande: una sessione ha al massimo 1 GB e 20 milioni di campioni</translation>
    </message>
</context>
<context>
    <name>SessionSummary</name>
    <message>
        <source>1 sample without GPS</source>
        <translation>1 campione senza GPS</translation>
    </message>
    <message>
        <source>%1 samples without GPS</source>
        <translation>%1 campioni senza GPS</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; has no start point, so laps cannot be cut.

Choose another map with &quot;Maps&quot; (Ctrl+M).</source>
        <translation>La mappa «%1» non ha un punto di partenza, perciò la sessione non si può dividere in giri.

Scegli un&apos;altra mappa con «Mappe» (Ctrl+M).</translation>
    </message>
    <message>
        <source>This session never passes the start/finish line of the map &quot;%1&quot;.

If it was ridden on another circuit, choose its map with &quot;Maps&quot; (Ctrl+M).</source>
        <translation>Questa sessione non passa mai sul traguardo della mappa «%1».

Se hai girato su un altro circuito, scegli la sua mappa con «Mappe» (Ctrl+M).</translation>
    </message>
    <message>
        <source>Ideal Time : %1</source>
        <translation>Tempo ideale: %1</translation>
    </message>
    <message>
        <source>Traveled distance : %1 m</source>
        <translation>Distanza percorsa: %1 m</translation>
    </message>
    <message>
        <source>Infos of first lap selected : Map : %1 --- Session : %2 --- Lap num : %3 --- Lap time : %4 --- max speed : %5 km/h</source>
        <translation>Primo giro scelto: Mappa: %1 --- Sessione: %2 --- Giro n.: %3 --- Tempo: %4 --- Velocità max: %5 km/h</translation>
    </message>
    <message>
        <source>No map is known for the place where this session was recorded, so it cannot be cut into laps.

Make a new map from it, choose a map with &quot;Maps&quot; (Ctrl+M), or copy the circuit&apos;s map file to
%1</source>
        <translation>Nessuna mappa è nota per il luogo in cui è stata registrata questa sessione, perciò non si può dividere in giri.

Usala per creare una nuova mappa, scegli una mappa con «Mappe» (Ctrl+M) o copia il file di mappa del circuito in
%1</translation>
    </message>
    <message>
        <source>There is not enough memory to show this session.</source>
        <translation>Non c&apos;è abbastanza memoria per mostrare questa sessione.</translation>
    </message>
    <message>
        <source>Traveled distance : %1</source>
        <translation>Distanza percorsa: %1</translation>
    </message>
</context>
<context>
    <name>TimePlace</name>
    <message>
        <source>Start/finish</source>
        <translation>Traguardo</translation>
    </message>
    <message>
        <source>Corner %1</source>
        <translation>Curva %1</translation>
    </message>
    <message>
        <source>Corners %1</source>
        <translation>Curve %1</translation>
    </message>
    <message>
        <source>right</source>
        <translation>destra</translation>
    </message>
    <message>
        <source>left</source>
        <translation>sinistra</translation>
    </message>
    <message>
        <source>%1 seconds lost</source>
        <translation>%1 secondi persi</translation>
    </message>
    <message>
        <source>%1 seconds won</source>
        <translation>%1 secondi guadagnati</translation>
    </message>
</context>
<context>
    <name>zuno::AboutWidget</name>
    <message>
        <source>About ZUNO Analyzer</source>
        <translation>Informazioni su ZUNO Analyzer</translation>
    </message>
    <message>
        <source>ZUNO Analyzer</source>
        <translation>ZUNO Analyzer</translation>
    </message>
    <message>
        <source>Version 1.5.0.0</source>
        <translation>Versione 1.5.0.0</translation>
    </message>
    <message>
        <source>Web site :</source>
        <translation>Sito web:</translation>
    </message>
    <message>
        <source>Email :</source>
        <translation>E-mail:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>zuno::AcquisitionLibrary</name>
    <message>
        <source>A name in your library could not be read; it is &quot;%1&quot; now.</source>
        <translation>Un nome nella libreria non era leggibile; ora è «%1».</translation>
    </message>
</context>
<context>
    <name>zuno::AppearanceSettings</name>
    <message>
        <source>Appearance</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Come il desktop</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Scuro</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Chiaro</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distanza</translation>
    </message>
    <message>
        <source>Metres</source>
        <translation>Metri</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Piedi</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Cartelle</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sessioni</translation>
    </message>
    <message>
        <source>Choose the folder of your sessions</source>
        <translation>Scegli la cartella delle sessioni</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Scegli...</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>Choose the folder of your maps</source>
        <translation>Scegli la cartella delle mappe</translation>
    </message>
    <message>
        <source>Folder of your sessions</source>
        <translation>Cartella delle sessioni</translation>
    </message>
    <message>
        <source>Folder of your maps</source>
        <translation>Cartella delle mappe</translation>
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
        <translation>arriva più lento di %1 km/h</translation>
    </message>
    <message>
        <source>brakes %1 m earlier</source>
        <translation>frena %1 m prima</translation>
    </message>
    <message>
        <source>%1 km/h slower into the corner</source>
        <translation>%1 km/h più lento all&apos;ingresso della curva</translation>
    </message>
    <message>
        <source>%1 km/h slower at the slowest point</source>
        <translation>%1 km/h più lento nel punto più lento</translation>
    </message>
    <message>
        <source>%1 km/h slower at the exit, on the gas %2 m later</source>
        <translation>%1 km/h più lento in uscita, gas %2 m dopo</translation>
    </message>
    <message>
        <source>%1 km/h slower at the exit</source>
        <translation>%1 km/h più lento in uscita</translation>
    </message>
    <message>
        <source>up to %1 km/h slower before the corner</source>
        <translation>fino a %1 km/h più lento prima della curva</translation>
    </message>
    <message>
        <source>up to %1 km/h slower in the corner</source>
        <translation>fino a %1 km/h più lento in curva</translation>
    </message>
    <message>
        <source>up to %1 km/h slower after the corner</source>
        <translation>fino a %1 km/h più lento dopo la curva</translation>
    </message>
    <message>
        <source>corner %1: %2</source>
        <translation>curva %1: %2</translation>
    </message>
</context>
<context>
    <name>zuno::ChartHead</name>
    <message>
        <source>Lap %1</source>
        <translation>Giro %1</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenza</translation>
    </message>
    <message>
        <source>Lap %1 was not here</source>
        <translation>Il giro %1 non è passato di qui</translation>
    </message>
    <message>
        <source>Delay on the lap %1</source>
        <translation>Ritardo sul giro %1</translation>
    </message>
    <message>
        <source>Ahead on the lap %1 (%2 - %3)</source>
        <translation>Vantaggio sul giro %1 (%2 - %3)</translation>
    </message>
</context>
<context>
    <name>zuno::CheckableComboBox</name>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(vuoto)</translation>
    </message>
</context>
<context>
    <name>zuno::ColumnDialog</name>
    <message>
        <source>Columns of %1</source>
        <translation>Colonne di %1</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonna</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Grandezza</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>non usata</translation>
    </message>
    <message>
        <source>Time, latitude and longitude are needed.</source>
        <translation>Servono tempo, latitudine e longitudine.</translation>
    </message>
    <message>
        <source>These columns give no ride of a second.</source>
        <translation>Queste colonne non danno un secondo di guida.</translation>
    </message>
    <message>
        <source>%1 s of a ride from the begin of the file; lines that cannot be read: %2</source>
        <translation>%1 s di guida dall&apos;inizio del file; righe illeggibili: %2</translation>
    </message>
</context>
<context>
    <name>zuno::Comparing</name>
    <message>
        <source>Compare with this lap</source>
        <translation>Confronta con questo giro</translation>
    </message>
    <message>
        <source>Choose the reference</source>
        <translation>Scegli il riferimento</translation>
    </message>
    <message>
        <source>No comparison</source>
        <translation>Nessun confronto</translation>
    </message>
    <message>
        <source>Swap lap and reference</source>
        <translation>Scambia giro e riferimento</translation>
    </message>
    <message>
        <source>Largest loss</source>
        <translation>Perdita maggiore</translation>
    </message>
    <message>
        <source>Second largest loss</source>
        <translation>Seconda perdita</translation>
    </message>
    <message>
        <source>Third largest loss</source>
        <translation>Terza perdita</translation>
    </message>
    <message>
        <source>Corner before</source>
        <translation>Curva precedente</translation>
    </message>
    <message>
        <source>Next corner</source>
        <translation>Curva successiva</translation>
    </message>
    <message>
        <source>The whole lap</source>
        <translation>Il giro intero</translation>
    </message>
    <message>
        <source>The name could not be kept: %1</source>
        <translation>Non è stato possibile conservare il nome: %1</translation>
    </message>
</context>
<context>
    <name>zuno::Comparison</name>
    <message>
        <source>New best lap here: %1, lap %2 of %3</source>
        <translation>Nuovo giro migliore qui: %1, giro %2 di %3</translation>
    </message>
    <message>
        <source>This lap does not go from line to line, so its corners cannot be compared.</source>
        <translation>Questo giro non va da traguardo a traguardo, perciò le sue curve non si possono confrontare.</translation>
    </message>
    <message>
        <source>Choose a reference to see where the time is.</source>
        <translation>Scegli un riferimento per vedere dov&apos;è il tempo.</translation>
    </message>
    <message>
        <source>Looking for the best lap...</source>
        <translation>Ricerca del giro migliore...</translation>
    </message>
    <message>
        <source>No corners are known here, so there is nothing to compare them by.</source>
        <translation>Qui non è nota nessuna curva, perciò non c&apos;è nulla da confrontare.</translation>
    </message>
    <message>
        <source>There is no lap from line to line.</source>
        <translation>Non c&apos;è nessun giro da traguardo a traguardo.</translation>
    </message>
    <message>
        <source>The map&apos;s outline is too rough for its corners.</source>
        <translation>Il tracciato della mappa è troppo grossolano per le sue curve.</translation>
    </message>
    <message>
        <source>The receiver measured about once a second; that is too seldom for corners.</source>
        <translation>Il ricevitore ha misurato circa una volta al secondo; è troppo poco per le curve.</translation>
    </message>
</context>
<context>
    <name>zuno::ComparisonBar</name>
    <message>
        <source>against</source>
        <translation>contro</translation>
    </message>
    <message>
        <source>Chooses what every lap is compared with (R)</source>
        <translation>Sceglie con che cosa si confronta ogni giro (R)</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Riferimento</translation>
    </message>
    <message>
        <source>Draws another lap as well (O in the table)</source>
        <translation>Disegna un giro in più (O nella tabella)</translation>
    </message>
    <message>
        <source>+ Lap</source>
        <translation>+ Giro</translation>
    </message>
    <message>
        <source>Makes the reference the selected lap, and the selected lap the reference (X)</source>
        <translation>Fa del riferimento il giro selezionato, e del giro selezionato il riferimento (X)</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Scambia</translation>
    </message>
    <message>
        <source>No comparison (Shift+R)</source>
        <translation>Nessun confronto (Shift+R)</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Azzera</translation>
    </message>
    <message>
        <source>Lap %1</source>
        <translation>Giro %1</translation>
    </message>
    <message>
        <source>Nothing to compare yet: there are no laps.</source>
        <translation>Ancora nulla da confrontare: non ci sono giri.</translation>
    </message>
    <message>
        <source>Looking for the best lap...</source>
        <translation>Ricerca del giro migliore...</translation>
    </message>
    <message>
        <source>Best of session</source>
        <translation>Migliore della sessione</translation>
    </message>
    <message>
        <source>Best ever here</source>
        <translation>Migliore di sempre qui</translation>
    </message>
    <message>
        <source>Best ever here, same motorcycle</source>
        <translation>Migliore di sempre qui, stessa moto</translation>
    </message>
    <message>
        <source>chosen by hand</source>
        <translation>scelto a mano</translation>
    </message>
    <message>
        <source>No reference on this circuit yet</source>
        <translation>Ancora nessun riferimento su questo circuito</translation>
    </message>
    <message>
        <source>reference</source>
        <translation>riferimento</translation>
    </message>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>as fast</source>
        <translation>uguale</translation>
    </message>
    <message>
        <source>slower</source>
        <translation>più lento</translation>
    </message>
    <message>
        <source>faster</source>
        <translation>più veloce</translation>
    </message>
    <message>
        <source>Takes lap %1 away</source>
        <translation>Toglie il giro %1</translation>
    </message>
    <message>
        <source>Six laps are drawn at most; take one away first.</source>
        <translation>Si disegnano al massimo sei giri; togline prima uno.</translation>
    </message>
</context>
<context>
    <name>zuno::ConfigurationWidget</name>
    <message>
        <source>ZUNO Analyzer settings</source>
        <translation>Impostazioni di ZUNO Analyzer</translation>
    </message>
    <message>
        <source>Display colunms</source>
        <translation>Colonne da mostrare</translation>
    </message>
    <message>
        <source>Lap type</source>
        <translation>Tipo di giro</translation>
    </message>
    <message>
        <source>Cumulate time</source>
        <translation>Tempo cumulato</translation>
    </message>
    <message>
        <source>Max speed</source>
        <translation>Velocità max</translation>
    </message>
    <message>
        <source>Min Speed</source>
        <translation>Velocità min</translation>
    </message>
    <message>
        <source>Angle left</source>
        <translation>Piega a sinistra</translation>
    </message>
    <message>
        <source>Angle right</source>
        <translation>Piega a destra</translation>
    </message>
    <message>
        <source>Accel</source>
        <translation>Accel.</translation>
    </message>
    <message>
        <source>Decel</source>
        <translation>Decel.</translation>
    </message>
    <message>
        <source>Min front suspension</source>
        <translation>Sospensione anteriore min</translation>
    </message>
    <message>
        <source>Max front suspension</source>
        <translation>Sospensione anteriore max</translation>
    </message>
    <message>
        <source>Min rear suspension</source>
        <translation>Sospensione posteriore min</translation>
    </message>
    <message>
        <source>Max rear suspension</source>
        <translation>Sospensione posteriore max</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Settori</translation>
    </message>
    <message>
        <source>Display on the map</source>
        <translation>Da mostrare sulla mappa</translation>
    </message>
    <message>
        <source>Show local min/max speed</source>
        <translation>Velocità min/max locali</translation>
    </message>
    <message>
        <source>Show sectors points</source>
        <translation>Punti dei settori</translation>
    </message>
    <message>
        <source>Use gradient lap comparison</source>
        <translation>Confronto dei giri con sfumatura</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>New releases</source>
        <translation>Nuove versioni</translation>
    </message>
    <message>
        <source>Look for a new release at every start</source>
        <translation>Cerca una nuova versione a ogni avvio</translation>
    </message>
</context>
<context>
    <name>zuno::CornerNames</name>
    <message>
        <source>The file of corners beside the map is damaged, or a later program wrote it; it is left alone.</source>
        <translation>Il file delle curve accanto alla mappa è danneggiato, o di una versione più recente; resta com&apos;è.</translation>
    </message>
</context>
<context>
    <name>zuno::CornerStrip</name>
    <message>
        <source>Corners of the lap</source>
        <translation>Curve del giro</translation>
    </message>
    <message>
        <source>Corner %1</source>
        <translation>Curva %1</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Rettilineo</translation>
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
        <translation>Curve</translation>
    </message>
    <message>
        <source>A click shows the corner in charts and map, F2 gives it a name</source>
        <translation>Un clic mostra la curva nei grafici e sulla mappa, F2 le dà un nome</translation>
    </message>
    <message>
        <source>Name of the corner</source>
        <translation>Nome della curva</translation>
    </message>
    <message>
        <source>Corner %1:</source>
        <translation>Curva %1:</translation>
    </message>
</context>
<context>
    <name>zuno::CornerTableModel</name>
    <message>
        <source>right</source>
        <translation>destra</translation>
    </message>
    <message>
        <source>left</source>
        <translation>sinistra</translation>
    </message>
    <message>
        <source>T%1</source>
        <comment>a corner&apos;s number</comment>
        <translation>T%1</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Diff.</source>
        <translation>Diff.</translation>
    </message>
    <message>
        <source>Brakes at</source>
        <translation>Frena a</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Ingresso</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimo</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Uscita</translation>
    </message>
    <message>
        <source>Lean</source>
        <translation>Piega</translation>
    </message>
    <message>
        <source>On the gas</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Dispersione</translation>
    </message>
    <message>
        <source>Spread, %1 laps</source>
        <translation>Dispersione, %1 giri</translation>
    </message>
</context>
<context>
    <name>zuno::CornersPane</name>
    <message>
        <source>Join</source>
        <translation>Unisci</translation>
    </message>
    <message>
        <source>Makes one corner of the selected one and the next</source>
        <translation>Fa una sola curva di quella selezionata e della successiva</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Dividi</translation>
    </message>
    <message>
        <source>Makes two corners of the selected one</source>
        <translation>Fa due curve di quella selezionata</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>The selected one counts as no corner</source>
        <translation>Quella selezionata non conta come curva</translation>
    </message>
    <message>
        <source>As found</source>
        <translation>Come trovate</translation>
    </message>
    <message>
        <source>Takes back all changes of the corners</source>
        <translation>Annulla tutte le modifiche delle curve</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Verso</translation>
    </message>
    <message>
        <source>From the line</source>
        <translation>Dal traguardo</translation>
    </message>
    <message>
        <source>Turns</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <source>A double click on a corner gives it a name</source>
        <translation>Un doppio clic su una curva le dà un nome</translation>
    </message>
    <message>
        <source>right</source>
        <translation>destra</translation>
    </message>
    <message>
        <source>left</source>
        <translation>sinistra</translation>
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
        <translation>Scarica l&apos;aggiornamento di ZUNO Analyzer</translation>
    </message>
    <message>
        <source>Downloading the new version...</source>
        <translation>Scaricamento della nuova versione...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>zuno::EmptyPage</name>
    <message>
        <source>There are no sessions yet.</source>
        <translation>Non ci sono ancora sessioni.</translation>
    </message>
    <message>
        <source>Drop the session files (.ra1) of your logger here, or a whole folder.</source>
        <translation>Trascina qui i file di sessione (.ra1) del tuo logger, o un&apos;intera cartella.</translation>
    </message>
    <message>
        <source>Import (Ctrl+I)</source>
        <translation>Importa (Ctrl+I)</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importa...</translation>
    </message>
    <message>
        <source>Show the demo</source>
        <translation>Mostra la demo</translation>
    </message>
    <message>
        <source>The demo: invented sessions of three riders on three circuits. They can be taken away again with one click.</source>
        <translation>La demo: sessioni inventate di tre piloti su tre circuiti. Basta un clic per rimuoverle.</translation>
    </message>
    <message>
        <source>1  Import a session      2  Its circuit is found, laps are cut      3  See where the time is</source>
        <translation>1  Importa una sessione      2  Il circuito viene trovato, i giri divisi      3  Guarda dov&apos;è il tempo</translation>
    </message>
    <message>
        <source>Files can also be copied to %1</source>
        <translation>I file si possono anche copiare in %1</translation>
    </message>
</context>
<context>
    <name>zuno::ExportDialogs</name>
    <message>
        <source>Export Session file</source>
        <translation>Esporta il file della sessione</translation>
    </message>
    <message>
        <source>RA1 files (.ra1);</source>
        <translation>File RA1 (.ra1);</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already; nothing was exported.</source>
        <translation>«%1» esiste già; non è stato esportato nulla.</translation>
    </message>
    <message>
        <source>Export Session Data file</source>
        <translation>Esporta i dati della sessione</translation>
    </message>
    <message>
        <source>CSV files (.csv);</source>
        <translation>File CSV (.csv);</translation>
    </message>
    <message>
        <source>the session&apos;s file has changed or is gone</source>
        <translation>il file della sessione è cambiato o non c&apos;è più</translation>
    </message>
    <message>
        <source>Export Lap file</source>
        <translation>Esporta il giro</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;.</source>
        <translation>Esportato in «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>Non è stato possibile scrivere «%1»: %2</translation>
    </message>
    <message>
        <source>Export for other programs</source>
        <translation>Esporta per altri programmi</translation>
    </message>
    <message>
        <source>%1 sessions were exported to &quot;%2&quot;.</source>
        <translation>%1 sessioni esportate in «%2».</translation>
    </message>
    <message>
        <source>CSV with units (*.csv)</source>
        <translation>CSV con unità (*.csv)</translation>
    </message>
</context>
<context>
    <name>zuno::IdealTimeDialog</name>
    <message>
        <source>Multi sessions ideal time</source>
        <translation>Tempo ideale su più sessioni</translation>
    </message>
    <message>
        <source>%v / %m</source>
        <translation>%v / %m</translation>
    </message>
    <message>
        <source>Copy table</source>
        <translation>Copia la tabella</translation>
    </message>
    <message>
        <source>Enter or a double click shows the lap, Ctrl+C copies the table</source>
        <translation>Invio o un doppio clic mostra il giro, Ctrl+C copia la tabella</translation>
    </message>
    <message>
        <source>Computing the ideal time...</source>
        <translation>Calcolo del tempo ideale...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Show this lap</source>
        <translation>Mostra questo giro</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Map : %1</source>
        <translation>Mappa: %1</translation>
    </message>
    <message>
        <source>sessions : %1 of %2</source>
        <translation>sessioni: %1 di %2</translation>
    </message>
    <message>
        <source>None of these sessions can be cut into laps, so there is no ideal time.</source>
        <translation>Nessuna di queste sessioni si può dividere in giri, perciò non c&apos;è un tempo ideale.</translation>
    </message>
    <message>
        <source>These sessions have no valid lap that went through a section, so there is no ideal time.</source>
        <translation>In queste sessioni nessun giro valido attraversa un settore, perciò non c&apos;è un tempo ideale.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation>Escluse:</translation>
    </message>
</context>
<context>
    <name>zuno::IdealTimeModel</name>
    <message>
        <source>Section %1</source>
        <translation>Settore %1</translation>
    </message>
    <message>
        <source>Ideal time</source>
        <translation>Tempo ideale</translation>
    </message>
    <message>
        <source>Best lap</source>
        <translation>Giro migliore</translation>
    </message>
    <message>
        <source>Best continuous lap</source>
        <translation>Miglior giro continuo</translation>
    </message>
    <message>
        <source>Best continuous lap, from the end of section %1</source>
        <translation>Miglior giro continuo, da fine settore %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>laps</comment>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>What the best lap lost in a section; what a lap lost on the ideal time (seconds)</source>
        <translation>Quanto il giro migliore ha perso in un settore; quanto un giro ha perso sul tempo ideale (secondi)</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Settore</translation>
    </message>
    <message>
        <source>Best time</source>
        <translation>Miglior tempo</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sessione</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Pilota</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>In best lap</source>
        <translation>Giro migliore</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenza</translation>
    </message>
</context>
<context>
    <name>zuno::IdealTimeText</name>
    <message>
        <source>without section %1: no lap passed timing point %1 in its circle</source>
        <translation>senza la sezione %1: nessun giro è passato nel cerchio del punto %1</translation>
    </message>
    <message>
        <source>without those of lap %1, the best, from section %2 on: it passed timing point %2 outside of its circle</source>
        <translation>senza quelle del giro %1, il migliore, dalla sezione %2: è passato fuori dal cerchio del punto %2</translation>
    </message>
</context>
<context>
    <name>zuno::ImportDialog</name>
    <message>
        <source>Import</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>Sessions are made of these recordings; the files themselves stay as they are.</source>
        <translation>Da queste registrazioni si ricavano sessioni; i file stessi restano come sono.</translation>
    </message>
    <message>
        <source>Columns...</source>
        <translation>Colonne...</translation>
    </message>
    <message>
        <source>Says what the columns of the selected table hold</source>
        <translation>Indica che cosa contengono le colonne della tabella selezionata</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Lettura di %1</translation>
    </message>
    <message>
        <source>1 session will be imported.</source>
        <translation>Verrà importata 1 sessione.</translation>
    </message>
    <message>
        <source>%1 sessions will be imported.</source>
        <translation>Verranno importate %1 sessioni.</translation>
    </message>
</context>
<context>
    <name>zuno::ImportTable</name>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Circuit</source>
        <translation>Circuito</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Frequenza</translation>
    </message>
    <message>
        <source>Laps</source>
        <translation>Giri</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Osservazioni</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>no map of this circuit</source>
        <translation>nessuna mappa di questo circuito</translation>
    </message>
    <message>
        <source>was imported before, as &quot;%1&quot;</source>
        <translation>è già stato importato, come «%1»</translation>
    </message>
    <message>
        <source>%1; say what its columns are</source>
        <translation>%1; indica che cosa sono le colonne</translation>
    </message>
</context>
<context>
    <name>zuno::InformationNotice</name>
    <message>
        <source>Put it back</source>
        <translation>Riprendi l&apos;altro</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Tieni il mio</translation>
    </message>
</context>
<context>
    <name>zuno::InformationWriter</name>
    <message>
        <source>%1 was not changed: %2. Changes are kept until the program ends.</source>
        <translation>%1 non è stato modificato: %2. Le modifiche restano fino alla chiusura del programma.</translation>
    </message>
    <message>
        <source>the file holds another recording now</source>
        <translation>il file contiene ora un&apos;altra registrazione</translation>
    </message>
    <message>
        <source>%1 was changed by another program meanwhile; its changes were kept.</source>
        <translation>%1 è stato modificato nel frattempo da un altro programma; le sue modifiche sono state mantenute.</translation>
    </message>
    <message>
        <source>the file is write-protected</source>
        <translation>il file è protetto da scrittura</translation>
    </message>
    <message>
        <source>the file is damaged, or ends too early</source>
        <translation>il file è danneggiato o finisce troppo presto</translation>
    </message>
    <message>
        <source>its format is not known</source>
        <translation>il suo formato non è noto</translation>
    </message>
    <message>
        <source>%1 was changed by another program meanwhile. Where you both typed, your text stands; the page &quot;Session infos&quot; offers the other one.</source>
        <translation>%1 è stato modificato nel frattempo da un altro programma. Dove avete scritto entrambi resta il tuo testo; la scheda «Info sessione» offre l&apos;altro.</translation>
    </message>
    <message>
        <source>the file is not in your library</source>
        <translation>il file non è nella tua libreria</translation>
    </message>
</context>
<context>
    <name>zuno::KeySheet</name>
    <message>
        <source>In the list of sessions</source>
        <translation>Nell&apos;elenco delle sessioni</translation>
    </message>
    <message>
        <source>In the laps table</source>
        <translation>Nella tabella dei giri</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>Ovunque</translation>
    </message>
    <message>
        <source>About ZUNO Analyzer</source>
        <translation>Informazioni su ZUNO Analyzer</translation>
    </message>
    <message>
        <source>In the charts</source>
        <translation>Nei grafici</translation>
    </message>
    <message>
        <source>Cursor to the sample before or after</source>
        <translation>Cursore al campione prima o dopo</translation>
    </message>
    <message>
        <source>Cursor to the begin or end</source>
        <translation>Cursore all&apos;inizio o alla fine</translation>
    </message>
    <message>
        <source>Zoom in or out around the cursor</source>
        <translation>Ingrandisci o riduci attorno al cursore</translation>
    </message>
    <message>
        <source>A page back or on</source>
        <translation>Una pagina indietro o avanti</translation>
    </message>
    <message>
        <source>The whole lap</source>
        <translation>Il giro intero</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasti</translation>
    </message>
    <message>
        <source>The biggest losses</source>
        <translation>Le perdite maggiori</translation>
    </message>
    <message>
        <source>The corner before or after</source>
        <translation>La curva precedente o successiva</translation>
    </message>
    <message>
        <source>Over the distance or the time</source>
        <translation>Sulla distanza o sul tempo</translation>
    </message>
    <message>
        <source>Measure between two places</source>
        <translation>Misura tra due punti</translation>
    </message>
</context>
<context>
    <name>zuno::LapCharts</name>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Piega</translation>
    </message>
    <message>
        <source>Accel/Decel</source>
        <translation>Accel./Decel.</translation>
    </message>
    <message>
        <source>Front susp.</source>
        <translation>Sosp. ant.</translation>
    </message>
    <message>
        <source>Rear susp.</source>
        <translation>Sosp. post.</translation>
    </message>
    <message>
        <source>Compare positions</source>
        <translation>Confronta le posizioni</translation>
    </message>
    <message>
        <source>Compare time</source>
        <translation>Confronta il tempo</translation>
    </message>
    <message>
        <source>Distance</source>
        <comment>the charts&apos; axis</comment>
        <translation>Distanza</translation>
    </message>
    <message>
        <source>Time</source>
        <comment>the charts&apos; axis</comment>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canali</translation>
    </message>
    <message>
        <source>the whole session</source>
        <translation>tutta la sessione</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Misura</translation>
    </message>
    <message>
        <source>Measure between two places (M)</source>
        <translation>Misura tra due punti (M)</translation>
    </message>
    <message>
        <source>Whole lap</source>
        <translation>Giro intero</translation>
    </message>
    <message>
        <source>Show the whole lap (Esc)</source>
        <translation>Mostra il giro intero (Esc)</translation>
    </message>
    <message>
        <source>Previous corner (,)</source>
        <translation>Curva precedente (,)</translation>
    </message>
    <message>
        <source>Previous corner</source>
        <translation>Curva precedente</translation>
    </message>
    <message>
        <source>Next corner (.)</source>
        <translation>Curva successiva (.)</translation>
    </message>
    <message>
        <source>Next corner</source>
        <translation>Curva successiva</translation>
    </message>
    <message>
        <source>Whole session</source>
        <translation>Tutta la sessione</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Corner %1</source>
        <translation>Curva %1</translation>
    </message>
</context>
<context>
    <name>zuno::LapChooser</name>
    <message>
        <source>Lap of another file</source>
        <translation>Giro di un altro file</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sessione</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Pilota</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Lap %1</source>
        <translation>Giro %1</translation>
    </message>
    <message>
        <source>No lap of this circuit</source>
        <translation>Nessun giro di questo circuito</translation>
    </message>
</context>
<context>
    <name>zuno::LapFlag</name>
    <message>
        <source>from the pits</source>
        <translation>dai box</translation>
    </message>
    <message>
        <source>into the pits</source>
        <translation>ai box</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>fermo</translation>
    </message>
    <message>
        <source>slow +%1 %</source>
        <translation>lento +%1 %</translation>
    </message>
    <message>
        <source>positions off</source>
        <translation>posizioni errate</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>lacuna</translation>
    </message>
    <message>
        <source>held up</source>
        <translation>ostacolato</translation>
    </message>
</context>
<context>
    <name>zuno::LapReason</name>
    <message>
        <source>held up</source>
        <translation>ostacolato</translation>
    </message>
    <message>
        <source>missed the line</source>
        <translation>traguardo mancato</translation>
    </message>
    <message>
        <source>warm-up</source>
        <translation>giro di riscaldamento</translation>
    </message>
    <message>
        <source>other</source>
        <translation>altro</translation>
    </message>
</context>
<context>
    <name>zuno::LapsPane</name>
    <message>
        <source>Ideal time :</source>
        <translation>Tempo ideale:</translation>
    </message>
    <message>
        <source>Traveled distance :</source>
        <translation>Distanza percorsa:</translation>
    </message>
    <message>
        <source>New map from this session...</source>
        <translation>Nuova mappa dalla sessione...</translation>
    </message>
    <message>
        <source>The best time of each section, and the lap that holds it</source>
        <translation>Il miglior tempo di ogni settore e il giro in cui è stato fatto</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Settore</translation>
    </message>
    <message>
        <source>Best time</source>
        <translation>Miglior tempo</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Scegli un&apos;altra cartella...</translation>
    </message>
    <message>
        <source>Laps</source>
        <translation>Giri</translation>
    </message>
    <message>
        <source>The laps of the session</source>
        <translation>I giri della sessione</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Curve</translation>
    </message>
    <message>
        <source>The corners of the circuit in the selected lap</source>
        <translation>Le curve del circuito nel giro selezionato</translation>
    </message>
</context>
<context>
    <name>zuno::LapsTableModel</name>
    <message>
        <source>Complete</source>
        <translation>Completo</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>Incompleto</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Cumulated time</source>
        <translation>Cumulato</translation>
    </message>
    <message>
        <source>Lap time</source>
        <translation>Tempo giro</translation>
    </message>
    <message>
        <source>Max speed</source>
        <translation>Vel. max</translation>
    </message>
    <message>
        <source>Min speed</source>
        <translation>Vel. min</translation>
    </message>
    <message>
        <source>Left Angle</source>
        <translation>Piega sin.</translation>
    </message>
    <message>
        <source>Right Angle</source>
        <translation>Piega des.</translation>
    </message>
    <message>
        <source>Accel</source>
        <translation>Accel.</translation>
    </message>
    <message>
        <source>Decel</source>
        <translation>Decel.</translation>
    </message>
    <message>
        <source>Min front susp.</source>
        <translation>Sosp. ant. min</translation>
    </message>
    <message>
        <source>Max front susp.</source>
        <translation>Sosp. ant. max</translation>
    </message>
    <message>
        <source>Min rear susp.</source>
        <translation>Sosp. post. min</translation>
    </message>
    <message>
        <source>Max rear susp.</source>
        <translation>Sosp. post. max</translation>
    </message>
    <message>
        <source>Section %1</source>
        <translation>Settore %1</translation>
    </message>
    <message>
        <source>Counted twice</source>
        <translation>Contato due volte</translation>
    </message>
</context>
<context>
    <name>zuno::LapsView</name>
    <message>
        <source>V throws a lap out or takes it back, C compares, Ctrl+E exports; the menu key shows everything that can be done with a lap</source>
        <translation>V scarta un giro o lo riprende, C confronta, Ctrl+E esporta; il tasto Menu mostra tutto ciò che si può fare con un giro</translation>
    </message>
    <message>
        <source>Reselect first lap</source>
        <translation>Scegli un altro primo giro</translation>
    </message>
    <message>
        <source>Export lap</source>
        <translation>Esporta il giro</translation>
    </message>
    <message>
        <source>Invalidate lap</source>
        <translation>Invalida il giro</translation>
    </message>
    <message>
        <source>Validate lap</source>
        <translation>Convalida il giro</translation>
    </message>
    <message>
        <source>Compare to this lap</source>
        <translation>Confronta con questo giro</translation>
    </message>
    <message>
        <source>Compare this lap with...</source>
        <translation>Confronta questo giro con...</translation>
    </message>
    <message>
        <source>This is the first lap itself; choose another one to compare it with.</source>
        <translation>Questo è il primo giro stesso; ne scelga un altro da confrontare.</translation>
    </message>
    <message>
        <source>Draw no longer besides</source>
        <translation>Non disegnare più in aggiunta</translation>
    </message>
    <message>
        <source>Draw besides</source>
        <translation>Disegna in aggiunta</translation>
    </message>
    <message>
        <source>Six laps are drawn at most; take one away first.</source>
        <translation>Si disegnano al massimo sei giri; togline prima uno.</translation>
    </message>
</context>
<context>
    <name>zuno::LibraryPane</name>
    <message>
        <source>Demo sessions</source>
        <translation>Sessioni demo</translation>
    </message>
    <message>
        <source>Takes the demo sessions and their maps away</source>
        <translation>Rimuove le sessioni demo e le loro mappe</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
</context>
<context>
    <name>zuno::LibraryTree</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Do not use [^\/`~@#$%^&amp;*:?&quot;&lt;&gt;|] characters</source>
        <translation>Non usare i caratteri [^\/`~@#$%^&amp;*:?&quot;&lt;&gt;|]</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nuova cartella</translation>
    </message>
    <message>
        <source>Export Session</source>
        <translation>Esporta la sessione</translation>
    </message>
    <message>
        <source>Export Session Data (CSV)</source>
        <translation>Esporta i dati della sessione (CSV)</translation>
    </message>
    <message>
        <source>Compute multisession ideal time</source>
        <translation>Calcola il tempo ideale su più sessioni</translation>
    </message>
    <message>
        <source>Enter displays a session, F2 renames, Del deletes</source>
        <translation>Invio mostra una sessione, F2 rinomina, Canc elimina</translation>
    </message>
    <message>
        <source>Rename File</source>
        <translation>Rinomina il file</translation>
    </message>
    <message>
        <source>New name :</source>
        <translation>Nuovo nome:</translation>
    </message>
    <message>
        <source>There is a &quot;%1&quot; already; nothing was renamed.</source>
        <translation>«%1» esiste già; non è stato rinominato nulla.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed.</source>
        <translation>Non è stato possibile rinominare «%1».</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected files PERMANENTLY (not moved into the trash bin)?</source>
        <translation>Eliminare DEFINITIVAMENTE i file selezionati (senza spostarli nel cestino)?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted.</source>
        <translation>Non è stato possibile eliminare «%1».</translation>
    </message>
    <message>
        <source>Create new folder</source>
        <translation>Crea una cartella</translation>
    </message>
    <message>
        <source>Folder name :</source>
        <translation>Nome della cartella:</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created.</source>
        <translation>Non è stato possibile creare la cartella «%1».</translation>
    </message>
    <message>
        <source>Do you want to move this to the trash?</source>
        <translation>Spostare questo nel cestino?</translation>
    </message>
    <message>
        <source>There is no trash that takes this:</source>
        <translation>Nessun cestino accetta questo:</translation>
    </message>
    <message>
        <source>Export for other programs</source>
        <translation>Esporta per altri programmi</translation>
    </message>
</context>
<context>
    <name>zuno::LineSwitch</name>
    <message>
        <source>Gain/loss</source>
        <translation>Guadagno/perdita</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Lean</source>
        <translation>Piega</translation>
    </message>
    <message>
        <source>Accel/Decel</source>
        <translation>Accel./Decel.</translation>
    </message>
    <message>
        <source>Colour the line by: %1 (L)</source>
        <translation>Colora la linea per: %1 (L)</translation>
    </message>
    <message>
        <source>What the colours of the line tell (L)</source>
        <translation>Che cosa dicono i colori della linea (L)</translation>
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
        <translation>Le velocità non lo confermano</translation>
    </message>
    <message>
        <source>Within 2 km/h everywhere</source>
        <translation>Ovunque entro 2 km/h</translation>
    </message>
</context>
<context>
    <name>zuno::MapCheckModel</name>
    <message>
        <source>Incomplete</source>
        <translation>Incompleto</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>Lap time</source>
        <translation>Tempo giro</translation>
    </message>
    <message>
        <source>Section %1</source>
        <translation>Settore %1</translation>
    </message>
</context>
<context>
    <name>zuno::MapCheckPane</name>
    <message>
        <source>Choose a session to see the laps that the map gives.</source>
        <translation>Scegli una sessione per vedere i giri che la mappa ne ricava.</translation>
    </message>
    <message>
        <source>No complete lap. Length: %1</source>
        <translation>Nessun giro completo. Lunghezza: %1</translation>
    </message>
    <message>
        <source>Complete laps: %1. Best: %2 (lap %3). Ideal: %4. Length: %5</source>
        <translation>Completi: %1. Migliore: %2 (giro %3). Ideale: %4. Lunghezza: %5</translation>
    </message>
    <message>
        <source>No problems found.</source>
        <translation>Nessun problema trovato.</translation>
    </message>
</context>
<context>
    <name>zuno::MapDraft</name>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>Non è stato possibile creare la cartella «%1».</translation>
    </message>
</context>
<context>
    <name>zuno::MapEdit</name>
    <message>
        <source>Move point</source>
        <translation>lo spostamento del punto</translation>
    </message>
    <message>
        <source>Add timing point</source>
        <translation>l&apos;aggiunta del punto di intertempo</translation>
    </message>
    <message>
        <source>Remove timing point</source>
        <translation>la rimozione del punto di intertempo</translation>
    </message>
    <message>
        <source>Change gate size</source>
        <translation>la modifica della dimensione delle porte</translation>
    </message>
    <message>
        <source>Change outline</source>
        <translation>la modifica del tracciato</translation>
    </message>
    <message>
        <source>Take the gates of the file</source>
        <translation>l&apos;uso delle porte del file</translation>
    </message>
    <message>
        <source>Change corner</source>
        <translation>la modifica della curva</translation>
    </message>
    <message>
        <source>Corners as found</source>
        <translation>il ritorno alle curve trovate</translation>
    </message>
</context>
<context>
    <name>zuno::MapEditor</name>
    <message>
        <source>Map editor</source>
        <translation>Editor della mappa</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Country :</source>
        <translation>Paese:</translation>
    </message>
    <message>
        <source>The folder below the maps folder; may be empty</source>
        <translation>La sottocartella della cartella delle mappe; può restare vuota</translation>
    </message>
    <message>
        <source>Session :</source>
        <translation>Sessione:</translation>
    </message>
    <message>
        <source>The session whose laps are shown</source>
        <translation>La sessione di cui si vedono i giri</translation>
    </message>
    <message>
        <source>Outline :</source>
        <translation>Tracciato:</translation>
    </message>
    <message>
        <source>The lap that the outline of the track follows</source>
        <translation>Il giro seguito dal tracciato del circuito</translation>
    </message>
    <message>
        <source>Gate size :</source>
        <translation>Dimensione porte:</translation>
    </message>
    <message>
        <source>How far from a timing point a lap is timed; twice as far at the start/finish line</source>
        <translation>Fino a che distanza da un punto di intertempo un giro viene cronometrato; il doppio sul traguardo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>The map has no start/finish line.</source>
        <translation>La mappa non ha un traguardo.</translation>
    </message>
    <message>
        <source>The map has been changed. Do you want to save it?</source>
        <translation>La mappa è stata modificata. Salvarla?</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1&#xa0;m</translation>
    </message>
    <message>
        <source>A map has room for %1 timing points. Remove one of them to add another.</source>
        <translation>Una mappa ha posto per %1 punti di intertempo. Rimuovine uno per aggiungerne un altro.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punti</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Curve</translation>
    </message>
</context>
<context>
    <name>zuno::MapMaker</name>
    <message>
        <source>Hardly a sample of this session says where the motorcycle was, so no map can be made from it.</source>
        <translation>Quasi nessun campione di questa sessione dice dov&apos;era la moto, perciò non si può ricavarne una mappa.</translation>
    </message>
    <message>
        <source>The motorcycle stood still for the whole session, so no map can be made from it.</source>
        <translation>La moto è rimasta ferma per tutta la sessione, perciò non si può ricavarne una mappa.</translation>
    </message>
    <message>
        <source>This session never comes back to where it was, in the same direction: it holds no lap to make a map from. Take a session with one whole lap and a bit more.</source>
        <translation>Questa sessione non torna mai in un punto già percorso nella stessa direzione: non contiene nessun giro da cui ricavare una mappa. Prendi una sessione con un giro intero e qualcosa in più.</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>New map</source>
        <translation>Nuova mappa</translation>
    </message>
    <message>
        <source>This is a proposal. Give it a name and save it, or drag its points.</source>
        <translation>Questa è una proposta. Dalle un nome e salvala, o trascina i punti.</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; was not made with this program and stays as it is. You are changing a copy of it.</source>
        <translation>La mappa «%1» non è stata creata con questo programma e resta com&apos;è. Stai modificando una sua copia.</translation>
    </message>
    <message>
        <source>There is a map &quot;%1&quot; already. Do you want to replace it?</source>
        <translation>La mappa «%1» esiste già. Sostituirla?</translation>
    </message>
    <message>
        <source>The map could not be saved: %1</source>
        <translation>Non è stato possibile salvare la mappa: %1</translation>
    </message>
    <message>
        <source>Rename map</source>
        <translation>Rinomina la mappa</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>There is a map &quot;%1&quot; already.</source>
        <translation>La mappa «%1» esiste già.</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; could not be renamed.</source>
        <translation>Non è stato possibile rinominare la mappa «%1».</translation>
    </message>
    <message>
        <source>Do you want to delete the map &quot;%1&quot;?</source>
        <translation>Eliminare la mappa «%1»?</translation>
    </message>
    <message>
        <source>The map cannot be moved to the trash. Do you want to delete it for good?</source>
        <translation>La mappa non si può spostare nel cestino. Eliminarla definitivamente?</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; could not be deleted.</source>
        <translation>Non è stato possibile eliminare la mappa «%1».</translation>
    </message>
    <message>
        <source>This is a proposal with the start line of the imported file; Undo takes the line that was found in the laps. Give it a name and save it, or drag its points.</source>
        <translation>Questa è una proposta con il traguardo del file importato; Annulla prende quello trovato nei giri. Dalle un nome e salvala, o trascina i punti.</translation>
    </message>
    <message>
        <source>The file of the map&apos;s corners cannot be read, and is left alone.</source>
        <translation>Il file delle curve della mappa non è leggibile e resta com&apos;è.</translation>
    </message>
    <message>
        <source>A later version of the program changed the map&apos;s corners; they are left alone.</source>
        <translation>Una versione più recente del programma ha modificato le curve della mappa; restano come sono.</translation>
    </message>
    <message>
        <source>The corners could not be saved: %1</source>
        <translation>Non è stato possibile salvare le curve: %1</translation>
    </message>
    <message>
        <source>Its corners alone can be changed without a copy.</source>
        <translation>Solo le sue curve si possono modificare senza una copia.</translation>
    </message>
    <message>
        <source>The corners of the map &quot;%1&quot; could not be renamed.</source>
        <translation>Non è stato possibile rinominare le curve della mappa «%1».</translation>
    </message>
</context>
<context>
    <name>zuno::MapName</name>
    <message>
        <source>Give the map a name to save it.</source>
        <translation>Per salvare la mappa, dalle un nome.</translation>
    </message>
    <message>
        <source>Dots cannot stand in a map&apos;s name or folder.</source>
        <translation>Il nome e la cartella di una mappa non possono contenere punti.</translation>
    </message>
    <message>
        <source>These cannot stand in a map&apos;s name or folder: %1</source>
        <translation>Il nome e la cartella di una mappa non possono contenere: %1</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device; choose another one.</source>
        <translation>Windows riserva questo nome a un dispositivo; scegline un altro.</translation>
    </message>
    <message>
        <source>This name is too long; %1 characters are the most.</source>
        <translation>Questo nome è troppo lungo; può avere al massimo %1 caratteri.</translation>
    </message>
    <message>
        <source>New track</source>
        <translation>Nuovo circuito</translation>
    </message>
</context>
<context>
    <name>zuno::MapPane</name>
    <message>
        <source>Map :</source>
        <translation>Mappa:</translation>
    </message>
    <message>
        <source>Map Length :</source>
        <translation>Lunghezza della mappa:</translation>
    </message>
    <message>
        <source>errorMap</source>
        <translation>errorMap</translation>
    </message>
    <message>
        <source>New map from this session...</source>
        <translation>Nuova mappa dalla sessione...</translation>
    </message>
    <message>
        <source>No map found, please try to select one from the Map configuraton panel</source>
        <translation>Nessuna mappa trovata, scegline una nella configurazione delle mappe</translation>
    </message>
    <message>
        <source>Map : %1</source>
        <translation>Mappa: %1</translation>
    </message>
    <message>
        <source>Map length : %1 m</source>
        <translation>Lunghezza della mappa: %1 m</translation>
    </message>
    <message>
        <source>Next colours of the line on the map</source>
        <translation>Colori successivi della linea sulla mappa</translation>
    </message>
    <message>
        <source>Map length : %1</source>
        <translation>Lunghezza della mappa: %1</translation>
    </message>
</context>
<context>
    <name>zuno::MapPointsPane</name>
    <message>
        <source>Left and right arrows move the selected point by 1 m, with Shift by 10 m</source>
        <translation>Le frecce sinistra e destra spostano il punto selezionato di 1 m, con Shift di 10 m</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>From the line</source>
        <translation>Dal traguardo</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Adds a timing point in the longest section; a click on the track adds one there</source>
        <translation>Aggiunge un punto di intertempo nel settore più lungo; un clic sulla pista ne aggiunge uno in quel punto</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Start/finish</source>
        <translation>Traguardo</translation>
    </message>
    <message>
        <source>%1 (on the line)</source>
        <translation>%1 (sul traguardo)</translation>
    </message>
</context>
<context>
    <name>zuno::MapWarning</name>
    <message>
        <source>the line</source>
        <translation>il traguardo</translation>
    </message>
    <message>
        <source>timing point %1</source>
        <translation>il punto di intertempo %1</translation>
    </message>
    <message>
        <source> (%1 laps)</source>
        <translation> (%1 giri)</translation>
    </message>
    <message>
        <source> (lap %1)</source>
        <translation> (giro %1)</translation>
    </message>
    <message>
        <source> (laps %1)</source>
        <translation> (giri %1)</translation>
    </message>
    <message>
        <source>There is no start/finish point, so there are no laps.</source>
        <translation>Non c&apos;è un traguardo, perciò non ci sono giri.</translation>
    </message>
    <message>
        <source>This session never passes the line.</source>
        <translation>Questa sessione non passa mai sul traguardo.</translation>
    </message>
    <message>
        <source>Laps pass by %1 outside of its circle%3. Move the point onto their way or make the gate larger.</source>
        <translation>Alcuni giri saltano %1%3: passano fuori dal suo cerchio. Metti il punto sul loro percorso o allarga la porta.</translation>
    </message>
    <message>
        <source>Laps come to %1 before they come to %2. Number the points in riding order.</source>
        <translation>Alcuni giri raggiungono %1 prima di raggiungere %2. Numera i punti nell&apos;ordine in cui li percorri.</translation>
    </message>
    <message>
        <source>Another piece of the track runs through the circle of %1%3. Make the gate smaller or move the point.</source>
        <translation>Un altro tratto della pista attraversa il cerchio che circonda %1%3. Stringi la porta o sposta il punto.</translation>
    </message>
    <message>
        <source>A pit lane, or a ride in the other direction, passes through the circle of %1%3. Make the gate smaller or move the point.</source>
        <translation>Una corsia dei box, o un passaggio in senso contrario, attraversa il cerchio che circonda %1%3. Stringi la porta o sposta il punto.</translation>
    </message>
    <message>
        <source>The circles of %1 and %2 touch. Move the points apart or make the gate smaller.</source>
        <translation>I cerchi che circondano %1 e %2 si toccano. Allontana i punti o stringi la porta.</translation>
    </message>
    <message>
        <source>One pass of the line counts twice%3: the rider was still inside its circle when it could count again. Make the gate smaller or move the line to where everybody is fast.</source>
        <translation>Un passaggio sul traguardo conta due volte%3: il pilota era ancora nel suo cerchio quando poteva contare di nuovo. Stringi la porta o sposta il traguardo dove tutti sono veloci.</translation>
    </message>
    <message>
        <source>No lap is as long as the outline, so none counts as complete.</source>
        <translation>Nessun giro è lungo quanto il tracciato, perciò nessuno conta come completo.</translation>
    </message>
    <message>
        <source>The last point, %1, is not on the line: the rest of the lap belongs to no section.</source>
        <translation>L&apos;ultimo punto, %1, non è sul traguardo: il resto del giro non appartiene a nessun settore.</translation>
    </message>
    <message>
        <source>A lap has room for %4 sections; timing points after %1 are left out.</source>
        <translation>Un giro ha al massimo %4 settori; i punti di intertempo dopo %1 non contano.</translation>
    </message>
    <message>
        <source>The map would not be found for this session by itself: the line is more than 1 km from where the recording begins, and the ride does not follow the outline. Choose the map with &quot;Maps&quot;.</source>
        <translation>La mappa non verrebbe trovata da sola per questa sessione: la linea è a più di 1 km dall&apos;inizio della registrazione e la guida non segue il tracciato. Scelga la mappa con «Mappe».</translation>
    </message>
    <message>
        <source>A pass of the line below %5 km/h counts twice, as on a wet or slow day. Make the gate smaller or move the line to where everybody is fast.</source>
        <translation>Un passaggio della linea sotto %5 km/h conta due volte, come in un giorno bagnato o lento. Riduca la porta o sposti la linea dove tutti vanno forte.</translation>
    </message>
</context>
<context>
    <name>zuno::MapsWidget</name>
    <message>
        <source>Maps Configuration</source>
        <translation>Configurazione delle mappe</translation>
    </message>
    <message>
        <source>Auto detect map</source>
        <translation>Rileva la mappa</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Choose other Map for session : %1</source>
        <translation>Scegli un&apos;altra mappa per la sessione: %1</translation>
    </message>
    <message>
        <source>No session loaded</source>
        <translation>Nessuna sessione caricata</translation>
    </message>
    <message>
        <source>New map from this session...</source>
        <translation>Nuova mappa dalla sessione...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Modifica...</translation>
    </message>
    <message>
        <source>Rename...</source>
        <translation>Rinomina...</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>Elimina...</translation>
    </message>
    <message>
        <source>Reload maps</source>
        <translation>Ricarica le mappe</translation>
    </message>
</context>
<context>
    <name>zuno::MeasureLine</name>
    <message>
        <source>%1 to %2: %3</source>
        <comment>places, and the distance between them</comment>
        <translation>da %1 a %2: %3</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Speed min</source>
        <translation>Velocità min</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>media</translation>
    </message>
    <message>
        <source>max</source>
        <translation>max</translation>
    </message>
    <message>
        <source>End measuring (Esc)</source>
        <translation>Termina la misura (Esc)</translation>
    </message>
    <message>
        <source>Click two places in a chart, or draw from one to the other.</source>
        <translation>Fai clic su due punti di un grafico, o trascina dall&apos;uno all&apos;altro.</translation>
    </message>
</context>
<context>
    <name>zuno::PageFailure</name>
    <message>
        <source>The map has stopped several times, and was left alone. Everything else goes on working.</source>
        <translation>La mappa si è fermata più volte e non viene più riavviata. Tutto il resto continua a funzionare.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
</context>
<context>
    <name>zuno::PassProgress</name>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
</context>
<context>
    <name>zuno::Reference</name>
    <message>
        <source>No lap serves as reference yet.</source>
        <translation>Nessun giro serve ancora da riferimento.</translation>
    </message>
    <message>
        <source>The file of the reference, &quot;%1&quot;, is gone.</source>
        <translation>Il file del riferimento, «%1», non c&apos;è più.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no lap %2 on this circuit any more.</source>
        <translation>«%1» non ha più un giro %2 su questo circuito.</translation>
    </message>
    <message>
        <source>The session does not say which vehicle it was.</source>
        <translation>La sessione non dice quale moto fosse.</translation>
    </message>
</context>
<context>
    <name>zuno::ReferenceMenu</name>
    <message>
        <source>Clear: no comparison</source>
        <translation>Azzera: nessun confronto</translation>
    </message>
    <message>
        <source>Best of session</source>
        <translation>Migliore della sessione</translation>
    </message>
    <message>
        <source>Best ever here</source>
        <translation>Migliore di sempre qui</translation>
    </message>
    <message>
        <source>only the same motorcycle</source>
        <translation>solo la stessa moto</translation>
    </message>
    <message>
        <source>This lap: %1, %2</source>
        <translation>Questo giro: %1, %2</translation>
    </message>
    <message>
        <source>This lap</source>
        <translation>Questo giro</translation>
    </message>
    <message>
        <source>Lap of another file...</source>
        <translation>Giro di un altro file...</translation>
    </message>
    <message>
        <source>Recent: none on this circuit</source>
        <translation>Recenti: nessuno su questo circuito</translation>
    </message>
    <message>
        <source>Lap %1 of %2</source>
        <translation>Giro %1 di %2</translation>
    </message>
</context>
<context>
    <name>zuno::RidePreview</name>
    <message>
        <source>Path</source>
        <translation>Traiettoria</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>fino a %1</translation>
    </message>
</context>
<context>
    <name>zuno::SessionImport</name>
    <message>
        <source>Import</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>Importing sessions: %1 of %2</source>
        <translation>Importazione delle sessioni: %1 di %2</translation>
    </message>
    <message>
        <source>Nothing was imported: the folder of your sessions is not there.</source>
        <translation>Nulla è stato importato: la cartella delle sessioni non c&apos;è.</translation>
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
        <translation>Data:</translation>
    </message>
    <message>
        <source>Track :</source>
        <translation>Circuito:</translation>
    </message>
    <message>
        <source>Best lap :</source>
        <translation>Giro migliore:</translation>
    </message>
    <message>
        <source>Ideal time :</source>
        <translation>Tempo ideale:</translation>
    </message>
    <message>
        <source>Event :</source>
        <translation>Evento:</translation>
    </message>
    <message>
        <source>Driver :</source>
        <translation>Pilota:</translation>
    </message>
    <message>
        <source>Vehicle :</source>
        <translation>Moto:</translation>
    </message>
    <message>
        <source>Tires :</source>
        <translation>Pneumatici:</translation>
    </message>
    <message>
        <source>Track temp :</source>
        <translation>Temp. della pista:</translation>
    </message>
    <message>
        <source>degres</source>
        <translation>gradi</translation>
    </message>
    <message>
        <source>Track condition :</source>
        <translation>Stato della pista:</translation>
    </message>
    <message>
        <source>Notes :</source>
        <translation>Note:</translation>
    </message>
    <message>
        <source>Enter here, for example, your tyre pressures, your suspension settings...</source>
        <translation>Inserisci qui, per esempio, le pressioni delle gomme, le regolazioni delle sospensioni...</translation>
    </message>
    <message>
        <source>This file has a format that this version does not know (%1). It is shown, but nothing can be stored in it.</source>
        <translation>Questo file ha un formato che questa versione non conosce (%1). Viene mostrato, ma non vi si può salvare niente.</translation>
    </message>
    <message>
        <source>This file is damaged, or not complete yet. It is shown, but nothing can be stored in it.</source>
        <translation>Questo file è danneggiato, o non ancora completo. Viene mostrato, ma non vi si può salvare niente.</translation>
    </message>
    <message>
        <source>Another program typed here at the same time, and your text has taken its place: %1</source>
        <translation>Un altro programma ha scritto qui nello stesso momento, e il tuo testo ha preso il posto di: %1</translation>
    </message>
</context>
<context>
    <name>zuno::SessionName</name>
    <message>
        <source>A name that begins with a dot is hidden: it would not be listed any more.</source>
        <translation>Un nome che comincia con un punto è nascosto: non comparirebbe più nell&apos;elenco.</translation>
    </message>
    <message>
        <source>These cannot stand in a name: %1</source>
        <translation>In un nome non possono stare: %1</translation>
    </message>
    <message>
        <source>A name cannot begin or end with a blank, nor end with a dot.</source>
        <translation>Un nome non può cominciare o finire con uno spazio, né finire con un punto.</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device; choose another one.</source>
        <translation>Windows riserva questo nome a un dispositivo; scegline un altro.</translation>
    </message>
    <message>
        <source>Names with &quot;ZUNO&quot; are kept for the folders of loggers, which can be neither renamed nor deleted.</source>
        <translation>I nomi con «ZUNO» sono riservati alle cartelle dei logger, che non si possono né rinominare né eliminare.</translation>
    </message>
</context>
<context>
    <name>zuno::SessionsStats</name>
    <message>
        <source>Statistics</source>
        <translation>Statistiche</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Data:</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>Più valori</translation>
    </message>
    <message>
        <source>Track :</source>
        <translation>Circuito:</translation>
    </message>
    <message>
        <source>Vehicle :</source>
        <translation>Moto:</translation>
    </message>
    <message>
        <source>Driver :</source>
        <translation>Pilota:</translation>
    </message>
    <message>
        <source>Event :</source>
        <translation>Evento:</translation>
    </message>
    <message>
        <source>Track condition :</source>
        <translation>Stato della pista:</translation>
    </message>
    <message>
        <source>Reset all filters</source>
        <translation>Azzera i filtri</translation>
    </message>
    <message>
        <source>Sessions without a lap time are not listed</source>
        <translation>Le sessioni senza un tempo sul giro non sono elencate</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Sessions : %1 of %2</source>
        <translation>Sessioni: %1 di %2</translation>
    </message>
</context>
<context>
    <name>zuno::SessionsStatsTableModel</name>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Circuito</translation>
    </message>
    <message>
        <source>Best Lap</source>
        <translation>Giro migliore</translation>
    </message>
    <message>
        <source>Ideal Time</source>
        <translation>Tempo ideale</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Moto</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Pilota</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Track condition</source>
        <translation>Stato della pista</translation>
    </message>
    <message>
        <source>Track temperature</source>
        <translation>Temp. pista</translation>
    </message>
    <message>
        <source>Tires</source>
        <translation>Pneumatici</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Note</translation>
    </message>
</context>
<context>
    <name>zuno::StorableEdits</name>
    <message>
        <source>Replaced: %1</source>
        <translation>Sostituiti: %1</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Esclusi: %1</translation>
    </message>
    <message>
        <source>Cut at %1 characters</source>
        <translation>Tagliato a %1 caratteri</translation>
    </message>
</context>
<context>
    <name>zuno::TemperatureBox</name>
    <message>
        <source>unknown</source>
        <extracomment>A track temperature that nobody noted.</extracomment>
        <translation>sconosciuta</translation>
    </message>
</context>
<context>
    <name>zuno::ThemeButton</name>
    <message>
        <source>Light</source>
        <translation>Chiaro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Scuro</translation>
    </message>
    <message>
        <source>Light theme, for the sun (%1)</source>
        <translation>Tema chiaro, per il sole (%1)</translation>
    </message>
    <message>
        <source>Dark theme (%1)</source>
        <translation>Tema scuro (%1)</translation>
    </message>
</context>
<context>
    <name>zuno::UnsavedChanges</name>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifiche non salvate</translation>
    </message>
    <message>
        <source>What you have said about these sessions could not be written into their files:

%1</source>
        <translation>Quello che hai annotato su queste sessioni non si è potuto scrivere nei loro file:

%1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Save elsewhere...</source>
        <translation>Salva altrove...</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>Chiudi senza salvare</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Save elsewhere</source>
        <translation>Salva altrove</translation>
    </message>
    <message>
        <source>These could not be saved there, either:

%1</source>
        <translation>Queste non si sono potute salvare nemmeno lì:

%1</translation>
    </message>
</context>
<context>
    <name>zuno::UpdateApp</name>
    <message>
        <source>ZUNO Analyzer update</source>
        <translation>Aggiornamento di ZUNO Analyzer</translation>
    </message>
    <message>
        <source>A new version of the application is available. 
Do you want to download it now?</source>
        <translation>È disponibile una nuova versione del programma. 
Scaricarla adesso?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>The new version could not be downloaded and started.</source>
        <translation>Non è stato possibile scaricare e avviare la nuova versione.</translation>
    </message>
    <message>
        <source>Version: %1
Size: %2
From: %3</source>
        <translation>Versione: %1
Dimensione: %2
Da: %3</translation>
    </message>
    <message>
        <source>A new version of the application is available.</source>
        <translation>È disponibile una nuova versione dell&apos;applicazione.</translation>
    </message>
    <message>
        <source>Version: %1
This one was installed as a package of your system: install the new package in its place.</source>
        <translation>Versione: %1
Questa è stata installata come pacchetto del sistema: installi il nuovo pacchetto al suo posto.</translation>
    </message>
</context>
<context>
    <name>zuno::UpgradePass</name>
    <message>
        <source>Adding additionnal infos to sessions - for version 1.4.0.0 </source>
        <translation>Aggiunta di informazioni alle sessioni - per la versione 1.4.0.0 </translation>
    </message>
    <message>
        <source> sessions to parse 
In order to have access to all your statistics with this new version of Analyzer, let this analysis finish </source>
        <translation> sessioni da analizzare 
Per avere tutte le statistiche con questa nuova versione di Analyzer, lascia terminare l&apos;analisi </translation>
    </message>
</context>
<context>
    <name>zuno::WherePane</name>
    <message>
        <source>Where is the time</source>
        <translation>Dov&apos;è il tempo</translation>
    </message>
    <message>
        <source>Choose a reference...</source>
        <translation>Scegli un riferimento...</translation>
    </message>
    <message>
        <source>The other corners</source>
        <translation>Le altre curve</translation>
    </message>
    <message>
        <source>thin: won and lost inside the corner</source>
        <translation>sottile: guadagnato e perso in curva</translation>
    </message>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Against the best of each corner</source>
        <translation>Contro il meglio di ogni curva</translation>
    </message>
    <message>
        <source>The other %1 places</source>
        <translation>Gli altri %1 punti</translation>
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
        <translation>   Importa   </translation>
    </message>
    <message>
        <source>   Settings   </source>
        <translation>   Impostazioni   </translation>
    </message>
    <message>
        <source>   Maps   </source>
        <translation>   Mappe   </translation>
    </message>
    <message>
        <source>   Statistics   </source>
        <translation>   Statistiche   </translation>
    </message>
    <message>
        <source>   Help   </source>
        <translation>   Aiuto   </translation>
    </message>
    <message>
        <source>Maps and Laps  </source>
        <translation>Mappe e giri  </translation>
    </message>
    <message>
        <source> Session infos  </source>
        <translation> Info sessione  </translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no session that can be shown: it is damaged, empty, or was written by something else.</source>
        <translation>«%1» non contiene una sessione che si possa mostrare: il file è danneggiato, vuoto o di altra origine.</translation>
    </message>
    <message>
        <source>Select one or more session files to import</source>
        <translation>Scegli uno o più file di sessione da importare</translation>
    </message>
    <message>
        <source>RA1 Files (*.ra1)</source>
        <translation>File RA1 (*.ra1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in your library. Do you want to import it?</source>
        <translation>«%1» non è nella tua libreria. Importarlo?</translation>
    </message>
    <message>
        <source>There are no sessions yet.

Drop the session files (.ra1) of your logger here, choose them with &quot;Import&quot; (Ctrl+I), or copy them to
%1</source>
        <translation>Non ci sono ancora sessioni.

Trascina qui i file di sessione (.ra1) del tuo logger, sceglili con «Importa» (Ctrl+I) o copiali in
%1</translation>
    </message>
    <message>
        <source>Select a session in the list on the left to see its laps.</source>
        <translation>Scegli una sessione nell&apos;elenco a sinistra per vedere i suoi giri.</translation>
    </message>
    <message>
        <source>Lap %1 (%2) against lap %3 (%4): %5 s</source>
        <translation>Giro %1 (%2) contro giro %3 (%4): %5 s</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer there: it was deleted or moved.</source>
        <translation>«%1» non c&apos;è più: è stato eliminato o spostato.</translation>
    </message>
    <message>
        <source>Folder of your sessions</source>
        <translation>Cartella delle sessioni</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there, or is no file.</source>
        <translation>«%1» non c&apos;è, o non è un file.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to be shown: a session has 1 GB and 20 million samples at most.</source>
        <translation>«%1» è troppo grande per essere mostrato: una sessione ha al massimo 1 GB e 20 milioni di campioni.</translation>
    </message>
    <message>
        <source>Map and Laps</source>
        <translation>Mappa e giri</translation>
    </message>
    <message>
        <source>Nothing can be stored in %1: the disk is full, or the folder cannot be written to.</source>
        <translation>In %1 non si può salvare nulla: il disco è pieno, o non si può scrivere nella cartella.</translation>
    </message>
    <message>
        <source>All keys</source>
        <translation>Tutti i tasti</translation>
    </message>
    <message>
        <source>Recordings (%1)</source>
        <translation>Registrazioni (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>The other language is there when the program starts again. Do you want to start it again now?</source>
        <translation>L&apos;altra lingua appare al riavvio del programma. Riavviarlo adesso?</translation>
    </message>
    <message>
        <source>Demo files that could not be removed: %1</source>
        <translation>File demo che non è stato possibile rimuovere: %1</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sessioni</translation>
    </message>
    <message>
        <source>Shows the list of sessions (F9)</source>
        <translation>Mostra l&apos;elenco delle sessioni (F9)</translation>
    </message>
    <message>
        <source>List of sessions</source>
        <translation>Elenco delle sessioni</translation>
    </message>
    <message>
        <source>Reading your library: %1 of %2 recordings</source>
        <translation>Lettura della libreria: %1 di %2 registrazioni</translation>
    </message>
</context>
</TS>
