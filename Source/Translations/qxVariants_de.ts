<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>qxAmbiguityDialog</name>
    <message>
        <source>Nodes and their new names</source>
        <translation>Knoten und ihre neuen Namen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>New Name</source>
        <translation>Neuer Name</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
</context>
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
    <name>qxCheckCodes</name>
    <message>
        <source>two sets of one name</source>
        <translation>zwei Sets mit demselben Namen</translation>
    </message>
    <message>
        <source>rename one; only the later one is loaded</source>
        <translation>eines umbenennen; nur das spätere wird geladen</translation>
    </message>
    <message>
        <source>two groups of one name</source>
        <translation>zwei Gruppen mit demselben Namen</translation>
    </message>
    <message>
        <source>rename one; the later one takes the place of the earlier</source>
        <translation>eine umbenennen; die spätere tritt an die Stelle der früheren</translation>
    </message>
    <message>
        <source>two variants of one kind and name</source>
        <translation>zwei Varianten mit derselben Art und demselben Namen</translation>
    </message>
    <message>
        <source>merge them; the later one&apos;s options replace the earlier one&apos;s</source>
        <translation>zusammenführen; die Optionen der späteren ersetzen die der früheren</translation>
    </message>
    <message>
        <source>two options of one name</source>
        <translation>zwei Optionen mit demselben Namen</translation>
    </message>
    <message>
        <source>remove one; the first counts</source>
        <translation>eine entfernen; die erste zählt</translation>
    </message>
    <message>
        <source>set refers to one variant twice</source>
        <translation>Set verweist zweimal auf eine Variante</translation>
    </message>
    <message>
        <source>remove one; the last state counts</source>
        <translation>einen Eintrag entfernen; der letzte Zustand zählt</translation>
    </message>
    <message>
        <source>set lists one name twice</source>
        <translation>Set führt einen Namen zweimal auf</translation>
    </message>
    <message>
        <source>remove one: a viewpoint, animation, geometry, target or snapshot counts once</source>
        <translation>einen entfernen: Ansichtspunkt, Animation, Geometrie, Ziel oder Abbild zählen nur einmal</translation>
    </message>
    <message>
        <source>set refers to a missing variant</source>
        <translation>Set verweist auf eine fehlende Variante</translation>
    </message>
    <message>
        <source>create the variant, or remove the entry</source>
        <translation>die Variante anlegen oder den Eintrag entfernen</translation>
    </message>
    <message>
        <source>state is no option of the variant</source>
        <translation>Zustand ist keine Option der Variante</translation>
    </message>
    <message>
        <source>add the option, or choose another state</source>
        <translation>die Option hinzufügen oder einen anderen Zustand wählen</translation>
    </message>
    <message>
        <source>scene object does not take the state</source>
        <translation>Szenenobjekt kennt den Zustand nicht</translation>
    </message>
    <message>
        <source>restore the child, material or transform state, or choose another</source>
        <translation>das Kind, das Material oder die Lage wiederherstellen oder einen anderen Zustand wählen</translation>
    </message>
    <message>
        <source>missing viewpoint</source>
        <translation>Ansichtspunkt fehlt</translation>
    </message>
    <message>
        <source>restore it, or remove the entry</source>
        <translation>wiederherstellen oder den Eintrag entfernen</translation>
    </message>
    <message>
        <source>missing default viewpoint</source>
        <translation>vorgegebener Ansichtspunkt fehlt</translation>
    </message>
    <message>
        <source>restore it, or choose another</source>
        <translation>wiederherstellen oder einen anderen wählen</translation>
    </message>
    <message>
        <source>missing animation</source>
        <translation>Animation fehlt</translation>
    </message>
    <message>
        <source>missing geometry</source>
        <translation>Geometrie fehlt</translation>
    </message>
    <message>
        <source>missing target node</source>
        <translation>Zielknoten fehlt</translation>
    </message>
    <message>
        <source>restore it, or remove the entry; neither this target nor those behind it are shown</source>
        <translation>wiederherstellen oder den Eintrag entfernen; weder dieses Ziel noch die dahinter werden gezeigt</translation>
    </message>
    <message>
        <source>snapshot of a missing node</source>
        <translation>Materialabbild eines fehlenden Knotens</translation>
    </message>
    <message>
        <source>capture the set anew</source>
        <translation>das Set neu erfassen</translation>
    </message>
    <message>
        <source>snapshot of a missing material</source>
        <translation>Abbild eines fehlenden Materials</translation>
    </message>
    <message>
        <source>two entries fight over one scene object</source>
        <translation>zwei Einträge streiten um ein Szenenobjekt</translation>
    </message>
    <message>
        <source>remove one; the later one wins, also over a target</source>
        <translation>einen entfernen; der spätere gewinnt, auch gegen ein Ziel</translation>
    </message>
    <message>
        <source>two sets are equal</source>
        <translation>zwei Sets sind gleich</translation>
    </message>
    <message>
        <source>remove one; they differ in name, comment, hotkey or preview at most</source>
        <translation>eines entfernen; sie unterscheiden sich höchstens in Name, Kommentar, Taste oder Vorschau</translation>
    </message>
    <message>
        <source>set holds nothing</source>
        <translation>Set enthält nichts</translation>
    </message>
    <message>
        <source>fill or remove it</source>
        <translation>füllen oder entfernen</translation>
    </message>
    <message>
        <source>script does not compile</source>
        <translation>Skript lässt sich nicht übersetzen</translation>
    </message>
    <message>
        <source>mend it at the line that the message names</source>
        <translation>an der genannten Zeile verbessern</translation>
    </message>
    <message>
        <source>group without sets</source>
        <translation>Gruppe ohne Sets</translation>
    </message>
    <message>
        <source>remove it</source>
        <translation>entfernen</translation>
    </message>
    <message>
        <source>variant without a scene object</source>
        <translation>Variante ohne Szenenobjekt</translation>
    </message>
    <message>
        <source>restore the node or material, or remove the variant</source>
        <translation>den Knoten oder das Material wiederherstellen oder die Variante entfernen</translation>
    </message>
    <message>
        <source>scene object of another kind</source>
        <translation>Szenenobjekt anderer Art</translation>
    </message>
    <message>
        <source>a light variant needs a light, a material variant a switch material with materials, a transform variant transform states</source>
        <translation>eine Lichtvariante braucht ein Licht, eine Materialvariante ein Schaltmaterial mit Materialien, eine Lagevariante benannte Lagen</translation>
    </message>
    <message>
        <source>default state is no option</source>
        <translation>Vorgabezustand ist keine Option</translation>
    </message>
    <message>
        <source>choose another default</source>
        <translation>eine andere Vorgabe wählen</translation>
    </message>
    <message>
        <source>scene object does not take the option</source>
        <translation>Szenenobjekt kennt die Option nicht</translation>
    </message>
    <message>
        <source>restore the child, material or transform state, or remove the option</source>
        <translation>das Kind, das Material oder die Lage wiederherstellen oder die Option entfernen</translation>
    </message>
    <message>
        <source>option without a name</source>
        <translation>Option ohne Namen</translation>
    </message>
    <message>
        <source>variant without options</source>
        <translation>Variante ohne Optionen</translation>
    </message>
    <message>
        <source>rebuild or remove it</source>
        <translation>neu aufbauen oder entfernen</translation>
    </message>
    <message>
        <source>option that no set uses</source>
        <translation>Option, die kein Set verwendet</translation>
    </message>
    <message>
        <source>neither a set nor a hotkey leads to it, by name or by a step; use or remove it</source>
        <translation>weder ein Set noch eine Taste führt zu ihr, auch nicht schrittweise; verwenden oder entfernen</translation>
    </message>
    <message>
        <source>variant that no set uses</source>
        <translation>Variante, die kein Set verwendet</translation>
    </message>
    <message>
        <source>neither a set nor a hotkey uses it; use or remove it</source>
        <translation>weder ein Set noch eine Taste verwendet sie; verwenden oder entfernen</translation>
    </message>
    <message>
        <source>scene object within another of its name</source>
        <translation>Szenenobjekt in einem anderen mit demselben Namen</translation>
    </message>
    <message>
        <source>rename one: !Toggle flips them against each other when only one is hidden. A node and its own mesh may have one name</source>
        <translation>eines umbenennen: !Toggle schaltet sie gegeneinander, wenn nur eines ausgeblendet ist. Ein Knoten und sein eigenes Netz dürfen denselben Namen haben</translation>
    </message>
    <message>
        <source>hotkey that names no key</source>
        <translation>Taste, die es nicht gibt</translation>
    </message>
    <message>
        <source>write it as menus show it, such as Ctrl+Shift+F5</source>
        <translation>schreiben, wie Menüs sie zeigen, etwa Strg+Umschalt+F5</translation>
    </message>
    <message>
        <source>hotkey used twice</source>
        <translation>Taste doppelt vergeben</translation>
    </message>
    <message>
        <source>change one; sets and options share the keyboard</source>
        <translation>eine ändern; Sets und Optionen teilen sich die Tastatur</translation>
    </message>
</context>
<context>
    <name>qxEntryEdits</name>
    <message>
        <source>No variant can drive &quot;%1&quot;.</source>
        <translation>„%1“ kann keine Variante steuern.</translation>
    </message>
    <message numerus="yes">
        <source>State of %n entries of &quot;%1&quot;</source>
        <translation>
            <numerusform>Zustand von %n Eintrag von „%1“</numerusform>
            <numerusform>Zustand von %n Einträgen von „%1“</numerusform>
        </translation>
    </message>
    <message>
        <source>State of &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>Zustand von „%1“ in „%2“</translation>
    </message>
    <message numerus="yes">
        <source>Shown state of %n entries of &quot;%1&quot;</source>
        <translation>
            <numerusform>Gezeigter Zustand von %n Eintrag von „%1“</numerusform>
            <numerusform>Gezeigter Zustand von %n Einträgen von „%1“</numerusform>
        </translation>
    </message>
    <message>
        <source>Shown state of &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>Gezeigter Zustand von „%1“ in „%2“</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n entries from &quot;%1&quot;</source>
        <translation>
            <numerusform>%n Eintrag aus „%1“ entfernen</numerusform>
            <numerusform>%n Einträge aus „%1“ entfernen</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from &quot;%2&quot;</source>
        <translation>„%1“ aus „%2“ entfernen</translation>
    </message>
    <message numerus="yes">
        <source>Add %n entries to &quot;%1&quot;</source>
        <translation>
            <numerusform>%n Eintrag zu „%1“ hinzufügen</numerusform>
            <numerusform>%n Einträge zu „%1“ hinzufügen</numerusform>
        </translation>
    </message>
    <message>
        <source>Add &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>„%1“ zu „%2“ hinzufügen</translation>
    </message>
    <message numerus="yes">
        <source>Add what %n nodes show to &quot;%1&quot;</source>
        <translation>
            <numerusform>Was %n Knoten zeigt zu „%1“ hinzufügen</numerusform>
            <numerusform>Was %n Knoten zeigen zu „%1“ hinzufügen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n variants were made for it.</source>
        <translation>
            <numerusform>Dafür wurde %n Variante angelegt.</numerusform>
            <numerusform>Dafür wurden %n Varianten angelegt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxEntryRepairs</name>
    <message>
        <source>Instead of &quot;%1&quot;</source>
        <translation>Statt „%1“</translation>
    </message>
    <message>
        <source>Nothing like it was found</source>
        <translation>Nichts Ähnliches gefunden</translation>
    </message>
</context>
<context>
    <name>qxExportProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; ...</source>
        <translation>Bild von „%1“ …</translation>
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
    <name>qxGallery</name>
    <message>
        <source>Gallery of the variant sets</source>
        <translation>Galerie der Variantensets</translation>
    </message>
    <message>
        <source>Wheel with Ctrl</source>
        <translation>Rad mit Strg</translation>
    </message>
    <message>
        <source>Larger or smaller previews</source>
        <translation>Größere oder kleinere Vorschaubilder</translation>
    </message>
    <message>
        <source>On a heading: close it, open it</source>
        <translation>Auf einer Überschrift: schließen, öffnen</translation>
    </message>
</context>
<context>
    <name>qxGalleryBar</name>
    <message>
        <source>Make Previews</source>
        <translation>Bilder erzeugen</translation>
    </message>
    <message>
        <source>Make the previews that are missing or out of date</source>
        <translation>Die Vorschaubilder erzeugen, die fehlen oder veraltet sind</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Size of the previews (Ctrl and the wheel)</source>
        <translation>Größe der Vorschaubilder (Strg und das Rad)</translation>
    </message>
    <message>
        <source>Size of the previews</source>
        <translation>Größe der Vorschaubilder</translation>
    </message>
    <message>
        <source>Previews</source>
        <translation>Vorschaubilder</translation>
    </message>
    <message numerus="yes">
        <source>%n missing</source>
        <translation>
            <numerusform>%n fehlt</numerusform>
            <numerusform>%n fehlen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n out of date</source>
        <translation>
            <numerusform>%n veraltet</numerusform>
            <numerusform>%n veraltet</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
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
    <name>qxNameChooser</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
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
    <name>qxNoVariants</name>
    <message>
        <source>Make Variants of %1</source>
        <translation>Varianten anlegen: %1</translation>
    </message>
    <message>
        <source>Choose What to Show and Hide...</source>
        <translation>Wählen, was ein- und ausgeblendet wird …</translation>
    </message>
    <message>
        <source>Choose Materials to Switch...</source>
        <translation>Materialien zum Umschalten wählen …</translation>
    </message>
    <message>
        <source>There are no variants yet. The scene has things that can vary:</source>
        <translation>Es gibt noch keine Varianten. Die Szene hat Veränderliches:</translation>
    </message>
    <message>
        <source>There are no variants yet, and nothing in the scene varies by itself. Every node can be shown and hidden, and materials can be switched:</source>
        <translation>Es gibt noch keine Varianten, und nichts in der Szene ist von sich aus veränderlich. Jeder Knoten lässt sich ein- und ausblenden, Materialien lassen sich umschalten:</translation>
    </message>
    <message>
        <source>There are no variants. Open a scene to make some of it.</source>
        <translation>Es gibt keine Varianten. Öffnen Sie eine Szene, um welche anzulegen.</translation>
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
        <translation>Na&amp;men kopieren</translation>
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
    <name>qxPictureExport</name>
    <message>
        <source>PNG pictures (*.png)</source>
        <translation>PNG-Bilder (*.png)</translation>
    </message>
    <message>
        <source>JPEG pictures (*.jpg *.jpeg)</source>
        <translation>JPEG-Bilder (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP pictures (*.webp)</source>
        <translation>WebP-Bilder (*.webp)</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>„%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Pictures are PNG or JPEG: the name of the file ends with .png or .jpg.</source>
        <translation>Bilder sind PNG oder JPEG: Der Name der Datei endet mit .png oder .jpg.</translation>
    </message>
    <message>
        <source>Nothing of the scene is to be seen in the picture: %1.</source>
        <translation>Auf dem Bild ist nichts von der Szene zu sehen: %1.</translation>
    </message>
    <message>
        <source>There is nothing for a sheet.</source>
        <translation>Für einen Bogen ist nichts da.</translation>
    </message>
    <message>
        <source>The scene has no variant sets.</source>
        <translation>Die Szene hat keine Variantensets.</translation>
    </message>
    <message>
        <source>Save Sheet: Each Picture</source>
        <translation>Bogen speichern: jedes Bild</translation>
    </message>
    <message>
        <source>Save Sheet</source>
        <translation>Bogen speichern</translation>
    </message>
    <message>
        <source>Export Catalogue</source>
        <translation>Katalog exportieren</translation>
    </message>
    <message>
        <source>Web pages (*.html)</source>
        <translation>Webseiten (*.html)</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Es ist zu groß.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is saved.</source>
        <translation>„%1“ ist gespeichert.</translation>
    </message>
    <message>
        <source>Workbench</source>
        <translation>Workbench</translation>
    </message>
    <message>
        <source>No web page can be made.</source>
        <translation>Es kann keine Webseite erstellt werden.</translation>
    </message>
    <message>
        <source>This program was built without the viewer for web pages.</source>
        <translation>Dieses Programm wurde ohne den Betrachter für Webseiten gebaut.</translation>
    </message>
    <message>
        <source>Export Web Page</source>
        <translation>Webseite exportieren</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the code of the language of web pages: en or de</comment>
        <translation>de</translation>
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
    <name>qxPictureWish</name>
    <message>
        <source> pixels</source>
        <translation> Pixel</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>Quick: hard light, jagged edges</source>
        <translation>Schnell: hartes Licht, treppige Kanten</translation>
    </message>
    <message>
        <source>Best: soft shadows, reflections</source>
        <translation>Beste: weiche Schatten, Spiegelungen</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Qualität:</translation>
    </message>
    <message>
        <source>&amp;Transparent background (PNG)</source>
        <translation>&amp;Durchsichtiger Hintergrund (PNG)</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Speichern …</translation>
    </message>
</context>
<context>
    <name>qxPresentation</name>
    <message>
        <source>Presentation</source>
        <translation>Präsentation</translation>
    </message>
    <message>
        <source>Next set</source>
        <translation>Nächstes Set</translation>
    </message>
    <message>
        <source>Previous set</source>
        <translation>Voriges Set</translation>
    </message>
    <message>
        <source>Show or hide the name of the set</source>
        <translation>Den Namen des Sets zeigen oder verbergen</translation>
    </message>
    <message>
        <source>End the presentation</source>
        <translation>Die Präsentation beenden</translation>
    </message>
    <message>
        <source>Escape ends the presentation. Left and Right lead to other sets, Enter shows their names.</source>
        <translation>Escape beendet die Präsentation. Links und Rechts führen zu anderen Sets, Enter zeigt ihre Namen.</translation>
    </message>
</context>
<context>
    <name>qxProblemFixes</name>
    <message numerus="yes">
        <source>Remove %n entries</source>
        <translation>
            <numerusform>Eintrag entfernen</numerusform>
            <numerusform>%n Einträge entfernen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %n default viewpoints</source>
        <translation>
            <numerusform>Vorgegebenen Ansichtspunkt entfernen</numerusform>
            <numerusform>%n vorgegebene Ansichtspunkte entfernen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %n hotkeys</source>
        <translation>
            <numerusform>Taste entfernen</numerusform>
            <numerusform>%n Tasten entfernen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n options to their variants</source>
        <translation>
            <numerusform>Option zu ihrer Variante hinzufügen</numerusform>
            <numerusform>%n Optionen zu ihren Varianten hinzufügen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %n options</source>
        <translation>
            <numerusform>Option entfernen</numerusform>
            <numerusform>%n Optionen entfernen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Clear %n default states</source>
        <translation>
            <numerusform>Vorgabezustand löschen</numerusform>
            <numerusform>%n Vorgabezustände löschen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n sets</source>
        <translation>
            <numerusform>Set löschen</numerusform>
            <numerusform>%n Sets löschen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n groups</source>
        <translation>
            <numerusform>Gruppe löschen</numerusform>
            <numerusform>%n Gruppen löschen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n variants with their entries in sets</source>
        <translation>
            <numerusform>Variante samt ihren Einträgen in Sets löschen</numerusform>
            <numerusform>%n Varianten samt ihren Einträgen in Sets löschen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxProblemRepairs</name>
    <message numerus="yes">
        <source>Repair %n names</source>
        <translation>
            <numerusform>Einen Namen reparieren</numerusform>
            <numerusform>%n Namen reparieren</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxProblemWords</name>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Set %1</source>
        <translation>Set %1</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Gruppe %1</translation>
    </message>
    <message>
        <source>script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>Variant %1</source>
        <translation>Variante %1</translation>
    </message>
</context>
<context>
    <name>qxProblemsDock</name>
    <message>
        <source>Search problems</source>
        <translation>Probleme durchsuchen</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparieren</translation>
    </message>
    <message>
        <source>What can be done about the selected problems</source>
        <translation>Was sich gegen die ausgewählten Probleme tun lässt</translation>
    </message>
    <message>
        <source>&amp;Replace by</source>
        <translation>&amp;Ersetzen durch</translation>
    </message>
    <message>
        <source>&amp;Go to the Place</source>
        <translation>&amp;Gehe zur Stelle</translation>
    </message>
    <message>
        <source>&amp;Copy as Text</source>
        <translation>Als Text &amp;kopieren</translation>
    </message>
    <message>
        <source>Repair &amp;All That Is Clear</source>
        <translation>&amp;Alles Eindeutige reparieren</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>goes to the place of the problem</source>
        <translation>geht zur Stelle des Problems</translation>
    </message>
    <message numerus="yes">
        <source>%n errors</source>
        <translation>
            <numerusform>Ein Fehler</numerusform>
            <numerusform>%n Fehler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>Eine Warnung</numerusform>
            <numerusform>%n Warnungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hints</source>
        <translation>
            <numerusform>Ein Hinweis</numerusform>
            <numerusform>%n Hinweise</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: shown or not</source>
        <translation>%1: zeigen oder nicht</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>Probleme (%1)</translation>
    </message>
    <message>
        <source>No problems: sets, variants and scene go together.</source>
        <translation>Keine Probleme: Sets, Varianten und Szene passen zusammen.</translation>
    </message>
    <message numerus="yes">
        <source>%n problems are not shown.</source>
        <translation>
            <numerusform>Ein Problem wird nicht gezeigt.</numerusform>
            <numerusform>%n Probleme werden nicht gezeigt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing that could be meant</source>
        <translation>Nichts, was gemeint sein könnte</translation>
    </message>
    <message numerus="yes">
        <source>%n names were repaired.</source>
        <translation>
            <numerusform>Ein Name wurde repariert.</numerusform>
            <numerusform>%n Namen wurden repariert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Of no name is it clear what is meant.</source>
        <translation>Bei keinem Namen ist klar, was gemeint ist.</translation>
    </message>
</context>
<context>
    <name>qxProblemsModel</name>
    <message numerus="yes">
        <source>%1 (and %n more)</source>
        <translation>
            <numerusform>%1 (und ein weiteres)</numerusform>
            <numerusform>%1 (und %n weitere)</numerusform>
        </translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Stelle</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
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
    <message>
        <source>3D View</source>
        <translation>3D-Ansicht</translation>
    </message>
    <message>
        <source>Frame What Is Picked</source>
        <translation>Ausgewähltes formatfüllend zeigen</translation>
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
    <message>
        <source>Sets with scripts</source>
        <translation>Sets mit Skripten</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
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
    <name>qxSetContents</name>
    <message>
        <source>Choose S&amp;tate</source>
        <translation>Zustand &amp;wählen</translation>
    </message>
    <message>
        <source>Take the State S&amp;hown</source>
        <translation>&amp;Gezeigten Zustand übernehmen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>E&amp;ntfernen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Re&amp;name Variant...</source>
        <translation>Variante &amp;umbenennen …</translation>
    </message>
    <message>
        <source>Show in the &amp;Variants Dock</source>
        <translation>In den &amp;Varianten zeigen</translation>
    </message>
    <message>
        <source>Add variants</source>
        <translation>Varianten hinzufügen</translation>
    </message>
    <message>
        <source>Variant, viewpoint or animation to add to the set</source>
        <translation>Variante, Ansichtspunkt oder Animation zum Hinzufügen</translation>
    </message>
    <message>
        <source>Finds variants, viewpoints and animations. Enter adds the variant with the state that the scene shows.</source>
        <translation>Findet Varianten, Ansichtspunkte und Animationen. Die Eingabetaste fügt die Variante mit dem Zustand hinzu, den die Szene zeigt.</translation>
    </message>
    <message>
        <source>What the set holds</source>
        <translation>Was das Set enthält</translation>
    </message>
    <message>
        <source>The set holds nothing yet. Type the name of a variant above, or drag variants or nodes here.</source>
        <translation>Das Set enthält noch nichts. Geben Sie oben den Namen einer Variante ein, oder ziehen Sie Varianten oder Knoten hierher.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add viewpoints and animations</source>
        <translation>Ansichtspunkte und Animationen hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Take the selected entries out of the set</source>
        <translation>Die ausgewählten Einträge aus dem Set nehmen</translation>
    </message>
    <message>
        <source>The scene shows nothing of &quot;%1&quot;.</source>
        <translation>Die Szene zeigt nichts von „%1“.</translation>
    </message>
    <message>
        <source>&amp;State</source>
        <translation>&amp;Zustand</translation>
    </message>
    <message>
        <source>R&amp;epair</source>
        <translation>&amp;Reparieren</translation>
    </message>
    <message>
        <source>&amp;Viewpoint</source>
        <translation>Ansichts&amp;punkt</translation>
    </message>
    <message>
        <source>&amp;Animation</source>
        <translation>&amp;Animation</translation>
    </message>
    <message>
        <source>Rename Variant</source>
        <translation>Variante umbenennen</translation>
    </message>
    <message>
        <source>Name, wherever the variant is used:</source>
        <translation>Name, überall wo die Variante vorkommt:</translation>
    </message>
    <message>
        <source>Choose a set to see what it holds.</source>
        <translation>Wählen Sie ein Set, um zu sehen, was es enthält.</translation>
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
    <name>qxSetEntries</name>
    <message>
        <source>nodes</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>materials</source>
        <translation>Materialien</translation>
    </message>
    <message>
        <source>lights</source>
        <translation>Lichter</translation>
    </message>
    <message>
        <source>environment</source>
        <translation>Umgebung</translation>
    </message>
    <message>
        <source>viewpoint</source>
        <translation>Ansichtspunkt</translation>
    </message>
    <message>
        <source>camera goes there</source>
        <translation>Kamera fährt hin</translation>
    </message>
    <message>
        <source>not used: not the first</source>
        <translation>nicht benutzt: nicht der erste</translation>
    </message>
    <message>
        <source>starts</source>
        <translation>startet</translation>
    </message>
    <message>
        <source>starts in its turn</source>
        <translation>startet, wenn sie dran ist</translation>
    </message>
    <message>
        <source>on</source>
        <translation>an</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>moved, as it is</source>
        <translation>verschoben</translation>
    </message>
    <message>
        <source>shown before all else</source>
        <translation>zuerst eingeblendet</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>nicht benutzt</translation>
    </message>
    <message>
        <source>left to scripts</source>
        <translation>für Skripte</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>clipping</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>target node</source>
        <translation>Zielknoten</translation>
    </message>
    <message>
        <source>geometry</source>
        <translation>Geometrie</translation>
    </message>
    <message>
        <source>snapshot</source>
        <translation>Momentaufnahme</translation>
    </message>
    <message>
        <source>capture</source>
        <translation>Erfassung</translation>
    </message>
    <message>
        <source>Clipping plane</source>
        <translation>Schnittebene</translation>
    </message>
    <message>
        <source>What was captured</source>
        <translation>Was erfasst wurde</translation>
    </message>
</context>
<context>
    <name>qxSetEntriesModel</name>
    <message>
        <source>The scene shows something else than the set wants.</source>
        <translation>Die Szene zeigt etwas anderes, als das Set verlangt.</translation>
    </message>
    <message>
        <source>differs: %1</source>
        <translation>weicht ab: %1</translation>
    </message>
    <message>
        <source>(no such variant)</source>
        <translation>(keine solche Variante)</translation>
    </message>
    <message>
        <source>(nothing)</source>
        <translation>(nichts)</translation>
    </message>
    <message>
        <source>Variant</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Shown Now</source>
        <translation>Gezeigt</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
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
    <message>
        <source>The key is taken by &quot;%1&quot; and does not select this option.</source>
        <translation>Die Taste wird von „%1“ verwendet und wählt diese Option nicht aus.</translation>
    </message>
    <message>
        <source>The set &quot;%1&quot; has this key, too, and comes first.</source>
        <translation>Das Set „%1“ hat dieselbe Taste und hat Vorrang.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; of &quot;%2&quot; has this key, too; this one comes first.</source>
        <translation>Die Option „%1“ von „%2“ hat dieselbe Taste; diese hier hat Vorrang.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; of &quot;%2&quot; has this key, too, and comes first.</source>
        <translation>Die Option „%1“ von „%2“ hat dieselbe Taste und hat Vorrang.</translation>
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
    <message>
        <source>In No Group</source>
        <translation>In keiner Gruppe</translation>
    </message>
    <message numerus="yes">
        <source>Group %1, %n sets</source>
        <translation>
            <numerusform>Gruppe %1, %n Set</numerusform>
            <numerusform>Gruppe %1, %n Sets</numerusform>
        </translation>
    </message>
    <message>
        <source>The set, the scene or the light has changed since the preview was made.</source>
        <translation>Das Set, die Szene oder das Licht hat sich geändert, seit das Vorschaubild entstand.</translation>
    </message>
    <message>
        <source>shown now</source>
        <translation>jetzt zu sehen</translation>
    </message>
    <message>
        <source>key %1</source>
        <translation>Taste %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>the preview is out of date</source>
        <translation>das Vorschaubild ist veraltet</translation>
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
    <name>qxStateEditor</name>
    <message>
        <source>State of &quot;%1&quot;</source>
        <translation>Zustand von „%1“</translation>
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
    <name>qxVariantActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Show This State</source>
        <translation>Diesen Zustand &amp;zeigen</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Add &amp;Options...</source>
        <translation>&amp;Optionen hinzufügen …</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Na&amp;ch oben</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach un&amp;ten</translation>
    </message>
    <message>
        <source>Make It the De&amp;fault</source>
        <translation>Als &amp;Vorgabe</translation>
    </message>
    <message>
        <source>&amp;Key...</source>
        <translation>T&amp;aste …</translation>
    </message>
    <message>
        <source>&amp;Add to the Current Set</source>
        <translation>Zum aktuellen Set &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Add to Se&amp;t...</source>
        <translation>Zu &amp;Set hinzufügen …</translation>
    </message>
    <message>
        <source>&amp;Add to &quot;%1&quot;</source>
        <translation>Zu „%1“ &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Delete Variants</source>
        <translation>Varianten löschen</translation>
    </message>
    <message numerus="yes">
        <source>%n sets have entries of what you delete.</source>
        <translation>
            <numerusform>Ein Set hat Einträge von dem, was Sie löschen.</numerusform>
            <numerusform>%n Sets haben Einträge von dem, was Sie löschen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Entries that are kept do nothing until there is a variant of that name again.</source>
        <translation>Einträge, die bleiben, bewirken nichts, bis es wieder eine Variante dieses Namens gibt.</translation>
    </message>
    <message>
        <source>&amp;Delete the Entries, Too</source>
        <translation>Einträge mit &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Keep the Entries</source>
        <translation>Einträge &amp;behalten</translation>
    </message>
    <message numerus="yes">
        <source>Entries of %n sets were deleted.</source>
        <translation>
            <numerusform>Einträge eines Sets wurden gelöscht.</numerusform>
            <numerusform>Einträge von %n Sets wurden gelöscht.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Entries of %n sets were kept.</source>
        <translation>
            <numerusform>Einträge eines Sets wurden behalten.</numerusform>
            <numerusform>Einträge von %n Sets wurden behalten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Options for &quot;%1&quot;</source>
        <translation>Optionen für „%1“</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Other materials of the scene, too</source>
        <translation>Auch andere Materialien der Szene</translation>
    </message>
    <message>
        <source>&amp;Another name</source>
        <translation>&amp;Anderer Name</translation>
    </message>
    <message>
        <source>Add options to &quot;%1&quot;</source>
        <translation>Optionen zu „%1“ hinzufügen</translation>
    </message>
    <message>
        <source>Default state of &quot;%1&quot;</source>
        <translation>Vorgabe von „%1“</translation>
    </message>
    <message>
        <source>Add to Set</source>
        <translation>Zu Set hinzufügen</translation>
    </message>
    <message>
        <source>&amp;New set</source>
        <translation>&amp;Neues Set</translation>
    </message>
    <message>
        <source>Add to the new set &quot;%1&quot;</source>
        <translation>Zum neuen Set „%1“ hinzufügen</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; has %n new states.</source>
        <translation>
            <numerusform>„%1“ hat einen neuen Zustand.</numerusform>
            <numerusform>„%1“ hat %n neue Zustände.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; has nothing new by that.</source>
        <translation>Für „%1“ ist das nichts Neues.</translation>
    </message>
    <message>
        <source>A name has more than blanks.</source>
        <translation>Ein Name besteht nicht nur aus Leerzeichen.</translation>
    </message>
</context>
<context>
    <name>qxVariantForm</name>
    <message>
        <source>&amp;Default</source>
        <translation>Vor&amp;gabe</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Clear the key of the option</source>
        <translation>Taste der Option leeren</translation>
    </message>
    <message>
        <source>It does something to what is shown, such as &quot;next&quot;.</source>
        <translation>Sie macht etwas mit dem, was gezeigt wird, wie „nächster“.</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>%1 (no option)</source>
        <translation>%1 (keine Option)</translation>
    </message>
    <message>
        <source>Default state of &quot;%1&quot;</source>
        <translation>Vorgabe von „%1“</translation>
    </message>
    <message>
        <source>Key of &quot;%1&quot;</source>
        <translation>Taste von „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an action</source>
        <translation>„%1“ ist eine Aktion</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no action</source>
        <translation>„%1“ ist keine Aktion</translation>
    </message>
    <message>
        <source>Option ke&amp;y</source>
        <translation>Taste der &amp;Option</translation>
    </message>
    <message>
        <source>Key of the option</source>
        <translation>Taste der Option</translation>
    </message>
    <message>
        <source>The option is an ac&amp;tion</source>
        <translation>Die Option ist eine Aktio&amp;n</translation>
    </message>
</context>
<context>
    <name>qxVariantMaker</name>
    <message numerus="yes">
        <source>%n switches</source>
        <translation>
            <numerusform>%n Schalter</numerusform>
            <numerusform>%n Schalter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n switch materials</source>
        <translation>
            <numerusform>%n Schaltmaterial</numerusform>
            <numerusform>%n Schaltmaterialien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lights</source>
        <translation>
            <numerusform>%n Licht</numerusform>
            <numerusform>%n Lichter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n switches among the overlays</source>
        <translation>
            <numerusform>%n Schalter unter den Overlays</numerusform>
            <numerusform>%n Schalter unter den Overlays</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n nodes with transform states</source>
        <translation>
            <numerusform>%n Knoten mit Transformationszuständen</numerusform>
            <numerusform>%n Knoten mit Transformationszuständen</numerusform>
        </translation>
    </message>
    <message>
        <source>Plain materials, too: each is put into a switch material</source>
        <translation>Auch einfache Materialien: jedes kommt in ein Schaltmaterial</translation>
    </message>
    <message>
        <source>All others, too: they can be shown and hidden</source>
        <translation>Auch alle anderen: sie lassen sich ein- und ausblenden</translation>
    </message>
    <message>
        <source>Of All: %1</source>
        <translation>Aus allen: %1</translation>
    </message>
    <message>
        <source>Choose %1...</source>
        <translation>%1 wählen …</translation>
    </message>
    <message>
        <source>The scene is empty</source>
        <translation>Die Szene ist leer</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n selected nodes</source>
        <translation>
            <numerusform>%1 aus dem ausgewählten Knoten</numerusform>
            <numerusform>%1 aus %n ausgewählten Knoten</numerusform>
        </translation>
    </message>
    <message>
        <source>Make Variants: %1</source>
        <translation>Varianten anlegen: %1</translation>
    </message>
    <message>
        <source>Make Variants</source>
        <translation>Varianten anlegen</translation>
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
        <translation>Variante „%1“ anlegen</translation>
    </message>
    <message numerus="yes">
        <source>Make %n variants</source>
        <translation>
            <numerusform>Eine Variante anlegen</numerusform>
            <numerusform>%n Varianten anlegen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; moves %n things of that name.</source>
        <translation>
            <numerusform>„%1“ bewegt ein Objekt dieses Namens.</numerusform>
            <numerusform>„%1“ bewegt %n Objekte dieses Namens.</numerusform>
        </translation>
    </message>
    <message>
        <source>No variant could be made of &quot;%1&quot;.</source>
        <translation>Aus „%1“ ließ sich keine Variante anlegen.</translation>
    </message>
    <message>
        <source>There is a variant &quot;%1&quot; already.</source>
        <translation>Es gibt schon eine Variante „%1“.</translation>
    </message>
    <message>
        <source>No variant of that kind can be made of &quot;%1&quot;.</source>
        <translation>Aus „%1“ lässt sich keine Variante dieser Art anlegen.</translation>
    </message>
    <message>
        <source>Add &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>„%1“ zu „%2“ hinzufügen</translation>
    </message>
    <message numerus="yes">
        <source>Add %n options to &quot;%1&quot;</source>
        <translation>
            <numerusform>Eine Option zu „%1“ hinzufügen</numerusform>
            <numerusform>%n Optionen zu „%1“ hinzufügen</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>„%1“ löschen</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n variants</source>
        <translation>
            <numerusform>Eine Variante löschen</numerusform>
            <numerusform>%n Varianten löschen</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from &quot;%2&quot;</source>
        <translation>„%1“ aus „%2“ entfernen</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n options from &quot;%1&quot;</source>
        <translation>
            <numerusform>Eine Option aus „%1“ entfernen</numerusform>
            <numerusform>%n Optionen aus „%1“ entfernen</numerusform>
        </translation>
    </message>
    <message>
        <source>Order the options of &quot;%1&quot;</source>
        <translation>Optionen von „%1“ ordnen</translation>
    </message>
    <message numerus="yes">
        <source>Add %n variants to &quot;%1&quot;</source>
        <translation>
            <numerusform>Eine Variante zu „%1“ hinzufügen</numerusform>
            <numerusform>%n Varianten zu „%1“ hinzufügen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxVariantUses</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und ein weiteres</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>In %n sets</source>
        <translation>
            <numerusform>In einem Set</numerusform>
            <numerusform>In %n Sets</numerusform>
        </translation>
    </message>
    <message>
        <source>In no set</source>
        <translation>In keinem Set</translation>
    </message>
    <message numerus="yes">
        <source>Moves %n nodes</source>
        <translation>
            <numerusform>Bewegt einen Knoten</numerusform>
            <numerusform>Bewegt %n Knoten</numerusform>
        </translation>
    </message>
    <message>
        <source>Moves nothing: the scene has no &quot;%1&quot;</source>
        <translation>Bewegt nichts: die Szene hat kein „%1“</translation>
    </message>
    <message>
        <source>Used By</source>
        <translation>Verwendung</translation>
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
    <message>
        <source>Search variants</source>
        <translation>Varianten suchen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Make variants of what the scene has</source>
        <translation>Varianten von dem anlegen, was die Szene hat</translation>
    </message>
    <message numerus="yes">
        <source>%n variants found</source>
        <translation>
            <numerusform>Eine Variante gefunden</numerusform>
            <numerusform>%n Varianten gefunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>Used By</source>
        <translation>Verwendung</translation>
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
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
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
        <source>V&amp;ariants</source>
        <translation>&amp;Varianten</translation>
    </message>
    <message>
        <source>Save &amp;Picture...</source>
        <translation>Bil&amp;d speichern …</translation>
    </message>
    <message>
        <source>Save S&amp;heet...</source>
        <translation>Bo&amp;gen speichern …</translation>
    </message>
    <message>
        <source>Export Cata&amp;logue...</source>
        <translation>Ka&amp;talog exportieren …</translation>
    </message>
    <message>
        <source>Presentatio&amp;n</source>
        <translation>&amp;Präsentation</translation>
    </message>
    <message>
        <source>Na&amp;mes in Presentation</source>
        <translation>&amp;Namen in der Präsentation</translation>
    </message>
    <message>
        <source>&amp;Nodes</source>
        <translation>Knot&amp;en</translation>
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
        <source>Export &amp;Web Page...</source>
        <translation>&amp;Webseite exportieren ...</translation>
    </message>
</context>
</TS>
