<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Channel</name>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>This recording holds no speed.</source>
        <translation>Esta grabación no contiene la velocidad.</translation>
    </message>
    <message>
        <source>Lean angle, left below 0</source>
        <translation>Inclinación, izquierda por debajo de 0</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>This recording holds no lean angle.</source>
        <translation>Esta grabación no contiene la inclinación.</translation>
    </message>
    <message>
        <source>Acceleration, braking below 0</source>
        <translation>Aceleración, frenada por debajo de 0</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>This recording holds no acceleration.</source>
        <translation>Esta grabación no contiene aceleración.</translation>
    </message>
    <message>
        <source>Front suspension, mean and range</source>
        <translation>Suspensión delantera, media y rango</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>This recording holds no front suspension.</source>
        <translation>Esta grabación no contiene la suspensión delantera.</translation>
    </message>
    <message>
        <source>Rear suspension, mean and range</source>
        <translation>Suspensión trasera, media y rango</translation>
    </message>
    <message>
        <source>This recording holds no rear suspension.</source>
        <translation>Esta grabación no contiene la suspensión trasera.</translation>
    </message>
    <message>
        <source>Time gap, behind above 0</source>
        <translation>Diferencia de tiempo, retraso por encima de 0</translation>
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
        <translation>s desde 1970</translation>
    </message>
    <message>
        <source>ms since 1970</source>
        <translation>ms desde 1970</translation>
    </message>
    <message>
        <source>knots</source>
        <translation>nudos</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>no se conoce</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>minutos</translation>
    </message>
    <message>
        <source>°, west positive</source>
        <translation>°, oeste positivo</translation>
    </message>
    <message>
        <source>minutes, west positive</source>
        <translation>minutos, oeste positivo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuto</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Segundo</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitud</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>North or south</source>
        <translation>Norte o sur</translation>
    </message>
    <message>
        <source>East or west</source>
        <translation>Este u oeste</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Rumbo</translation>
    </message>
    <message>
        <source>Longitudinal acceleration</source>
        <translation>Aceleración longitudinal</translation>
    </message>
    <message>
        <source>Lateral acceleration</source>
        <translation>Aceleración lateral</translation>
    </message>
    <message>
        <source>Acceleration, first axis</source>
        <translation>Aceleración, primer eje</translation>
    </message>
    <message>
        <source>Acceleration, second axis</source>
        <translation>Aceleración, segundo eje</translation>
    </message>
    <message>
        <source>Acceleration, third axis</source>
        <translation>Aceleración, tercer eje</translation>
    </message>
    <message>
        <source>Lean angle</source>
        <translation>Inclinación</translation>
    </message>
    <message>
        <source>Front suspension</source>
        <translation>Suspensión delantera</translation>
    </message>
    <message>
        <source>Rear suspension</source>
        <translation>Suspensión trasera</translation>
    </message>
    <message>
        <source>New position (1 or 0)</source>
        <translation>Posición nueva (1 o 0)</translation>
    </message>
    <message>
        <source>Lap number</source>
        <translation>Número de vuelta</translation>
    </message>
    <message>
        <source>Positions a second</source>
        <translation>Posiciones por segundo</translation>
    </message>
</context>
<context>
    <name>Deletion</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>Recordings: %1</source>
        <translation>Grabaciones: %1</translation>
    </message>
    <message>
        <source>other files: %1</source>
        <translation>otros archivos: %1</translation>
    </message>
    <message>
        <source>hidden files: %1</source>
        <translation>archivos ocultos: %1</translation>
    </message>
    <message>
        <source>This stays, as the logger named it: %1</source>
        <translation>Esto se queda, porque el nombre es del registrador: %1</translation>
    </message>
    <message>
        <source>This stays, as it is not in your library: %1</source>
        <translation>Esto se queda, porque no está en su biblioteca: %1</translation>
    </message>
</context>
<context>
    <name>DemoSessions</name>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>No se pudo escribir «%1»: %2</translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>there is no position in it</source>
        <translation>no contiene ninguna posición</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>its points have no times</source>
        <translation>sus puntos no tienen hora</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>there is no track in it</source>
        <translation>no contiene ninguna pista</translation>
    </message>
    <message>
        <source>no sentence has a time and a position</source>
        <translation>ninguna frase tiene hora y posición</translation>
    </message>
    <message>
        <source>the archive is damaged</source>
        <translation>el archivo está dañado</translation>
    </message>
    <message>
        <source>there is no row of a trace</source>
        <translation>no hay ninguna fila de traza</translation>
    </message>
    <message>
        <source>no row can be read; the first is line %1</source>
        <translation>no se puede leer ninguna fila; la primera es la línea %1</translation>
    </message>
    <message>
        <source>there is no row below [data]</source>
        <translation>no hay ninguna fila bajo [data]</translation>
    </message>
    <message>
        <source>there is no table with columns for time, latitude and longitude</source>
        <translation>no hay tabla con columnas de hora, latitud y longitud</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>is of no kind that can be read</source>
        <translation>no es de ningún tipo legible</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>no se puede crear la carpeta</translation>
    </message>
    <message>
        <source>there is not a second of a ride in it</source>
        <translation>no contiene ni un segundo de marcha</translation>
    </message>
    <message>
        <source>%1 Hz: lap times may be off by %2 s</source>
        <translation>%1 Hz: los tiempos por vuelta pueden errar %2 s</translation>
    </message>
    <message>
        <source>%1 damaged lines left out, the first is line %2</source>
        <translation>%1 líneas dañadas omitidas, la primera es la línea %2</translation>
    </message>
    <message>
        <source>%1 impossible positions left out</source>
        <translation>%1 posiciones imposibles omitidas</translation>
    </message>
    <message>
        <source>%1 gaps without a position</source>
        <translation>%1 huecos sin posición</translation>
    </message>
    <message>
        <source>no speed: computed from positions</source>
        <translation>sin velocidad: calculada de las posiciones</translation>
    </message>
    <message>
        <source>no date: that of the file is taken</source>
        <translation>sin fecha: se toma la del archivo</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>The manual is not there; it belongs to %1</source>
        <translation>El manual no está; su lugar es %1</translation>
    </message>
    <message>
        <source>No program opens the manual: %1</source>
        <translation>Ningún programa abre el manual: %1</translation>
    </message>
</context>
<context>
    <name>IdealTimeSearch</name>
    <message>
        <source>it has been removed</source>
        <translation>se ha eliminado</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>session: reason</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>no map is known for the place where it was recorded</source>
        <translation>no se conoce ningún mapa del lugar donde se grabó</translation>
    </message>
    <message>
        <source>it has no laps on the map &quot;%1&quot;</source>
        <translation>no tiene vueltas en el mapa «%1»</translation>
    </message>
    <message>
        <source>%1: it was ridden on &quot;%2&quot;</source>
        <translation>%1: se rodó en «%2»</translation>
    </message>
</context>
<context>
    <name>ImportResult</name>
    <message>
        <source>Imported: %1</source>
        <translation>Importadas: %1</translation>
    </message>
    <message>
        <source>already there: %1</source>
        <translation>ya presentes: %1</translation>
    </message>
    <message>
        <source>no session files: %1</source>
        <translation>no son archivos de sesión: %1</translation>
    </message>
    <message>
        <source>could not be copied: %1</source>
        <translation>no se pudieron copiar: %1</translation>
    </message>
    <message>
        <source>Import cancelled. %1</source>
        <translation>Importación cancelada. %1</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>No session files:</source>
        <translation>No son archivos de sesión:</translation>
    </message>
    <message>
        <source>Could not be copied:</source>
        <translation>No se pudieron copiar:</translation>
    </message>
    <message>
        <source>under another name: %1</source>
        <translation>con otro nombre: %1</translation>
    </message>
    <message>
        <source>Under another name, as another session has theirs:</source>
        <translation>Con otro nombre, porque otra sesión tiene el suyo:</translation>
    </message>
</context>
<context>
    <name>LapScene</name>
    <message>
        <source>gaining</source>
        <translation>gana</translation>
    </message>
    <message>
        <source>losing %1 s / 100 m</source>
        <translation>pierde %1 s / 100 m</translation>
    </message>
    <message>
        <source>braking</source>
        <translation>frenada</translation>
    </message>
    <message>
        <source>accelerating</source>
        <translation>aceleración</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>reference, lap %1</source>
        <translation>ref., vuelta %1</translation>
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
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>first sample</source>
        <translation>primera muestra</translation>
    </message>
    <message>
        <source>last sample</source>
        <translation>última muestra</translation>
    </message>
</context>
<context>
    <name>LibraryFolder</name>
    <message>
        <source>As soon as it is back, your sessions are shown again.</source>
        <translation>En cuanto vuelva, se mostrarán de nuevo sus sesiones.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the folder of your sessions: that takes the whole path of a folder of its own.</source>
        <translation>«%1» no puede ser la carpeta de sus sesiones: hace falta la ruta completa de una carpeta propia.</translation>
    </message>
    <message>
        <source>The folder of your sessions is not there any more: it was moved, or its drive was taken out.

%1</source>
        <translation>La carpeta de sus sesiones ya no está: se ha movido, o se ha retirado su unidad.

%1</translation>
    </message>
    <message>
        <source>There is nothing left in the folder of your sessions: it was emptied, or its drive was taken out.

%1</source>
        <translation>No queda nada en la carpeta de sus sesiones: se ha vaciado, o se ha retirado su unidad.

%1</translation>
    </message>
</context>
<context>
    <name>MapPage</name>
    <message>
        <source>braking</source>
        <translation>frenada</translation>
    </message>
    <message>
        <source>accelerating</source>
        <translation>aceleración</translation>
    </message>
    <message>
        <source>first lap</source>
        <translation>primera vuelta</translation>
    </message>
    <message>
        <source>second lap</source>
        <translation>segunda vuelta</translation>
    </message>
    <message>
        <source>Loading the map...</source>
        <translation>Cargando el mapa...</translation>
    </message>
    <message>
        <source>Offline map: there is no key for the satellite map</source>
        <translation>Mapa sin conexión: no hay clave para el mapa por satélite</translation>
    </message>
    <message>
        <source>Offline map: the satellite map cannot be reached</source>
        <translation>Mapa sin conexión: no se puede acceder al mapa por satélite</translation>
    </message>
    <message>
        <source>Offline map: the satellite map does not answer</source>
        <translation>Mapa sin conexión: el mapa por satélite no responde</translation>
    </message>
    <message>
        <source>Offline map: the satellite map refuses the key</source>
        <translation>Mapa sin conexión: el mapa por satélite rechaza la clave</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>On the sign of the start/finish line.</extracomment>
        <translation>Meta</translation>
    </message>
</context>
<context>
    <name>OutlineChoice</name>
    <message>
        <source>As it is</source>
        <translation>Como está</translation>
    </message>
</context>
<context>
    <name>SessionFile</name>
    <message>
        <source>cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>is no session file</source>
        <translation>no es un archivo de sesión</translation>
    </message>
    <message>
        <source>has a format that is too old</source>
        <translation>tiene un formato demasiado antiguo</translation>
    </message>
    <message>
        <source>is too large: a session has 1 GB and 20 million samples at most</source>
        <translation>es demasiado grande: una sesión tiene como máximo 1 GB y 20 millones de muestras</translation>
    </message>
</context>
<context>
    <name>SessionSummary</name>
    <message>
        <source>1 sample without GPS</source>
        <translation>1 muestra sin GPS</translation>
    </message>
    <message>
        <source>%1 samples without GPS</source>
        <translation>%1 muestras sin GPS</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; has no start point, so laps cannot be cut.

Choose another map with &quot;Maps&quot; (Ctrl+M).</source>
        <translation>El mapa «%1» no tiene punto de salida, por lo que no se pueden obtener vueltas.

Elija otro mapa con «Mapas» (Ctrl+M).</translation>
    </message>
    <message>
        <source>This session never passes the start/finish line of the map &quot;%1&quot;.

If it was ridden on another circuit, choose its map with &quot;Maps&quot; (Ctrl+M).</source>
        <translation>Esta sesión nunca pasa por la línea de meta del mapa «%1».

Si se rodó en otro circuito, elija su mapa con «Mapas» (Ctrl+M).</translation>
    </message>
    <message>
        <source>Ideal Time : %1</source>
        <translation>Tiempo ideal: %1</translation>
    </message>
    <message>
        <source>Traveled distance : %1 m</source>
        <translation>Distancia recorrida: %1 m</translation>
    </message>
    <message>
        <source>Infos of first lap selected : Map : %1 --- Session : %2 --- Lap num : %3 --- Lap time : %4 --- max speed : %5 km/h</source>
        <translation>Primera vuelta elegida: Mapa: %1 --- Sesión: %2 --- Vuelta n.º: %3 --- Tiempo: %4 --- Velocidad máx.: %5 km/h</translation>
    </message>
    <message>
        <source>No map is known for the place where this session was recorded, so it cannot be cut into laps.

Make a new map from it, choose a map with &quot;Maps&quot; (Ctrl+M), or copy the circuit&apos;s map file to
%1</source>
        <translation>No se conoce ningún mapa del lugar donde se grabó esta sesión, por lo que no se puede dividir en vueltas.

Cree un nuevo mapa con ella, elija un mapa con «Mapas» (Ctrl+M) o copie el archivo de mapa del circuito en
%1</translation>
    </message>
    <message>
        <source>There is not enough memory to show this session.</source>
        <translation>No hay memoria suficiente para mostrar esta sesión.</translation>
    </message>
    <message>
        <source>Traveled distance : %1</source>
        <translation>Distancia recorrida: %1</translation>
    </message>
</context>
<context>
    <name>TimePlace</name>
    <message>
        <source>Start/finish</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Corner %1</source>
        <translation>Curva %1</translation>
    </message>
    <message>
        <source>Corners %1</source>
        <translation>Curvas %1</translation>
    </message>
    <message>
        <source>right</source>
        <translation>derecha</translation>
    </message>
    <message>
        <source>left</source>
        <translation>izquierda</translation>
    </message>
    <message>
        <source>%1 seconds lost</source>
        <translation>%1 segundos perdidos</translation>
    </message>
    <message>
        <source>%1 seconds won</source>
        <translation>%1 segundos ganados</translation>
    </message>
</context>
<context>
    <name>zuno::AboutWidget</name>
    <message>
        <source>About ZUNO Analyzer</source>
        <translation>Acerca de ZUNO Analyzer</translation>
    </message>
    <message>
        <source>ZUNO Analyzer</source>
        <translation>ZUNO Analyzer</translation>
    </message>
    <message>
        <source>Version 1.5.0.0</source>
        <translation>Versión 1.5.0.0</translation>
    </message>
    <message>
        <source>Web site :</source>
        <translation>Sitio web:</translation>
    </message>
    <message>
        <source>Email :</source>
        <translation>Correo:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>zuno::AcquisitionLibrary</name>
    <message>
        <source>A name in your library could not be read; it is &quot;%1&quot; now.</source>
        <translation>Un nombre de su biblioteca no se podía leer; ahora es «%1».</translation>
    </message>
</context>
<context>
    <name>zuno::AppearanceSettings</name>
    <message>
        <source>Appearance</source>
        <translation>Aspecto</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Como el escritorio</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unidades</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distancia</translation>
    </message>
    <message>
        <source>Metres</source>
        <translation>Metros</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Pies</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sesiones</translation>
    </message>
    <message>
        <source>Choose the folder of your sessions</source>
        <translation>Elegir la carpeta de sus sesiones</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Elegir...</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Mapas</translation>
    </message>
    <message>
        <source>Choose the folder of your maps</source>
        <translation>Elegir la carpeta de sus mapas</translation>
    </message>
    <message>
        <source>Folder of your sessions</source>
        <translation>Carpeta de sus sesiones</translation>
    </message>
    <message>
        <source>Folder of your maps</source>
        <translation>Carpeta de sus mapas</translation>
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
        <translation>llega %1 km/h más lento</translation>
    </message>
    <message>
        <source>brakes %1 m earlier</source>
        <translation>frena %1 m antes</translation>
    </message>
    <message>
        <source>%1 km/h slower into the corner</source>
        <translation>%1 km/h más lento al entrar en la curva</translation>
    </message>
    <message>
        <source>%1 km/h slower at the slowest point</source>
        <translation>%1 km/h más lento en el punto más lento</translation>
    </message>
    <message>
        <source>%1 km/h slower at the exit, on the gas %2 m later</source>
        <translation>%1 km/h más lento a la salida, gas %2 m después</translation>
    </message>
    <message>
        <source>%1 km/h slower at the exit</source>
        <translation>%1 km/h más lento a la salida</translation>
    </message>
    <message>
        <source>up to %1 km/h slower before the corner</source>
        <translation>hasta %1 km/h más lento antes de la curva</translation>
    </message>
    <message>
        <source>up to %1 km/h slower in the corner</source>
        <translation>hasta %1 km/h más lento en la curva</translation>
    </message>
    <message>
        <source>up to %1 km/h slower after the corner</source>
        <translation>hasta %1 km/h más lento después de la curva</translation>
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
        <translation>Vuelta %1</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Lap %1 was not here</source>
        <translation>La vuelta %1 no pasó por aquí</translation>
    </message>
    <message>
        <source>Delay on the lap %1</source>
        <translation>Retraso respecto a la vuelta %1</translation>
    </message>
    <message>
        <source>Ahead on the lap %1 (%2 - %3)</source>
        <translation>Ventaja sobre la vuelta %1 (%2 - %3)</translation>
    </message>
</context>
<context>
    <name>zuno::CheckableComboBox</name>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(vacío)</translation>
    </message>
</context>
<context>
    <name>zuno::ColumnDialog</name>
    <message>
        <source>Columns of %1</source>
        <translation>Columnas de %1</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Magnitud</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>sin usar</translation>
    </message>
    <message>
        <source>Time, latitude and longitude are needed.</source>
        <translation>Se necesitan tiempo, latitud y longitud.</translation>
    </message>
    <message>
        <source>These columns give no ride of a second.</source>
        <translation>Estas columnas no dan ni un segundo de marcha.</translation>
    </message>
    <message>
        <source>%1 s of a ride from the begin of the file; lines that cannot be read: %2</source>
        <translation>%1 s de marcha desde el principio del archivo; líneas ilegibles: %2</translation>
    </message>
</context>
<context>
    <name>zuno::Comparing</name>
    <message>
        <source>Compare with this lap</source>
        <translation>Comparar con esta vuelta</translation>
    </message>
    <message>
        <source>Choose the reference</source>
        <translation>Elegir la referencia</translation>
    </message>
    <message>
        <source>No comparison</source>
        <translation>Sin comparación</translation>
    </message>
    <message>
        <source>Swap lap and reference</source>
        <translation>Intercambiar vuelta y referencia</translation>
    </message>
    <message>
        <source>Largest loss</source>
        <translation>Mayor pérdida</translation>
    </message>
    <message>
        <source>Second largest loss</source>
        <translation>Segunda mayor pérdida</translation>
    </message>
    <message>
        <source>Third largest loss</source>
        <translation>Tercera mayor pérdida</translation>
    </message>
    <message>
        <source>Corner before</source>
        <translation>Curva anterior</translation>
    </message>
    <message>
        <source>Next corner</source>
        <translation>Curva siguiente</translation>
    </message>
    <message>
        <source>The whole lap</source>
        <translation>La vuelta entera</translation>
    </message>
    <message>
        <source>The name could not be kept: %1</source>
        <translation>No se pudo conservar el nombre: %1</translation>
    </message>
</context>
<context>
    <name>zuno::Comparison</name>
    <message>
        <source>New best lap here: %1, lap %2 of %3</source>
        <translation>Nueva mejor vuelta aquí: %1, vuelta %2 de %3</translation>
    </message>
    <message>
        <source>This lap does not go from line to line, so its corners cannot be compared.</source>
        <translation>Esta vuelta no va de meta a meta, por lo que sus curvas no se pueden comparar.</translation>
    </message>
    <message>
        <source>Choose a reference to see where the time is.</source>
        <translation>Elija una referencia para ver dónde está el tiempo.</translation>
    </message>
    <message>
        <source>Looking for the best lap...</source>
        <translation>Buscando la mejor vuelta...</translation>
    </message>
    <message>
        <source>No corners are known here, so there is nothing to compare them by.</source>
        <translation>Aquí no se conoce ninguna curva, por lo que no hay nada que comparar.</translation>
    </message>
    <message>
        <source>There is no lap from line to line.</source>
        <translation>No hay ninguna vuelta de meta a meta.</translation>
    </message>
    <message>
        <source>The map&apos;s outline is too rough for its corners.</source>
        <translation>El trazado del mapa es demasiado basto para sus curvas.</translation>
    </message>
    <message>
        <source>The receiver measured about once a second; that is too seldom for corners.</source>
        <translation>El receptor midió más o menos una vez por segundo; es muy poco para las curvas.</translation>
    </message>
</context>
<context>
    <name>zuno::ComparisonBar</name>
    <message>
        <source>against</source>
        <translation>frente a</translation>
    </message>
    <message>
        <source>Chooses what every lap is compared with (R)</source>
        <translation>Elige con qué se compara cada vuelta (R)</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referencia</translation>
    </message>
    <message>
        <source>Draws another lap as well (O in the table)</source>
        <translation>Dibuja una vuelta más (O en la tabla)</translation>
    </message>
    <message>
        <source>+ Lap</source>
        <translation>+ Vuelta</translation>
    </message>
    <message>
        <source>Makes the reference the selected lap, and the selected lap the reference (X)</source>
        <translation>Hace de la referencia la vuelta elegida, y de la vuelta elegida la referencia (X)</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Intercambiar</translation>
    </message>
    <message>
        <source>No comparison (Shift+R)</source>
        <translation>Sin comparación (Mayús+R)</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Lap %1</source>
        <translation>Vuelta %1</translation>
    </message>
    <message>
        <source>Nothing to compare yet: there are no laps.</source>
        <translation>Aún no hay nada que comparar: no hay vueltas.</translation>
    </message>
    <message>
        <source>Looking for the best lap...</source>
        <translation>Buscando la mejor vuelta...</translation>
    </message>
    <message>
        <source>Best of session</source>
        <translation>Mejor de la sesión</translation>
    </message>
    <message>
        <source>Best ever here</source>
        <translation>Mejor de siempre aquí</translation>
    </message>
    <message>
        <source>Best ever here, same motorcycle</source>
        <translation>Mejor de siempre aquí, misma moto</translation>
    </message>
    <message>
        <source>chosen by hand</source>
        <translation>elegida a mano</translation>
    </message>
    <message>
        <source>No reference on this circuit yet</source>
        <translation>Aún no hay referencia en este circuito</translation>
    </message>
    <message>
        <source>reference</source>
        <translation>referencia</translation>
    </message>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>as fast</source>
        <translation>igual</translation>
    </message>
    <message>
        <source>slower</source>
        <translation>más lenta</translation>
    </message>
    <message>
        <source>faster</source>
        <translation>más rápida</translation>
    </message>
    <message>
        <source>Takes lap %1 away</source>
        <translation>Quita la vuelta %1</translation>
    </message>
    <message>
        <source>Six laps are drawn at most; take one away first.</source>
        <translation>Se dibujan seis vueltas como máximo; quite antes una.</translation>
    </message>
</context>
<context>
    <name>zuno::ConfigurationWidget</name>
    <message>
        <source>ZUNO Analyzer settings</source>
        <translation>Ajustes de ZUNO Analyzer</translation>
    </message>
    <message>
        <source>Display colunms</source>
        <translation>Columnas visibles</translation>
    </message>
    <message>
        <source>Lap type</source>
        <translation>Tipo de vuelta</translation>
    </message>
    <message>
        <source>Cumulate time</source>
        <translation>Tiempo acumulado</translation>
    </message>
    <message>
        <source>Max speed</source>
        <translation>Velocidad máx.</translation>
    </message>
    <message>
        <source>Min Speed</source>
        <translation>Velocidad mín.</translation>
    </message>
    <message>
        <source>Angle left</source>
        <translation>Inclinación izquierda</translation>
    </message>
    <message>
        <source>Angle right</source>
        <translation>Inclinación derecha</translation>
    </message>
    <message>
        <source>Accel</source>
        <translation>Acel.</translation>
    </message>
    <message>
        <source>Decel</source>
        <translation>Decel.</translation>
    </message>
    <message>
        <source>Min front suspension</source>
        <translation>Suspensión delantera mín.</translation>
    </message>
    <message>
        <source>Max front suspension</source>
        <translation>Suspensión delantera máx.</translation>
    </message>
    <message>
        <source>Min rear suspension</source>
        <translation>Suspensión trasera mín.</translation>
    </message>
    <message>
        <source>Max rear suspension</source>
        <translation>Suspensión trasera máx.</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sectores</translation>
    </message>
    <message>
        <source>Display on the map</source>
        <translation>Mostrar en el mapa</translation>
    </message>
    <message>
        <source>Show local min/max speed</source>
        <translation>Velocidades mín./máx. locales</translation>
    </message>
    <message>
        <source>Show sectors points</source>
        <translation>Puntos de los sectores</translation>
    </message>
    <message>
        <source>Use gradient lap comparison</source>
        <translation>Comparar vueltas con degradado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>New releases</source>
        <translation>Versiones nuevas</translation>
    </message>
    <message>
        <source>Look for a new release at every start</source>
        <translation>Buscar una versión nueva en cada inicio</translation>
    </message>
</context>
<context>
    <name>zuno::CornerNames</name>
    <message>
        <source>The file of corners beside the map is damaged, or a later program wrote it; it is left alone.</source>
        <translation>El archivo de las curvas junto al mapa está dañado, o es de una versión más reciente; se queda como está.</translation>
    </message>
</context>
<context>
    <name>zuno::CornerStrip</name>
    <message>
        <source>Corners of the lap</source>
        <translation>Curvas de la vuelta</translation>
    </message>
    <message>
        <source>Corner %1</source>
        <translation>Curva %1</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Recta</translation>
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
        <translation>Curvas</translation>
    </message>
    <message>
        <source>A click shows the corner in charts and map, F2 gives it a name</source>
        <translation>Un clic muestra la curva en los gráficos y en el mapa, F2 le da nombre</translation>
    </message>
    <message>
        <source>Name of the corner</source>
        <translation>Nombre de la curva</translation>
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
        <translation>derecha</translation>
    </message>
    <message>
        <source>left</source>
        <translation>izquierda</translation>
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
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Diff.</source>
        <translation>Dif.</translation>
    </message>
    <message>
        <source>Brakes at</source>
        <translation>Frena a</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Lean</source>
        <translation>Inclinación</translation>
    </message>
    <message>
        <source>On the gas</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Dispersión</translation>
    </message>
    <message>
        <source>Spread, %1 laps</source>
        <translation>Dispersión, %1 vueltas</translation>
    </message>
</context>
<context>
    <name>zuno::CornersPane</name>
    <message>
        <source>Join</source>
        <translation>Unir</translation>
    </message>
    <message>
        <source>Makes one corner of the selected one and the next</source>
        <translation>Hace una sola curva de la elegida y la siguiente</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Dividir</translation>
    </message>
    <message>
        <source>Makes two corners of the selected one</source>
        <translation>Hace dos curvas de la elegida</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>The selected one counts as no corner</source>
        <translation>La elegida no cuenta como curva</translation>
    </message>
    <message>
        <source>As found</source>
        <translation>Como se hallaron</translation>
    </message>
    <message>
        <source>Takes back all changes of the corners</source>
        <translation>Deshace todos los cambios de las curvas</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Sentido</translation>
    </message>
    <message>
        <source>From the line</source>
        <translation>Desde la línea</translation>
    </message>
    <message>
        <source>Turns</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>A double click on a corner gives it a name</source>
        <translation>Un doble clic en una curva le da nombre</translation>
    </message>
    <message>
        <source>right</source>
        <translation>derecha</translation>
    </message>
    <message>
        <source>left</source>
        <translation>izquierda</translation>
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
        <translation>Descargar la actualización de ZUNO Analyzer</translation>
    </message>
    <message>
        <source>Downloading the new version...</source>
        <translation>Descargando la nueva versión...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>zuno::EmptyPage</name>
    <message>
        <source>There are no sessions yet.</source>
        <translation>Todavía no hay sesiones.</translation>
    </message>
    <message>
        <source>Drop the session files (.ra1) of your logger here, or a whole folder.</source>
        <translation>Suelte aquí los archivos de sesión (.ra1) de su registrador, o una carpeta entera.</translation>
    </message>
    <message>
        <source>Import (Ctrl+I)</source>
        <translation>Importar (Ctrl+I)</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importar...</translation>
    </message>
    <message>
        <source>Show the demo</source>
        <translation>Mostrar la demo</translation>
    </message>
    <message>
        <source>The demo: invented sessions of three riders on three circuits. They can be taken away again with one click.</source>
        <translation>La demo: sesiones inventadas de tres pilotos en tres circuitos. Se quitan con un clic.</translation>
    </message>
    <message>
        <source>1  Import a session      2  Its circuit is found, laps are cut      3  See where the time is</source>
        <translation>1  Importe una sesión      2  Se encuentra el circuito y se dividen las vueltas      3  Vea dónde está el tiempo</translation>
    </message>
    <message>
        <source>Files can also be copied to %1</source>
        <translation>Los archivos también se pueden copiar en %1</translation>
    </message>
</context>
<context>
    <name>zuno::ExportDialogs</name>
    <message>
        <source>Export Session file</source>
        <translation>Exportar el archivo de la sesión</translation>
    </message>
    <message>
        <source>RA1 files (.ra1);</source>
        <translation>Archivos RA1 (.ra1);</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already; nothing was exported.</source>
        <translation>«%1» ya existe; no se ha exportado nada.</translation>
    </message>
    <message>
        <source>Export Session Data file</source>
        <translation>Exportar los datos de la sesión</translation>
    </message>
    <message>
        <source>CSV files (.csv);</source>
        <translation>Archivos CSV (.csv);</translation>
    </message>
    <message>
        <source>the session&apos;s file has changed or is gone</source>
        <translation>el archivo de la sesión ha cambiado o ya no existe</translation>
    </message>
    <message>
        <source>Export Lap file</source>
        <translation>Exportar la vuelta</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;.</source>
        <translation>Exportado a «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>No se pudo escribir «%1»: %2</translation>
    </message>
    <message>
        <source>Export for other programs</source>
        <translation>Exportar para otros programas</translation>
    </message>
    <message>
        <source>%1 sessions were exported to &quot;%2&quot;.</source>
        <translation>%1 sesiones exportadas a «%2».</translation>
    </message>
    <message>
        <source>CSV with units (*.csv)</source>
        <translation>CSV con unidades (*.csv)</translation>
    </message>
</context>
<context>
    <name>zuno::IdealTimeDialog</name>
    <message>
        <source>Multi sessions ideal time</source>
        <translation>Tiempo ideal de varias sesiones</translation>
    </message>
    <message>
        <source>%v / %m</source>
        <translation>%v / %m</translation>
    </message>
    <message>
        <source>Copy table</source>
        <translation>Copiar la tabla</translation>
    </message>
    <message>
        <source>Enter or a double click shows the lap, Ctrl+C copies the table</source>
        <translation>Intro o un doble clic muestra la vuelta, Ctrl+C copia la tabla</translation>
    </message>
    <message>
        <source>Computing the ideal time...</source>
        <translation>Calculando el tiempo ideal...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Show this lap</source>
        <translation>Mostrar esta vuelta</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Map : %1</source>
        <translation>Mapa: %1</translation>
    </message>
    <message>
        <source>sessions : %1 of %2</source>
        <translation>sesiones: %1 de %2</translation>
    </message>
    <message>
        <source>None of these sessions can be cut into laps, so there is no ideal time.</source>
        <translation>Ninguna de estas sesiones se puede dividir en vueltas, por lo que no hay tiempo ideal.</translation>
    </message>
    <message>
        <source>These sessions have no valid lap that went through a section, so there is no ideal time.</source>
        <translation>En estas sesiones ninguna vuelta válida recorre un sector, por lo que no hay tiempo ideal.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation>Omitidas:</translation>
    </message>
</context>
<context>
    <name>zuno::IdealTimeModel</name>
    <message>
        <source>Section %1</source>
        <translation>Sector %1</translation>
    </message>
    <message>
        <source>Ideal time</source>
        <translation>Tiempo ideal</translation>
    </message>
    <message>
        <source>Best lap</source>
        <translation>Mejor vuelta</translation>
    </message>
    <message>
        <source>Best continuous lap</source>
        <translation>Mejor vuelta continua</translation>
    </message>
    <message>
        <source>Best continuous lap, from the end of section %1</source>
        <translation>Mejor vuelta continua, desde fin de sector %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>laps</comment>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>What the best lap lost in a section; what a lap lost on the ideal time (seconds)</source>
        <translation>Lo que la mejor vuelta perdió en un sector; lo que una vuelta perdió respecto al tiempo ideal (segundos)</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sector</translation>
    </message>
    <message>
        <source>Best time</source>
        <translation>Mejor tiempo</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Piloto</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Vuelta</translation>
    </message>
    <message>
        <source>In best lap</source>
        <translation>En mejor vuelta</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
</context>
<context>
    <name>zuno::IdealTimeText</name>
    <message>
        <source>without section %1: no lap passed timing point %1 in its circle</source>
        <translation>sin la sección %1: ninguna vuelta pasó por el círculo del punto %1</translation>
    </message>
    <message>
        <source>without those of lap %1, the best, from section %2 on: it passed timing point %2 outside of its circle</source>
        <translation>sin las de la vuelta %1, la mejor, desde la sección %2: pasó fuera del círculo del punto %2</translation>
    </message>
</context>
<context>
    <name>zuno::ImportDialog</name>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Sessions are made of these recordings; the files themselves stay as they are.</source>
        <translation>De estas grabaciones se crean sesiones; los archivos mismos se quedan como están.</translation>
    </message>
    <message>
        <source>Columns...</source>
        <translation>Columnas...</translation>
    </message>
    <message>
        <source>Says what the columns of the selected table hold</source>
        <translation>Indica qué contienen las columnas de la tabla elegida</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Leyendo %1</translation>
    </message>
    <message>
        <source>1 session will be imported.</source>
        <translation>Se importará 1 sesión.</translation>
    </message>
    <message>
        <source>%1 sessions will be imported.</source>
        <translation>Se importarán %1 sesiones.</translation>
    </message>
</context>
<context>
    <name>zuno::ImportTable</name>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Circuit</source>
        <translation>Circuito</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Laps</source>
        <translation>Vueltas</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Observaciones</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>no map of this circuit</source>
        <translation>sin mapa de este circuito</translation>
    </message>
    <message>
        <source>was imported before, as &quot;%1&quot;</source>
        <translation>ya se importó, como «%1»</translation>
    </message>
    <message>
        <source>%1; say what its columns are</source>
        <translation>%1; indique qué son sus columnas</translation>
    </message>
</context>
<context>
    <name>zuno::InformationNotice</name>
    <message>
        <source>Put it back</source>
        <translation>Recuperar el otro</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Conservar el mío</translation>
    </message>
</context>
<context>
    <name>zuno::InformationWriter</name>
    <message>
        <source>%1 was not changed: %2. Changes are kept until the program ends.</source>
        <translation>%1 no se ha modificado: %2. Los cambios se conservan hasta cerrar el programa.</translation>
    </message>
    <message>
        <source>the file holds another recording now</source>
        <translation>el archivo contiene ahora otra grabación</translation>
    </message>
    <message>
        <source>%1 was changed by another program meanwhile; its changes were kept.</source>
        <translation>Otro programa modificó %1 entretanto; se conservaron sus cambios.</translation>
    </message>
    <message>
        <source>the file is write-protected</source>
        <translation>el archivo está protegido contra escritura</translation>
    </message>
    <message>
        <source>the file is damaged, or ends too early</source>
        <translation>el archivo está dañado o termina antes de tiempo</translation>
    </message>
    <message>
        <source>its format is not known</source>
        <translation>su formato no se conoce</translation>
    </message>
    <message>
        <source>%1 was changed by another program meanwhile. Where you both typed, your text stands; the page &quot;Session infos&quot; offers the other one.</source>
        <translation>Otro programa modificó %1 entretanto. Donde han escrito los dos queda su texto; la página «Datos de la sesión» ofrece el otro.</translation>
    </message>
    <message>
        <source>the file is not in your library</source>
        <translation>el archivo no está en su biblioteca</translation>
    </message>
</context>
<context>
    <name>zuno::KeySheet</name>
    <message>
        <source>In the list of sessions</source>
        <translation>En la lista de sesiones</translation>
    </message>
    <message>
        <source>In the laps table</source>
        <translation>En la tabla de vueltas</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>En todas partes</translation>
    </message>
    <message>
        <source>About ZUNO Analyzer</source>
        <translation>Acerca de ZUNO Analyzer</translation>
    </message>
    <message>
        <source>In the charts</source>
        <translation>En los gráficos</translation>
    </message>
    <message>
        <source>Cursor to the sample before or after</source>
        <translation>Cursor a la muestra anterior o siguiente</translation>
    </message>
    <message>
        <source>Cursor to the begin or end</source>
        <translation>Cursor al principio o al final</translation>
    </message>
    <message>
        <source>Zoom in or out around the cursor</source>
        <translation>Ampliar o reducir en torno al cursor</translation>
    </message>
    <message>
        <source>A page back or on</source>
        <translation>Una página atrás o adelante</translation>
    </message>
    <message>
        <source>The whole lap</source>
        <translation>La vuelta entera</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>The biggest losses</source>
        <translation>Las mayores pérdidas</translation>
    </message>
    <message>
        <source>The corner before or after</source>
        <translation>La curva anterior o siguiente</translation>
    </message>
    <message>
        <source>Over the distance or the time</source>
        <translation>Por distancia o por tiempo</translation>
    </message>
    <message>
        <source>Measure between two places</source>
        <translation>Medir entre dos lugares</translation>
    </message>
</context>
<context>
    <name>zuno::LapCharts</name>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Inclinación</translation>
    </message>
    <message>
        <source>Accel/Decel</source>
        <translation>Acel./Decel.</translation>
    </message>
    <message>
        <source>Front susp.</source>
        <translation>Susp. del.</translation>
    </message>
    <message>
        <source>Rear susp.</source>
        <translation>Susp. tras.</translation>
    </message>
    <message>
        <source>Compare positions</source>
        <translation>Comparar posiciones</translation>
    </message>
    <message>
        <source>Compare time</source>
        <translation>Comparar tiempo</translation>
    </message>
    <message>
        <source>Distance</source>
        <comment>the charts&apos; axis</comment>
        <translation>Distancia</translation>
    </message>
    <message>
        <source>Time</source>
        <comment>the charts&apos; axis</comment>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>the whole session</source>
        <translation>toda la sesión</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Medir</translation>
    </message>
    <message>
        <source>Measure between two places (M)</source>
        <translation>Medir entre dos lugares (M)</translation>
    </message>
    <message>
        <source>Whole lap</source>
        <translation>Vuelta entera</translation>
    </message>
    <message>
        <source>Show the whole lap (Esc)</source>
        <translation>Mostrar la vuelta entera (Esc)</translation>
    </message>
    <message>
        <source>Previous corner (,)</source>
        <translation>Curva anterior (,)</translation>
    </message>
    <message>
        <source>Previous corner</source>
        <translation>Curva anterior</translation>
    </message>
    <message>
        <source>Next corner (.)</source>
        <translation>Curva siguiente (.)</translation>
    </message>
    <message>
        <source>Next corner</source>
        <translation>Curva siguiente</translation>
    </message>
    <message>
        <source>Whole session</source>
        <translation>Toda la sesión</translation>
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
        <translation>Vuelta de otro archivo</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Piloto</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Lap %1</source>
        <translation>Vuelta %1</translation>
    </message>
    <message>
        <source>No lap of this circuit</source>
        <translation>Ninguna vuelta de este circuito</translation>
    </message>
</context>
<context>
    <name>zuno::LapFlag</name>
    <message>
        <source>from the pits</source>
        <translation>desde boxes</translation>
    </message>
    <message>
        <source>into the pits</source>
        <translation>hacia boxes</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>parado</translation>
    </message>
    <message>
        <source>slow +%1 %</source>
        <translation>lento +%1 %</translation>
    </message>
    <message>
        <source>positions off</source>
        <translation>posiciones erróneas</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>hueco</translation>
    </message>
    <message>
        <source>held up</source>
        <translation>estorbado</translation>
    </message>
</context>
<context>
    <name>zuno::LapReason</name>
    <message>
        <source>held up</source>
        <translation>estorbado</translation>
    </message>
    <message>
        <source>missed the line</source>
        <translation>sin pasar por la línea</translation>
    </message>
    <message>
        <source>warm-up</source>
        <translation>calentamiento</translation>
    </message>
    <message>
        <source>other</source>
        <translation>otro</translation>
    </message>
</context>
<context>
    <name>zuno::LapsPane</name>
    <message>
        <source>Ideal time :</source>
        <translation>Tiempo ideal:</translation>
    </message>
    <message>
        <source>Traveled distance :</source>
        <translation>Distancia recorrida:</translation>
    </message>
    <message>
        <source>New map from this session...</source>
        <translation>Nuevo mapa de esta sesión...</translation>
    </message>
    <message>
        <source>The best time of each section, and the lap that holds it</source>
        <translation>El mejor tiempo de cada sector y la vuelta en que se hizo</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sector</translation>
    </message>
    <message>
        <source>Best time</source>
        <translation>Mejor tiempo</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Vuelta</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Elegir otra carpeta...</translation>
    </message>
    <message>
        <source>Laps</source>
        <translation>Vueltas</translation>
    </message>
    <message>
        <source>The laps of the session</source>
        <translation>Las vueltas de la sesión</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Curvas</translation>
    </message>
    <message>
        <source>The corners of the circuit in the selected lap</source>
        <translation>Las curvas del circuito en la vuelta elegida</translation>
    </message>
</context>
<context>
    <name>zuno::LapsTableModel</name>
    <message>
        <source>Complete</source>
        <translation>Completa</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>Incompleta</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Vuelta</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Cumulated time</source>
        <translation>Acumulado</translation>
    </message>
    <message>
        <source>Lap time</source>
        <translation>Tiempo vuelta</translation>
    </message>
    <message>
        <source>Max speed</source>
        <translation>Vel. máx.</translation>
    </message>
    <message>
        <source>Min speed</source>
        <translation>Vel. mín.</translation>
    </message>
    <message>
        <source>Left Angle</source>
        <translation>Inclin. izq.</translation>
    </message>
    <message>
        <source>Right Angle</source>
        <translation>Inclin. der.</translation>
    </message>
    <message>
        <source>Accel</source>
        <translation>Acel.</translation>
    </message>
    <message>
        <source>Decel</source>
        <translation>Decel.</translation>
    </message>
    <message>
        <source>Min front susp.</source>
        <translation>Susp. del. mín.</translation>
    </message>
    <message>
        <source>Max front susp.</source>
        <translation>Susp. del. máx.</translation>
    </message>
    <message>
        <source>Min rear susp.</source>
        <translation>Susp. tras. mín.</translation>
    </message>
    <message>
        <source>Max rear susp.</source>
        <translation>Susp. tras. máx.</translation>
    </message>
    <message>
        <source>Section %1</source>
        <translation>Sector %1</translation>
    </message>
    <message>
        <source>Counted twice</source>
        <translation>Contada dos veces</translation>
    </message>
</context>
<context>
    <name>zuno::LapsView</name>
    <message>
        <source>V throws a lap out or takes it back, C compares, Ctrl+E exports; the menu key shows everything that can be done with a lap</source>
        <translation>V descarta una vuelta o la recupera, C compara, Ctrl+E exporta; la tecla Menú muestra todo lo que se puede hacer con una vuelta</translation>
    </message>
    <message>
        <source>Reselect first lap</source>
        <translation>Elegir otra primera vuelta</translation>
    </message>
    <message>
        <source>Export lap</source>
        <translation>Exportar la vuelta</translation>
    </message>
    <message>
        <source>Invalidate lap</source>
        <translation>Invalidar la vuelta</translation>
    </message>
    <message>
        <source>Validate lap</source>
        <translation>Validar la vuelta</translation>
    </message>
    <message>
        <source>Compare to this lap</source>
        <translation>Comparar con esta vuelta</translation>
    </message>
    <message>
        <source>Compare this lap with...</source>
        <translation>Comparar esta vuelta con...</translation>
    </message>
    <message>
        <source>This is the first lap itself; choose another one to compare it with.</source>
        <translation>Es la primera vuelta misma; elija otra para compararla.</translation>
    </message>
    <message>
        <source>Draw no longer besides</source>
        <translation>No dibujar más además</translation>
    </message>
    <message>
        <source>Draw besides</source>
        <translation>Dibujar además</translation>
    </message>
    <message>
        <source>Six laps are drawn at most; take one away first.</source>
        <translation>Se dibujan seis vueltas como máximo; quite antes una.</translation>
    </message>
</context>
<context>
    <name>zuno::LibraryPane</name>
    <message>
        <source>Demo sessions</source>
        <translation>Sesiones de demo</translation>
    </message>
    <message>
        <source>Takes the demo sessions and their maps away</source>
        <translation>Quita las sesiones de demo y sus mapas</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
</context>
<context>
    <name>zuno::LibraryTree</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Do not use [^\/`~@#$%^&amp;*:?&quot;&lt;&gt;|] characters</source>
        <translation>No use los caracteres [^\/`~@#$%^&amp;*:?&quot;&lt;&gt;|]</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nueva carpeta</translation>
    </message>
    <message>
        <source>Export Session</source>
        <translation>Exportar la sesión</translation>
    </message>
    <message>
        <source>Export Session Data (CSV)</source>
        <translation>Exportar los datos de la sesión (CSV)</translation>
    </message>
    <message>
        <source>Compute multisession ideal time</source>
        <translation>Calcular el tiempo ideal de varias sesiones</translation>
    </message>
    <message>
        <source>Enter displays a session, F2 renames, Del deletes</source>
        <translation>Intro muestra una sesión, F2 cambia el nombre, Supr elimina</translation>
    </message>
    <message>
        <source>Rename File</source>
        <translation>Cambiar el nombre del archivo</translation>
    </message>
    <message>
        <source>New name :</source>
        <translation>Nuevo nombre:</translation>
    </message>
    <message>
        <source>There is a &quot;%1&quot; already; nothing was renamed.</source>
        <translation>«%1» ya existe; no se ha cambiado ningún nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed.</source>
        <translation>No se pudo cambiar el nombre de «%1».</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected files PERMANENTLY (not moved into the trash bin)?</source>
        <translation>¿Seguro que desea eliminar PERMANENTEMENTE los archivos seleccionados (sin moverlos a la papelera)?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted.</source>
        <translation>No se pudo eliminar «%1».</translation>
    </message>
    <message>
        <source>Create new folder</source>
        <translation>Crear una carpeta</translation>
    </message>
    <message>
        <source>Folder name :</source>
        <translation>Nombre de la carpeta:</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created.</source>
        <translation>No se pudo crear la carpeta «%1».</translation>
    </message>
    <message>
        <source>Do you want to move this to the trash?</source>
        <translation>¿Mover esto a la papelera?</translation>
    </message>
    <message>
        <source>There is no trash that takes this:</source>
        <translation>Ninguna papelera admite esto:</translation>
    </message>
    <message>
        <source>Export for other programs</source>
        <translation>Exportar para otros programas</translation>
    </message>
</context>
<context>
    <name>zuno::LineSwitch</name>
    <message>
        <source>Gain/loss</source>
        <translation>Ganancia/pérdida</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Lean</source>
        <translation>Inclinación</translation>
    </message>
    <message>
        <source>Accel/Decel</source>
        <translation>Acel./Decel.</translation>
    </message>
    <message>
        <source>Colour the line by: %1 (L)</source>
        <translation>Colorear la línea por: %1 (L)</translation>
    </message>
    <message>
        <source>What the colours of the line tell (L)</source>
        <translation>Qué dicen los colores de la línea (L)</translation>
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
        <translation>Las velocidades no lo confirman</translation>
    </message>
    <message>
        <source>Within 2 km/h everywhere</source>
        <translation>En todas partes a menos de 2 km/h</translation>
    </message>
</context>
<context>
    <name>zuno::MapCheckModel</name>
    <message>
        <source>Incomplete</source>
        <translation>Incompleta</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Vuelta</translation>
    </message>
    <message>
        <source>Lap time</source>
        <translation>Tiempo vuelta</translation>
    </message>
    <message>
        <source>Section %1</source>
        <translation>Sector %1</translation>
    </message>
</context>
<context>
    <name>zuno::MapCheckPane</name>
    <message>
        <source>Choose a session to see the laps that the map gives.</source>
        <translation>Elija una sesión para ver las vueltas que da el mapa.</translation>
    </message>
    <message>
        <source>No complete lap. Length: %1</source>
        <translation>Ninguna vuelta completa. Longitud: %1</translation>
    </message>
    <message>
        <source>Complete laps: %1. Best: %2 (lap %3). Ideal: %4. Length: %5</source>
        <translation>Completas: %1. Mejor: %2 (vuelta %3). Ideal: %4. Longitud: %5</translation>
    </message>
    <message>
        <source>No problems found.</source>
        <translation>No se han encontrado problemas.</translation>
    </message>
</context>
<context>
    <name>zuno::MapDraft</name>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>No se puede crear la carpeta «%1».</translation>
    </message>
</context>
<context>
    <name>zuno::MapEdit</name>
    <message>
        <source>Move point</source>
        <translation>mover punto</translation>
    </message>
    <message>
        <source>Add timing point</source>
        <translation>añadir punto de cronometraje</translation>
    </message>
    <message>
        <source>Remove timing point</source>
        <translation>quitar punto de cronometraje</translation>
    </message>
    <message>
        <source>Change gate size</source>
        <translation>cambiar el tamaño de las puertas</translation>
    </message>
    <message>
        <source>Change outline</source>
        <translation>cambiar el trazado</translation>
    </message>
    <message>
        <source>Take the gates of the file</source>
        <translation>tomar las puertas del archivo</translation>
    </message>
    <message>
        <source>Change corner</source>
        <translation>cambiar curva</translation>
    </message>
    <message>
        <source>Corners as found</source>
        <translation>curvas como se hallaron</translation>
    </message>
</context>
<context>
    <name>zuno::MapEditor</name>
    <message>
        <source>Map editor</source>
        <translation>Editor de mapas</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Country :</source>
        <translation>País:</translation>
    </message>
    <message>
        <source>The folder below the maps folder; may be empty</source>
        <translation>La carpeta dentro de la carpeta de mapas; puede quedar vacía</translation>
    </message>
    <message>
        <source>Session :</source>
        <translation>Sesión:</translation>
    </message>
    <message>
        <source>The session whose laps are shown</source>
        <translation>La sesión cuyas vueltas se muestran</translation>
    </message>
    <message>
        <source>Outline :</source>
        <translation>Trazado:</translation>
    </message>
    <message>
        <source>The lap that the outline of the track follows</source>
        <translation>La vuelta que sigue el trazado del circuito</translation>
    </message>
    <message>
        <source>Gate size :</source>
        <translation>Tamaño de puerta:</translation>
    </message>
    <message>
        <source>How far from a timing point a lap is timed; twice as far at the start/finish line</source>
        <translation>A qué distancia de un punto de cronometraje se toma aún el tiempo; el doble en la línea de meta</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>The map has no start/finish line.</source>
        <translation>El mapa no tiene línea de meta.</translation>
    </message>
    <message>
        <source>The map has been changed. Do you want to save it?</source>
        <translation>El mapa se ha modificado. ¿Desea guardarlo?</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>A map has room for %1 timing points. Remove one of them to add another.</source>
        <translation>Un mapa tiene sitio para %1 puntos de cronometraje. Quite uno para añadir otro.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Curvas</translation>
    </message>
</context>
<context>
    <name>zuno::MapMaker</name>
    <message>
        <source>Hardly a sample of this session says where the motorcycle was, so no map can be made from it.</source>
        <translation>Casi ninguna muestra de esta sesión dice dónde estaba la moto, por lo que no se puede crear un mapa con ella.</translation>
    </message>
    <message>
        <source>The motorcycle stood still for the whole session, so no map can be made from it.</source>
        <translation>La moto estuvo parada durante toda la sesión, por lo que no se puede crear un mapa con ella.</translation>
    </message>
    <message>
        <source>This session never comes back to where it was, in the same direction: it holds no lap to make a map from. Take a session with one whole lap and a bit more.</source>
        <translation>Esta sesión nunca vuelve a un mismo lugar en el mismo sentido: no contiene ninguna vuelta para crear un mapa. Use una sesión con una vuelta entera y un poco más.</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Mapas</translation>
    </message>
    <message>
        <source>New map</source>
        <translation>Nuevo mapa</translation>
    </message>
    <message>
        <source>This is a proposal. Give it a name and save it, or drag its points.</source>
        <translation>Es una propuesta: póngale nombre y guárdela, o arrastre sus puntos.</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; was not made with this program and stays as it is. You are changing a copy of it.</source>
        <translation>El mapa «%1» no se creó con este programa y se queda como está. Usted modifica una copia.</translation>
    </message>
    <message>
        <source>There is a map &quot;%1&quot; already. Do you want to replace it?</source>
        <translation>Ya existe un mapa «%1». ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>The map could not be saved: %1</source>
        <translation>No se pudo guardar el mapa: %1</translation>
    </message>
    <message>
        <source>Rename map</source>
        <translation>Cambiar el nombre del mapa</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>There is a map &quot;%1&quot; already.</source>
        <translation>Ya existe un mapa «%1».</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; could not be renamed.</source>
        <translation>No se pudo cambiar el nombre del mapa «%1».</translation>
    </message>
    <message>
        <source>Do you want to delete the map &quot;%1&quot;?</source>
        <translation>¿Desea eliminar el mapa «%1»?</translation>
    </message>
    <message>
        <source>The map cannot be moved to the trash. Do you want to delete it for good?</source>
        <translation>El mapa no se puede mover a la papelera. ¿Desea eliminarlo para siempre?</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; could not be deleted.</source>
        <translation>No se pudo eliminar el mapa «%1».</translation>
    </message>
    <message>
        <source>This is a proposal with the start line of the imported file; Undo takes the line that was found in the laps. Give it a name and save it, or drag its points.</source>
        <translation>Es una propuesta con la línea de meta del archivo importado; Deshacer toma la que se halló en las vueltas. Póngale nombre y guárdela, o arrastre sus puntos.</translation>
    </message>
    <message>
        <source>The file of the map&apos;s corners cannot be read, and is left alone.</source>
        <translation>El archivo de las curvas del mapa no se puede leer y se queda como está.</translation>
    </message>
    <message>
        <source>A later version of the program changed the map&apos;s corners; they are left alone.</source>
        <translation>Una versión más reciente del programa cambió las curvas del mapa; se quedan como están.</translation>
    </message>
    <message>
        <source>The corners could not be saved: %1</source>
        <translation>No se pudieron guardar las curvas: %1</translation>
    </message>
    <message>
        <source>Its corners alone can be changed without a copy.</source>
        <translation>Solo sus curvas se pueden cambiar sin una copia.</translation>
    </message>
    <message>
        <source>The corners of the map &quot;%1&quot; could not be renamed.</source>
        <translation>No se pudo cambiar el nombre de las curvas del mapa «%1».</translation>
    </message>
</context>
<context>
    <name>zuno::MapName</name>
    <message>
        <source>Give the map a name to save it.</source>
        <translation>Dé un nombre al mapa para guardarlo.</translation>
    </message>
    <message>
        <source>Dots cannot stand in a map&apos;s name or folder.</source>
        <translation>El nombre y la carpeta de un mapa no pueden llevar puntos (.).</translation>
    </message>
    <message>
        <source>These cannot stand in a map&apos;s name or folder: %1</source>
        <translation>El nombre y la carpeta de un mapa no pueden llevar estos caracteres: %1</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device; choose another one.</source>
        <translation>Windows reserva este nombre para un dispositivo; elija otro.</translation>
    </message>
    <message>
        <source>This name is too long; %1 characters are the most.</source>
        <translation>Este nombre es demasiado largo; puede tener como máximo %1 caracteres.</translation>
    </message>
    <message>
        <source>New track</source>
        <translation>Circuito nuevo</translation>
    </message>
</context>
<context>
    <name>zuno::MapPane</name>
    <message>
        <source>Map :</source>
        <translation>Mapa:</translation>
    </message>
    <message>
        <source>Map Length :</source>
        <translation>Longitud del mapa:</translation>
    </message>
    <message>
        <source>errorMap</source>
        <translation>errorMap</translation>
    </message>
    <message>
        <source>New map from this session...</source>
        <translation>Nuevo mapa de esta sesión...</translation>
    </message>
    <message>
        <source>No map found, please try to select one from the Map configuraton panel</source>
        <translation>Ningún mapa encontrado, elija uno en la configuración de mapas</translation>
    </message>
    <message>
        <source>Map : %1</source>
        <translation>Mapa: %1</translation>
    </message>
    <message>
        <source>Map length : %1 m</source>
        <translation>Longitud del mapa: %1 m</translation>
    </message>
    <message>
        <source>Next colours of the line on the map</source>
        <translation>Siguientes colores de la línea en el mapa</translation>
    </message>
    <message>
        <source>Map length : %1</source>
        <translation>Longitud del mapa: %1</translation>
    </message>
</context>
<context>
    <name>zuno::MapPointsPane</name>
    <message>
        <source>Left and right arrows move the selected point by 1 m, with Shift by 10 m</source>
        <translation>Las flechas izquierda y derecha mueven el punto elegido 1 m; con Mayús, 10 m</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>From the line</source>
        <translation>Desde la línea</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Adds a timing point in the longest section; a click on the track adds one there</source>
        <translation>Añade un punto de cronometraje en el sector más largo; un clic en la pista lo añade allí</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Start/finish</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>%1 (on the line)</source>
        <translation>%1 (en la línea)</translation>
    </message>
</context>
<context>
    <name>zuno::MapWarning</name>
    <message>
        <source>the line</source>
        <translation>la línea de meta</translation>
    </message>
    <message>
        <source>timing point %1</source>
        <translation>el punto de cronometraje %1</translation>
    </message>
    <message>
        <source> (%1 laps)</source>
        <translation> (%1 vueltas)</translation>
    </message>
    <message>
        <source> (lap %1)</source>
        <translation> (vuelta %1)</translation>
    </message>
    <message>
        <source> (laps %1)</source>
        <translation> (vueltas %1)</translation>
    </message>
    <message>
        <source>There is no start/finish point, so there are no laps.</source>
        <translation>El mapa no tiene punto de salida, por lo que no hay vueltas.</translation>
    </message>
    <message>
        <source>This session never passes the line.</source>
        <translation>Esta sesión nunca pasa por la línea de meta.</translation>
    </message>
    <message>
        <source>Laps pass by %1 outside of its circle%3. Move the point onto their way or make the gate larger.</source>
        <translation>Hay vueltas que pasan por %1 fuera de su círculo%3. Mueva el punto a su recorrido o haga la puerta más grande.</translation>
    </message>
    <message>
        <source>Laps come to %1 before they come to %2. Number the points in riding order.</source>
        <translation>Hay vueltas que pasan por %1 antes que por %2. Numere los puntos en el orden de la marcha.</translation>
    </message>
    <message>
        <source>Another piece of the track runs through the circle of %1%3. Make the gate smaller or move the point.</source>
        <translation>Otro tramo de la pista atraviesa el círculo que rodea %1%3. Haga la puerta más pequeña o mueva el punto.</translation>
    </message>
    <message>
        <source>A pit lane, or a ride in the other direction, passes through the circle of %1%3. Make the gate smaller or move the point.</source>
        <translation>Un pit lane, o un paso en sentido contrario, atraviesa el círculo que rodea %1%3. Haga la puerta más pequeña o mueva el punto.</translation>
    </message>
    <message>
        <source>The circles of %1 and %2 touch. Move the points apart or make the gate smaller.</source>
        <translation>Los círculos que rodean %1 y %2 se tocan. Separe los puntos o haga la puerta más pequeña.</translation>
    </message>
    <message>
        <source>One pass of the line counts twice%3: the rider was still inside its circle when it could count again. Make the gate smaller or move the line to where everybody is fast.</source>
        <translation>Un paso por la línea de meta cuenta dos veces%3: el piloto seguía dentro de su círculo cuando ya podía volver a contar. Haga la puerta más pequeña o mueva la línea a donde todos van rápido.</translation>
    </message>
    <message>
        <source>No lap is as long as the outline, so none counts as complete.</source>
        <translation>Ninguna vuelta es tan larga como el trazado, por lo que ninguna cuenta como completa.</translation>
    </message>
    <message>
        <source>The last point, %1, is not on the line: the rest of the lap belongs to no section.</source>
        <translation>El último, %1, no está en la línea de meta: el resto de la vuelta no pertenece a ningún sector.</translation>
    </message>
    <message>
        <source>A lap has room for %4 sections; timing points after %1 are left out.</source>
        <translation>En una vuelta caben %4 sectores; el último acaba en %1, los demás puntos se omiten.</translation>
    </message>
    <message>
        <source>The map would not be found for this session by itself: the line is more than 1 km from where the recording begins, and the ride does not follow the outline. Choose the map with &quot;Maps&quot;.</source>
        <translation>El mapa no se encontraría solo para esta sesión: la línea está a más de 1 km del inicio de la grabación y la marcha no sigue el trazado. Elija el mapa con «Mapas».</translation>
    </message>
    <message>
        <source>A pass of the line below %5 km/h counts twice, as on a wet or slow day. Make the gate smaller or move the line to where everybody is fast.</source>
        <translation>Un paso por la línea a menos de %5 km/h cuenta dos veces, como en un día mojado o lento. Haga la puerta más pequeña o mueva la línea a donde todos van rápido.</translation>
    </message>
</context>
<context>
    <name>zuno::MapsWidget</name>
    <message>
        <source>Maps Configuration</source>
        <translation>Configuración de mapas</translation>
    </message>
    <message>
        <source>Auto detect map</source>
        <translation>Detectar el mapa</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Choose other Map for session : %1</source>
        <translation>Elegir otro mapa para la sesión: %1</translation>
    </message>
    <message>
        <source>No session loaded</source>
        <translation>Ninguna sesión cargada</translation>
    </message>
    <message>
        <source>New map from this session...</source>
        <translation>Nuevo mapa de esta sesión...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Editar...</translation>
    </message>
    <message>
        <source>Rename...</source>
        <translation>Cambiar nombre...</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>Eliminar...</translation>
    </message>
    <message>
        <source>Reload maps</source>
        <translation>Recargar mapas</translation>
    </message>
</context>
<context>
    <name>zuno::MeasureLine</name>
    <message>
        <source>%1 to %2: %3</source>
        <comment>places, and the distance between them</comment>
        <translation>%1 a %2: %3</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Speed min</source>
        <translation>Velocidad mín.</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>media</translation>
    </message>
    <message>
        <source>max</source>
        <translation>máx.</translation>
    </message>
    <message>
        <source>End measuring (Esc)</source>
        <translation>Terminar de medir (Esc)</translation>
    </message>
    <message>
        <source>Click two places in a chart, or draw from one to the other.</source>
        <translation>Haga clic en dos lugares de un gráfico, o arrastre de uno a otro.</translation>
    </message>
</context>
<context>
    <name>zuno::PageFailure</name>
    <message>
        <source>The map has stopped several times, and was left alone. Everything else goes on working.</source>
        <translation>El mapa se ha parado varias veces y ya no se reinicia. Todo lo demás sigue funcionando.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Volver a intentar</translation>
    </message>
</context>
<context>
    <name>zuno::PassProgress</name>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
</context>
<context>
    <name>zuno::Reference</name>
    <message>
        <source>No lap serves as reference yet.</source>
        <translation>Ninguna vuelta sirve aún de referencia.</translation>
    </message>
    <message>
        <source>The file of the reference, &quot;%1&quot;, is gone.</source>
        <translation>El archivo de la referencia, «%1», ya no existe.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no lap %2 on this circuit any more.</source>
        <translation>«%1» ya no tiene una vuelta %2 en este circuito.</translation>
    </message>
    <message>
        <source>The session does not say which vehicle it was.</source>
        <translation>La sesión no dice qué moto era.</translation>
    </message>
</context>
<context>
    <name>zuno::ReferenceMenu</name>
    <message>
        <source>Clear: no comparison</source>
        <translation>Quitar: sin comparación</translation>
    </message>
    <message>
        <source>Best of session</source>
        <translation>Mejor de la sesión</translation>
    </message>
    <message>
        <source>Best ever here</source>
        <translation>Mejor de siempre aquí</translation>
    </message>
    <message>
        <source>only the same motorcycle</source>
        <translation>solo la misma moto</translation>
    </message>
    <message>
        <source>This lap: %1, %2</source>
        <translation>Esta vuelta: %1, %2</translation>
    </message>
    <message>
        <source>This lap</source>
        <translation>Esta vuelta</translation>
    </message>
    <message>
        <source>Lap of another file...</source>
        <translation>Vuelta de otro archivo...</translation>
    </message>
    <message>
        <source>Recent: none on this circuit</source>
        <translation>Recientes: ninguna en este circuito</translation>
    </message>
    <message>
        <source>Lap %1 of %2</source>
        <translation>Vuelta %1 de %2</translation>
    </message>
</context>
<context>
    <name>zuno::RidePreview</name>
    <message>
        <source>Path</source>
        <translation>Trayectoria</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>hasta %1</translation>
    </message>
</context>
<context>
    <name>zuno::SessionImport</name>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Importing sessions: %1 of %2</source>
        <translation>Importando sesiones: %1 de %2</translation>
    </message>
    <message>
        <source>Nothing was imported: the folder of your sessions is not there.</source>
        <translation>No se ha importado nada: la carpeta de sus sesiones no está.</translation>
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
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Track :</source>
        <translation>Circuito:</translation>
    </message>
    <message>
        <source>Best lap :</source>
        <translation>Mejor vuelta:</translation>
    </message>
    <message>
        <source>Ideal time :</source>
        <translation>Tiempo ideal:</translation>
    </message>
    <message>
        <source>Event :</source>
        <translation>Evento:</translation>
    </message>
    <message>
        <source>Driver :</source>
        <translation>Piloto:</translation>
    </message>
    <message>
        <source>Vehicle :</source>
        <translation>Moto:</translation>
    </message>
    <message>
        <source>Tires :</source>
        <translation>Neumáticos:</translation>
    </message>
    <message>
        <source>Track temp :</source>
        <translation>Temp. de la pista:</translation>
    </message>
    <message>
        <source>degres</source>
        <translation>grados</translation>
    </message>
    <message>
        <source>Track condition :</source>
        <translation>Estado de la pista:</translation>
    </message>
    <message>
        <source>Notes :</source>
        <translation>Notas:</translation>
    </message>
    <message>
        <source>Enter here, for example, your tyre pressures, your suspension settings...</source>
        <translation>Anote aquí, por ejemplo, las presiones de los neumáticos, los reglajes de suspensión...</translation>
    </message>
    <message>
        <source>This file has a format that this version does not know (%1). It is shown, but nothing can be stored in it.</source>
        <translation>Este archivo tiene un formato que esta versión no conoce (%1). Se muestra, pero no se puede guardar nada en él.</translation>
    </message>
    <message>
        <source>This file is damaged, or not complete yet. It is shown, but nothing can be stored in it.</source>
        <translation>Este archivo está dañado, o no está completo todavía. Se muestra, pero no se puede guardar nada en él.</translation>
    </message>
    <message>
        <source>Another program typed here at the same time, and your text has taken its place: %1</source>
        <translation>Otro programa ha escrito aquí al mismo tiempo, y su texto ha ocupado el lugar de: %1</translation>
    </message>
</context>
<context>
    <name>zuno::SessionName</name>
    <message>
        <source>A name that begins with a dot is hidden: it would not be listed any more.</source>
        <translation>Un nombre que empieza por un punto está oculto: ya no aparecería en la lista.</translation>
    </message>
    <message>
        <source>These cannot stand in a name: %1</source>
        <translation>En un nombre no pueden estar: %1</translation>
    </message>
    <message>
        <source>A name cannot begin or end with a blank, nor end with a dot.</source>
        <translation>Un nombre no puede empezar ni terminar con un espacio, ni terminar con un punto.</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device; choose another one.</source>
        <translation>Windows reserva este nombre para un dispositivo; elija otro.</translation>
    </message>
    <message>
        <source>Names with &quot;ZUNO&quot; are kept for the folders of loggers, which can be neither renamed nor deleted.</source>
        <translation>Los nombres con «ZUNO» se reservan para las carpetas de los registradores, que no se pueden renombrar ni eliminar.</translation>
    </message>
</context>
<context>
    <name>zuno::SessionsStats</name>
    <message>
        <source>Statistics</source>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>Varios</translation>
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
        <translation>Piloto:</translation>
    </message>
    <message>
        <source>Event :</source>
        <translation>Evento:</translation>
    </message>
    <message>
        <source>Track condition :</source>
        <translation>Estado de la pista:</translation>
    </message>
    <message>
        <source>Reset all filters</source>
        <translation>Quitar los filtros</translation>
    </message>
    <message>
        <source>Sessions without a lap time are not listed</source>
        <translation>Las sesiones sin tiempo de vuelta no aparecen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Sessions : %1 of %2</source>
        <translation>Sesiones: %1 de %2</translation>
    </message>
</context>
<context>
    <name>zuno::SessionsStatsTableModel</name>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Circuito</translation>
    </message>
    <message>
        <source>Best Lap</source>
        <translation>Mejor vuelta</translation>
    </message>
    <message>
        <source>Ideal Time</source>
        <translation>Tiempo ideal</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Moto</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Piloto</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Track condition</source>
        <translation>Estado de la pista</translation>
    </message>
    <message>
        <source>Track temperature</source>
        <translation>Temp. pista</translation>
    </message>
    <message>
        <source>Tires</source>
        <translation>Neumáticos</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
</context>
<context>
    <name>zuno::StorableEdits</name>
    <message>
        <source>Replaced: %1</source>
        <translation>Reemplazados: %1</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Omitidos: %1</translation>
    </message>
    <message>
        <source>Cut at %1 characters</source>
        <translation>Cortado a %1 caracteres</translation>
    </message>
</context>
<context>
    <name>zuno::TemperatureBox</name>
    <message>
        <source>unknown</source>
        <extracomment>A track temperature that nobody noted.</extracomment>
        <translation>desconocida</translation>
    </message>
</context>
<context>
    <name>zuno::ThemeButton</name>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Light theme, for the sun (%1)</source>
        <translation>Tema claro, para el sol (%1)</translation>
    </message>
    <message>
        <source>Dark theme (%1)</source>
        <translation>Tema oscuro (%1)</translation>
    </message>
</context>
<context>
    <name>zuno::UnsavedChanges</name>
    <message>
        <source>Unsaved changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>What you have said about these sessions could not be written into their files:

%1</source>
        <translation>Lo que ha anotado sobre estas sesiones no se ha podido escribir en sus archivos:

%1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Volver a intentar</translation>
    </message>
    <message>
        <source>Save elsewhere...</source>
        <translation>Guardar en otro sitio...</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>Cerrar sin guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save elsewhere</source>
        <translation>Guardar en otro sitio</translation>
    </message>
    <message>
        <source>These could not be saved there, either:

%1</source>
        <translation>Estas tampoco se han podido guardar allí:

%1</translation>
    </message>
</context>
<context>
    <name>zuno::UpdateApp</name>
    <message>
        <source>ZUNO Analyzer update</source>
        <translation>Actualización de ZUNO Analyzer</translation>
    </message>
    <message>
        <source>A new version of the application is available. 
Do you want to download it now?</source>
        <translation>Hay una nueva versión de la aplicación. 
¿Desea descargarla ahora?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The new version could not be downloaded and started.</source>
        <translation>No se pudo descargar e iniciar la nueva versión.</translation>
    </message>
    <message>
        <source>Version: %1
Size: %2
From: %3</source>
        <translation>Versión: %1
Tamaño: %2
De: %3</translation>
    </message>
    <message>
        <source>A new version of the application is available.</source>
        <translation>Hay disponible una nueva versión de la aplicación.</translation>
    </message>
    <message>
        <source>Version: %1
This one was installed as a package of your system: install the new package in its place.</source>
        <translation>Versión: %1
Esta se instaló como paquete de su sistema: instale el paquete nuevo en su lugar.</translation>
    </message>
</context>
<context>
    <name>zuno::UpgradePass</name>
    <message>
        <source>Adding additionnal infos to sessions - for version 1.4.0.0 </source>
        <translation>Añadiendo información a las sesiones - para la versión 1.4.0.0 </translation>
    </message>
    <message>
        <source> sessions to parse 
In order to have access to all your statistics with this new version of Analyzer, let this analysis finish </source>
        <translation> sesiones por analizar 
Para tener todas sus estadísticas con esta nueva versión de Analyzer, deje terminar este análisis </translation>
    </message>
</context>
<context>
    <name>zuno::WherePane</name>
    <message>
        <source>Where is the time</source>
        <translation>Dónde está el tiempo</translation>
    </message>
    <message>
        <source>Choose a reference...</source>
        <translation>Elegir una referencia...</translation>
    </message>
    <message>
        <source>The other corners</source>
        <translation>Las otras curvas</translation>
    </message>
    <message>
        <source>thin: won and lost inside the corner</source>
        <translation>fino: ganado y perdido en la curva</translation>
    </message>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Against the best of each corner</source>
        <translation>Frente a lo mejor de cada curva</translation>
    </message>
    <message>
        <source>The other %1 places</source>
        <translation>Los otros %1 lugares</translation>
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
        <translation>   Importar   </translation>
    </message>
    <message>
        <source>   Settings   </source>
        <translation>   Ajustes   </translation>
    </message>
    <message>
        <source>   Maps   </source>
        <translation>   Mapas   </translation>
    </message>
    <message>
        <source>   Statistics   </source>
        <translation>   Estadísticas   </translation>
    </message>
    <message>
        <source>   Help   </source>
        <translation>   Ayuda   </translation>
    </message>
    <message>
        <source>Maps and Laps  </source>
        <translation>Mapas y vueltas  </translation>
    </message>
    <message>
        <source> Session infos  </source>
        <translation> Datos de la sesión  </translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no session that can be shown: it is damaged, empty, or was written by something else.</source>
        <translation>«%1» no contiene ninguna sesión que se pueda mostrar: el archivo está dañado, vacío o es de otro origen.</translation>
    </message>
    <message>
        <source>Select one or more session files to import</source>
        <translation>Elija uno o más archivos de sesión para importar</translation>
    </message>
    <message>
        <source>RA1 Files (*.ra1)</source>
        <translation>Archivos RA1 (*.ra1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in your library. Do you want to import it?</source>
        <translation>«%1» no está en su biblioteca. ¿Desea importarlo?</translation>
    </message>
    <message>
        <source>There are no sessions yet.

Drop the session files (.ra1) of your logger here, choose them with &quot;Import&quot; (Ctrl+I), or copy them to
%1</source>
        <translation>Todavía no hay sesiones.

Arrastre aquí los archivos de sesión (.ra1) de su registrador, elíjalos con «Importar» (Ctrl+I) o cópielos en
%1</translation>
    </message>
    <message>
        <source>Select a session in the list on the left to see its laps.</source>
        <translation>Elija una sesión en la lista de la izquierda para ver sus vueltas.</translation>
    </message>
    <message>
        <source>Lap %1 (%2) against lap %3 (%4): %5 s</source>
        <translation>Vuelta %1 (%2) frente a vuelta %3 (%4): %5 s</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer there: it was deleted or moved.</source>
        <translation>«%1» ya no está: se ha eliminado o movido.</translation>
    </message>
    <message>
        <source>Folder of your sessions</source>
        <translation>Carpeta de sus sesiones</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there, or is no file.</source>
        <translation>«%1» no está, o no es un archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to be shown: a session has 1 GB and 20 million samples at most.</source>
        <translation>«%1» es demasiado grande para mostrarse: una sesión tiene como máximo 1 GB y 20 millones de muestras.</translation>
    </message>
    <message>
        <source>Map and Laps</source>
        <translation>Mapa y vueltas</translation>
    </message>
    <message>
        <source>Nothing can be stored in %1: the disk is full, or the folder cannot be written to.</source>
        <translation>No se puede guardar nada en %1: el disco está lleno, o no se puede escribir en la carpeta.</translation>
    </message>
    <message>
        <source>All keys</source>
        <translation>Todas las teclas</translation>
    </message>
    <message>
        <source>Recordings (%1)</source>
        <translation>Grabaciones (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The other language is there when the program starts again. Do you want to start it again now?</source>
        <translation>El otro idioma aparece al reiniciar el programa. ¿Desea reiniciarlo ahora?</translation>
    </message>
    <message>
        <source>Demo files that could not be removed: %1</source>
        <translation>Archivos de demo que no se pudieron quitar: %1</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sesiones</translation>
    </message>
    <message>
        <source>Shows the list of sessions (F9)</source>
        <translation>Muestra la lista de sesiones (F9)</translation>
    </message>
    <message>
        <source>List of sessions</source>
        <translation>Lista de sesiones</translation>
    </message>
    <message>
        <source>Reading your library: %1 of %2 recordings</source>
        <translation>Leyendo su biblioteca: %1 de %2 grabaciones</translation>
    </message>
</context>
</TS>
