<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>qxAnimationBar</name>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Stop: the scene is at rest again</source>
        <translation>Stopp: Die Szene ist wieder in Ruhe</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Time of the animation</source>
        <translation>Zeit der Animation</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animationen</translation>
    </message>
    <message>
        <source>Which animations play</source>
        <translation>Welche Animationen abgespielt werden</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>%1 of %2 s</source>
        <translation>%1 von %2 s</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Animation %1</source>
        <translation>Animation %1</translation>
    </message>
</context>
<context>
    <name>qxCaptureDialog</name>
    <message>
        <source>&amp;Nodes: switches and what is hidden</source>
        <translation>&amp;Knoten: Schalter und Ausgeblendetes</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists; the new set will be &quot;%2&quot;.</source>
        <translation>„%1“ gibt es schon; das neue Set heißt dann „%2“.</translation>
    </message>
    <message>
        <source>&amp;Materials</source>
        <translation>&amp;Materialien</translation>
    </message>
    <message>
        <source>&amp;Lights</source>
        <translation>&amp;Lichter</translation>
    </message>
    <message>
        <source>&amp;Environment</source>
        <translation>&amp;Umgebung</translation>
    </message>
    <message>
        <source>&amp;Viewpoint</source>
        <translation>&amp;Ansichtspunkt</translation>
    </message>
    <message>
        <source>&amp;Transforms</source>
        <translation>&amp;Transformationen</translation>
    </message>
    <message>
        <source>Update &quot;%1&quot; from the scene</source>
        <translation>„%1“ aus der Szene aktualisieren</translation>
    </message>
    <message>
        <source>Capture the scene</source>
        <translation>Szene erfassen</translation>
    </message>
    <message>
        <source>What is captured</source>
        <translation>Was erfasst wird</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Erfassen</translation>
    </message>
    <message>
        <source>Na&amp;me</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Gruppe</translation>
    </message>
</context>
<context>
    <name>qxFileText</name>
    <message>
        <source>indices are not of an unsigned integer type</source>
        <translation>Indizes sind nicht von einem vorzeichenlosen ganzzahligen Typ</translation>
    </message>
    <message>
        <source>accessor %1 replaces element %2, it has %3</source>
        <translation>Accessor %1 ersetzt Element %2, er hat %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a list</source>
        <translation>„%1“ ist keine Liste</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds something that is no object</source>
        <translation>„%1“ enthält etwas, das kein Objekt ist</translation>
    </message>
    <message>
        <source>not a glTF 2.0 scene: &quot;asset&quot; states no version</source>
        <translation>keine glTF-2.0-Szene: „asset“ nennt keine Version</translation>
    </message>
    <message>
        <source>made for glTF version %1, only 2.0 can be read</source>
        <translation>für glTF-Version %1 erstellt, nur 2.0 kann gelesen werden</translation>
    </message>
    <message>
        <source>&quot;extensionsRequired&quot; holds something that is no text</source>
        <translation>„extensionsRequired“ enthält etwas, das kein Text ist</translation>
    </message>
    <message>
        <source>%1 is no object</source>
        <translation>%1 ist kein Objekt</translation>
    </message>
    <message>
        <source>%1 has no &quot;attributes&quot;</source>
        <translation>%1 hat keine „attributes“</translation>
    </message>
    <message>
        <source>%1 has an unknown mode</source>
        <translation>%1 hat einen unbekannten Modus</translation>
    </message>
    <message>
        <source>%1 has no &quot;primitives&quot;</source>
        <translation>%1 hat keine „primitives“</translation>
    </message>
    <message>
        <source>%1 names its %2 by something that is no index</source>
        <translation>%1 verweist auf %2 mit etwas, das kein Index ist</translation>
    </message>
    <message>
        <source>%1 refers to %2 %3, the file has %4</source>
        <translation>%1 verweist auf %2 %3, die Datei hat %4</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a list of %3 numbers</source>
        <translation>%1: „%2“ ist keine Liste von %3 Zahlen</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; holds something that is no finite number</source>
        <translation>%1: „%2“ enthält etwas, das keine endliche Zahl ist</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is no count</source>
        <translation>%1: „%2“ ist keine Anzahl</translation>
    </message>
    <message>
        <source>%1 states no usable &quot;byteLength&quot;</source>
        <translation>%1 nennt keine brauchbare „byteLength“</translation>
    </message>
    <message>
        <source>%1: &quot;uri&quot; is no text</source>
        <translation>%1: „uri“ ist kein Text</translation>
    </message>
    <message>
        <source>%1 states no &quot;byteLength&quot;</source>
        <translation>%1 nennt keine „byteLength“</translation>
    </message>
    <message>
        <source>%1 has an impossible stride of %2</source>
        <translation>%1 hat eine unmögliche Schrittweite von %2</translation>
    </message>
    <message>
        <source>%1 ends at byte %2 of buffer %3, which has %4</source>
        <translation>%1 endet bei Byte %2 von Puffer %3, der %4 hat</translation>
    </message>
    <message>
        <source>%1 has %2 elements, more than its buffer view holds</source>
        <translation>%1 hat %2 Elemente, mehr als sein Pufferausschnitt fasst</translation>
    </message>
    <message>
        <source>%1: &quot;sparse&quot; is no object</source>
        <translation>%1: „sparse“ ist kein Objekt</translation>
    </message>
    <message>
        <source>%1 replaces more elements than it has</source>
        <translation>%1 ersetzt mehr Elemente, als er hat</translation>
    </message>
    <message>
        <source>%1 has an unknown component type</source>
        <translation>%1 hat einen unbekannten Komponententyp</translation>
    </message>
    <message>
        <source>%1 has an unknown type</source>
        <translation>%1 hat einen unbekannten Typ</translation>
    </message>
    <message>
        <source>%1 states no usable &quot;count&quot;</source>
        <translation>%1 nennt keinen brauchbaren „count“</translation>
    </message>
    <message>
        <source>%1: &quot;children&quot; is not a list</source>
        <translation>%1: „children“ ist keine Liste</translation>
    </message>
    <message>
        <source>%1 has two parents, node %2 and node %3</source>
        <translation>%1 hat zwei übergeordnete Knoten, %2 und %3</translation>
    </message>
    <message>
        <source>%1 is its own ancestor</source>
        <translation>%1 ist sein eigener Vorfahr</translation>
    </message>
    <message>
        <source>the file</source>
        <translation>die Datei</translation>
    </message>
    <message>
        <source>%1: &quot;nodes&quot; is not a list</source>
        <translation>%1: „nodes“ ist keine Liste</translation>
    </message>
    <message>
        <source>%1 lists %2, which is a child of node %3</source>
        <translation>%1 führt %2 auf, ein Kind von Knoten %3</translation>
    </message>
    <message>
        <source>%1 lists %2 twice</source>
        <translation>%1 führt %2 zweimal auf</translation>
    </message>
    <message>
        <source>%1 cannot be written: scene files have no form for a %2</source>
        <translation>%1 kann nicht gespeichert werden: In Szenendateien lässt sich %2 nicht ausdrücken</translation>
    </message>
    <message>
        <source>an object has more than %1 members</source>
        <translation>ein Objekt hat mehr als %1 Einträge</translation>
    </message>
    <message>
        <source>the JSON is nested deeper than %1 levels</source>
        <translation>das JSON ist tiefer als %1 Ebenen geschachtelt</translation>
    </message>
    <message>
        <source>not valid JSON: %1</source>
        <translation>kein gültiges JSON: %1</translation>
    </message>
    <message>
        <source>not a scene: the JSON is not an object</source>
        <translation>keine Szene: das JSON ist kein Objekt</translation>
    </message>
    <message>
        <source>the file ends within the header of its %1 chunk</source>
        <translation>die Datei endet mitten im Kopf des %1-Abschnitts</translation>
    </message>
    <message>
        <source>the %1 chunk is cut off: %2 bytes announced, %3 there</source>
        <translation>der %1-Abschnitt ist abgeschnitten: %2 Bytes angekündigt, %3 vorhanden</translation>
    </message>
    <message>
        <source>the chunk at byte %1 is not the %2 chunk</source>
        <translation>der Abschnitt bei Byte %1 ist nicht der %2-Abschnitt</translation>
    </message>
    <message>
        <source>the file ends within its header</source>
        <translation>die Datei endet mitten im Dateikopf</translation>
    </message>
    <message>
        <source>container version %1 instead of 2</source>
        <translation>Containerversion %1 statt 2</translation>
    </message>
    <message>
        <source>the header says %1 bytes, the file has %2</source>
        <translation>laut Dateikopf sind es %1 Bytes, die Datei hat %2</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>die Datei existiert nicht</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>the file cannot be opened: %1</source>
        <translation>die Datei kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>the file is larger than one gigabyte</source>
        <translation>die Datei ist größer als ein Gigabyte</translation>
    </message>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>die Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>the scene is too large for one .glb file</source>
        <translation>die Szene ist zu groß für eine .glb-Datei</translation>
    </message>
    <message>
        <source>is no integer</source>
        <translation>ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>is neither true nor false</source>
        <translation>ist weder wahr noch falsch</translation>
    </message>
    <message>
        <source>is no text</source>
        <translation>ist kein Text</translation>
    </message>
    <message>
        <source>is not a list of ten numbers per state</source>
        <translation>ist keine Liste von zehn Zahlen je Zustand</translation>
    </message>
    <message>
        <source>is not a list of integers</source>
        <translation>ist keine Liste ganzer Zahlen</translation>
    </message>
    <message>
        <source>a new geometry needs triangles</source>
        <translation>eine neue Geometrie braucht Dreiecke</translation>
    </message>
    <message>
        <source>it</source>
        <translation>es</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es ist zu groß</translation>
    </message>
    <message>
        <source>%1 is left out: %2</source>
        <translation>%1 wird weggelassen: %2</translation>
    </message>
    <message>
        <source>accessor</source>
        <translation>Accessor</translation>
    </message>
    <message>
        <source>buffer</source>
        <translation>Puffer</translation>
    </message>
    <message>
        <source>buffer view</source>
        <translation>Pufferausschnitt</translation>
    </message>
    <message>
        <source>camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>mesh</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>sampler</source>
        <translation>Sampler</translation>
    </message>
    <message>
        <source>scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>skin</source>
        <translation>Skin</translation>
    </message>
    <message>
        <source>switch material</source>
        <translation>Schaltmaterial</translation>
    </message>
    <message>
        <source>texture</source>
        <translation>Textur</translation>
    </message>
    <message>
        <source>%1 %2 &quot;%3&quot;</source>
        <comment>a node, its number and its name</comment>
        <translation>%1 %2 „%3“</translation>
    </message>
    <message>
        <source>%1, primitive %2</source>
        <translation>%1, Primitiv %2</translation>
    </message>
    <message>
        <source>material &quot;%1&quot; cannot be written: scene files get no new %2</source>
        <translation>Material „%1“ kann nicht gespeichert werden: Szenendateien können kein neues %2 aufnehmen</translation>
    </message>
    <message>
        <source>%1 has the wrong number of components</source>
        <translation>%1 hat die falsche Zahl von Komponenten</translation>
    </message>
    <message>
        <source>%1 is not there for every vertex</source>
        <translation>%1 fehlt bei manchen Eckpunkten</translation>
    </message>
    <message>
        <source>%1 holds something that is no finite number</source>
        <translation>%1 enthält etwas, das keine endliche Zahl ist</translation>
    </message>
    <message>
        <source>index %1 is used, there are %2 vertices</source>
        <translation>Index %1 wird verwendet, es gibt %2 Eckpunkte</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht gespeichert werden: %2</translation>
    </message>
    <message>
        <source>a child of a switch cannot be an overlay</source>
        <translation>ein Kind eines Schalters kann kein Overlay sein</translation>
    </message>
    <message>
        <source>an environment is a switch and no overlay</source>
        <translation>eine Umgebung ist ein Schalter und kein Overlay</translation>
    </message>
    <message>
        <source>a child of a switch cannot be the environment</source>
        <translation>ein Kind eines Schalters kann nicht die Umgebung sein</translation>
    </message>
    <message>
        <source>the scene has an environment already</source>
        <translation>die Szene hat schon eine Umgebung</translation>
    </message>
    <message>
        <source>a switch or a node with poses cannot be a light</source>
        <translation>ein Schalter oder ein Knoten mit Posen kann kein Licht sein</translation>
    </message>
    <message>
        <source>light %1 is of an unknown kind</source>
        <translation>Licht %1 ist von unbekannter Art</translation>
    </message>
    <message>
        <source>%1 poses with %2 names</source>
        <translation>%1 Posen mit %2 Namen</translation>
    </message>
    <message>
        <source>a switch cannot be put into poses</source>
        <translation>ein Schalter kann keine Posen einnehmen</translation>
    </message>
    <message>
        <source>an environment surrounds everything: its transform has no effect</source>
        <translation>eine Umgebung umgibt alles: ihre Transformation hat keine Wirkung</translation>
    </message>
    <message>
        <source>scene files end in .gltf or .glb</source>
        <translation>Szenendateien enden auf .gltf oder .glb</translation>
    </message>
    <message>
        <source>a .gltf has no place for the further chunks of the .glb</source>
        <translation>eine .gltf-Datei kann die weiteren Abschnitte der .glb-Datei nicht aufnehmen</translation>
    </message>
    <message>
        <source>%1 is not copied: %2</source>
        <translation>%1 wird nicht kopiert: %2</translation>
    </message>
    <message>
        <source>the file cannot be written: %1</source>
        <translation>die Datei kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>node &quot;%1&quot;</source>
        <translation>Knoten „%1“</translation>
    </message>
    <message>
        <source>%1: cannot be used</source>
        <translation>%1: ist nicht verwendbar</translation>
    </message>
    <message>
        <source>a mapping of variants cannot be used</source>
        <translation>eine Zuordnung von Varianten ist nicht verwendbar</translation>
    </message>
    <message>
        <source>a mapping names a variant that is not there</source>
        <translation>eine Zuordnung nennt eine Variante, die es nicht gibt</translation>
    </message>
    <message>
        <source>its data URI is not in base64</source>
        <translation>die Daten-URI ist nicht Base64-kodiert</translation>
    </message>
    <message>
        <source>the base64 of its data URI is damaged</source>
        <translation>die Base64-Daten der URI sind beschädigt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; leads out of the folder of the scene file</source>
        <translation>„%1“ führt aus dem Ordner der Szenendatei hinaus</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>nothing may be written to it</source>
        <translation>die Schreibberechtigung fehlt</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>its folder does not exist</source>
        <translation>der Ordner existiert nicht</translation>
    </message>
    <message>
        <source>nothing may be written to its folder</source>
        <translation>die Schreibberechtigung für den Ordner fehlt</translation>
    </message>
    <message>
        <source>not all of the file&apos;s owner, group, rights and attributes could be kept</source>
        <translation>Eigentümer, Gruppe, Rechte und Attribute der Datei konnten nicht vollständig erhalten werden</translation>
    </message>
    <message>
        <source>it is written, but may not be on the disk: %1</source>
        <translation>die Datei ist geschrieben, liegt aber vielleicht noch nicht auf dem Datenträger: %1</translation>
    </message>
    <message>
        <source>%1; the file is as it was</source>
        <translation>%1; die Datei ist unverändert</translation>
    </message>
    <message>
        <source>%1; the file may be half written, its new content is whole in %2</source>
        <translation>%1; die Datei ist vielleicht nur halb geschrieben, ihr vollständiger neuer Inhalt steht in %2</translation>
    </message>
    <message>
        <source>the file has several hard links and was written in place, where an interruption would have left it half written</source>
        <translation>die Datei hat mehrere harte Links und wurde deshalb direkt überschrieben; eine Unterbrechung hätte sie halb geschrieben hinterlassen</translation>
    </message>
    <message>
        <source>buffers whose files have changed on the disk stand in the scene file now, as they were loaded</source>
        <translation>Puffer, deren Dateien sich auf dem Datenträger geändert haben, wurden so, wie sie geladen waren, in die Szenendatei übernommen</translation>
    </message>
    <message>
        <source>buffer %1 has no data</source>
        <translation>Puffer %1 hat keine Daten</translation>
    </message>
    <message>
        <source>%1 is nested deeper than %2 levels</source>
        <translation>%1 ist tiefer als %2 Ebenen verschachtelt</translation>
    </message>
    <message>
        <source>the paths of all nodes together are longer than %1 characters</source>
        <translation>die Pfade aller Knoten sind zusammen länger als %1 Zeichen</translation>
    </message>
    <message>
        <source>%1 replaces elements from a buffer view with a stride</source>
        <translation>%1 ersetzt Elemente aus einem Pufferausschnitt mit Schrittweite</translation>
    </message>
    <message>
        <source>it leads out of the folder of the scene file</source>
        <translation>es führt aus dem Ordner der Szenendatei heraus</translation>
    </message>
    <message>
        <source>it is no picture</source>
        <translation>es ist kein Bild</translation>
    </message>
    <message>
        <source>the copy of &quot;%1&quot; is called &quot;%2&quot;</source>
        <translation>die Kopie von „%1“ heißt „%2“</translation>
    </message>
    <message>
        <source>%1 of memory are needed, %2 of %3 are left (--memory-limit)</source>
        <translation>%1 Speicher werden benötigt, %2 von %3 sind frei (--memory-limit)</translation>
    </message>
    <message>
        <source>its JSON</source>
        <translation>sein JSON</translation>
    </message>
    <message>
        <source>is not a list of sixteen numbers</source>
        <translation>ist keine Liste von sechzehn Zahlen</translation>
    </message>
    <message>
        <source>holds numbers that are too large</source>
        <translation>enthält zu große Zahlen</translation>
    </message>
    <message>
        <source>there is no switch %1 to share</source>
        <translation>den Schalter %1, den der Knoten teilen soll, gibt es nicht</translation>
    </message>
    <message>
        <source>it is a file that the scene uses</source>
        <translation>die Szene benutzt diese Datei</translation>
    </message>
    <message>
        <source>the variants document</source>
        <translation>das Variantendokument</translation>
    </message>
    <message>
        <source>what needs the extension %1 is not shown</source>
        <translation>was die Erweiterung %1 braucht, wird nicht gezeigt</translation>
    </message>
    <message>
        <source>it is too short: %1 bytes announced, %2 there</source>
        <translation>er ist zu kurz: %1 Bytes angekündigt, %2 vorhanden</translation>
    </message>
    <message>
        <source>%1 states an impossible way of compression</source>
        <translation>%1 gibt eine unmögliche Komprimierung an</translation>
    </message>
    <message>
        <source>%1 has no &quot;joints&quot;</source>
        <translation>%1 hat keine „joints“</translation>
    </message>
    <message>
        <source>%1 has no matrix for each of its %2 joints</source>
        <translation>%1 hat nicht für jedes der %2 Gelenke eine Matrix</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a list</source>
        <translation>%1: „%2“ ist keine Liste</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; holds something that is no object</source>
        <translation>%1: „%2“ enthält etwas, das kein Objekt ist</translation>
    </message>
    <message>
        <source>its compressed data are damaged</source>
        <translation>die komprimierten Daten sind beschädigt</translation>
    </message>
    <message>
        <source>%1; data that are not compressed are shown</source>
        <translation>%1; gezeigt werden die nicht komprimierten Daten</translation>
    </message>
    <message>
        <source>%1 is not in the compressed data as it is stated</source>
        <translation>%1 ist in den komprimierten Daten nicht so vorhanden, wie es angegeben ist</translation>
    </message>
    <message>
        <source>%1 of morph target %2</source>
        <translation>%1 des Morph-Ziels %2</translation>
    </message>
    <message>
        <source>it is neither PNG, JPEG nor WebP</source>
        <translation>es ist weder PNG, JPEG noch WebP</translation>
    </message>
    <message>
        <source>is no number</source>
        <translation>ist keine Zahl</translation>
    </message>
    <message>
        <source>%1: the picture of the environment is left out: %2</source>
        <translation>%1: das Bild der Umgebung entfällt: %2</translation>
    </message>
    <message>
        <source>The picture of the environment is left out: %1</source>
        <translation>Das Bild der Umgebung entfällt: %1</translation>
    </message>
    <message>
        <source>its header is damaged</source>
        <translation>seine Kopfdaten sind beschädigt</translation>
    </message>
    <message>
        <source>it has several parts or several depths</source>
        <translation>es hat mehrere Teile oder mehrere Tiefen</translation>
    </message>
    <message>
        <source>it has no pixels</source>
        <translation>es hat keine Pixel</translation>
    </message>
    <message>
        <source>its pixels end too early</source>
        <translation>seine Pixel enden zu früh</translation>
    </message>
    <message>
        <source>it has no channels R, G and B in full size</source>
        <translation>es hat keine Kanäle R, G und B in voller Größe</translation>
    </message>
    <message>
        <source>it is neither a Radiance nor an OpenEXR picture</source>
        <translation>es ist weder ein Radiance- noch ein OpenEXR-Bild</translation>
    </message>
    <message>
        <source>its header does not end</source>
        <translation>seine Kopfdaten enden nicht</translation>
    </message>
    <message>
        <source>its pixels are not in RGBE</source>
        <translation>seine Pixel sind nicht in RGBE</translation>
    </message>
    <message>
        <source>its size is not written as &quot;-Y HEIGHT +X WIDTH&quot;</source>
        <translation>seine Größe steht nicht da als „-Y HÖHE +X BREITE“</translation>
    </message>
    <message>
        <source>a run of its pixels is damaged</source>
        <translation>eine Folge gleicher Pixel ist beschädigt</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>der Speicher reicht nicht</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be animated</source>
        <translation>„%1“ kann nicht animiert werden</translation>
    </message>
    <message>
        <source>unknown interpolation &quot;%1&quot;</source>
        <translation>unbekannte Interpolation „%1“</translation>
    </message>
    <message>
        <source>it has no keys</source>
        <translation>er hat keine Zeitpunkte</translation>
    </message>
    <message>
        <source>the times of its keys do not ascend</source>
        <translation>seine Zeitpunkte steigen nicht an</translation>
    </message>
    <message>
        <source>%1, channel %2</source>
        <translation>%1, Kanal %2</translation>
    </message>
    <message>
        <source>the animation has no &quot;samplers&quot;</source>
        <translation>die Animation hat keine „samplers“</translation>
    </message>
    <message>
        <source>its node stands where a matrix says</source>
        <translation>sein Knoten steht, wo eine Matrix sagt</translation>
    </message>
    <message>
        <source>its node has no morph targets</source>
        <translation>sein Knoten hat keine Verformungsziele</translation>
    </message>
    <message>
        <source>its %1 keys need %2 numbers, it has %3</source>
        <translation>seine %1 Zeitpunkte brauchen %2 Zahlen, er hat %3</translation>
    </message>
    <message>
        <source>accessor %1 has elements of the wrong type</source>
        <translation>Accessor %1 hat Elemente vom falschen Typ</translation>
    </message>
    <message>
        <source>accessor %1 holds something that is no finite number</source>
        <translation>Accessor %1 enthält etwas, das keine endliche Zahl ist</translation>
    </message>
    <message>
        <source>byte %1 is NUL</source>
        <translation>Byte %1 ist NUL</translation>
    </message>
    <message>
        <source>it is not UTF-8</source>
        <translation>es ist nicht UTF-8</translation>
    </message>
    <message>
        <source>the variants document cannot be read: %1</source>
        <translation>das Variantendokument kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>a variants document alone is no scene</source>
        <translation>ein Variantendokument allein ist keine Szene</translation>
    </message>
    <message>
        <source>somebody has changed it since it was read</source>
        <translation>jemand hat sie geändert, seit sie gelesen wurde</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is another file beside %2</source>
        <translation>„%1“ ist neben %2 eine andere Datei</translation>
    </message>
    <message>
        <source>both sides added the file</source>
        <translation>beide Seiten haben die Datei hinzugefügt</translation>
    </message>
    <message>
        <source>both sides have changed the data of buffers or accessors</source>
        <translation>beide Seiten haben die Daten von Puffern oder Accessoren geändert</translation>
    </message>
    <message>
        <source>ours has removed, inserted or reordered entries of a list, and theirs has changed something</source>
        <translation>„ours“ hat Einträge einer Liste entfernt, eingefügt oder umgestellt, und „theirs“ hat etwas geändert</translation>
    </message>
    <message>
        <source>theirs has removed, inserted or reordered entries of a list, and ours has changed something</source>
        <translation>„theirs“ hat Einträge einer Liste entfernt, eingefügt oder umgestellt, und „ours“ hat etwas geändert</translation>
    </message>
    <message>
        <source>together they are no scene: %1</source>
        <translation>zusammen sind sie keine Szene: %1</translation>
    </message>
</context>
<context>
    <name>qxKeyList</name>
    <message>
        <source>Everywhere</source>
        <translation>Überall</translation>
    </message>
    <message>
        <source>Sets that keys select</source>
        <translation>Sets, die Tasten auswählen</translation>
    </message>
    <message>
        <source>Options that keys select</source>
        <translation>Optionen, die Tasten auswählen</translation>
    </message>
</context>
<context>
    <name>qxKeysPage</name>
    <message>
        <source>Keys and mouse</source>
        <translation>Tasten und Maus</translation>
    </message>
    <message>
        <source>Search for what is done, or for a key</source>
        <translation>Suche nach einer Tätigkeit oder Taste</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Was geschieht</translation>
    </message>
    <message>
        <source>Keys, mouse</source>
        <translation>Tasten, Maus</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken …</translation>
    </message>
</context>
<context>
    <name>qxLightMenu</name>
    <message>
        <source>&amp;Environment</source>
        <translation>&amp;Umgebung</translation>
    </message>
    <message>
        <source>&amp;Of the Scene</source>
        <translation>&amp;Die der Szene</translation>
    </message>
    <message>
        <source>&amp;Studio</source>
        <translation>&amp;Studio</translation>
    </message>
    <message>
        <source>&amp;Picture...</source>
        <translation>&amp;Bild …</translation>
    </message>
    <message>
        <source>&amp;Background</source>
        <translation>&amp;Hintergrund</translation>
    </message>
    <message>
        <source>&amp;Automatic</source>
        <translation>&amp;Automatisch</translation>
    </message>
    <message>
        <source>&amp;Gradient</source>
        <translation>&amp;Verlauf</translation>
    </message>
    <message>
        <source>&amp;Plain Colour...</source>
        <translation>&amp;Einfarbig …</translation>
    </message>
    <message>
        <source>&amp;Ground for Shadows</source>
        <translation>&amp;Boden für Schatten</translation>
    </message>
    <message>
        <source>B&amp;righter</source>
        <translation>He&amp;ller</translation>
    </message>
    <message>
        <source>&amp;Darker</source>
        <translation>&amp;Dunkler</translation>
    </message>
    <message>
        <source>&amp;Normal (Exposure %1)</source>
        <translation>&amp;Normal (Belichtung %1)</translation>
    </message>
    <message>
        <source>Workbench</source>
        <translation>Workbench</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>„%1“ kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Environment</source>
        <translation>Umgebung</translation>
    </message>
    <message>
        <source>Pictures of all directions (*.hdr *.pic *.exr)</source>
        <translation>Bilder aller Richtungen (*.hdr *.pic *.exr)</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
</context>
<context>
    <name>qxLogView</name>
    <message>
        <source>Nothing was reported.</source>
        <translation>Es liegen keine Meldungen vor.</translation>
    </message>
</context>
<context>
    <name>qxNameEdits</name>
    <message>
        <source>Rename &quot;%1&quot;</source>
        <translation>„%1“ umbenennen</translation>
    </message>
    <message>
        <source>Repair &quot;%1&quot;</source>
        <translation>„%1“ reparieren</translation>
    </message>
</context>
<context>
    <name>qxNodeKind</name>
    <message>
        <source>Transform Switch</source>
        <translation>Transformationsschalter</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>Transformation</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>Material Group</source>
        <translation>Materialgruppe</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Einblendung</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
</context>
<context>
    <name>qxNodeMenu</name>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Ausblenden</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Einblenden</translation>
    </message>
    <message>
        <source>&amp;Isolate</source>
        <translation>&amp;Nur dies zeigen</translation>
    </message>
    <message>
        <source>Show &amp;All Again</source>
        <translation>Alles w&amp;ieder einblenden</translation>
    </message>
    <message>
        <source>&amp;Frame</source>
        <translation>&amp;Formatfüllend zeigen</translation>
    </message>
    <message>
        <source>Pick the &amp;Parent</source>
        <translation>Ü&amp;bergeordneten Knoten auswählen</translation>
    </message>
    <message>
        <source>&amp;Make Variant</source>
        <translation>&amp;Variante anlegen</translation>
    </message>
    <message>
        <source>&amp;What Controls This</source>
        <translation>&amp;Was dies steuert</translation>
    </message>
    <message>
        <source>A&amp;dd Present State to Set</source>
        <translation>Jetzigen &amp;Zustand in Set aufnehmen</translation>
    </message>
    <message>
        <source>Copy &amp;Name</source>
        <translation>Name&amp;n kopieren</translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>A&amp;dd Present State to &quot;%1&quot;</source>
        <translation>Jetzigen &amp;Zustand in „%1“ aufnehmen</translation>
    </message>
    <message numerus="yes">
        <source>%n objects</source>
        <translation>
            <numerusform>%n Objekt</numerusform>
            <numerusform>%n Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing that has a name</source>
        <translation>Nichts, das einen Namen hat</translation>
    </message>
    <message>
        <source>There is such a variant already.</source>
        <translation>Diese Variante gibt es schon.</translation>
    </message>
    <message numerus="yes">
        <source>%n variants made</source>
        <translation>
            <numerusform>%n Variante angelegt</numerusform>
            <numerusform>%n Varianten angelegt</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot;: %3</source>
        <translation>%1 „%2“: %3</translation>
    </message>
    <message>
        <source>It drives &quot;%1&quot;.</source>
        <translation>Sie steuert „%1“.</translation>
    </message>
    <message>
        <source>It drives &quot;%1&quot;, which is above this node.</source>
        <translation>Sie steuert „%1“, das über diesem Knoten steht.</translation>
    </message>
    <message>
        <source>No variant</source>
        <translation>Keine Variante</translation>
    </message>
    <message>
        <source>Show in &quot;Variants&quot;</source>
        <translation>In „Varianten“ zeigen</translation>
    </message>
    <message>
        <source>No set uses it</source>
        <translation>Kein Set verwendet sie</translation>
    </message>
    <message>
        <source>Sets that use it:</source>
        <translation>Sets, die sie verwenden:</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>No variant controls this.</source>
        <translation>Dies steuert keine Variante.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has this state already.</source>
        <translation>„%1“ hat diesen Zustand schon.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries of &quot;%1&quot; are new or other than before</source>
        <translation>
            <numerusform>%n Eintrag von „%1“ ist neu oder anders als zuvor</numerusform>
            <numerusform>%n Einträge von „%1“ sind neu oder anders als zuvor</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxPictureDialog</name>
    <message>
        <source>Rendering the preview ...</source>
        <translation>Das Vorschaubild wird berechnet …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>qxPictureHint</name>
    <message>
        <source>all of it is hidden, or it has no triangles</source>
        <translation>sie ist ganz verborgen oder hat keine Dreiecke</translation>
    </message>
    <message>
        <source>the camera looks past it</source>
        <translation>die Kamera blickt an ihr vorbei</translation>
    </message>
    <message>
        <source>the camera sees only the backs of its surfaces, most likely from inside</source>
        <translation>die Kamera sieht nur die Rückseiten ihrer Flächen, wohl von innen</translation>
    </message>
    <message>
        <source>the clipping plane, or the near or far plane of the camera, cuts it away</source>
        <translation>die Schnittebene oder die nahe oder ferne Ebene der Kamera schneidet sie weg</translation>
    </message>
    <message>
        <source>it is so far away that it is smaller than a pixel</source>
        <translation>sie ist so weit weg, dass sie kleiner als ein Pixel ist</translation>
    </message>
</context>
<context>
    <name>qxPreviewDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Preview of &quot;%1&quot; ...</source>
        <translation>Vorschau von „%1“ …</translation>
    </message>
</context>
<context>
    <name>qxRecentFiles</name>
    <message>
        <source>None yet</source>
        <translation>Noch keine</translation>
    </message>
</context>
<context>
    <name>qxRecovery</name>
    <message>
        <source>Workbench</source>
        <translation>Workbench</translation>
    </message>
    <message>
        <source>The program ended unexpectedly on %1: edits were not saved.</source>
        <translation>Das Programm endete unerwartet am %1: Änderungen wurden nicht gespeichert.</translation>
    </message>
    <message>
        <source>The program ended unexpectedly on %1: edits of &quot;%2&quot; were not saved.</source>
        <translation>Das Programm endete unerwartet am %1: Änderungen an „%2“ wurden nicht gespeichert.</translation>
    </message>
    <message numerus="yes">
        <source>%n steps can be recovered. The file stays as it is until you save.</source>
        <translation>
            <numerusform>%n Schritt kann wiederhergestellt werden. Die Datei bleibt, wie sie ist, bis Sie speichern.</numerusform>
            <numerusform>%n Schritte können wiederhergestellt werden. Die Datei bleibt, wie sie ist, bis Sie speichern.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
</context>
<context>
    <name>qxSceneTree</name>
    <message>
        <source>Search nodes</source>
        <translation>Knoten suchen</translation>
    </message>
    <message>
        <source>Words of a node&apos;s name or kind. Enter goes to the next one that is found, Escape ends the search.</source>
        <translation>Wörter aus Name oder Art eines Knotens. Die Eingabetaste führt zum nächsten gefundenen, Esc beendet die Suche.</translation>
    </message>
    <message>
        <source>Nodes of the scene</source>
        <translation>Knoten der Szene</translation>
    </message>
    <message>
        <source>Search Nodes</source>
        <translation>Knoten suchen</translation>
    </message>
    <message>
        <source>Next Node Found</source>
        <translation>Nächster gefundener Knoten</translation>
    </message>
    <message>
        <source>Previous Node Found</source>
        <translation>Voriger gefundener Knoten</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>%n gefunden</numerusform>
            <numerusform>%n gefunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxSceneTreeModel</name>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
</context>
<context>
    <name>qxSceneView</name>
    <message>
        <source>Refining: %1 %</source>
        <translation>Wird verfeinert: %1 %</translation>
    </message>
    <message>
        <source>Nothing of the scene is to be seen: %1.</source>
        <translation>Von der Szene ist nichts zu sehen: %1.</translation>
    </message>
    <message>
        <source>Select another set, or tick nodes in the scene&apos;s tree.</source>
        <translation>Wählen Sie ein anderes Set, oder haken Sie Knoten im Baum der Szene an.</translation>
    </message>
    <message>
        <source>F shows everything, Home leads home.</source>
        <translation>F zeigt alles, Pos1 führt zum Ausgangspunkt zurück.</translation>
    </message>
    <message>
        <source>Move the clipping plane, or look from another viewpoint.</source>
        <translation>Verschieben Sie die Schnittebene, oder wählen Sie einen anderen Ansichtspunkt.</translation>
    </message>
    <message>
        <source>Turn Left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>Turn Right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <source>Turn Up</source>
        <translation>Nach oben drehen</translation>
    </message>
    <message>
        <source>Turn Down</source>
        <translation>Nach unten drehen</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Hineinzoomen</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Herauszoomen</translation>
    </message>
    <message>
        <source>Show Everything</source>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Grundstellung</translation>
    </message>
    <message>
        <source>Frame What Is Picked</source>
        <translation>Ausgewähltes formatfüllend zeigen</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Left button</source>
        <translation>Linke Taste</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Middle button, left button with Shift</source>
        <translation>Mittlere Taste, linke Taste mit Umschalt</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Wheel, right button</source>
        <translation>Rad, rechte Taste</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoomen</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Klick</translation>
    </message>
    <message>
        <source>Pick a node: the tree shows it</source>
        <translation>Einen Knoten wählen: der Baum zeigt ihn</translation>
    </message>
    <message>
        <source>Double click</source>
        <translation>Doppelklick</translation>
    </message>
    <message>
        <source>Look at the node</source>
        <translation>Den Knoten ansehen</translation>
    </message>
</context>
<context>
    <name>qxScriptConsole</name>
    <message>
        <source>Python, such as: selectVariantSet(&quot;...&quot;)</source>
        <translation>Python, zum Beispiel: selectVariantSet(&quot;...&quot;)</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Anweisung</translation>
    </message>
    <message>
        <source>What was typed and printed</source>
        <translation>Eingaben und Ausgaben</translation>
    </message>
    <message>
        <source>Run the statement</source>
        <translation>Die Anweisung ausführen</translation>
    </message>
    <message>
        <source>Add a line</source>
        <translation>Eine Zeile anfügen</translation>
    </message>
    <message>
        <source>Earlier and later statements</source>
        <translation>Frühere und spätere Anweisungen</translation>
    </message>
    <message>
        <source>Complete a name</source>
        <translation>Einen Namen ergänzen</translation>
    </message>
</context>
<context>
    <name>qxScriptsDialog</name>
    <message>
        <source>trusted</source>
        <translation>vertrauenswürdig</translation>
    </message>
    <message>
        <source>never run</source>
        <translation>wird nie ausgeführt</translation>
    </message>
    <message>
        <source>not run</source>
        <translation>wird nicht ausgeführt</translation>
    </message>
    <message>
        <source>Scripts of &quot;%1&quot;</source>
        <translation>Skripte von „%1“</translation>
    </message>
    <message>
        <source>This file brings along scripts, which run when their sets are selected. A script can do all that you can: read, change and delete your files. Trust these only if you know where they come from. Until then the sets are selected without them.</source>
        <translation>Diese Datei enthält Skripte, die ausgeführt werden, wenn ihre Sets ausgewählt werden. Ein Skript darf alles, was Sie dürfen: Ihre Dateien lesen, ändern und löschen. Vertrauen Sie diesen Skripten nur, wenn Sie wissen, woher sie stammen. Bis dahin werden die Sets ohne Skripte ausgewählt.</translation>
    </message>
    <message>
        <source>&amp;Trust</source>
        <translation>&amp;Vertrauen</translation>
    </message>
    <message>
        <source>N&amp;ever</source>
        <translation>&amp;Niemals</translation>
    </message>
    <message>
        <source>&amp;Not Now</source>
        <translation>&amp;Jetzt nicht</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Set</translation>
    </message>
    <message>
        <source>Its Script</source>
        <translation>Sein Skript</translation>
    </message>
    <message numerus="yes">
        <source>... and %n more characters, which are not shown here</source>
        <translation>
            <numerusform>… und ein weiteres Zeichen, das hier nicht gezeigt wird</numerusform>
            <numerusform>… und %n weitere Zeichen, die hier nicht gezeigt werden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Trust All %n</source>
        <translation>
            <numerusform>&amp;Vertrauen</numerusform>
            <numerusform>Allen %n &amp;vertrauen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxSession</name>
    <message>
        <source>the variants document cannot be read: %1</source>
        <translation>das Variantendokument kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>the variants document cannot be read</source>
        <translation>das Variantendokument kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>qxSetCapture</name>
    <message>
        <source>Captured</source>
        <translation>Erfasst</translation>
    </message>
</context>
<context>
    <name>qxSetDelegate</name>
    <message>
        <source>No preview</source>
        <translation>Keine Vorschau</translation>
    </message>
</context>
<context>
    <name>qxSetEdits</name>
    <message>
        <source>New Variant Set</source>
        <translation>Neues Variantenset</translation>
    </message>
    <message>
        <source>Add &quot;%1&quot;</source>
        <translation>„%1“ hinzufügen</translation>
    </message>
    <message>
        <source>Capture &quot;%1&quot;</source>
        <translation>„%1“ erfassen</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>„%1“ duplizieren</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>„%1“ löschen</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n sets</source>
        <translation>
            <numerusform>%n Set löschen</numerusform>
            <numerusform>%n Sets löschen</numerusform>
        </translation>
    </message>
    <message>
        <source>Rename &quot;%1&quot;</source>
        <translation>„%1“ umbenennen</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>„%1“ verschieben</translation>
    </message>
    <message numerus="yes">
        <source>Move %n sets</source>
        <translation>
            <numerusform>%n Set verschieben</numerusform>
            <numerusform>%n Sets verschieben</numerusform>
        </translation>
    </message>
    <message>
        <source>New Group</source>
        <translation>Neue Gruppe</translation>
    </message>
    <message>
        <source>Add group &quot;%1&quot;</source>
        <translation>Gruppe „%1“ hinzufügen</translation>
    </message>
    <message>
        <source>Rename group &quot;%1&quot;</source>
        <translation>Gruppe „%1“ umbenennen</translation>
    </message>
    <message>
        <source>Comment group &quot;%1&quot;</source>
        <translation>Kommentar der Gruppe „%1“</translation>
    </message>
    <message>
        <source>Delete group &quot;%1&quot;</source>
        <translation>Gruppe „%1“ löschen</translation>
    </message>
    <message numerus="yes">
        <source>Duplicate %n sets</source>
        <translation>
            <numerusform>%n Set duplizieren</numerusform>
            <numerusform>%n Sets duplizieren</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete group &quot;%1&quot; with its sets</source>
        <translation>Gruppe „%1“ mit ihren Sets löschen</translation>
    </message>
    <message>
        <source>Delete the selection</source>
        <translation>Auswahl löschen</translation>
    </message>
    <message>
        <source>Update &quot;%1&quot;</source>
        <translation>„%1“ aktualisieren</translation>
    </message>
    <message>
        <source>Move group &quot;%1&quot;</source>
        <translation>Gruppe „%1“ verschieben</translation>
    </message>
    <message>
        <source>Show group &quot;%1&quot;</source>
        <translation>Gruppe „%1“ zeigen</translation>
    </message>
    <message>
        <source>Hide group &quot;%1&quot;</source>
        <translation>Gruppe „%1“ verbergen</translation>
    </message>
    <message>
        <source>Preview of &quot;%1&quot;</source>
        <translation>Vorschau von „%1“</translation>
    </message>
    <message numerus="yes">
        <source>Previews of %n sets</source>
        <translation>
            <numerusform>Vorschaubild von %n Set</numerusform>
            <numerusform>Vorschaubilder von %n Sets</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxSetForm</name>
    <message>
        <source>&amp;Comment</source>
        <translation>&amp;Kommentar</translation>
    </message>
    <message>
        <source>&amp;Key</source>
        <translation>Tas&amp;te</translation>
    </message>
    <message>
        <source>Va&amp;lues</source>
        <translation>&amp;Werte</translation>
    </message>
    <message>
        <source>States</source>
        <translation>Zustände</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Key</source>
        <comment>of a value</comment>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keiner)</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (fehlt)</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Viewpoint</source>
        <translation>Ansichtspunkt</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>%1 of &quot;%2&quot;</source>
        <translation>%1 von „%2“</translation>
    </message>
    <message>
        <source>View&amp;point</source>
        <translation>Ansichts&amp;punkt</translation>
    </message>
    <message>
        <source>Sc&amp;ript</source>
        <translation>Sk&amp;ript</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice. The values are taken as soon as the keys differ.</source>
        <translation>„%1“ ist doppelt vorhanden. Die Werte werden übernommen, sobald sich die Schlüssel unterscheiden.</translation>
    </message>
</context>
<context>
    <name>qxSetHotkeys</name>
    <message>
        <source>&quot;%1&quot; has this key, too; this set comes first.</source>
        <translation>„%1“ hat dieselbe Taste; dieses Set hat Vorrang.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has this key, too, and comes first.</source>
        <translation>„%1“ hat dieselbe Taste und hat Vorrang.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; of &quot;%2&quot; has this key, too; this set comes first.</source>
        <translation>Die Option „%1“ von „%2“ hat dieselbe Taste; dieses Set hat Vorrang.</translation>
    </message>
    <message>
        <source>The key is taken by &quot;%1&quot; and does not select this set.</source>
        <translation>Die Taste wird von „%1“ verwendet und wählt dieses Set nicht aus.</translation>
    </message>
</context>
<context>
    <name>qxSetsModel</name>
    <message numerus="yes">
        <source>%n states</source>
        <translation>
            <numerusform>%n Zustand</numerusform>
            <numerusform>%n Zustände</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Key: %1</source>
        <translation>Taste: %1</translation>
    </message>
    <message>
        <source>The scene shows it now.</source>
        <translation>Die Szene zeigt dieses Set gerade.</translation>
    </message>
    <message>
        <source>It is empty: selecting it changes nothing.</source>
        <translation>Das Set ist leer: Die Auswahl ändert nichts.</translation>
    </message>
    <message>
        <source>Nothing of what it refers to is in the scene.</source>
        <translation>Nichts, worauf das Set verweist, ist in der Szene vorhanden.</translation>
    </message>
</context>
<context>
    <name>qxSetsView</name>
    <message>
        <source>No sets yet: &quot;Capture...&quot; makes one of what the scene shows.</source>
        <translation>Noch keine Sets: „Erfassen …“ erstellt eines aus dem gezeigten Zustand der Szene.</translation>
    </message>
    <message>
        <source>Nothing has &quot;%1&quot; in it.</source>
        <translation>Nichts enthält „%1“.</translation>
    </message>
</context>
<context>
    <name>qxStartPage</name>
    <message>
        <source>Workbench</source>
        <translation>Workbench</translation>
    </message>
    <message>
        <source>Shows scenes in many states: which wheels, which paint, which lamps.</source>
        <translation>Zeigt Szenen in vielen Zuständen: welche Räder, welcher Lack, welche Lampen.</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Öffnen …</translation>
    </message>
    <message>
        <source>Demo</source>
        <translation>Beispiel</translation>
    </message>
    <message>
        <source>Open a configurable roadster</source>
        <translation>Einen konfigurierbaren Roadster öffnen</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Remove from the List</source>
        <translation>Aus der Liste entfernen</translation>
    </message>
    <message>
        <source>A scene (.gltf, .glb) can be dropped anywhere on this window.
%1 lists all keys, and what the mouse does.</source>
        <translation>Eine Szene (.gltf, .glb) kann überall auf diesem Fenster abgelegt werden.
%1 zeigt alle Tasten, und was die Maus tut.</translation>
    </message>
    <message>
        <source>Changed %1</source>
        <translation>Geändert %1</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer there.</source>
        <translation>„%1“ gibt es nicht mehr.</translation>
    </message>
</context>
<context>
    <name>qxStateWords</name>
    <message>
        <source>shown</source>
        <translation>eingeblendet</translation>
    </message>
    <message>
        <source>on</source>
        <translation>an</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>ausgeblendet</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>toggle</source>
        <translation>umschalten</translation>
    </message>
    <message>
        <source>next</source>
        <translation>nächster</translation>
    </message>
    <message>
        <source>next (loop)</source>
        <translation>nächster (im Kreis)</translation>
    </message>
    <message>
        <source>previous</source>
        <translation>voriger</translation>
    </message>
    <message>
        <source>previous (loop)</source>
        <translation>voriger (im Kreis)</translation>
    </message>
    <message>
        <source>Place %1</source>
        <translation>Platz %1</translation>
    </message>
    <message>
        <source>Place %1 of %2</source>
        <translation>Platz %1 von %2</translation>
    </message>
</context>
<context>
    <name>qxTakenKeys</name>
    <message>
        <source>the window</source>
        <translation>das Fenster</translation>
    </message>
    <message>
        <source>editing of text</source>
        <translation>Bearbeiten von Text</translation>
    </message>
</context>
<context>
    <name>qxTrustStore</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 is broken in line %2</source>
        <translation>%1 ist in Zeile %2 beschädigt</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht gespeichert werden: %2</translation>
    </message>
    <message>
        <source>its folder is missing</source>
        <translation>der Ordner fehlt</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>ein anderes Programm schreibt darin</translation>
    </message>
    <message>
        <source>%1 is no regular file</source>
        <translation>%1 ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>%1 is another user&apos;s</source>
        <translation>%1 gehört einem anderen Benutzer</translation>
    </message>
    <message>
        <source>others may write %1</source>
        <translation>Andere dürfen %1 ändern</translation>
    </message>
</context>
<context>
    <name>qxVariantSetsDock</name>
    <message>
        <source>Search sets</source>
        <translation>Sets suchen</translation>
    </message>
    <message>
        <source>Gallery</source>
        <translation>Galerie</translation>
    </message>
    <message>
        <source>Show the previews of all sets</source>
        <translation>Vorschaubilder aller Sets zeigen</translation>
    </message>
    <message>
        <source>Capture...</source>
        <translation>Erfassen …</translation>
    </message>
    <message>
        <source>Make a set of what the scene shows now</source>
        <translation>Den gezeigten Zustand der Szene als Set festhalten</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Auswählen</translation>
    </message>
    <message>
        <source>&amp;Find Set</source>
        <translation>Set &amp;suchen</translation>
    </message>
    <message>
        <source>&amp;Add Set</source>
        <translation>Set &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Add &amp;Group</source>
        <translation>&amp;Gruppe hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Capture...</source>
        <translation>&amp;Erfassen …</translation>
    </message>
    <message>
        <source>&amp;Update from Scene...</source>
        <translation>Aus Szene a&amp;ktualisieren …</translation>
    </message>
    <message>
        <source>New &amp;Preview</source>
        <translation>Neue &amp;Vorschau</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Show Connected &amp;Variants</source>
        <translation>Ver&amp;bundene Varianten zeigen</translation>
    </message>
    <message>
        <source>No Group</source>
        <translation>Keine Gruppe</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Nach un&amp;ten</translation>
    </message>
    <message>
        <source>&amp;Move to...</source>
        <translation>Verschieben &amp;nach …</translation>
    </message>
    <message>
        <source>Delete Group with Its S&amp;ets</source>
        <translation>Gruppe &amp;mit ihren Sets löschen</translation>
    </message>
    <message numerus="yes">
        <source>%n sets found</source>
        <translation>
            <numerusform>%n Set gefunden</numerusform>
            <numerusform>%n Sets gefunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Group V&amp;isible</source>
        <translation>Gruppe s&amp;ichtbar</translation>
    </message>
    <message>
        <source>Show &amp;Hidden Groups</source>
        <translation>Ve&amp;rborgene Gruppen zeigen</translation>
    </message>
    <message>
        <source>Previews of All Sets</source>
        <translation>Vorschaubilder aller Sets</translation>
    </message>
    <message>
        <source>New Preview</source>
        <translation>Neue Vorschau</translation>
    </message>
    <message>
        <source>The scene may not show &quot;%1&quot; now.</source>
        <translation>Die Szene zeigt „%1“ gerade vielleicht nicht.</translation>
    </message>
    <message>
        <source>&amp;Select It for the Picture</source>
        <translation>Für das Bild &amp;auswählen</translation>
    </message>
    <message>
        <source>&amp;Picture What Is Shown</source>
        <translation>Das &amp;Gezeigte aufnehmen</translation>
    </message>
    <message>
        <source>Select the current set</source>
        <translation>Das aktuelle Set auswählen</translation>
    </message>
    <message>
        <source>Search: go to what was found</source>
        <translation>Suche: zum Gefundenen gehen</translation>
    </message>
    <message>
        <source>Search: select the first set</source>
        <translation>Suche: das erste Set auswählen</translation>
    </message>
    <message>
        <source>Search: end it</source>
        <translation>Suche: beenden</translation>
    </message>
</context>
<context>
    <name>qxVariantTexts</name>
    <message>
        <source>Make variant &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Make %n variants</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; moves %n things of that name.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>No variant could be made of &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a variant &quot;%1&quot; already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No variant of that kind can be made of &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &quot;%1&quot; to &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Add %n options to &quot;%1&quot;</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation type="unfinished">„%1“ löschen</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n variants</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Remove %n options from &quot;%1&quot;</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Order the options of &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Add %n variants to &quot;%1&quot;</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxVariants</name>
    <message>
        <source>Variant Sets</source>
        <translation>Variantensets</translation>
    </message>
    <message>
        <source>Capturing Variant Set ...</source>
        <translation>Variantenset wird erfasst …</translation>
    </message>
    <message>
        <source>Variant Set: Capture Variant...</source>
        <translation>Variantenset: Variante erfassen …</translation>
    </message>
    <message>
        <source>Some nodes have the same name and/or node path. In order to continue, the names of those nodes will be changed.
 </source>
        <translation>Einige Knoten haben denselben Namen und/oder Knotenpfad. Um fortzufahren, werden die Namen dieser Knoten geändert.
 </translation>
    </message>
    <message>
        <source>
Warning: Renaming might break existing variant sets!
</source>
        <translation>
Achtung: Durch das Umbenennen können vorhandene Variantensets unbrauchbar werden!
</translation>
    </message>
    <message>
        <source>Ambiguous node names detected</source>
        <translation>Mehrdeutige Knotennamen gefunden</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materialien</translation>
    </message>
    <message>
        <source>Lights</source>
        <translation>Lichter</translation>
    </message>
    <message>
        <source>Overlays</source>
        <translation>Overlays</translation>
    </message>
    <message>
        <source>Transforms</source>
        <translation>Transformationen</translation>
    </message>
    <message>
        <source>material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>overlay</source>
        <translation>Overlay</translation>
    </message>
    <message>
        <source>transform</source>
        <translation>Transformation</translation>
    </message>
    <message>
        <source>node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>light</source>
        <translation>Licht</translation>
    </message>
</context>
<context>
    <name>qxVariantsDock</name>
    <message>
        <source>Variants</source>
        <translation>Varianten</translation>
    </message>
</context>
<context>
    <name>qxVariantsModel</name>
    <message>
        <source>Variant</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
</context>
<context>
    <name>qxViewpointEdits</name>
    <message>
        <source>Capture viewpoint &quot;%1&quot;</source>
        <translation>Ansichtspunkt „%1“ aufnehmen</translation>
    </message>
    <message>
        <source>Delete viewpoint &quot;%1&quot;</source>
        <translation>Ansichtspunkt „%1“ löschen</translation>
    </message>
</context>
<context>
    <name>qxViewpointMenu</name>
    <message>
        <source>&amp;Next Viewpoint</source>
        <translation>&amp;Nächster Ansichtspunkt</translation>
    </message>
    <message>
        <source>&amp;Previous Viewpoint</source>
        <translation>&amp;Voriger Ansichtspunkt</translation>
    </message>
    <message>
        <source>Move &amp;Smoothly</source>
        <translation>&amp;Fließend bewegen</translation>
    </message>
    <message>
        <source>&amp;Capture Viewpoint...</source>
        <translation>Ansichtspunkt &amp;aufnehmen …</translation>
    </message>
    <message>
        <source>&amp;Rename Viewpoint...</source>
        <translation>Ansichtspunkt &amp;umbenennen …</translation>
    </message>
    <message>
        <source>&amp;Delete Viewpoint</source>
        <translation>Ansichtspunkt &amp;löschen</translation>
    </message>
    <message>
        <source>Viewpoint %1</source>
        <translation>Ansichtspunkt %1</translation>
    </message>
    <message>
        <source>This viewpoint is part of the file: it stays.</source>
        <translation>Dieser Ansichtspunkt gehört zur Datei: er bleibt.</translation>
    </message>
    <message>
        <source>Viewpoints that were captured can be deleted until the file is opened again.</source>
        <translation>Aufgenommene Ansichtspunkte lassen sich löschen, bis die Datei wieder geöffnet wird.</translation>
    </message>
    <message>
        <source>The scene has no viewpoints.</source>
        <translation>Die Szene hat keine Ansichtspunkte.</translation>
    </message>
    <message>
        <source>Capture Viewpoint</source>
        <translation>Ansichtspunkt aufnehmen</translation>
    </message>
    <message>
        <source>Name of the viewpoint:</source>
        <translation>Name des Ansichtspunkts:</translation>
    </message>
    <message>
        <source>There is no camera to capture.</source>
        <translation>Es gibt keine Kamera, die sich aufnehmen ließe.</translation>
    </message>
    <message>
        <source>The viewpoint &quot;%1&quot; is captured.</source>
        <translation>Der Ansichtspunkt „%1“ ist aufgenommen.</translation>
    </message>
    <message>
        <source>Rename Viewpoint</source>
        <translation>Ansichtspunkt umbenennen</translation>
    </message>
    <message>
        <source>New name of &quot;%1&quot;:</source>
        <translation>Neuer Name von „%1“:</translation>
    </message>
    <message>
        <source>The viewpoint &quot;%1&quot; is deleted.</source>
        <translation>Der Ansichtspunkt „%1“ ist gelöscht.</translation>
    </message>
</context>
<context>
    <name>qxWorkbenchWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Öffnen …</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Back to the State Before</source>
        <translation>&amp;Zurück zum vorherigen Zustand</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Show &amp;Everything</source>
        <translation>&amp;Alles zeigen</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>&amp;Grundstellung</translation>
    </message>
    <message>
        <source>&amp;Ray Tracing</source>
        <translation>&amp;Raytracing</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;System</translation>
    </message>
    <message>
        <source>&amp;Sets</source>
        <translation>&amp;Sets</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>About Workbench</source>
        <translation>Über Workbench</translation>
    </message>
    <message>
        <source>Workbench %1 shows scenes in many states.</source>
        <translation>Workbench %1 zeigt Szenen in vielen Zuständen.</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Info</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>Skripte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>„%1“ lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be saved.</source>
        <translation>„%1“ lässt sich nicht speichern.</translation>
    </message>
    <message>
        <source>Workbench</source>
        <translation>Workbench</translation>
    </message>
    <message>
        <source>%1[*] - Workbench</source>
        <translation>%1[*] – Workbench</translation>
    </message>
    <message>
        <source>Open a scene</source>
        <translation>Szene öffnen</translation>
    </message>
    <message>
        <source>Scenes (*.gltf *.glb)</source>
        <translation>Szenen (*.gltf *.glb)</translation>
    </message>
    <message>
        <source>Save the scene</source>
        <translation>Szene speichern</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has unsaved changes.</source>
        <translation>„%1“ enthält ungespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Wiederherstellen: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Saving &quot;%1&quot;...</source>
        <translation>„%1“ wird gespeichert …</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is saved.</source>
        <translation>„%1“ ist gespeichert.</translation>
    </message>
    <message>
        <source>Workbench[*]</source>
        <translation>Workbench[*]</translation>
    </message>
    <message>
        <source>The scene has unsaved changes.</source>
        <translation>Die Szene enthält ungespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>One scene is open at a time: the others were left out.</source>
        <translation>Nur eine Szene kann offen sein; die übrigen wurden nicht geöffnet.</translation>
    </message>
    <message>
        <source>&amp;Next Pane</source>
        <translation>&amp;Nächster Bereich</translation>
    </message>
    <message>
        <source>&amp;Previous Pane</source>
        <translation>&amp;Vorheriger Bereich</translation>
    </message>
    <message>
        <source>A script is running. Escape ends it.</source>
        <translation>Ein Skript läuft. Esc beendet es.</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot;: file...</source>
        <translation>„%1“ wird geöffnet: Datei …</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot;: materials...</source>
        <translation>„%1“ wird geöffnet: Materialien …</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot;: nodes...</source>
        <translation>„%1“ wird geöffnet: Knoten …</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot;: variants...</source>
        <translation>„%1“ wird geöffnet: Varianten …</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed on the disk since it was opened.</source>
        <translation>„%1“ wurde auf dem Datenträger geändert, seit die Datei geöffnet wurde.</translation>
    </message>
    <message>
        <source>Another program has written the file, or one with its buffers. Overwriting it loses what is new there.</source>
        <translation>Ein anderes Programm hat die Datei oder eine ihrer Pufferdateien geändert. Beim Überschreiben gehen diese Änderungen verloren.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter …</translation>
    </message>
    <message>
        <source>S&amp;cripts of This File...</source>
        <translation>S&amp;kripte dieser Datei …</translation>
    </message>
    <message>
        <source>Scripts of this file are not run. &quot;File &gt; Scripts of This File&quot; shows them.</source>
        <translation>Skripte dieser Datei werden nicht ausgeführt. „Datei &gt; Skripte dieser Datei“ zeigt sie.</translation>
    </message>
    <message>
        <source>Scripts of This File</source>
        <translation>Skripte dieser Datei</translation>
    </message>
    <message>
        <source>No set has a script that came with a file.</source>
        <translation>Kein Set hat ein Skript, das aus einer Datei stammt.</translation>
    </message>
    <message>
        <source>The decision holds for now, but cannot be remembered.</source>
        <translation>Die Entscheidung gilt vorerst, kann aber nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The script of &quot;%1&quot; was left out, as it is not trusted.</source>
        <translation>Das Skript von „%1“ wurde nicht ausgeführt, weil ihm nicht vertraut wird.</translation>
    </message>
    <message>
        <source>Light and Back&amp;ground</source>
        <translation>&amp;Licht und Hintergrund</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another window.</source>
        <translation>„%1“ ist in einem anderen Fenster geöffnet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another window, which does not answer.</source>
        <translation>„%1“ ist in einem anderen Fenster geöffnet, das nicht antwortet.</translation>
    </message>
    <message>
        <source>What is saved there and what is saved here are two versions. Saving asks before it overwrites the other one.</source>
        <translation>Was dort und was hier gespeichert wird, sind zwei Fassungen. Das Speichern fragt, bevor es die andere überschreibt.</translation>
    </message>
    <message>
        <source>Open Here, Too</source>
        <translation>Auch hier öffnen</translation>
    </message>
    <message>
        <source>The file is open in another window. Close it there, or save under another name.</source>
        <translation>Die Datei ist in einem anderen Fenster geöffnet. Schließen Sie sie dort, oder speichern Sie unter einem anderen Namen.</translation>
    </message>
    <message>
        <source>&amp;Panes</source>
        <translation>&amp;Bereiche</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Farbschema</translation>
    </message>
    <message>
        <source>&amp;Text under Icons</source>
        <translation>&amp;Text unter Symbolen</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>Anordnung &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;Keys and Mouse</source>
        <translation>&amp;Tasten und Maus</translation>
    </message>
    <message>
        <source>&amp;Nodes</source>
        <translation>&amp;Knoten</translation>
    </message>
    <message>
        <source>Viewp&amp;oints</source>
        <translation>Ans&amp;ichtspunkte</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message numerus="yes">
        <source>%n nodes picked, the last one: %1 (%2)</source>
        <translation>
            <numerusform>%n Knoten ausgewählt, zuletzt: %1 (%2)</numerusform>
            <numerusform>%n Knoten ausgewählt, zuletzt: %1 (%2)</numerusform>
        </translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
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
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>%1 (shows another state) - Workbench</source>
        <translation>%1 (zeigt einen anderen Zustand) - Workbench</translation>
    </message>
    <message>
        <source>&quot;%1&quot; shows another state than its file.</source>
        <translation>„%1“ zeigt einen anderen Zustand als die Datei.</translation>
    </message>
    <message>
        <source>Sets and variants are saved. Saving also keeps what is shown now, as the state in which the file opens.</source>
        <translation>Sets und Varianten sind gespeichert. Speichern behält auch, was jetzt zu sehen ist: So öffnet sich die Datei dann.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in the list now: its group is hidden, or the search leaves it out.</source>
        <translation>„%1“ steht jetzt nicht in der Liste: seine Gruppe ist ausgeblendet, oder die Suche lässt es weg.</translation>
    </message>
</context>
</TS>
