<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Manipulator</name>
    <message>
        <source>Change Perspective Match lines of camera %1</source>
        <translation>Linien des Perspektivabgleichs der Kamera %1 ändern</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Edit Texture Projection</source>
        <translation>Texturprojektion bearbeiten</translation>
    </message>
    <message>
        <source>Place Texture</source>
        <translation>Textur platzieren</translation>
    </message>
    <message>
        <source>Set Texture</source>
        <translation>Textur setzen</translation>
    </message>
    <message>
        <source>Edit Texture Settings</source>
        <translation>Textureinstellungen bearbeiten</translation>
    </message>
    <message>
        <source>Switch Texture Projection</source>
        <translation>Texturprojektion wechseln</translation>
    </message>
    <message>
        <source>Turn scene plates</source>
        <translation>Szenentafeln drehen</translation>
    </message>
    <message>
        <source>Scale scene plates</source>
        <translation>Szenentafeln skalieren</translation>
    </message>
    <message>
        <source>Move scene plates</source>
        <translation>Szenentafeln verschieben</translation>
    </message>
    <message>
        <source>Add scene plate</source>
        <translation>Szenentafel hinzufügen</translation>
    </message>
    <message>
        <source>Delete scene plates</source>
        <translation>Szenentafeln löschen</translation>
    </message>
    <message>
        <source>Rename scene plate</source>
        <translation>Szenentafel umbenennen</translation>
    </message>
    <message>
        <source>Anchor scene plates</source>
        <translation>Szenentafeln verankern</translation>
    </message>
    <message>
        <source>Restack scene plates</source>
        <translation>Szenentafeln umordnen</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalieren</translation>
    </message>
    <message>
        <source>Move Rotate Pivot</source>
        <translation>Drehpunkt verschieben</translation>
    </message>
    <message>
        <source>Move Scale Pivot</source>
        <translation>Skalierungspunkt verschieben</translation>
    </message>
    <message>
        <source>Turn Rotate Pivot</source>
        <translation>Drehpunkt drehen</translation>
    </message>
    <message>
        <source>Show or hide</source>
        <translation>Ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Lock or unlock</source>
        <translation>Sperren oder entsperren</translation>
    </message>
    <message>
        <source>Scene plates to the front or back</source>
        <translation>Szenentafeln nach vorn oder hinten</translation>
    </message>
    <message>
        <source>Show or hide scene plates</source>
        <translation>Szenentafeln ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Opacity of scene plates</source>
        <translation>Deckkraft der Szenentafeln</translation>
    </message>
    <message>
        <source>Size of scene plates</source>
        <translation>Größe der Szenentafeln</translation>
    </message>
    <message>
        <source>Colour of scene plates</source>
        <translation>Farbe der Szenentafeln</translation>
    </message>
    <message>
        <source>Material for pictures</source>
        <translation>Material für Bilder</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Align scene plates</source>
        <translation>Szenenplatten ausrichten</translation>
    </message>
    <message>
        <source>Distribute scene plates</source>
        <translation>Szenenplatten verteilen</translation>
    </message>
    <message>
        <source>Duplicate scene plates</source>
        <translation>Szenenplatten duplizieren</translation>
    </message>
    <message>
        <source>Change text</source>
        <translation>Text ändern</translation>
    </message>
</context>
<context>
    <name>nbForegroundTextContext</name>
    <message>
        <source>Center (</source>
        <translation>Mitte (</translation>
    </message>
    <message>
        <source>Height (</source>
        <translation>Höhe (</translation>
    </message>
    <message>
        <source>Radius (</source>
        <translation>Radius (</translation>
    </message>
    <message>
        <source>Scale (</source>
        <translation>Skalierung (</translation>
    </message>
    <message>
        <source>Translation (</source>
        <translation>Verschiebung (</translation>
    </message>
    <message>
        <source>Rotation (</source>
        <translation>Drehung (</translation>
    </message>
    <message>
        <source>Rotate Pivot (</source>
        <translation>Drehpunkt (</translation>
    </message>
    <message>
        <source>Scale Pivot (</source>
        <translation>Skalierungspunkt (</translation>
    </message>
    <message>
        <source>Set Texture Center Position</source>
        <translation>Mittelpunkt der Textur setzen</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>up</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>%1 deg</source>
        <translation>%1 Grad</translation>
    </message>
    <message>
        <source>%1 along %2</source>
        <translation>%1 entlang %2</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
</context>
<context>
    <name>viewer</name>
    <message>
        <source>Add clip plane</source>
        <translation>Schnittebene hinzufügen</translation>
    </message>
    <message>
        <source>Remove clip plane</source>
        <translation>Schnittebene entfernen</translation>
    </message>
    <message>
        <source>there is nothing to be cut</source>
        <translation>es gibt nichts zu schneiden</translation>
    </message>
    <message>
        <source>select a clip plane first</source>
        <translation>zuerst eine Schnittebene auswählen</translation>
    </message>
    <message>
        <source>Centre pivot</source>
        <translation>Drehpunkt zur Mitte</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n triangles without a finite place were left out</source>
        <translation>
            <numerusform>%1: %n Dreieck ohne endliche Lage wurde weggelassen</numerusform>
            <numerusform>%1: %n Dreiecke ohne endliche Lage wurden weggelassen</numerusform>
        </translation>
    </message>
    <message>
        <source>cannot be read as a model: its header has no end</source>
        <translation>kann nicht als Modell gelesen werden: der Dateikopf hat kein Ende</translation>
    </message>
    <message>
        <source>cannot be read as a model: it has faces without corners</source>
        <translation>kann nicht als Modell gelesen werden: es gibt Flächen ohne Ecken</translation>
    </message>
    <message>
        <source>reading was stopped</source>
        <translation>das Lesen wurde abgebrochen</translation>
    </message>
    <message>
        <source>cannot be read as a model: %1</source>
        <translation>kann nicht als Modell gelesen werden: %1</translation>
    </message>
    <message>
        <source>holds no surface</source>
        <translation>enthält keine Fläche</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>keine Datei</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>keine solche Datei</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>nothing is selected</source>
        <translation>es ist nichts ausgewählt</translation>
    </message>
    <message>
        <source>the selected object is locked or cannot take this value</source>
        <translation>das ausgewählte Objekt ist gesperrt oder kann diesen Wert nicht annehmen</translation>
    </message>
    <message>
        <source>an orthographic view cannot be matched: switch to perspective</source>
        <translation>eine orthografische Ansicht kann nicht abgeglichen werden: zur Perspektive wechseln</translation>
    </message>
    <message>
        <source>the camera is locked</source>
        <translation>die Kamera ist gesperrt</translation>
    </message>
    <message>
        <source>Lay lines as seen</source>
        <translation>Linien wie gesehen legen</translation>
    </message>
    <message>
        <source>Change perspective match</source>
        <translation>Perspektivabgleich ändern</translation>
    </message>
    <message>
        <source>Change magnifier</source>
        <translation>Lupe ändern</translation>
    </message>
    <message>
        <source>Orientation and field of view follow the lines.</source>
        <translation>Ausrichtung und Bildwinkel folgen den Linien.</translation>
    </message>
    <message>
        <source>The orientation follows the lines; the field of view is kept.</source>
        <translation>Die Ausrichtung folgt den Linien; der Bildwinkel bleibt.</translation>
    </message>
    <message>
        <source>An orthographic view cannot be matched: switch to perspective.</source>
        <translation>Eine orthografische Ansicht kann nicht abgeglichen werden: zur Perspektive wechseln.</translation>
    </message>
    <message>
        <source>A line is too short: the camera stays.</source>
        <translation>Eine Linie ist zu kurz: die Kamera bleibt stehen.</translation>
    </message>
    <message>
        <source>Two lines of an axis lie on each other: the camera stays.</source>
        <translation>Zwei Linien einer Achse liegen aufeinander: die Kamera bleibt stehen.</translation>
    </message>
    <message>
        <source>The lines contradict each other: the camera stays.</source>
        <translation>Die Linien widersprechen sich: die Kamera bleibt stehen.</translation>
    </message>
    <message>
        <source>There is no camera to be matched.</source>
        <translation>Es gibt keine Kamera zum Abgleichen.</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>no scene plate is selected</source>
        <translation>keine Szenentafel ist ausgewählt</translation>
    </message>
    <message>
        <source>expected a text that fits into a picture</source>
        <translation>ein Text wird erwartet, der in ein Bild passt</translation>
    </message>
    <message>
        <source>expected a name that no other plate has</source>
        <translation>ein Name wird erwartet, den keine andere Tafel hat</translation>
    </message>
    <message>
        <source>there is no further plate on this side</source>
        <translation>auf dieser Seite gibt es keine weitere Tafel</translation>
    </message>
    <message numerus="yes">
        <source>%n scene plates</source>
        <translation>
            <numerusform>%n Szenentafel</numerusform>
            <numerusform>%n Szenentafeln</numerusform>
        </translation>
    </message>
    <message>
        <source>No scene plate selected</source>
        <translation>Keine Szenentafel ausgewählt</translation>
    </message>
    <message>
        <source>Scene plate: %1</source>
        <translation>Szenentafel: %1</translation>
    </message>
    <message>
        <source>there is no picture on the selected object</source>
        <translation>auf dem ausgewählten Objekt ist kein Bild</translation>
    </message>
    <message>
        <source>Select an object to put a picture on it.</source>
        <translation>Ein Objekt auswählen, um ein Bild darauf zu legen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no surface of its own: select a part of it.</source>
        <translation>„%1“ hat keine eigene Fläche: einen Teil davon auswählen.</translation>
    </message>
    <message>
        <source>%1: there is no object to drop it on</source>
        <translation>%1: dort ist kein Objekt zum Ablegen</translation>
    </message>
    <message>
        <source>Place picture</source>
        <translation>Bild platzieren</translation>
    </message>
    <message>
        <source>the surface with the picture is not there</source>
        <translation>die Fläche mit dem Bild ist dort nicht</translation>
    </message>
    <message>
        <source>a clip plane has lost its frame</source>
        <translation>eine Schnittebene hat ihren Rahmen verloren</translation>
    </message>
    <message>
        <source>%1: cannot be saved: %2</source>
        <translation>%1: kann nicht gespeichert werden: %2</translation>
    </message>
    <message>
        <source>a picture that came from no file cannot be saved</source>
        <translation>ein Bild, das aus keiner Datei kam, kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>is no picture</source>
        <translation>ist kein Bild</translation>
    </message>
    <message>
        <source>there is no model &quot;%1&quot;</source>
        <translation>es gibt kein Modell „%1“</translation>
    </message>
    <message>
        <source>expected &quot;%1&quot; in the model, which has &quot;%2&quot; there</source>
        <translation>„%1“ wird im Modell erwartet, das dort „%2“ hat</translation>
    </message>
    <message>
        <source>the model has no object &quot;%1&quot; at &quot;%2&quot;</source>
        <translation>das Modell hat kein Objekt „%1“ bei „%2“</translation>
    </message>
    <message>
        <source>the model has no surface &quot;%1&quot; there</source>
        <translation>das Modell hat dort keine Fläche „%1“</translation>
    </message>
    <message>
        <source>%1: too large</source>
        <translation>%1: zu groß</translation>
    </message>
    <message>
        <source>%1: not while something is being dragged</source>
        <translation>%1: nicht, während etwas gezogen wird</translation>
    </message>
    <message>
        <source>the picture has %1 x %2 pixels, which would take more than %3 MiB</source>
        <translation>das Bild hat %1 x %2 Pixel, wofür mehr als %3 MiB nötig wären</translation>
    </message>
    <message>
        <source>%1: cannot be written</source>
        <translation>%1: kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>is not on this machine</source>
        <translation>liegt nicht auf diesem Rechner</translation>
    </message>
    <message>
        <source>no such folder</source>
        <translation>kein solcher Ordner</translation>
    </message>
    <message>
        <source>cannot be read as a model: what was read of it is damaged</source>
        <translation>kann nicht als Modell gelesen werden: Das Gelesene ist beschädigt</translation>
    </message>
    <message>
        <source>cannot be read as a model: reading it ended with a fault</source>
        <translation>kann nicht als Modell gelesen werden: Das Lesen endete mit einem Fehler</translation>
    </message>
    <message>
        <source>cannot be read as a model: it would take too much memory</source>
        <translation>kann nicht als Modell gelesen werden: Es würde zu viel Speicher brauchen</translation>
    </message>
    <message>
        <source>has no end: reading was given up</source>
        <translation>hat kein Ende: Das Lesen wurde aufgegeben</translation>
    </message>
    <message>
        <source>the program that reads models cannot be started: %1</source>
        <translation>das Programm, das Modelle liest, kann nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>cannot be read as a model: %1 is no kind that is known</source>
        <translation>kann nicht als Modell gelesen werden: %1 ist keine bekannte Art</translation>
    </message>
    <message>
        <source>it has places too far away</source>
        <translation>es hat Orte, die zu weit entfernt sind</translation>
    </message>
    <message>
        <source>its nodes are nested too deeply</source>
        <translation>seine Knoten sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>Models, scenes and pictures (%1);;All files (*)</source>
        <translation>Modelle, Szenen und Bilder (%1);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Move line %1</source>
        <translation>Linie %1 verschieben</translation>
    </message>
    <message>
        <source>Move end of line %1</source>
        <translation>Ende der Linie %1 verschieben</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Move along x</source>
        <translation>Entlang x verschieben</translation>
    </message>
    <message>
        <source>Move along y</source>
        <translation>Entlang y verschieben</translation>
    </message>
    <message>
        <source>Move along z</source>
        <translation>Entlang z verschieben</translation>
    </message>
    <message>
        <source>Scale along x</source>
        <translation>Entlang x skalieren</translation>
    </message>
    <message>
        <source>Scale along y</source>
        <translation>Entlang y skalieren</translation>
    </message>
    <message>
        <source>Scale along z</source>
        <translation>Entlang z skalieren</translation>
    </message>
    <message>
        <source>Turn about x</source>
        <translation>Um x drehen</translation>
    </message>
    <message>
        <source>Turn about y</source>
        <translation>Um y drehen</translation>
    </message>
    <message>
        <source>Turn about z</source>
        <translation>Um z drehen</translation>
    </message>
    <message>
        <source>Move in the plane of x and y</source>
        <translation>In der Ebene von x und y verschieben</translation>
    </message>
    <message>
        <source>Move in the plane of x and z</source>
        <translation>In der Ebene von x und z verschieben</translation>
    </message>
    <message>
        <source>Move in the plane of y and z</source>
        <translation>In der Ebene von y und z verschieben</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Scale from a corner</source>
        <translation>Von einer Ecke aus skalieren</translation>
    </message>
    <message>
        <source>Scale from an edge</source>
        <translation>Von einer Kante aus skalieren</translation>
    </message>
    <message>
        <source>Scale the depth</source>
        <translation>Tiefe skalieren</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Rechte Taste</translation>
    </message>
    <message>
        <source>Orbit; a click: menu</source>
        <translation>Umkreisen; ein Klick: Menü</translation>
    </message>
    <message>
        <source>Middle button</source>
        <translation>Mittlere Taste</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Rad</translation>
    </message>
    <message>
        <source>Zoom towards the pointer</source>
        <translation>Zum Zeiger hin zoomen</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Klick</translation>
    </message>
    <message>
        <source>Select; Ctrl or Shift: further objects</source>
        <translation>Auswählen; Strg oder Umschalt: weitere Objekte</translation>
    </message>
    <message>
        <source>Drag from empty space</source>
        <translation>Ziehen vom Leeren aus</translation>
    </message>
    <message>
        <source>Select what lies in the rectangle</source>
        <translation>Auswählen, was im Rechteck liegt</translation>
    </message>
    <message>
        <source>Ctrl in a drag</source>
        <translation>Strg beim Ziehen</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Einrasten</translation>
    </message>
    <message>
        <source>Shift in a drag</source>
        <translation>Umschalt beim Ziehen</translation>
    </message>
    <message>
        <source>Slow down</source>
        <translation>Verlangsamen</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Take the drag back, leave a mode</source>
        <translation>Das Ziehen zurücknehmen, einen Modus verlassen</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked</source>
        <translation>„%1“ ist gesperrt</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>a clip plane cannot be duplicated</source>
        <translation>eine Schnittebene kann nicht dupliziert werden</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>a name has at least one letter</source>
        <translation>ein Name hat mindestens einen Buchstaben</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Field of view ±%1°.</source>
        <translation>Bildwinkel ±%1°.</translation>
    </message>
    <message>
        <source>Orientation ±%1°.</source>
        <translation>Ausrichtung ±%1°.</translation>
    </message>
    <message>
        <source>Line %1 is off by %2 pixels.</source>
        <translation>Linie %1 liegt um %2 Pixel daneben.</translation>
    </message>
    <message>
        <source>The lines of %1 are almost parallel in the picture, so it hardly tells the field of view: use lines of a third axis, or set the lens.</source>
        <translation>Die Linien von %1 sind im Bild fast parallel, es sagt daher kaum etwas über den Bildwinkel: Linien einer dritten Achse verwenden oder das Objektiv angeben.</translation>
    </message>
    <message>
        <source>No camera sees right angles so: check which lines belong together.</source>
        <translation>Keine Kamera sieht rechte Winkel so: prüfen, welche Linien zusammengehören.</translation>
    </message>
    <message>
        <source>Turn axes about %1</source>
        <translation>Achsen um %1 drehen</translation>
    </message>
    <message>
        <source>Place camera</source>
        <translation>Kamera setzen</translation>
    </message>
    <message>
        <source>line %1 tells no place: it must run along its axis and not be a point</source>
        <translation>Linie %1 ergibt keinen Ort: sie muss entlang ihrer Achse verlaufen und darf kein Punkt sein</translation>
    </message>
    <message>
        <source>Set lens</source>
        <translation>Objektiv angeben</translation>
    </message>
    <message>
        <source>%1: %2 px</source>
        <comment>line, how far it is off</comment>
        <translation>%1: %2 px</translation>
    </message>
    <message>
        <source>at least three scene plates are needed</source>
        <translation>es braucht mindestens drei Szenenplatten</translation>
    </message>
    <message>
        <source>Anchor</source>
        <translation>Anker</translation>
    </message>
    <message>
        <source>no text is selected</source>
        <translation>es ist kein Text ausgewählt</translation>
    </message>
    <message>
        <source>Move in the plane of the screen</source>
        <translation>In der Bildebene verschieben</translation>
    </message>
    <message>
        <source>Turn about the view axis</source>
        <translation>Um die Blickachse drehen</translation>
    </message>
    <message>
        <source>Turn freely</source>
        <translation>Frei drehen</translation>
    </message>
    <message>
        <source>Scale along x and y</source>
        <translation>Entlang x und y skalieren</translation>
    </message>
    <message>
        <source>Scale along x and z</source>
        <translation>Entlang x und z skalieren</translation>
    </message>
    <message>
        <source>Scale along y and z</source>
        <translation>Entlang y und z skalieren</translation>
    </message>
    <message>
        <source>%1: is there already and belongs to another file</source>
        <translation>%1: ist schon da und gehört zu einer anderen Datei</translation>
    </message>
    <message>
        <source>%1: models are exported to %2</source>
        <translation>%1: Modelle werden als %2 exportiert</translation>
    </message>
    <message>
        <source>there is nothing to export</source>
        <translation>es gibt nichts zu exportieren</translation>
    </message>
    <message>
        <source>there is no photograph</source>
        <translation>es gibt kein Foto</translation>
    </message>
    <message>
        <source>Fit photograph</source>
        <translation>Foto einpassen</translation>
    </message>
    <message>
        <source>line %1 names a vertex that there is not</source>
        <translation>Zeile %1 nennt einen Eckpunkt, den es nicht gibt</translation>
    </message>
    <message>
        <source>the picture does not lie so that this could be done</source>
        <translation>das Bild liegt nicht so, dass das möglich wäre</translation>
    </message>
    <message>
        <source>Drag the picture</source>
        <translation>Bild ziehen</translation>
    </message>
    <message>
        <source>A click places the handles; Esc ends</source>
        <translation>Ein Klick setzt die Griffe; Esc beendet</translation>
    </message>
    <message>
        <source>A click places the picture, the wheel turns it (%1°), Ctrl and the wheel size it (%2%); Shift slows, Esc ends</source>
        <translation>Ein Klick setzt das Bild, das Rad dreht es (%1°), Strg und Rad ändern seine Größe (%2 %); Umschalt verlangsamt, Esc beendet</translation>
    </message>
    <message>
        <source>The view is held: &quot;Hold the view&quot; (Shift+H) lets it go</source>
        <translation>Die Ansicht ist festgehalten: „Ansicht festhalten“ (Umschalt+H) gibt sie frei</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(ohne Namen)</translation>
    </message>
</context>
<context>
    <name>viewer::AboutBox</name>
    <message>
        <source>nbManipulator %1</source>
        <translation>nbManipulator %1</translation>
    </message>
    <message>
        <source>Qt %1 (built with %2)</source>
        <translation>Qt %1 (gebaut mit %2)</translation>
    </message>
    <message>
        <source>OpenGL: %1</source>
        <translation>OpenGL: %1</translation>
    </message>
    <message>
        <source>not started</source>
        <translation>nicht gestartet</translation>
    </message>
    <message>
        <source>Scene graph: bundled, interface of version %1.%2</source>
        <translation>Szenengraph: mitgeliefert, Schnittstelle der Version %1.%2</translation>
    </message>
    <message>
        <source>Picking: %1</source>
        <translation>Treffersuche: %1</translation>
    </message>
    <message>
        <source>Model files: %1</source>
        <translation>Modelldateien: %1</translation>
    </message>
    <message>
        <source>System: %1, %2</source>
        <translation>System: %1, %2</translation>
    </message>
    <message>
        <source>About nbviewer</source>
        <translation>Über nbviewer</translation>
    </message>
    <message>
        <source>Interactive manipulators for 3D scenes</source>
        <translation>Interaktive Manipulatoren für 3D-Szenen</translation>
    </message>
</context>
<context>
    <name>viewer::AxesCorner</name>
    <message>
        <source>Axes of the world</source>
        <translation>Achsen der Welt</translation>
    </message>
    <message>
        <source>Click on an axis to look along it</source>
        <translation>Ein Klick auf eine Achse blickt an ihr entlang</translation>
    </message>
</context>
<context>
    <name>viewer::Language</name>
    <message>
        <source>As the desktop</source>
        <translation>Wie die Arbeitsumgebung</translation>
    </message>
</context>
<context>
    <name>viewer::LogPanel</name>
    <message>
        <source>Detail</source>
        <translation>Einzelheit</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
</context>
<context>
    <name>viewer::MainWindow</name>
    <message>
        <source>Sessions (*.json)</source>
        <translation>Sitzungen (*.json)</translation>
    </message>
    <message>
        <source>View of the scene</source>
        <translation>Ansicht der Szene</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.bmp)</source>
        <translation>Bilder (*.png *.jpg *.bmp)</translation>
    </message>
    <message>
        <source>%1: drop pictures on an object</source>
        <translation>%1: Bilder auf einem Objekt ablegen</translation>
    </message>
    <message>
        <source>Replay session</source>
        <translation>Sitzung wiedergeben</translation>
    </message>
    <message>
        <source>%1: a scene can only be opened by itself</source>
        <translation>%1: eine Szene kann nur allein geöffnet werden</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>The manual is not installed</source>
        <translation>Das Handbuch ist nicht installiert</translation>
    </message>
    <message>
        <source>%1 has been written</source>
        <translation>%1 wurde geschrieben</translation>
    </message>
</context>
<context>
    <name>viewer::MaterialPanel</name>
    <message>
        <source>Place</source>
        <translation>Lage</translation>
    </message>
    <message>
        <source>Turn, °</source>
        <translation>Drehung, °</translation>
    </message>
    <message>
        <source>Half size</source>
        <translation>Halbe Größe</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Wiederholung</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>Versatz quer</translation>
    </message>
    <message>
        <source>Offset upwards</source>
        <translation>Versatz hoch</translation>
    </message>
    <message>
        <source>Repeat across</source>
        <translation>Quer wiederholen</translation>
    </message>
    <message>
        <source>Repeat upwards</source>
        <translation>Hoch wiederholen</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Width of tread</source>
        <translation>Laufflächenbreite</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Part around</source>
        <translation>Anteil am Umfang</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Komponente</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>From one side</source>
        <translation>Von einer Seite</translation>
    </message>
    <message>
        <source>Texture coordinates</source>
        <translation>Texturkoordinaten</translation>
    </message>
    <message>
        <source>From three sides</source>
        <translation>Von drei Seiten</translation>
    </message>
    <message>
        <source>Around a tire</source>
        <translation>Um einen Reifen</translation>
    </message>
    <message>
        <source>Projection</source>
        <translation>Projektion</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalieren</translation>
    </message>
    <message>
        <source>Turn + scale</source>
        <translation>Drehen + skalieren</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>By click</source>
        <translation>Per Klick</translation>
    </message>
    <message>
        <source>Placing</source>
        <translation>Platzieren</translation>
    </message>
    <message>
        <source>Handle size</source>
        <translation>Griffgröße</translation>
    </message>
    <message>
        <source>Keep aspect</source>
        <translation>Seitenverhältnis halten</translation>
    </message>
    <message>
        <source>Turn rings seen edge-on</source>
        <translation>Ringe von der Kante drehen</translation>
    </message>
    <message>
        <source>Fit to the object</source>
        <translation>An das Objekt anpassen</translation>
    </message>
    <message>
        <source>End in depth</source>
        <translation>In der Tiefe enden</translation>
    </message>
    <message>
        <source>Picture is a mask</source>
        <translation>Bild ist eine Maske</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Umkehren</translation>
    </message>
    <message>
        <source>Show projection</source>
        <translation>Projektion zeigen</translation>
    </message>
    <message>
        <source>Show its depth</source>
        <translation>Ihre Tiefe zeigen</translation>
    </message>
    <message>
        <source>How far one sees through the shown projection</source>
        <translation>Wie weit man durch die gezeigte Projektion sieht</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>Choose picture</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>On &quot;%1&quot;</source>
        <translation>Auf „%1“</translation>
    </message>
    <message>
        <source>Clicks on the object place the picture, or its handles, until Esc</source>
        <translation>Klicks auf das Objekt setzen das Bild oder seine Griffe, bis Esc</translation>
    </message>
    <message>
        <source>Turn about the handles</source>
        <translation>Um die Griffe drehen</translation>
    </message>
    <message>
        <source>Grab the picture</source>
        <translation>Bild greifen</translation>
    </message>
    <message>
        <source>Pixels per unit</source>
        <translation>Pixel je Einheit</translation>
    </message>
    <message>
        <source>Fit to the face</source>
        <translation>Auf die Fläche einpassen</translation>
    </message>
    <message>
        <source>Fit as seen</source>
        <translation>Wie gesehen einpassen</translation>
    </message>
    <message>
        <source>Align to the surface</source>
        <translation>An der Oberfläche ausrichten</translation>
    </message>
    <message>
        <source>Align upright</source>
        <translation>Aufrecht ausrichten</translation>
    </message>
    <message>
        <source>Align to the view</source>
        <translation>Zur Ansicht ausrichten</translation>
    </message>
    <message>
        <source>Quarter turn left</source>
        <translation>Vierteldrehung nach links</translation>
    </message>
    <message>
        <source>Quarter turn right</source>
        <translation>Vierteldrehung nach rechts</translation>
    </message>
    <message>
        <source>Flip across</source>
        <translation>Waagerecht spiegeln</translation>
    </message>
    <message>
        <source>Flip upwards</source>
        <translation>Senkrecht spiegeln</translation>
    </message>
    <message>
        <source>Own aspect</source>
        <translation>Eigenes Seitenverhältnis</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Anordnen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no texture coordinates of its own: it has those of a box</source>
        <translation>„%1“ hat keine eigenen Texturkoordinaten: es bekommt die eines Quaders</translation>
    </message>
    <message>
        <source>On faces up to, °</source>
        <translation>Auf Flächen bis, °</translation>
    </message>
    <message>
        <source>Shown up to, °|Fading over, °</source>
        <translation>Gezeigt bis, °|Ausblendend über, °</translation>
    </message>
</context>
<context>
    <name>viewer::NumberBox</name>
    <message>
        <source>&quot;%1&quot; is not complete</source>
        <translation>„%1“ ist nicht vollständig</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not understood from &quot;%2&quot; on</source>
        <translation>„%1“ ist ab „%2“ nicht verständlich</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: &quot;%2&quot; is no unit of this number</source>
        <translation>„%1“: „%2“ ist keine Einheit dieser Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number that can be had</source>
        <translation>„%1“ ergibt keine Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not lie between %2 and %3</source>
        <translation>„%1“ liegt nicht zwischen %2 und %3</translation>
    </message>
</context>
<context>
    <name>viewer::ObjectPanel</name>
    <message>
        <source>Translation</source>
        <translation>Verschiebung</translation>
    </message>
    <message>
        <source>Rotation, °</source>
        <translation>Drehung, °</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Rotate pivot</source>
        <translation>Drehpunkt</translation>
    </message>
    <message>
        <source>Scale pivot</source>
        <translation>Skalierungspunkt</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Sichtbar</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>Nichts ausgewählt</translation>
    </message>
    <message>
        <source>Keep proportions</source>
        <translation>Verhältnisse beibehalten</translation>
    </message>
</context>
<context>
    <name>viewer::PanelDocks</name>
    <message>
        <source>As opened</source>
        <translation>Wie geöffnet</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Perspective match</source>
        <translation>Perspektivabgleich</translation>
    </message>
    <message>
        <source>Scene plates</source>
        <translation>Szenentafeln</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
</context>
<context>
    <name>viewer::PerspectiveMatchPanel</name>
    <message>
        <source>Match mode</source>
        <translation>Abgleichmodus</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>Camera locked</source>
        <translation>Kamera gesperrt</translation>
    </message>
    <message>
        <source>Lines used</source>
        <translation>Verwendete Linien</translation>
    </message>
    <message>
        <source>X, Y and Z</source>
        <translation>X, Y und Z</translation>
    </message>
    <message>
        <source>X and Y</source>
        <translation>X und Y</translation>
    </message>
    <message>
        <source>X and Z</source>
        <translation>X und Z</translation>
    </message>
    <message>
        <source>Y and Z</source>
        <translation>Y und Z</translation>
    </message>
    <message>
        <source>Field of view</source>
        <translation>Bildwinkel</translation>
    </message>
    <message>
        <source>From the lines</source>
        <translation>Aus den Linien</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fest</translation>
    </message>
    <message>
        <source>Lay lines as seen</source>
        <translation>Linien anlegen</translation>
    </message>
    <message>
        <source>Turn camera</source>
        <translation>Kamera drehen</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Over the models</source>
        <translation>Über den Modellen</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Lupe</translation>
    </message>
    <message>
        <source>Line %1, start, across</source>
        <translation>Linie %1, Anfang, quer</translation>
    </message>
    <message>
        <source>Line %1, start, up</source>
        <translation>Linie %1, Anfang, hoch</translation>
    </message>
    <message>
        <source>Line %1, end, across</source>
        <translation>Linie %1, Ende, quer</translation>
    </message>
    <message>
        <source>Line %1, end, up</source>
        <translation>Linie %1, Ende, hoch</translation>
    </message>
    <message>
        <source>Open photograph</source>
        <translation>Foto öffnen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keines</translation>
    </message>
    <message>
        <source>%1 Field of view %2°.</source>
        <comment>sentence, number</comment>
        <translation>%1 Bildwinkel %2°.</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Brennweite</translation>
    </message>
    <message>
        <source>Sensor width</source>
        <translation>Sensorbreite</translation>
    </message>
    <message>
        <source>Lens, sensor (mm)</source>
        <translation>Objektiv, Sensor (mm)</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Angeben</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>A line from the origin, its length</source>
        <translation>Linie ab dem Ursprung, ihre Länge</translation>
    </message>
    <message>
        <source>Move camera</source>
        <translation>Kamera bewegen</translation>
    </message>
    <message>
        <source>Turn axes about</source>
        <translation>Achsen drehen um</translation>
    </message>
    <message>
        <source>Height of the view</source>
        <translation>Höhe der Ansicht</translation>
    </message>
    <message>
        <source>Width of the view</source>
        <translation>Breite der Ansicht</translation>
    </message>
    <message>
        <source>Fills</source>
        <translation>Füllt</translation>
    </message>
    <message>
        <source>Lines snap to edges (Alt: not)</source>
        <translation>Linien rasten an Kanten ein (Alt: nicht)</translation>
    </message>
</context>
<context>
    <name>viewer::PlatesPanel</name>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Select and edit plates in the view</source>
        <translation>Tafeln in der Ansicht auswählen und bearbeiten</translation>
    </message>
    <message>
        <source>Picture…</source>
        <translation>Bild…</translation>
    </message>
    <message>
        <source>Add a picture from a file</source>
        <translation>Ein Bild aus einer Datei hinzufügen</translation>
    </message>
    <message>
        <source>Colour…</source>
        <translation>Farbe…</translation>
    </message>
    <message>
        <source>Add a plate of plain colour</source>
        <translation>Eine einfarbige Tafel hinzufügen</translation>
    </message>
    <message>
        <source>Bring forward</source>
        <translation>Nach vorn</translation>
    </message>
    <message>
        <source>Send backward</source>
        <translation>Nach hinten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Scene plates, the foremost first</source>
        <translation>Szenentafeln, die vorderste zuerst</translation>
    </message>
    <message>
        <source>In front of the scene</source>
        <translation>Vor der Szene</translation>
    </message>
    <message>
        <source>Behind the scene</source>
        <translation>Hinter der Szene</translation>
    </message>
    <message>
        <source>Lies</source>
        <translation>Liegt</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>The place of the window that the plate follows</source>
        <translation>Die Stelle des Fensters, der die Tafel folgt</translation>
    </message>
    <message>
        <source>Anchor</source>
        <translation>Anker</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Lage</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Rotation, °</source>
        <translation>Drehung, °</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Snap to edges and centre</source>
        <translation>An Kanten und Mitte einrasten</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Height of a line, of the view&apos;s</source>
        <translation>Höhe einer Zeile, von jener der Ansicht</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Colour of the text</source>
        <translation>Farbe des Textes</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add the text as a plate</source>
        <translation>Den Text als Tafel hinzufügen</translation>
    </message>
    <message>
        <source>Add picture</source>
        <translation>Bild hinzufügen</translation>
    </message>
    <message>
        <source>Align left</source>
        <translation>Links ausrichten</translation>
    </message>
    <message>
        <source>Align centres across</source>
        <translation>Waagerecht mittig ausrichten</translation>
    </message>
    <message>
        <source>Align right</source>
        <translation>Rechts ausrichten</translation>
    </message>
    <message>
        <source>Align top</source>
        <translation>Oben ausrichten</translation>
    </message>
    <message>
        <source>Align centres down</source>
        <translation>Senkrecht mittig ausrichten</translation>
    </message>
    <message>
        <source>Align bottom</source>
        <translation>Unten ausrichten</translation>
    </message>
    <message>
        <source>Equal gaps across</source>
        <translation>Gleiche Abstände waagerecht</translation>
    </message>
    <message>
        <source>Equal gaps down</source>
        <translation>Gleiche Abstände senkrecht</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Arrange plates</source>
        <translation>Platten anordnen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Change the text of the selected plate</source>
        <translation>Den Text der ausgewählten Tafel ändern</translation>
    </message>
</context>
<context>
    <name>viewer::SceneFileActions</name>
    <message>
        <source>Scenes (*.nbscene)</source>
        <translation>Szenen (*.nbscene)</translation>
    </message>
    <message>
        <source>Save scene</source>
        <translation>Szene speichern</translation>
    </message>
    <message>
        <source>The scene</source>
        <translation>Die Szene</translation>
    </message>
    <message>
        <source>%1 has been edited. Save it?</source>
        <translation>%1 wurde bearbeitet. Speichern?</translation>
    </message>
    <message>
        <source>Edits that are not saved will be lost.</source>
        <translation>Nicht gespeicherte Änderungen gehen verloren.</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>The program ended unexpectedly. Edits up to %1 have been kept. Recover them?</source>
        <translation>Das Programm wurde unerwartet beendet. Änderungen bis %1 sind erhalten. Sollen sie wiederhergestellt werden?</translation>
    </message>
    <message>
        <source>%1 has been changed by another program. Replace it?</source>
        <translation>%1 wurde von einem anderen Programm geändert. Ersetzen?</translation>
    </message>
    <message>
        <source>%1: has been changed by another program</source>
        <translation>%1: wurde von einem anderen Programm geändert</translation>
    </message>
    <message>
        <source>What is neither recovered nor discarded is offered again at the next start.</source>
        <translation>Was weder wiederhergestellt noch verworfen wird, wird beim nächsten Start wieder angeboten.</translation>
    </message>
</context>
<context>
    <name>viewer::ScenePanel</name>
    <message>
        <source>Objects of the scene</source>
        <translation>Objekte der Szene</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
</context>
<context>
    <name>viewer::Settings</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Farbschema</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie die Arbeitsumgebung</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Orbiting</source>
        <translation>Umkreisen</translation>
    </message>
    <message>
        <source>Right button; middle pans</source>
        <translation>Rechte Taste; die mittlere verschiebt</translation>
    </message>
    <message>
        <source>Middle button; with Shift pans</source>
        <translation>Mittlere Taste; mit Umschalt verschiebt sie</translation>
    </message>
    <message>
        <source>Grid on the ground</source>
        <translation>Raster am Boden</translation>
    </message>
    <message>
        <source>Coarse while the view moves</source>
        <translation>Grob, solange sich die Ansicht bewegt</translation>
    </message>
    <message>
        <source>Edits are kept every, s</source>
        <translation>Bearbeitungen sichern alle, s</translation>
    </message>
    <message>
        <source>Most that a picture may take, MiB</source>
        <translation>Höchstens für ein Bild, MiB</translation>
    </message>
    <message>
        <source>Colours of handles</source>
        <translation>Farben der Griffe</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Klassisch</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Sanft</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Hoher Kontrast</translation>
    </message>
    <message>
        <source>For any colour vision</source>
        <translation>Für jedes Farbsehen</translation>
    </message>
    <message>
        <source>Handles fade that are seen end-on</source>
        <translation>Von vorn gesehene Griffe ausblenden</translation>
    </message>
    <message>
        <source>Draw what a drag has come to</source>
        <translation>Zurückgelegtes zeichnen</translation>
    </message>
    <message>
        <source>Snap to corners and edges of objects</source>
        <translation>An Ecken und Kanten von Objekten einrasten</translation>
    </message>
    <message>
        <source>Size of the gizmo</source>
        <translation>Größe des Gizmos</translation>
    </message>
    <message>
        <source>Step of translation</source>
        <translation>Schritt der Verschiebung</translation>
    </message>
    <message>
        <source>Step of rotation, °</source>
        <translation>Schritt der Drehung, °</translation>
    </message>
    <message>
        <source>Step of scale</source>
        <translation>Schritt der Skalierung</translation>
    </message>
    <message>
        <source>Backs of rings are dim</source>
        <translation>Rückseiten von Ringen sind matt</translation>
    </message>
    <message>
        <source>Letters at the tips of handles</source>
        <translation>Buchstaben an den Spitzen der Griffe</translation>
    </message>
    <message>
        <source>Hit handles from farther with pen or finger</source>
        <translation>Griffe mit Stift oder Finger von weiter weg treffen</translation>
    </message>
    <message>
        <source>A handle moves in the plane of the screen</source>
        <translation>Ein Griff bewegt in der Bildebene</translation>
    </message>
    <message>
        <source>A ring turns about the view axis</source>
        <translation>Ein Ring dreht um die Blickachse</translation>
    </message>
    <message>
        <source>A disc turns freely</source>
        <translation>Eine Scheibe dreht frei</translation>
    </message>
    <message>
        <source>Planes scale in two axes</source>
        <translation>Ebenen skalieren in zwei Achsen</translation>
    </message>
    <message>
        <source>Handles stand on the viewer&apos;s side</source>
        <translation>Griffe stehen auf der Seite des Betrachters</translation>
    </message>
    <message>
        <source>Axes of the handles</source>
        <translation>Achsen der Griffe</translation>
    </message>
    <message>
        <source>World</source>
        <translation>Welt</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>Object above</source>
        <translation>Objekt darüber</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Several objects turn and scale</source>
        <translation>Mehrere Objekte drehen und skalieren sich</translation>
    </message>
    <message>
        <source>Each about its own pivot</source>
        <translation>Jedes um seinen Drehpunkt</translation>
    </message>
    <message>
        <source>About the first one&apos;s pivot</source>
        <translation>Um den Drehpunkt des ersten</translation>
    </message>
    <message>
        <source>About the middle of their pivots</source>
        <translation>Um die Mitte ihrer Drehpunkte</translation>
    </message>
    <message>
        <source>Length of arrows in pixels, 0 by that size</source>
        <translation>Länge der Pfeile in Pixeln, 0 nach dieser Größe</translation>
    </message>
</context>
<context>
    <name>viewer::SettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>viewer::StatusLine</name>
    <message>
        <source>Nothing selected</source>
        <translation>Nichts ausgewählt</translation>
    </message>
    <message numerus="yes">
        <source>Selected: %1 and %n more</source>
        <translation>
            <numerusform>Ausgewählt: %1 und %n weiteres</numerusform>
            <numerusform>Ausgewählt: %1 und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Selected: %1</source>
        <translation>Ausgewählt: %1</translation>
    </message>
    <message>
        <source>Under the pointer: %1</source>
        <translation>Unter dem Zeiger: %1</translation>
    </message>
    <message>
        <source>Progress of loading</source>
        <translation>Fortschritt des Ladens</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop loading</source>
        <translation>Laden abbrechen</translation>
    </message>
    <message>
        <source>Stop loading (Esc); the scene stays as it is</source>
        <translation>Laden abbrechen (Esc); die Szene bleibt, wie sie ist</translation>
    </message>
    <message numerus="yes">
        <source>%Ln triangles</source>
        <translation>
            <numerusform>%Ln Dreieck</numerusform>
            <numerusform>%Ln Dreiecke</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading %1: %p%</source>
        <comment>%p is the number</comment>
        <translation>%1 wird gelesen: %p&#xa0;%</translation>
    </message>
    <message>
        <source>Preparing %1: %p%</source>
        <comment>%p is the number</comment>
        <translation>%1 wird vorbereitet: %p&#xa0;%</translation>
    </message>
    <message>
        <source>%1: Ctrl snaps, Shift slows, type a number, Esc cancels</source>
        <translation>%1: Strg rastet ein, Umschalt verlangsamt, Zahlen lassen sich eintippen, Esc bricht ab</translation>
    </message>
    <message>
        <source>%1: Shift slows, type a number, Esc cancels</source>
        <translation>%1: Umschalt verlangsamt, Zahlen lassen sich eintippen, Esc bricht ab</translation>
    </message>
</context>
<context>
    <name>viewer::ToolBars</name>
    <message>
        <source>Files and steps</source>
        <translation>Dateien und Schritte</translation>
    </message>
    <message>
        <source>Handles</source>
        <translation>Griffe</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>Manipulators</source>
        <translation>Manipulatoren</translation>
    </message>
</context>
<context>
    <name>viewer::ViewWidget</name>
    <message>
        <source>the view cannot be drawn: %1</source>
        <translation>die Ansicht kann nicht gezeichnet werden: %1</translation>
    </message>
    <message>
        <source>%1 ms, %2 draw calls, %L3 triangles</source>
        <translation>%1 ms, %2 Zeichenaufrufe, %L3 Dreiecke</translation>
    </message>
    <message>
        <source>%1 ms, %2 draw calls, %L3 triangles, scene image reused</source>
        <translation>%1 ms, %2 Zeichenaufrufe, %L3 Dreiecke, Szenenbild wiederverwendet</translation>
    </message>
    <message>
        <source>%1; input to picture %2 ms</source>
        <translation>%1; Eingabe bis Bild %2 ms</translation>
    </message>
</context>
<context>
    <name>viewer::WindowActions</name>
    <message>
        <source>&amp;Front</source>
        <translation>&amp;Vorn</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Hinten</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Rechts</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Links</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>&amp;Oben</translation>
    </message>
    <message>
        <source>B&amp;ottom</source>
        <translation>&amp;Unten</translation>
    </message>
    <message>
        <source>Three-&amp;quarter</source>
        <translation>&amp;Dreiviertel</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Keiner</translation>
    </message>
    <message>
        <source>&amp;Translate</source>
        <translation>&amp;Verschieben</translation>
    </message>
    <message>
        <source>&amp;Rotate</source>
        <translation>&amp;Drehen</translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation>&amp;Skalieren</translation>
    </message>
    <message>
        <source>&amp;Universal</source>
        <translation>&amp;Universal</translation>
    </message>
    <message>
        <source>Translate, r&amp;otate</source>
        <translation>Verschieben, dre&amp;hen</translation>
    </message>
    <message>
        <source>Translate, rotate, s&amp;cale</source>
        <translation>Verschieben, drehen, ska&amp;lieren</translation>
    </message>
    <message>
        <source>Translate, rotate about &amp;y and z</source>
        <translation>Verschieben, um &amp;Y und Z drehen</translation>
    </message>
    <message>
        <source>Rotate &amp;pivot</source>
        <translation>Dreh&amp;punkt</translation>
    </message>
    <message>
        <source>Sca&amp;le pivot</source>
        <translation>Skalieru&amp;ngspunkt</translation>
    </message>
    <message>
        <source>Clip plan&amp;e</source>
        <translation>Schnitt&amp;ebene</translation>
    </message>
    <message>
        <source>Ca&amp;mera pivot</source>
        <translation>Ka&amp;meradrehpunkt</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>tip, shortcut</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen…</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Zu&amp;letzt geöffnet</translation>
    </message>
    <message>
        <source>S&amp;tart scene</source>
        <translation>Sta&amp;rtszene</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Alles &amp;auswählen</translation>
    </message>
    <message>
        <source>Select &amp;nothing</source>
        <translation>&amp;Nichts auswählen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Frame &amp;all</source>
        <translation>&amp;Alles einpassen</translation>
    </message>
    <message>
        <source>Frame &amp;selection</source>
        <translation>Aus&amp;wahl einpassen</translation>
    </message>
    <message>
        <source>Look &amp;from</source>
        <translation>&amp;Blick von</translation>
    </message>
    <message>
        <source>Look from a side</source>
        <translation>Von einer Seite blicken</translation>
    </message>
    <message>
        <source>Ort&amp;hographic</source>
        <translation>&amp;Orthografisch</translation>
    </message>
    <message>
        <source>&amp;Z is up</source>
        <translation>&amp;Z ist oben</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>Be&amp;dienfelder</translation>
    </message>
    <message>
        <source>Show &amp;effect buffer</source>
        <translation>&amp;Effektpuffer zeigen</translation>
    </message>
    <message>
        <source>Ne&amp;xt panel</source>
        <translation>&amp;Nächstes Bedienfeld</translation>
    </message>
    <message>
        <source>F&amp;ull screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>&amp;Manipulator</source>
        <translation>&amp;Manipulator</translation>
    </message>
    <message>
        <source>Add cl&amp;ip plane</source>
        <translation>Schnittebene hin&amp;zufügen</translation>
    </message>
    <message>
        <source>Remo&amp;ve clip plane</source>
        <translation>Schnittebene ent&amp;fernen</translation>
    </message>
    <message>
        <source>Match a p&amp;hotograph</source>
        <translation>&amp;An ein Foto angleichen</translation>
    </message>
    <message>
        <source>Edit scene pl&amp;ates</source>
        <translation>Szenentafeln &amp;bearbeiten</translation>
    </message>
    <message>
        <source>Edit pictures on o&amp;bjects</source>
        <translation>Bilder auf &amp;Objekten bearbeiten</translation>
    </message>
    <message>
        <source>Axes o&amp;f the object</source>
        <translation>Achsen des Ob&amp;jekts</translation>
    </message>
    <message>
        <source>Snappin&amp;g</source>
        <translation>Ein&amp;rasten</translation>
    </message>
    <message>
        <source>Pivot bac&amp;k to the centre</source>
        <translation>Drehpunkt &amp;in die Mitte</translation>
    </message>
    <message>
        <source>Axes of the object instead of the world&apos;s</source>
        <translation>Achsen des Objekts statt jener der Welt</translation>
    </message>
    <message>
        <source>Advance in steps; hold Ctrl for a while</source>
        <translation>In Schritten vorgehen; Strg halten für eine Weile</translation>
    </message>
    <message>
        <source>&amp;Session</source>
        <translation>&amp;Sitzung</translation>
    </message>
    <message>
        <source>Re&amp;play…</source>
        <translation>&amp;Wiedergeben…</translation>
    </message>
    <message>
        <source>&amp;Stop replay</source>
        <translation>Wiedergabe &amp;beenden</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About nbviewer…</source>
        <translation>Ü&amp;ber nbviewer…</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>Frame stat&amp;istics</source>
        <translation>Bild&amp;statistik</translation>
    </message>
    <message>
        <source>&amp;Save scene</source>
        <translation>Szene &amp;speichern</translation>
    </message>
    <message>
        <source>Save sc&amp;ene as…</source>
        <translation>Szene speichern &amp;unter…</translation>
    </message>
    <message>
        <source>Sa&amp;ve picture…</source>
        <translation>&amp;Bild speichern…</translation>
    </message>
    <message>
        <source>Hold the vie&amp;w</source>
        <translation>Ansich&amp;t festhalten</translation>
    </message>
    <message>
        <source>Hold the view: nothing moves the camera until this is lifted</source>
        <translation>Ansicht festhalten: nichts bewegt die Kamera, bis dies aufgehoben wird</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Rena&amp;me</source>
        <translation>Um&amp;benennen</translation>
    </message>
    <message>
        <source>&amp;Hide or show</source>
        <translation>Aus- oder &amp;einblenden</translation>
    </message>
    <message>
        <source>Loc&amp;k or unlock</source>
        <translation>Sperren oder &amp;freigeben</translation>
    </message>
    <message>
        <source>&amp;Shortcuts…</source>
        <translation>&amp;Tastenkürzel…</translation>
    </message>
    <message>
        <source>Se&amp;ttings…</source>
        <translation>E&amp;instellungen…</translation>
    </message>
    <message>
        <source>&amp;Grid on the ground</source>
        <translation>&amp;Raster am Boden</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>&amp;Tour</source>
        <translation>&amp;Rundgang</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>World</source>
        <translation>Welt</translation>
    </message>
    <message>
        <source>E&amp;xport models…</source>
        <translation>Modelle e&amp;xportieren…</translation>
    </message>
    <message>
        <source>Export models</source>
        <translation>Modelle exportieren</translation>
    </message>
    <message>
        <source>Models (%1)</source>
        <translation>Modelle (%1)</translation>
    </message>
    <message>
        <source>Object above</source>
        <translation>Objekt darüber</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
</context>
</TS>
